// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What a module item writes into its INI file.

#include "support/directorytest.h"
#include "support/referencefile.h"
#include "support/testfiles.h"

#include <Kelto/AUTH_INF>
#include <Kelto/VIniSettings>

#include <QTest>

#include <limits>

namespace {

/// An entry in which every string tells whose it is.
QStringList entry(const QString &key, const QString &label)
{
    return { label + " group",
             key,
             label + " object",
             "true",
             label + " unit",
             label + " second unit",
             label + " symbol",
             label + " translated key",
             label + " translated group" };
}

AUTH_INF itemWithModes(const QStringList &modes, const QVector<QVector<QStringList>> &parameters)
{
    AUTH_INF item;
    item.inner_mode_count = modes.size();
    item.inner_mode_nameList = modes;
    item.inner_mode_parameterList = parameters;
    return item;
}

AUTH_INF itemWithResults(const QVector<QStringList> &results)
{
    AUTH_INF item;
    item.output_results = results;
    return item;
}

AUTH_INF itemWithExtraKey(const QString &key, const QVariant &value)
{
    AUTH_INF item;
    item.extraKey = { { key, value } };
    return item;
}

AUTH_INF fullItem()
{
    AUTH_INF item = itemWithModes({ "Cantilever", "简支" },
                                  { { entry("Load", "first"), entry("长度", "second") },
                                    { entry("Load", "third"), entry("a/b", "fourth") } });
    item.number = 7;
    item.name = "Beam";
    item.name_tr = "梁";
    item.description = "Bending, shear; \"both\" = 100 %\nof it";
    item.icon = ":/icons/beam.svg";
    item.type = "calculation";
    item.type_tr = "计算";
    item.group = "Bridges";
    item.group_tr = "静力";
    item.exclusive_group = true;
    item.lib_name = QStringList { "beam", "solver" };
    item.inner_mode_description = QStringList { "one end", "两端" };
    item.inner_mode_nameList_tr = QStringList { "悬臂", "Simple" };
    item.trObjectName = "BeamTexts";
    item.codeFunctionName = "beamItem";
    item.output_results = { entry("Deflection", "result"), entry("Load", "hidden") };
    item.extraKey = { { "page", 12 }, { "authors", QStringList { "A", "B" } } };
    return item;
}

/// The keys and values in the file that @p item writes. They are read from a copy: of a file that
/// it wrote itself a process may remember values that are not in it.
VIniSettings savedBy(const AUTH_INF &item)
{
    item.save_ini("item.ini");
    QFile::remove("copy.ini");
    QFile::copy("item.ini", "copy.ini");
    return VIniSettings("copy.ini");
}

} // namespace

Q_DECLARE_METATYPE(AUTH_INF)

class TestAuthInfIniSaving : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void writesValue_data();
    void writesValue();
    void doesNotWriteKey_data();
    void doesNotWriteKey();
    void writesTheKeysOfAnItem();
    void writesTheReferenceFile();
    void keepsOtherKeys_data();
    void keepsOtherKeys();
    void changesNothingWithoutFile_data();
    void changesNothingWithoutFile();
};

void TestAuthInfIniSaving::writesValue_data()
{
    QTest::addColumn<AUTH_INF>("item");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("expected");

    const auto row
        = [](const char *name, const AUTH_INF &item, const QString &key, const QVariant &expected) {
              QTest::newRow(name) << item << key << expected;
          };
    const AUTH_INF full = fullItem();
    row("the number", full, "KeltoItem/number", "7");
    row("the name", full, "KeltoItem/name", "Beam");
    row("the description", full, "KeltoItem/description", full.description);
    row("the icon", full, "KeltoItem/icon", ":/icons/beam.svg");
    row("the group", full, "KeltoItem/group", "Bridges");
    row("the type", full, "KeltoItem/type", "calculation");
    row("an exclusive group", full, "KeltoItem/exclusive_group", "true");
    row("no exclusive group", AUTH_INF(), "KeltoItem/exclusive_group", "false");
    row("the library names", full, "KeltoItem/lib_name", QStringList { "beam", "solver" });
    row("no library names", AUTH_INF(), "KeltoItem/lib_name", QVariant());
    row("the number of inner modes", full, "KeltoItem/inner_mode_count", "2");
    row("the descriptions of the inner modes", full, "KeltoItem/inner_mode_description",
        QStringList { "one end", "两端" });
    row("the names of the inner modes", full, "KeltoItem/inner_mode_nameList",
        QStringList { "Cantilever", "简支" });
    row("one name of an inner mode", AUTH_INF(), "KeltoItem/inner_mode_nameList", "Default");
    row("the translation context", full, "KeltoItem/Tr_ObjectName", "BeamTexts");
    row("the function name", full, "KeltoItem/codeFunctionName", "beamItem");

    AUTH_INF extreme;
    extreme.number = std::numeric_limits<int>::min();
    extreme.inner_mode_count = std::numeric_limits<int>::max();
    row("the least number", extreme, "KeltoItem/number", "-2147483648");
    row("a count that the lists do not have", extreme, "KeltoItem/inner_mode_count", "2147483647");

    row("a parameter has an empty attribute", full, "Attribute/Load", "");
    row("a parameter's units", full, "Unit/长度",
        QStringList { "second unit", "second second unit" });
    row("a parameter's symbol", full, "Symbol/长度", "second symbol");
    row("a parameter's multi flag", full, "Multi/长度", "true");
    row("a parameter's object name", full, "ObjectName/长度", "second object");
    row("a parameter's group", full, "Group/长度", "second group");
    row("a parameter belongs to its mode", full, "Belong/长度", "Cantilever");
    row("a parameter of two modes belongs to both", full, "Belong/Load",
        QStringList { "Cantilever", "简支" });
    row("a key that stands twice in a mode names it once",
        itemWithModes({ "A" }, { { entry("x", "one"), entry("x", "two") } }), "Belong/x", "A");
    row("the first entry of a key describes it", full, "Symbol/Load", "first symbol");
    row("a key with a slash is nested", full, "Symbol/a/b", "fourth symbol");

    const QVector<QStringList> x { entry("x", "one") };
    row("a parameter of an unnamed mode belongs nowhere", itemWithModes({ "A" }, { {}, x }),
        "Belong/x", QVariant());
    row("a parameter of an unnamed mode is described", itemWithModes({ "A" }, { {}, x }),
        "Symbol/x", "one symbol");
    row("a mode named twice is its first", itemWithModes({ "A", "A" }, { {}, x }), "Belong/x",
        QVariant());
    row("both names of a mode are listed", itemWithModes({ "A", "A" }, { x, {} }), "Belong/x",
        QStringList { "A", "A" });
    row("an unknown multi flag is written as it is",
        itemWithModes({ "A" }, { { { "", "x", "", "?" } } }), "Multi/x", "?");
    row("a short entry has an empty group", itemWithModes({ "A" }, { { QStringList() } }), "Group",
        "");
    row("a short entry has empty units", itemWithModes({ "A" }, { { { "group", "x" } } }), "Unit/x",
        QStringList { "", "" });
    row("of a long entry nine strings count",
        itemWithModes({ "A" }, { { entry("x", "long") + QStringList("more") } }), "Symbol/x",
        "long symbol");

    row("a result has an empty key", full, "Result/Deflection", "");
    row("a result's units", full, "Unit/Deflection",
        QStringList { "result unit", "result second unit" });
    row("a result's symbol", full, "Symbol/Deflection", "result symbol");
    row("a result's multi flag", full, "Multi/Deflection", "true");
    row("a result's object name", full, "ObjectName/Deflection", "result object");
    row("a result's group", full, "Group/Deflection", "result group");
    row("a parameter replaces the result of its key", full, "Group/Load", "first group");
    row("and the result keeps its own key", full, "Result/Load", "");
    row("of two results of one key the last counts",
        itemWithResults({ entry("x", "one"), entry("x", "two") }), "Symbol/x", "two symbol");

    row("an extra number", full, "ExtraKey/page", "12");
    row("an extra list", full, "ExtraKey/authors", QStringList { "A", "B" });
    row("an extra list of one", itemWithExtraKey("k", QStringList("A")), "ExtraKey/k", "A");
    row("an extra list of none", itemWithExtraKey("k", QStringList()), "ExtraKey/k", QVariant());
    row("an invalid extra value", itemWithExtraKey("k", QVariant()), "ExtraKey/k", QVariant());
    row("an extra text that looks like an invalid value", itemWithExtraKey("k", "@Invalid()"),
        "ExtraKey/k", "@Invalid()");
    row("an extra key with a slash is nested", itemWithExtraKey("a/b", "c"), "ExtraKey/a/b", "c");
    row("an extra key without a name is the section's", itemWithExtraKey("", "c"), "ExtraKey", "c");
}

void TestAuthInfIniSaving::writesValue()
{
    QFETCH(AUTH_INF, item);
    QFETCH(QString, key);

    const VIniSettings file = savedBy(item);
    QVERIFY2(file.contains(key), qPrintable(file.allKeys().join('\n')));
    QTEST(file.value(key), "expected");
}

void TestAuthInfIniSaving::doesNotWriteKey_data()
{
    QTest::addColumn<AUTH_INF>("item");
    QTest::addColumn<QString>("key");

    const AUTH_INF shortResult = itemWithResults({ entry("x", "one").mid(0, 8) });
    const AUTH_INF longResult = itemWithResults({ entry("x", "one") + QStringList("more") });
    QTest::newRow("the number of results") << fullItem() << "KeltoItem/output_results";
    QTest::newRow("the translated name") << fullItem() << "KeltoItem/name_tr";
    QTest::newRow("the translated type") << fullItem() << "KeltoItem/type_tr";
    QTest::newRow("the translated group") << fullItem() << "KeltoItem/group_tr";
    QTest::newRow("the translated mode names") << fullItem() << "KeltoItem/inner_mode_nameList_tr";
    QTest::newRow("where a result belongs") << fullItem() << "Belong/Deflection";
    QTest::newRow("a result as a parameter") << fullItem() << "Attribute/Deflection";
    QTest::newRow("a parameter as a result") << fullItem() << "Result/长度";
    QTest::newRow("a result of eight strings") << shortResult << "Result/x";
    QTest::newRow("the description of a result of eight strings") << shortResult << "Symbol/x";
    QTest::newRow("a result of ten strings") << longResult << "Result/x";
    QTest::newRow("extra keys where there are none") << AUTH_INF() << "ExtraKey";
}

void TestAuthInfIniSaving::doesNotWriteKey()
{
    QFETCH(AUTH_INF, item);
    QFETCH(QString, key);

    const VIniSettings file = savedBy(item);
    QVERIFY(file.contains("KeltoItem/name"));
    QVERIFY2(!file.contains(key), qPrintable(file.value(key).toString()));
}

void TestAuthInfIniSaving::writesTheKeysOfAnItem()
{
    AUTH_INF item = itemWithModes({ "A" }, { { entry("p", "parameter") } });
    item.output_results = { entry("r", "result") };
    item.extraKey = { { "e", 1 } };
    const QStringList expected {
        "Attribute/p",
        "Belong/p",
        "ExtraKey/e",
        "Group/p",
        "Group/r",
        "KeltoItem/Tr_ObjectName",
        "KeltoItem/codeFunctionName",
        "KeltoItem/description",
        "KeltoItem/exclusive_group",
        "KeltoItem/group",
        "KeltoItem/icon",
        "KeltoItem/inner_mode_count",
        "KeltoItem/inner_mode_description",
        "KeltoItem/inner_mode_nameList",
        "KeltoItem/lib_name",
        "KeltoItem/name",
        "KeltoItem/number",
        "KeltoItem/type",
        "Multi/p",
        "Multi/r",
        "ObjectName/p",
        "ObjectName/r",
        "Result/r",
        "Symbol/p",
        "Symbol/r",
        "Unit/p",
        "Unit/r",
    };
    QCOMPARE(savedBy(item).allKeys(), expected);
}

void TestAuthInfIniSaving::writesTheReferenceFile()
{
    fullItem().save_ini("item.ini");
    const QString difference = differenceFromReference(QString::fromUtf8(fileContent("item.ini")),
                                                       QStringLiteral(KELTO_TEST_DATA "/item.ini"));
    QVERIFY2(difference.isEmpty(), qUtf8Printable(difference));
}

void TestAuthInfIniSaving::keepsOtherKeys_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("expected");

    QTest::newRow("a parameter of the earlier item") << "Symbol/old" << QVariant("earlier symbol");
    QTest::newRow("where it belongs") << "Belong/old" << QVariant("A");
    QTest::newRow("a result of the earlier item") << "Result/old result" << QVariant("");
    QTest::newRow("an extra key of the earlier item") << "ExtraKey/old" << QVariant("1");
    QTest::newRow("a key that no item writes") << "Notes/by hand" << QVariant("kept");
    QTest::newRow("a field is replaced") << "KeltoItem/name" << QVariant("New");
    QTest::newRow("an equal parameter is replaced") << "Symbol/both" << QVariant("new symbol");
    QTest::newRow("the value of an attribute is emptied") << "Attribute/both" << QVariant("");
}

void TestAuthInfIniSaving::keepsOtherKeys()
{
    QFETCH(QString, key);

    AUTH_INF earlier
        = itemWithModes({ "A" }, { { entry("old", "earlier"), entry("both", "earlier") } });
    earlier.output_results = { entry("old result", "earlier") };
    earlier.extraKey = { { "old", 1 } };
    earlier.save_ini("item.ini");
    VIniSettings byHand("item.ini");
    byHand.setValue("Notes/by hand", "kept");
    byHand.setValue("Attribute/both", "by hand");
    byHand.saveLocal();

    AUTH_INF item = itemWithModes({ "B" }, { { entry("both", "new") } });
    item.name = "New";
    QTEST(savedBy(item).value(key), "expected");
}

void TestAuthInfIniSaving::changesNothingWithoutFile_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("no path") << "";
    QTest::newRow("a directory") << "directory";
    QTest::newRow("a file in a missing directory") << "missing/item.ini";
}

void TestAuthInfIniSaving::changesNothingWithoutFile()
{
    QFETCH(QString, path);
    QVERIFY(QDir().mkdir("directory"));

    fullItem().save_ini(path);
    QCOMPARE(filesIn("."), QStringList { "directory" });
    QVERIFY(QDir("directory").isEmpty());
}

QTEST_GUILESS_MAIN(TestAuthInfIniSaving)
#include "tst_auth_inf_ini_saving.moc"
