// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef HINTITEMS_H
#define HINTITEMS_H

#include "support/randomitems.h"

#include <Kelto/AUTH_INF>

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

/// Makes module items with hints, whose keys, modes and values hold each other's separators, stand
/// there twice, mean nothing or contradict each other.
class HintItemMaker
{
public:
    explicit HintItemMaker(unsigned seed)
        : m_dice(seed)
    {
    }

    static const QStringList &keys()
    {
        static const QStringList texts { "a", "b", "c", "a@A", "a.b", "b=c", "x|y", "", "a@" };
        return texts;
    }
    static const QStringList &modes()
    {
        static const QStringList texts { "A", "B", "A@A", "", "甲" };
        return texts;
    }

    AUTH_INF item()
    {
        AUTH_INF item;
        item.inner_mode_count = m_dice.between(-1, 4);
        item.inner_mode_nameList = m_dice.someOf(modes(), m_dice.between(0, 4));
        item.inner_mode_nameList_tr = m_dice.someOf({ "甲", "乙", "A", "" }, m_dice.between(0, 4));
        for (int i = m_dice.between(0, 4); i > 0; --i)
            item.inner_mode_parameterList.append(entries(5));
        item.output_results = entries(3);
        for (int i = m_dice.between(0, 16); i > 0; --i) {
            const QString word = m_dice.oneOf(words());
            item.extraKey.append({ extraKey(word), valueOf(word) });
        }
        return item;
    }

    /// Values of some of the keys, as a host stores them.
    QVector<QPair<QString, QVariant>> values()
    {
        QVector<QPair<QString, QVariant>> list;
        for (int i = m_dice.between(0, 8); i > 0; --i) {
            const QString prefix = m_dice.chance(90) ? "Attribute/" : "attribute/";
            list.append({ prefix + key(), value() });
        }
        return list;
    }

    Dice &dice() { return m_dice; }

private:
    /// Mostly one of few, so that modes and hints share them.
    QString key() { return m_dice.chance(50) ? m_dice.oneOf({ "a", "b" }) : m_dice.oneOf(keys()); }
    QStringList entry()
    {
        QStringList texts { m_dice.oneOf({ "Load", "Shape", "" }), key(),
                            m_dice.oneOf({ "float", "int", "text", "bool", "QVector<QPointF>" }),
                            m_dice.oneOf({ "true", "false", "" }) };
        texts += m_dice.someOf({ "mm", "", "长度" }, 5);
        return m_dice.chance(5) ? texts.mid(0, m_dice.between(0, 8)) : texts;
    }
    QVector<QStringList> entries(int most)
    {
        QVector<QStringList> list;
        for (int i = m_dice.between(0, most); i > 0; --i)
            list.append(entry());
        return list;
    }
    static const QStringList &words()
    {
        static const QStringList texts { "Default", "Default", "Min",     "Min",      "Max",
                                         "Max",     "Choices", "When",    "When",     "When",
                                         "Help",    "Label",   "Files",   "Belong",   "Host",
                                         "Order",   "Order",   "default", "Advanced", "Optional" };
        return texts;
    }
    QString extraKey(const QString &word)
    {
        QString text = word;
        if (m_dice.chance(word == "Order" ? 10 : 95)) {
            const QStringList others = keys() + QStringList { "d", "@", "c." };
            text += "." + (m_dice.chance(20) ? m_dice.oneOf(others) : key());
        }
        if (m_dice.chance(30))
            text += "@" + m_dice.oneOf(modes() + QStringList { "C" });
        return text;
    }
    QVariant valueOf(const QString &word)
    {
        const bool isNumber = word == "Default" || word == "Min" || word == "Max";
        if (isNumber && m_dice.chance(70))
            return m_dice.between(-3, 3);
        if (word == "Choices" && m_dice.chance(70))
            return m_dice.oneOf({ "1|2", "1=one|-1", "a|2 = b" });
        return anyValue();
    }
    QVariant anyValue()
    {
        switch (m_dice.between(0, 9)) {
        case 0:
            return m_dice.between(-3, 3);
        case 1:
            return m_dice.between(-9, 9) / 4.0;
        case 2:
            return QString(m_dice.oneOf(keys()) + "="
                           + m_dice.someOf({ "1", "2", "" }, 2).join("|"));
        case 3:
            return m_dice.someOf(keys(), 3).join("|");
        case 4:
            return m_dice.someOf(modes(), 2).join(" | ");
        case 5:
            return m_dice.someOf({ "1", "2=two", "3 = drei", "-1", "a" }, 3).join("|");
        case 6:
            return m_dice.someOf({ "1", "2|3", " 1 ", "-1", "a" }, 2).join(";");
        case 7:
            return m_dice.someOf({ "1", "2" }, m_dice.between(0, 2));
        case 8:
            return m_dice.chance(50) ? QVariant(m_dice.chance(50)) : QVariant();
        default:
            return m_dice.oneOf({ "", "true", "false", "1", "2", "x", "inf", "nan", " 2 ", "0x1",
                                  "*.txt;;All (*) ;;" });
        }
    }
    QVariant value()
    {
        if (m_dice.chance(20))
            return m_dice.someOf({ "1", "2", "" }, m_dice.between(0, 3));
        if (m_dice.chance(20))
            return m_dice.between(0, 3);
        return m_dice.oneOf({ "", "1", "2", "1.5", "x" });
    }

    Dice m_dice;
};

#endif
