// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "hostmodules.h"
#include "task.h"
#include "windowtest.h"

#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

#include "support/testfiles.h"

namespace {

QStringList rowTexts(const QTableWidget *table, int row)
{
    QStringList texts;
    for (int column = 0; column < table->columnCount(); ++column)
        texts.append(table->item(row, column)->text());
    return texts;
}

} // namespace

/// How the window comes to its task.
class tst_MainWindow : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutTask();
    void cancelOnFirstOpening();
    void acceptWithoutChoice();
    void defaultTask();
    void acceptedTask();
    void cancelKeepsTaskAndValues();
    void dialogOpensWithTheTaskAcceptedLast();
    void dialogOpensWithTheTaskOfTheEarlierRun();
    void menuOpensTheDialog();
    void onlyAcceptedTasksAreLogged();
    void onlyAcceptedTasksAreRemembered();

private:
    void chooseTask(const std::function<void(UTaskSelectDialog *)> &answer);
};

void tst_MainWindow::chooseTask(const std::function<void(UTaskSelectDialog *)> &answer)
{
    whenDialogIsOpen(answer);
    QTest::mouseClick(m_window->findChild<QPushButton *>(QStringLiteral("chooseTask")),
                      Qt::LeftButton);
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
    // Nothing was accepted before or recalled, so the dialog opens without a current entry.
    chooseTask([](UTaskSelectDialog *dialog) { click(dialog, "pushButton_accept"); });

    QCOMPARE(text("title"), QStringLiteral("No task chosen"));
}

void tst_MainWindow::defaultTask()
{
    chooseTask([](UTaskSelectDialog *dialog) { click(dialog, "pushButton_Default"); });

    QCOMPARE(text("title"), QStringLiteral("Statics › Beam › Cantilever"));
    QCOMPARE(rowTexts(table("parameters"), 1),
             (QStringList { QStringLiteral("Length"), QStringLiteral("L"), QStringLiteral("1000"),
                            QStringLiteral("mm"), QStringLiteral("Geometry") }));
    QCOMPARE(rowTexts(table("results"), 2),
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
    enter("Length", "2000");

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

void tst_MainWindow::dialogOpensWithTheTaskOfTheEarlierRun()
{
    chooseTask([](UTaskSelectDialog *dialog) {
        dialog->findChild<QComboBox *>()->setCurrentText(QStringLiteral("Workbench:Heat:Steady"));
        click(dialog, "pushButton_accept");
    });
    AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), hostModules());
    recallTask(registry);
    MainWindow window(&registry);
    QString current;
    whenDialogIsOpen([&current](UTaskSelectDialog *dialog) {
        current = dialog->currentItem().first;
        click(dialog, "pushButton_cancel");
    });

    window.chooseTask();

    QCOMPARE(current, QStringLiteral("Workbench:Heat:Steady"));
    QCOMPARE(window.findChild<QLabel *>("title")->text(), QStringLiteral("No task chosen"));
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

void tst_MainWindow::onlyAcceptedTasksAreRemembered()
{
    chooseTask([](UTaskSelectDialog *dialog) { click(dialog, "pushButton_cancel"); });
    QVERIFY(!QFile::exists("Config/Workbench_config.ini"));

    chooseTask([](UTaskSelectDialog *dialog) { click(dialog, "pushButton_Default"); });
    QCOMPARE(fileContent("Config/Workbench_config.ini"),
             QByteArray("[Task]\nLast=Workbench:Statics:Cantilever\n"));

    chooseTask([](UTaskSelectDialog *dialog) {
        dialog->findChild<QComboBox *>()->setCurrentIndex(5);
        click(dialog, "pushButton_cancel");
    });
    QCOMPARE(fileContent("Config/Workbench_config.ini"),
             QByteArray("[Task]\nLast=Workbench:Statics:Cantilever\n"));
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Workbench"));
    tst_MainWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_mainwindow.moc"
