// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "studydialog.h"

#include "ui_studydialog.h"

#include <Kelto/AUTH_SET>

#include <QFileDialog>
#include <QProgressDialog>
#include <QSaveFile>
#include <QtNumeric>

StudyDialog::StudyDialog(AUTH_SET *registry, const Task &task, const Values &values,
                         QWidget *parent)
    : QDialog(parent)
    , m_registry(registry)
    , m_task(task)
    , m_values(values)
    , ui(std::make_unique<Ui::StudyDialog>())
{
    ui->setupUi(this);
    for (const VParameter &result : task.results)
        m_results.append(quantityOf(result));
    offerParameters();
}

StudyDialog::~StudyDialog() = default;

/// Those that are one number and count beside the other values.
void StudyDialog::offerParameters()
{
    for (int i = 0; i < m_task.parameters.size(); ++i) {
        const VParameter &parameter = m_task.parameters.at(i);
        if (parameter.parameterObjectName() == "double" && !parameter.isMulti()
            && m_task.hints.counts(parameter.name().first, &m_values))
            ui->studyParameter->addItem(heading(quantityOf(parameter)), i);
    }
    ui->studyRun->setEnabled(ui->studyParameter->count() > 0);
    recallRange();
}

VParameter StudyDialog::parameter() const
{
    return m_task.parameters.value(ui->studyParameter->currentData().toInt());
}

/// Where the temporary values hold what was entered for the parameter, for as long as the program
/// runs.
QString StudyDialog::place() const
{
    return "Study/" + parameter().name().first;
}

void StudyDialog::recallRange()
{
    const QString key = parameter().name().first;
    double value = valueOf(m_values, attributeGroup + key).toDouble();
    if (value == 0) // or empty
        value = m_task.hints.defaultValue(key).toDouble();
    const QStringList last = m_registry->value_temp(place()).toStringList();
    ui->studyFrom->setText(last.value(0, locale().toString(value / 2)));
    ui->studyTo->setText(last.value(1, locale().toString(value * 2)));
    ui->studySteps->setValue(last.value(2, "10").toInt());
}

bool StudyDialog::readRange()
{
    const auto numberIn = [this](const QLineEdit *edit) {
        bool isNumber = false;
        const double number = locale().toDouble(edit->text(), &isNumber);
        return isNumber ? number : qQNaN(); // "inf" and "nan" are numbers for Qt
    };
    m_range = { quantityOf(parameter()), parameter().symbol(), numberIn(ui->studyFrom),
                numberIn(ui->studyTo), ui->studySteps->value() };
    if (qIsFinite(m_range.from) && qIsFinite(m_range.to) && m_range.from != m_range.to) {
        m_registry->set_temp(place(),
                             QStringList { ui->studyFrom->text(), ui->studyTo->text(),
                                           QString::number(m_range.steps) });
        return true;
    }
    ui->studyMessage->setText(
        tr("Enter two different numbers between which the parameter is to go."));
    (qIsFinite(m_range.from) ? ui->studyTo : ui->studyFrom)->setFocus();
    return false;
}

void StudyDialog::run()
{
    if (!readRange())
        return;
    const int count = m_range.steps + 1;
    QProgressDialog progress(tr("Computing..."), tr("Cancel"), 0, count, this);
    progress.setWindowModality(Qt::WindowModal); // only then it handles events
    progress.setMinimumDuration(300); // ms; a window that is gone at once would only flicker
    const auto pointAt = [this](double value) {
        return computedAt(value, m_range.quantity.name, m_task, m_values);
    };
    m_points = study(m_range, pointAt, [&](int done) {
        progress.setValue(done);
        return !progress.wasCanceled();
    });
    ui->studySave->setEnabled(true);
    showCurves();
    Q_EMIT ended(tr("Study of %1: %2 of %3 points")
                     .arg(translated(m_range.quantity.name))
                     .arg(m_points.size())
                     .arg(count));
}

void StudyDialog::showCurves()
{
    const bool isFamily = ui->studyView->currentIndex() == 1;
    ui->plots->setCurves(isFamily ? familyOfCurves(m_range, m_points, 6)
                                  : resultCurves(m_range, m_results, m_points));
    QStringList lines;
    if (m_points.size() <= m_range.steps)
        lines.append(
            tr("Canceled after %1 of %2 points.").arg(m_points.size()).arg(m_range.steps + 1));
    for (const StudyPoint &point : qAsConst(m_points)) {
        if (!point.problem.isEmpty() && lines.size() < 3)
            lines.append(tr("Not computed at %L1: %2").arg(point.value).arg(point.problem));
    }
    ui->studyMessage->setText(lines.join('\n'));
}

void StudyDialog::saveCsv()
{
    const QString path
        = QFileDialog::getSaveFileName(this, tr("Save as CSV"), "study.csv", tr("Tables (*.csv)"));
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    const bool isSaved = file.open(QIODevice::WriteOnly)
        && file.write(studyAsCsv(m_range, m_results, m_points).toUtf8()) >= 0 && file.commit();
    ui->studyMessage->setText(
        isSaved ? tr("Saved as \"%1\".").arg(path)
                : tr("\"%1\" cannot be written: %2.").arg(path, file.errorString()));
}
