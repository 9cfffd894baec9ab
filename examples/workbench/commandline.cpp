// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commandline.h"

#include "languages.h"
#include "modules.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <cstdlib>

namespace {

const QLatin1String languageName("language");
const QLatin1String taskName("task");
const QLatin1String modulesName("modules");
const QLatin1String compiledName("compiled");

QList<QCommandLineOption> ownOptions()
{
    return {
        { languageName, QStringLiteral("Language of the program: en or zh_CN."), languageName },
        { taskName,
          QStringLiteral("Start with this task instead of asking, for example "
                         "\"Workbench:Statics:Cantilever\"."),
          QStringLiteral("standard mode name") },
        { modulesName,
          QStringLiteral("Read the module files of this directory instead of those beside the "
                         "program."),
          QStringLiteral("directory"), moduleDirectory() },
        { compiledName,
          QStringLiteral("Read no module files; use the modules that were compiled in.") },
    };
}

/// Those with which a QApplication can be started. It takes them out of the arguments, but only
/// after these were read here.
QList<QCommandLineOption> optionsOfQt()
{
    QList<QCommandLineOption> options { QCommandLineOption(QStringLiteral("reverse")) };
    for (const char *name :
         { "platform", "platformpluginpath", "platformtheme", "plugin", "display", "style",
           "stylesheet", "session", "qwindowgeometry", "qwindowicon", "qwindowtitle" })
        options.append({ QString::fromLatin1(name), QString(), QStringLiteral("value") });
    for (QCommandLineOption &option : options)
        option.setFlags(QCommandLineOption::HiddenFromHelp);
    return options;
}

/// What is wrong with the values of the options; empty when nothing is.
QString complaintAbout(const QCommandLineParser &parser)
{
    if (parser.positionalArguments().size() > 1)
        return QStringLiteral("Unexpected argument: ") + parser.positionalArguments().at(1);
    const QString language = parser.value(languageName);
    if (parser.isSet(languageName) && !languageNames().contains(language))
        return QStringLiteral("Unknown language: ") + language;
    if (parser.isSet(taskName) && parser.value(taskName).isEmpty())
        return QStringLiteral("--task needs a standard mode name.");
    if (parser.value(modulesName).isEmpty())
        return QStringLiteral("--modules needs a directory.");
    if (parser.isSet(modulesName) && parser.isSet(compiledName))
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
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("project"),
                                 QStringLiteral("The project file to open."),
                                 QStringLiteral("[project]"));
    parser.addOptions(ownOptions() + optionsOfQt());

    if (!parser.parse(arguments))
        quit(WrongUsage, parser.errorText());
    parser.process(arguments); // shows the help or the version where asked to
    const QString complaint = complaintAbout(parser);
    if (!complaint.isEmpty())
        quit(WrongUsage, complaint);
    return { parser.value(languageName), parser.value(taskName), parser.value(modulesName),
             parser.isSet(compiledName), parser.positionalArguments().value(0) };
}

void quit(ExitCode code, const QString &complaint)
{
    QTextStream(stderr) << complaint << '\n';
    std::exit(code);
}
