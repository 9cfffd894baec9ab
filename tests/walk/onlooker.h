// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ONLOOKER_H
#define ONLOOKER_H

#include <QImage>
#include <QPoint>
#include <QString>
#include <QWidget>

/// The eyes of the user: what the program shows, and where. Windows are named by their class,
/// widgets, actions and menus by their object names. A position is one on the screen; that of
/// something that is not shown is a null point.
namespace Onlooker {

/// The window of this class that is shown; null where there is none.
QWidget *window(const char *className);
/// Whether the window is shown and has the keyboard.
bool isActive(const char *className);

/// The name of the widget that the keyboard acts upon.
QString focus();

/// The text of a label, button or editor, or the selected entry of a combo box; null where the
/// window has no such widget that is shown.
QString text(const char *window, const QString &widget);
/// The row of a table in a widget that begins with @p name, with its columns joined by " | ".
QString row(const char *window, const QString &widget, const QString &name);

QPoint position(const char *window, const QString &widget);
/// The position of an action on the tool bar, in the menu bar or in an opened menu; a menu has the
/// name of its first action.
QPoint positionOfAction(const QString &action);
QPoint positionOfMenu(const QString &firstAction);
/// The position of an entry in the opened list of a combo box.
QPoint positionOfEntry(const char *window, const QString &comboBox, const QString &entry);
QPoint positionOfTab(const char *window, const QString &tabs, int index);
/// The position of a button of a message box, by its role in Qt.
QPoint positionOfAnswer(int standardButton);

/// The widgets of the active window that are too small for their text, or that the edge of the
/// window cuts off.
QStringList clippedTexts();

/// The whole screen.
QImage screen();
/// The windows of the program in their places, with their frames. What they say and the font that
/// they use are kept in words as the texts "Shown" and "Font" of the image.
QImage screenshot();

} // namespace Onlooker

#endif
