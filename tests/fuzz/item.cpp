// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A module item: what a file describes is read, queried, written as source text and saved.

#include "fuzzing.h"

#include <AUTH_INF>

using Fuzzing::check;

namespace {

void query(const AUTH_INF &item)
{
    const QStringList modes = item.inner_mode_nameList;
    for (const QString &mode : modes) {
        const QStringList keys = item.inner_mode_keylist_of(mode);
        for (const QString &key : keys) {
            check(item.inner_mode_contains(mode, key), "a mode has the keys that it lists");
            check(item.inner_mode_contains(key), "some mode has the key of a mode");
            check(!item.parameter_belonglist(key).isEmpty(), "a key belongs to its mode");
        }
    }
}

/// Writes source text for fewer modes than a file can ask for: a million take their time.
QString codeOf(AUTH_INF item)
{
    item.inner_mode_count = qMin(item.inner_mode_count, 100);
    return item.to_code() + item.to_code(item.name, item.group);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Fuzzing::InputFile file(
        QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    AUTH_INF item;
    item.load_ini(file.path());
    query(item);
    codeOf(item);
    item.save_ini(file.path());

    AUTH_INF saved;
    saved.load_ini(file.freshCopy());
    query(saved);
    codeOf(saved);
    return 0;
}
