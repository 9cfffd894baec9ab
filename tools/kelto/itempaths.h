// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ITEMPATHS_H
#define ITEMPATHS_H

#include <QStringList>

class Console;

/// The module item files at @p paths: a file is itself, a directory all "*.ini" files below it that
/// are like an item, sorted, without hidden ones, and also behind links to directories. Each stands
/// once, as it is spelt first. Notes what is skipped since nothing in it is a part of an item and
/// nobody has named it. Complains about paths that do not exist, directories without an item and
/// those that cannot be read, and tells in @p areAllFound whether there were none. What is there
/// and cannot be read as a file is among the files all the same, so that whoever reads it says why.
QStringList itemFilesAt(const QStringList &paths, Console &console, bool *areAllFound);

/// Why the file at @p path cannot be read, as a sentence; empty when it can. Nothing is created.
QString whyUnreadable(const QString &path);

#endif
