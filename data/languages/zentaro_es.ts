<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Zentaro</name>
    <message>
        <source>"%1" is already in your playlist</source>
        <translation>«%1» ya está en la lista</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>%1 cannot be played</source>
        <translation>%1 no se puede reproducir</translation>
    </message>
    <message>
        <source>%1 list</source>
        <translation>Lista %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n entries could not be found</source>
        <translation><numerusform>No se encontró %1 de %n entrada</numerusform><numerusform>No se encontraron %1 de %n entradas</numerusform></translation>
    </message>
    <message>
        <source>%1, playing</source>
        <translation>%1, en reproducción</translation>
    </message>
    <message numerus="yes">
        <source>%n entries play next</source>
        <translation><numerusform>A continuación sigue %n entrada</numerusform><numerusform>A continuación siguen %n entradas</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation><numerusform>%n archivo</numerusform><numerusform>%n archivos</numerusform></translation>
    </message>
    <message>
        <source>30 Seconds Back</source>
        <translation>30 segundos atrás</translation>
    </message>
    <message>
        <source>30 Seconds Forward</source>
        <translation>30 segundos adelante</translation>
    </message>
    <message>
        <source>5 Seconds Back</source>
        <translation>5 segundos atrás</translation>
    </message>
    <message>
        <source>5 Seconds Forward</source>
        <translation>5 segundos adelante</translation>
    </message>
    <message>
        <source>&lt;a href="%1"&gt;The web page of VLC&lt;/a&gt;, whose engine plays everything here</source>
        <translation>&lt;a href="%1"&gt;La página web de VLC&lt;/a&gt;, cuyo motor reproduce todo aquí</translation>
    </message>
    <message>
        <source>&lt;No DVD drives were found&gt;</source>
        <translation>&lt;No hay unidades de DVD&gt;</translation>
    </message>
    <message>
        <source>&lt;No History&gt;</source>
        <translation>&lt;Sin historial&gt;</translation>
    </message>
    <message>
        <source>&lt;Please insert a DVD&gt;</source>
        <translation>&lt;Inserte un DVD&gt;</translation>
    </message>
    <message>
        <source>A desktop media player. Free software under the MIT licence.</source>
        <translation>Un reproductor multimedia de escritorio. Software libre con licencia MIT.</translation>
    </message>
    <message>
        <source>A file's name cannot hold any of / \ : * ? " &lt; &gt; |</source>
        <translation>Un nombre de archivo no puede contener ninguno de estos: / \ : * ? " &lt; &gt; |</translation>
    </message>
    <message>
        <source>A Little &amp;Faster</source>
        <translation>Un poco más &amp;rápido</translation>
    </message>
    <message>
        <source>A Little Faster</source>
        <translation>Un poco más rápido</translation>
    </message>
    <message>
        <source>A Little &amp;Slower</source>
        <translation>Un poco más &amp;lento</translation>
    </message>
    <message>
        <source>A Little Slower</source>
        <translation>Un poco más lento</translation>
    </message>
    <message>
        <source>A time looks like this: 1:02:30</source>
        <translation>Un tiempo se escribe así: 1:02:30</translation>
    </message>
    <message>
        <source>* In the system&apos;s own settings it is another program, and they decide.</source>
        <translation>* En la configuración del sistema es otro programa, y ella decide.</translation>
    </message>
    <message>
        <source>&amp;Default apps...</source>
        <translation>Apps pre&amp;determinadas...</translation>
    </message>
    <message>
        <source>A type that is no longer chosen goes back to the program that had it before.</source>
        <translation>Un tipo no elegido vuelve al programa anterior.</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>About Zentaro</source>
        <translation>Acerca de Zentaro</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>Aña&amp;dir</translation>
    </message>
    <message>
        <source>Add Media File(s)...</source>
        <translation>Añadir archivos...</translation>
    </message>
    <message>
        <source>Adding %1 of %2</source>
        <translation>Añadiendo %1 de %2</translation>
    </message>
    <message>
        <source>After a snapshot</source>
        <translation>Después de una instantánea</translation>
    </message>
    <message>
        <source>After file playing finished</source>
        <translation>Al terminar la reproducción</translation>
    </message>
    <message>
        <source>After playing finish</source>
        <translation>Al terminar la reproducción</translation>
    </message>
    <message>
        <source>After Playing: Do nothing</source>
        <translation>Al terminar: no hacer nada</translation>
    </message>
    <message>
        <source>After Playing: Exit Zentaro</source>
        <translation>Al terminar: salir de Zentaro</translation>
    </message>
    <message>
        <source>After Playing: Restart the Computer</source>
        <translation>Al terminar: reiniciar el equipo</translation>
    </message>
    <message>
        <source>After Playing: Shutdown the Computer</source>
        <translation>Al terminar: apagar el equipo</translation>
    </message>
    <message>
        <source>Again and Again from Here, to Here</source>
        <translation>Repetir desde aquí, hasta aquí</translation>
    </message>
    <message>
        <source>Again and again: %1 to %2</source>
        <translation>Repetir: %1 a %2</translation>
    </message>
    <message>
        <source>All as Del&amp;ivered</source>
        <translation>T&amp;odo como de fábrica</translation>
    </message>
    <message>
        <source>All file &amp;types</source>
        <translation>Todos los tip&amp;os</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>All is forgotten</source>
        <translation>Todo olvidado</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>Todos los formatos admitidos</translation>
    </message>
    <message>
        <source>Also of &amp;Discs That Are Taken Out</source>
        <translation>También de &amp;discos extraídos</translation>
    </message>
    <message>
        <source>Also of Discs That Are Taken Out</source>
        <translation>También de discos extraídos</translation>
    </message>
    <message>
        <source>Always on &amp;top</source>
        <translation>Siempre &amp;encima</translation>
    </message>
    <message>
        <source>Appeara&amp;nce</source>
        <translation>As&amp;pecto</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Ap&amp;licar</translation>
    </message>
    <message>
        <source>As in the file</source>
        <translation>Como en el archivo</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>La del sistema</translation>
    </message>
    <message>
        <source>As&amp;pect Ratio</source>
        <translation>&amp;Proporción</translation>
    </message>
    <message>
        <source>Asso&amp;ciations</source>
        <translation>&amp;Asociaciones</translation>
    </message>
    <message>
        <source>A&amp;udio</source>
        <translation>A&amp;udio</translation>
    </message>
    <message>
        <source>Audio File</source>
        <translation>Archivo de audio</translation>
    </message>
    <message>
        <source>&amp;Audio Track</source>
        <translation>Pista de &amp;audio</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Back towards the Full Volume</source>
        <translation>Volver al volumen completo</translation>
    </message>
    <message>
        <source>Blend</source>
        <translation>Fundido</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>&amp;Bring Back the Last List</source>
        <translation>&amp;Recuperar la última lista</translation>
    </message>
    <message>
        <source>Bring Back the Last List</source>
        <translation>Recuperar la última lista</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Buscar...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cannot open file &lt;%1&gt;</source>
        <translation>No se puede abrir el archivo &lt;%1&gt;</translation>
    </message>
    <message>
        <source>Cannot render thumbnail for %1. The video codec may be unsupported.</source>
        <translation>No se puede crear una miniatura de %1. Quizá el códec de vídeo no se admita.</translation>
    </message>
    <message>
        <source>Cannot save the list &lt;%1&gt;</source>
        <translation>No se puede guardar la lista &lt;%1&gt;</translation>
    </message>
    <message>
        <source>&amp;Chapter</source>
        <translation>&amp;Capítulo</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Capítulo</translation>
    </message>
    <message>
        <source>Choose together</source>
        <translation>Elegir juntos</translation>
    </message>
    <message>
        <source>Clear &amp;Recent Files</source>
        <translation>&amp;Borrar archivos recientes</translation>
    </message>
    <message>
        <source>Clear Recent Files</source>
        <translation>Borrar archivos recientes</translation>
    </message>
    <message>
        <source>Click or press Enter to bring it back</source>
        <translation>Pulse o use Intro para recuperarla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Órdenes</translation>
    </message>
    <message>
        <source>&amp;Continuous</source>
        <translation>&amp;Continuo</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continuo</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>&amp;Contraste:</translation>
    </message>
    <message>
        <source>Decrease Speed</source>
        <translation>Más lento</translation>
    </message>
    <message>
        <source>&amp;Deinterlace</source>
        <translation>&amp;Desentrelazar</translation>
    </message>
    <message>
        <source>Disable the screen sa&amp;ver</source>
        <translation>Desactivar el salvapa&amp;ntallas</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Discos</translation>
    </message>
    <message>
        <source>Divider between video and playlist</source>
        <translation>Divisor entre vídeo y lista</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>No hacer nada</translation>
    </message>
    <message>
        <source>&amp;Docked at:</source>
        <translation>&amp;Fijada a:</translation>
    </message>
    <message>
        <source>Drop files here to play them</source>
        <translation>Suelte aquí archivos para reproducirlos</translation>
    </message>
    <message>
        <source>Drop files here, or press Ctrl+O</source>
        <translation>Suelte archivos aquí o pulse Ctrl+O</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>Enter runs the command.</source>
        <translation>Intro ejecuta la orden.</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Ejemplo:</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Exit Zentaro</source>
        <translation>Salir de Zentaro</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>Avance rápido</translation>
    </message>
    <message>
        <source>Fast Forward While Held</source>
        <translation>Avance rápido mientras se mantiene</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Tipos de archivo</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Find a Command</source>
        <translation>Buscar una orden</translation>
    </message>
    <message>
        <source>Find a Command...</source>
        <translation>Buscar una orden...</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Buscar...</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Buscar...</translation>
    </message>
    <message>
        <source>Find: %1   %2 of %3</source>
        <translation>Buscar: %1   %2 de %3</translation>
    </message>
    <message>
        <source>Find: type a part of a title or folder</source>
        <translation>Buscar: escriba parte del título o carpeta</translation>
    </message>
    <message>
        <source>First Menu</source>
        <translation>Primer menú</translation>
    </message>
    <message>
        <source>Flash Video File</source>
        <translation>Archivo de vídeo Flash</translation>
    </message>
    <message>
        <source>Folder for snapshots</source>
        <translation>Carpeta de instantáneas</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Carpeta:</translation>
    </message>
    <message>
        <source>Forget &amp;All</source>
        <translation>Olvidar &amp;todo</translation>
    </message>
    <message>
        <source>Forget All</source>
        <translation>Olvidar todo</translation>
    </message>
    <message>
        <source>&amp;Forget This Entry</source>
        <translation>&amp;Olvidar este elemento</translation>
    </message>
    <message>
        <source>Forget This Entry</source>
        <translation>Olvidar este elemento</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>From %1: press again at the end</source>
        <translation>Desde %1: pulse otra vez al final</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>Pantalla c&amp;ompleta</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Full screen controls</source>
        <translation>Controles de pantalla completa</translation>
    </message>
    <message>
        <source>Full Screen On or Off</source>
        <translation>Activar o quitar pantalla completa</translation>
    </message>
    <message>
        <source>Go to a Time</source>
        <translation>Ir a un tiempo</translation>
    </message>
    <message>
        <source>&amp;Go to a Time...</source>
        <translation>&amp;Ir a un momento...</translation>
    </message>
    <message>
        <source>Go to a Time...</source>
        <translation>Ir a un momento...</translation>
    </message>
    <message>
        <source>&amp;Go to Where I Was</source>
        <translation>&amp;Ir adonde estaba</translation>
    </message>
    <message>
        <source>Go to Where I Was</source>
        <translation>Ir adonde estaba</translation>
    </message>
    <message>
        <source>Goes on after this one</source>
        <translation>Sigue después de este</translation>
    </message>
    <message>
        <source>Goes on at %1</source>
        <translation>Continúa en %1</translation>
    </message>
    <message>
        <source>GPL 2 or later</source>
        <translation>GPL 2 o posterior</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>&amp;Temas de ayuda</translation>
    </message>
    <message>
        <source>Help Topics</source>
        <translation>Temas de ayuda</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Hours, minutes and seconds, such as 1:02:30</source>
        <translation>Horas, minutos y segundos, por ejemplo 1:02:30</translation>
    </message>
    <message>
        <source>Icon in the tra&amp;y</source>
        <translation>Icono en la &amp;bandeja</translation>
    </message>
    <message>
        <source>Increase Speed</source>
        <translation>Más rápido</translation>
    </message>
    <message>
        <source>It is a folder, not a file.</source>
        <translation>Es una carpeta, no un archivo.</translation>
    </message>
    <message>
        <source>It is the key of “%1”, which loses it.</source>
        <translation>Es la tecla de «%1», que la pierde.</translation>
    </message>
    <message>
        <source>Jump to That Tenth of the Item</source>
        <translation>Saltar a esa décima parte</translation>
    </message>
    <message>
        <source>&amp;Keep History of recently Opened files.</source>
        <translation>&amp;Guardar el historial de archivos abiertos.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>I&amp;dioma:</translation>
    </message>
    <message>
        <source>Larger controls, for &amp;fingers</source>
        <translation>Controles más &amp;grandes, para los dedos</translation>
    </message>
    <message>
        <source>Larger Subtitles</source>
        <translation>Subtítulos más grandes</translation>
    </message>
    <message numerus="yes">
        <source>Last time: %n files</source>
        <translation><numerusform>La última vez: %n archivo</numerusform><numerusform>La última vez: %n archivos</numerusform></translation>
    </message>
    <message>
        <source>&amp;Launch Files in Fullscreen.</source>
        <translation>Abrir los archi&amp;vos en pantalla completa.</translation>
    </message>
    <message>
        <source>Leave &amp;Full Screen</source>
        <translation>Salir de pantalla c&amp;ompleta</translation>
    </message>
    <message>
        <source>Leave Full Screen</source>
        <translation>Salir de pantalla completa</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Menos</translation>
    </message>
    <message>
        <source>Let go to play</source>
        <translation>Suelte para reproducir</translation>
    </message>
    <message>
        <source>LGPL 2.1 or later</source>
        <translation>LGPL 2.1 o posterior</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineal</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listas</translation>
    </message>
    <message>
        <source>&amp;Load File...</source>
        <translation>&amp;Cargar archivo...</translation>
    </message>
    <message>
        <source>Load File...</source>
        <translation>Cargar archivo...</translation>
    </message>
    <message>
        <source>LOADING...</source>
        <translation>CARGANDO...</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>looks into files, makes thumbnails</source>
        <translation>examina archivos y hace miniaturas</translation>
    </message>
    <message>
        <source>Louder</source>
        <translation>Más volumen</translation>
    </message>
    <message>
        <source>Louder Than the File</source>
        <translation>Más alto que el archivo</translation>
    </message>
    <message>
        <source>&amp;Low Rows</source>
        <translation>&amp;Filas bajas</translation>
    </message>
    <message>
        <source>Low Rows</source>
        <translation>Filas bajas</translation>
    </message>
    <message>
        <source>Made with</source>
        <translation>Hecho con</translation>
    </message>
    <message>
        <source>&amp;Matroska</source>
        <translation>&amp;Matroska</translation>
    </message>
    <message>
        <source>Matroska Audio File</source>
        <translation>Archivo de audio Matroska</translation>
    </message>
    <message>
        <source>Matroska Media File</source>
        <translation>Archivo Matroska</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Maximize or Restore</source>
        <translation>Maximizar o restaurar</translation>
    </message>
    <message>
        <source>Media Player</source>
        <translation>Reproductor multimedia</translation>
    </message>
    <message>
        <source>&amp;Memory</source>
        <translation>&amp;Memoria</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Menu of What Has the Focus</source>
        <translation>Menú del elemento activo</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>&amp;More</source>
        <translation>&amp;Más</translation>
    </message>
    <message>
        <source>&amp;Motion:</source>
        <translation>Mo&amp;vimiento:</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Move the Window by the Arrows</source>
        <translation>Mover la ventana con las flechas</translation>
    </message>
    <message>
        <source>Move U&amp;p</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Mp3 Format Sound</source>
        <translation>Archivo de audio MP3</translation>
    </message>
    <message>
        <source>MP&amp;EG</source>
        <translation>MP&amp;EG</translation>
    </message>
    <message>
        <source>MPEG Media File</source>
        <translation>Archivo MPEG</translation>
    </message>
    <message>
        <source>MPEG4 Audio File</source>
        <translation>Archivo de audio MPEG4</translation>
    </message>
    <message>
        <source>MPEG4 Media File</source>
        <translation>Archivo MPEG4</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Ne&amp;w key:</source>
        <translation>&amp;Nueva tecla:</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>Capítulo siguiente</translation>
    </message>
    <message>
        <source>Next Pi&amp;cture</source>
        <translation>Imagen &amp;siguiente</translation>
    </message>
    <message>
        <source>Next Picture</source>
        <translation>Imagen siguiente</translation>
    </message>
    <message>
        <source>No Ke&amp;y</source>
        <translation>Ninguna te&amp;cla</translation>
    </message>
    <message>
        <source>&amp;No Repeat</source>
        <translation>&amp;No repetir</translation>
    </message>
    <message>
        <source>No longer full screen</source>
        <translation>Ya no es pantalla completa</translation>
    </message>
    <message>
        <source>No Repeat</source>
        <translation>No repetir</translation>
    </message>
    <message>
        <source>No snapshot could be saved in %1</source>
        <translation>No se pudo guardar ninguna instantánea en %1</translation>
    </message>
    <message>
        <source>No working folder can be made.</source>
        <translation>No se puede crear una carpeta de trabajo.</translation>
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
        <translation>Nada de la lista se puede reproducir</translation>
    </message>
    <message>
        <source>&amp;Nothing in This Folder</source>
        <translation>&amp;Nada de esta carpeta</translation>
    </message>
    <message>
        <source>Nothing in This Folder</source>
        <translation>Nada de esta carpeta</translation>
    </message>
    <message>
        <source>Nothing plays that the subtitles could belong to</source>
        <translation>No hay nada en reproducción para esos subtítulos</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>O&amp;gg</source>
        <translation>O&amp;gg</translation>
    </message>
    <message>
        <source>OGG Media File</source>
        <translation>Archivo OGG</translation>
    </message>
    <message>
        <source>OGG Vorbis Audio File</source>
        <translation>Archivo de audio OGG Vorbis</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Open DVD</source>
        <translation>Abrir DVD</translation>
    </message>
    <message>
        <source>Open Media File...</source>
        <translation>Abrir archivo...</translation>
    </message>
    <message>
        <source>Open Subtitles</source>
        <translation>Abrir subtítulos</translation>
    </message>
    <message>
        <source>Open Video File</source>
        <translation>Abrir vídeo</translation>
    </message>
    <message>
        <source>Open Video File...</source>
        <translation>Abrir vídeo...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Opciones...</translation>
    </message>
    <message>
        <source>&amp;Order</source>
        <translation>&amp;Orden</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Paused at %1</source>
        <translation>En pausa en %1</translation>
    </message>
    <message>
        <source>Cover and Bars with Music</source>
        <translation>Carátula y barras con la música</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Pista %1</translation>
    </message>
    <message>
        <source>Pictures over the Seek Bar</source>
        <translation>Imágenes sobre la barra de posición</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducción</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Play from the Start</source>
        <translation>Reproducir desde el principio</translation>
    </message>
    <message>
        <source>Play &amp;List</source>
        <translation>&amp;Lista</translation>
    </message>
    <message>
        <source>Play Mode</source>
        <translation>Modo de reproducción</translation>
    </message>
    <message>
        <source>Play Mode: Continuous</source>
        <translation>Modo: continuo</translation>
    </message>
    <message>
        <source>Play Mode: Normal</source>
        <translation>Modo: normal</translation>
    </message>
    <message>
        <source>Play Mode: Shuffle</source>
        <translation>Modo: aleatorio</translation>
    </message>
    <message>
        <source>Play &amp;Next</source>
        <translation>Reproducir a &amp;continuación</translation>
    </message>
    <message>
        <source>Play Next</source>
        <translation>Reproducir a continuación</translation>
    </message>
    <message>
        <source>Play or Pause</source>
        <translation>Reproducir o pausar</translation>
    </message>
    <message>
        <source>Play the Selected Entry</source>
        <translation>Reproducir el elemento elegido</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Reproducir/Pausa</translation>
    </message>
    <message>
        <source>&amp;Player</source>
        <translation>&amp;Reproductor</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Reproduciendo</translation>
    </message>
    <message>
        <source>Playing from %1</source>
        <translation>Reproduciendo desde %1</translation>
    </message>
    <message>
        <source>Playing rate:%1x</source>
        <translation>Velocidad: %1x</translation>
    </message>
    <message>
        <source>&amp;Play&amp;List</source>
        <translation>&amp;Lista</translation>
    </message>
    <message>
        <source>Play&amp;list</source>
        <translation>&amp;Lista</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Lista de reproducción</translation>
    </message>
    <message>
        <source>Plays next: %1</source>
        <translation>A continuación: %1</translation>
    </message>
    <message>
        <source>Plays on</source>
        <translation>Sigue reproduciendo</translation>
    </message>
    <message>
        <source>Plays on, whatever the clock says</source>
        <translation>Sigue, diga lo que diga el reloj</translation>
    </message>
    <message>
        <source>Please choose a folder for the snapshots, with its whole path.</source>
        <translation>Elija una carpeta para las instantáneas, con su ruta completa.</translation>
    </message>
    <message>
        <source>Please insert a valid DVD.</source>
        <translation>Inserte un DVD válido.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>P&amp;refix:</source>
        <translation>Prefi&amp;jo:</translation>
    </message>
    <message>
        <source>Press it here</source>
        <translation>Púlsela aquí</translation>
    </message>
    <message>
        <source>Press the Disc's Button, or Fill the Screen</source>
        <translation>Botón del disco, o pantalla completa</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>Capítulo anterior</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>&amp;Propiedades</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>&amp;QuickTime</source>
        <translation>&amp;QuickTime</translation>
    </message>
    <message>
        <source>QuickTime File</source>
        <translation>Archivo QuickTime</translation>
    </message>
    <message>
        <source>Quieter</source>
        <translation>Menos volumen</translation>
    </message>
    <message>
        <source>reads MPEG program streams</source>
        <translation>lee flujos MPEG</translation>
    </message>
    <message>
        <source>&amp;Recently Played files</source>
        <translation>&amp;Reproducidos recientemente</translation>
    </message>
    <message>
        <source>Recently Played Files</source>
        <translation>Reproducidos recientemente</translation>
    </message>
    <message>
        <source>R&amp;edo</source>
        <translation>Re&amp;hacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>&amp;Remember Lists and Places</source>
        <translation>Re&amp;cordar listas y posiciones</translation>
    </message>
    <message>
        <source>Remember Lists and Places</source>
        <translation>Recordar listas y posiciones</translation>
    </message>
    <message>
        <source>Remember the posit&amp;ion</source>
        <translation>Recordar la po&amp;sición</translation>
    </message>
    <message>
        <source>Remember the si&amp;ze</source>
        <translation>Recordar el ta&amp;maño</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Quitar todo</translation>
    </message>
    <message>
        <source>Remove the Selected Entry</source>
        <translation>Quitar el elemento elegido</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries</source>
        <translation><numerusform>Se quitó una entrada</numerusform><numerusform>Se quitaron %n entradas</numerusform></translation>
    </message>
    <message>
        <source>&amp;Repeat All</source>
        <translation>&amp;Repetir todo</translation>
    </message>
    <message>
        <source>Repeat All</source>
        <translation>Repetir todo</translation>
    </message>
    <message>
        <source>Repeat Mode</source>
        <translation>Repetición</translation>
    </message>
    <message>
        <source>Repeat Mode: No Repeat</source>
        <translation>Repetición: ninguna</translation>
    </message>
    <message>
        <source>Repeat Mode: Repeat All</source>
        <translation>Repetición: todo</translation>
    </message>
    <message>
        <source>Repeat Mode: Single Repeat</source>
        <translation>Repetición: uno</translation>
    </message>
    <message>
        <source>Reset Speed</source>
        <translation>Velocidad normal</translation>
    </message>
    <message>
        <source>Resize the Window by the Arrows</source>
        <translation>Cambiar el tamaño de la ventana con las flechas</translation>
    </message>
    <message>
        <source>Restart the Computer</source>
        <translation>Reiniciar el equipo</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rebobinar</translation>
    </message>
    <message>
        <source>Rewind While Held</source>
        <translation>Rebobinar mientras se mantiene</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Save List As</source>
        <translation>Guardar lista como</translation>
    </message>
    <message>
        <source>Save List &amp;As...</source>
        <translation>&amp;Guardar lista como...</translation>
    </message>
    <message>
        <source>Save List As...</source>
        <translation>Guardar lista como...</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardada</translation>
    </message>
    <message>
        <source>Say Where It Is</source>
        <translation>Decir la posición</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>S&amp;hortcuts</source>
        <translation>&amp;Teclas</translation>
    </message>
    <message>
        <source>Show a small previe&amp;w in the window</source>
        <translation>&amp;Mostrar una vista previa en la ventana</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>Mostrar en la carp&amp;eta</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Show or Hide the Playlist</source>
        <translation>Mostrar u ocultar la lista</translation>
    </message>
    <message>
        <source>Show the Time That Is Left</source>
        <translation>Mostrar el tiempo restante</translation>
    </message>
    <message>
        <source>Show &amp;What Plays</source>
        <translation>&amp;Mostrar lo que suena</translation>
    </message>
    <message>
        <source>Show What Plays</source>
        <translation>Mostrar lo que suena</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>&amp;Aleatorio</translation>
    </message>
    <message>
        <source>Shuffle</source>
        <translation>Aleatorio</translation>
    </message>
    <message>
        <source>Shutdown the Computer</source>
        <translation>Apagar el equipo</translation>
    </message>
    <message>
        <source>&amp;Single Repeat</source>
        <translation>Repetir &amp;uno</translation>
    </message>
    <message>
        <source>Single Repeat</source>
        <translation>Repetir uno</translation>
    </message>
    <message>
        <source>Si&amp;ze of everything:</source>
        <translation>Ta&amp;maño de todo:</translation>
    </message>
    <message>
        <source>Smaller Subtitles</source>
        <translation>Subtítulos más pequeños</translation>
    </message>
    <message>
        <source>S&amp;napshot</source>
        <translation>I&amp;nstantánea</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Instantánea</translation>
    </message>
    <message>
        <source>&amp;Snapshots</source>
        <translation>&amp;Instantáneas</translation>
    </message>
    <message>
        <source>Sort by &amp;Date</source>
        <translation>Por &amp;fecha</translation>
    </message>
    <message>
        <source>Sort by Date</source>
        <translation>Por fecha</translation>
    </message>
    <message>
        <source>Sort by &amp;Folder</source>
        <translation>Por &amp;carpeta</translation>
    </message>
    <message>
        <source>Sort by Folder</source>
        <translation>Por carpeta</translation>
    </message>
    <message>
        <source>Sort by &amp;Length</source>
        <translation>Por &amp;duración</translation>
    </message>
    <message>
        <source>Sort by Length</source>
        <translation>Por duración</translation>
    </message>
    <message>
        <source>Sort by &amp;Name</source>
        <translation>Por &amp;nombre</translation>
    </message>
    <message>
        <source>Sort by Name</source>
        <translation>Por nombre</translation>
    </message>
    <message>
        <source>Sort by &amp;Size</source>
        <translation>Por &amp;tamaño</translation>
    </message>
    <message>
        <source>Sort by Size</source>
        <translation>Por tamaño</translation>
    </message>
    <message>
        <source>Sound %1</source>
        <translation>Sonido %1</translation>
    </message>
    <message>
        <source>Sound Earlier</source>
        <translation>Sonido antes</translation>
    </message>
    <message>
        <source>Sound Later</source>
        <translation>Sonido después</translation>
    </message>
    <message>
        <source>Start &amp;Over</source>
        <translation>Em&amp;pezar de nuevo</translation>
    </message>
    <message>
        <source>Start Over</source>
        <translation>Empezar de nuevo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Stop After This &amp;One</source>
        <translation>&amp;Parar después de este</translation>
    </message>
    <message>
        <source>Stop After This One</source>
        <translation>Parar después de este</translation>
    </message>
    <message>
        <source>Stop by the Cloc&amp;k</source>
        <translation>Parar por el re&amp;loj</translation>
    </message>
    <message>
        <source>Stop by the Clock</source>
        <translation>Parar por el reloj</translation>
    </message>
    <message>
        <source>Stopped, as the clock was told</source>
        <translation>Detenido por el reloj</translation>
    </message>
    <message>
        <source>Stops adding files to the playlist</source>
        <translation>Deja de añadir a la lista</translation>
    </message>
    <message>
        <source>Stops after this one</source>
        <translation>Se detiene después de este</translation>
    </message>
    <message numerus="yes">
        <source>Stops in %n minutes</source>
        <translation><numerusform>Se detiene en %n minuto</numerusform><numerusform>Se detiene en %n minutos</numerusform></translation>
    </message>
    <message>
        <source>&amp;Subtitles</source>
        <translation>&amp;Subtítulos</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Subtítulos</translation>
    </message>
    <message>
        <source>Subtitles %1</source>
        <translation>Subtítulos %1</translation>
    </message>
    <message>
        <source>Subtitles Earlier</source>
        <translation>Subtítulos antes</translation>
    </message>
    <message>
        <source>Subtitles Later</source>
        <translation>Subtítulos después</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>Subtítulos: %1</translation>
    </message>
    <message>
        <source>The audio format %1 in file %2 is currently unsupported. It will not be added to the project.</source>
        <translation>El formato de audio %1 del archivo %2 no se admite. No se añadirá.</translation>
    </message>
    <message>
        <source>The caption shows</source>
        <translation>El título muestra</translation>
    </message>
    <message>
        <source>the engine that plays</source>
        <translation>el motor de reproducción</translation>
    </message>
    <message>
        <source>The file cannot be read. It may belong to another user, or its drive may be damaged.</source>
        <translation>No se puede leer el archivo. Quizá sea de otro usuario o la unidad esté dañada.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>The folder's name can be kept only without a comma, and without a blank or a quote at its beginning. Please choose another folder.</source>
        <translation>El nombre de la carpeta no puede llevar comas ni empezar por espacio o comillas. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>the &amp;full path</source>
        <translation>la ruta &amp;completa</translation>
    </message>
    <message>
        <source>The help is missing. It should be here:</source>
        <translation>Falta la ayuda. Debería estar aquí:</translation>
    </message>
    <message>
        <source>The item is not that long</source>
        <translation>No es tan largo</translation>
    </message>
    <message>
        <source>The prefix can be kept only without a comma, and without a blank or a quote at its beginning.</source>
        <translation>El prefijo no puede llevar comas ni empezar por espacio o comillas.</translation>
    </message>
    <message>
        <source>the p&amp;rogram's name alone</source>
        <translation>solo el n&amp;ombre del programa</translation>
    </message>
    <message>
        <source>The subtitles cannot be opened</source>
        <translation>No se pueden abrir los subtítulos</translation>
    </message>
    <message>
        <source>the title &amp;of the file</source>
        <translation>el título &amp;del archivo</translation>
    </message>
    <message>
        <source>the typeface</source>
        <translation>la tipografía</translation>
    </message>
    <message>
        <source>The web page of VLC</source>
        <translation>La página web de VLC</translation>
    </message>
    <message>
        <source>The whole window</source>
        <translation>Toda la ventana</translation>
    </message>
    <message>
        <source>the windows</source>
        <translation>las ventanas</translation>
    </message>
    <message>
        <source>There is no browser that shows this page:</source>
        <translation>No hay navegador para esta página:</translation>
    </message>
    <message>
        <source>There is no program that shows the folder:</source>
        <translation>No hay ningún programa que muestre la carpeta:</translation>
    </message>
    <message>
        <source>There is no program that shows the help:</source>
        <translation>No hay programa que muestre la ayuda:</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>No existe ese archivo.</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Título</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>To the Next Part of the Window</source>
        <translation>A la parte siguiente de la ventana</translation>
    </message>
    <message>
        <source>To the Part of the Window Before</source>
        <translation>A la parte anterior de la ventana</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Type what it does, or its key</source>
        <translation>Qué hace, o su tecla</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Activar sonido</translation>
    </message>
    <message>
        <source>&amp;Use new player for each media file played.</source>
        <translation>&amp;Usar un reproductor nuevo para cada archivo.</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Habitual</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>&amp;Video</source>
        <translation>&amp;Vídeo</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Video DVD</source>
        <translation>DVD de vídeo</translation>
    </message>
    <message>
        <source>Video File</source>
        <translation>Archivo de vídeo</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Volume %1 %</source>
        <translation>Volumen %1 %</translation>
    </message>
    <message>
        <source>Volume %1 % (muted)</source>
        <translation>Volumen %1 % (silenciado)</translation>
    </message>
    <message>
        <source>Volume %1 %: more than the file has, it can distort</source>
        <translation>Volumen %1 %: más que el archivo, puede distorsionar</translation>
    </message>
    <message>
        <source>&amp;Ways as in Other Players</source>
        <translation>&amp;Como en otros reproductores</translation>
    </message>
    <message>
        <source>Ways as in Other Players</source>
        <translation>Como en otros reproductores</translation>
    </message>
    <message>
        <source>Ways: Familiar</source>
        <translation>Modo: familiar</translation>
    </message>
    <message>
        <source>Ways: Zentaro's own</source>
        <translation>Modo: propio de Zentaro</translation>
    </message>
    <message>
        <source>Language and size count from the next start on.</source>
        <translation>El idioma y el tamaño cuentan desde el próximo inicio.</translation>
    </message>
    <message>
        <source>What the caption shows</source>
        <translation>Lo que muestra el título</translation>
    </message>
    <message>
        <source>Where snapshots go</source>
        <translation>Destino de las instantáneas</translation>
    </message>
    <message>
        <source>While a video plays</source>
        <translation>Mientras se reproduce un vídeo</translation>
    </message>
    <message>
        <source>Whole Window</source>
        <translation>Toda la ventana</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Windows</translation>
    </message>
    <message>
        <source>Windows Audio File</source>
        <translation>Archivo de audio de Windows</translation>
    </message>
    <message>
        <source>Windows Media File</source>
        <translation>Archivo de Windows Media</translation>
    </message>
    <message>
        <source>Yadif</source>
        <translation>Yadif</translation>
    </message>
    <message>
        <source>Yadif, full rate</source>
        <translation>Yadif, cadencia completa</translation>
    </message>
    <message>
        <source>You were at %1</source>
        <translation>Estaba en %1</translation>
    </message>
    <message>
        <source>Zentaro</source>
        <translation>Zentaro</translation>
    </message>
    <message>
        <source>&amp;Ways</source>
        <translation>&amp;Modos</translation>
    </message>
    <message>
        <source>&amp;Zentaro's own ways</source>
        <translation>La manera de &amp;Zentaro</translation>
    </message>
    <message>
        <source>Ways &amp;familiar from other players</source>
        <translation>Como en &amp;otros reproductores</translation>
    </message>
    <message>
        <source>With these, Play goes on from a pause, Next and Previous follow the shuffled order, a click in the list does not change what follows, all known types of files are taken, and the last list comes back by itself. The help names the rest.</source>
        <translation>Así, Reproducir continúa tras una pausa, Siguiente y Anterior siguen el orden aleatorio, un clic en la lista no cambia lo que sigue, se aceptan todos los tipos de archivo conocidos y la última lista vuelve por sí sola. La ayuda explica el resto.</translation>
    </message>
    <message>
        <source>&amp;Remember lists and places</source>
        <translation>&amp;Recordar listas y posiciones</translation>
    </message>
    <message>
        <source>Also of &amp;discs that are taken out</source>
        <translation>También de los &amp;discos extraíbles</translation>
    </message>
    <message>
        <source>&amp;Low rows in the list</source>
        <translation>&amp;Filas bajas en la lista</translation>
    </message>
    <message>
        <source>Used to other players? Click or press Enter to take their ways</source>
        <translation>¿Acostumbrado a otros reproductores? Haga clic o pulse Intro para usar su manera</translation>
    </message>
    <message>
        <source>%1 of %2 could not be opened</source>
        <translation>No se pudieron abrir %1 de %2</translation>
    </message>
    <message>
        <source>It is of no type that is known to play.</source>
        <translation>No es de un tipo que se pueda reproducir.</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>Show What Could Not Be Opened</source>
        <translation>Mostrar lo que no se pudo abrir</translation>
    </message>
</context>
</TS>
