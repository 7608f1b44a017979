<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Player:</source>
        <translation>Reproductor:</translation>
    </message>
    <message>
        <source>Serial port:</source>
        <translation>Puerto serie:</translation>
    </message>
    <message>
        <source>Baudrate:</source>
        <translation>Velocidad (baudios):</translation>
    </message>
    <message>
        <source>IP address of the player:</source>
        <translation>Dirección IP del reproductor:</translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Auto-connection</source>
        <translation>Conexión automática</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Connecting to the player... Please wait.</source>
        <translation>Conectando con el reproductor... Espere.</translation>
    </message>
    <message>
        <source>Player ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>Change ID:</source>
        <translation>Nuevo ID:</translation>
    </message>
    <message>
        <source>Folder N°:</source>
        <translation>Carpeta n.º:</translation>
    </message>
    <message>
        <source>Content playback:</source>
        <translation>Reproducción de contenido:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Fuente:</translation>
    </message>
    <message>
        <source>Option:</source>
        <translation>Opción:</translation>
    </message>
    <message>
        <source>Preset N°:</source>
        <translation>Preajuste n.º:</translation>
    </message>
    <message>
        <source>Playback command:</source>
        <translation>Comandos de reproducción:</translation>
    </message>
    <message>
        <source>Other commands:</source>
        <translation>Otros comandos:</translation>
    </message>
    <message>
        <source>Volume:</source>
        <translation>Volumen:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Request:</source>
        <translation>Consulta:</translation>
    </message>
    <message>
        <source>Output contacts:</source>
        <translation>Contactos de salida:</translation>
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
        <translation>Subtítulos</translation>
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
        <translation>Valor:</translation>
    </message>
    <message>
        <source>Command bytes sent:</source>
        <translation>Bytes enviados:</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadecimal</translation>
    </message>
    <message>
        <source>Decimal</source>
        <translation>Decimal</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Data Received:</source>
        <translation>Datos recibidos:</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>(predeterminado)</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francés</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>Sitio &amp;web</translation>
    </message>
    <message>
        <source>&amp;Contact technical support</source>
        <translation>&amp;Contactar con el soporte técnico</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>Support request (from:</source>
        <translation>Solicitud de soporte (desde:</translation>
    </message>
    <message>
        <source>( write here your question... )</source>
        <translation>( escriba aquí su pregunta... )</translation>
    </message>
    <message>
        <source>Serial port error</source>
        <translation>Error del puerto serie</translation>
    </message>
    <message>
        <source>An error on the serial port has occurred!</source>
        <translation>¡Se ha producido un error en el puerto serie!</translation>
    </message>
    <message>
        <source>TCP/IP error</source>
        <translation>Error de TCP/IP</translation>
    </message>
    <message>
        <source>An TCP/IP error has occurred!</source>
        <translation>¡Se ha producido un error de TCP/IP!</translation>
    </message>
    <message>
        <source>No error.</source>
        <translation>Ningún error.</translation>
    </message>
    <message>
        <source>Device not found error.</source>
        <translation>Dispositivo no encontrado.</translation>
    </message>
    <message>
        <source>Permission error.</source>
        <translation>Acceso denegado.</translation>
    </message>
    <message>
        <source>Open error.</source>
        <translation>Error de apertura.</translation>
    </message>
    <message>
        <source>Write error.</source>
        <translation>Error de escritura.</translation>
    </message>
    <message>
        <source>Read error.</source>
        <translation>Error de lectura.</translation>
    </message>
    <message>
        <source>Resource error.</source>
        <translation>Error de recursos.</translation>
    </message>
    <message>
        <source>Unsupported operation error.</source>
        <translation>Operación no admitida.</translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Error desconocido.</translation>
    </message>
    <message>
        <source>Timeout error.</source>
        <translation>Tiempo de espera agotado.</translation>
    </message>
    <message>
        <source>Not open error.</source>
        <translation>Puerto no abierto.</translation>
    </message>
    <message>
        <source>Unkown error.</source>
        <translation>Error no clasificado.</translation>
    </message>
    <message>
        <source>Port number: </source>
        <translation>Número de puerto: </translation>
    </message>
    <message>
        <source>All commands present in this model can be executed for devices with firmware </source>
        <translation>Todos los comandos de este modelo pueden ejecutarse en equipos con el firmware </translation>
    </message>
    <message>
        <source> or higher. If the device embed a lower firmware version, some commands may not be executed. Refer to the release notes of this application for more information.</source>
        <translation> o superior. Si el equipo tiene una versión de firmware anterior, es posible que algunos comandos no se ejecuten. Para más información, consulte las notas de la versión de esta aplicación.</translation>
    </message>
    <message>
        <source>Model of the player</source>
        <translation>Modelo del reproductor</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Reproductor</translation>
    </message>
    <message>
        <source>Serial port that the player is connected to</source>
        <translation>Puerto serie al que está conectado el reproductor</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Puerto serie</translation>
    </message>
    <message>
        <source>Speed of the serial port in bauds</source>
        <translation>Velocidad del puerto serie en baudios</translation>
    </message>
    <message>
        <source>Baudrate</source>
        <translation>Velocidad en baudios</translation>
    </message>
    <message>
        <source>IP address of the player</source>
        <translation>Dirección IP del reproductor</translation>
    </message>
    <message>
        <source>IP address, first number</source>
        <translation>Dirección IP, primer número</translation>
    </message>
    <message>
        <source>IP address, second number</source>
        <translation>Dirección IP, segundo número</translation>
    </message>
    <message>
        <source>IP address, third number</source>
        <translation>Dirección IP, tercer número</translation>
    </message>
    <message>
        <source>IP address, fourth number</source>
        <translation>Dirección IP, cuarto número</translation>
    </message>
    <message>
        <source>Connect when the program starts</source>
        <translation>Conectar al iniciar el programa</translation>
    </message>
    <message>
        <source>ID of the player that the commands are for</source>
        <translation>ID del reproductor al que se dirigen los comandos</translation>
    </message>
    <message>
        <source>Player ID</source>
        <translation>ID del reproductor</translation>
    </message>
    <message>
        <source>New ID of the player</source>
        <translation>Nuevo ID del reproductor</translation>
    </message>
    <message>
        <source>New player ID</source>
        <translation>Nuevo ID del reproductor</translation>
    </message>
    <message>
        <source>Change the ID of the player</source>
        <translation>Cambiar el ID del reproductor</translation>
    </message>
    <message>
        <source>Change ID</source>
        <translation>Cambiar ID</translation>
    </message>
    <message>
        <source>Folder to play (Ctrl+0 to Ctrl+9: folders 000 to 009)</source>
        <translation>Carpeta que se reproducirá (Control+0 a Control+9: carpetas 000 a 009)</translation>
    </message>
    <message>
        <source>Folder number</source>
        <translation>Número de carpeta</translation>
    </message>
    <message>
        <source>Play the folder (Ctrl+0 to Ctrl+9: folders 000 to 009)</source>
        <translation>Reproducir la carpeta (Control+0 a Control+9: carpetas 000 a 009)</translation>
    </message>
    <message>
        <source>Play the folder</source>
        <translation>Reproducir la carpeta</translation>
    </message>
    <message>
        <source>Standby or wake up</source>
        <translation>Poner en espera o reactivar</translation>
    </message>
    <message>
        <source>Source of the content to play</source>
        <translation>Fuente del contenido que se reproducirá</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Number of the content to play</source>
        <translation>Número del contenido que se reproducirá</translation>
    </message>
    <message>
        <source>Option of the content to play</source>
        <translation>Opción del contenido que se reproducirá</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Web radio preset to play</source>
        <translation>Preajuste de radio web que se reproducirá</translation>
    </message>
    <message>
        <source>Preset number</source>
        <translation>Número de preajuste</translation>
    </message>
    <message>
        <source>Play the content</source>
        <translation>Reproducir el contenido</translation>
    </message>
    <message>
        <source>Previous folder (Ctrl+Media Previous)</source>
        <translation>Carpeta anterior (Control+tecla multimedia Anterior)</translation>
    </message>
    <message>
        <source>Previous folder</source>
        <translation>Carpeta anterior</translation>
    </message>
    <message>
        <source>Previous file (Media Previous)</source>
        <translation>Archivo anterior (tecla multimedia Anterior)</translation>
    </message>
    <message>
        <source>Previous file</source>
        <translation>Archivo anterior</translation>
    </message>
    <message>
        <source>Play (Media Play)</source>
        <translation>Reproducir (tecla multimedia Reproducir)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Stop (Media Stop)</source>
        <translation>Detener (tecla multimedia Detener)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Pause (Media Pause)</source>
        <translation>Pausa (tecla multimedia Pausa)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Next file (Media Next)</source>
        <translation>Archivo siguiente (tecla multimedia Siguiente)</translation>
    </message>
    <message>
        <source>Next file</source>
        <translation>Archivo siguiente</translation>
    </message>
    <message>
        <source>Next folder (Ctrl+Media Next)</source>
        <translation>Carpeta siguiente (Control+tecla multimedia Siguiente)</translation>
    </message>
    <message>
        <source>Next folder</source>
        <translation>Carpeta siguiente</translation>
    </message>
    <message>
        <source>Command to send</source>
        <translation>Comando que se enviará</translation>
    </message>
    <message>
        <source>Other commands</source>
        <translation>Otros comandos</translation>
    </message>
    <message>
        <source>Send the command</source>
        <translation>Enviar el comando</translation>
    </message>
    <message>
        <source>Volume to minimum</source>
        <translation>Volumen al mínimo</translation>
    </message>
    <message>
        <source>Volume (Ctrl++ louder, Ctrl+- softer)</source>
        <translation>Volumen (Control++ más alto, Control+- más bajo)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Volume to maximum</source>
        <translation>Volumen al máximo</translation>
    </message>
    <message>
        <source>Last volume sent</source>
        <translation>Último volumen enviado</translation>
    </message>
    <message>
        <source>Mute or unmute (Volume Mute)</source>
        <translation>Silenciar o reactivar el sonido (tecla Silencio)</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Silenciar o reactivar el sonido</translation>
    </message>
    <message>
        <source>Request to send</source>
        <translation>Consulta que se enviará</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>Consulta</translation>
    </message>
    <message>
        <source>Send the request</source>
        <translation>Enviar la consulta</translation>
    </message>
    <message>
        <source>Output contact 1</source>
        <translation>Contacto de salida 1</translation>
    </message>
    <message>
        <source>Output contact 2</source>
        <translation>Contacto de salida 2</translation>
    </message>
    <message>
        <source>Output contact 3</source>
        <translation>Contacto de salida 3</translation>
    </message>
    <message>
        <source>Output contact 4</source>
        <translation>Contacto de salida 4</translation>
    </message>
    <message>
        <source>Output contact 5</source>
        <translation>Contacto de salida 5</translation>
    </message>
    <message>
        <source>Output contact 6</source>
        <translation>Contacto de salida 6</translation>
    </message>
    <message>
        <source>Output contact 7</source>
        <translation>Contacto de salida 7</translation>
    </message>
    <message>
        <source>Output contact 8</source>
        <translation>Contacto de salida 8</translation>
    </message>
    <message>
        <source>Set the output contacts</source>
        <translation>Conmutar los contactos de salida</translation>
    </message>
    <message>
        <source>Subtitles on</source>
        <translation>Activar los subtítulos</translation>
    </message>
    <message>
        <source>Subtitles off</source>
        <translation>Desactivar los subtítulos</translation>
    </message>
    <message>
        <source>Previous subtitles</source>
        <translation>Subtítulos anteriores</translation>
    </message>
    <message>
        <source>Next subtitles</source>
        <translation>Subtítulos siguientes</translation>
    </message>
    <message>
        <source>Previous subtitles, in a loop</source>
        <translation>Subtítulos anteriores, en bucle</translation>
    </message>
    <message>
        <source>Next subtitles, in a loop</source>
        <translation>Subtítulos siguientes, en bucle</translation>
    </message>
    <message>
        <source>What the subtitles are selected by</source>
        <translation>Criterio de selección de los subtítulos</translation>
    </message>
    <message>
        <source>Type of the subtitle selection</source>
        <translation>Tipo de selección de los subtítulos</translation>
    </message>
    <message>
        <source>Subtitles to select</source>
        <translation>Subtítulos que se seleccionarán</translation>
    </message>
    <message>
        <source>Select the subtitles</source>
        <translation>Seleccionar los subtítulos</translation>
    </message>
    <message>
        <source>Sent bytes as hexadecimal numbers</source>
        <translation>Bytes enviados en hexadecimal</translation>
    </message>
    <message>
        <source>Sent bytes as decimal numbers</source>
        <translation>Bytes enviados en decimal</translation>
    </message>
    <message>
        <source>Bytes of the last command sent</source>
        <translation>Bytes del último comando enviado</translation>
    </message>
    <message>
        <source>What the player has sent</source>
        <translation>Lo que ha enviado el reproductor</translation>
    </message>
    <message>
        <source>Data received</source>
        <translation>Datos recibidos</translation>
    </message>
    <message>
        <source>Clear the received data</source>
        <translation>Borrar los datos recibidos</translation>
    </message>
    <message>
        <source>Received data as text</source>
        <translation>Datos recibidos como texto</translation>
    </message>
    <message>
        <source>Received data as hexadecimal numbers</source>
        <translation>Datos recibidos en hexadecimal</translation>
    </message>
    <message>
        <source>Received data as decimal numbers</source>
        <translation>Datos recibidos en decimal</translation>
    </message>
</context>
<context>
    <name>aboutwindow</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
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
        <translation>Sistema operativo desconocido</translation>
    </message>
    <message>
        <source>Microsoft</source>
        <translation>Microsoft</translation>
    </message>
</context>
</TS>
