// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/AUTH_INF>
#include <Kelto/KeltoItemParameterVerify>

#include <QTest>

namespace {

using Values = QVector<QPair<QString, QVariant>>;

QStringList entry(const QString &key, const QString &group)
{
    return { group, key, "float", "false", "mm", "m", "s", key + " tr", group + " tr" };
}

/// "A" takes x and y of the groups "Load" and "Shape", "B" takes z, and "Empty" nothing. The
/// translated name of "B" is that of no mode, that of "Empty" is "A".
AUTH_INF beam()
{
    AUTH_INF item;
    item.inner_mode_count = 3;
    item.inner_mode_nameList = QStringList { "A", "B", "Empty" };
    item.inner_mode_nameList_tr = QStringList { "甲", "乙", "A" };
    item.inner_mode_parameterList
        = { { entry("x", "Load"), entry("y", "Shape") }, { entry("z", "Load") }, {} };
    return item;
}

AUTH_INF itemWithEntries(const QVector<QStringList> &entries)
{
    AUTH_INF item;
    item.inner_mode_parameterList = { entries };
    return item;
}

AUTH_INF itemWithoutLists()
{
    AUTH_INF item = beam();
    item.inner_mode_parameterList.clear();
    return item;
}

AUTH_INF itemWithOneNameTwice()
{
    AUTH_INF item = beam();
    item.inner_mode_nameList = QStringList { "A", "A", "Empty" };
    return item;
}

Values valuesOf(const QStringList &keys)
{
    Values values;
    for (const QString &key : keys)
        values.append({ key, 1 });
    return values;
}

} // namespace

Q_DECLARE_METATYPE(AUTH_INF)

class TestKeltoItemParameterVerify : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wantsAllParameters_data();
    void wantsAllParameters();
    void skipsGroups_data();
    void skipsGroups();
    void skipsOneGroup_data();
    void skipsOneGroup();
    void doesNotLookAtValues_data();
    void doesNotLookAtValues();
    void refusesNullPointers_data();
    void refusesNullPointers();
    void changesNothing();
    void isCalledOnClassAndInstance();
};

void TestKeltoItemParameterVerify::wantsAllParameters_data()
{
    QTest::addColumn<AUTH_INF>("item");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<bool>("expected");

    const auto row
        = [](const char *name, const AUTH_INF &item, const QStringList &keys, const QString &mode,
             bool expected) { QTest::newRow(name) << item << keys << mode << expected; };
    const QStringList both { "Attribute/x", "Attribute/y" };
    row("all are there", beam(), both, "A", true);
    row("in another order and among others", beam(),
        { "Other/k", "Attribute/y", "Attribute/w", "Attribute/x" }, "A", true);
    row("a key given twice", beam(), { "Attribute/x", "Attribute/x", "Attribute/y" }, "A", true);
    row("the last is missing", beam(), { "Attribute/x" }, "A", false);
    row("the first is missing", beam(), { "Attribute/y" }, "A", false);
    row("no values", beam(), {}, "A", false);
    row("the values of another mode", beam(), both, "B", false);
    row("the second mode", beam(), { "Attribute/z" }, "B", true);
    row("an unknown mode", beam(), both, "C", false);
    row("an empty mode name", beam(), both, "", false);
    row("modes differ by case", beam(), both, "a", false);
    row("a translated mode name is unknown", beam(), { "Attribute/z" }, "乙", false);
    row("the plain name wins over an equal translated one", beam(), both, "A", true);
    row("a mode without parameters", beam(), both, "Empty", false);
    row("a default item", AUTH_INF(), both, "Default", false);
    row("a mode without a list", itemWithoutLists(), both, "A", false);
    row("of equal names the first counts", itemWithOneNameTwice(), both, "A", true);
    row("and not the second", itemWithOneNameTwice(), { "Attribute/z" }, "A", false);

    const AUTH_INF x = itemWithEntries({ entry("x", "Load") });
    row("the key under another group", x, { "Unit/x" }, "Default", false);
    row("the key alone", x, { "x" }, "Default", false);
    row("the group in lower case", x, { "attribute/x" }, "Default", false);
    row("the key in upper case", x, { "Attribute/X" }, "Default", false);
    row("the key nested deeper", x, { "Attribute/a/x" }, "Default", false);
    row("the translated key", x, { "Attribute/x tr" }, "Default", false);
    row("a key with spaces around it", x, { "Attribute/ x " }, "Default", false);
    row("a parameter key with a slash", itemWithEntries({ entry("a/x", "Load") }),
        { "Attribute/a/x" }, "Default", true);
    row("a Chinese key", itemWithEntries({ entry("长度", "Load") }), { "Attribute/长度" },
        "Default", true);
    row("an empty key", itemWithEntries({ entry("", "Load") }), { "Attribute/" }, "Default", true);
    row("an empty key that is missing", itemWithEntries({ entry("", "Load") }), { "Attribute" },
        "Default", false);
    row("a key wanted twice", itemWithEntries({ entry("x", "a"), entry("x", "b") }),
        { "Attribute/x" }, "Default", true);
    row("an entry without strings has an empty key", itemWithEntries({ QStringList() }),
        { "Attribute/" }, "Default", true);
    row("an entry of two strings has a key", itemWithEntries({ { "Load", "x" } }), {}, "Default",
        false);
}

void TestKeltoItemParameterVerify::wantsAllParameters()
{
    QFETCH(AUTH_INF, item);
    QFETCH(QStringList, keys);
    QFETCH(QString, mode);
    const Values values = valuesOf(keys);
    QTEST(KeltoItemParameterVerify::isValid(&item, &values, mode), "expected");
    QTEST(KeltoItemParameterVerify::isValid(&item, &values, mode, QStringList()), "expected");
}

void TestKeltoItemParameterVerify::skipsGroups_data()
{
    QTest::addColumn<AUTH_INF>("item");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QStringList>("groups");
    QTest::addColumn<bool>("expected");

    const auto row = [](const char *name, const AUTH_INF &item, const QStringList &keys,
                        const QString &mode, const QStringList &groups, bool expected) {
        QTest::newRow(name) << item << keys << mode << groups << expected;
    };
    const QStringList x { "Attribute/x" };
    row("a group by its plain name", beam(), x, "A", { "Shape" }, true);
    row("a group by its translated name", beam(), x, "A", { "Shape tr" }, true);
    row("the other group is still wanted", beam(), x, "A", { "Load" }, false);
    row("all groups, without any value", beam(), {}, "A", { "Shape", "Load" }, true);
    row("all groups in different forms", beam(), {}, "A", { "Load tr", "Shape" }, true);
    row("groups differ by case", beam(), x, "A", { "shape" }, false);
    row("a part of a group's name", beam(), x, "A", { "Shap" }, false);
    row("an unknown group", beam(), x, "A", { "none" }, false);
    row("an empty group is not every group", beam(), x, "A", { "" }, false);
    row("an entry without a group", itemWithEntries({ entry("x", "") }), {}, "Default", { "" },
        true);
    row("a short entry has an empty translated group", itemWithEntries({ { "Load", "x" } }), {},
        "Default", { "" }, true);
    row("a mode without parameters stays invalid", beam(), {}, "Empty", { "Load", "Shape" }, false);
    row("an unknown mode stays invalid", beam(), {}, "C", { "Load", "Shape" }, false);
    row("a translated mode name stays invalid", beam(), {}, "乙", { "Load" }, false);
}

void TestKeltoItemParameterVerify::skipsGroups()
{
    QFETCH(AUTH_INF, item);
    QFETCH(QStringList, keys);
    QFETCH(QString, mode);
    QFETCH(QStringList, groups);
    const Values values = valuesOf(keys);
    QTEST(KeltoItemParameterVerify::isValid(&item, &values, mode, groups), "expected");
}

void TestKeltoItemParameterVerify::skipsOneGroup_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<bool>("expected");

    QTest::newRow("by its plain name") << "Shape" << true;
    QTest::newRow("by its translated name") << "Shape tr" << true;
    QTest::newRow("the group of what is there") << "Load" << false;
    QTest::newRow("two groups in one text are none") << "Load,Shape" << false;
    QTest::newRow("an empty group") << "" << false;
}

void TestKeltoItemParameterVerify::skipsOneGroup()
{
    QFETCH(QString, group);
    const AUTH_INF item = beam();
    const Values values = valuesOf({ "Attribute/x" });
    QTEST(KeltoItemParameterVerify::isValid(&item, &values, "A", group), "expected");
}

void TestKeltoItemParameterVerify::doesNotLookAtValues_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("a number") << QVariant(1.5);
    QTest::newRow("an empty text") << QVariant("");
    QTest::newRow("false") << QVariant(false);
    QTest::newRow("an empty list") << QVariant(QStringList());
    QTest::newRow("an invalid value") << QVariant();
}

void TestKeltoItemParameterVerify::doesNotLookAtValues()
{
    QFETCH(QVariant, value);
    const AUTH_INF item = beam();
    const Values values { { "Attribute/z", value } };
    QVERIFY(KeltoItemParameterVerify::isValid(&item, &values, "B"));
}

void TestKeltoItemParameterVerify::refusesNullPointers_data()
{
    QTest::addColumn<bool>("hasItem");
    QTest::addColumn<bool>("hasValues");

    QTest::newRow("no item") << false << true;
    QTest::newRow("no values") << true << false;
    QTest::newRow("neither") << false << false;
}

void TestKeltoItemParameterVerify::refusesNullPointers()
{
    QFETCH(bool, hasItem);
    QFETCH(bool, hasValues);
    const AUTH_INF item = beam();
    const Values values = valuesOf({ "Attribute/z" });
    const AUTH_INF *itemOrNull = hasItem ? &item : nullptr;
    const Values *valuesOrNull = hasValues ? &values : nullptr;
    using Verify = KeltoItemParameterVerify;
    QCOMPARE(Verify::isValid(itemOrNull, valuesOrNull, "B"), false);
    QCOMPARE(Verify::isValid(itemOrNull, valuesOrNull, "B", QString("Load")), false);
    QCOMPARE(Verify::isValid(itemOrNull, valuesOrNull, "B", QStringList("Load")), false);
}

void TestKeltoItemParameterVerify::changesNothing()
{
    AUTH_INF item = beam();
    Values values = valuesOf({ "Attribute/y", "Attribute/x" });
    QVERIFY(KeltoItemParameterVerify::isValid(&item, &values, "A"));
    QCOMPARE(item.inner_mode_nameList, beam().inner_mode_nameList);
    QCOMPARE(item.inner_mode_parameterList, beam().inner_mode_parameterList);
    QCOMPARE(values, valuesOf({ "Attribute/y", "Attribute/x" }));
}

void TestKeltoItemParameterVerify::isCalledOnClassAndInstance()
{
    const AUTH_INF item = beam();
    const Values values = valuesOf({ "Attribute/z" });
    QVERIFY(KeltoItemParameterVerify::isValid(&item, &values, "B"));
    QVERIFY(KeltoItemParameterVerify().isValid(&item, &values, "B"));
}

QTEST_GUILESS_MAIN(TestKeltoItemParameterVerify)
#include "tst_keltoitemparameterverify.moc"
