// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FILEBENCHMARKS_H
#define FILEBENCHMARKS_H

class Suite;

/// Loading and saving settings.
void addFileBenchmarks(Suite &suite);

#endif
