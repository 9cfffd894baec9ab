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

/// A user who walks through a program: a list of steps, each taken from the event loop that the
/// program is in as soon as the program shows what the step waits for. Prints every step, and ends
/// the process with 1 at the first one that goes wrong.
class Walker : public QObject
{
public:
    /// @param directory where the pictures go
    explicit Walker(const QDir &directory);

    using Look = std::function<QVariant()>;
    void expect(const QString &what, const QVariant &expected, const Look &look);
    void click(const QString &what, const std::function<QPoint()> &position);
    void act(const QString &what, const std::function<void()> &action);
    void takePicture(const QString &name);

    UserInput &input() { return m_input; }
    QDir directory() const { return m_directory; }

    /// Begins to walk, once the event loop runs.
    void start();
    /// To be called when the program has left its event loop.
    void expectEnd();

    [[noreturn]] void fail(const QString &expected, const QString &seen) const;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    struct Step
    {
        QString what;
        QVariant expected;
        Look look;
        std::function<void()> act;
    };

    QDir m_directory;
    UserInput m_input;
    QQueue<Step> m_steps;
    QElapsedTimer m_waiting;
    int m_pictures = 0;
};

#endif
