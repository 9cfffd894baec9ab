// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "console.h"
#include "itemfile.h"
#include "itempaths.h"
#include "nearestname.h"
#include "terminaltext.h"

#include <KeltoItemFinding>
#include <KeltoItemParameterVerify>
#include <KeltoParameterEntry>

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>
#include <VIniSettings>

namespace {

using Findings = QVector<KeltoItemFinding>;

QString kindName(KeltoItemFinding::Kind kind)
{
    switch (kind) {
    case KeltoItemFinding::Missing:
        return QStringLiteral("missing");
    case KeltoItemFinding::NearMiss:
        return QStringLiteral("near-miss");
    case KeltoItemFinding::EmptyText:
        return QStringLiteral("empty-text");
    case KeltoItemFinding::NotANumber:
        return QStringLiteral("not-a-number");
    case KeltoItemFinding::OutsideLimits:
        return QStringLiteral("outside-limits");
    case KeltoItemFinding::NotAChoice:
        return QStringLiteral("not-a-choice");
    case KeltoItemFinding::UnknownMode:
        return QStringLiteral("unknown-mode");
    case KeltoItemFinding::ModeWithoutParameters:
        return QStringLiteral("mode-without-parameters");
    }
    return {};
}

QJsonObject asJson(const KeltoItemFinding &finding)
{
    QJsonObject object { { QStringLiteral("kind"), kindName(finding.kind) },
                         { QStringLiteral("absence"), finding.isAbsence() },
                         { QStringLiteral("key"), finding.valueKey },
                         { QStringLiteral("found"), finding.found },
                         { QStringLiteral("expected"),
                           QJsonArray::fromStringList(finding.expected) },
                         { QStringLiteral("text"), finding.text() } };
    if (finding.position >= 0)
        object.insert(QStringLiteral("position"), finding.position);
    return object;
}

/// One check of a file of values, as the command line asks for it.
class Check
{
public:
    explicit Check(const QCommandLineParser &line)
        : m_file(line.value(QStringLiteral("item")))
        , m_path(line.positionalArguments().constFirst())
        , m_mode(line.value(QStringLiteral("mode")))
        , m_skipped(line.values(QStringLiteral("skip")))
    {
    }

    /// Whether both files could be read.
    bool read(Console &console)
    {
        const QString problem = whyUnreadable(m_path);
        const QString noModule = m_file.whyNoModule();
        for (const QString &error : { noModule, problem }) {
            if (!error.isEmpty())
                console.complain(error);
        }
        if (!noModule.isEmpty() || !problem.isEmpty())
            return false;
        const AUTH_INF &item = m_file.item();
        const auto values = VIniSettings(m_path).data();
        m_isComplete = KeltoItemParameterVerify::isValid(&item, &values, m_mode, m_skipped);
        m_findings = KeltoItemParameterVerify::explain(&item, &values, m_mode, m_skipped);
        return true;
    }

    const Findings &findings() const { return m_findings; }

    /// A mistyped sub-group would be checked without a word.
    void complainAboutGroups(Console &console) const
    {
        const AUTH_INF &item = m_file.item();
        const int mode = item.inner_mode_nameList.indexOf(m_mode);
        if (mode < 0)
            return;
        QStringList groups;
        const QVector<QStringList> entries = item.inner_mode_parameterList.value(mode);
        for (const QStringList &entry : entries)
            groups.append(entry.value(KeltoParameterEntry::Group));
        for (const QString &group : m_skipped) {
            if (!groups.contains(group)) {
                console.complain(
                    Command::tr("no parameter of the mode is in the sub-group \"%1\".").arg(group)
                    + didYouMean(group, groups));
            }
        }
    }

    QJsonObject asJson() const
    {
        QJsonArray findings;
        for (const KeltoItemFinding &finding : m_findings)
            findings.append(::asJson(finding));
        return { { QStringLiteral("item"), m_file.path() },
                 { QStringLiteral("values"), m_path },
                 { QStringLiteral("mode"), m_mode },
                 { QStringLiteral("skipped"), QJsonArray::fromStringList(m_skipped) },
                 { QStringLiteral("complete"), m_isComplete },
                 { QStringLiteral("findings"), findings } };
    }

    QString asText() const
    {
        QString text;
        for (const KeltoItemFinding &finding : m_findings)
            text += lineWith(finding.text());
        return text + lineWith(verdict().arg(m_mode));
    }

private:
    QString lineWith(const QString &sentence) const
    {
        return printable(m_path + QLatin1String(": ") + sentence) + QLatin1Char('\n');
    }
    QString verdict() const
    {
        if (!m_isComplete)
            return Command::tr("not complete for the mode \"%1\".");
        return m_findings.isEmpty()
            ? Command::tr("complete for the mode \"%1\".")
            : Command::tr("complete for the mode \"%1\", but with values that do not fit.");
    }

    ItemFile m_file;
    QString m_path;
    QString m_mode;
    QStringList m_skipped;
    bool m_isComplete = false;
    Findings m_findings;
};

ExitCode run(const QCommandLineParser &line, Console &console)
{
    for (const char *option : { "item", "mode" }) {
        if (!line.isSet(QLatin1String(option))) {
            console.complain(Command::tr("\"check\" needs --%1. Try \"kelto check --help\".")
                                 .arg(QLatin1String(option)));
            return WrongUsage;
        }
    }
    Check check(line);
    if (!check.read(console))
        return Found;
    check.complainAboutGroups(console);
    if (line.isSet(QStringLiteral("json")))
        console.print(check.asJson());
    else
        console.print(check.asText());
    return check.findings().isEmpty() ? Done : Found;
}

} // namespace

Command checkCommand()
{
    return { "check",
             "--item FILE --mode NAME VALUES",
             1,
             1,
             QT_TRANSLATE_NOOP("Command", "Say what a file of values lacks for a mode"),
             QT_TRANSLATE_NOOP(
                 "Command",
                 "Compares the values that a host stored in an INI file, under keys that begin "
                 "with \"Attribute/\", with what a mode of an item needs: what is missing, and "
                 "which values do not fit. \"complete\" means that "
                 "KeltoItemParameterVerify::isValid() is true; the findings are those of its "
                 "explain(). Exit code 1 when there is a finding."),
             { { { QStringLiteral("item") },
                 "FILE",
                 QT_TRANSLATE_NOOP("Command", "The item file. Needed.") },
               { { QStringLiteral("mode") },
                 "NAME",
                 QT_TRANSLATE_NOOP("Command", "The plain name of the mode. Needed.") },
               { { QStringLiteral("skip") },
                 "GROUP",
                 QT_TRANSLATE_NOOP("Command",
                                   "Leave out the parameters of this sub-group; may be repeated."),
                 true } },
             { { "kelto check --item beam.ini --mode Cantilever project.ini",
                 QT_TRANSLATE_NOOP("Command", "What the project lacks for a cantilever.") } },
             run };
}
