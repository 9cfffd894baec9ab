// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef USERINPUT_H
#define USERINPUT_H

#include <QPoint>
#include <QString>
#include <QVector>

#include <xcb/xcb.h>

#include <memory>

/// The hands of the user: mouse and keyboard of the X server, moved over a connection of its own,
/// so that the events reach the program as those of real devices do.
class UserInput
{
public:
    /// Ends the program when there is no X server with the extension XTEST.
    UserInput();

    void click(QPoint position);
    /// Presses the button at @p from and releases it at @p to.
    void drag(QPoint from, QPoint to);
    /// Characters that need no Shift only; "\n" is the Return key, "\t" the Tab key.
    void type(const QString &text);
    void pressWithControl(char key);
    /// F1 is 1.
    void pressFunctionKey(int number);
    void pressEscape();
    void pressBackspace();
    void pressDown();

    /// Whether a window manager has told that it is there.
    bool hasWindowManager() const;

private:
    void fake(uint8_t type, uint8_t detail, QPoint position = {});
    void press(const QVector<xcb_keysym_t> &keys);
    xcb_keycode_t keycodeOf(xcb_keysym_t keysym) const;

    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> m_connection;
    xcb_window_t m_root = XCB_NONE;
};

#endif
