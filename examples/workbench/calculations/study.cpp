// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "study.h"

#include <algorithm>

namespace {

QString quoted(QString text)
{
    return text.isEmpty() ? text
                          : '"' + text.replace(QLatin1Char('"'), QLatin1String("\"\"")) + '"';
}

} // namespace

QVector<StudyPoint> study(const StudyRange &range,
                          const std::function<StudyPoint(double)> &computedAt,
                          const std::function<bool(int)> &goOn)
{
    QVector<StudyPoint> points;
    for (int i = 0; i <= range.steps; ++i) {
        // The last point is the end itself, without the rounding of the steps.
        points.append(computedAt(
            i == range.steps ? range.to : range.from + (range.to - range.from) * i / range.steps));
        if (!goOn(points.size()))
            break;
    }
    return points;
}

QVector<Curve> resultCurves(const StudyRange &range, const QVector<Quantity> &computed,
                            const QVector<StudyPoint> &points)
{
    QVector<Curve> curves;
    for (int i = 0; i < computed.size(); ++i) {
        Curve curve { computed.at(i).name, range.quantity, computed.at(i), {} };
        for (const StudyPoint &point : points) {
            const QVariant result = point.results.value(i);
            if (result.type() == QVariant::Double)
                curve.points.append({ point.value, result.toDouble() });
        }
        if (!curve.points.isEmpty())
            curves.append(curve);
    }
    return curves;
}

QVector<Curve> familyOfCurves(const StudyRange &range, const QVector<StudyPoint> &points, int count)
{
    QVector<Curve> curves;
    const int members = std::min(count, points.size());
    for (int i = 0; i < members; ++i) {
        // Evenly spread, with both ends.
        const StudyPoint &point = points.at(i * (points.size() - 1) / std::max(members - 1, 1));
        const QString value
            = QString("%1 = %L2 %3").arg(range.symbol).arg(point.value).arg(range.quantity.unit);
        for (const Curve &member : point.curves) {
            Curve curve = member;
            curve.name = curve.name == curve.y.name ? value : translated(curve.name) + ", " + value;
            curves.append(curve);
        }
    }
    return curves;
}

QString studyAsCsv(const StudyRange &range, const QVector<Quantity> &computed,
                   const QVector<StudyPoint> &points)
{
    QStringList row { quoted(heading(range.quantity)) };
    for (const Quantity &quantity : computed)
        row.append(quoted(heading(quantity)));
    QString text = row.join(',') + ",\n";
    for (const StudyPoint &point : points) {
        row = QStringList { QVariant(point.value).toString() };
        for (int i = 0; i < computed.size(); ++i) {
            const QVariant result = point.results.value(i);
            row.append(result.type() == QVariant::StringList
                           ? quoted(result.toStringList().join("; "))
                           : result.toString());
        }
        text += row.join(',') + ',' + quoted(point.problem) + '\n';
    }
    return text;
}
