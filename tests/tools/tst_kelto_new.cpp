// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What is in the file that an author begins with.

#include "support/directorytest.h"

#include "console.h"
#include "format/format.h"
#include "lint/lintconfig.h"
#include "lintfindings.h"
#include "newitem.h"
#include "sourcetext.h"

#include <Kelto/AUTH_INF>
#include <Kelto/AUTH_SET>
#include <Kelto/KeltoItemHints>

#include <QTest>

class TestKeltoNew : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void makesACompleteModule_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("group");

        QTest::newRow("plain") << "Flat plate"
                               << "Statics";
        QTest::newRow("what divides lists and comments") << "a, b; c=d"
                                                         << "x, y";
        QTest::newRow("what a value may not begin with") << "@Invalid()"
                                                         << "#[x]";
        QTest::newRow("not ASCII") << "简支梁"
                                   << "静力分析。";
        QTest::newRow("slashes") << "a/b"
                                 << "/";
        QTest::newRow("like a number") << "08"
                                       << "1e5";
    }
    void makesACompleteModule()
    {
        QFETCH(QString, name);
        QFETCH(QString, group);
        QCOMPARE(complaintOnName(name), QString());
        const QByteArray text = newItemText({ name, group, true });
        QVERIFY(writeFile("item.ini", text));
        AUTH_INF item;
        item.load_ini("item.ini");
        QCOMPARE(item.name, name);
        QCOMPARE(item.group, group);
        QCOMPARE(KeltoItemHints(item).problems().size(), 0);
        QCOMPARE(sourceTextProblems(item).size(), 0);

        AUTH_SET registry("App", "1", { item });
        QCOMPARE(registry.exclusive_group_namelist(), QStringList(group));
        QCOMPARE(keysOf(registry.defaultParameterList(group, "Solid")),
                 QStringList({ "Density", "Length", "Material", "Side" }));
        QCOMPARE(keysOf(registry.defaultParameterList(group, "Hollow")),
                 QStringList({ "Density", "Length", "Material", "Side", "Wall thickness" }));
        QCOMPARE(keysOf(registry.defaultResultList(group)), QStringList({ "Mass", "Volume" }));

        Console console;
        const Findings findings = lint({ "item.ini" }, LintConfig(QStringList()), console).findings;
        QCOMPARE(linesOf(findings), QStringList());
        DocumentError error;
        QCOMPARE(formatted(text, &error), text);
    }

    void makesModulesThatGoTogether()
    {
        QVERIFY(writeFile("a.ini", newItemText({ "a", "a", true })));
        QVERIFY(writeFile("b.ini", newItemText({ "b", "b", true })));
        const QStringList paths { "a.ini", "b.ini" };
        Console console;
        const LintResult result = lint(paths, LintConfig(QStringList()), console);
        QCOMPARE(result.files.size(), 2);
        QCOMPARE(linesOf(result.findings), QStringList());
    }

    void namesFilesAndFunctions_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("function");

        QTest::newRow("words") << "Flat plate"
                               << "flat-plate.ini"
                               << "flatPlateItem";
        QTest::newRow("signs") << " a/b:c..d "
                               << "a-b-c-d.ini"
                               << "aBCDItem";
        QTest::newRow("a digit in front") << "3D beam"
                                          << "3d-beam.ini"
                                          << "module3DBeamItem";
        QTest::newRow("not ASCII") << "梁"
                                   << "梁.ini"
                                   << "module6881Item";
        QTest::newRow("a word of C++") << "class"
                                       << "class.ini"
                                       << "classItem";
        QTest::newRow("nothing to use") << "+-"
                                        << "module.ini"
                                        << "moduleItem";
    }
    void namesFilesAndFunctions()
    {
        QFETCH(QString, name);
        QTEST(fileNameFor(name), "file");
        QTEST(functionNameFor(name), "function");
    }

private:
    static QStringList keysOf(const QVector<VParameter> &parameters)
    {
        QStringList keys;
        for (const VParameter &parameter : parameters)
            keys.append(parameter.name().first);
        return keys;
    }
};

QTEST_GUILESS_MAIN(TestKeltoNew)

#include "tst_kelto_new.moc"
