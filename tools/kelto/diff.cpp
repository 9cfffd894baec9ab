// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "console.h"
#include "itemdiff.h"
#include "itemregistry.h"
#include "terminaltext.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

/// A module in two versions, of which one may be missing, and what is different.
struct ModuleDiff
{
    QString name;
    QString before; ///< The paths of the files; null where the version is missing.
    QString after;
    QVector<ItemChange> changes;
};

bool loses(const ModuleDiff &module)
{
    return std::any_of(module.changes.cbegin(), module.changes.cend(),
                       [](const ItemChange &change) { return change.loses; });
}

const ItemFile *find(const QVector<ItemFile> &files, const QString &name)
{
    const auto file = std::find_if(files.cbegin(), files.cend(), [&name](const ItemFile &each) {
        return each.item().name == name;
    });
    return file == files.cend() ? nullptr : &*file;
}

ModuleDiff compared(const ItemFile &before, const ItemFile &after)
{
    return { before.item().name, before.path(), after.path(),
             itemDiff(before.item(), after.item()) };
}

ItemChange wholeModule(const QString &name, ItemChange::Kind kind)
{
    return { ItemChange::Module, name, kind, kind == ItemChange::Removed, nullptr, {}, {}, {} };
}

/// Modules of one name beside each other.
QVector<ModuleDiff> comparedByName(const QVector<ItemFile> &before, const QVector<ItemFile> &after)
{
    QVector<ModuleDiff> modules;
    for (const ItemFile &file : before) {
        const QString name = file.item().name;
        if (const ItemFile *other = find(after, name))
            modules.append(compared(file, *other));
        else
            modules.append({ name, file.path(), {}, { wholeModule(name, ItemChange::Removed) } });
    }
    for (const ItemFile &file : after) {
        const QString name = file.item().name;
        if (!find(before, name))
            modules.append({ name, {}, file.path(), { wholeModule(name, ItemChange::Added) } });
    }
    return modules;
}

/// The first file of each name, which is the one that a registry finds.
QVector<ItemFile> distinct(const QVector<ItemFile> &files, Console &console)
{
    QVector<ItemFile> first;
    for (const ItemFile &file : files) {
        if (const ItemFile *other = find(first, file.item().name)) {
            console.complain(
                Command::tr("%1: left out, since its module has the name of that in %2.")
                    .arg(file.path(), other->path()));
        } else {
            first.append(file);
        }
    }
    return first;
}

const char *subjectText(ItemChange::Subject subject)
{
    switch (subject) {
    case ItemChange::Module:
        return QT_TRANSLATE_NOOP("Command", "module \"%1\"");
    case ItemChange::Mode:
        return QT_TRANSLATE_NOOP("Command", "mode \"%1\"");
    case ItemChange::Parameter:
        return QT_TRANSLATE_NOOP("Command", "parameter \"%1\"");
    case ItemChange::Result:
        return QT_TRANSLATE_NOOP("Command", "result \"%1\"");
    case ItemChange::ExtraKey:
        return QT_TRANSLATE_NOOP("Command", "extra key \"%1\"");
    }
    return "%1";
}

QString quoted(const QString &text)
{
    return text.isNull() ? Command::tr("none") : Command::tr("\"%1\"").arg(text);
}

QString kindText(const ItemChange &change)
{
    switch (change.kind) {
    case ItemChange::Added:
        return Command::tr("added");
    case ItemChange::Removed:
        return Command::tr("removed");
    case ItemChange::Renamed:
        return Command::tr("renamed to %1").arg(quoted(change.after));
    case ItemChange::Changed:
        return Command::tr("%1: %2, now %3")
            .arg(Command::tr(change.property), quoted(change.before), quoted(change.after));
    }
    return {};
}

QString lineOf(const ItemChange &change)
{
    QString subject = Command::tr(subjectText(change.subject)).arg(change.name);
    if (!change.modes.isEmpty())
        subject = Command::tr("%1 in %2").arg(subject, change.modes.join(Command::tr(", ")));
    return QLatin1String(change.loses ? "! " : "  ")
        + printable(Command::tr("%1: %2").arg(subject, kindText(change))) + QLatin1Char('\n');
}

QString textOf(const QVector<ModuleDiff> &modules)
{
    QString text;
    bool areLost = false;
    for (const ModuleDiff &module : modules) {
        if (module.changes.isEmpty())
            continue;
        text += printable(module.name) + QLatin1Char('\n');
        for (const ItemChange &change : module.changes)
            text += lineOf(change);
        areLost = areLost || loses(module);
    }
    if (text.isEmpty())
        return Command::tr("no difference") + QLatin1Char('\n');
    if (areLost)
        text += Command::tr("\"!\": stored projects lose something there.") + QLatin1Char('\n');
    return text;
}

const char *nameOf(ItemChange::Subject subject)
{
    static const char *const names[] = { "module", "mode", "parameter", "result", "extraKey" };
    return names[subject];
}

const char *nameOf(ItemChange::Kind kind)
{
    static const char *const names[] = { "added", "removed", "renamed", "changed" };
    return names[kind];
}

QJsonObject asJson(const ItemChange &change)
{
    QJsonObject object { { QStringLiteral("subject"), QLatin1String(nameOf(change.subject)) },
                         { QStringLiteral("name"), change.name },
                         { QStringLiteral("change"), QLatin1String(nameOf(change.kind)) },
                         { QStringLiteral("loses"), change.loses } };
    if (change.property)
        object.insert(QStringLiteral("property"), QLatin1String(change.property));
    if (!change.before.isNull())
        object.insert(QStringLiteral("before"), change.before);
    if (!change.after.isNull())
        object.insert(QStringLiteral("after"), change.after);
    if (!change.modes.isEmpty())
        object.insert(QStringLiteral("modes"), QJsonArray::fromStringList(change.modes));
    return object;
}

QJsonObject asJson(const ModuleDiff &module)
{
    QJsonArray changes;
    for (const ItemChange &change : module.changes)
        changes.append(asJson(change));
    QJsonObject object { { QStringLiteral("name"), module.name },
                         { QStringLiteral("loses"), loses(module) },
                         { QStringLiteral("changes"), changes } };
    if (!module.before.isNull())
        object.insert(QStringLiteral("before"), module.before);
    if (!module.after.isNull())
        object.insert(QStringLiteral("after"), module.after);
    return object;
}

QJsonObject asJson(const QVector<ModuleDiff> &modules)
{
    QJsonArray array;
    for (const ModuleDiff &module : modules)
        array.append(asJson(module));
    return { { QStringLiteral("loses"), std::any_of(modules.cbegin(), modules.cend(), loses) },
             { QStringLiteral("modules"), array } };
}

ExitCode run(const QCommandLineParser &line, Console &console)
{
    const QString before = line.positionalArguments().at(0);
    const QString after = line.positionalArguments().at(1);
    bool isRead = true;
    bool isOtherRead = true;
    const QVector<ItemFile> first = readItemFiles({ before }, console, &isRead);
    const QVector<ItemFile> second = readItemFiles({ after }, console, &isOtherRead);
    if (!isRead || !isOtherRead)
        return Found;
    if (QFileInfo(before).isDir() != QFileInfo(after).isDir()) {
        console.complain(Command::tr("a file can only be compared with a file, and a directory "
                                     "with a directory."));
        return WrongUsage;
    }
    // First, so that complaints are in the order of the arguments with every compiler.
    const QVector<ItemFile> old = QFileInfo(before).isDir() ? distinct(first, console) : first;
    const QVector<ModuleDiff> modules = QFileInfo(before).isDir()
        ? comparedByName(old, distinct(second, console))
        : QVector<ModuleDiff> { compared(first.constFirst(), second.constFirst()) };
    if (line.isSet(QStringLiteral("json")))
        console.print(asJson(modules));
    else
        console.print(textOf(modules));
    return std::any_of(modules.cbegin(), modules.cend(), loses) ? Found : Done;
}

} // namespace

Command diffCommand()
{
    return {
        "diff",
        "OLD NEW",
        2,
        2,
        QT_TRANSLATE_NOOP("Command", "Compare two versions of module items"),
        QT_TRANSLATE_NOOP(
            "Command",
            "Says what is different between two item files, or between the modules of one "
            "name in two directories: modes, parameters, results and what describes them.\n\n"
            "Exit code 1 when projects that were stored with the old version lose something: a "
            "module, a mode or a parameter is gone or has another name, an exclusive group "
            "has another name or is none any more, a unit is another one and not only spelt "
            "otherwise, a choice is gone, only certain values are left to choose, limits are "
            "narrower, a parameter counts for fewer values of another one, the kind is one that "
            "does not read all that the old one allowed, or several values are no longer "
            "allowed. These lines begin with \"!\". Exit code 0 when there are other "
            "differences only, or none."),
        {},
        { { "kelto diff old/beam.ini new/beam.ini",
            QT_TRANSLATE_NOOP("Command", "What has changed in a module.") },
          { "kelto diff --json released modules",
            QT_TRANSLATE_NOOP("Command", "The same for all modules, for a program.") } },
        run
    };
}
