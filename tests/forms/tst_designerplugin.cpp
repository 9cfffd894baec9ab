// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "ui_sample.h"

#include <QtDesigner/QFormBuilder>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QPluginLoader>
#include <QTest>

#include <memory>

namespace {

constexpr const char *pluginPath = KELTO_DESIGNER_PLUGIN;

QDesignerCustomWidgetCollectionInterface *plugin()
{
    return qobject_cast<QDesignerCustomWidgetCollectionInterface *>(
        QPluginLoader(pluginPath).instance());
}

/// What the .ui file says about its two widgets.
void checkProperties(const QWidget &sample)
{
    auto *form = sample.findChild<KeltoParameterForm *>("form");
    auto *results = sample.findChild<KeltoResultView *>("results");
    QVERIFY(form);
    QVERIFY(results);
    QVERIFY(form->isAdvancedVisible());
    QVERIFY(!form->isSummaryVisible());
    QCOMPARE(results->significantDigits(), 3);
}

} // namespace

/// The widgets in Qt Designer, in .ui files that are compiled, and in those that are loaded.
class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offersBothWidgets();
    void makesWidgetsFromItsOwnDescription();
    void loadsAFile();
    void compilesAFile();
};

void tst_DesignerPlugin::offersBothWidgets()
{
    QVERIFY(plugin());
    QStringList found;
    const auto widgets = plugin()->customWidgets();
    for (QDesignerCustomWidgetInterface *description : widgets) {
        QWidget parent;
        const QWidget *widget = description->createWidget(&parent);
        QCOMPARE(widget->metaObject()->className(), description->name().toLatin1().constData());
        QCOMPARE(widget->parentWidget(), &parent);
        const QString header = QString(KELTO_INCLUDE_DIR) + "/" + description->includeFile();
        QVERIFY2(QFileInfo::exists(header), qPrintable(header));
        QVERIFY(!description->isContainer());
        QVERIFY(!description->toolTip().isEmpty());
        found.append(description->group() + " " + description->name());
    }
    QCOMPARE(found, QStringList({ "Kelto KeltoParameterForm", "Kelto KeltoResultView" }));
}

void tst_DesignerPlugin::makesWidgetsFromItsOwnDescription()
{
    QFormBuilder builder;
    builder.setPluginPath({ QFileInfo(pluginPath).path() });
    const auto widgets = plugin()->customWidgets();
    QVERIFY(!widgets.isEmpty());
    for (const QDesignerCustomWidgetInterface *description : widgets) {
        QByteArray text = description->domXml().toUtf8();
        QBuffer buffer(&text);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> widget(builder.load(&buffer));
        QVERIFY(widget);
        QCOMPARE(widget->metaObject()->className(), description->name().toLatin1().constData());
        QCOMPARE(widget->size(), QSize(320, 240));
    }
}

void tst_DesignerPlugin::loadsAFile()
{
    QFormBuilder builder;
    builder.setPluginPath({ QFileInfo(pluginPath).path() });
    QFile file(QFINDTESTDATA("sample.ui"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> sample(builder.load(&file));
    QVERIFY(sample);
    checkProperties(*sample);
}

void tst_DesignerPlugin::compilesAFile()
{
    QWidget sample;
    Ui::Sample ui;
    ui.setupUi(&sample);
    checkProperties(sample);
}

QTEST_MAIN(tst_DesignerPlugin)
#include "tst_designerplugin.moc"
