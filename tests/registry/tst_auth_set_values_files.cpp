// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Lists of values in INI files: saving and loading them, whatever the files are like.

#include "support/directorytest.h"
#include "support/secondregistry.h"
#include "support/testfiles.h"

#include <QPoint>
#include <QTest>

class TestAuthSetValuesFiles : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void saves_data();
    void saves();
    void savesForAnotherProcess_data();
    void savesForAnotherProcess();
    void savesOnlyWhatItIsGiven();
    void savesWhereTheProcessIs();
    void loads_data();
    void loads();
    void loadsInTheOrderOfTheKeys();
    void loadsWhatItSaved();
    void loadsIntoALentList();
    void loadingLeavesFilesAlone();
    void standsBadPaths_data();
    void standsBadPaths();
    void losesNothingOfOddFiles_data();
    void losesNothingOfOddFiles();
    void standsFilesOfOthers_data();
    void standsFilesOfOthers();
};

void TestAuthSetValuesFiles::saves_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<Entries>("values");
    QTest::addColumn<QByteArray>("after");

    const auto row
        = [](const char *name, const QByteArray &before, const Entries &values,
             const QByteArray &after) { QTest::newRow(name) << before << values << after; };
    row("groups become sections", {}, { { "a/x", 1 }, { "b/y", "two" } },
        "[a]\nx=1\n\n[b]\ny=two\n");
    row("a key without a group", {}, { { "top", 1 } }, "[General]\ntop=1\n");
    row("a group called General", {}, { { "General/x", 1 } }, "[%General]\nx=1\n");
    row("a group inside of a group", {}, { { "a/b/c", 1 } }, "[a]\nb\\c=1\n");
    row("sections and keys are sorted", {}, { { "b/y", 1 }, { "a/x", 2 }, { "b/x", 3 } },
        "[a]\nx=2\n\n[b]\nx=3\ny=1\n");
    row("values in UTF-8", {}, { { "a/x", "值 Ω" } }, "[a]\nx=值 Ω\n");
    row("a list of texts", {}, { { "a/x", QStringList { "1", "2" } } }, "[a]\nx=1, 2\n");
    row("an invalid value", {}, { { "a/x", QVariant() } }, "[a]\nx=@Invalid()\n");
    row("the last of two equal keys", {}, { { "a/x", 1 }, { "a/x", 2 } }, "[a]\nx=2\n");
    row("keys that differ in case", {}, { { "a/x", 1 }, { "a/X", 2 } }, "[a]\nX=2\nx=1\n");
    row("other keys stay", "[a]\ny=old\n\n[b]\nz=old\n", { { "a/x", 1 } },
        "[a]\nx=1\ny=old\n\n[b]\nz=old\n");
    row("a key that is there gets the value", "[a]\nx=old\ny=old\n", { { "a/x", "new" } },
        "[a]\nx=new\ny=old\n");
    row("no values", "[a]\nx=old\n", {}, "[a]\nx=old\n");
    row("keys that no file can hold are left out", {}, { { "", 1 }, { "/", 2 }, { "a/x", 3 } },
        "[a]\nx=3\n");
}

void TestAuthSetValuesFiles::saves()
{
    QFETCH(QByteArray, before);
    QFETCH(Entries, values);
    QFETCH(QByteArray, after);
    if (!before.isNull())
        QVERIFY(writeFile("values.ini", before));
    const Entries given = values;
    QCOMPARE(AUTH_SET().save("values.ini", &values), true);
    QCOMPARE(fileContent("values.ini"), after);
    QCOMPARE(filesIn("."), QStringList { "values.ini" });
    QCOMPARE(described(values), described(given));
}

void TestAuthSetValuesFiles::savesForAnotherProcess_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("read");
    const auto row = [](const char *name, const QVariant &value, const QVariant &read) {
        QTest::newRow(name) << value << read;
    };
    row("text", "two", "two");
    row("empty text", "", "");
    row("text with spaces and signs", " a, b; \"c\" \\ = ", " a, b; \"c\" \\ = ");
    row("text in another script", "值 Ω", "值 Ω");
    row("whole number", 1, "1");
    row("large number", qlonglong(1) << 40, "1099511627776");
    row("number", 2.5, "2.5");
    row("flag", true, "true");
    row("list of texts", QStringList { "x", "y, z" }, QStringList { "x", "y, z" });
    row("list of one text", QStringList { "x" }, "x");
    row("bytes", QByteArray("\0\xff", 2), QByteArray("\0\xff", 2));
    row("point", QPoint(1, -2), QPoint(1, -2));
    row("nothing", QVariant(), QVariant());
}

void TestAuthSetValuesFiles::savesForAnotherProcess()
{
    QFETCH(QVariant, value);
    QFETCH(QVariant, read);
    const Entries values { { "a/x", value } };
    AUTH_SET().save("values.ini", &values);
    const SecondRegistry other({ "--load", "values.ini" });
    QCOMPARE(other.results(), QVector<bool> { true });
    QCOMPARE(other.loaded(), described(Entries { { "held", "old" }, { "a/x", read } }));
    // This process remembers what it wrote.
    Entries loaded;
    AUTH_SET().load("values.ini", &loaded);
    QCOMPARE(described(loaded), described(values));
}

void TestAuthSetValuesFiles::savesOnlyWhatItIsGiven()
{
    AUTH_SET set;
    set.set_temp("t", 1);
    set.setDefaultSettings("g", { { "k", 2 } });
    QCOMPARE(set.save("none.ini", nullptr), true);
    QCOMPARE(filesIn("."), QStringList());
    QCOMPARE(set.save("g.ini", set.value_group_p("g")), true);
    QCOMPARE(fileContent("g.ini"), QByteArray("[General]\nk=2\n"));
    QCOMPARE(filesIn("."), QStringList { "g.ini" });
}

void TestAuthSetValuesFiles::savesWhereTheProcessIs()
{
    const AUTH_SET set;
    const Entries values { { "k", 1 } };
    set.save("values.ini", &values);
    QVERIFY(QDir().mkdir("other"));
    QVERIFY(QDir::setCurrent("other"));
    Entries loaded;
    set.load("values.ini", &loaded);
    QCOMPARE(loaded, Entries());
    set.save("values.ini", &values);
    QCOMPARE(filesIn("."), QStringList { "values.ini" });
    set.save(QDir::current().absoluteFilePath("absolute.ini"), &values);
    QCOMPARE(filesIn("."), (QStringList { "absolute.ini", "values.ini" }));
}

void TestAuthSetValuesFiles::loads_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<Entries>("before");
    QTest::addColumn<Entries>("after");

    const auto row = [](const char *name, const QByteArray &file, const Entries &before,
                        const Entries &after) { QTest::newRow(name) << file << before << after; };
    row("into an empty list", "[a]\nx=1\n[b]\ny=2\n", {}, { { "a/x", "1" }, { "b/y", "2" } });
    row("known keys in place, new ones at the end", "[a]\nx=1\n[b]\ny=file\n",
        { { "b/y", "list" }, { "c/z", "list" } },
        { { "b/y", "file" }, { "c/z", "list" }, { "a/x", "1" } });
    row("keys without a group", "top=1\n[General]\nother=2\n", { { "other", 1 } },
        { { "other", "2" }, { "top", "1" } });
    row("a group called General", "[%General]\nx=1\n", {}, { { "General/x", "1" } });
    row("a group inside of a group", "[a]\nb\\c=1\n", {}, { { "a/b/c", "1" } });
    row("the first of two equal keys", "[a]\nx=file\n", { { "a/x", 1 }, { "a/x", 2 } },
        { { "a/x", "file" }, { "a/x", 2 } });
    row("keys that differ in case", "[a]\nx=file\n", { { "a/X", 1 } },
        { { "a/X", 1 }, { "a/x", "file" } });
    row("lists of texts", "[a]\nx=1, 2\n", {}, { { "a/x", QStringList { "1", "2" } } });
    row("an invalid value in the place of another", "[a]\nx=@Invalid()\n", { { "a/x", 1 } },
        { { "a/x", QVariant() } });
    row("values in UTF-8", "[%U503C]\nx=值 Ω\n", {}, { { "值/x", "值 Ω" } });
    row("no file", {}, { { "a/x", 1 } }, { { "a/x", 1 } });
    row("an empty file", "", { { "a/x", 1 } }, { { "a/x", 1 } });
    row("bytes that are no INI lines", QByteArray("\x89PNG\r\n\x1a\n\0\0\xff", 11),
        { { "a/x", 1 } }, { { "a/x", 1 } });
}

void TestAuthSetValuesFiles::loads()
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
    // Copies of the list do not notice.
    QCOMPARE(described(before), describedBefore);
}

void TestAuthSetValuesFiles::loadsInTheOrderOfTheKeys()
{
    QVERIFY(writeFile("values.ini", "[b]\ny=1\nx=2\n[a]\nz=3\n[General]\nk=4\n"));
    Entries loaded;
    AUTH_SET().load("values.ini", &loaded);
    QCOMPARE(described(loaded),
             described(Entries { { "a/z", "3" }, { "b/x", "2" }, { "b/y", "1" }, { "k", "4" } }));
}

void TestAuthSetValuesFiles::loadsWhatItSaved()
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
}

void TestAuthSetValuesFiles::loadsIntoALentList()
{
    QVERIFY(writeFile("values.ini", "[a]\nx=file\ny=file\n"));
    AUTH_SET set;
    set.setDefaultSettings("g", { { "a/y", "list" } });
    QCOMPARE(set.load("values.ini", set.value_group_p("g")), true);
    QCOMPARE(described(set.value_group("g")),
             described(Entries { { "a/y", "file" }, { "a/x", "file" } }));
    QCOMPARE(set.value_group_at("g", "a/x"), QVariant("file"));
    // The place for what is not there takes it, and nothing comes of it.
    AUTH_SET empty;
    QCOMPARE(empty.load("values.ini", empty.value_group_p("g")), true);
    QCOMPARE(empty.value_group("g"), Entries());
}

void TestAuthSetValuesFiles::loadingLeavesFilesAlone()
{
    const QByteArray odd = "junk\n[a]\nx=1\n; comment";
    QVERIFY(writeFile("values.ini", odd));
    Entries loaded;
    const AUTH_SET set;
    set.load("values.ini", &loaded);
    set.load("missing.ini", &loaded);
    set.load("missing/missing.ini", &loaded);
    QCOMPARE(set.load("values.ini", nullptr), true);
    QCOMPARE(described(loaded), described(Entries { { "a/x", "1" } }));
    QCOMPARE(filesIn("."), QStringList { "values.ini" });
    QCOMPARE(fileContent("values.ini"), odd);
}

void TestAuthSetValuesFiles::standsBadPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("after");
    const QStringList nothingNew { "directory", "file" };
    QTest::newRow("a directory") << "directory" << nothingNew;
    QTest::newRow("the current directory") << "." << nothingNew;
    QTest::newRow("below a file") << "file/values.ini" << nothingNew;
    QTest::newRow("a directory that is missing")
        << "missing/values.ini" << (QStringList { "directory", "file", "missing" });
    QTest::newRow("empty") << "" << nothingNew;
    QTest::newRow("a name that is too long") << QString(300, 'x') << nothingNew;
    QTest::newRow("a zero character") << QString("file") + QChar(0) + "x" << nothingNew;
}

void TestAuthSetValuesFiles::standsBadPaths()
{
    QFETCH(QString, path);
    QFETCH(QStringList, after);
    QVERIFY(QDir().mkdir("directory"));
    QVERIFY(writeFile("file", "not an INI file"));
    const AUTH_SET set;
    Entries values { { "a/x", 1 } };
    QCOMPARE(set.load(path, &values), true);
    QCOMPARE(described(values), described(Entries { { "a/x", 1 } }));
    QCOMPARE(set.save(path, &values), true);
    QCOMPARE(filesIn("."), after);
    QVERIFY(QDir("directory").isEmpty());
    QCOMPARE(fileContent("file"), QByteArray("not an INI file"));
    if (after.contains("missing"))
        QCOMPARE(fileContent(path), QByteArray("[a]\nx=1\n"));
}

void TestAuthSetValuesFiles::losesNothingOfOddFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\xff\xd8", 18);
    QTest::newRow("any text") << QByteArray("Dear reader,\n\nthis is a letter.\n");
    QTest::newRow("another encoding") << QByteArray("[a]\nx=\xe4\xf6\xfc\n");
    QTest::newRow("a line too many") << QByteArray("[b]\ny=1\njunk\n");
}

void TestAuthSetValuesFiles::losesNothingOfOddFiles()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(writeFile("values.ini", bytes));
    const AUTH_SET set;
    const Entries values { { "zz/new", 1 } };
    Entries loaded;
    QCOMPARE(set.load("values.ini", &loaded), true);
    QCOMPARE(fileContent("values.ini"), bytes);
    QCOMPARE(set.save("values.ini", &values), true);
    QCOMPARE(filesIn("."), (QStringList { "values.ini", "values.ini.bak" }));
    QCOMPARE(fileContent("values.ini.bak"), bytes);
    QVERIFY(fileContent("values.ini").contains("[zz]\nnew=1\n"));
    // What could be read is still there.
    Entries again;
    set.load("values.ini", &again);
    QCOMPARE(described(again), described(loaded + values));
}

void TestAuthSetValuesFiles::standsFilesOfOthers_data()
{
    QTest::addColumn<int>("fileRights");
    QTest::addColumn<bool>("directoryIsWritable");
    QTest::addColumn<bool>("isRead");
    QTest::addColumn<bool>("isWritten");

    QTest::newRow("ordinary file") << 0666 << true << true << true;
    QTest::newRow("file that cannot be written") << 0444 << true << true << false;
    QTest::newRow("file that cannot be read") << 0000 << true << false << false;
    QTest::newRow("directory that cannot be written") << 0666 << false << true << false;
}

void TestAuthSetValuesFiles::standsFilesOfOthers()
{
    QFETCH(int, fileRights);
    QFETCH(bool, directoryIsWritable);
    QFETCH(bool, isRead);
    QFETCH(bool, isWritten);
    const QByteArray before = "[a]\nx=1\n";
    QVERIFY(writeFile("values.ini", before));
    setRights("values.ini", fileRights);
    setRights(".", directoryIsWritable ? 0777 : 0555);

    const SecondRegistry loading = SecondRegistry::ofAnotherUser({ "--load", "values.ini" });
    const SecondRegistry saving = SecondRegistry::ofAnotherUser({ "--save", "values.ini" });
    setRights(".", 0777);
    setRights("values.ini", 0666);
    QCOMPARE(loading.messages() + saving.messages(), QStringList());
    QCOMPARE(loading.results(), QVector<bool> { true });
    QCOMPARE(loading.loaded(),
             described(isRead ? Entries { { "held", "old" }, { "a/x", "1" } }
                              : Entries { { "held", "old" } }));
    QCOMPARE(saving.results(), QVector<bool> { true });
    QCOMPARE(fileContent("values.ini"),
             isWritten ? QByteArray("[General]\nsaved=new\n\n[a]\nx=1\n") : before);
    QCOMPARE(filesIn("."), QStringList { "values.ini" });
}

QTEST_GUILESS_MAIN(TestAuthSetValuesFiles)
#include "tst_auth_set_values_files.moc"
