// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/VIniSettings>

#include "support/directorytest.h"
#include "support/settingsjson.h"
#include "support/testfiles.h"

#include <QTest>

class TestVIniSettingsStyleSheet : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void formatsStores_data();
    void formatsStores();
    void writesAKeyWithoutAnEntryAsEmpty();
    void readsMemoryAndNotTheFile();
};

void TestVIniSettingsStyleSheet::formatsStores_data()
{
    QTest::addColumn<Entries>("data");
    QTest::addColumn<QString>("expected");

    const QPair<QString, QVariant> widget("ID/QtClassName", "QPushButton");
    QTest::newRow("an empty store") << Entries() << "";
    QTest::newRow("class, plain state and other states") << Entries {
        widget, { "normal/color", "red" }, { "normal/border", "none" }, { "hover/color", "blue" }
    } << "QPushButton{normal/color=red;normal/border=none;};QPushButton:hover{hover/color=blue;};";
    QTest::newRow("the plain state comes first wherever it stands")
        << Entries { { "hover/a", 1 }, { "normal/b", 2 }, { "pressed/c", 3 }, widget }
        << "QPushButton{normal/b=2;};QPushButton:hover{hover/a=1;};"
           "QPushButton:pressed{pressed/c=3;};";
    QTest::newRow("states in order of first appearance, keys in theirs")
        << Entries { widget, { "z/2", "a" }, { "b/1", "b" }, { "z/1", "c" } }
        << "QPushButton:z{z/2=a;z/1=c;};QPushButton:b{b/1=b;};";
    QTest::newRow("no class") << Entries { { "normal/a", 1 }, { "hover/b", 2 } }
                              << "{normal/a=1;};:hover{hover/b=2;};";
    QTest::newRow("the other class name does not count")
        << Entries { { "ID/ClassName", "MyButton" }, { "normal/a", 1 } } << "{normal/a=1;};";
    QTest::newRow("no plain state")
        << Entries { widget, { "hover/b", 2 } } << "QPushButton:hover{hover/b=2;};";
    QTest::newRow("the group of the class only")
        << Entries { widget, { "ID/ClassName", "MyButton" }, { "ID/other", 1 } } << "";
    QTest::newRow("group names compare with case")
        << Entries { widget, { "Normal/a", 1 }, { "id/b", 2 } }
        << "QPushButton:Normal{Normal/a=1;};QPushButton:id{id/b=2;};";
    QTest::newRow("top-level keys are left out")
        << Entries { widget, { "top", 1 }, { "normal/a", 2 }, { "hoverx", 3 } }
        << "QPushButton{normal/a=2;};";
    QTest::newRow("a top-level key named like the plain state")
        << Entries { widget, { "normal", "x" }, { "normal/a", 2 } }
        << "QPushButton{normal=x;normal/a=2;};";
    QTest::newRow("a top-level key named like a state")
        << Entries { widget, { "hover/a", 1 }, { "hover", "x" } }
        << "QPushButton:hover{hover/a=1;hover=x;};";
    QTest::newRow("a top-level key alone makes no block")
        << Entries { widget, { "normal", "x" }, { "hover", "y" } } << "";
    QTest::newRow("a top-level key named like the group of the class")
        << Entries { widget, { "ID", "x" } } << "";
    QTest::newRow("groups in groups belong to the first")
        << Entries { widget, { "hover/sub/a", 1 }, { "hover/b", 2 } }
        << "QPushButton:hover{hover/sub/a=1;hover/b=2;};";
    QTest::newRow("a group in the plain group")
        << Entries { widget, { "normal/hover/a", 1 } } << "QPushButton{normal/hover/a=1;};";
    QTest::newRow("a key with a slash in front brings in the top-level keys")
        << Entries { widget, { "top", 1 }, { "/a", 2 }, { "", 3 } } << "QPushButton:{top=1;=3;};";
    QTest::newRow("doubles are written with the first value")
        << Entries { widget, { "hover/a", 1 }, { "hover/a", 2 } }
        << "QPushButton:hover{hover/a=1;hover/a=1;};";
    QTest::newRow("nothing is escaped")
        << Entries { { "ID/QtClassName", "A B" }, { "normal/a b", "x;y}={ \"z\"" } }
        << "A B{normal/a b=x;y}={ \"z\";};";
    QTest::newRow("Chinese") << Entries { { "ID/QtClassName", "按钮" }, { "悬停/颜色", "红" } }
                             << "按钮:悬停{悬停/颜色=红;};";
    QTest::newRow("values as text")
        << Entries { { "n/int", 7 },
                     { "n/double", 2.5 },
                     { "n/bool", true },
                     { "n/bytes", QByteArray("raw") },
                     { "n/invalid", QVariant() },
                     { "n/list", QStringList { "a", "b" } },
                     { "n/one", QStringList { "a" } } }
        << ":n{n/int=7;n/double=2.5;n/bool=true;n/bytes=raw;n/invalid=;n/list=;n/one=a;};";
    QTest::newRow("a class that is no text")
        << Entries { { "ID/QtClassName", 5 }, { "n/a", 1 } } << "5:n{n/a=1;};";
}

void TestVIniSettingsStyleSheet::formatsStores()
{
    QFETCH(Entries, data);
    const VIniSettings store(data);
    QTEST(store.styleSheetFormat(), "expected");
    QCOMPARE(described(store.data()), described(data));
}

void TestVIniSettingsStyleSheet::writesAKeyWithoutAnEntryAsEmpty()
{
    VIniSettings store(Entries { { "hover/a", 1 } });
    Entries target;
    store.setValue("hover/b", 2, &target);
    store.setValue("normal/c", 3, &target);
    QCOMPARE(store.styleSheetFormat(), QString("{normal/c=;};:hover{hover/a=1;hover/b=;};"));
}

void TestVIniSettingsStyleSheet::readsMemoryAndNotTheFile()
{
    QVERIFY(writeFile("style.ini",
                      "[ID]\nQtClassName=QLabel\n\n[normal]\ncolor=red\nbackground=blue\n"));
    VIniSettings store(QString("style.ini"));
    const QString sheet = "QLabel{normal/background=blue;normal/color=red;};";
    QCOMPARE(store.styleSheetFormat(), sheet);
    QVERIFY(QFile::remove("style.ini"));
    QCOMPARE(store.styleSheetFormat(), sheet);
    QCOMPARE(QFile::exists("style.ini"), false);
    store.setValue("normal/color", "green");
    QCOMPARE(store.styleSheetFormat(),
             QString("QLabel{normal/background=blue;normal/color=green;};"));
}

QTEST_GUILESS_MAIN(TestVIniSettingsStyleSheet)
#include "tst_vinisettings_stylesheet.moc"
