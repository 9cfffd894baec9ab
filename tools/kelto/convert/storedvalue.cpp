// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "convert/storedvalue.h"

#include "core/inireader_p.h"
#include "format/initext.h"

#include <VIniSettings>

#include <QFile>
#include <QTemporaryDir>

namespace {

QString fileIn(const QTemporaryDir &directory)
{
    return directory.filePath(QStringLiteral("value.ini"));
}

/// QSettings alone knows how it writes a type that is not text.
QStringList writtenElements(const QVariant &value)
{
    const QTemporaryDir directory;
    VIniSettings settings(fileIn(directory));
    settings.setValue(QStringLiteral("value"), value);
    settings.saveLocal();
    QFile file(fileIn(directory));
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    IniReader reader(bytes);
    while (reader.next()) {
        if (reader.line().kind == IniLine::Entry)
            return elementsOfValue(reader.line().value);
    }
    return {};
}

} // namespace

QStringList storedElements(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QString:
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::Double:
        return { storedText(value.toString()) };
    case QMetaType::QStringList: {
        QStringList elements;
        const QStringList texts = value.toStringList();
        for (const QString &text : texts)
            elements.append(storedText(text));
        return elements.isEmpty() ? QStringList(QStringLiteral("@Invalid()")) : elements;
    }
    case QMetaType::UnknownType:
        return { QStringLiteral("@Invalid()") };
    default:
        return writtenElements(value);
    }
}

QVariant valueOfStored(const QStringList &elements)
{
    const QTemporaryDir directory;
    QFile file(fileIn(directory));
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write("[General]\nvalue=" + spelledValue(elements, 0) + '\n');
    file.close();
    return VIniSettings(fileIn(directory)).value(QStringLiteral("value"));
}
