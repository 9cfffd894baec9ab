// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOPARAMETERFORM_H
#define KELTOPARAMETERFORM_H

#include "kelto_forms_export.h"

#include <Kelto/KeltoItemFinding>
#include <Kelto/KeltoItemHints>
#include <Kelto/VParameter>

#include <QPair>
#include <QString>
#include <QVariant>
#include <QVector>
#include <QWidget>

#include <memory>

class AUTH_SET;
class KeltoParameterFormPrivate;
class KeltoParameterModel;

/**
 * A form in which a person enters the values of a mode: a view of a KeltoParameterModel.
 *
 * There is a box per sub-group, with a row per parameter: name and symbol, an editor whose object
 * name is the key of the parameter, and the unit. What is wrong stands below the row in words, and
 * in a line at the bottom of the form. Parameters that do not count are hidden, advanced ones until
 * they are asked for.
 *
 * The shortcuts to undo and redo work on the model's stack while the focus is in the form.
 */
class KELTO_FORMS_EXPORT KeltoParameterForm : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool advancedVisible READ isAdvancedVisible WRITE setAdvancedVisible NOTIFY
                   advancedVisibleChanged)
    Q_PROPERTY(
        bool searchVisible READ isSearchVisible WRITE setSearchVisible NOTIFY searchVisibleChanged)
    Q_PROPERTY(bool summaryVisible READ isSummaryVisible WRITE setSummaryVisible NOTIFY
                   summaryVisibleChanged)

public:
    /// A form without parameters.
    explicit KeltoParameterForm(QWidget *parent = nullptr);
    /// A form with a model of its own, made by the constructor of KeltoParameterModel with the same
    /// arguments.
    KeltoParameterForm(const AUTH_SET *registry, QString group, QString mode,
                       QWidget *parent = nullptr);
    KeltoParameterForm(const AUTH_SET *registry, QString group, int position,
                       QWidget *parent = nullptr);
    explicit KeltoParameterForm(QVector<VParameter> parameters,
                                KeltoItemHints hints = KeltoItemHints(), QWidget *parent = nullptr);
    /// A view of @p model, as after setModel().
    KeltoParameterForm(KeltoParameterModel *model, QWidget *parent);
    ~KeltoParameterForm() override;

    /// Never null.
    KeltoParameterModel *model() const;
    /// Shows another model, which stays the caller's and may be deleted before the form, and
    /// deletes the model that the form had made itself. nullptr gives an empty one of its own.
    void setModel(KeltoParameterModel *model);

    /// The same as of the model.
    QVector<QPair<QString, QVariant>> values() const;
    void setValues(QVector<QPair<QString, QVariant>> values);
    QVector<KeltoItemFinding> findings() const;
    bool isComplete() const;

    /// The editor of a parameter; nullptr for an unknown key. The form owns it.
    QWidget *editor(QString key) const;

    /// Whether advanced parameters are shown; false at first.
    bool isAdvancedVisible() const;
    /// Whether there is a line to search for parameters; false at first.
    bool isSearchVisible() const;
    /// Whether there is a line that says what is missing; true at first.
    bool isSummaryVisible() const;

public Q_SLOTS:
    void setAdvancedVisible(bool visible);
    void setSearchVisible(bool visible);
    void setSummaryVisible(bool visible);
    /// Brings the editor of a parameter into view, even one that is hidden as advanced, and gives
    /// it the focus. Nothing happens for an unknown key and for a parameter that does not count.
    void focusParameter(QString key);
    /// As the shortcuts: undoes or redoes a step of the model, if there is one, and brings what it
    /// changes into view. For the actions of a host, which stay connected when the model changes.
    void undo();
    void redo();
    /// The same as of the model.
    void resetToDefaults();

Q_SIGNALS:
    /// The same as of the model.
    void edited();
    void completeChanged(bool complete);

    void advancedVisibleChanged(bool visible);
    void searchVisibleChanged(bool visible);
    void summaryVisibleChanged(bool visible);

protected:
    /// Keeps the shortcuts to undo and redo from being taken by the window, and is ready before it
    /// is shown.
    bool event(QEvent *event) override;
    /// Sets all texts anew when the language has changed, and numbers when the locale has.
    void changeEvent(QEvent *event) override;
    /// Undoes and redoes.
    void keyPressEvent(QKeyEvent *event) override;

private:
    std::unique_ptr<KeltoParameterFormPrivate> d;
};

#endif
