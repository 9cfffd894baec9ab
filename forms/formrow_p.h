// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FORMROW_P_H
#define FORMROW_P_H

#include "editors/valueeditor_p.h"

#include <QModelIndex>
#include <QString>
#include <QVector>

#include <memory>

class FindingMark;
class QGridLayout;
class QLabel;

/// A row of the form: name and symbol, editor, unit, and what is wrong.
class FormRow
{
public:
    /// Puts the row into @p grid as the row @p position. The widgets belong to that of the grid.
    FormRow(const QModelIndex &index, EditorListener *listener, QGridLayout *grid, int position);

    QWidget *field() const { return m_editor->field(); }
    /// All that Tab goes through, in order.
    QVector<QWidget *> tabStops() const;
    /// How much room name and symbol take, and the unit.
    int labelWidth() const;
    int unitWidth() const;
    /// Gives the columns of @p grid the widths that those of other grids have as well.
    static void alignColumns(QGridLayout *grid, int labelWidth, int unitWidth);

    /// Shows value and texts that the model has now.
    void show(const QModelIndex &index);
    void showFindings(const QModelIndex &index, const QVector<KeltoItemFinding> &findings);

    bool isVisible() const { return m_isVisible; }
    void setVisible(bool visible);

private:
    void showUnit(const QString &unit);
    void showDescription(const QModelIndex &index);
    void showMark(const QVector<KeltoItemFinding> &findings);

    QGridLayout *m_grid;
    int m_gridRow;
    /// A table takes the room of unit and mark as well: these stand beside its name and below it.
    bool m_isWide;
    std::unique_ptr<ValueEditor> m_editor;
    QLabel *m_label;
    /// Only where there is one.
    QLabel *m_unit = nullptr;
    FindingMark *m_mark = nullptr;
    QString m_finding;
    bool m_isFindingShown = false;
    bool m_isMarkBelow = false;
    bool m_isVisible = true;
};

#endif
