// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef HINTBARS_H
#define HINTBARS_H

#include "lint/filefindings.h"

#include <QSet>

#include <optional>

/// Hints whose text is divided by "|", and what is written for it elsewhere: commas.
class HintBars
{
public:
    explicit HintBars(const ItemFile &file)
        : m_file(file)
    {
    }

    /// Adds a finding at @p comma, the first outside of quotes in the value of @p key, where a "|"
    /// was meant, and says whether it was. @p isPlain: the value has neither quotes nor escapes.
    bool addMissing(const ItemFileKey &key, const char *comma, bool isPlain,
                    FileFindings *findings) const;

    /// Whether the text of a hint is one choice that was most likely meant to be several: short
    /// words with commas between them.
    static bool isOneChoiceOfWords(const ItemFileKey &key);

    /// What to write for a text with commas, as the end of a sentence.
    static QString advice(const ItemFileKey &key);

    /// Whether @p key is a hint whose text a "|" divides.
    static bool isDivided(const ItemFileKey &key);

private:
    bool isKnown(const ItemFileKey &key, const QString &element) const;
    bool isMeant(const ItemFileKey &key) const;
    bool hasOneAnswer(const ItemFileKey &key) const;

    const ItemFile &m_file;
    mutable std::optional<QSet<QString>> m_modes; ///< Read for the first list of modes.
};

#endif
