// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "forms/formitems.h"
#include "support/randomitems.h"

#include <Kelto/Forms/KeltoParameterModel>
#include <Kelto/KeltoItemParameterVerify>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

#include <cmath>

using Model = KeltoParameterModel;

Q_DECLARE_METATYPE(Entries)
Q_DECLARE_METATYPE(QVector<VDataItem>)

namespace {

QModelIndex valueOf(const Model &model, const QString &key)
{
    return model.index(model.row(key), Model::ValueColumn);
}

bool type(Model *model, const QString &key, const QVariant &typed)
{
    return model->setData(valueOf(*model, key), typed);
}

QVariant stored(const Model &model, const QString &key)
{
    const Entries values = model.values();
    for (const auto &value : values) {
        if (value.first == "Attribute/" + key)
            return value.second;
    }
    return QVariant();
}

QStringList keys(const Model &model)
{
    QStringList all;
    for (int row = 0; row < model.rowCount(); ++row)
        all.append(model.index(row, 0).data(Model::KeyRole).toString());
    return all;
}

QStringList kindsOfFindings(const Model &model)
{
    QStringList kinds;
    const QVector<KeltoItemFinding> findings = model.findings();
    for (const KeltoItemFinding &finding : findings)
        kinds.append(finding.valueKey + ":" + QString::number(finding.kind));
    return kinds;
}

/// One model of one parameter of this kind.
Model *modelOf(const QStringList &entry, const QVector<VDataItem> &hints, QObject *parent)
{
    const AUTH_SET registry = registryOf(beam({ entry }, hints));
    return new Model(&registry, "Statics", "Bend", parent);
}

} // namespace

/// Parameters, their values and what is wrong with them.
class tst_KeltoParameterModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsKinds_data();
    void readsKinds();
    void hasRowsInOrderOfHints();
    void hasNoRowsForWhatIsUnknown();
    void tellsModesOfOneNameApart();
    void describesParameters();
    void storesWhatIsTyped_data();
    void storesWhatIsTyped();
    void keepsWhatIsNotEdited_data();
    void keepsWhatIsNotEdited();
    void givesValuesInOrder();
    void takesFirstOfEqualKeys();
    void keepsDeviatingUnits();
    void fillsInDefaultsAtTheStartOnly();
    void resetsToDefaults();
    void storesWhatDoesNotCountAsEmptyText();
    void keepsWhatDoesNotCountForLater();
    void findsWhatIsWrong();
    void saysWhatIsWrongAsItIsShown_data();
    void saysWhatIsWrongAsItIsShown();
    void findsTheSameWithoutAnItem();
    void tellsWhenComplete();
    void gathersFindingsOnceForManyEdits();
    void undoesAndRedoes();
    void tellsNothingAtItsEnd();
    void makesNoStepOfNothing();
    void mayBeFilledAnewWhileTellingOfAnEdit();
    void losesNoValue_data();
    void losesNoValue();
};

void tst_KeltoParameterModel::readsKinds_data()
{
    QTest::addColumn<QStringList>("entry");
    QTest::addColumn<QString>("choices");
    QTest::addColumn<Model::Kind>("kind");

    const QVector<QPair<QString, Model::Kind>> kinds {
        { "float", Model::Number },    { "double", Model::Number },
        { "int", Model::WholeNumber }, { "bool", Model::Bool },
        { "text", Model::Text },       { "string", Model::Text },
        { "QString", Model::Text },    { "file", Model::File },
        { "newfile", Model::NewFile }, { "directory", Model::Directory },
        { "color", Model::Color },     { "choice", Model::Text },
        { "", Model::Text },           { "Float", Model::Text },
        { "tensor", Model::Text },
    };
    for (const auto &kind : kinds)
        QTest::newRow(qPrintable("word \"" + kind.first + "\""))
            << plainEntry("a", kind.first) << "" << kind.second;
    QTest::newRow("choice with choices") << plainEntry("a", "choice") << "x|y" << Model::Choice;
    QTest::newRow("number with choices") << plainEntry("a", "int") << "1|2" << Model::Choice;
    QTest::newRow("several") << multiEntry("a", "QVector<double>") << "" << Model::Table;
    QTest::newRow("several of an unknown word") << multiEntry("a", "b") << "" << Model::Table;
}

void tst_KeltoParameterModel::readsKinds()
{
    QFETCH(QStringList, entry);
    QFETCH(QString, choices);
    QVector<VDataItem> hints;
    if (!choices.isEmpty())
        hints.append(VDataItem("Choices.a", choices));
    const Model *model = modelOf(entry, hints, this);
    QTEST(Model::Kind(model->index(0, 0).data(Model::KindRole).toInt()), "kind");
}

void tst_KeltoParameterModel::hasRowsInOrderOfHints()
{
    const AUTH_SET registry = registryOf(beam({ plainEntry("b"), plainEntry("d"), plainEntry("a"),
                                                plainEntry("b"), plainEntry("c") },
                                              { { "Order", "c|b" } }));
    QCOMPARE(keys(Model(&registry, "Statics_tr", "Bend_tr")), QStringList({ "c", "b", "a", "d" }));
    const KeltoItemHints hints(&registry, "Statics", "Bend");
    const Model bare({ VParameter(plainEntry("d")), VParameter(plainEntry("b")) }, hints);
    QCOMPARE(keys(bare), QStringList({ "b", "d" }));
}

void tst_KeltoParameterModel::hasNoRowsForWhatIsUnknown()
{
    const AUTH_SET registry = registryOf(caseBeam());
    QCOMPARE(Model().rowCount(), 0);
    QCOMPARE(Model(nullptr, "Statics", "Bend").rowCount(), 0);
    QCOMPARE(Model(nullptr, "Statics", 0).rowCount(), 0);
    QCOMPARE(Model(&registry, "Dynamics", "Bend").rowCount(), 0);
    QCOMPARE(Model(&registry, "Statics", "Shear").rowCount(), 0);
    QCOMPARE(Model(&registry, "Statics", 1).rowCount(), 0);
    QCOMPARE(Model(&registry, "Statics", -1).rowCount(), 0);
    Model model(&registry, "Statics", 0);
    QCOMPARE(model.rowCount(), 4);
    QCOMPARE(model.row("Width"), -1);
    QCOMPARE(model.parameter(4).name().first, QString());
    QCOMPARE(model.data(model.index(4, 0)), QVariant());
    QVERIFY(!model.setData(model.index(4, 2), "1"));
    QVERIFY(!model.setData(model.index(0, 0), "1"));
}

void tst_KeltoParameterModel::tellsModesOfOneNameApart()
{
    AUTH_INF first = beam({ plainEntry("a") });
    first.inner_mode_count = 2;
    first.inner_mode_nameList = QStringList { "Bend", "Bend" };
    first.inner_mode_parameterList.append(ParameterEntries { plainEntry("b") });
    const AUTH_SET registry("Host", "1", { first, beam({ plainEntry("c") }) });
    QCOMPARE(keys(Model(&registry, "Statics", 0)), QStringList("a"));
    QCOMPARE(keys(Model(&registry, "Statics", 1)), QStringList("b"));
    Model third(&registry, "Statics", 2);
    QCOMPARE(keys(third), QStringList("c"));
    QCOMPARE(kindsOfFindings(third), QStringList("Attribute/c:0"));
}

void tst_KeltoParameterModel::describesParameters()
{
    const AUTH_SET registry = registryOf(caseBeam());
    Model model(&registry, "Statics", "Bend");
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QModelIndex force = valueOf(model, "Force");
    QCOMPARE(force.data(Model::NameRole).toString(), "Point load");
    QCOMPARE(force.data(Model::SymbolRole).toString(), "F");
    QCOMPARE(force.data(Model::UnitRole).toString(), "mm");
    QCOMPARE(force.data(Model::GroupRole).toString(), "Load");
    QCOMPARE(force.data(Qt::ToolTipRole).toString(), "Acts at the free end.");
    QCOMPARE(force.data(Model::CountsRole).toBool(), false);
    QCOMPARE(model.flags(force) & Qt::ItemIsEnabled, Qt::ItemFlags());
    QCOMPARE(valueOf(model, "Depth").data(Model::AdvancedRole).toBool(), true);
    QCOMPARE(valueOf(model, "Depth").data(Model::OptionalRole).toBool(), true);
    QCOMPARE(valueOf(model, "Depth").data(Model::MissingRole).toBool(), false);
    const QModelIndex which = valueOf(model, "Case");
    QCOMPARE(which.data(Model::MissingRole).toBool(), true);
    QCOMPARE(which.data(Model::ChoicesRole).toList().value(1).toMap(),
             QVariantMap({ { "value", "end" }, { "label", "At the end" } }));
    QVERIFY(type(&model, "Case", "end"));
    QCOMPARE(which.data().toString(), "At the end");
    QCOMPARE(force.data(Model::CountsRole).toBool(), true);
    QCOMPARE(model.roleNames().value(Model::FindingRole), QByteArray("finding"));
    QCOMPARE(model.headerData(Model::UnitColumn, Qt::Horizontal).toString(), "Unit");
}

void tst_KeltoParameterModel::storesWhatIsTyped_data()
{
    QTest::addColumn<QStringList>("entry");
    QTest::addColumn<QVariant>("typed");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("shown");

    const QStringList number = plainEntry("a", "float");
    QTest::newRow("number") << number << QVariant("2,50") << QVariant("2.50") << "2,50";
    QTest::newRow("number with exponent")
        << number << QVariant("2.1e5") << QVariant("2.1e5") << "2,1e5";
    QTest::newRow("no number") << number << QVariant("two") << QVariant("two") << "two";
    QTest::newRow("a double") << number << QVariant(0.1) << QVariant("0.1") << "0,1";
    QTest::newRow("whole number") << plainEntry("a", "int") << QVariant(" 7 ") << QVariant("7")
                                  << "7";
    QTest::newRow("a bool") << plainEntry("a", "bool") << QVariant(true) << QVariant("true")
                            << "Yes";
    QTest::newRow("text with a comma")
        << plainEntry("a", "text") << QVariant("1,5 ") << QVariant("1,5 ") << "1,5 ";
    QTest::newRow("path") << plainEntry("a", "file") << QVariant("/tmp/ä b") << QVariant("/tmp/ä b")
                          << "/tmp/ä b";
    QTest::newRow("several") << multiEntry("a", "QVector<QPointF>")
                             << QVariant(QStringList { "1|2", "3|4" })
                             << QVariant(QStringList { "1|2", "3|4" }) << "1|2; 3|4";
    QTest::newRow("nothing") << number << QVariant("") << QVariant() << "";
}

void tst_KeltoParameterModel::storesWhatIsTyped()
{
    QFETCH(QStringList, entry);
    QFETCH(QVariant, typed);
    QFETCH(QVariant, stored);
    Model *model = modelOf(entry, {}, this);
    model->setLocale(QLocale(QLocale::German));
    QVERIFY(type(model, "a", typed));
    QCOMPARE(::stored(*model, "a"), stored);
    QCOMPARE(::stored(*model, "a").userType(), stored.userType());
    QTEST(valueOf(*model, "a").data().toString(), "shown");
}

void tst_KeltoParameterModel::keepsWhatIsNotEdited_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("double") << "float" << QVariant(0.1);
    QTest::newRow("not a number") << "float" << QVariant(std::nan(""));
    QTest::newRow("text that is no number") << "float" << QVariant("12 mm");
    QTest::newRow("number with spaces") << "float" << QVariant(" 5 ");
    QTest::newRow("number of another locale") << "float" << QVariant("1,5");
    QTest::newRow("int") << "int" << QVariant(7);
    QTest::newRow("fraction for a whole number") << "int" << QVariant("2.5");
    QTest::newRow("bool") << "bool" << QVariant(true);
    QTest::newRow("neither true nor false") << "bool" << QVariant("maybe");
    QTest::newRow("list for one value") << "text" << QVariant(QStringList { "a", "b" });
    QTest::newRow("bytes") << "text" << QVariant(QByteArray("bytes"));
    QTest::newRow("lines") << "text" << QVariant("one\ntwo");
    QTest::newRow("map") << "text" << QVariant(QVariantMap { { "a", 1 } });
}

void tst_KeltoParameterModel::keepsWhatIsNotEdited()
{
    QFETCH(QString, objectName);
    QFETCH(QVariant, value);
    Model *model = modelOf(plainEntry("a", objectName), {}, this);
    model->setValues({ { "Attribute/a", value } });
    // Another type is another value, however equal.
    model->setValues({ { "Attribute/a", value.toString() } });
    model->setValues({ { "Attribute/a", value } });
    // A view writes back what it shows.
    const QModelIndex index = valueOf(*model, "a");
    QVERIFY(type(model, "a", index.data(Qt::EditRole)));
    const QVariant kept = stored(*model, "a");
    QCOMPARE(kept.userType(), value.userType());
    if (value != value)
        QVERIFY(std::isnan(kept.toDouble()));
    else
        QCOMPARE(kept, value);
    QCOMPARE(model->undoStack()->count(), 0);
}

void tst_KeltoParameterModel::givesValuesInOrder()
{
    const AUTH_SET registry = registryOf(caseBeam());
    Model model(&registry, "Statics", "Bend");
    model.setValues({ { "Version", 3 },
                      { "Attribute/Case", "end" },
                      { "Attribute/old", "1" },
                      { "Attribute/Length", 4 } });
    QCOMPARE(model.values(),
             Entries({ { "Attribute/Length", 4 },
                       { "Unit/Length", "mm" },
                       { "Attribute/Depth", "" },
                       { "Unit/Depth", "mm" },
                       { "Attribute/Case", "end" },
                       { "Unit/Case", "mm" },
                       { "Unit/Force", "mm" },
                       { "Version", 3 },
                       { "Attribute/old", "1" } }));
}

void tst_KeltoParameterModel::takesFirstOfEqualKeys()
{
    Model *model = modelOf(plainEntry("a"), {}, this);
    model->setValues({ { "Attribute/a", "1" }, { "Attribute/a", "2" }, { "x", 1 }, { "x", 2 } });
    QCOMPARE(model->values(),
             Entries({ { "Attribute/a", "1" }, { "Unit/a", "mm" }, { "x", 1 }, { "x", 2 } }));
}

void tst_KeltoParameterModel::keepsDeviatingUnits()
{
    Model *model = modelOf(plainEntry("a"), {}, this);
    model->setValues({ { "Attribute/a", "1" }, { "Unit/a", "m" } });
    QCOMPARE(model->index(0, Model::UnitColumn).data().toString(), "m");
    QCOMPARE(model->values(), Entries({ { "Attribute/a", "1" }, { "Unit/a", "m" } }));
    model->setValues({ { "Attribute/a", "1" }, { "Unit/a", QVariant() } });
    QCOMPARE(model->values(), Entries({ { "Attribute/a", "1" }, { "Unit/a", "mm" } }));
}

void tst_KeltoParameterModel::fillsInDefaultsAtTheStartOnly()
{
    const AUTH_SET registry = registryOf(caseBeam());
    Model model(&registry, "Statics", "Bend");
    QCOMPARE(stored(model, "Length"), QVariant("2.5"));
    model.setValues({ { "Attribute/Case", "none" } });
    QCOMPARE(stored(model, "Length"), QVariant());
}

void tst_KeltoParameterModel::resetsToDefaults()
{
    const AUTH_SET registry = registryOf(caseBeam());
    Model model(&registry, "Statics", "Bend");
    QVERIFY(type(&model, "Length", "3"));
    QVERIFY(type(&model, "Case", "none"));
    model.resetToDefaults();
    QCOMPARE(stored(model, "Length"), QVariant("2.5"));
    QCOMPARE(stored(model, "Case"), QVariant());
    model.undoStack()->undo();
    QCOMPARE(stored(model, "Length"), QVariant("3"));
    QCOMPARE(stored(model, "Case"), QVariant("none"));
}

void tst_KeltoParameterModel::storesWhatDoesNotCountAsEmptyText()
{
    const AUTH_SET registry = registryOf(caseBeam());
    Model model(&registry, "Statics", "Bend");
    model.setValues({ { "Attribute/Case", "none" }, { "Attribute/Force", "5" } });
    QCOMPARE(stored(model, "Force"), QVariant(""));
    QCOMPARE(model.countingCount(), 3);
}

void tst_KeltoParameterModel::keepsWhatDoesNotCountForLater()
{
    const AUTH_SET registry = registryOf(caseBeam());
    Model model(&registry, "Statics", "Bend");
    QVERIFY(type(&model, "Case", "end"));
    QVERIFY(type(&model, "Force", "5"));
    QVERIFY(type(&model, "Case", "none"));
    const Entries values = model.values();
    QCOMPARE(stored(model, "Force"), QVariant(""));
    model.setValues(values);
    QCOMPARE(model.undoStack()->count(), 3);
    const Entries entered = model.enteredValues();
    QVERIFY(type(&model, "Case", "end"));
    QCOMPARE(stored(model, "Force"), QVariant("5"));
    // In a file it would be lost with the model.
    Model later(&registry, "Statics", "Bend");
    later.setValues(entered);
    QCOMPARE(later.values(), values);
    QVERIFY(type(&later, "Case", "end"));
    QCOMPARE(later.values(), model.values());
    // What counts is the same in both lists.
    QCOMPARE(later.enteredValues(), later.values());
}

void tst_KeltoParameterModel::findsWhatIsWrong()
{
    const AUTH_SET registry = registryOf(caseBeam());
    Model model(&registry, "Statics", "Bend");
    QCOMPARE(kindsOfFindings(model),
             QStringList("Attribute/Case:" + QString::number(KeltoItemFinding::Missing)));
    QVERIFY(type(&model, "Length", "99"));
    QVERIFY(type(&model, "Case", "end"));
    QVERIFY(type(&model, "Force", "much"));
    QCOMPARE(kindsOfFindings(model),
             QStringList({ "Attribute/Length:" + QString::number(KeltoItemFinding::OutsideLimits),
                           "Attribute/Force:" + QString::number(KeltoItemFinding::NotANumber) }));
    QCOMPARE(valueOf(model, "Force").data(Model::FindingRole).toString(),
             "Point load: \"much\" is not a number.");
    // A value that could not be meant for another parameter is none of its concern.
    model.setValues({ { "Attribute/length", "2" }, { "Attribute/Case", "none" } });
    QCOMPARE(kindsOfFindings(model),
             QStringList("Attribute/Length:" + QString::number(KeltoItemFinding::NearMiss)));
}

void tst_KeltoParameterModel::saysWhatIsWrongAsItIsShown_data()
{
    QTest::addColumn<QStringList>("entry");
    QTest::addColumn<QVector<VDataItem>>("hints");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const QStringList &entry, const QVariant &value,
                        const QVector<VDataItem> &hints, const QString &expected) {
        QTest::newRow(name) << entry << hints << value << "x" + expected;
    };
    const QVector<VDataItem> limits { { "Min.x", "0.5" }, { "Max.x", 5000 } };
    row("limits", plainEntry("x"), "0.25", limits,
        ": 0,25 is outside the allowed range (0,5 .. 5000).");
    row("one limit", plainEntry("x"), 0.25, { { "Min.x", "0.5" } },
        ": 0,25 is outside the allowed range (≥ 0,5).");
    row("a fraction", plainEntry("x", "int"), "1.5", {}, ": \"1,5\" is not a whole number.");
    row("no number", plainEntry("x"), "1.5 mm", {}, ": \"1.5 mm\" is not a number.");
    row("points", multiEntry("x", "QVector<QPointF>"), QStringList { "1|2", "0.25|1.5" }, limits,
        ", value 2: 0,25|1,5 is outside the allowed range (0,5 .. 5000).");
    row("text that has to be typed with a point", plainEntry("x", "text"), "0.25", limits,
        ": 0.25 is outside the allowed range (0.5 .. 5000).");
    row("labels", plainEntry("x"), "3", { { "Choices.x", "1=one|2.5" } },
        ": \"3\" is not among the choices (one, 2.5).");
    row("a choice outside its limits", plainEntry("x"), "1",
        { { "Choices.x", "1=one|2=two" }, { "Min.x", 2 } },
        ": 1 is outside the allowed range (≥ 2).");
    row("yes and no", plainEntry("x", "bool"), "maybe", {},
        ": \"maybe\" is not among the choices (Yes, No).");
}

void tst_KeltoParameterModel::saysWhatIsWrongAsItIsShown()
{
    QFETCH(QStringList, entry);
    QFETCH(QVector<VDataItem>, hints);
    QFETCH(QVariant, value);
    Model *model = modelOf(entry, hints, this);
    model->setValues({ { "Attribute/x", value } });
    model->setLocale(QLocale("de"));
    QTEST(valueOf(*model, "x").data(Model::FindingRole).toString(), "expected");
    model->setLocale(QLocale::c());
    QVERIFY(!valueOf(*model, "x").data(Model::FindingRole).toString().contains("0,"));
}

void tst_KeltoParameterModel::findsTheSameWithoutAnItem()
{
    const AUTH_SET registry = registryOf(caseBeam());
    Model model(&registry, "Statics", "Bend");
    const KeltoItemHints hints(&registry, "Statics", "Bend");
    Model bare(hints.parameters(), hints);
    const QVector<Entries> lists { {},
                                   { { "Attribute/Length", "0.5" }, { "Attribute/Case", "end" } },
                                   { { "Attribute/Case", "none" }, { "Attribute/Length", "x" } },
                                   { { "Attribute/Case", "none" }, { "Attribute/Length", "99" } },
                                   { { "Attribute/Case", "side" }, { "Attribute/Depth", "-1" } } };
    for (const Entries &list : lists) {
        model.setValues(list);
        bare.setValues(list);
        QCOMPARE(kindsOfFindings(bare), kindsOfFindings(model));
        QCOMPARE(bare.values(), model.values());
    }
    QCOMPARE(kindsOfFindings(bare).size(), 2);
}

void tst_KeltoParameterModel::tellsWhenComplete()
{
    const AUTH_SET registry = registryOf(caseBeam());
    Model model(&registry, "Statics", "Bend");
    QSignalSpy completed(&model, &Model::completeChanged);
    QSignalSpy edited(&model, &Model::edited);
    QVERIFY(!model.isComplete());
    QVERIFY(type(&model, "Case", "none"));
    QVERIFY(model.isComplete());
    QCOMPARE(edited.count(), 1);
    QVERIFY(completed.wait());
    QCOMPARE(completed.takeFirst(), QVariantList { true });
    model.setValues({});
    QVERIFY(completed.wait());
    QCOMPARE(completed.takeFirst(), QVariantList { false });
    QCOMPARE(edited.count(), 1);
}

void tst_KeltoParameterModel::gathersFindingsOnceForManyEdits()
{
    const AUTH_SET registry = registryOf(caseBeam());
    Model model(&registry, "Statics", "Bend");
    QSignalSpy gathered(&model, &Model::findingsChanged);
    for (int i = 0; i < 10; ++i)
        QVERIFY(type(&model, "Length", QString::number(i)));
    QVERIFY(gathered.wait());
    QCOMPARE(gathered.count(), 1);
}

void tst_KeltoParameterModel::undoesAndRedoes()
{
    const AUTH_SET registry = registryOf(caseBeam());
    Model model(&registry, "Statics", "Bend");
    QSignalSpy edited(&model, &Model::edited);
    QVERIFY(type(&model, "Length", "3"));
    QVERIFY(type(&model, "Length", "4"));
    QVERIFY(type(&model, "Case", "end"));
    QCOMPARE(model.undoStack()->undoText(), "Edit Case");
    model.undoStack()->undo();
    model.undoStack()->undo();
    QCOMPARE(stored(model, "Length"), QVariant("3"));
    QCOMPARE(stored(model, "Case"), QVariant());
    model.undoStack()->undo();
    QCOMPARE(stored(model, "Length"), QVariant("2.5"));
    model.undoStack()->redo();
    QCOMPARE(stored(model, "Length"), QVariant("3"));
    QCOMPARE(edited.count(), 7);
    model.setValues({ { "Attribute/Length", "8" } });
    QVERIFY(!model.undoStack()->canUndo());
}

void tst_KeltoParameterModel::tellsNothingAtItsEnd()
{
    const AUTH_SET registry = registryOf(caseBeam());
    auto model = std::make_unique<Model>(&registry, "Statics", "Bend");
    QVERIFY(type(model.get(), "Length", "3"));
    const QSignalSpy edited(model.get(), &Model::edited);
    const QSignalSpy clean(model->undoStack(), &QUndoStack::cleanChanged);
    model.reset();
    QCOMPARE(edited.count(), 0);
    QCOMPARE(clean.count(), 0);
}

void tst_KeltoParameterModel::makesNoStepOfNothing()
{
    Model *model = modelOf(plainEntry("a"), {}, this);
    QSignalSpy edited(model, &Model::edited);
    QVERIFY(type(model, "a", ""));
    QVERIFY(type(model, "a", QVariant()));
    model->resetToDefaults();
    QCOMPARE(model->undoStack()->count(), 0);
    QCOMPARE(edited.count(), 0);
}

void tst_KeltoParameterModel::mayBeFilledAnewWhileTellingOfAnEdit()
{
    Model *model = modelOf(plainEntry("a"), {}, this);
    connect(model, &Model::edited, this, [model] { model->setValues({ { "Attribute/a", "9" } }); });
    QVERIFY(type(model, "a", "1"));
    QCOMPARE(stored(*model, "a"), QVariant("9"));
    QCOMPARE(model->undoStack()->count(), 0);
    QVERIFY(type(model, "a", "2"));
    QCOMPARE(stored(*model, "a"), QVariant("9"));
}

void tst_KeltoParameterModel::losesNoValue_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 0; seed < 50; ++seed)
        QTest::newRow(qPrintable("seed " + QString::number(seed))) << seed;
}

// Values that come out go in again without a change, and what was not edited is as it was given.
void tst_KeltoParameterModel::losesNoValue()
{
    QFETCH(int, seed);
    Dice dice(unsigned(seed) + 1U);
    const QStringList names { "a", "b", "A", "a.b", "c d", "ä", "e" };
    const QStringList words { "float", "int", "bool", "text", "file", "color", "" };
    const QVector<QVariant> values { "1.50",
                                     "x",
                                     "",
                                     0.1,
                                     3,
                                     true,
                                     "ä|b",
                                     "\n",
                                     "5,5",
                                     QVariant(),
                                     QStringList { "1|2", "3" },
                                     QStringList() };
    ParameterEntries entries;
    QVector<VDataItem> hints;
    const QStringList drawn = dice.someOf(names, 5);
    for (const QString &name : drawn) {
        entries.append(dice.chance(30) ? multiEntry(name, "QVector<double>")
                                       : plainEntry(name, dice.oneOf(words)));
        if (dice.chance(40))
            hints.append(VDataItem("Optional." + name, "true"));
        if (dice.chance(30))
            hints.append(VDataItem("When." + name, QString(dice.oneOf(names) + "=x|1.50")));
    }
    const AUTH_SET registry = registryOf(beam(entries, hints));
    Model model(&registry, "Statics", "Bend");
    Entries given;
    const QStringList stored = dice.someOf(names, 6);
    for (const QString &name : stored)
        given.append({ dice.oneOf({ "Attribute/", "Unit/", "" }) + name,
                       values.at(dice.between(0, values.size() - 1)) });
    model.setValues(given);
    const Entries once = model.values();
    Model second(&registry, "Statics", "Bend");
    second.setValues(once);
    QCOMPARE(second.values(), once);
    const int row = dice.between(0, model.rowCount() - 1);
    model.setData(model.index(row, Model::ValueColumn), "1.5");
    model.setValues(model.values());
    QVERIFY(model.undoStack()->count() <= 1);
    model.undoStack()->undo();
    QCOMPARE(model.values(), once);
    const AUTH_INF item = registry.AUTH_INF_DATA().constFirst();
    const QVector<KeltoItemFinding> findings = second.findings();
    const bool isAnyAbsent
        = std::any_of(findings.cbegin(), findings.cend(),
                      [](const KeltoItemFinding &finding) { return finding.isAbsence(); });
    QCOMPARE(KeltoItemParameterVerify::isValid(&item, &once, "Bend"), !isAnyAbsent);
}

QTEST_MAIN(tst_KeltoParameterModel)
#include "tst_keltoparametermodel.moc"
