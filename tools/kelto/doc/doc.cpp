// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "console.h"
#include "doc/manual.h"
#include "doc/manuallanguage.h"
#include "itemfile.h"
#include "itempaths.h"
#include "nearestname.h"
#include "outputfile.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

const QLatin1String html("html");
const QLatin1String markdown("markdown");
const QLatin1String qhp("qhp");

/// Languages become parts of names of files.
bool isLanguage(const QString &name)
{
    static const QRegularExpression language(
        QStringLiteral("\\A[a-z]{2,3}(_[A-Za-z0-9]{2,8}){0,3}\\z"));
    return language.match(name).hasMatch();
}

/// What is wrong with the options; empty when nothing is.
QString complaintAbout(const QCommandLineParser &line)
{
    if (line.value(QStringLiteral("output")).isEmpty())
        return Command::tr("the directory for the manual is missing; name it with \"-o DIR\".");
    const QStringList formats = line.values(QStringLiteral("format"));
    for (const QString &format : formats) {
        const QStringList known { html, markdown, qhp };
        if (!known.contains(format)) {
            return Command::tr("there is no format \"%1\"; there are: %2.")
                       .arg(format, known.join(QStringLiteral(", ")))
                + didYouMean(format, known);
        }
    }
    const QStringList languages = line.values(QStringLiteral("language"));
    for (const QString &language : languages) {
        if (!isLanguage(language)) {
            return Command::tr("\"%1\" is no language; write it as \"en\" or \"zh_CN\".")
                .arg(language);
        }
    }
    return {};
}

class Run
{
public:
    Run(const QCommandLineParser &line, Console &console)
        : m_line(line)
        , m_console(console)
        , m_directory(line.value(QStringLiteral("output")))
    {
    }

    ExitCode operator()();

private:
    bool readItems();
    bool readTranslations();
    void collectLanguages();
    bool has(const QString &format) const;
    void makeFiles();
    bool areForeignFilesSafe() const;
    bool write() const;
    QStringList staleFiles() const;
    bool isOurs(const QString &path) const;
    void report() const;
    bool complain(const QString &sentence) const;

    const QCommandLineParser &m_line;
    Console &m_console;
    QString m_directory;
    std::vector<TranslationFile> m_translations;
    Manual m_manual;
    ManualFiles m_files;
};

bool Run::complain(const QString &sentence) const
{
    m_console.complain(sentence);
    return false;
}

bool Run::readItems()
{
    bool areAllFound = true;
    const QStringList paths = itemFilesAt(m_line.positionalArguments(), m_console, &areAllFound);
    if (!areAllFound)
        return false;
    for (const QString &path : paths) {
        const ItemFile file(path);
        const QString complaint = file.whyNoModule();
        if (!complaint.isEmpty())
            return this->complain(complaint);
        m_manual.items.append(file.item());
    }
    return true;
}

bool Run::readTranslations()
{
    const QStringList paths = m_line.values(QStringLiteral("translation"));
    for (const QString &path : paths) {
        m_translations.emplace_back(path);
        const TranslationFile &file = m_translations.back();
        if (!file.error().isEmpty())
            return complain(file.error());
        if (!isLanguage(file.language())) {
            return complain(Command::tr("%1: does not say its language; end its name as in "
                                        "\"modules_zh_CN.qm\".")
                                .arg(path));
        }
    }
    return true;
}

void Run::collectLanguages()
{
    m_manual.languages = m_line.values(QStringLiteral("language"));
    if (m_manual.languages.isEmpty())
        m_manual.languages.append(QStringLiteral("en"));
    for (const TranslationFile &file : m_translations)
        m_manual.languages.append(file.language());
    m_manual.languages.removeDuplicates();
}

bool Run::has(const QString &format) const
{
    const QStringList formats = m_line.values(QStringLiteral("format"));
    return formats.contains(format) || (format == html && formats.isEmpty());
}

void Run::makeFiles()
{
    const auto add = [this](const ManualFiles &files) {
        for (auto file = files.cbegin(); file != files.cend(); ++file)
            m_files.insert(file.key(), file.value());
    };
    for (const QString &language : qAsConst(m_manual.languages)) {
        const ManualLanguage speaking(language, m_translations);
        const ManualView view(m_manual, language);
        if (has(html) || has(qhp))
            add(htmlFiles(view));
        if (has(markdown))
            add(markdownFiles(view));
        if (has(qhp))
            add(helpProject(view));
    }
    if (has(html) || has(qhp))
        add(htmlAssets());
}

bool Run::isOurs(const QString &path) const
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(200).contains(manualMark);
}

/// A manual in the wrong directory must not replace somebody's web site.
bool Run::areForeignFilesSafe() const
{
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        const QString path = QDir(m_directory).filePath(file.key());
        if (QFileInfo(path).isFile() && !isOurs(path)) {
            return complain(Command::tr("%1: was not written by \"kelto doc\" and is not replaced; "
                                        "remove it, or choose another directory.")
                                .arg(path));
        }
    }
    return true;
}

bool Run::write() const
{
    const QString complaint = makeOutputDirectory(m_directory);
    if (!complaint.isEmpty())
        return complain(complaint);
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        const QString problem
            = writeOutputFile(QDir(m_directory).filePath(file.key()), file.value());
        if (!problem.isEmpty())
            return complain(problem);
    }
    return true;
}

/// Files of an earlier manual that are no part of this one. They stay: whoever published them
/// decides whether links to them may break.
QStringList Run::staleFiles() const
{
    const QDir directory(m_directory);
    QStringList stale;
    const QStringList names = directory.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        if (!m_files.contains(name) && isOurs(directory.filePath(name)))
            stale.append(name);
    }
    return stale;
}

void Run::report() const
{
    const QStringList stale = staleFiles();
    if (m_line.isSet(QStringLiteral("json"))) {
        m_console.print(
            QJsonObject { { QStringLiteral("directory"), m_directory },
                          { QStringLiteral("files"), QJsonArray::fromStringList(m_files.keys()) },
                          { QStringLiteral("stale"), QJsonArray::fromStringList(stale) } });
        return;
    }
    const QDir directory(m_directory);
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file)
        m_console.print(QString(directory.filePath(file.key()) + QLatin1Char('\n')));
    for (const QString &name : stale) {
        m_console.complain(Command::tr("%1: is left from an earlier manual; nothing links to it.")
                               .arg(directory.filePath(name)));
    }
}

ExitCode Run::operator()()
{
    if (!readItems() || !readTranslations())
        return Found;
    collectLanguages();
    m_manual.title = m_line.value(QStringLiteral("title"));
    m_manual.nameSpace = m_line.value(QStringLiteral("namespace"));
    if (m_manual.nameSpace.isEmpty())
        m_manual.nameSpace = QStringLiteral("kelto.modules");
    makeFiles();
    if (!areForeignFilesSafe() || !write())
        return Found;
    report();
    return Done;
}

ExitCode run(const QCommandLineParser &line, Console &console)
{
    const QString complaint = complaintAbout(line);
    if (complaint.isEmpty())
        return Run(line, console)();
    console.complain(complaint);
    return WrongUsage;
}

QVector<CommandOption> options()
{
    return {
        { { QStringLiteral("o"), QStringLiteral("output") },
          "DIR",
          QT_TRANSLATE_NOOP("Command", "The directory for the manual, which is made if missing.") },
        { { QStringLiteral("format") },
          "html|markdown|qhp",
          QT_TRANSLATE_NOOP("Command",
                            "html (as without this option), markdown, or qhp: HTML and a project "
                            "for Qt Help. Can be given more than once."),
          true },
        { { QStringLiteral("language") },
          "LANGUAGE",
          QT_TRANSLATE_NOOP("Command",
                            "A language of the manual, such as en or zh_CN; the first is the main "
                            "one, and en without this option. Can be given more than once."),
          true },
        { { QStringLiteral("translation") },
          "FILE",
          QT_TRANSLATE_NOOP("Command",
                            "A translation of the modules, .ts or .qm, whose language is added to "
                            "those of the manual. Can be given more than once."),
          true },
        { { QStringLiteral("title") },
          "TEXT",
          QT_TRANSLATE_NOOP("Command", "The title of the manual.") },
        { { QStringLiteral("namespace") },
          "NAME",
          QT_TRANSLATE_NOOP("Command", "What Qt Help is to call the manual among others.") },
    };
}

} // namespace

Command docCommand()
{
    return {
        "doc",
        "PATH...",
        1,
        -1,
        QT_TRANSLATE_NOOP("Command", "Write a manual of modules"),
        QT_TRANSLATE_NOOP(
            "Command",
            "Writes a manual of the modules whose item files these are or lie in these "
            "directories: an index and one page for each module, with its modes, parameters and "
            "results, in one or more languages side by side. The pages need no server.\n\n"
            "The main language has plain names of files, the others have their language in them: "
            "beam.html, beam.zh_CN.html. Files that did not change are not written, files that "
            "this command did not write are never replaced, and pages of modules that are gone "
            "are named and left."),
        options(),
        { { "kelto doc modules -o manual",
            QT_TRANSLATE_NOOP("Command", "A manual for browsers, in English.") },
          { "kelto doc modules -o manual --translation modules_zh_CN.ts",
            QT_TRANSLATE_NOOP("Command", "The same in English and Chinese.") },
          { "kelto doc modules -o manual --format qhp && qhelpgenerator manual/manual.qhp",
            QT_TRANSLATE_NOOP("Command", "A manual for Qt Help.") } },
        run
    };
}
