// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef BENCHMARKFILE_H
#define BENCHMARKFILE_H

#include <QDateTime>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <memory>

/// A file of its own in a directory of its own. It does not exist at first.
class BenchmarkFile
{
public:
    QString path() const { return m_directory->filePath(QStringLiteral("benchmark.ini")); }

    void remove() { QFile::remove(path()); }

    /// Gives the file a time that it never had, so that it counts as changed.
    void touch()
    {
        QFile file(path());
        file.open(QIODevice::ReadWrite);
        file.setFileTime(QDateTime::fromSecsSinceEpoch(++m_seconds), QFile::FileModificationTime);
    }

private:
    std::shared_ptr<QTemporaryDir> m_directory = std::make_shared<QTemporaryDir>();
    qint64 m_seconds = 1000000000;
};

#endif
