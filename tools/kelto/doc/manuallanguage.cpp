// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "manuallanguage.h"

#include <QCoreApplication>

ManualLanguage::ManualLanguage(const QString &language, const std::vector<TranslationFile> &files)
{
    for (const TranslationFile &file : files) {
        if (file.language() == language)
            m_files.append(&file);
    }
    // Without a file of that name nothing is loaded, and the tool speaks English.
    (void)m_own.load(QStringLiteral(":/kelto-command/translations/kelto-command_") + language);
    QCoreApplication::installTranslator(this);
}

ManualLanguage::~ManualLanguage()
{
    QCoreApplication::removeTranslator(this);
}

bool ManualLanguage::isEmpty() const
{
    return false;
}

QString ManualLanguage::translate(const char *context, const char *source,
                                  const char *disambiguation, int count) const
{
    // The tool first: a file has no say in its texts.
    const QString own
        = m_own.isEmpty() ? QString() : m_own.translate(context, source, disambiguation, count);
    if (!own.isNull())
        return own;
    for (const TranslationFile *file : m_files) {
        const QString found = file->translate(context, source);
        if (!found.isNull())
            return found;
    }
    // Null would ask the translators that are installed for the user of the program.
    return QString::fromUtf8(source);
}
