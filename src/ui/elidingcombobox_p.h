// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ELIDINGCOMBOBOX_P_H
#define ELIDINGCOMBOBOX_P_H

#include <QComboBox>

/**
 * A combo box that shows an ellipsis where an entry does not fit, and takes no longer for an entry
 * of millions of characters. The entries themselves stay whole.
 *
 * It is no type of its own to Qt's meta-object system: for a host it is a QComboBox.
 */
class ElidingComboBox : public QComboBox
{
public:
    explicit ElidingComboBox(QWidget *parent);

    /// The width at which each entry is shown whole, or some width above @p limit.
    int widthOfEntries(int limit) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void showPopup() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool hasOverlongEntry() const;
    QSize sizeFor(const QSize &text) const;
};

#endif
