<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>CommandFinder</name>
    <message>
        <source>快速访问工具栏</source>
        <translation>Quick access toolbar</translation>
    </message>
</context>
<context>
    <name>FindPopup</name>
    <message>
        <source>查找命令</source>
        <translation>Find a command</translation>
    </message>
    <message>
        <source>找到的命令</source>
        <translation>Commands found</translation>
    </message>
    <message>
        <source>没有找到命令</source>
        <translation>No command found</translation>
    </message>
    <message>
        <source>回车执行，Ctrl+回车显示位置</source>
        <translation>Enter runs it, Ctrl+Enter shows where it is</translation>
    </message>
</context>
<context>
    <name>FoundModel</name>
    <message>
        <source>不可用</source>
        <translation>Not available</translation>
    </message>
</context>
<context>
    <name>HandWriteDialog</name>
    <message>
        <source>手写设置</source>
        <translation>Handwriting settings</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>颜色</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>取色</source>
        <translation>Pick</translation>
    </message>
    <message>
        <source>其他颜色</source>
        <translation>Other colours</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;#otherColour&quot;&gt;&lt;u&gt;其他颜色&lt;/u&gt;&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;#otherColour&quot;&gt;&lt;u&gt;Other colours&lt;/u&gt;&lt;/a&gt;</translation>
    </message>
    <message>
        <source>粗细</source>
        <translation>Thickness</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>不透明度</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source>不透明度 25%</source>
        <translation>Opacity 25%</translation>
    </message>
    <message>
        <source>25%</source>
        <translation>25%</translation>
    </message>
    <message>
        <source>不透明度 50%</source>
        <translation>Opacity 50%</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50%</translation>
    </message>
    <message>
        <source>不透明度 75%</source>
        <translation>Opacity 75%</translation>
    </message>
    <message>
        <source>75%</source>
        <translation>75%</translation>
    </message>
    <message>
        <source>不透明度 100%</source>
        <translation>Opacity 100%</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>笔型</source>
        <translation>Pen</translation>
    </message>
    <message>
        <source>笔型一</source>
        <translation>Pen 1</translation>
    </message>
    <message>
        <source>笔型二</source>
        <translation>Pen 2</translation>
    </message>
    <message>
        <source>笔型三</source>
        <translation>Pen 3</translation>
    </message>
    <message>
        <source>笔型四</source>
        <translation>Pen 4</translation>
    </message>
    <message>
        <source>笔型五</source>
        <translation>Pen 5</translation>
    </message>
    <message>
        <source>笔型六</source>
        <translation>Pen 6</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>图片预览区域</source>
        <translation>Preview of the line</translation>
    </message>
    <message>
        <source>区域</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>区域手写</source>
        <translation>Write in region</translation>
    </message>
    <message>
        <source>区域手写设置</source>
        <translation>Settings for writing in a region</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Settings…</translation>
    </message>
</context>
<context>
    <name>KeyTipLayer</name>
    <message>
        <source>按键提示：%1</source>
        <translation>Key tips: %1</translation>
    </message>
</context>
<context>
    <name>MRExtendButton</name>
    <message>
        <source>向左滚动</source>
        <translation>Scroll left</translation>
    </message>
    <message>
        <source>向右滚动</source>
        <translation>Scroll right</translation>
    </message>
</context>
<context>
    <name>MRHandWriteDialog</name>
    <message>
        <source>红色</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>绿色</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>黄色</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>黑色</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>白色</source>
        <translation>White</translation>
    </message>
    <message>
        <source>蓝色</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>深红色</source>
        <translation>Dark red</translation>
    </message>
    <message>
        <source>品红色</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>深绿色</source>
        <translation>Dark green</translation>
    </message>
    <message>
        <source>青色</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>图片预览区域</source>
        <translation>Preview of the line</translation>
    </message>
</context>
<context>
    <name>MRMainToolBar</name>
    <message>
        <source>更多</source>
        <translation>More</translation>
    </message>
</context>
<context>
    <name>MoreButton</name>
    <message>
        <source>更多</source>
        <translation>More</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Invalid Char</source>
        <translation>Invalid Char</translation>
    </message>
    <message>
        <source>Please Input a Number or Point</source>
        <translation>Please Input a Number or Point</translation>
    </message>
    <message>
        <source>&amp;%1 %2</source>
        <translation>&amp;%1 %2</translation>
    </message>
</context>
<context>
    <name>QuickAccessOffer</name>
    <message>
        <source>从快速访问工具栏移除</source>
        <translation>Remove from the quick access toolbar</translation>
    </message>
    <message>
        <source>添加到快速访问工具栏</source>
        <translation>Add to the quick access toolbar</translation>
    </message>
</context>
<context>
    <name>TabStripArrow</name>
    <message>
        <source>向左滚动</source>
        <translation>Scroll left</translation>
    </message>
    <message>
        <source>向右滚动</source>
        <translation>Scroll right</translation>
    </message>
</context>
</TS>
