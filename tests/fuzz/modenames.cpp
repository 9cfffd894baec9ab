// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Standard mode names. The first line names the application, every other one a module by the names
// of itself, its group and its inner mode, each followed by the translated one, with tabs between.

#include "fuzzing.h"

#include <AUTH_SET>
#include <UTaskSelectDialog>

#include <QDir>

using Fuzzing::check;

namespace {

AUTH_INF moduleOf(const QString &line)
{
    const QStringList fields = line.split(QLatin1Char('\t'));
    AUTH_INF module;
    module.name = fields.value(0);
    module.name_tr = fields.value(1);
    module.group = fields.value(2);
    module.group_tr = fields.value(3);
    module.inner_mode_nameList = QStringList(fields.value(4));
    module.inner_mode_nameList_tr = QStringList(fields.value(5));
    module.exclusive_group = true;
    return module;
}

void matchNames(const AUTH_SET &registry, const QStringList &lines)
{
    QStringList names;
    const auto modes = registry.currentModeList();
    for (const auto &mode : modes)
        names.append(mode.first);
    check(registry.currentModeMatching(names).size() == names.size(), "every mode has its name");
    check(registry.currentModeMatchingCount(lines) == registry.currentModeMatching(lines).size(),
          "matches are counted");
}

/// Chooses modes in the dialog, which takes their names apart again.
void chooseModes(AUTH_SET &registry, const QStringList &lines)
{
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    check(dialog.availableModeItems() == registry.currentModeList(), "all modes are on offer");
    dialog.availableModeItemsWithModeCodeList(lines);
    dialog.operate(2);
    const QString chosen = dialog.currentItem().first;
    if (chosen.count(QLatin1Char(':')) == 2)
        check(registry.stdModeNameForm(registry.current_group, registry.current_mode) == chosen,
              "the accepted name is that of the current mode");
    for (const QString &line : lines) {
        dialog.resetToExclusiveGroup(line.section(QLatin1Char('\t'), 2, 2));
        dialog.operate(0);
    }
    dialog.resetToProjectMode();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // Modules with certain names have the registry write into the current directory.
    static const QTemporaryDir directory;
    QDir::setCurrent(directory.path());

    QStringList lines = Fuzzing::lines(data, size);
    const QString application = lines.takeFirst();
    QVector<AUTH_INF> modules;
    for (const QString &line : qAsConst(lines))
        modules.append(moduleOf(line));
    if (modules.isEmpty())
        return 0;
    AUTH_SET registry(application, QString(), modules);
    matchNames(registry, lines);
    chooseModes(registry, lines);
    return 0;
}
