// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "studydialog.h"

#include "ui_studydialog.h"

#include <Kelto/AUTH_SET>

#include <QCoreApplication>
#include <QFileDialog>
#include <QSaveFile>

StudyDialog::StudyDialog(AUTH_SET *registry, const Task &task, const Values &values,
                         QWidget *parent)
    : QDialog(parent)
    , m_registry(registry)
    , m_task(task)
    , m_values(values)
    , ui(std::make_unique<Ui::StudyDialog>())
{
    ui->setupUi(this);
    offerParameters();
}

StudyDialog::~StudyDialog() = default;

/// Those with one number that count beside the other values.
void StudyDialog::offerParameters()
{
    for (const VParameter &parameter : qAsConst(m_task.parameters)) {
        const QString key = parameter.name().first;
        bool isNumber = false;
        valueOf(m_values, "Attribute/" + key).toString().toDouble(&isNumber);
        if (isNumber && !parameter.isMulti() && m_task.hints.choices(key).isEmpty()
            && m_task.hints.counts(key, &m_values))
            ui->studyParameter->addItem(withUnit(parameter.name().second, parameter.unit().first),
                                        key);
    }
    ui->studyRun->setEnabled(ui->studyParameter->count() > 0);
    recallRange();
}

/// Where the temporary values hold what was entered for the parameter, for as long as the program
/// runs.
QString StudyDialog::place() const
{
    return "Study/" + ui->studyParameter->currentData().toString();
}

void StudyDialog::recallRange()
{
    const QString key = ui->studyParameter->currentData().toString();
    const double value = valueOf(m_values, "Attribute/" + key).toDouble();
    const QStringList last = m_registry->value_temp(place()).toStringList();
    ui->studyFrom->setText(last.value(0, locale().toString(value / 2)));
    ui->studyTo->setText(last.value(1, locale().toString(value * 2)));
    ui->studySteps->setValue(last.value(2, "10").toInt());
}

bool StudyDialog::readRange()
{
    bool isFrom = false;
    bool isTo = false;
    m_range = { ui->studyParameter->currentData().toString(),
                locale().toDouble(ui->studyFrom->text(), &isFrom),
                locale().toDouble(ui->studyTo->text(), &isTo), ui->studySteps->value() };
    if (isFrom && isTo && m_range.from != m_range.to) {
        m_registry->set_temp(place(),
                             QStringList { ui->studyFrom->text(), ui->studyTo->text(),
                                           QString::number(m_range.steps) });
        return true;
    }
    ui->studyMessage->setText(
        tr("Enter two different numbers between which the parameter is to go."));
    (isFrom ? ui->studyTo : ui->studyFrom)->setFocus();
    return false;
}

void StudyDialog::run()
{
    if (!readRange())
        return;
    m_isRunning = true;
    m_isCanceled = false;
    ui->studyRun->setEnabled(false);
    ui->studyCancel->setText(tr("Cancel"));
    ui->studyProgress->setRange(0, m_range.steps + 1);
    m_points = study(m_task, m_values, m_range, [this](int done) {
        ui->studyProgress->setValue(done);
        // So that "Cancel" works and the bar is seen to move.
        QCoreApplication::processEvents();
        return !m_isCanceled;
    });
    m_isRunning = false;
    ui->studyRun->setEnabled(true);
    ui->studyCancel->setText(tr("Close"));
    ui->studySave->setEnabled(true);
    m_registry->log(QString("Study of %1: %2 of %3 points")
                        .arg(m_range.key)
                        .arg(m_points.size())
                        .arg(m_range.steps + 1));
    showCurves();
}

void StudyDialog::showCurves()
{
    const bool isFamily = ui->studyView->currentIndex() == 1;
    ui->plots->setCurves(isFamily ? familyOfCurves(m_task, m_range, m_points, 6)
                                  : resultCurves(m_task, m_range, m_points));
    QStringList lines;
    if (m_isCanceled)
        lines.append(
            tr("Canceled after %1 of %2 points.").arg(m_points.size()).arg(m_range.steps + 1));
    for (const StudyPoint &point : qAsConst(m_points)) {
        if (!point.outcome.isValid() && lines.size() < 3)
            lines.append(tr("Not computed at %L1: %2").arg(point.value).arg(point.outcome.problem));
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
        && file.write(studyAsCsv(m_task, m_range, m_points).toUtf8()) >= 0 && file.commit();
    ui->studyMessage->setText(
        isSaved ? tr("Saved as \"%1\".").arg(path)
                : tr("\"%1\" cannot be written: %2.").arg(path, file.errorString()));
}

void StudyDialog::reject()
{
    if (m_isRunning)
        m_isCanceled = true;
    else
        QDialog::reject();
}
