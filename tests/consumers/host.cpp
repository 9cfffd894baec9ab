// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A host that needs the first library alone.

#include <Kelto/AUTH_SET>
#include <Kelto/UTaskSelectDialog>

#include <QApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    AUTH_INF beam;
    beam.name = "Beam";
    beam.group = "Statics";
    beam.group_tr = "静力学";
    beam.exclusive_group = true; // of all modes in the group, one is selected at a time
    beam.inner_mode_count = 2;
    beam.inner_mode_nameList = QStringList { "Cantilever", "Simply supported" };
    beam.inner_mode_nameList_tr = QStringList { "悬臂梁", "简支梁" };

    AUTH_SET registry("Host", "1.0", { beam });
    registry.current_group = "Statics"; // what the dialog offers first
    registry.current_mode = "Cantilever";

    UTaskSelectDialog dialog;
    dialog.set(&registry);
    dialog.show(); // waits until the user has chosen
    if (dialog.operateIndex != 0)
        return 1; // the user has cancelled

    QTextStream(stdout) << registry.stdModeNameForm(registry.current_group, registry.current_mode)
                        << '\n'; // Host:Statics:Cantilever
    return 0;
}
