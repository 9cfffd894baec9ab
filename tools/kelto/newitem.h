// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef NEWITEM_H
#define NEWITEM_H

#include <QByteArray>
#include <QString>

struct NewItem
{
    QString name;
    QString group;
    bool isExclusive = true;
};

/// What is wrong with the name of a module or a group, as a sentence; empty when nothing is.
QString complaintOnName(const QString &name);

/// A name for the file of a module: small letters, digits and "-".
QString fileNameFor(const QString &moduleName);

/// The name of a function, which also source text can hold, for a module of any name.
QString functionNameFor(const QString &moduleName);

/// A complete item file that explains itself in comments, to be changed by its author.
QByteArray newItemText(const NewItem &item);

#endif
