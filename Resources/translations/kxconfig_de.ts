<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>KXConfig</name>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Network &amp;interface:</source>
        <translation>&amp;Netzwerkschnittstelle:</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>No interface is chosen</source>
        <translation>Keine Schnittstelle ausgewählt</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>UDP &amp;port:</source>
        <translation>UDP-&amp;Port:</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Discover</source>
        <translation>Geräte suchen</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Details…</source>
        <translation>Einzelheiten…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Shows every check on the way to the units and back</source>
        <translation>Zeigt jede Prüfung auf dem Weg zu den Geräten und zurück</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>U&amp;nit:</source>
        <translation>G&amp;erät:</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>No units listed</source>
        <translation>Keine Geräte aufgeführt</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Unit I&amp;D:</source>
        <translation>Geräte-&amp;ID:</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/SentenceLabel.cpp"/>
        <source>Unit parameters</source>
        <translation>Geräteparameter</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>No unit is selected</source>
        <translation>Kein Gerät ausgewählt</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Edit parameter</source>
        <translation>Parameter bearbeiten</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Select a parameter to edit it</source>
        <translation>Parameter zum Bearbeiten wählen</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Option command:</source>
        <translation>&amp;Optionsbefehl:</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>V  Version</source>
        <translation>V  Version</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>-Z  Set clock</source>
        <translation>-Z  Uhr stellen</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Command text:</source>
        <translation>Befehls&amp;text:</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Restore Defaults</source>
        <translation>Werkseinstellungen laden</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Event Log</source>
        <translation>Ereignisprotokoll</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Event log text</source>
        <translation>Text des Ereignisprotokolls</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Unit</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Configure from File…</source>
        <translation>Aus Datei &amp;konfigurieren…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Save Event &amp;Log…</source>
        <translation>Ereignis&amp;protokoll sichern…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Save Session…</source>
        <translation>&amp;Sitzung sichern…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Undo</source>
        <translation>Rück&amp;gängig</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Cu&amp;t</source>
        <translation>Auss&amp;chneiden</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Pa&amp;ste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Copy &amp;Value</source>
        <translation>Wert kop&amp;ieren</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Copy All Pa&amp;rameters</source>
        <translation>Alle &amp;Parameter kopieren</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <location filename="../../Sources/platform/qt/LogTextView_Input.cpp"/>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/LogTextView_Input.cpp"/>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Find in Event Log…</source>
        <translation>Im Ereignisprotokoll &amp;suchen…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Find &amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Find &amp;Previous</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Discover</source>
        <translation>Geräte &amp;suchen</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Send Option Command</source>
        <translation>&amp;Optionsbefehl senden</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Restore De&amp;faults</source>
        <translation>&amp;Werkseinstellungen laden</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Event Log</source>
        <translation>&amp;Ereignisprotokoll</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>All &amp;Units</source>
        <translation>Alle &amp;Geräte</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;About KXConfig</source>
        <translation>Ü&amp;ber KXConfig</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate.cpp"/>
        <source>No configured interfaces</source>
        <translation>Keine konfigurierten Schnittstellen</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate.cpp"/>
        <source>The pages of the help are not installed.</source>
        <translation>Die Seiten der Hilfe sind nicht installiert.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate.cpp"/>
        <source>Help could not be opened in a web browser. To read it here, press Alt+Shift+F1.</source>
        <translation>Die Hilfe konnte nicht im Webbrowser geöffnet werden. Um sie hier zu lesen, drücken Sie Alt+Umschalt+F1.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_DiscoveryLine.cpp"/>
        <source>Did not answer the latest Discover.</source>
        <translation>Hat bei der letzten Gerätesuche nicht geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_Editing.cpp"/>
        <location filename="../../Sources/platform/qt/WaitingPanel.cpp"/>
        <source>KXConfig</source>
        <translation>KXConfig</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_Editing.cpp"/>
        <source>Authentication was not completed, some features may not be available.</source>
        <translation>Die Authentifizierung wurde nicht abgeschlossen, einige Funktionen sind möglicherweise nicht verfügbar.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_Editing.cpp"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>The session was saved: 1 datagram.</source>
        <translation>Die Sitzung ist gesichert: 1 Datagramm.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>The session was saved: %d datagrams.</source>
        <translation>Die Sitzung ist gesichert: %d Datagramme.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Save Event Log</source>
        <translation>Ereignisprotokoll sichern</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>The event log was saved.</source>
        <translation>Das Ereignisprotokoll ist gesichert.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Save Session</source>
        <translation>Sitzung sichern</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Captures</source>
        <translation>Mitschnitte</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>“%@” cannot be written: %@. Nothing is lost: save it in another place.</source>
        <translation>„%@“ ist nicht beschreibbar: %@. Nichts ist verloren: Sichern Sie an einem anderen Ort.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Other values that no command brings back: %d.</source>
        <translation>Weitere Werte, die kein Befehl zurückbringt: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Choose a Table of Units</source>
        <translation>Gerätetabelle auswählen</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Tables and plans</source>
        <translation>Tabellen und Pläne</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Choose a Journal</source>
        <translation>Journal auswählen</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Journals</source>
        <translation>Journale</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>No network interface can broadcast. It needs a link and an IPv4 address.</source>
        <translation>Keine Netzwerkschnittstelle kann Broadcasts senden. Dazu braucht sie eine Verbindung und eine IPv4-Adresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Choose the network interface on which the units are asked.</source>
        <translation>Wählen Sie die Netzwerkschnittstelle, über die die Geräte gefragt werden.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>All of the UDP ports 3520 to 3523 are taken by other programs.</source>
        <translation>Alle UDP-Ports von 3520 bis 3523 sind von anderen Programmen belegt.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>The UDP port cannot be opened: %@.</source>
        <translation>Der UDP-Port lässt sich nicht öffnen: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Stopped.</source>
        <translation>Angehalten.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Nothing was sent.</source>
        <translation>Nichts wurde gesendet.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>The units are not as they were: this is the new plan. Nothing was sent.</source>
        <translation>Die Geräte sind nicht mehr wie zuvor: Dies ist der neue Plan. Nichts wurde gesendet.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>The journal cannot be written: %@. Nothing was sent.</source>
        <translation>Das Journal ist nicht beschreibbar: %@. Nichts wurde gesendet.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>The journal could not be written: %@.</source>
        <translation>Das Journal ließ sich nicht schreiben: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Look at the units that are half configured or have fallen silent.</source>
        <translation>Sehen Sie nach den Geräten, die halb konfiguriert oder verstummt sind.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Save Report</source>
        <translation>Bericht sichern</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Comma-separated values</source>
        <translation>Kommagetrennte Werte</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <location filename="../../Sources/commands/CommandOutput.cpp"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>“%@” cannot be written: %@.</source>
        <translation>„%@“ ist nicht beschreibbar: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>The file has a fault. Correct it, and choose the file again.</source>
        <translation>Die Datei hat einen Fehler. Berichtigen Sie ihn und wählen Sie die Datei erneut.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>The file has %d faults. Correct them, and choose the file again.</source>
        <translation>Die Datei hat %d Fehler. Berichtigen Sie sie und wählen Sie die Datei erneut.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Stopping. The units under way are finished and read back.</source>
        <translation>Es wird angehalten. Die begonnenen Geräte werden fertiggestellt und nachgelesen.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Asking the units again.</source>
        <translation>Die Geräte werden noch einmal gefragt.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Finding out who holds the new addresses.</source>
        <translation>Es wird geprüft, wem die neuen Adressen gehören.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Configuring the units.</source>
        <translation>Die Geräte werden konfiguriert.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Stopping.</source>
        <translation>Es wird angehalten.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Asking the units. %d have answered.</source>
        <translation>Die Geräte werden gefragt. Geantwortet haben %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <location filename="../../Sources/commands/JournalFiles.cpp"/>
        <source>The journal is “%@”.</source>
        <translation>Das Journal ist „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Apply keeps a journal in the folder “%@”.</source>
        <translation>„Anwenden“ führt ein Journal im Ordner „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Apply sends nothing: lines of the table are wrong, whatever the units answer.</source>
        <translation>„Anwenden“ sendet nichts: Zeilen der Tabelle sind falsch, was auch immer die Geräte antworten.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Apply sends nothing while lines are refused or without an answer, unless “Keep going” is ticked.</source>
        <translation>„Anwenden“ sendet nichts, solange Zeilen abgelehnt oder ohne Antwort sind, außer wenn „Weitermachen“ angekreuzt ist.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <location filename="../../Sources/commands/PlanReport.cpp"/>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d, %@: %@</source>
        <translation>Zeile %d, %@: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>%d of %d units</source>
        <translation>%d von %d Geräten</translation>
    </message>
    <message>
        <location filename="../../Sources/System Configuration/ConfigurationKeys.h"/>
        <source>not available</source>
        <translation>nicht verfügbar</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddress.cpp"/>
        <source>HardwareAddressFormatter: inString is nil</source>
        <translation>HardwareAddressFormatter: inString ist nil</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddress.cpp"/>
        <source>HardwareAddressFormatter: object could not be allocated</source>
        <translation>HardwareAddressFormatter: Objekt konnte nicht angelegt werden</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddress.cpp"/>
        <location filename="../../Sources/addresses/HardwareAddressText.cpp"/>
        <source>HardwareAddressFormatter: invalid Ethernet address</source>
        <translation>HardwareAddressFormatter: ungültige Ethernet-Adresse</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddressText.cpp"/>
        <source>HardwareAddress: invalid Ethernet address</source>
        <translation>HardwareAddress: ungültige Ethernet-Adresse</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CheckCommand.cpp"/>
        <source>“%@” is no IPv4 address, such as 192.0.2.41.</source>
        <translation>„%@“ ist keine IPv4-Adresse wie 192.0.2.41.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CheckCommand.cpp"/>
        <source>Somebody holds %@.</source>
        <translation>%@ ist vergeben.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CheckCommand.cpp"/>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Whether somebody holds %@ could not be found out.</source>
        <translation>Ob %@ vergeben ist, war nicht festzustellen.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>An option lacks its value, or a flag has one. See kxctl --help.</source>
        <translation>Einer Option fehlt der Wert, oder ein Schalter hat einen. Siehe kxctl --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>The command line cannot be read: %@.</source>
        <translation>Die Befehlszeile ist nicht lesbar: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>These are six words. Write the serial number without blanks, 4B5800000001, or in quotation marks.</source>
        <translation>Das sind sechs Wörter. Schreiben Sie die Seriennummer ohne Leerzeichen, 4B5800000001, oder in Anführungszeichen.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>kxctl %@ needs more words: %@.</source>
        <translation>kxctl %@ braucht mehr Wörter: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>kxctl %@ does not take the word “%@”.</source>
        <translation>kxctl %@ nimmt das Wort „%@“ nicht.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>--json and --csv cannot stand together.</source>
        <translation>--json und --csv gehen nicht zusammen.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>--port takes auto, 3520, 3521, 3522 or 3523, not “%@”.</source>
        <translation>--port nimmt auto, 3520, 3521, 3522 oder 3523, nicht „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>There is no command “%@”. Did you mean “%@”?</source>
        <translation>Es gibt keinen Befehl „%@“. Meinten Sie „%@“?</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>There is no command “%@”. See kxctl --help.</source>
        <translation>Es gibt keinen Befehl „%@“. Siehe kxctl --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>There is no option “%@” here. See kxctl --help.</source>
        <translation>Eine Option „%@“ gibt es hier nicht. Siehe kxctl --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>A command is missing. See kxctl --help.</source>
        <translation>Ein Befehl fehlt. Siehe kxctl --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>%@ takes a whole number from 1 on, not “%@”.</source>
        <translation>%@ nimmt eine ganze Zahl ab 1, nicht „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>%@ takes seconds, such as 2 or 0.5, not “%@”.</source>
        <translation>%@ nimmt Sekunden wie 2 oder 0.5, nicht „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandOutput.cpp"/>
        <source>Standard output cannot be written: %@.</source>
        <translation>Die Standardausgabe ist nicht beschreibbar: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandOutput.cpp"/>
        <source>The capture is not whole, because it could not be written.</source>
        <translation>Die Aufzeichnung ist nicht vollständig, weil sie nicht geschrieben werden konnte.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>Several network interfaces can broadcast. Choose one with -i: %@.</source>
        <translation>Mehrere Netzwerkschnittstellen können Broadcasts senden. Wählen Sie eine mit -i: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/commands/DiagnoseCommand.cpp"/>
        <source>%@ cannot broadcast. It needs a link and an IPv4 address.</source>
        <translation>%@ kann keine Broadcasts senden. Dazu sind eine Verbindung und eine IPv4-Adresse nötig.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>There is no network interface “%@”. There are: %@.</source>
        <translation>Es gibt keine Netzwerkschnittstelle „%@“. Es gibt: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>“%@” may mean: %@.</source>
        <translation>„%@“ kann bedeuten: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>UDP port %d is taken by another program.</source>
        <translation>UDP-Port %d ist von einem anderen Programm belegt.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is this host&apos;s own address.</source>
        <translation>%@ ist die eigene Adresse dieses Rechners.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is the address of a whole network.</source>
        <translation>%@ ist die Adresse eines ganzen Netzwerks.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ lies in no network of the interface.</source>
        <translation>%@ liegt in keinem Netzwerk der Schnittstelle.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Interrupted.</source>
        <translation>Unterbrochen.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ does not answer.</source>
        <translation>Das Gerät %@ antwortet nicht.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Several units answer as %@: %@.</source>
        <translation>Mehrere Geräte antworten als %@: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <source>Another unit has the address of the unit %@.</source>
        <translation>Ein anderes Gerät hat die Adresse des Geräts %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <source>“%@” names no unit. Write a serial number of six pairs of digits, such as 4B5800000001, or id:TEXT.</source>
        <translation>„%@“ benennt kein Gerät. Schreiben Sie eine Seriennummer aus sechs Ziffernpaaren wie 4B5800000001 oder id:TEXT.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>No unit has answered.</source>
        <translation>Kein Gerät hat geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <source>Another unit has the serial number %@: %@.</source>
        <translation>Ein anderes Gerät hat die Seriennummer %@: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ tells an address of many as its own: %@.</source>
        <translation>Das Gerät %@ nennt eine Adresse vieler als seine eigene: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CompareCommand.cpp"/>
        <source>Nothing differs from “%@”: %d the same.</source>
        <translation>Kein Unterschied zu „%@“: %d gleich.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiagnoseCommand.cpp"/>
        <source>“%@” names no unit and is no IPv4 address. Write a serial number such as 4B5800000001, id:TEXT, or 192.0.2.41.</source>
        <translation>„%@“ benennt kein Gerät und ist keine IPv4-Adresse. Schreiben Sie eine Seriennummer wie 4B5800000001, id:TEXT oder 192.0.2.41.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>%d requests in that time follow each other too closely. They need 0.01 seconds each.</source>
        <translation>%d Anfragen folgen in dieser Zeit zu dicht aufeinander. Jede braucht 0,01 Sekunden.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Several units have the address %@: %@.</source>
        <translation>Mehrere Geräte haben die Adresse %@: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>Several units have the serial number %@: %@.</source>
        <translation>Mehrere Geräte haben die Seriennummer %@: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The system had no room for %d datagrams. Units may be missing.</source>
        <translation>Das System hatte keinen Platz für %d Datagramme. Geräte können fehlen.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>“%@” stays as it is, because no unit has answered.</source>
        <translation>„%@“ bleibt, wie es ist, weil kein Gerät geantwortet hat.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>%d of %d units have answered.</source>
        <translation>%d von %d Geräten haben geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/InterfacesCommand.cpp"/>
        <source>The system tells no network interfaces.</source>
        <translation>Das System nennt keine Netzwerkschnittstellen.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/JournalFiles.cpp"/>
        <source>“%@” is the journal of a run that has ended. Name another file.</source>
        <translation>„%@“ ist das Journal eines Laufs, der beendet ist. Nennen Sie eine andere Datei.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>Write a text or --clock, not both.</source>
        <translation>Schreiben Sie einen Text oder --clock, nicht beides.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>Write the text of the option command, or --clock.</source>
        <translation>Schreiben Sie den Text des Optionsbefehls oder --clock.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>“%@” has other characters than ASCII.</source>
        <translation>„%@“ enthält andere Zeichen als ASCII.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>The unit %@ has not answered the option command.</source>
        <translation>Das Gerät %@ hat auf den Optionsbefehl nicht geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/PlanReport.cpp"/>
        <source>Other lines that are not done: %d.</source>
        <translation>Andere Zeilen, die nicht erledigt sind: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Name a unit. --everyone restores all that hear the command.</source>
        <translation>Nennen Sie ein Gerät. --everyone setzt alle zurück, die den Befehl hören.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Name a unit, or write --everyone, not both.</source>
        <translation>Nennen Sie ein Gerät oder schreiben Sie --everyone, nicht beides.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>Nobody can be asked here. Write --yes if this is meant.</source>
        <translation>Hier kann niemand gefragt werden. Schreiben Sie --yes, wenn das so gemeint ist.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Nothing was restored.</source>
        <translation>Es wurde nichts zurückgesetzt.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Restore the factory settings of the unit %@? (y/n)</source>
        <translation>Werkseinstellungen des Geräts %@ wiederherstellen? (y/n)</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>%d units answer. Others that hear the command are restored too.</source>
        <translation>%d Geräte antworten. Andere, die den Befehl hören, werden auch zurückgesetzt.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Type the number of units to restore the factory settings of all:</source>
        <translation>Tippen Sie die Zahl der Geräte, um die Werkseinstellungen aller wiederherzustellen:</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ has not answered since the command.</source>
        <translation>Das Gerät %@ hat seit dem Befehl nicht geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>The unit %@ shows the old values and has not acknowledged the command.</source>
        <translation>Das Gerät %@ zeigt die alten Werte und hat den Befehl nicht bestätigt.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RowsFile.cpp"/>
        <source>“%@” is refused. %@</source>
        <translation>„%@“ wird abgelehnt. %@</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RowsFile.cpp"/>
        <source>“%@” is refused. It has %d faults, the first one: %@</source>
        <translation>„%@“ wird abgelehnt. Es gibt %d Fehler darin, der erste: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <location filename="../../Sources/words/DocumentFaultText.cpp"/>
        <source>“%@” is damaged.</source>
        <translation>„%@“ ist beschädigt.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>“%@” is no saved discovery. “kxctl discover --save FILE” writes one.</source>
        <translation>„%@“ ist keine gesicherte Gerätesuche. „kxctl discover --save FILE“ schreibt eine.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <location filename="../../Sources/words/DocumentFaultText.cpp"/>
        <source>“%@” has the format of another version of kxctl.</source>
        <translation>„%@“ hat das Format einer anderen Version von kxctl.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>“%@” tells of a discovery that could not ask anybody.</source>
        <translation>„%@“ enthält eine Gerätesuche, die niemanden fragen konnte.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <location filename="../../Sources/words/TableFileText.cpp"/>
        <source>“%@” cannot be read: %@.</source>
        <translation>„%@“ ist nicht lesbar: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units of “%@” that have not answered: %d. They are not called missing, because datagrams were dropped.</source>
        <translation>Geräte aus „%@“, die nicht geantwortet haben: %d. Sie gelten nicht als fehlend, weil Datagramme verworfen wurden.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units of “%@” that have not answered: %d. They are not called missing, because the discovery was not complete.</source>
        <translation>Geräte aus „%@“, die nicht geantwortet haben: %d. Sie gelten nicht als fehlend, weil die Gerätesuche nicht vollständig war.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units of “%@” that have not answered: %d. They are not called missing, because they could not be asked at their last addresses.</source>
        <translation>Geräte aus „%@“, die nicht geantwortet haben: %d. Sie gelten nicht als fehlend, weil sie unter ihren letzten Adressen nicht gefragt werden konnten.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units that are not in “%@”: %d. They are not called missing, because that discovery was not complete.</source>
        <translation>Geräte, die nicht in „%@“ stehen: %d. Sie gelten nicht als fehlend, weil diese Gerätesuche nicht vollständig war.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>The discovery in “%@” was not complete, so a unit that is called new may have been there.</source>
        <translation>Die Gerätesuche in „%@“ war nicht vollständig; ein Gerät, das neu genannt wird, kann schon da gewesen sein.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>The units differ from “%@”: %d new, %d missing, %d changed, %d the same.</source>
        <translation>Die Geräte unterscheiden sich von „%@“: %d neu, %d fehlend, %d geändert, %d gleich.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>No unit can have it: it reaches many hosts.</source>
        <translation>Kein Gerät kann sie haben: Sie erreicht viele Rechner.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>%@ is refused without --loose. The window says of its value: %@</source>
        <translation>%@ wird ohne --loose abgelehnt. Das Fenster sagt zu dem Wert: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>“%@” is not NAME=VALUE with the name of a parameter. See kxctl set --help.</source>
        <translation>„%@“ ist kein NAME=WERT mit dem Namen eines Parameters. Siehe kxctl set --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>%@ has no value.</source>
        <translation>%@ hat keinen Wert.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>The value of %@ is not a text in UTF-8.</source>
        <translation>Der Wert von %@ ist kein Text in UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>The value of %@ does not fit into a command.</source>
        <translation>Der Wert von %@ passt in keinen Befehl.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>%@ is there twice.</source>
        <translation>%@ steht zweimal da.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>kxctl needs no question when root runs it.</source>
        <translation>Als root ausgeführt, braucht kxctl keine Rückfrage.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ shows %@, but %@ answers ARP requests for it.</source>
        <translation>Das Gerät %@ zeigt %@, doch %@ beantwortet die ARP-Anfragen dafür.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>Whether the unit itself answers ARP requests for %@ could not be found out.</source>
        <translation>Ob das Gerät selbst die ARP-Anfragen für %@ beantwortet, ließ sich nicht feststellen.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit shows %@ but does not answer ARP requests for it.</source>
        <translation>Das Gerät zeigt %@, beantwortet aber keine ARP-Anfragen dafür.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is held by %@.</source>
        <translation>%@ gehört %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ has taken some of the values and not others.</source>
        <translation>Das Gerät %@ hat einige der Werte übernommen und andere nicht.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ shows the old value.</source>
        <translation>Das Gerät %@ zeigt den alten Wert.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>The unit %@ shows another value.</source>
        <translation>Das Gerät %@ zeigt einen anderen Wert.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Another unit answers with the same serial number.</source>
        <translation>Ein anderes Gerät antwortet mit derselben Seriennummer.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/ShowCommand.cpp"/>
        <source>Name units, or write --all.</source>
        <translation>Nennen Sie Geräte oder schreiben Sie --all.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/ShowCommand.cpp"/>
        <source>Name units, or write --all, not both.</source>
        <translation>Nennen Sie Geräte oder schreiben Sie --all, nicht beides.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>%@ takes a number up to %d.</source>
        <translation>%@ nimmt eine Zahl bis %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>Change %d units, %d parameters in all? (y/n)</source>
        <translation>%d Geräte ändern, insgesamt %d Parameter? (y/n)</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>Nothing was changed.</source>
        <translation>Nichts wurde geändert.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/WatchCommand.cpp"/>
        <source>--every takes 0.1 seconds or more: every unit answers each time.</source>
        <translation>--every nimmt mindestens 0.1 Sekunden: Jedes Gerät antwortet jedes Mal.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/WatchCommand.cpp"/>
        <source>%d of %d units are there.</source>
        <translation>%d von %d Geräten sind da.</translation>
    </message>
    <message>
        <location filename="../../Sources/kxconfig.cpp"/>
        <source>A check of Details, not in the event log</source>
        <translation>Eine Prüfung der Einzelheiten, nicht im Ereignisprotokoll</translation>
    </message>
    <message>
        <location filename="../../Sources/kxconfig.cpp"/>
        <source>Configure from File, not in the event log</source>
        <translation>Aus Datei konfigurieren, nicht im Ereignisprotokoll</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ARPTool.cpp"/>
        <source>The ARP tool gets no text that begins with “-”.</source>
        <translation>Das ARP-Programm erhält keinen Text, der mit „-“ beginnt.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Ethernet</source>
        <translation>Ethernet</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Bridge</source>
        <translation>Netzwerkbrücke</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>VLAN</source>
        <translation>VLAN</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Bond</source>
        <translation>Bond</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>PPP</source>
        <translation>PPP</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/LinuxAuthorizationReference.cpp"/>
        <location filename="../../Sources/platform/linux/PolkitCheck.cpp"/>
        <source>Waiting for administrator rights.</source>
        <translation>Warten auf Administratorrechte.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/LinuxAuthorizationReference.cpp"/>
        <source>Waiting for the tool that has administrator rights.</source>
        <translation>Warten auf das Programm, das Administratorrechte hat.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>About KXConfig</source>
        <translation>Über KXConfig</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>KXConfig %@</source>
        <translation>KXConfig %@</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>Finds and configures small networked units over UDP.</source>
        <translation>Findet und konfiguriert kleine Netzwerkgeräte über UDP.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>Qt %@</source>
        <translation>Qt %@</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Sort &amp;Ascending</source>
        <translation>&amp;Aufsteigend sortieren</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Sort &amp;Descending</source>
        <translation>A&amp;bsteigend sortieren</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Move Column &amp;Left</source>
        <translation>Spalte nach &amp;links</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Move Column &amp;Right</source>
        <translation>Spalte nach &amp;rechts</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>All Units</source>
        <translation>Alle Geräte</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Filter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Any part of a shown value</source>
        <translation>Irgendein Teil eines gezeigten Werts</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Columns</source>
        <translation>&amp;Spalten</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Show in Main Window</source>
        <translation>Im Hauptfenster &amp;zeigen</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>No unit has answered yet. Press Discover in the main window.</source>
        <translation>Noch kein Gerät hat geantwortet. Drücken Sie im Hauptfenster „Geräte suchen“.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>No unit contains the text of the filter.</source>
        <translation>Kein Gerät enthält den Text des Filters.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>1 unit, %d shown</source>
        <translation>1 Gerät, %d gezeigt</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>%d units, %d shown</source>
        <translation>%d Geräte, %d gezeigt</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>1 unit</source>
        <translation>1 Gerät</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>%d units</source>
        <translation>%d Geräte</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>More have answered; those that were heard last are listed.</source>
        <translation>Mehr haben geantwortet; aufgeführt sind die zuletzt gehörten.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Comma-separated values (*.csv)</source>
        <translation>Kommagetrennte Werte (*.csv)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Export Units</source>
        <translation>Geräte exportieren</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>1 unit is written to “%@”.</source>
        <translation>1 Gerät steht in „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>%d units are written to “%@”.</source>
        <translation>%d Geräte stehen in „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AnnouncedLabel.cpp"/>
        <source>Attention:</source>
        <translation>Achtung:</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Ask Again</source>
        <translation>Erneut fragen</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Why no unit answers</source>
        <translation>Warum kein Gerät antwortet</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Checks</source>
        <translation>Prüfungen</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>What was seen</source>
        <translation>Was zu sehen war</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>What to do</source>
        <translation>Was zu tun ist</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Asking. This takes a second, or three where nobody answers for an address.</source>
        <translation>Es wird gefragt. Das dauert eine Sekunde, oder drei, wenn niemand für eine Adresse antwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Units answer, and no check fails.</source>
        <translation>Geräte antworten, und keine Prüfung schlägt fehl.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>No cause was found.</source>
        <translation>Es wurde keine Ursache gefunden.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>Find:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>Find Previous</source>
        <translation>Rückwärts suchen</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>Find Next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>From the beginning</source>
        <translation>Vom Anfang an</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>From the end</source>
        <translation>Vom Ende an</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>%d matches or more</source>
        <translation>%d Treffer oder mehr</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>1 match</source>
        <translation>1 Treffer</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>%d matches</source>
        <translation>%d Treffer</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Keep going past lines that are refused or that fail</source>
        <translation>&amp;Weitermachen, wenn Zeilen abgelehnt werden oder scheitern</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Configure from File</source>
        <translation>Aus Datei konfigurieren</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Choose &amp;File…</source>
        <translation>&amp;Datei auswählen…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Choose &amp;Journal…</source>
        <translation>&amp;Journal auswählen…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Makes the plan that takes the run of a journal back.</source>
        <translation>Erstellt den Plan, der den Lauf eines Journals zurücknimmt.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>None chosen</source>
        <translation>Keine gewählt</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Stop</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Re&amp;vert</source>
        <translation>&amp;Zurücknehmen</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Makes the plan that takes this run back. Apply then carries it out.</source>
        <translation>Erstellt den Plan, der diesen Lauf zurücknimmt. „Anwenden“ führt ihn dann aus.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Save &amp;Report…</source>
        <translation>&amp;Bericht sichern…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Reads a table of units or a kept plan, and asks the units.</source>
        <translation>Liest eine Gerätetabelle oder einen aufbewahrten Plan und fragt die Geräte.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Asks the units again, and makes the plan anew.</source>
        <translation>Fragt die Geräte noch einmal und erstellt den Plan neu.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Makes the units show what the plan wants.</source>
        <translation>Gibt den Geräten die Werte, die der Plan verlangt.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Finishes the units under way, and begins no other.</source>
        <translation>Stellt die begonnenen Geräte fertig und beginnt kein weiteres.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Writes the table with what became of each line.</source>
        <translation>Schreibt die Tabelle mit dem, was aus jeder Zeile geworden ist.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Opens the help.</source>
        <translation>Öffnet die Hilfe.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Closes the window.</source>
        <translation>Schließt das Fenster.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Choose a table of units: comma-separated values with a column “serial” and one for each parameter that is to change.</source>
        <translation>Wählen Sie eine Gerätetabelle: kommagetrennte Werte mit einer Spalte „serial“ und einer für jeden Parameter, der sich ändern soll.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>The units of the file were not asked.</source>
        <translation>Die Geräte der Datei wurden nicht gefragt.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Asking the units.</source>
        <translation>Die Geräte werden gefragt.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>The file names no unit.</source>
        <translation>Die Datei nennt kein Gerät.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Units are being configured. Stop?</source>
        <translation>Geräte werden gerade konfiguriert. Anhalten?</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>The units under way are finished and read back. The others stay as they are.</source>
        <translation>Die begonnenen Geräte werden fertiggestellt und nachgelesen. Die übrigen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Go On</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Help text</source>
        <translation>Hilfetext</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Find in this page</source>
        <translation>Auf dieser Seite suchen</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow.cpp"/>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow.cpp"/>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Finds the units on the chosen interface.</source>
        <translation>Findet die Geräte an der gewählten Schnittstelle.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Sends the value in the edit row to the unit.</source>
        <translation>Sendet den Wert in der Bearbeitungszeile an das Gerät.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Sends the command text to the unit.</source>
        <translation>Sendet den Befehlstext an das Gerät.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Shows or hides the event log.</source>
        <translation>Zeigt oder verbirgt das Ereignisprotokoll.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Return ends the typing. To apply it, press %@.</source>
        <translation>Die Eingabetaste beendet die Eingabe. Zum Anwenden drücken Sie %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/QtHelpServices.cpp"/>
        <source>KXConfig Help</source>
        <translation>KXConfig-Hilfe</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/QtOpenPanel.cpp"/>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/WaitingPanel.cpp"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../../Sources/support/Error.cpp"/>
        <source>The host has no IPv4 address that can be reached.</source>
        <translation>Der Rechner hat keine erreichbare IPv4-Adresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/support/Error.cpp"/>
        <source>The host name could not be resolved.</source>
        <translation>Der Rechnername konnte nicht aufgelöst werden.</translation>
    </message>
    <message>
        <location filename="../../Sources/support/Error.cpp"/>
        <source>The operation could not be completed (%@ error %d).</source>
        <translation>Der Vorgang konnte nicht abgeschlossen werden (%@, Fehler %d).</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>home</source>
        <translation>Privat</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>iPhone</source>
        <translation>iPhone</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>mobile</source>
        <translation>Mobil</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>main</source>
        <translation>Zentrale</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>home fax</source>
        <translation>Privat (Fax)</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>work fax</source>
        <translation>Arbeit (Fax)</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>pager</source>
        <translation>Pager</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>vacation</source>
        <translation>Urlaub</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination IP address</source>
        <translation>Ziel-IP-Adresse</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination IP address %@</source>
        <translation>Ziel-IP-Adresse %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination MAC address</source>
        <translation>Ziel-MAC-Adresse</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination MAC address %@</source>
        <translation>Ziel-MAC-Adresse %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination Port number</source>
        <translation>Zielport</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination port %@</source>
        <translation>Zielport %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>device Port number</source>
        <translation>Geräteport</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>device port %@</source>
        <translation>Geräteport %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal IP address</source>
        <translation>Interne IP-Adresse</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal IP address %@</source>
        <translation>interne IP-Adresse %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal MAC address</source>
        <translation>Interne MAC-Adresse</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal MAC address %@</source>
        <translation>interne MAC-Adresse %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>serial number %@</source>
        <translation>Seriennummer %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>unit ID</source>
        <translation>Geräte-ID</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>unit ID %@</source>
        <translation>Geräte-ID %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The interface %@ carries datagrams.</source>
        <translation>Die Schnittstelle %@ überträgt Datagramme.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The interface %@ cannot broadcast.</source>
        <translation>Die Schnittstelle %@ kann keine Broadcasts senden.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>There is none.</source>
        <translation>Es gibt keine.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers are expected on UDP port %d.</source>
        <translation>Antworten werden am UDP-Port %d erwartet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>The UDP listener is not running.</source>
        <translation>Der UDP-Empfang ist nicht gestartet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The request left.</source>
        <translation>Die Anfrage ist abgegangen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The routes lead to the units by this interface.</source>
        <translation>Die Routen führen über diese Schnittstelle zu den Geräten.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The routes to a part of the network lead elsewhere.</source>
        <translation>Die Routen zu einem Teil des Netzwerks führen woandershin.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The computer hears its own broadcast on UDP port %d.</source>
        <translation>Der Rechner hört seinen eigenen Broadcast am UDP-Port %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The computer does not hear its own broadcast on UDP port %d. Datagrams that were taken away meanwhile: %d.</source>
        <translation>Der Rechner hört seinen eigenen Broadcast am UDP-Port %d nicht. Inzwischen weggenommene Datagramme: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The filter is off.</source>
        <translation>Der Filter ist aus.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The filter is on. Datagrams that it took away meanwhile: %d.</source>
        <translation>Der Filter ist an. Inzwischen von ihm weggenommene Datagramme: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units that answered: %d.</source>
        <translation>Geräte, die geantwortet haben: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units that answer now: %d.</source>
        <translation>Geräte, die jetzt antworten: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers that are not understood: %d. Other datagrams: %d.</source>
        <translation>Nicht verstandene Antworten: %d. Andere Datagramme: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>%@ answers.</source>
        <translation>%@ antwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>%@ does not answer.</source>
        <translation>%@ antwortet nicht.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Link</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>IPv4 address</source>
        <translation>IPv4-Adresse</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>UDP port</source>
        <translation>UDP-Port</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Request</source>
        <translation>Anfrage</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Routes</source>
        <translation>Routen</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Own broadcast</source>
        <translation>Eigener Broadcast</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers</source>
        <translation>Antworten</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Strange answers</source>
        <translation>Fremdartige Antworten</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Dropped datagrams</source>
        <translation>Verworfene Datagramme</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers on other ports</source>
        <translation>Antworten an anderen Ports</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units of other networks</source>
        <translation>Geräte anderer Netzwerke</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Reverse path filter</source>
        <translation>Rückwegfilter</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Doubled addresses</source>
        <translation>Doppelte Adressen</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Fixed ARP entries</source>
        <translation>Feste ARP-Einträge</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The unit itself</source>
        <translation>Das Gerät selbst</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Fine</source>
        <translation>In Ordnung</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Odd</source>
        <translation>Auffällig</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Fails</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Not known</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>It was not asked.</source>
        <translation>Danach wurde nicht gefragt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Dropped before they were read: %d.</source>
        <translation>Vor dem Lesen verworfen: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units that answered there: %d.</source>
        <translation>Geräte, die dort geantwortet haben: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>None answered.</source>
        <translation>Keines hat geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>There are none.</source>
        <translation>Es gibt keine.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Entries that name another hardware address: %d.</source>
        <translation>Einträge mit einer anderen Hardwareadresse: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>This computer has no network interface that reaches units.</source>
        <translation>Dieser Rechner hat keine Netzwerkschnittstelle, die Geräte erreicht.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The interface %@ has no link.</source>
        <translation>Die Schnittstelle %@ hat keine Verbindung.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>UDP port %d is taken by %@ (process %d).</source>
        <translation>UDP-Port %d ist von %@ belegt (Prozess %d).</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>UDP port %d is taken by a program of the user %@.</source>
        <translation>UDP-Port %d ist von einem Programm des Benutzers %@ belegt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>No route of this computer leads to %@.</source>
        <translation>Keine Route dieses Rechners führt zu %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>No route of this computer leads to the units behind the interface %@.</source>
        <translation>Keine Route dieses Rechners führt zu den Geräten hinter der Schnittstelle %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The unit %@ answers to UDP port %d, and not to the one that asks.</source>
        <translation>Das Gerät %@ antwortet an den UDP-Port %d und nicht an den, der fragt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Units answer from another network than that of the interface %@.</source>
        <translation>Geräte antworten aus einem anderen Netzwerk als dem der Schnittstelle %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The unit %@ takes no request to %@, so its network is another one.</source>
        <translation>Das Gerät %@ nimmt keine Anfrage an %@ an, also ist sein Netzwerk ein anderes.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The unit %@ is at %@, which is not in the network of the interface %@.</source>
        <translation>Das Gerät %@ hat die Adresse %@, die nicht im Netzwerk der Schnittstelle %@ liegt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Another host than the unit answers for %@: %@.</source>
        <translation>Ein anderer Rechner als das Gerät antwortet für %@: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A fixed ARP entry says that %@ is %@, but the unit there is %@.</source>
        <translation>Ein fester ARP-Eintrag sagt, %@ sei %@, aber das Gerät dort ist %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A fixed ARP entry says that %@ is %@, and nobody answers there.</source>
        <translation>Ein fester ARP-Eintrag sagt, %@ sei %@, und dort antwortet niemand.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>%@ says that %@ cannot be reached.</source>
        <translation>%@ meldet, dass %@ nicht erreichbar ist.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>No host answers for the address %@.</source>
        <translation>Kein Gerät antwortet für die Adresse %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Let the answers in: sudo firewall-cmd --add-port=%d/udp</source>
        <translation>Lassen Sie die Antworten herein: sudo firewall-cmd --add-port=%d/udp</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Let the answers in: sudo ufw allow %d/udp</source>
        <translation>Lassen Sie die Antworten herein: sudo ufw allow %d/udp</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Let UDP to port %d in, in the rules of the firewall.</source>
        <translation>Lassen Sie in den Regeln der Firewall UDP an Port %d herein.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Take the entry out: sudo arp -d %@</source>
        <translation>Nehmen Sie den Eintrag heraus: sudo arp -d %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The interface %@ has no IPv4 address.</source>
        <translation>Die Schnittstelle %@ hat keine IPv4-Adresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The system refuses to send the request: %@.</source>
        <translation>Das System weigert sich, die Anfrage zu senden: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A firewall on this computer lets no answers in to UDP port %d.</source>
        <translation>Eine Firewall auf diesem Rechner lässt keine Antworten an UDP-Port %d herein.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A firewall on this computer lets no answers to a broadcast in to UDP port %d, only those to single requests.</source>
        <translation>Eine Firewall auf diesem Rechner lässt keine Antworten auf einen Broadcast an UDP-Port %d herein, nur die auf einzelne Anfragen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The reverse path filter of the interface %@ takes the answers away.</source>
        <translation>Der Rückwegfilter der Schnittstelle %@ nimmt die Antworten weg.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The host %@ is there, but nothing reads its UDP port %d.</source>
        <translation>Der Rechner %@ ist da, aber nichts liest seinen UDP-Port %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Something answers, but not as a unit does.</source>
        <translation>Etwas antwortet, aber nicht wie ein Gerät.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The request left, and nothing came back from %@.</source>
        <translation>Die Anfrage ist abgegangen, und von %@ kam nichts zurück.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The request left, and nothing came back.</source>
        <translation>Die Anfrage ist abgegangen, und nichts kam zurück.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Plug in the cable, switch the interface on, and look whether something is switched on at the other end.</source>
        <translation>Stecken Sie das Kabel ein, schalten Sie die Schnittstelle ein, und sehen Sie nach, ob am anderen Ende etwas eingeschaltet ist.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the units.</source>
        <translation>Geben Sie der Schnittstelle eine Adresse im Netzwerk der Geräte.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Quit that program, or choose another UDP port.</source>
        <translation>Beenden Sie das Programm, oder wählen Sie einen anderen UDP-Port.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look for a firewall rule on this computer that stops datagrams to UDP port 3520.</source>
        <translation>Suchen Sie auf diesem Rechner eine Firewall-Regel, die Datagramme an UDP-Port 3520 aufhält.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the unit, or add a route.</source>
        <translation>Geben Sie der Schnittstelle eine Adresse im Netzwerk des Geräts, oder fügen Sie eine Route hinzu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the units, or take out the route that leads elsewhere. The filter is the setting net.ipv4.conf.%@.rp_filter.</source>
        <translation>Geben Sie der Schnittstelle eine Adresse im Netzwerk der Geräte, oder nehmen Sie die Route heraus, die woandershin führt. Der Filter ist die Einstellung net.ipv4.conf.%@.rp_filter.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Choose that UDP port, or change the unit’s destination port.</source>
        <translation>Wählen Sie diesen UDP-Port, oder ändern Sie den Zielport des Geräts.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the unit as its first one, or change the unit’s address.</source>
        <translation>Geben Sie der Schnittstelle als erste eine Adresse im Netzwerk des Geräts, oder ändern Sie die Adresse des Geräts.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Disconnect one of them, and give the other one another address.</source>
        <translation>Trennen Sie eines davon, und geben Sie dem anderen eine andere Adresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Allow a larger receive buffer. Help says how.</source>
        <translation>Erlauben Sie einen größeren Empfangspuffer. Die Hilfe sagt, wie.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look whether this is a unit, and which device port it has.</source>
        <translation>Sehen Sie nach, ob das ein Gerät ist und welchen Geräteport es hat.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look whether the unit has power and its cable, and whether the address is right.</source>
        <translation>Sehen Sie nach, ob das Gerät Strom und sein Kabel hat und ob die Adresse stimmt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Find out what it is. The event log shows what came.</source>
        <translation>Finden Sie heraus, was es ist. Das Ereignisprotokoll zeigt, was kam.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look whether the unit has power and its cable, and whether a router or a switch with separated ports stands in between.</source>
        <translation>Sehen Sie nach, ob das Gerät Strom und sein Kabel hat und ob ein Router oder ein Switch mit getrennten Ports dazwischen steht.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Port %d is taken by another program. Choose another port.</source>
        <translation>Port %d ist von einem anderen Programm belegt. Wählen Sie einen anderen Port.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No request was sent: %@</source>
        <translation>Es wurde keine Anfrage gesendet: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No request was sent: %@.</source>
        <translation>Es wurde keine Anfrage gesendet: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Asking %@, port %d: no unit has answered yet</source>
        <translation>Frage %@, Port %d: noch hat kein Gerät geantwortet</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Asking %@, port %d: 1 unit answered</source>
        <translation>Frage %@, Port %d: 1 Gerät hat geantwortet</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Asking %@, port %d: %d units answered</source>
        <translation>Frage %@, Port %d: %d Geräte haben geantwortet</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No interface is chosen: asked %@.</source>
        <translation>Keine Schnittstelle ist ausgewählt: gefragt wurde %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>The one listed answered earlier.</source>
        <translation>Das aufgeführte hat früher geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>The %d listed answered earlier.</source>
        <translation>Die %d aufgeführten haben früher geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No unit answered.</source>
        <translation>Kein Gerät hat geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>1 unit answered late. Discover again to list it.</source>
        <translation>1 Gerät hat spät geantwortet. Suchen Sie noch einmal, um es aufzuführen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d units answered late. Discover again to list them.</source>
        <translation>%d Geräte haben spät geantwortet. Suchen Sie noch einmal, um sie aufzuführen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d of the %d listed answered.</source>
        <translation>%d der %d aufgeführten haben geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>1 unit answered.</source>
        <translation>1 Gerät hat geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d units answered.</source>
        <translation>%d Geräte haben geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ answered last time and not now.</source>
        <translation>%@ hat letztes Mal geantwortet und jetzt nicht.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d answered last time and not now.</source>
        <translation>%d haben letztes Mal geantwortet und jetzt nicht.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ is new.</source>
        <translation>%@ ist neu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d are new.</source>
        <translation>%d sind neu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ has changed.</source>
        <translation>%@ hat sich geändert.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d have changed.</source>
        <translation>%d haben sich geändert.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ answers again.</source>
        <translation>%@ antwortet wieder.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d answer again.</source>
        <translation>%d antworten wieder.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DocumentFaultText.cpp"/>
        <source>“%@” is another kind of file than the one that is wanted.</source>
        <translation>„%@“ ist eine andere Art von Datei als die gewünschte.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@.</source>
        <translation>„Anwenden“ sendet %@: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because that is how “%@” is read.</source>
        <translation>„Anwenden“ sendet %@: %@, denn so wird „%@“ gelesen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a MAC address has 12 hexadecimal digits and nothing else but colons.</source>
        <translation>„Anwenden“ sendet %@, obwohl eine MAC-Adresse aus 12 Hexadezimalziffern besteht und außer ihnen nur Doppelpunkte enthält.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a MAC address has 12 hexadecimal digits and this has %d.</source>
        <translation>„Anwenden“ sendet %@, obwohl eine MAC-Adresse 12 Hexadezimalziffern hat und diese %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a serial number has 12 hexadecimal digits and nothing else but blanks.</source>
        <translation>„Anwenden“ sendet %@, obwohl eine Seriennummer aus 12 Hexadezimalziffern besteht und außer ihnen nur Leerzeichen enthält.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a serial number has 12 hexadecimal digits and this has %d.</source>
        <translation>„Anwenden“ sendet %@, obwohl eine Seriennummer 12 Hexadezimalziffern hat und diese %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: serial number %@, which another unit has.</source>
        <translation>„Anwenden“ sendet %@: Seriennummer %@, die ein anderes Gerät hat.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because “%@” is not an IPv4 address.</source>
        <translation>„Anwenden“ sendet %@: %@, denn „%@“ ist keine IPv4-Adresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because “%@” does not begin with a number.</source>
        <translation>„Anwenden“ sendet %@: %@, denn „%@“ beginnt nicht mit einer Zahl.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because %@ is outside 3520 to 3523.</source>
        <translation>„Anwenden“ sendet %@: %@, denn %@ liegt außerhalb von 3520 bis 3523.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, more than the four digits of a port, because %@ is outside 0 to 65535.</source>
        <translation>„Anwenden“ sendet %@, mehr als die vier Ziffern eines Ports, denn %@ liegt außerhalb von 0 bis 65535.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: the number %@, which does not show as a number because it is above 255.</source>
        <translation>„Anwenden“ sendet %@: die Zahl %@, die über 255 liegt und deshalb nicht als Zahl angezeigt wird.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: the number %@, because that is how “%@” is read. Above 255 it does not show as a number.</source>
        <translation>„Anwenden“ sendet %@: die Zahl %@, denn so wird „%@“ gelesen. Über 255 wird sie nicht als Zahl angezeigt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: the text “%@”, though a unit ID has 6 bytes and this has %d.</source>
        <translation>„Anwenden“ sendet %@: den Text „%@“, obwohl eine Geräte-ID 6 Bytes hat und dieser %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: unit ID “%@”.</source>
        <translation>„Anwenden“ sendet %@: Geräte-ID „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply asks for administrator rights, but no MAC address is known for an ARP entry.</source>
        <translation>„Anwenden“ fragt nach Administratorrechten, doch für einen ARP-Eintrag ist keine MAC-Adresse bekannt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply asks for administrator rights, but an ARP entry can hold ASCII characters only.</source>
        <translation>„Anwenden“ fragt nach Administratorrechten, doch ein ARP-Eintrag kann nur ASCII-Zeichen enthalten.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply asks for administrator rights, but no ARP entry will be made for “%@”: %@</source>
        <translation>„Anwenden“ fragt nach Administratorrechten, doch für „%@“ wird kein ARP-Eintrag angelegt: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply hands “%@” and %@ to the ARP tool, which needs administrator rights.</source>
        <translation>„Anwenden“ übergibt „%@“ und %@ an das ARP-Programm. Dazu sind Administratorrechte nötig.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply enters %@ at %@ in the ARP cache, which needs administrator rights.</source>
        <translation>„Anwenden“ trägt %@ mit %@ in den ARP-Cache ein. Dazu sind Administratorrechte nötig.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the UDP listener is not running.</source>
        <translation>„Anwenden“ sendet nichts: Der UDP-Empfang ist nicht gestartet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>No unit is selected.</source>
        <translation>Kein Gerät ist ausgewählt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@ to 0.0.0.0, because “%@” is not an IPv4 address.</source>
        <translation>„Anwenden“ sendet %@ an 0.0.0.0, denn „%@“ ist keine IPv4-Adresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@ to %@, because that is how “%@” is read.</source>
        <translation>„Anwenden“ sendet %@ an %@, denn so wird „%@“ gelesen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@ to %@.</source>
        <translation>„Anwenden“ sendet %@ an %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: no command changes this parameter.</source>
        <translation>„Anwenden“ sendet nichts: Kein Befehl ändert diesen Parameter.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the value is empty.</source>
        <translation>„Anwenden“ sendet nichts: Der Wert ist leer.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the unit ID is not a text in UTF-8.</source>
        <translation>„Anwenden“ sendet nichts: Die Geräte-ID ist kein Text in UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: no unit is selected.</source>
        <translation>„Anwenden“ sendet nichts: Kein Gerät ist ausgewählt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: a command can hold ASCII characters only.</source>
        <translation>„Anwenden“ sendet nichts: Ein Befehl kann nur ASCII-Zeichen enthalten.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the address of the unit is not known.</source>
        <translation>„Anwenden“ sendet nichts: Die Adresse des Geräts ist nicht bekannt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>This computer has it.</source>
        <translation>Dieser Rechner hat sie.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>The unit %@ has it.</source>
        <translation>Das Gerät %@ hat sie.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>No unit can have it: it is the address of the subnet.</source>
        <translation>Kein Gerät kann sie haben: Sie ist die Adresse des Subnetzes.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>It is outside this computer&apos;s subnet, perhaps out of reach.</source>
        <translation>Sie liegt außerhalb des Subnetzes, vielleicht unerreichbar.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>It goes to the unit %@, which was not shown when the row was chosen.</source>
        <translation>Er geht an das Gerät %@, das bei der Wahl der Zeile nicht gezeigt wurde.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Return ends the typing; Ctrl+Return applies.</source>
        <translation>Die Eingabetaste beendet die Eingabe; Strg+Eingabe wendet an.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the command is too long for a datagram.</source>
        <translation>„Anwenden“ sendet nichts: Der Befehl ist zu lang für ein Datagramm.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command. It could not be asked for its parameters: %@</source>
        <translation>Das Gerät hat einen Befehl angenommen. Es konnte nicht nach seinen Parametern gefragt werden: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command. It could not be asked for its parameters: %@.</source>
        <translation>Das Gerät hat einen Befehl angenommen. Es konnte nicht nach seinen Parametern gefragt werden: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command and was asked for its parameters. If its port has changed, Discover finds it.</source>
        <translation>Das Gerät hat einen Befehl angenommen und wurde nach seinen Parametern gefragt. Hat sich sein Port geändert, findet „Geräte suchen“ es.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command and was asked for its parameters.</source>
        <translation>Das Gerät hat einen Befehl angenommen und wurde nach seinen Parametern gefragt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its serial number. Discover lists it under that.</source>
        <translation>Das Gerät zeigt jetzt %@ als seine Seriennummer. „Geräte suchen“ führt es darunter auf.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its %@.</source>
        <translation>Das Gerät zeigt jetzt %@ unter „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its serial number (was %@). Discover lists it under that.</source>
        <translation>Das Gerät zeigt jetzt %@ als seine Seriennummer (vorher %@). „Geräte suchen“ führt es darunter auf.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its %@ (was %@).</source>
        <translation>Das Gerät zeigt jetzt %@ unter „%@“ (vorher %@).</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit still shows %@ as its %@.</source>
        <translation>Das Gerät zeigt weiterhin %@ unter „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its %@, which is not what was sent.</source>
        <translation>Das Gerät zeigt jetzt %@ unter „%@“. Das ist nicht, was gesendet wurde.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit&apos;s parameters hold no %@.</source>
        <translation>Die Parameter des Geräts enthalten keinen Eintrag „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Another unit, %@, accepted a command: it has the address %@ already.</source>
        <translation>Ein anderes Gerät, %@, hat einen Befehl angenommen: Es hat die Adresse %@ schon.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Another unit, %@, accepted a command: both have the address %@.</source>
        <translation>Ein anderes Gerät, %@, hat einen Befehl angenommen: Beide haben die Adresse %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Sent %@.</source>
        <translation>%@ gesendet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Sent %@. The unit has not answered.</source>
        <translation>%@ gesendet. Das Gerät hat nicht geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Sent %@. The unit has not answered yet.</source>
        <translation>%@ gesendet. Das Gerät hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: %@</source>
        <translation>Für %@ wurde kein ARP-Eintrag angelegt: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: %@.</source>
        <translation>Für %@ wurde kein ARP-Eintrag angelegt: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: administrator rights were not given.</source>
        <translation>Für %@ wurde kein ARP-Eintrag angelegt: Die Administratorrechte wurden nicht erteilt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: running the ARP tool was refused.</source>
        <translation>Für %@ wurde kein ARP-Eintrag angelegt: Die Ausführung des ARP-Programms wurde verweigert.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the question for administrator rights was dismissed.</source>
        <translation>Für %@ wurde kein ARP-Eintrag angelegt: Die Frage nach Administratorrechten wurde abgebrochen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the ARP tool cannot be run.</source>
        <translation>Für %@ wurde kein ARP-Eintrag angelegt: Das ARP-Programm lässt sich nicht ausführen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: it can hold ASCII characters only.</source>
        <translation>Für %@ wurde kein ARP-Eintrag angelegt: Er kann nur ASCII-Zeichen enthalten.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the ARP tool was not started (%d).</source>
        <translation>Für %@ wurde kein ARP-Eintrag angelegt: Das ARP-Programm wurde nicht gestartet (%d).</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the ARP tool ended with status %d.</source>
        <translation>Für %@ wurde kein ARP-Eintrag angelegt: Das ARP-Programm endete mit Status %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The ARP entry for %@ is not on the interface by which the command left, so the unit may not have heard it.</source>
        <translation>Der ARP-Eintrag für %@ steht nicht auf der Schnittstelle, über die der Befehl hinausging. Deshalb hat das Gerät ihn vielleicht nicht gehört.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>[Begin Discover]</source>
        <translation>[Beginn der Suche]</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>[The event log keeps 256 MiB. Older entries were removed.]</source>
        <translation>[Das Ereignisprotokoll behält 256 MiB. Ältere Einträge wurden entfernt.]</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP listener did start. </source>
        <translation>
UDP-Empfang gestartet. </translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Error setting SO_BROADCAST %s</source>
        <translation>
Fehler beim Setzen von SO_BROADCAST %s</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP did stop with error.</source>
        <translation>
UDP-Empfang mit Fehler beendet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Request unit parameters with address: %@</source>
        <translation>
Geräteparameter angefordert bei Adresse: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Send to: %@ command: %@</source>
        <translation>
Senden an: %@ Befehl: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP server did send data.</source>
        <translation>
UDP-Daten gesendet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP failed to send data.</source>
        <translation>
UDP-Daten konnten nicht gesendet werden.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP listener did receive data. Length: %d</source>
        <translation>
UDP-Daten empfangen. Länge: %d</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Ignoring short packet</source>
        <translation>
Zu kurzes Paket ignoriert</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Ignoring unknown packet, prefix != ^^</source>
        <translation>
Unbekanntes Paket ignoriert, Präfix != ^^</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP did receive error.</source>
        <translation>
UDP-Fehler beim Empfangen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Received command: ^^%@ unit:%@ serial:%@ cidString:%@</source>
        <translation>
Befehl empfangen: ^^%@ Geräte-ID:%@ Seriennummer:%@ Inhalt:%@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Received command: ^^%@</source>
        <translation>
Befehl empfangen: ^^%@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Stuff ARP cache with MAC %@ for IP %@</source>
        <translation>
ARP-Cache: Eintrag von MAC %@ für IP %@ gestartet</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Stuff ARP cache result: %d</source>
        <translation>
Ergebnis des ARP-Cache-Eintrags: %d</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Unit ID could not be converted to 6-byte UTF-8 string</source>
        <translation>
Geräte-ID ließ sich nicht in einen UTF-8-Text von 6 Bytes umwandeln</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ is gone, so no broadcast was sent. Choose another one, or bring it back.</source>
        <translation>Die Schnittstelle %@ ist verschwunden, darum wurde kein Broadcast gesendet. Wählen Sie eine andere, oder schließen Sie sie wieder an.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ has no link. Is its cable plugged in, and the device at the other end switched on?</source>
        <translation>Die Schnittstelle %@ hat keine Verbindung. Steckt das Kabel, und ist das Gerät am anderen Ende eingeschaltet?</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ reaches no unit by broadcast. Choose the one that leads to the units.</source>
        <translation>Die Schnittstelle %@ erreicht kein Gerät durch Broadcast. Wählen Sie die, die zu den Geräten führt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ has lost the address that it had when it was chosen. When it has one again, choose it again.</source>
        <translation>Die Schnittstelle %@ hat die Adresse verloren, die sie bei der Auswahl hatte. Wählen Sie sie neu, wenn sie wieder eine hat.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The address and mask of the interface %@ are out of date: they have changed since it was chosen. Choose it again to take the new ones over.</source>
        <translation>Adresse und Maske der Schnittstelle %@ sind veraltet: Sie haben sich seit der Auswahl geändert. Wählen Sie sie neu, um die neuen zu übernehmen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The system dropped 1 datagram before it was read, so a unit may be missing. Help says how to allow a larger buffer.</source>
        <translation>Das System hat 1 Datagramm verworfen, bevor es gelesen wurde; vielleicht fehlt ein Gerät. Die Hilfe sagt, wie sich ein größerer Puffer erlauben lässt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The system dropped %d datagrams before they were read, so units may be missing. Help says how to allow a larger buffer.</source>
        <translation>Das System hat %d Datagramme verworfen, bevor sie gelesen wurden; vielleicht fehlen Geräte. Die Hilfe sagt, wie sich ein größerer Puffer erlauben lässt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>More than 1,048,576 units have answered, so the list leaves out those that were not heard for longest.</source>
        <translation>Mehr als 1.048.576 Geräte haben geantwortet; in der Liste fehlen deshalb die, die am längsten nicht gehört wurden.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>Two hosts answer as the unit %@: %@ and %@.</source>
        <translation>Zwei Rechner antworten als das Gerät %@: %@ und %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>Two units say that their address is %@: %@ and %@. A command may reach either.</source>
        <translation>Zwei Geräte geben als ihre Adresse %@ an: %@ und %@. Ein Befehl kann jedes von beiden erreichen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>%d units or more say that their address is %@, among them %@ and %@. A command may reach any of them.</source>
        <translation>%d Geräte oder mehr geben als ihre Adresse %@ an, darunter %@ und %@. Ein Befehl kann jedes von ihnen erreichen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>%d units say that their address is %@, among them %@ and %@. A command may reach any of them.</source>
        <translation>%d Geräte geben als ihre Adresse %@ an, darunter %@ und %@. Ein Befehl kann jedes von ihnen erreichen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The unit %@ says that its address is %@, but its answer came from %@.</source>
        <translation>Das Gerät %@ gibt als seine Adresse %@ an, aber seine Antwort kam von %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The unit %@ is heard on two interfaces: %@ and %@. Commands leave by the one on which it was heard last.</source>
        <translation>Das Gerät %@ ist auf zwei Schnittstellen zu hören: %@ und %@. Befehle gehen über die, auf der es zuletzt zu hören war.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <source>%@ is free: nobody answers for it.</source>
        <translation>%@ ist frei: Niemand antwortet dafür.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <source>%@ is held by %@, unit %@.</source>
        <translation>%@ gehört %@, Gerät %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>Address %@, mask %@, broadcast address %@.</source>
        <translation>Adresse %@, Maske %@, Broadcast-Adresse %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>The interface has no IPv4 address, so Discover asks %@.</source>
        <translation>Die Schnittstelle hat keine IPv4-Adresse, darum fragt „Geräte suchen“ %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>No interface is chosen, so Discover asks %@.</source>
        <translation>Keine Schnittstelle ist gewählt, darum fragt „Geräte suchen“ %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>The link is up.</source>
        <translation>Die Verbindung steht.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>The link is down.</source>
        <translation>Die Verbindung ist unterbrochen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>To change</source>
        <translation>Zu ändern</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Refused</source>
        <translation>Abgelehnt</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>No answer</source>
        <translation>Keine Antwort</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Done</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Not begun</source>
        <translation>Nicht begonnen</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Half configured</source>
        <translation>Halb konfiguriert</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Not sent</source>
        <translation>Nicht gesendet</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Other value</source>
        <translation>Anderer Wert</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Under way</source>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Wrong</source>
        <translation>Falsch</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Unit</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Wanted</source>
        <translation>Gewünscht</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Units to change: %d, parameters in all: %d. Unchanged: %d, refused: %d, without an answer: %d.</source>
        <translation>Zu ändernde Geräte: %d, Parameter insgesamt: %d. Unverändert: %d, abgelehnt: %d, ohne Antwort: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Done: %d, unchanged: %d, refused: %d, not begun: %d, half configured: %d, without an answer: %d.</source>
        <translation>Erledigt: %d, unverändert: %d, abgelehnt: %d, nicht begonnen: %d, halb konfiguriert: %d, ohne Antwort: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Asked the unit at %@ for its parameters.</source>
        <translation>Das Gerät mit der Adresse %@ wurde nach seinen Parametern gefragt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Asked every unit that hears it for its parameters.</source>
        <translation>Jedes Gerät, das es hört, wurde nach seinen Parametern gefragt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Sent %@ to the unit at %@.</source>
        <translation>%@ an das Gerät mit der Adresse %@ gesendet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Sent %@ to every unit that hears it.</source>
        <translation>%@ an jedes Gerät gesendet, das es hört.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Another unit at this address, %@, answered “%@”.</source>
        <translation>Ein anderes Gerät mit dieser Adresse, %@, hat „%@“ geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Another unit at this address, %@, answered.</source>
        <translation>Ein anderes Gerät mit dieser Adresse, %@, hat geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit answered “%@”.</source>
        <translation>Das Gerät hat „%@“ geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit has told them.</source>
        <translation>Das Gerät hat sie genannt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit accepted a command.</source>
        <translation>Das Gerät hat einen Befehl angenommen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit has not answered.</source>
        <translation>Das Gerät hat nicht geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit has not answered yet.</source>
        <translation>Das Gerät hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>No unit has answered yet.</source>
        <translation>Noch kein Gerät hat geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Accepted by 1 unit.</source>
        <translation>Von 1 Gerät angenommen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>1 unit has answered.</source>
        <translation>1 Gerät hat geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Accepted by %d units or more.</source>
        <translation>Von %d Geräten oder mehr angenommen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>%d units or more have answered.</source>
        <translation>%d Geräte oder mehr haben geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Accepted by %d units.</source>
        <translation>Von %d Geräten angenommen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>%d units have answered.</source>
        <translation>%d Geräte haben geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>No unit is selected: Restore Defaults, like Reload, reaches every unit that hears it.</source>
        <translation>Kein Gerät ist ausgewählt: „Werkseinstellungen laden“ erreicht wie „Neu laden“ jedes Gerät, das es hört.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>The address of this unit is not known: Restore Defaults, like Reload, reaches every unit that hears it.</source>
        <translation>Die Adresse dieses Geräts ist nicht bekannt: „Werkseinstellungen laden“ erreicht wie „Neu laden“ jedes Gerät, das es hört.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>This unit tells an address of many as its own: Restore Defaults, like Reload, Apply and Send, reaches every unit that hears it.</source>
        <translation>Dieses Gerät nennt eine Adresse vieler als seine eigene: „Werkseinstellungen laden“ erreicht wie „Neu laden“, „Anwenden“ und „Senden“ jedes Gerät, das es hört.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Asks the unit at %@ for its parameters.</source>
        <translation>Fragt das Gerät mit der Adresse %@ nach seinen Parametern.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Asks every unit that hears it for its parameters.</source>
        <translation>Fragt jedes Gerät, das es hört, nach seinen Parametern.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Resets the unit at %@ to its factory settings.</source>
        <translation>Setzt das Gerät mit der Adresse %@ auf seine Werkseinstellungen zurück.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Resets every unit that hears it to its factory settings.</source>
        <translation>Setzt jedes Gerät, das es hört, auf seine Werkseinstellungen zurück.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: %@</source>
        <translation>Nicht gesendet: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: %@.</source>
        <translation>Nicht gesendet: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: No command changes this parameter.</source>
        <translation>Nicht gesendet: Kein Befehl ändert diesen Parameter.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: The value is empty.</source>
        <translation>Nicht gesendet: Der Wert ist leer.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: The unit ID is not a text in UTF-8.</source>
        <translation>Nicht gesendet: Die Geräte-ID ist kein Text in UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: No unit is selected.</source>
        <translation>Nicht gesendet: Kein Gerät ist ausgewählt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: A command can hold ASCII characters only.</source>
        <translation>Nicht gesendet: Ein Befehl kann nur ASCII-Zeichen enthalten.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: The address of the unit is not known.</source>
        <translation>Nicht gesendet: Die Adresse des Geräts ist nicht bekannt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is no name of a column.</source>
        <translation>„%@“ ist kein Name einer Spalte.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” means the same as another column.</source>
        <translation>„%@“ bedeutet dasselbe wie eine andere Spalte.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” stands in a column without a name.</source>
        <translation>„%@“ steht in einer Spalte ohne Namen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has text behind its closing quotation mark.</source>
        <translation>„%@“ hat Text hinter dem schließenden Anführungszeichen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” begins or ends with a blank.</source>
        <translation>„%@“ beginnt oder endet mit einem Leerzeichen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has a character that nobody sees.</source>
        <translation>„%@“ enthält ein Zeichen, das niemand sieht.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is no serial number. Write six pairs of digits, such as 4B 58 00 00 00 01.</source>
        <translation>„%@“ ist keine Seriennummer. Schreiben Sie sechs Ziffernpaare wie 4B 58 00 00 00 01.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a number that a spreadsheet has shortened.</source>
        <translation>„%@“ ist eine Zahl, die eine Tabellenkalkulation gekürzt hat.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” lacks digits: a spreadsheet has taken it for a number.</source>
        <translation>„%@“ fehlen Ziffern: Eine Tabellenkalkulation hat es für eine Zahl gehalten.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” lacks its dots: a spreadsheet has taken it for a number.</source>
        <translation>„%@“ fehlen die Punkte: Eine Tabellenkalkulation hat es für eine Zahl gehalten.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a date: a spreadsheet has taken the value for one.</source>
        <translation>„%@“ ist ein Datum: Eine Tabellenkalkulation hat den Wert für eines gehalten.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has separators that a spreadsheet has put between digits.</source>
        <translation>„%@“ enthält Trennzeichen, die eine Tabellenkalkulation zwischen Ziffern gesetzt hat.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has decimal places that a spreadsheet has added.</source>
        <translation>„%@“ hat Nachkommastellen, die eine Tabellenkalkulation ergänzt hat.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a truth value: a spreadsheet has taken the value for one.</source>
        <translation>„%@“ ist ein Wahrheitswert: Eine Tabellenkalkulation hat den Wert für einen gehalten.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a value that a spreadsheet had no room to show.</source>
        <translation>„%@“ ist ein Wert, für den eine Tabellenkalkulation keinen Platz hatte.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is an error of a spreadsheet.</source>
        <translation>„%@“ ist ein Fehler einer Tabellenkalkulation.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” begins with the mark of a text in a spreadsheet.</source>
        <translation>„%@“ beginnt mit dem Zeichen für Text in einer Tabellenkalkulation.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has a blank of another kind.</source>
        <translation>„%@“ enthält ein Leerzeichen anderer Art.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Line %d is about the same unit.</source>
        <translation>Zeile %d betrifft dasselbe Gerät.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d has the same serial number.</source>
        <translation>Zeile %d hat dieselbe Seriennummer.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d has the same address.</source>
        <translation>Zeile %d hat dieselbe Adresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d has the same hardware address.</source>
        <translation>Zeile %d hat dieselbe Hardwareadresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The file is in UTF-16. Save it as CSV in UTF-8.</source>
        <translation>Die Datei ist in UTF-16. Speichern Sie sie als CSV in UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The cell is not in UTF-8. Save the file as CSV in UTF-8.</source>
        <translation>Die Zelle ist nicht in UTF-8. Speichern Sie die Datei als CSV in UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>A quotation mark is not closed.</source>
        <translation>Ein Anführungszeichen ist nicht geschlossen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The first line must name the columns: serial and parameters.</source>
        <translation>Die erste Zeile muss die Spalten nennen: serial und Parameter.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The first line names no column “serial”.</source>
        <translation>Die erste Zeile nennt keine Spalte „serial“.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The line has fewer cells than the first one.</source>
        <translation>Die Zeile hat weniger Zellen als die erste.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The line has more cells than the first one.</source>
        <translation>Die Zeile hat mehr Zellen als die erste.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The serial number is missing.</source>
        <translation>Die Seriennummer fehlt.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The cell has nothing but blanks.</source>
        <translation>Die Zelle enthält nur Leerzeichen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The value does not fit into a command.</source>
        <translation>Der Wert passt nicht in einen Befehl.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>A unit would get another value than “%@”. The window says of it: %@</source>
        <translation>Ein Gerät bekäme einen anderen Wert als „%@“. Das Fenster sagt dazu: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Type it again in a cell that is formatted as text.</source>
        <translation>Geben Sie ihn noch einmal in einer Zelle ein, die als Text formatiert ist.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d: %@</source>
        <translation>Zeile %d: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Sender</source>
        <translation>Absender</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Last heard</source>
        <translation>Zuletzt gehört</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Serial number used twice</source>
        <translation>Seriennummer doppelt</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Address used twice</source>
        <translation>Adresse doppelt</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Answered</source>
        <translation>Hat geantwortet</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>It did not answer the latest Discover.</source>
        <translation>Es hat auf das letzte „Geräte suchen“ nicht geantwortet.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Another unit, %@, has this serial number, too.</source>
        <translation>Ein anderes Gerät, %@, hat auch diese Seriennummer.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>The unit %@ has the address %@, too.</source>
        <translation>Das Gerät %@ hat auch die Adresse %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Line %d wants the same value: %@.</source>
        <translation>Zeile %d will denselben Wert: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ does not tell its hardware address, which a new address needs.</source>
        <translation>Das Gerät %@ nennt seine Hardwareadresse nicht, die für eine neue Adresse nötig ist.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is held by the unit %@.</source>
        <translation>%@ gehört dem Gerät %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ changes hands in a ring: line %d must be done first, and waits for this one.</source>
        <translation>%@ wird im Kreis weitergegeben: Zeile %d muss zuerst erledigt sein und wartet auf diese.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ does not become free, because line %d is not done.</source>
        <translation>%@ wird nicht frei, weil Zeile %d nicht erledigt ist.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The plan is out of date: %@ was “%@” and is “%@” now.</source>
        <translation>Der Plan ist überholt: %@ war „%@“ und ist jetzt „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ does not tell whether it has taken %@.</source>
        <translation>Das Gerät %@ sagt nicht, ob es %@ übernommen hat.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ shows another value: %@ is “%@”.</source>
        <translation>Das Gerät %@ zeigt einen anderen Wert: %@ ist „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Nothing was sent, because other lines are refused or silent.</source>
        <translation>Nichts wurde gesendet, weil andere Zeilen abgelehnt sind oder nicht antworten.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Nothing new was begun after line %d.</source>
        <translation>Nach Zeile %d wurde nichts Neues begonnen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The journal could not be written.</source>
        <translation>Das Journal ließ sich nicht schreiben.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Whether another run is under way could not be found out: %@.</source>
        <translation>Ob ein anderer Lauf im Gange ist, ließ sich nicht feststellen: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Another run changes units from this host.</source>
        <translation>Ein anderer Lauf ändert Geräte von diesem Rechner aus.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Another run changes units from this host: process %d.</source>
        <translation>Ein anderer Lauf ändert Geräte von diesem Rechner aus: Prozess %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>No command brings %@ of the unit %@ back: it was “%@”.</source>
        <translation>Kein Befehl bringt %@ des Geräts %@ zurück: Der Wert war „%@“.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The entry for %@ could not be taken out of the ARP cache again.</source>
        <translation>Der Eintrag für %@ ließ sich nicht wieder aus dem ARP-Cache nehmen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>about %d s left</source>
        <translation>noch etwa %d s</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>about %d min left</source>
        <translation>noch etwa %d min</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP tool gets one address and one hardware address only.</source>
        <translation>Das ARP-Programm erhält nur eine Adresse und eine Hardwareadresse.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>An address is four decimal numbers without leading zeros, as in 192.0.2.7.</source>
        <translation>Eine Adresse besteht aus vier Dezimalzahlen ohne führende Nullen, wie 192.0.2.7.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>A hardware address is six pairs of hexadecimal digits and names one host, as in 02:00:00:00:00:07.</source>
        <translation>Eine Hardwareadresse besteht aus sechs Paaren hexadezimaler Ziffern und gehört zu einem einzigen Host, wie 02:00:00:00:00:07.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP cache has no fixed entry with this address and this hardware address.</source>
        <translation>Der ARP-Cache hat keinen festen Eintrag mit dieser Adresse und dieser Hardwareadresse.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP cache cannot be read.</source>
        <translation>Der ARP-Cache lässt sich nicht lesen.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP tool cannot be run.</source>
        <translation>Das ARP-Programm lässt sich nicht ausführen.</translation>
    </message>
</context>
</TS>
