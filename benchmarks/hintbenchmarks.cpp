// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "input.h"
#include "suite.h"

#include <Kelto/KeltoItemFinding>
#include <Kelto/KeltoItemHints>
#include <Kelto/KeltoItemParameterVerify>
#include <Kelto/KeltoItemTranslation>

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

namespace {

QString keyOf(int parameter)
{
    return parameterEntry(parameter, 0).at(1);
}

void addExtraKey(AUTH_INF *item, const QString &key, const QString &value)
{
    item->extraKey.append(VDataItem(key, value));
}

/// One mode with @p size parameters, each with four hints, of which one is for the mode alone.
AUTH_INF itemOfHints(int size)
{
    AUTH_INF item = moduleItem(0, 0);
    addMode(&item, 0, parameterEntries(size));
    for (int i = 0; i < size; ++i) {
        addExtraKey(&item, QLatin1String("Default.") + keyOf(i), QString::number(i));
        addExtraKey(&item, QLatin1String("Min.") + keyOf(i) + QLatin1String("@mode 0"),
                    QStringLiteral("0"));
        addExtraKey(&item, QLatin1String("Label.") + keyOf(i), QStringLiteral("label"));
        addExtraKey(&item, QLatin1String("When.") + keyOf(i), keyOf(i / 2) + QLatin1String("=1"));
    }
    return item;
}

double sumOfHints(const AUTH_INF &item)
{
    const KeltoItemHints hints(item, QStringLiteral("mode 0"));
    double sum = 0;
    for (const QStringList &entry : item.inner_mode_parameterList.first()) {
        const QString &key = entry.at(1);
        sum += hints.defaultValue(key).toDouble() + hints.minimum(key);
    }
    return sum;
}

/// What a host writes that trusts its items.
double sumByHand(const AUTH_INF &item)
{
    QHash<QString, QVariant> extraKeys;
    for (const VDataItem &extra : item.extraKey)
        extraKeys.insert(extra.key, extra.value);
    double sum = 0;
    for (const QStringList &entry : item.inner_mode_parameterList.first()) {
        sum += extraKeys.value(QLatin1String("Default.") + entry.at(1)).toDouble();
        sum += extraKeys.value(QLatin1String("Min.") + entry.at(1) + QLatin1String("@mode 0"))
                   .toDouble();
    }
    return sum;
}

template <typename Sum> double sumOfAll(const QVector<AUTH_INF> &items, Sum sum)
{
    double total = 0;
    for (const AUTH_INF &item : items)
        total += sum(item);
    return total;
}

QVector<AUTH_INF> itemsOfHints(int size)
{
    QVector<AUTH_INF> items;
    items.reserve(size);
    for (int i = 0; i < size; ++i)
        items.append(itemOfHints(5));
    return items;
}

/// What a host writes by hand: the calls of QCoreApplication::translate() that it takes.
QString translatedText(const QString &text)
{
    return text.isEmpty() ? text : QCoreApplication::translate("UCal", text.toUtf8().constData());
}

AUTH_INF translatedByHand(AUTH_INF item)
{
    item.name_tr = translatedText(item.name);
    item.description = translatedText(item.description);
    item.type_tr = translatedText(item.type);
    item.group_tr = translatedText(item.group);
    for (QString &text : item.inner_mode_description)
        text = translatedText(text);
    for (int i = 0; i < item.inner_mode_nameList.size(); ++i)
        item.inner_mode_nameList_tr[i] = translatedText(item.inner_mode_nameList.at(i));
    for (QStringList &entry : item.inner_mode_parameterList[0]) {
        entry[7] = translatedText(entry.at(7));
        entry[8] = translatedText(entry.at(8));
    }
    return item;
}

template <typename Translate> QString allTexts(const QVector<AUTH_INF> &items, Translate translate)
{
    QString texts;
    for (const AUTH_INF &item : items) {
        const AUTH_INF translated = translate(item);
        texts += translated.name_tr + translated.inner_mode_nameList_tr.join(QLatin1Char(' '));
        for (const QStringList &entry : translated.inner_mode_parameterList.first())
            texts += entry.at(7) + entry.at(8);
    }
    return texts;
}

struct Incomplete
{
    AUTH_INF item;
    Entries values;
};

/// @p size parameters, of which every second is there and every other has a similar key.
Incomplete makeIncomplete(int size)
{
    Incomplete incomplete { itemOfHints(size), {} };
    for (int i = 0; i < size; ++i) {
        const QString key = keyOf(i);
        const QString prefix = QLatin1String(i % 2 == 0 ? "Attribute/" : "Attributes/");
        incomplete.values.append({ prefix + key, i });
    }
    return incomplete;
}

/// The same with words instead of numbers, each unlike every other.
Incomplete makeUnlike(int size)
{
    const auto word = [](int number) {
        QString text;
        for (int i = 0; i < 4; ++i, number /= 20)
            text += QString(3, QChar('a' + number % 20));
        return text;
    };
    Incomplete incomplete { moduleItem(0, 0), {} };
    QVector<QStringList> entries;
    for (int i = 0; i < size; ++i) {
        entries.append(parameterEntry(i, 0));
        entries.last()[1] = word(i);
        incomplete.values.append({ QLatin1String("Attribute/") + word(i + size), i });
    }
    addMode(&incomplete.item, 0, entries);
    return incomplete;
}

QStringList plainlyMissing(const Incomplete &incomplete)
{
    QStringList missing;
    for (const QStringList &entry : incomplete.item.inner_mode_parameterList.first()) {
        const QString key = QLatin1String("Attribute/") + entry.at(1);
        const bool isThere = std::any_of(incomplete.values.cbegin(), incomplete.values.cend(),
                                         [&key](const QPair<QString, QVariant> &value) {
                                             return value.first == key;
                                         });
        if (!isThere)
            missing.append(key);
    }
    return missing;
}

QStringList missingKeys(const QVector<KeltoItemFinding> &findings)
{
    QStringList keys;
    for (const KeltoItemFinding &finding : findings) {
        if (finding.isAbsence())
            keys.append(finding.valueKey);
    }
    return keys;
}

const QString &mode()
{
    static const QString name = QStringLiteral("mode 0");
    return name;
}

void addExplainRow(const char *name, Incomplete (*make)(int))
{
    compare({ name }, asItIs,
            library(make,
                    [](const Incomplete &incomplete) {
                        return missingKeys(KeltoItemParameterVerify::explain(&incomplete.item,
                                                                             &incomplete.values,
                                                                             mode()));
                    }),
            baseline("plain scans", 1000, make, plainlyMissing));
}

} // namespace

void addHintRows()
{
    compare({ "hints of n parameters" }, asItIs, library(itemOfHints, sumOfHints),
            baseline("a hash by hand", 10000, itemOfHints, sumByHand));
    compare({ "hints of n items" }, asItIs,
            library(itemsOfHints,
                    [](const QVector<AUTH_INF> &items) { return sumOfAll(items, sumOfHints); }),
            baseline("a hash by hand", 10000, itemsOfHints,
                     [](const QVector<AUTH_INF> &items) { return sumOfAll(items, sumByHand); }));
    compare({ "translation of n items" }, asItIs,
            library(itemsOfHints,
                    [](const QVector<AUTH_INF> &items) {
                        return allTexts(items, KeltoItemTranslation::translated);
                    }),
            baseline("written by hand", 10000, itemsOfHints, [](const QVector<AUTH_INF> &items) {
                return allTexts(items, translatedByHand);
            }));
    compare({ "missing of n values" }, asItIs,
            library(makeIncomplete,
                    [](const Incomplete &incomplete) {
                        return KeltoItemParameterVerify::missing(&incomplete.item,
                                                                 &incomplete.values, mode());
                    }),
            baseline("plain scans", 1000, makeIncomplete, plainlyMissing));
    addExplainRow("explain of n values, half of them mistyped", makeIncomplete);
    addExplainRow("explain of n values, all of others", makeUnlike);
}
