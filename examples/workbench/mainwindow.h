// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "project.h"

#include <QMainWindow>

#include <memory>

class AUTH_SET;
class KeltoParameterModel;
class QPrinter;

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
    MainWindow(AUTH_SET *registry, const QVector<AUTH_INF> &modules);
    ~MainWindow() override;

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
    void printReport();
    void about();

private:
    bool saveTo(const QString &path);
    void remember();
    bool mayGoOn();
    Task confirmedTask(const Task &preselected);
    void showTask(const Task &task, const Values &values);
    void showResults();
    void makeReport(QPrinter *printer, const QString &place);
    void setLanguage(const QString &name);
    void retranslate();
    void updateTitle();
    void tell(const QString &message);
    void log(const QString &line);
    void showLog();

    AUTH_SET *m_registry;
    QVector<AUTH_INF> m_modules;
    Project m_project;
    Task m_task;
    Computation m_computation;
    KeltoParameterModel *m_model = nullptr;
    std::unique_ptr<Ui::MainWindow> ui;
};

#endif
