// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/AUTH_SET>

#include "support/directorytest.h"
#include "support/moduleitems.h"
#include "support/testfiles.h"

#include <QDir>
#include <QTest>

Q_DECLARE_METATYPE(AUTH_INF)

namespace {

/// Name, type and group of a module are told apart by their prefix, and from their translations by
/// the suffix.
AUTH_INF module(const QString &suffix, const QString &type, const QString &group)
{
    AUTH_INF item = plainModule("name " + suffix, group, { "mode" });
    item.description = "description " + suffix;
    item.type = type;
    item.type_tr = translated(type);
    return item;
}

QVector<AUTH_INF> threeModules()
{
    return { module("0", "type a", "group x"), module("1", "type b", "group y"),
             module("2", "type a", "group y") };
}

QStringList names(const QVector<AUTH_INF> &items)
{
    QStringList result;
    for (const AUTH_INF &item : items)
        result.append(item.name);
    return result;
}

QVector<int> numbers(const QVector<AUTH_INF> &items)
{
    QVector<int> result;
    for (const AUTH_INF &item : items)
        result.append(item.number);
    return result;
}

} // namespace

class TestAuthSet : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void withoutModulesItLogsAndForgetsItsName();
    void numbersModulesByPosition_data();
    void numbersModulesByPosition();
    void leavesTheHostsItemsAlone();
    void sharesItemsThatAreNumberedRightly();
    void keepsWhatWasAccepted();
    void replacesModules();
    void appendsOneAndMany();
    void checkedAccessors_data();
    void checkedAccessors();
    void uncheckedAccessors();
    void uncheckedAccessorsSurviveABadIndex_data();
    void uncheckedAccessorsSurviveABadIndex();
    void modelGroupCountsExclusiveGroups_data();
    void modelGroupCountsExclusiveGroups();
    void informationByName_data();
    void informationByName();
    void findsModulesByName_data();
    void findsModulesByName();
    void findsNamesThatWereAddedLater();
    void forgetsNamesThatWereReplaced();
    void filtersByType_data();
    void filtersByType();
    void filtersByGroup_data();
    void filtersByGroup();
    void clearDropsTheModules();
    void clearKeepsNamesAndSelections();
    void afterClearTheGroupsComeBack_data();
    void afterClearTheGroupsComeBack();
};

void TestAuthSet::startsEmpty()
{
    const AUTH_SET set;
    QCOMPARE(set.model_count(), 0);
    QCOMPARE(set.AUTH_INF_DATA().size(), 0);
    QCOMPARE(set.current_group, QString());
    QCOMPARE(set.current_mode, QString());
    QCOMPARE(set.stdModeNameForm("G", "M"), QString(":G:M"));
    QCOMPARE(filesIn("."), QStringList());
}

void TestAuthSet::withoutModulesItLogsAndForgetsItsName()
{
    const AUTH_SET set("App", "1.0", {});
    QCOMPARE(set.model_count(), 0);
    QCOMPARE(set.stdModeNameForm("G", "M"), QString(":G:M"));

    // The log is that of an application without a name, since the name is not kept.
    const QStringList logs = QDir("log").entryList(QDir::Files);
    QCOMPARE(logs.size(), 1);
    QVERIFY2(logs.first().endsWith("_.log"), qPrintable(logs.first()));
    const QString text = QString::fromUtf8(fileContent("log/" + logs.first()));
    QCOMPARE(text.mid(20), QString("Kelto的模块录入不能为空\n"));
    QCOMPARE(QDir("Config").exists(), false);
}

void TestAuthSet::numbersModulesByPosition_data()
{
    QTest::addColumn<QVector<int>>("given");
    QTest::addColumn<QVector<int>>("expected");

    QTest::newRow("doubles and gaps") << QVector<int> { 7, 7, 3 } << QVector<int> { 0, 1, 2 };
    QTest::newRow("numbers that are right") << QVector<int> { 0, 1 } << QVector<int> { 0, 1 };
    QTest::newRow("negative numbers") << QVector<int> { -1 } << QVector<int> { 0 };
}

void TestAuthSet::numbersModulesByPosition()
{
    QFETCH(QVector<int>, given);
    QVector<AUTH_INF> items;
    for (int number : qAsConst(given)) {
        items.append(AUTH_INF());
        items.last().number = number;
    }
    const AUTH_SET set("App", "1.0", items);
    QTEST(numbers(set.AUTH_INF_DATA()), "expected");
}

void TestAuthSet::leavesTheHostsItemsAlone()
{
    QVector<AUTH_INF> items = threeModules();
    items[0].number = 9;
    AUTH_SET set("App", "1.0", items);
    QCOMPARE(items.at(0).number, 9);

    QVector<AUTH_INF> handedOut = set.AUTH_INF_DATA();
    handedOut[0].name = "changed";
    QCOMPARE(set.name(0), QString("name 0"));
}

void TestAuthSet::sharesItemsThatAreNumberedRightly()
{
    QVector<AUTH_INF> items = threeModules();
    for (int i = 0; i < items.size(); ++i)
        items[i].number = i;
    AUTH_SET set;
    set.acquire(items);
    QVERIFY(set.AUTH_INF_DATA().isSharedWith(items));
}

void TestAuthSet::keepsWhatWasAccepted()
{
    AUTH_SET set("App", "1.0", threeModules());
    set.current_group = "G";
    set.current_mode = "M";
    set.acquire(threeModules());
    set.append(module("3", "t", "g"));
    set.refresh_group();
    set.clear();
    QCOMPARE(set.current_group, QString("G"));
    QCOMPARE(set.current_mode, QString("M"));
    QCOMPARE(set.stdModeNameForm("G", "M"), QString("App:G:M"));
}

void TestAuthSet::replacesModules()
{
    AUTH_SET set("App", "1.0", threeModules());
    set.acquire({ module("9", "t", "g"), module("8", "t", "g") });
    QCOMPARE(names(set.AUTH_INF_DATA()), (QStringList { "name 9", "name 8" }));
    QCOMPARE(numbers(set.AUTH_INF_DATA()), (QVector<int> { 0, 1 }));

    set.acquire({});
    QCOMPARE(set.model_count(), 0);
}

void TestAuthSet::appendsOneAndMany()
{
    AUTH_SET set;
    set.append(module("0", "t", "g"));
    set.append({ module("1", "t", "g"), module("2", "t", "g") });
    set.append(QVector<AUTH_INF>());
    set.append(module("3", "t", "g"));
    QCOMPARE(names(set.AUTH_INF_DATA()), (QStringList { "name 0", "name 1", "name 2", "name 3" }));
    QCOMPARE(numbers(set.AUTH_INF_DATA()), (QVector<int> { 0, 1, 2, 3 }));
    QCOMPARE(set.model_count(), 4);
}

void TestAuthSet::checkedAccessors_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("information");

    QTest::newRow("first") << 0 << "name 0"
                           << "description 0";
    QTest::newRow("last") << 2 << "name 2"
                          << "description 2";
    QTest::newRow("behind the last") << 3 << ""
                                     << "";
    QTest::newRow("negative") << -1 << ""
                              << "";
    QTest::newRow("far out") << 2147483647 << ""
                             << "";
}

void TestAuthSet::checkedAccessors()
{
    const AUTH_SET set("App", "1.0", threeModules());
    QFETCH(int, index);
    QTEST(set.name(index), "name");
    QTEST(set.information(index), "information");
}

void TestAuthSet::uncheckedAccessors()
{
    const AUTH_SET set("App", "1.0", threeModules());
    QCOMPARE(set.model_data(1), QString("description 1"));
    QCOMPARE(set.model_name(1), QString("name 1"));
    QCOMPARE(set.model_name_global(1), QString("name 1_tr"));
    QCOMPARE(set.model_type(1), QString("type b"));
    QCOMPARE(set.model_type_global(1), QString("type b_tr"));
}

void TestAuthSet::uncheckedAccessorsSurviveABadIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("behind the last") << 3;
    QTest::newRow("negative") << -1;
    QTest::newRow("lowest") << -2147483647 - 1;
}

void TestAuthSet::uncheckedAccessorsSurviveABadIndex()
{
    const AUTH_SET set("App", "1.0", threeModules());
    QFETCH(int, index);
    QCOMPARE(set.model_data(index), QString());
    QCOMPARE(set.model_name(index), QString());
    QCOMPARE(set.model_name_global(index), QString());
    QCOMPARE(set.model_type(index), QString());
    QCOMPARE(set.model_type_global(index), QString());
}

void TestAuthSet::modelGroupCountsExclusiveGroups_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("translatedGroup");

    QTest::newRow("the first exclusive group, not the first module") << 0 << "H"
                                                                     << "H_tr";
    QTest::newRow("the second exclusive group") << 1 << "I"
                                                << "I_tr";
    QTest::newRow("behind the last") << 2 << ""
                                     << "";
    QTest::newRow("negative") << -1 << ""
                              << "";
}

void TestAuthSet::modelGroupCountsExclusiveGroups()
{
    const AUTH_SET set("App", "1.0",
                       { plainModule("a", "G", { "m" }), exclusiveModule("b", "H", { "m" }),
                         exclusiveModule("c", "H", { "m" }), exclusiveModule("d", "I", { "m" }) });
    QFETCH(int, index);
    QTEST(set.model_group(index), "group");
    QTEST(set.model_group_global(index), "translatedGroup");

    const AUTH_SET withoutGroups("App", "1.0", { plainModule("a", "G", { "m" }) });
    QCOMPARE(withoutGroups.model_group(index), QString());
    QCOMPARE(withoutGroups.model_group_global(index), QString());
}

void TestAuthSet::informationByName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");

    QTest::newRow("known") << "name 2"
                           << "description 2";
    QTest::newRow("unknown") << "name 3"
                             << "";
    QTest::newRow("a translated name is unknown") << "name 2_tr"
                                                  << "";
    QTest::newRow("names differ by case") << "Name 2"
                                          << "";
}

void TestAuthSet::informationByName()
{
    const AUTH_SET set("App", "1.0", threeModules());
    QFETCH(QString, name);
    QTEST(set.information(name), "expected");
}

void TestAuthSet::findsModulesByName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("exists");

    QTest::newRow("of equal names the first counts") << "x" << 1 << true;
    QTest::newRow("a translated name exists and has no index") << "y_tr" << -1 << true;
    QTest::newRow("a plain name that is a translated one earlier") << "x_tr" << 3 << true;
    QTest::newRow("names differ by case") << "X" << -1 << false;
    QTest::newRow("unknown") << "z" << -1 << false;
    QTest::newRow("empty") << "" << -1 << false;
}

void TestAuthSet::findsModulesByName()
{
    const AUTH_SET set("App", "1.0",
                       { plainModule("y", "g", { "m" }), plainModule("x", "g", { "m" }),
                         plainModule("x", "g", { "m" }), plainModule("x_tr", "g", { "m" }) });
    QFETCH(QString, name);
    QTEST(set.index(name), "index");
    QTEST(set.model_exists(name), "exists");

    const AUTH_SET empty;
    QCOMPARE(empty.index(name), -1);
    QCOMPARE(empty.model_exists(name), false);
}

void TestAuthSet::findsNamesThatWereAddedLater()
{
    AUTH_SET set("App", "1.0", { plainModule("a", "g", { "m" }) });
    QCOMPARE(set.index("b"), -1);
    set.append(plainModule("b", "g", { "m" }));
    QCOMPARE(set.index("a"), 0);
    QCOMPARE(set.index("b"), 1);
    set.append({ plainModule("b", "g", { "m" }), plainModule("c", "g", { "m" }) });
    QCOMPARE(set.index("b"), 1);
    QCOMPARE(set.index("c"), 3);
    QCOMPARE(set.model_exists("c_tr"), true);
}

void TestAuthSet::forgetsNamesThatWereReplaced()
{
    AUTH_SET set("App", "1.0", { plainModule("a", "g", { "m" }), plainModule("b", "g", { "m" }) });
    QCOMPARE(set.index("b"), 1);
    set.acquire({ plainModule("b", "g", { "m" }) });
    QCOMPARE(set.index("a"), -1);
    QCOMPARE(set.index("b"), 0);
    QCOMPARE(set.model_exists("a_tr"), false);
    set.clear();
    QCOMPARE(set.index("b"), -1);
    QCOMPARE(set.model_exists("b_tr"), false);
}

void TestAuthSet::filtersByType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("in registry order") << "type a" << QStringList { "name 0", "name 2" };
    QTest::newRow("one") << "type b" << QStringList { "name 1" };
    QTest::newRow("a translated type is unknown") << "type a_tr" << QStringList();
    QTest::newRow("types differ by case") << "Type a" << QStringList();
}

void TestAuthSet::filtersByType()
{
    const AUTH_SET set("App", "1.0", threeModules());
    QFETCH(QString, type);
    QTEST(names(set.AUTH_INF_list_by_type(type)), "expected");
}

void TestAuthSet::filtersByGroup_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("in registry order") << "group y" << QStringList { "name 1", "name 2" };
    QTest::newRow("one") << "group x" << QStringList { "name 0" };
    QTest::newRow("a translated group is unknown") << "group x_tr" << QStringList();
    QTest::newRow("groups differ by case") << "GROUP X" << QStringList();
}

void TestAuthSet::filtersByGroup()
{
    const AUTH_SET set("App", "1.0", threeModules());
    QFETCH(QString, group);
    const QVector<AUTH_INF> found = set.AUTH_INF_list_by_group(group);
    QTEST(names(found), "expected");
    for (const AUTH_INF &item : found)
        QCOMPARE(set.name(item.number), item.name);
}

void TestAuthSet::clearDropsTheModules()
{
    AUTH_SET set("App", "1.0", threeModules());
    set.clear();
    QCOMPARE(set.model_count(), 0);
    QCOMPARE(set.name(0), QString());
    QCOMPARE(set.AUTH_INF_DATA().size(), 0);
    QCOMPARE(set.AUTH_INF_list_by_group("group y").size(), 0);
    QCOMPARE(set.stdModeNameForm("G", "M"), QString("App:G:M"));
}

void TestAuthSet::clearKeepsNamesAndSelections()
{
    AUTH_SET set("App", "1.0", { exclusiveModule("a", "G", { "m", "n" }) });
    set.exclusive_group_set_mode("G", 1);
    set.clear();

    QCOMPARE(set.exclusive_group_namelist(), QStringList { "G" });
    QCOMPARE(set.exclusive_group_namelist_global(), QStringList { "G_tr" });
    QCOMPARE(set.currentExclusiveGroupList(), (Pairs { { "G", "G_tr" } }));
    QCOMPARE(set.model_group(0), QString("G"));
    QCOMPARE(set.exclusive_group_select("G_tr"), 1);
    // The modes are gone all the same.
    QCOMPARE(set.exclusive_group_mode_count("G"), 0);
    QCOMPARE(set.exclusive_group_inner_mode_namelist_at("G"), Pairs());
    QCOMPARE(set.currentExclusiveGroupSelect("G"), Pair());
    QCOMPARE(set.currentModeList(), Pairs());
    set.exclusive_group_set_mode("G", 0);
    QCOMPARE(set.exclusive_group_select("G"), 1);
}

void TestAuthSet::afterClearTheGroupsComeBack_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<QStringList>("groups");

    QTest::newRow("refresh_group finds no module") << "refresh" << QStringList();
    QTest::newRow("append takes the new module only") << "append" << QStringList { "H" };
    QTest::newRow("append of many") << "appendMany" << QStringList { "H" };
    QTest::newRow("append of none") << "appendNone" << QStringList();
    QTest::newRow("acquire") << "acquire" << QStringList { "H" };
}

void TestAuthSet::afterClearTheGroupsComeBack()
{
    AUTH_SET set("App", "1.0", { exclusiveModule("a", "G", { "m", "n" }) });
    set.exclusive_group_set_mode("G", 1);
    set.clear();

    const AUTH_INF item = exclusiveModule("b", "H", { "m", "n" });
    QFETCH(QString, how);
    if (how == "refresh")
        set.refresh_group();
    else if (how == "append")
        set.append(item);
    else if (how == "appendMany")
        set.append(QVector<AUTH_INF> { item });
    else if (how == "appendNone")
        set.append(QVector<AUTH_INF>());
    else
        set.acquire({ item });

    QTEST(set.exclusive_group_namelist(), "groups");
    QCOMPARE(set.exclusive_group_select("G"), -1);
    QCOMPARE(set.exclusive_group_mode_count("H"), set.model_count() * 2);
}

QTEST_GUILESS_MAIN(TestAuthSet)
#include "tst_auth_set.moc"
