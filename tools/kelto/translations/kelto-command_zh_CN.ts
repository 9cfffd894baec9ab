<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Command</name>
    <message>
        <source>no parameter of the mode is in the sub-group &quot;%1&quot;.</source>
        <translation>该模式没有属于分组“%1”的参数。</translation>
    </message>
    <message>
        <source>not complete for the mode &quot;%1&quot;.</source>
        <translation>对模式“%1”不完整。</translation>
    </message>
    <message>
        <source>complete for the mode &quot;%1&quot;.</source>
        <translation>对模式“%1”完整。</translation>
    </message>
    <message>
        <source>complete for the mode &quot;%1&quot;, but with values that do not fit.</source>
        <translation>对模式“%1”完整，但有不合要求的值。</translation>
    </message>
    <message>
        <source>&quot;check&quot; needs --%1. Try &quot;kelto check --help&quot;.</source>
        <translation>“check”需要 --%1。请试“kelto check --help”。</translation>
    </message>
    <message>
        <source>Say what a file of values lacks for a mode</source>
        <translation>说明数据文件对某一模式缺少什么</translation>
    </message>
    <message>
        <source>Compares the values that a host stored in an INI file, under keys that begin with &quot;Attribute/&quot;, with what a mode of an item needs: what is missing, and which values do not fit. &quot;complete&quot; means that KeltoItemParameterVerify::isValid() is true; the findings are those of its explain(). Exit code 1 when there is a finding.</source>
        <translation>将宿主程序存入 INI 文件、键以“Attribute/”开头的值，与模块项的某一模式所需的值比较：缺少哪些值，哪些值不合要求。“完整”指 KeltoItemParameterVerify::isValid() 为真；列出的问题即其 explain() 所说明的问题。有问题时退出码为 1。</translation>
    </message>
    <message>
        <source>The item file. Needed.</source>
        <translation>模块项文件。必需。</translation>
    </message>
    <message>
        <source>The plain name of the mode. Needed.</source>
        <translation>模式的原名。必需。</translation>
    </message>
    <message>
        <source>Leave out the parameters of this sub-group; may be repeated.</source>
        <translation>不检查此分组的参数；可以重复给出。</translation>
    </message>
    <message>
        <source>What the project lacks for a cantilever.</source>
        <translation>项目对悬臂模式还缺少什么。</translation>
    </message>
    <message>
        <source>&quot;code&quot; needs a directory to write into, with &quot;-o DIR&quot;.</source>
        <translation>“code”需要写入的目录，请用“-o DIR”给出。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a name in C++.</source>
        <translation>“%1”不能作为 C++ 的名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a class in C++.</source>
        <translation>“%1”不能作为 C++ 的类名。</translation>
    </message>
    <message>
        <source>is the function of %1 already</source>
        <translation>已是 %1 的函数</translation>
    </message>
    <message>
        <source>is the name of %1 in the resources already</source>
        <translation>已是 %1 在资源中的名称</translation>
    </message>
    <message>
        <source>is empty or missing: this is no item</source>
        <translation>为空或缺失：这不是模块项</translation>
    </message>
    <message>
        <source>Write C++ source text that builds the items</source>
        <translation>编写构造模块项的 C++ 源代码</translation>
    </message>
    <message>
        <source>Writes NAME.h and NAME.cpp, in the order of the files: in the namespace NAME one function for each item, called as its codeFunctionName says, and allItems(), which also returns items without one. The texts are those of AUTH_INF::to_code(); tr() needs no class of the program&apos;s, and lupdate finds all texts, those of hints included.

Files are written only when they change. An item that source text cannot carry is an error, and nothing is written: a double quote would end a literal, and what stands behind it would become code of the program.</source>
        <translation>按文件的顺序编写 NAME.h 和 NAME.cpp：在命名空间 NAME 中，每个模块项有一个函数，函数名取自其 codeFunctionName；另有 allItems()，它也返回没有函数名的模块项。文本与 AUTH_INF::to_code() 的相同；tr() 不需要程序自己的类，lupdate 能找到所有文本，包括提示中的文本。

仅当内容改变时才写入文件。源代码无法容纳的模块项是错误，此时不写入任何文件：双引号会结束字符串，其后的内容会成为程序的代码。</translation>
    </message>
    <message>
        <source>List everything that is wrong with the items, as &quot;kelto lint&quot; does, and write nothing when there is an error.</source>
        <translation>像“kelto lint”一样列出模块项的所有错误，有错误时不写入任何文件。</translation>
    </message>
    <message>
        <source>The directory to write into, made where it is missing.</source>
        <translation>写入的目录，没有时创建。</translation>
    </message>
    <message>
        <source>The name of files and namespace instead of keltoitems.</source>
        <translation>文件和命名空间的名称，代替 keltoitems。</translation>
    </message>
    <message>
        <source>The translation context of items without a Tr_ObjectName.</source>
        <translation>没有 Tr_ObjectName 的模块项所用的翻译上下文。</translation>
    </message>
    <message>
        <source>Load the items from resources, and write NAME.qrc to compile these, so that they may hold any text.</source>
        <translation>从资源载入模块项，并编写用于编译这些资源的 NAME.qrc，这样模块项可以含有任何文本。</translation>
    </message>
    <message>
        <source>Source text for all items of a directory.</source>
        <translation>为一个目录的所有模块项编写源代码。</translation>
    </message>
    <message>
        <source>One item as a resource.</source>
        <translation>将一个模块项作为资源。</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>用法：</translation>
    </message>
    <message>
        <source>COMMAND [OPTION...] FILE...</source>
        <translation>COMMAND [OPTION...] FILE...</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>命令：</translation>
    </message>
    <message>
        <source>&quot;kelto COMMAND --help&quot; says what a command takes. Exit codes: 0 done, 1 findings or not found, 2 wrong usage.</source>
        <translation>“kelto COMMAND --help”说明该命令的用法。退出码：0 完成，1 有问题或未找到，2 用法错误。</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>示例：</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;.</source>
        <translation>没有选项“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs &quot;%2&quot;.</source>
        <translation>“%1”需要“%2”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no &quot;%2&quot;.</source>
        <translation>“%1”不接受“%2”。</translation>
    </message>
    <message>
        <source>a command is missing.</source>
        <translation>缺少命令。</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;.</source>
        <translation>没有命令“%1”。</translation>
    </message>
    <message>
        <source>Write the result as JSON.</source>
        <translation>以 JSON 写出结果。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>The module is named &quot;%1&quot;.</source>
        <translation>模块名为“%1”。</translation>
    </message>
    <message>
        <source>Its causality is &quot;%1&quot;: it is neither entered nor shown.</source>
        <translation>其因果性为“%1”：既不输入也不显示。</translation>
    </message>
    <message>
        <source>No form can show the type %1.</source>
        <translation>表单不能显示类型 %1。</translation>
    </message>
    <message>
        <source>Its key is &quot;%1&quot;.</source>
        <translation>其键为“%1”。</translation>
    </message>
    <message>
        <source>the root is not &quot;fmiModelDescription&quot;.</source>
        <translation>根元素不是“fmiModelDescription”。</translation>
    </message>
    <message>
        <source>version &quot;%1&quot; of FMI is unknown: 2 and 3 are known.</source>
        <translation>未知的 FMI 版本“%1”：已知的是 2 和 3。</translation>
    </message>
    <message>
        <source>line %1: %2.</source>
        <translation>第 %1 行：%2。</translation>
    </message>
    <message>
        <source>a boolean</source>
        <translation>布尔值</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>数组</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>空值</translation>
    </message>
    <message>
        <source>%1 is expected here, not %2.</source>
        <translation>此处应为%1，而不是%2。</translation>
    </message>
    <message>
        <source>a whole number of 32 bits is expected here.</source>
        <translation>此处应为 32 位整数。</translation>
    </message>
    <message>
        <source>there is no such member.</source>
        <translation>没有这样的成员。</translation>
    </message>
    <message>
        <source>the member &quot;key&quot; is missing.</source>
        <translation>缺少成员“key”。</translation>
    </message>
    <message>
        <source>QSettings would not read a value from this.</source>
        <translation>QSettings 无法由此读出值。</translation>
    </message>
    <message>
        <source>only &quot;double&quot; is a type; other values are &quot;stored&quot;.</source>
        <translation>类型只有“double”；其他值为“stored”。</translation>
    </message>
    <message>
        <source>this is no number.</source>
        <translation>这不是数。</translation>
    </message>
    <message>
        <source>the member &quot;name&quot; is missing.</source>
        <translation>缺少成员“name”。</translation>
    </message>
    <message>
        <source>line %1: this is no JSON: %2.</source>
        <translation>第 %1 行：这不是 JSON：%2。</translation>
    </message>
    <message>
        <source>an object is expected, not an array.</source>
        <translation>此处应为对象，而不是数组。</translation>
    </message>
    <message>
        <source>translated texts</source>
        <translation>译文</translation>
    </message>
    <message>
        <source>Item files hold none: they come from the host.</source>
        <translation>模块项文件不含译文：译文由宿主程序提供。</translation>
    </message>
    <message>
        <source>an item file cannot hold what is in: %1.</source>
        <translation>模块项文件无法容纳以下内容：%1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no format: &quot;ini&quot; and &quot;json&quot; are.</source>
        <translation>“%1”不是格式：格式为“ini”和“json”。</translation>
    </message>
    <message>
        <source>Convert an item between its file, JSON and FMI</source>
        <translation>在模块项文件、JSON 和 FMI 之间转换模块项</translation>
    </message>
    <message>
        <source>Makes JSON of an item file, and an item file of JSON or of the modelDescription.xml of a Functional Mock-up Unit, version 2 or 3. JSON holds every field of an item, also translated texts, which an item file cannot.

Of a model, parameters and inputs become parameters, outputs become results, and each kind of simulation a mode; units, start values, limits, enumerations and descriptions are taken over. What has no place is listed, but for the base units and the capabilities of the library.</source>
        <translation>将模块项文件转换为 JSON，或将 JSON 或 Functional Mock-up Unit（版本 2 或 3）的 modelDescription.xml 转换为模块项文件。JSON 含有模块项的所有字段，包括模块项文件不能含有的译文。

对于模型，参数和输入成为参数，输出成为结果，每种仿真方式成为一个模式；单位、初始值、上下限、枚举和说明均予保留。没有对应位置的内容都会列出，但基本单位和库的能力除外。</translation>
    </message>
    <message>
        <source>Write this file in place of the standard output.</source>
        <translation>写入此文件，代替标准输出。</translation>
    </message>
    <message>
        <source>An item as JSON.</source>
        <translation>以 JSON 表示模块项。</translation>
    </message>
    <message>
        <source>The model of another tool as a module.</source>
        <translation>将其他工具的模型转换为模块。</translation>
    </message>
    <message>
        <source>%1: left out, since its module has the name of that in %2.</source>
        <translation>%1：已略去，因其模块与 %2 中的模块同名。</translation>
    </message>
    <message>
        <source>module &quot;%1&quot;</source>
        <translation>模块“%1”</translation>
    </message>
    <message>
        <source>mode &quot;%1&quot;</source>
        <translation>模式“%1”</translation>
    </message>
    <message>
        <source>parameter &quot;%1&quot;</source>
        <translation>参数“%1”</translation>
    </message>
    <message>
        <source>result &quot;%1&quot;</source>
        <translation>结果“%1”</translation>
    </message>
    <message>
        <source>extra key &quot;%1&quot;</source>
        <translation>附加键“%1”</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>added</source>
        <translation>已添加</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>renamed to %1</source>
        <translation>已改名为%1</translation>
    </message>
    <message>
        <source>%1: %2, now %3</source>
        <translation>%1：%2，现为%3</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1（模式 %2）</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>no difference</source>
        <translation>没有差异</translation>
    </message>
    <message>
        <source>&quot;!&quot;: stored projects lose something there.</source>
        <translation>“!”：已保存的项目在此处会丢失内容。</translation>
    </message>
    <message>
        <source>a file can only be compared with a file, and a directory with a directory.</source>
        <translation>文件只能与文件比较，目录只能与目录比较。</translation>
    </message>
    <message>
        <source>Compare two versions of module items</source>
        <translation>比较模块项的两个版本</translation>
    </message>
    <message>
        <source>What has changed in a module.</source>
        <translation>模块中改变了什么。</translation>
    </message>
    <message>
        <source>The same for all modules, for a program.</source>
        <translation>比较所有模块，供程序使用。</translation>
    </message>
    <message>
        <source>the directory for the manual is missing; name it with &quot;-o DIR&quot;.</source>
        <translation>缺少手册的目录；请用“-o DIR”给出。</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; there are: %2.</source>
        <translation>没有格式“%1”；可用的有：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no language; write it as &quot;en&quot; or &quot;zh_CN&quot;.</source>
        <translation>“%1”不是语言；请写作“en”或“zh_CN”。</translation>
    </message>
    <message>
        <source>%1: holds no module: the section &quot;KeltoItem&quot; with a &quot;name&quot; is missing. &quot;kelto lint&quot; says more.</source>
        <translation>%1：不含模块：缺少含有“name”的“KeltoItem”节。“kelto lint”给出详细说明。</translation>
    </message>
    <message>
        <source>%1: does not say its language; end its name as in &quot;modules_zh_CN.qm&quot;.</source>
        <translation>%1：没有说明其语言；请使文件名以语言结尾，如“modules_zh_CN.qm”。</translation>
    </message>
    <message>
        <source>%1: was not written by &quot;kelto code&quot; and is not replaced; remove it, or choose another name or directory.</source>
        <translation>%1：不是由“kelto code”写入的，不予替换；请删除它，或选择其他名称或目录。</translation>
    </message>
    <message>
        <source>%1: was not written by &quot;kelto doc&quot; and is not replaced; remove it, or choose another directory.</source>
        <translation>%1：不是由“kelto doc”写入的，不予替换；请删除它，或选择其他目录。</translation>
    </message>
    <message>
        <source>%1: is left from an earlier manual; nothing links to it.</source>
        <translation>%1：是以前的手册留下的，没有链接指向它。</translation>
    </message>
    <message>
        <source>The directory for the manual, which is made if missing.</source>
        <translation>手册的目录，没有时创建。</translation>
    </message>
    <message>
        <source>html (as without this option), markdown, or qhp: HTML and a project for Qt Help. Can be given more than once.</source>
        <translation>html（默认）、markdown 或 qhp：HTML 和 Qt Help 的项目。可以多次给出。</translation>
    </message>
    <message>
        <source>A language of the manual, such as en or zh_CN; the first is the main one, and en without this option. Can be given more than once.</source>
        <translation>手册的语言，如 en 或 zh_CN；第一种为主要语言，未给出时为 en。可以多次给出。</translation>
    </message>
    <message>
        <source>A translation of the modules, .ts or .qm, whose language is added to those of the manual. Can be given more than once.</source>
        <translation>模块的译文，.ts 或 .qm，其语言也加入手册。可以多次给出。</translation>
    </message>
    <message>
        <source>The title of the manual.</source>
        <translation>手册的标题。</translation>
    </message>
    <message>
        <source>What Qt Help is to call the manual among others.</source>
        <translation>Qt Help 用来区别此手册与其他手册的名称。</translation>
    </message>
    <message>
        <source>Write a manual of modules</source>
        <translation>编写模块手册</translation>
    </message>
    <message>
        <source>Writes a manual of the modules whose item files these are or lie in these directories: an index and one page for each module, with its modes, parameters and results, in one or more languages side by side. The pages need no server.

The main language has plain names of files, the others have their language in them: beam.html, beam.zh_CN.html. Files that did not change are not written, files that this command did not write are never replaced, and pages of modules that are gone are named and left.</source>
        <translation>为这些模块项文件或目录中的模块编写手册：一个索引，每个模块一页，列出其模式、参数和结果，可以有一种或多种语言的版本。页面不需要服务器。

主要语言的文件名不带语言，其他语言的文件名带有语言：beam.html、beam.zh_CN.html。内容未变的文件不写入，不是由此命令写入的文件从不替换，已不存在的模块的页面会被指出并保留。</translation>
    </message>
    <message>
        <source>A manual for browsers, in English.</source>
        <translation>供浏览器使用的英文手册。</translation>
    </message>
    <message>
        <source>The same in English and Chinese.</source>
        <translation>同样的手册，英文和中文。</translation>
    </message>
    <message>
        <source>A manual for Qt Help.</source>
        <translation>供 Qt Help 使用的手册。</translation>
    </message>
    <message>
        <source>Skip to the content</source>
        <translation>跳到正文</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>搜索手册</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>库</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>This module has no modes.</source>
        <translation>此模块没有模式。</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>This module takes no parameters.</source>
        <translation>此模块没有参数。</translation>
    </message>
    <message>
        <source>For each mode: the value that a parameter starts with, %1 if there is none, %2 if the mode does not take it.</source>
        <translation>各模式下参数的初始值；没有初始值时为 %1，模式不使用该参数时为 %2。</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>This module gives no results.</source>
        <translation>此模块没有结果。</translation>
    </message>
    <message>
        <source>%1 marks the modes that give a result.</source>
        <translation>%1 表示给出该结果的模式。</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Other modules</source>
        <translation>其他模块</translation>
    </message>
    <message>
        <source>Modules</source>
        <translation>模块</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>其他</translation>
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
        <source>Values</source>
        <translation>取值</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>模块</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>未找到。</translation>
    </message>
    <message>
        <source>Found: %1</source>
        <translation>找到：%1</translation>
    </message>
    <message>
        <source>Put item files into the order of the library</source>
        <translation>将模块项文件排成库的顺序</translation>
    </message>
    <message>
        <source>Writes each item file in one layout: sections and fields in the order in which the library saves them, parameters and results sorted as it reads them, hints in the order of what they are about, and every key and value spelt in one way. Comments stay with what follows them, unknown keys and sections come last. What the library reads from the file stays the same. Lists the files that it has changed.

A file that cannot be formatted without changing what is read, for example with a key that is given twice, is left as it is and reported with the place.</source>
        <translation>将每个模块项文件写成统一的格式：节和字段按库保存的顺序排列，参数和结果按库读取的顺序排列，提示按其所描述对象的顺序排列，键和值的写法统一。注释跟随其后的内容，未知的键和节放在最后。库从文件中读到的内容不变。列出已改变的文件。

如果文件无法在不改变所读内容的情况下排列，例如有重复的键，则保持原样，并报告其位置。</translation>
    </message>
    <message>
        <source>Write nothing; list what would change, and end with 1.</source>
        <translation>不写入文件；列出将要改变的文件，并以 1 退出。</translation>
    </message>
    <message>
        <source>Formats all item files below a directory.</source>
        <translation>排列一个目录下的所有模块项文件。</translation>
    </message>
    <message>
        <source>Tells whether a file is formatted.</source>
        <translation>检查文件是否已排列好。</translation>
    </message>
    <message>
        <source>there is no section &quot;KeltoItem&quot;: this is no item file.</source>
        <translation>没有“KeltoItem”节：这不是模块项文件。</translation>
    </message>
    <message>
        <source>it cannot be written in another way without being read differently.</source>
        <translation>换一种写法就会读成不同的内容，因此无法改写。</translation>
    </message>
    <message>
        <source>the line has no &quot;=&quot;: put a &quot;;&quot; in front of a comment.</source>
        <translation>该行没有“=”：请在注释前加“;”。</translation>
    </message>
    <message>
        <source>the header has no &quot;]&quot;, or text behind it.</source>
        <translation>节标题没有“]”，或其后有文本。</translation>
    </message>
    <message>
        <source>the key is given in line %1 already: remove one of both.</source>
        <translation>第 %1 行已有此键：请删除其中一个。</translation>
    </message>
    <message>
        <source>the key has a superfluous &quot;/&quot; and is not read.</source>
        <translation>键中有多余的“/”，不会被读取。</translation>
    </message>
    <message>
        <source>the byte order mark becomes part of the first key: remove it.</source>
        <translation>字节顺序标记会成为第一个键的一部分：请删除。</translation>
    </message>
    <message>
        <source>the &quot;\&quot; means nothing here: write &quot;\\&quot; for a backslash.</source>
        <translation>此处的“\”没有意义：反斜杠请写作“\\”。</translation>
    </message>
    <message>
        <source>the line is not in UTF-8.</source>
        <translation>该行不是 UTF-8。</translation>
    </message>
    <message>
        <source>the value is damaged.</source>
        <translation>值已损坏。</translation>
    </message>
    <message>
        <source>the character is not part of the text: write &quot;\&quot;&quot; for a quote.</source>
        <translation>该字符不属于文本：引号请写作“\&quot;”。</translation>
    </message>
    <message>
        <source>the comment is read as a key: begin it with &quot;;&quot;.</source>
        <translation>注释会被当作键：请以“;”开头。</translation>
    </message>
    <message>
        <source>default</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>choices</source>
        <translation>可选值</translation>
    </message>
    <message>
        <source>optional</source>
        <translation>可选</translation>
    </message>
    <message>
        <source>counts with</source>
        <translation>生效条件</translation>
    </message>
    <message>
        <source>advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>exclusive</source>
        <translation>互斥</translation>
    </message>
    <message>
        <source>type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>translation context</source>
        <translation>翻译上下文</translation>
    </message>
    <message>
        <source>function</source>
        <translation>函数</translation>
    </message>
    <message>
        <source>libraries</source>
        <translation>库</translation>
    </message>
    <message>
        <source>order</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>second unit</source>
        <translation>第二单位</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>多个值</translation>
    </message>
    <message>
        <source>kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>sub-group</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>不小于 %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>不大于 %1</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the elements of a list</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>only if &quot;%1&quot; is: %2</source>
        <translation>仅当“%1”为：%2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>files: %1</source>
        <translation>文件：%1</translation>
    </message>
    <message>
        <source>%1: no such file.</source>
        <translation>%1：没有此文件。</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2.</source>
        <translation>%1：无法读取：%2。</translation>
    </message>
    <message>
        <source>%1: no file below it ends in &quot;.ini&quot;.</source>
        <translation>%1：其下没有以“.ini”结尾的文件。</translation>
    </message>
    <message>
        <source>%1 (exclusive)</source>
        <translation>%1（互斥）</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>文件：</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>类型：</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>组：</translation>
    </message>
    <message>
        <source>Library:</source>
        <translation>库：</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>（无名称）</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>shown as &quot;%1&quot;</source>
        <translation>显示为“%1”</translation>
    </message>
    <message>
        <source>%1: </source>
        <translation>%1：</translation>
    </message>
    <message>
        <source>About the parameters</source>
        <translation>关于参数</translation>
    </message>
    <message>
        <source>About the results</source>
        <translation>关于结果</translation>
    </message>
    <message>
        <source>the character is read, but gone when the file is saved</source>
        <translation>该字符能够读出，但保存文件后会丢失</translation>
    </message>
    <message>
        <source>the quote is not around the whole text and is dropped; put quotes around all of it and write the ones inside as \&quot;</source>
        <translation>引号没有包括整个文本，会被丢弃；请在整个文本两端加引号，其中的引号写作 \&quot;</translation>
    </message>
    <message>
        <source>the byte-order mark becomes part of what follows</source>
        <translation>字节顺序标记会成为其后内容的一部分</translation>
    </message>
    <message>
        <source>the line has no &quot;=&quot; and is ignored</source>
        <translation>该行没有“=”，会被忽略</translation>
    </message>
    <message>
        <source>the section has no keys</source>
        <translation>该节没有键</translation>
    </message>
    <message>
        <source>a superfluous &quot;/&quot; keeps the value of the key from being read</source>
        <translation>多余的“/”使键的值无法读取</translation>
    </message>
    <message>
        <source>the escape means nothing and is dropped; write a backslash as \\</source>
        <translation>转义没有意义，会被丢弃；反斜杠请写作 \\</translation>
    </message>
    <message>
        <source>the bytes are not UTF-8</source>
        <translation>这些字节不是 UTF-8</translation>
    </message>
    <message>
        <source>the value is neither a text nor what was once saved</source>
        <translation>该值既不是文本，也不是曾经保存的值</translation>
    </message>
    <message>
        <source>the value is unsafe to read, so that nothing in the file is read</source>
        <translation>读取该值不安全，因此整个文件都不读取</translation>
    </message>
    <message>
        <source>&quot;#&quot; begins no comment here: the line is a key; a comment begins with &quot;;&quot;</source>
        <translation>“#”在此处不表示注释：该行是键；注释以“;”开头</translation>
    </message>
    <message>
        <source>the text ends at the &quot;;&quot;; put quotes around it, or put the comment on a line of its own</source>
        <translation>文本在“;”处结束；请在文本两端加引号，或将注释放在单独一行</translation>
    </message>
    <message>
        <source>the comment is gone when the file is saved</source>
        <translation>保存文件后注释会丢失</translation>
    </message>
    <message>
        <source>A line is neither a header nor a key with a value</source>
        <translation>某行既不是节标题，也不是带值的键</translation>
    </message>
    <message>
        <source>Such a line is ignored, and gone when the file is saved. Put a &quot;=&quot; behind the key, or a &quot;;&quot; before a comment.</source>
        <translation>这样的行会被忽略，保存文件后会丢失。请在键后加“=”，或在注释前加“;”。</translation>
    </message>
    <message>
        <source>A text ends at a &quot;;&quot;</source>
        <translation>文本在“;”处结束</translation>
    </message>
    <message>
        <source>Outside of quotes a &quot;;&quot; begins a comment, also in the middle of a line. Put quotes around the text, or the comment on a line of its own.</source>
        <translation>引号之外的“;”表示注释开始，在行的中间也是如此。请在文本两端加引号，或将注释放在单独一行。</translation>
    </message>
    <message>
        <source>A line that begins with &quot;#&quot; is a key</source>
        <translation>以“#”开头的行是键</translation>
    </message>
    <message>
        <source>Only a &quot;;&quot; begins a comment. A line with &quot;#&quot; and &quot;=&quot; is read as a key whose name begins with &quot;#&quot;.</source>
        <translation>只有“;”表示注释。含有“#”和“=”的行会读作名称以“#”开头的键。</translation>
    </message>
    <message>
        <source>A comment is gone when the file is saved</source>
        <translation>保存文件后注释会丢失</translation>
    </message>
    <message>
        <source>A save keeps what is read, and comments are not. Switch this on for files that a program saves again.</source>
        <translation>保存时只写入读到的内容，而注释不被读取。对于会由程序再次保存的文件，请启用此规则。</translation>
    </message>
    <message>
        <source>A header of a section is not whole</source>
        <translation>节标题不完整</translation>
    </message>
    <message>
        <source>A section has no keys</source>
        <translation>节没有键</translation>
    </message>
    <message>
        <source>Nothing is wrong with it, but a save leaves the header out.</source>
        <translation>这没有错误，但保存时会略去该节标题。</translation>
    </message>
    <message>
        <source>A key cannot be read because of a &quot;/&quot;</source>
        <translation>由于“/”，键无法读取</translation>
    </message>
    <message>
        <source>With a &quot;/&quot; in front, at the end or behind another one a key has no value. Leave it out.</source>
        <translation>如果“/”在键的开头、末尾或另一个“/”之后，该键就没有值。请去掉它。</translation>
    </message>
    <message>
        <source>A byte-order mark becomes part of a key</source>
        <translation>字节顺序标记成为键的一部分</translation>
    </message>
    <message>
        <source>Some editors put these three bytes before the text. Only in front of a header they do no harm. Save the file as UTF-8 without a byte-order mark.</source>
        <translation>有些编辑器在文本前加上这三个字节。只有在节标题之前它们才没有害处。请将文件保存为不带字节顺序标记的 UTF-8。</translation>
    </message>
    <message>
        <source>A backslash is followed by nothing that it escapes</source>
        <translation>反斜杠之后没有可转义的内容</translation>
    </message>
    <message>
        <source>Backslash and letter are dropped. Write a backslash as two.</source>
        <translation>反斜杠和字母会被丢弃。反斜杠请写两个。</translation>
    </message>
    <message>
        <source>Bytes are not UTF-8</source>
        <translation>有些字节不是 UTF-8</translation>
    </message>
    <message>
        <source>Files are read in UTF-8, in which these bytes mean nothing. Save the file in that encoding.</source>
        <translation>文件按 UTF-8 读取，这些字节在其中没有意义。请以该编码保存文件。</translation>
    </message>
    <message>
        <source>A quote inside of a text is dropped</source>
        <translation>文本中间的引号被丢弃</translation>
    </message>
    <message>
        <source>Quotes belong around a whole text. A quote inside of it is written as \&quot;.</source>
        <translation>引号应在整个文本的两端。文本中的引号写作 \&quot;。</translation>
    </message>
    <message>
        <source>A character is gone when the file is saved</source>
        <translation>保存文件后有字符丢失</translation>
    </message>
    <message>
        <source>QSettings of Qt 5 reads characters such as emoji and does not write them.</source>
        <translation>Qt 5 的 QSettings 能读取表情符号之类的字符，但不写入它们。</translation>
    </message>
    <message>
        <source>A value of another type than text is damaged</source>
        <translation>文本以外类型的值已损坏</translation>
    </message>
    <message>
        <source>A value that begins with &quot;@Variant(&quot; and the like was written by a program. What is left of it cannot be read. Write a text that begins with &quot;@&quot; as &quot;@@&quot;.</source>
        <translation>以“@Variant(”等开头的值是由程序写入的，剩下的部分已无法读取。以“@”开头的文本请写作“@@”。</translation>
    </message>
    <message>
        <source>A value is unsafe to read</source>
        <translation>读取某个值不安全</translation>
    </message>
    <message>
        <source>Its bytes could end the program, so that the library reads nothing of the file. Remove the value.</source>
        <translation>其字节可能使程序终止，因此库不读取该文件的任何内容。请删除该值。</translation>
    </message>
    <message>
        <source>nothing is read from the section &quot;%1&quot;.</source>
        <translation>不会从“%1”节读取任何内容。</translation>
    </message>
    <message>
        <source>the quote in the key makes the next lines a part of the key; write it as %22</source>
        <translation>键中的引号使后面的行成为键的一部分；请写作 %22</translation>
    </message>
    <message>
        <source>no key stands before the &quot;=&quot;</source>
        <translation>“=”之前没有键</translation>
    </message>
    <message>
        <source>the key is read as &quot;%1&quot;: other letters than ASCII are written as %U and four hexadecimal digits in a key</source>
        <translation>键读作“%1”：键中非 ASCII 的字母写作 %U 加四位十六进制数字</translation>
    </message>
    <message>
        <source>the key is read as &quot;%1&quot;; write &quot;%&quot; as %25</source>
        <translation>键读作“%1”；“%”请写作 %25</translation>
    </message>
    <message>
        <source>of the key only &quot;%1&quot; is read, what stands behind the &quot;/&quot;</source>
        <translation>该键只读取“/”之后的部分“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not read: texts of files are translated by KeltoItemTranslation, in the context &quot;Tr_ObjectName&quot;</source>
        <translation>“%1”不被读取：文件的文本由 KeltoItemTranslation 在上下文“Tr_ObjectName”中翻译</translation>
    </message>
    <message>
        <source>nothing reads the key &quot;%1&quot;.</source>
        <translation>没有任何程序读取键“%1”。</translation>
    </message>
    <message>
        <source>there is no parameter &quot;%1&quot;.</source>
        <translation>没有参数“%1”。</translation>
    </message>
    <message>
        <source>there is neither a parameter nor a result &quot;%1&quot;.</source>
        <translation>没有名为“%1”的参数或结果。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands in line %2, too, with the same value</source>
        <translation>“%1”也在第 %2 行给出，值相同</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a parameter and a result and is described in line %2 in another way; only one description is read, for both</source>
        <translation>“%1”既是参数又是结果，且在第 %2 行有不同的描述；只读取其中一个描述，用于两者</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands in line %2, too, with another value; only one of them is read</source>
        <translation>“%1”也在第 %2 行给出，值不同；只读取其中一个</translation>
    </message>
    <message>
        <source>the key stands in no section and is not read</source>
        <translation>该键不属于任何节，不被读取</translation>
    </message>
    <message>
        <source>The name of a section is misspelt</source>
        <translation>节的名称拼写错误</translation>
    </message>
    <message>
        <source>Names of sections are compared with case. Nothing is read from a section with another name.</source>
        <translation>节的名称区分大小写。名称不同的节不被读取。</translation>
    </message>
    <message>
        <source>A section is none of a module item</source>
        <translation>模块项没有这样的节</translation>
    </message>
    <message>
        <source>Nothing is read from it. What a host wants to know of a module belongs into the section ExtraKey.</source>
        <translation>不会从中读取任何内容。宿主程序需要了解的模块信息应放在 ExtraKey 节中。</translation>
    </message>
    <message>
        <source>A key stands in no section</source>
        <translation>键不属于任何节</translation>
    </message>
    <message>
        <source>Keys before the first header, and those in [General], are not read.</source>
        <translation>第一个节标题之前的键，以及 [General] 中的键，都不被读取。</translation>
    </message>
    <message>
        <source>The name of a field is misspelt</source>
        <translation>字段的名称拼写错误</translation>
    </message>
    <message>
        <source>Keys are compared with case. Nothing reads a key of another name.</source>
        <translation>键区分大小写。名称不同的键不被读取。</translation>
    </message>
    <message>
        <source>A key of the section KeltoItem is no field</source>
        <translation>KeltoItem 节的某个键不是字段</translation>
    </message>
    <message>
        <source>Nothing reads it. What a host wants to know of a module belongs into the section ExtraKey.</source>
        <translation>它不被读取。宿主程序需要了解的模块信息应放在 ExtraKey 节中。</translation>
    </message>
    <message>
        <source>A file carries no translated texts</source>
        <translation>文件不含译文</translation>
    </message>
    <message>
        <source>name_tr and its like are not read: they become copies of the plain texts. KeltoItemTranslation translates an item that was read, in the context that &quot;Tr_ObjectName&quot; names.</source>
        <translation>name_tr 之类的键不被读取：它们会成为原文的副本。KeltoItemTranslation 在“Tr_ObjectName”所给的上下文中翻译已读取的模块项。</translation>
    </message>
    <message>
        <source>A description belongs to no parameter or result</source>
        <translation>描述不属于任何参数或结果</translation>
    </message>
    <message>
        <source>What describes a key is read only where the same key, with case, stands under [Attribute] or [Result]; &quot;Belong&quot; is for parameters only.</source>
        <translation>仅当 [Attribute] 或 [Result] 下有同样的键（区分大小写）时，才读取对该键的描述；“Belong”仅用于参数。</translation>
    </message>
    <message>
        <source>A key has no name</source>
        <translation>键没有名称</translation>
    </message>
    <message>
        <source>Before the &quot;=&quot; stands a key.</source>
        <translation>“=”之前应为键。</translation>
    </message>
    <message>
        <source>A key holds letters that are not ASCII</source>
        <translation>键含有非 ASCII 的字母</translation>
    </message>
    <message>
        <source>Keys, unlike values, are not read in UTF-8: each byte becomes a letter. QSettings writes a letter that is not ASCII as %U and four hexadecimal digits, or as % and two.</source>
        <translation>与值不同，键不按 UTF-8 读取：每个字节成为一个字母。QSettings 将非 ASCII 的字母写作 %U 加四位十六进制数字，或 % 加两位。</translation>
    </message>
    <message>
        <source>A &quot;%&quot; in a key is read as an escape</source>
        <translation>键中的“%”读作转义</translation>
    </message>
    <message>
        <source>% and two hexadecimal digits stand for one character in a key. A &quot;%&quot; before digits or letters is written as %25.</source>
        <translation>在键中，% 加两位十六进制数字表示一个字符。数字或字母前的“%”写作 %25。</translation>
    </message>
    <message>
        <source>A quote in a key swallows the next lines</source>
        <translation>键中的引号吞并后面的行</translation>
    </message>
    <message>
        <source>All up to the next quote belongs to the key. A quote in a key is written as %22.</source>
        <translation>直到下一个引号的所有内容都属于该键。键中的引号写作 %22。</translation>
    </message>
    <message>
        <source>A key holds a &quot;/&quot;</source>
        <translation>键含有“/”</translation>
    </message>
    <message>
        <source>Of such a key only the last part is read, and what describes it is looked up under that. Backslashes are read as &quot;/&quot;.</source>
        <translation>这样的键只读取最后一部分，对它的描述也按这一部分查找。反斜杠读作“/”。</translation>
    </message>
    <message>
        <source>A key is given twice, with different values</source>
        <translation>键重复给出，值不同</translation>
    </message>
    <message>
        <source>Only one of them is read. Remove the other.</source>
        <translation>只读取其中一个。请删除另一个。</translation>
    </message>
    <message>
        <source>A key is given twice, with the same value</source>
        <translation>键重复给出，值相同</translation>
    </message>
    <message>
        <source>Nothing is lost yet, but only one of them counts when somebody changes the other.</source>
        <translation>目前没有丢失什么，但如果有人修改其中之一，只有一个有效。</translation>
    </message>
    <message>
        <source>A parameter and a result of one key are described differently</source>
        <translation>同一个键的参数和结果描述不同</translation>
    </message>
    <message>
        <source>Both are described by the same keys, of which only one counts. Give them different keys, or one description.</source>
        <translation>两者由同样的键描述，而其中只有一个有效。请使用不同的键，或相同的描述。</translation>
    </message>
    <message>
        <source>there is no rule &quot;%1&quot;.</source>
        <translation>没有规则“%1”。</translation>
    </message>
    <message>
        <source>Find what is wrong in files of module items</source>
        <translation>找出模块项文件中的错误</translation>
    </message>
    <message>
        <source>Say why a rule matters, with a bad and a good example.</source>
        <translation>说明规则的理由，并给出错误和正确的例子。</translation>
    </message>
    <message>
        <source>List all rules.</source>
        <translation>列出所有规则。</translation>
    </message>
    <message>
        <source>Write the findings as SARIF 2.1.0.</source>
        <translation>以 SARIF 2.1.0 写出问题。</translation>
    </message>
    <message>
        <source>All item files below a directory.</source>
        <translation>一个目录下的所有模块项文件。</translation>
    </message>
    <message>
        <source>What is behind a finding.</source>
        <translation>某个问题的原因。</translation>
    </message>
    <message>
        <source>there is no section &quot;%1&quot;, only &quot;Rules&quot;.</source>
        <translation>没有“%1”节，只有“Rules”。</translation>
    </message>
    <message>
        <source>the line has no &quot;=&quot;.</source>
        <translation>该行没有“=”。</translation>
    </message>
    <message>
        <source>the key stands before the header [Rules].</source>
        <translation>键在节标题 [Rules] 之前。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of &quot;error&quot;, &quot;warning&quot; and &quot;off&quot;.</source>
        <translation>“%1”不是“error”“warning”或“off”。</translation>
    </message>
    <message>
        <source>%1 of %2 files</source>
        <translation>第 %1 个文件，共 %2 个</translation>
    </message>
    <message>
        <source>Bad:</source>
        <translation>错误：</translation>
    </message>
    <message>
        <source>Good:</source>
        <translation>正确：</translation>
    </message>
    <message>
        <source>the function of another module is named &quot;%1&quot; as well: %2</source>
        <translation>另一个模块的函数也名为“%1”：%2</translation>
    </message>
    <message>
        <source>An item with parameters or results is not of the type &quot;calculation&quot;</source>
        <translation>含有参数或结果的模块项的类型不是“calculation”</translation>
    </message>
    <message>
        <source>Source text that is generated from an item of another type has no parameters and no results.</source>
        <translation>由其他类型的模块项生成的源代码没有参数和结果。</translation>
    </message>
    <message>
        <source>Generated source text cannot carry a text</source>
        <translation>生成的源代码无法容纳某个文本</translation>
    </message>
    <message>
        <source>Texts are not escaped in source text that is generated from an item, so a double quote, a backslash or a line break ends them. Use single quotes and whole sentences instead.</source>
        <translation>由模块项生成的源代码不对文本转义，因此双引号、反斜杠或换行会使文本结束。请改用单引号和完整的句子。</translation>
    </message>
    <message>
        <source>An extra key reads as a number and is none in C++</source>
        <translation>附加键读作数，但在 C++ 中不是数</translation>
    </message>
    <message>
        <source>In generated source text, what reads as a number has no quotes. &quot;010&quot; would become 8 there, and &quot;08&quot;, &quot;inf&quot; or a whole number of more than 32 bits do not compile.</source>
        <translation>在生成的源代码中，读作数的内容不加引号。“010”在其中会变成 8，而“08”、“inf”或超过 32 位的整数无法编译。</translation>
    </message>
    <message>
        <source>The name of a function or a context is none in C++</source>
        <translation>函数或上下文的名称不是 C++ 的名称</translation>
    </message>
    <message>
        <source>&quot;codeFunctionName&quot; names the function that builds the item in generated source text, and &quot;Tr_ObjectName&quot; the class that translates its texts. Use letters without accents, digits and &quot;_&quot;, and no word of C++ or Qt.</source>
        <translation>“codeFunctionName”是生成的源代码中构造模块项的函数的名称，“Tr_ObjectName”是翻译其文本的类的名称。请使用不带重音的字母、数字和“_”，不要使用 C++ 或 Qt 的保留词。</translation>
    </message>
    <message>
        <source>Two modules have one &quot;codeFunctionName&quot;</source>
        <translation>两个模块有相同的“codeFunctionName”</translation>
    </message>
    <message>
        <source>The generated source text of both does not compile together. Give one of the functions another name.</source>
        <translation>两者生成的源代码不能一起编译。请给其中一个函数另取名称。</translation>
    </message>
    <message>
        <source>An extra key is a hint that makes no sense</source>
        <translation>附加键是没有意义的提示</translation>
    </message>
    <message>
        <source>Extra keys such as &quot;Default.Length&quot; tell a form about parameters and results. One that names no parameter, result or mode, that is no number where one is needed, or that contradicts another one does not count.</source>
        <translation>“Default.Length”之类的附加键向表单说明参数和结果。如果提示没有指明参数、结果或模式，在需要数的地方不是数，或与另一个提示矛盾，则无效。</translation>
    </message>
    <message>
        <source>An object name is none of the known words</source>
        <translation>对象名不是已知的词</translation>
    </message>
    <message>
        <source>The object name says what the values of a parameter are. With &quot;double&quot;, a form accepts numbers only; with a word that it does not know, anything. Known are float, double, int, bool, file, newfile, directory, color, choice, text, string, QString, QStringList, and for several values QVector&lt;float&gt;, QVector&lt;double&gt;, QVector&lt;int&gt;, QVector&lt;QPoint&gt;, QVector&lt;QPointF&gt; and QVector&lt;QStringList&gt;.</source>
        <translation>对象名说明参数的值是什么。为“double”时，表单只接受数；为未知的词时，表单接受任何内容。已知的有 float、double、int、bool、file、newfile、directory、color、choice、text、string、QString、QStringList，以及用于多个值的 QVector&lt;float&gt;、QVector&lt;double&gt;、QVector&lt;int&gt;、QVector&lt;QPoint&gt;、QVector&lt;QPointF&gt; 和 QVector&lt;QStringList&gt;。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the same name as &quot;%2&quot; to a search by name</source>
        <translation>按名称查找时，“%1”与“%2”是同一个名称</translation>
    </message>
    <message>
        <source>the inner modes &quot;%1&quot; and &quot;%2&quot; differ only in case or white space</source>
        <translation>内部模式“%1”与“%2”只有大小写或空白不同</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; of the module holds a &quot;:&quot;</source>
        <translation>模块的名称“%1”含有“:”</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; of the group holds a &quot;:&quot;</source>
        <translation>组的名称“%1”含有“:”</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; of the inner mode holds a &quot;:&quot;</source>
        <translation>内部模式的名称“%1”含有“:”</translation>
    </message>
    <message>
        <source>a module named &quot;Update&quot; makes the program write its name and version to Config/update.ini, and this one is a calculation</source>
        <translation>名为“Update”的模块使程序将其名称和版本写入 Config/update.ini，而此模块是计算</translation>
    </message>
    <message>
        <source>Two names of one mode are equal to a search by name</source>
        <translation>一个模式的两个名称在按名称查找时相同</translation>
    </message>
    <message>
        <source>VParameter::isName() looks past case, spaces, &quot;_&quot; and &quot;-&quot;. A host that looks for one of the two may get the other. Give one of them another name.</source>
        <translation>VParameter::isName() 忽略大小写、空格、“_”和“-”。宿主程序查找其中一个时可能得到另一个。请给其中一个另取名称。</translation>
    </message>
    <message>
        <source>Two modes differ only in case or white space</source>
        <translation>两个模式只有大小写或空白不同</translation>
    </message>
    <message>
        <source>A person cannot tell them apart in a list, while the library takes them for two. Give one of them another name.</source>
        <translation>人在列表中无法区分它们，而库认为它们是两个模式。请给其中一个另取名称。</translation>
    </message>
    <message>
        <source>The name of a module, a group or a mode holds a &quot;:&quot;</source>
        <translation>模块、组或模式的名称含有“:”</translation>
    </message>
    <message>
        <source>Standard names are application, group and mode, joined by &quot;:&quot; without escaping. With one more they come apart into too many parts, and accepting the mode in the dialog changes nothing. Use another character.</source>
        <translation>标准名由应用程序、组和模式用“:”连接而成，不作转义。多一个“:”，就会拆成过多的部分，在对话框中确定该模式不会有任何改变。请使用其他字符。</translation>
    </message>
    <message>
        <source>A calculation is named &quot;Update&quot;</source>
        <translation>计算模块名为“Update”</translation>
    </message>
    <message>
        <source>A registry that holds a module of this name records the name and the version of the program for an updater. Such a module has one mode, no parameters and no results, and its group is not exclusive. Give a calculation another name.</source>
        <translation>含有此名称模块的注册表会为更新程序记录本程序的名称和版本。这样的模块有一个模式，没有参数和结果，其组不互斥。请给计算模块另取名称。</translation>
    </message>
    <message>
        <source>two inner modes are named &quot;%1&quot;</source>
        <translation>有两个内部模式名为“%1”</translation>
    </message>
    <message>
        <source>another module is named &quot;%1&quot; as well: %2</source>
        <translation>另一个模块也名为“%1”：%2</translation>
    </message>
    <message>
        <source>the group &quot;%1&quot; has an inner mode &quot;%2&quot; already: %3</source>
        <translation>组“%1”中已有内部模式“%2”：%3</translation>
    </message>
    <message>
        <source>the translation &quot;%1&quot; of the group &quot;%2&quot; is also a name of the group &quot;%3&quot;: %4</source>
        <translation>组“%2”的译名“%1”也是组“%3”的名称：%4</translation>
    </message>
    <message>
        <source>Two modules have one name</source>
        <translation>两个模块同名</translation>
    </message>
    <message>
        <source>A registry finds the first of them only: AUTH_SET::index() never gives the other. Give one of them another name.</source>
        <translation>注册表只能找到其中的第一个：AUTH_SET::index() 从不给出另一个。请给其中一个另取名称。</translation>
    </message>
    <message>
        <source>Two modes of a module or a group have one name</source>
        <translation>一个模块或组中有两个同名的模式</translation>
    </message>
    <message>
        <source>Modes are selected by name, and the first one counts. The parameters of the other cannot be had, or are those of the first. This holds for the modes of a module, and for those of all modules of an exclusive group. Give one of them another name.</source>
        <translation>模式按名称选择，以第一个为准。另一个模式的参数无法取得，或取得的是第一个模式的参数。这适用于一个模块的各模式，以及一个互斥组中所有模块的各模式。请给其中一个另取名称。</translation>
    </message>
    <message>
        <source>The translated name of a group is a name of another group</source>
        <translation>组的译名是另一个组的名称</translation>
    </message>
    <message>
        <source>A group is found by its plain or its translated name, so the modes of the one group can be looked for in the other. Translations are read from the files &quot;*.ts&quot; beside the module files, and in a directory &quot;translations&quot; beside or below theirs. Translate the groups differently.</source>
        <translation>组可以按原名或译名查找，因此可能在另一个组中查找这个组的模式。译文从模块项文件旁的“*.ts”文件，以及模块项文件所在目录旁或其下的“translations”目录读取。请给各组不同的译名。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no known unit</source>
        <translation>“%1”不是已知的单位</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; are units of different quantities</source>
        <translation>“%1”与“%2”是不同物理量的单位</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not converted, while other units of the module are</source>
        <translation>“%1”不作换算，而模块的其他单位要换算</translation>
    </message>
    <message>
        <source>Not available: this program was built without the library UDUNITS, or does not find its definitions of units.</source>
        <translation>不可用：本程序编译时没有 UDUNITS 库，或找不到其单位定义。</translation>
    </message>
    <message>
        <source>A unit is none that is known</source>
        <translation>单位未知</translation>
    </message>
    <message>
        <source>The two units of a parameter measure different things</source>
        <translation>参数的两个单位属于不同的物理量</translation>
    </message>
    <message>
        <source>The first is the unit that a person reads, the second the one that it is converted to, which no number does here.</source>
        <translation>第一个是人读到的单位，第二个是换算到的单位，而此处没有任何数能够换算。</translation>
    </message>
    <message>
        <source>A unit is not converted while others are</source>
        <translation>某个单位不作换算，而其他单位要换算</translation>
    </message>
    <message>
        <source>Two equal texts mean that a value counts as it is. That is right for units of the SI without a factor, such as &quot;N&quot;. Beside &quot;mm, m&quot; in the same module, &quot;N/mm, N/mm&quot; would be taken for &quot;N/m&quot;.</source>
        <translation>两个相同的文本表示数值不作换算。对于没有换算系数的 SI 单位，如“N”，这是正确的。而在有“mm, m”的模块中，“N/mm, N/mm”会被当作“N/m”。</translation>
    </message>
    <message>
        <source>the item has no name: [KeltoItem] has no key &quot;name&quot;</source>
        <translation>模块项没有名称：[KeltoItem] 没有键“name”</translation>
    </message>
    <message>
        <source>the item has no name</source>
        <translation>模块项没有名称</translation>
    </message>
    <message>
        <source>&quot;inner_mode_count&quot; is missing, so that there is no mode; %1 have a name</source>
        <translation>缺少“inner_mode_count”，因此没有模式；有名称的模式为 %1 个</translation>
    </message>
    <message>
        <source>&quot;inner_mode_count&quot; is %1, and &quot;inner_mode_nameList&quot; has %2; a name with a comma needs quotes</source>
        <translation>“inner_mode_count”为 %1，而“inner_mode_nameList”有 %2 个；含逗号的名称须加引号</translation>
    </message>
    <message>
        <source>there are %1 descriptions for %2 modes; a description with a comma needs quotes</source>
        <translation>%2 个模式有 %1 个说明；含逗号的说明须加引号</translation>
    </message>
    <message>
        <source>modes are listed, and &quot;exclusive_group&quot; does not say whether one of them is selected at a time</source>
        <translation>列出了模式，而“exclusive_group”没有说明是否每次只选择其中一个</translation>
    </message>
    <message>
        <source>there are parameters, but &quot;inner_mode_nameList&quot; names no mode to which they belong</source>
        <translation>有参数，但“inner_mode_nameList”没有列出参数所属的模式</translation>
    </message>
    <message>
        <source>the parameter &quot;%1&quot; belongs to no mode; [Belong] has to name the modes that take it</source>
        <translation>参数“%1”不属于任何模式；须在 [Belong] 中写明使用它的模式</translation>
    </message>
    <message>
        <source>there is no mode &quot;%1&quot;.</source>
        <translation>没有名为“%1”的模式。</translation>
    </message>
    <message>
        <source>no parameter belongs to the mode &quot;%1&quot;, and values for it are never complete</source>
        <translation>模式“%1”没有参数，其输入值永远不完整</translation>
    </message>
    <message>
        <source>&quot;output_results&quot; has %1, and there are %2 under [Result]; as many are read as it has</source>
        <translation>“output_results”有 %1 个，而 [Result] 下有 %2 个；前者有几个就读取几个</translation>
    </message>
    <message>
        <source>no result is read, since &quot;output_results&quot; is missing under [KeltoItem]</source>
        <translation>没有读取任何结果，因为 [KeltoItem] 下缺少“output_results”</translation>
    </message>
    <message>
        <source>The item has no name</source>
        <translation>模块项没有名称</translation>
    </message>
    <message>
        <source>By its name a module is found. A file without one, or without the section KeltoItem, gives a module that nobody can name.</source>
        <translation>模块按名称查找。没有名称或没有 KeltoItem 节的文件会产生无法指称的模块。</translation>
    </message>
    <message>
        <source>&quot;inner_mode_count&quot; is not the number of modes</source>
        <translation>“inner_mode_count”不是模式的个数</translation>
    </message>
    <message>
        <source>The number decides how many modes there are, whatever the list of names says. Where it is missing there are none. A name with a comma in it needs quotes.</source>
        <translation>此数决定模式的个数，无论名称列表如何。缺少时没有模式。含逗号的名称须加引号。</translation>
    </message>
    <message>
        <source>There are more or fewer descriptions than modes</source>
        <translation>说明比模式多或少</translation>
    </message>
    <message>
        <source>&quot;inner_mode_description&quot; has one text for each mode. A text with a comma in it needs quotes.</source>
        <translation>“inner_mode_description”为每个模式给出一个文本。含逗号的文本须加引号。</translation>
    </message>
    <message>
        <source>&quot;exclusive_group&quot; is missing</source>
        <translation>缺少“exclusive_group”</translation>
    </message>
    <message>
        <source>Without it the modes of the module can be selected only if another module makes an exclusive group of their group. Say &quot;true&quot; or &quot;false&quot;.</source>
        <translation>缺少时，只有另一个模块使其组成为互斥组，才能选择此模块的模式。请写“true”或“false”。</translation>
    </message>
    <message>
        <source>There are parameters and no modes</source>
        <translation>有参数而没有模式</translation>
    </message>
    <message>
        <source>Parameters belong to modes. List the names of the modes in &quot;inner_mode_nameList&quot;.</source>
        <translation>参数属于模式。请在“inner_mode_nameList”中列出模式的名称。</translation>
    </message>
    <message>
        <source>A parameter belongs to no mode</source>
        <translation>参数不属于任何模式</translation>
    </message>
    <message>
        <source>&quot;Belong&quot; names the modes that take a parameter. Without it the parameter is in none of them.</source>
        <translation>“Belong”写明使用参数的模式。缺少时，该参数不在任何模式中。</translation>
    </message>
    <message>
        <source>&quot;Belong&quot; names a mode that there is not</source>
        <translation>“Belong”中的模式不存在</translation>
    </message>
    <message>
        <source>Names of modes are compared with case. The parameter is missing in the mode that was meant, and the check of entered values does not ask for it.</source>
        <translation>模式的名称区分大小写。所指的模式会缺少该参数，而对输入值的检查不要求该参数。</translation>
    </message>
    <message>
        <source>No parameter belongs to a mode</source>
        <translation>没有参数属于某个模式</translation>
    </message>
    <message>
        <source>Entered values are never complete for such a mode. Only the module &quot;Update&quot; needs none.</source>
        <translation>这样的模式的输入值永远不完整。只有模块“Update”不需要参数。</translation>
    </message>
    <message>
        <source>&quot;output_results&quot; is not as long as there are results</source>
        <translation>“output_results”与结果的个数不同</translation>
    </message>
    <message>
        <source>As many results are read as &quot;output_results&quot; has elements, in the order of their keys; without it none. A save does not write it.</source>
        <translation>“output_results”有几个元素，就按键的顺序读取几个结果；没有它则不读取结果。保存时不写入它。</translation>
    </message>
    <message>
        <source>the backslash and what follows are read as another character; write a backslash as \\, or put quotes around the text where the other character is meant</source>
        <translation>反斜杠及其后的内容读作另一个字符；反斜杠请写作 \\，如果确实需要该字符，请在文本两端加引号</translation>
    </message>
    <message>
        <source>the backslash at the end of the line makes the next line a part of this value</source>
        <translation>行末的反斜杠使下一行成为此值的一部分</translation>
    </message>
    <message>
        <source>the comma makes a list of the text, which is then not read as a text; put quotes around it</source>
        <translation>逗号使文本成为列表，因而不再读作文本；请在文本两端加引号</translation>
    </message>
    <message>
        <source>the text is read as a value of another type; write &quot;@@&quot; for &quot;@&quot; where a text is meant</source>
        <translation>该文本读作其他类型的值；如果需要文本，“@”请写作“@@”</translation>
    </message>
    <message>
        <source>nothing behind the &quot;=&quot; is read here; a &quot;=&quot; in a key is written as %3D, and a default is the extra key &quot;Default.&quot; and the key</source>
        <translation>此处“=”之后的内容不被读取；键中的“=”写作 %3D，默认值是附加键“Default.”加上该键</translation>
    </message>
    <message>
        <source>a unit has two texts, and here are %1: the first and the last are read</source>
        <translation>单位有两个文本，而此处有 %1 个：读取第一个和最后一个</translation>
    </message>
    <message>
        <source>a unit has two texts; the only one here is read as both</source>
        <translation>单位有两个文本；此处只有一个，用作两者</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;true&quot; nor &quot;false&quot; and is ignored</source>
        <translation>“%1”既不是“true”也不是“false”，会被忽略</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;true&quot; nor &quot;false&quot; and is read as true</source>
        <translation>“%1”既不是“true”也不是“false”，读作 true</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number and is read as 0</source>
        <translation>“%1”不是整数，读作 0</translation>
    </message>
    <message>
        <source>A text is split at a comma</source>
        <translation>文本在逗号处拆开</translation>
    </message>
    <message>
        <source>White space at the end of a text is dropped</source>
        <translation>文本末尾的空白会被丢弃</translation>
    </message>
    <message>
        <source>Only inside of quotes it is part of the text. One blank behind &quot;=&quot; or &quot;,&quot; does not count.</source>
        <translation>只有在引号之内，空白才是文本的一部分。“=”或“,”之后的一个空格不计。</translation>
    </message>
    <message>
        <source>A text begins or ends with white space</source>
        <translation>文本以空白开头或结尾</translation>
    </message>
    <message>
        <source>Nobody sees it, and the text is not equal to the same one without it.</source>
        <translation>空白不可见，而文本与没有空白的同一文本不相等。</translation>
    </message>
    <message>
        <source>A backslash outside of quotes is an escape</source>
        <translation>引号之外的反斜杠是转义</translation>
    </message>
    <message>
        <source>A backslash joins two lines in the middle of a text</source>
        <translation>反斜杠在文本中间连接两行</translation>
    </message>
    <message>
        <source>A backslash at the end of a line makes the next line a part of the value. Behind a comma this is how long lists are written; elsewhere the next key is lost.</source>
        <translation>行末的反斜杠使下一行成为值的一部分。在逗号之后，这是书写长列表的方式；在其他地方，会丢失下一个键。</translation>
    </message>
    <message>
        <source>A quote is not closed on its line</source>
        <translation>引号没有在本行结束</translation>
    </message>
    <message>
        <source>All up to the next quote is read as one text, with the keys in it. Close the quote; write a line break as \n.</source>
        <translation>直到下一个引号的所有内容读作一个文本，包括其中的键。请补上后引号；换行写作 \n。</translation>
    </message>
    <message>
        <source>A text is read as a value of another type</source>
        <translation>文本读作其他类型的值</translation>
    </message>
    <message>
        <source>&quot;@Point(1 2)&quot; and the like are no texts to QSettings. Write &quot;@@&quot; for &quot;@&quot;.</source>
        <translation>对 QSettings 来说，“@Point(1 2)”之类不是文本。“@”请写作“@@”。</translation>
    </message>
    <message>
        <source>The value of a parameter or a result is not read</source>
        <translation>参数或结果的值不被读取</translation>
    </message>
    <message>
        <source>Under [Attribute] and [Result] only the key counts. Either the key has a &quot;=&quot; in it, which is written as %3D, or the value belongs elsewhere: a default is the extra key &quot;Default.&quot; and the key.</source>
        <translation>在 [Attribute] 和 [Result] 下只有键有效。要么键中含有“=”，应写作 %3D；要么值应放在别处：默认值是附加键“Default.”加上该键。</translation>
    </message>
    <message>
        <source>A unit has more than two texts</source>
        <translation>单位有两个以上的文本</translation>
    </message>
    <message>
        <source>A unit has the text in which values are entered, and the one in which the module calculates. Of more texts the first and the last are read. A comma in a unit needs quotes.</source>
        <translation>单位有输入数值所用的文本和模块计算所用的文本。文本更多时，读取第一个和最后一个。含逗号的单位须加引号。</translation>
    </message>
    <message>
        <source>A unit has only one text</source>
        <translation>单位只有一个文本</translation>
    </message>
    <message>
        <source>It is read as both the text in which values are entered and the one in which the module calculates. Write both.</source>
        <translation>它既用作输入数值的单位，也用作模块计算的单位。请写出两个。</translation>
    </message>
    <message>
        <source>&quot;Multi&quot; is neither true nor false</source>
        <translation>“Multi”既不是 true 也不是 false</translation>
    </message>
    <message>
        <source>Only the words &quot;true&quot; and &quot;false&quot;, spelt like this, say whether a parameter takes several values.</source>
        <translation>参数是否可有多个值，只由“true”和“false”这两个词说明，且须如此拼写。</translation>
    </message>
    <message>
        <source>&quot;exclusive_group&quot; is neither true nor false</source>
        <translation>“exclusive_group”既不是 true 也不是 false</translation>
    </message>
    <message>
        <source>Any word but &quot;false&quot; is read as true, &quot;no&quot; for example.</source>
        <translation>除“false”以外的任何词都读作 true，例如“no”。</translation>
    </message>
    <message>
        <source>A value should be a whole number</source>
        <translation>值应为整数</translation>
    </message>
    <message>
        <source>&quot;number&quot; and &quot;inner_mode_count&quot; are whole numbers; everything else is read as 0.</source>
        <translation>“number”和“inner_mode_count”是整数；其他内容都读作 0。</translation>
    </message>
    <message>
        <source>the standard output cannot be written.</source>
        <translation>无法写入标准输出。</translation>
    </message>
    <message>
        <source>Standard name</source>
        <translation>标准名</translation>
    </message>
    <message>
        <source>Translated</source>
        <translation>译名</translation>
    </message>
    <message>
        <source>&quot;modes&quot; needs --app and the name of the application. Try &quot;kelto modes --help&quot;.</source>
        <translation>“modes”需要 --app 和应用程序的名称。请试“kelto modes --help”。</translation>
    </message>
    <message>
        <source>no item has a mode and &quot;exclusive_group=true&quot;.</source>
        <translation>没有模块项既有模式又有“exclusive_group=true”。</translation>
    </message>
    <message>
        <source>List the standard mode names that modules offer</source>
        <translation>列出模块提供的标准名</translation>
    </message>
    <message>
        <source>Lists the standard names, APPLICATION:GROUP:MODE, of all modes that a registry of these item files offers, plain and translated, in the order of the registry, and the modules that bring them. The files stand in the registry in the order in which they are named; those of a directory are sorted. Exit code 1 when there is no mode.</source>
        <translation>列出由这些模块项文件组成的注册表所提供的所有模式的标准名 APPLICATION:GROUP:MODE，包括原名和译名，按注册表的顺序排列，并列出提供它们的模块。文件在注册表中的顺序与给出的顺序相同；目录中的文件经过排序。没有模式时退出码为 1。</translation>
    </message>
    <message>
        <source>The name of the application. Needed.</source>
        <translation>应用程序的名称。必需。</translation>
    </message>
    <message>
        <source>The modes of the application Beams.</source>
        <translation>应用程序 Beams 的模式。</translation>
    </message>
    <message>
        <source>%1: exists already; --force replaces it, -o names another file.</source>
        <translation>%1：已存在；用 --force 替换，或用 -o 指定其他文件。</translation>
    </message>
    <message>
        <source>Write an item file to begin with</source>
        <translation>编写一个供修改的模块项文件</translation>
    </message>
    <message>
        <source>Writes a complete item file for a module of this name: two modes, parameters with units, limits, choices and help, and results. Comments explain every section and every key. Prints the name of the file, which is made of that of the module. An existing file is left alone.</source>
        <translation>为此名称的模块编写完整的模块项文件：两个模式，带有单位、上下限、可选值和帮助的参数，以及结果。注释解释每个节和每个键。输出文件名，文件名由模块名得出。已有的文件不会改动。</translation>
    </message>
    <message>
        <source>Write this file.</source>
        <translation>写入此文件。</translation>
    </message>
    <message>
        <source>The group of the module; else its name.</source>
        <translation>模块的组；未给出时为模块的名称。</translation>
    </message>
    <message>
        <source>The group has no selected mode; its modes are not offered.</source>
        <translation>该组不选择模式，其模式不提供选择。</translation>
    </message>
    <message>
        <source>Replace an existing file.</source>
        <translation>替换已有的文件。</translation>
    </message>
    <message>
        <source>Writes flat-plate.ini.</source>
        <translation>写入 flat-plate.ini。</translation>
    </message>
    <message>
        <source>a name is needed.</source>
        <translation>需要名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; begins or ends with white space.</source>
        <translation>“%1”以空白开头或结尾。</translation>
    </message>
    <message>
        <source>&quot;Update&quot; is the name of the module that records the version of the program: take another one.</source>
        <translation>“Update”是记录程序版本的模块的名称：请另取名称。</translation>
    </message>
    <message>
        <source>%1: a name cannot hold &quot;:&quot;, which divides the names of modes.</source>
        <translation>%1：名称不能含有“:”，它用于分隔模式的名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; %2, which source text cannot.</source>
        <translation>“%1”%2，源代码无法容纳。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a character that files cannot keep.</source>
        <translation>“%1”含有文件无法保存的字符。</translation>
    </message>
    <message>
        <source>%1: is not a file.</source>
        <translation>%1：不是文件。</translation>
    </message>
    <message>
        <source>%1: this directory cannot be made.</source>
        <translation>%1：无法创建此目录。</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2.</source>
        <translation>%1：无法写入：%2。</translation>
    </message>
    <message>
        <source>Show module items as a person reads them</source>
        <translation>以易读的形式显示模块项</translation>
    </message>
    <message>
        <source>Shows what each item file describes: its modes, and its parameters and results with their units, limits and choices. A cell of the tables holds the value with which a parameter starts in a mode, &quot;yes&quot; where it starts with none, and &quot;-&quot; where the mode does not have it.</source>
        <translation>显示每个模块项文件所描述的内容：模式，以及参数和结果的单位、上下限和可选值。表格的单元格中是参数在模式下的初始值；没有初始值时为“是”，模式没有该参数时为“-”。</translation>
    </message>
    <message>
        <source>Show this mode only.</source>
        <translation>只显示此模式。</translation>
    </message>
    <message>
        <source>The modes and parameters of a module.</source>
        <translation>一个模块的模式和参数。</translation>
    </message>
    <message>
        <source>One mode of the modules in a directory.</source>
        <translation>一个目录中各模块的一个模式。</translation>
    </message>
    <message>
        <source>holds a double quote</source>
        <translation>含有双引号</translation>
    </message>
    <message>
        <source>holds a backslash</source>
        <translation>含有反斜杠</translation>
    </message>
    <message>
        <source>holds a line break</source>
        <translation>含有换行</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>含有控制字符</translation>
    </message>
    <message>
        <source>holds &quot;??&quot; and a character that make another one in C++</source>
        <translation>含有“??”加一个字符，在 C++ 中会成为另一个字符</translation>
    </message>
    <message>
        <source>holds a character that changes the direction of the text</source>
        <translation>含有改变文本方向的字符</translation>
    </message>
    <message>
        <source>holds half a character</source>
        <translation>含有半个字符</translation>
    </message>
    <message>
        <source>reads as a number that begins with 0, which C++ takes for an octal one</source>
        <translation>读作以 0 开头的数，C++ 会将其当作八进制数</translation>
    </message>
    <message>
        <source>reads as a number that is too large or too small</source>
        <translation>读作过大或过小的数</translation>
    </message>
    <message>
        <source>reads as a number and is none in C++</source>
        <translation>读作数，但在 C++ 中不是数</translation>
    </message>
    <message>
        <source>is not one text</source>
        <translation>不是单个文本</translation>
    </message>
    <message>
        <source>is not an identifier</source>
        <translation>不是标识符</translation>
    </message>
    <message>
        <source>is a name that means something else</source>
        <translation>是另有含义的名称</translation>
    </message>
    <message>
        <source>is not the number of modes</source>
        <translation>不是模式的个数</translation>
    </message>
    <message>
        <source>is not the type &quot;calculation&quot;, and only that has parameters and results</source>
        <translation>不是类型“calculation”，而只有该类型有参数和结果</translation>
    </message>
    <message>
        <source>Write the style sheet that an INI file describes</source>
        <translation>写出 INI 文件所描述的样式表</translation>
    </message>
    <message>
        <source>The style sheet of a button.</source>
        <translation>按钮的样式表。</translation>
    </message>
    <message>
        <source>%1: is not a translation file (.ts or .qm).</source>
        <translation>%1：不是翻译文件（.ts 或 .qm）。</translation>
    </message>
    <message>
        <source>%1:%2: is not a translation file (.ts or .qm): %3</source>
        <translation>%1:%2：不是翻译文件（.ts 或 .qm）：%3</translation>
    </message>
    <message>
        <source>Mend the files where there is one right answer, and say what.</source>
        <translation>修正文件中只有一种正确写法之处，并列出所作的修正。</translation>
    </message>
    <message>
        <source>Mend what can be mended; the rest is listed.</source>
        <translation>修正能够修正的问题，其余的列出。</translation>
    </message>
    <message>
        <source>fixed:</source>
        <translation>已修正：</translation>
    </message>
    <message>
        <source> Try &quot;kelto %1&quot;.</source>
        <translation>请试“kelto %1”。</translation>
    </message>
    <message>
        <source>nothing knows the object name &quot;%1&quot;.</source>
        <translation>未知的对象名“%1”。</translation>
    </message>
    <message>
        <source> Did you mean &quot;%1&quot;?</source>
        <translation>是否指“%1”？</translation>
    </message>
    <message>
        <source>%1: is not a regular file.</source>
        <translation>%1：不是普通文件。</translation>
    </message>
    <message>
        <source>%1: is the file that is read: name another one to write.</source>
        <translation>%1：就是被读取的文件：请指定另一个要写入的文件。</translation>
    </message>
    <message>
        <source>It is another name of &quot;%1&quot;.</source>
        <translation>它是“%1”的另一个名称。</translation>
    </message>
    <message>
        <source>An item has no place for it.</source>
        <translation>模块项中没有它的对应位置。</translation>
    </message>
    <message>
        <source>It becomes &quot;%1&quot;.</source>
        <translation>它成为“%1”。</translation>
    </message>
    <message>
        <source>There is no type &quot;%1&quot;.</source>
        <translation>没有类型“%1”。</translation>
    </message>
    <message>
        <source>Its %1 dimensions become one.</source>
        <translation>它的 %1 个维度成为一个。</translation>
    </message>
    <message>
        <source>No number can be shown in &quot;%1&quot;.</source>
        <translation>无法以“%1”显示数值。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no display unit of &quot;%2&quot;.</source>
        <translation>“%1”不是“%2”的显示单位。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;true&quot; nor &quot;false&quot;.</source>
        <translation>“%1”既不是“true”也不是“false”。</translation>
    </message>
    <message>
        <source>A text among several holds &quot;;&quot;, or white space at one of its ends.</source>
        <translation>多个文本之一含有“;”，或其首尾有空白。</translation>
    </message>
    <message>
        <source>A character of it is read, but gone when the library saves the file.</source>
        <translation>其中的一个字符可以读取，但库保存文件时会丢失。</translation>
    </message>
    <message>
        <source>A translation of the modules, .ts or .qm, of which the translated names are made; without it they are the plain ones.</source>
        <translation>模块的翻译文件（.ts 或 .qm），译名取自其中；没有它时译名与原名相同。</translation>
    </message>
    <message>
        <source>The same, with their Chinese names.</source>
        <translation>同上，带有中文译名。</translation>
    </message>
    <message>
        <source>the extra key &quot;%1&quot; is no hint.</source>
        <translation>附加键“%1”不是提示。</translation>
    </message>
    <message>
        <source>An extra key is nearly a hint</source>
        <translation>附加键与提示相近</translation>
    </message>
    <message>
        <source>The word in front of the key of a parameter or a result is similar to one of a hint, and nothing is read from it. Capital letters count, and a &quot;.&quot; stands behind the word. Switch this off where the host has words like these.</source>
        <translation>参数或结果的键之前的词与提示的词相近，但不会从中读取任何内容。大小写有区别，词后须有“.”。宿主自身使用这类词时，请关闭此规则。</translation>
    </message>
    <message>
        <source>the file is UTF-16; save it as UTF-8</source>
        <translation>文件是 UTF-16；请另存为 UTF-8</translation>
    </message>
    <message>
        <source>is an archive; unpack the description of its model with &quot;unzip %1 modelDescription.xml&quot;, and convert that.</source>
        <translation>是压缩包；请用“unzip %1 modelDescription.xml”取出模型描述，再转换该文件。</translation>
    </message>
    <message>
        <source>%1: is a directory; a file is expected.</source>
        <translation>%1：是目录；这里需要文件。</translation>
    </message>
    <message>
        <source>&quot;--%1&quot; takes no &quot;%2&quot;: leave one of the two out.</source>
        <translation>“--%1”不能与“%2”同时使用：请去掉其中一个。</translation>
    </message>
    <message>
        <source>%1: is a link to a file that does not exist; remove it first.</source>
        <translation>%1：是指向不存在的文件的链接；请先删除它。</translation>
    </message>
    <message>
        <source>%1: there is no such directory; make it first.</source>
        <translation>%1：没有此目录；请先创建它。</translation>
    </message>
    <message>
        <source>describes no style: there is neither &quot;QtClassName&quot; in a section &quot;ID&quot; nor a section &quot;normal&quot;.</source>
        <translation>没有描述样式：既没有节“ID”中的“QtClassName”，也没有节“normal”。</translation>
    </message>
    <message>
        <source>describes no style: there is no section but &quot;ID&quot;.</source>
        <translation>没有描述样式：除“ID”外没有其他节。</translation>
    </message>
    <message>
        <source>holds bytes that are no text; save it as UTF-8.</source>
        <translation>含有不是文本的字节；请另存为 UTF-8。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of findings.</source>
        <translation>“%1”不是问题的数目。</translation>
    </message>
    <message>
        <source>List at most so many of each file, instead of 100; 0 lists all.</source>
        <translation>每个文件最多列出这么多个问题，默认为 100；0 表示全部列出。</translation>
    </message>
    <message>
        <source>%1: and %2 more; &quot;--max-findings 0&quot; lists all of them</source>
        <translation>%1：另有 %2 个；“--max-findings 0”列出全部</translation>
    </message>
    <message>
        <source>the &quot;%1&quot; divides no list; write a &quot;,&quot; for it</source>
        <translation>“%1”不分隔列表；请改为“,”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no known unit.</source>
        <translation>“%1”不是已知的单位。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no known unit and not compared with &quot;%2&quot;</source>
        <translation>“%1”不是已知的单位，不与“%2”比较</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; measure the same only if &quot;%3&quot; means &quot;%4&quot;; then write that</source>
        <translation>只有“%3”表示“%4”时，“%1”与“%2”才是同一物理量的单位；那样请写作“%4”</translation>
    </message>
    <message>
        <source>Capital letters count: it is &quot;MPa&quot; and &quot;kN&quot;. A &quot;·&quot; or a space multiplies, all behind a &quot;/&quot; is below it, and powers are &quot;m²&quot;, &quot;m^2&quot; or &quot;m2&quot;. A parameter without a unit has an empty text or &quot;-&quot;. Nothing is lost with a unit that is not known here; switch this off where a module has words of its own.</source>
        <translation>单位区分大小写：应为“MPa”和“kN”。“·”或空格表示相乘，“/”之后的所有单位都在分母中，幂写作“m²”、“m^2”或“m2”。没有单位的参数用空文本或“-”。未知的单位不会造成任何丢失；模块有自己的用语时，请关闭此规则。</translation>
    </message>
    <message>
        <source>The symbol of a unit has two meanings</source>
        <translation>单位符号有两种含义</translation>
    </message>
    <message>
        <source>&quot;g&quot; is the gram and the standard gravity, &quot;kn&quot; the knot, and in small letters the kilonewton, &quot;C&quot; the coulomb and the degree, and &quot;kg&quot; has stood for a force. The other text of the unit fits the meaning that is not read first. Write a symbol with one meaning, such as &quot;gn&quot;, &quot;kN&quot;, &quot;°C&quot; and &quot;kgf&quot;.</source>
        <translation>“g”既是克，也是标准重力加速度；“kn”是节，小写时也有人指千牛；“C”是库仑，也有人指摄氏度；“kg”曾表示力。单位的另一个文本与首先读取的含义不符，而与另一种含义相符。请使用只有一种含义的符号，例如“gn”、“kN”、“°C”和“kgf”。</translation>
    </message>
    <message>
        <source>&quot;inner_mode_count&quot; is %1, and &quot;inner_mode_nameList&quot; has %2</source>
        <translation>“inner_mode_count”为 %1，而“inner_mode_nameList”有 %2 个</translation>
    </message>
    <message>
        <source>there are %1 descriptions for %2 modes</source>
        <translation>%2 个模式有 %1 个说明</translation>
    </message>
    <message>
        <source>A list is divided by another character than a comma</source>
        <translation>列表以逗号以外的字符分隔</translation>
    </message>
    <message>
        <source>the quotes make one text of the list; leave them out</source>
        <translation>引号使整个列表成为一个文本；请去掉引号</translation>
    </message>
    <message>
        <source>Only the comma of ASCII outside of quotes divides a list. With a full-width one, a &quot;|&quot; or the like the whole list is one name, which nothing has.</source>
        <translation>只有引号之外的 ASCII 逗号分隔列表。使用全角逗号、“|”等字符时，整个列表是一个名称，没有任何东西叫这个名称。</translation>
    </message>
    <message>
        <source>\n is a line break and \t a tab, also in a path such as C:\new. Write a backslash as two; put quotes around a text in which the escape is meant. A program that saves an item writes no quotes around escapes: in files that are spelt throughout as AUTH_INF::save_ini() spells them, only those in &quot;icon&quot; and &quot;lib_name&quot; are found.</source>
        <translation>\n 是换行，\t 是制表符，在 C:\new 之类的路径中也是如此。反斜杠请写两个；如果需要转义，请在文本两端加引号。保存模块项的程序不给转义加引号：在写法与 AUTH_INF::save_ini() 完全一致的文件中，只报告“icon”和“lib_name”中的转义。</translation>
    </message>
    <message>
        <source>%1: is a link to a file that does not exist.</source>
        <translation>%1：是指向不存在的文件的链接。</translation>
    </message>
    <message>
        <source>Says what is different between two item files, or between the modules of one name in two directories: modes, parameters, results and what describes them.

Exit code 1 when projects that were stored with the old version lose something: a module, a mode or a parameter is gone or has another name, an exclusive group has another name or is none any more, a unit is another one and not only spelt otherwise, a choice is gone, only certain values are left to choose, limits are narrower, a parameter counts for fewer values of another one, the kind is one that does not read all that the old one allowed, or several values are no longer allowed. These lines begin with &quot;!&quot;. Exit code 0 when there are other differences only, or none.</source>
        <translation>说明两个模块项文件之间，或两个目录中同名模块之间的差异：模式、参数、结果及其描述。

如果以旧版本保存的项目会丢失内容，则退出码为 1：模块、模式或参数已删除或改名，互斥组改名或不再互斥，单位改变（而不仅是写法不同），可选值减少，改为只能取某些值，上下限变窄，参数只在另一参数取更少的值时才起作用，新种类不能读取旧种类允许的所有值，或不再允许多个值。这些行以“!”开头。只有其他差异或没有差异时，退出码为 0。</translation>
    </message>
    <message>
        <source>the header has no &quot;]&quot;</source>
        <translation>节标题没有“]”</translation>
    </message>
    <message>
        <source>the text behind the header is ignored</source>
        <translation>节标题之后的文本会被忽略</translation>
    </message>
    <message>
        <source>the &quot;[&quot; in front of the header is missing, so that the keys below do not belong to the section &quot;%1&quot;</source>
        <translation>节标题前缺少“[”，因此下面的键不属于节“%1”</translation>
    </message>
    <message>
        <source>the line has no &quot;=&quot; and a quote that is not closed, and all up to line %1 is ignored with it</source>
        <translation>该行没有“=”，且有未结束的引号，直到第 %1 行的所有内容都会随之被忽略</translation>
    </message>
    <message>
        <source>A header is a name in brackets and nothing else. Text behind it is ignored, and so is a header without the first bracket.</source>
        <translation>节标题是方括号中的名称，此外没有其他内容。其后的文本会被忽略，缺少前一个方括号的节标题也会被忽略。</translation>
    </message>
    <message>
        <source>the name of the mode begins or ends with white space, and [Belong] names it without</source>
        <translation>模式的名称以空白开头或结尾，而 [Belong] 中的名称没有空白</translation>
    </message>
    <message>
        <source>the quote is not closed on this line, and all up to line %1 is read as a part of this value</source>
        <translation>引号没有在本行结束，直到第 %1 行的所有内容都读作此值的一部分</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is given more than once.</source>
        <translation>“%1”给出了多次。</translation>
    </message>
    <message>
        <source>is in UTF-16, which can be read of XML alone; save it in UTF-8.</source>
        <translation>是 UTF-16 编码，只有 XML 可以用它；请以 UTF-8 保存。</translation>
    </message>
    <message>
        <source>What to write; else JSON of an item file, and an item file of everything else.</source>
        <translation>要写出的格式；未给出时，模块项文件写成 JSON，其他都写成模块项文件。</translation>
    </message>
    <message>
        <source>a &quot;|&quot; divides the parts of this hint, and not a comma</source>
        <translation>此提示的各部分以“|”分隔，而不是逗号</translation>
    </message>
    <message>
        <source>a &quot;|&quot; divides the parts of this hint, and not a comma: write %1</source>
        <translation>此提示的各部分以“|”分隔，而不是逗号：请写为 %1</translation>
    </message>
    <message>
        <source> A &quot;|&quot; divides the parts of this hint, and not a comma.</source>
        <translation>此提示的各部分以“|”分隔，而不是逗号。</translation>
    </message>
    <message>
        <source>A list of choices is one single choice</source>
        <translation>可选值列表只有一个可选值</translation>
    </message>
    <message>
        <source>A &quot;|&quot; divides choices. With commas in quotes the whole list is one choice, and nothing else can be chosen.</source>
        <translation>可选值以“|”分隔。引号内用逗号分隔时，整个列表是一个可选值，没有别的可选。</translation>
    </message>
    <message>
        <source>white space in front of &quot;%1&quot; is dropped; put quotes around the text where it is meant</source>
        <translation>“%1”前面的空白会被丢弃；确需空白时请给文本加引号</translation>
    </message>
    <message>
        <source>white space behind &quot;%1&quot; is dropped; put quotes around the text where it is meant</source>
        <translation>“%1”后面的空白会被丢弃；确需空白时请给文本加引号</translation>
    </message>
    <message>
        <source>&quot;%1&quot; begins or ends with white space, which is a part of the text</source>
        <translation>“%1”的开头或结尾有空白，空白是文本的一部分</translation>
    </message>
    <message>
        <source>Outside of quotes a comma makes a list of a value, and a list is no text: it is read as an empty one. Put quotes around the text. The hints &quot;Choices.&quot;, &quot;When.&quot;, &quot;Belong.&quot; and &quot;Order&quot; are lists that &quot;|&quot; divides: write it in place of the commas.</source>
        <translation>引号外的逗号会把值变成列表，而列表不是文本：它被读作空文本。请给文本加引号。提示“Choices.”、“When.”、“Belong.”和“Order”是以“|”分隔的列表：请用它代替逗号。</translation>
    </message>
    <message>
        <source>A PATH is a file, or a directory that stands for all files below it that end in &quot;.ini&quot;, also behind links to directories; hidden ones are left out, and one in which nothing is a part of a module item is skipped with a note.</source>
        <translation>PATH 可以是文件，也可以是目录，目录代表其下所有以“.ini”结尾的文件，也包括目录链接之后的文件；隐藏的文件和目录不算在内，其中没有模块项任何部分的文件会被跳过并给出提示。</translation>
    </message>
    <message>
        <source>%1: is skipped, since nothing in it is a part of a module item. Name the file itself to have it read.</source>
        <translation>%1：已跳过，因为其中没有模块项的任何部分。要读取它，请直接指定该文件。</translation>
    </message>
    <message>
        <source>%1: no file below it is a module item.</source>
        <translation>%1：其下没有模块项文件。</translation>
    </message>
    <message>
        <source>Lists every problem of module item files, one to a line: file, line, column, severity, what is wrong, and the rule in brackets. The exit code is 1 when there is a finding, also if it is only a warning.

Rules are configured in files named &quot;.kelto-lint.ini&quot;, in the directory of a file or above it; each rule is what the nearest file says that names it. They hold the section [Rules], in which a key is a rule and its value one of error, warning and off:

  [Rules]
  comment=warning
  mode-without-parameters=off</source>
        <translation>列出模块项文件的所有问题，每行一个：文件、行、列、严重程度、问题，以及方括号中的规则。有问题时退出码为 1，即使只有警告。

规则在名为“.kelto-lint.ini”的文件中设置，该文件位于模块项文件所在的目录或其上级目录；每条规则以写有该规则的最近的文件为准。其中有 [Rules] 节，键为规则，值为 error、warning 或 off：

  [Rules]
  comment=warning
  mode-without-parameters=off</translation>
    </message>
    <message>
        <source>%1: the value of &quot;%2&quot; is lost: a comma makes a list of it. Put quotes around it.</source>
        <translation>%1：“%2”的值丢失：逗号把它变成了列表。请给它加引号。</translation>
    </message>
    <message>
        <source>the header has a quote that is not closed, and all up to line %1 is ignored</source>
        <translation>节标题中有未结束的引号，直到第 %1 行的所有内容都会被忽略</translation>
    </message>
    <message>
        <source>the quote hides the &quot;=&quot;, and all up to line %1 is ignored; write a quote in a key as %22</source>
        <translation>引号遮住了“=”，直到第 %1 行的所有内容都会被忽略；键中的引号请写作 %22</translation>
    </message>
    <message>
        <source>the list ends at the &quot;;&quot;; a comma divides its elements, and a comment stands on a line of its own</source>
        <translation>列表在“;”处结束；元素以逗号分隔，注释放在单独一行</translation>
    </message>
    <message>
        <source>the text ends at the &quot;;&quot;; a &quot;|&quot; divides the parts of this hint, and a comment stands on a line of its own</source>
        <translation>文本在“;”处结束；此提示的各部分以“|”分隔，注释放在单独一行</translation>
    </message>
    <message>
        <source>the keys up to line %1 stand in no section and are not read</source>
        <translation>直到第 %1 行的键都不在任何节中，不会被读取</translation>
    </message>
    <message>
        <source>&quot;inner_mode_count&quot; is %1, and &quot;inner_mode_nameList&quot; has %2; a superfluous comma makes an empty name</source>
        <translation>“inner_mode_count”为 %1，而“inner_mode_nameList”有 %2 个；多余的逗号会产生空名称</translation>
    </message>
    <message>
        <source>a superfluous comma makes an empty name.</source>
        <translation>多余的逗号会产生空名称。</translation>
    </message>
    <message>
        <source>the comma makes a list of the value, which is then not read; write one value</source>
        <translation>逗号使此值成为列表，因而不会被读取；请只写一个值</translation>
    </message>
    <message>
        <source>the line has no &quot;=&quot; and a backslash at its end, and all up to line %1 is ignored with it</source>
        <translation>该行没有“=”，且以反斜杠结尾，直到第 %1 行的所有内容都会随之被忽略</translation>
    </message>
    <message>
        <source>the backslash at the end of the line makes the next line a part of the key</source>
        <translation>行末的反斜杠使下一行成为键的一部分</translation>
    </message>
    <message>
        <source>Writes the style sheet text that VIniSettings::styleSheetFormat() makes of the file. &quot;QtClassName&quot; in the section &quot;ID&quot; is the class of the widgets, the section &quot;normal&quot; their style, and every other section the style of a state, such as &quot;hover&quot;. A file without a class and without &quot;normal&quot; is an error, and so is a value that a comma outside of quotes divides: nothing of it is in the text.</source>
        <translation>输出 VIniSettings::styleSheetFormat() 由此文件生成的样式表文本。节“ID”中的“QtClassName”是部件的类，节“normal”是其样式，其他每个节是一种状态的样式，例如“hover”。既没有类也没有“normal”的文件是错误，被引号外的逗号分开的值也是错误：文本中没有它的任何内容。</translation>
    </message>
    <message>
        <source>%1: %2 files below it are skipped, since nothing in them is a part of a module item, %3 for example. Name a file itself to have it read.</source>
        <translation>%1：已跳过其下的 %2 个文件，因为其中没有模块项的任何部分，例如 %3。要读取某个文件，请直接指定它。</translation>
    </message>
    <message>
        <source>the line has no &quot;=&quot; and is ignored; the header of a section is written [%1]</source>
        <translation>该行没有 &quot;=&quot;，因此被忽略；节的标题写作 [%1]</translation>
    </message>
    <message>
        <source> Other sections have this key, too, so that its declaration may be misspelt</source>
        <translation>其他节也有此键，因此可能是其声明拼写有误</translation>
    </message>
</context>
</TS>
