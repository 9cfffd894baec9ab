// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Files that QSettings cannot take over whole. Whatever their bytes are: nothing crashes, and what
// was on disk is still there afterwards, in place or in a copy beside the file.

#include <Kelto/VIniSettings>

#include "support/directorytest.h"
#include "support/outofmemory.h"
#include "support/randomitems.h"
#include "support/secondprocess.h"
#include "support/settingsjson.h"
#include "support/testfiles.h"

#include <QLockFile>
#include <QPoint>
#include <QRect>
#include <QRegularExpression>
#include <QSettings>
#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

void setAndSave(const QString &path, const QString &value)
{
    VIniSettings store(path);
    store.setValue("zz/new", value);
    store.saveLocal();
}

/// The values of a file with the type that they have for a process that did not write it; null
/// where there is none.
QVariantMap valuesIn(const QByteArray &bytes)
{
    // A name that is new to this process: QSettings remembers files.
    static int number = 0;
    const QString name = labelled("fresh", ++number);
    if (!writeFile(name, bytes))
        QTest::qFail("the file cannot be written", __FILE__, __LINE__);
    QVariantMap values;
    {
        QSettings settings(name, QSettings::IniFormat);
        settings.setIniCodec("utf-8");
        const QStringList keys = settings.allKeys();
        for (const QString &key : keys) {
            if (!key.isEmpty())
                values.insert(key, settings.value(key));
        }
    }
    QFile::remove(name);
    return values;
}

/// What a value says. A list of texts may have come back as a list of values that are texts.
QString saidBy(const QVariant &value)
{
    return described(value.userType() == QMetaType::QVariantList ? value.toStringList() : value);
}

/// The words "kq1z", "kq2z" and so on that are in @p bytes.
QStringList marksIn(const QByteArray &bytes)
{
    static const QRegularExpression mark("kq\\d+z");
    QStringList marks;
    auto found = mark.globalMatch(QString::fromLatin1(bytes.constData(), bytes.size()));
    while (found.hasNext())
        marks.append(found.next().captured());
    return marks;
}

/// What in a file means something to QSettings.
QByteArray pieceOfSyntax(Dice *dice)
{
    static const QVector<QByteArray> pieces {
        "\n",          "\n",      "\n",          "\n",         "=",    "=",    "=",
        "[",           "]",       "[General]",   "[%General]", ";",    "#",    "\"",
        "\"",          "\\",      "\\x",         "\\0",        "\\n",  "\\\n", ",",
        ", ",          " ",       "\t",          "\r\n",       "\r",   "%",    "%20",
        "%U4E",        "%2F",     "/",           "\\\\",       "@",    "@@",   "@Invalid()",
        "@ByteArray(", ")",       "@Point(1 2)", "值",         "\xc3", "\xff", "\xf0\x9f\x98\x80",
        "=a\n",        "=b, c\n", "[s]\n"
    };
    return pieces.at(dice->between(0, pieces.size() - 1));
}

QByteArray anyCharacter(Dice *dice)
{
    return QByteArray(1, char(dice->between(0, 127)));
}

/// Some values that are made of these, with a mark around any of them. Of such files, QSettings
/// takes over a fair part.
QByteArray valuesOf(QByteArray (*piece)(Dice *dice), Dice *dice)
{
    QByteArray bytes;
    int mark = 0;
    const auto nextMark = [&mark] { return QByteArray("kq" + QByteArray::number(++mark) + 'z'); };
    for (int i = dice->between(1, 3); i > 0; --i) {
        bytes += "key" + QByteArray::number(i) + '=' + nextMark();
        for (int j = dice->between(0, 3); j > 0; --j)
            bytes += piece(dice) + nextMark();
        bytes += '\n';
    }
    return bytes;
}

/// A file made of pieces of syntax, with a mark between any two.
QByteArray hostileBytes(Dice *dice)
{
    if (dice->chance(50))
        return valuesOf(pieceOfSyntax, dice);
    QByteArray bytes = dice->chance(5) ? "\xef\xbb\xbf" : "";
    for (int i = dice->between(0, 25); i > 0; --i) {
        bytes += pieceOfSyntax(dice);
        if (dice->chance(5))
            bytes += '\0';
        if (dice->chance(70))
            bytes += "kq" + QByteArray::number(i) + "z";
    }
    return bytes;
}

/// A proper file in which a few bytes have changed, or of which the end is missing.
QByteArray damagedBytes(Dice *dice)
{
    QByteArray bytes = "[General]\nkq1z=1\n\n[kq2z]\nkq3z=\"kq4z, kq5z\"\nkq6z=kq7z, kq8z\n"
                       "kq9z\\kq10z=@ByteArray(kq11z\\0)\n\n[%U503C]\n%U540D=kq12z \xe5\x80\xbc\n";
    for (int i = dice->between(0, 4); i > 0; --i)
        bytes[dice->between(0, bytes.size() - 1)] = char(dice->between(0, 255));
    if (dice->chance(40))
        bytes.truncate(dice->between(0, bytes.size()));
    return bytes;
}

QByteArray anyBytes(Dice *dice)
{
    if (dice->chance(50))
        return valuesOf(anyCharacter, dice);
    QByteArray bytes;
    for (int i = dice->between(0, 300); i > 0; --i)
        bytes += char(dice->between(0, 255));
    return bytes;
}

/// Which mark or value of a file is no longer in it, now that its bytes are others; empty when
/// everything is there.
QString lostIn(const QByteArray &before, const QByteArray &now)
{
    const QStringList marks = marksIn(before);
    for (const QString &mark : marks) {
        if (!now.contains(mark.toLatin1()))
            return mark;
    }
    const QVariantMap values = valuesIn(before);
    const QVariantMap valuesNow = valuesIn(now);
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        if (value.key() != "zz/new"
            && saidBy(valuesNow.value(value.key())) != saidBy(value.value()))
            return value.key() + ": " + saidBy(value.value());
    }
    return QString();
}

} // namespace

using BytesMaker = QByteArray (*)(Dice *dice);
Q_DECLARE_METATYPE(BytesMaker)

class TestVIniSettingsBadFiles : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void keepsACopy_data();
    void keepsACopy();
    void keepsNoCopyOfProperFiles_data();
    void keepsNoCopyOfProperFiles();
    void keepsNoCopyOfAKeyWithoutAName();
    void keepsEarlierCopies();
    void keepsOneCopyOfTheSame();
    void leavesAloneWhatItCannotCopy();
    void copiesOnlyBeforeItWrites();
    void keepsTheCopyOfAFileThatOthersBroke();
    void standsValuesOfSenselessSize_data();
    void standsValuesOfSenselessSize();
    void standsValuesOfSenselessSizeInLargeFiles();
    void keepsACopyOfValuesThatNobodyKnows_data();
    void keepsACopyOfValuesThatNobodyKnows();
    void standsListsInLists_data();
    void standsListsInLists();
    void doesNotWaitForAPipe();
    void doesNotWaitForALock_data();
    void doesNotWaitForALock();
    void savesWhenAnAbandonedLockIsLeft();
    void losesNothingOfHostileBytes_data();
    void losesNothingOfHostileBytes();
};

void TestVIniSettingsBadFiles::keepsACopy_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Entries>("loaded");
    const auto row = [](const char *name, const QByteArray &bytes, const Entries &loaded) {
        QTest::newRow(name) << bytes << loaded;
    };
    const Entries b { { "a/b", "1" } };
    row("a line without an equals sign", "[a]\njunk\nb=1\n", b);
    row("a line without an equals sign before any group", "junk\n[a]\nb=1\n", b);
    row("a line without an equals sign at the end", "[a]\nb=1\njunk", b);
    row("a file that is text", "Dear reader,\n\nthis is a letter.\n", {});
    row("a group that is not closed", "[a\nb=1\n", b);
    row("a group that is not closed at the end", "[a]\nb=1\n[c", b);
    row("text behind a group", "[a] text\nb=1\n", b);
    row("a key behind a group", "[a] c=2\nb=1\n", b);
    row("a comment", "; kept for the user\n[a]\nb=1\n", b);
    row("a comment at the end", "[a]\nb=1\n;", b);
    row("text behind a semicolon", "[a]\nb=1;2\n", b);
    row("text behind a semicolon in a key", "[a]\nc;d=2\nb=1\n", b);
    row("text behind a semicolon in a group", "[a]\nb=1\n[c;d]\ne=2\n",
        { { "a/b", "1" }, { "c/e", "2" } });
    row("a group without keys", "[a]\nb=1\n[empty]\n", b);
    row("a group without keys between others", "[empty]\n[a]\nb=1\n", b);
    row("two values for a key", "[a]\nb=0\nb=1\n", b);
    row("two values for a key that is written in two ways", "a\\b=0\n[a]\nb=1\n", b);
    row("two values for a key with an escape and without", "[a]\nb=0\n%62=1\n", b);
    row("two values for a key with a wide escape and without", "[a]\nb=0\n%U0062=1\n", b);
    row("two values for a key with a lower-case escape", "[a]\n%U503C=0\n%U503c=1\n",
        { { "a/值", "1" } });
    row("two values for a key with and without the header for no group", "b=0\n[General]\nb=1\n",
        { { "b", "1" } });
    row("two values for a key behind that header in two cases", "[general]\nb=0\n[General]\nb=1\n",
        { { "b", "1" } });
    row("two values for a key behind a header with spaces", "[ a ]\nb=0\n[a]\nb=1\n", b);
    row("a path with backslashes", "[a]\nb=C:\\quick\\path\n", { { "a/b", "C:uickath" } });
    row("an escape that is not finished", "[a]\nb=1\\xg\n", { { "a/b", "1g" } });
    row("an escape for more than a character", "[a]\nb=\\x100411\n", { { "a/b", "\u0411" } });
    row("a backslash at the end", "[a]\nb=1\\", b);
    row("a backslash in front of the equals sign", "[a]\nc\\=d=e\nb=1\n",
        { { "a/b", "1" }, { "a/c/=d", "e" } });
    row("a quote that is not closed", "[a]\nb=\"1\n", { { "a/b", "1\n" } });
    row("a quote that swallows the next key", "[a]\nb=5\" pipe\nc=6\" pipe\n",
        { { "a/b", "5 pipe\nc=6pipe" } });
    row("quotes in the text", "[a]\nb=say \"hi\"\n", { { "a/b", "say hi" } });
    row("text behind a quote", "[a]\nb=\"1\"2\n", { { "a/b", "12" } });
    row("a quote at the end of a text", "[a]\nb=5\"\n", { { "a/b", "5\n" } });
    row("a quote behind an escape", "[a]\nb=\\t\"1\"\n", { { "a/b", "\t1" } });
    row("a quote in a key", "[a]\n\"c\"=2\nb=1\n", { { "a/\"c\"", "2" }, { "a/b", "1" } });
    row("bytes that are not UTF-8", "[a]\nb=1\nc=\xe4\xf6\n",
        { { "a/b", "1" }, { "a/c", "\ufffd\ufffd" } });
    row("UTF-8 that is cut off", "[a]\nb=1\nc=\xe5\x80",
        { { "a/b", "1" }, { "a/c", "\ufffd\ufffd" } });
    row("characters of two units", "[a]\nb=\xf0\x9f\x98\x80\n",
        { { "a/b", QString::fromUtf8("\xf0\x9f\x98\x80") } });
    row("escaped characters of two units", "[a]\nb=\\xd83d\\xde00\n",
        { { "a/b", QString::fromUtf8("\xf0\x9f\x98\x80") } });
    row("UTF-16", QByteArray("\xff\xfe[\0a\0]\0\n\0b\0=\0", 14),
        { { QString("%1b%1").arg(QChar(0)), QString(QChar(0)) } });
    row("zero bytes only", QByteArray(20, '\0'), {});
    row("a point without numbers", "[a]\nb=1\nc=@Point(x y)\n",
        { { "a/b", "1" }, { "a/c", QPoint() } });
    row("a rectangle without numbers", "[a]\nb=1\nc=@Rect(1 2 x 4)\n",
        { { "a/b", "1" }, { "a/c", QRect(1, 2, 0, 4) } });
    row("a size without numbers", "[a]\nb=1\nc=@Size(3 4.5)\n",
        { { "a/b", "1" }, { "a/c", QSize(3, 0) } });
    row("bytes that are none", "[a]\nb=@ByteArray(值)\n", { { "a/b", QByteArray("?") } });
    row("a group with a slash in front", "[a]\nb=1\n[/c]\nd=2\n",
        { { "/c/d", {} }, { "a/b", "1" } });
    row("a key that would be written as a broken line", "[a]\nb=1\nc%2F=2\n",
        { { "a/b", "1" }, { "a/c/", {} } });
}

void TestVIniSettingsBadFiles::keepsACopy()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Entries, loaded);
    const QByteArray newLine = "[zz]\nnew=value\n";
    // The file was read by this process before, or it was not, or it is another process.
    const QStringList names { "loaded.ini", "unread.ini", "other.ini" };
    for (const QString &name : names)
        QVERIFY(writeFile(name, bytes));
    const VIniSettings before(QString("loaded.ini"));
    QCOMPARE(described(before.data()), described(loaded));
    QCOMPARE(fileContent("loaded.ini"), bytes);
    setAndSave("loaded.ini", "value");
    VIniSettings(Entries { { "zz/new", "value" } }).saveLocal("unread.ini");
    const QVector<Reading> other
        = readInSecondProcess(QStringList { "--set", "zz/new=value", "other.ini" });
    QCOMPARE(other.size(), 1);
    QCOMPARE(other.at(0).messages, QStringList());

    QCOMPARE(filesIn("."),
             (QStringList { "loaded.ini", "loaded.ini.bak", "other.ini", "other.ini.bak",
                            "unread.ini", "unread.ini.bak" }));
    for (const QString &name : names) {
        QCOMPARE(fileContent(name + ".bak"), bytes);
        QVERIFY2(fileContent(name).contains(newLine), fileContent(name).constData());
    }
    const VIniSettings after(QString("other.ini"));
    QCOMPARE(described(after.value("zz/new")), described(QVariant("value")));
}

void TestVIniSettingsBadFiles::keepsNoCopyOfProperFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("line breaks and spaces only") << QByteArray("\n \n\t\r\n");
    QTest::newRow("as QSettings writes it")
        << QByteArray("[%General]\na=1\n\n[General]\nb=2\n\n[c]\nd\\e=3\n%U540D%20=4\n");
    QTest::newRow("as a person writes it")
        << QByteArray("a = 1\n\n  [ b ]  \n\tc\t= two words \n  d =\n");
    QTest::newRow("no line break at the end") << QByteArray("[a]\nb=1");
    QTest::newRow("line breaks of other systems") << QByteArray("[a]\r\nb=1\r\nc=2\rd=3\r");
    QTest::newRow("a byte order mark") << QByteArray("\xef\xbb\xbf[a]\nb=1\n");
    QTest::newRow("a group in several places") << QByteArray("[a]\nb=1\n[c]\nd=1\n[a]\ne=1\n");
    QTest::newRow("values in UTF-8") << QByteArray("a=值 Ω, é\n");
    QTest::newRow("keys in UTF-8") << QByteArray("[组]\n名=1\n");
    QTest::newRow("quotes around elements")
        << QByteArray("a=\"x;y\"\nb=\"x,y\" , \"\", z\nc=\"a=\\\"b\\\"\"\n");
    QTest::newRow("empty elements") << QByteArray("a=,\nb=, x,\n");
    QTest::newRow("escapes") << QByteArray(
        "a=\\a\\b\\f\\n\\r\\t\\v\\\"\\?\\'\\\\\nb=\\x1\\x41\\xffff\\0\\17\n");
    QTest::newRow("a line that goes on") << QByteArray("a=x, \\\n  y\nb=\"x \\\r\n y\"\n");
    QTest::newRow("an equals sign in a value") << QByteArray("a=b=c\n");
    QTest::newRow("brackets in a value and a key") << QByteArray("a=[b]\nc[0]=1\n");
    QTest::newRow("the empty key") << QByteArray("=1\nb=2\n");
    QTest::newRow("a hash sign in front of a key") << QByteArray("#a=1\n");
    QTest::newRow("zero bytes in keys and values") << QByteArray("a\0b=c\0d\n", 8);
    QTest::newRow("invalid values") << QByteArray("a=@Invalid()\nb=@Invalid()\n");
    QTest::newRow("text that looks like a value of a type")
        << QByteArray("a=@@Variant(x)\nb=@foo(值)\nc=@Variant(\nd=x@Variant(y)\ne=@String(x)\n");
    QTest::newRow("values of types")
        << QByteArray("a=@ByteArray(x\\0\\xff)\nb=@Point(1 -2)\nc=@Size(3 4)\nd=@Rect(1 2 3 4)\n"
                      "e=@Variant(\\0\\0\\0\\x1a@\\0\\0\\0\\0\\0\\0\\0@\\b\\0\\0\\0\\0\\0\\0)\n");
    QTest::newRow("per cent signs that escape nothing") << QByteArray("a%zz=1\n100%=2\n%U12=3\n");
}

void TestVIniSettingsBadFiles::keepsNoCopyOfProperFiles()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(writeFile("f.ini", bytes));
    const QVariantMap before = valuesIn(bytes);
    setAndSave("f.ini", "value");
    setAndSave("f.ini", "other value");
    QCOMPARE(readInSecondProcess(QStringList { "--set", "zz/new=1", "f.ini" }).size(), 1);
    QCOMPARE(filesIn("."), QStringList { "f.ini" });
    QVariantMap after = valuesIn(fileContent("f.ini"));
    QCOMPARE(after.take("zz/new"), QVariant("1"));
    QCOMPARE(after, before);
}

void TestVIniSettingsBadFiles::keepsNoCopyOfAKeyWithoutAName()
{
    QVERIFY(writeFile("f.ini", "[a]\n=1\n"));
    setAndSave("f.ini", "value");
    setAndSave("f.ini", "value");
    // Its key is "a/"; when it is set, QSettings takes it for "a".
    QCOMPARE(fileContent("f.ini"),
             QByteArray("[General]\na=@Invalid()\n\n[a]\n=1\n\n[zz]\nnew=value\n"));
    QCOMPARE(filesIn("."), QStringList { "f.ini" });
}

void TestVIniSettingsBadFiles::keepsEarlierCopies()
{
    for (int i = 1; i <= 4; ++i) {
        const QByteArray junk = "junk " + QByteArray::number(i) + "\n[a]\nb=1\n";
        QVERIFY(writeFile("f.ini", junk));
        if (i == 3)
            QVERIFY(QDir().mkdir("f.ini.bak3"));
        setAndSave("f.ini", "value");
    }
    QCOMPARE(filesIn("."),
             (QStringList { "f.ini", "f.ini.bak", "f.ini.bak2", "f.ini.bak3", "f.ini.bak4",
                            "f.ini.bak5" }));
    QCOMPARE(fileContent("f.ini.bak"), QByteArray("junk 1\n[a]\nb=1\n"));
    QCOMPARE(fileContent("f.ini.bak2"), QByteArray("junk 2\n[a]\nb=1\n"));
    QVERIFY(QDir("f.ini.bak3").isEmpty());
    QCOMPARE(fileContent("f.ini.bak4"), QByteArray("junk 3\n[a]\nb=1\n"));
    QCOMPARE(fileContent("f.ini.bak5"), QByteArray("junk 4\n[a]\nb=1\n"));
}

void TestVIniSettingsBadFiles::keepsOneCopyOfTheSame()
{
    const QByteArray commented = "; a file that is put back again and again\na=1\n";
    for (int i = 0; i < 3; ++i) {
        QVERIFY(writeFile("f.ini", commented));
        VIniSettings store("f.ini", true);
        for (int j = 0; j < 3; ++j)
            store.setValue("a", j);
    }
    QCOMPARE(filesIn("."), (QStringList { "f.ini", "f.ini.bak" }));
    QCOMPARE(fileContent("f.ini.bak"), commented);
    QCOMPARE(fileContent("f.ini"), QByteArray("[General]\na=2\n"));
}

void TestVIniSettingsBadFiles::leavesAloneWhatItCannotCopy()
{
    QVERIFY(writeFile("f.ini", "junk\na=1\n"));
    // Links that lead nowhere are no files, and yet they are in the way.
    QVERIFY(QFile::link("nowhere", "f.ini.bak"));
    QVERIFY(QFileInfo("f.ini.bak").isSymLink());
    setAndSave("f.ini", "value");
    QCOMPARE(fileContent("f.ini"), QByteArray("junk\na=1\n"));
    QCOMPARE(filesIn("."), (QStringList { "f.ini", "f.ini.bak" }));
    QVERIFY(QFileInfo("f.ini.bak").isSymLink());
    // What could not be saved is not told to others in this process either.
    QCOMPARE(VIniSettings(QString("f.ini")).allKeys(), QStringList { "a" });

    QVERIFY(QFile::remove("f.ini.bak"));
    setAndSave("f.ini", "value");
    QCOMPARE(fileContent("f.ini.bak"), QByteArray("junk\na=1\n"));
}

void TestVIniSettingsBadFiles::copiesOnlyBeforeItWrites()
{
    const QByteArray junk = "junk\na=1\n";
    QVERIFY(writeFile("f.ini", junk));
    VIniSettings store("f.ini", true);
    store.setPath("f.ini");
    store.setValue(Entries { { "b", 2 } }, true);
    QVERIFY(store.remove("b"));
    store.saveLocal();
    QCOMPARE(filesIn("."), QStringList { "f.ini" });
    QCOMPARE(fileContent("f.ini"), junk);
}

void TestVIniSettingsBadFiles::keepsTheCopyOfAFileThatOthersBroke()
{
    VIniSettings store("f.ini", true);
    store.setValue("a", 1);
    QCOMPARE(filesIn("."), QStringList { "f.ini" });
    const QByteArray broken = "[General]\na=1\nb=from an editor\nand a line that is none\n";
    QVERIFY(writeFile("f.ini", broken));
    store.setValue("a", 2);
    QCOMPARE(filesIn("."), (QStringList { "f.ini", "f.ini.bak" }));
    QCOMPARE(fileContent("f.ini.bak"), broken);
    QCOMPARE(fileContent("f.ini"), QByteArray("[General]\na=2\nb=from an editor\n"));
}

void TestVIniSettingsBadFiles::standsValuesOfSenselessSize_data()
{
    QTest::addColumn<QByteArray>("size");
    QTest::addColumn<bool>("isReadable");
    // From 0x20000000 elements on, a list has more bytes than an int counts. Qt then asks for all
    // the memory that an address reaches, which no machine has. Of smaller lists it depends on the
    // machine whether they fail.
    QTest::newRow("far too many elements") << QByteArray("\\x20\\0\\0\\0") << false;
    QTest::newRow("as many as there can be") << QByteArray("\\x7f\\xff\\xff\\xff") << false;
    // For these Qt asks for nothing, and then misses the first of them.
    QTest::newRow("more than there can be") << QByteArray("\\x80\\0\\0\\0") << true;
    QTest::newRow("a number without end") << QByteArray("\\xff\\xff\\xff\\xff") << true;
    QTest::newRow("one that is not there") << QByteArray("\\0\\0\\0\\x1") << true;
}

void TestVIniSettingsBadFiles::standsValuesOfSenselessSize()
{
    QFETCH(QByteArray, size);
    QFETCH(bool, isReadable);
    const QByteArray damaged = "a=1\nb=@Variant(\\0\\0\\0\\t" + size + ")\n";
    QVERIFY(writeFile("f.ini", damaged));
    const VIniSettings before(QString("f.ini"));
    QCOMPARE(before.filepath(), QString("f.ini"));
    const Entries readable { { "a", "1" }, { "b", QVariantList() } };
    QCOMPARE(described(before.data()), described(isReadable ? readable : Entries()));
    QCOMPARE(readInSecondProcess(QString("f.ini")).entries, described(before.data()));

    setAndSave("f.ini", "value");
    setAndSave("f.ini", "other value");
    if (isReadable) {
        QCOMPARE(fileContent("f.ini"),
                 QByteArray("[General]\na=1\nb=@Invalid()\n\n[zz]\nnew=other value\n"));
        QCOMPARE(fileContent("f.ini.bak"), damaged);
        QCOMPARE(filesIn("."), (QStringList { "f.ini", "f.ini.bak" }));
    } else {
        QCOMPARE(fileContent("f.ini"), damaged);
        QCOMPARE(filesIn("."), QStringList { "f.ini" });
    }
}

void TestVIniSettingsBadFiles::standsValuesOfSenselessSizeInLargeFiles()
{
    // A list of texts that says it has two thousand million elements, and much behind it.
    const QByteArray damaged
        = "a=1\nb=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff" + QByteArray(100000, 'x') + ")\n";
    QVERIFY(writeFile("f.ini", damaged));
    const VIniSettings store(QString("f.ini"));
    QCOMPARE(store.filepath(), QString("f.ini"));
    QCOMPARE(described(store.data()), described(Entries()));
    QCOMPARE(readInSecondProcess(QString("f.ini")).path, QString("f.ini"));
    setAndSave("f.ini", "value");
    QCOMPARE(fileContent("f.ini"), damaged);
    QCOMPARE(filesIn("."), QStringList { "f.ini" });
}

void TestVIniSettingsBadFiles::keepsACopyOfValuesThatNobodyKnows_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("a type of another program")
        << QByteArray("@Variant(\\0\\0\\0\\x7f\\0\\0\\0\\x5Mine\\0\\x1\\x2)");
    QTest::newRow("a type of another program, without content")
        << QByteArray("@Variant(\\0\\0\\0\\x7f\\0\\0\\0\\x5Mine\\0)");
    QTest::newRow("no type at all, with content") << QByteArray("@Variant(junk\\0\\0\\0\\0)");
    QTest::newRow("no type at all") << QByteArray("@Variant(junk)");
    QTest::newRow("an empty one") << QByteArray("@Variant()");
    QTest::newRow("one that is cut off") << QByteArray("@Variant(\\0\\0\\0\\x1a@\\0\\0\\0\\0)");
    QTest::newRow("one that goes on") << QByteArray("@Variant(\\0\\0\\0\\x1\\x1\\x1)");
    QTest::newRow("in a list") << QByteArray("a, @Variant(junk)");
    QTest::newRow("a time that is cut off") << QByteArray("@DateTime(\\0\\0)");
}

void TestVIniSettingsBadFiles::keepsACopyOfValuesThatNobodyKnows()
{
    QFETCH(QByteArray, value);
    const QByteArray bytes = "a=1\nb=" + value + "\n";
    QVERIFY(writeFile("f.ini", bytes));
    setAndSave("f.ini", "value");
    setAndSave("f.ini", "other value");
    QCOMPARE(filesIn("."), (QStringList { "f.ini", "f.ini.bak" }));
    QCOMPARE(fileContent("f.ini.bak"), bytes);
    QVERIFY(fileContent("f.ini").contains("new=other value\n"));
    // QVariant itself complains about types that it does not know.
    for (const QString &message : qAsConst(Messages::collected())) {
        QVERIFY2(message.startsWith("QVariant::load: ")
                     || message.startsWith("Trying to construct an instance of an invalid type"),
                 qPrintable(message));
    }
    Messages::collected().clear();
}

void TestVIniSettingsBadFiles::doesNotWaitForAPipe()
{
#ifdef Q_OS_UNIX
    QCOMPARE(::mkfifo("pipe.ini", 0600), 0);
    VIniSettings store("pipe.ini", true);
    QCOMPARE(store.filepath(), QString("pipe.ini"));
    QCOMPARE(store.data(), Entries());
    store.setValue("a", 1);
    QCOMPARE(filesIn("."), QStringList { "pipe.ini" });

    QCOMPARE(::mkfifo("f.ini.bak", 0600), 0);
    QVERIFY(writeFile("f.ini", "junk\na=1\n"));
    setAndSave("f.ini", "value");
    QCOMPARE(fileContent("f.ini.bak2"), QByteArray("junk\na=1\n"));
    QCOMPARE(filesIn("."), (QStringList { "f.ini", "f.ini.bak", "f.ini.bak2", "pipe.ini" }));
#else
    QSKIP("Only Unix has pipes among its files.");
#endif
}

void TestVIniSettingsBadFiles::standsListsInLists_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("level");
    QTest::addColumn<int>("levels");
    QTest::addColumn<QStringList>("keys");
    const QStringList all { "after", "before", "nested" };
    const auto rows = [&all](const char *name, const QByteArray &start, const QByteArray &level) {
        QTest::addRow("%s, some", name) << start << level << 900 << all;
        QTest::addRow("%s, more than a stack can follow", name)
            << start << level << 60000 << QStringList();
    };
    const QByteArray list = "\\0\\0\\0\\t\\0\\0\\0\\x1";
    rows("lists", "@Variant(", list);
    rows("lists in bytes", "@Variant(", QByteArray("\0\0\0\t\0\0\0\1", 8));
    rows("lists behind other values", "@Variant(\\0\\0\\0\\t\\0\\0\\0\\x2\\0\\0\\0\\n\\0\\0\\0\\0",
         list);
    rows("lists with other escapes", "@Variant(", "\\0\\x0\\00\\x9\\q\\0\\\n\\0\\x\\0\\\r\n\\1");
    rows("lists with quotes", "@Variant(", "\\0\"\\0\\0\\t\" \t\\0\\0\"\"\\0\\x1");
    rows("lists with byte order marks", "@Variant(",
         "\\0\\0\\0\xef\xbb\xbf\\t\\0\\0\"\xef\xbb\xbf\"\\0\\x1");
    rows("lists whose start is escaped", "\\x40Variant\\50", list);
    rows("maps", "@Variant(", "\\0\\0\\0\\b\\0\\0\\0\\x1\\0\\0\\0\\x2\\0k");
    rows("hashes", "@Variant(", "\\0\\0\\0\\x1c\\0\\0\\0\\x1\\0\\0\\0\\x2\\0k");
    rows("values", "@Variant(", "\\0\\0\\0)");
    rows("lists with their name", "@Variant(",
         "\\0\\0\\0\\x7f\\0\\0\\0\\rQVariantList\\0\\0\\0\\0\\x1");
    rows("lists in a time", "@DateTime(", "\\0\\0\\0\\t\\0\\0\\0\\0\\x1");
}

void TestVIniSettingsBadFiles::standsListsInLists()
{
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, level);
    QFETCH(int, levels);
    QFETCH(QStringList, keys);
    const QByteArray bytes = "  ; a \" here\nbefore=1 ; and \" there\nnested=" + start
        + level.repeated(levels) + "\\0\\0\\0\\x2\\0\\0\\0\\x1)\nafter=1\n";
    QVERIFY(writeFile("f.ini", bytes));
    const VIniSettings store(QString("f.ini"));
    QCOMPARE(store.filepath(), QString("f.ini"));
    QCOMPARE(sorted(store.allKeys()), keys);
    if (keys.isEmpty()) {
        setAndSave("f.ini", "value");
        QCOMPARE(fileContent("f.ini"), bytes);
        QCOMPARE(filesIn("."), QStringList { "f.ini" });
    }
}

void TestVIniSettingsBadFiles::doesNotWaitForALock_data()
{
    QTest::addColumn<bool>("isDirectory");
    QTest::newRow("a lock of somebody who does not end") << false;
    QTest::newRow("a directory with the name of the lock") << true;
}

void TestVIniSettingsBadFiles::doesNotWaitForALock()
{
    QFETCH(bool, isDirectory);
    QVERIFY(writeFile("f.ini", "a=1\n"));
    QLockFile lock("f.ini.lock");
    if (isDirectory)
        QVERIFY(QDir().mkdir("f.ini.lock"));
    else
        QVERIFY(lock.lock());
    VIniSettings store("f.ini", true);
    store.setValue("a", 2);
    QCOMPARE(fileContent("f.ini"), QByteArray("a=1\n"));
    QCOMPARE(filesIn("."), (QStringList { "f.ini", "f.ini.lock" }));

    if (isDirectory)
        QVERIFY(QDir().rmdir("f.ini.lock"));
    else
        lock.unlock();
    store.setValue("a", 3);
    QCOMPARE(fileContent("f.ini"), QByteArray("[General]\na=3\n"));
}

void TestVIniSettingsBadFiles::savesWhenAnAbandonedLockIsLeft()
{
    QVERIFY(writeFile("f.ini", "a=1\n"));
    // As left by a process that has ended without care.
    QVERIFY(writeFile("f.ini.lock",
                      "0\nsomebody\n" + QSysInfo::machineHostName().toLocal8Bit() + "\n"));
    QFile lock("f.ini.lock");
    QVERIFY(lock.open(QIODevice::ReadWrite));
    QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addDays(-1),
                             QFileDevice::FileModificationTime));
    lock.close();
    setAndSave("f.ini", "value");
    QCOMPARE(fileContent("f.ini"), QByteArray("[General]\na=1\n\n[zz]\nnew=value\n"));
    QCOMPARE(filesIn("."), QStringList { "f.ini" });
}

void TestVIniSettingsBadFiles::losesNothingOfHostileBytes_data()
{
    QTest::addColumn<BytesMaker>("makeBytes");
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 3; ++seed) {
        QTest::addRow("pieces of syntax, seed %d", seed) << BytesMaker(hostileBytes) << seed;
        QTest::addRow("damaged files, seed %d", seed) << BytesMaker(damagedBytes) << seed;
        QTest::addRow("any bytes, seed %d", seed) << BytesMaker(anyBytes) << seed;
    }
}

void TestVIniSettingsBadFiles::losesNothingOfHostileBytes()
{
    QFETCH(BytesMaker, makeBytes);
    QFETCH(int, seed);
    Dice dice { unsigned(seed) };
    int inPlace = 0;
    for (int i = 0; i < 40; ++i) {
        const QByteArray bytes = makeBytes(&dice);
        const QString name = labelled("f", i);
        QVERIFY(writeFile(name, bytes));
        VIniSettings store(name);
        QCOMPARE(store.allKeys().size(), store.data().size());
        store.styleSheetFormat();
        if (dice.chance(50))
            setAndSave(name, "value");
        else
            VIniSettings(Entries { { "zz/new", "value" } }).saveLocal(name);
        const QByteArray now = fileContent(name);
        QVERIFY2(now.contains("new=value\n"), bytes.toPercentEncoding().constData());

        if (QFile::exists(name + ".bak")) {
            QCOMPARE(fileContent(name + ".bak"), bytes);
            continue;
        }
        if (!valuesIn(bytes).isEmpty())
            ++inPlace;
        const QString lost = lostIn(bytes, now);
        QVERIFY2(lost.isEmpty(),
                 qUtf8Printable(lost + " of " + QString::fromLatin1(bytes.toPercentEncoding())));
    }
    // With a copy of every file, nothing would have been compared.
    QVERIFY2(inPlace >= 6, qPrintable(QString::number(inPlace)));
    const QStringList files = filesIn(".");
    QCOMPARE(readInSecondProcess(files).size(), files.size());
}

QTEST_GUILESS_MAIN(TestVIniSettingsBadFiles)
#include "tst_vinisettings_badfiles.moc"
