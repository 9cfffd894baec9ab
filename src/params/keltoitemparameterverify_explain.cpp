// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What keeps a person from calculating, parameter by parameter.

#include "keltoitemparameterverify.h"

#include "core/enteredvalues_p.h"
#include "core/similarnames_p.h"
#include "hints/countingparameters_p.h"
#include "keltoitemfinding.h"
#include "params/requiredparameters_p.h"

#include <QLocale>

#include <algorithm>

namespace {

using Finding = KeltoItemFinding;
using Findings = QVector<KeltoItemFinding>;

/// What the keys of values begin with, as it is compared.
const QLatin1String prefix("attribute/");

/// The parameter of an entry of any length, under the name that a person reads.
VParameter parameterOf(const QStringList &entry, const QString &label)
{
    QStringList places = entry.mid(0, KeltoParameterEntry::PlaceCount);
    while (places.size() < KeltoParameterEntry::PlaceCount)
        places.append(QString());
    if (!label.isEmpty())
        places[KeltoParameterEntry::TranslatedKey] = label;
    return VParameter(places);
}

/// The keys of values that belong to no parameter of the mode, compared with those that are absent.
class UnusedKeys
{
public:
    explicit UnusedKeys(const RequiredParameters &required)
    {
        QSet<QString> used;
        for (const QStringList &entry : required.entries())
            used.insert(valueKeyOf(entry.value(KeltoParameterEntry::Key)));
        for (const KeyValue &value : required.values().entries()) {
            if (!used.contains(value.first))
                append(value.first);
        }
    }

    /// The key most similar to @p valueKey; null when there is none.
    QString similarTo(const QString &valueKey) const
    {
        const QString name = comparableKey(valueKey);
        const QString bare = name.mid(prefix.size());
        QVector<int> nearest = m_names.nearest(name, 0);
        // A key without the prefix may be that of something else, so it has to be the same.
        if (nearest.isEmpty())
            nearest = m_names.nearest(bare, 0);
        if (nearest.isEmpty())
            nearest = m_names.nearest(name, tolerableEdits(bare.size()));
        return nearest.isEmpty() ? QString() : m_keys.at(nearest.first());
    }

private:
    static QString comparableKey(const QString &key)
    {
        const QString name = comparableName(key);
        return name.startsWith(prefix) ? prefix + name.midRef(prefix.size()).trimmed() : name;
    }
    void append(const QString &key)
    {
        m_keys.append(key);
        m_names.append(comparableKey(key));
    }

    QStringList m_keys;
    SimilarNames m_names;
};

/// Compares the values of one parameter with what may be entered for it.
class ValueCheck
{
public:
    ValueCheck(const KeltoItemHints &hints, const VParameter &parameter)
        : m_parameter(parameter)
        , m_kind(valueKindOf(parameter))
        , m_low(hints.minimum(parameter.name().first))
        , m_high(hints.maximum(parameter.name().first))
        , m_isOptional(hints.isOptional(parameter.name().first))
    {
        const QVector<KeltoItemHints::Choice> choices = hints.choices(parameter.name().first);
        for (const KeltoItemHints::Choice &choice : choices)
            m_choices.append(choice.value);
        if (m_choices.isEmpty() && m_kind.isBool)
            m_choices = booleanTexts();
    }

    Findings findings(const QVariant &value) const
    {
        const QStringList texts = valuesOf(value);
        if (texts.join(QString()).isEmpty() && texts.size() <= 1)
            return m_isOptional ? Findings() : Findings { finding(Finding::EmptyText, {}) };
        Findings found;
        for (int i = 0; i < texts.size(); ++i)
            addFindingOf(texts.at(i), m_parameter.isMulti() ? i : -1, &found);
        return found;
    }

private:
    /// One value that is a list was stored as one text with commas.
    QStringList valuesOf(const QVariant &value) const
    {
        const QStringList texts = textsOf(value);
        return m_parameter.isMulti() ? texts : QStringList(texts.join(QLatin1Char(',')));
    }

    void addFindingOf(const QString &text, int position, Findings *found) const
    {
        Finding wrong = finding(Finding::NotAChoice, text, m_choices);
        if (m_choices.isEmpty() || m_choices.contains(text)) {
            if (areNumbers(text) && areWithinLimits(text))
                return;
            wrong = areNumbers(text) ? finding(Finding::OutsideLimits, text, { limitsText() })
                                     : finding(Finding::NotANumber, text);
        }
        wrong.position = position;
        found->append(wrong);
    }

    bool areNumbers(const QString &text) const
    {
        return (!m_kind.isNumber && !isLimited()) || isOfNumbers(text, m_kind);
    }

    bool areWithinLimits(const QString &text) const
    {
        if (!isLimited())
            return true;
        const QStringList numbers = numbersOf(text, m_kind);
        return std::all_of(numbers.cbegin(), numbers.cend(), [this](const QString &number) {
            const double found = numberOf(number).value_or(m_low);
            return m_low <= found && found <= m_high;
        });
    }

    bool isLimited() const { return qIsFinite(m_low) || qIsFinite(m_high); }

    QString limitsText() const
    {
        const QString low = QString::number(m_low, 'g', QLocale::FloatingPointShortest);
        const QString high = QString::number(m_high, 'g', QLocale::FloatingPointShortest);
        if (!qIsFinite(m_high))
            return QStringLiteral("≥ ") + low;
        if (!qIsFinite(m_low))
            return QStringLiteral("≤ ") + high;
        return low + QLatin1String(" .. ") + high;
    }

    Finding finding(Finding::Kind kind, const QString &found,
                    const QStringList &expected = {}) const
    {
        return { kind, valueKeyOf(m_parameter.name().first), m_parameter, found, -1, expected };
    }

    VParameter m_parameter;
    ValueKind m_kind;
    double m_low;
    double m_high;
    bool m_isOptional;
    QStringList m_choices;
};

/// Looks through the parameters of a mode.
class Explanation
{
public:
    Explanation(const AUTH_INF &item, const KeyValues &values, const QString &mode,
                const QStringList &skipGroups)
        : m_required(item, values, mode, skipGroups)
        , m_hints(item, mode)
        , m_counting(m_hints, values)
    {
    }

    Findings findings()
    {
        m_required.visitAll([this](const QStringList &entry, const QString &key, int position) {
            // Where a key is wanted twice, one finding says so.
            if (m_seen.contains(key))
                return true;
            m_seen.insert(key);
            const QString name = entry.value(KeltoParameterEntry::Key);
            const VParameter parameter = parameterOf(entry, m_hints.label(name));
            if (position < 0)
                m_findings.append(absence(key, parameter));
            else if (m_counting.contains(name))
                m_findings += ValueCheck(m_hints, parameter)
                                  .findings(m_required.values().entries().at(position).second);
            return true;
        });
        return m_findings;
    }

private:
    Finding absence(const QString &key, const VParameter &parameter)
    {
        const QString name = parameter.name().first;
        // An empty text would do.
        const bool mayBeEmpty = m_hints.isOptional(name) || !m_counting.contains(name);
        const QStringList expected = mayBeEmpty ? QStringList(QString()) : QStringList();
        if (!m_unused)
            m_unused.emplace(m_required);
        const QString similar = m_unused->similarTo(key);
        if (similar.isNull())
            return { Finding::Missing, key, parameter, {}, -1, expected };
        return { Finding::NearMiss, key, parameter, similar, -1, expected };
    }

    RequiredParameters m_required;
    KeltoItemHints m_hints;
    /// Gathered for the first absent one: in a form most of the time none is.
    std::optional<UnusedKeys> m_unused;
    CountingParameters m_counting;
    QSet<QString> m_seen;
    Findings m_findings;
};

/// Both names of the mode with the translated name @p mode, where there is one.
Finding unknownMode(const AUTH_INF &item, const QString &mode)
{
    Finding finding;
    finding.kind = Finding::UnknownMode;
    finding.found = mode;
    const QString plain = item.inner_mode_nameList.value(item.inner_mode_nameList_tr.indexOf(mode));
    if (!mode.isEmpty() && !plain.isEmpty()) {
        finding.parameter.set({}, { plain, mode }, {}, {}, {}, {}, false);
        finding.expected.append(plain);
        return finding;
    }
    SimilarNames names;
    for (const QString &name : item.inner_mode_nameList)
        names.append(comparableName(name));
    const QString wanted = comparableName(mode);
    const QVector<int> nearest = names.nearest(wanted, tolerableEdits(wanted.size()));
    for (const int position : nearest)
        finding.expected.append(item.inner_mode_nameList.at(position));
    finding.expected.removeDuplicates();
    return finding;
}

} // namespace

QVector<KeltoItemFinding> KeltoItemParameterVerify::explain(
    const AUTH_INF *item, const QVector<QPair<QString, QVariant>> *values, QString mode,
    QStringList skipGroups)
{
    if (!item || !values)
        return {};
    const int position = item->inner_mode_nameList.indexOf(mode);
    if (position < 0)
        return { unknownMode(*item, mode) };
    if (item->inner_mode_parameterList.value(position).isEmpty())
        return { { Finding::ModeWithoutParameters, {}, {}, mode, -1, {} } };
    return Explanation(*item, *values, mode, skipGroups).findings();
}

QVector<KeltoItemFinding> KeltoItemParameterVerify::explain(
    const AUTH_INF *item, const QVector<QPair<QString, QVariant>> *values, QString mode,
    QString skipGroup)
{
    return explain(item, values, mode, QStringList(skipGroup));
}

QVector<KeltoItemFinding> KeltoItemParameterVerify::explain(
    const AUTH_INF *item, const QVector<QPair<QString, QVariant>> *values, QString mode)
{
    return explain(item, values, mode, QStringList());
}
