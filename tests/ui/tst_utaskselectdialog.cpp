// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "dialogsupport.h"

#include <QMetaMethod>
#include <QRandomGenerator>
#include <QSequentialIterable>
#include <QShowEvent>
#include <QSignalSpy>

#include <functional>
#include <utility>

namespace {

/// Texts that are often equal, and differ in little.
QString anyName(QRandomGenerator *random)
{
    static const char *const names[]
        = { "", "G", "g", "G_tr", "H", "a", "b", "App", "A:B", "App:G:a", "::", "App:H:b" };
    return names[random->bounded(12)];
}

AUTH_SET anyRegistry(QRandomGenerator *random)
{
    QVector<AUTH_INF> items;
    for (int i = random->bounded(4); i > 0; --i) {
        items.append(exclusiveModule("P", anyName(random), { anyName(random), "b", "a" }));
        items.last().group_tr = anyName(random);
    }
    AUTH_SET registry(random->bounded(4) ? "App" : anyName(random), "1.0", items);
    registry.current_group = anyName(random);
    registry.current_mode = anyName(random);
    return registry;
}

/// Some of the modes, and pairs that are none.
Pairs anyItems(const AUTH_SET &registry, QRandomGenerator *random)
{
    Pairs items = registry.currentModeList().mid(random->bounded(3));
    for (int i = random->bounded(4); i > 0; --i)
        items.insert(random->bounded(items.size() + 1), { anyName(random), anyName(random) });
    return items;
}

Pairs modesOfGroup(const Pairs &modes, const QString &group)
{
    Pairs found;
    for (const Pair &mode : modes) {
        if (mode.first.split(':').at(1) == group || mode.second.split(':').at(1) == group)
            found.append(mode);
    }
    return found;
}

/// Position of the first pair with @p name as its first member, or else as its second.
int positionIn(const Pairs &items, const QString &name)
{
    for (const bool isFirst : { true, false }) {
        for (int i = 0; i < items.size(); ++i) {
            if ((isFirst ? items.at(i).first : items.at(i).second) == name)
                return i;
        }
    }
    return -1;
}

Pairs itemsNamed(const Pairs &items, const QStringList &codes)
{
    Pairs found;
    for (const QString &code : codes) {
        if (positionIn(items, code) >= 0)
            found.append(items.at(positionIn(items, code)));
    }
    return found;
}

void acceptIn(AUTH_SET *registry, const QString &name)
{
    const QStringList fields = name.split(':');
    if (fields.size() != 3)
        return;
    registry->current_group = fields.at(1);
    registry->current_mode = fields.at(2);
    registry->exclusive_group_set_mode(fields.at(1), fields.at(2));
}

/// All that a dialog can change in a registry.
QStringList stateOf(const AUTH_SET &registry)
{
    QStringList state { registry.current_group, registry.current_mode };
    const QStringList groups = registry.exclusive_group_namelist();
    for (const QString &group : groups)
        state.append(group + "/" + registry.currentExclusiveGroupSelect(group).first);
    return state;
}

/// "public slot int show()" for the method at @p index of the dialog.
QString declaration(int index)
{
    const QMetaMethod method = UTaskSelectDialog::staticMetaObject.method(index);
    const QString access = method.access() == QMetaMethod::Public ? "public" : "not public";
    const QString kind = method.methodType() == QMetaMethod::Slot ? "slot" : "no slot";
    return QStringList { access, kind, method.typeName(), method.methodSignature(),
                         method.parameterNames().join() }
        .join(" ");
}

/// Calls @p listener, in their order, on the signals of @p box that a change of entries can send.
template <typename Listener> void listen(QComboBox *box, QObject *context, Listener listener)
{
    QObject::connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), context,
                     [=](int index) { listener(QString("index %1").arg(index)); });
    QObject::connect(box, &QComboBox::currentTextChanged, context,
                     [=](const QString &text) { listener("text " + text); });
}

} // namespace

class TestTaskSelectDialog : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    // The first test: no dialog has been made yet, and nothing else has asked for the types.
    void knowsItsTypesFromTheStart()
    {
        const auto nameOf = [](const char *alias) {
            return QByteArray(QMetaType::typeName(QMetaType::type(alias)));
        };
        QCOMPARE(nameOf("VStringPair"), QByteArray("QPair<QString,QString>"));
        QCOMPARE(nameOf("VStringPairList"), QByteArray("QVector<QPair<QString,QString> >"));

        const Pairs list = allModes();
        const QVariant value(QMetaType::type("VStringPairList"), &list);
        QVERIFY(value.canConvert<QVariantList>());
        Pairs members;
        for (const QVariant &member : value.value<QSequentialIterable>())
            members.append(member.value<Pair>());
        QCOMPARE(members, list);
    }

    void hasTheDescribedMetaObject()
    {
        const QMetaObject &type = UTaskSelectDialog::staticMetaObject;
        QStringList methods;
        for (int i = type.methodOffset(); i < type.methodCount(); ++i)
            methods.append(declaration(i));
        QCOMPARE(methods,
                 QStringList({ "public slot void operate(int) id",
                               "public slot void resetToExclusiveGroup(QString) eGroup_or_tr",
                               "public slot void resetToProjectMode() ",
                               "public slot void setItems(VStringPairList) list",
                               "public slot int show() " }));
    }

    void offersNothingWithoutARegistry()
    {
        UTaskSelectDialog dialog;
        QCOMPARE(dialog.operateIndex, -1);
        QCOMPARE(dialog.currentItemIndex(), -1);
        QCOMPARE(dialog.currentItem(), Pair("", ""));
        const std::function<void()> calls[]
            = { [&] { dialog.resetToExclusiveGroup("G"); }, [&] { dialog.resetToProjectMode(); },
                [&] { dialog.set(nullptr); } };
        for (const auto &call : calls) {
            dialog.setItems(allModes());
            call();
            QCOMPARE(shownTexts(dialog), QStringList());
        }
        QCOMPARE(dialog.availableModeItems(), Pairs());
        QCOMPARE(dialog.availableModeItemsWithModeCodeList({ "App:G:a" }), Pairs());
    }

    void sendsWhatAComboBoxSends_data()
    {
        QTest::addColumn<Pairs>("before");
        QTest::addColumn<int>("index");
        QTest::addColumn<Pairs>("after");
        QTest::addColumn<int>("count");

        const Pairs others { { "x", "y" } };
        QTest::newRow("first offer") << Pairs() << -1 << allModes() << 2;
        QTest::newRow("another offer") << allModes() << 2 << others << 4;
        QTest::newRow("the same offer") << allModes() << 0 << allModes() << 4;
        QTest::newRow("no current entry before") << allModes() << -1 << others << 2;
        QTest::newRow("nothing on offer any more") << allModes() << 2 << Pairs() << 2;
        QTest::newRow("still nothing on offer") << Pairs() << -1 << Pairs() << 0;
    }
    void sendsWhatAComboBoxSends()
    {
        QFETCH(Pairs, before);
        QFETCH(int, index);
        QFETCH(Pairs, after);
        UTaskSelectDialog dialog;
        dialog.setItems(before);
        QComboBox plain;
        plain.addItems(dialog.getSecondItems(before));
        QStringList sent[2];
        for (QComboBox *box : { comboBox(dialog), &plain }) {
            box->setCurrentIndex(index);
            QStringList *list = &sent[box == &plain];
            listen(box, box, [list](const QString &signal) { list->append(signal); });
        }
        // Whoever asks in between gets an item of the entries that the box has.
        QStringList mixtures;
        const QComboBox *box = comboBox(dialog);
        const auto ask = [&] {
            if (dialog.currentItem().second != box->itemText(dialog.currentItemIndex()))
                mixtures.append(dialog.currentItem().second);
        };
        listen(comboBox(dialog), &plain, [&](const QString &) { ask(); });
        using Model = QAbstractItemModel;
        for (const auto signal : { &Model::rowsAboutToBeRemoved, &Model::rowsRemoved,
                                   &Model::rowsAboutToBeInserted, &Model::rowsInserted })
            connect(box->model(), signal, &plain, ask);
        // Deprecated, but a host may still be told by it.
        const QSignalSpy entries(comboBox(dialog), SIGNAL(currentIndexChanged(QString)));
        const QSignalSpy plainEntries(&plain, SIGNAL(currentIndexChanged(QString)));
        dialog.setItems(after);
        plain.clear();
        plain.addItems(dialog.getSecondItems(after));
        QCOMPARE(sent[0], sent[1]);
        QTEST(sent[0].size(), "count");
        QCOMPARE(entries, plainEntries);
        QCOMPARE(mixtures, QStringList());
    }

    void letsAListenerInterfere_data()
    {
        QTest::addColumn<QString>("signal");
        QTest::addColumn<bool>("deletes");
        for (const char *signal : { "index -1", "text ", "index 0", "text App:G_tr:a_tr" }) {
            QTest::addRow("other entries at %s", signal) << QString(signal) << false;
            QTest::addRow("deletion at %s", signal) << QString(signal) << true;
        }
    }
    void letsAListenerInterfere()
    {
        QFETCH(QString, signal);
        QFETCH(bool, deletes);
        const QPointer<UTaskSelectDialog> dialog = new UTaskSelectDialog;
        dialog->setItems({ { "x", "1" }, { "y", "2" } });
        const QPointer<QComboBox> box = comboBox(*dialog);
        // Once it has been opened, the list of entries listens, too.
        box->view();
        bool hasInterfered = false;
        listen(box, box, [&](const QString &sent) {
            if (sent != signal || std::exchange(hasInterfered, true))
                return;
            if (deletes)
                delete dialog;
            else
                dialog->setItems({ mode("H", "k") });
        });
        dialog->setItems(allModes());
        QCOMPARE(dialog.isNull(), deletes);
        if (!deletes) {
            QCOMPARE(shownTexts(*dialog), QStringList { mode("H", "k").second });
            QCOMPARE(dialog->currentItem(), mode("H", "k"));
            delete dialog;
        } else {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        QVERIFY(box.isNull());
    }

    void agreesWithAPlainModel_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 0; seed < 40; ++seed)
            QTest::addRow("seed %d", seed) << seed;
    }
    /// One dialog for many registries, which it must not mix up.
    void agreesWithAPlainModel()
    {
        QFETCH(int, seed);
        QRandomGenerator random(seed);
        UTaskSelectDialog dialog;
        for (int round = 0; round < 12; ++round) {
            AUTH_SET registry = anyRegistry(&random);
            dialog.set(&registry);
            QCOMPARE(shownTexts(dialog), dialog.getSecondItems(registry.currentModeList()));
            registry.append(exclusiveModule("R", anyName(&random), { "a" }));
            narrow(&dialog, registry, &random);
            if (QTest::currentTestFailed())
                return;
            choose(&dialog, &registry, &random);
            if (QTest::currentTestFailed())
                return;
            dialog.set(nullptr);
        }
    }

private:
    static void narrow(UTaskSelectDialog *dialog, const AUTH_SET &registry,
                       QRandomGenerator *random)
    {
        const Pairs modes = registry.currentModeList();
        QCOMPARE(dialog->availableModeItems(), modes);
        const QString group = anyName(random);
        dialog->resetToExclusiveGroup(group);
        QCOMPARE(shownTexts(*dialog), dialog->getSecondItems(modesOfGroup(modes, group)));
        const Pairs items = anyItems(registry, random);
        QStringList codes { anyName(random), anyName(random), anyName(random) };
        codes += dialog->getFirstItems(items).mid(1, 2) + dialog->getSecondItems(items).mid(2, 1);
        QCOMPARE(dialog->availableModeItemsWithModeCodeList(items, codes),
                 itemsNamed(items, codes));
        QCOMPARE(dialog->availableModeItemsWithModeCodeList(codes), itemsNamed(modes, codes));
        dialog->resetToProjectMode();
        QCOMPARE(shownTexts(*dialog), dialog->getSecondItems(modes));
        QCOMPARE(dialog->currentItem(), modes.value(0));
    }

    static void choose(UTaskSelectDialog *dialog, AUTH_SET *registry, QRandomGenerator *random)
    {
        const Pairs items = anyItems(*registry, random);
        dialog->setItems(items);
        QShowEvent event;
        event.ignore();
        dialog->operateIndex = 5;
        dialog->showEvent(&event);
        QVERIFY(event.isAccepted());
        QCOMPARE(dialog->operateIndex, -1);
        const QString current
            = registry->stdModeNameForm(registry->current_group, registry->current_mode);
        QCOMPARE(dialog->currentItemIndex(), positionIn(items, current));

        int index = random->bounded(-1, items.size());
        AUTH_SET expected = *registry;
        const bool isBound = random->bounded(4) > 0;
        const int id = random->bounded(-1, 4);
        if (!isBound) {
            dialog->set(nullptr);
            dialog->setItems(items);
        }
        comboBox(*dialog)->setCurrentIndex(index);
        QCOMPARE(dialog->currentItem(), items.value(index));
        if (id == 2 && !items.isEmpty())
            index = 0;
        if (isBound && (id == 0 || id == 2))
            acceptIn(&expected, items.value(index).first);
        dialog->operate(id);
        QCOMPARE(dialog->operateIndex, id == 2 ? 0 : id);
        QCOMPARE(dialog->currentItemIndex(), index);
        QCOMPARE(stateOf(*registry), stateOf(expected));
    }
};

QTEST_MAIN(TestTaskSelectDialog)
#include "tst_utaskselectdialog.moc"
