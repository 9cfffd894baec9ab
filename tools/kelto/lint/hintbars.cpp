// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/hintbars.h"

#include "command.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr QLatin1Char bar('|');
constexpr QLatin1Char equalsSign('=');

bool isOf(const ItemFileKey &key, const char *word)
{
    return key.name.startsWith(QLatin1String(word));
}

bool isOrder(const ItemFileKey &key)
{
    return key.name == QLatin1String("Order") || isOf(key, "Order@");
}

/// The parts between the commas, of which those inside of quotes are known to divide as well.
QStringList partsOf(const ItemFileKey &key)
{
    static const QRegularExpression comma(QStringLiteral("\\s*,\\s*"));
    return key.value.join(QLatin1Char(',')).trimmed().split(comma);
}

/// Whether some of the parts between the commas are most likely none: the rest of a label, or a
/// condition on another parameter.
bool isMixed(const ItemFileKey &key)
{
    const bool isCondition = isOf(key, "When.");
    const bool isExpected = !isCondition && key.value.constFirst().contains(equalsSign);
    return (isCondition || isOf(key, "Choices."))
        && std::any_of(key.value.cbegin() + 1, key.value.cend(), [=](const QString &element) {
               return element.contains(equalsSign) != isExpected;
           });
}

} // namespace

bool HintBars::isDivided(const ItemFileKey &key)
{
    return isOf(key, "Choices.") || isOf(key, "When.") || isOf(key, "Belong.") || isOrder(key);
}

bool HintBars::addMissing(const ItemFileKey &key, const char *comma, bool isPlain,
                          FileFindings *findings) const
{
    if (!isDivided(key) || !isMeant(key))
        return false;
    QVector<TextEdit> fix;
    if (isPlain && hasOneAnswer(key))
        fix = { findings->edit(key.speltValue, key.value.join(bar).toUtf8()) };
    findings->add("split-text", comma, advice(key), fix);
    return true;
}

bool HintBars::isOneChoiceOfWords(const ItemFileKey &key)
{
    if (!isOf(key, "Choices.") || key.value.size() != 1)
        return false;
    const QString &text = key.value.constFirst();
    if (text.contains(bar) || text.contains(equalsSign))
        return false;
    static const QRegularExpression word(QStringLiteral("^\\S*\\pL\\S*$"));
    static const QRegularExpression words(QStringLiteral("^\\S+( \\S+)?$"));
    const QStringList parts = partsOf(key);
    const QRegularExpression &expected = parts.size() == 2 ? word : words;
    return parts.size() > 1
        && std::all_of(parts.cbegin(), parts.cend(), [&expected](const QString &part) {
               return expected.match(part).hasMatch();
           });
}

QString HintBars::advice(const ItemFileKey &key)
{
    constexpr int mostShown = 100;
    const QString line = key.name + equalsSign + partsOf(key).join(bar);
    return isMixed(key) || line.size() > mostShown
        ? Command::tr("a \"|\" divides the parts of this hint, and not a comma")
        : Command::tr("a \"|\" divides the parts of this hint, and not a comma: write %1")
              .arg(line);
}

bool HintBars::isKnown(const ItemFileKey &key, const QString &element) const
{
    if (isOrder(key))
        return m_file.find(QStringLiteral("Attribute"), element)
            || m_file.find(QStringLiteral("Result"), element);
    if (!m_modes) {
        const QStringList &modes = m_file.item().inner_mode_nameList;
        m_modes = QSet<QString>(modes.cbegin(), modes.cend());
    }
    return m_modes->contains(element);
}

/// A name or a choice may hold the comma, and so may a label.
bool HintBars::isMeant(const ItemFileKey &key) const
{
    const QString &first = key.value.constFirst();
    if (key.value.join(QString()).contains(bar))
        return false;
    if (isOf(key, "Choices."))
        return true;
    if (!isOf(key, "When."))
        return !isKnown(key, key.value.join(QLatin1Char(',')))
            && !isKnown(key, key.value.join(QLatin1String(", ")));
    const QString other = first.section(equalsSign, 0, 0).trimmed();
    const ItemFileKey *const choices
        = m_file.find(QStringLiteral("ExtraKey"), QLatin1String("Choices.") + other);
    return first.contains(equalsSign)
        && !(choices && choices->value.size() == 1
             && choices->value.constFirst().contains(QLatin1Char(',')));
}

bool HintBars::hasOneAnswer(const ItemFileKey &key) const
{
    if (isOf(key, "When.") || isOf(key, "Choices."))
        return !isMixed(key);
    return std::all_of(key.value.cbegin(), key.value.cend(),
                       [&](const QString &element) { return isKnown(key, element); });
}
