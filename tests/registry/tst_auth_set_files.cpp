// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Stored values in INI files: the set values in the configuration file of the application, where
// they outlive the registry, and lists of values that a host saves and loads.

#include "support/directorytest.h"
#include "support/moduleitems.h"
#include "support/secondregistry.h"
#include "support/testfiles.h"

#include <Kelto/AUTH_SET>

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

    void loadsWhenConstructed()
    {
        const QByteArray file = "[b]\ny=1\nlist=p, q\n\n[General]\ntop=值\n";
        for (const QString &name : { QString("App"), QString() }) {
            const QString path = "Config/" + name + "_config.ini";
            QVERIFY(writeFile(path, file));
            AUTH_SET set = application(name);
            QCOMPARE(valuesOf(set, { "b/y", "b/list", "top", "B/y" }),
                     described(Entries { { "b/y", "1" },
                                         { "b/list", QStringList { "p", "q" } },
                                         { "top", "值" },
                                         { "B/y", QVariant() } }));
            QCOMPARE(fileContent(path), file);
            // Only the set values come from there, in the order of the keys, and they come once.
            QCOMPARE(set.value_cal("b/y"), QVariant());
            QCOMPARE(set.value_temp("b/y"), QVariant());
            QCOMPARE(set.value_group("b"), Entries());
            QCOMPARE(set.value_set_p("nowhere"), set.value_set_p("b/list"));
            QVERIFY(writeFile(path, "[b]\ny=late\n"));
            set.refresh_group();
            QCOMPARE(set.value_set("b/y"), QVariant("1"));
        }
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
        // Elsewhere it is another file.
        QVERIFY(QDir().mkdir("other") && QDir::setCurrent("other"));
        set.setValueInSet("b/z", 2);
        QCOMPARE(fileContent(configuration), QByteArray("[a]\nx=mine\n\n[b]\nz=2\n"));
    }

    void isReadByTheNextRun()
    {
        // The first run of a program, in a directory where there is nothing.
        QCOMPARE(secondRegistry({ "--set", "a/x=1", "--set", "b/y=2" }).messages, QStringList());
        QCOMPARE(filesIn("."), QStringList { "Config" });
        QCOMPARE(secondRegistry({ "--set", "b/y=3", "a/x", "b/y" }).values,
                 described(Entries { { "a/x", "1" }, { "b/y", "3" } }));
        AUTH_SET set = application("App");
        set.setValueInSet("c/p", QPoint(1, -2));
        QCOMPARE(secondRegistry({ "b/y", "c/p" }).values,
                 described(Entries { { "b/y", "3" }, { "c/p", QPoint(1, -2) } }));
    }

    void survivesObstacles()
    {
        const auto store = [] {
            AUTH_SET set = application("App");
            set.setValueInSet("a/x", 1);
            return described(set.value_set("a/x")) == described(QVariant(1))
                && !application("App").value_set("a/x").isValid();
        };
        QVERIFY(QDir().mkpath(QString(configuration) + "/inside"));
        QVERIFY(store());
        QCOMPARE(filesIn(configuration), QStringList { "inside" });
        QVERIFY(QDir("Config").removeRecursively());
        QVERIFY(writeFile("Config", "not a directory"));
        QVERIFY(store());
        QCOMPARE(fileContent("Config"), QByteArray("not a directory"));
    }

    void savesAndLoads()
    {
        const QByteArray odd = "\x89PNG\r\n[b]\ny=file\n[a]\nx=1\n\xff\xfe and no end";
        QVERIFY(writeFile("values.ini", odd));
        const AUTH_SET set;
        Entries values { { "b/y", "list" }, { "c/z", "list" } };
        QCOMPARE(set.load("values.ini", &values), true);
        QCOMPARE(described(values),
                 described(Entries { { "b/y", "file" }, { "c/z", "list" }, { "a/x", "1" } }));
        QCOMPARE(set.save("values.ini", nullptr), true);
        QCOMPARE(set.load("values.ini", nullptr), true);
        QCOMPARE(fileContent("values.ini"), odd);
        // Other keys stay, and those that no file can hold are left out.
        const Entries more { { "", 1 }, { "/", 2 }, { "a/x", "值" } };
        QCOMPARE(set.save("values.ini", &more), true);
        QCOMPARE(fileContent("values.ini"), QByteArray("[a]\nx=值\n\n[b]\ny=file\n"));
        QCOMPARE(fileContent("values.ini.bak"), odd);
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
};

QTEST_GUILESS_MAIN(TestAuthSetFiles)
#include "tst_auth_set_files.moc"
