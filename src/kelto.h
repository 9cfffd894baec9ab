// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTO_H
#define KELTO_H

#include "auth_inf.h"
#include "auth_set.h"
#include "kelto_version.h"
#include "keltoitemfinding.h"
#include "keltoitemhints.h"
#include "keltoitemparametertransform.h"
#include "keltoitemparameterverify.h"
#include "keltoitemtranslation.h"
#include "keltoparameterentry.h"
#include "utaskselectdialog.h"
#include "vdataitem.h"
#include "vinisettings.h"
#include "vparameter.h"

#endif
