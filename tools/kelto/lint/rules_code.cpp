// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What is lost, or compiles to something else, when an item becomes source text.

#include "command.h"
#include "lint/rules_places.h"
#include "nearestname.h"
#include "sourcetext.h"

#include <QHash>

namespace {

using Problem = SourceTextProblem;

/// The start of a text that may be long and have several lines.
QString shortened(const QString &whole)
{
    constexpr int most = 40;
    const QString text = whole.simplified();
    return text.size() > most ? text.left(most) + QStringLiteral("…") : text;
}

/// Null for what another rule looks for.
const char *ruleFor(Problem::Reason reason)
{
    switch (reason) {
    case Problem::LeadingZero:
    case Problem::LargeNumber:
    case Problem::NoNumber:
        return "number-in-code";
    case Problem::NoIdentifier:
    case Problem::ReservedName:
        return "name-in-code";
    case Problem::NoCalculation:
        return "not-a-calculation";
    case Problem::ModeCount:
        return nullptr;
    default:
        return "text-in-code";
    }
}

/// Without the type in the file, it may be misspelt, or its section.
bool mayTypeBeMisspelt(const ItemFile &file)
{
    bool hasSection = false;
    QStringList names;
    for (const ItemFileKey &key : file.keys()) {
        if (key.section == QLatin1String("KeltoItem")) {
            hasSection = true;
            names.append(key.name);
        }
    }
    const QString type = QStringLiteral("type");
    return !names.contains(type) && (!hasSection || !nearestName(type, names).isEmpty());
}

/// Whether the problem comes of how the value is spelt, which is a finding of its own: a list where
/// a text should be, or an escape without quotes.
bool isConsequence(const Problem &problem, const ItemFile &file)
{
    if (problem.reason == Problem::NoCalculation)
        return mayTypeBeMisspelt(file);
    const ItemFileKey *key = keyReadAs(file, problem.section, problem.key);
    if (!key)
        return false;
    if (problem.reason == Problem::NoText)
        return key->value.size() > 1;
    const bool isEscape
        = problem.reason == Problem::LineBreak || problem.reason == Problem::ControlCharacter;
    return isEscape && key->speltValue.find('"') == std::string_view::npos;
}

IniPosition placeOf(const Problem &problem, const ItemFile &file)
{
    if (!keyReadAs(file, problem.section, problem.key))
        return sectionPosition(file, problem.section);
    const bool isKey = problem.text == problem.key
        && (problem.section == QLatin1String("Attribute")
            || problem.section == QLatin1String("Result")
            || problem.section == QLatin1String("ExtraKey"));
    return isKey ? keyPosition(file, problem.section, problem.key)
                 : valuePosition(file, problem.section, problem.key);
}

void check(const ItemFile &file, Findings *findings)
{
    const QVector<Problem> problems = sourceTextProblems(file.item());
    for (const Problem &problem : problems) {
        const char *rule = ruleFor(problem.reason);
        if (rule && !isConsequence(problem, file)) {
            addFinding(findings, rule, file, placeOf(problem, file),
                       QStringLiteral("\"%1\" %2")
                           .arg(shortened(problem.text), reasonText(problem.reason)));
        }
    }
}

/// Modules of one name are a finding already.
void checkAll(const QVector<ItemFile> &files, Findings *findings)
{
    QHash<QString, const ItemFile *> firsts;
    for (const ItemFile &file : files) {
        const AUTH_INF &item = file.item();
        const ItemFile *&first = firsts[item.codeFunctionName];
        if (!first) {
            first = &file;
        } else if (!item.codeFunctionName.isEmpty() && first->item().name != item.name) {
            addFinding(findings, "function-twice", file, fieldPosition(file, "codeFunctionName"),
                       Command::tr("the function of another module is named \"%1\" as well: %2")
                           .arg(item.codeFunctionName, first->path()));
        }
    }
}

} // namespace

RuleArea codeRules()
{
    return {
        {
            { "not-a-calculation", Severity::Warning,
              QT_TRANSLATE_NOOP("Command",
                                "An item with parameters or results is not of the type "
                                "\"calculation\""),
              QT_TRANSLATE_NOOP("Command",
                                "Source text that is generated from an item of another type has no "
                                "parameters and no results."),
              "[KeltoItem]\nname=Beam\ntype=Calculation\ngroup=Statics\n" EXAMPLE_MODE
                  EXAMPLE_LENGTH,
              EXAMPLE_ITEM EXAMPLE_LENGTH },
            { "text-in-code", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "Generated source text cannot carry a text"),
              QT_TRANSLATE_NOOP("Command",
                                "Texts are not escaped in source text that is generated from an "
                                "item, so a double quote, a backslash or a line break ends them. "
                                "Use single quotes and whole sentences instead."),
              EXAMPLE_ITEM "description=\"A \\\"slender\\\" beam\"\n" EXAMPLE_LENGTH,
              EXAMPLE_ITEM "description=\"A 'slender' beam\"\n" EXAMPLE_LENGTH },
            { "number-in-code", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "An extra key reads as a number and is none in C++"),
              QT_TRANSLATE_NOOP("Command",
                                "In generated source text, what reads as a number has no quotes. "
                                "\"010\" would become 8 there, and \"08\", \"inf\" or a whole "
                                "number of more than 32 bits do not compile."),
              EXAMPLE_ITEM EXAMPLE_LENGTH "[ExtraKey]\nEdition=010\n",
              EXAMPLE_ITEM EXAMPLE_LENGTH "[ExtraKey]\nEdition=10\n" },
            { "name-in-code", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "The name of a function or a context is none in C++"),
              QT_TRANSLATE_NOOP("Command",
                                "\"codeFunctionName\" names the function that builds the item in "
                                "generated source text, and \"Tr_ObjectName\" the class that "
                                "translates its texts. Use letters without accents, digits and "
                                "\"_\", and no word of C++ or Qt."),
              EXAMPLE_ITEM "codeFunctionName=2d-beam\n" EXAMPLE_LENGTH,
              EXAMPLE_ITEM "codeFunctionName=beam2d\n" EXAMPLE_LENGTH },
            { "function-twice", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "Two modules have one \"codeFunctionName\""),
              QT_TRANSLATE_NOOP("Command",
                                "The generated source text of both does not compile together. Give "
                                "one of the functions another name."),
              EXAMPLE_ITEM "codeFunctionName=beam\n" EXAMPLE_LENGTH EXAMPLE_FILE(
                  "second.ini") "[KeltoItem]\nname=Plate\ntype=calculation\ngroup="
                                "Plates\n" EXAMPLE_MODE "codeFunctionName=beam\n" EXAMPLE_LENGTH,
              EXAMPLE_ITEM "codeFunctionName=beam\n" EXAMPLE_LENGTH EXAMPLE_FILE(
                  "second.ini") "[KeltoItem]\nname=Plate\ntype=calculation\ngroup="
                                "Plates\n" EXAMPLE_MODE "codeFunctionName=plate\n" EXAMPLE_LENGTH },
        },
        check,
        checkAll
    };
}
