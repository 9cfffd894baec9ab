// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What comes back of a module item that was written into an INI file.

#include "support/directorytest.h"
#include "support/harditems.h"
#include "support/itemjson.h"

#include <Kelto/AUTH_INF>

#include <QMap>
#include <QPair>
#include <QProcess>
#include <QTest>

namespace {

// --- The rules, plainly ----------------------------------------------------------

using KeyValues = QVector<QPair<QString, QVariant>>;
/// What is in a file, in the order in which it is read.
using FileContent = QMap<QString, QVariant>;

void setOrAppend(KeyValues &pairs, const QString &key, const QVariant &value)
{
    for (QPair<QString, QVariant> &pair : pairs) {
        if (pair.first == key) {
            pair.second = value;
            return;
        }
    }
    pairs.append({ key, value });
}

void setFields(KeyValues &pairs, const AUTH_INF &item)
{
    const auto set = [&pairs](const QString &key, const QVariant &value) {
        setOrAppend(pairs, "KeltoItem/" + key, value);
    };
    set("number", item.number);
    set("name", item.name);
    set("description", item.description);
    set("icon", item.icon);
    set("group", item.group);
    set("type", item.type);
    set("exclusive_group", item.exclusive_group);
    set("lib_name", item.lib_name);
    set("inner_mode_count", item.inner_mode_count);
    set("inner_mode_description", item.inner_mode_description);
    set("inner_mode_nameList", item.inner_mode_nameList);
    set("Tr_ObjectName", item.trObjectName);
    set("codeFunctionName", item.codeFunctionName);
}

void setEntry(KeyValues &pairs, const QStringList &entry)
{
    const QString key = entry.value(1);
    setOrAppend(pairs, "Unit/" + key, QStringList { entry.value(4), entry.value(5) });
    setOrAppend(pairs, "Symbol/" + key, entry.value(6));
    setOrAppend(pairs, "Multi/" + key, entry.value(3));
    setOrAppend(pairs, "ObjectName/" + key, entry.value(2));
    setOrAppend(pairs, "Group/" + key, entry.value(0));
}

void setParameters(KeyValues &pairs, const AUTH_INF &item)
{
    QStringList described;
    for (const QVector<QStringList> &mode : item.inner_mode_parameterList) {
        for (const QStringList &parameter : mode) {
            setOrAppend(pairs, "Attribute/" + parameter.value(1), "");
            if (described.contains(parameter.value(1)))
                continue;
            described.append(parameter.value(1));
            setEntry(pairs, parameter);
        }
    }
    for (const QString &key : qAsConst(described))
        setOrAppend(pairs, "Belong/" + key, item.parameter_belonglist(key));
}

/// What an item writes over what the file held before.
FileContent contentAfterSaving(const AUTH_INF &item, const FileContent &before)
{
    KeyValues pairs;
    for (auto it = before.cbegin(); it != before.cend(); ++it)
        pairs.append({ it.key(), it.value() });
    setFields(pairs, item);
    for (const QStringList &result : item.output_results) {
        if (result.size() != 9)
            continue;
        setOrAppend(pairs, "Result/" + result.at(1), "");
        setEntry(pairs, result);
    }
    setParameters(pairs, item);
    for (const VDataItem &extra : item.extraKey)
        setOrAppend(pairs, "ExtraKey/" + extra.key, extra.value);

    FileContent content = before;
    // Slashes that separate nothing are lost on the way into the file.
    for (const QPair<QString, QVariant> &pair : qAsConst(pairs))
        content[pair.first.split('/', Qt::SkipEmptyParts).join('/')] = pair.second;
    return content;
}

QStringList lastPartsOfKeys(const FileContent &content, const QString &section)
{
    QStringList parts;
    const QStringList keys = content.keys();
    for (const QString &key : keys) {
        if (key == section || key.startsWith(section + "/"))
            parts.append(key.split('/').last());
    }
    return parts;
}

QStringList entryIn(const FileContent &content, const QString &key)
{
    const QStringList units = content.value("Unit/" + key).toStringList();
    const QString group = content.value("Group/" + key).toString();
    return { group,
             key,
             content.value("ObjectName/" + key).toString(),
             content.value("Multi/" + key).toString(),
             units.isEmpty() ? QString() : units.first(),
             units.isEmpty() ? QString() : units.last(),
             content.value("Symbol/" + key).toString(),
             key,
             group };
}

AUTH_INF itemFrom(const FileContent &content)
{
    const auto read = [&content](const QString &key) { return content.value("KeltoItem/" + key); };
    AUTH_INF item;
    item.number = read("number").toInt();
    item.name = item.name_tr = read("name").toString();
    item.description = read("description").toString();
    item.icon = read("icon").toString();
    item.type = item.type_tr = read("type").toString();
    item.group = item.group_tr = read("group").toString();
    item.exclusive_group = read("exclusive_group").toBool();
    item.lib_name = read("lib_name").toStringList();
    item.inner_mode_count = read("inner_mode_count").toInt();
    item.inner_mode_description = read("inner_mode_description").toStringList();
    item.inner_mode_nameList = read("inner_mode_nameList").toStringList();
    item.inner_mode_nameList_tr = item.inner_mode_nameList;
    item.trObjectName = read("Tr_ObjectName").toString();
    item.codeFunctionName = read("codeFunctionName").toString();

    item.inner_mode_parameterList.resize(item.inner_mode_nameList.size());
    const QStringList parameters = lastPartsOfKeys(content, "Attribute");
    for (const QString &key : parameters) {
        const QStringList modes = content.value("Belong/" + key).toStringList();
        for (int i = 0; i < item.inner_mode_count && i < item.inner_mode_nameList.size(); ++i) {
            if (modes.contains(item.inner_mode_nameList.at(i)))
                item.inner_mode_parameterList[i].append(entryIn(content, key));
        }
    }
    const int resultCount = read("output_results").toStringList().size();
    const QStringList results = lastPartsOfKeys(content, "Result");
    for (int i = 0; i < resultCount && i < results.size(); ++i)
        item.output_results.append(entryIn(content, results.at(i)));
    const QStringList extraKeys = lastPartsOfKeys(content, "ExtraKey");
    for (const QString &key : extraKeys)
        item.extraKey.append({ key, content.value("ExtraKey/" + key) });
    return item;
}

// --- A second process ------------------------------------------------------------

/// The items in @p files as another process reads them.
QJsonArray itemsReadElsewhere(const QStringList &files)
{
    QProcess reader;
    reader.start(QStringLiteral(KELTO_ITEMREADER), files);
    reader.waitForFinished();
    if (reader.exitStatus() != QProcess::NormalExit || reader.exitCode() != 0)
        qWarning() << reader.errorString() << reader.readAllStandardError();
    return QJsonDocument::fromJson(reader.readAllStandardOutput()).array();
}

QStringList entryOf(const QString &key)
{
    return {
        "group of " + key, key, "float", "true", "mm", "m", "symbol of " + key, "key of " + key,
        "translated group"
    };
}

/// What is left of entryOf() after a way through a file.
QStringList storedEntryOf(const QString &key)
{
    return { "group of " + key,  key, "float",          "true", "mm", "m",
             "symbol of " + key, key, "group of " + key };
}

} // namespace

class TestAuthInfIniRoundtrip : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyStoredFieldComesBack();
    void staleParametersComeBack_data();
    void staleParametersComeBack();
    void randomItems_data();
    void randomItems();
};

void TestAuthInfIniRoundtrip::everyStoredFieldComesBack()
{
    AUTH_INF item;
    item.number = 3;
    item.name = "Beam";
    item.name_tr = "梁";
    item.description = "两行\n\"text\"; 100 %";
    item.icon = ":/beam.svg";
    item.type = "calculation";
    item.type_tr = "计算";
    item.group = "Bridges";
    item.group_tr = "静力";
    item.exclusive_group = true;
    item.lib_name = QStringList { "one" };
    item.inner_mode_count = 3;
    item.inner_mode_description = QStringList { "a", "", "c" };
    item.inner_mode_nameList = QStringList { "悬臂", "B", "C" };
    item.inner_mode_nameList_tr = QStringList { "Cantilever", "b", "c" };
    item.inner_mode_parameterList
        = { { entryOf("y"), entryOf("x") }, { entryOf("x"), entryOf("a/z") }, {} };
    item.trObjectName = "Texts";
    item.codeFunctionName = "beam";
    item.output_results = { entryOf("r") };
    item.extraKey = { { "page", 12 }, { "none", QVariant() } };
    item.save_ini("item.ini");

    AUTH_INF loaded;
    loaded.load_ini("item.ini");
    QCOMPARE(loaded.number, 3);
    QCOMPARE(loaded.name, item.name);
    QCOMPARE(loaded.name_tr, item.name);
    QCOMPARE(loaded.description, item.description);
    QCOMPARE(loaded.icon, item.icon);
    QCOMPARE(loaded.type, item.type);
    QCOMPARE(loaded.type_tr, item.type);
    QCOMPARE(loaded.group, item.group);
    QCOMPARE(loaded.group_tr, item.group);
    QCOMPARE(loaded.exclusive_group, true);
    QCOMPARE(loaded.lib_name, item.lib_name);
    QCOMPARE(loaded.inner_mode_count, 3);
    QCOMPARE(loaded.inner_mode_description, item.inner_mode_description);
    QCOMPARE(loaded.inner_mode_nameList, item.inner_mode_nameList);
    QCOMPARE(loaded.inner_mode_nameList_tr, item.inner_mode_nameList);
    const QVector<QVector<QStringList>> parameters { { storedEntryOf("x"), storedEntryOf("y") },
                                                     { storedEntryOf("x") },
                                                     {} };
    QCOMPARE(loaded.inner_mode_parameterList, parameters);
    QCOMPARE(loaded.trObjectName, item.trObjectName);
    QCOMPARE(loaded.codeFunctionName, item.codeFunctionName);
    QCOMPARE(loaded.output_results, QVector<QStringList>());
    QCOMPARE(loaded.extraKey.size(), 2);
    QCOMPARE(loaded.extraKey[0].key, QString("none"));
    QCOMPARE(loaded.extraKey[0].value, QVariant());
    QCOMPARE(loaded.extraKey[1].key, QString("page"));
    QCOMPARE(loaded.extraKey[1].value.toInt(), 12);
}

void TestAuthInfIniRoundtrip::staleParametersComeBack_data()
{
    QTest::addColumn<QStringList>("modes");
    QTest::addColumn<QVector<QVector<QStringList>>>("expected");

    using Lists = QVector<QVector<QStringList>>;
    const QStringList kept = storedEntryOf("kept");
    const QStringList stale = storedEntryOf("stale");
    QTest::newRow("in the modes of their old names")
        << QStringList { "B", "A" } << Lists { { kept, stale }, { stale } };
    QTest::newRow("not in modes of other names")
        << QStringList { "C", "D" } << Lists { { kept }, {} };
    QTest::newRow("not in a name that only differs by case")
        << QStringList { "a", "B" } << Lists { { kept }, { stale } };
}

void TestAuthInfIniRoundtrip::staleParametersComeBack()
{
    QFETCH(QStringList, modes);

    AUTH_INF earlier;
    earlier.inner_mode_count = 2;
    earlier.inner_mode_nameList = QStringList { "A", "B" };
    earlier.inner_mode_parameterList
        = { { entryOf("stale"), entryOf("kept") }, { entryOf("stale") } };
    earlier.save_ini("item.ini");
    AUTH_INF item = earlier;
    item.inner_mode_nameList = modes;
    item.inner_mode_parameterList = { { entryOf("kept") }, {} };
    item.save_ini("item.ini");

    AUTH_INF loaded;
    loaded.load_ini("item.ini");
    QTEST(loaded.inner_mode_parameterList, "expected");
}

void TestAuthInfIniRoundtrip::randomItems_data()
{
    QTest::addColumn<unsigned>("seed");
    QTest::addColumn<int>("savesPerFile");

    for (unsigned seed = 1; seed <= 5; ++seed) {
        QTest::addRow("each in a file of its own, seed %u", seed) << seed << 1;
        QTest::addRow("three into one file, seed %u", seed) << seed + 100 << 3;
    }
}

void TestAuthInfIniRoundtrip::randomItems()
{
    QFETCH(unsigned, seed);
    QFETCH(int, savesPerFile);

    HardItemMaker maker(seed);
    QStringList files;
    QVector<AUTH_INF> expected;
    for (int number = 0; number < 20; ++number) {
        files.append(QStringLiteral("%1.ini").arg(number));
        FileContent content;
        for (int save = 0; save < savesPerFile; ++save) {
            const AUTH_INF item = maker.item();
            item.save_ini(files.last());
            content = contentAfterSaving(item, content);
        }
        expected.append(itemFrom(content));
        AUTH_INF loaded;
        loaded.load_ini(files.last());
        const QString difference = differences(loaded, expected.last());
        QVERIFY2(difference.isEmpty(), qUtf8Printable(difference));
    }

    const QJsonArray read = itemsReadElsewhere(files);
    QCOMPARE(read.size(), files.size());
    for (int i = 0; i < read.size(); ++i) {
        const QString difference = differences(read.at(i).toObject(), itemAsJson(expected.at(i)));
        QVERIFY2(difference.isEmpty(), qUtf8Printable(difference));
    }
}

QTEST_GUILESS_MAIN(TestAuthInfIniRoundtrip)
#include "tst_auth_inf_ini_roundtrip.moc"
