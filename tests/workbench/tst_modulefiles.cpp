// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "languages.h"
#include "modules.h"

#include <Kelto/AUTH_INF>
#include <Kelto/AUTH_SET>
#include <Kelto/VIniSettings>
#include <Kelto/VParameter>

#include <QLocale>
#include <QTranslator>
#include <QtTest>

#include "support/directorytest.h"
#include "support/testfiles.h"

namespace {

AUTH_SET registryOf(const QVector<AUTH_INF> &modules)
{
    return { QStringLiteral("Workbench"), QStringLiteral("1.0"), modules };
}

QVector<QStringList> setsForms(const QVector<VParameter> &parameters)
{
    QVector<QStringList> forms;
    for (const VParameter &parameter : parameters)
        forms.append(parameter.toSetsForm());
    return forms;
}

/// A value is a text from a file, and possibly a number from source text.
QStringList extraTexts(const AUTH_INF &module)
{
    QStringList texts;
    for (const VDataItem &extra : module.extraKey)
        texts.append(extra.key + '=' + extra.value.toString());
    return texts;
}

} // namespace

/// The modules from the files against those that were compiled in, and files that are not as they
/// should be.
class tst_ModuleFiles : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override;

    void fieldsAreEqual_data();
    void fieldsAreEqual();
    void oneFileHoldsEverything_data();
    void oneFileHoldsEverything();
    void copiesBesideTheProgramAreEqual();
    void modesAndTheirListsAreEqual_data();
    void modesAndTheirListsAreEqual();
    void everyResultOfAFileIsRead();
    void orderIsThatOfTheFileNames();
    void problems_data();
    void problems();
    void firstProblemOfSeveralFiles();

private:
    void addLanguages() const;
    void compareLists(const AUTH_SET &files, const AUTH_SET &compiled) const;
};

void tst_ModuleFiles::cleanup()
{
    // Installed languages would stay for the next test.
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    DirectoryTest::cleanup();
}

void tst_ModuleFiles::addLanguages() const
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("beam");
    QTest::newRow("English") << "en"
                             << "Beam";
    QTest::newRow("Chinese") << "zh_CN"
                             << "梁";
}

void tst_ModuleFiles::fieldsAreEqual_data()
{
    addLanguages();
}

void tst_ModuleFiles::fieldsAreEqual()
{
    QFETCH(QString, language);
    QFETCH(QString, beam);
    installTranslations(QLocale(language));
    const auto fromFiles = modulesFromFiles(QStringLiteral(WORKBENCH_MODULES));
    QCOMPARE(fromFiles.problem, QString());
    const QVector<AUTH_INF> &files = fromFiles.result;
    // No registry in between: it counts the modules anew.
    const QVector<AUTH_INF> compiled = compiledModules();

    QCOMPARE(files.size(), 5);
    QCOMPARE(compiled.size(), 5);
    QCOMPARE(files.first().name_tr, beam);
    for (int i = 0; i < files.size(); ++i) {
        QCOMPARE(compiled.at(i).number, files.at(i).number);
        QCOMPARE(compiled.at(i).name, files.at(i).name);
        QCOMPARE(compiled.at(i).name_tr, files.at(i).name_tr);
        QCOMPARE(compiled.at(i).description, files.at(i).description);
        QCOMPARE(compiled.at(i).icon, files.at(i).icon);
        QCOMPARE(compiled.at(i).type, files.at(i).type);
        QCOMPARE(compiled.at(i).type_tr, files.at(i).type_tr);
        QCOMPARE(compiled.at(i).group, files.at(i).group);
        QCOMPARE(compiled.at(i).group_tr, files.at(i).group_tr);
        QCOMPARE(compiled.at(i).exclusive_group, files.at(i).exclusive_group);
        QCOMPARE(compiled.at(i).lib_name, files.at(i).lib_name);
        QCOMPARE(compiled.at(i).inner_mode_count, files.at(i).inner_mode_count);
        QCOMPARE(compiled.at(i).inner_mode_description, files.at(i).inner_mode_description);
        QCOMPARE(compiled.at(i).inner_mode_nameList, files.at(i).inner_mode_nameList);
        QCOMPARE(compiled.at(i).inner_mode_nameList_tr, files.at(i).inner_mode_nameList_tr);
        QCOMPARE(compiled.at(i).inner_mode_parameterList, files.at(i).inner_mode_parameterList);
        QCOMPARE(compiled.at(i).trObjectName, files.at(i).trObjectName);
        QCOMPARE(compiled.at(i).codeFunctionName, files.at(i).codeFunctionName);
        QCOMPARE(compiled.at(i).output_results, files.at(i).output_results);
        QCOMPARE(extraTexts(compiled.at(i)), extraTexts(files.at(i)));
    }
}

/// So that no field is empty on both sides of the comparison.
void tst_ModuleFiles::oneFileHoldsEverything_data()
{
    QTest::addColumn<bool>("compiled");
    QTest::newRow("from files") << false;
    QTest::newRow("compiled") << true;
}

void tst_ModuleFiles::oneFileHoldsEverything()
{
    QFETCH(bool, compiled);
    const QVector<AUTH_INF> modules
        = compiled ? compiledModules() : modulesFromFiles(WORKBENCH_MODULES).result;
    const AUTH_INF wall = modules.value(3);

    QCOMPARE(wall.name, QString("Plane wall"));
    QCOMPARE(wall.number, 40);
    QCOMPARE(wall.icon, QString("plane-wall"));
    QCOMPARE(wall.lib_name, (QStringList { "buildingmaterials", "insulation" }));
    QCOMPARE(extraTexts(wall), (QStringList { "Edition=2017", "Standard=ISO 6946" }));
    QCOMPARE(registryOf(modules).AUTH_INF_DATA().value(3).number, 3);
}

/// Under the names and with the content of today's files, also after one was renamed or removed.
void tst_ModuleFiles::copiesBesideTheProgramAreEqual()
{
    const QDir files(WORKBENCH_MODULES, "*.ini", QDir::Name, QDir::Files | QDir::CaseSensitive);
    const QDir copies(WORKBENCH_MODULE_COPIES, "*.ini", QDir::Name,
                      QDir::Files | QDir::CaseSensitive);
    const QStringList names = files.entryList();
    QCOMPARE(copies.entryList(), names);
    for (const QString &name : names)
        QCOMPARE(fileContent(copies.filePath(name)), fileContent(files.filePath(name)));
}

void tst_ModuleFiles::modesAndTheirListsAreEqual_data()
{
    addLanguages();
}

void tst_ModuleFiles::modesAndTheirListsAreEqual()
{
    QFETCH(QString, language);
    QFETCH(QString, beam);
    installTranslations(QLocale(language));
    const AUTH_SET files = registryOf(modulesFromFiles(QStringLiteral(WORKBENCH_MODULES)).result);
    const AUTH_SET compiled = registryOf(compiledModules());

    QCOMPARE(files.currentModeList().size(), 10);
    QCOMPARE(compiled.currentModeList(), files.currentModeList());
    QCOMPARE(compiled.model_name_global(0), beam);
    compareLists(files, compiled);
}

void tst_ModuleFiles::compareLists(const AUTH_SET &files, const AUTH_SET &compiled) const
{
    const QStringList groups = files.exclusive_group_namelist();
    for (const QString &group : groups) {
        const auto modes = files.exclusive_group_inner_mode_namelist_at(group);
        for (const auto &mode : modes) {
            const auto parameters = setsForms(files.defaultParameterList(group, mode.first));
            QVERIFY(!parameters.isEmpty());
            QCOMPARE(setsForms(compiled.defaultParameterList(group, mode.first)), parameters);
        }
    }
    const auto modules = files.AUTH_INF_DATA();
    for (const AUTH_INF &module : modules) {
        const AUTH_INF twin = compiled.AUTH_INF_DATA().value(module.number);
        const auto results = setsForms(files.defaultResultList(&module));
        QCOMPARE(results.isEmpty(), module.name == "Update");
        QCOMPARE(setsForms(compiled.defaultResultList(&twin)), results);
    }
}

/// Only as many results are read as "output_results" lists, so it must not be shorter.
void tst_ModuleFiles::everyResultOfAFileIsRead()
{
    const QDir directory(QStringLiteral(WORKBENCH_MODULES));
    const QStringList names = directory.entryList({ QStringLiteral("*.ini") });
    const auto modules = modulesFromFiles(directory.path());
    QCOMPARE(modules.result.size(), names.size());
    for (int i = 0; i < names.size(); ++i) {
        const VIniSettings file(directory.filePath(names.at(i)));
        QStringList listed = file.value("KeltoItem/output_results").toStringList();
        QStringList described = file.allKeys("Result");
        described.replaceInStrings("Result/", QString());
        QStringList read;
        for (const QStringList &entry : modules.result.at(i).output_results)
            read.append(entry.at(1));
        QCOMPARE(read, described);
        listed.sort();
        described.sort();
        QCOMPARE(listed, described);
    }
}

void tst_ModuleFiles::orderIsThatOfTheFileNames()
{
    QVERIFY(writeFile("2.ini", "[KeltoItem]\nname=second\n"));
    QVERIFY(writeFile("10.ini", "[KeltoItem]\nname=first\n"));
    for (const char *name : { "1.txt", "4.INI", "5.Ini", ".6.ini", "7.ini.bak" })
        QVERIFY(writeFile(name, "[KeltoItem]\nname=no module\n"));
    QVERIFY(QDir().mkdir("3.ini"));

    const auto modules = modulesFromFiles(".");

    QCOMPARE(modules.problem, QString());
    QCOMPARE(modules.result.size(), 2);
    QCOMPARE(modules.result.at(0).name, QStringLiteral("first"));
    QCOMPARE(modules.result.at(1).name, QStringLiteral("second"));
}

void tst_ModuleFiles::problems_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("problem");

    const QString noModule = QStringLiteral("The file \"%1\" holds no module: the section "
                                            "\"KeltoItem\" with a \"name\" is missing.");
    QTest::newRow("missing directory") << "missing"
                                       << "There is no directory \"missing\".";
    QTest::newRow("file instead of a directory") << "rubbish/a.ini"
                                                 << "There is no directory \"rubbish/a.ini\".";
    QTest::newRow("directory without files") << "empty"
                                             << "The directory \"empty\" holds no files *.ini.";
    QTest::newRow("file with an ending in upper case")
        << "shouted"
        << "The directory \"shouted\" holds no files *.ini.";
    QTest::newRow("file that is no INI file") << "rubbish" << noModule.arg("rubbish/a.ini");
    QTest::newRow("empty file") << "blank" << noModule.arg("blank/a.ini");
    QTest::newRow("module without a name") << "nameless" << noModule.arg("nameless/a.ini");
}

void tst_ModuleFiles::problems()
{
    QFETCH(QString, directory);
    QVERIFY(QDir().mkdir("empty"));
    QVERIFY(writeFile("shouted/A.INI", "[KeltoItem]\nname=no module\n"));
    QVERIFY(writeFile("rubbish/a.ini", "\1\2[no section\nno key"));
    QVERIFY(writeFile("blank/a.ini", ""));
    QVERIFY(writeFile("nameless/a.ini", "[KeltoItem]\nname=\ntype=calculation\n"));

    const auto modules = modulesFromFiles(directory);

    QTEST(modules.problem, "problem");
    QVERIFY(modules.result.isEmpty());
    QVERIFY(!QFile::exists("missing"));
}

void tst_ModuleFiles::firstProblemOfSeveralFiles()
{
    QVERIFY(writeFile("1.ini", "[KeltoItem]\nname=good\n"));
    QVERIFY(writeFile("2.ini", ""));
    QVERIFY(writeFile("3.ini", ""));

    const auto modules = modulesFromFiles(".");

    QVERIFY2(modules.problem.startsWith("The file \"./2.ini\""), qPrintable(modules.problem));
    QVERIFY(modules.result.isEmpty());
}

QTEST_GUILESS_MAIN(tst_ModuleFiles)
#include "tst_modulefiles.moc"
