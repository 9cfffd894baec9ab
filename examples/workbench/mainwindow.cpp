// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "ui_mainwindow.h"

#include "modules.h"
#include "report.h"
#include "studydialog.h"

#include <Kelto/AUTH_SET>
#include <Kelto/Forms/KeltoParameterModel>
#include <Kelto/UTaskSelectDialog>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLocale>
#include <QMessageBox>
#include <QRegularExpression>
#include <QStyle>
#include <QTime>
#include <QUndoStack>

namespace {

// Keys of the set values, which the registry keeps for the next run.
const char *const lastTask = "Task/Last";
const char *const recentProjects = "Project/Recent";
const char *const geometryKey = "Window/Geometry";
const char *const layoutKey = "Window/Layout";
const char *const languageKey = "Window/Language";

const int recentCount = 8;

} // namespace

MainWindow::MainWindow(AUTH_SET *registry, const QVector<AUTH_INF> &modules,
                       const QString &language)
    : m_registry(registry)
    , m_modules(modules)
    , ui(std::make_unique<Ui::MainWindow>())
{
    ui->setupUi(this);
    // What Qt Designer cannot say.
    ui->newProject->setIcon(style()->standardIcon(QStyle::SP_FileIcon));
    ui->open->setIcon(style()->standardIcon(QStyle::SP_DialogOpenButton));
    ui->save->setIcon(style()->standardIcon(QStyle::SP_DialogSaveButton));
    ui->calculate->setIcon(style()->standardIcon(QStyle::SP_DialogApplyButton));
    ui->study->setIcon(style()->standardIcon(QStyle::SP_FileDialogDetailedView));
    ui->message->setBackgroundRole(QPalette::ToolTipBase);
    ui->message->setForegroundRole(QPalette::ToolTipText);
    ui->sheet->setSizes({ 4500, 5500 });
    ui->resultsAndPlots->setSizes({ 4500, 5500 });
    ui->log->toggleViewAction()->setObjectName("showLog");
    ui->viewMenu->addAction(ui->log->toggleViewAction());
    ui->statusBar->addPermanentWidget(ui->place);
    connect(ui->languages, &QActionGroup::triggered, this, [this](const QAction *action) {
        m_registry->setValueInSet(languageKey, action->objectName());
        setLanguage(action->objectName());
    });
    restoreGeometry(m_registry->value_set(geometryKey).toByteArray());
    restoreState(m_registry->value_set(layoutKey).toByteArray());

    showTask({}, false);
    setLanguage(language);
    for (const AUTH_INF &module : modules) {
        const auto problems = KeltoItemHints(module).problems();
        for (const auto &problem : problems)
            log(module.name + ": " + problem.text());
    }
}

MainWindow::~MainWindow() = default;

void MainWindow::begin(const QString &task, const QString &project)
{
    log(tr("Started, version %1").arg(QCoreApplication::applicationVersion()));
    show();
    if (!task.isEmpty())
        startProject(tasksNamed(*m_registry, task).value(0));
    else if (project.isEmpty())
        newProject();
    if (!project.isEmpty())
        openProject(project);
}

// --- Projects --------------------------------------------------------------------

void MainWindow::newProject()
{
    if (!mayGoOn())
        return;
    const auto last = tasksNamed(*m_registry, m_registry->value_set(lastTask).toString());
    const Task task = confirmedTask(last.value(0));
    if (!task.isNull())
        startProject(task);
}

void MainWindow::startProject(const Task &task)
{
    m_project = {};
    showTask(task, false);
}

void MainWindow::openProject(const QString &path)
{
    if (!mayGoOn())
        return;
    Project project = m_project;
    const QString problem = Project::open(path, &project);
    if (!problem.isEmpty())
        return tell(problem);
    const auto tasks = tasksNamed(*m_registry, project.task());
    const Task task = confirmedTask(tasks.value(0));
    if (task.isNull())
        return;
    m_project = project;
    showTask(task, true);
    log(tr("Opened %1").arg(m_project.path()));
    QStringList sentences = m_project.differences(*m_registry, task);
    if (tasks.isEmpty())
        sentences.prepend(
            tr("The project is for the task \"%1\", which is not on offer.").arg(m_project.task()));
    for (const QString &sentence : qAsConst(sentences))
        log(sentence);
    // The message goes with the next step. The log stays until the user closes it.
    ui->log->setVisible(ui->log->isVisible() || !sentences.isEmpty());
    tell(sentences.join('\n'));
    remember();
}

void MainWindow::chooseProject()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open project"), m_project.path(),
                                                      tr("Projects (*.ini)"));
    if (!path.isEmpty())
        openProject(path);
}

bool MainWindow::save()
{
    return m_project.path().isEmpty() ? saveAs() : saveTo(m_project.path());
}

bool MainWindow::saveAs()
{
    const QString name
        = m_project.path().isEmpty() ? m_task.module.codeFunctionName + ".ini" : m_project.path();
    const QString path
        = QFileDialog::getSaveFileName(this, tr("Save project"), name, tr("Projects (*.ini)"));
    return !path.isEmpty() && saveTo(path);
}

bool MainWindow::saveTo(const QString &path)
{
    m_project.setTask(m_task, m_model->enteredValues(), m_registry->value_group(m_task.id()));
    const QString problem = m_project.save(path);
    if (!problem.isEmpty()) {
        tell(problem);
        return QMessageBox::question(this, tr("Save project"),
                                     problem + '\n' + tr("Save the project in another place?"))
            == QMessageBox::Yes
            && saveAs();
    }
    remember();
    m_model->undoStack()->setClean();
    retranslate();
    log(tr("Saved %1").arg(m_project.path()));
    return true;
}

/// Puts the project on top of the recent ones.
void MainWindow::remember()
{
    QStringList recent = m_registry->value_set(recentProjects).toStringList();
    recent.removeAll(m_project.path());
    recent.prepend(m_project.path());
    m_registry->setValueInSet(recentProjects, QStringList(recent.mid(0, recentCount)));
}

/// Whether nothing would be lost, or the user wants it so.
bool MainWindow::mayGoOn()
{
    if (!isWindowModified())
        return true;
    const auto answer
        = QMessageBox::question(this, tr("Save project"),
                                tr("The project has changes that are not saved."),
                                QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                                QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void MainWindow::offerRecent()
{
    ui->recent->clear();
    const QStringList recent = m_registry->value_set(recentProjects).toStringList();
    for (const QString &path : recent)
        ui->recent
            ->addAction(QDir::toNativeSeparators(path).replace('&', "&&"), this,
                        [this, path] { openProject(path); })
            ->setEnabled(QFile::exists(path));
}

// --- Tasks -----------------------------------------------------------------------

/// The task that the user accepts in Kelto's dialog; a null task when none.
Task MainWindow::confirmedTask(const Task &preselected)
{
    selectTask(*m_registry, preselected);
    UTaskSelectDialog dialog;
    dialog.setWindowTitle(tr("Confirm task"));
    // Offers every mode of every exclusive group, with the selected one preselected.
    dialog.set(m_registry);
    // Waits until the dialog has closed. Afterwards the registry holds what the user accepted.
    dialog.show();
    if (dialog.operateIndex != 0) { // neither "Accept" nor "Default"
        selectTask(*m_registry, m_task);
        return {};
    }
    // The dialog knows names only: modes of several modules may have one name.
    const QVector<Task> tasks = tasksNamed(*m_registry,
                                           m_registry->stdModeNameForm(m_registry->current_group,
                                                                       m_registry->current_mode));
    if (tasks.size() < 2)
        return tasks.value(0);
    QStringList modules;
    for (const Task &task : tasks)
        modules.append(task.module.name_tr);
    return tasks.value(
        modules.indexOf(QInputDialog::getItem(this, tr("Confirm task"),
                                              tr("Several modules have this task. Which one?"),
                                              modules, 0, false)));
}

void MainWindow::chooseTask()
{
    const Task task = confirmedTask(m_task);
    if (task.isNull() || task.id() == m_task.id())
        return;
    // What was entered is kept for other tasks with the same parameters.
    m_project.setTask(m_task, m_model->enteredValues(), m_registry->value_group(m_task.id()));
    showTask(task, false);
    m_model->undoStack()->resetClean();
}

/// Shows @p task with the values of the project: as they were saved for it, or in place of its
/// defaults.
void MainWindow::showTask(const Task &task, bool isSaved)
{
    m_task = task;
    selectTask(*m_registry, task);
    auto model = std::make_unique<KeltoParameterModel>(m_registry, task.group.first, task.position);
    const Values defaults = model->enteredValues(); // with which a model starts
    m_registry->setDefaultSettings(task.id(), defaults);
    model->setValues(isSaved ? m_project.values(task) : m_project.startValues(task, defaults));
    connect(model->undoStack(), &QUndoStack::cleanChanged, this,
            [this](bool isClean) { setWindowModified(!isClean); });
    ui->form->setModel(model.get());
    m_model = std::move(model);
    ui->sheet->setVisible(!task.isNull());
    ui->needTask->setEnabled(!task.isNull());
    m_computation = {};
    setWindowModified(false);
    retranslate();
    if (task.isNull())
        return;
    m_registry->setValueInSet(lastTask, task.id());
    log(tr("Task: %1").arg(task.title()));
}

void MainWindow::takeEdit()
{
    m_computation = {};
    showResults();
    tell({});
}

// --- Results ---------------------------------------------------------------------

/// Whether there are results.
bool MainWindow::calculate()
{
    m_computation = {};
    const auto findings = ui->form->findings();
    if (!findings.isEmpty()) {
        showResults();
        ui->form->focusParameter(findings.first().valueKey.section('/', 1));
        tell(findings.first().text());
        return false;
    }
    // From here on the registry holds the input for every part of the program.
    Values values = ui->form->values();
    m_registry->getCalculationLData(values);
    for (auto &value : values)
        value.second = m_registry->value_cal(value.first);
    const auto outcome = Calculator::calculate(m_task.module, m_task.mode.first, values);
    m_computation = outcome.result;
    showResults();
    tell(outcome.problem);
    log(outcome.isValid() ? tr("Calculated") : tr("Not calculated. %1").arg(outcome.problem));
    return outcome.isValid();
}

void MainWindow::showResults()
{
    ui->results->setResults(m_computation.results.isEmpty() ? QVector<VParameter>()
                                                            : m_task.results,
                            m_computation.results, m_task.hints);
    ui->plots->setCurves(m_computation.curves);
    ui->output->setCurrentIndex(m_computation.results.isEmpty() ? 0 : 1);
}

void MainWindow::studyParameter()
{
    if (!calculate())
        return;
    StudyDialog dialog(m_registry, m_task, ui->form->values(), this);
    connect(&dialog, &StudyDialog::ended, this, &MainWindow::log);
    dialog.exec();
}

void MainWindow::exportReport()
{
    if (!calculate())
        return;
    const QString path = QFileDialog::getSaveFileName(this, tr("Export report"), "report.pdf",
                                                      tr("Documents (*.pdf)"));
    if (path.isEmpty())
        return;
    const Report report { m_project.path(), m_task, ui->form->values(), m_computation };
    if (!report.save(path))
        return tell(tr("\"%1\" cannot be written.").arg(QDir::toNativeSeparators(path)));
    log(tr("Exported %1").arg(path));
}

// --- Window ----------------------------------------------------------------------

/// Texts are in Chinese or in English, numbers and dates in any language.
void MainWindow::setLanguage(const QString &name)
{
    useLanguage(QLocale(name), m_registry, m_modules);
    ui->zh_CN->setChecked(QLocale(name).name() == ui->zh_CN->objectName());
    ui->en->setChecked(!ui->zh_CN->isChecked());
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        m_task = taskAt(*m_registry, m_task.group.first, m_task.position);
        selectTask(*m_registry, m_task);
        retranslate();
    }
}

void MainWindow::retranslate()
{
    ui->title->setText(m_task.isNull() ? tr("No project") : m_task.title());
    ui->description->setText(m_task.module.description + '\n' + m_task.description);
    ui->description->setVisible(!m_task.isNull());
    tell(m_task.isNull() ? tr("Begin a new project, or open one.") : QString());
    showResults();
    const QString name
        = m_project.path().isEmpty() ? tr("New project") : QFileInfo(m_project.path()).fileName();
    setWindowTitle(QString("%1[*] - %2").arg(name, QCoreApplication::applicationName()));
    ui->place->setText(QDir::toNativeSeparators(m_project.path()));
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!mayGoOn())
        return event->ignore();
    m_registry->setValueInSet(geometryKey, saveGeometry());
    m_registry->setValueInSet(layoutKey, saveState());
    log(tr("Ended"));
    QMainWindow::closeEvent(event);
}

/// Says something in the window until the next step; nothing to take it away.
void MainWindow::tell(const QString &message)
{
    ui->message->setText(message);
    ui->message->setVisible(!message.isEmpty());
}

void MainWindow::log(QString line)
{
    // What files hold shall not begin another line.
    static const QRegularExpression controls("\\p{Cc}+");
    line.replace(controls, " ");
    m_registry->log(line);
    ui->statusBar->showMessage(line, 5000);
    ui->logText->appendPlainText(QTime::currentTime().toString(Qt::ISODate) + ' ' + line);
}
