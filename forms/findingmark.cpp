// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "findingmark_p.h"

#include <QPainter>
#include <QSizePolicy>
#include <QStyle>

namespace {

constexpr int spacing = 4;
constexpr int textFlags = Qt::TextWordWrap | Qt::AlignVCenter;

} // namespace

FindingMark::FindingMark(QWidget *parent)
    : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void FindingMark::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

int FindingMark::iconSize() const
{
    return style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
}

QSize FindingMark::sizeForWidth(int width) const
{
    const int start = iconSize() + spacing;
    const QRect bounds(0, 0, qMax(1, width - start), QWIDGETSIZE_MAX);
    const QSize text = fontMetrics().boundingRect(bounds, textFlags, m_text).size();
    return { text.width() + start, qMax(text.height(), iconSize()) };
}

QSize FindingMark::sizeHint() const
{
    // About as wide as a sentence is read with ease.
    return sizeForWidth(50 * fontMetrics().averageCharWidth());
}

QSize FindingMark::minimumSizeHint() const
{
    return { iconSize() + spacing + 10 * fontMetrics().averageCharWidth(), iconSize() };
}

int FindingMark::heightForWidth(int width) const
{
    return sizeForWidth(width).height();
}

void FindingMark::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const QSize icon(iconSize(), iconSize());
    const QRect iconRect
        = QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignTop, icon, rect());
    style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).paint(&painter, iconRect);
    const int start = iconSize() + spacing;
    const QRect textRect
        = QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(start, 0, 0, 0));
    const int flags = int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) | textFlags;
    style()->drawItemText(&painter, textRect, flags, palette(), isEnabled(), m_text,
                          QPalette::WindowText);
}
