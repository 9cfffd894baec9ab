// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The examples of the reference: what stands between the marks is shown there, and what it gives is
// compared behind them.

#include "support/directorytest.h"

#include <Kelto/Forms/KeltoParameterForm>
#include <Kelto/Forms/KeltoParameterModel>
#include <Kelto/Forms/KeltoResultView>
#include <Kelto/Kelto>

#include <QTest>
#include <QTimer>

using Values = QVector<QPair<QString, QVariant>>;

namespace {

AUTH_INF beam()
{
    //! [AUTH_INF]
    AUTH_INF item;
    item.name = "Beam";
    item.name_tr = "Träger"; // what people read, in their language
    item.type = item.type_tr = "calculation";
    item.group = item.group_tr = "Statics";
    item.exclusive_group = true; // one mode of the group is selected at a time
    item.inner_mode_count = 2;
    item.inner_mode_nameList = QStringList { "Cantilever", "Simply supported" };
    item.inner_mode_nameList_tr = item.inner_mode_nameList;
    item.inner_mode_description = QStringList { "Clamped at one end", "A support at each end" };
    const QStringList length { "Geometry", "Length", "double", "false",   "mm",
                               "m",        "L",      "Length", "Geometry" };
    item.inner_mode_parameterList = { { length }, { length } }; // of each mode
    //! [AUTH_INF]
    //! [VDataItem]
    item.extraKey.append(VDataItem("Min.Length", 1)); // a hint, see KeltoItemHints
    item.extraKey.append(VDataItem("Author", "A. Engineer")); // the host's own
    //! [VDataItem]
    return item;
}

} // namespace

class TestReference : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void describes();
    void asks();
    void chooses();
    void enters();
    void checks();
    void calculates();
    void stores();
};

void TestReference::describes()
{
    AUTH_INF item = beam();
    QCOMPARE(item.parameter_belonglist("Length"),
             (QStringList { "Cantilever", "Simply supported" }));
    //! [KeltoParameterEntry]
    const QStringList entry = item.inner_mode_parameterList.at(0).at(0);
    const QString unit = entry.value(KeltoParameterEntry::Unit); // "mm"
    //! [KeltoParameterEntry]
    QCOMPARE(unit, "mm");
    //! [KeltoItemHints]
    const KeltoItemHints hints(item, "Cantilever");
    const double least = hints.minimum("Length"); // 1
    const QVector<KeltoItemHints::Problem> problems = hints.problems(); // none
    //! [KeltoItemHints]
    QCOMPARE(least, 1.0);
    QVERIFY(problems.isEmpty());
    //! [KeltoItemTranslation]
    // Fills name_tr and all other translated fields, with the translators that are installed.
    KeltoItemTranslation::translate(&item);
    //! [KeltoItemTranslation]
    QCOMPARE(item.name_tr, "Beam");
}

void TestReference::asks()
{
    const AUTH_INF item = beam();
    //! [AUTH_SET]
    AUTH_SET registry("Example", "1.0", { item });
    registry.exclusive_group_set_mode("Statics", "Simply supported");
    const int selected = registry.exclusive_group_select("Statics"); // 1
    const QString name = registry.stdModeNameForm("Statics", "Simply supported");
    // "Example:Statics:Simply supported"
    //! [AUTH_SET]
    QCOMPARE(selected, 1);
    QCOMPARE(name, "Example:Statics:Simply supported");
    //! [VParameter]
    const QVector<VParameter> parameters = registry.defaultParameterList("Statics", "Cantilever");
    const VParameter length = parameters.value(0);
    const QString title = length.name().second + " in " + length.unit().first; // "Length in mm"
    //! [VParameter]
    QCOMPARE(title, "Length in mm");
}

void TestReference::chooses()
{
    AUTH_SET registry("Example", "1.0", { beam() });
    QTimer::singleShot(0, this, [] { QApplication::activeModalWidget()->close(); });
    //! [UTaskSelectDialog]
    registry.current_group = "Statics";
    registry.current_mode = "Cantilever"; // is selected when the dialog opens
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    dialog.show(); // waits until it is closed
    const bool isAccepted = dialog.operateIndex == 0;
    //! [UTaskSelectDialog]
    QVERIFY(!isAccepted);
}

void TestReference::enters()
{
    AUTH_SET registry("Example", "1.0", { beam() });
    //! [KeltoParameterForm]
    KeltoParameterForm form(&registry, "Statics", "Cantilever");
    form.setValues({ { "Attribute/Length", "2500" } });
    form.show();
    const bool isComplete = form.isComplete(); // true: nothing is missing or wrong
    //! [KeltoParameterForm]
    QVERIFY(isComplete);
    //! [KeltoParameterModel]
    // Without a window, or for several views of the same values.
    KeltoParameterModel model(&registry, "Statics", "Cantilever");
    model.setValues({ { "Attribute/Length", "0.5" } });
    const int wrong = model.findings().size(); // 1: below the minimum
    //! [KeltoParameterModel]
    QCOMPARE(wrong, 1);
}

void TestReference::checks()
{
    const AUTH_INF item = beam();
    //! [KeltoItemParameterVerify]
    const Values values { { "Attribute/length", "2500" } };
    const bool isValid = KeltoItemParameterVerify::isValid(&item, &values, "Cantilever"); // false
    const QStringList missing = KeltoItemParameterVerify::missing(&item, &values, "Cantilever");
    // "Attribute/Length"
    //! [KeltoItemParameterVerify]
    QVERIFY(!isValid);
    QCOMPARE(missing, QStringList("Attribute/Length"));
    //! [KeltoItemFinding]
    QStringList sentences;
    const auto findings = KeltoItemParameterVerify::explain(&item, &values, "Cantilever");
    for (const KeltoItemFinding &finding : findings)
        sentences.append(finding.text());
    //! [KeltoItemFinding]
    QCOMPARE(sentences.size(), 1);
    QVERIFY2(sentences.first().contains("Attribute/length"), qPrintable(sentences.first()));
}

void TestReference::calculates()
{
    const AUTH_INF item = beam();
    AUTH_SET registry("Example", "1.0", { item });
    //! [KeltoItemParameterTransform]
    const VParameter length = registry.defaultParameterList("Statics", "Cantilever").value(0);
    const QVariant metres
        = KeltoItemParameterTransform::multiplication2D(&length, "2500", { 0.001 }); // 2.5
    //! [KeltoItemParameterTransform]
    QCOMPARE(metres, QVariant(2.5));
    //! [KeltoResultView]
    KeltoResultView view;
    const VParameter deflection(0, "Deflection", "mm", "w");
    view.setResults({ deflection }, { { "Deflection", 3.25 } });
    view.show();
    //! [KeltoResultView]
    QVERIFY(view.isVisible());
}

void TestReference::stores()
{
    //! [VIniSettings]
    VIniSettings settings("settings.ini"); // is created where it is missing
    settings.setValue("Window/Width", 800);
    settings.saveLocal();
    const int width = VIniSettings("settings.ini").value("Window/Width").toInt(); // 800
    //! [VIniSettings]
    QCOMPARE(width, 800);
}

QTEST_MAIN(TestReference)

#include "tst_reference.moc"
