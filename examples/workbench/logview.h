// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef LOGVIEW_H
#define LOGVIEW_H

#include <QFileSystemWatcher>
#include <QPlainTextEdit>

/// The log of today, as it grows.
class LogView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit LogView(QWidget *parent = nullptr);

    /// Shows the file at @p path, now and whenever it changes.
    void follow(const QString &path);

private:
    QFileSystemWatcher m_watcher;
};

#endif
