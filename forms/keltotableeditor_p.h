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

Q_SIGNALS:
    /// The user has changed the value.
    void edited();

private:
    std::unique_ptr<KeltoTableEditorPrivate> d;
};

#endif
