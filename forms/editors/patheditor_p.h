// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PATHEDITOR_P_H
#define PATHEDITOR_P_H

#include "editors/lineeditor_p.h"
#include "keltoparametermodel.h"

#include <QPersistentModelIndex>
#include <QWidget>

class QToolButton;

/// A line with a button behind it, which opens a window to choose the value in.
class LineWithButton : public QWidget
{
    Q_OBJECT

public:
    LineWithButton(EditorListener *listener, int row, QWidget *parent);

    ValueLine *line() const { return m_line; }
    QToolButton *button() const { return m_button; }

private:
    ValueLine *m_line;
    QToolButton *m_button;
};

/// Edits the paths of files and directories.
class PathEditor : public ValueEditor
{
public:
    PathEditor(EditorListener *listener, int row, QWidget *parent);

    QWidget *widget() override { return m_widget; }
    QWidget *field() override { return m_widget->line(); }
    void show(const QModelIndex &index) override;

private:
    void browse();

    LineWithButton *m_widget;
    QPersistentModelIndex m_index;
};

/// Edits colours: their names, or "#" and hexadecimal digits.
class ColorEditor : public ValueEditor
{
public:
    ColorEditor(EditorListener *listener, int row, QWidget *parent);

    QWidget *widget() override { return m_widget; }
    QWidget *field() override { return m_widget->line(); }
    void show(const QModelIndex &index) override;

private:
    void pick();

    LineWithButton *m_widget;
};

#endif
