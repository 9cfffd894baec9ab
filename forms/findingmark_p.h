// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FINDINGMARK_P_H
#define FINDINGMARK_P_H

#include <QString>
#include <QWidget>

/// Says what is wrong with a value, behind a sign of warning.
class FindingMark : public QWidget
{
public:
    explicit FindingMark(QWidget *parent);

    QString text() const { return m_text; }
    void setText(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int iconSize() const;
    QSize sizeForWidth(int width) const;

    QString m_text;
};

#endif
