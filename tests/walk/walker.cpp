// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "walker.h"

#include "onlooker.h"

#include <cstdio>
#include <cstdlib>

namespace {

const int patience = 10000; // ms that the user waits for anything

void print(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

} // namespace

Walker::Walker(const QDir &directory)
    : m_directory(directory)
{
}

void Walker::start()
{
    expect("program", "has ended", [] { return "runs"; });
    m_waiting.start();
    startTimer(20);
}

void Walker::timerEvent(QTimerEvent * /*event*/)
{
    const QVariant seen = m_steps.head().look();
    if (seen == m_steps.head().expected) {
        const Step step = m_steps.dequeue();
        step.act();
        m_waiting.restart();
    } else if (m_waiting.hasExpired(patience)) {
        fail(m_steps.head().what + ": " + m_steps.head().expected.toString(), seen.toString());
    }
}

void Walker::expectEnd()
{
    if (m_steps.size() > 1)
        fail(m_steps.head().what, "the program ended before");
}

void Walker::expect(const QString &what, const QVariant &expected, const Look &look)
{
    m_steps.enqueue({ what, expected, look, [what, expected] {
                         print(QString("  %1: %2").arg(what, expected.toString()));
                     } });
}

/// Clicks what has come to rest: a window that has just opened may still be moved.
void Walker::click(const QString &what, const std::function<QPoint()> &position)
{
    auto last = std::make_shared<QPoint>();
    const auto isAtRest = [position, last] {
        const QPoint now = position();
        const bool isSame = !now.isNull() && now == *last;
        *last = now;
        return isSame;
    };
    m_steps.enqueue({ what + " on the screen", true, isAtRest, [=] {
                         print("Clicks " + what);
                         m_input.click(*last);
                     } });
}

void Walker::act(const QString &what, const std::function<void()> &action)
{
    m_steps.enqueue({ what, true, [] { return true; },
                      [what, action] {
                          print(what);
                          action();
                      } });
}

void Walker::takePicture(const QString &name)
{
    const QString path = m_directory.absoluteFilePath(
        QString("%1-%2.png").arg(++m_pictures, 2, 10, QChar('0')).arg(name));
    // Two pictures in a row that are equal: nothing is being drawn any more.
    auto last = std::make_shared<QImage>();
    m_steps.enqueue({ "a still picture", true,
                      [last] {
                          const QImage now = Onlooker::screenshot();
                          const bool isStill = now == *last;
                          *last = now;
                          return isStill;
                      },
                      [path, last] {
                          print("  picture: " + path);
                          last->save(path);
                      } });
}

void Walker::fail(const QString &expected, const QString &seen) const
{
    const QString path = m_directory.absoluteFilePath("failure.png");
    const bool isSaved = Onlooker::screen().save(path);
    print(QString("FAILED\n  expected: %1\n  seen:     %2\n  picture:  %3")
              .arg(expected, seen, isSaved ? path : "none"));
    // The program is in some event loop and nobody is left to end it.
    std::_Exit(EXIT_FAILURE);
}
