<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="AddPhotos">
        <source>Add…</source>
        <translation>Add…</translation>
    </message>
    <message id="Adjust">
        <source>Adjust</source>
        <translation>Adjust</translation>
    </message>
    <message id="AndMorePhotos" numerus="yes">
        <source>… and %n more photos</source>
        <translation>
            <numerusform>… and %n more photo</numerusform>
            <numerusform>… and %n more photos</numerusform>
        </translation>
    </message>
    <message id="Batch">
        <source>Batch</source>
        <translation>Batch</translation>
    </message>
    <message id="BatchAdjustName">
        <source>Change all photos or the selected one</source>
        <translation>Change all photos or the selected one</translation>
    </message>
    <message id="BmpHoldsTiff">
        <source>The file holds TIFF data</source>
        <translation>The file holds TIFF data</translation>
    </message>
    <message id="By Height">
        <source>By Height</source>
        <translation>By Height</translation>
    </message>
    <message id="By Percentage">
        <source>By Percentage</source>
        <translation>By Percentage</translation>
    </message>
    <message id="By Width">
        <source>By Width</source>
        <translation>By Width</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="ChooseFolder">
        <source>Choose a Folder</source>
        <translation>Choose a Folder</translation>
    </message>
    <message id="ChooseImage">
        <source>Choose an Image</source>
        <translation>Choose an Image</translation>
    </message>
    <message id="ChooseLayout">
        <source>Choose a Layout</source>
        <translation>Choose a Layout</translation>
    </message>
    <message id="ChoosePhoto">
        <source>Choose Photos</source>
        <translation>Choose Photos</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message id="ConfirmCancel">
        <source>Stop the export?</source>
        <translation>Stop the export?</translation>
    </message>
    <message id="ConfirmQuit">
        <source>Stop the export and quit?</source>
        <translation>Stop the export and quit?</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message id="Converting...">
        <source>Exporting…</source>
        <translation>Exporting…</translation>
    </message>
    <message id="Date Created">
        <source>Date Created</source>
        <translation>Date Created</translation>
    </message>
    <message id="Date Modified">
        <source>Date Modified</source>
        <translation>Date Modified</translation>
    </message>
    <message id="Do you want to cover watermarks">
        <source>The layout takes the place of the watermarks on the photos.</source>
        <translation>The layout takes the place of the watermarks on the photos.</translation>
    </message>
    <message id="Do you want to cover watermarks title">
        <source>Replace the present watermarks?</source>
        <translation>Replace the present watermarks?</translation>
    </message>
    <message id="DonotShowApplyProfileTipAgain">
        <source>Do not ask again</source>
        <translation>Do not ask again</translation>
    </message>
    <message id="DontShowAgain">
        <source>Do not show this again</source>
        <translation>Do not show this again</translation>
    </message>
    <message id="Example">
        <source>Example</source>
        <translation>Example</translation>
    </message>
    <message id="ExportCounts">
        <source>%1 written, %2 failed, %3 skipped</source>
        <translation>%1 written, %2 failed, %3 skipped</translation>
    </message>
    <message id="ExportDone">
        <source>The photos are exported</source>
        <translation>The photos are exported</translation>
    </message>
    <message id="ExportDonePartly">
        <source>%1 of %2 photos are exported</source>
        <translation>%1 of %2 photos are exported</translation>
    </message>
    <message id="ExportInhibit">
        <source>Photos are being exported</source>
        <translation>Photos are being exported</translation>
    </message>
    <message id="ExportStop">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="ExportTitle" numerus="yes">
        <source>Export %n photos</source>
        <translation>
            <numerusform>Export %n photo</numerusform>
            <numerusform>Export %n photos</numerusform>
        </translation>
    </message>
    <message id="FailedShowFile">
        <source>This file could not be shown: </source>
        <translation>This file could not be shown: </translation>
    </message>
    <message id="FileExisted">
        <source>A layout named “%1” exists already</source>
        <translation>A layout named “%1” exists already</translation>
    </message>
    <message id="FileExistedTip">
        <source>Replacing it cannot be undone.</source>
        <translation>Replacing it cannot be undone.</translation>
    </message>
    <message id="FilesRefused">
        <source>Files that gave no photo: %1</source>
        <translation>Files that gave no photo: %1</translation>
    </message>
    <message id="Fit">
        <source>Fit</source>
        <translation>Fit</translation>
    </message>
    <message id="Fit Size">
        <source>Fit Size</source>
        <translation>Fit Size</translation>
    </message>
    <message id="FolderIsGone">
        <source>The folder %1 is no longer there.</source>
        <translation>The folder %1 is no longer there.</translation>
    </message>
    <message id="FolderIsReadOnly">
        <source>The folder %1 cannot be written to.</source>
        <translation>The folder %1 cannot be written to.</translation>
    </message>
    <message id="Format">
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message id="Group Watermark">
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message id="Image Watermark">
        <source>Image Watermark</source>
        <translation>Image Watermark</translation>
    </message>
    <message id="Keep Original Size">
        <source>Keep Original Size</source>
        <translation>Keep Original Size</translation>
    </message>
    <message id="LayoutLacksPictures">
        <source>Pictures of this layout could not be found: %1</source>
        <translation>Pictures of this layout could not be found: %1</translation>
    </message>
    <message id="Loading...">
        <source>Loading…</source>
        <translation>Loading…</translation>
    </message>
    <message id="LoadingPhoto">
        <source>Loading</source>
        <translation>Loading</translation>
    </message>
    <message id="MarkPlace">
        <source>%1 percent across, %2 percent down</source>
        <translation>%1 percent across, %2 percent down</translation>
    </message>
    <message id="MenuAddImage">
        <source>Add Image…</source>
        <translation>Add Image…</translation>
    </message>
    <message id="MenuAddPhotos">
        <source>Add Photos…</source>
        <translation>Add Photos…</translation>
    </message>
    <message id="MenuAddText">
        <source>Add Text</source>
        <translation>Add Text</translation>
    </message>
    <message id="MenuApplyLayout">
        <source>Apply Layout…</source>
        <translation>Apply Layout…</translation>
    </message>
    <message id="MenuDelete">
        <source>Delete Watermark</source>
        <translation>Delete Watermark</translation>
    </message>
    <message id="MenuEdit">
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message id="MenuExport">
        <source>Export…</source>
        <translation>Export…</translation>
    </message>
    <message id="MenuPhotos">
        <source>&amp;Photos</source>
        <translation>&amp;Photos</translation>
    </message>
    <message id="MenuPreferences">
        <source>Preferences…</source>
        <translation>Preferences…</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit Tessaro</source>
        <translation>Quit Tessaro</translation>
    </message>
    <message id="MenuRemoveAll">
        <source>Remove All Photos</source>
        <translation>Remove All Photos</translation>
    </message>
    <message id="MenuRemovePhoto">
        <source>Remove Photo</source>
        <translation>Remove Photo</translation>
    </message>
    <message id="MenuSaveLayout">
        <source>Save Layout…</source>
        <translation>Save Layout…</translation>
    </message>
    <message id="MenuSelectAll">
        <source>Select All Watermarks</source>
        <translation>Select All Watermarks</translation>
    </message>
    <message id="MenuSnap">
        <source>Snap</source>
        <translation>Snap</translation>
    </message>
    <message id="MenuSnapToObjects">
        <source>Snap to Watermarks</source>
        <translation>Snap to Watermarks</translation>
    </message>
    <message id="MenuSnapToPhoto">
        <source>Snap to Photo</source>
        <translation>Snap to Photo</translation>
    </message>
    <message id="MenuView">
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message id="MenuWatermark">
        <source>&amp;Watermark</source>
        <translation>&amp;Watermark</translation>
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
        <translation>Rename numbers the new files. Replace writes over the files that are there. The answer holds for the whole export.</translation>
    </message>
    <message id="NameRepetitionTitle">
        <source>A file named %1 is there already</source>
        <translation>A file named %1 is there already</translation>
    </message>
    <message id="No Change">
        <source>No Change</source>
        <translation>No Change</translation>
    </message>
    <message id="No Picture">
        <source>Its file was moved or deleted. The other photos are exported.</source>
        <translation>Its file was moved or deleted. The other photos are exported.</translation>
    </message>
    <message id="No Picture Title">
        <source>A photo is missing</source>
        <translation>A photo is missing</translation>
    </message>
    <message id="NoLayout">
        <source>No layout could be read there.</source>
        <translation>No layout could be read there.</translation>
    </message>
    <message id="NoMarkShows">
        <source>No mark shows on the photo.</source>
        <translation>No mark shows on the photo.</translation>
    </message>
    <message id="NoOutputName">
        <source>Without a name nothing is exported</source>
        <translation>Without a name nothing is exported</translation>
    </message>
    <message id="NotWritten" numerus="yes">
        <source>%n photos were not exported</source>
        <translation>
            <numerusform>%n photo was not exported</numerusform>
            <numerusform>%n photos were not exported</numerusform>
        </translation>
    </message>
    <message id="Number">
        <source>Number</source>
        <translation>Number</translation>
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
        <translation>Click it or drag it into the name</translation>
    </message>
    <message id="PhotoBigger">
        <source>The output would be larger than %1 × %2 pixels. That takes long and much memory.</source>
        <translation>The output would be larger than %1 × %2 pixels. That takes long and much memory.</translation>
    </message>
    <message id="PhotoBiggerTitle">
        <source>Very large photos</source>
        <translation>Very large photos</translation>
    </message>
    <message id="PhotoCount" numerus="yes">
        <source>%n photos</source>
        <translation>
            <numerusform>%n photo</numerusform>
            <numerusform>%n photos</numerusform>
        </translation>
    </message>
    <message id="PhotoUnreadable">
        <source>This photo cannot be read</source>
        <translation>This photo cannot be read</translation>
    </message>
    <message id="Photos">
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message id="Pictures">
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
    <message id="Pixels">
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message id="PreferNoApplyTip">
        <source>Apply layouts without asking</source>
        <translation>Apply layouts without asking</translation>
    </message>
    <message id="PreferNoRemoveTip">
        <source>Remove layouts without asking</source>
        <translation>Remove layouts without asking</translation>
    </message>
    <message id="PreferShowResult">
        <source>Show the result after an export</source>
        <translation>Show the result after an export</translation>
    </message>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message id="PreviewName">
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message id="Remove">
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message id="RemoveAll">
        <source>Remove All</source>
        <translation>Remove All</translation>
    </message>
    <message id="RemoveAllPhotos">
        <source>The watermarks go with the last photo.</source>
        <translation>The watermarks go with the last photo.</translation>
    </message>
    <message id="RemoveAllPhotosTitle">
        <source>Remove all photos?</source>
        <translation>Remove all photos?</translation>
    </message>
    <message id="Rename">
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message id="Replace">
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message id="Resize">
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message id="SampleText">
        <source>Sample Text</source>
        <translation>Sample Text</translation>
    </message>
    <message id="SaveLayoutName">
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message id="SaveLayoutTitle">
        <source>Save Layout</source>
        <translation>Save Layout</translation>
    </message>
    <message id="ShowFile">
        <source>Show File</source>
        <translation>Show File</translation>
    </message>
    <message id="Source don't exist">
        <source>Some photos are gone</source>
        <translation>Some photos are gone</translation>
    </message>
    <message id="SourceIsGone">
        <source>The file of the photo is no longer there.</source>
        <translation>The file of the photo is no longer there.</translation>
    </message>
    <message id="StartButton">
        <source>Add Photos…</source>
        <translation>Add Photos…</translation>
    </message>
    <message id="StartHint">
        <source>or drop them here</source>
        <translation>or drop them here</translation>
    </message>
    <message id="StartTitle">
        <source>Put your mark on your photos</source>
        <translation>Put your mark on your photos</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="Text Watermark">
        <source>Text Watermark</source>
        <translation>Text Watermark</translation>
    </message>
    <message id="The file holds the raw data of a camera's sensor, which is not read yet.">
        <source>The file holds the raw data of a camera's sensor, which is not read yet.</source>
        <translation>The file holds the raw data of a camera's sensor, which is not read yet.</translation>
    </message>
    <message id="The file lacks the mark of its end, and is otherwise whole.">
        <source>The file lacks the mark of its end, and is otherwise whole.</source>
        <translation>The file lacks the mark of its end, and is otherwise whole.</translation>
    </message>
    <message id="The picture has %1 × %2 pixels, which is more than can be read.">
        <source>The picture has %1 × %2 pixels, which is more than can be read.</source>
        <translation>The picture has %1 × %2 pixels, which is more than can be read.</translation>
    </message>
    <message id="There is not enough memory for the photo.">
        <source>There is not enough memory for the photo.</source>
        <translation>There is not enough memory for the photo.</translation>
    </message>
    <message id="UPPERCASE">
        <source>UPPERCASE</source>
        <translation>UPPERCASE</translation>
    </message>
    <message id="WarningCancel">
        <source>Photos that are written already stay.</source>
        <translation>Photos that are written already stay.</translation>
    </message>
    <message id="can'tAddRepeatedly">
        <source>Some photos are in the list already</source>
        <translation>Some photos are in the list already</translation>
    </message>
    <message id="delete no source file image">
        <source>Their files were moved or deleted, so they were taken off the list.</source>
        <translation>Their files were moved or deleted, so they were taken off the list.</translation>
    </message>
    <message id="imagesFiltered">
        <source>They were not added again.</source>
        <translation>They were not added again.</translation>
    </message>
    <message id="lowercase">
        <source>lowercase</source>
        <translation>lowercase</translation>
    </message>
    <message id="tfByFitHeightSize">
        <source>Greatest height</source>
        <translation>Greatest height</translation>
    </message>
    <message id="tfByFitWidthSize">
        <source>Greatest width</source>
        <translation>Greatest width</translation>
    </message>
    <message id="tfByHeight">
        <source>Height</source>
        <translation>Height</translation>
    </message>
    <message id="tfByPercentage">
        <source>Percentage</source>
        <translation>Percentage</translation>
    </message>
    <message id="tfByWidth">
        <source>Width</source>
        <translation>Width</translation>
    </message>
    <message id="AllFiles">
        <source>All files</source>
        <translation>All files</translation>
    </message>
    <message id="%1 is not a folder.">
        <source>%1 is not a folder.</source>
        <translation>%1 is not a folder.</translation>
    </message>
    <message id="A file of the name %1 has come to be there.">
        <source>A file of the name %1 has come to be there.</source>
        <translation>A file of the name %1 has come to be there.</translation>
    </message>
    <message id="Metadata of other makers was left out: %1.">
        <source>Metadata of other makers was left out: %1.</source>
        <translation>Metadata of other makers was left out: %1.</translation>
    </message>
    <message id="%1 is one of the originals and is not written to.">
        <source>%1 is one of the originals and is not written to.</source>
        <translation>%1 is one of the originals and is not written to.</translation>
    </message>
    <message id="A folder stands under the name %1.">
        <source>A folder stands under the name %1.</source>
        <translation>A folder stands under the name %1.</translation>
    </message>
    <message id="A name cannot begin with a full stop.">
        <source>A name cannot begin with a full stop.</source>
        <translation>A name cannot begin with a full stop.</translation>
    </message>
    <message id="A name cannot hold the character &quot;/&quot;.">
        <source>A name cannot hold the character "/".</source>
        <translation>A name cannot hold the character "/".</translation>
    </message>
    <message id="Drawing the file takes longer than 10 seconds.">
        <source>Drawing the file takes longer than 10 seconds.</source>
        <translation>Drawing the file takes longer than 10 seconds.</translation>
    </message>
    <message id="Drawing the file takes more memory than it may have.">
        <source>Drawing the file takes more memory than it may have.</source>
        <translation>Drawing the file takes more memory than it may have.</translation>
    </message>
    <message id="MenuDown">
        <source>Send Backward</source>
        <translation>Send Backward</translation>
    </message>
    <message id="MenuLarger">
        <source>Larger</source>
        <translation>Larger</translation>
    </message>
    <message id="MenuSmaller">
        <source>Smaller</source>
        <translation>Smaller</translation>
    </message>
    <message id="MenuTurnLeft">
        <source>Turn Left</source>
        <translation>Turn Left</translation>
    </message>
    <message id="MenuTurnRight">
        <source>Turn Right</source>
        <translation>Turn Right</translation>
    </message>
    <message id="MenuUp">
        <source>Bring Forward</source>
        <translation>Bring Forward</translation>
    </message>
    <message id="MenuZoomIn">
        <source>Zoom In</source>
        <translation>Zoom In</translation>
    </message>
    <message id="MenuZoomOut">
        <source>Zoom Out</source>
        <translation>Zoom Out</translation>
    </message>
    <message id="The disk is full.">
        <source>The disk is full.</source>
        <translation>The disk is full.</translation>
    </message>
    <message id="The document is protected by a password.">
        <source>The document is protected by a password.</source>
        <translation>The document is protected by a password.</translation>
    </message>
    <message id="The drawing has no size, or cannot be read.">
        <source>The drawing has no size, or cannot be read.</source>
        <translation>The drawing has no size, or cannot be read.</translation>
    </message>
    <message id="The export was cancelled.">
        <source>The export was cancelled.</source>
        <translation>The export was cancelled.</translation>
    </message>
    <message id="The file could not be written: %1.">
        <source>The file could not be written: %1.</source>
        <translation>The file could not be written: %1.</translation>
    </message>
    <message id="The file is damaged (%1).">
        <source>The file is damaged (%1).</source>
        <translation>The file is damaged (%1).</translation>
    </message>
    <message id="The file holds %1 frames, of which only the first %2 can be read.">
        <source>The file holds %1 frames, of which only the first %2 can be read.</source>
        <translation>The file holds %1 frames, of which only the first %2 can be read.</translation>
    </message>
    <message id="The file is damaged: its picture cannot be read to the end.">
        <source>The file is damaged: its picture cannot be read to the end.</source>
        <translation>The file is damaged: its picture cannot be read to the end.</translation>
    </message>
    <message id="The file is damaged, or is not what its name says.">
        <source>The file is damaged, or is not what its name says.</source>
        <translation>The file is damaged, or is not what its name says.</translation>
    </message>
    <message id="The file is damaged: it breaks off before its end (%1).">
        <source>The file is damaged: it breaks off before its end (%1).</source>
        <translation>The file is damaged: it breaks off before its end (%1).</translation>
    </message>
    <message id="The file is empty.">
        <source>The file is empty.</source>
        <translation>The file is empty.</translation>
    </message>
    <message id="The file is not a PDF document.">
        <source>The file is not a PDF document.</source>
        <translation>The file is not a PDF document.</translation>
    </message>
    <message id="The file is not a PostScript drawing with a size.">
        <source>The file is not a PostScript drawing with a size.</source>
        <translation>The file is not a PostScript drawing with a size.</translation>
    </message>
    <message id="The file is not a picture that can be read.">
        <source>The file is not a picture that can be read.</source>
        <translation>The file is not a picture that can be read.</translation>
    </message>
    <message id="The file may not be read: permission is missing.">
        <source>The file may not be read: permission is missing.</source>
        <translation>The file may not be read: permission is missing.</translation>
    </message>
    <message id="The file's name is not in UTF-8; rename it.">
        <source>The file's name is not in UTF-8; rename it.</source>
        <translation>The file's name is not in UTF-8; rename it.</translation>
    </message>
    <message id="The folder %1 could not be made.">
        <source>The folder %1 could not be made.</source>
        <translation>The folder %1 could not be made.</translation>
    </message>
    <message id="The folder %1 could not be written to.">
        <source>The folder %1 could not be written to.</source>
        <translation>The folder %1 could not be written to.</translation>
    </message>
    <message id="The folder %1 does not exist.">
        <source>The folder %1 does not exist.</source>
        <translation>The folder %1 does not exist.</translation>
    </message>
    <message id="The folder %1 may not be written to.">
        <source>The folder %1 may not be written to.</source>
        <translation>The folder %1 may not be written to.</translation>
    </message>
    <message id="The name is empty.">
        <source>The name is empty.</source>
        <translation>The name is empty.</translation>
    </message>
    <message id="The name is too long.">
        <source>The name is too long.</source>
        <translation>The name is too long.</translation>
    </message>
    <message id="The output would have %1 pixels, more than 20000 × 20000; make it smaller.">
        <source>The output would have %1 pixels, more than 20000 × 20000; make it smaller.</source>
        <translation>The output would have %1 pixels, more than 20000 × 20000; make it smaller.</translation>
    </message>
    <message id="A JPEG picture has at most %1 pixels on a side; make it smaller, or choose another format.">
        <source>A JPEG picture has at most %1 pixels on a side; make it smaller, or choose another format.</source>
        <translation>A JPEG picture has at most %1 pixels on a side; make it smaller, or choose another format.</translation>
    </message>
    <message id="The output would have no size.">
        <source>The output would have no size.</source>
        <translation>The output would have no size.</translation>
    </message>
    <message id="The photo could not be decoded (%1).">
        <source>The photo could not be decoded (%1).</source>
        <translation>The photo could not be decoded (%1).</translation>
    </message>
    <message id="The photo could not be decoded.">
        <source>The photo could not be decoded.</source>
        <translation>The photo could not be decoded.</translation>
    </message>
    <message id="The photo is in the list already.">
        <source>The photo is in the list already.</source>
        <translation>The photo is in the list already.</translation>
    </message>
    <message id="The photo's file is no longer there.">
        <source>The photo's file is no longer there.</source>
        <translation>The photo's file is no longer there.</translation>
    </message>
    <message id="The profile %1 could not be put in its place.">
        <source>The profile %1 could not be put in its place.</source>
        <translation>The profile %1 could not be put in its place.</translation>
    </message>
    <message id="The profile %1 could not be written.">
        <source>The profile %1 could not be written.</source>
        <translation>The profile %1 could not be written.</translation>
    </message>
    <message id="The program that draws such files is not installed.">
        <source>The program that draws such files is not installed.</source>
        <translation>The program that draws such files is not installed.</translation>
    </message>
    <message id="The run was stopped: %1 is there already.">
        <source>The run was stopped: %1 is there already.</source>
        <translation>The run was stopped: %1 is there already.</translation>
    </message>
    <message id="There is no photo to lay the marks out on.">
        <source>There is no photo to lay the marks out on.</source>
        <translation>There is no photo to lay the marks out on.</translation>
    </message>
    <message id="There is no such file.">
        <source>There is no such file.</source>
        <translation>There is no such file.</translation>
    </message>
    <message id="This is a folder, not a photo.">
        <source>This is a folder, not a photo.</source>
        <translation>This is a folder, not a photo.</translation>
    </message>
    <message id="This is not a file.">
        <source>This is not a file.</source>
        <translation>This is not a file.</translation>
    </message>
    <message id="“%1” has a character in it that no file name can have.">
        <source>“%1” has a character in it that no file name can have.</source>
        <translation>“%1” has a character in it that no file name can have.</translation>
    </message>
    <message id="“%1” has a slash in it, which no file name can have.">
        <source>“%1” has a slash in it, which no file name can have.</source>
        <translation>“%1” has a slash in it, which no file name can have.</translation>
    </message>
</context>
</TS>
