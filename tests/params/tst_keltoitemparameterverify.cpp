// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/AUTH_INF>
#include <Kelto/KeltoItemParameterVerify>

#include <QTest>

using Verify = KeltoItemParameterVerify;
using Values = QVector<QPair<QString, QVariant>>;

namespace {

QStringList entry(const QString &key, const QString &group)
{
    return { group, key, "float", "false", "mm", "m", "s", key + " tr", group + " tr" };
}

/// "A" takes x and y of the groups "Load" and "Shape", "B" takes z, "Empty" nothing, the last has
/// no list. The translated name of "B" is that of no mode, that of "Empty" is "A".
AUTH_INF beam()
{
    AUTH_INF item;
    item.inner_mode_count = 4;
    item.inner_mode_nameList = QStringList { "A", "B", "Empty", "No list" };
    item.inner_mode_nameList_tr = QStringList { "甲", "乙", "A" };
    item.inner_mode_parameterList
        = { { entry("x", "Load"), entry("y", "Shape") }, { entry("z", "Load") }, {} };
    return item;
}

/// An item with the mode "A" alone, or twice.
AUTH_INF itemWith(const QVector<QVector<QStringList>> &lists)
{
    AUTH_INF item;
    item.inner_mode_nameList = QStringList { "A", "A" }.mid(0, lists.size());
    item.inner_mode_parameterList = lists;
    return item;
}

Values valuesOf(const QStringList &keys)
{
    Values values;
    for (const QString &key : keys)
        values.append({ key, QVariant() });
    return values;
}

} // namespace

Q_DECLARE_METATYPE(AUTH_INF)

class TestKeltoItemParameterVerify : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wantsAllParameters_data()
    {
        QTest::addColumn<AUTH_INF>("item");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<bool>("expected");

        const auto row = [](const char *name, const AUTH_INF &item, const QStringList &keys,
                            bool expected, const QString &mode = "A") {
            QTest::newRow(name) << item << keys << mode << expected;
        };
        const QStringList both { "Attribute/x", "Attribute/y" };
        row("all are there, in another order and among others", beam(),
            { "Other/k", "Attribute/y", "Attribute/w", "Attribute/x" }, true);
        row("the last is missing", beam(), { "Attribute/x" }, false);
        row("the first is missing", beam(), { "Attribute/y" }, false);
        row("the second mode", beam(), { "Attribute/z" }, true, "B");
        row("an unknown mode", beam(), both, false, "C");
        row("modes differ by case", beam(), both, false, "a");
        row("a translated mode name is unknown", beam(), { "Attribute/z" }, false, "乙");
        row("a mode without parameters", beam(), both, false, "Empty");
        row("a mode without a list", beam(), both, false, "No list");
        const AUTH_INF twice = itemWith({ { entry("x", "g") }, { entry("z", "g") } });
        row("of equal names the first counts", twice, { "Attribute/x" }, true);
        row("and not the second", twice, { "Attribute/z" }, false);

        const AUTH_INF x = itemWith({ { entry("x", "g"), entry("x", "h") } });
        row("a key wanted twice", x, { "Attribute/x" }, true);
        row("the key under another group", x, { "Unit/x" }, false);
        row("the group in lower case", x, { "attribute/x" }, false);
        row("the key in upper case", x, { "Attribute/X" }, false);
        row("the key nested deeper", x, { "Attribute/a/x" }, false);
        row("the translated key", x, { "Attribute/x tr" }, false);
        row("a parameter key with a slash", itemWith({ { entry("a/x", "g") } }),
            { "Attribute/a/x" }, true);
        const AUTH_INF nameless = itemWith({ { QStringList() } });
        row("an entry without strings has an empty key", nameless, { "Attribute/" }, true);
        row("an empty key that is missing", nameless, { "Attribute" }, false);
    }
    void wantsAllParameters()
    {
        QFETCH(AUTH_INF, item);
        QFETCH(QStringList, keys);
        QFETCH(QString, mode);
        const Values values = valuesOf(keys);
        QTEST(Verify::isValid(&item, &values, mode), "expected");
        QTEST(Verify::isValid(&item, &values, mode, QStringList()), "expected");
    }

    void skipsGroups_data()
    {
        QTest::addColumn<AUTH_INF>("item");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QStringList>("groups");
        QTest::addColumn<bool>("expected");

        const auto row = [](const char *name, const QStringList &groups, bool expected,
                            const QString &mode = "A", const AUTH_INF &item = beam()) {
            QTest::newRow(name) << item << mode << groups << expected;
        };
        row("by the plain name", { "Shape" }, true);
        row("by the translated name", { "Shape tr" }, true);
        row("the group of what is there", { "Load" }, false);
        row("all groups in different forms", { "Load tr", "Shape" }, true);
        row("groups differ by case", { "shape" }, false);
        row("an empty group is not every group", { "" }, false);
        row("no value is wanted", { "Load" }, true, "B");
        row("a mode without parameters stays invalid", { "Load", "Shape" }, false, "Empty");
        row("an unknown mode stays invalid", { "Load", "Shape" }, false, "C");
        row("a short entry has an empty translated group", { "" }, true, "A",
            itemWith({ { { "Load", "w" } } }));
    }
    void skipsGroups()
    {
        QFETCH(AUTH_INF, item);
        QFETCH(QString, mode);
        QFETCH(QStringList, groups);
        const Values values = valuesOf({ "Attribute/x" });
        QTEST(Verify::isValid(&item, &values, mode, groups), "expected");
        if (groups.size() == 1)
            QTEST(Verify::isValid(&item, &values, mode, groups.first()), "expected");
    }

    /// Not even those without a name.
    void skipsNoGroupUnasked()
    {
        const AUTH_INF item = itemWith({ { entry("x", "") } });
        const Values values;
        QVERIFY(!Verify::isValid(&item, &values, "A"));
        QVERIFY(Verify::isValid(&item, &values, "A", QString()));
    }

    void refusesNullPointers()
    {
        const AUTH_INF item = beam();
        const Values values = valuesOf({ "Attribute/z" });
        QVERIFY(!Verify::isValid(nullptr, &values, "B"));
        QVERIFY(!Verify::isValid(&item, nullptr, "B"));
        QVERIFY(!Verify::isValid(&item, nullptr, "B", QString("Load")));
    }
};

QTEST_GUILESS_MAIN(TestKeltoItemParameterVerify)
#include "tst_keltoitemparameterverify.moc"
