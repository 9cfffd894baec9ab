// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "vinisettings.h"

#include "core/inifile_p.h"
#include "core/keyvaluelist_p.h"
#include "core/vinisettings_p.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <utility>

namespace {

QStringList keysOf(const KeyValues *data)
{
    return data ? KeyValueList(*data).keys() : QStringList();
}

} // namespace

bool VIniSettingsPrivate::isInGroup(const QString &key, const QString &group)
{
    const bool isNested = key.contains(QLatin1Char('/'));
    if (group.isEmpty())
        return !isNested;
    if (!isNested)
        return key == group;
    return key.size() > group.size() && key.at(group.size()) == QLatin1Char('/')
        && key.startsWith(group);
}

QStringList VIniSettingsPrivate::keys() const
{
    return m_keysApart ? *m_keysApart : list.keys();
}

int VIniSettingsPrivate::keyIndex(const QString &key) const
{
    return m_keysApart ? m_keysApart->indexOf(key) : list.indexOf(key);
}

void VIniSettingsPrivate::assign(const KeyValues &entries)
{
    list = KeyValueList(entries);
    m_keysApart.reset();
}

void VIniSettingsPrivate::merge(const KeyValues &entries)
{
    list.merge(entries);
    m_keysApart.reset();
}

void VIniSettingsPrivate::set(const QString &key, const QVariant &value)
{
    if (list.set(key, value) && m_keysApart)
        m_keysApart->append(key);
}

void VIniSettingsPrivate::addKeyApart(const QString &key)
{
    if (!m_keysApart)
        m_keysApart = list.keys();
    m_keysApart->append(key);
}

void VIniSettingsPrivate::removeAt(int index)
{
    if (index < list.size())
        list.removeAt(index);
    if (m_keysApart)
        m_keysApart->removeAt(index);
}

void VIniSettingsPrivate::removeMarked(const QVector<bool> &marks)
{
    list.removeMarked(marks);
    if (m_keysApart)
        m_keysApart = withoutMarked(*m_keysApart, marks);
}

VIniSettings::VIniSettings()
    : d(std::make_unique<VIniSettingsPrivate>())
{
}

VIniSettings::VIniSettings(QString path)
    : VIniSettings()
{
    if (!path.isEmpty())
        setPath(path);
}

VIniSettings::VIniSettings(QString path, bool quickSave)
    : VIniSettings()
{
    d->quickSave = quickSave;
    setPath(path);
}

VIniSettings::VIniSettings(QVector<QPair<QString, QVariant>> data)
    : VIniSettings()
{
    d->assign(data);
}

VIniSettings::VIniSettings(QString path, QVector<QPair<QString, QVariant>> data)
    : VIniSettings(path, false, data)
{
}

VIniSettings::VIniSettings(QString path, bool quickSave, QVector<QPair<QString, QVariant>> data)
    : VIniSettings()
{
    setPath(path);
    d->quickSave = quickSave;
    d->assign(data);
}

VIniSettings::VIniSettings(const VIniSettings &other)
    : d(std::make_unique<VIniSettingsPrivate>(*other.d))
{
}

VIniSettings &VIniSettings::operator=(const VIniSettings &other)
{
    if (this != &other)
        *d = *other.d;
    return *this;
}

VIniSettings::~VIniSettings() = default;

void VIniSettings::setPath(QString path)
{
    if (!ensureFile(path))
        return;
    d->filePath = path;
    d->assign(readIniFile(path));
}

QString VIniSettings::filepath() const
{
    return d->filePath;
}

QVector<QPair<QString, QVariant>> VIniSettings::data() const
{
    return d->list.entries();
}

void VIniSettings::setQuickSaveMode(bool on)
{
    d->quickSave = on;
}

QStringList VIniSettings::allKeys() const
{
    return d->keys();
}

QStringList VIniSettings::allKeys(QString group) const
{
    QStringList keys = d->keys();
    const auto isElsewhere
        = [&group](const QString &key) { return !VIniSettingsPrivate::isInGroup(key, group); };
    keys.erase(std::remove_if(keys.begin(), keys.end(), isElsewhere), keys.end());
    return keys;
}

QStringList VIniSettings::allKeys(const QVector<QPair<QString, QVariant>> *data) const
{
    return keysOf(data);
}

QStringList VIniSettings::allGroups() const
{
    QStringList groups;
    QSet<QString> known;
    const QStringList keys = d->keys();
    for (const QString &key : keys) {
        const int slash = key.indexOf(QLatin1Char('/'));
        if (slash < 0)
            continue;
        const QString group = key.left(slash);
        if (known.contains(group))
            continue;
        known.insert(group);
        groups.append(group);
    }
    return groups;
}

bool VIniSettings::contains(QString key) const
{
    return d->keyIndex(key) >= 0;
}

bool VIniSettings::contains(QStringList keys) const
{
    return std::all_of(keys.cbegin(), keys.cend(),
                       [this](const QString &key) { return d->keyIndex(key) >= 0; });
}

bool VIniSettings::remove(QString key)
{
    const int index = d->keyIndex(key);
    if (index < 0)
        return false;
    d->removeAt(index);
    return true;
}

bool VIniSettings::remove(QStringList keys)
{
    const QStringList held = d->keys();
    QVector<bool> marks(held.size());
    FirstPositions firsts;
    for (const QString &key : held)
        firsts.append(key);
    // For each key that was found, the position from which the same key is searched next.
    QHash<QString, int> next;
    bool allFound = true;
    for (const QString &key : qAsConst(keys)) {
        const auto again = next.constFind(key);
        const int index
            = again == next.constEnd() ? firsts.indexOf(key) : held.indexOf(key, again.value());
        allFound = index >= 0;
        if (!allFound)
            break;
        marks[index] = true;
        next.insert(key, index + 1);
    }
    d->removeMarked(marks);
    return allFound;
}

bool VIniSettings::removeGroup(QString group)
{
    const QStringList held = d->keys();
    QVector<bool> marks(held.size());
    std::transform(held.cbegin(), held.cend(), marks.begin(), [&group](const QString &key) {
        return VIniSettingsPrivate::isInGroup(key, group);
    });
    if (!marks.contains(true))
        return false;
    d->removeMarked(marks);
    return true;
}

void VIniSettings::setValue(QString key, QVariant value)
{
    d->set(key, value);
    if (d->quickSave)
        saveLocal();
}

void VIniSettings::setValue(QString key, QVariant value, QVector<QPair<QString, QVariant>> *target)
{
    if (!target)
        return;
    const int index = firstIndexOf(*target, key);
    if (index >= 0) {
        (*target)[index].second = value;
        return;
    }
    target->append({ key, value });
    d->addKeyApart(key);
}

void VIniSettings::setValue(QVector<QPair<QString, QVariant>> *target,
                            const QVector<QPair<QString, QVariant>> *source)
{
    if (!target || !source)
        return;
    // A copy, since both may be one vector.
    const KeyValues entries = *source;
    KeyValueList merged(std::move(*target));
    for (const KeyValue &entry : entries) {
        if (merged.set(entry.first, entry.second))
            d->addKeyApart(entry.first);
    }
    *target = merged.take();
}

void VIniSettings::setValue(QVector<QPair<QString, QVariant>> data, bool replace)
{
    if (replace)
        d->assign(data);
    else
        d->merge(data);
}

QVariant VIniSettings::value(QString key) const
{
    return d->list.value(key);
}

QVariant VIniSettings::value(QString key, const QVector<QPair<QString, QVariant>> *data) const
{
    return data ? firstValueOf(*data, key) : QVariant();
}

void VIniSettings::saveLocal(QString path) const
{
    if (ensureFile(path))
        writeIniFile(path, d->list.entries());
}

void VIniSettings::saveLocal() const
{
    saveLocal(d->filePath);
}
