// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MANUALLANGUAGE_H
#define MANUALLANGUAGE_H

#include "translationfile.h"

#include <vector>

/// As long as it lives, the program speaks the language of a manual: with the tool's own texts, and
/// with those of the files for the modules. What none of them knows stays as it is, whatever
/// language the program speaks otherwise.
class ManualLanguage : public QTranslator
{
    Q_OBJECT

public:
    ManualLanguage(const QString &language, const std::vector<TranslationFile> &files);
    ~ManualLanguage() override;

    bool isEmpty() const override;
    QString translate(const char *context, const char *source, const char *disambiguation,
                      int count) const override;

private:
    QTranslator m_own;
    QVector<const TranslationFile *> m_files;
};

#endif
