// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOTABLEEDITOR_P_H
#define KELTOTABLEEDITOR_P_H

#include "keltoparametermodel.h"

#include <Kelto/KeltoItemFinding>

#include <QStringList>
#include <QVector>
#include <QWidget>

#include <memory>

class KeltoTableEditorPrivate;

/**
 * The editor of a parameter with several values: one row per element of the stored list, with "|"
 * between its cells, as KeltoItemParameterTransform has them.
 *
 * Numbers are shown and typed in the locale of the widget, see NumberText, and stored in the C
 * locale. A text that is no number is shown and kept as it is. What setValue() got and the user did
 * not change is what value() gives.
 *
 * Undo is the form's: every change of the user is one edited(), and the keys of QKeySequence::Undo
 * and Redo are left to the parents of the widget.
 *
 * The table inside has the object name "kelto_table", the line below it, which says what is wrong,
 * "kelto_status". The commands are QActions and have object names, too.
 */
class KeltoTableEditor : public QWidget
{
    Q_OBJECT

public:
    /// @param columns 1 for arrays, 2 for points, 0 for rows with a free number of cells.
    /// @param cellKind Number, WholeNumber or Text.
    KeltoTableEditor(int columns, KeltoParameterModel::Kind cellKind, QWidget *parent = nullptr);
    ~KeltoTableEditor() override;

    QStringList value() const;
    /// Replaces all rows, without edited().
    void setValue(QStringList value);

    /// Marks the rows at KeltoItemFinding::position, by words and shape; -1 is the whole table.
    void setFindings(QVector<KeltoItemFinding> findings);

public Q_SLOTS:
    /// Inserts an empty row below or above the current one, or the first one.
    void insertRowBelow();
    void insertRowAbove();
    /// Deletes the rows of the selected cells.
    void deleteRows();
    /// Inserts an empty column behind the current one, where columns are free and there is a row.
    void insertColumn();
    /// Deletes the columns of the selected cells, where columns are free, but never all of them.
    void deleteColumns();
    /// Empties the selected cells; rows and columns stay.
    void clearCells();
    /// Copies the selected cells as a spreadsheet takes them.
    void copy();
    /// Puts the block on the clipboard over the cells from the current one on. A block that does
    /// not fit changes nothing and is explained.
    void paste();
    /// Lets the user choose a file and imports it.
    void chooseFile();
    /// Replaces all rows by those of a CSV file. One that does not fit changes nothing and is
    /// explained.
    /// @return whether it was taken over.
    bool importFile(QString path);

Q_SIGNALS:
    /// The user has changed the value.
    void edited();

protected:
    void changeEvent(QEvent *event) override;
    /// Hands the focus on to the table. With a focus proxy, Tab would come here from behind the
    /// buttons, and so to the table once more.
    void focusInEvent(QFocusEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    std::unique_ptr<KeltoTableEditorPrivate> d;
};

#endif
