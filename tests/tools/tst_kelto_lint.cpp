// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What the rules find, in their own examples and in other files.

#include "console.h"
#include "lint/lintconfig.h"
#include "lintfindings.h"
#include "support/directorytest.h"
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

QStringList placesIn(const QVector<ItemFile> &files)
{
    QStringList places;
    const Findings findings = allFindingsIn(files);
    for (const Finding &finding : findings) {
        places.append(QString("%1 %2:%3:%4")
                          .arg(finding.rule, QFileInfo(finding.path).fileName())
                          .arg(finding.position.line)
                          .arg(finding.position.column));
    }
    return places;
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

    QCOMPARE(placesIn(filesOf(rule->bad, "bad/")), QStringList(finding));
    QCOMPARE(placesIn(filesOf(rule->good, "good/")), QStringList());
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
    QCOMPARE(linesOf(result.findings), QStringList());
}

QTEST_GUILESS_MAIN(TestKeltoLint)

#include "tst_kelto_lint.moc"
