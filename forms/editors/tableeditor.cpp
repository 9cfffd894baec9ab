// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "editors/tableeditor_p.h"

#include "keltoparametermodel.h"
#include "keltotableeditor_p.h"
#include "tablecells_p.h"

namespace {

const KeltoParameterModel &modelOf(const QModelIndex &index)
{
    return *static_cast<const KeltoParameterModel *>(index.model());
}

} // namespace

TableEditor::TableEditor(EditorListener *listener, const QModelIndex &index, QWidget *parent)
    : ValueEditor(listener, index.row())
{
    const TableShape shape
        = tableShapeOf(modelOf(index).parameter(index.row()).parameterObjectName());
    m_table = new KeltoTableEditor(shape.columns, shape.cells, parent);
    QObject::connect(m_table, &KeltoTableEditor::edited, m_table,
                     [this] { this->listener()->choose(row(), m_table->value()); });
}

QWidget *TableEditor::widget()
{
    return m_table;
}

void TableEditor::show(const QModelIndex &index)
{
    m_table->setLocale(modelOf(index).locale());
    const QStringList value = index.data(KeltoParameterModel::TextRole).toStringList();
    if (value != m_table->value())
        m_table->setValue(value);
}

void TableEditor::mark(const QVector<KeltoItemFinding> &findings)
{
    m_table->setFindings(findings);
}
