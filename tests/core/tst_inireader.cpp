// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What the reader of INI files finds in them, and that it reads them as QSettings does.

#include "core/iniproblems_p.h"

#include "support/directorytest.h"
#include "support/hostilebytes.h"
#include "support/testfiles.h"

#include <QDirIterator>
#include <QSet>
#include <QSettings>
#include <QTest>

namespace {

QString nameOf(IniProblem::Kind kind)
{
    static const QStringList names { "comment",           "no equals sign", "header",
                                     "empty section",     "duplicate",      "unreadable key",
                                     "byte order mark",   "escape",         "not UTF-8",
                                     "dropped character", "damaged",        "unsafe" };
    return names.value(kind);
}

/// One text for each problem, for example "3:1 duplicate of 2".
QStringList problemsIn(const QByteArray &bytes)
{
    QStringList texts;
    const QVector<IniProblem> problems = iniProblems(bytes);
    for (const IniProblem &problem : problems) {
        QString text = QString("%1:%2 ").arg(problem.position.line).arg(problem.position.column)
            + nameOf(problem.kind);
        if (problem.otherLine > 0)
            text += " of " + QString::number(problem.otherLine);
        texts.append(text);
    }
    return texts;
}

/// The lines of a file as "kind|key|value", entries with their key and elements decoded.
QStringList linesIn(const QByteArray &bytes)
{
    static const QStringList kinds { "comment", "section", "entry", "other" };
    QStringList lines;
    IniReader reader(bytes);
    while (reader.next()) {
        const IniLine &line = reader.line();
        const bool isEntry = line.kind == IniLine::Entry;
        const QString text = QString::fromUtf8(line.text.data(), int(line.text.size()));
        const QString what
            = isEntry ? reader.key().text() + '|' + elementsOfValue(line.value).join('|') : text;
        const IniPosition position = reader.positionAt(line.text.data());
        lines.append(
            QString("%1:%2 %3 ").arg(position.line).arg(position.column).arg(kinds.at(line.kind))
            + what);
    }
    return lines;
}

bool isSerialised(const QString &element)
{
    static const QStringList openings { "@Variant(", "@DateTime(", "@Rect(", "@Size(", "@Point(" };
    return std::any_of(openings.cbegin(), openings.cend(),
                       [&](const QString &opening) { return element.startsWith(opening); });
}

/// What QSettings makes of a text, unless it is a serialised value.
QVariant valueOf(const QString &element)
{
    const auto inside
        = [&](int length) { return element.mid(length, element.size() - length - 1); };
    if (element.endsWith(')') && element.startsWith("@ByteArray("))
        return inside(11).toLatin1();
    if (element.endsWith(')') && element.startsWith("@String("))
        return inside(8);
    if (element == "@Invalid()")
        return {};
    return element.startsWith("@@") ? element.mid(1) : element;
}

QVariant valueOf(const QStringList &elements)
{
    if (elements.size() == 1)
        return valueOf(elements.constFirst());
    const bool isTyped = std::any_of(elements.cbegin(), elements.cend(), [](const QString &text) {
        return text.startsWith('@') && !text.startsWith("@@");
    });
    QVariantList values;
    for (const QString &element : elements)
        values.append(valueOf(element));
    return isTyped ? QVariant(values) : QVariant(values).toStringList();
}

/// The elements of each key. QSettings takes one section after the other, by name.
QMap<QString, QStringList> entriesIn(const QByteArray &bytes)
{
    QMap<QString, QVector<QPair<QString, QStringList>>> sections;
    IniReader reader(bytes);
    while (reader.next()) {
        if (reader.line().kind != IniLine::Entry)
            continue;
        const SettingsKey key = reader.key();
        const QString section = SettingsKey { key.section, {} }.text();
        sections[section].append({ key.text(), elementsOfValue(reader.line().value) });
    }
    QMap<QString, QStringList> entries;
    for (const auto &section : qAsConst(sections)) {
        for (const auto &entry : section)
            entries.insert(entry.first, entry.second);
    }
    return entries;
}

/// What the reader and QSettings do not agree on, in a file with these bytes; empty for nothing.
QString disagreement(const QByteArray &bytes, int *values = nullptr)
{
    // A file of a name that QSettings does not remember.
    static int number = 0;
    const QString name = QString("agree%1.ini").arg(++number);
    if (hasUnsafeIniValue(bytes) || !writeFile(name, bytes))
        return {};
    const QMap<QString, QStringList> entries = entriesIn(bytes);
    QSettings settings(name, QSettings::IniFormat);
    settings.setIniCodec("utf-8");
    QStringList keys = settings.allKeys();
    keys.sort();
    QFile::remove(name);
    const QStringList expected = entries.keys();
    if (keys != expected)
        return "keys " + keys.join('|') + " and " + expected.join('|');
    for (const QString &key : qAsConst(keys)) {
        const QStringList elements = entries.value(key);
        const bool isAskable
            = !key.isEmpty() && !key.startsWith('/') && !key.endsWith('/') && !key.contains("//");
        if (!isAskable || std::any_of(elements.cbegin(), elements.cend(), isSerialised))
            continue;
        const QVariant value = settings.value(key);
        const QVariant readValue = valueOf(elements);
        if (value != readValue || value.userType() != readValue.userType())
            return key + " is " + value.toString() + " and " + elements.join('|');
        if (values)
            ++*values;
    }
    return {};
}

QStringList iniFilesBelow(const QStringList &directories, int most)
{
    QStringList files;
    for (const QString &directory : directories) {
        QDirIterator found(directory, { "*.ini", "*.conf", "*.desktop", "*.cfg" }, QDir::Files,
                           QDirIterator::Subdirectories);
        while (found.hasNext() && files.size() < most)
            files.append(found.next());
    }
    return files;
}

} // namespace

class TestIniReader : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void listsProblems_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("problems");
        const auto row
            = [](const char *name, const QByteArray &bytes, const QStringList &problems) {
                  QTest::newRow(name) << bytes << problems;
              };
        addCleanFiles();
        row("a comment", "; why\n[a]\nb=1\n", { "1:1 comment" });
        row("a comment behind spaces", "[a]\nb=1\n  ; why", { "3:3 comment" });
        row("text behind a semicolon", "[a]\nb=1;2\n", { "2:4 comment" });
        row("a semicolon in a header", "[a;b]\nc=1\n", { "1:1 header", "1:3 comment" });
        row("a semicolon in a key", "a;b=1\n", { "1:1 no equals sign", "1:2 comment" });
        row("a comment with a hash sign", "# why\na=1\n", { "1:1 comment" });
        row("a key behind a hash sign", "#a=1\nb=2\n", { "1:1 comment" });
        row("lines without an equals sign", "junk\n[a]\nb=1\n more junk",
            { "1:1 no equals sign", "4:2 no equals sign" });
        row("an equals sign behind a backslash", "a\\=b\n", { "1:1 no equals sign" });
        row("headers with text behind them", "[a] b=1\nc=2\n[d]]\ne=1\n",
            { "1:1 header", "3:1 header" });
        row("a header that is not closed", "[a\nb=1\n", { "1:1 header" });
        row("sections without keys", "[a]\n[b]\nc=1\n[d]\n; why\n",
            { "1:1 empty section", "4:1 empty section", "5:1 comment" });
        row("a section that has only a line without a key", "[a]\njunk\n",
            { "1:1 empty section", "2:1 no equals sign" });
        row("a key twice", "[a]\nb=0\nc=0\nb=1\n b=2\n",
            { "4:1 duplicate of 2", "5:2 duplicate of 2" });
        row("a key in two spellings", "[a]\nb=0\n%62=1\n%U0062=2\n",
            { "3:1 duplicate of 2", "4:1 duplicate of 2" });
        row("a key in two cases of its escape", "[a]\n%U503C=0\n%U503c=1\n",
            { "3:1 duplicate of 2" });
        row("a key in the name of its section and behind it", "a\\b=0\n[a]\nb=1\n",
            { "3:1 duplicate of 1" });
        row("a key without a section, in several ways", "b=0\n[General]\nb=1\n[GENERAL]\nb=2\n",
            { "3:1 duplicate of 1", "5:1 duplicate of 1" });
        row("a key in a section called general and with its name",
            "general\\b=0\n[%general]\nb=1\n", { "3:1 duplicate of 1" });
        row("a key in a section and in one with spaces", "[ \va\f ]\nb=0\n[a]\nb=1\n",
            { "4:1 duplicate of 2" });
        row("keys that differ in case are two", "a=1\nA=2\n", {});
        row("a key in a section called General is another", "b=0\n[%General]\nb=1\n", {});
        row("keys that a slash begins or ends",
            "[/c]\nd=1\n[a]\nb%2F=2\n\\e=3\n[]\nf=4\n[a]\ng%2f=5\n",
            { "2:1 unreadable key", "4:1 unreadable key", "5:1 unreadable key",
              "7:1 unreadable key", "9:1 unreadable key" });
        row("keys with two slashes in them", "a\\\\b=1\na%2f/c=2\n[a\\b]\nc\\d=3\n",
            { "1:1 unreadable key", "2:1 unreadable key" });
        row("a slash at the end of a key without a section", "a%2f=1\n", {});
        row("a byte order mark in front of a key",
            "\xef\xbb\xbf"
            "a=1\n",
            { "1:1 byte order mark" });
        row("a byte order mark in front of a comment", "\xef\xbb\xbf; why\n[a]\nb=1\n",
            { "1:1 byte order mark", "1:2 comment" });
        row("escapes", "a=\\q\nb=1\\x\nc=\\x100411\nd=x\\",
            { "1:3 escape", "2:4 escape", "3:3 escape", "4:4 escape" });
        row("a path with backslashes", "a=C:\\quick\\path\n", { "1:5 escape", "1:11 escape" });
        row("half of a character, escaped", "a=\\xd83d\nb=\\xde00\n",
            { "1:3 dropped character", "2:3 dropped character" });
        row("byte order marks in values", "a=\xef\xbb\xbfy\nb=x\v\xef\xbb\xbf\nc=\\xfeff\n",
            { "1:3 dropped character", "2:5 dropped character", "3:3 dropped character" });
        row("byte order marks that stay",
            "a=x\xef\xbb\xbfy\xef\xbb\xbf\nb=x\\xfeff\nc=\"y\\xfeffz\"\n", {});
        row("byte order marks in escapes behind what is escaped",
            "a=\\t\\xfeff\nb=\\\"\\xfeff\nc=\\\\\\xfeff\nd=x, \\xfeff\n",
            { "1:5 dropped character", "2:5 dropped character", "3:5 dropped character",
              "4:6 dropped character" });
        row("bytes that are not UTF-8", "a=1\nb=\xe5\x80\xbc \xe4\xf6\n", { "2:5 not UTF-8" });
        row("UTF-8 that is cut off", "a=\xe5\x80", { "1:3 not UTF-8" });
        row("bytes that a replacement character begins with", "a=x\xef\nb=\xef\xbf\nc=\xef\xbf",
            { "1:4 not UTF-8", "2:3 not UTF-8", "3:3 not UTF-8" });
        row("bytes that are not UTF-8 in a key", "\xe4=1\n", { "1:1 not UTF-8" });
        row("characters of two units", "a=\xe5\x80\xbc\xf0\x9f\x98\x80\n",
            { "1:4 dropped character" });
        row("quotes in a text", "a=5\" pipe\nb=6\" pipe\n",
            { "1:4 dropped character", "2:6 dropped character" });
        row("text behind a quote", "a=\"1\"2\nb=\"1\"\\t\n",
            { "1:6 dropped character", "2:6 dropped character" });
        row("quotes behind a quoted text", "a=\"1\"\"2\"\n", { "1:6 dropped character" });
        row("a quote that is not closed", "a=\"1\nb=2\n", { "3:1 dropped character" });
        row("values that are damaged",
            "a=@Point(1 y)\nb=1, @Variant(junk)\nc=@ByteArray(\xe5\x80\xbc)\n"
            "d=@Variant()\ne=@DateTime(\\0)\nf=@Variant(\\0\\0\\0\\x1\\x1\\x1)\n",
            { "1:3 damaged", "2:3 damaged", "3:3 damaged", "4:3 damaged", "5:3 damaged",
              "6:3 damaged" });
        row("values that are not safe",
            "a=@DateTime(\\0\\0\\0V\\0)\nb=1, @Variant(\\0\\0\\0G\\xff\\xff\\xff\\xff)\n",
            { "1:3 unsafe", "2:3 unsafe" });
        row("a carriage return ends a line where nothing else does", "a=1\rjunk\r; why\r",
            { "2:1 no equals sign", "3:1 comment" });
        row("columns count characters", "\xe5\x80\xbc=1\n\xe5\x80\xbc=\xe5\x80\xbc\\q\n",
            { "2:1 duplicate of 1", "2:4 escape" });
        row("UTF-16", QByteArray("\xff\xfe[\0a\0]\0\n\0", 10),
            { "1:1 not UTF-8", "1:1 no equals sign", "2:1 no equals sign" });
    }

    void listsProblems()
    {
        QFETCH(QByteArray, bytes);
        QTEST(problemsIn(bytes), "problems");
    }

    void findsDuplicatesAmongManyKeys()
    {
        QByteArray bytes;
        QStringList problems;
        for (int i = 1; i <= 300; ++i) {
            bytes += "key" + QByteArray::number(i % 200) + "=1\n";
            if (i > 200)
                problems.append(QString("%1:1 duplicate of %2").arg(i).arg(i - 200));
        }
        QCOMPARE(problemsIn(bytes), problems);
    }

    /// None of them is decoded with its section, which would take long.
    void findsManyDuplicatesInALongSection()
    {
        QByteArray bytes = '[' + QByteArray(100000, 'a') + "]\n";
        for (int i = 0; i < 2000; ++i)
            bytes += i % 2 ? "k=1\n" : "%6b=1\n";
        const QVector<IniProblem> problems = iniProblems(bytes);
        QCOMPARE(problems.size(), 1999);
        QCOMPARE(problems.constLast().otherLine, 2);
    }

    void dividesLines()
    {
        const QByteArray bytes = "top = 1\r\n  [ a b ]\n\"k;=\"=x , \"y;z\" ; why\n\n"
                                 "c\\d=1\\\n  2\nother\n";
        const QStringList expected {
            "1:1 entry top|1",    "2:3 section [ a b ]",    "3:1 entry a b/\"k;=\"|x|y;z",
            "3:17 comment ; why", "5:1 entry a b/c/d|1  2", "7:1 other other"
        };
        QCOMPARE(linesIn(bytes), expected);
    }

    void agreesWithQSettings_data()
    {
        QTest::addColumn<BytesMaker>("makeBytes");
        for (int seed = 1; seed <= 2; ++seed) {
            QTest::addRow("pieces of syntax, %d", seed) << BytesMaker(hostileBytes);
            QTest::addRow("damaged files, %d", seed) << BytesMaker(damagedBytes);
            QTest::addRow("any bytes, %d", seed) << BytesMaker(anyBytes);
        }
    }

    void agreesWithQSettings()
    {
        QFETCH(BytesMaker, makeBytes);
        Dice dice { unsigned(qHash(QByteArray(QTest::currentDataTag()), 1)) };
        int values = 0;
        for (int i = 0; i < 1000; ++i) {
            const QByteArray bytes = makeBytes(&dice);
            const QString difference = disagreement(bytes, &values);
            QVERIFY2(difference.isEmpty(),
                     qPrintable(difference + " in " + QString(bytes.toPercentEncoding())));
        }
        QVERIFY2(values > 300, qPrintable(QString::number(values)));
    }

    void agreesWithQSettingsOnBlanks()
    {
        int values = 0;
        QCOMPARE(disagreement("a=1\\t \\x20 , 2\\t\nb= \\t \nc=\"x \" \\x20 \nd=x\\t, y  \n",
                              &values),
                 QString());
        QCOMPARE(values, 4);
    }

    /// As they are, and with some of their bytes changed.
    void agreesWithQSettingsOnFilesOfTheSystem()
    {
        const QStringList files = iniFilesBelow({ KELTO_SOURCES, "/etc", "/usr/share" }, 150);
        QVERIFY(files.size() >= 5);
        Dice dice { 1 };
        for (const QString &file : files) {
            QByteArray bytes = fileContent(file);
            QVERIFY2(disagreement(bytes).isEmpty(), qPrintable(file));
            for (int i = 0; i < 5 && !bytes.isEmpty(); ++i) {
                bytes[dice.between(0, bytes.size() - 1)] = "\n=\"\\;[]%,@\xc3"[dice.between(0, 10)];
                const QString difference = disagreement(bytes);
                QVERIFY2(difference.isEmpty(), qPrintable(file + ": " + difference));
            }
        }
    }

    void findsUnsafeValuesWhereTheListDoes()
    {
        const QStringList openings { "@Variant(",     "\\x40Variant(", "\\100Variant(",
                                     "@\\qVariant(",  "@\\\nVariant(", "@\"Variant(",
                                     "@Var\\x69ant(", "@Vari\"\"ant(", "@@Variant(" };
        Dice dice { 7 };
        int unsafe = 0;
        for (int i = 0; i < 2000; ++i) {
            QByteArray bytes = hostileBytes(&dice);
            if (dice.chance(50))
                bytes += dice.oneOf({ "\nv=", "\nv=", "\n[v]=" }).toLatin1() + "\"x\", "
                    + dice.oneOf(openings).toLatin1() + "\\0\\0\\0G"
                    + (dice.chance(50) ? "\\177" : "\\0") + "\\0\\0\\0)\n";
            const QVector<IniProblem> problems = iniProblems(bytes);
            const bool isListed = std::any_of(problems.cbegin(), problems.cend(), [](auto problem) {
                return problem.kind == IniProblem::UnsafeValue;
            });
            QCOMPARE(hasUnsafeIniValue(bytes), isListed);
            unsafe += isListed ? 1 : 0;
        }
        QVERIFY2(unsafe > 100 && unsafe < 1900, qPrintable(QString::number(unsafe)));
    }

private:
    static void addCleanFiles()
    {
        const QStringList none;
        const auto row = [&](const char *name, const QByteArray &bytes) {
            QTest::newRow(name) << bytes << none;
        };
        row("an empty file", "");
        row("white space only", "\n \n\t\r\n");
        row("as QSettings writes it",
            "[%General]\na=1\n\n[General]\nb=2\n\n[c]\nd\\e=3\n%U540D%20=4\n");
        row("as a person writes it", "a = 1\n\n  [ b ]  \n\tc\t= two words \n  d =\n");
        row("no line end at the end", "[a]\nb=1");
        row("line ends of other systems", "[a]\r\nb=1\r\nc=2\rd=3\r");
        row("a byte order mark in front of a header", "\xef\xbb\xbf[a]\nb=1\n");
        row("a byte order mark and white space in front of one", "\xef\xbb\xbf\n [a]\nb=1\n");
        row("a section in several places", "[a]\nb=1\n[c]\nd=1\n[a]\ne=1\n");
        row("keys and values in UTF-8", "[组]\n名=值 Ω, é\n");
        row("quotes around elements", "a=\"x;y\"\nb=\"x,y\" , \"\", z\nc=\"a=\\\"b\\\"\"\n");
        row("a quote in a key", "\"c\"=2\n");
        row("empty elements", "a=,\nb=, x,\n");
        row("escapes that mean something",
            "a=\\a\\b\\f\\n\\r\\t\\v\\\"\\?\\'\\\\\nb=\\x1\\x0041\\xffff\\0\\17\\177777\n");
        row("a line that goes on", "a=x, \\\n  y\nb=\"x \\\r\n y\"\n");
        row("equals signs and brackets elsewhere",
            "a=b=c\nd=[b]\nc[0]=1\n[Desktop Entry]\nName[de]=x\n");
        row("the empty key", "=1\nb=2\n");
        row("zero bytes", QByteArray("a\0b=c\0d\n", 8));
        row("text that looks like a typed value",
            "a=@@Variant(x)\nb=@foo(值)\nc=@Variant(\nd=x@Variant(y)\ne=@String(x)\nf=@default\n"
            "g=@Invalid()\n");
        row("typed values",
            "a=@ByteArray(x\\0\\xff)\nb=@Point(1 -2)\nc=@Size(3 4)\nd=@Rect(1 2 3 4)\n"
            "e=@Variant(\\0\\0\\0\\x1a@\\0\\0\\0\\0\\0\\0\\0@\\b\\0\\0\\0\\0\\0\\0)\n");
        row("per cent signs that escape nothing", "a%zz=1\n100%=2\n%U12=3\n%u0062=4\nb=5\n");
    }
};

QTEST_GUILESS_MAIN(TestIniReader)
#include "tst_inireader.moc"
