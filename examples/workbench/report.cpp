// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "report.h"

#include "plotview.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QDate>
#include <QLocale>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextDocument>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Report)
};

/// A value as a person reads it.
/// @param digits how many significant ones a number has
QString shown(const VParameter &parameter, const QVariant &value, const KeltoItemHints &hints,
              int digits)
{
    const auto choices = hints.choices(parameter.name().first);
    for (const KeltoItemHints::Choice &choice : choices) {
        if (choice.value == value.toString())
            return choice.label;
    }
    QStringList texts = value.toStringList();
    if (texts.isEmpty())
        texts.append(value.toString());
    for (QString &text : texts) {
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        if (isNumber)
            text = QLocale().toString(number, 'g', digits);
    }
    return texts.join(QLatin1String("; "));
}

/// A table of those that have a value.
QString tableOf(const QVector<VParameter> &parameters, const Values &values,
                const KeltoItemHints &hints, int digits)
{
    QString rows;
    for (const VParameter &parameter : parameters) {
        const QString key = parameter.name().first;
        const QString text
            = shown(parameter, valueOf(values, QStringLiteral("Attribute/") + key), hints, digits);
        if (text.isEmpty())
            continue;
        const QString label = hints.label(key);
        rows += QStringLiteral("<tr><td width=40%>%1</td><td width=10%>%2</td>"
                               "<td width=30% align=right>%3</td><td>&nbsp;%4</td></tr>")
                    .arg((label.isEmpty() ? parameter.name().second : label).toHtmlEscaped(),
                         parameter.symbol().toHtmlEscaped(), text.toHtmlEscaped(),
                         parameter.unit().first.toHtmlEscaped());
    }
    return QStringLiteral("<table width=100% cellspacing=0 cellpadding=2>%1</table>").arg(rows);
}

} // namespace

QString Report::html() const
{
    const QString paragraph = QStringLiteral("<p>%1</p>");
    const QString heading = QStringLiteral("<h3>%1</h3>");
    // Paper is white in dark colours as well.
    return QStringLiteral("<body style='color:black'><h2>%1</h2>").arg(task.title().toHtmlEscaped())
        + paragraph.arg(
            (project.isEmpty() ? QString() : project + QStringLiteral(", ")).toHtmlEscaped()
            + QLocale().toString(QDate::currentDate(), QLocale::ShortFormat))
        + paragraph.arg(task.module.description.toHtmlEscaped())
        + paragraph.arg(task.description.toHtmlEscaped()) + heading.arg(Texts::tr("Input"))
        + tableOf(task.parameters, values, task.hints, QLocale::FloatingPointShortest)
        + heading.arg(Texts::tr("Results")) + tableOf(task.results, results, task.hints, 6);
}

bool Report::print(QPagedPaintDevice *device, PlotView *plots) const
{
    QPainter painter;
    if (!painter.begin(device))
        return false;
    QTextDocument document;
    document.documentLayout()->setPaintDevice(device);
    document.setHtml(html());
    const QSizeF page(device->width(), device->height());
    const double share = page.height() * 0.7;
    document.setTextWidth(page.width());
    double scale = 1;
    // Smaller text has longer lines and so needs less than in proportion.
    while (document.size().height() * scale > share) {
        scale *= 0.9;
        document.setTextWidth(page.width() / scale);
    }
    painter.save();
    painter.scale(scale, scale);
    document.drawContents(&painter);
    painter.restore();
    const double used = document.size().height() * scale;
    plots->render(&painter, QRectF(0, used, page.width(), page.height() - used));
    return painter.end();
}
