// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MODULES_H
#define MODULES_H

#include <QVector>

class AUTH_INF;

/// The calculation modules of the workbench, with their texts in the language of the program (so
/// the translations have to be installed before).
QVector<AUTH_INF> workbenchModules();

#endif
