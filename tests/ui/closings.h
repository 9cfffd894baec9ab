// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef CLOSINGS_H
#define CLOSINGS_H

#include "dialogsupport.h"

#include <functional>

using Closing = std::function<void(UTaskSelectDialog *)>;
Q_DECLARE_METATYPE(Closing)

inline void addClosing(const char *name, const Closing &closing)
{
    QTest::newRow(name) << closing;
}

/// What the user can do to make the dialog go away.
inline void addClosingsByUser()
{
    addClosing("click on Accept", [](auto *dialog) { click(*dialog, "pushButton_accept"); });
    addClosing("click on Cancel", [](auto *dialog) { click(*dialog, "pushButton_cancel"); });
    addClosing("click on Default", [](auto *dialog) { click(*dialog, "pushButton_Default"); });
    addClosing("Escape", [](auto *dialog) { press(*dialog, Qt::Key_Escape); });
    addClosing("close button", [](auto *dialog) { pressCloseButton(*dialog); });
}

/// What the host can call to make the dialog go away.
inline void addClosingsByHost()
{
    addClosing("operate(0)", [](auto *dialog) { dialog->operate(0); });
    addClosing("operate(1)", [](auto *dialog) { dialog->operate(1); });
    addClosing("operate(2)", [](auto *dialog) { dialog->operate(2); });
    addClosing("operate(99)", [](auto *dialog) { dialog->operate(99); });
    addClosing("accept()", [](auto *dialog) { dialog->accept(); });
    addClosing("reject()", [](auto *dialog) { dialog->reject(); });
    addClosing("done(0)", [](auto *dialog) { dialog->done(0); });
    addClosing("done(7)", [](auto *dialog) { dialog->done(7); });
    addClosing("close()", [](auto *dialog) { dialog->close(); });
    addClosing("hide()", [](auto *dialog) { dialog->hide(); });
    addClosing("setVisible(false)", [](auto *dialog) { dialog->setVisible(false); });
    addClosing("closeAllWindows()", [](auto *) { QApplication::closeAllWindows(); });
    addClosing("close() twice", [](auto *dialog) {
        dialog->close();
        dialog->close();
    });
}

/// Deletes the widget that it watches, and itself with it, when that is about to close.
class DeletesWhatCloses : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Close)
            return false;
        delete watched;
        return true;
    }
};

/// Ways in which a dialog on the heap can be deleted.
inline void addDeletions()
{
    addClosing("delete", [](auto *dialog) { delete dialog; });
    addClosing("deleteLater()", [](auto *dialog) { dialog->deleteLater(); });
    addClosing("close() and delete", [](auto *dialog) {
        dialog->close();
        delete dialog;
    });
    addClosing("close() of one that deletes itself", [](auto *dialog) {
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->close();
    });
    addClosing("Cancel of one that deletes itself", [](auto *dialog) {
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->operate(1);
    });
    addClosing("Default of one that deletes itself", [](auto *dialog) {
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->operate(2);
    });
    addClosing("Default of one that is deleted while it closes", [](auto *dialog) {
        dialog->installEventFilter(new DeletesWhatCloses(dialog));
        dialog->operate(2);
    });
    addClosing("reject() of one that deletes itself", [](auto *dialog) {
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->reject();
    });
}

#endif
