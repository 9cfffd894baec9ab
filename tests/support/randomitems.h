// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef RANDOMITEMS_H
#define RANDOMITEMS_H

#include <Kelto/AUTH_INF>

#include <QDebug>
#include <QString>
#include <QStringList>
#include <QVector>

#include <random>

/// What the random registries of one row are made of. Few names make many of them equal.
struct Flavour
{
    QStringList plainNames;
    QStringList translatedNames;
    int flaggedPercent = 60;
    /// How many items have lists of the length that their inner mode count says.
    int tidyPercent = 50;
    QString application = QStringLiteral("App");

    QStringList allNames() const
    {
        QStringList names = plainNames + translatedNames + QStringList(QStringLiteral("nowhere"));
        names.removeDuplicates();
        return names;
    }
};

/// Draws from the generator itself: unlike the standard distributions it gives the same numbers
/// with every standard library.
class Dice
{
public:
    explicit Dice(unsigned seed)
        : m_numbers(seed)
    {
    }

    int between(int low, int high) { return low + int(m_numbers() % unsigned(high - low + 1)); }
    bool chance(int percent) { return between(1, 100) <= percent; }
    QString oneOf(const QStringList &texts) { return texts.at(between(0, texts.size() - 1)); }
    QStringList someOf(const QStringList &texts, int count)
    {
        QStringList drawn;
        for (int i = 0; i < count; ++i)
            drawn.append(oneOf(texts));
        return drawn;
    }

private:
    std::mt19937 m_numbers;
};

inline QString labelled(const char *label, int number)
{
    return QLatin1String(label) + QString::number(number);
}

/// Makes items that differ in their descriptions and parameters and hardly in their names.
class ItemMaker
{
public:
    ItemMaker(Dice &dice, const Flavour &flavour)
        : m_dice(dice)
        , m_flavour(flavour)
    {
    }

    AUTH_INF item()
    {
        AUTH_INF item;
        item.number = m_dice.between(-1, 9);
        item.description = labelled("item ", m_nextText++);
        item.name = m_dice.oneOf(m_flavour.plainNames);
        item.name_tr = m_dice.oneOf(m_flavour.translatedNames);
        item.type = m_dice.oneOf(m_flavour.plainNames);
        item.type_tr = m_dice.oneOf(m_flavour.translatedNames);
        item.group = m_dice.oneOf(m_flavour.plainNames);
        item.group_tr = m_dice.oneOf(m_flavour.translatedNames);
        item.exclusive_group = m_dice.chance(m_flavour.flaggedPercent);
        addModes(item);
        return item;
    }

    QVector<AUTH_INF> items(int count)
    {
        QVector<AUTH_INF> made;
        for (int i = 0; i < count; ++i)
            made.append(item());
        return made;
    }

private:
    void addModes(AUTH_INF &item)
    {
        const bool tidy = m_dice.chance(m_flavour.tidyPercent);
        const int count = m_dice.between(tidy ? 0 : -2, 5);
        const auto length = [&] { return tidy ? count : m_dice.between(0, 5); };
        item.inner_mode_count = count;
        item.inner_mode_nameList = m_dice.someOf(m_flavour.plainNames, length());
        item.inner_mode_nameList_tr = m_dice.someOf(m_flavour.translatedNames, length());
        item.inner_mode_description.clear();
        for (int i = length(); i > 0; --i)
            item.inner_mode_description.append(labelled("mode ", m_nextText++));
        for (int i = length(); i > 0; --i)
            item.inner_mode_parameterList.append({ { labelled("parameter ", m_nextText++) } });
    }

    Dice &m_dice;
    const Flavour &m_flavour;
    int m_nextText = 0;
};

inline QDebug operator<<(QDebug debug, const AUTH_INF &item)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "\n    {" << item.description << " name" << item.name << '/' << item.name_tr
                    << (item.exclusive_group ? " exclusive" : "") << " group" << item.group << '/'
                    << item.group_tr << " type" << item.type << " modes" << item.inner_mode_count
                    << item.inner_mode_nameList << '/' << item.inner_mode_nameList_tr << ' '
                    << item.inner_mode_description.size() << " descriptions, "
                    << item.inner_mode_parameterList.size() << " parameter lists}";
    return debug;
}

#endif
