// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "dialogsupport.h"

#include <QCloseEvent>
#include <QHideEvent>
#include <QShowEvent>
#include <QtTest/qtestspontaneevent.h>

#include <algorithm>
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

/// twoGroups() with mode b selected in G, and a task that it does not have.
AUTH_SET registryInUse()
{
    AUTH_SET registry = twoGroups();
    registry.exclusive_group_set_mode("G", "b");
    registry.current_group = "old";
    registry.current_mode = "older";
    return registry;
}

/// Group, mode and selection of G and H: all that a dialog can change in a registry.
QString outcome(const AUTH_SET &registry)
{
    return registry.current_group + "/" + registry.current_mode + "/"
        + registry.currentExclusiveGroupSelect("G").first + "/"
        + registry.currentExclusiveGroupSelect("H").first;
}

/// Deletes the dialog that it watches, and itself with it, when that is about to close.
class DeletesWhatCloses : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Close)
            return false;
        delete watched;
        return true;
    }
};

void deletesItself(UTaskSelectDialog *dialog)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
}

void addClosing(const char *name, Closing closing, bool isBound)
{
    QTest::addRow("%s, %s", name, isBound ? "bound" : "with the box open") << closing << isBound;
}

/// Ways in which a dialog goes away, each with a registry and with the information box open.
void addClosings(std::initializer_list<QPair<const char *, Closing>> closings)
{
    QTest::addColumn<Closing>("closing");
    QTest::addColumn<bool>("isBound");
    for (const auto &closing : closings) {
        addClosing(closing.first, closing.second, true);
        addClosing(closing.first, closing.second, false);
    }
}

/// Runs @p closing in show(), in reach of the user or else while the box is in front.
int showAndClose(UTaskSelectDialog &dialog, Closing closing, bool isBound)
{
    return isBound ? showAnd(dialog, [&] { closing(&dialog); })
                   : showAndMeetBox(dialog, [&](QMessageBox *) { closing(&dialog); });
}

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

    void operates_data()
    {
        QTest::addColumn<Pairs>("items");
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("id");
        QTest::addColumn<int>("operateIndex");
        QTest::addColumn<QString>("outcome");

        const auto row = [](const char *name, const Pairs &items, int index, int id,
                            int operateIndex, const char *outcome) {
            QTest::newRow(name) << items << index << id << operateIndex << QString(outcome);
        };
        const char *const unchanged = "old/older/b/k";
        const Pairs all = allModes();
        row("accept the first", all, 0, 0, 0, "G/a/a/k");
        row("accept another", all, 2, 0, 0, "G/c/c/k");
        row("accept one of another group", all, 3, 0, 0, "H/k/b/k");
        row("accept without a current entry", all, -1, 0, 0, unchanged);
        row("accept with nothing on offer", {}, -1, 0, 0, unchanged);
        row("cancel", all, 2, 1, 1, unchanged);
        row("default takes the first", all, 2, 2, 0, "G/a/a/k");
        row("default without a current entry", all, -1, 2, 0, "G/a/a/k");
        row("default with nothing on offer", {}, -1, 2, 0, unchanged);
        row("unknown id", all, 2, 3, 3, unchanged);
        row("negative id", all, 2, -1, -1, unchanged);

        const auto accept = [&](const char *name, const Pair &item, const char *outcome) {
            row(name, { item }, 0, 0, 0, outcome);
        };
        accept("translated names are resolved by the registry", { "App:G_tr:c_tr", "" },
               "G_tr/c_tr/c/k");
        accept("the application is not compared", { "Other:G:c", "" }, "G/c/c/k");
        accept("unknown mode", { "App:G:x", "" }, "G/x/b/k");
        accept("unknown group", { "App:X:c", "" }, "X/c/b/k");
        accept("empty fields are kept", { "::", "" }, "//b/k");
        accept("only the plain name counts", { "x", "App:G:c" }, unchanged);
        accept("two fields", { "App:G", "" }, unchanged);
        accept("four fields", { "App:G:c:d", "" }, unchanged);
        accept("four fields by an empty one", { "App:G:c:", "" }, unchanged);
    }
    void operates()
    {
        QFETCH(Pairs, items);
        QFETCH(int, index);
        QFETCH(int, id);
        AUTH_SET registry = registryInUse();
        for (const bool isBound : { false, true }) {
            UTaskSelectDialog dialog;
            dialog.set(isBound ? &registry : nullptr);
            dialog.setItems(items);
            comboBox(dialog)->setCurrentIndex(index);
            dialog.operate(id);
            QTEST(dialog.operateIndex, "operateIndex");
            QCOMPARE(dialog.currentItemIndex(), id == 2 && !items.isEmpty() ? 0 : index);
            if (!isBound)
                QCOMPARE(outcome(registry), QString("old/older/b/k"));
        }
        QTEST(outcome(registry), "outcome");
    }

    void preselects_data()
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
        row("first of equal plain names", { { "x", "y" }, { "App:G:a", "1" }, { "App:G:a", "2" } },
            "G", "a", 1);
        row("first of equal translated names",
            { { "x", "y" }, { "1", "App:G:a" }, { "2", "App:G:a" } }, "G", "a", 1);
        row("plain names count before translated ones further up",
            { { "x", "App:G:a" }, { "App:G:a", "y" } }, "G", "a", 1);
        row("plain name at the top", { { "App:G:a", "y" }, { "x", "App:G:a" } }, "G", "a", 0);
        row("empty group and mode", { { "App::", "" } }, "", "", 0);
        row("nothing on offer", {}, "G", "a", -1);
    }
    void preselects()
    {
        QFETCH(Pairs, items);
        QFETCH(QString, group);
        QFETCH(QString, mode);
        m_registry.current_group = group;
        m_registry.current_mode = mode;
        UTaskSelectDialog dialog;
        dialog.set(&m_registry);
        dialog.setItems(items);
        dialog.operateIndex = 5;
        QShowEvent event;
        event.ignore();
        dialog.showEvent(&event);
        QVERIFY(event.isAccepted());
        QTEST(dialog.currentItemIndex(), "index");
        QCOMPARE(dialog.operateIndex, -1);
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

    void returnsForEveryClosing_data()
    {
        addClosings({
            { "operate(0)", [](auto *dialog) { dialog->operate(0); } },
            { "operate(2)", [](auto *dialog) { dialog->operate(2); } },
            { "operate(99)", [](auto *dialog) { dialog->operate(99); } },
            { "accept()", [](auto *dialog) { dialog->accept(); } },
            { "reject()", [](auto *dialog) { dialog->reject(); } },
            { "done(7)", [](auto *dialog) { dialog->done(7); } },
            { "close()", [](auto *dialog) { dialog->close(); } },
            { "hide()", [](auto *dialog) { dialog->hide(); } },
            { "closeAllWindows()", [](auto *) { QApplication::closeAllWindows(); } },
        });
        addClosing(
            "Escape", [](auto *dialog) { press(*dialog, Qt::Key_Escape); }, true);
        addClosing(
            "close button", [](auto *dialog) { dialog->windowHandle()->close(); }, true);
    }
    void returnsForEveryClosing()
    {
        QFETCH(Closing, closing);
        QFETCH(bool, isBound);
        UTaskSelectDialog dialog;
        dialog.set(isBound ? &m_registry : nullptr);
        for (int showing = 0; showing < 2; ++showing) {
            QCOMPARE(showAndClose(dialog, closing, isBound), 0);
            QVERIFY(!isAnyWindowOnScreen());
        }
    }

    void returnsWhenDeleted_data()
    {
        addClosings({
            { "delete", [](auto *dialog) { delete dialog; } },
            { "deleteLater()", [](auto *dialog) { dialog->deleteLater(); } },
            { "close() and delete",
              [](auto *dialog) {
                  dialog->close();
                  delete dialog;
              } },
            { "Default of one that deletes itself",
              [](auto *dialog) {
                  deletesItself(dialog);
                  dialog->operate(2);
              } },
            { "Default of one that is deleted while it closes",
              [](auto *dialog) {
                  dialog->installEventFilter(new DeletesWhatCloses(dialog));
                  dialog->operate(2);
              } },
            { "reject() of one that deletes itself",
              [](auto *dialog) {
                  deletesItself(dialog);
                  dialog->reject();
              } },
        });
    }
    void returnsWhenDeleted()
    {
        QFETCH(Closing, closing);
        QFETCH(bool, isBound);
        const QPointer<UTaskSelectDialog> dialog = new UTaskSelectDialog;
        dialog->set(isBound ? &m_registry : nullptr);
        QCOMPARE(showAndClose(*dialog, closing, isBound), 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(dialog.isNull());
    }

    void closeEventEndsTheLoop()
    {
        UTaskSelectDialog dialog;
        dialog.set(&m_registry);
        QCloseEvent event;
        event.ignore();
        QCOMPARE(showAnd(dialog, [&] { dialog.closeEvent(&event); }), 0);
        QVERIFY(event.isAccepted());
        dialog.hide();
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
