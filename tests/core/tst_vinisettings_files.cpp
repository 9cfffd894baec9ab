// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A settings store and its file. What was written is read under a name that QSettings does not
// remember: of a file that it wrote it gives back the typed values from its memory.

#include <Kelto/VIniSettings>

#include "support/directorytest.h"
#include "support/randomitems.h"
#include "support/secondprocess.h"
#include "support/settingsjson.h"
#include "support/testfiles.h"

#include <QDateTime>
#include <QPoint>
#include <QSettings>
#include <QTest>

#include <functional>

namespace {

using Change = std::function<void(VIniSettings &)>;
using Making = std::function<VIniSettings()>;

QString path()
{
    return "store.ini";
}

QByteArray stored()
{
    return "[General]\ntop=1\n\n[a]\nx=one\ny=two\n\n[b]\nz=three\n";
}

Entries storedEntries()
{
    return { { "a/x", "one" }, { "a/y", "two" }, { "b/z", "three" }, { "top", "1" } };
}

QString freshName()
{
    static int number = 0;
    return labelled("fresh", ++number);
}

/// What a program that has not written the file reads in it.
QStringList readAnew(const QString &name)
{
    const QString copy = freshName();
    if (!QFile::copy(name, copy))
        return { "no file" };
    const QStringList entries = described(VIniSettings(copy).data());
    QFile::remove(copy);
    return entries;
}

void writePlainly(const QString &name, const Entries &entries)
{
    QSettings settings(name, QSettings::IniFormat);
    settings.setIniCodec("utf-8");
    for (const auto &entry : entries)
        settings.setValue(entry.first, entry.second);
}

Entries readPlainly(const QString &name)
{
    QSettings settings(name, QSettings::IniFormat);
    settings.setIniCodec("utf-8");
    const QStringList keys = settings.allKeys();
    Entries entries;
    for (const QString &key : keys)
        entries.append({ key, settings.value(key) });
    return entries;
}

QString someText(Dice *dice, int most)
{
    static const QStringList pieces {
        "a",    "B",   "7",      "名", "值 ", "é",  " ",  "  ",         "/",  "\\", "%",
        "%20",  "=",   ";",      ",",  "\"",  "'",  "\n", "\r",         "\t", "[",  "]",
        "#",    "@",   "@@",     ":",  "|",   "\0", "0",  "x1f",        "()", "&",  "General",
        "true", "1.5", "\u2028", "-",  "_",   ".",  "+",  "@Invalid()", "{",  "}",  "$"
    };
    return dice->someOf(pieces, dice->between(0, most)).join(QString());
}

/// A key of which QSettings leaves something, when it drops the superfluous slashes.
QString someKey(Dice *dice)
{
    QString key = dice->oneOf({ "", "", "a", "B ", "名", "%20", "General/", "=;" });
    if (dice->chance(60))
        key += "/" + someText(dice, 3);
    return key + dice->oneOf({ "a", "b", "键", "c d" });
}

QVariant someValue(Dice *dice)
{
    const auto number = [dice] { return dice->between(-100000, 100000); };
    const QStringList texts { someText(dice, 3), someText(dice, 3), someText(dice, 3) };
    const QVector<QVariant> values { number(),
                                     number() / 128.0,
                                     dice->chance(50),
                                     QByteArray(3, char(dice->between(0, 255))),
                                     QStringList(texts.mid(dice->between(0, 3))),
                                     QVariant(),
                                     QVariantList { dice->between(0, 9), someText(dice, 3) },
                                     QPoint(number(), number()),
                                     someText(dice, 6),
                                     someText(dice, 6) };
    return values.at(dice->between(0, values.size() - 1));
}

Entries someEntries(Dice *dice)
{
    Entries entries;
    for (int i = dice->between(0, 15); i > 0; --i)
        entries.append({ someKey(dice), someValue(dice) });
    return entries;
}

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Making)

class TestVIniSettingsFiles : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void bindsWhenConstructed_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("bound");
        QTest::addColumn<QStringList>("files");

        QTest::newRow("a file that does not exist is created")
            << path() << path() << QStringList { path() };
        QTest::newRow("a Chinese name") << "设置 一.ini"
                                        << "设置 一.ini" << QStringList { "设置 一.ini" };
        QTest::newRow("no ending is needed") << "store"
                                             << "store" << QStringList { "store" };
        QTest::newRow("the empty path touches nothing") << ""
                                                        << "" << QStringList();
        QTest::newRow("a null path touches nothing") << QString() << "" << QStringList();
        QTest::newRow("a file in a missing directory is not created") << "missing/store.ini"
                                                                      << "" << QStringList();
        QTest::newRow("a path with a zero character in it makes no file of another name")
            << QString("sto%1re.ini").arg(QChar(0)) << "" << QStringList();
    }

    void bindsWhenConstructed()
    {
        QFETCH(QString, name);
        QFETCH(QString, bound);
        QFETCH(QStringList, files);

        const VIniSettings store(name);
        QCOMPARE(store.filepath(), bound);
        QCOMPARE(store.allKeys(), QStringList());
        QCOMPARE(store.data(), Entries());
        QCOMPARE(filesIn("."), files);
        for (bool quickSave : { false, true }) {
            VIniSettings other(name, quickSave);
            QCOMPARE(other.filepath(), bound);
            QCOMPARE(other.data(), Entries());
            QCOMPARE(filesIn("."), files);
            for (const QString &file : qAsConst(files))
                QCOMPARE(fileContent(file), QByteArray(""));
        }
        VIniSettings quick(name, true);
        quick.setValue("a", 1);
        QCOMPARE(filesIn("."), files);
        QCOMPARE(described(quick.data()), described(Entries { { "a", 1 } }));
        for (const QString &file : qAsConst(files))
            QCOMPARE(fileContent(file), QByteArray("[General]\na=1\n"));
    }

    void constructsWithDataForAFile_data()
    {
        QTest::addColumn<bool>("quickSave");
        QTest::newRow("quick-save off") << false;
        QTest::newRow("quick-save on") << true;
    }

    void constructsWithDataForAFile()
    {
        QFETCH(bool, quickSave);
        const Entries data { { "a/x", 5 }, { "new", 6 }, { "a/x", 7 } };
        QVERIFY(writeFile(path(), stored()));
        VIniSettings store(path(), quickSave, data);
        VIniSettings withoutMode(path(), data);
        for (const VIniSettings &each : { store, withoutMode }) {
            QCOMPARE(each.filepath(), path());
            QCOMPARE(described(each.data()), described(data));
            QCOMPARE(each.allKeys(), (QStringList { "a/x", "new", "a/x" }));
        }
        withoutMode.setValue("new", 9);
        QCOMPARE(fileContent(path()), stored());

        store.setValue("new", 8);
        QCOMPARE(fileContent(path()),
                 quickSave
                     ? QByteArray("[General]\nnew=8\ntop=1\n\n[a]\nx=7\ny=two\n\n[b]\nz=three\n")
                     : stored());

        const VIniSettings unbound("missing/store.ini", quickSave, data);
        QCOMPARE(unbound.filepath(), QString());
        QCOMPARE(described(unbound.data()), described(data));
        const VIniSettings created("created.ini", data);
        QCOMPARE(fileContent("created.ini"), QByteArray(""));
        QCOMPARE(filesIn("."), (QStringList { "created.ini", path() }));
    }

    void loads_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<Entries>("expected");

        QTest::newRow("an empty file") << QByteArray() << Entries();
        QTest::newRow("top-level keys and groups") << stored() << storedEntries();
        QTest::newRow("keys before any group are top-level keys")
            << QByteArray("a=1\n[g]\nb=2\n") << Entries { { "a", "1" }, { "g/b", "2" } };
        QTest::newRow("a group that really is called General")
            << QByteArray("[%General]\na=1\n") << Entries { { "General/a", "1" } };
        QTest::newRow("groups in groups") << QByteArray("[a]\nb\\c=1\nb\\d=2\n")
                                          << Entries { { "a/b/c", "1" }, { "a/b/d", "2" } };
        QTest::newRow("keys keep their case")
            << QByteArray("[A]\nB=1\nb=2\n") << Entries { { "A/B", "1" }, { "A/b", "2" } };
        QTest::newRow("values in UTF-8") << QByteArray("a=值 Ω\n") << Entries { { "a", "值 Ω" } };
        QTest::newRow("escaped keys")
            << QByteArray("%U540D%20x=1\n") << Entries { { "名 x", "1" } };
        QTest::newRow("a byte order mark")
            << QByteArray("\xef\xbb\xbf[g]\na=值\n") << Entries { { "g/a", "值" } };
        QTest::newRow("lists, quotes and escapes")
            << QByteArray("a=x, y\nb=\"x, y\"\nc=\"p;q\"\nd=1\\n2\n")
            << Entries { { "a", QStringList { "x", "y" } },
                         { "b", "x, y" },
                         { "c", "p;q" },
                         { "d", "1\n2" } };
        QTest::newRow("numbers and truths are text")
            << QByteArray("a=1\nb=2.5\nc=true\n")
            << Entries { { "a", "1" }, { "b", "2.5" }, { "c", "true" } };
        QTest::newRow("an empty value") << QByteArray("a=\n") << Entries { { "a", "" } };
        QTest::newRow("an invalid value")
            << QByteArray("a=@Invalid()\n") << Entries { { "a", {} } };
        QTest::newRow("the empty key has no value")
            << QByteArray("=1\nb=2\n") << Entries { { "", {} }, { "b", "2" } };
        QTest::newRow("a key that is a slash only has no value")
            << QByteArray("[]\n=1\n") << Entries { { "/", {} } };
        QTest::newRow("a key with a superfluous slash has the value of the key without")
            << QByteArray("[a]\n/b=1\nb=2\n/c=3\n")
            << Entries { { "a//b", "2" }, { "a//c", {} }, { "a/b", "2" } };
    }

    void loads()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(Entries, expected);
        QVERIFY(writeFile(path(), bytes));

        VIniSettings store(Entries { { "old", 1 } });
        store.setPath(path());
        QCOMPARE(store.filepath(), path());
        QCOMPARE(described(store.data()), described(expected));
        QCOMPARE(store.allKeys(), store.allKeys(&expected));
        QCOMPARE(fileContent(path()), bytes);
        QCOMPARE(filesIn("."), QStringList { path() });
    }

    void loadsInTheOrderOfQSettings()
    {
        QVERIFY(writeFile(path(), "[z]\nb=1\na=2\n[General]\nm=3\n[a]\nq=4\n[Z]\nc=5\n"));
        const VIniSettings store(path());
        const QStringList keys = QSettings(path(), QSettings::IniFormat).allKeys();
        QCOMPARE(keys.size(), 5);
        QCOMPARE(store.allKeys(), keys);
    }

    void staysAsItWasWhenBindingFails_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("the empty path") << "";
        QTest::newRow("a missing directory") << "missing/store.ini";
        QTest::newRow("a file in place of the directory") << "store.ini/other.ini";
        QTest::newRow("a zero character") << QString(QChar(0));
    }

    void staysAsItWasWhenBindingFails()
    {
        QFETCH(QString, name);
        QVERIFY(writeFile(path(), stored()));
        VIniSettings store(path(), true);
        store.setValue(Entries { { "unsaved", 1 } }, false);
        store.setPath(name);
        QCOMPARE(store.filepath(), path());
        QCOMPARE(described(store.data()),
                 described(storedEntries() + Entries { { "unsaved", 1 } }));
        QCOMPARE(filesIn("."), QStringList { path() });
        QCOMPARE(fileContent(path()), stored());

        // Quick-save mode and the file are still what they were.
        store.setValue("b/z", 3);
        QVERIFY(fileContent(path()).contains("unsaved=1"));
    }

    void bindsToADirectory()
    {
        QVERIFY(QDir().mkdir("directory"));
        VIniSettings store(Entries { { "old", 1 } });
        store.setPath("directory");
        QCOMPARE(store.filepath(), QString("directory"));
        QCOMPARE(store.data(), Entries());
        QCOMPARE(store.allKeys(), QStringList());

        store.setQuickSaveMode(true);
        store.setValue("a", 1);
        store.saveLocal();
        QCOMPARE(filesIn("."), QStringList { "directory" });
        QVERIFY(QDir("directory").isEmpty());
        store.setPath("directory");
        QCOMPARE(store.data(), Entries());
    }

    void bindsAnew()
    {
        QVERIFY(writeFile(path(), stored()));
        QVERIFY(writeFile("other.ini", "[o]\nk=v\n"));
        VIniSettings store(path());
        Entries target;
        store.setValue("apart", 1, &target);
        store.setPath("other.ini");
        QCOMPARE(store.filepath(), QString("other.ini"));
        QCOMPARE(store.allKeys(), QStringList { "o/k" });
        QCOMPARE(described(store.data()), described(Entries { { "o/k", "v" } }));

        store.setValue("o/k", "unsaved");
        store.setPath("other.ini");
        QCOMPARE(described(store.data()), described(Entries { { "o/k", "v" } }));
    }

    void keepsQuickSaveModeWhenBound_data()
    {
        QTest::addColumn<bool>("quickSave");
        QTest::addColumn<Making>("make");
        const auto row = [](const char *name, bool quickSave, const Making &make) {
            QTest::newRow(name) << quickSave << make;
        };
        const Entries data { { "a/x", "one" } };
        row("made empty: off", false, [] { return VIniSettings(); });
        row("made of a vector: off", false, [=] { return VIniSettings(data); });
        row("made for a file: off", false, [] { return VIniSettings(path()); });
        row("made for a file with a vector: off", false,
            [=] { return VIniSettings(path(), data); });
        row("made for a file, off", false, [] { return VIniSettings(path(), false); });
        row("made for a file, on", true, [] { return VIniSettings(path(), true); });
        row("made for no file, on", true, [] { return VIniSettings(QString(), true); });
        row("made for a file, off, with a vector", false,
            [=] { return VIniSettings(path(), false, data); });
        row("made for a file, on, with a vector", true,
            [=] { return VIniSettings(path(), true, data); });

        const auto switched = [](VIniSettings store, bool on) {
            store.setQuickSaveMode(on);
            return store;
        };
        row("switched on", true, [=] { return switched(VIniSettings(path()), true); });
        row("switched on before there is a file", true, [=] { return switched({}, true); });
        row("switched off", false, [=] { return switched(VIniSettings(path(), true), false); });

        const auto assigned = [](const VIniSettings &store, bool modeBefore) {
            VIniSettings other(path(), modeBefore);
            other = store;
            return other;
        };
        row("assigned on", true, [=] { return assigned(VIniSettings(path(), true), false); });
        row("assigned off", false, [=] { return assigned(VIniSettings(path(), false), true); });
    }

    void keepsQuickSaveModeWhenBound()
    {
        QFETCH(Making, make);
        QFETCH(bool, quickSave);
        QVERIFY(writeFile("other.ini", "[General]\na=0\n"));
        VIniSettings store = make();
        // To another file, and to the same one again.
        for (const char *number : { "1", "2" }) {
            store.setPath("other.ini");
            QCOMPARE(store.filepath(), QString("other.ini"));
            store.setValue("a", number);
            QCOMPARE(fileContent("other.ini"),
                     QByteArray("[General]\na=" + QByteArray(quickSave ? number : "0") + '\n'));
        }
    }

    void saves_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<Entries>("data");
        QTest::addColumn<QByteArray>("after");

        QTest::newRow("into an empty file")
            << QByteArray() << Entries { { "g/a", 1 }, { "b", "x" } }
            << QByteArray("[General]\nb=x\n\n[g]\na=1\n");
        QTest::newRow("other keys of the file stay")
            << stored() << Entries { { "a/x", "new" }, { "c/n", 1 } }
            << QByteArray("[General]\ntop=1\n\n[a]\nx=new\ny=two\n\n[b]\nz=three\n\n[c]\nn=1\n");
        QTest::newRow("the last of duplicates stays")
            << QByteArray() << Entries { { "a", 1 }, { "b", 2 }, { "a", 3 } }
            << QByteArray("[General]\na=3\nb=2\n");
        QTest::newRow("an empty store leaves the file alone") << stored() << Entries() << stored();
        QTest::newRow("an invalid value replaces a valid one")
            << stored() << Entries { { "top", {} } }
            << QByteArray("[General]\ntop=@Invalid()\n\n[a]\nx=one\ny=two\n\n[b]\nz=three\n");
        QTest::newRow("in UTF-8") << QByteArray() << Entries { { "g/a", "值 Ω" } }
                                  << QByteArray("[g]\na=值 Ω\n");
        QTest::newRow("Chinese keys are escaped") << QByteArray() << Entries { { "组/名 x", 1 } }
                                                  << QByteArray("[%U7EC4]\n%U540D%20x=1\n");
        QTest::newRow("groups in groups")
            << QByteArray() << Entries { { "a/b/c", 1 } } << QByteArray("[a]\nb\\c=1\n");
        QTest::newRow("a group called General")
            << QByteArray() << Entries { { "General/a", 1 } } << QByteArray("[%General]\na=1\n");
        QTest::newRow("superfluous slashes are dropped")
            << QByteArray() << Entries { { "/a//b/", 1 } } << QByteArray("[a]\nb=1\n");
        QTest::newRow("the empty key and a slash alone are left out")
            << QByteArray() << Entries { { "", 1 }, { "/", 2 }, { "//", 3 }, { "a", 4 } }
            << QByteArray("[General]\na=4\n");
    }

    void saves()
    {
        QFETCH(QByteArray, before);
        QFETCH(Entries, data);
        QFETCH(QByteArray, after);
        QVERIFY(writeFile(path(), before));
        VIniSettings store(path(), data);
        store.saveLocal();
        QCOMPARE(fileContent(path()), after);
        QCOMPARE(filesIn("."), QStringList { path() });
        QCOMPARE(described(store.data()), described(data));

        store.saveLocal();
        QCOMPARE(fileContent(path()), after);
        QCOMPARE(filesIn("."), QStringList { path() });
    }

    void neverRemovesFromAFile()
    {
        QVERIFY(writeFile(path(), stored()));
        VIniSettings store(path());
        QVERIFY(store.remove("top"));
        QVERIFY(store.remove(QStringList { "b/z" }));
        QVERIFY(store.removeGroup("a"));
        QCOMPARE(store.data(), Entries());
        store.setValue("c/n", "new");
        store.saveLocal();

        QCOMPARE(readAnew(path()),
                 described(Entries { { "a/x", "one" },
                                     { "a/y", "two" },
                                     { "b/z", "three" },
                                     { "c/n", "new" },
                                     { "top", "1" } }));
        QCOMPARE(described(store.data()), described(Entries { { "c/n", "new" } }));
        store.setPath(path());
        QCOMPARE(store.allKeys(), (QStringList { "a/x", "a/y", "b/z", "c/n", "top" }));
    }

    void savesToAnotherFile()
    {
        QVERIFY(writeFile(path(), stored()));
        QVERIFY(writeFile("other.ini", "[a]\nx=other\nown=kept\n"));
        const VIniSettings store(path());
        store.saveLocal("other.ini");
        store.saveLocal("created.ini");
        QCOMPARE(store.filepath(), path());
        QCOMPARE(fileContent(path()), stored());
        QCOMPARE(fileContent("created.ini"), stored());
        QCOMPARE(fileContent("other.ini"),
                 QByteArray("[General]\ntop=1\n\n[a]\nown=kept\nx=one\ny=two\n\n[b]\nz=three\n"));

        const VIniSettings unbound(Entries { { "a", 1 } });
        unbound.saveLocal("unbound.ini");
        QCOMPARE(unbound.filepath(), QString());
        QCOMPARE(fileContent("unbound.ini"), QByteArray("[General]\na=1\n"));

        const VIniSettings empty;
        empty.saveLocal("empty.ini");
        QCOMPARE(fileContent("empty.ini"), QByteArray(""));
        QCOMPARE(filesIn("."),
                 (QStringList { "created.ini", "empty.ini", "other.ini", path(), "unbound.ini" }));
    }

    void savesNowhere_data()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("the empty path") << "";
        QTest::newRow("a missing directory") << "missing/store.ini";
        QTest::newRow("a file in place of the directory") << "store.ini/other.ini";
        QTest::newRow("a directory in place of the file") << "directory";
        QTest::newRow("a zero character") << QString("other%1.ini").arg(QChar(0));
    }

    void savesNowhere()
    {
        QFETCH(QString, target);
        QVERIFY(QDir().mkdir("directory"));
        QVERIFY(writeFile(path(), stored()));
        VIniSettings store(path());
        store.setValue("new", 1);
        store.saveLocal(target);
        VIniSettings(Entries { { "a", 1 } }).saveLocal(target);
        QCOMPARE(filesIn("."), (QStringList { "directory", path() }));
        QVERIFY(QDir("directory").isEmpty());
        QCOMPARE(fileContent(path()), stored());
        QCOMPARE(store.filepath(), path());
        QCOMPARE(described(store.value("new")), described(QVariant(1)));
    }

    void savesRelativeToTheCurrentDirectory()
    {
        VIniSettings store(path());
        store.setValue("a", 1);
        QVERIFY(QDir().mkdir("other"));
        QVERIFY(QDir::setCurrent("other"));
        store.saveLocal();
        QCOMPARE(fileContent(path()), QByteArray("[General]\na=1\n"));
        QCOMPARE(fileContent("../store.ini"), QByteArray(""));
    }

    void savesThroughALink()
    {
        QVERIFY(writeFile("target.ini", stored()));
        QVERIFY(QFile::link("target.ini", "link.ini"));
        QVERIFY(QFileInfo("link.ini").isSymLink());
        VIniSettings store(QString("link.ini"), true);
        store.setValue("top", 2);
        QVERIFY(QFileInfo("link.ini").isSymLink());
        QCOMPARE(fileContent("target.ini"),
                 QByteArray("[General]\ntop=2\n\n[a]\nx=one\ny=two\n\n[b]\nz=three\n"));
        QCOMPARE(filesIn("."), (QStringList { "link.ini", "target.ini" }));
    }

    void savesOnOneOperationOnly_data()
    {
        QTest::addColumn<Change>("change");
        const auto row
            = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
        row("switching quick-save mode on", [](VIniSettings &s) { s.setQuickSaveMode(true); });
        row("removing a key", [](VIniSettings &s) { QVERIFY(s.remove("a/x")); });
        row("removing keys", [](VIniSettings &s) {
            QVERIFY(s.remove(QStringList { "a/x", "a/y" }));
        });
        row("removing a group", [](VIniSettings &s) { QVERIFY(s.removeGroup("a")); });
        row("merging", [](VIniSettings &s) { s.setValue(Entries { { "a/x", 2 } }, false); });
        row("replacing", [](VIniSettings &s) { s.setValue(Entries { { "a/x", 2 } }, true); });
        row("setting in a vector", [](VIniSettings &s) {
            Entries target;
            s.setValue("a/x", 2, &target);
            QCOMPARE(target.size(), 1);
        });
        row("setting a vector in a vector", [](VIniSettings &s) {
            Entries target;
            const Entries source { { "a/x", 2 } };
            s.setValue(&target, &source);
            QCOMPARE(target.size(), 1);
        });
        row("copying", [](VIniSettings &s) {
            const VIniSettings copy(s);
            QCOMPARE(copy.filepath(), path());
        });
    }

    void savesOnOneOperationOnly()
    {
        QFETCH(Change, change);
        QVERIFY(writeFile(path(), stored()));
        {
            VIniSettings store(path(), true);
            store.setValue(Entries { { "unsaved", 1 } }, false);
            change(store);
        }
        QCOMPARE(fileContent(path()), stored());

        VIniSettings off(path(), true);
        off.setQuickSaveMode(false);
        change(off);
        off.setQuickSaveMode(false);
        off.setValue("top", 3);
        QCOMPARE(fileContent(path()), stored());
    }

    void quickSaveWritesAllPairs()
    {
        QVERIFY(writeFile(path(), stored()));
        VIniSettings store(path(), true);
        Entries target;
        store.setValue("apart", 0, &target);
        store.setValue(Entries { { "a/x", "merged" } }, false);
        store.setValue("apart", 0, &target);
        QVERIFY(store.removeGroup("b"));
        store.setValue("c/n", 1);
        const QByteArray after
            = "[General]\ntop=1\n\n[a]\nx=merged\ny=two\n\n[b]\nz=three\n\n[c]\nn=1\n";
        QCOMPARE(fileContent(path()), after);

        // Without a change the pair is written as well: somebody may have taken the file away.
        QVERIFY(QFile::remove(path()));
        store.setValue("c/n", 1);
        QCOMPARE(fileContent(path()),
                 QByteArray("[General]\ntop=1\n\n[a]\nx=merged\ny=two\n\n[c]\nn=1\n"));

        store.setQuickSaveMode(false);
        store.setValue("c/n", 2);
        QVERIFY(fileContent(path()).contains("n=1\n"));
        store.setQuickSaveMode(true);
        QVERIFY(fileContent(path()).contains("n=1\n"));
        store.setValue("d", 1);
        QVERIFY(fileContent(path()).contains("n=2\n"));
    }

    void keepsWhatOthersWrote()
    {
        QVERIFY(writeFile(path(), stored()));
        VIniSettings store(path());
        store.setValue("a/x", "ours");
        const QVector<Reading> others = readInSecondProcess(QStringList {
            "--set", "a/x=theirs", "--set", "a/y=theirs", "--set", "other/new=theirs", path() });
        QCOMPARE(others.size(), 1);
        QCOMPARE(others.at(0).messages, QStringList());
        QVERIFY(fileContent(path()).contains("x=theirs"));
        QVERIFY(store.remove("a/y"));
        store.saveLocal();
        QCOMPARE(readAnew(path()),
                 described(Entries { { "a/x", "ours" },
                                     { "a/y", "theirs" },
                                     { "b/z", "three" },
                                     { "other/new", "theirs" },
                                     { "top", "1" } }));

        // Somebody who writes the file as a whole, with an editor for example.
        QVERIFY(writeFile(path(), "[editor]\nkey=from the editor\n"));
        store.saveLocal();
        QCOMPARE(readAnew(path()),
                 described(Entries { { "a/x", "ours" },
                                     { "b/z", "three" },
                                     { "editor/key", "from the editor" },
                                     { "top", "1" } }));
        QCOMPARE(filesIn("."), QStringList { path() });
    }

    void seesOthersAfterLoadingAgain()
    {
        QVERIFY(writeFile(path(), stored()));
        VIniSettings one(path());
        VIniSettings other(path());
        one.setValue("a/x", "from one");
        one.saveLocal();
        QCOMPARE(described(other.value("a/x")), described(QVariant("one")));
        other.setPath(path());
        QCOMPARE(described(other.value("a/x")), described(QVariant("from one")));

        QCOMPARE(readInSecondProcess(QStringList { "--set", "process=second", path() }).size(), 1);
        QCOMPARE(other.contains("process"), false);
        other.setPath(path());
        QCOMPARE(described(other.value("process")), described(QVariant("second")));
    }

    void forgetsItsFileForThatOfAnother()
    {
        QVERIFY(writeFile(path(), stored()));
        VIniSettings store(path(), true);
        Entries target;
        store.setValue("apart", 1, &target);
        store = VIniSettings(Entries { { "a", 1 } });
        QCOMPARE(store.filepath(), QString());
        QCOMPARE(store.allKeys(), QStringList { "a" });
        QCOMPARE(described(store.data()), described(Entries { { "a", 1 } }));
        store.setValue("a", 2);
        store.saveLocal();
        QCOMPARE(fileContent(path()), stored());
        QCOMPARE(filesIn("."), QStringList { path() });
    }

    void copiesShareTheFileOnly()
    {
        QVERIFY(writeFile(path(), stored()));
        VIniSettings store(path(), true);
        Entries target;
        store.setValue("apart", 1, &target);
        VIniSettings copy("earlier.ini", false, Entries { { "earlier", 1 } });
        copy.setValue("earlier apart", 1, &target);
        copy = VIniSettings(store);
        QCOMPARE(copy.filepath(), path());
        QCOMPARE(copy.allKeys(), (QStringList { "a/x", "a/y", "b/z", "top", "apart" }));
        QCOMPARE(described(copy.data()), described(storedEntries()));
        copy.setValue("top", "copy");
        QVERIFY(fileContent(path()).contains("top=copy"));
        QCOMPARE(described(store.value("top")), described(QVariant("1")));

        copy.setQuickSaveMode(false);
        copy.setPath("other.ini");
        QCOMPARE(store.filepath(), path());
        store.setValue("top", "original");
        QVERIFY(fileContent(path()).contains("top=original"));
    }

    void readsTypes_data()
    {
        QTest::addColumn<QVariant>("written");
        QTest::addColumn<QVariant>("read");

        QTest::newRow("text") << QVariant("text") << QVariant("text");
        QTest::newRow("empty text") << QVariant("") << QVariant("");
        QTest::newRow("Chinese") << QVariant("中文 参数") << QVariant("中文 参数");
        QTest::newRow("spaces around") << QVariant("  a  ") << QVariant("  a  ");
        QTest::newRow("signs that mean something in the file")
            << QVariant("[a];b=c,d\"e\"\\f%20@g") << QVariant("[a];b=c,d\"e\"\\f%20@g");
        QTest::newRow("an at sign in front") << QVariant("@Invalid()") << QVariant("@Invalid()");
        QTest::newRow("line breaks") << QVariant("a\nb\r\n\tc") << QVariant("a\nb\r\n\tc");
        QTest::newRow("a zero character")
            << QVariant(QString("a%1b").arg(QChar(0))) << QVariant(QString("a%1b").arg(QChar(0)));
        QTest::newRow("a whole number is text") << QVariant(-5) << QVariant("-5");
        QTest::newRow("a long one")
            << QVariant(Q_INT64_C(9007199254740993)) << QVariant("9007199254740993");
        QTest::newRow("a double is text") << QVariant(0.1) << QVariant("0.1");
        QTest::newRow("a truth is text") << QVariant(true) << QVariant("true");
        QTest::newRow("bytes") << QVariant(QByteArray("\0a\xff,;\"", 6))
                               << QVariant(QByteArray("\0a\xff,;\"", 6));
        QTest::newRow("no bytes") << QVariant(QByteArray("")) << QVariant(QByteArray(""));
        QTest::newRow("an invalid value") << QVariant() << QVariant();
        QTest::newRow("a list") << QVariant(QStringList { "a", "b c", "" })
                                << QVariant(QStringList { "a", "b c", "" });
        QTest::newRow("a list with commas")
            << QVariant(QStringList { "a,b", "c, d" }) << QVariant(QStringList { "a,b", "c, d" });
        QTest::newRow("a list of one is its element")
            << QVariant(QStringList { "a" }) << QVariant("a");
        QTest::newRow("a list of one empty text is an empty text")
            << QVariant(QStringList { "" }) << QVariant("");
        QTest::newRow("an empty list is invalid") << QVariant(QStringList()) << QVariant();
        QTest::newRow("a list of numbers is a list of texts")
            << QVariant(QVariantList { 1, 2.5 }) << QVariant(QStringList { "1", "2.5" });
        QTest::newRow("a list of one number keeps its type")
            << QVariant(QVariantList { 1 }) << QVariant(QVariantList { 1 });
        QTest::newRow("a point") << QVariant(QPoint(1, -2)) << QVariant(QPoint(1, -2));
        QTest::newRow("a point in the plane")
            << QVariant(QPointF(1.5, 2)) << QVariant(QPointF(1.5, 2));
        const QDateTime time(QDate(2020, 2, 29), QTime(1, 2, 3), Qt::UTC);
        QTest::newRow("a time") << QVariant(time) << QVariant(time);
        QTest::newRow("a map") << QVariant(QVariantMap { { "a", 1 } })
                               << QVariant(QVariantMap { { "a", 1 } });
    }

    void readsTypes()
    {
        QFETCH(QVariant, written);
        QFETCH(QVariant, read);
        VIniSettings store(path(), true);
        store.setValue("group/键", written);
        QCOMPARE(readAnew(path()), described(Entries { { "group/键", read } }));

        // The process that wrote the value still knows its type.
        store.setPath(path());
        QCOMPARE(described(store.value("group/键")), described(written));
        QCOMPARE(filesIn("."), QStringList { path() });
    }

    void leavesOutWhatCannotBeStored()
    {
        QVERIFY(writeFile(path(), stored()));
        VIniSettings store(path());
        store.setValue("top", QVariant::fromValue(static_cast<QObject *>(this)));
        store.setValue("pointer", QVariant::fromValue(static_cast<void *>(this)));
        const QVariant pointer = store.value("pointer");
        store.setValue("b/z", QVariantList { 1, QVariantList { pointer } });
        store.setValue("map", QVariantMap { { "a", 1 }, { "b", pointer } });
        store.setValue("hash", QVariantHash { { "a", pointer } });
        store.setValue("a/x", "new");
        store.saveLocal();
        QCOMPARE(fileContent(path()),
                 QByteArray("[General]\ntop=1\n\n[a]\nx=new\ny=two\n\n[b]\nz=three\n"));
        QCOMPARE(store.value("top").value<QObject *>(), this);
    }

    void leavesOutListsThatNest_data()
    {
        QTest::addColumn<int>("levels");
        QTest::addColumn<QStringList>("keys");
        QTest::newRow("a list of numbers") << 1 << QStringList { "after", "nested" };
        QTest::newRow("as deep as lists are stored") << 1000 << QStringList { "after", "nested" };
        QTest::newRow("deeper than lists are stored") << 1001 << QStringList { "after" };
        QTest::newRow("deeper than a stack can follow") << 50000 << QStringList { "after" };
    }

    void leavesOutListsThatNest()
    {
        QFETCH(int, levels);
        QVariant nested = 1;
        for (int i = 0; i < levels; ++i)
            nested = QVariantList { nested };
        VIniSettings(Entries { { "nested", nested }, { "after", 2 } }).saveLocal(path());
        QTEST(VIniSettings(path()).allKeys(), "keys");
        QVERIFY(fileContent(path()).contains("\nafter=2\n"));
    }

    void leavesOutMapsThatNest()
    {
        QVariant map = 1;
        QVariant hash = 1;
        for (int levels = 1; levels <= 1001; ++levels) {
            map = QVariantMap { { "a", map } };
            hash = QVariantHash { { "a", hash } };
            if (levels >= 1000)
                VIniSettings(Entries { { "map", map }, { "hash", hash }, { "after", 2 } })
                    .saveLocal(labelled("nested", levels));
        }
        QCOMPARE(VIniSettings(labelled("nested", 1000)).allKeys(),
                 (QStringList { "after", "hash", "map" }));
        QCOMPARE(VIniSettings(labelled("nested", 1001)).allKeys(), QStringList { "after" });
    }

    /// What is to come of random stores is told by QSettings itself, on another file.
    void writesAndReadsWhatQSettingsDoes_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 10; ++seed)
            QTest::addRow("seed %d", seed) << seed;
    }

    void writesAndReadsWhatQSettingsDoes()
    {
        QFETCH(int, seed);
        Dice dice { unsigned(seed) };
        for (int i = 0; i < 20; ++i) {
            const QString name = freshName();
            // Some files hold something already, which stays unless it is overwritten.
            const Entries earlier = dice.chance(50) ? someEntries(&dice) : Entries();
            const Entries entries = someEntries(&dice);
            VIniSettings(earlier).saveLocal(name);
            VIniSettings(name, entries).saveLocal();
            writePlainly(name + "-plain", earlier);
            writePlainly(name + "-plain", entries);
            QCOMPARE(fileContent(name), fileContent(name + "-plain"));
            QCOMPARE(QFile::exists(name + ".bak"), false);

            // And read and saved as a file that somebody else has written.
            QVERIFY(QFile::copy(name, name + "-copy"));
            QVERIFY(QFile::copy(name, name + "-read"));
            const VIniSettings read(QString(name + "-copy"));
            QCOMPARE(described(read.data()), described(readPlainly(name + "-read")));
            read.saveLocal();
            QCOMPARE(fileContent(name + "-copy"), fileContent(name));
            QCOMPARE(QFile::exists(name + "-copy.bak"), false);
        }
    }
};

QTEST_GUILESS_MAIN(TestVIniSettingsFiles)
#include "tst_vinisettings_files.moc"
