// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The log, the paths, the update information file and the language of a registry.

#include <Kelto/AUTH_SET>

#include "support/directorytest.h"
#include "support/moduleitems.h"
#include "support/secondregistry.h"
#include "support/testfiles.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>
#include <QTest>
#include <QTextCodec>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

QVector<AUTH_INF> modulesNamed(const QStringList &names)
{
    QVector<AUTH_INF> items;
    for (const QString &name : names)
        items.append(plainModule(name, "g", { "m" }));
    return items;
}

AUTH_SET application(const QString &name)
{
    return AUTH_SET(name, "1.0", modulesNamed({ "a" }));
}

/// The messages of today's log, in the current directory, after @p action has logged within one
/// day, so that the name of the file holds still.
template <typename Action> QStringList messagesLoggedBy(const AUTH_SET &set, Action action)
{
    QString path;
    QStringList lines;
    do {
        path = set.filepath_log();
        QDir("log").removeRecursively();
        action();
        const QByteArray bytes = fileContent(path);
        lines = QString::fromUtf8(bytes.constData(), bytes.size()).split('\n');
    } while (set.filepath_log() != path);
    if (lines.takeLast() != QString())
        return { "the last line has no end" };
    return lines.replaceInStrings(QRegularExpression("^[-0-9]{10} [:0-9]{8} "), "");
}

QString now()
{
    return QLocale::c().toString(QDateTime::currentDateTime(), "yyyy-MM-dd hh:mm:ss");
}

} // namespace

class TestAuthSetEnvironment : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    // Where machines run on world time, local time would be no other.
    void initTestCase() { qputenv("TZ", "XYZ-05:30"); }

    void paths()
    {
        for (const char *name : { "App", "My App: 测试", "" }) {
            const AUTH_SET set = application(name);
            // Paths follow the process.
            QVERIFY(QDir().mkpath("other") && QDir::setCurrent("other"));
            const QString directory = QDir::currentPath();
            QString today;
            QString log;
            do {
                today = now().left(10);
                log = set.filepath_log();
            } while (today != now().left(10));
            QCOMPARE(log, directory + "/log/" + today + '_' + name + ".log");
            QCOMPARE(set.filepath_update_inf(), directory + "/Config/update.ini");
#ifdef Q_OS_WIN
            QCOMPARE(set.filepath_updater(), directory + "/Update/Update.bat");
#else
            QCOMPARE(set.filepath_updater(), directory + "/Update/Update.sh");
#endif
            // Asking for a path makes nothing.
            QCOMPARE(filesIn("."), QStringList());
        }
    }

    void logsOneLinePerCall()
    {
        const AUTH_SET set = application("App");
        const QStringList messages = messagesLoggedBy(set, [&] {
            QVERIFY(writeFile(set.filepath_log(), "2000-01-01 00:00:00 from another run\n"));
            set.log("first");
            set.log("second");
        });
        QCOMPARE(messages, (QStringList { "from another run", "first", "second" }));
        QCOMPARE(filesIn("log").size(), 1);
    }

    void stampsLinesWithLocalTime()
    {
        const AUTH_SET set = application("App");
        // In another second each time.
        for (int i = 0; i < 2; ++i) {
            const QString before = now();
            QTRY_VERIFY(now() != before);
            const QString earliest = now();
            messagesLoggedBy(set, [&] { set.log("message"); });
            const QString line = QString::fromUtf8(fileContent(set.filepath_log()));
            const QString stamp = line.left(earliest.size());
            QVERIFY2(earliest <= stamp && stamp <= now(), qPrintable(line));
            QCOMPARE(line.mid(earliest.size()), QString(" message\n"));
        }
    }

    void writesDatesInAsciiDigits_data()
    {
        QTest::addColumn<QString>("locale");
        for (const char *locale : { "ar_EG", "fa_IR", "mr_IN", "bn_BD" })
            QTest::newRow(locale) << QString(locale) + ".UTF-8";
    }
    void writesDatesInAsciiDigits()
    {
        QFETCH(QString, locale);
        QCOMPARE(secondRegistry({ "--log", "text ٣" }, locale).messages, QStringList());
        QCOMPARE(filesIn("log").size(), 1);
        const QString name = filesIn("log").constFirst();
        const QString line = QString::fromUtf8(fileContent("log/" + name));
        const QString date = "[0-9]{4}-[0-9]{2}-[0-9]{2}";
        QVERIFY2(QRegularExpression('^' + date + "_App\\.log$").match(name).hasMatch(),
                 qPrintable(name));
        QVERIFY2(QRegularExpression('^' + date + " [0-9]{2}:[0-9]{2}:[0-9]{2} text ٣\n$")
                     .match(line)
                     .hasMatch(),
                 qPrintable(line));
    }

    void logsAnyText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("in UTF-8") << "已打开 Ω 😀";
        QTest::newRow("spaces are kept") << "  a  b ";
        QTest::newRow("empty") << "";
        QTest::newRow("long") << QString(100000, 'x');
        QTest::newRow("control characters") << QString("a\x1b[2J\nb\r") + QChar(0) + "c\n";
    }
    void logsAnyText()
    {
        QFETCH(QString, text);
        const AUTH_SET set = application("App");
        // The log is UTF-8 whatever the locale says.
        QTextCodec *codec = QTextCodec::codecForLocale();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
        const QStringList messages = messagesLoggedBy(set, [&] { set.log(text); });
        QTextCodec::setCodecForLocale(codec);
        QCOMPARE(messages.join('\n'), text);
    }

#ifdef Q_OS_UNIX
    void keepsTheLinesOfSeveralProcessesWhole()
    {
        const AUTH_SET set = application("App");
        const int lineCount = 25;
        QStringList expected;
        const QStringList messages = messagesLoggedBy(set, [&] {
            QVector<pid_t> processes;
            expected.clear();
            for (const char letter : { 'a', 'b', 'c', 'd' }) {
                const QString text(300000, QLatin1Char(letter));
                for (int i = 0; i < lineCount; ++i)
                    expected.append(text);
                processes.append(fork());
                if (processes.last() == 0) {
                    for (int i = 0; i < lineCount; ++i)
                        set.log(text);
                    _exit(0);
                }
            }
            for (const pid_t process : qAsConst(processes))
                QCOMPARE(waitpid(process, nullptr, 0), process);
        });
        QStringList sorted = messages;
        sorted.sort();
        QCOMPARE(sorted.size(), expected.size());
        QVERIFY(sorted == expected);
    }

    void writesNothingIntoAPipe()
    {
        const AUTH_SET set = application("App");
        QVERIFY(QDir().mkdir("log"));
        const QByteArray path = QFile::encodeName(set.filepath_log());
        QCOMPARE(mkfifo(path.constData(), 0666), 0);
        const int reader = open(path.constData(), O_RDONLY | O_NONBLOCK);
        QVERIFY(reader >= 0);
        set.log("with a reader");
        char byte = 0;
        const auto count = read(reader, &byte, 1);
        close(reader);
        QCOMPARE(count, 0);
        set.log("without a reader, for whom it would have to wait");
    }

    // The superuser could write below "/".
    void writesNothingWhereTheDirectoryIsGone()
    {
        AUTH_SET set("App", "1.0", modulesNamed({ "Update" }));
        QVERIFY(QDir("Config").removeRecursively());
        const QString gone = QDir::currentPath() + "/gone";
        QVERIFY(QDir().mkdir(gone) && QDir::setCurrent(gone) && QDir().rmdir(gone));
        QCOMPARE(set.filepath_log() + set.filepath_updater() + set.filepath_update_inf(), "");
        set.log("message");
        set.write_update();
        set.setValueInSet("a/x", 1);
        QCOMPARE(set.value_set("a/x"), QVariant(1));
        QVERIFY(!QFile::exists("/log") && !QFile::exists("/Config"));
        QCOMPARE(AUTH_SET("App", "1.0", {}).model_count(), 0);
        QVERIFY(QDir::setCurrent(QFileInfo(gone).path()));
        QCOMPARE(filesIn("."), QStringList());
    }
#endif

    void logsWhereTheProcessIs()
    {
        const AUTH_SET set = application("App");
        QCOMPARE(messagesLoggedBy(set, [&] { set.log("here"); }), QStringList { "here" });
        QVERIFY(QDir().mkdir("other"));
        QVERIFY(QDir::setCurrent("other"));
        QCOMPARE(messagesLoggedBy(set, [&] { set.log("there"); }), QStringList { "there" });
        QVERIFY(fileContent("../log/" + filesIn("../log").constFirst()).endsWith(" here\n"));
    }

    void dropsWhatCannotBeLogged()
    {
        application("a/b").log("a name that leads to a missing directory");
        QCOMPARE(filesIn("log"), QStringList());
        const AUTH_SET set = application("App");
        QVERIFY(QDir().mkpath(set.filepath_log()));
        set.log("a directory where the file is to be");
        QVERIFY(QDir(set.filepath_log()).isEmpty());
        QVERIFY(QDir("log").removeRecursively());
        QVERIFY(writeFile("log", "not a directory"));
        set.log("a file where the directory is to be");
        QCOMPARE(fileContent("log"), QByteArray("not a directory"));
    }

    void recordsTheApplication_data()
    {
        QTest::addColumn<QString>("application");
        QTest::addColumn<QStringList>("modules");
        QTest::addColumn<bool>("written");
        const auto row = [](const char *name, const char *application, const QStringList &modules,
                            bool written) {
            QTest::newRow(name) << QString(application) << modules << written;
        };
        row("with two Update modules", "App", { "a", "Update", "Update" }, true);
        row("without a module of that name", "App", { "a" }, false);
        row("the module's name in another case", "App", { "update" }, false);
        row("only the plain name counts", "App", { "translated" }, false);
        row("an empty name", "", { "Update" }, true);
        row("MEMBER-SHIP_", "MEMBER-SHIP_", { "Update" }, false);
        row("Member", "Member", { "Update" }, false);
        row("General", "General", { "Update" }, false);
        row("general-_", "general-_", { "Update" }, false);
        row("a name that only begins like one", "Generals", { "Update" }, true);
        row("spaces count", "Gene ral", { "Update" }, true);
    }
    void recordsTheApplication()
    {
        QFETCH(QString, application);
        QFETCH(QStringList, modules);
        QFETCH(bool, written);
        QVector<AUTH_INF> items = modulesNamed(modules);
        items.last().name_tr = "Update";
        const QByteArray expected = "[Current]\nName=" + application.toUtf8() + "\nVersion=2.5\n";
        const AUTH_SET set(application, "2.5", items);
        QCOMPARE(fileContent("Config/update.ini"), written ? expected : QByteArray());
        QDir("Config").removeRecursively();
        set.write_update();
        QCOMPARE(fileContent("Config/update.ini"), written ? expected : QByteArray());
        QCOMPARE(filesIn("."), written ? QStringList { "Config" } : QStringList());
    }

    void keepsOtherKeysOfTheUpdateFile()
    {
        QVERIFY(writeFile("Config/update.ini",
                          "[Current]\nName=Old\nServer=here\n\n[Other]\nkey=value\n"));
        AUTH_SET set("应用", "3.0", modulesNamed({ "a" }));
        // A module that is added later is not looked for until the host asks.
        set.append(modulesNamed({ "Update" }));
        QVERIFY(fileContent("Config/update.ini").contains("Name=Old"));
        set.write_update();
        QCOMPARE(fileContent("Config/update.ini"),
                 QByteArray("[Current]\nName=应用\nServer=here\nVersion=3.0\n\n"
                            "[Other]\nkey=value\n"));
    }

    void mapsLanguages()
    {
        const AUTH_SET set;
        QCOMPARE(set.language_local(1), QString("zh_CN"));
        for (int id : { 0, 2, 7, -1 })
            QCOMPARE(set.language_local(id), QString("en"));
        QCOMPARE(set.language_ID("zh_CN"), 1);
        for (const char *name : { "en", "zh_cn", "fr", "" })
            QCOMPARE(set.language_ID(name), 0);
        QCOMPARE(set.language_local(), QLocale::system().name());
    }
};

QTEST_GUILESS_MAIN(TestAuthSetEnvironment)
#include "tst_auth_set_environment.moc"
