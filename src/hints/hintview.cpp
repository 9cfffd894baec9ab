// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "hints/hintview_p.h"

#include "core/enteredvalues_p.h"
#include "keltoparameterentry.h"

#include <QtMath>

#include <algorithm>

bool HintLimits::isLimited() const
{
    return qIsFinite(low) || qIsFinite(high);
}

HintView::HintView(const ReadHints &hints, const AUTH_INF &item, int mode)
    : m_hints(hints)
    , m_mode(allModes)
{
    if (mode >= 0 && mode < item.inner_mode_nameList.size())
        m_mode = m_hints.names().modeIndex(item.inner_mode_nameList.at(mode));
    const QVector<QStringList> entries = item.inner_mode_parameterList.value(mode);
    for (const QStringList &entry : entries) {
        const QString key = entry.value(KeltoParameterEntry::Key);
        if (!m_kinds.contains(key))
            m_kinds.insert(key, valueKindOf(entry));
    }
}

void HintView::dropSenseless(const QStringList &keys)
{
    for (const QString &key : keys) {
        checkLimits(key);
        checkDefault(key);
    }
    checkConditions(keys);
}

QString HintView::text(HintWord word, const QString &key) const
{
    const int found = position(word, key);
    return found < 0 ? QString() : m_hints.text(found);
}

bool HintView::isTrue(HintWord word, const QString &key) const
{
    return text(word, key) == QLatin1String("true");
}

HintLimits HintView::limits(const QString &key) const
{
    return { numberOf(text(HintWord::Min, key)).value_or(-qInf()),
             numberOf(text(HintWord::Max, key)).value_or(qInf()) };
}

QString HintView::limitTexts(const QString &key) const
{
    return text(HintWord::Min, key).trimmed() + QLatin1Char('|')
        + text(HintWord::Max, key).trimmed();
}

HintCondition HintView::condition(const QString &key) const
{
    return m_hints.condition(position(HintWord::When, key));
}

ValueKind HintView::kind(const QString &key) const
{
    return m_kinds.value(key, m_hints.names().kind(key));
}

QStringList HintView::defaultValues(const QString &key) const
{
    const QString value = text(HintWord::Default, key);
    if (!kind(key).isMulti)
        return { value };
    return value.isEmpty() ? QStringList() : elementsOf(value, QStringLiteral(";"));
}

int HintView::position(HintWord word, const QString &key) const
{
    int found = m_mode == allModes ? -1 : m_hints.position(m_mode, word, key);
    if (found < 0)
        found = m_hints.position(allModes, word, key);
    return m_dropped.contains(found) ? -1 : found;
}

void HintView::drop(HintWord word, const QString &key, Problem::Kind kind, const QString &part)
{
    const int found = position(word, key);
    m_dropped.insert(found);
    m_problems.append({ found, kind, part });
}

void HintView::checkLimits(const QString &key)
{
    const HintLimits allowed = limits(key);
    if (allowed.low <= allowed.high)
        return;
    drop(HintWord::Min, key, Problem::EmptyLimits);
    drop(HintWord::Max, key, Problem::EmptyLimits);
}

void HintView::checkDefault(const QString &key)
{
    const QString value = text(HintWord::Default, key);
    // What is optional may start empty.
    if (value.isNull() || (value.isEmpty() && isTrue(HintWord::Optional, key)))
        return;
    const QStringList values = defaultValues(key);
    const auto areAmong = [&values](const auto &allowed) {
        return std::all_of(values.cbegin(), values.cend(),
                           [&allowed](const QString &text) { return allowed.contains(text); });
    };
    const QSet<QString> choices = allowedValues(key);
    if (!choices.isEmpty() && !areAmong(choices))
        drop(HintWord::Default, key, Problem::DefaultNotAChoice, text(HintWord::Choices, key));
    else if (choices.isEmpty() && kind(key).isBool && !areAmong(booleanTexts()))
        drop(HintWord::Default, key, Problem::NotABoolean);
    else if (isNumber(key))
        checkNumbers(values, key);
}

bool HintView::isNumber(const QString &key) const
{
    return kind(key).isNumber || limits(key).isLimited();
}

void HintView::checkNumbers(const QStringList &values, const QString &key)
{
    const ValueKind kind = this->kind(key);
    const HintLimits allowed = limits(key);
    for (const QString &value : values) {
        if (!isOfNumbers(value, kind))
            return drop(HintWord::Default, key, Problem::NotANumber);
        const QStringList numbers = numbersOf(value, kind);
        for (const QString &number : numbers) {
            if (!allowed.contain(number.toDouble()))
                return drop(HintWord::Default, key, Problem::DefaultOutsideLimits, limitTexts(key));
        }
    }
}

QSet<QString> HintView::allowedValues(const QString &key) const
{
    QSet<QString> allowed;
    const QString text = this->text(HintWord::Choices, key);
    if (text.isNull())
        return allowed;
    const QVector<KeltoItemHints::Choice> choices = choicesOf(text);
    for (const KeltoItemHints::Choice &choice : choices)
        allowed.insert(choice.value);
    return allowed;
}

/// A condition that can never hold would hide its parameter for good.
void HintView::checkConditionValues(const QString &key)
{
    const HintCondition wanted = condition(key);
    // The other one may also be empty.
    if (wanted.values.isEmpty() || wanted.values.contains(QString()))
        return;
    const QSet<QString> allowed = allowedValues(wanted.other);
    const bool canHold = allowed.isEmpty()
        || std::any_of(wanted.values.cbegin(), wanted.values.cend(),
                       [&allowed](const QString &value) { return allowed.contains(value); });
    if (!canHold)
        drop(HintWord::When, key, Problem::BadCondition,
             QLatin1Char('=') + wanted.values.join(QLatin1Char('|')));
}

/// Each parameter depends on one other at most. So whoever follows the conditions from one to the
/// next and meets one of the same walk again has found a circle.
void HintView::checkConditions(const QStringList &keys)
{
    QHash<QString, int> walks;
    for (int walk = 0; walk < keys.size(); ++walk) {
        QString key = keys.at(walk);
        while (!walks.contains(key)) {
            checkConditionValues(key);
            if (condition(key).values.isEmpty())
                break;
            walks.insert(key, walk);
            key = condition(key).other;
        }
        if (walks.value(key, -1) != walk)
            continue;
        // Dropping the condition of one ends the circle there.
        for (HintCondition next = condition(key); !next.values.isEmpty(); next = condition(key)) {
            drop(HintWord::When, key, Problem::BadCondition);
            key = next.other;
        }
    }
}
