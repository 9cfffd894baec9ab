// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "plotview.h"

#include "modules.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QTimer>

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

/// Colours that can be told apart with any kind of colour vision. The first of each pair stands out
/// from white, the second from black.
const QRgb colours[][2] = { { 0xff0072b2, 0xff56b4e9 },
                            { 0xffd55e00, 0xffe69f00 },
                            { 0xff007a5a, 0xff2fd6a6 },
                            { 0xff9c4f80, 0xffe29ac6 },
                            { 0xff000000, 0xffffffff } };
const Qt::PenStyle lines[]
    = { Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine };

QPen penOf(int curve, const QPalette &palette)
{
    const int count = int(std::size(colours));
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    // After the last colour they begin anew, with other lines.
    return { QColor(colours[curve % count][isDark]), 2, lines[(curve + curve / count) % count] };
}

QString translated(const QString &name)
{
    return ModuleTexts::tr(name.toUtf8().constData());
}

QwtText axisTitle(const Quantity &quantity)
{
    QwtText title(withUnit(translated(quantity.name), quantity.unit));
    title.setFont(QApplication::font());
    return title;
}

void addCurve(const Curve &curve, QwtPlot *plot)
{
    const int position = plot->itemList(QwtPlotItem::Rtti_PlotCurve).size();
    auto *item = new QwtPlotCurve(translated(curve.name));
    item->setSamples(curve.points);
    item->setPen(penOf(position, plot->palette()));
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
    m_curves = curves;
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
    added->setMinimumHeight(10 * fontMetrics().height()); // Qwt asks for more
    added->setCanvasBackground(palette().color(QPalette::Base));
    QColor faint = palette().color(QPalette::Text);
    faint.setAlphaF(0.3);
    auto *grid = new QwtPlotGrid;
    grid->setPen(faint, 0, Qt::DotLine);
    grid->attach(added);
    auto *zoomer = new QwtPlotZoomer(added->canvas()); // which owns it
    zoomer->setRubberBandPen(palette().color(QPalette::Text));
    zoomer->setTrackerPen(palette().color(QPalette::Text));
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

void PlotView::changeEvent(QEvent *event)
{
    QTabWidget::changeEvent(event);
    // Afterwards: whoever sends the event has a list of all widgets, also of those in the plots.
    if (event->type() == QEvent::PaletteChange)
        QTimer::singleShot(0, this, [this] { setCurves(m_curves); });
}

QwtPlot *PlotView::plot(int index) const
{
    return static_cast<QwtPlot *>(widget(index));
}
