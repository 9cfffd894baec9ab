// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "forms/formitems.h"

#include <Kelto/Forms/KeltoResultView>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QPolygonF>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QTreeView>

namespace {

QTreeView *treeOf(const KeltoResultView &view)
{
    return view.findChild<QTreeView *>("kelto_results");
}

/// What is shown, one text per row, those inside of others indented.
QStringList rowsOf(const KeltoResultView &view, const QModelIndex &parent = QModelIndex())
{
    const QAbstractItemModel *model = treeOf(view)->model();
    QStringList rows;
    for (int row = 0; row < model->rowCount(parent); ++row) {
        QStringList cells;
        for (int column = 0; column < model->columnCount(parent); ++column)
            cells.append(model->index(row, column, parent).data().toString());
        rows.append(cells.join(" / "));
        const QStringList children = rowsOf(view, model->index(row, 0, parent));
        for (const QString &inside : children)
            rows.append("  " + inside);
    }
    return rows;
}

VParameter result(const QString &key, const QVariant &value, const QString &objectName = "float",
                  bool isMulti = false, const QString &group = QString())
{
    return VParameter(value, { key, key + "_tr" }, { "mm", QString() }, "s", { group, group },
                      objectName, isMulti);
}

/// A view of one result with this value.
struct View : KeltoResultView
{
    explicit View(const QVector<VParameter> &results, const Entries &values = {},
                  const KeltoItemHints &hints = KeltoItemHints(), const QString &language = "en")
        : tester(treeOf(*this)->model())
    {
        setLocale(QLocale(language));
        setResults(results, values, hints);
    }

    QAbstractItemModelTester tester;
};

/// Two stresses and a line, in an order of their own, with a label and help.
AUTH_INF item()
{
    AUTH_INF item = beam({ plainEntry("Length") },
                         { { "Order", "Line|Stress" },
                           { "Label.Stress", "Bending stress" },
                           { "Help.Stress", "At the fixed end." } });
    QStringList line = multiEntry("Line", "QVector<QPointF>");
    line[KeltoParameterEntry::SecondUnit] = "N";
    item.output_results = { plainEntry("Stress", "float", "Strength"),
                            plainEntry("Mass", "float", "Strength"), line };
    return item;
}

/// Values for its results, and some that do not count.
Entries itemValues()
{
    return { { "Result/Stress", 1234.56789 },
             { "Attribute/Line", QStringList { "0|0.1", "1|0.25" } },
             { "Stress", "later ones do not count" },
             { "Result/Unknown", 1 } };
}

class Pseudo : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const bool isOurs
            = QString(context) == "KeltoResultView" || QString(context) == "BeamTexts";
        return isOurs ? "<" + QString(text) + ">" : QString();
    }
    bool isEmpty() const override { return false; }
};

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

} // namespace

Q_DECLARE_METATYPE(QVector<double>)
Q_DECLARE_METATYPE(QVector<QPointF>)

/// Results as they are shown, copied and written.
class tst_KeltoResultView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsValues_data();
    void showsValues();
    void roundsToSignificantDigits_data();
    void roundsToSignificantDigits();
    void showsResultsInOrderOfHints();
    void showsNothingAtFirst();
    void copiesAsText();
    void copiesForASpreadsheet();
    void copiesWhatIsSelected_data();
    void copiesWhatIsSelected();
    void writesCsv();
    void saysWhatKeepsItFromWriting();
    void followsTheLanguage();
    void followsTheDefaultLocale();
    void keepsWhatIsOpenAndClosed();
    void isUsedByKeys();
};

void tst_KeltoResultView::showsValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<bool>("isMulti");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QString>("exact");
    QTest::addColumn<QString>("csv");

    const auto row = [](const char *name, const QVariant &value, const char *objectName,
                        bool isMulti, const QStringList &rows, const QString &exact,
                        const QString &csv) {
        QTest::newRow(name) << value << QString(objectName) << isMulti << rows << exact << csv;
    };
    const auto one
        = [](const QString &value) { return QStringList("R_tr / s / " + value + " / mm"); };
    const auto list = [](const QStringList &values) {
        const QString count = values.size() == 1 ? "1 value" : "%1 values";
        QStringList rows("R_tr / s / " + (values.size() == 1 ? count : count.arg(values.size()))
                         + " / ");
        for (int i = 0; i < values.size(); ++i)
            rows.append(QString("  %1 /  / ").arg(i + 1) + values.at(i) + " / mm");
        return rows;
    };
    row("number", 1234.56789, "float", false, one("1234,57"), "1234,56789", "1234.56789");
    row("large number", 1.5e10, "float", false, one("1,5e+10"), "1,5e+10", "1.5e+10");
    row("small number", -1.23456789e-7, "float", false, one("-1,23457e-7"), "-1,23456789e-07",
        "-1.23456789e-07");
    row("every digit", 0.1 + 0.2, "double", false, one("0,3"), "0,30000000000000004",
        "0.30000000000000004");
    row("single precision", QVariant::fromValue(0.1F), "float", false, one("0,1"), "0,100000001",
        "0.100000001");
    row("whole number", 123456789, "int", false, one("123456789"), "123456789", "123456789");
    row("not finite", qInf(), "float", false, one("inf"), "inf", "inf");
    row("number as text", "1.23456789", "float", false, one("1,23457"), "1,23456789", "1.23456789");
    row("no number", "diverged", "float", false, one("diverged"), "diverged", "diverged");
    row("text of digits", "007.10", "text", false, one("007.10"), "007.10", "007.10");
    row("text with signs", "a|b, \"c\"", "text", false, one("a|b, \"c\""), "a|b, \"c\"",
        "\"a|b, \"\"c\"\"\"");
    row("truth", true, "bool", false, one("Yes"), "true", "true");
    row("nothing", QVariant(), "float", false, one("no value"), "", "");
    row("empty text", "", "text", false, one("no value"), "", "");
    row("point", QPointF(1.5, -2), "QPointF", false, one("1,5; -2"), "1,5; -2", "1.5,-2");
    row("stored array", QStringList({ "1.5", "x" }), "QVector<double>", true, list({ "1,5", "x" }),
        "", "1.5;x");
    row("array", QVariant::fromValue(QVector<double> { 1.5, 2 }), "QVector<double>", true,
        list({ "1,5", "2" }), "", "1.5;2");
    row("list of mixed values", QVariantList({ 1.5, "a" }), "any", true, list({ "1,5", "a" }), "",
        "1.5;a");
    row("one value in a list", QVariantList({ 7 }), "any", true, list({ "7" }), "", "7");
    row("empty list", QStringList(), "QVector<double>", true, list({}), "", "");
    row("stored points", QStringList({ "0|1.5", "2" }), "QVector<QPointF>", true,
        list({ "0; 1,5", "2" }), "", "0,1.5;2,");
    row("points", QVariant::fromValue(QVector<QPointF> { { 0, 1.5 } }), "QVector<QPointF>", true,
        list({ "0; 1,5" }), "", "0,1.5");
    row("polygon", QPolygonF(QVector<QPointF> { { 0, 1.5 }, { 1, 2 } }), "QVector<QPointF>", true,
        list({ "0; 1,5", "1; 2" }), "", "0,1.5;1,2");
    row("rows of a table", QStringList({ "a|1.5|c", "b" }), "QVector<QStringList>", true,
        list({ "a; 1.5; c", "b" }), "", "a,1.5,c;b,,");
}

void tst_KeltoResultView::showsValues()
{
    QFETCH(QVariant, value);
    QFETCH(QString, objectName);
    QFETCH(bool, isMulti);
    QFETCH(QStringList, rows);
    QFETCH(QString, exact);
    QFETCH(QString, csv);
    const View view({ result("R", value, objectName, isMulti) }, {}, {}, "de");
    QCOMPARE(rowsOf(view), rows);
    const QModelIndex shown = treeOf(view)->model()->index(0, 2);
    QCOMPARE(shown.data(Qt::ToolTipRole).toString(), exact);
    QStringList lines = view.csv().split("\r\n");
    QVERIFY(lines.takeFirst().startsWith("Sub-group,Name,Symbol,Unit,Value"));
    QCOMPARE(lines.takeLast(), "");
    const QString start = ",R_tr,s,mm,";
    for (QString &line : lines) {
        QCOMPARE(line.left(start.size()), start);
        line.remove(0, start.size());
    }
    QCOMPARE(lines.join(";"), csv);
}

void tst_KeltoResultView::roundsToSignificantDigits_data()
{
    QTest::addColumn<int>("digits");
    QTest::addColumn<int>("taken");
    QTest::addColumn<QString>("shown");

    QTest::newRow("one") << 1 << 1 << "1e+1";
    QTest::newRow("three") << 3 << 3 << "12.3";
    QTest::newRow("more than there are") << 8 << 8 << "12.345";
    QTest::newRow("all") << 17 << 17 << "12.345000000000001";
    QTest::newRow("too many") << 18 << 17 << "12.345000000000001";
    QTest::newRow("none") << 0 << 1 << "1e+1";
    QTest::newRow("negative") << -3 << 1 << "1e+1";
}

void tst_KeltoResultView::roundsToSignificantDigits()
{
    QFETCH(int, digits);
    QFETCH(int, taken);
    QFETCH(QString, shown);
    View view({ result("R", 12.345) });
    QCOMPARE(view.significantDigits(), 6);
    QSignalSpy changes(&view, &KeltoResultView::significantDigitsChanged);
    QVERIFY(view.setProperty("significantDigits", digits));
    QVERIFY(view.setProperty("significantDigits", digits));
    QCOMPARE(changes, QList<QVariantList>({ { taken } }));
    QCOMPARE(view.significantDigits(), taken);
    QCOMPARE(rowsOf(view), QStringList("R_tr / s / " + shown + " / mm"));
    view.setResults({ result("R", 12.345) });
    QCOMPARE(rowsOf(view), QStringList("R_tr / s / " + shown + " / mm"));
}

void tst_KeltoResultView::showsResultsInOrderOfHints()
{
    const KeltoItemHints hints(item(), "Bend");
    const View view(hints.results(), itemValues(), hints);
    QCOMPARE(rowsOf(view),
             QStringList({ "Size /  /  / ", "  Line / L / 2 values / ", "    1 /  / 0; 0.1 / mm; N",
                           "    2 /  / 1; 0.25 / mm; N", "Strength /  /  / ",
                           "  Bending stress / S / 1234.57 / mm", "  Mass / M / no value / mm" }));
    const QAbstractItemModel *model = treeOf(view)->model();
    QCOMPARE(model->index(0, 0, model->index(1, 0)).data(Qt::ToolTipRole).toString(),
             "At the fixed end.");
    // Sub-groups that do not stand together in the list do so in the view.
    const View mixed({ result("A", 1, "int", false, "G"), result("B", 2, "int"),
                       result("C", 3, "int", false, "G") });
    QCOMPARE(rowsOf(mixed),
             QStringList({ "G /  /  / ", "  A_tr / s / 1 / mm", "  C_tr / s / 3 / mm",
                           "B_tr / s / 2 / mm" }));
}

void tst_KeltoResultView::showsNothingAtFirst()
{
    KeltoResultView view;
    QCOMPARE(rowsOf(view), QStringList());
    QCOMPARE(view.text(), "");
    QCOMPARE(view.csv(), "Sub-group,Name,Symbol,Unit,Value\r\n");
    view.setResults({ result("R", 1) });
    view.setResults({});
    QCOMPARE(rowsOf(view), QStringList());
}

void tst_KeltoResultView::copiesAsText()
{
    const KeltoItemHints hints(item(), "Bend");
    View view(hints.results(), itemValues(), hints, "de");
    view.copyAsText();
    const QString text = "Size\n"
                         "  Line (L): 2 values\n"
                         "    0; 0,1 mm; N\n"
                         "    1; 0,25 mm; N\n"
                         "\n"
                         "Strength\n"
                         "  Bending stress (S): 1234,57 mm\n"
                         "  Mass (M): no value\n";
    QCOMPARE(QApplication::clipboard()->text(), text);
    QCOMPARE(view.text(), text);
    const VParameter plain(2.5, "R", QString(), QString());
    QCOMPARE(View({ result("A", 1, "int", false, "G"), plain }).text(),
             "G\n  A_tr (s): 1 mm\n\nR: 2.5\n");
}

void tst_KeltoResultView::copiesForASpreadsheet()
{
    const KeltoItemHints hints(item(), "Bend");
    View view(hints.results(), itemValues(), hints, "de");
    view.copyAsCells();
    QCOMPARE(QApplication::clipboard()->text(),
             "Size\tLine\tL\tmm; N\t0\t0,1\n"
             "Size\tLine\tL\tmm; N\t1\t0,25\n"
             "Strength\tBending stress\tS\tmm\t1234,56789\n"
             "Strength\tMass\tM\tmm\t\n");
}

void tst_KeltoResultView::copiesWhatIsSelected_data()
{
    QTest::addColumn<QVector<int>>("path");
    QTest::addColumn<QString>("text");

    const QString line = "Size\n  Line (L): 2 values\n    0; 0.1 mm; N\n    1; 0.25 mm; N\n";
    QTest::newRow("result") << QVector<int> { 1, 1 } << "Strength\n  Mass (M): no value\n";
    QTest::newRow("list") << QVector<int> { 0, 0 } << line;
    QTest::newRow("value of a list") << QVector<int> { 0, 0, 1 } << line;
    QTest::newRow("sub-group") << QVector<int> { 1 }
                               << "Strength\n  Bending stress (S): 1234.57 mm\n"
                                  "  Mass (M): no value\n";
}

void tst_KeltoResultView::copiesWhatIsSelected()
{
    QFETCH(QVector<int>, path);
    QFETCH(QString, text);
    const KeltoItemHints hints(item(), "Bend");
    View view(hints.results(), itemValues(), hints);
    QTreeView *tree = treeOf(view);
    QModelIndex index;
    for (const int row : qAsConst(path))
        index = tree->model()->index(row, 0, index);
    tree->setCurrentIndex(index);
    view.copyAsText();
    QCOMPARE(QApplication::clipboard()->text(), text);
}

void tst_KeltoResultView::writesCsv()
{
    const KeltoItemHints hints(item(), "Bend");
    View view(hints.results(), itemValues(), hints, "de");
    const QByteArray csv = "Sub-group,Name,Symbol,Unit,Value,\r\n"
                           "Size,Line,L,mm; N,0,0.1\r\n"
                           "Size,Line,L,mm; N,1,0.25\r\n"
                           "Strength,Bending stress,S,mm,1234.56789,\r\n"
                           "Strength,Mass,M,mm,,\r\n";
    QTemporaryDir directory;
    const QString path = directory.filePath("results.csv");
    QString problem = "before";
    QVERIFY(view.saveCsv(path, &problem));
    QCOMPARE(problem, "");
    QCOMPARE(bytesOf(path), csv);
    view.setResults({ result(QString::fromUtf8("ä"), 1) });
    QVERIFY(view.saveCsv(path));
    QCOMPARE(bytesOf(path), view.csv().toUtf8());
}

void tst_KeltoResultView::saysWhatKeepsItFromWriting()
{
    QTemporaryDir directory;
    View view({ result("R", 1) });
    QString problem;
    for (const QString &path : { directory.path(), directory.filePath("none/results.csv") }) {
        QVERIFY(!view.saveCsv(path, &problem));
        QVERIFY2(problem.startsWith(path + " could not be written: "), qPrintable(problem));
        QVERIFY(!view.saveCsv(path));
    }
    QVERIFY(!view.saveCsv(QString(), &problem));
    QVERIFY(!problem.isEmpty());
}

void tst_KeltoResultView::followsTheLanguage()
{
    const KeltoItemHints hints(item(), "Bend");
    View view(hints.results(), itemValues(), hints);
    const QStringList before = rowsOf(view);
    Pseudo pseudo;
    QCoreApplication::installTranslator(&pseudo);
    QCoreApplication::processEvents();
    QCOMPARE(rowsOf(view).mid(0, 2),
             QStringList({ "<Size> /  /  / ", "  <Line> / L / <2 values> / " }));
    QCOMPARE(rowsOf(view).mid(5),
             QStringList(
                 { "  <Bending stress> / S / 1234.57 / mm", "  <Mass> / M / <no value> / mm" }));
    const QTreeView *tree = treeOf(view);
    QCOMPARE(tree->accessibleName(), "<Results>");
    QCOMPARE(tree->model()->headerData(2, Qt::Horizontal).toString(), "<Value>");
    const QList<QAction *> actions = tree->actions();
    for (const QAction *action : actions)
        QVERIFY2(action->text().startsWith("<"), qPrintable(action->objectName()));
    QCoreApplication::removeTranslator(&pseudo);
    QCoreApplication::processEvents();
    QCOMPARE(rowsOf(view), before);
}

void tst_KeltoResultView::followsTheDefaultLocale()
{
    KeltoResultView view;
    view.setResults({ VParameter(plainEntry("a")) }, { { "a", 1.5 } });
    QCOMPARE(view.text(), "Size\n  a (a): 1.5 mm\n");
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    QEvent languageChange(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&view, &languageChange);
    QLocale::setDefault(before);
    QCOMPARE(view.text(), "Size\n  a (a): 1,5 mm\n");
}

void tst_KeltoResultView::keepsWhatIsOpenAndClosed()
{
    QVariantList many;
    for (int i = 0; i < 11; ++i)
        many.append(i);
    const QVector<VParameter> results { result("A", many, "any", true, "G"),
                                        result("B", QVariantList({ 1 }), "any", true, "G") };
    View view(results);
    QTreeView *tree = treeOf(view);
    const auto isExpanded = [tree](int child) {
        return tree->isExpanded(tree->model()->index(child, 0, tree->model()->index(0, 0)));
    };
    QVERIFY(tree->isExpanded(tree->model()->index(0, 0)));
    QVERIFY(!isExpanded(0));
    QVERIFY(isExpanded(1));
    tree->setExpanded(tree->model()->index(0, 0, tree->model()->index(0, 0)), true);
    tree->setExpanded(tree->model()->index(1, 0, tree->model()->index(0, 0)), false);
    view.setResults(results);
    QVERIFY(isExpanded(0));
    QVERIFY(!isExpanded(1));
    tree->setExpanded(tree->model()->index(0, 0), false);
    view.setSignificantDigits(3);
    QVERIFY(!tree->isExpanded(tree->model()->index(0, 0)));
}

void tst_KeltoResultView::isUsedByKeys()
{
    View view({ result("A", 1.5), result("B", 2) });
    view.setLayoutDirection(Qt::RightToLeft);
    view.show();
    view.activateWindow();
    view.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    QCOMPARE(QApplication::focusWidget(), treeOf(view));
    QTest::keyClick(treeOf(view), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), view.text());
    QTest::keyClick(treeOf(view), Qt::Key_End);
    QTest::keyClick(treeOf(view), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), "B_tr (s): 2 mm\n");
    QTest::keyClick(treeOf(view), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QApplication::clipboard()->text(), "\tB_tr\ts\tmm\t2\n");
    QCOMPARE(treeOf(view)->contextMenuPolicy(), Qt::ActionsContextMenu);
    QCOMPARE(treeOf(view)->actions().size(), 3);
}

QTEST_MAIN(tst_KeltoResultView)
#include "tst_keltoresultview.moc"
