// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/hintplaces.h"

namespace {

using Problem = KeltoItemHints::Problem;

/// What is behind the first @p separator; null without it.
const char *behind(std::string_view text, char separator)
{
    const std::size_t found = text.find(separator);
    return found == text.npos ? nullptr : text.data() + found + 1;
}

bool isInKey(const Problem &problem)
{
    if (problem.kind == Problem::UnknownMode)
        return problem.extraKey.endsWith(QLatin1Char('@') + problem.part);
    return problem.extraKey != QLatin1String("Order")
        && !problem.extraKey.startsWith(QLatin1String("Order@"));
}

const char *placeInKey(const ItemFileKey &key, const Problem &problem)
{
    if (problem.kind == Problem::UnknownKey)
        return behind(key.spelt, '.');
    // Other "@" may stand before it, and a name may be spelt in escapes.
    const QByteArray mode = '@' + problem.part.toUtf8();
    const std::size_t found = key.spelt.rfind(mode.constData());
    return found == key.spelt.npos ? nullptr : key.spelt.data() + found + 1;
}

} // namespace

IniPosition HintPlaces::of(const Problem &problem)
{
    const ItemFileKey *const key = m_file.findReadAs(QStringLiteral("ExtraKey"), problem.extraKey);
    if (!key)
        return {};
    const bool isUnknown
        = problem.kind == Problem::UnknownKey || problem.kind == Problem::UnknownMode;
    if (isUnknown && isInKey(problem)) {
        const char *const place = placeInKey(*key, problem);
        return place ? m_file.positionAt(place) : key->position;
    }
    const char *place = nullptr;
    if (isUnknown)
        place = placeInList(*key, problem.part);
    else if (problem.kind == Problem::BadCondition && problem.part.startsWith(QLatin1Char('=')))
        place = behind(key->speltValue, '=');
    return place ? m_file.positionAt(place) : key->valuePosition;
}

/// The list is taken apart once, since it can be long.
const char *HintPlaces::placeInList(const ItemFileKey &key, const QString &part)
{
    if (m_list != &key) {
        m_list = &key;
        m_parts.clear();
        std::string_view rest = key.speltValue;
        for (std::size_t bar = rest.find('|'); bar != rest.npos; bar = rest.find('|')) {
            addPart(rest.substr(0, bar));
            rest.remove_prefix(bar + 1);
        }
        addPart(rest);
    }
    return m_parts.value(part.toUtf8());
}

void HintPlaces::addPart(std::string_view spelt)
{
    constexpr std::string_view around = " \t\"";
    const std::size_t begin = std::min(spelt.find_first_not_of(around), spelt.size());
    spelt = spelt.substr(begin, spelt.find_last_not_of(around) + 1 - begin);
    const QByteArray text(spelt.data(), int(spelt.size()));
    if (!m_parts.contains(text))
        m_parts.insert(text, spelt.data());
}
