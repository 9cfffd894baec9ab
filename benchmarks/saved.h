// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SAVED_H
#define SAVED_H

#include "suite.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

// QSettings keeps what it has read until the file changes, so that every run gets a file that has
// changed.

/// What is saved, and a file of its own for it.
template <typename Content> struct Saved
{
    Content content;
    std::shared_ptr<QTemporaryDir> directory = std::make_shared<QTemporaryDir>();
    qint64 seconds = 1000000000;

    QString path() const { return directory->filePath(QStringLiteral("benchmark.ini")); }
};

constexpr auto removeFile = [](auto &saved) { QFile::remove(saved.path()); };

/// Gives the file a time that it never had, so that it counts as changed.
constexpr auto touchFile = [](auto &saved) {
    QFile file(saved.path());
    file.open(QIODevice::ReadWrite);
    file.setFileTime(QDateTime::fromSecsSinceEpoch(++saved.seconds), QFile::FileModificationTime);
};

#endif
