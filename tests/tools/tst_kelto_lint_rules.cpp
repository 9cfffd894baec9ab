// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Findings about what an item says, one row each: the files, and all findings in them.

#include "lint/rules.h"

#include "itemfile.h"
#include "support/directorytest.h"
#include "support/testfiles.h"
#include "units/unit.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

class TestKeltoLintRules : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsInExamplesWhatRulesFind_data();
    void showsInExamplesWhatRulesFind();
    void finds_data();
    void finds();
    void findsNothingInTheWorkbench();
};

namespace {

/// Writes the files of an example; names of the module item files among them.
QStringList writeFiles(const QString &text)
{
    QStringList parts = QString("; --- first.ini ---\n" + text)
                            .split(QRegularExpression("^; --- ", QRegularExpression::MultilineOption),
                                   Qt::SkipEmptyParts);
    QStringList names;
    for (const QString &part : qAsConst(parts)) {
        const QString name = part.section(" ---\n", 0, 0);
        writeFile(name, part.section(" ---\n", 1).toUtf8());
        if (name.endsWith(".ini"))
            names.append(name);
    }
    return names;
}

Findings findingsIn(const QStringList &paths)
{
    QVector<ItemFile> files;
    for (const QString &path : paths)
        files.append(ItemFile(path));
    Findings findings;
    for (const RuleArea &area : ruleAreas()) {
        for (const ItemFile &file : qAsConst(files)) {
            if (area.checkFile)
                area.checkFile(file, &findings);
        }
        if (area.checkAll)
            area.checkAll(files, &findings);
    }
    return findings;
}

/// "file:line:column rule" and the text.
QStringList linesOf(const Findings &findings)
{
    QStringList lines;
    for (const Finding &finding : findings) {
        lines += QString("%1:%2:%3 %4 %5")
                     .arg(finding.path)
                     .arg(finding.position.line)
                     .arg(finding.position.column)
                     .arg(finding.rule, finding.text);
    }
    return lines;
}

} // namespace

void TestKeltoLintRules::showsInExamplesWhatRulesFind_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("bad");
    QTest::addColumn<QString>("good");

    for (const RuleArea &area : ruleAreas()) {
        for (const Rule &rule : area.rules)
            QTest::newRow(rule.id) << QString(rule.id) << QString(rule.bad) << QString(rule.good);
    }
}

void TestKeltoLintRules::showsInExamplesWhatRulesFind()
{
    QFETCH(QString, id);
    QFETCH(QString, bad);
    QFETCH(QString, good);

    if (id.startsWith("unit-") && !areUnitsKnown())
        QSKIP("This program was built without UDUNITS.");
    const Findings findings = findingsIn(writeFiles(bad));
    QVERIFY2(findings.size() == 1, qPrintable(linesOf(findings).join('\n')));
    QCOMPARE(findings.constFirst().rule, id);
    QCOMPARE(linesOf(findingsIn(writeFiles(good))), QStringList());
}

void TestKeltoLintRules::finds_data()
{
    QTest::addColumn<QString>("files");
    QTest::addColumn<QStringList>("lines");

    const QString beam = "[KeltoItem]\nname=Beam\ntype=calculation\ngroup=Statics\n"
                         "exclusive_group=true\n";
    QTest::newRow("x") << beam << QStringList();
}

void TestKeltoLintRules::finds()
{
    QFETCH(QString, files);
    QFETCH(QStringList, lines);

    QCOMPARE(linesOf(findingsIn(writeFiles(files))), lines);
}

void TestKeltoLintRules::findsNothingInTheWorkbench()
{
    QStringList paths;
    for (const QFileInfo &file : QDir(WORKBENCH_MODULES).entryInfoList({ "*.ini" }))
        paths.append(file.filePath());
    QCOMPARE(paths.size(), 5);
    QCOMPARE(linesOf(findingsIn(paths)), QStringList());
}

QTEST_GUILESS_MAIN(TestKeltoLintRules)

#include "tst_kelto_lint_rules.moc"
