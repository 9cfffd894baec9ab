// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "closings.h"

#include "support/directorytest.h"

#include <QCloseEvent>
#include <QHideEvent>
#include <QShowEvent>
#include <QtTest/qtestspontaneevent.h>

namespace {

/// What a window gets that is minimised or restored.
template <typename Event> void sendSpontaneous(UTaskSelectDialog &dialog, Event event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(&dialog, &event);
}

} // namespace

class TestTaskSelectDialogShow : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void preselects_data();
    void preselects();
    void preselectsOnAnyShowEvent();
    void userChooses_data();
    void userChooses();
    void preselectsWhatWasAccepted();
    void isModalWhileShown();
    void returnsForEveryClosing_data();
    void returnsForEveryClosing();
    void returnsWhenDeleted_data();
    void returnsWhenDeleted();
    void closeEventEndsTheLoop();
    void staysWhenMinimised();
    void keepsTheChoiceWhenRestored();
    void showWhileShown_data();
    void showWhileShown();
    void showsAgainWhileClosing();

private:
    AUTH_SET m_registry;
};

void TestTaskSelectDialogShow::init()
{
    DirectoryTest::init();
    if (QTest::currentTestFailed())
        return;
    m_registry = twoGroups();
}

void TestTaskSelectDialogShow::cleanup()
{
    DirectoryTest::cleanup();
    QVERIFY(!isAnyWindowOnScreen());
}

void TestTaskSelectDialogShow::preselects_data()
{
    QTest::addColumn<Pairs>("items");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("index");

    const auto row
        = [](const char *name, const Pairs &items, const QString &group, const QString &mode,
             int index) { QTest::newRow(name) << items << group << mode << index; };
    const Pairs all = allModes();
    row("nothing accepted yet", all, "", "", -1);
    row("mode of the first group", all, "G", "c", 2);
    row("mode of another group", all, "H", "k", 3);
    row("translated names", all, "G_tr", "b_tr", 1);
    row("mixed names", all, "G", "b_tr", -1);
    row("unknown mode", all, "G", "x", -1);
    row("other case", all, "g", "a", -1);
    row("mode that is not on offer", { mode("H", "k") }, "G", "a", -1);
    row("first of equal plain names", { { "x", "y" }, { "App:G:a", "1" }, { "App:G:a", "2" } }, "G",
        "a", 1);
    row("first of equal translated names", { { "x", "y" }, { "1", "App:G:a" }, { "2", "App:G:a" } },
        "G", "a", 1);
    row("plain names count before translated ones further up",
        { { "x", "App:G:a" }, { "App:G:a", "y" } }, "G", "a", 1);
    row("empty group and mode", { { "App::", "" } }, "", "", 0);
    row("nothing on offer", {}, "G", "a", -1);
}

void TestTaskSelectDialogShow::preselects()
{
    QFETCH(Pairs, items);
    QFETCH(QString, group);
    QFETCH(QString, mode);
    QFETCH(int, index);
    m_registry.current_group = group;
    m_registry.current_mode = mode;
    UTaskSelectDialog dialog;
    dialog.set(&m_registry);
    dialog.setItems(items);
    dialog.operateIndex = 5;
    QCOMPARE(showAnd(dialog, [&] { dialog.close(); }), 0);
    QCOMPARE(dialog.currentItemIndex(), index);
    QCOMPARE(dialog.currentItem(), items.value(index));
    QCOMPARE(dialog.operateIndex, -1);
}

void TestTaskSelectDialogShow::preselectsOnAnyShowEvent()
{
    m_registry.current_group = "G";
    m_registry.current_mode = "c";
    UTaskSelectDialog dialog;
    dialog.set(&m_registry);
    dialog.operateIndex = 5;
    QShowEvent event;
    event.ignore();
    dialog.showEvent(&event);
    QVERIFY(event.isAccepted());
    QCOMPARE(dialog.currentItemIndex(), 2);
    QCOMPARE(dialog.operateIndex, -1);
}

void TestTaskSelectDialogShow::userChooses_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("operateIndex");
    QTest::addColumn<QString>("outcome");

    QTest::newRow("accept") << "pushButton_accept" << 2 << 0 << "G/c, c selected";
    QTest::newRow("accept another group") << "pushButton_accept" << 3 << 0 << "H/k, b selected";
    QTest::newRow("accept nothing") << "pushButton_accept" << -1 << 0 << "G/b, b selected";
    QTest::newRow("cancel") << "pushButton_cancel" << 2 << 1 << "G/b, b selected";
    QTest::newRow("default") << "pushButton_Default" << 2 << 0 << "G/a, a selected";
}

void TestTaskSelectDialogShow::userChooses()
{
    QFETCH(QString, button);
    QFETCH(int, index);
    m_registry.current_group = "G";
    m_registry.current_mode = "b";
    m_registry.exclusive_group_set_mode("G", "b");
    UTaskSelectDialog dialog;
    dialog.set(&m_registry);
    const int result = showAnd(dialog, [&] {
        comboBox(dialog)->setCurrentIndex(index);
        click(dialog, button);
    });
    QCOMPARE(result, 0);
    QVERIFY(!dialog.isVisible());
    QTEST(dialog.operateIndex, "operateIndex");
    const QString outcome = m_registry.current_group + "/" + m_registry.current_mode + ", "
        + m_registry.currentExclusiveGroupSelect("G").first + " selected";
    QTEST(outcome, "outcome");
}

void TestTaskSelectDialogShow::preselectsWhatWasAccepted()
{
    UTaskSelectDialog dialog;
    dialog.set(&m_registry);
    QVector<int> indexes;
    for (int next : { 2, 3, 0 }) {
        showAnd(dialog, [&] {
            indexes.append(dialog.currentItemIndex());
            comboBox(dialog)->setCurrentIndex(next);
            click(dialog, "pushButton_accept");
        });
    }
    QCOMPARE(indexes, QVector<int>({ -1, 2, 3 }));
}

void TestTaskSelectDialogShow::isModalWhileShown()
{
    UTaskSelectDialog dialog;
    dialog.set(&m_registry);
    const QWidget *modal = nullptr;
    showAnd(dialog, [&] {
        modal = QApplication::activeModalWidget();
        dialog.close();
    });
    QCOMPARE(modal, &dialog);
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
}

void TestTaskSelectDialogShow::returnsForEveryClosing_data()
{
    QTest::addColumn<Closing>("closing");
    addClosingsByUser();
    addClosingsByHost();
}

void TestTaskSelectDialogShow::returnsForEveryClosing()
{
    QFETCH(Closing, closing);
    UTaskSelectDialog dialog;
    dialog.set(&m_registry);
    for (int showing = 0; showing < 2; ++showing) {
        QCOMPARE(showAnd(dialog, [&] { closing(&dialog); }), 0);
        QVERIFY(!dialog.isVisible());
        QVERIFY(!isAnyWindowOnScreen());
    }
}

void TestTaskSelectDialogShow::returnsWhenDeleted_data()
{
    QTest::addColumn<Closing>("closing");
    addDeletions();
}

void TestTaskSelectDialogShow::returnsWhenDeleted()
{
    QFETCH(Closing, closing);
    const QPointer<UTaskSelectDialog> dialog = new UTaskSelectDialog;
    dialog->set(&m_registry);
    QCOMPARE(showAnd(*dialog, [&] { closing(dialog); }), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(dialog.isNull());
}

void TestTaskSelectDialogShow::closeEventEndsTheLoop()
{
    UTaskSelectDialog dialog;
    dialog.set(&m_registry);
    QCloseEvent event;
    event.ignore();
    QCOMPARE(showAnd(dialog, [&] { dialog.closeEvent(&event); }), 0);
    QVERIFY(event.isAccepted());
    dialog.hide();
}

void TestTaskSelectDialogShow::staysWhenMinimised()
{
    UTaskSelectDialog dialog;
    dialog.set(&m_registry);
    bool staysShown = false;
    const int result = showAnd(dialog, [&] {
        sendSpontaneous(dialog, QHideEvent());
        // A loop that had been ended would let show() come back before this timer runs.
        QTimer::singleShot(0, &dialog, [&] {
            staysShown = dialog.isVisible();
            dialog.close();
        });
    });
    QCOMPARE(result, 0);
    QVERIFY(staysShown);
}

void TestTaskSelectDialogShow::keepsTheChoiceWhenRestored()
{
    UTaskSelectDialog dialog;
    dialog.set(&m_registry);
    int index = -1;
    showAnd(dialog, [&] {
        comboBox(dialog)->setCurrentIndex(2);
        sendSpontaneous(dialog, QHideEvent());
        sendSpontaneous(dialog, QShowEvent());
        index = dialog.currentItemIndex();
        dialog.close();
    });
    QCOMPARE(index, 2);
}

void TestTaskSelectDialogShow::showWhileShown_data()
{
    QTest::addColumn<bool>("minimised");

    QTest::newRow("as it is") << false;
    QTest::newRow("minimised") << true;
}

void TestTaskSelectDialogShow::showWhileShown()
{
    QFETCH(bool, minimised);
    UTaskSelectDialog dialog;
    dialog.set(&m_registry);
    int innerResult = -1;
    bool isMinimised = true;
    int index = -1;
    const int result = showAnd(dialog, [&] {
        comboBox(dialog)->setCurrentIndex(2);
        dialog.setWindowState(minimised ? Qt::WindowMinimized : Qt::WindowNoState);
        innerResult = dialog.show();
        isMinimised = dialog.isMinimized();
        index = dialog.currentItemIndex();
        click(dialog, "pushButton_cancel");
    });
    QCOMPARE(innerResult, 0);
    QCOMPARE(index, 2);
    QVERIFY(!isMinimised);
    QCOMPARE(result, 0);
    QCOMPARE(dialog.operateIndex, 1);
}

void TestTaskSelectDialogShow::showsAgainWhileClosing()
{
    UTaskSelectDialog dialog;
    dialog.set(&m_registry);
    QVector<int> innerResults;
    connect(&dialog, &QDialog::finished, [&] {
        if (innerResults.isEmpty())
            innerResults.append(showAnd(dialog, [&] { click(dialog, "pushButton_accept"); }));
    });
    QCOMPARE(showAnd(dialog, [&] { dialog.reject(); }), 0);
    QCOMPARE(innerResults, QVector<int>({ 0 }));
    QCOMPARE(dialog.operateIndex, 0);
    QVERIFY(!dialog.isVisible());
}

QTEST_MAIN(TestTaskSelectDialogShow)
#include "tst_utaskselectdialog_show.moc"
