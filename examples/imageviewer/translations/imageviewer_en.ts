<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>ViewerWindow</name>
    <message>
        <source>无法打开：%1</source>
        <translation>Cannot open %1</translation>
    </message>
    <message>
        <source>没有名称含“%1”的图片</source>
        <translation>No picture has “%1” in its name</translation>
    </message>
</context>
</TS>
