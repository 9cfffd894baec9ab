// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ONLOOKER_H
#define ONLOOKER_H

#include <QImage>
#include <QPoint>
#include <QString>
#include <QWidget>

/// The eyes of the user: what the program shows, and where. Windows are named by their class,
/// widgets by their object name. A position is one on the screen; that of something that is not
/// shown is a null point.
namespace Onlooker {

const char *const dialog = "UTaskSelectDialog";
const char *const mainWindow = "MainWindow";

/// Null where the program has no such window; it may have one that is not shown.
QWidget *window(const char *className);

/// The text of a label or button, or the selected entry of a combo box.
QString text(const char *window, const char *widget);
/// A row of a table by its name, with its columns joined by " | ".
QString row(const char *table, const QString &name);

QPoint position(const char *window, const char *widget);
QPoint positionOfValue(const char *table, const QString &row);
/// The position of an entry in the opened list of the dialog's combo box.
QPoint positionOfEntry(const QString &entry);

/// The whole screen.
QImage screen();
/// The windows of the program in their places. What they say and the font that they use are kept in
/// words as the texts "Shown" and "Font" of the image.
QImage screenshot();

} // namespace Onlooker

#endif
