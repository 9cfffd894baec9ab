// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "console.h"
#include "itemregistry.h"
#include "terminaltext.h"
#include "translationfile.h"

#include <KeltoItemTranslation>
#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>
#include <QTranslator>

#include <climits>
#include <optional>

namespace {

using NamePair = QPair<QString, QString>;

/// A mode under one name, which several modules of a group may offer.
struct OfferedMode
{
    NamePair group;
    NamePair mode;
    NamePair standardName;
    QStringList modules;
};

/// The modules of the group that have a mode of these names.
QStringList modulesWith(const QVector<AUTH_INF> &items, const NamePair &mode)
{
    QStringList modules;
    for (const AUTH_INF &item : items) {
        const int count = item.inner_mode_count > 0 ? item.inner_mode_nameList.size() : 0;
        for (int i = 0; i < count; ++i) {
            const NamePair names { item.inner_mode_nameList.at(i),
                                   item.inner_mode_nameList_tr.value(i) };
            if (names == mode)
                modules.append(item.name);
        }
    }
    modules.removeDuplicates();
    return modules;
}

QVector<OfferedMode> offeredModes(const AUTH_SET &registry)
{
    QVector<OfferedMode> modes;
    const QVector<NamePair> names = registry.currentModeList();
    const QVector<NamePair> groups = registry.currentExclusiveGroupList();
    for (const NamePair &group : groups) {
        const QVector<AUTH_INF> items = registry.AUTH_INF_list_by_group(group.first);
        const QVector<NamePair> pairs
            = registry.exclusive_group_inner_mode_namelist_at(group.first);
        for (const NamePair &mode : pairs)
            modes.append({ group, mode, names.value(modes.size()), modulesWith(items, mode) });
    }
    return modes;
}

QJsonObject asJson(const QString &application, const QVector<OfferedMode> &modes)
{
    QJsonArray array;
    for (const OfferedMode &mode : modes) {
        array.append(QJsonObject {
            { QStringLiteral("name"), mode.standardName.first },
            { QStringLiteral("translatedName"), mode.standardName.second },
            { QStringLiteral("group"), mode.group.first },
            { QStringLiteral("translatedGroup"), mode.group.second },
            { QStringLiteral("mode"), mode.mode.first },
            { QStringLiteral("translatedMode"), mode.mode.second },
            { QStringLiteral("modules"), QJsonArray::fromStringList(mode.modules) },
        });
    }
    return { { QStringLiteral("application"), application }, { QStringLiteral("modes"), array } };
}

QString asText(const QVector<OfferedMode> &modes)
{
    QVector<QStringList> rows { { Command::tr("Standard name"), Command::tr("Translated"),
                                  Command::tr("Modules") } };
    for (const OfferedMode &mode : modes) {
        rows.append({ printable(mode.standardName.first), printable(mode.standardName.second),
                      printable(mode.modules.join(Command::tr(", "))) });
    }
    return textTable(rows, { INT_MAX });
}

/// Looks texts up in the file while it lives.
class Language : public QTranslator
{
public:
    explicit Language(const TranslationFile &file)
        : m_file(file)
    {
        QCoreApplication::installTranslator(this);
    }
    ~Language() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return m_file.translate(context, source);
    }

private:
    const TranslationFile &m_file;
};

QVector<AUTH_INF> itemsOf(const QVector<ItemFile> &files, const TranslationFile *translation)
{
    std::optional<Language> language;
    if (translation)
        language.emplace(*translation);
    QVector<AUTH_INF> items;
    for (const ItemFile &file : files)
        items.append(KeltoItemTranslation::translated(file.item()));
    return items;
}

ExitCode run(const QCommandLineParser &line, Console &console)
{
    if (!line.isSet(QStringLiteral("app"))) {
        console.complain(Command::tr("\"modes\" needs --app and the name of the application. "
                                     "Try \"kelto modes --help\"."));
        return WrongUsage;
    }
    const QString application = line.value(QStringLiteral("app"));
    if (application.contains(QLatin1Char(':'))) {
        console.complain(
            Command::tr("%1: a name cannot hold \":\", which divides the names of modes.")
                .arg(application));
        return WrongUsage;
    }
    std::optional<TranslationFile> translation;
    if (line.isSet(QStringLiteral("translation")))
        translation.emplace(line.value(QStringLiteral("translation")));
    if (translation && !translation->error().isEmpty()) {
        console.complain(translation->error());
        return Found;
    }
    bool areAllRead = true;
    const QVector<ItemFile> files = readItemFiles(line.positionalArguments(), console, &areAllRead);
    if (files.isEmpty())
        return Found;
    const QVector<OfferedMode> modes = offeredModes(
        registryOf(application, itemsOf(files, translation ? &*translation : nullptr)));
    if (line.isSet(QStringLiteral("json")))
        console.print(asJson(application, modes));
    else if (!modes.isEmpty())
        console.print(asText(modes));
    if (modes.isEmpty())
        console.complain(Command::tr("no item has a mode and \"exclusive_group=true\"."));
    return areAllRead && !modes.isEmpty() ? Done : Found;
}

} // namespace

Command modesCommand()
{
    return {
        "modes",
        "PATH...",
        1,
        -1,
        QT_TRANSLATE_NOOP("Command", "List the standard mode names that modules offer"),
        QT_TRANSLATE_NOOP(
            "Command",
            "Lists the standard names, APPLICATION:GROUP:MODE, of all modes that a registry of "
            "these item files offers, plain and translated, in the order of the registry, and "
            "the modules that bring them. The files stand in the registry in the order in "
            "which they are named; those of a directory are sorted. Exit code 1 when there is "
            "no mode."),
        { { { QStringLiteral("app") },
            "NAME",
            QT_TRANSLATE_NOOP("Command", "The name of the application. Needed.") },
          { { QStringLiteral("translation") },
            "FILE",
            QT_TRANSLATE_NOOP("Command",
                              "A translation of the modules, .ts or .qm, of which the translated "
                              "names are made; without it they are the plain ones.") } },
        { { "kelto modes --app Beams modules",
            QT_TRANSLATE_NOOP("Command", "The modes of the application Beams.") },
          { "kelto modes --app Beams --translation beams_zh_CN.qm modules",
            QT_TRANSLATE_NOOP("Command", "The same, with their Chinese names.") } },
        run
    };
}
