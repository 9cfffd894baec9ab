// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef UTASKSELECTDIALOG_H
#define UTASKSELECTDIALOG_H

#include "kelto_export.h"

#include <QDialog>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class AUTH_SET;
class UTaskSelectDialogPrivate;

/// Plain and translated standard mode name of one mode.
using VStringPair = QPair<QString, QString>;
/// Modes, each as its pair of standard mode names. Both types are known to Qt's meta-type system
/// under these names as soon as the library is loaded.
using VStringPairList = QVector<QPair<QString, QString>>;

/**
 * The window in which the user confirms the task type, that is the mode, when a project is opened.
 *
 * A host creates it, binds its registry with set(), may narrow the offer with
 * resetToExclusiveGroup(), and calls show(), which returns when the window has closed. The
 * outcome is then found in AUTH_SET::current_group and AUTH_SET::current_mode, in the selection of
 * the exclusive group, and in operateIndex. What an empty offer and the buttons do to these is
 * among the traps in docs/traps.md.
 *
 * When the language changes, the dialog sets its own texts anew, its title included. The entries
 * are the host's and stay. A name that is too long for the window is shown with an ellipsis; all
 * operations take and return it whole.
 *
 * While show() or exec() runs, a host may close the dialog, show it again, give it another parent
 * or delete it, from a timer, from a slot of its buttons or its combo box, and from an event filter
 * when the dialog or a widget in it is polished, shown, moved, resized, laid out, activated,
 * focused or hidden, when the dialog is closed, and when the language changes. The filters are told
 * when Qt has finished with the window, not in between. Qt itself does not survive that the dialog
 * is deleted, or given another parent, while it is painted, or deleted by a slot of
 * windowTitleChanged() while the language changes, or that the combo box alone is deleted by a slot
 * of its own. An event filter that has deleted the dialog returns true, as for any object of Qt.
 */
class KELTO_EXPORT UTaskSelectDialog : public QDialog
{
    Q_OBJECT

public:
    /// A dialog without parent, registry and entries.
    UTaskSelectDialog();
    /// Leaves the registry alone. A show() or exec() that is still running returns. The widgets of
    /// the form then live on without the dialog until control returns to an event loop.
    ~UTaskSelectDialog() override;

    /// The id last given to operate(): 0 after "Accept" and after "Default", 1 after "Cancel"; -1
    /// from each showing with a registry until then. It is 0 also when nothing could be accepted,
    /// because no entry was current or its name does not have exactly three fields: then the
    /// registry is unchanged.
    int operateIndex;

    /// Binds @p registry and offers all its modes; nullptr unbinds and offers nothing. The registry
    /// stays the caller's and has to outlive the dialog, which cannot notice its deletion and would
    /// still use it to show, to offer and to accept modes. A host that deletes the registry before
    /// the dialog calls set(nullptr) first, also while the dialog is shown; "Accept" then only
    /// closes it.
    void set(AUTH_SET *registry);

    /// The entry under the current index of the combo box; a pair of empty texts when there is
    /// none, or the host has deleted the combo box.
    QPair<QString, QString> currentItem() const;

    /// Current index of the combo box; -1 when there is none, or the host has deleted the combo
    /// box. Nothing can be accepted then.
    int currentItemIndex() const;

    /// All modes of the registry; empty without a registry.
    QVector<QPair<QString, QString>> availableModeItems() const;

    /// The modes of the registry that @p codes names, as the other overload picks them.
    QVector<QPair<QString, QString>> availableModeItemsWithModeCodeList(QStringList codes) const;

    /// For each of @p codes, in order and with duplicates kept, the first entry of @p list with the
    /// code as its first member, or else the first with it as its second; unknown codes are left
    /// out.
    QVector<QPair<QString, QString>> availableModeItemsWithModeCodeList(
        QVector<QPair<QString, QString>> list, QStringList codes) const;

    /// The first members of @p list, in order.
    QStringList getFirstItems(QVector<QPair<QString, QString>> list) const;
    /// The second members of @p list, in order.
    QStringList getSecondItems(QVector<QPair<QString, QString>> list) const;

    /// Makes the mode that was accepted last, as the registry holds it, the current entry. Without
    /// a registry an information box tells the user so. A window that was minimised and is restored
    /// keeps the entry that the user had chosen. While show() or exec() runs, the event comes when
    /// the window is on the screen.
    void showEvent(QShowEvent *event) override;
    /// Lets a running show() return.
    void closeEvent(QCloseEvent *event) override;

    /// Shows or hides the window without waiting, as for any QDialog.
    void setVisible(bool visible) override;
    /// Hides the window, sets the result and tells of it, as for any QDialog.
    void done(int result) override;

    /// Does what show() does, modal in any case, and returns the result() of this showing:
    /// Rejected, unless accept() or done() has set another one. The buttons of the dialog set none.
    /// Rejected also where show() returns at once, and when the dialog was deleted. It deletes a
    /// dialog with the attribute Qt::WA_DeleteOnClose.
    int exec() override;

public Q_SLOTS:
    /// Does what the button with this id does: 0 accepts the current entry and closes, 2 makes the
    /// first entry the current one and accepts it, every other id closes only.
    void operate(int id);

    /// Offers only the modes of the exclusive group @p eGroup_or_tr, named in either form.
    void resetToExclusiveGroup(QString eGroup_or_tr);

    /// Offers all modes of the registry again.
    void resetToProjectMode();

    /// Replaces the entries: the combo box is cleared, then filled with the second members, and
    /// sends its signals for both steps. During those of the first there are no entries. When a
    /// listener calls setItems() itself, its entries stay. Without the combo box the entries are
    /// kept, and none is current.
    void setItems(VStringPairList list);

    /// Shows the window, waits until it is closed or hidden in whatever way, and returns 0, at once
    /// when the dialog is deleted meanwhile. When the program is told to exit, the window is
    /// hidden. While the show() of a second dialog runs within this one, this one waits for that,
    /// too.
    ///
    /// When the window is shown already, show() brings it to the front and returns 0 at once. While
    /// it is being hidden, or polished for its first showing, it can be shown again: that ends the
    /// earlier show() together with the later one.
    int show();

protected:
    /// Lets a running show() return, unless the window was only minimised.
    void hideEvent(QHideEvent *event) override;
    /// Sets the dialog's own texts anew when the language has changed.
    void changeEvent(QEvent *event) override;

private:
    friend class UTaskSelectDialogPrivate;
    std::unique_ptr<UTaskSelectDialogPrivate> d;
};

#endif
