// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SHOWNFINDING_P_H
#define SHOWNFINDING_P_H

#include <Kelto/KeltoItemFinding>

#include <QStringList>

/// @p finding with its values as a person reads them. @p shown gives that text for a stored one.
template <typename Shown>
KeltoItemFinding shownFinding(KeltoItemFinding finding, const Shown &shown)
{
    const bool isOutside = finding.kind == KeltoItemFinding::OutsideLimits;
    const bool isNoChoice = finding.kind == KeltoItemFinding::NotAChoice;
    if (!isOutside && !isNoChoice && finding.kind != KeltoItemFinding::NotANumber)
        return finding;
    finding.found = shown(finding.found);
    for (QString &expected : finding.expected) {
        // Limits are numbers among signs.
        QStringList parts = isOutside ? expected.split(QLatin1Char(' ')) : QStringList(expected);
        for (QString &part : parts)
            part = shown(part);
        expected = parts.join(QLatin1Char(' '));
    }
    return finding;
}

#endif
