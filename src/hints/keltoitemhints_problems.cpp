// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What is wrong with the hints of an item.

#include "core/enteredvalues_p.h"
#include "core/sentence_p.h"
#include "hints/keltoitemhints_p.h"
#include "keltoitemhints.h"
#include "keltoparameterentry.h"

#include <QCoreApplication>

#include <algorithm>
#include <set>
#include <tuple>

namespace {

class Sentences
{
    Q_DECLARE_TR_FUNCTIONS(KeltoItemHints)

public:
    using Problem = KeltoItemHints::Problem;

    /// With %1 for the extra key, %2 for its text and %3 for shownPart().
    static QString of(const Problem &problem)
    {
        switch (problem.kind) {
        case Problem::UnknownKey:
            // There may well be such a parameter.
            return problem.extraKey.startsWith(QLatin1String("Belong."))
                ? tr("%1: there is no result \"%3\".")
                : tr("%1: there is no parameter or result \"%3\".");
        case Problem::UnknownMode:
            return tr("%1: there is no inner mode \"%3\".");
        case Problem::NotOneText:
            return tr(
                "%1: the value has to be one text. In a file, one with a comma needs quotes.");
        case Problem::NotANumber:
            return numberOf(problem.value)
                ? tr("%1: \"%2\" is not such a number as the parameter holds.")
                : tr("%1: \"%2\" is not a number.");
        case Problem::NotABoolean:
            return tr("%1: \"%2\" is neither \"true\" nor \"false\".");
        case Problem::EmptyLimits:
            return tr("%1: with \"%2\" the minimum is above the maximum.");
        case Problem::DefaultOutsideLimits:
            return ofLimits(problem.part);
        case Problem::DefaultNotAChoice:
            return choicesOf(problem.part).size() > mostShown
                ? tr("%1: \"%2\" is none of the choices, such as %3.")
                : tr("%1: \"%2\" is none of the choices: %3.");
        case Problem::BadChoices:
            return tr("%1: \"%2\" offers nothing, or one value twice.");
        case Problem::BadCondition:
            return ofCondition(problem);
        case Problem::DuplicateHint:
            return tr("%1: this extra key is there twice; the first one counts.");
        }
        return {};
    }

    /// What stands for %3.
    static QString shownPart(const Problem &problem)
    {
        switch (problem.kind) {
        case Problem::DefaultNotAChoice:
            return shownChoices(problem.part);
        case Problem::DefaultOutsideLimits:
            return problem.part.section(QLatin1Char('|'), 0, 0);
        default:
            return problem.part;
        }
    }

private:
    /// As many choices as a person reads.
    static constexpr int mostShown = 8;

    /// With %4 for the maximum.
    static QString ofLimits(const QString &limits)
    {
        if (limits.endsWith(QLatin1Char('|')))
            return tr("%1: \"%2\" is outside the limits: the minimum is %3.");
        return limits.startsWith(QLatin1Char('|'))
            ? tr("%1: \"%2\" is outside the limits: the maximum is %4.")
            : tr("%1: \"%2\" is outside the limits: the minimum is %3 and the maximum %4.");
    }
    static QString shownChoices(const QString &text)
    {
        const QVector<KeltoItemHints::Choice> choices = choicesOf(text).mid(0, mostShown);
        QStringList values;
        for (const KeltoItemHints::Choice &choice : choices)
            values.append(QLatin1Char('"') + choice.value + QLatin1Char('"'));
        return values.join(QLatin1String(", "));
    }
    static QString ofCondition(const Problem &problem)
    {
        if (problem.part.startsWith(QLatin1Char('=')))
            return tr("%1: no value in \"%2\" can be chosen.");
        if (!problem.part.isEmpty())
            return tr("%1: there is no parameter \"%3\".");
        // In a circle there is always one.
        const bool hasKey = problem.value.trimmed().indexOf(QLatin1Char('=')) > 0;
        return hasKey ? tr("%1: with \"%2\" parameters depend on each other in a circle.")
                      : tr("%1: \"%2\" is not \"parameter=value\".");
    }
};

/// Problems in the order of the extra keys. Several modes have many in common.
class ProblemList
{
public:
    void add(const QVector<HintProblem> &problems)
    {
        for (const HintProblem &problem : problems)
            m_problems.emplace(problem.position, problem.kind, problem.part);
    }
    QVector<KeltoItemHints::Problem> of(const AUTH_INF &item) const
    {
        QVector<KeltoItemHints::Problem> list;
        for (const auto &[position, kind, part] : m_problems) {
            const VDataItem &extra = item.extraKey.at(position);
            const QString text = extra.value.userType() == QMetaType::QStringList
                ? extra.value.toStringList().join(QLatin1String(", "))
                : extra.value.toString();
            list.append({ kind, extra.key, text, part });
        }
        return list;
    }

private:
    std::set<std::tuple<int, KeltoItemHints::Problem::Kind, QString>> m_problems;
};

/// The hints that can differ from those for all modes: of the mode alone, and of its parameters,
/// which may hold other values here than elsewhere. Conditions for all may depend on choices of the
/// mode alone.
QStringList keysOfMode(const HintView &view, const AUTH_INF &item, int mode)
{
    QStringList keys = view.ownKeys();
    if (!keys.isEmpty())
        keys += view.hints().keys(allModes);
    const QVector<QStringList> entries = item.inner_mode_parameterList.value(mode);
    for (const QStringList &entry : entries)
        keys.append(entry.value(KeltoParameterEntry::Key));
    return keys;
}

} // namespace

QString KeltoItemHints::Problem::text() const
{
    return sentenceOf(Sentences::of(*this),
                      { extraKey, value, Sentences::shownPart(*this),
                        part.section(QLatin1Char('|'), 1) });
}

QVector<KeltoItemHints::Problem> KeltoItemHints::problems() const
{
    const AUTH_INF &item = d->item;
    const ReadHints &hints = d->view.hints();
    ProblemList problems;
    problems.add(hints.problems());

    HintView all(hints, item, allModes);
    all.dropSenseless(hints.keys(allModes));
    problems.add(all.dropped());
    const int modeCount
        = std::max(item.inner_mode_nameList.size(), item.inner_mode_parameterList.size());
    for (int mode = 0; mode < modeCount; ++mode) {
        HintView view(hints, item, mode);
        view.dropSenseless(keysOfMode(view, item, mode));
        problems.add(view.dropped());
    }
    return problems.of(item);
}
