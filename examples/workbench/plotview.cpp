// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "plotview.h"

#include "modules.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

#include <qwt_legend.h>
#include <qwt_legend_label.h>
#include <qwt_painter.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_renderer.h>
#include <qwt_plot_zoomer.h>
#include <qwt_text.h>

namespace {

/// Colours that can be told apart with any kind of colour vision. The first of each pair stands out
/// from white, the second from black.
struct Contrast
{
    QRgb onLight;
    QRgb onDark;
};
const Contrast colours[] = { { 0xff0072b2, 0xff56b4e9 },
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
    const Contrast colour = colours[curve % count];
    // After the last colour they begin anew, with other lines.
    const Qt::PenStyle line = lines[(curve + curve / count) % count];
    return { QColor(isDark ? colour.onDark : colour.onLight), 2, line };
}

QString translated(const QString &name)
{
    return ModuleTexts::tr(name.toUtf8().constData());
}

QwtText axisTitle(const Quantity &quantity)
{
    QwtText title(quantity.unit.isEmpty() || quantity.unit == QLatin1String("-")
                      ? translated(quantity.name)
                      : QStringLiteral("%1 [%2]").arg(translated(quantity.name), quantity.unit));
    title.setFont(QApplication::font());
    return title;
}

bool belongTogether(const Curve &first, const Curve &second)
{
    return axisTitle(first.x).text() == axisTitle(second.x).text()
        && axisTitle(first.y).text() == axisTitle(second.y).text();
}

} // namespace

PlotView::PlotView(QWidget *parent)
    : QTabWidget(parent)
{
    setObjectName(QStringLiteral("plots"));
    setDocumentMode(true);
    QwtPainter::setRoundingAlignment(false); // whole pixels bend curves
}

void PlotView::setCurves(const QVector<Curve> &curves)
{
    const int chosen = currentIndex();
    const int before = count();
    while (count() > 0)
        delete widget(0);
    QVector<Curve> firstOfPlots;
    for (const Curve &curve : curves) {
        int index = 0;
        while (index < firstOfPlots.size() && !belongTogether(firstOfPlots.at(index), curve))
            ++index;
        if (index == firstOfPlots.size()) {
            firstOfPlots.append(curve);
            addTab(addPlot(curve), translated(curve.y.name));
        }
        auto *item = new QwtPlotCurve(translated(curve.name));
        item->setSamples(curve.points);
        item->setRenderHint(QwtPlotItem::RenderAntialiased);
        item->setLegendAttribute(QwtPlotCurve::LegendShowLine);
        item->setLegendIconSize(QSize(3, 1) * fontMetrics().height() * 2 / 3);
        item->attach(plot(index));
    }
    for (int i = 0; i < count(); ++i) {
        // A single curve has the name of its axis.
        if (plot(i)->itemList(QwtPlotItem::Rtti_PlotCurve).size() > 1)
            addLegend(plot(i));
    }
    restyle();
    if (count() == before)
        setCurrentIndex(chosen);
    resetZoom();
}

QwtPlot *PlotView::addPlot(const Curve &first)
{
    auto *plot = new QwtPlot;
    plot->setAxisTitle(QwtPlot::xBottom, axisTitle(first.x));
    plot->setAxisTitle(QwtPlot::yLeft, axisTitle(first.y));
    plot->setMinimumHeight(10 * fontMetrics().height()); // Qwt asks for more
    plot->setAxisMaxMajor(QwtPlot::xBottom, 5); // leaves room for long numbers
    (new QwtPlotGrid)->attach(plot);
    // The zoomer belongs to the canvas. Its first place is that of the whole plot.
    new QwtPlotZoomer(plot->canvas());
    return plot;
}

/// Names the curves above the plot; clicking a name hides the curve.
void PlotView::addLegend(QwtPlot *plot)
{
    auto *legend = new QwtLegend;
    legend->setDefaultItemMode(QwtLegendData::Checkable);
    plot->insertLegend(legend, QwtPlot::TopLegend);
    const auto curves = plot->itemList(QwtPlotItem::Rtti_PlotCurve);
    for (QwtPlotItem *curve : curves) {
        QWidget *label = legend->legendWidget(plot->itemToInfo(curve));
        qobject_cast<QwtLegendLabel *>(label)->setChecked(true);
    }
    connect(legend, &QwtLegend::checked, plot, [plot](const QVariant &info, bool on) {
        plot->infoToItem(info)->setVisible(on);
        plot->replot();
    });
}

void PlotView::resetZoom()
{
    for (int i = 0; i < count(); ++i) {
        plot(i)->setAxisAutoScale(QwtPlot::xBottom);
        plot(i)->setAxisAutoScale(QwtPlot::yLeft);
        plot(i)->replot();
        plot(i)->canvas()->findChild<QwtPlotZoomer *>()->setZoomBase();
    }
}

void PlotView::restyle()
{
    QColor faint = palette().color(QPalette::Text);
    faint.setAlphaF(0.3);
    for (int i = 0; i < count(); ++i) {
        int number = 0;
        const auto curves = plot(i)->itemList(QwtPlotItem::Rtti_PlotCurve);
        for (QwtPlotItem *curve : curves)
            static_cast<QwtPlotCurve *>(curve)->setPen(penOf(number++, palette()));
        QwtPlotItem *grid = plot(i)->itemList(QwtPlotItem::Rtti_PlotGrid).constFirst();
        static_cast<QwtPlotGrid *>(grid)->setPen(faint, 0, Qt::DotLine);
        plot(i)->setCanvasBackground(palette().color(QPalette::Base));
        auto *zoomer = plot(i)->canvas()->findChild<QwtPlotZoomer *>();
        zoomer->setRubberBandPen(palette().color(QPalette::Text));
        zoomer->setTrackerPen(palette().color(QPalette::Text));
        plot(i)->replot();
    }
}

void PlotView::render(QPainter *painter, const QRectF &area)
{
    const int columns = count() > 1 ? 2 : 1;
    const int rows = (count() + columns - 1) / columns;
    const QSizeF size(area.width() / columns, area.height() / qMax(rows, 1));
    const QPalette shown = palette();
    setPalette(QPalette(Qt::white)); // paper is light whatever the screen is
    for (int i = 0; i < count(); ++i) {
        const QPointF place(i % columns * size.width(), i / columns * size.height());
        QwtPlotRenderer renderer;
        renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
        renderer.render(plot(i), painter, QRectF(area.topLeft() + place, size));
    }
    setPalette(shown);
}

void PlotView::changeEvent(QEvent *event)
{
    QTabWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        restyle();
}

QwtPlot *PlotView::plot(int index) const
{
    return static_cast<QwtPlot *>(widget(index));
}
