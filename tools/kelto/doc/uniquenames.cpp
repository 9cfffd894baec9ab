// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "uniquenames.h"

namespace {

/// Far below what file systems allow, since endings and directories come on top.
constexpr int longestName = 60;

QString plainName(const QString &text)
{
    QString name;
    for (const QChar letter : text) {
        const char plain = letter.toLower().toLatin1();
        if ((plain >= 'a' && plain <= 'z') || (plain >= '0' && plain <= '9'))
            name += QLatin1Char(plain);
        else if (!name.isEmpty() && !name.endsWith(QLatin1Char('-')))
            name += QLatin1Char('-');
        if (name.size() == longestName)
            break;
    }
    while (name.endsWith(QLatin1Char('-')))
        name.chop(1);
    return name;
}

} // namespace

UniqueNames::UniqueNames(const QStringList &taken)
    : m_taken(taken.cbegin(), taken.cend())
{
}

QString UniqueNames::make(const QString &text, const QString &otherwise)
{
    const QString plain = plainName(text);
    const QString stem = plain.isEmpty() ? otherwise : plain;
    QString name = stem;
    for (int number = 2; m_taken.contains(name); ++number)
        name = stem + QLatin1Char('-') + QString::number(number);
    m_taken.insert(name);
    return name;
}
