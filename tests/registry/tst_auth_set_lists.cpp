// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Lists of parameters that a host hands in: merging them, what they share, finding in them.

#include "support/parametermodules.h"

#include <QTest>

#include <limits>

namespace {

const double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Parameters of one name with these values.
Parameters ofValues(const QVariantList &values)
{
    Parameters list;
    for (const QVariant &value : values)
        list.append(valued("x", value));
    return list;
}

/// The parameter of each entry with its position as its value.
Parameters numbered(const ParameterEntries &entries)
{
    Parameters list = parameters(entries);
    for (int i = 0; i < list.size(); ++i)
        list[i].set(QVariant(i));
    return list;
}

/// A parameter with all fields, of which the one at @p field differs from the others' where it is
/// not negative.
VParameter withOther(int field)
{
    const auto text = [field](int position, const char *plain) {
        return field == position ? QString("other") : QString(plain);
    };
    return VParameter(field == 0 ? 2 : 1, { text(1, "n"), text(2, "N") },
                      { text(3, "u"), text(4, "U") }, text(5, "s"), { text(6, "g"), text(7, "G") },
                      text(8, "float"), field == 9);
}

/// Columns for two lists and what comes of them, and a function that adds a row.
auto rowsOfTwoLists()
{
    QTest::addColumn<Parameters>("first");
    QTest::addColumn<Parameters>("second");
    QTest::addColumn<Parameters>("expected");
    return [](const char *name, const Parameters &first, const Parameters &second,
              const Parameters &expected) { QTest::newRow(name) << first << second << expected; };
}

/// So many others that what is looked up among them is no longer compared with each of them.
Parameters manyOthers()
{
    Parameters list;
    for (int i = 0; i < 100; ++i)
        list.append(valued("x", i));
    return list;
}

void addFieldRows()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<bool>("equal");
    const char *const fields[]
        = { "value",  "plain name",  "translated name",  "unit",        "second text of the unit",
            "symbol", "plain group", "translated group", "object name", "several values" };
    QTest::newRow("nothing") << -1 << true;
    int i = 0;
    for (const char *field : fields)
        QTest::newRow(field) << i++ << false;
}

} // namespace

class TestAuthSetLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void merges_data();
    void merges();
    void shares_data();
    void shares();
    void tellsParametersApartByEveryField_data();
    void tellsParametersApartByEveryField();
    void keepsItsArguments();
    void takesTheSameListTwice();
    void takesNothingForAnEmptyList();
    void findsTheFirst_data();
    void findsTheFirst();
    void findsByEveryField_data();
    void findsByEveryField();
    void findsNothingWithoutAListOrAParameter();
};

void TestAuthSetLists::merges_data()
{
    const auto row = rowsOfTwoLists();
    const Parameters ab = parameters({ entry("a"), entry("b") });
    row("two empty lists", {}, {}, {});
    row("an empty first one", {}, ab, ab);
    row("an empty second one", ab, {}, ab);
    row("sorted, capital letters first", parameters({ entry("beta"), entry("alpha") }),
        parameters({ entry("Alpha") }),
        parameters({ entry("Alpha"), entry("alpha"), entry("beta") }));
    row("equal ones of both", ab, parameters({ entry("b"), entry("c") }),
        parameters({ entry("a"), entry("b"), entry("c") }));
    row("equal ones inside of the first", ofValues({ 1, 1 }), {}, ofValues({ 1 }));
    row("equal ones inside of the second", {}, ofValues({ 1, 1 }), ofValues({ 1 }));
    row("equal ones inside of both", ofValues({ 1, 1 }), ofValues({ 1, 1 }), ofValues({ 1 }));
    row("both places of a name go to the first list's", ofValues({ 1 }), ofValues({ 2 }),
        ofValues({ 1, 1 }));
    row("all places of a name go to the first", ofValues({ 3, 1 }), ofValues({ 2, 1 }),
        ofValues({ 3, 3, 3 }));
    row("first means first in the lists and not by name", numbered({ entry("x"), entry("a") }),
        numbered({ entry("a"), entry("x") }),
        { valued("a", 1), valued("a", 1), valued("x", 0), valued("x", 0) });
    row("no value and a value", ofValues({ QVariant() }), ofValues({ 0 }),
        ofValues({ QVariant(), QVariant() }));
    row("no values", ofValues({ QVariant() }), ofValues({ QVariant() }), ofValues({ QVariant() }));
    row("a number and its text", ofValues({ 1 }), ofValues({ "1" }), ofValues({ 1 }));
    row("a text and its number", ofValues({ "1" }), ofValues({ 1 }), ofValues({ "1" }));
    row("a number that reads as another text", ofValues({ 1 }), ofValues({ "01" }),
        ofValues({ 1 }));
    row("a text that is another number's", ofValues({ "01" }), ofValues({ 1 }),
        ofValues({ "01", "01" }));
    row("only those that stay count", ofValues({ 1, "01" }), ofValues({ QStringList { "01" } }),
        ofValues({ 1, 1 }));
    row("what is not a number", ofValues({ notANumber }), ofValues({ notANumber }),
        ofValues({ notANumber, notANumber }));
    row("names that differ in case", parameters({ entry("x") }), parameters({ entry("X") }),
        parameters({ entry("X"), entry("x") }));
    row("symbols that differ in case", parameters({ entry("x", "e") }),
        parameters({ entry("x", "E") }), parameters({ entry("x", "e"), entry("x", "e") }));
    row("empty parameters come first", parameters({ entry("a") }),
        { VParameter(), VParameter(QStringList()) }, { VParameter(), valued("a", QVariant()) });
}

void TestAuthSetLists::merges()
{
    QFETCH(Parameters, first);
    QFETCH(Parameters, second);
    QFETCH(Parameters, expected);
    QCOMPARE(shown(AUTH_SET().mergingList(&first, &second)), shown(expected));
}

void TestAuthSetLists::shares_data()
{
    const auto row = rowsOfTwoLists();
    const Parameters ab = parameters({ entry("a"), entry("b") });
    row("two empty lists", {}, {}, {});
    row("an empty first one", {}, ab, {});
    row("an empty second one", ab, {}, {});
    row("nothing in common", ab, parameters({ entry("c") }), {});
    row("sorted, capital letters first",
        parameters({ entry("beta"), entry("alpha"), entry("q"), entry("Alpha") }),
        parameters({ entry("alpha"), entry("Alpha"), entry("beta") }),
        parameters({ entry("Alpha"), entry("alpha"), entry("beta") }));
    row("equal ones of the first are kept", ofValues({ 1, 2, 1 }), ofValues({ 1 }),
        ofValues({ 1, 1 }));
    row("equal ones of the second add nothing", ofValues({ 1 }), ofValues({ 1, 1, 1 }),
        ofValues({ 1 }));
    row("only what is equal", ofValues({ 1, 2 }), ofValues({ 2, 3 }), ofValues({ 2 }));
    row("all places of a name go to the first that is shared", ofValues({ 1, 3, 2 }),
        ofValues({ 2, 3 }), ofValues({ 3, 3 }));
    row("values of the first list", ofValues({ 1 }), ofValues({ "1" }), ofValues({ 1 }));
    row("a text that reads as a number of the second", ofValues({ "01" }), ofValues({ 1 }),
        ofValues({ "01" }));
    row("a number that has another text than the second", ofValues({ 1 }), ofValues({ "01" }), {});
    row("equal to the second of two equal texts and numbers", ofValues({ QStringList { "01" } }),
        ofValues({ 1, "01" }), ofValues({ QStringList { "01" } }));
    row("equal to the second of two numbers with rounding", ofValues({ 1 + 16e-13 }),
        ofValues({ 1.0, 1 + 8e-13 }), ofValues({ 1 + 16e-13 }));
    row("no values", ofValues({ QVariant() }), ofValues({ QVariant() }), ofValues({ QVariant() }));
    row("no value and a value", ofValues({ QVariant() }), ofValues({ 0 }), {});
    row("what is not a number", ofValues({ notANumber, 1 }), ofValues({ 1, notANumber }),
        ofValues({ 1 }));
    row("names that differ in case", parameters({ entry("x") }), parameters({ entry("X") }), {});
    row("empty parameters come first", { valued("a", 1), VParameter(), VParameter() },
        { VParameter(QStringList()), valued("a", 1) },
        { VParameter(), VParameter(), valued("a", 1) });
}

void TestAuthSetLists::shares()
{
    QFETCH(Parameters, first);
    QFETCH(Parameters, second);
    QFETCH(Parameters, expected);
    QCOMPARE(shown(AUTH_SET().sharingList(&first, &second)), shown(expected));
}

void TestAuthSetLists::tellsParametersApartByEveryField_data()
{
    addFieldRows();
}

void TestAuthSetLists::tellsParametersApartByEveryField()
{
    QFETCH(int, field);
    QFETCH(bool, equal);
    const AUTH_SET set;
    const Parameters first { withOther(-1) };
    const Parameters second { withOther(field) };
    QCOMPARE(set.mergingList(&first, &second).size(), equal ? 1 : 2);
    QCOMPARE(shown(set.sharingList(&first, &second)), equal ? shown(first) : QStringList());

    const Parameters others = manyOthers();
    const Parameters many = others + second;
    QCOMPARE(set.mergingList(&first, &many).size(), others.size() + (equal ? 1 : 2));
    QCOMPARE(shown(set.sharingList(&first, &many)), equal ? shown(first) : QStringList());
}

void TestAuthSetLists::keepsItsArguments()
{
    const AUTH_SET set;
    const Parameters first = ofValues({ 2, 1, 2 });
    const Parameters second = parameters({ entry("b"), entry("a") });
    const Parameters merged = set.mergingList(&first, &second);
    QCOMPARE(merged.size(), 4);
    QCOMPARE(set.sharingList(&first, &second).size(), 0);
    QCOMPARE(shown(first), shown(ofValues({ 2, 1, 2 })));
    QCOMPARE(shown(second), shown(parameters({ entry("b"), entry("a") })));
}

void TestAuthSetLists::takesTheSameListTwice()
{
    const AUTH_SET set;
    Parameters list = ofValues({ 1, 1 }) + parameters({ entry("b"), entry("a"), entry("b") });
    const Parameters merged = set.mergingList(&list, &list);
    QCOMPARE(shown(merged), shown(parameters({ entry("a"), entry("b") }) + ofValues({ 1 })));
    const Parameters shared = set.sharingList(&list, &list);
    QCOMPARE(shown(shared),
             shown(parameters({ entry("a"), entry("b"), entry("b") }) + ofValues({ 1, 1 })));
    list = set.mergingList(&list, &list);
    QCOMPARE(shown(list), shown(merged));
}

void TestAuthSetLists::takesNothingForAnEmptyList()
{
    const AUTH_SET set;
    const Parameters list = ofValues({ 1, 1 });
    const Parameters merged = ofValues({ 1 });
    QCOMPARE(shown(set.mergingList(nullptr, &list)), shown(merged));
    QCOMPARE(shown(set.mergingList(&list, nullptr)), shown(merged));
    QCOMPARE(shown(set.mergingList(nullptr, nullptr)), QStringList());
    QCOMPARE(shown(set.sharingList(nullptr, &list)), QStringList());
    QCOMPARE(shown(set.sharingList(&list, nullptr)), QStringList());
    QCOMPARE(shown(set.sharingList(nullptr, nullptr)), QStringList());
}

void TestAuthSetLists::findsTheFirst_data()
{
    QTest::addColumn<Parameters>("list");
    QTest::addColumn<VParameter>("parameter");
    QTest::addColumn<int>("expected");

    const auto row = [](const char *name, const Parameters &list, const VParameter &parameter,
                        int expected) { QTest::newRow(name) << list << parameter << expected; };
    row("in an empty list", {}, valued("x", 1), -1);
    row("unknown", ofValues({ 1, 2 }), valued("x", 3), -1);
    row("the only one", ofValues({ 1 }), valued("x", 1), 0);
    row("the last one", ofValues({ 1, 2, 3 }), valued("x", 3), 2);
    row("the first of two", ofValues({ 1, 2, 2 }), valued("x", 2), 1);
    row("the first that is equal across types", ofValues({ "01", 1, "1" }), valued("x", "1"), 1);
    row("an empty parameter", { valued("x", 1), VParameter() }, VParameter(), 1);
    row("no value", ofValues({ 0, "", QVariant() }), valued("x", QVariant()), 2);
    row("what is not a number", ofValues({ notANumber }), valued("x", notANumber), -1);
    row("name in another case", ofValues({ 1 }), valued("X", 1), -1);
    row("symbol in another case", { valued("x", 1, "e") }, valued("x", 1, "E"), -1);
}

void TestAuthSetLists::findsTheFirst()
{
    QFETCH(Parameters, list);
    QFETCH(VParameter, parameter);
    QFETCH(int, expected);
    const AUTH_SET set;
    QCOMPARE(set.indexParameterInList(&list, &parameter), expected);
    QCOMPARE(set.isParameterContains(&list, &parameter), expected >= 0);
}

void TestAuthSetLists::findsByEveryField_data()
{
    addFieldRows();
}

void TestAuthSetLists::findsByEveryField()
{
    QFETCH(int, field);
    QFETCH(bool, equal);
    const AUTH_SET set;
    const Parameters list { withOther(-1) };
    const VParameter parameter = withOther(field);
    QCOMPARE(set.indexParameterInList(&list, &parameter), equal ? 0 : -1);
    QCOMPARE(set.isParameterContains(&list, &parameter), equal);
}

void TestAuthSetLists::findsNothingWithoutAListOrAParameter()
{
    const AUTH_SET set;
    const Parameters list { VParameter() };
    const VParameter parameter;
    QCOMPARE(set.indexParameterInList(nullptr, &parameter), -1);
    QCOMPARE(set.indexParameterInList(&list, nullptr), -1);
    QCOMPARE(set.indexParameterInList(nullptr, nullptr), -1);
    QCOMPARE(set.isParameterContains(nullptr, &parameter), false);
    QCOMPARE(set.isParameterContains(&list, nullptr), false);
    QCOMPARE(set.isParameterContains(nullptr, nullptr), false);
}

QTEST_GUILESS_MAIN(TestAuthSetLists)
#include "tst_auth_set_lists.moc"
