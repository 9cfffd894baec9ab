// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KEYSPELLING_H
#define KEYSPELLING_H

#include "lint/filefindings.h"

#include <QSet>

/// Whether lines that follow are a part of @p key.
bool isBrokenKey(const ItemFileKey &key);

/// Looks for keys that are read as others than they seem.
class KeySpelling
{
public:
    explicit KeySpelling(FileFindings *findings)
        : m_findings(findings)
    {
    }

    void check(const ItemFileKey &key);

private:
    void checkCharacters(const ItemFileKey &key);
    void checkSlash(const ItemFileKey &key);

    FileFindings *const m_findings;
    /// Keys with a "/" that were reported: the same key elsewhere is the same mistake, also in the
    /// name of a hint.
    QSet<QString> m_reported;
};

#endif
