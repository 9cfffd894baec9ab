// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The set values in the configuration file of the application, where they outlive the registry.

#include "support/directorytest.h"
#include "support/moduleitems.h"
#include "support/secondregistry.h"
#include "support/testfiles.h"

#include <QPoint>
#include <QTest>

namespace {

/// The registry of an application, or one without modules for no name.
AUTH_SET application(const QString &name)
{
    return name.isEmpty() ? AUTH_SET()
                          : AUTH_SET(name, "1.0", { exclusiveModule("P", "G", { "a" }) });
}

QString pathOf(const QString &name)
{
    return "Config/" + name + "_config.ini";
}

/// The set values of these keys.
QStringList valuesOf(const AUTH_SET &set, const QStringList &keys)
{
    Entries values;
    for (const QString &key : keys)
        values.append({ key, set.value_set(key) });
    return described(values);
}

} // namespace

class TestAuthSetValuesConfiguration : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void constructionWritesNothing();
    void keepsValuesInTheFileOfTheApplication_data();
    void keepsValuesInTheFileOfTheApplication();
    void loadsWhenConstructed_data();
    void loadsWhenConstructed();
    void loadsInTheOrderOfTheKeys();
    void loadsNothingWithoutModules();
    void loadsOnce();
    void writesEverySetValue();
    void writesWhatWasWrittenThroughPointers();
    void writesNoOtherStore();
    void updatesInPlace();
    void keepsWhatItDoesNotHold();
    void keepsWhatATypeIsInThisProcess_data();
    void keepsWhatATypeIsInThisProcess();
    void isReadByTheNextRun();
    void followsTheCurrentDirectory();
    void sharesTheFileWithAnotherRegistry();
    void writesOldValuesBack();
    void copiesShareTheFileOnly();
    void keepsKeysThatNoFileCanHold();
    void standsBadFiles_data();
    void standsBadFiles();
    void losesNothingOfAnOddFile();
    void standsFilesOfOthers_data();
    void standsFilesOfOthers();
};

void TestAuthSetValuesConfiguration::constructionWritesNothing()
{
    const AUTH_SET nameless;
    const AUTH_SET named = application("App");
    const AUTH_SET copy(named);
    QCOMPARE(nameless.value_set("k"), QVariant());
    QCOMPARE(copy.value_set("k"), QVariant());
    QCOMPARE(filesIn("."), QStringList());
}

void TestAuthSetValuesConfiguration::keepsValuesInTheFileOfTheApplication_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::newRow("ordinary name") << "App"
                                   << "Config/App_config.ini";
    QTest::newRow("no name") << ""
                             << "Config/_config.ini";
    QTest::newRow("the name is used as it is") << "My App 测试"
                                               << "Config/My App 测试_config.ini";
    QTest::newRow("a name with a directory") << "suite/App"
                                             << "Config/suite/App_config.ini";
    QTest::newRow("a name like that of another file") << "update"
                                                      << "Config/update_config.ini";
}

void TestAuthSetValuesConfiguration::keepsValuesInTheFileOfTheApplication()
{
    QFETCH(QString, name);
    QFETCH(QString, path);
    AUTH_SET set = application(name);
    set.setValueInSet("a/x", 1);
    QCOMPARE(filesIn("."), QStringList { "Config" });
    QCOMPARE(filesIn(QFileInfo(path).path()), QStringList { QFileInfo(path).fileName() });
    QCOMPARE(fileContent(path), QByteArray("[a]\nx=1\n"));
    QCOMPARE(application(name).value_set("a/x"), QVariant(1));
    QCOMPARE(application("Other").value_set("a/x"), QVariant());
}

void TestAuthSetValuesConfiguration::loadsWhenConstructed_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("with a name") << "App";
    QTest::newRow("without a name") << "";
}

void TestAuthSetValuesConfiguration::loadsWhenConstructed()
{
    QFETCH(QString, name);
    const QByteArray file = "[a]\nx=1\nlist=p, q\nb\\c=值\n\n[General]\ntop=2.5\n";
    QVERIFY(writeFile(pathOf(name), file));
    AUTH_SET set = application(name);
    QCOMPARE(valuesOf(set, { "a/x", "a/list", "a/b/c", "top", "A/x", "x" }),
             described(Entries { { "a/x", "1" },
                                 { "a/list", QStringList { "p", "q" } },
                                 { "a/b/c", "值" },
                                 { "top", "2.5" },
                                 { "A/x", QVariant() },
                                 { "x", QVariant() } }));
    QCOMPARE(fileContent(pathOf(name)), file);
    QCOMPARE(filesIn("Config"), QStringList { QFileInfo(pathOf(name)).fileName() });
    // Only the set values come from there.
    QCOMPARE(set.value_cal("a/x"), QVariant());
    QCOMPARE(set.value_temp("a/x"), QVariant());
    QCOMPARE(set.value_group("a"), Entries());
}

void TestAuthSetValuesConfiguration::loadsInTheOrderOfTheKeys()
{
    QVERIFY(writeFile("Config/App_config.ini", "[b]\ny=1\nx=2\n"));
    AUTH_SET set = application("App");
    // An unknown key gives the first value.
    QCOMPARE(set.value_set_p("nowhere"), set.value_set_p("b/x"));
    set.setValueInSet("a/z", 3);
    QCOMPARE(set.value_set_p("nowhere"), set.value_set_p("b/x"));
}

void TestAuthSetValuesConfiguration::loadsNothingWithoutModules()
{
    QVERIFY(writeFile("Config/App_config.ini", "[a]\nx=named\n"));
    QVERIFY(writeFile("Config/_config.ini", "[a]\nx=nameless\ny=kept\n"));
    AUTH_SET set("App", "1.0", {});
    QCOMPARE(set.value_set("a/x"), QVariant());
    // It has no name either.
    set.setValueInSet("a/x", "new");
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nx=named\n"));
    QCOMPARE(fileContent("Config/_config.ini"), QByteArray("[a]\nx=new\ny=kept\n"));
    QCOMPARE(set.value_set("a/y"), QVariant());
}

void TestAuthSetValuesConfiguration::loadsOnce()
{
    AUTH_SET set = application("App");
    QVERIFY(writeFile("Config/App_config.ini", "[a]\nx=late\n"));
    QCOMPARE(set.value_set("a/x"), QVariant());
    set.acquire({ exclusiveModule("P", "G", { "a" }) });
    set.refresh_group();
    QCOMPARE(set.value_set("a/x"), QVariant());
    QCOMPARE(application("App").value_set("a/x"), QVariant("late"));
}

void TestAuthSetValuesConfiguration::writesEverySetValue()
{
    QVERIFY(writeFile("Config/App_config.ini", "[a]\nx=1\n"));
    AUTH_SET set = application("App");
    set.setValueInSet("b/y", 2);
    QVERIFY(QFile::remove("Config/App_config.ini"));
    set.setValueInSet("c/z", 3);
    QCOMPARE(fileContent("Config/App_config.ini"),
             QByteArray("[a]\nx=1\n\n[b]\ny=2\n\n[c]\nz=3\n"));
    QVERIFY(QDir("Config").removeRecursively());
    set.setValueInSet("c/z", 4);
    QCOMPARE(fileContent("Config/App_config.ini"),
             QByteArray("[a]\nx=1\n\n[b]\ny=2\n\n[c]\nz=4\n"));
}

void TestAuthSetValuesConfiguration::writesWhatWasWrittenThroughPointers()
{
    AUTH_SET set = application("App");
    set.setValueInSet("a/x", 1);
    *set.value_set_p("a/x") = "written";
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nx=1\n"));
    set.setValueInSet("a/y", 2);
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nx=written\ny=2\n"));
}

void TestAuthSetValuesConfiguration::writesNoOtherStore()
{
    AUTH_SET set = application("App");
    set.set_temp("t", 1);
    set.delete_temp("t");
    set.setDefaultSettings("g", { { "k", 2 } });
    set.getCalculationLData({ { "Attribute/E", 3 } });
    QCOMPARE(filesIn("."), QStringList());
    set.setValueInSet("a/x", 4);
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nx=4\n"));
}

void TestAuthSetValuesConfiguration::updatesInPlace()
{
    AUTH_SET set = application("App");
    set.setValueInSet("a/x", 1);
    set.setValueInSet("a/y", 2);
    set.setValueInSet("a/x", "three");
    QCOMPARE(set.value_set("a/x"), QVariant("three"));
    QCOMPARE(set.value_set_p("nowhere"), set.value_set_p("a/x"));
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nx=three\ny=2\n"));
    // Names that differ in case are two.
    set.setValueInSet("a/X", 4);
    QCOMPARE(set.value_set("a/x"), QVariant("three"));
    QCOMPARE(set.value_set("a/X"), QVariant(4));
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nX=4\nx=three\ny=2\n"));
}

void TestAuthSetValuesConfiguration::keepsWhatItDoesNotHold()
{
    AUTH_SET set = application("App");
    QVERIFY(writeFile("Config/App_config.ini", "[a]\nx=other\ny=other\n\n[b]\nz=other\n"));
    set.setValueInSet("a/x", "mine");
    QCOMPARE(fileContent("Config/App_config.ini"),
             QByteArray("[a]\nx=mine\ny=other\n\n[b]\nz=other\n"));
    // The rest of the file is not taken over.
    QCOMPARE(valuesOf(set, { "a/x", "a/y", "b/z" }),
             described(
                 Entries { { "a/x", "mine" }, { "a/y", QVariant() }, { "b/z", QVariant() } }));
}

void TestAuthSetValuesConfiguration::keepsWhatATypeIsInThisProcess_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("read");
    const auto row = [](const char *name, const QVariant &value, const QVariant &read) {
        QTest::newRow(name) << value << read;
    };
    row("text", "two", "two");
    row("whole number", 1, "1");
    row("number", 2.5, "2.5");
    row("flag", true, "true");
    row("list of texts", QStringList { "x", "y" }, QStringList { "x", "y" });
    row("point", QPoint(1, -2), QPoint(1, -2));
    row("nothing", QVariant(), QVariant());
}

void TestAuthSetValuesConfiguration::keepsWhatATypeIsInThisProcess()
{
    QFETCH(QVariant, value);
    QFETCH(QVariant, read);
    AUTH_SET set = application("App");
    set.setValueInSet("a/x", value);
    QCOMPARE(described(set.value_set("a/x")), described(value));
    QCOMPARE(described(application("App").value_set("a/x")), described(value));
    const SecondRegistry other({ "--application", "App", "a/x" });
    QCOMPARE(other.values(), described(Entries { { "a/x", read } }));
}

void TestAuthSetValuesConfiguration::isReadByTheNextRun()
{
    // The first run of a program, in a directory where there is nothing.
    const SecondRegistry first({ "--application", "App", "--set", "a/x=1", "--set", "b/y=2" });
    QCOMPARE(first.messages(), QStringList());
    QCOMPARE(filesIn("."), QStringList { "Config" });
    const SecondRegistry second({ "--application", "App", "--set", "b/y=3", "a/x", "b/y", "c/z" });
    QCOMPARE(second.values(),
             described(Entries { { "a/x", "1" }, { "b/y", "3" }, { "c/z", QVariant() } }));
    QCOMPARE(valuesOf(application("App"), { "a/x", "b/y" }),
             described(Entries { { "a/x", "1" }, { "b/y", "3" } }));
    QCOMPARE(SecondRegistry({ "a/x" }).values(), described(Entries { { "a/x", QVariant() } }));
}

void TestAuthSetValuesConfiguration::followsTheCurrentDirectory()
{
    AUTH_SET set = application("App");
    set.setValueInSet("a/x", 1);
    QVERIFY(QDir().mkdir("other"));
    QVERIFY(QDir::setCurrent("other"));
    set.setValueInSet("a/y", 2);
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nx=1\ny=2\n"));
    QCOMPARE(fileContent("../Config/App_config.ini"), QByteArray("[a]\nx=1\n"));
}

void TestAuthSetValuesConfiguration::sharesTheFileWithAnotherRegistry()
{
    AUTH_SET first = application("App");
    AUTH_SET second = application("App");
    first.setValueInSet("a/x", "first");
    second.setValueInSet("a/y", "second");
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nx=first\ny=second\n"));
    QCOMPARE(first.value_set("a/y"), QVariant());
    QCOMPARE(second.value_set("a/x"), QVariant());
    second.setValueInSet("a/x", "second");
    QCOMPARE(first.value_set("a/x"), QVariant("first"));
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nx=second\ny=second\n"));
    QCOMPARE(application("App").value_set("a/x"), QVariant("second"));
}

void TestAuthSetValuesConfiguration::writesOldValuesBack()
{
    QVERIFY(writeFile("Config/App_config.ini", "[a]\nx=old\n"));
    AUTH_SET first = application("App");
    AUTH_SET second = application("App");
    first.setValueInSet("a/x", "new");
    // All set values are written, also those that have not changed here.
    second.setValueInSet("a/y", 1);
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nx=old\ny=1\n"));
    QCOMPARE(first.value_set("a/x"), QVariant("new"));
}

void TestAuthSetValuesConfiguration::copiesShareTheFileOnly()
{
    AUTH_SET original = application("App");
    original.setValueInSet("a/x", 1);
    AUTH_SET copy(original);
    copy.setValueInSet("a/x", 2);
    QCOMPARE(original.value_set("a/x"), QVariant(1));
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nx=2\n"));
    AUTH_SET assigned;
    assigned = original;
    assigned.setValueInSet("a/y", 3);
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nx=1\ny=3\n"));
    QCOMPARE(filesIn("Config"), QStringList { "App_config.ini" });
}

void TestAuthSetValuesConfiguration::keepsKeysThatNoFileCanHold()
{
    AUTH_SET set = application("App");
    set.setValueInSet("", 1);
    set.setValueInSet("//", 2);
    set.setValueInSet("a/x", 3);
    QCOMPARE(valuesOf(set, { "", "//", "a/x" }),
             described(Entries { { "", 1 }, { "//", 2 }, { "a/x", 3 } }));
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nx=3\n"));
}

void TestAuthSetValuesConfiguration::standsBadFiles_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<bool>("isDirectory");
    QTest::newRow("a file where the directory is to be") << "Config" << false;
    QTest::newRow("a directory where the file is to be") << "Config/App_config.ini" << true;
}

void TestAuthSetValuesConfiguration::standsBadFiles()
{
    QFETCH(QString, obstacle);
    QFETCH(bool, isDirectory);
    if (isDirectory)
        QVERIFY(QDir().mkpath(obstacle + "/inside"));
    else
        QVERIFY(writeFile(obstacle, "not a directory"));

    AUTH_SET set = application("App");
    QCOMPARE(set.value_set("a/x"), QVariant());
    set.setValueInSet("a/x", 1);
    set.setValueInSet("a/y", 2);
    QCOMPARE(valuesOf(set, { "a/x", "a/y" }), described(Entries { { "a/x", 1 }, { "a/y", 2 } }));
    QCOMPARE(application("App").value_set("a/x"), QVariant());
    if (isDirectory)
        QCOMPARE(filesIn(obstacle), QStringList { "inside" });
    else
        QCOMPARE(fileContent(obstacle), QByteArray("not a directory"));
    QCOMPARE(filesIn("."), QStringList { "Config" });
}

void TestAuthSetValuesConfiguration::losesNothingOfAnOddFile()
{
    const QByteArray odd = "\x89PNG\r\n[a]\nx=1\n\xff\xfe and no end";
    QVERIFY(writeFile("Config/App_config.ini", odd));
    AUTH_SET set = application("App");
    QCOMPARE(fileContent("Config/App_config.ini"), odd);
    set.setValueInSet("a/y", 2);
    set.setValueInSet("a/y", 3);
    QCOMPARE(filesIn("Config"), (QStringList { "App_config.ini", "App_config.ini.bak" }));
    QCOMPARE(fileContent("Config/App_config.ini.bak"), odd);
    QCOMPARE(fileContent("Config/App_config.ini"), QByteArray("[a]\nx=1\ny=3\n"));
}

void TestAuthSetValuesConfiguration::standsFilesOfOthers_data()
{
    QTest::addColumn<int>("fileRights");
    QTest::addColumn<int>("directoryRights");
    QTest::addColumn<QVariant>("read");
    QTest::addColumn<QByteArray>("after");

    const QByteArray before = "[a]\nx=1\n";
    QTest::newRow("ordinary file")
        << 0666 << 0777 << QVariant("1") << QByteArray("[a]\nx=1\ny=2\n");
    QTest::newRow("file that cannot be written") << 0444 << 0777 << QVariant("1") << before;
    QTest::newRow("file that cannot be read") << 0000 << 0777 << QVariant() << before;
    QTest::newRow("directory that cannot be written") << 0666 << 0555 << QVariant("1") << before;
    QTest::newRow("directory that cannot be entered") << 0666 << 0000 << QVariant() << before;
}

void TestAuthSetValuesConfiguration::standsFilesOfOthers()
{
    QFETCH(int, fileRights);
    QFETCH(int, directoryRights);
    QFETCH(QVariant, read);
    QFETCH(QByteArray, after);
    const QString path = "Config/App_config.ini";
    QVERIFY(writeFile(path, "[a]\nx=1\n"));
    setRights(".", 0777);
    setRights(path, fileRights);
    setRights("Config", directoryRights);
    const SecondRegistry other
        = SecondRegistry::ofAnotherUser({ "--application", "App", "--set", "a/y=2", "a/x", "a/y" });
    setRights("Config", 0777);
    setRights(path, 0666);

    QCOMPARE(other.messages(), QStringList());
    // What cannot be written is kept all the same.
    QCOMPARE(other.values(), described(Entries { { "a/x", read }, { "a/y", "2" } }));
    QCOMPARE(fileContent(path), after);
    QCOMPARE(filesIn("Config"), QStringList { "App_config.ini" });
}

QTEST_GUILESS_MAIN(TestAuthSetValuesConfiguration)
#include "tst_auth_set_values_configuration.moc"
