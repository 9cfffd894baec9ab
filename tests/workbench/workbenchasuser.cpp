// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The start of the workbench with the rights of another user, who need not be able to read the
// directory that the program lies in: it gives up its own rights when it is loaded.
//   workbenchasuser ID [option of the workbench]...
// An empty ID stands for the user who it is.

#include "workbench.h"

#include "support/becomeuser.h"

#include <QApplication>

#include <cstdlib>

int main(int argc, char *argv[])
{
    if (argc < 2 || !becomeUser(QString::fromLocal8Bit(argv[1])))
        return 3;
    QApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    arguments.removeAt(1);
    readOptions(arguments);
    // A leak checker, which looks at what is left at a usual end, may have lost the right to read
    // what it is to overlook.
    std::quick_exit(Done);
}
