// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/iniproblems_p.h"

#include "core/typedtext_p.h"

#include <algorithm>
#include <utility>

namespace {

/// A key that is decoded only where another one has the same hash, which is rare.
struct HashedKey
{
    SettingsKey key;
    std::size_t hash;
    const char *at;

    bool operator==(const HashedKey &other) const
    {
        if (hash != other.hash)
            return false;
        // Headers can be so long that they are not to be decoded for every key.
        if (key.section == other.key.section && !key.section.data() == !other.key.section.data())
            return SettingsKey { {}, key.name }.text() == SettingsKey { {}, other.key.name }.text();
        return key.text() == other.key.text();
    }
};

bool hasUnsafeElement(const QStringList &elements)
{
    return std::any_of(elements.cbegin(), elements.cend(), isUnsafe);
}

class ProblemSearch
{
public:
    explicit ProblemSearch(const QByteArray &bytes)
        : m_reader(bytes)
        , m_isUtf8(isUtf8(bytes))
    {
    }

    QVector<IniProblem> problems()
    {
        while (m_reader.next()) {
            checkLine();
            if (m_reader.line().kind == IniLine::Section)
                checkHeader();
            else if (m_reader.line().kind == IniLine::Entry)
                checkEntry();
        }
        endSection();
        findDuplicates();
        return inOrder();
    }

private:
    struct Finding
    {
        IniProblem::Kind kind;
        const char *at;
        const char *other = nullptr;
    };

    void checkLine()
    {
        const IniLine &line = m_reader.line();
        const char *const start = line.text.data();
        const char *const end = start + line.text.size();
        const char *const invalid = m_isUtf8 ? end : firstInvalidByte(line.text);
        if (invalid != end)
            m_findings.push_back({ IniProblem::NotUtf8, invalid });
        if (*start == '\xef' && line.text.substr(0, 3) == "\xef\xbb\xbf")
            m_findings.push_back({ IniProblem::ByteOrderMark, start });
        else if (line.kind == IniLine::Comment || *start == '#')
            m_findings.push_back({ IniProblem::DroppedComment, start });
        else if (line.kind == IniLine::Other)
            m_findings.push_back({ IniProblem::NoEqualsSign, start });
    }

    void checkHeader()
    {
        const IniLine &line = m_reader.line();
        endSection();
        m_emptyHeader = line.text.data();
        if (line.value.find_last_not_of(" \t") != 0)
            m_findings.push_back({ IniProblem::BrokenHeader, m_emptyHeader });
    }

    void endSection()
    {
        if (m_emptyHeader)
            m_findings.push_back({ IniProblem::EmptySection, m_emptyHeader });
        m_emptyHeader = nullptr;
    }

    void checkEntry()
    {
        const IniLine &line = m_reader.line();
        m_emptyHeader = nullptr;
        const KeyTraits traits = m_reader.keyTraits();
        m_keys.push_back({ m_reader.key(), traits.hash(), line.text.data() });
        if (!traits.isReadable())
            m_findings.push_back({ IniProblem::UnreadableKey, line.text.data() });
        const auto isPlainText = [](char c) {
            return c != '\\' && c != '"' && c != '@' && static_cast<signed char>(c) >= 0;
        };
        if (!std::all_of(line.value.cbegin(), line.value.cend(), isPlainText))
            checkValue();
    }

    void checkValue()
    {
        const std::string_view value = m_reader.line().value;
        std::vector<Misspelling> misspellings;
        const QStringList elements = elementsOfValue(value, &misspellings);
        for (const Misspelling &misspelling : misspellings) {
            const bool isEscape = misspelling.kind == Misspelling::BadEscape;
            m_findings.push_back({ isEscape ? IniProblem::BadEscape : IniProblem::DroppedCharacter,
                                   misspelling.at });
        }
        const std::size_t start = std::min(value.find_first_not_of(" \t"), value.size());
        if (hasUnsafeElement(elements))
            m_findings.push_back({ IniProblem::UnsafeValue, value.data() + start });
        else if (std::any_of(elements.cbegin(), elements.cend(), isDamaged))
            m_findings.push_back({ IniProblem::DamagedValue, value.data() + start });
    }

    void findDuplicates()
    {
        // A table of its own, in which a key goes to the next free place: a std::unordered_set
        // takes longer than all the rest.
        std::size_t size = 1;
        while (size < 2 * m_keys.size())
            size *= 2;
        std::vector<const HashedKey *> firsts(size);
        for (const HashedKey &key : m_keys) {
            std::size_t place = key.hash % size;
            while (firsts[place] && !(*firsts[place] == key))
                place = (place + 1) % size;
            if (firsts[place])
                m_findings.push_back({ IniProblem::DuplicateKey, key.at, firsts[place]->at });
            else
                firsts[place] = &key;
        }
    }

    QVector<IniProblem> inOrder()
    {
        std::stable_sort(m_findings.begin(), m_findings.end(),
                         [](const Finding &a, const Finding &b) { return a.at < b.at; });
        QVector<IniProblem> problems;
        std::vector<std::pair<const char *, int>> others;
        for (const Finding &finding : m_findings) {
            if (finding.other)
                others.emplace_back(finding.other, problems.size());
            problems.append({ finding.kind, m_reader.positionAt(finding.at) });
        }
        std::sort(others.begin(), others.end());
        for (const auto &[other, index] : others)
            problems[index].otherLine = m_reader.positionAt(other).line;
        return problems;
    }

    IniReader m_reader;
    const bool m_isUtf8;
    std::vector<Finding> m_findings;
    std::vector<HashedKey> m_keys;
    /// The header of the section while no key of it has been found.
    const char *m_emptyHeader = nullptr;
};

} // namespace

QVector<IniProblem> iniProblems(const QByteArray &bytes)
{
    return ProblemSearch(bytes).problems();
}

bool hasUnsafeIniValue(const QByteArray &bytes)
{
    if (!mayHoldSerialised({ bytes.constData(), std::size_t(bytes.size()) }))
        return false;
    IniReader reader(bytes);
    while (reader.next()) {
        const std::string_view value = reader.line().value;
        if (reader.line().kind == IniLine::Entry && mayHoldSerialised(value)
            && hasUnsafeElement(elementsOfValue(value)))
            return true;
    }
    return false;
}
