// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Measures the library against plain scans of the same data, for growing inputs, and against what
// else does the same work.

#include "filebenchmarks.h"
#include "itembenchmarks.h"
#include "memory.h"
#include "registrybenchmarks.h"
#include "settingsbenchmarks.h"
#include "suite.h"
#include "valuebenchmarks.h"

#include <iostream>

int main(int argc, char **argv)
{
    const bool isWholeRun = argc == 1;
    Suite suite;
    addRegistryBenchmarks(suite);
    addValueBenchmarks(suite);
    addSettingsBenchmarks(suite);
    addFileBenchmarks(suite);
    addItemBenchmarks(suite);
    const int result = suite.run(argc, argv);
    if (isWholeRun)
        printMemoryTable(std::cout);
    return result;
}
