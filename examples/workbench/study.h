// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef STUDY_H
#define STUDY_H

#include "task.h"

#include <functional>

/// One parameter that goes through a range in equal steps.
struct StudyRange
{
    VParameter parameter;
    double from = 0;
    double to = 0;
    int steps = 1;
};

struct StudyPoint
{
    double value = 0;
    /// Without results where the value is refused.
    Outcome<Computation> outcome;
};

/// Computes @p task with @p values at both ends of the range and at each step between them. Ends
/// early when @p goOn, which gets the number of points that are done, returns false.
QVector<StudyPoint> study(const Task &task, const Values &values, const StudyRange &range,
                          const std::function<bool(int)> &goOn);

/// Each result with one value over the parameter.
QVector<Curve> resultCurves(const Task &task, const StudyRange &range,
                            const QVector<StudyPoint> &points);

/// The curves of up to @p count of the points, named after their value of the parameter.
QVector<Curve> familyOfCurves(const StudyRange &range, const QVector<StudyPoint> &points,
                              int count);

/// A table of comma-separated values: one row for each point, one column for the parameter, for
/// each result, and for what is wrong.
QString studyAsCsv(const Task &task, const StudyRange &range, const QVector<StudyPoint> &points);

#endif
