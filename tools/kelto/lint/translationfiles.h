// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TRANSLATIONFILES_H
#define TRANSLATIONFILES_H

#include "itemfile.h"
#include "translationfile.h"

#include <vector>

/// All that can be read in the directories of @p files, and in "translations" beside or below
/// these.
std::vector<TranslationFile> translationFilesOf(const QVector<ItemFile> &files);

#endif
