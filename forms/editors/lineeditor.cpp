// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "editors/lineeditor_p.h"

#include "keltoparametermodel.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QUndoStack>

#include <memory>

ValueLine::ValueLine(EditorListener *listener, int row, QWidget *parent)
    : QLineEdit(parent)
    , m_listener(listener)
    , m_row(row)
{
    connect(this, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (!m_isShowing)
            m_listener->type(m_row, text);
    });
    connect(this, &QLineEdit::returnPressed, this, [this] { finish(); });
}

void ValueLine::showText(const QString &text)
{
    if (text == this->text())
        return;
    m_isShowing = true;
    setText(text);
    setCursorPosition(hasFocus() ? text.size() : 0);
    m_isShowing = false;
}

void ValueLine::keyPressEvent(QKeyEvent *event)
{
    if (isUndoOrRedo(*event))
        event->ignore();
    else
        QLineEdit::keyPressEvent(event);
}

void ValueLine::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason)
        finish();
}

void ValueLine::contextMenuEvent(QContextMenuEvent *event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    // The first two undo and redo what was typed into this line alone.
    const QList<QAction *> actions = menu->actions();
    for (int i = 0; i < actions.size() && !actions.at(i)->isSeparator(); ++i)
        menu->removeAction(actions.at(i));
    QAction *first = menu->actions().value(0);
    menu->insertAction(first, m_listener->undoStack()->createUndoAction(menu.get()));
    menu->insertAction(first, m_listener->undoStack()->createRedoAction(menu.get()));
    menu->exec(event->globalPos());
}

void ValueLine::finish()
{
    m_listener->finishTyping(m_row);
}

LineEditor::LineEditor(EditorListener *listener, int row, QWidget *parent)
    : ValueEditor(listener, row)
    , m_line(new ValueLine(listener, row, parent))
{
}

void LineEditor::show(const QModelIndex &index)
{
    m_line->showText(index.data(KeltoParameterModel::TextRole).toString());
}
