// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltoparameterform.h"

#include "keltoparametermodel.h"

class KeltoParameterFormPrivate
{
public:
    KeltoParameterModel ownModel;
};

KeltoParameterForm::KeltoParameterForm(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<KeltoParameterFormPrivate>())
{
}
KeltoParameterForm::KeltoParameterForm(const AUTH_SET *, QString, QString, QWidget *parent)
    : KeltoParameterForm(parent)
{
}
KeltoParameterForm::KeltoParameterForm(const AUTH_SET *, QString, int, QWidget *parent)
    : KeltoParameterForm(parent)
{
}
KeltoParameterForm::KeltoParameterForm(QVector<VParameter>, KeltoItemHints, QWidget *parent)
    : KeltoParameterForm(parent)
{
}
KeltoParameterForm::KeltoParameterForm(KeltoParameterModel *, QWidget *parent)
    : KeltoParameterForm(parent)
{
}
KeltoParameterForm::~KeltoParameterForm() = default;
KeltoParameterModel *KeltoParameterForm::model() const
{
    return &d->ownModel;
}
void KeltoParameterForm::setModel(KeltoParameterModel *) { }
QVector<QPair<QString, QVariant>> KeltoParameterForm::values() const
{
    return {};
}
void KeltoParameterForm::setValues(QVector<QPair<QString, QVariant>>) { }
QVector<KeltoItemFinding> KeltoParameterForm::findings() const
{
    return {};
}
bool KeltoParameterForm::isComplete() const
{
    return false;
}
QWidget *KeltoParameterForm::editor(QString) const
{
    return nullptr;
}
bool KeltoParameterForm::isAdvancedVisible() const
{
    return false;
}
bool KeltoParameterForm::isSearchVisible() const
{
    return false;
}
bool KeltoParameterForm::isSummaryVisible() const
{
    return true;
}
void KeltoParameterForm::setAdvancedVisible(bool) { }
void KeltoParameterForm::setSearchVisible(bool) { }
void KeltoParameterForm::setSummaryVisible(bool) { }
void KeltoParameterForm::focusParameter(QString) { }
void KeltoParameterForm::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
}
void KeltoParameterForm::keyPressEvent(QKeyEvent *event)
{
    QWidget::keyPressEvent(event);
}
