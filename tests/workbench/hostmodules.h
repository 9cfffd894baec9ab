// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef HOSTMODULES_H
#define HOSTMODULES_H

#include "modules.h"

#include <Kelto/AUTH_INF>

/// The modules that the workbench reads unless it is told otherwise: those of the files beside it.
inline QVector<AUTH_INF> hostModules()
{
    const auto modules = modulesFromFiles(QStringLiteral(WORKBENCH_MODULE_COPIES));
    if (!modules.isValid())
        qFatal("%s", qPrintable(modules.problem));
    return modules.result;
}

#endif
