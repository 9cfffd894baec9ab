// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "logview.h"

#include <QFile>

LogView::LogView(QWidget *parent)
    : QPlainTextEdit(parent)
{
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &LogView::follow);
}

void LogView::follow(const QString &path)
{
    m_watcher.addPath(path);
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        setPlainText(QString::fromUtf8(file.readAll()));
    moveCursor(QTextCursor::End);
}
