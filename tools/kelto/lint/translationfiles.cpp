// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/translationfiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

TranslationFile::TranslationFile(const QString &path)
    : m_path(path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        if (!xml.readNextStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        } else if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        } else if (xml.name() == QLatin1String("translation")) {
            const QString translated = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            if (!translated.isEmpty())
                m_texts.insert({ context, source }, translated);
        }
    }
}

QVector<TranslationFile> translationFilesOf(const QVector<ItemFile> &files)
{
    QStringList directories;
    for (const ItemFile &file : files) {
        const QString directory = QFileInfo(file.path()).path();
        directories << directory << directory + QLatin1String("/translations")
                    << QDir::cleanPath(directory + QLatin1String("/../translations"));
    }
    directories.removeDuplicates();
    QVector<TranslationFile> translations;
    for (const QString &directory : qAsConst(directories)) {
        const QStringList names
            = QDir(directory).entryList({ QStringLiteral("*.ts") }, QDir::Files, QDir::Name);
        for (const QString &name : names)
            translations.append(
                TranslationFile(QDir::cleanPath(directory + QLatin1Char('/') + name)));
    }
    return translations;
}
