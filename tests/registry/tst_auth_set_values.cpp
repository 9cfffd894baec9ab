// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The stored values: looking up, storing, taking over those of a calculation, the pointers to them,
// and files. Random changes, through operations and through pointers, are compared to what plain
// vectors hold then; a failure names the seed and all steps.

#include "models/plainvalues.h"
#include "support/directorytest.h"
#include "support/testfiles.h"
#include "support/twins.h"

#include <Kelto/AUTH_SET>

#include <QtTest>

#include <iterator>

namespace {

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
            if (described(m_held) != m_heldBefore)
                m_twins.keepDifference(QStringLiteral("a list of the host has changed"));
        }
        return differenceAtTheEnd([this](auto &twins) { askEverything(twins, m_names); });
    }

private:
    void takeStep()
    {
        using Step = void (Life::*)();
        static const Step steps[] = {
            &Life::setDefaults,  &Life::setDefaults,       &Life::setSameAgain, &Life::takeOver,
            &Life::takeOver,     &Life::setTemporary,      &Life::setTemporary, &Life::setTemporary,
            &Life::deleteOne,    &Life::writeValue,        &Life::writeValue,   &Life::writeValue,
            &Life::writeValue,   &Life::writeValue,        &Life::writeGroup,   &Life::copy,
            &Life::goOnWithCopy, &Life::writeAfterCopying, &Life::goBackToCopy
        };
        // Files take most of the time.
        if (m_dice.chance(4))
            m_dice.chance(50) ? setValue() : saveAndLoad();
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
            made.append({ key(), value() });
        return made;
    }
    /// Another one each time.
    QVariant value()
    {
        const int number = ++m_lastValue;
        const QVariant values[] = { number, number + 0.5, QString::number(number),
                                    QStringList { "list", QString::number(number) } };
        return values[number % int(std::size(values))];
    }

    void setValue()
    {
        const QString name = key();
        const QVariant written = value();
        change(printed("setValueInSet", name, written),
               [&](auto &values) { values.setValueInSet(name, written); });
    }

    void startAnew()
    {
        change(QStringLiteral("start anew"),
               [](auto &values) { values = std::decay_t<decltype(values)>(); });
    }

    void setDefaults()
    {
        m_held = entries();
        setSameAgain();
    }

    /// The list of an earlier step, which may be another group's.
    void setSameAgain()
    {
        const QString name = group();
        m_heldBefore = described(m_held);
        change(printed("setDefaultSettings", name, m_held),
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
        const QVariant written = value();
        change(printed("set_temp", name, written),
               [&](auto &values) { values.set_temp(name, written); });
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
        const QVariant written = value();
        change(printed("write to a value", store, groupName, name), [&](auto &values) {
            QVariant *place = store == 0 ? values.value_set_p(name)
                : store == 1             ? values.value_cal_p(name)
                                         : values.value_group_at_p(groupName, name);
            // AUTH_SET also has a place where plain vectors have none.
            if (place)
                *place = written;
        });
    }

    /// Changes a list of the registry, its keys too.
    void writeGroup()
    {
        const QString groupName = group();
        const QString name = key();
        const int kind = m_dice.between(0, 3);
        const int position = m_dice.between(0, 999);
        const QVariant written = value();
        change(printed("write to value_group_p", groupName, name, kind), [&](auto &values) {
            Entries *list = values.value_group_p(groupName);
            if (!list)
                return;
            if (kind == 0)
                list->clear();
            else if (kind == 1 && !list->isEmpty())
                (*list)[position % list->size()].first = name;
            else
                list->append({ name, written });
        });
    }

    /// Writes through pointers that were there before a copy was made, and before the host got the
    /// list of the group.
    void writeAfterCopying()
    {
        const QString groupName = group();
        const QString name = key();
        const auto pointersOf = [&](auto &values) {
            Entries *list = values.value_group_p(groupName);
            return std::make_pair(list,
                                  QVector<QVariant *> { values.value_set_p(name),
                                                        values.value_cal_p(name),
                                                        values.value_group_at_p(groupName, name) });
        };
        const auto library = pointersOf(m_twins.library());
        const auto plain = pointersOf(m_twins.plain());
        copy();
        m_held = m_twins.library().value_group(groupName);
        m_heldBefore = described(m_held);
        change(printed("write to earlier pointers", groupName, name),
               [](const auto &) { /* They are written to below. */ });
        const QVariant written = value();
        for (const auto &pointers : { library, plain }) {
            for (QVariant *place : pointers.second) {
                if (place)
                    *place = written;
            }
            if (pointers.first)
                pointers.first->append({ name, written });
        }
    }

    void saveAndLoad()
    {
        const QString name = group();
        const Entries saved = entries();
        change(printed("save and load", name, saved), [&](auto &values) {
            values.save("values.ini", &saved);
            if (Entries *list = values.value_group_p(name))
                values.load("values.ini", list);
        });
    }

    Names m_names;
    Entries m_held;
    QStringList m_heldBefore;
    int m_lastValue = 0;
};

} // namespace

Q_DECLARE_METATYPE(Names)

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
            for (const char *file : { "Config/_config.ini", "values.ini" }) {
                QCOMPARE(fileContent(QString("library/") + file),
                         fileContent(QString("plain/") + file));
            }
        }
    }

    void replacesDefaultSettings()
    {
        AUTH_SET set;
        const Entries list { { "k", 1 } };
        set.setDefaultSettings("g", list);
        set.setDefaultSettings("g", list);
        QVERIFY(set.value_group("g").isSharedWith(list));
        // A list with equal entries is another one.
        const Entries equal { { "k", 1 } };
        set.setDefaultSettings("g", equal);
        QVERIFY(set.value_group("g").isSharedWith(equal));
        set.setDefaultSettings("h", list);
        set.setDefaultSettings("g", {});
        // The first group stays the first, also when it is empty.
        QCOMPARE(set.value_group_p("nowhere"), set.value_group_p("g"));
        QCOMPARE(set.value_group("nowhere"), Entries());
    }

    void takesOverACalculation()
    {
        AUTH_SET set;
        set.getCalculationLData({ { "Unit/E", "kPa" }, { "Attribute", 1 } });
        // Nothing is there to be written to.
        *set.value_cal_p("Attribute/Attribute") = 1;
        for (const char *key : { "Unit/E", "Attribute/Attribute" })
            QCOMPARE(set.value_cal(key), QVariant());
        set.getCalculationLData({ { "Attribute/E", 210000 }, { "Unit/E", "MPa" } });
        QCOMPARE(set.value_cal("Attribute/E"), QVariant(210000));
        QCOMPARE(set.value_cal("Unit/E"), QVariant("MPa"));
    }

    void pointsToTheFirstWhereAKeyIsMissing()
    {
        AUTH_SET set;
        set.setValueInSet("a/x", 1);
        set.setValueInSet("a/y", 2);
        QCOMPARE(set.value_set_p("nowhere"), set.value_set_p("a/x"));
        QVERIFY(!set.value_set("nowhere").isValid());
        // Values do not depend on modules.
        set.acquire({ AUTH_INF() });
        set.clear();
        QCOMPARE(set.value_set("a/y"), QVariant(2));
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
