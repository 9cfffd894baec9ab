// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef RULES_PLACES_H
#define RULES_PLACES_H

#include "lint/filefindings.h"
#include "lint/lintitem.h"
#include "lint/speltvalue.h"

// What the examples of rules have in common.
#define EXAMPLE_MODE                                                                               \
    "exclusive_group=true\n"                                                                       \
    "inner_mode_count=1\n"                                                                         \
    "inner_mode_nameList=Bending\n"                                                                \
    "inner_mode_description=Loads across the beam\n"
#define EXAMPLE_ITEM                                                                               \
    "[KeltoItem]\n"                                                                                \
    "name=Beam\n"                                                                                  \
    "type=calculation\n"                                                                           \
    "group=Statics\n" EXAMPLE_MODE
#define EXAMPLE_LENGTH                                                                             \
    "[Attribute]\n"                                                                                \
    "Length=\n"                                                                                    \
    "[Belong]\n"                                                                                   \
    "Length=Bending\n"
/// Stands before each other file of an example of several.
#define EXAMPLE_FILE(name) "; --- " name " ---\n"

/// Where the key stands, or the file begins when it does not.
inline IniPosition keyPosition(const ItemFile &file, const QString &section, const QString &name)
{
    const ItemFileKey *key = file.findReadAs(section, name);
    return key ? key->position : IniPosition();
}

/// The same for its value.
inline IniPosition valuePosition(const ItemFile &file, const QString &section, const QString &name)
{
    const ItemFileKey *key = file.findReadAs(section, name);
    return key ? key->valuePosition : IniPosition();
}

inline IniPosition fieldPosition(const ItemFile &file, const char *field)
{
    return valuePosition(file, QStringLiteral("KeltoItem"), QLatin1String(field));
}

/// The last header of this name; where the file begins when there is none.
inline IniPosition sectionPosition(const ItemFile &file, const QString &name)
{
    IniPosition position;
    for (const ItemFileSection &section : file.sections()) {
        if (section.name == name)
            position = section.position;
    }
    return position;
}

/// Where the element at @p index of the list of a key begins; where the list does without one.
inline IniPosition elementPosition(const ItemFile &file, const ItemFileKey *key, int index)
{
    if (!key)
        return {};
    const SpeltValue spelt = speltValueOf(rawValueOf(file, *key));
    return index >= 0 && index < spelt.size() ? file.positionAt(spelt.at(index).text.data())
                                              : key->valuePosition;
}

/// Whether there is a parameter or a result @p name. The rest about it is stale otherwise.
inline bool isDeclared(const ItemFile &file, const QString &name)
{
    return file.find(QStringLiteral("Attribute"), name)
        || file.find(QStringLiteral("Result"), name);
}

/// Where the names of modes begin. The list is read once, since it can be long.
class ModePositions
{
public:
    explicit ModePositions(const ItemFile &file)
        : m_file(file)
        , m_key(file.find(QStringLiteral("KeltoItem"), QStringLiteral("inner_mode_nameList")))
        , m_spelt(m_key ? speltValueOf(rawValueOf(file, *m_key)) : SpeltValue())
    {
    }

    IniPosition at(int index) const
    {
        if (index >= 0 && index < m_spelt.size())
            return m_file.positionAt(m_spelt.at(index).text.data());
        return m_key ? m_key->valuePosition : IniPosition();
    }

private:
    const ItemFile &m_file;
    const ItemFileKey *const m_key;
    const SpeltValue m_spelt;
};

#endif
