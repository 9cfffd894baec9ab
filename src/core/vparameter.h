// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef VPARAMETER_H
#define VPARAMETER_H

#include "kelto_export.h"

#include <QPair>
#include <QSharedDataPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

class VParameterData;

/**
 * One parameter of a calculation module, or one of its results: a value, and what the value is
 * called, measured in and shown under.
 *
 * Name, unit and group are pairs of texts. In the name and the group, first is the plain form and
 * second the translated one; the unit keeps two texts of free meaning. Every field may be empty.
 *
 * The **sets form** is the layout in which module items hold parameters, a list of exactly nine
 * texts: 0 plain group, 1 plain name, 2 object name, 3 "true" for several values or "false" for
 * one, 4 and 5 the two texts of the unit, 6 symbol, 7 translated name, 8 translated group. It never
 * holds the value.
 *
 * A parameter is a copyable value. Copies share their fields until one of them is changed, so that
 * they are cheap; they never see each other's later changes. Different parameters may be used by
 * different threads, one parameter by one thread at a time. No operation reports an error.
 */
class KELTO_EXPORT VParameter
{
public:
    /// An empty parameter, as clear() leaves it.
    VParameter();

    /// A parameter with the given fields.
    VParameter(QVariant value, QPair<QString, QString> name, QPair<QString, QString> unit,
               QString symbol, QPair<QString, QString> group, QString parameterObjectName,
               bool multi);

    /// A single floating-point value without a group. Both texts of the name are @p name, both of
    /// the unit @p unit, and the object name is "float".
    VParameter(double value, QString name, QString unit, QString symbol);

    /// The parameter that @p sets describes in the sets form, without a value. A list that is not
    /// nine texts long gives an empty parameter, in which symbol and object name are null as well.
    explicit VParameter(QStringList sets);

    /// Moving copies, too: a parameter that was moved from is unchanged.
    VParameter(const VParameter &other);
    VParameter &operator=(const VParameter &other);
    ~VParameter();

    /// Plain name, by which modules and sorted lists know the parameter, and translated name.
    QPair<QString, QString> name() const;
    QPair<QString, QString> unit() const;
    QString symbol() const;
    /// Plain and translated name of the group under which the parameter is shown.
    QPair<QString, QString> group() const;
    /// Whether the parameter holds several values.
    bool isMulti() const;
    /// A word for the kind of the value, for example "float" or "QVector<QPointF>"; free text.
    QString parameterObjectName() const;
    /// The current value; an invalid QVariant when none is set.
    QVariant value() const;

    /// Replaces the value and nothing else. A list of texts has to be passed in a QVariant: as it
    /// is, it is taken for the sets form.
    void set(QVariant value);

    /// Replaces all fields.
    void set(QVariant value, QPair<QString, QString> name, QPair<QString, QString> unit,
             QString symbol, QPair<QString, QString> group, QString parameterObjectName,
             bool multi);

    /**
     * Replaces all fields but the value by what @p sets describes in the sets form. A list that is
     * not nine texts long changes nothing.
     *
     * Only the exact words "true" and "false" change isMulti(); with any other text it stays.
     */
    void set(QStringList sets);

    /// Replaces all fields by those of @p other.
    void set(VParameter other);

    /// Empties all fields: no value, isMulti() false, texts of length 0. Those of the pairs are
    /// null, symbol and object name are not.
    void clear();

    /// Whether @p text is the plain or the translated name. Case, spaces, "_" and "-" do not count;
    /// all other characters do.
    bool isName(QString text) const;

    /// Whether all fields are equal to those of @p other: texts exactly and with case, values under
    /// QVariant's operator ==, which converts between types and finds a NaN equal to nothing. False
    /// for a null pointer.
    bool isEqual(const VParameter *other) const;

    /// The nine texts of the sets form.
    QStringList toSetsForm() const;

private:
    QSharedDataPointer<VParameterData> d;
};

Q_DECLARE_TYPEINFO(VParameter, Q_MOVABLE_TYPE);

#endif
