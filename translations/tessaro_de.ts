<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="AddPhotos">
        <source>Add…</source>
        <translation>Hinzufügen …</translation>
    </message>
    <message id="Adjust">
        <source>Adjust</source>
        <translation>Einzeln</translation>
    </message>
    <message id="AndMorePhotos" numerus="yes">
        <source>… and %n more photos</source>
        <translation>
            <numerusform>… und %n weiteres Foto</numerusform>
            <numerusform>… und %n weitere Fotos</numerusform>
        </translation>
    </message>
    <message id="Batch">
        <source>Batch</source>
        <translation>Alle</translation>
    </message>
    <message id="BatchAdjustName">
        <source>Change all photos or the selected one</source>
        <translation>Alle Fotos oder das ausgewählte ändern</translation>
    </message>
    <message id="BmpHoldsTiff">
        <source>The file holds TIFF data</source>
        <translation>Die Datei enthält TIFF-Daten</translation>
    </message>
    <message id="By Height">
        <source>By Height</source>
        <translation>Nach Höhe</translation>
    </message>
    <message id="By Percentage">
        <source>By Percentage</source>
        <translation>Nach Prozent</translation>
    </message>
    <message id="By Width">
        <source>By Width</source>
        <translation>Nach Breite</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="ChooseFolder">
        <source>Choose a Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message id="ChooseImage">
        <source>Choose an Image</source>
        <translation>Bild auswählen</translation>
    </message>
    <message id="ChooseLayout">
        <source>Choose a Layout</source>
        <translation>Layout auswählen</translation>
    </message>
    <message id="ChoosePhoto">
        <source>Choose Photos</source>
        <translation>Fotos auswählen</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message id="ConfirmCancel">
        <source>Stop the export?</source>
        <translation>Export vorzeitig beenden?</translation>
    </message>
    <message id="ConfirmQuit">
        <source>Stop the export and quit?</source>
        <translation>Export abbrechen und Tessaro beenden?</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message id="Converting...">
        <source>Exporting…</source>
        <translation>Export läuft …</translation>
    </message>
    <message id="Date Created">
        <source>Date Created</source>
        <translation>Erstelldatum</translation>
    </message>
    <message id="Date Modified">
        <source>Date Modified</source>
        <translation>Änderungsdatum</translation>
    </message>
    <message id="Do you want to cover watermarks">
        <source>The layout takes the place of the watermarks on the photos.</source>
        <translation>Das Layout tritt an die Stelle der Wasserzeichen auf den Fotos.</translation>
    </message>
    <message id="Do you want to cover watermarks title">
        <source>Replace the present watermarks?</source>
        <translation>Vorhandene Wasserzeichen ersetzen?</translation>
    </message>
    <message id="DonotShowApplyProfileTipAgain">
        <source>Do not ask again</source>
        <translation>Nicht mehr fragen</translation>
    </message>
    <message id="DontShowAgain">
        <source>Do not show this again</source>
        <translation>Nicht mehr anzeigen</translation>
    </message>
    <message id="Example">
        <source>Example</source>
        <translation>Beispiel</translation>
    </message>
    <message id="ExportCounts">
        <source>%1 written, %2 failed, %3 skipped</source>
        <translation>%1 geschrieben, %2 fehlgeschlagen, %3 übersprungen</translation>
    </message>
    <message id="ExportDone">
        <source>The photos are exported</source>
        <translation>Die Fotos sind exportiert</translation>
    </message>
    <message id="ExportDonePartly">
        <source>%1 of %2 photos are exported</source>
        <translation>%1 von %2 Fotos sind exportiert</translation>
    </message>
    <message id="ExportInhibit">
        <source>Photos are being exported</source>
        <translation>Fotos werden exportiert</translation>
    </message>
    <message id="ExportStop">
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message id="ExportTitle" numerus="yes">
        <source>Export %n photos</source>
        <translation>
            <numerusform>%n Foto exportieren</numerusform>
            <numerusform>%n Fotos exportieren</numerusform>
        </translation>
    </message>
    <message id="FailedShowFile">
        <source>This file could not be shown: </source>
        <translation>Diese Datei konnte nicht angezeigt werden: </translation>
    </message>
    <message id="FileExisted">
        <source>A layout named “%1” exists already</source>
        <translation>Es gibt bereits ein Layout namens „%1“</translation>
    </message>
    <message id="FileExistedTip">
        <source>Replacing it cannot be undone.</source>
        <translation>Das Ersetzen lässt sich nicht rückgängig machen.</translation>
    </message>
    <message id="FilesRefused">
        <source>Files that gave no photo: %1</source>
        <translation>Dateien, die kein Foto ergaben: %1</translation>
    </message>
    <message id="Fit">
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message id="Fit Size">
        <source>Fit Size</source>
        <translation>In Rahmen einpassen</translation>
    </message>
    <message id="FolderIsGone">
        <source>The folder %1 is no longer there.</source>
        <translation>Den Ordner %1 gibt es nicht mehr.</translation>
    </message>
    <message id="FolderIsReadOnly">
        <source>The folder %1 cannot be written to.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden.</translation>
    </message>
    <message id="Format">
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message id="Group Watermark">
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message id="Image Watermark">
        <source>Image Watermark</source>
        <translation>Bild-Wasserzeichen</translation>
    </message>
    <message id="Keep Original Size">
        <source>Keep Original Size</source>
        <translation>Originalgröße behalten</translation>
    </message>
    <message id="LayoutLacksPictures">
        <source>Pictures of this layout could not be found: %1</source>
        <translation>Bilder dieses Layouts fehlen: %1</translation>
    </message>
    <message id="Loading...">
        <source>Loading…</source>
        <translation>Laden …</translation>
    </message>
    <message id="LoadingPhoto">
        <source>Loading</source>
        <translation>Laden</translation>
    </message>
    <message id="MarkPlace">
        <source>%1 percent across, %2 percent down</source>
        <translation>%1 Prozent von links, %2 Prozent von oben</translation>
    </message>
    <message id="MenuAddImage">
        <source>Add Image…</source>
        <translation>Bild hinzufügen …</translation>
    </message>
    <message id="MenuAddPhotos">
        <source>Add Photos…</source>
        <translation>Fotos hinzufügen …</translation>
    </message>
    <message id="MenuAddText">
        <source>Add Text</source>
        <translation>Text hinzufügen</translation>
    </message>
    <message id="MenuApplyLayout">
        <source>Apply Layout…</source>
        <translation>Layout anwenden …</translation>
    </message>
    <message id="MenuDelete">
        <source>Delete Watermark</source>
        <translation>Wasserzeichen löschen</translation>
    </message>
    <message id="MenuEdit">
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message id="MenuExport">
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message id="MenuPhotos">
        <source>&amp;Photos</source>
        <translation>&amp;Fotos</translation>
    </message>
    <message id="MenuPreferences">
        <source>Preferences…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit Tessaro</source>
        <translation>Tessaro beenden</translation>
    </message>
    <message id="MenuRemoveAll">
        <source>Remove All Photos</source>
        <translation>Alle Fotos entfernen</translation>
    </message>
    <message id="MenuRemovePhoto">
        <source>Remove Photo</source>
        <translation>Foto entfernen</translation>
    </message>
    <message id="MenuSaveLayout">
        <source>Save Layout…</source>
        <translation>Layout sichern …</translation>
    </message>
    <message id="MenuSelectAll">
        <source>Select All Watermarks</source>
        <translation>Alle Wasserzeichen auswählen</translation>
    </message>
    <message id="MenuSnap">
        <source>Snap</source>
        <translation>Einrasten</translation>
    </message>
    <message id="MenuSnapToObjects">
        <source>Snap to Watermarks</source>
        <translation>An Wasserzeichen einrasten</translation>
    </message>
    <message id="MenuSnapToPhoto">
        <source>Snap to Photo</source>
        <translation>Am Foto einrasten</translation>
    </message>
    <message id="MenuView">
        <source>&amp;View</source>
        <translation>&amp;Darstellung</translation>
    </message>
    <message id="MenuWatermark">
        <source>&amp;Watermark</source>
        <translation>&amp;Wasserzeichen</translation>
    </message>
    <message id="MenuZoom">
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="NameRepetition">
        <source>Rename numbers the new files. Replace writes over the files that are there. The answer holds for the whole export.</source>
        <translation>Umbenennen nummeriert die neuen Dateien. Ersetzen überschreibt die vorhandenen. Die Antwort gilt für den ganzen Export.</translation>
    </message>
    <message id="NameRepetitionTitle">
        <source>A file named %1 is there already</source>
        <translation>Eine Datei mit dem Namen %1 gibt es schon</translation>
    </message>
    <message id="No Change">
        <source>No Change</source>
        <translation>Unverändert</translation>
    </message>
    <message id="No Picture">
        <source>Its file was moved or deleted. The other photos are exported.</source>
        <translation>Seine Datei wurde verschoben oder gelöscht. Die anderen Fotos werden exportiert.</translation>
    </message>
    <message id="No Picture Title">
        <source>A photo is missing</source>
        <translation>Ein Foto fehlt</translation>
    </message>
    <message id="NoLayout">
        <source>No layout could be read there.</source>
        <translation>Dort war kein Layout zu lesen.</translation>
    </message>
    <message id="NoMarkShows">
        <source>No mark shows on the photo.</source>
        <translation>Auf dem Foto ist kein Wasserzeichen zu sehen.</translation>
    </message>
    <message id="NoOutputName">
        <source>Without a name nothing is exported</source>
        <translation>Ohne Namen wird nichts exportiert</translation>
    </message>
    <message id="NotWritten" numerus="yes">
        <source>%n photos were not exported</source>
        <translation>
            <numerusform>%n Foto wurde nicht exportiert</numerusform>
            <numerusform>%n Fotos wurden nicht exportiert</numerusform>
        </translation>
    </message>
    <message id="Number">
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="OutputName">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="PaletteHint">
        <source>Click it or drag it into the name</source>
        <translation>Anklicken oder in den Namen ziehen</translation>
    </message>
    <message id="PhotoBigger">
        <source>The output would be larger than %1 × %2 pixels. That takes long and much memory.</source>
        <translation>Die Ausgabe wäre größer als %1 × %2 Pixel. Das dauert lange und braucht viel Speicher.</translation>
    </message>
    <message id="PhotoBiggerTitle">
        <source>Very large photos</source>
        <translation>Sehr große Fotos</translation>
    </message>
    <message id="PhotoCount" numerus="yes">
        <source>%n photos</source>
        <translation>
            <numerusform>%n Foto</numerusform>
            <numerusform>%n Fotos</numerusform>
        </translation>
    </message>
    <message id="PhotoUnreadable">
        <source>This photo cannot be read</source>
        <translation>Dieses Foto lässt sich nicht lesen</translation>
    </message>
    <message id="Photos">
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message id="Pictures">
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message id="Pixels">
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message id="PreferNoApplyTip">
        <source>Apply layouts without asking</source>
        <translation>Layouts ohne Nachfrage anwenden</translation>
    </message>
    <message id="PreferNoRemoveTip">
        <source>Remove layouts without asking</source>
        <translation>Layouts ohne Nachfrage entfernen</translation>
    </message>
    <message id="PreferShowResult">
        <source>Show the result after an export</source>
        <translation>Ergebnis nach einem Export zeigen</translation>
    </message>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="PreviewName">
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message id="Remove">
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message id="RemoveAll">
        <source>Remove All</source>
        <translation>Alle entfernen</translation>
    </message>
    <message id="RemoveAllPhotos">
        <source>The watermarks go with the last photo.</source>
        <translation>Mit dem letzten Foto gehen auch die Wasserzeichen.</translation>
    </message>
    <message id="RemoveAllPhotosTitle">
        <source>Remove all photos?</source>
        <translation>Alle Fotos entfernen?</translation>
    </message>
    <message id="Rename">
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message id="Replace">
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message id="Resize">
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message id="SampleText">
        <source>Sample Text</source>
        <translation>Beispieltext</translation>
    </message>
    <message id="SaveLayoutName">
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message id="SaveLayoutTitle">
        <source>Save Layout</source>
        <translation>Layout sichern</translation>
    </message>
    <message id="ShowFile">
        <source>Show File</source>
        <translation>Datei anzeigen</translation>
    </message>
    <message id="Source don't exist">
        <source>Some photos are gone</source>
        <translation>Einige Fotos sind verschwunden</translation>
    </message>
    <message id="SourceIsGone">
        <source>The file of the photo is no longer there.</source>
        <translation>Die Datei des Fotos ist nicht mehr da.</translation>
    </message>
    <message id="StartButton">
        <source>Add Photos…</source>
        <translation>Fotos hinzufügen …</translation>
    </message>
    <message id="StartHint">
        <source>or drop them here</source>
        <translation>oder hier ablegen</translation>
    </message>
    <message id="StartTitle">
        <source>Put your mark on your photos</source>
        <translation>Setzen Sie Ihr Zeichen auf Ihre Fotos</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message id="Text Watermark">
        <source>Text Watermark</source>
        <translation>Text-Wasserzeichen</translation>
    </message>
    <message id="The file holds the raw data of a camera's sensor, which is not read yet.">
        <source>The file holds the raw data of a camera's sensor, which is not read yet.</source>
        <translation>Die Datei enthält die Rohdaten eines Kamerasensors; diese werden noch nicht gelesen.</translation>
    </message>
    <message id="The file lacks the mark of its end, and is otherwise whole.">
        <source>The file lacks the mark of its end, and is otherwise whole.</source>
        <translation>Der Datei fehlt die Endmarke; sonst ist sie vollständig.</translation>
    </message>
    <message id="The picture has %1 × %2 pixels, which is more than can be read.">
        <source>The picture has %1 × %2 pixels, which is more than can be read.</source>
        <translation>Das Bild hat %1 × %2 Pixel; so viele lassen sich nicht lesen.</translation>
    </message>
    <message id="There is not enough memory for the photo.">
        <source>There is not enough memory for the photo.</source>
        <translation>Der Speicher reicht für das Foto nicht aus.</translation>
    </message>
    <message id="UPPERCASE">
        <source>UPPERCASE</source>
        <translation>GROSSBUCHSTABEN</translation>
    </message>
    <message id="WarningCancel">
        <source>Photos that are written already stay.</source>
        <translation>Schon geschriebene Fotos bleiben.</translation>
    </message>
    <message id="can'tAddRepeatedly">
        <source>Some photos are in the list already</source>
        <translation>Einige Fotos sind schon in der Liste</translation>
    </message>
    <message id="delete no source file image">
        <source>Their files were moved or deleted, so they were taken off the list.</source>
        <translation>Ihre Dateien wurden verschoben oder gelöscht; sie wurden aus der Liste genommen.</translation>
    </message>
    <message id="imagesFiltered">
        <source>They were not added again.</source>
        <translation>Sie wurden nicht noch einmal hinzugefügt.</translation>
    </message>
    <message id="lowercase">
        <source>lowercase</source>
        <translation>kleinbuchstaben</translation>
    </message>
    <message id="tfByFitHeightSize">
        <source>Greatest height</source>
        <translation>Größte Höhe</translation>
    </message>
    <message id="tfByFitWidthSize">
        <source>Greatest width</source>
        <translation>Größte Breite</translation>
    </message>
    <message id="tfByHeight">
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message id="tfByPercentage">
        <source>Percentage</source>
        <translation>Prozent</translation>
    </message>
    <message id="tfByWidth">
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message id="AllFiles">
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message id="%1 is not a folder.">
        <source>%1 is not a folder.</source>
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message id="A file of the name %1 has come to be there.">
        <source>A file of the name %1 has come to be there.</source>
        <translation>Eine Datei mit dem Namen %1 ist inzwischen dort.</translation>
    </message>
    <message id="Metadata of other makers was left out: %1.">
        <source>Metadata of other makers was left out: %1.</source>
        <translation>Metadaten anderer Hersteller wurden weggelassen: %1.</translation>
    </message>
    <message id="%1 is one of the originals and is not written to.">
        <source>%1 is one of the originals and is not written to.</source>
        <translation>%1 ist eines der Originale und wird nicht überschrieben.</translation>
    </message>
    <message id="A folder stands under the name %1.">
        <source>A folder stands under the name %1.</source>
        <translation>Unter dem Namen %1 gibt es schon einen Ordner.</translation>
    </message>
    <message id="A name cannot begin with a full stop.">
        <source>A name cannot begin with a full stop.</source>
        <translation>Ein Name darf nicht mit einem Punkt beginnen.</translation>
    </message>
    <message id="A name cannot hold the character &quot;/&quot;.">
        <source>A name cannot hold the character "/".</source>
        <translation>Ein Name darf das Zeichen „/“ nicht enthalten.</translation>
    </message>
    <message id="Drawing the file takes longer than 10 seconds.">
        <source>Drawing the file takes longer than 10 seconds.</source>
        <translation>Das Zeichnen der Datei dauert länger als 10 Sekunden.</translation>
    </message>
    <message id="Drawing the file takes more memory than it may have.">
        <source>Drawing the file takes more memory than it may have.</source>
        <translation>Das Zeichnen der Datei braucht mehr Speicher, als erlaubt ist.</translation>
    </message>
    <message id="MenuDown">
        <source>Send Backward</source>
        <translation>Nach hinten</translation>
    </message>
    <message id="MenuLarger">
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message id="MenuSmaller">
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message id="MenuTurnLeft">
        <source>Turn Left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message id="MenuTurnRight">
        <source>Turn Right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message id="MenuUp">
        <source>Bring Forward</source>
        <translation>Nach vorn</translation>
    </message>
    <message id="MenuZoomIn">
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message id="MenuZoomOut">
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message id="The disk is full.">
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message id="The document is protected by a password.">
        <source>The document is protected by a password.</source>
        <translation>Das Dokument ist durch ein Kennwort geschützt.</translation>
    </message>
    <message id="The drawing has no size, or cannot be read.">
        <source>The drawing has no size, or cannot be read.</source>
        <translation>Die Zeichnung hat keine Größe oder lässt sich nicht lesen.</translation>
    </message>
    <message id="The export was cancelled.">
        <source>The export was cancelled.</source>
        <translation>Der Export wurde abgebrochen.</translation>
    </message>
    <message id="The file could not be written: %1.">
        <source>The file could not be written: %1.</source>
        <translation>Die Datei konnte nicht geschrieben werden: %1.</translation>
    </message>
    <message id="The file is damaged (%1).">
        <source>The file is damaged (%1).</source>
        <translation>Die Datei ist beschädigt (%1).</translation>
    </message>
    <message id="The file holds %1 frames, of which only the first %2 can be read.">
        <source>The file holds %1 frames, of which only the first %2 can be read.</source>
        <translation>Die Datei enthält %1 Bilder, von denen nur die ersten %2 gelesen werden können.</translation>
    </message>
    <message id="The file is damaged: its picture cannot be read to the end.">
        <source>The file is damaged: its picture cannot be read to the end.</source>
        <translation>Die Datei ist beschädigt: ihr Bild lässt sich nicht bis zum Ende lesen.</translation>
    </message>
    <message id="The file is damaged, or is not what its name says.">
        <source>The file is damaged, or is not what its name says.</source>
        <translation>Die Datei ist beschädigt oder nicht das, was ihr Name sagt.</translation>
    </message>
    <message id="The file is damaged: it breaks off before its end (%1).">
        <source>The file is damaged: it breaks off before its end (%1).</source>
        <translation>Die Datei ist beschädigt: Sie bricht vor ihrem Ende ab (%1).</translation>
    </message>
    <message id="The file is empty.">
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message id="The file is not a PDF document.">
        <source>The file is not a PDF document.</source>
        <translation>Die Datei ist kein PDF-Dokument.</translation>
    </message>
    <message id="The file is not a PostScript drawing with a size.">
        <source>The file is not a PostScript drawing with a size.</source>
        <translation>Die Datei ist keine PostScript-Zeichnung mit einer Größe.</translation>
    </message>
    <message id="The file is not a picture that can be read.">
        <source>The file is not a picture that can be read.</source>
        <translation>Die Datei ist kein lesbares Bild.</translation>
    </message>
    <message id="The file may not be read: permission is missing.">
        <source>The file may not be read: permission is missing.</source>
        <translation>Die Datei darf nicht gelesen werden: Die Berechtigung fehlt.</translation>
    </message>
    <message id="The file's name is not in UTF-8; rename it.">
        <source>The file's name is not in UTF-8; rename it.</source>
        <translation>Der Name der Datei ist nicht in UTF-8; bitte benennen Sie sie um.</translation>
    </message>
    <message id="The folder %1 could not be made.">
        <source>The folder %1 could not be made.</source>
        <translation>Der Ordner %1 konnte nicht angelegt werden.</translation>
    </message>
    <message id="The folder %1 could not be written to.">
        <source>The folder %1 could not be written to.</source>
        <translation>In den Ordner %1 konnte nicht geschrieben werden.</translation>
    </message>
    <message id="The folder %1 does not exist.">
        <source>The folder %1 does not exist.</source>
        <translation>Den Ordner %1 gibt es nicht.</translation>
    </message>
    <message id="The folder %1 may not be written to.">
        <source>The folder %1 may not be written to.</source>
        <translation>In den Ordner %1 darf nicht geschrieben werden.</translation>
    </message>
    <message id="The name is empty.">
        <source>The name is empty.</source>
        <translation>Der Name ist leer.</translation>
    </message>
    <message id="The name is too long.">
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message id="The output would have %1 pixels, more than 20000 × 20000; make it smaller.">
        <source>The output would have %1 pixels, more than 20000 × 20000; make it smaller.</source>
        <translation>Das Ergebnis hätte %1 Pixel, mehr als 20000 × 20000; bitte kleiner wählen.</translation>
    </message>
    <message id="A JPEG picture has at most %1 pixels on a side; make it smaller, or choose another format.">
        <source>A JPEG picture has at most %1 pixels on a side; make it smaller, or choose another format.</source>
        <translation>Ein JPEG-Bild hat höchstens %1 Pixel an einer Seite; verkleinern Sie es, oder wählen Sie ein anderes Format.</translation>
    </message>
    <message id="The output would have no size.">
        <source>The output would have no size.</source>
        <translation>Das Ergebnis hätte keine Größe.</translation>
    </message>
    <message id="The photo could not be decoded (%1).">
        <source>The photo could not be decoded (%1).</source>
        <translation>Das Foto ließ sich nicht lesen (%1).</translation>
    </message>
    <message id="The photo could not be decoded.">
        <source>The photo could not be decoded.</source>
        <translation>Das Foto ließ sich nicht lesen.</translation>
    </message>
    <message id="The photo is in the list already.">
        <source>The photo is in the list already.</source>
        <translation>Das Foto ist schon in der Liste.</translation>
    </message>
    <message id="The photo's file is no longer there.">
        <source>The photo's file is no longer there.</source>
        <translation>Die Datei des Fotos ist nicht mehr da.</translation>
    </message>
    <message id="The profile %1 could not be put in its place.">
        <source>The profile %1 could not be put in its place.</source>
        <translation>Das Layout %1 konnte nicht an seinen Platz gelegt werden.</translation>
    </message>
    <message id="The profile %1 could not be written.">
        <source>The profile %1 could not be written.</source>
        <translation>Das Layout %1 konnte nicht geschrieben werden.</translation>
    </message>
    <message id="The program that draws such files is not installed.">
        <source>The program that draws such files is not installed.</source>
        <translation>Das Programm, das solche Dateien zeichnet, ist nicht installiert.</translation>
    </message>
    <message id="The run was stopped: %1 is there already.">
        <source>The run was stopped: %1 is there already.</source>
        <translation>Der Export wurde angehalten: %1 gibt es schon.</translation>
    </message>
    <message id="There is no photo to lay the marks out on.">
        <source>There is no photo to lay the marks out on.</source>
        <translation>Es gibt kein Foto, auf dem die Wasserzeichen liegen könnten.</translation>
    </message>
    <message id="There is no such file.">
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message id="This is a folder, not a photo.">
        <source>This is a folder, not a photo.</source>
        <translation>Das ist ein Ordner, kein Foto.</translation>
    </message>
    <message id="This is not a file.">
        <source>This is not a file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message id="“%1” has a character in it that no file name can have.">
        <source>“%1” has a character in it that no file name can have.</source>
        <translation>„%1“ enthält ein Zeichen, das kein Dateiname haben kann.</translation>
    </message>
    <message id="“%1” has a slash in it, which no file name can have.">
        <source>“%1” has a slash in it, which no file name can have.</source>
        <translation>„%1“ enthält einen Schrägstrich, den kein Dateiname haben kann.</translation>
    </message>
</context>
</TS>
