// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "road.h"

#include "mainwindow.h"
#include "onlooker.h"
#include "studydialog.h"
#include "task.h"

#include <Kelto/AUTH_SET>

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>

#include <algorithm>

namespace {

const char *const dialog = "UTaskSelectDialog";
const char *const mainWindow = "MainWindow";
const char *const fileDialog = "QFileDialog";
const char *const messageBox = "QMessageBox";
const char *const studyDialog = "StudyDialog";

const char *const cantilever = "Statics/Beam/Cantilever";
const char *const thickWall = "Vessels/Pressure vessel/Thick wall";

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace

Road::Road(Walker *walker, const AUTH_SET *registry, const QString &language, bool isTour)
    : m_walker(*walker)
    , m_registry(registry)
    , m_language(language)
    , m_isTour(isTour)
{
    if (isTour) {
        visitEveryTask();
        end();
        return;
    }
    confirmTask();
    fillIn();
    meetMistakes();
    calculate();
    study();
    saveAndReport();
    changeLanguage();
    openAgain();
    openBadProjects();
    end();
}

/// Each with its defaults. Whatever the window shows has to fit into it.
void Road::visitEveryTask()
{
    const auto tasks = allTasks(*m_registry);
    for (const Task &task : tasks) {
        useWindow(dialog);
        pickEntry(dialog, "comboBox", standardName(task.id()));
        expectNothingClipped();
        m_walker.click("Accept", [] { return Onlooker::position(dialog, "pushButton_accept"); });
        useWindow(mainWindow);
        expectTitle(task.id());
        press("F5", [](UserInput &input) { input.pressFunctionKey(5); });
        m_walker.expect("rows of results", task.results.size(), [id = task.id(), this] {
            const auto results = tasksNamed(*m_registry, id).value(0).results;
            return int(
                std::count_if(results.cbegin(), results.cend(), [](const VParameter &result) {
                    return !Onlooker::row(mainWindow, "results", result.name().second).isEmpty();
                }));
        });
        expectNothingClipped();
        m_walker.takePicture("task");
        press("Ctrl+N", [](UserInput &input) { input.pressWithControl('n'); });
    }
    useWindow(dialog);
    m_walker.click("Cancel", [] { return Onlooker::position(dialog, "pushButton_cancel"); });
    useWindow(mainWindow);
}

void Road::confirmTask()
{
    useWindow(dialog);
    m_walker.takePicture("start");
    pickEntry(dialog, "comboBox", standardName(thickWall));
    m_walker.click("Cancel", [] { return Onlooker::position(dialog, "pushButton_cancel"); });
    useWindow(mainWindow);
    m_walker.takePicture("no-project");
    press("Ctrl+N", [](UserInput &input) { input.pressWithControl('n'); });
    useWindow(dialog);
    pickEntry(dialog, "comboBox", standardName(cantilever));
    m_walker.click("Accept", [] { return Onlooker::position(dialog, "pushButton_accept"); });
    useWindow(mainWindow);
    expectTitle(cantilever);
    m_walker.takePicture("form");
}

void Road::fillIn()
{
    enter(mainWindow, "Length", "1500");
    enter(mainWindow, "Point load", "800");
    press("Ctrl+T", [](UserInput &input) { input.pressWithControl('t'); });
    useWindow(dialog);
    m_walker.takePicture("dialog");
    m_walker.click("Cancel", [] { return Onlooker::position(dialog, "pushButton_cancel"); });
    useWindow(mainWindow);
    m_walker.expect("changed", true,
                    [] { return Onlooker::window(mainWindow)->isWindowModified(); });
}

void Road::meetMistakes()
{
    enter(mainWindow, "Length", "");
    m_walker.takePicture("missing");
    press("F5", [](UserInput &input) { input.pressFunctionKey(5); });
    m_walker.expect("message", false,
                    [] { return Onlooker::text(mainWindow, "message").isEmpty(); });
    expectNothingClipped();
    m_walker.takePicture("missing-told");
    enter(mainWindow, "Length", "-3");
    press("F5", [](UserInput &input) { input.pressFunctionKey(5); });
    m_walker.expect("message", false,
                    [] { return Onlooker::text(mainWindow, "message").isEmpty(); });
    m_walker.takePicture("outside-limits");
    press("Ctrl+Z", [](UserInput &input) { input.pressWithControl('z'); });
    enter(mainWindow, "Length", "1500");
}

void Road::calculate()
{
    m_walker.click("Calculate", [] { return Onlooker::positionOfAction("calculate"); });
    m_walker.expect("message", QString(), [] { return Onlooker::text(mainWindow, "message"); });
    m_walker.expect("plots", false,
                    [] { return Onlooker::positionOfTab(mainWindow, "plots", 1).isNull(); });
    m_walker.expect("results", true, [this] {
        const QString name
            = tasksNamed(*m_registry, cantilever).value(0).results.value(0).name().second;
        return Onlooker::row(mainWindow, "results", name).contains("| 14.3229 | mm");
    });
    expectNothingClipped();
    m_walker.takePicture("results");
    m_walker.click("Bending moment",
                   [] { return Onlooker::positionOfTab(mainWindow, "plots", 1); });
    m_walker.takePicture("bending-moment");
    m_walker.act("Drags a frame around the curve", [this] {
        const QPoint centre = Onlooker::position(mainWindow, "plots");
        m_walker.input().drag(centre - QPoint(0, 60), centre + QPoint(80, 0));
    });
    m_walker.takePicture("zoom");
    press("Ctrl+0", [](UserInput &input) { input.pressWithControl('0'); });
}

void Road::study()
{
    press("F6", [](UserInput &input) { input.pressFunctionKey(6); });
    useWindow(studyDialog);
    enter(studyDialog, "studyFrom", "500");
    enter(studyDialog, "studyTo", "2500");
    m_walker.click("Run", [] { return Onlooker::position(studyDialog, "studyRun"); });
    m_walker.expect("plots", false,
                    [] { return Onlooker::positionOfTab(studyDialog, "plots", 1).isNull(); });
    expectNothingClipped();
    m_walker.takePicture("study");
    m_walker.click("View", [] { return Onlooker::position(studyDialog, "studyView"); });
    m_walker.act("Presses Down", [this] { m_walker.input().pressDown(); });
    m_walker.act("Presses Return", [this] { m_walker.input().type("\n"); });
    expectNothingClipped();
    m_walker.takePicture("family");
    m_walker.click("Save", [] { return Onlooker::position(studyDialog, "studySave"); });
    nameFile("study.csv");
    m_walker.expect("study.csv", true, [] { return QFile::exists("study.csv"); });
    useWindow(studyDialog);
    press("Escape", [](UserInput &input) { input.pressEscape(); });
    useWindow(mainWindow);
}

void Road::saveAndReport()
{
    press("Ctrl+S", [](UserInput &input) { input.pressWithControl('s'); });
    useWindow(fileDialog);
    m_walker.takePicture("save");
    // Nobody can write there, not even the superuser.
    nameFile("/proc/beam.ini");
    useWindow(messageBox);
    m_walker.takePicture("not-written");
    m_walker.click("Yes", [] { return Onlooker::positionOfAnswer(QMessageBox::Yes); });
    nameFile("beam.ini");
    useWindow(mainWindow);
    m_walker.expect("changed", false,
                    [] { return Onlooker::window(mainWindow)->isWindowModified(); });
    press("Ctrl+R", [](UserInput &input) { input.pressWithControl('r'); });
    nameFile("report.pdf");
    useWindow(mainWindow);
    m_walker.expect("report.pdf", true, [] { return QFile::exists("report.pdf"); });
    m_walker.takePicture("exported");
}

void Road::changeLanguage()
{
    useMenu("resetZoom", "showLog");
    expectNothingClipped();
    m_walker.takePicture("log");
    useMenu("resetZoom", "showLog");
    // To the other one and back.
    const QStringList languages { m_language == "en" ? "zh_CN" : "en", m_language };
    for (const QString &language : languages) {
        m_walker.click("View", [] { return Onlooker::positionOfMenu("resetZoom"); });
        m_walker.click("Language", [] { return Onlooker::positionOfMenu("en"); });
        m_walker.takePicture("languages-" + language);
        m_walker.click(language, [language] { return Onlooker::positionOfAction(language); });
        expectTitle(cantilever);
        expectNothingClipped();
        m_walker.takePicture("in-" + language);
    }
}

void Road::openAgain()
{
    press("Ctrl+T", [](UserInput &input) { input.pressWithControl('t'); });
    useWindow(dialog);
    pickEntry(dialog, "comboBox", standardName(thickWall));
    m_walker.click("Accept", [] { return Onlooker::position(dialog, "pushButton_accept"); });
    useWindow(mainWindow);
    expectTitle(thickWall);
    press("F5", [](UserInput &input) { input.pressFunctionKey(5); });
    m_walker.takePicture("thick-wall");
    press("Ctrl+O", [](UserInput &input) { input.pressWithControl('o'); });
    nameFile("beam.ini");
    useWindow(messageBox);
    m_walker.takePicture("unsaved");
    m_walker.click("Discard", [] { return Onlooker::positionOfAnswer(QMessageBox::Discard); });
    useWindow(dialog);
    m_walker.takePicture("confirm");
    m_walker.click("Accept", [] { return Onlooker::position(dialog, "pushButton_accept"); });
    useWindow(mainWindow);
    expectTitle(cantilever);
    expectText(mainWindow, "Length", "1500");
    expectText(mainWindow, "Point load", "800");
    m_walker.click("Project", [] { return Onlooker::positionOfMenu("newProject"); });
    m_walker.takePicture("menu");
    press("Escape", [](UserInput &input) { input.pressEscape(); });
}

void Road::openBadProjects()
{
    m_walker.act("Somebody writes files", [this] {
        if (!writeFile("rubbish.ini", "\1\2\3[[")
            || !writeFile("old.ini",
                          "[Project]\nTask=Statics/Beam/Cantilever\n"
                          "[Attribute]\nLengths=1200\nSection width=50\nTorsion=3\n"))
            m_walker.fail("files", "none");
    });
    press("Ctrl+O", [](UserInput &input) { input.pressWithControl('o'); });
    nameFile("rubbish.ini");
    useWindow(mainWindow);
    m_walker.expect("message", true,
                    [] { return Onlooker::text(mainWindow, "message").contains("rubbish.ini"); });
    expectText(mainWindow, "Length", "1500");
    m_walker.takePicture("no-such-project");
    press("Ctrl+O", [](UserInput &input) { input.pressWithControl('o'); });
    nameFile("old.ini");
    useWindow(dialog);
    m_walker.click("Accept", [] { return Onlooker::position(dialog, "pushButton_accept"); });
    useWindow(mainWindow);
    m_walker.expect("message", true,
                    [] { return Onlooker::text(mainWindow, "message").contains("Lengths"); });
    expectNothingClipped();
    m_walker.takePicture("other-version");
}

void Road::end()
{
    press("Ctrl+Q", [](UserInput &input) { input.pressWithControl('q'); });
}

void Road::lookBack(const QString &logFile) const
{
    if (m_isTour)
        return;
    QFile log(logFile);
    QString lines;
    if (log.open(QIODevice::ReadOnly))
        lines = QString::fromUtf8(log.readAll());
    const Task task = tasksNamed(*m_registry, cantilever).value(0);
    const QStringList expected {
        MainWindow::tr("Started, version %1").arg(QCoreApplication::applicationVersion()),
        MainWindow::tr("Task: %1").arg(task.title()),
        MainWindow::tr("Calculated"),
        StudyDialog::tr("Study of %1: %2 of %3 points")
            .arg(task.parameters.value(0).name().second, "11", "11"),
        MainWindow::tr("Saved %1").arg(QFileInfo("beam.ini").absoluteFilePath()),
        MainWindow::tr("Exported %1").arg(QFileInfo("report.pdf").absoluteFilePath()),
        MainWindow::tr("Opened %1").arg(QFileInfo("old.ini").absoluteFilePath()),
        MainWindow::tr("Ended"),
    };
    for (const QString &line : expected) {
        if (!lines.contains(line))
            m_walker.fail("in the log " + line, lines);
    }
}

void Road::useWindow(const char *window)
{
    m_walker.expect(QString(window) + " is active", true,
                    [window] { return Onlooker::isActive(window); });
}

void Road::useMenu(const QString &firstAction, const QString &action)
{
    m_walker.click("menu of " + firstAction,
                   [firstAction] { return Onlooker::positionOfMenu(firstAction); });
    m_walker.click(action, [action] { return Onlooker::positionOfAction(action); });
}

void Road::pickEntry(const char *window, const QString &box, const QString &entry)
{
    m_walker.click(box, [window, box] { return Onlooker::position(window, box); });
    const auto position
        = [window, box, entry] { return Onlooker::positionOfEntry(window, box, entry); };
    m_walker.click(entry, position);
    m_walker.expect("picked", entry, [window, box] { return Onlooker::text(window, box); });
    m_walker.expect("list is open", false, [position] { return !position().isNull(); });
}

void Road::enter(const char *window, const QString &editor, const QString &text)
{
    m_walker.click(editor, [window, editor] { return Onlooker::position(window, editor); });
    m_walker.expect("has the focus", editor, [] { return Onlooker::focus(); });
    press("Ctrl+A", [](UserInput &input) { input.pressWithControl('a'); });
    m_walker.act("Types " + text, [this, text] {
        if (text.isEmpty())
            m_walker.input().pressBackspace();
        m_walker.input().type(text + '\t');
    });
    expectText(window, editor, text);
}

void Road::press(const QString &keys, const std::function<void(UserInput &)> &how)
{
    m_walker.act("Presses " + keys, [this, how] { how(m_walker.input()); });
}

void Road::nameFile(const QString &name)
{
    useWindow(fileDialog);
    press("Ctrl+A", [](UserInput &input) { input.pressWithControl('a'); });
    m_walker.act("Types " + name, [this, name] { m_walker.input().type(name + '\n'); });
    m_walker.expect("file dialog", false, [] { return Onlooker::window(fileDialog) != nullptr; });
}

void Road::expectNothingClipped()
{
    m_walker.expect("clipped", QString(), [] { return Onlooker::clippedTexts().join('\n'); });
}

void Road::expectTitle(const QString &taskId)
{
    m_walker.expect("title", true, [this, taskId] {
        const Task task = tasksNamed(*m_registry, taskId).value(0);
        return Onlooker::text(mainWindow, "title") == task.title();
    });
}

void Road::expectText(const char *window, const QString &widget, const QString &text)
{
    m_walker.expect(widget, text, [window, widget] {
        const QString shown = Onlooker::text(window, widget);
        return shown.isNull() ? QString("") : shown;
    });
}

QString Road::standardName(const QString &taskId) const
{
    const Task task = tasksNamed(*m_registry, taskId).value(0);
    return m_registry->stdModeNameForm(task.group.second, task.mode.second);
}
