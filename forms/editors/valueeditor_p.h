// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef VALUEEDITOR_P_H
#define VALUEEDITOR_P_H

#include <Kelto/KeltoItemFinding>

#include <QModelIndex>
#include <QVariant>
#include <QVector>

#include <memory>

class QKeyEvent;
class QUndoStack;
class QWidget;

/// Whether the key is one that the form wants from its editors, to undo or redo a step of its own.
bool isUndoOrRedo(const QKeyEvent &event);

/// Where editors send what a person does. The rows are those of a KeltoParameterModel.
class EditorListener
{
public:
    virtual ~EditorListener() = default;
    /// A value was chosen as a whole.
    virtual void choose(int row, const QVariant &typed) = 0;
    /// The text has changed by a key; what is typed until finishTyping() is undone as one.
    virtual void type(int row, const QVariant &typed) = 0;
    virtual void finishTyping(int row) = 0;
    virtual QUndoStack *undoStack() const = 0;
};

/// With what a form shows and edits one value. The widgets belong to their parent.
class ValueEditor
{
public:
    ValueEditor(EditorListener *listener, int row)
        : m_listener(listener)
        , m_row(row)
    {
    }
    virtual ~ValueEditor() = default;

    /// What the form lays out.
    virtual QWidget *widget() = 0;
    /// The part of it that takes the focus and bears the key as object name.
    virtual QWidget *field() { return widget(); }
    /// Shows the value and the texts that the model has for the row. Calls no listener.
    virtual void show(const QModelIndex &index) = 0;
    /// What is wrong with the value. The form says so itself; an editor may also mark the place.
    virtual void mark(const QVector<KeltoItemFinding> & /*findings*/) { }

protected:
    EditorListener *listener() const { return m_listener; }
    int row() const { return m_row; }

private:
    EditorListener *m_listener;
    int m_row;
};

/// The editor for the kind of the parameter at @p index.
std::unique_ptr<ValueEditor> makeEditor(const QModelIndex &index, EditorListener *listener,
                                        QWidget *parent);

#endif
