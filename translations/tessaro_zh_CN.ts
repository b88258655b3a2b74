<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="AddPhotos">
        <source>Add…</source>
        <translation>添加…</translation>
    </message>
    <message id="Adjust">
        <source>Adjust</source>
        <translation>单张</translation>
    </message>
    <message id="AndMorePhotos" numerus="yes">
        <source>… and %n more photos</source>
        <translation>
            <numerusform>……以及另外 %n 张照片</numerusform>
        </translation>
    </message>
    <message id="Batch">
        <source>Batch</source>
        <translation>批量</translation>
    </message>
    <message id="BatchAdjustName">
        <source>Change all photos or the selected one</source>
        <translation>更改所有照片或仅所选照片</translation>
    </message>
    <message id="BmpHoldsTiff">
        <source>The file holds TIFF data</source>
        <translation>文件内容为 TIFF 数据</translation>
    </message>
    <message id="By Height">
        <source>By Height</source>
        <translation>按高度</translation>
    </message>
    <message id="By Percentage">
        <source>By Percentage</source>
        <translation>按百分比</translation>
    </message>
    <message id="By Width">
        <source>By Width</source>
        <translation>按宽度</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message id="ChooseFolder">
        <source>Choose a Folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message id="ChooseImage">
        <source>Choose an Image</source>
        <translation>选择图片</translation>
    </message>
    <message id="ChooseLayout">
        <source>Choose a Layout</source>
        <translation>选择版式</translation>
    </message>
    <message id="ChoosePhoto">
        <source>Choose Photos</source>
        <translation>选择照片</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message id="ConfirmCancel">
        <source>Stop the export?</source>
        <translation>停止导出？</translation>
    </message>
    <message id="ConfirmQuit">
        <source>Stop the export and quit?</source>
        <translation>停止导出并退出？</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message id="Converting...">
        <source>Exporting…</source>
        <translation>正在导出…</translation>
    </message>
    <message id="Date Created">
        <source>Date Created</source>
        <translation>创建日期</translation>
    </message>
    <message id="Date Modified">
        <source>Date Modified</source>
        <translation>修改日期</translation>
    </message>
    <message id="Do you want to cover watermarks">
        <source>The layout takes the place of the watermarks on the photos.</source>
        <translation>该版式将取代照片上现有的水印。</translation>
    </message>
    <message id="Do you want to cover watermarks title">
        <source>Replace the present watermarks?</source>
        <translation>替换当前水印？</translation>
    </message>
    <message id="DonotShowApplyProfileTipAgain">
        <source>Do not ask again</source>
        <translation>不再询问</translation>
    </message>
    <message id="DontShowAgain">
        <source>Do not show this again</source>
        <translation>不再显示</translation>
    </message>
    <message id="Example">
        <source>Example</source>
        <translation>示例</translation>
    </message>
    <message id="ExportCounts">
        <source>%1 written, %2 failed, %3 skipped</source>
        <translation>已写入 %1 张，失败 %2 张，跳过 %3 张</translation>
    </message>
    <message id="ExportDone">
        <source>The photos are exported</source>
        <translation>照片已导出</translation>
    </message>
    <message id="ExportDonePartly">
        <source>%1 of %2 photos are exported</source>
        <translation>已导出 %1 张照片，共 %2 张</translation>
    </message>
    <message id="ExportInhibit">
        <source>Photos are being exported</source>
        <translation>正在导出照片</translation>
    </message>
    <message id="ExportStop">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="ExportTitle" numerus="yes">
        <source>Export %n photos</source>
        <translation>
            <numerusform>导出 %n 张照片</numerusform>
        </translation>
    </message>
    <message id="FailedShowFile">
        <source>This file could not be shown: </source>
        <translation>无法显示此文件：</translation>
    </message>
    <message id="FileExisted">
        <source>A layout named “%1” exists already</source>
        <translation>已有名为“%1”的版式</translation>
    </message>
    <message id="FileExistedTip">
        <source>Replacing it cannot be undone.</source>
        <translation>替换后无法撤销。</translation>
    </message>
    <message id="FilesRefused">
        <source>Files that gave no photo: %1</source>
        <translation>未能添加的文件：%1</translation>
    </message>
    <message id="Fit">
        <source>Fit</source>
        <translation>适合窗口</translation>
    </message>
    <message id="Fit Size">
        <source>Fit Size</source>
        <translation>适合尺寸</translation>
    </message>
    <message id="FolderIsGone">
        <source>The folder %1 is no longer there.</source>
        <translation>文件夹 %1 已不存在。</translation>
    </message>
    <message id="FolderIsReadOnly">
        <source>The folder %1 cannot be written to.</source>
        <translation>无法写入文件夹 %1。</translation>
    </message>
    <message id="Format">
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message id="Group Watermark">
        <source>Group</source>
        <translation>组合水印</translation>
    </message>
    <message id="Image Watermark">
        <source>Image Watermark</source>
        <translation>图片水印</translation>
    </message>
    <message id="Keep Original Size">
        <source>Keep Original Size</source>
        <translation>保持原始大小</translation>
    </message>
    <message id="LayoutLacksPictures">
        <source>Pictures of this layout could not be found: %1</source>
        <translation>找不到此版式的图片：%1</translation>
    </message>
    <message id="Loading...">
        <source>Loading…</source>
        <translation>正在载入…</translation>
    </message>
    <message id="LoadingPhoto">
        <source>Loading</source>
        <translation>正在载入</translation>
    </message>
    <message id="MarkPlace">
        <source>%1 percent across, %2 percent down</source>
        <translation>距左 %1%，距上 %2%</translation>
    </message>
    <message id="MenuAddImage">
        <source>Add Image…</source>
        <translation>添加图片…</translation>
    </message>
    <message id="MenuAddPhotos">
        <source>Add Photos…</source>
        <translation>添加照片…</translation>
    </message>
    <message id="MenuAddText">
        <source>Add Text</source>
        <translation>添加文字</translation>
    </message>
    <message id="MenuApplyLayout">
        <source>Apply Layout…</source>
        <translation>应用版式…</translation>
    </message>
    <message id="MenuDelete">
        <source>Delete Watermark</source>
        <translation>删除水印</translation>
    </message>
    <message id="MenuEdit">
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message id="MenuExport">
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message id="MenuPhotos">
        <source>&amp;Photos</source>
        <translation>照片(&amp;P)</translation>
    </message>
    <message id="MenuPreferences">
        <source>Preferences…</source>
        <translation>偏好设置…</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit Tessaro</source>
        <translation>退出 Tessaro</translation>
    </message>
    <message id="MenuRemoveAll">
        <source>Remove All Photos</source>
        <translation>移除所有照片</translation>
    </message>
    <message id="MenuRemovePhoto">
        <source>Remove Photo</source>
        <translation>移除照片</translation>
    </message>
    <message id="MenuSaveLayout">
        <source>Save Layout…</source>
        <translation>存储版式…</translation>
    </message>
    <message id="MenuSelectAll">
        <source>Select All Watermarks</source>
        <translation>选择所有水印</translation>
    </message>
    <message id="MenuSnap">
        <source>Snap</source>
        <translation>自动吸附</translation>
    </message>
    <message id="MenuSnapToObjects">
        <source>Snap to Watermarks</source>
        <translation>吸附到水印</translation>
    </message>
    <message id="MenuSnapToPhoto">
        <source>Snap to Photo</source>
        <translation>吸附到照片</translation>
    </message>
    <message id="MenuView">
        <source>&amp;View</source>
        <translation>显示(&amp;V)</translation>
    </message>
    <message id="MenuWatermark">
        <source>&amp;Watermark</source>
        <translation>水印(&amp;W)</translation>
    </message>
    <message id="MenuZoom">
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message id="NameRepetition">
        <source>Rename numbers the new files. Replace writes over the files that are there. The answer holds for the whole export.</source>
        <translation>“重命名”会为新文件编号，“替换”会覆盖现有文件。此选择适用于整个导出。</translation>
    </message>
    <message id="NameRepetitionTitle">
        <source>A file named %1 is there already</source>
        <translation>已存在名为 %1 的文件</translation>
    </message>
    <message id="No Change">
        <source>No Change</source>
        <translation>不更改</translation>
    </message>
    <message id="No Picture">
        <source>Its file was moved or deleted. The other photos are exported.</source>
        <translation>其文件已被移动或删除。其他照片将继续导出。</translation>
    </message>
    <message id="No Picture Title">
        <source>A photo is missing</source>
        <translation>照片缺失</translation>
    </message>
    <message id="NoLayout">
        <source>No layout could be read there.</source>
        <translation>无法从该处读取版式。</translation>
    </message>
    <message id="NoMarkShows">
        <source>No mark shows on the photo.</source>
        <translation>照片上看不到任何水印。</translation>
    </message>
    <message id="NoOutputName">
        <source>Without a name nothing is exported</source>
        <translation>没有名称则不会导出任何照片</translation>
    </message>
    <message id="NotWritten" numerus="yes">
        <source>%n photos were not exported</source>
        <translation>
            <numerusform>%n 张照片未导出</numerusform>
        </translation>
    </message>
    <message id="Number">
        <source>Number</source>
        <translation>编号</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>好</translation>
    </message>
    <message id="OutputName">
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message id="PaletteHint">
        <source>Click it or drag it into the name</source>
        <translation>点击或拖入名称</translation>
    </message>
    <message id="PhotoBigger">
        <source>The output would be larger than %1 × %2 pixels. That takes long and much memory.</source>
        <translation>输出将大于 %1 × %2 像素，需要较长时间和较多内存。</translation>
    </message>
    <message id="PhotoBiggerTitle">
        <source>Very large photos</source>
        <translation>照片非常大</translation>
    </message>
    <message id="PhotoCount" numerus="yes">
        <source>%n photos</source>
        <translation>
            <numerusform>%n 张照片</numerusform>
        </translation>
    </message>
    <message id="PhotoUnreadable">
        <source>This photo cannot be read</source>
        <translation>无法读取这张照片</translation>
    </message>
    <message id="Photos">
        <source>Photos</source>
        <translation>照片</translation>
    </message>
    <message id="Pictures">
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message id="Pixels">
        <source>pixels</source>
        <translation>像素</translation>
    </message>
    <message id="PreferNoApplyTip">
        <source>Apply layouts without asking</source>
        <translation>应用版式时不询问</translation>
    </message>
    <message id="PreferNoRemoveTip">
        <source>Remove layouts without asking</source>
        <translation>移除版式时不询问</translation>
    </message>
    <message id="PreferShowResult">
        <source>Show the result after an export</source>
        <translation>导出后显示结果</translation>
    </message>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>偏好设置</translation>
    </message>
    <message id="PreviewName">
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message id="Remove">
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message id="RemoveAll">
        <source>Remove All</source>
        <translation>全部移除</translation>
    </message>
    <message id="RemoveAllPhotos">
        <source>The watermarks go with the last photo.</source>
        <translation>水印会随最后一张照片一起移除。</translation>
    </message>
    <message id="RemoveAllPhotosTitle">
        <source>Remove all photos?</source>
        <translation>移除所有照片？</translation>
    </message>
    <message id="Rename">
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message id="Replace">
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message id="Resize">
        <source>Size</source>
        <translation>尺寸</translation>
    </message>
    <message id="SampleText">
        <source>Sample Text</source>
        <translation>示例文字</translation>
    </message>
    <message id="SaveLayoutName">
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message id="SaveLayoutTitle">
        <source>Save Layout</source>
        <translation>存储版式</translation>
    </message>
    <message id="ShowFile">
        <source>Show File</source>
        <translation>显示文件</translation>
    </message>
    <message id="Source don't exist">
        <source>Some photos are gone</source>
        <translation>部分照片已不存在</translation>
    </message>
    <message id="SourceIsGone">
        <source>The file of the photo is no longer there.</source>
        <translation>照片的文件已不存在。</translation>
    </message>
    <message id="StartButton">
        <source>Add Photos…</source>
        <translation>添加照片…</translation>
    </message>
    <message id="StartHint">
        <source>or drop them here</source>
        <translation>或将照片拖到此处</translation>
    </message>
    <message id="StartTitle">
        <source>Put your mark on your photos</source>
        <translation>为照片加上您的水印</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="Text Watermark">
        <source>Text Watermark</source>
        <translation>文字水印</translation>
    </message>
    <message id="The file holds the raw data of a camera's sensor, which is not read yet.">
        <source>The file holds the raw data of a camera's sensor, which is not read yet.</source>
        <translation>该文件是相机的原始数据，目前尚不能读取。</translation>
    </message>
    <message id="The file lacks the mark of its end, and is otherwise whole.">
        <source>The file lacks the mark of its end, and is otherwise whole.</source>
        <translation>文件缺少结束标记，其余部分完整。</translation>
    </message>
    <message id="The picture has %1 × %2 pixels, which is more than can be read.">
        <source>The picture has %1 × %2 pixels, which is more than can be read.</source>
        <translation>图片有 %1 × %2 像素，超出了可读取的范围。</translation>
    </message>
    <message id="There is not enough memory for the photo.">
        <source>There is not enough memory for the photo.</source>
        <translation>内存不足，无法处理该照片。</translation>
    </message>
    <message id="UPPERCASE">
        <source>UPPERCASE</source>
        <translation>大写</translation>
    </message>
    <message id="WarningCancel">
        <source>Photos that are written already stay.</source>
        <translation>已写入的照片会保留。</translation>
    </message>
    <message id="can'tAddRepeatedly">
        <source>Some photos are in the list already</source>
        <translation>部分照片已在列表中</translation>
    </message>
    <message id="delete no source file image">
        <source>Their files were moved or deleted, so they were taken off the list.</source>
        <translation>其文件已被移动或删除，因此已从列表中移除。</translation>
    </message>
    <message id="imagesFiltered">
        <source>They were not added again.</source>
        <translation>未重复添加。</translation>
    </message>
    <message id="lowercase">
        <source>lowercase</source>
        <translation>小写</translation>
    </message>
    <message id="tfByFitHeightSize">
        <source>Greatest height</source>
        <translation>最大高度</translation>
    </message>
    <message id="tfByFitWidthSize">
        <source>Greatest width</source>
        <translation>最大宽度</translation>
    </message>
    <message id="tfByHeight">
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message id="tfByPercentage">
        <source>Percentage</source>
        <translation>百分比</translation>
    </message>
    <message id="tfByWidth">
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message id="AllFiles">
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message id="%1 is not a folder.">
        <source>%1 is not a folder.</source>
        <translation>%1 不是文件夹。</translation>
    </message>
    <message id="A file of the name %1 has come to be there.">
        <source>A file of the name %1 has come to be there.</source>
        <translation>此时已出现名为 %1 的文件。</translation>
    </message>
    <message id="Metadata of other makers was left out: %1.">
        <source>Metadata of other makers was left out: %1.</source>
        <translation>已略去其他厂商的元数据：%1。</translation>
    </message>
    <message id="%1 is one of the originals and is not written to.">
        <source>%1 is one of the originals and is not written to.</source>
        <translation>%1 是原始照片之一，不会被写入。</translation>
    </message>
    <message id="A folder stands under the name %1.">
        <source>A folder stands under the name %1.</source>
        <translation>名称 %1 已是一个文件夹。</translation>
    </message>
    <message id="A name cannot begin with a full stop.">
        <source>A name cannot begin with a full stop.</source>
        <translation>名称不能以句点开头。</translation>
    </message>
    <message id="A name cannot hold the character &quot;/&quot;.">
        <source>A name cannot hold the character "/".</source>
        <translation>名称不能包含字符“/”。</translation>
    </message>
    <message id="Drawing the file takes longer than 10 seconds.">
        <source>Drawing the file takes longer than 10 seconds.</source>
        <translation>绘制该文件超过了 10 秒。</translation>
    </message>
    <message id="Drawing the file takes more memory than it may have.">
        <source>Drawing the file takes more memory than it may have.</source>
        <translation>绘制该文件所需的内存超出限制。</translation>
    </message>
    <message id="MenuDown">
        <source>Send Backward</source>
        <translation>下移一层</translation>
    </message>
    <message id="MenuLarger">
        <source>Larger</source>
        <translation>放大水印</translation>
    </message>
    <message id="MenuSmaller">
        <source>Smaller</source>
        <translation>缩小水印</translation>
    </message>
    <message id="MenuTurnLeft">
        <source>Turn Left</source>
        <translation>向左旋转</translation>
    </message>
    <message id="MenuTurnRight">
        <source>Turn Right</source>
        <translation>向右旋转</translation>
    </message>
    <message id="MenuUp">
        <source>Bring Forward</source>
        <translation>上移一层</translation>
    </message>
    <message id="MenuZoomIn">
        <source>Zoom In</source>
        <translation>放大</translation>
    </message>
    <message id="MenuZoomOut">
        <source>Zoom Out</source>
        <translation>缩小</translation>
    </message>
    <message id="The disk is full.">
        <source>The disk is full.</source>
        <translation>磁盘已满。</translation>
    </message>
    <message id="The document is protected by a password.">
        <source>The document is protected by a password.</source>
        <translation>该文档受密码保护。</translation>
    </message>
    <message id="The drawing has no size, or cannot be read.">
        <source>The drawing has no size, or cannot be read.</source>
        <translation>该图形没有尺寸，或无法读取。</translation>
    </message>
    <message id="The export was cancelled.">
        <source>The export was cancelled.</source>
        <translation>导出已取消。</translation>
    </message>
    <message id="The file could not be written: %1.">
        <source>The file could not be written: %1.</source>
        <translation>无法写入文件：%1。</translation>
    </message>
    <message id="The file is damaged (%1).">
        <source>The file is damaged (%1).</source>
        <translation>文件已损坏（%1）。</translation>
    </message>
    <message id="The file holds %1 frames, of which only the first %2 can be read.">
        <source>The file holds %1 frames, of which only the first %2 can be read.</source>
        <translation>文件包含 %1 帧，只能读取前 %2 帧。</translation>
    </message>
    <message id="The file is damaged: its picture cannot be read to the end.">
        <source>The file is damaged: its picture cannot be read to the end.</source>
        <translation>文件已损坏：无法完整读取其中的图片。</translation>
    </message>
    <message id="The file is damaged, or is not what its name says.">
        <source>The file is damaged, or is not what its name says.</source>
        <translation>文件已损坏，或与其名称不符。</translation>
    </message>
    <message id="The file is damaged: it breaks off before its end (%1).">
        <source>The file is damaged: it breaks off before its end (%1).</source>
        <translation>文件已损坏：内容不完整（%1）。</translation>
    </message>
    <message id="The file is empty.">
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message id="The file is not a PDF document.">
        <source>The file is not a PDF document.</source>
        <translation>该文件不是 PDF 文档。</translation>
    </message>
    <message id="The file is not a PostScript drawing with a size.">
        <source>The file is not a PostScript drawing with a size.</source>
        <translation>该文件不是带有尺寸的 PostScript 图形。</translation>
    </message>
    <message id="The file is not a picture that can be read.">
        <source>The file is not a picture that can be read.</source>
        <translation>该文件不是可读取的图片。</translation>
    </message>
    <message id="The file may not be read: permission is missing.">
        <source>The file may not be read: permission is missing.</source>
        <translation>无法读取文件：没有权限。</translation>
    </message>
    <message id="The file's name is not in UTF-8; rename it.">
        <source>The file's name is not in UTF-8; rename it.</source>
        <translation>文件名不是 UTF-8 编码，请重命名该文件。</translation>
    </message>
    <message id="The folder %1 could not be made.">
        <source>The folder %1 could not be made.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message id="The folder %1 could not be written to.">
        <source>The folder %1 could not be written to.</source>
        <translation>无法写入文件夹 %1。</translation>
    </message>
    <message id="The folder %1 does not exist.">
        <source>The folder %1 does not exist.</source>
        <translation>文件夹 %1 不存在。</translation>
    </message>
    <message id="The folder %1 may not be written to.">
        <source>The folder %1 may not be written to.</source>
        <translation>没有写入文件夹 %1 的权限。</translation>
    </message>
    <message id="The name is empty.">
        <source>The name is empty.</source>
        <translation>名称为空。</translation>
    </message>
    <message id="The name is too long.">
        <source>The name is too long.</source>
        <translation>名称过长。</translation>
    </message>
    <message id="The output would have %1 pixels, more than 20000 × 20000; make it smaller.">
        <source>The output would have %1 pixels, more than 20000 × 20000; make it smaller.</source>
        <translation>输出将有 %1 像素，超过 20000 × 20000；请缩小。</translation>
    </message>
    <message id="A JPEG picture has at most %1 pixels on a side; make it smaller, or choose another format.">
        <source>A JPEG picture has at most %1 pixels on a side; make it smaller, or choose another format.</source>
        <translation>JPEG 图片每边最多 %1 像素；请缩小图片或选择其他格式。</translation>
    </message>
    <message id="The output would have no size.">
        <source>The output would have no size.</source>
        <translation>输出将没有尺寸。</translation>
    </message>
    <message id="The photo could not be decoded (%1).">
        <source>The photo could not be decoded (%1).</source>
        <translation>无法解码照片（%1）。</translation>
    </message>
    <message id="The photo could not be decoded.">
        <source>The photo could not be decoded.</source>
        <translation>无法解码照片。</translation>
    </message>
    <message id="The photo is in the list already.">
        <source>The photo is in the list already.</source>
        <translation>照片已在列表中。</translation>
    </message>
    <message id="The photo's file is no longer there.">
        <source>The photo's file is no longer there.</source>
        <translation>照片的文件已不存在。</translation>
    </message>
    <message id="The profile %1 could not be put in its place.">
        <source>The profile %1 could not be put in its place.</source>
        <translation>无法将版式 %1 放到其位置。</translation>
    </message>
    <message id="The profile %1 could not be written.">
        <source>The profile %1 could not be written.</source>
        <translation>无法写入版式 %1。</translation>
    </message>
    <message id="The program that draws such files is not installed.">
        <source>The program that draws such files is not installed.</source>
        <translation>未安装用于绘制此类文件的程序。</translation>
    </message>
    <message id="The run was stopped: %1 is there already.">
        <source>The run was stopped: %1 is there already.</source>
        <translation>导出已停止：%1 已存在。</translation>
    </message>
    <message id="There is no photo to lay the marks out on.">
        <source>There is no photo to lay the marks out on.</source>
        <translation>没有可放置水印的照片。</translation>
    </message>
    <message id="There is no such file.">
        <source>There is no such file.</source>
        <translation>没有这个文件。</translation>
    </message>
    <message id="This is a folder, not a photo.">
        <source>This is a folder, not a photo.</source>
        <translation>这是文件夹，不是照片。</translation>
    </message>
    <message id="This is not a file.">
        <source>This is not a file.</source>
        <translation>这不是文件。</translation>
    </message>
    <message id="“%1” has a character in it that no file name can have.">
        <source>“%1” has a character in it that no file name can have.</source>
        <translation>“%1”中含有文件名不能使用的字符。</translation>
    </message>
    <message id="“%1” has a slash in it, which no file name can have.">
        <source>“%1” has a slash in it, which no file name can have.</source>
        <translation>“%1”中含有斜杠，文件名不能包含斜杠。</translation>
    </message>
</context>
</TS>
