// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef STUDY_H
#define STUDY_H

#include "curve.h"

#include <QVariant>

#include <functional>

// A quantity that goes through a range, with what a calculation gives for it.

/// From one value to another in equal steps.
struct StudyRange
{
    Quantity quantity;
    QString symbol;
    double from = 0;
    double to = 0;
    int steps = 1;
};

struct StudyPoint
{
    double value = 0;
    /// One for each quantity that is computed: a number, or a list of texts with one number each.
    /// Invalid where the value is refused.
    QVector<QVariant> results;
    QVector<Curve> curves;
    /// Why there are no results.
    QString problem;
};

/// The points at both ends of the range and at each step between them. Ends early when @p goOn,
/// which gets the number of points that are done, returns false.
QVector<StudyPoint> study(const StudyRange &range,
                          const std::function<StudyPoint(double)> &computedAt,
                          const std::function<bool(int)> &goOn);

/// Each of the results @p computed with one number over the quantity.
QVector<Curve> resultCurves(const StudyRange &range, const QVector<Quantity> &computed,
                            const QVector<StudyPoint> &points);

/// The curves of up to @p count of the points, named after their value of the quantity.
QVector<Curve> familyOfCurves(const StudyRange &range, const QVector<StudyPoint> &points,
                              int count);

/// A table of comma-separated values: one row for each point, one column for the quantity, for
/// each result, and for what is wrong.
QString studyAsCsv(const StudyRange &range, const QVector<Quantity> &computed,
                   const QVector<StudyPoint> &points);

#endif
