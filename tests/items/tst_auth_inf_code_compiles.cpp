// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The source text of module items as a host uses it: compiled into a program that is run, and
// searched for texts to translate.

#include "support/directorytest.h"
#include "support/itemjson.h"
#include "support/testfiles.h"

#include <Kelto/AUTH_INF>

#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

QStringList entry(const QString &key)
{
    return { "sub-group of " + key, key,          "float", "false", "mm", "", "σ",
             "长度 " + key,         "分组 " + key };
}

AUTH_INF fullItem(const QString &type)
{
    AUTH_INF item;
    item.number = -7;
    item.name = "梁";
    item.name_tr = "not written";
    item.description = "弯曲; 100 % of 'it', {and} // more /* than */";
    item.icon = ":/icons/beam.svg";
    item.type = type;
    item.type_tr = "not written";
    item.group = "Bridges";
    item.group_tr = "not written";
    item.exclusive_group = true;
    item.lib_name = QStringList { "beam", "solver", "beam" };
    item.inner_mode_count = 3;
    item.inner_mode_description = QStringList { "one end", "两端", "" };
    item.inner_mode_nameList = QStringList { "Cantilever", "简支", "" };
    item.inner_mode_nameList_tr = QStringList { "not written" };
    item.inner_mode_parameterList = { { entry("Load"), entry("x") }, {}, { entry("Load") } };
    item.trObjectName = "Texts";
    item.codeFunctionName = "beamItem";
    item.output_results = { entry("Deflection"), entry("应力") };
    item.extraKey = { { "whole", 12 },
                      { "negative", "-3" },
                      { "fraction", 0.5 },
                      { "large", "1e+06" },
                      { "word", "abc" },
                      { "empty", "" },
                      { "nothing", {} },
                      { "作者", "王" },
                      { "truth", true },
                      { "number and text", "12 mm" },
                      { "list", QStringList { "a", "b" } } };
    return item;
}

AUTH_INF emptyItem(const QString &type)
{
    AUTH_INF item;
    item.name.clear();
    item.type = type;
    item.group.clear();
    item.inner_mode_count = 0;
    item.inner_mode_description.clear();
    item.inner_mode_nameList.clear();
    return item;
}

AUTH_INF itemWithListsOfOne()
{
    AUTH_INF item = fullItem("calculation");
    item.lib_name = QStringList { "beam" };
    item.inner_mode_count = 1;
    item.inner_mode_description = QStringList { "one end" };
    item.inner_mode_nameList = QStringList { "Cantilever" };
    item.inner_mode_parameterList = { { entry("Load") } };
    item.output_results = { entry("Deflection") };
    item.extraKey = { { "key", "value" } };
    return item;
}

AUTH_INF itemWithListsThatDisagree(int count)
{
    AUTH_INF item = fullItem("calculation");
    item.inner_mode_count = count;
    // Lists of two texts, which could also be read as a range of characters.
    item.inner_mode_parameterList = { { entry("Load").mid(0, 2), QStringList() }, { entry("x") } };
    item.output_results = { QStringList(), entry("Deflection").mid(0, 2) };
    return item;
}

/// A context class that marks the texts it translates, written with its marks: "<>" or "[]".
struct Context
{
    QString className;
    QString marks;

    QString tr(const QString &text) const { return marks.at(0) + text + marks.at(1); }
    QStringList tr(QStringList texts) const
    {
        for (QString &text : texts)
            text = tr(text);
        return texts;
    }
};

QVector<Context> contexts()
{
    return { { "PlainContext", "<>" }, { "Host::Texts", "<>" }, { "QObjectContext", "[]" } };
}

QStringList compiledEntry(QStringList strings, const Context &context)
{
    for (int place = 7; place < qMin(9, strings.size()); ++place)
        strings[place] = context.tr(strings.at(place));
    return strings;
}

QVector<QStringList> compiledEntries(const QVector<QStringList> &entries, const Context &context)
{
    QVector<QStringList> compiled;
    for (const QStringList &strings : entries)
        compiled.append(compiledEntry(strings, context));
    return compiled;
}

/// What a program holds after it has run the source text of @p item.
AUTH_INF compiledItem(const AUTH_INF &item, const Context &context)
{
    AUTH_INF compiled = item;
    compiled.name_tr = context.tr(item.name);
    compiled.description = context.tr(item.description);
    compiled.type_tr = context.tr(item.type);
    compiled.group_tr = context.tr(item.group);
    compiled.inner_mode_description = context.tr(item.inner_mode_description);
    compiled.inner_mode_nameList_tr = context.tr(item.inner_mode_nameList);
    compiled.inner_mode_parameterList.clear();
    compiled.output_results.clear();
    if (item.type == "calculation") {
        for (int i = 0; i < item.inner_mode_count; ++i)
            compiled.inner_mode_parameterList.append(
                compiledEntries(item.inner_mode_parameterList.value(i), context));
        compiled.output_results = compiledEntries(item.output_results, context);
    }
    for (VDataItem &extra : compiled.extraKey)
        extra.value = extra.value.toString();
    return compiled;
}

/// A source file with a function generatedItems() that gives all @p items in all contexts.
QString generatedSource(const QVector<AUTH_INF> &items)
{
    QString functions;
    QStringList calls;
    const QVector<Context> all = contexts();
    for (const Context &context : all) {
        for (const AUTH_INF &item : items) {
            const QString name = QStringLiteral("item%1").arg(calls.size());
            calls.append(name + "()");
            functions += "static KeltoItem " + name + "()\n{\n"
                + item.to_code(context.className, "item") + "return item;\n}\n";
        }
    }
    return "#include <Kelto/AUTH_INF>\n#include \"plaincontext.h\"\n"
           "#include \"qobjectcontext.h\"\nQVector<AUTH_INF> generatedItems();\n"
        + functions + "QVector<AUTH_INF> generatedItems()\n{\nreturn { " + calls.join(", ")
        + " };\n}\n";
}

/// What @p program printed, which is nothing when it failed.
QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool ended = process.waitForFinished(100000);
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        qCritical("%s",
                  qUtf8Printable(program + ": " + process.errorString()
                                 + QString::fromUtf8(process.readAllStandardError())));
    return process.readAllStandardOutput();
}

/// "context: text" for every text in a file of translations.
QStringList textsIn(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList texts;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == "name")
            context = xml.readElementText();
        else if (xml.isStartElement() && xml.name() == "source")
            texts.append(context + ": " + xml.readElementText());
    }
    return texts;
}

} // namespace

class TestAuthInfCodeCompiles : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void compiledItemsEqualTheirOrigin();
    void textsToTranslateAreFound_data();
    void textsToTranslateAreFound();
};

void TestAuthInfCodeCompiles::compiledItemsEqualTheirOrigin()
{
    const QVector<AUTH_INF> items { AUTH_INF(),
                                    emptyItem("calculation"),
                                    emptyItem(""),
                                    itemWithListsOfOne(),
                                    itemWithListsThatDisagree(1),
                                    itemWithListsThatDisagree(4),
                                    itemWithListsThatDisagree(-1),
                                    fullItem("calculation"),
                                    fullItem("Calculation") };
    QVERIFY(writeFile("items.cpp", generatedSource(items).toUtf8()));
    QCOMPARE(outputOf(KELTO_COMPILER, { "items.cpp", "-o", "host", "@" KELTO_COMPILER_ARGUMENTS }),
             QByteArray());

    const QJsonArray compiled
        = QJsonDocument::fromJson(outputOf(m_directory->path() + "/host", {})).array();
    const QVector<Context> all = contexts();
    QCOMPARE(compiled.size(), items.size() * all.size());
    for (int i = 0; i < compiled.size(); ++i) {
        const AUTH_INF expected
            = compiledItem(items.at(i % items.size()), all.at(i / items.size()));
        const QString difference = differences(compiled.at(i).toObject(), itemAsJson(expected));
        QVERIFY2(difference.isEmpty(), qUtf8Printable(difference));
    }
}

void TestAuthInfCodeCompiles::textsToTranslateAreFound_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("expected");

    const QStringList ofAnyType { "Texts: 两端",    "Texts: 梁",      "Texts: Cantilever",
                                  "Texts: Bridges", "Texts: one end", "Texts: 简支" };
    const QString description = "Texts: " + fullItem("").description;
    QStringList ofACalculation { description, "Texts: calculation" };
    for (const char *key : { "Load", "x", "Deflection", "应力" })
        ofACalculation += { QString("Texts: 长度 ") + key, QString("Texts: 分组 ") + key };
    QTest::newRow("a calculation") << "calculation" << ofAnyType + ofACalculation;
    QTest::newRow("another type") << "tool"
                                  << ofAnyType + QStringList { description, "Texts: tool" };
}

void TestAuthInfCodeCompiles::textsToTranslateAreFound()
{
    QFETCH(QString, type);
    QFETCH(QStringList, expected);
    const QString source
        = "KeltoItem beamItem()\n{\n" + fullItem(type).to_code() + "return inf;\n}\n";
    QVERIFY(writeFile("item.cpp", source.toUtf8()));

    outputOf(KELTO_LUPDATE, { "item.cpp", "-ts", "item.ts" });
    QStringList found = textsIn("item.ts");
    std::sort(found.begin(), found.end());
    std::sort(expected.begin(), expected.end());
    QCOMPARE(found.join('\n'), expected.join('\n'));
}

QTEST_GUILESS_MAIN(TestAuthInfCodeCompiles)
#include "tst_auth_inf_code_compiles.moc"
