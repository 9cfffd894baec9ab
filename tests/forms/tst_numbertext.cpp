// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "numbertext_p.h"

#include <QLocale>
#include <QTest>

/// Numbers as they are typed, stored and shown.
class tst_NumberText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storesWhatWasTyped_data();
    void storesWhatWasTyped();
};

void tst_NumberText::storesWhatWasTyped_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");

    QTest::newRow("decimal sign of the locale") << "de"
                                                << "1,5"
                                                << "1.5"
                                                << "1,5";
    QTest::newRow("point as decimal sign") << "de"
                                           << "1.234"
                                           << "1.234"
                                           << "1,234";
    QTest::newRow("group is no number") << "de"
                                        << "1.234,5"
                                        << "1.234,5"
                                        << "1.234,5";
    QTest::newRow("two groups are no number") << "de"
                                              << "1.234.567"
                                              << "1.234.567"
                                              << "1.234.567";
    QTest::newRow("comma in English is no number") << "en"
                                                   << "1,234"
                                                   << "1,234"
                                                   << "1,234";
    QTest::newRow("exponent") << "de"
                              << "2,1e5"
                              << "2.1e5"
                              << "2,1e5";
    QTest::newRow("exponent with sign") << "en"
                                        << "1e-3"
                                        << "1e-3"
                                        << "1e-3";
    QTest::newRow("capital exponent") << "en"
                                      << "1.5E6"
                                      << "1.5E6"
                                      << "1.5E6";
    QTest::newRow("every digit is kept") << "fr"
                                         << "0,10000000000000000000000000001"
                                         << "0.10000000000000000000000000001"
                                         << "0,10000000000000000000000000001";
    QTest::newRow("zeros are kept") << "en"
                                    << "+02.500"
                                    << "+02.500"
                                    << "+02.500";
    QTest::newRow("no digit before the sign") << "de"
                                              << ",5"
                                              << ".5"
                                              << ",5";
    QTest::newRow("no digit behind the sign") << "de"
                                              << "5,"
                                              << "5."
                                              << "5,";
    QTest::newRow("space around") << "en"
                                  << " 12 "
                                  << "12"
                                  << "12";
    QTest::newRow("space inside is no number") << "fr"
                                               << "1 000"
                                               << "1 000"
                                               << "1 000";
    QTest::newRow("minus sign of typographers") << "en" << QString(QChar(0x2212)) + "2"
                                                << "-2"
                                                << "-2";
    QTest::newRow("Arabic digits")
        << "ar_EG" << QString::fromUtf8("١٢٫٥") << "12.5" << QString::fromUtf8("١٢٫٥");
    QTest::newRow("suffix is no number") << "en"
                                         << "210k"
                                         << "210k"
                                         << "210k";
    QTest::newRow("words") << "en"
                           << " about 5"
                           << " about 5"
                           << " about 5";
    QTest::newRow("no number by its name") << "en"
                                           << "nan"
                                           << "nan"
                                           << "nan";
    QTest::newRow("exponent alone") << "en"
                                    << "e5"
                                    << "e5"
                                    << "e5";
    QTest::newRow("point alone") << "en"
                                 << "."
                                 << "."
                                 << ".";
    QTest::newRow("nothing") << "en"
                             << ""
                             << ""
                             << "";
    QTest::newRow("line break behind") << "en"
                                       << "5x\n"
                                       << "5x\n"
                                       << "5x\n";
}

void tst_NumberText::storesWhatWasTyped()
{
    QFETCH(QString, typed);
    QFETCH(QString, stored);
    QFETCH(QString, shown);
    QFETCH(QString, locale);
    const QString actual = NumberText::stored(typed, QLocale(locale));
    QCOMPARE(actual, stored);
    QCOMPARE(NumberText::shown(actual, QLocale(locale)), shown);
    QCOMPARE(NumberText::stored(shown, QLocale(locale)), stored);
}

QTEST_APPLESS_MAIN(tst_NumberText)
#include "tst_numbertext.moc"
