// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "convert/inidocument.h"

#include "convert/jsonitem.h"
#include "convert/storedvalue.h"
#include "format/document.h"
#include "format/initext.h"
#include "keltoparameterentry.h"

#include <QFile>
#include <QHash>
#include <QTemporaryDir>

#include <algorithm>

namespace {

/// Puts keys into a document; the last value of each counts, as in a save.
class DocumentWriter
{
public:
    void set(const char *section, const QString &key, const QStringList &elements)
    {
        const QString name = QLatin1String(section);
        QVector<DocumentEntry> &entries = m_document.section(name).entries;
        const QPair<QString, QString> place(name, key);
        const auto known = m_positions.constFind(place);
        if (known != m_positions.cend()) {
            entries[*known].value = elements;
            return;
        }
        m_positions.insert(place, entries.size());
        DocumentEntry entry;
        entry.name = key;
        entry.value = elements;
        entries.append(entry);
    }

    void set(const char *section, const QString &key, const QVariant &value)
    {
        set(section, key, storedElements(value));
    }

    Document document()
    {
        arrange(&m_document);
        return m_document;
    }

private:
    Document m_document;
    QHash<QPair<QString, QString>, int> m_positions;
};

void writeFields(DocumentWriter *writer, const AUTH_INF &item)
{
    const auto write = [writer](const char *field, const QVariant &value, bool isThere = true) {
        if (isThere)
            writer->set("KeltoItem", QLatin1String(field), value);
    };
    write("number", item.number, item.number != 0);
    write("name", item.name);
    write("description", item.description);
    write("icon", item.icon, !item.icon.isEmpty());
    write("group", item.group);
    write("type", item.type);
    write("exclusive_group", item.exclusive_group);
    write("lib_name", item.lib_name, !item.lib_name.isEmpty());
    write("inner_mode_count", item.inner_mode_count);
    write("inner_mode_description", item.inner_mode_description);
    write("inner_mode_nameList", item.inner_mode_nameList);
    write("Tr_ObjectName", item.trObjectName, !item.trObjectName.isEmpty());
    write("codeFunctionName", item.codeFunctionName, !item.codeFunctionName.isEmpty());
}

void writeEntry(DocumentWriter *writer, const char *section, const QStringList &entry)
{
    using namespace KeltoParameterEntry;
    const QString key = entry.value(Key);
    QStringList units { entry.value(Unit), entry.value(SecondUnit) };
    if (units == QStringList { QString(), QString() })
        units.removeLast();
    writer->set(section, key, QVariant(QString()));
    writer->set("Unit", key, QVariant(units));
    writer->set("Symbol", key, QVariant(entry.value(Symbol)));
    writer->set("Multi", key, QVariant(entry.value(Multi)));
    writer->set("ObjectName", key, QVariant(entry.value(ObjectName)));
    writer->set("Group", key, QVariant(entry.value(Group)));
}

void writeResults(DocumentWriter *writer, const AUTH_INF &item)
{
    QStringList keys;
    for (const QStringList &entry : item.output_results) {
        keys.append(entry.value(KeltoParameterEntry::Key));
        writeEntry(writer, "Result", entry);
    }
    if (!keys.isEmpty())
        writer->set("KeltoItem", QStringLiteral("output_results"), QVariant(keys));
}

void writeParameters(DocumentWriter *writer, const AUTH_INF &item)
{
    QHash<QString, QStringList> modes;
    for (int i = 0; i < item.inner_mode_parameterList.size(); ++i) {
        for (const QStringList &entry : item.inner_mode_parameterList.at(i)) {
            const QString key = entry.value(KeltoParameterEntry::Key);
            if (!modes.contains(key))
                writeEntry(writer, "Attribute", entry);
            modes[key].append(item.inner_mode_nameList.value(i));
        }
    }
    for (auto mode = modes.begin(); mode != modes.end(); ++mode) {
        mode->removeDuplicates();
        writer->set("Belong", mode.key(), QVariant(*mode));
    }
}

QStringList plainEntry(QStringList entry)
{
    if (entry.size() == KeltoParameterEntry::PlaceCount) {
        entry[KeltoParameterEntry::TranslatedKey] = entry.at(KeltoParameterEntry::Key);
        entry[KeltoParameterEntry::TranslatedGroup] = entry.at(KeltoParameterEntry::Group);
    }
    return entry;
}

QVector<QStringList> plainEntries(const QVector<QStringList> &entries)
{
    QVector<QStringList> plain;
    for (const QStringList &entry : entries)
        plain.append(plainEntry(entry));
    return plain;
}

AUTH_INF withoutTranslations(AUTH_INF item)
{
    item.name_tr = item.name;
    item.type_tr = item.type;
    item.group_tr = item.group;
    item.inner_mode_nameList_tr = item.inner_mode_nameList;
    for (QVector<QStringList> &entries : item.inner_mode_parameterList)
        entries = plainEntries(entries);
    item.output_results = plainEntries(item.output_results);
    return item;
}

/// A text as a file gives it: neither numbers nor lists of one have a type of their own.
QVariant plainValue(const QVariant &value)
{
    const QStringList texts = value.toStringList();
    if (value.userType() == QMetaType::QStringList && texts.size() < 2)
        return texts.isEmpty() ? QVariant() : QVariant(texts.constFirst());
    const bool isNumber = value.userType() == QMetaType::Bool || value.userType() == QMetaType::Int
        || value.userType() == QMetaType::Double;
    return isNumber ? QVariant(value.toString()) : value;
}

void sortByKey(QVector<QStringList> *entries)
{
    std::stable_sort(entries->begin(), entries->end(),
                     [](const QStringList &a, const QStringList &b) {
                         return a.value(KeltoParameterEntry::Key)
                             < b.value(KeltoParameterEntry::Key);
                     });
}

/// The same item where order and types are those that any file has.
AUTH_INF comparable(AUTH_INF item)
{
    // A list of parameters for each name: so it is read.
    if (item.inner_mode_parameterList.size() < item.inner_mode_nameList.size())
        item.inner_mode_parameterList.resize(item.inner_mode_nameList.size());
    for (QVector<QStringList> &entries : item.inner_mode_parameterList)
        sortByKey(&entries);
    sortByKey(&item.output_results);
    std::stable_sort(item.extraKey.begin(), item.extraKey.end(),
                     [](const VDataItem &a, const VDataItem &b) { return a.key < b.key; });
    for (VDataItem &extra : item.extraKey)
        extra.value = plainValue(extra.value);
    return item;
}

} // namespace

QByteArray iniOf(const AUTH_INF &item)
{
    DocumentWriter writer;
    writeFields(&writer, item);
    writeResults(&writer, item);
    // After the results, whose descriptions they replace where keys are equal.
    writeParameters(&writer, item);
    for (const VDataItem &extra : item.extraKey)
        writer.set("ExtraKey", extra.key, extra.value);
    return textOf(writer.document());
}

IniLoss lossOf(const AUTH_INF &item, const QByteArray &ini)
{
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("item.ini")));
    if (!file.open(QIODevice::WriteOnly) || file.write(ini) != ini.size())
        return { { directory.errorString() }, false };
    file.close();
    AUTH_INF loaded;
    loaded.load_ini(file.fileName());
    const AUTH_INF plain = withoutTranslations(item);
    IniLoss loss;
    loss.hasTranslations = jsonOf(plain) != jsonOf(item);
    const QJsonObject expected = jsonOf(comparable(plain));
    const QJsonObject actual = jsonOf(comparable(loaded));
    const QStringList fields = expected.keys();
    for (const QString &field : fields) {
        if (actual.value(field) != expected.value(field))
            loss.fields.append(field);
    }
    return loss;
}
