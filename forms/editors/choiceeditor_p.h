// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef CHOICEEDITOR_P_H
#define CHOICEEDITOR_P_H

#include "editors/valueeditor_p.h"

#include <QComboBox>
#include <QPair>
#include <QString>
#include <QVector>

/// A combo box that the wheel changes only while it has the focus: in a form that is scrolled it
/// would change by accident.
class ChoiceBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ChoiceBox(QWidget *parent);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    /// Shows the placeholder: Qt draws it with the brush of its colour, which draws nothing.
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};

/// Edits choices, and what is true or false.
class ChoiceEditor : public ValueEditor
{
public:
    ChoiceEditor(EditorListener *listener, int row, QWidget *parent);

    QWidget *widget() override { return m_box; }
    void show(const QModelIndex &index) override;

private:
    using Choices = QVector<QPair<QString, QString>>;

    static Choices choices(const QModelIndex &index);
    void offer(const Choices &choices);

    ChoiceBox *m_box;
    Choices m_offered;
    bool m_isShowing = false;
};

#endif
