// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "dialogsupport.h"

#include "support/directorytest.h"

#include <QPlainTextEdit>

namespace {

struct KeyPress
{
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};
using KeyPresses = QVector<KeyPress>;

KeyPresses times(int count, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    return KeyPresses(count, { key, modifiers });
}

QString focusName(const UTaskSelectDialog &dialog)
{
    return dialog.focusWidget() ? dialog.focusWidget()->objectName() : QString();
}

void pressAll(const UTaskSelectDialog &dialog, const KeyPresses &presses)
{
    for (const KeyPress &one : presses) {
        if (dialog.isVisible())
            press(dialog, one.key, one.modifiers);
    }
}

} // namespace

Q_DECLARE_METATYPE(KeyPress)

class TestTaskSelectDialogKeyboard : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void focusStartsOnTheComboBox_data();
    void focusStartsOnTheComboBox();
    void movesTheFocus_data();
    void movesTheFocus();
    void choosesAnEntry_data();
    void choosesAnEntry();
    void closes_data();
    void closes();
    void textFieldTakesText();
};

void TestTaskSelectDialogKeyboard::focusStartsOnTheComboBox_data()
{
    QTest::addColumn<QString>("left");

    QTest::newRow("after the combo box") << "comboBox";
    QTest::newRow("after a button") << "pushButton_Default";
    QTest::newRow("after the text field") << "plainTextEdit";
}

void TestTaskSelectDialogKeyboard::focusStartsOnTheComboBox()
{
    QFETCH(QString, left);
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    QStringList starts;
    for (int showing = 0; showing < 3; ++showing) {
        showAnd(dialog, [&] {
            starts.append(focusName(dialog));
            dialog.findChild<QWidget *>(left)->setFocus();
            dialog.close();
        });
    }
    QCOMPARE(starts, QStringList({ "comboBox", "comboBox", "comboBox" }));
}

void TestTaskSelectDialogKeyboard::movesTheFocus_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QStringList>("way");

    QTest::newRow("forwards with Tab")
        << Qt::Key_Tab
        << QStringList { "comboBox",           "pushButton_accept", "pushButton_cancel",
                         "pushButton_Default", "plainTextEdit",     "comboBox" };
    QTest::newRow("backwards with Shift and Tab")
        << Qt::Key_Backtab
        << QStringList { "comboBox",          "plainTextEdit",     "pushButton_Default",
                         "pushButton_cancel", "pushButton_accept", "comboBox" };
}

void TestTaskSelectDialogKeyboard::movesTheFocus()
{
    QFETCH(Qt::Key, key);
    QFETCH(QStringList, way);
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    QStringList walked;
    showAnd(dialog, [&] {
        walked.append(focusName(dialog));
        while (walked.size() < way.size()) {
            press(dialog, key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
            walked.append(focusName(dialog));
        }
        dialog.close();
    });
    QCOMPARE(walked, way);
}

void TestTaskSelectDialogKeyboard::choosesAnEntry_data()
{
    QTest::addColumn<KeyPresses>("presses");
    QTest::addColumn<Pair>("entry");

    QTest::newRow("down") << times(1, Qt::Key_Down) << mode("G", "c");
    QTest::newRow("up") << times(1, Qt::Key_Up) << mode("G", "a");
    QTest::newRow("down beyond the end") << times(9, Qt::Key_Down) << mode("H", "k");
    QTest::newRow("up beyond the start") << times(9, Qt::Key_Up) << mode("G", "a");
    QTest::newRow("end") << times(1, Qt::Key_End) << mode("H", "k");
    QTest::newRow("home") << times(1, Qt::Key_Home) << mode("G", "a");
}

void TestTaskSelectDialogKeyboard::choosesAnEntry()
{
    QFETCH(KeyPresses, presses);
    AUTH_SET registry = twoGroups();
    registry.current_group = "G";
    registry.current_mode = "b";
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    Pair chosen;
    showAnd(dialog, [&] {
        pressAll(dialog, presses);
        chosen = dialog.currentItem();
        press(dialog, Qt::Key_Return);
    });
    QTEST(chosen, "entry");
    QCOMPARE(mode(registry.current_group, registry.current_mode), chosen);
}

void TestTaskSelectDialogKeyboard::closes_data()
{
    QTest::addColumn<KeyPresses>("presses");
    QTest::addColumn<int>("operateIndex");
    QTest::addColumn<QString>("acceptedMode");

    const auto tabs
        = [](int count, Qt::Key last) { return times(count, Qt::Key_Tab) + times(1, last); };
    QTest::newRow("Return on the combo box accepts") << tabs(0, Qt::Key_Return) << 0 << "b";
    QTest::newRow("Enter of the keypad on the combo box accepts")
        << times(1, Qt::Key_Enter, Qt::KeypadModifier) << 0 << "b";
    QTest::newRow("Return on Accept") << tabs(1, Qt::Key_Return) << 0 << "b";
    QTest::newRow("Space on Accept") << tabs(1, Qt::Key_Space) << 0 << "b";
    QTest::newRow("Return on Cancel") << tabs(2, Qt::Key_Return) << 1 << "";
    QTest::newRow("Space on Cancel") << tabs(2, Qt::Key_Space) << 1 << "";
    QTest::newRow("Return on Default") << tabs(3, Qt::Key_Return) << 0 << "a";
    QTest::newRow("Space on Default") << tabs(3, Qt::Key_Space) << 0 << "a";
    QTest::newRow("Escape on the combo box") << tabs(0, Qt::Key_Escape) << -1 << "";
    QTest::newRow("Escape on a button") << tabs(3, Qt::Key_Escape) << -1 << "";
    QTest::newRow("Escape in the text field") << tabs(4, Qt::Key_Escape) << -1 << "";
}

void TestTaskSelectDialogKeyboard::closes()
{
    QFETCH(KeyPresses, presses);
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    QCOMPARE(showAnd(dialog,
                     [&] {
                         comboBox(dialog)->setCurrentIndex(1);
                         pressAll(dialog, presses);
                     }),
             0);
    QVERIFY(!dialog.isVisible());
    QTEST(dialog.operateIndex, "operateIndex");
    QTEST(registry.current_mode, "acceptedMode");
}

void TestTaskSelectDialogKeyboard::textFieldTakesText()
{
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    const auto *field = dialog.findChild<QPlainTextEdit *>("plainTextEdit");
    bool staysOpen = false;
    showAnd(dialog, [&] {
        pressAll(dialog, times(4, Qt::Key_Tab) + times(2, Qt::Key_A) + times(1, Qt::Key_Return));
        staysOpen = dialog.isVisible();
        dialog.close();
    });
    QVERIFY(staysOpen);
    QCOMPARE(field->toPlainText(), QString("aa\n"));
}

QTEST_MAIN(TestTaskSelectDialogKeyboard)
#include "tst_utaskselectdialog_keyboard.moc"
