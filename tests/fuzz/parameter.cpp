// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A parameter in the sets form, one text per line.

#include "fuzzing.h"

#include <VParameter>

using Fuzzing::check;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QStringList sets = Fuzzing::lines(data, size);
    const VParameter untouched(1.5, QStringLiteral("name"), QStringLiteral("unit"), QString());
    VParameter parameter = untouched;
    parameter.set(sets);
    check(parameter.value() == untouched.value(), "a value stays");
    const VParameter built(sets);
    if (sets.size() != 9) {
        check(parameter.isEqual(&untouched), "a list of another length changes nothing");
        check(built.name().first.isEmpty(), "a list of another length describes nothing");
        return 0;
    }
    QStringList expected = sets;
    if (expected.at(3) != QLatin1String("true"))
        expected[3] = QStringLiteral("false");
    check(parameter.toSetsForm() == expected, "the texts are taken over");
    check(built.toSetsForm() == expected, "a new parameter takes them over");
    check(parameter.isName(sets.at(1)) && parameter.isName(sets.at(7)), "both names are known");
    return 0;
}
