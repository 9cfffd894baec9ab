// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef RESULTTABLE_P_H
#define RESULTTABLE_P_H

#include "parameterrow_p.h"

#include <Kelto/KeltoItemHints>
#include <Kelto/VParameter>

#include <QCoreApplication>
#include <QLocale>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

/// The numbers or texts that one value consists of: two for a point, several for a row of a table.
using ResultCells = QVector<QVariant>;

/// A result with its values.
struct Result
{
    ParameterRow row;
    bool isList = false; ///< Any number of values; else there is one, or none.
    QVector<ResultCells> values;
};

/// Results as texts: for a person, for a spreadsheet and for a file.
class ResultTable
{
    Q_DECLARE_TR_FUNCTIONS(KeltoResultView)

public:
    ResultTable() = default;
    ResultTable(const QVector<VParameter> &results, const QVector<QPair<QString, QVariant>> &values,
                const KeltoItemHints &hints);

    /// Results of one sub-group stand together.
    const QVector<Result> &results() const { return m_results; }
    QString name(const Result &result) const { return result.row.name(m_hints); }
    QString group(const Result &result) const { return result.row.group(m_hints); }
    QString help(const Result &result) const { return m_hints.help(result.row.key); }
    QString unit(const Result &result) const;

    /// How many values a list has.
    QString countText(const Result &result) const;
    /// One value, rounded, and with all digits that it has.
    QString shown(const Result &result, const ResultCells &value) const;
    QString exact(const Result &result, const ResultCells &value) const;

    /// The results at @p positions, for a person.
    QString text(const QVector<int> &positions) const;
    /// A row per value: sub-group, name, symbol, unit, and the cells of the value.
    QVector<QStringList> cells(const QVector<int> &positions, const QLocale &locale) const;
    /// All of it as CSV, in the C locale.
    QString csv() const;

    int significantDigits = 6;
    QLocale locale;

private:
    QStringList lines(const Result &result) const;
    QString shownCell(const Result &result, const QVariant &cell) const;

    QVector<Result> m_results;
    KeltoItemHints m_hints;
};

#endif
