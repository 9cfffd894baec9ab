// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "format/format.h"

#include "command.h"

#include <QMap>

namespace {

/// What stands in a file, by whole keys.
QMap<QString, QStringList> contentOf(const QByteArray &bytes)
{
    QMap<QString, QStringList> content;
    IniReader reader(bytes);
    while (reader.next()) {
        if (reader.line().kind == IniLine::Entry)
            content.insert(reader.key().text(), elementsOfValue(reader.line().value));
    }
    return content;
}

bool isItem(const Document &document)
{
    for (const DocumentSection &section : document.sections) {
        if (section.name == QLatin1String("KeltoItem"))
            return true;
    }
    return false;
}

} // namespace

QByteArray formatted(const QByteArray &bytes, DocumentError *error)
{
    Document document = readDocument(bytes, error);
    if (!error->text.isEmpty())
        return {};
    if (!isItem(document)) {
        error->text = Command::tr("there is no section \"KeltoItem\": this is no item file.");
        return {};
    }
    arrange(&document);
    const QByteArray text = textOf(document);
    // What no rule has foreseen must not cost an author a value.
    if (contentOf(text) != contentOf(bytes)) {
        error->text = Command::tr("it cannot be written in another way without being read "
                                  "differently.");
        return {};
    }
    return text;
}
