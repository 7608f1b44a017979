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
    <message>
        <source>Model of the player</source>
        <translation>Modèle du lecteur</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Serial port that the player is connected to</source>
        <translation>Port série auquel le lecteur est relié</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Port série</translation>
    </message>
    <message>
        <source>Speed of the serial port in bauds</source>
        <translation>Vitesse du port série en bauds</translation>
    </message>
    <message>
        <source>Baudrate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>IP address of the player</source>
        <translation>Adresse IP du lecteur</translation>
    </message>
    <message>
        <source>IP address, first number</source>
        <translation>Adresse IP, premier nombre</translation>
    </message>
    <message>
        <source>IP address, second number</source>
        <translation>Adresse IP, deuxième nombre</translation>
    </message>
    <message>
        <source>IP address, third number</source>
        <translation>Adresse IP, troisième nombre</translation>
    </message>
    <message>
        <source>IP address, fourth number</source>
        <translation>Adresse IP, quatrième nombre</translation>
    </message>
    <message>
        <source>Connect when the program starts</source>
        <translation>Se connecter au démarrage du programme</translation>
    </message>
    <message>
        <source>ID of the player that the commands are for</source>
        <translation>ID du lecteur à commander</translation>
    </message>
    <message>
        <source>Player ID</source>
        <translation>ID du lecteur</translation>
    </message>
    <message>
        <source>New ID of the player</source>
        <translation>Nouvel ID du lecteur</translation>
    </message>
    <message>
        <source>New player ID</source>
        <translation>Nouvel ID du lecteur</translation>
    </message>
    <message>
        <source>Change the ID of the player</source>
        <translation>Changer l’ID du lecteur</translation>
    </message>
    <message>
        <source>Change ID</source>
        <translation>Changer l’ID</translation>
    </message>
    <message>
        <source>Folder to play (Ctrl+0 to Ctrl+9: folders 000 to 009)</source>
        <translation>Dossier à lire (Ctrl+0 à Ctrl+9&#xa0;: dossiers 000 à 009)</translation>
    </message>
    <message>
        <source>Folder number</source>
        <translation>Numéro de dossier</translation>
    </message>
    <message>
        <source>Play the folder (Ctrl+0 to Ctrl+9: folders 000 to 009)</source>
        <translation>Lire le dossier (Ctrl+0 à Ctrl+9&#xa0;: dossiers 000 à 009)</translation>
    </message>
    <message>
        <source>Play the folder</source>
        <translation>Lire le dossier</translation>
    </message>
    <message>
        <source>Standby or wake up</source>
        <translation>Mettre en veille ou réveiller</translation>
    </message>
    <message>
        <source>Source of the content to play</source>
        <translation>Source du contenu à lire</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Number of the content to play</source>
        <translation>Numéro du contenu à lire</translation>
    </message>
    <message>
        <source>Option of the content to play</source>
        <translation>Option du contenu à lire</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Web radio preset to play</source>
        <translation>Présélection de webradio à lire</translation>
    </message>
    <message>
        <source>Preset number</source>
        <translation>Numéro de présélection</translation>
    </message>
    <message>
        <source>Play the content</source>
        <translation>Lire le contenu</translation>
    </message>
    <message>
        <source>Previous folder (Ctrl+Media Previous)</source>
        <translation>Dossier précédent (Ctrl+touche multimédia Précédent)</translation>
    </message>
    <message>
        <source>Previous folder</source>
        <translation>Dossier précédent</translation>
    </message>
    <message>
        <source>Previous file (Media Previous)</source>
        <translation>Fichier précédent (touche multimédia Précédent)</translation>
    </message>
    <message>
        <source>Previous file</source>
        <translation>Fichier précédent</translation>
    </message>
    <message>
        <source>Play (Media Play)</source>
        <translation>Lecture (touche multimédia Lecture)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Stop (Media Stop)</source>
        <translation>Arrêt (touche multimédia Arrêt)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Pause (Media Pause)</source>
        <translation>Pause (touche multimédia Pause)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Next file (Media Next)</source>
        <translation>Fichier suivant (touche multimédia Suivant)</translation>
    </message>
    <message>
        <source>Next file</source>
        <translation>Fichier suivant</translation>
    </message>
    <message>
        <source>Next folder (Ctrl+Media Next)</source>
        <translation>Dossier suivant (Ctrl+touche multimédia Suivant)</translation>
    </message>
    <message>
        <source>Next folder</source>
        <translation>Dossier suivant</translation>
    </message>
    <message>
        <source>Command to send</source>
        <translation>Commande à envoyer</translation>
    </message>
    <message>
        <source>Other commands</source>
        <translation>Autres commandes</translation>
    </message>
    <message>
        <source>Send the command</source>
        <translation>Envoyer la commande</translation>
    </message>
    <message>
        <source>Volume to minimum</source>
        <translation>Volume au minimum</translation>
    </message>
    <message>
        <source>Volume (Ctrl++ louder, Ctrl+- softer)</source>
        <translation>Volume (Ctrl++ plus fort, Ctrl+- moins fort)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Volume to maximum</source>
        <translation>Volume au maximum</translation>
    </message>
    <message>
        <source>Last volume sent</source>
        <translation>Dernier volume envoyé</translation>
    </message>
    <message>
        <source>Mute or unmute (Volume Mute)</source>
        <translation>Couper ou rétablir le son (touche Muet)</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Couper ou rétablir le son</translation>
    </message>
    <message>
        <source>Request to send</source>
        <translation>Requête à envoyer</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>Requête</translation>
    </message>
    <message>
        <source>Send the request</source>
        <translation>Envoyer la requête</translation>
    </message>
    <message>
        <source>Output contact 1</source>
        <translation>Contact de sortie 1</translation>
    </message>
    <message>
        <source>Output contact 2</source>
        <translation>Contact de sortie 2</translation>
    </message>
    <message>
        <source>Output contact 3</source>
        <translation>Contact de sortie 3</translation>
    </message>
    <message>
        <source>Output contact 4</source>
        <translation>Contact de sortie 4</translation>
    </message>
    <message>
        <source>Output contact 5</source>
        <translation>Contact de sortie 5</translation>
    </message>
    <message>
        <source>Output contact 6</source>
        <translation>Contact de sortie 6</translation>
    </message>
    <message>
        <source>Output contact 7</source>
        <translation>Contact de sortie 7</translation>
    </message>
    <message>
        <source>Output contact 8</source>
        <translation>Contact de sortie 8</translation>
    </message>
    <message>
        <source>Set the output contacts</source>
        <translation>Commander les contacts de sortie</translation>
    </message>
    <message>
        <source>Subtitles on</source>
        <translation>Activer les sous-titres</translation>
    </message>
    <message>
        <source>Subtitles off</source>
        <translation>Désactiver les sous-titres</translation>
    </message>
    <message>
        <source>Previous subtitles</source>
        <translation>Sous-titres précédents</translation>
    </message>
    <message>
        <source>Next subtitles</source>
        <translation>Sous-titres suivants</translation>
    </message>
    <message>
        <source>Previous subtitles, in a loop</source>
        <translation>Sous-titres précédents, en boucle</translation>
    </message>
    <message>
        <source>Next subtitles, in a loop</source>
        <translation>Sous-titres suivants, en boucle</translation>
    </message>
    <message>
        <source>What the subtitles are selected by</source>
        <translation>Critère de choix des sous-titres</translation>
    </message>
    <message>
        <source>Type of the subtitle selection</source>
        <translation>Critère de choix des sous-titres</translation>
    </message>
    <message>
        <source>Subtitles to select</source>
        <translation>Sous-titres à choisir</translation>
    </message>
    <message>
        <source>Select the subtitles</source>
        <translation>Choisir les sous-titres</translation>
    </message>
    <message>
        <source>Sent bytes as hexadecimal numbers</source>
        <translation>Octets envoyés en hexadécimal</translation>
    </message>
    <message>
        <source>Sent bytes as decimal numbers</source>
        <translation>Octets envoyés en décimal</translation>
    </message>
    <message>
        <source>Bytes of the last command sent</source>
        <translation>Octets de la dernière commande envoyée</translation>
    </message>
    <message>
        <source>What the player has sent</source>
        <translation>Ce que le lecteur a envoyé</translation>
    </message>
    <message>
        <source>Data received</source>
        <translation>Données reçues</translation>
    </message>
    <message>
        <source>Clear the received data</source>
        <translation>Effacer les données reçues</translation>
    </message>
    <message>
        <source>Received data as text</source>
        <translation>Données reçues en texte</translation>
    </message>
    <message>
        <source>Received data as hexadecimal numbers</source>
        <translation>Données reçues en hexadécimal</translation>
    </message>
    <message>
        <source>Received data as decimal numbers</source>
        <translation>Données reçues en décimal</translation>
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
