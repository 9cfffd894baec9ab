// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef CONTEXTS_H
#define CONTEXTS_H

#include <QObject>
#include <QString>

/// A context class of a host that translates without Qt's translators. It marks what it was asked
/// for.
class PlainContext
{
public:
    static QString tr(const char *text)
    {
        return QLatin1Char('<') + QString::fromUtf8(text) + QLatin1Char('>');
    }
};

/// The same inside of a namespace.
namespace Host {
using Texts = PlainContext;
} // namespace Host

/// A context class of a host that uses Qt's translators.
class QObjectContext : public QObject
{
    Q_OBJECT
};

#endif
