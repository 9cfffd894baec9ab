// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SCRATCHDIRECTORY_P_H
#define SCRATCHDIRECTORY_P_H

#include <QString>
#include <QTemporaryDir>

/// A new directory for a file with which QSettings works, and for those that it puts beside it. It
/// is removed with this object; what a killed process leaves is known by its lock.
class ScratchDirectory
{
public:
    /// A directory "kelto-save.XXXXXX" in the directory @p place.
    explicit ScratchDirectory(const QString &place);
    ~ScratchDirectory();

    ScratchDirectory(const ScratchDirectory &) = delete;
    ScratchDirectory &operator=(const ScratchDirectory &) = delete;

    /// The path of the file; empty where no directory can be made.
    QString filePath() const;
    /// Removes it before the object ends.
    void remove();

    /// Removes what processes of this user that have been killed left in @p place.
    static void removeAbandoned(const QString &place);

private:
    QTemporaryDir m_directory;
    int m_lock = -1;
};

#endif
