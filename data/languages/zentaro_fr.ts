<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Zentaro</name>
    <message>
        <source>"%1" is already in your playlist</source>
        <translation>« %1 » est déjà dans la liste</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1 cannot be played</source>
        <translation>%1 ne peut pas être lu</translation>
    </message>
    <message>
        <source>%1 list</source>
        <translation>Liste %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n entries could not be found</source>
        <translation><numerusform>%1 entrée sur %n est introuvable</numerusform><numerusform>%1 entrées sur %n sont introuvables</numerusform></translation>
    </message>
    <message>
        <source>%1, playing</source>
        <translation>%1, en lecture</translation>
    </message>
    <message numerus="yes">
        <source>%n entries play next</source>
        <translation><numerusform>%n entrée suivra</numerusform><numerusform>%n entrées suivront</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation><numerusform>%n fichier</numerusform><numerusform>%n fichiers</numerusform></translation>
    </message>
    <message>
        <source>30 Seconds Back</source>
        <translation>Reculer de 30 secondes</translation>
    </message>
    <message>
        <source>30 Seconds Forward</source>
        <translation>Avancer de 30 secondes</translation>
    </message>
    <message>
        <source>5 Seconds Back</source>
        <translation>Reculer de 5 secondes</translation>
    </message>
    <message>
        <source>5 Seconds Forward</source>
        <translation>Avancer de 5 secondes</translation>
    </message>
    <message>
        <source>&lt;a href="%1"&gt;The web page of VLC&lt;/a&gt;, whose engine plays everything here</source>
        <translation>&lt;a href="%1"&gt;La page web de VLC&lt;/a&gt;, dont le moteur lit tout ici</translation>
    </message>
    <message>
        <source>&lt;No DVD drives were found&gt;</source>
        <translation>&lt;Aucun lecteur de DVD trouvé&gt;</translation>
    </message>
    <message>
        <source>&lt;No History&gt;</source>
        <translation>&lt;Aucun historique&gt;</translation>
    </message>
    <message>
        <source>&lt;Please insert a DVD&gt;</source>
        <translation>&lt;Veuillez insérer un DVD&gt;</translation>
    </message>
    <message>
        <source>A desktop media player. Free software under the MIT licence.</source>
        <translation>Un lecteur multimédia de bureau. Logiciel libre sous licence MIT.</translation>
    </message>
    <message>
        <source>A file's name cannot hold any of / \ : * ? " &lt; &gt; |</source>
        <translation>Un nom de fichier ne peut contenir aucun de ces caractères : / \ : * ? " &lt; &gt; |</translation>
    </message>
    <message>
        <source>A Little &amp;Faster</source>
        <translation>Un peu plus &amp;vite</translation>
    </message>
    <message>
        <source>A Little Faster</source>
        <translation>Un peu plus vite</translation>
    </message>
    <message>
        <source>A Little &amp;Slower</source>
        <translation>Un peu plus &amp;lent</translation>
    </message>
    <message>
        <source>A Little Slower</source>
        <translation>Un peu plus lent</translation>
    </message>
    <message>
        <source>A time looks like this: 1:02:30</source>
        <translation>Une heure s’écrit ainsi : 1:02:30</translation>
    </message>
    <message>
        <source>* In the system&apos;s own settings it is another program, and they decide.</source>
        <translation>* Dans les réglages du système, c&apos;est un autre programme, et ce sont eux qui décident.</translation>
    </message>
    <message>
        <source>&amp;Default apps...</source>
        <translation>Applis par &amp;défaut...</translation>
    </message>
    <message>
        <source>A type that is no longer chosen goes back to the program that had it before.</source>
        <translation>Un type décoché revient au programme précédent.</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>About Zentaro</source>
        <translation>À propos de Zentaro</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>Add Media File(s)...</source>
        <translation>Ajouter des fichiers...</translation>
    </message>
    <message>
        <source>Adding %1 of %2</source>
        <translation>Ajout de %1 sur %2</translation>
    </message>
    <message>
        <source>After a snapshot</source>
        <translation>Après un instantané</translation>
    </message>
    <message>
        <source>After file playing finished</source>
        <translation>Après la lecture</translation>
    </message>
    <message>
        <source>After playing finish</source>
        <translation>Après la lecture</translation>
    </message>
    <message>
        <source>After Playing: Do nothing</source>
        <translation>Après la lecture : ne rien faire</translation>
    </message>
    <message>
        <source>After Playing: Exit Zentaro</source>
        <translation>Après la lecture : quitter Zentaro</translation>
    </message>
    <message>
        <source>After Playing: Restart the Computer</source>
        <translation>Après la lecture : redémarrer l’ordinateur</translation>
    </message>
    <message>
        <source>After Playing: Shutdown the Computer</source>
        <translation>Après la lecture : éteindre l’ordinateur</translation>
    </message>
    <message>
        <source>Again and Again from Here, to Here</source>
        <translation>En boucle d’ici, jusqu’ici</translation>
    </message>
    <message>
        <source>Again and again: %1 to %2</source>
        <translation>En boucle : %1 à %2</translation>
    </message>
    <message>
        <source>All as Del&amp;ivered</source>
        <translation>&amp;Tout comme à la livraison</translation>
    </message>
    <message>
        <source>All file &amp;types</source>
        <translation>&amp;Tous les types</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>All is forgotten</source>
        <translation>Tout est oublié</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>Tous les formats pris en charge</translation>
    </message>
    <message>
        <source>Also of &amp;Discs That Are Taken Out</source>
        <translation>Aussi pour les &amp;disques retirés</translation>
    </message>
    <message>
        <source>Also of Discs That Are Taken Out</source>
        <translation>Aussi pour les disques retirés</translation>
    </message>
    <message>
        <source>Always on &amp;top</source>
        <translation>&amp;Toujours au premier plan</translation>
    </message>
    <message>
        <source>Appeara&amp;nce</source>
        <translation>Apparen&amp;ce</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>A&amp;ppliquer</translation>
    </message>
    <message>
        <source>As in the file</source>
        <translation>Comme dans le fichier</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Celle du système</translation>
    </message>
    <message>
        <source>As&amp;pect Ratio</source>
        <translation>&amp;Format d’image</translation>
    </message>
    <message>
        <source>Asso&amp;ciations</source>
        <translation>&amp;Associations</translation>
    </message>
    <message>
        <source>A&amp;udio</source>
        <translation>A&amp;udio</translation>
    </message>
    <message>
        <source>Audio File</source>
        <translation>Fichier audio</translation>
    </message>
    <message>
        <source>&amp;Audio Track</source>
        <translation>Piste &amp;audio</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Back towards the Full Volume</source>
        <translation>Retour vers le plein volume</translation>
    </message>
    <message>
        <source>Blend</source>
        <translation>Fondu</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>&amp;Bring Back the Last List</source>
        <translation>&amp;Rappeler la dernière liste</translation>
    </message>
    <message>
        <source>Bring Back the Last List</source>
        <translation>Rappeler la dernière liste</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Parco&amp;urir...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cannot open file &lt;%1&gt;</source>
        <translation>Impossible d’ouvrir le fichier &lt;%1&gt;</translation>
    </message>
    <message>
        <source>Cannot render thumbnail for %1. The video codec may be unsupported.</source>
        <translation>Impossible de créer une vignette pour %1. Le codec vidéo n’est peut-être pas pris en charge.</translation>
    </message>
    <message>
        <source>Cannot save the list &lt;%1&gt;</source>
        <translation>Impossible d’enregistrer la liste &lt;%1&gt;</translation>
    </message>
    <message>
        <source>&amp;Chapter</source>
        <translation>&amp;Chapitre</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Chapitre</translation>
    </message>
    <message>
        <source>Choose together</source>
        <translation>Choisir ensemble</translation>
    </message>
    <message>
        <source>Clear &amp;Recent Files</source>
        <translation>E&amp;ffacer les fichiers récents</translation>
    </message>
    <message>
        <source>Clear Recent Files</source>
        <translation>Effacer les fichiers récents</translation>
    </message>
    <message>
        <source>Click or press Enter to bring it back</source>
        <translation>Cliquez ou pressez Entrée pour la rappeler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>&amp;Continuous</source>
        <translation>&amp;Continu</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continu</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Contraste :</translation>
    </message>
    <message>
        <source>Decrease Speed</source>
        <translation>Ralentir</translation>
    </message>
    <message>
        <source>&amp;Deinterlace</source>
        <translation>&amp;Désentrelacer</translation>
    </message>
    <message>
        <source>Disable the screen sa&amp;ver</source>
        <translation>Dé&amp;sactiver l’économiseur d’écran</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Disques</translation>
    </message>
    <message>
        <source>Divider between video and playlist</source>
        <translation>Séparateur entre vidéo et liste</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>Ne rien faire</translation>
    </message>
    <message>
        <source>&amp;Docked at:</source>
        <translation>Ancrée au &amp;bord :</translation>
    </message>
    <message>
        <source>Drop files here to play them</source>
        <translation>Déposez ici les fichiers à lire</translation>
    </message>
    <message>
        <source>Drop files here, or press Ctrl+O</source>
        <translation>Déposez des fichiers ici ou pressez Ctrl+O</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>Enter runs the command.</source>
        <translation>Entrée exécute la commande.</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Exemple :</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Exit Zentaro</source>
        <translation>Quitter Zentaro</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>Avance rapide</translation>
    </message>
    <message>
        <source>Fast Forward While Held</source>
        <translation>Avance rapide tant que maintenu</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Types de fichiers</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Find a Command</source>
        <translation>Chercher une commande</translation>
    </message>
    <message>
        <source>Find a Command...</source>
        <translation>Chercher une commande...</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Chercher...</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Chercher...</translation>
    </message>
    <message>
        <source>Find: %1   %2 of %3</source>
        <translation>Chercher : %1   %2 sur %3</translation>
    </message>
    <message>
        <source>Find: type a part of a title or folder</source>
        <translation>Chercher : tapez une partie du titre ou du dossier</translation>
    </message>
    <message>
        <source>First Menu</source>
        <translation>Premier menu</translation>
    </message>
    <message>
        <source>Flash Video File</source>
        <translation>Fichier vidéo Flash</translation>
    </message>
    <message>
        <source>Folder for snapshots</source>
        <translation>Dossier des instantanés</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>Dossi&amp;er :</translation>
    </message>
    <message>
        <source>Forget &amp;All</source>
        <translation>&amp;Tout oublier</translation>
    </message>
    <message>
        <source>Forget All</source>
        <translation>Tout oublier</translation>
    </message>
    <message>
        <source>&amp;Forget This Entry</source>
        <translation>&amp;Oublier cet élément</translation>
    </message>
    <message>
        <source>Forget This Entry</source>
        <translation>Oublier cet élément</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format :</translation>
    </message>
    <message>
        <source>From %1: press again at the end</source>
        <translation>Depuis %1 : pressez encore à la fin</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Plein écran</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Full screen controls</source>
        <translation>Commandes du plein écran</translation>
    </message>
    <message>
        <source>Full Screen On or Off</source>
        <translation>Plein écran : activer ou quitter</translation>
    </message>
    <message>
        <source>Go to a Time</source>
        <translation>Aller à un instant</translation>
    </message>
    <message>
        <source>&amp;Go to a Time...</source>
        <translation>&amp;Aller à un moment...</translation>
    </message>
    <message>
        <source>Go to a Time...</source>
        <translation>Aller à un moment...</translation>
    </message>
    <message>
        <source>&amp;Go to Where I Was</source>
        <translation>&amp;Aller où j’en étais</translation>
    </message>
    <message>
        <source>Go to Where I Was</source>
        <translation>Aller où j’en étais</translation>
    </message>
    <message>
        <source>Goes on after this one</source>
        <translation>Continue après celui-ci</translation>
    </message>
    <message>
        <source>Goes on at %1</source>
        <translation>Reprise à %1</translation>
    </message>
    <message>
        <source>GPL 2 or later</source>
        <translation>GPL 2 ou ultérieure</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>&amp;Rubriques d’aide</translation>
    </message>
    <message>
        <source>Help Topics</source>
        <translation>Rubriques d’aide</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevé</translation>
    </message>
    <message>
        <source>Hours, minutes and seconds, such as 1:02:30</source>
        <translation>Heures, minutes et secondes, par exemple 1:02:30</translation>
    </message>
    <message>
        <source>Icon in the tra&amp;y</source>
        <translation>Icône de &amp;notification</translation>
    </message>
    <message>
        <source>Increase Speed</source>
        <translation>Accélérer</translation>
    </message>
    <message>
        <source>It is a folder, not a file.</source>
        <translation>C’est un dossier, pas un fichier.</translation>
    </message>
    <message>
        <source>It is the key of “%1”, which loses it.</source>
        <translation>C’est la touche de « %1 », qui la perd.</translation>
    </message>
    <message>
        <source>Jump to That Tenth of the Item</source>
        <translation>Aller à ce dixième</translation>
    </message>
    <message>
        <source>&amp;Keep History of recently Opened files.</source>
        <translation>&amp;Garder l’historique des fichiers ouverts.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>Lan&amp;gue :</translation>
    </message>
    <message>
        <source>Larger controls, for &amp;fingers</source>
        <translation>Commandes plus grandes, pour les &amp;doigts</translation>
    </message>
    <message>
        <source>Larger Subtitles</source>
        <translation>Sous-titres plus grands</translation>
    </message>
    <message numerus="yes">
        <source>Last time: %n files</source>
        <translation><numerusform>La dernière fois : %n fichier</numerusform><numerusform>La dernière fois : %n fichiers</numerusform></translation>
    </message>
    <message>
        <source>&amp;Launch Files in Fullscreen.</source>
        <translation>Ou&amp;vrir les fichiers en plein écran.</translation>
    </message>
    <message>
        <source>Leave &amp;Full Screen</source>
        <translation>Quitter le &amp;plein écran</translation>
    </message>
    <message>
        <source>Leave Full Screen</source>
        <translation>Quitter le plein écran</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Réduit</translation>
    </message>
    <message>
        <source>Let go to play</source>
        <translation>Relâchez pour lire</translation>
    </message>
    <message>
        <source>LGPL 2.1 or later</source>
        <translation>LGPL 2.1 ou ultérieure</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linéaire</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listes</translation>
    </message>
    <message>
        <source>&amp;Load File...</source>
        <translation>&amp;Charger un fichier...</translation>
    </message>
    <message>
        <source>Load File...</source>
        <translation>Charger un fichier...</translation>
    </message>
    <message>
        <source>LOADING...</source>
        <translation>CHARGEMENT...</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>looks into files, makes thumbnails</source>
        <translation>examine les fichiers, fait les vignettes</translation>
    </message>
    <message>
        <source>Louder</source>
        <translation>Plus fort</translation>
    </message>
    <message>
        <source>Louder Than the File</source>
        <translation>Plus fort que le fichier</translation>
    </message>
    <message>
        <source>&amp;Low Rows</source>
        <translation>Li&amp;gnes basses</translation>
    </message>
    <message>
        <source>Low Rows</source>
        <translation>Lignes basses</translation>
    </message>
    <message>
        <source>Made with</source>
        <translation>Fait avec</translation>
    </message>
    <message>
        <source>&amp;Matroska</source>
        <translation>&amp;Matroska</translation>
    </message>
    <message>
        <source>Matroska Audio File</source>
        <translation>Fichier audio Matroska</translation>
    </message>
    <message>
        <source>Matroska Media File</source>
        <translation>Fichier Matroska</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Maximize or Restore</source>
        <translation>Agrandir ou restaurer</translation>
    </message>
    <message>
        <source>Media Player</source>
        <translation>Lecteur multimédia</translation>
    </message>
    <message>
        <source>&amp;Memory</source>
        <translation>&amp;Mémoire</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Menu of What Has the Focus</source>
        <translation>Menu de l’élément actif</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>&amp;More</source>
        <translation>Pl&amp;us</translation>
    </message>
    <message>
        <source>&amp;Motion:</source>
        <translation>&amp;Mouvement :</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Move the Window by the Arrows</source>
        <translation>Déplacer la fenêtre avec les flèches</translation>
    </message>
    <message>
        <source>Move U&amp;p</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Mp3 Format Sound</source>
        <translation>Fichier audio MP3</translation>
    </message>
    <message>
        <source>MP&amp;EG</source>
        <translation>MP&amp;EG</translation>
    </message>
    <message>
        <source>MPEG Media File</source>
        <translation>Fichier MPEG</translation>
    </message>
    <message>
        <source>MPEG4 Audio File</source>
        <translation>Fichier audio MPEG4</translation>
    </message>
    <message>
        <source>MPEG4 Media File</source>
        <translation>Fichier MPEG4</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Ne&amp;w key:</source>
        <translation>&amp;Nouvelle touche :</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>Chapitre suivant</translation>
    </message>
    <message>
        <source>Next Pi&amp;cture</source>
        <translation>&amp;Image suivante</translation>
    </message>
    <message>
        <source>Next Picture</source>
        <translation>Image suivante</translation>
    </message>
    <message>
        <source>No Ke&amp;y</source>
        <translation>A&amp;ucune touche</translation>
    </message>
    <message>
        <source>&amp;No Repeat</source>
        <translation>&amp;Ne pas répéter</translation>
    </message>
    <message>
        <source>No longer full screen</source>
        <translation>Plein écran terminé</translation>
    </message>
    <message>
        <source>No Repeat</source>
        <translation>Ne pas répéter</translation>
    </message>
    <message>
        <source>No snapshot could be saved in %1</source>
        <translation>Aucun instantané n’a pu être enregistré dans %1</translation>
    </message>
    <message>
        <source>No working folder can be made.</source>
        <translation>Impossible de créer un dossier de travail.</translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation>&amp;Normal</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Nothing in the playlist can be played</source>
        <translation>Rien dans la liste ne peut être lu</translation>
    </message>
    <message>
        <source>&amp;Nothing in This Folder</source>
        <translation>&amp;Rien de ce dossier</translation>
    </message>
    <message>
        <source>Nothing in This Folder</source>
        <translation>Rien de ce dossier</translation>
    </message>
    <message>
        <source>Nothing plays that the subtitles could belong to</source>
        <translation>Rien en lecture à quoi ces sous-titres puissent appartenir</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>O&amp;gg</source>
        <translation>O&amp;gg</translation>
    </message>
    <message>
        <source>OGG Media File</source>
        <translation>Fichier OGG</translation>
    </message>
    <message>
        <source>OGG Vorbis Audio File</source>
        <translation>Fichier audio OGG Vorbis</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Open DVD</source>
        <translation>Ouvrir un DVD</translation>
    </message>
    <message>
        <source>Open Media File...</source>
        <translation>Ouvrir un fichier...</translation>
    </message>
    <message>
        <source>Open Subtitles</source>
        <translation>Ouvrir des sous-titres</translation>
    </message>
    <message>
        <source>Open Video File</source>
        <translation>Ouvrir une vidéo</translation>
    </message>
    <message>
        <source>Open Video File...</source>
        <translation>Ouvrir une vidéo...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Options...</translation>
    </message>
    <message>
        <source>&amp;Order</source>
        <translation>&amp;Ordre</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Paused at %1</source>
        <translation>En pause à %1</translation>
    </message>
    <message>
        <source>Cover and Bars with Music</source>
        <translation>Pochette et barres avec la musique</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Piste %1</translation>
    </message>
    <message>
        <source>Pictures over the Seek Bar</source>
        <translation>Images au-dessus de la barre de position</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Play from the Start</source>
        <translation>Lire depuis le début</translation>
    </message>
    <message>
        <source>Play &amp;List</source>
        <translation>Li&amp;ste</translation>
    </message>
    <message>
        <source>Play Mode</source>
        <translation>Mode de lecture</translation>
    </message>
    <message>
        <source>Play Mode: Continuous</source>
        <translation>Mode de lecture : continu</translation>
    </message>
    <message>
        <source>Play Mode: Normal</source>
        <translation>Mode de lecture : normal</translation>
    </message>
    <message>
        <source>Play Mode: Shuffle</source>
        <translation>Mode de lecture : aléatoire</translation>
    </message>
    <message>
        <source>Play &amp;Next</source>
        <translation>Lire &amp;ensuite</translation>
    </message>
    <message>
        <source>Play Next</source>
        <translation>Lire ensuite</translation>
    </message>
    <message>
        <source>Play or Pause</source>
        <translation>Lire ou mettre en pause</translation>
    </message>
    <message>
        <source>Play the Selected Entry</source>
        <translation>Lire l’élément choisi</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Lire/Pause</translation>
    </message>
    <message>
        <source>&amp;Player</source>
        <translation>&amp;Lecteur</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Playing from %1</source>
        <translation>Lecture à partir de %1</translation>
    </message>
    <message>
        <source>Playing rate:%1x</source>
        <translation>Vitesse : %1x</translation>
    </message>
    <message>
        <source>&amp;Play&amp;List</source>
        <translation>Li&amp;ste</translation>
    </message>
    <message>
        <source>Play&amp;list</source>
        <translation>&amp;Liste de lecture</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Liste de lecture</translation>
    </message>
    <message>
        <source>Plays next: %1</source>
        <translation>Ensuite : %1</translation>
    </message>
    <message>
        <source>Plays on</source>
        <translation>La lecture continue</translation>
    </message>
    <message>
        <source>Plays on, whatever the clock says</source>
        <translation>La lecture continue, quelle que soit l’heure</translation>
    </message>
    <message>
        <source>Please choose a folder for the snapshots, with its whole path.</source>
        <translation>Veuillez choisir un dossier pour les instantanés, avec son chemin complet.</translation>
    </message>
    <message>
        <source>Please insert a valid DVD.</source>
        <translation>Veuillez insérer un DVD valide.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>P&amp;refix:</source>
        <translation>Pré&amp;fixe :</translation>
    </message>
    <message>
        <source>Press it here</source>
        <translation>Pressez-la ici</translation>
    </message>
    <message>
        <source>Press the Disc's Button, or Fill the Screen</source>
        <translation>Bouton du disque, ou plein écran</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>Chapitre précédent</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>&amp;Propriétés</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>&amp;QuickTime</source>
        <translation>&amp;QuickTime</translation>
    </message>
    <message>
        <source>QuickTime File</source>
        <translation>Fichier QuickTime</translation>
    </message>
    <message>
        <source>Quieter</source>
        <translation>Moins fort</translation>
    </message>
    <message>
        <source>reads MPEG program streams</source>
        <translation>lit les flux MPEG</translation>
    </message>
    <message>
        <source>&amp;Recently Played files</source>
        <translation>Fichiers &amp;récents</translation>
    </message>
    <message>
        <source>Recently Played Files</source>
        <translation>Fichiers récents</translation>
    </message>
    <message>
        <source>R&amp;edo</source>
        <translation>Ré&amp;tablir</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>&amp;Remember Lists and Places</source>
        <translation>&amp;Mémoriser listes et positions</translation>
    </message>
    <message>
        <source>Remember Lists and Places</source>
        <translation>Mémoriser listes et positions</translation>
    </message>
    <message>
        <source>Remember the posit&amp;ion</source>
        <translation>Retenir la positi&amp;on</translation>
    </message>
    <message>
        <source>Remember the si&amp;ze</source>
        <translation>Retenir la taill&amp;e</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Remove the Selected Entry</source>
        <translation>Retirer l’élément choisi</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries</source>
        <translation><numerusform>Une entrée retirée</numerusform><numerusform>%n entrées retirées</numerusform></translation>
    </message>
    <message>
        <source>&amp;Repeat All</source>
        <translation>&amp;Tout répéter</translation>
    </message>
    <message>
        <source>Repeat All</source>
        <translation>Tout répéter</translation>
    </message>
    <message>
        <source>Repeat Mode</source>
        <translation>Répétition</translation>
    </message>
    <message>
        <source>Repeat Mode: No Repeat</source>
        <translation>Répétition : aucune</translation>
    </message>
    <message>
        <source>Repeat Mode: Repeat All</source>
        <translation>Répétition : tout</translation>
    </message>
    <message>
        <source>Repeat Mode: Single Repeat</source>
        <translation>Répétition : un seul</translation>
    </message>
    <message>
        <source>Reset Speed</source>
        <translation>Vitesse normale</translation>
    </message>
    <message>
        <source>Resize the Window by the Arrows</source>
        <translation>Redimensionner la fenêtre avec les flèches</translation>
    </message>
    <message>
        <source>Restart the Computer</source>
        <translation>Redémarrer l’ordinateur</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Retour rapide</translation>
    </message>
    <message>
        <source>Rewind While Held</source>
        <translation>Retour rapide tant que maintenu</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Save List As</source>
        <translation>Enregistrer la liste sous</translation>
    </message>
    <message>
        <source>Save List &amp;As...</source>
        <translation>Enregistrer la &amp;liste sous...</translation>
    </message>
    <message>
        <source>Save List As...</source>
        <translation>Enregistrer la liste sous...</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Say Where It Is</source>
        <translation>Dire la position</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>S&amp;hortcuts</source>
        <translation>&amp;Raccourcis</translation>
    </message>
    <message>
        <source>Show a small previe&amp;w in the window</source>
        <translation>&amp;Montrer un petit aperçu dans la fenêtre</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>Montrer dans le &amp;dossier</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Montrer dans le dossier</translation>
    </message>
    <message>
        <source>Show or Hide the Playlist</source>
        <translation>Montrer ou cacher la liste</translation>
    </message>
    <message>
        <source>Show the Time That Is Left</source>
        <translation>Montrer le temps restant</translation>
    </message>
    <message>
        <source>Show &amp;What Plays</source>
        <translation>Montrer la lect&amp;ure en cours</translation>
    </message>
    <message>
        <source>Show What Plays</source>
        <translation>Montrer la lecture en cours</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>&amp;Aléatoire</translation>
    </message>
    <message>
        <source>Shuffle</source>
        <translation>Aléatoire</translation>
    </message>
    <message>
        <source>Shutdown the Computer</source>
        <translation>Éteindre l’ordinateur</translation>
    </message>
    <message>
        <source>&amp;Single Repeat</source>
        <translation>&amp;Répéter un seul</translation>
    </message>
    <message>
        <source>Single Repeat</source>
        <translation>Répéter un seul</translation>
    </message>
    <message>
        <source>Si&amp;ze of everything:</source>
        <translation>&amp;Taille de tout :</translation>
    </message>
    <message>
        <source>Smaller Subtitles</source>
        <translation>Sous-titres plus petits</translation>
    </message>
    <message>
        <source>S&amp;napshot</source>
        <translation>I&amp;nstantané</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Instantané</translation>
    </message>
    <message>
        <source>&amp;Snapshots</source>
        <translation>&amp;Instantanés</translation>
    </message>
    <message>
        <source>Sort by &amp;Date</source>
        <translation>Par da&amp;te</translation>
    </message>
    <message>
        <source>Sort by Date</source>
        <translation>Par date</translation>
    </message>
    <message>
        <source>Sort by &amp;Folder</source>
        <translation>Par d&amp;ossier</translation>
    </message>
    <message>
        <source>Sort by Folder</source>
        <translation>Par dossier</translation>
    </message>
    <message>
        <source>Sort by &amp;Length</source>
        <translation>Par d&amp;urée</translation>
    </message>
    <message>
        <source>Sort by Length</source>
        <translation>Par durée</translation>
    </message>
    <message>
        <source>Sort by &amp;Name</source>
        <translation>Par &amp;nom</translation>
    </message>
    <message>
        <source>Sort by Name</source>
        <translation>Par nom</translation>
    </message>
    <message>
        <source>Sort by &amp;Size</source>
        <translation>Par t&amp;aille</translation>
    </message>
    <message>
        <source>Sort by Size</source>
        <translation>Par taille</translation>
    </message>
    <message>
        <source>Sound %1</source>
        <translation>Son %1</translation>
    </message>
    <message>
        <source>Sound Earlier</source>
        <translation>Son plus tôt</translation>
    </message>
    <message>
        <source>Sound Later</source>
        <translation>Son plus tard</translation>
    </message>
    <message>
        <source>Start &amp;Over</source>
        <translation>Re&amp;commencer</translation>
    </message>
    <message>
        <source>Start Over</source>
        <translation>Recommencer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stop After This &amp;One</source>
        <translation>Arrêter après &amp;celui-ci</translation>
    </message>
    <message>
        <source>Stop After This One</source>
        <translation>Arrêter après celui-ci</translation>
    </message>
    <message>
        <source>Stop by the Cloc&amp;k</source>
        <translation>Arrêter à l’&amp;heure dite</translation>
    </message>
    <message>
        <source>Stop by the Clock</source>
        <translation>Arrêter à l’heure dite</translation>
    </message>
    <message>
        <source>Stopped, as the clock was told</source>
        <translation>Arrêté à l’heure dite</translation>
    </message>
    <message>
        <source>Stops adding files to the playlist</source>
        <translation>Arrête l’ajout à la liste</translation>
    </message>
    <message>
        <source>Stops after this one</source>
        <translation>Arrêt après celui-ci</translation>
    </message>
    <message numerus="yes">
        <source>Stops in %n minutes</source>
        <translation><numerusform>S’arrête dans %n minute</numerusform><numerusform>S’arrête dans %n minutes</numerusform></translation>
    </message>
    <message>
        <source>&amp;Subtitles</source>
        <translation>&amp;Sous-titres</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Sous-titres</translation>
    </message>
    <message>
        <source>Subtitles %1</source>
        <translation>Sous-titres %1</translation>
    </message>
    <message>
        <source>Subtitles Earlier</source>
        <translation>Sous-titres plus tôt</translation>
    </message>
    <message>
        <source>Subtitles Later</source>
        <translation>Sous-titres plus tard</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>Sous-titres : %1</translation>
    </message>
    <message>
        <source>The audio format %1 in file %2 is currently unsupported. It will not be added to the project.</source>
        <translation>Le format audio %1 du fichier %2 n’est pas pris en charge. Il ne sera pas ajouté.</translation>
    </message>
    <message>
        <source>The caption shows</source>
        <translation>Le titre montre</translation>
    </message>
    <message>
        <source>the engine that plays</source>
        <translation>le moteur de lecture</translation>
    </message>
    <message>
        <source>The file cannot be read. It may belong to another user, or its drive may be damaged.</source>
        <translation>Le fichier est illisible. Il appartient peut-être à un autre utilisateur, ou son disque est endommagé.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>The folder's name can be kept only without a comma, and without a blank or a quote at its beginning. Please choose another folder.</source>
        <translation>Le nom du dossier ne doit pas contenir de virgule ni commencer par un espace ou un guillemet. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>the &amp;full path</source>
        <translation>le c&amp;hemin complet</translation>
    </message>
    <message>
        <source>The help is missing. It should be here:</source>
        <translation>L’aide est introuvable. Elle devrait être ici :</translation>
    </message>
    <message>
        <source>The item is not that long</source>
        <translation>L’élément n’est pas si long</translation>
    </message>
    <message>
        <source>The prefix can be kept only without a comma, and without a blank or a quote at its beginning.</source>
        <translation>Le préfixe ne doit pas contenir de virgule ni commencer par un espace ou un guillemet.</translation>
    </message>
    <message>
        <source>the p&amp;rogram's name alone</source>
        <translation>le no&amp;m du programme seul</translation>
    </message>
    <message>
        <source>The subtitles cannot be opened</source>
        <translation>Impossible d’ouvrir les sous-titres</translation>
    </message>
    <message>
        <source>the title &amp;of the file</source>
        <translation>le titre &amp;du fichier</translation>
    </message>
    <message>
        <source>the typeface</source>
        <translation>la police</translation>
    </message>
    <message>
        <source>The web page of VLC</source>
        <translation>La page web de VLC</translation>
    </message>
    <message>
        <source>The whole window</source>
        <translation>Toute la fenêtre</translation>
    </message>
    <message>
        <source>the windows</source>
        <translation>les fenêtres</translation>
    </message>
    <message>
        <source>There is no browser that shows this page:</source>
        <translation>Aucun navigateur pour cette page :</translation>
    </message>
    <message>
        <source>There is no program that shows the folder:</source>
        <translation>Aucun programme n’affiche le dossier :</translation>
    </message>
    <message>
        <source>There is no program that shows the help:</source>
        <translation>Aucun programme pour afficher l’aide :</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Titre</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>To the Next Part of the Window</source>
        <translation>Partie suivante de la fenêtre</translation>
    </message>
    <message>
        <source>To the Part of the Window Before</source>
        <translation>Partie précédente de la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Type what it does, or its key</source>
        <translation>Ce qu’elle fait, ou sa touche</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Rétablir le son</translation>
    </message>
    <message>
        <source>&amp;Use new player for each media file played.</source>
        <translation>&amp;Utiliser un nouveau lecteur pour chaque fichier.</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Habituel</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>&amp;Video</source>
        <translation>&amp;Vidéo</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Video DVD</source>
        <translation>DVD vidéo</translation>
    </message>
    <message>
        <source>Video File</source>
        <translation>Fichier vidéo</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Volume %1 %</source>
        <translation>Volume %1 %</translation>
    </message>
    <message>
        <source>Volume %1 % (muted)</source>
        <translation>Volume %1 % (muet)</translation>
    </message>
    <message>
        <source>Volume %1 %: more than the file has, it can distort</source>
        <translation>Volume %1 % : plus que le fichier, risque de distorsion</translation>
    </message>
    <message>
        <source>&amp;Ways as in Other Players</source>
        <translation>Comme d’autres lecte&amp;urs</translation>
    </message>
    <message>
        <source>Ways as in Other Players</source>
        <translation>Comme d’autres lecteurs</translation>
    </message>
    <message>
        <source>Ways: Familiar</source>
        <translation>Manière : familière</translation>
    </message>
    <message>
        <source>Ways: Zentaro's own</source>
        <translation>Manière : propre à Zentaro</translation>
    </message>
    <message>
        <source>Language and size count from the next start on.</source>
        <translation>La langue et la taille comptent à partir du prochain démarrage.</translation>
    </message>
    <message>
        <source>What the caption shows</source>
        <translation>Ce que montre le titre</translation>
    </message>
    <message>
        <source>Where snapshots go</source>
        <translation>Où vont les instantanés</translation>
    </message>
    <message>
        <source>While a video plays</source>
        <translation>Pendant la lecture d’une vidéo</translation>
    </message>
    <message>
        <source>Whole Window</source>
        <translation>Toute la fenêtre</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Windows</translation>
    </message>
    <message>
        <source>Windows Audio File</source>
        <translation>Fichier audio Windows</translation>
    </message>
    <message>
        <source>Windows Media File</source>
        <translation>Fichier Windows Media</translation>
    </message>
    <message>
        <source>Yadif</source>
        <translation>Yadif</translation>
    </message>
    <message>
        <source>Yadif, full rate</source>
        <translation>Yadif, pleine cadence</translation>
    </message>
    <message>
        <source>You were at %1</source>
        <translation>Vous en étiez à %1</translation>
    </message>
    <message>
        <source>Zentaro</source>
        <translation>Zentaro</translation>
    </message>
    <message>
        <source>&amp;Ways</source>
        <translation>&amp;Habitudes</translation>
    </message>
    <message>
        <source>&amp;Zentaro's own ways</source>
        <translation>La manière de &amp;Zentaro</translation>
    </message>
    <message>
        <source>Ways &amp;familiar from other players</source>
        <translation>Comme dans les &amp;autres lecteurs</translation>
    </message>
    <message>
        <source>With these, Play goes on from a pause, Next and Previous follow the shuffled order, a click in the list does not change what follows, all known types of files are taken, and the last list comes back by itself. The help names the rest.</source>
        <translation>Ainsi, Lecture reprend après une pause, Suivant et Précédent suivent l'ordre aléatoire, un clic dans la liste ne change pas la suite, tous les types de fichiers connus sont acceptés et la dernière liste revient d'elle-même. L'aide indique le reste.</translation>
    </message>
    <message>
        <source>&amp;Remember lists and places</source>
        <translation>Mémo&amp;riser les listes et les positions</translation>
    </message>
    <message>
        <source>Also of &amp;discs that are taken out</source>
        <translation>Aussi pour les &amp;disques amovibles</translation>
    </message>
    <message>
        <source>&amp;Low rows in the list</source>
        <translation>&amp;Lignes basses dans la liste</translation>
    </message>
    <message>
        <source>Used to other players? Click or press Enter to take their ways</source>
        <translation>Habitué à d'autres lecteurs ? Cliquez ou appuyez sur Entrée pour adopter leur manière</translation>
    </message>
    <message>
        <source>%1 of %2 could not be opened</source>
        <translation>%1 sur %2 n'ont pas pu être ouverts</translation>
    </message>
    <message>
        <source>It is of no type that is known to play.</source>
        <translation>Ce type de fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Afficher</translation>
    </message>
    <message>
        <source>Show What Could Not Be Opened</source>
        <translation>Afficher ce qui n'a pas pu être ouvert</translation>
    </message>
</context>
</TS>
