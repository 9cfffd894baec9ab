// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef UNITSYMBOLS_H
#define UNITSYMBOLS_H

#include <QString>
#include <QVector>

/// What engineers write, and UDUNITS does not know or takes for something else.
struct UnitSpelling
{
    QString text; ///< As it stands behind a "^" for superscripts and in the usual letters.
    QString meaning; ///< A text for unitOf().
    bool takesPrefix; ///< As in "kWh".
};

/// The meaning of a symbol; null when it is not in the table.
QString meaningOfSymbol(const QString &symbol);

/// The same for a symbol that may have a prefix in front.
QString meaningOfPrefixableSymbol(const QString &symbol);

/// The spellings that are not made of letters alone, longer ones first.
const QVector<UnitSpelling> &longSpellings();

/// The factor of the prefix that @p symbol begins with, in Latin or Chinese; 0 without one. All are
/// one character long.
double factorOfPrefix(const QString &symbol);

/// Whether a whole text stands for the number one, such as "-".
bool isNoUnit(const QString &text);

#endif
