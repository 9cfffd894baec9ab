// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Files that QSettings cannot take over whole, cannot lock, or may not touch. Whatever it is:
// nothing crashes or hangs, and what was on disk is still there afterwards, in place or in a copy.

#include <Kelto/AUTH_SET>
#include <Kelto/VIniSettings>

#include "core/files_p.h"

#include "support/directorytest.h"
#include "support/hostilebytes.h"
#include "support/outofmemory.h"
#include "support/secondprocess.h"
#include "support/settingsjson.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLockFile>
#include <QRegularExpression>
#include <QSemaphore>
#include <QSettings>
#include <QTest>
#include <QThread>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

void setAndSave(const QString &path, const QString &value)
{
    VIniSettings store(path);
    store.setValue("zz/new", value);
    store.saveLocal();
}

/// The values of a file with the type that they have for a process that did not write it.
QVariantMap valuesIn(const QByteArray &bytes)
{
    // A name that is new to this process: QSettings remembers files.
    static int number = 0;
    const QString name = labelled("fresh", ++number);
    if (!writeFile(name, bytes))
        QTest::qFail("the file cannot be written", __FILE__, __LINE__);
    QVariantMap values;
    {
        QSettings settings(name, QSettings::IniFormat);
        settings.setIniCodec("utf-8");
        const QStringList keys = settings.allKeys();
        for (const QString &key : keys) {
            if (!key.isEmpty())
                values.insert(key, settings.value(key));
        }
    }
    QFile::remove(name);
    return values;
}

/// A value as text. A list of texts may have been read as a list of values that are texts.
QString saidBy(const QVariant &value)
{
    return described(value.userType() == QMetaType::QVariantList ? value.toStringList() : value);
}

/// The words "kq1z", "kq2z" and so on that are in @p bytes.
QStringList marksIn(const QByteArray &bytes)
{
    static const QRegularExpression mark("kq\\d+z");
    QStringList marks;
    auto found = mark.globalMatch(QString::fromLatin1(bytes.constData(), bytes.size()));
    while (found.hasNext())
        marks.append(found.next().captured());
    return marks;
}

/// A mark or a value that was in a file with the bytes @p before and is not in @p now; empty when
/// nothing is lost.
QString lostIn(const QByteArray &before, const QByteArray &now)
{
    const QStringList marks = marksIn(before);
    for (const QString &mark : marks) {
        if (!now.contains(mark.toLatin1()))
            return mark;
    }
    const QVariantMap values = valuesIn(before);
    const QVariantMap valuesNow = valuesIn(now);
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        if (value.key() != "zz/new"
            && saidBy(valuesNow.value(value.key())) != saidBy(value.value()))
            return value.key() + ": " + saidBy(value.value());
    }
    return QString();
}

QByteArray junk(int number)
{
    return "junk " + QByteArray::number(number) + "\na=1\n";
}

/// Saves into a file that holds @p bytes.
void saveOver(const QByteArray &bytes)
{
    QVERIFY(writeFile("f.ini", bytes));
    setAndSave("f.ini", "value");
}

/// What the copies of the file hold, the newest first; nothing where there is none.
QByteArrayList copies()
{
    QByteArrayList contents;
    for (const char *ending : { ".bak", ".bak2", ".bak3", ".bak4", ".bak5" })
        contents.append(fileContent(QString("f.ini") + ending));
    return contents;
}

#ifdef Q_OS_UNIX
/// As long as it exists, no file can be written that is larger than this.
class FileLimit
{
public:
    explicit FileLimit(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit { bytes, m_before.rlim_max };
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY(FileLimit)

private:
    void (*m_handler)(int);
    rlimit m_before {};
};
#endif

QStringList asUser(const QStringList &arguments)
{
#ifdef Q_OS_UNIX
    // Permissions do not bind the administrator.
    if (geteuid() == 0)
        return QStringList { "--as-user", "65534" } + arguments;
#endif
    return arguments;
}

} // namespace

class TestVIniSettingsBadFiles : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    /// Which problems there are is checked with the reader.
    void keepsACopy_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isKept");
        const auto row = [](const char *name, const QByteArray &bytes, bool isKept) {
            QTest::newRow(name) << bytes << isKept;
        };
        row("a comment", "; kept for the user\n[a]\nb=1\n", true);
        row("a key that looks like a comment", "#a=1\n", true);
        row("a line without an equals sign", "junk\n[a]\nb=1\n", true);
        row("two values for a key", "[a]\nb=0\nb=1\n", true);
        row("a path with backslashes", "[a]\nb=C:\\quick\\path\n", true);
        row("bytes that are not UTF-8", "a=\xe4\xf6\n", true);
        row("half of a character at the end of a line", "a=x\xef\xbf\nb=1\n", true);
        row("a value of a type that nobody knows",
            "a=1, @Variant(\\0\\0\\0\\x7f\\0\\0\\0\\x5Mine\\0\\x1\\x2)\n", true);
        row("a section without keys", "[a]\nb=1\n[empty]\n", false);
        row("what QSettings spells otherwise",
            "[general]\na=\"1\"\n[Desktop Entry]\nName[de]=x\nb=@default\n", false);
        row("an empty file", "", false);
    }

    void keepsACopy()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isKept);
        QVERIFY(writeFile("f.ini", bytes));
        const QVariantMap before = valuesIn(bytes);
        VIniSettings(QString("f.ini"));
        QCOMPARE(fileContent("f.ini"), bytes);
        QCOMPARE(filesIn("."), QStringList { "f.ini" });
        setAndSave("f.ini", "value");
        setAndSave("f.ini", "other value");
        QCOMPARE(filesIn("."),
                 isKept ? (QStringList { "f.ini", "f.ini.bak" }) : QStringList { "f.ini" });
        QCOMPARE(fileContent("f.ini.bak"), isKept ? bytes : QByteArray());
        QVariantMap after = valuesIn(fileContent("f.ini"));
        QCOMPARE(after.take("zz/new"), QVariant("other value"));
        QCOMPARE(after.keys(), before.keys());
        // QVariant itself complains about types that it does not know.
        Messages::collected().clear();
    }

    void keepsNoCopyOfAKeyWithoutAName()
    {
        QVERIFY(writeFile("f.ini", "[a]\n=1\n"));
        setAndSave("f.ini", "value");
        setAndSave("f.ini", "value");
        // Its key is "a/"; when it is set, QSettings takes it for "a".
        QCOMPARE(fileContent("f.ini"),
                 QByteArray("[General]\na=@Invalid()\n\n[a]\n=1\n\n[zz]\nnew=value\n"));
        QCOMPARE(filesIn("."), QStringList { "f.ini" });
    }

    void leavesAKeyWithTwoSlashesAsItIs()
    {
        QVERIFY(writeFile("f.ini", "[a]\n/b=1\n"));
        for (int i = 1; i <= 3; ++i)
            VIniSettings(Entries { { "c", i } }).saveLocal("f.ini");
        QCOMPARE(fileContent("f.ini"), QByteArray("[General]\nc=3\n\n[a]\n\\b=1\n"));
        QCOMPARE(filesIn("."), QStringList { "f.ini" });
    }

    void keepsOneCopyOfAKeyThatLosesItsSlash()
    {
        const QByteArray before = "/b=1\n[a]\n/b=2\n";
        QVERIFY(writeFile("f.ini", before));
        for (int i = 1; i <= 3; ++i)
            VIniSettings(Entries { { "c", i } }).saveLocal("f.ini");
        QCOMPARE(fileContent("f.ini"), QByteArray("[General]\nb=1\nc=3\n\n[a]\n\\b=2\n"));
        QCOMPARE(copies(), (QByteArrayList { before, "", "", "", "" }));
    }

    void keepsTheNewestFiveCopies()
    {
        // The third name is not free.
        QVERIFY(QDir().mkdir("f.ini.bak3"));
        for (int i = 1; i <= 8; ++i)
            saveOver(junk(i));
        QCOMPARE(copies(), (QByteArrayList { junk(8), junk(7), "", junk(6), junk(5) }));
        QVERIFY(QDir("f.ini.bak3").isEmpty());
        // What is kept already becomes the newest, and nothing is dropped.
        saveOver(junk(6));
        QCOMPARE(copies(), (QByteArrayList { junk(6), junk(8), "", junk(7), junk(5) }));
        // A name that is free again is taken.
        QVERIFY(QDir().rmdir("f.ini.bak3"));
        saveOver(junk(9));
        QCOMPARE(copies(), (QByteArrayList { junk(9), junk(6), junk(8), junk(7), junk(5) }));
        saveOver(junk(10));
        QCOMPARE(copies(), (QByteArrayList { junk(10), junk(9), junk(6), junk(8), junk(7) }));
        QCOMPARE(filesIn(".").size(), 6);
    }

    void keepsOneCopyOfTheSame()
    {
        const QByteArray commented = "; a file that is put back again and again\na=1\n";
        for (int i = 0; i < 3; ++i) {
            QVERIFY(writeFile("f.ini", commented));
            VIniSettings store("f.ini", true);
            for (int j = 0; j < 3; ++j)
                store.setValue("a", j);
        }
        QCOMPARE(filesIn("."), (QStringList { "f.ini", "f.ini.bak" }));
        QCOMPARE(fileContent("f.ini.bak"), commented);
        QCOMPARE(fileContent("f.ini"), QByteArray("[General]\na=2\n"));
    }

    void leavesAloneWhatItCannotCopy()
    {
        QVERIFY(writeFile("f.ini", "junk\na=1\n"));
        // No name is free: links are in the way, too, also those that lead nowhere.
        QVERIFY(QFile::link("nowhere", "f.ini.bak"));
        for (int i = 2; i <= 5; ++i)
            QVERIFY(QDir().mkdir(labelled("f.ini.bak", i)));
        setAndSave("f.ini", "value");
        QCOMPARE(fileContent("f.ini"), QByteArray("junk\na=1\n"));
        QVERIFY(QFileInfo("f.ini.bak").isSymLink());
        QCOMPARE(filesIn(".").size(), 6);
        // What could not be saved is not told to others in this process either.
        QCOMPARE(VIniSettings(QString("f.ini")).allKeys(), QStringList { "a" });

        QVERIFY(QFile::remove("f.ini.bak"));
        QVERIFY(writeFile("f.ini.bak.new", "of somebody else"));
        setAndSave("f.ini", "value");
        QCOMPARE(fileContent("f.ini.bak"), QByteArray("junk\na=1\n"));
        QCOMPARE(fileContent("f.ini.bak.new"), QByteArray("of somebody else"));
        QCOMPARE(filesIn(".").size(), 7);
    }

    void copiesOnlyBeforeItWrites()
    {
        QVERIFY(writeFile("f.ini", "junk\na=1\n"));
        VIniSettings store("f.ini", true);
        store.setValue(Entries { { "b", 2 }, { "c", QVariant::fromValue<void *>(this) } }, true);
        QVERIFY(store.remove("b"));
        store.saveLocal();
        const Entries nothing;
        AUTH_SET().save("missing/f.ini", &nothing);
        QCOMPARE(filesIn("."), QStringList { "f.ini" });
        QCOMPARE(fileContent("f.ini"), QByteArray("junk\na=1\n"));
    }

    void keepsTheCopyOfAFileThatOthersBroke()
    {
        VIniSettings store("f.ini", true);
        store.setValue("a", 1);
        QCOMPARE(filesIn("."), QStringList { "f.ini" });
        const QByteArray broken = "[General]\na=1\nb=from an editor\nand a line that is none\n";
        QVERIFY(writeFile("f.ini", broken));
        store.setValue("a", 2);
        QCOMPARE(filesIn("."), (QStringList { "f.ini", "f.ini.bak" }));
        QCOMPARE(fileContent("f.ini.bak"), broken);
        QCOMPARE(fileContent("f.ini"), QByteArray("[General]\na=2\nb=from an editor\n"));
    }

    void standsValuesOfSenselessSize_data()
    {
        QTest::addColumn<QByteArray>("size");
        QTest::addColumn<bool>("isReadable");
        // From 0x20000000 elements on, a list has more bytes than an int counts. Qt then asks for
        // all the memory that an address reaches, which no machine has. Of smaller lists it depends
        // on the machine whether they fail.
        QTest::newRow("far too many elements") << QByteArray("\\x20\\0\\0\\0") << false;
        QTest::newRow("as many as there can be") << QByteArray("\\x7f\\xff\\xff\\xff") << false;
        // For these Qt asks for nothing, and then misses the first of them.
        QTest::newRow("more than there can be") << QByteArray("\\x80\\0\\0\\0") << true;
        QTest::newRow("a number without end") << QByteArray("\\xff\\xff\\xff\\xff") << true;
        QTest::newRow("one that is not there") << QByteArray("\\0\\0\\0\\x1") << true;
    }

    void standsValuesOfSenselessSize()
    {
        QFETCH(QByteArray, size);
        QFETCH(bool, isReadable);
        const QByteArray damaged = "a=1\nb=@Variant(\\0\\0\\0\\t" + size + ")\n";
        QVERIFY(writeFile("f.ini", damaged));
        const VIniSettings before(QString("f.ini"));
        QCOMPARE(before.filepath(), QString("f.ini"));
        const Entries readable { { "a", "1" }, { "b", QVariantList() } };
        QCOMPARE(described(before.data()), described(isReadable ? readable : Entries()));

        setAndSave("f.ini", "value");
        setAndSave("f.ini", "other value");
        if (isReadable) {
            QCOMPARE(fileContent("f.ini"),
                     QByteArray("[General]\na=1\nb=@Invalid()\n\n[zz]\nnew=other value\n"));
            QCOMPARE(fileContent("f.ini.bak"), damaged);
            QCOMPARE(filesIn("."), (QStringList { "f.ini", "f.ini.bak" }));
        } else {
            QCOMPARE(fileContent("f.ini"), damaged);
            QCOMPARE(filesIn("."), QStringList { "f.ini" });
        }
    }

    void doesNotWaitForAPipe()
    {
#ifdef Q_OS_UNIX
        QCOMPARE(::mkfifo("pipe.ini", 0600), 0);
        VIniSettings store("pipe.ini", true);
        QCOMPARE(store.filepath(), QString("pipe.ini"));
        QCOMPARE(store.data(), Entries());
        store.setValue("a", 1);
        QCOMPARE(filesIn("."), QStringList { "pipe.ini" });

        QCOMPARE(::mkfifo("f.ini.bak", 0600), 0);
        QVERIFY(writeFile("f.ini", "junk\na=1\n"));
        setAndSave("f.ini", "value");
        QCOMPARE(fileContent("f.ini.bak2"), QByteArray("junk\na=1\n"));
        QCOMPARE(filesIn("."), (QStringList { "f.ini", "f.ini.bak", "f.ini.bak2", "pipe.ini" }));
#else
        QSKIP("Only Unix has pipes among its files.");
#endif
    }

    void givesUpAtOnceWhereThereCanBeNoLock_data()
    {
        QTest::addColumn<bool>("isLink");
        QTest::newRow("a directory has its name") << false;
        QTest::newRow("a link that leads nowhere has its name") << true;
    }

    void givesUpAtOnceWhereThereCanBeNoLock()
    {
        QFETCH(bool, isLink);
        QVERIFY(writeFile("f.ini", "a=1\n"));
        QVERIFY(isLink ? QFile::link("nowhere", "f.ini.lock") : QDir().mkdir("f.ini.lock"));
        VIniSettings store("f.ini", true);
        QElapsedTimer timer;
        timer.start();
        store.setValue("a", 2);
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(fileContent("f.ini"), QByteArray("a=1\n"));
        QCOMPARE(filesIn("."), (QStringList { "f.ini", "f.ini.lock" }));
        QVERIFY(isLink ? QFile::remove("f.ini.lock") : QDir().rmdir("f.ini.lock"));
        store.setValue("a", 3);
        QCOMPARE(fileContent("f.ini"), QByteArray("[General]\na=3\n"));
    }

    void givesUpAtOnceWhereAPipeHasTheNameOfALock_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("of the file") << QByteArray("f.ini.lock");
        QTest::newRow("of the removal of an abandoned lock") << QByteArray("f.ini.lock.rmlock");
    }

    void givesUpAtOnceWhereAPipeHasTheNameOfALock()
    {
#ifdef Q_OS_UNIX
        QFETCH(QByteArray, name);
        QVERIFY(writeFile("f.ini", "a=1\n"));
        QVERIFY(writeFile("f.ini.lock", ""));
        QVERIFY(name == "f.ini.lock.rmlock" || QFile::remove("f.ini.lock"));
        QCOMPARE(::mkfifo(name.constData(), 0600), 0);
        VIniSettings store("f.ini", true);
        store.setValue("a", 2);
        QCOMPARE(fileContent("f.ini"), QByteArray("a=1\n"));
#else
        QSKIP("Only Unix has pipes among its files.");
#endif
    }

    void savesWhenAnAbandonedLockIsLeft_data()
    {
        QTest::addColumn<QByteArray>("lock");
        const QByteArray host = QSysInfo::machineHostName().toLocal8Bit() + '\n';
        const QByteArray program = QCoreApplication::applicationName().toUtf8() + '\n';
        QTest::newRow("by a process that has ended") << QByteArray("67108863\n" + program + host);
        // In containers the next process often has the number of the one before.
        QTest::newRow("by one with the same number") << QByteArray(
            QByteArray::number(QCoreApplication::applicationPid()) + '\n' + program + host);
        QTest::newRow("by one that was killed before it wrote into it") << QByteArray();
    }

    void savesWhenAnAbandonedLockIsLeft()
    {
        QFETCH(QByteArray, lock);
        QVERIFY(writeFile("f.ini", "a=1\n"));
        QVERIFY(writeFile("f.ini.lock", lock));
        QElapsedTimer timer;
        timer.start();
        setAndSave("f.ini", "value");
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(fileContent("f.ini"), QByteArray("[General]\na=1\n\n[zz]\nnew=value\n"));
        QCOMPARE(filesIn("."), QStringList { "f.ini" });
    }

    void waitsForOthersAndKeepsWhatTheyWrote_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("by the same name") << "f.ini";
        QTest::newRow("by the name of a link") << "link.ini";
    }

    /// Also longer than it takes until a lock counts as abandoned.
    void waitsForOthersAndKeepsWhatTheyWrote()
    {
        QFETCH(QString, name);
        QVERIFY(writeFile("f.ini", "a=1\n"));
        QVERIFY(name == "f.ini" || QFile::link("f.ini", name));
        VIniSettings store(name);
        store.setValue("b", 2);
        QSemaphore locked;
        const QScopedPointer<QThread> other(QThread::create([&locked] {
            QLockFile lock("f.ini.lock");
            lock.lock();
            locked.release();
            QThread::msleep(1500);
            writeFile("f.ini", "a=9\nothers=1\n");
        }));
        other->start();
        locked.acquire();
        store.saveLocal();
        QVERIFY(other->wait());
        QCOMPARE(fileContent("f.ini"), QByteArray("[General]\na=1\nb=2\nothers=1\n"));
        QVERIFY(QFile::remove("f.ini") && (name == "f.ini" || QFile::remove(name)));
        QCOMPARE(filesIn("."), QStringList());
    }

    void keepsTheOldFileWhereTheNewOneFindsNoPlace()
    {
#ifdef Q_OS_UNIX
        const QByteArray old = "; why\n[General]\na=" + QByteArray(2000, 'o') + '\n';
        const QByteArray saved = "[General]\na=" + QByteArray(2000, 'o')
            + "\n\n[zz]\nnew=" + QByteArray(4000, 'n') + '\n';
        int kept = 0;
        for (rlim_t size = 0; size < 8000; size += 250) {
            QVERIFY(writeFile("f.ini", old));
            {
                const FileLimit limit(size);
                setAndSave("f.ini", QString(4000, 'n'));
            }
            const bool isKept = fileContent("f.ini") == old;
            kept += isKept ? 1 : 0;
            QCOMPARE(fileContent("f.ini"), isKept ? old : saved);
            // What could not be saved is not told to others in this process either.
            QCOMPARE(VIniSettings(QString("f.ini")).contains("zz/new"), !isKept);
            QVERIFY(QFile::remove("f.ini"));
            QVERIFY(QFile::remove("f.ini.bak") || isKept);
            QCOMPARE(filesIn("."), QStringList());
        }
        QVERIFY2(kept > 20 && kept < 32, qPrintable(QString::number(kept)));
#endif
    }

    void replacesAFileAsAWhole()
    {
#ifdef Q_OS_UNIX
        const QByteArray bytes(20000, 'n');
        for (rlim_t size = 0; size < 24000; size += 1000) {
            QVERIFY(writeFile("f.ini", "old"));
            bool isDone = false;
            {
                const FileLimit limit(size);
                isDone = replaceFile("f.ini", bytes);
            }
            QCOMPARE(isDone, size >= 20000);
            QCOMPARE(fileContent("f.ini"), isDone ? bytes : QByteArray("old"));
            QCOMPARE(filesIn("."), QStringList { "f.ini" });
        }
#endif
    }

    void writesNothingWhereTheCurrentDirectoryIsGone()
    {
        const QString here = QDir::currentPath();
        const QString name = "kelto-test-of-a-directory-that-is-gone.ini";
        QVERIFY(QDir().mkdir("gone"));
        QVERIFY(QDir::setCurrent("gone"));
        QVERIFY(QDir().rmdir("../gone"));
        // The system itself still finds what is above.
        for (const QString &path : { name, QString("../" + name) }) {
            VIniSettings store(path, true);
            store.setValue("a", 1);
            const Entries values { { "a", 1 } };
            VIniSettings(values).saveLocal(path);
            AUTH_SET().save(path, &values);
            QCOMPARE(store.filepath(), QString());
        }
        QVERIFY(!QFile::remove('/' + name));
        QCOMPARE(filesIn(here), QStringList());
    }

    /// The owner of such a directory lets everybody add files, and nobody remove those of others.
    void leavesTheFilesOfOthersAlone()
    {
#ifdef Q_OS_UNIX
        // Only the administrator can make files of others.
        if (geteuid() != 0)
            return;
        setRights(".", 7);
        QVERIFY(writeFile("here/f.ini", "[a]\nb=1\n"));
        setRights("here/f.ini", 6);
        QCOMPARE(::chmod("here", 01777), 0);
        const QVector<Reading> readings
            = readInSecondProcess(asUser({ "--set", "a/c=2", "here/f.ini" }));
        QCOMPARE(readings.size(), 1);
        QCOMPARE(readings.constFirst().keys, QStringList { "a/b" });
        QCOMPARE(fileContent("here/f.ini"), QByteArray("[a]\nb=1\n"));
        QCOMPARE(filesIn("here"), QStringList { "f.ini" });
#endif
    }

    void keepsAllCopiesWhereOneOfThemCannotMove()
    {
#ifdef Q_OS_UNIX
        // Only the administrator can make files of others.
        if (geteuid() != 0)
            return;
        setRights(".", 7);
        QVERIFY(QDir().mkdir("here"));
        QVERIFY(QDir::setCurrent("here"));
        QByteArrayList before;
        for (const char *ending : { "", ".bak", ".bak2", ".bak3", ".bak4", ".bak5" }) {
            const QByteArray name = QByteArray("f.ini") + ending;
            before.append(junk(before.size()));
            QVERIFY(writeFile(name, before.constLast()));
            if (name != "f.ini.bak2")
                QCOMPARE(::chown(name.constData(), 65534, 65534), 0);
        }
        QCOMPARE(::chmod(".", 01777), 0);
        const QStringList arguments = asUser({ "--set", "a/c=2", "f.ini" });
        QCOMPARE(readInSecondProcess(arguments).size(), 1);
        QCOMPARE(QByteArrayList { fileContent("f.ini") } + copies(), before);
        QCOMPARE(filesIn(".").size(), 6);

        // When it can, only the oldest goes.
        QCOMPARE(::chown("f.ini.bak2", 65534, 65534), 0);
        QCOMPARE(readInSecondProcess(arguments).size(), 1);
        QCOMPARE(copies(), before.mid(0, 5));
        QCOMPARE(filesIn(".").size(), 6);
#endif
    }

    void losesNothingOfHostileBytes_data()
    {
        QTest::addColumn<BytesMaker>("makeBytes");
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 3; ++seed) {
            QTest::addRow("pieces of syntax, seed %d", seed) << BytesMaker(hostileBytes) << seed;
            QTest::addRow("damaged files, seed %d", seed) << BytesMaker(damagedBytes) << seed;
            QTest::addRow("any bytes, seed %d", seed) << BytesMaker(anyBytes) << seed;
        }
    }

    void losesNothingOfHostileBytes()
    {
        QFETCH(BytesMaker, makeBytes);
        QFETCH(int, seed);
        Dice dice { unsigned(seed) };
        int inPlace = 0;
        for (int i = 0; i < 40; ++i) {
            const QByteArray bytes = makeBytes(&dice);
            const QString name = labelled("f", i);
            QVERIFY(writeFile(name, bytes));
            VIniSettings store(name);
            QCOMPARE(store.allKeys().size(), store.data().size());
            store.styleSheetFormat();
            if (dice.chance(50))
                setAndSave(name, "value");
            else
                VIniSettings(Entries { { "zz/new", "value" } }).saveLocal(name);
            const QByteArray now = fileContent(name);
            QVERIFY2(now.contains("new=value\n"), bytes.toPercentEncoding().constData());

            if (QFile::exists(name + ".bak")) {
                QCOMPARE(fileContent(name + ".bak"), bytes);
                continue;
            }
            if (!valuesIn(bytes).isEmpty())
                ++inPlace;
            const QString lost = lostIn(bytes, now);
            QVERIFY2(lost.isEmpty(),
                     qUtf8Printable(lost + " of "
                                    + QString::fromLatin1(bytes.toPercentEncoding())));
        }
        // With a copy of every file, nothing would have been compared.
        QVERIFY2(inPlace >= 6, qPrintable(QString::number(inPlace)));
    }

    void endsCopying_data()
    {
        losesNothingOfHostileBytes_data();
    }

    /// At the latest when QSettings has written what it has read of its own writing: it can write
    /// byte order marks, but not read them.
    void endsCopying()
    {
        QFETCH(BytesMaker, makeBytes);
        QFETCH(int, seed);
        Dice dice { unsigned(seed) };
        for (int i = 0; i < 40; ++i) {
            const QByteArray bytes = makeBytes(&dice);
            const QString name = labelled("f", i);
            QVERIFY(writeFile(name, bytes));
            VIniSettings(Entries { { "zz/new", 1 } }).saveLocal(name);
            VIniSettings(Entries { { "zz/new", 2 } }).saveLocal(name);
            const QByteArray saved = fileContent(name);
            const QStringList files = filesIn(".");
            VIniSettings(Entries { { "zz/new", 3 } }).saveLocal(name);
            QVERIFY2(fileContent(name) != saved, bytes.toPercentEncoding().constData());
            QVERIFY2(filesIn(".") == files, bytes.toPercentEncoding().constData());
        }
    }

    void touchesOnlyWhatItMay_data()
    {
        QTest::addColumn<int>("file");
        QTest::addColumn<int>("directory");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QStringList>("files");
        const QByteArray stored = "[a]\nb=1\n";
        const QByteArray changed = "[a]\nb=1\nc=2\n";
        const QByteArray broken = "junk\n" + stored;
        const QStringList one { "f.ini" };
        const QStringList copied { "f.ini", "f.ini.bak" };
        // As for chmod: 4 to read, 2 to write, 1 to search a directory.
        QTest::newRow("everything is allowed") << 6 << 7 << stored << changed << one;
        QTest::newRow("a broken file") << 6 << 7 << broken << changed << copied;
        QTest::newRow("a file to be read only") << 4 << 7 << stored << stored << one;
        QTest::newRow("a broken one is not copied either") << 4 << 7 << broken << broken << one;
        QTest::newRow("a file to be written only") << 2 << 7 << stored << stored << one;
        QTest::newRow("a file not to be touched") << 0 << 7 << stored << stored << one;
        QTest::newRow("a directory to be read only") << 6 << 5 << stored << stored << one;
        QTest::newRow("a broken file in one") << 6 << 5 << broken << broken << one;
        QTest::newRow("a directory not to be searched") << 6 << 4 << stored << stored << one;
        QTest::newRow("no file, in a directory to be read only")
            << 0 << 5 << QByteArray() << QByteArray() << QStringList();
        QTest::newRow("no file") << 0 << 7 << QByteArray() << QByteArray("[a]\nc=2\n") << one;
    }

    void touchesOnlyWhatItMay()
    {
        QFETCH(int, file);
        QFETCH(int, directory);
        QFETCH(QByteArray, before);
        setRights(".", 7);
        QVERIFY(QDir().mkdir("here"));
        if (!before.isEmpty()) {
            QVERIFY(writeFile("here/f.ini", before));
            setRights("here/f.ini", file);
        }
        setRights("here", directory);
        QElapsedTimer timer;
        timer.start();
        const QVector<Reading> readings
            = readInSecondProcess(asUser({ "--set", "a/c=2", "here/f.ini" }));
        QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
        setRights("here", 7);
        setRights("here/f.ini", 6);
        QCOMPARE(readings.size(), 1);
        QCOMPARE(readings.constFirst().messages, QStringList());
        QTEST(filesIn("here"), "files");
        QTEST(fileContent("here/f.ini"), "after");
        const QByteArray copy = fileContent("here/f.ini.bak");
        QVERIFY2(copy.isNull() || copy == before, copy.constData());
    }

    void savesThroughLinksWhereItMay_data()
    {
        QTest::addColumn<int>("linkDirectory");
        QTest::addColumn<int>("targetDirectory");
        QTest::addColumn<bool>("isSaved");
        QTest::newRow("everything is allowed") << 7 << 7 << true;
        QTest::newRow("the target's directory is to be read only") << 7 << 5 << false;
        QTest::newRow("the link's directory is to be read only") << 5 << 7 << false;
    }

    void savesThroughLinksWhereItMay()
    {
        QFETCH(int, linkDirectory);
        QFETCH(int, targetDirectory);
        QFETCH(bool, isSaved);
        setRights(".", 7);
        QVERIFY(QDir().mkdir("here"));
        QVERIFY(writeFile("there/f.ini", "[a]\nb=1\n"));
        setRights("there/f.ini", 6);
        QVERIFY(QFile::link(QFileInfo("there/f.ini").absoluteFilePath(), "here/f.ini"));
        setRights("here", linkDirectory);
        setRights("there", targetDirectory);
        const QVector<Reading> readings
            = readInSecondProcess(asUser({ "--set", "a/c=2", "here/f.ini" }));
        setRights("here", 7);
        setRights("there", 7);
        QCOMPARE(readings.size(), 1);
        // What could not be saved is not told to others in that process either.
        QCOMPARE(readings.constFirst().keys,
                 isSaved ? (QStringList { "a/b", "a/c" }) : QStringList { "a/b" });
        QVERIFY(QFileInfo("here/f.ini").isSymLink());
        QCOMPARE(fileContent("there/f.ini"),
                 QByteArray(isSaved ? "[a]\nb=1\nc=2\n" : "[a]\nb=1\n"));
        QCOMPARE(filesIn("here"), QStringList { "f.ini" });
    }
};

QTEST_GUILESS_MAIN(TestVIniSettingsBadFiles)
#include "tst_vinisettings_badfiles.moc"
