// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The pages of the manual as Markdown.

#include "command.h"
#include "doc/manual.h"

#include <QRegularExpression>

namespace {

const QLatin1String markdownEnding(".md");

/// As one line that no reader of Markdown takes for anything but text.
QString escaped(const QString &text)
{
    static const QRegularExpression special(QStringLiteral("([\\\\`*_\\[\\]<>#|~&!$])"));
    static const QRegularExpression listMark(QStringLiteral("^([-+=]|\\d+(?=[.)]))"));
    QString line = printable(text).simplified();
    line.replace(special, QStringLiteral("\\\\1"));
    const QRegularExpressionMatch mark = listMark.match(line);
    if (mark.hasMatch())
        line.insert(mark.captured().at(0).isDigit() ? mark.capturedEnd() : 0, QLatin1Char('\\'));
    return line;
}

QString escapedLines(const QStringList &lines)
{
    QStringList shown;
    for (const QString &line : lines)
        shown.append(escaped(line));
    return shown.join(QStringLiteral("<br>"));
}

QString tableRow(const QStringList &cells)
{
    return QStringLiteral("| ") + cells.join(QStringLiteral(" | ")) + QStringLiteral(" |\n");
}

QString heading(int level, const QString &text)
{
    return QLatin1Char('\n') + QString(level, QLatin1Char('#')) + QLatin1Char(' ') + escaped(text)
        + QLatin1Char('\n');
}

QString paragraph(const QString &text)
{
    return text.isEmpty() ? QString()
                          : QString(QLatin1Char('\n') + escaped(text) + QLatin1Char('\n'));
}

QString mark()
{
    return QStringLiteral("<!-- %1 -->\n").arg(QLatin1String(manualMark));
}

QString groupRow(const QString &title, int columns)
{
    if (title.isEmpty())
        return {};
    QStringList cells { QStringLiteral("**") + escaped(title) + QStringLiteral("**") };
    while (cells.size() < columns)
        cells.append(QString());
    return tableRow(cells);
}

QString tableHead(const QString &name, const PrintedTable &table)
{
    QStringList columns { name };
    QStringList rules { QStringLiteral("---") };
    for (const QString &column : table.columns) {
        columns.append(escaped(column));
        rules.append(rules.constFirst());
    }
    return QLatin1Char('\n') + tableRow(columns) + tableRow(rules);
}

QString tableText(const QString &name, const PrintedTable &table)
{
    QString text = tableHead(name, table);
    for (const PrintedRow &row : table.rows) {
        text += groupRow(row.heading, 1 + table.columns.size());
        QStringList label { row.label };
        if (!row.help.isEmpty())
            label.append(row.help);
        QStringList cells { escapedLines(label) };
        for (const QStringList &cell : row.cells)
            cells.append(escapedLines(cell));
        text += tableRow(cells);
    }
    return text;
}

QString modesText(const ManualModule &module)
{
    QString text = heading(2, Command::tr("Modes"));
    if (module.modes.isEmpty())
        text += paragraph(Command::tr("This module has no modes."));
    for (const ItemTableMode &mode : module.modes)
        text += heading(3, mode.title) + paragraph(mode.description);
    return text;
}

QByteArray modulePage(const ManualModule &module)
{
    QString text = mark() + heading(1, module.title) + paragraph(module.item.description)
        + modesText(module) + heading(2, Command::tr("Parameters"));
    text += module.parameters.rows.isEmpty()
        ? paragraph(Command::tr("This module takes no parameters."))
        : tableText(Command::tr("Parameter"), module.parameters);
    text += heading(2, Command::tr("Results"));
    text += module.results.rows.isEmpty() ? paragraph(Command::tr("This module gives no results."))
                                          : tableText(Command::tr("Result"), module.results);
    if (!module.item.lib_name.isEmpty())
        text += heading(2, Command::tr("Libraries"))
            + paragraph(module.item.lib_name.join(QStringLiteral(", ")));
    return text.toUtf8();
}

QByteArray indexText(const ManualView &view)
{
    QString text = mark() + heading(1, view.title());
    for (const ManualGroup &group : view.groups()) {
        text += heading(2, group.title) + QLatin1Char('\n');
        for (const int position : group.modules) {
            const ManualModule &module = view.modules().at(position);
            text += QStringLiteral("- [") + escaped(module.title) + QStringLiteral("](")
                + view.file(module.page, markdownEnding) + QLatin1Char(')');
            if (!module.item.description.isEmpty())
                text += QStringLiteral(": ") + escaped(module.item.description);
            text += QLatin1Char('\n');
        }
    }
    return text.toUtf8();
}

} // namespace

ManualFiles markdownFiles(const ManualView &view)
{
    ManualFiles files;
    files.insert(view.file(indexPage(), markdownEnding), indexText(view));
    for (const ManualModule &module : view.modules())
        files.insert(view.file(module.page, markdownEnding), modulePage(module));
    return files;
}
