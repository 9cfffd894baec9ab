// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "formrow_p.h"

#include "findingmark_p.h"
#include "keltoparameterform.h"
#include "keltoparametermodel.h"
#include "tooltiptext_p.h"

#include <QGridLayout>
#include <QLabel>
#include <QStyle>

#include <algorithm>
#include <iterator>

using Model = KeltoParameterModel;

namespace {

enum GridColumn {
    LabelColumn,
    LabelGap,
    EditorColumn,
    UnitGap,
    UnitColumn,
    MarkGap,
    MarkColumn,
};
// From the editor to the mark.
constexpr int wholeSpan = MarkColumn - EditorColumn + 1;

QString withoutMnemonics(QString text)
{
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QString joined(const QStringList &texts, const QString &separator)
{
    QStringList filled = texts;
    filled.removeAll(QString());
    return filled.join(separator);
}

QString missingText()
{
    return KeltoParameterForm::tr("missing");
}

int columnSpacing(const QWidget *widget)
{
    return 2 * widget->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, widget);
}

/// Whether nothing but the row itself is needed to see what to do.
bool isPlainAbsence(const QVector<KeltoItemFinding> &findings)
{
    return std::all_of(findings.cbegin(), findings.cend(), [](const KeltoItemFinding &finding) {
        return finding.kind == KeltoItemFinding::Missing;
    });
}

} // namespace

FormRow::FormRow(const QModelIndex &index, EditorListener *listener, QGridLayout *grid,
                 int position)
    : m_grid(grid)
    , m_gridRow(2 * position)
    , m_isWide(index.data(Model::KindRole) == Model::Table)
    , m_editor(makeEditor(index, listener, grid->parentWidget()))
    , m_label(new QLabel(grid->parentWidget()))
{
    field()->setObjectName(index.data(Model::KeyRole).toString());
    m_label->setTextFormat(Qt::PlainText);
    m_label->setBuddy(field());
    if (m_isWide)
        m_label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    grid->addWidget(m_label, m_gridRow, LabelColumn);
    grid->addWidget(m_editor->widget(), m_gridRow, EditorColumn, 1, m_isWide ? wholeSpan : 1);
}

QVector<QWidget *> FormRow::tabStops() const
{
    QWidget *widget = m_editor->widget();
    if (widget->focusPolicy() & Qt::TabFocus)
        return { widget };
    QVector<QWidget *> stops;
    const QList<QWidget *> parts = widget->findChildren<QWidget *>();
    std::copy_if(parts.cbegin(), parts.cend(), std::back_inserter(stops),
                 [](const QWidget *part) { return part->focusPolicy() & Qt::TabFocus; });
    return stops;
}

int FormRow::labelWidth() const
{
    return m_label->sizeHint().width();
}

int FormRow::unitWidth() const
{
    return m_unit ? m_unit->sizeHint().width() : 0;
}

void FormRow::alignColumns(QGridLayout *grid, int labelWidth, int unitWidth)
{
    // The room for the mark is kept, or editors would change their width while someone types.
    FindingMark mark(nullptr);
    mark.setText(missingText());
    grid->setColumnMinimumWidth(LabelColumn, labelWidth);
    grid->setColumnMinimumWidth(UnitColumn, unitWidth);
    grid->setColumnMinimumWidth(MarkColumn, mark.sizeHint().width());
    for (const int gap : { LabelGap, UnitGap, MarkGap })
        grid->setColumnMinimumWidth(gap, columnSpacing(grid->parentWidget()));
    grid->setColumnStretch(EditorColumn, 1);
}

void FormRow::show(const QModelIndex &index)
{
    const QString name = index.data(Model::NameRole).toString();
    const QString symbol = index.data(Model::SymbolRole).toString();
    const QString unit = index.data(Model::UnitRole).toString();
    const QString help = index.data(Model::HelpRole).toString();
    m_label->setText(withoutMnemonics(
        joined({ name, symbol, m_isWide ? unit : QString() }, QStringLiteral("  "))));
    m_label->setToolTip(toolTipText(help));
    field()->setToolTip(toolTipText(help));
    field()->setAccessibleName(joined({ name, symbol, unit }, QStringLiteral(", ")));
    showUnit(unit);
    showDescription(index);
    m_editor->show(index);
    // Its words may be others in this language.
    m_isFindingShown = false;
}

void FormRow::showUnit(const QString &unit)
{
    if (m_isWide || (!m_unit && unit.isEmpty()))
        return;
    if (!m_unit) {
        m_unit = new QLabel(m_grid->parentWidget());
        m_unit->setTextFormat(Qt::PlainText);
        m_unit->setVisible(m_isVisible);
        m_grid->addWidget(m_unit, m_gridRow, UnitColumn);
    }
    m_unit->setText(unit);
}

void FormRow::showDescription(const QModelIndex &index)
{
    const QString help = index.data(Model::HelpRole).toString();
    field()->setAccessibleDescription(joined({ m_finding, help }, QStringLiteral("\n")));
}

void FormRow::showFindings(const QModelIndex &index, const QVector<KeltoItemFinding> &findings)
{
    const QString text = index.data(Model::FindingRole).toString();
    if (m_isFindingShown && text == m_finding)
        return;
    m_isFindingShown = true;
    m_finding = text;
    showDescription(index);
    m_editor->mark(findings);
    if (!m_mark && !findings.isEmpty())
        m_mark = new FindingMark(m_grid->parentWidget());
    if (m_mark)
        showMark(findings);
}

void FormRow::showMark(const QVector<KeltoItemFinding> &findings)
{
    m_mark->setVisible(m_isVisible && !findings.isEmpty());
    m_mark->setToolTip(toolTipText(m_finding));
    // A form that is not filled in yet has such a mark in every row: there it takes no line more.
    const bool isAbsence = isPlainAbsence(findings);
    const bool isBelow = m_isWide || !isAbsence;
    m_mark->setText(isAbsence ? missingText() : m_finding);
    if (m_grid->indexOf(m_mark) >= 0 && isBelow == m_isMarkBelow)
        return;
    m_isMarkBelow = isBelow;
    m_grid->removeWidget(m_mark);
    if (isBelow)
        m_grid->addWidget(m_mark, m_gridRow + 1, EditorColumn, 1, wholeSpan);
    else
        m_grid->addWidget(m_mark, m_gridRow, MarkColumn, Qt::AlignVCenter);
}

void FormRow::setVisible(bool visible)
{
    m_isVisible = visible;
    m_label->setVisible(visible);
    m_editor->widget()->setVisible(visible);
    if (m_unit)
        m_unit->setVisible(visible);
    if (m_mark)
        m_mark->setVisible(visible && !m_finding.isEmpty());
}
