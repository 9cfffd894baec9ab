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
    <name>KeltoFormsPlugin</name>
    <message>
        <source>A form for the parameters of a calculation</source>
        <translation>计算参数的输入表单</translation>
    </message>
    <message>
        <source>A table of the results of a calculation</source>
        <translation>计算结果表</translation>
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
    <name>KeltoResultView</name>
    <message>
        <source>1 value</source>
        <translation>1 个值</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>%1 个值</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>无值</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Sub-group</source>
        <translation>分组</translation>
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
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>复制为文本</translation>
    </message>
    <message>
        <source>Copy for a Spreadsheet</source>
        <translation>复制到电子表格</translation>
    </message>
    <message>
        <source>Export as CSV...</source>
        <translation>导出为 CSV...</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Export Results</source>
        <translation>导出结果</translation>
    </message>
    <message>
        <source>results.csv</source>
        <translation>结果.csv</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>表格 (*.csv);;所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>KeltoTableEditor</name>
    <message>
        <source>Rows: %1</source>
        <translation>行数：%1</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>Insert Row</source>
        <translation>插入行</translation>
    </message>
    <message>
        <source>Insert Row Above</source>
        <translation>在上方插入行</translation>
    </message>
    <message>
        <source>Delete Rows</source>
        <translation>删除行</translation>
    </message>
    <message>
        <source>Insert Column</source>
        <translation>插入列</translation>
    </message>
    <message>
        <source>Delete Columns</source>
        <translation>删除列</translation>
    </message>
    <message>
        <source>Clear Cells</source>
        <translation>清空单元格</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>导入...</translation>
    </message>
    <message>
        <source>Nothing was pasted.</source>
        <translation>未粘贴任何内容。</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>导入表格</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>表格 (*.csv *.tsv *.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Nothing was imported from %1.</source>
        <translation>未从 %1 导入任何内容。</translation>
    </message>
    <message>
        <source>Imported rows: %1</source>
        <translation>已导入行数：%1</translation>
    </message>
    <message>
        <source>Imported rows: %1, without the line of headings</source>
        <translation>已导入行数：%1（不含标题行）</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds &quot;|&quot;, which stands between the cells of a row.</source>
        <translation>“%1”含有用于分隔单元格的“|”。</translation>
    </message>
    <message>
        <source>A number is missing.</source>
        <translation>缺少数字。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>“%1”不是数字。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number.</source>
        <translation>“%1”不是整数。</translation>
    </message>
    <message>
        <source>The file is not UTF-8 text.</source>
        <translation>该文件不是 UTF-8 文本。</translation>
    </message>
    <message>
        <source>There is nothing to take over.</source>
        <translation>没有可导入的内容。</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>第 %1 行第 %2 列：%3</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>另有 %1 处。</translation>
    </message>
    <message>
        <source>There is no such column in the table.</source>
        <translation>表格中没有这一列。</translation>
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
