// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/mends.h"

#include "lint/brokenlines.h"
#include "lint/keyspelling.h"
#include "lint/speltvalue.h"
#include "nearestname.h"

#include <algorithm>

namespace {

/// Of those that are looked for in a line, which can be long.
constexpr std::size_t longestKey = 200;

class MendSearch
{
public:
    MendSearch(const LintItem &item, const Findings &findings)
        : m_item(item)
        , m_file(item.file())
    {
        for (const Finding &finding : findings)
            m_findings.insert(keyOf(finding.rule, finding.position));
        for (const char *section : { "Attribute", "Result" }) {
            const QStringList names = item.namesIn(QLatin1String(section));
            m_declared += QSet<QString>(names.cbegin(), names.cend());
        }
    }

    QVector<Mend> mends()
    {
        for (const LintKey &key : m_item.keys())
            mendValue(key);
        mendLines();
        mendModeNames();
        mendDeclarations();
        const auto standsBefore
            = [](const Mend &a, const Mend &b) { return a.edit.begin < b.edit.begin; };
        std::sort(m_mends.begin(), m_mends.end(), standsBefore);
        std::sort(m_quotes.begin(), m_quotes.end(), standsBefore);
        return m_quotes.isEmpty() ? m_mends : m_quotes.mid(0, 1);
    }

private:
    bool isFound(const char *rule, IniPosition position) const
    {
        return m_findings.contains(keyOf(QLatin1String(rule), position));
    }

    /// Replaces @p length bytes at @p place if the damage is a finding.
    void add(QVector<Mend> *mends, const char *rule, IniPosition cause, const char *place,
             int length, const char *text)
    {
        const int begin = static_cast<int>(place - m_file.bytes().constData());
        if (isFound(rule, cause))
            mends->append({ QLatin1String(rule), cause, { begin, begin + length, text } });
    }

    const char *lineEndBehind(const char *place) const
    {
        return std::find_if(place, m_file.bytes().cend(), isLineEnd);
    }

    void mendValue(const LintKey &key)
    {
        const ItemFileKey &spelt = *key.key;
        if (spelt.spelt.substr(0, 1) == "#")
            add(&m_mends, "hash-key", spelt.position, spelt.spelt.data(), 1, ";");
        if (const std::size_t lineEnd = spelt.spelt.find_first_of("\r\n");
            lineEnd < spelt.spelt.find('"'))
            add(&m_mends, "quote-in-key", spelt.position, spelt.spelt.data() + lineEnd, 0, "\\");
        const std::string_view raw = rawValueOf(m_file, spelt);
        const char *const end = raw.data() + raw.size();
        const bool isList = key.value == ItemValue::List || key.value == ItemValue::Units;
        if (isList && end < m_file.bytes().cend() && *end == ';')
            add(&m_mends, "cut-text", m_file.positionAt(end), end, 1, ",");
        if (raw.find_first_of("\r\n") == raw.npos)
            return;
        const SpeltValue value = speltValueOf(raw);
        for (const char *const joint : value.joints)
            add(&m_mends, "joined-lines", m_file.positionAt(joint), joint, 0, "\\");
        if (!value.longQuotes.isEmpty()) {
            const char *const quote = value.longQuotes.constFirst();
            add(&m_quotes, "quote-across-lines", m_file.positionAt(quote), lineEndBehind(quote), 0,
                "\"");
        }
    }

    void mendLines()
    {
        IniReader reader(m_file.bytes());
        int sections = 0;
        while (reader.next()) {
            const IniLine &line = reader.line();
            sections += line.kind == IniLine::Section ? 1 : 0;
            if (line.kind == IniLine::Other) {
                mendLine(line.text, reader.positionAt(line.text.data()),
                         sections > 0 ? m_file.sections().at(sections - 1).name : QString());
            }
        }
    }

    void mendLine(std::string_view line, IniPosition position, const QString &section)
    {
        const std::size_t quote = line.find('"');
        const std::size_t end = line.find_first_of("\r\n");
        if (end < quote) {
            add(&m_mends, "no-equals-sign", position, line.data() + end, 0, "\\");
        } else if (quote != line.npos) {
            const char *const place = lineEndBehind(line.data() + quote);
            if (place < line.data() + line.size())
                add(&m_quotes, "no-equals-sign", position, place, 0, "\"");
        } else if (!meantHeader(line).isEmpty()) {
            const char *const behind = line.data() + line.find_last_not_of(" \t") + 1;
            add(&m_mends, "broken-header", position, line.data(), 0, "[");
            if (behind[-1] != ']')
                add(&m_mends, "broken-header", position, behind, 0, "]");
        } else if (section == QLatin1String("Attribute") || section == QLatin1String("Result")) {
            const char *const last = line.data() + line.find_last_not_of(" \t");
            const bool isColon = *last == ':';
            add(&m_mends, "no-equals-sign", position, isColon ? last : last + 1, isColon, "=");
        } else {
            mendSeparator(line, position, section);
        }
    }

    /// Behind a key, a blank or a colon most likely stands for the "=".
    void mendSeparator(std::string_view line, IniPosition position, const QString &section)
    {
        const bool isField = section == knownSections().constFirst();
        for (std::size_t at = line.find_first_of(" \t:"); at != line.npos;
             at = line.find_first_of(" \t:", at + 1)) {
            if (at > longestKey)
                return;
            const QString name = SettingsKey { {}, line.substr(0, at) }.text();
            if (isField ? knownFields().contains(name) : m_declared.contains(name))
                return add(&m_mends, "no-equals-sign", position, line.data() + at, 1, "=");
        }
    }

    /// White space around the name of a mode matters where parameters name it without.
    void mendModeNames()
    {
        const ItemFileKey *const list = m_item.field("inner_mode_nameList");
        const QStringList modes = LintItem::elements(list);
        const auto isSpaced = [](const QString &mode) { return mode != mode.trimmed(); };
        if (std::none_of(modes.cbegin(), modes.cend(), isSpaced))
            return;
        const SpeltValue spelt = speltValueOf(rawValueOf(m_file, *list));
        const QSet<QString> named = namedModes();
        for (int i = 0; i < qMin(modes.size(), spelt.size()); ++i) {
            const QString name = modes.at(i).trimmed();
            if (isSpaced(modes.at(i)) && named.contains(name) && !modes.contains(name))
                mendModeName(spelt.at(i), name.toUtf8());
        }
    }

    void mendModeName(const SpeltElement &element, const QByteArray &name)
    {
        const std::string_view text = element.text;
        const std::size_t at = text.find(name.constData());
        if (text.empty() || at == text.npos || text.find_first_of("\r\n") != text.npos)
            return;
        const IniPosition cause = m_file.positionAt(text.data());
        const char *const nameBegin = text.data() + at;
        const char *const nameEnd = nameBegin + name.size();
        // Behind a line that is continued the blanks in front are a part of the name.
        const char *const begin = text.data() - (element.beginsLine ? element.blanksBefore : 0)
            + (text.front() == '"' ? 1 : 0);
        const char *const end = text.data() + text.size() - (text.back() == '"' ? 1 : 0);
        if (begin < nameBegin)
            add(&m_mends, "white-space-at-ends", cause, begin, int(nameBegin - begin), "");
        if (nameEnd < end)
            add(&m_mends, "white-space-at-ends", cause, nameEnd, int(end - nameEnd), "");
    }

    /// Where several sections agree on the key of a parameter, and none knows the one that is
    /// declared, the declaration is misspelt.
    void mendDeclarations()
    {
        QHash<QString, int> described;
        for (const LintKey &key : m_item.keys())
            described[key.name] += describingSections().contains(key.section) ? 1 : 0;
        QStringList unknown;
        const QStringList declared = m_item.namesIn(QStringLiteral("Attribute"));
        for (const QString &name : declared) {
            if (described.value(name) == 0 && !isMeantAsComment(name))
                unknown.append(name);
        }
        const NearestNames candidates(unknown);
        QSet<QString> mended;
        const QStringList named = m_item.namesIn(QStringLiteral("Belong"));
        for (const QString &name : named) {
            if (m_declared.contains(name) || described.value(name) < 2)
                continue;
            const QString misspelt = candidates.nearest(name);
            if (!misspelt.isEmpty() && !mended.contains(misspelt))
                mendDeclaration(misspelt, name);
            mended.insert(misspelt);
        }
    }

    void mendDeclaration(const QString &misspelt, const QString &name)
    {
        const ItemFileKey &declaration = *m_item.find(QStringLiteral("Attribute"), misspelt);
        const ItemFileKey &key = *m_item.find(QStringLiteral("Belong"), name);
        const QByteArray right(key.spelt.data(), int(key.spelt.size()));
        if (!isBrokenKey(declaration) && !isBrokenKey(key)) {
            add(&m_mends, "undeclared-key", key.position, declaration.spelt.data(),
                int(declaration.spelt.size()), right.constData());
        }
    }

    QSet<QString> namedModes() const
    {
        QSet<QString> names;
        for (const LintKey &key : m_item.keys()) {
            if (key.section == QLatin1String("Belong"))
                names += QSet<QString>(key.key->value.cbegin(), key.key->value.cend());
        }
        return names;
    }

    const LintItem &m_item;
    const ItemFile &m_file;
    QSet<FindingKey> m_findings;
    QSet<QString> m_declared;
    QVector<Mend> m_mends;
    QVector<Mend> m_quotes;
};

} // namespace

QVector<Mend> mendsFor(const ItemFile &file, const Findings &findings)
{
    static const QStringList rules {
        QStringLiteral("broken-header"),
        QStringLiteral("cut-text"),
        QStringLiteral("hash-key"),
        QStringLiteral("joined-lines"),
        QStringLiteral("no-equals-sign"),
        QStringLiteral("quote-across-lines"),
        QStringLiteral("quote-in-key"),
        QStringLiteral("undeclared-key"),
        QStringLiteral("white-space-at-ends"),
    };
    const bool isAny = std::any_of(findings.cbegin(), findings.cend(), [](const Finding &finding) {
        return rules.contains(finding.rule);
    });
    if (!isAny)
        return {};
    const LintItem item(file);
    return MendSearch(item, findings).mends();
}
