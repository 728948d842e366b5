<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>CommonGUI library %1
Built with Qt %2, running on Qt %3</source>
        <translation>CommonGUI-Bibliothek %1
Erstellt mit Qt %2, läuft mit Qt %3</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>CalcoraDialog</name>
    <message>
        <source>Value Converter</source>
        <translation>Werteumrechner</translation>
    </message>
    <message>
        <source>Binary:</source>
        <translation>Binär:</translation>
    </message>
    <message>
        <source>0 and 1</source>
        <translation>0 und 1</translation>
    </message>
    <message>
        <source>Decimal:</source>
        <translation>Dezimal:</translation>
    </message>
    <message>
        <source>0 to 18446744073709551615</source>
        <translation>0 bis 18446744073709551615</translation>
    </message>
    <message>
        <source>Hexadecimal:</source>
        <translation>Hexadezimal:</translation>
    </message>
    <message>
        <source>for example ff or 0x1A2B</source>
        <translation>zum Beispiel ff oder 0x1A2B</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Characters, for example AB</source>
        <translation>Zeichen, zum Beispiel AB</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
</context>
<context>
    <name>ConciseDcfCreator</name>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1: data type &quot;%2&quot; is not supported</source>
        <translation>%1: Datentyp &quot;%2&quot; wird nicht unterstützt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message numerus="yes">
        <source>Truncated concise DCF: %n byte(s), no entry count</source>
        <translation>
            <numerusform>Abgeschnittene Concise-DCF: %n Byte, keine Eintragsanzahl</numerusform>
            <numerusform>Abgeschnittene Concise-DCF: %n Bytes, keine Eintragsanzahl</numerusform>
        </translation>
    </message>
    <message>
        <source>Inconsistent concise DCF: %1 entries cannot fit in %2 bytes</source>
        <translation>Inkonsistente Concise-DCF: %1 Einträge passen nicht in %2 Bytes</translation>
    </message>
    <message>
        <source>Truncated concise DCF: entry %1 of %2 is cut short</source>
        <translation>Abgeschnittene Concise-DCF: Eintrag %1 von %2 ist unvollständig</translation>
    </message>
    <message>
        <source>Truncated concise DCF: entry %1 (0x%2sub%3) declares %4 bytes, %5 left</source>
        <translation>Abgeschnittene Concise-DCF: Eintrag %1 (0x%2sub%3) gibt %4 Bytes an, %5 übrig</translation>
    </message>
    <message>
        <source>Inconsistent concise DCF: %1 bytes after the last entry</source>
        <translation>Inkonsistente Concise-DCF: %1 Bytes nach dem letzten Eintrag</translation>
    </message>
    <message>
        <source>value %1 is not a hex string of whole bytes for DOMAIN</source>
        <translation>Wert %1 ist keine Hex-Zeichenkette aus ganzen Bytes für DOMAIN</translation>
    </message>
    <message>
        <source>value %1 uses $NODEID but the file has no node id</source>
        <translation>Wert %1 verwendet $NODEID, aber die Datei hat keine Knotennummer</translation>
    </message>
    <message>
        <source>value %1 is not a $NODEID formula</source>
        <translation>Wert %1 ist keine $NODEID-Formel</translation>
    </message>
    <message>
        <source>value %1 is out of range for %2</source>
        <translation>Wert %1 liegt außerhalb des Bereichs von %2</translation>
    </message>
    <message>
        <source>value %1 cannot be read as %2</source>
        <translation>Wert %1 kann nicht als %2 gelesen werden</translation>
    </message>
    <message>
        <source>Cannot read %1</source>
        <translation>%1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>data type 0x%1 is not supported</source>
        <translation>Datentyp 0x%1 wird nicht unterstützt</translation>
    </message>
</context>
<context>
    <name>DCFWriter</name>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>%1sub%2</source>
        <translation>%1sub%2</translation>
    </message>
    <message>
        <source>sub%2</source>
        <translation>sub%2</translation>
    </message>
    <message>
        <source>the file could not be read</source>
        <translation>die Datei konnte nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>DataSheet</name>
    <message>
        <source>the data type &quot;%1&quot; is not a number</source>
        <translation>der Datentyp &quot;%1&quot; ist keine Zahl</translation>
    </message>
</context>
<context>
    <name>FileViewerDialog</name>
    <message>
        <source>FileViewer</source>
        <translation>Dateibetrachter</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Increase font size</source>
        <translation>Schrift vergrößern</translation>
    </message>
    <message>
        <source>Decrease font size</source>
        <translation>Schrift verkleinern</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>File Viewer - </source>
        <translation>Dateibetrachter - </translation>
    </message>
    <message>
        <source>Error %1 is not readable.</source>
        <translation>Fehler: %1 ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Ctrl++</source>
        <comment>Increase font size</comment>
        <translation>Ctrl++</translation>
    </message>
    <message>
        <source>Ctrl+-</source>
        <comment>Decrease font size</comment>
        <translation>Ctrl+-</translation>
    </message>
    <message>
        <source>/</source>
        <comment>Find dialog</comment>
        <translation>/</translation>
    </message>
    <message>
        <source>n</source>
        <comment>Find next</comment>
        <translation>n</translation>
    </message>
    <message>
        <source>b</source>
        <comment>Find previous</comment>
        <translation>b</translation>
    </message>
</context>
<context>
    <name>GenericViewSearch</name>
    <message>
        <source>Search next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Search sub elements</source>
        <translation>Unterelemente durchsuchen</translation>
    </message>
    <message>
        <source>Search all</source>
        <translation>Alle suchen</translation>
    </message>
    <message>
        <source>Searching data...  %p%</source>
        <translation>Daten werden gesucht...  %p%</translation>
    </message>
    <message>
        <source>F4</source>
        <translation>F4</translation>
    </message>
</context>
<context>
    <name>HelpViewer</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
</context>
<context>
    <name>HelpViewerDialog</name>
    <message>
        <source>Brisca - Help</source>
        <translation>Brisca - Hilfe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>HexFindBar</name>
    <message>
        <source>&amp;Wrap</source>
        <translation>&amp;Umbrechen</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>&amp;Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Find previous (Shift+F3)</source>
        <translation>Vorheriges suchen (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Find next (F3)</source>
        <translation>Nächstes suchen (F3)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>Go to:</source>
        <translation>Gehe zu:</translation>
    </message>
    <message>
        <source>Bytes, as hex or text</source>
        <translation>Bytes, als Hex oder Text</translation>
    </message>
    <message>
        <source>1f00, 0x1f00, #7936 decimal, +10, -0x20</source>
        <translation>1f00, 0x1f00, #7936 dezimal, +10, -0x20</translation>
    </message>
    <message>
        <source>not hex</source>
        <translation>kein Hex</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>no such address</source>
        <translation>Adresse gibt es nicht</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Out of memory</source>
        <translation>Kein Speicher mehr</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QHexEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>A&amp;usschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>The editor is read-only</source>
        <translation>Der Editor ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Not a Latin-1 character</source>
        <translation>Kein Latin-1-Zeichen</translation>
    </message>
    <message>
        <source>Not a hex digit</source>
        <translation>Keine Hexziffer</translation>
    </message>
    <message>
        <source>The data has reached its maximum size</source>
        <translation>Die Daten haben ihre Höchstgröße erreicht</translation>
    </message>
    <message numerus="yes">
        <source>Only %n byte(s) fit</source>
        <translation>
            <numerusform>Nur %n Byte passt</numerusform>
            <numerusform>Nur %n Bytes passen</numerusform>
        </translation>
    </message>
    <message>
        <source>The clipboard is empty</source>
        <translation>Die Zwischenablage ist leer</translation>
    </message>
    <message>
        <source>The clipboard holds no hex bytes</source>
        <translation>Die Zwischenablage enthält keine Hex-Bytes</translation>
    </message>
    <message>
        <source>The clipboard text is not Latin-1</source>
        <translation>Der Text in der Zwischenablage ist nicht Latin-1</translation>
    </message>
    <message>
        <source>Not an address: %1</source>
        <translation>Keine Adresse: %1</translation>
    </message>
    <message>
        <source>Address out of range: %1</source>
        <translation>Adresse außerhalb des Bereichs: %1</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>&amp;Go to Address...</source>
        <translation>&amp;Gehe zu Adresse...</translation>
    </message>
</context>
<context>
    <name>TipOfTheDay</name>
    <message>
        <source>Tip of the day</source>
        <translation>Tipp des Tages</translation>
    </message>
    <message>
        <source>Did you know ...?</source>
        <translation>Wussten Sie schon ...?</translation>
    </message>
    <message>
        <source>Show Tips on Startup</source>
        <translation>Tipps beim Start anzeigen</translation>
    </message>
    <message>
        <source>Previous Tip</source>
        <translation>Vorheriger Tipp</translation>
    </message>
    <message>
        <source>Next Tip</source>
        <translation>Nächster Tipp</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Update Check</source>
        <translation>Update-Prüfung</translation>
    </message>
    <message>
        <source>Query for update has failed.</source>
        <translation>Die Abfrage nach Updates ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Query for update successful.</source>
        <translation>Die Abfrage nach Updates war erfolgreich.</translation>
    </message>
</context>
<context>
    <name>newUpdateChecker</name>
    <message>
        <source>Query for update has failed.</source>
        <translation>Die Abfrage nach Updates ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Query for update successful.</source>
        <translation>Die Abfrage nach Updates war erfolgreich.</translation>
    </message>
</context>
</TS>
