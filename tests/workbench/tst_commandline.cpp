// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "support/temporarycurrentdirectory.h"

namespace {

struct Ending
{
    int exitCode = -1;
    QString output;
    QString complaint;
};

/// Runs the workbench to its end in the directory @p path.
Ending run(const QString &path, const QStringList &arguments)
{
    QProcess process;
    process.setWorkingDirectory(path);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), path); // or Qt complains
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(WORKBENCH_EXECUTABLE), arguments);
    if (!process.waitForFinished()) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
             QString::fromUtf8(process.readAllStandardOutput()),
             QString::fromUtf8(process.readAllStandardError()) };
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
        for (const char *text : { "--language", "--task", "Exit codes: 0 for done" })
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

void tst_CommandLine::unknownTaskListsTheKnownOnes()
{
    const QTemporaryDir directory;

    const Ending ending
        = run(directory.path(),
              { QStringLiteral("--task"), QStringLiteral("Workbench:Statics:Buckling") });

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
