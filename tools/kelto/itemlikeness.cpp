// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "itemlikeness.h"

#include "core/inireader_p.h"
#include "lint/lintitem.h"
#include "nearestname.h"

#include <QTextCodec>

#include <algorithm>

namespace {

/// Values are stored in "Attribute" and "Unit", and settings of others are in groups as well.
const QStringList &sectionsOfItemsOnly()
{
    static const QStringList names { QStringLiteral("KeltoItem"), QStringLiteral("Belong"),
                                     QStringLiteral("ObjectName"), QStringLiteral("Multi"),
                                     QStringLiteral("ExtraKey") };
    return names;
}

bool isNearly(const QString &name, const QStringList &names)
{
    return names.contains(name) || !nearestName(name, names).isEmpty();
}

/// Whether a key of this name is one of an item wherever it stands: other files have a "name" as
/// well.
bool isFieldAnywhere(const QString &name)
{
    const bool isPlainWord
        = std::all_of(name.cbegin(), name.cend(), [](QChar c) { return c.isLower(); });
    return !isPlainWord && knownFields().contains(name);
}

/// Behind the header of a section only the names of fields count that no other file has.
bool isPartOfItem(const IniLine &line, bool isInSection)
{
    const QString name = SettingsKey { {}, line.key }.text();
    if (line.kind == IniLine::Section)
        return isNearly(name, sectionsOfItemsOnly());
    return isFieldAnywhere(name) || (!isInSection && isNearly(name, knownFields()));
}

QByteArray asUtf8(const QByteArray &bytes)
{
    if (!isUtf16(bytes))
        return bytes;
    const char *const order = bytes.startsWith('\0') ? "UTF-16BE" : "UTF-16LE";
    return QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName(order))
        ->toUnicode(bytes)
        .toUtf8();
}

} // namespace

bool isUtf16(const QByteArray &bytes)
{
    const QByteArray start = bytes.left(2);
    return start == "\xff\xfe" || start == "\xfe\xff" || start.contains('\0');
}

bool isLikeItem(const QByteArray &bytes)
{
    const QByteArray text = asUtf8(bytes);
    IniReader reader(text);
    bool isInSection = false;
    bool isEmpty = true;
    while (reader.next()) {
        const IniLine &line = reader.line();
        isInSection = isInSection || line.kind == IniLine::Section;
        if (line.kind != IniLine::Section && line.kind != IniLine::Entry)
            continue;
        if (isPartOfItem(line, isInSection))
            return true;
        isEmpty = false;
    }
    return isEmpty;
}
