// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef REPORT_H
#define REPORT_H

#include "task.h"

#include <QCoreApplication>

/// What a report tells.
class Report
{
    Q_DECLARE_TR_FUNCTIONS(Report)

public:
    QString project;
    Task task;
    Values values;
    Computation computation;

    /// Writes a PDF of one page: the task, its assumptions, the input, the results, and below these
    /// the plots. Text that needs more than its share of the page is made smaller.
    /// @return whether it was written; a file that cannot be stays as it was
    bool save(const QString &path) const;

private:
    QString html() const;
};

#endif
