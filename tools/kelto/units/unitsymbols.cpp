// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "units/unitsymbols.h"

#include <QHash>

#include <algorithm>

namespace {

/// Everything is divided by spaces; "one" is the number one, "currency" the unit of money.
struct Row
{
    const char *spellings;
    const char *meaning;
    bool takesPrefix;
};

constexpr Row rows[] {
    // Products without a sign, of which "mN" and the like are something else.
    { "Nm", "N·m", true },
    { "Nmm", "N·mm", true },
    { "Ncm", "N·cm", true },
    { "Ns", "N·s", true },
    { "Nms", "N·m·s", true },
    { "Pas", "Pa·s", true },
    { "Ws", "W·s", true },
    { "Wh", "W·h", true },
    { "Ah", "A·h", true },
    { "As", "A·s", true },
    { "Vs", "V·s", true },
    { "VAh", "W·h", true },
    { "var VAr VAR Var", "W", true },
    { "varh", "W·h", true },
    { "kgK", "kg·K", false },
    { "molK", "mol·K", false },
    { "kgm", "kg·m", false },
    { "kgfm kpm", "kgf·m", false },
    { "Vm", "V·m", true },
    { "Ωm ohmm Ohmm", "Ω·m", true },
    { "Ωcm", "Ω·cm", true },
    { "gcm", "g·cm", false },
    { "Nm^3 Nm3 Sm^3 Sm3 scm ncm", "m^3", false },
    { "Nl NL Sl SL sl nl", "l", false },
    { "m^1/2 m1/2", "√m", false },
    { "mm^1/2 mm1/2", "√mm", false },
    // Turns and angles.
    { "r rev revs U Umdr 转 圈", "turn", false },
    { "rpm RPM", "turn/min", false },
    { "rps", "turn/s", false },
    { "deg degs 度", "°", false },
    { "gon grad", "0.9 °", false },
    { "′′", "arcsecond", false },
    // Numbers of things, and ratios.
    { "‰", "0.001", false },
    { "bp", "0.0001", false },
    { "ppmv ppmw", "0.000001", false },
    { "Vol.-% Vol% vol% Gew.-% wt% Mol% mol% %RH %rF wt.% w% m% at% at.% v% %wt %vol 百分比", "%",
      false },
    { "pu p.u.", "one", false },
    { "ε strain", "one", true },
    { "dB dBA dBC dB(A) dB(C) dB(Z) dBFS Np oct dec dekade", "one", false },
    { "dBm dBW", "W", false },
    { "pH NTU FNU HB HBW HV HRA HRB HRC HK HLD pcs pce Stk St. Stück ea", "one", false },
    { "px pixel pixels Bd sample samples digit digits LSB count counts", "one", false },
    { "bits Bit", "bit", true },
    { "B Byte bytes", "byte", true },
    { "DN NPS PN Mach tooth teeth Zahn", "one", false },
    { "Tsd. Tsd", "1000", false },
    { "Mio. Mio", "1000000", false },
    { "Mrd. Mrd", "1000000000", false },
    { "个 件 片 次 级 齿", "one", false },
    // Units that UDUNITS does not know, or of which it knows the name of another.
    { "a Jahr 年", "year", false },
    { "wk", "week", false },
    { "hrs std Std", "h", false },
    { "Sek sek", "s", false },
    { "mins", "min", false },
    { "°K", "K", false },
    { "°R °Ra", "degR", false },
    { "PS CV", "735.49875 W", false },
    { "HP bhp BHP", "hp", false },
    { "kn kts", "knot", false },
    { "gn g0 g_n g_0", "9.80665 m/s^2", false },
    { "kp", "kgf", false },
    { "tf", "1000 kgf", false },
    { "dyn", "0.00001 N", false },
    { "P", "poise", true },
    { "G Gs", "0.0001 T", true },
    { "Mx", "0.00000001 Wb", false },
    { "mho", "S", true },
    { "den", "g/(9 km)", false },
    { "mmH2O mmWS mmwc mmH_2O", "9.80665 Pa", false },
    { "cmH2O cmWS", "98.0665 Pa", false },
    { "ata atü", "98066.5 Pa", false },
    { "cmHg", "1333.22387415 Pa", false },
    { "mH2O mWS mWC mwc", "9806.65 Pa", false },
    { "inH2O inWC inWG", "249.08891 Pa", false },
    { "ftH2O", "2989.0669 Pa", false },
    { "bara barg bar(a) bar(g) bar(abs) bar(ü)", "bar", true },
    { "psia psig psid", "psi", false },
    { "Msi", "1000 ksi", false },
    { "psf", "lbf/ft^2", false },
    { "pcf", "lb/ft^3", false },
    { "plf", "lbf/ft", false },
    { "klf", "kip/ft", false },
    { "lbm lbs", "lb", false },
    { "ft-lb ft-lbs lb-ft lbs-ft", "lbf·ft", false },
    { "in-lb in-lbs lb-in", "lbf·in", false },
    { "oz ozm ounce", "0.028349523125 kg", false },
    { "ozf", "0.27801385095 N", false },
    { "mph", "mile/h", false },
    { "kmh kph", "km/h", false },
    { "nmi NM sm", "1852 m", false },
    { "thou", "0.001 in", false },
    { "gal USgal", "gallon", false },
    { "gpm GPM", "gallon/min", false },
    { "cfm CFM scfm SCFM", "ft^3/min", false },
    { "lpm LPM slpm SLPM", "l/min", false },
    { "sccm SCCM", "cm^3/min", false },
    { "cfs", "ft^3/s", false },
    { "fps FPS", "ft/s", false },
    { "mgd MGD", "1000000 gallon/d", false },
    { "sqmm", "mm^2", false },
    { "qcm sqcm", "cm^2", false },
    { "qm sqm", "m^2", false },
    { "qkm sqkm", "km^2", false },
    { "sqin", "in^2", false },
    { "sqft", "ft^2", false },
    { "ccm", "cm^3", false },
    { "cbm", "m^3", false },
    { "cuin", "in^3", false },
    { "cuft cft", "ft^3", false },
    { "lfm lfdm", "m", false },
    { "kcmil MCM", "0.50670748 mm^2", false },
    { "dpi ppi", "1/in", false },
    { "eq val", "mol", true },
    { "°dH", "0.17832 mol/m^3", false },
    { "°fH", "0.1 mol/m^3", false },
    { "ac", "acre", false },
    { "TR RT USRT", "3516.8528 W", false },
    { "dpt dioptre diopter", "1/m", false },
    { "EUR € USD $ GBP £ CNY RMB ¥ JPY CHF 元", "currency", true },
    // Chinese names. Prefixes stand in a table of their own.
    { "米 公尺", "m", true },
    { "公里", "km", false },
    { "克", "g", true },
    { "公斤", "kg", false },
    { "吨", "t", true },
    { "秒", "s", true },
    { "分 分钟", "min", false },
    { "时 小时", "h", false },
    { "天 日", "d", false },
    { "牛 牛顿", "N", true },
    { "牛米 牛顿米", "N·m", true },
    { "帕 帕斯卡", "Pa", true },
    { "巴", "bar", true },
    { "焦 焦耳", "J", true },
    { "瓦 瓦特", "W", true },
    { "瓦时 度电", "W·h", true },
    { "卡", "cal", true },
    { "安 安培", "A", true },
    { "伏 伏特", "V", true },
    { "欧 欧姆", "Ω", true },
    { "法", "F", true },
    { "亨", "H", true },
    { "赫 赫兹", "Hz", true },
    { "升", "l", true },
    { "开 开尔文", "K", false },
    { "摄氏度", "°C", false },
    { "华氏度", "°F", false },
    { "弧度", "rad", true },
    { "摩 摩尔", "mol", true },
    { "坎 坎德拉", "cd", false },
};

bool isOfLetters(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar character) {
        return character.isLetter() || QStringLiteral("°%‰′$€£¥").contains(character);
    });
}

QVector<UnitSpelling> allSpellings()
{
    QVector<UnitSpelling> spellings;
    for (const Row &row : rows) {
        const QStringList texts = QString::fromUtf8(row.spellings).split(QLatin1Char(' '));
        for (const QString &text : texts)
            spellings.append({ text, QString::fromUtf8(row.meaning), row.takesPrefix });
    }
    return spellings;
}

const QHash<QString, UnitSpelling> &spellingsByText()
{
    static const QHash<QString, UnitSpelling> byText = [] {
        QHash<QString, UnitSpelling> hash;
        const QVector<UnitSpelling> spellings = allSpellings();
        for (const UnitSpelling &spelling : spellings)
            hash.insert(spelling.text, spelling);
        return hash;
    }();
    return byText;
}

} // namespace

QString meaningOfSymbol(const QString &symbol)
{
    return spellingsByText().value(symbol).meaning;
}

QString meaningOfPrefixableSymbol(const QString &symbol)
{
    const UnitSpelling spelling = spellingsByText().value(symbol);
    return spelling.takesPrefix ? spelling.meaning : QString();
}

const QVector<UnitSpelling> &longSpellings()
{
    static const QVector<UnitSpelling> spellings = [] {
        QVector<UnitSpelling> list = allSpellings();
        list.erase(std::remove_if(list.begin(), list.end(),
                                  [](const UnitSpelling &spelling) {
                                      return isOfLetters(spelling.text);
                                  }),
                   list.end());
        std::stable_sort(list.begin(), list.end(), [](const auto &a, const auto &b) {
            return a.text.size() > b.text.size();
        });
        return list;
    }();
    return spellings;
}

double factorOfPrefix(const QString &symbol)
{
    static const QHash<QChar, double> factors {
        { u'T', 1e12 },  { u'G', 1e9 },   { u'M', 1e6 },   { u'k', 1e3 },   { u'h', 1e2 },
        { u'd', 1e-1 },  { u'c', 1e-2 },  { u'm', 1e-3 },  { u'μ', 1e-6 },  { u'µ', 1e-6 },
        { u'n', 1e-9 },  { u'p', 1e-12 }, { u'吉', 1e9 },  { u'兆', 1e6 },  { u'万', 1e4 },
        { u'千', 1e3 },  { u'百', 1e2 },  { u'分', 1e-1 }, { u'厘', 1e-2 }, { u'毫', 1e-3 },
        { u'微', 1e-6 }, { u'纳', 1e-9 },
    };
    return symbol.isEmpty() ? 0 : factors.value(symbol.at(0));
}

bool isNoUnit(const QString &text)
{
    static const QStringList texts { QString(),
                                     QStringLiteral("-"),
                                     QStringLiteral("--"),
                                     QStringLiteral("–"),
                                     QStringLiteral("—"),
                                     QStringLiteral("/"),
                                     QStringLiteral("none"),
                                     QStringLiteral("one"),
                                     QStringLiteral("n/a"),
                                     QStringLiteral("N/A"),
                                     QStringLiteral("n.a."),
                                     QStringLiteral("无") };
    return texts.contains(text);
}
