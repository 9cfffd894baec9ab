// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "onlooker.h"

#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QStyle>
#include <QTableWidget>

namespace {

enum Column { NameColumn, ValueColumn = 2 };

template <typename Widget> Widget *find(const char *window, const char *name)
{
    const QWidget *parent = Onlooker::window(window);
    return parent ? parent->findChild<Widget *>(name) : nullptr;
}

QTableWidget *tableOf(const char *name)
{
    return find<QTableWidget>(Onlooker::mainWindow, name);
}

QString rowText(const QTableWidget *table, int row)
{
    QStringList texts;
    for (int column = 0; column < table->columnCount(); ++column)
        texts.append(table->item(row, column)->text());
    return texts.join(" | ");
}

/// -1 where the table has no such row.
int rowOf(const QTableWidget *table, const QString &name)
{
    int row = table ? table->rowCount() - 1 : -1;
    while (row >= 0 && table->item(row, NameColumn)->text() != name)
        --row;
    return row;
}

/// The text that the widget shows itself, whatever its class calls it.
QString textOf(const QWidget *widget)
{
    for (const char *property : { "text", "currentText", "plainText" }) {
        if (widget && widget->property(property).isValid())
            return widget->property(property).toString();
    }
    return {};
}

/// Everything that a window says, in the order in which its widgets were made.
QString shownTexts(const QWidget *window)
{
    QStringList texts;
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible())
            continue;
        const auto *table = qobject_cast<const QTableWidget *>(widget);
        for (int row = 0; table && row < table->rowCount(); ++row)
            texts.append(rowText(table, row));
        texts.append(textOf(widget));
    }
    texts.removeAll(QString());
    return texts.join('\n');
}

QString fontInWords()
{
    const QFontInfo font(QApplication::font());
    return QString("%1, %2 pixels, %3")
        .arg(font.family())
        .arg(font.pixelSize())
        .arg(QApplication::style()->objectName());
}

QImage grabbed(const QRect &area)
{
    QScreen *screen = QApplication::primaryScreen();
    return screen->grabWindow(0, area.x(), area.y(), area.width(), area.height()).toImage();
}

} // namespace

QWidget *Onlooker::window(const char *className)
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits(className))
            return window;
    }
    return nullptr;
}

QString Onlooker::text(const char *window, const char *widget)
{
    return textOf(find<QWidget>(window, widget));
}

QString Onlooker::row(const char *table, const QString &name)
{
    const int row = rowOf(tableOf(table), name);
    return row < 0 ? QString() : rowText(tableOf(table), row);
}

QPoint Onlooker::position(const char *window, const char *widget)
{
    const auto *found = find<QWidget>(window, widget);
    return found && found->isVisible() ? found->mapToGlobal(found->rect().center()) : QPoint();
}

QPoint Onlooker::positionOfValue(const char *table, const QString &row)
{
    const QTableWidget *widget = tableOf(table);
    const int index = rowOf(widget, row);
    if (index < 0)
        return {};
    const QRect place = widget->visualItemRect(widget->item(index, ValueColumn));
    return widget->viewport()->mapToGlobal(place.center());
}

QPoint Onlooker::positionOfEntry(const QString &entry)
{
    const auto *box = find<QComboBox>(dialog, "comboBox");
    if (!box || !box->view()->isVisible() || box->findText(entry) < 0)
        return {};
    const QRect place = box->view()->visualRect(box->model()->index(box->findText(entry), 0));
    return box->view()->viewport()->mapToGlobal(place.center());
}

QImage Onlooker::screen()
{
    return grabbed(QApplication::primaryScreen()->geometry());
}

QImage Onlooker::screenshot()
{
    QRect area;
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget *widget : windows) {
        if (widget->isVisible())
            area |= widget->frameGeometry();
    }
    QImage image = grabbed(area);
    QStringList texts;
    for (const char *name : { mainWindow, dialog }) {
        const QWidget *shown = window(name);
        if (!shown || !shown->isVisible())
            continue;
        texts.append(shownTexts(shown));
        // Without a window manager nothing else draws a frame.
        const QRect frame = shown->frameGeometry().translated(-area.topLeft());
        QPainter(&image).drawRect(frame.adjusted(0, 0, -1, -1));
    }
    image.setText("Shown", texts.join('\n'));
    image.setText("Font", fontInWords());
    return image;
}
