// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef DEFERREDEVENTS_P_H
#define DEFERREDEVENTS_P_H

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QSharedPointer>
#include <QVector>
#include <QWidget>

#include <functional>

class QShowEvent;

/**
 * Tells listeners that a window is polished, shown, activated or hidden when Qt has finished with
 * it.
 *
 * Qt itself goes on with the window after it has sent these events, so a listener that deletes the
 * window, or gives it another parent, would end the program. Sent later, the same events do no
 * harm.
 */
class DeferredEvents : public QObject
{
public:
    /// For @p window and that child of it which has the focus first. @p place is called before the
    /// window is on the screen: by the time that listeners are told it is too late.
    DeferredEvents(QWidget *window, const QWidget *focusWidget,
                   std::function<void(QShowEvent *)> place);

    /// Looks at all events of the program, in front of all other filters, until stop() was called
    /// as often.
    void start();
    void stop();

    /// Polishes the window, unless that has been done.
    void polish();
    /// Calls @p change, which shows or hides the window, and then tells the listeners.
    void tellAfter(const std::function<void()> &change);
    /// Lets the listeners wait for tell(): a window that they show again while Qt is closing it
    /// could not be closed a second time.
    void startClosing();
    void tell();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Deferred
    {
        QPointer<QObject> receiver;
        QSharedPointer<QEvent> event;
    };
    using Queue = QVector<Deferred>;

    bool isPremature(const QObject *watched, const QEvent *event) const;

    QWidget *m_window;
    const QWidget *m_focusWidget;
    std::function<void(QShowEvent *)> m_place;
    int m_starts = 0;
    /// What the listeners wait for.
    Queue m_untold;
    bool m_isClosing = false;
    /// What tellAfter() will send; there is none while it is not running.
    Queue *m_queue = nullptr;
    /// Whether Qt is going to send a second event for the same polishing.
    bool m_hasPolished = false;
};

#endif
