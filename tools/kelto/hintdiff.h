// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef HINTDIFF_H
#define HINTDIFF_H

#include <KeltoItemHints>
#include <VParameter>

#include <QString>
#include <QStringList>
#include <QVector>

/// What one mode says about a parameter or a result.
struct DescribedParameter
{
    KeltoItemHints hints;
    VParameter parameter;
};

struct HintChange
{
    const char *property; ///< To be translated.
    QString before; ///< Null where there was nothing.
    QString after;
    bool loses; ///< Whether a value that could be chosen or entered no longer can.
};

/// The differences in what the hints say.
QVector<HintChange> hintChanges(const DescribedParameter &before, const DescribedParameter &after);

/// Whether what was stored of the first kind can be a text that the second kind does not read.
bool losesKind(const DescribedParameter &before, const DescribedParameter &after);

// Values are compared, and told, as item files hold them.

QString trueOrFalse(bool value);

/// The text, or null where it is empty.
QString orNothing(const QString &text);

/// The texts joined by "|", or null where there are none.
QString listed(const QStringList &texts);

#endif
