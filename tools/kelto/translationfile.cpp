// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "translationfile.h"

#include "command.h"
#include "itempaths.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace {

/// The part of a file's name behind the first "_": "zh_CN" of "workbench_zh_CN.ts".
QString languageInName(const QString &path)
{
    return QFileInfo(path).completeBaseName().section(QLatin1Char('_'), 1);
}

struct Message
{
    QByteArray source;
    QString translation;
    bool isUsable = true;
};

/// Messages with a comment or a number belong to source code; texts of items have neither.
Message readMessage(QXmlStreamReader &xml)
{
    Message message;
    message.isUsable = !xml.attributes().hasAttribute(QLatin1String("numerus"));
    while (xml.readNextStartElement()) {
        const QString name = xml.name().toString();
        if (name == QLatin1String("source")) {
            message.source = xml.readElementText(QXmlStreamReader::IncludeChildElements).toUtf8();
        } else if (name == QLatin1String("translation")) {
            const auto type = xml.attributes().value(QLatin1String("type"));
            if (type == QLatin1String("vanished") || type == QLatin1String("obsolete"))
                message.isUsable = false;
            message.translation = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        } else {
            message.isUsable = message.isUsable && name != QLatin1String("comment");
            xml.skipCurrentElement();
        }
    }
    return message;
}

} // namespace

TranslationFile::TranslationFile(const QString &path)
    : m_path(path)
{
    m_error = whyUnreadable(path);
    QFile file(path);
    if (!m_error.isEmpty() || !file.open(QIODevice::ReadOnly))
        return;
    if (path.endsWith(QLatin1String(".ts")))
        readEdited(file.readAll());
    else
        readCompiled(file.readAll());
    if (m_language.isEmpty())
        m_language = languageInName(path);
}

void TranslationFile::readCompiled(const QByteArray &bytes)
{
    m_compiledBytes = bytes;
    m_compiled = std::make_unique<QTranslator>();
    const auto *data = reinterpret_cast<const uchar *>(m_compiledBytes.constData());
    if (m_compiled->load(data, m_compiledBytes.size()))
        m_language = m_compiled->language();
    else
        m_error = Command::tr("%1: is not a translation file (.ts or .qm).").arg(m_path);
}

void TranslationFile::readEdited(const QByteArray &bytes)
{
    QXmlStreamReader xml(bytes);
    QByteArray context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("TS")) {
            m_language = xml.attributes().value(QLatin1String("language")).toString();
        } else if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText(QXmlStreamReader::IncludeChildElements).toUtf8();
        } else if (xml.name() == QLatin1String("message")) {
            const Message message = readMessage(xml);
            if (message.isUsable && !message.translation.isEmpty())
                m_edited.insert({ context, message.source }, message.translation);
        }
    }
    if (xml.hasError()) {
        m_error = Command::tr("%1:%2: is not a translation file (.ts or .qm): %3")
                      .arg(m_path, QString::number(xml.lineNumber()), xml.errorString());
    }
}

QString TranslationFile::translate(const char *context, const char *source) const
{
    return m_compiled ? m_compiled->translate(context, source)
                      : m_edited.value({ QByteArray(context), QByteArray(source) });
}

QString TranslationFile::text(const QString &context, const QString &source) const
{
    const QString translated = translate(context.toUtf8().constData(), source.toUtf8().constData());
    return translated.isEmpty() ? source : translated;
}
