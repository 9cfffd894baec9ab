// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "languages.h"
#include "mainwindow.h"
#include "modules.h"
#include "task.h"

#include <Kelto/AUTH_SET>
#include <Kelto/UTaskSelectDialog>

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QTableWidget>
#include <QTranslator>
#include <QtTest>

#include "support/directorytest.h"
#include "support/testfiles.h"

namespace {

enum Column { NameColumn, SymbolColumn, ValueColumn, UnitColumn, GroupColumn };

QString allValid()
{
    return "All values are valid. Change one, and the results follow.";
}

/// The registry of a program that starts with the module files beside the workbench.
std::unique_ptr<AUTH_SET> newRegistry()
{
    const auto modules = modulesFromFiles(WORKBENCH_MODULE_COPIES);
    if (!modules.isValid())
        qFatal("%s", qPrintable(modules.problem));
    return std::make_unique<AUTH_SET>("Workbench", "1.0", modules.result);
}

void click(const QWidget *window, const char *button)
{
    QTest::mouseClick(window->findChild<QPushButton *>(button), Qt::LeftButton);
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

/// The columns of a row, joined by " | ".
QString rowText(const QTableWidget *table, int row)
{
    QStringList texts;
    for (int column = 0; column < table->columnCount(); ++column)
        texts.append(table->item(row, column)->text());
    return texts.join(" | ");
}

QString names(const QVector<VParameter> &parameters)
{
    QStringList names;
    for (const VParameter &parameter : parameters)
        names.append(parameter.name().first);
    return names.join(", ");
}

} // namespace

/// The window and the task in it, each test in a directory of its own.
class tst_MainWindow : public DirectoryTest
{
    Q_OBJECT

public:
    static void initMain() { QCoreApplication::setApplicationName("Workbench"); }

private Q_SLOTS:
    void init() override
    {
        DirectoryTest::init();
        if (!QTest::currentTestFailed())
            start();
    }
    void cleanup() override
    {
        m_window.reset();
        m_registry.reset();
        qDeleteAll(qApp->findChildren<QTranslator *>());
        DirectoryTest::cleanup();
    }

    void noTaskAtFirst()
    {
        QVERIFY(currentTask(*m_registry).isNull());
        QCOMPARE(m_window->windowTitle(), QString("Workbench"));
        QCOMPARE(text("title"), QString("No task chosen"));
        QCOMPARE(text("description"),
                 QString("Press \"Choose task...\" and accept one of the tasks on offer."));
        QVERIFY(!table("parameters")->isVisible() && !table("results")->isVisible());
        // The dialog opens without a current entry, so there is nothing to accept.
        QCOMPARE(chooseTask("pushButton_accept"), QString());
        QCOMPARE(text("title"), QString("No task chosen"));
    }

    void taskHoldsWhatTheRegistryDescribes()
    {
        // Position 5 of the group, but the third mode of its module.
        show("Workbench:Statics:Torsion");
        const Task task = currentTask(*m_registry);
        QCOMPARE(task.title(), QString("Statics › Helical spring › Torsion"));
        QCOMPARE(task.description, task.module.inner_mode_description.at(2));
        QCOMPARE(names(task.parameters),
                 QString(
                     "Active coils, Elastic modulus, Mean coil diameter, Torque, Wire diameter"));
        QCOMPARE(names(task.results),
                 QString("Angle of twist, Bending stress, Curvature factor, Torsional rate"));
        QCOMPARE(text("title"), task.title());
        QCOMPARE(text("description"), task.description);
        QCOMPARE(rowText(table("parameters"), 3), QString("Torque | M | 1500 | N·mm | Load"));
        QCOMPARE(rowText(table("results"), 0),
                 QString("Angle of twist | α | 63.2911 | ° | Deformation"));
    }

    void unknownTaskChangesNothing_data()
    {
        QTest::addColumn<QString>("standardName");
        QTest::newRow("empty") << "";
        QTest::newRow("unknown mode") << "Workbench:Statics:Buckling";
        QTest::newRow("mode of another group") << "Workbench:Heat:Cantilever";
        QTest::newRow("group that is not exclusive") << "Workbench:Tools:Update";
        QTest::newRow("mode alone") << "Cantilever";
        QTest::newRow("too many parts") << "Workbench:Statics:Cantilever:";
        QTest::newRow("wrong case") << "workbench:statics:cantilever";
    }
    void unknownTaskChangesNothing()
    {
        QFETCH(QString, standardName);
        show("Workbench:Vessels:Thick wall");
        QVERIFY(!selectTask(*m_registry, standardName));
        QCOMPARE(currentTask(*m_registry).title(),
                 QString("Vessels › Pressure vessel › Thick wall"));
    }

    void recalledTask_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QString>("title");
        const QString first = "Statics › Beam › Cantilever";
        QTest::newRow("first run") << QString() << first;
        QTest::newRow("task of an earlier run") << "Workbench:Heat:Steady"
                                                << "Heat › Plane wall › Steady";
        QTest::newRow("task that is no longer there") << "Workbench:Statics:Buckling" << first;
        QTest::newRow("task of another program") << "Desk:Vessels:Thick wall" << first;
    }
    void recalledTask()
    {
        QFETCH(QString, setting);
        QVERIFY(QDir().mkpath("Config"));
        if (!setting.isNull())
            QSettings("Config/Workbench_config.ini", QSettings::IniFormat)
                .setValue("Task/Last", setting);
        start();
        recallTask(*m_registry);
        QTEST(currentTask(*m_registry).title(), "title");
    }

    void canceledDialogChangesNothing()
    {
        chooseTask("pushButton_cancel", 5);
        QCOMPARE(text("title"), QString("No task chosen"));
        QVERIFY(!QFile::exists("Config/Workbench_config.ini"));

        show("Workbench:Statics:Cantilever");
        enter("Length", "2000");
        chooseTask("pushButton_cancel", 5);
        QCOMPARE(text("title"), QString("Statics › Beam › Cantilever"));
        QCOMPARE(valueItem("parameters", "Length")->text(), QString("2000"));
        expectRemembered("Workbench:Statics:Cantilever");
    }

    /// Only what was accepted is logged and remembered.
    void acceptedTasks()
    {
        QCOMPARE(chooseTask("pushButton_Default"), QString());
        QCOMPARE(text("title"), QString("Statics › Beam › Cantilever"));
        QCOMPARE(text("message"), allValid());
        QVERIFY(table("parameters")->isVisible());
        expectRemembered("Workbench:Statics:Cantilever");

        QCOMPARE(chooseTask("pushButton_cancel", 4), QString("Workbench:Statics:Cantilever"));
        QCOMPARE(chooseTask("pushButton_accept", 5), QString("Workbench:Statics:Cantilever"));
        QCOMPARE(text("title"), QString("Statics › Helical spring › Torsion"));
        QCOMPARE(table("parameters")->rowCount(), 5);
        QCOMPARE(table("results")->rowCount(), 4);
        expectRemembered("Workbench:Statics:Torsion");

        const QList<QByteArray> log = fileContent(m_registry->filepath_log()).split('\n');
        QCOMPARE(log.size(), 3); // nothing follows the last line end
        QVERIFY(log.at(0).endsWith(" Task: Workbench:Statics:Cantilever"));
        QVERIFY(log.at(1).endsWith(" Task: Workbench:Statics:Torsion"));
    }

    void dialogOpensWithTheTaskOfTheEarlierRun()
    {
        chooseTask("pushButton_accept", 8);
        start();
        recallTask(*m_registry);
        QCOMPARE(chooseTask("pushButton_cancel"), QString("Workbench:Heat:Steady"));
        QCOMPARE(text("title"), QString("No task chosen"));
    }

    void menuOpensTheDialog()
    {
        const auto actions = m_window->menuBar()->actions().first()->menu()->actions();
        QCOMPARE(actions.first()->shortcut(), QKeySequence(Qt::CTRL + Qt::Key_T));
        whenDialogIsOpen([](UTaskSelectDialog *dialog) { click(dialog, "pushButton_Default"); });
        actions.first()->trigger();
        QCOMPARE(text("title"), QString("Statics › Beam › Cantilever"));
    }

    void everyTask_data()
    {
        QTest::addColumn<QString>("standardName");
        // Rows are made before init(), and a registry writes into the current directory.
        const TemporaryCurrentDirectory directory;
        const auto modes = newRegistry()->currentModeList();
        for (const auto &mode : modes)
            QTest::newRow(qPrintable(mode.first)) << mode.first;
    }
    /// Each task has valid values at first, and fits into the window.
    void everyTask()
    {
        QFETCH(QString, standardName);
        show(standardName);
        QCOMPARE(text("message"), allValid());
        for (const char *name : { "parameters", "results" }) {
            const QAbstractItemView *view = table(name);
            QVERIFY(table(name)->rowCount() >= 3);
            // The tables take their height in a later round of the event loop.
            QTRY_COMPARE(view->verticalScrollBar()->maximum(), 0);
            for (int column = NameColumn; column <= GroupColumn; ++column) {
                QVERIFY(table(name)->columnWidth(column) >= view->sizeHintForColumn(column));
                const bool editable = table(name)->item(0, column)->flags() & Qt::ItemIsEditable;
                QCOMPARE(editable, view == table("parameters") && column == ValueColumn);
            }
            QVERIFY(table(name)->horizontalHeader()->length() <= view->viewport()->width());
        }
        for (const char *name : { "title", "description", "message" }) {
            const auto *label = m_window->findChild<QLabel *>(name);
            QTRY_VERIFY(label->height() >= label->heightForWidth(label->width()));
            QVERIFY(m_window->centralWidget()->rect().contains(
                QRect(label->mapTo(m_window->centralWidget(), QPoint()), label->size())));
        }
    }

    void problemIsShownAndGoesAway_data()
    {
        QTest::addColumn<QString>("parameter");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("problem");
        const QString noNumber = "Outer surface temperature: \"%1\" is not a number. Write "
                                 "decimals with a point, as in 0.5.";
        QTest::newRow("no number") << "Outer surface temperature"
                                   << "cold" << noNumber.arg("cold");
        QTest::newRow("list where one number belongs") << "Outer surface temperature"
                                                       << "1; 2" << noNumber.arg("1; 2");
        QTest::newRow("nothing") << "Outer surface temperature"
                                 << " "
                                 << "Outer surface temperature: enter a number.";
        QTest::newRow("refused by the calculation")
            << "Layer thickness"
            << "1; 2"
            << "Layer conductivity: enter one number per layer. There are 2 layers and 4 numbers.";
    }
    void problemIsShownAndGoesAway()
    {
        QFETCH(QString, parameter);
        QFETCH(QString, value);
        show("Workbench:Heat:Steady");
        const QString valid = valueItem("parameters", parameter)->text();
        const QString result = rowText(table("results"), 0);

        enter(parameter, value);
        QTEST(text("message"), "problem");
        QCOMPARE(messageColour(), QColor(Qt::darkRed));
        for (int row = 0; row < table("results")->rowCount(); ++row)
            QCOMPARE(table("results")->item(row, ValueColumn)->text(), QString("–"));

        enter(parameter, valid);
        QCOMPARE(text("message"), allValid());
        QVERIFY(messageColour() != QColor(Qt::darkRed));
        QCOMPARE(rowText(table("results"), 0), result);
    }

    void validValuesAreHandedToTheRegistry()
    {
        show("Workbench:Heat:Steady");
        enter("Inner surface temperature", " 21.5 ");
        enter("Layer thickness", "15;240; 1234.56789; 20");
        QCOMPARE(m_registry->value_cal("Attribute/Inner surface temperature"), QVariant(21.5));
        QCOMPARE(m_registry->value_cal("Unit/Inner surface temperature"), QVariant("°C"));
        QCOMPARE(m_registry->value_cal("Attribute/Layer thickness"),
                 QVariant(QStringList { "15", "240", "1234.56789", "20" }));
        // A list of many numbers may be wider than its column.
        QCOMPARE(valueItem("parameters", "Layer thickness")->toolTip(),
                 QString("15;240; 1234.56789; 20"));

        enter("Inner surface temperature", "much");
        QCOMPARE(m_registry->value_cal("Attribute/Inner surface temperature"), QVariant(21.5));
        enter("Inner surface temperature", "");
        QCOMPARE(m_registry->value_cal("Attribute/Inner surface temperature"), QVariant(21.5));
        enter("Layer thickness", "");
        QCOMPARE(text("message"),
                 QString("Inner surface temperature, Layer thickness: enter a number."));
    }

    void enteredValuesSurviveAnotherTask()
    {
        show("Workbench:Vessels:Thin wall");
        enter("Internal pressure", "12");
        QCOMPARE(valueItem("results", "Axial stress")->text(), QString("75"));
        show("Workbench:Heat:Steady");
        show("Workbench:Vessels:Thick wall");
        QCOMPARE(valueItem("parameters", "Internal pressure")->text(), QString("12"));
    }

    void languages_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("texts");
        const QString english
            = "Choose task... / Statics › Beam › Cantilever / Elastic modulus / "
              "Unit / Accept / Elastic modulus: enter a number greater than zero.";
        QTest::newRow("English") << "en" << english;
        QTest::newRow("a language without translation") << "fr" << english;
        QTest::newRow("Chinese") << "zh_CN"
                                 << "选择任务... / 静力学 › 梁 › 悬臂 / 弹性模量 / 单位 / 确定 / "
                                    "弹性模量：请输入大于零的数。";
    }
    void languages()
    {
        QFETCH(QString, language);
        installTranslations(QLocale(language));
        start();
        show("Workbench:Statics:Cantilever");
        enter(table("parameters")->item(0, NameColumn)->text(), "0");
        const UTaskSelectDialog dialog;

        const QStringList texts { m_window->findChild<QPushButton *>("chooseTask")->text(),
                                  text("title"),
                                  table("parameters")->item(0, NameColumn)->text(),
                                  table("parameters")->horizontalHeaderItem(UnitColumn)->text(),
                                  dialog.findChild<QPushButton *>("pushButton_accept")->text(),
                                  text("message") };
        QTEST(texts.join(" / "), "texts");
    }

    void chineseModule()
    {
        installTranslations(QLocale("zh_CN"));
        start();
        show("Workbench:传热:带对流");
        QCOMPARE(text("title"), QString("传热 › 平壁 › 带对流"));
        QCOMPARE(text("description"),
                 QString("两侧空气之间的稳态传热。各层从内到外输入，层间接触良好，无接触热阻；"
                         "辐射已计入表面传热系数；热流密度由内向外为正。"));
        QCOMPARE(rowText(table("parameters"), 0), QString("内侧空气温度 | T₁ | 20 | °C | 温度"));
        QCOMPARE(rowText(table("results"), 2), QString("热阻 | R | 4.12209 | m²·K/W | 传热"));
        QCOMPARE(chooseTask("pushButton_cancel"), QString("Workbench:传热:带对流"));
    }

private:
    /// Starts the program anew.
    void start()
    {
        m_window.reset();
        m_registry = newRegistry();
        m_window = std::make_unique<MainWindow>(m_registry.get());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void show(const QString &standardName)
    {
        QVERIFY(selectTask(*m_registry, standardName));
        m_window->showCurrentTask();
    }

    /// Chooses the entry at @p index, or leaves the one there is, and clicks the button.
    /// @return the entry with which the dialog opened
    QString chooseTask(const char *button, int index = -1)
    {
        QString atFirst;
        whenDialogIsOpen([&](UTaskSelectDialog *dialog) {
            auto *entries = dialog->findChild<QComboBox *>();
            atFirst = entries->currentText();
            if (index >= 0)
                entries->setCurrentIndex(index);
            click(dialog, button);
        });
        click(m_window.get(), "chooseTask");
        return atFirst;
    }

    static void expectRemembered(const char *task)
    {
        QCOMPARE(fileContent("Config/Workbench_config.ini"),
                 QByteArray("[Task]\nLast=") + task + '\n');
    }

    QString text(const char *label) const { return m_window->findChild<QLabel *>(label)->text(); }

    QColor messageColour() const
    {
        return m_window->findChild<QLabel *>("message")->palette().color(QPalette::WindowText);
    }

    QTableWidget *table(const char *name) const
    {
        return m_window->findChild<QTableWidget *>(name);
    }

    QTableWidgetItem *valueItem(const char *tableName, const QString &row) const
    {
        const auto found = table(tableName)->findItems(row, Qt::MatchExactly);
        return table(tableName)->item(found.first()->row(), ValueColumn);
    }

    void enter(const QString &parameter, const QString &value)
    {
        valueItem("parameters", parameter)->setText(value);
    }

    std::unique_ptr<AUTH_SET> m_registry;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
