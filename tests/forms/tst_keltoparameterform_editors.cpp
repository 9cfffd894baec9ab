// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "forms/shownform.h"

#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QSet>
#include <QSignalSpy>
#include <QTableView>
#include <QTimer>
#include <QToolButton>
#include <QUndoStack>

/// The editors of single values, and how what they did is undone.
class tst_KeltoParameterFormEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale::c()); }
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void editsEachKind_data();
    void editsEachKind();
    void showsSeveralValues_data();
    void showsSeveralValues();
    void offersToChoose();
    void showsEachKind_data();
    void showsEachKind();
    void choosesWithKeys();
    void offersNothingForOptionalChoices();
    void leavesChoicesToTheFocusedWheel();
    void browsesForFiles_data();
    void browsesForFiles();
    void picksColours();
    void typesNumbersOfTheLocale();
    void followsItsLocale();
    void undoesWhatIsTypedAsOne();
    void undoesWithinTheWholeForm();
    void undoesWhatWasTypedIntoTwoForms();
    void showsWhatIsUndone();
    void undoesForActionsOfTheHost();
    void offersUndoOfTheFormInMenus();
};

void tst_KeltoParameterFormEditors::editsEachKind_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("number") << "float"
                            << "-2.50e3" << QVariant("-2.50e3");
    QTest::newRow("no number") << "double"
                               << "2.5m" << QVariant("2.5m");
    QTest::newRow("whole number") << "int"
                                  << "7" << QVariant("7");
    QTest::newRow("text") << "text"
                          << "a, b" << QVariant("a, b");
    QTest::newRow("unknown word") << "tensor"
                                  << "t" << QVariant("t");
    QTest::newRow("file") << "file"
                          << "/a" << QVariant("/a");
    QTest::newRow("new file") << "newfile"
                              << "/b" << QVariant("/b");
    QTest::newRow("directory") << "directory"
                               << "/c" << QVariant("/c");
    QTest::newRow("colour") << "color"
                            << "#102030" << QVariant("#102030");
}

void tst_KeltoParameterFormEditors::editsEachKind()
{
    QFETCH(QString, objectName);
    QFETCH(QString, typed);
    const auto form = shownForm(beam({ plainEntry("a.b", objectName) }));
    auto *line = editorOf<QLineEdit>(*form, "a.b");
    QVERIFY(line);
    QCOMPARE(form->editor("a.b"), line);
    QSignalSpy edited(form.get(), &Form::edited);
    line->setFocus();
    QTest::keyClicks(line, typed);
    QTest::keyClick(line, Qt::Key_Return);
    QCOMPARE(line->text(), typed);
    QTEST(stored(*form, "a.b"), "stored");
    QCOMPARE(edited.count(), typed.size());
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Delete);
    QCOMPARE(stored(*form, "a.b"), QVariant());
}

void tst_KeltoParameterFormEditors::showsSeveralValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("list") << QVariant(QStringList { "1", "2" }) << QStringList { "1", "2" };
    QTest::newRow("one text") << QVariant("2.5") << QStringList("2.5");
    QTest::newRow("one number") << QVariant(2.5) << QStringList("2.5");
    QTest::newRow("empty text") << QVariant("") << QStringList();
    QTest::newRow("none") << QVariant() << QStringList();
}

void tst_KeltoParameterFormEditors::showsSeveralValues()
{
    QFETCH(QVariant, value);
    const auto form = shownForm(beam({ multiEntry("a", "QVector<double>") }));
    form->setValues({ { "Attribute/a", value } });
    const QAbstractItemModel *cells = form->findChild<QTableView *>("kelto_table")->model();
    QStringList shown;
    for (int row = 0; row < cells->rowCount(); ++row)
        shown.append(cells->index(row, 0).data().toString());
    QTEST(shown, "shown");
}

void tst_KeltoParameterFormEditors::offersToChoose()
{
    const auto form = shownForm(beam({ plainEntry("a", "bool") }));
    auto *box = editorOf<QComboBox>(*form, "a");
    QCOMPARE(box->currentIndex(), -1);
    const QImage image = box->grab().toImage();
    QSet<QRgb> colors;
    for (int x = 10; x < 60; ++x)
        colors.insert(image.pixel(x, image.height() / 2));
    QVERIFY2(colors.size() > 1, "There is nothing in the box.");
}

void tst_KeltoParameterFormEditors::showsEachKind_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("shown");
    QTest::newRow("double") << "float" << QVariant(0.25) << "0.25";
    QTest::newRow("no number") << "float" << QVariant("12 mm") << "12 mm";
    QTest::newRow("yes") << "bool" << QVariant(true) << "Yes";
    QTest::newRow("no") << "bool" << QVariant("false") << "No";
    QTest::newRow("neither") << "bool" << QVariant("maybe") << "maybe";
    QTest::newRow("not answered") << "bool" << QVariant() << "";
    QTest::newRow("colour") << "color" << QVariant("red") << "red";
}

// Showing is no editing: what comes out is what came in.
void tst_KeltoParameterFormEditors::showsEachKind()
{
    QFETCH(QString, objectName);
    QFETCH(QVariant, value);
    const auto form = shownForm(beam({ plainEntry("a", objectName) }));
    QSignalSpy edited(form.get(), &Form::edited);
    form->setValues({ { "Attribute/a", value } });
    QWidget *editor = form->editor("a");
    QTEST(editor->property(qobject_cast<QComboBox *>(editor) ? "currentText" : "text").toString(),
          "shown");
    editor->setFocus();
    QTest::keyClick(editor, Qt::Key_Tab);
    QCOMPARE(stored(*form, "a"), value);
    QCOMPARE(stored(*form, "a").userType(), value.userType());
    QCOMPARE(edited.count(), 0);
}

void tst_KeltoParameterFormEditors::choosesWithKeys()
{
    const auto form = shownForm(caseBeam());
    auto *box = editorOf<QComboBox>(*form, "Case");
    QVERIFY(box);
    QCOMPARE(box->currentIndex(), -1);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(stored(*form, "Case"), QVariant("none"));
    QTest::keyClicks(box, "At");
    QCOMPARE(stored(*form, "Case"), QVariant("end"));
    // What is stored and no choice is kept, until another is chosen.
    form->setValues({ { "Attribute/Case", "side" } });
    QCOMPARE(box->currentText(), "side");
    QCOMPARE(box->count(), 3);
    QTest::keyClick(box, Qt::Key_Home);
    QCOMPARE(stored(*form, "Case"), QVariant("none"));
    QCOMPARE(box->count(), 2);
}

void tst_KeltoParameterFormEditors::offersNothingForOptionalChoices()
{
    const auto form = shownForm(beam({ plainEntry("a", "bool") }, { { "Optional.a", "true" } }));
    auto *box = editorOf<QComboBox>(*form, "a");
    QVERIFY(box);
    QTest::keyClick(box, Qt::Key_End);
    QCOMPARE(stored(*form, "a"), QVariant("false"));
    QTest::keyClick(box, Qt::Key_Home);
    QCOMPARE(stored(*form, "a"), QVariant(""));
}

void tst_KeltoParameterFormEditors::leavesChoicesToTheFocusedWheel()
{
    const auto form = shownForm(caseBeam());
    auto *box = editorOf<QComboBox>(*form, "Case");
    box->setCurrentIndex(0);
    form->editor("Length")->setFocus();
    const auto turn = [box] {
        QWheelEvent event(QPointF(5, 5), box->mapToGlobal(QPointF(5, 5).toPoint()), QPoint(),
                          QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(box, &event);
    };
    turn();
    QCOMPARE(box->currentIndex(), 0);
    box->setFocus();
    turn();
    QCOMPARE(box->currentIndex(), 1);
}

void tst_KeltoParameterFormEditors::browsesForFiles_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QFileDialog::AcceptMode>("acceptMode");
    QTest::addColumn<QFileDialog::FileMode>("fileMode");
    QTest::newRow("file") << "file" << QFileDialog::AcceptOpen << QFileDialog::ExistingFile;
    QTest::newRow("new file") << "newfile" << QFileDialog::AcceptSave << QFileDialog::AnyFile;
    QTest::newRow("directory") << "directory" << QFileDialog::AcceptOpen << QFileDialog::Directory;
}

void tst_KeltoParameterFormEditors::browsesForFiles()
{
    QFETCH(QString, objectName);
    const auto form = shownForm(
        beam({ plainEntry("a", objectName) }, { { "Files.a", "Tables (*.csv);;All (*)" } }));
    auto *button = form->findChild<QToolButton *>("kelto_browse");
    QVERIFY(button);
    QCOMPARE(button->accessibleName(), "Browse for a");
    button->click();
    auto *dialog = form->findChild<QFileDialog *>();
    QVERIFY(dialog);
    QTEST(dialog->acceptMode(), "acceptMode");
    QTEST(dialog->fileMode(), "fileMode");
    QCOMPARE(dialog->nameFilters(), QStringList({ "Tables (*.csv)", "All (*)" }));
    Q_EMIT dialog->fileSelected("/chosen/path");
    QCOMPARE(stored(*form, "a"), QVariant("/chosen/path"));
    QCOMPARE(editorOf<QLineEdit>(*form, "a")->text(), "/chosen/path");
}

void tst_KeltoParameterFormEditors::picksColours()
{
    const auto form = shownForm(beam({ plainEntry("a", "color") }));
    form->setValues({ { "Attribute/a", "#00ff00" } });
    form->findChild<QToolButton *>("kelto_browse")->click();
    auto *dialog = form->findChild<QColorDialog *>();
    QVERIFY(dialog);
    QCOMPARE(dialog->currentColor(), QColor(0, 255, 0));
    Q_EMIT dialog->colorSelected(QColor(255, 0, 16));
    QCOMPARE(stored(*form, "a"), QVariant("#ff0010"));
}

void tst_KeltoParameterFormEditors::typesNumbersOfTheLocale()
{
    QLocale::setDefault(QLocale(QLocale::German));
    const auto form = shownForm(beam({ plainEntry("a"), plainEntry("b") }));
    auto *line = editorOf<QLineEdit>(*form, "a");
    line->setFocus();
    QTest::keyClicks(line, "2,50");
    QCOMPARE(stored(*form, "a"), QVariant("2.50"));
    line->selectAll();
    QTest::keyClicks(line, "1.234");
    QCOMPARE(line->text(), "1.234");
    // Not until it is left does the line show how it was understood.
    QTest::keyClick(line, Qt::Key_Tab);
    QCOMPARE(line->text(), "1,234");
    QCOMPARE(stored(*form, "a"), QVariant("1.234"));
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, "1.234,5");
    QTest::keyClick(line, Qt::Key_Tab);
    QCOMPARE(line->text(), "1.234,5");
    QCOMPARE(form->findings().constFirst().kind, KeltoItemFinding::NotANumber);
}

void tst_KeltoParameterFormEditors::followsItsLocale()
{
    const auto form = shownForm(beam({ plainEntry("a") }));
    form->setValues({ { "Attribute/a", "2.5" } });
    form->setLocale(QLocale(QLocale::French));
    QCOMPARE(editorOf<QLineEdit>(*form, "a")->text(), "2,5");
    QCOMPARE(stored(*form, "a"), QVariant("2.5"));
    // A locale that was set is not changed by another language of the program.
    QEvent languageChange(QEvent::LanguageChange);
    QCoreApplication::sendEvent(form.get(), &languageChange);
    QCOMPARE(editorOf<QLineEdit>(*form, "a")->text(), "2,5");
    // It may come from the window, too.
    QWidget window;
    window.setLocale(QLocale(QLocale::German));
    auto *inner = new Form({ VParameter(plainEntry("a")) }, KeltoItemHints(), &window);
    inner->setValues({ { "Attribute/a", "2.5" } });
    QCOMPARE(editorOf<QLineEdit>(*inner, "a")->text(), "2,5");
    form->unsetLocale();
    QLocale::setDefault(QLocale(QLocale::English));
    QCoreApplication::sendEvent(form.get(), &languageChange);
    QCOMPARE(editorOf<QLineEdit>(*form, "a")->text(), "2.5");
}

void tst_KeltoParameterFormEditors::undoesWhatIsTypedAsOne()
{
    const auto form = shownForm(beam({ plainEntry("a"), plainEntry("b") }));
    auto *line = editorOf<QLineEdit>(*form, "a");
    line->setFocus();
    QTest::keyClicks(line, "12");
    QTest::keyClick(line, Qt::Key_Return);
    QTest::keyClicks(line, "34");
    QCOMPARE(form->model()->undoStack()->count(), 2);
    QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(line->text(), "12");
    QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(line->text(), "");
    QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(line->text(), "12");
    QCOMPARE(stored(*form, "a"), QVariant("12"));
    // Typing there and back again is no step.
    QTest::keyClick(form->editor("b"), Qt::Key_5);
    QTest::keyClick(form->editor("b"), Qt::Key_Backspace);
    QCOMPARE(form->model()->undoStack()->count(), 1);
}

void tst_KeltoParameterFormEditors::undoesWithinTheWholeForm()
{
    const auto form = shownForm(caseBeam());
    QTest::keyClicks(form->editor("Case"), "At");
    auto *force = editorOf<QLineEdit>(*form, "Force");
    force->setFocus();
    QTest::keyClicks(force, "5");
    QTest::keyClick(form->editor("Length"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(force->text(), "");
    QTest::keyClick(form->editor("Case"), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!force->isVisible());
    QCOMPARE(editorOf<QComboBox>(*form, "Case")->currentIndex(), -1);
}

void tst_KeltoParameterFormEditors::undoesWhatWasTypedIntoTwoForms()
{
    Model model({ VParameter(plainEntry("a")), VParameter(plainEntry("b")) });
    Form first(&model, nullptr);
    Form second(&model, nullptr);
    QTest::keyClicks(first.editor("a"), "7");
    QTest::keyClicks(second.editor("b"), "3");
    QCOMPARE(model.undoStack()->count(), 2);
    model.undoStack()->undo();
    QCOMPARE(stored(first, "a"), QVariant("7"));
    QCOMPARE(stored(first, "b"), QVariant());
}

void tst_KeltoParameterFormEditors::showsWhatIsUndone()
{
    const auto form = shownForm(caseBeam());
    form->setAdvancedVisible(true);
    QTest::keyClicks(form->editor("Depth"), "5");
    form->setAdvancedVisible(false);
    form->setSearchVisible(true);
    auto *search = form->findChild<QLineEdit *>("kelto_search");
    search->setText("Length");
    QVERIFY(!form->editor("Depth")->isVisible());
    QTest::keyClick(form->editor("Length"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(editorOf<QLineEdit>(*form, "Depth")->text(), "");
    QVERIFY(form->editor("Depth")->isVisible());
    QCOMPARE(search->text(), "");
}

/// By what a menu is connected to, whatever model the form shows.
void tst_KeltoParameterFormEditors::undoesForActionsOfTheHost()
{
    const auto form = shownForm(caseBeam());
    QAction undo;
    QAction redo;
    QAction defaults;
    connect(&undo, &QAction::triggered, form.get(), &Form::undo);
    connect(&redo, &QAction::triggered, form.get(), &Form::redo);
    connect(&defaults, &QAction::triggered, form.get(), &Form::resetToDefaults);
    const AUTH_SET registry = registryOf(caseBeam());
    Model other(&registry, "Statics", "Bend");
    form->setModel(&other);
    form->setAdvancedVisible(true);
    QTest::keyClicks(form->editor("Depth"), "5");
    form->setAdvancedVisible(false);
    undo.trigger();
    QCOMPARE(stored(*form, "Depth"), QVariant(""));
    QVERIFY(form->editor("Depth")->isVisible());
    form->setAdvancedVisible(false);
    redo.trigger();
    QCOMPARE(stored(*form, "Depth"), QVariant("5"));
    QVERIFY(form->editor("Depth")->isVisible());
    QTest::keyClicks(form->editor("Length"), "7");
    defaults.trigger();
    QCOMPARE(stored(*form, "Length"), QVariant("2.5"));
    QCOMPARE(stored(*form, "Depth"), QVariant(""));
}

void tst_KeltoParameterFormEditors::offersUndoOfTheFormInMenus()
{
    const auto form = shownForm(beam({ plainEntry("a"), plainEntry("b") }));
    QTest::keyClicks(form->editor("a"), "5");
    QStringList texts;
    QTimer::singleShot(0, this, [&texts] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        const QList<QAction *> actions = menu ? menu->actions() : QList<QAction *>();
        for (const QAction *action : actions)
            texts.append(action->isSeparator() ? "-" : action->text());
        if (menu)
            menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QCoreApplication::sendEvent(form->editor("b"), &event);
    QCOMPARE(texts.mid(0, 3), QStringList({ "Undo Edit a", "Redo", "-" }));
}

QTEST_MAIN(tst_KeltoParameterFormEditors)
#include "tst_keltoparameterform_editors.moc"
