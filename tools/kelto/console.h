// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef CONSOLE_H
#define CONSOLE_H

#include <QByteArray>
#include <QString>
#include <QStringList>

class QJsonObject;

/// Where the program writes: results on the standard output, complaints on the standard error, both
/// in UTF-8.
class Console
{
public:
    Console();

    /// A result, as it is.
    void print(const QString &text);
    void print(const QByteArray &bytes);
    /// A result as indented JSON.
    void print(const QJsonObject &result);

    /// A sentence that says what is wrong, where, and what to do.
    void complain(const QString &sentence);

    bool hasPrinted() const { return m_hasPrinted; }
    const QStringList &complaints() const { return m_complaints; }

    /// Replaces the line that shows how far the program has come. Shown on a terminal only, and
    /// only when the work takes longer than a moment; an empty text clears it.
    void showProgress(const QString &text);

    /// Whether results may be coloured: on a terminal, and not with NO_COLOR.
    bool isColoured() const { return m_isColoured; }

    /// Whether everything was written so far.
    bool flush();

private:
    bool m_isColoured;
    bool m_showsProgress;
    bool m_hasFailed = false;
    bool m_hasPrinted = false;
    QStringList m_complaints;
    qint64 m_start;
    int m_progressWidth = 0;
};

#endif
