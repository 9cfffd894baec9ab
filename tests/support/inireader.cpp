// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Reads INI files through VIniSettings and writes what it got to the standard output, as JSON: an
// array with one object per file. With --set it changes and saves each of them before.
//   inireader [--as-user ID] [--set KEY=VALUE]... FILE...

#include <Kelto/VIniSettings>

#include "support/becomeuser.h"
#include "support/messages.h"
#include "support/outofmemory.h"
#include "support/settingsjson.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace {

void setAndSave(const QString &path, const QStringList &assignments)
{
    VIniSettings store(path);
    for (const QString &assignment : assignments) {
        const int sign = assignment.indexOf('=');
        store.setValue(assignment.left(sign), assignment.mid(sign + 1));
    }
    store.saveLocal();
}

QJsonObject reading(const QString &path)
{
    const VIniSettings store(path);
    return { { "path", store.filepath() },
             { "keys", QJsonArray::fromStringList(store.allKeys()) },
             { "groups", QJsonArray::fromStringList(store.allGroups()) },
             { "entries", jsonOf(store.data()) } };
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const Messages messages;
    QCommandLineParser parser;
    const QCommandLineOption user("as-user", "Give up all rights but those of this user.", "id");
    const QCommandLineOption set("set", "Set a value and save.", "key=value");
    parser.addOptions({ user, set });
    parser.process(application);
    if (!becomeUser(parser.value(user)))
        return 3;

    QJsonArray readings;
    const QStringList paths = parser.positionalArguments();
    for (const QString &path : paths) {
        if (parser.isSet(set))
            setAndSave(path, parser.values(set));
        QJsonObject object = reading(path);
        object.insert("messages", QJsonArray::fromStringList(Messages::collected()));
        readings.append(object);
        Messages::collected().clear();
    }
    QFile output;
    return output.open(stdout, QIODevice::WriteOnly)
            && output.write(QJsonDocument(readings).toJson())
        ? 0
        : 1;
}
