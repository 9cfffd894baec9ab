// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// "kelto check" beside the check of the library, on random items and values.

#include "support/directorytest.h"
#include "support/hintitems.h"
#include "support/programs.h"
#include "support/testfiles.h"

#include <Kelto/AUTH_SET>
#include <Kelto/KeltoItemFinding>
#include <Kelto/KeltoItemParameterVerify>
#include <Kelto/KeltoParameterEntry>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <algorithm>

class TestKeltoCheck : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithTheLibrary();
};

namespace {

QStringList skipArguments(const QStringList &groups)
{
    QStringList arguments;
    for (const QString &group : groups)
        arguments += { "--skip", group };
    return arguments;
}

QStringList textsIn(const QJsonArray &findings)
{
    QStringList texts;
    for (const QJsonValue &finding : findings)
        texts.append(QString::number(finding["position"].toInt(-1)) + ' '
                     + finding["text"].toString());
    return texts;
}

QStringList textsOf(const QVector<KeltoItemFinding> &findings)
{
    QStringList texts;
    for (const KeltoItemFinding &finding : findings)
        texts.append(QString::number(finding.position) + ' ' + finding.text());
    return texts;
}

/// Those of @p groups in which no parameter of the mode is.
int unknownGroups(const QStringList &groups, const AUTH_INF &item, const QString &mode)
{
    QStringList known;
    const int position = item.inner_mode_nameList.indexOf(mode);
    const QVector<QStringList> entries = item.inner_mode_parameterList.value(position);
    for (const QStringList &entry : entries)
        known.append(entry.value(KeltoParameterEntry::Group));
    return position < 0
        ? 0
        : int(std::count_if(groups.cbegin(), groups.cend(),
                            [&](const QString &each) { return !known.contains(each); }));
}

} // namespace

void TestKeltoCheck::agreesWithTheLibrary()
{
    HintItemMaker maker(20);
    int complete = 0;
    int clean = 0;
    constexpr int rounds = 60;
    for (int round = 0; round < rounds; ++round) {
        const QString file = QString("item%1.ini").arg(round);
        const QString valueFile = QString("values%1.ini").arg(round);
        const AUTH_INF made = maker.item();
        made.save_ini(file);
        const auto written = maker.values();
        // A save without values makes no file.
        QVERIFY(writeFile(valueFile, {}));
        AUTH_SET().save(valueFile, &written);
        const QString mode = maker.dice().oneOf(made.inner_mode_nameList + QStringList("A"));
        const QStringList skipped
            = maker.dice().someOf({ "Load", "Shape", "", "nowhere" }, maker.dice().between(0, 4));

        AUTH_INF item;
        item.load_ini(file);
        QVector<QPair<QString, QVariant>> values;
        AUTH_SET().load(valueFile, &values);
        const bool isValid = KeltoItemParameterVerify::isValid(&item, &values, mode, skipped);
        const auto findings = KeltoItemParameterVerify::explain(&item, &values, mode, skipped);

        QStringList arguments { "check", "--item", file, "--mode", mode, valueFile };
        arguments += skipArguments(skipped);
        const Outcome text = outcomeOf(KELTO_COMMAND, arguments);
        const QByteArray verdict = ": " + QByteArray(isValid ? "complete" : "not complete");
        QVERIFY2(text.output.contains(verdict + " for the mode"), text.output.constData());
        QCOMPARE(text.exitCode, findings.isEmpty() ? 0 : 1);
        QCOMPARE(text.output.count('\n'), findings.size() + 1);
        QCOMPARE(text.errors.count('\n'), unknownGroups(skipped, item, mode));

        const Outcome json = outcomeOf(KELTO_COMMAND, arguments + QStringList("--json"));
        const QJsonObject result = QJsonDocument::fromJson(json.output).object();
        QCOMPARE(result["complete"], QJsonValue(isValid));
        QCOMPARE(textsIn(result["findings"].toArray()), textsOf(findings));
        QCOMPARE(json.exitCode, text.exitCode);
        complete += isValid ? 1 : 0;
        clean += findings.isEmpty() ? 1 : 0;
    }
    // Otherwise the rows would not say much.
    QVERIFY(complete > clean);
    QVERIFY(clean > 0);
    QVERIFY(complete < rounds);
}

QTEST_GUILESS_MAIN(TestKeltoCheck)

#include "tst_kelto_check.moc"
