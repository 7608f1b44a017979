<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Player:</source>
        <translation>Speler:</translation>
    </message>
    <message>
        <source>Serial port:</source>
        <translation>Seriële poort:</translation>
    </message>
    <message>
        <source>Baudrate:</source>
        <translation>Baudrate:</translation>
    </message>
    <message>
        <source>IP address of the player:</source>
        <translation>IP-adres van de speler:</translation>
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
        <translation>Verbinding verbreken</translation>
    </message>
    <message>
        <source>Connecting to the player... Please wait.</source>
        <translation>Verbinden met de speler... Even geduld.</translation>
    </message>
    <message>
        <source>Player ID:</source>
        <translation>Speler-ID:</translation>
    </message>
    <message>
        <source>Change ID:</source>
        <translation>ID wijzigen:</translation>
    </message>
    <message>
        <source>Folder N°:</source>
        <translation>Map nr.:</translation>
    </message>
    <message>
        <source>Content playback:</source>
        <translation>Inhoud afspelen:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Bron:</translation>
    </message>
    <message>
        <source>Option:</source>
        <translation>Optie:</translation>
    </message>
    <message>
        <source>Preset N°:</source>
        <translation>Preset nr.:</translation>
    </message>
    <message>
        <source>Playback command:</source>
        <translation>Afspeelopdrachten:</translation>
    </message>
    <message>
        <source>Other commands:</source>
        <translation>Overige opdrachten:</translation>
    </message>
    <message>
        <source>Volume:</source>
        <translation>Volume:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Request:</source>
        <translation>Verzoek:</translation>
    </message>
    <message>
        <source>Output contacts:</source>
        <translation>Uitgangscontacten:</translation>
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
        <translation>Ondertitels</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>AAN</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>UIT</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Type:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Waarde:</translation>
    </message>
    <message>
        <source>Command bytes sent:</source>
        <translation>Verzonden bytes:</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hex</translation>
    </message>
    <message>
        <source>Decimal</source>
        <translation>Dec</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Data Received:</source>
        <translation>Ontvangen gegevens:</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation>&amp;Taal</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>(standaard)</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Engels</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Frans</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>&amp;Website</translation>
    </message>
    <message>
        <source>&amp;Contact technical support</source>
        <translation>&amp;Contact opnemen met technische ondersteuning</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Over</translation>
    </message>
    <message>
        <source>Support request (from:</source>
        <translation>Ondersteuningsverzoek (vanuit:</translation>
    </message>
    <message>
        <source>( write here your question... )</source>
        <translation>( schrijf hier uw vraag... )</translation>
    </message>
    <message>
        <source>Serial port error</source>
        <translation>Fout op de seriële poort</translation>
    </message>
    <message>
        <source>An error on the serial port has occurred!</source>
        <translation>Er is een fout opgetreden op de seriële poort!</translation>
    </message>
    <message>
        <source>TCP/IP error</source>
        <translation>TCP/IP-fout</translation>
    </message>
    <message>
        <source>An TCP/IP error has occurred!</source>
        <translation>Er is een TCP/IP-fout opgetreden!</translation>
    </message>
    <message>
        <source>No error.</source>
        <translation>Geen fout.</translation>
    </message>
    <message>
        <source>Device not found error.</source>
        <translation>Apparaat niet gevonden.</translation>
    </message>
    <message>
        <source>Permission error.</source>
        <translation>Toegang geweigerd.</translation>
    </message>
    <message>
        <source>Open error.</source>
        <translation>Fout bij het openen.</translation>
    </message>
    <message>
        <source>Write error.</source>
        <translation>Fout bij het schrijven.</translation>
    </message>
    <message>
        <source>Read error.</source>
        <translation>Fout bij het lezen.</translation>
    </message>
    <message>
        <source>Resource error.</source>
        <translation>Resourcefout.</translation>
    </message>
    <message>
        <source>Unsupported operation error.</source>
        <translation>Bewerking niet ondersteund.</translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Onbekende fout.</translation>
    </message>
    <message>
        <source>Timeout error.</source>
        <translation>Wachttijd verstreken.</translation>
    </message>
    <message>
        <source>Not open error.</source>
        <translation>Poort niet geopend.</translation>
    </message>
    <message>
        <source>Unkown error.</source>
        <translation>Niet-geclassificeerde fout.</translation>
    </message>
    <message>
        <source>Port number: </source>
        <translation>Poortnummer: </translation>
    </message>
    <message>
        <source>All commands present in this model can be executed for devices with firmware </source>
        <translation>Alle opdrachten van dit model kunnen worden uitgevoerd door apparaten met firmware </translation>
    </message>
    <message>
        <source> or higher. If the device embed a lower firmware version, some commands may not be executed. Refer to the release notes of this application for more information.</source>
        <translation> of hoger. Als het apparaat een lagere firmwareversie heeft, worden sommige opdrachten mogelijk niet uitgevoerd. Raadpleeg de release-informatie van deze toepassing voor meer informatie.</translation>
    </message>
    <message>
        <source>Model of the player</source>
        <translation>Model van de speler</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Speler</translation>
    </message>
    <message>
        <source>Serial port that the player is connected to</source>
        <translation>Seriële poort waarop de speler is aangesloten</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Seriële poort</translation>
    </message>
    <message>
        <source>Speed of the serial port in bauds</source>
        <translation>Snelheid van de seriële poort in baud</translation>
    </message>
    <message>
        <source>Baudrate</source>
        <translation>Baudrate</translation>
    </message>
    <message>
        <source>IP address of the player</source>
        <translation>IP-adres van de speler</translation>
    </message>
    <message>
        <source>IP address, first number</source>
        <translation>IP-adres, eerste getal</translation>
    </message>
    <message>
        <source>IP address, second number</source>
        <translation>IP-adres, tweede getal</translation>
    </message>
    <message>
        <source>IP address, third number</source>
        <translation>IP-adres, derde getal</translation>
    </message>
    <message>
        <source>IP address, fourth number</source>
        <translation>IP-adres, vierde getal</translation>
    </message>
    <message>
        <source>Connect when the program starts</source>
        <translation>Verbinden bij het starten van het programma</translation>
    </message>
    <message>
        <source>ID of the player that the commands are for</source>
        <translation>ID van de speler waarvoor de opdrachten zijn</translation>
    </message>
    <message>
        <source>Player ID</source>
        <translation>Speler-ID</translation>
    </message>
    <message>
        <source>New ID of the player</source>
        <translation>Nieuwe ID van de speler</translation>
    </message>
    <message>
        <source>New player ID</source>
        <translation>Nieuwe speler-ID</translation>
    </message>
    <message>
        <source>Change the ID of the player</source>
        <translation>ID van de speler wijzigen</translation>
    </message>
    <message>
        <source>Change ID</source>
        <translation>ID wijzigen</translation>
    </message>
    <message>
        <source>Folder to play (Ctrl+0 to Ctrl+9: folders 000 to 009)</source>
        <translation>Af te spelen map (Ctrl+0 t/m Ctrl+9: mappen 000 t/m 009)</translation>
    </message>
    <message>
        <source>Folder number</source>
        <translation>Mapnummer</translation>
    </message>
    <message>
        <source>Play the folder (Ctrl+0 to Ctrl+9: folders 000 to 009)</source>
        <translation>Map afspelen (Ctrl+0 t/m Ctrl+9: mappen 000 t/m 009)</translation>
    </message>
    <message>
        <source>Play the folder</source>
        <translation>Map afspelen</translation>
    </message>
    <message>
        <source>Standby or wake up</source>
        <translation>Stand-by zetten of wekken</translation>
    </message>
    <message>
        <source>Source of the content to play</source>
        <translation>Bron van de af te spelen inhoud</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Bron</translation>
    </message>
    <message>
        <source>Number of the content to play</source>
        <translation>Nummer van de af te spelen inhoud</translation>
    </message>
    <message>
        <source>Option of the content to play</source>
        <translation>Optie van de af te spelen inhoud</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Optie</translation>
    </message>
    <message>
        <source>Web radio preset to play</source>
        <translation>Af te spelen webradiopreset</translation>
    </message>
    <message>
        <source>Preset number</source>
        <translation>Presetnummer</translation>
    </message>
    <message>
        <source>Play the content</source>
        <translation>Inhoud afspelen</translation>
    </message>
    <message>
        <source>Previous folder (Ctrl+Media Previous)</source>
        <translation>Vorige map (Ctrl+mediatoets Vorige)</translation>
    </message>
    <message>
        <source>Previous folder</source>
        <translation>Vorige map</translation>
    </message>
    <message>
        <source>Previous file (Media Previous)</source>
        <translation>Vorig bestand (mediatoets Vorige)</translation>
    </message>
    <message>
        <source>Previous file</source>
        <translation>Vorig bestand</translation>
    </message>
    <message>
        <source>Play (Media Play)</source>
        <translation>Afspelen (mediatoets Afspelen)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
    <message>
        <source>Stop (Media Stop)</source>
        <translation>Stoppen (mediatoets Stoppen)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Pause (Media Pause)</source>
        <translation>Pauzeren (mediatoets Pauzeren)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Next file (Media Next)</source>
        <translation>Volgend bestand (mediatoets Volgende)</translation>
    </message>
    <message>
        <source>Next file</source>
        <translation>Volgend bestand</translation>
    </message>
    <message>
        <source>Next folder (Ctrl+Media Next)</source>
        <translation>Volgende map (Ctrl+mediatoets Volgende)</translation>
    </message>
    <message>
        <source>Next folder</source>
        <translation>Volgende map</translation>
    </message>
    <message>
        <source>Command to send</source>
        <translation>Te verzenden opdracht</translation>
    </message>
    <message>
        <source>Other commands</source>
        <translation>Overige opdrachten</translation>
    </message>
    <message>
        <source>Send the command</source>
        <translation>Opdracht verzenden</translation>
    </message>
    <message>
        <source>Volume to minimum</source>
        <translation>Volume op minimum</translation>
    </message>
    <message>
        <source>Volume (Ctrl++ louder, Ctrl+- softer)</source>
        <translation>Volume (Ctrl++ harder, Ctrl+- zachter)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Volume to maximum</source>
        <translation>Volume op maximum</translation>
    </message>
    <message>
        <source>Last volume sent</source>
        <translation>Laatst verzonden volume</translation>
    </message>
    <message>
        <source>Mute or unmute (Volume Mute)</source>
        <translation>Geluid uit- of inschakelen (toets Dempen)</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Geluid uit- of inschakelen</translation>
    </message>
    <message>
        <source>Request to send</source>
        <translation>Te verzenden verzoek</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>Verzoek</translation>
    </message>
    <message>
        <source>Send the request</source>
        <translation>Verzoek verzenden</translation>
    </message>
    <message>
        <source>Output contact 1</source>
        <translation>Uitgangscontact 1</translation>
    </message>
    <message>
        <source>Output contact 2</source>
        <translation>Uitgangscontact 2</translation>
    </message>
    <message>
        <source>Output contact 3</source>
        <translation>Uitgangscontact 3</translation>
    </message>
    <message>
        <source>Output contact 4</source>
        <translation>Uitgangscontact 4</translation>
    </message>
    <message>
        <source>Output contact 5</source>
        <translation>Uitgangscontact 5</translation>
    </message>
    <message>
        <source>Output contact 6</source>
        <translation>Uitgangscontact 6</translation>
    </message>
    <message>
        <source>Output contact 7</source>
        <translation>Uitgangscontact 7</translation>
    </message>
    <message>
        <source>Output contact 8</source>
        <translation>Uitgangscontact 8</translation>
    </message>
    <message>
        <source>Set the output contacts</source>
        <translation>Uitgangscontacten schakelen</translation>
    </message>
    <message>
        <source>Subtitles on</source>
        <translation>Ondertitels aan</translation>
    </message>
    <message>
        <source>Subtitles off</source>
        <translation>Ondertitels uit</translation>
    </message>
    <message>
        <source>Previous subtitles</source>
        <translation>Vorige ondertitels</translation>
    </message>
    <message>
        <source>Next subtitles</source>
        <translation>Volgende ondertitels</translation>
    </message>
    <message>
        <source>Previous subtitles, in a loop</source>
        <translation>Vorige ondertitels, in een lus</translation>
    </message>
    <message>
        <source>Next subtitles, in a loop</source>
        <translation>Volgende ondertitels, in een lus</translation>
    </message>
    <message>
        <source>What the subtitles are selected by</source>
        <translation>Waarop de ondertitels worden gekozen</translation>
    </message>
    <message>
        <source>Type of the subtitle selection</source>
        <translation>Type ondertitelkeuze</translation>
    </message>
    <message>
        <source>Subtitles to select</source>
        <translation>Te kiezen ondertitels</translation>
    </message>
    <message>
        <source>Select the subtitles</source>
        <translation>Ondertitels kiezen</translation>
    </message>
    <message>
        <source>Sent bytes as hexadecimal numbers</source>
        <translation>Verzonden bytes hexadecimaal</translation>
    </message>
    <message>
        <source>Sent bytes as decimal numbers</source>
        <translation>Verzonden bytes decimaal</translation>
    </message>
    <message>
        <source>Bytes of the last command sent</source>
        <translation>Bytes van de laatst verzonden opdracht</translation>
    </message>
    <message>
        <source>What the player has sent</source>
        <translation>Wat de speler heeft verzonden</translation>
    </message>
    <message>
        <source>Data received</source>
        <translation>Ontvangen gegevens</translation>
    </message>
    <message>
        <source>Clear the received data</source>
        <translation>Ontvangen gegevens wissen</translation>
    </message>
    <message>
        <source>Received data as text</source>
        <translation>Ontvangen gegevens als tekst</translation>
    </message>
    <message>
        <source>Received data as hexadecimal numbers</source>
        <translation>Ontvangen gegevens hexadecimaal</translation>
    </message>
    <message>
        <source>Received data as decimal numbers</source>
        <translation>Ontvangen gegevens decimaal</translation>
    </message>
</context>
<context>
    <name>aboutwindow</name>
    <message>
        <source>About</source>
        <translation>Over</translation>
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
        <translation>Onbekend besturingssysteem</translation>
    </message>
    <message>
        <source>Microsoft</source>
        <translation>Microsoft</translation>
    </message>
</context>
</TS>
