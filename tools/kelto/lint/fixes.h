// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FIXES_H
#define FIXES_H

#include "lint/rules.h"

class LintConfig;

/// A file after all was fixed that has one right answer.
struct FixedFile
{
    QByteArray bytes;
    Findings fixed; ///< What was wrong.
};

/// What is to become of @p file, which is left as it is. Rules that are switched off fix nothing.
FixedFile fixedFile(const ItemFile &file, const LintConfig &config);

#endif
