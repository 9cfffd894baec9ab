// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "support/moduleitems.h"
#include "support/registrycopies.h"

#include <QTest>

namespace {

AUTH_SET registry()
{
    AUTH_SET set;
    set.append(
        { exclusiveModule("P", "G", { "a", "b" }), exclusiveModule("Q", "H", { "c", "d" }) });
    set.current_group = "G";
    set.current_mode = "a";
    return set;
}

/// Everything that a change could show in.
QString state(const AUTH_SET &set)
{
    QString text = set.current_group + '/' + set.current_mode + '/' + set.stdModeNameForm("g", "m");
    for (int i = 0; i < set.model_count(); ++i)
        text += set.name(i) + ',';
    const QStringList groups = set.exclusive_group_namelist();
    for (const QString &group : groups)
        text += group + '=' + QString::number(set.exclusive_group_select(group)) + " of "
            + QString::number(set.exclusive_group_mode_count(group)) + ',';
    const Pairs modes = set.currentModeList();
    for (const Pair &mode : modes)
        text += mode.first + '|' + mode.second + ',';
    return text;
}

} // namespace

class TestAuthSetCopies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copiesDoNotSeeLaterChanges_data();
    void copiesDoNotSeeLaterChanges();
    void copiesDoNotSeeWritesThroughAnEarlierPointer();
    void aMovedFromRegistryStaysUsable();
    void selfAssignmentKeepsEverything();
};

void TestAuthSetCopies::copiesDoNotSeeLaterChanges_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, Change change) { QTest::newRow(name) << change; };

    row("current group", [](AUTH_SET &set) { set.current_group = "H"; });
    row("current mode", [](AUTH_SET &set) { set.current_mode = "b"; });
    row("append", [](AUTH_SET &set) { set.append(exclusiveModule("R", "G", { "e" })); });
    row("acquire", [](AUTH_SET &set) { set.acquire({ exclusiveModule("R", "G", { "e" }) }); });
    row("clear", [](AUTH_SET &set) { set.clear(); });
    row("set mode by position", [](AUTH_SET &set) { set.exclusive_group_set_mode("G", 1); });
    row("set mode by name", [](AUTH_SET &set) { set.exclusive_group_set_mode("H", "d"); });
    row("pointer", [](AUTH_SET &set) { *set.exclusive_group_mode_pointer("H") = 1; });
}

void TestAuthSetCopies::copiesDoNotSeeLaterChanges()
{
    QFETCH(Change, change);
    changeOneAfterTheOther(registry(), AUTH_SET(), state, change);
}

void TestAuthSetCopies::copiesDoNotSeeWritesThroughAnEarlierPointer()
{
    AUTH_SET original = registry();
    int *selection = original.exclusive_group_mode_pointer("G");
    const AUTH_SET copy(original);
    *selection = 1;
    QCOMPARE(original.exclusive_group_select("G"), 1);
    QCOMPARE(copy.exclusive_group_select("G"), 0);
}

void TestAuthSetCopies::aMovedFromRegistryStaysUsable()
{
    AUTH_SET original = registry();
    const QString before = state(original);
    const AUTH_SET taken(std::move(original));
    QCOMPARE(state(taken), before);
    // NOLINTNEXTLINE(bugprone-use-after-move): that this works is the point.
    original.acquire({ plainModule("R", "G", { "e" }) });
    QCOMPARE(original.model_count(), 1);
    QCOMPARE(state(taken), before);
}

void TestAuthSetCopies::selfAssignmentKeepsEverything()
{
    AUTH_SET set = registry();
    set.exclusive_group_set_mode("G", 1);
    const QString before = state(set);
    const AUTH_SET &same = set;
    set = same;
    QCOMPARE(state(set), before);
}

QTEST_GUILESS_MAIN(TestAuthSetCopies)
#include "tst_auth_set_copies.moc"
