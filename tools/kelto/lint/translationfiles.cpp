// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/translationfiles.h"

#include <QDir>
#include <QFileInfo>

std::vector<TranslationFile> translationFilesOf(const QVector<ItemFile> &files)
{
    QStringList directories;
    for (const ItemFile &file : files) {
        const QString directory = QFileInfo(file.path()).path();
        directories << directory << directory + QLatin1String("/translations")
                    << QDir::cleanPath(directory + QLatin1String("/../translations"));
    }
    directories.removeDuplicates();
    std::vector<TranslationFile> translations;
    for (const QString &directory : qAsConst(directories)) {
        const QStringList names
            = QDir(directory).entryList({ QStringLiteral("*.ts") }, QDir::Files, QDir::Name);
        for (const QString &name : names) {
            TranslationFile file(QDir::cleanPath(directory + QLatin1Char('/') + name));
            if (file.error().isEmpty())
                translations.push_back(std::move(file));
        }
    }
    return translations;
}
