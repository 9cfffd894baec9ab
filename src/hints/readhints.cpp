// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "hints/readhints_p.h"

#include "core/enteredvalues_p.h"

namespace {

constexpr QLatin1Char equalsSign('=');

/// A null text for what is not one text. In a file, a text with a comma that is not quoted is a
/// list, and only lists of one can be converted.
QString oneTextOf(const QVariant &value)
{
    if (!value.isValid() || !value.canConvert<QString>())
        return {};
    const QString text = value.toString();
    return text.isNull() ? QString(QLatin1String("")) : text;
}

bool hasBadChoices(const QString &text)
{
    if (text.trimmed().isEmpty())
        return true;
    QSet<QString> values;
    const QVector<KeltoItemHints::Choice> choices = choicesOf(text);
    for (const KeltoItemHints::Choice &choice : choices)
        values.insert(choice.value);
    return values.size() != choices.size();
}

/// What stands where a condition names a parameter; empty without "=".
QString keyOfCondition(const QString &text)
{
    return text.left(qMax(text.indexOf(equalsSign), 0)).trimmed();
}

} // namespace

QStringList elementsOf(const QString &text, const QString &separator)
{
    QStringList elements = text.split(separator);
    for (QString &element : elements)
        element = element.trimmed();
    return elements;
}

QVector<KeltoItemHints::Choice> choicesOf(const QString &text)
{
    QVector<KeltoItemHints::Choice> choices;
    const QStringList elements = elementsOf(text);
    choices.reserve(elements.size());
    for (const QString &element : elements) {
        const int end = element.indexOf(equalsSign);
        if (end < 0)
            choices.append({ element, {} });
        else
            choices.append({ element.left(end).trimmed(), element.mid(end + 1).trimmed() });
    }
    return choices;
}

ReadHints::ReadHints(const AUTH_INF &item)
    : m_names(item)
    , m_texts(item.extraKey.size())
{
    for (int i = 0; i < item.extraKey.size(); ++i)
        read(i, item.extraKey.at(i));
}

int ReadHints::position(int mode, HintWord word, const QString &key) const
{
    const auto positions = m_positions.constFind({ mode, key });
    if (positions == m_positions.constEnd())
        return -1;
    return positions.value()[static_cast<std::size_t>(word)] - 1;
}

void ReadHints::read(int position, const VDataItem &extra)
{
    const std::optional<HintName> name = hintNameOf(extra.key, m_names);
    if (!name)
        return;
    if (m_seen.contains(extra.key)) {
        refuse(position, Problem::DuplicateHint);
        return;
    }
    m_seen.insert(extra.key);
    if (!name->unknownKey.isNull())
        refuse(position, Problem::UnknownKey, name->unknownKey);
    else if (!name->unknownMode.isNull())
        refuse(position, Problem::UnknownMode, name->unknownMode);
    else if (isSensible(position, name->word, extra.value))
        add(position, *name, oneTextOf(extra.value));
}

bool ReadHints::isSensible(int position, HintWord word, const QVariant &value)
{
    const QString text = oneTextOf(value);
    return text.isNull() ? refuse(position, Problem::NotOneText)
                         : isSensibleText(position, word, text);
}

bool ReadHints::isSensibleText(int position, HintWord word, const QString &text)
{
    switch (word) {
    case HintWord::Min:
    case HintWord::Max:
        return numberOf(text) || refuse(position, Problem::NotANumber);
    case HintWord::Optional:
    case HintWord::Advanced:
        return text == QLatin1String("true") || text == QLatin1String("false")
            || refuse(position, Problem::NotABoolean);
    case HintWord::Choices:
        return !hasBadChoices(text) || refuse(position, Problem::BadChoices);
    case HintWord::When:
        return hasCondition(position, text)
            || refuse(position, Problem::BadCondition, keyOfCondition(text));
    case HintWord::Order:
    case HintWord::Belong:
        return hasKnownElements(position, word, text);
    default:
        return true;
    }
}

/// An order without its unknown keys is still one. A result without the unknown modes would be
/// given by fewer than was meant.
bool ReadHints::hasKnownElements(int position, HintWord word, const QString &text)
{
    const bool isOrder = word == HintWord::Order;
    if (isOrder && text.isEmpty())
        return true;
    bool areAllKnown = true;
    const QStringList elements = elementsOf(text);
    for (const QString &element : elements) {
        const bool isKnown = isOrder ? m_names.isKey(element) : m_names.modeIndex(element) >= 0;
        if (!isKnown)
            refuse(position, isOrder ? Problem::UnknownKey : Problem::UnknownMode, element);
        areAllKnown = areAllKnown && isKnown;
    }
    return isOrder || areAllKnown;
}

/// Keys may hold "=" themselves: the first counts that has the key of a parameter before it.
bool ReadHints::hasCondition(int position, const QString &text)
{
    for (int i = text.indexOf(equalsSign); i >= 0; i = text.indexOf(equalsSign, i + 1)) {
        const QStringRef other = text.leftRef(i).trimmed();
        if (!m_names.isKeyLength(other.size()) || !m_names.isParameter(other.toString()))
            continue;
        m_conditions.insert(position,
                            HintCondition { other.toString(), elementsOf(text.mid(i + 1)) });
        return true;
    }
    return false;
}

void ReadHints::add(int position, const HintName &name, const QString &text)
{
    m_texts[position] = text;
    const QPair<int, QString> place(name.mode, name.key);
    if (!m_positions.contains(place)) {
        m_positions.insert(place, {});
        m_keys[name.mode].append(name.key);
    }
    m_positions[place][static_cast<std::size_t>(name.word)] = position + 1;
}

bool ReadHints::refuse(int position, Problem::Kind kind, const QString &part)
{
    m_problems.append({ position, kind, part });
    return false;
}
