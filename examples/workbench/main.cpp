// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"
#include "workbench.h"

#include <Kelto/AUTH_SET>

#include <QApplication>

int main(int argc, char *argv[])
{
    const Options options = [&] {
        // Help and complaints need no display; a QApplication would end the program without one.
        const QCoreApplication early(argc, argv);
        return readOptions(QCoreApplication::arguments());
    }();
    QApplication application(argc, argv);
    AUTH_SET registry(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
                      options.modules);
    MainWindow window(&registry, options.modules, options.language);
    window.begin(options.task, options.project);
    return QApplication::exec();
}
