// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "units/unit.h"

#include <QTest>
#include <QtMath>

#include <cmath>
#include <thread>

class TestUnit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void readsWhatEngineersWrite_data();
    void readsWhatEngineersWrite();
    void refusesWhatIsNoUnit_data();
    void refusesWhatIsNoUnit();
    void readsInSeveralThreads();
    void comparesSpellings_data();
    void comparesSpellings();
};

namespace {

/// Such as "m^2 kg s^-2", in the order of the letters, without regard to case.
QString dimensionOf(const Unit &unit)
{
    QStringList parts;
    for (auto base = unit.dimension.cbegin(); base != unit.dimension.cend(); ++base)
        parts
            += base.value() == 1 ? base.key() : QString("%1^%2").arg(base.key()).arg(base.value());
    parts.sort(Qt::CaseInsensitive);
    return parts.join(' ');
}

} // namespace

void TestUnit::initTestCase()
{
    if (!areUnitsKnown())
        QSKIP("This program was built without UDUNITS.", );
}

void TestUnit::readsWhatEngineersWrite_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<double>("factor");
    QTest::addColumn<QString>("dimension");

    const auto row = [](const char *name, const char *texts, double factor, const char *dimension) {
        QTest::newRow(name) << QString(texts).split('|') << factor << QString(dimension);
    };
    const double turn = 2 * M_PI;
    row("superscripts, powers and digits", "mm⁴|mm^4|mm4|mm**4|[mm⁴]| mm⁴ |㎜⁴|毫米⁴", 1e-12,
        "m^4");
    row("area", "mm²|平方毫米|㎟", 1e-6, "m^2");
    row("flow", "m³/h|m3/h|m^3/h|Nm³/h|立方米/小时|㎥/h", 1. / 3600, "m^3 s^-1");
    row("product", "N·m|N*m|N.m|Nm|N m|N⋅m|N x m|N-m|牛·米|牛米|J", 1, "kg m^2 s^-2");
    row("product with a prefix", "kN·m|kNm|千牛·米|千牛米|kJ", 1e3, "kg m^2 s^-2");
    row("product without a sign, of like letters", "Nmm|N·mm|mJ", 1e-3, "kg m^2 s^-2");
    row("prefix in Chinese", "千牛|kN", 1e3, "kg m s^-2");
    row("line load", "kN/m|千牛/米|N/mm", 1e3, "kg s^-2");
    row("pressure", "MPa|N/mm²|N/mm2|N mm^-2|N·mm⁻²|兆帕|MN/m²", 1e6, "kg m^-1 s^-2");
    row("pressure of the air", "bar|bar(g)|barg|bara|巴|100 kPa", 1e5, "kg m^-1 s^-2");
    row("fracture toughness", "MPa·√m|MPa√m|MPa m^0.5|MPa·m^(1/2)|MPa·m½|MPa m1/2|MPa·√(m)", 1e6,
        "kg m^-0.5 s^-2");
    row("fracture toughness in small", "N/mm^1.5|N·mm^-3/√(mm^-3)", std::pow(10, 4.5),
        "kg m^-0.5 s^-2");
    row("temperature", "°C|degC|℃|ºC|摄氏度|K|°K", 1, "K");
    row("turns", "r/min|rpm|U/min|rev/min|转/分|转/分钟|min⁻¹·r", turn / 60, "s^-1");
    row("frequency", "Hz|1/s|s⁻¹|s^-1|s-1|/s|/ s|赫兹", 1, "s^-1");
    row("frequency in minutes", "1/min|min⁻¹|min-1", 1. / 60, "s^-1");
    row("angle", "°|deg|degree|度", M_PI / 180, "");
    row("small angle", "″|\"|arcsec", M_PI / 180 / 3600, "");
    row("number", "|-|–|1|[-]|one|rad|dB|dB(A)|HRC|m/m|pcs|个", 1, "");
    row("percent", "%|%RH|Vol.-%|cm/m", 0.01, "");
    row("per mille", "‰|mm/m|g/kg", 0.001, "");
    row("strain", "με|µε|μm/m|ppm", 1e-6, "");
    row("all behind the slash is below it", "W/(m·K)|W/m·K|W/mK|W·m⁻¹·K⁻¹|W/m/K|W per m K|W/(K·m)",
        1, "K^-1 kg m s^-3");
    row("transfer of heat", "W/(m²·K)|W/m²K|W/m2K|W/(m^2 K)", 1, "K^-1 kg s^-3");
    row("heat capacity", "kJ/(kg·K)|kJ/kgK|kJ/kg·K|kJ/kg/K|J/(g·K)", 1e3, "K^-1 m^2 s^-2");
    row("spring", "N·mm/°", 0.18 / M_PI, "kg m^2 s^-2");
    row("thermal expansion", "1e-6/K|10⁻⁶/K|10^-6/K|µm/(m·K)", 1e-6, "K^-1");
    row("energy", "kWh|kW·h|千瓦时", 3.6e6, "kg m^2 s^-2");
    row("reactive power", "kvar|kVA|kW", 1e3, "kg m^2 s^-3");
    row("charge", "Ah|A·h", 3600, "A s");
    row("viscosity", "mPa·s|mPas|cP", 1e-3, "kg m^-1 s^-1");
    row("horse powers are no siemens", "PS", 735.49875, "kg m^2 s^-3");
    row("ounces are no volume", "oz", 0.028349523125, "kg");
    row("miles per hour are no light", "mph", 0.44704, "m s^-1");
    row("years are no area", "a", 31556925.9747, "s");
    row("dioptres are no pints", "dpt", 1, "m^-1");
    row("pounds and feet", "ft-lb|lbf·ft", 1.3558179483314, "kg m^2 s^-2");
    row("acceleration of falling", "gn|g0|9.80665 N/kg", 9.80665, "m s^-2");
    row("small letters are knots", "kn|kts", 1852. / 3600, "m s^-1");
    row("height above the sea", "m ü. NN|m ü.NN|m NHN|m a.s.l.|mNN", 1, "m");
    row("a power of the last symbol only", "kNm²|kNm^2|kNm2|kN·m²", 1e3, "kg m^3 s^-2");
    row("a cube of the last symbol only", "kgm³|kgm^3|kg·m³", 1, "kg m^3");
    row("no root", "m1/20|m/20", 0.05, "m");
    row("moment of inertia", "kgm²|kgm2|kg m²|kg·m²|t·mm²·10^3", 1, "kg m^2");
    row("columns of water", "m w.c.|mWS|m WC|mwc|m H2O|mH2O|1000 mmH2O|1000 mmWS", 9806.65,
        "kg m^-1 s^-2");
    row("columns of mercury", "mmHg|mm Hg|Torr|0.1 cmHg|0.1 cm Hg", 133.322387415, "kg m^-1 s^-2");
    row("squares in words", "sq ft|sq. ft|sqft|ft²|sq.ft", 0.09290304, "m^2");
    row("cubes in words", "cu ft|cu. ft.|cuft|ft³", 0.028316846592, "m^3");
    row("old German areas and volumes", "qm|m2|cbm/m|lfm²", 1, "m^2");
    row("forces of pounds", "lbf|kip/1000", 4.4482216152605, "kg m s^-2");
    row("pressures of pounds", "psi|psia|ksi/1000|lbf/in²", 6894.757293168, "kg m^-1 s^-2");
    row("calories", "kcal", 4186.8, "kg m^2 s^-2");
    row("what counts nothing", "n/a|N/A|none|pH|Mach|PN", 1, "");
    row("large amounts of money", "Mio. €|Mio EUR|10^6 €", 1e6, "currency");
    row("per tooth", "mm/tooth|mm", 1e-3, "m");
    row("permittivity", "As/Vm|F/m", 1, "A^2 kg^-1 m^-3 s^4");
    row("money", "€/kWh|EUR/kWh|元/千瓦时", 1 / 3.6e6, "currency kg^-1 m^-2 s^2");
    row("resistivity", "Ω·mm²/m|ohm mm2/m|10^-6 Ωm|10^-6 Ω·m", 1e-6, "A^-2 kg m^3 s^-3");
}

void TestUnit::readsWhatEngineersWrite()
{
    QFETCH(QStringList, texts);
    QFETCH(double, factor);
    QFETCH(QString, dimension);

    for (const QString &text : qAsConst(texts)) {
        const std::optional<Unit> unit = unitOf(text);
        QVERIFY2(unit, qPrintable(text));
        QCOMPARE(QString(text + ": " + dimensionOf(*unit)), QString(text + ": " + dimension));
        QVERIFY2(std::abs(unit->factor / factor - 1) < 1e-8,
                 qPrintable(QString("%1: %2").arg(text).arg(unit->factor, 0, 'g', 12)));
    }
}

void TestUnit::refusesWhatIsNoUnit_data()
{
    QTest::addColumn<QString>("text");

    for (const char *text :
         { "Mpa",     "KN",         "mmm",         "millimetr",   "N·",
           "·m",      "N/",         "AWG",         "N//m",        "(m",
           "m)",      "()",         "√",           "m^",          "m^x",
           "m^(1/0)", "0 mm",       "1e999 m",     "m^999999999", "mm since 1990",
           "s@0",     "2020-01-01", "lg(re 1 mW)", "平方",        "N,m",
           "µ",       "ft-lbq",     "[mm",         "per",         "W per" }) {
        QTest::newRow(text) << QString(text);
    }
    QTest::newRow("deeply nested") << QString(1000000, '(');
    QTest::newRow("many roots") << QString(99, QChar(0x221A));
    QTest::newRow("null character") << QString("m").append(QChar(0)).append('m');
    QTest::newRow("half a character") << QString(QChar(0xD800));
}

void TestUnit::refusesWhatIsNoUnit()
{
    QFETCH(QString, text);

    QVERIFY(!unitOf(text));
}

/// The library below is not made for it; the thread sanitizer or luck finds a missing lock.
void TestUnit::readsInSeveralThreads()
{
    const auto readMany = [](int *count) {
        for (int i = 0; i < 2000; ++i)
            *count += unitOf(QString("N·m^%1/%2").arg(i % 7).arg(i % 2 ? "kg" : "yd")).has_value();
    };
    int first = 0;
    int second = 0;
    std::thread other(readMany, &first);
    readMany(&second);
    other.join();
    QCOMPARE(first, 2000);
    QCOMPARE(second, 2000);
}

void TestUnit::comparesSpellings_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<bool>("areSame");

    const auto row = [](const char *name, const char *texts, bool areSame) {
        QTest::newRow(name) << QString(texts).split('|') << areSame;
    };
    row("powers", "m³/h|m^3/h|m3/h| m³ / h |[m³/h]|m³·h⁻¹|m·m²/h|㎥/h", true);
    row("products", "N·m|N*m|N m|m·N", true);
    row("quotients", "1/s|s⁻¹|s^-1|s-1", true);
    row("signs", "℃|°C|ºC", true);
    row("no unit", "-|1||–", true);
    row("a number", "10^3 kg|1000 kg", true);
    row("no unit and one", "-|m", false);
    row("prefixes", "mm|m|Mm", false);
    row("where a scale begins", "°C|K", false);
    row("a gauge and a pressure", "bar(g)|bar", false);
    row("gas in its normal state", "Nm³|m³", false);
    row("two quantities of one unit", "Hz|Bq", false);
    row("words", "apples|pears", false);
    row("no texts of units", "((|(((", false);
}

void TestUnit::comparesSpellings()
{
    QFETCH(QStringList, texts);
    QFETCH(bool, areSame);
    for (const QString &text : qAsConst(texts)) {
        for (const QString &other : qAsConst(texts)) {
            const QString pair = text + " and " + other;
            QVERIFY2(isSameUnit(text, other) == (areSame || text == other), qPrintable(pair));
        }
    }
}

QTEST_GUILESS_MAIN(TestUnit)

#include "tst_unit.moc"
