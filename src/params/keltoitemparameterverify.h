// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOITEMPARAMETERVERIFY_H
#define KELTOITEMPARAMETERVERIFY_H

#include "kelto_export.h"

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

class AUTH_INF;
struct KeltoItemFinding;

/**
 * The check, before a calculation, that a value was entered for every parameter.
 *
 * All operations are static, keep nothing, change neither the item nor the values and report no
 * error. isValid() looks at keys alone (docs/traps.md); explain() looks at the values as well.
 */
class KELTO_EXPORT KeltoItemParameterVerify
{
public:
    /**
     * Whether @p values holds a key for every required parameter of an inner mode of @p item.
     *
     * The key of a parameter is "Attribute/" and its own key, with case; what value is under it
     * does not matter. Required are all parameters but those of the sub-groups in @p skipGroups,
     * which are compared with the plain and the translated sub-group of an entry, with case. A mode
     * of which none is required is valid.
     *
     * @param mode plain name of the inner mode.
     * @return false for an unknown mode, a mode without parameters and for null pointers.
     */
    static bool isValid(const AUTH_INF *item, const QVector<QPair<QString, QVariant>> *values,
                        QString mode, QStringList skipGroups);

    /// The same with one sub-group to skip.
    static bool isValid(const AUTH_INF *item, const QVector<QPair<QString, QVariant>> *values,
                        QString mode, QString skipGroup);

    /// The same with every parameter of the mode required.
    static bool isValid(const AUTH_INF *item, const QVector<QPair<QString, QVariant>> *values,
                        QString mode);

    /**
     * The value keys that isValid() finds absent, "Attribute/" and the key of the parameter, in the
     * order of the entries and each once.
     *
     * @return empty for an unknown mode, a mode without parameters and for null pointers, where
     *         isValid() is false without any key to name; explain() tells these apart.
     */
    static QStringList missing(const AUTH_INF *item,
                               const QVector<QPair<QString, QVariant>> *values, QString mode,
                               QStringList skipGroups);

    /// The same with one sub-group to skip.
    static QStringList missing(const AUTH_INF *item,
                               const QVector<QPair<QString, QVariant>> *values, QString mode,
                               QString skipGroup);

    /// The same with every parameter of the mode required.
    static QStringList missing(const AUTH_INF *item,
                               const QVector<QPair<QString, QVariant>> *values, QString mode);

    /**
     * Everything that keeps a person from calculating: what is missing, and which values do not fit
     * the hints of the item, in the order of the entries; see KeltoItemFinding.
     *
     * isValid() is true exactly when no finding is an absence. Values of skipped sub-groups are not
     * looked at, nor are those that do not count, see KeltoItemHints::counts(). A parameter that
     * two entries describe is described once, by the first.
     *
     * @return empty for null pointers.
     */
    static QVector<KeltoItemFinding> explain(const AUTH_INF *item,
                                             const QVector<QPair<QString, QVariant>> *values,
                                             QString mode, QStringList skipGroups);

    /// The same with one sub-group to skip.
    static QVector<KeltoItemFinding> explain(const AUTH_INF *item,
                                             const QVector<QPair<QString, QVariant>> *values,
                                             QString mode, QString skipGroup);

    /// The same with every parameter of the mode required.
    static QVector<KeltoItemFinding> explain(const AUTH_INF *item,
                                             const QVector<QPair<QString, QVariant>> *values,
                                             QString mode);
};

#endif
