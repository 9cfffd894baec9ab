// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "deferredevents_p.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QMoveEvent>
#include <QResizeEvent>
#include <QShowEvent>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

/// Its class tells that it has been deferred already.
class LateEvent : public QEvent
{
public:
    using QEvent::QEvent;
};

QEvent *copyOf(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::Show:
        return new QShowEvent;
    case QEvent::Hide:
        return new QHideEvent;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        // With the reason that the window was activated it would be deferred again.
        return new QFocusEvent(event.type(), Qt::OtherFocusReason);
    case QEvent::Move: {
        const auto &move = static_cast<const QMoveEvent &>(event);
        return new QMoveEvent(move.pos(), move.oldPos());
    }
    case QEvent::Resize: {
        const auto &resize = static_cast<const QResizeEvent &>(event);
        return new QResizeEvent(resize.size(), resize.oldSize());
    }
    default:
        return new LateEvent(event.type());
    }
}

} // namespace

DeferredEvents::DeferredEvents(QWidget *window, std::function<void(QShowEvent *)> place)
    : m_window(window)
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
    m_polished.clear();
    if (--m_starts == 0)
        QCoreApplication::instance()->removeEventFilter(this);
}

void DeferredEvents::polish()
{
    const QPointer<DeferredEvents> self(this);
    QVector<QPointer<QWidget>> widgets { m_window };
    const auto children = m_window->findChildren<QWidget *>();
    std::copy(children.begin(), children.end(), std::back_inserter(widgets));
    for (const QPointer<QWidget> &widget : std::as_const(widgets)) {
        if (!widget || widget->testAttribute(Qt::WA_WState_Polished))
            continue;
        QEvent event(QEvent::Polish);
        QCoreApplication::sendEvent(widget, &event);
        if (!self)
            return;
        m_polished.append(widget);
    }
}

void DeferredEvents::tellAfter(const std::function<void()> &change)
{
    const QPointer<DeferredEvents> self(this);
    const bool wasChanging = std::exchange(m_isChanging, true);
    change();
    if (!self)
        return;
    m_isChanging = wasChanging;
    if (!m_isClosing)
        tell();
}

void DeferredEvents::startClosing()
{
    m_isClosing = true;
}

void DeferredEvents::tell()
{
    const QPointer<DeferredEvents> self(this);
    m_isClosing = false;
    // A listener may show or hide the window, which tells of the rest first, or close it.
    while (self && !m_isChanging && !m_isClosing && !m_untold.isEmpty()) {
        const Deferred deferred = m_untold.takeFirst();
        if (deferred.receiver)
            QCoreApplication::sendEvent(deferred.receiver, deferred.event.data());
    }
}

bool DeferredEvents::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Polish)
        return m_polished.removeOne(watched);
    // The close button of a window hides it twice.
    const bool isQueued = (m_isChanging || m_isClosing) && isOfChange(watched, event);
    if (!isQueued && !isPremature(watched, event))
        return false;
    if (watched == m_window && event->type() == QEvent::Show)
        m_place(static_cast<QShowEvent *>(event));
    if (isQueued)
        m_untold.append({ watched, QSharedPointer<QEvent>(copyOf(*event)) });
    else
        QCoreApplication::postEvent(watched, copyOf(*event));
    return true;
}

bool DeferredEvents::isOfWindow(const QObject *watched) const
{
    return watched == m_window
        || (watched->isWidgetType()
            && m_window->isAncestorOf(static_cast<const QWidget *>(watched)));
}

/// Whether Qt sends @p event while it shows or hides the window, and is not done with it yet.
bool DeferredEvents::isOfChange(const QObject *watched, const QEvent *event) const
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
        // A minimised window is told by the window system.
        return !event->spontaneous() && isOfWindow(watched);
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::LayoutRequest:
    case QEvent::WinIdChange:
    case QEvent::ActivationChange:
    // As a dialog is shown, its first focus widget is told again.
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        return isOfWindow(watched);
    default:
        return false;
    }
}

/// Whether the window system, or the window itself, tells of @p event, and goes on after it.
bool DeferredEvents::isPremature(const QObject *watched, const QEvent *event) const
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::ActivationChange:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
        return watched == m_window && event->spontaneous();
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        return static_cast<const QFocusEvent *>(event)->reason() == Qt::ActiveWindowFocusReason
            && isOfWindow(watched);
    case QEvent::LanguageChange:
        return watched != m_window && isOfWindow(watched)
            && !dynamic_cast<const LateEvent *>(event);
    default:
        return false;
    }
}
