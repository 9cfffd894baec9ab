// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "utaskselectdialog.h"

#include "core/firstpositions_p.h"
#include "registry/auth_set.h"
#include "registry/standardmodename_p.h"
#include "ui_utaskselectdialog.h"

#include <QButtonGroup>
#include <QEvent>
#include <QEventLoop>
#include <QFontMetrics>
#include <QHideEvent>
#include <QMessageBox>
#include <QMetaType>
#include <QPointer>
#include <QScreen>
#include <QShowEvent>
#include <QStyle>
#include <QStyleOptionComboBox>

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

/// The width at which @p box shows each of its entries whole. Its own size hint is calculated from
/// the entries of its first showing and then kept.
int widthOfEntries(const QComboBox &box)
{
    const QFontMetrics metrics = box.fontMetrics();
    QSize size;
    for (int i = 0; i < box.count(); ++i)
        size = size.expandedTo(metrics.boundingRect(box.itemText(i)).size());
    QStyleOptionComboBox option;
    option.initFrom(&box);
    return box.style()->sizeFromContents(QStyle::CT_ComboBox, &option, size, &box).width();
}

} // namespace

class UTaskSelectDialogPrivate
{
public:
    void makeRoomForNames(const QScreen *screen) const;
    void showUnboundMessage();
    void translateMessageBox() const;
    void endShow() const;
    void accept(const QString &modeName) const;

    QPointer<QEventLoop> loop;
    /// Whether show() is just putting the window on the screen.
    bool isOpening = false;
    /// How many calls of setItems() are running: a listener to the combo box may nest them.
    int runningOffers = 0;
    /// Number of the offer that was made last.
    int lastOffer = 0;
    QPointer<QMessageBox> messageBox;
    QButtonGroup buttons;
    Ui::UTaskSelectDialog ui;
    AUTH_SET *registry = nullptr;
    VStringPairList items;
};

/// Without a screen (a host can lose its last one) nothing bounds the width, so it stays.
void UTaskSelectDialogPrivate::makeRoomForNames(const QScreen *screen) const
{
    if (!screen)
        return;
    const int limit = screen->availableGeometry().width() * 3 / 4;
    ui.comboBox->setMinimumWidth(std::min(widthOfEntries(*ui.comboBox), limit));
}

void UTaskSelectDialogPrivate::showUnboundMessage()
{
    QMessageBox box(QMessageBox::Information, QString(), QString(), QMessageBox::Ok);
    messageBox = &box;
    translateMessageBox();
    box.exec();
}

void UTaskSelectDialogPrivate::translateMessageBox() const
{
    messageBox->setWindowTitle(UTaskSelectDialog::tr("Wrong Sets"));
    messageBox->setText(UTaskSelectDialog::tr("Please connect Kelto first."));
}

void UTaskSelectDialogPrivate::endShow() const
{
    // An open box would keep show() from returning although its dialog is gone.
    if (messageBox)
        messageBox->reject();
    if (loop)
        loop->quit();
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
    , d(std::make_unique<UTaskSelectDialogPrivate>())
{
    d->ui.setupUi(this);
    d->buttons.addButton(d->ui.pushButton_accept, AcceptId);
    d->buttons.addButton(d->ui.pushButton_cancel, CancelId);
    d->buttons.addButton(d->ui.pushButton_Default, DefaultId);
    connect(&d->buttons, &QButtonGroup::idClicked, this, &UTaskSelectDialog::operate);
}

UTaskSelectDialog::~UTaskSelectDialog()
{
    d->endShow();
    // A listener to the combo box may have deleted the dialog while the box is being filled. Then
    // QComboBox is not done with its signals and must not be deleted yet.
    if (d->runningOffers > 0) {
        d->ui.comboBox->setParent(nullptr);
        d->ui.comboBox->deleteLater();
    }
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
    return d->ui.comboBox->currentIndex();
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
    d->makeRoomForNames(screen());
    QDialog::showEvent(event);
    d->ui.comboBox->setFocus();
    if (!d->registry) {
        // show() opens the box itself, once Qt has shown the window: Qt would still show a window
        // that is closed or deleted within this event.
        if (!d->isOpening)
            d->showUnboundMessage();
        return;
    }
    const QString name
        = d->registry->stdModeNameForm(d->registry->current_group, d->registry->current_mode);
    const int first = getFirstItems(d->items).indexOf(name);
    d->ui.comboBox->setCurrentIndex(first >= 0 ? first : getSecondItems(d->items).indexOf(name));
    operateIndex = -1;
}

void UTaskSelectDialog::closeEvent(QCloseEvent *event)
{
    event->accept();
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
        d->ui.comboBox->setCurrentIndex(0);
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
    ++d->runningOffers;
    d->ui.comboBox->clear();
    // Otherwise a listener has deleted the dialog, or its own, later offer is in place.
    if (self && d->lastOffer == offer) {
        d->items = list;
        d->ui.comboBox->addItems(getSecondItems(list));
    }
    if (!self)
        return;
    --d->runningOffers;
    d->makeRoomForNames(screen());
}

int UTaskSelectDialog::show()
{
    if (isVisible()) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
        raise();
        activateWindow();
        return 0;
    }
    // Each showing has its own loop: a slot that is called on closing may show the dialog again
    // while the loop of the earlier showing has not returned yet.
    QEventLoop loop;
    d->loop = &loop;
    const QPointer<UTaskSelectDialog> self(this);
    d->isOpening = true;
    QWidget::show();
    d->isOpening = false;
    if (!d->registry)
        d->showUnboundMessage();
    // A loop forgets a quit() that came before exec(), and would run for ever.
    if (!self || !isVisible())
        return 0;
    // When a box without a parent closes, the window system may activate any other window.
    activateWindow();
    // The exit code of the loop is not 0 when the whole program is told to exit meanwhile.
    loop.exec();
    return 0;
}
