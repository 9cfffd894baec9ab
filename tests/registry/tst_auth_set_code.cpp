// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The modules of a registry, and items in INI files, as source text.

#include "support/directorytest.h"

#include <Kelto/AUTH_SET>

#include <QTest>

namespace {

AUTH_INF calculation(const QString &name)
{
    AUTH_INF item;
    item.name = name;
    item.type = "calculation";
    item.trObjectName = name + "Texts";
    return item;
}

/// What an item that was read from an empty file is written as.
QString emptyItemText()
{
    return "KeltoItem inf;\ninf.number=0;\ninf.name=\"\";\ninf.name_tr=UCal::tr(\"\");\n"
           "inf.description=UCal::tr(\"\");\ninf.icon=\"\";\ninf.type=\"\";\n"
           "inf.type_tr=UCal::tr(\"\");\ninf.group=\"\";\ninf.group_tr=UCal::tr(\"\");\n"
           "inf.exclusive_group=false;\ninf.lib_name=QStringList{\n};\n"
           "inf.inner_mode_count=0;\ninf.inner_mode_description=QStringList{\n};\n"
           "inf.inner_mode_nameList=QStringList{\n};\n"
           "inf.inner_mode_nameList_tr=QStringList{\n};\ninf.trObjectName=\"\";\n"
           "inf.codeFunctionName=\"\";\ninf.extraKey.clear();\n";
}

QString textOfFile(const QString &path)
{
    AUTH_INF item;
    item.load_ini(path);
    return item.to_code();
}

} // namespace

class TestAuthSetCode : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void textsOfFiles_data();
    void textsOfFiles();
    void missingFiles_data();
    void missingFiles();
    void textsOfModules_data();
    void textsOfModules();
};

void TestAuthSetCode::init()
{
    DirectoryTest::init();
    if (QTest::currentTestFailed())
        return;
    calculation("A").save_ini("a.ini");
    calculation("B").save_ini("b.ini");
}

void TestAuthSetCode::textsOfFiles_data()
{
    QTest::addColumn<QStringList>("files");

    QTest::newRow("no file") << QStringList();
    QTest::newRow("one file") << QStringList { "a.ini" };
    QTest::newRow("files in the order given") << QStringList { "b.ini", "a.ini" };
    QTest::newRow("a file given twice") << QStringList { "a.ini", "a.ini" };
}

void TestAuthSetCode::textsOfFiles()
{
    QFETCH(QStringList, files);
    QStringList expected;
    for (const QString &file : qAsConst(files))
        expected.append(textOfFile(file));
    QCOMPARE(AUTH_SET().generate_AUTH_INF_to_code(files), expected);
    // The modules of the registry are not among them, nor does it take in those of the files.
    const AUTH_SET set("App", "1", { calculation("C") });
    QCOMPARE(set.generate_AUTH_INF_to_code(files), expected);
    QCOMPARE(set.AUTH_INF_list_to_code(), QStringList(calculation("C").to_code()));
}

void TestAuthSetCode::missingFiles_data()
{
    QTest::addColumn<QString>("file");

    QTest::newRow("a missing file") << "missing.ini";
    QTest::newRow("a file in a missing directory") << "missing/a.ini";
    QTest::newRow("a directory") << ".";
    QTest::newRow("no path") << "";
}

void TestAuthSetCode::missingFiles()
{
    QFETCH(QString, file);
    // What was read before must not show up in it.
    const QStringList texts = AUTH_SET().generate_AUTH_INF_to_code({ "a.ini", file });
    QCOMPARE(texts.size(), 2);
    QCOMPARE(texts.at(0), textOfFile("a.ini"));
    QCOMPARE(texts.at(1), emptyItemText());
}

void TestAuthSetCode::textsOfModules_data()
{
    QTest::addColumn<QStringList>("names");

    QTest::newRow("no module") << QStringList();
    QTest::newRow("one module") << QStringList { "A" };
    QTest::newRow("modules in registry order") << QStringList { "B", "A", "C" };
    QTest::newRow("two modules of one name") << QStringList { "A", "A" };
}

void TestAuthSetCode::textsOfModules()
{
    QFETCH(QStringList, names);
    QVector<AUTH_INF> modules;
    QStringList expected;
    for (const QString &name : qAsConst(names)) {
        AUTH_INF module = calculation(name);
        // The registry numbers its modules, whatever they bring along.
        module.number = modules.size();
        expected.append(module.to_code());
        module.number = 99;
        modules.append(module);
    }
    const AUTH_SET set("App", "1", modules);
    QCOMPARE(set.AUTH_INF_list_to_code(), expected);
}

QTEST_GUILESS_MAIN(TestAuthSetCode)
#include "tst_auth_set_code.moc"
