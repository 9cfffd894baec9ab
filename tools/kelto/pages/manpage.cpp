// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "pages/manpage.h"

#include "commands.h"

#include <QString>
#include <QStringList>

namespace {

/// A text of which nothing is a request or an escape to the formatter.
QString escaped(const QString &text)
{
    QString roff;
    for (const QChar character : text) {
        switch (character.unicode()) {
        case '\\':
            roff += QLatin1String("\\e");
            break;
        case '-':
            roff += QLatin1String("\\-");
            break;
        case '\'':
            roff += QLatin1String("\\(aq");
            break;
        case '`':
            roff += QLatin1String("\\(ga");
            break;
        case '^':
            roff += QLatin1String("\\(ha");
            break;
        case '~':
            roff += QLatin1String("\\(ti");
            break;
        default:
            roff += character;
        }
    }
    return roff;
}

/// A line of text that cannot begin a request.
QString textLine(const QString &line)
{
    const QString mark = line.startsWith(QLatin1Char('.')) ? QStringLiteral("\\&") : QString();
    return mark + escaped(line) + QLatin1Char('\n');
}

/// Filled paragraphs, but lines that begin with a space as they are.
QString textLines(const QString &text)
{
    QString roff;
    bool isKept = false;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const bool keepsLine = line.startsWith(QLatin1Char(' '));
        if (keepsLine != isKept)
            roff += QLatin1String(keepsLine ? ".nf\n" : ".fi\n");
        isKept = keepsLine;
        roff += line.isEmpty() ? QStringLiteral(".PP\n") : textLine(line);
    }
    return isKept ? roff + QLatin1String(".fi\n") : roff;
}

QString bold(const QString &text)
{
    return QLatin1String("\\fB") + escaped(text) + QLatin1String("\\fR");
}

QString italic(const QString &text)
{
    return QLatin1String("\\fI") + escaped(text) + QLatin1String("\\fR");
}

QString section(const char *title)
{
    return QLatin1String(".SH ") + QLatin1String(title) + QLatin1Char('\n');
}

QString listItem(const QString &head, const QString &text)
{
    return QLatin1String(".TP\n") + head + QLatin1Char('\n') + textLines(text);
}

QString header(const QString &name, const QString &date, const char *summary)
{
    return QStringLiteral(".TH \"%1\" 1 \"%2\" \"Kelto %3\" \"User Commands\"\n")
               .arg(escaped(name.toUpper()), date, QLatin1String(KELTO_VERSION_TEXT))
        + section("NAME") + escaped(name) + QLatin1String(" \\- ") + escaped(QLatin1String(summary))
        + QLatin1Char('\n');
}

QString options(const QVector<CommandOption> &list)
{
    QString roff = section("OPTIONS");
    for (const CommandOption &option : list) {
        QStringList names;
        for (const QString &name : option.names)
            names.append(bold(dashed(name)));
        QString head = names.join(QLatin1String(", "));
        if (option.value)
            head += QLatin1Char(' ') + italic(QLatin1String(option.value));
        roff += listItem(head, QLatin1String(option.description));
    }
    return roff;
}

QString exitStatus()
{
    return section("EXIT STATUS") + listItem(bold(QStringLiteral("0")), QStringLiteral("Done."))
        + listItem(bold(QStringLiteral("1")),
                   QStringLiteral("There are findings, or something was not found or could not be "
                                  "written."))
        + listItem(bold(QStringLiteral("2")), QStringLiteral("Wrong usage."));
}

QString pageName(const Command &command)
{
    return QLatin1String("kelto-") + QLatin1String(command.name);
}

QString seeAlso(const QStringList &pages)
{
    QStringList references;
    for (const QString &page : pages)
        references.append(bold(page) + QLatin1String("(1)"));
    return section("SEE ALSO") + references.join(QLatin1String(", ")) + QLatin1Char('\n');
}

} // namespace

QByteArray overviewPage(const QString &date)
{
    QString roff = header(QStringLiteral("kelto"), date, "work with the files of module items");
    roff += section("SYNOPSIS") + bold(QStringLiteral("kelto")) + QLatin1Char(' ')
        + italic(QStringLiteral("COMMAND")) + QLatin1String(" [") + italic(QStringLiteral("OPTION"))
        + QLatin1String("...] ") + italic(QStringLiteral("FILE")) + QLatin1String("...\n");
    roff += section("DESCRIPTION")
        + textLines(QStringLiteral(
            "The Kelto library reads module items without a word about what is wrong in them. "
            "This program tells, and makes source text and manuals of them. It needs no "
            "display."));
    roff += section("COMMANDS");
    QStringList pages;
    for (const Command &command : commands()) {
        roff += listItem(bold(QLatin1String(command.name)), QLatin1String(command.summary));
        pages.append(pageName(command));
    }
    roff += options(commonOptions()) + exitStatus() + section("ENVIRONMENT")
        + listItem(bold(QStringLiteral("NO_COLOR")),
                   QStringLiteral("Where it is set, nothing is coloured."));
    return (roff + seeAlso(pages)).toUtf8();
}

QByteArray manPage(const Command &command, const QString &date)
{
    QString roff = header(pageName(command), date, command.summary);
    roff += section("SYNOPSIS") + bold(QStringLiteral("kelto %1").arg(QLatin1String(command.name)))
        + QLatin1String(" [") + italic(QStringLiteral("OPTION")) + QLatin1String("...] ")
        + escaped(QLatin1String(command.arguments)) + QLatin1Char('\n');
    roff += section("DESCRIPTION");
    const QVector<const char *> descriptions = descriptionsOf(command);
    for (const char *description : descriptions) {
        if (description != descriptions.constFirst())
            roff += QLatin1String(".PP\n");
        roff += textLines(QLatin1String(description));
    }
    roff += options(command.options + commonOptions()) + exitStatus();
    if (!command.examples.isEmpty())
        roff += section("EXAMPLES");
    for (const CommandExample &example : command.examples)
        roff += listItem(bold(QLatin1String(example.line)), QLatin1String(example.purpose));
    return (roff + seeAlso({ QStringLiteral("kelto") })).toUtf8();
}
