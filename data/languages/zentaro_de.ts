<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Zentaro</name>
    <message>
        <source>"%1" is already in your playlist</source>
        <translation>„%1“ steht schon in der Wiedergabeliste</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 bei %2</translation>
    </message>
    <message>
        <source>%1 cannot be played</source>
        <translation>%1 kann nicht abgespielt werden</translation>
    </message>
    <message>
        <source>%1 list</source>
        <translation>%1-Liste</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n entries could not be found</source>
        <translation><numerusform>%1 von %n Eintrag wurde nicht gefunden</numerusform><numerusform>%1 von %n Einträgen wurden nicht gefunden</numerusform></translation>
    </message>
    <message>
        <source>%1, playing</source>
        <translation>%1, läuft</translation>
    </message>
    <message numerus="yes">
        <source>%n entries play next</source>
        <translation><numerusform>%n Eintrag folgt als Nächster</numerusform><numerusform>%n Einträge folgen als Nächste</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation><numerusform>%n Datei</numerusform><numerusform>%n Dateien</numerusform></translation>
    </message>
    <message>
        <source>30 Seconds Back</source>
        <translation>30 Sekunden zurück</translation>
    </message>
    <message>
        <source>30 Seconds Forward</source>
        <translation>30 Sekunden vor</translation>
    </message>
    <message>
        <source>5 Seconds Back</source>
        <translation>5 Sekunden zurück</translation>
    </message>
    <message>
        <source>5 Seconds Forward</source>
        <translation>5 Sekunden vor</translation>
    </message>
    <message>
        <source>&lt;a href="%1"&gt;The web page of VLC&lt;/a&gt;, whose engine plays everything here</source>
        <translation>&lt;a href="%1"&gt;Die Webseite von VLC&lt;/a&gt;, dessen Technik hier alles abspielt</translation>
    </message>
    <message>
        <source>&lt;No DVD drives were found&gt;</source>
        <translation>&lt;Kein DVD-Laufwerk gefunden&gt;</translation>
    </message>
    <message>
        <source>&lt;No History&gt;</source>
        <translation>&lt;Kein Verlauf&gt;</translation>
    </message>
    <message>
        <source>&lt;Please insert a DVD&gt;</source>
        <translation>&lt;Bitte eine DVD einlegen&gt;</translation>
    </message>
    <message>
        <source>A desktop media player. Free software under the MIT licence.</source>
        <translation>Ein Medienplayer für den Desktop. Freie Software unter der MIT-Lizenz.</translation>
    </message>
    <message>
        <source>A file's name cannot hold any of / \ : * ? " &lt; &gt; |</source>
        <translation>Ein Dateiname darf keines dieser Zeichen enthalten: / \ : * ? " &lt; &gt; |</translation>
    </message>
    <message>
        <source>A Little &amp;Faster</source>
        <translation>Etwas &amp;schneller</translation>
    </message>
    <message>
        <source>A Little Faster</source>
        <translation>Etwas schneller</translation>
    </message>
    <message>
        <source>A Little &amp;Slower</source>
        <translation>Etwas &amp;langsamer</translation>
    </message>
    <message>
        <source>A Little Slower</source>
        <translation>Etwas langsamer</translation>
    </message>
    <message>
        <source>A time looks like this: 1:02:30</source>
        <translation>Eine Zeit sieht so aus: 1:02:30</translation>
    </message>
    <message>
        <source>* In the system&apos;s own settings it is another program, and they decide.</source>
        <translation>* In den Einstellungen des Systems ist es ein anderes Programm, und sie entscheiden.</translation>
    </message>
    <message>
        <source>&amp;Default apps...</source>
        <translation>&amp;Standard-Apps...</translation>
    </message>
    <message>
        <source>A type that is no longer chosen goes back to the program that had it before.</source>
        <translation>Ein abgewählter Typ geht an das vorige Programm zurück.</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber Zentaro</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über Zentaro</translation>
    </message>
    <message>
        <source>About Zentaro</source>
        <translation>Über Zentaro</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Add Media File(s)...</source>
        <translation>Mediendateien hinzufügen...</translation>
    </message>
    <message>
        <source>Adding %1 of %2</source>
        <translation>%1 von %2 wird hinzugefügt</translation>
    </message>
    <message>
        <source>After a snapshot</source>
        <translation>Nach einem Schnappschuss</translation>
    </message>
    <message>
        <source>After file playing finished</source>
        <translation>Nach der Wiedergabe</translation>
    </message>
    <message>
        <source>After playing finish</source>
        <translation>Nach der Wiedergabe</translation>
    </message>
    <message>
        <source>After Playing: Do nothing</source>
        <translation>Nach der Wiedergabe: nichts tun</translation>
    </message>
    <message>
        <source>After Playing: Exit Zentaro</source>
        <translation>Nach der Wiedergabe: Zentaro beenden</translation>
    </message>
    <message>
        <source>After Playing: Restart the Computer</source>
        <translation>Nach der Wiedergabe: Computer neu starten</translation>
    </message>
    <message>
        <source>After Playing: Shutdown the Computer</source>
        <translation>Nach der Wiedergabe: Computer ausschalten</translation>
    </message>
    <message>
        <source>Again and Again from Here, to Here</source>
        <translation>Immer wieder von hier, bis hier</translation>
    </message>
    <message>
        <source>Again and again: %1 to %2</source>
        <translation>Immer wieder: %1 bis %2</translation>
    </message>
    <message>
        <source>All as Del&amp;ivered</source>
        <translation>Alle wie &amp;ausgeliefert</translation>
    </message>
    <message>
        <source>All file &amp;types</source>
        <translation>&amp;Alle Dateitypen</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>All is forgotten</source>
        <translation>Alles ist vergessen</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>Alle unterstützten Formate</translation>
    </message>
    <message>
        <source>Also of &amp;Discs That Are Taken Out</source>
        <translation>Auch von herausgenommenen &amp;Datenträgern</translation>
    </message>
    <message>
        <source>Also of Discs That Are Taken Out</source>
        <translation>Auch von herausgenommenen Datenträgern</translation>
    </message>
    <message>
        <source>Always on &amp;top</source>
        <translation>Immer im &amp;Vordergrund</translation>
    </message>
    <message>
        <source>Appeara&amp;nce</source>
        <translation>An&amp;zeige</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>As in the file</source>
        <translation>Wie in der Datei</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>As&amp;pect Ratio</source>
        <translation>&amp;Seitenverhältnis</translation>
    </message>
    <message>
        <source>Asso&amp;ciations</source>
        <translation>&amp;Dateitypen</translation>
    </message>
    <message>
        <source>A&amp;udio</source>
        <translation>A&amp;udio</translation>
    </message>
    <message>
        <source>Audio File</source>
        <translation>Audiodatei</translation>
    </message>
    <message>
        <source>&amp;Audio Track</source>
        <translation>&amp;Tonspur</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Back towards the Full Volume</source>
        <translation>Zurück zur vollen Lautstärke</translation>
    </message>
    <message>
        <source>Blend</source>
        <translation>Überblenden</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>&amp;Bring Back the Last List</source>
        <translation>&amp;Letzte Liste zurückholen</translation>
    </message>
    <message>
        <source>Bring Back the Last List</source>
        <translation>Letzte Liste zurückholen</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>D&amp;urchsuchen...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cannot open file &lt;%1&gt;</source>
        <translation>Die Datei &lt;%1&gt; kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Cannot render thumbnail for %1. The video codec may be unsupported.</source>
        <translation>Von %1 kann kein Vorschaubild erstellt werden. Vielleicht wird der Videocodec nicht unterstützt.</translation>
    </message>
    <message>
        <source>Cannot save the list &lt;%1&gt;</source>
        <translation>Die Liste &lt;%1&gt; kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>&amp;Chapter</source>
        <translation>&amp;Kapitel</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Choose together</source>
        <translation>Gemeinsam wählen</translation>
    </message>
    <message>
        <source>Clear &amp;Recent Files</source>
        <translation>&amp;Zuletzt Gespieltes löschen</translation>
    </message>
    <message>
        <source>Clear Recent Files</source>
        <translation>Zuletzt Gespieltes löschen</translation>
    </message>
    <message>
        <source>Click or press Enter to bring it back</source>
        <translation>Klicken oder Eingabetaste holt sie zurück</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>&amp;Continuous</source>
        <translation>&amp;Fortlaufend</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Fortlaufend</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Kontrast:</translation>
    </message>
    <message>
        <source>Decrease Speed</source>
        <translation>Langsamer</translation>
    </message>
    <message>
        <source>&amp;Deinterlace</source>
        <translation>&amp;Entflechten</translation>
    </message>
    <message>
        <source>Disable the screen sa&amp;ver</source>
        <translation>Bildschirmscho&amp;ner abschalten</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Discs</translation>
    </message>
    <message>
        <source>Divider between video and playlist</source>
        <translation>Trenner zwischen Video und Liste</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>Nichts tun</translation>
    </message>
    <message>
        <source>&amp;Docked at:</source>
        <translation>Angedo&amp;ckt:</translation>
    </message>
    <message>
        <source>Drop files here to play them</source>
        <translation>Dateien zum Abspielen hier ablegen</translation>
    </message>
    <message>
        <source>Drop files here, or press Ctrl+O</source>
        <translation>Dateien hier ablegen oder Strg+O drücken</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>Enter runs the command.</source>
        <translation>Die Eingabetaste führt den Befehl aus.</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Exit Zentaro</source>
        <translation>Zentaro beenden</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>Vorspulen</translation>
    </message>
    <message>
        <source>Fast Forward While Held</source>
        <translation>Vorspulen, solange gehalten</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Dateitypen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Find a Command</source>
        <translation>Befehl suchen</translation>
    </message>
    <message>
        <source>Find a Command...</source>
        <translation>Befehl suchen...</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Suchen...</translation>
    </message>
    <message>
        <source>Find: %1   %2 of %3</source>
        <translation>Suche: %1   %2 von %3</translation>
    </message>
    <message>
        <source>Find: type a part of a title or folder</source>
        <translation>Suche: einen Teil von Titel oder Ordner tippen</translation>
    </message>
    <message>
        <source>First Menu</source>
        <translation>Erstes Menü</translation>
    </message>
    <message>
        <source>Flash Video File</source>
        <translation>Flash-Videodatei</translation>
    </message>
    <message>
        <source>Folder for snapshots</source>
        <translation>Ordner für Schnappschüsse</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>Forget &amp;All</source>
        <translation>&amp;Alles vergessen</translation>
    </message>
    <message>
        <source>Forget All</source>
        <translation>Alles vergessen</translation>
    </message>
    <message>
        <source>&amp;Forget This Entry</source>
        <translation>Diesen &amp;Eintrag vergessen</translation>
    </message>
    <message>
        <source>Forget This Entry</source>
        <translation>Diesen Eintrag vergessen</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>From %1: press again at the end</source>
        <translation>Ab %1: am Ende noch einmal drücken</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Full screen controls</source>
        <translation>Bedienung im Vollbild</translation>
    </message>
    <message>
        <source>Full Screen On or Off</source>
        <translation>Vollbild ein oder aus</translation>
    </message>
    <message>
        <source>Go to a Time</source>
        <translation>Zu einer Zeit springen</translation>
    </message>
    <message>
        <source>&amp;Go to a Time...</source>
        <translation>&amp;Zu einer Zeit...</translation>
    </message>
    <message>
        <source>Go to a Time...</source>
        <translation>Zu einer Zeit...</translation>
    </message>
    <message>
        <source>&amp;Go to Where I Was</source>
        <translation>&amp;Zur letzten Stelle</translation>
    </message>
    <message>
        <source>Go to Where I Was</source>
        <translation>Zur letzten Stelle</translation>
    </message>
    <message>
        <source>Goes on after this one</source>
        <translation>Geht nach diesem weiter</translation>
    </message>
    <message>
        <source>Goes on at %1</source>
        <translation>Weiter bei %1</translation>
    </message>
    <message>
        <source>GPL 2 or later</source>
        <translation>GPL 2 oder neuer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>&amp;Hilfethemen</translation>
    </message>
    <message>
        <source>Help Topics</source>
        <translation>Hilfethemen</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Hours, minutes and seconds, such as 1:02:30</source>
        <translation>Stunden, Minuten und Sekunden, etwa 1:02:30</translation>
    </message>
    <message>
        <source>Icon in the tra&amp;y</source>
        <translation>S&amp;ymbol im Infobereich</translation>
    </message>
    <message>
        <source>Increase Speed</source>
        <translation>Schneller</translation>
    </message>
    <message>
        <source>It is a folder, not a file.</source>
        <translation>Es ist ein Ordner, keine Datei.</translation>
    </message>
    <message>
        <source>It is the key of “%1”, which loses it.</source>
        <translation>Die Taste gehört „%1“ und geht dort verloren.</translation>
    </message>
    <message>
        <source>Jump to That Tenth of the Item</source>
        <translation>Zu diesem Zehntel springen</translation>
    </message>
    <message>
        <source>&amp;Keep History of recently Opened files.</source>
        <translation>Zuletzt geöffnete Dateien mer&amp;ken.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>Sp&amp;rache:</translation>
    </message>
    <message>
        <source>Larger controls, for &amp;fingers</source>
        <translation>Größere Bedienelemente, für &amp;Finger</translation>
    </message>
    <message>
        <source>Larger Subtitles</source>
        <translation>Größere Untertitel</translation>
    </message>
    <message numerus="yes">
        <source>Last time: %n files</source>
        <translation><numerusform>Letztes Mal: %n Datei</numerusform><numerusform>Letztes Mal: %n Dateien</numerusform></translation>
    </message>
    <message>
        <source>&amp;Launch Files in Fullscreen.</source>
        <translation>D&amp;ateien im Vollbild starten.</translation>
    </message>
    <message>
        <source>Leave &amp;Full Screen</source>
        <translation>&amp;Vollbild verlassen</translation>
    </message>
    <message>
        <source>Leave Full Screen</source>
        <translation>Vollbild verlassen</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Weniger</translation>
    </message>
    <message>
        <source>Let go to play</source>
        <translation>Loslassen zum Abspielen</translation>
    </message>
    <message>
        <source>LGPL 2.1 or later</source>
        <translation>LGPL 2.1 oder neuer</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listen</translation>
    </message>
    <message>
        <source>&amp;Load File...</source>
        <translation>&amp;Datei laden...</translation>
    </message>
    <message>
        <source>Load File...</source>
        <translation>Datei laden...</translation>
    </message>
    <message>
        <source>LOADING...</source>
        <translation>LADEN...</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laden...</translation>
    </message>
    <message>
        <source>looks into files, makes thumbnails</source>
        <translation>untersucht Dateien, macht Vorschaubilder</translation>
    </message>
    <message>
        <source>Louder</source>
        <translation>Lauter</translation>
    </message>
    <message>
        <source>Louder Than the File</source>
        <translation>Lauter als die Datei</translation>
    </message>
    <message>
        <source>&amp;Low Rows</source>
        <translation>&amp;Niedrige Zeilen</translation>
    </message>
    <message>
        <source>Low Rows</source>
        <translation>Niedrige Zeilen</translation>
    </message>
    <message>
        <source>Made with</source>
        <translation>Gemacht mit</translation>
    </message>
    <message>
        <source>&amp;Matroska</source>
        <translation>&amp;Matroska</translation>
    </message>
    <message>
        <source>Matroska Audio File</source>
        <translation>Matroska-Audiodatei</translation>
    </message>
    <message>
        <source>Matroska Media File</source>
        <translation>Matroska-Mediendatei</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Maximize or Restore</source>
        <translation>Maximieren oder wiederherstellen</translation>
    </message>
    <message>
        <source>Media Player</source>
        <translation>Medienplayer</translation>
    </message>
    <message>
        <source>&amp;Memory</source>
        <translation>&amp;Gedächtnis</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Menu of What Has the Focus</source>
        <translation>Menü des Elements im Fokus</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>&amp;More</source>
        <translation>&amp;Mehr</translation>
    </message>
    <message>
        <source>&amp;Motion:</source>
        <translation>Be&amp;wegung:</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Move the Window by the Arrows</source>
        <translation>Fenster mit den Pfeiltasten verschieben</translation>
    </message>
    <message>
        <source>Move U&amp;p</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Mp3 Format Sound</source>
        <translation>MP3-Audiodatei</translation>
    </message>
    <message>
        <source>MP&amp;EG</source>
        <translation>MP&amp;EG</translation>
    </message>
    <message>
        <source>MPEG Media File</source>
        <translation>MPEG-Mediendatei</translation>
    </message>
    <message>
        <source>MPEG4 Audio File</source>
        <translation>MPEG4-Audiodatei</translation>
    </message>
    <message>
        <source>MPEG4 Media File</source>
        <translation>MPEG4-Mediendatei</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Ne&amp;w key:</source>
        <translation>&amp;Neue Taste:</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>Nächstes Kapitel</translation>
    </message>
    <message>
        <source>Next Pi&amp;cture</source>
        <translation>Nächstes &amp;Bild</translation>
    </message>
    <message>
        <source>Next Picture</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message>
        <source>No Ke&amp;y</source>
        <translation>&amp;Keine Taste</translation>
    </message>
    <message>
        <source>&amp;No Repeat</source>
        <translation>&amp;Nicht wiederholen</translation>
    </message>
    <message>
        <source>No longer full screen</source>
        <translation>Kein Vollbild mehr</translation>
    </message>
    <message>
        <source>No Repeat</source>
        <translation>Nicht wiederholen</translation>
    </message>
    <message>
        <source>No snapshot could be saved in %1</source>
        <translation>In %1 konnte kein Schnappschuss gespeichert werden</translation>
    </message>
    <message>
        <source>No working folder can be made.</source>
        <translation>Es kann kein Arbeitsordner angelegt werden.</translation>
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
        <translation>Nichts in der Liste kann abgespielt werden</translation>
    </message>
    <message>
        <source>&amp;Nothing in This Folder</source>
        <translation>&amp;Nichts aus diesem Ordner</translation>
    </message>
    <message>
        <source>Nothing in This Folder</source>
        <translation>Nichts aus diesem Ordner</translation>
    </message>
    <message>
        <source>Nothing plays that the subtitles could belong to</source>
        <translation>Es läuft nichts, wozu die Untertitel gehören könnten</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>O&amp;gg</source>
        <translation>O&amp;gg</translation>
    </message>
    <message>
        <source>OGG Media File</source>
        <translation>OGG-Mediendatei</translation>
    </message>
    <message>
        <source>OGG Vorbis Audio File</source>
        <translation>OGG-Vorbis-Audiodatei</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open DVD</source>
        <translation>DVD öffnen</translation>
    </message>
    <message>
        <source>Open Media File...</source>
        <translation>Mediendatei öffnen...</translation>
    </message>
    <message>
        <source>Open Subtitles</source>
        <translation>Untertitel öffnen</translation>
    </message>
    <message>
        <source>Open Video File</source>
        <translation>Videodatei öffnen</translation>
    </message>
    <message>
        <source>Open Video File...</source>
        <translation>Videodatei öffnen...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>&amp;Order</source>
        <translation>&amp;Reihenfolge</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Paused at %1</source>
        <translation>Angehalten bei %1</translation>
    </message>
    <message>
        <source>Cover and Bars with Music</source>
        <translation>Cover und Balken zur Musik</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Titel %1</translation>
    </message>
    <message>
        <source>Pictures over the Seek Bar</source>
        <translation>Bilder über dem Suchbalken</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Play from the Start</source>
        <translation>Von Anfang an abspielen</translation>
    </message>
    <message>
        <source>Play &amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>Play Mode</source>
        <translation>Abspielart</translation>
    </message>
    <message>
        <source>Play Mode: Continuous</source>
        <translation>Abspielart: fortlaufend</translation>
    </message>
    <message>
        <source>Play Mode: Normal</source>
        <translation>Abspielart: normal</translation>
    </message>
    <message>
        <source>Play Mode: Shuffle</source>
        <translation>Abspielart: zufällig</translation>
    </message>
    <message>
        <source>Play &amp;Next</source>
        <translation>Als &amp;Nächstes spielen</translation>
    </message>
    <message>
        <source>Play Next</source>
        <translation>Als Nächstes spielen</translation>
    </message>
    <message>
        <source>Play or Pause</source>
        <translation>Abspielen oder anhalten</translation>
    </message>
    <message>
        <source>Play the Selected Entry</source>
        <translation>Gewählten Eintrag abspielen</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Abspielen/Pause</translation>
    </message>
    <message>
        <source>&amp;Player</source>
        <translation>&amp;Player</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Playing from %1</source>
        <translation>Läuft ab %1</translation>
    </message>
    <message>
        <source>Playing rate:%1x</source>
        <translation>Tempo: %1x</translation>
    </message>
    <message>
        <source>&amp;Play&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>Play&amp;list</source>
        <translation>Wiedergabe&amp;liste</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Wiedergabeliste</translation>
    </message>
    <message>
        <source>Plays next: %1</source>
        <translation>Als Nächstes: %1</translation>
    </message>
    <message>
        <source>Plays on</source>
        <translation>Spielt weiter</translation>
    </message>
    <message>
        <source>Plays on, whatever the clock says</source>
        <translation>Spielt weiter, was die Uhr auch sagt</translation>
    </message>
    <message>
        <source>Please choose a folder for the snapshots, with its whole path.</source>
        <translation>Bitte einen Ordner für die Schnappschüsse mit vollem Pfad wählen.</translation>
    </message>
    <message>
        <source>Please insert a valid DVD.</source>
        <translation>Bitte eine gültige DVD einlegen.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>P&amp;refix:</source>
        <translation>P&amp;räfix:</translation>
    </message>
    <message>
        <source>Press it here</source>
        <translation>Hier drücken</translation>
    </message>
    <message>
        <source>Press the Disc's Button, or Fill the Screen</source>
        <translation>Disc-Schaltfläche drücken oder Vollbild</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>Voriges Kapitel</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>&amp;Eigenschaften</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>&amp;QuickTime</source>
        <translation>&amp;QuickTime</translation>
    </message>
    <message>
        <source>QuickTime File</source>
        <translation>QuickTime-Datei</translation>
    </message>
    <message>
        <source>Quieter</source>
        <translation>Leiser</translation>
    </message>
    <message>
        <source>reads MPEG program streams</source>
        <translation>liest MPEG-Programmströme</translation>
    </message>
    <message>
        <source>&amp;Recently Played files</source>
        <translation>&amp;Zuletzt gespielte Dateien</translation>
    </message>
    <message>
        <source>Recently Played Files</source>
        <translation>Zuletzt gespielte Dateien</translation>
    </message>
    <message>
        <source>R&amp;edo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Remember Lists and Places</source>
        <translation>Listen und Stellen &amp;merken</translation>
    </message>
    <message>
        <source>Remember Lists and Places</source>
        <translation>Listen und Stellen merken</translation>
    </message>
    <message>
        <source>Remember the posit&amp;ion</source>
        <translation>Posit&amp;ion merken</translation>
    </message>
    <message>
        <source>Remember the si&amp;ze</source>
        <translation>&amp;Größe merken</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Remove the Selected Entry</source>
        <translation>Gewählten Eintrag entfernen</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries</source>
        <translation><numerusform>Ein Eintrag entfernt</numerusform><numerusform>%n Einträge entfernt</numerusform></translation>
    </message>
    <message>
        <source>&amp;Repeat All</source>
        <translation>&amp;Alle wiederholen</translation>
    </message>
    <message>
        <source>Repeat All</source>
        <translation>Alle wiederholen</translation>
    </message>
    <message>
        <source>Repeat Mode</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Repeat Mode: No Repeat</source>
        <translation>Wiederholen: nicht</translation>
    </message>
    <message>
        <source>Repeat Mode: Repeat All</source>
        <translation>Wiederholen: alle</translation>
    </message>
    <message>
        <source>Repeat Mode: Single Repeat</source>
        <translation>Wiederholen: einen</translation>
    </message>
    <message>
        <source>Reset Speed</source>
        <translation>Normales Tempo</translation>
    </message>
    <message>
        <source>Resize the Window by the Arrows</source>
        <translation>Fenstergröße mit den Pfeiltasten ändern</translation>
    </message>
    <message>
        <source>Restart the Computer</source>
        <translation>Computer neu starten</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Zurückspulen</translation>
    </message>
    <message>
        <source>Rewind While Held</source>
        <translation>Zurückspulen, solange gehalten</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Save List As</source>
        <translation>Liste speichern unter</translation>
    </message>
    <message>
        <source>Save List &amp;As...</source>
        <translation>&amp;Liste speichern unter...</translation>
    </message>
    <message>
        <source>Save List As...</source>
        <translation>Liste speichern unter...</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Say Where It Is</source>
        <translation>Zeit ansagen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>S&amp;hortcuts</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>Show a small previe&amp;w in the window</source>
        <translation>Kleine &amp;Vorschau im Fenster zeigen</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>Im Or&amp;dner zeigen</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Show or Hide the Playlist</source>
        <translation>Wiedergabeliste zeigen oder verbergen</translation>
    </message>
    <message>
        <source>Show the Time That Is Left</source>
        <translation>Restzeit zeigen</translation>
    </message>
    <message>
        <source>Show &amp;What Plays</source>
        <translation>&amp;Laufendes zeigen</translation>
    </message>
    <message>
        <source>Show What Plays</source>
        <translation>Laufendes zeigen</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>&amp;Zufällig</translation>
    </message>
    <message>
        <source>Shuffle</source>
        <translation>Zufällig</translation>
    </message>
    <message>
        <source>Shutdown the Computer</source>
        <translation>Computer ausschalten</translation>
    </message>
    <message>
        <source>&amp;Single Repeat</source>
        <translation>&amp;Einen wiederholen</translation>
    </message>
    <message>
        <source>Single Repeat</source>
        <translation>Einen wiederholen</translation>
    </message>
    <message>
        <source>Si&amp;ze of everything:</source>
        <translation>&amp;Größe von allem:</translation>
    </message>
    <message>
        <source>Smaller Subtitles</source>
        <translation>Kleinere Untertitel</translation>
    </message>
    <message>
        <source>S&amp;napshot</source>
        <translation>Sch&amp;nappschuss</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Schnappschuss</translation>
    </message>
    <message>
        <source>&amp;Snapshots</source>
        <translation>&amp;Schnappschüsse</translation>
    </message>
    <message>
        <source>Sort by &amp;Date</source>
        <translation>Nach &amp;Datum</translation>
    </message>
    <message>
        <source>Sort by Date</source>
        <translation>Nach Datum</translation>
    </message>
    <message>
        <source>Sort by &amp;Folder</source>
        <translation>Nach O&amp;rdner</translation>
    </message>
    <message>
        <source>Sort by Folder</source>
        <translation>Nach Ordner</translation>
    </message>
    <message>
        <source>Sort by &amp;Length</source>
        <translation>Nach &amp;Länge</translation>
    </message>
    <message>
        <source>Sort by Length</source>
        <translation>Nach Länge</translation>
    </message>
    <message>
        <source>Sort by &amp;Name</source>
        <translation>Nach &amp;Name</translation>
    </message>
    <message>
        <source>Sort by Name</source>
        <translation>Nach Name</translation>
    </message>
    <message>
        <source>Sort by &amp;Size</source>
        <translation>Nach &amp;Größe</translation>
    </message>
    <message>
        <source>Sort by Size</source>
        <translation>Nach Größe</translation>
    </message>
    <message>
        <source>Sound %1</source>
        <translation>Ton %1</translation>
    </message>
    <message>
        <source>Sound Earlier</source>
        <translation>Ton früher</translation>
    </message>
    <message>
        <source>Sound Later</source>
        <translation>Ton später</translation>
    </message>
    <message>
        <source>Start &amp;Over</source>
        <translation>&amp;Von vorn</translation>
    </message>
    <message>
        <source>Start Over</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Stop After This &amp;One</source>
        <translation>&amp;Nach diesem anhalten</translation>
    </message>
    <message>
        <source>Stop After This One</source>
        <translation>Nach diesem anhalten</translation>
    </message>
    <message>
        <source>Stop by the Cloc&amp;k</source>
        <translation>Nach der &amp;Uhr anhalten</translation>
    </message>
    <message>
        <source>Stop by the Clock</source>
        <translation>Nach der Uhr anhalten</translation>
    </message>
    <message>
        <source>Stopped, as the clock was told</source>
        <translation>Angehalten, wie es der Uhr gesagt wurde</translation>
    </message>
    <message>
        <source>Stops adding files to the playlist</source>
        <translation>Beendet das Hinzufügen zur Liste</translation>
    </message>
    <message>
        <source>Stops after this one</source>
        <translation>Hält nach diesem an</translation>
    </message>
    <message numerus="yes">
        <source>Stops in %n minutes</source>
        <translation><numerusform>Hält in %n Minute an</numerusform><numerusform>Hält in %n Minuten an</numerusform></translation>
    </message>
    <message>
        <source>&amp;Subtitles</source>
        <translation>&amp;Untertitel</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Subtitles %1</source>
        <translation>Untertitel %1</translation>
    </message>
    <message>
        <source>Subtitles Earlier</source>
        <translation>Untertitel früher</translation>
    </message>
    <message>
        <source>Subtitles Later</source>
        <translation>Untertitel später</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>Untertitel: %1</translation>
    </message>
    <message>
        <source>The audio format %1 in file %2 is currently unsupported. It will not be added to the project.</source>
        <translation>Das Audioformat %1 in der Datei %2 wird nicht unterstützt. Es wird nicht hinzugefügt.</translation>
    </message>
    <message>
        <source>The caption shows</source>
        <translation>Der Titel zeigt</translation>
    </message>
    <message>
        <source>the engine that plays</source>
        <translation>spielt alles ab</translation>
    </message>
    <message>
        <source>The file cannot be read. It may belong to another user, or its drive may be damaged.</source>
        <translation>Die Datei kann nicht gelesen werden. Vielleicht gehört sie einem anderen Benutzer, oder ihr Laufwerk ist beschädigt.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The folder's name can be kept only without a comma, and without a blank or a quote at its beginning. Please choose another folder.</source>
        <translation>Der Ordnername darf kein Komma enthalten und nicht mit Leerzeichen oder Anführungszeichen beginnen. Bitte einen anderen Ordner wählen.</translation>
    </message>
    <message>
        <source>the &amp;full path</source>
        <translation>den voll&amp;en Pfad</translation>
    </message>
    <message>
        <source>The help is missing. It should be here:</source>
        <translation>Die Hilfe fehlt. Sie sollte hier liegen:</translation>
    </message>
    <message>
        <source>The item is not that long</source>
        <translation>So lang ist es nicht</translation>
    </message>
    <message>
        <source>The prefix can be kept only without a comma, and without a blank or a quote at its beginning.</source>
        <translation>Das Präfix darf kein Komma enthalten und nicht mit Leerzeichen oder Anführungszeichen beginnen.</translation>
    </message>
    <message>
        <source>the p&amp;rogram's name alone</source>
        <translation>n&amp;ur den Programmnamen</translation>
    </message>
    <message>
        <source>The subtitles cannot be opened</source>
        <translation>Die Untertitel können nicht geöffnet werden</translation>
    </message>
    <message>
        <source>the title &amp;of the file</source>
        <translation>den Tite&amp;l der Datei</translation>
    </message>
    <message>
        <source>the typeface</source>
        <translation>die Schrift</translation>
    </message>
    <message>
        <source>The web page of VLC</source>
        <translation>Die Webseite von VLC</translation>
    </message>
    <message>
        <source>The whole window</source>
        <translation>Das ganze Fenster</translation>
    </message>
    <message>
        <source>the windows</source>
        <translation>die Fenster</translation>
    </message>
    <message>
        <source>There is no browser that shows this page:</source>
        <translation>Kein Browser zeigt diese Seite:</translation>
    </message>
    <message>
        <source>There is no program that shows the folder:</source>
        <translation>Es gibt kein Programm, das den Ordner zeigt:</translation>
    </message>
    <message>
        <source>There is no program that shows the help:</source>
        <translation>Kein Programm zeigt die Hilfe:</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Es gibt keine solche Datei.</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>T&amp;itel</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>To the Next Part of the Window</source>
        <translation>Zum nächsten Teil des Fensters</translation>
    </message>
    <message>
        <source>To the Part of the Window Before</source>
        <translation>Zum vorigen Teil des Fensters</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Type what it does, or its key</source>
        <translation>Was er tut, oder seine Taste</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Ton an</translation>
    </message>
    <message>
        <source>&amp;Use new player for each media file played.</source>
        <translation>&amp;Für jede Datei einen neuen Player öffnen.</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Üblich</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>&amp;Video</source>
        <translation>&amp;Video</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Video DVD</source>
        <translation>Video-DVD</translation>
    </message>
    <message>
        <source>Video File</source>
        <translation>Videodatei</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Volume %1 %</source>
        <translation>Lautstärke %1 %</translation>
    </message>
    <message>
        <source>Volume %1 % (muted)</source>
        <translation>Lautstärke %1 % (stumm)</translation>
    </message>
    <message>
        <source>Volume %1 %: more than the file has, it can distort</source>
        <translation>Lautstärke %1 %: mehr, als die Datei hat, es kann verzerren</translation>
    </message>
    <message>
        <source>&amp;Ways as in Other Players</source>
        <translation>&amp;Wie in anderen Playern</translation>
    </message>
    <message>
        <source>Ways as in Other Players</source>
        <translation>Wie in anderen Playern</translation>
    </message>
    <message>
        <source>Ways: Familiar</source>
        <translation>Art: vertraut</translation>
    </message>
    <message>
        <source>Ways: Zentaro's own</source>
        <translation>Art: Zentaros eigene</translation>
    </message>
    <message>
        <source>Language and size count from the next start on.</source>
        <translation>Sprache und Größe gelten vom nächsten Start an.</translation>
    </message>
    <message>
        <source>What the caption shows</source>
        <translation>Was der Titel zeigt</translation>
    </message>
    <message>
        <source>Where snapshots go</source>
        <translation>Wohin Schnappschüsse kommen</translation>
    </message>
    <message>
        <source>While a video plays</source>
        <translation>Während ein Video läuft</translation>
    </message>
    <message>
        <source>Whole Window</source>
        <translation>Ganzes Fenster</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Windows</translation>
    </message>
    <message>
        <source>Windows Audio File</source>
        <translation>Windows-Audiodatei</translation>
    </message>
    <message>
        <source>Windows Media File</source>
        <translation>Windows-Mediendatei</translation>
    </message>
    <message>
        <source>Yadif</source>
        <translation>Yadif</translation>
    </message>
    <message>
        <source>Yadif, full rate</source>
        <translation>Yadif, volle Rate</translation>
    </message>
    <message>
        <source>You were at %1</source>
        <translation>Sie waren bei %1</translation>
    </message>
    <message>
        <source>Zentaro</source>
        <translation>Zentaro</translation>
    </message>
    <message>
        <source>&amp;Ways</source>
        <translation>&amp;Verhalten</translation>
    </message>
    <message>
        <source>&amp;Zentaro's own ways</source>
        <translation>&amp;Zentaros eigene Art</translation>
    </message>
    <message>
        <source>Ways &amp;familiar from other players</source>
        <translation>Wie von anderen Playern ge&amp;wohnt</translation>
    </message>
    <message>
        <source>With these, Play goes on from a pause, Next and Previous follow the shuffled order, a click in the list does not change what follows, all known types of files are taken, and the last list comes back by itself. The help names the rest.</source>
        <translation>Damit setzt Wiedergabe nach einer Pause fort, Nächster und Voriger folgen der gemischten Reihenfolge, ein Klick in der Liste ändert nicht, was folgt, alle bekannten Dateitypen werden angenommen, und die letzte Liste kommt von selbst zurück. Die Hilfe nennt den Rest.</translation>
    </message>
    <message>
        <source>&amp;Remember lists and places</source>
        <translation>Listen und Stellen me&amp;rken</translation>
    </message>
    <message>
        <source>Also of &amp;discs that are taken out</source>
        <translation>Auch von herausnehmbaren &amp;Datenträgern</translation>
    </message>
    <message>
        <source>&amp;Low rows in the list</source>
        <translation>&amp;Niedrige Zeilen in der Liste</translation>
    </message>
    <message>
        <source>Used to other players? Click or press Enter to take their ways</source>
        <translation>Andere Player gewohnt? Klicken oder Eingabe drücken, um deren Art zu übernehmen</translation>
    </message>
    <message>
        <source>%1 of %2 could not be opened</source>
        <translation>%1 von %2 konnten nicht geöffnet werden</translation>
    </message>
    <message>
        <source>It is of no type that is known to play.</source>
        <translation>Es ist kein Typ, der sich abspielen lässt.</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>Show What Could Not Be Opened</source>
        <translation>Zeigen, was sich nicht öffnen ließ</translation>
    </message>
</context>
</TS>
