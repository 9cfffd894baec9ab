// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "project.h"

#include <QMainWindow>

#include <memory>

class AUTH_SET;
class KeltoParameterModel;

namespace Ui {
class MainWindow;
}

/// Shows a project: its task, the form to fill in, and what was computed from it. Which menus and
/// actions there are, and what they call, says mainwindow.ui.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param registry has to outlive the window.
    /// @param modules those of the registry, as their files have them
    MainWindow(AUTH_SET *registry, const QVector<AUTH_INF> &modules, const QString &language);
    ~MainWindow() override;

    /// Shows the window with the task of this name, or asks for one where neither a task nor a
    /// project is named, and opens the project.
    void begin(const QString &task, const QString &project);
    /// Begins a new project without asking for its task.
    void startProject(const Task &task);
    /// Opens the project at @p path and lets the user confirm its task. What cannot be opened is
    /// said in the window, and the project in it stays.
    void openProject(const QString &path);

public Q_SLOTS:
    /// Lets the user choose a task for a new project.
    void newProject();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private Q_SLOTS:
    void chooseProject();
    bool save();
    bool saveAs();
    void offerRecent();
    void chooseTask();
    void takeEdit();
    bool calculate();
    void studyParameter();
    void exportReport();

private:
    bool saveTo(const QString &path);
    void remember();
    bool mayGoOn();
    Task confirmedTask(const Task &preselected);
    void showTask(const Task &task, bool isSaved);
    void showResults();
    void setLanguage(const QString &name);
    void retranslate();
    void tell(const QString &message);
    void log(QString line);

    AUTH_SET *m_registry;
    QVector<AUTH_INF> m_modules;
    Project m_project;
    Task m_task;
    Computation m_computation;
    std::unique_ptr<KeltoParameterModel> m_model;
    std::unique_ptr<Ui::MainWindow> ui;
};

#endif
