// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Values that are read as something else than what stands there.

#include "command.h"
#include "core/settingstext_p.h"
#include "core/typedtext_p.h"
#include "lint/examples.h"
#include "lint/filefindings.h"
#include "lint/hintbars.h"
#include "lint/lintitem.h"
#include "lint/othercommas.h"
#include "lint/savedspelling.h"
#include "lint/speltvalue.h"

#include <algorithm>

namespace {

/// Whether QSettings makes something else than a text of @p element.
bool isTyped(const QString &element)
{
    static const QStringList openings {
        QStringLiteral("@ByteArray("), QStringLiteral("@String("),  QStringLiteral("@Variant("),
        QStringLiteral("@DateTime("),  QStringLiteral("@Rect("),    QStringLiteral("@Size("),
        QStringLiteral("@Point("),     QStringLiteral("@Invalid("),
    };
    return element.startsWith(QLatin1Char('@')) && element.endsWith(QLatin1Char(')'))
        && std::any_of(openings.cbegin(), openings.cend(),
                       [&element](const QString &opening) { return element.startsWith(opening); });
}

class ValueCheck
{
public:
    ValueCheck(const LintKey &key, const SavedSpelling &saved, const HintBars &bars,
               FileFindings *findings)
        : m_key(*key.key)
        , m_section(key.section)
        , m_kind(key.value)
        , m_raw(rawValueOf(findings->file(), m_key))
        , m_spelt(speltValueOf(m_raw))
        , m_saved(saved)
        , m_bars(bars)
        , m_findings(findings)
    {
    }

    void check()
    {
        checkSpelling();
        if (m_kind == ItemValue::Unknown || m_kind == ItemValue::Nothing)
            return;
        checkCommas();
        for (int i = 0; i < m_spelt.size(); ++i) {
            checkBlanks(i);
            if (m_kind != ItemValue::Extra)
                checkElement(m_spelt.at(i), m_key.value.value(i));
        }
    }

private:
    bool isOneText() const { return m_kind == ItemValue::Text || m_kind == ItemValue::Extra; }
    bool isOneValue() const
    {
        return isOneText() || m_kind == ItemValue::Number || m_kind == ItemValue::Flag;
    }
    bool isCut() const
    {
        const char *const end = m_raw.data() + m_raw.size();
        const QByteArray &bytes = m_findings->file().bytes();
        return end < bytes.constData() + bytes.size() && *end == ';';
    }

    void checkSpelling()
    {
        // The bytes of other types than text are written in escapes.
        const bool isBinary
            = std::any_of(m_key.value.cbegin(), m_key.value.cend(), [](const QString &element) {
                  return isTyped(element) || isUnsafe(element) || isDamaged(element);
              });
        const bool isMeant
            = !m_spelt.escapes.isEmpty() && (isBinary || m_saved.hasEscapesOf(m_key));
        for (const char *const place : isMeant ? QVector<const char *>() : m_spelt.escapes) {
            m_findings->add("unquoted-escape", place,
                            Command::tr("the backslash and what follows are read as another "
                                        "character; write a backslash as \\\\, or put quotes "
                                        "around the text where the other character is meant"));
        }
        for (const char *const place : qAsConst(m_spelt.joints)) {
            m_findings->add("joined-lines", place,
                            Command::tr("the backslash at the end of the line makes the next line "
                                        "a part of this value"));
        }
        for (const char *const place : qAsConst(m_spelt.longQuotes)) {
            m_findings->add("quote-across-lines", place,
                            Command::tr("the quote is not closed on this line, and all up to "
                                        "line %1 is read as a part of this value")
                                .arg(m_findings->lineOfEnd(m_key.speltValue)));
        }
    }

    void checkCommas()
    {
        if (!m_spelt.comma || !isOneValue())
            return;
        const auto isSpecial = [](char c) { return c == '"' || c == '\\'; };
        const bool isPlain = std::none_of(m_raw.cbegin(), m_raw.cend(), isSpecial) && !isCut();
        if (m_kind == ItemValue::Extra
            && m_bars.addMissing(m_key, m_spelt.comma, isPlain, m_findings))
            return;
        if (!isOneText() || m_section == QLatin1String("Multi")) {
            m_findings->add("split-text", m_spelt.comma,
                            Command::tr("the comma makes a list of the value, which is then not "
                                        "read; write one value"));
            return;
        }
        QVector<TextEdit> fix;
        if (isPlain && m_kind == ItemValue::Text && !isMeantOtherwise()) {
            const QByteArray text(m_key.speltValue.data(), int(m_key.speltValue.size()));
            fix = { m_findings->edit(m_key.speltValue, '"' + text + '"') };
        }
        m_findings->add("split-text", m_spelt.comma,
                        Command::tr("the comma makes a list of the text, which is then not read "
                                    "as a text; put quotes around it"),
                        fix);
    }

    /// Within quotes the text would hold single quotes that were to be its quotes, or be read as a
    /// value of another type.
    bool isMeantOtherwise() const
    {
        const char first = m_key.speltValue.front();
        return first == '\'' || first == '@';
    }

    void checkBlanks(int index)
    {
        const SpeltElement &element = m_spelt.at(index);
        if (element.hasQuotes)
            return;
        const bool isFirst = index == 0;
        const bool isLast = index == m_spelt.size() - 1;
        // One blank behind "=" or "," is a matter of taste.
        const int superfluous = element.beginsLine ? 0 : element.blanksBefore - 1;
        if (superfluous > 0 && (isFirst || !isOneValue()))
            addBlanks(element.text.data() - superfluous, superfluous,
                      Command::tr("white space in front of \"%1\" is dropped; put quotes around "
                                  "the text where it is meant")
                          .arg(m_key.value.value(index)));
        if (element.blanksBehind > 0 && (isLast ? !isCut() : !isOneValue()))
            addBlanks(element.text.data() + element.text.size(), element.blanksBehind,
                      Command::tr("white space behind \"%1\" is dropped; put quotes around the "
                                  "text where it is meant")
                          .arg(m_key.value.value(index)));
    }

    void addBlanks(const char *place, int count, const QString &text)
    {
        m_findings->add("dropped-white-space", place, text,
                        { m_findings->edit(textBetween(place, place + count), QByteArray()) });
    }

    void checkElement(const SpeltElement &element, const QString &text)
    {
        // So QSettings writes a list without elements.
        const bool isEmptyList
            = text == QLatin1String("@Invalid()") && !isOneText() && m_key.value.size() == 1;
        if (isTyped(text) && !isEmptyList && !isDamaged(text) && !isUnsafe(text)) {
            m_findings->add("typed-value", element.text.data(),
                            Command::tr("the text is read as a value of another type; write "
                                        "\"@@\" for \"@\" where a text is meant"));
        } else if (text.trimmed() != text && m_spelt.longQuotes.isEmpty() && !isNameOfMode()) {
            m_findings->add("white-space-at-ends", element.text.data(),
                            Command::tr("\"%1\" begins or ends with white space, which is a part "
                                        "of the text")
                                .arg(text));
        }
    }

    /// Of [Belong], where it is told when there is no such mode, and of the list of modes
    /// otherwise.
    bool isNameOfMode() const { return m_section == QLatin1String("Belong"); }

    const ItemFileKey &m_key;
    const QString m_section;
    const ItemValue m_kind;
    const std::string_view m_raw;
    const SpeltValue m_spelt;
    const SavedSpelling &m_saved;
    const HintBars &m_bars;
    FileFindings *const m_findings;
};

void checkDeclaration(const ItemFileKey &key, FileFindings *findings)
{
    if (!key.speltValue.empty()) {
        findings->add("ignored-value", key.valuePosition,
                      Command::tr("nothing behind the \"=\" is read here; a \"=\" in a key is "
                                  "written as %3D, and a default is the extra key \"Default.\" "
                                  "and the key"));
    }
}

bool isConverted(const LintKey &key)
{
    if (key.value != ItemValue::Units)
        return false;
    const QStringList units = LintItem::elements(key.key);
    return units.size() > 1 && units.constFirst() != units.constLast();
}

/// A module that converts other units most likely means to convert this one, too.
void checkUnits(const ItemFileKey &key, bool areOthersConverted, FileFindings *findings)
{
    const int count = LintItem::elements(&key).size();
    if (count > 2) {
        findings->add("unit-count", key.valuePosition,
                      Command::tr("a unit has two texts, and here are %1: the first and the last "
                                  "are read")
                          .arg(count));
    } else if (count == 1 && dividedAnyhow(key.value).size() == 2) {
        addOtherComma(key, findings);
    } else if (count == 1) {
        const QByteArray text(key.speltValue.data(), int(key.speltValue.size()));
        findings->add("single-unit", key.valuePosition,
                      Command::tr("a unit has two texts; the only one here is read as both"),
                      areOthersConverted ? QVector<TextEdit>()
                                         : QVector<TextEdit> {
                                             findings->edit(key.speltValue, text + ", " + text) });
    }
}

void checkMulti(const ItemFileKey &key, FileFindings *findings)
{
    if (key.value.size() != 1)
        return;
    const QString text = key.value.constFirst();
    const QString word = text.toLower();
    const bool isWord = word == QLatin1String("true") || word == QLatin1String("false");
    // An empty text is what a key that is missing is read as, too.
    if (text.isEmpty() || (isWord && text == word))
        return;
    findings->add("multi-word", key.valuePosition,
                  Command::tr("\"%1\" is neither \"true\" nor \"false\" and is ignored").arg(text),
                  isWord ? QVector<TextEdit> { findings->edit(key.speltValue, word.toUtf8()) }
                         : QVector<TextEdit>());
}

void checkFlag(const ItemFileKey &key, FileFindings *findings)
{
    static const QStringList words { QString(), QStringLiteral("true"), QStringLiteral("false"),
                                     QStringLiteral("1"), QStringLiteral("0") };
    if (key.value.size() == 1 && !words.contains(key.value.constFirst().toLower())) {
        findings->add("flag-word", key.valuePosition,
                      Command::tr("\"%1\" is neither \"true\" nor \"false\" and is read as true")
                          .arg(key.value.constFirst()));
    }
}

void checkNumber(const ItemFileKey &key, FileFindings *findings)
{
    bool isNumber = false;
    key.value.constFirst().toInt(&isNumber);
    if (key.value.size() == 1 && !isNumber) {
        findings->add(
            "no-number", key.valuePosition,
            Command::tr("\"%1\" is no whole number and is read as 0").arg(key.value.constFirst()));
    }
}

void check(const LintItem &item, Findings *findings)
{
    FileFindings added(item.file(), findings);
    const SavedSpelling saved(item.file());
    const HintBars bars(item.file());
    const bool areUnitsConverted
        = std::any_of(item.keys().cbegin(), item.keys().cend(), isConverted);
    for (const LintKey &key : item.keys()) {
        if (key.value == ItemValue::Nothing) {
            checkDeclaration(*key.key, &added);
            continue;
        }
        ValueCheck(key, saved, bars, &added).check();
        if (key.value == ItemValue::Units)
            checkUnits(*key.key, areUnitsConverted, &added);
        else if (key.value == ItemValue::Flag)
            checkFlag(*key.key, &added);
        else if (key.value == ItemValue::Number)
            checkNumber(*key.key, &added);
        else if (key.section == QLatin1String("Multi"))
            checkMulti(*key.key, &added);
    }
}

} // namespace

RuleArea valueRules()
{
    return {
        {
            { "split-text", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A text is split at a comma"),
              QT_TRANSLATE_NOOP(
                  "Command",
                  "Outside of quotes a comma makes a list of a value, and a list is "
                  "no text: it is read as an empty one. Put quotes around the text. The hints "
                  "\"Choices.\", \"When.\", \"Belong.\" and \"Order\" are lists that "
                  "\"|\" divides: write it in place of the commas."),
              "[KeltoItem]\nname=Beam\ndescription=Bending of a straight, slender beam\n",
              "[KeltoItem]\nname=Beam\ndescription=\"Bending of a straight, slender beam\"\n" },
            { "dropped-white-space", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "White space at the end of a text is dropped"),
              QT_TRANSLATE_NOOP("Command",
                                "Only inside of quotes it is part of the text. One blank behind "
                                "\"=\" or \",\" does not count."),
              "[KeltoItem]\nname=Beam \n", "[KeltoItem]\nname = Beam\n" },
            { "white-space-at-ends", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "A text begins or ends with white space"),
              QT_TRANSLATE_NOOP("Command",
                                "Nobody sees it, and the text is not equal to the same one "
                                "without it."),
              "[KeltoItem]\nname=\"Beam \"\n", "[KeltoItem]\nname=\"Beam\"\n" },
            { "unquoted-escape", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A backslash outside of quotes is an escape"),
              QT_TRANSLATE_NOOP("Command",
                                "\\n is a line break and \\t a tab, also in a path such as "
                                "C:\\new. Write a backslash as two; put quotes around a text in "
                                "which the escape is meant. A program that saves an item writes "
                                "no quotes around escapes: in files that are spelt throughout as "
                                "AUTH_INF::save_ini() spells them, only those in \"icon\" and "
                                "\"lib_name\" are found."),
              "[KeltoItem]\nname=Beam\nicon=C:\\beam.png\n",
              "[KeltoItem]\nname=Beam\nicon=C:/beam.png\n" },
            { "joined-lines", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A backslash joins two lines in the middle of a text"),
              QT_TRANSLATE_NOOP("Command",
                                "A backslash at the end of a line makes the next line a part of "
                                "the value. Behind a comma this is how long lists are written; "
                                "elsewhere the next key is lost."),
              "[KeltoItem]\nname=Beam\nicon=icons\\\ndescription=Bending\n",
              "[KeltoItem]\nname=Beam\nlib_name=beam,\\\nsolver\n" },
            { "quote-across-lines", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A quote is not closed on its line"),
              QT_TRANSLATE_NOOP("Command",
                                "All up to the next quote is read as one text, with the keys in "
                                "it. Close the quote; write a line break as \\n."),
              "[KeltoItem]\nname=Beam\ntype=calculation\n"
              "output_results=\"Deflection\nSlope\"\n\n[Result]\nDeflection=\n",
              "[KeltoItem]\nname=Beam\ntype=calculation\n"
              "output_results=\"Deflection\"\n\n[Result]\nDeflection=\n" },
            { "typed-value", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A text is read as a value of another type"),
              QT_TRANSLATE_NOOP("Command",
                                "\"@Point(1 2)\" and the like are no texts to QSettings. Write "
                                "\"@@\" for \"@\"."),
              "[KeltoItem]\nname=Beam\nicon=@Size(12 12)\n",
              "[KeltoItem]\nname=Beam\nicon=@@Size(12 12)\n" },
            { "ignored-value", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "The value of a parameter or a result is not read"),
              QT_TRANSLATE_NOOP("Command",
                                "Under [Attribute] and [Result] only the key counts. Either the "
                                "key has a \"=\" in it, which is written as %3D, or the value "
                                "belongs elsewhere: a default is the extra key \"Default.\" and "
                                "the key."),
              BEAM_ITEM "\n[Attribute]\nLength=1000\n\n[Belong]\nLength=Cantilever\n",
              BEAM_ITEM BEAM_PARAMETER "\n[ExtraKey]\nDefault.Length=1000\n" },
            { "unit-count", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A unit has more than two texts"),
              QT_TRANSLATE_NOOP("Command",
                                "A unit has the text in which values are entered, and the one in "
                                "which the module calculates. Of more texts the first and the "
                                "last are read. A comma in a unit needs quotes."),
              BEAM_ITEM BEAM_PARAMETER "\n[Unit]\nLength=mm, cm, m\n",
              BEAM_ITEM BEAM_PARAMETER "\n[Unit]\nLength=mm, m\n" },
            { "single-unit", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "A unit has only one text"),
              QT_TRANSLATE_NOOP("Command",
                                "It is read as both the text in which values are entered and the "
                                "one in which the module calculates. Write both."),
              BEAM_ITEM BEAM_FORCE "\n[Unit]\nForce=N\n",
              BEAM_ITEM BEAM_FORCE "\n[Unit]\nForce=N, N\n" },
            { "multi-word", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "\"Multi\" is neither true nor false"),
              QT_TRANSLATE_NOOP("Command",
                                "Only the words \"true\" and \"false\", spelt like this, say "
                                "whether a parameter takes several values."),
              BEAM_ITEM BEAM_FORCE "\n[Multi]\nForce=True\n",
              BEAM_ITEM BEAM_FORCE "\n[Multi]\nForce=true\n" },
            { "flag-word", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "\"exclusive_group\" is neither true nor false"),
              QT_TRANSLATE_NOOP("Command",
                                "Any word but \"false\" is read as true, \"no\" for example."),
              "[KeltoItem]\nname=Beam\ntype=calculation\nexclusive_group=no\n",
              "[KeltoItem]\nname=Beam\ntype=calculation\nexclusive_group=false\n" },
            { "no-number", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A value should be a whole number"),
              QT_TRANSLATE_NOOP("Command",
                                "\"number\" and \"inner_mode_count\" are whole numbers; "
                                "everything else is read as 0."),
              "[KeltoItem]\n"
              "number=first\nname=Beam\n",
              "[KeltoItem]\n"
              "number=1\nname=Beam\n" },
        },
        check,
        nullptr
    };
}
