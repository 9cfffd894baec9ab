// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef OUTPUTFILE_H
#define OUTPUTFILE_H

#include <QByteArray>
#include <QString>

/// Gives the file at @p path the content @p bytes, as a whole or not at all, and makes missing
/// directories. A file that has this content already is left alone, so that a build does not take
/// it for changed. Returns what went wrong as a sentence that names the file; empty when nothing
/// did.
QString writeOutputFile(const QString &path, const QByteArray &bytes);

#endif
