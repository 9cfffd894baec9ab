// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PLAINCONTEXT_H
#define PLAINCONTEXT_H

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

namespace Host {

/// The same inside of a namespace.
class Texts : public PlainContext
{
};

} // namespace Host

#endif
