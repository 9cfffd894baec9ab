// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "support/temporarycurrentdirectory.h"
#include "support/testfiles.h"

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

struct Ending
{
    int exitCode = -1;
    QString output;
    QString complaint;
};

/// Runs a program, the workbench where none is named, to its end in the directory @p path.
Ending run(const QString &path, const QStringList &arguments,
           const QString &program = QStringLiteral(WORKBENCH_EXECUTABLE))
{
    QProcess process;
    process.setWorkingDirectory(path);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), path); // or Qt complains
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished()) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
             QString::fromUtf8(process.readAllStandardOutput()),
             QString::fromUtf8(process.readAllStandardError()) };
}

QString modulesAdvice()
{
    return "\nName a directory with module files (--modules), or start with the modules that were "
           "compiled in (--compiled).\n";
}

/// The user who owns the directory @p path and whom permissions bind: another one for the
/// superuser.
QString boundOwner(const QString &path)
{
#ifdef Q_OS_UNIX
    if (geteuid() == 0 && chown(qPrintable(path), 65534, 65534) == 0)
        return "65534";
#endif
    return {};
}

} // namespace

class tst_CommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void help();
    void version();
    void complaints_data();
    void complaints();
    void fileWithoutModule();
    void modulesThatMayNotBeRead_data();
    void modulesThatMayNotBeRead();
    void modulesOfAnotherDirectory();
    void unknownTaskListsTheKnownOnes_data();
    void unknownTaskListsTheKnownOnes();
    void chosenTaskOpensTheWindowAtOnce_data();
    void chosenTaskOpensTheWindowAtOnce();
};

void tst_CommandLine::help()
{
    const QTemporaryDir directory;
    for (const char *option : { "--help", "-h" }) {
        const Ending ending = run(directory.path(), { QLatin1String(option) });
        QCOMPARE(ending.exitCode, 0);
        QCOMPARE(ending.complaint, QString());
        for (const char *text :
             { "--language", "--task", "--modules", "--compiled", "Exit codes: 0 for done" })
            QVERIFY2(ending.output.contains(QLatin1String(text)), qPrintable(ending.output));
    }
    QVERIFY(QDir(directory.path()).isEmpty());
}

void tst_CommandLine::version()
{
    const QTemporaryDir directory;
    const Ending ending = run(directory.path(), { QStringLiteral("--version") });
    QCOMPARE(ending.exitCode, 0);
    QCOMPARE(ending.output, QStringLiteral("Workbench " WORKBENCH_VERSION "\n"));
    QCOMPARE(ending.complaint, QString());
}

void tst_CommandLine::complaints_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("complaint");

    const auto list
        = [](const char *text) { return QString::fromLatin1(text).split(QLatin1Char('|')); };
    QTest::newRow("unknown option") << list("--colour") << 2 << "Unknown option 'colour'.\n";
    QTest::newRow("option without value")
        << list("--task") << 2 << "Missing value after '--task'.\n";
    QTest::newRow("empty task") << list("--task=") << 2 << "--task needs a standard mode name.\n";
    QTest::newRow("unknown language") << list("--language|fr") << 2 << "Unknown language: fr\n";
    QTest::newRow("empty language") << list("--language=") << 2 << "Unknown language: \n";
    QTest::newRow("argument without option")
        << list("Cantilever") << 2 << "Unexpected argument: Cantilever\n";
    QTest::newRow("empty directory name")
        << list("--modules=") << 2 << "--modules needs a directory.\n";
    QTest::newRow("both kinds of modules")
        << list("--compiled|--modules|.") << 2 << "--modules and --compiled exclude each other.\n";
    QTest::newRow("missing directory")
        << list("--modules|missing") << 1 << "There is no directory \"missing\"." + modulesAdvice();
    QTest::newRow("directory without modules")
        << list("--modules|.") << 1
        << "The directory \".\" holds no files *.ini." + modulesAdvice();
}

void tst_CommandLine::complaints()
{
    QFETCH(QStringList, arguments);
    const QTemporaryDir directory;

    const Ending ending = run(directory.path(), arguments);

    QTEST(ending.exitCode, "exitCode");
    QTEST(ending.complaint, "complaint");
    QCOMPARE(ending.output, QString());
    QVERIFY(QDir(directory.path()).isEmpty());
}

void tst_CommandLine::fileWithoutModule()
{
    const TemporaryCurrentDirectory directory;
    QVERIFY(writeFile("notes.ini", "[Notes]\nname=none\n"));

    const Ending ending = run(directory.path(), { "--modules", "." });

    QCOMPARE(ending.exitCode, 1);
    QVERIFY2(ending.complaint.startsWith("The file \"./notes.ini\" holds no module: "),
             qPrintable(ending.complaint));
    QCOMPARE(filesIn("."), QStringList("notes.ini"));
}

void tst_CommandLine::modulesThatMayNotBeRead_data()
{
    QTest::addColumn<int>("directoryRights");
    QTest::addColumn<int>("fileRights");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("complaint");

    const QString file = "The file \"mine/wall.ini\" cannot be read." + modulesAdvice();
    const QString directory = "The directory \"mine\" cannot be read." + modulesAdvice();
    QTest::newRow("everything may be read") << 5 << 4 << 0 << "";
    QTest::newRow("file that may not be read") << 5 << 0 << 1 << file;
    QTest::newRow("file that may only be written") << 7 << 2 << 1 << file;
    QTest::newRow("directory that may not be read") << 1 << 4 << 1 << directory;
    QTest::newRow("directory that may not be searched") << 4 << 4 << 1 << directory;
    QTest::newRow("directory that may not be touched") << 0 << 4 << 1 << directory;
}

void tst_CommandLine::modulesThatMayNotBeRead()
{
#ifndef Q_OS_UNIX
    QSKIP("Permissions of this system say nothing about what a process may do.");
#endif
    QFETCH(int, directoryRights);
    QFETCH(int, fileRights);
    const TemporaryCurrentDirectory directory;
    const QString user = boundOwner(directory.path());
    QVERIFY(QDir().mkdir("mine"));
    QVERIFY(QFile::copy(WORKBENCH_MODULES "/40-plane-wall.ini", "mine/wall.ini"));
    setRights("mine/wall.ini", fileRights);
    setRights("mine", directoryRights);

    const Ending ending = run(directory.path(), { user, "--modules", "mine" }, WORKBENCH_AS_USER);
    setRights("mine", 7);

    QTEST(ending.complaint, "complaint");
    QTEST(ending.exitCode, "exitCode");
    QCOMPARE(ending.output, QString());
}

/// With one module the list of tasks is that of its modes.
void tst_CommandLine::modulesOfAnotherDirectory()
{
    const TemporaryCurrentDirectory directory;
    QVERIFY(QDir().mkdir("mine"));
    QVERIFY(QFile::copy(WORKBENCH_MODULES "/40-plane-wall.ini", "mine/wall.ini"));

    const Ending ending = run(directory.path(), { "--modules", "mine", "--task", "none" });

    QCOMPARE(ending.exitCode, 1);
    QCOMPARE(ending.complaint,
             QStringLiteral("Unknown task: none\n"
                            "Known tasks:\n  Workbench:Heat:Steady\n"
                            "  Workbench:Heat:With convection\n"));
}

void tst_CommandLine::unknownTaskListsTheKnownOnes_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("modules from files") << QStringList();
    QTest::newRow("compiled modules") << QStringList { "--compiled" };
}

void tst_CommandLine::unknownTaskListsTheKnownOnes()
{
    QFETCH(QStringList, options);
    const QTemporaryDir directory;

    const Ending ending
        = run(directory.path(), options + QStringList { "--task", "Workbench:Statics:Buckling" });

    QCOMPARE(ending.exitCode, 1);
    QCOMPARE(ending.output, QString());
    const QStringList lines = ending.complaint.split(QLatin1Char('\n'));
    QCOMPARE(lines.value(0), QStringLiteral("Unknown task: Workbench:Statics:Buckling"));
    QCOMPARE(lines.value(1), QStringLiteral("Known tasks:"));
    QCOMPARE(lines.value(2), QStringLiteral("  Workbench:Statics:Cantilever"));
    QCOMPARE(lines.size(), 13); // ten tasks, and nothing after the last line end
}

void tst_CommandLine::chosenTaskOpensTheWindowAtOnce_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("task");

    const QString task = QStringLiteral("--task");
    QTest::newRow("plain name") << QStringList { task, QStringLiteral("Workbench:Heat:Steady") }
                                << "Workbench:Heat:Steady";
    QTest::newRow("translated name")
        << QStringList { QStringLiteral("--language"), QStringLiteral("zh_CN"), task,
                         QStringLiteral("Workbench:传热:稳态") }
        << "Workbench:Heat:Steady";
    QTest::newRow("compiled modules")
        << QStringList { task, "Workbench:Heat:Steady", "--compiled" } << "Workbench:Heat:Steady";
    QTest::newRow("compiled modules, translated name")
        << QStringList { "--compiled", "--language", "zh_CN", task, "Workbench:传热:稳态" }
        << "Workbench:Heat:Steady";
}

void tst_CommandLine::chosenTaskOpensTheWindowAtOnce()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, task);
    const TemporaryCurrentDirectory directory;
    QVERIFY(directory.isUsable());

    QProcess process;
    process.start(QStringLiteral(WORKBENCH_EXECUTABLE), arguments);
    QVERIFY(process.waitForStarted());
    // The window writes this line, so nothing asks for a task any more.
    const auto log = [] {
        const QDir logs(QStringLiteral("log"));
        const QStringList files = logs.entryList(QDir::Files);
        return files.isEmpty() ? QByteArray() : fileContent(logs.filePath(files.first()));
    };
    const QString line = QStringLiteral(" Task: %1\n").arg(task);
    QTRY_VERIFY_WITH_TIMEOUT(process.state() == QProcess::NotRunning
                                 || log().contains(line.toUtf8()),
                             30000);
    QVERIFY2(log().contains(line.toUtf8()), process.readAllStandardError().constData());
    QCOMPARE(process.state(), QProcess::Running);

    process.kill();
    QVERIFY(process.waitForFinished());
    QVERIFY(QFile::exists(QStringLiteral("Config/update.ini")));
}

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_commandline.moc"
