// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Measures the library against plain scans of the same data, for growing inputs.

#include "registrybenchmarks.h"
#include "suite.h"

int main(int argc, char **argv)
{
    Suite suite;
    addRegistryBenchmarks(suite);
    return suite.run(argc, argv);
}
