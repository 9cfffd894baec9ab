// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "vparameter.h"

#include "keltoparameterentry.h"

#include <utility>

class VParameterData : public QSharedData
{
public:
    QPair<QString, QString> name;
    QPair<QString, QString> unit;
    QString symbol;
    QPair<QString, QString> group;
    bool multi = false;
    QString parameterObjectName;
    QVariant value;
};

namespace {

/// A text of length 0 that is not null.
QString emptyText()
{
    return QLatin1String("");
}

/// How the sets form writes @p multi.
QString multiWord(bool multi)
{
    return multi ? QStringLiteral("true") : QStringLiteral("false");
}

QString normalizedName(QString name)
{
    name.remove(QLatin1Char(' '));
    name.remove(QLatin1Char('_'));
    name.remove(QLatin1Char('-'));
    return std::move(name).toLower();
}

} // namespace

VParameter::VParameter()
    : d(new VParameterData)
{
    clear();
}

VParameter::VParameter(QVariant value, QPair<QString, QString> name, QPair<QString, QString> unit,
                       QString symbol, QPair<QString, QString> group, QString parameterObjectName,
                       bool multi)
    : d(new VParameterData)
{
    set(std::move(value), std::move(name), std::move(unit), std::move(symbol), std::move(group),
        std::move(parameterObjectName), multi);
}

VParameter::VParameter(double value, QString name, QString unit, QString symbol)
    : VParameter(QVariant(value), { name, name }, { unit, unit }, std::move(symbol),
                 { emptyText(), emptyText() }, QStringLiteral("float"), false)
{
}

VParameter::VParameter(QStringList sets)
    : d(new VParameterData)
{
    set(std::move(sets));
}

VParameter::VParameter(const VParameter &other) = default;
VParameter &VParameter::operator=(const VParameter &other) = default;
VParameter::~VParameter() = default;

QPair<QString, QString> VParameter::name() const
{
    return d->name;
}

QPair<QString, QString> VParameter::unit() const
{
    return d->unit;
}

QString VParameter::symbol() const
{
    return d->symbol;
}

QPair<QString, QString> VParameter::group() const
{
    return d->group;
}

bool VParameter::isMulti() const
{
    return d->multi;
}

QString VParameter::parameterObjectName() const
{
    return d->parameterObjectName;
}

QVariant VParameter::value() const
{
    return d->value;
}

void VParameter::set(QVariant value)
{
    d->value = std::move(value);
}

void VParameter::set(QVariant value, QPair<QString, QString> name, QPair<QString, QString> unit,
                     QString symbol, QPair<QString, QString> group, QString parameterObjectName,
                     bool multi)
{
    VParameterData &fields = *d;
    fields.value = std::move(value);
    fields.name = std::move(name);
    fields.unit = std::move(unit);
    fields.symbol = std::move(symbol);
    fields.group = std::move(group);
    fields.parameterObjectName = std::move(parameterObjectName);
    fields.multi = multi;
}

void VParameter::set(QStringList sets)
{
    if (sets.size() != KeltoParameterEntry::PlaceCount)
        return;
    VParameterData &fields = *d;
    fields.group
        = { sets.at(KeltoParameterEntry::Group), sets.at(KeltoParameterEntry::TranslatedGroup) };
    fields.name
        = { sets.at(KeltoParameterEntry::Key), sets.at(KeltoParameterEntry::TranslatedKey) };
    fields.unit = { sets.at(KeltoParameterEntry::Unit), sets.at(KeltoParameterEntry::SecondUnit) };
    fields.parameterObjectName = sets.at(KeltoParameterEntry::ObjectName);
    // With neither word the flag stays.
    if (sets.at(KeltoParameterEntry::Multi) == QLatin1String("true"))
        fields.multi = true;
    if (sets.at(KeltoParameterEntry::Multi) == QLatin1String("false"))
        fields.multi = false;
    fields.symbol = sets.at(KeltoParameterEntry::Symbol);
}

void VParameter::set(VParameter other)
{
    d = other.d;
}

void VParameter::clear()
{
    set(QVariant(), {}, {}, emptyText(), {}, emptyText(), false);
}

bool VParameter::isName(QString text) const
{
    const QString wanted = normalizedName(std::move(text));
    return wanted == normalizedName(d->name.first) || wanted == normalizedName(d->name.second);
}

bool VParameter::isEqual(const VParameter *other) const
{
    // Shared fields are no shortcut: a value need not equal itself, NaN for one.
    return other && d->name == other->d->name && d->unit == other->d->unit
        && d->group == other->d->group && d->value == other->d->value && d->multi == other->d->multi
        && d->parameterObjectName == other->d->parameterObjectName && d->symbol == other->d->symbol;
}

QStringList VParameter::toSetsForm() const
{
    // In the order of KeltoParameterEntry::Place.
    return { d->group.first,      d->name.first,  d->parameterObjectName,
             multiWord(d->multi), d->unit.first,  d->unit.second,
             d->symbol,           d->name.second, d->group.second };
}
