// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "findingmark_p.h"

#include <QPainter>
#include <QSizePolicy>
#include <QStyle>

namespace {

constexpr int spacing = 4;
constexpr int textFlags = Qt::TextWordWrap | Qt::AlignTop;

} // namespace

FindingMark::FindingMark(QWidget *parent)
    : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
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
    const int few = iconSize() + spacing + 10 * fontMetrics().averageCharWidth();
    return { qMin(few, sizeHint().width()), iconSize() };
}

int FindingMark::heightForWidth(int width) const
{
    return sizeForWidth(width).height();
}

void FindingMark::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    // Icon and first line have one centre.
    const int excess = (fontMetrics().height() - iconSize()) / 2;
    const QRect iconRect(0, qMax(0, excess), iconSize(), iconSize());
    const QRect textRect = rect().adjusted(iconSize() + spacing, qMax(0, -excess), 0, 0);
    style()
        ->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this)
        .paint(&painter, QStyle::visualRect(layoutDirection(), rect(), iconRect));
    const int flags = int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) | textFlags;
    style()->drawItemText(&painter, QStyle::visualRect(layoutDirection(), rect(), textRect), flags,
                          palette(), isEnabled(), m_text, QPalette::WindowText);
}
