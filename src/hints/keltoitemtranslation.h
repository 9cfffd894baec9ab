// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOITEMTRANSLATION_H
#define KELTOITEMTRANSLATION_H

#include "kelto_export.h"

#include <QString>

class AUTH_INF;

/**
 * The translation of module items that come from files.
 *
 * All operations are static and keep nothing. Texts are looked up with
 * QCoreApplication::translate(); one without a translation stays as it is.
 */
class KELTO_EXPORT KeltoItemTranslation
{
public:
    /**
     * Fills in every translated field of @p item, and places 7 and 8 of its entries, with the texts
     * that its generated source text would give: the plain name, type, group and mode names, the
     * descriptions, and the entries' own places 7 and 8, in the context contextOf().
     *
     * Descriptions and the places of the entries hold one text each, so that the plain one is gone
     * then: for another language, translate the item as it was loaded.
     *
     * Hints need no call: KeltoItemHints translates them when they are asked for. Null is ignored.
     */
    static void translate(AUTH_INF *item);

    /// The same for a copy.
    static AUTH_INF translated(AUTH_INF item);

    /// The context of the item's texts: AUTH_INF::trObjectName, or "UCal" where it is empty, as in
    /// generated source text.
    static QString contextOf(AUTH_INF item);

    /// One text of a context. An empty text stays empty.
    static QString text(QString context, QString text);
};

#endif
