// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SOURCEWRITER_P_H
#define SOURCEWRITER_P_H

#include <QString>
#include <QStringList>

/**
 * Writes the source text that declares one variable and fills its members, statement by statement.
 *
 * It decides on the layout, its callers on the content. Values are passed as they are written, made
 * by number(), word(), quoted() and translated(). Nothing in a value is escaped: what a host pastes
 * into its sources is what the record holds.
 */
class SourceWriter
{
public:
    /// @param context the class whose tr() translates.
    SourceWriter(const QString &context, const QString &variable);

    static QString number(int value);
    static QString word(bool value);
    static QString quoted(const QString &text);
    static QStringList quoted(const QStringList &texts);
    QString translated(const QString &text) const;
    QStringList translated(const QStringList &texts) const;

    /// The name of one element of the member @p member, to be used as a member.
    static QString elementOf(const QString &member, int index);

    /// The declaration of the variable.
    void declare(const QString &type);
    void clear(const QString &member);
    void assign(const QString &member, const QString &value);
    void append(const QString &member, const QString &value);
    /// A list of texts, one value to a line.
    void assignList(const QString &member, const QStringList &values);
    void appendList(const QString &member, const QStringList &values);

    QString text() const { return m_text; }

private:
    void writeList(const QString &target, const QStringList &values);
    void write(const QString &text);

    QString m_translation;
    QString m_variable;
    QString m_text;
};

#endif
