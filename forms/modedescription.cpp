// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "modedescription_p.h"

#include <Kelto/AUTH_SET>
#include <Kelto/KeltoParameterEntry>

#include <QSet>

#include <cmath>
#include <limits>
#include <utility>

namespace {

// Names and values in a list are joined by it.
const QChar separator = QLatin1Char('|');

/// Findings name a mode, also one that its module left without a name.
QString modeNameOr(const QString &name)
{
    return name.isEmpty() ? QStringLiteral("mode") : name;
}

QVector<VParameter> eachKeyOnce(const QVector<VParameter> &parameters)
{
    QVector<VParameter> distinct;
    QSet<QString> keys;
    for (const VParameter &parameter : parameters) {
        if (keys.contains(parameter.name().first))
            continue;
        keys.insert(parameter.name().first);
        distinct.append(parameter);
    }
    return distinct;
}

QVector<QStringList> entriesOf(const QVector<VParameter> &parameters)
{
    QVector<QStringList> entries;
    for (const VParameter &parameter : parameters)
        entries.append(parameter.toSetsForm());
    return entries;
}

/// Entries of another length are none and would give parameters without a name.
QVector<QStringList> wholeEntries(const QVector<QStringList> &entries)
{
    QVector<QStringList> whole;
    for (const QStringList &entry : entries) {
        if (entry.size() == KeltoParameterEntry::PlaceCount)
            whole.append(entry);
    }
    return whole;
}

/// Makes the inner mode at @p index the only one of @p item.
void keepMode(AUTH_INF *item, int index)
{
    const QString name = modeNameOr(item->inner_mode_nameList.value(index));
    item->inner_mode_count = 1;
    item->inner_mode_nameList_tr = QStringList { item->inner_mode_nameList_tr.value(index, name) };
    item->inner_mode_nameList = QStringList { name };
    item->inner_mode_description = QStringList { item->inner_mode_description.value(index) };
    item->inner_mode_parameterList = { wholeEntries(item->inner_mode_parameterList.value(index)) };
}

/// Extra keys that say again what @p hints say about one parameter.
class HintWriter
{
public:
    HintWriter(const KeltoItemHints &hints, QVector<VDataItem> *extraKeys)
        : m_hints(hints)
        , m_extraKeys(extraKeys)
    {
    }

    void write(const QString &key)
    {
        writeLimit("Min.", key, m_hints.minimum(key));
        writeLimit("Max.", key, m_hints.maximum(key));
        writeText("Choices.", key, choices(key));
        if (m_hints.isOptional(key))
            writeText("Optional.", key, QStringLiteral("true"));
        if (!m_hints.conditionKey(key).isEmpty())
            writeText("When.", key,
                      m_hints.conditionKey(key) + QLatin1Char('=')
                          + m_hints.conditionValues(key).join(separator));
    }

private:
    void writeText(const char *hint, const QString &key, const QString &text)
    {
        if (!text.isEmpty())
            m_extraKeys->append(VDataItem(QLatin1String(hint) + key, text));
    }
    void writeLimit(const char *hint, const QString &key, double limit)
    {
        constexpr int allDigits = std::numeric_limits<double>::max_digits10;
        if (std::isfinite(limit))
            writeText(hint, key, QString::number(limit, 'g', allDigits));
    }
    QString choices(const QString &key) const
    {
        QStringList texts;
        const QVector<KeltoItemHints::Choice> all = m_hints.choices(key);
        for (const KeltoItemHints::Choice &choice : all)
            texts.append(choice.value);
        return texts.join(separator);
    }

    const KeltoItemHints &m_hints;
    QVector<VDataItem> *m_extraKeys;
};

/// The module of the mode at @p position and the index of the mode in it; -1 where there is none.
std::pair<AUTH_INF, int> moduleOf(const AUTH_SET &registry, const QString &group, int position)
{
    const QString name = registry.findExclusiveGroupName(group).first;
    const QVector<AUTH_INF> modules = registry.AUTH_INF_list_by_group(name);
    for (const AUTH_INF &module : modules) {
        const int count = qMax(0, module.inner_mode_count);
        if (position < count)
            return { module, position };
        position -= count;
    }
    return { AUTH_INF(), -1 };
}

} // namespace

ModeDescription modeAt(const AUTH_SET *registry, const QString &group, int position)
{
    ModeDescription mode;
    if (!registry || position < 0 || position >= registry->exclusive_group_mode_count(group))
        return mode;
    int index = -1;
    std::tie(mode.item, index) = moduleOf(*registry, group, position);
    if (index < 0)
        return mode;
    keepMode(&mode.item, index);
    mode.hints = KeltoItemHints(mode.item, mode.mode());
    mode.parameters = eachKeyOnce(mode.hints.parameters());
    mode.item.inner_mode_parameterList = { entriesOf(mode.parameters) };
    return mode;
}

ModeDescription modeOf(const QVector<VParameter> &parameters, const KeltoItemHints &hints)
{
    ModeDescription mode;
    mode.hints = hints;
    mode.parameters = eachKeyOnce(hints.ordered(parameters));
    mode.item.inner_mode_nameList = QStringList { modeNameOr(hints.mode()) };
    mode.item.inner_mode_nameList_tr = mode.item.inner_mode_nameList;
    mode.item.inner_mode_parameterList = { entriesOf(mode.parameters) };
    HintWriter writer(hints, &mode.item.extraKey);
    for (const VParameter &parameter : std::as_const(mode.parameters))
        writer.write(parameter.name().first);
    return mode;
}
