// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef DEEPINPUTS_H
#define DEEPINPUTS_H

#include <QByteArray>
#include <QVector>

struct DeepInput
{
    const char *name;
    QByteArray bytes;
};

/// INI files with values that nest so deep that a reader which follows them call by call comes to
/// the end of its stack. They are made here, because each would take up to a megabyte in the corpus.
QVector<DeepInput> deepInputs();

#endif
