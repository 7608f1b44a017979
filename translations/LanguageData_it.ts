<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Player:</source>
        <translation>Lettore:</translation>
    </message>
    <message>
        <source>Serial port:</source>
        <translation>Porta seriale:</translation>
    </message>
    <message>
        <source>Baudrate:</source>
        <translation>Velocità (baud):</translation>
    </message>
    <message>
        <source>IP address of the player:</source>
        <translation>Indirizzo IP del lettore:</translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Auto-connection</source>
        <translation>Connessione automatica</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connetti</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnetti</translation>
    </message>
    <message>
        <source>Connecting to the player... Please wait.</source>
        <translation>Connessione al lettore in corso... Attendere.</translation>
    </message>
    <message>
        <source>Player ID:</source>
        <translation>ID del lettore:</translation>
    </message>
    <message>
        <source>Change ID:</source>
        <translation>Cambia ID:</translation>
    </message>
    <message>
        <source>Folder N°:</source>
        <translation>Cartella n°:</translation>
    </message>
    <message>
        <source>Content playback:</source>
        <translation>Riproduzione di contenuti:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Sorgente:</translation>
    </message>
    <message>
        <source>Option:</source>
        <translation>Opzione:</translation>
    </message>
    <message>
        <source>Preset N°:</source>
        <translation>Preselezione n°:</translation>
    </message>
    <message>
        <source>Playback command:</source>
        <translation>Comandi di riproduzione:</translation>
    </message>
    <message>
        <source>Other commands:</source>
        <translation>Altri comandi:</translation>
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
        <translation>Richiesta:</translation>
    </message>
    <message>
        <source>Output contacts:</source>
        <translation>Contatti di uscita:</translation>
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
        <translation>Sottotitoli</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ON</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Valore:</translation>
    </message>
    <message>
        <source>Command bytes sent:</source>
        <translation>Byte inviati:</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Esadecimale</translation>
    </message>
    <message>
        <source>Decimal</source>
        <translation>Decimale</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Data Received:</source>
        <translation>Dati ricevuti:</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation>&amp;Lingua</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>(predefinita)</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglese</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francese</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>Sito &amp;web</translation>
    </message>
    <message>
        <source>&amp;Contact technical support</source>
        <translation>&amp;Contatta l’assistenza tecnica</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Informazioni su</translation>
    </message>
    <message>
        <source>Support request (from:</source>
        <translation>Richiesta di assistenza (da:</translation>
    </message>
    <message>
        <source>( write here your question... )</source>
        <translation>( scrivere qui la domanda... )</translation>
    </message>
    <message>
        <source>Serial port error</source>
        <translation>Errore della porta seriale</translation>
    </message>
    <message>
        <source>An error on the serial port has occurred!</source>
        <translation>Si è verificato un errore sulla porta seriale!</translation>
    </message>
    <message>
        <source>TCP/IP error</source>
        <translation>Errore TCP/IP</translation>
    </message>
    <message>
        <source>An TCP/IP error has occurred!</source>
        <translation>Si è verificato un errore TCP/IP!</translation>
    </message>
    <message>
        <source>No error.</source>
        <translation>Nessun errore.</translation>
    </message>
    <message>
        <source>Device not found error.</source>
        <translation>Dispositivo non trovato.</translation>
    </message>
    <message>
        <source>Permission error.</source>
        <translation>Accesso negato.</translation>
    </message>
    <message>
        <source>Open error.</source>
        <translation>Errore di apertura.</translation>
    </message>
    <message>
        <source>Write error.</source>
        <translation>Errore di scrittura.</translation>
    </message>
    <message>
        <source>Read error.</source>
        <translation>Errore di lettura.</translation>
    </message>
    <message>
        <source>Resource error.</source>
        <translation>Errore di risorsa.</translation>
    </message>
    <message>
        <source>Unsupported operation error.</source>
        <translation>Operazione non supportata.</translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Errore sconosciuto.</translation>
    </message>
    <message>
        <source>Timeout error.</source>
        <translation>Tempo di attesa scaduto.</translation>
    </message>
    <message>
        <source>Not open error.</source>
        <translation>Porta non aperta.</translation>
    </message>
    <message>
        <source>Unkown error.</source>
        <translation>Errore non classificato.</translation>
    </message>
    <message>
        <source>Port number: </source>
        <translation>Numero di porta: </translation>
    </message>
    <message>
        <source>All commands present in this model can be executed for devices with firmware </source>
        <translation>Tutti i comandi di questo modello possono essere eseguiti dai dispositivi con firmware </translation>
    </message>
    <message>
        <source> or higher. If the device embed a lower firmware version, some commands may not be executed. Refer to the release notes of this application for more information.</source>
        <translation> o superiore. Se il dispositivo ha una versione del firmware precedente, alcuni comandi potrebbero non essere eseguiti. Per ulteriori informazioni, consultare le note di rilascio di questa applicazione.</translation>
    </message>
    <message>
        <source>Model of the player</source>
        <translation>Modello del lettore</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Lettore</translation>
    </message>
    <message>
        <source>Serial port that the player is connected to</source>
        <translation>Porta seriale a cui è collegato il lettore</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Porta seriale</translation>
    </message>
    <message>
        <source>Speed of the serial port in bauds</source>
        <translation>Velocità della porta seriale in baud</translation>
    </message>
    <message>
        <source>Baudrate</source>
        <translation>Velocità in baud</translation>
    </message>
    <message>
        <source>IP address of the player</source>
        <translation>Indirizzo IP del lettore</translation>
    </message>
    <message>
        <source>IP address, first number</source>
        <translation>Indirizzo IP, primo numero</translation>
    </message>
    <message>
        <source>IP address, second number</source>
        <translation>Indirizzo IP, secondo numero</translation>
    </message>
    <message>
        <source>IP address, third number</source>
        <translation>Indirizzo IP, terzo numero</translation>
    </message>
    <message>
        <source>IP address, fourth number</source>
        <translation>Indirizzo IP, quarto numero</translation>
    </message>
    <message>
        <source>Connect when the program starts</source>
        <translation>Connetti all’avvio del programma</translation>
    </message>
    <message>
        <source>ID of the player that the commands are for</source>
        <translation>ID del lettore a cui sono destinati i comandi</translation>
    </message>
    <message>
        <source>Player ID</source>
        <translation>ID del lettore</translation>
    </message>
    <message>
        <source>New ID of the player</source>
        <translation>Nuovo ID del lettore</translation>
    </message>
    <message>
        <source>New player ID</source>
        <translation>Nuovo ID del lettore</translation>
    </message>
    <message>
        <source>Change the ID of the player</source>
        <translation>Cambia l’ID del lettore</translation>
    </message>
    <message>
        <source>Change ID</source>
        <translation>Cambia ID</translation>
    </message>
    <message>
        <source>Folder to play (Ctrl+0 to Ctrl+9: folders 000 to 009)</source>
        <translation>Cartella da riprodurre (da Ctrl+0 a Ctrl+9: cartelle da 000 a 009)</translation>
    </message>
    <message>
        <source>Folder number</source>
        <translation>Numero della cartella</translation>
    </message>
    <message>
        <source>Play the folder (Ctrl+0 to Ctrl+9: folders 000 to 009)</source>
        <translation>Riproduci la cartella (da Ctrl+0 a Ctrl+9: cartelle da 000 a 009)</translation>
    </message>
    <message>
        <source>Play the folder</source>
        <translation>Riproduci la cartella</translation>
    </message>
    <message>
        <source>Standby or wake up</source>
        <translation>Metti in standby o riattiva</translation>
    </message>
    <message>
        <source>Source of the content to play</source>
        <translation>Sorgente del contenuto da riprodurre</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Sorgente</translation>
    </message>
    <message>
        <source>Number of the content to play</source>
        <translation>Numero del contenuto da riprodurre</translation>
    </message>
    <message>
        <source>Option of the content to play</source>
        <translation>Opzione del contenuto da riprodurre</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opzione</translation>
    </message>
    <message>
        <source>Web radio preset to play</source>
        <translation>Preselezione web radio da riprodurre</translation>
    </message>
    <message>
        <source>Preset number</source>
        <translation>Numero della preselezione</translation>
    </message>
    <message>
        <source>Play the content</source>
        <translation>Riproduci il contenuto</translation>
    </message>
    <message>
        <source>Previous folder (Ctrl+Media Previous)</source>
        <translation>Cartella precedente (Ctrl+tasto multimediale Precedente)</translation>
    </message>
    <message>
        <source>Previous folder</source>
        <translation>Cartella precedente</translation>
    </message>
    <message>
        <source>Previous file (Media Previous)</source>
        <translation>File precedente (tasto multimediale Precedente)</translation>
    </message>
    <message>
        <source>Previous file</source>
        <translation>File precedente</translation>
    </message>
    <message>
        <source>Play (Media Play)</source>
        <translation>Riproduci (tasto multimediale Riproduci)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Stop (Media Stop)</source>
        <translation>Stop (tasto multimediale Stop)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Pause (Media Pause)</source>
        <translation>Pausa (tasto multimediale Pausa)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Next file (Media Next)</source>
        <translation>File successivo (tasto multimediale Successivo)</translation>
    </message>
    <message>
        <source>Next file</source>
        <translation>File successivo</translation>
    </message>
    <message>
        <source>Next folder (Ctrl+Media Next)</source>
        <translation>Cartella successiva (Ctrl+tasto multimediale Successivo)</translation>
    </message>
    <message>
        <source>Next folder</source>
        <translation>Cartella successiva</translation>
    </message>
    <message>
        <source>Command to send</source>
        <translation>Comando da inviare</translation>
    </message>
    <message>
        <source>Other commands</source>
        <translation>Altri comandi</translation>
    </message>
    <message>
        <source>Send the command</source>
        <translation>Invia il comando</translation>
    </message>
    <message>
        <source>Volume to minimum</source>
        <translation>Volume al minimo</translation>
    </message>
    <message>
        <source>Volume (Ctrl++ louder, Ctrl+- softer)</source>
        <translation>Volume (Ctrl++ più alto, Ctrl+- più basso)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Volume to maximum</source>
        <translation>Volume al massimo</translation>
    </message>
    <message>
        <source>Last volume sent</source>
        <translation>Ultimo volume inviato</translation>
    </message>
    <message>
        <source>Mute or unmute (Volume Mute)</source>
        <translation>Disattiva o riattiva l’audio (tasto Muto)</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Disattiva o riattiva l’audio</translation>
    </message>
    <message>
        <source>Request to send</source>
        <translation>Richiesta da inviare</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>Richiesta</translation>
    </message>
    <message>
        <source>Send the request</source>
        <translation>Invia la richiesta</translation>
    </message>
    <message>
        <source>Output contact 1</source>
        <translation>Contatto di uscita 1</translation>
    </message>
    <message>
        <source>Output contact 2</source>
        <translation>Contatto di uscita 2</translation>
    </message>
    <message>
        <source>Output contact 3</source>
        <translation>Contatto di uscita 3</translation>
    </message>
    <message>
        <source>Output contact 4</source>
        <translation>Contatto di uscita 4</translation>
    </message>
    <message>
        <source>Output contact 5</source>
        <translation>Contatto di uscita 5</translation>
    </message>
    <message>
        <source>Output contact 6</source>
        <translation>Contatto di uscita 6</translation>
    </message>
    <message>
        <source>Output contact 7</source>
        <translation>Contatto di uscita 7</translation>
    </message>
    <message>
        <source>Output contact 8</source>
        <translation>Contatto di uscita 8</translation>
    </message>
    <message>
        <source>Set the output contacts</source>
        <translation>Imposta i contatti di uscita</translation>
    </message>
    <message>
        <source>Subtitles on</source>
        <translation>Attiva i sottotitoli</translation>
    </message>
    <message>
        <source>Subtitles off</source>
        <translation>Disattiva i sottotitoli</translation>
    </message>
    <message>
        <source>Previous subtitles</source>
        <translation>Sottotitoli precedenti</translation>
    </message>
    <message>
        <source>Next subtitles</source>
        <translation>Sottotitoli successivi</translation>
    </message>
    <message>
        <source>Previous subtitles, in a loop</source>
        <translation>Sottotitoli precedenti, ciclici</translation>
    </message>
    <message>
        <source>Next subtitles, in a loop</source>
        <translation>Sottotitoli successivi, ciclici</translation>
    </message>
    <message>
        <source>What the subtitles are selected by</source>
        <translation>Criterio di scelta dei sottotitoli</translation>
    </message>
    <message>
        <source>Type of the subtitle selection</source>
        <translation>Tipo di scelta dei sottotitoli</translation>
    </message>
    <message>
        <source>Subtitles to select</source>
        <translation>Sottotitoli da scegliere</translation>
    </message>
    <message>
        <source>Select the subtitles</source>
        <translation>Scegli i sottotitoli</translation>
    </message>
    <message>
        <source>Sent bytes as hexadecimal numbers</source>
        <translation>Byte inviati in esadecimale</translation>
    </message>
    <message>
        <source>Sent bytes as decimal numbers</source>
        <translation>Byte inviati in decimale</translation>
    </message>
    <message>
        <source>Bytes of the last command sent</source>
        <translation>Byte dell’ultimo comando inviato</translation>
    </message>
    <message>
        <source>What the player has sent</source>
        <translation>Quanto ha inviato il lettore</translation>
    </message>
    <message>
        <source>Data received</source>
        <translation>Dati ricevuti</translation>
    </message>
    <message>
        <source>Clear the received data</source>
        <translation>Cancella i dati ricevuti</translation>
    </message>
    <message>
        <source>Received data as text</source>
        <translation>Dati ricevuti come testo</translation>
    </message>
    <message>
        <source>Received data as hexadecimal numbers</source>
        <translation>Dati ricevuti in esadecimale</translation>
    </message>
    <message>
        <source>Received data as decimal numbers</source>
        <translation>Dati ricevuti in decimale</translation>
    </message>
</context>
<context>
    <name>aboutwindow</name>
    <message>
        <source>About</source>
        <translation>Informazioni su</translation>
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
        <translation>Sistema operativo sconosciuto</translation>
    </message>
    <message>
        <source>Microsoft</source>
        <translation>Microsoft</translation>
    </message>
</context>
</TS>
