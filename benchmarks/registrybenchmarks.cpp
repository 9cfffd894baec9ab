// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "input.h"
#include "models/plainfile.h"
#include "models/plainregistry.h"
#include "suite.h"

#include <Kelto/AUTH_SET>

#include <QDir>

namespace {

const QString application = QStringLiteral("Application");

/// A registry reads its stored values when it is made. The plain one touches no file, so this is
/// done for it.
template <typename Registry, typename... Arguments>
Registry registryOf(const Arguments &...arguments)
{
    if constexpr (std::is_same_v<Registry, PlainRegistry>)
        loadWithQSettings(QDir::currentPath() + QStringLiteral("/Config/Application_config.ini"));
    if constexpr (sizeof...(arguments) == 0)
        return Registry();
    else
        return Registry(application, QStringLiteral("1.0"), arguments...);
}

template <typename Registry> struct Built
{
    QVector<AUTH_INF> items;
    Registry registry;
};

// --- Inputs ------------------------------------------------------------------------

/// Neighbouring modules are in different groups and have two to four modes.
QVector<AUTH_INF> modulesInGroups(int moduleCount, int groupCount)
{
    QVector<AUTH_INF> items;
    for (int i = 0; i < moduleCount; ++i) {
        AUTH_INF item = moduleItem(i, i % groupCount);
        for (int mode = 0; mode < 2 + i % 3; ++mode)
            addMode(&item, 10 * i + mode);
        items.append(item);
    }
    return items;
}

QVector<AUTH_INF> inSmallGroups(int size)
{
    return modulesInGroups(size, size / 5);
}

QVector<AUTH_INF> inOneGroup(int size)
{
    return modulesInGroups(size, 1);
}

QVector<AUTH_INF> oneModule(int size)
{
    AUTH_INF item = moduleItem(0, 0);
    for (int i = 0; i < size; ++i)
        addMode(&item, i);
    return { item };
}

/// Measures @p run, which takes a registry of either kind and its items, on each shape of them.
template <typename Run, typename View = decltype(asItIs)>
void compareShapes(const std::string &operation, int largestBaseline, Run run, View view = asItIs)
{
    using Shape = std::pair<const char *, QVector<AUTH_INF> (*)(int)>;
    for (const auto &[name, make] : { Shape { "n modules, groups of 5", inSmallGroups },
                                      Shape { "n modules, one group", inOneGroup },
                                      Shape { "one module, n modes", oneModule } }) {
        const auto build = [items = make](int size, auto registry) {
            using Registry = decltype(registry);
            return Built<Registry> { items(size), registryOf<Registry>(items(size)) };
        };
        compare({ operation + ", " + name }, view,
                library([=](int size) { return build(size, AUTH_SET()); }, run),
                baseline(
                    "plain scans", largestBaseline,
                    [=](int size) { return build(size, PlainRegistry()); }, run));
    }
}

// --- Building ------------------------------------------------------------------------

template <typename Registry> Registry appended(const QVector<AUTH_INF> &items)
{
    auto growing = registryOf<Registry>();
    for (const AUTH_INF &item : items)
        growing.append(item);
    return growing;
}

/// What tells a registry from another one with other modules, groups or modes.
constexpr auto summary = [](const auto &registry) {
    QStringList texts = registry.exclusive_group_namelist();
    for (const AUTH_INF &item : registry.AUTH_INF_DATA())
        texts.append(QString::number(item.number) + item.name);
    for (const QString &group : registry.exclusive_group_namelist()) {
        const int count = registry.exclusive_group_mode_count(group);
        texts.append(QString::number(count));
        texts.append(registry.exclusive_group_orginal_model(group, count - 1));
    }
    return texts;
};

/// What a registry works out only when it is asked.
constexpr auto askOnce = [](auto &registry, const AUTH_INF &item) {
    registry.exclusive_group_set_mode(item.group, item.inner_mode_nameList.constLast());
    return std::make_tuple(registry.index(item.name), registry.model_exists(item.name_tr),
                           registry.exclusive_group_select(item.group));
};

void addBuilding()
{
    compareShapes(
        "build", 1000,
        [](const auto &built) {
            return registryOf<std::decay_t<decltype(built.registry)>>(built.items);
        },
        summary);
    compareShapes("build, ask once", 100, [](const auto &built) {
        auto fresh = registryOf<std::decay_t<decltype(built.registry)>>(built.items);
        const auto answers = askOnce(fresh, built.items.constLast());
        return std::make_pair(answers, fresh.currentModeList());
    });
    compareShapes(
        "append one by one", 100,
        [](const auto &built) {
            return appended<std::decay_t<decltype(built.registry)>>(built.items);
        },
        summary);
    compareShapes("append and ask alternately", 100, [](const auto &built) {
        auto growing = registryOf<std::decay_t<decltype(built.registry)>>();
        std::vector<std::tuple<int, bool, int>> answers;
        for (const AUTH_INF &item : built.items) {
            growing.append(item);
            answers.push_back(askOnce(growing, item));
        }
        return answers;
    });
}

// --- Questions -----------------------------------------------------------------------

void addModules()
{
    compareShapes("index of every module", 1000, [](const auto &built) {
        QVector<int> indices;
        for (const AUTH_INF &item : built.items)
            indices.append(built.registry.index(item.name));
        return indices;
    });
    compareShapes("model_exists of every module", 1000, [](const auto &built) {
        QVector<bool> answers;
        for (const AUTH_INF &item : built.items) {
            for (const QString &name : { item.name, item.name_tr, item.group })
                answers.append(built.registry.model_exists(name));
        }
        return answers;
    });
}

/// What @p ask gives for the names of the group and the mode of each mode.
template <typename Registry, typename Ask> auto answersForModes(Built<Registry> &built, Ask ask)
{
    QVector<decltype(ask(QString(), QString()))> answers;
    for (const AUTH_INF &item : built.items) {
        for (const QString &mode : item.inner_mode_nameList)
            answers.append(ask(item.group, mode));
    }
    return answers;
}

void addModes()
{
    compareShapes("stdModeNameForm of every mode", 1000, [](auto &built) {
        return answersForModes(built, [&built](const QString &group, const QString &mode) {
            return built.registry.stdModeNameForm(group, mode);
        });
    });
    compareShapes("set and select every mode", 10, [](auto &built) {
        return answersForModes(built, [&built](const QString &group, const QString &mode) {
            built.registry.exclusive_group_set_mode(group, mode);
            return built.registry.exclusive_group_select(group);
        });
    });
    compareShapes("descriptions of all modes", 1000, [](const auto &built) {
        QVector<QVector<QPair<int, QString>>> descriptions;
        for (const QString &group : built.registry.exclusive_group_namelist())
            descriptions.append(built.registry.exclusive_group_mode_description(group));
        return descriptions;
    });
    compareShapes("currentModeList", 100,
                  [](const auto &built) { return built.registry.currentModeList(); });
    compareShapes("currentModeMatching of every mode", 100, [](auto &built) {
        const QVector<QString> codes
            = answersForModes(built, [](const QString &group, const QString &mode) {
                  return QString(application + QLatin1Char(':') + group + QLatin1Char(':') + mode);
              });
        return built.registry.currentModeMatching(codes.toList());
    });
}

} // namespace

void addRegistryRows()
{
    addBuilding();
    addModules();
    addModes();
}
