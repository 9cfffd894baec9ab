// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOPARAMETERMODEL_H
#define KELTOPARAMETERMODEL_H

#include "kelto_forms_export.h"

#include <Kelto/KeltoItemFinding>
#include <Kelto/KeltoItemHints>
#include <Kelto/VParameter>

#include <QAbstractTableModel>
#include <QLocale>
#include <QPair>
#include <QString>
#include <QVariant>
#include <QVector>

#include <memory>

class AUTH_SET;
class KeltoParameterModelPrivate;
class QUndoStack;

/**
 * The parameters of a mode with their values, what is wrong with these, and a stack to undo what
 * was entered. KeltoParameterForm shows it; so can any other view, and QML.
 *
 * A row is a parameter, in the order of the hints, and a key that comes again is left out. The
 * columns are those of Column; all roles but the display and the edit role are the same in each of
 * them.
 *
 * **Stored values.** A single value is stored as one QString: a number in the C locale, with the
 * digits that were typed, "true" or "false", a path, or the text itself. Several values are stored
 * as a QStringList in the forms of KeltoItemParameterTransform. A value that came in through
 * setValues() and was not edited stays as it came, also of another type, and also if it is no
 * number; nothing ever becomes 0 by itself.
 *
 * **Typed values.** The display and the edit role have numbers as they are written in locale().
 * "." is a decimal sign in every locale, beside the locale's own one, and groups of digits are not
 * understood: in German "1.234" is stored as "1.234" and shown as "1,234", and "1.234,5" is kept
 * and found to be no number.
 *
 * **Findings** come from KeltoItemParameterVerify::explain() and are gathered once control is back
 * in the event loop, or when they are asked for.
 */
class KELTO_FORMS_EXPORT KeltoParameterModel : public QAbstractTableModel
{
    Q_OBJECT
    Q_PROPERTY(bool complete READ isComplete NOTIFY completeChanged)
    Q_PROPERTY(QLocale locale READ locale WRITE setLocale NOTIFY localeChanged)

public:
    enum Column { NameColumn, SymbolColumn, ValueColumn, UnitColumn, ColumnCount };
    Q_ENUM(Column)

    /// What a parameter holds, by its VParameter::parameterObjectName(), VParameter::isMulti() and
    /// the hint of choices.
    enum Kind {
        Text, ///< "text", "string", "QString", and every word that is none of the others.
        Number, ///< "float", "double".
        WholeNumber, ///< "int".
        Bool, ///< "bool".
        File, ///< "file": an existing one.
        NewFile, ///< "newfile": one to be written.
        Directory, ///< "directory".
        Choice, ///< Any single value with a hint of choices.
        Color, ///< "color".
        Table, ///< Several values of any kind.
    };
    Q_ENUM(Kind)

    enum Role {
        KeyRole = Qt::UserRole + 1, ///< "key": the plain name.
        NameRole, ///< "name": as a person reads it: the label, or else the translated name.
        SymbolRole, ///< "symbol".
        UnitRole, ///< "unit".
        ValueRole, ///< "value": as it is stored; setData() takes it so, too.
        TextRole, ///< "text": as the edit role.
        GroupRole, ///< "group": plain name of the sub-group.
        TranslatedGroupRole, ///< "translatedGroup".
        KindRole, ///< "kind": an int, see Kind.
        ChoicesRole, ///< "choices": a list of maps with "value" and "label".
        FileFiltersRole, ///< "fileFilters".
        HelpRole, ///< "help".
        FindingRole, ///< "finding": what is wrong, in short sentences, one on each line.
        AdvancedRole, ///< "advanced": shown on demand only.
        OptionalRole, ///< "optional": may stay empty.
        CountsRole, ///< "counts": whether it counts beside the other values.
        MissingRole, ///< "missing": whether it counts, is not optional, and is empty.
    };
    Q_ENUM(Role)

    /// No parameters.
    explicit KeltoParameterModel(QObject *parent = nullptr);
    /// The parameters of a mode of an exclusive group, both by plain or translated name. Empty for
    /// an unknown group or mode and for null. @p registry is only read here.
    KeltoParameterModel(const AUTH_SET *registry, QString group, QString mode,
                        QObject *parent = nullptr);
    /// The same by the mode's position in its group, which tells modes of one name apart.
    KeltoParameterModel(const AUTH_SET *registry, QString group, int position,
                        QObject *parent = nullptr);
    /// These parameters, put into the order of @p hints. Their own values are not used.
    explicit KeltoParameterModel(QVector<VParameter> parameters,
                                 KeltoItemHints hints = KeltoItemHints(),
                                 QObject *parent = nullptr);
    ~KeltoParameterModel() override;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// The edit role takes what a person typed, ValueRole what is stored. Only the value column can
    /// be edited.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Row of the parameter with this key; -1 for an unknown one.
    int row(QString key) const;
    /// The parameter of a row; an empty one for a row that is not there.
    VParameter parameter(int row) const;

    /**
     * For each parameter, in order, "Attribute/" and its key with the value, and "Unit/" and its
     * key with the first text of its unit; then the other entries that setValues() got.
     *
     * A parameter that is empty has no value in it, unless it is optional; then, and where it does
     * not count, its value is an empty text.
     */
    QVector<QPair<QString, QVariant>> values() const;
    /// The same with what was entered for parameters that do not count at present, in place of the
    /// empty texts: for a file, which setValues() reads again, as they may count later.
    QVector<QPair<QString, QVariant>> enteredValues() const;
    /// Replaces all values, also by none where a key is missing, and forgets what can be undone. Of
    /// a key that comes again the first counts. A unit that differs from the parameter's is kept
    /// and shown. Takes no default: those fill in what is empty at the start only. The list that
    /// values() gives changes nothing at all.
    void setValues(QVector<QPair<QString, QVariant>> values);
    /// Gives every parameter its default, or none; a step to undo.
    void resetToDefaults();

    /// What is wrong, in the order of the rows.
    QVector<KeltoItemFinding> findings() const;
    /// Whether nothing is wrong.
    bool isComplete() const;
    /// How many parameters count.
    int countingCount() const;

    /// The steps to undo, one for each value that was edited. The model owns it.
    QUndoStack *undoStack() const;

    /// In which numbers are shown and typed; QLocale() at first.
    QLocale locale() const;
    void setLocale(QLocale locale);

public Q_SLOTS:
    /// Tells views that all texts may be different now. KeltoParameterForm calls it when the
    /// language changes; a model without one gets no such event.
    void retranslate();

Q_SIGNALS:
    /// A value was changed by a view, setData(), resetToDefaults(), undo or redo.
    void edited();
    void completeChanged(bool complete);
    /// findings() may give something else than before.
    void findingsChanged();
    void localeChanged();

private:
    friend class KeltoParameterFormPrivate;
    friend class KeltoParameterModelPrivate;

    /// As setData() with the role TextRole. What is typed in one session is one step to undo.
    void typeText(int row, const QString &text, int session);

    std::unique_ptr<KeltoParameterModelPrivate> d;
};

#endif
