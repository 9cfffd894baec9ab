// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A registry in a process of its own, which finds the values of others in files only: stores
// values, writes a line to the log, and then the values of some keys to the standard output, as
// JSON.
//   settingsreader [--set KEY=VALUE]... [--log TEXT] KEY...

#include <Kelto/AUTH_SET>

#include "support/messages.h"
#include "support/settingsjson.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const Messages messages;
    QCommandLineParser parser;
    parser.addOptions({ { "set", "Store a set value.", "key=value" },
                        { "log", "Write a line to the log.", "text" } });
    parser.process(application);

    AUTH_SET set("App", "1.0", { AUTH_INF() });
    const QStringList assignments = parser.values("set");
    for (const QString &assignment : assignments)
        set.setValueInSet(assignment.section('=', 0, 0), assignment.section('=', 1));
    if (parser.isSet("log"))
        set.log(parser.value("log"));
    Entries values;
    const QStringList keys = parser.positionalArguments();
    for (const QString &key : keys)
        values.append({ key, set.value_set(key) });
    const QJsonObject answer {
        { "values", jsonOf(values) },
        { "messages", QJsonArray::fromStringList(Messages::collected()) },
    };
    QTextStream(stdout) << QJsonDocument(answer).toJson();
    return 0;
}
