// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "calculator.h"
#include "entry.h"
#include "languages.h"
#include "modules.h"
#include "moduletexts.h"
#include "numbers.h"

#include <Kelto/AUTH_INF>
#include <Kelto/AUTH_SET>

#include <QLocale>
#include <QtTest>

#include "support/temporarycurrentdirectory.h"

namespace {

/// Whether somebody who reads Chinese would take @p text for Chinese.
bool isChinese(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(),
                       [](QChar c) { return c.script() == QChar::Script_Han; });
}

bool isPlain(const QString &text)
{
    return !text.isEmpty() && text == text.trimmed() && !isChinese(text);
}

QVector<QStringList> allEntries(const AUTH_INF &module)
{
    QVector<QStringList> entries = module.output_results;
    for (const auto &parameters : module.inner_mode_parameterList)
        entries += parameters;
    return entries;
}

} // namespace

class tst_Modules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void offer();
    void englishTextsStayAsTheyAre();

    void listsHaveOneEntryPerMode_data();
    void listsHaveOneEntryPerMode();
    void entriesHaveNineStrings_data();
    void entriesHaveNineStrings();
    void plainAndChineseTextsDiffer_data();
    void plainAndChineseTextsDiffer();
    void keysCanBeStoredInFiles_data();
    void keysCanBeStoredInFiles();
    void oneKeyIsDescribedInOneWay_data();
    void oneKeyIsDescribedInOneWay();
    void unitsAreKnown_data();
    void unitsAreKnown();
    void everyModeComputes_data();
    void everyModeComputes();
    void everyResultBelongsToAMode_data();
    void everyResultBelongsToAMode();

    void registryOffersTheModes();
    void entriesOfTheWrongLengthAreLeftAlone();

private:
    void addModules() const;

    QVector<AUTH_INF> m_english;
    QVector<AUTH_INF> m_chinese;
};

void tst_Modules::initTestCase()
{
    installTranslations(QLocale(QStringLiteral("en")));
    m_english = compiledModules();
    installTranslations(QLocale(QStringLiteral("zh_CN")));
    m_chinese = compiledModules();
    QCOMPARE(m_english.size(), m_chinese.size());
}

/// One row per module, in Chinese.
void tst_Modules::addModules() const
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < m_chinese.size(); ++i)
        QTest::newRow(qPrintable(m_chinese.at(i).name)) << i;
}

void tst_Modules::offer()
{
    QStringList modules;
    for (const AUTH_INF &module : qAsConst(m_english)) {
        modules.append(QStringLiteral("%1 (%2%3): %4")
                           .arg(module.name, module.group,
                                module.exclusive_group ? QStringLiteral(", exclusive") : QString(),
                                module.inner_mode_nameList.join(QStringLiteral(", "))));
        QCOMPARE(module.type, QStringLiteral("calculation"));
    }
    const QStringList expected {
        QStringLiteral(
            "Beam (Statics, exclusive): Cantilever, Simply supported, Fixed at both ends"),
        QStringLiteral("Helical spring (Statics, exclusive): Compression, Extension, Torsion"),
        QStringLiteral("Pressure vessel (Vessels, exclusive): Thin wall, Thick wall"),
        QStringLiteral("Plane wall (Heat, exclusive): Steady, With convection"),
        QStringLiteral("Update (Tools): Update"),
    };
    QCOMPARE(modules, expected);
}

void tst_Modules::englishTextsStayAsTheyAre()
{
    for (const AUTH_INF &module : qAsConst(m_english)) {
        QCOMPARE(module.name_tr, module.name);
        QCOMPARE(module.type_tr, module.type);
        QCOMPARE(module.group_tr, module.group);
        QCOMPARE(module.inner_mode_nameList_tr, module.inner_mode_nameList);
        const auto entries = allEntries(module);
        for (const QStringList &entry : entries) {
            QCOMPARE(entry.at(Entry::TranslatedKey), entry.at(Entry::Key));
            QCOMPARE(entry.at(Entry::TranslatedGroup), entry.at(Entry::Group));
        }
    }
}

void tst_Modules::listsHaveOneEntryPerMode_data()
{
    addModules();
}

void tst_Modules::listsHaveOneEntryPerMode()
{
    QFETCH(int, index);
    const AUTH_INF &module = m_chinese.at(index);
    QCOMPARE(module.inner_mode_nameList.size(), module.inner_mode_count);
    QCOMPARE(module.inner_mode_nameList_tr.size(), module.inner_mode_count);
    QCOMPARE(module.inner_mode_description.size(), module.inner_mode_count);
    QCOMPARE(module.inner_mode_parameterList.size(), module.inner_mode_count);
}

void tst_Modules::entriesHaveNineStrings_data()
{
    addModules();
}

void tst_Modules::entriesHaveNineStrings()
{
    QFETCH(int, index);
    const auto entries = allEntries(m_chinese.at(index));
    const QStringList truths { QStringLiteral("true"), QStringLiteral("false") };
    for (const QStringList &entry : entries) {
        QCOMPARE(entry.size(), 9);
        QVERIFY2(!entry.contains(QString()), qPrintable(entry.join(QLatin1Char('|'))));
        QVERIFY2(truths.contains(entry.at(Entry::Multi)), qPrintable(entry.at(Entry::Multi)));
    }
}

void tst_Modules::plainAndChineseTextsDiffer_data()
{
    addModules();
}

void tst_Modules::plainAndChineseTextsDiffer()
{
    QFETCH(int, index);
    const AUTH_INF &module = m_chinese.at(index);
    QVector<QPair<QString, QString>> pairs {
        { module.name, module.name_tr },
        { module.type, module.type_tr },
        { module.group, module.group_tr },
        { m_english.at(index).description, module.description },
    };
    for (int mode = 0; mode < module.inner_mode_count; ++mode) {
        pairs.append(
            { module.inner_mode_nameList.at(mode), module.inner_mode_nameList_tr.at(mode) });
        pairs.append({ m_english.at(index).inner_mode_description.at(mode),
                       module.inner_mode_description.at(mode) });
    }
    const auto entries = allEntries(module);
    for (const QStringList &entry : entries) {
        pairs.append({ entry.at(Entry::Key), entry.at(Entry::TranslatedKey) });
        pairs.append({ entry.at(Entry::Group), entry.at(Entry::TranslatedGroup) });
    }
    for (const auto &pair : qAsConst(pairs)) {
        QVERIFY2(isPlain(pair.first), qPrintable(pair.first));
        QVERIFY2(isChinese(pair.second), qPrintable(pair.first));
    }
}

void tst_Modules::keysCanBeStoredInFiles_data()
{
    addModules();
}

/// "/" separates sections from keys in INI files, and ":" the parts of standard mode names.
void tst_Modules::keysCanBeStoredInFiles()
{
    QFETCH(int, index);
    const AUTH_INF &module = m_chinese.at(index);
    const auto entries = allEntries(module);
    for (const QStringList &entry : entries)
        QVERIFY2(!entry.at(Entry::Key).contains(QLatin1Char('/')),
                 qPrintable(entry.at(Entry::Key)));
    const QStringList names = module.inner_mode_nameList + module.inner_mode_nameList_tr
        + QStringList { module.group, module.group_tr };
    for (const QString &name : names)
        QVERIFY2(!name.contains(QLatin1Char(':')), qPrintable(name));
}

void tst_Modules::oneKeyIsDescribedInOneWay_data()
{
    addModules();
}

/// A file describes each key of a module once, for all modes and for parameters and results alike.
void tst_Modules::oneKeyIsDescribedInOneWay()
{
    QFETCH(int, index);
    QMap<QString, QStringList> byKey;
    const auto entries = allEntries(m_chinese.at(index));
    for (const QStringList &entry : entries) {
        const QString key = entry.at(Entry::Key);
        if (byKey.contains(key))
            QCOMPARE(entry, byKey.value(key));
        byKey.insert(key, entry);
    }
    QCOMPARE(byKey.isEmpty(), m_chinese.at(index).name == QLatin1String("Update"));
}

void tst_Modules::unitsAreKnown_data()
{
    addModules();
}

void tst_Modules::unitsAreKnown()
{
    QFETCH(int, index);
    const auto entries = allEntries(m_chinese.at(index));
    for (const QStringList &entry : entries) {
        QVERIFY2(siFactor(entry.at(Entry::Unit)) > 0, qPrintable(entry.at(Entry::Unit)));
        QVERIFY2(siFactor(entry.at(Entry::SiUnit)) == 1, qPrintable(entry.at(Entry::SiUnit)));
    }
}

void tst_Modules::everyModeComputes_data()
{
    addModules();
}

void tst_Modules::everyModeComputes()
{
    QFETCH(int, index);
    const AUTH_INF &module = m_chinese.at(index);
    for (const QString &mode : module.inner_mode_nameList) {
        NumbersByKey values;
        for (const QStringList &entry :
             module.inner_mode_parameterList.at(module.inner_mode_nameList.indexOf(mode))) {
            const bool several = entry.at(Entry::Multi) == QLatin1String("true");
            const auto value
                = valueFromText(Calculator::defaultText(entry.at(Entry::Key)), several);
            QVERIFY2(value.isValid(), qPrintable(entry.at(Entry::Key) + value.problem));
            values.insert(entry.at(Entry::Key), numbersFromValue(value.result, several));
        }
        const auto outcome = Calculator::calculate(module, mode, values);
        const bool isCalculation = module.name != QLatin1String("Update");
        QVERIFY2(outcome.isValid() == isCalculation, qPrintable(outcome.problem));

        QStringList keys = Calculator::resultKeys(module, mode);
        keys.sort();
        QCOMPARE(QStringList(outcome.result.keys()), keys);
        QCOMPARE(keys.isEmpty(), !isCalculation);
    }
}

void tst_Modules::everyResultBelongsToAMode_data()
{
    addModules();
}

void tst_Modules::everyResultBelongsToAMode()
{
    QFETCH(int, index);
    const AUTH_INF &module = m_chinese.at(index);
    QStringList computed;
    for (const QString &mode : module.inner_mode_nameList)
        computed += Calculator::resultKeys(module, mode);
    for (const QStringList &entry : module.output_results)
        QVERIFY2(computed.contains(entry.at(Entry::Key)), qPrintable(entry.at(Entry::Key)));
    QCOMPARE(computed.isEmpty(), module.output_results.isEmpty());
}

void tst_Modules::registryOffersTheModes()
{
    const TemporaryCurrentDirectory directory;
    QVERIFY(directory.isUsable());
    const AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1"), m_chinese);

    const auto modes = registry.currentModeList();

    QCOMPARE(modes.size(), 10);
    QCOMPARE(modes.first().first, QStringLiteral("Workbench:Statics:Cantilever"));
    QCOMPARE(modes.first().second, QStringLiteral("Workbench:静力学:悬臂"));
    QCOMPARE(modes.last().first, QStringLiteral("Workbench:Heat:With convection"));
    QCOMPARE(modes.last().second, QStringLiteral("Workbench:传热:带对流"));
    // Distinct names, or two modes would share an entry in the dialog.
    const QStringList groups = registry.exclusive_group_namelist();
    for (const QString &group : groups) {
        QCOMPARE(registry.exclusive_group_inner_mode_namelist_at(group).size(),
                 registry.exclusive_group_mode_count(group));
    }
    QVERIFY(QFile::exists(registry.filepath_update_inf()));
}

void tst_Modules::entriesOfTheWrongLengthAreLeftAlone()
{
    AUTH_INF module = m_english.first();
    const QStringList stub { QStringLiteral("Geometry"), QStringLiteral("Length") };
    module.output_results = { stub };
    module.inner_mode_parameterList = { { stub, QStringList() } };

    translateTexts(module);

    QCOMPARE(module.output_results.first(), stub);
    QCOMPARE(module.inner_mode_parameterList.first().first(), stub);
    QCOMPARE(module.name_tr, QStringLiteral("梁"));
}

QTEST_GUILESS_MAIN(tst_Modules)
#include "tst_modules.moc"
