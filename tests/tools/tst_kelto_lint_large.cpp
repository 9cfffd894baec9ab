// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Files in which comparing each line with each other would take minutes.

#include "lintfindings.h"
#include "support/directorytest.h"

#include <QTest>

class TestKeltoLintLarge : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
};

void TestKeltoLintLarge::finds_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<int>("count");

    QByteArray parameters = "[KeltoItem]\nname=Beam\n[Attribute]\n";
    QByteArray belong = "[Belong]\n";
    QByteArrayList modes;
    for (int i = 0; i < 20000; ++i) {
        const QByteArray letters
            = "key" + QByteArray::number(i).replace('0', 'a').replace('1', 'b');
        parameters += letters + "=\n";
        belong += 'x' + letters + "=Mode\n";
    }
    for (int i = 0; i < 100000; ++i)
        modes.append("mode" + QByteArray::number(i));
    const QByteArray list = modes.join(',');
    QTest::newRow("parameters") << parameters + belong << QString("undeclared-key") << 20000;
    QTest::newRow("quotes") << "[KeltoItem]\nname=a" + QByteArray(5000000, '"') + '\n'
                            << QString("stray-quote") << 1;
    QTest::newRow("unknown modes") << "[KeltoItem]\ninner_mode_nameList=" + list
            + "\n[Attribute]\na=\n[Belong]\na=X" + modes.join(",X") + '\n'
                                   << QString("unknown-mode") << 100000;
    const QByteArray item = "[KeltoItem]\nname=Beam\ntype=calculation\ninner_mode_count=100000\n";
    QTest::newRow("hints for unknown modes") << item + "inner_mode_nameList=" + list
            + "\n[Attribute]\na=\n[Belong]\na=mode1\n[ExtraKey]\n" + "Default.a@X"
            + modes.mid(0, 20000).join("=1\nDefault.a@X")
            + "=1\n" << QString("bad-hint") << 20000;
    QTest::newRow("like results in many modes")
        << item + "output_results=a,a\ninner_mode_nameList=" + list + "\n[Result]\nA b=\na_B=\n"
        << QString("like-names") << 1;
    QTest::newRow("modes with quotes")
        << item + "inner_mode_nameList=\"\\\"" + modes.mid(0, 20000).join("\",\"\\\"") + "\"\n"
        << QString("text-in-code") << 20000;
    QTest::newRow("modes without parameters") << "[KeltoItem]\ninner_mode_nameList=First," + list
            + "\n[Attribute]\na=\n" + "[Belong]\na=First\n"
                                              << QString("mode-without-parameters") << 100000;
}

void TestKeltoLintLarge::finds()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, rule);
    QFETCH(int, count);

    writeFile("first.ini", file);
    const Findings findings = findingsIn(ItemFile("first.ini"));
    QCOMPARE(countOf(findings, rule), count);
}

QTEST_GUILESS_MAIN(TestKeltoLintLarge)

#include "tst_kelto_lint_large.moc"
