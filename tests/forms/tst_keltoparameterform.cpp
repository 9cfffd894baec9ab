// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "forms/shownform.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QSignalSpy>
#include <QToolButton>
#include <QTranslator>
#include <QUndoStack>
#include <QVBoxLayout>

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

/// The form around its editors.
class tst_KeltoParameterForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laysOutBoxesAndRows();
    void givesTablesTheRoomOfTheRow();
    void keepsTheWidthOfEditors();
    void isAsLargeAsItsRows();
    void explainsItsEditorsToEveryone();
    void showsToolTipsAsTheyStand();
    void goesThroughEverythingByTab();
    void hidesWhatDoesNotCount();
    void hidesAdvancedParameters();
    void searches();
    void saysWhatIsWrongAtTheRow();
    void summarizesWhatIsMissing();
    void focusesParameters();
    void followsTheLanguage();
    void isMirroredFromRightToLeft();
    void keepsTheArrowBesideItsText_data();
    void keepsTheArrowBesideItsText();
    void showsModels();
    void survivesTheEndOfItsModel();
    void mayBeRebuiltWhileTellingOfAnEdit();
    void readsNamesAsPlainTexts();
    void isEmptyWithoutParameters();
};

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

void tst_KeltoParameterForm::keepsTheWidthOfEditors()
{
    QStringList unitless = plainEntry("b", "float", "Load");
    unitless[KeltoParameterEntry::Unit].clear();
    const auto form = shownForm(beam({ plainEntry("a"), unitless, plainEntry("c", "file") }));
    const int width = form->editor("a")->width();
    QCOMPARE(form->editor("b")->width(), width);
    QTRY_COMPARE(visibleMarks(*form).size(), 3);
    form->setValues({ { "Attribute/a", "1" }, { "Attribute/b", "1" }, { "Attribute/c", "1" } });
    QVERIFY(waitForFindings(*form));
    QCOMPARE(visibleMarks(*form), QStringList());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCOMPARE(form->editor("a")->width(), width);
    QCOMPARE(form->editor("b")->width(), width);
}

void tst_KeltoParameterForm::isAsLargeAsItsRows()
{
    ParameterEntries entries;
    for (int i = 0; i < 5; ++i)
        entries.append(plainEntry("Parameter " + QString::number(i)));
    const AUTH_SET few = registryOf(beam(entries));
    Form form(&few, "Statics", "Bend");
    const auto *area = form.findChild<QScrollArea *>();
    QCOMPARE(area->sizeHint(), area->widget()->sizeHint());
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QTRY_VERIFY(summaryOf(form).startsWith("5 of 5"));
    QCoreApplication::processEvents();
    QCOMPARE(area->height(), area->widget()->height());
    for (int i = 5; i < 100; ++i)
        entries.append(plainEntry("Parameter " + QString::number(i)));
    const AUTH_SET many = registryOf(beam(entries));
    Form large(&many, "Statics", "Bend");
    area = large.findChild<QScrollArea *>();
    QCOMPARE(area->sizeHint().height(), area->screen()->availableSize().height() * 2 / 3);
    QVERIFY(area->sizeHint().width() > area->widget()->sizeHint().width());
}

void tst_KeltoParameterForm::givesTablesTheRoomOfTheRow()
{
    const auto form = shownForm(beam({ plainEntry("a"), multiEntry("b", "QVector<double>") }));
    QCOMPARE(labelOf(*form, "b")->text(), "b  b  mm");
    QVERIFY(form->editor("b")->width() > form->editor("a")->width());
    QTRY_COMPARE(visibleMarks(*form), QStringList({ "missing", "missing" }));
    form->setValues({ { "Attribute/a", "1" }, { "Attribute/b", QStringList { "1", "x" } } });
    QVERIFY(waitForFindings(*form));
    QCOMPARE(visibleMarks(*form), QStringList("b, value 2: \"x\" is not a number."));
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

void tst_KeltoParameterForm::showsToolTipsAsTheyStand()
{
    AUTH_INF item = caseBeam();
    item.extraKey << VDataItem { "Help.Length", "<img src='secret.png'>" };
    const auto form = shownForm(item);
    const QString asItStands = "<p>&lt;img src='secret.png'&gt;</p>";
    QCOMPARE(form->editor("Length")->toolTip(), asItStands);
    QCOMPARE(labelOf(*form, "Length")->toolTip(), asItStands);
    QVERIFY(form->editor("Length")->accessibleDescription().endsWith("<img src='secret.png'>"));
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
                            plainEntry("c", "bool", "1"), plainEntry("d", "float", "1"),
                            multiEntry("e", "QVector<double>") },
                          { { "Advanced.d", "true" } }));
    Model model(&registry, "Statics", "Bend");
    form->setModel(&model);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    form->editor("a")->setFocus();
    QStringList names;
    for (int i = 0; i < 50 && names.count("a") < 2; ++i) {
        names.append(window.focusWidget()->objectName());
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    // The buttons of the table have no names; Tab goes to the summary and then through its links.
    const int linkCount = names.removeAll("kelto_summary");
    QCOMPARE(linkCount, 1 + 5);
    QCOMPARE(names,
             QStringList({ "a", "c", "b", "kelto_browse", "kelto_table", "", "", "",
                           "kelto_advanced", "after", "a" }));
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

void tst_KeltoParameterForm::keepsTheArrowBesideItsText_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("from left to right") << Qt::LeftToRight;
    QTest::newRow("from right to left") << Qt::RightToLeft;
}

void tst_KeltoParameterForm::keepsTheArrowBesideItsText()
{
    QFETCH(Qt::LayoutDirection, direction);
    const auto form = shownForm(caseBeam());
    form->setLayoutDirection(direction);
    auto *button = form->findChild<QToolButton *>("kelto_advanced");
    // Text without glyphs leaves the arrow alone.
    button->setText(QString(10, ' '));
    QTRY_VERIFY(button->isVisible());
    const QImage image = button->grab().toImage();
    const QRgb background = image.pixel(0, 0);
    int atLeft = 0;
    int atRight = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            (x < image.width() / 2 ? atLeft : atRight) += int(image.pixel(x, y) != background);
    }
    QVERIFY((direction == Qt::LeftToRight ? atLeft : atRight) > 5);
    QCOMPARE(direction == Qt::LeftToRight ? atRight : atLeft, 0);
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
