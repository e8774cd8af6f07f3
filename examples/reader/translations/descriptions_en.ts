<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>description</name>
    <message>
        <source>文件</source>
        <translation>File</translation>
    </message>
    <message>
        <source>打开(&amp;O)</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>手型工具</source>
        <translation>Hand tool</translation>
    </message>
    <message>
        <source>最近打开的文件(&amp;Z)</source>
        <translation>&amp;Recent files</translation>
    </message>
    <message>
        <source>无</source>
        <translation>None</translation>
    </message>
    <message>
        <source>清除历史记录</source>
        <translation>Clear history</translation>
    </message>
    <message>
        <source>隐藏的子菜单</source>
        <translation>Hidden sub-menu</translation>
    </message>
    <message>
        <source>不可见</source>
        <translation>Not visible</translation>
    </message>
    <message>
        <source>暂不可用</source>
        <translation>Not available</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>更多命令</source>
        <translation>More commands</translation>
    </message>
    <message>
        <source>视图(&amp;V)</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>Properties</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>打开OFD文件</source>
        <translation>Open an OFD file</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>撤销(Ctrl+Z)</source>
        <translation>Undo (Ctrl+Z)</translation>
    </message>
    <message>
        <source>无法撤销(Ctrl+Z)</source>
        <translation>Nothing to undo (Ctrl+Z)</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>恢复(Ctrl+Y)</source>
        <translation>Redo (Ctrl+Y)</translation>
    </message>
    <message>
        <source>打印</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>自定义快速访问工具栏</source>
        <translation>Customise quick access</translation>
    </message>
    <message>
        <source>按钮</source>
        <translation>Buttons</translation>
    </message>
    <message>
        <source>手型</source>
        <translation>Hand</translation>
    </message>
    <message>
        <source>手型工具;拖动页面以浏览文档</source>
        <translation>Hand tool;Drag the pages to move through the document</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>选择文本;选取并复制页面文字</source>
        <translation>Select text;Select and copy text of a page</translation>
    </message>
    <message>
        <source>隐藏</source>
        <translation>Hidden</translation>
    </message>
    <message>
        <source>单击双击</source>
        <translation>Clicks</translation>
    </message>
    <message>
        <source>单击双击;双击另有含义</source>
        <translation>Clicks;A double click means something else</translation>
    </message>
    <message>
        <source>首次静默</source>
        <translation>Quiet</translation>
    </message>
    <message>
        <source>首次静默;先由菜单触发一次</source>
        <translation>Quiet at first;Trigger it from the menu first</translation>
    </message>
    <message>
        <source>不可用</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>不可用;先选定一段文字</source>
        <translation>Disabled;Select some text first</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>顺时针旋转</source>
        <translation>Rotate right</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>逆时针旋转</source>
        <translation>Rotate left</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Full screen</translation>
    </message>
    <message>
        <source>锁定</source>
        <translation>Locked</translation>
    </message>
    <message>
        <source>布局</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>页面布局</source>
        <translation>Page layout</translation>
    </message>
    <message>
        <source>单页</source>
        <translation>Single</translation>
    </message>
    <message>
        <source>双页</source>
        <translation>Facing</translation>
    </message>
    <message>
        <source>更多</source>
        <translation>More</translation>
    </message>
    <message>
        <source>触发首次静默</source>
        <translation>Trigger the quiet one</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>菜单</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>下拉菜单</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>下拉菜单;整个按钮打开菜单</source>
        <translation>Menu;The whole button opens it</translation>
    </message>
    <message>
        <source>第一项</source>
        <translation>First</translation>
    </message>
    <message>
        <source>第二项</source>
        <translation>Second</translation>
    </message>
    <message>
        <source>第三项</source>
        <translation>Third</translation>
    </message>
    <message>
        <source>可切换</source>
        <translation>Switch</translation>
    </message>
    <message>
        <source>可切换;按钮显示所选的项</source>
        <translation>Switch;The button shows what was chosen</translation>
    </message>
    <message>
        <source>有默认项</source>
        <translation>Preset</translation>
    </message>
    <message>
        <source>有默认项;单击重复第二项</source>
        <translation>Preset;A click repeats the second entry</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>自带命令</source>
        <translation>Own</translation>
    </message>
    <message>
        <source>其他命令</source>
        <translation>Another command</translation>
    </message>
    <message>
        <source>背景</source>
        <translation>Paper</translation>
    </message>
    <message>
        <source>背景;选择页面的背景颜色</source>
        <translation>Paper;Choose the colour of the pages</translation>
    </message>
    <message>
        <source>默认</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>日间</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>夜间</source>
        <translation>Night</translation>
    </message>
    <message>
        <source>护眼</source>
        <translation>Restful</translation>
    </message>
    <message>
        <source>羊皮纸</source>
        <translation>Parchment</translation>
    </message>
    <message>
        <source>空菜单</source>
        <translation>Empty</translation>
    </message>
    <message>
        <source>没有菜单项</source>
        <translation>No entries</translation>
    </message>
    <message>
        <source>输入</source>
        <translation>Fields</translation>
    </message>
    <message>
        <source>实际大小</source>
        <translation>Actual size</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>自定义比例</source>
        <translation>Custom zoom</translation>
    </message>
    <message>
        <source>缩放</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>适合宽度</source>
        <translation>Fit width</translation>
    </message>
    <message>
        <source>10%</source>
        <translation>10%</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50%</translation>
    </message>
    <message>
        <source>75%</source>
        <translation>75%</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>6400%</source>
        <translation>6400%</translation>
    </message>
    <message>
        <source>固定列表</source>
        <translation>List</translation>
    </message>
    <message>
        <source>甲</source>
        <translation>A</translation>
    </message>
    <message>
        <source>乙</source>
        <translation>B</translation>
    </message>
    <message>
        <source>页码</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>输入页码后按回车键跳转</source>
        <translation>Enter a page number and press Return</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>页</source>
        <translation>pages</translation>
    </message>
    <message>
        <source>只接受数字</source>
        <translation>Digits only</translation>
    </message>
    <message>
        <source>地图查找</source>
        <translation>Find on the map</translation>
    </message>
    <message>
        <source>查找地名</source>
        <translation>Find a place</translation>
    </message>
    <message>
        <source>上一个</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>下一个</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>空白</source>
        <translation>Empty</translation>
    </message>
    <message>
        <source>背后</source>
        <translation>Behind</translation>
    </message>
    <message>
        <source>选中文本</source>
        <translation>Selected text</translation>
    </message>
    <message>
        <source>高亮</source>
        <translation>Highlight</translation>
    </message>
    <message>
        <source>高亮;高亮显示选中的文字</source>
        <translation>Highlight;Highlight the selected text</translation>
    </message>
    <message>
        <source>下划线</source>
        <translation>Underline</translation>
    </message>
    <message>
        <source>下划线;为选中文字加下划线</source>
        <translation>Underline;Underline the selected text</translation>
    </message>
    <message>
        <source>取消选择</source>
        <translation>Select none</translation>
    </message>
    <message>
        <source>点此查找文本</source>
        <translation>Find text</translation>
    </message>
    <message>
        <source>上一项</source>
        <translation>Previous match</translation>
    </message>
    <message>
        <source>下一项</source>
        <translation>Next match</translation>
    </message>
    <message>
        <source>查找选项</source>
        <translation>Search options</translation>
    </message>
    <message>
        <source>整词搜索</source>
        <translation>Whole words</translation>
    </message>
    <message>
        <source>区分大小写</source>
        <translation>Match case</translation>
    </message>
    <message>
        <source>查找命令;按名称或拼音查找所有命令</source>
        <translation>Find a command;Finds every command by its name</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>固定</source>
        <translation>Fixed</translation>
    </message>
    <message>
        <source>可勾选的按钮</source>
        <translation>A checkable button</translation>
    </message>
    <message>
        <source>隐藏功能区;显示功能区</source>
        <translation>Hide the ribbon;Show the ribbon</translation>
    </message>
    <message>
        <source>关闭(&amp;C)</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>保存(&amp;S)</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>另存为(&amp;A)</source>
        <translation>Save &amp;as</translation>
    </message>
    <message>
        <source>打印(&amp;P)</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>属性(&amp;T)</source>
        <translation>Proper&amp;ties</translation>
    </message>
    <message>
        <source>明暗</source>
        <translation>Brightness</translation>
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
        <source>帮助(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>关于OFD阅读器</source>
        <translation>About OFD Reader</translation>
    </message>
    <message>
        <source>检查更新</source>
        <translation>Check for updates</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>保存(Ctrl+S)</source>
        <translation>Save (Ctrl+S)</translation>
    </message>
    <message>
        <source>打印(Ctrl+P)</source>
        <translation>Print (Ctrl+P)</translation>
    </message>
    <message>
        <source>无法恢复(Ctrl+Y)</source>
        <translation>Nothing to redo (Ctrl+Y)</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>实际大小;按100%比例显示</source>
        <translation>Actual size;Show the pages at 100%</translation>
    </message>
    <message>
        <source>适合宽度;页宽与窗口同宽</source>
        <translation>Fit width;Make pages as wide as the window</translation>
    </message>
    <message>
        <source>适合高度</source>
        <translation>Fit height</translation>
    </message>
    <message>
        <source>适合高度;页高与窗口同高</source>
        <translation>Fit height;Make pages as high as the window</translation>
    </message>
    <message>
        <source>适合页面</source>
        <translation>Fit page</translation>
    </message>
    <message>
        <source>适合页面;在窗口中显示整页</source>
        <translation>Fit page;Show whole pages in the window</translation>
    </message>
    <message>
        <source>放大;放大页面显示比例</source>
        <translation>Zoom in;Show the pages larger</translation>
    </message>
    <message>
        <source>选择或输入显示比例</source>
        <translation>Choose or enter a zoom</translation>
    </message>
    <message>
        <source>25%</source>
        <translation>25%</translation>
    </message>
    <message>
        <source>125%</source>
        <translation>125%</translation>
    </message>
    <message>
        <source>150%</source>
        <translation>150%</translation>
    </message>
    <message>
        <source>200%</source>
        <translation>200%</translation>
    </message>
    <message>
        <source>400%</source>
        <translation>400%</translation>
    </message>
    <message>
        <source>800%</source>
        <translation>800%</translation>
    </message>
    <message>
        <source>1600%</source>
        <translation>1600%</translation>
    </message>
    <message>
        <source>2400%</source>
        <translation>2400%</translation>
    </message>
    <message>
        <source>3200%</source>
        <translation>3200%</translation>
    </message>
    <message>
        <source>缩小;缩小页面显示比例</source>
        <translation>Zoom out;Show the pages smaller</translation>
    </message>
    <message>
        <source>首页</source>
        <translation>First</translation>
    </message>
    <message>
        <source>首页;跳转到第一页</source>
        <translation>First page;Go to the first page</translation>
    </message>
    <message>
        <source>上一页</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>上一页;跳转到前一页</source>
        <translation>Previous page;Go to the page before</translation>
    </message>
    <message>
        <source>下一页</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>下一页;跳转到后一页</source>
        <translation>Next page;Go to the page after</translation>
    </message>
    <message>
        <source>末页</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>末页;跳转到最后一页</source>
        <translation>Last page;Go to the last page</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>View</translation>
    </message>
    <message>
        <source>单页;一次显示一页</source>
        <translation>Single page;Show one page at a time</translation>
    </message>
    <message>
        <source>双页;左右并排显示两页</source>
        <translation>Facing pages;Show two pages side by side</translation>
    </message>
    <message>
        <source>单页连续</source>
        <translation>Scrolling</translation>
    </message>
    <message>
        <source>单页连续;上下连续滚动显示</source>
        <translation>Single pages, scrolling;Scroll through all pages</translation>
    </message>
    <message>
        <source>顺时针旋转;视图向右旋转90度</source>
        <translation>Rotate right;Turn the view clockwise by 90 degrees</translation>
    </message>
    <message>
        <source>逆时针旋转;视图向左旋转90度</source>
        <translation>Rotate left;Turn the view anticlockwise by 90 degrees</translation>
    </message>
    <message>
        <source>验证签名</source>
        <translation>Verify</translation>
    </message>
    <message>
        <source>验证签名;查看文档的签名、签章与证书</source>
        <translation>Verify signatures;Show the signatures, seals and certificates of the document</translation>
    </message>
    <message>
        <source>缩略图</source>
        <translation>Thumbnails</translation>
    </message>
    <message>
        <source>大纲</source>
        <translation>Outline</translation>
    </message>
    <message>
        <source>大纲;显示或隐藏文档的大纲</source>
        <translation>Outline;Show or hide the outline of the document</translation>
    </message>
    <message>
        <source>书签</source>
        <translation>Bookmarks</translation>
    </message>
    <message>
        <source>书签;显示书签，为当前页添加书签</source>
        <translation>Bookmarks;Show the bookmarks, and add one for the current page</translation>
    </message>
    <message>
        <source>批注</source>
        <translation>Annotations</translation>
    </message>
    <message>
        <source>批注;显示、编辑或删除文档中的批注</source>
        <translation>Annotations;Show, edit or delete the annotations of the document</translation>
    </message>
    <message>
        <source>附件</source>
        <translation>Attachments</translation>
    </message>
    <message>
        <source>附件;打开或保存文档中的附件</source>
        <translation>Attachments;Open or save the files attached to the document</translation>
    </message>
    <message>
        <source>全屏;隐藏窗口边框全屏阅读</source>
        <translation>Full screen;Read without the frame of the window</translation>
    </message>
    <message>
        <source>注释</source>
        <translation>Annotate</translation>
    </message>
    <message>
        <source>高亮;拖过文字以高亮显示</source>
        <translation>Highlight;Drag over text to highlight it</translation>
    </message>
    <message>
        <source>下划线;拖过文字以加下划线</source>
        <translation>Underline;Drag over text to underline it</translation>
    </message>
    <message>
        <source>删除线</source>
        <translation>Strikeout</translation>
    </message>
    <message>
        <source>删除线;拖过文字以加删除线</source>
        <translation>Strikeout;Drag over text to strike it out</translation>
    </message>
    <message>
        <source>便签</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>便签;单击页面以添加便签</source>
        <translation>Note;Click on the page to add a note</translation>
    </message>
    <message>
        <source>文本框</source>
        <translation>Text box</translation>
    </message>
    <message>
        <source>文本框;单击页面以添加文字</source>
        <translation>Text box;Click on the page to add text</translation>
    </message>
    <message>
        <source>铅笔</source>
        <translation>Pencil</translation>
    </message>
    <message>
        <source>铅笔;按住鼠标左键在页面上书写</source>
        <translation>Pencil;Hold the left mouse button and write on the page</translation>
    </message>
    <message>
        <source>橡皮</source>
        <translation>Eraser</translation>
    </message>
    <message>
        <source>橡皮;擦除手写的笔迹</source>
        <translation>Eraser;Erase handwriting</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>直线;拖动以画直线</source>
        <translation>Line;Drag to draw a line</translation>
    </message>
    <message>
        <source>箭头</source>
        <translation>Arrow</translation>
    </message>
    <message>
        <source>箭头;拖动以画箭头</source>
        <translation>Arrow;Drag to draw an arrow</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>矩形;拖动以画矩形</source>
        <translation>Rectangle;Drag to draw a rectangle</translation>
    </message>
    <message>
        <source>椭圆</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>椭圆;拖动以画椭圆</source>
        <translation>Ellipse;Drag to draw an ellipse</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>复制;把选中的文字放到剪贴板(Ctrl+C)</source>
        <translation>Copy;Put the selected text on the clipboard (Ctrl+C)</translation>
    </message>
    <message>
        <source>隐藏功能区</source>
        <translation>Hide the ribbon</translation>
    </message>
</context>
</TS>
