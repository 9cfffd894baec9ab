// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "code/itemtexts.h"

#include <AUTH_INF>
#include <KeltoParameterEntry>

namespace {

/// A choice is shown by its label, or by its value without one.
QStringList labelsOf(const QString &choices)
{
    QStringList labels;
    const QStringList elements = choices.split(QLatin1Char('|'));
    for (const QString &element : elements) {
        const int end = element.indexOf(QLatin1Char('='));
        const QString label = element.mid(end + 1).trimmed();
        labels.append(label.isEmpty() ? element.left(end).trimmed() : label);
    }
    return labels;
}

QStringList hintTexts(const VDataItem &extra)
{
    const QString text = extra.value.toString();
    if (extra.key.startsWith(QLatin1String("Help."))
        || extra.key.startsWith(QLatin1String("Label.")))
        return { text };
    return extra.key.startsWith(QLatin1String("Choices.")) ? labelsOf(text) : QStringList();
}

QStringList textsOf(const QVector<QStringList> &entries)
{
    QStringList texts;
    for (const QStringList &entry : entries) {
        texts += { entry.value(KeltoParameterEntry::TranslatedKey),
                   entry.value(KeltoParameterEntry::TranslatedGroup) };
    }
    return texts;
}

} // namespace

QStringList translatedTexts(const AUTH_INF &item)
{
    QStringList texts { item.name, item.description, item.type, item.group };
    texts += item.inner_mode_nameList + item.inner_mode_description;
    for (const QVector<QStringList> &entries : item.inner_mode_parameterList)
        texts += textsOf(entries);
    texts += textsOf(item.output_results);
    for (const VDataItem &extra : item.extraKey)
        texts += hintTexts(extra);
    texts.removeDuplicates();
    texts.removeAll(QString());
    return texts;
}
