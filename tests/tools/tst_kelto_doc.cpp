// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The manual of the workbench's modules and of some that nobody should write, in two languages:
// what a reader of HTML, of Qt Help and a browser make of it.

#include "support/directorytest.h"
#include "support/programs.h"
#include "support/testfiles.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QStandardPaths>
#include <QTest>
#include <QXmlStreamReader>

class TestKeltoDoc : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void linksLeadSomewhere();
    void strangersTextsStayTexts();
    void cellsHaveHeaders();
    void compiledTranslationsGiveTheSame();
    void writesTheSameOnEveryRun();
    void becomesHelp();
    void fitsTheScreenAndIsSearched();
};

namespace {

struct Element
{
    QString name;
    QXmlStreamAttributes attributes;
    QString text; ///< Directly behind its start.
};

using Page = QVector<Element>;

/// All that the program prints.
QString run(const QString &program, const QStringList &arguments)
{
    const Outcome outcome = outcomeOf(program, arguments);
    const QString output = QString::fromUtf8(outcome.output + outcome.errors);
    if (outcome.exitCode != 0)
        QTest::qFail(qPrintable(output), __FILE__, __LINE__);
    return output;
}

void makeManual(const QString &directory, const QString &translation, const QStringList &more = {})
{
    run(KELTO_COMMAND,
        QStringList { "doc", WORKBENCH_DIRECTORY "/modules", CASE_DIRECTORY "/names",
                      CASE_DIRECTORY "/hostile.ini", "-o", directory, "--translation", translation }
            + more);
}

const QString &workbenchTranslation()
{
    static const QString path(WORKBENCH_DIRECTORY "/translations/workbench_zh_CN.ts");
    return path;
}

QMap<QString, QByteArray> contentsIn(const QString &directory)
{
    QMap<QString, QByteArray> files;
    const QStringList names = filesIn(directory);
    for (const QString &name : names)
        files.insert(name, fileContent(directory + '/' + name));
    return files;
}

/// Empty for what is not well-formed.
Page pageOf(const QByteArray &bytes)
{
    Page page;
    QXmlStreamReader xml(bytes);
    bool isBehindStart = false;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            page.append({ xml.name().toString(), xml.attributes(), {} });
        else if (token == QXmlStreamReader::Characters && isBehindStart)
            page.last().text = xml.text().toString();
        isBehindStart = token == QXmlStreamReader::StartElement;
    }
    return xml.hasError() ? Page() : page;
}

QMap<QString, Page> pagesIn(const QString &directory)
{
    QMap<QString, Page> pages;
    const auto files = contentsIn(directory);
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        if (file.key().endsWith(".html"))
            pages.insert(file.key(), pageOf(file.value()));
    }
    return pages;
}

QStringList idsOf(const Page &page)
{
    QStringList ids;
    for (const Element &element : page) {
        if (element.attributes.hasAttribute("id"))
            ids.append(element.attributes.value("id").toString());
    }
    return ids;
}

QStringList linksOf(const Page &page)
{
    QStringList links;
    for (const Element &element : page) {
        for (const char *name : { "href", "src" }) {
            if (element.attributes.hasAttribute(name))
                links.append(element.attributes.value(name).toString());
        }
    }
    return links;
}

QJsonArray searchEntries(const QByteArray &script)
{
    const int start = script.indexOf('{');
    const QByteArray json = script.mid(start, script.lastIndexOf('}') + 1 - start);
    return QJsonDocument::fromJson(json).object().value("entries").toArray();
}

QSet<QString> addressesIn(const QString &directory)
{
    QSet<QString> addresses;
    const QStringList files = filesIn(directory);
    addresses.unite(QSet<QString>(files.cbegin(), files.cend()));
    const auto pages = pagesIn(directory);
    for (auto page = pages.cbegin(); page != pages.cend(); ++page) {
        const QStringList ids = idsOf(page.value());
        for (const QString &id : ids)
            addresses.insert(page.key() + '#' + id);
    }
    return addresses;
}

} // namespace

void TestKeltoDoc::linksLeadSomewhere()
{
    makeManual("manual", workbenchTranslation(), { "--format", "qhp" });
    const QSet<QString> addresses = addressesIn("manual");
    QStringList dead;
    int count = 0;
    const auto check = [&](const QString &from, const QString &link) {
        ++count;
        if (!addresses.contains(link.startsWith('#') ? from + link : link))
            dead.append(from + ": " + link);
    };

    const auto pages = pagesIn("manual");
    QCOMPARE(pages.size(), 2 * 15);
    int places = pages.size() - 2; // which the search finds: modules and what has an id in them
    for (auto page = pages.cbegin(); page != pages.cend(); ++page) {
        QVERIFY2(!page.value().isEmpty(), qPrintable(page.key()));
        QStringList ids = idsOf(page.value());
        QCOMPARE(ids.removeDuplicates(), 0);
        places += ids.size() - 2; // for the search itself and the content
        const QStringList links = linksOf(page.value());
        for (const QString &link : links)
            check(page.key(), link);
    }
    for (const char *index : { "searchindex.js", "searchindex.zh_CN.js" }) {
        const QJsonArray entries = searchEntries(fileContent(QString("manual/") + index));
        QCOMPARE(entries.size(), places / 2);
        for (const QJsonValue &entry : entries)
            check(index, entry.toArray().at(3).toString());
    }
    for (const char *project : { "manual.qhp", "manual.zh_CN.qhp" }) {
        const Page elements = pageOf(fileContent(QString("manual/") + project));
        QVERIFY(!elements.isEmpty());
        for (const Element &element : elements) {
            if (element.attributes.hasAttribute("ref"))
                check(project, element.attributes.value("ref").toString());
            else if (element.name == "file")
                check(project, element.text);
        }
    }
    QCOMPARE(dead, QStringList());
    QVERIFY(count > 500);
}

void TestKeltoDoc::strangersTextsStayTexts()
{
    makeManual("manual", workbenchTranslation());
    const Page page = pageOf(fileContent("manual/script-alert-name-script.html"));
    QStringList scripts;
    QStringList titles;
    for (const Element &element : page) {
        QVERIFY2(element.name != "svg" && element.name != "img" && element.name != "i"
                     && element.name != "u" && element.name != "b",
                 qPrintable(element.name));
        for (const QXmlStreamAttribute &attribute : element.attributes) {
            QVERIFY(!attribute.name().startsWith(QLatin1String("on")));
            QVERIFY(!attribute.value().contains(QLatin1String("javascript:")));
        }
        if (element.name == "script")
            scripts.append(element.attributes.value("src").toString() + element.text);
        if (element.name == "h1" || element.name == "h3")
            titles.append(element.text);
    }
    QCOMPARE(scripts, (QStringList { "searchindex.js", "search.js" }));
    QCOMPARE(titles,
             (QStringList { "<script>alert('name')</script>", "\"><svg onload=alert(3)>" }));
}

void TestKeltoDoc::cellsHaveHeaders()
{
    makeManual("manual", workbenchTranslation());
    const auto pages = pagesIn("manual");
    int headers = 0;
    for (auto page = pages.cbegin(); page != pages.cend(); ++page) {
        const bool isChinese = page.key().contains("zh_CN");
        QCOMPARE(page.value().constFirst().attributes.value("lang").toString(),
                 QString(isChinese ? "zh-CN" : "en"));
        for (const Element &element : page.value()) {
            if (element.name == "th") {
                ++headers;
                QVERIFY(element.attributes.hasAttribute("scope"));
            }
        }
    }
    QVERIFY(headers > 100);
}

void TestKeltoDoc::compiledTranslationsGiveTheSame()
{
    if (!QFileInfo::exists(KELTO_LRELEASE))
        QSKIP("There is no lrelease.", "");
    run(KELTO_LRELEASE, { workbenchTranslation(), "-qm", "compiled_zh_CN.qm" });
    makeManual("edited", workbenchTranslation());
    makeManual("compiled", "compiled_zh_CN.qm");
    QCOMPARE(contentsIn("compiled"), contentsIn("edited"));
    QVERIFY(contentsIn("edited").value("beam.zh_CN.html").contains("悬臂"));
    QVERIFY(!contentsIn("edited").value("beam.html").contains("悬臂"));
}

void TestKeltoDoc::writesTheSameOnEveryRun()
{
    const QStringList formats { "--format", "html", "--format", "markdown", "--format", "qhp" };
    makeManual("manual", workbenchTranslation(), formats);
    const auto first = contentsIn("manual");
    const QDateTime past = QDateTime::fromSecsSinceEpoch(1000000000);
    const QStringList names = first.keys();
    for (const QString &name : names) {
        QFile file("manual/" + name);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(past, QFileDevice::FileModificationTime));
    }
    makeManual("manual", workbenchTranslation(), formats);
    for (const QString &name : names)
        QCOMPARE(QFileInfo("manual/" + name).lastModified(), past);
    makeManual("another", workbenchTranslation(), formats);
    QCOMPARE(contentsIn("another"), first);
}

void TestKeltoDoc::becomesHelp()
{
    const QString generator
        = QStandardPaths::findExecutable("qhelpgenerator", { "/usr/lib/qt5/bin" });
    if (generator.isEmpty())
        QSKIP("There is no qhelpgenerator.", "");
    makeManual("manual", workbenchTranslation(), { "--format", "qhp" });
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const QString &name : { QString("manual"), QString("manual.zh_CN") }) {
        const QString output
            = run(generator, { "manual/" + name + ".qhp", "-o", "manual/" + name + ".qch" });
        QVERIFY2(output.contains("Documentation successfully generated."), qPrintable(output));
        QVERIFY2(!output.contains("warning", Qt::CaseInsensitive), qPrintable(output));
        QVERIFY(fileContent("manual/" + name + ".qch").startsWith("SQLite format 3"));
    }
}

namespace {

/// Opens every page in frames as wide as a desktop and as a phone, one after the other, and writes
/// into its own body what is wrong.
QByteArray browserTrial(const QStringList &pages)
{
    const QByteArray list
        = QJsonDocument(QJsonArray::fromStringList(pages)).toJson(QJsonDocument::Compact);
    return "<!DOCTYPE html><meta charset=utf-8><body><script>\nconst pages = " + list + R"(;
const wrong = [];
let count = 0;
function look(frame, name, width) {
    const inner = frame.contentWindow, page = frame.contentDocument;
    const check = (holds, text) => { ++count; if (!holds) wrong.push(`${name} ${width}: ${text}`); };
    const root = page.scrollingElement;
    check(inner.innerWidth === width, "the frame is " + inner.innerWidth);
    check(root.scrollWidth <= inner.innerWidth, "overflows: " + root.scrollWidth);
    const input = page.querySelector("[role=search] input");
    check(input.offsetWidth > 100, "no search to be seen");
    const search = text => {
        input.value = text;
        input.dispatchEvent(new inner.Event("input"));
        return [...page.querySelectorAll("[role=search] li a")];
    };
    const titleOf = name.includes("zh_CN") ? "管壁厚度" : "Tube wall thickness";
    for (const text of ["tube WALL thick", titleOf]) {
        const hits = search(text);
        check(hits.length === 1 && hits[0].textContent === titleOf
            && hits[0].getAttribute("href").endsWith("#parameter-tube-wall-thickness"),
            `search for ${text}: ` + hits.map(hit => hit.textContent));
    }
    check(root.scrollWidth <= inner.innerWidth, "overflows with results: " + root.scrollWidth);
    check(search("no such thing").length === 0
        && page.querySelector("[role=status]").textContent !== "", "says nothing for no results");
    check(search("").length === 0
        && page.querySelector("[role=status]").textContent === "", "results without a question");
    search("script");
    check(!page.querySelector("[role=search] script"), "a title became a script");
    const box = page.querySelector(".scroll");
    check(!box || box.scrollWidth > box.clientWidth || box.querySelector("table").offsetWidth
        <= box.clientWidth, "a table leaves its box");
    check(width > 640 || !box || box.scrollWidth <= box.clientWidth, "cards leave their box");
}
function open(name, width) {
    return new Promise(done => {
        const frame = document.createElement("iframe");
        frame.style.cssText = `border: 0; height: 800px; width: ${width}px`;
        frame.onload = () => { look(frame, name, width); frame.remove(); done(); };
        frame.src = "manual/" + name;
        document.body.append(frame);
    });
}
(async () => {
    for (const name of pages) {
        await open(name, 1280);
        await open(name, 360);
    }
    document.body.textContent = "checks: " + count + "; wrong: [" + wrong.join("; ") + "]";
})();
</script>)";
}

} // namespace

void TestKeltoDoc::fitsTheScreenAndIsSearched()
{
    const QString browser = QStandardPaths::findExecutable("chromium");
    if (browser.isEmpty())
        QSKIP("There is no Chromium.", "");
    makeManual("manual", workbenchTranslation());
    const QStringList pages = pagesIn("manual").keys();
    QVERIFY(writeFile("trial.html", browserTrial(pages)));
    // Frames of files may look into each other only with this switch, and the administrator has no
    // sandbox.
    const QString output
        = run(browser,
              { "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                "--no-first-run", "--allow-file-access-from-files", "--enable-logging=stderr",
                "--user-data-dir=" + QDir::current().filePath("profile"), "--window-size=1400,900",
                "--virtual-time-budget=60000", "--dump-dom",
                QUrl::fromLocalFile(QDir::current().filePath("trial.html")).toString() });
    QVERIFY2(!output.contains(":CONSOLE"), qPrintable(output));
    QVERIFY2(output.contains(QString("checks: %1; wrong: []").arg(pages.size() * 2 * 11)),
             qPrintable(output));
}

QTEST_GUILESS_MAIN(TestKeltoDoc)

#include "tst_kelto_doc.moc"
