// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef REGISTRYCOPIES_H
#define REGISTRYCOPIES_H

#include <Kelto/AUTH_SET>

#include <QTest>

#include <functional>

using Change = std::function<void(AUTH_SET &)>;
Q_DECLARE_METATYPE(Change)

/// Copies @p original, assigns it to @p assigned and changes one after the other. Only the registry
/// that is changed may differ afterwards in what @p state returns.
template <typename State>
void changeOneAfterTheOther(AUTH_SET original, AUTH_SET assigned, State state, const Change &change)
{
    const auto before = state(original);
    const AUTH_SET copy(original);
    assigned = original;
    QCOMPARE(state(copy), before);
    QCOMPARE(state(assigned), before);

    change(original);
    const auto after = state(original);
    QVERIFY(after != before);
    QCOMPARE(state(copy), before);
    QCOMPARE(state(assigned), before);

    change(assigned);
    QCOMPARE(state(assigned), after);
    QCOMPARE(state(copy), before);
    QCOMPARE(state(original), after);
}

#endif
