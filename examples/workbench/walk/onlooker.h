// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ONLOOKER_H
#define ONLOOKER_H

#include "failure.h"

#include <QApplication>
#include <QMetaObject>
#include <QPoint>
#include <QSemaphore>
#include <QStringList>

#include <memory>

class MainWindow;

/// The eyes of the user: looks up in the GUI thread, from another one, what the program shows and
/// where. Places are those on the screen; one that is not shown is a null point. Every look throws
/// Failure when the GUI thread does not answer in time, be it in the main event loop or in that of
/// the dialog.
class Onlooker
{
public:
    explicit Onlooker(MainWindow *window = nullptr)
        : m_window(window)
    {
    }

    bool isDialogShown() const;
    /// Whether the program is done with the dialog too, after it has disappeared.
    bool isDialogGone() const;
    WId dialogId() const;
    QPoint dialogButton(const char *name) const;
    QPoint dialogEntries() const;
    /// An entry of the opened list of entries.
    QPoint openedEntry(const QString &text) const;
    /// The entry that is chosen in the dialog.
    QString dialogEntry() const;

    bool isWindowShown() const;
    WId windowId() const;
    QString labelText(const char *name) const;
    QPoint button(const char *name) const;
    /// The columns of each row, joined by " | ".
    QStringList rows(const char *table) const;
    QString valueIn(const char *table, const QString &name) const;
    QPoint placeOfValue(const char *table, const QString &name) const;

    /// The window that has the keyboard: "window", "dialog" or nothing.
    QString activeWindow() const;
    /// Whether what is typed goes into a line edit.
    bool isEditing() const;
    /// Writes the whole screen to @p path.
    bool grabScreen(const QString &path) const;

private:
    template <typename Question> auto ask(Question question) const -> decltype(question());

    MainWindow *m_window;
};

#endif
