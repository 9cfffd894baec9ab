// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "report.h"

#include "plotview.h"

#include <Kelto/Forms/KeltoResultView>

#include <QAbstractTextDocumentLayout>
#include <QDate>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextDocument>

namespace {

QString textOf(const QVector<VParameter> &parameters, const Values &values,
               const KeltoItemHints &hints, int digits)
{
    KeltoResultView view;
    view.setSignificantDigits(digits);
    view.setResults(parameters, values, hints);
    return view.text().toHtmlEscaped();
}

/// Smaller where it would need more than its share of the page. Returns the height that it takes.
double drawText(const QString &html, QPainter *painter)
{
    QTextDocument document;
    document.documentLayout()->setPaintDevice(painter->device());
    document.setHtml(html);
    const int width = painter->device()->width();
    document.setTextWidth(width);
    double scale = 1;
    // Smaller text has longer lines and so needs less than in proportion.
    while (document.size().height() * scale > painter->device()->height() * 0.7) {
        scale *= 0.9;
        document.setTextWidth(width / scale);
    }
    painter->scale(scale, scale);
    document.drawContents(painter);
    painter->resetTransform();
    return document.size().height() * scale;
}

} // namespace

QString Report::html() const
{
    QVector<VParameter> entered;
    for (const VParameter &parameter : task.parameters) {
        const QVariant value = valueOf(values, "Attribute/" + parameter.name().first);
        if (!value.toStringList().join("").isEmpty())
            entered.append(parameter);
    }
    // Paper is white in dark colours as well.
    return QString("<body style='color:black'><h2>%1</h2><p>%2 &nbsp; %3</p><p>%4</p><p>%5</p>"
                   "<table width=100% cellpadding=6><tr><th align=left>%6</th><th "
                   "align=left>%7</th></tr>"
                   "<tr style='white-space:pre-wrap'><td width=50%>%8</td><td>%9</td></tr></table>")
        .arg(task.title().toHtmlEscaped(), QDate::currentDate().toString(Qt::ISODate),
             project.toHtmlEscaped(), task.module.description.toHtmlEscaped(),
             task.description.toHtmlEscaped(), tr("Input"), tr("Results"),
             textOf(entered, values, task.hints, 15),
             textOf(task.results, computation.results, task.hints, 6));
}

bool Report::save(const QString &path) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QPdfWriter writer(&file);
    writer.setTitle(task.title());
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({ 18, 15, 18, 15 }, QPageLayout::Millimeter);
    QPainter painter(&writer);
    const double used = drawText(html(), &painter);
    PlotView plots;
    plots.setPalette(QPalette(Qt::white));
    plots.setCurves(computation.curves);
    plots.render(&painter, QRectF(0, used, writer.width(), writer.height() - used));
    return painter.end() && file.commit();
}
