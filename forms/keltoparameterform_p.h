// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOPARAMETERFORM_P_H
#define KELTOPARAMETERFORM_P_H

#include "keltoparameterform.h"

#include "formrow_p.h"
#include "keltoparametermodel.h"

#include <QHash>
#include <QPointer>

#include <memory>
#include <vector>

class QGroupBox;
class QLabel;
class QLineEdit;
class QScrollArea;
class QToolButton;

class KeltoParameterFormPrivate : public EditorListener
{
public:
    explicit KeltoParameterFormPrivate(KeltoParameterForm *form);

    void choose(int row, const QVariant &typed) override;
    void type(int row, const QVariant &typed) override;
    void finishTyping(int row) override;
    QUndoStack *undoStack() const override { return model->undoStack(); }

    /// Undoes or redoes a step, and brings what it changes into view.
    void step(void (QUndoStack::*undoOrRedo)());

    void setModel(KeltoParameterModel *newModel);
    void setOwnModel(std::unique_ptr<KeltoParameterModel> newModel);
    void deleteRows();
    QModelIndex index(int row) const;
    /// The editor of a row; nullptr where there is none.
    QWidget *field(int row) const;
    /// Scrolls to the row, also to one that is advanced or not found. False for one that does not
    /// count or is not there.
    bool bringIntoView(int row);
    /// Whether the search leaves the row visible.
    bool isFound(int row) const;

    void showRows(int first, int last);
    void showVisibility(int row);
    void showEveryVisibility();
    void showFindings();
    void showTexts();
    void showArrow() const;
    void alignColumns() const;
    void followLocale();

    KeltoParameterForm *q;
    std::unique_ptr<KeltoParameterModel> ownModel;
    QPointer<KeltoParameterModel> model;

    bool isAdvancedVisible = false;

    QLineEdit *search = nullptr;
    QScrollArea *area = nullptr;
    QToolButton *advanced = nullptr;
    QLabel *summary = nullptr;

private:
    using Rows = std::vector<std::unique_ptr<FormRow>>;

    struct Box
    {
        QGroupBox *widget = nullptr;
        std::vector<int> rows;
        int visibleRows = 0;
    };

    /// Holds the layouts back while many widgets are shown or hidden: each of them would lay out
    /// all of them.
    class LayoutPause
    {
    public:
        explicit LayoutPause(const KeltoParameterFormPrivate *form);
        ~LayoutPause();

    private:
        void setEnabled(bool enabled) const;

        const KeltoParameterFormPrivate *m_form;
    };

    void dropRows();
    void connectModel();
    void build();
    void sortIntoBoxes();
    void fill(Box *box, QWidget *parent);
    void setTabOrder() const;
    void showTitles(int first, int last) const;
    bool isWanted(int row) const;
    QString summaryText() const;
    QString links(const QVector<int> &linkedRows) const;

    std::vector<Box> m_boxes;
    /// By the rows of the model.
    Rows m_rows;
    std::vector<int> m_boxOfRow;
    /// What is typed into one editor without a break is one session.
    int m_session = 1;
    /// The row whose editor just told of a change. It shows the text as it is typed.
    int m_typedRow = -1;
    /// The row that the model told of last.
    int m_changedRow = -1;
};

#endif
