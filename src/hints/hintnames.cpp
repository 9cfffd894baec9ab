// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "hints/hintnames_p.h"

#include "keltoparameterentry.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

constexpr QLatin1Char dot('.');
constexpr QLatin1Char at('@');

/// In the order of HintWord.
const std::array<QLatin1String, hintWordCount> words {
    QLatin1String("Default"),  QLatin1String("Min"),      QLatin1String("Max"),
    QLatin1String("Choices"),  QLatin1String("Optional"), QLatin1String("When"),
    QLatin1String("Advanced"), QLatin1String("Help"),     QLatin1String("Label"),
    QLatin1String("Files"),    QLatin1String("Belong"),   QLatin1String("Order")
};

std::optional<HintWord> hintWordOf(const QStringRef &text)
{
    const auto found = std::find(words.cbegin(), words.cend(), text);
    if (found == words.cend())
        return std::nullopt;
    return static_cast<HintWord>(std::distance(words.cbegin(), found));
}

/// Keys and mode names may hold "@" themselves. So all of @p rest is the key if there is such a
/// key, and else the first "@" counts that has a key before it and a mode behind it.
HintName separated(HintWord word, const QString &rest, const HintNames &names)
{
    const auto isKey = [&](const QString &key) {
        return word == HintWord::Belong ? names.isResult(key) : names.isKey(key);
    };
    if (isKey(rest))
        return { word, rest, allModes, {}, {} };
    HintName unknown { word, {}, allModes, rest, {} };
    for (int i = rest.indexOf(at); i >= 0; i = rest.indexOf(at, i + 1)) {
        if (!names.isKeyLength(i) || !isKey(rest.left(i)))
            continue;
        const QString mode = rest.mid(i + 1);
        if (names.modeIndex(mode) >= 0)
            return { word, rest.left(i), names.modeIndex(mode), {}, {} };
        if (!unknown.unknownKey.isNull())
            unknown = { word, rest.left(i), allModes, {}, mode };
    }
    return unknown;
}

/// "Order", for all modes or with "@" and one.
std::optional<HintName> orderOf(const QString &extraKey, const HintNames &names)
{
    const int length = words[static_cast<std::size_t>(HintWord::Order)].size();
    if (extraKey.size() == length)
        return HintName { HintWord::Order, {}, allModes, {}, {} };
    if (extraKey.at(length) != at)
        return std::nullopt;
    const QString mode = extraKey.mid(length + 1);
    if (names.modeIndex(mode) < 0)
        return HintName { HintWord::Order, {}, allModes, {}, mode };
    return HintName { HintWord::Order, {}, names.modeIndex(mode), {}, {} };
}

} // namespace

HintNames::HintNames(const AUTH_INF &item)
{
    for (const QVector<QStringList> &entries : item.inner_mode_parameterList) {
        for (const QStringList &entry : entries)
            declare(entry).isParameter = true;
    }
    for (const QStringList &entry : item.output_results)
        declare(entry).isResult = true;
    for (const QString &mode : item.inner_mode_nameList)
        m_modes.append(mode);
}

HintNames::Key &HintNames::declare(const QStringList &entry)
{
    const QString key = entry.value(KeltoParameterEntry::Key);
    const auto known = m_keys.find(key);
    if (known != m_keys.end())
        return known.value();
    m_keyLengths.insert(key.size());
    return m_keys.insert(key, { false, false, valueKindOf(entry) }).value();
}

std::optional<HintName> hintNameOf(const QString &extraKey, const HintNames &names)
{
    if (extraKey.startsWith(words[static_cast<std::size_t>(HintWord::Order)]))
        return orderOf(extraKey, names);
    const int end = extraKey.indexOf(dot);
    if (end < 0)
        return std::nullopt;
    const std::optional<HintWord> word = hintWordOf(extraKey.leftRef(end));
    if (!word)
        return std::nullopt;
    return separated(*word, extraKey.mid(end + 1), names);
}
