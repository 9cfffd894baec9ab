// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "userinput.h"

#include "commandline.h"

#include <xcb/xtest.h>

#include <cstdlib>

namespace {

const xcb_keysym_t returnKey = 0xff0d;
const xcb_keysym_t controlKey = 0xffe3;

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
    fake(XCB_MOTION_NOTIFY, false, position);
    pressButton();
}

void UserInput::clickTwice(QPoint position)
{
    click(position);
    pressButton();
}

void UserInput::type(const QString &text)
{
    for (const QChar character : text)
        press({ keycodeOf(character == '\n' ? returnKey : character.unicode()) });
}

void UserInput::pressWithControl(char key)
{
    press({ keycodeOf(controlKey), keycodeOf(static_cast<xcb_keysym_t>(key)) });
}

void UserInput::giveFocus(xcb_window_t window)
{
    xcb_set_input_focus(m_connection.get(), XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    xcb_flush(m_connection.get());
}

void UserInput::fake(uint8_t type, uint8_t detail, QPoint position)
{
    xcb_test_fake_input(m_connection.get(), type, detail, XCB_CURRENT_TIME, m_root,
                        static_cast<int16_t>(position.x()), static_cast<int16_t>(position.y()), 0);
    xcb_flush(m_connection.get());
}

void UserInput::pressButton()
{
    fake(XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1);
    fake(XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1);
}

void UserInput::press(const QVector<xcb_keycode_t> &keys)
{
    for (const xcb_keycode_t key : keys)
        fake(XCB_KEY_PRESS, key);
    for (auto key = keys.crbegin(); key != keys.crend(); ++key)
        fake(XCB_KEY_RELEASE, *key);
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
