// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// One typed value of a settings store, from its bytes: a fuzzer that had to write them as the
// escapes of a file would get nowhere. The first byte chooses the form and the place of the value.

#include "storeuse.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const bool isTime = data[0] & 1;
    const bool isElement = data[0] & 2;
    QByteArray value = isTime ? "@DateTime(" : "@Variant(";
    for (std::size_t i = 1; i < size; ++i)
        value += "\\x" + QByteArray::number(data[i], 16);
    value += ')';
    if (isElement)
        value.prepend("a, ").append(", b");
    useStore("v=" + value);
    return 0;
}
