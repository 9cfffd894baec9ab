// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What extra keys and object names say about parameters and results, and nothing understands.

#include "command.h"
#include "core/enteredvalues_p.h"
#include "lint/rules_places.h"
#include "nearestname.h"

#include <KeltoItemHints>

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
    {
    }

    /// Whether the unknown @p part of a hint is one of them, with or without "@" and a mode behind.
    bool explain(const Problem &problem) const
    {
        return areIn(m_results, problem) || (!isOfResult(problem) && areIn(m_parameters, problem));
    }
    /// Whether a condition begins with one of them that is not in @p item.
    bool explainCondition(const Problem &problem, const AUTH_INF &item) const
    {
        return std::any_of(m_parameters.cbegin(), m_parameters.cend(), [&](const QString &key) {
            return problem.value.startsWith(key) && !item.inner_mode_contains(key);
        });
    }
    bool areEmpty() const { return m_parameters.isEmpty() && m_results.isEmpty(); }

    /// The one that was most likely meant. Behind "@" there is a mode.
    QString suggestionFor(const Problem &problem) const
    {
        const QString key = problem.part.section(QLatin1Char('@'), 0, 0);
        return didYouMean(key, isOfResult(problem) ? m_results : m_parameters + m_results);
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
    static bool areIn(const QStringList &keys, const Problem &problem)
    {
        return std::any_of(keys.cbegin(), keys.cend(), [&](const QString &key) {
            return problem.part == key || problem.part.startsWith(key + QLatin1Char('@'));
        });
    }

    QStringList m_parameters;
    QStringList m_results;
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
        return keys.explainCondition(problem, file.item());
    // A comma without quotes, or a "/" in a key.
    case Problem::NotOneText:
    case Problem::DuplicateHint:
        return true;
    default:
        return false;
    }
}

QString suggestionFor(const Problem &problem, const ItemFile &file, const DeclaredKeys &keys)
{
    if (problem.kind == Problem::UnknownKey)
        return keys.suggestionFor(problem);
    if (problem.kind == Problem::UnknownMode)
        return didYouMean(problem.part, file.item().inner_mode_nameList);
    return {};
}

void findProblems(const ItemFile &file, Findings *findings)
{
    if (file.item().extraKey.isEmpty())
        return;
    const QVector<Problem> problems = KeltoItemHints(file.item()).problems();
    if (problems.isEmpty())
        return;
    const DeclaredKeys keys { LintItem(file) };
    for (const Problem &problem : problems) {
        if (isConsequence(problem, file, keys))
            continue;
        QString text = problem.text();
        const QString suggestion = suggestionFor(problem, file, keys);
        if (suggestion.isEmpty())
            text.chop(1);
        FileFindings(file, findings)
            .add("bad-hint", keyPosition(file, QStringLiteral("ExtraKey"), problem.extraKey),
                 text + suggestion);
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

void check(const ItemFile &file, Findings *findings)
{
    findProblems(file, findings);
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
