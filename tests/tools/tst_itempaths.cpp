// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Which item files a path stands for, and what is said of those that cannot be read.

#include "itempaths.h"

#include "console.h"
#include "itemlikeness.h"
#include "support/directorytest.h"
#include "support/testfiles.h"

#include <QDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

class TestItemPaths : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void saysWhatMayNotBeRead_data();
    void saysWhatMayNotBeRead();
    void tellsItemsFromOthers_data();
    void tellsItemsFromOthers();
};

namespace {

/// Makes what "KIND PATH [TARGET]" asks for.
bool make(const QString &line)
{
    const QString path = line.section(' ', 1, 1);
    const QByteArray name = QFile::encodeName(path);
    if (!QDir().mkpath(QFileInfo(path).path()))
        return false;
    if (line.startsWith("link"))
        return QFile::link(line.section(' ', 2), path);
    if (line.startsWith("pipe"))
        return mkfifo(name.constData(), 0600) == 0;
    return line.startsWith("directory") ? QDir().mkpath(path) : writeFile(path, "[KeltoItem]\n");
}

/// The files, and behind them what is said when they are looked for and when they are read.
QStringList found(const QStringList &paths)
{
    Console console;
    bool areAllFound = false;
    const QStringList files = itemFilesAt(paths, console, &areAllFound);
    QStringList lines;
    for (const QString &file : files) {
        const QString why = whyUnreadable(file);
        lines.append(why.isEmpty() ? file : why);
    }
    if (areAllFound != console.complaints().isEmpty())
        lines.append("contradiction");
    return lines + console.complaints();
}

/// As the owner of the current directory whom permissions bind: another user for the superuser.
class BoundUser
{
public:
    BoundUser()
        : m_isOther(geteuid() == 0 && chown(".", stranger, stranger) == 0
                    && setresuid(stranger, stranger, 0) == 0)
    {
    }
    ~BoundUser()
    {
        if (m_isOther && setresuid(0, 0, 0) != 0)
            qFatal("The rights are gone.");
    }
    bool isBound() const { return geteuid() != 0; }

private:
    Q_DISABLE_COPY(BoundUser)

    static constexpr uid_t stranger = 65534;
    const bool m_isOther;
};

} // namespace

void TestItemPaths::finds_data()
{
    QTest::addColumn<QStringList>("made");
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<QStringList>("expected");
    using List = QStringList;

    QTest::newRow("files below a directory, sorted")
        << List { "file items/b.ini", "file items/a/c.ini", "file items/B.INI", "file items/d.txt" }
        << List("items") << List { "items/B.INI", "items/a/c.ini", "items/b.ini" };
    QTest::newRow("no hidden ones")
        << List { "file items/.a.ini", "file items/.b/c.ini", "file items/d.ini" } << List("items")
        << List("items/d.ini");
    QTest::newRow("one file by two names")
        << List { "file items/a.ini" } << List { "items/a.ini", "items", "items/../items/a.ini" }
        << List("items/a.ini");
    QTest::newRow("a directory that is called like a file")
        << List { "file items/a.ini/b.ini" } << List("items") << List("items/a.ini/b.ini");
    QTest::newRow("a link to a file") << List { "file a.ini", "link items/b.ini ../a.ini" }
                                      << List("items") << List("items/b.ini");
    QTest::newRow("a link to a directory")
        << List { "file shared/a.ini", "link items/more ../shared" } << List("items")
        << List("items/more/a.ini");
    QTest::newRow("a link that leads back")
        << List { "file items/a/b.ini", "link items/a/up ..", "link items/a/self ." }
        << List("items") << List("items/a/b.ini");
    QTest::newRow("a directory by its own name and by a link")
        << List { "file items/b/a.ini", "link items/a b", "link items/c/d ../b" } << List("items")
        << List("items/b/a.ini");
    QTest::newRow("a link to nothing below a directory")
        << List { "file items/b.ini", "link items/a.ini gone.ini" } << List("items")
        << List { "items/a.ini: is a link to a file that does not exist.", "items/b.ini" };
    QTest::newRow("two links to nothing")
        << List { "link items/a.ini gone", "link items/b.ini gone" } << List("items")
        << List { "items/a.ini: is a link to a file that does not exist.",
                  "items/b.ini: is a link to a file that does not exist." };
    QTest::newRow("a link to nothing") << List("link a.ini gone.ini") << List("a.ini")
                                       << List("a.ini: is a link to a file that does not exist.");
    QTest::newRow("a link to itself")
        << List("link a.ini a.ini") << List("a.ini")
        << List("a.ini: cannot be read: Too many levels of symbolic links.");
    QTest::newRow("a pipe below a directory")
        << List("pipe items/a.ini") << List("items") << List("items/a.ini: is not a regular file.");
    QTest::newRow("links and pipes with other names")
        << List { "pipe items/a", "link items/b gone", "file items/c.ini" } << List("items")
        << List("items/c.ini");
    QTest::newRow("nothing") << List() << List { "gone.ini", "gone/a.ini" }
                             << List { "gone.ini: no such file.", "gone/a.ini: no such file." };
    QTest::newRow("a file as directory")
        << List("file a.ini") << List("a.ini/b.ini") << List("a.ini/b.ini: no such file.");
    QTest::newRow("a directory without files") << List("directory items/a") << List("items")
                                               << List("items: no file below it ends in \".ini\".");
}

void TestItemPaths::finds()
{
    QFETCH(QStringList, made);
    QFETCH(QStringList, paths);
    for (const QString &line : qAsConst(made))
        QVERIFY2(make(line), qPrintable(line));
    QTEST(found(paths), "expected");
}

void TestItemPaths::saysWhatMayNotBeRead_data()
{
    QTest::addColumn<QString>("closed");
    QTest::addColumn<int>("rights");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("expected");
    using List = QStringList;
    const QString why = ": cannot be read: Permission denied.";

    QTest::newRow("a file") << "items/a.ini" << 0 << "items"
                            << List { "items/a.ini" + why, "items/b/c.ini" };
    QTest::newRow("a directory") << "items" << 0 << "items" << List("items" + why);
    QTest::newRow("a directory below another")
        << "items/b" << 0 << "items" << List { "items/a.ini", "items/b" + why };
    QTest::newRow("a directory that can be listed and not searched")
        << "items/b" << 0400 << "items" << List { "items/a.ini", "items/b" + why };
    QTest::newRow("a directory that can be searched and not listed")
        << "items/b" << 0100 << "items" << List { "items/a.ini", "items/b" + why };
    QTest::newRow("a file in a directory that can be searched")
        << "items/b" << 0100 << "items/b/c.ini" << List("items/b/c.ini");
    QTest::newRow("a file in a directory")
        << "items" << 0 << "items/a.ini" << List("items/a.ini" + why);
}

void TestItemPaths::saysWhatMayNotBeRead()
{
    QFETCH(QString, closed);
    QFETCH(int, rights);
    QFETCH(QString, path);
    const BoundUser user;
    QVERIFY(user.isBound());
    for (const char *file : { "file items/a.ini", "file items/b/c.ini" })
        QVERIFY(make(file));
    const QByteArray name = QFile::encodeName(closed);
    QCOMPARE(chmod(name.constData(), mode_t(rights)), 0);
    const QStringList lines = found({ path });
    QCOMPARE(chmod(name.constData(), 0700), 0);
    QTEST(lines, "expected");
}

void TestItemPaths::tellsItemsFromOthers_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isLike");

    const auto row = [](const char *name, const char *bytes, bool isLike) {
        QTest::newRow(name) << QByteArray(bytes) << isLike;
    };
    const auto inUtf16 = [](const QString &text) {
        return QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
    };
    row("an item", "[KeltoItem]\nname=Beam\n", true);
    row("a misspelt section", "[keltoItem]\n", true);
    row("a section of items alone", "[Belong]\nLength=Bending\n", true);
    row("a section behind others", "[Window]\nwidth=5\n\n[ExtraKey]\n", true);
    row("a field in a wrong section", "[Module]\ninner_mode_count=1\n", true);
    row("fields without a section", "name=Beam\n", true);
    row("nothing", "", true);
    row("nothing but comments", "; to be written\n", true);
    row("stored values", "[Attribute]\nLength=5\n\n[Unit]\nLength=mm\n", false);
    row("settings of QSettings", "[General]\nname=Beam\ntype=5\n", false);
    row("sections of others", "[Group]\nname=all\n\n[Units]\nLength=mm\n", false);
    row("a style", "[ID]\nQtClassName=QPushButton\n", false);
    QTest::newRow("an item in UTF-16") << inUtf16("\uFEFF[KeltoItem]\n") << true;
    QTest::newRow("another file in UTF-16") << inUtf16("\uFEFF[Window]\nname=5\n") << false;
    QTest::newRow("without a mark") << inUtf16("[Window]\nname=5\n") << false;
}

void TestItemPaths::tellsItemsFromOthers()
{
    QFETCH(QByteArray, bytes);
    QTEST(isLikeItem(bytes), "isLike");
}

QTEST_GUILESS_MAIN(TestItemPaths)

#include "tst_itempaths.moc"
