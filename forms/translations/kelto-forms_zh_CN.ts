<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: The Kelto developers -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>ChoiceBox</name>
    <message>
        <source>Choose</source>
        <translation>请选择</translation>
    </message>
</context>
<context>
    <name>KeltoParameterForm</name>
    <message>
        <source>missing</source>
        <translation>缺少</translation>
    </message>
    <message>
        <source>1 of %1 parameters is missing: %2</source>
        <translation>%1 个参数中缺少 1 个：%2</translation>
    </message>
    <message>
        <source>%1 of %2 parameters are missing: %3</source>
        <translation>%2 个参数中缺少 %1 个：%3</translation>
    </message>
    <message>
        <source>To be checked: %1</source>
        <translation>请检查：%1</translation>
    </message>
    <message>
        <source>All parameters are filled in.</source>
        <translation>所有参数均已填写。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 等，另有 %2 个</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Advanced parameters</source>
        <translation>高级参数</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
</context>
<context>
    <name>KeltoParameterModel</name>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation>恢复默认值</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>编辑 %1</translation>
    </message>
</context>
<context>
    <name>LineWithButton</name>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Browse for %1</source>
        <translation>为 %1 浏览文件</translation>
    </message>
    <message>
        <source>Choose a colour for %1</source>
        <translation>为 %1 选择颜色</translation>
    </message>
</context>
</TS>
