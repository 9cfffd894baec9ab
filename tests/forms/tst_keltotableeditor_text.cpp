// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "tableeditorsupport.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

void addText(const QString &text)
{
    QApplication::clipboard()->setText(text);
}

/// The columns of a table of texts that come in: what is there before, where the text goes, and
/// what is there afterwards, or why nothing has changed.
void addIncomingColumns()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<Model::Kind>("kind");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("value");
    QTest::addColumn<QString>("problem");
}

} // namespace

/// Texts from and for other programs in the editor of several values.
class tst_KeltoTableEditorText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pastes_data();
    void pastes();
    void pastesFromTheCurrentCellOn_data();
    void pastesFromTheCurrentCellOn();
    void copies_data();
    void copies();
    void imports_data();
    void imports();
    void importsBytes_data();
    void importsBytes();
    void importsNothingWithoutAFile();
};

void tst_KeltoTableEditorText::pastes_data()
{
    addIncomingColumns();
    const QString noNumber = "Row %1, column %2: \"%3\" is not a number.";
    const QString noColumn = "Row %1, column %2: There is no such column in the table.";
    const auto row = [](const char *name, int columns, Model::Kind kind, const char *language,
                        const QString &text, const QStringList &value,
                        const QString &problem = QString()) {
        QTest::newRow(name) << columns << kind << QString(language) << text << value << problem;
    };
    row("column", Array, Model::Number, "en", "1.5\n-2\n", { "1.5", "-2" });
    row("column of another system", Array, Model::Number, "en", "1\r\n2\r\n", { "1", "2" });
    row("column of an old system", Array, Model::Number, "en", "1\r2\r", { "1", "2" });
    row("decimal comma", Array, Model::Number, "de", "1,5\n2,25\n", { "1.5", "2.25" });
    row("decimal comma among points", Points, Model::Number, "de", "1,5\t2\n3\t4,5\n",
        { "1.5|2", "3|4.5" });
    row("comma between points", Points, Model::Number, "en", "1.5,2\n3,4\n", { "1.5|2", "3|4" });
    row("comma between whole points", Points, Model::Number, "de", "1,2\n3,4", { "1.2|", "3.4|" });
    row("semicolon beside decimal comma", Points, Model::Number, "de", "1,5;2\n3;4\n",
        { "1.5|2", "3|4" });
    row("quoted numbers", Points, Model::Number, "en", "\"1\"\t\"2.5\"\n", { "1|2.5" });
    row("every digit", Array, Model::Number, "en", "0.30000000000000000004\n",
        { "0.30000000000000000004" });
    row("spaces around", Points, Model::Number, "en", " 1 ; 2 \n", { "1|2" });
    row("blank end", Array, Model::Number, "en", "1\n \n\n", { "1" });
    row("quoted line break", Rows, Model::Text, "en", "\"a\nb\"\t\"say \"\"c\"\"\"\n",
        { "a\nb|say \"c\"" });
    row("texts with signs", Rows, Model::Text, "de", "1,5\ta;b\n", { "1,5|a;b" });
    row("rows of several lengths", Rows, Model::Text, "en", "a\tb\nc\n", { "a|b", "c" });
    row("sentence", Rows, Model::Text, "en", "Yes; well, no\n", { "Yes; well, no" });
    row("inch", Rows, Model::Text, "en", "5\"\t6\"\n", { "5\"|6\"" });
    row("texts in an array", Array, Model::Text, "en", "a|b\nc\n", { "a|b", "c" });
    row("nothing", Array, Model::Number, "en", "", {}, "There is nothing to take over.");
    row("bad cell", Points, Model::Number, "en", "1\t2\n3\tx\n", {},
        noNumber.arg(2).arg(2).arg("x"));
    row("comma in English", Array, Model::Number, "en", "1,5x\n", {}, noColumn.arg(1).arg(2));
    row("group of digits", Points, Model::Number, "de", "1.234,5\t2\n", {},
        noNumber.arg(1).arg(1).arg("1.234,5"));
    row("missing cell", Points, Model::Number, "en", "1\t2\n3\n", {},
        "Row 2, column 2: A number is missing.");
    row("blank row inside", Array, Model::Number, "en", "1\n\n2\n", {},
        "Row 2, column 1: A number is missing.");
    row("too wide", Points, Model::Number, "en", "1\t2\t3\n", {}, noColumn.arg(1).arg(3));
    row("fraction", Array, Model::WholeNumber, "en", "1\n2.5\n", {},
        "Row 2, column 1: \"2.5\" is not a whole number.");
    row("separator in a cell", Rows, Model::Text, "en", "a\tb|c\n", {},
        "Row 1, column 2: \"b|c\" holds \"|\", which stands between the cells of a row.");
    row("open quotation mark", Array, Model::Number, "en", "\"1\n2", {},
        noNumber.arg(1).arg(1).arg("1\n2"));
    row("headings", Points, Model::Number, "en", "x\ty\n1\t2\n", {},
        noNumber.arg(1).arg(1).arg("x") + "\n" + noNumber.arg(1).arg(2).arg("y"));
    row("many bad cells", Array, Model::Number, "en", "a\nb\nc\nd\ne\nf\ng", {},
        "Row 1, column 1: \"a\" is not a number.\nRow 2, column 1: \"b\" is not a number.\n"
        "Row 3, column 1: \"c\" is not a number.\nRow 4, column 1: \"d\" is not a number.\n"
        "Row 5, column 1: \"e\" is not a number.\nAnd 2 more.");
    row("long bad cell", Array, Model::Number, "en", QString(1000, 'a'), {},
        noNumber.arg(1).arg(1).arg(QString(40, 'a') + QChar(0x2026)));
}

void tst_KeltoTableEditorText::pastes()
{
    QFETCH(int, columns);
    QFETCH(Model::Kind, kind);
    QFETCH(QString, language);
    QFETCH(QString, text);
    QFETCH(QStringList, value);
    QFETCH(QString, problem);
    Editor editor(columns, kind, {}, language);
    addText(text);
    editor.paste();
    QCOMPARE(editor.value(), value);
    if (problem.isEmpty()) {
        QCOMPARE(editor.edits.size(), 1);
    } else {
        QCOMPARE(editor.status(), QString("Nothing was pasted.\n" + problem));
        QCOMPARE(editor.edits.size(), 0);
    }
}

void tst_KeltoTableEditorText::pastesFromTheCurrentCellOn_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<QRect>("selected");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QStringList>("after");

    const QStringList points { "1|2", "3", "5|6" };
    QTest::newRow("over cells") << int(Points) << QRect(1, 0, 1, 1) << "7\n8" << points
                                << QStringList({ "1|7", "3|8", "5|6" });
    QTest::newRow("over the upper left of several")
        << int(Points) << QRect(0, 1, 2, 2) << "7\t8" << points
        << QStringList({ "1|2", "7|8", "5|6" });
    QTest::newRow("beyond the end") << int(Points) << QRect(0, 2, 1, 1) << "7\n8" << points
                                    << QStringList({ "1|2", "3", "7|6", "8|" });
    QTest::newRow("too wide from here")
        << int(Points) << QRect(1, 0, 1, 1) << "7\t8" << points << points;
    QTest::newRow("free columns grow")
        << int(Rows) << QRect(1, 1, 1, 1) << "7\t8" << QStringList({ "a|b", "c" })
        << QStringList({ "a|b", "c|7|8" });
    QTest::newRow("the same again")
        << int(Points) << QRect(0, 0, 1, 1) << "1\t2" << points << points;
}

void tst_KeltoTableEditorText::pastesFromTheCurrentCellOn()
{
    QFETCH(int, columns);
    QFETCH(QRect, selected);
    QFETCH(QString, text);
    QFETCH(QStringList, before);
    QFETCH(QStringList, after);
    Editor editor(columns, Model::Number, before);
    editor.select(selected.top(), selected.left(), selected.bottom(), selected.right());
    addText(text);
    editor.paste();
    QCOMPARE(editor.value(), after);
    QCOMPARE(editor.edits.size(), int(before != after));
}

void tst_KeltoTableEditorText::copies_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<Model::Kind>("kind");
    QTest::addColumn<QStringList>("value");
    QTest::addColumn<QRect>("selected");
    QTest::addColumn<QString>("text");

    QTest::newRow("decimal sign") << int(Points) << Model::Number << QStringList({ "1.5|2", "3|4" })
                                  << QRect(0, 0, 2, 2) << "1,5\t2\n3\t4\n";
    QTest::newRow("part") << int(Points) << Model::Number << QStringList({ "1.5|2", "3|4.0" })
                          << QRect(1, 1, 1, 1) << "4,0\n";
    QTest::newRow("missing cells") << int(Rows) << Model::Text << QStringList({ "a|b", "" })
                                   << QRect(0, 0, 2, 2) << "a\tb\n\t\n";
    QTest::newRow("cells that need quotation marks")
        << int(Rows) << Model::Text << QStringList("a\tb|c\nd|\"e\"|f;g") << QRect(0, 0, 4, 1)
        << "\"a\tb\"\t\"c\nd\"\t\"\"\"e\"\"\"\tf;g\n";
}

void tst_KeltoTableEditorText::copies()
{
    QFETCH(int, columns);
    QFETCH(Model::Kind, kind);
    QFETCH(QStringList, value);
    QFETCH(QRect, selected);
    QFETCH(QString, text);
    Editor editor(columns, kind, value, "de");
    editor.select(selected.top(), selected.left(), selected.bottom(), selected.right());
    editor.copy();
    QCOMPARE(QApplication::clipboard()->text(), text);
    QCOMPARE(editor.edits.size(), 0);
}

void tst_KeltoTableEditorText::imports_data()
{
    addIncomingColumns();
    const auto row = [](const char *name, int columns, Model::Kind kind, const char *language,
                        const QString &text, const QStringList &value,
                        const QString &problem = QString()) {
        QTest::newRow(name) << columns << kind << QString(language) << text << value << problem;
    };
    const QStringList points { "1|2", "3.5|4" };
    row("comma", Points, Model::Number, "en", "1,2\n3.5,4\n", points);
    row("semicolon", Points, Model::Number, "en", "1;2\n3.5;4\n", points);
    row("tab", Points, Model::Number, "en", "1\t2\n3.5\t4\n", points);
    row("semicolon and decimal comma", Points, Model::Number, "de", "1;2\n3,5;4\n", points);
    row("comma between whole points", Points, Model::Number, "de", "1,2\n3,4\n", { "1|2", "3|4" });
    row("comma and decimal point in German", Points, Model::Number, "de", "1,2\n3.5,4\n", points);
    row("quoted", Points, Model::Number, "en", "\"1\",\"2\"\r\n\"3.5\",4\r\n", points);
    row("quoted decimal comma", Points, Model::Number, "de", "\"1\",\"2\"\n\"3,5\",\"4\"\n",
        points);
    row("headings", Points, Model::Number, "en", "Strain,Stress\n1,2\n3.5,4\n", points);
    row("headings with separators", Points, Model::Number, "en",
        "\"Strain, total\";\"Stress; true\"\n1;2\n3.5;4\n", points);
    row("headings of an array", Array, Model::Number, "en", "Load\n1\n2", { "1", "2" });
    row("headings of a table", Rows, Model::Text, "en", "Name;E\nsteel;210000\nalloy;70000\n",
        { "steel|210000", "alloy|70000" });
    row("texts are no headings", Rows, Model::Text, "en", "a;b\nc;d\n", { "a|b", "c|d" });
    row("texts with gaps are no headings", Rows, Model::Text, "en", "a;b\nc;1\nd;e\n",
        { "a|b", "c|1", "d|e" });
    row("a number among the headings", Points, Model::Number, "en", "x,2020\n1,2\n", {},
        "Row 1, column 1: \"x\" is not a number.");
    row("headings alone", Points, Model::Number, "en", "x,y\n", {},
        "Row 1, column 1: \"x\" is not a number.\nRow 1, column 2: \"y\" is not a number.");
    row("headings are counted", Points, Model::Number, "en", "x,y\n1,2\n3,z\n", {},
        "Row 3, column 2: \"z\" is not a number.");
    row("too narrow", Points, Model::Number, "en", "1\n2\n", {},
        "Row 1, column 2: A number is missing.\nRow 2, column 2: A number is missing.");
    row("too wide", Array, Model::Number, "en", "1;2\n", {},
        "Row 1, column 2: There is no such column in the table.");
    row("blank lines behind", Points, Model::Number, "en", "1;2\n3.5;4\n;\n\n", points);
    row("empty file", Points, Model::Number, "en", "", {}, "There is nothing to take over.");
}

void tst_KeltoTableEditorText::imports()
{
    QFETCH(int, columns);
    QFETCH(Model::Kind, kind);
    QFETCH(QString, language);
    QFETCH(QString, text);
    QFETCH(QStringList, value);
    QFETCH(QString, problem);
    QTemporaryDir directory;
    QFile file(directory.filePath("table.csv"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
    file.close();
    const QStringList before { "9|9", "not touched" };
    Editor editor(columns, kind, before, language);
    QCOMPARE(editor.importFile(file.fileName()), problem.isEmpty());
    QCOMPARE(editor.value(), problem.isEmpty() ? value : before);
    QCOMPARE(editor.edits.size(), int(problem.isEmpty()));
    if (!problem.isEmpty())
        QCOMPARE(editor.status(),
                 QString("Nothing was imported from " + file.fileName() + ".\n" + problem));
    else if (QByteArray(QTest::currentDataTag()).startsWith("headings"))
        QCOMPARE(editor.status(), "Imported rows: 2, without the line of headings");
    else
        QCOMPARE(editor.status(), QString("Imported rows: %1").arg(value.size()));
}

void tst_KeltoTableEditorText::importsBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("value");

    QTest::newRow("UTF-8") << QByteArray("\xc3\xa4;1\n") << QStringList(QString::fromUtf8("ä|1"));
    QTest::newRow("mark in front") << QByteArray("\xef\xbb\xbf"
                                                 "a;1\n")
                                   << QStringList("a|1");
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe"
                                          "a\0;\0"
                                          "1\0",
                                          8)
                            << QStringList("a|1");
    QTest::newRow("Latin 1") << QByteArray("\xe4;1\n") << QStringList();
    QTest::newRow("broken off") << QByteArray("a;\xc3") << QStringList();
}

void tst_KeltoTableEditorText::importsBytes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, value);
    QTemporaryDir directory;
    QFile file(directory.filePath("table.csv"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    Editor editor(Rows, Model::Text, {});
    QCOMPARE(editor.importFile(file.fileName()), !value.isEmpty());
    QCOMPARE(editor.value(), value);
    if (value.isEmpty())
        QVERIFY(editor.status().endsWith("The file is not UTF-8 text."));
}

void tst_KeltoTableEditorText::importsNothingWithoutAFile()
{
    QTemporaryDir directory;
    Editor editor(Array, Model::Number, { "1" });
    QVERIFY(!editor.importFile(directory.filePath("none.csv")));
    QVERIFY(!editor.importFile(directory.path()));
    QCOMPARE(editor.value(), QStringList("1"));
    const QString status = editor.status();
    QVERIFY(status.startsWith("Nothing was imported from " + directory.path() + "."));
    // The focus comes back from the file dialog.
    QVERIFY(editor.activate());
    QCOMPARE(editor.table->currentIndex(), editor.index(0, 0));
    QCOMPARE(editor.status(), status);
}

QTEST_MAIN(tst_KeltoTableEditorText)
#include "tst_keltotableeditor_text.moc"
