// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What formatting an item file keeps: everything that the library reads from it, and its comments.

#include "support/directorytest.h"
#include "support/harditems.h"
#include "support/hostilebytes.h"
#include "support/itemjson.h"
#include "support/testfiles.h"

#include "format/format.h"

#include <Kelto/AUTH_INF>
#include <Kelto/VIniSettings>

#include <QTest>

#include <algorithm>

namespace {

AUTH_INF itemIn(const QString &path)
{
    AUTH_INF item;
    item.load_ini(path);
    return item;
}

QByteArray formattedFile(const QString &path, DocumentError *error)
{
    return formatted(fileContent(path), error);
}

QByteArrayList sorted(QByteArrayList texts)
{
    std::sort(texts.begin(), texts.end());
    return texts;
}

/// The marked comments of a file: those that commented() has put there.
QByteArrayList markedComments(const QByteArray &bytes)
{
    QByteArrayList marked;
    const QByteArrayList lines = bytes.split('\n');
    for (const QByteArray &line : lines) {
        const int start = line.indexOf("; kq");
        if (start >= 0)
            marked.append(line.mid(start));
    }
    return marked;
}

/// @p bytes with comments and blank lines between some of its lines, and beside some.
QByteArray commented(const QByteArray &bytes, Dice *dice)
{
    QByteArray text;
    int mark = 0;
    const auto comment
        = [&mark] { return QByteArray("; kq" + QByteArray::number(++mark) + "z, \"x"); };
    const QByteArrayList lines = bytes.split('\n');
    for (const QByteArray &line : lines) {
        for (int i = dice->chance(40) ? dice->between(1, 3) : 0; i > 0; --i)
            text += (dice->chance(70) ? comment() : QByteArray()) + '\n';
        const bool isBeside = dice->chance(20) && !line.isEmpty();
        text += line + (isBeside ? ' ' + comment() : QByteArray()) + '\n';
    }
    return text;
}

} // namespace

class TestKeltoFmt : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    /// An item as it may be saved, with results and comments, its lines in any order.
    void keepsSavedItems_data() { addSeeds(60); }
    void keepsSavedItems()
    {
        QFETCH(unsigned, seed);
        Dice dice(seed);
        HardItemMaker(seed).item().save_ini("item.ini");
        VIniSettings settings("item.ini");
        const QStringList results = QStringList { "a", "b", "c" }.mid(0, dice.between(0, 3));
        settings.setValue(QString("KeltoItem/output_results"), QVariant(results));
        settings.saveLocal();
        QVERIFY(writeFile("commented.ini", commented(fileContent("item.ini"), &dice)));
        DocumentError error;
        const QByteArray text = formattedFile("commented.ini", &error);
        if (error.text.isEmpty()) {
            compareWith("commented.ini", text);
            QCOMPARE(sorted(markedComments(text)),
                     sorted(markedComments(fileContent("commented.ini"))));
        } else {
            // A save writes keys that nobody can read, and no other error.
            QVERIFY2(error.text.contains("superfluous"), qPrintable(error.text));
        }
    }

    void keepsOrRefusesHostileFiles_data() { addSeeds(3000); }
    void keepsOrRefusesHostileFiles()
    {
        QFETCH(unsigned, seed);
        Dice dice(seed);
        const BytesMaker maker = dice.chance(70) ? hostileBytes
            : dice.chance(50)                    ? damagedBytes
                                                 : anyBytes;
        QByteArray bytes = dice.chance(50) ? "[KeltoItem]\nname=a\n" : "\n[ExtraKey]\n";
        const bool isMissing = !bytes.startsWith('[');
        bytes += maker(&dice);
        if (isMissing)
            bytes += "\n[KeltoItem]\nname=a";
        QVERIFY(writeFile("item.ini", bytes));
        DocumentError error;
        const QByteArray text = formattedFile("item.ini", &error);
        if (error.text.isEmpty())
            compareWith("item.ini", text);
        else
            QVERIFY(error.position.line <= bytes.count('\n') + bytes.count('\r') + 1);
    }

    /// Authors learn from these files.
    void leavesTheExamplesAlone_data()
    {
        QTest::addColumn<QString>("path");
        const auto files = QDir(EXAMPLE_DIRECTORY).entryInfoList({ "*.ini" }, QDir::Files);
        for (const QFileInfo &file : files)
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
    }
    void leavesTheExamplesAlone()
    {
        QFETCH(QString, path);
        DocumentError error;
        QCOMPARE(formattedFile(path, &error), fileContent(path));
    }

    void arranges_data()
    {
        QTest::addColumn<QByteArray>("end");
        QTest::addColumn<QByteArray>("expected");

        QTest::newRow("an order for one mode behind the one for all")
            << QByteArray("[ExtraKey]\nOrder@A=b\nOrder=a\n")
            << QByteArray("[ExtraKey]\nOrder=a\nOrder@A=b\n");
        QTest::newRow("a section with the name of the one without a name")
            << QByteArray("[%General]\na=1\n") << QByteArray("[%General]\na=1\n");
    }
    void arranges()
    {
        QFETCH(QByteArray, end);
        QFETCH(QByteArray, expected);
        const QByteArray start = "[KeltoItem]\nname=a\n\n";
        DocumentError error;
        QCOMPARE(formatted(start + end, &error), start + expected);
    }

    void spells_data()
    {
        QTest::addColumn<QByteArray>("spelling");
        QTest::addColumn<QByteArray>("expected");

        QTest::newRow("a text without need of quotes")
            << QByteArray("\"Plane wall\"") << QByteArray("Plane wall");
        QTest::newRow("a comma") << QByteArray("\"a, b\"") << QByteArray("\"a, b\"");
        QTest::newRow("a sentence") << QByteArray("Inside.") << QByteArray("\"Inside.\"");
        QTest::newRow("elements with a bar") << QByteArray("a|b") << QByteArray("\"a|b\"");
        QTest::newRow("a list") << QByteArray("a,b ,  \"c\"") << QByteArray("a, b, c");
        QTest::newRow("an empty list") << QByteArray("@Invalid()") << QByteArray("@Invalid()");
        QTest::newRow("blanks at the ends") << QByteArray("\" a \"") << QByteArray("\" a \"");
        QTest::newRow("a quote and a backslash")
            << QByteArray("\\\"\\\\") << QByteArray("\\\"\\\\");
        QTest::newRow("a digit behind a number")
            << QByteArray("\"\\x1\\x66\"") << QByteArray("\"\\x1\\x66\"");
        QTest::newRow("a line break and a tab")
            << QByteArray("a\\nb, c\\td") << QByteArray("\"a\\nb\", \"c\\td\"");
        QTest::newRow("half of a pair") << QByteArray("\\xd83d!") << QByteArray("\"\\xd83d!\"");
        QTest::newRow("a letter by its number") << QByteArray("\\xe9") << QByteArray("é");
        QTest::newRow("a line that goes on") << QByteArray("a, \\\nb") << QByteArray("a, b");
        QTest::newRow("an emoji") << QByteArray("\xf0\x9f\x98\x80")
                                  << QByteArray("\xf0\x9f\x98\x80");
        QTest::newRow("long sentences") << QByteArray(60, 'a') + "., " + QByteArray(60, 'b')
                + '.' << '"' + QByteArray(60, 'a') + ".\",\\\n\"" + QByteArray(60, 'b') + ".\"";
    }
    void spells()
    {
        QFETCH(QByteArray, spelling);
        QFETCH(QByteArray, expected);
        QVERIFY(writeFile("item.ini", "[KeltoItem]\nname=" + spelling + '\n'));
        DocumentError error;
        const QByteArray text = formattedFile("item.ini", &error);
        QCOMPARE(error.text, QString());
        QCOMPARE(text, "[KeltoItem]\nname=" + expected + '\n');
        compareWith("item.ini", text);
    }

private:
    static void addSeeds(unsigned count)
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= count; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    /// Checks that @p text reads like the file, and does not change when it is formatted again.
    static void compareWith(const QString &path, const QByteArray &text)
    {
        QVERIFY(writeFile("formatted.ini", text));
        QCOMPARE(VIniSettings("formatted.ini").data(), VIniSettings(path).data());
        QCOMPARE(differences(itemIn("formatted.ini"), itemIn(path)), QString());
        DocumentError error;
        const QByteArray again = formattedFile("formatted.ini", &error);
        QCOMPARE(error.text, QString());
        QCOMPARE(again, text);
    }
};

QTEST_GUILESS_MAIN(TestKeltoFmt)

#include "tst_kelto_fmt.moc"
