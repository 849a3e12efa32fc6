<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Quorbel::Texts</name>
    <message>
        <source>ExifTool could not be found in the app bundle. Metadata cannot be read or written.</source>
        <translation>No se encontró ExifTool en el paquete de la aplicación. No se pueden leer ni escribir metadatos.</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%n foto</numerusform>
            <numerusform>%n fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n folder(s)</source>
        <extracomment>%1 is a number of photos: &quot;12 photos in 3 folders&quot;</extracomment>
        <translation>
            <numerusform>%1 en %n carpeta</numerusform>
            <numerusform>%1 en %n carpetas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n a la vista</numerusform>
            <numerusform>%n a la vista</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n seleccionada</numerusform>
            <numerusform>%n seleccionadas</numerusform>
        </translation>
    </message>
    <message>
        <source>No supported images were found.</source>
        <translation>No se encontraron imágenes compatibles.</translation>
    </message>
    <message>
        <source>“%1” could no longer be found.</source>
        <translation>Ya no se encuentra «%1».</translation>
    </message>
    <message>
        <source>“%1” was removed by another program. Its unsaved changes are kept: Edit ▸ Bring Back Edits.</source>
        <translation>Otro programa ha eliminado «%1». Sus cambios sin guardar se conservan: Editar ▸ Recuperar cambios.</translation>
    </message>
    <message>
        <source>“%1” was removed by another program.</source>
        <translation>Otro programa ha eliminado «%1».</translation>
    </message>
    <message>
        <source>The places of these photos’ fields could not be read: %1</source>
        <extracomment>%1 names photos</extracomment>
        <translation>No se pudieron leer los sitios de los campos de estas fotos: %1</translation>
    </message>
    <message>
        <source>The places of the selected photos’ fields agree already.</source>
        <translation>Los sitios de los campos de las fotos seleccionadas ya coinciden.</translation>
    </message>
    <message>
        <source>The unsaved changes come back as soon as their photos are read.</source>
        <translation>Los cambios sin guardar volverán en cuanto se lean sus fotos.</translation>
    </message>
    <message>
        <source>Not here any more: %1. The unsaved changes are kept.</source>
        <extracomment>%1 names photos</extracomment>
        <translation>Fotos que ya no están aquí: %1. Los cambios sin guardar se conservan.</translation>
    </message>
    <message>
        <source>%1 could no longer be found. The unsaved changes are kept.</source>
        <extracomment>%1 names photos</extracomment>
        <translation>Fotos que ya no se encuentran: %1. Los cambios sin guardar se conservan.</translation>
    </message>
    <message>
        <source>A file name cannot hold “/”.</source>
        <translation>Un nombre de archivo no puede contener «/».</translation>
    </message>
    <message>
        <source>Could not rename: %1</source>
        <translation>No se pudo renombrar: %1</translation>
    </message>
    <message>
        <source>Could not rename: “%1” is being saved.</source>
        <translation>No se pudo renombrar: «%1» se está guardando.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>the end of a list: &quot;a.jpg, b.jpg and c.jpg&quot;
----------
The end of a list of names: %1 is those before, with commas between them, %2 the last one.</extracomment>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>Save without %1</source>
        <extracomment>%1 are parts of a file that take no text: &quot;EXIF and IPTC&quot;</extracomment>
        <translation>Guardar sin %1</translation>
    </message>
    <message>
        <source>different items</source>
        <translation>elementos distintos</translation>
    </message>
    <message numerus="yes">
        <source>%n different texts</source>
        <translation>
            <numerusform>%n texto distinto</numerusform>
            <numerusform>%n textos distintos</numerusform>
        </translation>
    </message>
    <message>
        <source>emptied</source>
        <extracomment>said of a field whose text is taken away</extracomment>
        <translation>vaciado</translation>
    </message>
    <message>
        <source>%1 in %2 of %3</source>
        <extracomment>%1 is what stands in a field (&quot;3 different texts&quot;), %2 and %3 count photos: &quot;“Zoë” in 2 of 12&quot;</extracomment>
        <translation>%1 en %2 de %3</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>Pies de foto</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>Prensa</translation>
    </message>
    <message>
        <source>Museum</source>
        <translation>Museo</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Banco de imágenes</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Derechos</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accesibilidad</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Por defecto</translation>
    </message>
    <message>
        <source>A set needs a name</source>
        <translation>Un conjunto necesita un nombre</translation>
    </message>
    <message>
        <source>There are two sets named “%1”</source>
        <translation>Hay dos conjuntos con el nombre «%1»</translation>
    </message>
    <message>
        <source>“%1” has no fields</source>
        <translation>«%1» no tiene campos</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has|have) Content Credentials: other programs will report (it|them) as changed.</source>
        <translation>
            <numerusform>%n foto tiene Content Credentials: otros programas indicarán que se ha modificado.</numerusform>
            <numerusform>%n fotos tienen Content Credentials: otros programas indicarán que se han modificado.</numerusform>
        </translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>tardó demasiado</translation>
    </message>
    <message>
        <source>its name is not UTF-8</source>
        <extracomment>why a file cannot be read, in brackets behind its name</extracomment>
        <translation>su nombre no es UTF-8</translation>
    </message>
    <message>
        <source>Could not read metadata: %1</source>
        <translation>No se pudieron leer los metadatos: %1</translation>
    </message>
    <message>
        <source>broken link</source>
        <extracomment>why a file cannot be read, in brackets behind its name</extracomment>
        <translation>enlace roto</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>of a file</comment>
        <translation>vacío</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) could not be read and (was|were) left out: %1</source>
        <extracomment>%1 names the files, with the reasons</extracomment>
        <translation>
            <numerusform>%n archivo no se pudo leer y se ha omitido: %1</numerusform>
            <numerusform>%n archivos no se pudieron leer y se han omitido: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar(s) could not be read, and (its photo is|their photos are) shown without (it|them): %1</source>
        <extracomment>%1 names the sidecars, with the reasons</extracomment>
        <translation>
            <numerusform>%n sidecar no se pudo leer, y su foto se muestra sin él: %1</numerusform>
            <numerusform>%n sidecars no se pudieron leer, y sus fotos se muestran sin ellos: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Started again at the top</source>
        <translation>De nuevo desde el principio</translation>
    </message>
    <message>
        <source>Started again at the end</source>
        <translation>De nuevo desde el final</translation>
    </message>
    <message>
        <source>No gaps left</source>
        <translation>No quedan huecos</translation>
    </message>
    <message>
        <source>No gaps left · %1 not read yet</source>
        <translation>No quedan huecos · %1 sin leer</translation>
    </message>
    <message>
        <source>It keeps its name.</source>
        <translation>Conserva su nombre.</translation>
    </message>
    <message>
        <source>All photos keep their names.</source>
        <translation>Todas las fotos conservan su nombre.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s) keep their names.</source>
        <translation>
            <numerusform>%1 de %n foto conserva su nombre.</numerusform>
            <numerusform>Fotos que conservan su nombre: %1 de %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not rename: %1: %2.</source>
        <extracomment>%1 is the photo, %2 why</extracomment>
        <translation>No se pudo renombrar: %1: %2.</translation>
    </message>
    <message>
        <source>Could not rename: %1. %2</source>
        <translation>No se pudo renombrar: %1. %2</translation>
    </message>
    <message>
        <source>Could not undo the rename: %1. %2</source>
        <translation>No se pudo deshacer el renombrado: %1. %2</translation>
    </message>
    <message>
        <source>another Quorbel is undoing one at this moment</source>
        <translation>otro Quorbel está deshaciendo uno en este momento</translation>
    </message>
    <message>
        <source>it was undone already</source>
        <translation>ya se había deshecho</translation>
    </message>
    <message>
        <source>Undo Save</source>
        <translation>Deshacer guardado</translation>
    </message>
    <message>
        <source>Undo Shift Time of “%1”</source>
        <translation>Deshacer desplazamiento de la hora de «%1»</translation>
    </message>
    <message numerus="yes">
        <source>Undo Shift Time of %n photo(s)</source>
        <translation>
            <numerusform>Deshacer desplazamiento de la hora de %n foto</numerusform>
            <numerusform>Deshacer desplazamiento de la hora de %n fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo Save of “%1”</source>
        <translation>Deshacer guardado de «%1»</translation>
    </message>
    <message numerus="yes">
        <source>Undo Save of %n photo(s)</source>
        <translation>
            <numerusform>Deshacer guardado de %n foto</numerusform>
            <numerusform>Deshacer guardado de %n fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not undo the shift of time: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>No se pudo deshacer el desplazamiento de la hora: %1</translation>
    </message>
    <message>
        <source>Could not undo the save: %1</source>
        <translation>No se pudo deshacer el guardado: %1</translation>
    </message>
    <message numerus="yes">
        <source>Could not undo the shift of time of %n photo(s): %1</source>
        <extracomment>%1 names the photos, with the reasons</extracomment>
        <translation>
            <numerusform>No se pudo deshacer el desplazamiento de la hora de %n foto: %1</numerusform>
            <numerusform>No se pudo deshacer el desplazamiento de la hora de %n fotos: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not undo the save of %n photo(s): %1</source>
        <translation>
            <numerusform>No se pudo deshacer el guardado de %n foto: %1</numerusform>
            <numerusform>No se pudo deshacer el guardado de %n fotos: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not undone: %n photo(s) changed since and (was|were) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>No se ha deshecho: %n foto ha cambiado desde entonces y no se ha tocado: %1</numerusform>
            <numerusform>No se ha deshecho: %n fotos han cambiado desde entonces y no se han tocado: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone, but %n photo(s) changed since and (was|were) left alone: %1</source>
        <translation>
            <numerusform>Deshecho, pero %n foto ha cambiado desde entonces y no se ha tocado: %1</numerusform>
            <numerusform>Deshecho, pero %n fotos han cambiado desde entonces y no se han tocado: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone, but not every value of %n photo(s) could be put back as it was: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>Deshecho, pero no se pudieron restaurar todos los valores de %n foto: %1</numerusform>
            <numerusform>Deshecho, pero no se pudieron restaurar todos los valores de %n fotos: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>what it holds could not be read</source>
        <translation>no se pudo leer lo que contiene</translation>
    </message>
    <message>
        <source>reading it back took too long</source>
        <translation>volver a leerlo tardó demasiado</translation>
    </message>
    <message>
        <source>cannot be read any more</source>
        <translation>ya no se puede leer</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s) differed between IPTC and XMP and were brought together: %2</source>
        <extracomment>%1 is a field that holds a list (&quot;Keywords&quot;), %2 names the photos</extracomment>
        <translation>
            <numerusform>%1 de %n foto: IPTC y XMP diferían y se han combinado: %2</numerusform>
            <numerusform>%1 de %n fotos: IPTC y XMP diferían y se han combinado: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not save %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with the reasons</extracomment>
        <translation>
            <numerusform>No se pudo guardar %1 de %n foto: %2</numerusform>
            <numerusform>No fue posible guardar %1 de %n fotos: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <extracomment>%1 is why something was not written, %2 names photos: &quot;not a whole number: “abc” in a.jpg, b.jpg&quot;</extracomment>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>not written</source>
        <translation>no se ha escrito</translation>
    </message>
    <message>
        <source>not written: %1</source>
        <translation>no se ha escrito: %1</translation>
    </message>
    <message>
        <source>%1 refused: %2</source>
        <extracomment>%1 is a part of the file that takes no text (&quot;EXIF&quot;), %2 why: &quot;EXIF refused: Bad format&quot;</extracomment>
        <translation>%1 lo rechazó: %2</translation>
    </message>
    <message>
        <source>Nothing was written: %1</source>
        <extracomment>%1 names fields</extracomment>
        <translation>No se ha escrito nada: %1</translation>
    </message>
    <message numerus="yes">
        <source>Saved, but %n field(s) (reads|read) back differently: %1</source>
        <extracomment>%1 names the fields</extracomment>
        <translation>
            <numerusform>Guardado, pero al releer difiere %n campo: %1</numerusform>
            <numerusform>Guardado, pero al releer difieren %n campos: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Saved, but IPTC was left alone in photos that have several blocks of it: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>Guardado, pero IPTC no se ha tocado en las fotos que tienen varios bloques: %1</translation>
    </message>
    <message>
        <source>Not brought up to date: %1</source>
        <extracomment>%1 names files beside photos, with the reasons</extracomment>
        <translation>Sin actualizar: %1</translation>
    </message>
    <message>
        <source>Could not save: %1</source>
        <translation>No se pudo guardar: %1</translation>
    </message>
    <message numerus="yes">
        <source>Edits go to %n sidecars</source>
        <translation>
            <numerusform>Los cambios van a %n sidecar</numerusform>
            <numerusform>Los cambios van a %n sidecars</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Edits of %n photo(s) go to sidecars</source>
        <translation>
            <numerusform>Los cambios de %n foto van a sidecars</numerusform>
            <numerusform>Los cambios de %n fotos van a sidecars</numerusform>
        </translation>
    </message>
    <message>
        <source>Edits go to %1</source>
        <extracomment>%1 is a file, or two</extracomment>
        <translation>Los cambios van a %1</translation>
    </message>
    <message numerus="yes">
        <source>Edits of %n photo(s) go to %1</source>
        <translation>
            <numerusform>Los cambios de %n foto van a %1</numerusform>
            <numerusform>Los cambios de %n fotos van a %1</numerusform>
        </translation>
    </message>
    <message>
        <source>it is not there any more</source>
        <translation>ya no está ahí</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (keeps|keep) what the sidecar holds otherwise than the file: nothing in a sidecar is replaced.</source>
        <translation>
            <numerusform>El sidecar de %n foto conserva lo que difiere del archivo: en un sidecar no se reemplaza nada.</numerusform>
            <numerusform>Los sidecars de %n fotos conservan lo que difiere del archivo: en un sidecar no se reemplaza nada.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (needs|need) nothing.</source>
        <translation>
            <numerusform>%n foto no necesita nada.</numerusform>
            <numerusform>%n fotos no necesitan nada.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has|have) no sidecar: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n foto no tiene sidecar: %1</numerusform>
            <numerusform>%n fotos no tienen sidecar: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (shares its name with a raw photo, whose sidecar it is|share their names with raw photos, whose sidecars they are): %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n foto comparte el nombre con una foto raw, a la que pertenece el sidecar: %1</numerusform>
            <numerusform>%n fotos comparten el nombre con fotos raw, a las que pertenecen los sidecars: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (is no raw photo|are no raw photos): %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n foto no es raw: %1</numerusform>
            <numerusform>%n fotos no son raw: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Read-only, and left alone: %1</source>
        <extracomment>%1 names files</extracomment>
        <translation>Archivos de solo lectura, sin tocar: %1</translation>
    </message>
    <message>
        <source>Could not be read, and left alone: %1</source>
        <extracomment>%1 names files, with the reasons</extracomment>
        <translation>Archivos ilegibles, sin tocar: %1</translation>
    </message>
    <message>
        <source>Not written, because it would not be the same there: %1</source>
        <extracomment>%1 names photos, with the fields</extracomment>
        <translation>No se escribe, porque allí no quedaría igual: %1</translation>
    </message>
    <message>
        <source>%1 (reading took too long)</source>
        <extracomment>%1 is a photo</extracomment>
        <translation>%1 (la lectura tardó demasiado)</translation>
    </message>
    <message>
        <source>Cannot export the template “%1”</source>
        <translation>No se puede exportar la plantilla «%1»</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>Plantilla nueva</translation>
    </message>
    <message>
        <source>Not filled in: %1</source>
        <extracomment>%1 names fields, and why a text cannot stand in them</extracomment>
        <translation>Sin rellenar: %1</translation>
    </message>
    <message>
        <source>Could not set the zone: %1</source>
        <translation>No se pudo establecer la zona: %1</translation>
    </message>
    <message>
        <source>Could not shift the time: %1</source>
        <translation>No se pudo desplazar la hora: %1</translation>
    </message>
    <message numerus="yes">
        <source>Could not set the zone of %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with the reasons</extracomment>
        <translation>
            <numerusform>No se pudo establecer la zona de %1 de %n foto: %2</numerusform>
            <numerusform>No se pudo establecer la zona de %1 de %n fotos: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not shift the time of %1 of %n photos: %2</source>
        <translation>
            <numerusform>No se pudo desplazar la hora de %1 de %n foto: %2</numerusform>
            <numerusform>No se pudo desplazar la hora de %1 de %n fotos: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Times read back differently in %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with tags</extracomment>
        <translation>
            <numerusform>Al releer, las horas difieren en %1 de %n foto: %2</numerusform>
            <numerusform>Al releer, las horas difieren en %1 de %n fotos: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone for want of a time zone: %1</source>
        <extracomment>%1 names photos</extracomment>
        <translation>Sin tocar por falta de zona horaria: %1</translation>
    </message>
    <message>
        <source>Dates without a full day and time were left alone: %1</source>
        <extracomment>%1 names photos, with tags</extracomment>
        <translation>No se han tocado las fechas sin día y hora completos: %1</translation>
    </message>
    <message>
        <source>Taken</source>
        <comment>of a photo</comment>
        <extracomment>names of rows: when the only photo, or the first and the last one, was taken</extracomment>
        <translation>Captura</translation>
    </message>
    <message>
        <source>First</source>
        <comment>of some photos</comment>
        <translation>Primera</translation>
    </message>
    <message>
        <source>Last</source>
        <comment>of some photos</comment>
        <translation>Última</translation>
    </message>
    <message numerus="yes">
        <source>%n had no zone</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n no tenía zona</numerusform>
            <numerusform>%n no tenían zona</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n on a new day</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n cambia de día</numerusform>
            <numerusform>%n cambian de día</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no date and is|have no date and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n foto no tiene fecha y no se toca: %1</numerusform>
            <numerusform>%n fotos no tienen fecha y no se tocan: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has an odd date and is|have odd dates and are) left alone: %1</source>
        <extracomment>%1 names the photos, with their dates</extracomment>
        <translation>
            <numerusform>%n foto tiene una fecha anómala y no se toca: %1</numerusform>
            <numerusform>%n fotos tienen fechas anómalas y no se tocan: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no time zone to come from and is|have no time zone to come from and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n foto no tiene zona horaria de partida y no se toca: %1</numerusform>
            <numerusform>%n fotos no tienen zona horaria de partida y no se tocan: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no position in a time zone and is|have no position in a time zone and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n foto no tiene una posición en una zona horaria y no se toca: %1</numerusform>
            <numerusform>%n fotos no tienen una posición en una zona horaria y no se tocan: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The one position lies in this zone.</source>
        <translation>La única posición está en esta zona.</translation>
    </message>
    <message>
        <source>The one position lies in another zone.</source>
        <translation>La única posición está en otra zona.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n positions lie in this zone.</source>
        <translation>
            <numerusform>%1 de %n posición está en esta zona.</numerusform>
            <numerusform>Posiciones en esta zona: %1 de %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 d</source>
        <extracomment>days</extracomment>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 h</source>
        <extracomment>hours</extracomment>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <extracomment>minutes</extracomment>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>seconds</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 earlier</source>
        <extracomment>%1 is a span of time: &quot;1 h 02 min 30 s later&quot;</extracomment>
        <translation>%1 antes</translation>
    </message>
    <message>
        <source>%1 later</source>
        <translation>%1 después</translation>
    </message>
    <message>
        <source>Each photo’s own</source>
        <translation>La de cada foto</translation>
    </message>
    <message>
        <source>Whole numbers, of a hundred years at most.</source>
        <translation>Números enteros, cien años como máximo.</translation>
    </message>
    <message>
        <source>This photo has no date: choose another one.</source>
        <translation>Esta foto no tiene fecha: elija otra.</translation>
    </message>
    <message>
        <source>Not a date: YYYY-MM-DD HH:MM:SS</source>
        <translation>No es una fecha: YYYY-MM-DD HH:MM:SS</translation>
    </message>
    <message>
        <source>Could not shift the time: where edits of raw files go was changed in the settings meanwhile</source>
        <translation>No se pudo desplazar la hora: mientras tanto se cambió en los ajustes adónde van los cambios de los archivos raw</translation>
    </message>
    <message>
        <source>“%1” is not there any more.</source>
        <translation>«%1» ya no está ahí.</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>«%1» no es un archivo.</translation>
    </message>
    <message>
        <source>“%1” is too large for a list of codes.</source>
        <translation>«%1» es demasiado grande para una lista de códigos.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>«%1» no se puede leer: %2</translation>
    </message>
    <message>
        <source>“%1” has no fields to copy.</source>
        <translation>«%1» no tiene campos que copiar.</translation>
    </message>
    <message>
        <source>The texts of “%1” are too long to be copied.</source>
        <translation>Los textos de «%1» son demasiado largos para copiarlos.</translation>
    </message>
    <message>
        <source>These fields were copied by a newer version of Quorbel.</source>
        <translation>Estos campos se copiaron con una versión más reciente de Quorbel.</translation>
    </message>
    <message>
        <source>No fields were copied yet. Edit ▸ Copy Fields takes those of the selected photo.</source>
        <translation>Aún no se han copiado campos. Editar ▸ Copiar campos toma los de la foto seleccionada.</translation>
    </message>
    <message>
        <source>There is a set of this name already</source>
        <translation>Ya hay un conjunto con este nombre</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <extracomment>%1 is a version like 1.2, %2 a number that says which build of it this is.</extracomment>
        <translation>Versión %1 (compilación %2)</translation>
    </message>
    <message>
        <source>© 2026 The Quorbel developers. Free software under the MIT License.</source>
        <translation>© 2026 Los desarrolladores de Quorbel. Software libre bajo la licencia MIT.</translation>
    </message>
    <message>
        <source>Reads and writes photos with ExifTool by Phil Harvey (Artistic License or GPL). Built with Qt %1 (LGPL 3), LibRaw (LGPL 2.1 or CDDL), libheif (LGPL 3), libjxl (BSD), OpenJPEG (BSD) and Little CMS (MIT).</source>
        <translation>Lee y escribe fotos con ExifTool de Phil Harvey (Artistic License o GPL). Hecho con Qt %1 (LGPL 3), LibRaw (LGPL 2.1 o CDDL), libheif (LGPL 3), libjxl (BSD), OpenJPEG (BSD) y Little CMS (MIT).</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>About Quorbel</source>
        <translation>Acerca de Quorbel</translation>
    </message>
    <message>
        <source>Field &amp;Set</source>
        <translation>C&amp;onjunto de campos</translation>
    </message>
    <message>
        <source>Save What Is on Screen as Set…</source>
        <translation>Guardar los campos visibles como conjunto…</translation>
    </message>
    <message>
        <source>Edit Sets…</source>
        <translation>Editar conjuntos…</translation>
    </message>
    <message>
        <source>N&amp;o Stars</source>
        <translation>&amp;Sin estrellas</translation>
    </message>
    <message numerus="yes">
        <source>&amp;%n Star(s)</source>
        <translation>
            <numerusform>&amp;%n estrella</numerusform>
            <numerusform>&amp;%n estrellas</numerusform>
        </translation>
    </message>
    <message>
        <source>Save and Ne&amp;xt Photo</source>
        <translation>Guardar y foto sigu&amp;iente</translation>
    </message>
    <message>
        <source>Same as Photo Be&amp;fore</source>
        <translation>Igual que la &amp;foto anterior</translation>
    </message>
    <message>
        <source>Rati&amp;ng</source>
        <translation>Valorac&amp;ión</translation>
    </message>
    <message>
        <source>Ne&amp;xt Photo</source>
        <translation>Foto &amp;siguiente</translation>
    </message>
    <message>
        <source>Previ&amp;ous Photo</source>
        <translation>Foto &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Look Closely</source>
        <translation>Ver de &amp;cerca</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu: what concerns files and the program.</extracomment>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>Open with Su&amp;bfolders…</source>
        <translation>Abrir con &amp;subcarpetas…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Re&amp;nombrar…</translation>
    </message>
    <message>
        <source>Rename P&amp;hotos…</source>
        <translation>Renombrar &amp;fotos…</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Ac&amp;tualizar</translation>
    </message>
    <message>
        <source>&amp;Close Folder</source>
        <translation>&amp;Cerrar carpeta</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>Aj&amp;ustes…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Sa&amp;lir</translation>
    </message>
    <message>
        <source>Write Sidecars &amp;Into Photos…</source>
        <translation>Escribir sidecars &amp;en las fotos…</translation>
    </message>
    <message>
        <source>Write &amp;Metadata Into Sidecars…</source>
        <translation>Escribir &amp;metadatos en sidecars…</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <comment>verb: empty it</comment>
        <translation>Vaciar la lista</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu: what changes photos and texts.</extracomment>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Undo Sa&amp;ve</source>
        <translation>Deshacer &amp;guardado</translation>
    </message>
    <message>
        <source>Und&amp;o Rename</source>
        <translation>Deshacer re&amp;nombrado</translation>
    </message>
    <message>
        <source>&amp;Bring Back Edits</source>
        <translation>Rec&amp;uperar cambios</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>S&amp;eleccionar todo</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <extracomment>A verb.</extracomment>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>S&amp;hift Time…</source>
        <translation>De&amp;splazar la hora…</translation>
    </message>
    <message>
        <source>Make Them A&amp;gree</source>
        <extracomment>Them: the places of a photo that should hold the same.</extracomment>
        <translation>&amp;Hacer coincidir</translation>
    </message>
    <message>
        <source>Copy Fi&amp;elds</source>
        <translation>Copiar ca&amp;mpos</translation>
    </message>
    <message>
        <source>Paste Fiel&amp;ds…</source>
        <translation>Pegar camp&amp;os…</translation>
    </message>
    <message>
        <source>Paste Fields Aga&amp;in</source>
        <translation>Pegar campos de nue&amp;vo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu: what is on screen.</extracomment>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Show &amp;preview</source>
        <translation>Mostrar vista &amp;previa</translation>
    </message>
    <message>
        <source>Show &amp;Disagreements</source>
        <translation>Mostrar &amp;discrepancias</translation>
    </message>
    <message>
        <source>Show &amp;namespace details</source>
        <translation>Mostrar detalles de espacios de &amp;nombres</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>Vol&amp;ver a leer</translation>
    </message>
    <message>
        <source>Pair Raw and &amp;JPEG</source>
        <translation>Emparejar raw y &amp;JPEG</translation>
    </message>
    <message>
        <source>Next &amp;Gap</source>
        <translation>&amp;Hueco siguiente</translation>
    </message>
    <message>
        <source>Previo&amp;us Gap</source>
        <translation>H&amp;ueco anterior</translation>
    </message>
    <message>
        <source>Clear &amp;Filters</source>
        <translation>Quitar &amp;filtros</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Quorbel &amp;Help</source>
        <translation>&amp;Ayuda de Quorbel</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>A&amp;tajos de teclado</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>&amp;Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>&amp;About Quorbel</source>
        <translation>Ac&amp;erca de Quorbel</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Apply to %n</source>
        <comment>photos</comment>
        <translation>
            <numerusform>A&amp;plicar a %n</numerusform>
            <numerusform>A&amp;plicar a %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Hide &amp;preview</source>
        <translation>Ocultar vista &amp;previa</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <extracomment>Which files a panel lists; %1 is a list of endings.</extracomment>
        <translation>Imágenes (%1)</translation>
    </message>
    <message>
        <source>Choose a folder of images. The folders in it are opened as well.</source>
        <translation>Elija una carpeta de imágenes. También se abrirán sus subcarpetas.</translation>
    </message>
    <message>
        <source>Choose a text file of codes: a code, a tab, and its text in each line.</source>
        <translation>Elija un archivo de texto con códigos: en cada línea, un código, un tabulador y su texto.</translation>
    </message>
    <message>
        <source>Choose a folder of images, or one or more image files.</source>
        <translation>Elija una carpeta de imágenes, o uno o varios archivos de imagen.</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>Todos los archivos (%1)</translation>
    </message>
    <message>
        <source>Text files (%1)</source>
        <translation>Archivos de texto (%1)</translation>
    </message>
    <message>
        <source>Choose</source>
        <comment>verb: this file</comment>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>verb: these photos</comment>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Quick &amp;Keywords</source>
        <translation>P&amp;alabras clave rápidas</translation>
    </message>
    <message>
        <source>Templates (%1)</source>
        <translation>Plantillas (%1)</translation>
    </message>
    <message>
        <source>Choose template files.</source>
        <translation>Elija archivos de plantilla.</translation>
    </message>
    <message>
        <source>Choose where the template is to go.</source>
        <translation>Elija dónde guardar la plantilla.</translation>
    </message>
    <message>
        <source>Save as Template…</source>
        <translation>Guardar como plantilla…</translation>
    </message>
    <message>
        <source>Te&amp;mplates</source>
        <translation>P&amp;lantillas</translation>
    </message>
    <message>
        <source>Templates…</source>
        <translation>Plantillas…</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Quorbel está actualizado</translation>
    </message>
    <message>
        <source>Quorbel is running the latest version.</source>
        <translation>Está instalada la última versión de Quorbel.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>No se pudieron buscar actualizaciones</translation>
    </message>
    <message>
        <source>Please check your internet connection and try again.</source>
        <translation>Compruebe la conexión a Internet e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Quorbel %1 is available</source>
        <translation>Quorbel %1 está disponible</translation>
    </message>
    <message>
        <source>A newer version of Quorbel is available.</source>
        <translation>Hay una versión más reciente de Quorbel.</translation>
    </message>
    <message>
        <source>Download</source>
        <comment>verb</comment>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>button: not now</comment>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Reads and edits the words inside photos.</source>
        <translation>Lee y edita los textos de las fotos.</translation>
    </message>
    <message>
        <source>A folder of photos, or photos.</source>
        <translation>Una carpeta de fotos, o fotos sueltas.</translation>
    </message>
    <message>
        <source>[files…]</source>
        <extracomment>What a command line may hold behind the name of the program.</extracomment>
        <translation>[archivos…]</translation>
    </message>
    <message>
        <source>The update feed’s “%1” is missing or no text.</source>
        <translation>Falta «%1» en el canal de actualizaciones, o no es un texto.</translation>
    </message>
    <message>
        <source>The update feed’s “%1” is missing or no whole number.</source>
        <translation>Falta «%1» en el canal de actualizaciones, o no es un número entero.</translation>
    </message>
    <message>
        <source>Bad server response: HTTP status %1.</source>
        <translation>Respuesta incorrecta del servidor: estado HTTP %1.</translation>
    </message>
    <message>
        <source>The update feed is no valid JSON: %1.</source>
        <translation>El canal de actualizaciones no es JSON válido: %1.</translation>
    </message>
    <message>
        <source>The update feed is no JSON object.</source>
        <translation>El canal de actualizaciones no es un objeto JSON.</translation>
    </message>
    <message numerus="yes">
        <source>Long to listen to: %1 of %n character(s)</source>
        <translation>
            <numerusform>Largo de escuchar: %1 de %n carácter</numerusform>
            <numerusform>Largo de escuchar: %1 de %n caracteres</numerusform>
        </translation>
    </message>
    <message>
        <source>Points to “%1”, which is empty</source>
        <translation>Remite a «%1», que está vacío</translation>
    </message>
    <message>
        <source>Alternative text</source>
        <translation>Texto alternativo</translation>
    </message>
    <message>
        <source>Says what is to be seen, for people who cannot see it</source>
        <translation>Dice lo que se ve, para las personas que no pueden verlo</translation>
    </message>
    <message>
        <source>Extended description</source>
        <translation>Descripción ampliada</translation>
    </message>
    <message>
        <source>Describes at length what a short text cannot, for people who cannot see it</source>
        <translation>Describe en detalle lo que no cabe en un texto breve, para las personas que no pueden verlo</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Código de país</translation>
    </message>
    <message>
        <source>Two or three letters of ISO 3166: CH, CHE</source>
        <translation>Dos o tres letras de la norma ISO 3166: CH, CHE</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Cargo</translation>
    </message>
    <message>
        <source>The creator&apos;s position or occupation</source>
        <translation>Puesto o profesión del creador</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>Where the creator can be reached: address, phone, e-mail, web</source>
        <translation>Cómo localizar al creador: dirección, teléfono, correo, web</translation>
    </message>
    <message>
        <source>People in detail</source>
        <translation>Personas en detalle</translation>
    </message>
    <message>
        <source>Who is to be seen, with identifiers, description and characteristics</source>
        <translation>Quién aparece, con identificadores, descripción y características</translation>
    </message>
    <message>
        <source>Model ages</source>
        <translation>Edades de los modelos</translation>
    </message>
    <message>
        <source>How old the models were, in years</source>
        <translation>Qué edad tenían los modelos, en años</translation>
    </message>
    <message>
        <source>Youngest model</source>
        <translation>Modelo más joven</translation>
    </message>
    <message>
        <source>How old the youngest model was</source>
        <translation>Qué edad tenía el modelo más joven</translation>
    </message>
    <message>
        <source>Model information</source>
        <translation>Datos de los modelos</translation>
    </message>
    <message>
        <source>Anything else that is to be known about the models</source>
        <translation>Cualquier otra cosa que deba saberse de los modelos</translation>
    </message>
    <message>
        <source>Model releases</source>
        <translation>Autorizaciones de modelo</translation>
    </message>
    <message>
        <source>How far releases cover the people who are shown</source>
        <translation>Hasta qué punto hay autorizaciones de las personas que aparecen</translation>
    </message>
    <message>
        <source>Model release IDs</source>
        <translation>ID de autoriz. de modelo</translation>
    </message>
    <message>
        <source>Numbers under which the model releases are filed</source>
        <translation>Números con que están archivadas las autorizaciones de modelo</translation>
    </message>
    <message>
        <source>Location created</source>
        <translation>Lugar de creación</translation>
    </message>
    <message>
        <source>Where the camera stood</source>
        <translation>Dónde estaba la cámara</translation>
    </message>
    <message>
        <source>Locations shown</source>
        <translation>Lugares mostrados</translation>
    </message>
    <message>
        <source>Places that are to be seen</source>
        <translation>Lugares que se ven</translation>
    </message>
    <message>
        <source>Subject codes</source>
        <translation>Códigos de tema</translation>
    </message>
    <message>
        <source>What it is about, by the eight-digit codes of IPTC (an older list)</source>
        <translation>De qué trata, según los códigos de ocho cifras del IPTC (lista antigua)</translation>
    </message>
    <message>
        <source>Subject terms</source>
        <translation>Términos de tema</translation>
    </message>
    <message>
        <source>What it is about, by terms of a vocabulary</source>
        <translation>De qué trata, con términos de un vocabulario</translation>
    </message>
    <message>
        <source>Genre terms</source>
        <translation>Términos de género</translation>
    </message>
    <message>
        <source>What kind of picture it is, by terms of a vocabulary</source>
        <translation>Qué tipo de imagen es, con términos de un vocabulario</translation>
    </message>
    <message>
        <source>Event IDs</source>
        <translation>ID de evento</translation>
    </message>
    <message>
        <source>Identifiers of the event</source>
        <translation>Identificadores del evento</translation>
    </message>
    <message>
        <source>Organisations</source>
        <translation>Organizaciones</translation>
    </message>
    <message>
        <source>Organisations that are to be seen, by name</source>
        <translation>Nombres de las organizaciones que aparecen</translation>
    </message>
    <message>
        <source>Organisation codes</source>
        <translation>Códigos de organización</translation>
    </message>
    <message>
        <source>The same by a code: stock ticker, registry number</source>
        <translation>Lo mismo con un código: símbolo bursátil, número de registro</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>Productos</translation>
    </message>
    <message>
        <source>Products that are to be seen, with GTIN and identifiers</source>
        <translation>Productos que aparecen, con GTIN e identificadores</translation>
    </message>
    <message>
        <source>Artworks or objects</source>
        <translation>Obras de arte u objetos</translation>
    </message>
    <message>
        <source>Works that are to be seen, with maker, date, owner and rights</source>
        <translation>Obras que aparecen, con autor, fecha, propietario y derechos</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Regiones</translation>
    </message>
    <message>
        <source>Parts of the picture: outline, name, kind and role</source>
        <translation>Partes de la imagen: contorno, nombre, tipo y función</translation>
    </message>
    <message>
        <source>Copyright owners</source>
        <translation>Titulares del copyright</translation>
    </message>
    <message>
        <source>Who owns the copyright</source>
        <translation>Quién es titular del copyright</translation>
    </message>
    <message>
        <source>Image creators</source>
        <translation>Creadores de la imagen</translation>
    </message>
    <message>
        <source>Who made the picture, with identifiers</source>
        <translation>Quién hizo la imagen, con identificadores</translation>
    </message>
    <message>
        <source>Contributors</source>
        <translation>Colaboradores</translation>
    </message>
    <message>
        <source>Who helped to make the picture, and in which role</source>
        <translation>Quién ayudó a hacer la imagen, y con qué función</translation>
    </message>
    <message>
        <source>Other constraints</source>
        <translation>Otras restricciones</translation>
    </message>
    <message>
        <source>Further limits of use, in words</source>
        <translation>Otros límites de uso, descritos con palabras</translation>
    </message>
    <message>
        <source>Data mining</source>
        <translation>Minería de datos</translation>
    </message>
    <message>
        <source>Whether others may mine the picture or train AI with it</source>
        <translation>Si otros pueden extraer datos de la imagen o entrenar una IA con ella</translation>
    </message>
    <message>
        <source>Property releases</source>
        <translation>Autorizaciones de propiedad</translation>
    </message>
    <message>
        <source>How far releases cover what is shown</source>
        <translation>Hasta qué punto hay autorizaciones para lo que aparece</translation>
    </message>
    <message>
        <source>Property release IDs</source>
        <translation>ID de autoriz. de propiedad</translation>
    </message>
    <message>
        <source>Numbers under which the property releases are filed</source>
        <translation>Números con que están archivadas las autorizaciones de propiedad</translation>
    </message>
    <message>
        <source>Licensors</source>
        <translation>Licenciantes</translation>
    </message>
    <message>
        <source>Whom to ask for a licence</source>
        <translation>A quién pedir una licencia</translation>
    </message>
    <message>
        <source>Suppliers</source>
        <translation>Proveedores</translation>
    </message>
    <message>
        <source>Who passed the picture on last</source>
        <translation>Quién transmitió la imagen por última vez</translation>
    </message>
    <message>
        <source>Supplier image ID</source>
        <translation>ID imagen proveedor</translation>
    </message>
    <message>
        <source>The picture&apos;s number at the supplier</source>
        <translation>El número de la imagen en el proveedor</translation>
    </message>
    <message>
        <source>Embedded rights</source>
        <translation>Derechos incrustados</translation>
    </message>
    <message>
        <source>Terms that machines read, within the file</source>
        <translation>Condiciones legibles por máquina, dentro del archivo</translation>
    </message>
    <message>
        <source>Linked rights</source>
        <translation>Derechos enlazados</translation>
    </message>
    <message>
        <source>Terms that machines read, at an address</source>
        <translation>Condiciones legibles por máquina, en una dirección</translation>
    </message>
    <message>
        <source>Digital source</source>
        <translation>Fuente digital</translation>
    </message>
    <message>
        <source>What the picture was made from: camera, scan, software, AI</source>
        <translation>De qué procede la imagen: cámara, escáner, software, IA</translation>
    </message>
    <message>
        <source>AI system</source>
        <translation>Sistema de IA</translation>
    </message>
    <message>
        <source>Which engine or model made it</source>
        <translation>Qué motor o modelo la hizo</translation>
    </message>
    <message>
        <source>AI system version</source>
        <translation>Versión del sistema de IA</translation>
    </message>
    <message>
        <source>Its version</source>
        <translation>Su versión</translation>
    </message>
    <message>
        <source>AI prompt</source>
        <translation>Prompt de IA</translation>
    </message>
    <message>
        <source>What the AI was asked for, and what not</source>
        <translation>Qué se pidió a la IA y qué no</translation>
    </message>
    <message>
        <source>AI prompt writer</source>
        <translation>Autor del prompt de IA</translation>
    </message>
    <message>
        <source>Who wrote the prompt</source>
        <translation>Quién escribió el prompt</translation>
    </message>
    <message>
        <source>Image GUID</source>
        <translation>GUID de la imagen</translation>
    </message>
    <message>
        <source>An identifier that no other picture has</source>
        <translation>Un identificador que no tiene ninguna otra imagen</translation>
    </message>
    <message>
        <source>Registry entries</source>
        <translation>Entradas de registro</translation>
    </message>
    <message>
        <source>Registries that know the picture, and its number there</source>
        <translation>Registros donde figura la imagen, y su número en ellos</translation>
    </message>
    <message>
        <source>Largest width</source>
        <translation>Anchura máxima</translation>
    </message>
    <message>
        <source>Of the largest version that can be had, in pixels</source>
        <translation>De la versión más grande que se puede obtener, en píxeles</translation>
    </message>
    <message>
        <source>Largest height</source>
        <translation>Altura máxima</translation>
    </message>
    <message>
        <source>contact</source>
        <translation>contacto</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Código postal</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Provincia</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>artwork</source>
        <translation>obra</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Creators</source>
        <translation>Creadores</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>Created about</source>
        <translation>Fecha aproximada</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Contributions</source>
        <translation>Contribuciones</translation>
    </message>
    <message>
        <source>Physical description</source>
        <translation>Descripción física</translation>
    </message>
    <message>
        <source>Style or period</source>
        <translation>Estilo o periodo</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Inventory number</source>
        <translation>Número de inventario</translation>
    </message>
    <message>
        <source>Inventory address</source>
        <translation>URL del inventario</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Aviso de copyright</translation>
    </message>
    <message>
        <source>Copyright owner</source>
        <translation>Titular del copyright</translation>
    </message>
    <message>
        <source>Copyright owner ID</source>
        <translation>ID del titular</translation>
    </message>
    <message>
        <source>Licensor</source>
        <translation>Licenciante</translation>
    </message>
    <message>
        <source>Licensor ID</source>
        <translation>ID del licenciante</translation>
    </message>
    <message>
        <source>Creator IDs</source>
        <translation>ID de los creadores</translation>
    </message>
    <message>
        <source>term</source>
        <translation>término</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Term ID</source>
        <translation>ID del término</translation>
    </message>
    <message>
        <source>Vocabulary</source>
        <translation>Vocabulario</translation>
    </message>
    <message>
        <source>Relation</source>
        <translation>Relación</translation>
    </message>
    <message>
        <source>expression</source>
        <translation>expresión</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expresión</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Codificación</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>entry</source>
        <translation>entrada</translation>
    </message>
    <message>
        <source>Identifiers</source>
        <translation>Identificadores</translation>
    </message>
    <message>
        <source>contributor</source>
        <translation>colaborador</translation>
    </message>
    <message>
        <source>Roles</source>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>region</source>
        <translation>región</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Función</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>contorno</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>point</source>
        <translation>punto</translation>
    </message>
    <message>
        <source>link</source>
        <translation>enlace</translation>
    </message>
    <message>
        <source>place</source>
        <translation>lugar</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>Ubicación exacta</translation>
    </message>
    <message>
        <source>World region</source>
        <translation>Región del mundo</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitud</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Altitude (m)</source>
        <translation>Altitud (m)</translation>
    </message>
    <message>
        <source>Below sea level</source>
        <translation>Bajo el nivel del mar</translation>
    </message>
    <message>
        <source>person</source>
        <translation>persona</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Characteristics</source>
        <translation>Características</translation>
    </message>
    <message>
        <source>product</source>
        <translation>producto</translation>
    </message>
    <message>
        <source>GTIN</source>
        <translation>GTIN</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>licensor</source>
        <translation>licenciante</translation>
    </message>
    <message>
        <source>Phone type</source>
        <translation>Tipo de teléfono</translation>
    </message>
    <message>
        <source>Second phone</source>
        <translation>Teléfono 2</translation>
    </message>
    <message>
        <source>Second phone type</source>
        <translation>Tipo de teléfono 2</translation>
    </message>
    <message>
        <source>Address, further</source>
        <translation>Dirección (cont.)</translation>
    </message>
    <message>
        <source>owner</source>
        <translation>titular</translation>
    </message>
    <message>
        <source>creator</source>
        <translation>creador</translation>
    </message>
    <message>
        <source>supplier</source>
        <translation>proveedor</translation>
    </message>
    <message>
        <source>%1 is not a number: “%2”</source>
        <extracomment>%1 is what the number tells (&quot;Latitude&quot;), %2 what stands there instead</extracomment>
        <translation>%1 no es un número: «%2»</translation>
    </message>
    <message>
        <source>not a whole number: “%1”</source>
        <translation>no es un número entero: «%1»</translation>
    </message>
    <message>
        <source>%1 holds %2 of another program, which this change would lose</source>
        <extracomment>%1 is a field, %2 names parts of it, in quotation marks</extracomment>
        <translation>este cambio borraría datos de otro programa en %1: %2</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>No es un número</translation>
    </message>
    <message numerus="yes">
        <source>%1 · %n more</source>
        <extracomment>%1 is what the first of several cards says</extracomment>
        <translation>
            <numerusform>%1 · %n más</numerusform>
            <numerusform>%1 · %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose Genre…</source>
        <translation>Elegir género…</translation>
    </message>
    <message>
        <source>Choose Subject…</source>
        <translation>Elegir tema…</translation>
    </message>
    <message>
        <source>Choose Kind…</source>
        <translation>Elegir tipo…</translation>
    </message>
    <message>
        <source>Choose Role…</source>
        <translation>Elegir función…</translation>
    </message>
    <message>
        <source>Digital source type</source>
        <translation>Tipo de fuente digital</translation>
    </message>
    <message>
        <source>Digital capture sampled from real life</source>
        <translation>Captura digital tomada de la realidad</translation>
    </message>
    <message>
        <source>Taken with a camera, not changed beyond developing</source>
        <translation>Hecha con una cámara, sin más cambios que el revelado</translation>
    </message>
    <message>
        <source>Multi-frame computational capture sampled from real life</source>
        <translation>Captura computacional de varias tomas de la realidad</translation>
    </message>
    <message>
        <source>Several frames of one moment joined by the camera</source>
        <translation>Varias tomas de un mismo momento unidas por la cámara</translation>
    </message>
    <message>
        <source>Digitised from a transparent negative</source>
        <translation>Digitalizada a partir de un negativo transparente</translation>
    </message>
    <message>
        <source>A film negative turned into a digital picture</source>
        <translation>Un negativo de película convertido en imagen digital</translation>
    </message>
    <message>
        <source>Digitised from a transparent positive</source>
        <translation>Digitalizada a partir de un positivo transparente</translation>
    </message>
    <message>
        <source>A slide turned into a digital picture</source>
        <translation>Una diapositiva convertida en imagen digital</translation>
    </message>
    <message>
        <source>Digitised from a non-transparent medium</source>
        <translation>Digitalizada a partir de un soporte no transparente</translation>
    </message>
    <message>
        <source>A scan of a print or another thing on paper</source>
        <translation>El escaneo de una copia u otra cosa en papel</translation>
    </message>
    <message>
        <source>Human-edited media</source>
        <translation>Contenido editado por personas</translation>
    </message>
    <message>
        <source>A picture that a person changed, with tools other than generative AI</source>
        <translation>Una imagen que alguien cambió con herramientas que no son IA generativa</translation>
    </message>
    <message>
        <source>Edited using Generative AI</source>
        <translation>Editada con IA generativa</translation>
    </message>
    <message>
        <source>A picture parts of which were changed or added by generative AI</source>
        <translation>Una imagen con partes cambiadas o añadidas por IA generativa</translation>
    </message>
    <message>
        <source>Algorithmically-altered media</source>
        <translation>Contenido alterado por algoritmos</translation>
    </message>
    <message>
        <source>Changed by a program by itself, not by generative AI</source>
        <translation>Cambiada automáticamente por un programa, sin IA generativa</translation>
    </message>
    <message>
        <source>Digital creation</source>
        <translation>Creación digital</translation>
    </message>
    <message>
        <source>Made by a person with digital tools, such as a drawing</source>
        <translation>Hecha por una persona con herramientas digitales, como un dibujo</translation>
    </message>
    <message>
        <source>Data-driven media</source>
        <translation>Contenido basado en datos</translation>
    </message>
    <message>
        <source>Drawn from data, such as a chart or a map</source>
        <translation>Dibujada a partir de datos, como un gráfico o un mapa</translation>
    </message>
    <message>
        <source>Created using Generative AI</source>
        <translation>Creada con IA generativa</translation>
    </message>
    <message>
        <source>Made wholly by an AI that learned from other pictures</source>
        <translation>Hecha por completo por una IA que aprendió de otras imágenes</translation>
    </message>
    <message>
        <source>Pure algorithmic media</source>
        <translation>Contenido puramente algorítmico</translation>
    </message>
    <message>
        <source>Computed by a formula that learned from nothing, such as a fractal</source>
        <translation>Calculada con una fórmula que no aprendió de nada, como un fractal</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>What a display showed</source>
        <translation>Lo que mostraba una pantalla</translation>
    </message>
    <message>
        <source>Virtual event recording</source>
        <translation>Grabación de un evento virtual</translation>
    </message>
    <message>
        <source>Recorded of something that took place in a virtual world</source>
        <translation>Grabación de algo que ocurrió en un mundo virtual</translation>
    </message>
    <message>
        <source>Composite of elements</source>
        <translation>Composición de elementos</translation>
    </message>
    <message>
        <source>Put together from parts of any kind</source>
        <translation>Compuesta de partes de cualquier tipo</translation>
    </message>
    <message>
        <source>Composite of captured elements</source>
        <translation>Composición de elementos capturados</translation>
    </message>
    <message>
        <source>Put together from parts that were all photographed</source>
        <translation>Compuesta solo de partes fotografiadas</translation>
    </message>
    <message>
        <source>Composite including generative AI elements</source>
        <translation>Composición con elementos de IA generativa</translation>
    </message>
    <message>
        <source>Put together from parts of which generative AI made at least one</source>
        <translation>Compuesta de partes, al menos una hecha con IA generativa</translation>
    </message>
    <message>
        <source>Original media with minor human edits</source>
        <translation>Contenido original con pequeñas ediciones humanas</translation>
    </message>
    <message>
        <source>Retired in 2024: use the one for human-edited media</source>
        <translation>Retirado en 2024: use el de contenido editado por personas</translation>
    </message>
    <message>
        <source>Created by software</source>
        <translation>Creada por software</translation>
    </message>
    <message>
        <source>Retired in 2022: use one that says how</source>
        <translation>Retirado en 2022: use uno que diga cómo</translation>
    </message>
    <message>
        <source>Digital art</source>
        <translation>Arte digital</translation>
    </message>
    <message>
        <source>Retired in 2024: use the one for a digital creation</source>
        <translation>Retirado en 2024: use el de creación digital</translation>
    </message>
    <message>
        <source>Unspecified – no prohibition defined</source>
        <translation>Sin especificar: ninguna prohibición definida</translation>
    </message>
    <message>
        <source>The file says nothing about it</source>
        <translation>El archivo no dice nada al respecto</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Permitida</translation>
    </message>
    <message>
        <source>Anybody may mine the picture and train with it</source>
        <translation>Cualquiera puede extraer datos de la imagen y entrenar con ella</translation>
    </message>
    <message>
        <source>Prohibited for AI/ML training</source>
        <translation>Prohibida para entrenar IA/ML</translation>
    </message>
    <message>
        <source>No training of any AI; other mining may be done</source>
        <translation>No se permite entrenar ninguna IA; sí otra minería de datos</translation>
    </message>
    <message>
        <source>Prohibited for Generative AI/ML training</source>
        <translation>Prohibida para entrenar IA/ML generativa</translation>
    </message>
    <message>
        <source>No training of AI that makes pictures or texts</source>
        <translation>No se permite entrenar IA que genere imágenes o textos</translation>
    </message>
    <message>
        <source>Prohibited except for search engine indexing</source>
        <translation>Prohibida salvo para indexación en buscadores</translation>
    </message>
    <message>
        <source>Search engines may list the picture; nothing else</source>
        <translation>Los buscadores pueden indexar la imagen; nada más</translation>
    </message>
    <message>
        <source>Prohibited</source>
        <translation>Prohibida</translation>
    </message>
    <message>
        <source>No mining and no training at all</source>
        <translation>Ni minería ni entrenamiento de ningún tipo</translation>
    </message>
    <message>
        <source>Prohibited, see Other Constraints</source>
        <translation>Prohibida, véase Otras restricciones</translation>
    </message>
    <message>
        <source>What may be done stands in Other constraints, which must be filled</source>
        <translation>Lo que se permite figura en Otras restricciones, campo que debe rellenarse</translation>
    </message>
    <message>
        <source>Prohibited, see Embedded Encoded Rights Expression</source>
        <translation>Prohibida, véase la expresión de derechos codificada incrustada</translation>
    </message>
    <message>
        <source>What may be done stands in Embedded rights</source>
        <translation>Lo que se permite figura en Derechos incrustados</translation>
    </message>
    <message>
        <source>Prohibited, see Linked Encoded Rights Expression</source>
        <translation>Prohibida, véase la expresión de derechos codificada enlazada</translation>
    </message>
    <message>
        <source>What may be done stands where Linked rights points</source>
        <translation>Lo que se permite figura en la dirección de Derechos enlazados</translation>
    </message>
    <message>
        <source>Model release status</source>
        <translation>Estado de las autorizaciones de modelo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Nobody who is shown has signed a release</source>
        <translation>Nadie de quienes aparecen ha firmado una autorización</translation>
    </message>
    <message>
        <source>Not Applicable</source>
        <translation>No aplicable</translation>
    </message>
    <message>
        <source>Nobody is shown whose consent would be needed</source>
        <translation>No aparece nadie cuyo consentimiento sea necesario</translation>
    </message>
    <message>
        <source>Unlimited Model Releases</source>
        <translation>Autorizaciones de modelo ilimitadas</translation>
    </message>
    <message>
        <source>All who are shown have signed, without limits</source>
        <translation>Todos los que aparecen han firmado, sin límites</translation>
    </message>
    <message>
        <source>Limited or Incomplete Model Releases</source>
        <translation>Autorizaciones de modelo limitadas o incompletas</translation>
    </message>
    <message>
        <source>Some have not signed, or only for certain uses</source>
        <translation>Algunos no han firmado, o solo para ciertos usos</translation>
    </message>
    <message>
        <source>Property release status</source>
        <translation>Estado de las autorizaciones de propiedad</translation>
    </message>
    <message>
        <source>No owner of what is shown has signed a release</source>
        <translation>Ningún propietario de lo que aparece ha firmado una autorización</translation>
    </message>
    <message>
        <source>Nothing is shown whose owner&apos;s consent would be needed</source>
        <translation>No aparece nada que requiera el consentimiento del propietario</translation>
    </message>
    <message>
        <source>Unlimited Property Releases</source>
        <translation>Autorizaciones de propiedad ilimitadas</translation>
    </message>
    <message>
        <source>All owners have signed, without limits</source>
        <translation>Todos los propietarios han firmado, sin límites</translation>
    </message>
    <message>
        <source>Limited or Incomplete Property Releases</source>
        <translation>Autorizaciones de propiedad limitadas o incompletas</translation>
    </message>
    <message>
        <source>Minor model age</source>
        <translation>Edad del modelo más joven</translation>
    </message>
    <message>
        <source>Age Unknown</source>
        <translation>Edad desconocida</translation>
    </message>
    <message>
        <source>Nobody knows how old the youngest person was</source>
        <translation>Nadie sabe qué edad tenía la persona más joven</translation>
    </message>
    <message>
        <source>Age 25 or Over</source>
        <translation>25 años o más</translation>
    </message>
    <message>
        <source>The youngest person was at least 25</source>
        <translation>La persona más joven tenía al menos 25 años</translation>
    </message>
    <message>
        <source>Age 24</source>
        <translation>24 años</translation>
    </message>
    <message>
        <source>Age 23</source>
        <translation>23 años</translation>
    </message>
    <message>
        <source>Age 22</source>
        <translation>22 años</translation>
    </message>
    <message>
        <source>Age 21</source>
        <translation>21 años</translation>
    </message>
    <message>
        <source>Age 20</source>
        <translation>20 años</translation>
    </message>
    <message>
        <source>Age 19</source>
        <translation>19 años</translation>
    </message>
    <message>
        <source>Age 18</source>
        <translation>18 años</translation>
    </message>
    <message>
        <source>The youngest person was of age in most countries</source>
        <translation>La persona más joven era mayor de edad en la mayoría de los países</translation>
    </message>
    <message>
        <source>Age 17</source>
        <translation>17 años</translation>
    </message>
    <message>
        <source>Age 16</source>
        <translation>16 años</translation>
    </message>
    <message>
        <source>Age 15</source>
        <translation>15 años</translation>
    </message>
    <message>
        <source>Age 14 or Under</source>
        <translation>14 años o menos</translation>
    </message>
    <message>
        <source>The youngest person was a child of at most 14</source>
        <translation>La persona más joven tenía 14 años como máximo</translation>
    </message>
    <message>
        <source>Telephone type</source>
        <translation>Tipo de teléfono</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>At the place of work</source>
        <translation>En el lugar de trabajo</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Móvil</translation>
    </message>
    <message>
        <source>A mobile phone</source>
        <translation>Un teléfono móvil</translation>
    </message>
    <message>
        <source>FAX</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>A fax machine</source>
        <translation>Un aparato de fax</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Particular</translation>
    </message>
    <message>
        <source>At home</source>
        <translation>En casa</translation>
    </message>
    <message>
        <source>Pager</source>
        <translation>Buscapersonas</translation>
    </message>
    <message>
        <source>Takes short messages</source>
        <translation>Recibe mensajes cortos</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Escena</translation>
    </message>
    <message>
        <source>headshot</source>
        <translation>retrato de rostro</translation>
    </message>
    <message>
        <source>The head of a person</source>
        <translation>La cabeza de una persona</translation>
    </message>
    <message>
        <source>half-length</source>
        <translation>medio cuerpo</translation>
    </message>
    <message>
        <source>A person down to the waist</source>
        <translation>Una persona hasta la cintura</translation>
    </message>
    <message>
        <source>full-length</source>
        <translation>cuerpo entero</translation>
    </message>
    <message>
        <source>A person from head to toe</source>
        <translation>Una persona de pies a cabeza</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>perfil</translation>
    </message>
    <message>
        <source>A person from the side</source>
        <translation>Una persona de lado</translation>
    </message>
    <message>
        <source>rear view</source>
        <translation>vista posterior</translation>
    </message>
    <message>
        <source>A person or thing from behind</source>
        <translation>Una persona o cosa desde atrás</translation>
    </message>
    <message>
        <source>single</source>
        <translation>individual</translation>
    </message>
    <message>
        <source>One person or thing alone</source>
        <translation>Una sola persona o cosa</translation>
    </message>
    <message>
        <source>couple</source>
        <translation>pareja</translation>
    </message>
    <message>
        <source>Two people who belong together</source>
        <translation>Dos personas que forman pareja</translation>
    </message>
    <message>
        <source>two</source>
        <translation>dos</translation>
    </message>
    <message>
        <source>Two people or things</source>
        <translation>Dos personas o cosas</translation>
    </message>
    <message>
        <source>group</source>
        <translation>grupo</translation>
    </message>
    <message>
        <source>More than two people or things</source>
        <translation>Más de dos personas o cosas</translation>
    </message>
    <message>
        <source>general view</source>
        <translation>vista general</translation>
    </message>
    <message>
        <source>The whole of a place or an event</source>
        <translation>Un lugar o un evento en su conjunto</translation>
    </message>
    <message>
        <source>panoramic view</source>
        <translation>vista panorámica</translation>
    </message>
    <message>
        <source>Wide, over a whole landscape or town</source>
        <translation>Amplia, de todo un paisaje o ciudad</translation>
    </message>
    <message>
        <source>aerial view</source>
        <translation>vista aérea</translation>
    </message>
    <message>
        <source>Taken from the air</source>
        <translation>Hecha desde el aire</translation>
    </message>
    <message>
        <source>under-water</source>
        <translation>submarina</translation>
    </message>
    <message>
        <source>Taken below the surface of water</source>
        <translation>Hecha bajo la superficie del agua</translation>
    </message>
    <message>
        <source>night scene</source>
        <translation>escena nocturna</translation>
    </message>
    <message>
        <source>Taken by night</source>
        <translation>Hecha de noche</translation>
    </message>
    <message>
        <source>satellite</source>
        <translation>satélite</translation>
    </message>
    <message>
        <source>Taken from space</source>
        <translation>Hecha desde el espacio</translation>
    </message>
    <message>
        <source>exterior view</source>
        <translation>vista exterior</translation>
    </message>
    <message>
        <source>A building from outside</source>
        <translation>Un edificio por fuera</translation>
    </message>
    <message>
        <source>interior view</source>
        <translation>vista interior</translation>
    </message>
    <message>
        <source>A room or building from inside</source>
        <translation>Una habitación o un edificio por dentro</translation>
    </message>
    <message>
        <source>close-up</source>
        <translation>primer plano</translation>
    </message>
    <message>
        <source>Taken from near, details fill the frame</source>
        <translation>Hecha de cerca; los detalles llenan el encuadre</translation>
    </message>
    <message>
        <source>action</source>
        <translation>acción</translation>
    </message>
    <message>
        <source>People or things in motion</source>
        <translation>Personas o cosas en movimiento</translation>
    </message>
    <message>
        <source>performing</source>
        <translation>actuación</translation>
    </message>
    <message>
        <source>Somebody on a stage or at a show</source>
        <translation>Alguien en un escenario o espectáculo</translation>
    </message>
    <message>
        <source>posing</source>
        <translation>posado</translation>
    </message>
    <message>
        <source>Somebody who holds still for the camera</source>
        <translation>Alguien que posa quieto para la cámara</translation>
    </message>
    <message>
        <source>symbolic</source>
        <translation>simbólica</translation>
    </message>
    <message>
        <source>Stands for an idea rather than for what it shows</source>
        <translation>Representa una idea más que lo que muestra</translation>
    </message>
    <message>
        <source>off-beat</source>
        <translation>insólita</translation>
    </message>
    <message>
        <source>Odd or funny</source>
        <translation>Extraña o divertida</translation>
    </message>
    <message>
        <source>movie scene</source>
        <translation>escena de cine</translation>
    </message>
    <message>
        <source>Taken at the making of a film, or a frame of one</source>
        <translation>Hecha en el rodaje de una película, o un fotograma de una</translation>
    </message>
    <message>
        <source>Subject code</source>
        <translation>Código de tema</translation>
    </message>
    <message>
        <source>arts, culture and entertainment</source>
        <translation>arte, cultura y espectáculos</translation>
    </message>
    <message>
        <source>Music, film, theatre, literature, museums, celebrities of the arts</source>
        <translation>Música, cine, teatro, literatura, museos, celebridades de las artes</translation>
    </message>
    <message>
        <source>crime, law and justice</source>
        <translation>policía y justicia</translation>
    </message>
    <message>
        <source>Police, courts, laws, prisons</source>
        <translation>Policía, tribunales, leyes, prisiones</translation>
    </message>
    <message>
        <source>disaster and accident</source>
        <translation>catástrofes y accidentes</translation>
    </message>
    <message>
        <source>Fires, floods, earthquakes, crashes</source>
        <translation>Incendios, inundaciones, terremotos, siniestros</translation>
    </message>
    <message>
        <source>economy, business and finance</source>
        <translation>economía, negocios y finanzas</translation>
    </message>
    <message>
        <source>Companies, markets, trades, industries</source>
        <translation>Empresas, mercados, comercio, industrias</translation>
    </message>
    <message>
        <source>education</source>
        <translation>educación</translation>
    </message>
    <message>
        <source>Schools, universities, teaching</source>
        <translation>Escuelas, universidades, enseñanza</translation>
    </message>
    <message>
        <source>environmental issue</source>
        <translation>medio ambiente</translation>
    </message>
    <message>
        <source>Nature, climate, pollution, conservation</source>
        <translation>Naturaleza, clima, contaminación, conservación</translation>
    </message>
    <message>
        <source>health</source>
        <translation>salud</translation>
    </message>
    <message>
        <source>Illness, medicine, hospitals</source>
        <translation>Enfermedades, medicina, hospitales</translation>
    </message>
    <message>
        <source>human interest</source>
        <translation>interés humano</translation>
    </message>
    <message>
        <source>People, animals, curiosities</source>
        <translation>Gente, animales, curiosidades</translation>
    </message>
    <message>
        <source>labour</source>
        <translation>mundo laboral</translation>
    </message>
    <message>
        <source>Work, unions, strikes, unemployment</source>
        <translation>Trabajo, sindicatos, huelgas, desempleo</translation>
    </message>
    <message>
        <source>lifestyle and leisure</source>
        <translation>estilo de vida y tiempo libre</translation>
    </message>
    <message>
        <source>Travel, food, hobbies, fashion</source>
        <translation>Viajes, comida, aficiones, moda</translation>
    </message>
    <message>
        <source>politics</source>
        <translation>política</translation>
    </message>
    <message>
        <source>Governments, elections, parties, diplomacy</source>
        <translation>Gobiernos, elecciones, partidos, diplomacia</translation>
    </message>
    <message>
        <source>religion and belief</source>
        <translation>religión y credos</translation>
    </message>
    <message>
        <source>Faiths, their people and their feasts</source>
        <translation>Las creencias, su gente y sus fiestas</translation>
    </message>
    <message>
        <source>science and technology</source>
        <translation>ciencia y tecnología</translation>
    </message>
    <message>
        <source>Research, discoveries, inventions</source>
        <translation>Investigación, descubrimientos, inventos</translation>
    </message>
    <message>
        <source>social issue</source>
        <translation>asuntos sociales</translation>
    </message>
    <message>
        <source>Families, poverty, migration, addiction</source>
        <translation>Familias, pobreza, migración, adicciones</translation>
    </message>
    <message>
        <source>sport</source>
        <translation>deporte</translation>
    </message>
    <message>
        <source>Competitions, athletes, clubs</source>
        <translation>Competiciones, deportistas, clubes</translation>
    </message>
    <message>
        <source>unrest, conflicts and war</source>
        <translation>disturbios, conflictos y guerra</translation>
    </message>
    <message>
        <source>Wars, riots, terror, peace talks</source>
        <translation>Guerras, disturbios, terrorismo, negociaciones de paz</translation>
    </message>
    <message>
        <source>weather</source>
        <translation>meteorología</translation>
    </message>
    <message>
        <source>Forecasts, storms, heat, snow</source>
        <translation>Pronósticos, tormentas, calor, nieve</translation>
    </message>
    <message>
        <source>Media topic</source>
        <translation>Tema (Media Topic)</translation>
    </message>
    <message>
        <source>arts, culture, entertainment and media</source>
        <translation>arte, cultura, entretenimiento y medios</translation>
    </message>
    <message>
        <source>Music, film, theatre, literature, museums, press and broadcasting</source>
        <translation>Música, cine, teatro, literatura, museos, prensa, radio y televisión</translation>
    </message>
    <message>
        <source>disaster, accident and emergency incident</source>
        <translation>catástrofes, accidentes y emergencias</translation>
    </message>
    <message>
        <source>Fires, floods, earthquakes, crashes, rescues</source>
        <translation>Incendios, inundaciones, terremotos, siniestros, rescates</translation>
    </message>
    <message>
        <source>environment</source>
        <translation>medio ambiente</translation>
    </message>
    <message>
        <source>politics and government</source>
        <translation>política y gobierno</translation>
    </message>
    <message>
        <source>religion</source>
        <translation>religión</translation>
    </message>
    <message>
        <source>society</source>
        <translation>sociedad</translation>
    </message>
    <message>
        <source>Families, communities, migration, welfare</source>
        <translation>Familias, comunidades, migración, bienestar social</translation>
    </message>
    <message>
        <source>conflict, war and peace</source>
        <translation>conflictos, guerra y paz</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Género</translation>
    </message>
    <message>
        <source>Actuality</source>
        <translation>Grabación del hecho</translation>
    </message>
    <message>
        <source>Something as it happened, recorded there</source>
        <translation>Algo tal como ocurrió, grabado en el lugar</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Consejos</translation>
    </message>
    <message>
        <source>Help with a question of daily life</source>
        <translation>Ayuda con una cuestión de la vida diaria</translation>
    </message>
    <message>
        <source>Almanac</source>
        <translation>Efemérides</translation>
    </message>
    <message>
        <source>What happened on this day in other years</source>
        <translation>Qué ocurrió este día en otros años</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>Análisis</translation>
    </message>
    <message>
        <source>Explains what an event means</source>
        <translation>Explica qué significa un acontecimiento</translation>
    </message>
    <message>
        <source>Anniversary</source>
        <translation>Aniversario</translation>
    </message>
    <message>
        <source>Looks back on the day of an earlier event</source>
        <translation>Recuerda un acontecimiento anterior en su aniversario</translation>
    </message>
    <message>
        <source>Archive material</source>
        <translation>Material de archivo</translation>
    </message>
    <message>
        <source>Kept from earlier and used again</source>
        <translation>Conservado de antes y usado de nuevo</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Contexto</translation>
    </message>
    <message>
        <source>What has to be known to follow an event</source>
        <translation>Lo que hay que saber para seguir un acontecimiento</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Actual</translation>
    </message>
    <message>
        <source>About what happens at the moment</source>
        <translation>Sobre lo que ocurre en este momento</translation>
    </message>
    <message>
        <source>Curtain Raiser</source>
        <translation>Previa</translation>
    </message>
    <message>
        <source>Tells of an event before it begins</source>
        <translation>Informa de un acontecimiento antes de que empiece</translation>
    </message>
    <message>
        <source>Daybook</source>
        <translation>Agenda</translation>
    </message>
    <message>
        <source>What is planned for the day</source>
        <translation>Lo previsto para el día</translation>
    </message>
    <message>
        <source>Exclusive</source>
        <translation>Exclusiva</translation>
    </message>
    <message>
        <source>Had by one publisher alone</source>
        <translation>La tiene un solo medio</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Reportaje</translation>
    </message>
    <message>
        <source>A longer piece on a person or a subject</source>
        <translation>Una pieza más larga sobre una persona o un tema</translation>
    </message>
    <message>
        <source>Fixture</source>
        <translation>Sección fija</translation>
    </message>
    <message>
        <source>Appears regularly</source>
        <translation>Aparece con regularidad</translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation>Previsión</translation>
    </message>
    <message>
        <source>Says what is to be expected</source>
        <translation>Dice qué cabe esperar</translation>
    </message>
    <message>
        <source>From the Scene</source>
        <translation>Desde el lugar de los hechos</translation>
    </message>
    <message>
        <source>Reported from where it happens</source>
        <translation>Contado desde el lugar donde ocurre</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>About times long past</source>
        <translation>Sobre tiempos pasados</translation>
    </message>
    <message>
        <source>Horoscope</source>
        <translation>Horóscopo</translation>
    </message>
    <message>
        <source>What the stars are said to tell</source>
        <translation>Lo que se supone que dicen los astros</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>Entrevista</translation>
    </message>
    <message>
        <source>A talk with somebody</source>
        <translation>Una conversación con alguien</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>About music, or music itself</source>
        <translation>Sobre música, o música en sí</translation>
    </message>
    <message>
        <source>Obituary</source>
        <translation>Necrológica</translation>
    </message>
    <message>
        <source>Tells the life of somebody who has died</source>
        <translation>Cuenta la vida de alguien que ha muerto</translation>
    </message>
    <message>
        <source>Opinion</source>
        <translation>Opinión</translation>
    </message>
    <message>
        <source>Says what its author thinks</source>
        <translation>Dice lo que piensa su autor</translation>
    </message>
    <message>
        <source>Polls and Surveys</source>
        <translation>Sondeos y encuestas</translation>
    </message>
    <message>
        <source>What many people answered</source>
        <translation>Lo que respondieron muchas personas</translation>
    </message>
    <message>
        <source>Press Release</source>
        <translation>Nota de prensa</translation>
    </message>
    <message>
        <source>Issued by those whom it is about</source>
        <translation>Difundida por aquellos de quienes trata</translation>
    </message>
    <message>
        <source>Press-Digest</source>
        <translation>Revista de prensa</translation>
    </message>
    <message>
        <source>What other papers say</source>
        <translation>Lo que dicen otros periódicos</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>A portrait of a person or an organization</source>
        <translation>Un retrato de una persona u organización</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>What will be performed or broadcast</source>
        <translation>Lo que se representará o emitirá</translation>
    </message>
    <message>
        <source>Question and Answer Session</source>
        <translation>Preguntas y respuestas</translation>
    </message>
    <message>
        <source>Questions put to somebody, and the answers</source>
        <translation>Preguntas hechas a alguien, y las respuestas</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Cita</translation>
    </message>
    <message>
        <source>Somebody&apos;s own words</source>
        <translation>Las palabras de alguien</translation>
    </message>
    <message>
        <source>Raw Sound</source>
        <translation>Sonido sin editar</translation>
    </message>
    <message>
        <source>Sound without editing</source>
        <translation>Sonido sin montaje</translation>
    </message>
    <message>
        <source>Response to a Question</source>
        <translation>Respuesta a una pregunta</translation>
    </message>
    <message>
        <source>One answer to one question</source>
        <translation>Una respuesta a una pregunta</translation>
    </message>
    <message>
        <source>Results Listings and Statistics</source>
        <translation>Resultados y estadísticas</translation>
    </message>
    <message>
        <source>Scores, tables, numbers</source>
        <translation>Marcadores, tablas, cifras</translation>
    </message>
    <message>
        <source>Retrospective</source>
        <translation>Retrospectiva</translation>
    </message>
    <message>
        <source>Looks back over a longer time</source>
        <translation>Repasa un periodo más largo</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Crítica</translation>
    </message>
    <message>
        <source>Judges a book, a film, a show</source>
        <translation>Juzga un libro, una película, un espectáculo</translation>
    </message>
    <message>
        <source>Scener</source>
        <translation>Crónica de ambiente</translation>
    </message>
    <message>
        <source>Describes what it is like at a place</source>
        <translation>Describe cómo es el ambiente en un lugar</translation>
    </message>
    <message>
        <source>Side bar and supporting information</source>
        <translation>Despiece e información complementaria</translation>
    </message>
    <message>
        <source>Goes with another piece and adds to it</source>
        <translation>Acompaña a otra pieza y la completa</translation>
    </message>
    <message>
        <source>Special Report</source>
        <translation>Informe especial</translation>
    </message>
    <message>
        <source>A thorough look at one subject</source>
        <translation>Un tratamiento a fondo de un tema</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>The main points of several pieces</source>
        <translation>Los puntos principales de varias piezas</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Sinopsis</translation>
    </message>
    <message>
        <source>What a longer work contains, in short</source>
        <translation>Lo que contiene una obra más larga, en breve</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Solo texto</translation>
    </message>
    <message>
        <source>Has no pictures or sound</source>
        <translation>No tiene imágenes ni sonido</translation>
    </message>
    <message>
        <source>Transcript and Verbatim</source>
        <translation>Transcripción literal</translation>
    </message>
    <message>
        <source>Word for word what was said</source>
        <translation>Lo que se dijo, palabra por palabra</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>Adds what is new to an earlier piece</source>
        <translation>Añade lo nuevo a una pieza anterior</translation>
    </message>
    <message>
        <source>Voicer</source>
        <translation>Crónica hablada</translation>
    </message>
    <message>
        <source>A reporter&apos;s voice tells the story</source>
        <translation>La voz de un reportero cuenta la historia</translation>
    </message>
    <message>
        <source>Wrap</source>
        <translation>Recopilación</translation>
    </message>
    <message>
        <source>Brings several reports together</source>
        <translation>Reúne varias informaciones</translation>
    </message>
    <message>
        <source>Wrapup</source>
        <translation>Resumen final</translation>
    </message>
    <message>
        <source>Tells an event once more when it has ended</source>
        <translation>Vuelve a contar un acontecimiento cuando ha terminado</translation>
    </message>
    <message>
        <source>Africa</source>
        <translation>África</translation>
    </message>
    <message>
        <source>From Tunisia to South Africa, with its islands</source>
        <translation>De Túnez a Sudáfrica, con sus islas</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>Antártida</translation>
    </message>
    <message>
        <source>The continent round the South Pole</source>
        <translation>El continente en torno al polo sur</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>Asia</translation>
    </message>
    <message>
        <source>From Turkey to Japan and Indonesia</source>
        <translation>De Turquía a Japón e Indonesia</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>Europa</translation>
    </message>
    <message>
        <source>From Iceland to Russia</source>
        <translation>De Islandia a Rusia</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>América del Norte</translation>
    </message>
    <message>
        <source>From Greenland to Panama, with the Caribbean</source>
        <translation>De Groenlandia a Panamá, con el Caribe</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>Oceanía</translation>
    </message>
    <message>
        <source>Australia, New Zealand and the islands of the Pacific</source>
        <translation>Australia, Nueva Zelanda y las islas del Pacífico</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>América del Sur</translation>
    </message>
    <message>
        <source>From Colombia to Tierra del Fuego</source>
        <translation>De Colombia a Tierra del Fuego</translation>
    </message>
    <message>
        <source>World</source>
        <translation>Mundo</translation>
    </message>
    <message>
        <source>The whole world</source>
        <translation>El mundo entero</translation>
    </message>
    <message>
        <source>Region type</source>
        <translation>Tipo de región</translation>
    </message>
    <message>
        <source>human</source>
        <translation>ser humano</translation>
    </message>
    <message>
        <source>A person, or part of one</source>
        <translation>Una persona, o parte de ella</translation>
    </message>
    <message>
        <source>animal</source>
        <translation>animal</translation>
    </message>
    <message>
        <source>An animal, or part of one</source>
        <translation>Un animal, o parte de él</translation>
    </message>
    <message>
        <source>plant</source>
        <translation>planta</translation>
    </message>
    <message>
        <source>A plant, or part of one</source>
        <translation>Una planta, o parte de ella</translation>
    </message>
    <message>
        <source>building</source>
        <translation>edificio</translation>
    </message>
    <message>
        <source>A building, or part of one</source>
        <translation>Un edificio, o parte de él</translation>
    </message>
    <message>
        <source>vehicle</source>
        <translation>vehículo</translation>
    </message>
    <message>
        <source>A car, train, ship or plane</source>
        <translation>Un coche, tren, barco o avión</translation>
    </message>
    <message>
        <source>Something that is made to be sold</source>
        <translation>Algo hecho para venderse</translation>
    </message>
    <message>
        <source>A work of art</source>
        <translation>Una obra de arte</translation>
    </message>
    <message>
        <source>food</source>
        <translation>comida</translation>
    </message>
    <message>
        <source>Something to eat or drink</source>
        <translation>Algo que se come o se bebe</translation>
    </message>
    <message>
        <source>clothing</source>
        <translation>ropa</translation>
    </message>
    <message>
        <source>Something to wear</source>
        <translation>Algo que se lleva puesto</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>Words that can be read</source>
        <translation>Palabras que se pueden leer</translation>
    </message>
    <message>
        <source>graphic</source>
        <translation>gráfico</translation>
    </message>
    <message>
        <source>A drawing, a logo, a sign</source>
        <translation>Un dibujo, un logotipo, un letrero</translation>
    </message>
    <message>
        <source>machine-readable code</source>
        <translation>código legible por máquina</translation>
    </message>
    <message>
        <source>A bar code or the like</source>
        <translation>Un código de barras o similar</translation>
    </message>
    <message>
        <source>geographic area</source>
        <translation>zona geográfica</translation>
    </message>
    <message>
        <source>A stretch of land</source>
        <translation>Una extensión de terreno</translation>
    </message>
    <message>
        <source>rock formation</source>
        <translation>formación rocosa</translation>
    </message>
    <message>
        <source>Rocks, cliffs, mountains</source>
        <translation>Rocas, acantilados, montañas</translation>
    </message>
    <message>
        <source>body of water</source>
        <translation>masa de agua</translation>
    </message>
    <message>
        <source>A lake, a river, the sea</source>
        <translation>Un lago, un río, el mar</translation>
    </message>
    <message>
        <source>dividing line</source>
        <translation>línea divisoria</translation>
    </message>
    <message>
        <source>Where one picture in the picture ends and another begins</source>
        <translation>Donde acaba una imagen dentro de la imagen y empieza otra</translation>
    </message>
    <message>
        <source>Region role</source>
        <translation>Función de la región</translation>
    </message>
    <message>
        <source>main subject area</source>
        <translation>zona del motivo principal</translation>
    </message>
    <message>
        <source>What the picture is mostly about; one a picture</source>
        <translation>De lo que trata sobre todo la imagen; una por imagen</translation>
    </message>
    <message>
        <source>subject area</source>
        <translation>zona de un motivo</translation>
    </message>
    <message>
        <source>Something that the picture is about</source>
        <translation>Algo de lo que trata la imagen</translation>
    </message>
    <message>
        <source>area of interest</source>
        <translation>zona de interés</translation>
    </message>
    <message>
        <source>Worth looking at</source>
        <translation>Merece la pena mirarla</translation>
    </message>
    <message>
        <source>cropping</source>
        <translation>recorte</translation>
    </message>
    <message>
        <source>To be cut to this</source>
        <translation>Por aquí hay que recortar</translation>
    </message>
    <message>
        <source>recommended cropping</source>
        <translation>recorte recomendado</translation>
    </message>
    <message>
        <source>Best cut to this</source>
        <translation>El mejor recorte</translation>
    </message>
    <message>
        <source>landscape format cropping</source>
        <translation>recorte apaisado</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be wide</source>
        <translation>Por aquí se recorta si la imagen debe ser ancha</translation>
    </message>
    <message>
        <source>portrait format cropping</source>
        <translation>recorte vertical</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be tall</source>
        <translation>Por aquí se recorta si la imagen debe ser alta</translation>
    </message>
    <message>
        <source>square format cropping</source>
        <translation>recorte cuadrado</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be square</source>
        <translation>Por aquí se recorta si la imagen debe ser cuadrada</translation>
    </message>
    <message>
        <source>composite image item</source>
        <translation>elemento de una imagen compuesta</translation>
    </message>
    <message>
        <source>One of the pictures that this one is made of</source>
        <translation>Una de las imágenes que componen esta</translation>
    </message>
    <message>
        <source>copyright region</source>
        <translation>región con copyright</translation>
    </message>
    <message>
        <source>Shows something with a copyright of its own</source>
        <translation>Muestra algo con su propio copyright</translation>
    </message>
    <message>
        <source>business use</source>
        <translation>uso empresarial</translation>
    </message>
    <message>
        <source>For use within a company&apos;s workflow</source>
        <translation>Para uso en el flujo de trabajo de una empresa</translation>
    </message>
    <message>
        <source>Outline shape</source>
        <translation>Forma del contorno</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>A corner, a width and a height</source>
        <translation>Una esquina, una anchura y una altura</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Círculo</translation>
    </message>
    <message>
        <source>A center and a radius</source>
        <translation>Un centro y un radio</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polígono</translation>
    </message>
    <message>
        <source>Two or more points</source>
        <translation>Dos o más puntos</translation>
    </message>
    <message>
        <source>Outline unit</source>
        <translation>Unidad del contorno</translation>
    </message>
    <message>
        <source>Relative</source>
        <translation>Relativa</translation>
    </message>
    <message>
        <source>Parts of the picture&apos;s width and height, from 0 to 1</source>
        <translation>Fracciones de la anchura y la altura de la imagen, de 0 a 1</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>Píxel</translation>
    </message>
    <message>
        <source>Pixels of the picture</source>
        <translation>Píxeles de la imagen</translation>
    </message>
    <message>
        <source>English</source>
        <comment>name of this language</comment>
        <extracomment>The name of this language in this language itself, as a list of languages shows it: Deutsch, 日本語.</extracomment>
        <translation>Español</translation>
    </message>
    <message>
        <source>“%1” is there already</source>
        <translation>«%1» ya existe</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message>
        <source>“%1” is not there any more</source>
        <translation>«%1» ya no está ahí</translation>
    </message>
    <message>
        <source>another Quorbel is renaming at this moment</source>
        <translation>otro Quorbel está renombrando en este momento</translation>
    </message>
    <message>
        <source>Undo Rename</source>
        <translation>Deshacer renombrado</translation>
    </message>
    <message>
        <source>Undo Rename of “%1”</source>
        <translation>Deshacer renombrado de «%1»</translation>
    </message>
    <message numerus="yes">
        <source>Undo Rename of %n Photo(s)</source>
        <translation>
            <numerusform>Deshacer renombrado de %n foto</numerusform>
            <numerusform>Deshacer renombrado de %n fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>a file name cannot hold “/”</source>
        <translation>un nombre de archivo no puede contener «/»</translation>
    </message>
    <message>
        <source>too long for a file name</source>
        <translation>demasiado largo para un nombre de archivo</translation>
    </message>
    <message>
        <source>its folder is read-only</source>
        <translation>su carpeta es de solo lectura</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>ya no está ahí</translation>
    </message>
    <message>
        <source>stays %1</source>
        <extracomment>%1 is a file&apos;s name: what is said of a photo that lacks a value</extracomment>
        <translation>queda como %1</translation>
    </message>
    <message>
        <source>becomes %1</source>
        <translation>pasa a ser %1</translation>
    </message>
    <message>
        <source>name taken, so -%1</source>
        <extracomment>%1 is the number that was put behind the name</extracomment>
        <translation>nombre ocupado, por eso -%1</translation>
    </message>
    <message>
        <source>with %1</source>
        <extracomment>%1 are files that are renamed along with the photo</extracomment>
        <translation>con %1</translation>
    </message>
    <message>
        <source>Cannot move “%1”</source>
        <translation>No se puede mover «%1»</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <extracomment>%1 is a list: &quot;a.jpg, b.jpg and 3 more&quot;
----------
The end of a list of names: %1 is those before, with commas between them.</extracomment>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (is a folder|are folders); nothing was written.</source>
        <translation>
            <numerusform>%1 es una carpeta; no se ha escrito nada.</numerusform>
            <numerusform>%1 son carpetas; no se ha escrito nada.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 es de solo lectura.</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 photos (is|are) read-only: %2; nothing was written.</source>
        <extracomment>%2 names the photos</extracomment>
        <translation>
            <numerusform>%n de %1 fotos es de solo lectura: %2; no se ha escrito nada.</numerusform>
            <numerusform>%n de %1 fotos son de solo lectura: %2; no se ha escrito nada.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another save is under way or was cut off: %1 lies beside the photo. If no other program is saving, delete it and save again. Nothing was written.</source>
        <translation>Otro guardado está en curso o se interrumpió: junto a la foto está %1. Si ningún otro programa está guardando, elimínelo y guarde de nuevo. No se ha escrito nada.</translation>
    </message>
    <message>
        <source>“%1” is too long: a value may have 128 KiB at most. Nothing was written.</source>
        <translation>«%1» es demasiado largo: un valor puede tener 128 KiB como máximo. No se ha escrito nada.</translation>
    </message>
    <message>
        <source>Cannot write “%1”</source>
        <translation>No se puede escribir «%1»</translation>
    </message>
    <message>
        <source>Cannot keep a copy of “%1”</source>
        <translation>No se puede conservar una copia de «%1»</translation>
    </message>
    <message>
        <source>Only the letters A–Z and digits can be stored in a name.</source>
        <translation>En un nombre solo se pueden guardar letras de la A a la Z y cifras.</translation>
    </message>
    <message>
        <source>A name needs at least two letters or digits.</source>
        <translation>Un nombre necesita al menos dos letras o cifras.</translation>
    </message>
    <message>
        <source>“%1” is a reserved word; choose another name.</source>
        <translation>«%1» es una palabra reservada; elija otro nombre.</translation>
    </message>
    <message>
        <source>That is the field %1</source>
        <extracomment>%1 is a field&apos;s name</extracomment>
        <translation>Ese es el campo %1</translation>
    </message>
    <message>
        <source>Not a date: YYYY-MM-DD HH:MM</source>
        <translation>No es una fecha: YYYY-MM-DD HH:MM</translation>
    </message>
    <message>
        <source>Not a position: lat, lon</source>
        <translation>No es una posición: lat, lon</translation>
    </message>
    <message>
        <source>Not an offset: +HH:MM</source>
        <translation>No es un desfase: +HH:MM</translation>
    </message>
    <message>
        <source>Not a whole number</source>
        <translation>No es un número entero</translation>
    </message>
    <message>
        <source>Afrikaans</source>
        <translation>Afrikáans</translation>
    </message>
    <message>
        <source>Albanian</source>
        <translation>Albanés</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Árabe</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>Armenio</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation>Euskera</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>Bengalí</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation>Búlgaro</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation>Catalán</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chino</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Croata</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Checo</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Danés</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Neerlandés</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation>Estonio</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation>Finés</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francés</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation>Gallego</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>Georgiano</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemán</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griego</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebreo</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation>Húngaro</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation>Islandés</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation>Indonesio</translation>
    </message>
    <message>
        <source>Irish</source>
        <translation>Irlandés</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonés</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>Latin</source>
        <translation>Latín</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation>Letón</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation>Lituano</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation>Malayo</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Noruego</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation>Persa</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polaco</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portugués</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation>Rumano</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Ruso</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation>Serbio</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation>Eslovaco</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Esloveno</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation>Suajili</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Sueco</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Tailandés</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turco</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation>Ucraniano</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation>Urdu</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamita</translation>
    </message>
    <message>
        <source>Welsh</source>
        <translation>Galés</translation>
    </message>
    <message>
        <source>Shown as the photo&apos;s name / heading</source>
        <translation>Se muestra como nombre / encabezado de la foto</translation>
    </message>
    <message>
        <source>Searchable caption everywhere</source>
        <translation>Pie de foto que se puede buscar en todas partes</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Fecha de captura</translation>
    </message>
    <message>
        <source>Sorts your library by date in every app</source>
        <translation>Ordena su fototeca por fecha en todas las aplicaciones</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Palabras clave</translation>
    </message>
    <message>
        <source>Filter &amp; group by tag</source>
        <translation>Para filtrar y agrupar por palabra clave</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Creador</translation>
    </message>
    <message>
        <source>Who made the photo</source>
        <translation>Quién hizo la foto</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Rights / copyright notice</source>
        <translation>Derechos / aviso de copyright</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Pins on the map; sorts by place</source>
        <translation>Sitúa la foto en el mapa; ordena por lugar</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordenadas</translation>
    </message>
    <message>
        <source>GPS latitude / longitude</source>
        <translation>Latitud / longitud GPS</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Valoración</translation>
    </message>
    <message>
        <source>★ 1–5, read by most libraries</source>
        <translation>★ 1–5, la leen casi todas las fototecas</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Titular</translation>
    </message>
    <message>
        <source>Short title shown in galleries</source>
        <translation>Título corto que se muestra en galerías</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personas</translation>
    </message>
    <message>
        <source>Names of people shown</source>
        <translation>Nombres de las personas que aparecen</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Group photos by event</source>
        <translation>Para agrupar fotos por evento</translation>
    </message>
    <message>
        <source>State / Province</source>
        <translation>Estado / Provincia</translation>
    </message>
    <message>
        <source>State or province</source>
        <translation>Estado o provincia</translation>
    </message>
    <message>
        <source>Country name</source>
        <translation>Nombre del país</translation>
    </message>
    <message>
        <source>Sub-location</source>
        <translation>Ubicación exacta</translation>
    </message>
    <message>
        <source>Neighborhood / venue</source>
        <translation>Barrio / recinto</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Colour / text label</source>
        <translation>Etiqueta de color / de texto</translation>
    </message>
    <message>
        <source>Caption writer</source>
        <translation>Autor del pie de foto</translation>
    </message>
    <message>
        <source>Who wrote the caption</source>
        <translation>Quién escribió el pie de foto</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Subject category</source>
        <translation>Categoría del tema</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Crédito</translation>
    </message>
    <message>
        <source>Credit line</source>
        <translation>Línea de crédito</translation>
    </message>
    <message>
        <source>Intellectual genre</source>
        <translation>Género intelectual</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instrucciones</translation>
    </message>
    <message>
        <source>Editorial instructions</source>
        <translation>Instrucciones editoriales</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>ID de trabajo</translation>
    </message>
    <message>
        <source>Job / transmission reference</source>
        <translation>Referencia de trabajo / de transmisión</translation>
    </message>
    <message>
        <source>IPTC scene code</source>
        <translation>Código de escena IPTC</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Editing software</source>
        <translation>Software de edición</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>Fuente original</translation>
    </message>
    <message>
        <source>Urgency</source>
        <translation>Urgencia</translation>
    </message>
    <message>
        <source>Editorial urgency (1–8)</source>
        <translation>Urgencia editorial (1–8)</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>Condiciones de uso</translation>
    </message>
    <message>
        <source>Rights usage terms</source>
        <translation>Condiciones de uso de los derechos</translation>
    </message>
    <message>
        <source>Web statement</source>
        <translation>Página web de derechos</translation>
    </message>
    <message>
        <source>Rights URL</source>
        <translation>URL de los derechos</translation>
    </message>
    <message>
        <source>Date digitized</source>
        <translation>Fecha de digitalización</translation>
    </message>
    <message>
        <source>When the image was digitized / scanned</source>
        <translation>Cuándo se digitalizó / escaneó la imagen</translation>
    </message>
    <message>
        <source>TZ offset (taken)</source>
        <translation>Desfase UTC (captura)</translation>
    </message>
    <message>
        <source>Timezone offset for date taken</source>
        <translation>Desfase horario de la fecha de captura</translation>
    </message>
    <message>
        <source>TZ offset (digitized)</source>
        <translation>Desfase UTC (digital.)</translation>
    </message>
    <message>
        <source>Timezone offset for date digitized</source>
        <translation>Desfase horario de la fecha de digitalización</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Marca</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Shutter</source>
        <translation>Obturación</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Diafragma</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Distancia focal</translation>
    </message>
    <message>
        <source>Color space</source>
        <translation>Esp. de color</translation>
    </message>
    <message>
        <source>COMMON</source>
        <translation>GENERAL</translation>
    </message>
    <message>
        <source>LOCATION</source>
        <translation>LUGAR</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>DETALLES</translation>
    </message>
    <message>
        <source>CONTACT</source>
        <translation>CONTACTO</translation>
    </message>
    <message>
        <source>PEOPLE</source>
        <translation>PERSONAS</translation>
    </message>
    <message>
        <source>LOCATION CREATED</source>
        <translation>LUGAR DE CREACIÓN</translation>
    </message>
    <message>
        <source>LOCATION SHOWN</source>
        <translation>LUGAR MOSTRADO</translation>
    </message>
    <message>
        <source>SUBJECTS</source>
        <translation>TEMAS</translation>
    </message>
    <message>
        <source>THINGS SHOWN</source>
        <translation>ELEMENTOS MOSTRADOS</translation>
    </message>
    <message>
        <source>REGIONS</source>
        <translation>REGIONES</translation>
    </message>
    <message>
        <source>RIGHTS</source>
        <translation>DERECHOS</translation>
    </message>
    <message>
        <source>LICENSING</source>
        <translation>LICENCIAS</translation>
    </message>
    <message>
        <source>SOURCE</source>
        <translation>FUENTE</translation>
    </message>
    <message>
        <source>IMAGE</source>
        <translation>IMAGEN</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0 KB</translation>
    </message>
    <message>
        <source>Not a file</source>
        <translation>No es un archivo</translation>
    </message>
    <message>
        <source>File is empty</source>
        <translation>El archivo está vacío</translation>
    </message>
    <message>
        <source>Not an XMP file</source>
        <translation>No es un archivo XMP</translation>
    </message>
    <message>
        <source>set</source>
        <translation>establecer</translation>
    </message>
    <message>
        <source>set if empty</source>
        <translation>establecer si está vacío</translation>
    </message>
    <message>
        <source>append</source>
        <translation>añadir detrás</translation>
    </message>
    <message>
        <source>prepend</source>
        <translation>añadir delante</translation>
    </message>
    <message>
        <source>“%1” names a field that there is not.</source>
        <translation>«%1» nombra un campo que no existe.</translation>
    </message>
    <message>
        <source>“%1” says nothing that can be done to a field.</source>
        <translation>«%1» no indica nada que se pueda hacer con un campo.</translation>
    </message>
    <message>
        <source>“%1” has a field without a text.</source>
        <translation>«%1» tiene un campo sin texto.</translation>
    </message>
    <message>
        <source>“%1” is no template.</source>
        <translation>«%1» no es una plantilla.</translation>
    </message>
    <message>
        <source>“%1” was made by a newer version of Quorbel.</source>
        <translation>«%1» se hizo con una versión más reciente de Quorbel.</translation>
    </message>
    <message>
        <source>“%1” has no name.</source>
        <translation>«%1» no tiene nombre.</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>«%1» no se puede leer.</translation>
    </message>
    <message>
        <source>Cannot write the template “%1”</source>
        <translation>No se puede escribir la plantilla «%1»</translation>
    </message>
    <message>
        <source>%1 missing: “%2”</source>
        <extracomment>%1 is a field that the photo has nothing in, %2 what the template gives instead</extracomment>
        <translation>sin %1: «%2»</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <extracomment>%1 are the fields that the photo has nothing in: &quot;Place, Event missing&quot;</extracomment>
        <translation>sin %1</translation>
    </message>
    <message>
        <source>Not a rating: 0 to 5</source>
        <translation>No es una valoración: 0 a 5</translation>
    </message>
    <message>
        <source>kept: %1</source>
        <extracomment>What a field holds stays as it is; %1 is why: &quot;kept: not empty&quot;</extracomment>
        <translation>se conserva: %1</translation>
    </message>
    <message>
        <source>nothing to fill in</source>
        <translation>nada que rellenar</translation>
    </message>
    <message>
        <source>not read yet</source>
        <translation>sin leer</translation>
    </message>
    <message>
        <source>not empty</source>
        <translation>no está vacío</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>ya está ahí</translation>
    </message>
    <message>
        <source>%1 of one photo: %2</source>
        <extracomment>%1 is a field, %2 why a text cannot stand in it</extracomment>
        <translation>%1 de una foto: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s): %2</source>
        <translation>
            <numerusform>%1 de %n foto: %2</numerusform>
            <numerusform>%1 de %n fotos: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Perl interpreter not found at %1.</source>
        <translation>No se encontró el intérprete de Perl en %1.</translation>
    </message>
    <message>
        <source>ExifTool exited with code %1: %2</source>
        <translation>ExifTool terminó con el código %1: %2</translation>
    </message>
    <message>
        <source>Could not decode ExifTool output: %1</source>
        <translation>No se pudo descodificar la salida de ExifTool: %1</translation>
    </message>
    <message>
        <source>Bundled ExifTool could not be located.</source>
        <translation>No se encontró el ExifTool incluido.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 is what failed (&quot;Cannot move “/photos/a.jpg”&quot;), %2 the system&apos;s reason</extracomment>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>ExifTool could not be started: %1</source>
        <translation>No se pudo iniciar ExifTool: %1</translation>
    </message>
    <message>
        <source>The read was cancelled.</source>
        <translation>Se canceló la lectura.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Original name</source>
        <translation>Nombre original</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>quotation marks around a name or a text that the user typed
----------
A name, in quotation marks.</extracomment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Contador</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>“%1” cannot be replaced and added to in one save. Nothing was written.</source>
        <translation>«%1» no se puede reemplazar y ampliar en un mismo guardado. No se ha escrito nada.</translation>
    </message>
    <message>
        <source>Changed while it was read</source>
        <translation>Cambió mientras se leía</translation>
    </message>
    <message>
        <source>Cannot write to “%1”</source>
        <translation>No se puede escribir en «%1»</translation>
    </message>
    <message>
        <source>%1 — output: %2</source>
        <extracomment>%1 is why it could not be decoded, %2 the beginning of it</extracomment>
        <translation>%1; salida: %2</translation>
    </message>
    <message>
        <source>its values are not UTF-8</source>
        <translation>sus valores no son UTF-8</translation>
    </message>
    <message>
        <source>not an array of objects</source>
        <translation>no es una matriz de objetos</translation>
    </message>
    <message>
        <source>The file is not UTF-8: it was read as Windows Latin 1.</source>
        <translation>El archivo no es UTF-8: se ha leído como Windows Latin 1.</translation>
    </message>
    <message>
        <source>Some characters of the file could not be read.</source>
        <translation>Algunos caracteres del archivo no se pudieron leer.</translation>
    </message>
    <message numerus="yes">
        <source>%n more line(s) like these.</source>
        <translation>
            <numerusform>%n línea más como estas.</numerusform>
            <numerusform>%n líneas más como estas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Line %1 has no tab: %2</source>
        <extracomment>%2 is the line, in quotation marks</extracomment>
        <translation>La línea %1 no tiene tabulador: %2</translation>
    </message>
    <message>
        <source>Line %1 has no code in front of its tab.</source>
        <translation>La línea %1 no tiene código delante del tabulador.</translation>
    </message>
    <message>
        <source>Line %1 has no text for %2.</source>
        <extracomment>%2 is a code, in quotation marks</extracomment>
        <translation>La línea %1 no tiene texto para %2.</translation>
    </message>
    <message>
        <source>Line %1: nobody can type a code with “=” in it: %2</source>
        <extracomment>%2 is a code, in quotation marks</extracomment>
        <translation>Línea %1: un código que contenga «=» no se puede teclear: %2</translation>
    </message>
    <message numerus="yes">
        <source>Line %1: a code has at most %n character(s): %2</source>
        <extracomment>%2 is a code that has more, in quotation marks</extracomment>
        <translation>
            <numerusform>Línea %1: un código tiene como máximo %n carácter: %2</numerusform>
            <numerusform>Línea %1: un código tiene como máximo %n caracteres: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is there twice, in lines %2 and %3: the last one counts.</source>
        <extracomment>%1 is a code, in quotation marks</extracomment>
        <translation>%1 está dos veces, en las líneas %2 y %3: vale la última.</translation>
    </message>
    <message numerus="yes">
        <source>%n date(s)</source>
        <translation>
            <numerusform>%n fecha</numerusform>
            <numerusform>%n fechas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n title(s)</source>
        <translation>
            <numerusform>%n título</numerusform>
            <numerusform>%n títulos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n description(s)</source>
        <translation>
            <numerusform>%n descripción</numerusform>
            <numerusform>%n descripciones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n creator(s)</source>
        <translation>
            <numerusform>%n creador</numerusform>
            <numerusform>%n creadores</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n place(s)</source>
        <translation>
            <numerusform>%n lugar</numerusform>
            <numerusform>%n lugares</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n headline(s)</source>
        <translation>
            <numerusform>%n titular</numerusform>
            <numerusform>%n titulares</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n evento</numerusform>
            <numerusform>%n eventos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n</source>
        <extracomment>%1 is a text in quotation marks that would go, %n the number of photos that hold it: &quot;“Old one” in 3&quot;</extracomment>
        <translation>
            <numerusform>%1 en %n</numerusform>
            <numerusform>%1 en %n</numerusform>
        </translation>
    </message>
    <message>
        <source>fills the empty field</source>
        <translation>rellena el campo vacío</translation>
    </message>
    <message>
        <source>would fill the empty field</source>
        <translation>rellenaría el campo vacío</translation>
    </message>
    <message numerus="yes">
        <source>fills %n</source>
        <extracomment>%n is the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>rellena %n</numerusform>
            <numerusform>rellena %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would fill %n</source>
        <extracomment>%n is the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>rellenaría %n</numerusform>
            <numerusform>rellenaría %n</numerusform>
        </translation>
    </message>
    <message>
        <source>adds to “%1”</source>
        <extracomment>%1 is what a list holds: items are added</extracomment>
        <translation>se añade a «%1»</translation>
    </message>
    <message>
        <source>would add to “%1”</source>
        <translation>se añadiría a «%1»</translation>
    </message>
    <message numerus="yes">
        <source>adds to the %1 of %n</source>
        <extracomment>%1 is a field that holds a list (&quot;keywords&quot;), %n a number of photos</extracomment>
        <translation>
            <numerusform>se añade a %1 de %n</numerusform>
            <numerusform>se añade a %1 de %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would add to the %1 of %n</source>
        <extracomment>%1 is a field that holds a list (&quot;keywords&quot;), %n a number of photos</extracomment>
        <translation>
            <numerusform>se añadiría a %1 de %n</numerusform>
            <numerusform>se añadiría a %1 de %n</numerusform>
        </translation>
    </message>
    <message>
        <source>replaces %1</source>
        <extracomment>%1 is what would go: &quot;4 titles&quot;, or a text in quotation marks</extracomment>
        <translation>reemplaza %1</translation>
    </message>
    <message>
        <source>would replace %1</source>
        <translation>reemplazaría %1</translation>
    </message>
    <message numerus="yes">
        <source>replaces %1, fills %n</source>
        <extracomment>%1 is what would go (&quot;4 titles&quot;), %n the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>reemplaza %1, rellena %n</numerusform>
            <numerusform>reemplaza %1, rellena %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would replace %1, fill %n</source>
        <extracomment>%1 is what would go (&quot;4 titles&quot;), %n a number of photos that have nothing there</extracomment>
        <translation>
            <numerusform>reemplazaría %1, rellenaría %n</numerusform>
            <numerusform>reemplazaría %1, rellenaría %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the same already</source>
        <extracomment>%n is the number of photos that hold just the text
----------
Why nothing can be copied.</extracomment>
        <translation>ya es igual</translation>
    </message>
    <message numerus="yes">
        <source>same in %n</source>
        <translation>
            <numerusform>igual en %n</numerusform>
            <numerusform>igual en %n</numerusform>
        </translation>
    </message>
    <message>
        <source>not looked at yet</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>sin examinar</translation>
    </message>
    <message numerus="yes">
        <source>%n not looked at yet</source>
        <translation>
            <numerusform>%n sin examinar</numerusform>
            <numerusform>%n sin examinar</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Of how many things: %1 and %2 are numbers.</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%n star(s)</source>
        <translation>
            <numerusform>%n estrella</numerusform>
            <numerusform>%n estrellas</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to the list</source>
        <translation>Volver a la lista</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>The key.</extracomment>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This is the last photo</source>
        <translation>Es la última foto</translation>
    </message>
    <message>
        <source>This is the first photo</source>
        <translation>Es la primera foto</translation>
    </message>
    <message>
        <source>No stars</source>
        <translation>Sin estrellas</translation>
    </message>
    <message>
        <source>thumbnail only</source>
        <extracomment>Of the photo there is just this small picture.</extracomment>
        <translation>solo miniatura</translation>
    </message>
    <message>
        <source>damaged: not all of it can be shown</source>
        <translation>dañada: no se puede mostrar entera</translation>
    </message>
    <message>
        <source>preview %1</source>
        <extracomment>The preview within a raw file is shown. %1: its size, as “1616 × 1080”.</extracomment>
        <translation>vista previa de %1</translation>
    </message>
    <message>
        <source>preview %1 of %2</source>
        <extracomment>%1: size of what is shown, as “1616 × 1080”. %2: size of the photo.</extracomment>
        <translation>vista previa de %1 (foto: %2)</translation>
    </message>
    <message>
        <source>reduced to %1 of %2</source>
        <translation>reducida de %2 a %1</translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) unsaved</source>
        <translation>
            <numerusform>%n cambio sin guardar</numerusform>
            <numerusform>%n cambios sin guardar</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>This photo is damaged: there is nothing in it to show.</source>
        <translation>Esta foto está dañada: no contiene nada que se pueda mostrar.</translation>
    </message>
    <message>
        <source>This photo has more pixels than can be shown.</source>
        <translation>Esta foto tiene más píxeles de los que se pueden mostrar.</translation>
    </message>
    <message>
        <source>There is no picture in this file that can be shown.</source>
        <translation>Este archivo no contiene ninguna imagen que se pueda mostrar.</translation>
    </message>
    <message>
        <source>0 to 5 stars; click the current rating to clear it</source>
        <translation>De 0 a 5 estrellas; un clic en la valoración actual la quita</translation>
    </message>
    <message>
        <source>Column width</source>
        <extracomment>The line between two columns of the window, which one drags.</extracomment>
        <translation>Ancho de columna</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Sugerencias</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <extracomment>Button behind keywords: shows those that have no room.</extracomment>
        <translation>
            <numerusform>%n más</numerusform>
            <numerusform>%n más</numerusform>
        </translation>
    </message>
    <message>
        <source>edited</source>
        <extracomment>Spoken of a field or a section of them.</extracomment>
        <translation>editado</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Actions for this %1</source>
        <extracomment>%1: what the card holds, as “place”, “person” or “contact”.</extracomment>
        <translation>Acciones: %1</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <extracomment>%1: a keyword.</extracomment>
        <translation>Conservar %1</translation>
    </message>
    <message>
        <source>Take away %1</source>
        <translation>Quitar %1</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>Where a keyword stands among others. %1: those above it, as “Places, Switzerland”.</extracomment>
        <translation>en %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>%1: what is taken out of a list or form, as a keyword or a field.</extracomment>
        <translation>Quitar %1</translation>
    </message>
    <message>
        <source>New keyword</source>
        <translation>Palabra clave nueva</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se ha encontrado nada</translation>
    </message>
    <message>
        <source>Not among the known codes</source>
        <translation>No está entre los códigos conocidos</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no value</comment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <extracomment>%1: what was typed.</extracomment>
        <translation>Usar «%1»</translation>
    </message>
    <message>
        <source>As it is typed, not one of the codes</source>
        <translation>Tal como está escrito, no es uno de los códigos</translation>
    </message>
    <message>
        <source>chosen</source>
        <extracomment>Spoken of a row in a list.</extracomment>
        <translation>elegido</translation>
    </message>
    <message>
        <source>Time-zone offset</source>
        <translation>Desfase horario</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a field, %2 what is said of it.
----------
%1 is what a key does, %2 the key.
----------
%1: name of a field, %2: what it holds.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n characters</source>
        <extracomment>Of a text. %1: how many characters it has, %n: how many it should have at most.</extracomment>
        <translation>
            <numerusform>%1 de %n carácter</numerusform>
            <numerusform>%1 de %n caracteres</numerusform>
        </translation>
    </message>
    <message>
        <source>Default and Form…</source>
        <extracomment>Of a token. Default: what stands there where a photo has no such value; form: how a date is written.</extracomment>
        <translation>Sustituto y formato…</translation>
    </message>
    <message>
        <source>ALSO IN THESE PHOTOS</source>
        <extracomment>Heads fields that a chosen set of fields leaves out, in capitals.</extracomment>
        <translation>TAMBIÉN EN ESTAS FOTOS</translation>
    </message>
    <message>
        <source>ALSO IN THIS PHOTO</source>
        <translation>TAMBIÉN EN ESTA FOTO</translation>
    </message>
    <message numerus="yes">
        <source>%n field(s)</source>
        <translation>
            <numerusform>%n campo</numerusform>
            <numerusform>%n campos</numerusform>
        </translation>
    </message>
    <message>
        <source>No camera details</source>
        <translation>Sin datos de la cámara</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A note as a sentence: %1 is its text, and what follows ends it.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Write %1 to all selected files</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>Escribir %1 en todos los archivos seleccionados</translation>
    </message>
    <message>
        <source>Remove this field</source>
        <translation>Quitar este campo</translation>
    </message>
    <message>
        <source>Bring %1 back</source>
        <extracomment>%1: a language.</extracomment>
        <translation>Recuperar %1</translation>
    </message>
    <message>
        <source>Reading metadata</source>
        <translation>Leyendo metadatos</translation>
    </message>
    <message>
        <source>Shown</source>
        <extracomment>Stands at the one of several values of a field that the form shows.</extracomment>
        <translation>Mostrado</translation>
    </message>
    <message>
        <source>(empty)</source>
        <extracomment>A place within a photo that holds a field, and nothing in it.</extracomment>
        <translation>(vacío)</translation>
    </message>
    <message>
        <source>The photo’s own file: read here, and never written</source>
        <translation>El propio archivo de la foto: aquí se lee, nunca se escribe</translation>
    </message>
    <message>
        <source>Belongs to another standard: read here, and never written</source>
        <translation>Es de otro estándar: aquí se lee, nunca se escribe</translation>
    </message>
    <message>
        <source>shown</source>
        <extracomment>Return is the key. Spoken: what it does to the value that has the keyboard; “shown” is the one in the form.</extracomment>
        <translation>mostrado</translation>
    </message>
    <message>
        <source>Return uses this one</source>
        <translation>Retorno usa este</translation>
    </message>
    <message>
        <source>Use this one</source>
        <translation>Usar este</translation>
    </message>
    <message>
        <source>Make them agree</source>
        <extracomment>Button: writes what is shown to all places within a photo that hold a field.
----------
Button: writes what is shown to all places within photos that hold a field.</extracomment>
        <translation>Hacer coincidir</translation>
    </message>
    <message>
        <source>Places of %1</source>
        <extracomment>Places within a photo that hold a field. %1: its name.</extracomment>
        <translation>Sitios de %1</translation>
    </message>
    <message>
        <source>Writes what is shown to all places in the sidecar, of every field whose places differ there</source>
        <translation>Escribe en todos los sitios del sidecar lo que se muestra, para cada campo cuyos sitios difieren allí</translation>
    </message>
    <message>
        <source>Writes what is shown to all places, of every field whose places differ</source>
        <translation>Escribe en todos los sitios lo que se muestra, para cada campo cuyos sitios difieren</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renombrar…</translation>
    </message>
    <message>
        <source>Add field</source>
        <translation>Añadir campo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Bring back</source>
        <extracomment>Button: shows edits again that were left unsaved.</extracomment>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>Renombrando…</translation>
    </message>
    <message>
        <source>CUSTOM</source>
        <extracomment>Heads the fields that users have named themselves, in capitals.</extracomment>
        <translation>PROPIOS</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <extracomment>Heads what the camera noted, in capitals; and beside it that nobody can change that.</extracomment>
        <translation>CÁMARA</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>solo lectura</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Add a description…</source>
        <translation>Añadir una descripción…</translation>
    </message>
    <message>
        <source>Add a place…</source>
        <translation>Añadir un lugar…</translation>
    </message>
    <message>
        <source>Add a creator…</source>
        <translation>Añadir un creador…</translation>
    </message>
    <message>
        <source>Add a copyright notice…</source>
        <translation>Añadir un aviso de copyright…</translation>
    </message>
    <message>
        <source>Add a headline…</source>
        <translation>Añadir un titular…</translation>
    </message>
    <message>
        <source>Add an event…</source>
        <translation>Añadir un evento…</translation>
    </message>
    <message numerus="yes">
        <source>Will be written to all %n photos</source>
        <translation>
            <numerusform>Se escribirá en %n foto</numerusform>
            <numerusform>Se escribirá en las %n fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>appends — existing values kept</source>
        <extracomment>What a save does to a list of each photo.</extracomment>
        <translation>se añade: los valores existentes se conservan</translation>
    </message>
    <message numerus="yes">
        <source>%n taken away</source>
        <extracomment>%n: how many items of a list, as keywords.</extracomment>
        <translation>
            <numerusform>se quita %n</numerusform>
            <numerusform>se quitan %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Add ID + ↵</source>
        <extracomment>↵ is the Return key, which adds what was typed to a list.</extracomment>
        <translation>Añadir ID + ↵</translation>
    </message>
    <message>
        <source>Add age + ↵</source>
        <translation>Añadir edad + ↵</translation>
    </message>
    <message>
        <source>Add organisation + ↵</source>
        <translation>Añadir organización + ↵</translation>
    </message>
    <message>
        <source>Add code + ↵</source>
        <translation>Añadir código + ↵</translation>
    </message>
    <message>
        <source>Add keyword + ↵</source>
        <translation>Palabra clave + ↵</translation>
    </message>
    <message>
        <source>Add to all + ↵</source>
        <translation>Añadir a todas + ↵</translation>
    </message>
    <message>
        <source>Multiple values — leave unchanged</source>
        <translation>Varios valores: dejar sin cambios</translation>
    </message>
    <message numerus="yes">
        <source>Will be written to %1 of %n photos</source>
        <extracomment>%1 and %n: numbers of photos.</extracomment>
        <translation>
            <numerusform>Se escribirá en %1 de %n foto</numerusform>
            <numerusform>Se escribirá en %1 de %n fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %1 more…</source>
        <extracomment>%1: how many photos.
----------
%1 is a number of photos.</extracomment>
        <translation>
            <numerusform>Leyendo %1 más…</numerusform>
            <numerusform>Leyendo %1 más…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not read yet</source>
        <extracomment>%1: how many photos.</extracomment>
        <translation>
            <numerusform>%1 sin leer</numerusform>
            <numerusform>%1 sin leer</numerusform>
        </translation>
    </message>
    <message>
        <source>in all %1</source>
        <extracomment>A field holds something in all photos, or in some of them. The numbers are of photos.
----------
Said behind a keyword. The numbers are of photos.</extracomment>
        <translation>en las %1</translation>
    </message>
    <message>
        <source>in %1 or more of %2</source>
        <translation>en %1 o más de %2</translation>
    </message>
    <message>
        <source>in %1 of %2</source>
        <translation>en %1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>Will be taken away from all %n photos</source>
        <translation>
            <numerusform>Se quitará de %n foto</numerusform>
            <numerusform>Se quitará de las %n fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Will be taken away</source>
        <translation>Se quitará</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) (has|have) places that differ</source>
        <extracomment>%1: how many photos. Places: several within a photo that hold the same field.</extracomment>
        <translation>
            <numerusform>%1 foto tiene sitios que difieren</numerusform>
            <numerusform>%1 fotos tienen sitios que difieren</numerusform>
        </translation>
    </message>
    <message>
        <source>A field of this name cannot be changed here</source>
        <translation>Un campo con este nombre no se puede cambiar aquí</translation>
    </message>
    <message>
        <source>No unsaved changes</source>
        <translation>No hay cambios sin guardar</translation>
    </message>
    <message numerus="yes">
        <source>%n unsaved change(s)</source>
        <translation>
            <numerusform>%n cambio sin guardar</numerusform>
            <numerusform>%n cambios sin guardar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) → %1</source>
        <extracomment>Of so many fields the values will go into files. %1: “12 files”.</extracomment>
        <translation>
            <numerusform>%n campo → %1</numerusform>
            <numerusform>%n campos → %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) of %1 left unsaved</source>
        <extracomment>Somebody went on without saving them. %1: “5 photos”.</extracomment>
        <translation>
            <numerusform>%n cambio de %1 quedó sin guardar</numerusform>
            <numerusform>%n cambios de %1 quedaron sin guardar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) left unsaved</source>
        <extracomment>Somebody went on without saving them.</extracomment>
        <translation>
            <numerusform>%n cambio quedó sin guardar</numerusform>
            <numerusform>%n cambios quedaron sin guardar</numerusform>
        </translation>
    </message>
    <message>
        <source>Add field to all</source>
        <translation>Añadir campo a todas</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Guardando…</translation>
    </message>
    <message>
        <source>Apply to %1</source>
        <extracomment>Button: saves what was edited into photos. %1: how many these are.</extracomment>
        <translation>Aplicar a %1</translation>
    </message>
    <message>
        <source>No photo selected</source>
        <translation>Ninguna foto seleccionada</translation>
    </message>
    <message>
        <source>Add a language to %1</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>Añadir un idioma a %1</translation>
    </message>
    <message>
        <source>Language or code</source>
        <translation>Idioma o código</translation>
    </message>
    <message>
        <source>No such language. A code such as “de-AT” works too.</source>
        <translation>No existe ese idioma. También vale un código como «de-AT».</translation>
    </message>
    <message>
        <source>Now</source>
        <extracomment>Button: puts the time of this moment into the field.</extracomment>
        <translation>Ahora</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 places (differs|differ), another standard’s is shown</source>
        <extracomment>Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.</extracomment>
        <translation>
            <numerusform>%n de %1 sitios difiere; se muestra el de otro estándar</numerusform>
            <numerusform>%n de %1 sitios difieren; se muestra el de otro estándar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 places (differs|differ)</source>
        <extracomment>Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.</extracomment>
        <translation>
            <numerusform>%n de %1 sitios difiere</numerusform>
            <numerusform>%n de %1 sitios difieren</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (will be taken away)</source>
        <extracomment>%1: code of a language, as “de”.</extracomment>
        <translation>%1 (se quitará)</translation>
    </message>
    <message>
        <source>%1 in other languages: %2</source>
        <extracomment>%1: name of a field, %2: codes of languages, as “de, fr”.</extracomment>
        <translation>%1 en otros idiomas: %2</translation>
    </message>
    <message>
        <source>Other languages: %1 (%2)</source>
        <extracomment>%1: codes of languages, as “de, fr”. %2: keys, as “Alt+Right”.</extracomment>
        <translation>Otros idiomas: %1 (%2)</translation>
    </message>
    <message>
        <source>Add language</source>
        <translation>Añadir idioma</translation>
    </message>
    <message>
        <source>Hide Languages</source>
        <translation>Ocultar idiomas</translation>
    </message>
    <message>
        <source>Show Languages</source>
        <translation>Mostrar idiomas</translation>
    </message>
    <message>
        <source>Add Language…</source>
        <translation>Añadir idioma…</translation>
    </message>
    <message>
        <source>Required by %1</source>
        <extracomment>Stands in an empty field. %1: name of a set of fields, as “Press”.</extracomment>
        <translation>Lo pide %1</translation>
    </message>
    <message>
        <source>%1 of %2 filled</source>
        <extracomment>%1 and %2: numbers of fields.</extracomment>
        <translation>%1 de %2 rellenos</translation>
    </message>
    <message>
        <source>next gap F8</source>
        <extracomment>A gap: a field that a set of fields wants and that is empty. F8 is the key.</extracomment>
        <translation>hueco siguiente F8</translation>
    </message>
    <message>
        <source>Tick a field to write it to all selected files.</source>
        <translation>Marque un campo para escribirlo en todos los archivos seleccionados.</translation>
    </message>
    <message numerus="yes">
        <source>Editing %n photos</source>
        <translation>
            <numerusform>Editando %n foto</numerusform>
            <numerusform>Editando %n fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Field set</source>
        <translation>Conjunto de campos</translation>
    </message>
    <message>
        <source>Copy from Location</source>
        <extracomment>Location: the fields of the form that say where the photo was taken.</extracomment>
        <translation>Copiar de Lugar</translation>
    </message>
    <message>
        <source>Copy to Location</source>
        <translation>Copiar a Lugar</translation>
    </message>
    <message>
        <source>Search Place…</source>
        <translation>Buscar lugar…</translation>
    </message>
    <message>
        <source>nothing there</source>
        <extracomment>Why nothing can be copied: those fields are empty.</extracomment>
        <translation>allí no hay nada</translation>
    </message>
    <message>
        <source>nothing here</source>
        <extracomment>Why nothing can be copied: this card is empty.</extracomment>
        <translation>aquí no hay nada</translation>
    </message>
    <message>
        <source>Use Remembered Contact…</source>
        <translation>Usar un contacto recordado…</translation>
    </message>
    <message>
        <source>Use Remembered Licensor…</source>
        <translation>Usar un licenciante recordado…</translation>
    </message>
    <message>
        <source>Use a remembered contact…</source>
        <translation>Usar un contacto recordado…</translation>
    </message>
    <message>
        <source>Use a remembered licensor…</source>
        <translation>Usar un licenciante recordado…</translation>
    </message>
    <message>
        <source>Forget Remembered Contacts</source>
        <translation>Olvidar los contactos recordados</translation>
    </message>
    <message>
        <source>Forget Remembered Licensors</source>
        <translation>Olvidar los licenciantes recordados</translation>
    </message>
    <message>
        <source>Remembered contacts</source>
        <translation>Contactos recordados</translation>
    </message>
    <message>
        <source>Remembered licensors</source>
        <translation>Licenciantes recordados</translation>
    </message>
    <message numerus="yes">
        <source>%n contact(s)</source>
        <translation>
            <numerusform>%n contacto</numerusform>
            <numerusform>%n contactos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n artwork(s)</source>
        <translation>
            <numerusform>%n obra</numerusform>
            <numerusform>%n obras</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n term(s)</source>
        <translation>
            <numerusform>%n término</numerusform>
            <numerusform>%n términos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n expression(s)</source>
        <translation>
            <numerusform>%n expresión</numerusform>
            <numerusform>%n expresiones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n (entry|entries)</source>
        <translation>
            <numerusform>%n entrada</numerusform>
            <numerusform>%n entradas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n contributor(s)</source>
        <translation>
            <numerusform>%n colaborador</numerusform>
            <numerusform>%n colaboradores</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n region(s)</source>
        <translation>
            <numerusform>%n región</numerusform>
            <numerusform>%n regiones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n outline(s)</source>
        <translation>
            <numerusform>%n contorno</numerusform>
            <numerusform>%n contornos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n point(s)</source>
        <translation>
            <numerusform>%n punto</numerusform>
            <numerusform>%n puntos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link(s)</source>
        <translation>
            <numerusform>%n enlace</numerusform>
            <numerusform>%n enlaces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n (person|people)</source>
        <translation>
            <numerusform>%n persona</numerusform>
            <numerusform>%n personas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n product(s)</source>
        <translation>
            <numerusform>%n producto</numerusform>
            <numerusform>%n productos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n licensor(s)</source>
        <translation>
            <numerusform>%n licenciante</numerusform>
            <numerusform>%n licenciantes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n owner(s)</source>
        <translation>
            <numerusform>%n titular</numerusform>
            <numerusform>%n titulares</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n supplier(s)</source>
        <translation>
            <numerusform>%n proveedor</numerusform>
            <numerusform>%n proveedores</numerusform>
        </translation>
    </message>
    <message>
        <source>Add contact</source>
        <translation>Añadir contacto</translation>
    </message>
    <message>
        <source>Add artwork</source>
        <translation>Añadir obra</translation>
    </message>
    <message>
        <source>Add term</source>
        <translation>Añadir término</translation>
    </message>
    <message>
        <source>Add expression</source>
        <translation>Añadir expresión</translation>
    </message>
    <message>
        <source>Add entry</source>
        <translation>Añadir entrada</translation>
    </message>
    <message>
        <source>Add contributor</source>
        <translation>Añadir colaborador</translation>
    </message>
    <message>
        <source>Add region</source>
        <translation>Añadir región</translation>
    </message>
    <message>
        <source>Add outline</source>
        <translation>Añadir contorno</translation>
    </message>
    <message>
        <source>Add point</source>
        <translation>Añadir punto</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>Añadir enlace</translation>
    </message>
    <message>
        <source>Add place</source>
        <translation>Añadir lugar</translation>
    </message>
    <message>
        <source>Add person</source>
        <translation>Añadir persona</translation>
    </message>
    <message>
        <source>Add product</source>
        <translation>Añadir producto</translation>
    </message>
    <message>
        <source>Add licensor</source>
        <translation>Añadir licenciante</translation>
    </message>
    <message>
        <source>Add owner</source>
        <translation>Añadir titular</translation>
    </message>
    <message>
        <source>Add creator</source>
        <translation>Añadir creador</translation>
    </message>
    <message>
        <source>Add supplier</source>
        <translation>Añadir proveedor</translation>
    </message>
    <message>
        <source>New contact</source>
        <translation>Contacto nuevo</translation>
    </message>
    <message>
        <source>New artwork</source>
        <translation>Obra nueva</translation>
    </message>
    <message>
        <source>New term</source>
        <translation>Término nuevo</translation>
    </message>
    <message>
        <source>New expression</source>
        <translation>Expresión nueva</translation>
    </message>
    <message>
        <source>New entry</source>
        <translation>Entrada nueva</translation>
    </message>
    <message>
        <source>New contributor</source>
        <translation>Colaborador nuevo</translation>
    </message>
    <message>
        <source>New region</source>
        <translation>Región nueva</translation>
    </message>
    <message>
        <source>New outline</source>
        <translation>Contorno nuevo</translation>
    </message>
    <message>
        <source>New point</source>
        <translation>Punto nuevo</translation>
    </message>
    <message>
        <source>New link</source>
        <translation>Enlace nuevo</translation>
    </message>
    <message>
        <source>New place</source>
        <translation>Lugar nuevo</translation>
    </message>
    <message>
        <source>New person</source>
        <translation>Persona nueva</translation>
    </message>
    <message>
        <source>New product</source>
        <translation>Producto nuevo</translation>
    </message>
    <message>
        <source>New licensor</source>
        <translation>Licenciante nuevo</translation>
    </message>
    <message>
        <source>New owner</source>
        <translation>Titular nuevo</translation>
    </message>
    <message>
        <source>New creator</source>
        <translation>Creador nuevo</translation>
    </message>
    <message>
        <source>New supplier</source>
        <translation>Proveedor nuevo</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Add code</source>
        <extracomment>Button: adds a code of a vocabulary to a list.</extracomment>
        <translation>Añadir código</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether a height is below sea level.</extracomment>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Search place</source>
        <translation>Buscar lugar</translation>
    </message>
    <message>
        <source>Town, landmark or airport</source>
        <translation>Ciudad, monumento o aeropuerto</translation>
    </message>
    <message>
        <source>Couldn&apos;t look that up</source>
        <translation>No se pudo consultar</translation>
    </message>
    <message>
        <source>Forget %1</source>
        <extracomment>%1: name of a contact or licensor.</extracomment>
        <translation>Olvidar %1</translation>
    </message>
    <message>
        <source>More</source>
        <comment>button: shows further fields</comment>
        <translation>Más</translation>
    </message>
    <message>
        <source>More fields of this %1</source>
        <extracomment>%1: what the card holds, as “place”, “person” or “contact”.</extracomment>
        <translation>Más campos: %1</translation>
    </message>
    <message>
        <source>Also holds %1 of another program, which stays. Changing this %2 may be refused for that.</source>
        <extracomment>%1: names of what another program has put in, as “Mood” and “Weather”. %2: “place”, “person”, “contact”…</extracomment>
        <translation>También contiene %1 de otro programa, que se conserva. Por eso puede rechazarse el cambio (%2).</translation>
    </message>
    <message>
        <source>Clear</source>
        <comment>verb: empties the fields</comment>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>%1, %2 %3 of %4</source>
        <extracomment>Spoken of a card. %1: name of the field, %2: “place”, “person”…, %3: which one it is, %4: how many there are.</extracomment>
        <translation>%1, %2 %3 de %4</translation>
    </message>
    <message>
        <source>stored as a code</source>
        <extracomment>Under the terms of a vocabulary: files hold a term&apos;s code, not its name.</extracomment>
        <translation>se guarda como código</translation>
    </message>
    <message>
        <source>In these %1</source>
        <extracomment>Stands before keywords. %1: of how many photos.</extracomment>
        <translation>En estas %1</translation>
    </message>
    <message>
        <source>to be taken away</source>
        <extracomment>Said behind a keyword.</extracomment>
        <translation>se quitará</translation>
    </message>
    <message>
        <source>Last used</source>
        <extracomment>The keywords that were used last.</extracomment>
        <translation>Últimas usadas</translation>
    </message>
    <message>
        <source>New Set…</source>
        <extracomment>Set: of keywords.</extracomment>
        <translation>Conjunto nuevo…</translation>
    </message>
    <message>
        <source>Edit Set…</source>
        <extracomment>Set: of keywords.</extracomment>
        <translation>Editar conjunto…</translation>
    </message>
    <message>
        <source>Quick</source>
        <extracomment>Stands before keywords that a click adds.</extracomment>
        <translation>Rápidas</translation>
    </message>
    <message>
        <source>Quick keywords</source>
        <translation>Palabras clave rápidas</translation>
    </message>
    <message>
        <source>Add %1 to all, %2</source>
        <extracomment>Adds a keyword to all photos. %1: the keyword, %2: keys that do the same.</extracomment>
        <translation>Añadir %1 a todas, %2</translation>
    </message>
    <message>
        <source>Add %1 to all</source>
        <translation>Añadir %1 a todas</translation>
    </message>
    <message>
        <source>Set of quick keywords: %1</source>
        <extracomment>%1: name of the set.</extracomment>
        <translation>Conjunto de palabras clave rápidas: %1</translation>
    </message>
    <message>
        <source>Fill place from coordinates</source>
        <translation>Rellenar el lugar a partir de las coordenadas</translation>
    </message>
    <message>
        <source>Place search is not installed</source>
        <translation>La búsqueda de lugares no está instalada</translation>
    </message>
    <message>
        <source>The place service asks for a pause</source>
        <translation>El servicio de lugares pide una pausa</translation>
    </message>
    <message>
        <source>The place service sent too much</source>
        <translation>El servicio de lugares envió demasiados datos</translation>
    </message>
    <message>
        <source>The place service did not answer in time</source>
        <translation>El servicio de lugares no respondió a tiempo</translation>
    </message>
    <message>
        <source>The place service cannot be reached</source>
        <translation>No se puede acceder al servicio de lugares</translation>
    </message>
    <message>
        <source>The place service answered something else</source>
        <translation>El servicio de lugares dio una respuesta inesperada</translation>
    </message>
    <message>
        <source>The place service answered with status %1</source>
        <translation>El servicio de lugares respondió con el estado %1</translation>
    </message>
    <message>
        <source>Map of %1</source>
        <extracomment>%1: a position, as “47.36667, 8.55000”.</extracomment>
        <translation>Mapa de %1</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>Añadir campo</translation>
    </message>
    <message>
        <source>Search fields…</source>
        <translation>Buscar campos…</translation>
    </message>
    <message>
        <source>Search fields</source>
        <translation>Buscar campos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>RECOMMENDED · WORKS EVERYWHERE</source>
        <translation>RECOMENDADOS · FUNCIONAN EN TODAS PARTES</translation>
    </message>
    <message>
        <source>Already-set fields are hidden.</source>
        <translation>Los campos ya rellenados no aparecen.</translation>
    </message>
    <message>
        <source>ADVANCED · CUSTOM FIELD</source>
        <translation>AVANZADO · CAMPO PROPIO</translation>
    </message>
    <message>
        <source>may not appear in all apps</source>
        <translation>puede no aparecer en todas las aplicaciones</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>of a custom field</comment>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <comment>of a custom field</comment>
        <translation>Valor</translation>
    </message>
    <message>
        <source>e.g. Project</source>
        <extracomment>An example of the name of a custom field: letters without accents, as it becomes the name of a tag.</extracomment>
        <translation>p. ej. Proyecto</translation>
    </message>
    <message>
        <source>All recommended fields are already shown.</source>
        <translation>Ya se muestran todos los campos recomendados.</translation>
    </message>
    <message>
        <source>No matching fields.</source>
        <translation>No hay campos que coincidan.</translation>
    </message>
    <message>
        <source>Will be stored as “%1”</source>
        <translation>Se guardará como «%1»</translation>
    </message>
    <message>
        <source>Add Metadata Field</source>
        <translation>Añadir campo de metadatos</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Campos</translation>
    </message>
    <message>
        <source>OTHER FIELDS</source>
        <translation>OTROS CAMPOS</translation>
    </message>
    <message>
        <source>Copied today, %1</source>
        <extracomment>%1 is a time of day.</extracomment>
        <translation>Copiados hoy, %1</translation>
    </message>
    <message>
        <source>Copied yesterday, %1</source>
        <extracomment>%1 is a time of day.</extracomment>
        <translation>Copiados ayer, %1</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <comment>form of a date</comment>
        <extracomment>The form of a day with its month in words: d is the day&apos;s number, MMMM the month&apos;s name, yyyy the year.</extracomment>
        <translation>d &apos;de&apos; MMMM &apos;de&apos; yyyy</translation>
    </message>
    <message>
        <source>Copied %1, %2</source>
        <extracomment>%1 is a day, %2 a time of day.</extracomment>
        <translation>Copiados el %1, %2</translation>
    </message>
    <message>
        <source>Copied fields</source>
        <extracomment>%1 is the name of the file whose fields were copied.</extracomment>
        <translation>Campos copiados</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>De %1</translation>
    </message>
    <message>
        <source>All</source>
        <comment>button: ticks all fields</comment>
        <translation>Todos</translation>
    </message>
    <message>
        <source>None</source>
        <comment>button: ticks no field</comment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Tick all fields</source>
        <translation>Marcar todos los campos</translation>
    </message>
    <message>
        <source>Tick no field</source>
        <translation>No marcar ningún campo</translation>
    </message>
    <message>
        <source>Paste Fields</source>
        <translation>Pegar campos</translation>
    </message>
    <message numerus="yes">
        <source>Paste %n Field(s)</source>
        <translation>
            <numerusform>Pegar %n campo</numerusform>
            <numerusform>Pegar %n campos</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is written before Apply.</source>
        <translation>No se escribe nada antes de aplicar.</translation>
    </message>
    <message>
        <source>Nothing is written before Save.</source>
        <translation>No se escribe nada antes de guardar.</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (was|were) not read yet.</source>
        <translation>
            <numerusform>%n foto aún no se ha leído.</numerusform>
            <numerusform>%n fotos aún no se han leído.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste Fields to %n Photo(s)</source>
        <translation>
            <numerusform>Pegar campos en %n foto</numerusform>
            <numerusform>Pegar campos en %n fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Paste Fields to %1</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Pegar campos en %1</translation>
    </message>
    <message>
        <source>Name of the set</source>
        <translation>Nombre del conjunto</translation>
    </message>
    <message>
        <source>The first nine have the keys Alt+1 to Alt+9.</source>
        <translation>Las nueve primeras tienen las teclas Alt+1 a Alt+9.</translation>
    </message>
    <message>
        <source>Delete Set</source>
        <translation>Eliminar conjunto</translation>
    </message>
    <message>
        <source>Keywords of the set</source>
        <translation>Palabras clave del conjunto</translation>
    </message>
    <message>
        <source>New Set of Quick Keywords</source>
        <translation>Nuevo conjunto de palabras clave rápidas</translation>
    </message>
    <message>
        <source>Set of Quick Keywords</source>
        <translation>Conjunto de palabras clave rápidas</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>Click a field to insert it. The extension is kept automatically.</source>
        <translation>Haga clic en un campo para insertarlo. La extensión se conserva automáticamente.</translation>
    </message>
    <message>
        <source>Preview</source>
        <comment>noun</comment>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Rename File</source>
        <translation>Renombrar archivo</translation>
    </message>
    <message numerus="yes">
        <source>Make %n photo(s) agree?</source>
        <translation>
            <numerusform>¿Hacer coincidir los sitios de %n foto?</numerusform>
            <numerusform>¿Hacer coincidir los sitios de %n fotos?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Apply changes to %n photo(s)?</source>
        <translation>
            <numerusform>¿Aplicar los cambios a %n foto?</numerusform>
            <numerusform>¿Aplicar los cambios a %n fotos?</numerusform>
        </translation>
    </message>
    <message>
        <source>Make “%1” agree?</source>
        <translation>¿Hacer coincidir los sitios de «%1»?</translation>
    </message>
    <message>
        <source>Save changes to “%1”?</source>
        <translation>¿Guardar los cambios de «%1»?</translation>
    </message>
    <message>
        <source>Where the places of a field differ, all of them will hold what is shown of it. Lists are brought together.</source>
        <translation>Donde los sitios de un campo difieran, todos contendrán lo que se muestra de él. Las listas se combinan.</translation>
    </message>
    <message numerus="yes">
        <source>You edited %n field(s). Your changes will be lost if you don’t save them.</source>
        <translation>
            <numerusform>Ha editado %n campo. Si no guarda los cambios, se perderán.</numerusform>
            <numerusform>Ha editado %n campos. Si no guarda los cambios, se perderán.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This will modify the selected fields on %n file(s). This can’t be undone.</source>
        <translation>
            <numerusform>Se modificarán los campos seleccionados en %n archivo. No se puede deshacer.</numerusform>
            <numerusform>Se modificarán los campos seleccionados en %n archivos. No se puede deshacer.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This will modify %1 on %n file(s). This can’t be undone.</source>
        <extracomment>%1 is a list of the names of fields.</extracomment>
        <translation>
            <numerusform>Se modificará en %n archivo: %1. No se puede deshacer.</numerusform>
            <numerusform>Se modificará en %n archivos: %1. No se puede deshacer.</numerusform>
        </translation>
    </message>
    <message>
        <source>taken away: %1</source>
        <extracomment>%1 is a list of keywords that photos lose.</extracomment>
        <translation>se quita: %1</translation>
    </message>
    <message>
        <source>Changes</source>
        <comment>noun: what a save changes</comment>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Save and don’t ask again</source>
        <translation>Guardar y no volver a preguntar</translation>
    </message>
    <message>
        <source>Don’t ask again this session</source>
        <translation>No volver a preguntar en esta sesión</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>No guardar</translation>
    </message>
    <message>
        <source>Make It Agree</source>
        <translation>Hacer coincidir</translation>
    </message>
    <message>
        <source>Make Them Agree</source>
        <translation>Hacer coincidir</translation>
    </message>
    <message numerus="yes">
        <source>Apply to %n Photo(s)</source>
        <translation>
            <numerusform>Aplicar a %n foto</numerusform>
            <numerusform>Aplicar a %n fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>Antes y después</translation>
    </message>
    <message>
        <source>By an amount</source>
        <translation>Por una cantidad</translation>
    </message>
    <message>
        <source>By a known photo</source>
        <translation>Según una foto conocida</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zona horaria</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>times become later</comment>
        <translation>Después</translation>
    </message>
    <message>
        <source>Earlier</source>
        <comment>times become earlier</comment>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Keep the clock time</source>
        <translation>Conservar la hora del reloj</translation>
    </message>
    <message>
        <source>Use each photo’s own</source>
        <comment>time zone</comment>
        <translation>Usar la de cada foto</translation>
    </message>
    <message>
        <source>How to shift</source>
        <translation>Modo de desplazamiento</translation>
    </message>
    <message>
        <source>BEFORE → AFTER</source>
        <translation>ANTES → DESPUÉS</translation>
    </message>
    <message>
        <source>d</source>
        <comment>unit: days</comment>
        <translation>d</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>h</source>
        <comment>unit: hours</comment>
        <translation>h</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Horas</translation>
    </message>
    <message>
        <source>min</source>
        <comment>unit: minutes</comment>
        <translation>min</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>s</source>
        <comment>unit: seconds</comment>
        <translation>s</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sentido</translation>
    </message>
    <message>
        <source>Was taken at</source>
        <translation>Se hizo el</translation>
    </message>
    <message>
        <source>Choose among the selected photos</source>
        <translation>Elegir entre las fotos seleccionadas</translation>
    </message>
    <message>
        <source>Without it, the moment stays and the clock time moves</source>
        <translation>Sin esto, el momento se conserva y la hora del reloj cambia</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Search photos</source>
        <translation>Buscar fotos</translation>
    </message>
    <message>
        <source>No such photo</source>
        <translation>No existe esa foto</translation>
    </message>
    <message>
        <source>Time zones</source>
        <translation>Zonas horarias</translation>
    </message>
    <message>
        <source>Search towns or offsets</source>
        <translation>Buscar ciudades o desfases</translation>
    </message>
    <message>
        <source>No such time zone</source>
        <translation>No existe esa zona horaria</translation>
    </message>
    <message numerus="yes">
        <source>Set Zone of %n</source>
        <translation>
            <numerusform>Establecer la zona de %n</numerusform>
            <numerusform>Establecer la zona de %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shift %n Photo(s)</source>
        <translation>
            <numerusform>Desplazar %n foto</numerusform>
            <numerusform>Desplazar %n fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Date digitized and the other dates of a photo move along.</source>
        <translation>La fecha de digitalización y las demás fechas de la foto se desplazan también.</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Sin fecha</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n more…</source>
        <comment>photos</comment>
        <translation>
            <numerusform>Leyendo %n más…</numerusform>
            <numerusform>Leyendo %n más…</numerusform>
        </translation>
    </message>
    <message>
        <source>All others by the same amount: %1.</source>
        <extracomment>%1 is an amount of time, like “1 h 30 min earlier”.</extracomment>
        <translation>Todas las demás, lo mismo: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Shift Time of %n Photo(s)</source>
        <translation>
            <numerusform>Desplazar la hora de %n foto</numerusform>
            <numerusform>Desplazar la hora de %n fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>No such shortcut.</source>
        <translation>No existe ese atajo.</translation>
    </message>
    <message>
        <source>Search shortcuts…</source>
        <translation>Buscar atajos…</translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>Buscar atajos</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message numerus="yes">
        <source>%n shortcut(s)</source>
        <translation>
            <numerusform>%n atajo</numerusform>
            <numerusform>%n atajos</numerusform>
        </translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Field sets</source>
        <translation>Conjuntos de campos</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>Se pide</translation>
    </message>
    <message>
        <source>Delete this set</source>
        <translation>Eliminar este conjunto</translation>
    </message>
    <message>
        <source>New set, as a copy of this one</source>
        <translation>Nuevo conjunto, como copia de este</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <extracomment>The name of a new set of fields; %1 is the name of the one that it is a copy of.
----------
%1: name of the template that this is a copy of.</extracomment>
        <translation>%1 (copia)</translation>
    </message>
    <message>
        <source>This set comes with Quorbel. Make a copy with + to change it.</source>
        <translation>Este conjunto viene con Quorbel. Para cambiarlo, haga una copia con +.</translation>
    </message>
    <message>
        <source>Field Sets</source>
        <translation>Conjuntos de campos</translation>
    </message>
    <message>
        <source>Fields of the set</source>
        <translation>Campos del conjunto</translation>
    </message>
    <message>
        <source>Field</source>
        <comment>noun</comment>
        <translation>Campo</translation>
    </message>
    <message>
        <source>%1 on screen</source>
        <extracomment>The name of a tick that puts the field %1 on screen.</extracomment>
        <translation>%1: visible</translation>
    </message>
    <message>
        <source>%1 wanted</source>
        <extracomment>The name of a tick that says that the field %1 should be filled in.</extracomment>
        <translation>%1: se pide</translation>
    </message>
    <message>
        <source>%1 keeps its name</source>
        <extracomment>%1 is the name of a file, %2 the one that it will get.</extracomment>
        <translation>%1 conserva su nombre</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 pasa a %2</translation>
    </message>
    <message>
        <source>New names</source>
        <translation>Nombres nuevos</translation>
    </message>
    <message>
        <source>Counter from</source>
        <translation>Contador desde</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Paso</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Cifras</translation>
    </message>
    <message>
        <source>Next</source>
        <comment>goes to the next name</comment>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>step</source>
        <extracomment>Behind “Counter from”: by how much it rises from photo to photo.</extracomment>
        <translation>paso</translation>
    </message>
    <message>
        <source>digits</source>
        <extracomment>Behind “Counter from”: how many digits it has.</extracomment>
        <translation>cifras</translation>
    </message>
    <message>
        <source>The extension is kept.</source>
        <translation>La extensión se conserva.</translation>
    </message>
    <message>
        <source>Goes to the next name to look at</source>
        <translation>Va al siguiente nombre por revisar</translation>
    </message>
    <message numerus="yes">
        <source>%1 to look at</source>
        <extracomment>%1 is a number of names.</extracomment>
        <translation>
            <numerusform>%1 por revisar</numerusform>
            <numerusform>%1 por revisar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename %1</source>
        <extracomment>%1 is a number of photos.</extracomment>
        <translation>
            <numerusform>Renombrar %1</numerusform>
            <numerusform>Renombrar %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Sidecars and backups go along. Edit ▸ Undo Rename takes it back.</source>
        <translation>Sidecars y copias de seguridad también se renombran. Editar ▸ Deshacer renombrado lo revierte.</translation>
    </message>
    <message numerus="yes">
        <source>Renaming %1 of %2…</source>
        <extracomment>%1 of all %2 photos are renamed.</extracomment>
        <translation>
            <numerusform>Renombrando %1 de %2…</numerusform>
            <numerusform>Renombrando %1 de %2…</numerusform>
        </translation>
    </message>
    <message>
        <source>Renames them as soon as the save has ended…</source>
        <translation>Se renombrarán en cuanto termine el guardado…</translation>
    </message>
    <message numerus="yes">
        <source>Rename %1 Files</source>
        <translation>
            <numerusform>Renombrar %1 archivo</numerusform>
            <numerusform>Renombrar %1 archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>no %1</source>
        <extracomment>%1 is the name of a field that a photo does not have.
----------
The photo holds nothing that could stand here. %1: what of, as “title”.</extracomment>
        <translation>sin %1</translation>
    </message>
    <message>
        <source>Gain</source>
        <comment>photos gain a field</comment>
        <extracomment>Headings of columns: how many photos gain a field, change it, and lose it.</extracomment>
        <translation>Ganan</translation>
    </message>
    <message>
        <source>Change</source>
        <comment>photos change a field</comment>
        <translation>Cambian</translation>
    </message>
    <message>
        <source>Lose</source>
        <comment>photos lose a field</comment>
        <translation>Pierden</translation>
    </message>
    <message>
        <source>What the sidecars hold is written into the photos themselves, also where it differs. The sidecars stay as they are.</source>
        <translation>Lo que contienen los sidecars se escribe en las propias fotos, también donde difiere. Los sidecars quedan como están.</translation>
    </message>
    <message>
        <source>What raw photos hold and their sidecars do not is written into the sidecars. The photos stay untouched.</source>
        <translation>Lo que contienen las fotos raw y no sus sidecars se escribe en los sidecars. Las fotos no se tocan.</translation>
    </message>
    <message>
        <source>Looking into the files…</source>
        <translation>Examinando los archivos…</translation>
    </message>
    <message>
        <source>There is nothing to write.</source>
        <translation>No hay nada que escribir.</translation>
    </message>
    <message numerus="yes">
        <source>Looked into %1 of %2 photos…</source>
        <translation>
            <numerusform>Examinada %1 de %2 foto…</numerusform>
            <numerusform>Examinadas %1 de %2 fotos…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write Into %1 Photo(s)</source>
        <extracomment>A button; %1 is the number of photos.</extracomment>
        <translation>
            <numerusform>Escribir en %1 foto</numerusform>
            <numerusform>Escribir en %1 fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write for %1 Photo(s)</source>
        <extracomment>A button; %1 is the number of photos whose sidecars are written.</extracomment>
        <translation>
            <numerusform>Escribir para %1 foto</numerusform>
            <numerusform>Escribir para %1 fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Write Sidecars Into Photos</source>
        <translation>Escribir sidecars en las fotos</translation>
    </message>
    <message>
        <source>Write Metadata Into Sidecars</source>
        <translation>Escribir metadatos en sidecars</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (gains|gain) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>%n foto lo gana</numerusform>
            <numerusform>%n fotos lo ganan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (changes|change) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>%n foto lo cambia</numerusform>
            <numerusform>%n fotos lo cambian</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (loses|lose) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>%n foto lo pierde</numerusform>
            <numerusform>%n fotos lo pierden</numerusform>
        </translation>
    </message>
    <message>
        <source>What is written</source>
        <translation>Qué se escribe</translation>
    </message>
    <message>
        <source>Looking… %1 of %2</source>
        <extracomment>While photos are read. %1 and %2 are numbers.</extracomment>
        <translation>Examinando… %1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) (disagrees|disagree)</source>
        <extracomment>%1: how many photos hold a field in several places that differ.</extracomment>
        <translation>
            <numerusform>%1 foto discrepa</numerusform>
            <numerusform>%1 fotos discrepan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 disagree</source>
        <extracomment>As “%1 photos disagree”, where there is little room.</extracomment>
        <translation>
            <numerusform>%1 discrepa</numerusform>
            <numerusform>%1 discrepan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not looked at yet</source>
        <extracomment>%1: how many photos.</extracomment>
        <translation>
            <numerusform>%1 sin examinar</numerusform>
            <numerusform>%1 sin examinar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unknown</source>
        <extracomment>As “%1 not looked at yet”, where there is little room.</extracomment>
        <translation>
            <numerusform>%1 sin examinar</numerusform>
            <numerusform>%1 sin examinar</numerusform>
        </translation>
    </message>
    <message>
        <source>Show all photos</source>
        <translation>Mostrar todas las fotos</translation>
    </message>
    <message>
        <source>Look at them</source>
        <extracomment>Button behind a number of photos that were not looked at yet.</extracomment>
        <translation>Examinarlas</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message numerus="yes">
        <source>%n more filters</source>
        <translation>
            <numerusform>%n filtro más</numerusform>
            <numerusform>%n filtros más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 photo(s)</source>
        <extracomment>%1: a filter, as “No title”. %2: how many photos fit it.</extracomment>
        <translation>
            <numerusform>%1, %2 foto</numerusform>
            <numerusform>%1, %2 fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Without</source>
        <extracomment>Heads a list of what photos may lack: title, keywords…</extracomment>
        <translation>Sin</translation>
    </message>
    <message>
        <source>At least</source>
        <extracomment>Stands before the row of stars that a photo has at least.</extracomment>
        <translation>Al menos</translation>
    </message>
    <message>
        <source>Click the lowest rating to list; click it again for any</source>
        <translation>Un clic fija la valoración mínima; otro clic en ella admite cualquiera</translation>
    </message>
    <message>
        <source>Any field contains…</source>
        <translation>Algún campo contiene…</translation>
    </message>
    <message>
        <source>Any field contains</source>
        <translation>Algún campo contiene</translation>
    </message>
    <message>
        <source>At least, any rating</source>
        <translation>Al menos, cualquier valoración</translation>
    </message>
    <message>
        <source>No title</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>No description</source>
        <translation>Sin descripción</translation>
    </message>
    <message>
        <source>No keywords</source>
        <translation>Sin palabras clave</translation>
    </message>
    <message>
        <source>No date taken</source>
        <translation>Sin fecha de captura</translation>
    </message>
    <message>
        <source>No place</source>
        <translation>Sin lugar</translation>
    </message>
    <message>
        <source>No creator</source>
        <translation>Sin creador</translation>
    </message>
    <message>
        <source>No copyright</source>
        <translation>Sin copyright</translation>
    </message>
    <message>
        <source>Unrated</source>
        <translation>Sin valorar</translation>
    </message>
    <message>
        <source>Edited, not saved</source>
        <translation>Editadas, sin guardar</translation>
    </message>
    <message>
        <source>Changed since opened</source>
        <translation>Cambiadas tras abrirlas</translation>
    </message>
    <message>
        <source>Places differ</source>
        <translation>Los sitios difieren</translation>
    </message>
    <message>
        <source>Clear filters</source>
        <translation>Quitar filtros</translation>
    </message>
    <message>
        <source>Filter images</source>
        <translation>Filtrar imágenes</translation>
    </message>
    <message numerus="yes">
        <source>At least %n star(s)</source>
        <translation>
            <numerusform>Al menos %n estrella</numerusform>
            <numerusform>Al menos %n estrellas</numerusform>
        </translation>
    </message>
    <message>
        <source>Contains “%1”</source>
        <extracomment>A filter of photos. %1: what was typed.</extracomment>
        <translation>Contiene «%1»</translation>
    </message>
    <message>
        <source>collapsed</source>
        <extracomment>State of a folder in the list, spoken.</extracomment>
        <translation>plegada</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>desplegada</translation>
    </message>
    <message>
        <source>No matching photos.</source>
        <translation>No hay fotos que coincidan.</translation>
    </message>
    <message>
        <source>Nothing left</source>
        <extracomment>No photo fits the filters.</extracomment>
        <translation>No queda ninguna</translation>
    </message>
    <message>
        <source>All places agree</source>
        <extracomment>All places within the photos in which a field stands.</extracomment>
        <translation>Todos los sitios coinciden</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) not looked at yet</source>
        <translation>
            <numerusform>%1 foto sin examinar</numerusform>
            <numerusform>%1 fotos sin examinar</numerusform>
        </translation>
    </message>
    <message>
        <source>Double-click to open in your default image app</source>
        <translation>Doble clic para abrir en la aplicación de imágenes predeterminada</translation>
    </message>
    <message>
        <source>Name (A–Z)</source>
        <translation>Nombre (A–Z)</translation>
    </message>
    <message>
        <source>Name (Z–A)</source>
        <translation>Nombre (Z–A)</translation>
    </message>
    <message>
        <source>Date (newest first)</source>
        <translation>Fecha (más recientes primero)</translation>
    </message>
    <message>
        <source>Date (oldest first)</source>
        <translation>Fecha (más antiguas primero)</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Sort images</source>
        <translation>Ordenar imágenes</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Heads the ways in which photos are listed.</extracomment>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source>Thumbnail of %1</source>
        <extracomment>%1: name of a file.</extracomment>
        <translation>Miniatura de %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>What a field then holds.</extracomment>
        <translation>nada</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>Set</source>
        <comment>verb: puts the text into the field</comment>
        <translation>Establecer</translation>
    </message>
    <message>
        <source>Set if empty</source>
        <extracomment>Puts the text into the field when nothing is there.</extracomment>
        <translation>Solo si está vacío</translation>
    </message>
    <message>
        <source>Append</source>
        <extracomment>Puts the text behind what the field holds.</extracomment>
        <translation>Añadir detrás</translation>
    </message>
    <message>
        <source>Prepend</source>
        <extracomment>Puts the text before what the field holds.</extracomment>
        <translation>Añadir delante</translation>
    </message>
    <message>
        <source>What happens to %1</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>Qué ocurre con %1</translation>
    </message>
    <message>
        <source>Add name + ↵</source>
        <translation>Añadir nombre + ↵</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <extracomment>Keys that apply a template.</extracomment>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>Foto anterior</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>Foto siguiente</translation>
    </message>
    <message>
        <source>Fill</source>
        <extracomment>Button: fills the fields of photos.</extracomment>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>More</source>
        <comment>button: opens a menu</comment>
        <translation>Más</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>FIELDS</source>
        <extracomment>Heads the fields of a template, in capitals.</extracomment>
        <translation>CAMPOS</translation>
    </message>
    <message>
        <source>A template fills fields of the selected photos, with texts that each photo completes. Make one with +, or drop a template&apos;s file into the list.</source>
        <translation>Una plantilla rellena campos de las fotos seleccionadas con textos que cada foto completa. Cree una con +, o suelte el archivo de una plantilla en la lista.</translation>
    </message>
    <message>
        <source>No shortcut</source>
        <translation>Sin atajo</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <extracomment>Heads what the template makes of a photo, in capitals.</extracomment>
        <translation>VISTA PREVIA</translation>
    </message>
    <message numerus="yes">
        <source>Fill %1 Photo(s)</source>
        <extracomment>Button: fills the fields of the selected photos. %1: how many these are.</extracomment>
        <translation>
            <numerusform>Rellenar %1 foto</numerusform>
            <numerusform>Rellenar %1 fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>No field of this name.</source>
        <translation>Ningún campo con este nombre.</translation>
    </message>
    <message>
        <source>custom field</source>
        <translation>campo propio</translation>
    </message>
    <message>
        <source>from %1</source>
        <extracomment>How a counter counts. %1: its first number.</extracomment>
        <translation>desde %1</translation>
    </message>
    <message>
        <source>from %1, step %2</source>
        <extracomment>How a counter counts. %1: its first number, %2: how far it is to the next.</extracomment>
        <translation>desde %1, paso %2</translation>
    </message>
    <message>
        <source>or %1</source>
        <extracomment>Behind the name of a token. %1: what stands in its place where a photo has no such value.</extracomment>
        <translation>o %1</translation>
    </message>
    <message>
        <source>More…</source>
        <extracomment>Button: shows further tokens.</extracomment>
        <translation>Más…</translation>
    </message>
    <message>
        <source>Insert %1</source>
        <extracomment>Puts a token into a text. %1: its name, as “Date taken”.</extracomment>
        <translation>Insertar %1</translation>
    </message>
    <message>
        <source>More tokens</source>
        <translation>Más variables</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Search tokens…</source>
        <translation>Buscar variables…</translation>
    </message>
    <message>
        <source>No token of this name.</source>
        <translation>Ninguna variable con este nombre.</translation>
    </message>
    <message>
        <source>Default and form of %1</source>
        <extracomment>%1: name of a token. Default: what stands there where a photo has no such value; form: how a date is written.</extracomment>
        <translation>Sustituto y formato de %1</translation>
    </message>
    <message>
        <source>If missing</source>
        <extracomment>What stands in the place of a value that a photo does not have, and what happens when nothing is given.</extracomment>
        <translation>Si falta</translation>
    </message>
    <message>
        <source>leave a gap</source>
        <translation>dejar un hueco</translation>
    </message>
    <message>
        <source>Form</source>
        <extracomment>How a date or time is written.</extracomment>
        <translation>Formato</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Of a counter: its first number, how far it is from one to the next, and how many digits each has.</extracomment>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Letters</source>
        <extracomment>Whether the letters of a text are capitals.</extracomment>
        <translation>Letras</translation>
    </message>
    <message>
        <source>As they are</source>
        <translation>Tal cual</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>MAYÚSCULAS</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>minúsculas</translation>
    </message>
    <message>
        <source>as in “%1”</source>
        <extracomment>%1: a date, written in the form that was chosen.</extracomment>
        <translation>como en «%1»</translation>
    </message>
    <message>
        <source>There are no codes in this file.</source>
        <translation>Este archivo no contiene códigos.</translation>
    </message>
    <message numerus="yes">
        <source>%n code(s).</source>
        <translation>
            <numerusform>%n código.</numerusform>
            <numerusform>%n códigos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <comment>button: no file is used any more</comment>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Choose the file of codes</source>
        <translation>Elegir el archivo de códigos</translation>
    </message>
    <message>
        <source>Use no file of codes</source>
        <translation>No usar ningún archivo de códigos</translation>
    </message>
    <message>
        <source>A text file with a code, a tab and its text in each line. Type =js= in a text or keyword, and js becomes its text at the second “=”; one Undo gives the code back.</source>
        <translation>Un archivo de texto con un código, un tabulador y su texto en cada línea. Escriba =js= en un texto o palabra clave, y js se convierte en su texto con el segundo «=»; un solo Deshacer devuelve el código.</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>Ningún archivo</translation>
    </message>
    <message>
        <source>Nothing else in the photo before</source>
        <translation>No hay nada más en la foto anterior</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Primeros pasos</translation>
    </message>
    <message>
        <source>Quorbel reads and edits the metadata inside your photos — titles, dates, captions, keywords and location — and writes your changes into the EXIF, IPTC and XMP standards at once so every app agrees.</source>
        <translation>Quorbel lee y edita los metadatos de sus fotos (títulos, fechas, pies de foto, palabras clave y lugares) y escribe los cambios a la vez en los estándares EXIF, IPTC y XMP, para que todas las aplicaciones coincidan.</translation>
    </message>
    <message>
        <source>To begin, open a folder of images or one or more image files:</source>
        <translation>Para empezar, abra una carpeta de imágenes o uno o varios archivos de imagen:</translation>
    </message>
    <message>
        <source>Choose File ▸ Open… (⌘O), or drag photos onto the window.</source>
        <translation>Elija Archivo ▸ Abrir… (⌘O), o arrastre fotos a la ventana.</translation>
    </message>
    <message>
        <source>Choose File ▸ Open with Subfolders… (⌘⇧O) to open a folder with all the folders in it.</source>
        <translation>Elija Archivo ▸ Abrir con subcarpetas… (⌘⇧O) para abrir una carpeta con todas las que contiene.</translation>
    </message>
    <message>
        <source>Reopen something recent from File ▸ Open Recent.</source>
        <translation>Vuelva a abrir algo reciente en Archivo ▸ Abrir reciente.</translation>
    </message>
    <message>
        <source>Right-click a photo in your file manager and choose Open With ▸ Quorbel.</source>
        <translation>Haga clic con el botón derecho en una foto en el gestor de archivos y elija Abrir con ▸ Quorbel.</translation>
    </message>
    <message>
        <source>The Interface</source>
        <translation>La interfaz</translation>
    </message>
    <message>
        <source>The window has three regions:</source>
        <translation>La ventana tiene tres zonas:</translation>
    </message>
    <message>
        <source>Sidebar (left): every photo in the folder. Search and sort by name or date from the controls at the top.</source>
        <translation>Barra lateral (izquierda): todas las fotos de la carpeta. Arriba se puede buscar y ordenar por nombre o fecha.</translation>
    </message>
    <message>
        <source>With subfolders open, each folder has a heading. Click it, or press Return on it, to fold its photos away; ⌥-click folds all. Left goes from a photo to its heading and folds, Right unfolds.</source>
        <translation>Con subcarpetas, cada carpeta tiene un encabezado. Un clic en él, o Retorno, pliega sus fotos; ⌥-clic las pliega todas. Izquierda lleva de una foto a su encabezado y pliega la carpeta; Derecha la despliega.</translation>
    </message>
    <message>
        <source>Preview (center): a large preview column appears as you widen the window, so you always see the photo you&apos;re tagging.</source>
        <translation>Vista previa (centro): al ensanchar la ventana aparece una columna con una vista previa grande, para ver siempre la foto que se está describiendo.</translation>
    </message>
    <message>
        <source>Inspector (right): the editable fields, grouped as Common, Location and read-only Camera details.</source>
        <translation>Inspector (derecha): los campos editables, agrupados en General y Lugar, y los datos de la cámara, de solo lectura.</translation>
    </message>
    <message>
        <source>Quorbel remembers what it read: a folder that you open again is there at once, and only photos that changed are read. View ▸ Read Again (⇧F5) reads all of them anew.</source>
        <translation>Quorbel recuerda lo que ha leído: una carpeta que se vuelve a abrir aparece al instante, y solo se leen las fotos que han cambiado. Ver ▸ Volver a leer (⇧F5) las lee todas de nuevo.</translation>
    </message>
    <message>
        <source>Editing Metadata</source>
        <translation>Editar metadatos</translation>
    </message>
    <message>
        <source>Select a photo and edit its fields in the inspector. Set a title, date, caption or location once and Quorbel writes it to the matching EXIF, IPTC and XMP tags together.</source>
        <translation>Seleccione una foto y edite sus campos en el inspector. Escriba una sola vez un título, una fecha, un pie de foto o un lugar, y Quorbel lo escribe a la vez en las etiquetas EXIF, IPTC y XMP correspondientes.</translation>
    </message>
    <message>
        <source>Use Add Field to pick a recommended standard field, or define a custom one.</source>
        <translation>Añadir campo ofrece los campos estándar recomendados, o permite definir uno propio.</translation>
    </message>
    <message>
        <source>Turn on Show namespace details (Settings) to see exactly which tag each value writes to.</source>
        <translation>Active Mostrar detalles de espacios de nombres (Ajustes) para ver en qué etiqueta se escribe cada valor.</translation>
    </message>
    <message>
        <source>Edited fields are marked until you save.</source>
        <translation>Los campos editados quedan marcados hasta que se guardan.</translation>
    </message>
    <message>
        <source>From Photo to Photo</source>
        <translation>De foto en foto</translation>
    </message>
    <message>
        <source>Captions for many photos need no mouse. The keys work from within any field:</source>
        <translation>Escribir los pies de muchas fotos no requiere ratón. Las teclas funcionan desde cualquier campo:</translation>
    </message>
    <message>
        <source>⌥Down and ⌥Up go to the next and the previous photo. The keyboard stays in the same field, and its text is selected there.</source>
        <translation>⌥Abajo y ⌥Arriba llevan a la foto siguiente y a la anterior. El cursor sigue en el mismo campo, con su texto seleccionado.</translation>
    </message>
    <message>
        <source>⌘Return saves and goes on at once: you type while the last photo is still being written.</source>
        <translation>⌘Retorno guarda y sigue al instante: se puede escribir mientras la última foto aún se está guardando.</translation>
    </message>
    <message>
        <source>Ctrl+&apos; fills the field with what the photo before shows. An empty field there takes nothing away.</source>
        <translation>⌘+&apos; rellena el campo con lo que muestra la foto anterior. Si allí está vacío, no se borra nada.</translation>
    </message>
    <message>
        <source>0 to 5 rate while the list has the keyboard; ⌘⌥0 to ⌘⌥5 rate anywhere, one photo or many.</source>
        <translation>Las teclas 0 a 5 valoran cuando el foco está en la lista; ⌘⌥0 a ⌘⌥5 valoran en cualquier parte, una foto o muchas.</translation>
    </message>
    <message>
        <source>F11, or Space in the list, looks closely: the photo fills the window. A click or Z shows every pixel there, the arrow keys go on to the next photo at the same place, Escape returns.</source>
        <translation>F11, o Espacio en la lista, muestra la foto de cerca: llena la ventana. Un clic o Z muestra allí cada píxel, las flechas pasan a la foto siguiente en el mismo punto, Esc vuelve.</translation>
    </message>
    <message>
        <source>Help ▸ Keyboard Shortcuts (Ctrl+F1) lists all keys.</source>
        <translation>Ayuda ▸ Atajos de teclado (⌘F1) muestra todas las teclas.</translation>
    </message>
    <message>
        <source>Several Languages</source>
        <translation>Varios idiomas</translation>
    </message>
    <message>
        <source>A title, description, copyright notice, event or usage terms can be in several languages in one photo. The field shows the text that every app reads; the others stay with the photo whatever you write there.</source>
        <translation>El título, la descripción, el aviso de copyright, el evento y las condiciones de uso pueden estar en varios idiomas en una misma foto. El campo muestra el texto que leen todas las aplicaciones; los demás se conservan en la foto, se escriba lo que se escriba allí.</translation>
    </message>
    <message>
        <source>A field that has other languages names them at its right end, like “de fr”. Click there, or press ⌥Right in the field, to see and edit them; ⌥Left hides them.</source>
        <translation>Un campo que tiene otros idiomas los indica en su extremo derecho, como «de fr». Haga clic ahí, o pulse ⌥Derecha en el campo, para verlos y editarlos; ⌥Izquierda los oculta.</translation>
    </message>
    <message>
        <source>Add language finds a language by its name; the cross behind a text takes that language away.</source>
        <translation>Añadir idioma encuentra un idioma por su nombre; la cruz detrás de un texto quita ese idioma.</translation>
    </message>
    <message>
        <source>Both count as unsaved until you save, and work for several photos at once.</source>
        <translation>Ambas cosas cuentan como cambios sin guardar hasta que se guarde, y funcionan con varias fotos a la vez.</translation>
    </message>
    <message>
        <source>Keyword Paths</source>
        <translation>Rutas de palabras clave</translation>
    </message>
    <message>
        <source>Many programs keep keywords in a tree, such as Places ▸ France ▸ Paris. Quorbel shows where a keyword stands: in front of it while there are few, and always in its tooltip.</source>
        <translation>Muchos programas organizan las palabras clave en un árbol, como Lugares ▸ Francia ▸ París. Quorbel muestra dónde está una palabra clave: delante de ella mientras haya pocas, y siempre en su descripción emergente.</translation>
    </message>
    <message>
        <source>Type Places &gt; France &gt; Paris, with a blank on each side of the &gt;, or Places|France|Paris. The photo gets the keyword Paris and its place in the tree.</source>
        <translation>Escriba Lugares &gt; Francia &gt; París, con un espacio a cada lado de &gt;, o Lugares|Francia|París. La foto recibe la palabra clave París y su lugar en el árbol.</translation>
    </message>
    <message>
        <source>Suggestions tell the places of a keyword. Type Places| to see what lies below Places.</source>
        <translation>Las sugerencias indican dónde está cada palabra clave en el árbol. Escriba Lugares| para ver qué hay debajo de Lugares.</translation>
    </message>
    <message>
        <source>Take a keyword away, and the paths that lead to it go too, in every place where the photo keeps them. Paths that lead further stay.</source>
        <translation>Al quitar una palabra clave desaparecen también las rutas que llevan a ella, en todos los sitios donde la foto las guarda. Las rutas que siguen más allá se conservan.</translation>
    </message>
    <message>
        <source>Places That Disagree</source>
        <translation>Sitios que difieren</translation>
    </message>
    <message>
        <source>A photo keeps a title or a date in several places, and each program reads the one it knows. When programs changed only some of them, the places differ. A field whose places differ has a mark under it.</source>
        <translation>Una foto guarda un título o una fecha en varios sitios, y cada programa lee el que conoce. Cuando un programa ha cambiado solo algunos, los sitios difieren. Un campo cuyos sitios difieren tiene una marca debajo.</translation>
    </message>
    <message>
        <source>Click the mark to see what each place holds. Use this one makes a text your edit; saving writes it to all places.</source>
        <translation>Haga clic en la marca para ver qué contiene cada sitio. Usar este toma ese texto como cambio; al guardar se escribe en todos los sitios.</translation>
    </message>
    <message>
        <source>View ▸ Show Disagreements (⌘⇧D) lists only photos whose places differ. Quorbel looks at all open photos for that, while you work on.</source>
        <translation>Ver ▸ Mostrar discrepancias (⌘⇧D) muestra solo las fotos cuyos sitios difieren. Para ello, Quorbel examina todas las fotos abiertas mientras se sigue trabajando.</translation>
    </message>
    <message>
        <source>With photos selected, Edit ▸ Make Them Agree writes what each photo shows to all of its places. Undo Save takes it back.</source>
        <translation>Con fotos seleccionadas, Editar ▸ Hacer coincidir escribe en todos los sitios de cada foto lo que esta muestra. Deshacer guardado lo revierte.</translation>
    </message>
    <message>
        <source>Finding Gaps</source>
        <translation>Encontrar huecos</translation>
    </message>
    <message>
        <source>The filter beside the search lists only photos that lack something, have few or many stars, are edited and not saved, or hold a text in any field. Tick several: a photo must fit all. Each count is that of all open photos.</source>
        <translation>El filtro junto a la búsqueda muestra solo las fotos a las que les falta algo, que tienen pocas o muchas estrellas, que están editadas sin guardar, o que contienen un texto en cualquier campo. Se pueden marcar varios: una foto debe cumplirlos todos. Cada cifra se refiere a todas las fotos abiertas.</translation>
    </message>
    <message>
        <source>F8 goes to the next empty field: down the form, then on to the next photo. ⇧F8 goes back. With a filter for empty fields, only those count.</source>
        <translation>F8 lleva al siguiente campo vacío: hacia abajo en el formulario y después a la foto siguiente. ⇧F8 retrocede. Con un filtro de campos vacíos, solo cuentan esos.</translation>
    </message>
    <message>
        <source>A photo that you edit stays listed until it is saved; then the next one takes its place.</source>
        <translation>Una foto que se edita sigue en la lista hasta que se guarda; entonces la siguiente ocupa su lugar.</translation>
    </message>
    <message>
        <source>The cross of a chip, or Delete on it, ends one filter; View ▸ Clear Filters (⌘⇧F) ends all.</source>
        <translation>La cruz de una ficha, o Supr en ella, quita un filtro; Ver ▸ Quitar filtros (⌘⇧F) los quita todos.</translation>
    </message>
    <message>
        <source>IPTC Fields &amp; Field Sets</source>
        <translation>Campos IPTC y conjuntos de campos</translation>
    </message>
    <message>
        <source>Quorbel reads and writes every property of the IPTC Photo Metadata Standard: alternative text, contacts, people, places, releases, licences, what a picture was made with. A photo shows those that it holds; Add Field finds all others, by their names, by what they are for, and by their tags.</source>
        <translation>Quorbel lee y escribe todas las propiedades del IPTC Photo Metadata Standard: texto alternativo, contactos, personas, lugares, autorizaciones, licencias, con qué se hizo una imagen. Una foto muestra las que contiene; Añadir campo encuentra todas las demás por su nombre, su finalidad y sus etiquetas.</translation>
    </message>
    <message>
        <source>View ▸ Field Set chooses what is on screen at once: Captions, Press, Museum, Stock, Rights, Accessibility, or a set of your own. What a photo holds beside the set stays visible, and so does what you edited.</source>
        <translation>Ver ▸ Conjunto de campos elige lo que está a la vista: Pies de foto, Prensa, Museo, Banco de imágenes, Derechos, Accesibilidad, o un conjunto propio. Lo que una foto contiene fuera del conjunto sigue visible, igual que lo que se ha editado.</translation>
    </message>
    <message>
        <source>A set may want fields. Empty ones have a dashed border, the lines of the sections count them, and F8 goes from one to the next, on to the next photo at the end. ⇧F8 goes back.</source>
        <translation>Un conjunto puede pedir campos. Los vacíos tienen un borde discontinuo, los encabezados de las secciones los cuentan, y F8 lleva de uno al siguiente y, al final, a la foto siguiente. ⇧F8 retrocede.</translation>
    </message>
    <message>
        <source>Save What Is on Screen as Set… makes a set of your own; Edit Sets… changes what is in it and what it wants. Sets that come with Quorbel can be copied there.</source>
        <translation>Guardar los campos visibles como conjunto… crea un conjunto propio; Editar conjuntos… cambia lo que contiene y lo que pide. Los conjuntos incluidos en Quorbel se pueden copiar allí.</translation>
    </message>
    <message>
        <source>Default is the form as it was. Once you have chosen a set, or made one, they can be picked at the top of the form, too.</source>
        <translation>«Por defecto» es el formulario de siempre. Después de elegir o crear un conjunto, los conjuntos también se pueden elegir en la parte superior del formulario.</translation>
    </message>
    <message>
        <source>Shifting Times</source>
        <translation>Desplazar la hora</translation>
    </message>
    <message>
        <source>A camera whose clock was wrong leaves wrong times in all of its photos. Select them, and choose Edit ▸ Shift Time.</source>
        <translation>Una cámara con el reloj mal ajustado deja horas equivocadas en todas sus fotos. Selecciónelas y elija Editar ▸ Desplazar la hora.</translation>
    </message>
    <message>
        <source>By an amount: so many days, hours, minutes and seconds later or earlier.</source>
        <translation>Por una cantidad: tantos días, horas, minutos y segundos después o antes.</translation>
    </message>
    <message>
        <source>By a known photo: type when one of the photos was really taken, and all others go by the same amount.</source>
        <translation>Según una foto conocida: escriba cuándo se hizo realmente una de las fotos, y las demás se desplazan lo mismo.</translation>
    </message>
    <message>
        <source>Time zone: sets the zone that the times are in. Keep the clock time, or let it move with the zone. Photos with a position can each get the zone that they were taken in.</source>
        <translation>Zona horaria: establece la zona en que están las horas. Se puede conservar la hora del reloj o dejar que se mueva con la zona. Las fotos con posición pueden recibir cada una la zona en que se hicieron.</translation>
    </message>
    <message>
        <source>The table shows the first photo, the last one, and what becomes another day. Photos without a date are named and left alone. Undo Shift Time takes it back.</source>
        <translation>La tabla muestra la primera foto, la última y lo que cambia de día. Las fotos sin fecha se indican y no se tocan. Deshacer desplazamiento de la hora lo revierte.</translation>
    </message>
    <message>
        <source>Batch Editing</source>
        <translation>Edición por lotes</translation>
    </message>
    <message>
        <source>Select multiple photos to edit them together. Use ⌘A to select all, or ⇧/⌘-click to build a selection.</source>
        <translation>Seleccione varias fotos para editarlas juntas: ⌘A las selecciona todas, ⇧/⌘-clic forma una selección.</translation>
    </message>
    <message>
        <source>Choose which fields to apply, set their values, and Quorbel writes them to every selected photo in one pass.</source>
        <translation>Elija qué campos aplicar, indique sus valores, y Quorbel los escribe en todas las fotos seleccionadas de una sola vez.</translation>
    </message>
    <message>
        <source>List fields (like keywords) are appended across the selection.</source>
        <translation>Los campos de lista (como las palabras clave) se amplían: lo nuevo se añade a lo que ya tiene cada foto seleccionada.</translation>
    </message>
    <message>
        <source>Quorbel confirms before a mass edit unless you&apos;ve turned that prompt off.</source>
        <translation>Quorbel pide confirmación antes de una edición por lotes, salvo que se haya desactivado el aviso.</translation>
    </message>
    <message>
        <source>Below the keywords stand those that the selected photos have, with how many have each. Click one to give it to all of them; its cross takes it away from all with the next save.</source>
        <translation>Debajo de las palabras clave están las que tienen las fotos seleccionadas, con el número de fotos de cada una. Un clic en una la añade a todas las fotos; su cruz la quita de todas la próxima vez que se guarde.</translation>
    </message>
    <message>
        <source>Quick keywords are the last ones you used, or a set of your own: click one, or press Alt+1 to Alt+9. The name of the set is a menu of all sets.</source>
        <translation>Las palabras clave rápidas son las últimas usadas, o un conjunto propio: haga clic en una, o pulse ⌥1 a ⌥9. El nombre del conjunto es un menú de todos los conjuntos.</translation>
    </message>
    <message>
        <source>Copying Fields &amp; Codes</source>
        <translation>Copiar campos y códigos</translation>
    </message>
    <message>
        <source>What one photo says can be given to others, and texts that you type often can have short codes.</source>
        <translation>Los datos de una foto se pueden pasar a otras, y los textos que se escriben a menudo pueden tener códigos cortos.</translation>
    </message>
    <message>
        <source>Edit ▸ Copy Fields (⌘⇧C) takes the fields of the selected photo as you see them. Edit ▸ Paste Fields… (⌘⇧V) shows what they would replace in the selected photos, and pastes those that you tick. Nothing is written before you save.</source>
        <translation>Editar ▸ Copiar campos (⌘⇧C) toma los campos de la foto seleccionada tal como se ven. Editar ▸ Pegar campos… (⌘⇧V) muestra qué reemplazarían en las fotos seleccionadas, y pega los que se marquen. No se escribe nada antes de guardar.</translation>
    </message>
    <message>
        <source>Edit ▸ Paste Fields Again pastes with the same ticks, without asking. What you copied last is there in another window and after a restart, too.</source>
        <translation>Editar ▸ Pegar campos de nuevo pega los mismos campos marcados, sin preguntar. Lo último copiado sigue disponible en otra ventana y tras reiniciar.</translation>
    </message>
    <message>
        <source>Choose a file of codes in Settings: a code, a tab and its text in each line. Then type =js= in a text or keyword, and js becomes its text. One Undo (⌘Z) gives the code back.</source>
        <translation>Elija en Ajustes un archivo de códigos: en cada línea, un código, un tabulador y su texto. Después escriba =js= en un texto o palabra clave, y js se convierte en su texto. Un solo Deshacer (⌘Z) devuelve el código.</translation>
    </message>
    <message>
        <source>A template fills fields of the selected photos with texts that each photo completes: “Race %Counter% off %Place|Zürich%”. Make one in Edit ▸ Templates, or from a photo with Save as Template…</source>
        <translation>Una plantilla rellena campos de las fotos seleccionadas con textos que cada foto completa: «Regata %Counter% frente a %Place|Zürich%». Cree una en Editar ▸ Plantillas, o a partir de una foto con Guardar como plantilla…</translation>
    </message>
    <message>
        <source>⌘1 to ⌘9 apply the templates that have these keys. What they fill in are edits, written when you save.</source>
        <translation>⌘1 a ⌘9 aplican las plantillas que tienen esas teclas. Lo que rellenan son cambios, que se escriben al guardar.</translation>
    </message>
    <message>
        <source>Each field is set, set only if it is empty, or gains the text behind or before its own.</source>
        <translation>En cada campo, el texto se establece siempre, se establece solo si está vacío, o se añade detrás o delante de lo que ya contiene.</translation>
    </message>
    <message>
        <source>Tokens stand for what the photo says: all fields, the camera, %Filename% and %Counter%. Double-click one to give it a form, such as d MMMM yyyy, and a text for photos that lack the value.</source>
        <translation>Las variables representan lo que dice la foto: todos los campos, la cámara, %Filename% y %Counter%. Con doble clic en una se le da un formato, como d MMMM yyyy, y un texto para las fotos sin ese valor.</translation>
    </message>
    <message>
        <source>Each template is a file. Drag one out of the list to pass it on, and drop files in to import them.</source>
        <translation>Cada plantilla es un archivo. Arrástrela fuera de la lista para compartirla, y suelte archivos en ella para importarlos.</translation>
    </message>
    <message>
        <source>Renaming Files</source>
        <translation>Renombrar archivos</translation>
    </message>
    <message>
        <source>Quorbel can rename files from a pattern built out of their own metadata. Open the rename dialog, add token chips and free text, and preview the result before applying.</source>
        <translation>Quorbel puede renombrar archivos según un patrón formado con sus propios metadatos. Abra el diálogo de renombrado, añada variables y texto libre, y compruebe el resultado antes de aplicarlo.</translation>
    </message>
    <message>
        <source>Available tokens:</source>
        <translation>Variables disponibles:</translation>
    </message>
    <message>
        <source>%Date% — date taken</source>
        <extracomment>Tokens, the words between two % signs, stay as they are in every language.</extracomment>
        <translation>%Date% – fecha de captura</translation>
    </message>
    <message>
        <source>%Time% — time taken</source>
        <translation>%Time% – hora de captura</translation>
    </message>
    <message>
        <source>%Title% — title</source>
        <translation>%Title% – título</translation>
    </message>
    <message>
        <source>%Creator% — creator</source>
        <translation>%Creator% – creador</translation>
    </message>
    <message>
        <source>%Place% — place</source>
        <translation>%Place% – lugar</translation>
    </message>
    <message>
        <source>%Original% — the original filename</source>
        <translation>%Original% – el nombre de archivo original</translation>
    </message>
    <message>
        <source>Example: %Date%_%Title% might produce 2026-07-14_Sunset.jpg. Names are kept filesystem-safe and unique automatically.</source>
        <translation>Ejemplo: %Date%_%Title% puede dar 2026-07-14_Atardecer.jpg. Los nombres se mantienen válidos y únicos automáticamente.</translation>
    </message>
    <message>
        <source>Several photos get their names together: select them and choose Rename Photos… in the File menu (Shift+F2). %Counter% numbers them in the order of the list; every other field has a token of its name, too, like %Headline%, and %Title|Untitled% or %Date:yyyyMMdd% say what stands for a missing title, or how a date is written. Names that lack something or were taken are marked. Sidecars, backups and the raw file of a pair go along, and Undo Rename in the Edit menu takes all of it back, also after a restart.</source>
        <translation>Varias fotos reciben sus nombres a la vez: selecciónelas y elija Renombrar fotos… en el menú Archivo (⇧F2). %Counter% las numera en el orden de la lista; cualquier otro campo tiene también una variable con su nombre, como %Headline%, y %Title|Untitled% o %Date:yyyyMMdd% dicen qué sustituye a un título que falta o cómo se escribe una fecha. Los nombres a los que les falta algo, o que ya estaban ocupados, se marcan. Los sidecars, las copias de seguridad y el archivo raw de una pareja se renombran también, y Deshacer renombrado, en el menú Editar, lo revierte todo, incluso tras reiniciar.</translation>
    </message>
    <message>
        <source>Saving &amp; Backups</source>
        <translation>Guardado y copias de seguridad</translation>
    </message>
    <message>
        <source>Your edits are written when you Save (⌘S).</source>
        <translation>Los cambios se escriben al guardar (⌘S).</translation>
    </message>
    <message>
        <source>Originals are backed up before writing (you can turn this off in Settings).</source>
        <translation>Antes de escribir se hace una copia de seguridad de los originales (se puede desactivar en Ajustes).</translation>
    </message>
    <message>
        <source>Quorbel prompts before you switch away with unsaved changes.</source>
        <translation>Quorbel pregunta antes de dejar atrás cambios sin guardar.</translation>
    </message>
    <message>
        <source>Optionally write an XMP sidecar instead of embedding, from Settings.</source>
        <translation>En Ajustes se puede elegir que se escriba un sidecar XMP en lugar de incrustar los metadatos.</translation>
    </message>
    <message>
        <source>Raw Files</source>
        <translation>Archivos raw</translation>
    </message>
    <message>
        <source>Settings ▸ Raw files says where the edits of raw photos go: into the file, as with other photos, or beside it. Beside it, the raw file itself is never written to.</source>
        <translation>Ajustes ▸ Archivos raw dice adónde van los cambios de las fotos raw: al archivo, como en las demás fotos, o junto a él. En este caso, nunca se escribe en el propio archivo raw.</translation>
    </message>
    <message>
        <source>The words then go to an XMP sidecar, which other programs read and write too. The line under the photo’s name says which file that is. DNG has a choice of its own.</source>
        <translation>Los textos van entonces a un sidecar XMP, que otros programas también leen y escriben. La línea debajo del nombre de la foto dice qué archivo es. DNG tiene su propio ajuste.</translation>
    </message>
    <message>
        <source>What the sidecar says stands before what the raw file says, field by field. Where the two differ, the field has a mark; click it to see both.</source>
        <translation>Lo que dice el sidecar tiene preferencia sobre lo que dice el archivo raw, campo por campo. Donde no coinciden, el campo tiene una marca; haga clic en ella para ver ambos valores.</translation>
    </message>
    <message>
        <source>View ▸ Pair Raw and JPEG lists the two files of a shot as one photo. An edit goes to both, each by its own setting, and renaming takes all files of the shot along.</source>
        <translation>Ver ▸ Emparejar raw y JPEG muestra los dos archivos de una toma como una sola foto. Un cambio va a ambos, a cada uno según su ajuste, y al renombrar van juntos todos los archivos de la toma.</translation>
    </message>
    <message>
        <source>File ▸ Write Sidecars Into Photos… and Write Metadata Into Sidecars… move words over for the selected photos. You see first what would change in how many. Undo Save takes it back.</source>
        <translation>Archivo ▸ Escribir sidecars en las fotos… y Escribir metadatos en sidecars… trasladan los textos de las fotos seleccionadas. Antes se ve qué cambiaría y en cuántas. Deshacer guardado lo revierte.</translation>
    </message>
    <message>
        <source>Develop settings, and whatever else other programs keep in a sidecar, stay as they are.</source>
        <translation>Los ajustes de revelado, y todo lo demás que otros programas guardan en un sidecar, quedan como están.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Open Settings from the Quorbel menu (⌘,) to adjust:</source>
        <translation>Abra Ajustes (⌘,) para configurar:</translation>
    </message>
    <message>
        <source>Back up originals before saving.</source>
        <translation>Copia de seguridad de los originales antes de guardar.</translation>
    </message>
    <message>
        <source>Write an XMP sidecar file.</source>
        <translation>Escritura de un archivo sidecar XMP.</translation>
    </message>
    <message>
        <source>Show namespace details for every field.</source>
        <translation>Detalles de espacios de nombres en cada campo.</translation>
    </message>
    <message>
        <source>Confirm before mass edits, and the default rename pattern.</source>
        <translation>Confirmación antes de una edición por lotes, y el patrón de renombrado predeterminado.</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Temas</translation>
    </message>
    <message>
        <source>Quorbel Help</source>
        <translation>Ayuda de Quorbel</translation>
    </message>
    <message>
        <source>Drag a folder or image here</source>
        <translation>Arrastre aquí una carpeta o imagen</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>Abrir carpeta…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>Abrir imagen…</translation>
    </message>
    <message>
        <source>Open with subfolders</source>
        <extracomment>A switch: a folder that is opened is opened with all folders in it.</extracomment>
        <translation>Abrir con subcarpetas</translation>
    </message>
    <message>
        <source>Thumbnail only</source>
        <extracomment>Written on a photo of which nothing larger can be shown.</extracomment>
        <translation>Solo miniatura</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) selected</source>
        <translation>
            <numerusform>%n foto seleccionada</numerusform>
            <numerusform>%n fotos seleccionadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Preview of %1, thumbnail only</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Vista previa de %1, solo miniatura</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Vista previa de %1</translation>
    </message>
    <message numerus="yes">
        <source>Looking at %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were looked at already.</extracomment>
        <translation>
            <numerusform>Examinando %1 de %2 foto…</numerusform>
            <numerusform>Examinando %1 de %2 fotos…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Filling in %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were filled in already: what the program did not know of them yet was read.</extracomment>
        <translation>
            <numerusform>Completando %1 de %2 foto…</numerusform>
            <numerusform>Completando %1 de %2 fotos…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were read already.</extracomment>
        <translation>
            <numerusform>Leyendo %1 de %2 foto…</numerusform>
            <numerusform>Leyendo %1 de %2 fotos…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Renaming %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were renamed already.</extracomment>
        <translation>
            <numerusform>Renombrando %1 de %2 foto…</numerusform>
            <numerusform>Renombrando %1 de %2 fotos…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were saved already.</extracomment>
        <translation>
            <numerusform>Guardando %1 de %2 foto…</numerusform>
            <numerusform>Guardando %1 de %2 fotos…</numerusform>
        </translation>
    </message>
    <message>
        <source>Skip</source>
        <comment>button: goes on without the file</comment>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Stuck at %1</source>
        <extracomment>%1 is the name of a file that takes suspiciously long to be read.</extracomment>
        <translation>Detenido en %1</translation>
    </message>
    <message>
        <source>Looking for photos…</source>
        <translation>Buscando fotos…</translation>
    </message>
    <message>
        <source>Display</source>
        <comment>heading of settings</comment>
        <translation>Interfaz</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>Surte efecto en el próximo inicio.</translation>
    </message>
    <message>
        <source>Show namespace details</source>
        <translation>Mostrar detalles de espacios de nombres</translation>
    </message>
    <message>
        <source>Adds the source tags (EXIF / IPTC / XMP) under each field.</source>
        <translation>Añade las etiquetas de origen (EXIF / IPTC / XMP) debajo de cada campo.</translation>
    </message>
    <message>
        <source>Saving</source>
        <comment>heading of settings</comment>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Back up original before writing</source>
        <translation>Copia de seguridad antes de escribir</translation>
    </message>
    <message>
        <source>Confirm before mass-applying to multiple files</source>
        <translation>Confirmar antes de aplicar a varios archivos</translation>
    </message>
    <message>
        <source>Also write a sidecar .xmp file</source>
        <translation>Escribir también un archivo sidecar .xmp</translation>
    </message>
    <message>
        <source>Mirrors XMP metadata into &lt;name&gt;.xmp next to each image.</source>
        <extracomment>&lt;name&gt; stands for the image&apos;s own.</extracomment>
        <translation>Refleja los metadatos XMP en &lt;name&gt;.xmp junto a cada imagen.</translation>
    </message>
    <message>
        <source>Renaming</source>
        <comment>heading of settings</comment>
        <translation>Renombrado</translation>
    </message>
    <message>
        <source>Filename pattern</source>
        <translation>Patrón de nombre</translation>
    </message>
    <message>
        <source>Tokens: %Date% %Time% %Title% %Creator% %Place% %Original%. The extension is kept automatically.</source>
        <extracomment>What stands between two % signs is typed like this in every language.</extracomment>
        <translation>Variables: %Date% %Time% %Title% %Creator% %Place% %Original%. La extensión se conserva automáticamente.</translation>
    </message>
    <message>
        <source>Strip special characters</source>
        <translation>Quitar caracteres especiales</translation>
    </message>
    <message>
        <source>Keeps only letters and numbers (accents become plain, e.g. Café → Cafe). Off leaves characters like @ and &apos; in place.</source>
        <translation>Conserva solo letras y números (sin acentos, p. ej. Café → Cafe). Desactivado, deja caracteres como @ y &apos; en su sitio.</translation>
    </message>
    <message>
        <source>Raw files</source>
        <translation>Archivos raw</translation>
    </message>
    <message>
        <source>Edits of raw photos</source>
        <translation>Cambios en fotos raw</translation>
    </message>
    <message>
        <source>Edits are written into the raw file, as into other photos.</source>
        <translation>Los cambios se escriben en el archivo raw, como en las demás fotos.</translation>
    </message>
    <message>
        <source>The raw file stays untouched. Other programs find the words in the sidecar.</source>
        <translation>El archivo raw no se toca. Los demás programas encuentran los textos en el sidecar.</translation>
    </message>
    <message>
        <source>Edits of DNG photos</source>
        <translation>Cambios en fotos DNG</translation>
    </message>
    <message>
        <source>DNG is made to hold metadata, so it is written as other photos are.</source>
        <translation>DNG está hecho para contener metadatos, así que se escribe como las demás fotos.</translation>
    </message>
    <message>
        <source>The DNG file stays untouched. Other programs find the words in the sidecar.</source>
        <translation>El archivo DNG no se toca. Los demás programas encuentran los textos en el sidecar.</translation>
    </message>
    <message>
        <source>Into the file</source>
        <extracomment>Where edits of raw photos are written: into the photo&apos;s own file, or into a sidecar that lies beside it.</extracomment>
        <translation>En el archivo</translation>
    </message>
    <message>
        <source>Beside it</source>
        <translation>Junto a él</translation>
    </message>
    <message>
        <source>Write into the file</source>
        <translation>Escribir en el archivo</translation>
    </message>
    <message>
        <source>Write beside it</source>
        <translation>Escribir junto al archivo</translation>
    </message>
    <message>
        <source>Name of new sidecars</source>
        <translation>Nombre de los sidecars nuevos</translation>
    </message>
    <message>
        <source>A sidecar that is already there keeps its name.</source>
        <translation>Un sidecar que ya existe conserva su nombre.</translation>
    </message>
    <message>
        <source>Places</source>
        <comment>heading of settings: towns and sights</comment>
        <translation>Lugares</translation>
    </message>
    <message>
        <source>Online place service</source>
        <translation>Servicio de lugares</translation>
    </message>
    <message>
        <source>Empty: places are looked up on this computer alone. With the https address of a Photon-compatible service, what you type in the Place field is sent there; places known here still come first. Takes effect at the next start.</source>
        <translation>Vacío: los lugares se buscan solo en este equipo. Con la dirección https de un servicio compatible con Photon, lo que se escribe en el campo Lugar se envía allí; los lugares conocidos aquí siguen apareciendo primero. Surte efecto en el próximo inicio.</translation>
    </message>
    <message>
        <source>Code replacements</source>
        <translation>Sustitución de códigos</translation>
    </message>
    <message>
        <source>System</source>
        <comment>appearance: that of the desktop</comment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <comment>appearance</comment>
        <translation>Clara</translation>
    </message>
    <message>
        <source>Dark</source>
        <comment>appearance</comment>
        <translation>Oscura</translation>
    </message>
    <message>
        <source>High contrast</source>
        <comment>appearance</comment>
        <translation>Alto contraste</translation>
    </message>
    <message>
        <source>System</source>
        <comment>language</comment>
        <extracomment>The language of the desktop, in a list of languages.</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Not used: this is no https address.</source>
        <translation>No se usa: no es una dirección https.</translation>
    </message>
    <message>
        <source>Rate</source>
        <extracomment>What a key does: it gives a photo stars.</extracomment>
        <translation>Valorar</translation>
    </message>
    <message>
        <source>In the list of photos</source>
        <translation>En la lista de fotos</translation>
    </message>
    <message>
        <source>Next or previous photo</source>
        <translation>Foto siguiente o anterior</translation>
    </message>
    <message>
        <source>A page further or back</source>
        <translation>Una página adelante o atrás</translation>
    </message>
    <message>
        <source>First or last photo</source>
        <translation>Primera o última foto</translation>
    </message>
    <message>
        <source>Select up to there</source>
        <translation>Seleccionar hasta ahí</translation>
    </message>
    <message>
        <source>Go there without selecting</source>
        <translation>Ir ahí sin seleccionar</translation>
    </message>
    <message>
        <source>Add to the selection, or take out</source>
        <translation>Añadir a la selección o quitar de ella</translation>
    </message>
    <message>
        <source>Look closely</source>
        <translation>Ver de cerca</translation>
    </message>
    <message>
        <source>Open in the default application</source>
        <translation>Abrir en la aplicación predeterminada</translation>
    </message>
    <message>
        <source>Find by the beginning of the name</source>
        <translation>Buscar por el principio del nombre</translation>
    </message>
    <message>
        <source>Fold or unfold a folder</source>
        <translation>Plegar o desplegar una carpeta</translation>
    </message>
    <message>
        <source>Fold or unfold all folders</source>
        <translation>Plegar o desplegar todas las carpetas</translation>
    </message>
    <message>
        <source>Looking closely</source>
        <translation>Al ver de cerca</translation>
    </message>
    <message>
        <source>Next or previous photo, at the same place</source>
        <translation>Foto siguiente o anterior, en el mismo punto</translation>
    </message>
    <message>
        <source>Every pixel, or the whole photo</source>
        <translation>Cada píxel, o la foto entera</translation>
    </message>
    <message>
        <source>Larger or smaller</source>
        <translation>Más grande o más pequeña</translation>
    </message>
    <message>
        <source>Move the photo across</source>
        <translation>Mover la foto a los lados</translation>
    </message>
    <message>
        <source>Move the photo up or down</source>
        <translation>Mover la foto arriba o abajo</translation>
    </message>
    <message>
        <source>In a field</source>
        <translation>En un campo</translation>
    </message>
    <message>
        <source>Show its other languages, or add one</source>
        <translation>Mostrar sus otros idiomas, o añadir uno</translation>
    </message>
    <message>
        <source>Hide its other languages</source>
        <translation>Ocultar sus otros idiomas</translation>
    </message>
    <message>
        <source>In the keywords</source>
        <translation>En las palabras clave</translation>
    </message>
    <message>
        <source>Add what was typed</source>
        <translation>Añadir lo escrito</translation>
    </message>
    <message>
        <source>From the entry to the last keyword</source>
        <translation>Del texto a la última palabra clave</translation>
    </message>
    <message>
        <source>Take that keyword away</source>
        <translation>Quitar esa palabra clave</translation>
    </message>
    <message>
        <source>On the stars</source>
        <translation>En las estrellas</translation>
    </message>
    <message>
        <source>One star more or fewer</source>
        <translation>Una estrella más o menos</translation>
    </message>
    <message>
        <source>While searching</source>
        <translation>Al buscar</translation>
    </message>
    <message>
        <source>Go to what was found</source>
        <translation>Ir a lo encontrado</translation>
    </message>
    <message>
        <source>Show all photos again</source>
        <translation>Mostrar de nuevo todas las fotos</translation>
    </message>
    <message>
        <source>In a sheet</source>
        <translation>En un diálogo</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>This folder does not report changes; %1 looks every few seconds.</source>
        <extracomment>%1 is the program.</extracomment>
        <translation>Esta carpeta no avisa de los cambios; %1 la comprueba cada pocos segundos.</translation>
    </message>
    <message>
        <source>Not all of these folders report changes; %1 looks every few seconds.</source>
        <extracomment>%1 is the program.</extracomment>
        <translation>No todas estas carpetas avisan de los cambios; %1 las comprueba cada pocos segundos.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of %2 folders report changes. Refresh to see what changed in the others.</source>
        <extracomment>Of %2 folders, only %1 do.</extracomment>
        <translation>
            <numerusform>Carpetas que avisan de los cambios: solo %1 de %2. Actualice para ver qué ha cambiado en las demás.</numerusform>
            <numerusform>Carpetas que avisan de los cambios: solo %1 de %2. Actualice para ver qué ha cambiado en las demás.</numerusform>
        </translation>
    </message>
    <message>
        <source>Refresh folder</source>
        <translation>Actualizar la carpeta</translation>
    </message>
    <message>
        <source>Show preview</source>
        <translation>Mostrar vista previa</translation>
    </message>
    <message>
        <source>Hide preview</source>
        <translation>Ocultar vista previa</translation>
    </message>
    <message>
        <source>Back up originals before writing</source>
        <translation>Copia de seguridad antes de escribir</translation>
    </message>
    <message>
        <source>Also write sidecar .xmp</source>
        <translation>Escribir también un sidecar .xmp</translation>
    </message>
    <message>
        <source>Left as they are, because they could not be read: %1</source>
        <translation>Sin cambios, por no haberse podido leer: %1</translation>
    </message>
    <message>
        <source>keeps changing</source>
        <translation>cambia sin cesar</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>el archivo no existe</translation>
    </message>
    <message>
        <source>ExifTool told nothing of it</source>
        <translation>ExifTool no devolvió nada</translation>
    </message>
    <message>
        <source>Could not be read (%1)</source>
        <extracomment>%1 is the reason: &quot;took too long&quot;</extracomment>
        <translation>No se pudo leer (%1)</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Volver a intentarlo</translation>
    </message>
    <message>
        <source>Some fields could not be read (%1)</source>
        <extracomment>%1 is the reason: &quot;took too long&quot;</extracomment>
        <translation>Algunos campos no se pudieron leer (%1)</translation>
    </message>
    <message>
        <source>Some fields could not be read</source>
        <translation>Algunos campos no se pudieron leer</translation>
    </message>
    <message>
        <source>“Some fields could not be read” stands under a photo’s name where that is so. Until Try again has read them, they cannot be edited: what nobody has seen is not written over.</source>
        <translation>«Algunos campos no se pudieron leer» aparece bajo el nombre de una foto cuando así ocurre. Hasta que «Volver a intentarlo» los haya leído, no se pueden editar: lo que nadie ha visto no se sobrescribe.</translation>
    </message>
</context>
</TS>
