// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltotablemodel_p.h"

#include "tooltiptext_p.h"

#include <QApplication>
#include <QIcon>
#include <QStyle>

#include <algorithm>

namespace {

QVariant markFor(const QString &problem)
{
    return problem.isEmpty() ? QVariant()
                             : QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
}

} // namespace

KeltoTableModel::KeltoTableModel(const TableCells &cells, QObject *parent)
    : QAbstractTableModel(parent)
    , m_cells(cells)
    , m_columns(cells.columnCount(QStringList()))
{
    setLocale(QLocale());
}

int KeltoTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_elements.size();
}

int KeltoTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

QVariant KeltoTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    const QString &element = m_elements.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return m_cells.shown(m_cells.split(element).value(index.column()), m_locale);
    case Qt::TextAlignmentRole:
        return int((m_cells.isOfNumbers() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::DecorationRole:
        return markFor(m_cells.problem(element, index.column()));
    case Qt::ToolTipRole:
        return toolTipText(problem(index));
    case ProblemRole:
    case Qt::AccessibleDescriptionRole:
        return problem(index);
    default:
        return QVariant();
    }
}

bool KeltoTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    const QString cell = m_cells.stored(value.toString(), m_locale);
    // A text that is no number is kept; one that would be several cells is not.
    if (!m_cells.isOneCell(cell)) {
        Q_EMIT cellRefused(m_cells.problem(cell));
        return false;
    }
    QString &element = m_elements[index.row()];
    if (m_cells.split(element).value(index.column()) == cell)
        return true;
    element = m_cells.withCell(element, index.column(), cell);
    Q_EMIT dataChanged(index, index);
    Q_EMIT cellEdited();
    return true;
}

QVariant KeltoTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isRow = orientation == Qt::Vertical;
    const QString finding = isRow ? m_findings.value(section) : QString();
    switch (role) {
    case Qt::DisplayRole:
        return isRow ? m_locale.toString(section + 1) : heading(section);
    case Qt::ToolTipRole:
        return toolTipText(finding);
    case Qt::AccessibleDescriptionRole:
        return finding;
    case Qt::DecorationRole:
        return markFor(finding);
    default:
        return QVariant();
    }
}

Qt::ItemFlags KeltoTableModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsEditable | Qt::ItemNeverHasChildren : flags;
}

void KeltoTableModel::setElements(const QStringList &elements)
{
    const int columns = m_cells.columnCount(elements);
    if (columns > m_columns) {
        beginInsertColumns(QModelIndex(), m_columns, columns - 1);
        m_columns = columns;
        endInsertColumns();
    }
    replaceRows(elements);
    if (columns < m_columns) {
        beginRemoveColumns(QModelIndex(), columns, m_columns - 1);
        m_columns = columns;
        endRemoveColumns();
    }
}

void KeltoTableModel::replaceRows(const QStringList &elements)
{
    const int least = qMin(elements.size(), m_elements.size());
    const auto end = m_elements.cbegin() + least;
    const int same = int(std::mismatch(m_elements.cbegin(), end, elements.cbegin()).first
                         - m_elements.cbegin());
    int sameAtEnd = 0;
    while (sameAtEnd < least - same
           && m_elements.at(m_elements.size() - 1 - sameAtEnd)
               == elements.at(elements.size() - 1 - sameAtEnd))
        ++sameAtEnd;
    const int changedEnd = least - sameAtEnd;
    for (int row = same; row < changedEnd; ++row)
        m_elements[row] = elements.at(row);
    if (changedEnd > same)
        Q_EMIT dataChanged(index(same, 0), index(changedEnd - 1, m_columns - 1));
    if (elements.size() > m_elements.size()) {
        beginInsertRows(QModelIndex(), changedEnd, elements.size() - sameAtEnd - 1);
        m_elements = elements;
        endInsertRows();
    } else if (elements.size() < m_elements.size()) {
        beginRemoveRows(QModelIndex(), changedEnd, m_elements.size() - sameAtEnd - 1);
        m_elements = elements;
        endRemoveRows();
    }
}

void KeltoTableModel::setLocale(const QLocale &locale)
{
    m_locale = locale;
    m_locale.setNumberOptions(QLocale::OmitGroupSeparator);
    retranslate();
}

void KeltoTableModel::setFindings(const QHash<int, QString> &findings)
{
    if (findings == m_findings)
        return;
    m_findings = findings;
    retranslate();
}

void KeltoTableModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, m_columns - 1);
    if (m_elements.isEmpty())
        return;
    Q_EMIT headerDataChanged(Qt::Vertical, 0, m_elements.size() - 1);
    Q_EMIT dataChanged(index(0, 0), index(m_elements.size() - 1, m_columns - 1));
}

QString KeltoTableModel::problem(const QModelIndex &index) const
{
    const QString found = m_cells.problem(m_elements.at(index.row()), index.column());
    return found.isEmpty() ? m_findings.value(index.row()) : found;
}

QString KeltoTableModel::heading(int column) const
{
    if (m_cells.isFree())
        return m_locale.toString(column + 1);
    if (m_columns == 1)
        return TableCells::tr("Value");
    return column == 0 ? TableCells::tr("x") : TableCells::tr("y");
}
