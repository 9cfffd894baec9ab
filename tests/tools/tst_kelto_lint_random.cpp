// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The lint and thousands of files: what it says about items that come back from a file changed, and
// about those that do not.

#include "convert/inidocument.h"
#include "convert/jsonitem.h"
#include "format/format.h"
#include "lint/fixes.h"
#include "lint/lintconfig.h"
#include "lintfindings.h"
#include "naiveitems.h"
#include "support/directorytest.h"
#include "support/hostilebytes.h"
#include "support/itemjson.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QTest>
#include <VIniSettings>

class TestKeltoLintRandom : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void namesWhatComesBackChanged_data();
    void namesWhatComesBackChanged();
    void findsNothingInWhatIsSaved();
    void fixesNothingButWhatIsWrong();
    void findsNoMoreInWhatToolsWrite_data();
    void findsNoMoreInWhatToolsWrite();

private:
    const QStringList m_seldom { ", and more", "; else", " = x", " 100 %", " (长)",
                                 " #1",        "'s",     "\tb",  "\t; b" };
    /// What a file can carry and generated source text cannot.
    const QStringList m_uncarried {
        "\nb", "\n\001a; b", "\t\"a\"", "é\r\na", "\f\b\v\au", "\0330z"
    };
};

namespace {

/// The item as it comes back from JSON, as a file; empty where a file cannot hold it.
QByteArray thereAndBack(const AUTH_INF &item)
{
    JsonError error;
    const AUTH_INF again = itemInJson(QJsonDocument(jsonOf(item)).toJson(), &error);
    const QByteArray text = iniOf(again);
    return lossOf(again, text).fields.isEmpty() ? text : QByteArray();
}

/// A text in quotes that is all but plain.
QByteArray quotedText(Dice *dice)
{
    static const QStringList pieces {
        "\\t", "\\n", "\\f", "\\x1b", "\\xfeff", "\\xd83d", "\\\"", "\\\\", ",", ";",
        " ",   "=",   "|",   "@",     "#",       "'",       "é",    "长",   "x", "z",
    };
    const QStringList texts = dice->someOf(pieces, dice->between(1, 4));
    return "\"a" + texts.join("").toUtf8() + "z\"";
}

QByteArray quotedItem(unsigned seed)
{
    NaiveItemMaker maker(seed);
    QByteArrayList lines = NaiveWriter::written(maker.plainItem()).split('\n');
    for (QByteArray &line : lines) {
        const QByteArray key = line.left(line.indexOf('=') + 1);
        if (key == "description =" || key == "icon =" || key == "group =" || key.startsWith("Note"))
            line = key + quotedText(&maker.dice());
    }
    return lines.join('\n');
}

QByteArray damagedItem(unsigned seed)
{
    Dice dice(seed);
    return mutated(quotedItem(seed), &dice);
}

using FileMaker = QByteArray (*)(unsigned seed);

} // namespace

Q_DECLARE_METATYPE(FileMaker)

void TestKeltoLintRandom::namesWhatComesBackChanged_data()
{
    QTest::addColumn<unsigned>("seed");
    QTest::addColumn<int>("harms");

    for (unsigned seed = 1; seed <= 2; ++seed) {
        QTest::addRow("plain items, seed %u", seed) << seed << 0;
        QTest::addRow("items with one hard text, seed %u", seed) << seed << 1;
        QTest::addRow("items with hard texts, seed %u", seed) << seed << 3;
    }
}

void TestKeltoLintRandom::namesWhatComesBackChanged()
{
    QFETCH(unsigned, seed);
    QFETCH(int, harms);

    NaiveItemMaker maker(seed);
    for (int i = 0; i < 400; ++i) {
        AUTH_INF item = maker.plainItem();
        for (int j = 0; j < harms; ++j)
            maker.harm(&item);
        const QByteArray bytes = NaiveWriter::written(item);
        const QString path = QString("%1.ini").arg(i);
        QVERIFY(writeFile(path, bytes));

        const ItemFile file(path);
        const QString changes = differences(file.item(), asRead(item));
        // What a unit means is another matter than whether it is read.
        const QStringList errors = linesOf(allFindingsIn({ file }), Severity::Error)
                                       .filter(QRegularExpression("^(?!.*unit-dimension)"));
        const QString why = QString::fromUtf8(bytes) + '\n' + changes + errors.join('\n');
        QVERIFY2(changes.isEmpty() == errors.isEmpty(), qPrintable(why));
    }
}

void TestKeltoLintRandom::findsNothingInWhatIsSaved()
{
    NaiveItemMaker maker(5);
    const QStringList texts = m_seldom + m_uncarried;
    for (int i = 0; i < 200; ++i) {
        AUTH_INF item = maker.plainItem();
        // What scripts stumble over is no difficulty here.
        const bool isCarried = i % texts.size() < m_seldom.size();
        item.description += texts.at(i % texts.size());
        item.inner_mode_nameList.last() += texts.at(i % texts.size());
        const QString path = QString("%1.ini").arg(i);
        item.save_ini(path);
        QStringList results;
        for (const QStringList &entry : qAsConst(item.output_results))
            results.append(entry.at(1));
        VIniSettings file(path);
        if (!results.isEmpty())
            file.setValue("KeltoItem/output_results", results);
        file.saveLocal();
        const QStringList lines = linesOf(allFindingsIn({ ItemFile(path) }), Severity::Warning);
        QCOMPARE(lines.filter(" text-in-code ").isEmpty(), isCarried);
        QCOMPARE(lines.filter(QRegularExpression("^(?!.* text-in-code )")), QStringList());
    }
}

void TestKeltoLintRandom::fixesNothingButWhatIsWrong()
{
    NaiveItemMaker maker(3);
    const LintConfig config({});
    int restored = 0;
    for (int i = 0; i < 800; ++i) {
        AUTH_INF item = maker.plainItem();
        maker.harm(&item);
        QVERIFY(writeFile(QString("%1.ini").arg(i), NaiveWriter::written(item)));
        const ItemFile before(QString("%1.ini").arg(i));
        const FixedFile fixed = fixedFile(before, config);
        QVERIFY(writeFile(QString("%1-fixed.ini").arg(i), fixed.bytes));
        const ItemFile after(QString("%1-fixed.ini").arg(i));

        const FixedFile again = fixedFile(after, config);
        QCOMPARE(again.bytes, fixed.bytes);
        QCOMPARE(again.fixed.size(), 0);
        QCOMPARE(fixed.bytes == before.bytes(), fixed.fixed.isEmpty());
        // White space is dropped either way.
        if (countOf(fixed.fixed, "dropped-white-space") > 0) {
            QCOMPARE(differences(after.item(), before.item()), QString());
        } else if (!fixed.fixed.isEmpty()
                   && linesOf(allFindingsIn({ after }), Severity::Error).isEmpty()) {
            QCOMPARE(differences(after.item(), asRead(item)), QString());
            ++restored;
        }
    }
    QVERIFY2(restored > 30, qPrintable(QString::number(restored)));
}

void TestKeltoLintRandom::findsNoMoreInWhatToolsWrite_data()
{
    QTest::addColumn<FileMaker>("fileOf");
    QTest::addColumn<int>("leastWritten");

    QTest::newRow("texts in quotes") << FileMaker(quotedItem) << 999;
    QTest::newRow("damaged files") << FileMaker(damagedItem) << 80;
}

void TestKeltoLintRandom::findsNoMoreInWhatToolsWrite()
{
    QFETCH(FileMaker, fileOf);
    QFETCH(int, leastWritten);
    int written = 0;
    for (unsigned seed = 1; seed <= 500; ++seed) {
        const QByteArray bytes = fileOf(seed);
        QVERIFY(writeFile("item.ini", bytes));
        const ItemFile file("item.ini");
        // Arranging a file may mend damage. What followed from that is told then, so it counts.
        const Findings before = everyFindingIn(file) + findingsAmong({ file });
        // Once a quote is closed, the line breaks and the white space in it are two findings.
        const int most = before.size() + countOf(before, "quote-across-lines");
        DocumentError error;
        QByteArrayList texts { formatted(bytes, &error) };
        // Another rule may tell an error of the file in what is written from the item.
        if (linesOf(before, Severity::Error).isEmpty())
            texts.append(thereAndBack(file.item()));
        texts.removeAll({});
        for (const QByteArray &text : qAsConst(texts)) {
            QVERIFY(writeFile("written.ini", text));
            const Findings after = allFindingsIn({ ItemFile("written.ini") });
            const QString why
                = QString::fromUtf8(bytes + '\n' + text + '\n') + linesOf(after).join('\n');
            QVERIFY2(after.size() <= most, qPrintable(why));
        }
        written += texts.size();
    }
    QVERIFY2(written > leastWritten, qPrintable(QString::number(written)));
}

QTEST_GUILESS_MAIN(TestKeltoLintRandom)

#include "tst_kelto_lint_random.moc"
