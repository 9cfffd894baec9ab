// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltotableview_p.h"

#include "keltotablemodel_p.h"

#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QStyledItemDelegate>

namespace {

constexpr int visibleRows = 6;

constexpr QChar leftToRight(0x2066);
constexpr QChar endOfDirection(0x2069);

/// Colours what is wrong, and leaves a cell alone whose editor was opened and closed again.
class CellDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override
    {
        const auto *line = qobject_cast<QLineEdit *>(editor);
        if (!line || line->isModified())
            QStyledItemDelegate::setModelData(editor, model, index);
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        // Minus signs and exponents stay where they belong among words of the other direction.
        if (option->direction == Qt::RightToLeft)
            option->text = leftToRight + option->text + endOfDirection;
        if (option->icon.isNull())
            return;
        const bool isDark = option->palette.base().color().lightness() < 128;
        option->palette.setColor(QPalette::Text, QColor(isDark ? 0xff9090 : 0xa00000));
    }
};

} // namespace

KeltoTableView::KeltoTableView(KeltoTableModel *model, QWidget *parent)
    : QTableView(parent)
{
    setModel(model);
    setItemDelegate(new CellDelegate(this));
    setTabKeyNavigation(false);
    setSelectionMode(ContiguousSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setAlternatingRowColors(true);
    setWordWrap(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    if (model->cells().isFree())
        horizontalHeader()->setStretchLastSection(true);
    else
        horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    updateSizes();
}

void KeltoTableView::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateSizes();
}

void KeltoTableView::updateSizes()
{
    const int margins = 2 * style()->pixelMetric(QStyle::PM_FocusFrameVMargin, nullptr, this);
    const int rowHeight = fontMetrics().height() + margins + 4;
    verticalHeader()->setMinimumSectionSize(rowHeight);
    verticalHeader()->setDefaultSectionSize(rowHeight);
    horizontalHeader()->setMinimumSectionSize(fontMetrics().averageCharWidth() * 8);
    horizontalHeader()->setDefaultSectionSize(fontMetrics().averageCharWidth() * 10);
    setFixedHeight(visibleRows * rowHeight + horizontalHeader()->sizeHint().height()
                   + 2 * frameWidth());
}
