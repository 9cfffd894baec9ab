// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What the reader of INI files passes over, or reads as something else.

#include "command.h"
#include "core/iniproblems_p.h"
#include "lint/brokenlines.h"
#include "lint/filefindings.h"
#include "lint/hintbars.h"
#include "lint/lintitem.h"

#include <QHash>

namespace {

/// What is in a text that a save drops: a quote inside of it, which is not read either, or a
/// character that QSettings reads and cannot write.
void addDroppedCharacter(IniPosition position, bool isWide, FileFindings *findings)
{
    if (isWide) {
        findings->add("unsaved-character", position,
                      Command::tr("the character is read, but gone when the file is saved"));
    } else {
        findings->add("stray-quote", position,
                      Command::tr("the quote is not around the whole text and is dropped; put "
                                  "quotes around all of it and write the ones inside as \\\""));
    }
}

void addByteOrderMark(const IniProblem &problem, FileFindings *findings)
{
    const int start = findings->file().bytes().indexOf("\xef\xbb\xbf");
    const bool isFirst = start == 0 && problem.position.line == 1;
    findings->add("byte-order-mark", problem.position,
                  Command::tr("the byte-order mark becomes part of what follows"),
                  isFirst ? QVector<TextEdit> { { 0, 3, {} } } : QVector<TextEdit>());
}

void addProblem(const IniProblem &problem, FileFindings *findings)
{
    const auto add = [&](const char *rule, const QString &text) {
        findings->add(rule, problem.position, text);
    };
    switch (problem.kind) {
    case IniProblem::EmptySection:
        return add("empty-section", Command::tr("the section has no keys"));
    case IniProblem::UnreadableKey:
        return add("unreadable-key",
                   Command::tr("a superfluous \"/\" keeps the value of the key from being read"));
    case IniProblem::ByteOrderMark:
        return addByteOrderMark(problem, findings);
    case IniProblem::BadEscape:
        return add("bad-escape",
                   Command::tr("the escape means nothing and is dropped; write a backslash as "
                               "\\\\"));
    case IniProblem::NotUtf8:
        return add("not-utf8", Command::tr("the bytes are not UTF-8"));
    case IniProblem::DamagedValue:
        return add("damaged-value",
                   Command::tr("the value is neither a text nor what was once saved"));
    case IniProblem::UnsafeValue:
        return add("unsafe-value",
                   Command::tr("the value is unsafe to read, so that nothing in the file is read"));
    default:
        // The other checks know more about these.
        return;
    }
}

/// Finds the bytes at positions that come in the order of the file.
class ByteCursor
{
public:
    explicit ByteCursor(const QByteArray &bytes)
        : m_lines(bytes.split(bytes.contains('\n') ? '\n' : '\r'))
    {
    }

    /// 0 behind the end of the line.
    char at(IniPosition position)
    {
        if (position.line != m_line || position.column < m_column) {
            m_line = position.line;
            m_column = 0;
            m_next = 0;
        }
        const QByteArray &line = m_lines.at(m_line - 1);
        for (; m_next < line.size() && m_column < position.column; ++m_next) {
            if ((line.at(m_next) & 0xc0) != 0x80 && ++m_column == position.column)
                m_byte = line.at(m_next);
        }
        return m_column == position.column ? m_byte : '\0';
    }

private:
    const QList<QByteArray> m_lines;
    int m_line = 0;
    int m_column = 0; ///< Of the character before the next byte.
    int m_next = 0;
    char m_byte = 0;
};

void checkProblems(FileFindings *findings)
{
    const QByteArray &bytes = findings->file().bytes();
    ByteCursor cursor(bytes);
    int quoteLine = 0;
    const QVector<IniProblem> problems = iniProblems(bytes);
    for (const IniProblem &problem : problems) {
        if (problem.kind != IniProblem::DroppedCharacter) {
            addProblem(problem, findings);
            continue;
        }
        const char byte = cursor.at(problem.position);
        const bool isWide = (byte >= '\xef' && byte <= '\xf4') || byte == '\\';
        // Of two quotes the first says it all. One that is not closed is known by its beginning.
        if (byte != 0 && (isWide || problem.position.line != quoteLine))
            addDroppedCharacter(problem.position, isWide, findings);
        if (!isWide)
            quoteLine = problem.position.line;
    }
}

/// Whether a quote in @p text, or a backslash at the end of its line, swallows lines behind it.
bool swallowsLines(std::string_view text)
{
    return text.find_first_of("\r\n") != text.npos;
}

bool isUnclosed(std::string_view text)
{
    return swallowsLines(text) && text.find('"') < text.find_first_of("\r\n");
}

void checkHeader(const IniLine &line, IniPosition position, FileFindings *findings)
{
    if (isUnclosed(line.text)) {
        findings->add("broken-header", position,
                      Command::tr("the header has a quote that is not closed, and all up to "
                                  "line %1 is ignored")
                          .arg(findings->lineOfEnd(line.text)));
    } else if (line.value.empty()) {
        findings->add("broken-header", position, Command::tr("the header has no \"]\""));
    } else if (line.value.find_last_not_of(" \t") != 0) {
        findings->add("broken-header", position,
                      Command::tr("the text behind the header is ignored"));
    }
}

QString textOnSwallowed(std::string_view text)
{
    if (!isUnclosed(text)) {
        return Command::tr("the line has no \"=\" and a backslash at its end, and all up to line "
                           "%1 is ignored with it");
    }
    return text.find('=') < text.find_first_of("\r\n")
        ? Command::tr("the quote hides the \"=\", and all up to line %1 is ignored; write a quote "
                      "in a key as %22")
        : Command::tr("the line has no \"=\" and a quote that is not closed, and all up to line "
                      "%1 is ignored with it");
}

/// A line that is ignored as a whole.
void checkOther(const IniLine &line, IniPosition position, FileFindings *findings)
{
    if (line.text.substr(0, 1) == "#" || line.text.substr(0, 3) == "\xef\xbb\xbf")
        return;
    const QString section = meantHeader(line.text);
    if (!section.isEmpty()) {
        // A name without brackets may also be that of a parameter.
        const QString text = line.text.find(']') == line.text.npos
            ? Command::tr("the line has no \"=\" and is ignored; the header of a section is "
                          "written [%1]")
            : Command::tr("the \"[\" in front of the header is missing, so that the keys below "
                          "do not belong to the section \"%1\"");
        findings->add("broken-header", position, text.arg(section));
    } else if (swallowsLines(line.text)) {
        findings->add("no-equals-sign", position,
                      textOnSwallowed(line.text).arg(findings->lineOfEnd(line.text)));
    } else {
        findings->add("no-equals-sign", position,
                      Command::tr("the line has no \"=\" and is ignored"));
    }
}

/// The keys of a file by where their values end. Behind a number, a flag, and where there is no
/// value, nothing but a comment is meant.
QHash<const char *, const LintKey *> endsOfTexts(const LintItem &item)
{
    QHash<const char *, const LintKey *> ends;
    for (const LintKey &key : item.keys()) {
        const bool isText = key.value != ItemValue::Number && key.value != ItemValue::Flag
            && key.value != ItemValue::Nothing;
        const std::string_view value = rawValueOf(item.file(), *key.key);
        if (isText)
            ends.insert(value.data() + value.size(), &key);
    }
    return ends;
}

QString textOnCut(const LintKey &key)
{
    if (key.value == ItemValue::List || key.value == ItemValue::Units) {
        return Command::tr("the list ends at the \";\"; a comma divides its elements, and a "
                           "comment stands on a line of its own");
    }
    if (key.value == ItemValue::Extra && HintBars::isDivided(*key.key)) {
        return Command::tr("the text ends at the \";\"; a \"|\" divides the parts of this hint, "
                           "and a comment stands on a line of its own");
    }
    return Command::tr("the text ends at the \";\"; put quotes around it, or put the comment on "
                       "a line of its own");
}

/// A "#" line with a key in it is no comment, and a ";" behind a value ends it.
void checkLines(const LintItem &item, FileFindings *findings)
{
    const QHash<const char *, const LintKey *> ends = endsOfTexts(item);
    IniReader reader(findings->file().bytes());
    IniLine before;
    int lineBefore = 0;
    while (reader.next()) {
        const IniLine line = reader.line();
        const char *const start = line.text.data();
        const IniPosition position = reader.positionAt(start);
        const bool isHash = *start == '#';
        if (line.kind == IniLine::Section)
            checkHeader(line, position, findings);
        else if (line.kind == IniLine::Other)
            checkOther(line, position, findings);
        if (isHash && line.kind == IniLine::Entry) {
            findings->add("hash-key", position,
                          Command::tr("\"#\" begins no comment here: the line is a key; a "
                                      "comment begins with \";\""));
        } else if (line.kind == IniLine::Comment && ends.contains(start)) {
            findings->add("cut-text", position, textOnCut(*ends.value(start)));
        } else if ((isHash || line.kind == IniLine::Comment)
                   && !(before.kind == IniLine::Other && position.line == lineBefore)) {
            findings->add("comment", position,
                          Command::tr("the comment is gone when the file is saved"));
        }
        before = line;
        lineBefore = reader.positionAt(start + line.text.size()).line;
    }
}

void check(const LintItem &item, Findings *findings)
{
    FileFindings added(item.file(), findings);
    checkProblems(&added);
    checkLines(item, &added);
}

} // namespace

RuleArea damageRules()
{
    return {
        {
            { "no-equals-sign", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A line is neither a header nor a key with a value"),
              QT_TRANSLATE_NOOP("Command",
                                "Such a line is ignored, and gone when the file is saved. "
                                "Put a \"=\" behind the key, or a \";\" before a comment."),
              "[KeltoItem]\nname=Beam\nicon beam.png\n",
              "[KeltoItem]\nname=Beam\nicon=beam.png\n" },
            { "cut-text", Severity::Error, QT_TRANSLATE_NOOP("Command", "A text ends at a \";\""),
              QT_TRANSLATE_NOOP("Command",
                                "Outside of quotes a \";\" begins a comment, also in the middle "
                                "of a line. Put quotes around the text, or the comment on a line "
                                "of its own."),
              "[KeltoItem]\nname=Beam\ndescription=Bending; slender beams only\n",
              "[KeltoItem]\nname=Beam\ndescription=\"Bending; slender beams only\"\n" },
            { "hash-key", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "A line that begins with \"#\" is a key"),
              QT_TRANSLATE_NOOP("Command",
                                "Only a \";\" begins a comment. A line with \"#\" and \"=\" is "
                                "read as a key whose name begins with \"#\"."),
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\n#Author=Euler\n",
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\nAuthor=Euler\n" },
            { "comment", Severity::Off,
              QT_TRANSLATE_NOOP("Command", "A comment is gone when the file is saved"),
              QT_TRANSLATE_NOOP("Command",
                                "A save keeps what is read, and comments are not. Switch this on "
                                "for files that a program saves again."),
              "; Statics\n[KeltoItem]\nname=Beam\n", "[KeltoItem]\nname=Beam\n" },
            { "broken-header", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A header of a section is not whole"),
              QT_TRANSLATE_NOOP("Command",
                                "A header is a name in brackets and nothing else. Text behind it "
                                "is ignored, and so is a header without the first bracket."),
              "[KeltoItem] name=Beam\nname=Beam\n", "[KeltoItem]\nname=Beam\n" },
            { "empty-section", Severity::Off, QT_TRANSLATE_NOOP("Command", "A section has no keys"),
              QT_TRANSLATE_NOOP("Command",
                                "Nothing is wrong with it, but a save leaves the header out."),
              "[KeltoItem]\nname=Beam\n\n[Attribute]\n", "[KeltoItem]\nname=Beam\n" },
            { "unreadable-key", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A key cannot be read because of a \"/\""),
              QT_TRANSLATE_NOOP("Command",
                                "With a \"/\" in front, at the end or behind another one a key "
                                "has no value. Leave it out."),
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\n/Author=Euler\n",
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\nAuthor=Euler\n" },
            { "byte-order-mark", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A byte-order mark becomes part of a key"),
              QT_TRANSLATE_NOOP("Command",
                                "Some editors put these three bytes before the text. Only in "
                                "front of a header they do no harm. Save the file as UTF-8 "
                                "without a byte-order mark."),
              "\xef\xbb\xbf; Statics\n[KeltoItem]\nname=Beam\n", "[KeltoItem]\nname=Beam\n" },
            { "bad-escape", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A backslash is followed by nothing that it escapes"),
              QT_TRANSLATE_NOOP("Command",
                                "Backslash and letter are dropped. Write a backslash as two."),
              "[KeltoItem]\nname=Beam\nicon=C:\\icons\n",
              "[KeltoItem]\nname=Beam\nicon=C:/icons\n" },
            { "not-utf8", Severity::Error, QT_TRANSLATE_NOOP("Command", "Bytes are not UTF-8"),
              QT_TRANSLATE_NOOP("Command",
                                "Files are read in UTF-8, in which these bytes mean nothing. "
                                "Save the file in that encoding."),
              "[KeltoItem]\nname=Tr\xe4ger\n", "[KeltoItem]\nname=Träger\n" },
            { "stray-quote", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A quote inside of a text is dropped"),
              QT_TRANSLATE_NOOP("Command",
                                "Quotes belong around a whole text. A quote inside of it is "
                                "written as \\\"."),
              "[KeltoItem]\nname=Beam\ndescription=The \"slender\" beam\n",
              "[KeltoItem]\nname=Beam\ndescription=The slender beam\n" },
            { "unsaved-character", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "A character is gone when the file is saved"),
              QT_TRANSLATE_NOOP("Command",
                                "QSettings of Qt 5 reads characters such as emoji and does not "
                                "write them."),
              "[KeltoItem]\nname=Beam\ndescription=Bending \xf0\x9f\x93\x90\n",
              "[KeltoItem]\nname=Beam\ndescription=Bending\n" },
            { "damaged-value", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A value of another type than text is damaged"),
              QT_TRANSLATE_NOOP("Command",
                                "A value that begins with \"@Variant(\" and the like was written "
                                "by a program. What is left of it cannot be read. Write a text "
                                "that begins with \"@\" as \"@@\"."),
              "[KeltoItem]\nname=Beam\nlib_name=@Size(12 px)\n",
              "[KeltoItem]\nname=Beam\nlib_name=beam\n" },
            { "unsafe-value", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A value is unsafe to read"),
              QT_TRANSLATE_NOOP("Command",
                                "Its bytes could end the program, so that the library reads "
                                "nothing of the file. Remove the value."),
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\nTime=@DateTime(\\0\\0\\0V\\0)\n",
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\nTime=12:00\n" },
        },
        check,
        nullptr
    };
}
