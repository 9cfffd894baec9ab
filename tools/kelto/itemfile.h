// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ITEMFILE_H
#define ITEMFILE_H

#include "core/inireader_p.h"

#include <AUTH_INF>

#include <QHash>
#include <QVector>

/// One key of an item file with its value, and where both stand. The spelt texts are parts of the
/// bytes of the file.
struct ItemFileKey
{
    QString section; ///< As the library reads it; empty for keys before the first header.
    QString name; ///< The rest behind the section.
    QStringList value; ///< The elements of a list; one for a plain text.
    std::string_view spelt;
    std::string_view speltValue; ///< Without white space around it.
    IniPosition position;
    IniPosition valuePosition;
};

struct ItemFileSection
{
    QString name;
    std::string_view spelt; ///< What stands in the brackets.
    IniPosition position;
};

/// A module item file: its bytes, what stands where in them, and the item that the library makes of
/// it. Values; the file itself is never written and never created.
class ItemFile
{
public:
    /// Reads the file at @p path. With a non-empty error() there is nothing else.
    explicit ItemFile(const QString &path);
    /// What the file at @p path would be with these @p bytes.
    ItemFile(const QString &path, const QByteArray &bytes);

    const QString &path() const { return m_path; }
    /// Why the file cannot be read, as a sentence; empty when it could.
    const QString &error() const { return m_error; }
    /// Why there is no module to work with, as a sentence: the error, or that there is none in it.
    QString whyNoModule() const;
    const QByteArray &bytes() const { return m_bytes; }
    const AUTH_INF &item() const { return m_item; }

    /// In the order of the file, duplicates included.
    const QVector<ItemFileKey> &keys() const { return m_keys; }
    const QVector<ItemFileSection> &sections() const { return m_sections; }

    /// Whether a key is there twice.
    bool hasDuplicates() const { return m_positions.size() < m_keys.size(); }

    /// The last key of this name, which is the one that counts; null when there is none.
    const ItemFileKey *find(const QString &section, const QString &name) const;
    /// The key that the library reads as @p name: this one, or the last with it behind a "/".
    const ItemFileKey *findReadAs(const QString &section, const QString &name) const;

    /// Where @p place, which points into the bytes or behind their end, is.
    IniPosition positionAt(const char *place) const;

private:
    void readLines();
    void readKeys();
    int charactersBefore(int offset) const;

    QString m_path;
    QString m_error;
    QByteArray m_bytes;
    QVector<int> m_lineStarts;
    /// At every so many bytes, so that a position far behind in a long line is found soon.
    QVector<int> m_charactersBefore;
    AUTH_INF m_item;
    QVector<ItemFileKey> m_keys;
    QVector<ItemFileSection> m_sections;
    QHash<QString, int> m_positions;
    QHash<QString, int> m_positionsByLastPart; ///< Of keys with a "/".
};

#endif
