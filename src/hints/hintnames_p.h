// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef HINTNAMES_P_H
#define HINTNAMES_P_H

#include "auth_inf.h"
#include "core/enteredvalues_p.h"
#include "core/firstpositions_p.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <optional>

/// What stands before the first dot of an extra key that is a hint.
enum class HintWord {
    Default,
    Min,
    Max,
    Choices,
    Optional,
    When,
    Advanced,
    Help,
    Label,
    Files,
    Belong,
    Order, ///< Alone, without a dot and a key.
};
constexpr int hintWordCount = 12;

/// The mode of hints for all modes.
constexpr int allModes = -1;

/// The keys and modes that hints of an item can name.
class HintNames
{
public:
    explicit HintNames(const AUTH_INF &item);

    bool isParameter(const QString &key) const { return m_keys.value(key).isParameter; }
    bool isResult(const QString &key) const { return m_keys.value(key).isResult; }
    bool isKey(const QString &key) const { return m_keys.contains(key); }
    /// What the first entry with the key, parameters before results, holds.
    ValueKind kind(const QString &key) const { return m_keys.value(key).kind; }
    /// Whether a key has that length: spares the hashing of what cannot be one.
    bool isKeyLength(int length) const { return m_keyLengths.contains(length); }

    /// Position of the first inner mode with the plain name @p mode; -1 when there is none.
    int modeIndex(const QString &mode) const { return m_modes.indexOf(mode); }

private:
    struct Key
    {
        bool isParameter = false;
        bool isResult = false;
        ValueKind kind;
    };
    Key &declare(const QStringList &entry);

    QHash<QString, Key> m_keys;
    QSet<int> m_keyLengths;
    FirstPositions m_modes;
};

/// An extra key taken apart.
struct HintName
{
    HintWord word;
    QString key;
    int mode = allModes;
    /// What is not known, if anything: all behind the dot, or the mode.
    QString unknownKey;
    QString unknownMode;
};

/// The parts of @p extraKey; nothing for the extra keys of hosts, which are no hints.
std::optional<HintName> hintNameOf(const QString &extraKey, const HintNames &names);

#endif
