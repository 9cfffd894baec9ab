// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "editors/valueeditor_p.h"

#include "editors/choiceeditor_p.h"
#include "editors/lineeditor_p.h"
#include "editors/patheditor_p.h"
#include "editors/tableeditor_p.h"
#include "keltoparametermodel.h"

#include <QKeyEvent>

bool isUndoOrRedo(const QKeyEvent &event)
{
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
}

std::unique_ptr<ValueEditor> makeEditor(const QModelIndex &index, EditorListener *listener,
                                        QWidget *parent)
{
    switch (index.data(KeltoParameterModel::KindRole).toInt()) {
    case KeltoParameterModel::Bool:
    case KeltoParameterModel::Choice:
        return std::make_unique<ChoiceEditor>(listener, index.row(), parent);
    case KeltoParameterModel::File:
    case KeltoParameterModel::NewFile:
    case KeltoParameterModel::Directory:
        return std::make_unique<PathEditor>(listener, index.row(), parent);
    case KeltoParameterModel::Color:
        return std::make_unique<ColorEditor>(listener, index.row(), parent);
    case KeltoParameterModel::Table:
        return std::make_unique<TableEditor>(listener, index, parent);
    default:
        return std::make_unique<LineEditor>(listener, index.row(), parent);
    }
}
