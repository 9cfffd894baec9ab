// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A settings store and its file. Random lives of stores with files are compared with those of
// stores that follow the plain rules of PlainStore, step by step: keys, values with their types,
// and every byte on the disk. The odd cases stand beside them.

#include <Kelto/VIniSettings>

#include "models/plainstore.h"
#include "support/directorytest.h"
#include "support/randomitems.h"
#include "support/secondprocess.h"
#include "support/settingsjson.h"
#include "support/testfiles.h"

#include <QDateTime>
#include <QPoint>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <type_traits>
#include <vector>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace {

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

/// What a program that has not written the file reads in it.
QStringList readAnew(const QString &name)
{
    static int number = 0;
    const QString copy = labelled("fresh", ++number);
    if (!QFile::copy(name, copy))
        return { "no file" };
    const QStringList entries = described(VIniSettings(copy).data());
    QFile::remove(copy);
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

const QStringList &fileNames()
{
    static const QStringList names { "one.ini", "设置 二", "one.ini/below a file",
                                     "missing/one.ini", QString("z%1.ini").arg(QChar(0)) };
    return names;
}

/// A store of the library and one of the plain rules, each with a directory of its own.
struct Pair
{
    VIniSettings store;
    PlainStore plain;
};

const char *directoryOf(const VIniSettings &)
{
    return "kelto/";
}

const char *directoryOf(const PlainStore &)
{
    return "plain/";
}

/// The random life of a few stores, which use the same files.
class Life
{
public:
    explicit Life(unsigned seed)
        : m_dice(seed)
        , m_pairs(3)
    {
    }

    /// In what the stores differ from the plain rules, with the steps to there; empty for nothing.
    QString difference()
    {
        QDir().mkdir("kelto");
        QDir().mkdir("plain");
        QStringList steps;
        for (int i = 0; i < 60; ++i) {
            steps.append(QString::number(takeStep()));
            const QString difference = differenceNow();
            if (!difference.isEmpty())
                return steps.join(' ') + ": " + difference;
        }
        return {};
    }

private:
    template <typename Step> void withBoth(Step step)
    {
        Pair &pair = m_pairs[std::size_t(m_dice.between(0, 2))];
        step(pair.store);
        step(pair.plain);
    }

    /// Makes a store by one of the constructors, which may find files or not.
    void construct(int constructor)
    {
        const QString name = m_dice.oneOf(fileNames());
        const bool quick = m_dice.chance(70);
        const Entries data = someEntries(&m_dice);
        withBoth([&](auto &store) {
            using Store = std::remove_reference_t<decltype(store)>;
            const QString path = directoryOf(store) + name;
            const Store made[]
                = { Store(), Store(data), Store(QString()), Store(QString(), quick) };
            store = constructor < 4 ? made[constructor]
                : constructor == 4  ? Store(path)
                : constructor == 5  ? Store(path, quick)
                : constructor == 6  ? Store(path, data)
                                    : Store(path, quick, data);
        });
    }

    /// The number of the step.
    int takeStep()
    {
        const int step = m_dice.between(0, 24);
        const QString name = m_dice.oneOf(fileNames());
        const QString key = someKey(&m_dice);
        const QVariant value = someValue(&m_dice);
        const Entries entries = someEntries(&m_dice);
        const bool isOn = m_dice.chance(70);
        if (step < 8) {
            construct(step);
        } else if (step < 11) {
            withBoth([&](auto &store) { store.setPath(directoryOf(store) + name); });
        } else if (step == 11) {
            withBoth([&](auto &store) { store.setQuickSaveMode(isOn); });
        } else if (step == 12) {
            withBoth([&](auto &store) { store.setValue(entries, !isOn); });
        } else if (step == 13) {
            withBoth([&](auto &store) { store.remove(store.allKeys().value(0)); });
        } else if (step == 14) {
            withBoth([&](auto &store) { store.removeGroup(store.allGroups().value(0)); });
        } else if (step == 15) {
            withBoth([&](auto &store) {
                Entries target;
                store.setValue(key, value, &target);
                store.setValue(&target, &entries);
            });
        } else if (step == 16) {
            m_pairs[0] = m_pairs[1];
        } else if (step == 17) {
            m_pairs[1] = m_pairs[2];
        } else if (step == 18) {
            editOutside(isOn);
        } else if (step < 21) {
            withBoth([&](auto &store) { store.saveLocal(directoryOf(store) + name); });
        } else if (step == 21) {
            withBoth([](auto &store) { store.saveLocal(); });
        } else {
            withBoth([&](auto &store) { store.setValue(key, value); });
        }
        return step;
    }

    /// Somebody else writes a file, or takes it away.
    void editOutside(bool isWritten)
    {
        ++m_edits;
        for (const char *name : { "kelto/one.ini", "plain/one.ini" }) {
            QFile file(name);
            file.remove();
            if (!isWritten || !file.open(QIODevice::WriteOnly))
                continue;
            file.write(stored() + "edits=" + QByteArray::number(m_edits) + '\n');
            file.flush();
            // QSettings alone would not see what is done within a tick of the clock.
            file.setFileTime(QDateTime::currentDateTime().addSecs(m_edits),
                             QFileDevice::FileModificationTime);
        }
    }

    QString differenceNow() const
    {
        for (const Pair &pair : m_pairs) {
            if (described(pair.store.data()) != described(pair.plain.data()))
                return described(pair.store.data()).join('\n') + "\n  and\n"
                    + described(pair.plain.data()).join('\n');
            if (pair.store.allKeys() != pair.plain.allKeys())
                return "keys";
            if (pair.store.filepath().mid(6) != pair.plain.filepath().mid(6))
                return "file " + pair.store.filepath() + " and " + pair.plain.filepath();
        }
        if (filesIn("kelto") != filesIn("plain"))
            return "files " + filesIn("kelto").join('|') + " and " + filesIn("plain").join('|');
        const QStringList names = filesIn("kelto");
        for (const QString &name : names) {
            const QByteArray written = fileContent("kelto/" + name);
            if (written != fileContent("plain/" + name))
                return name + "\n" + written + "\n  and\n" + fileContent("plain/" + name);
        }
        return {};
    }

    Dice m_dice;
    std::vector<Pair> m_pairs;
    int m_edits = 0;
};

} // namespace

class TestVIniSettingsFiles : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithThePlainRules_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 40; ++seed)
            QTest::addRow("seed %d", seed) << seed;
    }

    void agreesWithThePlainRules()
    {
        QFETCH(int, seed);
        const QString difference = Life(unsigned(seed)).difference();
        QVERIFY2(difference.isEmpty(), qUtf8Printable(difference));
    }

    /// What QSettings does with these is not what it does with other keys.
    void loads_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<Entries>("expected");

        QTest::newRow("top-level keys and groups") << stored() << storedEntries();
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

    void saves_data()
    {
        QTest::addColumn<Entries>("data");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("in UTF-8") << Entries { { "组/名 x", "值 Ω" }, { "a/b/c", 1 } }
                                  << QByteArray("[a]\nb\\c=1\n\n[%U7EC4]\n%U540D%20x=值 Ω\n");
        QTest::newRow("superfluous slashes are dropped")
            << Entries { { "/a//b/", 1 } } << QByteArray("[a]\nb=1\n");
        QTest::newRow("the empty key and a slash alone are left out")
            << Entries { { "", 1 }, { "/", 2 }, { "//", 3 }, { "a", 4 } }
            << QByteArray("[General]\na=4\n");
    }

    void saves()
    {
        QFETCH(Entries, data);
        VIniSettings(data).saveLocal(path());
        QTEST(fileContent(path()), "after");
        QCOMPARE(filesIn("."), QStringList { path() });
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

    void savesRelativeToTheCurrentDirectory()
    {
        VIniSettings store(path());
        store.setValue("a", 1);
        QVERIFY(QDir().mkdir("other"));
        QVERIFY(QDir::setCurrent("other"));
        store.saveLocal();
        QCOMPARE(fileContent(path()), QByteArray("[General]\na=1\n"));
        QCOMPARE(fileContent("../store.ini"), QByteArray(""));

        // The same from somebody else holds texts only, whatever this process has written here.
        QVERIFY(QDir().mkdir("third"));
        QVERIFY(QFile::copy(path(), "third/" + path()));
        QVERIFY(QDir::setCurrent("third"));
        store.setPath(path());
        QCOMPARE(described(store.value("a")), described(QVariant("1")));
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

    void savesThroughALinkToNothing()
    {
        QVERIFY(QFile::link("target.ini", "link.ini"));
        VIniSettings store(QString("link.ini"), true);
        store.setValue("top", 2);
        QVERIFY(QFileInfo("link.ini").isSymLink());
        QCOMPARE(fileContent("target.ini"), QByteArray("[General]\ntop=2\n"));
        QCOMPARE(filesIn("."), (QStringList { "link.ini", "target.ini" }));
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

    /// The clock of a file system may stand still in the meantime, and the size does not change.
    void isSeenByQSettingsAtOnce()
    {
        QSettings settings(path(), QSettings::IniFormat);
        VIniSettings store(path(), true);
        for (int i = 0; i < 50; ++i) {
            store.setValue("a", i % 10);
            settings.sync();
            QCOMPARE(settings.value("a").toString(), QString::number(i % 10));
        }
    }

    /// A second QSettings would write in another encoding what the host has not written yet.
    void leavesToTheHostWhatItHasNotSynchronised()
    {
        QVERIFY(writeFile(path(), "[a]\nx=é\n"));
        QSettings settings(path(), QSettings::IniFormat);
        settings.setIniCodec("utf-8");
        settings.setValue("a/z", "ü");
        VIniSettings(Entries { { "a/y", "ö" } }).saveLocal(path());
        QCOMPARE(fileContent(path()), QByteArray("[a]\nx=é\ny=ö\n"));
        QVERIFY(!settings.contains("a/y"));
        settings.sync();
        QCOMPARE(settings.value("a/y").toString(), QString("ö"));
        QCOMPARE(fileContent(path()), QByteArray("[a]\nx=é\ny=ö\nz=ü\n"));
    }

    void removesWhatKilledProcessesLeft_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("isUsed");
        QTest::addColumn<bool>("isKept");
        QTest::newRow("without a file") << "" << false << false;
        QTest::newRow("with a file") << "settings.ini" << false << false;
        QTest::newRow("with a lock") << "settings.ini.lock" << false << false;
        QTest::newRow("with a file that is no settings file") << "letter" << false << true;
        QTest::newRow("of a process that still saves") << "settings.ini" << true << true;
    }

    void removesWhatKilledProcessesLeft()
    {
#ifdef Q_OS_UNIX
        QFETCH(QString, file);
        QFETCH(bool, isUsed);
        QTemporaryDir left(QDir::tempPath() + "/kelto-save.XXXXXX");
        QVERIFY(file.isEmpty() || writeFile(left.filePath(file), "[a]\nx=1\n"));
        const int handle = ::open(QFile::encodeName(left.path()).constData(), O_RDONLY);
        QCOMPARE(::flock(handle, isUsed ? LOCK_EX : LOCK_UN), 0);
        const QVector<Reading> others
            = readInSecondProcess(QStringList { "--set", "a/x=1", path() });
        ::close(handle);
        QCOMPARE(others.size(), 1);
        QTEST(QDir(left.path()).exists(), "isKept");
        QCOMPARE(fileContent(path()), QByteArray("[a]\nx=1\n"));
#endif
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
};

QTEST_GUILESS_MAIN(TestVIniSettingsFiles)
#include "tst_vinisettings_files.moc"
