// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "numbertext_p.h"

#include <QLocale>
#include <QRegularExpression>

bool NumberText::isNumber(const QString &text)
{
    static const QRegularExpression number(
        QStringLiteral("\\A[+-]?([0-9]+[.]?[0-9]*|[.][0-9]+)([eE][+-]?[0-9]+)?\\z"));
    return number.match(text).hasMatch();
}

QString NumberText::stored(const QString &typed, const QLocale &locale)
{
    constexpr char16_t minusSign = 0x2212;
    QString text = typed.trimmed();
    for (QChar &character : text) {
        if (character.isDigit())
            character = QLatin1Char(char('0' + character.digitValue()));
        else if (character == locale.decimalPoint())
            character = QLatin1Char('.');
        else if (character == locale.negativeSign() || character == QChar(minusSign))
            character = QLatin1Char('-');
    }
    return isNumber(text) ? text : typed;
}

QString NumberText::shown(const QString &stored, const QLocale &locale)
{
    if (!isNumber(stored))
        return stored;
    QString text = stored;
    for (QChar &character : text) {
        if (character.isDigit())
            character = QChar(ushort(locale.zeroDigit().unicode() + character.digitValue()));
        else if (character == QLatin1Char('.'))
            character = locale.decimalPoint();
    }
    return text;
}
