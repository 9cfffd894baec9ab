// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOFORMSPLUGIN_H
#define KELTOFORMSPLUGIN_H

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QList>
#include <QObject>

#include <memory>
#include <vector>

/// The widgets of the library for Qt Designer.
class KeltoFormsPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit KeltoFormsPlugin(QObject *parent = nullptr);
    ~KeltoFormsPlugin() override;

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    std::vector<std::unique_ptr<QDesignerCustomWidgetInterface>> m_widgets;
};

#endif
