// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "support/directorytest.h"

#include <QTest>

void DirectoryTest::init()
{
    m_directory.reset(new TemporaryCurrentDirectory);
    QVERIFY(m_directory->isUsable());
}

void DirectoryTest::cleanup()
{
    m_directory.reset();
}

void SilentDirectoryTest::init()
{
    DirectoryTest::init();
    m_messages.reset(new Messages);
}

void SilentDirectoryTest::cleanup()
{
    m_messages.reset();
    DirectoryTest::cleanup();
    // What was collected is still there, and a comparison that fails leaves this function.
    QCOMPARE(Messages::collected(), QStringList());
}
