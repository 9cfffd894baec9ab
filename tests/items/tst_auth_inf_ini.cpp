// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What a module item reads from its INI file.

#include "support/directorytest.h"
#include "support/itemjson.h"
#include "support/testfiles.h"

#include <Kelto/AUTH_INF>

#include <QTest>

#include <limits>

namespace {

/// An item with nothing in any field, which no constructor makes.
AUTH_INF emptyItem()
{
    AUTH_INF item;
    item.name.clear();
    item.name_tr.clear();
    item.type.clear();
    item.type_tr.clear();
    item.group.clear();
    item.group_tr.clear();
    item.inner_mode_count = 0;
    item.inner_mode_description.clear();
    item.inner_mode_nameList.clear();
    item.inner_mode_nameList_tr.clear();
    return item;
}

/// An item with something in every field.
AUTH_INF filledItem()
{
    AUTH_INF item;
    item.number = 7;
    item.description = "description";
    item.icon = "icon";
    item.exclusive_group = true;
    item.lib_name = QStringList { "library" };
    item.inner_mode_parameterList = { { { "group", "key" } } };
    item.trObjectName = "context";
    item.codeFunctionName = "function";
    item.output_results = { { "group", "result" } };
    item.extraKey = { { "key", "value" } };
    return item;
}

QStringList entry(const QString &group, const QString &key, const QString &objectName,
                  const QString &multi, const QString &unit, const QString &secondUnit,
                  const QString &symbol)
{
    return { group, key, objectName, multi, unit, secondUnit, symbol, key, group };
}

/// The entry of a key of which the file holds nothing else.
QStringList bareEntry(const QString &key)
{
    return entry("", key, "", "", "", "", "");
}

AUTH_INF itemWithModes(const QStringList &modes, int count,
                       const QVector<QVector<QStringList>> &parameters)
{
    AUTH_INF item = emptyItem();
    item.inner_mode_count = count;
    item.inner_mode_nameList = modes;
    item.inner_mode_nameList_tr = modes;
    item.inner_mode_parameterList = parameters;
    return item;
}

AUTH_INF itemWithResults(const QVector<QStringList> &results)
{
    AUTH_INF item = emptyItem();
    item.output_results = results;
    return item;
}

AUTH_INF itemWithExtraKeys(const QVector<VDataItem> &extraKeys)
{
    AUTH_INF item = emptyItem();
    item.extraKey = extraKeys;
    return item;
}

template <typename Value> AUTH_INF itemWith(Value AUTH_INF::*field, const Value &value)
{
    AUTH_INF item = emptyItem();
    item.*field = value;
    return item;
}

template <typename Value>
AUTH_INF itemWith(Value AUTH_INF::*field, Value AUTH_INF::*translated, const Value &value)
{
    AUTH_INF item = itemWith(field, value);
    item.*translated = value;
    return item;
}

const char oneMode[] = "[KeltoItem]\ninner_mode_count=1\ninner_mode_nameList=A\n";
const char twoModes[] = "[KeltoItem]\ninner_mode_count=2\ninner_mode_nameList=A, B\n";

QByteArray everyByte()
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes.append(char(i));
    return bytes;
}

} // namespace

Q_DECLARE_METATYPE(AUTH_INF)

class TestAuthInfIni : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsField_data();
    void readsField();
    void readsParameters_data();
    void readsParameters();
    void readsResults_data();
    void readsResults();
    void readsExtraKeys_data();
    void readsExtraKeys();
    void emptiesEveryField_data();
    void emptiesEveryField();
    void createsAMissingFile();

private:
    void load();
};

/// Loads the row's file into an item that has something in every field.
void TestAuthInfIni::load()
{
    QFETCH(QByteArray, text);
    QFETCH(AUTH_INF, expected);
    QVERIFY(writeFile("item.ini", text));

    AUTH_INF item = filledItem();
    item.load_ini("item.ini");
    const QString difference = differences(item, expected);
    QVERIFY2(difference.isEmpty(), qUtf8Printable(difference));
}

void TestAuthInfIni::readsField_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<AUTH_INF>("expected");

    const auto row = [](const char *name, const QByteArray &line, const AUTH_INF &expected) {
        QTest::newRow(name) << QByteArray("[KeltoItem]\n" + line + '\n') << expected;
    };
    using Item = AUTH_INF;
    row("a section without keys", "", emptyItem());
    row("the number", "number=12", itemWith(&Item::number, 12));
    row("a negative number", "number=-3", itemWith(&Item::number, -3));
    row("a number that is none", "number=12a", emptyItem());
    row("a fraction is no number", "number=3.7", emptyItem());
    row("a number to another base is none", "number=0x10", emptyItem());
    row("the name in both forms", "name=Beam",
        itemWith(&Item::name, &Item::name_tr, QString("Beam")));
    row("a Chinese name", "name=梁", itemWith(&Item::name, &Item::name_tr, QString("梁")));
    row("a translated name is not read", "name_tr=梁", emptyItem());
    row("the description", "description=\"a, b; c\"",
        itemWith(&Item::description, QString("a, b; c")));
    row("a description that is a list reads as empty", "description=a, b", emptyItem());
    row("the icon", "icon=beam.svg", itemWith(&Item::icon, QString("beam.svg")));
    row("the type in both forms", "type=calculation",
        itemWith(&Item::type, &Item::type_tr, QString("calculation")));
    row("the group in both forms", "group=Bridges",
        itemWith(&Item::group, &Item::group_tr, QString("Bridges")));
    row("an exclusive group", "exclusive_group=true", itemWith(&Item::exclusive_group, true));
    row("an exclusive group by number", "exclusive_group=1",
        itemWith(&Item::exclusive_group, true));
    row("no exclusive group", "exclusive_group=false", emptyItem());
    row("no exclusive group by number", "exclusive_group=0", emptyItem());
    row("an exclusive group by any word", "exclusive_group=yes",
        itemWith(&Item::exclusive_group, true));
    row("an exclusive group even by the word no", "exclusive_group=no",
        itemWith(&Item::exclusive_group, true));
    row("no exclusive group in capital letters", "exclusive_group=FALSE", emptyItem());
    row("no exclusive group by an empty text", "exclusive_group=", emptyItem());
    row("no exclusive group by a list", "exclusive_group=true, true", emptyItem());
    row("library names", "lib_name=a, b", itemWith(&Item::lib_name, QStringList { "a", "b" }));
    row("one library name", "lib_name=a", itemWith(&Item::lib_name, QStringList { "a" }));
    row("an empty library name", "lib_name=", itemWith(&Item::lib_name, QStringList { "" }));
    row("no library name", "lib_name=@Invalid()", emptyItem());
    row("a number of inner modes", "inner_mode_count=3", itemWith(&Item::inner_mode_count, 3));
    row("a fraction is no number of inner modes", "inner_mode_count=3.7", emptyItem());
    row("a number of inner modes to another base is none", "inner_mode_count=0x10", emptyItem());
    row("the largest number of inner modes", "inner_mode_count=2147483647",
        itemWith(&Item::inner_mode_count, std::numeric_limits<int>::max()));
    row("descriptions of inner modes", "inner_mode_description=a, \"b, c\"",
        itemWith(&Item::inner_mode_description, QStringList { "a", "b, c" }));
    row("names of inner modes in both forms, each with a list", "inner_mode_nameList=A, B",
        itemWithModes({ "A", "B" }, 0, { {}, {} }));
    row("the translation context", "Tr_ObjectName=Texts",
        itemWith(&Item::trObjectName, QString("Texts")));
    row("the translation context under the field's name", "trObjectName=Texts", emptyItem());
    row("the function name", "codeFunctionName=beam",
        itemWith(&Item::codeFunctionName, QString("beam")));
    row("keys differ by case", "Name=Beam", emptyItem());
    row("unknown keys", "colour=red", emptyItem());
    row("keys of another section", "[Other]\nname=Beam", emptyItem());
}

void TestAuthInfIni::readsField()
{
    load();
}

void TestAuthInfIni::readsParameters_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<AUTH_INF>("expected");

    const auto row = [](const char *name, const QByteArray &text, const AUTH_INF &expected) {
        QTest::newRow(name) << text << expected;
    };
    const auto one = [](const QVector<QStringList> &entries) {
        return itemWithModes({ "A" }, 1, { entries });
    };
    const auto two = [](const QVector<QStringList> &first, const QVector<QStringList> &second) {
        return itemWithModes({ "A", "B" }, 2, { first, second });
    };
    const QByteArray inOne = oneMode;
    const QByteArray inTwo = twoModes;
    const QByteArray x = "[Attribute]\nx=\n";
    const QByteArray xInA = x + "[Belong]\nx=A\n";
    const QVector<QStringList> bare { bareEntry("x") };

    row("all of an entry",
        inOne + xInA + "[Unit]\nx=mm, m\n[Symbol]\nx=s\n[Multi]\nx=true\n"
            + "[ObjectName]\nx=float\n[Group]\nx=g\n",
        one({ entry("g", "x", "float", "true", "mm", "m", "s") }));
    row("nothing but the key", inOne + xInA, one(bare));
    row("one unit is both", inOne + xInA + "[Unit]\nx=mm\n",
        one({ entry("", "x", "", "", "mm", "mm", "") }));
    row("of three units the first and the last", inOne + xInA + "[Unit]\nx=mm, cm, m\n",
        one({ entry("", "x", "", "", "mm", "m", "") }));
    row("no unit", inOne + xInA + "[Unit]\nx=@Invalid()\n", one(bare));
    row("the value of the attribute is not read", inOne + "[Attribute]\nx=7\n[Belong]\nx=A\n",
        one(bare));
    row("in the order of the keys", inOne + "[Attribute]\nb=\na=\nB=\n[Belong]\na=A\nb=A\nB=A\n",
        one({ bareEntry("B"), bareEntry("a"), bareEntry("b") }));
    row("keys differ by case", inOne + xInA + "[Symbol]\nX=s\n", one(bare));
    row("described but not listed", inOne + "[Belong]\nx=A\n[Symbol]\nx=s\n", one({}));
    row("without an inner mode there is nowhere to go", xInA, emptyItem());

    row("in both modes", inTwo + x + "[Belong]\nx=A, B\n", two(bare, bare));
    row("the order of the modes it belongs to does not count", inTwo + x + "[Belong]\nx=B, A\n",
        two(bare, bare));
    row("in the second mode", inTwo + x + "[Belong]\nx=B\n", two({}, bare));
    row("belonging to a mode twice", inTwo + x + "[Belong]\nx=B, B\n", two({}, bare));
    row("belonging to an unknown mode", inTwo + x + "[Belong]\nx=C\n", two({}, {}));
    row("modes differ by case", inTwo + x + "[Belong]\nx=a\n", two({}, {}));
    row("belonging nowhere", inTwo + x + "[Belong]\nx=@Invalid()\n", two({}, {}));
    row("without a word on where it belongs", inTwo + x, two({}, {}));

    const auto modes = [](const QByteArray &count, const QByteArray &names) {
        return QByteArray("[KeltoItem]\ninner_mode_count=" + count
                          + "\ninner_mode_nameList=" + names + '\n');
    };
    row("two modes of one name", modes("2", "A, A") + xInA,
        itemWithModes({ "A", "A" }, 2, { bare, bare }));
    row("fewer modes than names leave lists empty", modes("1", "A, A") + xInA,
        itemWithModes({ "A", "A" }, 1, { bare, {} }));
    row("more modes than names", modes("3", "A") + xInA, itemWithModes({ "A" }, 3, { bare }));
    row("far more modes than names", modes("2147483647", "A") + xInA,
        itemWithModes({ "A" }, std::numeric_limits<int>::max(), { bare }));
    row("no modes but names", modes("0", "A") + xInA, itemWithModes({ "A" }, 0, { {} }));
    row("a negative number of modes", modes("-1", "A") + xInA, itemWithModes({ "A" }, -1, { {} }));
    row("modes but no names", modes("1", "@Invalid()") + xInA, itemWithModes({}, 1, {}));
    row("a mode without a name", modes("1", "") + x + "[Belong]\nx=\n",
        itemWithModes({ "" }, 1, { bare }));

    row("of a nested key the last part is left, which nothing describes",
        inOne + "[Attribute]\na\\b=\n[Belong]\na\\b=A\n[Symbol]\na\\b=s\n", one({}));
    row("the last part of a nested key may be described by another",
        inOne + "[Attribute]\na\\x=\nx=\n[Belong]\nx=A\n[Symbol]\nx=s\n",
        one({ entry("", "x", "", "", "", "", "s"), entry("", "x", "", "", "", "", "s") }));
    row("a key that is named like the section",
        "[General]\nAttribute=\n" + inOne + "[Belong]\nAttribute=A\n",
        one({ bareEntry("Attribute") }));
}

void TestAuthInfIni::readsParameters()
{
    load();
}

void TestAuthInfIni::readsResults_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<AUTH_INF>("expected");

    const auto row = [](const char *name, const QByteArray &count, const QByteArray &text,
                        const QVector<QStringList> &expected) {
        QTest::newRow(name) << QByteArray("[KeltoItem]\n" + count + '\n' + text)
                            << itemWithResults(expected);
    };
    const QByteArray three = "[Result]\nc=\na=\nb=\n";
    const QStringList a = bareEntry("a");
    const QStringList b = bareEntry("b");
    const QStringList c = bareEntry("c");
    row("none come back without the list that counts them", "", three, {});
    row("of three keys the first", "output_results=anything", three, { a });
    row("of three keys two", "output_results=x, y", three, { a, b });
    row("all three", "output_results=x, y, z", three, { a, b, c });
    row("a longer list than there are keys", "output_results=v, w, x, y, z", three, { a, b, c });
    row("a list of one empty text counts one", "output_results=", three, { a });
    row("an empty list", "output_results=@Invalid()", three, {});
    row("a list without keys", "output_results=x", "", {});
    row("all of an entry", "output_results=x",
        "[Result]\nr=7\n[Unit]\nr=mm, m\n[Symbol]\nr=s\n[Multi]\nr=false\n"
        "[ObjectName]\nr=float\n[Group]\nr=g\n",
        { entry("g", "r", "float", "false", "mm", "m", "s") });
    row("one unit is both", "output_results=x", "[Result]\nr=\n[Unit]\nr=mm\n",
        { entry("", "r", "", "", "mm", "mm", "") });
    row("of a nested key the last part", "output_results=x",
        "[Result]\np\\q\\r=\n[Symbol]\nr=s\np\\q\\r=t\n", { entry("", "r", "", "", "", "", "s") });
    row("a parameter of the same key shares the description", "output_results=x",
        "[Result]\nr=\n[Attribute]\nr=\n[Symbol]\nr=s\n", { entry("", "r", "", "", "", "", "s") });
}

void TestAuthInfIni::readsResults()
{
    load();
}

void TestAuthInfIni::readsExtraKeys_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<AUTH_INF>("expected");

    const auto row
        = [](const char *name, const QByteArray &text, const QVector<VDataItem> &expected) {
              QTest::newRow(name) << text << itemWithExtraKeys(expected);
          };
    row("none", "[ExtraKey]\n", {});
    row("a text", "[ExtraKey]\nk=value\n", { { "k", "value" } });
    row("an empty text", "[ExtraKey]\nk=\n", { { "k", "" } });
    row("a list", "[ExtraKey]\nk=a, b\n", { { "k", QStringList { "a", "b" } } });
    row("an invalid value", "[ExtraKey]\nk=@Invalid()\n", { { "k", QVariant() } });
    row("Chinese text", "[ExtraKey]\n%U4F5C%U8005=王\n", { { "作者", "王" } });
    row("in the order of the keys", "[ExtraKey]\nb=1\na=2\nB=3\n",
        { { "B", "3" }, { "a", "2" }, { "b", "1" } });
    row("a nested key loses its value", "[ExtraKey]\na\\b=1\n", { { "b", QVariant() } });
    row("a nested key takes the value of its last part", "[ExtraKey]\na\\b=1\nb=2\n",
        { { "b", "2" }, { "b", "2" } });
    row("a key named like the section loses its value", "[General]\nExtraKey=1\n",
        { { "ExtraKey", QVariant() } });
}

void TestAuthInfIni::readsExtraKeys()
{
    load();
}

void TestAuthInfIni::emptiesEveryField_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("no path") << "" << QByteArray();
    QTest::newRow("a missing file") << "missing.ini" << QByteArray();
    QTest::newRow("a file in a missing directory") << "missing/item.ini" << QByteArray();
    QTest::newRow("a directory") << "directory" << QByteArray();
    QTest::newRow("an empty file") << "item.ini" << QByteArray("");
    QTest::newRow("text that is no INI text") << "item.ini" << QByteArray("name Beam\nand more");
    QTest::newRow("every byte there is") << "item.ini" << everyByte();
    QTest::newRow("bytes that are no UTF-8")
        << "item.ini" << QByteArray("\xff\xfe\x80[\xc3\n\xe4=");
    QTest::newRow("only zeros") << "item.ini" << QByteArray(4096, '\0');
    QTest::newRow("sections alone")
        << "item.ini" << QByteArray("[KeltoItem]\n[Attribute]\n[Result]\n[ExtraKey]");
}

void TestAuthInfIni::emptiesEveryField()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, content);
    QVERIFY(QDir().mkdir("directory"));
    if (!content.isNull())
        QVERIFY(writeFile(path, content));

    AUTH_INF item = filledItem();
    item.load_ini(path);
    const QString difference = differences(item, emptyItem());
    QVERIFY2(difference.isEmpty(), qUtf8Printable(difference));
}

void TestAuthInfIni::createsAMissingFile()
{
    AUTH_INF().load_ini("item.ini");
    QVERIFY(QFile::exists("item.ini"));
    QCOMPARE(fileContent("item.ini"), QByteArray(""));
}

QTEST_GUILESS_MAIN(TestAuthInfIni)
#include "tst_auth_inf_ini.moc"
