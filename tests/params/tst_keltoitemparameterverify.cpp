// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "models/plainitems.h"
#include "support/harditems.h"

#include <Kelto/KeltoItemParameterVerify>

#include <QTest>

using Verify = KeltoItemParameterVerify;

namespace {

Entries valuesOf(const QStringList &keys)
{
    Entries values;
    for (const QString &key : keys)
        values.append({ key, QVariant() });
    return values;
}

/// An item with the mode "A", which takes x of the group "Load".
AUTH_INF beam()
{
    AUTH_INF item;
    item.inner_mode_nameList = QStringList { "A" };
    item.inner_mode_nameList_tr = QStringList { "甲" };
    item.inner_mode_parameterList = { { entry("x", "s", "Load") } };
    return item;
}

} // namespace

class TestKeltoItemParameterVerify : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersLikeThePlainModel()
    {
        const QStringList keys { "Attribute/x", "Attribute/X",    "Attribute/y", "Attribute/a/x",
                                 "Attribute/",  "Attribute/x_tr", "Unit/x",      "attribute/x" };
        Dice dice(1);
        int validCount = 0;
        for (int round = 0; round < 5000; ++round) {
            const AUTH_INF item = itemWithFewKeys(dice);
            const Entries values = valuesOf(dice.someOf(keys, dice.between(0, 14)));
            const QString mode = dice.oneOf({ "A", "a", "B", "C", "", "D" });
            const QStringList skipped
                = dice.someOf({ "g", "g_tr", "G", "G_tr", "", "_tr" }, dice.between(0, 2));
            const bool expected = PlainItems::isValid(item, values, mode, skipped);
            validCount += int(expected);
            QCOMPARE(Verify::isValid(&item, &values, mode, skipped), expected);
            if (skipped.isEmpty())
                QCOMPARE(Verify::isValid(&item, &values, mode), expected);
            if (skipped.size() == 1)
                QCOMPARE(Verify::isValid(&item, &values, mode, skipped.first()), expected);
        }
        QVERIFY2(validCount > 300 && validCount < 4500, qPrintable(QString::number(validCount)));
    }

    void wantsKeysOnly()
    {
        const AUTH_INF item = beam();
        const Entries none;
        const Entries there = valuesOf({ "Attribute/x" });
        QVERIFY(!there.constFirst().second.isValid());
        QVERIFY(Verify::isValid(&item, &there, "A"));
        QVERIFY(!Verify::isValid(&item, &there, "甲"));
        for (const char *key : { "Unit/x", "attribute/x" }) {
            const Entries others = valuesOf({ key });
            QVERIFY(!Verify::isValid(&item, &others, "A"));
        }
        QVERIFY(Verify::isValid(&item, &none, "A", QString("Load")));
        QVERIFY(Verify::isValid(&item, &none, "A", QString("Load_tr")));
    }

    void refusesNullPointers()
    {
        const AUTH_INF item = beam();
        const Entries values = valuesOf({ "Attribute/x" });
        QVERIFY(!Verify::isValid(nullptr, &values, "A"));
        QVERIFY(!Verify::isValid(&item, nullptr, "A"));
        QVERIFY(!Verify::isValid(&item, nullptr, "A", QString("Load")));
    }
};

QTEST_GUILESS_MAIN(TestKeltoItemParameterVerify)
#include "tst_keltoitemparameterverify.moc"
