// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "support/harditems.h"

#include <QTest>

namespace {

/// Modes "A" and "B" whose translated names are "B" and "C". A holds x, x and y, B holds y and z.
AUTH_INF itemWithTwoModes()
{
    AUTH_INF item;
    item.inner_mode_count = 2;
    item.inner_mode_nameList = QStringList { "A", "B" };
    item.inner_mode_nameList_tr = QStringList { "B", "C" };
    item.inner_mode_parameterList
        = { { entry("x"), entry("x"), entry("y") }, { entry("y"), entry("z") } };
    return item;
}

/// The keys of the mode @p mode, found by walking along the names.
QStringList keysOf(const AUTH_INF &item, const QString &mode)
{
    QStringList keys;
    for (const QStringList &names : { item.inner_mode_nameList, item.inner_mode_nameList_tr }) {
        for (int i = 0; i < names.size(); ++i) {
            if (names.at(i) != mode)
                continue;
            if (i < item.inner_mode_parameterList.size()) {
                for (const QStringList &strings : item.inner_mode_parameterList.at(i))
                    keys.append(strings.size() > 1 ? strings.at(1) : QString());
            }
            return keys;
        }
    }
    return keys;
}

} // namespace

class TestAuthInf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        const AUTH_INF item;
        QCOMPARE(item.number, 0);
        QCOMPARE(item.name, QString("Default"));
        QCOMPARE(item.name_tr, QString("Default"));
        QCOMPARE(item.type, QString("undefined"));
        QCOMPARE(item.type_tr, QString("undefined"));
        QCOMPARE(item.group, QString("model"));
        QCOMPARE(item.group_tr, QString("model"));
        QCOMPARE(item.description + item.icon + item.trObjectName + item.codeFunctionName, "");
        QCOMPARE(item.exclusive_group, false);
        QCOMPARE(item.lib_name, QStringList());
        QCOMPARE(item.inner_mode_count, 1);
        QCOMPARE(item.inner_mode_description, QStringList { QString() });
        QCOMPARE(item.inner_mode_nameList, QStringList { "Default" });
        QCOMPARE(item.inner_mode_nameList_tr, QStringList { "Default" });
        // No inner list, although there is one inner mode.
        QVERIFY(item.inner_mode_parameterList.isEmpty());
        QVERIFY(item.output_results.isEmpty());
        QVERIFY(item.extraKey.isEmpty());
    }

    void findsTheKeysOfModes()
    {
        const AUTH_INF item = itemWithTwoModes();
        QCOMPARE(item.inner_mode_keylist_of("A"), (QStringList { "x", "x", "y" }));
        // A plain name wins over an equal translated one.
        QCOMPARE(item.inner_mode_keylist_of("B"), (QStringList { "y", "z" }));
        QCOMPARE(item.inner_mode_keylist_of("C"), (QStringList { "y", "z" }));
        QCOMPARE(item.inner_mode_keylist_of("D"), QStringList());
        QVERIFY(item.inner_mode_contains("C", "z"));
        QVERIFY(!item.inner_mode_contains("B", "x"));
        QVERIFY(item.inner_mode_contains("z"));
        QVERIFY(!item.inner_mode_contains("w"));
        QCOMPARE(item.parameter_belonglist("y"), (QStringList { "A", "B" }));
        QCOMPARE(item.parameter_belonglist("x"), QStringList { "A" });
    }

    void answersLikeAWalkAlongTheLists()
    {
        Dice dice(1);
        for (int round = 0; round < 500; ++round) {
            const AUTH_INF item = itemWithFewKeys(dice);
            for (const char *mode : { "A", "a", "B", "C", "", "D" })
                QCOMPARE(item.inner_mode_keylist_of(mode), keysOf(item, mode));
            for (const char *key : { "x", "X", "y", "a/x", "", "x_tr" }) {
                QStringList modes;
                for (const QString &mode : item.inner_mode_nameList) {
                    if (keysOf(item, mode).contains(key))
                        modes.append(mode);
                }
                QCOMPARE(item.parameter_belonglist(key), modes);
                QCOMPARE(item.inner_mode_contains(key), !modes.isEmpty());
                QCOMPARE(item.inner_mode_contains("C", key), keysOf(item, "C").contains(key));
            }
        }
    }

    void dataItem()
    {
        const VDataItem empty;
        QCOMPARE(empty.key, QString());
        QCOMPARE(empty.value, QVariant());
        const VDataItem item("a", 1);
        QCOMPARE(item.key, QString("a"));
        QCOMPARE(item.value, QVariant(1));
    }
};

QTEST_GUILESS_MAIN(TestAuthInf)
#include "tst_auth_inf.moc"
