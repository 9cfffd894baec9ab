// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltoformsplugin.h"

#include <Kelto/Forms/KeltoParameterForm>
#include <Kelto/Forms/KeltoResultView>

#include <QIcon>

namespace {

/// One widget in the box of widgets.
template <typename Widget> class WidgetDescription : public QDesignerCustomWidgetInterface
{
public:
    explicit WidgetDescription(const char *toolTip)
        : m_toolTip(toolTip)
    {
    }

    QString name() const override
    {
        return QString::fromLatin1(Widget::staticMetaObject.className());
    }
    QString group() const override { return QStringLiteral("Kelto"); }
    QString toolTip() const override { return KeltoFormsPlugin::tr(m_toolTip); }
    QString whatsThis() const override { return toolTip(); }
    QString includeFile() const override { return QStringLiteral("Kelto/Forms/") + name(); }
    QIcon icon() const override { return QIcon(); }
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override { return new Widget(parent); }
    /// With a size, since an empty one could hardly be found again.
    QString domXml() const override
    {
        const QString objectName = name().at(0).toLower() + name().mid(1);
        return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
                              "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                              "<width>320</width><height>240</height></rect></property>"
                              "</widget></ui>")
            .arg(name(), objectName);
    }

private:
    const char *m_toolTip;
};

} // namespace

KeltoFormsPlugin::KeltoFormsPlugin(QObject *parent)
    : QObject(parent)
{
    m_widgets.push_back(std::make_unique<WidgetDescription<KeltoParameterForm>>(
        QT_TR_NOOP("A form for the parameters of a calculation")));
    m_widgets.push_back(std::make_unique<WidgetDescription<KeltoResultView>>(
        QT_TR_NOOP("A table of the results of a calculation")));
}

KeltoFormsPlugin::~KeltoFormsPlugin() = default;

QList<QDesignerCustomWidgetInterface *> KeltoFormsPlugin::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> widgets;
    for (const auto &widget : m_widgets)
        widgets.append(widget.get());
    return widgets;
}
