// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "workbench.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    nameApplication();
    const Options options = readOptions(QCoreApplication::arguments());
    Workbench workbench(options);
    workbench.open(options.task);
    return QApplication::exec();
}
