// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef REFERENCEFILE_H
#define REFERENCEFILE_H

#include <QDebug>
#include <QFile>
#include <QString>
#include <QStringList>

// Texts compared with reference files. After a wanted change of the texts, run the tests once with
//     KELTO_TAKE_REFERENCES=1 ctest --preset dev
// and review what git shows as changed.

/// What stands in one of the two texts only, with the lines around it.
inline QString lineDifference(const QString &expected, const QString &actual)
{
    const QStringList wanted = expected.split(QLatin1Char('\n'));
    const QStringList given = actual.split(QLatin1Char('\n'));
    const int shorter = qMin(wanted.size(), given.size());
    int same = 0;
    while (same < shorter && wanted.at(same) == given.at(same))
        ++same;
    int sameAtEnd = 0;
    while (sameAtEnd < shorter - same
           && wanted.at(wanted.size() - 1 - sameAtEnd) == given.at(given.size() - 1 - sameAtEnd))
        ++sameAtEnd;

    const auto marked = [](const QStringList &lines, int first, int count, char mark) {
        QString text;
        const QStringList part = lines.mid(first, count);
        for (const QString &line : part)
            text += QLatin1Char(mark) + line + QLatin1Char('\n');
        return text;
    };
    const int context = qMin(2, same);
    return QStringLiteral("line %1:\n").arg(same + 1) + marked(wanted, same - context, context, ' ')
        + marked(wanted, same, wanted.size() - same - sameAtEnd, '-')
        + marked(given, same, given.size() - same - sameAtEnd, '+')
        + marked(wanted, wanted.size() - sameAtEnd, qMin(2, sameAtEnd), ' ');
}

/// How @p text differs from the file at @p path, "-" before what is in the file only; empty when it
/// does not.
inline QString differenceFromReference(const QString &text, const QString &path)
{
    QFile file(path);
    if (qEnvironmentVariableIsSet("KELTO_TAKE_REFERENCES")) {
        qInfo() << "taking over" << path;
        const QByteArray bytes = text.toUtf8();
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()
            ? QString()
            : QStringLiteral("cannot write ") + path;
    }
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("cannot read ") + path;
    const QString reference = QString::fromUtf8(file.readAll());
    return reference == text ? QString()
                             : path + QLatin1Char(' ') + lineDifference(reference, text);
}

#endif
