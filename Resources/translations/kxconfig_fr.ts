<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>KXConfig</name>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Network &amp;interface:</source>
        <translation>&amp;Interface réseau :</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>No interface is chosen</source>
        <translation>Aucune interface choisie</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>UDP &amp;port:</source>
        <translation>&amp;Port UDP :</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Discover</source>
        <translation>Détecter</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Details…</source>
        <translation>Détails…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Shows every check on the way to the units and back</source>
        <translation>Montre chaque contrôle sur le chemin des unités et retour</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>U&amp;nit:</source>
        <translation>U&amp;nité :</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>No units listed</source>
        <translation>Aucune unité dans la liste</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Unit I&amp;D:</source>
        <translation>Identifian&amp;t :</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Reload</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/SentenceLabel.cpp"/>
        <source>Unit parameters</source>
        <translation>Paramètres de l’unité</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>No unit is selected</source>
        <translation>Aucune unité sélectionnée</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Edit parameter</source>
        <translation>Modifier le paramètre</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Select a parameter to edit it</source>
        <translation>Sélectionnez un paramètre pour le modifier</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Option command:</source>
        <translation>C&amp;ommande d’option :</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>V  Version</source>
        <translation>V  Version</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>-Z  Set clock</source>
        <translation>-Z  Régler l’horloge</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Command text:</source>
        <translation>Te&amp;xte de commande :</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Restore Defaults</source>
        <translation>Rétablir les réglages d’usine</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Event Log</source>
        <translation>Journal des événements</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Event log text</source>
        <translation>Texte du journal des événements</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Unit</source>
        <translation>&amp;Unité</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Configure from File…</source>
        <translation>&amp;Configurer depuis un fichier…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Save Event &amp;Log…</source>
        <translation>Enregistrer le &amp;journal…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Save Session…</source>
        <translation>Enregistrer la &amp;session…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Pa&amp;ste</source>
        <translation>Co&amp;ller</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Copy &amp;Value</source>
        <translation>Copier la &amp;valeur</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Copy All Pa&amp;rameters</source>
        <translation>Copier tous les para&amp;mètres</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <location filename="../../Sources/platform/qt/LogTextView_Input.cpp"/>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/LogTextView_Input.cpp"/>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Find in Event Log…</source>
        <translation>&amp;Rechercher dans le journal…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Find &amp;Next</source>
        <translation>Rechercher le &amp;suivant</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Find &amp;Previous</source>
        <translation>Rechercher le &amp;précédent</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Discover</source>
        <translation>&amp;Détecter</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Reload</source>
        <translation>&amp;Recharger</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Send Option Command</source>
        <translation>&amp;Envoyer la commande d’option</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Restore De&amp;faults</source>
        <translation>Rétablir les réglages d’&amp;usine</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Event Log</source>
        <translation>&amp;Journal des événements</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>All &amp;Units</source>
        <translation>Toutes les &amp;unités</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;About KXConfig</source>
        <translation>À &amp;propos de KXConfig</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate.cpp"/>
        <source>No configured interfaces</source>
        <translation>Aucune interface configurée</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate.cpp"/>
        <source>The pages of the help are not installed.</source>
        <translation>Les pages de l’aide ne sont pas installées.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate.cpp"/>
        <source>Help could not be opened in a web browser. To read it here, press Alt+Shift+F1.</source>
        <translation>L’aide n’a pas pu être ouverte dans un navigateur web. Pour la lire ici, appuyez sur Alt+Maj+F1.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_DiscoveryLine.cpp"/>
        <source>Did not answer the latest Discover.</source>
        <translation>N’a pas répondu à la dernière détection.</translation>
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
        <translation>L’authentification n’a pas abouti, certaines fonctions peuvent ne pas être disponibles.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_Editing.cpp"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>The session was saved: 1 datagram.</source>
        <translation>La session est enregistrée : 1 datagramme.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>The session was saved: %d datagrams.</source>
        <translation>La session est enregistrée : %d datagrammes.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Save Event Log</source>
        <translation>Enregistrer le journal des événements</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>The event log was saved.</source>
        <translation>Le journal des événements est enregistré.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Save Session</source>
        <translation>Enregistrer la session</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Captures</source>
        <translation>Captures</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>“%@” cannot be written: %@. Nothing is lost: save it in another place.</source>
        <translation>Impossible d’écrire dans « %@ » : %@. Rien n’est perdu : enregistrez à un autre endroit.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Other values that no command brings back: %d.</source>
        <translation>Autres valeurs qu’aucune commande ne rétablit : %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Choose a Table of Units</source>
        <translation>Choisir un tableau d’unités</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Tables and plans</source>
        <translation>Tableaux et plans</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Choose a Journal</source>
        <translation>Choisir un journal</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Journals</source>
        <translation>Journaux</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>No network interface can broadcast. It needs a link and an IPv4 address.</source>
        <translation>Aucune interface réseau ne peut diffuser. Il lui faut une liaison et une adresse IPv4.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Choose the network interface on which the units are asked.</source>
        <translation>Choisissez l’interface réseau sur laquelle les unités sont interrogées.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>All of the UDP ports 3520 to 3523 are taken by other programs.</source>
        <translation>Tous les ports UDP de 3520 à 3523 sont occupés par d’autres programmes.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>The UDP port cannot be opened: %@.</source>
        <translation>Le port UDP ne peut pas être ouvert : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Stopped.</source>
        <translation>Arrêté.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Nothing was sent.</source>
        <translation>Rien n’a été envoyé.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>The units are not as they were: this is the new plan. Nothing was sent.</source>
        <translation>Les unités ne sont plus comme avant : voici le nouveau plan. Rien n’a été envoyé.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>The journal cannot be written: %@. Nothing was sent.</source>
        <translation>Impossible d’écrire le journal : %@. Rien n’a été envoyé.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>The journal could not be written: %@.</source>
        <translation>Le journal n’a pas pu être écrit : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Look at the units that are half configured or have fallen silent.</source>
        <translation>Allez voir les unités à moitié configurées ou devenues muettes.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Save Report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Comma-separated values</source>
        <translation>Valeurs séparées par des virgules</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <location filename="../../Sources/commands/CommandOutput.cpp"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>“%@” cannot be written: %@.</source>
        <translation>Impossible d’écrire dans « %@ » : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>The file has a fault. Correct it, and choose the file again.</source>
        <translation>Le fichier a une erreur. Corrigez-la et choisissez de nouveau le fichier.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>The file has %d faults. Correct them, and choose the file again.</source>
        <translation>Le fichier a %d erreurs. Corrigez-les et choisissez de nouveau le fichier.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Stopping. The units under way are finished and read back.</source>
        <translation>Arrêt en cours. Les unités commencées sont terminées et relues.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Asking the units again.</source>
        <translation>Les unités sont interrogées de nouveau.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Finding out who holds the new addresses.</source>
        <translation>Recherche de qui occupe les nouvelles adresses.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Configuring the units.</source>
        <translation>Les unités sont configurées.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Stopping.</source>
        <translation>Arrêt en cours.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Asking the units. %d have answered.</source>
        <translation>Les unités sont interrogées. Réponses : %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <location filename="../../Sources/commands/JournalFiles.cpp"/>
        <source>The journal is “%@”.</source>
        <translation>Le journal est « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Apply keeps a journal in the folder “%@”.</source>
        <translation>« Appliquer » tient un journal dans le dossier « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Apply sends nothing: lines of the table are wrong, whatever the units answer.</source>
        <translation>« Appliquer » n’envoie rien : des lignes du tableau sont fausses, quoi que répondent les unités.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Apply sends nothing while lines are refused or without an answer, unless “Keep going” is ticked.</source>
        <translation>« Appliquer » n’envoie rien tant que des lignes sont refusées ou sans réponse, sauf si « Continuer » est coché.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <location filename="../../Sources/commands/PlanReport.cpp"/>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d, %@: %@</source>
        <translation>Ligne %d, %@ : %@</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>%d of %d units</source>
        <translation>%d unités sur %d</translation>
    </message>
    <message>
        <location filename="../../Sources/System Configuration/ConfigurationKeys.h"/>
        <source>not available</source>
        <translation>non disponible</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddress.cpp"/>
        <source>HardwareAddressFormatter: inString is nil</source>
        <translation>HardwareAddressFormatter : inString est nil</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddress.cpp"/>
        <source>HardwareAddressFormatter: object could not be allocated</source>
        <translation>HardwareAddressFormatter : l’objet n’a pas pu être alloué</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddress.cpp"/>
        <location filename="../../Sources/addresses/HardwareAddressText.cpp"/>
        <source>HardwareAddressFormatter: invalid Ethernet address</source>
        <translation>HardwareAddressFormatter : adresse Ethernet non valide</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddressText.cpp"/>
        <source>HardwareAddress: invalid Ethernet address</source>
        <translation>HardwareAddress : adresse Ethernet non valide</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CheckCommand.cpp"/>
        <source>“%@” is no IPv4 address, such as 192.0.2.41.</source>
        <translation>« %@ » n’est pas une adresse IPv4 telle que 192.0.2.41.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CheckCommand.cpp"/>
        <source>Somebody holds %@.</source>
        <translation>%@ est occupée.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CheckCommand.cpp"/>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Whether somebody holds %@ could not be found out.</source>
        <translation>Impossible de savoir si %@ est occupée.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>An option lacks its value, or a flag has one. See kxctl --help.</source>
        <translation>Il manque la valeur d’une option, ou un drapeau en a une. Voir kxctl --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>The command line cannot be read: %@.</source>
        <translation>La ligne de commande est illisible : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>These are six words. Write the serial number without blanks, 4B5800000001, or in quotation marks.</source>
        <translation>Ce sont six mots. Écrivez le numéro de série sans espaces, 4B5800000001, ou entre guillemets.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>kxctl %@ needs more words: %@.</source>
        <translation>kxctl %@ demande plus de mots : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>kxctl %@ does not take the word “%@”.</source>
        <translation>kxctl %@ ne prend pas le mot « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>--json and --csv cannot stand together.</source>
        <translation>--json et --csv ne vont pas ensemble.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>--port takes auto, 3520, 3521, 3522 or 3523, not “%@”.</source>
        <translation>--port prend auto, 3520, 3521, 3522 ou 3523, pas « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>There is no command “%@”. Did you mean “%@”?</source>
        <translation>Il n’y a pas de commande « %@ ». Vouliez-vous dire « %@ » ?</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>There is no command “%@”. See kxctl --help.</source>
        <translation>Il n’y a pas de commande « %@ ». Voir kxctl --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>There is no option “%@” here. See kxctl --help.</source>
        <translation>Il n’y a pas d’option « %@ » ici. Voir kxctl --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>A command is missing. See kxctl --help.</source>
        <translation>Il manque une commande. Voir kxctl --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>%@ takes a whole number from 1 on, not “%@”.</source>
        <translation>%@ prend un nombre entier à partir de 1, pas « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>%@ takes seconds, such as 2 or 0.5, not “%@”.</source>
        <translation>%@ prend des secondes, comme 2 ou 0.5, pas « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandOutput.cpp"/>
        <source>Standard output cannot be written: %@.</source>
        <translation>Impossible d’écrire sur la sortie standard : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandOutput.cpp"/>
        <source>The capture is not whole, because it could not be written.</source>
        <translation>La capture n’est pas complète, car elle n’a pas pu être écrite.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>Several network interfaces can broadcast. Choose one with -i: %@.</source>
        <translation>Plusieurs interfaces réseau peuvent diffuser. Choisissez-en une avec -i : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/commands/DiagnoseCommand.cpp"/>
        <source>%@ cannot broadcast. It needs a link and an IPv4 address.</source>
        <translation>%@ ne peut pas diffuser. Il faut une liaison et une adresse IPv4.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>There is no network interface “%@”. There are: %@.</source>
        <translation>Il n’y a pas d’interface réseau « %@ ». Il y a : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>“%@” may mean: %@.</source>
        <translation>« %@ » peut désigner : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>UDP port %d is taken by another program.</source>
        <translation>Le port UDP %d est occupé par un autre programme.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is this host&apos;s own address.</source>
        <translation>%@ est l’adresse de cet hôte lui-même.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is the address of a whole network.</source>
        <translation>%@ est l’adresse d’un réseau entier.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ lies in no network of the interface.</source>
        <translation>%@ ne se trouve dans aucun réseau de l’interface.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Interrupted.</source>
        <translation>Interrompu.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ does not answer.</source>
        <translation>L’unité %@ ne répond pas.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Several units answer as %@: %@.</source>
        <translation>Plusieurs unités répondent en tant que %@ : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <source>Another unit has the address of the unit %@.</source>
        <translation>Une autre unité a l’adresse de l’unité %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <source>“%@” names no unit. Write a serial number of six pairs of digits, such as 4B5800000001, or id:TEXT.</source>
        <translation>« %@ » ne désigne aucune unité. Écrivez un numéro de série de six paires de chiffres, comme 4B5800000001, ou id:TEXT.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>No unit has answered.</source>
        <translation>Aucune unité n’a répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <source>Another unit has the serial number %@: %@.</source>
        <translation>Une autre unité a le numéro de série %@ : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ tells an address of many as its own: %@.</source>
        <translation>L’unité %@ donne comme sienne une adresse collective : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CompareCommand.cpp"/>
        <source>Nothing differs from “%@”: %d the same.</source>
        <translation>Aucune différence avec « %@ » : %d identiques.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiagnoseCommand.cpp"/>
        <source>“%@” names no unit and is no IPv4 address. Write a serial number such as 4B5800000001, id:TEXT, or 192.0.2.41.</source>
        <translation>« %@ » ne désigne aucune unité et n’est pas une adresse IPv4. Écrivez un numéro de série comme 4B5800000001, id:TEXT ou 192.0.2.41.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>%d requests in that time follow each other too closely. They need 0.01 seconds each.</source>
        <translation>%d requêtes se suivent de trop près pendant ce temps. Il faut 0,01 seconde pour chacune.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Several units have the address %@: %@.</source>
        <translation>Plusieurs unités ont l’adresse %@ : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>Several units have the serial number %@: %@.</source>
        <translation>Plusieurs unités ont le numéro de série %@ : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The system had no room for %d datagrams. Units may be missing.</source>
        <translation>Le système n’avait pas de place pour %d datagrammes. Des unités peuvent manquer.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>“%@” stays as it is, because no unit has answered.</source>
        <translation>« %@ » reste tel quel, car aucune unité n’a répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>%d of %d units have answered.</source>
        <translation>%d unités sur %d ont répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/InterfacesCommand.cpp"/>
        <source>The system tells no network interfaces.</source>
        <translation>Le système n’indique aucune interface réseau.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/JournalFiles.cpp"/>
        <source>“%@” is the journal of a run that has ended. Name another file.</source>
        <translation>« %@ » est le journal d’une exécution terminée. Indiquez un autre fichier.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>Write a text or --clock, not both.</source>
        <translation>Écrivez un texte ou --clock, pas les deux.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>Write the text of the option command, or --clock.</source>
        <translation>Écrivez le texte de la commande d’option, ou --clock.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>“%@” has other characters than ASCII.</source>
        <translation>« %@ » contient d’autres caractères que l’ASCII.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>The unit %@ has not answered the option command.</source>
        <translation>L’unité %@ n’a pas répondu à la commande d’option.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/PlanReport.cpp"/>
        <source>Other lines that are not done: %d.</source>
        <translation>Autres lignes non réalisées : %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Name a unit. --everyone restores all that hear the command.</source>
        <translation>Nommez une unité. --everyone restaure toutes celles qui entendent la commande.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Name a unit, or write --everyone, not both.</source>
        <translation>Nommez une unité ou écrivez --everyone, pas les deux.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>Nobody can be asked here. Write --yes if this is meant.</source>
        <translation>Personne ne peut être interrogé ici. Écrivez --yes si c’est bien ce qui est voulu.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Nothing was restored.</source>
        <translation>Rien n’a été restauré.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Restore the factory settings of the unit %@? (y/n)</source>
        <translation>Restaurer les réglages d’usine de l’unité %@ ? (y/n)</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>%d units answer. Others that hear the command are restored too.</source>
        <translation>%d unités répondent. D’autres qui entendent la commande seront restaurées aussi.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Type the number of units to restore the factory settings of all:</source>
        <translation>Tapez le nombre d’unités pour restaurer les réglages d’usine de toutes :</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ has not answered since the command.</source>
        <translation>L’unité %@ n’a pas répondu depuis la commande.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>The unit %@ shows the old values and has not acknowledged the command.</source>
        <translation>L’unité %@ affiche les anciennes valeurs et n’a pas confirmé la commande.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RowsFile.cpp"/>
        <source>“%@” is refused. %@</source>
        <translation>« %@ » est refusé. %@</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RowsFile.cpp"/>
        <source>“%@” is refused. It has %d faults, the first one: %@</source>
        <translation>« %@ » est refusé. Il contient %d erreurs, la première : %@</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <location filename="../../Sources/words/DocumentFaultText.cpp"/>
        <source>“%@” is damaged.</source>
        <translation>« %@ » est endommagé.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>“%@” is no saved discovery. “kxctl discover --save FILE” writes one.</source>
        <translation>« %@ » n’est pas une détection enregistrée. « kxctl discover --save FILE » en écrit une.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <location filename="../../Sources/words/DocumentFaultText.cpp"/>
        <source>“%@” has the format of another version of kxctl.</source>
        <translation>« %@ » a le format d’une autre version de kxctl.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>“%@” tells of a discovery that could not ask anybody.</source>
        <translation>« %@ » contient une détection qui n’a pu interroger personne.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <location filename="../../Sources/words/TableFileText.cpp"/>
        <source>“%@” cannot be read: %@.</source>
        <translation>Impossible de lire « %@ » : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units of “%@” that have not answered: %d. They are not called missing, because datagrams were dropped.</source>
        <translation>Unités de « %@ » qui n’ont pas répondu : %d. Elles ne sont pas dites manquantes, car des datagrammes ont été rejetés.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units of “%@” that have not answered: %d. They are not called missing, because the discovery was not complete.</source>
        <translation>Unités de « %@ » qui n’ont pas répondu : %d. Elles ne sont pas dites manquantes, car la détection n’était pas complète.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units of “%@” that have not answered: %d. They are not called missing, because they could not be asked at their last addresses.</source>
        <translation>Unités de « %@ » qui n’ont pas répondu : %d. Elles ne sont pas dites manquantes, car elles n’ont pas pu être interrogées à leur dernière adresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units that are not in “%@”: %d. They are not called missing, because that discovery was not complete.</source>
        <translation>Unités absentes de « %@ » : %d. Elles ne sont pas dites manquantes, car cette détection n’était pas complète.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>The discovery in “%@” was not complete, so a unit that is called new may have been there.</source>
        <translation>La détection de « %@ » n’était pas complète ; une unité dite nouvelle était peut-être déjà là.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>The units differ from “%@”: %d new, %d missing, %d changed, %d the same.</source>
        <translation>Les unités diffèrent de « %@ » : %d nouvelles, %d manquantes, %d modifiées, %d identiques.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>No unit can have it: it reaches many hosts.</source>
        <translation>Aucune unité ne peut l’avoir : elle atteint plusieurs hôtes.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>%@ is refused without --loose. The window says of its value: %@</source>
        <translation>%@ est refusé sans --loose. La fenêtre dit de sa valeur : %@</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>“%@” is not NAME=VALUE with the name of a parameter. See kxctl set --help.</source>
        <translation>« %@ » n’est pas NOM=VALEUR avec le nom d’un paramètre. Voir kxctl set --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>%@ has no value.</source>
        <translation>%@ n’a pas de valeur.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>The value of %@ is not a text in UTF-8.</source>
        <translation>La valeur de %@ n’est pas un texte en UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>The value of %@ does not fit into a command.</source>
        <translation>La valeur de %@ ne tient pas dans une commande.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>%@ is there twice.</source>
        <translation>%@ est là deux fois.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>kxctl needs no question when root runs it.</source>
        <translation>Lancé par root, kxctl n’a pas de question à poser.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ shows %@, but %@ answers ARP requests for it.</source>
        <translation>L’unité %@ affiche %@, mais c’est %@ qui répond aux requêtes ARP pour cette adresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>Whether the unit itself answers ARP requests for %@ could not be found out.</source>
        <translation>Impossible d’établir si l’unité répond elle-même aux requêtes ARP pour %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit shows %@ but does not answer ARP requests for it.</source>
        <translation>L’unité affiche %@ mais ne répond pas aux requêtes ARP pour cette adresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is held by %@.</source>
        <translation>%@ est à %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ has taken some of the values and not others.</source>
        <translation>L’unité %@ a pris certaines des valeurs et pas d’autres.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ shows the old value.</source>
        <translation>L’unité %@ affiche l’ancienne valeur.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>The unit %@ shows another value.</source>
        <translation>L’unité %@ affiche une autre valeur.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Another unit answers with the same serial number.</source>
        <translation>Une autre unité répond avec le même numéro de série.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/ShowCommand.cpp"/>
        <source>Name units, or write --all.</source>
        <translation>Nommez des unités ou écrivez --all.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/ShowCommand.cpp"/>
        <source>Name units, or write --all, not both.</source>
        <translation>Nommez des unités ou écrivez --all, pas les deux.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>%@ takes a number up to %d.</source>
        <translation>%@ prend un nombre jusqu’à %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>Change %d units, %d parameters in all? (y/n)</source>
        <translation>Modifier %d unités, %d paramètres en tout ? (y/n)</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>Nothing was changed.</source>
        <translation>Rien n’a été modifié.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/WatchCommand.cpp"/>
        <source>--every takes 0.1 seconds or more: every unit answers each time.</source>
        <translation>--every prend 0.1 seconde au moins : chaque unité répond à chaque fois.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/WatchCommand.cpp"/>
        <source>%d of %d units are there.</source>
        <translation>%d unités sur %d sont là.</translation>
    </message>
    <message>
        <location filename="../../Sources/kxconfig.cpp"/>
        <source>A check of Details, not in the event log</source>
        <translation>Une vérification de Détails, absente du journal des événements</translation>
    </message>
    <message>
        <location filename="../../Sources/kxconfig.cpp"/>
        <source>Configure from File, not in the event log</source>
        <translation>Configurer depuis un fichier, absent du journal des événements</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ARPTool.cpp"/>
        <source>The ARP tool gets no text that begins with “-”.</source>
        <translation>L’outil ARP ne reçoit aucun texte qui commence par « - ».</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Ethernet</source>
        <translation>Ethernet</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Bridge</source>
        <translation>Pont</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>VLAN</source>
        <translation>VLAN</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Bond</source>
        <translation>Agrégation</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>PPP</source>
        <translation>PPP</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/LinuxAuthorizationReference.cpp"/>
        <location filename="../../Sources/platform/linux/PolkitCheck.cpp"/>
        <source>Waiting for administrator rights.</source>
        <translation>En attente des droits d’administrateur.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/LinuxAuthorizationReference.cpp"/>
        <source>Waiting for the tool that has administrator rights.</source>
        <translation>En attente de l’outil qui a les droits d’administrateur.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>About KXConfig</source>
        <translation>À propos de KXConfig</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>KXConfig %@</source>
        <translation>KXConfig %@</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>Finds and configures small networked units over UDP.</source>
        <translation>Trouve et configure de petites unités en réseau par UDP.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>Qt %@</source>
        <translation>Qt %@</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Sort &amp;Ascending</source>
        <translation>Tri cr&amp;oissant</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Sort &amp;Descending</source>
        <translation>Tri &amp;décroissant</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Move Column &amp;Left</source>
        <translation>Colonne vers la &amp;gauche</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Move Column &amp;Right</source>
        <translation>Colonne vers la d&amp;roite</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>All Units</source>
        <translation>Toutes les unités</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Filter:</source>
        <translation>&amp;Filtre :</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Any part of a shown value</source>
        <translation>Une partie quelconque d’une valeur affichée</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Export…</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Show in Main Window</source>
        <translation>&amp;Afficher dans la fenêtre principale</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>No unit has answered yet. Press Discover in the main window.</source>
        <translation>Aucune unité n’a encore répondu. Appuyez sur « Détecter » dans la fenêtre principale.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>No unit contains the text of the filter.</source>
        <translation>Aucune unité ne contient le texte du filtre.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>1 unit, %d shown</source>
        <translation>1 unité, %d affichée</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>%d units, %d shown</source>
        <translation>%d unités, %d affichées</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>1 unit</source>
        <translation>1 unité</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>%d units</source>
        <translation>%d unités</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>More have answered; those that were heard last are listed.</source>
        <translation>D’autres ont répondu ; celles entendues en dernier figurent dans la liste.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Comma-separated values (*.csv)</source>
        <translation>Valeurs séparées par des virgules (*.csv)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Export Units</source>
        <translation>Exporter les unités</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>1 unit is written to “%@”.</source>
        <translation>1 unité est écrite dans « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>%d units are written to “%@”.</source>
        <translation>%d unités sont écrites dans « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AnnouncedLabel.cpp"/>
        <source>Attention:</source>
        <translation>Attention :</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Ask Again</source>
        <translation>Redemander</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Why no unit answers</source>
        <translation>Pourquoi aucune unité ne répond</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Checks</source>
        <translation>Contrôles</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Check</source>
        <translation>Contrôle</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>What was seen</source>
        <translation>Ce qui a été vu</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>What to do</source>
        <translation>Que faire</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Asking. This takes a second, or three where nobody answers for an address.</source>
        <translation>Demande en cours. Cela prend une seconde, ou trois si personne ne répond pour une adresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Units answer, and no check fails.</source>
        <translation>Des unités répondent, et aucun contrôle n’échoue.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>No cause was found.</source>
        <translation>Aucune cause n’a été trouvée.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>Find:</source>
        <translation>Rechercher :</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>Find Previous</source>
        <translation>Rechercher le précédent</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>Find Next</source>
        <translation>Rechercher le suivant</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>From the beginning</source>
        <translation>Depuis le début</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>From the end</source>
        <translation>Depuis la fin</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>%d matches or more</source>
        <translation>%d résultats ou plus</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>1 match</source>
        <translation>1 résultat</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>%d matches</source>
        <translation>%d résultats</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Keep going past lines that are refused or that fail</source>
        <translation>&amp;Continuer malgré les lignes refusées ou en échec</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Configure from File</source>
        <translation>Configurer depuis un fichier</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Choose &amp;File…</source>
        <translation>Choisir un &amp;fichier…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Choose &amp;Journal…</source>
        <translation>Choisir un &amp;journal…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Makes the plan that takes the run of a journal back.</source>
        <translation>Fait le plan qui annule ce qu’un journal a noté.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>None chosen</source>
        <translation>Aucune choisie</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Re&amp;vert</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Makes the plan that takes this run back. Apply then carries it out.</source>
        <translation>Fait le plan qui annule cette exécution. « Appliquer » l’exécute ensuite.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Save &amp;Report…</source>
        <translation>Enregistrer le ra&amp;pport…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Reads a table of units or a kept plan, and asks the units.</source>
        <translation>Lit un tableau d’unités ou un plan enregistré, et interroge les unités.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Asks the units again, and makes the plan anew.</source>
        <translation>Interroge de nouveau les unités, et refait le plan.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Makes the units show what the plan wants.</source>
        <translation>Donne aux unités les valeurs que le plan demande.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Finishes the units under way, and begins no other.</source>
        <translation>Termine les unités commencées, et n’en commence aucune autre.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Writes the table with what became of each line.</source>
        <translation>Écrit le tableau avec ce qu’il est advenu de chaque ligne.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Opens the help.</source>
        <translation>Ouvre l’aide.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Closes the window.</source>
        <translation>Ferme la fenêtre.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Choose a table of units: comma-separated values with a column “serial” and one for each parameter that is to change.</source>
        <translation>Choisissez un tableau d’unités : des valeurs séparées par des virgules avec une colonne « serial » et une pour chaque paramètre à changer.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>The units of the file were not asked.</source>
        <translation>Les unités du fichier n’ont pas été interrogées.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Asking the units.</source>
        <translation>Les unités sont interrogées.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>The file names no unit.</source>
        <translation>Le fichier ne nomme aucune unité.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Units are being configured. Stop?</source>
        <translation>Des unités sont en cours de configuration. Arrêter ?</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>The units under way are finished and read back. The others stay as they are.</source>
        <translation>Les unités commencées sont terminées et relues. Les autres restent telles quelles.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Go On</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Help text</source>
        <translation>Texte de l’aide</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Find in this page</source>
        <translation>Rechercher dans la page</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow.cpp"/>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow.cpp"/>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Finds the units on the chosen interface.</source>
        <translation>Trouve les unités sur l’interface choisie.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Sends the value in the edit row to the unit.</source>
        <translation>Envoie à l’unité la valeur de la ligne d’édition.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Sends the command text to the unit.</source>
        <translation>Envoie à l’unité le texte de la commande.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Shows or hides the event log.</source>
        <translation>Affiche ou masque le journal des événements.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Return ends the typing. To apply it, press %@.</source>
        <translation>La touche Entrée termine la saisie. Pour appliquer, appuyez sur %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/QtHelpServices.cpp"/>
        <source>KXConfig Help</source>
        <translation>Aide de KXConfig</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/QtOpenPanel.cpp"/>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/WaitingPanel.cpp"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location filename="../../Sources/support/Error.cpp"/>
        <source>The host has no IPv4 address that can be reached.</source>
        <translation>L’hôte n’a aucune adresse IPv4 joignable.</translation>
    </message>
    <message>
        <location filename="../../Sources/support/Error.cpp"/>
        <source>The host name could not be resolved.</source>
        <translation>Le nom d’hôte n’a pas pu être résolu.</translation>
    </message>
    <message>
        <location filename="../../Sources/support/Error.cpp"/>
        <source>The operation could not be completed (%@ error %d).</source>
        <translation>L’opération n’a pas pu être terminée (%@, erreur %d).</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>work</source>
        <translation>bureau</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>home</source>
        <translation>domicile</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>iPhone</source>
        <translation>iPhone</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>mobile</source>
        <translation>mobile</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>main</source>
        <translation>principal</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>home fax</source>
        <translation>domicile (fax)</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>work fax</source>
        <translation>bureau (fax)</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>pager</source>
        <translation>bipeur</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>other</source>
        <translation>autre</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>vacation</source>
        <translation>vacances</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination IP address</source>
        <translation>Adresse IP de destination</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination IP address %@</source>
        <translation>adresse IP de destination %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination MAC address</source>
        <translation>Adresse MAC de destination</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination MAC address %@</source>
        <translation>adresse MAC de destination %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination Port number</source>
        <translation>Port de destination</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination port %@</source>
        <translation>port de destination %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>device Port number</source>
        <translation>Port de l’unité</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>device port %@</source>
        <translation>port de l’unité %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal IP address</source>
        <translation>Adresse IP interne</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal IP address %@</source>
        <translation>adresse IP interne %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal MAC address</source>
        <translation>Adresse MAC interne</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal MAC address %@</source>
        <translation>adresse MAC interne %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>serial number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>serial number %@</source>
        <translation>numéro de série %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>unit ID</source>
        <translation>Identifiant d’unité</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>unit ID %@</source>
        <translation>identifiant d’unité %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The interface %@ carries datagrams.</source>
        <translation>L’interface %@ transporte des datagrammes.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The interface %@ cannot broadcast.</source>
        <translation>L’interface %@ ne peut pas diffuser.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>There is none.</source>
        <translation>Il n’y en a pas.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers are expected on UDP port %d.</source>
        <translation>Les réponses sont attendues sur le port UDP %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>The UDP listener is not running.</source>
        <translation>L’écoute UDP n’est pas active.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The request left.</source>
        <translation>La demande est partie.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The routes lead to the units by this interface.</source>
        <translation>Les routes mènent aux unités par cette interface.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The routes to a part of the network lead elsewhere.</source>
        <translation>Les routes vers une partie du réseau mènent ailleurs.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The computer hears its own broadcast on UDP port %d.</source>
        <translation>L’ordinateur entend sa propre diffusion sur le port UDP %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The computer does not hear its own broadcast on UDP port %d. Datagrams that were taken away meanwhile: %d.</source>
        <translation>L’ordinateur n’entend pas sa propre diffusion sur le port UDP %d. Datagrammes retirés entre-temps : %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The filter is off.</source>
        <translation>Le filtre est désactivé.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The filter is on. Datagrams that it took away meanwhile: %d.</source>
        <translation>Le filtre est activé. Datagrammes qu’il a retirés entre-temps : %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units that answered: %d.</source>
        <translation>Unités qui ont répondu : %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units that answer now: %d.</source>
        <translation>Unités qui répondent maintenant : %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers that are not understood: %d. Other datagrams: %d.</source>
        <translation>Réponses non comprises : %d. Autres datagrammes : %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>%@ answers.</source>
        <translation>%@ répond.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>%@ does not answer.</source>
        <translation>%@ ne répond pas.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Link</source>
        <translation>Liaison</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>IPv4 address</source>
        <translation>Adresse IPv4</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>UDP port</source>
        <translation>Port UDP</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Request</source>
        <translation>Demande</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Routes</source>
        <translation>Routes</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Own broadcast</source>
        <translation>Diffusion propre</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers</source>
        <translation>Réponses</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Strange answers</source>
        <translation>Réponses étranges</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Dropped datagrams</source>
        <translation>Datagrammes rejetés</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers on other ports</source>
        <translation>Réponses sur d’autres ports</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units of other networks</source>
        <translation>Unités d’autres réseaux</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Reverse path filter</source>
        <translation>Filtre de chemin inverse</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Doubled addresses</source>
        <translation>Adresses en double</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Fixed ARP entries</source>
        <translation>Entrées ARP fixes</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The unit itself</source>
        <translation>L’unité elle-même</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Fine</source>
        <translation>Correct</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Odd</source>
        <translation>Inhabituel</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Fails</source>
        <translation>Échec</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Not known</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>It was not asked.</source>
        <translation>Cela n’a pas été demandé.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Dropped before they were read: %d.</source>
        <translation>Rejetés avant leur lecture : %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units that answered there: %d.</source>
        <translation>Unités qui y ont répondu : %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>None answered.</source>
        <translation>Aucune n’a répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>There are none.</source>
        <translation>Il n’y en a pas.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Entries that name another hardware address: %d.</source>
        <translation>Entrées avec une autre adresse matérielle : %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>This computer has no network interface that reaches units.</source>
        <translation>Cet ordinateur n’a aucune interface réseau qui atteigne des unités.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The interface %@ has no link.</source>
        <translation>L’interface %@ n’a pas de liaison.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>UDP port %d is taken by %@ (process %d).</source>
        <translation>Le port UDP %d est occupé par %@ (processus %d).</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>UDP port %d is taken by a program of the user %@.</source>
        <translation>Le port UDP %d est occupé par un programme de l’utilisateur %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>No route of this computer leads to %@.</source>
        <translation>Aucune route de cet ordinateur ne mène à %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>No route of this computer leads to the units behind the interface %@.</source>
        <translation>Aucune route de cet ordinateur ne mène aux unités derrière l’interface %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The unit %@ answers to UDP port %d, and not to the one that asks.</source>
        <translation>L’unité %@ répond au port UDP %d, et non à celui qui demande.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Units answer from another network than that of the interface %@.</source>
        <translation>Des unités répondent depuis un autre réseau que celui de l’interface %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The unit %@ takes no request to %@, so its network is another one.</source>
        <translation>L’unité %@ n’accepte aucune demande à %@ : son réseau est donc un autre.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The unit %@ is at %@, which is not in the network of the interface %@.</source>
        <translation>L’unité %@ est à %@, qui n’est pas dans le réseau de l’interface %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Another host than the unit answers for %@: %@.</source>
        <translation>Un autre hôte que l’unité répond pour %@ : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A fixed ARP entry says that %@ is %@, but the unit there is %@.</source>
        <translation>Une entrée ARP fixe dit que %@ est %@, mais l’unité s’y nomme %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A fixed ARP entry says that %@ is %@, and nobody answers there.</source>
        <translation>Une entrée ARP fixe dit que %@ est %@, et personne n’y répond.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>%@ says that %@ cannot be reached.</source>
        <translation>%@ signale que %@ est inaccessible.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>No host answers for the address %@.</source>
        <translation>Aucun hôte ne répond pour l’adresse %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Let the answers in: sudo firewall-cmd --add-port=%d/udp</source>
        <translation>Laissez entrer les réponses : sudo firewall-cmd --add-port=%d/udp</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Let the answers in: sudo ufw allow %d/udp</source>
        <translation>Laissez entrer les réponses : sudo ufw allow %d/udp</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Let UDP to port %d in, in the rules of the firewall.</source>
        <translation>Laissez entrer UDP vers le port %d dans les règles du pare-feu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Take the entry out: sudo arp -d %@</source>
        <translation>Retirez l’entrée : sudo arp -d %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The interface %@ has no IPv4 address.</source>
        <translation>L’interface %@ n’a pas d’adresse IPv4.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The system refuses to send the request: %@.</source>
        <translation>Le système refuse d’envoyer la demande : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A firewall on this computer lets no answers in to UDP port %d.</source>
        <translation>Un pare-feu de cet ordinateur ne laisse entrer aucune réponse au port UDP %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A firewall on this computer lets no answers to a broadcast in to UDP port %d, only those to single requests.</source>
        <translation>Un pare-feu de cet ordinateur ne laisse entrer au port UDP %d aucune réponse à une diffusion, seulement celles à des demandes isolées.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The reverse path filter of the interface %@ takes the answers away.</source>
        <translation>Le filtre de chemin inverse de l’interface %@ retire les réponses.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The host %@ is there, but nothing reads its UDP port %d.</source>
        <translation>L’hôte %@ est là, mais rien ne lit son port UDP %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Something answers, but not as a unit does.</source>
        <translation>Quelque chose répond, mais pas comme une unité.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The request left, and nothing came back from %@.</source>
        <translation>La demande est partie, et rien n’est revenu de %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The request left, and nothing came back.</source>
        <translation>La demande est partie, et rien n’est revenu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Plug in the cable, switch the interface on, and look whether something is switched on at the other end.</source>
        <translation>Branchez le câble, activez l’interface, et regardez si un appareil est allumé à l’autre bout.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the units.</source>
        <translation>Donnez à l’interface une adresse dans le réseau des unités.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Quit that program, or choose another UDP port.</source>
        <translation>Quittez ce programme, ou choisissez un autre port UDP.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look for a firewall rule on this computer that stops datagrams to UDP port 3520.</source>
        <translation>Cherchez sur cet ordinateur une règle de pare-feu qui arrête les datagrammes vers le port UDP 3520.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the unit, or add a route.</source>
        <translation>Donnez à l’interface une adresse dans le réseau de l’unité, ou ajoutez une route.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the units, or take out the route that leads elsewhere. The filter is the setting net.ipv4.conf.%@.rp_filter.</source>
        <translation>Donnez à l’interface une adresse dans le réseau des unités, ou retirez la route qui mène ailleurs. Le filtre est le réglage net.ipv4.conf.%@.rp_filter.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Choose that UDP port, or change the unit’s destination port.</source>
        <translation>Choisissez ce port UDP, ou changez le port de destination de l’unité.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the unit as its first one, or change the unit’s address.</source>
        <translation>Donnez à l’interface comme première une adresse dans le réseau de l’unité, ou changez l’adresse de l’unité.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Disconnect one of them, and give the other one another address.</source>
        <translation>Débranchez l’une d’elles, et donnez une autre adresse à l’autre.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Allow a larger receive buffer. Help says how.</source>
        <translation>Autorisez un tampon de réception plus grand. L’aide explique comment.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look whether this is a unit, and which device port it has.</source>
        <translation>Regardez si c’est une unité, et quel port elle a.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look whether the unit has power and its cable, and whether the address is right.</source>
        <translation>Regardez si l’unité est alimentée et câblée, et si l’adresse est juste.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Find out what it is. The event log shows what came.</source>
        <translation>Trouvez ce que c’est. Le journal d’événements montre ce qui est arrivé.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look whether the unit has power and its cable, and whether a router or a switch with separated ports stands in between.</source>
        <translation>Regardez si l’unité est alimentée et câblée, et si un routeur ou un commutateur à ports séparés se trouve entre les deux.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Port %d is taken by another program. Choose another port.</source>
        <translation>Le port %d est occupé par un autre programme. Choisissez un autre port.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No request was sent: %@</source>
        <translation>Aucune demande n’a été envoyée : %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No request was sent: %@.</source>
        <translation>Aucune demande n’a été envoyée : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Asking %@, port %d: no unit has answered yet</source>
        <translation>Interrogation de %@, port %d : aucune unité n’a encore répondu</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Asking %@, port %d: 1 unit answered</source>
        <translation>Interrogation de %@, port %d : 1 unité a répondu</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Asking %@, port %d: %d units answered</source>
        <translation>Interrogation de %@, port %d : %d unités ont répondu</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No interface is chosen: asked %@.</source>
        <translation>Aucune interface n’est choisie : %@ a été interrogée.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>The one listed answered earlier.</source>
        <translation>Celle de la liste a répondu auparavant.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>The %d listed answered earlier.</source>
        <translation>Les %d de la liste ont répondu auparavant.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No unit answered.</source>
        <translation>Aucune unité n’a répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>1 unit answered late. Discover again to list it.</source>
        <translation>1 unité a répondu tard. Relancez la détection pour l’ajouter à la liste.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d units answered late. Discover again to list them.</source>
        <translation>%d unités ont répondu tard. Relancez la détection pour les ajouter à la liste.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d of the %d listed answered.</source>
        <translation>%d sur les %d de la liste ont répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>1 unit answered.</source>
        <translation>1 unité a répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d units answered.</source>
        <translation>%d unités ont répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ answered last time and not now.</source>
        <translation>%@ a répondu la dernière fois, mais pas cette fois.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d answered last time and not now.</source>
        <translation>%d ont répondu la dernière fois, mais pas cette fois.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ is new.</source>
        <translation>%@ est nouvelle.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d are new.</source>
        <translation>%d sont nouvelles.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ has changed.</source>
        <translation>%@ a changé.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d have changed.</source>
        <translation>%d ont changé.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ answers again.</source>
        <translation>%@ répond de nouveau.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d answer again.</source>
        <translation>%d répondent de nouveau.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DocumentFaultText.cpp"/>
        <source>“%@” is another kind of file than the one that is wanted.</source>
        <translation>« %@ » n’est pas le genre de fichier attendu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@.</source>
        <translation>« Appliquer » envoie %@ : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because that is how “%@” is read.</source>
        <translation>« Appliquer » envoie %@ : %@, car « %@ » est lu ainsi.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a MAC address has 12 hexadecimal digits and nothing else but colons.</source>
        <translation>« Appliquer » envoie %@, bien qu’une adresse MAC se compose de 12 chiffres hexadécimaux et de deux-points, sans rien d’autre.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a MAC address has 12 hexadecimal digits and this has %d.</source>
        <translation>« Appliquer » envoie %@, bien qu’une adresse MAC ait 12 chiffres hexadécimaux et que celle-ci en ait %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a serial number has 12 hexadecimal digits and nothing else but blanks.</source>
        <translation>« Appliquer » envoie %@, bien qu’un numéro de série se compose de 12 chiffres hexadécimaux et d’espaces, sans rien d’autre.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a serial number has 12 hexadecimal digits and this has %d.</source>
        <translation>« Appliquer » envoie %@, bien qu’un numéro de série ait 12 chiffres hexadécimaux et que celui-ci en ait %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: serial number %@, which another unit has.</source>
        <translation>« Appliquer » envoie %@ : numéro de série %@, qui est celui d’une autre unité.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because “%@” is not an IPv4 address.</source>
        <translation>« Appliquer » envoie %@ : %@, car « %@ » n’est pas une adresse IPv4.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because “%@” does not begin with a number.</source>
        <translation>« Appliquer » envoie %@ : %@, car « %@ » ne commence pas par un nombre.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because %@ is outside 3520 to 3523.</source>
        <translation>« Appliquer » envoie %@ : %@, car %@ n’est pas compris entre 3520 et 3523.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, more than the four digits of a port, because %@ is outside 0 to 65535.</source>
        <translation>« Appliquer » envoie %@, plus que les quatre chiffres d’un port, car %@ n’est pas compris entre 0 et 65535.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: the number %@, which does not show as a number because it is above 255.</source>
        <translation>« Appliquer » envoie %@ : le nombre %@, qui ne s’affiche pas comme un nombre car il dépasse 255.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: the number %@, because that is how “%@” is read. Above 255 it does not show as a number.</source>
        <translation>« Appliquer » envoie %@ : le nombre %@, car « %@ » est lu ainsi. Au-delà de 255, il ne s’affiche pas comme un nombre.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: the text “%@”, though a unit ID has 6 bytes and this has %d.</source>
        <translation>« Appliquer » envoie %@ : le texte « %@ », bien qu’un identifiant d’unité ait 6 octets et que celui-ci en ait %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: unit ID “%@”.</source>
        <translation>« Appliquer » envoie %@ : identifiant d’unité « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply asks for administrator rights, but no MAC address is known for an ARP entry.</source>
        <translation>« Appliquer » demande les droits d’administrateur, mais aucune adresse MAC n’est connue pour une entrée ARP.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply asks for administrator rights, but an ARP entry can hold ASCII characters only.</source>
        <translation>« Appliquer » demande les droits d’administrateur, mais une entrée ARP ne peut contenir que des caractères ASCII.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply asks for administrator rights, but no ARP entry will be made for “%@”: %@</source>
        <translation>« Appliquer » demande les droits d’administrateur, mais aucune entrée ARP ne sera créée pour « %@ » : %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply hands “%@” and %@ to the ARP tool, which needs administrator rights.</source>
        <translation>« Appliquer » transmet « %@ » et %@ à l’outil ARP, ce qui nécessite les droits d’administrateur.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply enters %@ at %@ in the ARP cache, which needs administrator rights.</source>
        <translation>« Appliquer » inscrit %@ avec %@ dans le cache ARP (droits d’administrateur requis).</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the UDP listener is not running.</source>
        <translation>« Appliquer » n’envoie rien : l’écoute UDP n’est pas active.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>No unit is selected.</source>
        <translation>Aucune unité n’est sélectionnée.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@ to 0.0.0.0, because “%@” is not an IPv4 address.</source>
        <translation>« Appliquer » envoie %@ à 0.0.0.0, car « %@ » n’est pas une adresse IPv4.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@ to %@, because that is how “%@” is read.</source>
        <translation>« Appliquer » envoie %@ à %@, car « %@ » est lu ainsi.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@ to %@.</source>
        <translation>« Appliquer » envoie %@ à %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: no command changes this parameter.</source>
        <translation>« Appliquer » n’envoie rien : aucune commande ne modifie ce paramètre.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the value is empty.</source>
        <translation>« Appliquer » n’envoie rien : la valeur est vide.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the unit ID is not a text in UTF-8.</source>
        <translation>« Appliquer » n’envoie rien : l’identifiant d’unité n’est pas un texte en UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: no unit is selected.</source>
        <translation>« Appliquer » n’envoie rien : aucune unité n’est sélectionnée.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: a command can hold ASCII characters only.</source>
        <translation>« Appliquer » n’envoie rien : une commande ne peut contenir que des caractères ASCII.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the address of the unit is not known.</source>
        <translation>« Appliquer » n’envoie rien : l’adresse de l’unité n’est pas connue.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>This computer has it.</source>
        <translation>Cet ordinateur l’a.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>The unit %@ has it.</source>
        <translation>L’unité %@ l’a.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>No unit can have it: it is the address of the subnet.</source>
        <translation>Aucune unité ne peut l’avoir : c’est l’adresse du sous-réseau.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>It is outside this computer&apos;s subnet, perhaps out of reach.</source>
        <translation>Elle est hors du sous-réseau, peut-être hors d’atteinte.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>It goes to the unit %@, which was not shown when the row was chosen.</source>
        <translation>Elle va à l’unité %@, qui n’était pas affichée quand la ligne a été choisie.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Return ends the typing; Ctrl+Return applies.</source>
        <translation>Entrée termine la saisie ; Ctrl+Entrée applique.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the command is too long for a datagram.</source>
        <translation>« Appliquer » n’envoie rien : la commande est trop longue pour un datagramme.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command. It could not be asked for its parameters: %@</source>
        <translation>L’unité a accepté une commande. Ses paramètres n’ont pas pu lui être demandés : %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command. It could not be asked for its parameters: %@.</source>
        <translation>L’unité a accepté une commande. Ses paramètres n’ont pas pu lui être demandés : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command and was asked for its parameters. If its port has changed, Discover finds it.</source>
        <translation>L’unité a accepté une commande et ses paramètres lui ont été demandés. Si son port a changé, « Détecter » la trouve.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command and was asked for its parameters.</source>
        <translation>L’unité a accepté une commande et ses paramètres lui ont été demandés.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its serial number. Discover lists it under that.</source>
        <translation>L’unité affiche maintenant %@ comme numéro de série. « Détecter » la présente sous ce numéro.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its %@.</source>
        <translation>L’unité affiche maintenant %@ sous « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its serial number (was %@). Discover lists it under that.</source>
        <translation>L’unité affiche maintenant %@ comme numéro de série (avant : %@). « Détecter » la présente sous ce numéro.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its %@ (was %@).</source>
        <translation>L’unité affiche maintenant %@ sous « %@ » (avant : %@).</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit still shows %@ as its %@.</source>
        <translation>L’unité affiche toujours %@ sous « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its %@, which is not what was sent.</source>
        <translation>L’unité affiche maintenant %@ sous « %@ », ce qui n’est pas ce qui a été envoyé.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit&apos;s parameters hold no %@.</source>
        <translation>Les paramètres de l’unité ne contiennent pas « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Another unit, %@, accepted a command: it has the address %@ already.</source>
        <translation>Une autre unité, %@, a accepté une commande : elle a déjà l’adresse %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Another unit, %@, accepted a command: both have the address %@.</source>
        <translation>Une autre unité, %@, a accepté une commande : les deux ont l’adresse %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Sent %@.</source>
        <translation>%@ a été envoyé.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Sent %@. The unit has not answered.</source>
        <translation>%@ a été envoyé. L’unité n’a pas répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Sent %@. The unit has not answered yet.</source>
        <translation>%@ a été envoyé. L’unité n’a pas encore répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: %@</source>
        <translation>Aucune entrée ARP n’a été créée pour %@ : %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: %@.</source>
        <translation>Aucune entrée ARP n’a été créée pour %@ : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: administrator rights were not given.</source>
        <translation>Aucune entrée ARP n’a été créée pour %@ : les droits d’administrateur n’ont pas été accordés.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: running the ARP tool was refused.</source>
        <translation>Aucune entrée ARP n’a été créée pour %@ : l’exécution de l’outil ARP a été refusée.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the question for administrator rights was dismissed.</source>
        <translation>Aucune entrée ARP n’a été créée pour %@ : la demande des droits d’administrateur a été annulée.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the ARP tool cannot be run.</source>
        <translation>Aucune entrée ARP n’a été créée pour %@ : l’outil ARP ne peut pas être exécuté.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: it can hold ASCII characters only.</source>
        <translation>Aucune entrée ARP n’a été créée pour %@ : elle ne peut contenir que des caractères ASCII.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the ARP tool was not started (%d).</source>
        <translation>Aucune entrée ARP n’a été créée pour %@ : l’outil ARP n’a pas été lancé (%d).</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the ARP tool ended with status %d.</source>
        <translation>Aucune entrée ARP n’a été créée pour %@ : l’outil ARP s’est terminé avec l’état %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The ARP entry for %@ is not on the interface by which the command left, so the unit may not have heard it.</source>
        <translation>L’entrée ARP pour %@ ne se trouve pas sur l’interface par laquelle la commande est partie, l’unité ne l’a donc peut-être pas entendue.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>[Begin Discover]</source>
        <translation>[Début de la détection]</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>[The event log keeps 256 MiB. Older entries were removed.]</source>
        <translation>[Le journal des événements conserve 256 Mio. Les entrées plus anciennes ont été supprimées.]</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP listener did start. </source>
        <translation>
Écoute UDP démarrée. </translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Error setting SO_BROADCAST %s</source>
        <translation>
Erreur lors du réglage de SO_BROADCAST %s</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP did stop with error.</source>
        <translation>
Écoute UDP arrêtée sur une erreur.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Request unit parameters with address: %@</source>
        <translation>
Paramètres d’unité demandés à l’adresse : %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Send to: %@ command: %@</source>
        <translation>
Envoi à : %@ commande : %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP server did send data.</source>
        <translation>
Données UDP envoyées.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP failed to send data.</source>
        <translation>
Les données UDP n’ont pas pu être envoyées.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP listener did receive data. Length: %d</source>
        <translation>
Données UDP reçues. Longueur : %d</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Ignoring short packet</source>
        <translation>
Paquet trop court ignoré</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Ignoring unknown packet, prefix != ^^</source>
        <translation>
Paquet inconnu ignoré, préfixe != ^^</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP did receive error.</source>
        <translation>
Erreur de réception UDP.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Received command: ^^%@ unit:%@ serial:%@ cidString:%@</source>
        <translation>
Commande reçue : ^^%@ identifiant:%@ numéro de série:%@ contenu:%@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Received command: ^^%@</source>
        <translation>
Commande reçue : ^^%@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Stuff ARP cache with MAC %@ for IP %@</source>
        <translation>
Cache ARP : inscription de la MAC %@ pour l’IP %@ lancée</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Stuff ARP cache result: %d</source>
        <translation>
Résultat de l’inscription dans le cache ARP : %d</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Unit ID could not be converted to 6-byte UTF-8 string</source>
        <translation>
L’identifiant d’unité n’a pas pu être converti en texte UTF-8 de 6 octets</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ is gone, so no broadcast was sent. Choose another one, or bring it back.</source>
        <translation>L’interface %@ a disparu, aucune diffusion n’a donc été envoyée. Choisissez-en une autre ou rebranchez-la.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ has no link. Is its cable plugged in, and the device at the other end switched on?</source>
        <translation>L’interface %@ n’a pas de liaison. Son câble est-il branché, et l’appareil à l’autre bout est-il allumé ?</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ reaches no unit by broadcast. Choose the one that leads to the units.</source>
        <translation>L’interface %@ n’atteint aucune unité par diffusion. Choisissez celle qui mène aux unités.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ has lost the address that it had when it was chosen. When it has one again, choose it again.</source>
        <translation>L’interface %@ a perdu l’adresse qu’elle avait quand elle a été choisie. Choisissez-la de nouveau quand elle en aura une.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The address and mask of the interface %@ are out of date: they have changed since it was chosen. Choose it again to take the new ones over.</source>
        <translation>L’adresse et le masque de l’interface %@ ne sont plus à jour : ils ont changé depuis qu’elle a été choisie. Choisissez-la de nouveau pour reprendre les nouveaux.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The system dropped 1 datagram before it was read, so a unit may be missing. Help says how to allow a larger buffer.</source>
        <translation>Le système a rejeté 1 datagramme avant sa lecture ; il manque peut-être une unité. L’aide explique comment autoriser un tampon plus grand.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The system dropped %d datagrams before they were read, so units may be missing. Help says how to allow a larger buffer.</source>
        <translation>Le système a rejeté %d datagrammes avant leur lecture ; il manque peut-être des unités. L’aide explique comment autoriser un tampon plus grand.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>More than 1,048,576 units have answered, so the list leaves out those that were not heard for longest.</source>
        <translation>Plus de 1 048 576 unités ont répondu ; la liste omet donc celles qui n’ont pas été entendues depuis le plus longtemps.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>Two hosts answer as the unit %@: %@ and %@.</source>
        <translation>Deux hôtes répondent comme l’unité %@ : %@ et %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>Two units say that their address is %@: %@ and %@. A command may reach either.</source>
        <translation>Deux unités indiquent comme adresse %@ : %@ et %@. Une commande peut atteindre l’une ou l’autre.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>%d units or more say that their address is %@, among them %@ and %@. A command may reach any of them.</source>
        <translation>%d unités ou plus indiquent comme adresse %@, parmi elles %@ et %@. Une commande peut atteindre n’importe laquelle.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>%d units say that their address is %@, among them %@ and %@. A command may reach any of them.</source>
        <translation>%d unités indiquent comme adresse %@, parmi elles %@ et %@. Une commande peut atteindre n’importe laquelle.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The unit %@ says that its address is %@, but its answer came from %@.</source>
        <translation>L’unité %@ indique comme adresse %@, mais sa réponse est venue de %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The unit %@ is heard on two interfaces: %@ and %@. Commands leave by the one on which it was heard last.</source>
        <translation>L’unité %@ est entendue sur deux interfaces : %@ et %@. Les commandes partent par celle où elle a été entendue en dernier.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <source>%@ is free: nobody answers for it.</source>
        <translation>%@ est libre : personne n’y répond.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <source>%@ is held by %@, unit %@.</source>
        <translation>%@ est à %@, unité %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>Address %@, mask %@, broadcast address %@.</source>
        <translation>Adresse %@, masque %@, adresse de diffusion %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>The interface has no IPv4 address, so Discover asks %@.</source>
        <translation>L’interface n’a pas d’adresse IPv4, « Détecter » interroge donc %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>No interface is chosen, so Discover asks %@.</source>
        <translation>Aucune interface n’est choisie, « Détecter » interroge donc %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>The link is up.</source>
        <translation>La liaison est établie.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>The link is down.</source>
        <translation>La liaison est coupée.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>To change</source>
        <translation>À changer</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Unchanged</source>
        <translation>Inchangée</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Refused</source>
        <translation>Refusée</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>No answer</source>
        <translation>Pas de réponse</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Done</source>
        <translation>Faite</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Not begun</source>
        <translation>Pas commencée</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Half configured</source>
        <translation>À moitié configurée</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Not sent</source>
        <translation>Pas envoyée</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Other value</source>
        <translation>Autre valeur</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Under way</source>
        <translation>En cours</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Wrong</source>
        <translation>Fausse</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Wanted</source>
        <translation>Voulu</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Reason</source>
        <translation>Raison</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Units to change: %d, parameters in all: %d. Unchanged: %d, refused: %d, without an answer: %d.</source>
        <translation>Unités à changer : %d, paramètres en tout : %d. Inchangées : %d, refusées : %d, sans réponse : %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Done: %d, unchanged: %d, refused: %d, not begun: %d, half configured: %d, without an answer: %d.</source>
        <translation>Faites : %d, inchangées : %d, refusées : %d, pas commencées : %d, à moitié configurées : %d, sans réponse : %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Asked the unit at %@ for its parameters.</source>
        <translation>Les paramètres ont été demandés à l’unité à l’adresse %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Asked every unit that hears it for its parameters.</source>
        <translation>Les paramètres ont été demandés à toutes les unités qui l’entendent.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Sent %@ to the unit at %@.</source>
        <translation>%@ a été envoyé à l’unité à l’adresse %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Sent %@ to every unit that hears it.</source>
        <translation>%@ a été envoyé à toutes les unités qui l’entendent.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Another unit at this address, %@, answered “%@”.</source>
        <translation>Une autre unité à cette adresse, %@, a répondu « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Another unit at this address, %@, answered.</source>
        <translation>Une autre unité à cette adresse, %@, a répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit answered “%@”.</source>
        <translation>L’unité a répondu « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit has told them.</source>
        <translation>L’unité les a donnés.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit accepted a command.</source>
        <translation>L’unité a accepté une commande.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit has not answered.</source>
        <translation>L’unité n’a pas répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit has not answered yet.</source>
        <translation>L’unité n’a pas encore répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>No unit has answered yet.</source>
        <translation>Aucune unité n’a encore répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Accepted by 1 unit.</source>
        <translation>Acceptée par 1 unité.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>1 unit has answered.</source>
        <translation>1 unité a répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Accepted by %d units or more.</source>
        <translation>Acceptée par %d unités ou plus.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>%d units or more have answered.</source>
        <translation>%d unités ou plus ont répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Accepted by %d units.</source>
        <translation>Acceptée par %d unités.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>%d units have answered.</source>
        <translation>%d unités ont répondu.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>No unit is selected: Restore Defaults, like Reload, reaches every unit that hears it.</source>
        <translation>Aucune unité n’est sélectionnée : « Rétablir les réglages d’usine », comme « Recharger », atteint toutes les unités qui l’entendent.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>The address of this unit is not known: Restore Defaults, like Reload, reaches every unit that hears it.</source>
        <translation>L’adresse de cette unité n’est pas connue : « Rétablir les réglages d’usine », comme « Recharger », atteint toutes les unités qui l’entendent.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>This unit tells an address of many as its own: Restore Defaults, like Reload, Apply and Send, reaches every unit that hears it.</source>
        <translation>Cette unité donne comme sienne une adresse collective : « Rétablir les réglages d’usine », comme « Recharger », « Appliquer » et « Envoyer », atteint toutes les unités qui l’entendent.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Asks the unit at %@ for its parameters.</source>
        <translation>Demande ses paramètres à l’unité à l’adresse %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Asks every unit that hears it for its parameters.</source>
        <translation>Demande leurs paramètres à toutes les unités qui l’entendent.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Resets the unit at %@ to its factory settings.</source>
        <translation>Rétablit les réglages d’usine de l’unité à l’adresse %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Resets every unit that hears it to its factory settings.</source>
        <translation>Rétablit les réglages d’usine de toutes les unités qui l’entendent.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: %@</source>
        <translation>Non envoyé : %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: %@.</source>
        <translation>Non envoyé : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: No command changes this parameter.</source>
        <translation>Non envoyé : aucune commande ne modifie ce paramètre.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: The value is empty.</source>
        <translation>Non envoyé : la valeur est vide.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: The unit ID is not a text in UTF-8.</source>
        <translation>Non envoyé : l’identifiant d’unité n’est pas un texte en UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: No unit is selected.</source>
        <translation>Non envoyé : aucune unité n’est sélectionnée.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: A command can hold ASCII characters only.</source>
        <translation>Non envoyé : une commande ne peut contenir que des caractères ASCII.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: The address of the unit is not known.</source>
        <translation>Non envoyé : l’adresse de l’unité n’est pas connue.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is no name of a column.</source>
        <translation>« %@ » n’est pas un nom de colonne.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” means the same as another column.</source>
        <translation>« %@ » signifie la même chose qu’une autre colonne.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” stands in a column without a name.</source>
        <translation>« %@ » se trouve dans une colonne sans nom.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has text behind its closing quotation mark.</source>
        <translation>« %@ » a du texte après son guillemet fermant.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” begins or ends with a blank.</source>
        <translation>« %@ » commence ou finit par une espace.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has a character that nobody sees.</source>
        <translation>« %@ » contient un caractère invisible.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is no serial number. Write six pairs of digits, such as 4B 58 00 00 00 01.</source>
        <translation>« %@ » n’est pas un numéro de série. Écrivez six paires de chiffres, comme 4B 58 00 00 00 01.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a number that a spreadsheet has shortened.</source>
        <translation>« %@ » est un nombre qu’un tableur a raccourci.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” lacks digits: a spreadsheet has taken it for a number.</source>
        <translation>Il manque des chiffres à « %@ » : un tableur l’a pris pour un nombre.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” lacks its dots: a spreadsheet has taken it for a number.</source>
        <translation>Il manque les points à « %@ » : un tableur l’a pris pour un nombre.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a date: a spreadsheet has taken the value for one.</source>
        <translation>« %@ » est une date : un tableur a pris la valeur pour une date.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has separators that a spreadsheet has put between digits.</source>
        <translation>« %@ » contient des séparateurs qu’un tableur a mis entre les chiffres.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has decimal places that a spreadsheet has added.</source>
        <translation>« %@ » a des décimales qu’un tableur a ajoutées.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a truth value: a spreadsheet has taken the value for one.</source>
        <translation>« %@ » est une valeur logique : un tableur a pris la valeur pour telle.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a value that a spreadsheet had no room to show.</source>
        <translation>« %@ » est une valeur qu’un tableur n’avait pas la place d’afficher.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is an error of a spreadsheet.</source>
        <translation>« %@ » est une erreur d’un tableur.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” begins with the mark of a text in a spreadsheet.</source>
        <translation>« %@ » commence par la marque de texte d’un tableur.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has a blank of another kind.</source>
        <translation>« %@ » contient une espace d’un autre type.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Line %d is about the same unit.</source>
        <translation>La ligne %d concerne la même unité.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d has the same serial number.</source>
        <translation>La ligne %d a le même numéro de série.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d has the same address.</source>
        <translation>La ligne %d a la même adresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d has the same hardware address.</source>
        <translation>La ligne %d a la même adresse matérielle.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The file is in UTF-16. Save it as CSV in UTF-8.</source>
        <translation>Le fichier est en UTF-16. Enregistrez-le en CSV, en UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The cell is not in UTF-8. Save the file as CSV in UTF-8.</source>
        <translation>La cellule n’est pas en UTF-8. Enregistrez le fichier en CSV, en UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>A quotation mark is not closed.</source>
        <translation>Un guillemet n’est pas fermé.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The first line must name the columns: serial and parameters.</source>
        <translation>La première ligne doit nommer les colonnes : serial et des paramètres.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The first line names no column “serial”.</source>
        <translation>La première ligne ne nomme pas de colonne « serial ».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The line has fewer cells than the first one.</source>
        <translation>La ligne a moins de cellules que la première.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The line has more cells than the first one.</source>
        <translation>La ligne a plus de cellules que la première.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The serial number is missing.</source>
        <translation>Le numéro de série manque.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The cell has nothing but blanks.</source>
        <translation>La cellule ne contient que des espaces.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The value does not fit into a command.</source>
        <translation>La valeur ne tient pas dans une commande.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>A unit would get another value than “%@”. The window says of it: %@</source>
        <translation>Une unité recevrait une autre valeur que « %@ ». La fenêtre en dit : %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Type it again in a cell that is formatted as text.</source>
        <translation>Saisissez-la de nouveau dans une cellule au format texte.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d: %@</source>
        <translation>Ligne %d : %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Sender</source>
        <translation>Émetteur</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Last heard</source>
        <translation>Dernier contact</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Serial number used twice</source>
        <translation>Numéro de série en double</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Address used twice</source>
        <translation>Adresse en double</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Answered</source>
        <translation>A répondu</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>It did not answer the latest Discover.</source>
        <translation>Elle n’a pas répondu à la dernière détection.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Another unit, %@, has this serial number, too.</source>
        <translation>Une autre unité, %@, a aussi ce numéro de série.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>The unit %@ has the address %@, too.</source>
        <translation>L’unité %@ a aussi l’adresse %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Line %d wants the same value: %@.</source>
        <translation>La ligne %d veut la même valeur : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ does not tell its hardware address, which a new address needs.</source>
        <translation>L’unité %@ n’indique pas son adresse matérielle, nécessaire pour une nouvelle adresse.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is held by the unit %@.</source>
        <translation>%@ est occupé par l’unité %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ changes hands in a ring: line %d must be done first, and waits for this one.</source>
        <translation>%@ change de mains en cercle : la ligne %d doit être faite d’abord, et attend celle-ci.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ does not become free, because line %d is not done.</source>
        <translation>%@ ne se libère pas, car la ligne %d n’est pas faite.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The plan is out of date: %@ was “%@” and is “%@” now.</source>
        <translation>Le plan est périmé : %@ valait « %@ » et vaut maintenant « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ does not tell whether it has taken %@.</source>
        <translation>L’unité %@ n’indique pas si elle a pris %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ shows another value: %@ is “%@”.</source>
        <translation>L’unité %@ affiche une autre valeur : %@ est « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Nothing was sent, because other lines are refused or silent.</source>
        <translation>Rien n’a été envoyé, car d’autres lignes sont refusées ou sans réponse.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Nothing new was begun after line %d.</source>
        <translation>Rien de nouveau n’a été commencé après la ligne %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The journal could not be written.</source>
        <translation>Le journal n’a pas pu être écrit.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Whether another run is under way could not be found out: %@.</source>
        <translation>Impossible de savoir si une autre exécution est en cours : %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Another run changes units from this host.</source>
        <translation>Une autre exécution modifie des unités depuis cet ordinateur.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Another run changes units from this host: process %d.</source>
        <translation>Une autre exécution modifie des unités depuis cet ordinateur : processus %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>No command brings %@ of the unit %@ back: it was “%@”.</source>
        <translation>Aucune commande ne rétablit %@ de l’unité %@ : la valeur était « %@ ».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The entry for %@ could not be taken out of the ARP cache again.</source>
        <translation>L’entrée pour %@ n’a pas pu être retirée du cache ARP.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>about %d s left</source>
        <translation>encore %d s environ</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>about %d min left</source>
        <translation>encore environ %d min</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP tool gets one address and one hardware address only.</source>
        <translation>L’outil ARP ne reçoit qu’une adresse et une adresse matérielle.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>An address is four decimal numbers without leading zeros, as in 192.0.2.7.</source>
        <translation>Une adresse se compose de quatre nombres décimaux sans zéros initiaux, comme 192.0.2.7.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>A hardware address is six pairs of hexadecimal digits and names one host, as in 02:00:00:00:00:07.</source>
        <translation>Une adresse matérielle se compose de six paires de chiffres hexadécimaux et désigne un seul hôte, comme 02:00:00:00:00:07.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP cache has no fixed entry with this address and this hardware address.</source>
        <translation>Le cache ARP n’a aucune entrée fixe avec cette adresse et cette adresse matérielle.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP cache cannot be read.</source>
        <translation>Le cache ARP ne peut pas être lu.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP tool cannot be run.</source>
        <translation>L’outil ARP ne peut pas être exécuté.</translation>
    </message>
</context>
</TS>
