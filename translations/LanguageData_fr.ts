<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Player:</source>
        <translation>Lecteur&#xa0;:</translation>
    </message>
    <message>
        <source>Serial port:</source>
        <translation>Port série&#xa0;:</translation>
    </message>
    <message>
        <source>Baudrate:</source>
        <translation>Débit (bauds)&#xa0;:</translation>
    </message>
    <message>
        <source>IP address of the player:</source>
        <translation>Adresse IP du lecteur&#xa0;:</translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Auto-connection</source>
        <translation>Connexion automatique</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Déconnecter</translation>
    </message>
    <message>
        <source>Connecting to the player... Please wait.</source>
        <translation>Connexion au lecteur... Veuillez patienter.</translation>
    </message>
    <message>
        <source>Player ID:</source>
        <translation>ID du lecteur&#xa0;:</translation>
    </message>
    <message>
        <source>Change ID:</source>
        <translation>Changer l’ID&#xa0;:</translation>
    </message>
    <message>
        <source>Folder N°:</source>
        <translation>Dossier n°&#xa0;:</translation>
    </message>
    <message>
        <source>Content playback:</source>
        <translation>Lecture de contenu&#xa0;:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Source&#xa0;:</translation>
    </message>
    <message>
        <source>Option:</source>
        <translation>Option&#xa0;:</translation>
    </message>
    <message>
        <source>Preset N°:</source>
        <translation>Présélection n°&#xa0;:</translation>
    </message>
    <message>
        <source>Playback command:</source>
        <translation>Commandes de lecture&#xa0;:</translation>
    </message>
    <message>
        <source>Other commands:</source>
        <translation>Autres commandes&#xa0;:</translation>
    </message>
    <message>
        <source>Volume:</source>
        <translation>Volume&#xa0;:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Request:</source>
        <translation>Requête&#xa0;:</translation>
    </message>
    <message>
        <source>Output contacts:</source>
        <translation>Contacts de sortie&#xa0;:</translation>
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
        <translation>Sous-titres</translation>
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
        <translation>Type&#xa0;:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Valeur&#xa0;:</translation>
    </message>
    <message>
        <source>Command bytes sent:</source>
        <translation>Octets envoyés&#xa0;:</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadécimal</translation>
    </message>
    <message>
        <source>Decimal</source>
        <translation>Décimal</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Data Received:</source>
        <translation>Données reçues&#xa0;:</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation>&amp;Langues</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>(par défaut)</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>&amp;Site web</translation>
    </message>
    <message>
        <source>&amp;Contact technical support</source>
        <translation>&amp;Contacter l’assistance technique</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos de</translation>
    </message>
    <message>
        <source>Support request (from:</source>
        <translation>Demande d’assistance (depuis&#xa0;:</translation>
    </message>
    <message>
        <source>( write here your question... )</source>
        <translation>( écrivez ici votre question... )</translation>
    </message>
    <message>
        <source>Serial port error</source>
        <translation>Erreur de port série</translation>
    </message>
    <message>
        <source>An error on the serial port has occurred!</source>
        <translation>Une erreur s’est produite sur le port série&#xa0;!</translation>
    </message>
    <message>
        <source>TCP/IP error</source>
        <translation>Erreur TCP/IP</translation>
    </message>
    <message>
        <source>An TCP/IP error has occurred!</source>
        <translation>Une erreur TCP/IP s’est produite&#xa0;!</translation>
    </message>
    <message>
        <source>No error.</source>
        <translation>Aucune erreur.</translation>
    </message>
    <message>
        <source>Device not found error.</source>
        <translation>Erreur&#xa0;: périphérique introuvable.</translation>
    </message>
    <message>
        <source>Permission error.</source>
        <translation>Erreur&#xa0;: accès refusé.</translation>
    </message>
    <message>
        <source>Open error.</source>
        <translation>Erreur d’ouverture.</translation>
    </message>
    <message>
        <source>Write error.</source>
        <translation>Erreur d’écriture.</translation>
    </message>
    <message>
        <source>Read error.</source>
        <translation>Erreur de lecture.</translation>
    </message>
    <message>
        <source>Resource error.</source>
        <translation>Erreur de ressource.</translation>
    </message>
    <message>
        <source>Unsupported operation error.</source>
        <translation>Erreur&#xa0;: opération non prise en charge.</translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Erreur inconnue.</translation>
    </message>
    <message>
        <source>Timeout error.</source>
        <translation>Erreur&#xa0;: délai d’attente dépassé.</translation>
    </message>
    <message>
        <source>Not open error.</source>
        <translation>Erreur&#xa0;: port non ouvert.</translation>
    </message>
    <message>
        <source>Unkown error.</source>
        <translation>Erreur non répertoriée.</translation>
    </message>
    <message>
        <source>Port number: </source>
        <translation>Numéro de port&#xa0;: </translation>
    </message>
    <message>
        <source>All commands present in this model can be executed for devices with firmware </source>
        <translation>Toutes les commandes présentes dans ce modèle peuvent être exécutées par les appareils équipés du firmware </translation>
    </message>
    <message>
        <source> or higher. If the device embed a lower firmware version, some commands may not be executed. Refer to the release notes of this application for more information.</source>
        <translation> ou d’une version ultérieure. Si l’appareil embarque une version de firmware inférieure, certaines commandes pourront ne pas être exécutées. Reportez-vous aux notes de version de cette application pour plus d’informations.</translation>
    </message>
</context>
<context>
    <name>aboutwindow</name>
    <message>
        <source>About</source>
        <translation>À propos de</translation>
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
        <translation>Système d’exploitation inconnu</translation>
    </message>
    <message>
        <source>Microsoft</source>
        <translation>Microsoft</translation>
    </message>
</context>
</TS>
