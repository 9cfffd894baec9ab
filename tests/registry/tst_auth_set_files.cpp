// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Stored values in INI files: the set values in the configuration file of the application, where
// they outlive the registry, and lists of values that a host saves and loads.

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

const char configuration[] = "Config/App_config.ini";

/// The set values of these keys.
QStringList valuesOf(const AUTH_SET &set, const QStringList &keys)
{
    Entries values;
    for (const QString &key : keys)
        values.append({ key, set.value_set(key) });
    return described(values);
}

/// The contents of the copies that were kept in @p directory.
QVector<QByteArray> copiesIn(const QString &directory)
{
    QVector<QByteArray> copies;
    const QStringList files = filesIn(directory).filter(".bak");
    for (const QString &file : files)
        copies.append(fileContent(directory + '/' + file));
    return copies;
}

} // namespace

class TestAuthSetFiles : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void keepsValuesInTheFileOfTheApplication_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("path");
        const auto row = [](const char *title, const char *name, const char *path) {
            QTest::newRow(title) << QString(name) << QString(path);
        };
        row("ordinary name", "App", "Config/App_config.ini");
        row("no name", "", "Config/_config.ini");
        row("the name is used as it is", "My App 测试", "Config/My App 测试_config.ini");
        row("a name with a directory", "suite/App", "Config/suite/App_config.ini");
    }
    void keepsValuesInTheFileOfTheApplication()
    {
        QFETCH(QString, name);
        QFETCH(QString, path);
        AUTH_SET set = application(name);
        // Neither construction nor the other stores write anything.
        set.set_temp("t", 1);
        set.setDefaultSettings("g", { { "k", 2 } });
        set.getCalculationLData({ { "Attribute/E", 3 } });
        QCOMPARE(filesIn("."), QStringList());
        set.setValueInSet("a/x", 1);
        QCOMPARE(filesIn("."), QStringList { "Config" });
        QCOMPARE(filesIn(QFileInfo(path).path()), QStringList { QFileInfo(path).fileName() });
        QCOMPARE(fileContent(path), QByteArray("[a]\nx=1\n"));
        QCOMPARE(application(name).value_set("a/x"), QVariant(1));
        QCOMPARE(application("Other").value_set("a/x"), QVariant());
    }

    void loadsWhenConstructed_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("with a name") << "App";
        QTest::newRow("without a name") << "";
    }
    void loadsWhenConstructed()
    {
        QFETCH(QString, name);
        const QByteArray file = "[b]\ny=1\nlist=p, q\n\n[General]\ntop=值\n";
        QVERIFY(writeFile("Config/" + name + "_config.ini", file));
        AUTH_SET set = application(name);
        QCOMPARE(valuesOf(set, { "b/y", "b/list", "top", "B/y", "y" }),
                 described(Entries { { "b/y", "1" },
                                     { "b/list", QStringList { "p", "q" } },
                                     { "top", "值" },
                                     { "B/y", QVariant() },
                                     { "y", QVariant() } }));
        QCOMPARE(fileContent("Config/" + name + "_config.ini"), file);
        // Only the set values come from there, in the order of the keys.
        QCOMPARE(set.value_cal("b/y"), QVariant());
        QCOMPARE(set.value_temp("b/y"), QVariant());
        QCOMPARE(set.value_group("b"), Entries());
        QCOMPARE(set.value_set_p("nowhere"), set.value_set_p("b/list"));
        // They come once.
        QVERIFY(writeFile("Config/" + name + "_config.ini", "[b]\ny=late\n"));
        set.acquire({ exclusiveModule("P", "G", { "a" }) });
        set.refresh_group();
        QCOMPARE(set.value_set("b/y"), QVariant("1"));
    }

    void loadsNothingWithoutModules()
    {
        QVERIFY(writeFile(configuration, "[a]\nx=named\n"));
        QVERIFY(writeFile("Config/_config.ini", "[a]\nx=nameless\ny=kept\n"));
        AUTH_SET set("App", "1.0", {});
        QCOMPARE(set.value_set("a/x"), QVariant());
        // It has no name either.
        set.setValueInSet("a/x", "new");
        QCOMPARE(fileContent(configuration), QByteArray("[a]\nx=named\n"));
        QCOMPARE(fileContent("Config/_config.ini"), QByteArray("[a]\nx=new\ny=kept\n"));
        QCOMPARE(set.value_set("a/y"), QVariant());
    }

    void writesEverySetValue()
    {
        QVERIFY(writeFile(configuration, "[a]\nx=1\n"));
        AUTH_SET set = application("App");
        set.setValueInSet("b/y", 2);
        *set.value_set_p("b/y") = "written";
        QVERIFY(QDir("Config").removeRecursively());
        set.setValueInSet("c/z", 3);
        QCOMPARE(fileContent(configuration),
                 QByteArray("[a]\nx=1\n\n[b]\ny=written\n\n[c]\nz=3\n"));
        // Updated in place, apart from names that differ in case.
        set.setValueInSet("a/x", "new");
        set.setValueInSet("a/X", 4);
        QCOMPARE(set.value_set_p("nowhere"), set.value_set_p("a/x"));
        QCOMPARE(fileContent(configuration),
                 QByteArray("[a]\nX=4\nx=new\n\n[b]\ny=written\n\n[c]\nz=3\n"));
    }

    void keepsWhatItDoesNotHold()
    {
        AUTH_SET set = application("App");
        QVERIFY(writeFile(configuration, "[a]\nx=other\ny=other\n"));
        set.setValueInSet("a/x", "mine");
        QCOMPARE(fileContent(configuration), QByteArray("[a]\nx=mine\ny=other\n"));
        // The rest of the file is not taken over.
        QCOMPARE(set.value_set("a/y"), QVariant());
        // Keys that no file can hold are kept here.
        set.setValueInSet("", 1);
        set.setValueInSet("//", 2);
        QCOMPARE(valuesOf(set, { "", "//" }), described(Entries { { "", 1 }, { "//", 2 } }));
        QCOMPARE(fileContent(configuration), QByteArray("[a]\nx=mine\ny=other\n"));
    }

    void sharesTheFileWithOtherRegistries()
    {
        QVERIFY(writeFile(configuration, "[a]\nx=old\n"));
        AUTH_SET first = application("App");
        AUTH_SET second(first);
        first.setValueInSet("a/x", "new");
        QCOMPARE(second.value_set("a/x"), QVariant("old"));
        // All set values are written, also those that have not changed here.
        second.setValueInSet("a/y", 1);
        QCOMPARE(fileContent(configuration), QByteArray("[a]\nx=old\ny=1\n"));
        QCOMPARE(first.value_set("a/x"), QVariant("new"));
        QCOMPARE(first.value_set("a/y"), QVariant());
        // Elsewhere it is another file.
        QVERIFY(QDir().mkdir("other"));
        QVERIFY(QDir::setCurrent("other"));
        first.setValueInSet("b/z", 2);
        QCOMPARE(fileContent(configuration), QByteArray("[a]\nx=new\n\n[b]\nz=2\n"));
    }

    void isReadByTheNextRun()
    {
        // The first run of a program, in a directory where there is nothing.
        const SecondRegistry first({ "--application", "App", "--set", "a/x=1", "--set", "b/y=2" });
        QCOMPARE(first.messages(), QStringList());
        QCOMPARE(filesIn("."), QStringList { "Config" });
        const SecondRegistry second({ "--application", "App", "--set", "b/y=3", "a/x", "b/y" });
        QCOMPARE(second.values(), described(Entries { { "a/x", "1" }, { "b/y", "3" } }));
        AUTH_SET set = application("App");
        set.setValueInSet("c/p", QPoint(1, -2));
        const SecondRegistry third({ "--application", "App", "b/y", "c/p" });
        QCOMPARE(third.values(), described(Entries { { "b/y", "3" }, { "c/p", QPoint(1, -2) } }));
    }

    void survivesObstacles_data()
    {
        QTest::addColumn<QString>("obstacle");
        QTest::newRow("a file where the directory is to be") << "Config";
        QTest::newRow("a directory where the file is to be") << QString(configuration) + "/inside/";
    }
    void survivesObstacles()
    {
        QFETCH(QString, obstacle);
        if (obstacle.endsWith('/'))
            QVERIFY(QDir().mkpath(obstacle));
        else
            QVERIFY(writeFile(obstacle, "not a directory"));
        AUTH_SET set = application("App");
        set.setValueInSet("a/x", 1);
        set.setValueInSet("a/y", 2);
        QCOMPARE(valuesOf(set, { "a/x", "a/y" }),
                 described(Entries { { "a/x", 1 }, { "a/y", 2 } }));
        QCOMPARE(application("App").value_set("a/x"), QVariant());
        if (obstacle.endsWith('/'))
            QCOMPARE(filesIn(configuration), QStringList { "inside" });
        else
            QCOMPARE(fileContent(obstacle), QByteArray("not a directory"));
        QCOMPARE(filesIn("."), QStringList { "Config" });
    }

    void losesNothingOfOddFiles()
    {
        const QByteArray odd = "\x89PNG\r\n[a]\nx=1\n\xff\xfe and no end";
        QVERIFY(writeFile(configuration, odd));
        QVERIFY(writeFile("values.ini", odd));
        AUTH_SET set = application("App");
        Entries values;
        QCOMPARE(set.load("values.ini", &values), true);
        QCOMPARE(described(values), described(Entries { { "a/x", "1" } }));
        QCOMPARE(fileContent(configuration), odd);
        QCOMPARE(fileContent("values.ini"), odd);
        set.setValueInSet("a/y", 2);
        set.setValueInSet("a/y", 3);
        values.append({ "a/y", 3 });
        QCOMPARE(set.save("values.ini", &values), true);
        for (const char *path : { configuration, "values.ini" }) {
            QCOMPARE(copiesIn(QFileInfo(path).path()), QVector<QByteArray> { odd });
            QCOMPARE(fileContent(path), QByteArray("[a]\nx=1\ny=3\n"));
        }
    }

    void saves_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<Entries>("values");
        QTest::addColumn<QByteArray>("after");
        const auto row
            = [](const char *name, const QByteArray &before, const Entries &values,
                 const QByteArray &after) { QTest::newRow(name) << before << values << after; };
        row("groups become sections", {}, { { "b/y", "值 Ω" }, { "a/x", 1 }, { "top", 2 } },
            "[General]\ntop=2\n\n[a]\nx=1\n\n[b]\ny=值 Ω\n");
        row("the last of two equal keys", {}, { { "a/x", 1 }, { "a/x", 2 } }, "[a]\nx=2\n");
        row("other keys stay", "[a]\nx=old\ny=old\n\n[b]\nz=old\n", { { "a/x", "new" } },
            "[a]\nx=new\ny=old\n\n[b]\nz=old\n");
        row("no values", "[a]\nx=old\n", {}, "[a]\nx=old\n");
        row("keys that no file can hold are left out", {}, { { "", 1 }, { "/", 2 }, { "a/x", 3 } },
            "[a]\nx=3\n");
    }
    void saves()
    {
        QFETCH(QByteArray, before);
        QFETCH(Entries, values);
        QFETCH(QByteArray, after);
        if (!before.isNull())
            QVERIFY(writeFile("values.ini", before));
        QCOMPARE(AUTH_SET().save("values.ini", &values), true);
        QCOMPARE(fileContent("values.ini"), after);
        QCOMPARE(filesIn("."), QStringList { "values.ini" });
    }

    void loads_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<Entries>("before");
        QTest::addColumn<Entries>("after");
        const auto row
            = [](const char *name, const QByteArray &file, const Entries &before,
                 const Entries &after) { QTest::newRow(name) << file << before << after; };
        row("into an empty list, in the order of the keys", "[b]\ny=1\nx=2\n[a]\nz=值\n", {},
            { { "a/z", "值" }, { "b/x", "2" }, { "b/y", "1" } });
        row("known keys in place, new ones at the end", "[a]\nx=1\n[b]\ny=file\n",
            { { "b/y", "list" }, { "c/z", "list" } },
            { { "b/y", "file" }, { "c/z", "list" }, { "a/x", "1" } });
        row("the first of two equal keys", "[a]\nx=@Invalid()\n", { { "a/x", 1 }, { "a/x", 2 } },
            { { "a/x", QVariant() }, { "a/x", 2 } });
        row("keys that differ in case", "[a]\nx=file\n", { { "a/X", 1 } },
            { { "a/X", 1 }, { "a/x", "file" } });
        row("no file", {}, { { "a/x", 1 } }, { { "a/x", 1 } });
        row("bytes that are no INI lines", QByteArray("\x89PNG\r\n\x1a\n\0\0\xff", 11),
            { { "a/x", 1 } }, { { "a/x", 1 } });
    }
    void loads()
    {
        QFETCH(QByteArray, file);
        QFETCH(Entries, before);
        QFETCH(Entries, after);
        if (!file.isNull())
            QVERIFY(writeFile("values.ini", file));
        const QStringList describedBefore = described(before);
        Entries list = before;
        QCOMPARE(AUTH_SET().load("values.ini", &list), true);
        QCOMPARE(described(list), described(after));
        // Copies of the list do not notice, and nothing is written.
        QCOMPARE(described(before), describedBefore);
        QCOMPARE(filesIn("."), file.isNull() ? QStringList() : QStringList { "values.ini" });
    }

    void loadsWhatItSaved()
    {
        Entries values;
        for (int i = 0; i < 300; ++i)
            values.append({ "group" + QString::number(i % 7) + "/key" + QString::number(i), i });
        const AUTH_SET set;
        set.save("values.ini", &values);
        Entries loaded = values;
        for (auto &entry : loaded)
            entry.second = "stale";
        set.load("values.ini", &loaded);
        QCOMPARE(described(loaded), described(values));
        QCOMPARE(set.save("none.ini", nullptr), true);
        QCOMPARE(set.load("values.ini", nullptr), true);
        QCOMPARE(filesIn("."), QStringList { "values.ini" });
    }

    void survivesBadPaths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("a directory") << "directory";
        QTest::newRow("below a file") << "file/values.ini";
        QTest::newRow("empty") << "";
        QTest::newRow("a zero character") << QString("file") + QChar(0) + "x";
        QTest::newRow("a directory that is missing") << "missing/values.ini";
    }
    void survivesBadPaths()
    {
        QFETCH(QString, path);
        QVERIFY(QDir().mkdir("directory"));
        QVERIFY(writeFile("file", "not an INI file"));
        const AUTH_SET set;
        Entries values { { "a/x", 1 } };
        QCOMPARE(set.load(path, &values), true);
        QCOMPARE(described(values), described(Entries { { "a/x", 1 } }));
        QCOMPARE(set.save(path, &values), true);
        if (path.startsWith("missing"))
            QCOMPARE(fileContent(path), QByteArray("[a]\nx=1\n"));
        else
            QCOMPARE(filesIn("."), (QStringList { "directory", "file" }));
        QVERIFY(QDir("directory").isEmpty());
        QCOMPARE(fileContent("file"), QByteArray("not an INI file"));
    }

    void survivesFilesOfOthers_data()
    {
        QTest::addColumn<int>("fileRights");
        QTest::addColumn<int>("directoryRights");
        QTest::addColumn<bool>("isRead");
        QTest::addColumn<bool>("isWritten");
        QTest::newRow("ordinary file") << 0666 << 0777 << true << true;
        QTest::newRow("file that cannot be written") << 0444 << 0777 << true << false;
        QTest::newRow("file that cannot be read") << 0000 << 0777 << false << false;
        QTest::newRow("directory that cannot be written") << 0666 << 0555 << true << false;
        QTest::newRow("directory that cannot be entered") << 0666 << 0000 << false << false;
    }
    void survivesFilesOfOthers()
    {
        QFETCH(int, fileRights);
        QFETCH(int, directoryRights);
        QFETCH(bool, isRead);
        QFETCH(bool, isWritten);
        const QByteArray before = "[a]\nx=1\n";
        const QString path = "Config/values.ini";
        for (const QString &file : { QString(configuration), path }) {
            QVERIFY(writeFile(file, before));
            setRights(file, fileRights);
        }
        setRights(".", 0777);
        setRights("Config", directoryRights);
        const SecondRegistry other = SecondRegistry::ofAnotherUser(
            { "--application", "App", "--set", "a/y=2", "--save", path, "a/x", "a/y" });
        const SecondRegistry loading = SecondRegistry::ofAnotherUser({ "--load", path });
        setRights("Config", 0777);
        for (const QString &file : { QString(configuration), path })
            setRights(file, 0666);

        QCOMPARE(other.messages() + loading.messages(), QStringList());
        QCOMPARE(other.results() + loading.results(), (QVector<bool> { true, true }));
        // What cannot be written is kept all the same.
        QCOMPARE(other.values(),
                 described(
                     Entries { { "a/x", isRead ? QVariant("1") : QVariant() }, { "a/y", "2" } }));
        QCOMPARE(loading.loaded().contains(described(Entries { { "a/x", "1" } }).constFirst()),
                 isRead);
        QCOMPARE(fileContent(configuration), isWritten ? "[a]\nx=1\ny=2\n" : before);
        QCOMPARE(fileContent(path), isWritten ? "[General]\nsaved=new\n\n[a]\nx=1\n" : before);
        QCOMPARE(filesIn("Config"), (QStringList { "App_config.ini", "values.ini" }));
    }
};

QTEST_GUILESS_MAIN(TestAuthSetFiles)
#include "tst_auth_set_files.moc"
