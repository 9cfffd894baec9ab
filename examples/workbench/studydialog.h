// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef STUDYDIALOG_H
#define STUDYDIALOG_H

#include "task.h"

#include <QDialog>

#include <memory>

class AUTH_SET;

namespace Ui {
class StudyDialog;
}

/// Lets one parameter go through a range, and shows what becomes of the results and the curves.
class StudyDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param values those of the form, from which only the parameter differs
    StudyDialog(AUTH_SET *registry, const Task &task, const Values &values, QWidget *parent);
    ~StudyDialog() override;

Q_SIGNALS:
    /// A study has ended, or was canceled; @p summary says which.
    void ended(const QString &summary);

private Q_SLOTS:
    void recallRange();
    void run();
    void showCurves();
    void saveCsv();

private:
    void offerParameters();
    bool readRange();
    VParameter parameter() const;
    QString place() const;

    AUTH_SET *m_registry;
    Task m_task;
    Values m_values;
    QVector<Quantity> m_results;
    StudyRange m_range;
    QVector<StudyPoint> m_points;
    std::unique_ptr<Ui::StudyDialog> ui;
};

#endif
