// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "tableeditorsupport.h"

#include <Kelto/Forms/KeltoParameterForm>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QTest>
#include <QToolButton>
#include <QTranslator>

namespace {

class Pseudo : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QString(context) == "KeltoTableEditor" ? "<" + QString(text) + ">" : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/// The editor of several values: its cells and commands.
class tst_KeltoTableEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsWhatItGot_data();
    void showsWhatItGot();
    void changesOneCell_data();
    void changesOneCell();
    void keepsACellThatWasOnlyOpened();
    void mayBeDeletedWithAnOpenCell();
    void takesKeys();
    void deletesAndInserts_data();
    void deletesAndInserts();
    void behavesLikeAPlainTable();
    void keepsCurrentCellWhenTheFormUndoes();
    void marksFindings();
    void followsTheLanguage();
    void followsTheLocale();
    void leavesUndoToTheForm();
    void isUndoneByTheForm();
    void isReachedByKeysAndScreenReaders();
    void holdsTenThousandRows();
};

void tst_KeltoTableEditor::showsWhatItGot_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<Model::Kind>("kind");
    QTest::addColumn<QStringList>("value");
    QTest::addColumn<QStringList>("cells");
    QTest::addColumn<QString>("problems");

    const auto row = [](const char *name, int columns, Model::Kind kind, const QStringList &value,
                        const QStringList &cells, const QString &problems = QString()) {
        QTest::newRow(name) << columns << kind << value << cells << problems;
    };
    row("nothing", Array, Model::Number, {}, {});
    row("array", Array, Model::Number, { "1.5", "-2e-3" }, { "1,5", "-2e-3" });
    row("every digit", Array, Model::Number, { "0.1000000000000000000001" },
        { "0,1000000000000000000001" });
    row("no number in an array", Array, Model::Number, { "1.5", "abc", "" }, { "1,5", "abc", "" },
        "1 0 \"abc\" is not a number.;2 0 A number is missing.");
    row("comma is stored by nobody", Array, Model::Number, { "1,5" }, { "1,5" },
        "0 0 \"1,5\" is not a number.");
    row("point in an array", Array, Model::Number, { "1|2" }, { "1|2" },
        "0 0 \"1|2\" is not a number.");
    row("fraction of a whole number", Array, Model::WholeNumber, { "1", "1e2", "2.5" },
        { "1", "1e2", "2,5" }, "2 0 \"2.5\" is not a whole number.");
    row("texts", Array, Model::Text, { "a|b", "", "1.5" }, { "a|b", "", "1.5" });
    row("points", Points, Model::Number, { "1|2.5", "3|4" }, { "1 / 2,5", "3 / 4" });
    row("malformed points", Points, Model::Number, { "3", "1|2|3", "", "|" },
        { "3 / ", "1 / 2|3", " / ", " / " },
        "0 1 A number is missing.;1 1 \"2|3\" is not a number.;"
        "2 0 A number is missing.;2 1 A number is missing.;"
        "3 0 A number is missing.;3 1 A number is missing.");
    row("rows of several lengths", Rows, Model::Text, { "a|b|c", "", "d" },
        { "a / b / c", " /  / ", "d /  / " });
    row("rows of numbers", Rows, Model::Number, { "1.5|x", "2" }, { "1,5 / x", "2 / " },
        "0 1 \"x\" is not a number.");
}

void tst_KeltoTableEditor::showsWhatItGot()
{
    QFETCH(int, columns);
    QFETCH(Model::Kind, kind);
    QFETCH(QStringList, value);
    QFETCH(QStringList, cells);
    QFETCH(QString, problems);
    Editor editor(columns, kind, value, "de");
    QCOMPARE(editor.value(), value);
    QCOMPARE(editor.cells(), cells);
    QStringList found;
    for (int row = 0; row < cells.size(); ++row) {
        for (int column = 0; column < editor.table->model()->columnCount(); ++column) {
            const bool isMarked = !editor.index(row, column).data(Qt::DecorationRole).isNull();
            QCOMPARE(isMarked, !editor.toolTip(row, column).isEmpty());
            if (isMarked)
                found.append(QString("%1 %2 ").arg(row).arg(column) + editor.toolTip(row, column));
        }
    }
    QCOMPARE(found.join(";"), problems);
    QCOMPARE(editor.edits.size(), 0);
}

void tst_KeltoTableEditor::changesOneCell_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<Model::Kind>("kind");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("status");

    const QString refused = " holds \"|\", which stands between the cells of a row.";
    const auto row
        = [](const char *name, int columns, Model::Kind kind, const char *before, int column,
             const char *typed, const char *after, const QString &status = "Rows: 3") {
              QTest::newRow(name) << columns << kind << QString(before) << column << QString(typed)
                                  << QString(after) << status;
          };
    row("number", Array, Model::Number, "1", 0, "2,50", "2.50");
    row("the same number", Array, Model::Number, "1.5", 0, "1,5", "1.5");
    row("no number", Array, Model::Number, "1", 0, "abc", "abc", "Row 2: \"abc\" is not a number.");
    row("empty", Array, Model::Number, "1", 0, "", "", "Row 2: A number is missing.");
    row("mended", Array, Model::Number, "1,5", 0, "1,5", "1.5");
    row("y of a point", Points, Model::Number, "1|2", 1, "3,5", "1|3.5");
    row("x of a point with three numbers", Points, Model::Number, "1|2|3", 0, "4", "4|2|3",
        "Rows: 3");
    row("y of a point with three numbers", Points, Model::Number, "1|2|3", 1, "2", "1|2");
    row("missing y", Points, Model::Number, "3", 1, "4", "3|4");
    row("missing y stays", Points, Model::Number, "3", 1, "", "3", "Row 2: A number is missing.");
    row("x without y", Points, Model::Number, "3", 0, "4", "4");
    row("separator in a number", Points, Model::Number, "1|2", 0, "3|4", "1|2",
        "\"3|4\"" + refused);
    row("separator in a row", Rows, Model::Text, "a|b", 0, "c|d", "a|b", "\"c|d\"" + refused);
    row("separator in an array of texts", Array, Model::Text, "a", 0, "c|d", "c|d");
    row("last cell of a shorter row", Rows, Model::Text, "a", 2, "c", "a||c");
    row("text keeps its sign", Rows, Model::Text, "a|b", 1, "1,5", "a|1,5");
}

void tst_KeltoTableEditor::changesOneCell()
{
    QFETCH(int, columns);
    QFETCH(Model::Kind, kind);
    QFETCH(QString, before);
    QFETCH(int, column);
    QFETCH(QString, typed);
    QFETCH(QString, after);
    QFETCH(QString, status);
    const QString wide = columns == Rows ? "1|2|3" : "odd, and not touched";
    Editor editor(columns, kind, { wide, before, wide }, "de");
    editor.setCurrent(1, column);
    const bool taken = editor.table->model()->setData(editor.index(1, column), typed);
    QCOMPARE(taken, !status.startsWith("\""));
    QCOMPARE(editor.value(), QStringList({ wide, after, wide }));
    QCOMPARE(editor.edits.size(), int(before != after));
    if (before != after || !taken)
        QCOMPARE(editor.status(), status);
}

void tst_KeltoTableEditor::keepsACellThatWasOnlyOpened()
{
    Editor editor(Array, Model::Number, { "1,5", "2" }, "de");
    QVERIFY(editor.activate());
    editor.setCurrent(0, 0);
    QTest::keyClick(editor.table, Qt::Key_F2);
    auto *line = editor.table->findChild<QLineEdit *>();
    QVERIFY(line);
    QCOMPARE(line->text(), "1,5");
    QTest::keyClick(line, Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(editor.value(), QStringList({ "1,5", "2" }));
    QCOMPARE(editor.edits.size(), 0);
}

void tst_KeltoTableEditor::mayBeDeletedWithAnOpenCell()
{
    auto *editor = new KeltoTableEditor(Array, Model::Number);
    editor->setValue({ "1" });
    editor->show();
    editor->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(editor));
    auto *table = editor->findChild<QTableView *>("kelto_table");
    table->setCurrentIndex(table->model()->index(0, 0));
    QTest::keyClick(table, Qt::Key_2);
    QCOMPARE(table->findChild<QLineEdit *>()->text(), "2");
    QSignalSpy edits(editor, &KeltoTableEditor::edited);
    delete editor;
    QCOMPARE(edits.size(), 0);
}

void tst_KeltoTableEditor::takesKeys()
{
    Editor editor(Points, Model::Number, {}, "de");
    QVERIFY(editor.activate());
    QTest::keyClick(editor.table, Qt::Key_Insert);
    QCOMPARE(editor.value(), QStringList("|"));
    QTest::keyClick(editor.table, Qt::Key_1);
    auto *line = editor.table->findChild<QLineEdit *>();
    QVERIFY(line);
    QTest::keyClicks(line, ",5");
    QTest::keyClick(line, Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(editor.value(), QStringList("1.5|"));
    QTest::keyClick(editor.table, Qt::Key_Insert);
    QTest::keyClick(editor.table, Qt::Key_Insert, Qt::AltModifier | Qt::ShiftModifier);
    QCOMPARE(editor.value(), QStringList({ "1.5|", "|", "|" }));
    QCOMPARE(editor.table->selectionModel()->selectedIndexes(),
             QModelIndexList({ editor.index(1, 0) }));
    QTest::keyClick(editor.table, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(editor.table, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), "1,5\t\n\t\n\t\n");
    QTest::keyClick(editor.table, Qt::Key_Delete);
    QCOMPARE(editor.value(), QStringList({ "|", "|", "|" }));
    QTest::keyClick(editor.table, Qt::Key_Delete);
    QTest::keyClick(editor.table, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(editor.value(), QStringList());
    QApplication::clipboard()->setText("7\t8");
    QTest::keyClick(editor.table, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(editor.value(), QStringList("7|8"));
    QCOMPARE(editor.edits.size(), 7);
}

void tst_KeltoTableEditor::deletesAndInserts_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QRect>("selected");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QStringList>("after");

    const auto row = [](const char *name, int columns, const QStringList &before, QRect selected,
                        const char *command, const QStringList &after) {
        QTest::newRow(name) << columns << before << selected << QString(command) << after;
    };
    const QStringList three { "1", "2", "3" };
    const QStringList ragged { "a|b|c", "d", "|" };
    const QRect none;
    row("row below", Array, three, { 0, 0, 1, 1 }, "insertRowBelow", { "1", "", "2", "3" });
    row("row below several", Array, three, { 0, 0, 1, 2 }, "insertRowBelow", { "1", "2", "", "3" });
    row("row above", Array, three, { 0, 0, 1, 1 }, "insertRowAbove", { "", "1", "2", "3" });
    row("row behind the last", Array, three, none, "insertRowBelow", { "1", "2", "3", "" });
    row("row before the first", Array, three, none, "insertRowAbove", { "", "1", "2", "3" });
    row("first row", Rows, {}, none, "insertRowBelow", { "" });
    row("row as wide as the table", Rows, ragged, { 0, 1, 1, 1 }, "insertRowBelow",
        { "a|b|c", "d", "||", "|" });
    row("delete one", Array, three, { 0, 1, 1, 1 }, "deleteRows", { "1", "3" });
    row("delete several", Array, three, { 0, 1, 1, 2 }, "deleteRows", { "1" });
    row("delete all", Rows, ragged, { 0, 0, 1, 3 }, "deleteRows", {});
    row("delete without a cell", Array, three, none, "deleteRows", three);
    row("clear one", Rows, ragged, { 1, 0, 1, 1 }, "clearCells", { "a||c", "d", "|" });
    row("clear several", Rows, ragged, { 0, 0, 2, 2 }, "clearCells", { "||c", "", "|" });
    row("clear what is not there", Rows, ragged, { 2, 1, 1, 2 }, "clearCells", ragged);
    row("clear y", Points, { "1|2", "3" }, { 1, 0, 1, 2 }, "clearCells", { "1|", "3" });
    row("clear without a cell", Array, three, none, "clearCells", three);
    row("column between", Rows, ragged, { 0, 0, 1, 1 }, "insertColumn", { "a||b|c", "d|", "||" });
    row("column behind the last", Rows, ragged, none, "insertColumn", { "a|b|c|", "d", "|" });
    row("column without a row", Rows, {}, none, "insertColumn", {});
    row("no column between x and y", Points, { "1|2" }, { 0, 0, 1, 1 }, "insertColumn", { "1|2" });
    row("delete a column", Rows, ragged, { 1, 0, 1, 1 }, "deleteColumns", { "a|c", "d", "" });
    row("delete columns", Rows, ragged, { 0, 0, 2, 1 }, "deleteColumns", { "c", "", "" });
    row("never the last column", Rows, ragged, { 0, 0, 3, 1 }, "deleteColumns", ragged);
    row("never y", Points, { "1|2" }, { 1, 0, 1, 1 }, "deleteColumns", { "1|2" });
}

void tst_KeltoTableEditor::deletesAndInserts()
{
    QFETCH(int, columns);
    QFETCH(QStringList, before);
    QFETCH(QRect, selected);
    QFETCH(QString, command);
    QFETCH(QStringList, after);
    Editor editor(columns, columns == Rows ? Model::Text : Model::Number, before);
    if (selected.isValid())
        editor.select(selected.top(), selected.left(), selected.bottom(), selected.right());
    QVERIFY(QMetaObject::invokeMethod(&editor, command.toLatin1().constData()));
    QCOMPARE(editor.value(), after);
    QCOMPARE(editor.edits.size(), int(before != after));
}

/// Random commands, beside the same on rows of cells.
void tst_KeltoTableEditor::behavesLikeAPlainTable()
{
    QRandomGenerator random(7);
    const auto number
        = [&random] { return QString::number(random.bounded(200) / 8.0 - 10, 'g', 17); };
    Editor editor(Points, Model::Number, {}, "de");
    QVector<QPair<QString, QString>> plain;
    int edits = 0;
    for (int step = 0; step < 500; ++step) {
        const int row = plain.isEmpty() ? -1 : random.bounded(plain.size());
        const bool isY = random.bounded(2) == 1;
        if (row >= 0)
            editor.setCurrent(row, int(isY));
        const QVector<QPair<QString, QString>> before = plain;
        const QString text = number();
        switch (random.bounded(4)) {
        case 0:
            plain.insert(row + 1, { "", "" });
            editor.insertRowBelow();
            break;
        case 1:
            if (row >= 0 && plain.size() > 5)
                plain.remove(row);
            if (before != plain)
                editor.deleteRows();
            break;
        case 2:
            if (row < 0)
                break;
            (isY ? plain[row].second : plain[row].first) = text;
            QVERIFY(editor.table->model()->setData(editor.index(row, int(isY)),
                                                   QString(text).replace('.', ',')));
            break;
        default:
            editor.setCurrent(qMax(0, row), 0);
            QApplication::clipboard()->setText(text + "\t1\n" + text + "\t2\n");
            editor.paste();
            while (plain.size() < qMax(0, row) + 2)
                plain.append(QPair<QString, QString>());
            plain[qMax(0, row)] = { text, "1" };
            plain[qMax(0, row) + 1] = { text, "2" };
        }
        edits += int(before != plain);
        QStringList value;
        for (const auto &point : qAsConst(plain))
            value.append(point.first + "|" + point.second);
        QCOMPARE(editor.value(), value);
        QCOMPARE(editor.edits.size(), edits);
    }
}

void tst_KeltoTableEditor::keepsCurrentCellWhenTheFormUndoes()
{
    Editor editor(Points, Model::Number, { "1|2", "3|4", "5|6" });
    editor.setCurrent(2, 1);
    editor.setValue({ "1|2", "7|8", "5|6" });
    QCOMPARE(editor.table->currentIndex(), editor.index(2, 1));
    editor.setValue({ "1|2", "5|6" });
    QCOMPARE(editor.table->currentIndex(), editor.index(1, 1));
    QCOMPARE(editor.cells(), QStringList({ "1 / 2", "5 / 6" }));
    QCOMPARE(editor.edits.size(), 0);
}

void tst_KeltoTableEditor::marksFindings()
{
    Editor editor(Points, Model::Number, { "1|2", "3|4.5" }, "de");
    KeltoItemFinding outside;
    outside.kind = KeltoItemFinding::OutsideLimits;
    outside.parameter.set(QVariant(), { "Load", "Load" }, {}, "F", {}, "QVector<QPointF>", true);
    outside.found = "3|4.5";
    outside.expected = QStringList("0 .. 2.5");
    outside.position = 1;
    KeltoItemFinding unknown = outside;
    unknown.position = 77;
    editor.setFindings({ outside, unknown });
    QCOMPARE(editor.toolTip(0, 0), "");
    const QString text = "Load (F), value 2: 3|4,5 is outside the allowed range (0 .. 2,5).";
    QCOMPARE(editor.toolTip(1, 0), text);
    const QAbstractItemModel *model = editor.table->model();
    QVERIFY(model->headerData(0, Qt::Vertical, Qt::DecorationRole).isNull());
    QVERIFY(!model->headerData(1, Qt::Vertical, Qt::DecorationRole).isNull());
    editor.setCurrent(1, 0);
    QCOMPARE(editor.status(), QString("Row 2: " + text));
    editor.setFindings({});
    QCOMPARE(editor.toolTip(1, 0), "");
    QCOMPARE(editor.status(), "Rows: 2");
}

void tst_KeltoTableEditor::followsTheLanguage()
{
    Editor editor(Points, Model::Number, { "1|x" });
    Pseudo pseudo;
    QCoreApplication::installTranslator(&pseudo);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    const QList<QAction *> actions = editor.table->actions();
    for (const QAction *action : actions)
        QVERIFY2(action->text().startsWith("<"), qPrintable(action->objectName()));
    QCOMPARE(editor.heading(1), "<y>");
    QCOMPARE(editor.toolTip(0, 1), "<\"x\" is not a number.>");
    QCOMPARE(editor.status(), "<Rows: 1>");
    QCoreApplication::removeTranslator(&pseudo);
    QCoreApplication::processEvents();
    QCOMPARE(editor.heading(1), "y");
    QCOMPARE(editor.status(), "Rows: 1");
}

void tst_KeltoTableEditor::followsTheLocale()
{
    Editor editor(Array, Model::Number, { "1.5" });
    QCOMPARE(editor.cell(0, 0), "1.5");
    editor.setLocale(QLocale("de"));
    QCOMPARE(editor.cell(0, 0), "1,5");
    QCOMPARE(editor.value(), QStringList("1.5"));
}

void tst_KeltoTableEditor::leavesUndoToTheForm()
{
    QWidget form;
    auto *editor = new KeltoTableEditor(Array, Model::Number, &form);
    QAction undo(&form);
    undo.setShortcut(QKeySequence::Undo);
    form.addAction(&undo);
    QSignalSpy undone(&undo, &QAction::triggered);
    form.show();
    form.activateWindow();
    editor->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(undone.size(), 1);
}

void tst_KeltoTableEditor::isUndoneByTheForm()
{
    KeltoParameterForm form(
        { VParameter(QVariant(), { "Loads", "Loads" }, {}, "F", {}, "QVector<QPointF>", true) });
    const QVector<QPair<QString, QVariant>> before { { "Attribute/Loads", QStringList("1|2") },
                                                     { "Unit/Loads", "" } };
    form.setValues(before);
    form.show();
    form.activateWindow();
    auto *table = form.editor("Loads")->findChild<QTableView *>("kelto_table");
    table->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    table->selectAll();
    QTest::keyClick(table, Qt::Key_Delete);
    QCOMPARE(form.values().value(0).second, QVariant(QStringList("|")));
    QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(form.values(), before);
    QTest::keyClick(table, Qt::Key_Insert);
    QTest::keyClick(table, Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(table, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(table->model()->rowCount(), 0);
    QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(form.values().value(0).second, QVariant(QStringList({ "1|2", "|" })));
    QCOMPARE(table->model()->rowCount(), 2);
    QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(form.values(), before);
}

void tst_KeltoTableEditor::isReachedByKeysAndScreenReaders()
{
    QWidget form;
    auto *editor = new KeltoTableEditor(Rows, Model::Text, &form);
    editor->setAccessibleName("Loads");
    form.setLayoutDirection(Qt::RightToLeft);
    form.show();
    form.activateWindow();
    editor->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    auto *table = editor->findChild<QTableView *>("kelto_table");
    QCOMPARE(table->accessibleName(), "Loads");
    QCOMPARE(QApplication::focusWidget(), table);
    const QList<QToolButton *> buttons = editor->findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 5);
    for (const QToolButton *button : buttons) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), button);
        QVERIFY(!button->text().isEmpty());
        QVERIFY(!button->defaultAction()->shortcut().isEmpty());
        QVERIFY(button->x() < table->x());
    }
}

void tst_KeltoTableEditor::holdsTenThousandRows()
{
    constexpr int count = 10000;
    QString text;
    QStringList value;
    for (int i = 0; i < count; ++i) {
        text += QString("%1\t%2\n").arg(i).arg(i * 0.5);
        value.append(QString("%1|%2").arg(i).arg(i * 0.5));
    }
    KeltoTableEditor editor(Points, Model::Number);
    editor.show();
    QApplication::clipboard()->setText(text);
    editor.paste();
    QCOMPARE(editor.value(), value);
    value[5000] = "5000|1";
    auto *table = editor.findChild<QTableView *>("kelto_table");
    QVERIFY(table->model()->setData(table->model()->index(5000, 1), "1"));
    QCOMPARE(editor.value(), value);
}

QTEST_MAIN(tst_KeltoTableEditor)
#include "tst_keltotableeditor.moc"
