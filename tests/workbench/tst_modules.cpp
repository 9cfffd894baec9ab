// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "calculations/units.h"
#include "modules.h"

#include <Kelto/AUTH_INF>
#include <Kelto/AUTH_SET>
#include <Kelto/KeltoItemHints>
#include <Kelto/KeltoItemTranslation>
#include <Kelto/KeltoParameterEntry>
#include <Kelto/VIniSettings>

#include <QLocale>
#include <QtTest>

#include "support/directorytest.h"
#include "support/testfiles.h"

Q_DECLARE_METATYPE(AUTH_INF)

namespace {

using Modules = QVector<AUTH_INF>;
/// A plain text, and what the user reads.
using TextPairs = QVector<QPair<QString, QString>>;

bool isChinese(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(),
                       [](QChar c) { return c.script() == QChar::Script_Han; });
}

QVector<QStringList> allEntries(const AUTH_INF &module)
{
    QVector<QStringList> entries = module.output_results;
    for (const auto &parameters : module.inner_mode_parameterList)
        entries += parameters;
    return entries;
}

/// Every text of a module that is shown; its descriptions beside those of its English twin.
TextPairs textPairs(const AUTH_INF &module, const AUTH_INF &english)
{
    TextPairs pairs { { module.name, module.name_tr },
                      { module.type, module.type_tr },
                      { module.group, module.group_tr },
                      { english.description, module.description } };
    for (int mode = 0; mode < module.inner_mode_count; ++mode) {
        pairs.append(
            { module.inner_mode_nameList.value(mode), module.inner_mode_nameList_tr.value(mode) });
        pairs.append({ english.inner_mode_description.value(mode),
                       module.inner_mode_description.value(mode) });
    }
    const auto entries = allEntries(module);
    for (const QStringList &entry : entries) {
        pairs.append({ entry.value(KeltoParameterEntry::Key),
                       entry.value(KeltoParameterEntry::TranslatedKey) });
        pairs.append({ entry.value(KeltoParameterEntry::Group),
                       entry.value(KeltoParameterEntry::TranslatedGroup) });
    }
    return pairs;
}

/// A value is a text from a file, and possibly a number from source text.
QStringList extraTexts(const AUTH_INF &module)
{
    QStringList texts;
    for (const VDataItem &extra : module.extraKey)
        texts.append(extra.key + '=' + extra.value.toString());
    return texts;
}

QStringList iniFilesIn(const QString &directory)
{
    return QDir(directory, "*.ini", QDir::Name, QDir::Files | QDir::CaseSensitive).entryList();
}

} // namespace

/// The modules from the files and those that were compiled in, both in Chinese and in English, and
/// files that are not as they should be.
class tst_Modules : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The language that was installed last is in force.
        for (const char *language : { "en", "zh_CN" }) {
            installTranslations(QLocale(language));
            auto files = modulesFromFiles(WORKBENCH_MODULES);
            QCOMPARE(files.problem, QString());
            for (AUTH_INF &module : files.result)
                KeltoItemTranslation::translate(&module);
            QCOMPARE(files.result.size(), 5);
            QCOMPARE(compiledModules().size(), 5);
            m_modules.append({ files.result, compiledModules() });
        }
    }

    void offer_data() { addSources(); }
    void offer()
    {
        QFETCH(int, source);
        const Modules modules = m_modules.at(English).at(source);
        QStringList offer;
        for (const AUTH_INF &module : modules)
            offer.append(QString("%1, %2 (%3%4): %5")
                             .arg(module.name, module.type, module.group,
                                  module.exclusive_group ? ", exclusive" : "",
                                  module.inner_mode_nameList.join(", ")));
        const QStringList expected {
            "Beam, calculation (Statics, exclusive): Cantilever, Simply supported, Fixed at both "
            "ends",
            "Helical spring, calculation (Statics, exclusive): Compression, Extension, Torsion",
            "Pressure vessel, calculation (Vessels, exclusive): Thin wall, Thick wall",
            "Plane wall, calculation (Heat, exclusive): Steady, With convection",
            "Update, calculation (Tools): Update",
        };
        QCOMPARE(offer, expected);
        // So that no field is empty on both sides where files and compiled modules are compared.
        const AUTH_INF wall = modules.at(3);
        QCOMPARE(wall.number, 40);
        QCOMPARE(wall.icon, QString("plane-wall"));
        QCOMPARE(wall.lib_name, (QStringList { "buildingmaterials", "insulation" }));
        QVERIFY(extraTexts(wall).contains("Edition=2017"));
        QVERIFY(extraTexts(wall).contains("Default.Layer thickness=15; 240; 120; 20"));
    }

    void filesAndCompiledModulesAreEqual()
    {
        for (const auto &sources : qAsConst(m_modules)) {
            for (int i = 0; i < 5; ++i) {
                const AUTH_INF &file = sources.at(Files).at(i);
                const AUTH_INF &compiled = sources.at(Compiled).at(i);
                // The source text of a module holds all of it but the translated names.
                QCOMPARE(compiled.to_code(), file.to_code());
                QCOMPARE(textPairs(compiled, compiled), textPairs(file, file));
            }
        }
    }

    void textsAreTranslated_data() { addSources(); }
    void textsAreTranslated()
    {
        QFETCH(int, source);
        for (int i = 0; i < 5; ++i) {
            const AUTH_INF &english = m_modules.at(English).at(source).at(i);
            const auto untranslated = textPairs(english, english);
            for (const auto &pair : untranslated)
                QCOMPARE(pair.second, pair.first);
            const auto pairs = textPairs(m_modules.at(Chinese).at(source).at(i), english);
            for (const auto &pair : pairs) {
                QVERIFY2(!pair.first.isEmpty() && pair.first == pair.first.trimmed()
                             && !isChinese(pair.first),
                         qPrintable(pair.first));
                QVERIFY2(isChinese(pair.second), qPrintable(pair.first));
            }
        }
    }

    void everyTranslationIsFinished()
    {
        const QByteArray translations = fileContent(WORKBENCH_TRANSLATIONS);
        QVERIFY(translations.count("<translation>") > 100);
        QCOMPARE(translations.count("<translation type="), 0);
        QCOMPARE(translations.count("<translation></translation>"), 0);
    }

    void modesAreDescribed_data() { addModules(); }
    void modesAreDescribed()
    {
        QFETCH(AUTH_INF, module);
        QCOMPARE(module.inner_mode_nameList.size(), module.inner_mode_count);
        QCOMPARE(module.inner_mode_nameList_tr.size(), module.inner_mode_count);
        QCOMPARE(module.inner_mode_description.size(), module.inner_mode_count);
        QCOMPARE(module.inner_mode_parameterList.size(), module.inner_mode_count);
        // Standard mode names have colons between their parts.
        const QStringList names = module.inner_mode_nameList + module.inner_mode_nameList_tr
            + QStringList { module.group, module.group_tr };
        QVERIFY(!names.join(' ').contains(':'));
    }

    void entriesAreWhole_data() { addModules(); }
    void entriesAreWhole()
    {
        QFETCH(AUTH_INF, module);
        QMap<QString, QStringList> byKey;
        const auto entries = allEntries(module);
        for (const QStringList &entry : entries) {
            QCOMPARE(entry.size(), 9);
            const QString text = entry.join('|');
            // A choice has neither symbol nor unit, a number without dimension no unit.
            const bool isChoice = entry.at(KeltoParameterEntry::ObjectName) == "choice";
            for (int place = 0; place < entry.size(); ++place) {
                const bool isUnit = place == KeltoParameterEntry::Unit
                    || place == KeltoParameterEntry::SecondUnit;
                const bool mayBeEmpty
                    = isUnit || (isChoice && place == KeltoParameterEntry::Symbol);
                QVERIFY2(mayBeEmpty || !entry.at(place).isEmpty(), qPrintable(text));
            }
            QCOMPARE(entry.at(KeltoParameterEntry::Unit).isEmpty(),
                     entry.at(KeltoParameterEntry::SecondUnit).isEmpty());
            QVERIFY2(!entry.contains("-"), qPrintable(text)); // which a form would show
            QVERIFY2(
                (QStringList { "true", "false" }).contains(entry.at(KeltoParameterEntry::Multi)),
                qPrintable(text));
            QVERIFY2(siFactor(entry.at(KeltoParameterEntry::Unit)) > 0, qPrintable(text));
            QVERIFY2(siFactor(entry.at(KeltoParameterEntry::SecondUnit)) == 1, qPrintable(text));
            // In INI files a slash separates the section from the key.
            const QString key = entry.at(KeltoParameterEntry::Key);
            QVERIFY2(!key.contains('/'), qPrintable(text));
            // A file describes a key once for all modes, parameters and results.
            QCOMPARE(entry, byKey.value(key, entry));
            byKey.insert(key, entry);
        }
        QCOMPARE(byKey.isEmpty(), module.name == "Update");
    }

    void registryOffersTheModes()
    {
        const AUTH_SET registry("Workbench", "1", m_modules.at(Chinese).at(Files));
        const auto modes = registry.currentModeList();
        QCOMPARE(modes.size(), 10);
        QCOMPARE(modes.first().first, QString("Workbench:Statics:Cantilever"));
        QCOMPARE(modes.last().second, QString("Workbench:传热:带对流"));
        // Modes of one name would share an entry in the dialog.
        const QStringList groups = registry.exclusive_group_namelist();
        for (const QString &group : groups)
            QCOMPARE(registry.exclusive_group_inner_mode_namelist_at(group).size(),
                     registry.exclusive_group_mode_count(group));
        QVERIFY(QFile::exists(registry.filepath_update_inf()));
    }

    void hintsMakeSense_data() { addModules(); }
    void hintsMakeSense()
    {
        QFETCH(AUTH_INF, module);
        QStringList problems;
        const auto found = KeltoItemHints(module).problems();
        for (const KeltoItemHints::Problem &problem : found)
            problems.append(problem.extraKey + ": " + problem.text());
        QCOMPARE(problems, QStringList());
    }

    /// Every text of a hint that is shown is there in Chinese.
    void hintsAreTranslated_data() { addModules(); }
    void hintsAreTranslated()
    {
        QFETCH(AUTH_INF, module);
        for (const QString &mode : qAsConst(module.inner_mode_nameList)) {
            const KeltoItemHints hints(module, mode);
            const auto shown = hints.parameters() + hints.results();
            for (const VParameter &parameter : shown) {
                const QString key = parameter.name().first;
                QStringList texts { hints.help(key), hints.label(key) };
                const auto choices = hints.choices(key);
                for (const KeltoItemHints::Choice &choice : choices)
                    texts.append(choice.label);
                for (const QString &text : qAsConst(texts))
                    QVERIFY2(text.isEmpty() || isChinese(text), qPrintable(text));
            }
        }
    }

    /// Only as many results are read as "output_results" lists, so it must not be shorter.
    void everyResultOfAFileIsRead()
    {
        const QStringList names = iniFilesIn(WORKBENCH_MODULES);
        for (int i = 0; i < names.size(); ++i) {
            const VIniSettings file(WORKBENCH_MODULES "/" + names.at(i));
            QStringList listed = file.value("KeltoItem/output_results").toStringList();
            QStringList described = file.allKeys("Result");
            described.replaceInStrings("Result/", QString());
            QStringList read;
            for (const QStringList &entry : m_modules.at(English).at(Files).at(i).output_results)
                read.append(entry.at(KeltoParameterEntry::Key));
            QCOMPARE(read, described);
            listed.sort();
            described.sort();
            QCOMPARE(listed, described);
        }
    }

    void orderIsThatOfTheFileNames()
    {
        QVERIFY(writeFile("2.ini", "[KeltoItem]\nname=second\n"));
        QVERIFY(writeFile("10.ini", "[KeltoItem]\nname=first\n"));
        for (const char *name : { "1.txt", "4.INI", "5.Ini", ".6.ini", "7.ini.bak" })
            QVERIFY(writeFile(name, "[KeltoItem]\nname=no module\n"));
        QVERIFY(QDir().mkdir("3.ini"));

        const auto modules = modulesFromFiles(".");

        QCOMPARE(modules.problem, QString());
        QCOMPARE(modules.result.size(), 2);
        QCOMPARE(modules.result.at(0).name, QString("first"));
        QCOMPARE(modules.result.at(1).name, QString("second"));
    }

    void problems_data()
    {
        QTest::addColumn<QString>("directory");
        QTest::addColumn<QString>("problem");
        const QString noFiles = "\"%1\" is no directory with files *.ini to read.";
        const QString noModule = "The file \"%1/2.ini\" cannot be read, or holds no module: a "
                                 "section \"KeltoItem\" with a \"name\".";
        QTest::newRow("missing directory") << "missing" << noFiles;
        QTest::newRow("file instead of a directory") << "blank/1.ini" << noFiles;
        QTest::newRow("directory without files") << "empty" << noFiles;
        QTest::newRow("file with an ending in upper case") << "shouted" << noFiles;
        QTest::newRow("file that is no INI file") << "rubbish" << noModule;
        QTest::newRow("first empty file of several") << "blank" << noModule;
        QTest::newRow("module without a name") << "nameless" << noModule;
    }
    void problems()
    {
        QFETCH(QString, directory);
        QFETCH(QString, problem);
        QVERIFY(QDir().mkdir("empty"));
        QVERIFY(writeFile("shouted/A.INI", "[KeltoItem]\nname=no module\n"));
        QVERIFY(writeFile("rubbish/2.ini", "\1\2[no section\nno key"));
        QVERIFY(writeFile("blank/1.ini", "[KeltoItem]\nname=good\n"));
        QVERIFY(writeFile("blank/2.ini", ""));
        QVERIFY(writeFile("blank/3.ini", ""));
        QVERIFY(writeFile("nameless/2.ini", "[KeltoItem]\nname=\ntype=calculation\n"));

        const auto modules = modulesFromFiles(directory);

        QCOMPARE(modules.problem, problem.arg(directory));
        QVERIFY(modules.result.isEmpty());
        QVERIFY(!QFile::exists("missing"));
    }

private:
    enum Language { English, Chinese };
    enum Source { Files, Compiled };

    static void addSources()
    {
        QTest::addColumn<int>("source");
        QTest::newRow("modules from files") << int(Files);
        QTest::newRow("compiled modules") << int(Compiled);
    }

    /// One row per module.
    void addModules() const
    {
        QTest::addColumn<AUTH_INF>("module");
        for (const AUTH_INF &module : m_modules.at(Chinese).at(Files))
            QTest::newRow(qPrintable(module.name)) << module;
    }

    /// By language and source.
    QVector<QVector<Modules>> m_modules;
};

QTEST_GUILESS_MAIN(tst_Modules)
#include "tst_modules.moc"
