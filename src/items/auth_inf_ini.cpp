// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A module item in an INI file of its own.

#include "auth_inf.h"

#include "core/firstpositions_p.h"
#include "keltoparameterentry.h"
#include "vinisettings.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

namespace Section {
const QLatin1String attribute("Attribute");
const QLatin1String result("Result");
const QLatin1String belong("Belong");
const QLatin1String extraKey("ExtraKey");
// What describes an entry. Parameters and results share these.
const QLatin1String unit("Unit");
const QLatin1String symbol("Symbol");
const QLatin1String multi("Multi");
const QLatin1String objectName("ObjectName");
const QLatin1String group("Group");
} // namespace Section

QString keyIn(QLatin1String section, const QString &key)
{
    return section + QLatin1Char('/') + key;
}

/// The key of one of the item's own fields.
QString fieldKey(const char *field)
{
    return QLatin1String("KeltoItem/") + QLatin1String(field);
}

QString keyOf(const QStringList &entry)
{
    return entry.value(KeltoParameterEntry::Key);
}

// --- Saving ----------------------------------------------------------------------

void writeFields(VIniSettings &file, const AUTH_INF &item)
{
    const auto write = [&file](const char *field, const QVariant &value) {
        file.setValue(fieldKey(field), value);
    };
    write("number", item.number);
    write("name", item.name);
    write("description", item.description);
    write("icon", item.icon);
    write("group", item.group);
    write("type", item.type);
    write("exclusive_group", item.exclusive_group);
    write("lib_name", item.lib_name);
    write("inner_mode_count", item.inner_mode_count);
    write("inner_mode_description", item.inner_mode_description);
    write("inner_mode_nameList", item.inner_mode_nameList);
    write("Tr_ObjectName", item.trObjectName);
    write("codeFunctionName", item.codeFunctionName);
}

/// The translated key and group are not written: a reader makes them from the plain ones.
void writeEntry(VIniSettings &file, const QStringList &entry)
{
    const QString key = keyOf(entry);
    const QStringList units { entry.value(KeltoParameterEntry::Unit),
                              entry.value(KeltoParameterEntry::SecondUnit) };
    file.setValue(keyIn(Section::unit, key), units);
    file.setValue(keyIn(Section::symbol, key), entry.value(KeltoParameterEntry::Symbol));
    file.setValue(keyIn(Section::multi, key), entry.value(KeltoParameterEntry::Multi));
    file.setValue(keyIn(Section::objectName, key), entry.value(KeltoParameterEntry::ObjectName));
    file.setValue(keyIn(Section::group, key), entry.value(KeltoParameterEntry::Group));
}

void writeResults(VIniSettings &file, const QVector<QStringList> &results)
{
    for (const QStringList &entry : results) {
        if (entry.size() != KeltoParameterEntry::PlaceCount)
            continue;
        file.setValue(keyIn(Section::result, keyOf(entry)), QString());
        writeEntry(file, entry);
    }
}

/// The first entry of each key, in the order of the inner modes.
QVector<QStringList> distinctParameters(const AUTH_INF &item)
{
    QVector<QStringList> parameters;
    QSet<QString> known;
    for (const QVector<QStringList> &entries : item.inner_mode_parameterList) {
        for (const QStringList &entry : entries) {
            if (known.contains(keyOf(entry)))
                continue;
            known.insert(keyOf(entry));
            parameters.append(entry);
        }
    }
    return parameters;
}

QStringList distinctKeys(const QVector<QStringList> &entries)
{
    QStringList keys;
    keys.reserve(entries.size());
    for (const QStringList &entry : entries)
        keys.append(keyOf(entry));
    keys.removeDuplicates();
    return keys;
}

/// AUTH_INF::parameter_belonglist() of every key that has one, gathered in one walk.
QHash<QString, QStringList> belongLists(const AUTH_INF &item)
{
    QVector<QStringList> keysOfModes(item.inner_mode_parameterList.size());
    std::transform(item.inner_mode_parameterList.cbegin(), item.inner_mode_parameterList.cend(),
                   keysOfModes.begin(), distinctKeys);

    QHash<QString, QStringList> lists;
    FirstPositions modes;
    for (const QString &mode : item.inner_mode_nameList) {
        modes.append(mode);
        const QStringList keys = keysOfModes.value(modes.indexOf(mode));
        for (const QString &key : keys)
            lists[key].append(mode);
    }
    return lists;
}

void writeParameters(VIniSettings &file, const AUTH_INF &item)
{
    const QVector<QStringList> parameters = distinctParameters(item);
    for (const QStringList &entry : parameters) {
        file.setValue(keyIn(Section::attribute, keyOf(entry)), QString());
        writeEntry(file, entry);
    }
    const QHash<QString, QStringList> lists = belongLists(item);
    for (const QStringList &entry : parameters)
        file.setValue(keyIn(Section::belong, keyOf(entry)), lists.value(keyOf(entry)));
}

// --- Loading ---------------------------------------------------------------------

/// What is not in the file is read as empty, so that nothing of an earlier content stays.
void readFields(const VIniSettings &file, AUTH_INF &item)
{
    const auto read = [&file](const char *field) { return file.value(fieldKey(field)); };
    item.number = read("number").toInt();
    item.name = read("name").toString();
    item.description = read("description").toString();
    item.icon = read("icon").toString();
    item.type = read("type").toString();
    item.group = read("group").toString();
    item.exclusive_group = read("exclusive_group").toBool();
    item.lib_name = read("lib_name").toStringList();
    item.inner_mode_count = read("inner_mode_count").toInt();
    item.inner_mode_description = read("inner_mode_description").toStringList();
    item.inner_mode_nameList = read("inner_mode_nameList").toStringList();
    item.trObjectName = read("Tr_ObjectName").toString();
    item.codeFunctionName = read("codeFunctionName").toString();

    item.name_tr = item.name;
    item.type_tr = item.type;
    item.group_tr = item.group;
    item.inner_mode_nameList_tr = item.inner_mode_nameList;
}

/// The keys of the entries in @p section. A key with "/" is shortened to its last part, under which
/// the rest of the entry is looked up.
QStringList entryKeys(const VIniSettings &file, QLatin1String section)
{
    QStringList keys = file.allKeys(section);
    for (QString &key : keys)
        key = key.mid(key.lastIndexOf(QLatin1Char('/')) + 1);
    return keys;
}

QStringList readEntry(const VIniSettings &file, const QString &key)
{
    const QStringList units = file.value(keyIn(Section::unit, key)).toStringList();
    const QString group = file.value(keyIn(Section::group, key)).toString();
    // In the order of KeltoParameterEntry::Place.
    return { group,
             key,
             file.value(keyIn(Section::objectName, key)).toString(),
             file.value(keyIn(Section::multi, key)).toString(),
             units.value(0),
             units.value(units.size() - 1),
             file.value(keyIn(Section::symbol, key)).toString(),
             key,
             group };
}

/// The positions of the inner modes of each name. The count in the file decides where it is smaller
/// than the number of names.
QHash<QString, QVector<int>> modePositions(const AUTH_INF &item)
{
    QHash<QString, QVector<int>> positions;
    const int count = qMin(item.inner_mode_count, item.inner_mode_nameList.size());
    for (int i = 0; i < count; ++i)
        positions[item.inner_mode_nameList.at(i)].append(i);
    return positions;
}

QVector<QVector<QStringList>> readParameters(const VIniSettings &file, const AUTH_INF &item)
{
    QVector<QVector<QStringList>> lists(item.inner_mode_nameList.size());
    const QHash<QString, QVector<int>> positions = modePositions(item);
    const QStringList keys = entryKeys(file, Section::attribute);
    for (const QString &key : keys) {
        const QStringList entry = readEntry(file, key);
        QStringList modes = file.value(keyIn(Section::belong, key)).toStringList();
        modes.removeDuplicates();
        for (const QString &mode : qAsConst(modes)) {
            const QVector<int> modesOfName = positions.value(mode);
            for (int i : modesOfName)
                lists[i].append(entry);
        }
    }
    return lists;
}

/// As many results as "output_results" has elements. Saving never writes that key: results are read
/// only from files to which somebody has added it.
QVector<QStringList> readResults(const VIniSettings &file)
{
    const int count = file.value(fieldKey("output_results")).toStringList().size();
    const QStringList keys = entryKeys(file, Section::result).mid(0, count);
    QVector<QStringList> results;
    results.reserve(keys.size());
    for (const QString &key : keys)
        results.append(readEntry(file, key));
    return results;
}

QVector<VDataItem> readExtraKeys(const VIniSettings &file)
{
    QVector<VDataItem> items;
    const QStringList keys = entryKeys(file, Section::extraKey);
    for (const QString &key : keys)
        items.append({ key, file.value(keyIn(Section::extraKey, key)) });
    return items;
}

} // namespace

void AUTH_INF::load_ini(QString path)
{
    const VIniSettings file(path);
    readFields(file, *this);
    inner_mode_parameterList = readParameters(file, *this);
    output_results = readResults(file);
    extraKey = readExtraKeys(file);
}

void AUTH_INF::save_ini(QString path) const
{
    VIniSettings file(path);
    writeFields(file, *this);
    writeResults(file, output_results);
    // After the results, whose descriptions they replace where keys are equal.
    writeParameters(file, *this);
    for (const VDataItem &extra : extraKey)
        file.setValue(keyIn(Section::extraKey, extra.key), extra.value);
    file.saveLocal();
}
