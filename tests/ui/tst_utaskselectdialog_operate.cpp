// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "dialogsupport.h"

#include "support/directorytest.h"

#include <limits>
#include <memory>

namespace {

/// Group, mode and selection of G and H, as far as an operation of the dialog can change them.
QString outcome(const AUTH_SET &registry)
{
    return registry.current_group + "/" + registry.current_mode + "/"
        + registry.currentExclusiveGroupSelect("G").first + "/"
        + registry.currentExclusiveGroupSelect("H").first;
}

/// twoGroups() with mode b selected in G, and a task that it does not have.
AUTH_SET registryInUse()
{
    AUTH_SET registry = twoGroups();
    registry.exclusive_group_set_mode("G", "b");
    registry.current_group = "old";
    registry.current_mode = "older";
    return registry;
}

} // namespace

class TestTaskSelectDialogOperate : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void operates_data();
    void operates();
    void acceptsAnyItem_data();
    void acceptsAnyItem();
    void operatesWithoutARegistry_data();
    void operatesWithoutARegistry();
    void operatesWithoutAnyMode_data();
    void operatesWithoutAnyMode();
    void leavesTheRegistryBehind();
};

void TestTaskSelectDialogOperate::operates_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("operateIndex");
    QTest::addColumn<QString>("outcome");

    QTest::newRow("accept the first") << 0 << 0 << 0 << "G/a/a/k";
    QTest::newRow("accept another") << 2 << 0 << 0 << "G/c/c/k";
    QTest::newRow("accept one of another group") << 3 << 0 << 0 << "H/k/b/k";
    QTest::newRow("accept without a current entry") << -1 << 0 << 0 << "old/older/b/k";
    QTest::newRow("cancel") << 2 << 1 << 1 << "old/older/b/k";
    QTest::newRow("default takes the first") << 2 << 2 << 0 << "G/a/a/k";
    QTest::newRow("default without a current entry") << -1 << 2 << 0 << "G/a/a/k";
    QTest::newRow("unknown id") << 2 << 3 << 3 << "old/older/b/k";
    QTest::newRow("negative id") << 2 << -1 << -1 << "old/older/b/k";
    const int lowest = std::numeric_limits<int>::min();
    QTest::newRow("lowest id") << 2 << lowest << lowest << "old/older/b/k";
}

void TestTaskSelectDialogOperate::operates()
{
    QFETCH(int, index);
    QFETCH(int, id);
    AUTH_SET registry = registryInUse();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    comboBox(dialog)->setCurrentIndex(index);
    dialog.operate(id);
    QTEST(dialog.operateIndex, "operateIndex");
    QTEST(outcome(registry), "outcome");
    QCOMPARE(dialog.currentItemIndex(), id == 2 ? 0 : index);
}

void TestTaskSelectDialogOperate::acceptsAnyItem_data()
{
    QTest::addColumn<Pair>("item");
    QTest::addColumn<QString>("outcome");

    const QString unchanged = "old/older/b/k";
    QTest::newRow("three fields") << Pair("App:G:c", "App:G_tr:c_tr") << "G/c/c/k";
    QTest::newRow("translated names are resolved by the registry")
        << Pair("App:G_tr:c_tr", "") << "G_tr/c_tr/c/k";
    QTest::newRow("the application is not compared") << Pair("Other:G:c", "") << "G/c/c/k";
    QTest::newRow("unknown mode") << Pair("App:G:x", "") << "G/x/b/k";
    QTest::newRow("unknown group") << Pair("App:X:c", "") << "X/c/b/k";
    QTest::newRow("empty fields are kept") << Pair("::", "") << "//b/k";
    QTest::newRow("empty mode") << Pair("App:G:", "") << "G//b/k";
    QTest::newRow("empty application") << Pair(":G:c", "") << "G/c/c/k";
    QTest::newRow("only the plain name counts") << Pair("x", "App:G:c") << unchanged;
    QTest::newRow("no field") << Pair("", "") << unchanged;
    QTest::newRow("one field") << Pair("App", "") << unchanged;
    QTest::newRow("two fields") << Pair("App:G", "") << unchanged;
    QTest::newRow("four fields") << Pair("App:G:c:d", "") << unchanged;
    QTest::newRow("four fields by an empty one") << Pair("App:G:c:", "") << unchanged;
    QTest::newRow("four fields, the first empty") << Pair(":App:G:c", "") << unchanged;
}

void TestTaskSelectDialogOperate::acceptsAnyItem()
{
    QFETCH(Pair, item);
    AUTH_SET registry = registryInUse();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    dialog.setItems({ item });
    dialog.operate(0);
    QTEST(outcome(registry), "outcome");
    QCOMPARE(dialog.operateIndex, 0);
}

void TestTaskSelectDialogOperate::operatesWithoutARegistry_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("operateIndex");
    QTest::addColumn<int>("index");

    QTest::newRow("accept") << 0 << 0 << 2;
    QTest::newRow("cancel") << 1 << 1 << 2;
    QTest::newRow("default") << 2 << 0 << 0;
    QTest::newRow("unknown id") << 99 << 99 << 2;
}

void TestTaskSelectDialogOperate::operatesWithoutARegistry()
{
    QFETCH(int, id);
    UTaskSelectDialog dialog;
    dialog.setItems(allModes());
    comboBox(dialog)->setCurrentIndex(2);
    dialog.operate(id);
    QTEST(dialog.operateIndex, "operateIndex");
    QTEST(dialog.currentItemIndex(), "index");
}

void TestTaskSelectDialogOperate::operatesWithoutAnyMode_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("operateIndex");

    QTest::newRow("accept") << 0 << 0;
    QTest::newRow("cancel") << 1 << 1;
    QTest::newRow("default") << 2 << 0;
}

void TestTaskSelectDialogOperate::operatesWithoutAnyMode()
{
    QFETCH(int, id);
    AUTH_SET registry;
    registry.current_group = "old";
    registry.current_mode = "older";
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    dialog.operate(id);
    QTEST(dialog.operateIndex, "operateIndex");
    QCOMPARE(dialog.currentItemIndex(), -1);
    QCOMPARE(outcome(registry), QString("old/older//"));
}

void TestTaskSelectDialogOperate::leavesTheRegistryBehind()
{
    AUTH_SET registry = twoGroups();
    registry.exclusive_group_set_mode("G", "b");
    auto dialog = std::make_unique<UTaskSelectDialog>();
    dialog->set(&registry);
    dialog.reset();
    QCOMPARE(outcome(registry), QString("//b/k"));
    QCOMPARE(registry.currentModeList(), allModes());
}

QTEST_MAIN(TestTaskSelectDialogOperate)
#include "tst_utaskselectdialog_operate.moc"
