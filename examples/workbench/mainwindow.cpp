// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "numbers.h"

#include <Kelto/AUTH_SET>
#include <Kelto/KeltoItemParameterVerify>
#include <Kelto/UTaskSelectDialog>
#include <Kelto/VIniSettings>
#include <Kelto/VParameter>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

enum Column { NameColumn, SymbolColumn, ValueColumn, UnitColumn, GroupColumn };

/// A table as high as its rows, in which the column of the values takes the remaining width.
QTableWidget *newTable(const QString &objectName, const QStringList &header)
{
    auto *table = new QTableWidget(0, header.size());
    table->setObjectName(objectName);
    table->setHorizontalHeaderLabels(header);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->horizontalHeader()->setSectionResizeMode(ValueColumn, QHeaderView::Stretch);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->setAlternatingRowColors(true);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    table->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    return table;
}

/// Gives each column but that of the values the same width in both tables.
void alignColumns(QTableWidget *first, QTableWidget *second)
{
    const int gap = first->fontMetrics().horizontalAdvance(QLatin1Char('m'));
    for (const int column : { NameColumn, SymbolColumn, UnitColumn, GroupColumn }) {
        int width = 0;
        for (const QTableWidget *table : { first, second }) {
            const QAbstractItemView *view = table; // declares the size hint public
            width = std::max({ width, table->horizontalHeader()->sectionSizeHint(column),
                               view->sizeHintForColumn(column) });
        }
        first->setColumnWidth(column, width + gap);
        second->setColumnWidth(column, width + gap);
    }
}

/// @param editable whether the user may change the value; the other columns are for reading
void fillTable(QTableWidget *table, const QVector<VParameter> &parameters, bool editable)
{
    const QSignalBlocker blocker(table);
    table->clearContents();
    table->setRowCount(parameters.size());
    for (int row = 0; row < parameters.size(); ++row) {
        const VParameter &parameter = parameters.at(row);
        const QStringList texts { parameter.name().second, parameter.symbol(), QString(),
                                  parameter.unit().first, parameter.group().second };
        for (int column = 0; column < table->columnCount(); ++column) {
            auto *item = new QTableWidgetItem(texts.at(column));
            if (!editable || column != ValueColumn)
                item->setFlags(item->flags() & ~Qt::ItemIsEditable);
            table->setItem(row, column, item);
        }
    }
}

void setValueText(QTableWidget *table, int row, const QString &text)
{
    const QSignalBlocker blocker(table);
    table->item(row, ValueColumn)->setText(text);
    // A list of many numbers may be wider than the column.
    table->item(row, ValueColumn)->setToolTip(text);
}

/// The key under which Kelto keeps the value of a parameter, once it has one.
QString valueKey(const VParameter &parameter)
{
    return QStringLiteral("Attribute/") + parameter.name().first;
}

QLabel *newLabel(const QString &objectName)
{
    auto *label = new QLabel;
    label->setObjectName(objectName);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QLabel *newHeading(const QString &text, double size)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * size);
    label->setFont(font);
    return label;
}

} // namespace

MainWindow::MainWindow(AUTH_SET *registry)
    : m_registry(registry)
{
    setWindowTitle(QCoreApplication::applicationName());
    createWidgets();
    createMenu();
    connect(m_chooseTask, &QPushButton::clicked, this, &MainWindow::chooseTask);
    connect(m_parameters, &QTableWidget::cellChanged, this, &MainWindow::takeValue);
    showTask();
    // The longest task fits with its default values, whatever the font.
    const QFontMetrics metrics = fontMetrics();
    setMinimumWidth(100 * metrics.averageCharWidth());
    resize(120 * metrics.averageCharWidth(), 36 * metrics.height());
}

void MainWindow::chooseTask()
{
    UTaskSelectDialog dialog;
    dialog.setWindowTitle(tr("Choose task"));
    // Offers every mode of every exclusive group, with the one accepted last preselected.
    dialog.set(m_registry);
    // Waits until the dialog has closed. Afterwards the registry holds what the user accepted.
    dialog.show();
    if (dialog.operateIndex != 0) // 0 stands for "Accept" and "Default"
        return;
    showCurrentTask();
}

void MainWindow::showCurrentTask()
{
    m_task = currentTask(*m_registry);
    if (!m_task.isNull()) {
        rememberTask(*m_registry, m_task);
        m_registry->log(QStringLiteral("Task: ")
                        + m_registry->stdModeNameForm(m_task.group.first, m_task.mode.first));
    }
    showTask();
}

void MainWindow::showTask()
{
    if (m_task.isNull()) {
        m_title->setText(tr("No task chosen"));
        m_description->setText(
            tr("Press \"Choose task...\" and accept one of the tasks on offer."));
    } else {
        m_title->setText(m_task.title());
        m_description->setText(m_task.description);
    }
    m_sheet->setVisible(!m_task.isNull());
    fillParameters();
    fillTable(m_results, m_task.results, false);
    alignColumns(m_parameters, m_results);
    recalculate();
}

void MainWindow::createMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Task"));
    menu->addAction(tr("&Choose task..."), this, &MainWindow::chooseTask,
                    QKeySequence(Qt::CTRL + Qt::Key_T));
    menu->addSeparator();
    menu->addAction(tr("&Quit"), this, &MainWindow::close, QKeySequence::Quit);
}

void MainWindow::createWidgets()
{
    m_title = newHeading(QString(), 1.4);
    m_title->setObjectName(QStringLiteral("title"));
    m_description = newLabel(QStringLiteral("description"));
    m_message = newLabel(QStringLiteral("message"));
    m_chooseTask = new QPushButton(tr("Choose task..."));
    m_chooseTask->setObjectName(QStringLiteral("chooseTask"));
    const QStringList columns { tr("Name"), tr("Symbol"), tr("Value"), tr("Unit"), tr("Group") };
    m_parameters = newTable(QStringLiteral("parameters"), columns);
    m_results = newTable(QStringLiteral("results"), columns);

    auto *header = new QHBoxLayout;
    header->addWidget(m_title, 1);
    header->addWidget(m_chooseTask);

    m_sheet = new QWidget;
    auto *sheetLayout = new QVBoxLayout(m_sheet);
    sheetLayout->setContentsMargins({});
    sheetLayout->addWidget(newHeading(tr("Parameters"), 1.1));
    sheetLayout->addWidget(m_parameters);
    sheetLayout->addWidget(newHeading(tr("Results"), 1.1));
    sheetLayout->addWidget(m_results);
    sheetLayout->addWidget(m_message);

    setCentralWidget(new QWidget);
    auto *layout = new QVBoxLayout(centralWidget());
    layout->addLayout(header);
    layout->addWidget(m_description);
    layout->addWidget(m_sheet);
    layout->addStretch();
}

void MainWindow::fillParameters()
{
    fillTable(m_parameters, m_task.parameters, true);
    for (int row = 0; row < m_task.parameters.size(); ++row) {
        const QString key = m_task.parameters.at(row).name().first;
        const QString text = Calculator::hintText(m_task.module, m_task.mode.first,
                                                  QStringLiteral("Default"), key);
        setValueText(m_parameters, row, m_enteredTexts.value(key, text));
    }
}

void MainWindow::takeValue(int row)
{
    const QString text = m_parameters->item(row, ValueColumn)->text();
    setValueText(m_parameters, row, text);
    m_enteredTexts.insert(m_task.parameters.at(row).name().first, text);
    recalculate();
}

void MainWindow::recalculate()
{
    if (m_task.isNull())
        return showProblem(QString());

    const Outcome<Values> entered = enteredValues();
    if (!entered.isValid())
        return showProblem(entered.problem);

    m_registry->getCalculationLData(entered.result);
    const Outcome<Computation> computed
        = Calculator::calculate(m_task.module, m_task.mode.first, valuesInRegistry());
    if (!computed.isValid())
        return showProblem(computed.problem);
    showResults(computed.result.results);
}

/// The values of the table with their units, as AUTH_SET::getCalculationLData() takes them.
Outcome<Values> MainWindow::enteredValues() const
{
    Outcome<Values> values;
    QStringList missing;
    for (int row = 0; row < m_task.parameters.size(); ++row) {
        const VParameter &parameter = m_task.parameters.at(row);
        const QString text = m_parameters->item(row, ValueColumn)->text();
        if (text.trimmed().isEmpty()) {
            missing.append(parameter.name().second);
            continue;
        }
        const bool isNumber = parameter.parameterObjectName() != QLatin1String("choice");
        const auto value
            = isNumber ? valueFromText(text, parameter.isMulti()) : Outcome<QVariant> { text, {} };
        if (!value.isValid())
            return { {}, tr("%1: %2").arg(parameter.name().second, value.problem) };
        values.result.append({ valueKey(parameter), value.result });
        values.result.append(
            { QStringLiteral("Unit/") + parameter.name().first, parameter.unit().first });
    }
    if (!KeltoItemParameterVerify::isValid(&m_task.module, &values.result, m_task.mode.first))
        return { {}, tr("%1: enter a number.").arg(missing.join(QStringLiteral(", "))) };
    return values;
}

Values MainWindow::valuesInRegistry() const
{
    Values values;
    for (const VParameter &parameter : m_task.parameters)
        values.append({ valueKey(parameter), m_registry->value_cal(valueKey(parameter)) });
    return values;
}

void MainWindow::showResults(const Values &results)
{
    const VIniSettings values(results);
    for (int row = 0; row < m_task.results.size(); ++row) {
        const VParameter &result = m_task.results.at(row);
        const QVariant value = values.value(valueKey(result));
        setValueText(m_results, row, textFromNumbers(numbersFromValue(value, result.isMulti())));
    }
    m_message->setPalette(palette());
    m_message->setText(tr("All values are valid. Change one, and the results follow."));
}

void MainWindow::showProblem(const QString &problem)
{
    for (int row = 0; row < m_results->rowCount(); ++row)
        setValueText(m_results, row, QStringLiteral("–"));
    QPalette red = palette();
    red.setColor(QPalette::WindowText, Qt::darkRed);
    m_message->setPalette(red);
    m_message->setText(problem);
}
