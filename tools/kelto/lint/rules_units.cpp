// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The two texts of a unit: the one that a person reads, and the one that the host calculates with.

#include "command.h"
#include "lint/rules_places.h"
#include "units/unit.h"

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

/// The pair of @p key; nothing for one that is faulty, or is no pair.
std::optional<UnitPair> pairOf(const ItemFile &file, const ItemFileKey &key, Findings *findings)
{
    if (key.value.size() > 2)
        return std::nullopt;
    const QString first = key.value.constFirst();
    const QString second = key.value.constLast();
    const std::optional<Unit> units[] { unitOf(first), unitOf(second) };
    if (!units[0] || !units[1]) {
        FileFindings(file, findings)
            .add("unknown-unit", elementPosition(file, &key, units[0] ? key.value.size() - 1 : 0),
                 Command::tr("\"%1\" is no known unit").arg(units[0] ? second : first));
        return std::nullopt;
    }
    if (units[0]->dimension != units[1]->dimension) {
        FileFindings(file, findings)
            .add("unit-dimension", key.valuePosition,
                 Command::tr("\"%1\" and \"%2\" are units of different quantities")
                     .arg(first, second));
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
                  "empty text or \"-\".")),
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
