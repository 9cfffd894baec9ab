// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef DIALOGSUPPORT_H
#define DIALOGSUPPORT_H

#include <Kelto/AUTH_SET>
#include <Kelto/UTaskSelectDialog>

#include "support/directorytest.h"
#include "support/moduleitems.h"

#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

/// Group G with the modes a, b, c, and group H with the mode k.
inline AUTH_SET twoGroups()
{
    return AUTH_SET("App", "1.0",
                    { exclusiveModule("P", "G", { "a", "b", "c" }),
                      exclusiveModule("Q", "H", { "k" }) });
}

inline Pair mode(const QString &group, const QString &name)
{
    return { "App:" + group + ":" + name, "App:" + translated(group) + ":" + translated(name) };
}

/// What twoGroups() offers.
inline Pairs allModes()
{
    return { mode("G", "a"), mode("G", "b"), mode("G", "c"), mode("H", "k") };
}

inline QComboBox *comboBox(const UTaskSelectDialog &dialog)
{
    return dialog.findChild<QComboBox *>("comboBox");
}

inline QStringList shownTexts(const UTaskSelectDialog &dialog)
{
    QStringList texts;
    for (int i = 0; i < comboBox(dialog)->count(); ++i)
        texts.append(comboBox(dialog)->itemText(i));
    return texts;
}

inline void click(const UTaskSelectDialog &dialog, const QString &buttonName)
{
    QTest::mouseClick(dialog.findChild<QPushButton *>(buttonName), Qt::LeftButton);
}

/// Sends the key to the window, which hands it to whatever has the focus.
inline void press(const QWidget &window, Qt::Key key)
{
    const Qt::KeyboardModifiers shift = key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier;
    QTest::keyClick(window.windowHandle(), key, key == Qt::Key_Enter ? Qt::KeypadModifier : shift);
}

/// A check for code that runs inside of show(), where a QVERIFY() could not leave the test.
inline void failUnless(bool condition, const char *what)
{
    if (!condition)
        QTest::qFail(what, __FILE__, __LINE__);
}

/// Ends a test whose show() does not return.
class StuckGuard : public QTimer
{
public:
    StuckGuard()
    {
        callOnTimeout([] { qFatal("show() does not return"); });
        start(10000);
    }
};

/// Runs show() and, as soon as the window is active, @p action.
template <typename Action> int showAnd(UTaskSelectDialog &dialog, Action action)
{
    const StuckGuard guard;
    QTimer::singleShot(0, &dialog, [&] {
        failUnless(QTest::qWaitForWindowActive(&dialog), "the dialog does not become active");
        action();
    });
    return dialog.show();
}

/// Runs show() without a registry and, as soon as the information box is active, @p action on it.
template <typename Action> int showAndMeetBox(UTaskSelectDialog &dialog, Action action)
{
    const StuckGuard guard;
    QTimer::singleShot(0, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        failUnless(box && QTest::qWaitForWindowActive(box), "no information box comes up");
        if (box)
            action(box);
        else
            dialog.close();
    });
    return dialog.show();
}

#endif
