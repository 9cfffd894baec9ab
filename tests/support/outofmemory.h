// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef OUTOFMEMORY_H
#define OUTOFMEMORY_H

#include <QtGlobal>

// A program that includes this goes on when it asks for more memory than there is, as it does
// without the address sanitizer. To be included once in each program.
#if defined(__SANITIZE_ADDRESS__)
#define KELTO_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KELTO_ADDRESS_SANITIZER
#endif
#endif

#ifdef KELTO_ADDRESS_SANITIZER
extern "C" Q_DECL_EXPORT const char *__asan_default_options();
extern "C" const char *__asan_default_options()
{
    return "allocator_may_return_null=1";
}
#endif

#endif
