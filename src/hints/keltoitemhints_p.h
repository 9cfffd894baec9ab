// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOITEMHINTS_P_H
#define KELTOITEMHINTS_P_H

#include "auth_inf.h"
#include "hints/hintview_p.h"
#include "keltoitemhints.h"

#include <QSharedData>

class KeltoItemHintsData : public QSharedData
{
public:
    /// @param innerMode position of the inner mode, or allModes.
    KeltoItemHintsData(const AUTH_INF &describedItem, int innerMode);

    AUTH_INF item;
    QString context;
    int mode;
    HintView view;
};

#endif
