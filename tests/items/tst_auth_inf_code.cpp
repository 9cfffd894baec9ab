// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The source text of a module item, letter by letter.

#include "models/plaincode.h"
#include "support/harditems.h"
#include "support/referencefile.h"

#include <QTest>

#include <limits>

class TestAuthInfCode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalsReference()
    {
        const QString difference
            = differenceFromReference(fullItem().to_code(),
                                      QStringLiteral(KELTO_TEST_DATA "/calculation.txt"));
        QVERIFY2(difference.isEmpty(), qUtf8Printable(difference));
    }

    void equalsPlainCode_data()
    {
        QTest::addColumn<QString>("type");
        for (const char *type : { "calculation", "Calculation", "calculation ", "tool", "" })
            QTest::addRow("type '%s'", type) << type;
    }
    void equalsPlainCode()
    {
        QFETCH(QString, type);
        HardItemMaker maker(1);
        for (int round = 0; round < 100; ++round) {
            AUTH_INF item = maker.item();
            item.type = type;
            const QString context = item.trObjectName.isEmpty() ? "UCal" : item.trObjectName;
            QCOMPARE(item.to_code(), PlainCode::of(item, context, "inf"));
            QCOMPARE(item.to_code("", item.name), PlainCode::of(item, "", item.name));
        }
    }

    void writesExtraValue_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("expected");

        QTest::newRow("a number") << QVariant(12) << "12";
        QTest::newRow("a text that is a number") << QVariant("1e5") << "1e5";
        QTest::newRow("blanks stay") << QVariant(" 12 ") << " 12 ";
        QTest::newRow("a word that is a number") << QVariant("nan") << "nan";
        QTest::newRow("a decimal comma") << QVariant("1,5") << "\"1,5\"";
        QTest::newRow("a hexadecimal number") << QVariant("0x10") << "\"0x10\"";
        QTest::newRow("a double quote is not escaped") << QVariant("a\"b") << "\"a\"b\"";
        QTest::newRow("an invalid value") << QVariant() << "\"\"";
        QTest::newRow("a list of one number") << QVariant(QStringList { "1" }) << "1";
        QTest::newRow("a list of two") << QVariant(QStringList { "a", "b" }) << "\"\"";
    }
    void writesExtraValue()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, expected);
        AUTH_INF item;
        item.extraKey = { { "key", value } };
        QCOMPARE(item.to_code().section('\n', -2),
                 QString("inf.extraKey<<VDataItem(\"key\"," + expected + ");\n"));
    }

    void endsWithTheLastOfAMillionModes_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("expected");

        QTest::newRow("the largest number") << std::numeric_limits<int>::max() << 1000000;
        QTest::newRow("the least number") << std::numeric_limits<int>::min() << 0;
    }
    void endsWithTheLastOfAMillionModes()
    {
        QFETCH(int, count);
        AUTH_INF item;
        item.type = "calculation";
        item.inner_mode_count = count;
        const QString text = item.to_code();
        QTEST(text.count("inf.inner_mode_parameterList<<QVector<QStringList>();\n"), "expected");
        QVERIFY(text.contains("inf.inner_mode_count=" + QString::number(count) + ";\n"));
        QVERIFY(text.endsWith("inf.extraKey.clear();\n"));
    }
};

QTEST_GUILESS_MAIN(TestAuthInfCode)
#include "tst_auth_inf_code.moc"
