// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltoparameterform.h"

#include "keltoparameterform_p.h"

#include <Kelto/AUTH_SET>

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QToolButton>
#include <QUndoStack>

#include <utility>

KeltoParameterForm::KeltoParameterForm(QWidget *parent)
    : KeltoParameterForm(nullptr, parent)
{
}

KeltoParameterForm::KeltoParameterForm(const AUTH_SET *registry, QString group, QString mode,
                                       QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<KeltoParameterFormPrivate>(this))
{
    d->setOwnModel(std::make_unique<KeltoParameterModel>(registry, group, mode));
}

KeltoParameterForm::KeltoParameterForm(const AUTH_SET *registry, QString group, int position,
                                       QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<KeltoParameterFormPrivate>(this))
{
    d->setOwnModel(std::make_unique<KeltoParameterModel>(registry, group, position));
}

KeltoParameterForm::KeltoParameterForm(QVector<VParameter> parameters, KeltoItemHints hints,
                                       QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<KeltoParameterFormPrivate>(this))
{
    d->setOwnModel(std::make_unique<KeltoParameterModel>(parameters, hints));
}

KeltoParameterForm::KeltoParameterForm(KeltoParameterModel *model, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<KeltoParameterFormPrivate>(this))
{
    setModel(model);
}

KeltoParameterForm::~KeltoParameterForm()
{
    d->model->disconnect(this);
    d->deleteRows();
}

KeltoParameterModel *KeltoParameterForm::model() const
{
    return d->model;
}

void KeltoParameterForm::setModel(KeltoParameterModel *model)
{
    if (model)
        d->setModel(model);
    else
        d->setOwnModel(std::make_unique<KeltoParameterModel>());
}

QVector<QPair<QString, QVariant>> KeltoParameterForm::values() const
{
    return d->model->values();
}

void KeltoParameterForm::setValues(QVector<QPair<QString, QVariant>> values)
{
    d->model->setValues(values);
}

QVector<KeltoItemFinding> KeltoParameterForm::findings() const
{
    return d->model->findings();
}

bool KeltoParameterForm::isComplete() const
{
    return d->model->isComplete();
}

QWidget *KeltoParameterForm::editor(QString key) const
{
    return d->field(d->model->row(key));
}

bool KeltoParameterForm::isAdvancedVisible() const
{
    return d->isAdvancedVisible;
}

bool KeltoParameterForm::isSearchVisible() const
{
    return d->search->isVisibleTo(this);
}

bool KeltoParameterForm::isSummaryVisible() const
{
    return d->summary->isVisibleTo(this);
}

void KeltoParameterForm::setAdvancedVisible(bool visible)
{
    if (std::exchange(d->isAdvancedVisible, visible) == visible)
        return;
    d->advanced->setChecked(visible);
    d->showArrow();
    d->showEveryVisibility();
    Q_EMIT advancedVisibleChanged(visible);
}

void KeltoParameterForm::setSearchVisible(bool visible)
{
    if (isSearchVisible() == visible)
        return;
    d->search->setVisible(visible);
    // A search that cannot be seen is not to hide anything.
    if (!visible)
        d->search->clear();
    Q_EMIT searchVisibleChanged(visible);
}

void KeltoParameterForm::setSummaryVisible(bool visible)
{
    if (isSummaryVisible() == visible)
        return;
    d->summary->setVisible(visible);
    Q_EMIT summaryVisibleChanged(visible);
}

void KeltoParameterForm::focusParameter(QString key)
{
    const int row = d->model->row(key);
    if (d->bringIntoView(row))
        d->field(row)->setFocus(Qt::TabFocusReason);
}

void KeltoParameterForm::undo()
{
    d->step(&QUndoStack::undo);
}

void KeltoParameterForm::redo()
{
    d->step(&QUndoStack::redo);
}

void KeltoParameterForm::resetToDefaults()
{
    d->model->resetToDefaults();
}

bool KeltoParameterForm::event(QEvent *event)
{
    // Otherwise the window's own shortcut would have these keys before an editor has.
    if (event->type() == QEvent::ShortcutOverride
        && isUndoOrRedo(static_cast<QKeyEvent &>(*event))) {
        event->accept();
        return true;
    }
    // The window finds out its size next, for which the form has to say all that it will say.
    if (event->type() == QEvent::Polish)
        d->showFindings();
    return QWidget::event(event);
}

void KeltoParameterForm::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        d->followLocale();
        d->showTexts();
        d->model->retranslate();
        d->alignColumns();
    } else if (event->type() == QEvent::LocaleChange) {
        d->model->setLocale(locale());
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        d->showArrow();
    }
}

void KeltoParameterForm::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Undo))
        undo();
    else if (event->matches(QKeySequence::Redo))
        redo();
    else
        QWidget::keyPressEvent(event);
}
