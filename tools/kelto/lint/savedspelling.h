// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SAVEDSPELLING_H
#define SAVEDSPELLING_H

#include "itemfile.h"

#include <optional>

/// Whether a file is spelt to the last byte as AUTH_INF::save_ini() writes files, but for the key
/// "output_results", which authors add. Nobody writes all fields, sections and keys in the order of
/// their letters by hand, so that a "\t" is a tab there and no part of a path.
class SavedSpelling
{
public:
    explicit SavedSpelling(const ItemFile &file)
        : m_file(file)
    {
    }

    /// Whether the escapes in the value of @p key are those of a save. Those in names of files
    /// never are: such a name holds no tab.
    bool hasEscapesOf(const ItemFileKey &key) const;

private:
    const ItemFile &m_file;
    mutable std::optional<bool> m_isSaved; ///< Found out for the first value with an escape.
};

#endif
