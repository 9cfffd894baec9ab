// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What extra keys and object names say about parameters and results, and nothing understands.

#include "command.h"
#include "core/enteredvalues_p.h"
#include "lint/hintbars.h"
#include "lint/hintplaces.h"
#include "lint/rules_places.h"
#include "nearestname.h"

#include <KeltoItemHints>
#include <KeltoParameterEntry>

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

using Problem = KeltoItemHints::Problem;

/// Keys that a file declares. The item may lack some of them for another reason, such as a misspelt
/// mode, and that reason is the finding.
class DeclaredKeys
{
public:
    explicit DeclaredKeys(const LintItem &item)
        : m_parameters(lastParts(item.namesIn(QStringLiteral("Attribute"))))
        , m_results(lastParts(item.namesIn(QStringLiteral("Result"))))
        , m_all(m_parameters + m_results.names())
        , m_knownParameters(m_parameters.cbegin(), m_parameters.cend())
        , m_knownResults(m_results.names().cbegin(), m_results.names().cend())
        , m_hiddenParameters(m_knownParameters)
    {
        for (const QVector<QStringList> &entries : item.file().item().inner_mode_parameterList) {
            for (const QStringList &entry : entries)
                m_hiddenParameters.remove(entry.value(KeltoParameterEntry::Key));
        }
    }

    bool contain(const QString &key) const
    {
        return m_knownParameters.contains(key) || m_knownResults.contains(key);
    }

    /// Whether the unknown @p part of a hint is one of them, with or without "@" and a mode behind.
    bool explain(const Problem &problem) const
    {
        return isIn(m_knownResults, problem.part)
            || (!isOfResult(problem) && isIn(m_knownParameters, problem.part));
    }
    /// Whether a condition begins with a parameter that is not in the item.
    bool explainCondition(const Problem &problem) const
    {
        const QString &text = problem.value;
        for (int at = text.indexOf(u'='); at >= 0; at = text.indexOf(u'=', at + 1)) {
            if (m_hiddenParameters.contains(text.left(at).trimmed()))
                return true;
        }
        return m_hiddenParameters.contains(text.trimmed());
    }
    bool areEmpty() const { return m_all.names().isEmpty(); }

    /// The one that was most likely meant. Behind "@" there is a mode.
    QString suggestionFor(const Problem &problem) const
    {
        const QString key = problem.part.section(QLatin1Char('@'), 0, 0);
        return didYouMean((isOfResult(problem) ? m_results : m_all).nearest(key));
    }
    /// The parameter on which a condition was most likely meant to be.
    QString suggestionForCondition(const Problem &problem) const
    {
        return didYouMean(nearestName(problem.part, m_parameters));
    }

private:
    static QStringList lastParts(QStringList names)
    {
        for (QString &name : names)
            name = name.mid(name.lastIndexOf(QLatin1Char('/')) + 1);
        return names;
    }
    static bool isOfResult(const Problem &problem)
    {
        return problem.extraKey.startsWith(QLatin1String("Belong."));
    }
    /// Whether @p part is one of @p keys, with or without "@" and a mode behind it.
    static bool isIn(const QSet<QString> &keys, const QString &part)
    {
        for (int at = part.indexOf(QLatin1Char('@')); at >= 0;
             at = part.indexOf(QLatin1Char('@'), at + 1)) {
            if (keys.contains(part.left(at)))
                return true;
        }
        return keys.contains(part);
    }

    const QStringList m_parameters;
    const NearestNames m_results;
    const NearestNames m_all;
    const QSet<QString> m_knownParameters;
    const QSet<QString> m_knownResults;
    QSet<QString> m_hiddenParameters;
};

/// What has another cause, which is a finding of its own.
bool isConsequence(const Problem &problem, const ItemFile &file, const DeclaredKeys &keys)
{
    switch (problem.kind) {
    case Problem::UnknownKey:
        return keys.areEmpty() || keys.explain(problem);
    case Problem::UnknownMode:
        return file.item().inner_mode_nameList.isEmpty();
    case Problem::BadCondition:
        return keys.explainCondition(problem);
    // One contradiction, which the minimum tells.
    case Problem::EmptyLimits:
        return problem.extraKey.startsWith(QLatin1String("Max."));
    // A comma without quotes, or a "/" in a key.
    case Problem::NotOneText:
    case Problem::DuplicateHint:
        return true;
    default:
        return false;
    }
}

/// The choice that a default was most likely meant to be: the one with this label, or the nearest.
QString meantChoice(const Problem &problem)
{
    QStringList values;
    const QStringList choices = problem.part.split(QLatin1Char('|'));
    for (const QString &choice : choices) {
        const QString value = choice.section(QLatin1Char('='), 0, 0).trimmed();
        const QString label = choice.section(QLatin1Char('='), 1).trimmed();
        if (label.compare(problem.value.trimmed(), Qt::CaseInsensitive) == 0)
            return value;
        values.append(value);
    }
    const QStringList defaults = problem.value.split(QLatin1Char(';'));
    for (const QString &text : defaults) {
        if (!values.contains(text.trimmed()))
            return nearestName(text, values);
    }
    return {};
}

/// Quotes make one part of a list with commas.
QString adviceOnCommas(const Problem &problem)
{
    static const QRegularExpression lists(QStringLiteral("^(Order($|@)|Belong\\.|When\\.)"));
    return problem.part.contains(QLatin1Char(',')) && problem.extraKey.contains(lists)
        ? Command::tr(" A \"|\" divides the parts of this hint, and not a comma.")
        : QString();
}

QString suggestionFor(const Problem &problem, const NearestNames &modes, const DeclaredKeys &keys)
{
    const QString advice = adviceOnCommas(problem);
    if (!advice.isEmpty())
        return advice;
    if (problem.kind == Problem::DefaultNotAChoice)
        return didYouMean(meantChoice(problem));
    if (problem.kind == Problem::UnknownKey)
        return keys.suggestionFor(problem);
    if (problem.kind == Problem::UnknownMode)
        return didYouMean(modes.nearest(problem.part));
    if (problem.kind == Problem::BadCondition && !problem.part.isEmpty())
        return keys.suggestionForCondition(problem);
    return {};
}

void findProblems(const ItemFile &file, const DeclaredKeys &keys, Findings *findings)
{
    const NearestNames modes(file.item().inner_mode_nameList);
    HintPlaces places(file);
    const QVector<Problem> problems = KeltoItemHints(file.item()).problems();
    for (const Problem &problem : problems) {
        if (isConsequence(problem, file, keys))
            continue;
        QString text = problem.text();
        const QString suggestion = suggestionFor(problem, modes, keys);
        if (suggestion.isEmpty())
            text.chop(1);
        FileFindings(file, findings).add("bad-hint", places.of(problem), text + suggestion);
    }
}

const QStringList &hintWords()
{
    static const QStringList words { QStringLiteral("Default"),  QStringLiteral("Min"),
                                     QStringLiteral("Max"),      QStringLiteral("Choices"),
                                     QStringLiteral("When"),     QStringLiteral("Optional"),
                                     QStringLiteral("Advanced"), QStringLiteral("Help"),
                                     QStringLiteral("Label"),    QStringLiteral("Files"),
                                     QStringLiteral("Belong") };
    return words;
}

/// The word of a hint that @p word most likely stands for; empty when there is none. Of short words
/// only swapped letters count: one wrong letter makes another word of them.
QString meantHint(const QString &word, const NearestNames &hints)
{
    static const QHash<QString, QString> longForms {
        { QStringLiteral("minimum"), QStringLiteral("Min") },
        { QStringLiteral("maximum"), QStringLiteral("Max") },
    };
    const QString small = word.simplified().toLower();
    const QString meant = longForms.value(small, hints.nearest(word));
    if (meant.size() > 3 || longForms.contains(small))
        return meant;
    QString letters = small;
    QString meantLetters = meant.toLower();
    std::sort(letters.begin(), letters.end());
    std::sort(meantLetters.begin(), meantLetters.end());
    return letters == meantLetters ? meant : QString();
}

/// The hint that the extra key @p name most likely stands for; empty when it is one, or belongs to
/// the host. Keys may hold a "." or a blank, as may what divides them from the word.
QString meantExtraKey(const QString &name, const NearestNames &hints, const DeclaredKeys &keys)
{
    for (int at = 1; at < name.size(); ++at) {
        const bool isDot = name.at(at) == QLatin1Char('.');
        if (!isDot && !name.at(at).isSpace())
            continue;
        const QString word = name.left(at);
        const QString rest = name.mid(at + 1);
        if (!keys.contain(rest) && !keys.contain(rest.section(QLatin1Char('@'), 0, -2)))
            continue;
        if (isDot && hints.names().contains(word))
            return {};
        const QString meant = meantHint(word, hints);
        if (!meant.isEmpty())
            return meant + QLatin1Char('.') + rest;
    }
    return {};
}

void findMisspeltHints(const ItemFile &file, const DeclaredKeys &keys, Findings *findings)
{
    const NearestNames hints(hintWords());
    for (const ItemFileKey &key : file.keys()) {
        if (key.section != QLatin1String("ExtraKey"))
            continue;
        const QString meant = meantExtraKey(key.name, hints, keys);
        if (meant.isEmpty())
            continue;
        FileFindings(file, findings)
            .add("misspelt-hint", key.position,
                 Command::tr("the extra key \"%1\" is no hint.").arg(key.name) + didYouMean(meant));
    }
}

void findSingleChoices(const ItemFile &file, Findings *findings)
{
    for (const ItemFileKey &key : file.keys()) {
        if (key.section == QLatin1String("ExtraKey") && HintBars::isOneChoiceOfWords(key))
            FileFindings(file, findings)
                .add("single-choice", key.valuePosition, HintBars::advice(key));
    }
}

/// What forms and hints know, and what the words of a text or a choice mean to a person.
const QStringList &knownObjectNames()
{
    static const QStringList names {
        QStringLiteral("float"),
        QStringLiteral("double"),
        QStringLiteral("int"),
        QStringLiteral("bool"),
        QStringLiteral("file"),
        QStringLiteral("newfile"),
        QStringLiteral("directory"),
        QStringLiteral("color"),
        QStringLiteral("choice"),
        QStringLiteral("text"),
        QStringLiteral("string"),
        QStringLiteral("QString"),
        QStringLiteral("QStringList"),
        QStringLiteral("QVector<float>"),
        QStringLiteral("QVector<double>"),
        QStringLiteral("QVector<int>"),
        QStringLiteral("QVector<QPoint>"),
        QStringLiteral("QVector<QPointF>"),
        QStringLiteral("QVector<QStringList>"),
    };
    return names;
}

void findObjectNames(const ItemFile &file, Findings *findings)
{
    for (const ItemFileKey &key : file.keys()) {
        if (key.section != QLatin1String("ObjectName") || key.value.size() != 1
            || !isDeclared(file, key.name))
            continue;
        const QString word = key.value.constFirst();
        if (word.isEmpty() || knownObjectNames().contains(word))
            continue;
        const QString text = Command::tr("nothing knows the object name \"%1\".").arg(word);
        const QString suggestion = didYouMean(word, knownObjectNames());
        FileFindings(file, findings)
            .add("unknown-object-name", key.valuePosition,
                 suggestion.isEmpty() ? text.chopped(1) : text + suggestion);
    }
}

void check(const LintItem &item, Findings *findings)
{
    const ItemFile &file = item.file();
    if (!file.item().extraKey.isEmpty()) {
        const DeclaredKeys keys(item);
        findProblems(file, keys, findings);
        findMisspeltHints(file, keys, findings);
        findSingleChoices(file, findings);
    }
    findObjectNames(file, findings);
}

} // namespace

RuleArea hintRules()
{
    return {
        {
            { "bad-hint", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "An extra key is a hint that makes no sense"),
              QT_TRANSLATE_NOOP("Command",
                                "Extra keys such as \"Default.Length\" tell a form about "
                                "parameters and results. One that names no parameter, result or "
                                "mode, that is no number where one is needed, or that contradicts "
                                "another one does not count."),
              EXAMPLE_ITEM EXAMPLE_LENGTH "[ExtraKey]\nDefault.Length=5\nMin.Length=10\n",
              EXAMPLE_ITEM EXAMPLE_LENGTH "[ExtraKey]\nDefault.Length=10\nMin.Length=10\n" },
            { "single-choice", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "A list of choices is one single choice"),
              QT_TRANSLATE_NOOP("Command",
                                "A \"|\" divides choices. With commas in quotes the whole list is "
                                "one choice, and nothing else can be chosen."),
              EXAMPLE_ITEM EXAMPLE_LENGTH "[ExtraKey]\nChoices.Length=\"short,medium,long\"\n",
              EXAMPLE_ITEM EXAMPLE_LENGTH "[ExtraKey]\nChoices.Length=short|medium|long\n" },
            { "misspelt-hint", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "An extra key is nearly a hint"),
              QT_TRANSLATE_NOOP(
                  "Command",
                  "The word in front of the key of a parameter or a result is similar "
                  "to one of a hint, and nothing is read from it. Capital letters "
                  "count, and a \".\" stands behind the word. Switch this off where "
                  "the host has words like these."),
              EXAMPLE_ITEM EXAMPLE_LENGTH "[ExtraKey]\nDevault.Length=5\n",
              EXAMPLE_ITEM EXAMPLE_LENGTH "[ExtraKey]\nDefault.Length=5\n" },
            { "unknown-object-name", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "An object name is none of the known words"),
              QT_TRANSLATE_NOOP("Command",
                                "The object name says what the values of a parameter are. With "
                                "\"double\", a form accepts numbers only; with a word that it does "
                                "not know, anything. Known are float, double, int, bool, file, "
                                "newfile, directory, color, choice, text, string, QString, "
                                "QStringList, and for several values QVector<float>, "
                                "QVector<double>, QVector<int>, QVector<QPoint>, QVector<QPointF> "
                                "and QVector<QStringList>."),
              EXAMPLE_ITEM EXAMPLE_LENGTH "[ObjectName]\nLength=duoble\n",
              EXAMPLE_ITEM EXAMPLE_LENGTH "[ObjectName]\nLength=double\n" },
        },
        check,
        nullptr
    };
}
