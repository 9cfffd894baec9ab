// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MESSAGES_H
#define MESSAGES_H

#include <QStringList>

#include <cstdio>

/// Collects what goes to Qt's message handler during the life of this object. The library is not to
/// say anything there.
class Messages
{
public:
    Messages()
        : m_previous(qInstallMessageHandler(collect))
    {
        collected().clear();
    }
    ~Messages() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY(Messages)

    static QStringList &collected()
    {
        static QStringList texts;
        return texts;
    }

private:
    static void collect(QtMsgType type, const QMessageLogContext &, const QString &text)
    {
        // The process ends with this one.
        if (type == QtFatalMsg)
            std::fputs(qPrintable(text), stderr);
        collected().append(text);
    }

    QtMessageHandler m_previous;
};

#endif
