// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PLAINHINTS_H
#define PLAINHINTS_H

#include <Kelto/AUTH_INF>
#include <Kelto/KeltoItemHints>
#include <Kelto/VParameter>

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QtMath>

#include <algorithm>
#include <limits>

/**
 * The hints of an item in their plainest form: every question walks along all extra keys, and what
 * is wrong is looked for in every mode and for every key. Operations have the names and the meaning
 * that they have in KeltoItemHints.
 */
class PlainHints
{
public:
    using Problem = KeltoItemHints::Problem;
    using Values = QVector<QPair<QString, QVariant>>;

    /// @param mode position of the inner mode; -1 for all.
    PlainHints(const AUTH_INF &item, int mode)
        : m_item(item)
        , m_mode(mode)
    {
        for (int i = 0; i < item.extraKey.size(); ++i)
            read(i);
        const QStringList keys = allKeys();
        for (const QString &key : keys)
            checkLimits(key);
        for (const QString &key : keys)
            checkDefault(key);
        checkConditions(keys);
    }

    QString mode() const { return m_item.inner_mode_nameList.value(m_mode); }

    QVariant defaultValue(const QString &key) const
    {
        const Hint *hint = find("Default", key);
        return !hint ? QVariant() : isMulti(key) ? defaultValues(*hint) : QVariant(hint->text);
    }
    double minimum(const QString &key) const { return limit("Min", key, -qInf()); }
    double maximum(const QString &key) const { return limit("Max", key, qInf()); }
    QStringList choices(const QString &key) const
    {
        return find("Choices", key) ? choicesOf(textOf("Choices", key)) : QStringList();
    }
    bool isOptional(const QString &key) const { return isTrue("Optional", key); }
    bool isAdvanced(const QString &key) const { return isTrue("Advanced", key); }
    bool counts(const QString &key, const Values &values) const
    {
        if (!find("When", key))
            return true;
        for (const auto &value : values) {
            if (value.first != "Attribute/" + conditionKey(key))
                continue;
            const bool isList = value.second.type() == QVariant::StringList;
            const QStringList texts
                = isList ? value.second.toStringList() : QStringList(value.second.toString());
            for (const QString &text : texts) {
                if (conditionValues(key).contains(text))
                    return counts(conditionKey(key), values);
            }
            return false;
        }
        return false;
    }
    QString conditionKey(const QString &key) const
    {
        return conditionOf(textOf("When", key)).first;
    }
    QStringList conditionValues(const QString &key) const
    {
        return conditionOf(textOf("When", key)).second;
    }
    QString label(const QString &key) const { return textOf("Label", key); }
    QString help(const QString &key) const { return textOf("Help", key); }
    QStringList fileFilters(const QString &key) const
    {
        QStringList filters = elements(textOf("Files", key), ";;");
        filters.removeAll("");
        return filters;
    }
    QStringList order() const
    {
        QStringList keys;
        const QStringList parts = elements(textOf("Order", ""));
        for (const QString &key : parts) {
            if (isKey(key) && !keys.contains(key))
                keys.append(key);
        }
        return keys;
    }
    QStringList resultModes(const QString &key) const
    {
        const Hint *hint = find("Belong", key);
        QStringList modes = hint ? elements(hint->text) : m_item.inner_mode_nameList;
        modes.removeDuplicates();
        return isResult(key) ? modes : QStringList();
    }
    QVector<VParameter> parameters() const
    {
        return inOrder(m_item.inner_mode_parameterList.value(m_mode));
    }
    QVector<VParameter> results() const
    {
        QVector<QStringList> entries;
        for (const QStringList &entry : m_item.output_results) {
            if (m_mode < 0 || !find("Belong", entry.value(1))
                || resultModes(entry.value(1)).contains(mode()))
                entries.append(entry);
        }
        return inOrder(entries);
    }

    /// The kinds of problems, each with the number of the extra key and the unknown part.
    static QStringList problems(const AUTH_INF &item)
    {
        QMap<QPair<int, int>, QStringList> found;
        const int modes
            = std::max(item.inner_mode_nameList.size(), item.inner_mode_parameterList.size());
        for (int mode = -1; mode < modes; ++mode) {
            const QVector<Found> problems = PlainHints(item, mode).m_problems;
            for (const Found &problem : problems)
                found[{ problem.position, problem.kind }].append(problem.part);
        }
        QStringList list;
        for (auto it = found.begin(); it != found.end(); ++it) {
            it->sort();
            it->removeDuplicates();
            for (const QString &part : qAsConst(*it))
                list.append(QString("%1 %2 %3").arg(it.key().first).arg(it.key().second).arg(part));
        }
        return list;
    }

private:
    struct Hint
    {
        QString word;
        QString key;
        QString mode; ///< Null for all.
        QString text;
        int position;
        bool isDropped = false;
    };
    struct Found
    {
        int position;
        int kind;
        QString part;
    };

    static QStringList elements(const QString &text, const QString &separator = "|")
    {
        QStringList list;
        const QStringList parts = text.split(separator);
        for (const QString &element : parts)
            list.append(element.trimmed());
        return list;
    }
    static bool isNumber(const QString &text)
    {
        bool isOne = false;
        const double number = text.toDouble(&isOne);
        return isOne && !qIsInf(number) && !qIsNaN(number);
    }
    /// Value, "=" and label, or the value alone.
    static QStringList choicesOf(const QString &text)
    {
        QStringList choices;
        const QStringList parts = elements(text);
        for (const QString &element : parts) {
            const QString value = element.section('=', 0, 0).trimmed();
            const QString label = element.section('=', 1).trimmed();
            choices.append(value + "=" + (label.isEmpty() ? value : label));
        }
        return choices;
    }
    static QStringList valuesOf(const QStringList &choices)
    {
        QStringList values;
        for (const QString &choice : choices)
            values.append(choice.section('=', 0, 0));
        return values;
    }

    static bool holds(const QVector<QStringList> &entries, const QString &key)
    {
        return std::any_of(entries.cbegin(), entries.cend(),
                           [&key](const QStringList &entry) { return entry.value(1) == key; });
    }
    QVector<QStringList> parameterEntries() const
    {
        QVector<QStringList> entries;
        for (const auto &ofMode : m_item.inner_mode_parameterList)
            entries += ofMode;
        return entries;
    }
    bool isParameter(const QString &key) const { return holds(parameterEntries(), key); }
    bool isResult(const QString &key) const { return holds(m_item.output_results, key); }
    bool isKey(const QString &key) const { return isParameter(key) || isResult(key); }
    bool isKeyFor(const QString &word, const QString &key) const
    {
        return word == "Belong" ? isResult(key) : isKey(key);
    }
    bool isMode(const QString &mode) const { return m_item.inner_mode_nameList.contains(mode); }
    QStringList allKeys() const
    {
        QStringList keys;
        const QVector<QStringList> entries = parameterEntries() + m_item.output_results;
        for (const QStringList &entry : entries)
            keys.append(entry.value(1));
        keys.removeDuplicates();
        return keys;
    }
    QStringList entryOf(const QString &key) const
    {
        const QVector<QStringList> entries = m_item.inner_mode_parameterList.value(m_mode)
            + parameterEntries() + m_item.output_results;
        for (const QStringList &entry : entries) {
            if (entry.value(1) == key)
                return entry;
        }
        return {};
    }
    bool isMulti(const QString &key) const { return entryOf(key).value(3) == "true"; }
    bool isNumber(const QString &key, const QString &objectName) const
    {
        static const QStringList single { "float", "double", "int" };
        static const QStringList several { "QVector<float>", "QVector<double>", "QVector<int>",
                                           "QVector<QPointF>", "QVector<QPoint>" };
        return single.contains(objectName) || (isMulti(key) && several.contains(objectName));
    }

    void report(int position, Problem::Kind kind, const QString &part = "")
    {
        m_problems.append({ position, kind, part });
    }

    void read(int position)
    {
        const VDataItem extra = m_item.extraKey.at(position);
        static const QStringList words { "Default",  "Min",  "Max",   "Choices", "Optional", "When",
                                         "Advanced", "Help", "Label", "Files",   "Belong" };
        const bool isOrder = extra.key == "Order" || extra.key.startsWith("Order@");
        const QString word = isOrder ? QString("Order") : extra.key.section('.', 0, 0);
        if (!isOrder && (!words.contains(word) || !extra.key.contains('.')))
            return;
        for (int i = 0; i < position; ++i) {
            if (m_item.extraKey.at(i).key == extra.key)
                return report(position, Problem::DuplicateHint);
        }
        const QString rest = extra.key.mid(word.size() + (isOrder ? 0 : 1));
        addHint(position, word, rest, extra.value);
    }

    void addHint(int position, const QString &word, const QString &rest, const QVariant &value)
    {
        const bool isOrder = word == "Order";
        const QStringList parts = rest.split('@');
        QString unknownMode;
        for (int count = parts.size(); count > 0; --count) {
            // All of it first, then from the left.
            const int taken = count == parts.size() ? count : parts.size() - count;
            const QString key = parts.mid(0, taken).join('@');
            const QString mode = parts.mid(taken).join('@');
            if (isOrder ? !key.isEmpty() : !isKeyFor(word, key))
                continue;
            if (taken == parts.size() || isMode(mode))
                return addSensible(
                    { word, key, taken == parts.size() ? QString() : "@" + mode, {}, position },
                    value);
            if (unknownMode.isNull())
                unknownMode = "@" + mode;
        }
        if (unknownMode.isNull())
            report(position, Problem::UnknownKey, rest);
        else
            report(position, Problem::UnknownMode, unknownMode.mid(1));
    }

    void addSensible(Hint hint, const QVariant &value)
    {
        const bool isList = value.type() == QVariant::StringList;
        if (!value.isValid() || !value.canConvert<QString>()
            || (isList && value.toStringList().size() != 1))
            return report(hint.position, Problem::NotOneText);
        hint.text = value.toString();
        const int before = m_problems.size();
        checkAlone(hint);
        if (m_problems.size() == before || hint.word == "Order")
            m_hints.append(hint);
    }

    void checkAlone(const Hint &hint)
    {
        const QString word = hint.word;
        const QString text = hint.text;
        if ((word == "Min" || word == "Max") && !isNumber(text))
            report(hint.position, Problem::NotANumber);
        if ((word == "Optional" || word == "Advanced") && text != "true" && text != "false")
            report(hint.position, Problem::NotABoolean);
        QStringList values = valuesOf(choicesOf(text));
        if (word == "Choices" && (text.trimmed().isEmpty() || values.removeDuplicates() > 0))
            report(hint.position, Problem::BadChoices);
        if (word == "When" && conditionOf(text).second.isEmpty())
            report(hint.position, Problem::BadCondition,
                   text.contains('=') ? text.section('=', 0, 0).trimmed() : QString());
        const QStringList parts = elements(text);
        for (const QString &element : parts) {
            if (word == "Order" && !text.isEmpty() && !isKey(element))
                report(hint.position, Problem::UnknownKey, element);
            if (word == "Belong" && !isMode(element))
                report(hint.position, Problem::UnknownMode, element);
        }
    }

    QPair<QString, QStringList> conditionOf(const QString &text) const
    {
        for (int i = 0; i < text.size(); ++i) {
            if (text.at(i) == '=' && isParameter(text.left(i).trimmed()))
                return { text.left(i).trimmed(), elements(text.mid(i + 1)) };
        }
        return {};
    }

    /// The hint for the mode, or else that for all modes, unless it was dropped.
    const Hint *find(const QString &word, const QString &key) const
    {
        const bool isNamed = m_mode >= 0 && m_mode < m_item.inner_mode_nameList.size();
        for (const QString &wanted : { isNamed ? "@" + mode() : QString("none"), QString() }) {
            for (const Hint &hint : m_hints) {
                if (hint.word == word && hint.key == key && hint.mode == wanted)
                    return hint.isDropped ? nullptr : &hint;
            }
        }
        return nullptr;
    }
    QString textOf(const QString &word, const QString &key) const
    {
        const Hint *hint = find(word, key);
        return hint ? hint->text : QString();
    }
    bool isTrue(const QString &word, const QString &key) const
    {
        return textOf(word, key) == "true";
    }
    double limit(const QString &word, const QString &key, double none) const
    {
        const Hint *hint = find(word, key);
        return hint ? hint->text.toDouble() : none;
    }
    QStringList defaultValues(const Hint &hint) const
    {
        if (!isMulti(hint.key))
            return { hint.text };
        return hint.text.isEmpty() ? QStringList() : elements(hint.text, ";");
    }

    void drop(const QString &word, const QString &key, Problem::Kind kind,
              const QString &part = QString())
    {
        const auto index = find(word, key) - m_hints.constData();
        m_hints[int(index)].isDropped = true;
        report(m_hints.at(int(index)).position, kind, part);
    }

    void checkLimits(const QString &key)
    {
        if (minimum(key) <= maximum(key))
            return;
        drop("Min", key, Problem::EmptyLimits);
        drop("Max", key, Problem::EmptyLimits);
    }

    void checkDefault(const QString &key)
    {
        const Hint *hint = find("Default", key);
        if (!hint || (hint->text.isEmpty() && isOptional(key)))
            return;
        const QStringList values = defaultValues(*hint);
        const QString objectName = entryOf(key).value(2);
        for (const QString &value : values) {
            if (find("Choices", key) && !valuesOf(choices(key)).contains(value))
                return drop("Default", key, Problem::DefaultNotAChoice, find("Choices", key)->text);
        }
        for (const QString &value : values) {
            if (objectName == "bool" && !find("Choices", key) && value != "true"
                && value != "false")
                return drop("Default", key, Problem::NotABoolean);
        }
        if (find("Min", key) || find("Max", key) || isNumber(key, objectName))
            checkNumbers(key, values, objectName);
    }

    void checkNumbers(const QString &key, const QStringList &values, const QString &objectName)
    {
        const bool isPoint = isMulti(key) && objectName.contains("QPoint");
        const bool isWhole = isNumber(key, objectName)
            && QString(objectName).remove("QPointF").contains(QRegExp("int|QPoint"));
        const bool isRow = isPoint || (isMulti(key) && !isNumber(key, objectName));
        for (const QString &value : values) {
            const QStringList numbers = isRow ? value.split("|") : QStringList(value);
            bool areNumbers = !isPoint || numbers.size() == 2;
            bool areWithin = true;
            for (const QString &number : numbers) {
                const double found = number.toDouble();
                areNumbers = areNumbers && isNumber(number) && (!isWhole || found == qint64(found));
                areWithin = areWithin && found >= minimum(key) && found <= maximum(key);
            }
            if (!areNumbers)
                return drop("Default", key, Problem::NotANumber);
            if (!areWithin)
                return drop("Default", key, Problem::DefaultOutsideLimits,
                            textOf("Min", key).trimmed() + "|" + textOf("Max", key).trimmed());
        }
    }

    bool canHold(const QString &key) const
    {
        const QStringList allowed = valuesOf(choices(conditionKey(key))) + QStringList("");
        const QStringList wanted = conditionValues(key);
        return allowed.size() == 1
            || std::any_of(wanted.cbegin(), wanted.cend(),
                           [&allowed](const QString &value) { return allowed.contains(value); });
    }

    /// Whoever is led back to where he started within as many steps as there are keys is part of a
    /// circle.
    void checkConditions(const QStringList &keys)
    {
        for (const QString &key : keys) {
            if (find("When", key) && !canHold(key))
                drop("When", key, Problem::BadCondition, '=' + conditionValues(key).join('|'));
        }
        QStringList circles;
        for (const QString &key : keys) {
            QString next = key;
            for (int step = 0; step < keys.size() && find("When", next); ++step) {
                next = conditionKey(next);
                if (next == key) {
                    circles.append(key);
                    break;
                }
            }
        }
        for (const QString &key : qAsConst(circles))
            drop("When", key, Problem::BadCondition);
    }

    QVector<VParameter> inOrder(const QVector<QStringList> &entries) const
    {
        // Those of one name are copies of the first.
        QStringList names;
        QMap<QString, VParameter> byName;
        for (const QStringList &entry : entries) {
            const VParameter parameter(entry);
            names.append(parameter.name().first);
            if (!byName.contains(parameter.name().first))
                byName.insert(parameter.name().first, parameter);
        }
        names.sort(Qt::CaseSensitive);
        QStringList sorted;
        const QStringList wanted = order();
        for (const QString &first : wanted) {
            while (names.removeOne(first))
                sorted.append(first);
        }
        sorted += names;
        QVector<VParameter> parameters;
        for (const QString &name : qAsConst(sorted))
            parameters.append(byName.value(name));
        return parameters;
    }

    AUTH_INF m_item;
    int m_mode;
    QVector<Hint> m_hints;
    QVector<Found> m_problems;
};

#endif
