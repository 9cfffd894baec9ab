// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INIKEYS_P_H
#define INIKEYS_P_H

#include <cstddef>
#include <string_view>
#include <vector>

/// The keys of an INI file as they are spelt there, to see at little cost that no two are the same.
class IniKeys
{
public:
    IniKeys();

    /// The keys that are added from now on stand behind the header with the name @p spelling.
    void enterGroup(std::string_view spelling);
    void add(std::string_view spelling);

    int count() const { return static_cast<int>(m_hashes.size()); }

    /// Whether QSettings takes no two of the keys for the same, and would spell them all like this
    /// again. No does not mean that it is otherwise: it is hard to tell then.
    bool areClear() const;

private:
    std::size_t m_groupHash;
    std::vector<std::size_t> m_hashes;
    bool m_areUsual = true;
};

#endif
