<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Player:</source>
        <translation>Player:</translation>
    </message>
    <message>
        <source>Serial port:</source>
        <translation>Serielle Schnittstelle:</translation>
    </message>
    <message>
        <source>Baudrate:</source>
        <translation>Baudrate:</translation>
    </message>
    <message>
        <source>IP address of the player:</source>
        <translation>IP-Adresse des Players:</translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Auto-connection</source>
        <translation>Automatisch verbinden</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Connecting to the player... Please wait.</source>
        <translation>Verbindung zum Player wird hergestellt... Bitte warten.</translation>
    </message>
    <message>
        <source>Player ID:</source>
        <translation>Player-ID:</translation>
    </message>
    <message>
        <source>Change ID:</source>
        <translation>ID ändern:</translation>
    </message>
    <message>
        <source>Folder N°:</source>
        <translation>Ordner-Nr.:</translation>
    </message>
    <message>
        <source>Content playback:</source>
        <translation>Inhalt wiedergeben:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Quelle:</translation>
    </message>
    <message>
        <source>Option:</source>
        <translation>Option:</translation>
    </message>
    <message>
        <source>Preset N°:</source>
        <translation>Preset-Nr.:</translation>
    </message>
    <message>
        <source>Playback command:</source>
        <translation>Wiedergabebefehle:</translation>
    </message>
    <message>
        <source>Other commands:</source>
        <translation>Weitere Befehle:</translation>
    </message>
    <message>
        <source>Volume:</source>
        <translation>Lautstärke:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Request:</source>
        <translation>Abfrage:</translation>
    </message>
    <message>
        <source>Output contacts:</source>
        <translation>Ausgangskontakte:</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>EIN</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Wert:</translation>
    </message>
    <message>
        <source>Command bytes sent:</source>
        <translation>Gesendete Bytes:</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadezimal</translation>
    </message>
    <message>
        <source>Decimal</source>
        <translation>Dezimal</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Data Received:</source>
        <translation>Empfangene Daten:</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>(Standard)</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>&amp;Website</translation>
    </message>
    <message>
        <source>&amp;Contact technical support</source>
        <translation>Technischen Support &amp;kontaktieren</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>Support request (from:</source>
        <translation>Support-Anfrage (von:</translation>
    </message>
    <message>
        <source>( write here your question... )</source>
        <translation>( schreiben Sie hier Ihre Frage... )</translation>
    </message>
    <message>
        <source>Serial port error</source>
        <translation>Fehler der seriellen Schnittstelle</translation>
    </message>
    <message>
        <source>An error on the serial port has occurred!</source>
        <translation>An der seriellen Schnittstelle ist ein Fehler aufgetreten!</translation>
    </message>
    <message>
        <source>TCP/IP error</source>
        <translation>TCP/IP-Fehler</translation>
    </message>
    <message>
        <source>An TCP/IP error has occurred!</source>
        <translation>Ein TCP/IP-Fehler ist aufgetreten!</translation>
    </message>
    <message>
        <source>No error.</source>
        <translation>Kein Fehler.</translation>
    </message>
    <message>
        <source>Device not found error.</source>
        <translation>Gerät nicht gefunden.</translation>
    </message>
    <message>
        <source>Permission error.</source>
        <translation>Zugriff verweigert.</translation>
    </message>
    <message>
        <source>Open error.</source>
        <translation>Fehler beim Öffnen.</translation>
    </message>
    <message>
        <source>Write error.</source>
        <translation>Fehler beim Schreiben.</translation>
    </message>
    <message>
        <source>Read error.</source>
        <translation>Fehler beim Lesen.</translation>
    </message>
    <message>
        <source>Resource error.</source>
        <translation>Ressourcenfehler.</translation>
    </message>
    <message>
        <source>Unsupported operation error.</source>
        <translation>Vorgang wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Unbekannter Fehler.</translation>
    </message>
    <message>
        <source>Timeout error.</source>
        <translation>Zeitüberschreitung.</translation>
    </message>
    <message>
        <source>Not open error.</source>
        <translation>Schnittstelle nicht geöffnet.</translation>
    </message>
    <message>
        <source>Unkown error.</source>
        <translation>Nicht klassifizierter Fehler.</translation>
    </message>
    <message>
        <source>Port number: </source>
        <translation>Portnummer: </translation>
    </message>
    <message>
        <source>All commands present in this model can be executed for devices with firmware </source>
        <translation>Alle Befehle dieses Modells können von Geräten mit der Firmware </translation>
    </message>
    <message>
        <source> or higher. If the device embed a lower firmware version, some commands may not be executed. Refer to the release notes of this application for more information.</source>
        <translation> oder höher ausgeführt werden. Hat das Gerät eine ältere Firmware, werden manche Befehle möglicherweise nicht ausgeführt. Weitere Informationen finden Sie in den Versionshinweisen dieser Anwendung.</translation>
    </message>
    <message>
        <source>Model of the player</source>
        <translation>Modell des Players</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Serial port that the player is connected to</source>
        <translation>Serielle Schnittstelle, an die der Player angeschlossen ist</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Serielle Schnittstelle</translation>
    </message>
    <message>
        <source>Speed of the serial port in bauds</source>
        <translation>Geschwindigkeit der seriellen Schnittstelle in Baud</translation>
    </message>
    <message>
        <source>Baudrate</source>
        <translation>Baudrate</translation>
    </message>
    <message>
        <source>IP address of the player</source>
        <translation>IP-Adresse des Players</translation>
    </message>
    <message>
        <source>IP address, first number</source>
        <translation>IP-Adresse, erste Zahl</translation>
    </message>
    <message>
        <source>IP address, second number</source>
        <translation>IP-Adresse, zweite Zahl</translation>
    </message>
    <message>
        <source>IP address, third number</source>
        <translation>IP-Adresse, dritte Zahl</translation>
    </message>
    <message>
        <source>IP address, fourth number</source>
        <translation>IP-Adresse, vierte Zahl</translation>
    </message>
    <message>
        <source>Connect when the program starts</source>
        <translation>Beim Programmstart verbinden</translation>
    </message>
    <message>
        <source>ID of the player that the commands are for</source>
        <translation>ID des Players, an den die Befehle gehen</translation>
    </message>
    <message>
        <source>Player ID</source>
        <translation>Player-ID</translation>
    </message>
    <message>
        <source>New ID of the player</source>
        <translation>Neue ID des Players</translation>
    </message>
    <message>
        <source>New player ID</source>
        <translation>Neue Player-ID</translation>
    </message>
    <message>
        <source>Change the ID of the player</source>
        <translation>ID des Players ändern</translation>
    </message>
    <message>
        <source>Change ID</source>
        <translation>ID ändern</translation>
    </message>
    <message>
        <source>Folder to play (Ctrl+0 to Ctrl+9: folders 000 to 009)</source>
        <translation>Wiederzugebender Ordner (Strg+0 bis Strg+9: Ordner 000 bis 009)</translation>
    </message>
    <message>
        <source>Folder number</source>
        <translation>Ordnernummer</translation>
    </message>
    <message>
        <source>Play the folder (Ctrl+0 to Ctrl+9: folders 000 to 009)</source>
        <translation>Ordner wiedergeben (Strg+0 bis Strg+9: Ordner 000 bis 009)</translation>
    </message>
    <message>
        <source>Play the folder</source>
        <translation>Ordner wiedergeben</translation>
    </message>
    <message>
        <source>Standby or wake up</source>
        <translation>Standby oder Aufwecken</translation>
    </message>
    <message>
        <source>Source of the content to play</source>
        <translation>Quelle des wiederzugebenden Inhalts</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Number of the content to play</source>
        <translation>Nummer des wiederzugebenden Inhalts</translation>
    </message>
    <message>
        <source>Option of the content to play</source>
        <translation>Option des wiederzugebenden Inhalts</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Web radio preset to play</source>
        <translation>Wiederzugebendes Webradio-Preset</translation>
    </message>
    <message>
        <source>Preset number</source>
        <translation>Preset-Nummer</translation>
    </message>
    <message>
        <source>Play the content</source>
        <translation>Inhalt wiedergeben</translation>
    </message>
    <message>
        <source>Previous folder (Ctrl+Media Previous)</source>
        <translation>Vorheriger Ordner (Strg+Medientaste Vorheriger)</translation>
    </message>
    <message>
        <source>Previous folder</source>
        <translation>Vorheriger Ordner</translation>
    </message>
    <message>
        <source>Previous file (Media Previous)</source>
        <translation>Vorherige Datei (Medientaste Vorheriger)</translation>
    </message>
    <message>
        <source>Previous file</source>
        <translation>Vorherige Datei</translation>
    </message>
    <message>
        <source>Play (Media Play)</source>
        <translation>Wiedergabe (Medientaste Wiedergabe)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Stop (Media Stop)</source>
        <translation>Stopp (Medientaste Stopp)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Pause (Media Pause)</source>
        <translation>Pause (Medientaste Pause)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Next file (Media Next)</source>
        <translation>Nächste Datei (Medientaste Nächster)</translation>
    </message>
    <message>
        <source>Next file</source>
        <translation>Nächste Datei</translation>
    </message>
    <message>
        <source>Next folder (Ctrl+Media Next)</source>
        <translation>Nächster Ordner (Strg+Medientaste Nächster)</translation>
    </message>
    <message>
        <source>Next folder</source>
        <translation>Nächster Ordner</translation>
    </message>
    <message>
        <source>Command to send</source>
        <translation>Zu sendender Befehl</translation>
    </message>
    <message>
        <source>Other commands</source>
        <translation>Weitere Befehle</translation>
    </message>
    <message>
        <source>Send the command</source>
        <translation>Befehl senden</translation>
    </message>
    <message>
        <source>Volume to minimum</source>
        <translation>Lautstärke auf Minimum</translation>
    </message>
    <message>
        <source>Volume (Ctrl++ louder, Ctrl+- softer)</source>
        <translation>Lautstärke (Strg++ lauter, Strg+- leiser)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Volume to maximum</source>
        <translation>Lautstärke auf Maximum</translation>
    </message>
    <message>
        <source>Last volume sent</source>
        <translation>Zuletzt gesendete Lautstärke</translation>
    </message>
    <message>
        <source>Mute or unmute (Volume Mute)</source>
        <translation>Ton aus- oder einschalten (Medientaste Ton aus)</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Ton aus- oder einschalten</translation>
    </message>
    <message>
        <source>Request to send</source>
        <translation>Zu sendende Abfrage</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>Abfrage</translation>
    </message>
    <message>
        <source>Send the request</source>
        <translation>Abfrage senden</translation>
    </message>
    <message>
        <source>Output contact 1</source>
        <translation>Ausgangskontakt 1</translation>
    </message>
    <message>
        <source>Output contact 2</source>
        <translation>Ausgangskontakt 2</translation>
    </message>
    <message>
        <source>Output contact 3</source>
        <translation>Ausgangskontakt 3</translation>
    </message>
    <message>
        <source>Output contact 4</source>
        <translation>Ausgangskontakt 4</translation>
    </message>
    <message>
        <source>Output contact 5</source>
        <translation>Ausgangskontakt 5</translation>
    </message>
    <message>
        <source>Output contact 6</source>
        <translation>Ausgangskontakt 6</translation>
    </message>
    <message>
        <source>Output contact 7</source>
        <translation>Ausgangskontakt 7</translation>
    </message>
    <message>
        <source>Output contact 8</source>
        <translation>Ausgangskontakt 8</translation>
    </message>
    <message>
        <source>Set the output contacts</source>
        <translation>Ausgangskontakte schalten</translation>
    </message>
    <message>
        <source>Subtitles on</source>
        <translation>Untertitel ein</translation>
    </message>
    <message>
        <source>Subtitles off</source>
        <translation>Untertitel aus</translation>
    </message>
    <message>
        <source>Previous subtitles</source>
        <translation>Vorherige Untertitel</translation>
    </message>
    <message>
        <source>Next subtitles</source>
        <translation>Nächste Untertitel</translation>
    </message>
    <message>
        <source>Previous subtitles, in a loop</source>
        <translation>Vorherige Untertitel, umlaufend</translation>
    </message>
    <message>
        <source>Next subtitles, in a loop</source>
        <translation>Nächste Untertitel, umlaufend</translation>
    </message>
    <message>
        <source>What the subtitles are selected by</source>
        <translation>Wonach die Untertitel gewählt werden</translation>
    </message>
    <message>
        <source>Type of the subtitle selection</source>
        <translation>Art der Untertitelauswahl</translation>
    </message>
    <message>
        <source>Subtitles to select</source>
        <translation>Zu wählende Untertitel</translation>
    </message>
    <message>
        <source>Select the subtitles</source>
        <translation>Untertitel wählen</translation>
    </message>
    <message>
        <source>Sent bytes as hexadecimal numbers</source>
        <translation>Gesendete Bytes hexadezimal</translation>
    </message>
    <message>
        <source>Sent bytes as decimal numbers</source>
        <translation>Gesendete Bytes dezimal</translation>
    </message>
    <message>
        <source>Bytes of the last command sent</source>
        <translation>Bytes des zuletzt gesendeten Befehls</translation>
    </message>
    <message>
        <source>What the player has sent</source>
        <translation>Was der Player gesendet hat</translation>
    </message>
    <message>
        <source>Data received</source>
        <translation>Empfangene Daten</translation>
    </message>
    <message>
        <source>Clear the received data</source>
        <translation>Empfangene Daten löschen</translation>
    </message>
    <message>
        <source>Received data as text</source>
        <translation>Empfangene Daten als Text</translation>
    </message>
    <message>
        <source>Received data as hexadecimal numbers</source>
        <translation>Empfangene Daten hexadezimal</translation>
    </message>
    <message>
        <source>Received data as decimal numbers</source>
        <translation>Empfangene Daten dezimal</translation>
    </message>
</context>
<context>
    <name>aboutwindow</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Copyright © 2021</source>
        <translation>Copyright © 2021</translation>
    </message>
    <message>
        <source>Unkown OS</source>
        <translation>Unbekanntes Betriebssystem</translation>
    </message>
    <message>
        <source>Microsoft</source>
        <translation>Microsoft</translation>
    </message>
</context>
</TS>
