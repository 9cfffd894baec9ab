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
/// so that the events reach the program as those of real devices do. Gives windows the focus, too,
/// because there may be no window manager that would.
class UserInput
{
public:
    /// Ends the program when there is no X server with the extension XTEST.
    UserInput();

    void click(QPoint position);
    void clickTwice(QPoint position);
    /// Characters that need no Shift only; "\n" is the Return key.
    void type(const QString &text);
    void pressWithControl(char key);

    void giveFocus(xcb_window_t window);

private:
    void fake(uint8_t type, uint8_t detail, QPoint position = {});
    void pressButton();
    void press(const QVector<xcb_keycode_t> &keys);
    xcb_keycode_t keycodeOf(xcb_keysym_t keysym) const;

    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> m_connection;
    xcb_window_t m_root = XCB_NONE;
};

#endif
