// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FILEFINDINGS_H
#define FILEFINDINGS_H

#include "itemfile.h"
#include "lint/rules.h"

/// Adds findings about one file.
class FileFindings
{
public:
    FileFindings(const ItemFile &file, Findings *findings)
        : m_file(file)
        , m_findings(findings)
    {
    }

    const ItemFile &file() const { return m_file; }

    void add(const char *rule, IniPosition position, const QString &text,
             const QVector<TextEdit> &fix = {})
    {
        m_findings->append({ QLatin1String(rule), m_file.path(), position, text, fix });
    }

    /// @p place points into the bytes of the file.
    void add(const char *rule, const char *place, const QString &text,
             const QVector<TextEdit> &fix = {})
    {
        add(rule, m_file.positionAt(place), text, fix);
    }

    /// Replaces @p spelt, a part of the bytes of the file.
    TextEdit edit(std::string_view spelt, const QByteArray &text) const
    {
        const int begin = offsetOf(spelt.data());
        return { begin, begin + static_cast<int>(spelt.size()), text };
    }

    /// Adds a line behind that of @p key.
    TextEdit lineBehind(const ItemFileKey &key, const QByteArray &text) const
    {
        const QByteArray &bytes = m_file.bytes();
        const char lineEnd = bytes.contains('\n') ? '\n' : '\r';
        const int valueEnd = offsetOf(key.speltValue.data() + key.speltValue.size());
        const int end = bytes.indexOf(lineEnd, valueEnd);
        const int last = end < 0 ? bytes.lastIndexOf(lineEnd) : end;
        const bool isPair = last > 0 && lineEnd == '\n' && bytes.at(last - 1) == '\r';
        const QByteArray lineEnding = isPair ? QByteArray("\r\n") : QByteArray(1, lineEnd);
        const int place = end < 0 ? bytes.size() : end - (isPair ? 1 : 0);
        return { place, place, lineEnding + text };
    }

    /// The line in which @p text, a part of the bytes of the file, ends.
    int lineOfEnd(std::string_view text) const
    {
        const char *const end = text.data() + text.size();
        return m_file.positionAt(text.empty() ? end : end - 1).line;
    }

    int offsetOf(const char *place) const
    {
        return static_cast<int>(place - m_file.bytes().constData());
    }

private:
    const ItemFile &m_file;
    Findings *const m_findings;
};

#endif
