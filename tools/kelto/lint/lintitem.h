// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef LINTITEM_H
#define LINTITEM_H

#include "itemfile.h"

#include <QHash>
#include <QStringList>

/// What the library expects of a value.
enum class ItemValue {
    Unknown, ///< Of a key that the library does not know.
    Nothing, ///< Only the key counts.
    Text,
    List,
    Units,
    Number,
    Flag,
    Extra, ///< A text; hosts may have other uses.
};

/// The sections of an item file, and the keys of the section KeltoItem.
QStringList knownSections();
QStringList knownFields();

/// The sections that say more about declared keys; the first is for parameters only.
QStringList describingSections();

/// The fields that the library fills in itself.
bool isTranslatedField(const QString &name);

/// Whether @p key, with its "#" in front, was to be a comment.
bool isMeantAsComment(const QString &key);

/// A key and what it is meant to be.
struct LintKey
{
    const ItemFileKey *key;
    QString section;
    QString name;
    ItemValue value;
};

/// The keys of a file, which has to outlive it, by what they are meant to be: sections and fields
/// that are misspelt count as what they are similar to, and keys in no section or fields in another
/// one as those of the section KeltoItem, so that one mistake is one finding and not many.
class LintItem
{
public:
    explicit LintItem(const ItemFile &file);

    const ItemFile &file() const { return m_file; }

    /// In the order of the file, duplicates included.
    const QVector<LintKey> &keys() const { return m_keys; }

    /// The last key of this name; null when there is none.
    const ItemFileKey *find(const QString &section, const QString &name) const;
    const ItemFileKey *field(const char *name) const;
    /// Without duplicates, in the order of the file.
    QStringList namesIn(const QString &section) const { return m_names.value(section); }

    /// The section as which the keys under the header @p name are meant; empty when it is none.
    QString meantSection(const QString &name) const;

    /// The elements of a list; none for an empty value.
    static QStringList elements(const ItemFileKey *key);

private:
    const ItemFile &m_file;
    const QString m_sectionOfFields; ///< Under another name than KeltoItem.
    QVector<LintKey> m_keys;
    QHash<QString, QHash<QString, const ItemFileKey *>> m_sections;
    QHash<QString, QStringList> m_names;
};

/// All that stands between the "=" of @p key and the end of its line, white space included.
std::string_view rawValueOf(const ItemFile &file, const ItemFileKey &key);

#endif
