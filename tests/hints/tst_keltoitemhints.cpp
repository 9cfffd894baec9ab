// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "models/plainhints.h"
#include "support/directorytest.h"
#include "support/hintitems.h"
#include "support/markingtranslator.h"
#include "support/moduleitems.h"
#include "support/parameters.h"

#include <Kelto/AUTH_SET>
#include <Kelto/KeltoItemHints>

#include <QTest>

#include <utility>

namespace {

using Values = QVector<QPair<QString, QVariant>>;

QStringList shownChoices(const QVector<KeltoItemHints::Choice> &choices)
{
    QStringList texts;
    for (const KeltoItemHints::Choice &choice : choices)
        texts.append(choice.value + "=" + choice.label);
    return texts;
}

QStringList shownChoices(const QStringList &choices)
{
    return choices;
}

QString shownValue(const QVariant &value)
{
    return QString(value.typeName()) + " " + value.toStringList().join(";");
}

bool countsBeside(const KeltoItemHints &hints, const QString &key, const Values &values)
{
    return hints.counts(key, &values);
}

bool countsBeside(const PlainHints &hints, const QString &key, const Values &values)
{
    return hints.counts(key, values);
}

/// Everything that @p hints answer.
template <typename Hints> QStringList answers(const Hints &hints, const Values &values)
{
    QStringList texts { "mode " + hints.mode(), "order " + hints.order().join(",") };
    texts += shown(hints.parameters()) + shown(hints.results());
    const QStringList keys = HintItemMaker::keys() + QStringList { "d" };
    for (const QString &key : keys) {
        const auto add = [&](const char *question, const QString &answer) {
            texts.append(QString("%1 of \"%2\": %3").arg(question, key, answer));
        };
        add("default", shownValue(hints.defaultValue(key)));
        add("limits", QString("%1 %2").arg(hints.minimum(key)).arg(hints.maximum(key)));
        add("choices", shownChoices(hints.choices(key)).join("|"));
        add("optional", QVariant(hints.isOptional(key)).toString());
        add("advanced", QVariant(hints.isAdvanced(key)).toString());
        add("counts", QVariant(countsBeside(hints, key, values)).toString());
        add("condition", hints.conditionKey(key) + "=" + hints.conditionValues(key).join("|"));
        add("label", hints.label(key));
        add("help", hints.help(key));
        add("files", hints.fileFilters(key).join(";;"));
        add("modes", hints.resultModes(key).join("|"));
    }
    return texts;
}

/// The first of the answers that differ.
QString difference(const QStringList &found, const QStringList &expected)
{
    for (int i = 0; i < expected.size(); ++i) {
        if (found.value(i) != expected.at(i))
            return found.value(i) + " instead of " + expected.at(i);
    }
    return {};
}

/// The parameter "L" is of both modes, "N" of "A" alone; "R" is a result.
AUTH_INF beam(const QVector<VDataItem> &extraKeys)
{
    const auto entry = [](const char *key, const char *multi) {
        return QStringList { "g", key, "float", multi, "mm", "m", "s", key, "g" };
    };
    AUTH_INF item;
    item.inner_mode_count = 2;
    item.inner_mode_nameList = QStringList { "A", "B" };
    item.inner_mode_nameList_tr = QStringList { "甲", "" };
    item.inner_mode_parameterList
        = { { entry("L", "false"), entry("N", "true") }, { entry("L", "false") } };
    item.output_results = { entry("R", "false"), entry("Q", "false") };
    item.extraKey = extraKeys;
    item.trObjectName = "Beam";
    return item;
}

} // namespace

Q_DECLARE_METATYPE(QVector<VDataItem>)

class TestKeltoItemHints : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void answersAsPlainScansDo()
    {
        int conditionCount = 0;
        QSet<int> kinds;
        for (unsigned seed = 0; seed < 300; ++seed) {
            HintItemMaker maker(seed);
            const AUTH_INF item = maker.item();
            const Values values = maker.values();
            const QStringList modes = HintItemMaker::modes() + QStringList { "乙", "C" };
            for (const QString &mode : modes) {
                int position = item.inner_mode_nameList.indexOf(mode);
                if (position < 0 && !mode.isEmpty())
                    position = item.inner_mode_nameList_tr.indexOf(mode);
                const QStringList expected = answers(PlainHints(item, position), values);
                QCOMPARE(difference(answers(KeltoItemHints(item, mode), values), expected), "");
                conditionCount += expected.filter(": false").size();
            }
            QCOMPARE(difference(answers(KeltoItemHints(item), values),
                                answers(PlainHints(item, -1), values)),
                     "");
            QCOMPARE(problemsOf(item), PlainHints::problems(item));
            const QVector<KeltoItemHints::Problem> problems = KeltoItemHints(item).problems();
            for (const KeltoItemHints::Problem &problem : problems)
                kinds.insert(problem.kind);
        }
        QVERIFY(conditionCount > 1000);
        QCOMPARE(kinds.size(), KeltoItemHints::Problem::DuplicateHint + 1);
    }

    /// The parameters are those that the registry lists for the mode, also where modes share names.
    void knowsTheModesOfARegistry()
    {
        for (unsigned seed = 0; seed < 300; ++seed) {
            const Flavour flavour { { "A", "B", "C" }, { "甲", "B", "丙" } };
            Dice dice(seed);
            QVector<AUTH_INF> items = ItemMaker(dice, flavour).items(4);
            for (AUTH_INF &item : items)
                describeParameters(&item);
            const AUTH_SET registry("App", "1", items);
            const QStringList names = flavour.allNames();
            for (const QString &group : names) {
                for (const QString &mode : names) {
                    const KeltoItemHints hints(&registry, group, mode);
                    QCOMPARE(shown(hints.parameters()),
                             shown(registry.defaultParameterList(group, mode)));
                }
                for (int position = -1; position < 12; ++position) {
                    const KeltoItemHints hints(&registry, group, position);
                    const auto entries
                        = registry.exclusive_group_parameter_settings_origin(group, position);
                    QCOMPARE(keysOf(hints.parameters()),
                             entries.isEmpty() ? QStringList() : keysOf(entries));
                    QCOMPARE(hints.label(keysOf(entries).value(0)),
                             entries.isEmpty() ? QString()
                                               : QString("label of " + entries.first().at(1)));
                }
            }
        }
    }

    void nothingIsKnownWithoutAnItem()
    {
        const AUTH_SET registry("App", "1", { beam({ { "Label.L", "Length" } }) });
        const Values values;
        for (const KeltoItemHints &hints :
             { KeltoItemHints(), KeltoItemHints(nullptr, "model", "A"),
               KeltoItemHints(nullptr, "model", 0), KeltoItemHints(&registry, "model", "A") }) {
            QCOMPARE(hints.mode(), "");
            QCOMPARE(hints.label("L"), "");
            QVERIFY(hints.counts("L", &values));
            QVERIFY(hints.counts("L", nullptr));
            QVERIFY(hints.parameters().isEmpty());
            QVERIFY(hints.results().isEmpty());
            QVERIFY(hints.problems().isEmpty());
        }
    }

    void readsValues_data()
    {
        QTest::addColumn<QVector<VDataItem>>("extraKeys");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("expected");

        const auto row
            = [](const char *name, const QVector<VDataItem> &extraKeys, const QVariant &expected,
                 const char *key = "L") { QTest::newRow(name) << extraKeys << key << expected; };
        row("a text", { { "Default.L", "5" } }, "5");
        row("a number, as from generated source text", { { "Default.L", 0.1 } }, "0.1");
        row("a flag", { { "Default.F", true } }, "true", "F");
        row("a list of one", { { "Default.L", QStringList { "5" } } }, "5");
        row("of the mode", { { "Default.L@A", "2" }, { "Default.L", "1" } }, "2");
        row("of another mode", { { "Default.L@B", "2" } }, QVariant());
        row("several values", { { "Default.N", " 1;2 ; 3.4" } }, QStringList({ "1", "2", "3.4" }),
            "N");
        row("no values", { { "Default.N", "" } }, QStringList(), "N");
        row("at its lower limit", { { "Default.L", "5" }, { "Min.L", "5" } }, "5");
        row("at its upper limit", { { "Default.L", "5" }, { "Max.L", 5 } }, "5");
        row("beyond one", { { "Default.L", "5" }, { "Max.L", "4.9" } }, QVariant());
        row("of the mode, beyond a limit of all",
            { { "Default.L", "1" }, { "Default.L@A", "5" }, { "Max.L", "4" } }, QVariant());
        row("senseless for the mode", { { "Min.L@A", "x" }, { "Min.L", 1 }, { "Default.L", 0 } },
            QVariant());
        row("empty and optional", { { "Default.L", "" }, { "Optional.L", "true" }, { "Min.L", 1 } },
            "");
        row("empty and not optional", { { "Default.L", "" }, { "Min.L", 1 } }, QVariant());
    }
    void readsValues()
    {
        QFETCH(QVector<VDataItem>, extraKeys);
        QFETCH(QString, key);
        AUTH_INF item = beam(extraKeys);
        item.inner_mode_parameterList[0].append({ "g", "F", "bool", "false" });
        const QVariant value = KeltoItemHints(item, "A").defaultValue(key);
        QFETCH(QVariant, expected);
        QCOMPARE(value, expected);
        QCOMPARE(value.userType(), expected.userType());
    }

    void modesHaveEitherName()
    {
        const AUTH_INF item = beam({ { "Label.L@A", "Span" }, { "Label.L@B", "Width" } });
        QCOMPARE(KeltoItemHints(item, "甲").label("L"), "Span");
        QCOMPARE(KeltoItemHints(item, "甲").mode(), "A");
        QCOMPARE(KeltoItemHints(item, "B").label("L"), "Width");
        QCOMPARE(KeltoItemHints(item, "").label("L"), "");
        QCOMPARE(KeltoItemHints(item, "").mode(), "");
    }

    void textsFollowTheLanguage()
    {
        const KeltoItemHints hints(
            beam({ { "Label.L", "Span" }, { "Help.L", "How far" }, { "Choices.L", "1=one|2" } }));
        QCOMPARE(hints.label("L"), "Span");
        MarkingTranslator translator("Beam");
        QCoreApplication::installTranslator(&translator);
        QCOMPARE(hints.label("L"), "[Span]");
        QCOMPARE(hints.help("L"), "[How far]");
        QCOMPARE(hints.help("N"), "");
        QCOMPARE(shownChoices(hints.choices("L")), QStringList({ "1=[one]", "2=[2]" }));
        QCOMPARE(hints.translated("abc"), "[abc]");
    }

    void survivesFiles()
    {
        const QVector<VDataItem> extraKeys { { "Choices.L", "1=one, or 1|2" },
                                             { "Default.L@A", "2" },
                                             { "Order", "N|L" },
                                             { "When.L", "N=a;b|c" } };
        beam(extraKeys).save_ini("item.ini");
        AUTH_INF item;
        item.load_ini("item.ini");
        const KeltoItemHints hints(item, "A");
        QCOMPARE(shownChoices(hints.choices("L")), QStringList({ "1=one, or 1", "2=2" }));
        QCOMPARE(hints.defaultValue("L"), "2");
        QCOMPARE(keysOf(hints.parameters()), QStringList({ "N", "L" }));
        QCOMPARE(hints.conditionValues("L"), QStringList({ "a;b", "c" }));
        QVERIFY(hints.problems().isEmpty());
    }

    void objectsAreIndependent()
    {
        AUTH_INF item = beam({ { "Label.L", "Span" } });
        KeltoItemHints hints(item);
        item.extraKey.clear();
        KeltoItemHints copy(hints);
        const KeltoItemHints moved(std::move(copy));
        QCOMPARE(moved.label("L"), "Span");
        QCOMPARE(copy.label("L"), "Span"); // NOLINT(bugprone-use-after-move)
        copy = KeltoItemHints(item);
        QCOMPARE(hints.label("L"), "Span");
        copy = std::move(hints);
        QCOMPARE(copy.label("L"), "Span");
        QCOMPARE(hints.label("L"), "Span"); // NOLINT(bugprone-use-after-move)
    }

    /// Neither the stack nor the time limit would stand a walk from each of them to the end.
    void conditionsMayFormALongChain()
    {
        constexpr int length = 30000;
        AUTH_INF item = beam({});
        Values values;
        for (int i = 0; i < length; ++i) {
            const QString key = QString::number(i);
            item.inner_mode_parameterList[0].append({ "g", key });
            item.extraKey.append(VDataItem("When." + key, QString("%1=1").arg(i + 1)));
            values.append({ "Attribute/" + key, "1" });
        }
        item.inner_mode_parameterList[0].append({ "g", QString::number(length) });
        QVERIFY(!KeltoItemHints(item, "A").counts("0", &values));
        values.append({ "Attribute/" + QString::number(length), "1" });
        const KeltoItemHints hints(item, "A");
        QVERIFY(hints.counts("0", &values));
        QVERIFY(hints.problems().isEmpty());
        item.extraKey.append(VDataItem("When." + QString::number(length), "0=1"));
        QCOMPARE(KeltoItemHints(item, "A").problems().size(), length + 1);
    }

private:
    /// As PlainHints lists them. Of equal extra keys the first has the problem, unless it is that
    /// they are not the first.
    static QStringList problemsOf(const AUTH_INF &item)
    {
        QStringList texts;
        const QVector<KeltoItemHints::Problem> problems = KeltoItemHints(item).problems();
        for (const KeltoItemHints::Problem &problem : problems) {
            const bool isDuplicate = problem.kind == KeltoItemHints::Problem::DuplicateHint;
            QStringList seen;
            for (int i = 0; i < item.extraKey.size(); ++i) {
                const QString key = item.extraKey.at(i).key;
                const QString text = QString("%1 %2 %3").arg(i).arg(problem.kind).arg(problem.part);
                if (key == problem.extraKey && seen.contains(key) == isDuplicate
                    && !texts.contains(text)) {
                    texts.append(text);
                    break;
                }
                seen.append(key);
            }
        }
        return texts;
    }

    static QStringList keysOf(const QVector<VParameter> &parameters)
    {
        QStringList keys;
        for (const VParameter &parameter : parameters)
            keys.append(parameter.name().first);
        return keys;
    }
    static QStringList keysOf(const QVector<QStringList> &entries)
    {
        QStringList keys;
        for (const QStringList &entry : entries)
            keys.append(entry.value(1));
        return keys;
    }
    /// Gives each mode one parameter with a label.
    static void describeParameters(AUTH_INF *item)
    {
        for (auto &entries : item->inner_mode_parameterList) {
            const QString key = entries.first().first();
            entries = { { "g", key, "float", "false", "", "", "", key, "g" } };
            item->extraKey.append(VDataItem("Label." + key, QString("label of " + key)));
        }
    }
};

QTEST_GUILESS_MAIN(TestKeltoItemHints)
#include "tst_keltoitemhints.moc"
