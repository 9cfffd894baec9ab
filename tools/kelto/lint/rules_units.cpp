// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The two texts of a unit: the one that a person reads, and the one that the host calculates with.

#include "command.h"
#include "lint/othercommas.h"
#include "lint/rules_places.h"
#include "nearestname.h"
#include "units/unit.h"
#include "units/unitrespelling.h"

#include <algorithm>

namespace {

/// A key with both of its units, which can be read.
struct UnitPair
{
    const ItemFileKey *key;
    QString text;
    Unit first;
    bool areTextsEqual;
};

/// Whether both can be read, and measure the same.
bool areAlike(const std::optional<Unit> &first, const std::optional<Unit> &second)
{
    return first && second && first->dimension == second->dimension;
}

/// What @p text most likely stands for beside @p other; empty when nothing is similar.
QString meantBeside(const QString &text, const std::optional<Unit> &other)
{
    const QStringList candidates = unitsMeantBy(text);
    const auto fits = [&](const QString &candidate) { return areAlike(unitOf(candidate), other); };
    const auto found = std::find_if(candidates.cbegin(), candidates.cend(), fits);
    return found == candidates.cend() ? QString() : *found;
}

QString unknownText(const QString &text, const QString &otherText, const std::optional<Unit> &other)
{
    const QStringList candidates = unitsMeantBy(text);
    const QString fitting = meantBeside(text, other);
    const auto known = std::find_if(candidates.cbegin(), candidates.cend(),
                                    [](const QString &unit) { return unitOf(unit).has_value(); });
    if (!fitting.isEmpty() || known != candidates.cend()) {
        return Command::tr("\"%1\" is no known unit.").arg(text)
            + didYouMean(fitting.isEmpty() ? *known : fitting);
    }
    return text == otherText
        ? Command::tr("\"%1\" is no known unit").arg(text)
        : Command::tr("\"%1\" is no known unit and not compared with \"%2\"").arg(text, otherText);
}

/// A symbol can have two meanings, of which only the one that is not read may fit the other unit.
void addDifference(const ItemFile &file, const ItemFileKey &key, Findings *findings)
{
    const QString first = key.value.constFirst();
    const QString second = key.value.constLast();
    QString read = first;
    QString meant = meantBeside(first, unitOf(second));
    if (meant.isEmpty()) {
        read = second;
        meant = meantBeside(second, unitOf(first));
    }
    FileFindings added(file, findings);
    if (meant.isEmpty()) {
        added.add(
            "unit-dimension", key.valuePosition,
            Command::tr("\"%1\" and \"%2\" are units of different quantities").arg(first, second));
    } else {
        added.add("ambiguous-unit", elementPosition(file, &key, read == first ? 0 : 1),
                  Command::tr("\"%1\" and \"%2\" measure the same only if \"%3\" means \"%4\"; "
                              "then write that")
                      .arg(first, second, read, meant));
    }
}

/// The pair of @p key; nothing for one that is faulty, or is no pair.
std::optional<UnitPair> pairOf(const ItemFile &file, const ItemFileKey &key, Findings *findings)
{
    if (key.value.size() > 2 || (key.value.size() == 1 && dividedAnyhow(key.value).size() == 2))
        return std::nullopt;
    const QString first = key.value.constFirst();
    const QString second = key.value.constLast();
    // Bytes that are not UTF-8 are another finding.
    if (key.value.join(QString()).contains(QChar(QChar::ReplacementCharacter)))
        return std::nullopt;
    const std::optional<Unit> units[] { unitOf(first), unitOf(second) };
    if (!units[0] || !units[1]) {
        FileFindings(file, findings)
            .add("unknown-unit", elementPosition(file, &key, units[0] ? key.value.size() - 1 : 0),
                 units[0] ? unknownText(second, first, units[0])
                          : unknownText(first, second, units[1]));
        return std::nullopt;
    }
    if (!areAlike(units[0], units[1])) {
        addDifference(file, key, findings);
        return std::nullopt;
    }
    return UnitPair { &key, first, *units[0], first == second };
}

/// An item that converts other units, but not those that have a factor, has most likely forgotten
/// it. Ratios and angles are kept as they are by many.
void findUnconverted(const ItemFile &file, const QVector<UnitPair> &pairs, Findings *findings)
{
    const bool converts = std::any_of(pairs.cbegin(), pairs.cend(), [](const UnitPair &pair) {
        return !pair.areTextsEqual && !pair.first.isCoherent();
    });
    for (const UnitPair &pair : pairs) {
        if (converts && pair.areTextsEqual && !pair.first.isCoherent()
            && !pair.first.dimension.isEmpty()) {
            FileFindings(file, findings)
                .add("unit-not-converted", pair.key->valuePosition,
                     Command::tr("\"%1\" is not converted, while other units of the module are")
                         .arg(pair.text));
        }
    }
}

void check(const LintItem &item, Findings *findings)
{
    const ItemFile &file = item.file();
    if (!areUnitsKnown())
        return;
    QVector<UnitPair> pairs;
    for (const ItemFileKey &key : file.keys()) {
        if (key.section != QLatin1String("Unit") || !isDeclared(file, key.name))
            continue;
        const std::optional<UnitPair> pair = pairOf(file, key, findings);
        if (pair && key.value.size() == 2)
            pairs.append(*pair);
    }
    findUnconverted(file, pairs, findings);
}

const char *whereAvailable(const char *explanation)
{
    return areUnitsKnown()
        ? explanation
        : QT_TRANSLATE_NOOP("Command",
                            "Not available: this program was built without the library UDUNITS, or "
                            "does not find its definitions of units.");
}

} // namespace

RuleArea unitRules()
{
    return {
        {
            { "unknown-unit", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "A unit is none that is known"),
              whereAvailable(QT_TRANSLATE_NOOP(
                  "Command",
                  "Capital letters count: it is \"MPa\" and \"kN\". A \"·\" or a "
                  "space multiplies, all behind a \"/\" is below it, and powers are "
                  "\"m²\", \"m^2\" or \"m2\". A parameter without a unit has an "
                  "empty text or \"-\". Nothing is lost with a unit that is not known here; "
                  "switch this off where a module has words of its own.")),
              EXAMPLE_ITEM EXAMPLE_LENGTH "[Unit]\nLength=Mmm, m\n",
              EXAMPLE_ITEM EXAMPLE_LENGTH "[Unit]\nLength=mm, m\n" },
            { "unit-dimension", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "The two units of a parameter measure different things"),
              whereAvailable(
                  QT_TRANSLATE_NOOP("Command",
                                    "The first is the unit that a person reads, the second the one "
                                    "that it is converted to, which no number does here.")),
              EXAMPLE_ITEM EXAMPLE_LENGTH "[Unit]\nLength=mm, s\n",
              EXAMPLE_ITEM EXAMPLE_LENGTH "[Unit]\nLength=mm, m\n" },
            { "ambiguous-unit", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "The symbol of a unit has two meanings"),
              whereAvailable(QT_TRANSLATE_NOOP(
                  "Command",
                  "\"g\" is the gram and the standard gravity, \"kn\" the knot, and in small "
                  "letters the kilonewton, \"C\" the coulomb and the degree, and \"kg\" has stood "
                  "for a force. The other text of the unit fits the meaning that is not read "
                  "first. Write a symbol with one meaning, such as \"gn\", \"kN\", \"°C\" and "
                  "\"kgf\".")),
              EXAMPLE_ITEM EXAMPLE_LENGTH "[Unit]\nLength=g, m/s²\n",
              EXAMPLE_ITEM EXAMPLE_LENGTH "[Unit]\nLength=gn, m/s²\n" },
            { "unit-not-converted", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "A unit is not converted while others are"),
              whereAvailable(QT_TRANSLATE_NOOP(
                  "Command",
                  "Two equal texts mean that a value counts as it is. That is right "
                  "for units of the SI without a factor, such as \"N\". Beside "
                  "\"mm, m\" in the same module, \"N/mm, N/mm\" would be taken for "
                  "\"N/m\".")),
              EXAMPLE_ITEM
              "[Attribute]\nLength=\nLine load=\n[Belong]\nLength=Bending\nLine load=Bending\n"
              "[Unit]\nLength=mm, m\nLine load=N/mm, N/mm\n",
              EXAMPLE_ITEM
              "[Attribute]\nLength=\nLine load=\n[Belong]\nLength=Bending\nLine load=Bending\n"
              "[Unit]\nLength=mm, m\nLine load=N/mm, N/m\n" },
        },
        check,
        nullptr
    };
}
