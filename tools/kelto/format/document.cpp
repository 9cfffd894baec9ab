// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "format/document.h"

#include "format/initext.h"

#include <algorithm>

namespace {

QByteArray joined(const Comments &comments)
{
    QByteArray text;
    for (const QByteArray &line : comments)
        text += line + '\n';
    return text;
}

QByteArray besideOf(const QByteArray &comment)
{
    return comment.isEmpty() ? comment : ' ' + comment;
}

QByteArray textOf(const DocumentEntry &entry)
{
    const QByteArray key = spelledKey(entry.name) + '=';
    return joined(entry.before) + key + spelledValue(entry.value, key.size())
        + besideOf(entry.beside) + '\n';
}

QByteArray textOf(const DocumentSection &section)
{
    QByteArray text = joined(section.before) + spelledHeader(section.name)
        + besideOf(section.beside) + '\n' + joined(section.intro);
    if (!section.intro.isEmpty())
        text += '\n';
    for (int i = 0; i < section.entries.size(); ++i) {
        const DocumentEntry &entry = section.entries.at(i);
        if (i > 0 && (entry.startsGroup || !entry.before.isEmpty()))
            text += '\n';
        text += textOf(entry);
    }
    if (!section.behind.isEmpty())
        text += '\n' + joined(section.behind);
    return text;
}

} // namespace

DocumentSection &Document::section(const QString &name)
{
    const auto found
        = std::find_if(sections.begin(), sections.end(),
                       [&name](const DocumentSection &each) { return each.name == name; });
    if (found != sections.end())
        return *found;
    DocumentSection added;
    added.name = name;
    sections.append(added);
    return sections.last();
}

QByteArray textOf(const Document &document)
{
    QByteArrayList parts;
    if (!document.top.isEmpty())
        parts.append(joined(document.top));
    for (const DocumentSection &section : document.sections)
        parts.append(textOf(section));
    if (!document.end.isEmpty())
        parts.append(joined(document.end));
    return parts.join('\n');
}
