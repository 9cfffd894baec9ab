<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>KeltoItemFinding</name>
    <message>
        <source>%1: no value under &quot;%4&quot;, but there is one under &quot;%2&quot;.</source>
        <translation>%1：没有键为“%4”的值，但有键为“%2”的值。</translation>
    </message>
    <message>
        <source>%1: the value is empty.</source>
        <translation>%1：值为空。</translation>
    </message>
    <message>
        <source>%1: %2 is outside the allowed range (%3).</source>
        <translation>%1：%2 超出允许范围（%3）。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not among the choices (%3).</source>
        <translation>%1：“%2”不在可选值之中（%3）。</translation>
    </message>
    <message>
        <source>The mode &quot;%2&quot; has no parameters.</source>
        <translation>模式“%2”没有参数。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>, </source>
        <translation>，</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1，属于%2</translation>
    </message>
    <message>
        <source>%1, value %2</source>
        <translation>%1，第 %2 个值</translation>
    </message>
    <message>
        <source>...</source>
        <translation>……</translation>
    </message>
    <message>
        <source>%1: no value.</source>
        <translation>%1：没有值。</translation>
    </message>
    <message>
        <source>%1: no value. It may stay empty, but then an empty text has to be stored.</source>
        <translation>%1：没有值。此参数可以为空，但须存入空文本。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not two whole numbers with &quot;|&quot; between them.</source>
        <translation>%1：“%2”不是以“|”分隔的两个整数。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not two numbers with &quot;|&quot; between them.</source>
        <translation>%1：“%2”不是以“|”分隔的两个数。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a whole number.</source>
        <translation>%1：“%2”不是整数。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a number.</source>
        <translation>%1：“%2”不是数。</translation>
    </message>
    <message>
        <source>There is no mode &quot;%2&quot;.</source>
        <translation>没有名为“%2”的模式。</translation>
    </message>
    <message>
        <source>&quot;%2&quot; is a translated name. The mode is needed under its plain name, &quot;%3&quot;.</source>
        <translation>“%2”是译名，此处须用模式的原名“%3”。</translation>
    </message>
    <message>
        <source>There is no mode &quot;%2&quot;. Similar: %3.</source>
        <translation>没有名为“%2”的模式。相近的有：%3。</translation>
    </message>
</context>
<context>
    <name>KeltoItemHints</name>
    <message>
        <source>%1: there is no result &quot;%3&quot;.</source>
        <translation>%1：没有名为“%3”的结果。</translation>
    </message>
    <message>
        <source>%1: there is no parameter or result &quot;%3&quot;.</source>
        <translation>%1：没有名为“%3”的参数或结果。</translation>
    </message>
    <message>
        <source>%1: there is no inner mode &quot;%3&quot;.</source>
        <translation>%1：没有名为“%3”的内部模式。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a number.</source>
        <translation>%1：“%2”不是数。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not such a number as the parameter holds.</source>
        <translation>%1：“%2”不是该参数所要求的数。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is neither &quot;true&quot; nor &quot;false&quot;.</source>
        <translation>%1：“%2”既不是“true”也不是“false”。</translation>
    </message>
    <message>
        <source>%1: with &quot;%2&quot; the minimum is above the maximum.</source>
        <translation>%1：取“%2”时，最小值大于最大值。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; offers nothing, or one value twice.</source>
        <translation>%1：“%2”没有给出可选值，或有重复的值。</translation>
    </message>
    <message>
        <source>%1: the value has to be one text. In a file, one with a comma needs quotes.</source>
        <translation>%1：值须为单个文本。在文件中，含逗号的文本须加引号。</translation>
    </message>
    <message>
        <source>%1: this extra key is there twice; the first one counts.</source>
        <translation>%1：此附加键重复出现，以第一个为准。</translation>
    </message>
    <message>
        <source>%1: no value in &quot;%2&quot; can be chosen.</source>
        <translation>%1：“%2”中没有可选的值。</translation>
    </message>
    <message>
        <source>%1: there is no parameter &quot;%3&quot;.</source>
        <translation>%1：没有名为“%3”的参数。</translation>
    </message>
    <message>
        <source>%1: with &quot;%2&quot; parameters depend on each other in a circle.</source>
        <translation>%1：取“%2”时，参数之间循环依赖。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not &quot;parameter=value&quot;.</source>
        <translation>%1：“%2”不是“参数=值”的形式。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is none of the choices, such as %3.</source>
        <translation>%1：“%2”不在可选值之中，可选值如：%3。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is none of the choices: %3.</source>
        <translation>%1：“%2”不在可选值之中：%3。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is outside the limits: the minimum is %3.</source>
        <translation>%1：“%2”超出上下限：最小值为 %3。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is outside the limits: the maximum is %4.</source>
        <translation>%1：“%2”超出上下限：最大值为 %4。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is outside the limits: the minimum is %3 and the maximum %4.</source>
        <translation>%1：“%2”超出上下限：最小值为 %3，最大值为 %4。</translation>
    </message>
</context>
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
