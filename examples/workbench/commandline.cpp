// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commandline.h"

#include "modules.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <cstdlib>

namespace {

QCommandLineOption languageOption()
{
    return { QStringLiteral("language"), QStringLiteral("Language of the program: en or zh_CN."),
             QStringLiteral("language") };
}

QCommandLineOption taskOption()
{
    return { QStringLiteral("task"),
             QStringLiteral("Start with this task instead of asking, for example "
                            "\"Workbench:Statics:Cantilever\"."),
             QStringLiteral("standard mode name") };
}

QCommandLineOption modulesOption()
{
    return { QStringLiteral("modules"),
             QStringLiteral("Read the module files of this directory instead of those beside the "
                            "program."),
             QStringLiteral("directory"), moduleDirectory() };
}

QCommandLineOption compiledOption()
{
    return { QStringLiteral("compiled"),
             QStringLiteral("Read no module files; use the modules that were compiled in.") };
}

/// What is wrong with the values of the options; empty when nothing is.
QString complaintAbout(const QCommandLineParser &parser)
{
    const QStringList unexpected = parser.positionalArguments();
    if (!unexpected.isEmpty())
        return QStringLiteral("Unexpected argument: ") + unexpected.first();
    const QString language = parser.value(languageOption());
    const QStringList languages { QStringLiteral("en"), QStringLiteral("zh_CN") };
    if (parser.isSet(languageOption()) && !languages.contains(language))
        return QStringLiteral("Unknown language: ") + language;
    if (parser.isSet(taskOption()) && parser.value(taskOption()).isEmpty())
        return QStringLiteral("--task needs a standard mode name.");
    if (parser.value(modulesOption()).isEmpty())
        return QStringLiteral("--modules needs a directory.");
    if (parser.isSet(modulesOption()) && parser.isSet(compiledOption()))
        return QStringLiteral("--modules and --compiled exclude each other.");
    return {};
}

} // namespace

Options readOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Computes beams, springs, vessels and walls.\n\n"
                       "Exit codes: 0 for done, 1 for an unknown task and for modules that cannot "
                       "be read,\n2 for wrong usage."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({ languageOption(), taskOption(), modulesOption(), compiledOption() });

    if (!parser.parse(arguments))
        quit(WrongUsage, parser.errorText());
    parser.process(arguments); // shows the help or the version where asked to
    const QString complaint = complaintAbout(parser);
    if (!complaint.isEmpty())
        quit(WrongUsage, complaint);
    return { parser.value(languageOption()), parser.value(taskOption()),
             parser.value(modulesOption()), parser.isSet(compiledOption()) };
}

void quit(ExitCode code, const QString &complaint)
{
    QTextStream(stderr) << complaint << '\n';
    std::exit(code);
}
