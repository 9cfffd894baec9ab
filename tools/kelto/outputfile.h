// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef OUTPUTFILE_H
#define OUTPUTFILE_H

#include <QByteArray>
#include <QString>

// Both return what went wrong as a sentence that names the file; empty when nothing did.

/// Gives the file at @p path the content @p bytes, as a whole or not at all. A file that has this
/// content already is left alone, so that a build does not take it for changed. A directory that
/// is missing is a mistake of who named the file, and a link to nothing may lead anywhere.
QString writeOutputFile(const QString &path, const QByteArray &bytes);

/// Makes a directory for many files, and those above it, where they are missing.
QString makeOutputDirectory(const QString &path);

#endif
