<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="en_US">
<context>
    <name>ConfigureNodeWindow</name>
    <message numerus="yes">
        <source>%n object(s)</source>
        <translation><numerusform>%n object</numerusform><numerusform>%n objects</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>Wrote %1 (%n value(s))</source>
        <translation><numerusform>Wrote %1 (%n value)</numerusform><numerusform>Wrote %1 (%n values)</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n read-only value(s) are in the DCF only, not in a concise DCF.</source>
        <translation><numerusform>%n read-only value is in the DCF only, not in a concise DCF.</numerusform><numerusform>%n read-only values are in the DCF only, not in a concise DCF.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>Wrote DCF %1 with %n configured object(s)</source>
        <translation><numerusform>Wrote DCF %1 with %n configured object</numerusform><numerusform>Wrote DCF %1 with %n configured objects</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>Exported %n entry(s) to %1</source>
        <translation><numerusform>Exported %n entry to %1</numerusform><numerusform>Exported %n entries to %1</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>Wrote concise DCF %1 with %n entry(s)</source>
        <translation><numerusform>Wrote concise DCF %1 with %n entry</numerusform><numerusform>Wrote concise DCF %1 with %n entries</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n value(s) cannot be written for their data type.</source>
        <translation><numerusform>%n value cannot be written for its data type.</numerusform><numerusform>%n values cannot be written for their data type.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>Nothing written: %n value(s) to correct</source>
        <translation><numerusform>Nothing written: %n value to correct</numerusform><numerusform>Nothing written: %n values to correct</numerusform></translation>
    </message>
</context>
</TS>