<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Quorbel::Texts</name>
    <message>
        <source>ExifTool could not be found in the app bundle. Metadata cannot be read or written.</source>
        <translation>ExifTool est introuvable dans le paquet de l’application. Les métadonnées ne peuvent être ni lues ni écrites.</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%n photo</numerusform>
            <numerusform>%n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n folder(s)</source>
        <extracomment>%1 is a number of photos: &quot;12 photos in 3 folders&quot;</extracomment>
        <translation>
            <numerusform>%1 dans %n dossier</numerusform>
            <numerusform>%1 dans %n dossiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n affichée</numerusform>
            <numerusform>%n affichées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n sélectionnée</numerusform>
            <numerusform>%n sélectionnées</numerusform>
        </translation>
    </message>
    <message>
        <source>No supported images were found.</source>
        <translation>Aucune image prise en charge n’a été trouvée.</translation>
    </message>
    <message>
        <source>“%1” could no longer be found.</source>
        <translation>« %1 » est devenu introuvable.</translation>
    </message>
    <message>
        <source>“%1” was removed by another program. Its unsaved changes are kept: Edit ▸ Bring Back Edits.</source>
        <translation>« %1 » a été supprimé par un autre programme. Ses modifications non enregistrées sont conservées : Édition ▸ Récupérer les modifications.</translation>
    </message>
    <message>
        <source>“%1” was removed by another program.</source>
        <translation>« %1 » a été supprimé par un autre programme.</translation>
    </message>
    <message>
        <source>The places of these photos’ fields could not be read: %1</source>
        <extracomment>%1 names photos</extracomment>
        <translation>Impossible de lire les emplacements des champs de ces photos : %1</translation>
    </message>
    <message>
        <source>The places of the selected photos’ fields agree already.</source>
        <translation>Les valeurs des photos sélectionnées concordent déjà.</translation>
    </message>
    <message>
        <source>The unsaved changes come back as soon as their photos are read.</source>
        <translation>Les modifications non enregistrées réapparaîtront dès que leurs photos seront lues.</translation>
    </message>
    <message>
        <source>Not here any more: %1. The unsaved changes are kept.</source>
        <extracomment>%1 names photos</extracomment>
        <translation>Plus à cet endroit : %1. Les modifications non enregistrées sont conservées.</translation>
    </message>
    <message>
        <source>%1 could no longer be found. The unsaved changes are kept.</source>
        <extracomment>%1 names photos</extracomment>
        <translation>Impossible de retrouver %1. Les modifications non enregistrées sont conservées.</translation>
    </message>
    <message>
        <source>A file name cannot hold “/”.</source>
        <translation>Un nom de fichier ne peut pas contenir « / ».</translation>
    </message>
    <message>
        <source>Could not rename: %1</source>
        <translation>Impossible de renommer : %1</translation>
    </message>
    <message>
        <source>Could not rename: “%1” is being saved.</source>
        <translation>Impossible de renommer : « %1 » est en cours d’enregistrement.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>the end of a list: &quot;a.jpg, b.jpg and c.jpg&quot;
----------
The end of a list of names: %1 is those before, with commas between them, %2 the last one.</extracomment>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>Save without %1</source>
        <extracomment>%1 are parts of a file that take no text: &quot;EXIF and IPTC&quot;</extracomment>
        <translation>Enregistrer sans %1</translation>
    </message>
    <message>
        <source>different items</source>
        <translation>éléments différents</translation>
    </message>
    <message numerus="yes">
        <source>%n different texts</source>
        <translation>
            <numerusform>%n texte différent</numerusform>
            <numerusform>%n textes différents</numerusform>
        </translation>
    </message>
    <message>
        <source>emptied</source>
        <extracomment>said of a field whose text is taken away</extracomment>
        <translation>vidé</translation>
    </message>
    <message>
        <source>%1 in %2 of %3</source>
        <extracomment>%1 is what stands in a field (&quot;3 different texts&quot;), %2 and %3 count photos: &quot;“Zoë” in 2 of 12&quot;</extracomment>
        <translation>%1 dans %2 sur %3</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>Légendes</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>Presse</translation>
    </message>
    <message>
        <source>Museum</source>
        <translation>Musée</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Banque d’images</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Droits</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibilité</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>A set needs a name</source>
        <translation>Un jeu doit avoir un nom</translation>
    </message>
    <message>
        <source>There are two sets named “%1”</source>
        <translation>Deux jeux s’appellent « %1 »</translation>
    </message>
    <message>
        <source>“%1” has no fields</source>
        <translation>« %1 » n’a aucun champ</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has|have) Content Credentials: other programs will report (it|them) as changed.</source>
        <translation>
            <numerusform>%n photo contient des Content Credentials : d’autres programmes la signaleront comme modifiée.</numerusform>
            <numerusform>%n photos contiennent des Content Credentials : d’autres programmes les signaleront comme modifiées.</numerusform>
        </translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>délai dépassé</translation>
    </message>
    <message>
        <source>its name is not UTF-8</source>
        <extracomment>why a file cannot be read, in brackets behind its name</extracomment>
        <translation>son nom n’est pas en UTF-8</translation>
    </message>
    <message>
        <source>Could not read metadata: %1</source>
        <translation>Impossible de lire les métadonnées : %1</translation>
    </message>
    <message>
        <source>broken link</source>
        <extracomment>why a file cannot be read, in brackets behind its name</extracomment>
        <translation>lien rompu</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>of a file</comment>
        <translation>vide</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) could not be read and (was|were) left out: %1</source>
        <extracomment>%1 names the files, with the reasons</extracomment>
        <translation>
            <numerusform>%n fichier illisible a été ignoré : %1</numerusform>
            <numerusform>%n fichiers illisibles ont été ignorés : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar(s) could not be read, and (its photo is|their photos are) shown without (it|them): %1</source>
        <extracomment>%1 names the sidecars, with the reasons</extracomment>
        <translation>
            <numerusform>%n fichier annexe est illisible, et sa photo est affichée sans lui : %1</numerusform>
            <numerusform>%n fichiers annexes sont illisibles, et leurs photos sont affichées sans eux : %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Started again at the top</source>
        <translation>Reprise au début</translation>
    </message>
    <message>
        <source>Started again at the end</source>
        <translation>Reprise à la fin</translation>
    </message>
    <message>
        <source>No gaps left</source>
        <translation>Aucune lacune restante</translation>
    </message>
    <message>
        <source>No gaps left · %1 not read yet</source>
        <translation>Aucune lacune restante · %1 pas encore lues</translation>
    </message>
    <message>
        <source>It keeps its name.</source>
        <translation>Elle garde son nom.</translation>
    </message>
    <message>
        <source>All photos keep their names.</source>
        <translation>Toutes les photos gardent leur nom.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s) keep their names.</source>
        <translation>
            <numerusform>Noms conservés : %1 sur %n photo.</numerusform>
            <numerusform>Noms conservés : %1 sur %n photos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not rename: %1: %2.</source>
        <extracomment>%1 is the photo, %2 why</extracomment>
        <translation>Impossible de renommer %1 : %2.</translation>
    </message>
    <message>
        <source>Could not rename: %1. %2</source>
        <translation>Impossible de renommer : %1. %2</translation>
    </message>
    <message>
        <source>Could not undo the rename: %1. %2</source>
        <translation>Impossible d’annuler le renommage : %1. %2</translation>
    </message>
    <message>
        <source>another Quorbel is undoing one at this moment</source>
        <translation>un autre Quorbel en annule un en ce moment</translation>
    </message>
    <message>
        <source>it was undone already</source>
        <translation>déjà annulé</translation>
    </message>
    <message>
        <source>Undo Save</source>
        <translation>Annuler l’enregistrement</translation>
    </message>
    <message>
        <source>Undo Shift Time of “%1”</source>
        <translation>Annuler le décalage de l’heure de « %1 »</translation>
    </message>
    <message numerus="yes">
        <source>Undo Shift Time of %n photo(s)</source>
        <translation>
            <numerusform>Annuler le décalage de l’heure de %n photo</numerusform>
            <numerusform>Annuler le décalage de l’heure de %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo Save of “%1”</source>
        <translation>Annuler l’enregistrement de « %1 »</translation>
    </message>
    <message numerus="yes">
        <source>Undo Save of %n photo(s)</source>
        <translation>
            <numerusform>Annuler l’enregistrement de %n photo</numerusform>
            <numerusform>Annuler l’enregistrement de %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not undo the shift of time: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>Impossible d’annuler le décalage de l’heure : %1</translation>
    </message>
    <message>
        <source>Could not undo the save: %1</source>
        <translation>Impossible d’annuler l’enregistrement : %1</translation>
    </message>
    <message numerus="yes">
        <source>Could not undo the shift of time of %n photo(s): %1</source>
        <extracomment>%1 names the photos, with the reasons</extracomment>
        <translation>
            <numerusform>Impossible d’annuler le décalage de l’heure de %n photo : %1</numerusform>
            <numerusform>Impossible d’annuler le décalage de l’heure de %n photos : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not undo the save of %n photo(s): %1</source>
        <translation>
            <numerusform>Impossible d’annuler l’enregistrement de %n photo : %1</numerusform>
            <numerusform>Impossible d’annuler l’enregistrement de %n photos : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not undone: %n photo(s) changed since and (was|were) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>Non annulé : %n photo a changé depuis et a été laissée telle quelle : %1</numerusform>
            <numerusform>Non annulé : %n photos ont changé depuis et ont été laissées telles quelles : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone, but %n photo(s) changed since and (was|were) left alone: %1</source>
        <translation>
            <numerusform>Annulé, mais %n photo a changé depuis et a été laissée telle quelle : %1</numerusform>
            <numerusform>Annulé, mais %n photos ont changé depuis et ont été laissées telles quelles : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone, but not every value of %n photo(s) could be put back as it was: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>Annulé, mais certaines valeurs de %n photo n’ont pas pu être remises comme avant : %1</numerusform>
            <numerusform>Annulé, mais certaines valeurs de %n photos n’ont pas pu être remises comme avant : %1</numerusform>
        </translation>
    </message>
    <message>
        <source>what it holds could not be read</source>
        <translation>son contenu n’a pas pu être lu</translation>
    </message>
    <message>
        <source>reading it back took too long</source>
        <translation>la relecture a pris trop de temps</translation>
    </message>
    <message>
        <source>cannot be read any more</source>
        <translation>ne peut plus être lue</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s) differed between IPTC and XMP and were brought together: %2</source>
        <extracomment>%1 is a field that holds a list (&quot;Keywords&quot;), %2 names the photos</extracomment>
        <translation>
            <numerusform>%1 : IPTC et XMP divergeaient dans %n photo et ont été réunis : %2</numerusform>
            <numerusform>%1 : IPTC et XMP divergeaient dans %n photos et ont été réunis : %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not save %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with the reasons</extracomment>
        <translation>
            <numerusform>Impossible d’enregistrer %1 photo sur %n : %2</numerusform>
            <numerusform>Impossible d’enregistrer %1 des %n photos : %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <extracomment>%1 is why something was not written, %2 names photos: &quot;not a whole number: “abc” in a.jpg, b.jpg&quot;</extracomment>
        <translation>%1 dans %2</translation>
    </message>
    <message>
        <source>not written</source>
        <translation>non écrit</translation>
    </message>
    <message>
        <source>not written: %1</source>
        <translation>non écrit : %1</translation>
    </message>
    <message>
        <source>%1 refused: %2</source>
        <extracomment>%1 is a part of the file that takes no text (&quot;EXIF&quot;), %2 why: &quot;EXIF refused: Bad format&quot;</extracomment>
        <translation>%1 a refusé : %2</translation>
    </message>
    <message>
        <source>Nothing was written: %1</source>
        <extracomment>%1 names fields</extracomment>
        <translation>Rien n’a été écrit : %1</translation>
    </message>
    <message numerus="yes">
        <source>Saved, but %n field(s) (reads|read) back differently: %1</source>
        <extracomment>%1 names the fields</extracomment>
        <translation>
            <numerusform>Enregistré, mais %n champ diffère à la relecture : %1</numerusform>
            <numerusform>Enregistré, mais %n champs diffèrent à la relecture : %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Saved, but IPTC was left alone in photos that have several blocks of it: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>Enregistré, mais IPTC a été laissé tel quel dans les photos qui en ont plusieurs blocs : %1</translation>
    </message>
    <message>
        <source>Not brought up to date: %1</source>
        <extracomment>%1 names files beside photos, with the reasons</extracomment>
        <translation>Non mis à jour : %1</translation>
    </message>
    <message>
        <source>Could not save: %1</source>
        <translation>Impossible d’enregistrer : %1</translation>
    </message>
    <message numerus="yes">
        <source>Edits go to %n sidecars</source>
        <translation>
            <numerusform>Les modifications vont dans %n fichier annexe</numerusform>
            <numerusform>Les modifications vont dans %n fichiers annexes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Edits of %n photo(s) go to sidecars</source>
        <translation>
            <numerusform>Les modifications de %n photo vont dans un fichier annexe</numerusform>
            <numerusform>Les modifications de %n photos vont dans des fichiers annexes</numerusform>
        </translation>
    </message>
    <message>
        <source>Edits go to %1</source>
        <extracomment>%1 is a file, or two</extracomment>
        <translation>Les modifications vont dans %1</translation>
    </message>
    <message numerus="yes">
        <source>Edits of %n photo(s) go to %1</source>
        <translation>
            <numerusform>Les modifications de %n photo vont dans %1</numerusform>
            <numerusform>Les modifications de %n photos vont dans %1</numerusform>
        </translation>
    </message>
    <message>
        <source>it is not there any more</source>
        <translation>n’existe plus</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (keeps|keep) what the sidecar holds otherwise than the file: nothing in a sidecar is replaced.</source>
        <translation>
            <numerusform>Pour %n photo, le fichier annexe diffère du fichier et reste tel quel : rien n’y est remplacé.</numerusform>
            <numerusform>Pour %n photos, le fichier annexe diffère du fichier et reste tel quel : rien n’y est remplacé.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (needs|need) nothing.</source>
        <translation>
            <numerusform>Rien à écrire pour %n photo.</numerusform>
            <numerusform>Rien à écrire pour %n photos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has|have) no sidecar: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n photo n’a pas de fichier annexe : %1</numerusform>
            <numerusform>%n photos n’ont pas de fichier annexe : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (shares its name with a raw photo, whose sidecar it is|share their names with raw photos, whose sidecars they are): %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n photo porte le même nom qu’une photo raw, à laquelle appartient le fichier annexe : %1</numerusform>
            <numerusform>%n photos portent le même nom que des photos raw, auxquelles appartiennent les fichiers annexes : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (is no raw photo|are no raw photos): %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n photo n’est pas une photo raw : %1</numerusform>
            <numerusform>%n photos ne sont pas des photos raw : %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Read-only, and left alone: %1</source>
        <extracomment>%1 names files</extracomment>
        <translation>En lecture seule, laissés tels quels : %1</translation>
    </message>
    <message>
        <source>Could not be read, and left alone: %1</source>
        <extracomment>%1 names files, with the reasons</extracomment>
        <translation>Illisibles, laissés tels quels : %1</translation>
    </message>
    <message>
        <source>Not written, because it would not be the same there: %1</source>
        <extracomment>%1 names photos, with the fields</extracomment>
        <translation>Non écrit, car le résultat ne serait pas identique : %1</translation>
    </message>
    <message>
        <source>%1 (reading took too long)</source>
        <extracomment>%1 is a photo</extracomment>
        <translation>%1 (la lecture a pris trop de temps)</translation>
    </message>
    <message>
        <source>Cannot export the template “%1”</source>
        <translation>Impossible d’exporter le modèle « %1 »</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>Nouveau modèle</translation>
    </message>
    <message>
        <source>Not filled in: %1</source>
        <extracomment>%1 names fields, and why a text cannot stand in them</extracomment>
        <translation>Non remplis : %1</translation>
    </message>
    <message>
        <source>Could not set the zone: %1</source>
        <translation>Impossible de définir le fuseau : %1</translation>
    </message>
    <message>
        <source>Could not shift the time: %1</source>
        <translation>Impossible de décaler l’heure : %1</translation>
    </message>
    <message numerus="yes">
        <source>Could not set the zone of %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with the reasons</extracomment>
        <translation>
            <numerusform>Impossible de définir le fuseau de %1 photo sur %n : %2</numerusform>
            <numerusform>Impossible de définir le fuseau de %1 des %n photos : %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not shift the time of %1 of %n photos: %2</source>
        <translation>
            <numerusform>Impossible de décaler l’heure de %1 photo sur %n : %2</numerusform>
            <numerusform>Impossible de décaler l’heure de %1 des %n photos : %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Times read back differently in %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with tags</extracomment>
        <translation>
            <numerusform>Heures différentes à la relecture pour %1 photo sur %n : %2</numerusform>
            <numerusform>Heures différentes à la relecture pour %1 des %n photos : %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone for want of a time zone: %1</source>
        <extracomment>%1 names photos</extracomment>
        <translation>Laissées telles quelles, faute de fuseau horaire : %1</translation>
    </message>
    <message>
        <source>Dates without a full day and time were left alone: %1</source>
        <extracomment>%1 names photos, with tags</extracomment>
        <translation>Les dates incomplètes (jour ou heure) ont été laissées telles quelles : %1</translation>
    </message>
    <message>
        <source>Taken</source>
        <comment>of a photo</comment>
        <extracomment>names of rows: when the only photo, or the first and the last one, was taken</extracomment>
        <translation>Prise</translation>
    </message>
    <message>
        <source>First</source>
        <comment>of some photos</comment>
        <translation>Première</translation>
    </message>
    <message>
        <source>Last</source>
        <comment>of some photos</comment>
        <translation>Dernière</translation>
    </message>
    <message numerus="yes">
        <source>%n had no zone</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n sans fuseau</numerusform>
            <numerusform>%n sans fuseau</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n on a new day</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n change de jour</numerusform>
            <numerusform>%n changent de jour</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no date and is|have no date and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n photo n’a pas de date et reste telle quelle : %1</numerusform>
            <numerusform>%n photos n’ont pas de date et restent telles quelles : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has an odd date and is|have odd dates and are) left alone: %1</source>
        <extracomment>%1 names the photos, with their dates</extracomment>
        <translation>
            <numerusform>%n photo a une date inhabituelle et reste telle quelle : %1</numerusform>
            <numerusform>%n photos ont une date inhabituelle et restent telles quelles : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no time zone to come from and is|have no time zone to come from and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n photo n’a pas de fuseau horaire de départ et reste telle quelle : %1</numerusform>
            <numerusform>%n photos n’ont pas de fuseau horaire de départ et restent telles quelles : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no position in a time zone and is|have no position in a time zone and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n photo n’a pas de position dans un fuseau horaire et reste telle quelle : %1</numerusform>
            <numerusform>%n photos n’ont pas de position dans un fuseau horaire et restent telles quelles : %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The one position lies in this zone.</source>
        <translation>L’unique position se trouve dans ce fuseau.</translation>
    </message>
    <message>
        <source>The one position lies in another zone.</source>
        <translation>L’unique position se trouve dans un autre fuseau.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n positions lie in this zone.</source>
        <translation>
            <numerusform>%1 position sur %n se trouve dans ce fuseau.</numerusform>
            <numerusform>Positions dans ce fuseau : %1 sur %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 d</source>
        <extracomment>days</extracomment>
        <translation>%1 j</translation>
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
        <translation>%1 plus tôt</translation>
    </message>
    <message>
        <source>%1 later</source>
        <translation>%1 plus tard</translation>
    </message>
    <message>
        <source>Each photo’s own</source>
        <translation>Celui de chaque photo</translation>
    </message>
    <message>
        <source>Whole numbers, of a hundred years at most.</source>
        <translation>Des nombres entiers, cent ans au plus.</translation>
    </message>
    <message>
        <source>This photo has no date: choose another one.</source>
        <translation>Cette photo n’a pas de date : choisissez-en une autre.</translation>
    </message>
    <message>
        <source>Not a date: YYYY-MM-DD HH:MM:SS</source>
        <translation>Date attendue : YYYY-MM-DD HH:MM:SS</translation>
    </message>
    <message>
        <source>Could not shift the time: where edits of raw files go was changed in the settings meanwhile</source>
        <translation>Impossible de décaler l’heure : la destination des modifications des fichiers raw a été changée entre-temps dans les paramètres</translation>
    </message>
    <message>
        <source>“%1” is not there any more.</source>
        <translation>« %1 » n’existe plus.</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>« %1 » n’est pas un fichier.</translation>
    </message>
    <message>
        <source>“%1” is too large for a list of codes.</source>
        <translation>« %1 » est trop volumineux pour une liste de codes.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>« %1 » est illisible : %2</translation>
    </message>
    <message>
        <source>“%1” has no fields to copy.</source>
        <translation>« %1 » n’a aucun champ à copier.</translation>
    </message>
    <message>
        <source>The texts of “%1” are too long to be copied.</source>
        <translation>Les textes de « %1 » sont trop longs pour être copiés.</translation>
    </message>
    <message>
        <source>These fields were copied by a newer version of Quorbel.</source>
        <translation>Ces champs ont été copiés par une version plus récente de Quorbel.</translation>
    </message>
    <message>
        <source>No fields were copied yet. Edit ▸ Copy Fields takes those of the selected photo.</source>
        <translation>Aucun champ n’a encore été copié. Édition ▸ Copier les champs prend ceux de la photo sélectionnée.</translation>
    </message>
    <message>
        <source>There is a set of this name already</source>
        <translation>Un jeu de ce nom existe déjà</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <extracomment>%1 is a version like 1.2, %2 a number that says which build of it this is.</extracomment>
        <translation>Version %1 (build %2)</translation>
    </message>
    <message>
        <source>© 2026 The Quorbel developers. Free software under the MIT License.</source>
        <translation>© 2026 Les développeurs de Quorbel. Logiciel libre sous licence MIT.</translation>
    </message>
    <message>
        <source>Reads and writes photos with ExifTool by Phil Harvey (Artistic License or GPL). Built with Qt %1 (LGPL 3), LibRaw (LGPL 2.1 or CDDL), libheif (LGPL 3), libjxl (BSD), OpenJPEG (BSD) and Little CMS (MIT).</source>
        <translation>Lit et écrit les photos avec ExifTool de Phil Harvey (Artistic License ou GPL). Réalisé avec Qt %1 (LGPL 3), LibRaw (LGPL 2.1 ou CDDL), libheif (LGPL 3), libjxl (BSD), OpenJPEG (BSD) et Little CMS (MIT).</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>About Quorbel</source>
        <translation>À propos de Quorbel</translation>
    </message>
    <message>
        <source>Field &amp;Set</source>
        <translation>Jeu de &amp;champs</translation>
    </message>
    <message>
        <source>Save What Is on Screen as Set…</source>
        <translation>Enregistrer les champs affichés comme jeu…</translation>
    </message>
    <message>
        <source>Edit Sets…</source>
        <translation>Modifier les jeux…</translation>
    </message>
    <message>
        <source>N&amp;o Stars</source>
        <translation>&amp;Aucune étoile</translation>
    </message>
    <message numerus="yes">
        <source>&amp;%n Star(s)</source>
        <translation>
            <numerusform>&amp;%n étoile</numerusform>
            <numerusform>&amp;%n étoiles</numerusform>
        </translation>
    </message>
    <message>
        <source>Save and Ne&amp;xt Photo</source>
        <translation>Enregistrer et photo sui&amp;vante</translation>
    </message>
    <message>
        <source>Same as Photo Be&amp;fore</source>
        <translation>Comme la photo &amp;précédente</translation>
    </message>
    <message>
        <source>Rati&amp;ng</source>
        <translation>&amp;Note</translation>
    </message>
    <message>
        <source>Ne&amp;xt Photo</source>
        <translation>Photo &amp;suivante</translation>
    </message>
    <message>
        <source>Previ&amp;ous Photo</source>
        <translation>Photo &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Look Closely</source>
        <translation>&amp;Voir de près</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu: what concerns files and the program.</extracomment>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open with Su&amp;bfolders…</source>
        <translation>Ouvrir avec les so&amp;us-dossiers…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Récemment ouverts</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Re&amp;nommer…</translation>
    </message>
    <message>
        <source>Rename P&amp;hotos…</source>
        <translation>Renommer les p&amp;hotos…</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Ac&amp;tualiser</translation>
    </message>
    <message>
        <source>&amp;Close Folder</source>
        <translation>&amp;Fermer le dossier</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>&amp;Paramètres…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Write Sidecars &amp;Into Photos…</source>
        <translation>Écrire les fichiers annexes &amp;dans les photos…</translation>
    </message>
    <message>
        <source>Write &amp;Metadata Into Sidecars…</source>
        <translation>Écrire les &amp;métadonnées dans les fichiers annexes…</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <comment>verb: empty it</comment>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu: what changes photos and texts.</extracomment>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>Undo Sa&amp;ve</source>
        <translation>Annuler l’enregis&amp;trement</translation>
    </message>
    <message>
        <source>Und&amp;o Rename</source>
        <translation>Annuler le renomma&amp;ge</translation>
    </message>
    <message>
        <source>&amp;Bring Back Edits</source>
        <translation>Récupérer les modi&amp;fications</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Tout &amp;sélectionner</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <extracomment>A verb.</extracomment>
        <translation>R&amp;echercher</translation>
    </message>
    <message>
        <source>S&amp;hift Time…</source>
        <translation>Décaler l’heu&amp;re…</translation>
    </message>
    <message>
        <source>Make Them A&amp;gree</source>
        <extracomment>Them: the places of a photo that should hold the same.</extracomment>
        <translation>Harmoniser les &amp;valeurs</translation>
    </message>
    <message>
        <source>Copy Fi&amp;elds</source>
        <translation>Copier les c&amp;hamps</translation>
    </message>
    <message>
        <source>Paste Fiel&amp;ds…</source>
        <translation>Coller les cha&amp;mps…</translation>
    </message>
    <message>
        <source>Paste Fields Aga&amp;in</source>
        <translation>Coller à no&amp;uveau les champs</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu: what is on screen.</extracomment>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Show &amp;preview</source>
        <translation>Afficher l’&amp;aperçu</translation>
    </message>
    <message>
        <source>Show &amp;Disagreements</source>
        <translation>Afficher les &amp;divergences</translation>
    </message>
    <message>
        <source>Show &amp;namespace details</source>
        <translation>Afficher les détails des espaces de &amp;noms</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>&amp;Relire</translation>
    </message>
    <message>
        <source>Pair Raw and &amp;JPEG</source>
        <translation>Associer raw et &amp;JPEG</translation>
    </message>
    <message>
        <source>Next &amp;Gap</source>
        <translation>&amp;Lacune suivante</translation>
    </message>
    <message>
        <source>Previo&amp;us Gap</source>
        <translation>Lacune précéd&amp;ente</translation>
    </message>
    <message>
        <source>Clear &amp;Filters</source>
        <translation>E&amp;ffacer les filtres</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>Quorbel &amp;Help</source>
        <translation>&amp;Aide de Quorbel</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Rechercher des &amp;mises à jour…</translation>
    </message>
    <message>
        <source>&amp;About Quorbel</source>
        <translation>À &amp;propos de Quorbel</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Apply to %n</source>
        <comment>photos</comment>
        <translation>
            <numerusform>&amp;Appliquer à %n photo</numerusform>
            <numerusform>&amp;Appliquer à %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Hide &amp;preview</source>
        <translation>Masquer l’&amp;aperçu</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <extracomment>Which files a panel lists; %1 is a list of endings.</extracomment>
        <translation>Images (%1)</translation>
    </message>
    <message>
        <source>Choose a folder of images. The folders in it are opened as well.</source>
        <translation>Choisir un dossier d’images. Ses sous-dossiers seront ouverts aussi.</translation>
    </message>
    <message>
        <source>Choose a text file of codes: a code, a tab, and its text in each line.</source>
        <translation>Choisir un fichier texte de codes : à chaque ligne, un code, une tabulation et son texte.</translation>
    </message>
    <message>
        <source>Choose a folder of images, or one or more image files.</source>
        <translation>Choisir un dossier d’images, ou un ou plusieurs fichiers image.</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>Tous les fichiers (%1)</translation>
    </message>
    <message>
        <source>Text files (%1)</source>
        <translation>Fichiers texte (%1)</translation>
    </message>
    <message>
        <source>Choose</source>
        <comment>verb: this file</comment>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>verb: these photos</comment>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Quick &amp;Keywords</source>
        <translation>Mots-clés rap&amp;ides</translation>
    </message>
    <message>
        <source>Templates (%1)</source>
        <translation>Modèles (%1)</translation>
    </message>
    <message>
        <source>Choose template files.</source>
        <translation>Choisir des fichiers de modèle.</translation>
    </message>
    <message>
        <source>Choose where the template is to go.</source>
        <translation>Choisir où enregistrer le modèle.</translation>
    </message>
    <message>
        <source>Save as Template…</source>
        <translation>Enregistrer comme modèle…</translation>
    </message>
    <message>
        <source>Te&amp;mplates</source>
        <translation>Mo&amp;dèles</translation>
    </message>
    <message>
        <source>Templates…</source>
        <translation>Modèles…</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Réta&amp;blir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>C&amp;ouper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;ller</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Quorbel est à jour</translation>
    </message>
    <message>
        <source>Quorbel is running the latest version.</source>
        <translation>La dernière version de Quorbel est installée.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Impossible de rechercher les mises à jour</translation>
    </message>
    <message>
        <source>Please check your internet connection and try again.</source>
        <translation>Vérifiez la connexion Internet et réessayez.</translation>
    </message>
    <message>
        <source>Quorbel %1 is available</source>
        <translation>Quorbel %1 est disponible</translation>
    </message>
    <message>
        <source>A newer version of Quorbel is available.</source>
        <translation>Une nouvelle version de Quorbel est disponible.</translation>
    </message>
    <message>
        <source>Download</source>
        <comment>verb</comment>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>button: not now</comment>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Reads and edits the words inside photos.</source>
        <translation>Lit et modifie les textes contenus dans les photos.</translation>
    </message>
    <message>
        <source>A folder of photos, or photos.</source>
        <translation>Un dossier de photos, ou des photos.</translation>
    </message>
    <message>
        <source>[files…]</source>
        <extracomment>What a command line may hold behind the name of the program.</extracomment>
        <translation>[fichiers…]</translation>
    </message>
    <message>
        <source>The update feed’s “%1” is missing or no text.</source>
        <translation>Flux de mises à jour : « %1 » manque ou n’est pas un texte.</translation>
    </message>
    <message>
        <source>The update feed’s “%1” is missing or no whole number.</source>
        <translation>Flux de mises à jour : « %1 » manque ou n’est pas un nombre entier.</translation>
    </message>
    <message>
        <source>Bad server response: HTTP status %1.</source>
        <translation>Mauvaise réponse du serveur : code HTTP %1.</translation>
    </message>
    <message>
        <source>The update feed is no valid JSON: %1.</source>
        <translation>Le flux de mises à jour n’est pas du JSON valide : %1.</translation>
    </message>
    <message>
        <source>The update feed is no JSON object.</source>
        <translation>Le flux de mises à jour n’est pas un objet JSON.</translation>
    </message>
    <message numerus="yes">
        <source>Long to listen to: %1 of %n character(s)</source>
        <translation>
            <numerusform>Long à écouter : %1 sur %n caractère</numerusform>
            <numerusform>Long à écouter : %1 sur %n caractères</numerusform>
        </translation>
    </message>
    <message>
        <source>Points to “%1”, which is empty</source>
        <translation>Renvoie à « %1 », qui est vide</translation>
    </message>
    <message>
        <source>Alternative text</source>
        <translation>Texte alternatif</translation>
    </message>
    <message>
        <source>Says what is to be seen, for people who cannot see it</source>
        <translation>Dit ce qui est visible, pour les personnes qui ne peuvent pas le voir</translation>
    </message>
    <message>
        <source>Extended description</source>
        <translation>Description étendue</translation>
    </message>
    <message>
        <source>Describes at length what a short text cannot, for people who cannot see it</source>
        <translation>Décrit en détail ce qu’un texte court ne peut dire, pour les personnes qui ne peuvent pas le voir</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Code du pays</translation>
    </message>
    <message>
        <source>Two or three letters of ISO 3166: CH, CHE</source>
        <translation>Deux ou trois lettres de la norme ISO 3166 : CH, CHE</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Fonction</translation>
    </message>
    <message>
        <source>The creator&apos;s position or occupation</source>
        <translation>Poste ou profession du créateur</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Where the creator can be reached: address, phone, e-mail, web</source>
        <translation>Comment joindre le créateur : adresse, téléphone, e-mail, web</translation>
    </message>
    <message>
        <source>People in detail</source>
        <translation>Personnes en détail</translation>
    </message>
    <message>
        <source>Who is to be seen, with identifiers, description and characteristics</source>
        <translation>Qui est représenté, avec identifiants, description et caractéristiques</translation>
    </message>
    <message>
        <source>Model ages</source>
        <translation>Âge des modèles</translation>
    </message>
    <message>
        <source>How old the models were, in years</source>
        <translation>Âge des modèles, en années</translation>
    </message>
    <message>
        <source>Youngest model</source>
        <translation>Plus jeune modèle</translation>
    </message>
    <message>
        <source>How old the youngest model was</source>
        <translation>Âge du plus jeune modèle</translation>
    </message>
    <message>
        <source>Model information</source>
        <translation>Infos sur les modèles</translation>
    </message>
    <message>
        <source>Anything else that is to be known about the models</source>
        <translation>Tout ce qu’il faut savoir d’autre sur les modèles</translation>
    </message>
    <message>
        <source>Model releases</source>
        <translation>Autorisations de modèle</translation>
    </message>
    <message>
        <source>How far releases cover the people who are shown</source>
        <translation>Dans quelle mesure des autorisations couvrent les personnes représentées</translation>
    </message>
    <message>
        <source>Model release IDs</source>
        <translation>ID d’autorisation de modèle</translation>
    </message>
    <message>
        <source>Numbers under which the model releases are filed</source>
        <translation>Numéros sous lesquels sont classées les autorisations de modèle</translation>
    </message>
    <message>
        <source>Location created</source>
        <translation>Lieu de prise de vue</translation>
    </message>
    <message>
        <source>Where the camera stood</source>
        <translation>Où se trouvait l’appareil</translation>
    </message>
    <message>
        <source>Locations shown</source>
        <translation>Lieux représentés</translation>
    </message>
    <message>
        <source>Places that are to be seen</source>
        <translation>Lieux visibles sur l’image</translation>
    </message>
    <message>
        <source>Subject codes</source>
        <translation>Codes sujet</translation>
    </message>
    <message>
        <source>What it is about, by the eight-digit codes of IPTC (an older list)</source>
        <translation>De quoi il s’agit, selon les codes IPTC à huit chiffres (liste ancienne)</translation>
    </message>
    <message>
        <source>Subject terms</source>
        <translation>Termes de sujet</translation>
    </message>
    <message>
        <source>What it is about, by terms of a vocabulary</source>
        <translation>De quoi il s’agit, en termes d’un vocabulaire</translation>
    </message>
    <message>
        <source>Genre terms</source>
        <translation>Termes de genre</translation>
    </message>
    <message>
        <source>What kind of picture it is, by terms of a vocabulary</source>
        <translation>De quel genre d’image il s’agit, en termes d’un vocabulaire</translation>
    </message>
    <message>
        <source>Event IDs</source>
        <translation>ID d’événement</translation>
    </message>
    <message>
        <source>Identifiers of the event</source>
        <translation>Identifiants de l’événement</translation>
    </message>
    <message>
        <source>Organisations</source>
        <translation>Organisations</translation>
    </message>
    <message>
        <source>Organisations that are to be seen, by name</source>
        <translation>Noms des organisations représentées</translation>
    </message>
    <message>
        <source>Organisation codes</source>
        <translation>Codes d’organisation</translation>
    </message>
    <message>
        <source>The same by a code: stock ticker, registry number</source>
        <translation>Les mêmes par un code : symbole boursier, numéro de registre</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>Produits</translation>
    </message>
    <message>
        <source>Products that are to be seen, with GTIN and identifiers</source>
        <translation>Produits représentés, avec GTIN et identifiants</translation>
    </message>
    <message>
        <source>Artworks or objects</source>
        <translation>Œuvres ou objets</translation>
    </message>
    <message>
        <source>Works that are to be seen, with maker, date, owner and rights</source>
        <translation>Œuvres représentées, avec auteur, date, propriétaire et droits</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Régions</translation>
    </message>
    <message>
        <source>Parts of the picture: outline, name, kind and role</source>
        <translation>Parties de l’image : contour, nom, type et rôle</translation>
    </message>
    <message>
        <source>Copyright owners</source>
        <translation>Titulaires du copyright</translation>
    </message>
    <message>
        <source>Who owns the copyright</source>
        <translation>Qui détient le copyright</translation>
    </message>
    <message>
        <source>Image creators</source>
        <translation>Créateurs de l’image</translation>
    </message>
    <message>
        <source>Who made the picture, with identifiers</source>
        <translation>Qui a fait l’image, avec identifiants</translation>
    </message>
    <message>
        <source>Contributors</source>
        <translation>Contributeurs</translation>
    </message>
    <message>
        <source>Who helped to make the picture, and in which role</source>
        <translation>Qui a participé à l’image, et dans quel rôle</translation>
    </message>
    <message>
        <source>Other constraints</source>
        <translation>Autres contraintes</translation>
    </message>
    <message>
        <source>Further limits of use, in words</source>
        <translation>Autres limites d’utilisation, en texte libre</translation>
    </message>
    <message>
        <source>Data mining</source>
        <translation>Fouille de données</translation>
    </message>
    <message>
        <source>Whether others may mine the picture or train AI with it</source>
        <translation>Si d’autres peuvent fouiller l’image ou s’en servir pour entraîner une IA</translation>
    </message>
    <message>
        <source>Property releases</source>
        <translation>Autorisations de propriété</translation>
    </message>
    <message>
        <source>How far releases cover what is shown</source>
        <translation>Dans quelle mesure des autorisations couvrent ce qui est représenté</translation>
    </message>
    <message>
        <source>Property release IDs</source>
        <translation>ID d’autorisation de propriété</translation>
    </message>
    <message>
        <source>Numbers under which the property releases are filed</source>
        <translation>Numéros sous lesquels sont classées les autorisations de propriété</translation>
    </message>
    <message>
        <source>Licensors</source>
        <translation>Concédants</translation>
    </message>
    <message>
        <source>Whom to ask for a licence</source>
        <translation>À qui demander une licence</translation>
    </message>
    <message>
        <source>Suppliers</source>
        <translation>Fournisseurs</translation>
    </message>
    <message>
        <source>Who passed the picture on last</source>
        <translation>Qui a transmis l’image en dernier</translation>
    </message>
    <message>
        <source>Supplier image ID</source>
        <translation>ID chez le fournisseur</translation>
    </message>
    <message>
        <source>The picture&apos;s number at the supplier</source>
        <translation>Le numéro de l’image chez le fournisseur</translation>
    </message>
    <message>
        <source>Embedded rights</source>
        <translation>Droits intégrés</translation>
    </message>
    <message>
        <source>Terms that machines read, within the file</source>
        <translation>Conditions lisibles par les machines, dans le fichier</translation>
    </message>
    <message>
        <source>Linked rights</source>
        <translation>Droits liés</translation>
    </message>
    <message>
        <source>Terms that machines read, at an address</source>
        <translation>Conditions lisibles par les machines, à une adresse</translation>
    </message>
    <message>
        <source>Digital source</source>
        <translation>Source numérique</translation>
    </message>
    <message>
        <source>What the picture was made from: camera, scan, software, AI</source>
        <translation>De quoi l’image est issue : appareil, numérisation, logiciel, IA</translation>
    </message>
    <message>
        <source>AI system</source>
        <translation>Système d’IA</translation>
    </message>
    <message>
        <source>Which engine or model made it</source>
        <translation>Quel moteur ou modèle l’a produite</translation>
    </message>
    <message>
        <source>AI system version</source>
        <translation>Version du système d’IA</translation>
    </message>
    <message>
        <source>Its version</source>
        <translation>Sa version</translation>
    </message>
    <message>
        <source>AI prompt</source>
        <translation>Prompt d’IA</translation>
    </message>
    <message>
        <source>What the AI was asked for, and what not</source>
        <translation>Ce qui a été demandé à l’IA, et ce qu’elle devait éviter</translation>
    </message>
    <message>
        <source>AI prompt writer</source>
        <translation>Auteur du prompt d’IA</translation>
    </message>
    <message>
        <source>Who wrote the prompt</source>
        <translation>Qui a rédigé le prompt</translation>
    </message>
    <message>
        <source>Image GUID</source>
        <translation>GUID de l’image</translation>
    </message>
    <message>
        <source>An identifier that no other picture has</source>
        <translation>Un identifiant qu’aucune autre image ne porte</translation>
    </message>
    <message>
        <source>Registry entries</source>
        <translation>Entrées de registre</translation>
    </message>
    <message>
        <source>Registries that know the picture, and its number there</source>
        <translation>Registres où figure l’image, et son numéro dans chacun</translation>
    </message>
    <message>
        <source>Largest width</source>
        <translation>Largeur maximale</translation>
    </message>
    <message>
        <source>Of the largest version that can be had, in pixels</source>
        <translation>De la plus grande version disponible, en pixels</translation>
    </message>
    <message>
        <source>Largest height</source>
        <translation>Hauteur maximale</translation>
    </message>
    <message>
        <source>contact</source>
        <translation>contact</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
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
        <translation>Code postal</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ville</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>artwork</source>
        <translation>œuvre</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Creators</source>
        <translation>Créateurs</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>Created about</source>
        <translation>Date approximative</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Contenu</translation>
    </message>
    <message>
        <source>Contributions</source>
        <translation>Contributions</translation>
    </message>
    <message>
        <source>Physical description</source>
        <translation>Description matérielle</translation>
    </message>
    <message>
        <source>Style or period</source>
        <translation>Style ou période</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Inventory number</source>
        <translation>Numéro d’inventaire</translation>
    </message>
    <message>
        <source>Inventory address</source>
        <translation>URL d’inventaire</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Mention de copyright</translation>
    </message>
    <message>
        <source>Copyright owner</source>
        <translation>Titulaire du copyright</translation>
    </message>
    <message>
        <source>Copyright owner ID</source>
        <translation>ID du titulaire</translation>
    </message>
    <message>
        <source>Licensor</source>
        <translation>Concédant</translation>
    </message>
    <message>
        <source>Licensor ID</source>
        <translation>ID du concédant</translation>
    </message>
    <message>
        <source>Creator IDs</source>
        <translation>ID des créateurs</translation>
    </message>
    <message>
        <source>term</source>
        <translation>terme</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Term ID</source>
        <translation>ID du terme</translation>
    </message>
    <message>
        <source>Vocabulary</source>
        <translation>Vocabulaire</translation>
    </message>
    <message>
        <source>Relation</source>
        <translation>Relation</translation>
    </message>
    <message>
        <source>expression</source>
        <translation>expression</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expression</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Encodage</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>entry</source>
        <translation>entrée</translation>
    </message>
    <message>
        <source>Identifiers</source>
        <translation>Identifiants</translation>
    </message>
    <message>
        <source>contributor</source>
        <translation>contributeur</translation>
    </message>
    <message>
        <source>Roles</source>
        <translation>Rôles</translation>
    </message>
    <message>
        <source>region</source>
        <translation>région</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rôle</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>contour</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forme</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
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
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>point</source>
        <translation>point</translation>
    </message>
    <message>
        <source>link</source>
        <translation>lien</translation>
    </message>
    <message>
        <source>place</source>
        <translation>lieu</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>Lieu précis</translation>
    </message>
    <message>
        <source>World region</source>
        <translation>Région du monde</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Altitude (m)</source>
        <translation>Altitude (m)</translation>
    </message>
    <message>
        <source>Below sea level</source>
        <translation>Sous le niveau de la mer</translation>
    </message>
    <message>
        <source>person</source>
        <translation>personne</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Characteristics</source>
        <translation>Caractéristiques</translation>
    </message>
    <message>
        <source>product</source>
        <translation>produit</translation>
    </message>
    <message>
        <source>GTIN</source>
        <translation>GTIN</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Registre</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>licensor</source>
        <translation>concédant</translation>
    </message>
    <message>
        <source>Phone type</source>
        <translation>Type de téléphone</translation>
    </message>
    <message>
        <source>Second phone</source>
        <translation>Téléphone 2</translation>
    </message>
    <message>
        <source>Second phone type</source>
        <translation>Type de téléphone 2</translation>
    </message>
    <message>
        <source>Address, further</source>
        <translation>Complément d’adresse</translation>
    </message>
    <message>
        <source>owner</source>
        <translation>titulaire</translation>
    </message>
    <message>
        <source>creator</source>
        <translation>créateur</translation>
    </message>
    <message>
        <source>supplier</source>
        <translation>fournisseur</translation>
    </message>
    <message>
        <source>%1 is not a number: “%2”</source>
        <extracomment>%1 is what the number tells (&quot;Latitude&quot;), %2 what stands there instead</extracomment>
        <translation>%1 : « %2 » n’est pas un nombre</translation>
    </message>
    <message>
        <source>not a whole number: “%1”</source>
        <translation>« %1 » n’est pas un nombre entier</translation>
    </message>
    <message>
        <source>%1 holds %2 of another program, which this change would lose</source>
        <extracomment>%1 is a field, %2 names parts of it, in quotation marks</extracomment>
        <translation>%1 contient %2 d’un autre programme, que cette modification ferait perdre</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>Nombre attendu</translation>
    </message>
    <message numerus="yes">
        <source>%1 · %n more</source>
        <extracomment>%1 is what the first of several cards says</extracomment>
        <translation>
            <numerusform>%1 · %n autre</numerusform>
            <numerusform>%1 · %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose Genre…</source>
        <translation>Choisir un genre…</translation>
    </message>
    <message>
        <source>Choose Subject…</source>
        <translation>Choisir un sujet…</translation>
    </message>
    <message>
        <source>Choose Kind…</source>
        <translation>Choisir un type…</translation>
    </message>
    <message>
        <source>Choose Role…</source>
        <translation>Choisir un rôle…</translation>
    </message>
    <message>
        <source>Digital source type</source>
        <translation>Type de source numérique</translation>
    </message>
    <message>
        <source>Digital capture sampled from real life</source>
        <translation>Prise de vue numérique du réel</translation>
    </message>
    <message>
        <source>Taken with a camera, not changed beyond developing</source>
        <translation>Prise avec un appareil photo, sans modification hormis le développement</translation>
    </message>
    <message>
        <source>Multi-frame computational capture sampled from real life</source>
        <translation>Prise de vue composite multi-images du réel</translation>
    </message>
    <message>
        <source>Several frames of one moment joined by the camera</source>
        <translation>Plusieurs vues d’un même moment réunies par l’appareil</translation>
    </message>
    <message>
        <source>Digitised from a transparent negative</source>
        <translation>Numérisation d’un négatif transparent</translation>
    </message>
    <message>
        <source>A film negative turned into a digital picture</source>
        <translation>Un négatif film converti en image numérique</translation>
    </message>
    <message>
        <source>Digitised from a transparent positive</source>
        <translation>Numérisation d’un positif transparent</translation>
    </message>
    <message>
        <source>A slide turned into a digital picture</source>
        <translation>Une diapositive convertie en image numérique</translation>
    </message>
    <message>
        <source>Digitised from a non-transparent medium</source>
        <translation>Numérisation d’un support non transparent</translation>
    </message>
    <message>
        <source>A scan of a print or another thing on paper</source>
        <translation>La numérisation d’un tirage ou d’un autre document papier</translation>
    </message>
    <message>
        <source>Human-edited media</source>
        <translation>Média modifié par une personne</translation>
    </message>
    <message>
        <source>A picture that a person changed, with tools other than generative AI</source>
        <translation>Une image modifiée par une personne, avec des outils autres que l’IA générative</translation>
    </message>
    <message>
        <source>Edited using Generative AI</source>
        <translation>Modifié avec une IA générative</translation>
    </message>
    <message>
        <source>A picture parts of which were changed or added by generative AI</source>
        <translation>Une image dont des parties ont été modifiées ou ajoutées par une IA générative</translation>
    </message>
    <message>
        <source>Algorithmically-altered media</source>
        <translation>Média modifié par un algorithme</translation>
    </message>
    <message>
        <source>Changed by a program by itself, not by generative AI</source>
        <translation>Modifiée automatiquement par un programme, mais pas par une IA générative</translation>
    </message>
    <message>
        <source>Digital creation</source>
        <translation>Création numérique</translation>
    </message>
    <message>
        <source>Made by a person with digital tools, such as a drawing</source>
        <translation>Faite par une personne avec des outils numériques, comme un dessin</translation>
    </message>
    <message>
        <source>Data-driven media</source>
        <translation>Média issu de données</translation>
    </message>
    <message>
        <source>Drawn from data, such as a chart or a map</source>
        <translation>Tracée à partir de données, comme un graphique ou une carte</translation>
    </message>
    <message>
        <source>Created using Generative AI</source>
        <translation>Créé avec une IA générative</translation>
    </message>
    <message>
        <source>Made wholly by an AI that learned from other pictures</source>
        <translation>Produite entièrement par une IA entraînée sur d’autres images</translation>
    </message>
    <message>
        <source>Pure algorithmic media</source>
        <translation>Média purement algorithmique</translation>
    </message>
    <message>
        <source>Computed by a formula that learned from nothing, such as a fractal</source>
        <translation>Calculée par une formule sans aucun apprentissage, comme une fractale</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>What a display showed</source>
        <translation>Ce que montrait un écran</translation>
    </message>
    <message>
        <source>Virtual event recording</source>
        <translation>Enregistrement d’un événement virtuel</translation>
    </message>
    <message>
        <source>Recorded of something that took place in a virtual world</source>
        <translation>Enregistré lors d’un événement dans un monde virtuel</translation>
    </message>
    <message>
        <source>Composite of elements</source>
        <translation>Composition d’éléments</translation>
    </message>
    <message>
        <source>Put together from parts of any kind</source>
        <translation>Assemblée à partir d’éléments de toute sorte</translation>
    </message>
    <message>
        <source>Composite of captured elements</source>
        <translation>Composition d’éléments photographiés</translation>
    </message>
    <message>
        <source>Put together from parts that were all photographed</source>
        <translation>Assemblée à partir d’éléments tous photographiés</translation>
    </message>
    <message>
        <source>Composite including generative AI elements</source>
        <translation>Composition comprenant des éléments d’IA générative</translation>
    </message>
    <message>
        <source>Put together from parts of which generative AI made at least one</source>
        <translation>Assemblée à partir d’éléments dont au moins un vient d’une IA générative</translation>
    </message>
    <message>
        <source>Original media with minor human edits</source>
        <translation>Média original avec retouches humaines mineures</translation>
    </message>
    <message>
        <source>Retired in 2024: use the one for human-edited media</source>
        <translation>Retiré en 2024 : utiliser celui des médias modifiés par une personne</translation>
    </message>
    <message>
        <source>Created by software</source>
        <translation>Créé par un logiciel</translation>
    </message>
    <message>
        <source>Retired in 2022: use one that says how</source>
        <translation>Retiré en 2022 : utiliser un terme qui dit comment</translation>
    </message>
    <message>
        <source>Digital art</source>
        <translation>Art numérique</translation>
    </message>
    <message>
        <source>Retired in 2024: use the one for a digital creation</source>
        <translation>Retiré en 2024 : utiliser celui de la création numérique</translation>
    </message>
    <message>
        <source>Unspecified – no prohibition defined</source>
        <translation>Non précisé – aucune interdiction définie</translation>
    </message>
    <message>
        <source>The file says nothing about it</source>
        <translation>Le fichier n’en dit rien</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Autorisé</translation>
    </message>
    <message>
        <source>Anybody may mine the picture and train with it</source>
        <translation>Tout le monde peut fouiller l’image et s’en servir pour l’entraînement</translation>
    </message>
    <message>
        <source>Prohibited for AI/ML training</source>
        <translation>Interdit pour l’entraînement d’IA</translation>
    </message>
    <message>
        <source>No training of any AI; other mining may be done</source>
        <translation>Aucun entraînement d’IA ; toute autre fouille est possible</translation>
    </message>
    <message>
        <source>Prohibited for Generative AI/ML training</source>
        <translation>Interdit pour l’entraînement d’IA générative</translation>
    </message>
    <message>
        <source>No training of AI that makes pictures or texts</source>
        <translation>Aucun entraînement d’IA qui produit des images ou des textes</translation>
    </message>
    <message>
        <source>Prohibited except for search engine indexing</source>
        <translation>Interdit, sauf indexation par les moteurs de recherche</translation>
    </message>
    <message>
        <source>Search engines may list the picture; nothing else</source>
        <translation>Les moteurs de recherche peuvent référencer l’image ; rien d’autre</translation>
    </message>
    <message>
        <source>Prohibited</source>
        <translation>Interdit</translation>
    </message>
    <message>
        <source>No mining and no training at all</source>
        <translation>Ni fouille ni entraînement</translation>
    </message>
    <message>
        <source>Prohibited, see Other Constraints</source>
        <translation>Interdit, voir Autres contraintes</translation>
    </message>
    <message>
        <source>What may be done stands in Other constraints, which must be filled</source>
        <translation>Ce qui est permis figure dans Autres contraintes, à remplir obligatoirement</translation>
    </message>
    <message>
        <source>Prohibited, see Embedded Encoded Rights Expression</source>
        <translation>Interdit, voir l’expression de droits intégrée</translation>
    </message>
    <message>
        <source>What may be done stands in Embedded rights</source>
        <translation>Ce qui est permis figure dans Droits intégrés</translation>
    </message>
    <message>
        <source>Prohibited, see Linked Encoded Rights Expression</source>
        <translation>Interdit, voir l’expression de droits liée</translation>
    </message>
    <message>
        <source>What may be done stands where Linked rights points</source>
        <translation>Ce qui est permis figure à l’adresse de Droits liés</translation>
    </message>
    <message>
        <source>Model release status</source>
        <translation>Statut de l’autorisation de modèle</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Nobody who is shown has signed a release</source>
        <translation>Aucune personne représentée n’a signé d’autorisation</translation>
    </message>
    <message>
        <source>Not Applicable</source>
        <translation>Sans objet</translation>
    </message>
    <message>
        <source>Nobody is shown whose consent would be needed</source>
        <translation>Aucune personne représentée dont l’accord soit nécessaire</translation>
    </message>
    <message>
        <source>Unlimited Model Releases</source>
        <translation>Autorisations de modèle illimitées</translation>
    </message>
    <message>
        <source>All who are shown have signed, without limits</source>
        <translation>Toutes les personnes représentées ont signé, sans limites</translation>
    </message>
    <message>
        <source>Limited or Incomplete Model Releases</source>
        <translation>Autorisations de modèle limitées ou incomplètes</translation>
    </message>
    <message>
        <source>Some have not signed, or only for certain uses</source>
        <translation>Certaines n’ont pas signé, ou seulement pour certains usages</translation>
    </message>
    <message>
        <source>Property release status</source>
        <translation>Statut de l’autorisation de propriété</translation>
    </message>
    <message>
        <source>No owner of what is shown has signed a release</source>
        <translation>Aucun propriétaire de ce qui est représenté n’a signé d’autorisation</translation>
    </message>
    <message>
        <source>Nothing is shown whose owner&apos;s consent would be needed</source>
        <translation>Rien de représenté qui exige l’accord d’un propriétaire</translation>
    </message>
    <message>
        <source>Unlimited Property Releases</source>
        <translation>Autorisations de propriété illimitées</translation>
    </message>
    <message>
        <source>All owners have signed, without limits</source>
        <translation>Tous les propriétaires ont signé, sans limites</translation>
    </message>
    <message>
        <source>Limited or Incomplete Property Releases</source>
        <translation>Autorisations de propriété limitées ou incomplètes</translation>
    </message>
    <message>
        <source>Minor model age</source>
        <translation>Âge du plus jeune modèle</translation>
    </message>
    <message>
        <source>Age Unknown</source>
        <translation>Âge inconnu</translation>
    </message>
    <message>
        <source>Nobody knows how old the youngest person was</source>
        <translation>On ne sait pas quel âge avait la personne la plus jeune</translation>
    </message>
    <message>
        <source>Age 25 or Over</source>
        <translation>25 ans ou plus</translation>
    </message>
    <message>
        <source>The youngest person was at least 25</source>
        <translation>La personne la plus jeune avait au moins 25 ans</translation>
    </message>
    <message>
        <source>Age 24</source>
        <translation>24 ans</translation>
    </message>
    <message>
        <source>Age 23</source>
        <translation>23 ans</translation>
    </message>
    <message>
        <source>Age 22</source>
        <translation>22 ans</translation>
    </message>
    <message>
        <source>Age 21</source>
        <translation>21 ans</translation>
    </message>
    <message>
        <source>Age 20</source>
        <translation>20 ans</translation>
    </message>
    <message>
        <source>Age 19</source>
        <translation>19 ans</translation>
    </message>
    <message>
        <source>Age 18</source>
        <translation>18 ans</translation>
    </message>
    <message>
        <source>The youngest person was of age in most countries</source>
        <translation>La personne la plus jeune était majeure dans la plupart des pays</translation>
    </message>
    <message>
        <source>Age 17</source>
        <translation>17 ans</translation>
    </message>
    <message>
        <source>Age 16</source>
        <translation>16 ans</translation>
    </message>
    <message>
        <source>Age 15</source>
        <translation>15 ans</translation>
    </message>
    <message>
        <source>Age 14 or Under</source>
        <translation>14 ans ou moins</translation>
    </message>
    <message>
        <source>The youngest person was a child of at most 14</source>
        <translation>La personne la plus jeune était un enfant de 14 ans au plus</translation>
    </message>
    <message>
        <source>Telephone type</source>
        <translation>Type de téléphone</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Travail</translation>
    </message>
    <message>
        <source>At the place of work</source>
        <translation>Sur le lieu de travail</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Mobile</translation>
    </message>
    <message>
        <source>A mobile phone</source>
        <translation>Un téléphone mobile</translation>
    </message>
    <message>
        <source>FAX</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>A fax machine</source>
        <translation>Un télécopieur</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Domicile</translation>
    </message>
    <message>
        <source>At home</source>
        <translation>À domicile</translation>
    </message>
    <message>
        <source>Pager</source>
        <translation>Bipeur</translation>
    </message>
    <message>
        <source>Takes short messages</source>
        <translation>Reçoit de courts messages</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Scène</translation>
    </message>
    <message>
        <source>headshot</source>
        <translation>portrait</translation>
    </message>
    <message>
        <source>The head of a person</source>
        <translation>La tête d’une personne</translation>
    </message>
    <message>
        <source>half-length</source>
        <translation>à mi-corps</translation>
    </message>
    <message>
        <source>A person down to the waist</source>
        <translation>Une personne jusqu’à la taille</translation>
    </message>
    <message>
        <source>full-length</source>
        <translation>en pied</translation>
    </message>
    <message>
        <source>A person from head to toe</source>
        <translation>Une personne de la tête aux pieds</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>profil</translation>
    </message>
    <message>
        <source>A person from the side</source>
        <translation>Une personne de côté</translation>
    </message>
    <message>
        <source>rear view</source>
        <translation>de dos</translation>
    </message>
    <message>
        <source>A person or thing from behind</source>
        <translation>Une personne ou une chose vue de derrière</translation>
    </message>
    <message>
        <source>single</source>
        <translation>seul</translation>
    </message>
    <message>
        <source>One person or thing alone</source>
        <translation>Une seule personne ou chose</translation>
    </message>
    <message>
        <source>couple</source>
        <translation>couple</translation>
    </message>
    <message>
        <source>Two people who belong together</source>
        <translation>Deux personnes qui vont ensemble</translation>
    </message>
    <message>
        <source>two</source>
        <translation>deux</translation>
    </message>
    <message>
        <source>Two people or things</source>
        <translation>Deux personnes ou choses</translation>
    </message>
    <message>
        <source>group</source>
        <translation>groupe</translation>
    </message>
    <message>
        <source>More than two people or things</source>
        <translation>Plus de deux personnes ou choses</translation>
    </message>
    <message>
        <source>general view</source>
        <translation>vue générale</translation>
    </message>
    <message>
        <source>The whole of a place or an event</source>
        <translation>L’ensemble d’un lieu ou d’un événement</translation>
    </message>
    <message>
        <source>panoramic view</source>
        <translation>vue panoramique</translation>
    </message>
    <message>
        <source>Wide, over a whole landscape or town</source>
        <translation>Vue large d’un paysage ou d’une ville entière</translation>
    </message>
    <message>
        <source>aerial view</source>
        <translation>vue aérienne</translation>
    </message>
    <message>
        <source>Taken from the air</source>
        <translation>Prise depuis les airs</translation>
    </message>
    <message>
        <source>under-water</source>
        <translation>sous l’eau</translation>
    </message>
    <message>
        <source>Taken below the surface of water</source>
        <translation>Prise sous la surface de l’eau</translation>
    </message>
    <message>
        <source>night scene</source>
        <translation>scène de nuit</translation>
    </message>
    <message>
        <source>Taken by night</source>
        <translation>Prise de nuit</translation>
    </message>
    <message>
        <source>satellite</source>
        <translation>satellite</translation>
    </message>
    <message>
        <source>Taken from space</source>
        <translation>Prise depuis l’espace</translation>
    </message>
    <message>
        <source>exterior view</source>
        <translation>vue extérieure</translation>
    </message>
    <message>
        <source>A building from outside</source>
        <translation>Un bâtiment vu de l’extérieur</translation>
    </message>
    <message>
        <source>interior view</source>
        <translation>vue intérieure</translation>
    </message>
    <message>
        <source>A room or building from inside</source>
        <translation>Une pièce ou un bâtiment vus de l’intérieur</translation>
    </message>
    <message>
        <source>close-up</source>
        <translation>gros plan</translation>
    </message>
    <message>
        <source>Taken from near, details fill the frame</source>
        <translation>Prise de près, les détails emplissent le cadre</translation>
    </message>
    <message>
        <source>action</source>
        <translation>action</translation>
    </message>
    <message>
        <source>People or things in motion</source>
        <translation>Des personnes ou des choses en mouvement</translation>
    </message>
    <message>
        <source>performing</source>
        <translation>représentation</translation>
    </message>
    <message>
        <source>Somebody on a stage or at a show</source>
        <translation>Quelqu’un sur scène ou dans un spectacle</translation>
    </message>
    <message>
        <source>posing</source>
        <translation>pose</translation>
    </message>
    <message>
        <source>Somebody who holds still for the camera</source>
        <translation>Quelqu’un qui pose pour la photo</translation>
    </message>
    <message>
        <source>symbolic</source>
        <translation>symbolique</translation>
    </message>
    <message>
        <source>Stands for an idea rather than for what it shows</source>
        <translation>Évoque une idée plutôt que ce qui est montré</translation>
    </message>
    <message>
        <source>off-beat</source>
        <translation>insolite</translation>
    </message>
    <message>
        <source>Odd or funny</source>
        <translation>Étrange ou drôle</translation>
    </message>
    <message>
        <source>movie scene</source>
        <translation>scène de film</translation>
    </message>
    <message>
        <source>Taken at the making of a film, or a frame of one</source>
        <translation>Prise sur un tournage, ou image d’un film</translation>
    </message>
    <message>
        <source>Subject code</source>
        <translation>Code sujet</translation>
    </message>
    <message>
        <source>arts, culture and entertainment</source>
        <translation>arts, culture et spectacles</translation>
    </message>
    <message>
        <source>Music, film, theatre, literature, museums, celebrities of the arts</source>
        <translation>Musique, cinéma, théâtre, littérature, musées, célébrités des arts</translation>
    </message>
    <message>
        <source>crime, law and justice</source>
        <translation>criminalité, droit et justice</translation>
    </message>
    <message>
        <source>Police, courts, laws, prisons</source>
        <translation>Police, tribunaux, lois, prisons</translation>
    </message>
    <message>
        <source>disaster and accident</source>
        <translation>désastres et accidents</translation>
    </message>
    <message>
        <source>Fires, floods, earthquakes, crashes</source>
        <translation>Incendies, inondations, séismes, accidents</translation>
    </message>
    <message>
        <source>economy, business and finance</source>
        <translation>économie et finances</translation>
    </message>
    <message>
        <source>Companies, markets, trades, industries</source>
        <translation>Entreprises, marchés, commerce, industries</translation>
    </message>
    <message>
        <source>education</source>
        <translation>éducation</translation>
    </message>
    <message>
        <source>Schools, universities, teaching</source>
        <translation>Écoles, universités, enseignement</translation>
    </message>
    <message>
        <source>environmental issue</source>
        <translation>environnement</translation>
    </message>
    <message>
        <source>Nature, climate, pollution, conservation</source>
        <translation>Nature, climat, pollution, protection</translation>
    </message>
    <message>
        <source>health</source>
        <translation>santé</translation>
    </message>
    <message>
        <source>Illness, medicine, hospitals</source>
        <translation>Maladies, médecine, hôpitaux</translation>
    </message>
    <message>
        <source>human interest</source>
        <translation>gens, animaux, insolite</translation>
    </message>
    <message>
        <source>People, animals, curiosities</source>
        <translation>Gens, animaux, curiosités</translation>
    </message>
    <message>
        <source>labour</source>
        <translation>social</translation>
    </message>
    <message>
        <source>Work, unions, strikes, unemployment</source>
        <translation>Travail, syndicats, grèves, chômage</translation>
    </message>
    <message>
        <source>lifestyle and leisure</source>
        <translation>vie quotidienne et loisirs</translation>
    </message>
    <message>
        <source>Travel, food, hobbies, fashion</source>
        <translation>Voyages, cuisine, passe-temps, mode</translation>
    </message>
    <message>
        <source>politics</source>
        <translation>politique</translation>
    </message>
    <message>
        <source>Governments, elections, parties, diplomacy</source>
        <translation>Gouvernements, élections, partis, diplomatie</translation>
    </message>
    <message>
        <source>religion and belief</source>
        <translation>religion et croyance</translation>
    </message>
    <message>
        <source>Faiths, their people and their feasts</source>
        <translation>Les croyances, leurs fidèles et leurs fêtes</translation>
    </message>
    <message>
        <source>science and technology</source>
        <translation>science et technologie</translation>
    </message>
    <message>
        <source>Research, discoveries, inventions</source>
        <translation>Recherche, découvertes, inventions</translation>
    </message>
    <message>
        <source>social issue</source>
        <translation>société</translation>
    </message>
    <message>
        <source>Families, poverty, migration, addiction</source>
        <translation>Familles, pauvreté, migrations, dépendances</translation>
    </message>
    <message>
        <source>sport</source>
        <translation>sport</translation>
    </message>
    <message>
        <source>Competitions, athletes, clubs</source>
        <translation>Compétitions, athlètes, clubs</translation>
    </message>
    <message>
        <source>unrest, conflicts and war</source>
        <translation>guerres et conflits</translation>
    </message>
    <message>
        <source>Wars, riots, terror, peace talks</source>
        <translation>Guerres, émeutes, terrorisme, pourparlers de paix</translation>
    </message>
    <message>
        <source>weather</source>
        <translation>météo</translation>
    </message>
    <message>
        <source>Forecasts, storms, heat, snow</source>
        <translation>Prévisions, tempêtes, chaleur, neige</translation>
    </message>
    <message>
        <source>Media topic</source>
        <translation>Thème média</translation>
    </message>
    <message>
        <source>arts, culture, entertainment and media</source>
        <translation>arts, culture, divertissement et médias</translation>
    </message>
    <message>
        <source>Music, film, theatre, literature, museums, press and broadcasting</source>
        <translation>Musique, cinéma, théâtre, littérature, musées, presse et audiovisuel</translation>
    </message>
    <message>
        <source>disaster, accident and emergency incident</source>
        <translation>désastres, accidents et urgences</translation>
    </message>
    <message>
        <source>Fires, floods, earthquakes, crashes, rescues</source>
        <translation>Incendies, inondations, séismes, accidents, secours</translation>
    </message>
    <message>
        <source>environment</source>
        <translation>environnement</translation>
    </message>
    <message>
        <source>politics and government</source>
        <translation>politique et gouvernement</translation>
    </message>
    <message>
        <source>religion</source>
        <translation>religion</translation>
    </message>
    <message>
        <source>society</source>
        <translation>société</translation>
    </message>
    <message>
        <source>Families, communities, migration, welfare</source>
        <translation>Familles, communautés, migrations, aide sociale</translation>
    </message>
    <message>
        <source>conflict, war and peace</source>
        <translation>conflits, guerres et paix</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Actuality</source>
        <translation>Sur le vif</translation>
    </message>
    <message>
        <source>Something as it happened, recorded there</source>
        <translation>Un fait tel qu’il s’est produit, enregistré sur place</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Conseil</translation>
    </message>
    <message>
        <source>Help with a question of daily life</source>
        <translation>Aide pour une question de la vie quotidienne</translation>
    </message>
    <message>
        <source>Almanac</source>
        <translation>Éphéméride</translation>
    </message>
    <message>
        <source>What happened on this day in other years</source>
        <translation>Ce qui s’est passé ce jour-là d’autres années</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Explains what an event means</source>
        <translation>Explique ce que signifie un événement</translation>
    </message>
    <message>
        <source>Anniversary</source>
        <translation>Anniversaire</translation>
    </message>
    <message>
        <source>Looks back on the day of an earlier event</source>
        <translation>Revient, à sa date, sur un événement passé</translation>
    </message>
    <message>
        <source>Archive material</source>
        <translation>Archives</translation>
    </message>
    <message>
        <source>Kept from earlier and used again</source>
        <translation>Conservé et réutilisé</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Contexte</translation>
    </message>
    <message>
        <source>What has to be known to follow an event</source>
        <translation>Ce qu’il faut savoir pour comprendre un événement</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Actualité</translation>
    </message>
    <message>
        <source>About what happens at the moment</source>
        <translation>Sur ce qui se passe en ce moment</translation>
    </message>
    <message>
        <source>Curtain Raiser</source>
        <translation>Avant-papier</translation>
    </message>
    <message>
        <source>Tells of an event before it begins</source>
        <translation>Parle d’un événement avant qu’il commence</translation>
    </message>
    <message>
        <source>Daybook</source>
        <translation>Agenda</translation>
    </message>
    <message>
        <source>What is planned for the day</source>
        <translation>Ce qui est prévu pour la journée</translation>
    </message>
    <message>
        <source>Exclusive</source>
        <translation>Exclusivité</translation>
    </message>
    <message>
        <source>Had by one publisher alone</source>
        <translation>Obtenu par un seul éditeur</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Magazine</translation>
    </message>
    <message>
        <source>A longer piece on a person or a subject</source>
        <translation>Un sujet plus long sur une personne ou un thème</translation>
    </message>
    <message>
        <source>Fixture</source>
        <translation>Rubrique</translation>
    </message>
    <message>
        <source>Appears regularly</source>
        <translation>Paraît régulièrement</translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation>Prévisions</translation>
    </message>
    <message>
        <source>Says what is to be expected</source>
        <translation>Dit à quoi s’attendre</translation>
    </message>
    <message>
        <source>From the Scene</source>
        <translation>Sur place</translation>
    </message>
    <message>
        <source>Reported from where it happens</source>
        <translation>Rapporté de l’endroit où cela se passe</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histoire</translation>
    </message>
    <message>
        <source>About times long past</source>
        <translation>Sur des époques lointaines</translation>
    </message>
    <message>
        <source>Horoscope</source>
        <translation>Horoscope</translation>
    </message>
    <message>
        <source>What the stars are said to tell</source>
        <translation>Ce que diraient les astres</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>Interview</translation>
    </message>
    <message>
        <source>A talk with somebody</source>
        <translation>Un entretien avec quelqu’un</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>About music, or music itself</source>
        <translation>Sur la musique, ou la musique même</translation>
    </message>
    <message>
        <source>Obituary</source>
        <translation>Nécrologie</translation>
    </message>
    <message>
        <source>Tells the life of somebody who has died</source>
        <translation>Raconte la vie d’une personne décédée</translation>
    </message>
    <message>
        <source>Opinion</source>
        <translation>Opinion</translation>
    </message>
    <message>
        <source>Says what its author thinks</source>
        <translation>Dit ce que pense son auteur</translation>
    </message>
    <message>
        <source>Polls and Surveys</source>
        <translation>Sondages et enquêtes</translation>
    </message>
    <message>
        <source>What many people answered</source>
        <translation>Ce qu’ont répondu de nombreuses personnes</translation>
    </message>
    <message>
        <source>Press Release</source>
        <translation>Communiqué de presse</translation>
    </message>
    <message>
        <source>Issued by those whom it is about</source>
        <translation>Publié par ceux dont il parle</translation>
    </message>
    <message>
        <source>Press-Digest</source>
        <translation>Revue de presse</translation>
    </message>
    <message>
        <source>What other papers say</source>
        <translation>Ce que disent les autres journaux</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>A portrait of a person or an organization</source>
        <translation>Le portrait d’une personne ou d’une organisation</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>What will be performed or broadcast</source>
        <translation>Ce qui sera joué ou diffusé</translation>
    </message>
    <message>
        <source>Question and Answer Session</source>
        <translation>Questions-réponses</translation>
    </message>
    <message>
        <source>Questions put to somebody, and the answers</source>
        <translation>Des questions posées à quelqu’un, et les réponses</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Citation</translation>
    </message>
    <message>
        <source>Somebody&apos;s own words</source>
        <translation>Les propres mots de quelqu’un</translation>
    </message>
    <message>
        <source>Raw Sound</source>
        <translation>Son brut</translation>
    </message>
    <message>
        <source>Sound without editing</source>
        <translation>Du son sans montage</translation>
    </message>
    <message>
        <source>Response to a Question</source>
        <translation>Réponse à une question</translation>
    </message>
    <message>
        <source>One answer to one question</source>
        <translation>Une réponse à une question</translation>
    </message>
    <message>
        <source>Results Listings and Statistics</source>
        <translation>Résultats, classements et statistiques</translation>
    </message>
    <message>
        <source>Scores, tables, numbers</source>
        <translation>Scores, tableaux, chiffres</translation>
    </message>
    <message>
        <source>Retrospective</source>
        <translation>Rétrospective</translation>
    </message>
    <message>
        <source>Looks back over a longer time</source>
        <translation>Revient sur une longue période</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Critique</translation>
    </message>
    <message>
        <source>Judges a book, a film, a show</source>
        <translation>Juge un livre, un film, un spectacle</translation>
    </message>
    <message>
        <source>Scener</source>
        <translation>Ambiance</translation>
    </message>
    <message>
        <source>Describes what it is like at a place</source>
        <translation>Décrit l’atmosphère d’un lieu</translation>
    </message>
    <message>
        <source>Side bar and supporting information</source>
        <translation>Encadré et complément</translation>
    </message>
    <message>
        <source>Goes with another piece and adds to it</source>
        <translation>Accompagne un autre sujet et le complète</translation>
    </message>
    <message>
        <source>Special Report</source>
        <translation>Dossier spécial</translation>
    </message>
    <message>
        <source>A thorough look at one subject</source>
        <translation>Un examen approfondi d’un sujet</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>The main points of several pieces</source>
        <translation>Les points essentiels de plusieurs sujets</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Synopsis</translation>
    </message>
    <message>
        <source>What a longer work contains, in short</source>
        <translation>En bref, ce que contient une œuvre plus longue</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Texte seul</translation>
    </message>
    <message>
        <source>Has no pictures or sound</source>
        <translation>Sans images ni son</translation>
    </message>
    <message>
        <source>Transcript and Verbatim</source>
        <translation>Transcription et verbatim</translation>
    </message>
    <message>
        <source>Word for word what was said</source>
        <translation>Mot pour mot ce qui a été dit</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Adds what is new to an earlier piece</source>
        <translation>Ajoute du nouveau à un sujet antérieur</translation>
    </message>
    <message>
        <source>Voicer</source>
        <translation>Commentaire vocal</translation>
    </message>
    <message>
        <source>A reporter&apos;s voice tells the story</source>
        <translation>La voix d’un reporter raconte le sujet</translation>
    </message>
    <message>
        <source>Wrap</source>
        <translation>Synthèse</translation>
    </message>
    <message>
        <source>Brings several reports together</source>
        <translation>Réunit plusieurs reportages</translation>
    </message>
    <message>
        <source>Wrapup</source>
        <translation>Bilan</translation>
    </message>
    <message>
        <source>Tells an event once more when it has ended</source>
        <translation>Raconte à nouveau un événement, une fois terminé</translation>
    </message>
    <message>
        <source>Africa</source>
        <translation>Afrique</translation>
    </message>
    <message>
        <source>From Tunisia to South Africa, with its islands</source>
        <translation>De la Tunisie à l’Afrique du Sud, avec ses îles</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>Antarctique</translation>
    </message>
    <message>
        <source>The continent round the South Pole</source>
        <translation>Le continent autour du pôle Sud</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>Asie</translation>
    </message>
    <message>
        <source>From Turkey to Japan and Indonesia</source>
        <translation>De la Turquie au Japon et à l’Indonésie</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>Europe</translation>
    </message>
    <message>
        <source>From Iceland to Russia</source>
        <translation>De l’Islande à la Russie</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>Amérique du Nord</translation>
    </message>
    <message>
        <source>From Greenland to Panama, with the Caribbean</source>
        <translation>Du Groenland au Panama, avec les Caraïbes</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>Océanie</translation>
    </message>
    <message>
        <source>Australia, New Zealand and the islands of the Pacific</source>
        <translation>L’Australie, la Nouvelle-Zélande et les îles du Pacifique</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>Amérique du Sud</translation>
    </message>
    <message>
        <source>From Colombia to Tierra del Fuego</source>
        <translation>De la Colombie à la Terre de Feu</translation>
    </message>
    <message>
        <source>World</source>
        <translation>Monde</translation>
    </message>
    <message>
        <source>The whole world</source>
        <translation>Le monde entier</translation>
    </message>
    <message>
        <source>Region type</source>
        <translation>Type de région</translation>
    </message>
    <message>
        <source>human</source>
        <translation>être humain</translation>
    </message>
    <message>
        <source>A person, or part of one</source>
        <translation>Une personne, entière ou en partie</translation>
    </message>
    <message>
        <source>animal</source>
        <translation>animal</translation>
    </message>
    <message>
        <source>An animal, or part of one</source>
        <translation>Un animal, entier ou en partie</translation>
    </message>
    <message>
        <source>plant</source>
        <translation>plante</translation>
    </message>
    <message>
        <source>A plant, or part of one</source>
        <translation>Une plante, entière ou en partie</translation>
    </message>
    <message>
        <source>building</source>
        <translation>bâtiment</translation>
    </message>
    <message>
        <source>A building, or part of one</source>
        <translation>Un bâtiment, entier ou en partie</translation>
    </message>
    <message>
        <source>vehicle</source>
        <translation>véhicule</translation>
    </message>
    <message>
        <source>A car, train, ship or plane</source>
        <translation>Une voiture, un train, un bateau ou un avion</translation>
    </message>
    <message>
        <source>Something that is made to be sold</source>
        <translation>Une chose faite pour être vendue</translation>
    </message>
    <message>
        <source>A work of art</source>
        <translation>Une œuvre d’art</translation>
    </message>
    <message>
        <source>food</source>
        <translation>nourriture</translation>
    </message>
    <message>
        <source>Something to eat or drink</source>
        <translation>De quoi manger ou boire</translation>
    </message>
    <message>
        <source>clothing</source>
        <translation>vêtements</translation>
    </message>
    <message>
        <source>Something to wear</source>
        <translation>De quoi s’habiller</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>Words that can be read</source>
        <translation>Des mots lisibles</translation>
    </message>
    <message>
        <source>graphic</source>
        <translation>graphique</translation>
    </message>
    <message>
        <source>A drawing, a logo, a sign</source>
        <translation>Un dessin, un logo, un panneau</translation>
    </message>
    <message>
        <source>machine-readable code</source>
        <translation>code lisible par machine</translation>
    </message>
    <message>
        <source>A bar code or the like</source>
        <translation>Un code-barres ou similaire</translation>
    </message>
    <message>
        <source>geographic area</source>
        <translation>zone géographique</translation>
    </message>
    <message>
        <source>A stretch of land</source>
        <translation>Une étendue de terre</translation>
    </message>
    <message>
        <source>rock formation</source>
        <translation>formation rocheuse</translation>
    </message>
    <message>
        <source>Rocks, cliffs, mountains</source>
        <translation>Rochers, falaises, montagnes</translation>
    </message>
    <message>
        <source>body of water</source>
        <translation>étendue d’eau</translation>
    </message>
    <message>
        <source>A lake, a river, the sea</source>
        <translation>Un lac, une rivière, la mer</translation>
    </message>
    <message>
        <source>dividing line</source>
        <translation>ligne de séparation</translation>
    </message>
    <message>
        <source>Where one picture in the picture ends and another begins</source>
        <translation>Là où finit une image dans l’image et où en commence une autre</translation>
    </message>
    <message>
        <source>Region role</source>
        <translation>Rôle de la région</translation>
    </message>
    <message>
        <source>main subject area</source>
        <translation>zone du sujet principal</translation>
    </message>
    <message>
        <source>What the picture is mostly about; one a picture</source>
        <translation>Ce dont traite surtout l’image ; une seule par image</translation>
    </message>
    <message>
        <source>subject area</source>
        <translation>zone du sujet</translation>
    </message>
    <message>
        <source>Something that the picture is about</source>
        <translation>Quelque chose dont traite l’image</translation>
    </message>
    <message>
        <source>area of interest</source>
        <translation>zone d’intérêt</translation>
    </message>
    <message>
        <source>Worth looking at</source>
        <translation>Mérite l’attention</translation>
    </message>
    <message>
        <source>cropping</source>
        <translation>recadrage</translation>
    </message>
    <message>
        <source>To be cut to this</source>
        <translation>À recadrer ainsi</translation>
    </message>
    <message>
        <source>recommended cropping</source>
        <translation>recadrage recommandé</translation>
    </message>
    <message>
        <source>Best cut to this</source>
        <translation>À recadrer ainsi de préférence</translation>
    </message>
    <message>
        <source>landscape format cropping</source>
        <translation>recadrage au format paysage</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be wide</source>
        <translation>À recadrer ainsi quand il faut une image large</translation>
    </message>
    <message>
        <source>portrait format cropping</source>
        <translation>recadrage au format portrait</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be tall</source>
        <translation>À recadrer ainsi quand il faut une image haute</translation>
    </message>
    <message>
        <source>square format cropping</source>
        <translation>recadrage au format carré</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be square</source>
        <translation>À recadrer ainsi quand il faut une image carrée</translation>
    </message>
    <message>
        <source>composite image item</source>
        <translation>élément d’une image composite</translation>
    </message>
    <message>
        <source>One of the pictures that this one is made of</source>
        <translation>L’une des images qui composent celle-ci</translation>
    </message>
    <message>
        <source>copyright region</source>
        <translation>zone de copyright</translation>
    </message>
    <message>
        <source>Shows something with a copyright of its own</source>
        <translation>Montre quelque chose qui a son propre copyright</translation>
    </message>
    <message>
        <source>business use</source>
        <translation>usage en entreprise</translation>
    </message>
    <message>
        <source>For use within a company&apos;s workflow</source>
        <translation>Pour les procédures internes d’une entreprise</translation>
    </message>
    <message>
        <source>Outline shape</source>
        <translation>Forme du contour</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>A corner, a width and a height</source>
        <translation>Un coin, une largeur et une hauteur</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cercle</translation>
    </message>
    <message>
        <source>A center and a radius</source>
        <translation>Un centre et un rayon</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygone</translation>
    </message>
    <message>
        <source>Two or more points</source>
        <translation>Deux points ou plus</translation>
    </message>
    <message>
        <source>Outline unit</source>
        <translation>Unité du contour</translation>
    </message>
    <message>
        <source>Relative</source>
        <translation>Relatif</translation>
    </message>
    <message>
        <source>Parts of the picture&apos;s width and height, from 0 to 1</source>
        <translation>Fractions de la largeur et de la hauteur de l’image, de 0 à 1</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Pixels of the picture</source>
        <translation>Pixels de l’image</translation>
    </message>
    <message>
        <source>English</source>
        <comment>name of this language</comment>
        <extracomment>The name of this language in this language itself, as a list of languages shows it: Deutsch, 日本語.</extracomment>
        <translation>Français</translation>
    </message>
    <message>
        <source>“%1” is there already</source>
        <translation>« %1 » existe déjà</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>« %1 » : %2</translation>
    </message>
    <message>
        <source>“%1” is not there any more</source>
        <translation>« %1 » n’existe plus</translation>
    </message>
    <message>
        <source>another Quorbel is renaming at this moment</source>
        <translation>un autre Quorbel renomme en ce moment</translation>
    </message>
    <message>
        <source>Undo Rename</source>
        <translation>Annuler le renommage</translation>
    </message>
    <message>
        <source>Undo Rename of “%1”</source>
        <translation>Annuler le renommage de « %1 »</translation>
    </message>
    <message numerus="yes">
        <source>Undo Rename of %n Photo(s)</source>
        <translation>
            <numerusform>Annuler le renommage de %n photo</numerusform>
            <numerusform>Annuler le renommage de %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>a file name cannot hold “/”</source>
        <translation>un nom de fichier ne peut pas contenir « / »</translation>
    </message>
    <message>
        <source>too long for a file name</source>
        <translation>trop long pour un nom de fichier</translation>
    </message>
    <message>
        <source>its folder is read-only</source>
        <translation>son dossier est en lecture seule</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>n’existe plus</translation>
    </message>
    <message>
        <source>stays %1</source>
        <extracomment>%1 is a file&apos;s name: what is said of a photo that lacks a value</extracomment>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>becomes %1</source>
        <translation>devient %1</translation>
    </message>
    <message>
        <source>name taken, so -%1</source>
        <extracomment>%1 is the number that was put behind the name</extracomment>
        <translation>nom déjà pris, donc -%1</translation>
    </message>
    <message>
        <source>with %1</source>
        <extracomment>%1 are files that are renamed along with the photo</extracomment>
        <translation>avec %1</translation>
    </message>
    <message>
        <source>Cannot move “%1”</source>
        <translation>Impossible de déplacer « %1 »</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <extracomment>%1 is a list: &quot;a.jpg, b.jpg and 3 more&quot;
----------
The end of a list of names: %1 is those before, with commas between them.</extracomment>
        <translation>
            <numerusform>%1 et %n autre</numerusform>
            <numerusform>%1 et %n autres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (is a folder|are folders); nothing was written.</source>
        <translation>
            <numerusform>%1 est un dossier ; rien n’a été écrit.</numerusform>
            <numerusform>%1 sont des dossiers ; rien n’a été écrit.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 est en lecture seule.</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 photos (is|are) read-only: %2; nothing was written.</source>
        <extracomment>%2 names the photos</extracomment>
        <translation>
            <numerusform>%n des %1 photos est en lecture seule : %2 ; rien n’a été écrit.</numerusform>
            <numerusform>%n des %1 photos sont en lecture seule : %2 ; rien n’a été écrit.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another save is under way or was cut off: %1 lies beside the photo. If no other program is saving, delete it and save again. Nothing was written.</source>
        <translation>Un autre enregistrement est en cours ou a été interrompu : %1 se trouve à côté de la photo. Si aucun autre programme n’enregistre, supprimez ce fichier et enregistrez à nouveau. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>“%1” is too long: a value may have 128 KiB at most. Nothing was written.</source>
        <translation>« %1 » est trop long : une valeur ne peut dépasser 128 Kio. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>Cannot write “%1”</source>
        <translation>Impossible d’écrire « %1 »</translation>
    </message>
    <message>
        <source>Cannot keep a copy of “%1”</source>
        <translation>Impossible de conserver une copie de « %1 »</translation>
    </message>
    <message>
        <source>Only the letters A–Z and digits can be stored in a name.</source>
        <translation>Un nom ne peut contenir que les lettres A–Z et des chiffres.</translation>
    </message>
    <message>
        <source>A name needs at least two letters or digits.</source>
        <translation>Un nom doit avoir au moins deux lettres ou chiffres.</translation>
    </message>
    <message>
        <source>“%1” is a reserved word; choose another name.</source>
        <translation>« %1 » est un mot réservé ; choisissez un autre nom.</translation>
    </message>
    <message>
        <source>That is the field %1</source>
        <extracomment>%1 is a field&apos;s name</extracomment>
        <translation>C’est le champ %1</translation>
    </message>
    <message>
        <source>Not a date: YYYY-MM-DD HH:MM</source>
        <translation>Date attendue : YYYY-MM-DD HH:MM</translation>
    </message>
    <message>
        <source>Not a position: lat, lon</source>
        <translation>Position attendue : lat, lon</translation>
    </message>
    <message>
        <source>Not an offset: +HH:MM</source>
        <translation>Décalage attendu : +HH:MM</translation>
    </message>
    <message>
        <source>Not a whole number</source>
        <translation>Nombre entier attendu</translation>
    </message>
    <message>
        <source>Afrikaans</source>
        <translation>afrikaans</translation>
    </message>
    <message>
        <source>Albanian</source>
        <translation>albanais</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>arabe</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>arménien</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation>basque</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>bengali</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation>bulgare</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation>catalan</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>chinois</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>croate</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>tchèque</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>danois</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>néerlandais</translation>
    </message>
    <message>
        <source>English</source>
        <translation>anglais</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation>estonien</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation>finnois</translation>
    </message>
    <message>
        <source>French</source>
        <translation>français</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation>galicien</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>géorgien</translation>
    </message>
    <message>
        <source>German</source>
        <translation>allemand</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>grec</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>hébreu</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>hindi</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation>hongrois</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation>islandais</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation>indonésien</translation>
    </message>
    <message>
        <source>Irish</source>
        <translation>irlandais</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>italien</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>japonais</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>coréen</translation>
    </message>
    <message>
        <source>Latin</source>
        <translation>latin</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation>letton</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation>lituanien</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation>malais</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>norvégien</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation>persan</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>polonais</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>portugais</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation>roumain</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>russe</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation>serbe</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation>slovaque</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>slovène</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>espagnol</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation>swahili</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>suédois</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>thaï</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>turc</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation>ukrainien</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation>ourdou</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>vietnamien</translation>
    </message>
    <message>
        <source>Welsh</source>
        <translation>gallois</translation>
    </message>
    <message>
        <source>Shown as the photo&apos;s name / heading</source>
        <translation>Affiché comme nom / intitulé de la photo</translation>
    </message>
    <message>
        <source>Searchable caption everywhere</source>
        <translation>Légende retrouvée partout par la recherche</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Date de prise de vue</translation>
    </message>
    <message>
        <source>Sorts your library by date in every app</source>
        <translation>Classe votre bibliothèque par date dans toutes les applications</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Filter &amp; group by tag</source>
        <translation>Filtrer et regrouper par mot-clé</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Créateur</translation>
    </message>
    <message>
        <source>Who made the photo</source>
        <translation>Qui a fait la photo</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Rights / copyright notice</source>
        <translation>Droits / mention de copyright</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Pins on the map; sorts by place</source>
        <translation>Situe la photo sur la carte ; classe par lieu</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordonnées</translation>
    </message>
    <message>
        <source>GPS latitude / longitude</source>
        <translation>Latitude / longitude GPS</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>★ 1–5, read by most libraries</source>
        <translation>★ 1–5, lue par la plupart des photothèques</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Intitulé</translation>
    </message>
    <message>
        <source>Short title shown in galleries</source>
        <translation>Titre court affiché dans les galeries</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personnes</translation>
    </message>
    <message>
        <source>Names of people shown</source>
        <translation>Noms des personnes représentées</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Group photos by event</source>
        <translation>Regrouper les photos par événement</translation>
    </message>
    <message>
        <source>State / Province</source>
        <translation>Région / Province</translation>
    </message>
    <message>
        <source>State or province</source>
        <translation>État, région ou province</translation>
    </message>
    <message>
        <source>Country name</source>
        <translation>Nom du pays</translation>
    </message>
    <message>
        <source>Sub-location</source>
        <translation>Lieu précis</translation>
    </message>
    <message>
        <source>Neighborhood / venue</source>
        <translation>Quartier / site</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Colour / text label</source>
        <translation>Étiquette de couleur / de texte</translation>
    </message>
    <message>
        <source>Caption writer</source>
        <translation>Auteur de la légende</translation>
    </message>
    <message>
        <source>Who wrote the caption</source>
        <translation>Qui a rédigé la légende</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Subject category</source>
        <translation>Catégorie de sujet</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Crédit</translation>
    </message>
    <message>
        <source>Credit line</source>
        <translation>Ligne de crédit</translation>
    </message>
    <message>
        <source>Intellectual genre</source>
        <translation>Genre intellectuel</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>Editorial instructions</source>
        <translation>Instructions à la rédaction</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>ID de tâche</translation>
    </message>
    <message>
        <source>Job / transmission reference</source>
        <translation>Référence de tâche / de transmission</translation>
    </message>
    <message>
        <source>IPTC scene code</source>
        <translation>Code de scène IPTC</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Logiciel</translation>
    </message>
    <message>
        <source>Editing software</source>
        <translation>Logiciel de retouche</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>Source d’origine</translation>
    </message>
    <message>
        <source>Urgency</source>
        <translation>Urgence</translation>
    </message>
    <message>
        <source>Editorial urgency (1–8)</source>
        <translation>Urgence rédactionnelle (1–8)</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message>
        <source>Rights usage terms</source>
        <translation>Conditions d’utilisation liées aux droits</translation>
    </message>
    <message>
        <source>Web statement</source>
        <translation>Page web des droits</translation>
    </message>
    <message>
        <source>Rights URL</source>
        <translation>URL des droits</translation>
    </message>
    <message>
        <source>Date digitized</source>
        <translation>Date de numérisation</translation>
    </message>
    <message>
        <source>When the image was digitized / scanned</source>
        <translation>Quand l’image a été numérisée</translation>
    </message>
    <message>
        <source>TZ offset (taken)</source>
        <translation>Décalage UTC (prise)</translation>
    </message>
    <message>
        <source>Timezone offset for date taken</source>
        <translation>Décalage horaire de la date de prise de vue</translation>
    </message>
    <message>
        <source>TZ offset (digitized)</source>
        <translation>Décalage UTC (num.)</translation>
    </message>
    <message>
        <source>Timezone offset for date digitized</source>
        <translation>Décalage horaire de la date de numérisation</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil photo</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Marque</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Shutter</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Focale</translation>
    </message>
    <message>
        <source>Color space</source>
        <translation>Colorimétrie</translation>
    </message>
    <message>
        <source>COMMON</source>
        <translation>GÉNÉRAL</translation>
    </message>
    <message>
        <source>LOCATION</source>
        <translation>LIEU</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>DÉTAILS</translation>
    </message>
    <message>
        <source>CONTACT</source>
        <translation>CONTACT</translation>
    </message>
    <message>
        <source>PEOPLE</source>
        <translation>PERSONNES</translation>
    </message>
    <message>
        <source>LOCATION CREATED</source>
        <translation>LIEU DE PRISE DE VUE</translation>
    </message>
    <message>
        <source>LOCATION SHOWN</source>
        <translation>LIEU REPRÉSENTÉ</translation>
    </message>
    <message>
        <source>SUBJECTS</source>
        <translation>SUJETS</translation>
    </message>
    <message>
        <source>THINGS SHOWN</source>
        <translation>ÉLÉMENTS REPRÉSENTÉS</translation>
    </message>
    <message>
        <source>REGIONS</source>
        <translation>RÉGIONS</translation>
    </message>
    <message>
        <source>RIGHTS</source>
        <translation>DROITS</translation>
    </message>
    <message>
        <source>LICENSING</source>
        <translation>LICENCES</translation>
    </message>
    <message>
        <source>SOURCE</source>
        <translation>SOURCE</translation>
    </message>
    <message>
        <source>IMAGE</source>
        <translation>IMAGE</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0 Ko</translation>
    </message>
    <message>
        <source>Not a file</source>
        <translation>Ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>File is empty</source>
        <translation>Le fichier est vide</translation>
    </message>
    <message>
        <source>Not an XMP file</source>
        <translation>Ce n’est pas un fichier XMP</translation>
    </message>
    <message>
        <source>set</source>
        <translation>définir</translation>
    </message>
    <message>
        <source>set if empty</source>
        <translation>définir si vide</translation>
    </message>
    <message>
        <source>append</source>
        <translation>ajouter après</translation>
    </message>
    <message>
        <source>prepend</source>
        <translation>ajouter avant</translation>
    </message>
    <message>
        <source>“%1” names a field that there is not.</source>
        <translation>« %1 » nomme un champ qui n’existe pas.</translation>
    </message>
    <message>
        <source>“%1” says nothing that can be done to a field.</source>
        <translation>« %1 » n’indique rien à faire d’un champ.</translation>
    </message>
    <message>
        <source>“%1” has a field without a text.</source>
        <translation>« %1 » a un champ sans texte.</translation>
    </message>
    <message>
        <source>“%1” is no template.</source>
        <translation>« %1 » n’est pas un modèle.</translation>
    </message>
    <message>
        <source>“%1” was made by a newer version of Quorbel.</source>
        <translation>« %1 » a été créé par une version plus récente de Quorbel.</translation>
    </message>
    <message>
        <source>“%1” has no name.</source>
        <translation>« %1 » n’a pas de nom.</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>« %1 » est illisible.</translation>
    </message>
    <message>
        <source>Cannot write the template “%1”</source>
        <translation>Impossible d’écrire le modèle « %1 »</translation>
    </message>
    <message>
        <source>%1 missing: “%2”</source>
        <extracomment>%1 is a field that the photo has nothing in, %2 what the template gives instead</extracomment>
        <translation>manque : %1, donc « %2 »</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <extracomment>%1 are the fields that the photo has nothing in: &quot;Place, Event missing&quot;</extracomment>
        <translation>manque : %1</translation>
    </message>
    <message>
        <source>Not a rating: 0 to 5</source>
        <translation>Note attendue : 0 à 5</translation>
    </message>
    <message>
        <source>kept: %1</source>
        <extracomment>What a field holds stays as it is; %1 is why: &quot;kept: not empty&quot;</extracomment>
        <translation>conservé : %1</translation>
    </message>
    <message>
        <source>nothing to fill in</source>
        <translation>rien à remplir</translation>
    </message>
    <message>
        <source>not read yet</source>
        <translation>pas encore lue</translation>
    </message>
    <message>
        <source>not empty</source>
        <translation>non vide</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>déjà présent</translation>
    </message>
    <message>
        <source>%1 of one photo: %2</source>
        <extracomment>%1 is a field, %2 why a text cannot stand in it</extracomment>
        <translation>%1 d’une photo : %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s): %2</source>
        <translation>
            <numerusform>%1 de %n photo : %2</numerusform>
            <numerusform>%1 de %n photos : %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Perl interpreter not found at %1.</source>
        <translation>Interpréteur Perl introuvable : %1.</translation>
    </message>
    <message>
        <source>ExifTool exited with code %1: %2</source>
        <translation>ExifTool s’est terminé avec le code %1 : %2</translation>
    </message>
    <message>
        <source>Could not decode ExifTool output: %1</source>
        <translation>Impossible de décoder la sortie d’ExifTool : %1</translation>
    </message>
    <message>
        <source>Bundled ExifTool could not be located.</source>
        <translation>L’ExifTool fourni est introuvable.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 is what failed (&quot;Cannot move “/photos/a.jpg”&quot;), %2 the system&apos;s reason</extracomment>
        <translation>%1 : %2.</translation>
    </message>
    <message>
        <source>ExifTool could not be started: %1</source>
        <translation>Impossible de démarrer ExifTool : %1</translation>
    </message>
    <message>
        <source>The read was cancelled.</source>
        <translation>La lecture a été annulée.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Original name</source>
        <translation>Nom d’origine</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>quotation marks around a name or a text that the user typed
----------
A name, in quotation marks.</extracomment>
        <translation>« %1 »</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Compteur</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom de fichier</translation>
    </message>
    <message>
        <source>“%1” cannot be replaced and added to in one save. Nothing was written.</source>
        <translation>« %1 » ne peut pas être remplacé et complété dans un même enregistrement. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>Changed while it was read</source>
        <translation>Modifié pendant la lecture</translation>
    </message>
    <message>
        <source>Cannot write to “%1”</source>
        <translation>Impossible d’écrire dans « %1 »</translation>
    </message>
    <message>
        <source>%1 — output: %2</source>
        <extracomment>%1 is why it could not be decoded, %2 the beginning of it</extracomment>
        <translation>%1 – sortie : %2</translation>
    </message>
    <message>
        <source>its values are not UTF-8</source>
        <translation>ses valeurs ne sont pas en UTF-8</translation>
    </message>
    <message>
        <source>not an array of objects</source>
        <translation>pas un tableau d’objets</translation>
    </message>
    <message>
        <source>The file is not UTF-8: it was read as Windows Latin 1.</source>
        <translation>Le fichier n’est pas en UTF-8 : il a été lu comme Windows Latin 1.</translation>
    </message>
    <message>
        <source>Some characters of the file could not be read.</source>
        <translation>Certains caractères du fichier n’ont pas pu être lus.</translation>
    </message>
    <message numerus="yes">
        <source>%n more line(s) like these.</source>
        <translation>
            <numerusform>%n autre ligne du même genre.</numerusform>
            <numerusform>%n autres lignes du même genre.</numerusform>
        </translation>
    </message>
    <message>
        <source>Line %1 has no tab: %2</source>
        <extracomment>%2 is the line, in quotation marks</extracomment>
        <translation>Ligne %1 : pas de tabulation : %2</translation>
    </message>
    <message>
        <source>Line %1 has no code in front of its tab.</source>
        <translation>Ligne %1 : pas de code avant la tabulation.</translation>
    </message>
    <message>
        <source>Line %1 has no text for %2.</source>
        <extracomment>%2 is a code, in quotation marks</extracomment>
        <translation>Ligne %1 : pas de texte pour %2.</translation>
    </message>
    <message>
        <source>Line %1: nobody can type a code with “=” in it: %2</source>
        <extracomment>%2 is a code, in quotation marks</extracomment>
        <translation>Ligne %1 : un code contenant « = » ne peut pas être tapé : %2</translation>
    </message>
    <message numerus="yes">
        <source>Line %1: a code has at most %n character(s): %2</source>
        <extracomment>%2 is a code that has more, in quotation marks</extracomment>
        <translation>
            <numerusform>Ligne %1 : un code a au plus %n caractère : %2</numerusform>
            <numerusform>Ligne %1 : un code a au plus %n caractères : %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is there twice, in lines %2 and %3: the last one counts.</source>
        <extracomment>%1 is a code, in quotation marks</extracomment>
        <translation>%1 figure deux fois, lignes %2 et %3 : la dernière compte.</translation>
    </message>
    <message numerus="yes">
        <source>%n date(s)</source>
        <translation>
            <numerusform>%n date</numerusform>
            <numerusform>%n dates</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n title(s)</source>
        <translation>
            <numerusform>%n titre</numerusform>
            <numerusform>%n titres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n description(s)</source>
        <translation>
            <numerusform>%n description</numerusform>
            <numerusform>%n descriptions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n creator(s)</source>
        <translation>
            <numerusform>%n créateur</numerusform>
            <numerusform>%n créateurs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n place(s)</source>
        <translation>
            <numerusform>%n lieu</numerusform>
            <numerusform>%n lieux</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n headline(s)</source>
        <translation>
            <numerusform>%n intitulé</numerusform>
            <numerusform>%n intitulés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n événement</numerusform>
            <numerusform>%n événements</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n</source>
        <extracomment>%1 is a text in quotation marks that would go, %n the number of photos that hold it: &quot;“Old one” in 3&quot;</extracomment>
        <translation>
            <numerusform>%1 dans %n</numerusform>
            <numerusform>%1 dans %n</numerusform>
        </translation>
    </message>
    <message>
        <source>fills the empty field</source>
        <translation>remplit le champ vide</translation>
    </message>
    <message>
        <source>would fill the empty field</source>
        <translation>remplirait le champ vide</translation>
    </message>
    <message numerus="yes">
        <source>fills %n</source>
        <extracomment>%n is the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>remplit %n champ vide</numerusform>
            <numerusform>remplit %n champs vides</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would fill %n</source>
        <extracomment>%n is the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>remplirait %n champ vide</numerusform>
            <numerusform>remplirait %n champs vides</numerusform>
        </translation>
    </message>
    <message>
        <source>adds to “%1”</source>
        <extracomment>%1 is what a list holds: items are added</extracomment>
        <translation>complète « %1 »</translation>
    </message>
    <message>
        <source>would add to “%1”</source>
        <translation>compléterait « %1 »</translation>
    </message>
    <message numerus="yes">
        <source>adds to the %1 of %n</source>
        <extracomment>%1 is a field that holds a list (&quot;keywords&quot;), %n a number of photos</extracomment>
        <translation>
            <numerusform>complète le champ %1 dans %n photo</numerusform>
            <numerusform>complète le champ %1 dans %n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would add to the %1 of %n</source>
        <extracomment>%1 is a field that holds a list (&quot;keywords&quot;), %n a number of photos</extracomment>
        <translation>
            <numerusform>compléterait le champ %1 dans %n photo</numerusform>
            <numerusform>compléterait le champ %1 dans %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>replaces %1</source>
        <extracomment>%1 is what would go: &quot;4 titles&quot;, or a text in quotation marks</extracomment>
        <translation>remplace %1</translation>
    </message>
    <message>
        <source>would replace %1</source>
        <translation>remplacerait %1</translation>
    </message>
    <message numerus="yes">
        <source>replaces %1, fills %n</source>
        <extracomment>%1 is what would go (&quot;4 titles&quot;), %n the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>remplace %1, remplit %n champ vide</numerusform>
            <numerusform>remplace %1, remplit %n champs vides</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would replace %1, fill %n</source>
        <extracomment>%1 is what would go (&quot;4 titles&quot;), %n a number of photos that have nothing there</extracomment>
        <translation>
            <numerusform>remplacerait %1, remplirait %n champ vide</numerusform>
            <numerusform>remplacerait %1, remplirait %n champs vides</numerusform>
        </translation>
    </message>
    <message>
        <source>the same already</source>
        <extracomment>%n is the number of photos that hold just the text
----------
Why nothing can be copied.</extracomment>
        <translation>déjà identique</translation>
    </message>
    <message numerus="yes">
        <source>same in %n</source>
        <translation>
            <numerusform>identique dans %n</numerusform>
            <numerusform>identique dans %n</numerusform>
        </translation>
    </message>
    <message>
        <source>not looked at yet</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>pas encore examinée</translation>
    </message>
    <message numerus="yes">
        <source>%n not looked at yet</source>
        <translation>
            <numerusform>%n pas encore examinée</numerusform>
            <numerusform>%n pas encore examinées</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Of how many things: %1 and %2 are numbers.</extracomment>
        <translation>%1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%n star(s)</source>
        <translation>
            <numerusform>%n étoile</numerusform>
            <numerusform>%n étoiles</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to the list</source>
        <translation>Retour à la liste</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>The key.</extracomment>
        <translation>Échap</translation>
    </message>
    <message>
        <source>This is the last photo</source>
        <translation>C’est la dernière photo</translation>
    </message>
    <message>
        <source>This is the first photo</source>
        <translation>C’est la première photo</translation>
    </message>
    <message>
        <source>No stars</source>
        <translation>Aucune étoile</translation>
    </message>
    <message>
        <source>thumbnail only</source>
        <extracomment>Of the photo there is just this small picture.</extracomment>
        <translation>vignette seulement</translation>
    </message>
    <message>
        <source>damaged: not all of it can be shown</source>
        <translation>endommagée : affichage incomplet</translation>
    </message>
    <message>
        <source>preview %1</source>
        <extracomment>The preview within a raw file is shown. %1: its size, as “1616 × 1080”.</extracomment>
        <translation>aperçu %1</translation>
    </message>
    <message>
        <source>preview %1 of %2</source>
        <extracomment>%1: size of what is shown, as “1616 × 1080”. %2: size of the photo.</extracomment>
        <translation>aperçu %1 au lieu de %2</translation>
    </message>
    <message>
        <source>reduced to %1 of %2</source>
        <translation>réduite de %2 à %1</translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) unsaved</source>
        <translation>
            <numerusform>%n modification non enregistrée</numerusform>
            <numerusform>%n modifications non enregistrées</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>This photo is damaged: there is nothing in it to show.</source>
        <translation>Cette photo est endommagée : rien ne peut en être affiché.</translation>
    </message>
    <message>
        <source>This photo has more pixels than can be shown.</source>
        <translation>Cette photo a trop de pixels pour être affichée.</translation>
    </message>
    <message>
        <source>There is no picture in this file that can be shown.</source>
        <translation>Ce fichier ne contient aucune image affichable.</translation>
    </message>
    <message>
        <source>0 to 5 stars; click the current rating to clear it</source>
        <translation>0 à 5 étoiles ; cliquez sur la note actuelle pour l’effacer</translation>
    </message>
    <message>
        <source>Column width</source>
        <extracomment>The line between two columns of the window, which one drags.</extracomment>
        <translation>Largeur de colonne</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Suggestions</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <extracomment>Button behind keywords: shows those that have no room.</extracomment>
        <translation>
            <numerusform>%n autre</numerusform>
            <numerusform>%n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>edited</source>
        <extracomment>Spoken of a field or a section of them.</extracomment>
        <translation>modifié</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Actions for this %1</source>
        <extracomment>%1: what the card holds, as “place”, “person” or “contact”.</extracomment>
        <translation>Actions : %1</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <extracomment>%1: a keyword.</extracomment>
        <translation>Garder %1</translation>
    </message>
    <message>
        <source>Take away %1</source>
        <translation>Retirer %1</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>Where a keyword stands among others. %1: those above it, as “Places, Switzerland”.</extracomment>
        <translation>dans %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>%1: what is taken out of a list or form, as a keyword or a field.</extracomment>
        <translation>Retirer %1</translation>
    </message>
    <message>
        <source>New keyword</source>
        <translation>Nouveau mot-clé</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>Not among the known codes</source>
        <translation>Ne fait pas partie des codes connus</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no value</comment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <extracomment>%1: what was typed.</extracomment>
        <translation>Utiliser « %1 »</translation>
    </message>
    <message>
        <source>As it is typed, not one of the codes</source>
        <translation>Tel que saisi, hors des codes connus</translation>
    </message>
    <message>
        <source>chosen</source>
        <extracomment>Spoken of a row in a list.</extracomment>
        <translation>choisi</translation>
    </message>
    <message>
        <source>Time-zone offset</source>
        <translation>Décalage horaire</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a field, %2 what is said of it.
----------
%1 is what a key does, %2 the key.
----------
%1: name of a field, %2: what it holds.</extracomment>
        <translation>%1 : %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n characters</source>
        <extracomment>Of a text. %1: how many characters it has, %n: how many it should have at most.</extracomment>
        <translation>
            <numerusform>%1 sur %n caractère</numerusform>
            <numerusform>%1 sur %n caractères</numerusform>
        </translation>
    </message>
    <message>
        <source>Default and Form…</source>
        <extracomment>Of a token. Default: what stands there where a photo has no such value; form: how a date is written.</extracomment>
        <translation>Valeur par défaut et format…</translation>
    </message>
    <message>
        <source>ALSO IN THESE PHOTOS</source>
        <extracomment>Heads fields that a chosen set of fields leaves out, in capitals.</extracomment>
        <translation>AUSSI DANS CES PHOTOS</translation>
    </message>
    <message>
        <source>ALSO IN THIS PHOTO</source>
        <translation>AUSSI DANS CETTE PHOTO</translation>
    </message>
    <message numerus="yes">
        <source>%n field(s)</source>
        <translation>
            <numerusform>%n champ</numerusform>
            <numerusform>%n champs</numerusform>
        </translation>
    </message>
    <message>
        <source>No camera details</source>
        <translation>Aucune donnée de l’appareil</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A note as a sentence: %1 is its text, and what follows ends it.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Write %1 to all selected files</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>Écrire %1 dans tous les fichiers sélectionnés</translation>
    </message>
    <message>
        <source>Remove this field</source>
        <translation>Retirer ce champ</translation>
    </message>
    <message>
        <source>Bring %1 back</source>
        <extracomment>%1: a language.</extracomment>
        <translation>Récupérer %1</translation>
    </message>
    <message>
        <source>Reading metadata</source>
        <translation>Lecture des métadonnées</translation>
    </message>
    <message>
        <source>Shown</source>
        <extracomment>Stands at the one of several values of a field that the form shows.</extracomment>
        <translation>Affiché</translation>
    </message>
    <message>
        <source>(empty)</source>
        <extracomment>A place within a photo that holds a field, and nothing in it.</extracomment>
        <translation>(vide)</translation>
    </message>
    <message>
        <source>The photo’s own file: read here, and never written</source>
        <translation>Le fichier même de la photo : lu ici, jamais écrit</translation>
    </message>
    <message>
        <source>Belongs to another standard: read here, and never written</source>
        <translation>Relève d’une autre norme : lu ici, jamais écrit</translation>
    </message>
    <message>
        <source>shown</source>
        <extracomment>Return is the key. Spoken: what it does to the value that has the keyboard; “shown” is the one in the form.</extracomment>
        <translation>affiché</translation>
    </message>
    <message>
        <source>Return uses this one</source>
        <translation>Retour : utiliser celui-ci</translation>
    </message>
    <message>
        <source>Use this one</source>
        <translation>Utiliser celui-ci</translation>
    </message>
    <message>
        <source>Make them agree</source>
        <extracomment>Button: writes what is shown to all places within a photo that hold a field.
----------
Button: writes what is shown to all places within photos that hold a field.</extracomment>
        <translation>Harmoniser les valeurs</translation>
    </message>
    <message>
        <source>Places of %1</source>
        <extracomment>Places within a photo that hold a field. %1: its name.</extracomment>
        <translation>Emplacements de %1</translation>
    </message>
    <message>
        <source>Writes what is shown to all places in the sidecar, of every field whose places differ there</source>
        <translation>Écrit ce qui est affiché à tous les emplacements du fichier annexe, pour chaque champ dont les emplacements y divergent</translation>
    </message>
    <message>
        <source>Writes what is shown to all places, of every field whose places differ</source>
        <translation>Écrit ce qui est affiché à tous les emplacements, pour chaque champ dont les emplacements divergent</translation>
    </message>
    <message>
        <source>Bring back</source>
        <extracomment>Button: shows edits again that were left unsaved.</extracomment>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renommer…</translation>
    </message>
    <message>
        <source>Add field</source>
        <translation>Ajouter un champ</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>Renommage…</translation>
    </message>
    <message>
        <source>CUSTOM</source>
        <extracomment>Heads the fields that users have named themselves, in capitals.</extracomment>
        <translation>PERSONNALISÉS</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <extracomment>Heads what the camera noted, in capitals; and beside it that nobody can change that.</extracomment>
        <translation>APPAREIL PHOTO</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>lecture seule</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Add a description…</source>
        <translation>Ajouter une description…</translation>
    </message>
    <message>
        <source>Add a place…</source>
        <translation>Ajouter un lieu…</translation>
    </message>
    <message>
        <source>Add a creator…</source>
        <translation>Ajouter un créateur…</translation>
    </message>
    <message>
        <source>Add a copyright notice…</source>
        <translation>Ajouter une mention de copyright…</translation>
    </message>
    <message>
        <source>Add a headline…</source>
        <translation>Ajouter un intitulé…</translation>
    </message>
    <message>
        <source>Add an event…</source>
        <translation>Ajouter un événement…</translation>
    </message>
    <message numerus="yes">
        <source>Will be written to all %n photos</source>
        <translation>
            <numerusform>Sera écrit dans %n photo</numerusform>
            <numerusform>Sera écrit dans les %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>appends — existing values kept</source>
        <extracomment>What a save does to a list of each photo.</extracomment>
        <translation>complète, sans rien remplacer</translation>
    </message>
    <message numerus="yes">
        <source>%n taken away</source>
        <extracomment>%n: how many items of a list, as keywords.</extracomment>
        <translation>
            <numerusform>%n retiré</numerusform>
            <numerusform>%n retirés</numerusform>
        </translation>
    </message>
    <message>
        <source>Add ID + ↵</source>
        <extracomment>↵ is the Return key, which adds what was typed to a list.</extracomment>
        <translation>ID + ↵</translation>
    </message>
    <message>
        <source>Add age + ↵</source>
        <translation>Âge + ↵</translation>
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
        <translation>Mot-clé + ↵</translation>
    </message>
    <message>
        <source>Add to all + ↵</source>
        <translation>Pour toutes + ↵</translation>
    </message>
    <message>
        <source>Multiple values — leave unchanged</source>
        <translation>Valeurs multiples – inchangées</translation>
    </message>
    <message numerus="yes">
        <source>Will be written to %1 of %n photos</source>
        <extracomment>%1 and %n: numbers of photos.</extracomment>
        <translation>
            <numerusform>Sera écrit dans %1 photo sur %n</numerusform>
            <numerusform>Sera écrit dans %1 des %n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %1 more…</source>
        <extracomment>%1: how many photos.
----------
%1 is a number of photos.</extracomment>
        <translation>
            <numerusform>Encore %1 à lire…</numerusform>
            <numerusform>Encore %1 à lire…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not read yet</source>
        <extracomment>%1: how many photos.</extracomment>
        <translation>
            <numerusform>%1 pas encore lue</numerusform>
            <numerusform>%1 pas encore lues</numerusform>
        </translation>
    </message>
    <message>
        <source>in all %1</source>
        <extracomment>A field holds something in all photos, or in some of them. The numbers are of photos.
----------
Said behind a keyword. The numbers are of photos.</extracomment>
        <translation>dans les %1</translation>
    </message>
    <message>
        <source>in %1 or more of %2</source>
        <translation>dans %1 ou plus sur %2</translation>
    </message>
    <message>
        <source>in %1 of %2</source>
        <translation>dans %1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>Will be taken away from all %n photos</source>
        <translation>
            <numerusform>Sera retiré de %n photo</numerusform>
            <numerusform>Sera retiré des %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Will be taken away</source>
        <translation>Sera retiré</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) (has|have) places that differ</source>
        <extracomment>%1: how many photos. Places: several within a photo that hold the same field.</extracomment>
        <translation>
            <numerusform>%1 photo a des emplacements divergents</numerusform>
            <numerusform>%1 photos ont des emplacements divergents</numerusform>
        </translation>
    </message>
    <message>
        <source>A field of this name cannot be changed here</source>
        <translation>Un champ de ce nom ne peut pas être modifié ici</translation>
    </message>
    <message>
        <source>No unsaved changes</source>
        <translation>Rien à enregistrer</translation>
    </message>
    <message numerus="yes">
        <source>%n unsaved change(s)</source>
        <translation>
            <numerusform>%n modification non enregistrée</numerusform>
            <numerusform>%n modifications non enregistrées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) → %1</source>
        <extracomment>Of so many fields the values will go into files. %1: “12 files”.</extracomment>
        <translation>
            <numerusform>%n champ → %1</numerusform>
            <numerusform>%n champs → %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) of %1 left unsaved</source>
        <extracomment>Somebody went on without saving them. %1: “5 photos”.</extracomment>
        <translation>
            <numerusform>%n modification en suspens (%1)</numerusform>
            <numerusform>%n modifications en suspens (%1)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) left unsaved</source>
        <extracomment>Somebody went on without saving them.</extracomment>
        <translation>
            <numerusform>%n modif. en suspens</numerusform>
            <numerusform>%n modif. en suspens</numerusform>
        </translation>
    </message>
    <message>
        <source>Add field to all</source>
        <translation>Ajouter un champ à toutes</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Enregistrement…</translation>
    </message>
    <message>
        <source>Apply to %1</source>
        <extracomment>Button: saves what was edited into photos. %1: how many these are.</extracomment>
        <translation>Appliquer à %1</translation>
    </message>
    <message>
        <source>No photo selected</source>
        <translation>Aucune photo sélectionnée</translation>
    </message>
    <message>
        <source>Add a language to %1</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>Ajouter une langue à %1</translation>
    </message>
    <message>
        <source>Language or code</source>
        <translation>Langue ou code</translation>
    </message>
    <message>
        <source>No such language. A code such as “de-AT” works too.</source>
        <translation>Langue introuvable. Un code comme « de-AT » convient aussi.</translation>
    </message>
    <message>
        <source>Now</source>
        <extracomment>Button: puts the time of this moment into the field.</extracomment>
        <translation>Actuelle</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 places (differs|differ), another standard’s is shown</source>
        <extracomment>Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.</extracomment>
        <translation>
            <numerusform>%n emplacement sur %1 diverge, celui d’une autre norme est affiché</numerusform>
            <numerusform>%n emplacements sur %1 divergent, celui d’une autre norme est affiché</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 places (differs|differ)</source>
        <extracomment>Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.</extracomment>
        <translation>
            <numerusform>%n emplacement sur %1 diverge</numerusform>
            <numerusform>%n emplacements sur %1 divergent</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (will be taken away)</source>
        <extracomment>%1: code of a language, as “de”.</extracomment>
        <translation>%1 (sera retirée)</translation>
    </message>
    <message>
        <source>%1 in other languages: %2</source>
        <extracomment>%1: name of a field, %2: codes of languages, as “de, fr”.</extracomment>
        <translation>%1 dans d’autres langues : %2</translation>
    </message>
    <message>
        <source>Other languages: %1 (%2)</source>
        <extracomment>%1: codes of languages, as “de, fr”. %2: keys, as “Alt+Right”.</extracomment>
        <translation>Autres langues : %1 (%2)</translation>
    </message>
    <message>
        <source>Add language</source>
        <translation>Ajouter une langue</translation>
    </message>
    <message>
        <source>Hide Languages</source>
        <translation>Masquer les langues</translation>
    </message>
    <message>
        <source>Show Languages</source>
        <translation>Afficher les langues</translation>
    </message>
    <message>
        <source>Add Language…</source>
        <translation>Ajouter une langue…</translation>
    </message>
    <message>
        <source>Required by %1</source>
        <extracomment>Stands in an empty field. %1: name of a set of fields, as “Press”.</extracomment>
        <translation>Demandé par %1</translation>
    </message>
    <message>
        <source>%1 of %2 filled</source>
        <extracomment>%1 and %2: numbers of fields.</extracomment>
        <translation>%1 sur %2 remplis</translation>
    </message>
    <message>
        <source>next gap F8</source>
        <extracomment>A gap: a field that a set of fields wants and that is empty. F8 is the key.</extracomment>
        <translation>lacune suivante F8</translation>
    </message>
    <message>
        <source>Tick a field to write it to all selected files.</source>
        <translation>Cochez un champ pour l’écrire dans tous les fichiers sélectionnés.</translation>
    </message>
    <message numerus="yes">
        <source>Editing %n photos</source>
        <translation>
            <numerusform>Modification de %n photo</numerusform>
            <numerusform>Modification de %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Field set</source>
        <translation>Jeu de champs</translation>
    </message>
    <message>
        <source>Copy from Location</source>
        <extracomment>Location: the fields of the form that say where the photo was taken.</extracomment>
        <translation>Copier de la section Lieu</translation>
    </message>
    <message>
        <source>Copy to Location</source>
        <translation>Copier dans la section Lieu</translation>
    </message>
    <message>
        <source>Search Place…</source>
        <translation>Rechercher un lieu…</translation>
    </message>
    <message>
        <source>nothing there</source>
        <extracomment>Why nothing can be copied: those fields are empty.</extracomment>
        <translation>section vide</translation>
    </message>
    <message>
        <source>nothing here</source>
        <extracomment>Why nothing can be copied: this card is empty.</extracomment>
        <translation>fiche vide</translation>
    </message>
    <message>
        <source>Use Remembered Contact…</source>
        <translation>Utiliser un contact mémorisé…</translation>
    </message>
    <message>
        <source>Use Remembered Licensor…</source>
        <translation>Utiliser un concédant mémorisé…</translation>
    </message>
    <message>
        <source>Use a remembered contact…</source>
        <translation>Utiliser un contact mémorisé…</translation>
    </message>
    <message>
        <source>Use a remembered licensor…</source>
        <translation>Utiliser un concédant mémorisé…</translation>
    </message>
    <message>
        <source>Forget Remembered Contacts</source>
        <translation>Oublier les contacts mémorisés</translation>
    </message>
    <message>
        <source>Forget Remembered Licensors</source>
        <translation>Oublier les concédants mémorisés</translation>
    </message>
    <message>
        <source>Remembered contacts</source>
        <translation>Contacts mémorisés</translation>
    </message>
    <message>
        <source>Remembered licensors</source>
        <translation>Concédants mémorisés</translation>
    </message>
    <message numerus="yes">
        <source>%n contact(s)</source>
        <translation>
            <numerusform>%n contact</numerusform>
            <numerusform>%n contacts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n artwork(s)</source>
        <translation>
            <numerusform>%n œuvre</numerusform>
            <numerusform>%n œuvres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n term(s)</source>
        <translation>
            <numerusform>%n terme</numerusform>
            <numerusform>%n termes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n expression(s)</source>
        <translation>
            <numerusform>%n expression</numerusform>
            <numerusform>%n expressions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n (entry|entries)</source>
        <translation>
            <numerusform>%n entrée</numerusform>
            <numerusform>%n entrées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n contributor(s)</source>
        <translation>
            <numerusform>%n contributeur</numerusform>
            <numerusform>%n contributeurs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n region(s)</source>
        <translation>
            <numerusform>%n région</numerusform>
            <numerusform>%n régions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n outline(s)</source>
        <translation>
            <numerusform>%n contour</numerusform>
            <numerusform>%n contours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n point(s)</source>
        <translation>
            <numerusform>%n point</numerusform>
            <numerusform>%n points</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link(s)</source>
        <translation>
            <numerusform>%n lien</numerusform>
            <numerusform>%n liens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n (person|people)</source>
        <translation>
            <numerusform>%n personne</numerusform>
            <numerusform>%n personnes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n product(s)</source>
        <translation>
            <numerusform>%n produit</numerusform>
            <numerusform>%n produits</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n licensor(s)</source>
        <translation>
            <numerusform>%n concédant</numerusform>
            <numerusform>%n concédants</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n owner(s)</source>
        <translation>
            <numerusform>%n titulaire</numerusform>
            <numerusform>%n titulaires</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n supplier(s)</source>
        <translation>
            <numerusform>%n fournisseur</numerusform>
            <numerusform>%n fournisseurs</numerusform>
        </translation>
    </message>
    <message>
        <source>Add contact</source>
        <translation>Ajouter un contact</translation>
    </message>
    <message>
        <source>Add artwork</source>
        <translation>Ajouter une œuvre</translation>
    </message>
    <message>
        <source>Add term</source>
        <translation>Ajouter un terme</translation>
    </message>
    <message>
        <source>Add expression</source>
        <translation>Ajouter une expression</translation>
    </message>
    <message>
        <source>Add entry</source>
        <translation>Ajouter une entrée</translation>
    </message>
    <message>
        <source>Add contributor</source>
        <translation>Ajouter un contributeur</translation>
    </message>
    <message>
        <source>Add region</source>
        <translation>Ajouter une région</translation>
    </message>
    <message>
        <source>Add outline</source>
        <translation>Ajouter un contour</translation>
    </message>
    <message>
        <source>Add point</source>
        <translation>Ajouter un point</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>Ajouter un lien</translation>
    </message>
    <message>
        <source>Add place</source>
        <translation>Ajouter un lieu</translation>
    </message>
    <message>
        <source>Add person</source>
        <translation>Ajouter une personne</translation>
    </message>
    <message>
        <source>Add product</source>
        <translation>Ajouter un produit</translation>
    </message>
    <message>
        <source>Add licensor</source>
        <translation>Ajouter un concédant</translation>
    </message>
    <message>
        <source>Add owner</source>
        <translation>Ajouter un titulaire</translation>
    </message>
    <message>
        <source>Add creator</source>
        <translation>Ajouter un créateur</translation>
    </message>
    <message>
        <source>Add supplier</source>
        <translation>Ajouter un fournisseur</translation>
    </message>
    <message>
        <source>New contact</source>
        <translation>Nouveau contact</translation>
    </message>
    <message>
        <source>New artwork</source>
        <translation>Nouvelle œuvre</translation>
    </message>
    <message>
        <source>New term</source>
        <translation>Nouveau terme</translation>
    </message>
    <message>
        <source>New expression</source>
        <translation>Nouvelle expression</translation>
    </message>
    <message>
        <source>New entry</source>
        <translation>Nouvelle entrée</translation>
    </message>
    <message>
        <source>New contributor</source>
        <translation>Nouveau contributeur</translation>
    </message>
    <message>
        <source>New region</source>
        <translation>Nouvelle région</translation>
    </message>
    <message>
        <source>New outline</source>
        <translation>Nouveau contour</translation>
    </message>
    <message>
        <source>New point</source>
        <translation>Nouveau point</translation>
    </message>
    <message>
        <source>New link</source>
        <translation>Nouveau lien</translation>
    </message>
    <message>
        <source>New place</source>
        <translation>Nouveau lieu</translation>
    </message>
    <message>
        <source>New person</source>
        <translation>Nouvelle personne</translation>
    </message>
    <message>
        <source>New product</source>
        <translation>Nouveau produit</translation>
    </message>
    <message>
        <source>New licensor</source>
        <translation>Nouveau concédant</translation>
    </message>
    <message>
        <source>New owner</source>
        <translation>Nouveau titulaire</translation>
    </message>
    <message>
        <source>New creator</source>
        <translation>Nouveau créateur</translation>
    </message>
    <message>
        <source>New supplier</source>
        <translation>Nouveau fournisseur</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Add code</source>
        <extracomment>Button: adds a code of a vocabulary to a list.</extracomment>
        <translation>Ajouter un code</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether a height is below sea level.</extracomment>
        <translation>Non</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Search place</source>
        <translation>Rechercher un lieu</translation>
    </message>
    <message>
        <source>Town, landmark or airport</source>
        <translation>Ville, site connu ou aéroport</translation>
    </message>
    <message>
        <source>Couldn&apos;t look that up</source>
        <translation>Recherche impossible</translation>
    </message>
    <message>
        <source>Forget %1</source>
        <extracomment>%1: name of a contact or licensor.</extracomment>
        <translation>Oublier %1</translation>
    </message>
    <message>
        <source>More</source>
        <comment>button: shows further fields</comment>
        <translation>Plus</translation>
    </message>
    <message>
        <source>More fields of this %1</source>
        <extracomment>%1: what the card holds, as “place”, “person” or “contact”.</extracomment>
        <translation>Autres champs : %1</translation>
    </message>
    <message>
        <source>Also holds %1 of another program, which stays. Changing this %2 may be refused for that.</source>
        <extracomment>%1: names of what another program has put in, as “Mood” and “Weather”. %2: “place”, “person”, “contact”…</extracomment>
        <translation>Contient aussi %1 d’un autre programme, qui y reste. Pour cette raison, la modification de cet élément (%2) peut être refusée.</translation>
    </message>
    <message>
        <source>Clear</source>
        <comment>verb: empties the fields</comment>
        <translation>Vider</translation>
    </message>
    <message>
        <source>%1, %2 %3 of %4</source>
        <extracomment>Spoken of a card. %1: name of the field, %2: “place”, “person”…, %3: which one it is, %4: how many there are.</extracomment>
        <translation>%1, %2 %3 sur %4</translation>
    </message>
    <message>
        <source>stored as a code</source>
        <extracomment>Under the terms of a vocabulary: files hold a term&apos;s code, not its name.</extracomment>
        <translation>enregistré comme code</translation>
    </message>
    <message>
        <source>In these %1</source>
        <extracomment>Stands before keywords. %1: of how many photos.</extracomment>
        <translation>Dans ces %1</translation>
    </message>
    <message>
        <source>to be taken away</source>
        <extracomment>Said behind a keyword.</extracomment>
        <translation>à retirer</translation>
    </message>
    <message>
        <source>Last used</source>
        <extracomment>The keywords that were used last.</extracomment>
        <translation>Derniers utilisés</translation>
    </message>
    <message>
        <source>New Set…</source>
        <extracomment>Set: of keywords.</extracomment>
        <translation>Nouveau jeu…</translation>
    </message>
    <message>
        <source>Edit Set…</source>
        <extracomment>Set: of keywords.</extracomment>
        <translation>Modifier le jeu…</translation>
    </message>
    <message>
        <source>Quick</source>
        <extracomment>Stands before keywords that a click adds.</extracomment>
        <translation>Rapides</translation>
    </message>
    <message>
        <source>Quick keywords</source>
        <translation>Mots-clés rapides</translation>
    </message>
    <message>
        <source>Add %1 to all, %2</source>
        <extracomment>Adds a keyword to all photos. %1: the keyword, %2: keys that do the same.</extracomment>
        <translation>Ajouter %1 à toutes, %2</translation>
    </message>
    <message>
        <source>Add %1 to all</source>
        <translation>Ajouter %1 à toutes</translation>
    </message>
    <message>
        <source>Set of quick keywords: %1</source>
        <extracomment>%1: name of the set.</extracomment>
        <translation>Jeu de mots-clés rapides : %1</translation>
    </message>
    <message>
        <source>Fill place from coordinates</source>
        <translation>Remplir le lieu d’après les coordonnées</translation>
    </message>
    <message>
        <source>Place search is not installed</source>
        <translation>La recherche de lieux n’est pas installée</translation>
    </message>
    <message>
        <source>The place service asks for a pause</source>
        <translation>Le service de lieux demande une pause</translation>
    </message>
    <message>
        <source>The place service sent too much</source>
        <translation>Le service de lieux a envoyé trop de données</translation>
    </message>
    <message>
        <source>The place service did not answer in time</source>
        <translation>Le service de lieux n’a pas répondu à temps</translation>
    </message>
    <message>
        <source>The place service cannot be reached</source>
        <translation>Le service de lieux est injoignable</translation>
    </message>
    <message>
        <source>The place service answered something else</source>
        <translation>Le service de lieux a renvoyé une réponse inattendue</translation>
    </message>
    <message>
        <source>The place service answered with status %1</source>
        <translation>Le service de lieux a répondu par le code d’état %1</translation>
    </message>
    <message>
        <source>Map of %1</source>
        <extracomment>%1: a position, as “47.36667, 8.55000”.</extracomment>
        <translation>Carte de %1</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>Ajouter un champ</translation>
    </message>
    <message>
        <source>Search fields…</source>
        <translation>Rechercher un champ…</translation>
    </message>
    <message>
        <source>Search fields</source>
        <translation>Rechercher un champ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>RECOMMENDED · WORKS EVERYWHERE</source>
        <translation>RECOMMANDÉS · RECONNUS PARTOUT</translation>
    </message>
    <message>
        <source>Already-set fields are hidden.</source>
        <translation>Les champs déjà remplis sont masqués.</translation>
    </message>
    <message>
        <source>ADVANCED · CUSTOM FIELD</source>
        <translation>AVANCÉ · CHAMP PERSONNALISÉ</translation>
    </message>
    <message>
        <source>may not appear in all apps</source>
        <translation>n’apparaît pas forcément partout</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>of a custom field</comment>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <comment>of a custom field</comment>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>e.g. Project</source>
        <extracomment>An example of the name of a custom field: letters without accents, as it becomes the name of a tag.</extracomment>
        <translation>p. ex. Projet</translation>
    </message>
    <message>
        <source>All recommended fields are already shown.</source>
        <translation>Tous les champs recommandés sont déjà affichés.</translation>
    </message>
    <message>
        <source>No matching fields.</source>
        <translation>Aucun champ trouvé.</translation>
    </message>
    <message>
        <source>Will be stored as “%1”</source>
        <translation>Sera enregistré sous « %1 »</translation>
    </message>
    <message>
        <source>Add Metadata Field</source>
        <translation>Ajouter un champ de métadonnées</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Champs</translation>
    </message>
    <message>
        <source>OTHER FIELDS</source>
        <translation>AUTRES CHAMPS</translation>
    </message>
    <message>
        <source>Copied today, %1</source>
        <extracomment>%1 is a time of day.</extracomment>
        <translation>Copiés aujourd’hui à %1</translation>
    </message>
    <message>
        <source>Copied yesterday, %1</source>
        <extracomment>%1 is a time of day.</extracomment>
        <translation>Copiés hier à %1</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <comment>form of a date</comment>
        <extracomment>The form of a day with its month in words: d is the day&apos;s number, MMMM the month&apos;s name, yyyy the year.</extracomment>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>Copied %1, %2</source>
        <extracomment>%1 is a day, %2 a time of day.</extracomment>
        <translation>Copiés le %1 à %2</translation>
    </message>
    <message>
        <source>Copied fields</source>
        <extracomment>%1 is the name of the file whose fields were copied.</extracomment>
        <translation>Champs copiés</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>De %1</translation>
    </message>
    <message>
        <source>All</source>
        <comment>button: ticks all fields</comment>
        <translation>Tous</translation>
    </message>
    <message>
        <source>None</source>
        <comment>button: ticks no field</comment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Tick all fields</source>
        <translation>Cocher tous les champs</translation>
    </message>
    <message>
        <source>Tick no field</source>
        <translation>Ne cocher aucun champ</translation>
    </message>
    <message>
        <source>Paste Fields</source>
        <translation>Coller les champs</translation>
    </message>
    <message numerus="yes">
        <source>Paste %n Field(s)</source>
        <translation>
            <numerusform>Coller %n champ</numerusform>
            <numerusform>Coller %n champs</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is written before Apply.</source>
        <translation>Rien n’est écrit avant Appliquer.</translation>
    </message>
    <message>
        <source>Nothing is written before Save.</source>
        <translation>Rien n’est écrit avant Enregistrer.</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (was|were) not read yet.</source>
        <translation>
            <numerusform>%n photo n’a pas encore été lue.</numerusform>
            <numerusform>%n photos n’ont pas encore été lues.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste Fields to %n Photo(s)</source>
        <translation>
            <numerusform>Coller les champs dans %n photo</numerusform>
            <numerusform>Coller les champs dans %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Paste Fields to %1</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Coller les champs dans %1</translation>
    </message>
    <message>
        <source>Name of the set</source>
        <translation>Nom du jeu</translation>
    </message>
    <message>
        <source>The first nine have the keys Alt+1 to Alt+9.</source>
        <translation>Les neuf premiers ont les touches Alt+1 à Alt+9.</translation>
    </message>
    <message>
        <source>Delete Set</source>
        <translation>Supprimer le jeu</translation>
    </message>
    <message>
        <source>Keywords of the set</source>
        <translation>Mots-clés du jeu</translation>
    </message>
    <message>
        <source>New Set of Quick Keywords</source>
        <translation>Nouveau jeu de mots-clés rapides</translation>
    </message>
    <message>
        <source>Set of Quick Keywords</source>
        <translation>Jeu de mots-clés rapides</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Click a field to insert it. The extension is kept automatically.</source>
        <translation>Cliquez sur un champ pour l’insérer. L’extension est conservée automatiquement.</translation>
    </message>
    <message>
        <source>Preview</source>
        <comment>noun</comment>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Rename File</source>
        <translation>Renommer le fichier</translation>
    </message>
    <message numerus="yes">
        <source>Make %n photo(s) agree?</source>
        <translation>
            <numerusform>Harmoniser les valeurs de %n photo ?</numerusform>
            <numerusform>Harmoniser les valeurs de %n photos ?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Apply changes to %n photo(s)?</source>
        <translation>
            <numerusform>Appliquer les modifications à %n photo ?</numerusform>
            <numerusform>Appliquer les modifications à %n photos ?</numerusform>
        </translation>
    </message>
    <message>
        <source>Make “%1” agree?</source>
        <translation>Harmoniser les valeurs de « %1 » ?</translation>
    </message>
    <message>
        <source>Save changes to “%1”?</source>
        <translation>Enregistrer les modifications de « %1 » ?</translation>
    </message>
    <message>
        <source>Where the places of a field differ, all of them will hold what is shown of it. Lists are brought together.</source>
        <translation>Là où les emplacements d’un champ divergent, tous contiendront ce qui en est affiché. Les listes sont réunies.</translation>
    </message>
    <message numerus="yes">
        <source>You edited %n field(s). Your changes will be lost if you don’t save them.</source>
        <translation>
            <numerusform>Vous avez modifié %n champ. Les modifications seront perdues si vous ne les enregistrez pas.</numerusform>
            <numerusform>Vous avez modifié %n champs. Les modifications seront perdues si vous ne les enregistrez pas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This will modify the selected fields on %n file(s). This can’t be undone.</source>
        <translation>
            <numerusform>Les champs choisis seront modifiés dans %n fichier. Cette action est irréversible.</numerusform>
            <numerusform>Les champs choisis seront modifiés dans %n fichiers. Cette action est irréversible.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This will modify %1 on %n file(s). This can’t be undone.</source>
        <extracomment>%1 is a list of the names of fields.</extracomment>
        <translation>
            <numerusform>Champs modifiés dans %n fichier : %1. Cette action est irréversible.</numerusform>
            <numerusform>Champs modifiés dans %n fichiers : %1. Cette action est irréversible.</numerusform>
        </translation>
    </message>
    <message>
        <source>taken away: %1</source>
        <extracomment>%1 is a list of keywords that photos lose.</extracomment>
        <translation>retirés : %1</translation>
    </message>
    <message>
        <source>Changes</source>
        <comment>noun: what a save changes</comment>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>Save and don’t ask again</source>
        <translation>Enregistrer et ne plus demander</translation>
    </message>
    <message>
        <source>Don’t ask again this session</source>
        <translation>Ne plus demander pendant cette session</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Make It Agree</source>
        <translation>Harmoniser les valeurs</translation>
    </message>
    <message>
        <source>Make Them Agree</source>
        <translation>Harmoniser les valeurs</translation>
    </message>
    <message numerus="yes">
        <source>Apply to %n Photo(s)</source>
        <translation>
            <numerusform>Appliquer à %n photo</numerusform>
            <numerusform>Appliquer à %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>Avant et après</translation>
    </message>
    <message>
        <source>By an amount</source>
        <translation>D’une durée</translation>
    </message>
    <message>
        <source>By a known photo</source>
        <translation>D’après une photo</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Fuseau horaire</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>times become later</comment>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Earlier</source>
        <comment>times become earlier</comment>
        <translation>Plus tôt</translation>
    </message>
    <message>
        <source>Keep the clock time</source>
        <translation>Conserver l’heure affichée</translation>
    </message>
    <message>
        <source>Use each photo’s own</source>
        <comment>time zone</comment>
        <translation>Celui de chaque photo</translation>
    </message>
    <message>
        <source>How to shift</source>
        <translation>Façon de décaler</translation>
    </message>
    <message>
        <source>BEFORE → AFTER</source>
        <translation>AVANT → APRÈS</translation>
    </message>
    <message>
        <source>d</source>
        <comment>unit: days</comment>
        <translation>j</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
    <message>
        <source>h</source>
        <comment>unit: hours</comment>
        <translation>h</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Heures</translation>
    </message>
    <message>
        <source>min</source>
        <comment>unit: minutes</comment>
        <translation>min</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>s</source>
        <comment>unit: seconds</comment>
        <translation>s</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Was taken at</source>
        <translation>Prise le</translation>
    </message>
    <message>
        <source>Choose among the selected photos</source>
        <translation>Choisir parmi les photos sélectionnées</translation>
    </message>
    <message>
        <source>Without it, the moment stays and the clock time moves</source>
        <translation>Sinon, l’instant reste le même et l’heure affichée change</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Search photos</source>
        <translation>Rechercher une photo</translation>
    </message>
    <message>
        <source>No such photo</source>
        <translation>Aucune photo trouvée</translation>
    </message>
    <message>
        <source>Time zones</source>
        <translation>Fuseaux horaires</translation>
    </message>
    <message>
        <source>Search towns or offsets</source>
        <translation>Rechercher une ville ou un décalage</translation>
    </message>
    <message>
        <source>No such time zone</source>
        <translation>Aucun fuseau trouvé</translation>
    </message>
    <message numerus="yes">
        <source>Set Zone of %n</source>
        <translation>
            <numerusform>Définir le fuseau de %n photo</numerusform>
            <numerusform>Définir le fuseau de %n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shift %n Photo(s)</source>
        <translation>
            <numerusform>Décaler %n photo</numerusform>
            <numerusform>Décaler %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Date digitized and the other dates of a photo move along.</source>
        <translation>La date de numérisation et les autres dates de la photo suivent.</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Aucune date</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n more…</source>
        <comment>photos</comment>
        <translation>
            <numerusform>Encore %n à lire…</numerusform>
            <numerusform>Encore %n à lire…</numerusform>
        </translation>
    </message>
    <message>
        <source>All others by the same amount: %1.</source>
        <extracomment>%1 is an amount of time, like “1 h 30 min earlier”.</extracomment>
        <translation>Toutes les autres d’autant : %1.</translation>
    </message>
    <message numerus="yes">
        <source>Shift Time of %n Photo(s)</source>
        <translation>
            <numerusform>Décaler l’heure de %n photo</numerusform>
            <numerusform>Décaler l’heure de %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>No such shortcut.</source>
        <translation>Aucun raccourci trouvé.</translation>
    </message>
    <message>
        <source>Search shortcuts…</source>
        <translation>Rechercher un raccourci…</translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>Rechercher un raccourci</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message numerus="yes">
        <source>%n shortcut(s)</source>
        <translation>
            <numerusform>%n raccourci</numerusform>
            <numerusform>%n raccourcis</numerusform>
        </translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Field sets</source>
        <translation>Jeux de champs</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>Affiché</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>Demandé</translation>
    </message>
    <message>
        <source>Delete this set</source>
        <translation>Supprimer ce jeu</translation>
    </message>
    <message>
        <source>New set, as a copy of this one</source>
        <translation>Nouveau jeu, copie de celui-ci</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <extracomment>The name of a new set of fields; %1 is the name of the one that it is a copy of.
----------
%1: name of the template that this is a copy of.</extracomment>
        <translation>%1 (copie)</translation>
    </message>
    <message>
        <source>This set comes with Quorbel. Make a copy with + to change it.</source>
        <translation>Ce jeu est fourni avec Quorbel. Copiez-le avec + pour le modifier.</translation>
    </message>
    <message>
        <source>Field Sets</source>
        <translation>Jeux de champs</translation>
    </message>
    <message>
        <source>Fields of the set</source>
        <translation>Champs du jeu</translation>
    </message>
    <message>
        <source>Field</source>
        <comment>noun</comment>
        <translation>Champ</translation>
    </message>
    <message>
        <source>%1 on screen</source>
        <extracomment>The name of a tick that puts the field %1 on screen.</extracomment>
        <translation>Afficher %1</translation>
    </message>
    <message>
        <source>%1 wanted</source>
        <extracomment>The name of a tick that says that the field %1 should be filled in.</extracomment>
        <translation>Demander %1</translation>
    </message>
    <message>
        <source>%1 keeps its name</source>
        <extracomment>%1 is the name of a file, %2 the one that it will get.</extracomment>
        <translation>%1 garde son nom</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 devient %2</translation>
    </message>
    <message>
        <source>New names</source>
        <translation>Nouveaux noms</translation>
    </message>
    <message>
        <source>Counter from</source>
        <translation>Compteur à partir de</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Chiffres</translation>
    </message>
    <message>
        <source>Next</source>
        <comment>goes to the next name</comment>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>step</source>
        <extracomment>Behind “Counter from”: by how much it rises from photo to photo.</extracomment>
        <translation>pas</translation>
    </message>
    <message>
        <source>digits</source>
        <extracomment>Behind “Counter from”: how many digits it has.</extracomment>
        <translation>chiffres</translation>
    </message>
    <message>
        <source>The extension is kept.</source>
        <translation>L’extension est conservée.</translation>
    </message>
    <message>
        <source>Goes to the next name to look at</source>
        <translation>Va au prochain nom à vérifier</translation>
    </message>
    <message numerus="yes">
        <source>%1 to look at</source>
        <extracomment>%1 is a number of names.</extracomment>
        <translation>
            <numerusform>%1 à vérifier</numerusform>
            <numerusform>%1 à vérifier</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename %1</source>
        <extracomment>%1 is a number of photos.</extracomment>
        <translation>
            <numerusform>Renommer %1 photo</numerusform>
            <numerusform>Renommer %1 photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Sidecars and backups go along. Edit ▸ Undo Rename takes it back.</source>
        <translation>Les fichiers annexes et les sauvegardes suivent. Édition ▸ Annuler le renommage revient en arrière.</translation>
    </message>
    <message numerus="yes">
        <source>Renaming %1 of %2…</source>
        <extracomment>%1 of all %2 photos are renamed.</extracomment>
        <translation>
            <numerusform>Renommage : %1 sur %2…</numerusform>
            <numerusform>Renommage : %1 sur %2…</numerusform>
        </translation>
    </message>
    <message>
        <source>Renames them as soon as the save has ended…</source>
        <translation>Renommage dès la fin de l’enregistrement…</translation>
    </message>
    <message numerus="yes">
        <source>Rename %1 Files</source>
        <translation>
            <numerusform>Renommer %1 fichier</numerusform>
            <numerusform>Renommer %1 fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>no %1</source>
        <extracomment>%1 is the name of a field that a photo does not have.
----------
The photo holds nothing that could stand here. %1: what of, as “title”.</extracomment>
        <translation>sans %1</translation>
    </message>
    <message>
        <source>Gain</source>
        <comment>photos gain a field</comment>
        <extracomment>Headings of columns: how many photos gain a field, change it, and lose it.</extracomment>
        <translation>Ajouté</translation>
    </message>
    <message>
        <source>Change</source>
        <comment>photos change a field</comment>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Lose</source>
        <comment>photos lose a field</comment>
        <translation>Perdu</translation>
    </message>
    <message>
        <source>What the sidecars hold is written into the photos themselves, also where it differs. The sidecars stay as they are.</source>
        <translation>Le contenu des fichiers annexes est écrit dans les photos elles-mêmes, même là où il en diffère. Les fichiers annexes restent tels quels.</translation>
    </message>
    <message>
        <source>What raw photos hold and their sidecars do not is written into the sidecars. The photos stay untouched.</source>
        <translation>Ce que les photos raw contiennent et que leurs fichiers annexes n’ont pas est écrit dans ces derniers. Les photos restent intactes.</translation>
    </message>
    <message>
        <source>Looking into the files…</source>
        <translation>Examen des fichiers…</translation>
    </message>
    <message>
        <source>There is nothing to write.</source>
        <translation>Il n’y a rien à écrire.</translation>
    </message>
    <message numerus="yes">
        <source>Looked into %1 of %2 photos…</source>
        <translation>
            <numerusform>Photos examinées : %1 sur %2…</numerusform>
            <numerusform>Photos examinées : %1 sur %2…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write Into %1 Photo(s)</source>
        <extracomment>A button; %1 is the number of photos.</extracomment>
        <translation>
            <numerusform>Écrire dans %1 photo</numerusform>
            <numerusform>Écrire dans %1 photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write for %1 Photo(s)</source>
        <extracomment>A button; %1 is the number of photos whose sidecars are written.</extracomment>
        <translation>
            <numerusform>Écrire pour %1 photo</numerusform>
            <numerusform>Écrire pour %1 photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Write Sidecars Into Photos</source>
        <translation>Écrire les fichiers annexes dans les photos</translation>
    </message>
    <message>
        <source>Write Metadata Into Sidecars</source>
        <translation>Écrire les métadonnées dans les fichiers annexes</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (gains|gain) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>Ajouté dans %n photo</numerusform>
            <numerusform>Ajouté dans %n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (changes|change) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>Modifié dans %n photo</numerusform>
            <numerusform>Modifié dans %n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (loses|lose) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>Perdu dans %n photo</numerusform>
            <numerusform>Perdu dans %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>What is written</source>
        <translation>Ce qui est écrit</translation>
    </message>
    <message>
        <source>Looking… %1 of %2</source>
        <extracomment>While photos are read. %1 and %2 are numbers.</extracomment>
        <translation>Examen… %1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) (disagrees|disagree)</source>
        <extracomment>%1: how many photos hold a field in several places that differ.</extracomment>
        <translation>
            <numerusform>%1 photo avec divergences</numerusform>
            <numerusform>%1 photos avec divergences</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 disagree</source>
        <extracomment>As “%1 photos disagree”, where there is little room.</extracomment>
        <translation>
            <numerusform>%1 divergente</numerusform>
            <numerusform>%1 divergentes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not looked at yet</source>
        <extracomment>%1: how many photos.</extracomment>
        <translation>
            <numerusform>%1 pas encore examinée</numerusform>
            <numerusform>%1 pas encore examinées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unknown</source>
        <extracomment>As “%1 not looked at yet”, where there is little room.</extracomment>
        <translation>
            <numerusform>%1 inconnue</numerusform>
            <numerusform>%1 inconnues</numerusform>
        </translation>
    </message>
    <message>
        <source>Show all photos</source>
        <translation>Afficher toutes les photos</translation>
    </message>
    <message>
        <source>Look at them</source>
        <extracomment>Button behind a number of photos that were not looked at yet.</extracomment>
        <translation>Les examiner</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message numerus="yes">
        <source>%n more filters</source>
        <translation>
            <numerusform>%n autre filtre</numerusform>
            <numerusform>%n autres filtres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 photo(s)</source>
        <extracomment>%1: a filter, as “No title”. %2: how many photos fit it.</extracomment>
        <translation>
            <numerusform>%1, %2 photo</numerusform>
            <numerusform>%1, %2 photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Without</source>
        <extracomment>Heads a list of what photos may lack: title, keywords…</extracomment>
        <translation>Sans</translation>
    </message>
    <message>
        <source>At least</source>
        <extracomment>Stands before the row of stars that a photo has at least.</extracomment>
        <translation>Au moins</translation>
    </message>
    <message>
        <source>Click the lowest rating to list; click it again for any</source>
        <translation>Cliquez sur la note minimale à lister ; cliquez à nouveau pour les lister toutes</translation>
    </message>
    <message>
        <source>Any field contains…</source>
        <translation>Un champ contient…</translation>
    </message>
    <message>
        <source>Any field contains</source>
        <translation>Un champ contient</translation>
    </message>
    <message>
        <source>At least, any rating</source>
        <translation>Note minimale : aucune</translation>
    </message>
    <message>
        <source>No title</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>No description</source>
        <translation>Sans description</translation>
    </message>
    <message>
        <source>No keywords</source>
        <translation>Sans mots-clés</translation>
    </message>
    <message>
        <source>No date taken</source>
        <translation>Sans date de prise de vue</translation>
    </message>
    <message>
        <source>No place</source>
        <translation>Sans lieu</translation>
    </message>
    <message>
        <source>No creator</source>
        <translation>Sans créateur</translation>
    </message>
    <message>
        <source>No copyright</source>
        <translation>Sans copyright</translation>
    </message>
    <message>
        <source>Unrated</source>
        <translation>Sans note</translation>
    </message>
    <message>
        <source>Edited, not saved</source>
        <translation>Modifiées, non enregistrées</translation>
    </message>
    <message>
        <source>Changed since opened</source>
        <translation>Modifiées depuis l’ouverture</translation>
    </message>
    <message>
        <source>Places differ</source>
        <translation>Valeurs divergentes</translation>
    </message>
    <message>
        <source>Clear filters</source>
        <translation>Effacer les filtres</translation>
    </message>
    <message>
        <source>Filter images</source>
        <translation>Filtrer les images</translation>
    </message>
    <message numerus="yes">
        <source>At least %n star(s)</source>
        <translation>
            <numerusform>Au moins %n étoile</numerusform>
            <numerusform>Au moins %n étoiles</numerusform>
        </translation>
    </message>
    <message>
        <source>Contains “%1”</source>
        <extracomment>A filter of photos. %1: what was typed.</extracomment>
        <translation>Contient « %1 »</translation>
    </message>
    <message>
        <source>collapsed</source>
        <extracomment>State of a folder in the list, spoken.</extracomment>
        <translation>replié</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>déplié</translation>
    </message>
    <message>
        <source>No matching photos.</source>
        <translation>Aucune photo trouvée.</translation>
    </message>
    <message>
        <source>Nothing left</source>
        <extracomment>No photo fits the filters.</extracomment>
        <translation>Plus aucune photo</translation>
    </message>
    <message>
        <source>All places agree</source>
        <extracomment>All places within the photos in which a field stands.</extracomment>
        <translation>Aucune divergence</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) not looked at yet</source>
        <translation>
            <numerusform>%1 photo pas encore examinée</numerusform>
            <numerusform>%1 photos pas encore examinées</numerusform>
        </translation>
    </message>
    <message>
        <source>Double-click to open in your default image app</source>
        <translation>Double-cliquez pour ouvrir dans l’application d’images par défaut</translation>
    </message>
    <message>
        <source>Name (A–Z)</source>
        <translation>Nom (A–Z)</translation>
    </message>
    <message>
        <source>Name (Z–A)</source>
        <translation>Nom (Z–A)</translation>
    </message>
    <message>
        <source>Date (newest first)</source>
        <translation>Date (récentes d’abord)</translation>
    </message>
    <message>
        <source>Date (oldest first)</source>
        <translation>Date (anciennes d’abord)</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Sort images</source>
        <translation>Trier les images</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Heads the ways in which photos are listed.</extracomment>
        <translation>Trier par</translation>
    </message>
    <message>
        <source>Thumbnail of %1</source>
        <extracomment>%1: name of a file.</extracomment>
        <translation>Vignette de %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>What a field then holds.</extracomment>
        <translation>rien</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>Set</source>
        <comment>verb: puts the text into the field</comment>
        <translation>Définir</translation>
    </message>
    <message>
        <source>Set if empty</source>
        <extracomment>Puts the text into the field when nothing is there.</extracomment>
        <translation>Définir si vide</translation>
    </message>
    <message>
        <source>Append</source>
        <extracomment>Puts the text behind what the field holds.</extracomment>
        <translation>Ajouter après</translation>
    </message>
    <message>
        <source>Prepend</source>
        <extracomment>Puts the text before what the field holds.</extracomment>
        <translation>Ajouter avant</translation>
    </message>
    <message>
        <source>What happens to %1</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>Action sur %1</translation>
    </message>
    <message>
        <source>Add name + ↵</source>
        <translation>Nom + ↵</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <extracomment>Keys that apply a template.</extracomment>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>Photo précédente</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>Photo suivante</translation>
    </message>
    <message>
        <source>Fill</source>
        <extracomment>Button: fills the fields of photos.</extracomment>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>More</source>
        <comment>button: opens a menu</comment>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>FIELDS</source>
        <extracomment>Heads the fields of a template, in capitals.</extracomment>
        <translation>CHAMPS</translation>
    </message>
    <message>
        <source>A template fills fields of the selected photos, with texts that each photo completes. Make one with +, or drop a template&apos;s file into the list.</source>
        <translation>Un modèle remplit des champs des photos sélectionnées avec des textes que chaque photo complète. Créez-en un avec +, ou déposez un fichier de modèle dans la liste.</translation>
    </message>
    <message>
        <source>No shortcut</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <extracomment>Heads what the template makes of a photo, in capitals.</extracomment>
        <translation>APERÇU</translation>
    </message>
    <message numerus="yes">
        <source>Fill %1 Photo(s)</source>
        <extracomment>Button: fills the fields of the selected photos. %1: how many these are.</extracomment>
        <translation>
            <numerusform>Remplir %1 photo</numerusform>
            <numerusform>Remplir %1 photos</numerusform>
        </translation>
    </message>
    <message>
        <source>No field of this name.</source>
        <translation>Aucun champ de ce nom.</translation>
    </message>
    <message>
        <source>custom field</source>
        <translation>champ personnalisé</translation>
    </message>
    <message>
        <source>from %1</source>
        <extracomment>How a counter counts. %1: its first number.</extracomment>
        <translation>à partir de %1</translation>
    </message>
    <message>
        <source>from %1, step %2</source>
        <extracomment>How a counter counts. %1: its first number, %2: how far it is to the next.</extracomment>
        <translation>à partir de %1, pas %2</translation>
    </message>
    <message>
        <source>or %1</source>
        <extracomment>Behind the name of a token. %1: what stands in its place where a photo has no such value.</extracomment>
        <translation>ou %1</translation>
    </message>
    <message>
        <source>More…</source>
        <extracomment>Button: shows further tokens.</extracomment>
        <translation>Plus…</translation>
    </message>
    <message>
        <source>Insert %1</source>
        <extracomment>Puts a token into a text. %1: its name, as “Date taken”.</extracomment>
        <translation>Insérer %1</translation>
    </message>
    <message>
        <source>More tokens</source>
        <translation>Autres variables</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Search tokens…</source>
        <translation>Rechercher une variable…</translation>
    </message>
    <message>
        <source>No token of this name.</source>
        <translation>Aucune variable de ce nom.</translation>
    </message>
    <message>
        <source>Default and form of %1</source>
        <extracomment>%1: name of a token. Default: what stands there where a photo has no such value; form: how a date is written.</extracomment>
        <translation>Valeur par défaut et format de %1</translation>
    </message>
    <message>
        <source>If missing</source>
        <extracomment>What stands in the place of a value that a photo does not have, and what happens when nothing is given.</extracomment>
        <translation>Si absent</translation>
    </message>
    <message>
        <source>leave a gap</source>
        <translation>laisser vide</translation>
    </message>
    <message>
        <source>Form</source>
        <extracomment>How a date or time is written.</extracomment>
        <translation>Format</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Of a counter: its first number, how far it is from one to the next, and how many digits each has.</extracomment>
        <translation>Début</translation>
    </message>
    <message>
        <source>Letters</source>
        <extracomment>Whether the letters of a text are capitals.</extracomment>
        <translation>Casse</translation>
    </message>
    <message>
        <source>As they are</source>
        <translation>Telle quelle</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>MAJUSCULES</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>minuscules</translation>
    </message>
    <message>
        <source>as in “%1”</source>
        <extracomment>%1: a date, written in the form that was chosen.</extracomment>
        <translation>comme dans « %1 »</translation>
    </message>
    <message>
        <source>There are no codes in this file.</source>
        <translation>Ce fichier ne contient aucun code.</translation>
    </message>
    <message numerus="yes">
        <source>%n code(s).</source>
        <translation>
            <numerusform>%n code.</numerusform>
            <numerusform>%n codes.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <comment>button: no file is used any more</comment>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Choose the file of codes</source>
        <translation>Choisir le fichier de codes</translation>
    </message>
    <message>
        <source>Use no file of codes</source>
        <translation>Ne plus utiliser de fichier de codes</translation>
    </message>
    <message>
        <source>A text file with a code, a tab and its text in each line. Type =js= in a text or keyword, and js becomes its text at the second “=”; one Undo gives the code back.</source>
        <translation>Un fichier texte avec, à chaque ligne, un code, une tabulation et son texte. Tapez =js= dans un texte ou un mot-clé : au second « = », js devient son texte ; un seul Annuler rétablit le code.</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>Aucun fichier</translation>
    </message>
    <message>
        <source>Nothing else in the photo before</source>
        <translation>Rien d’autre dans la photo précédente</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Premiers pas</translation>
    </message>
    <message>
        <source>Quorbel reads and edits the metadata inside your photos — titles, dates, captions, keywords and location — and writes your changes into the EXIF, IPTC and XMP standards at once so every app agrees.</source>
        <translation>Quorbel lit et modifie les métadonnées contenues dans vos photos – titres, dates, légendes, mots-clés et lieux – et écrit vos modifications à la fois dans les normes EXIF, IPTC et XMP, pour que toutes les applications affichent la même chose.</translation>
    </message>
    <message>
        <source>To begin, open a folder of images or one or more image files:</source>
        <translation>Pour commencer, ouvrez un dossier d’images ou un ou plusieurs fichiers image :</translation>
    </message>
    <message>
        <source>Choose File ▸ Open… (⌘O), or drag photos onto the window.</source>
        <translation>Choisissez Fichier ▸ Ouvrir… (⌘O), ou glissez des photos sur la fenêtre.</translation>
    </message>
    <message>
        <source>Choose File ▸ Open with Subfolders… (⌘⇧O) to open a folder with all the folders in it.</source>
        <translation>Choisissez Fichier ▸ Ouvrir avec les sous-dossiers… (⌘⇧O) pour ouvrir un dossier et tous ceux qu’il contient.</translation>
    </message>
    <message>
        <source>Reopen something recent from File ▸ Open Recent.</source>
        <translation>Rouvrez un élément récent avec Fichier ▸ Récemment ouverts.</translation>
    </message>
    <message>
        <source>Right-click a photo in your file manager and choose Open With ▸ Quorbel.</source>
        <translation>Dans votre gestionnaire de fichiers, cliquez avec le bouton droit sur une photo et choisissez Ouvrir avec ▸ Quorbel.</translation>
    </message>
    <message>
        <source>The Interface</source>
        <translation>L’interface</translation>
    </message>
    <message>
        <source>The window has three regions:</source>
        <translation>La fenêtre comporte trois zones :</translation>
    </message>
    <message>
        <source>Sidebar (left): every photo in the folder. Search and sort by name or date from the controls at the top.</source>
        <translation>Barre latérale (à gauche) : toutes les photos du dossier. En haut, recherchez-les et triez-les par nom ou par date.</translation>
    </message>
    <message>
        <source>With subfolders open, each folder has a heading. Click it, or press Return on it, to fold its photos away; ⌥-click folds all. Left goes from a photo to its heading and folds, Right unfolds.</source>
        <translation>Avec les sous-dossiers, chaque dossier a un en-tête. Un clic sur celui-ci, ou Retour, replie ses photos ; ⌥-clic replie tout. Gauche mène d’une photo à son en-tête et replie, Droite déplie.</translation>
    </message>
    <message>
        <source>Preview (center): a large preview column appears as you widen the window, so you always see the photo you&apos;re tagging.</source>
        <translation>Aperçu (au centre) : une colonne avec un grand aperçu apparaît quand vous élargissez la fenêtre ; vous voyez ainsi toujours la photo que vous décrivez.</translation>
    </message>
    <message>
        <source>Inspector (right): the editable fields, grouped as Common, Location and read-only Camera details.</source>
        <translation>Inspecteur (à droite) : les champs modifiables, regroupés en Général et Lieu, et les données de l’appareil, en lecture seule.</translation>
    </message>
    <message>
        <source>Quorbel remembers what it read: a folder that you open again is there at once, and only photos that changed are read. View ▸ Read Again (⇧F5) reads all of them anew.</source>
        <translation>Quorbel se souvient de ce qu’il a lu : un dossier que vous rouvrez s’affiche aussitôt, et seules les photos modifiées sont lues. Affichage ▸ Relire (⇧F5) les relit toutes.</translation>
    </message>
    <message>
        <source>Editing Metadata</source>
        <translation>Modifier les métadonnées</translation>
    </message>
    <message>
        <source>Select a photo and edit its fields in the inspector. Set a title, date, caption or location once and Quorbel writes it to the matching EXIF, IPTC and XMP tags together.</source>
        <translation>Sélectionnez une photo et modifiez ses champs dans l’inspecteur. Saisissez une seule fois un titre, une date, une légende ou un lieu : Quorbel l’écrit ensemble dans les balises EXIF, IPTC et XMP correspondantes.</translation>
    </message>
    <message>
        <source>Use Add Field to pick a recommended standard field, or define a custom one.</source>
        <translation>Ajouter un champ propose les champs standard recommandés, ou permet d’en définir un.</translation>
    </message>
    <message>
        <source>Turn on Show namespace details (Settings) to see exactly which tag each value writes to.</source>
        <translation>Activez Afficher les détails des espaces de noms (Paramètres) pour voir dans quelle balise chaque valeur est écrite.</translation>
    </message>
    <message>
        <source>Edited fields are marked until you save.</source>
        <translation>Les champs modifiés restent marqués jusqu’à l’enregistrement.</translation>
    </message>
    <message>
        <source>From Photo to Photo</source>
        <translation>De photo en photo</translation>
    </message>
    <message>
        <source>Captions for many photos need no mouse. The keys work from within any field:</source>
        <translation>Légender de nombreuses photos se fait sans souris. Les touches agissent depuis n’importe quel champ :</translation>
    </message>
    <message>
        <source>⌥Down and ⌥Up go to the next and the previous photo. The keyboard stays in the same field, and its text is selected there.</source>
        <translation>⌥Bas et ⌥Haut passent à la photo suivante et à la précédente. Le curseur reste dans le même champ, dont le texte est alors sélectionné.</translation>
    </message>
    <message>
        <source>⌘Return saves and goes on at once: you type while the last photo is still being written.</source>
        <translation>⌘Retour enregistre et passe aussitôt à la suite : vous tapez pendant que la dernière photo est encore en cours d’écriture.</translation>
    </message>
    <message>
        <source>Ctrl+&apos; fills the field with what the photo before shows. An empty field there takes nothing away.</source>
        <translation>⌘+&apos; remplit le champ avec ce qu’affiche la photo précédente. Si le champ y est vide, rien n’est effacé.</translation>
    </message>
    <message>
        <source>0 to 5 rate while the list has the keyboard; ⌘⌥0 to ⌘⌥5 rate anywhere, one photo or many.</source>
        <translation>Les touches 0 à 5 attribuent une note quand la liste est active ; ⌘⌥0 à ⌘⌥5 le font partout, pour une photo ou plusieurs.</translation>
    </message>
    <message>
        <source>F11, or Space in the list, looks closely: the photo fills the window. A click or Z shows every pixel there, the arrow keys go on to the next photo at the same place, Escape returns.</source>
        <translation>F11, ou Espace dans la liste, permet de voir de près : la photo remplit la fenêtre. Un clic ou Z y montre chaque pixel, les flèches passent à la photo suivante au même endroit, Échap ramène à la liste.</translation>
    </message>
    <message>
        <source>Help ▸ Keyboard Shortcuts (Ctrl+F1) lists all keys.</source>
        <translation>Aide ▸ Raccourcis clavier (⌘F1) donne la liste des touches.</translation>
    </message>
    <message>
        <source>Several Languages</source>
        <translation>Plusieurs langues</translation>
    </message>
    <message>
        <source>A title, description, copyright notice, event or usage terms can be in several languages in one photo. The field shows the text that every app reads; the others stay with the photo whatever you write there.</source>
        <translation>Titre, description, mention de copyright, événement et conditions d’utilisation peuvent exister en plusieurs langues dans une même photo. Le champ montre le texte que lisent toutes les applications ; les autres restent dans la photo, quoi que vous y écriviez.</translation>
    </message>
    <message>
        <source>A field that has other languages names them at its right end, like “de fr”. Click there, or press ⌥Right in the field, to see and edit them; ⌥Left hides them.</source>
        <translation>Un champ qui a d’autres langues les indique à son extrémité droite, par exemple « de fr ». Cliquez dessus, ou tapez ⌥Droite dans le champ, pour les voir et les modifier ; ⌥Gauche les masque.</translation>
    </message>
    <message>
        <source>Add language finds a language by its name; the cross behind a text takes that language away.</source>
        <translation>Ajouter une langue trouve une langue par son nom ; la croix après un texte retire cette langue.</translation>
    </message>
    <message>
        <source>Both count as unsaved until you save, and work for several photos at once.</source>
        <translation>Une langue ajoutée ou retirée n’est enregistrée qu’avec Enregistrer ; cela vaut aussi pour plusieurs photos à la fois.</translation>
    </message>
    <message>
        <source>Keyword Paths</source>
        <translation>Chemins de mots-clés</translation>
    </message>
    <message>
        <source>Many programs keep keywords in a tree, such as Places ▸ France ▸ Paris. Quorbel shows where a keyword stands: in front of it while there are few, and always in its tooltip.</source>
        <translation>Bien des programmes rangent les mots-clés dans une arborescence, comme Lieux ▸ France ▸ Paris. Quorbel montre où se trouve un mot-clé : devant lui tant qu’il y en a peu, et toujours dans son infobulle.</translation>
    </message>
    <message>
        <source>Type Places &gt; France &gt; Paris, with a blank on each side of the &gt;, or Places|France|Paris. The photo gets the keyword Paris and its place in the tree.</source>
        <translation>Tapez Lieux &gt; France &gt; Paris, avec une espace de chaque côté de &gt;, ou Lieux|France|Paris. La photo reçoit le mot-clé Paris et sa place dans l’arborescence.</translation>
    </message>
    <message>
        <source>Suggestions tell the places of a keyword. Type Places| to see what lies below Places.</source>
        <translation>Les suggestions indiquent les places d’un mot-clé. Tapez Lieux| pour voir ce qui se trouve sous Lieux.</translation>
    </message>
    <message>
        <source>Take a keyword away, and the paths that lead to it go too, in every place where the photo keeps them. Paths that lead further stay.</source>
        <translation>Si vous retirez un mot-clé, les chemins qui y mènent disparaissent aussi, partout où la photo les conserve. Les chemins qui vont plus loin restent.</translation>
    </message>
    <message>
        <source>Places That Disagree</source>
        <translation>Valeurs divergentes</translation>
    </message>
    <message>
        <source>A photo keeps a title or a date in several places, and each program reads the one it knows. When programs changed only some of them, the places differ. A field whose places differ has a mark under it.</source>
        <translation>Une photo conserve un titre ou une date à plusieurs emplacements, et chaque programme lit celui qu’il connaît. Quand un programme n’en a modifié que certains, les emplacements divergent. Le champ porte alors une marque au-dessous.</translation>
    </message>
    <message>
        <source>Click the mark to see what each place holds. Use this one makes a text your edit; saving writes it to all places.</source>
        <translation>Cliquez sur la marque pour voir ce que contient chaque emplacement. Utiliser celui-ci reprend un texte comme modification ; l’enregistrement l’écrit à tous les emplacements.</translation>
    </message>
    <message>
        <source>View ▸ Show Disagreements (⌘⇧D) lists only photos whose places differ. Quorbel looks at all open photos for that, while you work on.</source>
        <translation>Affichage ▸ Afficher les divergences (⌘⇧D) ne liste que les photos dont les emplacements divergent. Quorbel examine pour cela toutes les photos ouvertes pendant que vous travaillez.</translation>
    </message>
    <message>
        <source>With photos selected, Edit ▸ Make Them Agree writes what each photo shows to all of its places. Undo Save takes it back.</source>
        <translation>Avec des photos sélectionnées, Édition ▸ Harmoniser les valeurs écrit ce que montre chaque photo à tous ses emplacements. Annuler l’enregistrement revient en arrière.</translation>
    </message>
    <message>
        <source>Finding Gaps</source>
        <translation>Trouver les lacunes</translation>
    </message>
    <message>
        <source>The filter beside the search lists only photos that lack something, have few or many stars, are edited and not saved, or hold a text in any field. Tick several: a photo must fit all. Each count is that of all open photos.</source>
        <translation>Le filtre à côté de la recherche ne liste que les photos auxquelles il manque quelque chose, qui ont peu ou beaucoup d’étoiles, qui sont modifiées sans être enregistrées, ou qui contiennent un texte dans un champ quelconque. Cochez plusieurs critères : une photo doit répondre à tous. Chaque nombre porte sur toutes les photos ouvertes.</translation>
    </message>
    <message>
        <source>F8 goes to the next empty field: down the form, then on to the next photo. ⇧F8 goes back. With a filter for empty fields, only those count.</source>
        <translation>F8 va au champ vide suivant : vers le bas du formulaire, puis à la photo suivante. ⇧F8 revient en arrière. Avec un filtre de champs vides, seuls ceux-ci comptent.</translation>
    </message>
    <message>
        <source>A photo that you edit stays listed until it is saved; then the next one takes its place.</source>
        <translation>Une photo que vous modifiez reste dans la liste jusqu’à son enregistrement ; la suivante prend alors sa place.</translation>
    </message>
    <message>
        <source>The cross of a chip, or Delete on it, ends one filter; View ▸ Clear Filters (⌘⇧F) ends all.</source>
        <translation>La croix d’une pastille, ou Suppr sur celle-ci, retire un filtre ; Affichage ▸ Effacer les filtres (⌘⇧F) les retire tous.</translation>
    </message>
    <message>
        <source>IPTC Fields &amp; Field Sets</source>
        <translation>Champs IPTC et jeux de champs</translation>
    </message>
    <message>
        <source>Quorbel reads and writes every property of the IPTC Photo Metadata Standard: alternative text, contacts, people, places, releases, licences, what a picture was made with. A photo shows those that it holds; Add Field finds all others, by their names, by what they are for, and by their tags.</source>
        <translation>Quorbel lit et écrit toutes les propriétés de l’IPTC Photo Metadata Standard : texte alternatif, contacts, personnes, lieux, autorisations, licences, moyens de création de l’image. Une photo montre celles qu’elle contient ; Ajouter un champ trouve toutes les autres, par leur nom, leur usage ou leurs balises.</translation>
    </message>
    <message>
        <source>View ▸ Field Set chooses what is on screen at once: Captions, Press, Museum, Stock, Rights, Accessibility, or a set of your own. What a photo holds beside the set stays visible, and so does what you edited.</source>
        <translation>Affichage ▸ Jeu de champs choisit ce qui est affiché d’emblée : Légendes, Presse, Musée, Banque d’images, Droits, Accessibilité, ou un jeu personnalisé. Ce qu’une photo contient hors du jeu reste visible, tout comme ce que vous avez modifié.</translation>
    </message>
    <message>
        <source>A set may want fields. Empty ones have a dashed border, the lines of the sections count them, and F8 goes from one to the next, on to the next photo at the end. ⇧F8 goes back.</source>
        <translation>Un jeu peut demander des champs. Ceux qui sont vides ont une bordure en tirets, les en-têtes des sections les comptent, et F8 va de l’un à l’autre, puis à la photo suivante. ⇧F8 revient en arrière.</translation>
    </message>
    <message>
        <source>Save What Is on Screen as Set… makes a set of your own; Edit Sets… changes what is in it and what it wants. Sets that come with Quorbel can be copied there.</source>
        <translation>Enregistrer les champs affichés comme jeu… crée un jeu personnalisé ; Modifier les jeux… change ce qu’il contient et ce qu’il demande. Les jeux fournis avec Quorbel peuvent y être copiés.</translation>
    </message>
    <message>
        <source>Default is the form as it was. Once you have chosen a set, or made one, they can be picked at the top of the form, too.</source>
        <translation>Par défaut est le formulaire d’origine. Dès que vous avez choisi ou créé un jeu, les jeux sont aussi accessibles en haut du formulaire.</translation>
    </message>
    <message>
        <source>Shifting Times</source>
        <translation>Décaler les heures</translation>
    </message>
    <message>
        <source>A camera whose clock was wrong leaves wrong times in all of its photos. Select them, and choose Edit ▸ Shift Time.</source>
        <translation>Un appareil mal réglé laisse une heure fausse dans toutes ses photos. Sélectionnez-les et choisissez Édition ▸ Décaler l’heure.</translation>
    </message>
    <message>
        <source>By an amount: so many days, hours, minutes and seconds later or earlier.</source>
        <translation>D’une durée : tant de jours, d’heures, de minutes et de secondes plus tard ou plus tôt.</translation>
    </message>
    <message>
        <source>By a known photo: type when one of the photos was really taken, and all others go by the same amount.</source>
        <translation>D’après une photo : indiquez quand l’une des photos a réellement été prise ; toutes les autres sont décalées d’autant.</translation>
    </message>
    <message>
        <source>Time zone: sets the zone that the times are in. Keep the clock time, or let it move with the zone. Photos with a position can each get the zone that they were taken in.</source>
        <translation>Fuseau horaire : définit le fuseau des heures. Conservez l’heure affichée, ou laissez-la suivre le fuseau. Les photos qui ont une position peuvent recevoir chacune le fuseau où elles ont été prises.</translation>
    </message>
    <message>
        <source>The table shows the first photo, the last one, and what becomes another day. Photos without a date are named and left alone. Undo Shift Time takes it back.</source>
        <translation>Le tableau montre la première photo, la dernière et ce qui change de jour. Les photos sans date sont citées et laissées telles quelles. Annuler le décalage de l’heure revient en arrière.</translation>
    </message>
    <message>
        <source>Batch Editing</source>
        <translation>Modification par lot</translation>
    </message>
    <message>
        <source>Select multiple photos to edit them together. Use ⌘A to select all, or ⇧/⌘-click to build a selection.</source>
        <translation>Sélectionnez plusieurs photos pour les modifier ensemble : ⌘A sélectionne tout, ⇧/⌘-clic compose une sélection.</translation>
    </message>
    <message>
        <source>Choose which fields to apply, set their values, and Quorbel writes them to every selected photo in one pass.</source>
        <translation>Choisissez les champs à appliquer, donnez leurs valeurs, et Quorbel les écrit en une fois dans toutes les photos sélectionnées.</translation>
    </message>
    <message>
        <source>List fields (like keywords) are appended across the selection.</source>
        <translation>Les champs de liste (comme les mots-clés) sont complétés dans toute la sélection.</translation>
    </message>
    <message>
        <source>Quorbel confirms before a mass edit unless you&apos;ve turned that prompt off.</source>
        <translation>Quorbel demande confirmation avant une modification en masse, sauf si vous avez désactivé cette question.</translation>
    </message>
    <message>
        <source>Below the keywords stand those that the selected photos have, with how many have each. Click one to give it to all of them; its cross takes it away from all with the next save.</source>
        <translation>Sous les mots-clés figurent ceux des photos sélectionnées, avec le nombre de photos pour chacun. Cliquez sur l’un d’eux pour le donner à toutes ; sa croix le retire de toutes au prochain enregistrement.</translation>
    </message>
    <message>
        <source>Quick keywords are the last ones you used, or a set of your own: click one, or press Alt+1 to Alt+9. The name of the set is a menu of all sets.</source>
        <translation>Les mots-clés rapides sont les derniers utilisés, ou un jeu personnalisé : cliquez sur l’un d’eux, ou tapez ⌥1 à ⌥9. Le nom du jeu est un menu de tous les jeux.</translation>
    </message>
    <message>
        <source>Copying Fields &amp; Codes</source>
        <translation>Copie de champs et codes</translation>
    </message>
    <message>
        <source>What one photo says can be given to others, and texts that you type often can have short codes.</source>
        <translation>Ce que contient une photo peut être repris dans d’autres, et les textes que vous tapez souvent peuvent avoir des codes courts.</translation>
    </message>
    <message>
        <source>Edit ▸ Copy Fields (⌘⇧C) takes the fields of the selected photo as you see them. Edit ▸ Paste Fields… (⌘⇧V) shows what they would replace in the selected photos, and pastes those that you tick. Nothing is written before you save.</source>
        <translation>Édition ▸ Copier les champs (⌘⇧C) prend les champs de la photo sélectionnée tels qu’ils sont affichés. Édition ▸ Coller les champs… (⌘⇧V) montre ce qu’ils remplaceraient dans les photos sélectionnées, et colle ceux que vous cochez. Rien n’est écrit avant l’enregistrement.</translation>
    </message>
    <message>
        <source>Edit ▸ Paste Fields Again pastes with the same ticks, without asking. What you copied last is there in another window and after a restart, too.</source>
        <translation>Édition ▸ Coller à nouveau les champs colle les champs cochés la dernière fois, sans rien demander. Ce que vous avez copié en dernier reste disponible dans une autre fenêtre et après un redémarrage.</translation>
    </message>
    <message>
        <source>Choose a file of codes in Settings: a code, a tab and its text in each line. Then type =js= in a text or keyword, and js becomes its text. One Undo (⌘Z) gives the code back.</source>
        <translation>Choisissez un fichier de codes dans les paramètres : à chaque ligne, un code, une tabulation et son texte. Tapez ensuite =js= dans un texte ou un mot-clé, et js devient son texte. Un seul Annuler (⌘Z) rétablit le code.</translation>
    </message>
    <message>
        <source>A template fills fields of the selected photos with texts that each photo completes: “Race %Counter% off %Place|Zürich%”. Make one in Edit ▸ Templates, or from a photo with Save as Template…</source>
        <translation>Un modèle remplit des champs des photos sélectionnées avec des textes que chaque photo complète : « Régate %Counter% au large de %Place|Zürich% ». Créez-en un avec Édition ▸ Modèles, ou à partir d’une photo avec Enregistrer comme modèle…</translation>
    </message>
    <message>
        <source>⌘1 to ⌘9 apply the templates that have these keys. What they fill in are edits, written when you save.</source>
        <translation>⌘1 à ⌘9 appliquent les modèles qui ont ces touches. Les textes ainsi remplis sont des modifications, écrites à l’enregistrement.</translation>
    </message>
    <message>
        <source>Each field is set, set only if it is empty, or gains the text behind or before its own.</source>
        <translation>Chaque champ est défini, défini seulement s’il est vide, ou reçoit le texte après ou avant le sien.</translation>
    </message>
    <message>
        <source>Tokens stand for what the photo says: all fields, the camera, %Filename% and %Counter%. Double-click one to give it a form, such as d MMMM yyyy, and a text for photos that lack the value.</source>
        <translation>Les variables représentent ce que dit la photo : tous les champs, l’appareil, %Filename% et %Counter%. Double-cliquez sur une variable pour lui donner un format, comme d MMMM yyyy, et un texte pour les photos sans cette valeur.</translation>
    </message>
    <message>
        <source>Each template is a file. Drag one out of the list to pass it on, and drop files in to import them.</source>
        <translation>Chaque modèle est un fichier. Glissez-le hors de la liste pour le transmettre, et déposez-y des fichiers pour les importer.</translation>
    </message>
    <message>
        <source>Renaming Files</source>
        <translation>Renommer des fichiers</translation>
    </message>
    <message>
        <source>Quorbel can rename files from a pattern built out of their own metadata. Open the rename dialog, add token chips and free text, and preview the result before applying.</source>
        <translation>Quorbel peut renommer les fichiers d’après un motif composé de leurs propres métadonnées. Ouvrez la fenêtre de renommage, ajoutez des variables et du texte libre, et vérifiez le résultat avant d’appliquer.</translation>
    </message>
    <message>
        <source>Available tokens:</source>
        <translation>Variables disponibles :</translation>
    </message>
    <message>
        <source>%Date% — date taken</source>
        <extracomment>Tokens, the words between two % signs, stay as they are in every language.</extracomment>
        <translation>%Date% – date de prise de vue</translation>
    </message>
    <message>
        <source>%Time% — time taken</source>
        <translation>%Time% – heure de prise de vue</translation>
    </message>
    <message>
        <source>%Title% — title</source>
        <translation>%Title% – titre</translation>
    </message>
    <message>
        <source>%Creator% — creator</source>
        <translation>%Creator% – créateur</translation>
    </message>
    <message>
        <source>%Place% — place</source>
        <translation>%Place% – lieu</translation>
    </message>
    <message>
        <source>%Original% — the original filename</source>
        <translation>%Original% – le nom de fichier d’origine</translation>
    </message>
    <message>
        <source>Example: %Date%_%Title% might produce 2026-07-14_Sunset.jpg. Names are kept filesystem-safe and unique automatically.</source>
        <translation>Exemple : %Date%_%Title% peut donner 2026-07-14_Coucher-de-soleil.jpg. Les noms restent automatiquement valides et uniques.</translation>
    </message>
    <message>
        <source>Several photos get their names together: select them and choose Rename Photos… in the File menu (Shift+F2). %Counter% numbers them in the order of the list; every other field has a token of its name, too, like %Headline%, and %Title|Untitled% or %Date:yyyyMMdd% say what stands for a missing title, or how a date is written. Names that lack something or were taken are marked. Sidecars, backups and the raw file of a pair go along, and Undo Rename in the Edit menu takes all of it back, also after a restart.</source>
        <translation>Plusieurs photos reçoivent leurs noms ensemble : sélectionnez-les et choisissez Renommer les photos… dans le menu Fichier (⇧F2). %Counter% les numérote dans l’ordre de la liste ; tout autre champ a aussi une variable à son nom, comme %Headline%, et %Title|Untitled% ou %Date:yyyyMMdd% indiquent ce qui remplace un titre manquant, ou comment s’écrit une date. Les noms auxquels il manque quelque chose, ou qui étaient déjà pris, sont marqués. Les fichiers annexes, les sauvegardes et le fichier raw d’une paire suivent, et Annuler le renommage, dans le menu Édition, revient sur le tout, même après un redémarrage.</translation>
    </message>
    <message>
        <source>Saving &amp; Backups</source>
        <translation>Enregistrement et sauvegardes</translation>
    </message>
    <message>
        <source>Your edits are written when you Save (⌘S).</source>
        <translation>Vos modifications sont écrites quand vous enregistrez (⌘S).</translation>
    </message>
    <message>
        <source>Originals are backed up before writing (you can turn this off in Settings).</source>
        <translation>Les originaux sont sauvegardés avant l’écriture (désactivable dans les paramètres).</translation>
    </message>
    <message>
        <source>Quorbel prompts before you switch away with unsaved changes.</source>
        <translation>Quorbel vous avertit avant de quitter une photo dont les modifications ne sont pas enregistrées.</translation>
    </message>
    <message>
        <source>Optionally write an XMP sidecar instead of embedding, from Settings.</source>
        <translation>Les paramètres permettent aussi d’écrire un fichier annexe XMP au lieu d’intégrer les métadonnées.</translation>
    </message>
    <message>
        <source>Raw Files</source>
        <translation>Fichiers raw</translation>
    </message>
    <message>
        <source>Settings ▸ Raw files says where the edits of raw photos go: into the file, as with other photos, or beside it. Beside it, the raw file itself is never written to.</source>
        <translation>Paramètres ▸ Fichiers raw indique où vont les modifications des photos raw : dans le fichier, comme pour les autres photos, ou à côté. Dans ce dernier cas, rien n’est jamais écrit dans le fichier raw lui-même.</translation>
    </message>
    <message>
        <source>The words then go to an XMP sidecar, which other programs read and write too. The line under the photo’s name says which file that is. DNG has a choice of its own.</source>
        <translation>Les textes vont alors dans un fichier annexe XMP, que d’autres programmes lisent et écrivent aussi. La ligne sous le nom de la photo indique de quel fichier il s’agit. Le format DNG a son propre réglage.</translation>
    </message>
    <message>
        <source>What the sidecar says stands before what the raw file says, field by field. Where the two differ, the field has a mark; click it to see both.</source>
        <translation>Ce que dit le fichier annexe l’emporte, champ par champ, sur ce que dit le fichier raw. Là où les deux divergent, le champ porte une marque ; cliquez dessus pour voir les deux valeurs.</translation>
    </message>
    <message>
        <source>View ▸ Pair Raw and JPEG lists the two files of a shot as one photo. An edit goes to both, each by its own setting, and renaming takes all files of the shot along.</source>
        <translation>Affichage ▸ Associer raw et JPEG présente les deux fichiers d’une prise de vue comme une seule photo. Une modification va dans les deux, chacun selon son propre réglage, et le renommage s’applique à tous les fichiers de la prise de vue.</translation>
    </message>
    <message>
        <source>File ▸ Write Sidecars Into Photos… and Write Metadata Into Sidecars… move words over for the selected photos. You see first what would change in how many. Undo Save takes it back.</source>
        <translation>Fichier ▸ Écrire les fichiers annexes dans les photos… et Écrire les métadonnées dans les fichiers annexes… transfèrent les textes des photos sélectionnées. Vous voyez d’abord ce qui changerait, et dans combien de photos. Annuler l’enregistrement revient en arrière.</translation>
    </message>
    <message>
        <source>Develop settings, and whatever else other programs keep in a sidecar, stay as they are.</source>
        <translation>Les réglages de développement, et tout ce que d’autres programmes conservent dans un fichier annexe, restent tels quels.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Open Settings from the Quorbel menu (⌘,) to adjust:</source>
        <translation>Ouvrez les paramètres (⌘,) pour régler :</translation>
    </message>
    <message>
        <source>Back up originals before saving.</source>
        <translation>La sauvegarde des originaux avant l’enregistrement.</translation>
    </message>
    <message>
        <source>Write an XMP sidecar file.</source>
        <translation>L’écriture d’un fichier annexe XMP.</translation>
    </message>
    <message>
        <source>Show namespace details for every field.</source>
        <translation>L’affichage des détails des espaces de noms pour chaque champ.</translation>
    </message>
    <message>
        <source>Confirm before mass edits, and the default rename pattern.</source>
        <translation>La confirmation avant les modifications en masse, et le motif de renommage par défaut.</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Rubriques</translation>
    </message>
    <message>
        <source>Quorbel Help</source>
        <translation>Aide de Quorbel</translation>
    </message>
    <message>
        <source>Drag a folder or image here</source>
        <translation>Glissez un dossier ou une image ici</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>Ouvrir un dossier…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>Ouvrir une image…</translation>
    </message>
    <message>
        <source>Open with subfolders</source>
        <extracomment>A switch: a folder that is opened is opened with all folders in it.</extracomment>
        <translation>Ouvrir avec les sous-dossiers</translation>
    </message>
    <message>
        <source>Thumbnail only</source>
        <extracomment>Written on a photo of which nothing larger can be shown.</extracomment>
        <translation>Vignette seulement</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) selected</source>
        <translation>
            <numerusform>%n photo sélectionnée</numerusform>
            <numerusform>%n photos sélectionnées</numerusform>
        </translation>
    </message>
    <message>
        <source>Preview of %1, thumbnail only</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Aperçu de %1, vignette seulement</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Aperçu de %1</translation>
    </message>
    <message numerus="yes">
        <source>Looking at %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were looked at already.</extracomment>
        <translation>
            <numerusform>Examen : %1 sur %2…</numerusform>
            <numerusform>Examen : %1 sur %2…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Filling in %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were filled in already: what the program did not know of them yet was read.</extracomment>
        <translation>
            <numerusform>Complément : %1 sur %2…</numerusform>
            <numerusform>Complément : %1 sur %2…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were read already.</extracomment>
        <translation>
            <numerusform>Lecture : %1 sur %2…</numerusform>
            <numerusform>Lecture : %1 sur %2…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Renaming %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were renamed already.</extracomment>
        <translation>
            <numerusform>Renommage : %1 sur %2…</numerusform>
            <numerusform>Renommage : %1 sur %2…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were saved already.</extracomment>
        <translation>
            <numerusform>Enregistrement : %1/%2…</numerusform>
            <numerusform>Enregistrement : %1/%2…</numerusform>
        </translation>
    </message>
    <message>
        <source>Skip</source>
        <comment>button: goes on without the file</comment>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Stuck at %1</source>
        <extracomment>%1 is the name of a file that takes suspiciously long to be read.</extracomment>
        <translation>Bloqué sur %1</translation>
    </message>
    <message>
        <source>Looking for photos…</source>
        <translation>Recherche de photos…</translation>
    </message>
    <message>
        <source>Display</source>
        <comment>heading of settings</comment>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>Prend effet au prochain démarrage.</translation>
    </message>
    <message>
        <source>Show namespace details</source>
        <translation>Afficher les détails des espaces de noms</translation>
    </message>
    <message>
        <source>Adds the source tags (EXIF / IPTC / XMP) under each field.</source>
        <translation>Ajoute les balises d’origine (EXIF / IPTC / XMP) sous chaque champ.</translation>
    </message>
    <message>
        <source>Saving</source>
        <comment>heading of settings</comment>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Back up original before writing</source>
        <translation>Sauvegarder l’original avant l’écriture</translation>
    </message>
    <message>
        <source>Confirm before mass-applying to multiple files</source>
        <translation>Confirmer avant d’appliquer à plusieurs fichiers</translation>
    </message>
    <message>
        <source>Also write a sidecar .xmp file</source>
        <translation>Écrire aussi un fichier annexe .xmp</translation>
    </message>
    <message>
        <source>Mirrors XMP metadata into &lt;name&gt;.xmp next to each image.</source>
        <extracomment>&lt;name&gt; stands for the image&apos;s own.</extracomment>
        <translation>Recopie les métadonnées XMP dans &lt;name&gt;.xmp à côté de chaque image.</translation>
    </message>
    <message>
        <source>Renaming</source>
        <comment>heading of settings</comment>
        <translation>Renommage</translation>
    </message>
    <message>
        <source>Filename pattern</source>
        <translation>Motif du nom de fichier</translation>
    </message>
    <message>
        <source>Tokens: %Date% %Time% %Title% %Creator% %Place% %Original%. The extension is kept automatically.</source>
        <extracomment>What stands between two % signs is typed like this in every language.</extracomment>
        <translation>Variables : %Date% %Time% %Title% %Creator% %Place% %Original%. L’extension est conservée automatiquement.</translation>
    </message>
    <message>
        <source>Strip special characters</source>
        <translation>Retirer les caractères spéciaux</translation>
    </message>
    <message>
        <source>Keeps only letters and numbers (accents become plain, e.g. Café → Cafe). Off leaves characters like @ and &apos; in place.</source>
        <translation>Ne garde que les lettres et les chiffres (sans accents, p. ex. Café → Cafe). Si l’option est désactivée, des caractères comme @ et &apos; restent en place.</translation>
    </message>
    <message>
        <source>Raw files</source>
        <translation>Fichiers raw</translation>
    </message>
    <message>
        <source>Edits of raw photos</source>
        <translation>Modifications des photos raw</translation>
    </message>
    <message>
        <source>Edits are written into the raw file, as into other photos.</source>
        <translation>Les modifications sont écrites dans le fichier raw, comme pour les autres photos.</translation>
    </message>
    <message>
        <source>The raw file stays untouched. Other programs find the words in the sidecar.</source>
        <translation>Le fichier raw reste intact. Les autres programmes trouvent les textes dans le fichier annexe.</translation>
    </message>
    <message>
        <source>Edits of DNG photos</source>
        <translation>Modifications des photos DNG</translation>
    </message>
    <message>
        <source>DNG is made to hold metadata, so it is written as other photos are.</source>
        <translation>Le format DNG est fait pour contenir des métadonnées ; il est écrit comme les autres photos.</translation>
    </message>
    <message>
        <source>The DNG file stays untouched. Other programs find the words in the sidecar.</source>
        <translation>Le fichier DNG reste intact. Les autres programmes trouvent les textes dans le fichier annexe.</translation>
    </message>
    <message>
        <source>Into the file</source>
        <extracomment>Where edits of raw photos are written: into the photo&apos;s own file, or into a sidecar that lies beside it.</extracomment>
        <translation>Dans le fichier</translation>
    </message>
    <message>
        <source>Beside it</source>
        <translation>À côté</translation>
    </message>
    <message>
        <source>Write into the file</source>
        <translation>Écrire dans le fichier</translation>
    </message>
    <message>
        <source>Write beside it</source>
        <translation>Écrire à côté du fichier</translation>
    </message>
    <message>
        <source>Name of new sidecars</source>
        <translation>Nom des nouveaux fichiers annexes</translation>
    </message>
    <message>
        <source>A sidecar that is already there keeps its name.</source>
        <translation>Un fichier annexe qui existe déjà garde son nom.</translation>
    </message>
    <message>
        <source>Places</source>
        <comment>heading of settings: towns and sights</comment>
        <translation>Lieux</translation>
    </message>
    <message>
        <source>Online place service</source>
        <translation>Service de lieux en ligne</translation>
    </message>
    <message>
        <source>Empty: places are looked up on this computer alone. With the https address of a Photon-compatible service, what you type in the Place field is sent there; places known here still come first. Takes effect at the next start.</source>
        <translation>Vide : les lieux ne sont cherchés que sur cet ordinateur. Avec l’adresse https d’un service compatible Photon, ce que vous tapez dans le champ Lieu y est envoyé ; les lieux connus ici restent proposés en premier. Prend effet au prochain démarrage.</translation>
    </message>
    <message>
        <source>Code replacements</source>
        <translation>Remplacement de codes</translation>
    </message>
    <message>
        <source>System</source>
        <comment>appearance: that of the desktop</comment>
        <translation>Système</translation>
    </message>
    <message>
        <source>Light</source>
        <comment>appearance</comment>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <comment>appearance</comment>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>High contrast</source>
        <comment>appearance</comment>
        <translation>Contraste élevé</translation>
    </message>
    <message>
        <source>System</source>
        <comment>language</comment>
        <extracomment>The language of the desktop, in a list of languages.</extracomment>
        <translation>Système</translation>
    </message>
    <message>
        <source>Not used: this is no https address.</source>
        <translation>Non utilisé : ce n’est pas une adresse https.</translation>
    </message>
    <message>
        <source>Rate</source>
        <extracomment>What a key does: it gives a photo stars.</extracomment>
        <translation>Noter</translation>
    </message>
    <message>
        <source>In the list of photos</source>
        <translation>Dans la liste des photos</translation>
    </message>
    <message>
        <source>Next or previous photo</source>
        <translation>Photo suivante ou précédente</translation>
    </message>
    <message>
        <source>A page further or back</source>
        <translation>Une page plus loin ou en arrière</translation>
    </message>
    <message>
        <source>First or last photo</source>
        <translation>Première ou dernière photo</translation>
    </message>
    <message>
        <source>Select up to there</source>
        <translation>Sélectionner jusque-là</translation>
    </message>
    <message>
        <source>Go there without selecting</source>
        <translation>Y aller sans sélectionner</translation>
    </message>
    <message>
        <source>Add to the selection, or take out</source>
        <translation>Ajouter à la sélection ou en retirer</translation>
    </message>
    <message>
        <source>Look closely</source>
        <translation>Voir de près</translation>
    </message>
    <message>
        <source>Open in the default application</source>
        <translation>Ouvrir dans l’application par défaut</translation>
    </message>
    <message>
        <source>Find by the beginning of the name</source>
        <translation>Trouver par le début du nom</translation>
    </message>
    <message>
        <source>Fold or unfold a folder</source>
        <translation>Replier ou déplier un dossier</translation>
    </message>
    <message>
        <source>Fold or unfold all folders</source>
        <translation>Replier ou déplier tous les dossiers</translation>
    </message>
    <message>
        <source>Looking closely</source>
        <translation>Dans la vue de près</translation>
    </message>
    <message>
        <source>Next or previous photo, at the same place</source>
        <translation>Photo suivante ou précédente, même endroit</translation>
    </message>
    <message>
        <source>Every pixel, or the whole photo</source>
        <translation>Chaque pixel, ou la photo entière</translation>
    </message>
    <message>
        <source>Larger or smaller</source>
        <translation>Agrandir ou réduire</translation>
    </message>
    <message>
        <source>Move the photo across</source>
        <translation>Déplacer horizontalement</translation>
    </message>
    <message>
        <source>Move the photo up or down</source>
        <translation>Déplacer verticalement</translation>
    </message>
    <message>
        <source>In a field</source>
        <translation>Dans un champ</translation>
    </message>
    <message>
        <source>Show its other languages, or add one</source>
        <translation>Voir ses autres langues, en ajouter une</translation>
    </message>
    <message>
        <source>Hide its other languages</source>
        <translation>Masquer ses autres langues</translation>
    </message>
    <message>
        <source>In the keywords</source>
        <translation>Dans les mots-clés</translation>
    </message>
    <message>
        <source>Add what was typed</source>
        <translation>Ajouter le texte saisi</translation>
    </message>
    <message>
        <source>From the entry to the last keyword</source>
        <translation>De la saisie au dernier mot-clé</translation>
    </message>
    <message>
        <source>Take that keyword away</source>
        <translation>Retirer ce mot-clé</translation>
    </message>
    <message>
        <source>On the stars</source>
        <translation>Sur les étoiles</translation>
    </message>
    <message>
        <source>One star more or fewer</source>
        <translation>Une étoile de plus ou de moins</translation>
    </message>
    <message>
        <source>While searching</source>
        <translation>Pendant la recherche</translation>
    </message>
    <message>
        <source>Go to what was found</source>
        <translation>Aller aux résultats</translation>
    </message>
    <message>
        <source>Show all photos again</source>
        <translation>Réafficher toutes les photos</translation>
    </message>
    <message>
        <source>In a sheet</source>
        <translation>Dans une boîte de dialogue</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <source>This folder does not report changes; %1 looks every few seconds.</source>
        <extracomment>%1 is the program.</extracomment>
        <translation>Ce dossier ne signale pas ses changements ; %1 vérifie toutes les quelques secondes.</translation>
    </message>
    <message>
        <source>Not all of these folders report changes; %1 looks every few seconds.</source>
        <extracomment>%1 is the program.</extracomment>
        <translation>Certains de ces dossiers ne signalent pas leurs changements ; %1 vérifie toutes les quelques secondes.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of %2 folders report changes. Refresh to see what changed in the others.</source>
        <extracomment>Of %2 folders, only %1 do.</extracomment>
        <translation>
            <numerusform>Dossiers qui signalent leurs changements : %1 sur %2. Actualisez pour voir ce qui a changé dans les autres.</numerusform>
            <numerusform>Dossiers qui signalent leurs changements : %1 sur %2. Actualisez pour voir ce qui a changé dans les autres.</numerusform>
        </translation>
    </message>
    <message>
        <source>Refresh folder</source>
        <translation>Actualiser le dossier</translation>
    </message>
    <message>
        <source>Show preview</source>
        <translation>Afficher l’aperçu</translation>
    </message>
    <message>
        <source>Hide preview</source>
        <translation>Masquer l’aperçu</translation>
    </message>
    <message>
        <source>Back up originals before writing</source>
        <translation>Sauvegarder les originaux avant l’écriture</translation>
    </message>
    <message>
        <source>Also write sidecar .xmp</source>
        <translation>Écrire aussi un fichier annexe .xmp</translation>
    </message>
    <message>
        <source>Left as they are, because they could not be read: %1</source>
        <translation>Laissés tels quels, car ils n’ont pas pu être lus : %1</translation>
    </message>
    <message>
        <source>keeps changing</source>
        <translation>change sans cesse</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>fichier absent</translation>
    </message>
    <message>
        <source>ExifTool told nothing of it</source>
        <translation>ExifTool n’en a rien dit</translation>
    </message>
    <message>
        <source>Could not be read (%1)</source>
        <extracomment>%1 is the reason: &quot;took too long&quot;</extracomment>
        <translation>Lecture impossible (%1)</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Some fields could not be read (%1)</source>
        <extracomment>%1 is the reason: &quot;took too long&quot;</extracomment>
        <translation>Certains champs n’ont pas pu être lus (%1)</translation>
    </message>
    <message>
        <source>Some fields could not be read</source>
        <translation>Certains champs n’ont pas pu être lus</translation>
    </message>
    <message>
        <source>“Some fields could not be read” stands under a photo’s name where that is so. Until Try again has read them, they cannot be edited: what nobody has seen is not written over.</source>
        <translation>« Certains champs n’ont pas pu être lus » s’affiche sous le nom d’une photo lorsque c’est le cas. Tant que « Réessayer » ne les a pas lus, ils ne peuvent pas être modifiés : ce que personne n’a vu n’est pas écrasé.</translation>
    </message>
</context>
</TS>
