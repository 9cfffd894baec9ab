// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Random registries and random changes of them: every answer of AUTH_SET, and of the copies that
// were left behind, is compared to that of plain scans. A failure names the seed and all steps.

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
#include <type_traits>

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
                            m_dice.oneOf(m_texts.units),     m_dice.oneOf(m_texts.multiWords),
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

private:
    Dice &m_dice;
    const Texts &m_texts;
};

/// What tells an answer apart from others: of an item no more than which one it is.
template <typename Answer> Answer shownAnswer(const Answer &answer)
{
    return answer;
}

QVector<QPair<int, QString>> shownAnswer(const QVector<AUTH_INF> &items)
{
    QVector<QPair<int, QString>> result;
    for (const AUTH_INF &item : items)
        result.append({ item.number, item.description });
    return result;
}

QStringList shownAnswer(const Parameters &parameters)
{
    return shown(parameters);
}

const AUTH_SET &listsOf(const AUTH_SET &library)
{
    return library;
}

PlainLists<PlainRegistry> listsOf(const PlainRegistry &plain)
{
    return PlainLists<PlainRegistry>(plain);
}

/// The random life of one registry and of the copies that it leaves behind.
class Life : private TwinLife<PlainRegistry>
{
public:
    enum Questions { AboutModules, AboutLists };

    Life(unsigned seed, const Flavour &flavour, const Texts &texts, Questions questions)
        : TwinLife(seed)
        , m_flavour(flavour)
        , m_texts(texts)
        , m_questions(questions)
        , m_names(flavour.allNames())
        , m_maker(m_dice, m_flavour)
        , m_entries(m_dice, m_texts)
    {
    }

    /// What AUTH_SET answers differently from the plain scans; empty when it does not.
    QString difference()
    {
        construct();
        const int most = m_questions == AboutLists ? 5 : 12;
        for (int step = m_dice.between(1, most); step > 0 && !m_twins.differ(); --step) {
            if (m_dice.chance(m_questions == AboutLists ? 80 : 50))
                askEverything(m_twins);
            takeStep();
        }
        return differenceAtTheEnd([this](auto &twins) { askEverything(twins); });
    }

    /// How many parameters and sub-groups the lists held so far.
    int answered() const { return m_answered / 2; }

private:
    using RegistryTwins = Twins<PlainRegistry>;

    template <typename Question, typename... Arguments>
    void askForModules(RegistryTwins &twins, const char *operation, Question question,
                       const Arguments &...arguments)
    {
        const auto answer = [&](const auto &registry, const auto &...asked) {
            return shownAnswer(question(registry, asked...));
        };
        twins.ask(operation, answer, arguments...);
    }

    template <typename Question, typename... Arguments>
    void askList(RegistryTwins &twins, const char *operation, Question question,
                 const Arguments &...arguments)
    {
        const auto answer = [&](const auto &registry, const auto &...asked) {
            const auto list = shownAnswer(question(listsOf(registry), asked...));
            m_answered += list.size();
            return list;
        };
        twins.ask(operation, answer, arguments...);
    }

    void askEverything(RegistryTwins &twins)
    {
        if (m_questions == AboutLists) {
            askForLists(twins);
            return;
        }
        askByIndex(twins);
        askByName(twins);
        twins.ask(OPERATION(model_count));
        twins.ask(OPERATION(exclusive_group_namelist));
        twins.ask(OPERATION(exclusive_group_namelist_global));
        twins.ask(OPERATION(currentExclusiveGroupList));
        twins.ask(OPERATION(currentModeList));
        const QStringList codes = modeCodes();
        twins.ask(OPERATION(currentModeMatching), codes);
        twins.ask(OPERATION(currentModeMatchingCount), codes);
        for (const QString &group : qAsConst(m_names))
            askAboutGroup(twins, group);
    }

    void askByIndex(RegistryTwins &twins)
    {
        QVector<int> indices { std::numeric_limits<int>::min(), std::numeric_limits<int>::max() };
        for (int i = -1; i < 12; ++i)
            indices.append(i);
        for (const int i : qAsConst(indices)) {
            twins.ask(OPERATION(model_data), i);
            twins.ask(OPERATION(model_name), i);
            twins.ask(OPERATION(model_name_global), i);
            twins.ask(OPERATION(model_type), i);
            twins.ask(OPERATION(model_type_global), i);
            twins.ask(OPERATION(model_group), i);
            twins.ask(OPERATION(model_group_global), i);
            twins.ask(OPERATION(name), i);
            twins.ask(OPERATION(information), i);
        }
    }

    void askByName(RegistryTwins &twins)
    {
        askForModules(twins, OPERATION(AUTH_INF_DATA));
        for (const QString &name : qAsConst(m_names)) {
            twins.ask(OPERATION(index), name);
            twins.ask(OPERATION(model_exists), name);
            twins.ask(OPERATION(information), name);
            askForModules(twins, OPERATION(AUTH_INF_list_by_type), name);
            askForModules(twins, OPERATION(AUTH_INF_list_by_group), name);
        }
    }

    void askAboutGroup(RegistryTwins &twins, const QString &group)
    {
        twins.ask(OPERATION(findExclusiveGroupName), group);
        twins.ask(OPERATION(exclusive_group_mode_count), group);
        twins.ask(OPERATION(exclusive_group_select), group);
        twins.ask(OPERATION(currentExclusiveGroupSelect), group);
        twins.ask(OPERATION(exclusive_group_mode_description), group);
        twins.ask(OPERATION(exclusive_group_inner_mode_namelist_at), group);
        twins.ask(OPERATION(findExclusiveGroupInnerModeList), group);
        for (int position = -1; position < 14; ++position) {
            twins.ask(OPERATION(exclusive_group_orginal_model), group, position);
            twins.ask(OPERATION(exclusive_group_parameter_settings_origin), group, position);
        }
        for (const QString &mode : qAsConst(m_names)) {
            twins.ask(OPERATION(findExclusiveGroupInnerModeName), group, mode);
            twins.ask(OPERATION(exclusive_group_innerMode_index), group, mode);
            twins.ask(OPERATION(exclusive_group_parameter_settings_origin), group, mode);
            twins.ask(OPERATION(stdModeNameForm), group, mode);
        }
    }

    /// Standard mode names of every group and mode, made by hand so that most of them are nobody's.
    QStringList modeCodes() const
    {
        QStringList codes { QStringLiteral("nowhere") };
        for (const QString &group : m_names) {
            for (const QString &mode : m_names)
                codes.append(QStringList { m_flavour.application, group, mode }.join(':'));
        }
        return codes + codes.mid(0, 3);
    }

    void askForLists(RegistryTwins &twins)
    {
        askList(twins, OPERATION(defaultParameterList));
        askList(twins, OPERATION(defaultResultList));
        askList(twins, OPERATION(defaultParameterSubGroupList));
        QStringList subGroups = m_texts.subGroups + QStringList { "", "nowhere" };
        subGroups.removeDuplicates();
        for (const QString &subGroup : qAsConst(subGroups)) {
            askList(twins, OPERATION(defaultParameterListBySubGroup), subGroup);
            for (const QString &group : qAsConst(m_names))
                askList(twins, OPERATION(defaultParameterListInSubGroup), group, subGroup);
        }
        for (const QString &group : qAsConst(m_names)) {
            askList(twins, OPERATION(defaultParameterList), group);
            askList(twins, OPERATION(defaultResultList), group);
            askList(twins, OPERATION(defaultParameterSubGroupList), group);
            for (const QString &mode : qAsConst(m_names)) {
                askList(twins, OPERATION(defaultParameterList), group, mode);
                askList(twins, OPERATION(defaultParameterSubGroupList), group, mode);
            }
        }
        const auto ofItem = [](const auto &lists, const AUTH_INF &item) {
            return lists.defaultResultList(&item);
        };
        const QVector<AUTH_INF> modules = twins.library().AUTH_INF_DATA();
        for (const AUTH_INF &item : modules)
            askList(twins, "defaultResultList", ofItem, item);
    }

    void takeStep()
    {
        using Step = void (Life::*)();
        static const Step steps[]
            = { &Life::appendOne,     &Life::appendOne, &Life::appendOne,    &Life::appendSeveral,
                &Life::acquire,       &Life::clear,     &Life::refresh,      &Life::setPosition,
                &Life::setMode,       &Life::setMode,   &Life::setMode,      &Life::writePosition,
                &Life::writePosition, &Life::copy,      &Life::goOnWithCopy, &Life::goBackToCopy };
        (this->*steps[m_dice.between(0, int(std::size(steps)) - 1)])();
    }

    QVector<AUTH_INF> items(int count)
    {
        QVector<AUTH_INF> made = m_maker.items(count);
        if (m_questions == AboutModules)
            return made;
        for (AUTH_INF &item : made) {
            for (ParameterEntries &list : item.inner_mode_parameterList)
                list = m_entries.entries(4);
            item.output_results = m_entries.entries(4);
        }
        return made;
    }

    static QString told(const char *step, const QVector<AUTH_INF> &items)
    {
        QString text = step;
        for (const AUTH_INF &item : items) {
            text += printed(item, "\n      parameters", item.inner_mode_parameterList,
                            "\n      results", item.output_results);
        }
        return text;
    }

    void construct()
    {
        const auto made = items(m_dice.between(0, 5));
        m_twins.change(told("construct", made), [&](auto &registry) {
            registry = std::decay_t<decltype(registry)>(m_flavour.application, QString(), made);
        });
    }

    void appendOne()
    {
        const auto made = items(1);
        m_twins.change(told("append one", made),
                       [&](auto &registry) { registry.append(made.first()); });
    }

    void appendSeveral()
    {
        const auto made = items(m_dice.between(0, 3));
        m_twins.change(told("append", made), [&](auto &registry) { registry.append(made); });
    }

    void acquire()
    {
        const auto made = items(m_dice.between(0, 4));
        m_twins.change(told("acquire", made), [&](auto &registry) { registry.acquire(made); });
    }

    void clear()
    {
        m_twins.change("clear", [](auto &registry) { registry.clear(); });
    }

    void refresh()
    {
        m_twins.change("refresh_group", [](auto &registry) { registry.refresh_group(); });
    }

    void setPosition()
    {
        const QString group = m_dice.oneOf(m_names);
        const int position = m_dice.between(-1, 9);
        m_twins.change(printed("exclusive_group_set_mode", group, position),
                       [&](auto &registry) { registry.exclusive_group_set_mode(group, position); });
    }

    void setMode()
    {
        const QString group = m_dice.oneOf(m_names);
        const QString mode = m_dice.oneOf(m_names);
        m_twins.change(printed("exclusive_group_set_mode", group, mode),
                       [&](auto &registry) { registry.exclusive_group_set_mode(group, mode); });
    }

    /// Also writes positions that the group does not have.
    void writePosition()
    {
        const QString group = m_dice.oneOf(m_names);
        const int position = m_dice.between(-2, 14);
        m_twins.change(printed("write to exclusive_group_mode_pointer", group, position),
                       [&](auto &registry) {
                           if (int *selected = registry.exclusive_group_mode_pointer(group))
                               *selected = position;
                       });
    }

    Flavour m_flavour;
    Texts m_texts;
    Questions m_questions;
    QStringList m_names;
    ItemMaker m_maker;
    EntryMaker m_entries;
    int m_answered = 0;
};

/// Values of which some are equal to others of another type, or to others only one way round, or
/// not even to themselves.
QVariant randomValue(Dice &dice)
{
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const QVariant values[]
        = { QVariant(),           1,          1.0, 1 + 8e-13, 1 + 16e-13, true, "1", "01", "true",
            QStringList { "01" }, notANumber, 2 };
    return values[dice.between(0, int(std::size(values)) - 1)];
}

Parameters randomParameters(Dice &dice, const Texts &texts, int most)
{
    Parameters list = parameters(EntryMaker(dice, texts).entries(most));
    for (VParameter &parameter : list)
        parameter.set(randomValue(dice));
    return list;
}

QStringList texts(const char *words)
{
    return QString(words).split(' ', Qt::KeepEmptyParts);
}

} // namespace

Q_DECLARE_METATYPE(Flavour)
Q_DECLARE_METATYPE(Texts)

class TestAuthSetModels : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void answersAsPlainScansDo_data()
    {
        QTest::addColumn<Flavour>("flavour");

        QTest::newRow("plain and translated names apart")
            << Flavour { texts("A B C D"), texts("a b c d") };
        QTest::newRow("translated names of some are plain names of others")
            << Flavour { texts("A B C"), texts("A B C") };
        QTest::newRow("groups share translated names")
            << Flavour { texts("A B C D E"), texts("A x"), 80 };
        QTest::newRow("empty names") << Flavour { texts(" A B"), texts(" A x") };
        QTest::newRow("empty names in groups that share a translated name")
            << Flavour { texts(" A B C"), texts("x"), 80 };
        QTest::newRow("colons in names") << Flavour { texts("A : A:B B"), texts("B :B A:B x") };
        QTest::newRow("case counts") << Flavour { texts("A a"), texts("a A") };
        QTest::newRow("names beyond ASCII") << Flavour { texts("甲 乙 é"), texts("乙 丙 E") };
        QTest::newRow("few flags") << Flavour { texts("A B C"), texts("a b C"), 15 };
        QTest::newRow("no flag at all") << Flavour { texts("A B"), texts("a B"), 0 };
        QTest::newRow("lists of equal length")
            << Flavour { texts("A B C"), texts("a B c"), 60, 100 };
        QTest::newRow("lists of any length") << Flavour { texts("A B C"), texts("a B c"), 60, 0 };
        QTest::newRow("application without a name")
            << Flavour { texts("A B"), texts("a B"), 60, 50, QString() };
        QTest::newRow("colon in the application's name")
            << Flavour { texts("A B"), texts("a B"), 60, 50, "A:B" };
    }
    void answersAsPlainScansDo()
    {
        QFETCH(Flavour, flavour);
        for (unsigned seed = 1; seed <= 50; ++seed) {
            const QString difference = Life(seed, flavour, {}, Life::AboutModules).difference();
            QVERIFY2(difference.isEmpty(), qPrintable(printed("seed", seed) + difference));
        }
    }

    void givesTheListsOfPlainScans_data()
    {
        QTest::addColumn<Flavour>("flavour");
        QTest::addColumn<Texts>("entries");

        const QPair<const char *, Flavour> flavours[] = {
            { "names apart", { texts("A B C"), texts("a b c"), 75 } },
            { "crossed names", { texts("A B C"), texts("A B C"), 75 } },
            { "empty names", { texts(" A B"), texts(" A x"), 75 } },
            { "shared translated names", { texts("A B C D"), texts("A x"), 80 } },
            { "lists of equal length", { texts("A B C"), texts("a b c"), 90, 100 } },
            { "lists of any length", { texts("A B"), texts("a b"), 60, 0 } },
        };
        const QPair<const char *, Texts> entries[] = {
            { "parameters that are all equal",
              { texts("x y"), texts("x"), texts("s"), texts("S") } },
            { "parameters that differ in symbol and sub-group",
              { texts("x y z"), texts("x"), texts("s S"), texts("S T") } },
            { "parameters with many names",
              { texts("a b c d e A B C"), texts("x"), texts("s"), texts("S T U") } },
            { "parameters that differ in any text",
              { texts("x X"), texts("x X"), texts("s S"), texts("S s "), texts("true false TRUE"),
                texts("mm MM"), 15 } },
            { "entries of any length",
              { texts("x "), texts("x "), texts("s "), texts(" S"), texts("false "), texts("mm "),
                50 } },
        };
        for (const auto &flavour : flavours) {
            for (const auto &made : entries)
                QTest::addRow("%s, %s", flavour.first, made.first) << flavour.second << made.second;
        }
    }
    void givesTheListsOfPlainScans()
    {
        QFETCH(Flavour, flavour);
        QFETCH(Texts, entries);
        int answered = 0;
        for (unsigned seed = 1; seed <= 8; ++seed) {
            Life life(seed, flavour, entries, Life::AboutLists);
            const QString difference = life.difference();
            QVERIFY2(difference.isEmpty(), qPrintable(printed("seed", seed) + difference));
            answered += life.answered();
        }
        // Empty lists are easily equal.
        QVERIFY2(answered > 8 * 60, qPrintable(QString::number(answered)));
    }

    void combinesListsAsPlainScansDo_data()
    {
        QTest::addColumn<Texts>("entries");
        QTest::addColumn<int>("longest");

        const Texts oneName { { "x" }, { "x" }, { "s" }, { "S" } };
        const Texts manyNames { { "a", "b", "c", "d", "" }, { "x" }, { "s" }, { "S" } };
        QTest::newRow("one parameter with different values") << oneName << 9;
        QTest::newRow("many of one name") << oneName << 50;
        QTest::newRow("two names and two of each other text")
            << Texts { texts("x X"), texts("x X"),        texts("s S"),
                       texts("S T"), texts("true false"), texts("mm MM") }
            << 25;
        QTest::newRow("many names") << manyNames << 9;
        QTest::newRow("long lists") << manyNames << 50;
        QTest::newRow("entries of any length")
            << Texts { { "a", "b" }, { "x" }, { "s" }, { "S" }, texts("true false"), { "mm" }, 40 }
            << 20;
    }
    void combinesListsAsPlainScansDo()
    {
        QFETCH(Texts, entries);
        QFETCH(int, longest);
        const AUTH_SET library;
        const PlainLists<AUTH_SET> plain(library);
        Dice dice(1);
        for (int round = 0; round < 1000; ++round) {
            const Parameters first = randomParameters(dice, entries, longest);
            const Parameters second = randomParameters(dice, entries, longest);
            VParameter wanted(EntryMaker(dice, entries).entry());
            wanted.set(randomValue(dice));
            const auto answers = [&](const auto &lists) {
                return printed("merged", shown(lists.mergingList(&first, &second)), "\nshared",
                               shown(lists.sharingList(&first, &second)), "\nfound",
                               lists.indexParameterInList(&first, &wanted),
                               lists.isParameterContains(&first, &wanted));
            };
            const QString found = answers(library);
            const QString expected = answers(plain);
            QVERIFY2(found == expected,
                     qPrintable(printed(shown(first), "\n", shown(second), "\n", shown(wanted))
                                + "\nlibrary: " + found + "\nplain: " + expected));
        }
    }
};

QTEST_GUILESS_MAIN(TestAuthSetModels)

#include "tst_auth_set_models.moc"
