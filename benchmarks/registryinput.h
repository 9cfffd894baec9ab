// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef REGISTRYINPUT_H
#define REGISTRYINPUT_H

#include <Kelto/AUTH_INF>

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

#include <string>
#include <vector>

/// The items of a registry, and beside them what any registry has to answer about them: all names
/// are different, so that every answer is known from how the items were made.
struct RegistryInput
{
    struct Mode
    {
        int module;
        QPair<QString, QString> names;
        QString description;
    };
    struct Group
    {
        QPair<QString, QString> names;
        QVector<Mode> modes;
    };

    QString application = QStringLiteral("Application");
    QVector<AUTH_INF> items;
    QVector<Group> groups;

    /// The standard names of all modes, in the order of the groups.
    QVector<QPair<QString, QString>> modeList;
    /// The plain or the translated standard name of each mode, by turns.
    QStringList codes;
};

/// A way to make an input of any size.
struct RegistryShape
{
    std::string name;
    RegistryInput (*make)(int size);
};

/// Modules in many exclusive groups, modules in one, and one module with many inner modes.
const std::vector<RegistryShape> &registryShapes();

#endif
