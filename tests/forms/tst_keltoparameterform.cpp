// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "forms/formitems.h"

#include <Kelto/Forms/KeltoParameterForm>
#include <Kelto/Forms/KeltoParameterModel>

#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTranslator>
#include <QUndoStack>
#include <QVBoxLayout>

#include <memory>

using Form = KeltoParameterForm;
using Model = KeltoParameterModel;

Q_DECLARE_METATYPE(Entries)

namespace {

/// Marks every text of the item, so that it can be seen which ones follow the language.
class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        return QLatin1String(context) == QLatin1String("BeamTexts") ? "<" + QString(text) + ">"
                                                                    : QString();
    }
    bool isEmpty() const override { return false; }
};

std::unique_ptr<Form> shownForm(const AUTH_INF &item)
{
    const AUTH_SET registry = registryOf(item);
    auto form = std::make_unique<Form>(&registry, "Statics", "Bend");
    form->resize(500, 600);
    form->show();
    return QTest::qWaitForWindowActive(form.get()) ? std::move(form) : nullptr;
}

QVariant stored(const Form &form, const QString &key)
{
    const Entries values = form.values();
    for (const auto &value : values) {
        if (value.first == "Attribute/" + key)
            return value.second;
    }
    return QVariant();
}

template <typename Editor> Editor *editorOf(const Form &form, const QString &key)
{
    return qobject_cast<Editor *>(form.findChild<QWidget *>(key));
}

QLabel *labelOf(const Form &form, const QString &key)
{
    const QList<QLabel *> labels = form.findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->buddy() && label->buddy()->objectName() == key)
            return label;
    }
    return nullptr;
}

QString summaryOf(const Form &form)
{
    return form.findChild<QLabel *>("kelto_summary")->text();
}

/// Accessible names of the marks that can be seen.
QStringList visibleMarks(const Form &form)
{
    QStringList marks;
    const QList<QGroupBox *> boxes = form.findChildren<QGroupBox *>();
    for (const QGroupBox *box : boxes) {
        const QList<QWidget *> widgets = box->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            const bool isPlain = !qobject_cast<const QLabel *>(widget)
                && widget->focusPolicy() == Qt::NoFocus && widget->objectName().isEmpty();
            if (isPlain && widget->isVisible() && !widget->accessibleName().isEmpty())
                marks.append(widget->accessibleName());
        }
    }
    return marks;
}

/// Whether the findings are shown that belong to the values now.
bool waitForFindings(const Form &form)
{
    QSignalSpy shown(form.model(), &Model::findingsChanged);
    return shown.wait();
}

QStringList boxTitles(const Form &form)
{
    QStringList titles;
    const QList<QGroupBox *> boxes = form.findChildren<QGroupBox *>();
    for (const QGroupBox *box : boxes) {
        if (box->isVisibleTo(&form))
            titles.append(box->title());
    }
    return titles;
}

} // namespace

/// The form, used as a person uses it.
class tst_KeltoParameterForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale::c()); }
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void editsEachKind_data();
    void editsEachKind();
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
    void laysOutBoxesAndRows();
    void explainsItsEditorsToEveryone();
    void goesThroughEverythingByTab();
    void hidesWhatDoesNotCount();
    void hidesAdvancedParameters();
    void searches();
    void saysWhatIsWrongAtTheRow();
    void summarizesWhatIsMissing();
    void focusesParameters();
    void undoesWhatIsTypedAsOne();
    void undoesWithinTheWholeForm();
    void offersUndoOfTheFormInMenus();
    void followsTheLanguage();
    void isMirroredFromRightToLeft();
    void showsModels();
    void survivesTheEndOfItsModel();
    void mayBeRebuiltWhileTellingOfAnEdit();
    void readsNamesAsPlainTexts();
    void isEmptyWithoutParameters();
};

void tst_KeltoParameterForm::editsEachKind_data()
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

void tst_KeltoParameterForm::editsEachKind()
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

void tst_KeltoParameterForm::showsEachKind_data()
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
void tst_KeltoParameterForm::showsEachKind()
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

void tst_KeltoParameterForm::choosesWithKeys()
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

void tst_KeltoParameterForm::offersNothingForOptionalChoices()
{
    const auto form = shownForm(beam({ plainEntry("a", "bool") }, { { "Optional.a", "true" } }));
    auto *box = editorOf<QComboBox>(*form, "a");
    QVERIFY(box);
    QTest::keyClick(box, Qt::Key_End);
    QCOMPARE(stored(*form, "a"), QVariant("false"));
    QTest::keyClick(box, Qt::Key_Home);
    QCOMPARE(stored(*form, "a"), QVariant(""));
}

void tst_KeltoParameterForm::leavesChoicesToTheFocusedWheel()
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

void tst_KeltoParameterForm::browsesForFiles_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QFileDialog::AcceptMode>("acceptMode");
    QTest::addColumn<QFileDialog::FileMode>("fileMode");
    QTest::newRow("file") << "file" << QFileDialog::AcceptOpen << QFileDialog::ExistingFile;
    QTest::newRow("new file") << "newfile" << QFileDialog::AcceptSave << QFileDialog::AnyFile;
    QTest::newRow("directory") << "directory" << QFileDialog::AcceptOpen << QFileDialog::Directory;
}

void tst_KeltoParameterForm::browsesForFiles()
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

void tst_KeltoParameterForm::picksColours()
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

void tst_KeltoParameterForm::typesNumbersOfTheLocale()
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

void tst_KeltoParameterForm::followsItsLocale()
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

void tst_KeltoParameterForm::laysOutBoxesAndRows()
{
    const auto form
        = shownForm(beam({ plainEntry("a", "float", "Size & shape"), plainEntry("b", "int", "Load"),
                           plainEntry("c", "text", "Size & shape"), plainEntry("d", "text", "") }));
    QCOMPARE(boxTitles(*form), QStringList({ "Size && shape", "Load", "" }));
    QCOMPARE(form->editor("a")->parentWidget(), form->editor("c")->parentWidget());
    QCOMPARE(labelOf(*form, "a")->text(), "a  a");
    QVERIFY(form->editor("a")->y() < form->editor("c")->y());
    QCOMPARE(labelOf(*form, "a")->x(), labelOf(*form, "c")->x());
    QCOMPARE(form->editor("a")->x(), form->editor("b")->x());
}

void tst_KeltoParameterForm::explainsItsEditorsToEveryone()
{
    const auto form = shownForm(caseBeam());
    form->setValues({ { "Attribute/Case", "end" }, { "Attribute/Force", "x" } });
    QVERIFY(waitForFindings(*form));
    const QWidget *force = form->editor("Force");
    QCOMPARE(force->accessibleName(), "Point load, F, mm");
    QCOMPARE(force->accessibleDescription(),
             "Point load: \"x\" is not a number.\nActs at the free end.");
    QCOMPARE(force->toolTip(), "Acts at the free end.");
    QCOMPARE(labelOf(*form, "Force")->toolTip(), "Acts at the free end.");
    QCOMPARE(labelOf(*form, "Force")->text(), "Point load  F");
}

void tst_KeltoParameterForm::goesThroughEverythingByTab()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *form = new Form;
    layout->addWidget(form);
    auto *button = new QToolButton;
    button->setObjectName("after");
    button->setFocusPolicy(Qt::StrongFocus);
    layout->addWidget(button);
    const AUTH_SET registry
        = registryOf(beam({ plainEntry("a", "float", "1"), plainEntry("b", "file", "2"),
                            plainEntry("c", "bool", "1"), plainEntry("d", "float", "1") },
                          { { "Advanced.d", "true" } }));
    Model model(&registry, "Statics", "Bend");
    form->setModel(&model);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    form->editor("a")->setFocus();
    QStringList names;
    for (int i = 0; i < 6; ++i) {
        names.append(window.focusWidget()->objectName());
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(names,
             QStringList({ "a", "c", "b", "kelto_browse", "kelto_advanced", "kelto_summary" }));
}

void tst_KeltoParameterForm::hidesWhatDoesNotCount()
{
    const auto form = shownForm(caseBeam());
    QVERIFY(!form->editor("Force")->isVisible());
    QVERIFY(!labelOf(*form, "Force")->isVisible());
    QTest::keyClicks(form->editor("Case"), "At");
    QVERIFY(form->editor("Force")->isVisible());
    QVERIFY(labelOf(*form, "Force")->isVisible());
    QTest::keyClick(form->editor("Case"), Qt::Key_Home);
    QVERIFY(!form->editor("Force")->isVisible());
}

void tst_KeltoParameterForm::hidesAdvancedParameters()
{
    const auto form = shownForm(
        beam({ plainEntry("a"), plainEntry("b", "float", "Other") }, { { "Advanced.b", "true" } }));
    QCOMPARE(boxTitles(*form), QStringList("Size"));
    auto *button = form->findChild<QToolButton *>("kelto_advanced");
    QVERIFY(button->isVisible());
    QSignalSpy changed(form.get(), &Form::advancedVisibleChanged);
    QTest::keyClick(button, Qt::Key_Space);
    QVERIFY(form->isAdvancedVisible());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(boxTitles(*form), QStringList({ "Size", "Other" }));
    QVERIFY(form->editor("b")->isVisible());
    form->setAdvancedVisible(false);
    QVERIFY(!form->editor("b")->isVisible());
    QVERIFY(!shownForm(beam({ plainEntry("a") }))
                 ->findChild<QToolButton *>("kelto_advanced")
                 ->isVisible());
}

void tst_KeltoParameterForm::searches()
{
    const auto form = shownForm(caseBeam());
    QVERIFY(!form->isSearchVisible());
    form->setSearchVisible(true);
    auto *search = form->findChild<QLineEdit *>("kelto_search");
    QVERIFY(search->isVisible());
    QTest::keyClicks(search, "leng");
    QVERIFY(form->editor("Length")->isVisible());
    QCOMPARE(boxTitles(*form), QStringList("Size"));
    form->focusParameter("Case");
    QVERIFY(form->editor("Case")->hasFocus());
    QTest::keyClicks(search, "nothing");
    QCOMPARE(boxTitles(*form), QStringList());
    form->setSearchVisible(false);
    QVERIFY(form->editor("Length")->isVisible());
}

void tst_KeltoParameterForm::saysWhatIsWrongAtTheRow()
{
    const auto form = shownForm(caseBeam());
    QTRY_COMPARE(visibleMarks(*form), QStringList("missing"));
    auto *length = editorOf<QLineEdit>(*form, "Length");
    length->selectAll();
    QTest::keyClicks(length, "11");
    QVERIFY(waitForFindings(*form));
    QCOMPARE(visibleMarks(*form),
             QStringList({ "Length: 11 is outside the allowed range (1 .. 10).", "missing" }));
    QTest::keyClick(length, Qt::Key_Backspace);
    QTest::keyClicks(form->editor("Case"), "No");
    QVERIFY(waitForFindings(*form));
    QCOMPARE(visibleMarks(*form), QStringList());
    QVERIFY(form->isComplete());
}

void tst_KeltoParameterForm::summarizesWhatIsMissing()
{
    const auto form = shownForm(caseBeam());
    QTRY_COMPARE(summaryOf(*form), "1 of 3 parameters is missing: <a href=\"2\">Case</a>");
    form->setValues({ { "Attribute/Case", "end" } });
    QVERIFY(waitForFindings(*form));
    QCOMPARE(summaryOf(*form),
             "2 of 4 parameters are missing: <a href=\"0\">Length</a>, "
             "<a href=\"3\">Point load</a>");
    form->setValues({ { "Attribute/Case", "side" }, { "Attribute/Length", "2" } });
    QVERIFY(waitForFindings(*form));
    QCOMPARE(summaryOf(*form), "To be checked: <a href=\"2\">Case</a>");
    form->setValues({ { "Attribute/Case", "none" }, { "Attribute/Length", "2" } });
    QVERIFY(waitForFindings(*form));
    QCOMPARE(summaryOf(*form), "All parameters are filled in.");
    form->setSummaryVisible(false);
    QVERIFY(!form->isSummaryVisible());

    ParameterEntries many;
    for (int i = 0; i < 12; ++i)
        many.append(plainEntry(QString("p%1").arg(i, 2, 10, QChar('0'))));
    const auto large = shownForm(beam(many));
    QTRY_VERIFY(summaryOf(*large).endsWith("<a href=\"7\">p07</a> and 4 more"));
}

void tst_KeltoParameterForm::focusesParameters()
{
    ParameterEntries many;
    for (int i = 0; i < 100; ++i)
        many.append(plainEntry(QString("p%1").arg(i, 2, 10, QChar('0'))));
    const auto form = shownForm(beam(many, { { "Advanced.p99", "true" } }));
    QTRY_VERIFY(!summaryOf(*form).isEmpty());
    Q_EMIT form->findChild<QLabel *>("kelto_summary")->linkActivated("7");
    QVERIFY(form->editor("p07")->hasFocus());
    form->focusParameter("p99");
    QVERIFY(form->editor("p99")->hasFocus());
    QVERIFY(!form->editor("p99")->visibleRegion().isEmpty());
    QTest::keyClicks(form->editor("p99"), "5");
    form->focusParameter("p07");
    QTest::keyClick(form->editor("p07"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(editorOf<QLineEdit>(*form, "p99")->text(), "");
    QVERIFY(!form->editor("p99")->visibleRegion().isEmpty());
    form->focusParameter("p99");
    form->focusParameter("unknown");
    QVERIFY(form->editor("p99")->hasFocus());

    const auto conditional = shownForm(caseBeam());
    conditional->editor("Length")->setFocus();
    conditional->focusParameter("Force");
    QVERIFY(conditional->editor("Length")->hasFocus());
}

void tst_KeltoParameterForm::undoesWhatIsTypedAsOne()
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

void tst_KeltoParameterForm::undoesWithinTheWholeForm()
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

void tst_KeltoParameterForm::offersUndoOfTheFormInMenus()
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

void tst_KeltoParameterForm::followsTheLanguage()
{
    AUTH_INF item = caseBeam();
    item.inner_mode_parameterList[0][2][KeltoParameterEntry::TranslatedKey] = "Fall";
    const auto form = shownForm(item);
    QTRY_VERIFY(!summaryOf(*form).isEmpty());
    {
        MarkingTranslator translator;
        QCoreApplication::installTranslator(&translator);
        QTRY_COMPARE(labelOf(*form, "Length")->text(), "<Length>  L");
        QCOMPARE(labelOf(*form, "Force")->text(), "<Point load>  F");
        // A name that is not what the translation gives is the host's.
        QCOMPARE(labelOf(*form, "Case")->text(), "Fall  C");
        QCOMPARE(boxTitles(*form), QStringList({ "<Size>", "<Load>" }));
        QCOMPARE(form->editor("Force")->toolTip(), "<Acts at the free end.>");
        QCOMPARE(editorOf<QComboBox>(*form, "Case")->itemText(1), "<At the end>");
        QTRY_VERIFY(summaryOf(*form).contains("Fall"));
    }
    QTRY_COMPARE(labelOf(*form, "Length")->text(), "Length  L");

    QTranslator chinese;
    QVERIFY(chinese.load(":/kelto-forms/translations/kelto-forms_zh_CN.qm"));
    QCoreApplication::installTranslator(&chinese);
    QTRY_COMPARE(summaryOf(*form),
                 QString::fromUtf8("3 个参数中缺少 1 个：<a href=\"2\">Fall</a>"));
    QCOMPARE(visibleMarks(*form), QStringList(QString::fromUtf8("缺少")));
    QCOMPARE(form->findChild<QToolButton *>("kelto_advanced")->text(),
             QString::fromUtf8("高级参数"));
}

void tst_KeltoParameterForm::isMirroredFromRightToLeft()
{
    const auto form = shownForm(caseBeam());
    QVERIFY(labelOf(*form, "Length")->x() < form->editor("Length")->x());
    form->setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QTRY_VERIFY(labelOf(*form, "Length")->x() > form->editor("Length")->x());
}

void tst_KeltoParameterForm::showsModels()
{
    const AUTH_SET registry = registryOf(caseBeam());
    Model model(&registry, "Statics", "Bend");
    Form first(&model, nullptr);
    Form second(&model, nullptr);
    QCOMPARE(first.model(), &model);
    editorOf<QLineEdit>(first, "Length")->setText("7");
    QCOMPARE(editorOf<QLineEdit>(second, "Length")->text(), "7");
    QVERIFY(model.setData(model.index(0, Model::ValueColumn), "8"));
    QCOMPARE(editorOf<QLineEdit>(first, "Length")->text(), "8");
    first.setModel(nullptr);
    QVERIFY(first.model() && first.model() != &model);
    QVERIFY(!first.editor("Length"));
    QCOMPARE(second.values(), model.values());
}

void tst_KeltoParameterForm::survivesTheEndOfItsModel()
{
    const AUTH_SET registry = registryOf(caseBeam());
    auto model = std::make_unique<Model>(&registry, "Statics", "Bend");
    Form form(model.get(), nullptr);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.editor("Length")->setFocus();
    model.reset();
    QCOMPARE(form.values(), Entries());
    QVERIFY(!form.editor("Length"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(form.model());
}

void tst_KeltoParameterForm::mayBeRebuiltWhileTellingOfAnEdit()
{
    const auto form = shownForm(caseBeam());
    const AUTH_SET other = registryOf(beam({ plainEntry("a") }));
    Model model(&other, "Statics", "Bend");
    connect(form.get(), &Form::edited, this, [&form, &model] { form->setModel(&model); });
    const QPointer<QWidget> box(form->editor("Case"));
    QTest::keyClick(box, Qt::Key_Down);
    QVERIFY(form->editor("a"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!box);
    QTest::keyClicks(form->editor("a"), "5");
    QCOMPARE(stored(*form, "a"), QVariant("5"));
}

void tst_KeltoParameterForm::readsNamesAsPlainTexts()
{
    const auto form = shownForm(beam({ plainEntry("<b>a</b> & b") }));
    QCOMPARE(labelOf(*form, "<b>a</b> & b")->text(), "<b>a</b> && b  <");
    QCOMPARE(labelOf(*form, "<b>a</b> & b")->textFormat(), Qt::PlainText);
    QTRY_VERIFY(summaryOf(*form).contains("&lt;b&gt;a&lt;/b&gt; &amp; b"));
}

void tst_KeltoParameterForm::isEmptyWithoutParameters()
{
    Form form;
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QCOMPARE(form.values(), Entries());
    QCOMPARE(boxTitles(form), QStringList());
    QVERIFY(!form.editor(""));
    QVERIFY(!form.isComplete());
    form.setValues({ { "a", 1 } });
    QCOMPARE(form.values(), Entries({ { "a", 1 } }));
}

QTEST_MAIN(tst_KeltoParameterForm)
#include "tst_keltoparameterform.moc"
