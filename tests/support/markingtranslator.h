// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MARKINGTRANSLATOR_H
#define MARKINGTRANSLATOR_H

#include <QString>
#include <QTranslator>

/// Marks the texts of one context.
class MarkingTranslator : public QTranslator
{
public:
    explicit MarkingTranslator(QString context)
        : m_context(std::move(context))
    {
    }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        if (QString::fromUtf8(context) != m_context)
            return QString();
        return QLatin1Char('[') + QString::fromUtf8(text) + QLatin1Char(']');
    }

private:
    QString m_context;
};

#endif
