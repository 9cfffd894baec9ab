// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef LINEEDITOR_P_H
#define LINEEDITOR_P_H

#include "editors/valueeditor_p.h"

#include <QLineEdit>

/// The line of an editor. Its changes are undone with those of the whole form, so it leaves the
/// keys for that to its parents.
class ValueLine : public QLineEdit
{
public:
    ValueLine(EditorListener *listener, int row, QWidget *parent);

    /// Shows a text that nobody has typed.
    void showText(const QString &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void finish();

    EditorListener *m_listener;
    int m_row;
    bool m_isShowing = false;
};

/// Edits numbers and texts.
class LineEditor : public ValueEditor
{
public:
    LineEditor(EditorListener *listener, int row, QWidget *parent);

    QWidget *widget() override { return m_line; }
    void show(const QModelIndex &index) override;

private:
    ValueLine *m_line;
};

#endif
