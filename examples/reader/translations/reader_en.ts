<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>BodyChooser</name>
    <message>
        <source>文件中的文档</source>
        <translation>Documents in the file</translation>
    </message>
    <message>
        <source>此文件含有多个文档</source>
        <translation>This file contains several documents</translation>
    </message>
</context>
<context>
    <name>ChangeTextEdit</name>
    <message>
        <source>编辑批注</source>
        <translation>Edit annotation</translation>
    </message>
</context>
<context>
    <name>Description</name>
    <message>
        <source>根元素是“%1”，而不是“uiconfig”</source>
        <translation>The root element is “%1”, not “uiconfig”</translation>
    </message>
    <message>
        <source>清除历史记录</source>
        <translation>Clear history</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>擦除笔迹</source>
        <translation>Erase ink</translation>
    </message>
    <message>
        <source>第 %1 页</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>添加书签</source>
        <translation>Add Bookmark</translation>
    </message>
    <message>
        <source>删除书签</source>
        <translation>Delete Bookmark</translation>
    </message>
</context>
<context>
    <name>EditCommands</name>
    <message>
        <source>撤销：%1 (Ctrl+Z)</source>
        <translation>Undo: %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>恢复：%1 (Ctrl+Y)</source>
        <translation>Redo: %1 (Ctrl+Y)</translation>
    </message>
    <message>
        <source>%1：第 %2 页</source>
        <translation>%1: page %2</translation>
    </message>
    <message>
        <source>空白页</source>
        <translation>Blank page</translation>
    </message>
    <message>
        <source>插入空白页</source>
        <translation>Insert blank page</translation>
    </message>
    <message>
        <source>插入页面</source>
        <translation>Insert page</translation>
    </message>
    <message>
        <source>按住鼠标左键在页面上书写</source>
        <translation>Hold the left mouse button to write on the page</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>%1：每一页</source>
        <translation>%1: every page</translation>
    </message>
    <message>
        <source>水印的文字</source>
        <translation>Text of the watermark</translation>
    </message>
    <message>
        <source>内部资料</source>
        <translation>Internal</translation>
    </message>
    <message>
        <source>已选择 %1 个字</source>
        <translation>Characters selected: %1</translation>
    </message>
    <message>
        <source>编辑批注</source>
        <translation>Edit annotation</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Remark</translation>
    </message>
    <message>
        <source>删除批注</source>
        <translation>Delete annotation</translation>
    </message>
    <message>
        <source>已选择全部 %1 页的文字</source>
        <translation>Selected the text of all %1 pages</translation>
    </message>
    <message>
        <source>正在复制：第 %1 / %2 页</source>
        <translation>Copying: page %1 of %2</translation>
    </message>
    <message>
        <source>没有可以复制的文字</source>
        <translation>There is no text to copy</translation>
    </message>
    <message>
        <source>已复制 %1 个字</source>
        <translation>Copied %1 characters</translation>
    </message>
</context>
<context>
    <name>Export</name>
    <message>
        <source>无法写入：%1</source>
        <translation>Cannot write: %1</translation>
    </message>
    <message>
        <source>文本文件中不含批注</source>
        <translation>A text file holds no annotations</translation>
    </message>
    <message>
        <source>书签只能保存到 OFD 文件中</source>
        <translation>Bookmarks can be saved in OFD files only</translation>
    </message>
    <message>
        <source>已取消，没有写入文件</source>
        <translation>Cancelled; no file was written</translation>
    </message>
    <message>
        <source>没有写入，因为已有文件：%1</source>
        <translation>Nothing was written, because this file exists: %1</translation>
    </message>
    <message>
        <source>%1 至 %2</source>
        <translation>%1 to %2</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>OFD 文件 (*.ofd)</source>
        <translation>OFD files (*.ofd)</translation>
    </message>
    <message>
        <source>PDF 文件 (*.pdf)</source>
        <translation>PDF files (*.pdf)</translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation>Text files (*.txt)</translation>
    </message>
    <message>
        <source>保存信封：示例不生成数字信封</source>
        <translation>Save envelope: this example makes no digital envelopes</translation>
    </message>
    <message>
        <source>检查更新：示例不连接网络</source>
        <translation>Check for updates: this example does not use the network</translation>
    </message>
    <message>
        <source>已打开：%1</source>
        <translation>Opened: %1</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Cannot open</translation>
    </message>
    <message>
        <source>无法打开“%1”：%2</source>
        <translation>Cannot open “%1”: %2</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>“%1”有未保存的修改，要保存吗？</source>
        <translation>“%1” has unsaved changes. Save them?</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>不保存</source>
        <translation>Don’t save</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>已保存：%1</source>
        <translation>Saved: %1</translation>
    </message>
    <message>
        <source>已打印</source>
        <translation>Printed</translation>
    </message>
    <message>
        <source>没有打印</source>
        <translation>Not printed</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Save as</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>最近打开的文件的数量</source>
        <translation>Number of recent files</translation>
    </message>
    <message>
        <source>关于OFD阅读器</source>
        <translation>About OFD Reader</translation>
    </message>
    <message>
        <source>工具栏的示例阅读器，可打开 OFD 文件。

Qt %1</source>
        <translation>The example reader of the toolbar. It opens OFD files.

Qt %1</translation>
    </message>
    <message>
        <source>Alt、F10：按键提示
F6：工具栏
Esc：回到页面
Ctrl+F：查找
Ctrl+G：页码框
Ctrl+M：缩放框
F11：全屏</source>
        <translation>Alt, F10: key tips
F6: toolbar
Esc: back to the pages
Ctrl+F: find
Ctrl+G: page field
Ctrl+M: zoom box
F11: full screen</translation>
    </message>
    <message>
        <source>PNG 图片，每页一个 (*.png)</source>
        <translation>PNG pictures, one for each page (*.png)</translation>
    </message>
    <message>
        <source>“%1”已不存在，已从最近打开的文件中移除。</source>
        <translation>“%1” does not exist any more and was removed from the recent files.</translation>
    </message>
    <message>
        <source>已保存：%1。%2</source>
        <translation>Saved: %1. %2</translation>
    </message>
    <message>
        <source>已保存：%1。页面的旋转只用于查看，不写入文件</source>
        <translation>Saved: %1. The rotation of pages is for viewing only and is not written</translation>
    </message>
    <message>
        <source>已打印；本文件每次最多打印 %1 份</source>
        <translation>Printed; copies of this file allowed at a time: %1</translation>
    </message>
    <message>
        <source>“%1”已存在，要替换吗？</source>
        <translation>“%1” exists already. Replace it?</translation>
    </message>
    <message>
        <source>替换</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>批注还没有存入 OFD 文件</source>
        <translation>The annotations are not yet saved in an OFD file</translation>
    </message>
    <message>
        <source>本文件有电子签名，写入修改后签名可能不再有效。要继续保存吗？</source>
        <translation>This file is signed. Once the changes are written, the signatures may no longer be valid. Save it anyway?</translation>
    </message>
    <message>
        <source>正在写入“%1”…</source>
        <translation>Writing “%1”…</translation>
    </message>
</context>
<context>
    <name>FindingsPanel</name>
    <message>
        <source>提示</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>检查结果</source>
        <translation>Findings</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>级别</source>
        <translation>Severity</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>What is wrong</translation>
    </message>
    <message>
        <source>检查结果：%1</source>
        <translation>Findings: %1</translation>
    </message>
    <message>
        <source>检查结果：%1（%2）</source>
        <translation>Findings: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>HandwritingSettings</name>
    <message>
        <source>区域手写</source>
        <translation>Write in region</translation>
    </message>
    <message>
        <source>区域的大小（像素）</source>
        <translation>Size of the region (pixels)</translation>
    </message>
</context>
<context>
    <name>HostDock</name>
    <message>
        <source>宿主</source>
        <translation>Host</translation>
    </message>
</context>
<context>
    <name>HostPanel</name>
    <message>
        <source>皮肤颜色</source>
        <translation>Skin colour</translation>
    </message>
    <message>
        <source>蓝</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>绿</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>暗</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>高对比</source>
        <translation>High contrast</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>As the system</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>按屏幕</source>
        <translation>As the screen</translation>
    </message>
    <message>
        <source>明暗</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>手写设置…</source>
        <translation>Handwriting settings…</translation>
    </message>
</context>
<context>
    <name>LinkCommands</name>
    <message>
        <source>只打开网页和邮件地址，不打开：%1</source>
        <translation>Only web and mail addresses are opened, not this one: %1</translation>
    </message>
    <message>
        <source>要在其他程序中打开这个地址吗？</source>
        <translation>Open this address in another program?</translation>
    </message>
    <message>
        <source>系统没有打开这个地址的程序</source>
        <translation>The system has no program that opens this address</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>“%1”可能是程序，不能打开，只能另存</source>
        <translation>“%1” may be a program and can only be saved, not opened</translation>
    </message>
    <message>
        <source>要在其他程序中打开附件“%1”吗？请只打开可信的文件。</source>
        <translation>Open the attachment “%1” in another program? Only open files that you trust.</translation>
    </message>
    <message>
        <source>无法写入临时文件</source>
        <translation>Cannot write a temporary file</translation>
    </message>
    <message>
        <source>系统没有打开“%1”的程序</source>
        <translation>The system has no program that opens “%1”</translation>
    </message>
    <message>
        <source>附件另存为</source>
        <translation>Save attachment as</translation>
    </message>
    <message>
        <source>已保存：%1</source>
        <translation>Saved: %1</translation>
    </message>
    <message>
        <source>无法写入：%1</source>
        <translation>Cannot write: %1</translation>
    </message>
</context>
<context>
    <name>LivePreview</name>
    <message>
        <source>没有发现问题</source>
        <translation>Nothing is wrong</translation>
    </message>
    <message>
        <source>文件可以读取；未编入描述检查器，不作进一步检查</source>
        <translation>The file can be read; built without the checker, the reader looks no further</translation>
    </message>
    <message>
        <source>无法读取文件：%1</source>
        <translation>Cannot read the file: %1</translation>
    </message>
    <message>
        <source>%1，工具栏未更新</source>
        <translation>%1; the toolbar was not rebuilt</translation>
    </message>
</context>
<context>
    <name>Mark</name>
    <message>
        <source>高亮</source>
        <translation>Highlight</translation>
    </message>
    <message>
        <source>下划线</source>
        <translation>Underline</translation>
    </message>
    <message>
        <source>波浪线</source>
        <translation>Wavy line</translation>
    </message>
    <message>
        <source>删除线</source>
        <translation>Strikethrough</translation>
    </message>
    <message>
        <source>修订</source>
        <translation>Revision</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>箭头</source>
        <translation>Arrow</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>椭圆</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>多边形</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>折线</source>
        <translation>Polyline</translation>
    </message>
    <message>
        <source>云线</source>
        <translation>Cloud</translation>
    </message>
    <message>
        <source>笔迹</source>
        <translation>Ink</translation>
    </message>
    <message>
        <source>显示遮罩</source>
        <translation>Mask on screen</translation>
    </message>
    <message>
        <source>打印遮罩</source>
        <translation>Mask in print</translation>
    </message>
    <message>
        <source>文本框</source>
        <translation>Text box</translation>
    </message>
    <message>
        <source>便签</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>电子签章</source>
        <translation>Electronic seal</translation>
    </message>
    <message>
        <source>骑缝章</source>
        <translation>Seal across pages</translation>
    </message>
    <message>
        <source>印章</source>
        <translation>Seal</translation>
    </message>
    <message>
        <source>签章标记</source>
        <translation>Place for a seal</translation>
    </message>
    <message>
        <source>图章</source>
        <translation>Stamp</translation>
    </message>
    <message>
        <source>贴图</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>水印</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>批注</source>
        <translation>Annotation</translation>
    </message>
</context>
<context>
    <name>MarkEntry</name>
    <message>
        <source>链接</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>图形</source>
        <translation>Drawing</translation>
    </message>
    <message>
        <source>高亮</source>
        <translation>Highlight</translation>
    </message>
    <message>
        <source>图章</source>
        <translation>Stamp</translation>
    </message>
    <message>
        <source>水印</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>每一页</source>
        <translation>Every page</translation>
    </message>
    <message>
        <source>第 %1 页</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>这条批注是只读的，不能编辑或删除</source>
        <translation>This annotation is read-only and cannot be edited or deleted</translation>
    </message>
    <message>
        <source>不可见</source>
        <translation>Hidden</translation>
    </message>
    <message>
        <source>只读</source>
        <translation>Read-only</translation>
    </message>
</context>
<context>
    <name>NavigationPanel</name>
    <message>
        <source>大纲</source>
        <translation>Outline</translation>
    </message>
    <message>
        <source>缩略图</source>
        <translation>Thumbnails</translation>
    </message>
    <message>
        <source>自定义标引</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>书签</source>
        <translation>Bookmarks</translation>
    </message>
    <message>
        <source>批注</source>
        <translation>Annotations</translation>
    </message>
    <message>
        <source>附件</source>
        <translation>Attachments</translation>
    </message>
    <message>
        <source>为当前页添加书签</source>
        <translation>Bookmark this page</translation>
    </message>
    <message>
        <source>没有打开的文档</source>
        <translation>No document is open</translation>
    </message>
    <message>
        <source>本文档没有大纲</source>
        <translation>This document has no outline</translation>
    </message>
    <message>
        <source>%1（%2 处）</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>还没有书签</source>
        <translation>No bookmarks yet</translation>
    </message>
    <message>
        <source>还没有批注</source>
        <translation>No annotations yet</translation>
    </message>
    <message>
        <source>本文档没有附件</source>
        <translation>This document has no attachments</translation>
    </message>
    <message>
        <source>编辑备注…</source>
        <translation>Edit remark…</translation>
    </message>
    <message>
        <source>删除批注</source>
        <translation>Delete annotation</translation>
    </message>
    <message>
        <source>打开附件</source>
        <translation>Open attachment</translation>
    </message>
    <message>
        <source>附件另存为…</source>
        <translation>Save attachment as…</translation>
    </message>
    <message>
        <source>删除书签</source>
        <translation>Delete bookmark</translation>
    </message>
</context>
<context>
    <name>Ofd</name>
    <message>
        <source>这不是 OFD 文件：包内没有 OFD.xml。</source>
        <translation>This is no OFD file: the package has no OFD.xml.</translation>
    </message>
    <message>
        <source>文件不完整：没有文档入口 Document.xml。</source>
        <translation>The file is incomplete: its Document.xml is missing.</translation>
    </message>
    <message>
        <source>文档没有页面。</source>
        <translation>The document has no pages.</translation>
    </message>
    <message>
        <source>文档的页面过多，超过 %1 页。</source>
        <translation>The document has too many pages, more than %1.</translation>
    </message>
    <message>
        <source>复合图元“%1”循环引用。</source>
        <translation>The composite object “%1” contains itself.</translation>
    </message>
    <message>
        <source>复合图元“%1”嵌套过深。</source>
        <translation>The composite object “%1” is nested too deeply.</translation>
    </message>
    <message>
        <source>标题</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>作者</source>
        <translation>Author</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Subject</translation>
    </message>
    <message>
        <source>摘要</source>
        <translation>Abstract</translation>
    </message>
    <message>
        <source>用途</source>
        <translation>Use</translation>
    </message>
    <message>
        <source>创建日期</source>
        <translation>Created</translation>
    </message>
    <message>
        <source>修改日期</source>
        <translation>Modified</translation>
    </message>
    <message>
        <source>创建程序</source>
        <translation>Creator</translation>
    </message>
    <message>
        <source>程序版本</source>
        <translation>Version of the creator</translation>
    </message>
    <message>
        <source>文档标识</source>
        <translation>Document ID</translation>
    </message>
    <message>
        <source>关键词</source>
        <translation>Keywords</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>电子签章</source>
        <translation>electronic seals</translation>
    </message>
    <message>
        <source>字号 %1 超出范围。</source>
        <translation>The font size %1 is out of range.</translation>
    </message>
    <message>
        <source>文件不存在。</source>
        <translation>There is no such file.</translation>
    </message>
    <message>
        <source>这是一个文件夹，不是 OFD 文件。</source>
        <translation>This is a folder and no OFD file.</translation>
    </message>
    <message>
        <source>无法读取文件：%1。</source>
        <translation>Cannot read the file: %1.</translation>
    </message>
    <message>
        <source>文件过大，超过 %1 MB。</source>
        <translation>The file is too large, more than %1 MB.</translation>
    </message>
    <message>
        <source>这不是 OFD 文件：它不是 ZIP 包。</source>
        <translation>This is no OFD file: it is no ZIP package.</translation>
    </message>
    <message>
        <source>文件不完整：ZIP 包的目录缺失或已损坏。</source>
        <translation>The file is incomplete: the directory of the ZIP package is missing or damaged.</translation>
    </message>
    <message>
        <source>包内文件过多，超过 %1 个。</source>
        <translation>The package has too many files, more than %1.</translation>
    </message>
    <message>
        <source>包内文件解压后过大，超过 %1 MB。</source>
        <translation>The files of the package unpack to more than %1 MB.</translation>
    </message>
    <message>
        <source>包内路径“%1”指向包外。</source>
        <translation>The path “%1” in the package leads out of it.</translation>
    </message>
    <message>
        <source>文件已加密，无法打开。</source>
        <translation>The file is encrypted and cannot be opened.</translation>
    </message>
    <message>
        <source>包内文件“%1”解压后异常巨大。</source>
        <translation>The file “%1” in the package unpacks to an abnormal size.</translation>
    </message>
    <message>
        <source>包内文件“%1”缺失或已损坏。</source>
        <translation>The file “%1” in the package is missing or damaged.</translation>
    </message>
    <message>
        <source>文档中的路径“%1”指向包外。</source>
        <translation>The path “%1” in the document leads out of the package.</translation>
    </message>
    <message>
        <source>页面尺寸“%1”超出范围。</source>
        <translation>The page size “%1” is out of range.</translation>
    </message>
    <message>
        <source>页面的图层过多，超过 %1 个。</source>
        <translation>A page has too many layers, more than %1.</translation>
    </message>
    <message>
        <source>模板页“%1”循环引用。</source>
        <translation>The template page “%1” contains itself.</translation>
    </message>
    <message>
        <source>缺失的模板页</source>
        <translation>missing template pages</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>images</translation>
    </message>
    <message>
        <source>缺失的文件</source>
        <translation>missing files</translation>
    </message>
    <message>
        <source>音频和视频</source>
        <translation>audio and video</translation>
    </message>
    <message>
        <source>虚线样式“%1”超出范围。</source>
        <translation>The dash pattern “%1” is out of range.</translation>
    </message>
    <message>
        <source>绘制参数“%1”循环引用。</source>
        <translation>The drawing parameter “%1” refers to itself.</translation>
    </message>
    <message>
        <source>文档中的数值“%1”超出范围。</source>
        <translation>The number “%1” in the document is out of range.</translation>
    </message>
    <message>
        <source>包内文件“%1”第 %2 行不是正确的 XML。</source>
        <translation>The file “%1” in the package is no correct XML at line %2.</translation>
    </message>
    <message>
        <source>包内文件“%1”含有不允许的 DTD。</source>
        <translation>The file “%1” in the package has a DTD, which is not allowed.</translation>
    </message>
    <message>
        <source>包内文件“%1”嵌套过深。</source>
        <translation>The file “%1” in the package is nested too deeply.</translation>
    </message>
    <message>
        <source>包内文件“%1”的元素过多。</source>
        <translation>The file “%1” in the package has too many elements.</translation>
    </message>
    <message>
        <source>无法复制文件的 ZIP 包。</source>
        <translation>Cannot copy the ZIP package of the file.</translation>
    </message>
    <message>
        <source>无法绘制的渐变</source>
        <translation>gradients that cannot be painted</translation>
    </message>
    <message>
        <source>无法绘制的底纹</source>
        <translation>patterns that cannot be painted</translation>
    </message>
    <message>
        <source>签名数据已损坏。</source>
        <translation>The data of the signature is damaged.</translation>
    </message>
    <message>
        <source>无法显示的页面</source>
        <translation>pages that cannot be shown</translation>
    </message>
    <message>
        <source>文档 %1</source>
        <translation>Document %1</translation>
    </message>
    <message>
        <source>无法读取的批注</source>
        <translation>annotations that cannot be read</translation>
    </message>
    <message>
        <source>包内没有这一页的文件。</source>
        <translation>The package has no file for this page.</translation>
    </message>
    <message>
        <source>底纹嵌套过深。</source>
        <translation>A pattern is nested too deeply.</translation>
    </message>
    <message>
        <source>页面的内容展开后过多，无法显示。</source>
        <translation>The page expands to more than can be shown.</translation>
    </message>
    <message>
        <source>嵌入字体“%1”</source>
        <translation>embedded font “%1”</translation>
    </message>
    <message>
        <source>图元的裁剪区过多，超过 %1 个。</source>
        <translation>An object has too many clip areas, more than %1.</translation>
    </message>
    <message>
        <source>页面的图元过多，超过 %1 个。</source>
        <translation>A page has too many objects, more than %1.</translation>
    </message>
    <message>
        <source>未知的图元</source>
        <translation>unknown objects</translation>
    </message>
    <message>
        <source>缺失的资源</source>
        <translation>missing resources</translation>
    </message>
    <message>
        <source>残缺的图形</source>
        <translation>incomplete paths</translation>
    </message>
    <message>
        <source>图像（%1，未安装其解码插件）</source>
        <translation>images (%1, whose plug-in is not installed)</translation>
    </message>
    <message>
        <source>图像（%1）</source>
        <translation>images (%1)</translation>
    </message>
    <message>
        <source>签章数据的结构不符合标准。</source>
        <translation>The data of the seal does not conform to the standard.</translation>
    </message>
    <message>
        <source>摘要算法 MD5 已不安全。</source>
        <translation>The digest algorithm MD5 is no longer safe.</translation>
    </message>
    <message>
        <source>未知的摘要算法“%1”。</source>
        <translation>The digest algorithm “%1” is unknown.</translation>
    </message>
    <message>
        <source>摘要算法 SHA-1 已较弱。</source>
        <translation>The digest algorithm SHA-1 is weak.</translation>
    </message>
    <message>
        <source>%1 等 %2 处</source>
        <translation>%1 and others, %2 in all</translation>
    </message>
    <message>
        <source>签名后被修改：%1</source>
        <translation>Changed after signing: %1</translation>
    </message>
    <message>
        <source>本阅读器编译时未包含签名算法。</source>
        <translation>This reader was built without signature algorithms.</translation>
    </message>
    <message>
        <source>签名没有指明受保护的文件。</source>
        <translation>The signature names no protected files.</translation>
    </message>
    <message>
        <source>签名有效</source>
        <translation>Valid signature</translation>
    </message>
    <message>
        <source>签名有效，但包内有 %1 个文件不受保护</source>
        <translation>Valid signature, but files of the package are not protected: %1</translation>
    </message>
    <message>
        <source>无法验证：%1</source>
        <translation>Cannot be verified: %1</translation>
    </message>
    <message>
        <source>签名数据过大。</source>
        <translation>The data of the signature is too large.</translation>
    </message>
    <message>
        <source>签名值的结构不符合标准。</source>
        <translation>The signature value does not conform to the standard.</translation>
    </message>
    <message>
        <source>签名描述文件不完整。</source>
        <translation>The description of the signature is incomplete.</translation>
    </message>
    <message>
        <source>签名值中没有证书。</source>
        <translation>The signature value has no certificate.</translation>
    </message>
    <message>
        <source>签名时间不在证书的有效期内。</source>
        <translation>The signing time is outside the validity of the certificate.</translation>
    </message>
    <message>
        <source>签名值</source>
        <translation>the signature value</translation>
    </message>
    <message>
        <source>印章</source>
        <translation>the seal</translation>
    </message>
    <message>
        <source>无法核对印章制作者的签名。</source>
        <translation>The signature of the seal’s maker cannot be checked.</translation>
    </message>
    <message>
        <source>印章不是为签名证书制作的。</source>
        <translation>The seal was not made for the signing certificate.</translation>
    </message>
    <message>
        <source>签名时间不在印章的有效期内。</source>
        <translation>The signing time is outside the validity of the seal.</translation>
    </message>
    <message>
        <source>印章文件与所签的印章不同，页面上是所签的印章。</source>
        <translation>The seal’s file is not the seal that was signed; the pages show the signed one.</translation>
    </message>
    <message>
        <source>签名值中的证书已损坏。</source>
        <translation>The certificate in the signature value is damaged.</translation>
    </message>
    <message>
        <source>未知的签名算法“%1”。</source>
        <translation>The signature algorithm “%1” is unknown.</translation>
    </message>
    <message>
        <source>包内的批注文件不是正确的 XML。</source>
        <translation>A file of annotations in the package is no correct XML.</translation>
    </message>
    <message>
        <source>过多的链接</source>
        <translation>Too many links</translation>
    </message>
    <message>
        <source>无法打开的文档（%1）</source>
        <translation>documents that cannot be opened (%1)</translation>
    </message>
    <message>
        <source>包内文件“%1”的编码“%2”不受支持。</source>
        <translation>The encoding “%2” of the file “%1” in the package is not supported.</translation>
    </message>
    <message>
        <source>过多的字符</source>
        <translation>characters beyond what a page can show</translation>
    </message>
</context>
<context>
    <name>OfdFile</name>
    <message>
        <source>%1 %2 处</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>未显示：%1</source>
        <translation>Not shown: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>第 %1 页无法显示：%2</source>
        <translation>Page %1 cannot be shown: %2</translation>
    </message>
    <message>
        <source>缺少字体：%1，以替代字体显示</source>
        <translation>Missing fonts, replaced by others: %1</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>；</source>
        <translation>; </translation>
    </message>
</context>
<context>
    <name>OfdSaving</name>
    <message>
        <source>OFD 文件中不含插入的 %1 页及其批注；另存为 PDF 可保留</source>
        <translation>The OFD file lacks the inserted pages (%1) and their annotations; save as PDF to keep them</translation>
    </message>
</context>
<context>
    <name>PageMenu</name>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>高亮</source>
        <translation>Highlight</translation>
    </message>
    <message>
        <source>下划线</source>
        <translation>Underline</translation>
    </message>
    <message>
        <source>删除线</source>
        <translation>Strikeout</translation>
    </message>
    <message>
        <source>取消选择</source>
        <translation>Deselect</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>适合宽度</source>
        <translation>Fit width</translation>
    </message>
    <message>
        <source>适合页面</source>
        <translation>Fit page</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>Properties</translation>
    </message>
</context>
<context>
    <name>PageView</name>
    <message>
        <source>没有打开的文档
按 Ctrl+O 打开一个文件</source>
        <translation>No document is open
Press Ctrl+O to open a file</translation>
    </message>
    <message>
        <source>第 %1 页</source>
        <translation>Page %1</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>打印</source>
        <translation>Print</translation>
    </message>
</context>
<context>
    <name>PropertiesDialog</name>
    <message>
        <source>%1：</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 × %2 毫米（第 %3 页）</source>
        <translation>%1 × %2 mm (page %3)</translation>
    </message>
    <message>
        <source>文档</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>来源</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>页面由程序生成</source>
        <translation>Pages generated by the program</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>File</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>Properties</translation>
    </message>
    <message>
        <source>页数</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>页面尺寸</source>
        <translation>Page size</translation>
    </message>
    <message>
        <source>字数</source>
        <translation>Characters</translation>
    </message>
    <message>
        <source>批注</source>
        <translation>Annotations</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>正在统计…</source>
        <translation>Counting…</translation>
    </message>
    <message>
        <source>权限</source>
        <translation>Permissions</translation>
    </message>
    <message>
        <source>%1（正在统计…）</source>
        <translation>%1 (counting…)</translation>
    </message>
</context>
<context>
    <name>ReaderWindow</name>
    <message>
        <source>没有实现的命令：%1</source>
        <translation>Command without an action: %1</translation>
    </message>
    <message>
        <source>OFD阅读器</source>
        <translation>OFD Reader</translation>
    </message>
    <message>
        <source>（生成的页面）</source>
        <translation> (generated pages) </translation>
    </message>
    <message>
        <source>第 %1 / %2 页&#x3000;%3%</source>
        <translation>Page %1 / %2   %3%</translation>
    </message>
    <message>
        <source>没有这一页：共 %1 页</source>
        <translation>No such page: the last one is page %1</translation>
    </message>
    <message>
        <source>转到第几页（共 %1 页）</source>
        <translation>Go to which page (of %1)</translation>
    </message>
    <message>
        <source>显示比例（%）</source>
        <translation>Zoom (%)</translation>
    </message>
</context>
<context>
    <name>Refusal</name>
    <message>
        <source>编辑</source>
        <translation>editing</translation>
    </message>
    <message>
        <source>批注</source>
        <translation>annotating</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>exporting</translation>
    </message>
    <message>
        <source>签章</source>
        <translation>sealing</translation>
    </message>
    <message>
        <source>添加水印</source>
        <translation>adding watermarks</translation>
    </message>
    <message>
        <source>打印</source>
        <translation>printing</translation>
    </message>
    <message>
        <source>本文件自 %1 起才有效，此前只能阅读。</source>
        <translation>This file is valid from %1 on; until then it can only be read.</translation>
    </message>
    <message>
        <source>本文件的有效期到 %1 为止，现在只能阅读。</source>
        <translation>This file was valid until %1; now it can only be read.</translation>
    </message>
    <message>
        <source>本文件的作者不允许%1。</source>
        <translation>Not allowed by the author of this file: %1.</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>SafeFile</name>
    <message>
        <source>附件</source>
        <translation>attachment</translation>
    </message>
</context>
<context>
    <name>SearchPanel</name>
    <message>
        <source>高级搜索</source>
        <translation>Advanced search</translation>
    </message>
    <message>
        <source>输入要查找的文字</source>
        <translation>Text to find</translation>
    </message>
    <message>
        <source>搜索结果</source>
        <translation>Search results</translation>
    </message>
    <message>
        <source>“%1”：第 %2 处，共 %3 处</source>
        <translation>“%1”: %2 of %3</translation>
    </message>
    <message>
        <source>没有找到“%1”</source>
        <translation>“%1” was not found</translation>
    </message>
    <message>
        <source>搜索进度</source>
        <translation>Search progress</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>正在查找“%1”…</source>
        <translation>Searching for “%1”…</translation>
    </message>
    <message>
        <source>%1（只查找了 %2 / %3 页）</source>
        <translation>%1 (pages searched: %2 of %3)</translation>
    </message>
</context>
<context>
    <name>SignalLog</name>
    <message>
        <source>工具栏信号</source>
        <translation>Signals of the toolbar</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>收到的信号</source>
        <translation>Signals received</translation>
    </message>
</context>
<context>
    <name>SignatureDialog</name>
    <message>
        <source>共 %1 个</source>
        <translation>%1 in all</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>签名证书</source>
        <translation>Signing certificate</translation>
    </message>
    <message>
        <source>主体</source>
        <translation>Subject</translation>
    </message>
    <message>
        <source>颁发者</source>
        <translation>Issuer</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>有效期</source>
        <translation>Validity</translation>
    </message>
    <message>
        <source>%1 至 %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>信任</source>
        <translation>Trust</translation>
    </message>
    <message>
        <source>没有检查证书是否可信、是否已吊销。</source>
        <translation>Whether the certificate can be trusted or was revoked is not checked.</translation>
    </message>
    <message>
        <source>签名</source>
        <translation>Signatures</translation>
    </message>
    <message>
        <source>签名的详情</source>
        <translation>Details of the signature</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>转到签章</source>
        <translation>Go to seal</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>注意</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>印章</source>
        <translation>Seal</translation>
    </message>
    <message>
        <source>所在页</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>签名时间</source>
        <translation>Signing time</translation>
    </message>
    <message>
        <source>%1（由签名者声明）</source>
        <translation>%1 (as stated by the signer)</translation>
    </message>
    <message>
        <source>签名程序</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>签名方法</source>
        <translation>Method</translation>
    </message>
    <message>
        <source>受保护的文件</source>
        <translation>Protected files</translation>
    </message>
    <message>
        <source>%1 个未被修改</source>
        <translation>%1 unchanged</translation>
    </message>
    <message>
        <source>不受保护的文件</source>
        <translation>Unprotected files</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>OFD阅读器</source>
        <translation>OFD Reader</translation>
    </message>
    <message>
        <source>打开…</source>
        <translation>Open…</translation>
    </message>
    <message>
        <source>也可以把 OFD 文件拖到这里</source>
        <translation>or drop OFD files here</translation>
    </message>
    <message>
        <source>最近打开的文件</source>
        <translation>Recent files</translation>
    </message>
    <message>
        <source>从列表中移除</source>
        <translation>Remove from list</translation>
    </message>
    <message>
        <source>从列表中移除选中的文件（Delete）</source>
        <translation>Remove the selected file from the list (Delete)</translation>
    </message>
</context>
<context>
    <name>ViewCommands</name>
    <message>
        <source>退出全屏</source>
        <translation>Leave full screen</translation>
    </message>
    <message>
        <source>顺时针旋转</source>
        <translation>Rotate clockwise</translation>
    </message>
    <message>
        <source>逆时针旋转</source>
        <translation>Rotate anticlockwise</translation>
    </message>
    <message>
        <source>按 Esc 退出全屏</source>
        <translation>Press Esc to leave full screen</translation>
    </message>
    <message>
        <source>显示修订标记</source>
        <translation>Revision marks are shown</translation>
    </message>
    <message>
        <source>隐藏修订标记</source>
        <translation>Revision marks are hidden</translation>
    </message>
    <message>
        <source>第 %1 页：%2 个点，线宽 %3，颜色 %4</source>
        <translation>Page %1: %2 points, width %3, colour %4</translation>
    </message>
    <message>
        <source>还没有手写痕迹</source>
        <translation>No ink yet</translation>
    </message>
    <message>
        <source>痕迹信息</source>
        <translation>Ink</translation>
    </message>
</context>
</TS>
