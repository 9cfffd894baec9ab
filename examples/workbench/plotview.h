// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PLOTVIEW_H
#define PLOTVIEW_H

#include "calculations/curve.h"

#include <QTabWidget>

class QwtPlot;

/// Curves in one plot for each pair of quantities, behind tabs. The mouse zooms in with a frame and
/// out with the right button. Curves differ in colour and in how their lines are broken.
class PlotView : public QTabWidget
{
    Q_OBJECT

public:
    explicit PlotView(QWidget *parent = nullptr);

    /// Replaces all plots; the tab stays the same one where there are as many as before.
    void setCurves(const QVector<Curve> &curves);

    /// Draws all plots side by side, for paper.
    void render(QPainter *painter, const QRectF &area) const;

public Q_SLOTS:
    void resetZoom();

private:
    QwtPlot *plotFor(const Curve &curve);
    QwtPlot *plot(int index) const;
};

#endif
