// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "input.h"
#include "models/plainlists.h"
#include "models/plainregistry.h"
#include "suite.h"

#include <Kelto/AUTH_SET>

namespace {

using Parameters = QVector<VParameter>;

const QString firstGroup = QStringLiteral("Group 0");
const QString firstMode = QStringLiteral("mode 0");
const QString firstSubGroup = QStringLiteral("sub-group 0");

/// What gives the lists: the library's registry itself, or the plain rules beside the plain one.
const AUTH_SET &listsOf(const AUTH_SET &registry)
{
    return registry;
}
PlainLists<PlainRegistry> listsOf(const PlainRegistry &registry)
{
    return PlainLists<PlainRegistry>(registry);
}

// --- Inputs --------------------------------------------------------------------------

/// Modules with a mode of ten parameters and ten results each, @p size of either in all, with
/// @p perGroup modules in each group. Half of the parameters are those of earlier modes again.
QVector<AUTH_INF> modulesOfTen(int size, int perGroup)
{
    QVector<AUTH_INF> items;
    for (int module = 0; module < size / 10; ++module) {
        AUTH_INF item = moduleItem(module, module / perGroup);
        item.output_results = parameterEntries(10, module * 10 % qMax(10, size / 2));
        addMode(&item, module, item.output_results);
        items.append(item);
    }
    return items;
}

QVector<AUTH_INF> oneMode(int size)
{
    AUTH_INF item = moduleItem(0, 0);
    addMode(&item, 0, parameterEntries(size));
    return { item };
}

QVector<AUTH_INF> oneGroup(int size)
{
    return modulesOfTen(size, size);
}

QVector<AUTH_INF> groupsOfFive(int size)
{
    return modulesOfTen(size, 5);
}

/// One mode with 51 parameters in each sub-group.
QVector<AUTH_INF> form(int size)
{
    AUTH_INF item = moduleItem(0, 0);
    addMode(&item, 0, parameterEntries(size, 0, 51));
    return { item };
}

template <typename Registry> struct Asked
{
    QVector<AUTH_INF> items;
    Registry registry;
};

template <typename Registry, typename Items> auto asked(Items items)
{
    return [items](int size) {
        return Asked<Registry> { items(size), Registry({}, {}, items(size)) };
    };
}

/// What a registry keeps of earlier answers is not to be measured.
constexpr auto forget
    = [](auto &asked) { asked.registry = AUTH_SET(QString(), QString(), asked.items); };

// --- Lists of a mode, a group, and everything ------------------------------------------

QStringList shownParameters(const Parameters &parameters)
{
    QStringList texts;
    for (const VParameter &parameter : parameters)
        texts.append(parameter.toSetsForm().join(QLatin1Char('|')));
    return texts;
}

constexpr auto shown = [](const auto &answer) {
    if constexpr (std::is_same_v<std::decay_t<decltype(answer)>, Parameters>)
        return shownParameters(answer);
    else
        return answer;
};

/// Measures what @p ask gets from the lists of a registry with the modules @p items.
template <typename Items, typename Ask>
void compareLists(const char *operation, Items items, Ask ask)
{
    const auto run = [ask](const auto &asked) { return ask(listsOf(asked.registry)); };
    compare({ operation }, shown, library(asked<AUTH_SET>(items), run, forget),
            baseline("plain scans", 1000, asked<PlainRegistry>(items), run));
}

void addLists()
{
    compareLists("defaultParameterList of a mode", oneMode, [](const auto &lists) {
        return lists.defaultParameterList(firstGroup, firstMode);
    });
    compareLists("defaultParameterList of a group", oneGroup,
                 [](const auto &lists) { return lists.defaultParameterList(firstGroup); });
    compareLists("defaultParameterList of everything", groupsOfFive,
                 [](const auto &lists) { return lists.defaultParameterList(); });
    compareLists("defaultResultList of a group", oneGroup,
                 [](const auto &lists) { return lists.defaultResultList(firstGroup); });
    compareLists("defaultResultList of everything", groupsOfFive,
                 [](const auto &lists) { return lists.defaultResultList(); });
}

void addSubGroups()
{
    compareLists("defaultParameterSubGroupList of a mode", oneMode, [](const auto &lists) {
        return lists.defaultParameterSubGroupList(firstGroup, firstMode);
    });
    compareLists("defaultParameterSubGroupList of a group", oneGroup,
                 [](const auto &lists) { return lists.defaultParameterSubGroupList(firstGroup); });
    compareLists("defaultParameterSubGroupList of everything", groupsOfFive,
                 [](const auto &lists) { return lists.defaultParameterSubGroupList(); });
    compareLists("defaultParameterListInSubGroup, one", oneGroup, [](const auto &lists) {
        return lists.defaultParameterListInSubGroup(firstGroup, firstSubGroup);
    });
    compareLists("defaultParameterListBySubGroup, one", groupsOfFive, [](const auto &lists) {
        return lists.defaultParameterListBySubGroup(firstSubGroup);
    });
}

// --- A form that asks for every sub-group ----------------------------------------------

/// The parameters in an order that does not depend on sub-groups.
QStringList sorted(const Parameters &parameters)
{
    QStringList texts = shownParameters(parameters);
    texts.sort();
    return texts;
}

/// Measures @p askOne for each sub-group, one after the other, against @p askOnce for everything.
template <typename AskOne, typename AskOnce>
void compareWithOneCall(const char *operation, AskOne askOne, AskOnce askOnce)
{
    const auto askEach = [askOne](const auto &asked) {
        Parameters all;
        const int size = asked.items.constFirst().inner_mode_parameterList.constFirst().size();
        for (int i = 0; i < size; i += 51)
            all += askOne(asked.registry, QStringLiteral("sub-group %1").arg(i / 51));
        return all;
    };
    compare({ operation, { 102, 510, 2550, 6477 } }, sorted,
            library(asked<AUTH_SET>(form), askEach, forget),
            baseline(
                "defaultParameterList once (at most 3)", 6477, asked<AUTH_SET>(form),
                [askOnce](const auto &asked) { return askOnce(asked.registry); }, forget));
}

void addEverySubGroup()
{
    compareWithOneCall(
        "defaultParameterListBySubGroup of all n/51",
        [](const auto &lists, const QString &name) {
            return lists.defaultParameterListBySubGroup(name);
        },
        [](const auto &lists) { return lists.defaultParameterList(); });
    compareWithOneCall(
        "defaultParameterListInSubGroup of all n/51",
        [](const auto &lists, const QString &name) {
            return lists.defaultParameterListInSubGroup(firstGroup, name);
        },
        [](const auto &lists) { return lists.defaultParameterList(firstGroup); });
}

// --- Two lists -------------------------------------------------------------------------

/// Two lists of @p size parameters that have half of them in common.
template <typename Registry> struct TwoLists
{
    Registry registry;
    Parameters first;
    Parameters second;
};

template <typename Registry> TwoLists<Registry> makeTwoLists(int size)
{
    Parameters parameters;
    const auto entries = parameterEntries(size + size / 2);
    for (const QStringList &entry : entries)
        parameters.append(VParameter(entry));
    return { Registry(), parameters.mid(0, size), parameters.mid(size / 2) };
}

void addTwoLists()
{
    const auto add = [](const char *operation, auto combine) {
        const auto run = [combine](const auto &lists) {
            return combine(listsOf(lists.registry), &lists.first, &lists.second);
        };
        compare({ operation }, shown, library(makeTwoLists<AUTH_SET>, run),
                baseline("plain scans", 1000, makeTwoLists<PlainRegistry>, run));
    };
    add("mergingList, half in common", [](const auto &lists, auto *first, auto *second) {
        return lists.mergingList(first, second);
    });
    add("sharingList, half in common", [](const auto &lists, auto *first, auto *second) {
        return lists.sharingList(first, second);
    });
}

} // namespace

void addListRows()
{
    addLists();
    addSubGroups();
    addEverySubGroup();
    addTwoLists();
}
