// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "workbench.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    const Options options = [&] {
        // Help and complaints need no display; a QApplication would end the program without one.
        const QCoreApplication early(argc, argv);
        return readOptions(QCoreApplication::arguments());
    }();
    QApplication application(argc, argv);
    Workbench workbench(options);
    workbench.open(options);
    return QApplication::exec();
}
