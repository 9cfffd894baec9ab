// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef HTMLWRITER_H
#define HTMLWRITER_H

#include <QXmlStreamWriter>

/// Writes a page that is HTML and XML at once. All texts are escaped.
class HtmlWriter
{
public:
    using Attributes = QVector<QPair<const char *, QString>>;

    explicit HtmlWriter(QByteArray *page);

    void open(const char *element, const Attributes &attributes = {});
    void close(int count = 1);
    void text(const QString &text);
    /// An element with a text only, which may be empty.
    void element(const char *element, const QString &text, const Attributes &attributes = {});
    /// One that has no end in HTML, such as "meta".
    void voidElement(const char *element, const Attributes &attributes);
    void link(const QString &target, const QString &text, const Attributes &attributes = {});
    /// Closes what is still open.
    void end();

private:
    void write(const Attributes &attributes);

    QXmlStreamWriter m_xml;
};

#endif
