// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What the form says about the values.

#include "keltoparameterform_p.h"

#include <QLabel>

#include <utility>

using Model = KeltoParameterModel;

namespace {

// More names than these nobody reads.
constexpr int namedAtMost = 8;

} // namespace

void KeltoParameterFormPrivate::showFindings()
{
    QVector<QVector<KeltoItemFinding>> findingsOfRow(int(m_rows.size()));
    const QVector<KeltoItemFinding> findings = model->findings();
    for (const KeltoItemFinding &finding : findings) {
        const int row = model->row(finding.parameter.name().first);
        if (row >= 0)
            findingsOfRow[row].append(finding);
    }
    const LayoutPause pause(this);
    for (int row = 0; row < findingsOfRow.size(); ++row)
        m_rows.at(row)->showFindings(index(row), findingsOfRow.at(row));
    summary->setText(summaryText());
}

QString KeltoParameterFormPrivate::summaryText() const
{
    QVector<int> missing;
    QVector<int> wrong;
    for (int row = 0; row < model->rowCount(); ++row) {
        if (index(row).data(Model::MissingRole).toBool())
            missing.append(row);
        else if (!index(row).data(Model::FindingRole).toString().isEmpty())
            wrong.append(row);
    }
    const int count = model->countingCount();
    QStringList sentences;
    if (missing.size() == 1)
        sentences.append(KeltoParameterForm::tr("1 of %1 parameters is missing: %2")
                             .arg(QString::number(count), links(missing)));
    else if (!missing.isEmpty())
        sentences.append(
            KeltoParameterForm::tr("%1 of %2 parameters are missing: %3")
                .arg(QString::number(missing.size()), QString::number(count), links(missing)));
    if (!wrong.isEmpty())
        sentences.append(KeltoParameterForm::tr("To be checked: %1").arg(links(wrong)));
    if (sentences.isEmpty() && count > 0)
        sentences.append(KeltoParameterForm::tr("All parameters are filled in."));
    return sentences.join(QStringLiteral("<br>"));
}

QString KeltoParameterFormPrivate::links(const QVector<int> &linkedRows) const
{
    QStringList names;
    const QVector<int> named = linkedRows.mid(0, namedAtMost);
    for (const int row : named)
        names.append(QStringLiteral("<a href=\"%1\">%2</a>")
                         .arg(QString::number(row),
                              index(row).data(Model::NameRole).toString().toHtmlEscaped()));
    const QString list = names.join(KeltoParameterForm::tr(", "));
    const int others = linkedRows.size() - names.size();
    return others > 0 ? KeltoParameterForm::tr("%1 and %2 more").arg(list, QString::number(others))
                      : list;
}
