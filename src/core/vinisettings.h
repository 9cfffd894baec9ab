// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef VINISETTINGS_H
#define VINISETTINGS_H

#include "kelto_export.h"

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <memory>

class VIniSettingsPrivate;

/**
 * An INI file mirrored in memory as an ordered list of keys and values.
 *
 * A host loads a file once, reads and changes the list, and writes it back when it likes, or with
 * every single value in **quick-save mode**. Keys are full QSettings keys: group, "/" and name, or
 * a name alone; they are compared exactly, with case. Files are read and written in UTF-8.
 *
 * A list that is handed in whole may hold a key more than once; look-ups then see the first.
 * Removing a key removes it from memory only: nothing is ever removed from a file.
 *
 * INI files know few types: a number or a flag that was stored is read again as a text. That and
 * more of the kind is among the traps in docs/traps.md.
 *
 * No operation reports an error. A file that cannot be read gives no keys, one that cannot be
 * written is left alone. Vectors that are passed by pointer stay the caller's and are used during
 * the call only; a null pointer stands for an empty vector.
 *
 * A store is a copyable value, to be used by one thread at a time. It reads its file in setPath()
 * only, so it does not see what others write there later.
 */
class KELTO_EXPORT VIniSettings
{
public:
    /// An empty store without a file.
    VIniSettings();
    /// A store with the keys of the file @p path, see setPath(); an empty path gives an empty store
    /// and touches no file.
    explicit VIniSettings(QString path);
    /// The same with quick-save mode set.
    VIniSettings(QString path, bool quickSave);
    /// A store of @p data without a file.
    explicit VIniSettings(QVector<QPair<QString, QVariant>> data);
    /// A store of @p data for the file @p path, which is bound as setPath() does; what the file
    /// holds is not taken over.
    VIniSettings(QString path, QVector<QPair<QString, QVariant>> data);
    /// The same with quick-save mode set.
    VIniSettings(QString path, bool quickSave, QVector<QPair<QString, QVariant>> data);

    VIniSettings(const VIniSettings &other);
    VIniSettings &operator=(const VIniSettings &other);
    ~VIniSettings();

    /// Binds the store to the file @p path and replaces its list by what the file holds, in the
    /// order of QSettings::allKeys(). A file that does not exist is created empty; if that fails
    /// nothing changes.
    ///
    /// A file has no keys, and is never written, while one of its values is unsafe to read: nested
    /// more than 1,000 levels deep, bytes that would crash Qt's own readers or keep them busy, a
    /// time in a time zone that this system does not know, a picture of more than 33 million
    /// pixels, a region of more than 10,000 rectangles. QSettings reads some of these. In programs
    /// without windows this includes values made of pixels, such as a pixmap. Values of types that
    /// the host has registered are read by the host's stream operators, which have to be as
    /// careful.
    void setPath(QString path);

    /// The file that the store is bound to; empty without one.
    QString filepath() const;

    /// A copy of the list.
    QVector<QPair<QString, QVariant>> data() const;

    /// In quick-save mode setValue(QString, QVariant) also writes the file. Switching it on writes
    /// nothing yet.
    void setQuickSaveMode(bool on);

    /// The keys in the order of the list, duplicates kept.
    QStringList allKeys() const;
    /// The whole keys that begin with @p group and "/", and a key that is @p group itself, in the
    /// order of the list. The empty group holds the keys without "/".
    QStringList allKeys(QString group) const;
    /// The keys of @p data, in order, duplicates kept.
    QStringList allKeys(const QVector<QPair<QString, QVariant>> *data) const;

    /// What stands before the first "/" of the keys, without duplicates, in order of first
    /// appearance.
    QStringList allGroups() const;

    /// Whether the store has the key @p key.
    bool contains(QString key) const;
    /// Whether the store has all of @p keys; true for none.
    bool contains(QStringList keys) const;

    /// Removes the first entry of the key @p key from memory; false when there is none.
    bool remove(QString key);
    /// Removes one key after the other, up to the first that is not there; whether all were.
    bool remove(QStringList keys);
    /// Removes all keys that allKeys(QString) gives for @p group; false when there are none.
    bool removeGroup(QString group);

    /// Gives the first entry of the key @p key the value @p value, or appends both at the end.
    void setValue(QString key, QVariant value);

    /// Does the same in @p target. A key that is appended there is also appended to the keys, and
    /// not to the data, of this store: its keys and its data differ from then on, until the list is
    /// replaced or merged.
    void setValue(QString key, QVariant value, QVector<QPair<QString, QVariant>> *target);

    /// Sets every entry of @p source in @p target, in order, as the operation above does.
    void setValue(QVector<QPair<QString, QVariant>> *target,
                  const QVector<QPair<QString, QVariant>> *source);

    /// Replaces the list by @p data, or sets every entry of it in order. Never writes the file.
    void setValue(QVector<QPair<QString, QVariant>> data, bool replace);

    /// Value of the first entry of the key @p key; an invalid QVariant when there is none.
    QVariant value(QString key) const;
    /// The same in @p data.
    QVariant value(QString key, const QVector<QPair<QString, QVariant>> *data) const;

    /**
     * Writes the list into the file @p path, which is created where it is missing, and keeps the
     * other keys of that file, also those that others have saved since it was read. Directories are
     * not made. The store stays bound to its own file.
     *
     * The file is replaced as a whole. Where that fails, on a full disk for example, it stays as it
     * was, and this process reads what is in it. The lock is that of QSettings, a file with the
     * additional ending ".lock". While another program holds it, this waits; the lock of one that
     * was killed is removed after a second. Where something that is no file has the name of the
     * lock, nothing is saved, and nothing either where a lock that nobody holds cannot be removed
     * for 40 seconds. A QSettings of the same file sees what was saved, and writes what it has set,
     * in its own sync() only; call that before a store reads the file, too.
     *
     * Of what stands in the file, QSettings writes only what it has understood. Before something
     * would be lost in that, the file is copied: to a file with the additional ending ".bak", while
     * earlier copies move up to ".bak2" and on to ".bak5". Reasons are comments, also a line that
     * begins with "#" (which stays a key if it has a "="), lines without "=", text behind "]", keys
     * that are given twice, escapes that mean nothing, quotes inside of a text, bytes that are not
     * UTF-8, characters that take two QChars, and damaged values of other types than text. What is
     * only spelt otherwise then is no reason: [general], [Desktop Entry], Name[de], quotes,
     * \@default, white space, sections without keys.
     *
     * Values are left out that QSettings cannot store, such as pointers or times in a time zone
     * that does not exist, and those that setPath() would find unsafe. So are characters that take
     * two QChars, such as emoji: QSettings of Qt 5 drops them from what it writes in UTF-8. A file
     * that has no keys because a value in it is unsafe is left alone.
     */
    void saveLocal(QString path) const;
    /// Writes the list into the file that the store is bound to.
    void saveLocal() const;

    /**
     * The list as a style sheet for one widget class, without spaces and line breaks.
     *
     * "ID/QtClassName" names the class. The group "normal" gives the block for the class itself,
     * every other group but "ID" the block for the state of that name, in order of first
     * appearance. An entry is written as its whole key, "=", its value as text and ";".
     */
    QString styleSheetFormat() const;

private:
    std::unique_ptr<VIniSettingsPrivate> d;
};

#endif
