// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Sections and keys that nobody looks up, or that are read as others.

#include "command.h"
#include "lint/examples.h"
#include "lint/filefindings.h"
#include "lint/keyspelling.h"
#include "lint/lintitem.h"
#include "nearestname.h"

#include <QSet>

#include <algorithm>
#include <iterator>

namespace {

/// Names that differ in the case of their letters only are one to whoever writes them.
bool areAlike(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

// --- Sections ----------------------------------------------------------------------

/// The names of the sections, each once, by their small letters.
QMultiHash<QString, QString> sectionSpellings(const ItemFile &file)
{
    QSet<QString> names;
    for (const ItemFileSection &section : file.sections())
        names.insert(section.name);
    QMultiHash<QString, QString> spellings;
    for (const QString &name : qAsConst(names))
        spellings.insert(name.toLower(), name);
    return spellings;
}

void checkSections(const LintItem &item, FileFindings *findings)
{
    const ItemFile &file = findings->file();
    const auto spellings = sectionSpellings(file);
    for (const ItemFileSection &section : file.sections()) {
        if (knownSections().contains(section.name)
            || areAlike(section.name, QStringLiteral("General")))
            continue;
        const QString nearest = item.meantSection(section.name);
        const QString text
            = Command::tr("nothing is read from the section \"%1\".").arg(section.name);
        if (nearest.isEmpty()) {
            findings->add("unknown-section", section.position, text.chopped(1));
            continue;
        }
        // Of several that would become one, which other text comes before which is not known.
        const bool isClear
            = areAlike(nearest, section.name) && spellings.count(nearest.toLower()) == 1;
        findings->add("misspelt-section", section.position, text + didYouMean(nearest),
                      isClear
                          ? QVector<TextEdit> { findings->edit(section.spelt, nearest.toUtf8()) }
                          : QVector<TextEdit>());
    }
}

// --- What keys are for -------------------------------------------------------------

void checkField(const LintItem &item, const ItemFileKey &key, FileFindings *findings)
{
    if (knownFields().contains(key.name) || key.name.isEmpty() || isMeantAsComment(key.name))
        return;
    if (isTranslatedField(key.name)) {
        findings->add("translated-field", key.position,
                      Command::tr("\"%1\" is not read: texts of files are translated by "
                                  "KeltoItemTranslation, in the context \"Tr_ObjectName\"")
                          .arg(key.name));
        return;
    }
    const QString nearest = nearestName(key.name, knownFields());
    const QString text = Command::tr("nothing reads the key \"%1\".").arg(key.name);
    if (nearest.isEmpty()) {
        findings->add("unknown-key", key.position, text.chopped(1));
        return;
    }
    const auto isAnother = [&](const LintKey &each) {
        return each.section == knownSections().constFirst() && areAlike(each.key->name, nearest)
            && each.key->name != key.name;
    };
    const bool isClear = areAlike(nearest, key.name)
        && item.field(nearest.toLatin1().constData()) == &key
        && std::none_of(item.keys().cbegin(), item.keys().cend(), isAnother);
    findings->add("misspelt-key", key.position, text + didYouMean(key.name, knownFields()),
                  isClear ? QVector<TextEdit> { findings->edit(key.spelt, nearest.toUtf8()) }
                          : QVector<TextEdit>());
}

/// Keys that describe a parameter or a result, where neither has that key.
class UndeclaredKeys
{
public:
    explicit UndeclaredKeys(const LintItem &item)
        : m_parameters(declaredIn(item, QStringLiteral("Attribute")))
        , m_all(m_parameters.names() + declaredIn(item, QStringLiteral("Result")))
        , m_knownParameters(m_parameters.names().cbegin(), m_parameters.names().cend())
        , m_known(m_all.names().cbegin(), m_all.names().cend())
        , m_explained(explainedIn(item))
    {
    }

    void check(const LintKey &key, FileFindings *findings)
    {
        const QString &name = key.name;
        if (!describingSections().contains(key.section) || name.isEmpty() || isBrokenKey(*key.key)
            || name.contains(QLatin1Char('/')) || isMeantAsComment(name))
            return;
        const bool isForParameters = key.section == describingSections().constFirst();
        if ((isForParameters ? m_knownParameters : m_known).contains(name))
            return;
        if (m_explained.contains(name) && m_reported.contains(name))
            return;
        m_reported.insert(name);
        const QString text = isForParameters
            ? Command::tr("there is no parameter \"%1\".")
            : Command::tr("there is neither a parameter nor a result \"%1\".");
        const NearestNames &candidates = isForParameters ? m_parameters : m_all;
        const QString meant = candidates.nearest(name);
        const QString nearest = isMeantAsComment(meant) ? QString() : didYouMean(meant);
        findings->add("undeclared-key", key.key->position,
                      nearest.isEmpty() ? text.arg(name).chopped(1) : text.arg(name) + nearest);
    }

private:
    /// The names whose declaration is there, and another finding says why it is not read.
    static QSet<QString> explainedIn(const LintItem &item)
    {
        QSet<QString> names;
        for (const LintKey &key : item.keys()) {
            if (key.key->section.isEmpty() || !knownSections().contains(key.section))
                names.insert(key.key->name);
            const QStringList parts = key.key->name.split(QLatin1Char('/'));
            if (parts.size() > 1)
                names += QSet<QString>(parts.cbegin(), parts.cend());
        }
        IniReader reader(item.file().bytes());
        while (reader.next()) {
            const std::string_view text = reader.line().text;
            if (reader.line().kind == IniLine::Other)
                names.insert(SettingsKey { {}, text }.text().trimmed());
        }
        return names;
    }

    /// Of a key with a "/" the last part is what is looked up.
    static QStringList declaredIn(const LintItem &item, const QString &section)
    {
        QStringList names = item.namesIn(section);
        for (QString &name : names)
            name = name.mid(name.lastIndexOf(QLatin1Char('/')) + 1);
        return names;
    }

    const NearestNames m_parameters;
    const NearestNames m_all;
    const QSet<QString> m_knownParameters;
    const QSet<QString> m_known;
    const QSet<QString> m_explained;
    QSet<QString> m_reported;
};

// --- Keys that are given twice -----------------------------------------------------

bool isBoth(const LintItem &item, const LintKey &key)
{
    return key.section != describingSections().constFirst()
        && describingSections().contains(key.section)
        && item.find(QStringLiteral("Attribute"), key.name)
        && item.find(QStringLiteral("Result"), key.name);
}

void addDuplicate(const LintItem &item, const LintKey &key, const ItemFileKey &first,
                  FileFindings *findings)
{
    const ItemFileKey &again = *key.key;
    const QString line = QString::number(first.position.line);
    if (first.value == again.value) {
        findings->add("repeated-key", again.position,
                      Command::tr("\"%1\" stands in line %2, too, with the same value")
                          .arg(again.name, line));
    } else if (isBoth(item, key)) {
        findings->add("parameter-and-result", again.position,
                      Command::tr("\"%1\" is a parameter and a result and is described in line %2 "
                                  "in another way; only one description is read, for both")
                          .arg(again.name, line));
    } else {
        findings->add("duplicate-key", again.position,
                      Command::tr("\"%1\" stands in line %2, too, with another value; only one "
                                  "of them is read")
                          .arg(again.name, line));
    }
}

void checkDuplicates(const LintItem &item, FileFindings *findings)
{
    if (!item.file().hasDuplicates())
        return;
    QHash<QString, const ItemFileKey *> firsts;
    for (const LintKey &key : item.keys()) {
        const QString name = key.key->section + QLatin1Char('/') + key.key->name;
        const ItemFileKey *&first = firsts[name];
        if (first)
            addDuplicate(item, key, *first, findings);
        else
            first = key.key;
    }
}

// --- Keys outside of sections ------------------------------------------------------

/// Keys in a row miss one header.
void checkOutside(const LintItem &item, FileFindings *findings)
{
    const auto isOutside = [](const LintKey &key) { return key.key->section.isEmpty(); };
    const auto end = item.keys().cend();
    auto first = std::find_if(item.keys().cbegin(), end, isOutside);
    while (first != end) {
        const auto behind = std::find_if_not(first, end, isOutside);
        const int lastLine = std::prev(behind)->key->position.line;
        const QString text = behind - first == 1
            ? Command::tr("the key stands in no section and is not read")
            : Command::tr("the keys up to line %1 stand in no section and are not read")
                  .arg(lastLine);
        findings->add("key-outside-section", first->key->position, text);
        first = std::find_if(behind, end, isOutside);
    }
}

void check(const LintItem &item, Findings *findings)
{
    FileFindings added(item.file(), findings);
    UndeclaredKeys undeclared(item);
    KeySpelling spelling(&added);
    checkSections(item, &added);
    checkOutside(item, &added);
    for (const LintKey &key : item.keys()) {
        if (key.key->section.isEmpty() || key.section.isEmpty())
            continue;
        spelling.check(*key.key);
        undeclared.check(key, &added);
        if (key.section == knownSections().constFirst())
            checkField(item, *key.key, &added);
    }
    checkDuplicates(item, &added);
}

} // namespace

RuleArea keyRules()
{
    return {
        {
            { "misspelt-section", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "The name of a section is misspelt"),
              QT_TRANSLATE_NOOP("Command",
                                "Names of sections are compared with case. Nothing is read from a "
                                "section with another name."),
              "[Keltoitem]\nname=Beam\n", "[KeltoItem]\nname=Beam\n" },
            { "unknown-section", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "A section is none of a module item"),
              QT_TRANSLATE_NOOP("Command",
                                "Nothing is read from it. What a host wants to know of a module "
                                "belongs into the section ExtraKey."),
              "[KeltoItem]\nname=Beam\n\n[Window]\nWidth=800\n",
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\nWindow width=800\n" },
            { "key-outside-section", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A key stands in no section"),
              QT_TRANSLATE_NOOP("Command",
                                "Keys before the first header, and those in [General], are not "
                                "read."),
              "icon=beam.png\n\n[KeltoItem]\nname=Beam\n",
              "[KeltoItem]\nicon=beam.png\nname=Beam\n" },
            { "misspelt-key", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "The name of a field is misspelt"),
              QT_TRANSLATE_NOOP("Command",
                                "Keys are compared with case. Nothing reads a key of another "
                                "name."),
              "[KeltoItem]\nname=Beam\nDescription=Bending\n",
              "[KeltoItem]\nname=Beam\ndescription=Bending\n" },
            { "unknown-key", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "A key of the section KeltoItem is no field"),
              QT_TRANSLATE_NOOP("Command",
                                "Nothing reads it. What a host wants to know of a module belongs "
                                "into the section ExtraKey."),
              "[KeltoItem]\nname=Beam\nauthor=Euler\n",
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\nauthor=Euler\n" },
            { "translated-field", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A file carries no translated texts"),
              QT_TRANSLATE_NOOP("Command",
                                "name_tr and its like are not read: they become copies of the "
                                "plain texts. KeltoItemTranslation translates an item that was "
                                "read, in the context that \"Tr_ObjectName\" names."),
              "[KeltoItem]\nname=Beam\nname_tr=Balken\n",
              "[KeltoItem]\nname=Beam\nTr_ObjectName=ModuleTexts\n" },
            { "undeclared-key", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A description belongs to no parameter or result"),
              QT_TRANSLATE_NOOP("Command",
                                "What describes a key is read only where the same key, with "
                                "case, stands under [Attribute] or [Result]; \"Belong\" is for "
                                "parameters only."),
              "[KeltoItem]\nname=Pump\ntype=calculation\nexclusive_group=true\ninner_mode_count=1\n"
              "inner_mode_nameList=Design\n\n[Attribute]\nStatic Head=\n\n"
              "[Belong]\nStatic Head=Design\n\n[Unit]\nStatic head=m, m\n",
              "[KeltoItem]\nname=Pump\ntype=calculation\nexclusive_group=true\ninner_mode_count=1\n"
              "inner_mode_nameList=Design\n\n[Attribute]\nStatic head=\n\n"
              "[Belong]\nStatic head=Design\n\n[Unit]\nStatic head=m, m\n" },
            { "nameless-key", Severity::Error, QT_TRANSLATE_NOOP("Command", "A key has no name"),
              QT_TRANSLATE_NOOP("Command", "Before the \"=\" stands a key."),
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\n=Euler\n",
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\nAuthor=Euler\n" },
            { "non-ascii-key", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A key holds letters that are not ASCII"),
              QT_TRANSLATE_NOOP("Command",
                                "Keys, unlike values, are not read in UTF-8: each byte becomes a "
                                "letter. QSettings writes a letter that is not ASCII as %U and "
                                "four hexadecimal digits, or as % and two."),
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\n作者=Euler\n",
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\n%U4F5C%U8005=Euler\n" },
            { "escape-in-key", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A \"%\" in a key is read as an escape"),
              QT_TRANSLATE_NOOP("Command",
                                "% and two hexadecimal digits stand for one character in a key. "
                                "A \"%\" before digits or letters is written as %25."),
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\nSteel%50=yes\n",
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\nSteel%2550=yes\n" },
            { "quote-in-key", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A quote in a key swallows the next lines"),
              QT_TRANSLATE_NOOP("Command",
                                "All up to the next quote belongs to the key. A quote in a key is "
                                "written as %22."),
              BEAM_ITEM BEAM_PARAMETER "\n[Symbol]\nLength=L\nPipe 5\"=d\nPipe 6\"=D\n",
              BEAM_ITEM BEAM_PARAMETER "\n[Symbol]\nLength=L\n" },
            { "slash-in-key", Severity::Error, QT_TRANSLATE_NOOP("Command", "A key holds a \"/\""),
              QT_TRANSLATE_NOOP("Command",
                                "Of such a key only the last part is read, and what describes it "
                                "is looked up under that. Backslashes are read as \"/\"."),
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\nPrice/m=12\n",
              "[KeltoItem]\nname=Beam\n\n[ExtraKey]\nPrice per m=12\n" },
            { "duplicate-key", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A key is given twice, with different values"),
              QT_TRANSLATE_NOOP("Command", "Only one of them is read. Remove the other."),
              "[KeltoItem]\nname=Beam\ngroup=Statics\ngroup=Beams\n",
              "[KeltoItem]\nname=Beam\ngroup=Statics\n" },
            { "repeated-key", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "A key is given twice, with the same value"),
              QT_TRANSLATE_NOOP("Command",
                                "Nothing is lost yet, but only one of them counts when somebody "
                                "changes the other."),
              "[KeltoItem]\nname=Beam\ngroup=Statics\ngroup=Statics\n",
              "[KeltoItem]\nname=Beam\ngroup=Statics\n" },
            { "parameter-and-result", Severity::Error,
              QT_TRANSLATE_NOOP("Command",
                                "A parameter and a result of one key are described differently"),
              QT_TRANSLATE_NOOP("Command",
                                "Both are described by the same keys, of which only one counts. "
                                "Give them different keys, or one description."),
              BEAM_ITEM
              "output_results=Load\n\n[Attribute]\nLoad=\n\n"
              "[Belong]\nLoad=Cantilever\n\n[Result]\nLoad=\n\n[Symbol]\nLoad=F\nLoad=Fmax\n",
              BEAM_ITEM
              "output_results=Largest load\n\n"
              "[Attribute]\nLoad=\n\n[Belong]\nLoad=Cantilever\n\n[Result]\nLargest load=\n\n"
              "[Symbol]\nLoad=F\nLargest load=Fmax\n" },
        },
        check,
        nullptr
    };
}
