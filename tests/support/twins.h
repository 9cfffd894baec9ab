// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TWINS_H
#define TWINS_H

#include "support/randomitems.h"

#include <Kelto/AUTH_SET>

#include <QDebug>
#include <QString>
#include <QStringList>
#include <QVector>

#include <utility>

template <typename... Values> QString printed(const Values &...values)
{
    QString text;
    QDebug debug(&text);
    (debug << ... << values);
    return text;
}

/// The name of an operation that both twins have, and a function that calls it on either.
#define OPERATION(name)                                                                            \
#name, [](auto &&twin, const auto &...arguments) { return twin.name(arguments...); }

/// The same registry, or another value, twice: by the library and in a plain form.
template <typename Plain, typename Library = AUTH_SET> class Twins
{
public:
    /// Does the same to both.
    template <typename Change> void change(const QString &step, Change toChange)
    {
        m_steps.append(step);
        toChange(m_library);
        toChange(m_plain);
    }

    /// Asks both; the answers of the first difference are kept.
    template <typename Question, typename... Arguments>
    void ask(const char *operation, Question question, const Arguments &...arguments)
    {
        if (differ())
            return;
        const auto expected = question(m_plain, arguments...);
        const auto found = question(m_library, arguments...);
        if (expected != found) {
            m_difference
                = printed(operation, arguments..., "\n  plain:  ", expected, "\n  library:", found);
        }
    }

    /// The same for what is found in another way.
    void keepDifference(const QString &difference) { m_difference = difference; }

    bool differ() const { return !m_difference.isEmpty(); }
    /// The difference and all steps that led to it; empty when there is none.
    QString report() const
    {
        return differ()
            ? m_difference + QLatin1String("\n  after:\n  ") + m_steps.join(QLatin1String("\n  "))
            : QString();
    }

    Library &library() { return m_library; }
    Plain &plain() { return m_plain; }

private:
    Library m_library;
    Plain m_plain;
    QStringList m_steps;
    QString m_difference;
};

/// The random life of twins, and of the copies that they leave behind.
template <typename Plain, typename Library = AUTH_SET> class TwinLife
{
protected:
    explicit TwinLife(unsigned seed)
        : m_dice(seed)
    {
    }

    void copy() { m_left.append(m_twins); }

    void goOnWithCopy()
    {
        Twins<Plain, Library> copied = m_twins;
        std::swap(copied, m_twins);
        m_left.append(copied);
    }

    /// Goes back to an earlier copy, which stays as it is.
    void goBackToCopy()
    {
        if (!m_left.isEmpty())
            m_twins = m_left.at(m_dice.between(0, m_left.size() - 1));
    }

    /// What the twins and all their copies answer differently at the end of their life.
    template <typename Ask> QString differenceAtTheEnd(Ask askEverything)
    {
        m_left.append(m_twins);
        for (Twins<Plain, Library> &twins : m_left) {
            askEverything(twins);
            if (twins.differ())
                return twins.report();
        }
        return QString();
    }

    Dice m_dice;
    Twins<Plain, Library> m_twins;

private:
    QVector<Twins<Plain, Library>> m_left;
};

#endif
