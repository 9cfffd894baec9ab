// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef HINTPLACES_H
#define HINTPLACES_H

#include "itemfile.h"

#include <KeltoItemHints>

/// Where in a file the part of a hint is that is wrong.
class HintPlaces
{
public:
    explicit HintPlaces(const ItemFile &file)
        : m_file(file)
    {
    }

    IniPosition of(const KeltoItemHints::Problem &problem);

private:
    const char *placeInList(const ItemFileKey &key, const QString &part);
    void addPart(std::string_view spelt);

    const ItemFile &m_file;
    const ItemFileKey *m_list = nullptr; ///< The one whose parts are known.
    QHash<QByteArray, const char *> m_parts;
};

#endif
