// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The command, run as people run it. Each directory below "cases" holds cases of one command:
// "NAME.args" has the arguments, one to a line, and "NAME.out" what comes of them: the standard
// output, the standard error, the exit code, and the files that were written. "NAME.env", where
// there is one, has the variables of the environment, one to a line. The other files beside them
// are there for the arguments to name; each case runs in a copy of its own.

#include "support/directorytest.h"
#include "support/referencefile.h"
#include "support/testfiles.h"

#include <QDirIterator>
#include <QProcess>
#include <QTest>

class TestKeltoCommand : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void prints_data();
    void prints();
};

namespace {

using Files = QMap<QString, QByteArray>;

Files filesBelow(const QString &directory)
{
    Files files;
    QDirIterator iterator(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        QFile file(iterator.next());
        if (file.open(QIODevice::ReadOnly))
            files.insert(QDir(directory).relativeFilePath(file.fileName()), file.readAll());
    }
    return files;
}

/// The files that cases may use, without the cases themselves.
Files materialOf(const QString &directory)
{
    Files files = filesBelow(directory);
    for (auto file = files.begin(); file != files.end();) {
        const bool isCase = file.key().endsWith(".args") || file.key().endsWith(".env")
            || file.key().endsWith(".out");
        file = isCase ? files.erase(file) : file + 1;
    }
    return files;
}

void write(const Files &files)
{
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        QVERIFY(writeFile(file.key(), file.value()));
}

QStringList linesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    lines.removeLast();
    return lines;
}

/// The variables of the case, and else nothing but what the sanitizers are told.
QProcessEnvironment environmentOf(const QString &path)
{
    const QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    QProcessEnvironment environment;
    // One without any variable would mean that of this process.
    environment.insert("KELTO_NO_ENVIRONMENT", "1");
    for (const char *name : { "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS" }) {
        if (own.contains(name))
            environment.insert(name, own.value(name));
    }
    const QStringList variables = linesOf(path + ".env");
    for (const QString &line : variables)
        environment.insert(line.section('=', 0, 0), line.section('=', 1));
    return environment;
}

QString outcomeOf(QProcess &process, const Files &before)
{
    QString outcome = QString::fromUtf8(process.readAllStandardOutput()) + "--- standard error\n"
        + QString::fromUtf8(process.readAllStandardError())
        + QString("--- exit code %1\n").arg(process.exitCode());
    const Files after = filesBelow(".");
    for (auto file = after.cbegin(); file != after.cend(); ++file) {
        if (!before.contains(file.key()) || before.value(file.key()) != file.value())
            outcome += "--- file " + file.key() + '\n' + QString::fromUtf8(file.value());
    }
    for (auto file = before.cbegin(); file != before.cend(); ++file) {
        if (!after.contains(file.key()))
            outcome += "--- gone: " + file.key() + '\n';
    }
    return outcome;
}

} // namespace

void TestKeltoCommand::prints_data()
{
    QTest::addColumn<QString>("path");

    QDirIterator cases(CASE_DIRECTORY, { "*.args" }, QDir::Files, QDirIterator::Subdirectories);
    while (cases.hasNext()) {
        const QString path = cases.next().chopped(5);
        QTest::newRow(qPrintable(QDir(CASE_DIRECTORY).relativeFilePath(path))) << path;
    }
}

void TestKeltoCommand::prints()
{
    QFETCH(QString, path);
    QVERIFY(QFileInfo(path + ".args").isReadable());
    const Files material = materialOf(QFileInfo(path).path());
    write(material);
    QProcess process;
    process.setProcessEnvironment(environmentOf(path));
    process.start(KELTO_COMMAND, linesOf(path + ".args"));
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(differenceFromReference(outcomeOf(process, material), path + ".out"), QString());
}

QTEST_GUILESS_MAIN(TestKeltoCommand)

#include "tst_kelto_command.moc"
