// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "userinput.h"

#include "workbench.h"

#include <QApplication>

#include <xcb/xtest.h>

#include <cstdlib>

namespace {

const xcb_keysym_t returnKey = 0xff0d;
const xcb_keysym_t tabKey = 0xff09;
const xcb_keysym_t escapeKey = 0xff1b;
const xcb_keysym_t backspaceKey = 0xff08;
const xcb_keysym_t downKey = 0xff54;
const xcb_keysym_t controlKey = 0xffe3;
const xcb_keysym_t firstFunctionKey = 0xffbe;

template <typename Reply> using ReplyPointer = std::unique_ptr<Reply, decltype(&std::free)>;

template <typename Reply> ReplyPointer<Reply> owned(Reply *reply)
{
    return { reply, &std::free };
}

} // namespace

UserInput::UserInput()
    : m_connection(xcb_connect(nullptr, nullptr), &xcb_disconnect)
{
    xcb_connection_t *connection = m_connection.get();
    if (xcb_connection_has_error(connection))
        quit(Failed, "There is no X server.");
    m_root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto version = owned(xcb_test_get_version_reply(
        connection,
        xcb_test_get_version(connection, XCB_TEST_MAJOR_VERSION, XCB_TEST_MINOR_VERSION), nullptr));
    if (!version)
        quit(Failed, "There is no extension XTEST in the X server.");
}

void UserInput::click(QPoint position)
{
    drag(position, position);
}

void UserInput::drag(QPoint from, QPoint to)
{
    fake(XCB_MOTION_NOTIFY, false, from);
    fake(XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1);
    if (from != to) {
        fake(XCB_MOTION_NOTIFY, false, (from + to) / 2);
        fake(XCB_MOTION_NOTIFY, false, to);
    }
    fake(XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1);
}

void UserInput::type(const QString &text)
{
    for (const QChar character : text) {
        const xcb_keysym_t key = character == '\n' ? returnKey
            : character == '\t'                    ? tabKey
                                                   : character.unicode();
        press({ key });
    }
}

void UserInput::pressWithControl(char key)
{
    press({ controlKey, static_cast<xcb_keysym_t>(key) });
}

void UserInput::pressFunctionKey(int number)
{
    press({ firstFunctionKey + static_cast<xcb_keysym_t>(number) - 1 });
}

void UserInput::pressEscape()
{
    press({ escapeKey });
}

void UserInput::pressBackspace()
{
    press({ backspaceKey });
}

void UserInput::pressDown()
{
    press({ downKey });
}

bool UserInput::hasWindowManager() const
{
    const QByteArray name = "_NET_SUPPORTING_WM_CHECK";
    xcb_connection_t *connection = m_connection.get();
    const auto atom = owned(
        xcb_intern_atom_reply(connection,
                              xcb_intern_atom(connection, true, static_cast<uint16_t>(name.size()),
                                              name.constData()),
                              nullptr));
    if (!atom || atom->atom == XCB_NONE)
        return false;
    const auto property = owned(xcb_get_property_reply(
        connection, xcb_get_property(connection, false, m_root, atom->atom, XCB_ATOM_WINDOW, 0, 1),
        nullptr));
    return property && property->value_len == 1;
}

void UserInput::fake(uint8_t type, uint8_t detail, QPoint position)
{
    // The server knows nothing of the scale in which the program counts its pixels.
    const QPoint place = position * qApp->devicePixelRatio();
    xcb_test_fake_input(m_connection.get(), type, detail, XCB_CURRENT_TIME, m_root,
                        static_cast<int16_t>(place.x()), static_cast<int16_t>(place.y()), 0);
    xcb_flush(m_connection.get());
}

void UserInput::press(const QVector<xcb_keysym_t> &keys)
{
    QVector<xcb_keycode_t> codes;
    for (const xcb_keysym_t key : keys)
        codes.append(keycodeOf(key));
    for (const xcb_keycode_t code : qAsConst(codes))
        fake(XCB_KEY_PRESS, code);
    for (auto code = codes.crbegin(); code != codes.crend(); ++code)
        fake(XCB_KEY_RELEASE, *code);
}

xcb_keycode_t UserInput::keycodeOf(xcb_keysym_t keysym) const
{
    const xcb_setup_t *setup = xcb_get_setup(m_connection.get());
    const int count = setup->max_keycode - setup->min_keycode + 1;
    const auto request = xcb_get_keyboard_mapping(m_connection.get(), setup->min_keycode,
                                                  static_cast<uint8_t>(count));
    const auto mapping
        = owned(xcb_get_keyboard_mapping_reply(m_connection.get(), request, nullptr));
    for (int i = 0; mapping && i < count; ++i) {
        // The first of the symbols of each key is that without Shift.
        const int first = i * mapping->keysyms_per_keycode;
        if (xcb_get_keyboard_mapping_keysyms(mapping.get())[first] == keysym)
            return static_cast<xcb_keycode_t>(setup->min_keycode + i);
    }
    quit(Failed, QString("The keyboard has no key for the symbol %1.").arg(keysym));
}
