// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "calculator.h"
#include "task.h"

#include <QMainWindow>
#include <QMap>

class AUTH_SET;
class QLabel;
class QPushButton;
class QTableWidget;

/// Shows the chosen task: its description, a table of parameters to fill in, and the results, which
/// are computed anew whenever a value changes.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param registry has to outlive the window.
    explicit MainWindow(AUTH_SET *registry);

    /// Lets the user choose a task in Kelto's dialog; after "Cancel" everything stays as it was.
    void chooseTask();

    /// Shows the task that is selected in the registry, and remembers it.
    void showCurrentTask();

private:
    void createMenu();
    void createWidgets();
    void showTask();
    void fillParameters();
    void takeValue(int row);
    void recalculate();
    Outcome<Values> enteredValues() const;
    Values valuesInRegistry() const;
    void showResults(const Values &results);
    void showProblem(const QString &problem);

    AUTH_SET *m_registry;
    Task m_task;
    /// What the user typed, by parameter key; kept when another task is chosen.
    QMap<QString, QString> m_enteredTexts;
    QLabel *m_title = nullptr;
    QLabel *m_description = nullptr;
    QPushButton *m_chooseTask = nullptr;
    /// Everything about a task below its description; hidden without a task.
    QWidget *m_sheet = nullptr;
    QTableWidget *m_parameters = nullptr;
    QTableWidget *m_results = nullptr;
    QLabel *m_message = nullptr;
};

#endif
