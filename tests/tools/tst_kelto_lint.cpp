// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What the rules find, in their own examples and in other files.

#include "lint/linter.h"

#include "console.h"
#include "lint/lintconfig.h"
#include "support/directorytest.h"
#include "support/testfiles.h"
#include "units/unit.h"

#include <QTest>

class TestKeltoLint : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsWhatItMeans_data();
    void showsWhatItMeans();
    void findsNothingInTheWorkbench();
};

namespace {

/// Writes the files of an example, which a line "; --- NAME ---" divides, and reads them again.
/// Each has a directory of its own, since QSettings may not notice that a file has changed.
QVector<ItemFile> filesOf(const char *example, const QString &directory)
{
    QByteArrayList lines = QByteArray(example).split('\n');
    QByteArray name = "first.ini";
    QMap<QByteArray, QByteArray> contents;
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray &line = lines.at(i);
        if (line.startsWith("; --- ") && line.endsWith(" ---"))
            name = line.mid(6).chopped(4);
        else
            contents[name] += line + (i + 1 < lines.size() ? "\n" : "");
    }
    QVector<ItemFile> files;
    for (auto each = contents.cbegin(); each != contents.cend(); ++each) {
        const QString path = directory + '/' + QString::fromUtf8(each.key());
        writeFile(path, each.value());
        if (path.endsWith(".ini"))
            files.append(ItemFile(path));
    }
    return files;
}

QStringList findingsOf(const QVector<ItemFile> &files)
{
    Findings findings;
    for (const ItemFile &file : files)
        findings += findingsIn(file);
    findings += findingsAmong(files);
    QStringList lines;
    for (const Finding &finding : qAsConst(findings)) {
        lines.append(QString("%1 %2:%3:%4")
                         .arg(finding.rule, QFileInfo(finding.path).fileName())
                         .arg(finding.position.line)
                         .arg(finding.position.column));
    }
    return lines;
}

} // namespace

void TestKeltoLint::showsWhatItMeans_data()
{
    QTest::addColumn<QString>("finding");

    // Each line is a rule and where its bad example has the finding.
    const QStringList lines = QString::fromUtf8(fileContent(LINT_POSITIONS)).split('\n');
    QHash<QString, QString> positions;
    for (const QString &line : lines)
        positions.insert(line.section(' ', 0, 0), line);
    const QStringList rules = ruleNames();
    for (const QString &rule : rules)
        QTest::newRow(qPrintable(rule)) << positions.value(rule, rule + " has no position");
}

void TestKeltoLint::showsWhatItMeans()
{
    QFETCH(QString, finding);
    const QStringList ofUnits { "unknown-unit", "unit-dimension", "unit-not-converted" };
    if (!areUnitsKnown() && ofUnits.contains(finding.section(' ', 0, 0)))
        QSKIP("This program was built without UDUNITS.", );
    const Rule *const rule = ruleOf(finding.section(' ', 0, 0));

    QCOMPARE(findingsOf(filesOf(rule->bad, "bad")), QStringList(finding));
    QCOMPARE(findingsOf(filesOf(rule->good, "good")), QStringList());
}

void TestKeltoLint::findsNothingInTheWorkbench()
{
    QStringList paths;
    const QStringList names = filesIn(WORKBENCH_MODULES);
    for (const QString &name : names)
        paths.append(WORKBENCH_MODULES "/" + name);
    Console console;
    const LintResult result = lint(paths, LintConfig(paths), console);
    QCOMPARE(result.files.size(), 5);
    QCOMPARE(result.findings.size(), 0);
}

QTEST_GUILESS_MAIN(TestKeltoLint)

#include "tst_kelto_lint.moc"
