// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "dialogtrial.h"

#include <QCoreApplication>
#include <QHash>
#include <QProcess>
#include <QTest>

#include <algorithm>

namespace {

/// Whether to take the longer way, which also counts what a plain dialog does not survive.
bool isForAll()
{
    return qEnvironmentVariableIsSet("KELTO_ALL_TRIALS");
}

/// Two ways to end each trial, other ones from trial to trial, or all of them.
QStringList waysToEnd(int trial, const QString &moment, const QString &act)
{
    const QStringList all = Trial::ends();
    // It depends on the way in which a dialog hides what Qt still does after it.
    if (isForAll() || (moment == "hide" && QStringList { "delete", "show", "exec" }.contains(act)))
        return all;
    return { all.at(trial % all.size()), all.at((trial + 4) % all.size()) };
}

/// What Qt does not survive, whatever a dialog does: it goes on with a window that it has painted,
/// and a combo box with what it has told its own listeners.
bool isLeftToQt(const Trial &trial)
{
    const bool isReplaced = trial.act == "delete" || trial.act == "reparent";
    return (trial.moment == "paint" && isReplaced)
        || (trial.moment == "entry" && trial.act == "delete box" && trial.kind != "unbound");
}

/// Each moment with each act.
QVector<Trial> trialsOf(const QString &kind)
{
    QVector<Trial> trials;
    const QStringList moments = Trial::moments();
    const QStringList acts = Trial::acts();
    for (const QString &moment : moments) {
        for (const QString &act : acts) {
            const QStringList ends = waysToEnd(trials.size(), moment, act);
            for (const QString &end : ends)
                trials.append({ kind, moment, act, end });
        }
    }
    return trials;
}

/// The trials in another process, for as long as it lasts; whatever it is that ends it.
QHash<QString, QString> outcomesBeforeTheEnd(const QStringList &trials)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // What is gone is not what it was, also where no sanitizer looks. What a trial breaks off
    // leaks.
    environment.insert("MALLOC_PERTURB_", "165");
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    process.setProcessEnvironment(environment);
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QCoreApplication::applicationFilePath(), QStringList("--trials") + trials);
    QHash<QString, QString> outcomes;
    while (process.canReadLine() || process.waitForReadyRead(20000)) {
        while (process.canReadLine()) {
            const QStringList fields = QString::fromUtf8(process.readLine()).trimmed().split(": ");
            outcomes.insert(fields.value(0), fields.value(1));
        }
    }
    process.kill();
    process.waitForFinished();
    return outcomes;
}

/// Whether the process has ended itself, and has told of the trial in which it did.
bool isStopped(const QHash<QString, QString> &outcomes)
{
    return !outcomes.key("hangs").isEmpty() || !outcomes.key("leaves its box open").isEmpty();
}

QHash<QString, QString> outcomesOf(QStringList trials)
{
    QHash<QString, QString> outcomes;
    while (!trials.isEmpty()) {
        const QHash<QString, QString> some = outcomesBeforeTheEnd(trials);
        outcomes.insert(some);
        trials = trials.mid(some.size());
        if (!trials.isEmpty() && !isStopped(some))
            outcomes.insert(trials.takeFirst(), "ends the program");
    }
    return outcomes;
}

} // namespace

/// A dialog under hosts that do at any moment what they please. A trial of these can be run alone,
/// by the argument --trials and the name that a failing row gives.
class TestTaskSelectDialogHosts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *kind : { "bound", "unbound", "exec", "plain" }) {
            const QVector<Trial> trials = trialsOf(kind);
            QStringList names;
            for (const Trial &trial : trials) {
                if (isForAll() || trial.kind != "plain" || isLeftToQt(trial))
                    names.append(trial.name());
            }
            const QHash<QString, QString> outcomes = outcomesOf(names);
            const auto bad = std::count_if(outcomes.begin(), outcomes.end(),
                                           [](const QString &text) { return text != "well"; });
            qInfo("%s: %d of %d trials do not end well", kind, int(bad), names.size());
            m_outcomes.insert(outcomes);
        }
    }

    void endsWell_data()
    {
        QTest::addColumn<QString>("trial");
        for (const char *kind : { "bound", "unbound", "exec" }) {
            const QVector<Trial> trials = trialsOf(kind);
            for (const Trial &trial : trials) {
                if (!isLeftToQt(trial))
                    QTest::newRow(qPrintable(trial.name())) << trial.name();
            }
        }
    }
    void endsWell()
    {
        QFETCH(QString, trial);
        QCOMPARE(m_outcomes.value(trial), QString("well"));
    }

    void endsForAPlainDialogAsWell_data()
    {
        QTest::addColumn<QString>("trial");
        const QVector<Trial> trials = trialsOf("plain");
        for (const Trial &trial : trials) {
            if (isLeftToQt(trial))
                QTest::newRow(qPrintable(trial.name())) << trial.name();
        }
    }
    void endsForAPlainDialogAsWell()
    {
        QFETCH(QString, trial);
        QCOMPARE(m_outcomes.value(trial), QString("ends the program"));
    }

private:
    QHash<QString, QString> m_outcomes;
};

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--trials") == 0)
        return runTrials(argc, argv);
    QCoreApplication application(argc, argv);
    TestTaskSelectDialogHosts test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_utaskselectdialog_hosts.moc"
