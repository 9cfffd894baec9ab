// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltoparametermodel.h"

#include "keltoparametermodel_p.h"
#include "tooltiptext_p.h"

#include <Kelto/AUTH_SET>

#include <utility>

namespace {

ModeDescription modeNamed(const AUTH_SET *registry, const QString &group, const QString &mode)
{
    const int position = registry ? registry->exclusive_group_innerMode_index(group, mode) : -1;
    return modeAt(registry, group, position);
}

QVariantList choiceMaps(const QVector<KeltoItemHints::Choice> &choices)
{
    QVariantList maps;
    for (const KeltoItemHints::Choice &choice : choices) {
        maps.append(QVariantMap { { QStringLiteral("value"), choice.value },
                                  { QStringLiteral("label"), choice.label } });
    }
    return maps;
}

} // namespace

KeltoParameterModel::KeltoParameterModel(QObject *parent)
    : KeltoParameterModel(QVector<VParameter>(), KeltoItemHints(), parent)
{
}

KeltoParameterModel::KeltoParameterModel(const AUTH_SET *registry, QString group, QString mode,
                                         QObject *parent)
    : QAbstractTableModel(parent)
    , d(std::make_unique<KeltoParameterModelPrivate>(this, modeNamed(registry, group, mode)))
{
}

KeltoParameterModel::KeltoParameterModel(const AUTH_SET *registry, QString group, int position,
                                         QObject *parent)
    : QAbstractTableModel(parent)
    , d(std::make_unique<KeltoParameterModelPrivate>(this, modeAt(registry, group, position)))
{
}

KeltoParameterModel::KeltoParameterModel(QVector<VParameter> parameters, KeltoItemHints hints,
                                         QObject *parent)
    : QAbstractTableModel(parent)
    , d(std::make_unique<KeltoParameterModelPrivate>(this, modeOf(parameters, hints)))
{
}

KeltoParameterModel::~KeltoParameterModel()
{
    // The stack clears itself at its end, and would tell of that as of an edit.
    d->undoStack.disconnect();
}

int KeltoParameterModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : d->rows.size();
}

int KeltoParameterModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant KeltoParameterModel::data(const QModelIndex &index, int role) const
{
    if (!d->isRow(index.row()))
        return QVariant();
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return d->columnData(index.row(), index.column(), role);
    return d->roleData(index.row(), role);
}

QVariant KeltoParameterModelPrivate::columnData(int row, int column, int role) const
{
    switch (column) {
    case KeltoParameterModel::NameColumn:
        return rows.at(row).name(mode.hints);
    case KeltoParameterModel::SymbolColumn:
        return rows.at(row).parameter.symbol();
    case KeltoParameterModel::UnitColumn:
        return rows.at(row).unit();
    default:
        return role == Qt::EditRole ? rows.at(row).typed(locale)
                                    : rows.at(row).shown(mode.hints, locale);
    }
}

QVariant KeltoParameterModelPrivate::roleData(int row, int role)
{
    const ParameterRow &data = rows.at(row);
    switch (role) {
    case KeltoParameterModel::KeyRole:
        return data.key;
    case KeltoParameterModel::NameRole:
        return data.name(mode.hints);
    case KeltoParameterModel::SymbolRole:
        return data.parameter.symbol();
    case KeltoParameterModel::UnitRole:
        return data.unit();
    case KeltoParameterModel::ValueRole:
        return data.value;
    case KeltoParameterModel::TextRole:
        return data.typed(locale);
    case KeltoParameterModel::GroupRole:
        return data.parameter.group().first;
    case KeltoParameterModel::TranslatedGroupRole:
        return data.group(mode.hints);
    case KeltoParameterModel::KindRole:
        return int(data.kind);
    case KeltoParameterModel::ChoicesRole:
        return choiceMaps(mode.hints.choices(data.key));
    case KeltoParameterModel::FileFiltersRole:
        return mode.hints.fileFilters(data.key);
    case Qt::ToolTipRole:
        return toolTipText(mode.hints.help(data.key));
    case KeltoParameterModel::HelpRole:
        return mode.hints.help(data.key);
    case Qt::AccessibleDescriptionRole:
    case KeltoParameterModel::FindingRole:
        gatherFindings();
        return findingTexts.at(row);
    case KeltoParameterModel::AdvancedRole:
        return data.isAdvanced;
    case KeltoParameterModel::OptionalRole:
        return data.isOptional;
    case KeltoParameterModel::CountsRole:
        return counting.at(row);
    case KeltoParameterModel::MissingRole:
        return isMissing(row);
    default:
        return QVariant();
    }
}

bool KeltoParameterModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!d->isRow(index.row()))
        return false;
    if (role == ValueRole) {
        d->edit(index.row(), value);
    } else if (role == TextRole || (role == Qt::EditRole && index.column() == ValueColumn)) {
        d->editTyped(index.row(), value);
    } else {
        return false;
    }
    return true;
}

QVariant KeltoParameterModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case NameColumn:
        return tr("Name");
    case SymbolColumn:
        return tr("Symbol");
    case ValueColumn:
        return tr("Value");
    case UnitColumn:
        return tr("Unit");
    default:
        return QVariant();
    }
}

void KeltoParameterModel::typeText(int row, const QString &text, int session)
{
    d->editTyped(row, text, session);
}

Qt::ItemFlags KeltoParameterModel::flags(const QModelIndex &index) const
{
    if (!d->isRow(index.row()))
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (d->counting.at(index.row()))
        flags |= Qt::ItemIsEnabled;
    if (index.column() == ValueColumn)
        flags |= Qt::ItemIsEditable;
    return flags;
}

QHash<int, QByteArray> KeltoParameterModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractTableModel::roleNames();
    names.insert({ { KeyRole, "key" },
                   { NameRole, "name" },
                   { SymbolRole, "symbol" },
                   { UnitRole, "unit" },
                   { ValueRole, "value" },
                   { TextRole, "text" },
                   { GroupRole, "group" },
                   { TranslatedGroupRole, "translatedGroup" },
                   { KindRole, "kind" },
                   { ChoicesRole, "choices" },
                   { FileFiltersRole, "fileFilters" },
                   { HelpRole, "help" },
                   { FindingRole, "finding" },
                   { AdvancedRole, "advanced" },
                   { OptionalRole, "optional" },
                   { CountsRole, "counts" },
                   { MissingRole, "missing" } });
    return names;
}

int KeltoParameterModel::row(QString key) const
{
    return d->rowOfKey.value(key, -1);
}

VParameter KeltoParameterModel::parameter(int row) const
{
    if (!d->isRow(row))
        return VParameter();
    VParameter parameter = d->rows.at(row).parameter;
    parameter.set(d->rows.at(row).value);
    return parameter;
}

QVector<QPair<QString, QVariant>> KeltoParameterModel::values() const
{
    return d->values(d->counting);
}

QVector<QPair<QString, QVariant>> KeltoParameterModel::enteredValues() const
{
    return d->values(QVector<bool>(d->rows.size(), true));
}

void KeltoParameterModel::setValues(QVector<QPair<QString, QVariant>> values)
{
    d->load(values);
}

void KeltoParameterModel::resetToDefaults()
{
    QVector<ValueChange> changes;
    for (int i = 0; i < d->rows.size(); ++i) {
        const ParameterRow &row = d->rows.at(i);
        changes.append({ i, row.value, d->mode.hints.defaultValue(row.key) });
    }
    d->edit(changes, tr("Reset to defaults"));
}

QVector<KeltoItemFinding> KeltoParameterModel::findings() const
{
    d->gatherFindings();
    return d->findings;
}

bool KeltoParameterModel::isComplete() const
{
    return findings().isEmpty();
}

int KeltoParameterModel::countingCount() const
{
    return d->counting.count(true);
}

QUndoStack *KeltoParameterModel::undoStack() const
{
    return &d->undoStack;
}

QLocale KeltoParameterModel::locale() const
{
    return d->locale;
}

void KeltoParameterModel::setLocale(QLocale locale)
{
    if (std::exchange(d->locale, locale) == locale)
        return;
    d->tellChanged(0, d->rows.size() - 1);
    Q_EMIT localeChanged();
}

void KeltoParameterModel::retranslate()
{
    d->setNames();
    d->tellChanged(0, d->rows.size() - 1);
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, UnitColumn);
}
