// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "utaskselectdialog.h"

#include "core/firstpositions_p.h"
#include "deferredevents_p.h"
#include "registry/auth_set.h"
#include "registry/standardmodename_p.h"
#include "showing_p.h"
#include "ui_utaskselectdialog.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHideEvent>
#include <QMetaType>
#include <QPointer>
#include <QScreen>
#include <QShowEvent>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

enum ButtonId { AcceptId = 0, CancelId = 1, DefaultId = 2 };

// Under these names hosts reach setItems() through the meta-object system. A declaration in the
// header would clash with that of a host which declares the same template instance.
const int pairTypeId = qRegisterMetaType<VStringPair>("VStringPair");
const int pairListTypeId = qRegisterMetaType<VStringPairList>("VStringPairList");

bool hasGroup(const QString &modeName, const QString &group)
{
    return standardModeNameFields(modeName).value(StandardModeName::Group) == group;
}

FirstPositions firstPositions(const QStringList &texts)
{
    FirstPositions positions;
    for (const QString &text : texts)
        positions.append(text);
    return positions;
}

} // namespace

class UTaskSelectDialogPrivate
{
public:
    explicit UTaskSelectDialogPrivate(UTaskSelectDialog *dialog);

    void place(QShowEvent *event) const;
    void makeRoomForNames() const;
    bool select(int index);
    bool hasAllMembers() const;
    void leaveMembersToTheEventLoop() const;
    void showUnboundMessage();
    void translateMessageBox() const;
    void bringToFront() const;
    void showUntilOver();
    void endShow() const;
    void accept(const QString &modeName) const;

    UTaskSelectDialog *const q;
    /// All that are running: a listener to one of them may have called the next.
    QVector<Showing *> showings;
    /// How many changes of the combo box are running: a listener to it may nest them.
    int runningChanges = 0;
    /// Number of the offer that was made last.
    int lastOffer = 0;
    QPointer<QMessageBox> messageBox;
    QButtonGroup buttons;
    Ui::UTaskSelectDialog ui;
    /// A host may delete it.
    QPointer<ElidingComboBox> comboBox;
    std::unique_ptr<DeferredEvents> events;
    QVector<QPointer<QWidget>> members;
    AUTH_SET *registry = nullptr;
    VStringPairList items;
};

UTaskSelectDialogPrivate::UTaskSelectDialogPrivate(UTaskSelectDialog *dialog)
    : q(dialog)
{
    ui.setupUi(dialog);
    comboBox = ui.comboBox;
    const auto widgets = dialog->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    std::copy(widgets.begin(), widgets.end(), std::back_inserter(members));
    events = std::make_unique<DeferredEvents>(q, [this](QShowEvent *event) { place(event); });
}

void UTaskSelectDialogPrivate::place(QShowEvent *event) const
{
    makeRoomForNames();
    q->QDialog::showEvent(event);
    if (comboBox)
        comboBox->setFocus();
}

/// Without a screen (a host can lose its last one) nothing bounds the width, so it stays.
void UTaskSelectDialogPrivate::makeRoomForNames() const
{
    const QScreen *screen = q->screen();
    if (!screen || !comboBox)
        return;
    const int limit = screen->availableGeometry().width() * 3 / 4;
    comboBox->setMinimumWidth(std::min(comboBox->widthOfEntries(limit), limit));
}

/// Makes the entry at @p index the current one; false when a listener has deleted the dialog.
bool UTaskSelectDialogPrivate::select(int index)
{
    const QPointer<UTaskSelectDialog> self(q);
    ++runningChanges;
    if (comboBox)
        comboBox->setCurrentIndex(index);
    if (!self)
        return false;
    --runningChanges;
    return true;
}

/// Whether a host has deleted none of the widgets of the form.
bool UTaskSelectDialogPrivate::hasAllMembers() const
{
    return !members.contains(nullptr);
}

/// Qt may be sending an event or a signal of one of them, and is not done with it yet.
void UTaskSelectDialogPrivate::leaveMembersToTheEventLoop() const
{
    auto *remains = new QWidget;
    for (QWidget *member : members) {
        if (member)
            member->setParent(remains);
    }
    remains->deleteLater();
}

void UTaskSelectDialogPrivate::showUnboundMessage()
{
    const QPointer<UTaskSelectDialog> self(q);
    InformationBox box(QMessageBox::Information, QString(), QString(), QMessageBox::Ok);
    messageBox = &box;
    translateMessageBox();
    box.setWindowModality(Qt::ApplicationModal);
    // It goes together with the dialog: otherwise show() would not return.
    showings.append(&box.showing);
    box.show();
    if (box.isVisible() && !box.showing.isOver)
        box.showing.loop.exec();
    if (self)
        showings.removeOne(&box.showing);
}

void UTaskSelectDialogPrivate::translateMessageBox() const
{
    messageBox->setWindowTitle(UTaskSelectDialog::tr("Wrong Sets"));
    messageBox->setText(UTaskSelectDialog::tr("Please connect Kelto first."));
}

void UTaskSelectDialogPrivate::bringToFront() const
{
    q->setWindowState(q->windowState() & ~Qt::WindowMinimized);
    q->raise();
    q->activateWindow();
}

void UTaskSelectDialogPrivate::showUntilOver()
{
    const QPointer<UTaskSelectDialog> self(q);
    // Each showing has its own loop: a slot that is called on closing may show the dialog again
    // while the loop of the earlier showing has not returned yet.
    Showing showing;
    showings.append(&showing);
    events->start();
    events->polish();
    // A listener may have closed it already, or have shown it itself until it was closed.
    if (self && !showing.isOver)
        q->QWidget::show();
    // A loop forgets a quit() that came before exec(), and would run for ever.
    if (self && q->isVisible()) {
        // When a box without a parent closes, the window system may activate any other window.
        q->activateWindow();
        showing.isOver = false;
        showing.loop.exec();
    }
    // The program was told to exit.
    if (self && !showing.isOver)
        q->hide();
    if (self)
        events->tell();
    if (!self)
        return;
    showings.removeOne(&showing);
    events->stop();
}

void UTaskSelectDialogPrivate::endShow() const
{
    for (Showing *showing : showings) {
        showing->isOver = true;
        showing->loop.quit();
    }
}

void UTaskSelectDialogPrivate::accept(const QString &modeName) const
{
    const QStringList fields = standardModeNameFields(modeName);
    if (!registry || fields.size() != StandardModeName::FieldCount)
        return;
    registry->current_group = fields.at(StandardModeName::Group);
    registry->current_mode = fields.at(StandardModeName::Mode);
    registry->exclusive_group_set_mode(registry->current_group, registry->current_mode);
}

UTaskSelectDialog::UTaskSelectDialog()
    : operateIndex(-1)
    , d(std::make_unique<UTaskSelectDialogPrivate>(this))
{
    d->buttons.addButton(d->ui.pushButton_accept, AcceptId);
    d->buttons.addButton(d->ui.pushButton_cancel, CancelId);
    d->buttons.addButton(d->ui.pushButton_Default, DefaultId);
    connect(&d->buttons, &QButtonGroup::idClicked, this, &UTaskSelectDialog::operate);
}

UTaskSelectDialog::~UTaskSelectDialog()
{
    d->endShow();
    if (d->runningChanges > 0 || !d->showings.isEmpty())
        d->leaveMembersToTheEventLoop();
}

void UTaskSelectDialog::set(AUTH_SET *registry)
{
    d->registry = registry;
    setItems(availableModeItems());
}

QPair<QString, QString> UTaskSelectDialog::currentItem() const
{
    return d->items.value(currentItemIndex());
}

int UTaskSelectDialog::currentItemIndex() const
{
    return d->comboBox ? d->comboBox->currentIndex() : -1;
}

QVector<QPair<QString, QString>> UTaskSelectDialog::availableModeItems() const
{
    return d->registry ? d->registry->currentModeList() : VStringPairList();
}

QVector<QPair<QString, QString>> UTaskSelectDialog::availableModeItemsWithModeCodeList(
    QStringList codes) const
{
    return availableModeItemsWithModeCodeList(availableModeItems(), codes);
}

QVector<QPair<QString, QString>> UTaskSelectDialog::availableModeItemsWithModeCodeList(
    QVector<QPair<QString, QString>> list, QStringList codes) const
{
    const FirstPositions firsts = firstPositions(getFirstItems(list));
    const FirstPositions seconds = firstPositions(getSecondItems(list));
    VStringPairList found;
    for (const QString &code : std::as_const(codes)) {
        const int first = firsts.indexOf(code);
        const int position = first >= 0 ? first : seconds.indexOf(code);
        if (position >= 0)
            found.append(list.at(position));
    }
    return found;
}

QStringList UTaskSelectDialog::getFirstItems(QVector<QPair<QString, QString>> list) const
{
    QStringList firsts;
    for (const VStringPair &item : std::as_const(list))
        firsts.append(item.first);
    return firsts;
}

QStringList UTaskSelectDialog::getSecondItems(QVector<QPair<QString, QString>> list) const
{
    QStringList seconds;
    for (const VStringPair &item : std::as_const(list))
        seconds.append(item.second);
    return seconds;
}

void UTaskSelectDialog::showEvent(QShowEvent *event)
{
    event->accept();
    // The window was minimised and is restored: what the user has chosen so far stays.
    if (event->spontaneous())
        return;
    // A running show() has done so before the window was on the screen.
    if (d->showings.isEmpty())
        d->place(event);
    if (!d->registry) {
        // A listener may have closed the dialog before.
        if (isVisible() || d->showings.isEmpty())
            d->showUnboundMessage();
        return;
    }
    const QString name
        = d->registry->stdModeNameForm(d->registry->current_group, d->registry->current_mode);
    const int first = getFirstItems(d->items).indexOf(name);
    if (d->select(first >= 0 ? first : getSecondItems(d->items).indexOf(name)))
        operateIndex = -1;
}

void UTaskSelectDialog::closeEvent(QCloseEvent *event)
{
    event->accept();
    if (!d->showings.isEmpty())
        d->events->startClosing();
    d->endShow();
}

void UTaskSelectDialog::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    // accept(), reject(), done() and hide() send no close event. A spontaneous event means that
    // the window was minimised.
    if (!event->spontaneous())
        d->endShow();
}

void UTaskSelectDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    if (d->hasAllMembers())
        d->ui.retranslateUi(this);
    if (d->messageBox)
        d->translateMessageBox();
}

void UTaskSelectDialog::operate(int id)
{
    operateIndex = id;
    if (id == AcceptId) {
        d->accept(currentItem().first);
    } else if (id == DefaultId) {
        const QPointer<UTaskSelectDialog> self(this);
        if (d->select(0))
            operate(AcceptId);
        // A host may delete the dialog as soon as it has closed.
        if (!self)
            return;
    }
    close();
}

void UTaskSelectDialog::resetToExclusiveGroup(QString eGroup_or_tr)
{
    const VStringPairList modes = availableModeItems();
    VStringPairList kept;
    std::copy_if(modes.cbegin(), modes.cend(), std::back_inserter(kept),
                 [&](const VStringPair &mode) {
                     return hasGroup(mode.first, eGroup_or_tr)
                         || hasGroup(mode.second, eGroup_or_tr);
                 });
    setItems(kept);
}

void UTaskSelectDialog::resetToProjectMode()
{
    setItems(availableModeItems());
}

// The combo box sends its signals in between, always with entries and items that belong together.
void UTaskSelectDialog::setItems(VStringPairList list)
{
    const QPointer<UTaskSelectDialog> self(this);
    const int offer = ++d->lastOffer;
    ++d->runningChanges;
    if (d->comboBox)
        d->comboBox->clear();
    // Otherwise a listener has deleted the dialog, or its own, later offer is in place.
    if (self && d->lastOffer == offer) {
        d->items = list;
        if (d->comboBox)
            d->comboBox->addItems(getSecondItems(list));
    }
    if (!self)
        return;
    --d->runningChanges;
    d->makeRoomForNames();
}

void UTaskSelectDialog::setVisible(bool visible)
{
    const auto change = [=] { QDialog::setVisible(visible); };
    // An event filter may keep the hide event for itself.
    if (!visible)
        d->endShow();
    if (d->showings.isEmpty())
        change();
    else
        d->events->tellAfter(change);
}

void UTaskSelectDialog::done(int result)
{
    const QPointer<UTaskSelectDialog> self(this);
    // QDialog does so, too, but goes on with a dialog that a listener has deleted.
    hide();
    if (self)
        QDialog::done(result);
}

int UTaskSelectDialog::exec()
{
    if (isVisible() && !d->showings.isEmpty()) {
        d->bringToFront();
        return Rejected;
    }
    const QPointer<UTaskSelectDialog> self(this);
    const bool wasModal = testAttribute(Qt::WA_ShowModal);
    const bool deletesItself = testAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_ShowModal);
    setAttribute(Qt::WA_DeleteOnClose, false);
    setResult(Rejected);
    d->showUntilOver();
    if (!self)
        return Rejected;
    const int code = result();
    setAttribute(Qt::WA_ShowModal, wasModal);
    if (deletesItself)
        delete this;
    return code;
}

int UTaskSelectDialog::show()
{
    if (isVisible())
        d->bringToFront();
    else
        d->showUntilOver();
    // The exit code of a loop is not 0 when the whole program is told to exit meanwhile.
    return 0;
}
