// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "itemfacts.h"

#include "command.h"

#include <KeltoItemHints>
#include <QLocale>
#include <VParameter>

#include <cmath>

namespace {

QString number(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString limitsText(double low, double high)
{
    if (std::isfinite(low) && std::isfinite(high))
        return Command::tr("%1 to %2").arg(number(low), number(high));
    if (std::isfinite(low))
        return Command::tr("at least %1").arg(number(low));
    return std::isfinite(high) ? Command::tr("at most %1").arg(number(high)) : QString();
}

QString labelOf(const KeltoItemHints &hints, const QString &key, const QString &value)
{
    const auto choices = hints.choices(key);
    for (const KeltoItemHints::Choice &choice : choices) {
        if (choice.value == value)
            return choice.label;
    }
    return value;
}

QString labelsOf(const KeltoItemHints &hints, const QString &key, const QStringList &values)
{
    QStringList labels;
    for (const QString &value : values)
        labels.append(labelOf(hints, key, value));
    return labels.join(Command::tr(", ", "between the elements of a list"));
}

QString nameOf(const KeltoItemHints &hints, const QString &key)
{
    const QString label = hints.label(key);
    return label.isEmpty() ? hints.translated(key) : label;
}

QString conditionText(const KeltoItemHints &hints, const QString &key)
{
    const QString other = hints.conditionKey(key);
    if (other.isEmpty())
        return {};
    return Command::tr("only if \"%1\" is: %2")
        .arg(nameOf(hints, other), labelsOf(hints, other, hints.conditionValues(key)));
}

/// The stored value stands behind the label, since projects and scripts hold that one.
QStringList choiceTexts(const KeltoItemHints &hints, const QString &key)
{
    QStringList texts;
    const auto choices = hints.choices(key);
    for (const KeltoItemHints::Choice &choice : choices) {
        texts.append(choice.label == choice.value
                         ? choice.value
                         : Command::tr("%1 (%2)").arg(choice.label, choice.value));
    }
    return texts;
}

} // namespace

QString defaultText(const KeltoItemHints &hints, const QString &key)
{
    QStringList labels;
    const QStringList values = hints.defaultValue(key).toStringList();
    for (const QString &value : values)
        labels.append(labelOf(hints, key, value));
    return labels.join(QStringLiteral("; "));
}

QStringList factsOf(const KeltoItemHints &hints, const VParameter &parameter)
{
    const QString key = parameter.name().first;
    QStringList facts = choiceTexts(hints, key);
    facts.append(limitsText(hints.minimum(key), hints.maximum(key)));
    if (parameter.isMulti())
        facts.append(Command::tr("several values"));
    if (hints.isOptional(key))
        facts.append(Command::tr("optional"));
    if (hints.isAdvanced(key))
        facts.append(Command::tr("advanced"));
    facts.append(conditionText(hints, key));
    const QStringList filters = hints.fileFilters(key);
    if (!filters.isEmpty())
        facts.append(Command::tr("files: %1").arg(filters.join(QStringLiteral("; "))));
    facts.removeAll(QString());
    return facts;
}
