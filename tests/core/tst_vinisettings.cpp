// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A settings store in memory. Random changes, with every answer of the store and of the copies that
// were left behind compared to that of the plain rules of PlainSettings; a failure names the seed
// and all steps. The rules that hosts rely on stand as rows with their answers written out.

#include <Kelto/VIniSettings>

#include "models/plainsettings.h"
#include "support/directorytest.h"
#include "support/randomentries.h"
#include "support/testfiles.h"
#include "support/twins.h"

#include <QTest>

#include <functional>
#include <type_traits>
#include <utility>

namespace {

/// What is set and asked for in the lives of one row, and how many entries come at once.
struct Names
{
    QStringList keys;
    QStringList groups;
    int mostEntries = 6;
};

using StoreTwins = Twins<PlainSettings, VIniSettings>;

/// Asks both and compares the answers with their types; a change without an answer gives the list.
template <typename Question, typename... Arguments>
void ask(StoreTwins &twins, const char *operation, Question question, const Arguments &...arguments)
{
    const auto describedAnswer = [&question](auto &store, const auto &...asked) {
        if constexpr (std::is_void_v<decltype(question(store, asked...))>) {
            question(store, asked...);
            return described(store.data());
        } else {
            return described(question(store, asked...));
        }
    };
    twins.ask(operation, describedAnswer, arguments...);
}

void askEverything(StoreTwins &twins, const Names &names)
{
    ask(twins, OPERATION(data));
    ask(twins, OPERATION(allKeys));
    ask(twins, OPERATION(allGroups));
    ask(twins, OPERATION(styleSheetFormat));
    for (const QString &key : names.keys) {
        ask(twins, OPERATION(value), key);
        ask(twins, OPERATION(contains), key);
    }
    for (const QString &group : names.groups)
        ask(twins, OPERATION(allKeys), group);
}

const auto startAnew = [](auto &store, const Entries &data) {
    store = std::remove_reference_t<decltype(store)>(data);
};

const auto assignToItself = [](auto &store) {
    const auto &itself = store;
    store = itself;
    // What a moved-from store holds is open, but it must still be a store.
    auto moved = std::move(store);
    store = moved;
};

const auto setIn = [](auto &store, Entries target, const QString &key, const QVariant &value) {
    store.setValue(key, value, &target);
    return target;
};

/// The source must stay as it is, although the target may share its data.
const auto setAllIn = [](auto &store, Entries target, const Entries &source) {
    store.setValue(&target, &source);
    store.setValue(&target, &target);
    return target + source;
};

const auto lookIn = [](auto &store, const Entries &entries, const QString &key) {
    return store.allKeys(&entries) << described(store.value(key, &entries));
};

/// The random life of one store and of the copies that it leaves behind.
class Life : private TwinLife<PlainSettings, VIniSettings>
{
public:
    Life(unsigned seed, const Names &names)
        : TwinLife(seed)
        , m_names(names)
    {
    }

    /// What the store answers differently from the plain rules; empty when it does not.
    QString difference()
    {
        change("start anew", startAnew, entries(2 * m_names.keys.size()));
        for (int step = 0; step < 60 && !m_twins.differ(); ++step) {
            takeStep();
            ask(m_twins, OPERATION(allKeys));
            if (m_dice.chance(30))
                askEverything(m_twins, m_names);
        }
        return differenceAtTheEnd([this](auto &twins) { askEverything(twins, m_names); });
    }

private:
    void takeStep()
    {
        const QString key = m_dice.oneOf(m_names.keys);
        const QStringList keys = m_dice.someOf(m_names.keys, m_dice.between(0, 4));
        const Entries some = entries(m_names.mostEntries);
        const Entries others = m_dice.chance(20) ? some : entries(3);
        switch (m_dice.between(0, 18)) {
        case 0:
            return change(OPERATION(remove), key);
        case 1:
            return change(OPERATION(remove), keys);
        case 2:
            return change(OPERATION(removeGroup), m_dice.oneOf(m_names.groups));
        case 3:
            return change("setValue in", setIn, others, key, value());
        case 4:
            return change("setValue of all in", setAllIn, others, some);
        case 5:
            return change("look in", lookIn, some, key);
        case 6:
            return change(OPERATION(contains), keys);
        case 7:
        case 8:
            return change(OPERATION(setValue), some, m_dice.chance(30));
        case 9:
            return change("start anew", startAnew, some);
        case 10:
            return change("assign to itself", assignToItself);
        case 11:
            return copy();
        case 12:
            return m_dice.chance(50) ? goOnWithCopy() : goBackToCopy();
        default:
            change(OPERATION(setValue), key, value());
        }
    }

    /// Does the same with both, which have to answer the same.
    template <typename Step, typename... Arguments>
    void change(const char *operation, Step step, const Arguments &...arguments)
    {
        m_twins.change(printed(operation, arguments...),
                       [](const auto &) { /* Asking is what changes them. */ });
        ask(m_twins, operation, step, arguments...);
    }

    Entries entries(int most)
    {
        return someEntries(&m_dice, m_names.keys, m_dice.between(0, most));
    }

    QVariant value()
    {
        const int number = m_dice.between(0, 999);
        const QString text = QString::number(number);
        const QVariantList values { number, number / 8.0,      number % 2 == 0,
                                    text,   QStringList(text), {} };
        return values.at(m_dice.between(0, 5));
    }

    Names m_names;
};

QStringList manyKeys()
{
    QStringList keys;
    for (int i = 0; i < 60; ++i)
        keys.append(labelled(i % 3 == 0 ? "top" : i % 3 == 1 ? "g/" : "h/", i));
    return keys;
}

/// The list with its values as text, and the keys where they differ from those of the list.
QStringList content(const VIniSettings &store)
{
    const Entries data = store.data();
    QStringList lines;
    for (const auto &entry : data)
        lines.append(entry.first + '=' + entry.second.toString());
    if (store.allKeys() != store.allKeys(&data))
        lines << "keys" << store.allKeys();
    return lines;
}

using Answer = std::function<QStringList(VIniSettings &)>;

} // namespace

Q_DECLARE_METATYPE(Names)
Q_DECLARE_METATYPE(Answer)

class TestVIniSettings : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithThePlainRules_data()
    {
        QTest::addColumn<Names>("names");

        QTest::newRow("few keys") << Names { { "a", "a/b", "normal/x", "normal" },
                                             { "", "a", "normal", "nowhere" } };
        QTest::newRow("keys that hardly differ")
            << Names { { "", "/", "a", "A", "a/", "a/b", "A/b", "a//b", "ab/c", "ab", "/a", "b/a" },
                       { "", "a", "A", "a/", "ab", "/", "a/b", "b" } };
        QTest::newRow("groups in groups")
            << Names { { "a/b/c", "a/b/d", "a/b", "a/bc/d", "b/c", "a", "b" },
                       { "a", "a/b", "b", "a/b/c", "c" } };
        QTest::newRow("keys of style sheets")
            << Names { { "ID/QtClassName", "ID/ClassName", "ID", "normal/a", "normal/b", "hover/a",
                         "hover", "/slash", "", "top", "hover/a/b", "Normal/x", "悬停/颜色" },
                       { "ID", "normal", "hover", "Normal", "悬停" } };
        QTest::newRow("many keys") << Names { manyKeys(), { "", "g", "h", "top0", "nowhere" }, 40 };
    }

    void agreesWithThePlainRules()
    {
        QFETCH(Names, names);
        for (unsigned seed = 1; seed <= 12; ++seed) {
            const QString difference = Life(seed, names).difference();
            QVERIFY2(difference.isEmpty(), qPrintable(printed("seed", seed) + difference));
        }
        QCOMPARE(filesIn("."), QStringList());
    }

    void keepsItsRules_data()
    {
        QTest::addColumn<Entries>("data");
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const Entries &data, const Answer &answer,
                            const QStringList &expected) {
            QTest::newRow(name) << data << answer << expected;
        };
        const Entries two { { "a", 1 }, { "b", 2 } };
        const Answer setting = [](auto &s) {
            s.setValue("a", 3);
            s.setValue("B", 4);
            return content(s);
        };
        row("a known key is set in place", two, setting, { "a=3", "b=2", "B=4" });
        const Answer merging = [](auto &s) {
            s.setValue({ { "c", 3 }, { "a", 4 }, { "c", 5 } }, false);
            return content(s);
        };
        row("merging sets in place and appends", two, merging, { "a=4", "b=2", "c=5" });
        const Answer replacing = [](auto &s) {
            s.setValue({ { "c", 3 }, { "c", 4 } }, true);
            return content(s);
        };
        row("replacing forgets what was there", two, replacing, { "c=3", "c=4" });

        row("the empty group has the keys without a slash",
            { { "g/a", 1 }, { "b", 2 }, { "/c", 3 }, { "d/", 4 } },
            [](auto &s) { return s.allKeys(QString()); }, { "b" });
        row("a group has the key of its name and none of a longer one",
            { { "grpx/y", 1 }, { "grp", 2 }, { "x/grp", 3 }, { "grp/x", 4 } },
            [](auto &s) { return s.allKeys("grp"); }, { "grp", "grp/x" });
        row("groups in order of first appearance", { { "b/1", 1 }, { "a/1", 2 }, { "b/2", 3 } },
            [](auto &s) { return s.allGroups(); }, { "b", "a" });

        const auto removed = [](bool done, const VIniSettings &s) {
            return QStringList(done ? "yes" : "no") + content(s);
        };
        row("removing stops at the first unknown key", two,
            [=](auto &s) {
                return removed(s.remove({ "a", "c", "b" }), s);
            },
            { "no", "b=2" });
        row("a group without keys cannot be removed", two,
            [=](auto &s) { return removed(s.removeGroup("g"), s); }, { "no", "a=1", "b=2" });

        const Answer settingElsewhere = [](auto &s) {
            Entries target;
            s.setValue("x", 3, &target);
            return content(s);
        };
        row("a key that is new in another list is also one of the store", two, settingElsewhere,
            { "a=1", "b=2", "keys", "a", "b", "x" });
    }

    void keepsItsRules()
    {
        QFETCH(Entries, data);
        QFETCH(Answer, answer);
        VIniSettings store(data);
        QTEST(answer(store), "expected");
    }

    void survivesNullPointers()
    {
        VIniSettings store(Entries { { "a", 1 } });
        Entries *const nothing = nullptr;
        Entries target { { "x", 1 } };
        store.setValue("b", 2, nothing);
        store.setValue(nothing, &target);
        store.setValue(&target, nothing);
        QCOMPARE(store.value("a", nothing).isValid(), false);
        QCOMPARE(store.allKeys(nothing), QStringList());
        QCOMPARE(content(store), QStringList("a=1"));
        QCOMPARE(described(target), described(Entries { { "x", 1 } }));
    }

    void formatsStyleSheets_data()
    {
        QTest::addColumn<Entries>("data");
        QTest::addColumn<QString>("expected");

        const QPair<QString, QVariant> widget("ID/QtClassName", "QLabel");
        QTest::newRow("plain state first, others in order of appearance")
            << Entries { { "z/2", 1 }, { "normal/b", 2 }, { "b/1", "x" }, widget, { "z/1", 4 } }
            << "QLabel{normal/b=2;};QLabel:z{z/2=1;z/1=4;};QLabel:b{b/1=x;};";
        QTest::newRow("no class") << Entries { { "normal/a", 1 }, { "hover/b", 2 } }
                                  << "{normal/a=1;};:hover{hover/b=2;};";
        QTest::newRow("no plain state")
            << Entries { widget, { "hover/b", 2 } } << "QLabel:hover{hover/b=2;};";
        QTest::newRow("the class only") << Entries { widget, { "ID/ClassName", "Mine" } } << "";
        QTest::newRow("top-level keys only where they are named like a group")
            << Entries { widget, { "top", 1 }, { "hover/a", 2 }, { "hover", 3 } }
            << "QLabel:hover{hover/a=2;hover=3;};";
        QTest::newRow("a group without a name has the top-level keys")
            << Entries { { "top", 1 }, { "/a", 2 }, { "", 3 } } << ":{top=1;=3;};";
        QTest::newRow("nothing is escaped")
            << Entries { { "ID/QtClassName", "A B" }, { "normal/a b", "x;y}={ \"z\"" } }
            << "A B{normal/a b=x;y}={ \"z\";};";
    }

    void formatsStyleSheets()
    {
        QFETCH(Entries, data);
        QTEST(VIniSettings(data).styleSheetFormat(), "expected");
    }

    void formatsWhatItHoldsAndNotItsFile()
    {
        QVERIFY(writeFile("style.ini", "[normal]\ncolor=red\n"));
        const VIniSettings store(QString("style.ini"));
        QVERIFY(writeFile("style.ini", "[normal]\ncolor=blue\n"));
        QCOMPARE(store.styleSheetFormat(), QString("{normal/color=red;};"));
    }
};

QTEST_GUILESS_MAIN(TestVIniSettings)
#include "tst_vinisettings.moc"
