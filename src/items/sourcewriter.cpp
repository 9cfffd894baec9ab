// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "items/sourcewriter_p.h"

#include <algorithm>
#include <iterator>

namespace {

const QLatin1Char quote('"');
const QLatin1Char dot('.');
const QLatin1String indentation("    ");
const QLatin1String assignment("=");
const QLatin1String appending("<<");
const QLatin1String endOfStatement(";\n");

} // namespace

SourceWriter::SourceWriter(const QString &context, const QString &variable)
    : m_translation(context + QLatin1String("::tr("))
    , m_variable(variable)
{
}

QString SourceWriter::number(int value)
{
    return QString::number(value, 10);
}

QString SourceWriter::word(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString SourceWriter::quoted(const QString &text)
{
    return quote + text + quote;
}

QStringList SourceWriter::quoted(const QStringList &texts)
{
    QStringList values;
    values.reserve(texts.size());
    std::transform(texts.cbegin(), texts.cend(), std::back_inserter(values),
                   [](const QString &text) { return quoted(text); });
    return values;
}

QString SourceWriter::translated(const QString &text) const
{
    return m_translation + quoted(text) + QLatin1Char(')');
}

QStringList SourceWriter::translated(const QStringList &texts) const
{
    QStringList values;
    values.reserve(texts.size());
    std::transform(texts.cbegin(), texts.cend(), std::back_inserter(values),
                   [this](const QString &text) { return translated(text); });
    return values;
}

QString SourceWriter::elementOf(const QString &member, int index)
{
    return member + QLatin1String(".data()[") + number(index) + QLatin1Char(']');
}

void SourceWriter::declare(const QString &type)
{
    write(type + QLatin1Char(' ') + m_variable + endOfStatement);
}

void SourceWriter::clear(const QString &member)
{
    write(m_variable + dot + member + QLatin1String(".clear()") + endOfStatement);
}

void SourceWriter::assign(const QString &member, const QString &value)
{
    write(m_variable + dot + member + assignment + value + endOfStatement);
}

void SourceWriter::append(const QString &member, const QString &value)
{
    write(m_variable + dot + member + appending + value + endOfStatement);
}

void SourceWriter::assignList(const QString &member, const QStringList &values)
{
    writeList(member + assignment, values);
}

void SourceWriter::appendList(const QString &member, const QStringList &values)
{
    writeList(member + appending, values);
}

void SourceWriter::writeList(const QString &target, const QStringList &values)
{
    write(m_variable + dot + target + QLatin1String("QStringList{\n"));
    for (int i = 0; i < values.size(); ++i) {
        const QLatin1String end(i + 1 < values.size() ? ",\n" : "\n");
        write(indentation + values.at(i) + end);
    }
    write(QLatin1Char('}') + endOfStatement);
}

void SourceWriter::write(const QString &text)
{
    // += with an expression of several texts would reallocate each time.
    m_text.append(text);
}
