// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "console.h"
#include "itemregistry.h"
#include "itemtable.h"
#include "itemtext.h"
#include "nearestname.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace {

QJsonArray choicesAsJson(const QVector<KeltoItemHints::Choice> &choices)
{
    QJsonArray array;
    for (const KeltoItemHints::Choice &choice : choices) {
        array.append(QJsonObject { { QStringLiteral("value"), choice.value },
                                   { QStringLiteral("label"), choice.label } });
    }
    return array;
}

/// What the hints of a mode say about a parameter or a result.
QJsonObject cellAsJson(const ItemTableMode &mode, const QString &key)
{
    const KeltoItemHints &hints = mode.hints;
    QJsonObject object { { QStringLiteral("mode"), mode.name },
                         { QStringLiteral("optional"), hints.isOptional(key) },
                         { QStringLiteral("advanced"), hints.isAdvanced(key) } };
    const auto add = [&object](const char *name, const QJsonValue &value, bool isThere) {
        if (isThere)
            object.insert(QLatin1String(name), value);
    };
    const auto addTexts = [&add](const char *name, const QStringList &texts) {
        add(name, QJsonArray::fromStringList(texts), !texts.isEmpty());
    };
    const QJsonObject when { { QStringLiteral("key"), hints.conditionKey(key) },
                             { QStringLiteral("values"),
                               QJsonArray::fromStringList(hints.conditionValues(key)) } };
    addTexts("default", hints.defaultValue(key).toStringList());
    add("minimum", hints.minimum(key), qIsFinite(hints.minimum(key)));
    add("maximum", hints.maximum(key), qIsFinite(hints.maximum(key)));
    add("choices", choicesAsJson(hints.choices(key)), !hints.choices(key).isEmpty());
    add("when", when, !hints.conditionKey(key).isEmpty());
    add("label", hints.label(key), !hints.label(key).isEmpty());
    add("help", hints.help(key), !hints.help(key).isEmpty());
    addTexts("files", hints.fileFilters(key));
    return object;
}

QJsonArray rowsAsJson(const ItemTable &table, const QVector<ItemTableRow> &rows)
{
    QJsonArray array;
    for (const ItemTableRow &row : rows) {
        const VParameter &parameter = row.parameter;
        QJsonArray cells;
        for (int mode = 0; mode < table.modes.size(); ++mode) {
            if (row.modes.at(mode))
                cells.append(cellAsJson(table.modes.at(mode), parameter.name().first));
        }
        array.append(QJsonObject {
            { QStringLiteral("key"), parameter.name().first },
            { QStringLiteral("group"), parameter.group().first },
            { QStringLiteral("symbol"), parameter.symbol() },
            { QStringLiteral("unit"), parameter.unit().first },
            { QStringLiteral("secondUnit"), parameter.unit().second },
            { QStringLiteral("objectName"), parameter.parameterObjectName() },
            { QStringLiteral("multi"), parameter.isMulti() },
            { QStringLiteral("modes"), cells },
        });
    }
    return array;
}

QJsonObject itemAsJson(const ItemFile &file, const ItemTable &table)
{
    QJsonArray modes;
    for (const ItemTableMode &mode : table.modes) {
        modes.append(QJsonObject { { QStringLiteral("name"), mode.name },
                                   { QStringLiteral("description"), mode.description } });
    }
    const AUTH_INF &item = file.item();
    return {
        { QStringLiteral("file"), file.path() },
        { QStringLiteral("name"), item.name },
        { QStringLiteral("description"), item.description },
        { QStringLiteral("type"), item.type },
        { QStringLiteral("group"), item.group },
        { QStringLiteral("exclusive"), item.exclusive_group },
        { QStringLiteral("libraries"), QJsonArray::fromStringList(item.lib_name) },
        { QStringLiteral("modes"), modes },
        { QStringLiteral("parameters"), rowsAsJson(table, table.parameters) },
        { QStringLiteral("results"), rowsAsJson(table, table.results) },
    };
}

/// The rows that have one of the modes, without the other modes.
QVector<ItemTableRow> reduced(const QVector<ItemTableRow> &rows, const QVector<bool> &isKept)
{
    QVector<ItemTableRow> kept;
    for (const ItemTableRow &row : rows) {
        QVector<bool> modes;
        for (int mode = 0; mode < isKept.size(); ++mode) {
            if (isKept.at(mode))
                modes.append(row.modes.at(mode));
        }
        if (modes.contains(true))
            kept.append({ row.parameter, row.label, modes });
    }
    return kept;
}

/// The modes of this plain name or, where there is none, translated name.
QVector<bool> modesNamed(const ItemTable &table, const QString &name)
{
    QVector<bool> plain;
    QVector<bool> translated;
    for (const ItemTableMode &mode : table.modes) {
        plain.append(mode.name == name);
        translated.append(mode.title == name);
    }
    return plain.contains(true) ? plain : translated;
}

ItemTable reduced(const ItemTable &table, const QVector<bool> &isKept)
{
    ItemTable kept;
    for (int mode = 0; mode < isKept.size(); ++mode) {
        if (isKept.at(mode))
            kept.modes.append(table.modes.at(mode));
    }
    kept.parameters = reduced(table.parameters, isKept);
    kept.results = reduced(table.results, isKept);
    return kept;
}

/// The items of the files with the modes that were asked for.
class Show
{
public:
    explicit Show(const QCommandLineParser &line)
        : m_mode(line.value(QStringLiteral("mode")))
        , m_isForOneMode(line.isSet(QStringLiteral("mode")))
        , m_isJson(line.isSet(QStringLiteral("json")))
    {
    }

    void add(const ItemFile &file)
    {
        ItemTable table = itemTable(file.item());
        for (const ItemTableMode &mode : qAsConst(table.modes))
            m_modes.append(mode.name);
        if (m_isForOneMode)
            table = reduced(table, modesNamed(table, m_mode));
        if (m_isForOneMode && table.modes.isEmpty())
            return;
        if (m_isJson)
            m_items.append(itemAsJson(file, table));
        else
            m_texts.append(itemText(file.item(), table, file.path()));
    }

    /// Whether there was something to print, or nothing was asked for.
    bool print(Console &console) const
    {
        if (m_isForOneMode && m_items.isEmpty() && m_texts.isEmpty()) {
            console.complain(Command::tr("there is no mode \"%1\".").arg(m_mode)
                             + didYouMean(m_mode, m_modes));
            return false;
        }
        if (m_isJson)
            console.print(QJsonObject { { QStringLiteral("items"), m_items } });
        else
            console.print(m_texts.join(QLatin1Char('\n')));
        return true;
    }

private:
    QString m_mode;
    bool m_isForOneMode;
    bool m_isJson;
    QStringList m_modes;
    QJsonArray m_items;
    QStringList m_texts;
};

ExitCode run(const QCommandLineParser &line, Console &console)
{
    bool areAllRead = true;
    const QVector<ItemFile> files = readItemFiles(line.positionalArguments(), console, &areAllRead);
    if (files.isEmpty())
        return Found;
    Show show(line);
    for (const ItemFile &file : files)
        show.add(file);
    return show.print(console) && areAllRead ? Done : Found;
}

} // namespace

Command showCommand()
{
    return { "show",
             "PATH...",
             1,
             -1,
             QT_TRANSLATE_NOOP("Command", "Show module items as a person reads them"),
             QT_TRANSLATE_NOOP(
                 "Command",
                 "Shows what each item file describes: its modes, and its parameters and results "
                 "with their units, limits and choices. A cell of the tables holds the value with "
                 "which a parameter starts in a mode, \"yes\" where it starts with none, and \"-\" "
                 "where the mode does not have it."),
             { { { QStringLiteral("mode") },
                 "NAME",
                 QT_TRANSLATE_NOOP("Command", "Show this mode only.") } },
             { { "kelto show beam.ini",
                 QT_TRANSLATE_NOOP("Command", "The modes and parameters of a module.") },
               { "kelto show --mode Cantilever modules",
                 QT_TRANSLATE_NOOP("Command", "One mode of the modules in a directory.") } },
             run };
}
