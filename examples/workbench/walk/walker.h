// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef WALKER_H
#define WALKER_H

#include "onlooker.h"
#include "userinput.h"

#include <QDir>
#include <QSemaphore>
#include <QThread>

#include <functional>

/// A user who walks through the program once, in a thread of its own because the program waits in
/// event loops. Prints every step, and ends the process with 1 at the first that goes wrong.
class Walker : public QThread
{
public:
    /// To be made before the program writes to its log, which may hold lines of an earlier walk.
    /// @param directory where the pictures go, and where the program writes its files
    Walker(const QDir &directory, const QString &logFile);

    void startLookingAt(MainWindow *window);

    /// To be called when the program has left its event loop.
    void tellThatProgramEnded() { m_programEnd.release(); }

protected:
    void run() override;

private:
    void walk();
    void chooseFirstTask();
    void lookAtThickWall();
    void chooseDefault();
    void chooseAndCancel();
    void changeValues();
    void closeWindow();
    void lookAtFiles();

    void expectRemembered(const QString &task);
    void waitForDialog();
    void pickEntry(const QString &entry);
    void clickDialogButton(const char *name, const QString &text);
    void clickChooseTask();
    void enterPointLoad(const QString &value);

    void step(const QString &text);
    void takePicture(const QString &name);
    void expect(const QString &what, const QString &expected, const std::function<QString()> &look);
    QPoint placeOf(const QString &what, const std::function<QPoint()> &look);

    Onlooker m_onlooker;
    QDir m_directory;
    QString m_logFile;
    qint64 m_logSizeBefore;
    QSemaphore m_programEnd;
    std::unique_ptr<UserInput> m_input;
    int m_steps = 0;
    int m_pictures = 0;
};

#endif
