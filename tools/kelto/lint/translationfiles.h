// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TRANSLATIONFILES_H
#define TRANSLATIONFILES_H

#include "itemfile.h"

#include <QHash>
#include <QPair>

/// The translations into one language, from a ".ts" file of Qt Linguist.
class TranslationFile
{
public:
    explicit TranslationFile(const QString &path);

    const QString &path() const { return m_path; }
    /// The text itself without a translation.
    QString text(const QString &context, const QString &source) const
    {
        return m_texts.value({ context, source }, source);
    }

private:
    QString m_path;
    QHash<QPair<QString, QString>, QString> m_texts;
};

/// All in the directories of @p files, and in "translations" beside or below these.
QVector<TranslationFile> translationFilesOf(const QVector<ItemFile> &files);

#endif
