// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TOOLTIPTEXT_P_H
#define TOOLTIPTEXT_P_H

#include <QString>
#include <QTextDocument>

/// @p text as a tool tip that shows it as it is. Qt takes what looks like HTML for HTML, and a text
/// from a stranger's file could then show a picture.
inline QString toolTipText(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

#endif
