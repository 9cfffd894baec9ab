// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef WIDGETLOCALE_P_H
#define WIDGETLOCALE_P_H

#include <QLocale>
#include <QWidget>

/// The locale that @p widget or a parent of it was given, or else the default one as it is now. A
/// program that changes its language changes the default locale as well; QWidget::locale() stays
/// the one that the widget began with.
inline QLocale currentLocale(const QWidget *widget)
{
    while (widget && !widget->testAttribute(Qt::WA_SetLocale))
        widget = widget->parentWidget();
    return widget ? widget->locale() : QLocale();
}

#endif
