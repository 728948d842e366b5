<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CommonGUI library %1
Built with Qt %2, running on Qt %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CalcoraDialog</name>
    <message>
        <source>Value Converter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Binary:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 and 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decimal:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 to 18446744073709551615</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hexadecimal:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for example ff or 0x1A2B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Characters:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for example AB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpViewer</name>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpViewerDialog</name>
    <message>
        <source>Brisca - Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Out of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TipOfTheDay</name>
    <message>
        <source>Tip of the day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Did you know ...?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Tips on Startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
