// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/lintitem.h"

#include "nearestname.h"

namespace {

const QVector<QPair<QString, ItemValue>> &sections()
{
    static const QVector<QPair<QString, ItemValue>> all {
        { QStringLiteral("KeltoItem"), ItemValue::Unknown },
        { QStringLiteral("Attribute"), ItemValue::Nothing },
        { QStringLiteral("Belong"), ItemValue::List },
        { QStringLiteral("Result"), ItemValue::Nothing },
        { QStringLiteral("Group"), ItemValue::Text },
        { QStringLiteral("ObjectName"), ItemValue::Text },
        { QStringLiteral("Symbol"), ItemValue::Text },
        { QStringLiteral("Unit"), ItemValue::Units },
        { QStringLiteral("Multi"), ItemValue::Text },
        { QStringLiteral("ExtraKey"), ItemValue::Extra },
    };
    return all;
}

const QVector<QPair<QString, ItemValue>> &fields()
{
    static const QVector<QPair<QString, ItemValue>> all {
        { QStringLiteral("number"), ItemValue::Number },
        { QStringLiteral("name"), ItemValue::Text },
        { QStringLiteral("description"), ItemValue::Text },
        { QStringLiteral("icon"), ItemValue::Text },
        { QStringLiteral("group"), ItemValue::Text },
        { QStringLiteral("type"), ItemValue::Text },
        { QStringLiteral("exclusive_group"), ItemValue::Flag },
        { QStringLiteral("lib_name"), ItemValue::List },
        { QStringLiteral("inner_mode_count"), ItemValue::Number },
        { QStringLiteral("inner_mode_description"), ItemValue::List },
        { QStringLiteral("inner_mode_nameList"), ItemValue::List },
        { QStringLiteral("Tr_ObjectName"), ItemValue::Text },
        { QStringLiteral("codeFunctionName"), ItemValue::Text },
        { QStringLiteral("output_results"), ItemValue::List },
    };
    return all;
}

QStringList namesOf(const QVector<QPair<QString, ItemValue>> &list)
{
    QStringList names;
    for (const auto &entry : list)
        names.append(entry.first);
    return names;
}

ItemValue valueOf(const QVector<QPair<QString, ItemValue>> &list, const QString &name)
{
    for (const auto &entry : list) {
        if (entry.first == name)
            return entry.second;
    }
    return ItemValue::Unknown;
}

QString meantName(const QString &name, const QStringList &known)
{
    return known.contains(name) ? name : nearestName(name, known);
}

/// The first section with some of the fields, where no name is similar to that of their own.
QString otherSectionOfFields(const ItemFile &file)
{
    constexpr int fewest = 3;
    const QString own = knownSections().constFirst();
    for (const ItemFileSection &section : file.sections()) {
        if (meantName(section.name, knownSections()) == own)
            return {};
    }
    QHash<QString, int> fields;
    for (const ItemFileKey &key : file.keys()) {
        const bool isField = !key.section.isEmpty() && knownFields().contains(key.name);
        if (isField && meantName(key.section, knownSections()).isEmpty()
            && ++fields[key.section] == fewest)
            return key.section;
    }
    return {};
}

} // namespace

QStringList knownSections()
{
    static const QStringList names = namesOf(sections());
    return names;
}

QStringList knownFields()
{
    static const QStringList names = namesOf(fields());
    return names;
}

QStringList describingSections()
{
    static const QStringList names { QStringLiteral("Belong"),     QStringLiteral("Group"),
                                     QStringLiteral("ObjectName"), QStringLiteral("Symbol"),
                                     QStringLiteral("Unit"),       QStringLiteral("Multi") };
    return names;
}

bool isTranslatedField(const QString &name)
{
    static const QStringList names { QStringLiteral("name_tr"), QStringLiteral("type_tr"),
                                     QStringLiteral("group_tr"),
                                     QStringLiteral("inner_mode_nameList_tr") };
    return names.contains(name);
}

bool isMeantAsComment(const QString &key)
{
    return key.startsWith(QLatin1Char('#'));
}

LintItem::LintItem(const ItemFile &file)
    : m_file(file)
    , m_sectionOfFields(otherSectionOfFields(file))
{
    // A header that is missing most likely was to be the first.
    QHash<QString, QString> meantSections { { QString(), knownSections().constFirst() } };
    m_keys.reserve(file.keys().size());
    for (const ItemFileKey &key : file.keys()) {
        auto section = meantSections.find(key.section);
        if (section == meantSections.end())
            section = meantSections.insert(key.section, meantSection(key.section));
        const bool isField = *section == knownSections().constFirst();
        const bool isOther = isTranslatedField(key.name) || isMeantAsComment(key.name);
        const QString name = isField && !isOther ? meantName(key.name, knownFields()) : key.name;
        const ItemValue value = isField ? valueOf(fields(), name) : valueOf(sections(), *section);
        m_keys.append({ &key, *section, name, value });
        QHash<QString, const ItemFileKey *> &known = m_sections[*section];
        if (!known.contains(name))
            m_names[*section].append(name);
        const bool isRead = *section == key.section && name == key.name;
        if (isRead || !known.contains(name))
            known.insert(name, &key);
    }
}

QString LintItem::meantSection(const QString &name) const
{
    return !name.isEmpty() && name == m_sectionOfFields ? knownSections().constFirst()
                                                        : meantName(name, knownSections());
}

const ItemFileKey *LintItem::find(const QString &section, const QString &name) const
{
    const auto known = m_sections.constFind(section);
    return known == m_sections.cend() ? nullptr : known->value(name);
}

const ItemFileKey *LintItem::field(const char *name) const
{
    return find(knownSections().constFirst(), QLatin1String(name));
}

QStringList LintItem::elements(const ItemFileKey *key)
{
    if (!key || key->value == QStringList(QString())
        || key->value == QStringList(QStringLiteral("@Invalid()")))
        return {};
    return key->value;
}

std::string_view rawValueOf(const ItemFile &file, const ItemFileKey &key)
{
    const char *begin = key.speltValue.data();
    const char *end = begin + key.speltValue.size();
    const char *const fileEnd = file.bytes().constData() + file.bytes().size();
    while (begin > file.bytes().constData() && isBlank(begin[-1]))
        --begin;
    while (end < fileEnd && isBlank(*end))
        ++end;
    return textBetween(begin, end);
}
