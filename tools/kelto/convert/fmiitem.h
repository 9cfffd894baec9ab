// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FMIITEM_H
#define FMIITEM_H

#include "convert/fmimodel.h"

#include <AUTH_INF>

/// The module item that the model makes: parameters and inputs as parameters, outputs as results,
/// each kind of simulation as a mode.
AUTH_INF itemOf(const FmiModel &model, QVector<LeftOut> *leftOut);

#endif
