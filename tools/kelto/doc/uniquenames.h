// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef UNIQUENAMES_H
#define UNIQUENAMES_H

#include <QSet>
#include <QStringList>

/// Names for files and for places in a page: lower-case letters of ASCII, digits and "-", which
/// every file system and every link can hold, and none twice.
class UniqueNames
{
public:
    /// No name will be one of these @p taken ones.
    explicit UniqueNames(const QStringList &taken = {});

    /// A name made from @p text, or from @p otherwise where none of its letters is left.
    QString make(const QString &text, const QString &otherwise);

private:
    QSet<QString> m_taken;
};

#endif
