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
 * Tells listeners that a window, or a widget in it, is polished, shown, moved, activated, focused
 * or hidden when Qt has finished with it.
 *
 * Qt itself goes on with the window after it has sent such events, so a listener that deletes the
 * window, or gives it another parent, would end the program. Sent later, the same events do no
 * harm.
 */
class DeferredEvents : public QObject
{
public:
    /// For @p window and the widgets in it. @p place is called before the window is on the screen:
    /// by the time that listeners are told it is too late.
    DeferredEvents(QWidget *window, std::function<void(QShowEvent *)> place);

    /// Looks at all events of the program, in front of all other filters, until stop() was called
    /// as often.
    void start();
    void stop();

    /// Polishes the window and the widgets in it, unless that has been done.
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

    bool isOfWindow(const QObject *watched) const;
    bool isOfChange(const QObject *watched, const QEvent *event) const;
    bool isPremature(const QObject *watched, const QEvent *event) const;

    QWidget *m_window;
    std::function<void(QShowEvent *)> m_place;
    int m_starts = 0;
    /// What the listeners wait for.
    QVector<Deferred> m_untold;
    bool m_isClosing = false;
    /// Whether Qt is showing or hiding the window.
    bool m_isChanging = false;
    /// The widgets to which Qt is going to send a second event for the same polishing.
    QVector<const QObject *> m_polished;
};

#endif
