// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Random changes of stored values, through operations and through pointers, with every value of
// AUTH_SET and of the copies that were left behind compared to that of the plain vectors of
// PlainValues. A failure names the seed and all steps.

#include "models/plainvalues.h"
#include "support/randomitems.h"
#include "support/settingsjson.h"
#include "support/temporarycurrentdirectory.h"
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
        }
        return differenceAtTheEnd([this](auto &twins) { askEverything(twins, m_names); });
    }

private:
    void takeStep()
    {
        using Step = void (Life::*)();
        static const Step steps[]
            = { &Life::setDefaults,       &Life::setDefaults,   &Life::setSameAgain,
                &Life::takeOver,          &Life::takeOver,      &Life::setTemporary,
                &Life::setTemporary,      &Life::setTemporary,  &Life::deleteOne,
                &Life::writeSet,          &Life::writeSet,      &Life::writeCalculation,
                &Life::writeGroup,        &Life::writeInGroup,  &Life::writeInGroup,
                &Life::writeAfterCopying, &Life::loadIntoGroup, &Life::copy,
                &Life::goOnWithCopy,      &Life::goBackToCopy };
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

    /// Writes to the same place of both; AUTH_SET also has one where plain vectors have none.
    template <typename Lend> void writeThroughPointer(const QString &step, Lend lend, int value)
    {
        change(step, [&](auto &values) {
            if (QVariant *place = lend(values))
                *place = value;
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

    void writeSet()
    {
        const QString name = key();
        writeThroughPointer(
            printed("write to value_set_p", name),
            [&](auto &values) { return values.value_set_p(name); }, ++m_lastValue);
    }

    void writeCalculation()
    {
        const QString name = key();
        writeThroughPointer(
            printed("write to value_cal_p", name),
            [&](auto &values) { return values.value_cal_p(name); }, ++m_lastValue);
    }

    void writeInGroup()
    {
        const QString groupName = group();
        const QString name = key();
        writeThroughPointer(
            printed("write to value_group_at_p", groupName, name),
            [&](auto &values) { return values.value_group_at_p(groupName, name); }, ++m_lastValue);
    }

    /// Changes a lent list, its keys too.
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

class AUTH_SETValuesReferenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsValuesAsPlainVectorsDo_data();
    void keepsValuesAsPlainVectorsDo();
};

void AUTH_SETValuesReferenceTest::keepsValuesAsPlainVectorsDo_data()
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

void AUTH_SETValuesReferenceTest::keepsValuesAsPlainVectorsDo()
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

QTEST_GUILESS_MAIN(AUTH_SETValuesReferenceTest)

#include "tst_auth_set_values_reference.moc"
