// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "manual.h"

#include "command.h"
#include "doc/uniquenames.h"

#include <KeltoItemTranslation>

namespace {

/// Names of pages and files of the manual itself, and those that Windows keeps for devices.
QStringList takenNames()
{
    QStringList names { indexPage(),
                        QStringLiteral("con"),
                        QStringLiteral("prn"),
                        QStringLiteral("aux"),
                        QStringLiteral("nul"),
                        QStringLiteral("manual"),
                        QStringLiteral("search"),
                        QStringLiteral("searchindex") };
    for (int number = 1; number < 10; ++number) {
        names.append(QStringLiteral("com%1").arg(number));
        names.append(QStringLiteral("lpt%1").arg(number));
    }
    return names;
}

QStringList idsOf(const PrintedTable &table, const QString &kind, UniqueNames *names)
{
    QStringList ids;
    for (const PrintedRow &row : table.rows)
        ids.append(names->make(kind + QLatin1Char(' ') + row.key, kind));
    return ids;
}

ManualModule moduleOf(const AUTH_INF &plain, UniqueNames *pages)
{
    ManualModule module;
    module.item = KeltoItemTranslation::translated(plain);
    module.title = module.item.name_tr.isEmpty() ? plain.name : module.item.name_tr;
    // A function's name is made of the letters that a name in another script lacks.
    module.page = pages->make(plain.name,
                              UniqueNames().make(plain.codeFunctionName, QStringLiteral("module")));
    const ItemTable table = itemTable(module.item);
    module.modes = table.modes;
    module.parameters = printedTable(table, table.parameters);
    module.results = printedTable(table, table.results);
    UniqueNames ids({ QStringLiteral("content"), QStringLiteral("search") });
    for (const ItemTableMode &mode : qAsConst(module.modes))
        module.modeIds.append(
            ids.make(QStringLiteral("mode ") + mode.name, QStringLiteral("mode")));
    module.parameterIds = idsOf(module.parameters, QStringLiteral("parameter"), &ids);
    module.resultIds = idsOf(module.results, QStringLiteral("result"), &ids);
    return module;
}

/// In the order of their first modules; two groups are one by their plain names.
QVector<ManualGroup> groupsOf(const QVector<ManualModule> &modules)
{
    QVector<ManualGroup> groups;
    QHash<QString, int> positions;
    for (int module = 0; module < modules.size(); ++module) {
        const AUTH_INF &item = modules.at(module).item;
        if (!positions.contains(item.group)) {
            positions.insert(item.group, groups.size());
            const QString title = item.group_tr.isEmpty() ? item.group : item.group_tr;
            groups.append({ title.isEmpty() ? Command::tr("Other modules") : title, {} });
        }
        groups[positions.value(item.group)].modules.append(module);
    }
    return groups;
}

bool isInXml(QChar letter)
{
    const ushort code = letter.unicode();
    return code >= 0x20 ? code < 0xfffe && code != 0x7f : code == '\n' || code == '\t';
}

} // namespace

ManualView::ManualView(const Manual &manual, const QString &language)
    : m_manual(manual)
    , m_language(language)
    , m_title(manual.title.isEmpty() ? Command::tr("Modules") : manual.title)
{
    UniqueNames pages(takenNames());
    for (const AUTH_INF &item : manual.items)
        m_modules.append(moduleOf(item, &pages));
    m_groups = groupsOf(m_modules);
}

QString ManualView::file(const QString &page, const QString &ending) const
{
    return file(page, ending, m_language);
}

QString ManualView::file(const QString &page, const QString &ending,
                         const QString &inLanguage) const
{
    // Pages have no "." in their names, so that no other page can be named like this.
    return inLanguage == m_manual.languages.constFirst()
        ? QString(page + ending)
        : QString(page + QLatin1Char('.') + inLanguage + ending);
}

QString indexPage()
{
    return QStringLiteral("index");
}

QString printable(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar letter = text.at(i);
        if (letter.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            result += letter;
            result += text.at(++i);
        } else {
            result += isInXml(letter) && !letter.isSurrogate() ? letter
                                                               : QChar(QChar::ReplacementCharacter);
        }
    }
    return result;
}
