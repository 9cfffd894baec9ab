// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Names of one item that cannot be told apart, or mean more than was meant.

#include "command.h"
#include "core/similarnames_p.h"
#include "lint/rules_places.h"

#include <KeltoItemHints>
#include <KeltoParameterEntry>
#include <VParameter>

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

/// What VParameter::isName() leaves of a name, to find those that it can take for each other.
QString looseName(QString name)
{
    name.remove(QLatin1Char(' ')).remove(QLatin1Char('_')).remove(QLatin1Char('-'));
    return name.toLower();
}

/// Pairs of entries of one list of which the names are equal to a search by name. Equal keys are
/// not among them: a file cannot hold them.
class LikeNames
{
public:
    explicit LikeNames(const ItemFile &file, Findings *findings)
        : m_file(file)
        , m_findings(findings)
    {
    }

    void look(const QString &section, const QVector<QStringList> &entries)
    {
        QHash<QString, QString> firsts;
        for (const QStringList &entry : entries) {
            const QString key = entry.value(KeltoParameterEntry::Key);
            QString &loose = m_looseNames[key];
            if (loose.isNull())
                loose = looseName(key);
            const QString first = firsts.value(loose, key);
            firsts.insert(loose, first);
            if (first != key && VParameter(entry).isName(first))
                report(section, first, key);
        }
    }

private:
    void report(const QString &section, const QString &first, const QString &key)
    {
        if (m_reported.contains({ section, key }))
            return;
        m_reported.insert({ section, key });
        FileFindings(m_file, m_findings)
            .add("like-names", keyPosition(m_file, section, key),
                 Command::tr("\"%1\" is the same name as \"%2\" to a search by name")
                     .arg(key, first));
    }

    const ItemFile &m_file;
    Findings *const m_findings;
    QHash<QString, QString> m_looseNames; ///< By key, since most keys are in several modes.
    QSet<QPair<QString, QString>> m_reported;
};

QVector<QStringList> entriesOf(const QVector<VParameter> &parameters)
{
    QVector<QStringList> entries;
    for (const VParameter &parameter : parameters)
        entries.append(parameter.toSetsForm());
    return entries;
}

void findLikeNames(const ItemFile &file, Findings *findings)
{
    const AUTH_INF &item = file.item();
    LikeNames names(file, findings);
    for (const QVector<QStringList> &entries : item.inner_mode_parameterList)
        names.look(QStringLiteral("Attribute"), entries);
    Findings possible;
    LikeNames(file, &possible).look(QStringLiteral("Result"), item.output_results);
    const auto isOfModes
        = [](const VDataItem &extra) { return extra.key.startsWith(QLatin1String("Belong.")); };
    if (!std::any_of(item.extraKey.cbegin(), item.extraKey.cend(), isOfModes)) {
        *findings += possible;
        return;
    }
    if (possible.isEmpty())
        return;
    // Results can belong to some of the modes only.
    for (const QString &mode : item.inner_mode_nameList)
        names.look(QStringLiteral("Result"), entriesOf(KeltoItemHints(item, mode).results()));
}

void findLikeModes(const ItemFile &file, Findings *findings)
{
    QHash<QString, QString> firsts;
    const QStringList modes = file.item().inner_mode_nameList;
    const ModePositions positions(file);
    for (int i = 0; i < modes.size(); ++i) {
        const QString &mode = modes.at(i);
        const QString name = comparableName(mode);
        const QString first = firsts.value(name, mode);
        firsts.insert(name, first);
        if (first != mode) {
            FileFindings(file, findings)
                .add("like-modes", positions.at(i),
                     Command::tr("the inner modes \"%1\" and \"%2\" differ only in case or white "
                                 "space")
                         .arg(first, mode));
        }
    }
}

void findColons(const ItemFile &file, Findings *findings)
{
    const auto look = [&](const QString &name, IniPosition position, const QString &text) {
        if (name.contains(QLatin1Char(':')))
            FileFindings(file, findings).add("colon-in-name", position, text.arg(name));
    };
    const AUTH_INF &item = file.item();
    look(item.name, fieldPosition(file, "name"),
         Command::tr("the name \"%1\" of the module holds a \":\""));
    look(item.group, fieldPosition(file, "group"),
         Command::tr("the name \"%1\" of the group holds a \":\""));
    const ModePositions positions(file);
    for (int i = 0; i < item.inner_mode_nameList.size(); ++i) {
        // A mode that is called like its module is the same mistake.
        const QString &mode = item.inner_mode_nameList.at(i);
        if (mode != item.name)
            look(mode, positions.at(i),
                 Command::tr("the name \"%1\" of the inner mode holds a \":\""));
    }
}

/// A module that stands for the updater calculates nothing and is no alternative to another one.
void findUpdate(const ItemFile &file, Findings *findings)
{
    const AUTH_INF &item = file.item();
    if (item.name != QLatin1String("Update"))
        return;
    const auto hasEntries = [](const QVector<QStringList> &entries) { return !entries.isEmpty(); };
    const auto &modes = item.inner_mode_parameterList;
    if (item.exclusive_group || hasEntries(item.output_results)
        || item.inner_mode_nameList.size() > 1
        || std::any_of(modes.cbegin(), modes.cend(), hasEntries)) {
        FileFindings(file, findings)
            .add("update-module", fieldPosition(file, "name"),
                 Command::tr("a module named \"Update\" makes the program write its name and "
                             "version to Config/update.ini, and this one is a calculation"));
    }
}

void check(const LintItem &item, Findings *findings)
{
    const ItemFile &file = item.file();
    findLikeNames(file, findings);
    findLikeModes(file, findings);
    findColons(file, findings);
    findUpdate(file, findings);
}

} // namespace

RuleArea nameRules()
{
    return {
        {
            { "like-names", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "Two names of one mode are equal to a search by name"),
              QT_TRANSLATE_NOOP("Command",
                                "VParameter::isName() looks past case, spaces, \"_\" and \"-\". A "
                                "host that looks for one of the two may get the other. Give one of "
                                "them another name."),
              EXAMPLE_ITEM "[Attribute]\nPoint load=\nPoint-Load=\n"
                           "[Belong]\nPoint load=Bending\nPoint-Load=Bending\n",
              EXAMPLE_ITEM "[Attribute]\nPoint load=\nLine load=\n"
                           "[Belong]\nPoint load=Bending\nLine load=Bending\n" },
            { "like-modes", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "Two modes differ only in case or white space"),
              QT_TRANSLATE_NOOP("Command",
                                "A person cannot tell them apart in a list, while the library "
                                "takes them for two. Give one of them another name."),
              "[KeltoItem]\nname=Beam\ntype=calculation\ngroup=Statics\nexclusive_group=true\n"
              "inner_mode_count=2\ninner_mode_nameList=Fixed end, Fixed End\n"
              "inner_mode_description=One end, Both ends\n"
              "[Attribute]\nLength=\n[Belong]\nLength=Fixed end, Fixed End\n",
              "[KeltoItem]\nname=Beam\ntype=calculation\ngroup=Statics\nexclusive_group=true\n"
              "inner_mode_count=2\ninner_mode_nameList=Fixed end, Fixed ends\n"
              "inner_mode_description=One end, Both ends\n"
              "[Attribute]\nLength=\n[Belong]\nLength=Fixed end, Fixed ends\n" },
            { "colon-in-name", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "The name of a module, a group or a mode holds a \":\""),
              QT_TRANSLATE_NOOP("Command",
                                "Standard names are application, group and mode, joined by \":\" "
                                "without escaping. With one more they come apart into too many "
                                "parts, and accepting the mode in the dialog changes nothing. "
                                "Use another character."),
              "[KeltoItem]\nname=Beam\ntype=calculation\ngroup=Statics: beams\n" EXAMPLE_MODE
                  EXAMPLE_LENGTH,
              "[KeltoItem]\nname=Beam\ntype=calculation\ngroup=Statics of beams\n" EXAMPLE_MODE
                  EXAMPLE_LENGTH },
            { "update-module", Severity::Warning,
              QT_TRANSLATE_NOOP("Command", "A calculation is named \"Update\""),
              QT_TRANSLATE_NOOP("Command",
                                "A registry that holds a module of this name records the name and "
                                "the version of the program for an updater. Such a module has one "
                                "mode, no parameters and no results, and its group is not "
                                "exclusive. Give a calculation another name."),
              "[KeltoItem]\nname=Update\ntype=calculation\ngroup=Statics\n" EXAMPLE_MODE
                  EXAMPLE_LENGTH,
              "[KeltoItem]\nname=Update of a beam\ntype=calculation\ngroup=Statics\n" EXAMPLE_MODE
                  EXAMPLE_LENGTH },
        },
        check,
        nullptr
    };
}
