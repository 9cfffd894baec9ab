// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "deferredevents_p.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QShowEvent>

#include <utility>

namespace {

QEvent *copyOf(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::Show:
        return new QShowEvent;
    case QEvent::Hide:
        return new QHideEvent;
    case QEvent::FocusIn:
        // With the reason that the window was activated it would be deferred again.
        return new QFocusEvent(QEvent::FocusIn, Qt::OtherFocusReason);
    default:
        return new QEvent(event.type());
    }
}

} // namespace

DeferredEvents::DeferredEvents(QWidget *window, const QWidget *focusWidget,
                               std::function<void(QShowEvent *)> place)
    : m_window(window)
    , m_focusWidget(focusWidget)
    , m_place(std::move(place))
{
}

void DeferredEvents::start()
{
    ++m_starts;
    m_isClosing = false;
    QCoreApplication::instance()->installEventFilter(this);
}

void DeferredEvents::stop()
{
    m_hasPolished = false;
    if (--m_starts == 0)
        QCoreApplication::instance()->removeEventFilter(this);
}

void DeferredEvents::polish()
{
    if (m_window->testAttribute(Qt::WA_WState_Polished))
        return;
    const QPointer<DeferredEvents> self(this);
    QEvent event(QEvent::Polish);
    QCoreApplication::sendEvent(m_window, &event);
    if (self)
        m_hasPolished = true;
}

void DeferredEvents::tellAfter(const std::function<void()> &change)
{
    const QPointer<DeferredEvents> self(this);
    Queue queue;
    Queue *const outer = std::exchange(m_queue, &queue);
    change();
    if (!self)
        return;
    m_queue = outer;
    m_untold += queue;
    if (!m_isClosing)
        tell();
}

void DeferredEvents::startClosing()
{
    m_isClosing = true;
}

void DeferredEvents::tell()
{
    m_isClosing = false;
    const Queue queue = std::exchange(m_untold, {});
    for (const Deferred &deferred : queue) {
        if (deferred.receiver)
            QCoreApplication::sendEvent(deferred.receiver, deferred.event.data());
    }
}

bool DeferredEvents::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::Polish)
        return std::exchange(m_hasPolished, false);
    if (!isPremature(watched, event))
        return false;
    if (event->type() == QEvent::Show)
        m_place(static_cast<QShowEvent *>(event));
    if (m_queue)
        m_queue->append({ watched, QSharedPointer<QEvent>(copyOf(*event)) });
    else
        QCoreApplication::postEvent(watched, copyOf(*event));
    return true;
}

bool DeferredEvents::isPremature(const QObject *watched, const QEvent *event) const
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
        // A minimised window is told by the window system.
        return watched == m_window && m_queue && !event->spontaneous();
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
        return watched == m_window && event->spontaneous();
    case QEvent::FocusIn:
        // As a dialog is shown or activated, its first focus widget is told again.
        return watched == m_focusWidget
            && (m_queue
                || static_cast<const QFocusEvent *>(event)->reason()
                    == Qt::ActiveWindowFocusReason);
    default:
        return false;
    }
}
