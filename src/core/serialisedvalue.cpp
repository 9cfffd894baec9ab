// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/serialisedvalue_p.h"

#include <QBrush>
#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QMetaType>

#include <cstdlib>
#include <type_traits>

namespace {

/// What the readers of types that the host has registered may take of the stack.
constexpr std::ptrdiff_t mostStack = 256 * 1024;
/// Qt needs too much memory and time for larger pictures and regions.
constexpr qint64 mostPixels = 1 << 25;
constexpr int mostRectangles = 10000;

/// The type that @p number stands for in streams of Qt 4.
int typeOf(quint32 number)
{
    if (number == 75)
        return QMetaType::QSizePolicy;
    if (number > 75 && number <= 86)
        return static_cast<int>(number) - 1;
    if (number == 127)
        return QMetaType::User;
    return static_cast<int>(number >= 128 && number != QMetaType::User ? number - 97 : number);
}

/// Whether Qt reads values of @p type without recursion and without trusting a count in the bytes.
bool isFlat(int type)
{
    switch (type) {
    case QMetaType::QVariantList:
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
    case QMetaType::QVariant:
    case QMetaType::QRegExp:
        return false;
    case QMetaType::QFont:
    case QMetaType::QColor:
    case QMetaType::QKeySequence:
    case QMetaType::QTextLength:
    case QMetaType::QMatrix:
    case QMetaType::QTransform:
    case QMetaType::QMatrix4x4:
    case QMetaType::QVector2D:
    case QMetaType::QVector3D:
    case QMetaType::QVector4D:
    case QMetaType::QQuaternion:
    case QMetaType::QColorSpace:
    case QMetaType::QSizePolicy:
        return true;
    default:
        return type >= QMetaType::UnknownType && type <= QMetaType::QCborMap;
    }
}

bool hasWindows()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance());
}

/// Whether an old regular expression is small: it is compiled as soon as it is read, with every
/// group as often as it is repeated.
bool isModest(const QString &pattern)
{
    const qint64 mostStates = 500000;
    qint64 groups = 1;
    qint64 single = 1;
    for (int at = pattern.indexOf(QLatin1Char('{')); at >= 0;
         at = pattern.indexOf(QLatin1Char('{'), at + 1)) {
        const int end = pattern.indexOf(QLatin1Char('}'), at);
        const QStringList counts = pattern.mid(at + 1, end - at - 1).split(QLatin1Char(','));
        const qint64 count = qMax(counts.constFirst().toUInt(), counts.constLast().toUInt());
        const bool isGroup = at > 0 && pattern.at(at - 1) == QLatin1Char(')');
        groups = qMin(groups * (isGroup ? qMax<qint64>(count, 1) : 1), mostStates);
        single = isGroup ? single : qMax(single, qMin(count, mostStates));
    }
    return pattern.count(QLatin1Char('(')) <= deepestLevel
        && qMin(groups * single, mostStates + 1) * pattern.size() <= mostStates;
}

/// Bytes that seem to end as soon as their reader has used too much of the stack, which stops a
/// reader that calls itself for each level of what it reads.
class ShallowBuffer : public QBuffer
{
public:
    /// From now on, the stack is measured from @p bottom, a variable of the caller's.
    void setBottom(const char *bottom) { m_bottom = bottom; }
    bool isDeep() const { return m_isDeep; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const char here = 0;
        m_isDeep = m_isDeep || (m_bottom && std::abs(&here - m_bottom) > mostStack);
        return m_isDeep ? -1 : QBuffer::readData(data, size);
    }

private:
    const char *m_bottom = nullptr;
    bool m_isDeep = false;
};

/// Walks through serialised values in the format of Qt 4, which QSettings still writes. Each
/// function returns whether what comes next is safe to read, and moves behind it.
class SerialisedWalk
{
public:
    explicit SerialisedWalk(const QByteArray &bytes)
    {
        m_buffer.setData(bytes);
        m_buffer.open(QIODevice::ReadOnly);
        m_stream.setDevice(&m_buffer);
        m_stream.setVersion(variantVersion);
    }

    bool value(int level = 0);
    /// The same for a value without the number of its type in front.
    bool compound(int type, int level);

private:
    bool readByQt(qint64 start);
    template <typename Key> bool values(int level);
    bool image();
    bool pixmap();
    bool brush();
    bool palette();
    bool pen();
    bool cursor();
    bool region();

    template <typename Number> Number next()
    {
        Number number {};
        m_stream >> number;
        return number;
    }
    bool skip(qint64 size)
    {
        return size <= m_buffer.bytesAvailable() && m_buffer.seek(m_buffer.pos() + size);
    }
    bool skipCounted(int elementSize) { return skip(qint64(next<quint32>()) * elementSize); }

    ShallowBuffer m_buffer;
    QDataStream m_stream;
    qint64 m_pixels = 0;
};

bool SerialisedWalk::value(int level)
{
    const qint64 start = m_buffer.pos();
    int type = typeOf(next<quint32>());
    // A type of Qt may also be given by its name.
    if (type == QMetaType::User)
        type = QMetaType::type(next<QByteArray>().constData());
    if (level == 0 && isFlat(type))
        return true;
    if (level > deepestLevel)
        return false;
    return isFlat(type) || type >= QMetaType::User ? readByQt(start) : compound(type, level + 1);
}

/// A list that ends before its count is reached is safe: Qt notices that itself.
template <typename Key> bool SerialisedWalk::values(int level)
{
    const auto count = next<quint32>();
    for (quint32 i = 0; i < count && m_stream.status() == QDataStream::Ok; ++i) {
        if constexpr (!std::is_void_v<Key>)
            next<Key>();
        if (!value(level))
            return false;
    }
    return true;
}

bool SerialisedWalk::compound(int type, int level)
{
    switch (type) {
    case QMetaType::QVariant:
        return value(level);
    case QMetaType::QVariantList:
        return values<void>(level);
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return values<QString>(level);
    case QMetaType::QTextFormat:
        return skip(sizeof(qint32)) && values<qint32>(level);
    case QMetaType::QRegExp:
        return isModest(next<QString>()) && skip(3);
    case QMetaType::QImage:
        return image();
    case QMetaType::QPixmap:
    case QMetaType::QBitmap:
    case QMetaType::QIcon:
        return pixmap();
    case QMetaType::QBrush:
        return brush();
    case QMetaType::QPalette:
        return palette();
    case QMetaType::QPen:
        return pen();
    case QMetaType::QCursor:
        return cursor();
    case QMetaType::QRegion:
        return region();
    case QMetaType::QPolygon:
        return skipCounted(2 * sizeof(qint32));
    case QMetaType::QPolygonF:
        return skipCounted(2 * sizeof(double));
    default:
        return false;
    }
}

bool SerialisedWalk::readByQt(qint64 start)
{
    m_buffer.seek(start);
    const char bottom = 0;
    m_buffer.setBottom(&bottom);
    QVariant value;
    m_stream >> value;
    m_buffer.setBottom(nullptr);
    return !m_buffer.isDeep();
}

/// Pictures are stored as PNG. On other bytes Qt would try the readers of all formats, and after a
/// picture that it cannot read to its end it would go on in the middle of it.
bool SerialisedWalk::image()
{
    const qint64 start = m_buffer.pos();
    const bool isNull = next<qint32>() == 0;
    if (isNull)
        return m_stream.status() == QDataStream::Ok;
    const quint64 signature = 0x89504e470d0a1a0a;
    const quint32 header = 0x49484452;
    const quint32 end = 0x49454e44;
    if (next<quint64>() != signature)
        return false;
    auto size = next<quint32>();
    auto chunk = next<quint32>();
    const qint64 dimensions = m_buffer.pos();
    // Limited one by one, as the product of the greatest sizes would not fit.
    const qint64 width = qMin<qint64>(next<quint32>(), mostPixels + 1);
    m_pixels += width * qMin<qint64>(next<quint32>(), mostPixels + 1);
    if (chunk != header || m_pixels > mostPixels)
        return false;
    m_buffer.seek(dimensions);
    while (skip(size + qint64(sizeof(quint32))) && chunk != end) {
        size = next<quint32>();
        chunk = next<quint32>();
    }
    const qint64 behind = m_buffer.pos();
    m_buffer.seek(start);
    return chunk == end && !next<QImage>().isNull() && m_buffer.pos() == behind;
}

bool SerialisedWalk::pixmap()
{
    return hasWindows() && image();
}

bool SerialisedWalk::brush()
{
    const int colorSize = 11;
    const int stopSize = sizeof(double) + colorSize;
    const auto style = next<quint8>();
    if (!skip(colorSize))
        return false;
    if (style == Qt::TexturePattern)
        return pixmap();
    if (style < Qt::LinearGradientPattern || style > Qt::ConicalGradientPattern)
        return true;
    const auto type = next<qint32>();
    const int numbers = type == QGradient::LinearGradient ? 4
        : type == QGradient::RadialGradient               ? 5
                                                          : 3;
    return skipCounted(stopSize) && skip(numbers * qint64(sizeof(double)));
}

bool SerialisedWalk::palette()
{
    const int brushes = 3 * 17;
    for (int i = 0; i < brushes; ++i) {
        if (!brush())
            return false;
    }
    return true;
}

bool SerialisedWalk::pen()
{
    const qint64 styleAndWidth = 1 + sizeof(double);
    return skip(styleAndWidth) && brush() && skip(sizeof(double)) && skipCounted(sizeof(double));
}

bool SerialisedWalk::cursor()
{
    if (!hasWindows())
        return false;
    if (next<qint16>() != Qt::BitmapCursor)
        return true;
    const bool isPixmap = next<bool>();
    return pixmap() && (isPixmap || pixmap()) && skip(2 * sizeof(qint32));
}

/// A region is stored as its rectangles. Qt would also read commands that combine regions.
bool SerialisedWalk::region()
{
    const auto size = next<quint32>();
    if (size == 0)
        return m_stream.status() == QDataStream::Ok;
    const quint32 rectangles = 10;
    const auto command = next<quint32>();
    const auto count = next<quint32>();
    const qint64 expectedSize = 2 * sizeof(quint32) + qint64(count) * 4 * sizeof(qint32);
    return command == rectangles && count <= mostRectangles && size == expectedSize
        && skip(size - 2 * sizeof(quint32));
}

} // namespace

bool isSafeVariant(const QByteArray &bytes)
{
    return SerialisedWalk(bytes).value();
}

bool isSafeValue(int type, const QByteArray &bytes, int level)
{
    return isFlat(type) || type >= QMetaType::User || SerialisedWalk(bytes).compound(type, level);
}
