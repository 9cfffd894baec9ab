// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOPARAMETERMODEL_P_H
#define KELTOPARAMETERMODEL_P_H

#include "keltoparametermodel.h"

#include "modedescription_p.h"
#include "parameterrow_p.h"

#include <QHash>
#include <QStringList>
#include <QUndoCommand>
#include <QUndoStack>

/// What one value was, and what it became.
struct ValueChange
{
    int row;
    QVariant before;
    QVariant after;
};

class KeltoParameterModelPrivate
{
public:
    using Entries = QVector<QPair<QString, QVariant>>;
    using Changes = QVector<ValueChange>;

    KeltoParameterModelPrivate(KeltoParameterModel *model, ModeDescription description);

    bool isRow(int row) const { return row >= 0 && row < rows.size(); }
    bool counts(int row) const;
    bool isMissing(int row) const;
    QVariant roleData(int row, int role);
    QVariant columnData(int row, int column, int role) const;

    /// With an empty text for each row that does not count according to @p isCounting.
    Entries values(const QVector<bool> &isCounting) const;
    void load(const Entries &values);

    /// One step to undo, unless nothing changes. Steps of one @p session in a row become one if
    /// they concern the same parameter alone. Those in session 0 stay apart.
    void edit(const Changes &changes, const QString &text, int session = 0);
    void edit(int row, const QVariant &value, int session = 0);
    /// The same with what a person typed.
    void editTyped(int row, const QVariant &typed, int session = 0);

    void setNames();
    /// Tells that the values of these rows have changed, and of others whether they count.
    void tellChanged(int first, int last);

    /// Gathers the findings if values have changed since.
    void gatherFindings();
    /// A finding with values as the row shows them.
    KeltoItemFinding shown(const KeltoItemFinding &finding, const ParameterRow &row) const;
    /// Does so once control is back in the event loop, and tells what has changed.
    void scheduleFindings();
    void publishFindings();

    KeltoParameterModel *q;
    ModeDescription mode;
    QVector<ParameterRow> rows;
    QHash<QString, int> rowOfKey;
    /// Entries of setValues() that belong to no parameter.
    Entries otherValues;
    QLocale locale;
    QUndoStack undoStack;
    bool isLoading = false;

    /// Whether each row counts.
    QVector<bool> counting;
    QVector<KeltoItemFinding> findings;
    /// The findings of each row as they are, and as views know them.
    QVector<QString> findingTexts;
    QVector<QString> knownTexts;
    bool areFindingsOutdated = true;
    bool isPublishing = false;
    bool wasComplete = false;
};

/// Other values for some rows.
class ValueCommand : public QUndoCommand
{
public:
    ValueCommand(KeltoParameterModelPrivate *model, QVector<ValueChange> changes,
                 const QString &text, int session);

    void undo() override;
    void redo() override;
    int id() const override { return m_session > 0 ? 1 : -1; }
    bool mergeWith(const QUndoCommand *other) override;

private:
    KeltoParameterModelPrivate *m_model;
    QVector<ValueChange> m_changes;
    int m_session;
};

#endif
