// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What the hints of an item say about each of its parameters and results.

#include "keltoitemhints.h"

#include "auth_set.h"
#include "core/namesort_p.h"
#include "hints/countingparameters_p.h"
#include "hints/keltoitemhints_p.h"
#include "keltoitemtranslation.h"
#include "keltoparameterentry.h"
#include "vparameter.h"

#include <algorithm>
#include <climits>

namespace {

using NamePair = QPair<QString, QString>;

/// Translated names that are empty name nothing.
int positionOfMode(const AUTH_INF &item, const QString &mode)
{
    const int plain = item.inner_mode_nameList.indexOf(mode);
    return plain >= 0 || mode.isEmpty() ? plain : item.inner_mode_nameList_tr.indexOf(mode);
}

KeltoItemHintsData *noHints()
{
    return new KeltoItemHintsData(AUTH_INF(), allModes);
}

/// A group lists its modes module by module, so that a mode's place in its module is how far it
/// stands behind the first of the same module.
KeltoItemHintsData *hintsAt(const AUTH_SET *registry, const QString &group, int position)
{
    if (!registry)
        return noHints();
    const QVector<QPair<int, QString>> modes = registry->exclusive_group_mode_description(group);
    if (position < 0 || position >= modes.size())
        return noHints();
    const int module = modes.at(position).first;
    const auto first
        = std::find_if(modes.cbegin(), modes.cend(),
                       [module](const QPair<int, QString> &mode) { return mode.first == module; });
    const int firstPosition = static_cast<int>(first - modes.cbegin());
    return new KeltoItemHintsData(registry->AUTH_INF_DATA().at(module), position - firstPosition);
}

int positionOfEither(const QVector<NamePair> &pairs, const QString &name)
{
    const auto found = std::find_if(pairs.cbegin(), pairs.cend(), [&name](const NamePair &pair) {
        return pair.first == name || pair.second == name;
    });
    return found == pairs.cend() ? -1 : static_cast<int>(found - pairs.cbegin());
}

/// By the position of the name pair, as the registry looks for the parameters of a mode.
KeltoItemHintsData *hintsOf(const AUTH_SET *registry, const QString &group, const QString &mode)
{
    if (!registry)
        return noHints();
    const QVector<NamePair> groups = registry->currentExclusiveGroupList();
    const int index = positionOfEither(groups, group);
    if (index < 0)
        return noHints();
    const QString plain = groups.at(index).first;
    const QVector<NamePair> modes = registry->exclusive_group_inner_mode_namelist_at(plain);
    return hintsAt(registry, plain, positionOfEither(modes, mode));
}

QVector<VParameter> sortedParameters(const QVector<QStringList> &entries)
{
    QVector<VParameter> parameters;
    parameters.reserve(entries.size());
    for (const QStringList &entry : entries)
        parameters.append(VParameter(entry));
    return sortedByFirstBearer(parameters,
                               [](const VParameter &parameter) { return parameter.name().first; });
}

} // namespace

KeltoItemHintsData::KeltoItemHintsData(const AUTH_INF &describedItem, int innerMode)
    : item(describedItem)
    , context(KeltoItemTranslation::contextOf(item))
    , mode(innerMode)
    , view(ReadHints(item), item, innerMode)
{
    view.dropSenseless(view.hints().keys(allModes) + view.ownKeys());
}

KeltoItemHints::KeltoItemHints()
    : d(noHints())
{
}

KeltoItemHints::KeltoItemHints(AUTH_INF item)
    : d(new KeltoItemHintsData(item, allModes))
{
}

KeltoItemHints::KeltoItemHints(AUTH_INF item, QString mode)
    : d(new KeltoItemHintsData(item, positionOfMode(item, mode)))
{
}

KeltoItemHints::KeltoItemHints(const AUTH_SET *registry, QString group, QString mode)
    : d(hintsOf(registry, group, mode))
{
}

KeltoItemHints::KeltoItemHints(const AUTH_SET *registry, QString group, int position)
    : d(hintsAt(registry, group, position))
{
}

// Moving copies, so that an object that was moved from still answers.
KeltoItemHints::KeltoItemHints(const KeltoItemHints &other) = default;
KeltoItemHints::KeltoItemHints(KeltoItemHints &&other) noexcept
    : d(other.d)
{
}
KeltoItemHints &KeltoItemHints::operator=(const KeltoItemHints &other) = default;
KeltoItemHints &KeltoItemHints::operator=(KeltoItemHints &&other) noexcept
{
    d = other.d;
    return *this;
}
KeltoItemHints::~KeltoItemHints() = default;

QString KeltoItemHints::mode() const
{
    return d->item.inner_mode_nameList.value(d->mode);
}

QVariant KeltoItemHints::defaultValue(QString key) const
{
    if (d->view.text(HintWord::Default, key).isNull())
        return {};
    const QStringList values = d->view.defaultValues(key);
    return d->view.kind(key).isMulti ? QVariant(values) : QVariant(values.first());
}

double KeltoItemHints::minimum(QString key) const
{
    return d->view.limits(key).low;
}

double KeltoItemHints::maximum(QString key) const
{
    return d->view.limits(key).high;
}

QVector<KeltoItemHints::Choice> KeltoItemHints::choices(QString key) const
{
    const QString text = d->view.text(HintWord::Choices, key);
    if (text.isNull())
        return {};
    QVector<Choice> choices = choicesOf(text);
    for (Choice &choice : choices)
        choice.label = translated(choice.label.isEmpty() ? choice.value : choice.label);
    return choices;
}

bool KeltoItemHints::isOptional(QString key) const
{
    return d->view.isTrue(HintWord::Optional, key);
}

bool KeltoItemHints::isAdvanced(QString key) const
{
    return d->view.isTrue(HintWord::Advanced, key);
}

bool KeltoItemHints::counts(QString key, const QVector<QPair<QString, QVariant>> *values) const
{
    return CountingParameters(*this, values ? *values : KeyValues()).contains(key);
}

QString KeltoItemHints::conditionKey(QString key) const
{
    return d->view.condition(key).other;
}

QStringList KeltoItemHints::conditionValues(QString key) const
{
    return d->view.condition(key).values;
}

QString KeltoItemHints::label(QString key) const
{
    return translated(d->view.text(HintWord::Label, key));
}

QString KeltoItemHints::help(QString key) const
{
    return translated(d->view.text(HintWord::Help, key));
}

QStringList KeltoItemHints::fileFilters(QString key) const
{
    QStringList filters = elementsOf(d->view.text(HintWord::Files, key), QStringLiteral(";;"));
    filters.removeAll(QString());
    return filters;
}

QStringList KeltoItemHints::order() const
{
    const HintNames &names = d->view.hints().names();
    QStringList keys;
    const QStringList elements = elementsOf(d->view.text(HintWord::Order, {}));
    std::copy_if(elements.cbegin(), elements.cend(), std::back_inserter(keys),
                 [&names](const QString &key) { return names.isKey(key); });
    keys.removeDuplicates();
    return keys;
}

QStringList KeltoItemHints::resultModes(QString key) const
{
    if (!d->view.hints().names().isResult(key))
        return {};
    const QString text = d->view.text(HintWord::Belong, key);
    QStringList modes = text.isNull() ? d->item.inner_mode_nameList : elementsOf(text);
    modes.removeDuplicates();
    return modes;
}

QVector<VParameter> KeltoItemHints::ordered(QVector<VParameter> parameters) const
{
    QHash<QString, int> ranks;
    const QStringList keys = order();
    for (const QString &key : keys)
        ranks.insert(key, ranks.size());
    std::stable_sort(parameters.begin(), parameters.end(),
                     [&ranks](const VParameter &a, const VParameter &b) {
                         return ranks.value(a.name().first, INT_MAX)
                             < ranks.value(b.name().first, INT_MAX);
                     });
    return parameters;
}

QVector<VParameter> KeltoItemHints::parameters() const
{
    return ordered(sortedParameters(d->item.inner_mode_parameterList.value(d->mode)));
}

QVector<VParameter> KeltoItemHints::results() const
{
    QVector<QStringList> entries;
    for (const QStringList &entry : d->item.output_results) {
        const QString key = entry.value(KeltoParameterEntry::Key);
        const QString belong = d->view.text(HintWord::Belong, key);
        if (d->mode < 0 || belong.isNull() || elementsOf(belong).contains(mode()))
            entries.append(entry);
    }
    return ordered(sortedParameters(entries));
}

QString KeltoItemHints::translated(QString text) const
{
    return KeltoItemTranslation::text(d->context, text);
}
