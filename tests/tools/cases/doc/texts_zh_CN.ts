<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>ModuleTexts</name>
    <message>
        <source>Plane wall</source>
        <translation>平壁</translation>
    </message>
    <message>
        <source>Heat</source>
        <translation>传热</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>层 &amp; &lt;厚&gt;</translation>
    </message>
    <message>
        <source>Clay brick</source>
        <translation type="unfinished">黏土砖</translation>
    </message>
    <message>
        <source>Stuff</source>
        <translation type="vanished">不再使用</translation>
    </message>
    <message>
        <source>Steady</source>
        <comment>of a person</comment>
        <translation>沉着</translation>
    </message>
    <message>
        <source>Convective</source>
        <translation></translation>
    </message>
</context>
<context>
    <name>Others</name>
    <message>
        <source>Wall</source>
        <translation>另一面墙</translation>
    </message>
</context>
</TS>
