// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TABLEEDITORSUPPORT_H
#define TABLEEDITORSUPPORT_H

#include "keltotableeditor_p.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

using Model = KeltoParameterModel;

enum Shape { Array = 1, Points = 2, Rows = 0 };

/// An editor with what a test looks at.
struct Editor : KeltoTableEditor
{
    Editor(int columns, Model::Kind kind, const QStringList &value, const QString &language = "en")
        : KeltoTableEditor(columns, kind)
        , table(findChild<QTableView *>("kelto_table"))
        , tester(table->model())
        , edits(this, &KeltoTableEditor::edited)
    {
        setLocale(QLocale(language));
        setValue(value);
    }

    void setCurrent(int row, int column) { select(row, column, row, column); }
    void select(int row, int column, int lastRow, int lastColumn)
    {
        auto *selection = table->selectionModel();
        selection->setCurrentIndex(index(row, column), QItemSelectionModel::NoUpdate);
        selection->select(QItemSelection(index(row, column), index(lastRow, lastColumn)),
                          QItemSelectionModel::ClearAndSelect);
    }
    QModelIndex index(int row, int column) const { return table->model()->index(row, column); }
    QString cell(int row, int column) const { return index(row, column).data().toString(); }
    QString status() const { return findChild<QLabel *>("kelto_status")->text(); }
    QString heading(int column) const
    {
        return table->model()->headerData(column, Qt::Horizontal).toString();
    }
    QString toolTip(int row, int column) const
    {
        return index(row, column).data(Qt::ToolTipRole).toString();
    }
    /// All cells as they are shown, one text per row.
    QStringList cells() const
    {
        QStringList rows;
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            QStringList shown;
            for (int column = 0; column < table->model()->columnCount(); ++column)
                shown.append(cell(row, column));
            rows.append(shown.join(" / "));
        }
        return rows;
    }
    /// Shown and ready for keys.
    bool activate()
    {
        show();
        activateWindow();
        table->setFocus();
        return QTest::qWaitForWindowActive(this);
    }

    QTableView *table;
    QAbstractItemModelTester tester;
    QSignalSpy edits;
};

#endif
