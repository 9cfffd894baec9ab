// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef HINTVIEW_P_H
#define HINTVIEW_P_H

#include "hints/readhints_p.h"

#include <QHash>
#include <QString>
#include <QStringList>

/// Lowest and highest number that is allowed.
struct HintLimits
{
    double low;
    double high;

    bool isLimited() const;
    bool contain(double number) const { return low <= number && number <= high; }
};

/**
 * The hints of an item that count for one of its inner modes, or for all of them.
 *
 * A hint for the mode alone replaces the one for all. What makes no sense beside the other hints of
 * the same mode is then dropped, and nothing takes its place.
 */
class HintView
{
public:
    /// @param mode position of the inner mode, or allModes.
    HintView(const ReadHints &hints, const AUTH_INF &item, int mode);

    const ReadHints &hints() const { return m_hints; }
    /// The keys with hints for the mode alone.
    QStringList ownKeys() const { return m_hints.keys(m_mode); }

    /// Drops what makes no sense together, of the hints of @p keys and of the conditions that they
    /// depend on.
    void dropSenseless(const QStringList &keys);
    const QVector<HintProblem> &dropped() const { return m_problems; }

    /// The text of a hint; null without one.
    QString text(HintWord word, const QString &key) const;
    bool isTrue(HintWord word, const QString &key) const;
    HintLimits limits(const QString &key) const;
    HintCondition condition(const QString &key) const;
    /// What the values of a key are in the mode.
    ValueKind kind(const QString &key) const;
    /// The values of a default: one, or the elements of a list.
    QStringList defaultValues(const QString &key) const;

private:
    using Problem = KeltoItemHints::Problem;

    int position(HintWord word, const QString &key) const;
    void drop(HintWord word, const QString &key, Problem::Kind kind, const QString &part = {});
    /// The minimum, a bar and the maximum; what is missing is empty.
    QString limitTexts(const QString &key) const;
    void checkLimits(const QString &key);
    void checkDefault(const QString &key);
    bool isNumber(const QString &key) const;
    void checkNumbers(const QStringList &values, const QString &key);
    /// Empty where anything can be chosen.
    QSet<QString> allowedValues(const QString &key) const;
    void checkConditions(const QStringList &keys);
    void checkConditionValues(const QString &key);

    ReadHints m_hints;
    /// The mode whose name hints bear: the first of its name.
    int m_mode;
    QHash<QString, ValueKind> m_kinds;
    QSet<int> m_dropped;
    QVector<HintProblem> m_problems;
};

#endif
