// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SHOWING_P_H
#define SHOWING_P_H

#include <QEventLoop>
#include <QHideEvent>
#include <QMessageBox>

/// One running show(), or the information box in it.
struct Showing
{
    QEventLoop loop;
    /// Whether the window has been closed or hidden since.
    bool isOver = false;
};

/// With exec() instead, a box that is to go before it has its loop would stay.
class InformationBox : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

    Showing showing;

protected:
    void hideEvent(QHideEvent *event) override
    {
        QMessageBox::hideEvent(event);
        if (!event->spontaneous())
            showing.loop.quit();
    }
};

#endif
