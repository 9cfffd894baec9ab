// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What is lost, or compiles to something else, when an item becomes source text.

#include "command.h"
#include "lint/rules_places.h"
#include "lint/savedspelling.h"
#include "sourcetext.h"

#include <QHash>

#include <algorithm>

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

/// Whether the type stands in the file under a name that only resembles the right one.
bool isTypeMisspelt(const LintItem &item)
{
    return !item.file().find(QStringLiteral("KeltoItem"), QStringLiteral("type"))
        && item.field("type");
}

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
}

/// Where the elements of a value are. Problems come key by key, and lists of modes can be long.
class ElementPlaces
{
public:
    explicit ElementPlaces(const ItemFile &file)
        : m_file(file)
        , m_saved(file)
    {
    }

    IniPosition of(const QString &text, const ItemFileKey &key)
    {
        read(key);
        const int index = m_indexes.value(text, m_spelt.size());
        return index < m_spelt.size() ? m_file.positionAt(m_spelt.at(index).text.data())
                                      : key.valuePosition;
    }
    /// Whether it has escapes or line breaks that are a finding.
    bool hasUnmeantCharacters(const ItemFileKey &key)
    {
        read(key);
        return !m_spelt.longQuotes.isEmpty()
            || (!m_spelt.escapes.isEmpty() && !m_saved.hasEscapesOf(key));
    }

private:
    void read(const ItemFileKey &key)
    {
        if (m_key == &key)
            return;
        m_key = &key;
        m_spelt = speltValueOf(rawValueOf(m_file, key));
        m_indexes.clear();
        for (int i = key.value.size() - 1; i >= 0; --i)
            m_indexes.insert(key.value.at(i), i);
    }

    const ItemFile &m_file;
    const SavedSpelling m_saved;
    const ItemFileKey *m_key = nullptr;
    SpeltValue m_spelt;
    QHash<QString, int> m_indexes; ///< Of the first of each text.
};

/// Whether the problem comes of how a key or a value is spelt, which is a finding of its own: a key
/// with letters that are none of ASCII, a list where a text should be, an escape without quotes.
bool isConsequence(const Problem &problem, const LintItem &item, ElementPlaces *places)
{
    if (problem.reason == Problem::NoCalculation)
        return isTypeMisspelt(item);
    const ItemFileKey *key = item.file().findReadAs(problem.section, problem.key);
    if (!key)
        return false;
    if (problem.text == problem.key && !isAscii(key->spelt))
        return true;
    if (problem.reason == Problem::NoText)
        return key->value.size() > 1;
    const bool isEscape
        = problem.reason == Problem::LineBreak || problem.reason == Problem::ControlCharacter;
    return isEscape && places->hasUnmeantCharacters(*key);
}

IniPosition placeOf(const Problem &problem, const ItemFile &file, ElementPlaces *places)
{
    const ItemFileKey *key = file.findReadAs(problem.section, problem.key);
    if (!key)
        return sectionPosition(file, problem.section);
    const bool isKey = problem.text == problem.key
        && (problem.section == QLatin1String("Attribute")
            || problem.section == QLatin1String("Result")
            || problem.section == QLatin1String("ExtraKey"));
    return isKey ? key->position : places->of(problem.text, *key);
}

void check(const LintItem &item, Findings *findings)
{
    const ItemFile &file = item.file();
    ElementPlaces places(file);
    const QVector<Problem> problems = sourceTextProblems(file.item());
    for (const Problem &problem : problems) {
        const char *rule = ruleFor(problem.reason);
        if (rule && !isConsequence(problem, item, &places)) {
            FileFindings(file, findings)
                .add(rule, placeOf(problem, file, &places),
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
            FileFindings(file, findings)
                .add("function-twice", fieldPosition(file, "codeFunctionName"),
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
