// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "hostmodules.h"
#include "windowtest.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableWidget>
#include <QtTest>

/// What the window shows of a task, and what it does with entered values.
class tst_MainWindowValues : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void everythingOfATaskIsVisible_data();
    void everythingOfATaskIsVisible();
    void everyTaskHasValidDefaults_data();
    void everyTaskHasValidDefaults();
    void changedValueChangesTheResults();
    void onlyValuesOfParametersCanBeEdited();
    void problemIsShownAndGoesAway_data();
    void problemIsShownAndGoesAway();
    void enteredValuesAreHandedToTheRegistry();
    void refusedValuesAreNotHandedOver();
    void enteredValuesSurviveAnotherTask();

private:
    void addTasks() const;
};

/// One row per task.
void tst_MainWindowValues::addTasks() const
{
    QTest::addColumn<QString>("standardName");
    // Rows are made before init(), and a registry writes into the current directory.
    const TemporaryCurrentDirectory directory;
    const AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), hostModules());
    const auto modes = registry.currentModeList();
    for (const auto &mode : modes)
        QTest::newRow(qPrintable(mode.first)) << mode.first;
}

void tst_MainWindowValues::everythingOfATaskIsVisible_data()
{
    addTasks();
}

void tst_MainWindowValues::everythingOfATaskIsVisible()
{
    QFETCH(QString, standardName);
    show(qPrintable(standardName));
    for (const char *name : { "parameters", "results" }) {
        const QAbstractItemView *view = table(name);
        // The tables take their height in a later round of the event loop.
        QTRY_COMPARE(view->verticalScrollBar()->maximum(), 0);
        for (const int column : { NameColumn, SymbolColumn, ValueColumn, UnitColumn, GroupColumn })
            QVERIFY(table(name)->columnWidth(column) >= view->sizeHintForColumn(column));
        QVERIFY(table(name)->horizontalHeader()->length() <= view->viewport()->width());
    }
    for (const char *name : { "title", "description", "message" }) {
        const auto *label = m_window->findChild<QLabel *>(QLatin1String(name));
        QTRY_VERIFY(label->height() >= label->heightForWidth(label->width()));
        QVERIFY(m_window->centralWidget()->rect().contains(
            QRect(label->mapTo(m_window->centralWidget(), QPoint()), label->size())));
    }
}

void tst_MainWindowValues::everyTaskHasValidDefaults_data()
{
    addTasks();
}

void tst_MainWindowValues::everyTaskHasValidDefaults()
{
    QFETCH(QString, standardName);

    show(qPrintable(standardName));

    QCOMPARE(text("message"),
             QStringLiteral("All values are valid. Change one, and the results follow."));
    QVERIFY(table("parameters")->rowCount() >= 3);
    QVERIFY(table("results")->rowCount() >= 3);
    for (int row = 0; row < table("results")->rowCount(); ++row) {
        const QString value = table("results")->item(row, ValueColumn)->text();
        QVERIFY2(!value.isEmpty() && !value.contains(QLatin1Char('n')), qPrintable(value));
    }
}

void tst_MainWindowValues::changedValueChangesTheResults()
{
    show("Workbench:Vessels:Thin wall");
    QCOMPARE(valueOf(table("results"), QStringLiteral("Axial stress")), QStringLiteral("37.5"));

    enter("Internal pressure", "12");

    QCOMPARE(valueOf(table("results"), QStringLiteral("Axial stress")), QStringLiteral("75"));
    QCOMPARE(valueOf(table("results"), QStringLiteral("Radial stress inside")),
             QStringLiteral("-12"));
}

void tst_MainWindowValues::onlyValuesOfParametersCanBeEdited()
{
    show("Workbench:Vessels:Thin wall");
    for (const char *name : { "parameters", "results" }) {
        for (int column = NameColumn; column <= GroupColumn; ++column) {
            const bool editable = table(name)->item(0, column)->flags() & Qt::ItemIsEditable;
            QCOMPARE(editable, qstrcmp(name, "parameters") == 0 && column == ValueColumn);
        }
    }
}

void tst_MainWindowValues::problemIsShownAndGoesAway_data()
{
    QTest::addColumn<QString>("standardName");
    QTest::addColumn<QString>("parameter");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("problem");

    QTest::newRow("no number")
        << "Workbench:Vessels:Thin wall"
        << "Inner diameter"
        << "wide"
        << "Inner diameter: \"wide\" is not a number. Write decimals with a point, as in 0.5.";
    QTest::newRow("nothing") << "Workbench:Vessels:Thin wall"
                             << "Inner diameter"
                             << ""
                             << "Inner diameter: enter a number.";
    QTest::newRow("negative") << "Workbench:Vessels:Thin wall"
                              << "Inner diameter"
                              << "-1"
                              << "Inner diameter: enter a number greater than zero.";
    QTest::newRow("lists of different length")
        << "Workbench:Heat:Steady"
        << "Layer thickness"
        << "1; 2"
        << "Layer conductivity: enter one number per layer. There are 2 layers and 4 numbers.";
}

void tst_MainWindowValues::problemIsShownAndGoesAway()
{
    QFETCH(QString, standardName);
    QFETCH(QString, parameter);
    QFETCH(QString, value);
    show(qPrintable(standardName));
    const QString valid = valueItem(parameter)->text();
    const QString result = table("results")->item(0, ValueColumn)->text();

    enter(parameter, qPrintable(value));

    QTEST(text("message"), "problem");
    for (int row = 0; row < table("results")->rowCount(); ++row)
        QCOMPARE(table("results")->item(row, ValueColumn)->text(), QStringLiteral("–"));

    enter(parameter, qPrintable(valid));

    QCOMPARE(text("message"),
             QStringLiteral("All values are valid. Change one, and the results follow."));
    QCOMPARE(table("results")->item(0, ValueColumn)->text(), result);
}

void tst_MainWindowValues::enteredValuesAreHandedToTheRegistry()
{
    show("Workbench:Heat:Steady");
    enter("Inner surface temperature", " 21.5 ");
    enter("Layer thickness", "15;240; 1234.56789; 20");

    QCOMPARE(m_registry->value_cal("Attribute/Inner surface temperature"), QVariant(21.5));
    QCOMPARE(m_registry->value_cal("Unit/Inner surface temperature"), QVariant("°C"));
    QCOMPARE(m_registry->value_cal("Attribute/Layer thickness"),
             QVariant(QStringList { "15", "240", "1234.56789", "20" }));
    QCOMPARE(m_registry->value_cal("Unit/Layer thickness"), QVariant("mm"));
}

void tst_MainWindowValues::refusedValuesAreNotHandedOver()
{
    show("Workbench:Vessels:Thin wall");
    enter("Internal pressure", "8");

    enter("Internal pressure", "much");
    QCOMPARE(m_registry->value_cal("Attribute/Internal pressure"), QVariant(8.0));
    enter("Internal pressure", " ");
    QCOMPARE(m_registry->value_cal("Attribute/Internal pressure"), QVariant(8.0));
    enter("Wall thickness", "");
    QCOMPARE(text("message"), QStringLiteral("Internal pressure, Wall thickness: enter a number."));
}

void tst_MainWindowValues::enteredValuesSurviveAnotherTask()
{
    show("Workbench:Statics:Cantilever");
    enter("Length", "1234");

    show("Workbench:Heat:Steady");
    show("Workbench:Statics:Simply supported");

    QCOMPARE(valueOf(table("parameters"), QStringLiteral("Length")), QStringLiteral("1234"));
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Workbench"));
    tst_MainWindowValues test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_mainwindow_values.moc"
