<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="de_DE">
<context>
    <name>ConfigureNodeWindow</name>
    <message>
        <source>Configure node</source>
        <translation>Knoten konfigurieren</translation>
    </message>
    <message>
        <source>&amp;Open EDS...</source>
        <translation>EDS ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Data sheet:</source>
        <translation>Datenblatt:</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kBit/s</translation>
    </message>
    <message>
        <source>Line 1</source>
        <translation>Linie 1</translation>
    </message>
    <message>
        <source>Sample I/O</source>
        <translation>Beispiel-E/A</translation>
    </message>
    <message>
        <source>Node &amp;ID:</source>
        <translation>Knoten-&amp;ID:</translation>
    </message>
    <message>
        <source>&amp;Baud rate:</source>
        <translation>&amp;Baudrate:</translation>
    </message>
    <message>
        <source>Net &amp;number:</source>
        <translation>Netz&amp;nummer:</translation>
    </message>
    <message>
        <source>Networ&amp;k name:</source>
        <translation>Netz&amp;werkname:</translation>
    </message>
    <message>
        <source>Node n&amp;ame:</source>
        <translation>Knotenn&amp;ame:</translation>
    </message>
    <message>
        <source>Index, name or type (Ctrl+F)</source>
        <translation>Index, Name oder Typ (Strg+F)</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>Fi&amp;lter:</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>Sub</source>
        <translation>Sub</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Zugriff</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Denotation</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Data (little-endian)</source>
        <translation>Daten (Little-Endian)</translation>
    </message>
    <message>
        <source>Concise DCF entries:</source>
        <translation>Einträge der Concise-DCF:</translation>
    </message>
    <message>
        <source>&amp;Write DCF...</source>
        <translation>DCF &amp;schreiben...</translation>
    </message>
    <message>
        <source>&amp;Export concise DCF...</source>
        <translation>Concise-DCF &amp;exportieren...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Open data sheet</source>
        <translation>Datenblatt öffnen</translation>
    </message>
    <message>
        <source>Data sheets (*.eds *.dcf);;All files (*)</source>
        <translation>Datenblätter (*.eds *.dcf);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Write DCF</source>
        <translation>DCF schreiben</translation>
    </message>
    <message>
        <source>Device configuration (*.dcf)</source>
        <translation>Gerätekonfiguration (*.dcf)</translation>
    </message>
    <message>
        <source>Export concise DCF</source>
        <translation>Concise-DCF exportieren</translation>
    </message>
    <message>
        <source>Concise DCF (*.cdcf *.bin)</source>
        <translation>Concise-DCF (*.cdcf *.bin)</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n object(s)</source>
        <translation><numerusform>%n Objekt</numerusform><numerusform>%n Objekte</numerusform></translation>
    </message>
    <message>
        <source>(not UTF-8: read as Latin-1)</source>
        <translation>(kein UTF-8: als Latin-1 gelesen)</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>%1 geöffnet</translation>
    </message>
    <message>
        <source>Heartbeat 1 s</source>
        <translation>Heartbeat 1 s</translation>
    </message>
    <message>
        <source>Every SYNC</source>
        <translation>Bei jedem SYNC</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message numerus="yes">
        <source>Wrote %1 (%n value(s))</source>
        <translation><numerusform>%1 geschrieben (%n Wert)</numerusform><numerusform>%1 geschrieben (%n Werte)</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n read-only value(s) are in the DCF only, not in a concise DCF.</source>
        <translation><numerusform>%n schreibgeschützter Wert steht nur in der DCF, nicht in einer Concise-DCF.</numerusform><numerusform>%n schreibgeschützte Werte stehen nur in der DCF, nicht in einer Concise-DCF.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>Wrote DCF %1 with %n configured object(s)</source>
        <translation><numerusform>DCF %1 mit %n konfiguriertem Objekt geschrieben</numerusform><numerusform>DCF %1 mit %n konfigurierten Objekten geschrieben</numerusform></translation>
    </message>
    <message>
        <source>Not exported: %1</source>
        <translation>Nicht exportiert: %1</translation>
    </message>
    <message>
        <source>Concise DCF not written:
%1</source>
        <translation>Concise-DCF nicht geschrieben:
%1</translation>
    </message>
    <message numerus="yes">
        <source>Exported %n entry(s) to %1</source>
        <translation><numerusform>%n Eintrag nach %1 exportiert</numerusform><numerusform>%n Einträge nach %1 exportiert</numerusform></translation>
    </message>
    <message>
        <source>Not included, being read-only: %1</source>
        <translation>Nicht enthalten, da schreibgeschützt: %1</translation>
    </message>
    <message numerus="yes">
        <source>Wrote concise DCF %1 with %n entry(s)</source>
        <translation><numerusform>Concise-DCF %1 mit %n Eintrag geschrieben</numerusform><numerusform>Concise-DCF %1 mit %n Einträgen geschrieben</numerusform></translation>
    </message>
    <message>
        <source>%1 is read-only: the value goes into the DCF, not into the concise DCF</source>
        <translation>%1 ist schreibgeschützt: Der Wert kommt in die DCF, nicht in die Concise-DCF</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n value(s) cannot be written for their data type.</source>
        <translation><numerusform>%n Wert passt nicht zu seinem Datentyp.</numerusform><numerusform>%n Werte passen nicht zu ihrem Datentyp.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>Nothing written: %n value(s) to correct</source>
        <translation><numerusform>Nichts geschrieben: %n Wert ist zu korrigieren</numerusform><numerusform>Nichts geschrieben: %n Werte sind zu korrigieren</numerusform></translation>
    </message>
</context>
<context>
    <name>DemoModule</name>
    <message>
        <source>Application frame</source>
        <translation>Anwendungsrahmen</translation>
    </message>
    <message>
        <source>CANopen</source>
        <translation>CANopen</translation>
    </message>
    <message>
        <source>Help and widgets</source>
        <translation>Hilfe und Widgets</translation>
    </message>
    <message>
        <source>Hex editor</source>
        <translation>Hex-Editor</translation>
    </message>
    <message>
        <source>Settings persistence</source>
        <translation>Gespeicherte Einstellungen</translation>
    </message>
    <message>
        <source>Trace and file viewer</source>
        <translation>Trace und Dateibetrachter</translation>
    </message>
    <message>
        <source>Update checks</source>
        <translation>Update-Prüfung</translation>
    </message>
</context>
<context>
    <name>DemoWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Activity of the demo tool appears here.</source>
        <translation>Hier erscheint, was das Demo-Werkzeug tut.</translation>
    </message>
    <message>
        <source>Module loaded: %1</source>
        <translation>Modul geladen: %1</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find in the log (Ctrl+F)</source>
        <translation>Im Protokoll suchen (Strg+F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>"%1" is not in the log</source>
        <translation>„%1“ steht nicht im Protokoll</translation>
    </message>
</context>
<context>
    <name>HexEditorWindow</name>
    <message>
        <source>Hex editor - firmware.bin</source>
        <translation>Hex-Editor - firmware.bin</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Overwrite mode</source>
        <translation>&amp;Überschreibmodus</translation>
    </message>
    <message>
        <source>Read-onl&amp;y</source>
        <translation>&amp;Schreibgeschützt</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Copy as hex</source>
        <translation>Als Hex &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste hex</source>
        <translation>Hex &amp;einfügen</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Address: 0x%1</source>
        <translation>Adresse: 0x%1</translation>
    </message>
    <message>
        <source>OVR</source>
        <translation>ÜB</translation>
    </message>
    <message>
        <source>INS</source>
        <translation>EINF</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnose</translation>
    </message>
    <message>
        <source>Record function &amp;trace</source>
        <translation>Funktions&amp;trace aufzeichnen</translation>
    </message>
    <message>
        <source>Function trace started</source>
        <translation>Funktionstrace gestartet</translation>
    </message>
    <message>
        <source>Function trace stopped</source>
        <translation>Funktionstrace beendet</translation>
    </message>
    <message>
        <source>Log &amp;slow events</source>
        <translation>&amp;Langsame Ereignisse protokollieren</translation>
    </message>
    <message>
        <source>No debug log (start with --debug-log)</source>
        <translation>Kein Debug-Protokoll (mit --debug-log starten)</translation>
    </message>
    <message>
        <source>Debug log: %1</source>
        <translation>Debug-Protokoll: %1</translation>
    </message>
    <message>
        <source>&amp;Configure node...</source>
        <translation>&amp;Knoten konfigurieren...</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;CommonGUI Demo&lt;/b&gt; shows the shared building blocks of the Korvil CANopen tools.&lt;/p&gt;&lt;p&gt;Copyright &amp;copy; Korvil. Licensed to the holder of a tool licence; see the licence agreement delivered with the tool.&lt;/p&gt;&lt;p&gt;Built with the Qt toolkit, used under the GNU LGPL version 3.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;CommonGUI Demo&lt;/b&gt; zeigt die gemeinsamen Bausteine der CANopen-Werkzeuge von Korvil.&lt;/p&gt;&lt;p&gt;Copyright &amp;copy; Korvil. Lizenziert für den Inhaber einer Werkzeuglizenz; siehe den mit dem Werkzeug gelieferten Lizenzvertrag.&lt;/p&gt;&lt;p&gt;Erstellt mit dem Qt-Toolkit, verwendet unter der GNU LGPL Version 3.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>CommonGUI Demo - Help</source>
        <translation>CommonGUI Demo - Hilfe</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source> &amp;EDS file: </source>
        <translation> &amp;EDS-Datei: </translation>
    </message>
    <message>
        <source>Drop an .eds or .dcf file here</source>
        <translation>.eds- oder .dcf-Datei hier ablegen</translation>
    </message>
    <message>
        <source>EDS file chosen: %1 (%2 bytes)</source>
        <translation>EDS-Datei gewählt: %1 (%2 Bytes)</translation>
    </message>
    <message>
        <source>No such EDS file: %1</source>
        <translation>EDS-Datei nicht gefunden: %1</translation>
    </message>
    <message>
        <source>Release notes (PDF)</source>
        <translation>Versionshinweise (PDF)</translation>
    </message>
    <message>
        <source>Opens %1</source>
        <translation>Öffnet %1</translation>
    </message>
    <message>
        <source>Link clicked: %1</source>
        <translation>Verweis angeklickt: %1</translation>
    </message>
    <message>
        <source>Return or Space opens the release notes</source>
        <translation>Eingabe oder Leertaste öffnet die Versionshinweise</translation>
    </message>
    <message>
        <source>&amp;Value Converter...</source>
        <translation>Werte&amp;umrechner...</translation>
    </message>
    <message>
        <source>&amp;Help Contents...</source>
        <translation>&amp;Hilfeinhalt...</translation>
    </message>
    <message>
        <source>CommonGUI API Reference</source>
        <translation>CommonGUI-API-Referenz</translation>
    </message>
    <message>
        <source>The API reference CommonGUI.qch was not built</source>
        <translation>Die API-Referenz CommonGUI.qch wurde nicht erstellt</translation>
    </message>
    <message>
        <source>No help collection next to the tool</source>
        <translation>Keine Hilfesammlung neben dem Werkzeug</translation>
    </message>
    <message>
        <source>&amp;Quick Help...</source>
        <translation>&amp;Kurzhilfe...</translation>
    </message>
    <message>
        <source>User &amp;Manual (PDF)</source>
        <translation>&amp;Benutzerhandbuch (PDF)</translation>
    </message>
    <message>
        <source>Ma&amp;nuals</source>
        <translation>Handbü&amp;cher</translation>
    </message>
    <message>
        <source>No PDF manuals in %1</source>
        <translation>Keine PDF-Handbücher in %1</translation>
    </message>
    <message>
        <source>&amp;Tip of the Day...</source>
        <translation>&amp;Tipp des Tages...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Über...</translation>
    </message>
    <message>
        <source>Size: %1 bytes</source>
        <translation>Größe: %1 Bytes</translation>
    </message>
    <message>
        <source>&amp;Hex editor</source>
        <translation>&amp;Hex-Editor</translation>
    </message>
    <message>
        <source>Hex editor opened on a %1 byte firmware image</source>
        <translation>Hex-Editor mit einem Firmware-Abbild von %1 Bytes geöffnet</translation>
    </message>
    <message>
        <source>e.g. Conveyor line 2</source>
        <translation>z. B. Förderband 2</translation>
    </message>
    <message>
        <source>Network name:</source>
        <translation>Netzwerkname:</translation>
    </message>
    <message>
        <source>Master node id:</source>
        <translation>Master-Knoten-ID:</translation>
    </message>
    <message>
        <source>%1 kBit/s</source>
        <translation>%1 kBit/s</translation>
    </message>
    <message>
        <source>Baud rate:</source>
        <translation>Baudrate:</translation>
    </message>
    <message>
        <source>Start the network when the tool opens</source>
        <translation>Netzwerk beim Öffnen des Werkzeugs starten</translation>
    </message>
    <message>
        <source>Trace filter</source>
        <translation>Tracefilter</translation>
    </message>
    <message>
        <source>COB-IDs:</source>
        <translation>COB-IDs:</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>EDS file</source>
        <translation>EDS-Datei</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Antrieb</translation>
    </message>
    <message>
        <source>I/O module</source>
        <translation>E/A-Modul</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Drehgeber</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Notes on this network</source>
        <translation>Notizen zu diesem Netzwerk</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>&amp;Network panel</source>
        <translation>&amp;Netzwerkbereich</translation>
    </message>
    <message>
        <source>Network panel restored from the tool's settings</source>
        <translation>Netzwerkbereich aus den Einstellungen des Werkzeugs wiederhergestellt</translation>
    </message>
    <message>
        <source>Time (s)</source>
        <translation>Zeit (s)</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>DLC</source>
        <translation>DLC</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>&amp;View...</source>
        <translation>&amp;Anzeigen...</translation>
    </message>
    <message>
        <source>View file</source>
        <translation>Datei anzeigen</translation>
    </message>
    <message>
        <source>Viewing %1</source>
        <translation>Anzeige von %1</translation>
    </message>
    <message>
        <source>CAN &amp;trace window</source>
        <translation>CAN-&amp;Tracefenster</translation>
    </message>
    <message>
        <source>Trace window with %L1 generated frames</source>
        <translation>Tracefenster mit %L1 erzeugten Frames</translation>
    </message>
    <message>
        <source>Crash report</source>
        <translation>Absturzbericht</translation>
    </message>
    <message>
        <source>%1 ended unexpectedly last time.</source>
        <translation>%1 wurde beim letzten Mal unerwartet beendet.</translation>
    </message>
    <message>
        <source>Send the crash report to the maker? It holds the state of the program when it stopped, not your documents.</source>
        <translation>Den Absturzbericht an den Hersteller senden? Er enthält den Zustand des Programms beim Absturz, nicht Ihre Dokumente.</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Senden</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>no upload address is configured</source>
        <translation>es ist keine Upload-Adresse eingestellt</translation>
    </message>
    <message>
        <source>Sending crash reports...</source>
        <translation>Absturzberichte werden gesendet...</translation>
    </message>
    <message>
        <source>Crash reports not sent: %1. They are kept and offered again at the next start.</source>
        <translation>Absturzberichte nicht gesendet: %1. Sie bleiben erhalten und werden beim nächsten Start erneut angeboten.</translation>
    </message>
    <message>
        <source>Crash reports handed to %1; the server does not confirm what arrived.</source>
        <translation>Absturzberichte an %1 übergeben; der Server bestätigt nicht, was angekommen ist.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Crash reports discarded</source>
        <translation>Absturzberichte verworfen</translation>
    </message>
    <message>
        <source>Check for &amp;updates</source>
        <translation>Nach &amp;Updates suchen</translation>
    </message>
    <message>
        <source>From the &amp;version file</source>
        <translation>Aus der &amp;Versionsdatei</translation>
    </message>
    <message>
        <source>Asking %1 for %2.info</source>
        <translation>Frage %1 nach %2.info</translation>
    </message>
    <message>
        <source>Update request failed (network error %1)</source>
        <translation>Update-Anfrage fehlgeschlagen (Netzwerkfehler %1)</translation>
    </message>
    <message>
        <source>Version %1 of %2 is available</source>
        <translation>Version %1 von %2 ist verfügbar</translation>
    </message>
    <message>
        <source>%1 is up to date (server has %2)</source>
        <translation>%1 ist aktuell (Server hat %2)</translation>
    </message>
    <message>
        <source>Posting an update request for product %1</source>
        <translation>Sende Update-Anfrage für Produkt %1</translation>
    </message>
    <message>
        <source>By &amp;binary request</source>
        <translation>Per &amp;Binäranfrage</translation>
    </message>
    <message>
        <source>By binary request, &amp;quietly</source>
        <translation>Per Binäranfrage, &amp;still</translation>
    </message>
    <message>
        <source>C&amp;rash reports</source>
        <translation>&amp;Absturzberichte</translation>
    </message>
    <message>
        <source>Leave a &amp;sample crash dump</source>
        <translation>Beispiel-&amp;Absturzabbild hinterlassen</translation>
    </message>
    <message>
        <source>Sample dump %1: the next start asks about it</source>
        <translation>Beispielabbild %1: Der nächste Start fragt danach</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>%1 konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>&amp;Ask about pending reports now</source>
        <translation>&amp;Jetzt nach offenen Berichten fragen</translation>
    </message>
    <message>
        <source>No crash reports are waiting</source>
        <translation>Es warten keine Absturzberichte</translation>
    </message>
    <message>
        <source>CommonGUI API &amp;Reference...</source>
        <translation>CommonGUI-API-&amp;Referenz...</translation>
    </message>
</context>
<context>
    <name>TraceWindow</name>
    <message>
        <source>CAN Trace</source>
        <translation>CAN-Trace</translation>
    </message>
    <message>
        <source>Search the trace (Return: next, F4: all)</source>
        <translation>Trace durchsuchen (Eingabe: weiter, F4: alle)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search:</source>
        <translation>Suche:</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>%L1 frames</source>
        <translation>%L1 Frames</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Demo tool of the CommonGUI library</source>
        <translation>Demo-Werkzeug der CommonGUI-Bibliothek</translation>
    </message>
    <message>
        <source>Render every window to PNG files in &lt;dir&gt; and exit.</source>
        <translation>Jedes Fenster als PNG-Datei in &lt;dir&gt; ablegen und beenden.</translation>
    </message>
    <message>
        <source>Quit after &lt;ms&gt; milliseconds (for smoke tests).</source>
        <translation>Nach &lt;ms&gt; Millisekunden beenden (für Rauchtests).</translation>
    </message>
    <message>
        <source>Keep the debug log of this run (it is deleted at exit otherwise).</source>
        <translation>Das Debug-Protokoll dieses Laufs behalten (sonst wird es beim Beenden gelöscht).</translation>
    </message>
    <message>
        <source>Print debug messages on the console as well.</source>
        <translation>Debug-Meldungen auch auf der Konsole ausgeben.</translation>
    </message>
    <message>
        <source>Give every debug message its file, line and function.</source>
        <translation>Jede Debug-Meldung mit Datei, Zeile und Funktion versehen.</translation>
    </message>
    <message>
        <source>Leave debug messages to Qt's standard handling.</source>
        <translation>Debug-Meldungen der Standardbehandlung von Qt überlassen.</translation>
    </message>
    <message>
        <source>Allow Tools &gt; Diagnostics &gt; Record function trace.</source>
        <translation>Werkzeuge &gt; Diagnose &gt; Funktionstrace aufzeichnen erlauben.</translation>
    </message>
    <message>
        <source>User interface language: en or de (default: the system's).</source>
        <translation>Sprache der Oberfläche: en oder de (Vorgabe: die des Systems).</translation>
    </message>
    <message>
        <source>commongui-demo: no translation for language "%1" (available: %2); using English.</source>
        <translation>commongui-demo: keine Übersetzung für die Sprache „%1“ (vorhanden: %2); es wird Englisch verwendet.</translation>
    </message>
    <message>
        <source>No translation for language "%1"; the tool runs in English.</source>
        <translation>Keine Übersetzung für die Sprache „%1“; das Werkzeug läuft auf Englisch.</translation>
    </message>
</context>
</TS>