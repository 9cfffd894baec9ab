// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "hintdiff.h"

#include "command.h"
#include "core/enteredvalues_p.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

QString number(double value)
{
    return qIsFinite(value) ? QString::number(value, 'g', QLocale::FloatingPointShortest)
                            : QString();
}

/// A default that is empty is not the same as none.
QString defaultOf(const KeltoItemHints &hints, const QString &key)
{
    if (!hints.defaultValue(key).isValid())
        return {};
    const QString text = hints.defaultValue(key).toStringList().join(QLatin1Char(';'));
    return text.isNull() ? QString(QLatin1String("")) : text;
}

/// The values that can be chosen; empty where everything can be entered.
QStringList choiceValues(const KeltoItemHints &hints, const VParameter &parameter)
{
    QStringList values;
    const auto choices = hints.choices(parameter.name().first);
    for (const KeltoItemHints::Choice &choice : choices)
        values.append(choice.value);
    if (values.isEmpty() && parameter.parameterObjectName() == QLatin1String("bool"))
        return { QStringLiteral("true"), QStringLiteral("false") };
    return values;
}

QString choicesText(const KeltoItemHints &hints, const QString &key)
{
    QStringList texts;
    const auto choices = hints.choices(key);
    for (const KeltoItemHints::Choice &choice : choices) {
        texts.append(choice.label == choice.value ? choice.value
                                                  : choice.value + QLatin1Char('=') + choice.label);
    }
    return listed(texts);
}

/// Whether a value that could be chosen, or entered, before cannot be any more.
bool losesChoice(const QStringList &before, const QStringList &after)
{
    if (after.isEmpty())
        return false;
    return before.isEmpty()
        || std::any_of(before.cbegin(), before.cend(),
                       [&after](const QString &value) { return !after.contains(value); });
}

/// Whether @p value is a number of this kind.
bool isSuch(const QString &value, const ValueKind &kind)
{
    const std::optional<double> number = numberOf(value);
    return number && !kind.isPoint && (!kind.isWhole || std::floor(*number) == *number);
}

/// Whether a parameter that counted does not any more: what was stored is lost then.
bool losesCondition(const KeltoItemHints &before, const KeltoItemHints &after, const QString &key)
{
    const QString other = after.conditionKey(key);
    if (other.isEmpty())
        return false;
    const QStringList values = after.conditionValues(key);
    QStringList possible;
    const auto choices = before.choices(other);
    for (const KeltoItemHints::Choice &choice : choices)
        possible.append(choice.value);
    // Without this condition it counted whatever the other was, and whether or not that counted.
    if (before.conditionKey(key) != other)
        return losesChoice(possible, values) || !before.conditionKey(other).isEmpty();
    const QStringList counted = before.conditionValues(key);
    return std::any_of(counted.cbegin(), counted.cend(), [&](const QString &value) {
        return !values.contains(value) && (possible.isEmpty() || possible.contains(value));
    });
}

QString conditionText(const KeltoItemHints &hints, const QString &key)
{
    const QString other = hints.conditionKey(key);
    return other.isEmpty() ? QString()
                           : other + QLatin1Char('=') + listed(hints.conditionValues(key));
}

} // namespace

QVector<HintChange> hintChanges(const DescribedParameter &before, const DescribedParameter &after)
{
    const QString key = before.parameter.name().first;
    QVector<HintChange> changes;
    const auto compare = [&](const char *property, const auto &textOf, bool loses = false) {
        const QString first = textOf(before.hints, key);
        const QString second = textOf(after.hints, key);
        if (first != second || first.isNull() != second.isNull())
            changes.append({ property, first, second, loses });
    };
    using Hints = KeltoItemHints;
    using Text = QString;
    compare(QT_TRANSLATE_NOOP("Command", "default"), defaultOf);
    compare(
        QT_TRANSLATE_NOOP("Command", "minimum"),
        [](const Hints &hints, const Text &name) { return number(hints.minimum(name)); },
        after.hints.minimum(key) > before.hints.minimum(key));
    compare(
        QT_TRANSLATE_NOOP("Command", "maximum"),
        [](const Hints &hints, const Text &name) { return number(hints.maximum(name)); },
        after.hints.maximum(key) < before.hints.maximum(key));
    compare(QT_TRANSLATE_NOOP("Command", "choices"), choicesText,
            losesChoice(choiceValues(before.hints, before.parameter),
                        choiceValues(after.hints, after.parameter)));
    compare(QT_TRANSLATE_NOOP("Command", "optional"), [](const Hints &hints, const Text &name) {
        return trueOrFalse(hints.isOptional(name));
    });
    compare(QT_TRANSLATE_NOOP("Command", "counts with"), conditionText,
            losesCondition(before.hints, after.hints, key));
    compare(QT_TRANSLATE_NOOP("Command", "advanced"), [](const Hints &hints, const Text &name) {
        return trueOrFalse(hints.isAdvanced(name));
    });
    compare(QT_TRANSLATE_NOOP("Command", "label"),
            [](const Hints &hints, const Text &name) { return orNothing(hints.label(name)); });
    compare(QT_TRANSLATE_NOOP("Command", "help"),
            [](const Hints &hints, const Text &name) { return orNothing(hints.help(name)); });
    compare(QT_TRANSLATE_NOOP("Command", "files"),
            [](const Hints &hints, const Text &name) { return listed(hints.fileFilters(name)); });
    return changes;
}

bool losesKind(const DescribedParameter &before, const DescribedParameter &after)
{
    const ValueKind was = valueKindOf(before.parameter);
    const ValueKind is = valueKindOf(after.parameter);
    const QStringList values = choiceValues(before.hints, before.parameter);
    const bool areNumbers = !values.isEmpty()
        && std::all_of(values.cbegin(), values.cend(),
                       [&is](const QString &value) { return isSuch(value, is); });
    if (is.isBool)
        return losesChoice(values, { QStringLiteral("true"), QStringLiteral("false") });
    if (!is.isNumber || areNumbers)
        return false;
    return !was.isNumber || was.isPoint != is.isPoint || (is.isWhole && !was.isWhole);
}

QString trueOrFalse(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString orNothing(const QString &text)
{
    return text.isEmpty() ? QString() : text;
}

QString listed(const QStringList &texts)
{
    return orNothing(texts.join(QLatin1Char('|')));
}
