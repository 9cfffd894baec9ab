// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A settings store as a style sheet.

#include "vinisettings.h"

#include <QHash>

namespace {

/// The keys of each group, as VIniSettings::allKeys(group) lists them, found in one walk.
QHash<QString, QStringList> keysByGroup(const QStringList &keys)
{
    QHash<QString, QStringList> groups;
    for (const QString &key : keys) {
        const int slash = key.indexOf(QLatin1Char('/'));
        if (slash != 0)
            groups[key.left(slash)].append(key);
        // The group without a name, which keys that begin with "/" bring in, holds the keys
        // without "/" and not those.
        if (slash < 0 && !key.isEmpty())
            groups[QString()].append(key);
    }
    return groups;
}

} // namespace

QString VIniSettings::styleSheetFormat() const
{
    const QString widgetClass = value(QStringLiteral("ID/QtClassName")).toString();
    const QHash<QString, QStringList> keys = keysByGroup(allKeys());
    const auto block = [this, &keys](const QString &selector, const QString &group) {
        QString text = selector + QLatin1Char('{');
        const QStringList keysOfGroup = keys.value(group);
        // Part by part: adding a joined text reserves no more than is needed, and so would copy
        // what is there each time.
        for (const QString &key : keysOfGroup)
            text.append(key)
                .append(QLatin1Char('='))
                .append(value(key).toString())
                .append(QLatin1Char(';'));
        return text.append(QLatin1String("};"));
    };

    const QString plainState = QStringLiteral("normal");
    QStringList states = allGroups();
    QString sheet;
    if (states.contains(plainState))
        sheet += block(widgetClass, plainState);
    states.removeAll(plainState);
    states.removeAll(QStringLiteral("ID"));
    for (const QString &state : qAsConst(states))
        sheet += block(widgetClass + QLatin1Char(':') + state, state);
    return sheet;
}
