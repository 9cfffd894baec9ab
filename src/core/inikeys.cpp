// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/inikeys_p.h"

#include <QByteArray>

#include <algorithm>
#include <functional>

namespace {

/// The header in front of keys without a group, which may be missing and be in any case.
constexpr std::string_view general = "General";

std::size_t hashOf(std::string_view text)
{
    return std::hash<std::string_view>()(text);
}

bool isUpperHex(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F');
}

bool isPlain(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_'
        || c == '-' || c == '.';
}

/// How many characters at the start of @p spelling are, as the usual ones are, the only way to
/// spell what they mean; 0 for the others.
std::size_t usualLength(std::string_view spelling)
{
    if (isPlain(spelling.front()))
        return 1;
    constexpr std::string_view space = "%20";
    if (spelling.substr(0, space.size()) == space)
        return space.size();
    const std::string_view wide = spelling.substr(0, 6);
    const bool isWide = wide.size() == 6 && wide.substr(0, 2) == "%U" && wide.substr(2, 2) != "00"
        && std::all_of(wide.begin() + 2, wide.end(), isUpperHex);
    return isWide ? wide.size() : 0;
}

bool isUsual(std::string_view spelling)
{
    if (spelling.empty())
        return false;
    while (!spelling.empty()) {
        const std::size_t length = usualLength(spelling);
        if (length == 0)
            return false;
        spelling.remove_prefix(length);
    }
    return true;
}

} // namespace

IniKeys::IniKeys()
    : m_groupHash(hashOf(general))
{
}

void IniKeys::enterGroup(std::string_view spelling)
{
    m_groupHash = hashOf(spelling);
    const bool isGeneralInOtherCase = spelling != general && spelling.size() == general.size()
        && qstrnicmp(spelling.data(), general.data(), general.size()) == 0;
    if (isGeneralInOtherCase || !isUsual(spelling))
        m_areUsual = false;
}

void IniKeys::add(std::string_view spelling)
{
    m_hashes.push_back(hashOf(spelling) + 31 * m_groupHash);
    if (!isUsual(spelling))
        m_areUsual = false;
}

bool IniKeys::areClear() const
{
#ifdef Q_OS_WIN
    // Here names that differ in case only may be the same.
    return false;
#else
    std::vector<std::size_t> hashes = m_hashes;
    std::sort(hashes.begin(), hashes.end());
    return m_areUsual && std::adjacent_find(hashes.cbegin(), hashes.cend()) == hashes.cend();
#endif
}
