// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef LARGEINPUTS_H
#define LARGEINPUTS_H

#include <QByteArray>
#include <QVector>

struct LargeInput
{
    const char *name;
    QByteArray bytes;
};

/// INI files that are too large for the corpus: values that nest so deep that a reader which
/// follows them call by call comes to the end of its stack, and long texts with a hostile value
/// inside.
QVector<LargeInput> largeInputs();

#endif
