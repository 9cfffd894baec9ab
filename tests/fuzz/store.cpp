// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A settings store, from any bytes of a file.

#include "storeuse.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    useStore(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    return 0;
}
