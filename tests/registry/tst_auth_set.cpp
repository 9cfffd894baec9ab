// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The modules of a registry, their source text, and copies of registries.

#include <Kelto/AUTH_SET>

#include "support/directorytest.h"
#include "support/moduleitems.h"
#include "support/testfiles.h"

#include <QTest>

namespace {

QVector<AUTH_INF> modules()
{
    return { exclusiveModule("P", "G", { "a", "b" }), plainModule("Q", "F", { "c" }),
             exclusiveModule("R", "H", { "c", "d" }) };
}

AUTH_INF calculation(const QString &name)
{
    AUTH_INF item;
    item.name = name;
    item.type = "calculation";
    return item;
}

} // namespace

class TestAuthSet : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutModulesItLogsAndForgetsItsName()
    {
        const AUTH_SET empty;
        QCOMPARE(filesIn("."), QStringList());
        const AUTH_SET set("App", "1.0", {});
        for (const AUTH_SET &each : { empty, set }) {
            QCOMPARE(each.model_count(), 0);
            QCOMPARE(each.stdModeNameForm("g", "m"), QString(":g:m"));
            QCOMPARE(each.current_group + each.current_mode, QString());
        }
        // The log is that of an application without a name, since the name is not kept.
        const QStringList logs = filesIn("log");
        QCOMPARE(logs.size(), 1);
        QVERIFY2(logs.first().endsWith("_.log"), qPrintable(logs.first()));
        const QString text = QString::fromUtf8(fileContent("log/" + logs.first()));
        QCOMPARE(text.mid(20), QString("Kelto的模块录入不能为空\n"));
        QCOMPARE(filesIn("."), QStringList { "log" });
    }

    void numbersModulesByPosition()
    {
        for (const QVector<int> &given : { QVector<int> { 7, 7, 3 }, QVector<int> { 0, 1, 2 } }) {
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
    }

    void findsModulesByName()
    {
        const AUTH_SET set("App", "1.0",
                           { plainModule("y", "g", {}), plainModule("x", "g", {}),
                             plainModule("x", "g", {}) });
        QCOMPARE(set.index("x"), 1);
        QCOMPARE(set.index("x_tr"), -1);
        QCOMPARE(set.model_exists("x_tr"), true);
        QCOMPARE(set.model_group(0), QString());
    }

    void copiesAreApart()
    {
        AUTH_SET original("App", "1.0", modules());
        original.current_group = "G";
        original.current_mode = "a";
        AUTH_SET assigned;
        assigned = original;
        const AUTH_SET copy(original);
        // What the dialog has accepted outlives a change of the modules.
        original.acquire(modules());
        original.clear();
        QCOMPARE(original.current_group + original.current_mode, QString("Ga"));
        original.current_group = "H";
        original.current_mode = "d";
        for (const AUTH_SET &each : { copy, assigned }) {
            QCOMPARE(each.current_group + each.current_mode, QString("Ga"));
            QCOMPARE(each.exclusive_group_select("G"), 0);
            QCOMPARE(each.currentModeList().size(), 4);
        }
    }

    void copiesDoNotSeeWritesThroughAnEarlierPointer()
    {
        AUTH_SET original("App", "1.0", modules());
        int *selection = original.exclusive_group_mode_pointer("G");
        const AUTH_SET copy(original);
        *selection = 1;
        QCOMPARE(original.exclusive_group_select("G"), 1);
        QCOMPARE(copy.exclusive_group_select("G"), 0);
    }

    void staysUsableWhenMovedFromAndAssignedToItself()
    {
        AUTH_SET original("App", "1.0", modules());
        original.exclusive_group_set_mode("G", 1);
        const AUTH_SET &same = original;
        original = same;
        QCOMPARE(original.exclusive_group_select("G"), 1);
        const AUTH_SET taken(std::move(original));
        // NOLINTNEXTLINE(bugprone-use-after-move): that this works is the point.
        original.acquire({ plainModule("S", "G", { "e" }) });
        QCOMPARE(original.model_count(), 1);
        QCOMPARE(taken.model_count(), 3);
        QCOMPARE(taken.exclusive_group_select("G"), 1);
    }

    void givesTheSourceText()
    {
        calculation("A").save_ini("a.ini");
        calculation("B").save_ini("b.ini");
        AUTH_INF second = calculation("C");
        const AUTH_SET set("App", "1", { second, second });
        second.number = 1;
        QCOMPARE(set.AUTH_INF_list_to_code(),
                 (QStringList { calculation("C").to_code(), second.to_code() }));
        QCOMPARE(set.generate_AUTH_INF_to_code({}), QStringList());
        // What was read before must not show up in a file that cannot be read.
        const QStringList files { "b.ini", "a.ini", "missing.ini", "", "a.ini" };
        QStringList expected;
        for (const QString &file : files) {
            AUTH_INF item;
            item.load_ini(file);
            expected.append(item.to_code());
        }
        QCOMPARE(set.generate_AUTH_INF_to_code(files), expected);
        QVERIFY(expected.at(0).contains("name=\"B\";") && expected.at(2).contains("name=\"\";"));
    }
};

QTEST_GUILESS_MAIN(TestAuthSet)
#include "tst_auth_set.moc"
