// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Random registries whose parameters and results hardly differ, with every list that AUTH_SET gives
// compared to that of the plain scans of PlainLists. A failure names the seed and all steps.

#include "models/plainlists.h"
#include "models/plainregistry.h"
#include "support/directorytest.h"
#include "support/parameters.h"
#include "support/randomitems.h"
#include "support/twins.h"

#include <Kelto/AUTH_SET>

#include <QtTest>

#include <iterator>
#include <limits>

namespace {

/// What the parameters of one row are made of.
struct Texts
{
    QStringList names;
    QStringList translatedNames;
    QStringList symbols;
    QStringList subGroups;
    QStringList multiWords { "false" };
    QStringList units { "mm" };
    int wrongLengthPercent = 0;
};

QString shown(const Pair &pair)
{
    return pair.first + '|' + pair.second;
}

QStringList shown(const Pairs &pairs)
{
    QStringList texts;
    for (const Pair &pair : pairs)
        texts.append(shown(pair));
    return texts;
}

class EntryMaker
{
public:
    EntryMaker(Dice &dice, const Texts &texts)
        : m_dice(dice)
        , m_texts(texts)
    {
    }

    QStringList entry()
    {
        const QString name = m_dice.oneOf(m_texts.names);
        QStringList entry { m_dice.oneOf(m_texts.subGroups), name,
                            QStringLiteral("float"),         m_dice.oneOf(m_texts.multiWords),
                            m_dice.oneOf(m_texts.units),     m_dice.oneOf(m_texts.units),
                            m_dice.oneOf(m_texts.symbols),   m_dice.oneOf(m_texts.translatedNames),
                            m_dice.oneOf(m_texts.subGroups) };
        if (m_dice.chance(m_texts.wrongLengthPercent))
            return m_dice.chance(50) ? entry.mid(0, m_dice.between(0, 8)) : entry << "one more";
        return entry;
    }

    ParameterEntries entries(int most)
    {
        ParameterEntries made;
        for (int i = m_dice.between(0, most); i > 0; --i)
            made.append(entry());
        return made;
    }

    /// Puts parameters and results in the place of those that @p item has.
    void fill(AUTH_INF &item)
    {
        for (ParameterEntries &list : item.inner_mode_parameterList)
            list = entries(4);
        item.output_results = entries(4);
    }

private:
    Dice &m_dice;
    const Texts &m_texts;
};

/// One random registry, by the library and by the plain scans.
class Life
{
public:
    Life(unsigned seed, const Flavour &flavour, const Texts &texts)
        : m_flavour(flavour)
        , m_texts(texts)
        , m_dice(seed)
        , m_items(m_dice, m_flavour)
        , m_entries(m_dice, m_texts)
    {
    }

    /// What AUTH_SET answers differently from the plain scans; empty when it does not.
    QString difference()
    {
        append();
        for (int step = m_dice.between(0, 3); step >= 0 && !m_twins.differ(); --step) {
            askEverything();
            takeStep();
        }
        askEverything();
        return m_twins.report();
    }

    /// How many parameters and sub-groups the answers of each twin held so far.
    int answered() const { return m_answered / 2; }

private:
    static const AUTH_SET &listsOf(const AUTH_SET &library) { return library; }
    static PlainLists<PlainRegistry> listsOf(const PlainRegistry &plain)
    {
        return PlainLists<PlainRegistry>(plain);
    }

    template <typename Question, typename... Arguments>
    void ask(const char *operation, Question question, const Arguments &...arguments)
    {
        const auto shownAnswer = [&](const auto &registry, const auto &...asked) {
            const QStringList answer = shown(question(listsOf(registry), asked...));
            m_answered += answer.size();
            return answer;
        };
        m_twins.ask(operation, shownAnswer, arguments...);
    }

    void askEverything();
    void askAboutGroup(const QString &group);
    void askAboutItems();

    void takeStep()
    {
        using Step = void (Life::*)();
        static const Step steps[]
            = { &Life::append,  &Life::append,  &Life::appendOne, &Life::appendOne,
                &Life::acquire, &Life::refresh, &Life::clear };
        (this->*steps[m_dice.between(0, int(std::size(steps)) - 1)])();
    }

    QVector<AUTH_INF> items(int count)
    {
        QVector<AUTH_INF> made = m_items.items(count);
        for (AUTH_INF &item : made)
            m_entries.fill(item);
        return made;
    }

    QString told(const char *step, const QVector<AUTH_INF> &items) const
    {
        QString text = QLatin1String(step);
        for (const AUTH_INF &item : items) {
            text += printed(item, "\n      parameters", item.inner_mode_parameterList,
                            "\n      results", item.output_results);
        }
        return text;
    }

    void append()
    {
        const auto made = items(m_dice.between(1, 5));
        m_twins.change(told("append", made), [&](auto &registry) { registry.append(made); });
    }

    void appendOne()
    {
        const auto made = items(1);
        m_twins.change(told("append one", made),
                       [&](auto &registry) { registry.append(made.first()); });
    }

    void acquire()
    {
        const auto made = items(m_dice.between(0, 6));
        m_twins.change(told("acquire", made), [&](auto &registry) { registry.acquire(made); });
    }

    void refresh()
    {
        m_twins.change(QStringLiteral("refresh_group"),
                       [](auto &registry) { registry.refresh_group(); });
    }

    void clear()
    {
        m_twins.change(QStringLiteral("clear"), [](auto &registry) { registry.clear(); });
    }

    Flavour m_flavour;
    Texts m_texts;
    Dice m_dice;
    ItemMaker m_items;
    EntryMaker m_entries;
    Twins<PlainRegistry> m_twins;
    int m_answered = 0;
};

void Life::askEverything()
{
    ask(OPERATION(defaultParameterList));
    ask(OPERATION(defaultResultList));
    ask(OPERATION(defaultParameterSubGroupList));
    QStringList subGroups = m_texts.subGroups + QStringList { "", "nowhere" };
    subGroups.removeDuplicates();
    for (const QString &subGroup : qAsConst(subGroups))
        ask(OPERATION(defaultParameterListBySubGroup), subGroup);
    const QStringList groups = m_flavour.allNames();
    for (const QString &group : groups) {
        askAboutGroup(group);
        for (const QString &subGroup : qAsConst(subGroups))
            ask(OPERATION(defaultParameterListInSubGroup), group, subGroup);
    }
    askAboutItems();
}

void Life::askAboutGroup(const QString &group)
{
    ask(OPERATION(defaultParameterList), group);
    ask(OPERATION(defaultResultList), group);
    ask(OPERATION(defaultParameterSubGroupList), group);
    const QStringList modes = m_flavour.allNames();
    for (const QString &mode : modes) {
        ask(OPERATION(defaultParameterList), group, mode);
        ask(OPERATION(defaultParameterSubGroupList), group, mode);
    }
}

void Life::askAboutItems()
{
    const QVector<AUTH_INF> items = m_twins.library().AUTH_INF_DATA();
    for (const AUTH_INF &item : items) {
        ask(
            "defaultResultList",
            [](const auto &lists, const AUTH_INF &of) { return lists.defaultResultList(&of); },
            item);
    }
}

/// Values of which some are equal to others of another type, or to others only one way round, or
/// not even to themselves.
QVariant randomValue(Dice &dice)
{
    const QVariant values[] = { QVariant(),
                                1,
                                1.0,
                                1 + 8e-13,
                                1 + 16e-13,
                                true,
                                QStringLiteral("1"),
                                QStringLiteral("01"),
                                QStringLiteral("true"),
                                QStringList { QStringLiteral("01") },
                                std::numeric_limits<double>::quiet_NaN(),
                                2 };
    return values[dice.between(0, int(std::size(values)) - 1)];
}

Parameters randomParameters(Dice &dice, const Texts &texts, int most)
{
    EntryMaker maker(dice, texts);
    Parameters list = parameters(maker.entries(most));
    for (VParameter &parameter : list)
        parameter.set(randomValue(dice));
    return list;
}

} // namespace

Q_DECLARE_METATYPE(Flavour)
Q_DECLARE_METATYPE(Texts)

class AUTH_SETListsReferenceTest : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheListsOfPlainScans_data();
    void givesTheListsOfPlainScans();
    void combinesListsAsPlainScansDo_data();
    void combinesListsAsPlainScansDo();
};

void AUTH_SETListsReferenceTest::givesTheListsOfPlainScans_data()
{
    const auto list = [](const char *names) {
        return QString::fromUtf8(names).split(QLatin1Char(' '), Qt::KeepEmptyParts);
    };
    QTest::addColumn<Flavour>("flavour");
    QTest::addColumn<Texts>("texts");

    const Flavour apart { list("A B C"), list("a b c"), 75 };
    const Flavour crossed { list("A B C"), list("A B C"), 75 };
    const Flavour nameless { list(" A B"), list(" A x"), 75 };
    const Flavour shared { list("A B C D"), list("A x"), 80 };
    const Flavour tidy { list("A B C"), list("a b c"), 90, 100 };
    const Flavour untidy { list("A B"), list("a b"), 60, 0 };

    const Texts twoNames { list("x y"), list("x"), list("s"), list("S") };
    const Texts symbols { list("x y z"), list("x"), list("s S"), list("S T") };
    const Texts manyNames { list("a b c d e A B C"), list("x"), list("s"), list("S T U") };
    const Texts everything {
        list("x X"),   list("x X"), list("s S"), list("S s "), list("true false TRUE"),
        list("mm MM"), 15
    };
    const Texts wrong { list("x "),     list("x "),  list("s "), list(" S"),
                        list("false "), list("mm "), 50 };

    const QPair<const char *, Flavour> flavours[] = {
        { "names apart", apart },          { "crossed names", crossed },
        { "empty names", nameless },       { "shared translated names", shared },
        { "lists of equal length", tidy }, { "lists of any length", untidy },
    };
    const QPair<const char *, Texts> parameterTexts[] = {
        { "parameters that are all equal", twoNames },
        { "parameters that differ in symbol and sub-group", symbols },
        { "parameters with many names", manyNames },
        { "parameters that differ in any text", everything },
        { "entries of any length", wrong },
    };
    for (const auto &flavour : flavours) {
        for (const auto &texts : parameterTexts) {
            QTest::addRow("%s, %s", flavour.first, texts.first) << flavour.second << texts.second;
        }
    }
}

void AUTH_SETListsReferenceTest::givesTheListsOfPlainScans()
{
    QFETCH(Flavour, flavour);
    QFETCH(Texts, texts);

    int answered = 0;
    for (unsigned seed = 1; seed <= 8; ++seed) {
        Life life(seed, flavour, texts);
        const QString difference = life.difference();
        QVERIFY2(difference.isEmpty(), qPrintable(printed("seed", seed) + difference));
        answered += life.answered();
    }
    // Empty lists are easily equal.
    QVERIFY2(answered > 8 * 60, qPrintable(QString::number(answered)));
}

void AUTH_SETListsReferenceTest::combinesListsAsPlainScansDo_data()
{
    QTest::addColumn<Texts>("texts");
    QTest::addColumn<int>("longest");

    QTest::newRow("one parameter with different values")
        << Texts { { "x" }, { "x" }, { "s" }, { "S" } } << 9;
    QTest::newRow("two names and two symbols")
        << Texts { { "x", "X" }, { "x" }, { "s", "S" }, { "S" } } << 9;
    QTest::newRow("many names") << Texts { { "a", "b", "c", "d", "" }, { "x" }, { "s" }, { "S" } }
                                << 9;
    QTest::newRow("long lists") << Texts { { "a", "b", "c", "d", "" }, { "x" }, { "s" }, { "S" } }
                                << 50;
    QTest::newRow("entries of any length")
        << Texts { { "a", "b" }, { "x" }, { "s" }, { "S" }, { "true", "false" }, { "mm" }, 40 }
        << 20;
}

void AUTH_SETListsReferenceTest::combinesListsAsPlainScansDo()
{
    QFETCH(Texts, texts);
    QFETCH(int, longest);
    const AUTH_SET library;
    const PlainLists<AUTH_SET> plain(library);

    Dice dice(1);
    for (int round = 0; round < 1000; ++round) {
        const Parameters first = randomParameters(dice, texts, longest);
        const Parameters second = randomParameters(dice, texts, longest);
        VParameter wanted = VParameter(EntryMaker(dice, texts).entry());
        wanted.set(randomValue(dice));
        const auto lists = [&] {
            return printed("\n  first", shown(first), "\n  second", shown(second), "\n  wanted",
                           shown(wanted))
                .toUtf8();
        };
        QVERIFY2(shown(library.mergingList(&first, &second))
                     == shown(plain.mergingList(&first, &second)),
                 lists().constData());
        QVERIFY2(shown(library.sharingList(&first, &second))
                     == shown(plain.sharingList(&first, &second)),
                 lists().constData());
        QVERIFY2(library.indexParameterInList(&first, &wanted)
                     == plain.indexParameterInList(&first, &wanted),
                 lists().constData());
        QVERIFY2(library.isParameterContains(&first, &wanted)
                     == plain.isParameterContains(&first, &wanted),
                 lists().constData());
    }
}

QTEST_GUILESS_MAIN(AUTH_SETListsReferenceTest)

#include "tst_auth_set_lists_reference.moc"
