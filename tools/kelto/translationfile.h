// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TRANSLATIONFILE_H
#define TRANSLATIONFILE_H

#include <QHash>
#include <QTranslator>

#include <memory>

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
    const QString &path() const { return m_path; }
    /// Null without a translation.
    QString translate(const char *context, const char *source) const;
    /// The text itself without a translation.
    QString text(const QString &context, const QString &source) const;

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

#endif
