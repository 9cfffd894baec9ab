<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: The Kelto developers -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>UTaskSelectDialog</name>
    <message>
        <source>Dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Open as the selected task type.</source>
        <translation>按所选任务类型打开。</translation>
    </message>
    <message>
        <source>Cancel the opening operation.</source>
        <translation>取消打开操作。</translation>
    </message>
    <message>
        <source>Open as the default project mode.</source>
        <translation>按默认项目模式打开。</translation>
    </message>
    <message>
        <source>You should confirm the task type:</source>
        <translation>请确认任务类型：</translation>
    </message>
    <message>
        <source>Wrong Sets</source>
        <translation>设置错误</translation>
    </message>
    <message>
        <source>Please connect Kelto first.</source>
        <translation>请先连接 Kelto。</translation>
    </message>
</context>
</TS>
