// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "console.h"
#include "itempaths.h"

#include <QCommandLineParser>
#include <QJsonObject>
#include <VIniSettings>

namespace {

ExitCode run(const QCommandLineParser &line, Console &console)
{
    const QString path = line.positionalArguments().constFirst();
    // The store would create a file that is missing.
    const QString complaint = whyUnreadable(path);
    if (!complaint.isEmpty()) {
        console.complain(complaint);
        return Found;
    }
    const QString sheet = VIniSettings(path).styleSheetFormat();
    if (line.isSet(QStringLiteral("json"))) {
        console.print(QJsonObject { { QStringLiteral("file"), path },
                                    { QStringLiteral("styleSheet"), sheet } });
    } else {
        console.print(sheet + QLatin1Char('\n'));
    }
    return Done;
}

} // namespace

Command styleCommand()
{
    return { "style",
             "FILE",
             1,
             1,
             QT_TRANSLATE_NOOP("Command", "Write the style sheet that an INI file describes"),
             QT_TRANSLATE_NOOP("Command",
                               "Writes the style sheet text that VIniSettings::styleSheetFormat() "
                               "makes of the file."),
             {},
             { { "kelto style button.ini",
                 QT_TRANSLATE_NOOP("Command", "The style sheet of a button.") } },
             run };
}
