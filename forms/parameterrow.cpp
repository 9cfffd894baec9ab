// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "parameterrow_p.h"

#include "numbertext_p.h"
#include "tablecells_p.h"

#include <QHash>

using Kind = KeltoParameterModel::Kind;

namespace {

Kind kindOf(const VParameter &parameter, bool hasChoices)
{
    static const QHash<QString, Kind> kinds {
        { QStringLiteral("float"), Kind::Number },
        { QStringLiteral("double"), Kind::Number },
        { QStringLiteral("int"), Kind::WholeNumber },
        { QStringLiteral("bool"), Kind::Bool },
        { QStringLiteral("file"), Kind::File },
        { QStringLiteral("newfile"), Kind::NewFile },
        { QStringLiteral("directory"), Kind::Directory },
        { QStringLiteral("color"), Kind::Color },
    };
    if (parameter.isMulti())
        return Kind::Table;
    if (hasChoices)
        return Kind::Choice;
    return kinds.value(parameter.parameterObjectName(), Kind::Text);
}

/// Whether the second of two names is no more than the item's translation of the first, or not
/// translated yet, as in an item that comes from a file.
bool isTranslation(const QPair<QString, QString> &names, const KeltoItemHints &hints)
{
    return names.second.isEmpty() || names.second == names.first
        || names.second == hints.translated(names.first);
}

/// The elements of several values, of which a single one may have come as a number. An empty text
/// is none, as it is stored for what is optional.
QStringList elementsOf(const QVariant &value)
{
    if (isEmptyValue(value))
        return QStringList();
    const QStringList elements = value.toStringList();
    return elements.isEmpty() ? QStringList(value.toString()) : elements;
}

QString shownBool(const QString &stored)
{
    if (stored == QLatin1String("true"))
        return KeltoParameterModel::tr("Yes");
    if (stored == QLatin1String("false"))
        return KeltoParameterModel::tr("No");
    return stored;
}

QString shownChoice(const QString &stored, const QVector<KeltoItemHints::Choice> &choices)
{
    for (const KeltoItemHints::Choice &choice : choices) {
        if (choice.value == stored)
            return choice.label;
    }
    return stored;
}

} // namespace

bool isEmptyValue(const QVariant &value)
{
    if (value.userType() == QMetaType::QStringList || value.userType() == QMetaType::QVariantList)
        return value.toList().isEmpty();
    return !value.isValid() || (value.canConvert<QString>() && value.toString().isEmpty());
}

QString storedText(const QVariant &value)
{
    // An INI file gives a text with commas as a list.
    if (value.userType() == QMetaType::QStringList || value.userType() == QMetaType::QVariantList)
        return value.toStringList().join(QLatin1Char(','));
    return value.toString();
}

bool isSameValue(const QVariant &first, const QVariant &second)
{
    return first.userType() == second.userType() && first == second;
}

ParameterRow::ParameterRow(const VParameter &described, const KeltoItemHints &hints)
    : parameter(described)
    , key(described.name().first)
    , kind(kindOf(described, !hints.choices(key).isEmpty()))
    , isOptional(hints.isOptional(key))
    , isAdvanced(hints.isAdvanced(key))
    , conditionKey(hints.conditionKey(key))
    , nameFollows(isTranslation(described.name(), hints))
    , groupFollows(isTranslation(described.group(), hints))
    , value(hints.defaultValue(key))
{
}

QString ParameterRow::name(const KeltoItemHints &hints) const
{
    const QString label = hints.label(key);
    if (!label.isEmpty())
        return label;
    return nameFollows ? hints.translated(key) : parameter.name().second;
}

QString ParameterRow::group(const KeltoItemHints &hints) const
{
    const QPair<QString, QString> names = parameter.group();
    return groupFollows ? hints.translated(names.first) : names.second;
}

QString ParameterRow::unit() const
{
    return isEmptyValue(storedUnit) ? parameter.unit().first : storedText(storedUnit);
}

bool ParameterRow::isEmpty() const
{
    return isEmptyValue(value);
}

QVariant ParameterRow::typed(const QLocale &locale) const
{
    switch (kind) {
    case Kind::Number:
    case Kind::WholeNumber:
        return NumberText::shown(storedText(value), locale);
    case Kind::Table:
        return elementsOf(value);
    default:
        return storedText(value);
    }
}

QString ParameterRow::shown(const KeltoItemHints &hints, const QLocale &locale) const
{
    return kind == Kind::Table ? elementsOf(value).join(QStringLiteral("; "))
                               : shownText(storedText(value), hints, locale);
}

QString ParameterRow::shownText(const QString &stored, const KeltoItemHints &hints,
                                const QLocale &locale) const
{
    switch (kind) {
    case Kind::Number:
    case Kind::WholeNumber:
        return NumberText::shown(stored, locale);
    case Kind::Bool:
        return shownBool(stored);
    case Kind::Choice:
        return shownChoice(stored, hints.choices(key));
    case Kind::Table: {
        const TableShape shape = tableShapeOf(parameter.parameterObjectName());
        return TableCells(shape.columns, shape.cells).shownElement(stored, locale);
    }
    default:
        return stored;
    }
}

QVariant ParameterRow::stored(const QVariant &typedValue, const QLocale &locale) const
{
    if (kind == Kind::Table)
        return typedValue.toStringList();
    const bool isNumber = kind == Kind::Number || kind == Kind::WholeNumber;
    if (isNumber && typedValue.userType() == QMetaType::QString)
        return NumberText::stored(typedValue.toString(), locale);
    return storedText(typedValue);
}
