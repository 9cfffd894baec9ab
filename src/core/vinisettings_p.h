// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef VINISETTINGS_P_H
#define VINISETTINGS_P_H

#include "core/keyvaluelist_p.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

class VIniSettingsPrivate
{
public:
    /// Whether VIniSettings::allKeys(group) lists @p key.
    static bool isInGroup(const QString &key, const QString &group);

    QStringList keys() const;
    int keyIndex(const QString &key) const;

    void assign(const KeyValues &entries);
    void merge(const KeyValues &entries);
    void set(const QString &key, const QVariant &value);
    /// Appends a key that has no entry.
    void addKeyApart(const QString &key);
    /// Removes the key and the entry at @p index; a key apart may have no entry there.
    void removeAt(int index);
    /// The same for every position that has a true in @p marks.
    void removeMarked(const QVector<bool> &marks);

    QString filePath;
    KeyValueList list;
    bool quickSave = false;

private:
    /// The keys are those of the list, until one is taken in without an entry: then they are kept
    /// apart, because the two differ in order and in number.
    std::optional<QStringList> m_keysApart;
};

#endif
