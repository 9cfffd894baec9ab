// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef HARDITEMS_H
#define HARDITEMS_H

#include "support/parameters.h"
#include "support/randomitems.h"

/// An item with something in every field, in which plain and translated texts differ everywhere.
inline AUTH_INF fullItem()
{
    AUTH_INF item;
    item.number = 7;
    item.name = "梁";
    item.name_tr = "Beam";
    item.description = "弯曲; 100 % of 'it', {and} // more /* than */";
    item.icon = ":/icons/beam.svg";
    item.type = "calculation";
    item.type_tr = "计算";
    item.group = "Bridges";
    item.group_tr = "静力";
    item.exclusive_group = true;
    item.lib_name = QStringList { "beam", "solver", "beam" };
    item.inner_mode_count = 3;
    item.inner_mode_description = QStringList { "one end", "两端", "" };
    item.inner_mode_nameList = QStringList { "Cantilever", "简支", "" };
    item.inner_mode_nameList_tr = QStringList { "悬臂", "Simple", "nothing" };
    item.inner_mode_parameterList = { { entry("Load"), entry("x") }, {}, { entry("Load") } };
    item.trObjectName = "Texts";
    item.codeFunctionName = "beamItem";
    item.output_results = { entry("Deflection"), entry("应力") };
    item.extraKey = { { "whole", 12 },      { "negative", "-3" }, { "fraction", 0.5 },
                      { "large", "1e+06" }, { "word", "abc" },    { "nothing", {} },
                      { "作者", "王" },     { "truth", true },    { "list", QStringList { "a" } } };
    return item;
}

/// Lists of any length, few names, and keys that differ by case or are missing.
inline AUTH_INF itemWithFewKeys(Dice &dice)
{
    const QStringList names { "A", "a", "B", "C", "" };
    AUTH_INF item;
    item.inner_mode_count = dice.oneOf({ "0", "3", "2147483647" }).toInt();
    item.inner_mode_nameList = dice.someOf(names, dice.between(0, 6));
    item.inner_mode_nameList_tr = dice.someOf(names, dice.between(0, 6));
    item.inner_mode_parameterList.resize(dice.between(0, 6));
    for (ParameterEntries &entries : item.inner_mode_parameterList) {
        for (int i = dice.between(0, 3); i > 0; --i) {
            const QString key = dice.oneOf({ "x", "X", "y", "a/x", "" });
            const QStringList strings = entry(key, "s", dice.oneOf({ "g", "G", "" }));
            entries.append(strings.mid(0, key.isEmpty() ? dice.between(0, 9) : 9));
        }
    }
    return item;
}

/// Texts that files, lists and keys have to be careful with.
inline const QStringList &hardTexts()
{
    static const QStringList texts {
        "",          " ",      "  padded  ",  "plain",  "Plain",      "two words", "长度",
        "静力 分析", "a/b",    "b",           "/a",     "a/",         "a//b",      "//",
        "%",         "100%25", "%U4E2D",      "a=b",    "=",          "a;b",       ";",
        "#",         "a,b",    ", ",          "\"",     "\"quoted\"", "'",         "\\",
        "a\\b",      "\\n",    "line\nbreak", "\r\n",   "\t",         "@",         "@Invalid()",
        "@@",        "[a]",    "]",           "true",   "false",      "0",         "12",
        "-1.5",      "é",      "ß",           "\u007f", "\u0001",     "。，；",
    };
    return texts;
}

/// Makes module items of such texts, with lists whose lengths disagree.
class HardItemMaker
{
public:
    explicit HardItemMaker(unsigned seed)
        : m_dice(seed)
    {
    }

    AUTH_INF item()
    {
        AUTH_INF item;
        item.number = m_dice.between(-5, 5);
        item.name = text();
        item.name_tr = text();
        item.description = text();
        item.icon = text();
        item.type = text();
        item.type_tr = text();
        item.group = text();
        item.group_tr = text();
        item.exclusive_group = m_dice.chance(50);
        item.lib_name = texts(2);
        item.inner_mode_count = m_dice.between(-1, 5);
        item.inner_mode_description = texts(4);
        item.inner_mode_nameList = m_dice.chance(80) ? modeNames() : texts(4);
        item.inner_mode_nameList_tr = texts(4);
        item.inner_mode_parameterList = parameters();
        item.trObjectName = text();
        item.codeFunctionName = text();
        item.output_results = entries(3);
        for (int i = m_dice.between(0, 4); i > 0; --i)
            item.extraKey.append({ key(), value() });
        return item;
    }

private:
    /// One of the hard texts, or some of them stuck together.
    QString text() { return m_dice.someOf(hardTexts(), m_dice.between(1, 2)).join(""); }
    QStringList texts(int most)
    {
        QStringList list;
        for (int i = m_dice.between(0, most); i > 0; --i)
            list.append(text());
        return list;
    }
    QStringList modeNames()
    {
        return m_dice.someOf({ "A", "B", "模式", "" }, m_dice.between(0, 5));
    }
    /// Often one of few, so that keys meet.
    QString key() { return m_dice.chance(50) ? m_dice.oneOf({ "x", "y", "x/y", "键" }) : text(); }

    QStringList entry()
    {
        QStringList strings = m_dice.someOf(hardTexts(), 9);
        strings[1] = key();
        if (m_dice.chance(10))
            strings = strings.mid(0, m_dice.between(0, 8));
        if (m_dice.chance(5))
            strings.append(text());
        return strings;
    }
    QVector<QStringList> entries(int most)
    {
        QVector<QStringList> list;
        for (int i = m_dice.between(0, most); i > 0; --i)
            list.append(entry());
        return list;
    }
    QVector<QVector<QStringList>> parameters()
    {
        QVector<QVector<QStringList>> lists;
        for (int i = m_dice.between(0, 4); i > 0; --i)
            lists.append(entries(4));
        return lists;
    }
    QVariant value()
    {
        switch (m_dice.between(0, 6)) {
        case 0:
            return QVariant();
        case 1:
            return texts(3);
        case 2:
            return QStringList(text());
        case 3:
            return m_dice.between(-99, 99);
        case 4:
            return m_dice.between(-99, 99) / 8.0;
        case 5:
            return m_dice.chance(50);
        default:
            return text();
        }
    }

    Dice m_dice;
};

#endif
