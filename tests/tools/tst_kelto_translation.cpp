// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The Chinese texts of the command: there is one for each text of its sources, and what a person
// has to type, or finds in a file, is the same in both languages.

#include "support/directorytest.h"
#include "support/testfiles.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

class TestKeltoTranslation : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void hasEachText();
    void keeps_data();
    void keeps();
};

namespace {

const char *const translationFile = KELTO_SOURCES "/translations/kelto-command_zh_CN.ts";

struct Message
{
    QString source;
    QString translation;
    bool isFinished = false;
};

Message messageAt(QXmlStreamReader &xml)
{
    Message message;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.isFinished = !xml.attributes().hasAttribute("type");
            message.translation = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

QVector<Message> messagesIn(const QString &path)
{
    const QByteArray bytes = fileContent(path);
    QXmlStreamReader xml(bytes);
    QVector<Message> messages;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement
            && xml.name() == QLatin1String("message"))
            messages.append(messageAt(xml));
    }
    return xml.hasError() ? QVector<Message>() : messages;
}

/// What @p pattern finds in @p text, sorted, each once.
QStringList found(const QString &pattern, const QString &text)
{
    QStringList found;
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    for (auto match = expression.globalMatch(text); match.hasNext();)
        found.append(match.next().captured());
    found.sort();
    found.removeDuplicates();
    return found;
}

} // namespace

void TestKeltoTranslation::hasEachText()
{
    QVERIFY(QFile::copy(translationFile, "updated.ts"));
    const QStringList update { KELTO_SOURCES, "-silent", "-no-obsolete", "-ts", "updated.ts" };
    if (QFileInfo::exists(KELTO_LUPDATE))
        QCOMPARE(QProcess::execute(KELTO_LUPDATE, update), 0);
    const auto messages = messagesIn("updated.ts");
    QVERIFY(!messages.isEmpty());
    QStringList missing;
    for (const Message &message : messages) {
        if (!message.isFinished || message.translation.isEmpty())
            missing.append(message.source);
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
}

void TestKeltoTranslation::keeps_data()
{
    QTest::addColumn<QString>("pattern");

    QTest::newRow("placeholders") << "%\\d(?!D)";
    QTest::newRow("options") << "(?<![\\w-])--?[a-z][a-z-]*";
    // But for the words that the command prints itself.
    QTest::newRow("what stands in quotes without a blank")
        << "(?<=[\"\u201c])(?!(?:complete|yes)\")[!-~]+?(?=[\"\u201d])";
    QTest::newRow("names of sections") << "\\[[A-Za-z.]+\\]";
    QTest::newRow("names of functions, files and fields") << "[A-Za-z]\\w*(?:(?:::|[._/])\\w+)+";
    QTest::newRow("words in capital letters") << "[A-Z]{2,}";
    QTest::newRow("numbers") << "(?<![%\\w])[0-9]+";
    QTest::newRow("examples") << "^  .*$";
}

void TestKeltoTranslation::keeps()
{
    QFETCH(QString, pattern);
    const auto messages = messagesIn(translationFile);
    QStringList differences;
    int count = 0;
    for (const Message &message : messages) {
        const QStringList expected = found(pattern, message.source);
        count += expected.size();
        const QStringList kept = found(pattern, message.translation);
        if (kept != expected)
            differences.append(message.source + " has " + expected.join(' ') + ", and "
                               + message.translation + " has " + kept.join(' '));
    }
    QVERIFY(count > 0);
    QVERIFY2(differences.isEmpty(), qPrintable(differences.join('\n')));
}

QTEST_GUILESS_MAIN(TestKeltoTranslation)
#include "tst_kelto_translation.moc"
