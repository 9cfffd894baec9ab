// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "numbers.h"

#include <QtTest>

/// From typed texts to values and back.
class tst_Numbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valueFromText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("several");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVector<double>>("numbers");
        using Numbers = QVector<double>;
        using Texts = QStringList;
        QTest::newRow("one number") << "12.5" << false << QVariant(12.5) << Numbers { 12.5 };
        QTest::newRow("exponent and spaces")
            << " -1e3 " << false << QVariant(-1000.0) << Numbers { -1000 };
        QTest::newRow("list") << "0.1; 1234.56789;5" << true
                              << QVariant(Texts { "0.1", "1234.56789", "5" })
                              << Numbers { 0.1, 1234.56789, 5 };
        QTest::newRow("list of one")
            << "0.1" << true << QVariant(Texts { "0.1" }) << Numbers { 0.1 };
    }
    void valueFromText()
    {
        QFETCH(QString, text);
        QFETCH(bool, several);
        const auto outcome = ::valueFromText(text, several);
        QCOMPARE(outcome.problem, QString());
        QTEST(outcome.result, "value");
        QTEST(numbersFromValue(outcome.result, several), "numbers");
    }

    void textThatIsNoValue_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("several");
        QTest::addColumn<QString>("wrong");
        QTest::newRow("list where one number belongs") << "1; 2" << false << "1; 2";
        QTest::newRow("decimal comma") << "0,5" << false << "0,5";
        QTest::newRow("word in a list") << "1; two" << true << "two";
        QTest::newRow("semicolon at the end") << "1;" << true << "";
        QTest::newRow("infinite") << "inf" << false << "inf";
        QTest::newRow("not a number by name") << "nan" << true << "nan";
        QTest::newRow("empty") << "" << false << "";
    }
    void textThatIsNoValue()
    {
        QFETCH(QString, text);
        QFETCH(bool, several);
        QFETCH(QString, wrong);
        const auto outcome = ::valueFromText(text, several);
        QCOMPARE(outcome.problem,
                 QString("\"%1\" is not a number. Write decimals with a point%2.")
                     .arg(wrong,
                          several ? " and separate the numbers by semicolons, as in 0.5; 12"
                                  : ", as in 0.5"));
        QVERIFY(!outcome.result.isValid());
    }

    void textFromNumbers()
    {
        QCOMPARE(::textFromNumbers({}), QString());
        QCOMPARE(::textFromNumbers({ 2.0 / 3, -9.5, -0.0, 1500 }),
                 QString("0.666667; -9.5; 0; 1500"));
    }
};

QTEST_GUILESS_MAIN(tst_Numbers)
#include "tst_numbers.moc"
