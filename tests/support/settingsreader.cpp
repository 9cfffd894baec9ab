// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Does with stored values what it is told, and writes what came of it to the standard output, as
// JSON. A process of its own finds the values of others in files only, and as another user it does
// not find all of these.
//   settingsreader [--as-user ID] [--application NAME] [--set KEY=VALUE]... [--save PATH]
//                  [--load PATH] [--log TEXT] KEY...

#include <Kelto/AUTH_SET>

#include "support/becomeuser.h"
#include "support/messages.h"
#include "support/settingsjson.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

namespace {

AUTH_SET registry(const QString &application)
{
    return application.isEmpty() ? AUTH_SET() : AUTH_SET(application, "1.0", { AUTH_INF() });
}

/// One element for each of the operations that was asked for, the result of it.
QJsonArray saveAndLoad(const QCommandLineParser &parser, const AUTH_SET &set, Entries *values)
{
    QJsonArray results;
    if (parser.isSet("save")) {
        const Entries toSave { { "saved", "new" } };
        results.append(set.save(parser.value("save"), &toSave));
    }
    if (parser.isSet("load"))
        results.append(set.load(parser.value("load"), values));
    return results;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const Messages messages;
    QCommandLineParser parser;
    parser.addOptions({ { "as-user", "Give up all rights but those of this user.", "id" },
                        { "application", "The name of the application.", "name" },
                        { "set", "Store a set value.", "key=value" },
                        { "save", "Save the value \"saved\" to this file.", "path" },
                        { "load", "Load this file beside a value \"held\".", "path" },
                        { "log", "Write a line to the log.", "text" } });
    parser.process(application);
    if (!becomeUser(parser.value("as-user")))
        return 3;

    AUTH_SET set = registry(parser.value("application"));
    const QStringList assignments = parser.values("set");
    for (const QString &assignment : assignments)
        set.setValueInSet(assignment.section('=', 0, 0), assignment.section('=', 1));
    if (parser.isSet("log"))
        set.log(parser.value("log"));
    Entries loaded { { "held", "old" } };
    const QJsonArray results = saveAndLoad(parser, set, &loaded);
    Entries values;
    const QStringList keys = parser.positionalArguments();
    for (const QString &key : keys)
        values.append({ key, set.value_set(key) });

    const QJsonObject answer {
        { "results", results },
        { "loaded", jsonOf(loaded) },
        { "values", jsonOf(values) },
        { "messages", QJsonArray::fromStringList(Messages::collected()) },
    };
    QFile output;
    return output.open(stdout, QIODevice::WriteOnly)
            && output.write(QJsonDocument(answer).toJson()) > 0
        ? 0
        : 1;
}
