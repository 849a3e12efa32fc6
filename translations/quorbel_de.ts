<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Quorbel::Texts</name>
    <message>
        <source>ExifTool could not be found in the app bundle. Metadata cannot be read or written.</source>
        <translation>ExifTool fehlt im Programmpaket. Metadaten können weder gelesen noch geschrieben werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%n Foto</numerusform>
            <numerusform>%n Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n folder(s)</source>
        <extracomment>%1 is a number of photos: &quot;12 photos in 3 folders&quot;</extracomment>
        <translation>
            <numerusform>%1 in %n Ordner</numerusform>
            <numerusform>%1 in %n Ordnern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n angezeigt</numerusform>
            <numerusform>%n angezeigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n ausgewählt</numerusform>
            <numerusform>%n ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>No supported images were found.</source>
        <translation>Es wurden keine unterstützten Bilder gefunden.</translation>
    </message>
    <message>
        <source>“%1” could no longer be found.</source>
        <translation>„%1“ wurde nicht mehr gefunden.</translation>
    </message>
    <message>
        <source>“%1” was removed by another program. Its unsaved changes are kept: Edit ▸ Bring Back Edits.</source>
        <translation>„%1“ wurde von einem anderen Programm entfernt. Die ungespeicherten Änderungen bleiben erhalten: Bearbeiten ▸ Änderungen zurückholen.</translation>
    </message>
    <message>
        <source>“%1” was removed by another program.</source>
        <translation>„%1“ wurde von einem anderen Programm entfernt.</translation>
    </message>
    <message>
        <source>The places of these photos’ fields could not be read: %1</source>
        <extracomment>%1 names photos</extracomment>
        <translation>Die Stellen der Felder dieser Fotos konnten nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The places of the selected photos’ fields agree already.</source>
        <translation>In den ausgewählten Fotos stimmen die Stellen der Felder schon überein.</translation>
    </message>
    <message>
        <source>The unsaved changes come back as soon as their photos are read.</source>
        <translation>Die ungespeicherten Änderungen kommen zurück, sobald ihre Fotos gelesen sind.</translation>
    </message>
    <message>
        <source>Not here any more: %1. The unsaved changes are kept.</source>
        <extracomment>%1 names photos</extracomment>
        <translation>Nicht mehr vorhanden: %1. Die ungespeicherten Änderungen bleiben erhalten.</translation>
    </message>
    <message>
        <source>%1 could no longer be found. The unsaved changes are kept.</source>
        <extracomment>%1 names photos</extracomment>
        <translation>Nicht mehr gefunden: %1. Die ungespeicherten Änderungen bleiben erhalten.</translation>
    </message>
    <message>
        <source>A file name cannot hold “/”.</source>
        <translation>Ein Dateiname kann kein „/“ enthalten.</translation>
    </message>
    <message>
        <source>Could not rename: %1</source>
        <translation>Umbenennen fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Could not rename: “%1” is being saved.</source>
        <translation>Umbenennen fehlgeschlagen: „%1“ wird gerade gespeichert.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>the end of a list: &quot;a.jpg, b.jpg and c.jpg&quot;
----------
The end of a list of names: %1 is those before, with commas between them, %2 the last one.</extracomment>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>Save without %1</source>
        <extracomment>%1 are parts of a file that take no text: &quot;EXIF and IPTC&quot;</extracomment>
        <translation>Ohne %1 speichern</translation>
    </message>
    <message>
        <source>different items</source>
        <translation>verschiedene Einträge</translation>
    </message>
    <message numerus="yes">
        <source>%n different texts</source>
        <translation>
            <numerusform>%n anderer Text</numerusform>
            <numerusform>%n verschiedene Texte</numerusform>
        </translation>
    </message>
    <message>
        <source>emptied</source>
        <extracomment>said of a field whose text is taken away</extracomment>
        <translation>geleert</translation>
    </message>
    <message>
        <source>%1 in %2 of %3</source>
        <extracomment>%1 is what stands in a field (&quot;3 different texts&quot;), %2 and %3 count photos: &quot;“Zoë” in 2 of 12&quot;</extracomment>
        <translation>%1 in %2 von %3</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>Bildtexte</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>Presse</translation>
    </message>
    <message>
        <source>Museum</source>
        <translation>Museum</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Bildagentur</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Rechte</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Barrierefreiheit</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>A set needs a name</source>
        <translation>Ein Satz braucht einen Namen</translation>
    </message>
    <message>
        <source>There are two sets named “%1”</source>
        <translation>Es gibt zwei Sätze namens „%1“</translation>
    </message>
    <message>
        <source>“%1” has no fields</source>
        <translation>„%1“ hat keine Felder</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has|have) Content Credentials: other programs will report (it|them) as changed.</source>
        <translation>
            <numerusform>%n Foto hat Content Credentials: Andere Programme werden es als verändert melden.</numerusform>
            <numerusform>%n Fotos haben Content Credentials: Andere Programme werden sie als verändert melden.</numerusform>
        </translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>dauerte zu lange</translation>
    </message>
    <message>
        <source>its name is not UTF-8</source>
        <extracomment>why a file cannot be read, in brackets behind its name</extracomment>
        <translation>sein Name ist nicht UTF-8</translation>
    </message>
    <message>
        <source>Could not read metadata: %1</source>
        <translation>Metadaten konnten nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>broken link</source>
        <extracomment>why a file cannot be read, in brackets behind its name</extracomment>
        <translation>defekter Link</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>of a file</comment>
        <translation>leer</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) could not be read and (was|were) left out: %1</source>
        <extracomment>%1 names the files, with the reasons</extracomment>
        <translation>
            <numerusform>%n Datei konnte nicht gelesen werden und wurde ausgelassen: %1</numerusform>
            <numerusform>%n Dateien konnten nicht gelesen werden und wurden ausgelassen: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar(s) could not be read, and (its photo is|their photos are) shown without (it|them): %1</source>
        <extracomment>%1 names the sidecars, with the reasons</extracomment>
        <translation>
            <numerusform>%n Sidecar konnte nicht gelesen werden; sein Foto wird ohne es angezeigt: %1</numerusform>
            <numerusform>%n Sidecars konnten nicht gelesen werden; ihre Fotos werden ohne sie angezeigt: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Started again at the top</source>
        <translation>Wieder am Anfang begonnen</translation>
    </message>
    <message>
        <source>Started again at the end</source>
        <translation>Wieder am Ende begonnen</translation>
    </message>
    <message>
        <source>No gaps left</source>
        <translation>Keine Lücken mehr</translation>
    </message>
    <message>
        <source>No gaps left · %1 not read yet</source>
        <translation>Keine Lücken mehr · %1 noch nicht gelesen</translation>
    </message>
    <message>
        <source>It keeps its name.</source>
        <translation>Der Name bleibt.</translation>
    </message>
    <message>
        <source>All photos keep their names.</source>
        <translation>Alle Fotos behalten ihren Namen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s) keep their names.</source>
        <translation>
            <numerusform>Der Name bleibt bei %1 von %n Foto.</numerusform>
            <numerusform>Der Name bleibt bei %1 von %n Fotos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not rename: %1: %2.</source>
        <extracomment>%1 is the photo, %2 why</extracomment>
        <translation>Umbenennen fehlgeschlagen: %1: %2.</translation>
    </message>
    <message>
        <source>Could not rename: %1. %2</source>
        <translation>Umbenennen fehlgeschlagen: %1. %2</translation>
    </message>
    <message>
        <source>Could not undo the rename: %1. %2</source>
        <translation>Das Umbenennen ließ sich nicht rückgängig machen: %1. %2</translation>
    </message>
    <message>
        <source>another Quorbel is undoing one at this moment</source>
        <translation>eine andere Quorbel-Instanz macht gerade etwas rückgängig</translation>
    </message>
    <message>
        <source>it was undone already</source>
        <translation>es wurde schon rückgängig gemacht</translation>
    </message>
    <message>
        <source>Undo Save</source>
        <translation>Speichern rückgängig machen</translation>
    </message>
    <message>
        <source>Undo Shift Time of “%1”</source>
        <translation>Zeitverschiebung rückgängig machen: „%1“</translation>
    </message>
    <message numerus="yes">
        <source>Undo Shift Time of %n photo(s)</source>
        <translation>
            <numerusform>Zeitverschiebung rückgängig machen: %n Foto</numerusform>
            <numerusform>Zeitverschiebung rückgängig machen: %n Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo Save of “%1”</source>
        <translation>Speichern rückgängig machen: „%1“</translation>
    </message>
    <message numerus="yes">
        <source>Undo Save of %n photo(s)</source>
        <translation>
            <numerusform>Speichern rückgängig machen: %n Foto</numerusform>
            <numerusform>Speichern rückgängig machen: %n Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not undo the shift of time: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>Die Zeitverschiebung ließ sich nicht rückgängig machen: %1</translation>
    </message>
    <message>
        <source>Could not undo the save: %1</source>
        <translation>Das Speichern ließ sich nicht rückgängig machen: %1</translation>
    </message>
    <message numerus="yes">
        <source>Could not undo the shift of time of %n photo(s): %1</source>
        <extracomment>%1 names the photos, with the reasons</extracomment>
        <translation>
            <numerusform>Die Zeitverschiebung von %n Foto ließ sich nicht rückgängig machen: %1</numerusform>
            <numerusform>Die Zeitverschiebung von %n Fotos ließ sich nicht rückgängig machen: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not undo the save of %n photo(s): %1</source>
        <translation>
            <numerusform>Das Speichern von %n Foto ließ sich nicht rückgängig machen: %1</numerusform>
            <numerusform>Das Speichern von %n Fotos ließ sich nicht rückgängig machen: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not undone: %n photo(s) changed since and (was|were) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>Nicht rückgängig gemacht: %n Foto hat sich seither geändert und blieb, wie es ist: %1</numerusform>
            <numerusform>Nicht rückgängig gemacht: %n Fotos haben sich seither geändert und blieben, wie sie sind: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone, but %n photo(s) changed since and (was|were) left alone: %1</source>
        <translation>
            <numerusform>Rückgängig gemacht, aber %n Foto hat sich seither geändert und blieb, wie es ist: %1</numerusform>
            <numerusform>Rückgängig gemacht, aber %n Fotos haben sich seither geändert und blieben, wie sie sind: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone, but not every value of %n photo(s) could be put back as it was: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>Rückgängig gemacht, aber in %n Foto ließ sich nicht jeder Wert wiederherstellen: %1</numerusform>
            <numerusform>Rückgängig gemacht, aber in %n Fotos ließ sich nicht jeder Wert wiederherstellen: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>what it holds could not be read</source>
        <translation>der Inhalt konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>reading it back took too long</source>
        <translation>das Zurücklesen dauerte zu lange</translation>
    </message>
    <message>
        <source>cannot be read any more</source>
        <translation>nicht mehr lesbar</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s) differed between IPTC and XMP and were brought together: %2</source>
        <extracomment>%1 is a field that holds a list (&quot;Keywords&quot;), %2 names the photos</extracomment>
        <translation>
            <numerusform>%1: In %n Foto wichen IPTC und XMP voneinander ab und wurden zusammengeführt: %2</numerusform>
            <numerusform>%1: In %n Fotos wichen IPTC und XMP voneinander ab und wurden zusammengeführt: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not save %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with the reasons</extracomment>
        <translation>
            <numerusform>Speichern fehlgeschlagen bei %1 von %n Foto: %2</numerusform>
            <numerusform>Speichern fehlgeschlagen bei %1 von %n Fotos: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <extracomment>%1 is why something was not written, %2 names photos: &quot;not a whole number: “abc” in a.jpg, b.jpg&quot;</extracomment>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>not written</source>
        <translation>nicht geschrieben</translation>
    </message>
    <message>
        <source>not written: %1</source>
        <translation>nicht geschrieben: %1</translation>
    </message>
    <message>
        <source>%1 refused: %2</source>
        <extracomment>%1 is a part of the file that takes no text (&quot;EXIF&quot;), %2 why: &quot;EXIF refused: Bad format&quot;</extracomment>
        <translation>%1 abgelehnt: %2</translation>
    </message>
    <message>
        <source>Nothing was written: %1</source>
        <extracomment>%1 names fields</extracomment>
        <translation>Nichts wurde geschrieben: %1</translation>
    </message>
    <message numerus="yes">
        <source>Saved, but %n field(s) (reads|read) back differently: %1</source>
        <extracomment>%1 names the fields</extracomment>
        <translation>
            <numerusform>Gespeichert, aber %n Feld enthält beim Zurücklesen etwas anderes: %1</numerusform>
            <numerusform>Gespeichert, aber %n Felder enthalten beim Zurücklesen etwas anderes: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Saved, but IPTC was left alone in photos that have several blocks of it: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>Gespeichert, nur IPTC blieb unverändert in Fotos mit mehreren IPTC-Blöcken: %1</translation>
    </message>
    <message>
        <source>Not brought up to date: %1</source>
        <extracomment>%1 names files beside photos, with the reasons</extracomment>
        <translation>Nicht auf den neuen Stand gebracht: %1</translation>
    </message>
    <message>
        <source>Could not save: %1</source>
        <translation>Speichern fehlgeschlagen: %1</translation>
    </message>
    <message numerus="yes">
        <source>Edits go to %n sidecars</source>
        <translation>
            <numerusform>Änderungen gehen in %n Sidecar</numerusform>
            <numerusform>Änderungen gehen in %n Sidecars</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Edits of %n photo(s) go to sidecars</source>
        <translation>
            <numerusform>Änderungen an %n Foto gehen in Sidecars</numerusform>
            <numerusform>Änderungen an %n Fotos gehen in Sidecars</numerusform>
        </translation>
    </message>
    <message>
        <source>Edits go to %1</source>
        <extracomment>%1 is a file, or two</extracomment>
        <translation>Änderungen gehen in %1</translation>
    </message>
    <message numerus="yes">
        <source>Edits of %n photo(s) go to %1</source>
        <translation>
            <numerusform>Änderungen an %n Foto gehen in %1</numerusform>
            <numerusform>Änderungen an %n Fotos gehen in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>it is not there any more</source>
        <translation>es ist nicht mehr da</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (keeps|keep) what the sidecar holds otherwise than the file: nothing in a sidecar is replaced.</source>
        <translation>
            <numerusform>%n Foto behält, was im Sidecar anders steht als in der Datei: In einem Sidecar wird nichts ersetzt.</numerusform>
            <numerusform>%n Fotos behalten, was im Sidecar anders steht als in der Datei: In einem Sidecar wird nichts ersetzt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (needs|need) nothing.</source>
        <translation>
            <numerusform>Bei %n Foto ist nichts zu tun.</numerusform>
            <numerusform>Bei %n Fotos ist nichts zu tun.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has|have) no sidecar: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n Foto hat kein Sidecar: %1</numerusform>
            <numerusform>%n Fotos haben kein Sidecar: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (shares its name with a raw photo, whose sidecar it is|share their names with raw photos, whose sidecars they are): %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n Foto heißt wie ein Raw-Foto, zu dem das Sidecar gehört: %1</numerusform>
            <numerusform>%n Fotos heißen wie Raw-Fotos, zu denen die Sidecars gehören: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (is no raw photo|are no raw photos): %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n Foto ist kein Raw-Foto: %1</numerusform>
            <numerusform>%n Fotos sind keine Raw-Fotos: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Read-only, and left alone: %1</source>
        <extracomment>%1 names files</extracomment>
        <translation>Schreibgeschützt, daher unverändert: %1</translation>
    </message>
    <message>
        <source>Could not be read, and left alone: %1</source>
        <extracomment>%1 names files, with the reasons</extracomment>
        <translation>Nicht lesbar, daher unverändert: %1</translation>
    </message>
    <message>
        <source>Not written, because it would not be the same there: %1</source>
        <extracomment>%1 names photos, with the fields</extracomment>
        <translation>Nicht geschrieben, weil es dort nicht dasselbe wäre: %1</translation>
    </message>
    <message>
        <source>%1 (reading took too long)</source>
        <extracomment>%1 is a photo</extracomment>
        <translation>%1 (das Lesen dauerte zu lange)</translation>
    </message>
    <message>
        <source>Cannot export the template “%1”</source>
        <translation>Die Vorlage „%1“ lässt sich nicht exportieren</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>Neue Vorlage</translation>
    </message>
    <message>
        <source>Not filled in: %1</source>
        <extracomment>%1 names fields, and why a text cannot stand in them</extracomment>
        <translation>Nicht ausgefüllt: %1</translation>
    </message>
    <message>
        <source>Could not set the zone: %1</source>
        <translation>Setzen der Zone fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Could not shift the time: %1</source>
        <translation>Zeitverschiebung fehlgeschlagen: %1</translation>
    </message>
    <message numerus="yes">
        <source>Could not set the zone of %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with the reasons</extracomment>
        <translation>
            <numerusform>Setzen der Zone fehlgeschlagen bei %1 von %n Foto: %2</numerusform>
            <numerusform>Setzen der Zone fehlgeschlagen bei %1 von %n Fotos: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not shift the time of %1 of %n photos: %2</source>
        <translation>
            <numerusform>Zeitverschiebung fehlgeschlagen bei %1 von %n Foto: %2</numerusform>
            <numerusform>Zeitverschiebung fehlgeschlagen bei %1 von %n Fotos: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Times read back differently in %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with tags</extracomment>
        <translation>
            <numerusform>Zeiten beim Zurücklesen anders in %1 von %n Foto: %2</numerusform>
            <numerusform>Zeiten beim Zurücklesen anders in %1 von %n Fotos: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone for want of a time zone: %1</source>
        <extracomment>%1 names photos</extracomment>
        <translation>Mangels Zeitzone unverändert: %1</translation>
    </message>
    <message>
        <source>Dates without a full day and time were left alone: %1</source>
        <extracomment>%1 names photos, with tags</extracomment>
        <translation>Datumsangaben ohne vollständigen Tag und Uhrzeit blieben unverändert: %1</translation>
    </message>
    <message>
        <source>Taken</source>
        <comment>of a photo</comment>
        <extracomment>names of rows: when the only photo, or the first and the last one, was taken</extracomment>
        <translation>Aufgenommen</translation>
    </message>
    <message>
        <source>First</source>
        <comment>of some photos</comment>
        <translation>Erstes</translation>
    </message>
    <message>
        <source>Last</source>
        <comment>of some photos</comment>
        <translation>Letztes</translation>
    </message>
    <message numerus="yes">
        <source>%n had no zone</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n ohne Zone</numerusform>
            <numerusform>%n ohne Zone</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n on a new day</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n an anderem Tag</numerusform>
            <numerusform>%n an anderem Tag</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no date and is|have no date and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n Foto ohne Datum bleibt unverändert: %1</numerusform>
            <numerusform>%n Fotos ohne Datum bleiben unverändert: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has an odd date and is|have odd dates and are) left alone: %1</source>
        <extracomment>%1 names the photos, with their dates</extracomment>
        <translation>
            <numerusform>%n Foto mit ungewöhnlichem Datum bleibt unverändert: %1</numerusform>
            <numerusform>%n Fotos mit ungewöhnlichem Datum bleiben unverändert: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no time zone to come from and is|have no time zone to come from and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n Foto ohne bisherige Zeitzone bleibt unverändert: %1</numerusform>
            <numerusform>%n Fotos ohne bisherige Zeitzone bleiben unverändert: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no position in a time zone and is|have no position in a time zone and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n Foto ohne Position in einer Zeitzone bleibt unverändert: %1</numerusform>
            <numerusform>%n Fotos ohne Position in einer Zeitzone bleiben unverändert: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The one position lies in this zone.</source>
        <translation>Die einzige Position liegt in dieser Zone.</translation>
    </message>
    <message>
        <source>The one position lies in another zone.</source>
        <translation>Die einzige Position liegt in einer anderen Zone.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n positions lie in this zone.</source>
        <translation>
            <numerusform>%1 von %n Position in dieser Zone.</numerusform>
            <numerusform>%1 von %n Positionen in dieser Zone.</numerusform>
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
        <translation>%1 früher</translation>
    </message>
    <message>
        <source>%1 later</source>
        <translation>%1 später</translation>
    </message>
    <message>
        <source>Each photo’s own</source>
        <translation>Für jedes Foto die eigene</translation>
    </message>
    <message>
        <source>Whole numbers, of a hundred years at most.</source>
        <translation>Ganze Zahlen, höchstens hundert Jahre.</translation>
    </message>
    <message>
        <source>This photo has no date: choose another one.</source>
        <translation>Dieses Foto hat kein Datum: bitte ein anderes wählen.</translation>
    </message>
    <message>
        <source>Not a date: YYYY-MM-DD HH:MM:SS</source>
        <translation>Kein Datum: YYYY-MM-DD HH:MM:SS</translation>
    </message>
    <message>
        <source>Could not shift the time: where edits of raw files go was changed in the settings meanwhile</source>
        <translation>Zeitverschiebung fehlgeschlagen: Wohin Änderungen an Raw-Dateien gehen, wurde inzwischen in den Einstellungen geändert</translation>
    </message>
    <message>
        <source>“%1” is not there any more.</source>
        <translation>„%1“ ist nicht mehr da.</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>“%1” is too large for a list of codes.</source>
        <translation>„%1“ ist zu groß für eine Kürzelliste.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>„%1“ ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>“%1” has no fields to copy.</source>
        <translation>„%1“ hat keine Felder zum Kopieren.</translation>
    </message>
    <message>
        <source>The texts of “%1” are too long to be copied.</source>
        <translation>Die Texte von „%1“ sind zu lang zum Kopieren.</translation>
    </message>
    <message>
        <source>These fields were copied by a newer version of Quorbel.</source>
        <translation>Diese Felder wurden von einer neueren Version von Quorbel kopiert.</translation>
    </message>
    <message>
        <source>No fields were copied yet. Edit ▸ Copy Fields takes those of the selected photo.</source>
        <translation>Es wurden noch keine Felder kopiert. Bearbeiten ▸ Felder kopieren nimmt die des ausgewählten Fotos.</translation>
    </message>
    <message>
        <source>There is a set of this name already</source>
        <translation>Einen Satz dieses Namens gibt es schon</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <extracomment>%1 is a version like 1.2, %2 a number that says which build of it this is.</extracomment>
        <translation>Version %1 (Build %2)</translation>
    </message>
    <message>
        <source>© 2026 The Quorbel developers. Free software under the MIT License.</source>
        <translation>© 2026 Die Quorbel-Entwickler. Freie Software unter der MIT-Lizenz.</translation>
    </message>
    <message>
        <source>Reads and writes photos with ExifTool by Phil Harvey (Artistic License or GPL). Built with Qt %1 (LGPL 3), LibRaw (LGPL 2.1 or CDDL), libheif (LGPL 3), libjxl (BSD), OpenJPEG (BSD) and Little CMS (MIT).</source>
        <translation>Liest und schreibt Fotos mit ExifTool von Phil Harvey (Artistic License oder GPL). Erstellt mit Qt %1 (LGPL 3), LibRaw (LGPL 2.1 oder CDDL), libheif (LGPL 3), libjxl (BSD), OpenJPEG (BSD) und Little CMS (MIT).</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>About Quorbel</source>
        <translation>Über Quorbel</translation>
    </message>
    <message>
        <source>Field &amp;Set</source>
        <translation>&amp;Feldsatz</translation>
    </message>
    <message>
        <source>Save What Is on Screen as Set…</source>
        <translation>Sichtbare Felder als Satz speichern…</translation>
    </message>
    <message>
        <source>Edit Sets…</source>
        <translation>Sätze bearbeiten…</translation>
    </message>
    <message>
        <source>N&amp;o Stars</source>
        <translation>&amp;Keine Sterne</translation>
    </message>
    <message numerus="yes">
        <source>&amp;%n Star(s)</source>
        <translation>
            <numerusform>&amp;%n Stern</numerusform>
            <numerusform>&amp;%n Sterne</numerusform>
        </translation>
    </message>
    <message>
        <source>Save and Ne&amp;xt Photo</source>
        <translation>Speichern und &amp;nächstes Foto</translation>
    </message>
    <message>
        <source>Same as Photo Be&amp;fore</source>
        <translation>&amp;Wie voriges Foto</translation>
    </message>
    <message>
        <source>Rati&amp;ng</source>
        <translation>&amp;Bewertung</translation>
    </message>
    <message>
        <source>Ne&amp;xt Photo</source>
        <translation>&amp;Nächstes Foto</translation>
    </message>
    <message>
        <source>Previ&amp;ous Photo</source>
        <translation>&amp;Voriges Foto</translation>
    </message>
    <message>
        <source>&amp;Look Closely</source>
        <translation>&amp;Genau ansehen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu: what concerns files and the program.</extracomment>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open with Su&amp;bfolders…</source>
        <translation>Mit &amp;Unterordnern öffnen…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Um&amp;benennen…</translation>
    </message>
    <message>
        <source>Rename P&amp;hotos…</source>
        <translation>Fotos u&amp;mbenennen…</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>&amp;Close Folder</source>
        <translation>&amp;Ordner schließen</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>Einste&amp;llungen…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Been&amp;den</translation>
    </message>
    <message>
        <source>Write Sidecars &amp;Into Photos…</source>
        <translation>Sidecars &amp;in Fotos schreiben…</translation>
    </message>
    <message>
        <source>Write &amp;Metadata Into Sidecars…</source>
        <translation>M&amp;etadaten in Sidecars schreiben…</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <comment>verb: empty it</comment>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu: what changes photos and texts.</extracomment>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Undo Sa&amp;ve</source>
        <translation>&amp;Speichern rückgängig machen</translation>
    </message>
    <message>
        <source>Und&amp;o Rename</source>
        <translation>&amp;Umbenennen rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Bring Back Edits</source>
        <translation>Änderungen &amp;zurückholen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>A&amp;lles auswählen</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <extracomment>A verb.</extracomment>
        <translation>Su&amp;chen</translation>
    </message>
    <message>
        <source>S&amp;hift Time…</source>
        <translation>Zeit verschiebe&amp;n…</translation>
    </message>
    <message>
        <source>Make Them A&amp;gree</source>
        <extracomment>Them: the places of a photo that should hold the same.</extracomment>
        <translation>Werte an&amp;gleichen</translation>
    </message>
    <message>
        <source>Copy Fi&amp;elds</source>
        <translation>&amp;Felder kopieren</translation>
    </message>
    <message>
        <source>Paste Fiel&amp;ds…</source>
        <translation>Felder e&amp;infügen…</translation>
    </message>
    <message>
        <source>Paste Fields Aga&amp;in</source>
        <translation>Fel&amp;der erneut einfügen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu: what is on screen.</extracomment>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Show &amp;preview</source>
        <translation>Vors&amp;chau einblenden</translation>
    </message>
    <message>
        <source>Show &amp;Disagreements</source>
        <translation>&amp;Abweichungen anzeigen</translation>
    </message>
    <message>
        <source>Show &amp;namespace details</source>
        <translation>Namens&amp;raum-Details anzeigen</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>Erneut e&amp;inlesen</translation>
    </message>
    <message>
        <source>Pair Raw and &amp;JPEG</source>
        <translation>Raw und &amp;JPEG koppeln</translation>
    </message>
    <message>
        <source>Next &amp;Gap</source>
        <translation>Nächste &amp;Lücke</translation>
    </message>
    <message>
        <source>Previo&amp;us Gap</source>
        <translation>V&amp;orige Lücke</translation>
    </message>
    <message>
        <source>Clear &amp;Filters</source>
        <translation>Filter a&amp;ufheben</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Quorbel &amp;Help</source>
        <translation>Quorbel-&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Nach &amp;Updates suchen…</translation>
    </message>
    <message>
        <source>&amp;About Quorbel</source>
        <translation>Ü&amp;ber Quorbel</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Apply to %n</source>
        <comment>photos</comment>
        <translation>
            <numerusform>Auf %n an&amp;wenden</numerusform>
            <numerusform>Auf %n an&amp;wenden</numerusform>
        </translation>
    </message>
    <message>
        <source>Hide &amp;preview</source>
        <translation>Vors&amp;chau ausblenden</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <extracomment>Which files a panel lists; %1 is a list of endings.</extracomment>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>Choose a folder of images. The folders in it are opened as well.</source>
        <translation>Einen Ordner mit Bildern wählen. Seine Unterordner werden mit geöffnet.</translation>
    </message>
    <message>
        <source>Choose a text file of codes: a code, a tab, and its text in each line.</source>
        <translation>Eine Textdatei mit Kürzeln wählen: in jeder Zeile ein Kürzel, ein Tabulator und sein Text.</translation>
    </message>
    <message>
        <source>Choose a folder of images, or one or more image files.</source>
        <translation>Einen Ordner mit Bildern oder eine oder mehrere Bilddateien wählen.</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>Alle Dateien (%1)</translation>
    </message>
    <message>
        <source>Text files (%1)</source>
        <translation>Textdateien (%1)</translation>
    </message>
    <message>
        <source>Choose</source>
        <comment>verb: this file</comment>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>verb: these photos</comment>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Quick &amp;Keywords</source>
        <translation>Schnellstichwör&amp;ter</translation>
    </message>
    <message>
        <source>Templates (%1)</source>
        <translation>Vorlagen (%1)</translation>
    </message>
    <message>
        <source>Choose template files.</source>
        <translation>Vorlagendateien wählen.</translation>
    </message>
    <message>
        <source>Choose where the template is to go.</source>
        <translation>Speicherort der Vorlage wählen.</translation>
    </message>
    <message>
        <source>Save as Template…</source>
        <translation>Als Vorlage speichern…</translation>
    </message>
    <message>
        <source>Te&amp;mplates</source>
        <translation>&amp;Vorlagen</translation>
    </message>
    <message>
        <source>Templates…</source>
        <translation>Vorlagen…</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Wieder&amp;holen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Quorbel ist aktuell</translation>
    </message>
    <message>
        <source>Quorbel is running the latest version.</source>
        <translation>Die neueste Version von Quorbel ist installiert.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Suche nach Updates fehlgeschlagen</translation>
    </message>
    <message>
        <source>Please check your internet connection and try again.</source>
        <translation>Bitte die Internetverbindung prüfen und erneut versuchen.</translation>
    </message>
    <message>
        <source>Quorbel %1 is available</source>
        <translation>Quorbel %1 ist verfügbar</translation>
    </message>
    <message>
        <source>A newer version of Quorbel is available.</source>
        <translation>Eine neuere Version von Quorbel ist verfügbar.</translation>
    </message>
    <message>
        <source>Download</source>
        <comment>verb</comment>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>button: not now</comment>
        <translation>Später</translation>
    </message>
    <message>
        <source>Reads and edits the words inside photos.</source>
        <translation>Liest und bearbeitet die Texte in Fotos.</translation>
    </message>
    <message>
        <source>A folder of photos, or photos.</source>
        <translation>Ein Ordner mit Fotos oder einzelne Fotos.</translation>
    </message>
    <message>
        <source>[files…]</source>
        <extracomment>What a command line may hold behind the name of the program.</extracomment>
        <translation>[Dateien…]</translation>
    </message>
    <message>
        <source>The update feed’s “%1” is missing or no text.</source>
        <translation>In den Update-Informationen fehlt „%1“ oder ist kein Text.</translation>
    </message>
    <message>
        <source>The update feed’s “%1” is missing or no whole number.</source>
        <translation>In den Update-Informationen fehlt „%1“ oder ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>Bad server response: HTTP status %1.</source>
        <translation>Fehlerhafte Antwort des Servers: HTTP-Status %1.</translation>
    </message>
    <message>
        <source>The update feed is no valid JSON: %1.</source>
        <translation>Die Update-Informationen sind kein gültiges JSON: %1.</translation>
    </message>
    <message>
        <source>The update feed is no JSON object.</source>
        <translation>Die Update-Informationen sind kein JSON-Objekt.</translation>
    </message>
    <message numerus="yes">
        <source>Long to listen to: %1 of %n character(s)</source>
        <translation>
            <numerusform>Zum Vorlesen lang: %1 von %n Zeichen</numerusform>
            <numerusform>Zum Vorlesen lang: %1 von %n Zeichen</numerusform>
        </translation>
    </message>
    <message>
        <source>Points to “%1”, which is empty</source>
        <translation>Verweist auf das leere Feld „%1“</translation>
    </message>
    <message>
        <source>Alternative text</source>
        <translation>Alternativtext</translation>
    </message>
    <message>
        <source>Says what is to be seen, for people who cannot see it</source>
        <translation>Sagt, was zu sehen ist, für Menschen, die es nicht sehen können</translation>
    </message>
    <message>
        <source>Extended description</source>
        <translation>Erweiterte Beschreibung</translation>
    </message>
    <message>
        <source>Describes at length what a short text cannot, for people who cannot see it</source>
        <translation>Ausführliche Beschreibung, wo ein kurzer Text nicht reicht, für Menschen, die es nicht sehen können</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Ländercode</translation>
    </message>
    <message>
        <source>Two or three letters of ISO 3166: CH, CHE</source>
        <translation>Zwei oder drei Buchstaben nach ISO 3166: CH, CHE</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Beruf</translation>
    </message>
    <message>
        <source>The creator&apos;s position or occupation</source>
        <translation>Position oder Beruf des Erstellers</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>Where the creator can be reached: address, phone, e-mail, web</source>
        <translation>Wie der Ersteller zu erreichen ist: Adresse, Telefon, E-Mail, Web</translation>
    </message>
    <message>
        <source>People in detail</source>
        <translation>Personen im Detail</translation>
    </message>
    <message>
        <source>Who is to be seen, with identifiers, description and characteristics</source>
        <translation>Wer zu sehen ist, mit Kennungen, Beschreibung und Merkmalen</translation>
    </message>
    <message>
        <source>Model ages</source>
        <translation>Alter der Models</translation>
    </message>
    <message>
        <source>How old the models were, in years</source>
        <translation>Wie alt die Models waren, in Jahren</translation>
    </message>
    <message>
        <source>Youngest model</source>
        <translation>Jüngstes Model</translation>
    </message>
    <message>
        <source>How old the youngest model was</source>
        <translation>Wie alt das jüngste Model war</translation>
    </message>
    <message>
        <source>Model information</source>
        <translation>Model-Angaben</translation>
    </message>
    <message>
        <source>Anything else that is to be known about the models</source>
        <translation>Was sonst über die Models zu wissen ist</translation>
    </message>
    <message>
        <source>Model releases</source>
        <translation>Model-Releases</translation>
    </message>
    <message>
        <source>How far releases cover the people who are shown</source>
        <translation>Wie weit Releases die gezeigten Personen abdecken</translation>
    </message>
    <message>
        <source>Model release IDs</source>
        <translation>Model-Release-IDs</translation>
    </message>
    <message>
        <source>Numbers under which the model releases are filed</source>
        <translation>Nummern, unter denen die Model-Releases abgelegt sind</translation>
    </message>
    <message>
        <source>Location created</source>
        <translation>Aufnahmeort</translation>
    </message>
    <message>
        <source>Where the camera stood</source>
        <translation>Wo die Kamera stand</translation>
    </message>
    <message>
        <source>Locations shown</source>
        <translation>Abgebildete Orte</translation>
    </message>
    <message>
        <source>Places that are to be seen</source>
        <translation>Orte, die zu sehen sind</translation>
    </message>
    <message>
        <source>Subject codes</source>
        <translation>Themencodes</translation>
    </message>
    <message>
        <source>What it is about, by the eight-digit codes of IPTC (an older list)</source>
        <translation>Worum es geht, nach den achtstelligen Codes der IPTC (eine ältere Liste)</translation>
    </message>
    <message>
        <source>Subject terms</source>
        <translation>Themenbegriffe</translation>
    </message>
    <message>
        <source>What it is about, by terms of a vocabulary</source>
        <translation>Worum es geht, mit Begriffen eines Vokabulars</translation>
    </message>
    <message>
        <source>Genre terms</source>
        <translation>Genrebegriffe</translation>
    </message>
    <message>
        <source>What kind of picture it is, by terms of a vocabulary</source>
        <translation>Was für ein Bild es ist, mit Begriffen eines Vokabulars</translation>
    </message>
    <message>
        <source>Event IDs</source>
        <translation>Ereignis-IDs</translation>
    </message>
    <message>
        <source>Identifiers of the event</source>
        <translation>Kennungen des Ereignisses</translation>
    </message>
    <message>
        <source>Organisations</source>
        <translation>Organisationen</translation>
    </message>
    <message>
        <source>Organisations that are to be seen, by name</source>
        <translation>Namen der Organisationen, die zu sehen sind</translation>
    </message>
    <message>
        <source>Organisation codes</source>
        <translation>Organisations-Codes</translation>
    </message>
    <message>
        <source>The same by a code: stock ticker, registry number</source>
        <translation>Dieselben als Code: Börsenkürzel, Registernummer</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>Produkte</translation>
    </message>
    <message>
        <source>Products that are to be seen, with GTIN and identifiers</source>
        <translation>Produkte, die zu sehen sind, mit GTIN und Kennungen</translation>
    </message>
    <message>
        <source>Artworks or objects</source>
        <translation>Kunstwerke oder Objekte</translation>
    </message>
    <message>
        <source>Works that are to be seen, with maker, date, owner and rights</source>
        <translation>Werke, die zu sehen sind, mit Urheber, Datum, Besitzer und Rechten</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Bildbereiche</translation>
    </message>
    <message>
        <source>Parts of the picture: outline, name, kind and role</source>
        <translation>Teile des Bildes: Umriss, Name, Art und Rolle</translation>
    </message>
    <message>
        <source>Copyright owners</source>
        <translation>Rechteinhaber</translation>
    </message>
    <message>
        <source>Who owns the copyright</source>
        <translation>Wem das Urheberrecht gehört</translation>
    </message>
    <message>
        <source>Image creators</source>
        <translation>Bildersteller</translation>
    </message>
    <message>
        <source>Who made the picture, with identifiers</source>
        <translation>Wer das Bild gemacht hat, mit Kennungen</translation>
    </message>
    <message>
        <source>Contributors</source>
        <translation>Mitwirkende</translation>
    </message>
    <message>
        <source>Who helped to make the picture, and in which role</source>
        <translation>Wer am Bild mitgewirkt hat, und in welcher Rolle</translation>
    </message>
    <message>
        <source>Other constraints</source>
        <translation>Weitere Auflagen</translation>
    </message>
    <message>
        <source>Further limits of use, in words</source>
        <translation>Weitere Nutzungseinschränkungen, in Worten</translation>
    </message>
    <message>
        <source>Data mining</source>
        <translation>Data-Mining</translation>
    </message>
    <message>
        <source>Whether others may mine the picture or train AI with it</source>
        <translation>Ob andere das Bild auswerten oder KI damit trainieren dürfen</translation>
    </message>
    <message>
        <source>Property releases</source>
        <translation>Property-Releases</translation>
    </message>
    <message>
        <source>How far releases cover what is shown</source>
        <translation>Wie weit Releases das Gezeigte abdecken</translation>
    </message>
    <message>
        <source>Property release IDs</source>
        <translation>Property-Release-IDs</translation>
    </message>
    <message>
        <source>Numbers under which the property releases are filed</source>
        <translation>Nummern, unter denen die Property-Releases abgelegt sind</translation>
    </message>
    <message>
        <source>Licensors</source>
        <translation>Lizenzgeber</translation>
    </message>
    <message>
        <source>Whom to ask for a licence</source>
        <translation>Bei wem eine Lizenz zu erfragen ist</translation>
    </message>
    <message>
        <source>Suppliers</source>
        <translation>Lieferanten</translation>
    </message>
    <message>
        <source>Who passed the picture on last</source>
        <translation>Wer das Bild zuletzt weitergegeben hat</translation>
    </message>
    <message>
        <source>Supplier image ID</source>
        <translation>Bild-ID des Lieferanten</translation>
    </message>
    <message>
        <source>The picture&apos;s number at the supplier</source>
        <translation>Die Nummer des Bildes beim Lieferanten</translation>
    </message>
    <message>
        <source>Embedded rights</source>
        <translation>Eingebettete Rechte</translation>
    </message>
    <message>
        <source>Terms that machines read, within the file</source>
        <translation>Maschinenlesbare Bedingungen, in der Datei</translation>
    </message>
    <message>
        <source>Linked rights</source>
        <translation>Verlinkte Rechte</translation>
    </message>
    <message>
        <source>Terms that machines read, at an address</source>
        <translation>Maschinenlesbare Bedingungen, unter einer Adresse</translation>
    </message>
    <message>
        <source>Digital source</source>
        <translation>Digitale Quelle</translation>
    </message>
    <message>
        <source>What the picture was made from: camera, scan, software, AI</source>
        <translation>Woraus das Bild entstanden ist: Kamera, Scan, Software, KI</translation>
    </message>
    <message>
        <source>AI system</source>
        <translation>KI-System</translation>
    </message>
    <message>
        <source>Which engine or model made it</source>
        <translation>Welches System oder Modell es erzeugt hat</translation>
    </message>
    <message>
        <source>AI system version</source>
        <translation>Version des KI-Systems</translation>
    </message>
    <message>
        <source>Its version</source>
        <translation>Seine Version</translation>
    </message>
    <message>
        <source>AI prompt</source>
        <translation>KI-Prompt</translation>
    </message>
    <message>
        <source>What the AI was asked for, and what not</source>
        <translation>Was von der KI verlangt wurde und was nicht</translation>
    </message>
    <message>
        <source>AI prompt writer</source>
        <translation>Autor des KI-Prompts</translation>
    </message>
    <message>
        <source>Who wrote the prompt</source>
        <translation>Wer den Prompt geschrieben hat</translation>
    </message>
    <message>
        <source>Image GUID</source>
        <translation>Bild-GUID</translation>
    </message>
    <message>
        <source>An identifier that no other picture has</source>
        <translation>Eine Kennung, die kein anderes Bild hat</translation>
    </message>
    <message>
        <source>Registry entries</source>
        <translation>Registereinträge</translation>
    </message>
    <message>
        <source>Registries that know the picture, and its number there</source>
        <translation>Register, die das Bild führen, und seine Nummer dort</translation>
    </message>
    <message>
        <source>Largest width</source>
        <translation>Größte Breite</translation>
    </message>
    <message>
        <source>Of the largest version that can be had, in pixels</source>
        <translation>Der größten erhältlichen Fassung, in Pixeln</translation>
    </message>
    <message>
        <source>Largest height</source>
        <translation>Größte Höhe</translation>
    </message>
    <message>
        <source>contact</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Postleitzahl</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stadt</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Bundesland</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>artwork</source>
        <translation>Werk</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Creators</source>
        <translation>Ersteller</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Entstanden</translation>
    </message>
    <message>
        <source>Created about</source>
        <translation>Entstanden um</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Contributions</source>
        <translation>Beiträge</translation>
    </message>
    <message>
        <source>Physical description</source>
        <translation>Materielle Beschreibung</translation>
    </message>
    <message>
        <source>Style or period</source>
        <translation>Stil oder Epoche</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Inventory number</source>
        <translation>Inventar-Nr.</translation>
    </message>
    <message>
        <source>Inventory address</source>
        <translation>Inventar-URL</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Copyright-Vermerk</translation>
    </message>
    <message>
        <source>Copyright owner</source>
        <translation>Rechteinhaber</translation>
    </message>
    <message>
        <source>Copyright owner ID</source>
        <translation>Inhaber-ID</translation>
    </message>
    <message>
        <source>Licensor</source>
        <translation>Lizenzgeber</translation>
    </message>
    <message>
        <source>Licensor ID</source>
        <translation>Lizenzgeber-ID</translation>
    </message>
    <message>
        <source>Creator IDs</source>
        <translation>Ersteller-IDs</translation>
    </message>
    <message>
        <source>term</source>
        <translation>Begriff</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Term ID</source>
        <translation>Begriffs-ID</translation>
    </message>
    <message>
        <source>Vocabulary</source>
        <translation>Vokabular</translation>
    </message>
    <message>
        <source>Relation</source>
        <translation>Bezug</translation>
    </message>
    <message>
        <source>expression</source>
        <translation>Ausdruck</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Ausdruck</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>entry</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Identifiers</source>
        <translation>Kennungen</translation>
    </message>
    <message>
        <source>contributor</source>
        <translation>Mitwirkender</translation>
    </message>
    <message>
        <source>Roles</source>
        <translation>Rollen</translation>
    </message>
    <message>
        <source>region</source>
        <translation>Bildbereich</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Umriss</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>Umriss</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
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
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>Ortsdetail</translation>
    </message>
    <message>
        <source>World region</source>
        <translation>Weltregion</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breitengrad</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Längengrad</translation>
    </message>
    <message>
        <source>Altitude (m)</source>
        <translation>Höhe (m)</translation>
    </message>
    <message>
        <source>Below sea level</source>
        <translation>Unter Meereshöhe</translation>
    </message>
    <message>
        <source>person</source>
        <translation>Person</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Characteristics</source>
        <translation>Merkmale</translation>
    </message>
    <message>
        <source>product</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <source>GTIN</source>
        <translation>GTIN</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>licensor</source>
        <translation>Lizenzgeber</translation>
    </message>
    <message>
        <source>Phone type</source>
        <translation>Telefonart</translation>
    </message>
    <message>
        <source>Second phone</source>
        <translation>Telefon 2</translation>
    </message>
    <message>
        <source>Second phone type</source>
        <translation>Telefonart 2</translation>
    </message>
    <message>
        <source>Address, further</source>
        <translation>Adresszusatz</translation>
    </message>
    <message>
        <source>owner</source>
        <translation>Rechteinhaber</translation>
    </message>
    <message>
        <source>creator</source>
        <translation>Ersteller</translation>
    </message>
    <message>
        <source>supplier</source>
        <translation>Lieferant</translation>
    </message>
    <message>
        <source>%1 is not a number: “%2”</source>
        <extracomment>%1 is what the number tells (&quot;Latitude&quot;), %2 what stands there instead</extracomment>
        <translation>%1 ist keine Zahl: „%2“</translation>
    </message>
    <message>
        <source>not a whole number: “%1”</source>
        <translation>keine ganze Zahl: „%1“</translation>
    </message>
    <message>
        <source>%1 holds %2 of another program, which this change would lose</source>
        <extracomment>%1 is a field, %2 names parts of it, in quotation marks</extracomment>
        <translation>%1 enthält %2 eines anderen Programms, was bei dieser Änderung verloren ginge</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>Keine Zahl</translation>
    </message>
    <message numerus="yes">
        <source>%1 · %n more</source>
        <extracomment>%1 is what the first of several cards says</extracomment>
        <translation>
            <numerusform>%1 · noch %n</numerusform>
            <numerusform>%1 · noch %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose Genre…</source>
        <translation>Genre wählen…</translation>
    </message>
    <message>
        <source>Choose Subject…</source>
        <translation>Thema wählen…</translation>
    </message>
    <message>
        <source>Choose Kind…</source>
        <translation>Art wählen…</translation>
    </message>
    <message>
        <source>Choose Role…</source>
        <translation>Rolle wählen…</translation>
    </message>
    <message>
        <source>Digital source type</source>
        <translation>Art der digitalen Quelle</translation>
    </message>
    <message>
        <source>Digital capture sampled from real life</source>
        <translation>Digitale Aufnahme der Wirklichkeit</translation>
    </message>
    <message>
        <source>Taken with a camera, not changed beyond developing</source>
        <translation>Mit einer Kamera aufgenommen, über das Entwickeln hinaus nicht verändert</translation>
    </message>
    <message>
        <source>Multi-frame computational capture sampled from real life</source>
        <translation>Aus mehreren Aufnahmen der Wirklichkeit berechnet</translation>
    </message>
    <message>
        <source>Several frames of one moment joined by the camera</source>
        <translation>Mehrere Einzelbilder eines Augenblicks, von der Kamera verbunden</translation>
    </message>
    <message>
        <source>Digitised from a transparent negative</source>
        <translation>Digitalisiert von einem Negativ</translation>
    </message>
    <message>
        <source>A film negative turned into a digital picture</source>
        <translation>Ein Filmnegativ, zum digitalen Bild gemacht</translation>
    </message>
    <message>
        <source>Digitised from a transparent positive</source>
        <translation>Digitalisiert von einem Diapositiv</translation>
    </message>
    <message>
        <source>A slide turned into a digital picture</source>
        <translation>Ein Dia, zum digitalen Bild gemacht</translation>
    </message>
    <message>
        <source>Digitised from a non-transparent medium</source>
        <translation>Digitalisiert von einer Aufsichtsvorlage</translation>
    </message>
    <message>
        <source>A scan of a print or another thing on paper</source>
        <translation>Ein Scan eines Abzugs oder einer anderen Vorlage auf Papier</translation>
    </message>
    <message>
        <source>Human-edited media</source>
        <translation>Von Menschen bearbeitet</translation>
    </message>
    <message>
        <source>A picture that a person changed, with tools other than generative AI</source>
        <translation>Ein Bild, das jemand mit anderen Mitteln als generativer KI verändert hat</translation>
    </message>
    <message>
        <source>Edited using Generative AI</source>
        <translation>Mit generativer KI bearbeitet</translation>
    </message>
    <message>
        <source>A picture parts of which were changed or added by generative AI</source>
        <translation>Ein Bild, in dem generative KI Teile verändert oder ergänzt hat</translation>
    </message>
    <message>
        <source>Algorithmically-altered media</source>
        <translation>Durch Algorithmen verändert</translation>
    </message>
    <message>
        <source>Changed by a program by itself, not by generative AI</source>
        <translation>Von einem Programm selbsttätig verändert, nicht von generativer KI</translation>
    </message>
    <message>
        <source>Digital creation</source>
        <translation>Digital geschaffen</translation>
    </message>
    <message>
        <source>Made by a person with digital tools, such as a drawing</source>
        <translation>Von jemandem mit digitalen Mitteln gemacht, etwa eine Zeichnung</translation>
    </message>
    <message>
        <source>Data-driven media</source>
        <translation>Aus Daten erzeugt</translation>
    </message>
    <message>
        <source>Drawn from data, such as a chart or a map</source>
        <translation>Aus Daten gezeichnet, etwa ein Diagramm oder eine Karte</translation>
    </message>
    <message>
        <source>Created using Generative AI</source>
        <translation>Mit generativer KI erstellt</translation>
    </message>
    <message>
        <source>Made wholly by an AI that learned from other pictures</source>
        <translation>Ganz von einer KI gemacht, die an anderen Bildern gelernt hat</translation>
    </message>
    <message>
        <source>Pure algorithmic media</source>
        <translation>Rein algorithmisch erzeugt</translation>
    </message>
    <message>
        <source>Computed by a formula that learned from nothing, such as a fractal</source>
        <translation>Nach einer Formel berechnet, die an nichts gelernt hat, etwa ein Fraktal</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Bildschirmaufnahme</translation>
    </message>
    <message>
        <source>What a display showed</source>
        <translation>Was ein Bildschirm zeigte</translation>
    </message>
    <message>
        <source>Virtual event recording</source>
        <translation>Aufzeichnung eines virtuellen Ereignisses</translation>
    </message>
    <message>
        <source>Recorded of something that took place in a virtual world</source>
        <translation>Aufgezeichnet, was in einer virtuellen Welt geschah</translation>
    </message>
    <message>
        <source>Composite of elements</source>
        <translation>Komposition aus mehreren Elementen</translation>
    </message>
    <message>
        <source>Put together from parts of any kind</source>
        <translation>Aus beliebigen Teilen zusammengesetzt</translation>
    </message>
    <message>
        <source>Composite of captured elements</source>
        <translation>Komposition aus aufgenommenen Elementen</translation>
    </message>
    <message>
        <source>Put together from parts that were all photographed</source>
        <translation>Aus Teilen zusammengesetzt, die alle fotografiert wurden</translation>
    </message>
    <message>
        <source>Composite including generative AI elements</source>
        <translation>Komposition mit Elementen generativer KI</translation>
    </message>
    <message>
        <source>Put together from parts of which generative AI made at least one</source>
        <translation>Aus Teilen zusammengesetzt, von denen mindestens eines von generativer KI stammt</translation>
    </message>
    <message>
        <source>Original media with minor human edits</source>
        <translation>Original mit geringen Bearbeitungen durch Menschen</translation>
    </message>
    <message>
        <source>Retired in 2024: use the one for human-edited media</source>
        <translation>2024 abgelöst: stattdessen „Von Menschen bearbeitet“ verwenden</translation>
    </message>
    <message>
        <source>Created by software</source>
        <translation>Von Software erstellt</translation>
    </message>
    <message>
        <source>Retired in 2022: use one that says how</source>
        <translation>2022 abgelöst: stattdessen einen Begriff verwenden, der sagt, wie</translation>
    </message>
    <message>
        <source>Digital art</source>
        <translation>Digitale Kunst</translation>
    </message>
    <message>
        <source>Retired in 2024: use the one for a digital creation</source>
        <translation>2024 abgelöst: stattdessen „Digital geschaffen“ verwenden</translation>
    </message>
    <message>
        <source>Unspecified – no prohibition defined</source>
        <translation>Nicht angegeben – kein Verbot festgelegt</translation>
    </message>
    <message>
        <source>The file says nothing about it</source>
        <translation>Die Datei sagt nichts darüber</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Anybody may mine the picture and train with it</source>
        <translation>Alle dürfen das Bild auswerten und damit trainieren</translation>
    </message>
    <message>
        <source>Prohibited for AI/ML training</source>
        <translation>Untersagt für das Training von KI/ML</translation>
    </message>
    <message>
        <source>No training of any AI; other mining may be done</source>
        <translation>Kein Training irgendeiner KI; andere Auswertung ist erlaubt</translation>
    </message>
    <message>
        <source>Prohibited for Generative AI/ML training</source>
        <translation>Untersagt für das Training generativer KI/ML</translation>
    </message>
    <message>
        <source>No training of AI that makes pictures or texts</source>
        <translation>Kein Training von KI, die Bilder oder Texte erzeugt</translation>
    </message>
    <message>
        <source>Prohibited except for search engine indexing</source>
        <translation>Untersagt außer zur Indexierung durch Suchmaschinen</translation>
    </message>
    <message>
        <source>Search engines may list the picture; nothing else</source>
        <translation>Suchmaschinen dürfen das Bild aufführen, sonst nichts</translation>
    </message>
    <message>
        <source>Prohibited</source>
        <translation>Untersagt</translation>
    </message>
    <message>
        <source>No mining and no training at all</source>
        <translation>Keinerlei Auswertung, keinerlei Training</translation>
    </message>
    <message>
        <source>Prohibited, see Other Constraints</source>
        <translation>Untersagt, siehe „Weitere Auflagen“</translation>
    </message>
    <message>
        <source>What may be done stands in Other constraints, which must be filled</source>
        <translation>Was erlaubt ist, steht unter „Weitere Auflagen“; das Feld muss ausgefüllt sein</translation>
    </message>
    <message>
        <source>Prohibited, see Embedded Encoded Rights Expression</source>
        <translation>Untersagt, siehe „Eingebettete Rechte“</translation>
    </message>
    <message>
        <source>What may be done stands in Embedded rights</source>
        <translation>Was erlaubt ist, steht unter „Eingebettete Rechte“</translation>
    </message>
    <message>
        <source>Prohibited, see Linked Encoded Rights Expression</source>
        <translation>Untersagt, siehe „Verlinkte Rechte“</translation>
    </message>
    <message>
        <source>What may be done stands where Linked rights points</source>
        <translation>Was erlaubt ist, steht dort, wohin „Verlinkte Rechte“ verweist</translation>
    </message>
    <message>
        <source>Model release status</source>
        <translation>Model-Release-Status</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Nobody who is shown has signed a release</source>
        <translation>Keine der gezeigten Personen hat ein Release unterschrieben</translation>
    </message>
    <message>
        <source>Not Applicable</source>
        <translation>Nicht zutreffend</translation>
    </message>
    <message>
        <source>Nobody is shown whose consent would be needed</source>
        <translation>Es ist niemand zu sehen, dessen Einwilligung nötig wäre</translation>
    </message>
    <message>
        <source>Unlimited Model Releases</source>
        <translation>Unbeschränkte Model-Releases</translation>
    </message>
    <message>
        <source>All who are shown have signed, without limits</source>
        <translation>Alle gezeigten Personen haben unterschrieben, ohne Einschränkung</translation>
    </message>
    <message>
        <source>Limited or Incomplete Model Releases</source>
        <translation>Eingeschränkte oder unvollständige Model-Releases</translation>
    </message>
    <message>
        <source>Some have not signed, or only for certain uses</source>
        <translation>Nicht alle haben unterschrieben, oder nur für bestimmte Nutzungen</translation>
    </message>
    <message>
        <source>Property release status</source>
        <translation>Property-Release-Status</translation>
    </message>
    <message>
        <source>No owner of what is shown has signed a release</source>
        <translation>Kein Eigentümer des Gezeigten hat ein Release unterschrieben</translation>
    </message>
    <message>
        <source>Nothing is shown whose owner&apos;s consent would be needed</source>
        <translation>Es ist nichts zu sehen, dessen Eigentümer einwilligen müsste</translation>
    </message>
    <message>
        <source>Unlimited Property Releases</source>
        <translation>Unbeschränkte Property-Releases</translation>
    </message>
    <message>
        <source>All owners have signed, without limits</source>
        <translation>Alle Eigentümer haben unterschrieben, ohne Einschränkung</translation>
    </message>
    <message>
        <source>Limited or Incomplete Property Releases</source>
        <translation>Eingeschränkte oder unvollständige Property-Releases</translation>
    </message>
    <message>
        <source>Minor model age</source>
        <translation>Alter des jüngsten Models</translation>
    </message>
    <message>
        <source>Age Unknown</source>
        <translation>Alter unbekannt</translation>
    </message>
    <message>
        <source>Nobody knows how old the youngest person was</source>
        <translation>Wie alt die jüngste Person war, ist nicht bekannt</translation>
    </message>
    <message>
        <source>Age 25 or Over</source>
        <translation>25 Jahre oder älter</translation>
    </message>
    <message>
        <source>The youngest person was at least 25</source>
        <translation>Die jüngste Person war mindestens 25</translation>
    </message>
    <message>
        <source>Age 24</source>
        <translation>24 Jahre</translation>
    </message>
    <message>
        <source>Age 23</source>
        <translation>23 Jahre</translation>
    </message>
    <message>
        <source>Age 22</source>
        <translation>22 Jahre</translation>
    </message>
    <message>
        <source>Age 21</source>
        <translation>21 Jahre</translation>
    </message>
    <message>
        <source>Age 20</source>
        <translation>20 Jahre</translation>
    </message>
    <message>
        <source>Age 19</source>
        <translation>19 Jahre</translation>
    </message>
    <message>
        <source>Age 18</source>
        <translation>18 Jahre</translation>
    </message>
    <message>
        <source>The youngest person was of age in most countries</source>
        <translation>Die jüngste Person war in den meisten Ländern volljährig</translation>
    </message>
    <message>
        <source>Age 17</source>
        <translation>17 Jahre</translation>
    </message>
    <message>
        <source>Age 16</source>
        <translation>16 Jahre</translation>
    </message>
    <message>
        <source>Age 15</source>
        <translation>15 Jahre</translation>
    </message>
    <message>
        <source>Age 14 or Under</source>
        <translation>14 Jahre oder jünger</translation>
    </message>
    <message>
        <source>The youngest person was a child of at most 14</source>
        <translation>Die jüngste Person war ein Kind von höchstens 14 Jahren</translation>
    </message>
    <message>
        <source>Telephone type</source>
        <translation>Telefonart</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Geschäftlich</translation>
    </message>
    <message>
        <source>At the place of work</source>
        <translation>Am Arbeitsplatz</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Mobil</translation>
    </message>
    <message>
        <source>A mobile phone</source>
        <translation>Ein Mobiltelefon</translation>
    </message>
    <message>
        <source>FAX</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>A fax machine</source>
        <translation>Ein Faxgerät</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Privat</translation>
    </message>
    <message>
        <source>At home</source>
        <translation>Zu Hause</translation>
    </message>
    <message>
        <source>Pager</source>
        <translation>Pager</translation>
    </message>
    <message>
        <source>Takes short messages</source>
        <translation>Empfängt kurze Nachrichten</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>headshot</source>
        <translation>Kopfporträt</translation>
    </message>
    <message>
        <source>The head of a person</source>
        <translation>Der Kopf einer Person</translation>
    </message>
    <message>
        <source>half-length</source>
        <translation>Halbfigur</translation>
    </message>
    <message>
        <source>A person down to the waist</source>
        <translation>Eine Person bis zur Taille</translation>
    </message>
    <message>
        <source>full-length</source>
        <translation>Ganzfigur</translation>
    </message>
    <message>
        <source>A person from head to toe</source>
        <translation>Eine Person von Kopf bis Fuß</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>A person from the side</source>
        <translation>Eine Person von der Seite</translation>
    </message>
    <message>
        <source>rear view</source>
        <translation>Rückansicht</translation>
    </message>
    <message>
        <source>A person or thing from behind</source>
        <translation>Eine Person oder ein Gegenstand von hinten</translation>
    </message>
    <message>
        <source>single</source>
        <translation>Einzelmotiv</translation>
    </message>
    <message>
        <source>One person or thing alone</source>
        <translation>Eine Person oder ein Gegenstand allein</translation>
    </message>
    <message>
        <source>couple</source>
        <translation>Paar</translation>
    </message>
    <message>
        <source>Two people who belong together</source>
        <translation>Zwei Menschen, die zusammengehören</translation>
    </message>
    <message>
        <source>two</source>
        <translation>Zwei</translation>
    </message>
    <message>
        <source>Two people or things</source>
        <translation>Zwei Personen oder Gegenstände</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>More than two people or things</source>
        <translation>Mehr als zwei Personen oder Gegenstände</translation>
    </message>
    <message>
        <source>general view</source>
        <translation>Gesamtansicht</translation>
    </message>
    <message>
        <source>The whole of a place or an event</source>
        <translation>Ein Ort oder ein Ereignis im Ganzen</translation>
    </message>
    <message>
        <source>panoramic view</source>
        <translation>Panorama</translation>
    </message>
    <message>
        <source>Wide, over a whole landscape or town</source>
        <translation>Weit, über eine ganze Landschaft oder Stadt</translation>
    </message>
    <message>
        <source>aerial view</source>
        <translation>Luftaufnahme</translation>
    </message>
    <message>
        <source>Taken from the air</source>
        <translation>Aus der Luft aufgenommen</translation>
    </message>
    <message>
        <source>under-water</source>
        <translation>Unterwasseraufnahme</translation>
    </message>
    <message>
        <source>Taken below the surface of water</source>
        <translation>Unter der Wasseroberfläche aufgenommen</translation>
    </message>
    <message>
        <source>night scene</source>
        <translation>Nachtaufnahme</translation>
    </message>
    <message>
        <source>Taken by night</source>
        <translation>Bei Nacht aufgenommen</translation>
    </message>
    <message>
        <source>satellite</source>
        <translation>Satellitenaufnahme</translation>
    </message>
    <message>
        <source>Taken from space</source>
        <translation>Aus dem Weltraum aufgenommen</translation>
    </message>
    <message>
        <source>exterior view</source>
        <translation>Außenansicht</translation>
    </message>
    <message>
        <source>A building from outside</source>
        <translation>Ein Gebäude von außen</translation>
    </message>
    <message>
        <source>interior view</source>
        <translation>Innenansicht</translation>
    </message>
    <message>
        <source>A room or building from inside</source>
        <translation>Ein Raum oder Gebäude von innen</translation>
    </message>
    <message>
        <source>close-up</source>
        <translation>Nahaufnahme</translation>
    </message>
    <message>
        <source>Taken from near, details fill the frame</source>
        <translation>Aus der Nähe, Einzelheiten füllen das Bild</translation>
    </message>
    <message>
        <source>action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>People or things in motion</source>
        <translation>Menschen oder Dinge in Bewegung</translation>
    </message>
    <message>
        <source>performing</source>
        <translation>Auftritt</translation>
    </message>
    <message>
        <source>Somebody on a stage or at a show</source>
        <translation>Jemand auf einer Bühne oder bei einer Vorführung</translation>
    </message>
    <message>
        <source>posing</source>
        <translation>Pose</translation>
    </message>
    <message>
        <source>Somebody who holds still for the camera</source>
        <translation>Jemand, der für die Kamera stillhält</translation>
    </message>
    <message>
        <source>symbolic</source>
        <translation>Symbolbild</translation>
    </message>
    <message>
        <source>Stands for an idea rather than for what it shows</source>
        <translation>Steht für eine Idee, nicht für das Gezeigte</translation>
    </message>
    <message>
        <source>off-beat</source>
        <translation>Skurriles</translation>
    </message>
    <message>
        <source>Odd or funny</source>
        <translation>Merkwürdig oder komisch</translation>
    </message>
    <message>
        <source>movie scene</source>
        <translation>Filmszene</translation>
    </message>
    <message>
        <source>Taken at the making of a film, or a frame of one</source>
        <translation>Bei Dreharbeiten aufgenommen oder ein Einzelbild eines Films</translation>
    </message>
    <message>
        <source>Subject code</source>
        <translation>Themencode</translation>
    </message>
    <message>
        <source>arts, culture and entertainment</source>
        <translation>Kunst, Kultur und Unterhaltung</translation>
    </message>
    <message>
        <source>Music, film, theatre, literature, museums, celebrities of the arts</source>
        <translation>Musik, Film, Theater, Literatur, Museen, Prominente aus der Kultur</translation>
    </message>
    <message>
        <source>crime, law and justice</source>
        <translation>Kriminalität, Recht und Justiz</translation>
    </message>
    <message>
        <source>Police, courts, laws, prisons</source>
        <translation>Polizei, Gerichte, Gesetze, Gefängnisse</translation>
    </message>
    <message>
        <source>disaster and accident</source>
        <translation>Katastrophen und Unglücke</translation>
    </message>
    <message>
        <source>Fires, floods, earthquakes, crashes</source>
        <translation>Brände, Hochwasser, Erdbeben, Abstürze</translation>
    </message>
    <message>
        <source>economy, business and finance</source>
        <translation>Wirtschaft und Finanzen</translation>
    </message>
    <message>
        <source>Companies, markets, trades, industries</source>
        <translation>Unternehmen, Märkte, Handel, Industrie</translation>
    </message>
    <message>
        <source>education</source>
        <translation>Bildung</translation>
    </message>
    <message>
        <source>Schools, universities, teaching</source>
        <translation>Schulen, Universitäten, Unterricht</translation>
    </message>
    <message>
        <source>environmental issue</source>
        <translation>Umwelt</translation>
    </message>
    <message>
        <source>Nature, climate, pollution, conservation</source>
        <translation>Natur, Klima, Verschmutzung, Naturschutz</translation>
    </message>
    <message>
        <source>health</source>
        <translation>Gesundheit</translation>
    </message>
    <message>
        <source>Illness, medicine, hospitals</source>
        <translation>Krankheit, Medizin, Krankenhäuser</translation>
    </message>
    <message>
        <source>human interest</source>
        <translation>Vermischtes</translation>
    </message>
    <message>
        <source>People, animals, curiosities</source>
        <translation>Menschen, Tiere, Kurioses</translation>
    </message>
    <message>
        <source>labour</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>Work, unions, strikes, unemployment</source>
        <translation>Beruf, Gewerkschaften, Streiks, Arbeitslosigkeit</translation>
    </message>
    <message>
        <source>lifestyle and leisure</source>
        <translation>Lebensart und Freizeit</translation>
    </message>
    <message>
        <source>Travel, food, hobbies, fashion</source>
        <translation>Reisen, Essen, Hobbys, Mode</translation>
    </message>
    <message>
        <source>politics</source>
        <translation>Politik</translation>
    </message>
    <message>
        <source>Governments, elections, parties, diplomacy</source>
        <translation>Regierungen, Wahlen, Parteien, Diplomatie</translation>
    </message>
    <message>
        <source>religion and belief</source>
        <translation>Religion und Glaube</translation>
    </message>
    <message>
        <source>Faiths, their people and their feasts</source>
        <translation>Glaubensgemeinschaften, ihre Menschen und Feste</translation>
    </message>
    <message>
        <source>science and technology</source>
        <translation>Wissenschaft und Technik</translation>
    </message>
    <message>
        <source>Research, discoveries, inventions</source>
        <translation>Forschung, Entdeckungen, Erfindungen</translation>
    </message>
    <message>
        <source>social issue</source>
        <translation>Soziales</translation>
    </message>
    <message>
        <source>Families, poverty, migration, addiction</source>
        <translation>Familien, Armut, Migration, Sucht</translation>
    </message>
    <message>
        <source>sport</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Competitions, athletes, clubs</source>
        <translation>Wettkämpfe, Sportler, Vereine</translation>
    </message>
    <message>
        <source>unrest, conflicts and war</source>
        <translation>Unruhen, Konflikte und Krieg</translation>
    </message>
    <message>
        <source>Wars, riots, terror, peace talks</source>
        <translation>Kriege, Krawalle, Terror, Friedensgespräche</translation>
    </message>
    <message>
        <source>weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>Forecasts, storms, heat, snow</source>
        <translation>Vorhersagen, Stürme, Hitze, Schnee</translation>
    </message>
    <message>
        <source>Media topic</source>
        <translation>Medienthema</translation>
    </message>
    <message>
        <source>arts, culture, entertainment and media</source>
        <translation>Kunst, Kultur, Unterhaltung und Medien</translation>
    </message>
    <message>
        <source>Music, film, theatre, literature, museums, press and broadcasting</source>
        <translation>Musik, Film, Theater, Literatur, Museen, Presse und Rundfunk</translation>
    </message>
    <message>
        <source>disaster, accident and emergency incident</source>
        <translation>Katastrophen, Unglücke und Notfälle</translation>
    </message>
    <message>
        <source>Fires, floods, earthquakes, crashes, rescues</source>
        <translation>Brände, Hochwasser, Erdbeben, Abstürze, Rettungseinsätze</translation>
    </message>
    <message>
        <source>environment</source>
        <translation>Umwelt</translation>
    </message>
    <message>
        <source>politics and government</source>
        <translation>Politik und Regierung</translation>
    </message>
    <message>
        <source>religion</source>
        <translation>Religion</translation>
    </message>
    <message>
        <source>society</source>
        <translation>Gesellschaft</translation>
    </message>
    <message>
        <source>Families, communities, migration, welfare</source>
        <translation>Familien, Gemeinschaften, Migration, Sozialwesen</translation>
    </message>
    <message>
        <source>conflict, war and peace</source>
        <translation>Konflikte, Krieg und Frieden</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Actuality</source>
        <translation>Originalaufnahme</translation>
    </message>
    <message>
        <source>Something as it happened, recorded there</source>
        <translation>Etwas, wie es geschah, vor Ort aufgezeichnet</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Ratgeber</translation>
    </message>
    <message>
        <source>Help with a question of daily life</source>
        <translation>Hilfe bei einer Frage des täglichen Lebens</translation>
    </message>
    <message>
        <source>Almanac</source>
        <translation>Kalenderblatt</translation>
    </message>
    <message>
        <source>What happened on this day in other years</source>
        <translation>Was an diesem Tag in anderen Jahren geschah</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Explains what an event means</source>
        <translation>Erklärt, was ein Ereignis bedeutet</translation>
    </message>
    <message>
        <source>Anniversary</source>
        <translation>Jahrestag</translation>
    </message>
    <message>
        <source>Looks back on the day of an earlier event</source>
        <translation>Blickt am Jahrestag auf ein früheres Ereignis zurück</translation>
    </message>
    <message>
        <source>Archive material</source>
        <translation>Archivmaterial</translation>
    </message>
    <message>
        <source>Kept from earlier and used again</source>
        <translation>Von früher aufbewahrt und wieder verwendet</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>What has to be known to follow an event</source>
        <translation>Was man wissen muss, um ein Ereignis zu verstehen</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Aktuelles</translation>
    </message>
    <message>
        <source>About what happens at the moment</source>
        <translation>Über das, was im Moment geschieht</translation>
    </message>
    <message>
        <source>Curtain Raiser</source>
        <translation>Vorbericht</translation>
    </message>
    <message>
        <source>Tells of an event before it begins</source>
        <translation>Berichtet von einem Ereignis, bevor es beginnt</translation>
    </message>
    <message>
        <source>Daybook</source>
        <translation>Terminübersicht</translation>
    </message>
    <message>
        <source>What is planned for the day</source>
        <translation>Was für den Tag geplant ist</translation>
    </message>
    <message>
        <source>Exclusive</source>
        <translation>Exklusiv</translation>
    </message>
    <message>
        <source>Had by one publisher alone</source>
        <translation>Nur bei einem einzigen Medium</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <source>A longer piece on a person or a subject</source>
        <translation>Ein längerer Beitrag über eine Person oder ein Thema</translation>
    </message>
    <message>
        <source>Fixture</source>
        <translation>Feste Rubrik</translation>
    </message>
    <message>
        <source>Appears regularly</source>
        <translation>Erscheint regelmäßig</translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation>Prognose</translation>
    </message>
    <message>
        <source>Says what is to be expected</source>
        <translation>Sagt, was zu erwarten ist</translation>
    </message>
    <message>
        <source>From the Scene</source>
        <translation>Vom Ort des Geschehens</translation>
    </message>
    <message>
        <source>Reported from where it happens</source>
        <translation>Berichtet von dort, wo es geschieht</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geschichte</translation>
    </message>
    <message>
        <source>About times long past</source>
        <translation>Über längst vergangene Zeiten</translation>
    </message>
    <message>
        <source>Horoscope</source>
        <translation>Horoskop</translation>
    </message>
    <message>
        <source>What the stars are said to tell</source>
        <translation>Was die Sterne sagen sollen</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>Interview</translation>
    </message>
    <message>
        <source>A talk with somebody</source>
        <translation>Ein Gespräch mit jemandem</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>About music, or music itself</source>
        <translation>Über Musik, oder die Musik selbst</translation>
    </message>
    <message>
        <source>Obituary</source>
        <translation>Nachruf</translation>
    </message>
    <message>
        <source>Tells the life of somebody who has died</source>
        <translation>Erzählt das Leben einer verstorbenen Person</translation>
    </message>
    <message>
        <source>Opinion</source>
        <translation>Meinung</translation>
    </message>
    <message>
        <source>Says what its author thinks</source>
        <translation>Sagt, was der Autor denkt</translation>
    </message>
    <message>
        <source>Polls and Surveys</source>
        <translation>Umfragen und Erhebungen</translation>
    </message>
    <message>
        <source>What many people answered</source>
        <translation>Was viele Menschen geantwortet haben</translation>
    </message>
    <message>
        <source>Press Release</source>
        <translation>Pressemitteilung</translation>
    </message>
    <message>
        <source>Issued by those whom it is about</source>
        <translation>Herausgegeben von denen, um die es geht</translation>
    </message>
    <message>
        <source>Press-Digest</source>
        <translation>Presseschau</translation>
    </message>
    <message>
        <source>What other papers say</source>
        <translation>Was andere Zeitungen sagen</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Porträt</translation>
    </message>
    <message>
        <source>A portrait of a person or an organization</source>
        <translation>Stellt eine Person oder eine Organisation vor</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>What will be performed or broadcast</source>
        <translation>Was aufgeführt oder gesendet wird</translation>
    </message>
    <message>
        <source>Question and Answer Session</source>
        <translation>Fragen und Antworten</translation>
    </message>
    <message>
        <source>Questions put to somebody, and the answers</source>
        <translation>Fragen an jemanden und die Antworten</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Zitat</translation>
    </message>
    <message>
        <source>Somebody&apos;s own words</source>
        <translation>Jemandes eigene Worte</translation>
    </message>
    <message>
        <source>Raw Sound</source>
        <translation>Rohton</translation>
    </message>
    <message>
        <source>Sound without editing</source>
        <translation>Ton ohne Bearbeitung</translation>
    </message>
    <message>
        <source>Response to a Question</source>
        <translation>Antwort auf eine Frage</translation>
    </message>
    <message>
        <source>One answer to one question</source>
        <translation>Eine Antwort auf eine Frage</translation>
    </message>
    <message>
        <source>Results Listings and Statistics</source>
        <translation>Ergebnisse, Tabellen und Statistiken</translation>
    </message>
    <message>
        <source>Scores, tables, numbers</source>
        <translation>Spielstände, Tabellen, Zahlen</translation>
    </message>
    <message>
        <source>Retrospective</source>
        <translation>Retrospektive</translation>
    </message>
    <message>
        <source>Looks back over a longer time</source>
        <translation>Blickt auf einen längeren Zeitraum zurück</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Rezension</translation>
    </message>
    <message>
        <source>Judges a book, a film, a show</source>
        <translation>Beurteilt ein Buch, einen Film, eine Aufführung</translation>
    </message>
    <message>
        <source>Scener</source>
        <translation>Stimmungsbericht</translation>
    </message>
    <message>
        <source>Describes what it is like at a place</source>
        <translation>Beschreibt, wie es an einem Ort ist</translation>
    </message>
    <message>
        <source>Side bar and supporting information</source>
        <translation>Infokasten und Zusatzinformation</translation>
    </message>
    <message>
        <source>Goes with another piece and adds to it</source>
        <translation>Gehört zu einem anderen Beitrag und ergänzt ihn</translation>
    </message>
    <message>
        <source>Special Report</source>
        <translation>Sonderbericht</translation>
    </message>
    <message>
        <source>A thorough look at one subject</source>
        <translation>Ein gründlicher Blick auf ein Thema</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>The main points of several pieces</source>
        <translation>Das Wichtigste aus mehreren Beiträgen</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Inhaltsangabe</translation>
    </message>
    <message>
        <source>What a longer work contains, in short</source>
        <translation>Was ein längeres Werk enthält, in Kürze</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Nur Text</translation>
    </message>
    <message>
        <source>Has no pictures or sound</source>
        <translation>Hat weder Bilder noch Ton</translation>
    </message>
    <message>
        <source>Transcript and Verbatim</source>
        <translation>Mitschrift und Wortlaut</translation>
    </message>
    <message>
        <source>Word for word what was said</source>
        <translation>Wort für Wort, was gesagt wurde</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <source>Adds what is new to an earlier piece</source>
        <translation>Ergänzt einen früheren Beitrag um Neues</translation>
    </message>
    <message>
        <source>Voicer</source>
        <translation>Aufsager</translation>
    </message>
    <message>
        <source>A reporter&apos;s voice tells the story</source>
        <translation>Die Stimme eines Reporters erzählt, was geschah</translation>
    </message>
    <message>
        <source>Wrap</source>
        <translation>Sammelbericht</translation>
    </message>
    <message>
        <source>Brings several reports together</source>
        <translation>Führt mehrere Berichte zusammen</translation>
    </message>
    <message>
        <source>Wrapup</source>
        <translation>Abschlussbericht</translation>
    </message>
    <message>
        <source>Tells an event once more when it has ended</source>
        <translation>Erzählt ein Ereignis noch einmal, wenn es vorüber ist</translation>
    </message>
    <message>
        <source>Africa</source>
        <translation>Afrika</translation>
    </message>
    <message>
        <source>From Tunisia to South Africa, with its islands</source>
        <translation>Von Tunesien bis Südafrika, mit den Inseln</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>Antarktis</translation>
    </message>
    <message>
        <source>The continent round the South Pole</source>
        <translation>Der Kontinent um den Südpol</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>Asien</translation>
    </message>
    <message>
        <source>From Turkey to Japan and Indonesia</source>
        <translation>Von der Türkei bis Japan und Indonesien</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>Europa</translation>
    </message>
    <message>
        <source>From Iceland to Russia</source>
        <translation>Von Island bis Russland</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>Nordamerika</translation>
    </message>
    <message>
        <source>From Greenland to Panama, with the Caribbean</source>
        <translation>Von Grönland bis Panama, mit der Karibik</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>Ozeanien</translation>
    </message>
    <message>
        <source>Australia, New Zealand and the islands of the Pacific</source>
        <translation>Australien, Neuseeland und die Inseln des Pazifiks</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>Südamerika</translation>
    </message>
    <message>
        <source>From Colombia to Tierra del Fuego</source>
        <translation>Von Kolumbien bis Feuerland</translation>
    </message>
    <message>
        <source>World</source>
        <translation>Welt</translation>
    </message>
    <message>
        <source>The whole world</source>
        <translation>Die ganze Welt</translation>
    </message>
    <message>
        <source>Region type</source>
        <translation>Art des Bildbereichs</translation>
    </message>
    <message>
        <source>human</source>
        <translation>Mensch</translation>
    </message>
    <message>
        <source>A person, or part of one</source>
        <translation>Eine Person oder ein Teil von ihr</translation>
    </message>
    <message>
        <source>animal</source>
        <translation>Tier</translation>
    </message>
    <message>
        <source>An animal, or part of one</source>
        <translation>Ein Tier oder ein Teil davon</translation>
    </message>
    <message>
        <source>plant</source>
        <translation>Pflanze</translation>
    </message>
    <message>
        <source>A plant, or part of one</source>
        <translation>Eine Pflanze oder ein Teil davon</translation>
    </message>
    <message>
        <source>building</source>
        <translation>Gebäude</translation>
    </message>
    <message>
        <source>A building, or part of one</source>
        <translation>Ein Gebäude oder ein Teil davon</translation>
    </message>
    <message>
        <source>vehicle</source>
        <translation>Fahrzeug</translation>
    </message>
    <message>
        <source>A car, train, ship or plane</source>
        <translation>Ein Auto, ein Zug, ein Schiff oder ein Flugzeug</translation>
    </message>
    <message>
        <source>Something that is made to be sold</source>
        <translation>Etwas, das zum Verkauf hergestellt wird</translation>
    </message>
    <message>
        <source>A work of art</source>
        <translation>Ein Kunstwerk</translation>
    </message>
    <message>
        <source>food</source>
        <translation>Lebensmittel</translation>
    </message>
    <message>
        <source>Something to eat or drink</source>
        <translation>Etwas zu essen oder zu trinken</translation>
    </message>
    <message>
        <source>clothing</source>
        <translation>Kleidung</translation>
    </message>
    <message>
        <source>Something to wear</source>
        <translation>Etwas zum Anziehen</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Words that can be read</source>
        <translation>Wörter, die zu lesen sind</translation>
    </message>
    <message>
        <source>graphic</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>A drawing, a logo, a sign</source>
        <translation>Eine Zeichnung, ein Logo, ein Schild</translation>
    </message>
    <message>
        <source>machine-readable code</source>
        <translation>Maschinenlesbarer Code</translation>
    </message>
    <message>
        <source>A bar code or the like</source>
        <translation>Ein Strichcode oder Ähnliches</translation>
    </message>
    <message>
        <source>geographic area</source>
        <translation>Geografisches Gebiet</translation>
    </message>
    <message>
        <source>A stretch of land</source>
        <translation>Ein Stück Land</translation>
    </message>
    <message>
        <source>rock formation</source>
        <translation>Felsformation</translation>
    </message>
    <message>
        <source>Rocks, cliffs, mountains</source>
        <translation>Felsen, Klippen, Berge</translation>
    </message>
    <message>
        <source>body of water</source>
        <translation>Gewässer</translation>
    </message>
    <message>
        <source>A lake, a river, the sea</source>
        <translation>Ein See, ein Fluss, das Meer</translation>
    </message>
    <message>
        <source>dividing line</source>
        <translation>Trennlinie</translation>
    </message>
    <message>
        <source>Where one picture in the picture ends and another begins</source>
        <translation>Wo ein Bild im Bild endet und ein anderes beginnt</translation>
    </message>
    <message>
        <source>Region role</source>
        <translation>Rolle des Bildbereichs</translation>
    </message>
    <message>
        <source>main subject area</source>
        <translation>Hauptmotiv</translation>
    </message>
    <message>
        <source>What the picture is mostly about; one a picture</source>
        <translation>Worum es im Bild vor allem geht; eines je Bild</translation>
    </message>
    <message>
        <source>subject area</source>
        <translation>Motiv</translation>
    </message>
    <message>
        <source>Something that the picture is about</source>
        <translation>Etwas, worum es im Bild geht</translation>
    </message>
    <message>
        <source>area of interest</source>
        <translation>Interessanter Bereich</translation>
    </message>
    <message>
        <source>Worth looking at</source>
        <translation>Sehenswert</translation>
    </message>
    <message>
        <source>cropping</source>
        <translation>Beschnitt</translation>
    </message>
    <message>
        <source>To be cut to this</source>
        <translation>Hierauf zu beschneiden</translation>
    </message>
    <message>
        <source>recommended cropping</source>
        <translation>Empfohlener Beschnitt</translation>
    </message>
    <message>
        <source>Best cut to this</source>
        <translation>Am besten hierauf zu beschneiden</translation>
    </message>
    <message>
        <source>landscape format cropping</source>
        <translation>Beschnitt im Querformat</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be wide</source>
        <translation>Hierauf zu beschneiden, wenn es breit sein muss</translation>
    </message>
    <message>
        <source>portrait format cropping</source>
        <translation>Beschnitt im Hochformat</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be tall</source>
        <translation>Hierauf zu beschneiden, wenn es hoch sein muss</translation>
    </message>
    <message>
        <source>square format cropping</source>
        <translation>Beschnitt im Quadrat</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be square</source>
        <translation>Hierauf zu beschneiden, wenn es quadratisch sein muss</translation>
    </message>
    <message>
        <source>composite image item</source>
        <translation>Teil einer Bildkomposition</translation>
    </message>
    <message>
        <source>One of the pictures that this one is made of</source>
        <translation>Eines der Bilder, aus denen dieses besteht</translation>
    </message>
    <message>
        <source>copyright region</source>
        <translation>Copyright-Bereich</translation>
    </message>
    <message>
        <source>Shows something with a copyright of its own</source>
        <translation>Zeigt etwas mit eigenem Urheberrecht</translation>
    </message>
    <message>
        <source>business use</source>
        <translation>Geschäftliche Verwendung</translation>
    </message>
    <message>
        <source>For use within a company&apos;s workflow</source>
        <translation>Für Arbeitsabläufe innerhalb eines Unternehmens</translation>
    </message>
    <message>
        <source>Outline shape</source>
        <translation>Form des Umrisses</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>A corner, a width and a height</source>
        <translation>Eine Ecke, eine Breite und eine Höhe</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>A center and a radius</source>
        <translation>Ein Mittelpunkt und ein Radius</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Vieleck</translation>
    </message>
    <message>
        <source>Two or more points</source>
        <translation>Zwei oder mehr Punkte</translation>
    </message>
    <message>
        <source>Outline unit</source>
        <translation>Einheit des Umrisses</translation>
    </message>
    <message>
        <source>Relative</source>
        <translation>Relativ</translation>
    </message>
    <message>
        <source>Parts of the picture&apos;s width and height, from 0 to 1</source>
        <translation>Anteile der Bildbreite und Bildhöhe, von 0 bis 1</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Pixels of the picture</source>
        <translation>Pixel des Bildes</translation>
    </message>
    <message>
        <source>English</source>
        <comment>name of this language</comment>
        <extracomment>The name of this language in this language itself, as a list of languages shows it: Deutsch, 日本語.</extracomment>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>“%1” is there already</source>
        <translation>„%1“ ist schon vorhanden</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>“%1” is not there any more</source>
        <translation>„%1“ ist nicht mehr da</translation>
    </message>
    <message>
        <source>another Quorbel is renaming at this moment</source>
        <translation>eine andere Quorbel-Instanz benennt gerade um</translation>
    </message>
    <message>
        <source>Undo Rename</source>
        <translation>Umbenennen rückgängig machen</translation>
    </message>
    <message>
        <source>Undo Rename of “%1”</source>
        <translation>Umbenennen rückgängig machen: „%1“</translation>
    </message>
    <message numerus="yes">
        <source>Undo Rename of %n Photo(s)</source>
        <translation>
            <numerusform>Umbenennen rückgängig machen: %n Foto</numerusform>
            <numerusform>Umbenennen rückgängig machen: %n Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>a file name cannot hold “/”</source>
        <translation>ein Dateiname kann kein „/“ enthalten</translation>
    </message>
    <message>
        <source>too long for a file name</source>
        <translation>zu lang für einen Dateinamen</translation>
    </message>
    <message>
        <source>its folder is read-only</source>
        <translation>der Ordner ist schreibgeschützt</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>nicht mehr da</translation>
    </message>
    <message>
        <source>stays %1</source>
        <extracomment>%1 is a file&apos;s name: what is said of a photo that lacks a value</extracomment>
        <translation>bleibt %1</translation>
    </message>
    <message>
        <source>becomes %1</source>
        <translation>wird zu %1</translation>
    </message>
    <message>
        <source>name taken, so -%1</source>
        <extracomment>%1 is the number that was put behind the name</extracomment>
        <translation>Name vergeben, daher -%1</translation>
    </message>
    <message>
        <source>with %1</source>
        <extracomment>%1 are files that are renamed along with the photo</extracomment>
        <translation>mit %1</translation>
    </message>
    <message>
        <source>Cannot move “%1”</source>
        <translation>„%1“ lässt sich nicht verschieben</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <extracomment>%1 is a list: &quot;a.jpg, b.jpg and 3 more&quot;
----------
The end of a list of names: %1 is those before, with commas between them.</extracomment>
        <translation>
            <numerusform>%1 und %n weiteres</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (is a folder|are folders); nothing was written.</source>
        <translation>
            <numerusform>%1 ist ein Ordner; nichts wurde geschrieben.</numerusform>
            <numerusform>%1 sind Ordner; nichts wurde geschrieben.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 ist schreibgeschützt.</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 photos (is|are) read-only: %2; nothing was written.</source>
        <extracomment>%2 names the photos</extracomment>
        <translation>
            <numerusform>%n von %1 Fotos ist schreibgeschützt: %2; nichts wurde geschrieben.</numerusform>
            <numerusform>%n von %1 Fotos sind schreibgeschützt: %2; nichts wurde geschrieben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another save is under way or was cut off: %1 lies beside the photo. If no other program is saving, delete it and save again. Nothing was written.</source>
        <translation>Ein anderes Speichern läuft noch oder wurde abgebrochen: Neben dem Foto liegt %1. Wenn kein anderes Programm speichert, diese Datei löschen und erneut speichern. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>“%1” is too long: a value may have 128 KiB at most. Nothing was written.</source>
        <translation>„%1“ ist zu lang: Ein Wert darf höchstens 128 KiB groß sein. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Cannot write “%1”</source>
        <translation>„%1“ lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>Cannot keep a copy of “%1”</source>
        <translation>Von „%1“ lässt sich keine Kopie aufbewahren</translation>
    </message>
    <message>
        <source>Only the letters A–Z and digits can be stored in a name.</source>
        <translation>In einem Namen können nur die Buchstaben A–Z und Ziffern gespeichert werden.</translation>
    </message>
    <message>
        <source>A name needs at least two letters or digits.</source>
        <translation>Ein Name braucht mindestens zwei Buchstaben oder Ziffern.</translation>
    </message>
    <message>
        <source>“%1” is a reserved word; choose another name.</source>
        <translation>„%1“ ist ein reserviertes Wort; bitte einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>That is the field %1</source>
        <extracomment>%1 is a field&apos;s name</extracomment>
        <translation>Das ist das Feld %1</translation>
    </message>
    <message>
        <source>Not a date: YYYY-MM-DD HH:MM</source>
        <translation>Kein Datum: YYYY-MM-DD HH:MM</translation>
    </message>
    <message>
        <source>Not a position: lat, lon</source>
        <translation>Keine Position: lat, lon</translation>
    </message>
    <message>
        <source>Not an offset: +HH:MM</source>
        <translation>Kein UTC-Versatz: +HH:MM</translation>
    </message>
    <message>
        <source>Not a whole number</source>
        <translation>Keine ganze Zahl</translation>
    </message>
    <message>
        <source>Afrikaans</source>
        <translation>Afrikaans</translation>
    </message>
    <message>
        <source>Albanian</source>
        <translation>Albanisch</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabisch</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>Armenisch</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation>Baskisch</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>Bengalisch</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation>Bulgarisch</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation>Katalanisch</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinesisch</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Kroatisch</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Tschechisch</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Dänisch</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Niederländisch</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation>Estnisch</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation>Finnisch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation>Galicisch</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>Georgisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griechisch</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebräisch</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation>Ungarisch</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation>Isländisch</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation>Indonesisch</translation>
    </message>
    <message>
        <source>Irish</source>
        <translation>Irisch</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italienisch</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
    </message>
    <message>
        <source>Latin</source>
        <translation>Latein</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation>Lettisch</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation>Litauisch</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation>Malaiisch</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Norwegisch</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation>Persisch</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polnisch</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portugiesisch</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation>Rumänisch</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russisch</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation>Serbisch</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation>Slowakisch</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Slowenisch</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation>Suaheli</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Schwedisch</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thailändisch</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Türkisch</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation>Ukrainisch</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation>Urdu</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamesisch</translation>
    </message>
    <message>
        <source>Welsh</source>
        <translation>Walisisch</translation>
    </message>
    <message>
        <source>Shown as the photo&apos;s name / heading</source>
        <translation>Erscheint als Name / Überschrift des Fotos</translation>
    </message>
    <message>
        <source>Searchable caption everywhere</source>
        <translation>Überall durchsuchbarer Bildtext</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Sorts your library by date in every app</source>
        <translation>Sortiert die Bibliothek in allen Programmen nach Datum</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Filter &amp; group by tag</source>
        <translation>Nach Stichwort filtern und gruppieren</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Ersteller</translation>
    </message>
    <message>
        <source>Who made the photo</source>
        <translation>Wer das Foto gemacht hat</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Rights / copyright notice</source>
        <translation>Rechte / Copyright-Vermerk</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Pins on the map; sorts by place</source>
        <translation>Markiert das Foto auf der Karte; sortiert nach Ort</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Koordinaten</translation>
    </message>
    <message>
        <source>GPS latitude / longitude</source>
        <translation>GPS-Breitengrad / GPS-Längengrad</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Bewertung</translation>
    </message>
    <message>
        <source>★ 1–5, read by most libraries</source>
        <translation>★ 1–5, von den meisten Bildverwaltungen gelesen</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Überschrift</translation>
    </message>
    <message>
        <source>Short title shown in galleries</source>
        <translation>Kurzer Titel für Galerien</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personen</translation>
    </message>
    <message>
        <source>Names of people shown</source>
        <translation>Namen der abgebildeten Personen</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Group photos by event</source>
        <translation>Fotos nach Ereignis gruppieren</translation>
    </message>
    <message>
        <source>State / Province</source>
        <translation>Bundesland / Kanton</translation>
    </message>
    <message>
        <source>State or province</source>
        <translation>Bundesland, Kanton oder Provinz</translation>
    </message>
    <message>
        <source>Country name</source>
        <translation>Name des Landes</translation>
    </message>
    <message>
        <source>Sub-location</source>
        <translation>Ortsdetail</translation>
    </message>
    <message>
        <source>Neighborhood / venue</source>
        <translation>Stadtteil / Veranstaltungsort</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etikett</translation>
    </message>
    <message>
        <source>Colour / text label</source>
        <translation>Farb- / Textetikett</translation>
    </message>
    <message>
        <source>Caption writer</source>
        <translation>Bildtextautor</translation>
    </message>
    <message>
        <source>Who wrote the caption</source>
        <translation>Wer den Bildtext geschrieben hat</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Subject category</source>
        <translation>Themenkategorie</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Bildnachweis</translation>
    </message>
    <message>
        <source>Credit line</source>
        <translation>Bildnachweis (Credit)</translation>
    </message>
    <message>
        <source>Intellectual genre</source>
        <translation>Intellektuelles Genre</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Anweisungen</translation>
    </message>
    <message>
        <source>Editorial instructions</source>
        <translation>Redaktionelle Anweisungen</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>Auftrags-ID</translation>
    </message>
    <message>
        <source>Job / transmission reference</source>
        <translation>Auftrags- / Übertragungsreferenz</translation>
    </message>
    <message>
        <source>IPTC scene code</source>
        <translation>IPTC-Szenencode</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Editing software</source>
        <translation>Bearbeitungssoftware</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>Ursprüngliche Quelle</translation>
    </message>
    <message>
        <source>Urgency</source>
        <translation>Dringlichkeit</translation>
    </message>
    <message>
        <source>Editorial urgency (1–8)</source>
        <translation>Redaktionelle Dringlichkeit (1–8)</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>Nutzungsrechte</translation>
    </message>
    <message>
        <source>Rights usage terms</source>
        <translation>Nutzungsbedingungen</translation>
    </message>
    <message>
        <source>Web statement</source>
        <translation>Rechte-Webseite</translation>
    </message>
    <message>
        <source>Rights URL</source>
        <translation>URL zu den Rechten</translation>
    </message>
    <message>
        <source>Date digitized</source>
        <translation>Digitalisiert am</translation>
    </message>
    <message>
        <source>When the image was digitized / scanned</source>
        <translation>Wann das Bild digitalisiert / gescannt wurde</translation>
    </message>
    <message>
        <source>TZ offset (taken)</source>
        <translation>UTC-Versatz (Aufnahme)</translation>
    </message>
    <message>
        <source>Timezone offset for date taken</source>
        <translation>Zeitzonenversatz des Aufnahmedatums</translation>
    </message>
    <message>
        <source>TZ offset (digitized)</source>
        <translation>UTC-Versatz (digitalisiert)</translation>
    </message>
    <message>
        <source>Timezone offset for date digitized</source>
        <translation>Zeitzonenversatz des Digitalisierungsdatums</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Shutter</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Blende</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>Color space</source>
        <translation>Farbraum</translation>
    </message>
    <message>
        <source>COMMON</source>
        <translation>ALLGEMEIN</translation>
    </message>
    <message>
        <source>LOCATION</source>
        <translation>ORT</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>DETAILS</translation>
    </message>
    <message>
        <source>CONTACT</source>
        <translation>KONTAKT</translation>
    </message>
    <message>
        <source>PEOPLE</source>
        <translation>PERSONEN</translation>
    </message>
    <message>
        <source>LOCATION CREATED</source>
        <translation>AUFNAHMEORT</translation>
    </message>
    <message>
        <source>LOCATION SHOWN</source>
        <translation>ABGEBILDETER ORT</translation>
    </message>
    <message>
        <source>SUBJECTS</source>
        <translation>THEMEN</translation>
    </message>
    <message>
        <source>THINGS SHOWN</source>
        <translation>DINGE IM BILD</translation>
    </message>
    <message>
        <source>REGIONS</source>
        <translation>BILDBEREICHE</translation>
    </message>
    <message>
        <source>RIGHTS</source>
        <translation>RECHTE</translation>
    </message>
    <message>
        <source>LICENSING</source>
        <translation>LIZENZIERUNG</translation>
    </message>
    <message>
        <source>SOURCE</source>
        <translation>QUELLE</translation>
    </message>
    <message>
        <source>IMAGE</source>
        <translation>BILD</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0 KB</translation>
    </message>
    <message>
        <source>Not a file</source>
        <translation>Keine Datei</translation>
    </message>
    <message>
        <source>File is empty</source>
        <translation>Die Datei ist leer</translation>
    </message>
    <message>
        <source>Not an XMP file</source>
        <translation>Keine XMP-Datei</translation>
    </message>
    <message>
        <source>set</source>
        <translation>setzen</translation>
    </message>
    <message>
        <source>set if empty</source>
        <translation>setzen, wenn leer</translation>
    </message>
    <message>
        <source>append</source>
        <translation>anhängen</translation>
    </message>
    <message>
        <source>prepend</source>
        <translation>voranstellen</translation>
    </message>
    <message>
        <source>“%1” names a field that there is not.</source>
        <translation>„%1“ nennt ein Feld, das es nicht gibt.</translation>
    </message>
    <message>
        <source>“%1” says nothing that can be done to a field.</source>
        <translation>„%1“ sagt nichts, was sich mit einem Feld tun lässt.</translation>
    </message>
    <message>
        <source>“%1” has a field without a text.</source>
        <translation>„%1“ hat ein Feld ohne Text.</translation>
    </message>
    <message>
        <source>“%1” is no template.</source>
        <translation>„%1“ ist keine Vorlage.</translation>
    </message>
    <message>
        <source>“%1” was made by a newer version of Quorbel.</source>
        <translation>„%1“ stammt von einer neueren Version von Quorbel.</translation>
    </message>
    <message>
        <source>“%1” has no name.</source>
        <translation>„%1“ hat keinen Namen.</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>„%1“ ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Cannot write the template “%1”</source>
        <translation>Die Vorlage „%1“ lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>%1 missing: “%2”</source>
        <extracomment>%1 is a field that the photo has nothing in, %2 what the template gives instead</extracomment>
        <translation>%1 fehlt: „%2“</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <extracomment>%1 are the fields that the photo has nothing in: &quot;Place, Event missing&quot;</extracomment>
        <translation>Fehlt: %1</translation>
    </message>
    <message>
        <source>Not a rating: 0 to 5</source>
        <translation>Keine Bewertung: 0 bis 5</translation>
    </message>
    <message>
        <source>kept: %1</source>
        <extracomment>What a field holds stays as it is; %1 is why: &quot;kept: not empty&quot;</extracomment>
        <translation>bleibt: %1</translation>
    </message>
    <message>
        <source>nothing to fill in</source>
        <translation>nichts auszufüllen</translation>
    </message>
    <message>
        <source>not read yet</source>
        <translation>noch nicht gelesen</translation>
    </message>
    <message>
        <source>not empty</source>
        <translation>nicht leer</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>schon vorhanden</translation>
    </message>
    <message>
        <source>%1 of one photo: %2</source>
        <extracomment>%1 is a field, %2 why a text cannot stand in it</extracomment>
        <translation>%1 eines Fotos: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s): %2</source>
        <translation>
            <numerusform>%1 von %n Foto: %2</numerusform>
            <numerusform>%1 von %n Fotos: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Perl interpreter not found at %1.</source>
        <translation>Perl-Interpreter unter %1 nicht gefunden.</translation>
    </message>
    <message>
        <source>ExifTool exited with code %1: %2</source>
        <translation>ExifTool endete mit Code %1: %2</translation>
    </message>
    <message>
        <source>Could not decode ExifTool output: %1</source>
        <translation>Ausgabe von ExifTool nicht lesbar: %1</translation>
    </message>
    <message>
        <source>Bundled ExifTool could not be located.</source>
        <translation>Das mitgelieferte ExifTool wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 is what failed (&quot;Cannot move “/photos/a.jpg”&quot;), %2 the system&apos;s reason</extracomment>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>ExifTool could not be started: %1</source>
        <translation>ExifTool ließ sich nicht starten: %1</translation>
    </message>
    <message>
        <source>The read was cancelled.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Original name</source>
        <translation>Ursprünglicher Name</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>quotation marks around a name or a text that the user typed
----------
A name, in quotation marks.</extracomment>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>“%1” cannot be replaced and added to in one save. Nothing was written.</source>
        <translation>„%1“ lässt sich nicht in einem Zug ersetzen und ergänzen. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Changed while it was read</source>
        <translation>Während des Lesens geändert</translation>
    </message>
    <message>
        <source>Cannot write to “%1”</source>
        <translation>Schreiben nach „%1“ nicht möglich</translation>
    </message>
    <message>
        <source>%1 — output: %2</source>
        <extracomment>%1 is why it could not be decoded, %2 the beginning of it</extracomment>
        <translation>%1 – Ausgabe: %2</translation>
    </message>
    <message>
        <source>its values are not UTF-8</source>
        <translation>die Werte sind nicht UTF-8</translation>
    </message>
    <message>
        <source>not an array of objects</source>
        <translation>kein Array von Objekten</translation>
    </message>
    <message>
        <source>The file is not UTF-8: it was read as Windows Latin 1.</source>
        <translation>Die Datei ist nicht UTF-8: Sie wurde als Windows Latin 1 gelesen.</translation>
    </message>
    <message>
        <source>Some characters of the file could not be read.</source>
        <translation>Einige Zeichen der Datei waren nicht lesbar.</translation>
    </message>
    <message numerus="yes">
        <source>%n more line(s) like these.</source>
        <translation>
            <numerusform>%n weitere Zeile dieser Art.</numerusform>
            <numerusform>%n weitere Zeilen dieser Art.</numerusform>
        </translation>
    </message>
    <message>
        <source>Line %1 has no tab: %2</source>
        <extracomment>%2 is the line, in quotation marks</extracomment>
        <translation>Zeile %1 hat keinen Tabulator: %2</translation>
    </message>
    <message>
        <source>Line %1 has no code in front of its tab.</source>
        <translation>Zeile %1 hat kein Kürzel vor dem Tabulator.</translation>
    </message>
    <message>
        <source>Line %1 has no text for %2.</source>
        <extracomment>%2 is a code, in quotation marks</extracomment>
        <translation>Zeile %1 hat keinen Text für %2.</translation>
    </message>
    <message>
        <source>Line %1: nobody can type a code with “=” in it: %2</source>
        <extracomment>%2 is a code, in quotation marks</extracomment>
        <translation>Zeile %1: Ein Kürzel mit „=“ lässt sich nicht eingeben: %2</translation>
    </message>
    <message numerus="yes">
        <source>Line %1: a code has at most %n character(s): %2</source>
        <extracomment>%2 is a code that has more, in quotation marks</extracomment>
        <translation>
            <numerusform>Zeile %1: Ein Kürzel hat höchstens %n Zeichen: %2</numerusform>
            <numerusform>Zeile %1: Ein Kürzel hat höchstens %n Zeichen: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is there twice, in lines %2 and %3: the last one counts.</source>
        <extracomment>%1 is a code, in quotation marks</extracomment>
        <translation>%1 ist doppelt vorhanden, in Zeile %2 und %3: Das letzte gilt.</translation>
    </message>
    <message numerus="yes">
        <source>%n date(s)</source>
        <translation>
            <numerusform>%n Datum</numerusform>
            <numerusform>%n Datumsangaben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n title(s)</source>
        <translation>
            <numerusform>%n Titel</numerusform>
            <numerusform>%n Titel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n description(s)</source>
        <translation>
            <numerusform>%n Beschreibung</numerusform>
            <numerusform>%n Beschreibungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n creator(s)</source>
        <translation>
            <numerusform>%n Ersteller</numerusform>
            <numerusform>%n Ersteller</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n place(s)</source>
        <translation>
            <numerusform>%n Ort</numerusform>
            <numerusform>%n Orte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n headline(s)</source>
        <translation>
            <numerusform>%n Überschrift</numerusform>
            <numerusform>%n Überschriften</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n Ereignis</numerusform>
            <numerusform>%n Ereignisse</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n</source>
        <extracomment>%1 is a text in quotation marks that would go, %n the number of photos that hold it: &quot;“Old one” in 3&quot;</extracomment>
        <translation>
            <numerusform>%1 in %n</numerusform>
            <numerusform>%1 in %n</numerusform>
        </translation>
    </message>
    <message>
        <source>fills the empty field</source>
        <translation>füllt das leere Feld</translation>
    </message>
    <message>
        <source>would fill the empty field</source>
        <translation>würde das leere Feld füllen</translation>
    </message>
    <message numerus="yes">
        <source>fills %n</source>
        <extracomment>%n is the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>füllt %n</numerusform>
            <numerusform>füllt %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would fill %n</source>
        <extracomment>%n is the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>würde %n füllen</numerusform>
            <numerusform>würde %n füllen</numerusform>
        </translation>
    </message>
    <message>
        <source>adds to “%1”</source>
        <extracomment>%1 is what a list holds: items are added</extracomment>
        <translation>ergänzt „%1“</translation>
    </message>
    <message>
        <source>would add to “%1”</source>
        <translation>würde „%1“ ergänzen</translation>
    </message>
    <message numerus="yes">
        <source>adds to the %1 of %n</source>
        <extracomment>%1 is a field that holds a list (&quot;keywords&quot;), %n a number of photos</extracomment>
        <translation>
            <numerusform>ergänzt %1 in %n</numerusform>
            <numerusform>ergänzt %1 in %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would add to the %1 of %n</source>
        <extracomment>%1 is a field that holds a list (&quot;keywords&quot;), %n a number of photos</extracomment>
        <translation>
            <numerusform>würde %1 in %n ergänzen</numerusform>
            <numerusform>würde %1 in %n ergänzen</numerusform>
        </translation>
    </message>
    <message>
        <source>replaces %1</source>
        <extracomment>%1 is what would go: &quot;4 titles&quot;, or a text in quotation marks</extracomment>
        <translation>ersetzt %1</translation>
    </message>
    <message>
        <source>would replace %1</source>
        <translation>würde %1 ersetzen</translation>
    </message>
    <message numerus="yes">
        <source>replaces %1, fills %n</source>
        <extracomment>%1 is what would go (&quot;4 titles&quot;), %n the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>ersetzt %1, füllt %n</numerusform>
            <numerusform>ersetzt %1, füllt %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would replace %1, fill %n</source>
        <extracomment>%1 is what would go (&quot;4 titles&quot;), %n a number of photos that have nothing there</extracomment>
        <translation>
            <numerusform>würde %1 ersetzen, %n füllen</numerusform>
            <numerusform>würde %1 ersetzen, %n füllen</numerusform>
        </translation>
    </message>
    <message>
        <source>the same already</source>
        <extracomment>%n is the number of photos that hold just the text
----------
Why nothing can be copied.</extracomment>
        <translation>bereits gleich</translation>
    </message>
    <message numerus="yes">
        <source>same in %n</source>
        <translation>
            <numerusform>gleich in %n</numerusform>
            <numerusform>gleich in %n</numerusform>
        </translation>
    </message>
    <message>
        <source>not looked at yet</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>noch nicht geprüft</translation>
    </message>
    <message numerus="yes">
        <source>%n not looked at yet</source>
        <translation>
            <numerusform>%n noch nicht geprüft</numerusform>
            <numerusform>%n noch nicht geprüft</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Of how many things: %1 and %2 are numbers.</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%n star(s)</source>
        <translation>
            <numerusform>%n Stern</numerusform>
            <numerusform>%n Sterne</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to the list</source>
        <translation>Zurück zur Liste</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>The key.</extracomment>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This is the last photo</source>
        <translation>Das ist das letzte Foto</translation>
    </message>
    <message>
        <source>This is the first photo</source>
        <translation>Das ist das erste Foto</translation>
    </message>
    <message>
        <source>No stars</source>
        <translation>Keine Sterne</translation>
    </message>
    <message>
        <source>thumbnail only</source>
        <extracomment>Of the photo there is just this small picture.</extracomment>
        <translation>nur Miniaturbild</translation>
    </message>
    <message>
        <source>damaged: not all of it can be shown</source>
        <translation>beschädigt: nicht vollständig darstellbar</translation>
    </message>
    <message>
        <source>preview %1</source>
        <extracomment>The preview within a raw file is shown. %1: its size, as “1616 × 1080”.</extracomment>
        <translation>Vorschau %1</translation>
    </message>
    <message>
        <source>preview %1 of %2</source>
        <extracomment>%1: size of what is shown, as “1616 × 1080”. %2: size of the photo.</extracomment>
        <translation>Vorschau %1 von %2</translation>
    </message>
    <message>
        <source>reduced to %1 of %2</source>
        <translation>verkleinert auf %1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) unsaved</source>
        <translation>
            <numerusform>%n Änderung ungespeichert</numerusform>
            <numerusform>%n Änderungen ungespeichert</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>This photo is damaged: there is nothing in it to show.</source>
        <translation>Dieses Foto ist beschädigt und lässt sich nicht anzeigen.</translation>
    </message>
    <message>
        <source>This photo has more pixels than can be shown.</source>
        <translation>Dieses Foto hat mehr Pixel, als sich anzeigen lassen.</translation>
    </message>
    <message>
        <source>There is no picture in this file that can be shown.</source>
        <translation>Diese Datei enthält kein Bild, das sich anzeigen lässt.</translation>
    </message>
    <message>
        <source>0 to 5 stars; click the current rating to clear it</source>
        <translation>0 bis 5 Sterne; ein Klick auf die aktuelle Bewertung löscht sie</translation>
    </message>
    <message>
        <source>Column width</source>
        <extracomment>The line between two columns of the window, which one drags.</extracomment>
        <translation>Spaltenbreite</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Vorschläge</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <extracomment>Button behind keywords: shows those that have no room.</extracomment>
        <translation>
            <numerusform>%n weiteres</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>edited</source>
        <extracomment>Spoken of a field or a section of them.</extracomment>
        <translation>bearbeitet</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Actions for this %1</source>
        <extracomment>%1: what the card holds, as “place”, “person” or “contact”.</extracomment>
        <translation>Aktionen (%1)</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <extracomment>%1: a keyword.</extracomment>
        <translation>%1 behalten</translation>
    </message>
    <message>
        <source>Take away %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>Where a keyword stands among others. %1: those above it, as “Places, Switzerland”.</extracomment>
        <translation>unter %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>%1: what is taken out of a list or form, as a keyword or a field.</extracomment>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>New keyword</source>
        <translation>Neues Stichwort</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Not among the known codes</source>
        <translation>Nicht unter den bekannten Codes</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no value</comment>
        <translation>Kein Wert</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <extracomment>%1: what was typed.</extracomment>
        <translation>„%1“ verwenden</translation>
    </message>
    <message>
        <source>As it is typed, not one of the codes</source>
        <translation>Wie eingegeben, keiner der Codes</translation>
    </message>
    <message>
        <source>chosen</source>
        <extracomment>Spoken of a row in a list.</extracomment>
        <translation>gewählt</translation>
    </message>
    <message>
        <source>Time-zone offset</source>
        <translation>Zeitzonenversatz</translation>
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
            <numerusform>%1 von %n Zeichen</numerusform>
            <numerusform>%1 von %n Zeichen</numerusform>
        </translation>
    </message>
    <message>
        <source>Default and Form…</source>
        <extracomment>Of a token. Default: what stands there where a photo has no such value; form: how a date is written.</extracomment>
        <translation>Ersatztext und Format…</translation>
    </message>
    <message>
        <source>ALSO IN THESE PHOTOS</source>
        <extracomment>Heads fields that a chosen set of fields leaves out, in capitals.</extracomment>
        <translation>AUSSERDEM IN DIESEN FOTOS</translation>
    </message>
    <message>
        <source>ALSO IN THIS PHOTO</source>
        <translation>AUSSERDEM IN DIESEM FOTO</translation>
    </message>
    <message numerus="yes">
        <source>%n field(s)</source>
        <translation>
            <numerusform>%n Feld</numerusform>
            <numerusform>%n Felder</numerusform>
        </translation>
    </message>
    <message>
        <source>No camera details</source>
        <translation>Keine Kameradaten</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A note as a sentence: %1 is its text, and what follows ends it.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Write %1 to all selected files</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>%1 in alle ausgewählten Dateien schreiben</translation>
    </message>
    <message>
        <source>Remove this field</source>
        <translation>Dieses Feld entfernen</translation>
    </message>
    <message>
        <source>Bring %1 back</source>
        <extracomment>%1: a language.</extracomment>
        <translation>%1 zurückholen</translation>
    </message>
    <message>
        <source>Reading metadata</source>
        <translation>Metadaten werden gelesen</translation>
    </message>
    <message>
        <source>Shown</source>
        <extracomment>Stands at the one of several values of a field that the form shows.</extracomment>
        <translation>Angezeigt</translation>
    </message>
    <message>
        <source>(empty)</source>
        <extracomment>A place within a photo that holds a field, and nothing in it.</extracomment>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>The photo’s own file: read here, and never written</source>
        <translation>Die Datei des Fotos selbst: wird hier gelesen und nie geschrieben</translation>
    </message>
    <message>
        <source>Belongs to another standard: read here, and never written</source>
        <translation>Gehört zu einem anderen Standard: wird hier gelesen und nie geschrieben</translation>
    </message>
    <message>
        <source>shown</source>
        <extracomment>Return is the key. Spoken: what it does to the value that has the keyboard; “shown” is the one in the form.</extracomment>
        <translation>angezeigt</translation>
    </message>
    <message>
        <source>Return uses this one</source>
        <translation>Return verwendet diesen Wert</translation>
    </message>
    <message>
        <source>Use this one</source>
        <translation>Dies verwenden</translation>
    </message>
    <message>
        <source>Make them agree</source>
        <extracomment>Button: writes what is shown to all places within a photo that hold a field.
----------
Button: writes what is shown to all places within photos that hold a field.</extracomment>
        <translation>Werte angleichen</translation>
    </message>
    <message>
        <source>Places of %1</source>
        <extracomment>Places within a photo that hold a field. %1: its name.</extracomment>
        <translation>Stellen von %1</translation>
    </message>
    <message>
        <source>Writes what is shown to all places in the sidecar, of every field whose places differ there</source>
        <translation>Schreibt den angezeigten Wert an alle Stellen im Sidecar, bei jedem Feld, dessen Stellen dort abweichen</translation>
    </message>
    <message>
        <source>Writes what is shown to all places, of every field whose places differ</source>
        <translation>Schreibt den angezeigten Wert an alle Stellen, bei jedem Feld, dessen Stellen abweichen</translation>
    </message>
    <message>
        <source>Bring back</source>
        <extracomment>Button: shows edits again that were left unsaved.</extracomment>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen…</translation>
    </message>
    <message>
        <source>Add field</source>
        <translation>Feld hinzufügen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>Wird umbenannt…</translation>
    </message>
    <message>
        <source>CUSTOM</source>
        <extracomment>Heads the fields that users have named themselves, in capitals.</extracomment>
        <translation>EIGENE FELDER</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <extracomment>Heads what the camera noted, in capitals; and beside it that nobody can change that.</extracomment>
        <translation>KAMERA</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>nicht änderbar</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>Add a description…</source>
        <translation>Beschreibung hinzufügen…</translation>
    </message>
    <message>
        <source>Add a place…</source>
        <translation>Ort hinzufügen…</translation>
    </message>
    <message>
        <source>Add a creator…</source>
        <translation>Ersteller hinzufügen…</translation>
    </message>
    <message>
        <source>Add a copyright notice…</source>
        <translation>Copyright-Vermerk hinzufügen…</translation>
    </message>
    <message>
        <source>Add a headline…</source>
        <translation>Überschrift hinzufügen…</translation>
    </message>
    <message>
        <source>Add an event…</source>
        <translation>Ereignis hinzufügen…</translation>
    </message>
    <message numerus="yes">
        <source>Will be written to all %n photos</source>
        <translation>
            <numerusform>Wird in %n Foto geschrieben</numerusform>
            <numerusform>Wird in alle %n Fotos geschrieben</numerusform>
        </translation>
    </message>
    <message>
        <source>appends — existing values kept</source>
        <extracomment>What a save does to a list of each photo.</extracomment>
        <translation>wird ergänzt – Vorhandenes bleibt</translation>
    </message>
    <message numerus="yes">
        <source>%n taken away</source>
        <extracomment>%n: how many items of a list, as keywords.</extracomment>
        <translation>
            <numerusform>%n entfernt</numerusform>
            <numerusform>%n entfernt</numerusform>
        </translation>
    </message>
    <message>
        <source>Add ID + ↵</source>
        <extracomment>↵ is the Return key, which adds what was typed to a list.</extracomment>
        <translation>ID + ↵</translation>
    </message>
    <message>
        <source>Add age + ↵</source>
        <translation>Alter + ↵</translation>
    </message>
    <message>
        <source>Add organisation + ↵</source>
        <translation>Organisation + ↵</translation>
    </message>
    <message>
        <source>Add code + ↵</source>
        <translation>Code + ↵</translation>
    </message>
    <message>
        <source>Add keyword + ↵</source>
        <translation>Stichwort + ↵</translation>
    </message>
    <message>
        <source>Add to all + ↵</source>
        <translation>Für alle + ↵</translation>
    </message>
    <message>
        <source>Multiple values — leave unchanged</source>
        <translation>Verschiedene Werte – unverändert lassen</translation>
    </message>
    <message numerus="yes">
        <source>Will be written to %1 of %n photos</source>
        <extracomment>%1 and %n: numbers of photos.</extracomment>
        <translation>
            <numerusform>Wird in %1 von %n Foto geschrieben</numerusform>
            <numerusform>Wird in %1 von %n Fotos geschrieben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %1 more…</source>
        <extracomment>%1: how many photos.
----------
%1 is a number of photos.</extracomment>
        <translation>
            <numerusform>Noch %1 wird gelesen…</numerusform>
            <numerusform>Noch %1 werden gelesen…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not read yet</source>
        <extracomment>%1: how many photos.</extracomment>
        <translation>
            <numerusform>%1 noch nicht gelesen</numerusform>
            <numerusform>%1 noch nicht gelesen</numerusform>
        </translation>
    </message>
    <message>
        <source>in all %1</source>
        <extracomment>A field holds something in all photos, or in some of them. The numbers are of photos.
----------
Said behind a keyword. The numbers are of photos.</extracomment>
        <translation>in allen %1</translation>
    </message>
    <message>
        <source>in %1 or more of %2</source>
        <translation>in mindestens %1 von %2</translation>
    </message>
    <message>
        <source>in %1 of %2</source>
        <translation>in %1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>Will be taken away from all %n photos</source>
        <translation>
            <numerusform>Wird aus %n Foto entfernt</numerusform>
            <numerusform>Wird aus allen %n Fotos entfernt</numerusform>
        </translation>
    </message>
    <message>
        <source>Will be taken away</source>
        <translation>Wird entfernt</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) (has|have) places that differ</source>
        <extracomment>%1: how many photos. Places: several within a photo that hold the same field.</extracomment>
        <translation>
            <numerusform>In %1 Foto weichen Stellen ab</numerusform>
            <numerusform>In %1 Fotos weichen Stellen ab</numerusform>
        </translation>
    </message>
    <message>
        <source>A field of this name cannot be changed here</source>
        <translation>Ein Feld dieses Namens lässt sich hier nicht ändern</translation>
    </message>
    <message>
        <source>No unsaved changes</source>
        <translation>Keine ungespeicherten Änderungen</translation>
    </message>
    <message numerus="yes">
        <source>%n unsaved change(s)</source>
        <translation>
            <numerusform>%n ungespeicherte Änderung</numerusform>
            <numerusform>%n ungespeicherte Änderungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) → %1</source>
        <extracomment>Of so many fields the values will go into files. %1: “12 files”.</extracomment>
        <translation>
            <numerusform>%n Feld → %1</numerusform>
            <numerusform>%n Felder → %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) of %1 left unsaved</source>
        <extracomment>Somebody went on without saving them. %1: “5 photos”.</extracomment>
        <translation>
            <numerusform>%n Änderung an %1 nicht gespeichert</numerusform>
            <numerusform>%n Änderungen an %1 nicht gespeichert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) left unsaved</source>
        <extracomment>Somebody went on without saving them.</extracomment>
        <translation>
            <numerusform>%n Änderung nicht gespeichert</numerusform>
            <numerusform>%n Änderungen nicht gespeichert</numerusform>
        </translation>
    </message>
    <message>
        <source>Add field to all</source>
        <translation>Feld für alle</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Wird gespeichert…</translation>
    </message>
    <message>
        <source>Apply to %1</source>
        <extracomment>Button: saves what was edited into photos. %1: how many these are.</extracomment>
        <translation>Auf %1 anwenden</translation>
    </message>
    <message>
        <source>No photo selected</source>
        <translation>Kein Foto ausgewählt</translation>
    </message>
    <message>
        <source>Add a language to %1</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>Sprache zu %1 hinzufügen</translation>
    </message>
    <message>
        <source>Language or code</source>
        <translation>Sprache oder Code</translation>
    </message>
    <message>
        <source>No such language. A code such as “de-AT” works too.</source>
        <translation>Keine solche Sprache. Auch ein Code wie „de-AT“ ist möglich.</translation>
    </message>
    <message>
        <source>Now</source>
        <extracomment>Button: puts the time of this moment into the field.</extracomment>
        <translation>Jetzt</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 places (differs|differ), another standard’s is shown</source>
        <extracomment>Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.</extracomment>
        <translation>
            <numerusform>%n von %1 Stellen weicht ab; angezeigt wird die eines anderen Standards</numerusform>
            <numerusform>%n von %1 Stellen weichen ab; angezeigt wird die eines anderen Standards</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 places (differs|differ)</source>
        <extracomment>Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.</extracomment>
        <translation>
            <numerusform>%n von %1 Stellen weicht ab</numerusform>
            <numerusform>%n von %1 Stellen weichen ab</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (will be taken away)</source>
        <extracomment>%1: code of a language, as “de”.</extracomment>
        <translation>%1 (wird entfernt)</translation>
    </message>
    <message>
        <source>%1 in other languages: %2</source>
        <extracomment>%1: name of a field, %2: codes of languages, as “de, fr”.</extracomment>
        <translation>%1 in anderen Sprachen: %2</translation>
    </message>
    <message>
        <source>Other languages: %1 (%2)</source>
        <extracomment>%1: codes of languages, as “de, fr”. %2: keys, as “Alt+Right”.</extracomment>
        <translation>Weitere Sprachen: %1 (%2)</translation>
    </message>
    <message>
        <source>Add language</source>
        <translation>Sprache hinzufügen</translation>
    </message>
    <message>
        <source>Hide Languages</source>
        <translation>Sprachen ausblenden</translation>
    </message>
    <message>
        <source>Show Languages</source>
        <translation>Sprachen anzeigen</translation>
    </message>
    <message>
        <source>Add Language…</source>
        <translation>Sprache hinzufügen…</translation>
    </message>
    <message>
        <source>Required by %1</source>
        <extracomment>Stands in an empty field. %1: name of a set of fields, as “Press”.</extracomment>
        <translation>Verlangt von „%1“</translation>
    </message>
    <message>
        <source>%1 of %2 filled</source>
        <extracomment>%1 and %2: numbers of fields.</extracomment>
        <translation>%1 von %2 ausgefüllt</translation>
    </message>
    <message>
        <source>next gap F8</source>
        <extracomment>A gap: a field that a set of fields wants and that is empty. F8 is the key.</extracomment>
        <translation>nächste Lücke F8</translation>
    </message>
    <message>
        <source>Tick a field to write it to all selected files.</source>
        <translation>Angekreuzte Felder werden in alle ausgewählten Dateien geschrieben.</translation>
    </message>
    <message numerus="yes">
        <source>Editing %n photos</source>
        <translation>
            <numerusform>%n Foto wird bearbeitet</numerusform>
            <numerusform>%n Fotos werden bearbeitet</numerusform>
        </translation>
    </message>
    <message>
        <source>Field set</source>
        <translation>Feldsatz</translation>
    </message>
    <message>
        <source>Copy from Location</source>
        <extracomment>Location: the fields of the form that say where the photo was taken.</extracomment>
        <translation>Aus „Ort“ übernehmen</translation>
    </message>
    <message>
        <source>Copy to Location</source>
        <translation>In „Ort“ übernehmen</translation>
    </message>
    <message>
        <source>Search Place…</source>
        <translation>Ort suchen…</translation>
    </message>
    <message>
        <source>nothing there</source>
        <extracomment>Why nothing can be copied: those fields are empty.</extracomment>
        <translation>dort steht nichts</translation>
    </message>
    <message>
        <source>nothing here</source>
        <extracomment>Why nothing can be copied: this card is empty.</extracomment>
        <translation>hier steht nichts</translation>
    </message>
    <message>
        <source>Use Remembered Contact…</source>
        <translation>Gemerkten Kontakt verwenden…</translation>
    </message>
    <message>
        <source>Use Remembered Licensor…</source>
        <translation>Gemerkten Lizenzgeber verwenden…</translation>
    </message>
    <message>
        <source>Use a remembered contact…</source>
        <translation>Gemerkten Kontakt verwenden…</translation>
    </message>
    <message>
        <source>Use a remembered licensor…</source>
        <translation>Gemerkten Lizenzgeber verwenden…</translation>
    </message>
    <message>
        <source>Forget Remembered Contacts</source>
        <translation>Gemerkte Kontakte vergessen</translation>
    </message>
    <message>
        <source>Forget Remembered Licensors</source>
        <translation>Gemerkte Lizenzgeber vergessen</translation>
    </message>
    <message>
        <source>Remembered contacts</source>
        <translation>Gemerkte Kontakte</translation>
    </message>
    <message>
        <source>Remembered licensors</source>
        <translation>Gemerkte Lizenzgeber</translation>
    </message>
    <message numerus="yes">
        <source>%n contact(s)</source>
        <translation>
            <numerusform>%n Kontakt</numerusform>
            <numerusform>%n Kontakte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n artwork(s)</source>
        <translation>
            <numerusform>%n Werk</numerusform>
            <numerusform>%n Werke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n term(s)</source>
        <translation>
            <numerusform>%n Begriff</numerusform>
            <numerusform>%n Begriffe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n expression(s)</source>
        <translation>
            <numerusform>%n Ausdruck</numerusform>
            <numerusform>%n Ausdrücke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n (entry|entries)</source>
        <translation>
            <numerusform>%n Eintrag</numerusform>
            <numerusform>%n Einträge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n contributor(s)</source>
        <translation>
            <numerusform>%n Mitwirkender</numerusform>
            <numerusform>%n Mitwirkende</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n region(s)</source>
        <translation>
            <numerusform>%n Bildbereich</numerusform>
            <numerusform>%n Bildbereiche</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n outline(s)</source>
        <translation>
            <numerusform>%n Umriss</numerusform>
            <numerusform>%n Umrisse</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n point(s)</source>
        <translation>
            <numerusform>%n Punkt</numerusform>
            <numerusform>%n Punkte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link(s)</source>
        <translation>
            <numerusform>%n Link</numerusform>
            <numerusform>%n Links</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n (person|people)</source>
        <translation>
            <numerusform>%n Person</numerusform>
            <numerusform>%n Personen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n product(s)</source>
        <translation>
            <numerusform>%n Produkt</numerusform>
            <numerusform>%n Produkte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n licensor(s)</source>
        <translation>
            <numerusform>%n Lizenzgeber</numerusform>
            <numerusform>%n Lizenzgeber</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n owner(s)</source>
        <translation>
            <numerusform>%n Rechteinhaber</numerusform>
            <numerusform>%n Rechteinhaber</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n supplier(s)</source>
        <translation>
            <numerusform>%n Lieferant</numerusform>
            <numerusform>%n Lieferanten</numerusform>
        </translation>
    </message>
    <message>
        <source>Add contact</source>
        <translation>Kontakt hinzufügen</translation>
    </message>
    <message>
        <source>Add artwork</source>
        <translation>Werk hinzufügen</translation>
    </message>
    <message>
        <source>Add term</source>
        <translation>Begriff hinzufügen</translation>
    </message>
    <message>
        <source>Add expression</source>
        <translation>Ausdruck hinzufügen</translation>
    </message>
    <message>
        <source>Add entry</source>
        <translation>Eintrag hinzufügen</translation>
    </message>
    <message>
        <source>Add contributor</source>
        <translation>Mitwirkenden hinzufügen</translation>
    </message>
    <message>
        <source>Add region</source>
        <translation>Bildbereich hinzufügen</translation>
    </message>
    <message>
        <source>Add outline</source>
        <translation>Umriss hinzufügen</translation>
    </message>
    <message>
        <source>Add point</source>
        <translation>Punkt hinzufügen</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>Link hinzufügen</translation>
    </message>
    <message>
        <source>Add place</source>
        <translation>Ort hinzufügen</translation>
    </message>
    <message>
        <source>Add person</source>
        <translation>Person hinzufügen</translation>
    </message>
    <message>
        <source>Add product</source>
        <translation>Produkt hinzufügen</translation>
    </message>
    <message>
        <source>Add licensor</source>
        <translation>Lizenzgeber hinzufügen</translation>
    </message>
    <message>
        <source>Add owner</source>
        <translation>Rechteinhaber hinzufügen</translation>
    </message>
    <message>
        <source>Add creator</source>
        <translation>Ersteller hinzufügen</translation>
    </message>
    <message>
        <source>Add supplier</source>
        <translation>Lieferanten hinzufügen</translation>
    </message>
    <message>
        <source>New contact</source>
        <translation>Neuer Kontakt</translation>
    </message>
    <message>
        <source>New artwork</source>
        <translation>Neues Werk</translation>
    </message>
    <message>
        <source>New term</source>
        <translation>Neuer Begriff</translation>
    </message>
    <message>
        <source>New expression</source>
        <translation>Neuer Ausdruck</translation>
    </message>
    <message>
        <source>New entry</source>
        <translation>Neuer Eintrag</translation>
    </message>
    <message>
        <source>New contributor</source>
        <translation>Neuer Mitwirkender</translation>
    </message>
    <message>
        <source>New region</source>
        <translation>Neuer Bildbereich</translation>
    </message>
    <message>
        <source>New outline</source>
        <translation>Neuer Umriss</translation>
    </message>
    <message>
        <source>New point</source>
        <translation>Neuer Punkt</translation>
    </message>
    <message>
        <source>New link</source>
        <translation>Neuer Link</translation>
    </message>
    <message>
        <source>New place</source>
        <translation>Neuer Ort</translation>
    </message>
    <message>
        <source>New person</source>
        <translation>Neue Person</translation>
    </message>
    <message>
        <source>New product</source>
        <translation>Neues Produkt</translation>
    </message>
    <message>
        <source>New licensor</source>
        <translation>Neuer Lizenzgeber</translation>
    </message>
    <message>
        <source>New owner</source>
        <translation>Neuer Rechteinhaber</translation>
    </message>
    <message>
        <source>New creator</source>
        <translation>Neuer Ersteller</translation>
    </message>
    <message>
        <source>New supplier</source>
        <translation>Neuer Lieferant</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Add code</source>
        <extracomment>Button: adds a code of a vocabulary to a list.</extracomment>
        <translation>Code hinzufügen</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether a height is below sea level.</extracomment>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Search place</source>
        <translation>Ort suchen</translation>
    </message>
    <message>
        <source>Town, landmark or airport</source>
        <translation>Stadt, Sehenswürdigkeit oder Flughafen</translation>
    </message>
    <message>
        <source>Couldn&apos;t look that up</source>
        <translation>Die Suche ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Forget %1</source>
        <extracomment>%1: name of a contact or licensor.</extracomment>
        <translation>%1 vergessen</translation>
    </message>
    <message>
        <source>More</source>
        <comment>button: shows further fields</comment>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>More fields of this %1</source>
        <extracomment>%1: what the card holds, as “place”, “person” or “contact”.</extracomment>
        <translation>Weitere Felder (%1)</translation>
    </message>
    <message>
        <source>Also holds %1 of another program, which stays. Changing this %2 may be refused for that.</source>
        <extracomment>%1: names of what another program has put in, as “Mood” and “Weather”. %2: “place”, “person”, “contact”…</extracomment>
        <translation>Enthält auch %1 eines anderen Programms, was erhalten bleibt. Deshalb werden Änderungen hier (%2) unter Umständen abgelehnt.</translation>
    </message>
    <message>
        <source>Clear</source>
        <comment>verb: empties the fields</comment>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>%1, %2 %3 of %4</source>
        <extracomment>Spoken of a card. %1: name of the field, %2: “place”, “person”…, %3: which one it is, %4: how many there are.</extracomment>
        <translation>%1, %2 %3 von %4</translation>
    </message>
    <message>
        <source>stored as a code</source>
        <extracomment>Under the terms of a vocabulary: files hold a term&apos;s code, not its name.</extracomment>
        <translation>als Code gespeichert</translation>
    </message>
    <message>
        <source>In these %1</source>
        <extracomment>Stands before keywords. %1: of how many photos.</extracomment>
        <translation>In diesen %1</translation>
    </message>
    <message>
        <source>to be taken away</source>
        <extracomment>Said behind a keyword.</extracomment>
        <translation>wird entfernt</translation>
    </message>
    <message>
        <source>Last used</source>
        <extracomment>The keywords that were used last.</extracomment>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>New Set…</source>
        <extracomment>Set: of keywords.</extracomment>
        <translation>Neuer Satz…</translation>
    </message>
    <message>
        <source>Edit Set…</source>
        <extracomment>Set: of keywords.</extracomment>
        <translation>Satz bearbeiten…</translation>
    </message>
    <message>
        <source>Quick</source>
        <extracomment>Stands before keywords that a click adds.</extracomment>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Quick keywords</source>
        <translation>Schnellstichwörter</translation>
    </message>
    <message>
        <source>Add %1 to all, %2</source>
        <extracomment>Adds a keyword to all photos. %1: the keyword, %2: keys that do the same.</extracomment>
        <translation>%1 für alle hinzufügen, %2</translation>
    </message>
    <message>
        <source>Add %1 to all</source>
        <translation>%1 für alle hinzufügen</translation>
    </message>
    <message>
        <source>Set of quick keywords: %1</source>
        <extracomment>%1: name of the set.</extracomment>
        <translation>Satz Schnellstichwörter: %1</translation>
    </message>
    <message>
        <source>Fill place from coordinates</source>
        <translation>Ort aus den Koordinaten ausfüllen</translation>
    </message>
    <message>
        <source>Place search is not installed</source>
        <translation>Die Ortssuche ist nicht installiert</translation>
    </message>
    <message>
        <source>The place service asks for a pause</source>
        <translation>Der Ortsdienst bittet um eine Pause</translation>
    </message>
    <message>
        <source>The place service sent too much</source>
        <translation>Der Ortsdienst hat zu viel gesendet</translation>
    </message>
    <message>
        <source>The place service did not answer in time</source>
        <translation>Der Ortsdienst hat nicht rechtzeitig geantwortet</translation>
    </message>
    <message>
        <source>The place service cannot be reached</source>
        <translation>Der Ortsdienst ist nicht erreichbar</translation>
    </message>
    <message>
        <source>The place service answered something else</source>
        <translation>Unerwartete Antwort des Ortsdienstes</translation>
    </message>
    <message>
        <source>The place service answered with status %1</source>
        <translation>Der Ortsdienst hat mit Status %1 geantwortet</translation>
    </message>
    <message>
        <source>Map of %1</source>
        <extracomment>%1: a position, as “47.36667, 8.55000”.</extracomment>
        <translation>Karte von %1</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>Feld hinzufügen</translation>
    </message>
    <message>
        <source>Search fields…</source>
        <translation>Felder suchen…</translation>
    </message>
    <message>
        <source>Search fields</source>
        <translation>Felder suchen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>RECOMMENDED · WORKS EVERYWHERE</source>
        <translation>EMPFOHLEN · ÜBERALL LESBAR</translation>
    </message>
    <message>
        <source>Already-set fields are hidden.</source>
        <translation>Bereits ausgefüllte Felder sind ausgeblendet.</translation>
    </message>
    <message>
        <source>ADVANCED · CUSTOM FIELD</source>
        <translation>FORTGESCHRITTEN · EIGENES FELD</translation>
    </message>
    <message>
        <source>may not appear in all apps</source>
        <translation>nicht in allen Programmen zu sehen</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>of a custom field</comment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <comment>of a custom field</comment>
        <translation>Wert</translation>
    </message>
    <message>
        <source>e.g. Project</source>
        <extracomment>An example of the name of a custom field: letters without accents, as it becomes the name of a tag.</extracomment>
        <translation>z. B. Projekt</translation>
    </message>
    <message>
        <source>All recommended fields are already shown.</source>
        <translation>Alle empfohlenen Felder sind schon sichtbar.</translation>
    </message>
    <message>
        <source>No matching fields.</source>
        <translation>Keine passenden Felder.</translation>
    </message>
    <message>
        <source>Will be stored as “%1”</source>
        <translation>Wird als „%1“ gespeichert</translation>
    </message>
    <message>
        <source>Add Metadata Field</source>
        <translation>Metadatenfeld hinzufügen</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>OTHER FIELDS</source>
        <translation>WEITERE FELDER</translation>
    </message>
    <message>
        <source>Copied today, %1</source>
        <extracomment>%1 is a time of day.</extracomment>
        <translation>Heute kopiert, %1</translation>
    </message>
    <message>
        <source>Copied yesterday, %1</source>
        <extracomment>%1 is a time of day.</extracomment>
        <translation>Gestern kopiert, %1</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <comment>form of a date</comment>
        <extracomment>The form of a day with its month in words: d is the day&apos;s number, MMMM the month&apos;s name, yyyy the year.</extracomment>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>Copied %1, %2</source>
        <extracomment>%1 is a day, %2 a time of day.</extracomment>
        <translation>Kopiert am %1, %2</translation>
    </message>
    <message>
        <source>Copied fields</source>
        <extracomment>%1 is the name of the file whose fields were copied.</extracomment>
        <translation>Kopierte Felder</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Von %1</translation>
    </message>
    <message>
        <source>All</source>
        <comment>button: ticks all fields</comment>
        <translation>Alle</translation>
    </message>
    <message>
        <source>None</source>
        <comment>button: ticks no field</comment>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Tick all fields</source>
        <translation>Alle Felder ankreuzen</translation>
    </message>
    <message>
        <source>Tick no field</source>
        <translation>Kein Feld ankreuzen</translation>
    </message>
    <message>
        <source>Paste Fields</source>
        <translation>Felder einfügen</translation>
    </message>
    <message numerus="yes">
        <source>Paste %n Field(s)</source>
        <translation>
            <numerusform>%n Feld einfügen</numerusform>
            <numerusform>%n Felder einfügen</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is written before Apply.</source>
        <translation>Vor dem Anwenden wird nichts geschrieben.</translation>
    </message>
    <message>
        <source>Nothing is written before Save.</source>
        <translation>Vor dem Speichern wird nichts geschrieben.</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (was|were) not read yet.</source>
        <translation>
            <numerusform>%n Foto ist noch nicht gelesen.</numerusform>
            <numerusform>%n Fotos sind noch nicht gelesen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste Fields to %n Photo(s)</source>
        <translation>
            <numerusform>Felder in %n Foto einfügen</numerusform>
            <numerusform>Felder in %n Fotos einfügen</numerusform>
        </translation>
    </message>
    <message>
        <source>Paste Fields to %1</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Felder in %1 einfügen</translation>
    </message>
    <message>
        <source>Name of the set</source>
        <translation>Name des Satzes</translation>
    </message>
    <message>
        <source>The first nine have the keys Alt+1 to Alt+9.</source>
        <translation>Für die ersten neun gelten die Tasten Alt+1 bis Alt+9.</translation>
    </message>
    <message>
        <source>Delete Set</source>
        <translation>Satz löschen</translation>
    </message>
    <message>
        <source>Keywords of the set</source>
        <translation>Stichwörter des Satzes</translation>
    </message>
    <message>
        <source>New Set of Quick Keywords</source>
        <translation>Neuer Satz Schnellstichwörter</translation>
    </message>
    <message>
        <source>Set of Quick Keywords</source>
        <translation>Satz Schnellstichwörter</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Click a field to insert it. The extension is kept automatically.</source>
        <translation>Ein Klick auf ein Feld fügt es ein. Die Dateiendung bleibt automatisch erhalten.</translation>
    </message>
    <message>
        <source>Preview</source>
        <comment>noun</comment>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Rename File</source>
        <translation>Datei umbenennen</translation>
    </message>
    <message numerus="yes">
        <source>Make %n photo(s) agree?</source>
        <translation>
            <numerusform>Werte in %n Foto angleichen?</numerusform>
            <numerusform>Werte in %n Fotos angleichen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Apply changes to %n photo(s)?</source>
        <translation>
            <numerusform>Änderungen auf %n Foto anwenden?</numerusform>
            <numerusform>Änderungen auf %n Fotos anwenden?</numerusform>
        </translation>
    </message>
    <message>
        <source>Make “%1” agree?</source>
        <translation>Werte in „%1“ angleichen?</translation>
    </message>
    <message>
        <source>Save changes to “%1”?</source>
        <translation>Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>Where the places of a field differ, all of them will hold what is shown of it. Lists are brought together.</source>
        <translation>Wo die Stellen eines Feldes voneinander abweichen, erhalten alle den angezeigten Wert. Listen werden zusammengeführt.</translation>
    </message>
    <message numerus="yes">
        <source>You edited %n field(s). Your changes will be lost if you don’t save them.</source>
        <translation>
            <numerusform>%n Feld ist bearbeitet. Ohne Speichern geht die Änderung verloren.</numerusform>
            <numerusform>%n Felder sind bearbeitet. Ohne Speichern gehen die Änderungen verloren.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This will modify the selected fields on %n file(s). This can’t be undone.</source>
        <translation>
            <numerusform>Dies ändert die gewählten Felder in %n Datei und lässt sich nicht rückgängig machen.</numerusform>
            <numerusform>Dies ändert die gewählten Felder in %n Dateien und lässt sich nicht rückgängig machen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This will modify %1 on %n file(s). This can’t be undone.</source>
        <extracomment>%1 is a list of the names of fields.</extracomment>
        <translation>
            <numerusform>Dies ändert %1 in %n Datei und lässt sich nicht rückgängig machen.</numerusform>
            <numerusform>Dies ändert %1 in %n Dateien und lässt sich nicht rückgängig machen.</numerusform>
        </translation>
    </message>
    <message>
        <source>taken away: %1</source>
        <extracomment>%1 is a list of keywords that photos lose.</extracomment>
        <translation>entfernt: %1</translation>
    </message>
    <message>
        <source>Changes</source>
        <comment>noun: what a save changes</comment>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Save and don’t ask again</source>
        <translation>Speichern und nicht mehr fragen</translation>
    </message>
    <message>
        <source>Don’t ask again this session</source>
        <translation>In dieser Sitzung nicht mehr fragen</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Make It Agree</source>
        <translation>Werte angleichen</translation>
    </message>
    <message>
        <source>Make Them Agree</source>
        <translation>Werte angleichen</translation>
    </message>
    <message numerus="yes">
        <source>Apply to %n Photo(s)</source>
        <translation>
            <numerusform>Auf %n Foto anwenden</numerusform>
            <numerusform>Auf %n Fotos anwenden</numerusform>
        </translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>Vorher und nachher</translation>
    </message>
    <message>
        <source>By an amount</source>
        <translation>Um eine Spanne</translation>
    </message>
    <message>
        <source>By a known photo</source>
        <translation>Nach bekanntem Foto</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>times become later</comment>
        <translation>Später</translation>
    </message>
    <message>
        <source>Earlier</source>
        <comment>times become earlier</comment>
        <translation>Früher</translation>
    </message>
    <message>
        <source>Keep the clock time</source>
        <translation>Uhrzeit beibehalten</translation>
    </message>
    <message>
        <source>Use each photo’s own</source>
        <comment>time zone</comment>
        <translation>Für jedes Foto die eigene</translation>
    </message>
    <message>
        <source>How to shift</source>
        <translation>Art der Verschiebung</translation>
    </message>
    <message>
        <source>BEFORE → AFTER</source>
        <translation>VORHER → NACHHER</translation>
    </message>
    <message>
        <source>d</source>
        <comment>unit: days</comment>
        <translation>d</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>h</source>
        <comment>unit: hours</comment>
        <translation>h</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>min</source>
        <comment>unit: minutes</comment>
        <translation>min</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>s</source>
        <comment>unit: seconds</comment>
        <translation>s</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Was taken at</source>
        <translation>Aufgenommen am</translation>
    </message>
    <message>
        <source>Choose among the selected photos</source>
        <translation>Unter den ausgewählten Fotos wählen</translation>
    </message>
    <message>
        <source>Without it, the moment stays and the clock time moves</source>
        <translation>Sonst bleibt der Zeitpunkt, und die Uhrzeit ändert sich</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Search photos</source>
        <translation>Fotos suchen</translation>
    </message>
    <message>
        <source>No such photo</source>
        <translation>Kein solches Foto</translation>
    </message>
    <message>
        <source>Time zones</source>
        <translation>Zeitzonen</translation>
    </message>
    <message>
        <source>Search towns or offsets</source>
        <translation>Städte oder UTC-Versatz suchen</translation>
    </message>
    <message>
        <source>No such time zone</source>
        <translation>Keine solche Zeitzone</translation>
    </message>
    <message numerus="yes">
        <source>Set Zone of %n</source>
        <translation>
            <numerusform>Zone von %n Foto setzen</numerusform>
            <numerusform>Zone von %n Fotos setzen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shift %n Photo(s)</source>
        <translation>
            <numerusform>Zeit von %n Foto verschieben</numerusform>
            <numerusform>Zeit von %n Fotos verschieben</numerusform>
        </translation>
    </message>
    <message>
        <source>Date digitized and the other dates of a photo move along.</source>
        <translation>Digitalisierungsdatum und weitere Datumsangaben eines Fotos rücken mit.</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Kein Datum</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n more…</source>
        <comment>photos</comment>
        <translation>
            <numerusform>Noch %n wird gelesen…</numerusform>
            <numerusform>Noch %n werden gelesen…</numerusform>
        </translation>
    </message>
    <message>
        <source>All others by the same amount: %1.</source>
        <extracomment>%1 is an amount of time, like “1 h 30 min earlier”.</extracomment>
        <translation>Alle anderen um dieselbe Spanne: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Shift Time of %n Photo(s)</source>
        <translation>
            <numerusform>Zeit von %n Foto verschieben</numerusform>
            <numerusform>Zeit von %n Fotos verschieben</numerusform>
        </translation>
    </message>
    <message>
        <source>No such shortcut.</source>
        <translation>Kein solches Tastenkürzel.</translation>
    </message>
    <message>
        <source>Search shortcuts…</source>
        <translation>Tastenkürzel suchen…</translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>Tastenkürzel suchen</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message numerus="yes">
        <source>%n shortcut(s)</source>
        <translation>
            <numerusform>%n Tastenkürzel</numerusform>
            <numerusform>%n Tastenkürzel</numerusform>
        </translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Field sets</source>
        <translation>Feldsätze</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>Verlangt</translation>
    </message>
    <message>
        <source>Delete this set</source>
        <translation>Diesen Satz löschen</translation>
    </message>
    <message>
        <source>New set, as a copy of this one</source>
        <translation>Neuer Satz als Kopie von diesem</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <extracomment>The name of a new set of fields; %1 is the name of the one that it is a copy of.
----------
%1: name of the template that this is a copy of.</extracomment>
        <translation>%1 (Kopie)</translation>
    </message>
    <message>
        <source>This set comes with Quorbel. Make a copy with + to change it.</source>
        <translation>Dieser Satz wird mit Quorbel geliefert. Zum Ändern mit + eine Kopie anlegen.</translation>
    </message>
    <message>
        <source>Field Sets</source>
        <translation>Feldsätze</translation>
    </message>
    <message>
        <source>Fields of the set</source>
        <translation>Felder des Satzes</translation>
    </message>
    <message>
        <source>Field</source>
        <comment>noun</comment>
        <translation>Feld</translation>
    </message>
    <message>
        <source>%1 on screen</source>
        <extracomment>The name of a tick that puts the field %1 on screen.</extracomment>
        <translation>%1 sichtbar</translation>
    </message>
    <message>
        <source>%1 wanted</source>
        <extracomment>The name of a tick that says that the field %1 should be filled in.</extracomment>
        <translation>%1 verlangt</translation>
    </message>
    <message>
        <source>%1 keeps its name</source>
        <extracomment>%1 is the name of a file, %2 the one that it will get.</extracomment>
        <translation>%1 behält den Namen</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 wird zu %2</translation>
    </message>
    <message>
        <source>New names</source>
        <translation>Neue Namen</translation>
    </message>
    <message>
        <source>Counter from</source>
        <translation>Zähler ab</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Stellen</translation>
    </message>
    <message>
        <source>Next</source>
        <comment>goes to the next name</comment>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>step</source>
        <extracomment>Behind “Counter from”: by how much it rises from photo to photo.</extracomment>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>digits</source>
        <extracomment>Behind “Counter from”: how many digits it has.</extracomment>
        <translation>Stellen</translation>
    </message>
    <message>
        <source>The extension is kept.</source>
        <translation>Die Dateiendung bleibt erhalten.</translation>
    </message>
    <message>
        <source>Goes to the next name to look at</source>
        <translation>Geht zum nächsten zu prüfenden Namen</translation>
    </message>
    <message numerus="yes">
        <source>%1 to look at</source>
        <extracomment>%1 is a number of names.</extracomment>
        <translation>
            <numerusform>%1 zu prüfen</numerusform>
            <numerusform>%1 zu prüfen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename %1</source>
        <extracomment>%1 is a number of photos.</extracomment>
        <translation>
            <numerusform>%1 umbenennen</numerusform>
            <numerusform>%1 umbenennen</numerusform>
        </translation>
    </message>
    <message>
        <source>Sidecars and backups go along. Edit ▸ Undo Rename takes it back.</source>
        <translation>Sidecars und Sicherungen gehen mit. Bearbeiten ▸ Umbenennen rückgängig machen nimmt es zurück.</translation>
    </message>
    <message numerus="yes">
        <source>Renaming %1 of %2…</source>
        <extracomment>%1 of all %2 photos are renamed.</extracomment>
        <translation>
            <numerusform>%1 von %2 umbenannt…</numerusform>
            <numerusform>%1 von %2 umbenannt…</numerusform>
        </translation>
    </message>
    <message>
        <source>Renames them as soon as the save has ended…</source>
        <translation>Umbenannt wird, sobald das Speichern beendet ist…</translation>
    </message>
    <message numerus="yes">
        <source>Rename %1 Files</source>
        <translation>
            <numerusform>%1 Datei umbenennen</numerusform>
            <numerusform>%1 Dateien umbenennen</numerusform>
        </translation>
    </message>
    <message>
        <source>no %1</source>
        <extracomment>%1 is the name of a field that a photo does not have.
----------
The photo holds nothing that could stand here. %1: what of, as “title”.</extracomment>
        <translation>ohne %1</translation>
    </message>
    <message>
        <source>Gain</source>
        <comment>photos gain a field</comment>
        <extracomment>Headings of columns: how many photos gain a field, change it, and lose it.</extracomment>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Change</source>
        <comment>photos change a field</comment>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Lose</source>
        <comment>photos lose a field</comment>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>What the sidecars hold is written into the photos themselves, also where it differs. The sidecars stay as they are.</source>
        <translation>Was in den Sidecars steht, wird in die Fotos selbst geschrieben, auch wo es abweicht. Die Sidecars bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>What raw photos hold and their sidecars do not is written into the sidecars. The photos stay untouched.</source>
        <translation>Was in Raw-Fotos steht und in ihren Sidecars nicht, wird in die Sidecars geschrieben. Die Fotos bleiben unangetastet.</translation>
    </message>
    <message>
        <source>Looking into the files…</source>
        <translation>Dateien werden geprüft…</translation>
    </message>
    <message>
        <source>There is nothing to write.</source>
        <translation>Es gibt nichts zu schreiben.</translation>
    </message>
    <message numerus="yes">
        <source>Looked into %1 of %2 photos…</source>
        <translation>
            <numerusform>%1 von %2 Foto geprüft…</numerusform>
            <numerusform>%1 von %2 Fotos geprüft…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write Into %1 Photo(s)</source>
        <extracomment>A button; %1 is the number of photos.</extracomment>
        <translation>
            <numerusform>In %1 Foto schreiben</numerusform>
            <numerusform>In %1 Fotos schreiben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write for %1 Photo(s)</source>
        <extracomment>A button; %1 is the number of photos whose sidecars are written.</extracomment>
        <translation>
            <numerusform>Für %1 Foto schreiben</numerusform>
            <numerusform>Für %1 Fotos schreiben</numerusform>
        </translation>
    </message>
    <message>
        <source>Write Sidecars Into Photos</source>
        <translation>Sidecars in Fotos schreiben</translation>
    </message>
    <message>
        <source>Write Metadata Into Sidecars</source>
        <translation>Metadaten in Sidecars schreiben</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (gains|gain) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>neu in %n Foto</numerusform>
            <numerusform>neu in %n Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (changes|change) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>geändert in %n Foto</numerusform>
            <numerusform>geändert in %n Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (loses|lose) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>entfernt in %n Foto</numerusform>
            <numerusform>entfernt in %n Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>What is written</source>
        <translation>Was geschrieben wird</translation>
    </message>
    <message>
        <source>Looking… %1 of %2</source>
        <extracomment>While photos are read. %1 and %2 are numbers.</extracomment>
        <translation>Prüfung… %1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) (disagrees|disagree)</source>
        <extracomment>%1: how many photos hold a field in several places that differ.</extracomment>
        <translation>
            <numerusform>%1 Foto mit Abweichungen</numerusform>
            <numerusform>%1 Fotos mit Abweichungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 disagree</source>
        <extracomment>As “%1 photos disagree”, where there is little room.</extracomment>
        <translation>
            <numerusform>%1 weicht ab</numerusform>
            <numerusform>%1 weichen ab</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not looked at yet</source>
        <extracomment>%1: how many photos.</extracomment>
        <translation>
            <numerusform>%1 noch nicht geprüft</numerusform>
            <numerusform>%1 noch nicht geprüft</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unknown</source>
        <extracomment>As “%1 not looked at yet”, where there is little room.</extracomment>
        <translation>
            <numerusform>%1 unbekannt</numerusform>
            <numerusform>%1 unbekannt</numerusform>
        </translation>
    </message>
    <message>
        <source>Show all photos</source>
        <translation>Alle Fotos zeigen</translation>
    </message>
    <message>
        <source>Look at them</source>
        <extracomment>Button behind a number of photos that were not looked at yet.</extracomment>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message numerus="yes">
        <source>%n more filters</source>
        <translation>
            <numerusform>%n weiterer Filter</numerusform>
            <numerusform>%n weitere Filter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 photo(s)</source>
        <extracomment>%1: a filter, as “No title”. %2: how many photos fit it.</extracomment>
        <translation>
            <numerusform>%1, %2 Foto</numerusform>
            <numerusform>%1, %2 Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Without</source>
        <extracomment>Heads a list of what photos may lack: title, keywords…</extracomment>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>At least</source>
        <extracomment>Stands before the row of stars that a photo has at least.</extracomment>
        <translation>Mindestens</translation>
    </message>
    <message>
        <source>Click the lowest rating to list; click it again for any</source>
        <translation>Niedrigste Bewertung anklicken; erneut klicken für beliebige</translation>
    </message>
    <message>
        <source>Any field contains…</source>
        <translation>Ein Feld enthält…</translation>
    </message>
    <message>
        <source>Any field contains</source>
        <translation>Ein Feld enthält</translation>
    </message>
    <message>
        <source>At least, any rating</source>
        <translation>Mindestens, beliebige Bewertung</translation>
    </message>
    <message>
        <source>No title</source>
        <translation>Kein Titel</translation>
    </message>
    <message>
        <source>No description</source>
        <translation>Keine Beschreibung</translation>
    </message>
    <message>
        <source>No keywords</source>
        <translation>Keine Stichwörter</translation>
    </message>
    <message>
        <source>No date taken</source>
        <translation>Kein Aufnahmedatum</translation>
    </message>
    <message>
        <source>No place</source>
        <translation>Kein Ort</translation>
    </message>
    <message>
        <source>No creator</source>
        <translation>Kein Ersteller</translation>
    </message>
    <message>
        <source>No copyright</source>
        <translation>Kein Copyright</translation>
    </message>
    <message>
        <source>Unrated</source>
        <translation>Unbewertet</translation>
    </message>
    <message>
        <source>Edited, not saved</source>
        <translation>Bearbeitet, nicht gespeichert</translation>
    </message>
    <message>
        <source>Changed since opened</source>
        <translation>Seit dem Öffnen geändert</translation>
    </message>
    <message>
        <source>Places differ</source>
        <translation>Stellen weichen ab</translation>
    </message>
    <message>
        <source>Clear filters</source>
        <translation>Filter aufheben</translation>
    </message>
    <message>
        <source>Filter images</source>
        <translation>Bilder filtern</translation>
    </message>
    <message numerus="yes">
        <source>At least %n star(s)</source>
        <translation>
            <numerusform>Mindestens %n Stern</numerusform>
            <numerusform>Mindestens %n Sterne</numerusform>
        </translation>
    </message>
    <message>
        <source>Contains “%1”</source>
        <extracomment>A filter of photos. %1: what was typed.</extracomment>
        <translation>Enthält „%1“</translation>
    </message>
    <message>
        <source>collapsed</source>
        <extracomment>State of a folder in the list, spoken.</extracomment>
        <translation>eingeklappt</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>ausgeklappt</translation>
    </message>
    <message>
        <source>No matching photos.</source>
        <translation>Keine passenden Fotos.</translation>
    </message>
    <message>
        <source>Nothing left</source>
        <extracomment>No photo fits the filters.</extracomment>
        <translation>Nichts übrig</translation>
    </message>
    <message>
        <source>All places agree</source>
        <extracomment>All places within the photos in which a field stands.</extracomment>
        <translation>Alle Stellen stimmen überein</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) not looked at yet</source>
        <translation>
            <numerusform>%1 Foto noch nicht geprüft</numerusform>
            <numerusform>%1 Fotos noch nicht geprüft</numerusform>
        </translation>
    </message>
    <message>
        <source>Double-click to open in your default image app</source>
        <translation>Ein Doppelklick öffnet das Bild in der Standardanwendung</translation>
    </message>
    <message>
        <source>Name (A–Z)</source>
        <translation>Name (A–Z)</translation>
    </message>
    <message>
        <source>Name (Z–A)</source>
        <translation>Name (Z–A)</translation>
    </message>
    <message>
        <source>Date (newest first)</source>
        <translation>Datum (neueste zuerst)</translation>
    </message>
    <message>
        <source>Date (oldest first)</source>
        <translation>Datum (älteste zuerst)</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Sort images</source>
        <translation>Bilder sortieren</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Heads the ways in which photos are listed.</extracomment>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Thumbnail of %1</source>
        <extracomment>%1: name of a file.</extracomment>
        <translation>Miniaturbild von %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>What a field then holds.</extracomment>
        <translation>nichts</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>Set</source>
        <comment>verb: puts the text into the field</comment>
        <translation>Setzen</translation>
    </message>
    <message>
        <source>Set if empty</source>
        <extracomment>Puts the text into the field when nothing is there.</extracomment>
        <translation>Setzen, wenn leer</translation>
    </message>
    <message>
        <source>Append</source>
        <extracomment>Puts the text behind what the field holds.</extracomment>
        <translation>Anhängen</translation>
    </message>
    <message>
        <source>Prepend</source>
        <extracomment>Puts the text before what the field holds.</extracomment>
        <translation>Voranstellen</translation>
    </message>
    <message>
        <source>What happens to %1</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>Was mit %1 geschieht</translation>
    </message>
    <message>
        <source>Add name + ↵</source>
        <translation>Name + ↵</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <extracomment>Keys that apply a template.</extracomment>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>Voriges Foto</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>Nächstes Foto</translation>
    </message>
    <message>
        <source>Fill</source>
        <extracomment>Button: fills the fields of photos.</extracomment>
        <translation>Ausfüllen</translation>
    </message>
    <message>
        <source>More</source>
        <comment>button: opens a menu</comment>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>FIELDS</source>
        <extracomment>Heads the fields of a template, in capitals.</extracomment>
        <translation>FELDER</translation>
    </message>
    <message>
        <source>A template fills fields of the selected photos, with texts that each photo completes. Make one with +, or drop a template&apos;s file into the list.</source>
        <translation>Eine Vorlage füllt Felder der ausgewählten Fotos mit Texten, die jedes Foto ergänzt. Mit + eine neue anlegen oder eine Vorlagendatei auf die Liste ziehen.</translation>
    </message>
    <message>
        <source>No shortcut</source>
        <translation>Kein Tastenkürzel</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <extracomment>Heads what the template makes of a photo, in capitals.</extracomment>
        <translation>VORSCHAU</translation>
    </message>
    <message numerus="yes">
        <source>Fill %1 Photo(s)</source>
        <extracomment>Button: fills the fields of the selected photos. %1: how many these are.</extracomment>
        <translation>
            <numerusform>%1 Foto ausfüllen</numerusform>
            <numerusform>%1 Fotos ausfüllen</numerusform>
        </translation>
    </message>
    <message>
        <source>No field of this name.</source>
        <translation>Kein Feld dieses Namens.</translation>
    </message>
    <message>
        <source>custom field</source>
        <translation>eigenes Feld</translation>
    </message>
    <message>
        <source>from %1</source>
        <extracomment>How a counter counts. %1: its first number.</extracomment>
        <translation>ab %1</translation>
    </message>
    <message>
        <source>from %1, step %2</source>
        <extracomment>How a counter counts. %1: its first number, %2: how far it is to the next.</extracomment>
        <translation>ab %1, Schritt %2</translation>
    </message>
    <message>
        <source>or %1</source>
        <extracomment>Behind the name of a token. %1: what stands in its place where a photo has no such value.</extracomment>
        <translation>sonst %1</translation>
    </message>
    <message>
        <source>More…</source>
        <extracomment>Button: shows further tokens.</extracomment>
        <translation>Mehr…</translation>
    </message>
    <message>
        <source>Insert %1</source>
        <extracomment>Puts a token into a text. %1: its name, as “Date taken”.</extracomment>
        <translation>%1 einfügen</translation>
    </message>
    <message>
        <source>More tokens</source>
        <translation>Weitere Platzhalter</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>Search tokens…</source>
        <translation>Platzhalter suchen…</translation>
    </message>
    <message>
        <source>No token of this name.</source>
        <translation>Kein Platzhalter dieses Namens.</translation>
    </message>
    <message>
        <source>Default and form of %1</source>
        <extracomment>%1: name of a token. Default: what stands there where a photo has no such value; form: how a date is written.</extracomment>
        <translation>Ersatztext und Format von %1</translation>
    </message>
    <message>
        <source>If missing</source>
        <extracomment>What stands in the place of a value that a photo does not have, and what happens when nothing is given.</extracomment>
        <translation>Falls leer</translation>
    </message>
    <message>
        <source>leave a gap</source>
        <translation>Lücke lassen</translation>
    </message>
    <message>
        <source>Form</source>
        <extracomment>How a date or time is written.</extracomment>
        <translation>Format</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Of a counter: its first number, how far it is from one to the next, and how many digits each has.</extracomment>
        <translation>Ab</translation>
    </message>
    <message>
        <source>Letters</source>
        <extracomment>Whether the letters of a text are capitals.</extracomment>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>As they are</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>GROSSBUCHSTABEN</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>kleinbuchstaben</translation>
    </message>
    <message>
        <source>as in “%1”</source>
        <extracomment>%1: a date, written in the form that was chosen.</extracomment>
        <translation>wie „%1“</translation>
    </message>
    <message>
        <source>There are no codes in this file.</source>
        <translation>In dieser Datei stehen keine Kürzel.</translation>
    </message>
    <message numerus="yes">
        <source>%n code(s).</source>
        <translation>
            <numerusform>%n Kürzel.</numerusform>
            <numerusform>%n Kürzel.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <comment>button: no file is used any more</comment>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Choose the file of codes</source>
        <translation>Kürzeldatei wählen</translation>
    </message>
    <message>
        <source>Use no file of codes</source>
        <translation>Keine Kürzeldatei verwenden</translation>
    </message>
    <message>
        <source>A text file with a code, a tab and its text in each line. Type =js= in a text or keyword, and js becomes its text at the second “=”; one Undo gives the code back.</source>
        <translation>Eine Textdatei mit einem Kürzel, einem Tabulator und seinem Text in jeder Zeile. Wird =js= in einen Text oder ein Stichwort getippt, tritt beim zweiten „=“ der Text an die Stelle von js; einmal Rückgängig bringt das Kürzel zurück.</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>Keine Datei</translation>
    </message>
    <message>
        <source>Nothing else in the photo before</source>
        <translation>Im vorigen Foto steht nichts anderes</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>Quorbel reads and edits the metadata inside your photos — titles, dates, captions, keywords and location — and writes your changes into the EXIF, IPTC and XMP standards at once so every app agrees.</source>
        <translation>Quorbel liest und bearbeitet die Metadaten in Ihren Fotos – Titel, Datumsangaben, Bildtexte, Stichwörter und Orte – und schreibt Ihre Änderungen gleichzeitig nach den Standards EXIF, IPTC und XMP, damit alle Programme dasselbe zeigen.</translation>
    </message>
    <message>
        <source>To begin, open a folder of images or one or more image files:</source>
        <translation>Öffnen Sie zuerst einen Ordner mit Bildern oder eine oder mehrere Bilddateien:</translation>
    </message>
    <message>
        <source>Choose File ▸ Open… (⌘O), or drag photos onto the window.</source>
        <translation>Datei ▸ Öffnen… (⌘O) wählen oder Fotos auf das Fenster ziehen.</translation>
    </message>
    <message>
        <source>Choose File ▸ Open with Subfolders… (⌘⇧O) to open a folder with all the folders in it.</source>
        <translation>Datei ▸ Mit Unterordnern öffnen… (⌘⇧O) öffnet einen Ordner mit allen Ordnern darin.</translation>
    </message>
    <message>
        <source>Reopen something recent from File ▸ Open Recent.</source>
        <translation>Kürzlich Verwendetes findet sich unter Datei ▸ Zuletzt geöffnet.</translation>
    </message>
    <message>
        <source>Right-click a photo in your file manager and choose Open With ▸ Quorbel.</source>
        <translation>In der Dateiverwaltung ein Foto mit der rechten Maustaste anklicken und Öffnen mit ▸ Quorbel wählen.</translation>
    </message>
    <message>
        <source>The Interface</source>
        <translation>Die Oberfläche</translation>
    </message>
    <message>
        <source>The window has three regions:</source>
        <translation>Das Fenster hat drei Bereiche:</translation>
    </message>
    <message>
        <source>Sidebar (left): every photo in the folder. Search and sort by name or date from the controls at the top.</source>
        <translation>Seitenleiste (links): alle Fotos des Ordners. Oben lässt sich suchen und nach Name oder Datum sortieren.</translation>
    </message>
    <message>
        <source>With subfolders open, each folder has a heading. Click it, or press Return on it, to fold its photos away; ⌥-click folds all. Left goes from a photo to its heading and folds, Right unfolds.</source>
        <translation>Mit Unterordnern hat jeder Ordner eine Überschrift. Ein Klick darauf oder Return klappt seine Fotos ein; ⌥-Klick klappt alle ein. Links geht von einem Foto zu seiner Überschrift und klappt ein, Rechts klappt aus.</translation>
    </message>
    <message>
        <source>Preview (center): a large preview column appears as you widen the window, so you always see the photo you&apos;re tagging.</source>
        <translation>Vorschau (Mitte): Wird das Fenster breiter, erscheint eine Spalte mit großer Vorschau; so ist das Foto, das Sie beschriften, immer zu sehen.</translation>
    </message>
    <message>
        <source>Inspector (right): the editable fields, grouped as Common, Location and read-only Camera details.</source>
        <translation>Inspektor (rechts): die bearbeitbaren Felder, gegliedert in Allgemein und Ort, dazu die nicht änderbaren Kameradaten.</translation>
    </message>
    <message>
        <source>Quorbel remembers what it read: a folder that you open again is there at once, and only photos that changed are read. View ▸ Read Again (⇧F5) reads all of them anew.</source>
        <translation>Quorbel merkt sich, was es gelesen hat: Ein Ordner, den Sie wieder öffnen, ist sofort da, und nur geänderte Fotos werden gelesen. Ansicht ▸ Erneut einlesen (⇧F5) liest alle neu.</translation>
    </message>
    <message>
        <source>Editing Metadata</source>
        <translation>Metadaten bearbeiten</translation>
    </message>
    <message>
        <source>Select a photo and edit its fields in the inspector. Set a title, date, caption or location once and Quorbel writes it to the matching EXIF, IPTC and XMP tags together.</source>
        <translation>Ein Foto auswählen und seine Felder im Inspektor bearbeiten. Titel, Datum, Bildtext oder Ort geben Sie einmal ein; Quorbel schreibt sie gemeinsam in die passenden EXIF-, IPTC- und XMP-Tags.</translation>
    </message>
    <message>
        <source>Use Add Field to pick a recommended standard field, or define a custom one.</source>
        <translation>„Feld hinzufügen“ bietet empfohlene Standardfelder an oder legt ein eigenes an.</translation>
    </message>
    <message>
        <source>Turn on Show namespace details (Settings) to see exactly which tag each value writes to.</source>
        <translation>„Namensraum-Details anzeigen“ (Einstellungen) zeigt genau, in welche Tags jeder Wert geschrieben wird.</translation>
    </message>
    <message>
        <source>Edited fields are marked until you save.</source>
        <translation>Bearbeitete Felder sind bis zum Speichern markiert.</translation>
    </message>
    <message>
        <source>From Photo to Photo</source>
        <translation>Von Foto zu Foto</translation>
    </message>
    <message>
        <source>Captions for many photos need no mouse. The keys work from within any field:</source>
        <translation>Bildtexte für viele Fotos brauchen keine Maus. Die Tasten wirken in jedem Feld:</translation>
    </message>
    <message>
        <source>⌥Down and ⌥Up go to the next and the previous photo. The keyboard stays in the same field, and its text is selected there.</source>
        <translation>⌥Runter und ⌥Hoch gehen zum nächsten und zum vorigen Foto. Die Tastatur bleibt im selben Feld, dessen Text dort ausgewählt ist.</translation>
    </message>
    <message>
        <source>⌘Return saves and goes on at once: you type while the last photo is still being written.</source>
        <translation>⌘Return speichert und geht sofort weiter: Sie tippen schon, während das letzte Foto noch geschrieben wird.</translation>
    </message>
    <message>
        <source>Ctrl+&apos; fills the field with what the photo before shows. An empty field there takes nothing away.</source>
        <translation>⌘+&apos; füllt das Feld mit dem, was das vorige Foto zeigt. Ist das Feld dort leer, bleibt hier alles, wie es ist.</translation>
    </message>
    <message>
        <source>0 to 5 rate while the list has the keyboard; ⌘⌥0 to ⌘⌥5 rate anywhere, one photo or many.</source>
        <translation>0 bis 5 bewerten, solange die Liste die Tastatur hat; ⌘⌥0 bis ⌘⌥5 bewerten überall, ein Foto oder viele.</translation>
    </message>
    <message>
        <source>F11, or Space in the list, looks closely: the photo fills the window. A click or Z shows every pixel there, the arrow keys go on to the next photo at the same place, Escape returns.</source>
        <translation>F11 oder in der Liste die Leertaste öffnet die genaue Ansicht: Das Foto füllt das Fenster. Ein Klick oder Z zeigt dort jeden Pixel, die Pfeiltasten gehen an derselben Stelle zum nächsten Foto, Esc führt zurück.</translation>
    </message>
    <message>
        <source>Help ▸ Keyboard Shortcuts (Ctrl+F1) lists all keys.</source>
        <translation>Hilfe ▸ Tastenkürzel (⌘F1) listet alle Tasten auf.</translation>
    </message>
    <message>
        <source>Several Languages</source>
        <translation>Mehrere Sprachen</translation>
    </message>
    <message>
        <source>A title, description, copyright notice, event or usage terms can be in several languages in one photo. The field shows the text that every app reads; the others stay with the photo whatever you write there.</source>
        <translation>Titel, Beschreibung, Copyright-Vermerk, Ereignis und Nutzungsrechte können in einem Foto in mehreren Sprachen stehen. Das Feld zeigt den Text, den alle Programme lesen; die anderen bleiben im Foto, was immer Sie dort eingeben.</translation>
    </message>
    <message>
        <source>A field that has other languages names them at its right end, like “de fr”. Click there, or press ⌥Right in the field, to see and edit them; ⌥Left hides them.</source>
        <translation>Ein Feld mit weiteren Sprachen nennt sie an seinem rechten Rand, etwa „de fr“. Ein Klick darauf oder ⌥Rechts im Feld zeigt sie zum Bearbeiten; ⌥Links blendet sie aus.</translation>
    </message>
    <message>
        <source>Add language finds a language by its name; the cross behind a text takes that language away.</source>
        <translation>„Sprache hinzufügen“ findet eine Sprache nach ihrem Namen; das Kreuz hinter einem Text entfernt diese Sprache.</translation>
    </message>
    <message>
        <source>Both count as unsaved until you save, and work for several photos at once.</source>
        <translation>Beides gilt bis zum Speichern als ungespeichert und geht auch bei mehreren Fotos zugleich.</translation>
    </message>
    <message>
        <source>Keyword Paths</source>
        <translation>Stichwortpfade</translation>
    </message>
    <message>
        <source>Many programs keep keywords in a tree, such as Places ▸ France ▸ Paris. Quorbel shows where a keyword stands: in front of it while there are few, and always in its tooltip.</source>
        <translation>Viele Programme führen Stichwörter in einem Baum, etwa Orte ▸ Frankreich ▸ Paris. Quorbel zeigt den Platz eines Stichworts darin: vor dem Stichwort, solange es wenige sind, und immer im Tooltip.</translation>
    </message>
    <message>
        <source>Type Places &gt; France &gt; Paris, with a blank on each side of the &gt;, or Places|France|Paris. The photo gets the keyword Paris and its place in the tree.</source>
        <translation>Geben Sie Orte &gt; Frankreich &gt; Paris ein, mit Leerzeichen vor und nach jedem &gt;, oder Orte|Frankreich|Paris. Das Foto erhält das Stichwort Paris und seinen Platz im Baum.</translation>
    </message>
    <message>
        <source>Suggestions tell the places of a keyword. Type Places| to see what lies below Places.</source>
        <translation>Vorschläge nennen die Plätze eines Stichworts. Orte| zeigt, was unter Orte liegt.</translation>
    </message>
    <message>
        <source>Take a keyword away, and the paths that lead to it go too, in every place where the photo keeps them. Paths that lead further stay.</source>
        <translation>Wird ein Stichwort entfernt, verschwinden auch die Pfade, die zu ihm führen, überall, wo das Foto sie führt. Pfade, die weiterführen, bleiben.</translation>
    </message>
    <message>
        <source>Places That Disagree</source>
        <translation>Abweichende Stellen</translation>
    </message>
    <message>
        <source>A photo keeps a title or a date in several places, and each program reads the one it knows. When programs changed only some of them, the places differ. A field whose places differ has a mark under it.</source>
        <translation>Ein Foto führt Titel oder Datum an mehreren Stellen, und jedes Programm liest die, die es kennt. Hat ein Programm nur einige davon geändert, weichen die Stellen voneinander ab. Ein solches Feld hat unten eine Markierung.</translation>
    </message>
    <message>
        <source>Click the mark to see what each place holds. Use this one makes a text your edit; saving writes it to all places.</source>
        <translation>Ein Klick auf die Markierung zeigt, was an jeder Stelle steht. „Dies verwenden“ übernimmt einen Text als Ihre Änderung; das Speichern schreibt ihn an alle Stellen.</translation>
    </message>
    <message>
        <source>View ▸ Show Disagreements (⌘⇧D) lists only photos whose places differ. Quorbel looks at all open photos for that, while you work on.</source>
        <translation>Ansicht ▸ Abweichungen anzeigen (⌘⇧D) listet nur Fotos auf, deren Stellen voneinander abweichen. Quorbel prüft dafür alle geöffneten Fotos, während Sie weiterarbeiten.</translation>
    </message>
    <message>
        <source>With photos selected, Edit ▸ Make Them Agree writes what each photo shows to all of its places. Undo Save takes it back.</source>
        <translation>Bearbeiten ▸ Werte angleichen schreibt für die ausgewählten Fotos das, was jedes zeigt, an alle seine Stellen. „Speichern rückgängig machen“ nimmt es zurück.</translation>
    </message>
    <message>
        <source>Finding Gaps</source>
        <translation>Lücken finden</translation>
    </message>
    <message>
        <source>The filter beside the search lists only photos that lack something, have few or many stars, are edited and not saved, or hold a text in any field. Tick several: a photo must fit all. Each count is that of all open photos.</source>
        <translation>Der Filter neben der Suche listet nur Fotos auf, denen etwas fehlt, die wenige oder viele Sterne haben, die bearbeitet und nicht gespeichert sind oder die in einem Feld einen Text enthalten. Mehrere lassen sich ankreuzen: Ein Foto muss allen entsprechen. Jede Anzahl gilt für alle geöffneten Fotos.</translation>
    </message>
    <message>
        <source>F8 goes to the next empty field: down the form, then on to the next photo. ⇧F8 goes back. With a filter for empty fields, only those count.</source>
        <translation>F8 geht zum nächsten leeren Feld: das Formular hinunter, dann zum nächsten Foto. ⇧F8 geht zurück. Mit einem Filter für leere Felder zählen nur diese.</translation>
    </message>
    <message>
        <source>A photo that you edit stays listed until it is saved; then the next one takes its place.</source>
        <translation>Ein Foto, das Sie bearbeiten, bleibt bis zum Speichern in der Liste; dann rückt das nächste nach.</translation>
    </message>
    <message>
        <source>The cross of a chip, or Delete on it, ends one filter; View ▸ Clear Filters (⌘⇧F) ends all.</source>
        <translation>Das Kreuz eines Filters oder Entf darauf hebt ihn auf; Ansicht ▸ Filter aufheben (⌘⇧F) hebt alle auf.</translation>
    </message>
    <message>
        <source>IPTC Fields &amp; Field Sets</source>
        <translation>IPTC-Felder und Feldsätze</translation>
    </message>
    <message>
        <source>Quorbel reads and writes every property of the IPTC Photo Metadata Standard: alternative text, contacts, people, places, releases, licences, what a picture was made with. A photo shows those that it holds; Add Field finds all others, by their names, by what they are for, and by their tags.</source>
        <translation>Quorbel liest und schreibt jede Eigenschaft des IPTC Photo Metadata Standard: Alternativtext, Kontakte, Personen, Orte, Releases, Lizenzen, womit ein Bild gemacht wurde. Ein Foto zeigt die, die es enthält; „Feld hinzufügen“ findet alle anderen: nach Name, Zweck und Tags.</translation>
    </message>
    <message>
        <source>View ▸ Field Set chooses what is on screen at once: Captions, Press, Museum, Stock, Rights, Accessibility, or a set of your own. What a photo holds beside the set stays visible, and so does what you edited.</source>
        <translation>Ansicht ▸ Feldsatz bestimmt, was auf einmal zu sehen ist: Bildtexte, Presse, Museum, Bildagentur, Rechte, Barrierefreiheit oder ein eigener Satz. Was ein Foto außerhalb des Satzes enthält, bleibt sichtbar, ebenso was Sie bearbeitet haben.</translation>
    </message>
    <message>
        <source>A set may want fields. Empty ones have a dashed border, the lines of the sections count them, and F8 goes from one to the next, on to the next photo at the end. ⇧F8 goes back.</source>
        <translation>Ein Satz kann Felder verlangen. Leere haben einen gestrichelten Rand, die Abschnittszeilen zählen sie, und F8 geht von einem zum nächsten, am Ende zum nächsten Foto. ⇧F8 geht zurück.</translation>
    </message>
    <message>
        <source>Save What Is on Screen as Set… makes a set of your own; Edit Sets… changes what is in it and what it wants. Sets that come with Quorbel can be copied there.</source>
        <translation>„Sichtbare Felder als Satz speichern…“ legt einen eigenen Satz an; „Sätze bearbeiten…“ ändert, was er enthält und verlangt. Mitgelieferte Sätze lassen sich dort kopieren.</translation>
    </message>
    <message>
        <source>Default is the form as it was. Once you have chosen a set, or made one, they can be picked at the top of the form, too.</source>
        <translation>„Standard“ zeigt das gewohnte Formular. Sobald Sie einen Satz gewählt oder angelegt haben, lassen sich die Sätze auch oben im Formular wählen.</translation>
    </message>
    <message>
        <source>Shifting Times</source>
        <translation>Zeiten verschieben</translation>
    </message>
    <message>
        <source>A camera whose clock was wrong leaves wrong times in all of its photos. Select them, and choose Edit ▸ Shift Time.</source>
        <translation>Ging die Uhr der Kamera falsch, stehen in allen Fotos falsche Zeiten. Dann die Fotos auswählen und Bearbeiten ▸ Zeit verschieben… wählen.</translation>
    </message>
    <message>
        <source>By an amount: so many days, hours, minutes and seconds later or earlier.</source>
        <translation>Um eine Spanne: so viele Tage, Stunden, Minuten und Sekunden später oder früher.</translation>
    </message>
    <message>
        <source>By a known photo: type when one of the photos was really taken, and all others go by the same amount.</source>
        <translation>Nach bekanntem Foto: Geben Sie ein, wann eines der Fotos wirklich aufgenommen wurde; alle anderen rücken um dieselbe Spanne.</translation>
    </message>
    <message>
        <source>Time zone: sets the zone that the times are in. Keep the clock time, or let it move with the zone. Photos with a position can each get the zone that they were taken in.</source>
        <translation>Zeitzone: legt fest, in welcher Zone die Zeiten stehen. Die Uhrzeit kann bleiben oder mit der Zone wandern. Fotos mit Position können jeweils die Zone erhalten, in der sie aufgenommen wurden.</translation>
    </message>
    <message>
        <source>The table shows the first photo, the last one, and what becomes another day. Photos without a date are named and left alone. Undo Shift Time takes it back.</source>
        <translation>Die Tabelle zeigt das erste Foto, das letzte und was auf einen anderen Tag fällt. Fotos ohne Datum werden genannt und nicht verändert. „Zeitverschiebung rückgängig machen“ nimmt es zurück.</translation>
    </message>
    <message>
        <source>Batch Editing</source>
        <translation>Stapelbearbeitung</translation>
    </message>
    <message>
        <source>Select multiple photos to edit them together. Use ⌘A to select all, or ⇧/⌘-click to build a selection.</source>
        <translation>Mehrere Fotos auswählen, um sie gemeinsam zu bearbeiten: ⌘A wählt alle aus, ⇧/⌘-Klick stellt eine Auswahl zusammen.</translation>
    </message>
    <message>
        <source>Choose which fields to apply, set their values, and Quorbel writes them to every selected photo in one pass.</source>
        <translation>Wählen Sie, welche Felder angewendet werden, geben Sie die Werte ein, und Quorbel schreibt sie in einem Durchgang in alle ausgewählten Fotos.</translation>
    </message>
    <message>
        <source>List fields (like keywords) are appended across the selection.</source>
        <translation>Listenfelder (wie Stichwörter) werden in der ganzen Auswahl ergänzt.</translation>
    </message>
    <message>
        <source>Quorbel confirms before a mass edit unless you&apos;ve turned that prompt off.</source>
        <translation>Quorbel fragt vor einer Massenänderung nach, sofern Sie das nicht abgeschaltet haben.</translation>
    </message>
    <message>
        <source>Below the keywords stand those that the selected photos have, with how many have each. Click one to give it to all of them; its cross takes it away from all with the next save.</source>
        <translation>Unter den Stichwörtern stehen die der ausgewählten Fotos, jeweils mit der Anzahl der Fotos. Ein Klick gibt eines allen Fotos; sein Kreuz entfernt es beim nächsten Speichern aus allen.</translation>
    </message>
    <message>
        <source>Quick keywords are the last ones you used, or a set of your own: click one, or press Alt+1 to Alt+9. The name of the set is a menu of all sets.</source>
        <translation>Schnellstichwörter sind die zuletzt verwendeten oder ein eigener Satz: anklicken oder ⌥1 bis ⌥9 drücken. Der Name des Satzes ist ein Menü aller Sätze.</translation>
    </message>
    <message>
        <source>Copying Fields &amp; Codes</source>
        <translation>Felder kopieren und Kürzel</translation>
    </message>
    <message>
        <source>What one photo says can be given to others, and texts that you type often can have short codes.</source>
        <translation>Die Angaben eines Fotos lassen sich auf andere übertragen, und häufig getippte Texte können Kürzel haben.</translation>
    </message>
    <message>
        <source>Edit ▸ Copy Fields (⌘⇧C) takes the fields of the selected photo as you see them. Edit ▸ Paste Fields… (⌘⇧V) shows what they would replace in the selected photos, and pastes those that you tick. Nothing is written before you save.</source>
        <translation>Bearbeiten ▸ Felder kopieren (⌘⇧C) nimmt die Felder des ausgewählten Fotos, wie sie zu sehen sind. Bearbeiten ▸ Felder einfügen… (⌘⇧V) zeigt, was sie in den ausgewählten Fotos ersetzen würden, und fügt die angekreuzten ein. Vor dem Speichern wird nichts geschrieben.</translation>
    </message>
    <message>
        <source>Edit ▸ Paste Fields Again pastes with the same ticks, without asking. What you copied last is there in another window and after a restart, too.</source>
        <translation>Bearbeiten ▸ Felder erneut einfügen fügt dieselben angekreuzten Felder ein, ohne zu fragen. Das zuletzt Kopierte ist auch in einem anderen Fenster und nach einem Neustart noch da.</translation>
    </message>
    <message>
        <source>Choose a file of codes in Settings: a code, a tab and its text in each line. Then type =js= in a text or keyword, and js becomes its text. One Undo (⌘Z) gives the code back.</source>
        <translation>Wählen Sie in den Einstellungen eine Kürzeldatei: in jeder Zeile ein Kürzel, ein Tabulator und sein Text. Aus =js= in einem Text oder Stichwort wird dann der Text von js. Einmal Rückgängig (⌘Z) bringt das Kürzel zurück.</translation>
    </message>
    <message>
        <source>A template fills fields of the selected photos with texts that each photo completes: “Race %Counter% off %Place|Zürich%”. Make one in Edit ▸ Templates, or from a photo with Save as Template…</source>
        <translation>Eine Vorlage füllt Felder der ausgewählten Fotos mit Texten, die jedes Foto ergänzt: „Regatta %Counter% vor %Place|Zürich%“. Neue Vorlagen entstehen unter Bearbeiten ▸ Vorlagen oder aus einem Foto mit Bearbeiten ▸ Vorlagen ▸ Als Vorlage speichern…</translation>
    </message>
    <message>
        <source>⌘1 to ⌘9 apply the templates that have these keys. What they fill in are edits, written when you save.</source>
        <translation>⌘1 bis ⌘9 wenden die Vorlagen mit diesen Tasten an. Was sie ausfüllen, sind Änderungen, die beim Speichern geschrieben werden.</translation>
    </message>
    <message>
        <source>Each field is set, set only if it is empty, or gains the text behind or before its own.</source>
        <translation>Der Text ersetzt den des Feldes, füllt es nur, wenn es leer ist, oder kommt hinter oder vor den vorhandenen Text.</translation>
    </message>
    <message>
        <source>Tokens stand for what the photo says: all fields, the camera, %Filename% and %Counter%. Double-click one to give it a form, such as d MMMM yyyy, and a text for photos that lack the value.</source>
        <translation>Platzhalter stehen für die Angaben des Fotos: alle Felder, die Kamera, %Filename% und %Counter%. Ein Doppelklick gibt einem Platzhalter ein Format, etwa d MMMM yyyy, und einen Ersatztext für Fotos, denen der Wert fehlt.</translation>
    </message>
    <message>
        <source>Each template is a file. Drag one out of the list to pass it on, and drop files in to import them.</source>
        <translation>Jede Vorlage ist eine Datei. Zum Weitergeben aus der Liste herausziehen, zum Importieren Dateien hineinziehen.</translation>
    </message>
    <message>
        <source>Renaming Files</source>
        <translation>Dateien umbenennen</translation>
    </message>
    <message>
        <source>Quorbel can rename files from a pattern built out of their own metadata. Open the rename dialog, add token chips and free text, and preview the result before applying.</source>
        <translation>Quorbel kann Dateien nach einem Muster aus ihren eigenen Metadaten umbenennen. Öffnen Sie den Umbenennen-Dialog, fügen Sie Platzhalter und freien Text ein, und prüfen Sie vorab das Ergebnis.</translation>
    </message>
    <message>
        <source>Available tokens:</source>
        <translation>Verfügbare Platzhalter:</translation>
    </message>
    <message>
        <source>%Date% — date taken</source>
        <extracomment>Tokens, the words between two % signs, stay as they are in every language.</extracomment>
        <translation>%Date% – Aufnahmedatum</translation>
    </message>
    <message>
        <source>%Time% — time taken</source>
        <translation>%Time% – Aufnahmezeit</translation>
    </message>
    <message>
        <source>%Title% — title</source>
        <translation>%Title% – Titel</translation>
    </message>
    <message>
        <source>%Creator% — creator</source>
        <translation>%Creator% – Ersteller</translation>
    </message>
    <message>
        <source>%Place% — place</source>
        <translation>%Place% – Ort</translation>
    </message>
    <message>
        <source>%Original% — the original filename</source>
        <translation>%Original% – der ursprüngliche Dateiname</translation>
    </message>
    <message>
        <source>Example: %Date%_%Title% might produce 2026-07-14_Sunset.jpg. Names are kept filesystem-safe and unique automatically.</source>
        <translation>Beispiel: %Date%_%Title% ergibt etwa 2026-07-14_Sonnenuntergang.jpg. Die Namen bleiben automatisch gültig und eindeutig.</translation>
    </message>
    <message>
        <source>Several photos get their names together: select them and choose Rename Photos… in the File menu (Shift+F2). %Counter% numbers them in the order of the list; every other field has a token of its name, too, like %Headline%, and %Title|Untitled% or %Date:yyyyMMdd% say what stands for a missing title, or how a date is written. Names that lack something or were taken are marked. Sidecars, backups and the raw file of a pair go along, and Undo Rename in the Edit menu takes all of it back, also after a restart.</source>
        <translation>Mehrere Fotos erhalten ihre Namen zusammen: Wählen Sie sie aus und dann „Fotos umbenennen…“ im Menü Datei (⇧F2). %Counter% nummeriert sie in der Reihenfolge der Liste; auch jedes andere Feld hat einen Platzhalter seines Namens, etwa %Headline%, und %Title|Untitled% oder %Date:yyyyMMdd% sagen, was für einen fehlenden Titel steht oder wie ein Datum geschrieben wird. Namen, denen etwas fehlt oder die vergeben waren, sind markiert. Sidecars, Sicherungen und die Raw-Datei eines Paars gehen mit, und „Umbenennen rückgängig machen“ im Menü Bearbeiten nimmt alles zurück, auch nach einem Neustart.</translation>
    </message>
    <message>
        <source>Saving &amp; Backups</source>
        <translation>Speichern und Sicherungen</translation>
    </message>
    <message>
        <source>Your edits are written when you Save (⌘S).</source>
        <translation>Ihre Änderungen werden beim Speichern (⌘S) geschrieben.</translation>
    </message>
    <message>
        <source>Originals are backed up before writing (you can turn this off in Settings).</source>
        <translation>Originale werden vor dem Schreiben gesichert (in den Einstellungen abschaltbar).</translation>
    </message>
    <message>
        <source>Quorbel prompts before you switch away with unsaved changes.</source>
        <translation>Bei ungespeicherten Änderungen fragt Quorbel nach, bevor es zu anderen Fotos geht.</translation>
    </message>
    <message>
        <source>Optionally write an XMP sidecar instead of embedding, from Settings.</source>
        <translation>Auf Wunsch wird statt des Einbettens ein XMP-Sidecar geschrieben (Einstellungen).</translation>
    </message>
    <message>
        <source>Raw Files</source>
        <translation>Raw-Dateien</translation>
    </message>
    <message>
        <source>Settings ▸ Raw files says where the edits of raw photos go: into the file, as with other photos, or beside it. Beside it, the raw file itself is never written to.</source>
        <translation>Einstellungen ▸ Raw-Dateien legt fest, wohin Änderungen an Raw-Fotos gehen: in die Datei, wie bei anderen Fotos, oder daneben. Daneben heißt: In die Raw-Datei selbst wird nie geschrieben.</translation>
    </message>
    <message>
        <source>The words then go to an XMP sidecar, which other programs read and write too. The line under the photo’s name says which file that is. DNG has a choice of its own.</source>
        <translation>Die Texte gehen dann in ein XMP-Sidecar, das auch andere Programme lesen und schreiben. Die Zeile unter dem Namen des Fotos sagt, welche Datei das ist. Für DNG lässt sich das eigens festlegen.</translation>
    </message>
    <message>
        <source>What the sidecar says stands before what the raw file says, field by field. Where the two differ, the field has a mark; click it to see both.</source>
        <translation>Was im Sidecar steht, geht vor, Feld für Feld. Wo Sidecar und Raw-Datei voneinander abweichen, hat das Feld eine Markierung; ein Klick darauf zeigt beides.</translation>
    </message>
    <message>
        <source>View ▸ Pair Raw and JPEG lists the two files of a shot as one photo. An edit goes to both, each by its own setting, and renaming takes all files of the shot along.</source>
        <translation>Ansicht ▸ Raw und JPEG koppeln listet die beiden Dateien einer Aufnahme als ein Foto auf. Eine Änderung geht in beide, jeweils nach der Einstellung dafür, und beim Umbenennen gehen alle Dateien der Aufnahme mit.</translation>
    </message>
    <message>
        <source>File ▸ Write Sidecars Into Photos… and Write Metadata Into Sidecars… move words over for the selected photos. You see first what would change in how many. Undo Save takes it back.</source>
        <translation>Datei ▸ Sidecars in Fotos schreiben… und Metadaten in Sidecars schreiben… übertragen Texte für die ausgewählten Fotos. Vorher ist zu sehen, was sich in wie vielen ändern würde. „Speichern rückgängig machen“ nimmt es zurück.</translation>
    </message>
    <message>
        <source>Develop settings, and whatever else other programs keep in a sidecar, stay as they are.</source>
        <translation>Entwicklungseinstellungen und was andere Programme sonst in einem Sidecar führen, bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Open Settings from the Quorbel menu (⌘,) to adjust:</source>
        <translation>Die Einstellungen (⌘,) legen unter anderem fest:</translation>
    </message>
    <message>
        <source>Back up originals before saving.</source>
        <translation>Originale vor dem Speichern sichern.</translation>
    </message>
    <message>
        <source>Write an XMP sidecar file.</source>
        <translation>Eine XMP-Sidecar-Datei schreiben.</translation>
    </message>
    <message>
        <source>Show namespace details for every field.</source>
        <translation>Namensraum-Details zu jedem Feld anzeigen.</translation>
    </message>
    <message>
        <source>Confirm before mass edits, and the default rename pattern.</source>
        <translation>Rückfrage vor Massenänderungen und das Standardmuster beim Umbenennen.</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Themen</translation>
    </message>
    <message>
        <source>Quorbel Help</source>
        <translation>Quorbel-Hilfe</translation>
    </message>
    <message>
        <source>Drag a folder or image here</source>
        <translation>Ordner oder Bild hierher ziehen</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>Ordner öffnen…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>Bild öffnen…</translation>
    </message>
    <message>
        <source>Open with subfolders</source>
        <extracomment>A switch: a folder that is opened is opened with all folders in it.</extracomment>
        <translation>Mit Unterordnern öffnen</translation>
    </message>
    <message>
        <source>Thumbnail only</source>
        <extracomment>Written on a photo of which nothing larger can be shown.</extracomment>
        <translation>Nur Miniaturbild</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) selected</source>
        <translation>
            <numerusform>%n Foto ausgewählt</numerusform>
            <numerusform>%n Fotos ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Preview of %1, thumbnail only</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Vorschau von %1, nur Miniaturbild</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Vorschau von %1</translation>
    </message>
    <message numerus="yes">
        <source>Looking at %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were looked at already.</extracomment>
        <translation>
            <numerusform>%1 von %2 Foto geprüft…</numerusform>
            <numerusform>%1 von %2 Fotos geprüft…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Filling in %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were filled in already: what the program did not know of them yet was read.</extracomment>
        <translation>
            <numerusform>Details zu %1 von %2 Foto gelesen…</numerusform>
            <numerusform>Details zu %1 von %2 Fotos gelesen…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were read already.</extracomment>
        <translation>
            <numerusform>%1 von %2 Foto gelesen…</numerusform>
            <numerusform>%1 von %2 Fotos gelesen…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Renaming %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were renamed already.</extracomment>
        <translation>
            <numerusform>%1 von %2 Foto umbenannt…</numerusform>
            <numerusform>%1 von %2 Fotos umbenannt…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were saved already.</extracomment>
        <translation>
            <numerusform>%1 von %2 Foto gespeichert…</numerusform>
            <numerusform>%1 von %2 Fotos gespeichert…</numerusform>
        </translation>
    </message>
    <message>
        <source>Skip</source>
        <comment>button: goes on without the file</comment>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Stuck at %1</source>
        <extracomment>%1 is the name of a file that takes suspiciously long to be read.</extracomment>
        <translation>Hängt bei %1</translation>
    </message>
    <message>
        <source>Looking for photos…</source>
        <translation>Fotos werden gesucht…</translation>
    </message>
    <message>
        <source>Display</source>
        <comment>heading of settings</comment>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>Gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Show namespace details</source>
        <translation>Namensraum-Details anzeigen</translation>
    </message>
    <message>
        <source>Adds the source tags (EXIF / IPTC / XMP) under each field.</source>
        <translation>Zeigt unter jedem Feld die zugehörigen Tags (EXIF / IPTC / XMP).</translation>
    </message>
    <message>
        <source>Saving</source>
        <comment>heading of settings</comment>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Back up original before writing</source>
        <translation>Original vor dem Schreiben sichern</translation>
    </message>
    <message>
        <source>Confirm before mass-applying to multiple files</source>
        <translation>Vor dem Anwenden auf mehrere Dateien nachfragen</translation>
    </message>
    <message>
        <source>Also write a sidecar .xmp file</source>
        <translation>Zusätzlich eine Sidecar-Datei .xmp schreiben</translation>
    </message>
    <message>
        <source>Mirrors XMP metadata into &lt;name&gt;.xmp next to each image.</source>
        <extracomment>&lt;name&gt; stands for the image&apos;s own.</extracomment>
        <translation>Spiegelt die XMP-Metadaten in &lt;name&gt;.xmp neben jedem Bild.</translation>
    </message>
    <message>
        <source>Renaming</source>
        <comment>heading of settings</comment>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Filename pattern</source>
        <translation>Dateinamenmuster</translation>
    </message>
    <message>
        <source>Tokens: %Date% %Time% %Title% %Creator% %Place% %Original%. The extension is kept automatically.</source>
        <extracomment>What stands between two % signs is typed like this in every language.</extracomment>
        <translation>Platzhalter: %Date% %Time% %Title% %Creator% %Place% %Original%. Die Dateiendung bleibt automatisch erhalten.</translation>
    </message>
    <message>
        <source>Strip special characters</source>
        <translation>Sonderzeichen entfernen</translation>
    </message>
    <message>
        <source>Keeps only letters and numbers (accents become plain, e.g. Café → Cafe). Off leaves characters like @ and &apos; in place.</source>
        <translation>Behält nur Buchstaben und Ziffern (Akzente entfallen, z. B. Café → Cafe). Ausgeschaltet bleiben Zeichen wie @ und &apos; stehen.</translation>
    </message>
    <message>
        <source>Raw files</source>
        <translation>Raw-Dateien</translation>
    </message>
    <message>
        <source>Edits of raw photos</source>
        <translation>Änderungen an Raw-Fotos</translation>
    </message>
    <message>
        <source>Edits are written into the raw file, as into other photos.</source>
        <translation>Änderungen werden wie bei anderen Fotos in die Raw-Datei geschrieben.</translation>
    </message>
    <message>
        <source>The raw file stays untouched. Other programs find the words in the sidecar.</source>
        <translation>Die Raw-Datei bleibt unangetastet. Andere Programme finden die Texte im Sidecar.</translation>
    </message>
    <message>
        <source>Edits of DNG photos</source>
        <translation>Änderungen an DNG-Fotos</translation>
    </message>
    <message>
        <source>DNG is made to hold metadata, so it is written as other photos are.</source>
        <translation>DNG ist dafür gemacht, Metadaten aufzunehmen, und wird wie andere Fotos geschrieben.</translation>
    </message>
    <message>
        <source>The DNG file stays untouched. Other programs find the words in the sidecar.</source>
        <translation>Die DNG-Datei bleibt unangetastet. Andere Programme finden die Texte im Sidecar.</translation>
    </message>
    <message>
        <source>Into the file</source>
        <extracomment>Where edits of raw photos are written: into the photo&apos;s own file, or into a sidecar that lies beside it.</extracomment>
        <translation>In die Datei</translation>
    </message>
    <message>
        <source>Beside it</source>
        <translation>Daneben</translation>
    </message>
    <message>
        <source>Write into the file</source>
        <translation>In die Datei schreiben</translation>
    </message>
    <message>
        <source>Write beside it</source>
        <translation>Neben die Datei schreiben</translation>
    </message>
    <message>
        <source>Name of new sidecars</source>
        <translation>Name neuer Sidecars</translation>
    </message>
    <message>
        <source>A sidecar that is already there keeps its name.</source>
        <translation>Ein schon vorhandenes Sidecar behält seinen Namen.</translation>
    </message>
    <message>
        <source>Places</source>
        <comment>heading of settings: towns and sights</comment>
        <translation>Orte</translation>
    </message>
    <message>
        <source>Online place service</source>
        <translation>Online-Ortsdienst</translation>
    </message>
    <message>
        <source>Empty: places are looked up on this computer alone. With the https address of a Photon-compatible service, what you type in the Place field is sent there; places known here still come first. Takes effect at the next start.</source>
        <translation>Leer: Orte werden nur auf diesem Computer gesucht. Mit der https-Adresse eines Photon-kompatiblen Dienstes wird dorthin gesendet, was Sie im Feld Ort eingeben; hier bekannte Orte kommen weiterhin zuerst. Gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Code replacements</source>
        <translation>Kürzelersetzung</translation>
    </message>
    <message>
        <source>System</source>
        <comment>appearance: that of the desktop</comment>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <comment>appearance</comment>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <comment>appearance</comment>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>High contrast</source>
        <comment>appearance</comment>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>System</source>
        <comment>language</comment>
        <extracomment>The language of the desktop, in a list of languages.</extracomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Not used: this is no https address.</source>
        <translation>Nicht verwendet: Das ist keine https-Adresse.</translation>
    </message>
    <message>
        <source>Rate</source>
        <extracomment>What a key does: it gives a photo stars.</extracomment>
        <translation>Bewerten</translation>
    </message>
    <message>
        <source>In the list of photos</source>
        <translation>In der Fotoliste</translation>
    </message>
    <message>
        <source>Next or previous photo</source>
        <translation>Nächstes oder voriges Foto</translation>
    </message>
    <message>
        <source>A page further or back</source>
        <translation>Eine Seite vor oder zurück</translation>
    </message>
    <message>
        <source>First or last photo</source>
        <translation>Erstes oder letztes Foto</translation>
    </message>
    <message>
        <source>Select up to there</source>
        <translation>Bis dorthin auswählen</translation>
    </message>
    <message>
        <source>Go there without selecting</source>
        <translation>Dorthin gehen, ohne auszuwählen</translation>
    </message>
    <message>
        <source>Add to the selection, or take out</source>
        <translation>Zur Auswahl hinzufügen oder herausnehmen</translation>
    </message>
    <message>
        <source>Look closely</source>
        <translation>Genau ansehen</translation>
    </message>
    <message>
        <source>Open in the default application</source>
        <translation>In der Standardanwendung öffnen</translation>
    </message>
    <message>
        <source>Find by the beginning of the name</source>
        <translation>Nach dem Anfang des Namens suchen</translation>
    </message>
    <message>
        <source>Fold or unfold a folder</source>
        <translation>Einen Ordner ein- oder ausklappen</translation>
    </message>
    <message>
        <source>Fold or unfold all folders</source>
        <translation>Alle Ordner ein- oder ausklappen</translation>
    </message>
    <message>
        <source>Looking closely</source>
        <translation>Beim genauen Ansehen</translation>
    </message>
    <message>
        <source>Next or previous photo, at the same place</source>
        <translation>Nächstes oder voriges Foto, an derselben Stelle</translation>
    </message>
    <message>
        <source>Every pixel, or the whole photo</source>
        <translation>Jeder Pixel oder das ganze Foto</translation>
    </message>
    <message>
        <source>Larger or smaller</source>
        <translation>Größer oder kleiner</translation>
    </message>
    <message>
        <source>Move the photo across</source>
        <translation>Foto seitwärts verschieben</translation>
    </message>
    <message>
        <source>Move the photo up or down</source>
        <translation>Foto auf und ab verschieben</translation>
    </message>
    <message>
        <source>In a field</source>
        <translation>In einem Feld</translation>
    </message>
    <message>
        <source>Show its other languages, or add one</source>
        <translation>Weitere Sprachen anzeigen oder eine hinzufügen</translation>
    </message>
    <message>
        <source>Hide its other languages</source>
        <translation>Weitere Sprachen ausblenden</translation>
    </message>
    <message>
        <source>In the keywords</source>
        <translation>In den Stichwörtern</translation>
    </message>
    <message>
        <source>Add what was typed</source>
        <translation>Eingegebenes hinzufügen</translation>
    </message>
    <message>
        <source>From the entry to the last keyword</source>
        <translation>Von der Eingabe zum letzten Stichwort</translation>
    </message>
    <message>
        <source>Take that keyword away</source>
        <translation>Dieses Stichwort entfernen</translation>
    </message>
    <message>
        <source>On the stars</source>
        <translation>Auf den Sternen</translation>
    </message>
    <message>
        <source>One star more or fewer</source>
        <translation>Ein Stern mehr oder weniger</translation>
    </message>
    <message>
        <source>While searching</source>
        <translation>Beim Suchen</translation>
    </message>
    <message>
        <source>Go to what was found</source>
        <translation>Zu den Treffern gehen</translation>
    </message>
    <message>
        <source>Show all photos again</source>
        <translation>Wieder alle Fotos zeigen</translation>
    </message>
    <message>
        <source>In a sheet</source>
        <translation>In einem Dialog</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>This folder does not report changes; %1 looks every few seconds.</source>
        <extracomment>%1 is the program.</extracomment>
        <translation>Dieser Ordner meldet keine Änderungen; %1 sieht alle paar Sekunden nach.</translation>
    </message>
    <message>
        <source>Not all of these folders report changes; %1 looks every few seconds.</source>
        <extracomment>%1 is the program.</extracomment>
        <translation>Nicht alle dieser Ordner melden Änderungen; %1 sieht alle paar Sekunden nach.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of %2 folders report changes. Refresh to see what changed in the others.</source>
        <extracomment>Of %2 folders, only %1 do.</extracomment>
        <translation>
            <numerusform>Nur bei %1 von %2 Ordner werden Änderungen gemeldet. Aktualisieren zeigt, was sich sonst geändert hat.</numerusform>
            <numerusform>Nur bei %1 von %2 Ordnern werden Änderungen gemeldet. Aktualisieren zeigt, was sich in den anderen geändert hat.</numerusform>
        </translation>
    </message>
    <message>
        <source>Refresh folder</source>
        <translation>Ordner aktualisieren</translation>
    </message>
    <message>
        <source>Show preview</source>
        <translation>Vorschau einblenden</translation>
    </message>
    <message>
        <source>Hide preview</source>
        <translation>Vorschau ausblenden</translation>
    </message>
    <message>
        <source>Back up originals before writing</source>
        <translation>Originale vor dem Schreiben sichern</translation>
    </message>
    <message>
        <source>Also write sidecar .xmp</source>
        <translation>Zusätzlich Sidecar .xmp schreiben</translation>
    </message>
    <message>
        <source>Left as they are, because they could not be read: %1</source>
        <translation>Unverändert gelassen, weil sie nicht gelesen werden konnten: %1</translation>
    </message>
    <message>
        <source>keeps changing</source>
        <translation>ändert sich ständig</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>die Datei ist nicht da</translation>
    </message>
    <message>
        <source>ExifTool told nothing of it</source>
        <translation>ExifTool sagte nichts dazu</translation>
    </message>
    <message>
        <source>Could not be read (%1)</source>
        <extracomment>%1 is the reason: &quot;took too long&quot;</extracomment>
        <translation>Konnte nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Some fields could not be read (%1)</source>
        <extracomment>%1 is the reason: &quot;took too long&quot;</extracomment>
        <translation>Einige Felder konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Some fields could not be read</source>
        <translation>Einige Felder konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>“Some fields could not be read” stands under a photo’s name where that is so. Until Try again has read them, they cannot be edited: what nobody has seen is not written over.</source>
        <translation>„Einige Felder konnten nicht gelesen werden“ steht unter dem Namen eines Fotos, wenn es so ist. Bis „Erneut versuchen“ sie gelesen hat, lassen sie sich nicht bearbeiten: Was niemand gesehen hat, wird nicht überschrieben.</translation>
    </message>
</context>
</TS>
