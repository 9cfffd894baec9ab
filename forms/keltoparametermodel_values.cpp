// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Values, findings and undo of the model.

#include "keltoparametermodel_p.h"

#include "shownfinding_p.h"

#include <Kelto/KeltoItemParameterVerify>
#include <Kelto/KeltoParameterEntry>

#include <QSet>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

const QString valuePrefix = QStringLiteral("Attribute/");
const QString unitPrefix = QStringLiteral("Unit/");

/// The rows that a list of values speaks of, and the entries that belong to none of them.
class ValueReader
{
public:
    ValueReader(QVector<ParameterRow> *rows, const QHash<QString, int> &rowOfKey)
        : m_rows(rows)
        , m_rowOfKey(rowOfKey)
    {
        for (ParameterRow &row : *m_rows) {
            row.value = QVariant();
            row.storedUnit = QVariant();
        }
    }

    void read(const QPair<QString, QVariant> &entry)
    {
        if (ParameterRow *row = rowAfter(valuePrefix, entry.first))
            set(entry, &row->value);
        else if ((row = rowAfter(unitPrefix, entry.first)))
            set(entry, &row->storedUnit);
        else
            m_others.append(entry);
    }

    QVector<QPair<QString, QVariant>> others() const { return m_others; }

private:
    ParameterRow *rowAfter(const QString &prefix, const QString &key)
    {
        if (!key.startsWith(prefix))
            return nullptr;
        const int row = m_rowOfKey.value(key.mid(prefix.size()), -1);
        return row >= 0 ? &(*m_rows)[row] : nullptr;
    }
    /// The first entry of a key counts.
    void set(const QPair<QString, QVariant> &entry, QVariant *target)
    {
        if (m_known.contains(entry.first))
            return;
        m_known.insert(entry.first);
        *target = entry.second;
    }

    QVector<ParameterRow> *m_rows;
    const QHash<QString, int> &m_rowOfKey;
    QSet<QString> m_known;
    QVector<QPair<QString, QVariant>> m_others;
};

/// The sentence without what stands in the row anyway.
QString briefText(KeltoItemFinding finding)
{
    const VParameter &whole = finding.parameter;
    finding.parameter.set(QVariant(), whole.name(), {}, {}, {}, whole.parameterObjectName(),
                          whole.isMulti());
    return finding.text();
}

bool isSameState(const QVariant &first, const QVariant &second)
{
    return isSameValue(first, second) || (isEmptyValue(first) && isEmptyValue(second));
}

bool areSameValues(const QVector<QPair<QString, QVariant>> &first,
                   const QVector<QPair<QString, QVariant>> &second)
{
    return std::equal(first.cbegin(), first.cend(), second.cbegin(), second.cend(),
                      [](const auto &one, const auto &other) {
                          return one.first == other.first && isSameValue(one.second, other.second);
                      });
}

} // namespace

KeltoParameterModelPrivate::KeltoParameterModelPrivate(KeltoParameterModel *model,
                                                       ModeDescription description)
    : q(model)
    , mode(std::move(description))
{
    for (const VParameter &parameter : std::as_const(mode.parameters)) {
        rowOfKey.insert(parameter.name().first, rows.size());
        rows.append(ParameterRow(parameter, mode.hints));
    }
    counting = QVector<bool>(rows.size());
    for (int i = 0; i < rows.size(); ++i)
        counting[i] = counts(i);
    setNames();
    gatherFindings();
    knownTexts = findingTexts;
    wasComplete = findings.isEmpty();
    QObject::connect(&undoStack, &QUndoStack::indexChanged, model, [this] {
        if (!isLoading)
            Q_EMIT q->edited();
    });
}

bool KeltoParameterModelPrivate::counts(int row) const
{
    if (rows.at(row).conditionKey.isEmpty())
        return true;
    // Only the values on which it can depend: the search for them in all would take too long.
    Entries values;
    QString key = rows.at(row).conditionKey;
    while (rowOfKey.contains(key) && values.size() < rows.size()) {
        const ParameterRow &condition = rows.at(rowOfKey.value(key));
        values.append({ valuePrefix + key, condition.value });
        key = condition.conditionKey;
    }
    return mode.hints.counts(rows.at(row).key, &values);
}

bool KeltoParameterModelPrivate::isMissing(int row) const
{
    return rows.at(row).isEmpty() && !rows.at(row).isOptional && counting.at(row);
}

KeltoParameterModelPrivate::Entries KeltoParameterModelPrivate::values(
    const QVector<bool> &isCounting) const
{
    Entries values;
    values.reserve(2 * rows.size() + otherValues.size());
    for (int i = 0; i < rows.size(); ++i) {
        const ParameterRow &row = rows.at(i);
        if (!isCounting.at(i) || (row.isEmpty() && row.isOptional))
            values.append({ valuePrefix + row.key, QString() });
        else if (!row.isEmpty())
            values.append({ valuePrefix + row.key, row.value });
        values.append(
            { unitPrefix + row.key,
              isEmptyValue(row.storedUnit) ? row.parameter.unit().first : row.storedUnit });
    }
    return values + otherValues;
}

void KeltoParameterModelPrivate::load(const Entries &values)
{
    // Values that are entered, but do not count at present, are not among them and stay.
    if (areSameValues(values, this->values(counting)))
        return;
    ValueReader reader(&rows, rowOfKey);
    for (const auto &entry : values)
        reader.read(entry);
    otherValues = reader.others();
    isLoading = true;
    undoStack.clear();
    isLoading = false;
    tellChanged(0, rows.size() - 1);
}

void KeltoParameterModelPrivate::edit(const Changes &changes, const QString &text, int session)
{
    Changes real;
    std::copy_if(changes.cbegin(), changes.cend(), std::back_inserter(real),
                 [](const ValueChange &change) {
                     return !isSameState(change.before, change.after);
                 });
    if (!real.isEmpty())
        undoStack.push(new ValueCommand(this, real, text, session));
}

void KeltoParameterModelPrivate::edit(int row, const QVariant &value, int session)
{
    edit({ { row, rows.at(row).value, value } },
         KeltoParameterModel::tr("Edit %1").arg(rows.at(row).name(mode.hints)), session);
}

void KeltoParameterModelPrivate::editTyped(int row, const QVariant &typed, int session)
{
    // A value that came as something else than text stays so, unless its text changes.
    if (typed != rows.at(row).typed(locale))
        edit(row, rows.at(row).stored(typed, locale), session);
}

/// The names that findings have are those that views show.
void KeltoParameterModelPrivate::setNames()
{
    QVector<QStringList> entries;
    for (const ParameterRow &row : std::as_const(rows)) {
        QStringList entry = row.parameter.toSetsForm();
        entry[KeltoParameterEntry::TranslatedKey] = row.name(mode.hints);
        entry[KeltoParameterEntry::TranslatedGroup] = row.group(mode.hints);
        entries.append(entry);
    }
    mode.item.inner_mode_parameterList = { entries };
    areFindingsOutdated = true;
}

void KeltoParameterModelPrivate::tellChanged(int first, int last)
{
    areFindingsOutdated = true;
    for (int i = 0; i < rows.size(); ++i) {
        const bool isCounting = counts(i);
        if (counting.at(i) == isCounting)
            continue;
        counting[i] = isCounting;
        if (i < first || i > last)
            Q_EMIT q->dataChanged(q->index(i, 0), q->index(i, KeltoParameterModel::UnitColumn));
    }
    if (first <= last)
        Q_EMIT q->dataChanged(q->index(first, 0), q->index(last, KeltoParameterModel::UnitColumn));
    scheduleFindings();
}

void KeltoParameterModelPrivate::gatherFindings()
{
    if (!areFindingsOutdated)
        return;
    areFindingsOutdated = false;
    const Entries all = values(counting);
    findings = KeltoItemParameterVerify::explain(&mode.item, &all, mode.mode());
    findingTexts = QVector<QString>(rows.size());
    for (const KeltoItemFinding &finding : std::as_const(findings)) {
        const int row = rowOfKey.value(finding.valueKey.mid(valuePrefix.size()), -1);
        if (row < 0)
            continue;
        QString &text = findingTexts[row];
        text += (text.isEmpty() ? QString() : QStringLiteral("\n"))
            + briefText(shown(finding, rows.at(row)));
    }
}

KeltoItemFinding KeltoParameterModelPrivate::shown(const KeltoItemFinding &finding,
                                                   const ParameterRow &row) const
{
    // The limits of a choice are numbers, not labels.
    if (row.kind == KeltoParameterModel::Choice && finding.kind != KeltoItemFinding::NotAChoice)
        return finding;
    return shownFinding(finding, [&](const QString &stored) {
        return row.shownText(stored, mode.hints, locale);
    });
}

void KeltoParameterModelPrivate::scheduleFindings()
{
    if (std::exchange(isPublishing, true))
        return;
    QMetaObject::invokeMethod(
        q, [this] { publishFindings(); }, Qt::QueuedConnection);
}

void KeltoParameterModelPrivate::publishFindings()
{
    isPublishing = false;
    gatherFindings();
    const QVector<QString> before = std::exchange(knownTexts, findingTexts);
    for (int i = 0; i < rows.size(); ++i) {
        if (before.at(i) != findingTexts.at(i))
            Q_EMIT q->dataChanged(q->index(i, 0), q->index(i, KeltoParameterModel::UnitColumn),
                                  { KeltoParameterModel::FindingRole });
    }
    Q_EMIT q->findingsChanged();
    const bool isComplete = findings.isEmpty();
    if (std::exchange(wasComplete, isComplete) != isComplete)
        Q_EMIT q->completeChanged(isComplete);
}

ValueCommand::ValueCommand(KeltoParameterModelPrivate *model, QVector<ValueChange> changes,
                           const QString &text, int session)
    : QUndoCommand(text)
    , m_model(model)
    , m_changes(std::move(changes))
    , m_session(session)
{
}

void ValueCommand::undo()
{
    for (const ValueChange &change : std::as_const(m_changes))
        m_model->rows[change.row].value = change.before;
    m_model->tellChanged(m_changes.constFirst().row, m_changes.constLast().row);
}

void ValueCommand::redo()
{
    for (const ValueChange &change : std::as_const(m_changes))
        m_model->rows[change.row].value = change.after;
    m_model->tellChanged(m_changes.constFirst().row, m_changes.constLast().row);
}

bool ValueCommand::mergeWith(const QUndoCommand *other)
{
    const auto *next = static_cast<const ValueCommand *>(other);
    // Several forms may show the model, and a text may be set without the focus going there.
    if (next->m_session != m_session
        || next->m_changes.constFirst().row != m_changes.constFirst().row)
        return false;
    m_changes.first().after = next->m_changes.constFirst().after;
    setObsolete(isSameState(m_changes.constFirst().before, m_changes.constFirst().after));
    return true;
}
