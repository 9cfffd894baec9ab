// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "elidingcombobox_p.h"

#include <QFontMetrics>
#include <QStandardItemModel>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

/// More characters than any screen shows in a line. Qt measures a text as a whole before it cuts
/// off what does not fit.
constexpr int longestMeasured = 4000;
const QChar ellipsis(0x2026);

bool isOverlong(const QString &text)
{
    return text.size() > longestMeasured;
}

QString measurable(const QString &text)
{
    const int half = longestMeasured / 2;
    return isOverlong(text) ? text.left(half) + ellipsis + text.right(half) : text;
}

/// The entries, which Qt measures itself before it opens their list.
class EntryModel : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;

    QVariant data(const QModelIndex &index, int role) const override
    {
        const QVariant value = QStandardItemModel::data(index, role);
        return isBeingMeasured && role == Qt::DisplayRole ? measurable(value.toString()) : value;
    }

    bool isBeingMeasured = false;
};

/// Shows the entries of the list that opens.
class ElidingDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        return measurable(QStyledItemDelegate::displayText(value, locale));
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideMiddle;
    }
};

} // namespace

ElidingComboBox::ElidingComboBox(QWidget *parent)
    : QComboBox(parent)
{
    setModel(new EntryModel(this));
}

// Its own size hint is calculated from the entries of its first showing and then kept.
int ElidingComboBox::widthOfEntries(int limit) const
{
    const QFontMetrics metrics = fontMetrics();
    QSize size;
    for (int i = 0; i < count() && size.width() <= limit; ++i)
        size = size.expandedTo(metrics.boundingRect(measurable(itemText(i))).size());
    return sizeFor(size).width();
}

QSize ElidingComboBox::sizeHint() const
{
    return hasOverlongEntry() ? sizeFor({ 0, fontMetrics().height() }) : QComboBox::sizeHint();
}

QSize ElidingComboBox::minimumSizeHint() const
{
    return hasOverlongEntry() ? sizeHint() : QComboBox::minimumSizeHint();
}

void ElidingComboBox::showPopup()
{
    auto *entries = dynamic_cast<EntryModel *>(model());
    if (!entries || !hasOverlongEntry()) {
        QComboBox::showPopup();
        return;
    }
    setItemDelegate(new ElidingDelegate(this));
    entries->isBeingMeasured = true;
    QComboBox::showPopup();
    entries->isBeingMeasured = false;
}

// Where standard names differ is mostly at their end, so what is left out is in the middle.
void ElidingComboBox::paintEvent(QPaintEvent *event)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field
        = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    // Styles leave a pixel free on each side.
    const QString shown = fontMetrics().elidedText(measurable(option.currentText), Qt::ElideMiddle,
                                                   field.width() - 2);
    if (shown == option.currentText) {
        QComboBox::paintEvent(event);
        return;
    }
    option.currentText = shown;
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

bool ElidingComboBox::hasOverlongEntry() const
{
    for (int i = 0; i < count(); ++i) {
        if (isOverlong(itemText(i)))
            return true;
    }
    return false;
}

QSize ElidingComboBox::sizeFor(const QSize &text) const
{
    QStyleOptionComboBox option;
    option.initFrom(this);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this);
}
