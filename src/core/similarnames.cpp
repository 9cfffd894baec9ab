// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/similarnames_p.h"

#include <QtAlgorithms>

namespace {

/// Whoever has longer names does not type them.
constexpr int longestTypedName = 200;

QString digitsOf(const QString &name)
{
    QString digits;
    for (const QChar character : name) {
        if (character.isDigit())
            digits.append(character);
    }
    return digits;
}

quint64 lettersOf(const QString &name)
{
    quint64 letters = 0;
    for (const QChar character : name)
        letters |= quint64(1) << (character.unicode() % 64);
    return letters;
}

/// Whether @p a becomes @p b by that many edits or fewer. What both begin with needs none, so only
/// the edits branch.
bool isWithinEdits(const QStringRef &a, const QStringRef &b, int edits)
{
    int same = 0;
    while (same < a.size() && same < b.size() && a.at(same) == b.at(same))
        ++same;
    const QStringRef restA = a.mid(same);
    const QStringRef restB = b.mid(same);
    if (restA.isEmpty() || restB.isEmpty())
        return restA.size() + restB.size() <= edits;
    if (edits == 0)
        return false;
    const bool isSwapped = restA.size() > 1 && restB.size() > 1 && restA.at(0) == restB.at(1)
        && restA.at(1) == restB.at(0);
    return isWithinEdits(restA.mid(1), restB.mid(1), edits - 1)
        || isWithinEdits(restA.mid(1), restB, edits - 1)
        || isWithinEdits(restA, restB.mid(1), edits - 1)
        || (isSwapped && isWithinEdits(restA.mid(2), restB.mid(2), edits - 1));
}

} // namespace

QString comparableName(const QString &name)
{
    return name.simplified().toLower();
}

int tolerableEdits(int length)
{
    // Nearly all names of two letters are similar.
    if (length < 3 || length > longestTypedName)
        return 0;
    return length < 8 ? 1 : 2;
}

void SimilarNames::append(const QString &name)
{
    m_candidates[digitsOf(name)].append({ name, lettersOf(name), m_positions.size() });
    m_positions.append(name);
}

QVector<int> SimilarNames::nearest(const QString &name, int mostEdits) const
{
    if (const int same = m_positions.indexOf(name); same >= 0)
        return { same };
    const Candidates candidates = m_candidates.value(digitsOf(name));
    for (int edits = 1; edits <= mostEdits; ++edits) {
        const QVector<int> found = withEdits(candidates, name, edits);
        if (!found.isEmpty())
            return found;
    }
    return {};
}

QVector<int> SimilarNames::withEdits(const Candidates &candidates, const QString &name,
                                     int edits) const
{
    QVector<int> found;
    const quint64 letters = lettersOf(name);
    for (const Candidate &candidate : candidates) {
        if (m_budget-- <= 0)
            break;
        // An edit changes the length by one and puts one letter in the place of another, at most.
        if (qAbs(candidate.name.size() - name.size()) > edits
            || qPopulationCount(candidate.letters ^ letters) > uint(2 * edits))
            continue;
        if (isWithinEdits(QStringRef(&candidate.name), QStringRef(&name), edits))
            found.append(candidate.position);
    }
    return found;
}
