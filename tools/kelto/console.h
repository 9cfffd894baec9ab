// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef CONSOLE_H
#define CONSOLE_H

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

/// Where the program writes: results on the standard output, complaints on the standard error, both
/// in UTF-8.
class Console
{
public:
    Console();

    /// A result, as it is.
    void print(const QString &text);
    void print(const QByteArray &bytes);
    /// From now on the standard output is one object of JSON: the result and, under "errors", the
    /// complaints. flush() writes it, also where there is no result.
    void useJson() { m_isJson = true; }
    void print(const QJsonObject &result) { m_result = result; }

    /// A sentence that says what is wrong, where, and what to do. A terminal obeys nothing in it.
    void complain(const QString &sentence);

    /// A sentence that a person may want to know, on the standard error only: nothing is wrong.
    void note(const QString &sentence);

    const QStringList &complaints() const { return m_complaints; }

    /// Replaces the line that shows how far the program has come. Shown on a terminal only, and
    /// only when the work takes longer than a moment; an empty text clears it.
    void showProgress(const QString &text);

    /// Whether results may be coloured: on a terminal, and not with NO_COLOR.
    bool isColoured() const { return m_isColoured; }

    /// Writes what is left; whether everything was written so far.
    bool flush();

private:
    bool m_isColoured;
    bool m_showsProgress;
    bool m_hasFailed = false;
    bool m_isJson = false;
    QJsonObject m_result;
    QStringList m_complaints;
    qint64 m_start;
    int m_progressWidth = 0;
};

#endif
