// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "registryinput.h"

namespace {

constexpr int modulesPerGroup = 5;

QPair<QString, QString> namePair(const QString &name, const QString &translated, int number)
{
    return { name + QString::number(number), translated + QString::number(number) };
}

void setNames(QString &plain, QString &translated, const QPair<QString, QString> &names)
{
    plain = names.first;
    translated = names.second;
}

/// Adds an item with @p modeCount inner modes to the group at @p group.
void addItem(RegistryInput &input, int group, int modeCount)
{
    const int module = input.items.size();
    RegistryInput::Group &target = input.groups[group];

    AUTH_INF item;
    setNames(item.name, item.name_tr,
             namePair(QStringLiteral("Module "), QStringLiteral("模块 "), module));
    setNames(item.group, item.group_tr, target.names);
    item.exclusive_group = true;
    item.inner_mode_count = modeCount;
    item.inner_mode_nameList.clear();
    item.inner_mode_nameList_tr.clear();
    item.inner_mode_description.clear();
    for (int i = 0; i < modeCount; ++i) {
        const QString place = item.name + QLatin1Char('.');
        const RegistryInput::Mode mode {
            module, namePair(place + QStringLiteral("Mode "), place + QStringLiteral("模式 "), i),
            place + QStringLiteral("description ") + QString::number(i)
        };
        item.inner_mode_nameList.append(mode.names.first);
        item.inner_mode_nameList_tr.append(mode.names.second);
        item.inner_mode_description.append(mode.description);
        target.modes.append(mode);
    }
    input.items.append(item);
}

void addGroups(RegistryInput &input, int count)
{
    for (int i = 0; i < count; ++i) {
        input.groups.append({ namePair(QStringLiteral("Group "), QStringLiteral("分组 "), i), {} });
    }
}

QString standardName(const RegistryInput &input, const QString &group, const QString &mode)
{
    return QStringList { input.application, group, mode }.join(QLatin1Char(':'));
}

void addStandardNames(RegistryInput &input)
{
    for (const RegistryInput::Group &group : qAsConst(input.groups)) {
        for (const RegistryInput::Mode &mode : group.modes) {
            input.modeList.append({ standardName(input, group.names.first, mode.names.first),
                                    standardName(input, group.names.second, mode.names.second) });
        }
    }
    for (int i = 0; i < input.modeList.size(); ++i) {
        const QPair<QString, QString> &names = input.modeList.at(i);
        input.codes.append(i % 2 == 0 ? names.first : names.second);
    }
}

/// Neighbouring items are in different groups and have two to four inner modes.
RegistryInput modulesInGroups(int moduleCount, int groupCount)
{
    RegistryInput input;
    addGroups(input, groupCount);
    for (int i = 0; i < moduleCount; ++i)
        addItem(input, i % groupCount, 2 + i % 3);
    addStandardNames(input);
    return input;
}

RegistryInput modulesInSmallGroups(int size)
{
    return modulesInGroups(size, size / modulesPerGroup);
}

RegistryInput modulesInOneGroup(int size)
{
    return modulesInGroups(size, 1);
}

RegistryInput oneModule(int size)
{
    RegistryInput input;
    addGroups(input, 1);
    addItem(input, 0, size);
    addStandardNames(input);
    return input;
}

} // namespace

const std::vector<RegistryShape> &registryShapes()
{
    static const std::vector<RegistryShape> shapes {
        { "n modules, groups of 5", modulesInSmallGroups },
        { "n modules, one group", modulesInOneGroup },
        { "one module, n modes", oneModule },
    };
    return shapes;
}
