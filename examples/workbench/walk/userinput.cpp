// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "userinput.h"

#include "failure.h"

#include <xcb/xtest.h>

#include <cstdlib>
#include <cstring>

namespace {

const xcb_keysym_t shiftKey = 0xffe1;
const xcb_keysym_t returnKey = 0xff0d;

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
        throw Failure { QStringLiteral("an X server"), QStringLiteral("no connection") };
    m_root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto version = owned(xcb_test_get_version_reply(
        connection,
        xcb_test_get_version(connection, XCB_TEST_MAJOR_VERSION, XCB_TEST_MINOR_VERSION), nullptr));
    if (!version)
        throw Failure { QStringLiteral("an X server with XTest"), QStringLiteral("no XTest") };
}

void UserInput::moveTo(QPoint position)
{
    // A hand does not jump; menus look at the way.
    const QPoint start = m_position;
    const int steps = 8;
    for (int i = 1; i <= steps; ++i)
        fake(XCB_MOTION_NOTIFY, false, start + (position - start) * i / steps);
    m_position = position;
}

void UserInput::click(QPoint position)
{
    moveTo(position);
    pressButton();
}

void UserInput::clickTwice(QPoint position)
{
    click(position);
    pressButton();
}

void UserInput::type(const QString &text)
{
    for (const QChar character : text) {
        // Letters, digits and signs of Latin-1 have their code as key symbol.
        const xcb_keysym_t keysym
            = character == QLatin1Char('\n') ? returnKey : character.unicode();
        const xcb_keycode_t plain = keycodeOf(keysym, 0);
        const xcb_keycode_t shifted = plain ? 0 : keycodeOf(keysym, 1);
        const xcb_keycode_t shift = keycodeOf(shiftKey, 0);
        if (!plain && !shifted)
            throw Failure { QStringLiteral("a key for '%1'").arg(character),
                            QStringLiteral("none") };
        if (shifted)
            fake(XCB_KEY_PRESS, shift);
        fake(XCB_KEY_PRESS, plain ? plain : shifted);
        fake(XCB_KEY_RELEASE, plain ? plain : shifted);
        if (shifted)
            fake(XCB_KEY_RELEASE, shift);
    }
}

void UserInput::giveFocus(xcb_window_t window)
{
    xcb_set_input_focus(m_connection.get(), XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    xcb_flush(m_connection.get());
}

void UserInput::pressCloseButton(xcb_window_t window)
{
    xcb_client_message_event_t event;
    std::memset(&event, 0, sizeof event);
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom("WM_PROTOCOLS");
    event.data.data32[0] = atom("WM_DELETE_WINDOW");
    event.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(m_connection.get(), false, window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&event));
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

/// @param column 0 for the key alone, 1 for the key with Shift
/// @return 0 when there is no such key.
xcb_keycode_t UserInput::keycodeOf(xcb_keysym_t keysym, int column) const
{
    const xcb_setup_t *setup = xcb_get_setup(m_connection.get());
    const int count = setup->max_keycode - setup->min_keycode + 1;
    const auto mapping = owned(
        xcb_get_keyboard_mapping_reply(m_connection.get(),
                                       xcb_get_keyboard_mapping(m_connection.get(),
                                                                setup->min_keycode,
                                                                static_cast<uint8_t>(count)),
                                       nullptr));
    if (!mapping || column >= mapping->keysyms_per_keycode)
        return 0;
    const xcb_keysym_t *keysyms = xcb_get_keyboard_mapping_keysyms(mapping.get());
    for (int i = 0; i < count; ++i) {
        if (keysyms[i * mapping->keysyms_per_keycode + column] == keysym)
            return static_cast<xcb_keycode_t>(setup->min_keycode + i);
    }
    return 0;
}

xcb_atom_t UserInput::atom(const char *name) const
{
    const auto reply = owned(
        xcb_intern_atom_reply(m_connection.get(),
                              xcb_intern_atom(m_connection.get(), false,
                                              static_cast<uint16_t>(std::strlen(name)), name),
                              nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}
