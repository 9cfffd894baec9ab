// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "console.h"
#include "convert/fmiitem.h"
#include "convert/inidocument.h"
#include "convert/jsonitem.h"
#include "itemfile.h"
#include "outputfile.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

namespace {

/// What was read from a file in one of the formats.
struct Source
{
    QString format; ///< "ini", "json" or "fmi"; others cannot be read.
    AUTH_INF item;
    QVector<LeftOut> leftOut;
    QString error; ///< A sentence without the name of the file.
};

/// The format by what a file begins with: item files may have any name.
QString formatOf(const QByteArray &bytes)
{
    const QByteArray text = (bytes.startsWith("\xef\xbb\xbf") ? bytes.mid(3) : bytes).trimmed();
    if (bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff"))
        return bytes.mid(2, 2).contains('<') ? QStringLiteral("fmi") : QStringLiteral("utf-16");
    if (bytes.startsWith("PK\3\4"))
        return QStringLiteral("fmu");
    // A section begins like an array.
    if (text.startsWith('{') || QJsonDocument::fromJson(text).isArray())
        return QStringLiteral("json");
    return text.startsWith('<') ? QStringLiteral("fmi") : QStringLiteral("ini");
}

void readJson(const QByteArray &bytes, Source *source)
{
    JsonError error;
    source->item = itemInJson(bytes, &error);
    if (!error.text.isEmpty())
        source->error = (error.pointer.isEmpty() ? QString() : error.pointer + QLatin1String(": "))
            + error.text;
}

/// As a word for a shell, quoted where it needs that.
QString quotedForShell(QString path)
{
    static const QRegularExpression special(QStringLiteral("[^\\w@%+=:,./-]"));
    if (!path.contains(special))
        return path;
    path.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + path + QLatin1Char('\'');
}

Source sourceIn(const ItemFile &file)
{
    Source source { formatOf(file.bytes()), {}, {}, {} };
    if (source.format == QLatin1String("json")) {
        readJson(file.bytes(), &source);
    } else if (source.format == QLatin1String("fmi")) {
        const FmiModel model = fmiModelIn(file.bytes());
        source.error = model.error;
        source.item = itemOf(model, &source.leftOut);
    } else if (source.format == QLatin1String("fmu")) {
        source.error = Command::tr("is an archive; unpack the description of its model with "
                                   "\"unzip %1 modelDescription.xml\", and convert that.")
                           .arg(quotedForShell(file.path()));
    } else if (source.format == QLatin1String("utf-16")) {
        source.error
            = Command::tr("is in UTF-16, which can be read of XML alone; save it in UTF-8.");
    } else {
        source.item = file.item();
    }
    return source;
}

/// The item in the other format; empty with an error where that loses something.
QByteArray converted(Source *source, bool isJson)
{
    if (isJson)
        return QJsonDocument(jsonOf(source->item)).toJson();
    const QByteArray text = iniOf(source->item);
    const IniLoss loss = lossOf(source->item, text);
    if (loss.hasTranslations)
        source->leftOut.append({ Command::tr("translated texts"),
                                 Command::tr("Item files hold none: they come from the host.") });
    if (loss.fields.isEmpty())
        return text;
    source->error = Command::tr("an item file cannot hold what is in: %1.")
                        .arg(loss.fields.join(QStringLiteral(", ")));
    return {};
}

QJsonArray asJson(const QVector<LeftOut> &leftOut)
{
    QJsonArray array;
    for (const LeftOut &each : leftOut)
        array.append(QJsonObject { { QStringLiteral("what"), each.what },
                                   { QStringLiteral("why"), each.why } });
    return array;
}

/// Writes the result and says what has no place in it; whether that was possible.
bool report(const Source &source, const QByteArray &text, const QCommandLineParser &line,
            Console &console)
{
    const QString output = line.value(QStringLiteral("output"));
    const QString error = output.isEmpty() ? QString() : writeOutputFile(output, text);
    if (!error.isEmpty()) {
        console.complain(error);
        return false;
    }
    if (line.isSet(QStringLiteral("json"))) {
        console.print(QJsonObject {
            { QStringLiteral("from"), source.format },
            { QStringLiteral("item"), jsonOf(source.item) },
            { QStringLiteral("leftOut"), asJson(source.leftOut) },
            { QStringLiteral("output"), output.isEmpty() ? QJsonValue() : QJsonValue(output) } });
        return true;
    }
    for (const LeftOut &each : source.leftOut)
        console.complain(QStringLiteral("%1: %2").arg(each.what, each.why));
    if (output.isEmpty())
        console.print(text);
    return true;
}

/// Also by another name or a link.
bool isSameFile(const QString &path, const QString &other)
{
    const QString real = QFileInfo(other).canonicalFilePath();
    return !real.isEmpty() && real == QFileInfo(path).canonicalFilePath();
}

ExitCode run(const QCommandLineParser &line, Console &console)
{
    const QString to = line.value(QStringLiteral("to"));
    if (!to.isEmpty() && to != QLatin1String("ini") && to != QLatin1String("json")) {
        console.complain(Command::tr("\"%1\" is no format: \"ini\" and \"json\" are.").arg(to));
        return WrongUsage;
    }
    const QString path = line.positionalArguments().constFirst();
    const ItemFile file(path);
    const bool isIni = formatOf(file.bytes()) == QLatin1String("ini");
    const QString complaint = isIni ? file.whyNoModule() : file.error();
    if (!complaint.isEmpty()) {
        console.complain(complaint);
        return Found;
    }
    if (isSameFile(path, line.value(QStringLiteral("output")))) {
        console.complain(
            Command::tr("%1: is the file that is read: name another one to write.").arg(path));
        return WrongUsage;
    }
    Source source = sourceIn(file);
    const bool isJson
        = to.isEmpty() ? source.format == QLatin1String("ini") : to == QLatin1String("json");
    const QByteArray text = source.error.isEmpty() ? converted(&source, isJson) : QByteArray();
    if (!source.error.isEmpty()) {
        console.complain(path + QLatin1String(": ") + source.error);
        return Found;
    }
    return report(source, text, line, console) ? Done : Found;
}

} // namespace

Command convertCommand()
{
    return { "convert",
             "FILE",
             1,
             1,
             QT_TRANSLATE_NOOP("Command", "Convert an item between its file, JSON and FMI"),
             QT_TRANSLATE_NOOP(
                 "Command",
                 "Makes JSON of an item file, and an item file of JSON or of the "
                 "modelDescription.xml of a Functional Mock-up Unit, version 2 or 3. JSON holds "
                 "every field of an item, also translated texts, which an item file cannot.\n\n"
                 "Of a model, parameters and inputs become parameters, outputs become results, and "
                 "each kind of simulation a mode; units, start values, limits, enumerations and "
                 "descriptions are taken over. What has no place is listed, but for the base units "
                 "and the capabilities of the library."),
             { { { QStringLiteral("o"), QStringLiteral("output") },
                 "FILE",
                 QT_TRANSLATE_NOOP("Command", "Write this file in place of the standard output.") },
               { { QStringLiteral("to") },
                 "ini|json",
                 QT_TRANSLATE_NOOP("Command",
                                   "What to write; else JSON of an item file, and an item file of "
                                   "everything else.") } },
             { { "kelto convert beam.ini -o beam.json",
                 QT_TRANSLATE_NOOP("Command", "An item as JSON.") },
               { "kelto convert modelDescription.xml -o pump.ini",
                 QT_TRANSLATE_NOOP("Command", "The model of another tool as a module.") } },
             run };
}
