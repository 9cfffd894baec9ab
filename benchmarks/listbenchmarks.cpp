// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "input.h"
#include "models/plainlists.h"
#include "models/plainregistry.h"
#include "suite.h"

#include <Kelto/AUTH_SET>

#include <algorithm>

namespace {

using Parameters = QVector<VParameter>;

const QString firstGroup = QStringLiteral("Group 0");
const QString firstMode = QStringLiteral("mode 0");
const QString firstSubGroup = QStringLiteral("sub-group 0");

/// Whom to ask for lists: the library's registry itself, or the plain rules beside the plain one.
const AUTH_SET &listsOf(const AUTH_SET &registry)
{
    return registry;
}
PlainLists<PlainRegistry> listsOf(const PlainRegistry &registry)
{
    return PlainLists<PlainRegistry>(registry);
}

// --- Inputs --------------------------------------------------------------------------

template <typename Registry> Registry registryOf(const QVector<AUTH_INF> &items)
{
    return Registry(QStringLiteral("Application"), QStringLiteral("1.0"), items);
}

/// Modules with a mode of ten parameters and ten results each, @p size of either in all, with
/// @p perGroup modules in each group. Half of the parameters are those of earlier modes again.
template <typename Registry> Registry modulesOfTen(int size, int perGroup)
{
    QVector<AUTH_INF> items;
    for (int module = 0; module < size / 10; ++module) {
        AUTH_INF item = moduleItem(module, module / perGroup);
        const int first = module * 10 % qMax(10, size / 2);
        addMode(&item, module, parameterEntries(10, first));
        item.output_results = parameterEntries(10, first);
        items.append(item);
    }
    return registryOf<Registry>(items);
}

template <typename Registry> Registry oneMode(int size)
{
    AUTH_INF item = moduleItem(0, 0);
    addMode(&item, 0, parameterEntries(size));
    return registryOf<Registry>({ item });
}

template <typename Registry> Registry oneGroup(int size)
{
    return modulesOfTen<Registry>(size, size);
}

template <typename Registry> Registry groupsOfFive(int size)
{
    return modulesOfTen<Registry>(size, 5);
}

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

/// Measures what @p ask gets from the lists of a registry.
template <typename Make, typename MakePlain, typename Ask>
void compareLists(const char *operation, int largestPlain, Make make, MakePlain makePlain, Ask ask)
{
    const auto run = [ask](const auto &registry) { return ask(listsOf(registry)); };
    compare({ operation }, shown, library(make, run),
            baseline("plain scans", largestPlain, makePlain, run));
}

void addListsOfMode()
{
    const auto add = [](const char *operation, auto ask) {
        compareLists(operation, 1000, oneMode<AUTH_SET>, oneMode<PlainRegistry>, ask);
    };
    add("defaultParameterList of a mode",
        [](const auto &lists) { return lists.defaultParameterList(firstGroup, firstMode); });
    add("defaultParameterSubGroupList of a mode", [](const auto &lists) {
        return lists.defaultParameterSubGroupList(firstGroup, firstMode);
    });
}

void addListsOfGroup()
{
    const auto add = [](const char *operation, auto ask) {
        compareLists(operation, 1000, oneGroup<AUTH_SET>, oneGroup<PlainRegistry>, ask);
    };
    add("defaultParameterList of a group",
        [](const auto &lists) { return lists.defaultParameterList(firstGroup); });
    add("defaultResultList of a group",
        [](const auto &lists) { return lists.defaultResultList(firstGroup); });
    add("defaultParameterSubGroupList of a group",
        [](const auto &lists) { return lists.defaultParameterSubGroupList(firstGroup); });
    add("defaultParameterListInSubGroup, one", [](const auto &lists) {
        return lists.defaultParameterListInSubGroup(firstGroup, firstSubGroup);
    });
}

void addListsOfEverything()
{
    const auto add = [](const char *operation, auto ask) {
        compareLists(operation, 1000, groupsOfFive<AUTH_SET>, groupsOfFive<PlainRegistry>, ask);
    };
    add("defaultParameterList of everything",
        [](const auto &lists) { return lists.defaultParameterList(); });
    add("defaultResultList of everything",
        [](const auto &lists) { return lists.defaultResultList(); });
    add("defaultParameterSubGroupList of everything",
        [](const auto &lists) { return lists.defaultParameterSubGroupList(); });
    add("defaultParameterListBySubGroup, one",
        [](const auto &lists) { return lists.defaultParameterListBySubGroup(firstSubGroup); });
}

// --- A form that asks for every sub-group ----------------------------------------------

/// 51 parameters in each sub-group. What the registry keeps of earlier answers is not to be
/// measured: each run begins with one that was not asked yet.
struct Form
{
    AUTH_INF item;
    AUTH_SET registry;
    QVector<QPair<QString, QString>> subGroups;
};

Form makeForm(int size)
{
    Form form { moduleItem(0, 0), AUTH_SET(), {} };
    addMode(&form.item, 0, parameterEntries(size, 0, 51));
    form.subGroups = registryOf<AUTH_SET>({ form.item }).defaultParameterSubGroupList();
    return form;
}

constexpr auto forget = [](Form &form) { form.registry = registryOf<AUTH_SET>({ form.item }); };

/// The answers in an order that does not depend on sub-groups.
QStringList sorted(const Parameters &parameters)
{
    QStringList texts = shownParameters(parameters);
    texts.sort();
    return texts;
}

/// Measures @p askOne for each sub-group against @p askOnce for all of them.
template <typename AskOne, typename AskOnce>
void compareWithOneCall(const char *operation, AskOne askOne, AskOnce askOnce)
{
    const auto askEach = [askOne](const Form &form) {
        Parameters all;
        for (const auto &subGroup : form.subGroups)
            all += askOne(form.registry, subGroup.first);
        return all;
    };
    compare({ operation, { 102, 510, 2550, 6477 } }, sorted, library(makeForm, askEach, forget),
            baseline(
                "defaultParameterList once (at most 3)", 6477, makeForm,
                [askOnce](const Form &form) { return askOnce(form.registry); }, forget));
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
    for (const QStringList &entry : parameterEntries(size + size / 2))
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
    addListsOfMode();
    addListsOfGroup();
    addListsOfEverything();
    addEverySubGroup();
    addTwoLists();
}
