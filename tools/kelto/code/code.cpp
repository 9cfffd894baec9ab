// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "code/itemsource.h"
#include "commands.h"
#include "console.h"
#include "itemfile.h"
#include "itempaths.h"
#include "lint/lintconfig.h"
#include "lint/linter.h"
#include "lint/lintoutput.h"
#include "outputfile.h"
#include "sourcetext.h"
#include "terminaltext.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

/// What keeps a file from becoming source text.
struct CodeProblem
{
    QString path;
    IniPosition position;
    QString key; ///< With its section, or "file".
    QString text;
    QString reason; ///< The end of a sentence.
};

/// Where the value of a key stands. Keys with "/" have lost what is before it.
IniPosition placeOf(const ItemFile &file, const QString &section, const QString &name)
{
    if (const ItemFileKey *key = file.find(section, name))
        return key->valuePosition;
    const QString end = QLatin1Char('/') + name;
    for (const ItemFileKey &key : file.keys()) {
        if (key.section == section && key.name.endsWith(end))
            return key.position;
    }
    return {};
}

bool isControlCharacter(QChar c)
{
    return c.category() == QChar::Other_Control;
}

/// Whether this command looks for it itself, and knows whether it matters.
bool isAboutSourceText(const Finding &finding)
{
    const QVector<Rule> rules = codeRules().rules;
    return std::any_of(rules.cbegin(), rules.cend(), [&finding](const Rule &rule) {
        return QLatin1String(rule.id) == finding.rule;
    });
}

class CodeCommand
{
public:
    CodeCommand(const QCommandLineParser &line, Console &console)
        : m_directory(line.value(QStringLiteral("o")))
        , m_context(line.value(QStringLiteral("context")))
        , m_isEmbedding(line.isSet(QStringLiteral("embed")))
        , m_isLinting(line.isSet(QStringLiteral("lint")))
        , m_isJson(line.isSet(QStringLiteral("json")))
        , m_console(console)
    {
        m_items.name = line.isSet(QStringLiteral("name")) ? line.value(QStringLiteral("name"))
                                                          : QStringLiteral("keltoitems");
    }

    QString wrongUsage() const;
    ExitCode run(const QStringList &paths);

private:
    void lintFiles(const QStringList &paths);
    void read(const QString &path);
    void checkTexts(const ItemFile &file, const AUTH_INF &item);
    void checkFunction(const ItemFile &file, const AUTH_INF &item);
    void checkFileName(const QString &path);
    void add(const ItemFile &file, const QString &section, const QString &key, const QString &text,
             const QString &reason);
    QString pathOf(const char *ending) const;
    bool areForeignFilesSafe() const;
    bool write();
    bool writeFile(const char *ending, const QByteArray &bytes);
    void report() const;

    SourceItems m_items;
    QString m_directory;
    QString m_context;
    bool m_isEmbedding;
    bool m_isLinting;
    bool m_isJson;
    Console &m_console;
    bool m_hasFailed = false;
    QVector<CodeProblem> m_problems;
    QJsonArray m_findings;
    QStringList m_written;
    QHash<QString, QString> m_functions; ///< The file of each.
    QHash<QString, QString> m_fileNames;
};

QString CodeCommand::wrongUsage() const
{
    if (m_directory.isEmpty())
        return Command::tr("\"code\" needs a directory to write into, with \"-o DIR\".");
    if (!isFreeIdentifier(m_items.name))
        return Command::tr("\"%1\" cannot be a name in C++.").arg(printable(m_items.name));
    if (!m_context.isEmpty() && !isFreeContext(m_context))
        return Command::tr("\"%1\" cannot be the name of a class in C++.")
            .arg(printable(m_context));
    return {};
}

void CodeCommand::add(const ItemFile &file, const QString &section, const QString &key,
                      const QString &text, const QString &reason)
{
    m_problems.append({ file.path(), placeOf(file, section, key), section + QLatin1Char('/') + key,
                        text, reason });
}

/// Only errors keep anything from being written.
void CodeCommand::lintFiles(const QStringList &paths)
{
    const LintConfig config(paths);
    for (const QString &complaint : config.complaints())
        m_console.complain(complaint);
    Findings findings = lint(paths, config, m_console).findings;
    findings.erase(std::remove_if(findings.begin(), findings.end(), isAboutSourceText),
                   findings.end());
    m_findings = findingsAsJson(findings, {}, config).value(QStringLiteral("findings")).toArray();
    if (!m_isJson)
        m_console.print(findingsAsText(findings, config, m_console.isColoured()));
    const auto isError = [&config](const Finding &finding) {
        return config.severity(finding.path, finding.rule) == Severity::Error;
    };
    m_hasFailed = m_hasFailed || !config.complaints().isEmpty()
        || std::any_of(findings.cbegin(), findings.cend(), isError);
}

void CodeCommand::checkTexts(const ItemFile &file, const AUTH_INF &item)
{
    const QVector<SourceTextProblem> problems = sourceTextProblems(item);
    for (const SourceTextProblem &problem : problems) {
        const bool isName = problem.reason == SourceTextProblem::NoIdentifier
            || problem.reason == SourceTextProblem::ReservedName;
        // A file that is embedded holds any text.
        if (isName || !m_isEmbedding)
            add(file, problem.section, problem.key, problem.text, reasonText(problem.reason));
    }
}

void CodeCommand::checkFunction(const ItemFile &file, const AUTH_INF &item)
{
    const QString key = QStringLiteral("codeFunctionName");
    const QString function = item.codeFunctionName;
    if (function.isEmpty())
        return;
    if (m_functions.contains(function))
        add(file, QStringLiteral("KeltoItem"), key, function,
            Command::tr("is the function of %1 already").arg(m_functions.value(function)));
    m_functions.insert(function, file.path());
}

/// In the resources all files lie in one directory. Their list is XML, which cannot hold control
/// characters, and reads line breaks as spaces.
void CodeCommand::checkFileName(const QString &path)
{
    if (!m_isEmbedding)
        return;
    const QString key = QStringLiteral("file");
    const QString name = QFileInfo(path).fileName();
    if (m_fileNames.contains(name))
        m_problems.append({ path,
                            {},
                            key,
                            name,
                            Command::tr("is the name of %1 in the resources already")
                                .arg(m_fileNames.value(name)) });
    m_fileNames.insert(name, path);
    const QString whole = QFileInfo(path).absoluteFilePath();
    if (std::any_of(whole.cbegin(), whole.cend(), isControlCharacter))
        m_problems.append(
            { path, {}, key, whole, reasonText(SourceTextProblem::ControlCharacter) });
}

void CodeCommand::read(const QString &path)
{
    const ItemFile file(path);
    if (!file.error().isEmpty()) {
        m_console.complain(file.error());
        m_hasFailed = true;
        return;
    }
    AUTH_INF item = file.item();
    checkTexts(file, item);
    if (item.name.isEmpty())
        add(file, QStringLiteral("KeltoItem"), QStringLiteral("name"), item.name,
            Command::tr("is empty or missing: this is no item"));
    checkFunction(file, item);
    checkFileName(path);
    if (item.trObjectName.isEmpty())
        item.trObjectName = m_context;
    m_items.items.append({ item, path });
}

QString CodeCommand::pathOf(const char *ending) const
{
    return m_directory + QLatin1Char('/') + m_items.name + QLatin1String(ending);
}

/// A name such as "main" must not replace the source text of somebody.
bool CodeCommand::areForeignFilesSafe() const
{
    for (const char *ending : { ".h", ".cpp", ".qrc" }) {
        QFile file(pathOf(ending));
        const bool isWritten = m_isEmbedding || QLatin1String(ending) != QLatin1String(".qrc");
        if (!isWritten || !QFileInfo(file).isFile() || file.size() == 0)
            continue;
        if (!file.open(QIODevice::ReadOnly) || !isGeneratedText(file.read(200))) {
            m_console.complain(
                Command::tr("%1: was not written by \"kelto code\" and is not replaced; remove it, "
                            "or choose another name or directory.")
                    .arg(file.fileName()));
            return false;
        }
    }
    return true;
}

bool CodeCommand::writeFile(const char *ending, const QByteArray &bytes)
{
    const QString path = pathOf(ending);
    const QString complaint = writeOutputFile(path, bytes);
    if (!complaint.isEmpty()) {
        m_console.complain(complaint);
        return false;
    }
    m_written.append(path);
    return true;
}

bool CodeCommand::write()
{
    const QString complaint = makeOutputDirectory(m_directory);
    if (!complaint.isEmpty()) {
        m_console.complain(complaint);
        return false;
    }
    const QByteArray source = m_isEmbedding ? embeddingSourceText(m_items) : sourceText(m_items);
    return areForeignFilesSafe() && writeFile(".h", headerText(m_items))
        && writeFile(".cpp", source)
        // The directory has to be there.
        && (!m_isEmbedding || writeFile(".qrc", resourceList(m_items, m_directory)));
}

void CodeCommand::report() const
{
    QJsonArray problems;
    for (const CodeProblem &problem : m_problems) {
        problems.append(QJsonObject { { QStringLiteral("file"), problem.path },
                                      { QStringLiteral("line"), problem.position.line },
                                      { QStringLiteral("column"), problem.position.column },
                                      { QStringLiteral("key"), problem.key },
                                      { QStringLiteral("text"), problem.text },
                                      { QStringLiteral("reason"), problem.reason } });
        // As compilers and the lint say it, so that editors find the place.
        const QString text = QStringLiteral("%1:%2:%3: error: %4 \"%5\" %6\n");
        if (!m_isJson)
            m_console.print(text.arg(problem.path, QString::number(problem.position.line),
                                     QString::number(problem.position.column),
                                     printable(problem.key), printable(problem.text),
                                     problem.reason));
    }
    if (!m_isJson)
        return;
    QJsonObject result { { QStringLiteral("files"), QJsonArray::fromStringList(m_written) },
                         { QStringLiteral("problems"), problems } };
    if (m_isLinting)
        result.insert(QStringLiteral("findings"), m_findings);
    m_console.print(result);
}

ExitCode CodeCommand::run(const QStringList &paths)
{
    bool areAllFound = true;
    const QStringList files = itemFilesAt(paths, m_console, &areAllFound);
    if (m_isLinting)
        lintFiles(files);
    for (const QString &path : files)
        read(path);
    m_hasFailed = m_hasFailed || !areAllFound;
    if (!m_hasFailed && m_problems.isEmpty())
        m_hasFailed = !write();
    report();
    return m_hasFailed || !m_problems.isEmpty() ? Found : Done;
}

ExitCode run(const QCommandLineParser &line, Console &console)
{
    CodeCommand command(line, console);
    const QString complaint = command.wrongUsage();
    if (complaint.isEmpty())
        return command.run(line.positionalArguments());
    console.complain(complaint);
    return WrongUsage;
}

} // namespace

Command codeCommand()
{
    return {
        "code",
        "PATH...",
        1,
        -1,
        QT_TRANSLATE_NOOP("Command", "Write C++ source text that builds the items"),
        QT_TRANSLATE_NOOP(
            "Command",
            "Writes NAME.h and NAME.cpp, in the order of the files: in the namespace NAME one "
            "function for each item, called as its codeFunctionName says, and allItems(), which "
            "also returns items without one. The texts are those of AUTH_INF::to_code(); tr() "
            "needs "
            "no class of the program's, and lupdate finds all texts, those of hints included.\n\n"
            "Files are written only when they change. An item that source text cannot carry is an "
            "error, and nothing is written: a double quote would end a literal, and what stands "
            "behind it would become code of the program."),
        { { { QStringLiteral("lint") },
            nullptr,
            QT_TRANSLATE_NOOP("Command",
                              "List everything that is wrong with the items, as \"kelto lint\" "
                              "does, and write nothing when there is an error.") },
          { { QStringLiteral("o") },
            "DIR",
            QT_TRANSLATE_NOOP("Command",
                              "The directory to write into, made where it is missing.") },
          { { QStringLiteral("name") },
            "NAME",
            QT_TRANSLATE_NOOP("Command",
                              "The name of files and namespace instead of keltoitems.") },
          { { QStringLiteral("context") },
            "CONTEXT",
            QT_TRANSLATE_NOOP("Command",
                              "The translation context of items without a Tr_ObjectName.") },
          { { QStringLiteral("embed") },
            nullptr,
            QT_TRANSLATE_NOOP("Command",
                              "Load the items from resources, and write NAME.qrc to compile these, "
                              "so that they may hold any text.") } },
        { { "kelto code items -o generated",
            QT_TRANSLATE_NOOP("Command", "Source text for all items of a directory.") },
          { "kelto code beam.ini --embed --name beams -o .",
            QT_TRANSLATE_NOOP("Command", "One item as a resource.") } },
        run
    };
}
