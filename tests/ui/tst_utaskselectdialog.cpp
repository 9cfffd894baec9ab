// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "dialogsupport.h"

#include <QMetaMethod>
#include <QSequentialIterable>
#include <QSignalSpy>

#include <utility>

using MakeRegistry = AUTH_SET (*)();
Q_DECLARE_METATYPE(MakeRegistry)

namespace {

/// Two modules with one mode each, in groups with these names, plain and translated.
AUTH_SET groupsNamed(const Pair &first, const Pair &second)
{
    QVector<AUTH_INF> items { exclusiveModule("P", first.first, { "a" }),
                              exclusiveModule("Q", second.first, { "k" }) };
    items[0].group_tr = first.second;
    items[1].group_tr = second.second;
    return AUTH_SET("App", "1.0", items);
}

/// The plain name of the first group is the translated one of the second.
AUTH_SET crossedGroups()
{
    return groupsNamed({ "G", "G_tr" }, { "H", "G" });
}

/// Two groups with one translated name, so that there is an empty one for H.
AUTH_SET sharedTranslation()
{
    return groupsNamed({ "G", "T" }, { "H", "T" });
}

AUTH_SET oneGroup(const QString &application, const QString &group)
{
    return AUTH_SET(application, "1.0", { exclusiveModule("P", group, { "a" }) });
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

    void offersAllModesOfTheRegistry()
    {
        AUTH_SET other = oneGroup("Other", "Z");
        AUTH_SET registry = twoGroups();
        registry.exclusive_group_set_mode("G", "c");
        UTaskSelectDialog dialog;
        dialog.set(&other);
        dialog.set(&registry);
        QCOMPARE(dialog.availableModeItems(), allModes());
        QCOMPARE(shownTexts(dialog),
                 QStringList(
                     { "App:G_tr:a_tr", "App:G_tr:b_tr", "App:G_tr:c_tr", "App:H_tr:k_tr" }));
        QCOMPARE(dialog.currentItem(), mode("G", "a"));
        dialog.operate(0);
        QCOMPARE(registry.current_mode, QString("a"));
        QCOMPARE(other.current_mode, QString());
    }

    void offersNothingWithoutARegistry()
    {
        AUTH_SET registry = twoGroups();
        UTaskSelectDialog dialog;
        QCOMPARE(dialog.operateIndex, -1);
        QCOMPARE(dialog.currentItemIndex(), -1);
        QCOMPARE(dialog.currentItem(), Pair("", ""));
        dialog.setItems(allModes());
        dialog.resetToExclusiveGroup("G");
        QCOMPARE(shownTexts(dialog), QStringList());
        dialog.setItems(allModes());
        dialog.resetToProjectMode();
        QCOMPARE(shownTexts(dialog), QStringList());
        dialog.set(&registry);
        dialog.set(nullptr);
        QCOMPARE(shownTexts(dialog), QStringList());
        QCOMPARE(dialog.availableModeItems(), Pairs());
        QCOMPARE(dialog.availableModeItemsWithModeCodeList({ "App:G:a" }), Pairs());
    }

    void replacesItems_data()
    {
        QTest::addColumn<Pairs>("items");

        QTest::newRow("two items") << Pairs { { "x", "y" }, { "v", "w" } };
        QTest::newRow("equal items") << Pairs { { "x", "y" }, { "x", "y" } };
        QTest::newRow("empty names") << Pairs { { "", "" }, { "x", "" } };
        QTest::newRow("any names") << Pairs { { "a:b", "求解\n&x" } };
        QTest::newRow("no items") << Pairs();
    }
    void replacesItems()
    {
        QFETCH(Pairs, items);
        AUTH_SET registry = twoGroups();
        UTaskSelectDialog dialog;
        dialog.set(&registry);
        comboBox(dialog)->setCurrentIndex(3);
        dialog.setItems(items);
        QCOMPARE(shownTexts(dialog), dialog.getSecondItems(items));
        QCOMPARE(dialog.currentItemIndex(), items.isEmpty() ? -1 : 0);
        for (int index = -1; index < items.size(); ++index) {
            comboBox(dialog)->setCurrentIndex(index);
            QCOMPARE(dialog.currentItemIndex(), index);
            QCOMPARE(dialog.currentItem(), items.value(index));
        }
        QCOMPARE(dialog.availableModeItems(), allModes());
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
        // Deprecated, but a host may still be told by it.
        const QSignalSpy entries(comboBox(dialog), SIGNAL(currentIndexChanged(QString)));
        const QSignalSpy plainEntries(&plain, SIGNAL(currentIndexChanged(QString)));
        dialog.setItems(after);
        plain.clear();
        plain.addItems(dialog.getSecondItems(after));
        QCOMPARE(sent[0], sent[1]);
        QTEST(sent[0].size(), "count");
        QCOMPARE(entries, plainEntries);
    }

    void neverMixesTwoOffers()
    {
        UTaskSelectDialog dialog;
        dialog.setItems(allModes());
        QComboBox *box = comboBox(dialog);
        box->setCurrentIndex(2);
        int questions = 0;
        QStringList mixtures;
        const auto ask = [&] {
            ++questions;
            const QString expected = box->itemText(dialog.currentItemIndex());
            if (dialog.currentItem().second != expected)
                mixtures.append(dialog.currentItem().second + " instead of " + expected);
        };
        listen(box, box, [&](const QString &) { ask(); });
        using Model = QAbstractItemModel;
        for (const auto signal : { &Model::rowsAboutToBeRemoved, &Model::rowsRemoved,
                                   &Model::rowsAboutToBeInserted, &Model::rowsInserted })
            connect(box->model(), signal, box, ask);
        dialog.setItems({ { "x", "1" }, { "y", "2" }, { "z", "3" } });
        QCOMPARE(mixtures, QStringList());
        QCOMPARE(questions, 8);
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

    void narrowsToAGroup_data()
    {
        QTest::addColumn<MakeRegistry>("makeRegistry");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QStringList>("texts");

        const auto row = [](const char *name, MakeRegistry makeRegistry, const QString &group,
                            const QStringList &texts) {
            QTest::newRow(name) << makeRegistry << group << texts;
        };
        const QStringList modesOfG { "App:G_tr:a_tr", "App:G_tr:b_tr", "App:G_tr:c_tr" };
        row("plain name", twoGroups, "G", modesOfG);
        row("translated name", twoGroups, "G_tr", modesOfG);
        row("group of one mode", twoGroups, "H", { "App:H_tr:k_tr" });
        row("unknown group", twoGroups, "X", {});
        row("other case", twoGroups, "g", {});
        row("part of a name", twoGroups, "G_", {});
        row("mode instead of group", twoGroups, "a", {});
        row("application instead of group", twoGroups, "App", {});
        row("empty name", twoGroups, "", {});
        row("no modes at all", [] { return AUTH_SET(); }, "G", {});
        row("a plain name that is another's translated one gives both", crossedGroups, "G",
            { "App:G_tr:a_tr", "App:G:k_tr" });
        row("missing translated name is an empty one", sharedTranslation, "", { "App::k_tr" });
        row("translated name of two groups belongs to the first", sharedTranslation, "T",
            { "App:T:a_tr" });
        row("group named with a colon is not found", [] { return oneGroup("App", "A:B"); }, "A:B",
            {});
        row("group named with a colon goes by the part before it",
            [] { return oneGroup("App", "A:B"); }, "A", { "App:A:B_tr:a_tr" });
        row("application named with a colon shifts the fields",
            [] { return oneGroup("My:App", "G"); }, "App", { "My:App:G_tr:a_tr" });
        row("empty group", [] { return oneGroup("App", ""); }, "", { "App:_tr:a_tr" });
        row("empty application", [] { return oneGroup("", "G"); }, "G", { ":G_tr:a_tr" });
    }
    void narrowsToAGroup()
    {
        QFETCH(MakeRegistry, makeRegistry);
        QFETCH(QString, group);
        AUTH_SET registry = makeRegistry();
        UTaskSelectDialog dialog;
        dialog.set(&registry);
        dialog.resetToExclusiveGroup(group);
        QTEST(shownTexts(dialog), "texts");
        QCOMPARE(dialog.availableModeItems(), registry.currentModeList());
    }

    void narrowsAndWidensAnewEachTime()
    {
        AUTH_SET registry = twoGroups();
        UTaskSelectDialog dialog;
        dialog.set(&registry);
        registry.append(exclusiveModule("R", "H", { "l" }));
        QCOMPARE(shownTexts(dialog), dialog.getSecondItems(allModes()));
        dialog.resetToExclusiveGroup("G");
        dialog.resetToExclusiveGroup("H");
        QCOMPARE(dialog.currentItem(), mode("H", "k"));
        QCOMPARE(shownTexts(dialog), QStringList({ "App:H_tr:k_tr", "App:H_tr:l_tr" }));
        dialog.resetToProjectMode();
        QCOMPARE(shownTexts(dialog), dialog.getSecondItems(allModes() + Pairs { mode("H", "l") }));
    }

    void listsMembers()
    {
        const UTaskSelectDialog dialog;
        const Pairs list { { "b", "x" }, { "a", "" }, { "b", "x" } };
        QCOMPARE(dialog.getFirstItems(list), QStringList({ "b", "a", "b" }));
        QCOMPARE(dialog.getSecondItems(list), QStringList({ "x", "", "x" }));
        QCOMPARE(dialog.getFirstItems({}), QStringList());
        QCOMPARE(dialog.getSecondItems({}), QStringList());
    }

    void matchesCodes_data()
    {
        QTest::addColumn<Pairs>("list");
        QTest::addColumn<QStringList>("codes");
        QTest::addColumn<Pairs>("matching");

        const auto row
            = [](const char *name, const Pairs &list, const QStringList &codes,
                 const Pairs &matching) { QTest::newRow(name) << list << codes << matching; };
        const Pairs list { { "a", "A" }, { "b", "a" }, { "a", "C" }, { "d", "A" }, { "e", "b" } };
        row("first member", list, { "d" }, { { "d", "A" } });
        row("second member", list, { "C" }, { { "a", "C" } });
        row("first of equal first members", list, { "a" }, { { "a", "A" } });
        row("first of equal second members", list, { "A" }, { { "a", "A" } });
        row("first members count before second ones further up", { { "x", "a" }, { "a", "y" } },
            { "a" }, { { "a", "y" } });
        row("order of the codes", list, { "e", "C", "b" },
            { { "e", "b" }, { "a", "C" }, { "b", "a" } });
        row("code given twice", list, { "d", "d" }, { { "d", "A" }, { "d", "A" } });
        row("two codes of one entry", list, { "C", "e", "C" },
            { { "a", "C" }, { "e", "b" }, { "a", "C" } });
        row("unknown codes", list, { "x", "D", "", "d" }, { { "d", "A" } });
        row("empty code for an empty name", { { "a", "" }, { "b", "" } }, { "" }, { { "a", "" } });
        row("no codes", list, {}, {});
        row("no entries", {}, { "a" }, {});
    }
    void matchesCodes()
    {
        QFETCH(Pairs, list);
        QFETCH(QStringList, codes);
        const UTaskSelectDialog dialog;
        QTEST(dialog.availableModeItemsWithModeCodeList(list, codes), "matching");
    }

    void matchesCodesOfTheRegistry()
    {
        AUTH_SET registry = twoGroups();
        UTaskSelectDialog dialog;
        dialog.set(&registry);
        dialog.resetToExclusiveGroup("G");
        QCOMPARE(dialog.availableModeItemsWithModeCodeList({ "App:H_tr:k_tr", "x", "App:G:b" }),
                 Pairs({ mode("H", "k"), mode("G", "b") }));
    }
};

QTEST_MAIN(TestTaskSelectDialog)
#include "tst_utaskselectdialog.moc"
