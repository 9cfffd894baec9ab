// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "dialogsupport.h"

#include "support/directorytest.h"

#include <QMetaMethod>
#include <QSequentialIterable>

namespace {

/// "public slot int show()" for the method at @p index of the dialog.
QString declaration(int index)
{
    const QMetaMethod method = UTaskSelectDialog::staticMetaObject.method(index);
    const QString access = method.access() == QMetaMethod::Public ? "public" : "not public";
    const QString kind = method.methodType() == QMetaMethod::Slot ? "slot" : "no slot";
    const QString signature = QString::fromLatin1(method.methodSignature());
    return access + " " + kind + " " + method.typeName() + " " + signature;
}

} // namespace

class TestTaskSelectDialogMetaObject : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void knowsItsTypesFromTheStart_data();
    void knowsItsTypesFromTheStart();
    void listIsIterable();
    void metaObject();
    void parameterNames_data();
    void parameterNames();
    void setsItemsByName();
    void showsByName();
};

// First of all tests: no dialog has been made yet, and nothing here asks for the types otherwise.
void TestTaskSelectDialogMetaObject::knowsItsTypesFromTheStart_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("fullName");

    QTest::newRow("pair") << QByteArray("VStringPair") << QByteArray("QPair<QString,QString>");
    QTest::newRow("list of pairs")
        << QByteArray("VStringPairList") << QByteArray("QVector<QPair<QString,QString> >");
}

void TestTaskSelectDialogMetaObject::knowsItsTypesFromTheStart()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, fullName);
    const int id = QMetaType::type(name);
    QVERIFY(id != QMetaType::UnknownType);
    QCOMPARE(QByteArray(QMetaType::typeName(id)), fullName);
}

void TestTaskSelectDialogMetaObject::listIsIterable()
{
    const Pairs list = allModes();
    const QVariant value(QMetaType::type("VStringPairList"), &list);
    QVERIFY(value.canConvert<QVariantList>());
    Pairs members;
    for (const QVariant &member : value.value<QSequentialIterable>())
        members.append(member.value<Pair>());
    QCOMPARE(members, list);
}

void TestTaskSelectDialogMetaObject::metaObject()
{
    const QMetaObject &type = UTaskSelectDialog::staticMetaObject;
    QStringList methods;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i)
        methods.append(declaration(i));
    QCOMPARE(QByteArray(type.className()), QByteArray("UTaskSelectDialog"));
    QCOMPARE(type.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(methods,
             QStringList({ "public slot void operate(int)",
                           "public slot void resetToExclusiveGroup(QString)",
                           "public slot void resetToProjectMode()",
                           "public slot void setItems(VStringPairList)",
                           "public slot int show()" }));
    QCOMPARE(type.propertyCount(), QDialog::staticMetaObject.propertyCount());
    QCOMPARE(type.enumeratorCount(), QDialog::staticMetaObject.enumeratorCount());
}

void TestTaskSelectDialogMetaObject::parameterNames_data()
{
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QByteArray>("parameter");

    QTest::newRow("group") << QByteArray("resetToExclusiveGroup(QString)")
                           << QByteArray("eGroup_or_tr");
    QTest::newRow("list") << QByteArray("setItems(VStringPairList)") << QByteArray("list");
}

void TestTaskSelectDialogMetaObject::parameterNames()
{
    QFETCH(QByteArray, signature);
    QFETCH(QByteArray, parameter);
    const QMetaObject &type = UTaskSelectDialog::staticMetaObject;
    const QMetaMethod method = type.method(type.indexOfMethod(signature.constData()));
    QCOMPARE(method.parameterNames(), QList<QByteArray>({ parameter }));
}

void TestTaskSelectDialogMetaObject::setsItemsByName()
{
    const Pairs otherModes { mode("X", "x") };
    UTaskSelectDialog dialog;
    QVERIFY(QMetaObject::invokeMethod(&dialog, "setItems", Q_ARG(VStringPairList, allModes())));
    QCOMPARE(shownTexts(dialog), dialog.getSecondItems(allModes()));
    QVERIFY(QMetaObject::invokeMethod(&dialog, "setItems", Qt::QueuedConnection,
                                      Q_ARG(VStringPairList, otherModes)));
    QCoreApplication::sendPostedEvents(&dialog);
    QCOMPARE(shownTexts(dialog), dialog.getSecondItems(otherModes));
}

void TestTaskSelectDialogMetaObject::showsByName()
{
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    bool wasVisible = false;
    QTimer::singleShot(0, &dialog, [&] {
        wasVisible = dialog.isVisible();
        dialog.close();
    });
    int result = -1;
    QVERIFY(QMetaObject::invokeMethod(&dialog, "show", Q_RETURN_ARG(int, result)));
    QVERIFY(wasVisible);
    QCOMPARE(result, 0);
}

QTEST_MAIN(TestTaskSelectDialogMetaObject)
#include "tst_utaskselectdialog_metaobject.moc"
