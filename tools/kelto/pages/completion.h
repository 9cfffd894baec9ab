// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef COMPLETION_H
#define COMPLETION_H

#include <QByteArray>

/// A script that tells bash which words may follow "kelto": commands, options, the words of an
/// option with given ones, and files or directories elsewhere.
QByteArray bashCompletion();

#endif
