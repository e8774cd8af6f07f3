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
        <source>设置(&amp;C)</source>
        <translation>Op&amp;tions</translation>
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
        <source>最近打开的文件(&amp;Z)</source>
        <translation>&amp;Recent files</translation>
    </message>
    <message>
        <source>无</source>
        <translation>None</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Exit</translation>
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
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>保存(Ctrl+S)</source>
        <translation>Save (Ctrl+S)</translation>
    </message>
    <message>
        <source>打印</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>打印(Ctrl+P)</source>
        <translation>Print (Ctrl+P)</translation>
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
        <source>无法恢复(Ctrl+Y)</source>
        <translation>Nothing to redo (Ctrl+Y)</translation>
    </message>
    <message>
        <source>自定义快速访问工具栏</source>
        <translation>Customise quick access</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>打开;打开OFD文件</source>
        <translation>Open;Open an OFD file</translation>
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
        <source>顺时针</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>顺时针旋转;视图向右旋转90度</source>
        <translation>Rotate right;Turn the view clockwise by 90 degrees</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>逆时针旋转;视图向左旋转90度</source>
        <translation>Rotate left;Turn the view anticlockwise by 90 degrees</translation>
    </message>
    <message>
        <source>实际大小</source>
        <translation>Actual size</translation>
    </message>
    <message>
        <source>实际大小;按100%比例显示</source>
        <translation>Actual size;Show the pages at 100%</translation>
    </message>
    <message>
        <source>适合宽度</source>
        <translation>Fit width</translation>
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
        <source>放大</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>放大;放大页面显示比例</source>
        <translation>Zoom in;Show the pages larger</translation>
    </message>
    <message>
        <source>缩放</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>选择或输入显示比例</source>
        <translation>Choose or enter a zoom</translation>
    </message>
    <message>
        <source>10%</source>
        <translation>10%</translation>
    </message>
    <message>
        <source>25%</source>
        <translation>25%</translation>
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
        <source>6400%</source>
        <translation>6400%</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Zoom out</translation>
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
        <source>单页</source>
        <translation>Single</translation>
    </message>
    <message>
        <source>单页;一次显示一页</source>
        <translation>Single page;Show one page at a time</translation>
    </message>
    <message>
        <source>双页</source>
        <translation>Facing</translation>
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
        <source>全屏</source>
        <translation>Full screen</translation>
    </message>
    <message>
        <source>全屏;隐藏窗口边框全屏阅读</source>
        <translation>Full screen;Read without the frame of the window</translation>
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
        <source>设置</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>隐藏功能区</source>
        <translation>Hide the ribbon</translation>
    </message>
    <message>
        <source>关闭(&amp;C)</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>菜单</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>更多菜单</source>
        <translation>More menus</translation>
    </message>
    <message>
        <source>编辑(&amp;E)</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>查找</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>高级搜索</source>
        <translation>Advanced search</translation>
    </message>
    <message>
        <source>选择当前页</source>
        <translation>Select this page</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>取消选择</source>
        <translation>Select none</translation>
    </message>
    <message>
        <source>文档(&amp;D)</source>
        <translation>&amp;Document</translation>
    </message>
    <message>
        <source>页面</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>插入空白页</source>
        <translation>Insert blank page</translation>
    </message>
    <message>
        <source>插入页面</source>
        <translation>Insert pages</translation>
    </message>
    <message>
        <source>视图(&amp;V)</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>导航面板</source>
        <translation>Navigation panes</translation>
    </message>
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
        <translation>Custom tags</translation>
    </message>
    <message>
        <source>书签</source>
        <translation>Bookmarks</translation>
    </message>
    <message>
        <source>批注</source>
        <translation>Comments</translation>
    </message>
    <message>
        <source>附件</source>
        <translation>Attachments</translation>
    </message>
    <message>
        <source>页面布局</source>
        <translation>Page layout</translation>
    </message>
    <message>
        <source>双页连续</source>
        <translation>Spread</translation>
    </message>
    <message>
        <source>缩放方式</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>旋转视图</source>
        <translation>Rotate view</translation>
    </message>
    <message>
        <source>痕迹信息</source>
        <translation>Traces</translation>
    </message>
    <message>
        <source>工具(&amp;T)</source>
        <translation>&amp;Tools</translation>
    </message>
    <message>
        <source>文本标注</source>
        <translation>Text markup</translation>
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
        <source>波浪线</source>
        <translation>Wavy line</translation>
    </message>
    <message>
        <source>删除线</source>
        <translation>Strike</translation>
    </message>
    <message>
        <source>图形标注</source>
        <translation>Shapes</translation>
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
        <source>签章</source>
        <translation>Seal</translation>
    </message>
    <message>
        <source>电子签章</source>
        <translation>Sign</translation>
    </message>
    <message>
        <source>骑缝章</source>
        <translation>Cross-page</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>打印遮罩</source>
        <translation>Print masks</translation>
    </message>
    <message>
        <source>显示遮罩</source>
        <translation>Masks</translation>
    </message>
    <message>
        <source>阅读</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>共 页</source>
        <translation>of   pages</translation>
    </message>
    <message>
        <source>双页连续;两页并排连续滚动</source>
        <translation>Facing pages, scrolling;Scroll through pairs of pages</translation>
    </message>
    <message>
        <source>撤销;撤销上一步操作</source>
        <translation>Undo;Undo the last step</translation>
    </message>
    <message>
        <source>恢复;恢复撤销的操作</source>
        <translation>Redo;Do again what was undone</translation>
    </message>
    <message>
        <source>高亮;高亮显示选中的文字</source>
        <translation>Highlight;Highlight the selected text</translation>
    </message>
    <message>
        <source>下划线;为选中文字加下划线</source>
        <translation>Underline;Underline the selected text</translation>
    </message>
    <message>
        <source>波浪线;为选中文字加波浪线</source>
        <translation>Wavy line;Draw a wavy line below the selected text</translation>
    </message>
    <message>
        <source>删除线;为选中文字加删除线</source>
        <translation>Strike through;Strike the selected text through</translation>
    </message>
    <message>
        <source>显示遮罩;显示时遮盖指定区域</source>
        <translation>Masks;Cover parts of the pages on the screen</translation>
    </message>
    <message>
        <source>添加修订</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>添加修订;标出需要增补的文字</source>
        <translation>Insertion mark;Mark where text is missing</translation>
    </message>
    <message>
        <source>删除修订</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>删除修订;标出需要删去的文字</source>
        <translation>Deletion mark;Mark text that is to go</translation>
    </message>
    <message>
        <source>插入线</source>
        <translation>Caret</translation>
    </message>
    <message>
        <source>插入线;标出文字的插入位置</source>
        <translation>Caret;Mark the place for more text</translation>
    </message>
    <message>
        <source>替换</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>替换;标出需要替换的文字</source>
        <translation>Replacement mark;Mark text that is to be replaced</translation>
    </message>
    <message>
        <source>移出</source>
        <translation>Move</translation>
    </message>
    <message>
        <source>移出;标出需要移走的文字</source>
        <translation>Move mark;Mark text that is to be moved away</translation>
    </message>
    <message>
        <source>增大间距</source>
        <translation>Widen</translation>
    </message>
    <message>
        <source>增大间距;标出需要加大的间隔</source>
        <translation>Widen;Mark where more space is needed</translation>
    </message>
    <message>
        <source>减小间距</source>
        <translation>Narrow</translation>
    </message>
    <message>
        <source>减小间距;标出需要减小的间隔</source>
        <translation>Narrow;Mark where less space is needed</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Shift on</translation>
    </message>
    <message>
        <source>后移;标出需要后移的文字</source>
        <translation>Shift on;Mark text that is to move on</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Shift up</translation>
    </message>
    <message>
        <source>前移;标出需要前移的文字</source>
        <translation>Shift up;Mark text that is to move up</translation>
    </message>
    <message>
        <source>查看修订</source>
        <translation>Review</translation>
    </message>
    <message>
        <source>查看修订;显示或隐藏修订标记</source>
        <translation>Review;Show or hide the marks</translation>
    </message>
    <message>
        <source>手写画笔</source>
        <translation>Pen</translation>
    </message>
    <message>
        <source>手写画笔;选择画笔在页面书写</source>
        <translation>Pens;Choose a pen and write on the pages</translation>
    </message>
    <message>
        <source>铅笔</source>
        <translation>Pencil</translation>
    </message>
    <message>
        <source>铅笔;手写细线条</source>
        <translation>Pencil;Write in fine lines</translation>
    </message>
    <message>
        <source>签字笔0.5</source>
        <translation>Pen 0.5</translation>
    </message>
    <message>
        <source>签字笔;线宽0.5毫米</source>
        <translation>Pen;Lines of 0.5 mm</translation>
    </message>
    <message>
        <source>签字笔1.0</source>
        <translation>Pen 1.0</translation>
    </message>
    <message>
        <source>签字笔;线宽1毫米</source>
        <translation>Pen;Lines of 1 mm</translation>
    </message>
    <message>
        <source>软笔1.0</source>
        <translation>Brush 1.0</translation>
    </message>
    <message>
        <source>软笔;线宽1毫米</source>
        <translation>Brush;Lines of 1 mm</translation>
    </message>
    <message>
        <source>软笔2.0</source>
        <translation>Brush 2.0</translation>
    </message>
    <message>
        <source>软笔;线宽2毫米</source>
        <translation>Brush;Lines of 2 mm</translation>
    </message>
    <message>
        <source>软笔3.0</source>
        <translation>Brush 3.0</translation>
    </message>
    <message>
        <source>软笔;线宽3毫米</source>
        <translation>Brush;Lines of 3 mm</translation>
    </message>
    <message>
        <source>橡皮擦</source>
        <translation>Eraser</translation>
    </message>
    <message>
        <source>橡皮擦;擦除页面上的笔迹</source>
        <translation>Eraser;Rub out ink on the pages</translation>
    </message>
    <message>
        <source>小橡皮</source>
        <translation>Small</translation>
    </message>
    <message>
        <source>小橡皮;擦除细小笔迹</source>
        <translation>Small eraser;Rub out fine ink</translation>
    </message>
    <message>
        <source>中橡皮</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>中橡皮;擦除一般笔迹</source>
        <translation>Medium eraser;Rub out most ink</translation>
    </message>
    <message>
        <source>大橡皮</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>大橡皮;擦除大片笔迹</source>
        <translation>Large eraser;Rub out a lot of ink</translation>
    </message>
    <message>
        <source>文本框</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>文本框;在页面上添加文字</source>
        <translation>Text box;Add text to a page</translation>
    </message>
    <message>
        <source>便签</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>便签;在页面上添加便签</source>
        <translation>Note;Add a note to a page</translation>
    </message>
    <message>
        <source>添加水印</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>添加水印;为文档页面添加水印</source>
        <translation>Watermark;Add a watermark to the pages</translation>
    </message>
    <message>
        <source>绘制图形</source>
        <translation>Shapes</translation>
    </message>
    <message>
        <source>绘制图形;在页面上绘制图形</source>
        <translation>Shapes;Draw shapes on a page</translation>
    </message>
    <message>
        <source>安全</source>
        <translation>Security</translation>
    </message>
    <message>
        <source>保存信封</source>
        <translation>Envelope</translation>
    </message>
    <message>
        <source>保存信封;将文档存为数字信封</source>
        <translation>Save envelope;Save the document as a digital envelope</translation>
    </message>
    <message>
        <source>电子签章;在页面上加盖签章</source>
        <translation>Sign;Put an electronic seal on a page</translation>
    </message>
    <message>
        <source>骑缝章;在多页边缘加盖签章</source>
        <translation>Cross-page seal;Put a seal across the edges of several pages</translation>
    </message>
    <message>
        <source>印章</source>
        <translation>Stamp</translation>
    </message>
    <message>
        <source>印章;在页面上加盖印章图案</source>
        <translation>Stamp;Put the picture of a stamp on a page</translation>
    </message>
    <message>
        <source>签章标记</source>
        <translation>Seal mark</translation>
    </message>
    <message>
        <source>签章标记;标出需要盖章的位置</source>
        <translation>Seal mark;Mark where a seal is needed</translation>
    </message>
    <message>
        <source>图章</source>
        <translation>Rubber stamp</translation>
    </message>
    <message>
        <source>图章;在页面上添加图章</source>
        <translation>Rubber stamp;Add a rubber stamp to a page</translation>
    </message>
    <message>
        <source>贴图</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>贴图;在页面上粘贴图片</source>
        <translation>Picture;Paste a picture on a page</translation>
    </message>
    <message>
        <source>软件信息</source>
        <translation>About</translation>
    </message>
</context>
</TS>
