// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// One comparison per function, in the order of the table:
// - building a registry, alone and with the first questions
// - appending its items one by one, alone and with questions in between
// - index and model_exists of every module name
// - currentModeList, currentModeMatching of every code, stdModeNameForm of every mode
// - exclusive_group_set_mode by name for every mode, exclusive_group_mode_description

#include "registrybenchmarks.h"

#include "models/plainfile.h"
#include "models/plainregistry.h"
#include "registryinput.h"
#include "suite.h"

#include <Kelto/AUTH_SET>

#include <QDir>

#include <benchmark/benchmark.h>

#include <array>
#include <map>
#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>

namespace {

/// The largest size at which the baseline is measured, for each of registryShapes().
using BaselineLimits = std::array<int, 3>;

using NamePairs = QVector<QPair<QString, QString>>;

// --- Inputs ------------------------------------------------------------------------

const RegistryInput &sharedInput(const RegistryShape &shape, int size)
{
    static std::map<std::pair<std::string, int>, RegistryInput> inputs;
    const auto key = std::make_pair(shape.name, size);
    const auto known = inputs.find(key);
    return known != inputs.end() ? known->second
                                 : inputs.emplace(key, shape.make(size)).first->second;
}

/// A registry reads its stored values when it comes to be. The plain one knows no files, so that
/// this is done for it.
template <typename Registry> void readStoredValues(const QString &application)
{
    if constexpr (std::is_same_v<Registry, PlainRegistry>) {
        const Entries entries = loadWithQSettings(QDir::currentPath() + QStringLiteral("/Config/")
                                                  + application + QStringLiteral("_config.ini"));
        benchmark::DoNotOptimize(entries.size());
    }
}

template <typename Registry> Registry emptyRegistry()
{
    readStoredValues<Registry>(QString());
    return Registry();
}

template <typename Registry> Registry built(const RegistryInput &input)
{
    readStoredValues<Registry>(input.application);
    return Registry(input.application, QStringLiteral("1.0"), input.items);
}

/// The baseline takes long to build for large inputs, so that all comparisons copy the same one.
template <typename Registry>
std::shared_ptr<Registry> registryFor(const RegistryShape &shape, int size)
{
    static std::map<std::pair<std::string, int>, Registry> registries;
    const auto key = std::make_pair(shape.name, size);
    auto known = registries.find(key);
    if (known == registries.end())
        known = registries.emplace(key, built<Registry>(sharedInput(shape, size))).first;
    return std::make_shared<Registry>(known->second);
}

// --- Comparisons -------------------------------------------------------------------

/// What is measured, what it has to answer, and how to get the answer where measuring it along
/// would distort the time. All take a registry of either kind and the input it was built from.
template <typename Run, typename Answer, typename Expected> struct Operation
{
    const char *name;
    BaselineLimits largestBaseline;
    Run run;
    Answer answer;
    Expected expected;
};

template <typename Run, typename Answer, typename Expected>
Operation(const char *, BaselineLimits, Run, Answer, Expected) -> Operation<Run, Answer, Expected>;

template <typename Registry, typename Run>
Step stepOn(std::shared_ptr<Registry> registry, const RegistryInput &input, Run run)
{
    return { [registry, &input, run] {
        auto result = run(*registry, input);
        benchmark::DoNotOptimize(result);
    } };
}

template <typename AnyOperation>
CheckedStep checkedStep(const AnyOperation &operation, const RegistryShape &shape, int size,
                        bool compareWithBaseline)
{
    const RegistryInput &input = sharedInput(shape, size);
    const auto registry = registryFor<AUTH_SET>(shape, size);
    const auto answer = operation.answer(*registry, input);
    if (answer != operation.expected(input))
        return { {}, "differs from what the input holds" };
    if (compareWithBaseline
        && answer != operation.answer(*registryFor<PlainRegistry>(shape, size), input))
        return { {}, "differs from the baseline" };
    return { stepOn(registry, input, operation.run), {} };
}

template <typename AnyOperation> void addForAllShapes(Suite &suite, const AnyOperation &operation)
{
    for (std::size_t i = 0; i < registryShapes().size(); ++i) {
        const RegistryShape &shape = registryShapes().at(i);
        const auto library = [operation, shape](int size, bool compareWithBaseline) {
            return checkedStep(operation, shape, size, compareWithBaseline);
        };
        const auto baseline = [operation, shape](int size) {
            return stepOn(registryFor<PlainRegistry>(shape, size), sharedInput(shape, size),
                          operation.run);
        };
        suite.add(
            { operation.name, shape.name, operation.largestBaseline.at(i), library, baseline });
    }
}

/// A question whose answer is cheap to keep while it is measured.
template <typename Ask, typename Expected>
void addQuestion(Suite &suite, const char *name, BaselineLimits largestBaseline, Ask ask,
                 Expected expected)
{
    addForAllShapes(suite, Operation { name, largestBaseline, ask, ask, expected });
}

// --- Building ----------------------------------------------------------------------

/// Number of each module, names of the groups, number of modes and module of the last mode of each
/// group.
using Summary = std::tuple<QVector<int>, QStringList, QStringList, QVector<int>, QStringList>;

template <typename Registry> Summary summary(const Registry &registry)
{
    Summary result;
    auto &[numbers, groups, translatedGroups, modeCounts, lastModules] = result;
    const QVector<AUTH_INF> items = registry.AUTH_INF_DATA();
    for (const AUTH_INF &item : items)
        numbers.append(item.number);
    groups = registry.exclusive_group_namelist();
    translatedGroups = registry.exclusive_group_namelist_global();
    for (const QString &group : qAsConst(groups)) {
        modeCounts.append(registry.exclusive_group_mode_count(group));
        lastModules.append(
            registry.exclusive_group_orginal_model(group, modeCounts.constLast() - 1));
    }
    return result;
}

Summary expectedSummary(const RegistryInput &input)
{
    Summary result;
    auto &[numbers, groups, translatedGroups, modeCounts, lastModules] = result;
    for (int i = 0; i < input.items.size(); ++i)
        numbers.append(i);
    for (const RegistryInput::Group &group : input.groups) {
        groups.append(group.names.first);
        translatedGroups.append(group.names.second);
        modeCounts.append(group.modes.size());
        lastModules.append(input.items.at(group.modes.constLast().module).name);
    }
    return result;
}

void addBuilding(Suite &suite)
{
    const auto build = [](const auto &registry, const RegistryInput &input) {
        return built<std::decay_t<decltype(registry)>>(input);
    };
    const auto answer = [build](const auto &registry, const RegistryInput &input) {
        return summary(build(registry, input));
    };
    addForAllShapes(suite,
                    Operation {
                        "building", { 10000, 10000, 10000 }, build, answer, expectedSummary });
}

/// What a registry works out only when it is asked belongs to the price of building it.
void addBuildingWithFirstQuestions(Suite &suite)
{
    using Answers = std::tuple<int, bool, NamePairs, int>;
    const auto buildAndAsk = [](const auto &registry, const RegistryInput &input) {
        auto fresh = built<std::decay_t<decltype(registry)>>(input);
        const AUTH_INF &item = input.items.constLast();
        fresh.exclusive_group_set_mode(item.group, item.inner_mode_nameList.constLast());
        return Answers { fresh.index(item.name), fresh.model_exists(item.name_tr),
                         fresh.currentModeList(), fresh.exclusive_group_select(item.group) };
    };
    const auto expected = [](const RegistryInput &input) {
        const int lastModule = input.items.size() - 1;
        const RegistryInput::Group &group = input.groups.at(lastModule % input.groups.size());
        return Answers { lastModule, true, input.modeList, group.modes.size() - 1 };
    };
    addQuestion(suite, "building and asking once", { 1000, 1000, 100 }, buildAndAsk, expected);
}

void addAppending(Suite &suite)
{
    const auto append = [](const auto &registry, const RegistryInput &input) {
        auto growing = emptyRegistry<std::decay_t<decltype(registry)>>();
        for (const AUTH_INF &item : input.items)
            growing.append(item);
        return growing;
    };
    const auto answer = [append](const auto &registry, const RegistryInput &input) {
        return summary(append(registry, input));
    };
    addForAllShapes(
        suite,
        Operation { "appending one by one", { 100, 100, 10000 }, append, answer, expectedSummary });
}

void addAppendingWithQuestions(Suite &suite)
{
    using Answers = QVector<QPair<int, int>>;
    const auto appendAndAsk = [](const auto &registry, const RegistryInput &input) {
        Answers answers;
        auto growing = emptyRegistry<std::decay_t<decltype(registry)>>();
        for (const AUTH_INF &item : input.items) {
            growing.append(item);
            growing.exclusive_group_set_mode(item.group, item.inner_mode_nameList.constLast());
            answers.append(
                { growing.index(item.name), growing.exclusive_group_select(item.group) });
        }
        return answers;
    };
    const auto expected = [](const RegistryInput &input) {
        Answers answers;
        QVector<int> modes(input.groups.size(), 0);
        for (int i = 0; i < input.items.size(); ++i) {
            int &modesOfGroup = modes[i % modes.size()];
            modesOfGroup += input.items.at(i).inner_mode_nameList.size();
            answers.append({ i, modesOfGroup - 1 });
        }
        return answers;
    };
    addQuestion(suite, "appending and asking by turns", { 100, 100, 100 }, appendAndAsk, expected);
}

// --- Modules -----------------------------------------------------------------------

void addIndex(Suite &suite)
{
    const auto ask = [](const auto &registry, const RegistryInput &input) {
        QVector<int> indices;
        indices.reserve(input.items.size());
        for (const AUTH_INF &item : input.items)
            indices.append(registry.index(item.name));
        return indices;
    };
    const auto expected = [](const RegistryInput &input) {
        QVector<int> indices;
        for (int i = 0; i < input.items.size(); ++i)
            indices.append(i);
        return indices;
    };
    addQuestion(suite, "index of every name", { 10000, 10000, 10000 }, ask, expected);
}

void addModelExists(Suite &suite)
{
    const auto ask = [](const auto &registry, const RegistryInput &input) {
        QVector<bool> answers;
        answers.reserve(input.items.size() * 3);
        for (const AUTH_INF &item : input.items) {
            answers.append(registry.model_exists(item.name));
            answers.append(registry.model_exists(item.name_tr));
            answers.append(registry.model_exists(item.group));
        }
        return answers;
    };
    const auto expected = [](const RegistryInput &input) {
        QVector<bool> answers;
        for (int i = 0; i < input.items.size(); ++i)
            answers += { true, true, false };
        return answers;
    };
    addQuestion(suite, "model_exists of every name", { 10000, 10000, 10000 }, ask, expected);
}

// --- Standard mode names -------------------------------------------------------------

void addModeList(Suite &suite)
{
    const auto ask
        = [](const auto &registry, const RegistryInput &) { return registry.currentModeList(); };
    const auto expected = [](const RegistryInput &input) { return input.modeList; };
    addQuestion(suite, "currentModeList", { 10000, 1000, 100 }, ask, expected);
}

void addModeMatching(Suite &suite)
{
    const auto ask = [](const auto &registry, const RegistryInput &input) {
        return registry.currentModeMatching(input.codes);
    };
    const auto expected = [](const RegistryInput &input) {
        QStringList names;
        for (const auto &mode : input.modeList)
            names.append(mode.first);
        return names;
    };
    addQuestion(suite, "currentModeMatching", { 1000, 1000, 100 }, ask, expected);
}

void addModeNameForm(Suite &suite)
{
    const auto ask = [](const auto &registry, const RegistryInput &input) {
        QStringList names;
        names.reserve(input.modeList.size());
        for (const RegistryInput::Group &group : input.groups) {
            for (const RegistryInput::Mode &mode : group.modes)
                names.append(registry.stdModeNameForm(group.names.first, mode.names.first));
        }
        return names;
    };
    const auto expected = [](const RegistryInput &input) {
        QStringList names;
        for (const auto &mode : input.modeList)
            names.append(mode.first);
        return names;
    };
    addQuestion(suite, "stdModeNameForm of every mode", { 10000, 10000, 10000 }, ask, expected);
}

// --- Modes of groups -----------------------------------------------------------------

void addSetMode(Suite &suite)
{
    const auto set = [](auto &registry, const RegistryInput &input) {
        for (const RegistryInput::Group &group : input.groups) {
            for (const RegistryInput::Mode &mode : group.modes)
                registry.exclusive_group_set_mode(group.names.first, mode.names.first);
        }
        return true;
    };
    // Reading every selection back is for the check alone.
    const auto answer = [](auto &registry, const RegistryInput &input) {
        QVector<int> selections;
        for (const RegistryInput::Group &group : input.groups) {
            for (const RegistryInput::Mode &mode : group.modes) {
                registry.exclusive_group_set_mode(group.names.first, mode.names.first);
                selections.append(registry.exclusive_group_select(group.names.first));
            }
        }
        return selections;
    };
    const auto expected = [](const RegistryInput &input) {
        QVector<int> selections;
        for (const RegistryInput::Group &group : input.groups) {
            for (int i = 0; i < group.modes.size(); ++i)
                selections.append(i);
        }
        return selections;
    };
    addForAllShapes(
        suite,
        Operation { "set_mode by name, every mode", { 1000, 100, 100 }, set, answer, expected });
}

void addModeDescription(Suite &suite)
{
    using Descriptions = QVector<QPair<int, QString>>;
    const auto ask = [](const auto &registry, const RegistryInput &input) {
        QVector<Descriptions> descriptions;
        for (const RegistryInput::Group &group : input.groups)
            descriptions.append(registry.exclusive_group_mode_description(group.names.first));
        return descriptions;
    };
    const auto expected = [](const RegistryInput &input) {
        QVector<Descriptions> descriptions;
        for (const RegistryInput::Group &group : input.groups) {
            Descriptions ofGroup;
            for (const RegistryInput::Mode &mode : group.modes)
                ofGroup.append({ mode.module, mode.description });
            descriptions.append(ofGroup);
        }
        return descriptions;
    };
    addQuestion(suite, "mode_description, every group", { 10000, 10000, 10000 }, ask, expected);
}

} // namespace

void addRegistryBenchmarks(Suite &suite)
{
    addBuilding(suite);
    addBuildingWithFirstQuestions(suite);
    addAppending(suite);
    addAppendingWithQuestions(suite);
    addIndex(suite);
    addModelExists(suite);
    addModeList(suite);
    addModeMatching(suite);
    addModeNameForm(suite);
    addSetMode(suite);
    addModeDescription(suite);
}
