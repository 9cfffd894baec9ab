// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What "kelto code" writes, compiled with warnings as errors into a program that is run.

#include "support/compiledhost.h"
#include "support/directorytest.h"
#include "support/harditems.h"
#include "support/itemjson.h"
#include "support/markingtranslator.h"
#include "support/testfiles.h"

#include <KeltoItemTranslation>
#include <VIniSettings>

#include <QTest>

#include <algorithm>

namespace {

/// A file "NAME.ini" whose results are read, too.
AUTH_INF savedItem(const QString &name, AUTH_INF item)
{
    const QString path = name + ".ini";
    item.save_ini(path);
    VIniSettings file(path);
    file.setValue("KeltoItem/output_results", QStringList { "Deflection", "应力" });
    file.saveLocal();
    item.load_ini(path);
    return item;
}

AUTH_INF itemOf(const QString &context, const QString &function)
{
    AUTH_INF item = fullItem();
    item.trObjectName = context;
    item.codeFunctionName = function;
    // No value at all is an empty text in source text.
    item.extraKey.erase(std::remove_if(item.extraKey.begin(), item.extraKey.end(),
                                       [](const VDataItem &extra) {
                                           return !extra.value.isValid();
                                       }),
                        item.extraKey.end());
    return item;
}

void runKelto(const QStringList &arguments)
{
    const Outcome outcome = outcomeOf(KELTO_COMMAND, arguments);
    QCOMPARE(QString::fromUtf8(outcome.errors), QString());
    QCOMPARE(outcome.exitCode, 0);
}

} // namespace

class TestCodeCompiles : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void itemsEqualTheirFiles();
    void refusesFileNamesThatResourcesCannotHave_data();
    void refusesFileNamesThatResourcesCannotHave();
    void stopsAtMacros_data();
    void stopsAtMacros();
};

/// Both ways into one program, which has classes of the names of the contexts itself.
void TestCodeCompiles::itemsEqualTheirFiles()
{
    AUTH_INF tool = itemOf("Texts", "inf");
    tool.type = "tool";
    tool.inner_mode_count = 0;
    tool.inner_mode_nameList.clear();
    tool.inner_mode_parameterList.clear();
    tool.output_results.clear();
    tool.description.clear();
    QVector<AUTH_INF> items { savedItem("a b", itemOf("QObjectContext", "embedded_init")),
                              savedItem("静力", itemOf("Host::QObject", "QObject")),
                              savedItem("'$(x)'&<%1>", itemOf("inf", "item4")),
                              savedItem("nameless", itemOf("", "")) };
    tool.save_ini("tool.ini");
    tool.load_ini("tool.ini");
    items.append(tool);
    items.append(savedItem("capitals", itemOf("FEM", "CFD")));
    const QStringList files { "a b.ini",      "静力.ini", "'$(x)'&<%1>.ini",
                              "nameless.ini", "tool.ini", "capitals.ini" };
    runKelto(QStringList { "code", "-o", ".", "--name", "compiled", "--context", "QObjectContext" }
             + files);
    QVERIFY(QDir().mkpath("lies/deeper/sub") && QFile::link("lies/deeper/sub", "sub"));
    runKelto(QStringList { "code", "-o", "sub", "--name", "embedded", "--embed", "--context",
                           "QObjectContext" }
             + files);
    outputOf(KELTO_RCC, { "--name", "embedded", "-o", "resources.cpp", "sub/embedded.qrc" });
    QVERIFY(writeFile("items.cpp",
                      "#include \"compiled.h\"\n#include \"sub/embedded.h\"\n"
                      "#include \"contexts.h\"\nQVector<AUTH_INF> generatedItems();\n"
                      "QVector<AUTH_INF> generatedItems()\n{\n"
                      "return compiled::allItems() + embedded::allItems()\n"
                      "<< compiled::QObject() << embedded::inf();\n}\n"));
    // What rcc writes is not measured by what clazy asks of this project.
    qputenv("CLAZY_CHECKS", "level0");
    outputOf(KELTO_COMPILER,
             { "items.cpp", "compiled.cpp", "sub/embedded.cpp", "resources.cpp", "-o", "host",
               "-Wpedantic", "-Wshadow", "-DQT_NO_CAST_FROM_ASCII", "-DQT_NO_KEYWORDS",
               "@" KELTO_COMPILER_ARGUMENTS });
    const QJsonArray found
        = QJsonDocument::fromJson(outputOf(QDir::current().filePath("host"), {})).array();

    MarkingTranslator translator("QObjectContext");
    QCoreApplication::installTranslator(&translator);
    items[3].trObjectName = "QObjectContext";
    QVector<AUTH_INF> expected = items + items;
    expected += { items.at(1), items.at(4) };
    QCOMPARE(found.size(), expected.size());
    for (int i = 0; i < found.size(); ++i) {
        const AUTH_INF item = KeltoItemTranslation::translated(expected.at(i));
        QCOMPARE(differences(found.at(i).toObject(), itemAsJson(item)), QString());
    }
}

void TestCodeCompiles::refusesFileNamesThatResourcesCannotHave_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("a carriage return") << "a\rb.ini";
    QTest::newRow("an escape") << "a\u001bb.ini";
}

void TestCodeCompiles::refusesFileNamesThatResourcesCannotHave()
{
    QFETCH(QString, name);
    itemOf("Texts", "beam").save_ini("beam.ini");
    QVERIFY(QFile::rename("beam.ini", name));
    const Outcome outcome
        = outcomeOf(KELTO_COMMAND, { "code", "--embed", "-o", "out", "--", name });
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY(outcome.output.contains("holds a control character"));
    QVERIFY(!QFile::exists("out"));
}

void TestCodeCompiles::stopsAtMacros_data()
{
    QTest::addColumn<QString>("macro");

    for (const char *macro : { "beam", "Host", "TEXTS", "compiled" })
        QTest::newRow(macro) << QString(macro);
}

/// Names that only a host defines.
void TestCodeCompiles::stopsAtMacros()
{
    QFETCH(QString, macro);
    itemOf("Host::TEXTS", "beam").save_ini("beam.ini");
    runKelto({ "code", "-o", ".", "--name", "compiled", "beam.ini" });
    const Outcome outcome = outcomeOf(KELTO_COMPILER,
                                      { "-c", "compiled.cpp", "-o", "compiled.o",
                                        "-D" + macro + "=other", "@" KELTO_COMPILER_ARGUMENTS });
    QVERIFY(outcome.exitCode > 0);
    QVERIFY(outcome.errors.contains("This name of an item is a macro."));
}

QTEST_GUILESS_MAIN(TestCodeCompiles)

#include "tst_code_compiles.moc"
