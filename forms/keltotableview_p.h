// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOTABLEVIEW_P_H
#define KELTOTABLEVIEW_P_H

#include <QTableView>

class KeltoTableModel;

/// A table of the height that fits into a form. Tab leaves it for the next widget; the arrow keys
/// move inside.
class KeltoTableView : public QTableView
{
    Q_OBJECT

public:
    KeltoTableView(KeltoTableModel *model, QWidget *parent);

protected:
    void changeEvent(QEvent *event) override;

private:
    void updateSizes();
};

#endif
