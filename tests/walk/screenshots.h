// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SCREENSHOTS_H
#define SCREENSHOTS_H

#include <QDir>

class Walker;

/// Compares the pictures of the README with those of the same name that were taken: they must not
/// show what is no longer so. With KELTO_TAKE_REFERENCES it takes over the latter.
void compareScreenshots(const Walker &walker);

#endif
