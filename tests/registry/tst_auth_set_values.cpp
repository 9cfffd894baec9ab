// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The stored values in memory: looking up, storing, taking over those of a calculation, and the
// pointers to them. Random changes, through operations and through pointers, are compared to what
// plain vectors hold then; a failure names the seed and all steps.

#include "models/plainvalues.h"
#include "support/directorytest.h"
#include "support/moduleitems.h"
#include "support/randomitems.h"
#include "support/registrycopies.h"
#include "support/storedvalues.h"
#include "support/testfiles.h"
#include "support/twins.h"

#include <Kelto/AUTH_SET>

#include <QtTest>

#include <functional>
#include <iterator>

namespace {

/// Takes a pointer from a registry and gives a function that writes through it.
using Pointing = std::function<std::function<void()>(AUTH_SET &)>;

std::function<void()> writing(QVariant *value)
{
    return [value] { *value = "written"; };
}

/// What the values of one row are called, and how long their lists get.
struct Names
{
    QStringList keys;
    QStringList groups;
    int longestList = 6;
};

/// Calls @p action in a directory of its own below the current one.
template <typename Action> void within(const QString &directory, Action action)
{
    const QString before = QDir::currentPath();
    QDir().mkpath(directory);
    QDir::setCurrent(directory);
    action();
    QDir::setCurrent(before);
}

const char *directoryOf(const AUTH_SET &)
{
    return "library";
}

const char *directoryOf(const PlainValues &)
{
    return "plain";
}

using ValueTwins = Twins<PlainValues>;

/// Asks both for values and compares these with their types.
template <typename Question, typename... Arguments>
void ask(ValueTwins &twins, const char *operation, Question question, const Arguments &...arguments)
{
    const auto describedAnswer = [&question](const auto &values, const auto &...asked) {
        return described(question(values, asked...));
    };
    twins.ask(operation, describedAnswer, arguments...);
}

void askEverything(ValueTwins &twins, const Names &names)
{
    for (const QString &key : names.keys) {
        ask(twins, OPERATION(value_set), key);
        ask(twins, OPERATION(value_cal), key);
        ask(twins, OPERATION(value_temp), key);
    }
    for (const QString &group : names.groups) {
        ask(twins, OPERATION(value_group), group);
        for (const QString &key : names.keys)
            ask(twins, OPERATION(value_group_at), group, key);
    }
}

/// The random life of one registry's values and of the copies that it leaves behind.
class Life : private TwinLife<PlainValues>
{
public:
    Life(unsigned seed, const Names &names)
        : TwinLife(seed)
        , m_names(names)
    {
    }

    /// What AUTH_SET answers differently from plain vectors; empty when it does not.
    QString difference()
    {
        for (int step = 0; step < 60 && !m_twins.differ(); ++step) {
            takeStep();
            if (m_dice.chance(30))
                askEverything(m_twins, m_names);
        }
        return differenceAtTheEnd([this](auto &twins) { askEverything(twins, m_names); });
    }

private:
    void takeStep()
    {
        using Step = void (Life::*)();
        static const Step steps[] = {
            &Life::setDefaults, &Life::setDefaults,       &Life::setSameAgain, &Life::takeOver,
            &Life::takeOver,    &Life::setTemporary,      &Life::setTemporary, &Life::setTemporary,
            &Life::deleteOne,   &Life::writeValue,        &Life::writeValue,   &Life::writeValue,
            &Life::writeValue,  &Life::writeValue,        &Life::writeGroup,   &Life::loadIntoGroup,
            &Life::copy,        &Life::writeAfterCopying, &Life::goOnWithCopy, &Life::goBackToCopy
        };
        // Files take most of the time.
        if (m_dice.chance(4))
            setValue();
        else if (m_dice.chance(1))
            startAnew();
        else
            (this->*steps[m_dice.between(0, int(std::size(steps)) - 1)])();
    }

    /// Does the same to both, each in its directory.
    template <typename Change> void change(const QString &step, Change toChange)
    {
        m_twins.change(step, [&](auto &values) {
            within(directoryOf(values), [&] { toChange(values); });
        });
    }

    QString key() { return m_dice.oneOf(m_names.keys); }
    QString group() { return m_dice.oneOf(m_names.groups); }
    Entries entries()
    {
        Entries made;
        for (int i = m_dice.between(0, m_names.longestList); i > 0; --i)
            made.append({ key(), ++m_lastValue });
        return made;
    }

    void setValue()
    {
        const QString name = key();
        const int value = ++m_lastValue;
        change(printed("setValueInSet", name, value),
               [&](auto &values) { values.setValueInSet(name, value); });
    }

    void startAnew()
    {
        change(QStringLiteral("start anew"),
               [](auto &values) { values = std::decay_t<decltype(values)>(); });
    }

    void setDefaults()
    {
        const QString name = group();
        m_held = entries();
        change(printed("setDefaultSettings", name, m_held),
               [&](auto &values) { values.setDefaultSettings(name, m_held); });
    }

    /// The list of an earlier step, which may be another group's.
    void setSameAgain()
    {
        const QString name = group();
        change(printed("setDefaultSettings again", name, m_held),
               [&](auto &values) { values.setDefaultSettings(name, m_held); });
    }

    void takeOver()
    {
        const Entries data = entries();
        change(printed("getCalculationLData", data),
               [&](auto &values) { values.getCalculationLData(data); });
    }

    void setTemporary()
    {
        const QString name = key();
        const int value = ++m_lastValue;
        change(printed("set_temp", name, value),
               [&](auto &values) { values.set_temp(name, value); });
    }

    void deleteOne()
    {
        const QString name = key();
        change(printed("delete_temp", name), [&](auto &values) { values.delete_temp(name); });
    }

    void writeValue()
    {
        const QString groupName = group();
        const QString name = key();
        const int store = m_dice.between(0, 3);
        const int value = ++m_lastValue;
        change(printed("write to a value", store, groupName, name), [&](auto &values) {
            QVariant *place = store == 0 ? values.value_set_p(name)
                : store == 1             ? values.value_cal_p(name)
                                         : values.value_group_at_p(groupName, name);
            // AUTH_SET also has a place where plain vectors have none.
            if (place)
                *place = value;
        });
    }

    /// Changes a list of the registry, its keys too.
    void writeGroup()
    {
        const QString groupName = group();
        const QString name = key();
        const int kind = m_dice.between(0, 3);
        const int value = ++m_lastValue;
        change(printed("write to value_group_p", groupName, name, kind), [&](auto &values) {
            Entries *list = values.value_group_p(groupName);
            if (!list)
                return;
            if (kind == 0)
                list->clear();
            else if (kind == 1 && !list->isEmpty())
                (*list)[value % list->size()].first = name;
            else
                list->append({ name, value });
        });
    }

    /// Writes through pointers that were there before a copy was made.
    void writeAfterCopying()
    {
        const QString groupName = group();
        const QString name = key();
        QVariant *const library[]
            = { m_twins.library().value_set_p(name), m_twins.library().value_cal_p(name),
                m_twins.library().value_group_at_p(groupName, name) };
        QVariant *const plain[]
            = { m_twins.plain().value_set_p(name), m_twins.plain().value_cal_p(name),
                m_twins.plain().value_group_at_p(groupName, name) };
        copy();
        change(printed("write to earlier pointers", groupName, name),
               [](const auto &) { /* They are written to below. */ });
        for (std::size_t i = 0; i < std::size(library); ++i) {
            const int value = ++m_lastValue;
            *library[i] = value;
            if (plain[i])
                *plain[i] = value;
        }
    }

    void loadIntoGroup()
    {
        const QString name = group();
        change(printed("save and load", name), [&](auto &values) {
            const Entries saved { { m_names.keys.first(), "saved" } };
            if (!QFile::exists("values.ini"))
                values.save("values.ini", &saved);
            if (Entries *list = values.value_group_p(name))
                values.load("values.ini", list);
        });
    }

    Names m_names;
    Entries m_held;
    int m_lastValue = 0;
};

} // namespace

Q_DECLARE_METATYPE(Names)
Q_DECLARE_METATYPE(Pointing)

class TestAuthSetValues : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void keepsValuesAsPlainVectorsDo_data()
    {
        QTest::addColumn<Names>("names");
        QStringList manyKeys { "Attribute", "Attribute/" };
        for (int i = 0; i < 25; ++i) {
            manyKeys.append("Attribute/" + QString::number(i));
            manyKeys.append("Unit/" + QString::number(i));
        }
        QTest::newRow("few keys") << Names { { "Attribute/a", "Unit/a", "Attribute/b", "x" },
                                             { "g", "h", "" } };
        QTest::newRow("keys that hardly differ")
            << Names { { "Attribute/a", "Attribute/A", "attribute/a", "Attribute/b/a", "a" },
                       { "g", "G", "g/a" } };
        QTest::newRow("long lists") << Names { manyKeys, { "g", "h" }, 60 };
        QTest::newRow("one group") << Names { { "Attribute/a", "Attribute/b", "c" }, { "g" } };
    }
    void keepsValuesAsPlainVectorsDo()
    {
        QFETCH(Names, names);
        for (unsigned seed = 1; seed <= 12; ++seed) {
            const TemporaryCurrentDirectory directory;
            QVERIFY(directory.isUsable());
            const QString difference = Life(seed, names).difference();
            QVERIFY2(difference.isEmpty(), qPrintable(printed("seed", seed) + difference));
            QCOMPARE(fileContent("library/Config/_config.ini"),
                     fileContent("plain/Config/_config.ini"));
        }
    }

    void keepsTypes()
    {
        const AUTH_SET set = filled();
        QCOMPARE(described(set.value_set("top")), described(QVariant(3.5)));
        QCOMPARE(described(set.value_set("A/X")), described(QVariant()));
        QCOMPARE(described(set.value_cal("Attribute/E")), described(QVariant(210000)));
        QCOMPARE(described(set.value_cal("Unit/E")), described(QVariant("MPa")));
        QCOMPARE(described(set.value_cal("Unit/L")), described(QVariant()));
        QCOMPARE(described(set.value_group("g")),
                 described(Entries { { "k", 1 }, { "l", "two" }, { "k", 3 } }));
        QCOMPARE(described(set.value_group_at("g", "l")), described(QVariant("two")));
        QCOMPARE(described(set.value_temp("u")), described(QVariant("two")));
    }

    void replacesDefaultSettings()
    {
        AUTH_SET set;
        Entries list { { "k", 1 } };
        set.setDefaultSettings("g", list);
        set.setDefaultSettings("g", list);
        QVERIFY(set.value_group("g").isSharedWith(list));
        // A list with equal entries is another one.
        const Entries equal { { "k", 1 } };
        set.setDefaultSettings("g", equal);
        QVERIFY(set.value_group("g").isSharedWith(equal));
        list[0].second = 2;
        QCOMPARE(set.value_group_at("g", "k"), QVariant(1));
        // The first group stays the first, also when it is empty.
        set.setDefaultSettings("h", list);
        set.setDefaultSettings("g", {});
        QCOMPARE(set.value_group_p("nowhere"), set.value_group_p("g"));
        QCOMPARE(set.value_group("nowhere"), Entries());
    }

    void takesOverACalculation_data()
    {
        QTest::addColumn<Entries>("data");
        QTest::addColumn<Entries>("expected");
        const auto row = [](const char *name, const Entries &data, const Entries &expected) {
            QTest::newRow(name) << data << expected;
        };
        const QVariant none;
        row("a value and its unit", { { "Unit/F", "MPa" }, { "Attribute/F", 1 } },
            { { "Attribute/F", 1 }, { "Unit/F", "MPa" }, { "Attribute/E", 210000 } });
        row("a missing unit replaces the old one", { { "Attribute/E", true } },
            { { "Attribute/E", true }, { "Unit/E", none } });
        row("units only change nothing", { { "Unit/E", "kPa" } }, { { "Unit/E", "MPa" } });
        row("a key without a group changes nothing", { { "Attribute", 1 } },
            { { "Attribute/Attribute", none } });
        row("only the last part of a longer key",
            { { "Attribute/a/b", 1 }, { "Attribute/b", 2 }, { "Unit/b", "mm" } },
            { { "Attribute/b", 2 }, { "Unit/b", "mm" }, { "Attribute/a/b", none } });
        row("the group's name inside of a key", { { "x/Attribute/E", 1 } },
            { { "Attribute/E", 210000 } });
    }
    void takesOverACalculation()
    {
        QFETCH(Entries, data);
        QFETCH(Entries, expected);
        AUTH_SET set = filled();
        set.getCalculationLData(data);
        Entries found;
        for (const auto &entry : qAsConst(expected))
            found.append({ entry.first, set.value_cal(entry.first) });
        QCOMPARE(described(found), described(expected));
        QCOMPARE(set.value_cal_p("nowhere"), set.value_cal_p("Attribute/E"));
    }

    void storesNothingWithoutAttributes()
    {
        AUTH_SET set;
        set.getCalculationLData({ { "Unit/E", "kPa" }, { "Attribute", 1 } });
        *set.value_cal_p("Attribute/Attribute") = 1;
        QCOMPARE(set.value_cal("Attribute/Attribute"), QVariant());
    }

    void deletesTemporaryValues()
    {
        AUTH_SET set;
        set.delete_temp("t");
        set.set_temp("t", 1);
        set.set_temp("u", 2);
        set.set_temp("t", 3);
        set.delete_temp("T");
        QCOMPARE(set.value_temp("t"), QVariant(3));
        set.delete_temp("t");
        QCOMPARE(set.value_temp("t"), QVariant());
        QCOMPARE(set.value_temp("u"), QVariant(2));
    }

    void keepsStoresApart()
    {
        AUTH_SET set;
        const QString key = "Attribute/E";
        set.setValueInSet(key, 1);
        set.getCalculationLData({ { key, 2 } });
        set.setDefaultSettings("Attribute", { { key, 3 } });
        set.set_temp(key, 4);
        QVariant *value = set.value_set_p(key);
        set.acquire({ exclusiveModule("P", "Attribute", { key }) });
        set.clear();
        QCOMPARE(set.value_temp(key), QVariant(4));
        QCOMPARE(set.value_cal(key), QVariant(2));
        QCOMPARE(set.value_group_at("Attribute", key), QVariant(3));
        *value = 5;
        QCOMPARE(set.value_set(key), QVariant(5));
    }

    void pointsToTheFirstWhereAKeyIsMissing()
    {
        AUTH_SET set = filled();
        const QStringList before = state(set);
        for (const char *key : { "nowhere", "TOP", "" }) {
            QCOMPARE(set.value_set_p(key), set.value_set_p("a/x"));
            QCOMPARE(set.value_cal_p(key), set.value_cal_p("Attribute/E"));
            QCOMPARE(set.value_group_p(key), set.value_group_p("g"));
            QCOMPARE(set.value_group_at_p("h", key), set.value_group_at_p("h", "m"));
            QCOMPARE(set.value_group_at_p(key, "l"), set.value_group_at_p("g", "l"));
            QCOMPARE(set.value_group_at_p(key, "m"), set.value_group_at_p("g", "k"));
        }
        QCOMPARE(state(set), before);
        *set.value_set_p("nowhere") = "written";
        QCOMPARE(set.value_set("a/x"), QVariant("written"));
        QCOMPARE(set.value_set("nowhere"), QVariant());
    }

    void pointsToAPlaceOfItsOwnWhereThereIsNothing()
    {
        AUTH_SET set;
        const auto pointsNowhere = [&set](QVariant *value) {
            // What was written there before is of no consequence.
            const bool isEmpty = value && !value->isValid();
            if (value)
                *value = "written";
            return isEmpty && !set.value_set("x").isValid() && !set.value_cal("x").isValid()
                && !set.value_group_at("g", "x").isValid()
                && set.value_group_at("h", "x") != QVariant("written");
        };
        for (int i = 0; i < 2; ++i) {
            QVERIFY(pointsNowhere(set.value_set_p("x")));
            QVERIFY(pointsNowhere(set.value_cal_p("x")));
            QVERIFY(pointsNowhere(set.value_group_at_p("g", "x")));
            Entries *list = set.value_group_p("g");
            QVERIFY(list);
            QCOMPARE(*list, Entries());
            list->append({ "x", 1 });
            QCOMPARE(set.value_group("g"), Entries());
        }
        set.setDefaultSettings("g", {});
        set.setDefaultSettings("h", { { "x", 1 } });
        QVERIFY(pointsNowhere(set.value_group_at_p("g", "x")));
        QVERIFY(pointsNowhere(set.value_group_at_p("nowhere", "x")));
    }

    void findsWhatWasWrittenThroughAPointer()
    {
        AUTH_SET set;
        Entries values;
        for (int i = 0; i < 100; ++i)
            values.append({ QString::number(i), i });
        set.setDefaultSettings("g", values);
        // So often that a look-up would have become quicker than a walk along the list.
        for (int i = 0; i < 10000; ++i)
            QCOMPARE(set.value_group_at("g", QString::number(i % 100)), QVariant(i % 100));
        Entries *list = set.value_group_p("g");
        for (int i = 0; i < 10000; ++i) {
            (*list)[i % 100].first = "k" + QString::number(i);
            QCOMPARE(set.value_group_at("g", "k" + QString::number(i)), QVariant(i % 100));
            QCOMPARE(set.value_group_at("g", QString::number(i % 100)), QVariant());
        }
        set.setDefaultSettings("g", values);
        QCOMPARE(set.value_group_at("g", "99"), QVariant(99));
    }

    void copiesDoNotSeeLaterChanges_data()
    {
        QTest::addColumn<Change>("change");
        const auto row
            = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
        row("setValueInSet", [](AUTH_SET &set) { set.setValueInSet("a/x", 2); });
        row("getCalculationLData", [](AUTH_SET &set) {
            set.getCalculationLData({ { "Attribute/E", 1 } });
        });
        row("setDefaultSettings", [](AUTH_SET &set) {
            set.setDefaultSettings("new", { { "k", 2 } });
        });
        row("delete_temp", [](AUTH_SET &set) { set.delete_temp("t"); });
        row("load", [](AUTH_SET &set) {
            const Entries saved { { "k", "loaded" } };
            set.save("values.ini", &saved);
            set.load("values.ini", set.value_group_p("g"));
        });
    }
    void copiesDoNotSeeLaterChanges()
    {
        QFETCH(Change, change);
        AUTH_SET assigned;
        assigned.setDefaultSettings("new", { { "n", 1 } });
        changeOneAfterTheOther(filled(), assigned, state, change);
    }

    void copiesDoNotSeeWritesThroughPointers_data()
    {
        QTest::addColumn<Pointing>("pointing");
        const auto row
            = [](const char *name, const Pointing &pointing) { QTest::newRow(name) << pointing; };
        row("set value", [](AUTH_SET &set) { return writing(set.value_set_p("a/y")); });
        row("calculation value", [](AUTH_SET &set) { return writing(set.value_cal_p("nowhere")); });
        row("value of a group",
            [](AUTH_SET &set) { return writing(set.value_group_at_p("g", "l")); });
        row("key in a list", [](AUTH_SET &set) {
            QString *key = &(*set.value_group_p("g"))[1].first;
            return [key] { *key = "written"; };
        });
        row("a list as a whole", [](AUTH_SET &set) {
            Entries *list = set.value_group_p("h");
            return [list] { list->append({ "written", 1 }); };
        });
        row("a value of a list that the host still has", [](AUTH_SET &set) {
            static Entries held;
            held = { { "k", 1 } };
            set.setDefaultSettings("h", held);
            return writing(set.value_group_at_p("h", "k"));
        });
        row("a value of a list that the host got a copy of", [](AUTH_SET &set) {
            static Entries held;
            held = set.value_group("h");
            return writing(set.value_group_at_p("h", "m"));
        });
    }
    void copiesDoNotSeeWritesThroughPointers()
    {
        QFETCH(Pointing, pointing);
        AUTH_SET original = filled();
        const AUTH_SET earlier(original);
        const std::function<void()> write = pointing(original);
        const QStringList before = state(original);
        const AUTH_SET copy(original);
        AUTH_SET assigned = filled();
        assigned.value_group_p("g")->clear();
        assigned = original;
        {
            AUTH_SET other(copy);
            *other.value_set_p("a/x") = "of the other";
        }
        const Entries list = original.value_group("g");
        const QStringList listBefore = described(list);

        write();
        QVERIFY(state(original) != before);
        for (const AUTH_SET &set : { copy, assigned })
            QCOMPARE(state(set), before);
        QCOMPARE(state(earlier), state(filled()));
        QCOMPARE(described(list), listBefore);
    }

    void pointersOutliveWhatTheyAreSetTo()
    {
        AUTH_SET set;
        const Entries given { { "k", 1 }, { "l", 2 } };
        set.setDefaultSettings("g", given);
        Entries *list = set.value_group_p("g");
        QVariant *value = set.value_group_at_p("g", "l");
        set.setDefaultSettings("g", set.value_group("g"));
        QCOMPARE(set.value_group_at_p("g", "l"), value);
        set.setDefaultSettings("g", *list);
        // Groups that are added do not move the others.
        for (int i = 0; i < 100; ++i)
            set.setDefaultSettings(QString::number(i), {});
        QCOMPARE(set.value_group_at_p("g", "l"), value);
        *value = "written";
        QCOMPARE(set.value_group_at("g", "l"), QVariant("written"));
        QCOMPARE(described(given), described(Entries { { "k", 1 }, { "l", 2 } }));
        // What was given is another list again.
        set.setDefaultSettings("g", given);
        QCOMPARE(set.value_group_at("g", "l"), QVariant(2));
    }
};

QTEST_GUILESS_MAIN(TestAuthSetValues)
#include "tst_auth_set_values.moc"
