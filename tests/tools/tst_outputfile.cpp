// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// How the command writes a file.

#include "outputfile.h"
#include "support/directorytest.h"
#include "support/testfiles.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTest>

class TestOutputFile : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void writes_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("before");

        QTest::newRow("a new file") << "new.txt" << QByteArray();
        QTest::newRow("in a directory") << "directory/ü.txt" << QByteArray();
        QTest::newRow("a changed file") << "old.txt" << QByteArray("old");
        QTest::newRow("a changed file of equal length") << "old.txt" << QByteArray("New\n");
    }
    void writes()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, before);
        QVERIFY(QDir().mkpath("directory"));
        if (!before.isEmpty())
            QVERIFY(writeFile(path, before));
        QCOMPARE(writeOutputFile(path, "new\n"), QString());
        QCOMPARE(fileContent(path), QByteArray("new\n"));
        QCOMPARE(QFileInfo(path).dir().entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void leavesAnEqualFileAlone()
    {
        QVERIFY(writeFile("same.txt", "same"));
        QFile file("same.txt");
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QDateTime past = QDateTime::fromSecsSinceEpoch(1000000000);
        QVERIFY(file.setFileTime(past, QFileDevice::FileModificationTime));
        file.close();
        QCOMPARE(writeOutputFile("same.txt", "same"), QString());
        QCOMPARE(QFileInfo("same.txt").lastModified(), past);
    }

    void complains_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("expected");

        QTest::newRow("a directory") << "directory"
                                     << "directory: is not a file.";
        QTest::newRow("a device") << "/dev/null"
                                  << "/dev/null: is not a file.";
        QTest::newRow("below a file") << "file/new.txt"
                                      << "file: there is no such directory; make it first.";
        QTest::newRow("in no directory") << "a/b/new.txt"
                                         << "a/b: there is no such directory; make it first.";
        QTest::newRow("a link to nothing")
            << "link"
            << "link: is a link to a file that does not exist; remove it first.";
    }
    void complains()
    {
        QFETCH(QString, path);
        QVERIFY(QDir().mkpath("directory"));
        QVERIFY(writeFile("file", "old"));
        QVERIFY(QFile::link("nothing", "link"));
        QTEST(writeOutputFile(path, "new"), "expected");
        QCOMPARE(fileContent("file"), QByteArray("old"));
        QVERIFY(!QFileInfo::exists("a") && !QFileInfo::exists("nothing"));
    }

    void makesDirectories()
    {
        QCOMPARE(makeOutputDirectory("a/b c"), QString());
        QVERIFY(QFileInfo("a/b c").isDir());
        QCOMPARE(makeOutputDirectory("a/b c"), QString());
        QVERIFY(writeFile("file", "old"));
        QCOMPARE(makeOutputDirectory("file/a"), QString("file/a: this directory cannot be made."));
    }

    void followsALink()
    {
        QVERIFY(writeFile("target.txt", "old"));
        QVERIFY(QFile::link("target.txt", "link.txt"));
        QCOMPARE(writeOutputFile("link.txt", "new"), QString());
        QVERIFY(QFileInfo("link.txt").isSymLink());
        QCOMPARE(fileContent("target.txt"), QByteArray("new"));
    }
};

QTEST_GUILESS_MAIN(TestOutputFile)

#include "tst_outputfile.moc"
