// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// An item from JSON.

#include "command.h"
#include "convert/jsonitem.h"
#include "convert/storedvalue.h"
#include "keltoparameterentry.h"
#include "nearestname.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>
#include <limits>

namespace {

QString nameOf(QJsonValue::Type type)
{
    switch (type) {
    case QJsonValue::Bool:
        return Command::tr("a boolean");
    case QJsonValue::Double:
        return Command::tr("a number");
    case QJsonValue::String:
        return Command::tr("a text");
    case QJsonValue::Array:
        return Command::tr("an array");
    case QJsonValue::Object:
        return Command::tr("an object");
    default:
        return Command::tr("nothing");
    }
}

QString below(const QString &pointer, const QString &member)
{
    QString escaped = member;
    escaped.replace(QLatin1Char('~'), QLatin1String("~0"));
    escaped.replace(QLatin1Char('/'), QLatin1String("~1"));
    return pointer + QLatin1Char('/') + escaped;
}

QString below(const QString &pointer, int element)
{
    return pointer + QLatin1Char('/') + QString::number(element);
}

/// Reads one value after the other, and remembers the first that is not what it has to be.
class JsonReader
{
public:
    explicit JsonReader(JsonError *error)
        : m_error(error)
    {
    }

    AUTH_INF item(const QJsonObject &object);

private:
    void fail(const QString &pointer, const QString &text)
    {
        if (m_error->text.isEmpty())
            *m_error = { pointer, text };
    }

    /// Whether there is a value, which is of the type then, or wrong.
    bool isA(QJsonValue::Type type, const QJsonValue &value, const QString &pointer)
    {
        if (value.type() != type && !value.isUndefined())
            fail(pointer,
                 Command::tr("%1 is expected here, not %2.")
                     .arg(nameOf(type), nameOf(value.type())));
        return value.type() == type;
    }

    QString text(const QJsonValue &value, const QString &pointer)
    {
        return isA(QJsonValue::String, value, pointer) ? value.toString() : QString();
    }

    /// The text, or @p otherwise where there is none.
    QString text(const QJsonObject &object, const char *field, const QString &pointer,
                 const QString &otherwise = QString())
    {
        const QJsonValue value = object.value(QLatin1String(field));
        return value.isUndefined() ? otherwise : text(value, below(pointer, QLatin1String(field)));
    }

    QStringList texts(const QJsonValue &value, const QString &pointer)
    {
        QStringList list;
        if (isA(QJsonValue::Array, value, pointer)) {
            const QJsonArray array = value.toArray();
            for (int i = 0; i < array.size(); ++i)
                list.append(text(array.at(i), below(pointer, i)));
        }
        return list;
    }

    QStringList texts(const QJsonObject &object, const char *field)
    {
        return texts(object.value(QLatin1String(field)), below(QString(), QLatin1String(field)));
    }

    int integer(const QJsonObject &object, const char *field, int otherwise)
    {
        const QJsonValue value = object.value(QLatin1String(field));
        const QString pointer = below(QString(), QLatin1String(field));
        if (!isA(QJsonValue::Double, value, pointer))
            return otherwise;
        const double number = value.toDouble();
        if (number == std::floor(number) && std::abs(number) <= std::numeric_limits<int>::max())
            return int(number);
        // The smallest number of all has no positive one beside it.
        if (number == std::numeric_limits<int>::min())
            return std::numeric_limits<int>::min();
        fail(pointer, Command::tr("a whole number of 32 bits is expected here."));
        return otherwise;
    }

    void checkMembers(const QJsonObject &object, const QStringList &known, const QString &pointer)
    {
        const QStringList names = object.keys();
        for (const QString &name : names) {
            if (!known.contains(name))
                fail(below(pointer, name),
                     Command::tr("there is no such member.") + didYouMean(name, known));
        }
    }

    QString flag(const QJsonValue &value, const QString &pointer)
    {
        if (value.isBool())
            return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
        return text(value, pointer);
    }

    QStringList entry(const QJsonValue &value, const QString &pointer);
    QVector<QStringList> entries(const QJsonValue &value, const QString &pointer);
    QVariant value(const QJsonValue &value, const QString &pointer);
    QVariant typedValue(const QJsonObject &object, const QString &pointer);
    QVector<VDataItem> extraKeys(const QJsonValue &value);

    JsonError *m_error;
};

QStringList JsonReader::entry(const QJsonValue &value, const QString &pointer)
{
    if (value.isArray())
        return texts(value, pointer);
    if (!isA(QJsonValue::Object, value, pointer))
        return {};
    const QJsonObject object = value.toObject();
    checkMembers(object,
                 { QStringLiteral("group"), QStringLiteral("key"), QStringLiteral("objectName"),
                   QStringLiteral("multi"), QStringLiteral("unit"), QStringLiteral("secondUnit"),
                   QStringLiteral("symbol"), QStringLiteral("key_tr"), QStringLiteral("group_tr") },
                 pointer);
    if (!object.contains(QStringLiteral("key")))
        fail(pointer, Command::tr("the member \"key\" is missing."));
    const QString group = text(object, "group", pointer);
    const QString key = text(object, "key", pointer);
    const QString unit = text(object, "unit", pointer);
    const QJsonValue multi = object.value(QLatin1String("multi"));
    // In the order of KeltoParameterEntry::Place.
    return { group,
             key,
             text(object, "objectName", pointer),
             multi.isUndefined() ? QStringLiteral("false")
                                 : flag(multi, below(pointer, QStringLiteral("multi"))),
             unit,
             text(object, "secondUnit", pointer, unit),
             text(object, "symbol", pointer),
             text(object, "key_tr", pointer, key),
             text(object, "group_tr", pointer, group) };
}

QVector<QStringList> JsonReader::entries(const QJsonValue &value, const QString &pointer)
{
    QVector<QStringList> list;
    if (isA(QJsonValue::Array, value, pointer)) {
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i)
            list.append(entry(array.at(i), below(pointer, i)));
    }
    return list;
}

QVariant JsonReader::typedValue(const QJsonObject &object, const QString &pointer)
{
    if (object.contains(QStringLiteral("stored"))) {
        checkMembers(object, { QStringLiteral("stored") }, pointer);
        const QString place = below(pointer, QStringLiteral("stored"));
        const QVariant value = valueOfStored(texts(object.value(QLatin1String("stored")), place));
        if (!value.isValid())
            fail(place, Command::tr("QSettings would not read a value from this."));
        return value;
    }
    checkMembers(object, { QStringLiteral("type"), QStringLiteral("text") }, pointer);
    QVariant value = text(object, "text", pointer);
    if (text(object, "type", pointer) != QLatin1String("double"))
        fail(below(pointer, QStringLiteral("type")),
             Command::tr("only \"double\" is a type; other values are \"stored\"."));
    else if (!value.convert(QMetaType::Double))
        fail(below(pointer, QStringLiteral("text")), Command::tr("this is no number."));
    return value;
}

QVariant JsonReader::value(const QJsonValue &value, const QString &pointer)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::Double: {
        const int whole = value.toInt(0);
        return whole == value.toDouble() ? QVariant(whole) : QVariant(value.toDouble());
    }
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Array:
        return texts(value, pointer);
    case QJsonValue::Object:
        return typedValue(value.toObject(), pointer);
    default:
        return {};
    }
}

QVector<VDataItem> JsonReader::extraKeys(const QJsonValue &list)
{
    QVector<VDataItem> items;
    const QString pointer = QStringLiteral("/extraKey");
    if (!isA(QJsonValue::Array, list, pointer))
        return items;
    const QJsonArray array = list.toArray();
    for (int i = 0; i < array.size(); ++i) {
        const QString place = below(pointer, i);
        if (!isA(QJsonValue::Object, array.at(i), place))
            continue;
        const QJsonObject object = array.at(i).toObject();
        checkMembers(object, { QStringLiteral("key"), QStringLiteral("value") }, place);
        if (!object.contains(QStringLiteral("key")))
            fail(place, Command::tr("the member \"key\" is missing."));
        items.append(
            { text(object, "key", place),
              value(object.value(QLatin1String("value")), below(place, QStringLiteral("value"))) });
    }
    return items;
}

AUTH_INF JsonReader::item(const QJsonObject &object)
{
    const QString root;
    QStringList known = jsonOf(AUTH_INF()).keys();
    known += { QStringLiteral("name_tr"), QStringLiteral("type_tr"), QStringLiteral("group_tr"),
               QStringLiteral("inner_mode_nameList_tr"), QStringLiteral("$schema") };
    checkMembers(object, known, root);
    if (!object.contains(QStringLiteral("name")))
        fail(root, Command::tr("the member \"name\" is missing."));
    AUTH_INF item;
    item.number = integer(object, "number", 0);
    item.name = text(object, "name", root);
    item.name_tr = text(object, "name_tr", root, item.name);
    item.description = text(object, "description", root);
    item.icon = text(object, "icon", root);
    item.type = text(object, "type", root);
    item.type_tr = text(object, "type_tr", root, item.type);
    item.group = text(object, "group", root);
    item.group_tr = text(object, "group_tr", root, item.group);
    const QJsonValue exclusive = object.value(QLatin1String("exclusive_group"));
    isA(QJsonValue::Bool, exclusive, QStringLiteral("/exclusive_group"));
    item.exclusive_group = exclusive.toBool();
    item.lib_name = texts(object, "lib_name");
    item.inner_mode_description = texts(object, "inner_mode_description");
    item.inner_mode_nameList = texts(object, "inner_mode_nameList");
    item.inner_mode_nameList_tr = object.contains(QStringLiteral("inner_mode_nameList_tr"))
        ? texts(object, "inner_mode_nameList_tr")
        : item.inner_mode_nameList;
    item.inner_mode_count = integer(object, "inner_mode_count", item.inner_mode_nameList.size());
    const QJsonValue modes = object.value(QLatin1String("inner_mode_parameterList"));
    const QString pointer = QStringLiteral("/inner_mode_parameterList");
    isA(QJsonValue::Array, modes, pointer);
    for (int i = 0; i < modes.toArray().size(); ++i)
        item.inner_mode_parameterList.append(entries(modes.toArray().at(i), below(pointer, i)));
    item.trObjectName = text(object, "trObjectName", root);
    item.codeFunctionName = text(object, "codeFunctionName", root);
    item.output_results
        = entries(object.value(QLatin1String("output_results")), QStringLiteral("/output_results"));
    item.extraKey = extraKeys(object.value(QLatin1String("extraKey")));
    return item;
}

} // namespace

AUTH_INF itemIn(const QJsonObject &object, JsonError *error)
{
    return JsonReader(error).item(object);
}

AUTH_INF itemInJson(const QByteArray &bytes, JsonError *error)
{
    // Qt drops the mark in front of a text; the one in front of the file is no text.
    const QByteArray mark("\xef\xbb\xbf");
    QByteArray json = bytes.mid(bytes.startsWith(mark) ? mark.size() : 0);
    json.replace(mark, "\\ufeff");
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        const QByteArray before = json.left(parseError.offset);
        error->text = Command::tr("line %1: this is no JSON: %2.")
                          .arg(before.count('\n') + 1)
                          .arg(parseError.errorString());
        return {};
    }
    if (!document.isObject()) {
        error->text = Command::tr("an object is expected, not an array.");
        return {};
    }
    return itemIn(document.object(), error);
}
