// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "modules.h"
#include "publishedforms.h"

#include <Kelto/KeltoItemHints>
#include <Kelto/VParameter>

#include <QLocale>
#include <QtTest>

namespace {

QStringList namesOf(const QVector<VParameter> &parameters)
{
    QStringList names;
    for (const VParameter &parameter : parameters)
        names.append(parameter.name().first);
    return names;
}

QString problemsOf(const AUTH_INF &module)
{
    QStringList lines;
    const auto problems = KeltoItemHints(module).problems();
    for (const auto &problem : problems)
        lines.append(problem.extraKey + ": " + problem.text());
    return lines.join('\n');
}

bool isChinese(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(),
                       [](QChar c) { return c.script() == QChar::Script_Han; });
}

} // namespace

/// What the module files say about their parameters and results.
class tst_Hints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTask_data()
    {
        QTest::addColumn<QString>("task");
        for (const QString &task : allTasks())
            QTest::newRow(qPrintable(task)) << task;
    }
    void everyTask()
    {
        QFETCH(QString, task);
        QCOMPARE(problemsOf(moduleOf(task)), QString());

        const KeltoItemHints hints = hintsOf(task);
        const QStringList parameters = namesOf(hints.parameters());
        const QStringList results = namesOf(hints.results());
        const QStringList ordered = hints.order();
        for (const QString &key : parameters)
            QVERIFY2(hints.defaultValue(key).isValid(), qPrintable(key));
        const QStringList keys = parameters + results;
        for (const QString &key : keys)
            QVERIFY2(ordered.contains(key), qPrintable(key));
        // A condition names a choice among the parameters of the mode, and values that it has.
        for (const QString &key : parameters) {
            const QString other = hints.conditionKey(key);
            QVERIFY(other.isEmpty() || parameters.contains(other));
            QStringList values = hints.conditionValues(key);
            const auto choices = hints.choices(other);
            for (const auto &choice : choices)
                values.removeAll(choice.value);
            QCOMPARE(values, QStringList());
        }
        // The modes that give a result are those that compute it.
        QStringList belonging = results;
        belonging.sort();
        QCOMPARE(QStringList(resultsOf(outcomeOf(task, {})).keys()), belonging);
    }

    void textsAreTranslated()
    {
        installTranslations(QLocale("zh_CN"));
        for (const QString &task : allTasks()) {
            const KeltoItemHints hints = hintsOf(task);
            const QStringList keys = namesOf(hints.parameters() + hints.results());
            for (const QString &key : keys) {
                QVERIFY2(hints.help(key).isEmpty() || isChinese(hints.help(key)), qPrintable(key));
                const auto choices = hints.choices(key);
                for (const auto &choice : choices)
                    QVERIFY2(isChinese(choice.label), qPrintable(choice.value));
            }
            const auto curves = outcomeOf(task, {}).result.curves;
            for (const Curve &curve : curves) {
                for (const QString &name : { curve.name, curve.x.name, curve.y.name })
                    QVERIFY2(isChinese(hints.translated(name)), qPrintable(name));
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_Hints)
#include "tst_hints.moc"
