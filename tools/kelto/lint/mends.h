// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MENDS_H
#define MENDS_H

#include "lint/lintitem.h"
#include "lint/rules.h"

#include <QSet>

/// How the damage that is a finding was most likely not meant.
struct Mend
{
    QString rule; ///< Of the finding.
    IniPosition cause; ///< And where it is.
    TextEdit edit; ///< Within one line.
};

/// A finding is told from the others by its rule and its place.
using FindingKey = QPair<QString, QPair<int, int>>;

inline FindingKey keyOf(const QString &rule, IniPosition position)
{
    return { rule, { position.line, position.column } };
}

/// The mends for @p findings, in the order of the file. Whatever stands behind an unclosed quote is
/// not what it seems, so that the first of these is mended alone.
QVector<Mend> mendsFor(const ItemFile &file, const Findings &findings);

#endif
