// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Modes, parameters and results that are lost because parts of a file do not fit each other.

#include "command.h"
#include "lint/examples.h"
#include "lint/othercommas.h"
#include "lint/rules_places.h"
#include "nearestname.h"

#include <QSet>

#include <algorithm>

namespace {

QString attribute()
{
    return QStringLiteral("Attribute");
}

QString belong()
{
    return QStringLiteral("Belong");
}

QString result()
{
    return QStringLiteral("Result");
}

class StructureCheck
{
public:
    StructureCheck(const LintItem &item, FileFindings *findings)
        : m_findings(findings)
        , m_item(item)
        , m_modes(modesOf(m_item))
        , m_knownModes(m_modes.cbegin(), m_modes.cend())
        , m_nearestModes(m_modes)
        , m_parameters(m_item.namesIn(attribute()))
    {
        for (const QString &mode : m_modes)
            m_modesInSmallLetters.insert(mode.toLower(), mode);
    }

    void check()
    {
        checkName();
        if (m_modes.isEmpty() && !m_parameters.isEmpty())
            addMissingModes();
        else
            checkModeLists();
        checkResults();
    }

private:
    void checkModeLists()
    {
        checkModeCommas();
        checkModeCount();
        checkDescriptions();
        checkFlag();
        if (checkBelong())
            checkEmptyModes();
    }

    void checkName()
    {
        const ItemFileKey *const name = m_item.field("name");
        if (!name) {
            m_findings->add("missing-name",
                            sectionPosition(m_findings->file(), QStringLiteral("KeltoItem")),
                            Command::tr("the item has no name: [KeltoItem] has no key \"name\""));
        } else if (LintItem::elements(name).isEmpty()) {
            m_findings->add("missing-name", name->valuePosition,
                            Command::tr("the item has no name"));
        }
    }

    void checkModeCommas()
    {
        const ItemFileKey *const names = m_item.field("inner_mode_nameList");
        if (m_modes != LintItem::elements(names))
            addOtherComma(*names, m_findings);
    }

    void checkModeCount()
    {
        const ItemFileKey *const count = m_item.field("inner_mode_count");
        const ItemFileKey *const names = m_item.field("inner_mode_nameList");
        const QByteArray right = "inner_mode_count=" + QByteArray::number(m_modes.size());
        if (!count) {
            if (!m_modes.isEmpty()) {
                m_findings->add("mode-count", names->position,
                                Command::tr("\"inner_mode_count\" is missing, so that there is no "
                                            "mode; %1 have a name")
                                    .arg(m_modes.size()),
                                { m_findings->lineBehind(*names, right) });
            }
            return;
        }
        bool isNumber = false;
        const int number = count->value.constFirst().toInt(&isNumber);
        if (!isNumber || number == m_modes.size())
            return;
        // What fits the descriptions is right.
        const bool isCountRight = names && number == descriptions().size();
        m_findings->add("mode-count", isCountRight ? names->valuePosition : count->valuePosition,
                        textOnCount(number).arg(number).arg(m_modes.size()));
    }

    /// Only commas make more names than there are modes.
    QString textOnCount(int number) const
    {
        if (number < 0 || number > m_modes.size())
            return Command::tr("\"inner_mode_count\" is %1, and \"inner_mode_nameList\" has %2");
        if (m_knownModes.contains(QString()))
            return Command::tr("\"inner_mode_count\" is %1, and \"inner_mode_nameList\" has %2; a "
                               "superfluous comma makes an empty name");
        return Command::tr("\"inner_mode_count\" is %1, and \"inner_mode_nameList\" has %2; a name "
                           "with a comma needs quotes");
    }

    QStringList descriptions() const
    {
        return LintItem::elements(m_item.field("inner_mode_description"));
    }

    void checkDescriptions()
    {
        const ItemFileKey *const key = m_item.field("inner_mode_description");
        const ItemFileKey *const count = m_item.field("inner_mode_count");
        const int size = descriptions().size();
        if (size == 0 || size == m_modes.size()
            || (count && count->value.constFirst() == QString::number(size)))
            return;
        const QString text = size > m_modes.size()
            ? Command::tr(
                "there are %1 descriptions for %2 modes; a description with a comma needs "
                "quotes")
            : Command::tr("there are %1 descriptions for %2 modes");
        m_findings->add("list-length", key->valuePosition, text.arg(size).arg(m_modes.size()));
    }

    void checkFlag()
    {
        const ItemFileKey *const flag = m_item.field("exclusive_group");
        if (!m_modes.isEmpty() && (!flag || flag->value == QStringList(QString()))) {
            m_findings->add("missing-exclusive-group",
                            m_item.field("inner_mode_nameList")->position,
                            Command::tr("modes are listed, and \"exclusive_group\" does not say "
                                        "whether one of them is selected at a time"));
        }
    }

    void addMissingModes()
    {
        m_findings->add("missing-modes",
                        m_item.find(attribute(), m_parameters.constFirst())->position,
                        Command::tr("there are parameters, but \"inner_mode_nameList\" names no "
                                    "mode to which they belong"));
    }

    /// Whether every parameter belongs to modes that there are.
    bool checkBelong()
    {
        bool isRight = true;
        const QSet<QString> meant = misspeltParameters();
        for (const QString &name : m_parameters) {
            const ItemFileKey *const key = m_item.find(belong(), name);
            const QStringList modes = LintItem::elements(key);
            if (!modes.isEmpty()) {
                isRight = checkModes(*key, modes) && isRight;
                continue;
            }
            isRight = false;
            if (name.contains(QLatin1Char('/')) || name.isEmpty() || meant.contains(name)
                || isMeantAsComment(name))
                continue;
            const ItemFileKey &parameter = *m_item.find(attribute(), name);
            m_findings->add("missing-belong", key ? key->position : parameter.position,
                            Command::tr("the parameter \"%1\" belongs to no mode; [Belong] has to "
                                        "name the modes that take it")
                                .arg(name));
        }
        return isRight;
    }

    /// The parameters that keys of [Belong] mean which belong to none.
    QSet<QString> misspeltParameters() const
    {
        QSet<QString> meant;
        const QStringList names = m_item.namesIn(belong());
        const NearestNames parameters(m_parameters);
        for (const QString &name : names) {
            if (!m_item.find(attribute(), name))
                meant.insert(parameters.nearest(name));
        }
        return meant;
    }

    bool checkModes(const ItemFileKey &key, const QStringList &modes)
    {
        const bool isUnknown
            = std::any_of(modes.cbegin(), modes.cend(),
                          [this](const QString &mode) { return !m_knownModes.contains(mode); });
        const QStringList parts = isUnknown ? dividedAnyhow(modes) : modes;
        const auto known = std::count_if(parts.cbegin(), parts.cend(), [this](const QString &part) {
            return m_knownModes.contains(part);
        });
        if (parts.size() == modes.size() || known == 0)
            return checkElements(key, modes);
        addOtherComma(key, m_findings);
        return checkElements(key, parts);
    }

    bool checkElements(const ItemFileKey &key, const QStringList &modes)
    {
        QVector<int> unknown;
        for (int i = 0; i < modes.size(); ++i) {
            if (m_knownModes.contains(modes.at(i)))
                m_used.insert(modes.at(i));
            else
                unknown.append(i);
        }
        if (!unknown.isEmpty())
            addUnknownModes(key, modes, unknown);
        return unknown.isEmpty();
    }

    void addUnknownModes(const ItemFileKey &key, const QStringList &modes,
                         const QVector<int> &unknown)
    {
        const SpeltValue spelt = speltValueOf(rawValueOf(m_findings->file(), key));
        for (const int i : unknown) {
            const QString meant = m_nearestModes.nearest(modes.at(i));
            // White space at the ends of a name is a mistake itself.
            const QString nearest = meant == meant.trimmed() ? didYouMean(meant) : QString();
            const QString text = modes.at(i).isEmpty()
                ? Command::tr("a superfluous comma makes an empty name.")
                : Command::tr("there is no mode \"%1\".").arg(modes.at(i));
            const std::string_view place = spelt.at(qMin(i, spelt.size() - 1)).text;
            m_findings->add("unknown-mode", place.data(),
                            nearest.isEmpty() ? text.chopped(1) : text + nearest,
                            i < spelt.size() ? fixOfMode(modes.at(i), place) : QVector<TextEdit>());
        }
    }

    /// Another spelling of one mode only, as far as it is not in quotes.
    QVector<TextEdit> fixOfMode(const QString &mode, std::string_view text) const
    {
        const QStringList alike = m_modesInSmallLetters.values(mode.toLower());
        if (alike.size() != 1 || QByteArray(text.data(), int(text.size())) != mode.toUtf8())
            return {};
        return { m_findings->edit(text, alike.constFirst().toUtf8()) };
    }

    void checkEmptyModes()
    {
        // The module that records the version of a program takes no parameters.
        if (m_parameters.isEmpty()
            && LintItem::elements(m_item.field("name")) == QStringList(QStringLiteral("Update")))
            return;
        if (m_modes.isEmpty())
            return;
        QVector<int> unused;
        for (int i = 0; i < m_modes.size(); ++i) {
            if (!m_used.contains(m_modes.at(i)))
                unused.append(i);
        }
        // Parts of names with a comma, which the count tells.
        const ItemFileKey *const count = m_item.field("inner_mode_count");
        const int meant = count ? count->value.constFirst().toInt() : 0;
        if (meant > 0 && unused.size() <= m_modes.size() - meant)
            return;
        const ItemFileKey &names = *m_item.field("inner_mode_nameList");
        const SpeltValue spelt = speltValueOf(rawValueOf(m_findings->file(), names));
        for (const int i : unused) {
            m_findings->add("mode-without-parameters",
                            spelt.at(qMin(i, spelt.size() - 1)).text.data(),
                            Command::tr("no parameter belongs to the mode \"%1\", and values for "
                                        "it are never complete")
                                .arg(m_modes.at(i)));
        }
    }

    void checkResults()
    {
        const QStringList names = m_item.namesIn(result());
        const ItemFileKey *const key = m_item.field("output_results");
        const int count = key && key->value != QStringList(QStringLiteral("@Invalid()"))
            ? key->value.size()
            : 0;
        if (count == names.size() || (names.isEmpty() && LintItem::elements(key).isEmpty()))
            return;
        if (key && dividedAnyhow(key->value).size() == names.size()) {
            addOtherComma(*key, m_findings);
            return;
        }
        if (key) {
            m_findings->add("results-not-read", key->valuePosition,
                            Command::tr("\"output_results\" has %1, and there are %2 under "
                                        "[Result]; as many are read as it has")
                                .arg(count)
                                .arg(names.size()));
            return;
        }
        m_findings->add("results-not-read", m_item.find(result(), names.constFirst())->position,
                        Command::tr("no result is read, since \"output_results\" is missing under "
                                    "[KeltoItem]"),
                        fixOfResults(names));
    }

    QVector<TextEdit> fixOfResults(const QStringList &names) const
    {
        const ItemFileKey *last = nullptr;
        for (const ItemFileKey &key : m_findings->file().keys()) {
            if (key.section == QLatin1String("KeltoItem"))
                last = &key;
        }
        const auto isSimple = [](const QString &name) {
            return std::all_of(name.cbegin(), name.cend(), [](QChar c) {
                return c.unicode() >= ' ' && c.unicode() < 0x7f
                    && !QStringLiteral("\\\",;=@%/").contains(c);
            });
        };
        if (!last || !std::all_of(names.cbegin(), names.cend(), isSimple))
            return {};
        return { m_findings->lineBehind(*last,
                                        "output_results="
                                            + names.join(QStringLiteral(", ")).toUtf8()) };
    }

    FileFindings *const m_findings;
    const LintItem &m_item;
    const QStringList m_modes;
    const QSet<QString> m_knownModes;
    const NearestNames m_nearestModes;
    QMultiHash<QString, QString> m_modesInSmallLetters;
    const QStringList m_parameters;
    QSet<QString> m_used;
};

void check(const LintItem &item, Findings *findings)
{
    FileFindings added(item.file(), findings);
    StructureCheck(item, &added).check();
}

} // namespace

// An item with two modes, as far as the modes of its parameter.
#define TWO_MODES                                                                                  \
    "[KeltoItem]\nname=Beam\ntype=calculation\nexclusive_group=true\ninner_mode_count=2\n"         \
    "inner_mode_nameList=Cantilever, Fixed\n\n[Attribute]\nLength=\n\n"

RuleArea structureRules()
{
    return {
        {
            { "missing-name", Severity::Error, QT_TRANSLATE_NOOP("Command", "The item has no name"),
              QT_TRANSLATE_NOOP("Command",
                                "By its name a module is found. A file without one, or without "
                                "the section KeltoItem, gives a module that nobody can name."),
              "[KeltoItem]\ngroup=Statics\n", "[KeltoItem]\nname=Beam\ngroup=Statics\n" },
            { "mode-count", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "\"inner_mode_count\" is not the number of modes"),
              QT_TRANSLATE_NOOP("Command",
                                "The number decides how many modes there are, whatever the list "
                                "of names says. Where it is missing there are none. A name with "
                                "a comma in it needs quotes."),
              "[KeltoItem]\nname=Beam\ntype=calculation\nexclusive_group=true\ninner_mode_count=1\n"
              "inner_mode_nameList=Cantilever, Fixed\n\n[Attribute]\nLength=\n\n"
              "[Belong]\nLength=Cantilever, Fixed\n",
              TWO_MODES "[Belong]\nLength=Cantilever, Fixed\n" },
            { "other-comma", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A list is divided by another character than a comma"),
              QT_TRANSLATE_NOOP("Command",
                                "Only the comma of ASCII outside of quotes divides a list. With a "
                                "full-width one, a "
                                "\"|\" or the like the whole list is one name, which nothing has."),
              TWO_MODES "[Belong]\nLength=Cantilever，Fixed\n",
              TWO_MODES "[Belong]\nLength=Cantilever, Fixed\n" },
            { "list-length", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "There are more or fewer descriptions than modes"),
              QT_TRANSLATE_NOOP("Command",
                                "\"inner_mode_description\" has one text for each mode. A text "
                                "with a comma in it needs quotes."),
              BEAM_ITEM "inner_mode_description=Clamped at the left, free at the right\n\n"
                        "[Attribute]\nLength=\n\n[Belong]\nLength=Cantilever\n",
              BEAM_ITEM "inner_mode_description=\"Clamped at the left, free at the right\"\n\n"
                        "[Attribute]\nLength=\n\n[Belong]\nLength=Cantilever\n" },
            { "missing-exclusive-group", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "\"exclusive_group\" is missing"),
              QT_TRANSLATE_NOOP("Command",
                                "Without it the modes of the module can be selected only if "
                                "another module makes an exclusive group of their group. Say "
                                "\"true\" or \"false\"."),
              "[KeltoItem]\nname=Beam\ntype=calculation\ninner_mode_count=1\ninner_mode_nameList="
              "Cantilever\n\n"
              "[Attribute]\nLength=\n\n[Belong]\nLength=Cantilever\n",
              BEAM_ITEM BEAM_PARAMETER },
            { "missing-modes", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "There are parameters and no modes"),
              QT_TRANSLATE_NOOP("Command",
                                "Parameters belong to modes. List the names of the modes in "
                                "\"inner_mode_nameList\"."),
              "[KeltoItem]\nname=Beam\ntype=calculation\n\n[Attribute]\nLength=\n\n[Belong]"
              "\nLength=Cantilever\n",
              BEAM_ITEM BEAM_PARAMETER },
            { "missing-belong", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A parameter belongs to no mode"),
              QT_TRANSLATE_NOOP("Command",
                                "\"Belong\" names the modes that take a parameter. Without it the "
                                "parameter is in none of them."),
              BEAM_ITEM BEAM_ATTRIBUTE, BEAM_ITEM BEAM_PARAMETER },
            { "unknown-mode", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "\"Belong\" names a mode that there is not"),
              QT_TRANSLATE_NOOP("Command",
                                "Names of modes are compared with case. The parameter is missing "
                                "in the mode that was meant, and the check of entered values does "
                                "not ask for it."),
              BEAM_ITEM BEAM_ATTRIBUTE "\n[Belong]\nLength=Cantlever\n", BEAM_ITEM BEAM_PARAMETER },
            { "mode-without-parameters", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "No parameter belongs to a mode"),
              QT_TRANSLATE_NOOP("Command",
                                "Entered values are never complete for such a mode. Only the "
                                "module \"Update\" needs none."),
              TWO_MODES "[Belong]\nLength=Cantilever\n",
              TWO_MODES "[Belong]\nLength=Cantilever, Fixed\n" },
            { "results-not-read", Severity::Error,
              QT_TRANSLATE_NOOP("Command",
                                "\"output_results\" is not as long as there are results"),
              QT_TRANSLATE_NOOP("Command",
                                "As many results are read as \"output_results\" has elements, in "
                                "the order of their keys; without it none. A save does not write "
                                "it."),
              "[KeltoItem]\nname=Beam\ntype=calculation\n\n[Result]\nDeflection=\n",
              "[KeltoItem]\nname=Beam\ntype=calculation\noutput_results=Deflection\n\n[Result]"
              "\nDeflection=\n" },
        },
        check,
        nullptr
    };
}
