// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Names that modules of one registry, or modes of one module, have in common.

#include "command.h"
#include "lint/rules_places.h"
#include "lint/translationfiles.h"

#include <KeltoItemTranslation>

#include <QHash>
#include <QSet>

namespace {

void findModesTwice(const LintItem &item, Findings *findings)
{
    const ItemFile &file = item.file();
    QHash<QString, int> counts;
    const QStringList modes = file.item().inner_mode_nameList;
    const ModePositions positions(file);
    for (int i = 0; i < modes.size(); ++i) {
        const QString &mode = modes.at(i);
        if (++counts[mode] == 2 && !mode.isEmpty()) {
            FileFindings(file, findings)
                .add("mode-twice", positions.at(i),
                     Command::tr("two inner modes are named \"%1\"").arg(mode));
        }
    }
}

void findModulesTwice(const QVector<ItemFile> &files, Findings *findings)
{
    QHash<QString, QString> paths;
    for (const ItemFile &file : files) {
        const QString name = file.item().name;
        if (paths.contains(name) && !name.isEmpty()) {
            FileFindings(file, findings)
                .add("module-twice", fieldPosition(file, "name"),
                     Command::tr("another module is named \"%1\" as well: %2")
                         .arg(name, paths.value(name)));
        } else {
            paths.insert(name, file.path());
        }
    }
}

QSet<QString> exclusiveGroups(const QVector<ItemFile> &files)
{
    QSet<QString> groups;
    for (const ItemFile &file : files) {
        if (file.item().exclusive_group)
            groups.insert(file.item().group);
    }
    return groups;
}

/// Modules of one name are a finding already.
void findModesOfSeveralModules(const QVector<ItemFile> &files, Findings *findings)
{
    const QSet<QString> groups = exclusiveGroups(files);
    QHash<QPair<QString, QString>, const ItemFile *> firsts;
    for (const ItemFile &file : files) {
        const AUTH_INF &item = file.item();
        if (!groups.contains(item.group))
            continue;
        const ModePositions positions(file);
        for (int i = 0; i < item.inner_mode_nameList.size(); ++i) {
            const QString &mode = item.inner_mode_nameList.at(i);
            const ItemFile *&first = firsts[{ item.group, mode }];
            if (!first) {
                first = &file;
            } else if (first->item().name != item.name && !mode.isEmpty()) {
                FileFindings(file, findings)
                    .add("mode-twice", positions.at(i),
                         Command::tr("the group \"%1\" has an inner mode \"%2\" already: %3")
                             .arg(item.group, mode, first->path()));
            }
        }
    }
}

/// The first file of each exclusive group, in order.
QVector<const ItemFile *> filesOfGroups(const QVector<ItemFile> &files)
{
    QSet<QString> seen;
    QVector<const ItemFile *> firsts;
    for (const ItemFile &file : files) {
        if (file.item().exclusive_group && !seen.contains(file.item().group)) {
            seen.insert(file.item().group);
            firsts.append(&file);
        }
    }
    return firsts;
}

void findGroupsTranslatedAlike(const QVector<const ItemFile *> &files,
                               const TranslationFile &translations, Findings *findings)
{
    QHash<QString, QString> groups;
    for (const ItemFile *file : files)
        groups.insert(file->item().group, file->item().group);
    for (const ItemFile *file : files) {
        const QString group = file->item().group;
        const QString translated
            = translations.text(KeltoItemTranslation::contextOf(file->item()), group);
        const QString other = groups.value(translated, group);
        groups.insert(translated, other);
        if (other != group) {
            FileFindings(*file, findings)
                .add("group-translation", fieldPosition(*file, "group"),
                     Command::tr("the translation \"%1\" of the group \"%2\" is also a name of "
                                 "the group \"%3\": %4")
                         .arg(translated, group, other, translations.path()));
        }
    }
}

void checkAll(const QVector<ItemFile> &files, Findings *findings)
{
    findModulesTwice(files, findings);
    findModesOfSeveralModules(files, findings);
    const QVector<const ItemFile *> groups = filesOfGroups(files);
    if (groups.size() < 2)
        return;
    const std::vector<TranslationFile> translations = translationFilesOf(files);
    for (const TranslationFile &file : translations)
        findGroupsTranslatedAlike(groups, file, findings);
}

} // namespace

#define EXAMPLE_GROUPS(translation)                                                                \
    EXAMPLE_ITEM EXAMPLE_LENGTH EXAMPLE_FILE(                                                      \
        "second.ini") "[KeltoItem]\nname=Plate\ntype=calculation\ngroup=Statik\n" EXAMPLE_MODE     \
        EXAMPLE_LENGTH EXAMPLE_FILE(                                                               \
            "host_de.ts") "<TS><context><name>UCal</name>\n"                                       \
                          "<message><source>Statics</source><translation>" translation             \
                          "</translation></message>\n"                                             \
                          "</context></TS>\n"

RuleArea registryRules()
{
    return {
        {
            { "module-twice", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "Two modules have one name"),
              QT_TRANSLATE_NOOP("Command",
                                "A registry finds the first of them only: AUTH_SET::index() never "
                                "gives the other. Give one of them another name."),
              EXAMPLE_ITEM EXAMPLE_LENGTH EXAMPLE_FILE(
                  "second.ini") "[KeltoItem]\nname=Beam\ntype=calculation\ngroup="
                                "Dynamics\n" EXAMPLE_MODE EXAMPLE_LENGTH,
              EXAMPLE_ITEM EXAMPLE_LENGTH EXAMPLE_FILE(
                  "second.ini") "[KeltoItem]\nname=Moving "
                                "beam\ntype=calculation\ngroup=Dynamics\n" EXAMPLE_MODE
                                    EXAMPLE_LENGTH },
            { "mode-twice", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "Two modes of a module or a group have one name"),
              QT_TRANSLATE_NOOP("Command",
                                "Modes are selected by name, and the first one counts. The "
                                "parameters of the other cannot be had, or are those of the first. "
                                "This holds for the modes of a module, and for those of all "
                                "modules of an exclusive group. Give one of them another name."),
              EXAMPLE_ITEM EXAMPLE_LENGTH EXAMPLE_FILE(
                  "second.ini") "[KeltoItem]\nname=Plate\ntype=calculation\ngroup="
                                "Statics\n" EXAMPLE_MODE EXAMPLE_LENGTH,
              EXAMPLE_ITEM EXAMPLE_LENGTH EXAMPLE_FILE(
                  "second.ini") "[KeltoItem]\nname=Plate\ntype=calculation\ngroup="
                                "Plates\n" EXAMPLE_MODE EXAMPLE_LENGTH },
            { "group-translation", Severity::Warning,
              QT_TRANSLATE_NOOP("Command",
                                "The translated name of a group is a name of another group"),
              QT_TRANSLATE_NOOP("Command",
                                "A group is found by its plain or its translated name, so the "
                                "modes of the one group can be looked for in the other. "
                                "Translations are read from the files \"*.ts\" beside the module "
                                "files, and in a directory \"translations\" beside or below "
                                "theirs. Translate the groups differently."),
              EXAMPLE_GROUPS("Statik"), EXAMPLE_GROUPS("Festigkeit") },
        },
        findModesTwice,
        checkAll
    };
}
