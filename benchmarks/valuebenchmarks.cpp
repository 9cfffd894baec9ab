// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What a registry stores for its host, and the lists of parameters and results that it puts
// together.

#include "valuebenchmarks.h"

#include "models/plainlists.h"
#include "models/plainregistry.h"
#include "models/plainvalues.h"
#include "parameterinput.h"
#include "settingsinput.h"
#include "sides.h"

#include <Kelto/AUTH_SET>

#include <QSet>

#include <algorithm>

namespace {

// --- Values --------------------------------------------------------------------------

template <typename Registry> struct Stored
{
    Registry registry;
    Entries entries;
};

template <typename Registry>
constexpr auto makeTemporary = [](int size) {
    return Stored<Registry> { Registry(), settingsEntries(size) };
};

void addTemporaryValues(Suite &suite)
{
    const auto setAndAsk = [](const auto &stored) {
        auto registry = stored.registry;
        for (const auto &entry : stored.entries)
            registry.set_temp(entry.first, entry.second);
        return valuesOf(stored.entries,
                        [&registry](const QString &key) { return registry.value_temp(key); });
    };
    compare(suite, { "set_temp, value_temp of every key", "plain scans", 10000 },
            Side { makeTemporary<AUTH_SET>, setAndAsk },
            Side { makeTemporary<PlainValues>, setAndAsk }, asItIs, settingsValues);

    // Of all but the first key, from the last on.
    const auto setAndDelete = [](const auto &stored) {
        auto registry = stored.registry;
        for (const auto &entry : stored.entries)
            registry.set_temp(entry.first, entry.second);
        for (int i = stored.entries.size() - 1; i > 0; --i)
            registry.delete_temp(stored.entries.at(i).first);
        return registry;
    };
    const auto left = [](const auto &registry) {
        return QVector<QVariant> { registry.value_temp(settingsKey(0)),
                                   registry.value_temp(settingsKey(1)) };
    };
    compare(suite, { "set_temp, delete_temp of every key", "plain scans", 10000 },
            Side { makeTemporary<AUTH_SET>, setAndDelete },
            Side { makeTemporary<PlainValues>, setAndDelete }, left, [](int /*size*/) {
                return QVector<QVariant> { settingsValue(0), QVariant() };
            });
}

QString calculationKey(const char *group, int i)
{
    return QLatin1String(group) + QStringLiteral("/parameter %1").arg(i);
}

/// The values of @p size parameters, then their units.
Entries calculationData(int size)
{
    Entries data;
    for (const char *group : { "Attribute", "Unit" }) {
        for (int i = 0; i < size; ++i)
            data.append({ calculationKey(group, i), i });
    }
    return data;
}

template <typename Registry>
constexpr auto makeCalculation = [](int size) {
    return Stored<Registry> { Registry(), calculationData(size) };
};

void addCalculationData(Suite &suite)
{
    const auto take = [](const auto &stored) {
        auto registry = stored.registry;
        registry.getCalculationLData(stored.entries);
        return registry;
    };
    const auto takenCount = [](const auto &registry) {
        int count = 0;
        while (registry.value_cal(calculationKey("Attribute", count)) == QVariant(count)
               && registry.value_cal(calculationKey("Unit", count)) == QVariant(count))
            ++count;
        return count;
    };
    compare(suite, { "getCalculationLData", "plain scans", 1000 },
            Side { makeCalculation<AUTH_SET>, take }, Side { makeCalculation<PlainValues>, take },
            takenCount, [](int size) { return size; });
}

// --- Lists ---------------------------------------------------------------------------

using Parameters = QVector<VParameter>;

/// A registry that is nothing but the plain rules.
struct PlainParameters
{
    explicit PlainParameters(const QVector<AUTH_INF> &items)
        : registry(QString(), QString(), items)
    {
    }

    PlainRegistry registry;
    PlainLists<PlainRegistry> lists() const { return PlainLists<PlainRegistry>(registry); }
};

struct LibraryParameters
{
    explicit LibraryParameters(const QVector<AUTH_INF> &items)
        : registry(QStringLiteral("Application"), QStringLiteral("1.0"), items)
    {
    }

    AUTH_SET registry;
    const AUTH_SET &lists() const { return registry; }
};

/// Half of the parameters are those of earlier modes again.
int sharedNumber(int i, int size)
{
    const int distinct = qMax(1, size / 2);
    return i % distinct;
}

/// Modules with one mode of ten parameters and one of ten results each, @p size of either in all,
/// with @p perGroup modules in each group.
QVector<AUTH_INF> modulesOfTen(int size, int perGroup)
{
    QVector<AUTH_INF> items;
    for (int module = 0; module < size / 10; ++module) {
        AUTH_INF item = parameterModule(module, module / perGroup);
        QVector<QStringList> entries;
        for (int i = module * 10; i < module * 10 + 10; ++i)
            entries.append(parameterEntry(sharedNumber(i, size)));
        addMode(&item, QStringLiteral("mode %1").arg(module), entries);
        item.output_results = entries;
        items.append(item);
    }
    return items;
}

template <typename Subject> Subject oneMode(int size)
{
    AUTH_INF item = parameterModule(0, 0);
    addMode(&item, QStringLiteral("mode"), parameterEntries(size));
    return Subject({ item });
}

template <typename Subject> Subject oneGroup(int size)
{
    return Subject(modulesOfTen(size, size));
}

template <typename Subject> Subject groupsOfFive(int size)
{
    return Subject(modulesOfTen(size, 5));
}

QStringList shown(const Parameters &parameters)
{
    QStringList texts;
    for (const VParameter &parameter : parameters)
        texts.append(parameter.toSetsForm().join(QLatin1Char('|')));
    return texts;
}

/// The parameters with the numbers below @p count, sorted by name.
Parameters sortedParameters(int count)
{
    QVector<QStringList> entries = parameterEntries(count);
    std::sort(entries.begin(), entries.end(),
              [](const QStringList &a, const QStringList &b) { return a.at(1) < b.at(1); });
    Parameters parameters;
    for (const QStringList &entry : qAsConst(entries))
        parameters.append(VParameter(entry));
    return parameters;
}

QStringList all(int size)
{
    return shown(sortedParameters(size));
}

QStringList distinctHalf(int size)
{
    return shown(sortedParameters(qMax(1, size / 2)));
}

void addParameterLists(Suite &suite)
{
    const auto ofMode = [](const auto &subject) {
        return subject.lists().defaultParameterList(QStringLiteral("Group 0"),
                                                    QStringLiteral("mode"));
    };
    compare(suite, { "defaultParameterList", "of a mode", 10000 },
            Side { oneMode<LibraryParameters>, ofMode }, Side { oneMode<PlainParameters>, ofMode },
            shown, all);
    const auto ofGroup = [](const auto &subject) {
        return subject.lists().defaultParameterList(QStringLiteral("Group 0"));
    };
    compare(suite, { "defaultParameterList", "of a group", 1000 },
            Side { oneGroup<LibraryParameters>, ofGroup },
            Side { oneGroup<PlainParameters>, ofGroup }, shown, distinctHalf);
    const auto ofAll = [](const auto &subject) { return subject.lists().defaultParameterList(); };
    compare(suite, { "defaultParameterList", "of everything", 1000 },
            Side { groupsOfFive<LibraryParameters>, ofAll },
            Side { groupsOfFive<PlainParameters>, ofAll }, shown, distinctHalf);
}

void addResultLists(Suite &suite)
{
    const auto ofGroup = [](const auto &subject) {
        return subject.lists().defaultResultList(QStringLiteral("Group 0"));
    };
    compare(suite, { "defaultResultList", "of a group", 1000 },
            Side { oneGroup<LibraryParameters>, ofGroup },
            Side { oneGroup<PlainParameters>, ofGroup }, shown, distinctHalf);
    const auto ofAll = [](const auto &subject) { return subject.lists().defaultResultList(); };
    compare(suite, { "defaultResultList", "of everything", 1000 },
            Side { groupsOfFive<LibraryParameters>, ofAll },
            Side { groupsOfFive<PlainParameters>, ofAll }, shown, distinctHalf);
}

/// The sub-groups of the parameters with the numbers below @p count, sorted.
QVector<QPair<QString, QString>> sortedSubGroups(int count)
{
    QVector<QPair<QString, QString>> groups;
    for (int i = 0; i < count; i += 10) {
        const QString name = parameterEntry(i).at(0);
        groups.append({ name, name });
    }
    std::sort(groups.begin(), groups.end());
    return groups;
}

void addSubGroups(Suite &suite)
{
    const char *name = "defaultParameterSubGroupList";
    const auto ofHalf = [](int size) { return sortedSubGroups(qMax(1, size / 2)); };
    const auto ofMode = [](const auto &subject) {
        return subject.lists().defaultParameterSubGroupList(QStringLiteral("Group 0"),
                                                            QStringLiteral("mode"));
    };
    compare(suite, { name, "of a mode", 10000 }, Side { oneMode<LibraryParameters>, ofMode },
            Side { oneMode<PlainParameters>, ofMode }, asItIs, sortedSubGroups);
    const auto ofGroup = [](const auto &subject) {
        return subject.lists().defaultParameterSubGroupList(QStringLiteral("Group 0"));
    };
    compare(suite, { name, "of a group", 1000 }, Side { oneGroup<LibraryParameters>, ofGroup },
            Side { oneGroup<PlainParameters>, ofGroup }, asItIs, ofHalf);
    const auto ofAll
        = [](const auto &subject) { return subject.lists().defaultParameterSubGroupList(); };
    compare(suite, { name, "of everything", 1000 }, Side { groupsOfFive<LibraryParameters>, ofAll },
            Side { groupsOfFive<PlainParameters>, ofAll }, asItIs, ofHalf);
}

void addParametersOfSubGroup(Suite &suite)
{
    const auto expected = [](int size) { return shown(sortedParameters(qBound(1, size / 2, 10))); };
    const auto ofAll = [](const auto &subject) {
        return subject.lists().defaultParameterListBySubGroup(QStringLiteral("sub-group 0"));
    };
    compare(suite, { "defaultParameterListBySubGroup", "of everything", 1000 },
            Side { groupsOfFive<LibraryParameters>, ofAll },
            Side { groupsOfFive<PlainParameters>, ofAll }, shown, expected);
    const auto ofGroup = [](const auto &subject) {
        return subject.lists().defaultParameterListInSubGroup(QStringLiteral("Group 0"),
                                                              QStringLiteral("sub-group 0"));
    };
    compare(suite, { "defaultParameterListInSubGroup", "of a group", 1000 },
            Side { oneGroup<LibraryParameters>, ofGroup },
            Side { oneGroup<PlainParameters>, ofGroup }, shown, expected);
}

/// Two lists of n parameters that have half of them in common.
template <typename Subject> struct TwoLists
{
    Subject subject;
    Parameters first;
    Parameters second;
};

template <typename Subject>
constexpr auto makeTwoLists = [](int size) {
    Parameters parameters;
    const QVector<QStringList> entries = parameterEntries(size + size / 2);
    for (const QStringList &entry : entries)
        parameters.append(VParameter(entry));
    return TwoLists<Subject> { Subject({ parameterModule(0, 0) }), parameters.mid(0, size),
                               parameters.mid(size / 2) };
};

void addTwoLists(Suite &suite)
{
    const auto merge = [](const auto &lists) {
        return lists.subject.lists().mergingList(&lists.first, &lists.second);
    };
    compare(suite, { "mergingList", "half is shared", 10000 },
            Side { makeTwoLists<LibraryParameters>, merge },
            Side { makeTwoLists<PlainParameters>, merge }, shown,
            [](int size) { return all(size + size / 2); });
    const auto share = [](const auto &lists) {
        return lists.subject.lists().sharingList(&lists.first, &lists.second);
    };
    const auto expected = [](int size) {
        QStringList texts;
        for (const QStringList &entry : parameterEntries(size - size / 2, size / 2))
            texts.append(entry.join(QLatin1Char('|')));
        const QStringList everything = all(size + size / 2);
        const QSet<QString> shared(texts.cbegin(), texts.cend());
        QStringList sorted;
        std::copy_if(everything.cbegin(), everything.cend(), std::back_inserter(sorted),
                     [&shared](const QString &text) { return shared.contains(text); });
        return sorted;
    };
    compare(suite, { "sharingList", "half is shared", 10000 },
            Side { makeTwoLists<LibraryParameters>, share },
            Side { makeTwoLists<PlainParameters>, share }, shown, expected);
}

} // namespace

void addValueBenchmarks(Suite &suite)
{
    addTemporaryValues(suite);
    addCalculationData(suite);
    addParameterLists(suite);
    addResultLists(suite);
    addSubGroups(suite);
    addParametersOfSubGroup(suite);
    addTwoLists(suite);
}
