// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltoparametermodel.h"

#include <QUndoStack>

class KeltoParameterModelPrivate
{
public:
    QUndoStack undoStack;
    QLocale locale;
};

KeltoParameterModel::KeltoParameterModel(QObject *parent)
    : QAbstractTableModel(parent)
    , d(std::make_unique<KeltoParameterModelPrivate>())
{
}
KeltoParameterModel::KeltoParameterModel(const AUTH_SET *, QString, QString, QObject *parent)
    : KeltoParameterModel(parent)
{
}
KeltoParameterModel::KeltoParameterModel(const AUTH_SET *, QString, int, QObject *parent)
    : KeltoParameterModel(parent)
{
}
KeltoParameterModel::KeltoParameterModel(QVector<VParameter>, KeltoItemHints, QObject *parent)
    : KeltoParameterModel(parent)
{
}
KeltoParameterModel::~KeltoParameterModel() = default;
int KeltoParameterModel::rowCount(const QModelIndex &) const
{
    return 0;
}
int KeltoParameterModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}
QVariant KeltoParameterModel::data(const QModelIndex &, int) const
{
    return QVariant();
}
bool KeltoParameterModel::setData(const QModelIndex &, const QVariant &, int)
{
    return false;
}
QVariant KeltoParameterModel::headerData(int, Qt::Orientation, int) const
{
    return QVariant();
}
Qt::ItemFlags KeltoParameterModel::flags(const QModelIndex &) const
{
    return Qt::NoItemFlags;
}
QHash<int, QByteArray> KeltoParameterModel::roleNames() const
{
    return {};
}
int KeltoParameterModel::row(QString) const
{
    return -1;
}
VParameter KeltoParameterModel::parameter(int) const
{
    return VParameter();
}
QVector<QPair<QString, QVariant>> KeltoParameterModel::values() const
{
    return {};
}
void KeltoParameterModel::setValues(QVector<QPair<QString, QVariant>>) { }
void KeltoParameterModel::resetToDefaults() { }
QVector<KeltoItemFinding> KeltoParameterModel::findings() const
{
    return {};
}
bool KeltoParameterModel::isComplete() const
{
    return false;
}
int KeltoParameterModel::countingCount() const
{
    return 0;
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
    d->locale = locale;
}
void KeltoParameterModel::retranslate() { }
