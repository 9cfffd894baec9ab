// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MANUALLANGUAGE_H
#define MANUALLANGUAGE_H

#include <QHash>
#include <QTranslator>

#include <memory>
#include <vector>

/// The translations of one file: compiled (".qm") or as translators edit them (".ts").
class TranslationFile
{
public:
    /// With a non-empty error() there is nothing else.
    explicit TranslationFile(const QString &path);

    /// Why the file cannot be read, as a sentence.
    const QString &error() const { return m_error; }
    /// As the file says, or else the ending of its name: "zh_CN".
    const QString &language() const { return m_language; }
    /// Null without a translation.
    QString translate(const char *context, const char *source) const;

private:
    void readCompiled(const QByteArray &bytes);
    void readEdited(const QByteArray &bytes);

    QString m_path;
    QString m_error;
    QString m_language;
    QByteArray m_compiledBytes; ///< Which the translator reads from as long as it lives.
    std::unique_ptr<QTranslator> m_compiled;
    QHash<QPair<QByteArray, QByteArray>, QString> m_edited;
};

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
