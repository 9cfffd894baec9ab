// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "console.h"
#include "itempaths.h"

#include <QCommandLineParser>
#include <QJsonObject>
#include <VIniSettings>

#include <algorithm>

namespace {

bool isNoText(QChar c)
{
    return c == QChar::ReplacementCharacter
        || (c.category() == QChar::Other_Control && c != QLatin1Char('\n')
            && c != QLatin1Char('\t'));
}

/// A text is made of every file. Whoever names one that describes no style has named the wrong one.
QString whyNoStyle(const VIniSettings &settings, const QString &sheet)
{
    const QStringList groups = settings.allGroups();
    const bool hasClass = !settings.value(QStringLiteral("ID/QtClassName")).toString().isEmpty();
    if (!hasClass && !groups.contains(QStringLiteral("normal")))
        return Command::tr("describes no style: there is neither \"QtClassName\" in a section "
                           "\"ID\" nor a section \"normal\".");
    if (groups == QStringList(QStringLiteral("ID")))
        return Command::tr("describes no style: there is no section but \"ID\".");
    return std::any_of(sheet.cbegin(), sheet.cend(), isNoText)
        ? Command::tr("holds bytes that are no text; save it as UTF-8.")
        : QString();
}

/// Complains about values of which the text holds nothing; whether there is none.
bool areAllCarried(const VIniSettings &settings, const QString &path, Console &console)
{
    bool areAll = true;
    const auto values = settings.data();
    for (const auto &value : values) {
        if (!value.second.toString().isEmpty() || value.second.toStringList().size() < 2)
            continue;
        areAll = false;
        console.complain(Command::tr("%1: the value of \"%2\" is lost: a comma makes a list of it. "
                                     "Put quotes around it.")
                             .arg(path, value.first));
    }
    return areAll;
}

ExitCode run(const QCommandLineParser &line, Console &console)
{
    const QString path = line.positionalArguments().constFirst();
    // The store would create a file that is missing.
    const QString complaint = whyUnreadable(path);
    if (!complaint.isEmpty()) {
        console.complain(complaint);
        return Found;
    }
    const VIniSettings settings(path);
    const QString sheet = settings.styleSheetFormat();
    const QString problem = whyNoStyle(settings, sheet);
    if (!problem.isEmpty()) {
        console.complain(path + QLatin1String(": ") + problem);
        return Found;
    }
    if (line.isSet(QStringLiteral("json"))) {
        console.print(QJsonObject { { QStringLiteral("file"), path },
                                    { QStringLiteral("styleSheet"), sheet } });
    } else {
        console.print(sheet + QLatin1Char('\n'));
    }
    return areAllCarried(settings, path, console) ? Done : Found;
}

} // namespace

Command styleCommand()
{
    return { "style",
             "FILE",
             1,
             1,
             QT_TRANSLATE_NOOP("Command", "Write the style sheet that an INI file describes"),
             QT_TRANSLATE_NOOP("Command",
                               "Writes the style sheet text that VIniSettings::styleSheetFormat() "
                               "makes of the file. \"QtClassName\" in the section \"ID\" is the "
                               "class of the widgets, the section \"normal\" their style, and "
                               "every other section the style of a state, such as \"hover\". A "
                               "file without a class and without \"normal\" is an error, and so "
                               "is a value that a comma outside of quotes divides: nothing of it "
                               "is in the text."),
             {},
             { { "kelto style button.ini",
                 QT_TRANSLATE_NOOP("Command", "The style sheet of a button.") } },
             run };
}
