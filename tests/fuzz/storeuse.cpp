// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "storeuse.h"

#include <VIniSettings>

using Fuzzing::check;

namespace {

const QString addedKey = QStringLiteral("added");
const QString addedValue = QStringLiteral("by the program");

void lookUpEverything(const VIniSettings &store)
{
    const auto entries = store.data();
    for (const auto &entry : entries) {
        check(store.contains(entry.first), "every key that is listed is there");
        store.value(entry.first).toString();
    }
    const QStringList groups = store.allGroups();
    for (const QString &group : groups) {
        // A key that begins with "/" is in no group that has keys.
        check(group.isEmpty() || !store.allKeys(group).isEmpty(), "a group has keys");
    }
    store.styleSheetFormat();
}

} // namespace

void useStore(const QByteArray &bytes)
{
    Fuzzing::InputFile file(bytes);
    VIniSettings store(file.path());
    lookUpEverything(store);
    store.setValue(addedKey, addedValue);
    store.saveLocal();
    const VIniSettings saved(file.freshCopy());
    lookUpEverything(saved);
    check(saved.value(addedKey) == addedValue || file.bytes() == bytes,
          "a file is saved or left alone");
}
