// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TASKINPUT_H
#define TASKINPUT_H

#include "calculator.h"
#include "modules.h"

#include <Kelto/AUTH_INF>
#include <Kelto/KeltoItemHints>

#include <QMap>
#include <QStringList>

#include <algorithm>
#include <cmath>

// Shared by the tests of the calculations. A task is named by module and mode, "Beam:Cantilever".

using Changes = QMap<QString, QVariant>;

inline AUTH_INF moduleOf(const QString &task)
{
    static const auto modules = compiledModules();
    return *std::find_if(modules.cbegin(), modules.cend(), [&task](const AUTH_INF &module) {
        return module.name == task.section(':', 0, 0);
    });
}

inline QString modeOf(const QString &task)
{
    return task.section(':', 1);
}

inline KeltoItemHints hintsOf(const QString &task)
{
    return { moduleOf(task), modeOf(task) };
}

/// What a form holds when a task is chosen, with some values that differ.
inline Changes inputOf(const QString &task, const Changes &changes)
{
    Changes input;
    const KeltoItemHints hints = hintsOf(task);
    const QStringList keys = moduleOf(task).inner_mode_keylist_of(modeOf(task));
    for (const QString &key : keys)
        input.insert(key, hints.defaultValue(key));
    for (auto it = changes.cbegin(); it != changes.cend(); ++it)
        input.insert(it.key(), it.value());
    return input;
}

inline Outcome<Computation> outcomeOf(const QString &task, const Changes &changes)
{
    Values values;
    const Changes input = inputOf(task, changes);
    for (auto it = input.cbegin(); it != input.cend(); ++it)
        values.append({ "Attribute/" + it.key(), it.value() });
    return Calculator::calculate(moduleOf(task), modeOf(task), values);
}

inline QVector<double> numbersOf(const QVariant &value)
{
    const QVariantList parts
        = value.type() == QVariant::StringList ? value.toList() : QVariantList { value };
    QVector<double> numbers;
    for (const QVariant &part : parts)
        numbers.append(part.toDouble());
    return numbers;
}

/// Numbers by the key of their parameter or result, in the units of the entries.
using NumbersByKey = QMap<QString, QVector<double>>;

inline NumbersByKey resultsOf(const Outcome<Computation> &outcome)
{
    NumbersByKey results;
    for (const auto &pair : outcome.result.results) {
        if (pair.first.startsWith("Attribute/"))
            results.insert(pair.first.section('/', 1), numbersOf(pair.second));
    }
    return results;
}

/// Relative to the greater of @p expected and @p scale, the size of what else there is around.
inline bool isClose(double actual, double expected, double scale = 0)
{
    return std::abs(actual - expected) <= 1e-9 * std::max(std::abs(expected), scale);
}

#endif
