// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Appended to a host, which stays as it is: presses "Accept" in
// the dialog that the host opens.

#include <QApplication>
#include <QPushButton>

namespace {

void accept()
{
    const QWidget *dialog = QApplication::activeModalWidget();
    QPushButton *button = dialog ? dialog->findChild<QPushButton *>("pushButton_accept") : nullptr;
    if (!button)
        qFatal("The host does not wait in its dialog.");
    button->click();
}

// The dialog's event loop is the first that delivers what is queued.
void acceptFromWithin()
{
    QMetaObject::invokeMethod(qApp, accept, Qt::QueuedConnection);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(acceptFromWithin)
