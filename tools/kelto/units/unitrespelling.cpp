// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "units/unitrespelling.h"

#include <QHash>
#include <QRegularExpression>

namespace {

/// Symbols with a second meaning, and another symbol for that one.
const QHash<QString, QString> &secondMeanings()
{
    static const QHash<QString, QString> meanings {
        { QStringLiteral("g"), QStringLiteral("gn") },
        { QStringLiteral("G"), QStringLiteral("gn") },
        { QStringLiteral("kg"), QStringLiteral("kgf") },
        { QStringLiteral("t"), QStringLiteral("tf") },
        { QStringLiteral("lb"), QStringLiteral("lbf") },
        { QStringLiteral("lbs"), QStringLiteral("lbf") },
        { QStringLiteral("oz"), QStringLiteral("ozf") },
        { QStringLiteral("T"), QStringLiteral("t") },
        { QStringLiteral("kt"), QStringLiteral("1000 t") },
        { QStringLiteral("kn"), QStringLiteral("kN") },
        { QStringLiteral("C"), QStringLiteral("°C") },
        { QStringLiteral("F"), QStringLiteral("°F") },
        { QStringLiteral("R"), QStringLiteral("°R") },
        { QStringLiteral("S"), QStringLiteral("s") },
        { QStringLiteral("H"), QStringLiteral("h") },
        { QStringLiteral("Ma"), QStringLiteral("Mach") },
        { QStringLiteral("DN"), QStringLiteral("mm") },
        { QStringLiteral("NPS"), QStringLiteral("in") },
        { QStringLiteral("PN"), QStringLiteral("bar") },
    };
    return meanings;
}

/// The usual symbols by their small letters, of those that there are.
const QHash<QString, QString> &usualSymbols()
{
    static const QHash<QString, QString> symbols = [] {
        QHash<QString, QString> hash;
        const QStringList list
            = QStringLiteral("mm cm km ml mg kg min bar mbar hPa kPa MPa GPa Pa kN MN Nm kNm MNm "
                             "Nmm Hz kHz MHz GHz kW MW GW kWh MWh kJ MJ GJ kcal mA kA kV kVA Ah "
                             "mAh mol kmol rad rpm dB ppm psi ksi lbf")
                  .split(QLatin1Char(' '));
        for (const QString &symbol : list)
            hash.insert(symbol.toLower(), symbol);
        return hash;
    }();
    return symbols;
}

/// Empty when it is what it seems.
QString meantBy(const QString &symbol)
{
    const QString usual = usualSymbols().value(symbol.toLower(), symbol);
    return secondMeanings().value(symbol, usual == symbol ? QString() : usual);
}

} // namespace

QStringList unitsMeantBy(const QString &text)
{
    static const QRegularExpression symbol(QStringLiteral("(?<![\\p{L}°])\\p{L}+"));
    static const QRegularExpression degree(QStringLiteral("\\b[Dd]eg(ree|rees)?\\.? ?([CF])\\b"));
    QStringList units;
    QString all = text;
    int shift = 0;
    if (degree.match(text).hasMatch())
        units.append(QString(text).replace(degree, QStringLiteral("°\\2")));
    for (auto each = symbol.globalMatch(text); each.hasNext();) {
        const QRegularExpressionMatch match = each.next();
        const QString meant = meantBy(match.captured());
        if (meant.isEmpty())
            continue;
        const int length = match.capturedLength();
        units.append(QString(text).replace(match.capturedStart(), length, meant));
        all.replace(match.capturedStart() + shift, length, meant);
        shift += meant.size() - length;
    }
    if (units.size() > 1)
        units.append(all);
    return units;
}
