// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "languages.h"
#include "mainwindow.h"
#include "modules.h"
#include "task.h"

#include <Kelto/AUTH_INF>
#include <Kelto/AUTH_SET>
#include <Kelto/UTaskSelectDialog>

#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

#include "support/temporarycurrentdirectory.h"

/// Installs one language after the other; the last one found is in force.
class tst_Languages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowAndDialog_data();
    void windowAndDialog();
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
    AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), compiledModules());
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
