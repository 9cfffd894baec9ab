// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "forms/formitems.h"

#include <Kelto/Forms/KeltoParameterModel>

#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickView>
#include <QQuickWindow>
#include <QTest>

using Model = KeltoParameterModel;

/// The model in a view that is written in QML.
class tst_Qml : public QObject
{
    Q_OBJECT

public:
    static void initMain() { QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software); }

private Q_SLOTS:
    void init()
    {
        const AUTH_SET registry = registryOf(caseBeam());
        m_model = std::make_unique<Model>(&registry, "Statics", "Bend");
        m_model->setLocale(QLocale(QLocale::German));
        m_view = std::make_unique<QQuickView>();
        m_view->rootContext()->setContextProperty("parameters", m_model.get());
        m_view->setSource(QUrl::fromLocalFile(QFINDTESTDATA("ParameterList.qml")));
        QCOMPARE(m_view->status(), QQuickView::Ready);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
    }

    void showsTheRows()
    {
        QCOMPARE(texts("label"),
                 (QStringList { "Length [mm]", "Depth [mm]", "Case [mm]", "Point load [mm]" }));
        QCOMPARE(texts("text"), (QStringList { "2,5", "", "", "" }));
        QCOMPARE(texts("enabled"), (QStringList { "true", "true", "true", "false" }));
    }

    void takesWhatIsTyped()
    {
        enter(0, "7,25");
        QCOMPARE(stored("Length"), QVariant("7.25"));
        QCOMPARE(texts("text").value(0), QString("7,25"));
        // What counts now can be entered now.
        enter(2, "end");
        QCOMPARE(texts("enabled").value(3), QString("true"));
        enter(3, "40");
        QCOMPARE(stored("Force"), QVariant("40"));
        QTRY_COMPARE(m_model->property("complete"), QVariant(true));
    }

    void takesWhatIsStored()
    {
        QQmlExpression written(qmlContext(delegate(0)), delegate(0), "model.value = '7.25'");
        written.evaluate();
        QVERIFY(!written.hasError());
        QCOMPARE(stored("Length"), QVariant("7.25"));
        QCOMPARE(texts("text").value(0), QString("7,25"));
    }

    void showsWhatIsWrong()
    {
        enter(0, "99");
        QTRY_COMPARE(texts("problem").value(0),
                     QString("Length: 99 is outside the allowed range (1 .. 10)."));
        QCOMPARE(stored("Length"), QVariant("99"));
        enter(0, "9");
        QTRY_COMPARE(texts("problem").value(0), QString());
    }

    void showsWhatIsChangedElsewhere()
    {
        enter(0, "7");
        m_model->setData(m_model->index(0, Model::ValueColumn), "3.5", Model::ValueRole);
        QCOMPARE(texts("text").value(0), QString("3,5"));
    }

private:
    /// A property of each delegate.
    QStringList texts(const char *property) const
    {
        QStringList texts;
        for (int row = 0; row < m_model->rowCount(); ++row)
            texts.append(delegate(row)->property(property).toString());
        return texts;
    }

    QQuickItem *delegate(int row) const
    {
        const QString key = m_model->index(row, 0).data(Model::KeyRole).toString();
        const QList<QQuickItem *> items = m_view->rootObject()->childItems();
        const auto found = std::find_if(items.cbegin(), items.cend(), [&](const QQuickItem *item) {
            return item->objectName() == key;
        });
        return found == items.cend() ? nullptr : *found;
    }

    /// As the user types it.
    void enter(int row, const QString &text)
    {
        QQuickItem *editor = delegate(row);
        editor->forceActiveFocus();
        QMetaObject::invokeMethod(editor, "selectAll");
        for (const QChar key : text)
            QTest::keyClick(m_view.get(), key.toLatin1());
        QTest::keyClick(m_view.get(), Qt::Key_Return);
    }

    QVariant stored(const QString &key) const
    {
        const Entries values = m_model->values();
        for (const auto &value : values) {
            if (value.first == "Attribute/" + key)
                return value.second;
        }
        return {};
    }

    std::unique_ptr<Model> m_model;
    std::unique_ptr<QQuickView> m_view;
};

QTEST_MAIN(tst_Qml)
#include "tst_qml.moc"
