// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Random registries and random changes of them, with every answer of AUTH_SET compared to that of
// the plain scans of PlainRegistry. A failure names the seed and all steps that led to it.

#include "models/plainregistry.h"
#include "support/directorytest.h"
#include "support/randomitems.h"
#include "support/twins.h"

#include <Kelto/AUTH_SET>

#include <QtTest>

#include <iterator>
#include <type_traits>

namespace {

/// Enough of each item to tell which one it is and that it was numbered.
QVector<QPair<int, QString>> identities(const QVector<AUTH_INF> &items)
{
    QVector<QPair<int, QString>> result;
    for (const AUTH_INF &item : items)
        result.append({ item.number, item.description });
    return result;
}

// --- Questions ---------------------------------------------------------------------

void askAboutModules(Twins<PlainRegistry> &twins, const QStringList &names)
{
    const auto ofType = [](auto &registry, const QString &type) {
        return identities(registry.AUTH_INF_list_by_type(type));
    };
    const auto ofGroup = [](auto &registry, const QString &group) {
        return identities(registry.AUTH_INF_list_by_group(group));
    };
    twins.ask("AUTH_INF_DATA", [](auto &registry) { return identities(registry.AUTH_INF_DATA()); });
    twins.ask(OPERATION(model_count));
    for (const QString &name : names) {
        twins.ask(OPERATION(index), name);
        twins.ask(OPERATION(model_exists), name);
        twins.ask(OPERATION(information), name);
        twins.ask("AUTH_INF_list_by_type", ofType, name);
        twins.ask("AUTH_INF_list_by_group", ofGroup, name);
    }
}

void askByIndex(Twins<PlainRegistry> &twins)
{
    for (int i = -1; i < 12; ++i) {
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

void askAboutGroup(Twins<PlainRegistry> &twins, const QString &group, const QStringList &names)
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
    for (const QString &mode : names) {
        twins.ask(OPERATION(findExclusiveGroupInnerModeName), group, mode);
        twins.ask(OPERATION(exclusive_group_innerMode_index), group, mode);
        twins.ask(OPERATION(exclusive_group_parameter_settings_origin), group, mode);
        twins.ask(OPERATION(stdModeNameForm), group, mode);
    }
}

/// Standard mode names of every group and mode, made by hand so that most of them are nobody's.
QStringList modeCodes(const QString &application, const QStringList &names)
{
    QStringList codes { QStringLiteral("nowhere") };
    for (const QString &group : names) {
        for (const QString &mode : names)
            codes.append(QStringList { application, group, mode }.join(QLatin1Char(':')));
    }
    return codes + codes.mid(0, 3);
}

void askEverything(Twins<PlainRegistry> &twins, const Flavour &flavour)
{
    const QStringList names = flavour.allNames();
    askAboutModules(twins, names);
    askByIndex(twins);
    twins.ask(OPERATION(exclusive_group_namelist));
    twins.ask(OPERATION(exclusive_group_namelist_global));
    twins.ask(OPERATION(currentExclusiveGroupList));
    for (const QString &group : names)
        askAboutGroup(twins, group, names);
    twins.ask(OPERATION(currentModeList));
    const QStringList codes = modeCodes(flavour.application, names);
    twins.ask(OPERATION(currentModeMatching), codes);
    twins.ask(OPERATION(currentModeMatchingCount), codes);
}

// --- Changes -----------------------------------------------------------------------

/// The random life of one registry and of the copies that it leaves behind.
class Life : private TwinLife<PlainRegistry>
{
public:
    Life(unsigned seed, const Flavour &flavour)
        : TwinLife(seed)
        , m_flavour(flavour)
        , m_names(flavour.allNames())
        , m_maker(m_dice, flavour)
    {
    }

    /// What AUTH_SET answers differently from the plain scans; empty when it does not.
    QString difference()
    {
        construct();
        for (int step = m_dice.between(1, 12); step > 0 && !m_twins.differ(); --step) {
            if (m_dice.chance(50))
                askEverything(m_twins, m_flavour);
            takeStep();
        }
        return differenceAtTheEnd([this](auto &twins) { askEverything(twins, m_flavour); });
    }

private:
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

    void construct()
    {
        const auto items = m_maker.items(m_dice.between(0, 5));
        m_twins.change(printed("construct", items), [&](auto &registry) {
            registry = std::decay_t<decltype(registry)>(m_flavour.application, QString(), items);
        });
    }

    void appendOne()
    {
        const AUTH_INF item = m_maker.item();
        m_twins.change(printed("append", item), [&](auto &registry) { registry.append(item); });
    }

    void appendSeveral()
    {
        const auto items = m_maker.items(m_dice.between(0, 3));
        m_twins.change(printed("append", items), [&](auto &registry) { registry.append(items); });
    }

    void acquire()
    {
        const auto items = m_maker.items(m_dice.between(0, 4));
        m_twins.change(printed("acquire", items), [&](auto &registry) { registry.acquire(items); });
    }

    void clear()
    {
        m_twins.change(QStringLiteral("clear"), [](auto &registry) { registry.clear(); });
    }

    void refresh()
    {
        m_twins.change(QStringLiteral("refresh_group"),
                       [](auto &registry) { registry.refresh_group(); });
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
    QStringList m_names;
    ItemMaker m_maker;
};

} // namespace

Q_DECLARE_METATYPE(Flavour)

class TestAuthSetReference : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void answersAsPlainScansDo_data();
    void answersAsPlainScansDo();
};

void TestAuthSetReference::answersAsPlainScansDo_data()
{
    const auto list = [](const char *names) {
        return QString::fromUtf8(names).split(QLatin1Char(' '), Qt::KeepEmptyParts);
    };
    QTest::addColumn<Flavour>("flavour");

    QTest::newRow("plain and translated names apart")
        << Flavour { list("A B C D"), list("a b c d") };
    QTest::newRow("translated names of some are plain names of others")
        << Flavour { list("A B C"), list("A B C") };
    QTest::newRow("groups share translated names")
        << Flavour { list("A B C D E"), list("A x"), 80 };
    QTest::newRow("empty names") << Flavour { list(" A B"), list(" A x") };
    QTest::newRow("empty names in groups that share a translated name")
        << Flavour { list(" A B C"), list("x"), 80 };
    QTest::newRow("colons in names") << Flavour { list("A : A:B B"), list("B :B A:B x") };
    QTest::newRow("case counts") << Flavour { list("A a"), list("a A") };
    QTest::newRow("names beyond ASCII") << Flavour { list("甲 乙 é"), list("乙 丙 E") };
    QTest::newRow("few flags") << Flavour { list("A B C"), list("a b C"), 15 };
    QTest::newRow("no flag at all") << Flavour { list("A B"), list("a B"), 0 };
    QTest::newRow("lists of equal length") << Flavour { list("A B C"), list("a B c"), 60, 100 };
    QTest::newRow("lists of any length") << Flavour { list("A B C"), list("a B c"), 60, 0 };
    QTest::newRow("application without a name")
        << Flavour { list("A B"), list("a B"), 60, 50, QString() };
    QTest::newRow("colon in the application's name")
        << Flavour { list("A B"), list("a B"), 60, 50, QStringLiteral("A:B") };
}

void TestAuthSetReference::answersAsPlainScansDo()
{
    QFETCH(Flavour, flavour);

    for (unsigned seed = 1; seed <= 50; ++seed) {
        const QString difference = Life(seed, flavour).difference();
        QVERIFY2(difference.isEmpty(), qPrintable(printed("seed", seed) + difference));
    }
}

QTEST_GUILESS_MAIN(TestAuthSetReference)

#include "tst_auth_set_reference.moc"
