// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "htmlwriter.h"

#include "doc/manual.h"

HtmlWriter::HtmlWriter(QByteArray *page)
    : m_xml(page)
{
    m_xml.setCodec("UTF-8");
    m_xml.setAutoFormatting(true);
    m_xml.setAutoFormattingIndent(1);
    m_xml.writeDTD(QStringLiteral("<!DOCTYPE html>"));
    m_xml.writeComment(QStringLiteral(" %1 ").arg(QLatin1String(manualMark)));
}

void HtmlWriter::open(const char *element, const Attributes &attributes)
{
    m_xml.writeStartElement(QLatin1String(element));
    write(attributes);
}

void HtmlWriter::close(int count)
{
    for (int i = 0; i < count; ++i)
        m_xml.writeEndElement();
}

void HtmlWriter::text(const QString &text)
{
    m_xml.writeCharacters(printable(text));
}

void HtmlWriter::element(const char *element, const QString &content, const Attributes &attributes)
{
    open(element, attributes);
    // Also for an empty text: without one, the element would end in "/>", which HTML ignores.
    text(content);
    close();
}

void HtmlWriter::voidElement(const char *element, const Attributes &attributes)
{
    m_xml.writeEmptyElement(QLatin1String(element));
    write(attributes);
}

void HtmlWriter::link(const QString &target, const QString &text, const Attributes &attributes)
{
    element("a", text, Attributes { { "href", target } } + attributes);
}

void HtmlWriter::end()
{
    m_xml.writeEndDocument();
}

void HtmlWriter::write(const Attributes &attributes)
{
    for (const auto &attribute : attributes)
        m_xml.writeAttribute(QLatin1String(attribute.first), printable(attribute.second));
}
