// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/AUTH_SET>

#include "support/directorytest.h"
#include "support/moduleitems.h"
#include "support/testfiles.h"

#include <QDate>
#include <QDateTime>
#include <QLocale>
#include <QSettings>
#include <QTest>
#include <QTextCodec>

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

/// Runs @p action within one day, so that the name of today's log file holds still.
template <typename Action> QString withinOneDay(Action action)
{
    QDate before;
    do {
        before = QDate::currentDate();
        action();
    } while (QDate::currentDate() != before);
    return before.toString("yyyy-MM-dd");
}

QStringList logLines(const QString &path)
{
    QStringList lines = QString::fromUtf8(fileContent(path)).split('\n');
    lines.removeLast();
    return lines;
}

QStringList messages(const QStringList &lines)
{
    QStringList result;
    for (const QString &line : lines)
        result.append(line.mid(QString("yyyy-MM-dd hh:mm:ss ").size()));
    return result;
}

/// The lines of today's log, in the current directory, after @p action has logged.
template <typename Action> QStringList linesLoggedBy(const AUTH_SET &set, Action action)
{
    QStringList lines;
    withinOneDay([&] {
        QDir("log").removeRecursively();
        action();
        lines = logLines(set.filepath_log());
    });
    return lines;
}

QString currentName()
{
    return QSettings("Config/update.ini", QSettings::IniFormat).value("Current/Name").toString();
}

} // namespace

class TestAuthSetEnvironment : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void paths_data();
    void paths();
    void pathsFollowTheCurrentDirectory();
    void logsOneLinePerCall();
    void stampsLinesWithLocalTime();
    void logsAnyText_data();
    void logsAnyText();
    void logsWhereTheProcessIs();
    void keepsEarlierLines();
    void dropsWhatCannotBeLogged_data();
    void dropsWhatCannotBeLogged();
    void recordsTheApplication_data();
    void recordsTheApplication();
    void recordsAtConstruction();
    void recordsInUtf8();
    void keepsOtherKeysOfTheUpdateFile();
    void survivesAnUpdateFileThatCannotBeWritten();
    void localeOfLanguage_data();
    void localeOfLanguage();
    void localeOfSystem();
    void languageOfLocale_data();
    void languageOfLocale();
};

void TestAuthSetEnvironment::paths_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("ordinary name") << "App";
    QTest::newRow("the name is used as it is") << "My App: 测试";
    QTest::newRow("empty name") << "";
}

void TestAuthSetEnvironment::paths()
{
    QFETCH(QString, name);
    const AUTH_SET set = application(name);
    QString logFile;
    const QString today = withinOneDay([&] { logFile = set.filepath_log(); });
    QCOMPARE(logFile, m_directory->path() + "/log/" + today + '_' + name + ".log");
    QCOMPARE(set.filepath_update_inf(), m_directory->path() + "/Config/update.ini");
#ifdef Q_OS_WIN
    QCOMPARE(set.filepath_updater(), m_directory->path() + "/Update/Update.bat");
#else
    QCOMPARE(set.filepath_updater(), m_directory->path() + "/Update/Update.sh");
#endif
    // Asking for a path makes nothing.
    QCOMPARE(filesIn("."), QStringList());
}

void TestAuthSetEnvironment::pathsFollowTheCurrentDirectory()
{
    const AUTH_SET set = application("App");
    QVERIFY(QDir().mkdir("other"));
    QVERIFY(QDir::setCurrent("other"));
    QVERIFY(set.filepath_updater().startsWith(QDir::currentPath() + '/'));
    QVERIFY(QDir::currentPath().endsWith("/other"));
}

void TestAuthSetEnvironment::logsOneLinePerCall()
{
    const AUTH_SET set = application("App");
    const QString today = withinOneDay([&] {
        QDir("log").removeRecursively();
        set.log("first");
        set.log("second");
    });
    QCOMPARE(QDir("log").entryList(QDir::Files), QStringList { today + "_App.log" });
    QCOMPARE(messages(logLines("log/" + today + "_App.log")), (QStringList { "first", "second" }));
}

void TestAuthSetEnvironment::stampsLinesWithLocalTime()
{
    const AUTH_SET set = application("App");
    const QString format = "yyyy-MM-dd hh:mm:ss";
    QString before;
    QString after;
    const QStringList lines = linesLoggedBy(set, [&] {
        before = QDateTime::currentDateTime().toString(format);
        set.log("message");
        after = QDateTime::currentDateTime().toString(format);
    });
    const QString line = lines.value(0);
    const QString stamp = line.left(format.size());
    QVERIFY2(before <= stamp && stamp <= after, qPrintable(line));
    QVERIFY(QDateTime::fromString(stamp, format).isValid());
    QCOMPARE(line.mid(format.size()), QString(" message"));
}

void TestAuthSetEnvironment::logsAnyText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("ordinary") << "Project opened";
    QTest::newRow("in UTF-8") << "已打开 Ω";
    QTest::newRow("spaces are kept") << "  a  b ";
    QTest::newRow("empty") << "";
}

void TestAuthSetEnvironment::logsAnyText()
{
    QFETCH(QString, text);
    const AUTH_SET set = application("App");
    // The log is UTF-8 whatever the locale says.
    QTextCodec *codec = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    const QStringList lines = linesLoggedBy(set, [&] { set.log(text); });
    QTextCodec::setCodecForLocale(codec);
    QCOMPARE(messages(lines), QStringList { text });
}

void TestAuthSetEnvironment::logsWhereTheProcessIs()
{
    const AUTH_SET set = application("App");
    QStringList first = linesLoggedBy(set, [&] { set.log("here"); });
    QVERIFY(QDir().mkdir("other"));
    QVERIFY(QDir::setCurrent("other"));
    const QStringList second = linesLoggedBy(set, [&] { set.log("there"); });
    QCOMPARE(messages(first), QStringList { "here" });
    QCOMPARE(messages(second), QStringList { "there" });
    QCOMPARE(QDir("../log").entryList(QDir::Files).size(), 1);
}

void TestAuthSetEnvironment::keepsEarlierLines()
{
    const AUTH_SET set = application("App");
    const QStringList lines = linesLoggedBy(set, [&] {
        QVERIFY(writeFile(set.filepath_log(), "2000-01-01 00:00:00 from another run\n"));
        set.log("from this run");
    });
    QCOMPARE(messages(lines), (QStringList { "from another run", "from this run" }));
}

void TestAuthSetEnvironment::dropsWhatCannotBeLogged_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::newRow("a file where the directory is to be") << "log";
    QTest::newRow("a directory where the file is to be") << "log/file/";
    QTest::newRow("a name that leads to a missing directory") << "name";
}

void TestAuthSetEnvironment::dropsWhatCannotBeLogged()
{
    QFETCH(QString, obstacle);
    const AUTH_SET set = application(obstacle == "name" ? "a/b" : "App");
    if (obstacle == "name") {
        set.log("lost");
        QCOMPARE(filesIn("log"), QStringList());
    } else if (obstacle == "log") {
        QVERIFY(writeFile("log", "not a directory"));
        set.log("lost");
        QCOMPARE(fileContent("log"), QByteArray("not a directory"));
    } else {
        QVERIFY(QDir().mkpath(set.filepath_log()));
        set.log("lost");
        QCOMPARE(QFileInfo(set.filepath_log()).isDir(), true);
        QCOMPARE(QDir(set.filepath_log()).isEmpty(), true);
    }
}

void TestAuthSetEnvironment::recordsTheApplication_data()
{
    QTest::addColumn<QString>("application");
    QTest::addColumn<QStringList>("modules");
    QTest::addColumn<bool>("written");

    QTest::newRow("with an Update module") << "App" << QStringList { "a", "Update" } << true;
    QTest::newRow("with two of them") << "App" << QStringList { "Update", "Update" } << true;
    QTest::newRow("without") << "App" << QStringList { "a" } << false;
    QTest::newRow("the module's name in another case")
        << "App" << QStringList { "update" } << false;
    QTest::newRow("only the plain name counts") << "App" << QStringList { "Upd" } << false;
    QTest::newRow("Member") << "Member" << QStringList { "Update" } << false;
    QTest::newRow("Membership") << "Membership" << QStringList { "Update" } << false;
    QTest::newRow("an empty name") << "" << QStringList { "Update" } << true;
    QTest::newRow("MEMBER-SHIP_") << "MEMBER-SHIP_" << QStringList { "Update" } << false;
    QTest::newRow("General") << "General" << QStringList { "Update" } << false;
    QTest::newRow("general-_") << "general-_" << QStringList { "Update" } << false;
    QTest::newRow("a name that only begins like one")
        << "Generals" << QStringList { "Update" } << true;
    QTest::newRow("spaces count") << "Gene ral" << QStringList { "Update" } << true;
}

void TestAuthSetEnvironment::recordsTheApplication()
{
    QFETCH(QString, application);
    QFETCH(QStringList, modules);
    QFETCH(bool, written);
    QVector<AUTH_INF> items = modulesNamed(modules);
    for (AUTH_INF &item : items) {
        if (item.name == "Upd")
            item.name_tr = "Update";
    }
    const AUTH_SET set(application, "2.5", items);
    QDir("Config").removeRecursively();
    set.write_update();

    QCOMPARE(QFile::exists("Config/update.ini"), written);
    QSettings file("Config/update.ini", QSettings::IniFormat);
    QCOMPARE(file.allKeys(),
             written ? QStringList({ "Current/Name", "Current/Version" }) : QStringList());
    QCOMPARE(file.value("Current/Name").toString(), written ? application : QString());
    QCOMPARE(file.value("Current/Version").toString(), written ? QString("2.5") : QString());
}

void TestAuthSetEnvironment::recordsAtConstruction()
{
    AUTH_SET set("App", "1.0", modulesNamed({ "a" }));
    QCOMPARE(QFile::exists("Config/update.ini"), false);
    // A module that is added later is not looked for until the host asks.
    set.append(modulesNamed({ "Update" }));
    QCOMPARE(QFile::exists("Config/update.ini"), false);
    set.write_update();
    QCOMPARE(currentName(), QString("App"));

    const AUTH_SET other("Other", "1.0", modulesNamed({ "Update" }));
    QCOMPARE(currentName(), QString("Other"));
}

void TestAuthSetEnvironment::recordsInUtf8()
{
    const AUTH_SET set("应用", "1.0", modulesNamed({ "Update" }));
    QVERIFY2(fileContent("Config/update.ini").contains(QByteArray("Name=应用")),
             fileContent("Config/update.ini").constData());
}

void TestAuthSetEnvironment::keepsOtherKeysOfTheUpdateFile()
{
    QVERIFY(
        writeFile("Config/update.ini", "[Current]\nName=Old\nServer=here\n\n[Other]\nkey=value\n"));
    const AUTH_SET set("App", "3.0", modulesNamed({ "Update" }));
    QSettings settings("Config/update.ini", QSettings::IniFormat);
    QCOMPARE(settings.value("Current/Name").toString(), QString("App"));
    QCOMPARE(settings.value("Current/Version").toString(), QString("3.0"));
    QCOMPARE(settings.value("Current/Server").toString(), QString("here"));
    QCOMPARE(settings.value("Other/key").toString(), QString("value"));
}

void TestAuthSetEnvironment::survivesAnUpdateFileThatCannotBeWritten()
{
    QVERIFY(QDir().mkpath("Config/update.ini"));
    const AUTH_SET set("App", "3.0", modulesNamed({ "Update" }));
    QCOMPARE(set.model_count(), 1);
    QCOMPARE(QFileInfo("Config/update.ini").isDir(), true);
}

void TestAuthSetEnvironment::localeOfLanguage_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("expected");
    QTest::newRow("1 is Chinese") << 1 << "zh_CN";
    QTest::newRow("0 is English") << 0 << "en";
    QTest::newRow("2 is English") << 2 << "en";
    QTest::newRow("7 is English") << 7 << "en";
    QTest::newRow("-1 is English") << -1 << "en";
}

void TestAuthSetEnvironment::localeOfLanguage()
{
    QFETCH(int, id);
    QTEST(AUTH_SET().language_local(id), "expected");
}

void TestAuthSetEnvironment::localeOfSystem()
{
    QCOMPARE(AUTH_SET().language_local(), QLocale::system().name());
}

void TestAuthSetEnvironment::languageOfLocale_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("expected");
    QTest::newRow("Chinese") << "zh_CN" << 1;
    QTest::newRow("English") << "en" << 0;
    QTest::newRow("case matters") << "zh_cn" << 0;
    QTest::newRow("unknown") << "fr" << 0;
    QTest::newRow("empty") << "" << 0;
}

void TestAuthSetEnvironment::languageOfLocale()
{
    QFETCH(QString, name);
    QTEST(AUTH_SET().language_ID(name), "expected");
}

QTEST_GUILESS_MAIN(TestAuthSetEnvironment)
#include "tst_auth_set_environment.moc"
