// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "editors/tableeditor_p.h"

#include "keltoparametermodel.h"
#include "keltotableeditor_p.h"

namespace {

struct Shape
{
    int columns;
    KeltoParameterModel::Kind cells;
};

Shape shapeOf(const QString &objectName)
{
    if (objectName == QLatin1String("QVector<float>")
        || objectName == QLatin1String("QVector<double>"))
        return { 1, KeltoParameterModel::Number };
    if (objectName == QLatin1String("QVector<int>"))
        return { 1, KeltoParameterModel::WholeNumber };
    if (objectName == QLatin1String("QVector<QPointF>"))
        return { 2, KeltoParameterModel::Number };
    if (objectName == QLatin1String("QVector<QPoint>"))
        return { 2, KeltoParameterModel::WholeNumber };
    return { objectName == QLatin1String("QVector<QStringList>") ? 0 : 1,
             KeltoParameterModel::Text };
}

const KeltoParameterModel &modelOf(const QModelIndex &index)
{
    return *static_cast<const KeltoParameterModel *>(index.model());
}

} // namespace

TableEditor::TableEditor(EditorListener *listener, const QModelIndex &index, QWidget *parent)
    : ValueEditor(listener, index.row())
{
    const Shape shape
        = shapeOf(modelOf(index).parameter(index.row()).parameterObjectName());
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
    const QStringList value = index.data(KeltoParameterModel::ValueRole).toStringList();
    if (value != m_table->value())
        m_table->setValue(value);
}
