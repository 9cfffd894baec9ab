// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The manual pages as man formats them, and the completion as bash calls it.

#include "commands.h"
#include "support/directorytest.h"
#include "support/testfiles.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

class TestKeltoPages : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void namesEachCommandOnce();
    void formats_data();
    void formats();
    void keepsLinesOfExamples();
    void completes_data();
    void completes();
};

namespace {

const char *const pages = KELTO_PAGES;

/// What a manual page looks like, without bold and underlined letters.
QString formatted(const QString &path, QByteArray *warnings)
{
    QProcess groff;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("GROFF_NO_SGR", "1");
    groff.setProcessEnvironment(environment);
    groff.start("groff",
                { "-man", "-Tutf8", "-ww", "-Kutf8", "-P-cbou", "-rLL=200n", "-rHY=0", path });
    groff.waitForFinished();
    *warnings = groff.readAllStandardError();
    return QString::fromUtf8(groff.readAllStandardOutput());
}

} // namespace

void TestKeltoPages::namesEachCommandOnce()
{
    QStringList names;
    for (const Command &command : commands())
        names.append(command.name);
    QStringList distinct = names;
    distinct.removeDuplicates();
    QCOMPARE(names, distinct);
}

void TestKeltoPages::formats_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("texts");

    QStringList summaries;
    for (const Command &command : commands()) {
        QStringList texts { QString("kelto-%1 - %2").arg(command.name, command.summary) };
        const QVector<CommandOption> options = command.options + commonOptions();
        for (const CommandOption &option : options) {
            texts.append("  " + dashed(option.names.first()));
            texts.append(option.description);
        }
        for (const CommandExample &example : command.examples)
            texts += { example.line, example.purpose };
        summaries.append(command.summary);
        QTest::newRow(command.name) << QString("kelto-%1").arg(command.name) << texts;
    }
    QTest::newRow("the overview") << "kelto" << summaries;
}

void TestKeltoPages::formats()
{
    QFETCH(QString, page);
    QFETCH(QStringList, texts);
    const QString path = QString("%1/man1/%2.1").arg(pages, page);
    const QString source = fileContent(path);
    const QString title = source.section('\n', 0, 0);
    static const QRegularExpression date("\" 1 \"20\\d\\d-[01]\\d-[0-3]\\d\" \"Kelto \\d");
    QVERIFY2(title.contains(date), qPrintable(title));
    // Text is filled, so that it fits every terminal.
    QVERIFY(!source.contains("\n.br"));
    QByteArray warnings;
    const QString text = formatted(path, &warnings);
    QCOMPARE(warnings, QByteArray());
    for (const QString &wanted : texts) {
        // Lines are filled, and words divided nowhere else.
        const QString lines = text.simplified();
        QVERIFY2(lines.contains(wanted.simplified()), qPrintable(wanted + '\n' + text));
    }
}

void TestKeltoPages::keepsLinesOfExamples()
{
    QByteArray warnings;
    const QString text = formatted(QString("%1/man1/kelto-lint.1").arg(pages), &warnings);
    QVERIFY2(text.contains("  [Rules]\n         comment=warning\n"), qPrintable(text));
}

void TestKeltoPages::completes_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("a command") << QStringList { "sh" } << QStringList { "show" };
    QTest::newRow("commands with one beginning")
        << QStringList { "s" } << QStringList { "show", "style" };
    QTest::newRow("a command after help")
        << QStringList { "help", "mo" } << QStringList { "modes" };
    QTest::newRow("an option of the program")
        << QStringList { "--v" } << QStringList { "--version" };
    QTest::newRow("an option") << QStringList { "show", "--m" } << QStringList { "--mode" };
    QTest::newRow("an option that all commands have")
        << QStringList { "diff", "--j" } << QStringList { "--json" };
    QTest::newRow("no option of another command")
        << QStringList { "show", "--sk" } << QStringList {};
    QTest::newRow("a file") << QStringList { "show", "be" } << QStringList { "beam file.ini" };
    QTest::newRow("a file with an escaped blank")
        << QStringList { "show", "beam\\ f" } << QStringList { "beam file.ini" };
    QTest::newRow("a file in quotes")
        << QStringList { "show", "\"beam f" } << QStringList { "beam file.ini" };
    QTest::newRow("a directory as file")
        << QStringList { "show", "mod" } << QStringList { "modules" };
    QTest::newRow("a file as value of an option")
        << QStringList { "check", "--item", "b" } << QStringList { "beam file.ini" };
    QTest::newRow("directories only")
        << QStringList { "code", "-o", "" } << QStringList { "modules" };
    QTest::newRow("words that an option takes")
        << QStringList { "doc", "--format", "m" } << QStringList { "markdown" };
    QTest::newRow("formats to convert to")
        << QStringList { "convert", "--to", "" } << QStringList { "ini", "json" };
    QTest::newRow("words behind an equals sign")
        << QStringList { "doc", "--format", "=", "q" } << QStringList { "qhp" };
    QTest::newRow("all words behind an equals sign")
        << QStringList { "doc", "--format", "=" } << QStringList { "html", "markdown", "qhp" };
    QTest::newRow("a rule") << QStringList { "lint", "--explain", "no-eq" }
                            << QStringList { "no-equals-sign" };
    QTest::newRow("a name that nobody knows")
        << QStringList { "modes", "--app", "b" } << QStringList {};
    QTest::newRow("an unknown command") << QStringList { "unknown", "--j" } << QStringList {};
}

void TestKeltoPages::completes()
{
    QFETCH(QStringList, words);
    QFETCH(QStringList, expected);
    QVERIFY(writeFile("beam file.ini", {}));
    QVERIFY(writeFile("modules/other.ini", {}));
    // Without the functions that a shell of a person may have.
    const QString script = QString("source %1/completions/kelto || exit 1\n"
                                   "complete -p kelto | grep -q _kelto || exit 2\n"
                                   "COMP_WORDS=(kelto \"$@\"); COMP_CWORD=$#; _kelto\n"
                                   "printf '%s\\n' \"${COMPREPLY[@]}\"\n")
                               .arg(pages);
    QProcess bash;
    bash.start("bash", QStringList { "--norc", "--noprofile", "-c", script, "bash" } + words);
    QVERIFY(bash.waitForFinished());
    QCOMPARE(bash.exitCode(), 0);
    QStringList replies = QString::fromUtf8(bash.readAllStandardOutput()).split('\n');
    replies.removeAll({});
    replies.sort();
    QCOMPARE(replies, expected);
    QCOMPARE(bash.readAllStandardError(), QByteArray());
}

QTEST_GUILESS_MAIN(TestKeltoPages)

#include "tst_kelto_pages.moc"
