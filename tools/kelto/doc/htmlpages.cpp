// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The pages of the manual for a browser.

#include "command.h"
#include "doc/htmlwriter.h"
#include "doc/manual.h"

#include <QFile>
#include <QLocale>

// Outside of any namespace. The linker leaves the files out of a program that does not name them.
static void initResources()
{
    Q_INIT_RESOURCE(manual);
}

namespace {

const QLatin1String htmlEnding(".html");
const QLatin1String scriptEnding(".js");
const QLatin1String searchIndexFile("searchindex");

/// As HTML spells it: "zh-CN" for "zh_CN".
QString languageTag(QString language)
{
    return language.replace(QLatin1Char('_'), QLatin1Char('-'));
}

/// The name of a language in this language. Qt would name a country with English.
QString languageName(const QString &language)
{
    const QLocale locale(language);
    if (locale.language() == QLocale::C)
        return language;
    return locale.language() == QLocale::English ? QStringLiteral("English")
                                                 : locale.nativeLanguageName();
}

class Page
{
public:
    Page(const ManualView &view, const QString &page)
        : m_view(view)
        , m_page(page)
        , m_html(&m_bytes)
    {
    }

    QByteArray index();
    QByteArray module(const ManualModule &module);

private:
    void head(const QString &title);
    void begin(const QString &title);
    void search();
    void languages();
    QByteArray end();
    void listedModule(const ManualModule &module);
    void facts(const ManualModule &module);
    void modes(const ManualModule &module);
    void parameters(const ManualModule &module);
    void results(const ManualModule &module);
    void table(const PrintedTable &table, const QString &name, const QStringList &ids,
               const QStringList &modeIds);
    void tableHead(const PrintedTable &table, const QString &name, const QStringList &modeIds);
    void groupRow(const QString &title, int columns);
    void row(const PrintedRow &row, const QStringList &columns, const QString &id);
    void cell(const QStringList &lines, const QString &column);

    const ManualView &m_view;
    QString m_page;
    QByteArray m_bytes;
    HtmlWriter m_html;
};

QByteArray Page::index()
{
    begin(m_view.title());
    m_html.element("h1", m_view.title());
    for (const ManualGroup &group : m_view.groups()) {
        m_html.open("section");
        m_html.element("h2", group.title);
        m_html.open("ul", { { "class", QStringLiteral("modules") } });
        for (const int module : group.modules)
            listedModule(m_view.modules().at(module));
        m_html.close(2);
    }
    return end();
}

QByteArray Page::module(const ManualModule &module)
{
    begin(module.title);
    m_html.element("h1", module.title);
    if (!module.item.description.isEmpty())
        m_html.element("p", module.item.description, { { "class", QStringLiteral("text") } });
    facts(module);
    modes(module);
    parameters(module);
    results(module);
    return end();
}

void Page::head(const QString &title)
{
    m_html.open("head");
    m_html.voidElement("meta", { { "charset", QStringLiteral("utf-8") } });
    m_html.voidElement("meta",
                       { { "name", QStringLiteral("viewport") },
                         { "content", QStringLiteral("width=device-width, initial-scale=1") } });
    m_html.element("title",
                   m_page == indexPage() ? title
                                         : QString(title + QStringLiteral(" – ") + m_view.title()));
    m_html.voidElement("link",
                       { { "rel", QStringLiteral("stylesheet") },
                         { "href", QStringLiteral("manual.css") } });
    const QString index = m_view.file(searchIndexFile, scriptEnding);
    for (const QString &script : { index, QStringLiteral("search.js") })
        m_html.element("script", {}, { { "src", script }, { "defer", QStringLiteral("defer") } });
    m_html.close();
}

void Page::begin(const QString &title)
{
    m_html.open("html", { { "lang", languageTag(m_view.language()) } });
    head(title);
    m_html.open("body");
    m_html.link(QStringLiteral("#content"), Command::tr("Skip to the content"),
                { { "class", QStringLiteral("skip") } });
    m_html.open("header");
    m_html.link(m_view.file(indexPage(), htmlEnding), m_view.title(),
                { { "class", QStringLiteral("home") } });
    search();
    languages();
    m_html.close();
    m_html.open("main", { { "id", QStringLiteral("content") } });
}

/// Shown by the script, without which it would do nothing.
void Page::search()
{
    m_html.open("div",
                { { "role", QStringLiteral("search") }, { "hidden", QStringLiteral("hidden") } });
    m_html.voidElement("input",
                       { { "id", QStringLiteral("search") },
                         { "type", QStringLiteral("search") },
                         { "autocomplete", QStringLiteral("off") },
                         { "placeholder", Command::tr("Search") },
                         { "aria-label", Command::tr("Search the manual") } });
    m_html.element("p", {}, { { "role", QStringLiteral("status") } });
    m_html.element("ul", {});
    m_html.close();
}

void Page::languages()
{
    const QStringList &all = m_view.manual().languages;
    if (all.size() < 2)
        return;
    m_html.open("nav", { { "aria-label", Command::tr("Languages") } });
    for (const QString &language : all) {
        HtmlWriter::Attributes attributes { { "lang", languageTag(language) },
                                            { "hreflang", languageTag(language) } };
        if (language == m_view.language())
            attributes.append({ "aria-current", QStringLiteral("true") });
        m_html.link(m_view.file(m_page, htmlEnding, language), languageName(language), attributes);
    }
    m_html.close();
}

QByteArray Page::end()
{
    m_html.end();
    return m_bytes.trimmed() + '\n';
}

void Page::listedModule(const ManualModule &module)
{
    const QString file = m_view.file(module.page, htmlEnding);
    m_html.open("li");
    m_html.open("h3");
    m_html.link(file, module.title);
    m_html.close();
    if (!module.item.description.isEmpty())
        m_html.element("p", module.item.description, { { "class", QStringLiteral("text") } });
    if (!module.modeIds.isEmpty()) {
        m_html.open("ul", { { "class", QStringLiteral("inline") } });
        for (int mode = 0; mode < module.modeIds.size(); ++mode) {
            m_html.open("li");
            m_html.link(file + QLatin1Char('#') + module.modeIds.at(mode),
                        module.modes.at(mode).title);
            m_html.close();
        }
        m_html.close();
    }
    m_html.close();
}

void Page::facts(const ManualModule &module)
{
    const AUTH_INF &item = module.item;
    const QVector<QPair<QString, QString>> facts {
        { Command::tr("Group"), item.group_tr.isEmpty() ? item.group : item.group_tr },
        { Command::tr("Type"), item.type_tr.isEmpty() ? item.type : item.type_tr },
        { Command::tr("Libraries"), item.lib_name.join(QStringLiteral(", ")) },
    };
    m_html.open("dl");
    for (const auto &fact : facts) {
        if (fact.second.isEmpty())
            continue;
        m_html.open("div");
        m_html.element("dt", fact.first);
        m_html.element("dd", fact.second);
        m_html.close();
    }
    m_html.close();
}

void Page::modes(const ManualModule &module)
{
    m_html.open("section");
    m_html.element("h2", Command::tr("Modes"));
    if (module.modes.isEmpty())
        m_html.element("p", Command::tr("This module has no modes."));
    for (int mode = 0; mode < module.modes.size(); ++mode) {
        const ItemTableMode &shown = module.modes.at(mode);
        m_html.element("h3", shown.title, { { "id", module.modeIds.at(mode) } });
        if (!shown.description.isEmpty())
            m_html.element("p", shown.description, { { "class", QStringLiteral("text") } });
    }
    m_html.close();
}

void Page::parameters(const ManualModule &module)
{
    m_html.open("section");
    m_html.element("h2", Command::tr("Parameters"));
    if (module.parameters.rows.isEmpty()) {
        m_html.element("p", Command::tr("This module takes no parameters."));
    } else {
        m_html.element("p",
                       Command::tr("For each mode: the value that a parameter starts with, %1 if "
                                   "there is none, %2 if the mode does not take it.")
                           .arg(usedMark(), unusedMark()));
        table(module.parameters, Command::tr("Parameter"), module.parameterIds, module.modeIds);
    }
    m_html.close();
}

void Page::results(const ManualModule &module)
{
    m_html.open("section");
    m_html.element("h2", Command::tr("Results"));
    if (module.results.rows.isEmpty()) {
        m_html.element("p", Command::tr("This module gives no results."));
    } else {
        if (!module.modes.isEmpty()) {
            m_html.element("p",
                           Command::tr("%1 marks the modes that give a result.").arg(usedMark()));
        }
        table(module.results, Command::tr("Result"), module.resultIds, module.modeIds);
    }
    m_html.close();
}

/// Wide tables scroll in a box of their own, which the keyboard can reach.
void Page::table(const PrintedTable &table, const QString &name, const QStringList &ids,
                 const QStringList &modeIds)
{
    m_html.open("div",
                { { "class", QStringLiteral("scroll") },
                  { "tabindex", QStringLiteral("0") },
                  { "role", QStringLiteral("region") },
                  { "aria-label", name } });
    m_html.open("table");
    tableHead(table, name, modeIds);
    m_html.open("tbody");
    for (int row = 0; row < table.rows.size(); ++row) {
        const QString heading = table.rows.at(row).heading;
        if (row > 0 && !heading.isEmpty()) {
            m_html.close();
            m_html.open("tbody");
        }
        groupRow(heading, 1 + table.columns.size());
        this->row(table.rows.at(row), table.columns, ids.at(row));
    }
    m_html.close(3);
}

void Page::tableHead(const PrintedTable &table, const QString &name, const QStringList &modeIds)
{
    const HtmlWriter::Attributes scope { { "scope", QStringLiteral("col") } };
    m_html.open("thead");
    m_html.open("tr");
    m_html.element("th", name, scope);
    const int shared = table.columns.size() - table.modes;
    for (int column = 0; column < table.columns.size(); ++column) {
        m_html.open("th", scope);
        if (column < shared)
            m_html.text(table.columns.at(column));
        else
            m_html.link(QLatin1Char('#') + modeIds.at(column - shared), table.columns.at(column));
        m_html.close();
    }
    m_html.close(2);
}

void Page::groupRow(const QString &title, int columns)
{
    if (title.isEmpty())
        return;
    m_html.open("tr", { { "class", QStringLiteral("group") } });
    m_html.open("th",
                { { "scope", QStringLiteral("rowgroup") },
                  { "colspan", QString::number(columns) } });
    // Where the table is wider than the screen, the name has to stay in view.
    m_html.element("span", title);
    m_html.close(2);
}

void Page::row(const PrintedRow &row, const QStringList &columns, const QString &id)
{
    m_html.open("tr", { { "id", id } });
    m_html.open("th", { { "scope", QStringLiteral("row") } });
    m_html.element("span", row.label);
    if (!row.help.isEmpty())
        m_html.element("p", row.help, { { "class", QStringLiteral("text") } });
    m_html.close();
    for (int column = 0; column < columns.size(); ++column)
        cell(row.cells.at(column), columns.at(column));
    m_html.close();
}

/// On a narrow screen a row is a card, and the name of the column stands beside each value.
void Page::cell(const QStringList &lines, const QString &column)
{
    m_html.open("td", { { "data-column", column } });
    if (lines.size() < 2) {
        m_html.text(lines.value(0));
    } else {
        m_html.open("ul");
        for (const QString &line : lines)
            m_html.element("li", line);
        m_html.close();
    }
    m_html.close();
}

QByteArray resource(const QString &name)
{
    QFile file(QStringLiteral(":/kelto-command/manual/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

ManualFiles htmlFiles(const ManualView &view)
{
    ManualFiles files;
    files.insert(view.file(indexPage(), htmlEnding), Page(view, indexPage()).index());
    files.insert(view.file(searchIndexFile, scriptEnding), searchIndex(view));
    for (const ManualModule &module : view.modules())
        files.insert(view.file(module.page, htmlEnding), Page(view, module.page).module(module));
    return files;
}

QStringList htmlFileNames(const ManualView &view)
{
    QStringList names = htmlAssets().keys();
    names.append(view.file(indexPage(), htmlEnding));
    names.append(view.file(searchIndexFile, scriptEnding));
    for (const ManualModule &module : view.modules())
        names.append(view.file(module.page, htmlEnding));
    return names;
}

ManualFiles htmlAssets()
{
    initResources();
    ManualFiles files;
    for (const QString &name : { QStringLiteral("manual.css"), QStringLiteral("search.js") })
        files.insert(name, resource(name));
    return files;
}
