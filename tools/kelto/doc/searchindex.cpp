// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "command.h"
#include "doc/manual.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class Entries
{
public:
    explicit Entries(const ManualView &view)
    {
        for (const ManualModule &module : view.modules())
            add(module, view.file(module.page, QStringLiteral(".html")));
    }

    const QJsonArray &list() const { return m_list; }

private:
    void add(const ManualModule &module, const QString &file)
    {
        append({ module.title, Command::tr("Module"), QString(), file },
               { module.item.name, module.item.description });
        for (int mode = 0; mode < module.modeIds.size(); ++mode) {
            const ItemTableMode &shown = module.modes.at(mode);
            append({ shown.title, Command::tr("Mode"), module.title,
                     file + QLatin1Char('#') + module.modeIds.at(mode) },
                   { shown.name });
        }
        addRows(module, module.parameters, Command::tr("Parameter"), file, module.parameterIds);
        addRows(module, module.results, Command::tr("Result"), file, module.resultIds);
    }

    void addRows(const ManualModule &module, const PrintedTable &table, const QString &kind,
                 const QString &file, const QStringList &ids)
    {
        for (int i = 0; i < table.rows.size(); ++i) {
            const PrintedRow &row = table.rows.at(i);
            QStringList found { row.key, row.help };
            for (int column = 0; column < table.columns.size() - table.modes; ++column)
                found += row.cells.at(column);
            append({ row.label, kind, module.title, file + QLatin1Char('#') + ids.at(i) }, found);
        }
    }

    void append(const QStringList &shown, const QStringList &found)
    {
        QJsonArray entry;
        for (const QString &text : shown)
            entry.append(printable(text));
        // With plain names, so that a page in another language is found by them as well.
        entry.append(printable(found.join(QLatin1Char(' '))));
        m_list.append(entry);
    }

    QJsonArray m_list;
};

} // namespace

QByteArray searchIndex(const ManualView &view)
{
    const QJsonObject index {
        { QStringLiteral("entries"), Entries(view).list() },
        { QStringLiteral("nothing"), Command::tr("Nothing found.") },
        { QStringLiteral("found"), Command::tr("Found: %1").arg(QStringLiteral("%1")) },
    };
    return QByteArray("// ") + manualMark
        + "\nwindow.manualIndex = " + QJsonDocument(index).toJson(QJsonDocument::Compact) + ";\n";
}
