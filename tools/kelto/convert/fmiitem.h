// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FMIITEM_H
#define FMIITEM_H

#include "convert/fmimodel.h"

#include <AUTH_INF>

/// Something of a foreign model that the item does not have, or has in another way.
struct LeftOut
{
    QString what;
    QString why; ///< A sentence.
};

/// The module item that the model makes: parameters and inputs as parameters, outputs as results,
/// each kind of simulation as a mode.
AUTH_INF itemOf(const FmiModel &model, QVector<LeftOut> *leftOut);

#endif
