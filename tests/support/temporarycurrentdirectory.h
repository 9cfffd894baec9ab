// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TEMPORARYCURRENTDIRECTORY_H
#define TEMPORARYCURRENTDIRECTORY_H

#include <QDir>
#include <QTemporaryDir>

/// A fresh directory that is the current one for the life of this object and is removed after it.
class TemporaryCurrentDirectory
{
public:
    TemporaryCurrentDirectory()
        : m_previous(QDir::currentPath())
        , m_usable(m_directory.isValid() && QDir::setCurrent(m_directory.path()))
    {
    }
    ~TemporaryCurrentDirectory() { QDir::setCurrent(m_previous); }
    Q_DISABLE_COPY(TemporaryCurrentDirectory)

    bool isUsable() const { return m_usable; }

    /// The current path as Qt gives it: unlike the temporary one, it has no links in it.
    QString path() const { return QDir::currentPath(); }

private:
    QTemporaryDir m_directory;
    QString m_previous;
    bool m_usable;
};

#endif
