// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef READHINTS_P_H
#define READHINTS_P_H

#include "hints/hintnames_p.h"
#include "keltoitemhints.h"

#include <QHash>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <array>

/// The parts of @p text between the separators, without white space around them.
QStringList elementsOf(const QString &text, const QString &separator = QStringLiteral("|"));

/// The choices that @p text lists, with labels as they stand there.
QVector<KeltoItemHints::Choice> choicesOf(const QString &text);

/// With which values of another parameter one counts.
struct HintCondition
{
    QString other;
    QStringList values; ///< Empty without a condition, never else.
};

/// Something wrong with the extra key at a position.
struct HintProblem
{
    int position;
    KeltoItemHints::Problem::Kind kind;
    QString part;
};

/**
 * The extra keys of an item that make sense each on its own, by mode, key and word.
 *
 * Whether they make sense together may differ from mode to mode, see HintView. Copies share all.
 */
class ReadHints
{
public:
    explicit ReadHints(const AUTH_INF &item);

    const HintNames &names() const { return m_names; }
    /// The position of an extra key, for the mode @p mode alone or for allModes; -1 without one.
    int position(int mode, HintWord word, const QString &key) const;
    /// The text of the extra key at a position that position() gave. It is never null.
    QString text(int position) const { return m_texts.at(position); }
    HintCondition condition(int position) const { return m_conditions.value(position); }
    /// The keys with hints for the mode @p mode alone or for allModes, each once.
    QStringList keys(int mode) const { return m_keys.value(mode); }
    const QVector<HintProblem> &problems() const { return m_problems; }

private:
    using Problem = KeltoItemHints::Problem;

    void read(int position, const VDataItem &extra);
    bool isSensible(int position, HintWord word, const QVariant &value);
    bool isSensibleText(int position, HintWord word, const QString &text);
    bool hasKnownElements(int position, HintWord word, const QString &text);
    bool hasCondition(int position, const QString &text);
    void add(int position, const HintName &name, const QString &text);
    bool refuse(int position, Problem::Kind kind, const QString &part = QString());

    /// Positions of extra keys by word, counting from 1: 0 stands for none.
    using Positions = std::array<int, hintWordCount>;

    HintNames m_names;
    QSet<QString> m_seen;
    QVector<QString> m_texts;
    QHash<int, HintCondition> m_conditions;
    QHash<QPair<int, QString>, Positions> m_positions;
    QHash<int, QStringList> m_keys;
    QVector<HintProblem> m_problems;
};

#endif
