// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "study.h"

#include "modules.h"

#include <Kelto/KeltoItemFinding>
#include <Kelto/KeltoItemParameterVerify>

#include <algorithm>

namespace {

Outcome<Computation> computation(const Task &task, const Values &values)
{
    const auto findings = KeltoItemParameterVerify::explain(&task.module, &values, task.mode.first);
    return findings.isEmpty() ? Calculator::calculate(task.module, task.mode.first, values)
                              : Outcome<Computation> { {}, findings.first().text() };
}

/// What has a unit of its own, without a key from which to take one.
Quantity quantityOf(const VParameter &parameter)
{
    Quantity quantity;
    quantity.name = parameter.name().first;
    quantity.unit = parameter.unit().first;
    return quantity;
}

QString quoted(QString text)
{
    return text.isEmpty() ? text : '"' + text.replace('"', "\"\"") + '"';
}

QString heading(const VParameter &parameter)
{
    return quoted(withUnit(parameter.name().second, parameter.unit().first));
}

} // namespace

QVector<StudyPoint> study(const Task &task, const Values &values, const StudyRange &range,
                          const std::function<bool(int)> &goOn)
{
    QVector<StudyPoint> points;
    Values changed = values;
    const auto entry = std::find_if(changed.begin(), changed.end(), [&](const auto &value) {
        return value.first == attributeGroup + range.parameter.name().first;
    });
    if (entry == changed.end())
        return points;
    for (int i = 0; i <= range.steps; ++i) {
        // The last point is the end itself, without the rounding of the steps.
        const double value
            = i == range.steps ? range.to : range.from + (range.to - range.from) * i / range.steps;
        entry->second = QVariant(value).toString(); // all digits, in no language
        points.append({ value, computation(task, changed) });
        if (!goOn(points.size()))
            break;
    }
    return points;
}

QVector<Curve> resultCurves(const Task &task, const StudyRange &range,
                            const QVector<StudyPoint> &points)
{
    QVector<Curve> curves;
    for (const VParameter &result : task.results) {
        if (result.isMulti())
            continue;
        const QString name = result.name().first;
        Curve curve { name, quantityOf(range.parameter), quantityOf(result), {} };
        for (const StudyPoint &point : points) {
            if (point.outcome.isValid())
                curve.points.append(
                    { point.value,
                      valueOf(point.outcome.result.results, attributeGroup + name).toDouble() });
        }
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
        for (const Curve &member : point.outcome.result.curves) {
            Curve curve = member;
            const QString value = QString("%1 = %L2 %3")
                                      .arg(range.parameter.symbol())
                                      .arg(point.value)
                                      .arg(range.parameter.unit().first);
            curve.name = curve.name == curve.y.name
                ? value
                : ModuleTexts::tr(curve.name.toUtf8().constData()) + ", " + value;
            curves.append(curve);
        }
    }
    return curves;
}

QString studyAsCsv(const Task &task, const StudyRange &range, const QVector<StudyPoint> &points)
{
    QStringList row { heading(range.parameter) };
    for (const VParameter &result : task.results)
        row.append(heading(result));
    QString text = row.join(',') + ",\n";
    for (const StudyPoint &point : points) {
        row = QStringList { QVariant(point.value).toString() };
        for (const VParameter &result : task.results) {
            const QVariant value
                = valueOf(point.outcome.result.results, attributeGroup + result.name().first);
            row.append(result.isMulti() ? quoted(value.toStringList().join("; "))
                                        : value.toString());
        }
        text += row.join(',') + ',' + quoted(point.outcome.problem) + '\n';
    }
    return text;
}
