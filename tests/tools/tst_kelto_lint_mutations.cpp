// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The lint and thousands of files that somebody has damaged.

#include "lint/followers.h"
#include "lintfindings.h"
#include "naiveitems.h"
#include "support/directorytest.h"
#include "support/hostilebytes.h"

#include <QTest>

class TestKeltoLintMutations : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void survivesMutations_data();
    void survivesMutations();
};

namespace {

/// Whether the file has that line, and the line that character, or ends before it.
bool isInside(IniPosition position, const QByteArrayList &lines)
{
    if (position.line < 1 || position.line > lines.size() || position.column < 1)
        return false;
    const QByteArray &line = lines.at(position.line - 1);
    const auto beginsCharacter = [](char c) { return (c & 0xc0) != 0x80; };
    return position.column <= 1 + std::count_if(line.cbegin(), line.cend(), beginsCharacter);
}

bool hasError(const Findings &findings)
{
    return std::any_of(findings.cbegin(), findings.cend(), [](const Finding &finding) {
        return ruleOf(finding.rule)->severity == Severity::Error;
    });
}

} // namespace

void TestKeltoLintMutations::survivesMutations_data()
{
    QTest::addColumn<unsigned>("seed");

    for (unsigned seed = 1; seed <= 5; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestKeltoLintMutations::survivesMutations()
{
    QFETCH(unsigned, seed);

    QVector<QByteArray> seeds;
    for (const char *name : { "/10-beam.ini", "/90-update.ini" })
        seeds.append(fileContent(QString(WORKBENCH_MODULES) + name));
    NaiveItemMaker maker(seed);
    for (int i = 0; i < 5; ++i)
        seeds.append(NaiveWriter::written(maker.plainItem()));

    for (int i = 0; i < 2000; ++i) {
        const QString path = QString("%1.ini").arg(i);
        QVERIFY(writeFile(path, mutated(seeds.at(i % seeds.size()), &maker.dice())));
        const ItemFile file(path);
        const Findings all = everyFindingIn(file);
        // What follows from something else is left out, but never the last error.
        const Findings kept = withoutFollowers(file, all);
        QVERIFY2(hasError(kept) == hasError(all), file.bytes().constData());
        const QByteArrayList lines = file.bytes().split(file.bytes().contains('\n') ? '\n' : '\r');
        const Findings findings = all + findingsAmong({ file });
        for (const Finding &finding : findings) {
            QVERIFY2(isInside(finding.position, lines),
                     qPrintable(lineOf(finding) + '\n' + QString::fromUtf8(file.bytes())));
        }
        QVERIFY(QFile::remove(path));
    }
}

QTEST_GUILESS_MAIN(TestKeltoLintMutations)

#include "tst_kelto_lint_mutations.moc"
