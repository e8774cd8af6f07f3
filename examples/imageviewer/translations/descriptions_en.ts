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
        <source>打开(&amp;O)...</source>
        <translation>&amp;Open...</translation>
    </message>
    <message>
        <source>最近打开的图片(&amp;R)</source>
        <translation>&amp;Recent pictures</translation>
    </message>
    <message>
        <source>无</source>
        <translation>None</translation>
    </message>
    <message>
        <source>清除记录</source>
        <translation>Clear the list</translation>
    </message>
    <message>
        <source>退出(&amp;X)</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>打开图片 (Ctrl+O)</source>
        <translation>Open a picture (Ctrl+O)</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>复制图片 (Ctrl+C)</source>
        <translation>Copy the picture (Ctrl+C)</translation>
    </message>
    <message>
        <source>自定义快速访问工具栏</source>
        <translation>Customise</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>第一张</source>
        <translation>First</translation>
    </message>
    <message>
        <source>第一张;文件夹中的第一张图片</source>
        <translation>First;The first picture of the folder</translation>
    </message>
    <message>
        <source>上一张</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>上一张;文件夹中的上一张图片</source>
        <translation>Previous;The picture before in the folder</translation>
    </message>
    <message>
        <source>序号</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>下一张</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>下一张;文件夹中的下一张图片</source>
        <translation>Next;The next picture of the folder</translation>
    </message>
    <message>
        <source>最后一张</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>最后一张;文件夹中的最后一张图片</source>
        <translation>Last;The last picture of the folder</translation>
    </message>
    <message>
        <source>向左转</source>
        <translation>Turn left</translation>
    </message>
    <message>
        <source>向左转;逆时针旋转90度</source>
        <translation>Turn left;By 90 degrees</translation>
    </message>
    <message>
        <source>向右转</source>
        <translation>Turn right</translation>
    </message>
    <message>
        <source>向右转;顺时针旋转90度</source>
        <translation>Turn right;By 90 degrees</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Mirror</translation>
    </message>
    <message>
        <source>镜像;左右翻转图片</source>
        <translation>Mirror;Left becomes right</translation>
    </message>
    <message>
        <source>复制;把图片放到剪贴板</source>
        <translation>Copy;Puts the picture on the clipboard</translation>
    </message>
    <message>
        <source>没有打开的图片</source>
        <translation>No picture is open</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>View</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>缩放</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>实际大小</source>
        <translation>Actual size</translation>
    </message>
    <message>
        <source>适合窗口</source>
        <translation>Fit window</translation>
    </message>
    <message>
        <source>适合宽度</source>
        <translation>Fit width</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50%</translation>
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
        <source>缩小</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>实际大小;一个像素对一个像素</source>
        <translation>Actual size;A pixel for a pixel</translation>
    </message>
    <message>
        <source>适合窗口;显示整张图片</source>
        <translation>Fit window;Shows the whole picture</translation>
    </message>
    <message>
        <source>适合宽度;图片与窗口同宽</source>
        <translation>Fit width;As wide as the window</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Full screen</translation>
    </message>
    <message>
        <source>全屏 (F11)</source>
        <translation>Full screen (F11)</translation>
    </message>
    <message>
        <source>外观</source>
        <translation>Look</translation>
    </message>
    <message>
        <source>灰色</source>
        <translation>Grey</translation>
    </message>
    <message>
        <source>灰色背景</source>
        <translation>Grey ground</translation>
    </message>
    <message>
        <source>白色</source>
        <translation>White</translation>
    </message>
    <message>
        <source>白色背景</source>
        <translation>White ground</translation>
    </message>
    <message>
        <source>黑色</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>黑色背景</source>
        <translation>Black ground</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>深色;工具栏用深色显示</source>
        <translation>Dark;A dark toolbar</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>English;Show the texts in English</source>
        <translation>English;Show the texts in English</translation>
    </message>
    <message>
        <source>查找文件名</source>
        <translation>Find by file name</translation>
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
        <source>查找选项</source>
        <translation>Search options</translation>
    </message>
    <message>
        <source>区分大小写</source>
        <translation>Match case</translation>
    </message>
    <message>
        <source>查找命令</source>
        <translation>Find a command</translation>
    </message>
    <message>
        <source>隐藏功能区;显示功能区</source>
        <translation>Hide the tools;Show the tools</translation>
    </message>
</context>
</TS>
