// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "closings.h"

#include "support/directorytest.h"

namespace {

/// Runs @p action when the window gets active the next time.
template <typename Action> void onceActive(UTaskSelectDialog &dialog, Action action)
{
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &dialog, [=, &dialog] {
        if (dialog.windowHandle()->isActive())
            QTimer::singleShot(0, &dialog, action);
    });
}

} // namespace

class TestTaskSelectDialogUnbound : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override;
    void tellsThatNothingIsBound();
    void boxComesWithAnyShowEvent();
    void staysOpenWithoutARegistry();
    void returnsWhileTheBoxIsOpen_data();
    void returnsWhileTheBoxIsOpen();
    void returnsWhenDeletedWhileTheBoxIsOpen_data();
    void returnsWhenDeletedWhileTheBoxIsOpen();
    void bindsWhileTheBoxIsOpen();
};

void TestTaskSelectDialogUnbound::cleanup()
{
    DirectoryTest::cleanup();
    QVERIFY(!isAnyWindowOnScreen());
}

void TestTaskSelectDialogUnbound::tellsThatNothingIsBound()
{
    UTaskSelectDialog dialog;
    dialog.operateIndex = 5;
    bool wasVisible = false;
    const int result = showAndMeetBox(dialog, [&](QMessageBox *box) {
        wasVisible = dialog.isVisible();
        QCOMPARE(box->windowTitle(), QString("Wrong Sets"));
        QCOMPARE(box->text(), QString("Please connect Kelto first."));
        QCOMPARE(box->icon(), QMessageBox::Information);
        QCOMPARE(box->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box->parent(), nullptr);
        onceActive(dialog, [&] { dialog.close(); });
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    });
    QCOMPARE(result, 0);
    QVERIFY(wasVisible);
    QCOMPARE(dialog.operateIndex, 5);
}

void TestTaskSelectDialogUnbound::boxComesWithAnyShowEvent()
{
    UTaskSelectDialog dialog;
    bool hadBox = false;
    QTimer::singleShot(0, &dialog, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        hadBox = box;
        if (box)
            box->accept();
    });
    QShowEvent event;
    event.ignore();
    dialog.showEvent(&event);
    QVERIFY(event.isAccepted());
    QVERIFY(hadBox);
}

void TestTaskSelectDialogUnbound::staysOpenWithoutARegistry()
{
    UTaskSelectDialog dialog;
    const QWidget *modal = nullptr;
    int index = 0;
    const int result = showAndMeetBox(dialog, [&](QMessageBox *box) {
        onceActive(dialog, [&] {
            modal = QApplication::activeModalWidget();
            index = dialog.currentItemIndex();
            click(dialog, "pushButton_accept");
        });
        press(*box, Qt::Key_Return);
    });
    QCOMPARE(result, 0);
    QCOMPARE(modal, &dialog);
    QCOMPARE(index, -1);
    QCOMPARE(dialog.operateIndex, 0);
    QVERIFY(!dialog.isVisible());
}

void TestTaskSelectDialogUnbound::returnsWhileTheBoxIsOpen_data()
{
    QTest::addColumn<Closing>("closing");
    addClosingsByHost();
}

void TestTaskSelectDialogUnbound::returnsWhileTheBoxIsOpen()
{
    QFETCH(Closing, closing);
    UTaskSelectDialog dialog;
    for (int showing = 0; showing < 2; ++showing) {
        QCOMPARE(showAndMeetBox(dialog, [&](QMessageBox *) { closing(&dialog); }), 0);
        QVERIFY(!dialog.isVisible());
        QVERIFY(!isAnyWindowOnScreen());
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }
}

void TestTaskSelectDialogUnbound::returnsWhenDeletedWhileTheBoxIsOpen_data()
{
    QTest::addColumn<Closing>("closing");
    addDeletions();
}

void TestTaskSelectDialogUnbound::returnsWhenDeletedWhileTheBoxIsOpen()
{
    QFETCH(Closing, closing);
    const QPointer<UTaskSelectDialog> dialog = new UTaskSelectDialog;
    QCOMPARE(showAndMeetBox(*dialog, [&](QMessageBox *) { closing(dialog); }), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(dialog.isNull());
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
}

void TestTaskSelectDialogUnbound::bindsWhileTheBoxIsOpen()
{
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    const int result = showAndMeetBox(dialog, [&](QMessageBox *box) {
        dialog.set(&registry);
        onceActive(dialog, [&] { click(dialog, "pushButton_accept"); });
        box->accept();
    });
    QCOMPARE(result, 0);
    QCOMPARE(registry.current_mode, QString("a"));
}

QTEST_MAIN(TestTaskSelectDialogUnbound)
#include "tst_utaskselectdialog_unbound.moc"
