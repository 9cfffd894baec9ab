// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SENTENCE_P_H
#define SENTENCE_P_H

#include <QString>
#include <QStringList>

/// @p sentence with "%1" replaced by the first of @p parts, and so on. Unlike QString::arg() it
/// lets a sentence leave any of them out, and looks for nothing in the parts.
inline QString sentenceOf(const QString &sentence, const QStringList &parts)
{
    QString text;
    for (int i = 0; i < sentence.size(); ++i) {
        const int part = sentence.at(i) == QLatin1Char('%') && i + 1 < sentence.size()
            ? sentence.at(i + 1).digitValue() - 1
            : -1;
        if (part < 0 || part >= parts.size()) {
            text.append(sentence.at(i));
            continue;
        }
        text.append(parts.at(part));
        ++i;
    }
    return text;
}

#endif
