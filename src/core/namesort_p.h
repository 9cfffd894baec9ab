// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef NAMESORT_P_H
#define NAMESORT_P_H

#include <QString>
#include <QVector>

#include <algorithm>
#include <numeric>
#include <vector>

/**
 * @p list sorted by the name that @p nameOf gives for each element, in the order of the characters'
 * codes, so that capital letters come first.
 *
 * Where several elements have one name, all their places are taken by copies of the first of them.
 */
template <typename Element, typename NameOf>
QVector<Element> sortedByFirstBearer(const QVector<Element> &list, NameOf nameOf)
{
    std::vector<QString> names;
    names.reserve(static_cast<std::size_t>(list.size()));
    for (const Element &element : list)
        names.push_back(nameOf(element));

    std::vector<std::size_t> order(names.size());
    std::iota(order.begin(), order.end(), 0U);
    std::stable_sort(order.begin(), order.end(),
                     [&names](std::size_t a, std::size_t b) { return names[a] < names[b]; });

    QVector<Element> sorted;
    sorted.reserve(list.size());
    std::size_t firstBearer = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (i == 0 || names[order[i]] != names[firstBearer])
            firstBearer = order[i];
        sorted.append(list.at(static_cast<int>(firstBearer)));
    }
    return sorted;
}

#endif
