// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/brokenlines.h"

#include "lint/lintitem.h"
#include "nearestname.h"

QString meantHeader(std::string_view line)
{
    const QString text = QString::fromUtf8(line.data(), static_cast<int>(line.size())).trimmed();
    if (knownSections().contains(text))
        return text;
    if (!text.endsWith(QLatin1Char(']')) || text.contains(QLatin1Char('[')))
        return {};
    return nearestName(text.chopped(1), knownSections());
}
