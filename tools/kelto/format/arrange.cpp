// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The order of sections and keys.

#include "format/document.h"

#include <QHash>

#include <algorithm>
#include <tuple>

namespace {

/// The position of @p name in @p order; behind all of it where it is missing.
int rankIn(const QStringList &order, const QString &name)
{
    const int position = order.indexOf(name);
    return position < 0 ? order.size() : position;
}

const QStringList &sectionOrder()
{
    static const QStringList order {
        QStringLiteral("KeltoItem"),  QStringLiteral("Attribute"), QStringLiteral("Result"),
        QStringLiteral("Unit"),       QStringLiteral("Symbol"),    QStringLiteral("Multi"),
        QStringLiteral("ObjectName"), QStringLiteral("Group"),     QStringLiteral("Belong"),
        QStringLiteral("ExtraKey"),
    };
    return order;
}

const QStringList &fieldOrder()
{
    static const QStringList order {
        QStringLiteral("number"),
        QStringLiteral("name"),
        QStringLiteral("description"),
        QStringLiteral("icon"),
        QStringLiteral("group"),
        QStringLiteral("type"),
        QStringLiteral("exclusive_group"),
        QStringLiteral("lib_name"),
        QStringLiteral("inner_mode_count"),
        QStringLiteral("inner_mode_description"),
        QStringLiteral("inner_mode_nameList"),
        QStringLiteral("Tr_ObjectName"),
        QStringLiteral("codeFunctionName"),
        QStringLiteral("output_results"),
    };
    return order;
}

/// The words of hints, those that belong together beside each other, and where a group begins.
struct HintOrder
{
    QStringList words { QStringLiteral("Order"),    QStringLiteral("Default"),
                        QStringLiteral("Choices"),  QStringLiteral("When"),
                        QStringLiteral("Min"),      QStringLiteral("Max"),
                        QStringLiteral("Optional"), QStringLiteral("Advanced"),
                        QStringLiteral("Files"),    QStringLiteral("Belong"),
                        QStringLiteral("Label"),    QStringLiteral("Help") };
    QVector<int> groups { 0, 1, 1, 1, 1, 1, 1, 1, 1, 2, 3, 3, 4 };
};

/// Where a hint stands: by its word, what it is about, and the mode for which it counts.
using HintRank = std::tuple<int, int, QString, int, QString>;

const DocumentSection *sectionOf(const Document &document, const char *name)
{
    const auto found = std::find_if(document.sections.cbegin(), document.sections.cend(),
                                    [name](const DocumentSection &section) {
                                        return section.name == QLatin1String(name);
                                    });
    return found == document.sections.cend() ? nullptr : &*found;
}

QStringList namesIn(const Document &document, const char *name)
{
    QStringList names;
    if (const DocumentSection *const section = sectionOf(document, name)) {
        for (const DocumentEntry &entry : section->entries)
            names.append(entry.name);
    }
    names.sort();
    return names;
}

QStringList valueIn(const Document &document, const char *name, const char *key)
{
    if (const DocumentSection *const section = sectionOf(document, name)) {
        for (const DocumentEntry &entry : section->entries) {
            if (entry.name == QLatin1String(key))
                return entry.value;
        }
    }
    return {};
}

class HintRanks
{
public:
    explicit HintRanks(const Document &document)
        : m_modes(valueIn(document, "KeltoItem", "inner_mode_nameList"))
    {
        const QString order = valueIn(document, "ExtraKey", "Order").join(QLatin1Char(','));
        QStringList keys;
        if (!order.isEmpty())
            keys = order.split(QLatin1Char('|'));
        keys += namesIn(document, "Attribute") + namesIn(document, "Result");
        for (const QString &key : qAsConst(keys)) {
            if (!m_keys.contains(key.trimmed()))
                m_keys.insert(key.trimmed(), m_keys.size());
        }
    }

    HintRank rank(const QString &extraKey) const
    {
        const bool isOrder = extraKey == m_order.words.constFirst()
            || extraKey.startsWith(m_order.words.constFirst() + QLatin1Char('@'));
        const int dot = extraKey.indexOf(isOrder ? QLatin1Char('@') : QLatin1Char('.'));
        const QString word = dot < 0 ? extraKey : extraKey.left(dot);
        const int wordRank
            = dot < 0 && !isOrder ? m_order.words.size() : rankIn(m_order.words, word);
        // The host's own keys stay as they are.
        if (wordRank == m_order.words.size())
            return { wordRank, 0, {}, 0, {} };
        const QString rest = dot < 0 ? QString() : extraKey.mid(dot + 1);
        return isOrder ? HintRank { wordRank, 0, {}, modeRank(rest), rest }
                       : rankOfKey(wordRank, rest);
    }

    int group(const QString &extraKey) const
    {
        return m_order.groups.at(std::get<0>(rank(extraKey)));
    }

private:
    /// For all modes first.
    int modeRank(const QString &mode) const { return mode.isEmpty() ? -1 : rankIn(m_modes, mode); }

    /// Keys may hold "@" themselves, so that the first one that has a key before it counts.
    HintRank rankOfKey(int word, const QString &rest) const
    {
        if (m_keys.contains(rest))
            return { word, m_keys.value(rest), {}, -1, {} };
        for (int i = rest.indexOf(QLatin1Char('@')); i >= 0;
             i = rest.indexOf(QLatin1Char('@'), i + 1)) {
            const auto key = m_keys.constFind(rest.left(i));
            if (key != m_keys.constEnd())
                return { word, *key, {}, modeRank(rest.mid(i + 1)), rest };
        }
        return { word, m_keys.size(), rest, -1, {} };
    }

    const HintOrder m_order;
    const QStringList m_modes;
    QHash<QString, int> m_keys;
};

template <typename Rank> void sortEntries(QVector<DocumentEntry> *entries, Rank rank)
{
    std::stable_sort(entries->begin(), entries->end(),
                     [&rank](const DocumentEntry &a, const DocumentEntry &b) {
                         return rank(a.name) < rank(b.name);
                     });
}

void arrangeHints(QVector<DocumentEntry> *entries, const HintRanks &ranks)
{
    sortEntries(entries, [&ranks](const QString &name) { return ranks.rank(name); });
    for (int i = 1; i < entries->size(); ++i) {
        (*entries)[i].startsGroup
            = ranks.group(entries->at(i).name) != ranks.group(entries->at(i - 1).name);
    }
}

void arrangeSection(DocumentSection *section, const HintRanks &hints)
{
    const int rank = rankIn(sectionOrder(), section->name);
    if (rank == 0)
        sortEntries(&section->entries,
                    [](const QString &name) { return rankIn(fieldOrder(), name); });
    else if (rank == sectionOrder().size() - 1)
        arrangeHints(&section->entries, hints);
    else if (rank < sectionOrder().size())
        sortEntries(&section->entries, [](const QString &name) { return name; });
}

} // namespace

void arrange(Document *document)
{
    const HintRanks hints(*document);
    std::stable_sort(document->sections.begin(), document->sections.end(),
                     [](const DocumentSection &a, const DocumentSection &b) {
                         return rankIn(sectionOrder(), a.name) < rankIn(sectionOrder(), b.name);
                     });
    for (DocumentSection &section : document->sections)
        arrangeSection(&section, hints);
}
