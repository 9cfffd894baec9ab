// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MODULETEXTS_H
#define MODULETEXTS_H

#include <QCoreApplication>

class AUTH_INF;

/// The translation context of the modules: the name that their files hold as "Tr_ObjectName", and
/// the class whose tr() the source text made from the files calls.
class ModuleTexts
{
    Q_DECLARE_TR_FUNCTIONS(ModuleTexts)
};

/// Fills in everything of a module that is shown to the user in the language of the program: the
/// descriptions and the "_tr" form of every name, but no units. The texts are looked up in the
/// translation context AUTH_INF::trObjectName; one without a translation stays as it is.
void translateTexts(AUTH_INF &module);

#endif
