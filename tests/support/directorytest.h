// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef DIRECTORYTEST_H
#define DIRECTORYTEST_H

#include "support/messages.h"
#include "support/temporarycurrentdirectory.h"

#include <QObject>
#include <QScopedPointer>

/// For tests that leave files behind: each row runs in a directory of its own, which is the current
/// one. The rows are made before, where the program was started.
class DirectoryTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    /// An init() that calls this one has to return when this has failed: it would go on in another
    /// directory.
    virtual void init();
    virtual void cleanup();

protected:
    QScopedPointer<TemporaryCurrentDirectory> m_directory;
};

/// The same for tests during which nothing may go to Qt's message handler.
class SilentDirectoryTest : public DirectoryTest
{
    Q_OBJECT

protected Q_SLOTS:
    void init() override;
    void cleanup() override;

private:
    QScopedPointer<Messages> m_messages;
};

#endif
