// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Random stores are saved and read by another process. What is to come of it is told by QSettings
// itself, on another file.

#include <Kelto/VIniSettings>

#include "support/directorytest.h"
#include "support/randomitems.h"
#include "support/secondprocess.h"
#include "support/settingsjson.h"
#include "support/testfiles.h"

#include <QBitArray>
#include <QDateTime>
#include <QJsonValue>
#include <QLine>
#include <QLocale>
#include <QPoint>
#include <QRect>
#include <QRegularExpression>
#include <QSettings>
#include <QTest>
#include <QUrl>
#include <QUuid>

#include <limits>

namespace {

constexpr int storesPerRow = 10;

QString someText(Dice *dice, int most)
{
    static const QStringList pieces {
        "a",    "B",   "7",      "名", "值 ", "é",  " ",  "  ",         "/",  "\\", "%",
        "%20",  "=",   ";",      ",",  "\"",  "'",  "\n", "\r",         "\t", "[",  "]",
        "#",    "@",   "@@",     ":",  "|",   "\0", "0",  "x1f",        "()", "&",  "General",
        "true", "1.5", "\u2028", "-",  "_",   ".",  "+",  "@Invalid()", "{",  "}",  "$"
    };
    return dice->someOf(pieces, dice->between(0, most)).join(QString());
}

/// A key of which QSettings leaves something, when it drops the superfluous slashes.
QString someKey(Dice *dice)
{
    QString key = someText(dice, 4);
    if (dice->chance(60))
        key += "/" + someText(dice, 3);
    return key + dice->oneOf({ "a", "b", "键", "c d" });
}

QStringList someList(Dice *dice)
{
    QStringList list;
    for (int i = dice->between(0, 4); i > 0; --i)
        list.append(someText(dice, 3));
    return list;
}

QByteArray someBytes(Dice *dice)
{
    QByteArray bytes;
    for (int i = dice->between(0, 12); i > 0; --i)
        bytes += char(dice->between(0, 255));
    return bytes;
}

QVariant someValue(Dice *dice)
{
    switch (dice->between(0, 11)) {
    case 0:
        return dice->between(-100000, 100000);
    case 1:
        return dice->between(-100000, 100000) / 128.0;
    case 2:
        return dice->chance(50);
    case 3:
        return someBytes(dice);
    case 4:
        return someList(dice);
    case 5:
        return QStringList { someText(dice, 3) };
    case 6:
        return {};
    case 7:
        return QVariantList { dice->between(0, 9), someText(dice, 3), someBytes(dice) };
    case 8:
        return QPoint(dice->between(-9, 9), dice->between(-9, 9));
    default:
        return someText(dice, 6);
    }
}

Entries someEntries(Dice *dice)
{
    Entries entries;
    for (int i = dice->between(0, 15); i > 0; --i)
        entries.append({ someKey(dice), someValue(dice) });
    return entries;
}

void writePlainly(const QString &name, const Entries &entries)
{
    QSettings settings(name, QSettings::IniFormat);
    settings.setIniCodec("utf-8");
    for (const auto &entry : entries)
        settings.setValue(entry.first, entry.second);
}

/// Only for files that this process has not written itself: of those QSettings knows the types.
Entries readPlainly(const QString &name)
{
    QSettings settings(name, QSettings::IniFormat);
    settings.setIniCodec("utf-8");
    const QStringList keys = settings.allKeys();
    Entries entries;
    for (const QString &key : keys)
        entries.append({ key, settings.value(key) });
    return entries;
}

} // namespace

class TestVIniSettingsRoundTrips : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void writesAndReadsWhatQSettingsDoes_data();
    void writesAndReadsWhatQSettingsDoes();
    void changesNothingOnItsSecondTrip_data();
    void changesNothingOnItsSecondTrip();
    void keepsNoCopyOfItsOwnFiles_data();
    void keepsNoCopyOfItsOwnFiles();
};

void TestVIniSettingsRoundTrips::writesAndReadsWhatQSettingsDoes_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 10; ++seed)
        QTest::addRow("seed %d", seed) << seed;
}

void TestVIniSettingsRoundTrips::writesAndReadsWhatQSettingsDoes()
{
    QFETCH(int, seed);
    Dice dice { unsigned(seed) };
    QStringList names;
    for (int i = 0; i < storesPerRow; ++i) {
        const QString name = labelled("store", i);
        // Some files hold something already, which stays unless it is overwritten.
        const Entries earlier = dice.chance(50) ? someEntries(&dice) : Entries();
        const Entries entries = someEntries(&dice);
        VIniSettings(earlier).saveLocal(name);
        VIniSettings(name, entries).saveLocal();
        writePlainly(name + "-plain", earlier);
        writePlainly(name + "-plain", entries);
        QCOMPARE(fileContent(name), fileContent(name + "-plain"));
        QCOMPARE(QFile::exists(name + ".bak"), false);
        QCOMPARE(QFile::copy(name, name + "-copy"), true);
        names.append(name);
    }
    const QVector<Reading> readings = readInSecondProcess(names);
    QCOMPARE(readings.size(), names.size());
    for (int i = 0; i < names.size(); ++i) {
        const Entries expected = readPlainly(names.at(i) + "-copy");
        QCOMPARE(readings.at(i).messages, QStringList());
        QCOMPARE(readings.at(i).path, names.at(i));
        QCOMPARE(readings.at(i).entries, described(expected));
        // And in this process, from a file that it did not write.
        QCOMPARE(described(VIniSettings(QString(names.at(i) + "-copy")).data()),
                 described(expected));
    }
}

void TestVIniSettingsRoundTrips::changesNothingOnItsSecondTrip_data()
{
    writesAndReadsWhatQSettingsDoes_data();
}

void TestVIniSettingsRoundTrips::changesNothingOnItsSecondTrip()
{
    QFETCH(int, seed);
    Dice dice { unsigned(1000 + seed) };
    for (int i = 0; i < storesPerRow; ++i) {
        const QString name = labelled("store", i);
        VIniSettings(someEntries(&dice)).saveLocal(name);
        QCOMPARE(QFile::copy(name, name + "-copy"), true);
        const VIniSettings read(QString(name + "-copy"));
        read.saveLocal(name + "-again");
        QCOMPARE(fileContent(name + "-again"), fileContent(name));
        read.saveLocal();
        QCOMPARE(fileContent(name + "-copy"), fileContent(name));
    }
    QCOMPARE(filesIn(".").size(), 3 * storesPerRow);
}

void TestVIniSettingsRoundTrips::keepsNoCopyOfItsOwnFiles_data()
{
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *name, const QVariant &value) { QTest::newRow(name) << value; };
    const QDateTime time(QDate(2020, 2, 29), QTime(1, 2, 3, 4));
    row("a date", time.date());
    row("a time of day", time.time());
    row("a local time", time);
    row("a time in the world", time.toUTC());
    row("a time with an offset", time.toOffsetFromUtc(5400));
    row("an invalid date", QDate());
    row("an invalid time", QDateTime());
    row("a single float", QVariant::fromValue(1.5F));
    row("a short number", QVariant::fromValue<short>(-3));
    row("a letter", QChar('x'));
    row("the greatest number", std::numeric_limits<quint64>::max());
    row("no number", qQNaN());
    row("infinity", qInf());
    row("points, sizes, rectangles",
        QVariantList { QPoint(1, -2), QSize(3, 4), QRect(1, 2, 3, 4), QPointF(1, 2) });
    row("a rectangle", QRect(-2000000000, 2000000000, 1, 2));
    row("a rectangle in the plane", QRectF(1.5, 2.5, 3, 4));
    row("a line", QLine(1, 2, 3, 4));
    row("bits", QBitArray(11, true));
    row("a locale", QLocale(QLocale::Chinese));
    row("an address", QUrl("https://example.org/a b?c=d"));
    row("a pattern", QRegularExpression("a.*b"));
    row("a unique name", QUuid("{67c8770b-44f1-410a-ab9a-f9b5446f13ee}"));
    row("a value of another format", QJsonValue("text"));
    row("a map in a map", QVariantMap { { "a", QVariantMap { { "b", QVariant() } } } });
    row("a hash of many", QVariantHash { { "a", 1 }, { "b", 2 }, { "c", "3" }, { "d", 4.5 } });
    row("a list of lists", QVariantList { QVariantList { 1, "a" }, QVariantList() });
    row("a list of one list", QVariantList { QVariantList { QVariantList() } });
    row("an empty list of values", QVariantList());
    row("a list with an invalid value", QVariantList { 1, QVariant(), "a" });
    row("a text in a text", QVariantList { QVariant::fromValue(QVariant("a")) });
    row("bytes of all kinds", QByteArray("\0\x01\x7f\x80\xff;,\"\\", 9));
    row("half a character", QString(QChar(0xd834)));
    row("a character of two units", "𝄞");
    row("a byte order mark in front", QString("%1a").arg(QChar(QChar::ByteOrderMark)));
    row("texts that look like values",
        QStringList { "@Variant(x)", "@ByteArray(值)", "@Point(x)", "@", "@@" });
}

void TestVIniSettingsRoundTrips::keepsNoCopyOfItsOwnFiles()
{
    QFETCH(QVariant, value);
    VIniSettings store("store.ini", true);
    store.setValue("a", value);
    store.setValue("b", 1);
    const QByteArray written = fileContent("store.ini");
    QVERIFY2(written.contains("a="), written.constData());
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(readInSecondProcess(QStringList { "--set", "b=2", "store.ini" }).size(), 1);
        store.setValue("b", 3);
    }
    QCOMPARE(filesIn("."), QStringList { "store.ini" });
    QCOMPARE(fileContent("store.ini"), QByteArray(written).replace("b=1", "b=3"));
}

QTEST_GUILESS_MAIN(TestVIniSettingsRoundTrips)
#include "tst_vinisettings_roundtrips.moc"
