// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Values of all types in files, in a program with windows and in one without: what was stored is
// read again, and no bytes end the program. The same source makes both programs.

#include <Kelto/VIniSettings>

#include "core/typedtext_p.h"

#include "support/directorytest.h"
#include "support/outofmemory.h"
#include "support/randomitems.h"
#include "support/settingsjson.h"
#include "support/testfiles.h"

#include <QBitArray>
#include <QBitmap>
#include <QBrush>
#include <QBuffer>
#include <QCborMap>
#include <QCursor>
#include <QDataStream>
#include <QEasingCurve>
#include <QFont>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QKeySequence>
#include <QLine>
#include <QLocale>
#include <QMatrix4x4>
#include <QPalette>
#include <QPen>
#include <QPolygonF>
#include <QQuaternion>
#include <QRegExp>
#include <QRegion>
#include <QRegularExpression>
#include <QSettings>
#include <QSizePolicy>
#include <QTest>
#include <QTextFormat>
#include <QTextLength>
#include <QTimeZone>
#include <QUrl>
#include <QUuid>

#include <functional>
#include <limits>
#include <new>

/// A type that a host registers. Its reader reads a value, which may be of this type again.
struct Chain
{
    QVariant next;
};
Q_DECLARE_METATYPE(Chain)

static QDataStream &operator<<(QDataStream &stream, const Chain &chain)
{
    return stream << chain.next;
}

static QDataStream &operator>>(QDataStream &stream, Chain &chain)
{
    return stream >> chain.next;
}

namespace {

bool hasWindows()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance());
}

/// The bytes that QSettings would write, which is the only way to compare values of some types.
QByteArray serialised(const QVariant &value, QDataStream::Version version = QDataStream::Qt_4_0)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    stream << value;
    return bytes;
}

QByteArray number(quint32 value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

QByteArray utf16(const QByteArray &text)
{
    QByteArray bytes;
    for (const char c : text)
        bytes.append('\0').append(c);
    return bytes;
}

QString typedText(const char *opening, const QByteArray &bytes)
{
    return opening + QString::fromLatin1(bytes.constData(), bytes.size()) + ')';
}

QString variantText(const QByteArray &bytes)
{
    return typedText("@Variant(", bytes);
}

/// A file with this value, every byte of it escaped, between two others.
QByteArray fileWith(const QString &text)
{
    QByteArray bytes = "before=1\nvalue=\"";
    for (const QChar c : text)
        bytes.append("\\x").append(QByteArray::number(c.unicode(), 16)).append("\\\n");
    return bytes + "\"\nbehind=1\n";
}

QImage picture()
{
    // Without bits of a bitmap that belong to no pixel: these are left as they happen to be.
    QImage image(32, 2, QImage::Format_ARGB32);
    image.fill(Qt::red);
    image.setPixel(1, 1, qRgba(1, 2, 3, 4));
    return image;
}

QVariant nested(int levels, const std::function<QVariant(const QVariant &)> &wrap)
{
    QVariant value = 1;
    for (int i = 0; i < levels; ++i)
        value = wrap(value);
    return value;
}

QVector<QPair<const char *, QVariant>> coreValues()
{
    const QDateTime time(QDate(2020, 2, 29), QTime(1, 2, 3, 4));
    const QVariantMap map { { "a", 1 }, { "b", QVariantMap { { "c", QVariant() } } } };
    return {
        { "a date", time.date() },
        { "a time of day", time.time() },
        { "a local time", time },
        { "a time in the world", time.toUTC() },
        { "a time with an offset", time.toOffsetFromUtc(5400) },
        { "a time in a zone", QDateTime(time.date(), time.time(), QTimeZone("UTC+03:00")) },
        { "an invalid time", QDateTime() },
        { "a single float", QVariant::fromValue(1.5F) },
        { "a short number", QVariant::fromValue<short>(-3) },
        { "a letter", QChar('x') },
        { "no number", qQNaN() },
        { "the greatest number", std::numeric_limits<quint64>::max() },
        { "bytes", QByteArray("\0\x01\x7f\x80\xff;,\"\\", 9) },
        { "a list of bytes", QVariant::fromValue(QByteArrayList { "a", "b" }) },
        { "points, sizes, rectangles",
          QVariantList { QPoint(1, -2), QSize(3, 4), QRect(1, 2, 3, 4), QPointF(1, 2) } },
        { "a rectangle in the plane", QRectF(1.5, 2.5, 3, 4) },
        { "a line", QLine(1, 2, 3, 4) },
        { "bits", QBitArray(11, true) },
        { "a locale", QLocale(QLocale::Chinese) },
        { "an address", QUrl("https://example.org/a b?c=d") },
        { "a pattern", QRegularExpression("a.*b") },
        { "an old pattern", QRegExp("a.*b") },
        { "a curve", QEasingCurve(QEasingCurve::OutBounce) },
        { "a unique name", QUuid("{67c8770b-44f1-410a-ab9a-f9b5446f13ee}") },
        { "JSON", QJsonObject { { "a", QJsonArray { 1, "b" } } } },
        { "CBOR", QVariant::fromValue(QCborMap { { 1, "b" } }) },
        { "maps", map },
        { "a hash of many", QVariantHash { { "a", 1 }, { "b", 2 }, { "c", "3" } } },
        { "lists", QVariantList { QVariantList { 1, "a" }, QVariantList(), map } },
        { "a value in a value", QVariantList { QVariant::fromValue(QVariant("a")), QVariant() } },
        { "deep lists",
          nested(900,
                 [](const QVariant &v) {
                     return QVariantList { v, 2 };
                 }) },
        { "texts that look like values",
          QStringList { "@Variant(x)", "@ByteArray(值)", "@", "@@" } },
    };
}

/// The library cannot know what the host's own readers make of wrong bytes.
QVector<QPair<const char *, QVariant>> hostValues()
{
    return {
        { "a type of the host", QVariant::fromValue(Chain { QVariantMap { { "a", 1 } } }) },
        { "types of the host in each other",
          nested(100, [](const QVariant &v) { return QVariant::fromValue(Chain { v }); }) },
    };
}

QVector<QPair<const char *, QVariant>> drawnValues()
{
    QLinearGradient gradient(1, 2, 3, 4);
    gradient.setStops({ { 0.25, Qt::red }, { 0.5, Qt::blue } });
    QPen pen(QBrush(QRadialGradient(1, 2, 3, 4, 5)), 2.5, Qt::CustomDashLine);
    pen.setDashPattern({ 1, 2, 3, 4 });
    QTextCharFormat format;
    format.setForeground(Qt::red);
    format.setFontPointSize(12);
    format.setProperty(QTextFormat::UserProperty, QVariantList { 1, QTextLength() });
    return {
        { "a font", QFont("Sans", 12, QFont::Bold) },
        { "a colour", QColor(1, 2, 3, 4) },
        { "an image", picture() },
        { "no image", QImage() },
        { "a brush", QBrush(Qt::green, Qt::Dense3Pattern) },
        { "gradients", QVariantList { QBrush(gradient), QBrush(QConicalGradient(1, 2, 3)) } },
        { "brushes, pens and regions behind each other",
          QVariantList { QBrush(QConicalGradient(1, 2, 3)), pen, QPalette(Qt::red, Qt::blue),
                         QRegion(1, 2, 3, 4), pen, 1 } },
        { "a pen", pen },
        { "a palette", QPalette(Qt::red, Qt::blue) },
        { "a polygon", QPolygon(QVector<QPoint> { { 1, 2 }, { 3, 4 } }) },
        { "a polygon in the plane", QPolygonF(QVector<QPointF> { { 1.5, 2 }, { 3, 4 } }) },
        { "a region", QRegion(1, 2, 3, 4) + QRegion(10, 20, 3, 4) },
        { "no region", QRegion() },
        { "keys", QKeySequence("Ctrl+A, Ctrl+B") },
        { "a length", QTextLength(QTextLength::PercentageLength, 5) },
        { "a format", QTextFormat(format) },
        { "matrices", QVariantList { QTransform(1, 2, 3, 4, 5, 6), QMatrix4x4(), QQuaternion() } },
        { "a size policy", QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding) },
    };
}

/// For these a program has to have windows.
QVector<QPair<const char *, QVariant>> windowValues()
{
    const QPixmap pixmap = QPixmap::fromImage(picture());
    const QBitmap bitmap = QBitmap::fromImage(picture().createMaskFromColor(qRgb(255, 0, 0)));
    QPalette palette;
    palette.setBrush(QPalette::Window, QBrush(pixmap));
    return {
        { "a pixmap", pixmap },
        { "no pixmap", QPixmap() },
        { "a bitmap", bitmap },
        { "an icon", QIcon(pixmap) },
        { "a textured brush", QBrush(pixmap) },
        { "a pen of pixels", QPen(QBrush(pixmap), 1) },
        { "a palette of pixels", palette },
        { "a cursor", QCursor(Qt::WaitCursor) },
        { "a cursor of pixels", QCursor(pixmap, 1, 1) },
        { "a cursor of bits", QCursor(bitmap, bitmap) },
        { "pixels in lists",
          QVariantList { QCursor(bitmap, bitmap), QVariantMap { { "a", pixmap } } } },
    };
}

void addRows(const QVector<QPair<const char *, QVariant>> &rows)
{
    for (const auto &row : rows)
        QTest::newRow(row.first) << row.second;
}

void readAndStore(const QString &text, const QByteArray &bytes, QDataStream::Version version)
{
    if (isUnsafe(text))
        return;
    isDamaged(text);
    QDataStream stream(bytes);
    stream.setVersion(version);
    QVariant value;
    stream >> value;
    if (isStorable(value))
        serialised(value, version);
}

} // namespace

class TestTypedText : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaTypeStreamOperators<Chain>("Chain"); }

    void givesBackWhatWasStored_data()
    {
        QTest::addColumn<QVariant>("value");
        addRows(coreValues() + hostValues() + drawnValues());
        if (hasWindows())
            addRows(windowValues());
    }

    void givesBackWhatWasStored()
    {
        QFETCH(QVariant, value);
        VIniSettings("written.ini", Entries { { "a", value } }).saveLocal();
        const QByteArray written = fileContent("written.ini");
        QVERIFY2(written.startsWith("[General]\na="), written.constData());
        // Under names that QSettings does not remember with their values.
        QVERIFY(writeFile("read.ini", written));
        QVERIFY(writeFile("plain.ini", written));
        QSettings plain("plain.ini", QSettings::IniFormat);
        plain.setIniCodec("utf-8");
        VIniSettings read("read.ini", true);
        QCOMPARE(read.allKeys(), QStringList { "a" });
        QCOMPARE(described(read.value("a")), described(plain.value("a")));

        // It is also written again as QSettings does it, and nothing is kept aside.
        read.setValue("b", 1);
        plain.setValue("a", plain.value("a"));
        plain.setValue("b", 1);
        plain.sync();
        QCOMPARE(fileContent("read.ini"), fileContent("plain.ini"));
        QCOMPARE(filesIn("."), (QStringList { "plain.ini", "read.ini", "written.ini" }));
    }

    void refusesWhatIsNotSafe_data()
    {
        QTest::addColumn<QString>("text");
        const auto hex = [](const char *name, const char *bytes) {
            QTest::newRow(name) << variantText(QByteArray::fromHex(bytes));
        };
        const auto row = [](const char *name, const QByteArray &bytes) {
            QTest::newRow(name) << variantText(bytes);
        };
        hex("a polygon with a count", "000000470bb50004");
        hex("a polygon under its other number", "000000a80bb50004");
        hex("a polygon in the plane with a count", "000000b700ffffff");
        row("a polygon under its name",
            number(127) + number(10) + QByteArray("QPolygonF", 10) + number(0xffffffff));
        // With case, syntax and greed behind it, so that only the pattern is wrong.
        const auto patternRow = [row](const char *name, const QByteArray &pattern) {
            row(name,
                number(27) + number(2 * uint(pattern.size())) + utf16(pattern)
                    + QByteArray(3, '\0'));
        };
        patternRow("a pattern of many states", "((a{999}){999})b");
        patternRow("a pattern of groups in groups", "(((a{9,99}){1,99}){9})b");
        patternRow("a pattern of many groups", QByteArray(30000, '('));
        hex("a polygon in a value", "0000008a000000b7ffffffff");
        hex("a polygon in a list", "000000090000000200000001010000004700ffffff");
        hex("a polygon in a map", "00000008000000010000000200610000004700ffffff");
        hex("a brush with a count", "000000420f00ffff0000000000000000000000000fffffff");
        hex("a brush that is cut off", "000000420f00ff");
        hex("a conical brush with a count", "000000421100ffff0000000000000000000000000fffffff");
        hex("a palette", "000000441000000006dce901d7c762d3a122215b47ffb740");
        hex("a pen with a count",
            "0000004d5240000000000000000f00ffff0000000000000000000000000fffffff");
        hex("a region with commands", "000000480000000800000003282c6378b9ab8ddc60db9f26af6f623c");
        hex("a region with a count",
            "000000480000000b0000000a190000010000000000000000000000040000f004");
        row("a region of another size",
            number(72) + number(8 + 16) + number(10) + number(2) + QByteArray(16, '\0'));
        row("a region of too many rectangles",
            number(72) + number(8 + 16 * 10001) + number(10) + number(10001)
                + QByteArray(16 * 10001, '\0'));
        hex("a format with a polygon", "0000004f00000002000000010000000100000047ffffff");
        hex("an image of another format", "0000004600000001424d460000000000000036000000280000");
        hex("an image of a senseless size",
            "000000460000000189504e470d0a1a0a0000000d494844520001000000010000080300000061f857bb"
            "0000000049454e44ae426082");
        QImage large(8193, 8193, QImage::Format_Mono);
        large.fill(0);
        row("an image of too many pixels", serialised(large, QDataStream::Qt_4_0));
        hex("an image of the greatest size",
            "000000460000000189504e470d0a1a0a0000000d49484452ffffffffffffffff080300000061f857bb"
            "0000000049454e44ae426082");
        hex("an image that is cut off", "000000460000000189504e470d0a1a0a0000000d4948");
        hex("a type that no version knows", "0000005a00000000");
        row("values in values", number(0x8a).repeated(5000));
        row("lists in lists", QByteArray(number(9) + number(1)).repeated(5000));
        row("lists one level too deep",
            QByteArray(number(9) + number(1)).repeated(1001) + number(2) + number(5));
        row("maps in maps",
            QByteArray(number(8) + number(1) + number(2) + QByteArray(2, 'k')).repeated(5000));
        row("hashes in hashes", QByteArray(number(28) + number(1) + number(0)).repeated(5000));
        row("formats in formats",
            QByteArray(number(79) + number(2) + number(1) + number(9)).repeated(5000));
        row("types of the host in each other",
            QByteArray(number(127) + number(6) + QByteArray("Chain", 6)).repeated(5000));
        QTest::newRow("a time that is a polygon")
            << typedText("@DateTime(", number(86) + '\0' + number(0xffffffff));
        QTest::newRow("a time in a zone that cannot be")
            << typedText("@DateTime(",
                         QByteArray("\0\0\0\x10\0\0oK\0\xff\0\xff\xd5\x1\0\x8b\xff\xffZ", 19));
        QTest::newRow("lists in lists that are a time")
            << typedText("@DateTime(", QByteArray(number(9) + '\0' + number(1)).repeated(5000));
        if (hasWindows()) {
            const QBitmap bitmap(8, 8);
            row("a polygon behind a cursor of bits",
                number(9) + number(2) + serialised(QCursor(bitmap, bitmap), QDataStream::Qt_4_0)
                    + number(71) + number(0xffffffff));
        }
        addPixels();
    }

    void refusesWhatIsNotSafe()
    {
        QFETCH(QString, text);
        QVERIFY(isUnsafe(text));
        QVERIFY(!isUnsafe(text.chopped(1)));
        // As the only element, and as one of a list behind a long text.
        const QByteArray alone = fileWith(text);
        for (const QByteArray &bytes :
             { alone,
               QByteArray(alone).replace("value=", "value=" + QByteArray(9000, 'x') + ", ") }) {
            QVERIFY(writeFile("f.ini", bytes));
            VIniSettings store("f.ini", true);
            QCOMPARE(store.filepath(), QString("f.ini"));
            QCOMPARE(store.allKeys(), QStringList());
            store.setValue("a", 1);
            QCOMPARE(fileContent("f.ini"), bytes);
            QCOMPARE(filesIn("."), QStringList { "f.ini" });
        }
        // Readers of the host may complain about what they cannot read.
        Messages::collected().clear();
    }

    /// Whatever changes in a stored value: it is refused, or Qt reads it and stores it again.
    void survivesChangedBytes_data()
    {
        QTest::addColumn<QVariant>("value");
        addRows(coreValues() + drawnValues());
        if (hasWindows())
            addRows(windowValues());
    }

    void survivesChangedBytes()
    {
        QFETCH(QVariant, value);
        const bool isTime = value.userType() == QMetaType::QDateTime;
        const auto version = isTime ? QDataStream::Qt_5_6 : QDataStream::Qt_4_0;
        const QByteArray honest = serialised(value, version);
        Dice dice { 1 };
        for (int i = 0; i < 100; ++i) {
            QByteArray bytes = honest;
            for (int j = dice.between(1, 4); j > 0; --j)
                bytes[dice.between(0, bytes.size() - 1)] = char(dice.between(0, 255));
            if (dice.chance(20))
                bytes.truncate(dice.between(0, bytes.size()));
            const QString text = typedText(isTime ? "@DateTime(" : "@Variant(", bytes);
            try {
                readAndStore(text, bytes + ')', version);
            } catch (const std::bad_alloc &) {
                // The library notices that, too, and leaves such a file alone.
            }
        }
        // Qt itself complains about what it cannot read.
        Messages::collected().clear();
    }

    /// The file would be unsafe for it, with all that is in it.
    void storesNothingThatItCouldNotReadAgain()
    {
        const QImage large(8000, 8000, QImage::Format_Mono);
        QTextFormat format;
        format.setProperty(QTextFormat::UserProperty,
                           nested(1000, [](const QVariant &v) { return QVariantList { v }; }));
        QRegion region;
        for (int i = 0; i < 10001; ++i)
            region += QRect(2 * i, 2 * i, 1, 1);
        VIniSettings store("f.ini", true);
        store.setValue("image", large);
        store.setValue("format", QVariant(format));
        store.setValue("region", region);
        store.setValue("pattern", QRegExp("((a{999}){999})"));
        store.setValue("value", nested(1001, [](const QVariant &v) {
                           return QVariant(QMetaType::QVariant, &v);
                       }));
        if (!hasWindows())
            store.setValue("cursor", QVariantList { QCursor(Qt::WaitCursor) });
        store.setValue("d", 1);
        QCOMPARE(fileContent("f.ini"), QByteArray("[General]\nd=1\n"));
    }

    void storesNoTimeInAZoneThatIsNone()
    {
        const QDateTime time(QDate(2020, 2, 29), QTime(1, 2, 3), QTimeZone());
        VIniSettings store("f.ini", true);
        store.setValue("a", time);
        store.setValue("b", QVariantList { QVariantMap { { "c", time } } });
        QTextFormat format;
        format.setProperty(QTextFormat::UserProperty, time);
        store.setValue("e", QVariant(format));
        store.setValue("d", 1);
        QCOMPARE(fileContent("f.ini"), QByteArray("[General]\nd=1\n"));
    }

private:
    /// What is made of pixels is refused in programs without windows, and only there.
    static void addPixels()
    {
        if (hasWindows())
            return;
        QByteArray image = number(1);
        QBuffer buffer(&image);
        buffer.open(QIODevice::Append);
        picture().save(&buffer, "PNG");
        const QByteArray color(11, '\0');
        QTest::newRow("a pixmap") << variantText(number(65) + image);
        QTest::newRow("no pixmap") << variantText(number(65) + number(0));
        QTest::newRow("a bitmap") << variantText(number(73) + image);
        QTest::newRow("an icon") << variantText(number(69) + number(0));
        QTest::newRow("a brush") << variantText(number(66) + char(24) + color + image);
        QTest::newRow("a pen") << variantText(number(77) + QByteArray(9, '\0') + char(24) + color
                                              + number(0));
        QTest::newRow("a palette") << variantText(number(68) + char(24) + color + image);
        QTest::newRow("a cursor") << variantText(number(74) + QByteArray(2, '\0'));
    }
};

#ifdef KELTO_CONSOLE
QTEST_GUILESS_MAIN(TestTypedText)
#else
QTEST_MAIN(TestTypedText)
#endif
#include "tst_typedtext.moc"
