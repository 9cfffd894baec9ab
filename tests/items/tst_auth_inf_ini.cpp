// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What a module item writes into an INI file and reads from one.

#include "models/plainitems.h"
#include "support/directorytest.h"
#include "support/harditems.h"
#include "support/itemjson.h"
#include "support/referencefile.h"
#include "support/testfiles.h"

#include <Kelto/AUTH_INF>

#include <QTest>

#include <algorithm>

namespace {

/// An item with nothing in any field, which no constructor makes.
AUTH_INF emptyItem()
{
    AUTH_INF item;
    item.name = item.name_tr = QString();
    item.type = item.type_tr = QString();
    item.group = item.group_tr = QString();
    item.inner_mode_count = 0;
    item.inner_mode_description.clear();
    item.inner_mode_nameList.clear();
    item.inner_mode_nameList_tr.clear();
    return item;
}

/// What a file that fullItem() wrote holds of it.
AUTH_INF storedFullItem()
{
    AUTH_INF item = fullItem();
    item.name_tr = item.name;
    item.type_tr = item.type;
    item.group_tr = item.group;
    item.inner_mode_nameList_tr = item.inner_mode_nameList;
    for (ParameterEntries &entries : item.inner_mode_parameterList) {
        for (QStringList &strings : entries) {
            strings[7] = strings.at(1);
            strings[8] = strings.at(0);
        }
    }
    item.output_results.clear();
    std::sort(item.extraKey.begin(), item.extraKey.end(),
              [](const VDataItem &a, const VDataItem &b) { return a.key < b.key; });
    return item;
}

/// A file as another program may write it: everything has every kind of value.
class FileMaker
{
public:
    explicit FileMaker(unsigned seed)
        : m_dice(seed)
    {
    }

    Entries content()
    {
        Entries entries;
        for (const char *field :
             { "number", "name", "description", "icon", "type", "group", "exclusive_group",
               "lib_name", "inner_mode_description", "Tr_ObjectName", "codeFunctionName",
               "output_results", "name_tr", "Name", "trObjectName" })
            add(entries, QLatin1String("KeltoItem/") + field, 70, value());
        add(entries, "KeltoItem/inner_mode_nameList", 90, names());
        add(entries, "KeltoItem/inner_mode_count", 90,
            m_dice.oneOf({ "0", "1", "2", "4", "-1", "2147483647", "3.7" }));
        for (const char *section : { "Attribute", "Belong", "Result", "ExtraKey", "Unit", "Symbol",
                                     "Multi", "ObjectName", "Group" }) {
            const bool saysWhere = qstrcmp(section, "Belong") == 0;
            for (const char *key : { "", "/x", "/X", "/y", "/键", "/a/x", "/x/z", "/z" })
                add(entries, QLatin1String(section) + QString(key), saysWhere ? 90 : 50,
                    saysWhere ? names() : value());
        }
        return entries;
    }

private:
    void add(Entries &entries, const QString &key, int percent, const QVariant &toAdd)
    {
        if (m_dice.chance(percent))
            entries.append({ key, toAdd });
    }
    QVariant names() { return m_dice.someOf({ "A", "a", "模式", "" }, m_dice.between(0, 5)); }
    QVariant value()
    {
        const QStringList words { "", "text", "true", "FALSE", "no", "7", "-3", "3.7", "两, 端" };
        const int kind = m_dice.between(0, 5);
        return kind == 0 ? QVariant()
            : kind < 3   ? QVariant(m_dice.someOf(words, m_dice.between(0, 4)))
                         : QVariant(m_dice.oneOf(words));
    }

    Dice m_dice;
};

QByteArray everyByte()
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes.append(char(i));
    return bytes;
}

} // namespace

class TestAuthInfIni : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void writesTheReferenceFile()
    {
        fullItem().save_ini("item.ini");
        const QString difference
            = differenceFromReference(QString::fromUtf8(fileContent("item.ini")), reference);
        QVERIFY2(difference.isEmpty(), qUtf8Printable(difference));
    }

    void readsTheReferenceFile()
    {
        QVERIFY(QFile::copy(reference, "item.ini"));
        QCOMPARE(differencesAfterLoading("item.ini", storedFullItem()), QString());
    }

    void savesAndLoadsLikeThePlainModel_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 20; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    /// Several items one after the other into one file.
    void savesAndLoadsLikeThePlainModel()
    {
        QFETCH(unsigned, seed);
        HardItemMaker maker(seed);
        for (int save = 0; save < 4; ++save) {
            const AUTH_INF item = maker.item();
            item.save_ini("item.ini");
            PlainItems::save(item, "plain.ini");
            QCOMPARE(fileContent("item.ini"), fileContent("plain.ini"));
            // A process may remember of its own files what is not in them, but not of a copy.
            const QString copy = QStringLiteral("%1.ini").arg(save);
            QVERIFY(QFile::copy("item.ini", copy));
            QCOMPARE(differencesAfterLoading(copy, PlainItems::load(copy)), QString());
        }
    }

    void loadsLikeThePlainModel_data() { savesAndLoadsLikeThePlainModel_data(); }
    void loadsLikeThePlainModel()
    {
        QFETCH(unsigned, seed);
        FileMaker maker(seed);
        for (int round = 0; round < 5; ++round) {
            const QString path = QStringLiteral("%1.ini").arg(round);
            saveWithQSettings("written.ini", maker.content());
            QVERIFY(QFile::rename("written.ini", path));
            QCOMPARE(differencesAfterLoading(path, PlainItems::load(path)), QString());
        }
    }

    void emptiesEveryField_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("content");

        QTest::newRow("no path") << "" << QByteArray();
        QTest::newRow("a missing file") << "missing.ini" << QByteArray();
        QTest::newRow("a file in a missing directory") << "missing/item.ini" << QByteArray();
        QTest::newRow("a directory") << "directory" << QByteArray();
        QTest::newRow("text that is no INI text") << "item.ini" << QByteArray("name Beam\nand");
        QTest::newRow("every byte there is") << "item.ini" << everyByte();
        QTest::newRow("bytes that are no UTF-8")
            << "item.ini" << QByteArray("\xff\xfe\x80[\xc3\n\xe4=");
        QTest::newRow("sections alone")
            << "item.ini" << QByteArray("[KeltoItem]\n[Attribute]\n[Result]\n[ExtraKey]");
    }
    void emptiesEveryField()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, content);
        QVERIFY(QDir().mkdir("directory"));
        if (!content.isNull())
            QVERIFY(writeFile(path, content));
        QCOMPARE(differencesAfterLoading(path, emptyItem()), QString());
        QCOMPARE(QFile::exists("missing.ini"), path == "missing.ini");
    }

    void savesNothingWithoutFile()
    {
        QVERIFY(QDir().mkdir("directory"));
        for (const char *path : { "", "directory", "missing/item.ini" })
            fullItem().save_ini(path);
        QCOMPARE(filesIn("."), QStringList { "directory" });
        QVERIFY(QDir("directory").isEmpty());
    }

private:
    /// The item is loaded into one that has something in every field.
    static QString differencesAfterLoading(const QString &path, const AUTH_INF &expected)
    {
        AUTH_INF item = fullItem();
        item.load_ini(path);
        return differences(item, expected);
    }

    const QString reference = QStringLiteral(KELTO_TEST_DATA "/item.ini");
};

QTEST_GUILESS_MAIN(TestAuthInfIni)
#include "tst_auth_inf_ini.moc"
