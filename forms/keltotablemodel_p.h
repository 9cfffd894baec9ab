// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOTABLEMODEL_P_H
#define KELTOTABLEMODEL_P_H

#include "tablecells_p.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QLocale>
#include <QStringList>

/// The cells of a stored list. It keeps the elements as they are and takes one apart when it is
/// asked for, so that a long list costs no more than itself.
class KeltoTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// What is wrong with a cell or its row, in sentences.
    enum Role { ProblemRole = Qt::UserRole + 1 };

    KeltoTableModel(const TableCells &cells, QObject *parent);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    const TableCells &cells() const { return m_cells; }
    QStringList elements() const { return m_elements; }
    /// Rows that are the same at both ends stay, with what the views know about them.
    void setElements(const QStringList &elements);

    QLocale locale() const { return m_locale; }
    void setLocale(const QLocale &locale);
    /// The sentences on each row that something was found about.
    void setFindings(const QHash<int, QString> &findings);
    /// All texts may be different now.
    void retranslate();

Q_SIGNALS:
    /// setData() has changed an element.
    void cellEdited();
    /// setData() has not taken over a text, for this reason.
    void cellRefused(const QString &problem);

private:
    void replaceRows(const QStringList &elements);
    QString problem(const QModelIndex &index) const;
    QString heading(int column) const;

    TableCells m_cells;
    QStringList m_elements;
    int m_columns;
    QLocale m_locale;
    QHash<int, QString> m_findings;
};

#endif
