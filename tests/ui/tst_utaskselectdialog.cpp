// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "dialogsupport.h"

#include "support/temporarycurrentdirectory.h"

#include <functional>

using Reset = std::function<void(UTaskSelectDialog &)>;
Q_DECLARE_METATYPE(Reset)
Q_DECLARE_METATYPE(AUTH_SET)

#include <utility>

namespace {

/// A registry in which the plain name of the first group is the translated one of the second.
AUTH_SET crossedGroups()
{
    AUTH_INF second = exclusiveModule("Q", "H", { "k" });
    second.group_tr = "G";
    return AUTH_SET("App", "1.0", { exclusiveModule("P", "G", { "a" }), second });
}

/// Groups G and H share their translated name, so that there is an empty one for H.
AUTH_SET sharedTranslation()
{
    AUTH_INF first = exclusiveModule("P", "G", { "a" });
    AUTH_INF second = exclusiveModule("Q", "H", { "k" });
    first.group_tr = "T";
    second.group_tr = "T";
    return AUTH_SET("App", "1.0", { first, second });
}

AUTH_SET oneGroup(const QString &application, const QString &group)
{
    return AUTH_SET(application, "1.0", { exclusiveModule("P", group, { "a" }) });
}

} // namespace

class TestTaskSelectDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isEmptyAtFirst();
    void offersAllModesOfTheRegistry();
    void offersTheModesOfAnotherRegistry();
    void unbindsAndEmpties();
    void replacesItems_data();
    void replacesItems();
    void survivesAListenerThatNarrowsTheOffer();
    void narrowsToAGroup_data();
    void narrowsToAGroup();
    void narrowsAnewEachTime();
    void returnsToAllModes();
    void offersModesAddedLater();
    void offersNothingWithoutARegistry_data();
    void offersNothingWithoutARegistry();
    void tellsTheCurrentItem_data();
    void tellsTheCurrentItem();
    void listsMembers();
    void matchesCodes_data();
    void matchesCodes();
    void matchesCodesOfTheRegistry();

private:
    TemporaryCurrentDirectory m_directory;
};

void TestTaskSelectDialog::initTestCase()
{
    QVERIFY(m_directory.isUsable());
}

void TestTaskSelectDialog::isEmptyAtFirst()
{
    const UTaskSelectDialog dialog;
    QCOMPARE(dialog.operateIndex, -1);
    QCOMPARE(shownTexts(dialog), QStringList());
    QCOMPARE(dialog.currentItemIndex(), -1);
    QCOMPARE(dialog.currentItem(), Pair("", ""));
    QCOMPARE(dialog.availableModeItems(), Pairs());
}

void TestTaskSelectDialog::offersAllModesOfTheRegistry()
{
    AUTH_SET registry = twoGroups();
    registry.exclusive_group_set_mode("G", "c");
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    QCOMPARE(dialog.availableModeItems(), allModes());
    QCOMPARE(shownTexts(dialog),
             QStringList({ "App:G_tr:a_tr", "App:G_tr:b_tr", "App:G_tr:c_tr", "App:H_tr:k_tr" }));
    QCOMPARE(dialog.currentItem(), mode("G", "a"));
}

void TestTaskSelectDialog::offersTheModesOfAnotherRegistry()
{
    AUTH_SET registry = twoGroups();
    AUTH_SET other = oneGroup("Other", "Z");
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    dialog.set(&other);
    QCOMPARE(shownTexts(dialog), QStringList("Other:Z_tr:a_tr"));
    dialog.operate(0);
    QCOMPARE(other.current_mode, QString("a"));
    QCOMPARE(registry.current_mode, QString());
}

void TestTaskSelectDialog::unbindsAndEmpties()
{
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    dialog.set(nullptr);
    QCOMPARE(shownTexts(dialog), QStringList());
    QCOMPARE(dialog.availableModeItems(), Pairs());
    dialog.setItems(allModes());
    dialog.operate(0);
    QCOMPARE(registry.current_mode, QString());
}

void TestTaskSelectDialog::replacesItems_data()
{
    QTest::addColumn<Pairs>("items");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<Pair>("current");

    QTest::newRow("second members are shown")
        << Pairs { { "x", "y" }, { "v", "w" } } << QStringList { "y", "w" } << Pair("x", "y");
    QTest::newRow("equal items stay apart")
        << Pairs { { "x", "y" }, { "x", "y" } } << QStringList { "y", "y" } << Pair("x", "y");
    QTest::newRow("empty names are items")
        << Pairs { { "", "" }, { "x", "" } } << QStringList { "", "" } << Pair("", "");
    QTest::newRow("any names") << Pairs { { "a:b", "求解\n&x" } } << QStringList { "求解\n&x" }
                               << Pair("a:b", "求解\n&x");
    QTest::newRow("no items") << Pairs() << QStringList() << Pair("", "");
}

void TestTaskSelectDialog::replacesItems()
{
    QFETCH(Pairs, items);
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    comboBox(dialog)->setCurrentIndex(3);
    dialog.setItems(items);
    QTEST(shownTexts(dialog), "texts");
    QTEST(dialog.currentItem(), "current");
    QCOMPARE(dialog.currentItemIndex(), items.isEmpty() ? -1 : 0);
    QCOMPARE(dialog.availableModeItems(), allModes());
}

void TestTaskSelectDialog::survivesAListenerThatNarrowsTheOffer()
{
    AUTH_SET set = twoGroups();
    UTaskSelectDialog dialog;
    bool isNarrowed = false;
    connect(comboBox(dialog), QOverload<int>::of(&QComboBox::currentIndexChanged), &dialog, [&] {
        if (!std::exchange(isNarrowed, true))
            dialog.resetToExclusiveGroup("H");
    });
    dialog.set(&set);
    QCOMPARE(isNarrowed, true);
    QCOMPARE(shownTexts(dialog), QStringList { mode("H", "k").second });
    QCOMPARE(dialog.currentItem(), mode("H", "k"));
}

void TestTaskSelectDialog::narrowsToAGroup_data()
{
    QTest::addColumn<AUTH_SET>("registry");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QStringList>("texts");

    const QStringList modesOfG { "App:G_tr:a_tr", "App:G_tr:b_tr", "App:G_tr:c_tr" };
    QTest::newRow("plain name") << twoGroups() << "G" << modesOfG;
    QTest::newRow("translated name") << twoGroups() << "G_tr" << modesOfG;
    QTest::newRow("group of one mode") << twoGroups() << "H" << QStringList("App:H_tr:k_tr");
    QTest::newRow("unknown group") << twoGroups() << "X" << QStringList();
    QTest::newRow("other case") << twoGroups() << "g" << QStringList();
    QTest::newRow("part of a name") << twoGroups() << "G_" << QStringList();
    QTest::newRow("mode instead of group") << twoGroups() << "a" << QStringList();
    QTest::newRow("application instead of group") << twoGroups() << "App" << QStringList();
    QTest::newRow("empty name") << twoGroups() << "" << QStringList();
    QTest::newRow("no modes at all") << AUTH_SET() << "G" << QStringList();
    QTest::newRow("a plain name that is another's translated one gives both")
        << crossedGroups() << "G" << QStringList { "App:G_tr:a_tr", "App:G:k_tr" };
    QTest::newRow("missing translated name is an empty one")
        << sharedTranslation() << "" << QStringList("App::k_tr");
    QTest::newRow("translated name of two groups belongs to the first")
        << sharedTranslation() << "T" << QStringList("App:T:a_tr");
    QTest::newRow("group named with a colon is not found")
        << oneGroup("App", "A:B") << "A:B" << QStringList();
    QTest::newRow("group named with a colon goes by the part before it")
        << oneGroup("App", "A:B") << "A" << QStringList("App:A:B_tr:a_tr");
    QTest::newRow("application named with a colon shifts the fields")
        << oneGroup("My:App", "G") << "App" << QStringList("My:App:G_tr:a_tr");
    QTest::newRow("empty group") << oneGroup("App", "") << "" << QStringList("App:_tr:a_tr");
    QTest::newRow("empty application") << oneGroup("", "G") << "G" << QStringList(":G_tr:a_tr");
}

void TestTaskSelectDialog::narrowsToAGroup()
{
    QFETCH(AUTH_SET, registry);
    QFETCH(QString, group);
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    dialog.resetToExclusiveGroup(group);
    QTEST(shownTexts(dialog), "texts");
    QCOMPARE(dialog.availableModeItems(), registry.currentModeList());
}

void TestTaskSelectDialog::narrowsAnewEachTime()
{
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    dialog.resetToExclusiveGroup("G");
    dialog.resetToExclusiveGroup("H");
    QCOMPARE(dialog.currentItem(), mode("H", "k"));
    QCOMPARE(shownTexts(dialog).size(), 1);
}

void TestTaskSelectDialog::returnsToAllModes()
{
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    const QStringList all = shownTexts(dialog);
    dialog.resetToExclusiveGroup("H");
    dialog.resetToProjectMode();
    QCOMPARE(shownTexts(dialog), all);
    QCOMPARE(dialog.currentItem(), mode("G", "a"));
}

void TestTaskSelectDialog::offersModesAddedLater()
{
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    registry.append(exclusiveModule("R", "H", { "l" }));
    QCOMPARE(shownTexts(dialog).size(), 4);
    dialog.resetToExclusiveGroup("H");
    QCOMPARE(shownTexts(dialog), QStringList({ "App:H_tr:k_tr", "App:H_tr:l_tr" }));
    dialog.resetToProjectMode();
    QCOMPARE(shownTexts(dialog).size(), 5);
}

void TestTaskSelectDialog::offersNothingWithoutARegistry_data()
{
    QTest::addColumn<Reset>("reset");

    QTest::newRow("resetToExclusiveGroup")
        << Reset([](UTaskSelectDialog &dialog) { dialog.resetToExclusiveGroup("G"); });
    QTest::newRow("resetToProjectMode")
        << Reset([](UTaskSelectDialog &dialog) { dialog.resetToProjectMode(); });
    QTest::newRow("set") << Reset([](UTaskSelectDialog &dialog) { dialog.set(nullptr); });
}

void TestTaskSelectDialog::offersNothingWithoutARegistry()
{
    QFETCH(Reset, reset);
    UTaskSelectDialog dialog;
    dialog.setItems(allModes());
    reset(dialog);
    QCOMPARE(shownTexts(dialog), QStringList());
    QCOMPARE(dialog.currentItem(), Pair("", ""));
    QCOMPARE(dialog.availableModeItemsWithModeCodeList({ "App:G:a" }), Pairs());
}

void TestTaskSelectDialog::tellsTheCurrentItem_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<Pair>("item");

    QTest::newRow("first") << 0 << mode("G", "a");
    QTest::newRow("last") << 3 << mode("H", "k");
    QTest::newRow("none") << -1 << Pair("", "");
}

void TestTaskSelectDialog::tellsTheCurrentItem()
{
    QFETCH(int, index);
    UTaskSelectDialog dialog;
    dialog.setItems(allModes());
    comboBox(dialog)->setCurrentIndex(index);
    QCOMPARE(dialog.currentItemIndex(), index);
    QTEST(dialog.currentItem(), "item");
}

void TestTaskSelectDialog::listsMembers()
{
    const UTaskSelectDialog dialog;
    const Pairs list { { "b", "x" }, { "a", "" }, { "b", "x" } };
    QCOMPARE(dialog.getFirstItems(list), QStringList({ "b", "a", "b" }));
    QCOMPARE(dialog.getSecondItems(list), QStringList({ "x", "", "x" }));
    QCOMPARE(dialog.getFirstItems({}), QStringList());
    QCOMPARE(dialog.getSecondItems({}), QStringList());
}

void TestTaskSelectDialog::matchesCodes_data()
{
    QTest::addColumn<Pairs>("list");
    QTest::addColumn<QStringList>("codes");
    QTest::addColumn<Pairs>("matching");

    const Pairs list { { "a", "A" }, { "b", "a" }, { "a", "C" }, { "d", "A" }, { "e", "b" } };
    QTest::newRow("first member") << list << QStringList("d") << Pairs { { "d", "A" } };
    QTest::newRow("second member") << list << QStringList("C") << Pairs { { "a", "C" } };
    QTest::newRow("first of equal first members")
        << list << QStringList("a") << Pairs { { "a", "A" } };
    QTest::newRow("first of equal second members")
        << list << QStringList("A") << Pairs { { "a", "A" } };
    QTest::newRow("first members count before second ones further up")
        << Pairs { { "x", "a" }, { "a", "y" } } << QStringList("a") << Pairs { { "a", "y" } };
    QTest::newRow("order of the codes") << list << QStringList { "e", "C", "b" }
                                        << Pairs { { "e", "b" }, { "a", "C" }, { "b", "a" } };
    QTest::newRow("code given twice")
        << list << QStringList { "d", "d" } << Pairs { { "d", "A" }, { "d", "A" } };
    QTest::newRow("two codes of one entry") << list << QStringList { "C", "e", "C" }
                                            << Pairs { { "a", "C" }, { "e", "b" }, { "a", "C" } };
    QTest::newRow("unknown codes")
        << list << QStringList { "x", "D", "d" } << Pairs { { "d", "A" } };
    QTest::newRow("only unknown codes") << list << QStringList("x") << Pairs();
    QTest::newRow("empty code") << list << QStringList("") << Pairs();
    QTest::newRow("empty code for an empty name")
        << Pairs { { "a", "" }, { "b", "" } } << QStringList("") << Pairs { { "a", "" } };
    QTest::newRow("no codes") << list << QStringList() << Pairs();
    QTest::newRow("no entries") << Pairs() << QStringList("a") << Pairs();
}

void TestTaskSelectDialog::matchesCodes()
{
    QFETCH(Pairs, list);
    QFETCH(QStringList, codes);
    const UTaskSelectDialog dialog;
    QTEST(dialog.availableModeItemsWithModeCodeList(list, codes), "matching");
}

void TestTaskSelectDialog::matchesCodesOfTheRegistry()
{
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    dialog.resetToExclusiveGroup("G");
    QCOMPARE(dialog.availableModeItemsWithModeCodeList({ "App:H_tr:k_tr", "x", "App:G:b" }),
             Pairs({ mode("H", "k"), mode("G", "b") }));
    QCOMPARE(dialog.availableModeItemsWithModeCodeList({ "x" }), Pairs());
}

QTEST_MAIN(TestTaskSelectDialog)
#include "tst_utaskselectdialog.moc"
