// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOITEMHINTS_H
#define KELTOITEMHINTS_H

#include "kelto_export.h"

#include <QPair>
#include <QSharedDataPointer>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

class AUTH_INF;
class AUTH_SET;
class KeltoItemHintsData;
class VParameter;

/**
 * What the extra keys of a module item say about its parameters and results: with what value a
 * form starts, which values are allowed, what may stay empty, how it is called and explained, and
 * in which order things stand.
 *
 * | extra key                      | its text                                                  |
 * |--------------------------------|-----------------------------------------------------------|
 * | `Default.key`                  | the value; several values are joined by ";"               |
 * | `Min.key`, `Max.key`           | a number with "." as decimal sign; the limit is allowed   |
 * | `Choices.key`                  | values joined by bars, each may be "value=label"          |
 * | `Optional.key`, `Advanced.key` | "true" or "false"                                         |
 * | `When.key`                     | the key of a parameter, "=", and values joined by bars    |
 * | `Help.key`, `Label.key`        | text for a person, translated                             |
 * | `Files.key`                    | name filters as QFileDialog takes them, joined by ";;"    |
 * | `Order`                        | keys joined by bars                                       |
 * | `Belong.key`                   | of a result: inner modes joined by bars                   |
 *
 * A bar is "|". `key` is all that stands behind the first dot. "@" and the plain name of an inner
 * mode behind it, or behind `Order`, make a hint count for that mode only; it replaces the one
 * without. Where keys or modes hold "@" themselves, all behind the dot is the key if there is such
 * a key, and else the first "@" counts that has a key before it and a mode behind it. Texts are
 * compared exactly, with case; white space around the elements of a list and around "=" does not
 * count. Extra keys of any other form are the host's own.
 *
 * A value has to be one text: one that a file holds as a list was not quoted. The default of an
 * optional parameter may be empty. Of a default with several values, each has to fit the choices
 * and, with "|" between the numbers of one value, the limits.
 *
 * A hint that makes no sense on its own counts as absent, and problems() lists it. So does one that
 * makes no sense beside the others of its mode; then none takes its place. Parameters and results
 * that are unknown have no hints: every question about them has the answer that it has without a
 * hint.
 *
 * Objects are values: cheap to copy, and independent of the item or registry that they were made
 * from. Texts for persons are looked up in the item's translation context when they are asked for,
 * so they follow a change of language.
 */
class KELTO_EXPORT KeltoItemHints
{
public:
    /// A value that can be chosen, and how a person reads it: the label, or else the value,
    /// translated.
    struct Choice
    {
        QString value;
        QString label;
    };

    /// Something wrong with an extra key, which does not count for that reason; of an order, the
    /// unknown key alone does not count.
    struct KELTO_EXPORT Problem
    {
        enum Kind {
            UnknownKey, ///< No parameter or result has this key; for Belong, no result.
            UnknownMode, ///< No inner mode has the name behind "@" or in the list of a result.
            NotOneText, ///< A list, or another value that has no text.
            NotANumber, ///< A limit, or a default that is to be one: also a fraction for int.
            NotABoolean, ///< Neither "true" nor "false", as a flag or the default of a bool.
            EmptyLimits, ///< The minimum is above the maximum; neither counts.
            DefaultOutsideLimits,
            DefaultNotAChoice,
            BadChoices, ///< None at all, or one value twice.
            BadCondition, ///< Without "=", on an unknown parameter, for none of its choices, or in
                          ///< a circle.
            DuplicateHint, ///< An extra key that stands in the item before; the first counts.
        };

        Kind kind;
        QString extraKey; ///< Whole, as the item has it.
        QString value; ///< Its text.
        /// The key or the mode that is unknown; of a condition on values none of which can be
        /// chosen, a "=" and those values; of a default, the choices that it is none of, as their
        /// hint lists them, or the minimum, a bar and the maximum. Empty for all else.
        QString part;
        /// A sentence that says what is wrong, in the language of the program.
        QString text() const;
    };

    /// No hints.
    KeltoItemHints();
    /// The hints of @p item for all modes: those with "@" and a mode do not count.
    explicit KeltoItemHints(AUTH_INF item);
    /// The hints of @p item for the inner mode of this plain or translated name, of which an empty
    /// one names no mode. For an unknown mode the same as without one.
    KeltoItemHints(AUTH_INF item, QString mode);
    /// The hints for a mode of an exclusive group, both by plain or translated name. Where modules
    /// of the group share the name, the first counts, as in AUTH_SET::defaultParameterList(). No
    /// hints for an unknown group or mode and for null. @p registry is only read here.
    KeltoItemHints(const AUTH_SET *registry, QString group, QString mode);
    /// The same by the mode's position in its group, which tells modes of one name apart.
    KeltoItemHints(const AUTH_SET *registry, QString group, int position);
    /// Moving copies, too: an object that was moved from is unchanged.
    KeltoItemHints(const KeltoItemHints &other);
    KeltoItemHints(KeltoItemHints &&other) noexcept;
    KeltoItemHints &operator=(const KeltoItemHints &other);
    KeltoItemHints &operator=(KeltoItemHints &&other) noexcept;
    ~KeltoItemHints();

    /// Plain name of the inner mode that the hints are for; empty for all modes.
    QString mode() const;

    /// The value a form starts with, as it is stored: a QString, for several values a QStringList.
    /// Invalid without a default.
    QVariant defaultValue(QString key) const;
    /// Lowest and highest number that is allowed; minus and plus infinity without a limit.
    double minimum(QString key) const;
    double maximum(QString key) const;
    /// The values that can be chosen, in the order of the hint; empty where any can be entered.
    QVector<Choice> choices(QString key) const;
    /// Whether the parameter may stay empty; it is then stored as an empty text.
    bool isOptional(QString key) const;
    /// Whether a form shows the parameter on demand only.
    bool isAdvanced(QString key) const;
    /// Whether the parameter counts beside these @p values, whose keys begin with "Attribute/":
    /// true without a condition, or while the parameter that it names counts and has one of the
    /// values, several values at least one of them. What does not count is stored as an empty text.
    bool counts(QString key, const QVector<QPair<QString, QVariant>> *values) const;
    /// Key of the parameter on which it depends whether this one counts; empty without a condition.
    QString conditionKey(QString key) const;
    /// The values of that parameter with which this one counts.
    QStringList conditionValues(QString key) const;
    /// Name for a person in place of the key, translated; empty without one.
    QString label(QString key) const;
    /// A sentence or more that explains it, translated; empty without one.
    QString help(QString key) const;
    /// Name filters for a file dialog, one element each; empty for all files.
    QStringList fileFilters(QString key) const;
    /// The keys that `Order` names, in this order, each once, without unknown ones.
    QStringList order() const;
    /// The plain names of the inner modes that give a result, each once; all modes without the
    /// hint, none for what is no result.
    QStringList resultModes(QString key) const;

    /// The same records in the order of the hint: what it names first, then the rest as before.
    QVector<VParameter> ordered(QVector<VParameter> parameters) const;
    /// The parameters of the mode, sorted like AUTH_SET::defaultParameterList() and then ordered().
    /// Empty without a mode.
    QVector<VParameter> parameters() const;
    /// The results that the mode gives, sorted and ordered in the same way; without a mode all
    /// results of the item.
    QVector<VParameter> results() const;

    /// @p text in the language of the program, from the item's translation context.
    QString translated(QString text) const;

    /// Everything that is wrong with the hints of the item, for all of its modes, in the order of
    /// its extra keys.
    QVector<Problem> problems() const;

private:
    QSharedDataPointer<KeltoItemHintsData> d;
};

#endif
