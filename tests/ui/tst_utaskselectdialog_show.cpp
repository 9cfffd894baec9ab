// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "dialogsupport.h"

#include <QCloseEvent>
#include <QHideEvent>
#include <QShowEvent>
#include <QtTest/qtestspontaneevent.h>

#include <algorithm>
#include <memory>
#include <type_traits>

using Closing = void (*)(UTaskSelectDialog *);
Q_DECLARE_METATYPE(Closing)

namespace {

// As in QDialog, only Qt and classes derived from the dialog call it.
template <typename Dialog, typename = void> constexpr bool isHideEventPublic = false;
template <typename Dialog>
constexpr bool isHideEventPublic<
    Dialog, std::void_t<decltype(std::declval<Dialog>().hideEvent(nullptr))>> = true;
static_assert(!isHideEventPublic<UTaskSelectDialog>);

class KeepsHideEvents : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override { return event->type() == QEvent::Hide; }
};

/// What a window gets that is minimised or restored.
template <typename Event> void sendSpontaneous(UTaskSelectDialog &dialog, Event event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(&dialog, &event);
}

bool isAnyWindowOnScreen()
{
    const QWindowList windows = QGuiApplication::allWindows();
    return std::any_of(windows.begin(), windows.end(),
                       [](const QWindow *window) { return window->isVisible(); });
}

} // namespace

class TestTaskSelectDialogShow : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        DirectoryTest::init();
        m_registry = twoGroups();
        m_registry.current_group = "G";
        m_registry.current_mode = "b";
    }
    void cleanup() override
    {
        DirectoryTest::cleanup();
        QVERIFY(!isAnyWindowOnScreen());
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }

    void userChooses_data()
    {
        QTest::addColumn<int>("operateIndex");
        QTest::addColumn<QString>("mode");

        QTest::newRow("pushButton_accept") << 0 << "c";
        QTest::newRow("pushButton_cancel") << 1 << "b";
        QTest::newRow("pushButton_Default") << 0 << "a";
    }
    void userChooses()
    {
        UTaskSelectDialog dialog;
        dialog.set(&m_registry);
        const int result = showAnd(dialog, [&] {
            failUnless(QApplication::activeModalWidget() == &dialog, "the dialog is not modal");
            failUnless(dialog.currentItem() == mode("G", "b"), "the mode is not preselected");
            comboBox(dialog)->setCurrentIndex(2);
            click(dialog, QTest::currentDataTag());
        });
        QCOMPARE(result, 0);
        QTEST(dialog.operateIndex, "operateIndex");
        QTEST(m_registry.current_mode, "mode");
        QShowEvent nextShowing;
        dialog.showEvent(&nextShowing);
        QCOMPARE(dialog.currentItem(), mode("G", m_registry.current_mode));
    }

    void closeEventEndsTheLoop()
    {
        UTaskSelectDialog dialog;
        dialog.set(&m_registry);
        QCloseEvent event;
        event.ignore();
        QCOMPARE(showAnd(dialog, [&] { dialog.closeEvent(&event); }), 0);
        QVERIFY(event.isAccepted());
        QVERIFY(dialog.isVisible());
        dialog.hide();
    }

    void returnsWhenAListenerKeepsTheHideEvent()
    {
        UTaskSelectDialog dialog;
        dialog.set(&m_registry);
        KeepsHideEvents listener;
        dialog.installEventFilter(&listener);
        QCOMPARE(showAnd(dialog, [&] { dialog.hide(); }), 0);
    }

    void execGivesTheResultOfItsShowing_data()
    {
        QTest::addColumn<Closing>("closing");
        QTest::addColumn<int>("result");

        const auto row = [](const char *name, Closing closing, int result) {
            QTest::newRow(name) << closing << result;
        };
        row(
            "accept()", [](auto *dialog) { dialog->accept(); }, QDialog::Accepted);
        row(
            "done(7)", [](auto *dialog) { dialog->done(7); }, 7);
        row(
            "reject()", [](auto *dialog) { dialog->reject(); }, QDialog::Rejected);
        row(
            "Accept", [](auto *dialog) { dialog->operate(0); }, QDialog::Rejected);
        row(
            "hide()", [](auto *dialog) { dialog->hide(); }, QDialog::Rejected);
        row(
            "delete", [](auto *dialog) { delete dialog; }, QDialog::Rejected);
    }
    void execGivesTheResultOfItsShowing()
    {
        QFETCH(Closing, closing);
        const StuckGuard guard;
        for (const bool deletesItself : { false, true }) {
            const QPointer<UTaskSelectDialog> dialog = new UTaskSelectDialog;
            dialog->set(&m_registry);
            dialog->setResult(5);
            dialog->setWindowModality(Qt::NonModal);
            dialog->setAttribute(Qt::WA_DeleteOnClose, deletesItself);
            QTimer::singleShot(0, dialog, [&] {
                failUnless(dialog->isModal(), "the dialog is not modal");
                failUnless(dialog->exec() == QDialog::Rejected, "exec() waits within exec()");
                closing(dialog);
            });
            QTEST(dialog->exec(), "result");
            if (dialog && !deletesItself)
                QVERIFY(!dialog->isModal() && !dialog->isVisible());
            else
                QVERIFY(!dialog);
            delete dialog;
        }
    }

    void registryMayGoFirst()
    {
        auto registry = std::make_unique<AUTH_SET>(m_registry);
        UTaskSelectDialog dialog;
        dialog.set(registry.get());
        showAnd(dialog, [&] {
            dialog.set(nullptr);
            registry.reset();
            click(dialog, "pushButton_accept");
        });
        QCOMPARE(dialog.operateIndex, 0);
        QVERIFY(!dialog.isVisible());
    }

    void nothingIsChosenWithoutTheComboBox()
    {
        UTaskSelectDialog dialog;
        dialog.set(&m_registry);
        delete comboBox(dialog);
        dialog.setItems(allModes());
        for (const char *button : { "pushButton_accept", "pushButton_Default" }) {
            showAnd(dialog, [&] { click(dialog, button); });
            QCOMPARE(dialog.operateIndex, 0);
            QCOMPARE(dialog.currentItemIndex(), -1);
            QCOMPARE(dialog.currentItem(), Pair());
            QCOMPARE(m_registry.current_mode, QString("b"));
        }
    }

    void closesTheBoxWithAllWindows()
    {
        UTaskSelectDialog dialog;
        QCOMPARE(showAndMeetBox(dialog, [](QMessageBox *) { QApplication::closeAllWindows(); }), 0);
    }

    void staysWhenMinimisedAndKeepsTheChoice()
    {
        UTaskSelectDialog dialog;
        dialog.set(&m_registry);
        bool staysShown = false;
        showAnd(dialog, [&] {
            comboBox(dialog)->setCurrentIndex(2);
            sendSpontaneous(dialog, QHideEvent());
            sendSpontaneous(dialog, QShowEvent());
            // After a loop that had been ended, show() would return before this timer runs.
            QTimer::singleShot(0, &dialog, [&] {
                staysShown = dialog.isVisible();
                dialog.close();
            });
        });
        QVERIFY(staysShown);
        QCOMPARE(dialog.currentItemIndex(), 2);
    }

    void comesToTheFrontWhenShownAgain()
    {
        UTaskSelectDialog dialog;
        dialog.set(&m_registry);
        int innerResult = -1;
        showAnd(dialog, [&] {
            comboBox(dialog)->setCurrentIndex(2);
            // A second loop would not end.
            failUnless(dialog.show() == 0, "show() has another result");
            dialog.setWindowState(Qt::WindowMinimized);
            innerResult = dialog.show();
            failUnless(!dialog.isMinimized(), "the dialog is still minimised");
            click(dialog, "pushButton_cancel");
        });
        QCOMPARE(innerResult, 0);
        QCOMPARE(dialog.currentItemIndex(), 2);
        QCOMPARE(dialog.operateIndex, 1);
    }

    void showsAgainWhileClosing()
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
    }

    void tellsThatNothingIsBoundAndStaysOpen()
    {
        UTaskSelectDialog dialog;
        dialog.operateIndex = 5;
        const QWidget *modal = nullptr;
        const int result = showAndMeetBox(dialog, [&](QMessageBox *box) {
            failUnless(dialog.isVisible(), "the dialog is not shown behind the box");
            QCOMPARE(box->windowTitle(), QString("Wrong Sets"));
            QCOMPARE(box->text(), QString("Please connect Kelto first."));
            QCOMPARE(box->icon(), QMessageBox::Information);
            QCOMPARE(box->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            QCOMPARE(box->parent(), nullptr);
            connect(qGuiApp, &QGuiApplication::focusWindowChanged, &dialog, [&](QWindow *window) {
                if (window != dialog.windowHandle())
                    return;
                modal = QApplication::activeModalWidget();
                failUnless(dialog.operateIndex == 5, "operateIndex has changed");
                QTimer::singleShot(0, &dialog, [&] { click(dialog, "pushButton_accept"); });
            });
            press(*box, Qt::Key_Return);
        });
        QCOMPARE(result, 0);
        QCOMPARE(modal, &dialog);
        QCOMPARE(dialog.operateIndex, 0);
    }

    void boxComesWithAnyShowEvent()
    {
        UTaskSelectDialog dialog;
        showAndMeetBox(dialog, [&](QMessageBox *) { dialog.close(); });
        bool hadBox = false;
        QTimer::singleShot(0, &dialog, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            hadBox = box;
            if (box)
                box->accept();
        });
        QShowEvent event;
        dialog.showEvent(&event);
        QVERIFY(hadBox);
    }

private:
    AUTH_SET m_registry;
};

QTEST_MAIN(TestTaskSelectDialogShow)
#include "tst_utaskselectdialog_show.moc"
