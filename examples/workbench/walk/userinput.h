// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef USERINPUT_H
#define USERINPUT_H

#include <QPoint>
#include <QString>

#include <xcb/xcb.h>

#include <memory>

/// The hands of the user: mouse and keyboard of the X server, moved over a connection of its own,
/// so that the events reach the program as those of real devices do. Does the part of the window
/// manager too, as there may be none: it gives a window the focus and presses its close button.
class UserInput
{
public:
    /// Throws Failure when there is no X server that lets itself be moved.
    UserInput();

    void moveTo(QPoint position);
    void click(QPoint position);
    void clickTwice(QPoint position);
    /// Characters of the keyboard layout only; "\n" is the Return key.
    void type(const QString &text);

    void giveFocus(xcb_window_t window);
    void pressCloseButton(xcb_window_t window);

private:
    void fake(uint8_t type, uint8_t detail, QPoint position = {});
    void pressButton();
    xcb_keycode_t keycodeOf(xcb_keysym_t keysym, int column) const;
    xcb_atom_t atom(const char *name) const;

    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> m_connection;
    xcb_window_t m_root = XCB_NONE;
    QPoint m_position;
};

#endif
