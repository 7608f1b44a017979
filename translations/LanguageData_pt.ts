<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Player:</source>
        <translation>Reprodutor:</translation>
    </message>
    <message>
        <source>Serial port:</source>
        <translation>Porta serial:</translation>
    </message>
    <message>
        <source>Baudrate:</source>
        <translation>Velocidade (bauds):</translation>
    </message>
    <message>
        <source>IP address of the player:</source>
        <translation>Endereço IP do reprodutor:</translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Auto-connection</source>
        <translation>Conexão automática</translation>
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
        <translation>Conectando ao reprodutor... Aguarde.</translation>
    </message>
    <message>
        <source>Player ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>Change ID:</source>
        <translation>Novo ID:</translation>
    </message>
    <message>
        <source>Folder N°:</source>
        <translation>Pasta n.º:</translation>
    </message>
    <message>
        <source>Content playback:</source>
        <translation>Reprodução de conteúdo:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Fonte:</translation>
    </message>
    <message>
        <source>Option:</source>
        <translation>Opção:</translation>
    </message>
    <message>
        <source>Preset N°:</source>
        <translation>Predefinição n.º:</translation>
    </message>
    <message>
        <source>Playback command:</source>
        <translation>Comandos de reprodução:</translation>
    </message>
    <message>
        <source>Other commands:</source>
        <translation>Outros comandos:</translation>
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
        <translation>Consulta:</translation>
    </message>
    <message>
        <source>Output contacts:</source>
        <translation>Contatos de saída:</translation>
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
        <translation>Legendas</translation>
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
        <translation>Dados recebidos:</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>(padrão)</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglês</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francês</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>&amp;Site</translation>
    </message>
    <message>
        <source>&amp;Contact technical support</source>
        <translation>&amp;Contatar o suporte técnico</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>S&amp;obre</translation>
    </message>
    <message>
        <source>Support request (from:</source>
        <translation>Solicitação de suporte (de:</translation>
    </message>
    <message>
        <source>( write here your question... )</source>
        <translation>( escreva aqui a sua pergunta... )</translation>
    </message>
    <message>
        <source>Serial port error</source>
        <translation>Erro da porta serial</translation>
    </message>
    <message>
        <source>An error on the serial port has occurred!</source>
        <translation>Ocorreu um erro na porta serial!</translation>
    </message>
    <message>
        <source>TCP/IP error</source>
        <translation>Erro de TCP/IP</translation>
    </message>
    <message>
        <source>An TCP/IP error has occurred!</source>
        <translation>Ocorreu um erro de TCP/IP!</translation>
    </message>
    <message>
        <source>No error.</source>
        <translation>Nenhum erro.</translation>
    </message>
    <message>
        <source>Device not found error.</source>
        <translation>Dispositivo não encontrado.</translation>
    </message>
    <message>
        <source>Permission error.</source>
        <translation>Acesso negado.</translation>
    </message>
    <message>
        <source>Open error.</source>
        <translation>Erro de abertura.</translation>
    </message>
    <message>
        <source>Write error.</source>
        <translation>Erro de escrita.</translation>
    </message>
    <message>
        <source>Read error.</source>
        <translation>Erro de leitura.</translation>
    </message>
    <message>
        <source>Resource error.</source>
        <translation>Erro de recurso.</translation>
    </message>
    <message>
        <source>Unsupported operation error.</source>
        <translation>Operação não suportada.</translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Erro desconhecido.</translation>
    </message>
    <message>
        <source>Timeout error.</source>
        <translation>Tempo de espera esgotado.</translation>
    </message>
    <message>
        <source>Not open error.</source>
        <translation>Porta não aberta.</translation>
    </message>
    <message>
        <source>Unkown error.</source>
        <translation>Erro não classificado.</translation>
    </message>
    <message>
        <source>Port number: </source>
        <translation>Número da porta: </translation>
    </message>
    <message>
        <source>All commands present in this model can be executed for devices with firmware </source>
        <translation>Todos os comandos deste modelo podem ser executados por equipamentos com o firmware </translation>
    </message>
    <message>
        <source> or higher. If the device embed a lower firmware version, some commands may not be executed. Refer to the release notes of this application for more information.</source>
        <translation> ou superior. Se o equipamento tiver uma versão de firmware inferior, alguns comandos poderão não ser executados. Para mais informações, consulte as notas de versão deste aplicativo.</translation>
    </message>
    <message>
        <source>Model of the player</source>
        <translation>Modelo do reprodutor</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Reprodutor</translation>
    </message>
    <message>
        <source>Serial port that the player is connected to</source>
        <translation>Porta serial à qual o reprodutor está conectado</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Porta serial</translation>
    </message>
    <message>
        <source>Speed of the serial port in bauds</source>
        <translation>Velocidade da porta serial em bauds</translation>
    </message>
    <message>
        <source>Baudrate</source>
        <translation>Velocidade em bauds</translation>
    </message>
    <message>
        <source>IP address of the player</source>
        <translation>Endereço IP do reprodutor</translation>
    </message>
    <message>
        <source>IP address, first number</source>
        <translation>Endereço IP, primeiro número</translation>
    </message>
    <message>
        <source>IP address, second number</source>
        <translation>Endereço IP, segundo número</translation>
    </message>
    <message>
        <source>IP address, third number</source>
        <translation>Endereço IP, terceiro número</translation>
    </message>
    <message>
        <source>IP address, fourth number</source>
        <translation>Endereço IP, quarto número</translation>
    </message>
    <message>
        <source>Connect when the program starts</source>
        <translation>Conectar ao iniciar o programa</translation>
    </message>
    <message>
        <source>ID of the player that the commands are for</source>
        <translation>ID do reprodutor ao qual se destinam os comandos</translation>
    </message>
    <message>
        <source>Player ID</source>
        <translation>ID do reprodutor</translation>
    </message>
    <message>
        <source>New ID of the player</source>
        <translation>Novo ID do reprodutor</translation>
    </message>
    <message>
        <source>New player ID</source>
        <translation>Novo ID do reprodutor</translation>
    </message>
    <message>
        <source>Change the ID of the player</source>
        <translation>Alterar o ID do reprodutor</translation>
    </message>
    <message>
        <source>Change ID</source>
        <translation>Alterar ID</translation>
    </message>
    <message>
        <source>Folder to play (Ctrl+0 to Ctrl+9: folders 000 to 009)</source>
        <translation>Pasta a reproduzir (Ctrl+0 a Ctrl+9: pastas 000 a 009)</translation>
    </message>
    <message>
        <source>Folder number</source>
        <translation>Número da pasta</translation>
    </message>
    <message>
        <source>Play the folder (Ctrl+0 to Ctrl+9: folders 000 to 009)</source>
        <translation>Reproduzir a pasta (Ctrl+0 a Ctrl+9: pastas 000 a 009)</translation>
    </message>
    <message>
        <source>Play the folder</source>
        <translation>Reproduzir a pasta</translation>
    </message>
    <message>
        <source>Standby or wake up</source>
        <translation>Colocar em espera ou reativar</translation>
    </message>
    <message>
        <source>Source of the content to play</source>
        <translation>Fonte do conteúdo a reproduzir</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fonte</translation>
    </message>
    <message>
        <source>Number of the content to play</source>
        <translation>Número do conteúdo a reproduzir</translation>
    </message>
    <message>
        <source>Option of the content to play</source>
        <translation>Opção do conteúdo a reproduzir</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opção</translation>
    </message>
    <message>
        <source>Web radio preset to play</source>
        <translation>Predefinição de rádio web a reproduzir</translation>
    </message>
    <message>
        <source>Preset number</source>
        <translation>Número da predefinição</translation>
    </message>
    <message>
        <source>Play the content</source>
        <translation>Reproduzir o conteúdo</translation>
    </message>
    <message>
        <source>Previous folder (Ctrl+Media Previous)</source>
        <translation>Pasta anterior (Ctrl+tecla multimídia Anterior)</translation>
    </message>
    <message>
        <source>Previous folder</source>
        <translation>Pasta anterior</translation>
    </message>
    <message>
        <source>Previous file (Media Previous)</source>
        <translation>Arquivo anterior (tecla multimídia Anterior)</translation>
    </message>
    <message>
        <source>Previous file</source>
        <translation>Arquivo anterior</translation>
    </message>
    <message>
        <source>Play (Media Play)</source>
        <translation>Reproduzir (tecla multimídia Reproduzir)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Stop (Media Stop)</source>
        <translation>Parar (tecla multimídia Parar)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Pause (Media Pause)</source>
        <translation>Pausar (tecla multimídia Pausar)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Next file (Media Next)</source>
        <translation>Próximo arquivo (tecla multimídia Próximo)</translation>
    </message>
    <message>
        <source>Next file</source>
        <translation>Próximo arquivo</translation>
    </message>
    <message>
        <source>Next folder (Ctrl+Media Next)</source>
        <translation>Próxima pasta (Ctrl+tecla multimídia Próximo)</translation>
    </message>
    <message>
        <source>Next folder</source>
        <translation>Próxima pasta</translation>
    </message>
    <message>
        <source>Command to send</source>
        <translation>Comando a enviar</translation>
    </message>
    <message>
        <source>Other commands</source>
        <translation>Outros comandos</translation>
    </message>
    <message>
        <source>Send the command</source>
        <translation>Enviar o comando</translation>
    </message>
    <message>
        <source>Volume to minimum</source>
        <translation>Volume no mínimo</translation>
    </message>
    <message>
        <source>Volume (Ctrl++ louder, Ctrl+- softer)</source>
        <translation>Volume (Ctrl++ mais alto, Ctrl+- mais baixo)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Volume to maximum</source>
        <translation>Volume no máximo</translation>
    </message>
    <message>
        <source>Last volume sent</source>
        <translation>Último volume enviado</translation>
    </message>
    <message>
        <source>Mute or unmute (Volume Mute)</source>
        <translation>Desativar ou reativar o som (tecla Sem som)</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Desativar ou reativar o som</translation>
    </message>
    <message>
        <source>Request to send</source>
        <translation>Consulta a enviar</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>Consulta</translation>
    </message>
    <message>
        <source>Send the request</source>
        <translation>Enviar a consulta</translation>
    </message>
    <message>
        <source>Output contact 1</source>
        <translation>Contato de saída 1</translation>
    </message>
    <message>
        <source>Output contact 2</source>
        <translation>Contato de saída 2</translation>
    </message>
    <message>
        <source>Output contact 3</source>
        <translation>Contato de saída 3</translation>
    </message>
    <message>
        <source>Output contact 4</source>
        <translation>Contato de saída 4</translation>
    </message>
    <message>
        <source>Output contact 5</source>
        <translation>Contato de saída 5</translation>
    </message>
    <message>
        <source>Output contact 6</source>
        <translation>Contato de saída 6</translation>
    </message>
    <message>
        <source>Output contact 7</source>
        <translation>Contato de saída 7</translation>
    </message>
    <message>
        <source>Output contact 8</source>
        <translation>Contato de saída 8</translation>
    </message>
    <message>
        <source>Set the output contacts</source>
        <translation>Acionar os contatos de saída</translation>
    </message>
    <message>
        <source>Subtitles on</source>
        <translation>Ativar as legendas</translation>
    </message>
    <message>
        <source>Subtitles off</source>
        <translation>Desativar as legendas</translation>
    </message>
    <message>
        <source>Previous subtitles</source>
        <translation>Legendas anteriores</translation>
    </message>
    <message>
        <source>Next subtitles</source>
        <translation>Próximas legendas</translation>
    </message>
    <message>
        <source>Previous subtitles, in a loop</source>
        <translation>Legendas anteriores, em loop</translation>
    </message>
    <message>
        <source>Next subtitles, in a loop</source>
        <translation>Próximas legendas, em loop</translation>
    </message>
    <message>
        <source>What the subtitles are selected by</source>
        <translation>Critério de seleção das legendas</translation>
    </message>
    <message>
        <source>Type of the subtitle selection</source>
        <translation>Tipo de seleção das legendas</translation>
    </message>
    <message>
        <source>Subtitles to select</source>
        <translation>Legendas a selecionar</translation>
    </message>
    <message>
        <source>Select the subtitles</source>
        <translation>Selecionar as legendas</translation>
    </message>
    <message>
        <source>Sent bytes as hexadecimal numbers</source>
        <translation>Bytes enviados em hexadecimal</translation>
    </message>
    <message>
        <source>Sent bytes as decimal numbers</source>
        <translation>Bytes enviados em decimal</translation>
    </message>
    <message>
        <source>Bytes of the last command sent</source>
        <translation>Bytes do último comando enviado</translation>
    </message>
    <message>
        <source>What the player has sent</source>
        <translation>O que o reprodutor enviou</translation>
    </message>
    <message>
        <source>Data received</source>
        <translation>Dados recebidos</translation>
    </message>
    <message>
        <source>Clear the received data</source>
        <translation>Limpar os dados recebidos</translation>
    </message>
    <message>
        <source>Received data as text</source>
        <translation>Dados recebidos como texto</translation>
    </message>
    <message>
        <source>Received data as hexadecimal numbers</source>
        <translation>Dados recebidos em hexadecimal</translation>
    </message>
    <message>
        <source>Received data as decimal numbers</source>
        <translation>Dados recebidos em decimal</translation>
    </message>
</context>
<context>
    <name>aboutwindow</name>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
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
        <translation>Sistema operacional desconhecido</translation>
    </message>
    <message>
        <source>Microsoft</source>
        <translation>Microsoft</translation>
    </message>
</context>
</TS>
