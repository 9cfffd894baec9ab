// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The modules of a registry, their source text, and copies of registries.

#include <Kelto/AUTH_SET>

#include "support/directorytest.h"
#include "support/moduleitems.h"
#include "support/registrycopies.h"
#include "support/testfiles.h"

#include <QDir>
#include <QTest>

#include <limits>

namespace {

QVector<AUTH_INF> modules()
{
    return { exclusiveModule("P", "G", { "a", "b" }), plainModule("Q", "F", { "c" }),
             exclusiveModule("R", "H", { "c", "d" }) };
}

AUTH_SET registry()
{
    AUTH_SET set("App", "1.0", modules());
    set.current_group = "G";
    set.current_mode = "a";
    return set;
}

/// Everything that a change of modules, groups or selections could show in.
QString state(const AUTH_SET &set)
{
    QString text = set.current_group + '/' + set.current_mode + '/' + set.stdModeNameForm("g", "m");
    for (int i = 0; i < set.model_count(); ++i)
        text += set.name(i) + ',';
    const QStringList groups = set.exclusive_group_namelist();
    for (const QString &group : groups)
        text += group + '=' + QString::number(set.exclusive_group_select(group)) + ',';
    const Pairs modes = set.currentModeList();
    for (const Pair &mode : modes)
        text += mode.first + '|' + mode.second + ',';
    return text;
}

AUTH_INF calculation(const QString &name)
{
    AUTH_INF item;
    item.name = name;
    item.type = "calculation";
    return item;
}

QString textOfFile(const QString &path)
{
    AUTH_INF item;
    item.load_ini(path);
    return item.to_code();
}

} // namespace

class TestAuthSet : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty()
    {
        const AUTH_SET set;
        QCOMPARE(state(set), QString("//:g:m"));
        QCOMPARE(set.AUTH_INF_DATA().size(), 0);
        QCOMPARE(filesIn("."), QStringList());
    }

    void withoutModulesItLogsAndForgetsItsName()
    {
        const AUTH_SET set("App", "1.0", {});
        QCOMPARE(state(set), QString("//:g:m"));
        // The log is that of an application without a name, since the name is not kept.
        const QStringList logs = filesIn("log");
        QCOMPARE(logs.size(), 1);
        QVERIFY2(logs.first().endsWith("_.log"), qPrintable(logs.first()));
        const QString text = QString::fromUtf8(fileContent("log/" + logs.first()));
        QCOMPARE(text.mid(20), QString("Kelto的模块录入不能为空\n"));
        QCOMPARE(filesIn("."), QStringList { "log" });
    }

    void numbersModulesByPosition_data()
    {
        QTest::addColumn<QVector<int>>("given");
        QTest::newRow("duplicates and gaps") << QVector<int> { 7, 7, 3 };
        QTest::newRow("numbers that are right") << QVector<int> { 0, 1, 2 };
        QTest::newRow("negative numbers") << QVector<int> { -1, 0, 0 };
    }
    void numbersModulesByPosition()
    {
        QFETCH(QVector<int>, given);
        QVector<AUTH_INF> items = modules();
        for (int i = 0; i < 3; ++i)
            items[i].number = given.at(i);
        const AUTH_SET set("App", "1.0", items);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(set.AUTH_INF_DATA().at(i).number, i);
            QCOMPARE(items.at(i).number, given.at(i));
        }
        // Nothing is copied where nothing has to be changed.
        QCOMPARE(set.AUTH_INF_DATA().isSharedWith(items), given.at(2) == 2);
    }

    void survivesBadIndices_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("behind the last") << 3;
        QTest::newRow("highest") << std::numeric_limits<int>::max();
        QTest::newRow("negative") << -1;
        QTest::newRow("lowest") << std::numeric_limits<int>::min();
    }
    void survivesBadIndices()
    {
        QFETCH(int, index);
        const AUTH_SET set = registry();
        for (const QString &text : { set.name(index), set.information(index), set.model_data(index),
                                     set.model_name(index), set.model_name_global(index),
                                     set.model_type(index), set.model_type_global(index),
                                     set.model_group(index), set.model_group_global(index) })
            QCOMPARE(text, QString());
    }

    void modelGroupCountsExclusiveGroups()
    {
        const AUTH_SET set = registry();
        QCOMPARE(set.model_group(1), QString("H"));
        QCOMPARE(set.model_group_global(1), QString("H_tr"));
        QCOMPARE(AUTH_SET("App", "1.0", { plainModule("Q", "F", {}) }).model_group(0), QString());
    }

    void findsModulesByName()
    {
        const AUTH_SET set("App", "1.0",
                           { plainModule("y", "g", {}), plainModule("x", "g", {}),
                             plainModule("x", "g", {}), plainModule("x_tr", "g", {}) });
        QCOMPARE(set.index("x"), 1);
        QCOMPARE(set.index("x_tr"), 3);
        QCOMPARE(set.index("y_tr"), -1);
        QCOMPARE(set.model_exists("y_tr"), true);
        QCOMPARE(set.model_exists("X"), false);
        QCOMPARE(AUTH_SET().index(""), -1);
        QCOMPARE(AUTH_SET().model_exists(""), false);
    }

    void clearKeepsNamesAndSelections()
    {
        AUTH_SET set = registry();
        set.exclusive_group_set_mode("G", 1);
        set.clear();
        QCOMPARE(set.model_count(), 0);
        QCOMPARE(set.stdModeNameForm("G", "M"), QString("App:G:M"));
        QCOMPARE(set.currentExclusiveGroupList(), (Pairs { { "G", "G_tr" }, { "H", "H_tr" } }));
        QCOMPARE(set.exclusive_group_select("G_tr"), 1);
        // The modes are gone all the same.
        QCOMPARE(set.exclusive_group_mode_count("G"), 0);
        QCOMPARE(set.currentModeList(), Pairs());
        set.exclusive_group_set_mode("G", 0);
        QCOMPARE(set.exclusive_group_select("G"), 1);
        set.refresh_group();
        QCOMPARE(set.exclusive_group_namelist(), QStringList());
    }

    void copiesDoNotSeeLaterChanges_data()
    {
        QTest::addColumn<Change>("change");
        const auto row = [](const char *name, Change change) { QTest::newRow(name) << change; };
        row("current group", [](AUTH_SET &set) { set.current_group = "H"; });
        row("current mode", [](AUTH_SET &set) { set.current_mode = "b"; });
        row("append", [](AUTH_SET &set) { set.append(exclusiveModule("S", "G", { "e" })); });
        row("clear", [](AUTH_SET &set) { set.clear(); });
        row("selection", [](AUTH_SET &set) { set.exclusive_group_set_mode("G", 1); });
        row("pointer", [](AUTH_SET &set) { *set.exclusive_group_mode_pointer("H") = 1; });
    }
    void copiesDoNotSeeLaterChanges()
    {
        QFETCH(Change, change);
        changeOneAfterTheOther(registry(), AUTH_SET(), state, change);
    }

    void copiesDoNotSeeWritesThroughAnEarlierPointer()
    {
        AUTH_SET original = registry();
        int *selection = original.exclusive_group_mode_pointer("G");
        const AUTH_SET copy(original);
        *selection = 1;
        QCOMPARE(original.exclusive_group_select("G"), 1);
        QCOMPARE(copy.exclusive_group_select("G"), 0);
    }

    void staysUsableWhenMovedFromAndAssignedToItself()
    {
        AUTH_SET original = registry();
        original.exclusive_group_set_mode("G", 1);
        const QString before = state(original);
        const AUTH_SET &same = original;
        original = same;
        QCOMPARE(state(original), before);
        const AUTH_SET taken(std::move(original));
        QCOMPARE(state(taken), before);
        // NOLINTNEXTLINE(bugprone-use-after-move): that this works is the point.
        original.acquire({ plainModule("S", "G", { "e" }) });
        QCOMPARE(original.model_count(), 1);
        QCOMPARE(state(taken), before);
    }

    void keepsWhatWasAcceptedWhenModulesChange()
    {
        AUTH_SET set = registry();
        set.acquire(modules());
        set.append(modules());
        set.clear();
        QCOMPARE(set.current_group, QString("G"));
        QCOMPARE(set.current_mode, QString("a"));
    }

    void givesTheSourceTextOfFiles()
    {
        calculation("A").save_ini("a.ini");
        calculation("B").save_ini("b.ini");
        const AUTH_SET set("App", "1", { calculation("C") });
        QCOMPARE(set.generate_AUTH_INF_to_code({}), QStringList());
        // What was read before must not show up in a file that cannot be read.
        const QStringList files {
            "b.ini", "a.ini", "missing.ini", "missing/a.ini", ".", "", "a.ini"
        };
        const QStringList texts = set.generate_AUTH_INF_to_code(files);
        QCOMPARE(texts.size(), files.size());
        for (int i = 0; i < files.size(); ++i)
            QCOMPARE(texts.at(i), textOfFile(files.at(i)));
        QVERIFY(texts.at(0).contains("inf.name=\"B\";") && texts.at(2).contains("inf.name=\"\";"));
        // The modules of the registry are another matter.
        QCOMPARE(set.AUTH_INF_list_to_code(), QStringList(calculation("C").to_code()));
    }

    void givesTheSourceTextOfModules()
    {
        QVector<AUTH_INF> items { calculation("B"), calculation("A"), calculation("A") };
        const AUTH_SET set("App", "1", items);
        QStringList expected;
        for (int i = 0; i < items.size(); ++i) {
            items[i].number = i;
            expected.append(items.at(i).to_code());
        }
        QCOMPARE(set.AUTH_INF_list_to_code(), expected);
        QCOMPARE(AUTH_SET().AUTH_INF_list_to_code(), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestAuthSet)
#include "tst_auth_set.moc"
