// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "workbench.h"

#include "modules.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLocale>
#include <QTextStream>

#include <cstdlib>

namespace {

/// The options with which a QApplication can be started. It takes them out of the arguments, but
/// only after these were read here.
QList<QCommandLineOption> optionsOfQt()
{
    QCommandLineOption reverse("reverse");
    QCommandLineOption withValue({ "platform", "platformpluginpath", "platformtheme", "plugin",
                                   "display", "style", "stylesheet", "session", "qwindowgeometry",
                                   "qwindowicon", "qwindowtitle" },
                                 QString(), "value");
    reverse.setFlags(QCommandLineOption::HiddenFromHelp);
    withValue.setFlags(QCommandLineOption::HiddenFromHelp);
    return { reverse, withValue };
}

/// What is wrong with the values of the options; empty when nothing is.
QString complaintAbout(const QCommandLineParser &parser)
{
    const QString language = parser.value("language");
    if (parser.positionalArguments().size() > 1)
        return "Unexpected argument: " + parser.positionalArguments().at(1);
    if (parser.isSet("language") && language != "en" && language != "zh_CN")
        return "Unknown language: " + language;
    if (parser.isSet("task") && parser.value("task").isEmpty())
        return "--task needs a standard mode name.";
    if (parser.value("modules").isEmpty())
        return "--modules needs a directory.";
    if (parser.isSet("modules") && parser.isSet("compiled"))
        return "--modules and --compiled exclude each other.";
    return {};
}

/// Ends the program with a message when they cannot be read.
QVector<AUTH_INF> modulesFor(const QCommandLineParser &parser)
{
    if (parser.isSet("compiled"))
        return compiledModules();
    const auto modules = modulesFromFiles(parser.value("modules"));
    if (!modules.isValid())
        quit(Failed,
             modules.problem
                 + "\nName a directory with module files (--modules), or start with the modules "
                   "that were compiled in (--compiled).");
    return modules.result;
}

} // namespace

Options readOptions(const QStringList &arguments)
{
    QCoreApplication::setApplicationName("Workbench");
    QCoreApplication::setApplicationVersion(WORKBENCH_VERSION);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Computes beams, springs, vessels and walls.\n\nExit codes: 0 for done, 1 for an unknown "
        "task and for modules that cannot be read,\n2 for wrong usage.");
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument("project", "The project file to open.", "[project]");
    parser.addOptions({
        { "language", "Language of the program: en or zh_CN.", "language" },
        { "task",
          "Start with this task instead of asking, for example \"Workbench:Statics:Cantilever\".",
          "standard mode name" },
        { "modules", "Read the module files of this directory instead of those beside the program.",
          "directory", QCoreApplication::applicationDirPath() + "/modules" },
        { "compiled", "Read no module files; use the modules that were compiled in." },
    });
    parser.addOptions(optionsOfQt());
    if (!parser.parse(arguments))
        quit(WrongUsage, parser.errorText());
    parser.process(arguments); // shows the help or the version where asked to
    const QString complaint = complaintAbout(parser);
    if (!complaint.isEmpty())
        quit(WrongUsage, complaint);
    return { parser.value("language"), parser.value("task"), modulesFor(parser),
             parser.positionalArguments().value(0) };
}

void quit(ExitCode code, const QString &complaint)
{
    QTextStream(stderr) << complaint << '\n';
    std::exit(code);
}

Workbench::Workbench(const Options &options)
    : m_modules(options.modules)
    , m_registry(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
                 m_modules)
    , m_window(&m_registry, m_modules)
{
    const QString last = m_registry.value_set("Window/Language").toString();
    const QString language = options.language.isEmpty() ? last : options.language;
    useLanguage(language.isEmpty() ? QLocale() : QLocale(language), &m_registry, m_modules);
}

void Workbench::open(const Options &options)
{
    m_registry.log("Started, version " + QCoreApplication::applicationVersion());
    const QVector<Task> tasks = tasksNamed(m_registry, options.task);
    if (!options.task.isEmpty() && tasks.isEmpty()) {
        QStringList lines { "Unknown task: " + options.task, "Known tasks:" };
        const auto modes = m_registry.currentModeList();
        for (const auto &mode : modes)
            lines.append("  " + mode.first);
        quit(Failed, lines.join('\n'));
    }
    m_window.show();
    if (!options.task.isEmpty())
        m_window.startProject(tasks.first());
    else if (options.project.isEmpty())
        m_window.newProject();
    if (!options.project.isEmpty())
        m_window.openProject(options.project);
}
