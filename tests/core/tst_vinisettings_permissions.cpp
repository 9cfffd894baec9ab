// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Files and directories that may not be read or written. Permissions do not bind the administrator,
// so another process, which gives up such rights first, does what is tested here.

#include <Kelto/VIniSettings>

#include "support/directorytest.h"
#include "support/secondprocess.h"
#include "support/settingsjson.h"
#include "support/testfiles.h"

#include <QTest>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

const QFile::Permissions readable = QFile::ReadOwner | QFile::ReadOther;
const QFile::Permissions writable = QFile::WriteOwner | QFile::WriteOther;
const QFile::Permissions searchable = QFile::ExeOwner | QFile::ExeOther;
const QFile::Permissions open = readable | writable | searchable;

QByteArray stored()
{
    return "[a]\nb=1\n";
}

QByteArray changed()
{
    return "[a]\nb=1\nc=2\n";
}

QStringList arguments(const QStringList &others)
{
#ifdef Q_OS_UNIX
    if (geteuid() == 0)
        return QStringList { "--as-user", "65534" } + others;
#endif
    return others;
}

} // namespace

Q_DECLARE_METATYPE(QFile::Permissions)

class TestVIniSettingsPermissions : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() override;
    void cleanup() override;
    void readsAndSavesWhatItMay_data();
    void readsAndSavesWhatItMay();
    void savesThroughLinksWhereItMay_data();
    void savesThroughLinksWhereItMay();
};

void TestVIniSettingsPermissions::initTestCase()
{
#ifndef Q_OS_UNIX
    QSKIP("Permissions of this system say nothing about what a process may do.");
#endif
}

void TestVIniSettingsPermissions::init()
{
    DirectoryTest::init();
    if (QTest::currentTestFailed())
        return;
    QVERIFY(QFile::setPermissions(m_directory->path(), open));
    QVERIFY(QDir().mkdir("here"));
}

void TestVIniSettingsPermissions::cleanup()
{
    QFile::setPermissions("here", open);
    QFile::setPermissions("there", open);
    DirectoryTest::cleanup();
}

void TestVIniSettingsPermissions::readsAndSavesWhatItMay_data()
{
    QTest::addColumn<QFile::Permissions>("file");
    QTest::addColumn<QFile::Permissions>("directory");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<bool>("isBound");
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QStringList>("files");

    const QFile::Permissions closed;
    const QByteArray none;
    const QByteArray broken = "junk\n" + stored();
    const Entries old { { "a/b", "1" } };
    const Entries saved { { "a/b", "1" }, { "a/c", "2" } };
    const QStringList one { "f.ini" };
    QTest::newRow("everything is allowed")
        << (readable | writable) << open << stored() << true << saved << changed() << one;
    QTest::newRow("a broken file, everything is allowed")
        << (readable | writable) << open << broken << true << saved << changed()
        << QStringList { "f.ini", "f.ini.bak" };
    QTest::newRow("a file that may only be read")
        << readable << open << stored() << true << old << stored() << one;
    QTest::newRow("a broken file that may only be read is not copied either")
        << readable << open << broken << true << old << broken << one;
    QTest::newRow("a file that may only be written")
        << writable << open << stored() << true << Entries() << stored() << one;
    QTest::newRow("a file that may not be touched")
        << closed << open << stored() << true << Entries() << stored() << one;
    QTest::newRow("a directory that may not be written")
        << (readable | writable) << (readable | searchable) << stored() << true << old << stored()
        << one;
    QTest::newRow("a broken file in a directory that may not be written")
        << (readable | writable) << (readable | searchable) << broken << true << old << broken
        << one;
    QTest::newRow("a directory that may not be searched")
        << (readable | writable) << readable << stored() << false << Entries() << stored() << one;
    QTest::newRow("no file, in a directory that may not be written")
        << closed << (readable | searchable) << none << false << Entries() << none << QStringList();
    QTest::newRow("no file, everything is allowed")
        << closed << open << none << true << Entries { { "a/c", "2" } } << QByteArray("[a]\nc=2\n")
        << one;
}

void TestVIniSettingsPermissions::readsAndSavesWhatItMay()
{
    QFETCH(QFile::Permissions, file);
    QFETCH(QFile::Permissions, directory);
    QFETCH(QByteArray, before);
    QFETCH(bool, isBound);
    QFETCH(Entries, entries);
    if (!before.isEmpty()) {
        QVERIFY(writeFile("here/f.ini", before));
        QVERIFY(QFile::setPermissions("here/f.ini", file));
    }
    QVERIFY(QFile::setPermissions("here", directory));

    const QVector<Reading> readings
        = readInSecondProcess(arguments({ "--set", "a/c=2", "here/f.ini" }));
    QVERIFY(QFile::setPermissions("here", open));
    QCOMPARE(readings.size(), 1);
    const Reading &reading = readings.constFirst();
    QCOMPARE(reading.messages, QStringList());
    QCOMPARE(reading.path, isBound ? QString("here/f.ini") : QString());
    QCOMPARE(reading.entries, described(entries));
    QTEST(QDir("here").entryList(QDir::Files | QDir::Hidden, QDir::Name), "files");
    if (!before.isEmpty()) {
        QCOMPARE(QFile::permissions("here/f.ini") & (readable | writable), file);
        QVERIFY(QFile::setPermissions("here/f.ini", readable));
    }
    QTEST(fileContent("here/f.ini"), "after");
    const QByteArray copy = fileContent("here/f.ini.bak");
    QVERIFY2(copy.isNull() || copy == before, copy.constData());
}

void TestVIniSettingsPermissions::savesThroughLinksWhereItMay_data()
{
    QTest::addColumn<QFile::Permissions>("linkDirectory");
    QTest::addColumn<QFile::Permissions>("targetDirectory");
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<QByteArray>("after");
    const Entries old { { "a/b", "1" } };
    const Entries saved { { "a/b", "1" }, { "a/c", "2" } };
    QTest::newRow("everything is allowed") << open << open << saved << changed();
    QTest::newRow("the target's directory may not be written")
        << open << (readable | searchable) << old << stored();
    QTest::newRow("the link's directory may not be written")
        << (readable | searchable) << open << old << stored();
}

void TestVIniSettingsPermissions::savesThroughLinksWhereItMay()
{
    QFETCH(QFile::Permissions, linkDirectory);
    QFETCH(QFile::Permissions, targetDirectory);
    QVERIFY(QDir().mkdir("there"));
    QVERIFY(writeFile("there/f.ini", stored()));
    QVERIFY(QFile::setPermissions("there/f.ini", readable | writable));
    QVERIFY(QFile::link(QFileInfo("there/f.ini").absoluteFilePath(), "here/f.ini"));
    QVERIFY(QFile::setPermissions("here", linkDirectory));
    QVERIFY(QFile::setPermissions("there", targetDirectory));

    const QVector<Reading> readings
        = readInSecondProcess(arguments({ "--set", "a/c=2", "here/f.ini" }));
    QVERIFY(QFile::setPermissions("here", open));
    QVERIFY(QFile::setPermissions("there", open));
    QCOMPARE(readings.size(), 1);
    QCOMPARE(readings.constFirst().messages, QStringList());
    QFETCH(Entries, entries);
    QCOMPARE(readings.constFirst().entries, described(entries));
    QVERIFY(QFileInfo("here/f.ini").isSymLink());
    QTEST(fileContent("there/f.ini"), "after");
    QCOMPARE(QDir("here").entryList(QDir::Files | QDir::Hidden), QStringList { "f.ini" });
    QCOMPARE(QDir("there").entryList(QDir::Files | QDir::Hidden), QStringList { "f.ini" });
}

QTEST_GUILESS_MAIN(TestVIniSettingsPermissions)
#include "tst_vinisettings_permissions.moc"
