// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef NAIVEITEMS_H
#define NAIVEITEMS_H

#include "support/parameters.h"
#include "support/randomitems.h"

#include <QRegularExpression>

#include <algorithm>

// Module items as scripts write them that know nothing of escapes: a line "key = value" for each
// text, elements of lists with ", " between them.

/// Makes items that such a script writes well, and others in which one text has something in it
/// that files are careful about. What a file cannot show is left out: a text in quotes is read
/// without them, "@@" as "@", two backslashes as one, and %5B in a key as a bracket, as it should
/// be.
class NaiveItemMaker
{
public:
    explicit NaiveItemMaker(unsigned seed)
        : m_dice(seed)
    {
    }

    AUTH_INF plainItem()
    {
        AUTH_INF item;
        item.number = m_dice.between(0, 9);
        item.name = word();
        item.description = sentence();
        item.icon = word() + ".png";
        item.type = "calculation";
        item.group = sentence();
        item.exclusive_group = m_dice.chance(50);
        item.lib_name = QStringList { word(), word() }.mid(m_dice.between(0, 1));
        item.inner_mode_count = m_dice.between(1, 3);
        item.inner_mode_nameList.clear();
        item.inner_mode_description.clear();
        for (int i = 0; i < item.inner_mode_count; ++i) {
            item.inner_mode_nameList.append(labelled("Mode ", i));
            item.inner_mode_description.append(sentence());
        }
        addParameters(&item);
        for (int i = m_dice.between(0, 3); i > 0; --i)
            item.output_results.append(entryOf(labelled("result ", i)));
        for (int i = m_dice.between(0, 3); i > 0; --i)
            item.extraKey.append({ labelled("Note ", i), sentence() });
        item.trObjectName = "Texts";
        item.codeFunctionName = "item";
        return item;
    }

    /// Puts something into one text of @p item.
    void harm(AUTH_INF *item)
    {
        const int count = item->inner_mode_count;
        const int mode = m_dice.between(0, count - 1);
        switch (m_dice.between(0, 9)) {
        case 0:
            return harmText(m_dice.chance(50) ? &item->name : &item->description);
        case 1:
            return harmText(m_dice.chance(50) ? &item->icon : &item->group);
        case 2:
            return harmElement(&item->inner_mode_description[mode]);
        case 3:
            return harmElement(&item->inner_mode_nameList[mode]);
        case 4:
            item->lib_name[0] = m_dice.oneOf(hardTexts().filter(QRegularExpression("^[^,@]*$")));
            return;
        case 5:
            return harmExtraKey(item);
        case 6:
            if (!item->output_results.isEmpty())
                harmEntry(&item->output_results[0]);
            return;
        default:
            return harmParameter(item);
        }
    }

    Dice &dice() { return m_dice; }

private:
    QString word()
    {
        return m_dice.oneOf(
            { "beam", "Load", "nut", "turn", "x1", "0", "length", "Plate", "very" });
    }
    QString sentence() { return word() + ' ' + word() + m_dice.oneOf({ "", ".", " of Länge 长" }); }

    QStringList hardTexts()
    {
        const QString a = word();
        const QString b = word();
        QStringList texts { a + ", " + b,
                            a + ',' + b,
                            a + ',',
                            ", " + a,
                            a + ';' + b,
                            a + " ; " + b,
                            ';' + a,
                            a + ';',
                            a + '=' + b,
                            '=' + a,
                            a + " \"b\" " + b,
                            "\"b\" " + a,
                            a + " \"b\"",
                            "5\" " + b,
                            "\"" + a,
                            a + '\\' + b,
                            a + "\\ " + b,
                            '\\' + a,
                            a + '\\',
                            ' ' + a,
                            a + ' ',
                            a + '\t',
                            "  " + a + "  ",
                            "@Size(3 4)",
                            "@" + a,
                            '#' + a,
                            '[' + a + ']',
                            "%41 " + a,
                            a + "'s " + b,
                            "é" + a,
                            a + "/" + b,
                            a + " \U0001F600",
                            "true",
                            "12",
                            " ",
                            ",",
                            ";",
                            "=",
                            "\"",
                            "\\" };
        // Any letter may stand behind a backslash.
        texts.append(a + '\\' + QChar('a' + m_dice.between(0, 25)) + b);
        texts.append(a + '\\' + QString::number(m_dice.between(0, 99)) + b);
        return texts;
    }
    QStringList hardKeys()
    {
        const QString a = word();
        const QString b = word();
        return { a + '=' + b,  a + " = " + b, '=' + a,       a + ';' + b,   a + "; " + b,
                 "长度",       a + "é",       "σ" + a,       a + '%',       a + "% " + b,
                 a + "%50",    a + "%U0041",  a + '/' + b,   '/' + a,       a + '/',
                 a + "//" + b, a + '\\' + b,  a + '\\',      a + "\" " + b, a + " \"b\" " + b,
                 '"' + a,      a + '"',       '[' + a + ']', '[' + a,       a + '(' + b + ')',
                 a + ", " + b, a + ',',       '@' + a,       a + '\t' + b,  a + ".:!?&|" + b,
                 '#' + a,      a + '\'',      "\U0001F600" };
    }

    void harmText(QString *text)
    {
        *text = m_dice.oneOf(hardTexts() + QStringList { "@Invalid()", "@ByteArray(a)" });
    }
    /// One of the elements of a list.
    void harmElement(QString *text) { *text = m_dice.oneOf(hardTexts()); }

    void harmEntry(QStringList *entry)
    {
        const int place = m_dice.oneOf({ "0", "1", "1", "1", "2", "4", "5", "6" }).toInt();
        if (place == 1)
            (*entry)[1] = m_dice.oneOf(hardKeys());
        else if (place == 4 || place == 5)
            harmElement(&(*entry)[place]);
        else
            harmText(&(*entry)[place]);
    }

    void harmParameter(AUTH_INF *item)
    {
        const QStringList before = item->inner_mode_parameterList.at(0).at(0);
        QStringList after = before;
        harmEntry(&after);
        for (QVector<QStringList> &entries : item->inner_mode_parameterList)
            std::replace(entries.begin(), entries.end(), before, after);
    }

    void harmExtraKey(AUTH_INF *item)
    {
        if (item->extraKey.isEmpty())
            return;
        VDataItem &extra = item->extraKey[0];
        // Without the value nobody knows to which of the two a "=" belongs, and hosts may store
        // values of any type.
        if (m_dice.chance(40))
            extra.key = m_dice.oneOf(hardKeys().filter(QRegularExpression("^[^=]*$")));
        else
            extra.value = m_dice.oneOf(hardTexts().filter(QRegularExpression("^[^@]*$")));
    }

    QStringList entryOf(const QString &key)
    {
        const QString flag = m_dice.oneOf({ "true", "false" });
        return { sentence(), key,      m_dice.oneOf({ "double", "text" }), flag, "mm", "m", word(),
                 key,        QString() };
    }

    void addParameters(AUTH_INF *item)
    {
        item->inner_mode_parameterList.resize(item->inner_mode_count);
        for (int i = m_dice.between(1, 4); i > 0; --i) {
            const QStringList entry = entryOf(labelled("parameter ", i));
            const int first = i == 1 ? 0 : m_dice.between(0, item->inner_mode_count - 1);
            for (int mode = first; mode < item->inner_mode_count; ++mode)
                item->inner_mode_parameterList[mode].append(entry);
        }
    }

    Dice m_dice;
};

/// What a file cannot carry, as a file gives it back: translated texts, and the order of keys.
inline AUTH_INF asRead(AUTH_INF item)
{
    item.name_tr = item.name;
    item.type_tr = item.type;
    item.group_tr = item.group;
    item.inner_mode_nameList_tr = item.inner_mode_nameList;
    const auto byKey = [](const QStringList &a, const QStringList &b) { return a.at(1) < b.at(1); };
    const auto read = [&byKey](QVector<QStringList> *entries) {
        for (QStringList &entry : *entries) {
            entry[7] = entry.at(1);
            entry[8] = entry.at(0);
        }
        std::sort(entries->begin(), entries->end(), byKey);
    };
    for (QVector<QStringList> &entries : item.inner_mode_parameterList)
        read(&entries);
    read(&item.output_results);
    std::sort(item.extraKey.begin(), item.extraKey.end(),
              [](const VDataItem &a, const VDataItem &b) { return a.key < b.key; });
    return item;
}

class NaiveWriter
{
public:
    static QByteArray written(const AUTH_INF &item)
    {
        NaiveWriter writer;
        writer.writeFields(item);
        writer.writeEntries(item);
        writer.m_text += "\n[ExtraKey]\n";
        for (const VDataItem &extra : item.extraKey)
            writer.line(extra.key, extra.value.toString());
        return writer.m_text.toUtf8();
    }

private:
    void line(const QString &key, const QString &value) { m_text += key + " = " + value + '\n'; }
    void line(const QString &key, const QStringList &list) { line(key, list.join(", ")); }

    void writeFields(const AUTH_INF &item)
    {
        m_text += "[KeltoItem]\n";
        line("number", QString::number(item.number));
        line("name", item.name);
        line("description", item.description);
        line("icon", item.icon);
        line("group", item.group);
        line("type", item.type);
        line("exclusive_group", QString(item.exclusive_group ? "true" : "false"));
        line("lib_name", item.lib_name);
        line("inner_mode_count", QString::number(item.inner_mode_count));
        line("inner_mode_description", item.inner_mode_description);
        line("inner_mode_nameList", item.inner_mode_nameList);
        line("Tr_ObjectName", item.trObjectName);
        line("codeFunctionName", item.codeFunctionName);
        // Only the length of this list counts.
        QStringList results;
        for (int i = 0; i < item.output_results.size(); ++i)
            results.append(QString::number(i));
        if (!results.isEmpty())
            line("output_results", results);
    }

    void writeEntries(const AUTH_INF &item)
    {
        QVector<QStringList> parameters;
        for (const QVector<QStringList> &entries : item.inner_mode_parameterList) {
            for (const QStringList &entry : entries) {
                if (!parameters.contains(entry))
                    parameters.append(entry);
            }
        }
        const QVector<QStringList> all = parameters + item.output_results;
        const auto section
            = [this](const char *name, const QVector<QStringList> &entries, auto value) {
                  m_text += QString("\n[%1]\n").arg(name);
                  for (const QStringList &entry : entries)
                      line(entry.at(1), value(entry));
              };
        const auto nothing = [](const QStringList &) { return QString(); };
        section("Attribute", parameters, nothing);
        section("Belong", parameters, [&item](const QStringList &entry) {
            QStringList modes;
            for (int i = 0; i < item.inner_mode_count; ++i) {
                if (item.inner_mode_parameterList.at(i).contains(entry))
                    modes.append(item.inner_mode_nameList.at(i));
            }
            return modes;
        });
        section("Result", item.output_results, nothing);
        section("Unit", all, [](const QStringList &entry) { return entry.mid(4, 2); });
        section("Symbol", all, [](const QStringList &entry) { return entry.at(6); });
        section("Multi", all, [](const QStringList &entry) { return entry.at(3); });
        section("ObjectName", all, [](const QStringList &entry) { return entry.at(2); });
        section("Group", all, [](const QStringList &entry) { return entry.at(0); });
    }

    QString m_text;
};

#endif
