// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A document from the bytes of a file.

#include "command.h"
#include "core/iniproblems_p.h"
#include "format/document.h"

#include <algorithm>

namespace {

bool isKeptWhenFormatted(IniProblem::Kind kind)
{
    // Characters that only a save drops are looked at one by one.
    return kind == IniProblem::DroppedComment || kind == IniProblem::EmptySection
        || kind == IniProblem::DroppedCharacter;
}

QString sentenceOn(const IniProblem &problem)
{
    switch (problem.kind) {
    case IniProblem::NoEqualsSign:
        return Command::tr("the line has no \"=\": put a \";\" in front of a comment.");
    case IniProblem::BrokenHeader:
        return Command::tr("the header has no \"]\", or text behind it.");
    case IniProblem::DuplicateKey:
        return Command::tr("the key is given in line %1 already: remove one of both.")
            .arg(problem.otherLine);
    case IniProblem::UnreadableKey:
        return Command::tr("the key has a superfluous \"/\" and is not read.");
    case IniProblem::ByteOrderMark:
        return Command::tr("the byte order mark becomes part of the first key: remove it.");
    case IniProblem::BadEscape:
        return Command::tr("the \"\\\" means nothing here: write \"\\\\\" for a backslash.");
    case IniProblem::NotUtf8:
        return Command::tr("the line is not in UTF-8.");
    default:
        return Command::tr("the value is damaged.");
    }
}

DocumentError firstProblem(const QByteArray &bytes)
{
    const QVector<IniProblem> problems = iniProblems(bytes);
    for (const IniProblem &problem : problems) {
        if (!isKeptWhenFormatted(problem.kind))
            return { problem.position, sentenceOn(problem) };
    }
    return {};
}

/// Where a quote, or text behind a quote, stands in the value that is not part of it; null where
/// nothing does. What is merely dropped by a save is read in every spelling.
const char *droppedCharacter(std::string_view value)
{
    std::vector<Misspelling> misspellings;
    elementsOfValue(value, &misspellings);
    for (const Misspelling &misspelling : misspellings) {
        const bool isEnd = misspelling.at == value.data() + value.size();
        if (isEnd || (*misspelling.at != '\\' && static_cast<uchar>(*misspelling.at) < 0xef))
            return misspelling.at;
    }
    return nullptr;
}

QByteArray trimmedEnd(std::string_view text)
{
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return { text.data(), static_cast<int>(text.size()) };
}

/// The line ends between two texts of a file.
int lineEndsIn(const char *begin, const char *end)
{
    return static_cast<int>(std::max(std::count(begin, end, '\n'), std::count(begin, end, '\r')));
}

void append(Comments *comments, const Comments &added)
{
    if (!comments->isEmpty() && !added.isEmpty())
        comments->append(QByteArray());
    *comments += added;
}

class DocumentReader
{
public:
    explicit DocumentReader(const QByteArray &bytes)
        : m_reader(bytes)
        , m_lastEnd(bytes.constData())
    {
    }

    Document document(DocumentError *error)
    {
        while (error->text.isEmpty() && m_reader.next()) {
            const std::string_view text = m_reader.line().text;
            m_lineEnds = lineEndsIn(m_lastEnd, text.data());
            takeLine(error);
            m_lastEnd = text.data() + text.size();
        }
        m_document.end = m_pending;
        return m_document;
    }

private:
    void takeLine(DocumentError *error)
    {
        const IniLine &line = m_reader.line();
        if (line.text.front() == '#')
            takeNumberSign(error);
        else if (line.kind == IniLine::Comment)
            takeComment(trimmedEnd(line.text));
        else if (line.kind == IniLine::Section)
            takeHeader();
        else if (const char *const dropped = droppedCharacter(line.value))
            *error = { m_reader.positionAt(dropped),
                       Command::tr("the character is not part of the text: write \"\\\"\" for a "
                                   "quote.") };
        else
            takeEntry();
    }

    /// Such a line is a comment to a person. The library thinks so only where it has no "=", and
    /// ends it elsewhere where there are quotes or backslashes.
    void takeNumberSign(DocumentError *error)
    {
        const std::string_view text = m_reader.line().text;
        const bool mayGoOn = text.find('\\') != text.npos
            || std::count(text.begin(), text.end(), '"') % 2 == 1
            || std::any_of(text.begin(), text.end(), isLineEnd);
        if (m_reader.line().kind == IniLine::Entry || mayGoOn) {
            *error = { m_reader.positionAt(text.data()),
                       Command::tr("the comment is read as a key: begin it with \";\".") };
            return;
        }
        takeComment({ text.data(), static_cast<int>(text.size()) });
    }

    void takeComment(const QByteArray &text)
    {
        const bool isBeside = m_lineEnds == 0;
        if (isBeside && m_beside) {
            *m_beside = text;
        } else if (isBeside && !m_pending.isEmpty()) {
            m_pending.last() += text;
        } else {
            if (m_lineEnds > 1 && !m_pending.isEmpty())
                m_pending.append(QByteArray());
            m_pending.append(text);
        }
        m_beside = nullptr;
    }

    /// The last of the comments that are to be placed, up to the blank line before it; none where a
    /// blank line comes next.
    Comments takeAdjacent()
    {
        Comments adjacent;
        while (m_lineEnds < 2 && !m_pending.isEmpty() && !m_pending.constLast().isEmpty())
            adjacent.prepend(m_pending.takeLast());
        if (!m_pending.isEmpty() && m_pending.constLast().isEmpty())
            m_pending.removeLast();
        return adjacent;
    }

    void takeHeader()
    {
        const IniLine &line = m_reader.line();
        QString name = SettingsKey { line.key, {} }.text();
        name.chop(1);
        const bool isNone = isSameName(line.key, "general");
        const Comments adjacent = takeAdjacent();
        append(m_section < 0 ? &m_document.top : &m_document.sections[m_section].behind, m_pending);
        m_pending.clear();
        enter(isNone ? QString() : name);
        m_document.sections[m_section].before += adjacent;
        m_beside = &m_document.sections[m_section].beside;
    }

    void enter(const QString &name)
    {
        DocumentSection &section = m_document.section(name);
        m_section = static_cast<int>(&section - m_document.sections.data());
        m_isAtStart = section.entries.isEmpty();
    }

    void takeEntry()
    {
        const IniLine &line = m_reader.line();
        DocumentEntry entry;
        entry.name = SettingsKey { {}, line.key }.text();
        entry.value = elementsOfValue(line.value);
        if (m_section < 0) {
            entry.before = takeAdjacent();
            append(&m_document.top, m_pending);
            enter(QString());
        } else if (m_isAtStart) {
            entry.before = takeAdjacent();
            append(&m_document.sections[m_section].intro, m_pending);
        } else {
            entry.before = m_pending;
            if (m_lineEnds > 1 && !m_pending.isEmpty())
                entry.before.append(QByteArray());
        }
        m_pending.clear();
        m_isAtStart = false;
        QVector<DocumentEntry> &entries = m_document.sections[m_section].entries;
        entries.append(entry);
        m_beside = &entries.last().beside;
    }

    IniReader m_reader;
    const char *m_lastEnd;
    int m_lineEnds = 0;
    Document m_document;
    int m_section = -1; ///< The position of the current one; -1 in front of the first.
    bool m_isAtStart = false; ///< No key of the section was there yet.
    Comments m_pending; ///< Not placed yet.
    QByteArray *m_beside = nullptr; ///< Where a comment on the same line belongs.
};

} // namespace

Document readDocument(const QByteArray &bytes, DocumentError *error)
{
    *error = firstProblem(bytes);
    return error->text.isEmpty() ? DocumentReader(bytes).document(error) : Document();
}
