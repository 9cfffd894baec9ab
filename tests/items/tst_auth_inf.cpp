// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "support/randomitems.h"

#include <Kelto/AUTH_INF>

#include <QTest>

#include <limits>
#include <type_traits>

namespace {

QStringList entry(const QString &key)
{
    return { "group", key, "float", "false", "mm", "m", "s", key, "group" };
}

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

AUTH_INF itemWithShortLists()
{
    AUTH_INF item = itemWithTwoModes();
    item.inner_mode_count = std::numeric_limits<int>::max();
    item.inner_mode_parameterList.removeLast();
    return item;
}

AUTH_INF itemWithShortEntries()
{
    AUTH_INF item = itemWithTwoModes();
    item.inner_mode_parameterList = { { QStringList(), QStringList { "group" } }, {} };
    return item;
}

AUTH_INF itemWithOneNameTwice()
{
    AUTH_INF item = itemWithTwoModes();
    item.inner_mode_nameList = QStringList { "A", "A" };
    return item;
}

} // namespace

Q_DECLARE_METATYPE(AUTH_INF)

class TestAuthInf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void keylistOfMode_data();
    void keylistOfMode();
    void containsInMode_data();
    void containsInMode();
    void containsInAnyMode_data();
    void containsInAnyMode();
    void belonglist_data();
    void belonglist();
    void randomItems_data();
    void randomItems();
    void copiesAreIndependent();
    void isKnownUnderBothNames();
    void dataItem();
};

void TestAuthInf::defaults()
{
    const AUTH_INF item;
    QCOMPARE(item.number, 0);
    QCOMPARE(item.name, QString("Default"));
    QCOMPARE(item.name_tr, QString("Default"));
    QCOMPARE(item.description, QString());
    QCOMPARE(item.icon, QString());
    QCOMPARE(item.type, QString("undefined"));
    QCOMPARE(item.type_tr, QString("undefined"));
    QCOMPARE(item.group, QString("model"));
    QCOMPARE(item.group_tr, QString("model"));
    QCOMPARE(item.exclusive_group, false);
    QCOMPARE(item.lib_name, QStringList());
    QCOMPARE(item.inner_mode_count, 1);
    QCOMPARE(item.inner_mode_description, QStringList { QString() });
    QCOMPARE(item.inner_mode_nameList, QStringList { "Default" });
    QCOMPARE(item.inner_mode_nameList_tr, QStringList { "Default" });
    // No inner list, although there is one inner mode.
    QCOMPARE(item.inner_mode_parameterList.size(), 0);
    QCOMPARE(item.trObjectName, QString());
    QCOMPARE(item.codeFunctionName, QString());
    QCOMPARE(item.output_results.size(), 0);
    QCOMPARE(item.extraKey.size(), 0);
}

void TestAuthInf::keylistOfMode_data()
{
    QTest::addColumn<AUTH_INF>("item");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("keys in entry order with doubles")
        << itemWithTwoModes() << "A" << QStringList { "x", "x", "y" };
    QTest::newRow("a plain name wins over an equal translated one")
        << itemWithTwoModes() << "B" << QStringList { "y", "z" };
    QTest::newRow("a translated name finds the mode")
        << itemWithTwoModes() << "C" << QStringList { "y", "z" };
    QTest::newRow("an unknown mode has no keys") << itemWithTwoModes() << "D" << QStringList();
    QTest::newRow("modes differ by case") << itemWithTwoModes() << "a" << QStringList();
    QTest::newRow("an empty mode name is unknown") << itemWithTwoModes() << "" << QStringList();
    QTest::newRow("of equal names the first counts")
        << itemWithOneNameTwice() << "A" << QStringList { "x", "x", "y" };
    AUTH_INF manyTranslations = itemWithTwoModes();
    manyTranslations.inner_mode_nameList_tr = QStringList { "C", "C", "E" };
    manyTranslations.inner_mode_parameterList.append({ entry("w") });
    QTest::newRow("of equal translated names the first counts")
        << manyTranslations << "C" << QStringList { "x", "x", "y" };
    QTest::newRow("a translated name without a plain one finds its list")
        << manyTranslations << "E" << QStringList { "w" };
    AUTH_INF nameless = itemWithTwoModes();
    nameless.inner_mode_nameList = QStringList { "A", "" };
    QTest::newRow("a mode with an empty name") << nameless << "" << QStringList { "y", "z" };
    QTest::newRow("the mode of a default item has no list")
        << AUTH_INF() << "Default" << QStringList();
    QTest::newRow("a mode without an inner list") << itemWithShortLists() << "B" << QStringList();
    QTest::newRow("entries without a key have an empty one")
        << itemWithShortEntries() << "A" << QStringList { QString(), QString() };
}

void TestAuthInf::keylistOfMode()
{
    QFETCH(AUTH_INF, item);
    QFETCH(QString, mode);
    QTEST(item.inner_mode_keylist_of(mode), "expected");
}

void TestAuthInf::containsInMode_data()
{
    QTest::addColumn<AUTH_INF>("item");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("expected");

    QTest::newRow("a key of the mode") << itemWithTwoModes() << "A"
                                       << "y" << true;
    QTest::newRow("a key of another mode") << itemWithTwoModes() << "A"
                                           << "z" << false;
    QTest::newRow("the mode by its translated name") << itemWithTwoModes() << "C"
                                                     << "z" << true;
    QTest::newRow("keys differ by case") << itemWithTwoModes() << "A"
                                         << "X" << false;
    QTest::newRow("modes differ by case") << itemWithTwoModes() << "c"
                                          << "z" << false;
    QTest::newRow("a plain name wins over an equal translated one") << itemWithTwoModes() << "B"
                                                                    << "x" << false;
    QTest::newRow("an unknown mode") << itemWithTwoModes() << "D"
                                     << "x" << false;
    QTest::newRow("a default item") << AUTH_INF() << "Default"
                                    << "x" << false;
    QTest::newRow("a mode without an inner list") << itemWithShortLists() << "B"
                                                  << "y" << false;
    QTest::newRow("an empty key of a short entry") << itemWithShortEntries() << "A"
                                                   << "" << true;
}

void TestAuthInf::containsInMode()
{
    QFETCH(AUTH_INF, item);
    QFETCH(QString, mode);
    QFETCH(QString, key);
    QTEST(item.inner_mode_contains(mode, key), "expected");
}

void TestAuthInf::containsInAnyMode_data()
{
    QTest::addColumn<AUTH_INF>("item");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("expected");

    AUTH_INF nameless = itemWithTwoModes();
    nameless.inner_mode_nameList.clear();

    QTest::newRow("a key of the first mode") << itemWithTwoModes() << "x" << true;
    QTest::newRow("a key of the last mode") << itemWithTwoModes() << "z" << true;
    QTest::newRow("an unknown key") << itemWithTwoModes() << "w" << false;
    QTest::newRow("keys differ by case") << itemWithTwoModes() << "Z" << false;
    QTest::newRow("a default item") << AUTH_INF() << "x" << false;
    QTest::newRow("without mode names nothing is found") << nameless << "x" << false;
    QTest::newRow("a name given twice hides the second list")
        << itemWithOneNameTwice() << "z" << false;
}

void TestAuthInf::containsInAnyMode()
{
    QFETCH(AUTH_INF, item);
    QFETCH(QString, key);
    QTEST(item.inner_mode_contains(key), "expected");
}

void TestAuthInf::belonglist_data()
{
    QTest::addColumn<AUTH_INF>("item");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("all modes in mode order")
        << itemWithTwoModes() << "y" << QStringList { "A", "B" };
    QTest::newRow("a key that stands twice names its mode once")
        << itemWithTwoModes() << "x" << QStringList { "A" };
    QTest::newRow("an unknown key") << itemWithTwoModes() << "w" << QStringList();
    QTest::newRow("a name given twice is listed twice")
        << itemWithOneNameTwice() << "x" << QStringList { "A", "A" };
    QTest::newRow("a mode without an inner list is left out")
        << itemWithShortLists() << "y" << QStringList { "A" };
    QTest::newRow("a default item") << AUTH_INF() << "x" << QStringList();
    QTest::newRow("a name given twice hides the second list")
        << itemWithOneNameTwice() << "z" << QStringList();
    QTest::newRow("keys differ by case") << itemWithTwoModes() << "Y" << QStringList();
    QTest::newRow("short entries have an empty key")
        << itemWithShortEntries() << "" << QStringList { "A" };
}

void TestAuthInf::belonglist()
{
    QFETCH(AUTH_INF, item);
    QFETCH(QString, key);
    QTEST(item.parameter_belonglist(key), "expected");
}

void TestAuthInf::randomItems_data()
{
    QTest::addColumn<unsigned>("seed");

    for (unsigned seed = 1; seed <= 200; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

/// Many modes and keys that are often equal, compared with the same questions asked mode by mode.
void TestAuthInf::randomItems()
{
    QFETCH(unsigned, seed);
    Dice dice(seed);
    const QStringList names { "A", "B", "C", "D" };
    const QStringList keys { "x", "y", "z", "" };
    AUTH_INF item;
    item.inner_mode_nameList = dice.someOf(names, dice.between(0, 6));
    item.inner_mode_nameList_tr = dice.someOf(names, dice.between(0, 6));
    for (int mode = dice.between(0, 6); mode > 0; --mode) {
        item.inner_mode_parameterList.append(QVector<QStringList>());
        for (int i = dice.between(0, 2); i > 0; --i)
            item.inner_mode_parameterList.last().append(entry(dice.oneOf(keys)));
    }

    for (const QString &key : keys) {
        QStringList modes;
        for (const QString &mode : qAsConst(item.inner_mode_nameList)) {
            if (item.inner_mode_keylist_of(mode).contains(key))
                modes.append(mode);
        }
        QCOMPARE(item.parameter_belonglist(key), modes);
        QCOMPARE(item.inner_mode_contains(key), !modes.isEmpty());
    }
}

void TestAuthInf::copiesAreIndependent()
{
    AUTH_INF item = itemWithTwoModes();
    const AUTH_INF copy = item;
    item.name = "other";
    item.inner_mode_nameList[0] = "other";
    item.inner_mode_parameterList[0][0][1] = "other";
    QCOMPARE(copy.name, QString("Default"));
    QCOMPARE(copy.inner_mode_nameList, (QStringList { "A", "B" }));
    QCOMPARE(copy.inner_mode_keylist_of("A"), (QStringList { "x", "x", "y" }));
}

void TestAuthInf::isKnownUnderBothNames()
{
    const bool isOneType = std::is_same<KeltoItem, AUTH_INF>::value;
    QVERIFY(isOneType);
}

void TestAuthInf::dataItem()
{
    const VDataItem empty;
    QCOMPARE(empty.key, QString());
    QCOMPARE(empty.value, QVariant());

    const VDataItem item("key", 12);
    QCOMPARE(item.key, QString("key"));
    QCOMPARE(item.value, QVariant(12));

    const QVector<VDataItem> items { { "a", 1 }, { "b", "text" } };
    QCOMPARE(items[1].key, QString("b"));
    QCOMPARE(items[1].value, QVariant("text"));
}

QTEST_GUILESS_MAIN(TestAuthInf)
#include "tst_auth_inf.moc"
