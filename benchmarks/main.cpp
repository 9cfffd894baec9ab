// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Measures the library against plain scans of the same data, for growing inputs, and against what
// else does the same work.

#include "input.h"
#include "suite.h"

#include <Kelto/VIniSettings>

#include <QApplication>

#include <iostream>

#include <malloc.h>

namespace {

/// Prints how much memory a settings store takes. Prints nothing where the C library does not tell.
void printMemory()
{
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    const auto bytesInUse = [] {
        const struct mallinfo2 info = mallinfo2();
        return double(info.uordblks + info.hblkhd);
    };
    constexpr int keyCount = 100000;
    const double before = bytesInUse();
    const Entries pairs = settingsEntries(keyCount);
    const double withPairs = bytesInUse();
    const VIniSettings store(settingsEntries(keyCount));
    for (const auto &pair : pairs)
        store.value(pair.first);
    std::cout << "A store of " << keyCount << " keys takes "
              << (bytesInUse() - withPairs) / (withPairs - before)
              << " times the memory of its pairs alone (at most 2).\n";
#endif
}

} // namespace

int main(int argc, char **argv)
{
    addRegistryRows();
    addListRows();
    addSettingsRows();
    addFileRows();
    addItemRows();
    addHintRows();
#ifdef KELTO_BENCHMARK_TOOLS
    addLintRows();
#endif
#ifdef KELTO_BENCHMARK_FORMS
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    addFormRows();
#endif
    const int result = runRows(argc, argv);
    printMemory();
    return result;
}
