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

#include "support/temporarycurrentdirectory.h"

#include <memory>

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

void write(const QString &path, const char *text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(qstrlen(text)));
}

} // namespace

/// The modules from the files against those that were compiled in, and files that are not as they
/// should be.
class tst_ModuleFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void fieldsAreEqual_data();
    void fieldsAreEqual();
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

    std::unique_ptr<TemporaryCurrentDirectory> m_directory;
};

void tst_ModuleFiles::init()
{
    m_directory = std::make_unique<TemporaryCurrentDirectory>();
    QVERIFY(m_directory->isUsable());
}

void tst_ModuleFiles::cleanup()
{
    // Installed languages would stay for the next test.
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    m_directory.reset();
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
    const auto files = registryOf(fromFiles.result).AUTH_INF_DATA();
    const auto compiled = registryOf(compiledModules()).AUTH_INF_DATA();

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
        QCOMPARE(compiled.at(i).extraKey.size(), files.at(i).extraKey.size());
    }
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
    write("2.ini", "[KeltoItem]\nname=second\n");
    write("10.ini", "[KeltoItem]\nname=first\n");
    write("1.txt", "[KeltoItem]\nname=no module\n");
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
    QTest::newRow("file that is no INI file") << "rubbish" << noModule.arg("rubbish/a.ini");
    QTest::newRow("empty file") << "blank" << noModule.arg("blank/a.ini");
    QTest::newRow("module without a name") << "nameless" << noModule.arg("nameless/a.ini");
}

void tst_ModuleFiles::problems()
{
    QFETCH(QString, directory);
    for (const char *name : { "empty", "rubbish", "blank", "nameless" })
        QVERIFY(QDir().mkdir(name));
    write("rubbish/a.ini", "\1\2[no section\nno key");
    write("blank/a.ini", "");
    write("nameless/a.ini", "[KeltoItem]\nname=\ntype=calculation\n");

    const auto modules = modulesFromFiles(directory);

    QTEST(modules.problem, "problem");
    QVERIFY(modules.result.isEmpty());
    QVERIFY(!QFile::exists("missing"));
}

void tst_ModuleFiles::firstProblemOfSeveralFiles()
{
    write("1.ini", "[KeltoItem]\nname=good\n");
    write("2.ini", "");
    write("3.ini", "");

    const auto modules = modulesFromFiles(".");

    QVERIFY2(modules.problem.startsWith("The file \"./2.ini\""), qPrintable(modules.problem));
    QVERIFY(modules.result.isEmpty());
}

QTEST_GUILESS_MAIN(tst_ModuleFiles)
#include "tst_modulefiles.moc"
