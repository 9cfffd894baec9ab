// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "languages.h"
#include "mainwindow.h"
#include "modules.h"
#include "task.h"

#include <Kelto/AUTH_INF>
#include <Kelto/AUTH_SET>
#include <Kelto/UTaskSelectDialog>

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QtTest>

#include "support/temporarycurrentdirectory.h"

#include <functional>
#include <memory>

namespace {

enum Column { NameColumn, SymbolColumn, ValueColumn, UnitColumn, GroupColumn };

QStringList rowTexts(const QTableWidget *table, int row)
{
    QStringList texts;
    for (int column = 0; column < table->columnCount(); ++column)
        texts.append(table->item(row, column)->text());
    return texts;
}

/// The value in the row with the name @p name.
QString valueOf(const QTableWidget *table, const QString &name)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->item(row, NameColumn)->text() == name)
            return table->item(row, ValueColumn)->text();
    }
    return QStringLiteral("no such row");
}

/// Answers the dialog that is about to open.
void whenDialogIsOpen(const std::function<void(UTaskSelectDialog *)> &answer)
{
    QTimer::singleShot(0, qApp, [answer] {
        auto *dialog = qobject_cast<UTaskSelectDialog *>(QApplication::activeModalWidget());
        if (dialog)
            answer(dialog);
        else
            whenDialogIsOpen(answer);
    });
}

void click(UTaskSelectDialog *dialog, const char *buttonName)
{
    auto *button = dialog->findChild<QPushButton *>(QLatin1String(buttonName));
    QTest::mouseClick(button, Qt::LeftButton);
}

} // namespace

/// The window in a directory of its own, offscreen.
class tst_MainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void withoutTask();
    void cancelOnFirstOpening();
    void acceptWithoutChoice();
    void defaultTask();
    void acceptedTask();
    void cancelKeepsTaskAndValues();
    void dialogOpensWithTheTaskAcceptedLast();
    void menuOpensTheDialog();
    void onlyAcceptedTasksAreLogged();

    void everythingOfATaskIsVisible_data();
    void everythingOfATaskIsVisible();
    void everyTaskHasValidDefaults_data();
    void everyTaskHasValidDefaults();
    void changedValueChangesTheResults();
    void onlyValuesOfParametersCanBeEdited();
    void problemIsShownAndGoesAway_data();
    void problemIsShownAndGoesAway();
    void enteredValuesSurviveAnotherTask();

private:
    void addTasks() const;
    void show(const char *standardName);
    QString text(const char *labelName) const;
    QTableWidget *table(const char *name) const;
    void enter(int row, const char *value);
    void chooseTask(const std::function<void(UTaskSelectDialog *)> &answer);

    std::unique_ptr<TemporaryCurrentDirectory> m_directory;
    std::unique_ptr<AUTH_SET> m_registry;
    std::unique_ptr<MainWindow> m_window;
};

void tst_MainWindow::init()
{
    m_directory = std::make_unique<TemporaryCurrentDirectory>();
    QVERIFY(m_directory->isUsable());
    m_registry = std::make_unique<AUTH_SET>(QStringLiteral("Workbench"), QStringLiteral("1.0"),
                                            workbenchModules());
    m_window = std::make_unique<MainWindow>(m_registry.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_MainWindow::cleanup()
{
    m_window.reset();
    m_registry.reset();
    m_directory.reset();
}

void tst_MainWindow::show(const char *standardName)
{
    QVERIFY(selectTask(*m_registry, QString::fromUtf8(standardName)));
    m_window->showCurrentTask();
}

QString tst_MainWindow::text(const char *labelName) const
{
    return m_window->findChild<QLabel *>(QLatin1String(labelName))->text();
}

QTableWidget *tst_MainWindow::table(const char *name) const
{
    return m_window->findChild<QTableWidget *>(QLatin1String(name));
}

void tst_MainWindow::enter(int row, const char *value)
{
    table("parameters")->item(row, ValueColumn)->setText(QString::fromUtf8(value));
}

void tst_MainWindow::chooseTask(const std::function<void(UTaskSelectDialog *)> &answer)
{
    whenDialogIsOpen(answer);
    QTest::mouseClick(m_window->findChild<QPushButton *>(QStringLiteral("chooseTask")),
                      Qt::LeftButton);
}

/// One row per task.
void tst_MainWindow::addTasks() const
{
    QTest::addColumn<QString>("standardName");
    // Rows are made before init(), and a registry writes into the current directory.
    const TemporaryCurrentDirectory directory;
    const AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), workbenchModules());
    const auto modes = registry.currentModeList();
    for (const auto &mode : modes)
        QTest::newRow(qPrintable(mode.first)) << mode.first;
}

void tst_MainWindow::withoutTask()
{
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Workbench"));
    QCOMPARE(text("title"), QStringLiteral("No task chosen"));
    QCOMPARE(text("description"),
             QStringLiteral("Press \"Choose task...\" and accept one of the tasks on offer."));
    QVERIFY(!table("parameters")->isVisible());
    QVERIFY(!table("results")->isVisible());
}

void tst_MainWindow::cancelOnFirstOpening()
{
    chooseTask([](UTaskSelectDialog *dialog) { click(dialog, "pushButton_cancel"); });

    QCOMPARE(text("title"), QStringLiteral("No task chosen"));
}

void tst_MainWindow::acceptWithoutChoice()
{
    // Nothing was accepted before, so the dialog opens without a current entry.
    chooseTask([](UTaskSelectDialog *dialog) { click(dialog, "pushButton_accept"); });

    QCOMPARE(text("title"), QStringLiteral("No task chosen"));
}

void tst_MainWindow::defaultTask()
{
    chooseTask([](UTaskSelectDialog *dialog) { click(dialog, "pushButton_Default"); });

    QCOMPARE(text("title"), QStringLiteral("Statics › Beam › Cantilever"));
    QCOMPARE(rowTexts(table("parameters"), 0),
             (QStringList { QStringLiteral("Length"), QStringLiteral("L"), QStringLiteral("1000"),
                            QStringLiteral("mm"), QStringLiteral("Geometry") }));
    QCOMPARE(rowTexts(table("results"), 0),
             (QStringList { QStringLiteral("Deflection"), QStringLiteral("w"),
                            QStringLiteral("2.75573"), QStringLiteral("mm"),
                            QStringLiteral("Deformation") }));
    QCOMPARE(text("message"),
             QStringLiteral("All values are valid. Change one, and the results follow."));
    QVERIFY(table("parameters")->isVisible());
}

void tst_MainWindow::acceptedTask()
{
    chooseTask([](UTaskSelectDialog *dialog) {
        dialog->findChild<QComboBox *>()->setCurrentText(
            QStringLiteral("Workbench:Statics:Torsion"));
        click(dialog, "pushButton_accept");
    });

    QCOMPARE(text("title"), QStringLiteral("Statics › Helical spring › Torsion"));
    QCOMPARE(text("description"),
             QStringLiteral("A spring twisted about its axis. The stress is that at the inner side "
                            "of the coil."));
    QCOMPARE(table("parameters")->rowCount(), 5);
    QCOMPARE(table("results")->rowCount(), 4);
    QCOMPARE(valueOf(table("results"), QStringLiteral("Angle of twist")),
             QStringLiteral("62.0856"));
}

void tst_MainWindow::cancelKeepsTaskAndValues()
{
    show("Workbench:Statics:Cantilever");
    enter(0, "2000");

    chooseTask([](UTaskSelectDialog *dialog) {
        dialog->findChild<QComboBox *>()->setCurrentIndex(5);
        click(dialog, "pushButton_cancel");
    });

    QCOMPARE(text("title"), QStringLiteral("Statics › Beam › Cantilever"));
    QCOMPARE(valueOf(table("parameters"), QStringLiteral("Length")), QStringLiteral("2000"));
}

void tst_MainWindow::dialogOpensWithTheTaskAcceptedLast()
{
    show("Workbench:Vessels:Thick wall");
    QString current;

    chooseTask([&current](UTaskSelectDialog *dialog) {
        current = dialog->currentItem().first;
        click(dialog, "pushButton_cancel");
    });

    QCOMPARE(current, QStringLiteral("Workbench:Vessels:Thick wall"));
}

void tst_MainWindow::menuOpensTheDialog()
{
    QAction *action = nullptr;
    const auto actions = m_window->menuBar()->actions().first()->menu()->actions();
    for (QAction *candidate : actions) {
        if (candidate->shortcut() == QKeySequence(Qt::CTRL + Qt::Key_T))
            action = candidate;
    }
    QVERIFY(action);
    whenDialogIsOpen([](UTaskSelectDialog *dialog) { click(dialog, "pushButton_Default"); });

    action->trigger();

    QCOMPARE(text("title"), QStringLiteral("Statics › Beam › Cantilever"));
}

void tst_MainWindow::onlyAcceptedTasksAreLogged()
{
    chooseTask([](UTaskSelectDialog *dialog) { click(dialog, "pushButton_Default"); });
    chooseTask([](UTaskSelectDialog *dialog) { click(dialog, "pushButton_cancel"); });

    const QByteArray log = fileContent(m_registry->filepath_log());
    QCOMPARE(log.count('\n'), 1);
    QVERIFY2(log.endsWith(" Task: Workbench:Statics:Cantilever\n"), log.constData());
}

void tst_MainWindow::everythingOfATaskIsVisible_data()
{
    addTasks();
}

void tst_MainWindow::everythingOfATaskIsVisible()
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

void tst_MainWindow::everyTaskHasValidDefaults_data()
{
    addTasks();
}

void tst_MainWindow::everyTaskHasValidDefaults()
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

void tst_MainWindow::changedValueChangesTheResults()
{
    show("Workbench:Vessels:Thin wall");
    QCOMPARE(valueOf(table("results"), QStringLiteral("Axial stress")), QStringLiteral("37.5"));

    enter(2, "12");

    QCOMPARE(valueOf(table("results"), QStringLiteral("Axial stress")), QStringLiteral("75"));
    QCOMPARE(valueOf(table("results"), QStringLiteral("Radial stress inside")),
             QStringLiteral("-12"));
}

void tst_MainWindow::onlyValuesOfParametersCanBeEdited()
{
    show("Workbench:Vessels:Thin wall");
    for (const char *name : { "parameters", "results" }) {
        for (int column = NameColumn; column <= GroupColumn; ++column) {
            const bool editable = table(name)->item(0, column)->flags() & Qt::ItemIsEditable;
            QCOMPARE(editable, qstrcmp(name, "parameters") == 0 && column == ValueColumn);
        }
    }
}

void tst_MainWindow::problemIsShownAndGoesAway_data()
{
    QTest::addColumn<QString>("standardName");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("problem");

    QTest::newRow("no number")
        << "Workbench:Vessels:Thin wall"
        << "wide"
        << "Inner diameter: \"wide\" is not a number. Write decimals with a point, as in 0.5.";
    QTest::newRow("nothing") << "Workbench:Vessels:Thin wall"
                             << ""
                             << "Inner diameter: enter a number.";
    QTest::newRow("negative") << "Workbench:Vessels:Thin wall"
                              << "-1"
                              << "Inner diameter: enter a number greater than zero.";
    QTest::newRow("lists of different length")
        << "Workbench:Heat:Steady"
        << "1; 2"
        << "Layer conductivity: enter one number per layer. There are 2 layers and 4 numbers.";
}

void tst_MainWindow::problemIsShownAndGoesAway()
{
    QFETCH(QString, standardName);
    QFETCH(QString, value);
    show(qPrintable(standardName));
    const QString valid = table("parameters")->item(0, ValueColumn)->text();
    const QString result = table("results")->item(0, ValueColumn)->text();

    enter(0, qPrintable(value));

    QTEST(text("message"), "problem");
    for (int row = 0; row < table("results")->rowCount(); ++row)
        QCOMPARE(table("results")->item(row, ValueColumn)->text(), QStringLiteral("–"));

    enter(0, qPrintable(valid));

    QCOMPARE(text("message"),
             QStringLiteral("All values are valid. Change one, and the results follow."));
    QCOMPARE(table("results")->item(0, ValueColumn)->text(), result);
}

void tst_MainWindow::enteredValuesSurviveAnotherTask()
{
    show("Workbench:Statics:Cantilever");
    enter(0, "1234");

    show("Workbench:Heat:Steady");
    show("Workbench:Statics:Simply supported");

    QCOMPARE(valueOf(table("parameters"), QStringLiteral("Length")), QStringLiteral("1234"));
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Workbench"));
    tst_MainWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_mainwindow.moc"
