// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef WALKER_H
#define WALKER_H

#include "userinput.h"

#include <QDir>
#include <QElapsedTimer>
#include <QObject>
#include <QQueue>
#include <QVariant>

#include <functional>

/// A user who walks through the program once: a list of steps, each taken from the event loop that
/// the program is in as soon as the program shows what the step waits for. Prints every step, and
/// ends the process with 1 at the first one that goes wrong.
class Walker : public QObject
{
public:
    /// @param directory where the pictures go, and where the program writes its files
    explicit Walker(const QDir &directory);

    /// To be called when the program has left its event loop.
    void lookBack(const QString &logFile);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    using Look = std::function<QVariant()>;
    struct Step
    {
        QString what;
        QVariant expected;
        Look look;
        std::function<void()> act;
    };

    void acceptFirstTask();
    void chooseDefault();
    void chooseAndCancel();
    void changeValues();

    void useWindow(const char *window);
    void openDialog();
    void pickEntry(const QString &entry);
    void clickInDialog(const char *button);
    void enterPointLoad(const QString &value);
    void expectTask(const QString &standardName, const QString &title);
    void expectResult(const QString &row);

    void expect(const QString &what, const QVariant &expected, const Look &look);
    void click(const QString &what, const std::function<QPoint()> &position,
               void (UserInput::*how)(QPoint) = &UserInput::click);
    void act(const QString &what, const std::function<void()> &action);
    void takePicture(const QString &name);
    void compareScreenshot();
    [[noreturn]] void fail(const QString &expected, const QString &seen) const;

    QDir m_directory;
    UserInput m_input;
    QQueue<Step> m_steps;
    QElapsedTimer m_waiting;
    int m_pictures = 0;
};

#endif
