// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"
#include "modules.h"
#include "plotview.h"
#include "studydialog.h"

#include <Kelto/AUTH_SET>
#include <Kelto/Forms/KeltoParameterForm>
#include <Kelto/Forms/KeltoParameterModel>
#include <Kelto/UTaskSelectDialog>

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QToolBar>
#include <QTranslator>
#include <QTreeView>
#include <QtTest>

#include <qwt_plot.h>

#include "support/directorytest.h"
#include "support/testfiles.h"

namespace {

const char *const cantilever = "Statics/Beam/Cantilever";

/// Answers the dialogs that open, each by its turn. A dialog that nobody waits for fails the test.
class Answers : public QObject
{
public:
    using Answer = std::function<void(QWidget *)>;

    Answers() { startTimer(1); }
    void add(const char *dialog, const Answer &answer) { m_answers.append({ dialog, answer }); }
    bool isEmpty() const { return m_answers.isEmpty(); }
    QStringList unexpected() const { return m_unexpected; }

protected:
    void timerEvent(QTimerEvent * /*event*/) override
    {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog || dialog == m_last)
            return;
        m_last = dialog;
        connect(dialog, &QObject::destroyed, this, [this] { m_last = nullptr; });
        if (!m_answers.isEmpty() && dialog->inherits(m_answers.first().first))
            return m_answers.takeFirst().second(dialog);
        m_unexpected.append(dialog->metaObject()->className());
        dialog->close();
    }

private:
    QVector<QPair<const char *, Answer>> m_answers;
    QStringList m_unexpected;
    QWidget *m_last = nullptr;
};

void click(const QWidget *window, const char *button)
{
    QTest::mouseClick(window->findChild<QPushButton *>(button), Qt::LeftButton);
}

/// What was chosen in a file dialog, by typing.
Answers::Answer file(const QString &path)
{
    return [path](QWidget *dialog) {
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(path);
        QTest::keyClick(dialog->findChild<QLineEdit *>("fileNameEdit"), Qt::Key_Return);
    };
}

Answers::Answer answer(QMessageBox::StandardButton button)
{
    return [button](QWidget *box) {
        QTest::mouseClick(qobject_cast<QMessageBox *>(box)->button(button), Qt::LeftButton);
    };
}

/// Accepts the entry that ends in @p mode, or the one there is.
Answers::Answer task(const QString &mode = {})
{
    return [mode](QWidget *dialog) {
        auto *entries = dialog->findChild<QComboBox *>("comboBox");
        for (int i = 0; !mode.isEmpty() && i < entries->count(); ++i) {
            if (entries->itemText(i).endsWith(mode))
                entries->setCurrentIndex(i);
        }
        click(dialog, "pushButton_accept");
    };
}

QString pdfText(const QString &path)
{
    QProcess reader;
    reader.start("pdftotext", { "-layout", path, "-" });
    reader.waitForFinished();
    return QString::fromUtf8(reader.readAllStandardOutput());
}

} // namespace

/// The window and the whole road through it, each test in a directory of its own.
class tst_MainWindow : public DirectoryTest
{
    Q_OBJECT

public:
    static void initMain()
    {
        QCoreApplication::setApplicationName("Workbench");
        QCoreApplication::setApplicationVersion("1.0");
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

private Q_SLOTS:
    void init() override
    {
        DirectoryTest::init();
        if (QTest::currentTestFailed())
            return;
        m_modules = compiledModules();
        start();
    }
    void cleanup() override
    {
        QCOMPARE(m_answers->unexpected(), QStringList());
        QVERIFY(m_answers->isEmpty());
        m_window.reset();
        m_registry.reset();
        qDeleteAll(qApp->findChildren<QTranslator *>());
        DirectoryTest::cleanup();
    }

    void noProjectAtFirst()
    {
        QCOMPARE(m_window->windowTitle(), QString("New project[*] - Workbench"));
        QCOMPARE(text("message"), QString("Begin a new project, or open one."));
        for (const char *name : { "save", "saveAs", "exportReport", "calculate", "study", "undo",
                                  "redo", "defaults", "chooseTask" })
            QVERIFY2(!action(name)->isEnabled(), name);
        m_answers->add("UTaskSelectDialog", [](QWidget *d) { click(d, "pushButton_cancel"); });
        trigger("newProject");
        QVERIFY(!action("save")->isEnabled());
        QVERIFY(!m_window->isWindowModified());
    }

    void everyTask_data()
    {
        QTest::addColumn<QString>("id");
        const TemporaryCurrentDirectory directory; // a registry writes into the current one
        const auto tasks = allTasks(AUTH_SET("Workbench", "1.0", compiledModules()));
        for (const Task &task : tasks)
            QTest::newRow(qPrintable(task.id())) << task.id();
    }
    /// Each task is computed with its defaults and the values that have none, and fits the window.
    void everyTask()
    {
        QFETCH(QString, id);
        begin(id);
        const Task task = tasksNamed(*m_registry, id).value(0);
        QCOMPARE(text("title"), task.title());
        QVERIFY(text("description").contains(task.description));
        QVERIFY(text("description").contains(task.module.description));
        const auto findings = form()->findings();
        for (const KeltoItemFinding &finding : findings)
            enter(finding.valueKey.section('/', 1), "1");
        trigger("calculate");
        QCOMPARE(text("message"), QString());
        QCOMPARE(results().size(), task.results.size());
        QVERIFY(m_window->findChild<PlotView *>("plots")->count() > 0);
        for (const VParameter &parameter : task.parameters)
            QVERIFY(form()->editor(parameter.name().first));
    }

    void wholeRoad()
    {
        m_answers->add("UTaskSelectDialog", task("Cantilever"));
        trigger("newProject");
        enter("Length", "1500");
        enter("Point load", "800");
        QVERIFY(m_window->isWindowModified());
        trigger("calculate");
        const QString deflection = rowOf("Deflection");
        QVERIFY2(deflection.contains("mm"), qPrintable(deflection));
        QCOMPARE(m_registry->value_cal("Attribute/Length"), QVariant("1500"));
        QCOMPARE(m_registry->value_cal("Unit/Length"), QVariant("mm"));

        m_answers->add("QFileDialog", file("beam.ini"));
        trigger("save");
        QVERIFY(!m_window->isWindowModified());
        QCOMPARE(m_window->windowTitle(), QString("beam.ini[*] - Workbench"));
        m_window->resize(m_window->minimumSizeHint() + QSize(20, 30));
        const QSize size = m_window->size();
        m_window->close();

        start();
        QCOMPARE(m_window->size(), size);
        m_answers->add("UTaskSelectDialog", task());
        auto *recent = m_window->findChild<QMenu *>("recent");
        Q_EMIT recent->aboutToShow();
        QCOMPARE(recent->actions().size(), 1);
        recent->actions().constFirst()->trigger();
        QCOMPARE(text("message"), QString());
        QCOMPARE(text("title"), QString("Statics › Beam › Cantilever"));
        QCOMPARE(value("Length"), QVariant("1500"));
        QCOMPARE(value("Point load"), QVariant("800"));
        trigger("calculate");
        QCOMPARE(rowOf("Deflection"), deflection);

        const QString log = QString::fromUtf8(fileContent(m_registry->filepath_log()));
        for (const char *line :
             { " Task: Statics › Beam › Cantilever\n", " Calculated\n", "beam.ini\n", " Ended\n" })
            QVERIFY2(log.contains(line), qPrintable(log));
    }

    void editTakesTheResultsAway()
    {
        begin(cantilever);
        trigger("calculate");
        QVERIFY(results().size() > 0);
        enter("Length", "3");
        QCOMPARE(results().size(), 0);
        QCOMPARE(m_window->findChild<PlotView *>("plots")->count(), 0);
        trigger("undo");
        QCOMPARE(value("Length"), QVariant("1000"));
        trigger("redo");
        QCOMPARE(value("Length"), QVariant("3"));
        trigger("defaults");
        QCOMPARE(value("Length"), QVariant("1000"));
    }

    void wrongValues_data()
    {
        QTest::addColumn<QString>("parameter");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("message");
        QTest::newRow("nothing") << "Length"
                                 << ""
                                 << "Length (L, mm), in Geometry: no value.";
        QTest::newRow("no number") << "Length"
                                   << "long"
                                   << "\"long\" is not a number";
        QTest::newRow("outside its limits") << "Point load"
                                            << "-5"
                                            << "-5 is outside";
        QTest::newRow("no length") << "Length"
                                   << "-5"
                                   << "-5 is outside";
        QTest::newRow("too large to calculate with") << "Length"
                                                     << "1e200"
                                                     << "too large";
    }
    void wrongValues()
    {
        QFETCH(QString, parameter);
        QFETCH(QString, value);
        QFETCH(QString, message);
        begin(cantilever);
        enter(parameter, value);
        trigger("calculate");
        QVERIFY2(text("message").contains(message), qPrintable(text("message")));
        QVERIFY(m_window->findChild<QLabel *>("message")->isVisible());
        QCOMPARE(results().size(), 0);
        // No report and no study of nothing.
        trigger("exportReport");
        trigger("study");
        enter(parameter, "500");
        QVERIFY(!m_window->findChild<QLabel *>("message")->isVisible());
    }

    void projectsThatCannotBeOpened()
    {
        begin(cantilever);
        enter("Length", "70");
        QVERIFY(writeFile("rubbish.ini", "\1\2\3"));
        for (const char *name : { "missing.ini", "rubbish.ini" }) {
            m_answers->add("QMessageBox", answer(QMessageBox::Discard));
            m_window->openProject(name);
            QVERIFY2(text("message").contains(name), qPrintable(text("message")));
            QCOMPARE(value("Length"), QVariant("70"));
            QVERIFY(m_window->isWindowModified());
        }
        m_answers->add("QMessageBox", answer(QMessageBox::Cancel));
        m_window->openProject("rubbish.ini");
        QCOMPARE(value("Length"), QVariant("70"));
    }

    void projectOfAnotherVersion()
    {
        QVERIFY(writeFile("old.ini",
                          "[Project]\nTask=Statics/Beam/Cantilever\n"
                          "[Attribute]\nLengths=1200\nSection width=50\nTorsion=3\n"));
        m_answers->add("UTaskSelectDialog", task());
        m_window->openProject("old.ini");
        for (const char *part : { "Attribute/Lengths", "\"Torsion\" = 3", "Elastic modulus" })
            QVERIFY2(text("message").contains(part), qPrintable(text("message")));
        QVERIFY(!form()->isComplete());
        // As long as there is no section, its width does not count.
        QCOMPARE(value("Section width"), QVariant(""));
        enter("Length", "1200");
        trigger("save");
        const QByteArray saved = fileContent("old.ini");
        for (const char *line :
             { "\nLengths=1200\n", "\nLength=1200\n", "\nTorsion=3\n", "\nSection%20width=50\n" })
            QVERIFY2(saved.contains(line), saved.constData());
        enter("Section", "rectangle");
        QCOMPARE(value("Section width"), QVariant("50"));
    }

    void projectInOtherUnits()
    {
        begin(cantilever);
        trigger("calculate");
        const QString slope = rowOf("Slope");
        m_answers->add("QFileDialog", file("beam.ini"));
        trigger("save");
        QSettings project("beam.ini", QSettings::IniFormat);
        project.setIniCodec("UTF-8");
        project.setValue("Attribute/Length", "1");
        project.setValue("Unit/Length", "m");
        project.sync();
        m_answers->add("UTaskSelectDialog", task());
        m_window->openProject("beam.ini");
        QVERIFY(text("message").contains("Length was saved in m"));
        trigger("calculate");
        QCOMPARE(rowOf("Slope"), slope);
        m_answers->add("StudyDialog", [](QWidget *dialog) {
            QVERIFY(dialog->findChild<QComboBox *>("studyParameter")->findText("Length [mm]") >= 0);
            dialog->close();
        });
        trigger("study");
    }

    /// It is no number in the unit of the task, until the user has typed one.
    void projectInAnUnknownUnit()
    {
        QVERIFY(writeFile("old.ini",
                          "[Project]\nTask=Statics/Beam/Cantilever\n"
                          "[Attribute]\nLength=5\n[Unit]\nLength=furlong\n"));
        m_answers->add("UTaskSelectDialog", task());
        m_window->openProject("old.ini");
        QVERIFY(text("message").contains("Length was saved in furlong. Enter it in mm."));
        QCOMPARE(value("Length"), QVariant("5 furlong"));
        QVERIFY(form()->findings().first().text().contains("\"5 furlong\" is not a number"));
        enter("Length", "1000");
        trigger("save");
        const QByteArray saved = fileContent("old.ini");
        for (const char *line : { "\nLength=1000\n", "\nLength=mm\n" })
            QVERIFY2(saved.contains(line), saved.constData());
    }

    /// What did not fit can be read when the message has gone, until the user closes the log.
    void differencesStayInTheLog()
    {
        QVERIFY(writeFile("old.ini",
                          "[Project]\nTask=Statics/Beam/Cantilever\nVersion=0.9\n"
                          "[Attribute]\nTorsion\x1b=3\n"));
        m_answers->add("UTaskSelectDialog", task());
        m_window->openProject("old.ini");
        enter("Length", "5");
        trigger("calculate");
        trigger("zh_CN");
        const auto *view = m_window->findChild<QPlainTextEdit *>("logText");
        QVERIFY(view->isVisible());
        const QString log = QString::fromUtf8(fileContent(m_registry->filepath_log()));
        for (const char *part :
             { "saved by version 0.9. This is version 1.0.\n", "Elastic modulus (E, MPa)" }) {
            QVERIFY2(view->toPlainText().contains(part), qPrintable(view->toPlainText()));
            QVERIFY2(log.contains(part), qPrintable(log));
        }
        // No byte of a file reaches a terminal.
        QVERIFY(log.contains("Torsion") && !log.contains('\x1b'));
    }

    void taskThatIsNotOnOffer()
    {
        QVERIFY(writeFile("old.ini",
                          "[Project]\nTask=Statics/Beam/Hinged\n[Attribute]\nLength=1200\n"));
        m_answers->add("UTaskSelectDialog", task("Simply supported"));
        m_window->openProject("old.ini");
        QVERIFY(text("message").contains("\"Statics/Beam/Hinged\""));
        QCOMPARE(text("title"), QString("Statics › Beam › Simply supported"));
        QCOMPARE(value("Length"), QVariant("1200"));
    }

    void placeThatCannotBeWritten()
    {
        begin(cantilever);
        enter("Length", "70");
        m_answers->add("QFileDialog", file("/proc/none.ini"));
        m_answers->add("QMessageBox", answer(QMessageBox::Yes));
        m_answers->add("QFileDialog", file("here.ini"));
        trigger("save");
        QVERIFY(fileContent("here.ini").contains("Length=70"));
        QVERIFY(!m_window->isWindowModified());

        enter("Length", "80");
        m_answers->add("QFileDialog", file("/proc/none.ini"));
        m_answers->add("QMessageBox", answer(QMessageBox::No));
        trigger("saveAs");
        QVERIFY(text("message").contains("/proc/none.ini"));
        QVERIFY(m_window->isWindowModified());
        QCOMPARE(m_window->windowTitle(), QString("here.ini[*] - Workbench"));

        m_answers->add("QFileDialog", file("/proc/none.pdf"));
        trigger("exportReport");
        QVERIFY(text("message").contains("/proc/none.pdf"));
    }

    void secondWindowOfAProject()
    {
        begin(cantilever);
        m_answers->add("QFileDialog", file("beam.ini"));
        trigger("save");
        MainWindow second(m_registry.get(), m_modules, "en");
        second.openProject("beam.ini");
        const QString message = second.findChild<QLabel *>("message")->text();
        QVERIFY2(message.contains("is open in another window"), qPrintable(message));
        QVERIFY(!second.findChild<QAction *>("save")->isEnabled());
        // The first one may open it again.
        m_answers->add("UTaskSelectDialog", task());
        m_window->openProject("beam.ini");
        QCOMPARE(text("message"), QString());
    }

    void changesAreNotLostByClosing()
    {
        begin(cantilever);
        enter("Length", "70");
        m_answers->add("QMessageBox", answer(QMessageBox::Cancel));
        QVERIFY(!m_window->close());
        m_answers->add("QMessageBox", answer(QMessageBox::Save));
        m_answers->add("QFileDialog", file("beam.ini"));
        QVERIFY(m_window->close());
        QVERIFY(fileContent("beam.ini").contains("Length=70"));
    }

    void valuesSurviveAnotherTask()
    {
        begin("Vessels/Pressure vessel/Thin wall");
        enter("Internal pressure", "12");
        m_answers->add("UTaskSelectDialog", task("Steady"));
        trigger("chooseTask");
        QCOMPARE(text("title"), QString("Heat › Plane wall › Steady"));
        m_answers->add("UTaskSelectDialog", task("Thick wall"));
        trigger("chooseTask");
        QCOMPARE(value("Internal pressure"), QVariant("12"));
        QCOMPARE(m_registry->value_group_at("Vessels/Pressure vessel/Thick wall",
                                            "Attribute/Internal pressure"),
                 QVariant("40"));
        // Defaults are those of the task, and a new project has nothing of the last one.
        QCOMPARE(value("Wall thickness"), QVariant("60"));
        begin("Vessels/Pressure vessel/Thick wall");
        QCOMPARE(value("Internal pressure"), QVariant("40"));
    }

    void defaultThatReplacesAnotherValueSurvivesAnotherTask()
    {
        begin(cantilever);
        enter("Length", "1500");
        m_answers->add("UTaskSelectDialog", task("Simply supported"));
        trigger("chooseTask");
        enter("Length", "1000");
        m_answers->add("UTaskSelectDialog", task("Cantilever"));
        trigger("chooseTask");
        QCOMPARE(value("Length"), QVariant("1000"));
    }

    /// Nor does a project hold its defaults as if somebody had entered them.
    void savedDefaultsAreNotEntered()
    {
        begin("Vessels/Pressure vessel/Thin wall");
        enter("Inner diameter", "300");
        m_answers->add("QFileDialog", file("vessel.ini"));
        trigger("save");
        m_answers->add("UTaskSelectDialog", task("Thin wall"));
        m_window->openProject("vessel.ini");
        m_answers->add("UTaskSelectDialog", task("Thick wall"));
        trigger("chooseTask");
        QCOMPARE(value("Inner diameter"), QVariant("300"));
        QCOMPARE(value("Internal pressure"), QVariant("40")); // 6 in the other task
        QCOMPARE(value("Wall thickness"), QVariant("60"));
    }

    void undoingEverythingLeavesNoChange()
    {
        begin(cantilever);
        QVERIFY(!m_window->isWindowModified());
        enter("Length", "5");
        enter("Point load", "7");
        trigger("undo");
        QVERIFY(m_window->isWindowModified());
        trigger("undo");
        QVERIFY(!m_window->isWindowModified());
        trigger("redo");
        QVERIFY(m_window->isWindowModified());
        m_answers->add("QFileDialog", file("beam.ini"));
        trigger("save");
        QVERIFY(!m_window->isWindowModified());
        trigger("undo");
        QVERIFY(m_window->isWindowModified());
        trigger("redo");
        QVERIFY(!m_window->isWindowModified());
        // Another task is a change that no step takes back.
        m_answers->add("UTaskSelectDialog", task("Simply supported"));
        trigger("chooseTask");
        enter("Length", "8");
        trigger("undo");
        QVERIFY(m_window->isWindowModified());
    }

    void recentProjectThatHasGone()
    {
        begin(cantilever);
        for (const char *name : { "gone.ini", "there.ini" }) {
            m_answers->add("QFileDialog", file(name));
            trigger("saveAs");
        }
        QVERIFY(QFile::remove("gone.ini"));
        auto *recent = m_window->findChild<QMenu *>("recent");
        Q_EMIT recent->aboutToShow();
        QCOMPARE(recent->actions().size(), 2);
        QVERIFY(recent->actions().at(0)->isEnabled());
        QVERIFY(!recent->actions().at(1)->isEnabled());
    }

    void hintsThatMakeNoSenseAreLogged()
    {
        m_modules.first().extraKey.append(VDataItem { "Min.Torsion", "1" });
        start();
        const QString log = m_window->findChild<QPlainTextEdit *>("logText")->toPlainText();
        QVERIFY2(log.contains("Beam: ") && log.contains("Torsion"), qPrintable(log));
    }

    void toolBarReadsAsText()
    {
        for (const char *language : { "en", "zh_CN" }) {
            trigger(language);
            const auto actions = m_window->findChild<QToolBar *>("tools")->actions();
            QCOMPARE(actions.size(), 5);
            for (const QAction *shown : actions) {
                QVERIFY(!shown->icon().isNull());
                QVERIFY2(!shown->iconText().contains('(') && !shown->iconText().contains('.'),
                         qPrintable(shown->iconText()));
            }
            QVERIFY(action(language)->isChecked());
        }
        QVERIFY(!action("en")->isChecked());
    }

    void sameTaskAgainChangesNothing()
    {
        begin(cantilever);
        m_answers->add("QFileDialog", file("beam.ini"));
        trigger("save");
        m_answers->add("UTaskSelectDialog", task("Cantilever"));
        trigger("chooseTask");
        QVERIFY(!m_window->isWindowModified());
    }

    void hiddenDefaultsSurviveSaving()
    {
        begin(cantilever);
        m_answers->add("QFileDialog", file("beam.ini"));
        trigger("save");
        m_answers->add("UTaskSelectDialog", task("Cantilever"));
        m_window->openProject("beam.ini");
        auto *model = m_window->findChild<KeltoParameterForm *>()->model();
        model->setData(model->index(model->row("Section"), KeltoParameterModel::ValueColumn),
                       "tube", KeltoParameterModel::ValueRole);
        QCOMPARE(value("Section diameter"), QVariant("60"));
    }

    /// The dialog knows names only.
    void modesOfOneName()
    {
        AUTH_INF other = m_modules.first();
        other.name = other.name_tr = "Board";
        other.inner_mode_description = QStringList { "First", "Second", "Third" };
        m_modules.append(other);
        start();
        m_answers->add("UTaskSelectDialog", task("Cantilever"));
        m_answers->add("QInputDialog", [](QWidget *dialog) {
            dialog->findChild<QComboBox *>()->setCurrentText("Board");
            qobject_cast<QInputDialog *>(dialog)->accept();
        });
        trigger("newProject");
        QCOMPARE(text("title"), QString("Statics › Board › Cantilever"));
        QVERIFY(text("description").contains("First"));
        m_answers->add("QFileDialog", file("board.ini"));
        trigger("save");
        QVERIFY(fileContent("board.ini").contains("Task=Statics/Board/Cantilever\n"));
    }

    void languageChangesAtRunTime()
    {
        begin(cantilever);
        enter("Length", "70");
        trigger("calculate");
        trigger("zh_CN");
        QTRY_COMPARE(text("title"), QString("静力学 › 梁 › 悬臂"));
        QCOMPARE(action("calculate")->text(), QString("计算(&L)"));
        QCOMPARE(value("Length"), QVariant("70"));
        QVERIFY(rowOf("挠度").contains("mm"));
        QVERIFY(text("description").startsWith(m_registry->information("Beam")));
        m_window->close();

        start();
        QCOMPARE(action("calculate")->text(), QString("计算(&L)"));
        trigger("en");
        QTRY_COMPARE(action("calculate")->text(), QString("Ca&lculate"));
    }

    void report_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("English") << "en"
                                 << QStringList { "Statics › Beam › Cantilever",
                                                  "Input",
                                                  "Length",
                                                  "70",
                                                  "mm",
                                                  "Results",
                                                  "Bending moment",
                                                  "shear deformation",
                                                  QDate::currentDate().toString(Qt::ISODate) };
        QTest::newRow("Chinese") << "zh_CN"
                                 << QStringList { "静力学 › 梁 › 悬臂", "长度", "挠度",
                                                  QDate::currentDate().toString(Qt::ISODate) };
    }
    void report()
    {
        QFETCH(QString, language);
        QFETCH(QStringList, texts);
        trigger(language.toLatin1().constData());
        begin(cantilever);
        enter("Length", "70");
        m_answers->add("QFileDialog", file("report.pdf"));
        trigger("exportReport");
        QCOMPARE(text("message"), QString());
        QVERIFY(fileContent("report.pdf").startsWith("%PDF"));
        if (QStandardPaths::findExecutable("pdftotext").isEmpty())
            return qInfo("Without pdftotext (poppler-utils) the report cannot be read.");
        const QString content = pdfText("report.pdf");
        QCOMPARE(content.count('\f'), 1); // one page
        for (const QString &part : texts)
            QVERIFY2(content.contains(part), qPrintable(part + " is not in\n" + content));
    }

    void studyDialog()
    {
        begin(cantilever);
        m_answers->add("StudyDialog", [](QWidget *dialog) {
            auto *parameters = dialog->findChild<QComboBox *>("studyParameter");
            // A choice is no range, and what does not count has none.
            QCOMPARE(parameters->findText("Section"), -1);
            QCOMPARE(parameters->findText("Section diameter [mm]"), -1);
            parameters->setCurrentIndex(parameters->findText("Point load [N]"));
            QVERIFY(!dialog->findChild<QPushButton *>("studySave")->isEnabled());
            for (const char *from : { "x", "", "inf", "-inf", "nan" }) {
                dialog->findChild<QLineEdit *>("studyFrom")->setText(from);
                dialog->findChild<QLabel *>("studyMessage")->clear();
                click(dialog, "studyRun");
                QVERIFY(dialog->findChild<QLabel *>("studyMessage")->text().contains("numbers"));
            }
            dialog->findChild<QLineEdit *>("studyFrom")->setText("100");
            dialog->findChild<QLineEdit *>("studyTo")->setText("300");
            dialog->findChild<QSpinBox *>("studySteps")->setValue(4);
            click(dialog, "studyRun");
            QVERIFY(dialog->findChild<PlotView *>("plots")->count() > 0);
            dialog->close();
        });
        trigger("study");
        // The next dialog has the range of the last one.
        m_answers->add("StudyDialog", [](QWidget *dialog) {
            auto *parameters = dialog->findChild<QComboBox *>("studyParameter");
            parameters->setCurrentIndex(parameters->findText("Point load [N]"));
            QCOMPARE(dialog->findChild<QLineEdit *>("studyTo")->text(), QString("300"));
            QCOMPARE(dialog->findChild<QSpinBox *>("studySteps")->value(), 4);
            dialog->close();
        });
        trigger("study");
        QCOMPARE(m_registry->value_temp("Study/Point load"),
                 QVariant(QStringList { "100", "300", "4" }));
    }

    void emptyLoadCanBeStudied()
    {
        begin(cantilever);
        enter("Point load", "");
        m_answers->add("StudyDialog", [](QWidget *dialog) {
            auto *parameters = dialog->findChild<QComboBox *>("studyParameter");
            QVERIFY(parameters->findText("Point load [N]") >= 0);
            parameters->setCurrentIndex(parameters->findText("Point load [N]"));
            QCOMPARE(dialog->findChild<QLineEdit *>("studyTo")->text(), QString("1,000"));
            click(dialog, "studyRun");
            QCOMPARE(dialog->findChild<QLabel *>("studyMessage")->text(), QString());
            dialog->close();
        });
        trigger("study");
        QVERIFY(m_window->findChild<QPlainTextEdit *>("logText")->toPlainText().contains(
            "Study of Point load: 11 of 11 points"));
    }

    void canceledStudy()
    {
        begin(cantilever);
        m_answers->add("StudyDialog", [](QWidget *dialog) {
            dialog->findChild<QSpinBox *>("studySteps")->setValue(10000);
            // As long as the progress is shown, nothing can be done with what is not there yet.
            QTimer looking;
            connect(&looking, &QTimer::timeout, dialog, [dialog] {
                auto *progress = dialog->findChild<QProgressDialog *>();
                if (!progress || !progress->isVisible())
                    return;
                QCOMPARE(progress->windowModality(), Qt::WindowModal);
                QTest::mouseClick(progress->findChild<QPushButton *>(), Qt::LeftButton);
            });
            looking.start(1);
            click(dialog, "studyRun");
            QVERIFY(dialog->isVisible());
            const QString message = dialog->findChild<QLabel *>("studyMessage")->text();
            QVERIFY2(message.startsWith("Canceled after"), qPrintable(message));
            dialog->close();
        });
        trigger("study");
    }

    void zoom()
    {
        begin(cantilever);
        trigger("calculate");
        auto *plots = m_window->findChild<PlotView *>("plots");
        auto *plot = qobject_cast<QwtPlot *>(plots->currentWidget());
        const double end = plot->axisInterval(QwtPlot::xBottom).maxValue();
        QVERIFY(end >= 1000);
        QWidget *canvas = plot->canvas();
        QTest::mousePress(canvas, Qt::LeftButton, {}, canvas->rect().center() / 2);
        QMouseEvent move(QEvent::MouseMove, canvas->rect().center(), Qt::NoButton, Qt::LeftButton,
                         {});
        QCoreApplication::sendEvent(canvas, &move);
        QTest::mouseRelease(canvas, Qt::LeftButton, {}, canvas->rect().center());
        QVERIFY(plot->axisInterval(QwtPlot::xBottom).maxValue() < end);
        trigger("resetZoom");
        QCOMPARE(plot->axisInterval(QwtPlot::xBottom).maxValue(), end);
    }

    void logIsShownAsItGrows()
    {
        trigger("showLog");
        auto *log = m_window->findChild<QPlainTextEdit *>("logText");
        QVERIFY(log->isVisible());
        begin(cantilever);
        trigger("calculate");
        QTRY_VERIFY(log->toPlainText().contains("Calculated"));
    }

private:
    /// Starts the program anew.
    void start()
    {
        m_window.reset();
        m_registry = std::make_unique<AUTH_SET>("Workbench", "1.0", m_modules);
        m_answers = std::make_unique<Answers>();
        const QString language = m_registry->value_set("Window/Language").toString();
        m_window = std::make_unique<MainWindow>(m_registry.get(), m_modules,
                                                language.isEmpty() ? "en" : language);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QCoreApplication::processEvents();
    }

    void begin(const QString &id) { m_window->startProject(tasksNamed(*m_registry, id).value(0)); }

    QAction *action(const char *name) const { return m_window->findChild<QAction *>(name); }
    void trigger(const char *name) const { action(name)->trigger(); }
    QString text(const char *label) const { return m_window->findChild<QLabel *>(label)->text(); }
    KeltoParameterForm *form() const { return m_window->findChild<KeltoParameterForm *>("form"); }

    /// As the user types it.
    void enter(const QString &key, const QString &typed) const
    {
        KeltoParameterModel *model = form()->model();
        QVERIFY(model->row(key) >= 0);
        model->setData(model->index(model->row(key), KeltoParameterModel::ValueColumn), typed);
    }

    QVariant value(const char *key) const
    {
        return valueOf(form()->values(), QString("Attribute/") + key);
    }

    /// The results as the table shows them, without its headings.
    QStringList results() const
    {
        const auto *view = m_window->findChild<QTreeView *>("kelto_results");
        QStringList rows;
        for (int i = 0; i < view->model()->rowCount(); ++i) {
            const QModelIndex group = view->model()->index(i, 0);
            for (int row = 0; row < view->model()->rowCount(group); ++row) {
                QStringList texts;
                for (int column = 0; column < view->model()->columnCount(group); ++column)
                    texts.append(view->model()->index(row, column, group).data().toString());
                rows.append(texts.join(" | "));
            }
        }
        return rows;
    }

    QString rowOf(const QString &name) const
    {
        return results().filter(QRegularExpression('^' + name + " \\|")).value(0);
    }

    QVector<AUTH_INF> m_modules;
    std::unique_ptr<AUTH_SET> m_registry;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<Answers> m_answers;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
