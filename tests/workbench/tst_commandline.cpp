// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <QProcess>
#include <QSettings>
#include <QtTest>

#include "support/directorytest.h"
#include "support/testfiles.h"

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

QString advice()
{
    return "\nName another directory with module files, or start without --modules, with "
           "those that were compiled in.\n";
}

/// The user who owns the current directory and whom permissions bind: another one for the
/// superuser.
QString boundOwner()
{
#ifdef Q_OS_UNIX
    if (geteuid() == 0 && chown(".", 65534, 65534) == 0)
        return "65534";
#endif
    return {};
}

} // namespace

/// The workbench as a process, each in a directory of its own.
class tst_CommandLine : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        DirectoryTest::init();
        if (QTest::currentTestFailed())
            return;
        m_process.setProcessEnvironment(QProcessEnvironment());
        m_process.setWorkingDirectory({});
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(QDir::currentPath())); // or Qt complains
    }

    void help()
    {
        run({ "--help" });
        QCOMPARE(m_process.exitCode(), 0);
        for (const char *text : { "--language", "--task", "--modules", "--own-directory",
                                  "[project]", "Exit codes: 0 for done" })
            QVERIFY2(m_output.contains(text), qPrintable(m_output));
        run({ "--version" });
        QCOMPARE(m_process.exitCode(), 0);
        QCOMPARE(m_output, QString("Workbench " WORKBENCH_VERSION "\n"));
        QVERIFY(QDir().isEmpty());
    }

    void complaints_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("complaint");
        using Arguments = QStringList;
        QTest::newRow("unknown option")
            << Arguments("--colour") << 2 << "Unknown option 'colour'.\n";
        QTest::newRow("unknown language")
            << Arguments { "--language", "fr" } << 2 << "Unknown language: fr\n";
        QTest::newRow("empty language") << Arguments("--language=") << 2 << "Unknown language: \n";
        QTest::newRow("two projects")
            << Arguments { "a.ini", "b.ini" } << 2 << "Unexpected argument: b.ini\n";
        QTest::newRow("empty directory name")
            << Arguments("--modules=") << 1
            << "\"\" is no directory with files *.ini to read." + advice();
        QTest::newRow("missing directory")
            << Arguments { "--modules", "missing" } << 1
            << "\"missing\" is no directory with files *.ini to read." + advice();
        const QString known = "Unknown task: %2\n"
                              "Known tasks:\n"
                              "%1  Workbench:Heat:Steady\n  Workbench:Heat:With convection\n";
        const QString others
            = "  Workbench:Statics:Cantilever\n  Workbench:Statics:Simply supported\n"
              "  Workbench:Statics:Fixed at both ends\n  Workbench:Statics:Compression\n"
              "  Workbench:Statics:Extension\n  Workbench:Statics:Torsion\n"
              "  Workbench:Vessels:Thin wall\n  Workbench:Vessels:Thick wall\n";
        QTest::newRow("unknown task")
            << Arguments { "--task", "none" } << 1 << known.arg(others, "none");
        QTest::newRow("empty task") << Arguments("--task=") << 1 << known.arg(others, "");
        QTest::newRow("modules of another directory")
            << Arguments { "--modules", "mine", "--task", "none" } << 1 << known.arg("", "none");
    }
    void complaints()
    {
        QFETCH(QStringList, arguments);
        if (arguments.contains("mine"))
            QVERIFY(QDir().mkdir("mine")
                    && QFile::copy(WORKBENCH_MODULES "/40-plane-wall.ini", "mine/wall.ini"));
        run(arguments);
        QTEST(m_process.exitCode(), "exitCode");
        QTEST(m_complaint, "complaint");
        QCOMPARE(m_output, QString());
        // Nothing is written before the modules are known.
        QVERIFY(m_complaint.startsWith("Unknown task") || QDir().isEmpty());
    }

    /// Neither the server nor the platform plugin that a window would need is there.
    void usageNeedsNoDisplay_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        using Arguments = QStringList;
        QTest::newRow("help") << Arguments("--help") << 0;
        QTest::newRow("short help") << Arguments("-h") << 0;
        QTest::newRow("version") << Arguments("--version") << 0;
        QTest::newRow("wrong option") << Arguments("--colour") << 2;
        QTest::newRow("wrong language") << Arguments("--language=fr") << 2;
        QTest::newRow("no such task") << Arguments("--task=none") << 1;
        QTest::newRow("no such modules") << Arguments("--modules=nowhere") << 1;
    }
    void usageNeedsNoDisplay()
    {
        QFETCH(QStringList, arguments);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "none");
        m_process.setProcessEnvironment(environment);
        run(arguments);
        m_process.setProcessEnvironment(QProcessEnvironment());
        QTEST(m_process.exitCode(), "exitCode");
        QVERIFY(m_output.isEmpty() != m_complaint.isEmpty());
    }

    void compiledModulesNeedNoFiles()
    {
        QVERIFY(QFile::copy(WORKBENCH_EXECUTABLE, "workbench"));
        run({ "--task", "none" }, "./workbench");
        QVERIFY2(m_complaint.contains("Workbench:Statics:Cantilever"), qPrintable(m_complaint));
    }

    void modulesThatMayNotBeRead_data()
    {
        QTest::addColumn<int>("directoryRights");
        QTest::addColumn<int>("fileRights");
        QTest::addColumn<QString>("complaint");
        const QString file
            = "The file \"mine/wall.ini\" cannot be read, or holds no module: a section "
              "\"KeltoItem\" with a \"name\"."
            + advice();
        const QString directory = "\"mine\" is no directory with files *.ini to read." + advice();
        QTest::newRow("everything may be read") << 5 << 4 << "";
        QTest::newRow("file that may only be written") << 7 << 2 << file;
        QTest::newRow("directory that may not be read") << 1 << 4 << directory;
        QTest::newRow("directory that may not be searched") << 4 << 4 << file;
    }
    void modulesThatMayNotBeRead()
    {
#ifndef Q_OS_UNIX
        QSKIP("Permissions of this system say nothing about what a process may do.");
#endif
        QFETCH(int, directoryRights);
        QFETCH(int, fileRights);
        QFETCH(QString, complaint);
        const QString user = boundOwner();
        QVERIFY(QDir().mkdir("mine"));
        QVERIFY(QFile::copy(WORKBENCH_MODULES "/40-plane-wall.ini", "mine/wall.ini"));
        setRights("mine/wall.ini", fileRights);
        setRights("mine", directoryRights);

        run({ user, "--modules", "mine" }, WORKBENCH_AS_USER);
        setRights("mine", 7);

        QCOMPARE(m_complaint, complaint);
        QCOMPARE(m_process.exitCode(), complaint.isEmpty() ? 0 : 1);
        QCOMPARE(m_output, QString());
    }

    void namedTaskOpensTheWindowAtOnce_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("line");
        using Arguments = QStringList;
        QTest::newRow("plain name") << Arguments { "--task", "Workbench:Heat:Steady" }
                                    << " Task: Heat › Plane wall › Steady\n";
        const Arguments chinese { "--language", "zh_CN", "--task", "Workbench:传热:稳态" };
        QTest::newRow("translated name") << chinese << " 任务：传热 › 平壁 › 稳态\n";
        QTest::newRow("modules of files, translated name")
            << chinese + Arguments { "--modules", WORKBENCH_MODULES }
            << " 任务：传热 › 平壁 › 稳态\n";
    }
    void namedTaskOpensTheWindowAtOnce()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, line);
        m_process.start(WORKBENCH_EXECUTABLE, arguments);
        QVERIFY(m_process.waitForStarted());
        // The window writes this line, so nothing asks for a task any more.
        waitForLine("log", line);
        const QSettings update("Config/update.ini", QSettings::IniFormat);
        QCOMPARE(update.value("Current/Name").toString(), QString("Workbench"));
        QCOMPARE(update.value("Current/Version").toString(), QString(WORKBENCH_VERSION));
    }

    /// A menu starts programs in any directory.
    void ownDirectory()
    {
        QVERIFY(QDir().mkdir("elsewhere"));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", QDir().absoluteFilePath("data"));
        m_process.setProcessEnvironment(environment);
        m_process.setWorkingDirectory("elsewhere");
        m_process.start(WORKBENCH_EXECUTABLE,
                        { "--own-directory", "--task", "Workbench:Heat:Steady" });
        QVERIFY(m_process.waitForStarted());
        waitForLine("data/Kelto/Workbench/log", " Task: Heat › Plane wall › Steady\n");
        QVERIFY(QFile::exists("data/Kelto/Workbench/Config/update.ini"));
        QVERIFY(QDir("elsewhere").isEmpty());
    }
    void ownDirectoryThatCannotBeMade()
    {
        QVERIFY(writeFile("data", "A file, not a directory."));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", QDir().absoluteFilePath("data"));
        m_process.setProcessEnvironment(environment);
        run({ "--own-directory" });
        QCOMPARE(m_process.exitCode(), 1);
        QCOMPARE(m_complaint,
                 "The directory \"" + QDir().absoluteFilePath("data/Kelto/Workbench")
                     + "\" cannot be used.\n");
    }

private:
    /// Waits until the running program has written @p line into its log, and ends it.
    void waitForLine(const QString &directory, const QString &line)
    {
        const auto isLogged = [&] {
            const QStringList files = filesIn(directory);
            const QString log = directory + '/' + files.value(0);
            return QString::fromUtf8(fileContent(log)).contains(line);
        };
        QTRY_VERIFY_WITH_TIMEOUT(m_process.state() == QProcess::NotRunning || isLogged(), 30000);
        QVERIFY2(isLogged(), m_process.readAllStandardError().constData());
        QCOMPARE(m_process.state(), QProcess::Running);
        m_process.kill();
        QVERIFY(m_process.waitForFinished());
    }

    /// Runs the program, the workbench where none is named, to its end.
    void run(const QStringList &arguments, const char *program = WORKBENCH_EXECUTABLE)
    {
        m_process.start(program, arguments);
        if (!m_process.waitForFinished()) {
            m_process.kill();
            m_process.waitForFinished();
        }
        QCOMPARE(m_process.exitStatus(), QProcess::NormalExit);
        m_output = QString::fromUtf8(m_process.readAllStandardOutput());
        m_complaint = QString::fromUtf8(m_process.readAllStandardError());
    }

    QProcess m_process;
    QString m_output;
    QString m_complaint;
};

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_commandline.moc"
