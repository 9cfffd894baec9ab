// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "plotview.h"

#include <QApplication>
#include <QPainter>

#include <qwt_legend.h>
#include <qwt_painter.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_renderer.h>
#include <qwt_plot_zoomer.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <iterator>

namespace {

/// Colours that can be told apart with any kind of colour vision, on white and on black.
const QRgb colours[] = { 0xff0072b2, 0xffd55e00, 0xff00845f, 0xffb0628f };
const Qt::PenStyle lines[]
    = { Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine };

QPen penOf(int curve)
{
    return { QColor(colours[curve % int(std::size(colours))]), 2,
             lines[curve % int(std::size(lines))] };
}

QwtText axisTitle(const Quantity &quantity)
{
    QwtText title(heading(quantity));
    title.setFont(QApplication::font());
    return title;
}

void addCurve(const Curve &curve, QwtPlot *plot)
{
    const int position = plot->itemList(QwtPlotItem::Rtti_PlotCurve).size();
    auto *item = new QwtPlotCurve(translated(curve.name));
    item->setSamples(curve.points);
    item->setPen(penOf(position));
    item->setRenderHint(QwtPlotItem::RenderAntialiased);
    item->setLegendAttribute(QwtPlotCurve::LegendShowLine);
    item->setLegendIconSize(QSize(3, 1) * plot->fontMetrics().height() * 2 / 3);
    item->attach(plot);
    // A single curve has the name of its axis.
    if (position == 1)
        plot->insertLegend(new QwtLegend, QwtPlot::TopLegend);
}

} // namespace

PlotView::PlotView(QWidget *parent)
    : QTabWidget(parent)
{
    setObjectName("plots");
    setDocumentMode(true);
    QwtPainter::setRoundingAlignment(false); // whole pixels bend curves
}

void PlotView::setCurves(const QVector<Curve> &curves)
{
    const int chosen = currentIndex();
    const int before = count();
    while (count() > 0)
        delete widget(0);
    for (const Curve &curve : curves)
        addCurve(curve, plotFor(curve));
    const auto zoomers = findChildren<QwtPlotZoomer *>();
    for (QwtPlotZoomer *zoomer : zoomers)
        zoomer->setZoomBase();
    if (count() == before)
        setCurrentIndex(chosen);
}

/// The plot of the same quantities, or a new one.
QwtPlot *PlotView::plotFor(const Curve &curve)
{
    const QwtText x = axisTitle(curve.x);
    const QwtText y = axisTitle(curve.y);
    for (int i = 0; i < count(); ++i) {
        if (plot(i)->axisTitle(QwtPlot::xBottom).text() == x.text()
            && plot(i)->axisTitle(QwtPlot::yLeft).text() == y.text())
            return plot(i);
    }
    auto *added = new QwtPlot;
    addTab(added, translated(curve.y.name));
    added->setAxisTitle(QwtPlot::xBottom, x);
    added->setAxisTitle(QwtPlot::yLeft, y);
    added->setAxisMaxMajor(QwtPlot::xBottom, 5); // leaves room for long numbers
    // Or the lowest and the highest number would be clipped.
    added->axisWidget(QwtPlot::yLeft)
        ->setMinBorderDist(fontMetrics().height(), fontMetrics().height());
    // Qwt asks for more, but needs no more than the title beside the axis.
    added->setMinimumHeight(fontMetrics().horizontalAdvance(y.text()) + 5 * fontMetrics().height());
    added->canvas()->setBackgroundRole(QPalette::Base);
    auto *grid = new QwtPlotGrid;
    grid->setPen(QColor(128, 128, 128, 90), 0);
    grid->attach(added);
    auto *zoomer = new QwtPlotZoomer(added->canvas()); // which owns it
    zoomer->setRubberBandPen(QColor(Qt::gray));
    zoomer->setTrackerPen(QColor(Qt::gray));
    return added;
}

void PlotView::resetZoom()
{
    const auto zoomers = findChildren<QwtPlotZoomer *>();
    for (QwtPlotZoomer *zoomer : zoomers)
        zoomer->zoom(0);
}

void PlotView::render(QPainter *painter, const QRectF &area) const
{
    const int columns = count() > 1 ? 2 : 1;
    const int rows = (count() + columns - 1) / columns;
    const QSizeF size(area.width() / columns, area.height() / qMax(rows, 1));
    for (int i = 0; i < count(); ++i) {
        const QPointF place(i % columns * size.width(), i / columns * size.height());
        QwtPlotRenderer renderer;
        renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
        renderer.render(plot(i), painter, QRectF(area.topLeft() + place, size));
    }
}

QwtPlot *PlotView::plot(int index) const
{
    return static_cast<QwtPlot *>(widget(index));
}
