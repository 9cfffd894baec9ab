// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Items as JSON, as files, and from the models of other tools.

#include "support/directorytest.h"
#include "support/harditems.h"
#include "support/itemjson.h"

#include "convert/fmiitem.h"
#include "convert/inidocument.h"
#include "convert/jsonitem.h"
#include "format/format.h"
#include "lintfindings.h"

#include <Kelto/AUTH_INF>
#include <Kelto/KeltoItemHints>

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QPoint>
#include <QRect>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

namespace {

/// An item with values of types that only a program or a file in Qt's own form can hold.
AUTH_INF itemOfSeed(unsigned seed)
{
    AUTH_INF item = HardItemMaker(seed).item();
    const QVector<QVariant> values { 1.0,
                                     -0.0,
                                     1e300,
                                     qInf(),
                                     QByteArray("\0\xff\n", 3),
                                     QPoint(-1, 2),
                                     QRect(1, 2, 3, 4),
                                     QVariantList { "a", QPoint(1, 1) },
                                     QVariantMap { { "a/b", 1 } },
                                     QStringList(),
                                     QStringList(""),
                                     QString("@Point(1 2)"),
                                     QString(QChar(0xd83d)),
                                     QString::fromUtf8("\xf0\x9f\x98\x80") };
    item.extraKey.append({ "typed", values.at(int(seed) % values.size()) });
    return item;
}

QString extraKeysDiffer(const AUTH_INF &actual, const AUTH_INF &expected)
{
    for (int i = 0; i < qMin(actual.extraKey.size(), expected.extraKey.size()); ++i) {
        const QVariant &a = actual.extraKey.at(i).value;
        const QVariant &b = expected.extraKey.at(i).value;
        QString text;
        if (a.userType() != b.userType() || a != b)
            QDebug(&text) << actual.extraKey.at(i).key << "is" << a << "and not" << b;
        if (!text.isEmpty())
            return text;
    }
    return {};
}

QByteArray model(const QByteArray &inside)
{
    return "<fmiModelDescription fmiVersion=\"2.0\" modelName=\"M\" guid=\"g\">" + inside
        + "</fmiModelDescription>";
}

QByteArray variable(const QByteArray &attributes, const QByteArray &type)
{
    return model("<ModelVariables><ScalarVariable " + attributes + "><" + type
                 + "/></ScalarVariable></ModelVariables>");
}

} // namespace

class TestKeltoConvert : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void jsonKeepsEveryField_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 300; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void jsonKeepsEveryField()
    {
        QFETCH(unsigned, seed);
        const AUTH_INF item = itemOfSeed(seed);
        JsonError error;
        const AUTH_INF again = itemInJson(QJsonDocument(jsonOf(item)).toJson(), &error);
        QCOMPARE(error.text, QString());
        QCOMPARE(differences(again, item), QString());
        QCOMPARE(extraKeysDiffer(again, item), QString());
    }

    /// Where nothing is said to be lost, the library reads the item that was written.
    void filesKeepWhatTheyCan_data() { jsonKeepsEveryField_data(); }
    void filesKeepWhatTheyCan()
    {
        QFETCH(unsigned, seed);
        // What a file has held once, it can hold again, but for keys that lose a part.
        itemOfSeed(seed).save_ini("first.ini");
        AUTH_INF item;
        item.load_ini("first.ini");
        const QByteArray text = iniOf(item);
        const IniLoss loss = lossOf(item, text);
        QVERIFY(!loss.hasTranslations);
        QVERIFY(writeFile("second.ini", text));
        // Of a key that has lost its first part, only the place was left.
        std::stable_sort(item.extraKey.begin(), item.extraKey.end(),
                         [](const VDataItem &a, const VDataItem &b) { return a.key < b.key; });
        AUTH_INF again;
        again.load_ini("second.ini");
        if (loss.fields.isEmpty())
            QCOMPARE(differences(again, item), QString());
        else
            QVERIFY(!differences(again, item).isEmpty());
        DocumentError error;
        QCOMPARE(formatted(text, &error), text);
    }

    void saysWhatIsLost_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QStringList>("fields");

        const QStringList none;
        QTest::newRow("nothing") << QByteArray("{\"name\":\"a\"}") << none;
        QTest::newRow("a number of an extra key is a text in a file")
            << QByteArray("{\"name\":\"a\",\"extraKey\":[{\"key\":\"k\",\"value\":1.5}]}") << none;
        QTest::newRow("a key with a slash")
            << QByteArray("{\"name\":\"a\",\"output_results\":[{\"key\":\"a/b\"}]}")
            << QStringList("output_results");
        QTest::newRow("a key that is a parameter and another result")
            << QByteArray("{\"name\":\"a\",\"inner_mode_nameList\":[\"m\"],"
                          "\"inner_mode_parameterList\":[[{\"key\":\"x\",\"unit\":\"mm\"}]],"
                          "\"output_results\":[{\"key\":\"x\"}]}")
            << QStringList("output_results");
        QTest::newRow("two modes of one name")
            << QByteArray("{\"name\":\"a\",\"inner_mode_nameList\":[\"m\",\"m\"],"
                          "\"inner_mode_parameterList\":[[{\"key\":\"x\"}],[]]}")
            << QStringList("inner_mode_parameterList");
        QTest::newRow("an extra key twice")
            << QByteArray("{\"name\":\"a\",\"extraKey\":[{\"key\":\"k\",\"value\":\"1\"},"
                          "{\"key\":\"k\",\"value\":\"2\"}]}")
            << QStringList("extraKey");
    }
    void saysWhatIsLost()
    {
        QFETCH(QByteArray, json);
        JsonError error;
        const AUTH_INF item = itemInJson(json, &error);
        QCOMPARE(error.text, QString());
        QTEST(lossOf(item, iniOf(item)).fields, "fields");
    }

    void showsNumbersInTheDisplayUnit()
    {
        const QByteArray units
            = "<UnitDefinitions><Unit name=\"K\"><BaseUnit K=\"1\"/><DisplayUnit "
              "name=\"degC\" offset=\"-273.15\"/></Unit></UnitDefinitions>";
        QByteArray bytes = variable("name=\"T\" causality=\"input\"",
                                    "Real unit=\"K\" displayUnit=\"degC\" start=\"293.15\" "
                                    "min=\"273.15\"");
        bytes.insert(bytes.indexOf("<ModelVariables>"), units);
        QVector<LeftOut> leftOut;
        const AUTH_INF item = itemOf(fmiModelIn(bytes), &leftOut);
        const KeltoItemHints hints(item);
        QCOMPARE(hints.defaultValue("T"), QVariant(QString("20")));
        QCOMPARE(hints.minimum("T"), 0.0);
        QCOMPARE(item.inner_mode_parameterList.value(0).value(0).mid(4, 2),
                 QStringList({ "degC", "K" }));
    }

    /// Even of names, units and texts that item files do not allow. Values are not changed for
    /// source text.
    void makesFilesWithoutFindings_data()
    {
        QTest::addColumn<QByteArray>("bytes");

        for (const char *name : { "pump2.xml", "pump3.xml" })
            QTest::newRow(name) << fileContent(QString(CASE_DIRECTORY "/convert/") + name);
        const QByteArray hard = "&quot;\\|/;=,@%[] &#10; Länge ";
        QTest::newRow("hard names")
            << variable("name='" + hard + "' description='" + hard + "' causality='parameter'",
                        "Real start='1' unit='m'")
                   .replace("modelName=\"M\"", "modelName='" + hard + ":'");
        QTest::newRow("a comma at the end of a name")
            << variable("name='a,' causality='input'", "String");
    }
    void makesFilesWithoutFindings()
    {
        QFETCH(QByteArray, bytes);
        QVector<LeftOut> leftOut;
        const FmiModel found = fmiModelIn(bytes);
        QCOMPARE(found.error, QString());
        const AUTH_INF item = itemOf(found, &leftOut);
        const QByteArray text = iniOf(item);
        QCOMPARE(lossOf(item, text).fields, QStringList());
        QVERIFY(writeFile("item.ini", text));
        const QStringList lines = linesOf(findingsIn(ItemFile("item.ini")));
        QCOMPARE(lines.filter(QRegularExpression("^(?!.* text-in-code )")), QStringList());
    }

    void takesOverWhatTypesSay()
    {
        QByteArray bytes
            = variable("name=\"x\" causality=\"parameter\"", "Real declaredType=\"T\" max=\"4\"");
        bytes.insert(bytes.indexOf("<ModelVariables>"),
                     "<TypeDefinitions><SimpleType name=\"T\"><Real min=\"1\" max=\"5\"/>"
                     "</SimpleType><SimpleType name=\"U\"><Real max=\"6\"/></SimpleType>"
                     "</TypeDefinitions>");
        QVector<LeftOut> leftOut;
        const KeltoItemHints hints(itemOf(fmiModelIn(bytes), &leftOut));
        QCOMPARE(hints.minimum("x"), 1.0);
        QCOMPARE(hints.maximum("x"), 4.0);
        const KeltoItemHints others(
            itemOf(fmiModelIn(bytes.replace("\"T\" max=\"4\"", "\"U\"")), &leftOut));
        QCOMPARE(others.maximum("x"), 6.0);
    }

    void readsOneUnitAsBoth()
    {
        JsonError error;
        const AUTH_INF item
            = itemInJson("{\"name\":\"a\",\"output_results\":[{\"key\":\"r\",\"unit\":\"mm\"}]}",
                         &error);
        QCOMPARE(error.text, QString());
        QCOMPARE(item.output_results.value(0).mid(4, 2), QStringList({ "mm", "mm" }));
    }

    void leavesOut_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("expected");

        const QByteArray parameter = "name=\"x\" causality=\"parameter\"";
        QTest::newRow("what contradicts itself")
            << variable(parameter, "Real start=\"1e999\" min=\"5\" max=\"3\"")
            << QStringList { "fmiVersion", "Default.x", "Min.x", "Max.x" };
        QTest::newRow("texts of an array of which one begins with white space")
            << model("<ModelVariables><String " + parameter
                     + "><Dimension start=\"2\"/><Start value=\" a\"/><Start value=\"b\"/>"
                       "</String></ModelVariables>")
            << QStringList { "x/@start", "fmiVersion" };
        QTest::newRow("nothing of what is about the file")
            << variable(parameter, "Real")
                   .replace(" guid=",
                            " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                            "xsi:noNamespaceSchemaLocation=\"a.xsd\" guid=")
            << QStringList("fmiVersion");
    }
    void leavesOut()
    {
        QFETCH(QByteArray, bytes);
        QVector<LeftOut> leftOut;
        const AUTH_INF item = itemOf(fmiModelIn(bytes), &leftOut);
        QCOMPARE(KeltoItemHints(item).problems().size(), 0);
        QStringList names;
        for (const LeftOut &each : qAsConst(leftOut))
            names.append(each.what);
        QTEST(names, "expected");
    }

    void survivesHostileModels_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isModel");

        QByteArray bomb = "<!DOCTYPE f [<!ENTITY a0 \"" + QByteArray(100, 'x') + "\">";
        for (int i = 1; i < 20; ++i) {
            const QByteArray last = "&a" + QByteArray::number(i - 1) + ';';
            bomb += "<!ENTITY a" + QByteArray::number(i) + " \"" + last.repeated(10) + "\">";
        }
        QTest::newRow("entities of entities") << QByteArray(bomb + "]>" + model("&a19;")) << false;
        QTest::newRow("an entity in a file")
            << QByteArray("<!DOCTYPE f [<!ENTITY a SYSTEM \"/etc/passwd\">]>" + model("&a;"))
            << true;
        QTest::newRow("deep") << model(QByteArray("<a>").repeated(200000)
                                       + QByteArray("</a>").repeated(200000))
                              << true;
        QByteArray many = "<ModelVariables>";
        for (int i = 0; i < 20000; ++i)
            many += "<ScalarVariable name=\"/\" causality=\"output\"><Real/></ScalarVariable>";
        QTest::newRow("many of one name") << model(many + "</ModelVariables>") << true;
        QTest::newRow("cut") << model("").chopped(9) << false;
        QTest::newRow("another document") << QByteArray("<html/>") << false;
        QTest::newRow("version 1")
            << QByteArray("<fmiModelDescription fmiVersion=\"1.0\"/>") << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }
    void survivesHostileModels()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isModel);
        QElapsedTimer timer;
        timer.start();
        const FmiModel found = fmiModelIn(bytes);
        QVector<LeftOut> leftOut;
        const AUTH_INF item = itemOf(found, &leftOut);
        QCOMPARE(found.error.isEmpty(), isModel);
        QCOMPARE(item.output_results.size(), found.variables.size());
        QVERIFY2(timer.elapsed() < 10000, "it takes longer than it grows");
    }
};

QTEST_GUILESS_MAIN(TestKeltoConvert)

#include "tst_kelto_convert.moc"
