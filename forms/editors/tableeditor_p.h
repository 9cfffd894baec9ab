// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TABLEEDITOR_P_H
#define TABLEEDITOR_P_H

#include "editors/valueeditor_p.h"

class KeltoTableEditor;

/// Edits several values in a table.
class TableEditor : public ValueEditor
{
public:
    TableEditor(EditorListener *listener, const QModelIndex &index, QWidget *parent);

    QWidget *widget() override;
    void show(const QModelIndex &index) override;
    void mark(const QVector<KeltoItemFinding> &findings) override;

private:
    KeltoTableEditor *m_table;
};

#endif
