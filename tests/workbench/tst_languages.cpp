// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "hostmodules.h"
#include "languages.h"
#include "mainwindow.h"
#include "task.h"

#include <Kelto/AUTH_SET>
#include <Kelto/UTaskSelectDialog>

#include <QComboBox>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

#include "support/temporarycurrentdirectory.h"
#include "support/testfiles.h"

namespace {

QStringList entriesOf(const QComboBox *box)
{
    QStringList entries;
    for (int i = 0; i < box->count(); ++i)
        entries.append(box->itemText(i));
    return entries;
}

/// The names in the table @p name, each with its group.
QStringList rowsOf(const MainWindow &window, const char *name)
{
    const auto *table = window.findChild<QTableWidget *>(QLatin1String(name));
    QStringList rows;
    for (int row = 0; row < table->rowCount(); ++row)
        rows.append(QStringLiteral("%1 (%2)").arg(table->item(row, 0)->text(),
                                                  table->item(row, 4)->text()));
    return rows;
}

} // namespace

/// Installs one language after the other; the last one found is in force.
class tst_Languages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowAndDialog_data();
    void windowAndDialog();
    void chineseNamesOfModules_data();
    void chineseNamesOfModules();
    void everyTextIsTranslated();
};

void tst_Languages::windowAndDialog_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("firstRow");
    QTest::addColumn<QString>("unitHeader");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("accept");

    const QStringList english { QStringLiteral("Choose task..."),
                                QStringLiteral("Statics › Beam › Cantilever"),
                                QStringLiteral("Elastic modulus"),
                                QStringLiteral("Unit"),
                                QStringLiteral(
                                    "Elastic modulus: enter a number greater than zero."),
                                QStringLiteral("Accept") };
    const auto addRow = [](const char *name, const char *language, const QStringList &texts) {
        QTestData &row = QTest::newRow(name) << language;
        for (const QString &text : texts)
            row << text;
    };
    addRow("English", "en", english);
    addRow("a language without translation", "fr", english);
    addRow("Chinese", "zh_CN",
           { QStringLiteral("选择任务..."), QStringLiteral("静力学 › 梁 › 悬臂"),
             QStringLiteral("弹性模量"), QStringLiteral("单位"),
             QStringLiteral("弹性模量：请输入大于零的数。"), QStringLiteral("确定") });
}

void tst_Languages::windowAndDialog()
{
    QFETCH(QString, language);
    const TemporaryCurrentDirectory directory;
    QVERIFY(directory.isUsable());

    installTranslations(QLocale(language));
    AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), hostModules());
    QVERIFY(selectTask(registry, QStringLiteral("Workbench:Statics:Cantilever")));
    MainWindow window(&registry);
    window.showCurrentTask();
    const UTaskSelectDialog dialog;

    const auto *parameters = window.findChild<QTableWidget *>(QStringLiteral("parameters"));
    QTEST(window.findChild<QPushButton *>(QStringLiteral("chooseTask"))->text(), "button");
    QTEST(window.findChild<QLabel *>(QStringLiteral("title"))->text(), "title");
    QTEST(parameters->item(0, 0)->text(), "firstRow");
    QTEST(parameters->horizontalHeaderItem(3)->text(), "unitHeader");
    QTEST(dialog.findChild<QPushButton *>(QStringLiteral("pushButton_accept"))->text(), "accept");

    parameters->item(0, 2)->setText(QStringLiteral("0"));
    QTEST(window.findChild<QLabel *>(QStringLiteral("message"))->text(), "message");
}

void tst_Languages::chineseNamesOfModules_data()
{
    QTest::addColumn<bool>("compiled");
    QTest::newRow("modules from files") << false;
    QTest::newRow("compiled modules") << true;
}

void tst_Languages::chineseNamesOfModules()
{
    QFETCH(bool, compiled);
    const TemporaryCurrentDirectory directory;
    QVERIFY(directory.isUsable());
    installTranslations(QLocale("zh_CN"));
    AUTH_SET registry("Workbench", "1.0", compiled ? compiledModules() : hostModules());

    UTaskSelectDialog dialog;
    dialog.set(&registry);
    QVERIFY(selectTask(registry, "Workbench:Heat:With convection"));
    MainWindow window(&registry);
    window.showCurrentTask();

    QCOMPARE(entriesOf(dialog.findChild<QComboBox *>()),
             (QStringList { "Workbench:静力学:悬臂", "Workbench:静力学:两端简支",
                            "Workbench:静力学:两端固定", "Workbench:静力学:压缩",
                            "Workbench:静力学:拉伸", "Workbench:静力学:扭转", "Workbench:容器:薄壁",
                            "Workbench:容器:厚壁", "Workbench:传热:稳态",
                            "Workbench:传热:带对流" }));
    QCOMPARE(window.findChild<QLabel *>("title")->text(), QString("传热 › 平壁 › 带对流"));
    QCOMPARE(window.findChild<QLabel *>("description")->text(),
             QString("两侧空气之间的稳态传热。请从内到外输入各层，以分号分隔。"));
    QCOMPARE(rowsOf(window, "parameters"),
             (QStringList { "内侧空气温度 (温度)", "内侧表面传热系数 (对流)", "层导热系数 (层)",
                            "层厚度 (层)", "外侧空气温度 (温度)", "外侧表面传热系数 (对流)" }));
    QCOMPARE(rowsOf(window, "results"),
             (QStringList { "各界面温度 (温度)", "热流密度 (传热)", "热阻 (传热)" }));
}

void tst_Languages::everyTextIsTranslated()
{
    const QByteArray translations = fileContent(QStringLiteral(WORKBENCH_TRANSLATIONS));
    QVERIFY(translations.count("<translation>") > 100);
    QCOMPARE(translations.count("<translation type="), 0);
    QCOMPARE(translations.count("<translation></translation>"), 0);
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Workbench"));
    tst_Languages test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_languages.moc"
