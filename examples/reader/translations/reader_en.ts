<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
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
        <source>无法写入：%1</source>
        <translation>Cannot write: %1</translation>
    </message>
    <message>
        <source>已保存，但不含批注；另存为 PDF 可保留批注：%1</source>
        <translation>Saved, but without the annotations; save as PDF to keep them: %1</translation>
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
    <name>KeyboardReach</name>
    <message>
        <source>工具栏现在没有可用的页码框</source>
        <translation>The toolbar has no page field to go to now</translation>
    </message>
    <message>
        <source>工具栏现在没有可用的缩放框</source>
        <translation>The toolbar has no zoom box to go to now</translation>
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
        <source>第 %1 页</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>还没有书签</source>
        <translation>No bookmarks yet</translation>
    </message>
    <message>
        <source>每一页</source>
        <translation>Every page</translation>
    </message>
    <message>
        <source>：%1</source>
        <translation>: %1</translation>
    </message>
    <message>
        <source>还没有批注</source>
        <translation>No annotations yet</translation>
    </message>
    <message>
        <source>本文档没有附件</source>
        <translation>This document has no attachments</translation>
    </message>
</context>
<context>
    <name>Ofd</name>
    <message>
        <source>图案填充</source>
        <translation>pattern fills</translation>
    </message>
    <message>
        <source>网格渐变</source>
        <translation>mesh gradients</translation>
    </message>
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
        <source>同一文件中的其他文档</source>
        <translation>other documents in the file</translation>
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
        <source>文档的内容展开后过多，无法显示。</source>
        <translation>The document expands to more than can be shown.</translation>
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
        <source>文档中的图元过多，超过 %1 个。</source>
        <translation>The document has too many objects, more than %1.</translation>
    </message>
    <message>
        <source>图像蒙版</source>
        <translation>image masks</translation>
    </message>
    <message>
        <source>字号 %1 超出范围。</source>
        <translation>The font size %1 is out of range.</translation>
    </message>
    <message>
        <source>文字裁剪</source>
        <translation>clipping to text</translation>
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
        <source>缺失的页面</source>
        <translation>missing pages</translation>
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
        <source>嵌入字体</source>
        <translation>embedded fonts</translation>
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
        <source>第 %1 页</source>
        <translation>Page %1</translation>
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
</context>
<context>
    <name>ReaderWindow</name>
    <message>
        <source>宿主</source>
        <translation>Host</translation>
    </message>
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
</context>
<context>
    <name>RemoveMarkEdit</name>
    <message>
        <source>擦除笔迹</source>
        <translation>Erase ink</translation>
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
