// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "sourcetext.h"

#include "command.h"
#include "sourcewords.h"

#include <KeltoParameterEntry>

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <optional>

namespace {

using Problem = SourceTextProblem;
using Reason = std::optional<Problem::Reason>;

/// The library writes no more; nobody enforces that there are not fewer.
constexpr int mostInnerModes = 1000000;

bool isBrokenAt(const QString &text, int i)
{
    const QChar c = text.at(i);
    if (c.isHighSurrogate())
        return i + 1 == text.size() || !text.at(i + 1).isLowSurrogate();
    return c.isLowSurrogate() && (i == 0 || !text.at(i - 1).isHighSurrogate());
}

/// "??=" and its like are other characters for compilers before C++17, "??/" a backslash.
bool isTrigraphAt(const QString &text, int i)
{
    return text.at(i) == QLatin1Char('?') && i + 2 < text.size()
        && text.at(i + 1) == QLatin1Char('?')
        && QLatin1String("=/'()!<>-").contains(text.at(i + 2));
}

/// Embeddings, overrides and isolates. Marks of one character only are harmless.
bool turnsText(QChar c)
{
    return (c >= QChar(0x202a) && c <= QChar(0x202e)) || (c >= QChar(0x2066) && c <= QChar(0x2069));
}

bool breaksLine(QChar c)
{
    return c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QChar(0x85)
        || c == QChar(0x2028) || c == QChar(0x2029);
}

Reason problemAt(const QString &text, int i)
{
    const QChar c = text.at(i);
    if (c.isLetterOrNumber() || c == QLatin1Char(' '))
        return std::nullopt; // As most are.
    if (c == QLatin1Char('"'))
        return Problem::DoubleQuote;
    if (c == QLatin1Char('\\'))
        return Problem::Backslash;
    if (breaksLine(c))
        return Problem::LineBreak;
    if (c.category() == QChar::Other_Control && c != QLatin1Char('\t'))
        return Problem::ControlCharacter;
    if (turnsText(c))
        return Problem::TextDirection;
    if (isTrigraphAt(text, i))
        return Problem::Trigraph;
    if (isBrokenAt(text, i))
        return Problem::BrokenCharacter;
    return std::nullopt;
}

Reason problemOfLiteral(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (const Reason reason = problemAt(text, i))
            return reason;
    }
    return std::nullopt;
}

Reason problemOfWhole(const QString &digits)
{
    if (digits.size() > 1 && digits.startsWith(QLatin1Char('0')))
        return Problem::LeadingZero;
    bool isInt = false;
    digits.toInt(&isInt);
    return isInt ? Reason() : Problem::LargeNumber;
}

/// A text that reads as a number becomes that number, and has to be one in C++ that fits.
Reason problemOfNumber(const QString &text, double number)
{
    static const QRegularExpression form(QStringLiteral(
        "\\A[ \\t]*[+-]?(?:([0-9]+)|(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][+-]?[0-9]+)?)[ "
        "\\t]*\\z"));
    static const QRegularExpression digit(QStringLiteral("\\A[^eE]*[1-9]"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return Problem::NoNumber;
    if (match.capturedLength(1) > 0)
        return problemOfWhole(match.captured(1));
    return number == 0 && digit.match(text).hasMatch() ? Problem::LargeNumber : Reason();
}

bool becomesText(const QVariant &value)
{
    switch (value.type()) {
    case QVariant::Invalid:
    case QVariant::String:
    case QVariant::Bool:
    case QVariant::Int:
    case QVariant::UInt:
    case QVariant::LongLong:
    case QVariant::ULongLong:
    case QVariant::Double:
        return true;
    case QVariant::StringList:
        return value.toStringList().size() == 1;
    default:
        return value.userType() == QMetaType::Float;
    }
}

Reason problemOfValue(const QVariant &value)
{
    if (!becomesText(value))
        return Problem::NoText;
    const QString text = value.toString();
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber ? problemOfNumber(text, number) : problemOfLiteral(text);
}

bool isIdentifier(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("\\A[A-Za-z_][A-Za-z0-9_]*\\z"));
    return form.match(text).hasMatch();
}

Reason problemOfFunction(const QString &name)
{
    if (!isIdentifier(name))
        return Problem::NoIdentifier;
    return isReservedWord(name) ? Problem::ReservedName : Reason();
}

/// What stands beside the functions of items in generated source text.
bool isOwnFunction(const QString &name)
{
    return name == QLatin1String("allItems") || name == QLatin1String("loaded")
        || name == QLatin1String("translatedTexts");
}

/// A class cannot have the name of the class around it, nor a function with its own name.
Reason problemOfContext(const QString &context)
{
    const QStringList names = context.split(QStringLiteral("::"));
    for (const QString &name : names) {
        if (const Reason reason = problemOfFunction(name))
            return reason;
    }
    return QSet<QString>(names.cbegin(), names.cend()).size() < names.size()
            || names.contains(QStringLiteral("tr"))
        ? Problem::ReservedName
        : Reason();
}

class ProblemList
{
public:
    void add(const QString &section, const QString &key, const QString &text, Reason reason)
    {
        if (!reason)
            return;
        const QStringList place { section, key, text };
        if (m_known.contains(place))
            return;
        m_known.insert(place);
        problems.append({ section, key, text, *reason });
    }
    void addText(const QString &section, const QString &key, const QString &text)
    {
        add(section, key, text, problemOfLiteral(text));
    }
    void addField(const char *key, const QString &text)
    {
        addText(itemSection, QLatin1String(key), text);
    }
    void addFields(const char *key, const QStringList &texts)
    {
        for (const QString &text : texts)
            addField(key, text);
    }
    void addEntry(const QString &ownSection, const QStringList &entry);

    const QString itemSection = QStringLiteral("KeltoItem");
    QVector<Problem> problems;

private:
    QSet<QStringList> m_known;
};

void ProblemList::addEntry(const QString &ownSection, const QStringList &entry)
{
    // In the order of KeltoParameterEntry::Place.
    const QString group = QStringLiteral("Group");
    const QString unit = QStringLiteral("Unit");
    const QStringList sections {
        group, ownSection, QStringLiteral("ObjectName"), QStringLiteral("Multi"),
        unit,  unit,       QStringLiteral("Symbol"),     ownSection,
        group
    };
    for (int place = 0; place < entry.size(); ++place)
        addText(sections.value(place, ownSection), entry.value(KeltoParameterEntry::Key),
                entry.at(place));
}

void addOwnFields(const AUTH_INF &item, ProblemList *list)
{
    list->addField("name", item.name);
    list->addField("description", item.description);
    list->addField("icon", item.icon);
    list->addField("type", item.type);
    list->addField("group", item.group);
    list->addFields("lib_name", item.lib_name);
    list->addFields("inner_mode_description", item.inner_mode_description);
    list->addFields("inner_mode_nameList", item.inner_mode_nameList);
    if (!item.trObjectName.isEmpty())
        list->add(list->itemSection, QStringLiteral("Tr_ObjectName"), item.trObjectName,
                  problemOfContext(item.trObjectName));
    if (!item.codeFunctionName.isEmpty())
        list->add(list->itemSection, QStringLiteral("codeFunctionName"), item.codeFunctionName,
                  isOwnFunction(item.codeFunctionName) ? Problem::ReservedName
                                                       : problemOfFunction(item.codeFunctionName));
}

/// The position behind the last mode with parameters.
int modesWithParameters(const AUTH_INF &item)
{
    const auto &lists = item.inner_mode_parameterList;
    int count = lists.size();
    while (count > 0 && lists.at(count - 1).isEmpty())
        --count;
    return count;
}

/// Each mode is a statement, so that a senseless count would take all memory of a compiler.
void addModeCount(const AUTH_INF &item, ProblemList *list)
{
    const int count = item.inner_mode_count;
    const int most = qMax(item.inner_mode_nameList.size(), item.inner_mode_parameterList.size());
    if (count < modesWithParameters(item) || count > qMin(qMax(most, 1), mostInnerModes))
        list->add(list->itemSection, QStringLiteral("inner_mode_count"), QString::number(count),
                  Problem::ModeCount);
}

void addEntries(const AUTH_INF &item, ProblemList *list)
{
    for (const QVector<QStringList> &entries : item.inner_mode_parameterList) {
        for (const QStringList &entry : entries)
            list->addEntry(QStringLiteral("Attribute"), entry);
    }
    for (const QStringList &entry : item.output_results)
        list->addEntry(QStringLiteral("Result"), entry);
}

} // namespace

QVector<SourceTextProblem> sourceTextProblems(const AUTH_INF &item)
{
    ProblemList list;
    addOwnFields(item, &list);
    if (item.type == QLatin1String("calculation")) {
        addModeCount(item, &list);
        addEntries(item, &list);
    } else if (modesWithParameters(item) > 0 || !item.output_results.isEmpty()) {
        list.add(list.itemSection, QStringLiteral("type"), item.type, Problem::NoCalculation);
    }
    const QString section = QStringLiteral("ExtraKey");
    for (const VDataItem &extra : item.extraKey) {
        list.addText(section, extra.key, extra.key);
        // A list of several texts has no text of its own.
        const QString text = extra.value.type() == QVariant::StringList
            ? extra.value.toStringList().join(QStringLiteral(", "))
            : extra.value.toString();
        list.add(section, extra.key, text, problemOfValue(extra.value));
    }
    return list.problems;
}

QString reasonText(SourceTextProblem::Reason reason)
{
    static const char *const texts[] = {
        QT_TRANSLATE_NOOP("Command", "holds a double quote"),
        QT_TRANSLATE_NOOP("Command", "holds a backslash"),
        QT_TRANSLATE_NOOP("Command", "holds a line break"),
        QT_TRANSLATE_NOOP("Command", "holds a control character"),
        QT_TRANSLATE_NOOP("Command", "holds \"??\" and a character that make another one in C++"),
        QT_TRANSLATE_NOOP("Command", "holds a character that changes the direction of the text"),
        QT_TRANSLATE_NOOP("Command", "holds half a character"),
        QT_TRANSLATE_NOOP("Command",
                          "reads as a number that begins with 0, which C++ takes "
                          "for an octal one"),
        QT_TRANSLATE_NOOP("Command", "reads as a number that is too large or too small"),
        QT_TRANSLATE_NOOP("Command", "reads as a number and is none in C++"),
        QT_TRANSLATE_NOOP("Command", "is not one text"),
        QT_TRANSLATE_NOOP("Command", "is not an identifier"),
        QT_TRANSLATE_NOOP("Command", "is a name that means something else"),
        QT_TRANSLATE_NOOP("Command", "is not the number of modes"),
        QT_TRANSLATE_NOOP("Command",
                          "is not the type \"calculation\", and only that has "
                          "parameters and results"),
    };
    return Command::tr(texts[reason]);
}

bool isFreeIdentifier(const QString &text)
{
    return !problemOfFunction(text);
}

bool isFreeContext(const QString &text)
{
    return !problemOfContext(text);
}

QString stringLiteral(const QString &text)
{
    QString literal = QStringLiteral("\"");
    for (const QChar c : text) {
        if (c == QLatin1Char('"') || c == QLatin1Char('\\') || c == QLatin1Char('?'))
            literal += QLatin1Char('\\') + QString(c);
        else if (c.unicode() < 0x20 || c.unicode() == 0x7f)
            // Three digits at most, so that a digit behind them stays one.
            literal += QStringLiteral("\\%1").arg(c.unicode(), 3, 8, QLatin1Char('0'));
        else
            literal += c;
    }
    return literal + QLatin1Char('"');
}
