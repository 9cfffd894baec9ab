// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "console.h"

#include "terminaltext.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

/// Work that takes longer shows how far it has come.
constexpr qint64 moment = 500;

bool isTerminal(std::FILE *stream)
{
#ifdef Q_OS_WIN
    return _isatty(_fileno(stream));
#else
    return isatty(fileno(stream));
#endif
}

} // namespace

Console::Console()
    : m_isColoured(isTerminal(stdout) && qEnvironmentVariableIsEmpty("NO_COLOR")
                   && qgetenv("TERM") != "dumb")
    , m_showsProgress(isTerminal(stderr) && qgetenv("TERM") != "dumb")
    , m_start(QDateTime::currentMSecsSinceEpoch())
{
}

void Console::print(const QString &text)
{
    print(text.toUtf8());
}

void Console::print(const QByteArray &bytes)
{
    showProgress(QString());
    const auto size = std::size_t(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) != size)
        m_hasFailed = true;
}

void Console::complain(const QString &sentence)
{
    m_complaints.append(sentence);
    note(sentence);
}

void Console::note(const QString &sentence)
{
    showProgress(QString());
    std::fflush(stdout);
    const QByteArray line = "kelto: " + printable(sentence).toUtf8() + '\n';
    std::fwrite(line.constData(), 1, std::size_t(line.size()), stderr);
}

void Console::showProgress(const QString &text)
{
    if (!m_showsProgress || (text.isEmpty() && m_progressWidth == 0)
        || QDateTime::currentMSecsSinceEpoch() < m_start + moment)
        return;
    const QByteArray line = '\r' + paddedTo(text, m_progressWidth).toUtf8();
    std::fwrite(line.constData(), 1, std::size_t(line.size()), stderr);
    if (text.isEmpty())
        std::fputc('\r', stderr);
    m_progressWidth = columnsOf(text);
}

bool Console::flush()
{
    if (m_isJson) {
        if (!m_complaints.isEmpty())
            m_result.insert(QStringLiteral("errors"), QJsonArray::fromStringList(m_complaints));
        print(QJsonDocument(m_result).toJson());
    }
    return std::fflush(stdout) == 0 && !m_hasFailed;
}
