// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "console.h"
#include "format/format.h"
#include "itemfile.h"
#include "itempaths.h"
#include "outputfile.h"
#include "terminaltext.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace {

struct Outcome
{
    QString path;
    DocumentError error;
    bool isChanged = false;
};

/// The error as a line for people, with its place in front.
QString sentenceOf(const Outcome &outcome)
{
    return QStringLiteral("%1:%2:%3: %4")
        .arg(outcome.path)
        .arg(outcome.error.position.line)
        .arg(outcome.error.position.column)
        .arg(outcome.error.text);
}

QJsonObject asJson(const Outcome &outcome)
{
    QJsonObject object { { QStringLiteral("path"), outcome.path },
                         { QStringLiteral("changed"), outcome.isChanged } };
    if (!outcome.error.text.isEmpty()) {
        object.insert(QStringLiteral("error"),
                      QJsonObject { { QStringLiteral("line"), outcome.error.position.line },
                                    { QStringLiteral("column"), outcome.error.position.column },
                                    { QStringLiteral("text"), outcome.error.text } });
    }
    return object;
}

Outcome format(const ItemFile &file, bool mayWrite, Console &console)
{
    Outcome outcome { file.path(), {}, false };
    const QByteArray text = formatted(file.bytes(), &outcome.error);
    if (!outcome.error.text.isEmpty()) {
        console.complain(sentenceOf(outcome));
        return outcome;
    }
    outcome.isChanged = text != file.bytes();
    if (!outcome.isChanged || !mayWrite)
        return outcome;
    outcome.error.text = writeOutputFile(file.path(), text);
    if (!outcome.error.text.isEmpty()) {
        console.complain(outcome.error.text);
        outcome.isChanged = false;
    }
    return outcome;
}

/// Complains about files that cannot be read; those are no outcomes.
QVector<Outcome> formatAll(const QStringList &paths, bool mayWrite, Console &console, bool *isSound)
{
    QVector<Outcome> outcomes;
    for (const QString &path : paths) {
        const ItemFile file(path);
        if (file.error().isEmpty()) {
            outcomes.append(format(file, mayWrite, console));
            *isSound = *isSound && outcomes.constLast().error.text.isEmpty();
        } else {
            console.complain(file.error());
            *isSound = false;
        }
    }
    return outcomes;
}

ExitCode run(const QCommandLineParser &line, Console &console)
{
    const bool isCheck = line.isSet(QStringLiteral("check"));
    bool isSound = true;
    const QStringList paths = itemFilesAt(line.positionalArguments(), console, &isSound);
    const QVector<Outcome> outcomes = formatAll(paths, !isCheck, console, &isSound);
    QJsonArray files;
    QStringList changed;
    for (const Outcome &outcome : outcomes) {
        files.append(asJson(outcome));
        if (outcome.isChanged)
            changed.append(printable(outcome.path) + QLatin1Char('\n'));
    }
    if (line.isSet(QStringLiteral("json"))) {
        console.print(QJsonObject { { QStringLiteral("written"), !isCheck },
                                    { QStringLiteral("files"), files } });
    } else {
        console.print(changed.join(QString()));
    }
    return isSound && (changed.isEmpty() || !isCheck) ? Done : Found;
}

} // namespace

Command fmtCommand()
{
    return { "fmt",
             "PATH...",
             1,
             -1,
             QT_TRANSLATE_NOOP("Command", "Put item files into the order of the library"),
             QT_TRANSLATE_NOOP(
                 "Command",
                 "Writes each item file in one layout: sections and fields in the order in which "
                 "the library saves them, parameters and results sorted as it reads them, hints "
                 "in the order of what they are about, and every key and value spelt in one way. "
                 "Comments stay with what follows them, unknown keys and sections come last. What "
                 "the library reads from the file stays the same. Lists the files that it has "
                 "changed.\n\nA file that cannot be formatted without changing what is read, for "
                 "example with a key that is given twice, is left as it is and reported with the "
                 "place."),
             { { { QStringLiteral("check") },
                 nullptr,
                 QT_TRANSLATE_NOOP("Command",
                                   "Write nothing; list what would change, and end with 1.") } },
             { { "kelto fmt modules",
                 QT_TRANSLATE_NOOP("Command", "Formats all item files below a directory.") },
               { "kelto fmt --check beam.ini",
                 QT_TRANSLATE_NOOP("Command", "Tells whether a file is formatted.") } },
             run };
}
