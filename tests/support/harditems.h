// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef HARDITEMS_H
#define HARDITEMS_H

#include "support/randomitems.h"

#include <Kelto/AUTH_INF>

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

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
