// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The project from which qhelpgenerator makes a manual for Qt Help.

#include "command.h"
#include "doc/manual.h"

#include <QXmlStreamWriter>

namespace {

class Project
{
public:
    explicit Project(const ManualView &view)
        : m_view(view)
        , m_xml(&m_bytes)
    {
    }

    QByteArray text();

private:
    void namedElement(const char *element, const QString &text);
    void section(const QString &title, const QString &reference, bool hasParts);
    void sections();
    void keyword(const QString &name, const QString &reference);
    void keywords();
    void rowKeywords(const QVector<PrintedRow> &rows, const QStringList &ids, const QString &file);
    void files();
    QString fileOf(const ManualModule &module) const;

    const ManualView &m_view;
    QByteArray m_bytes;
    QXmlStreamWriter m_xml;
};

QByteArray Project::text()
{
    m_xml.setAutoFormatting(true);
    m_xml.writeStartDocument();
    m_xml.writeComment(QStringLiteral(" %1 ").arg(QLatin1String(manualMark)));
    m_xml.writeStartElement(QStringLiteral("QtHelpProject"));
    m_xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    namedElement("namespace", m_view.file(m_view.manual().nameSpace, QString()));
    namedElement("virtualFolder", QStringLiteral("manual"));
    m_xml.writeStartElement(QStringLiteral("filterSection"));
    sections();
    keywords();
    files();
    m_xml.writeEndDocument();
    return m_bytes;
}

void Project::namedElement(const char *element, const QString &text)
{
    m_xml.writeTextElement(QLatin1String(element), printable(text));
}

QString Project::fileOf(const ManualModule &module) const
{
    return m_view.file(module.page, QStringLiteral(".html"));
}

void Project::section(const QString &title, const QString &reference, bool hasParts)
{
    if (hasParts)
        m_xml.writeStartElement(QStringLiteral("section"));
    else
        m_xml.writeEmptyElement(QStringLiteral("section"));
    m_xml.writeAttribute(QStringLiteral("title"), printable(title));
    m_xml.writeAttribute(QStringLiteral("ref"), reference);
}

void Project::sections()
{
    const QString index = m_view.file(indexPage(), QStringLiteral(".html"));
    m_xml.writeStartElement(QStringLiteral("toc"));
    section(m_view.title(), index, true);
    for (const ManualGroup &group : m_view.groups()) {
        section(group.title, index, true);
        for (const int module : group.modules)
            section(m_view.modules().at(module).title, fileOf(m_view.modules().at(module)), false);
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

void Project::keyword(const QString &name, const QString &reference)
{
    m_xml.writeEmptyElement(QStringLiteral("keyword"));
    m_xml.writeAttribute(QStringLiteral("name"), printable(name));
    m_xml.writeAttribute(QStringLiteral("ref"), reference);
}

void Project::rowKeywords(const QVector<PrintedRow> &rows, const QStringList &ids,
                          const QString &file)
{
    for (int row = 0; row < rows.size(); ++row)
        keyword(rows.at(row).label, file + QLatin1Char('#') + ids.at(row));
}

void Project::keywords()
{
    m_xml.writeStartElement(QStringLiteral("keywords"));
    for (const ManualModule &module : m_view.modules()) {
        const QString file = fileOf(module);
        keyword(module.title, file);
        for (int mode = 0; mode < module.modeIds.size(); ++mode) {
            keyword(module.modes.at(mode).title, file + QLatin1Char('#') + module.modeIds.at(mode));
        }
        rowKeywords(module.parameters.rows, module.parameterIds, file);
        rowKeywords(module.results.rows, module.resultIds, file);
    }
    m_xml.writeEndElement();
}

void Project::files()
{
    m_xml.writeStartElement(QStringLiteral("files"));
    const QStringList names = htmlFileNames(m_view);
    for (const QString &name : names)
        namedElement("file", name);
    m_xml.writeEndElement();
}

} // namespace

ManualFiles helpProject(const ManualView &view)
{
    return { { view.file(QStringLiteral("manual"), QStringLiteral(".qhp")),
               Project(view).text() } };
}
