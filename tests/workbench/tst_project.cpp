// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "modules.h"
#include "project.h"

#include <Kelto/AUTH_SET>

#include <QtTest>

#include "support/directorytest.h"
#include "support/testfiles.h"

namespace {

AUTH_SET newRegistry()
{
    return { "Workbench", "1.0", compiledModules() };
}

/// A value for each parameter of the task, its default or 1.
Values completeValues(const Task &task)
{
    Values values;
    for (const VParameter &parameter : task.parameters) {
        const QString key = parameter.name().first;
        const QVariant value = task.hints.defaultValue(key);
        values.append({ "Attribute/" + key, value.isValid() ? value : QVariant("1") });
        values.append({ "Unit/" + key, parameter.unit().first });
    }
    return values;
}

Task taskOf(const AUTH_SET &registry, const QString &id)
{
    return tasksNamed(registry, id).value(0);
}

} // namespace

/// Projects as files, each test in a directory of its own.
class tst_Project : public DirectoryTest
{
    Q_OBJECT

public:
    static void initMain() { QCoreApplication::setApplicationVersion("1.0"); }

private Q_SLOTS:
    void everyTaskIsFoundAgainAsItWas_data()
    {
        QTest::addColumn<QString>("id");
        const TemporaryCurrentDirectory directory; // a registry writes into the current one
        const auto tasks = allTasks(newRegistry());
        for (const Task &task : tasks)
            QTest::newRow(qPrintable(task.id())) << task.id();
    }
    void everyTaskIsFoundAgainAsItWas()
    {
        QFETCH(QString, id);
        const AUTH_SET registry = newRegistry();
        const Task task = taskOf(registry, id);
        QVERIFY(!task.isNull());
        const Values values = completeValues(task);
        Project project;
        project.setTask(task, values);
        QCOMPARE(project.save("a project.ini"), QString());
        QCOMPARE(project.path(), QDir().absoluteFilePath("a project.ini"));

        Project again = project;
        QCOMPARE(Project::open("a project.ini", &again), QString());
        QCOMPARE(again.task(), id);
        QCOMPARE(again.differences(registry, task), QStringList());
        for (const auto &value : values)
            QCOMPARE(valueOf(again.values(task), value.first), value.second);
    }

    void unreadableProjects_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("problem");
        const QString noProject = "\"p.ini\" is no project of this program: it names no task.";
        QTest::newRow("missing file")
            << QByteArray("") << "missing.ini"
            << "\"missing.ini\" cannot be read: No such file or directory.";
        QTest::newRow("directory") << QByteArray("") << "."
                                   << "\".\" cannot be read: file to open is a directory.";
        QTest::newRow("empty file") << QByteArray("") << "p.ini" << noProject;
        QTest::newRow("no text") << QByteArray("\0\1\2[[[\xff\xfe", 8) << "p.ini" << noProject;
        QTest::newRow("module file")
            << QByteArray("[KeltoItem]\nname=Beam\n") << "p.ini" << noProject;
        QTest::newRow("task that is no text")
            << QByteArray("[Project]\nTask=@Invalid()\n") << "p.ini" << noProject;
    }
    void unreadableProjects()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, path);
        const AUTH_SET registry = newRegistry();
        QVERIFY(writeFile("p.ini", content));
        Project project;
        const Task task = taskOf(registry, "Heat/Plane wall/Steady");
        project.setTask(task, completeValues(task));
        QTEST(Project::open(path, &project), "problem");
        QCOMPARE(project.task(), task.id());
        QCOMPARE(project.path(), QString());
        QVERIFY(!QFile::exists("missing.ini"));
        QCOMPARE(fileContent("p.ini"), content);
    }

    /// Everything that is not of this version is said, and is in the file after it was saved.
    void projectOfAnotherVersion()
    {
        const AUTH_SET registry = newRegistry();
        const Task task = taskOf(registry, "Vessels/Pressure vessel/Thin wall");
        QVERIFY(writeFile("old.ini",
                          "[Project]\nTask=Vessels/Pressure vessel/Thin wall\nAuthor=me\n"
                          "[Attribute]\nInner diametre=500\nWall thickness=8\nLoad cycles=1, 2\n"
                          "Length=70\n"
                          "[Unit]\nWall thickness=m\n"));
        Project project;
        QCOMPARE(Project::open("old.ini", &project), QString());
        const QString sentences = project.differences(registry, task).join('\n');
        for (const char *part :
             { "Inner diameter (d, mm), in Geometry: no value under \"Attribute/Inner diameter\", "
               "but there is one under \"Attribute/Inner diametre\".",
               "Internal pressure (p₁, MPa), in Load: no value.",
               "The value \"Inner diametre\" = 500 is not used by any task. It is kept in the "
               "project.",
               "The value \"Load cycles\" = 1; 2 is not used by any task. It is kept in the "
               "project.",
               "Wall thickness was saved in m. It is now given in mm." })
            QVERIFY2(sentences.contains(part), qPrintable(sentences));
        // A value for another task is nothing to speak of.
        QVERIFY2(!sentences.contains("Length"), qPrintable(sentences));

        project.setTask(task, { { "Attribute/Inner diameter", "500" } });
        QCOMPARE(project.save("old.ini"), QString());
        Project again = project;
        QCOMPARE(Project::open("old.ini", &again), QString());
        QCOMPARE(valueOf(again.values(task), "Attribute/Inner diameter"), QVariant("500"));
        QCOMPARE(valueOf(again.values(task), "Attribute/Inner diametre"), QVariant("500"));
        QCOMPARE(valueOf(again.values(task), "Attribute/Load cycles"),
                 QVariant(QStringList { "1", "2" }));
        QCOMPARE(valueOf(again.values(task), "Project/Author"), QVariant("me"));
        QCOMPARE(valueOf(again.values(task), "Attribute/Wall thickness"), QVariant("8000"));
        QCOMPARE(valueOf(again.values(task), "Unit/Wall thickness"), QVariant("mm"));
    }

    void otherUnits_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("saved");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("that of the task") << "mm"
                                          << "0.30" << QVariant("0.30");
        QTest::newRow("none") << ""
                              << "0.3" << QVariant("0.3");
        QTest::newRow("SI unit") << "m"
                                 << "0.3" << QVariant("300");
        QTest::newRow("SI unit, no number") << "m"
                                            << "thin" << QVariant("thin m");
        QTest::newRow("unknown unit") << "furlong"
                                      << "0.3" << QVariant("0.3 furlong");
        QTest::newRow("unit of another quantity") << "Pa"
                                                  << "0.3" << QVariant("0.3 Pa");
        QTest::newRow("several values") << "m"
                                        << "0.3, 0.01" << QVariant(QStringList { "300", "10" });
        QTest::newRow("several values in an unknown unit")
            << "inch"
            << "3, 1" << QVariant(QStringList { "3 inch", "1 inch" });
    }
    /// Nothing is taken for what it is not: what cannot be converted is no number any more.
    void otherUnits()
    {
        QFETCH(QString, unit);
        QFETCH(QString, saved);
        const AUTH_SET registry = newRegistry();
        const bool isList = saved.contains(',');
        const QString key = isList ? "Layer thickness" : "Wall thickness";
        const Task task
            = taskOf(registry,
                     isList ? "Heat/Plane wall/Steady" : "Vessels/Pressure vessel/Thin wall");
        QVERIFY(writeFile("old.ini",
                          QString("[Project]\nTask=%1\n[Attribute]\n%2=%3\n[Unit]\n%2=%4\n")
                              .arg(task.id(), key, saved, unit)
                              .toUtf8()));
        Project project;
        QCOMPARE(Project::open("old.ini", &project), QString());
        QTEST(valueOf(project.values(task), "Attribute/" + key), "value");
        const QString sentences = project.differences(registry, task).join('\n');
        QCOMPARE(sentences.contains("was saved in"), !unit.isEmpty() && unit != "mm");
        QCOMPARE(sentences.contains("now given in mm"), unit == "m");
    }

    void versionThatSavedTheProject_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("this one") << "1.0"
                                  << "";
        QTest::newRow("none") << ""
                              << "";
        QTest::newRow("another one")
            << "0.9"
            << "The project was saved by version 0.9. This is version 1.0.";
    }
    void versionThatSavedTheProject()
    {
        QFETCH(QString, version);
        QFETCH(QString, sentence);
        const AUTH_SET registry = newRegistry();
        const Task task = taskOf(registry, "Heat/Plane wall/Steady");
        Project project;
        project.setTask(task, completeValues(task) + Values { { "Project/Version", version } });
        QCOMPARE(project.differences(registry, task).join('\n'), sentence);
        // Saved, it is a project of this version.
        QCOMPARE(project.save("p.ini"), QString());
        QCOMPARE(project.differences(registry, task), QStringList());
    }

    void secondInstanceIsTold()
    {
        const AUTH_SET registry = newRegistry();
        const Task task = taskOf(registry, "Heat/Plane wall/Steady");
        Project second;
        {
            Project first;
            first.setTask(task, completeValues(task));
            QCOMPARE(first.save("wall.ini"), QString());
            const QByteArray before = fileContent("wall.ini");

            const QString problem = QString("\"%1\" is open in another window.");
            QCOMPARE(Project::open("wall.ini", &second), problem.arg("wall.ini"));
            QCOMPARE(second.path(), QString());
            second.setTask(task, { { "Attribute/Layer thickness", "1" } });
            QCOMPARE(second.save("wall.ini"), problem.arg(QDir().absoluteFilePath("wall.ini")));
            QCOMPARE(fileContent("wall.ini"), before);
            // The one who has locked the file may open it again.
            QCOMPARE(Project::open("wall.ini", &first), QString());
        }
        // Elsewhere it can be saved, and in its place once the other has gone.
        QCOMPARE(second.save("copy.ini"), QString());
        QCOMPARE(second.save("wall.ini"), QString());
        QCOMPARE(filesIn("."),
                 (QStringList { ".~wall.ini.open", "Config", "copy.ini", "wall.ini" }));
        second = {};
        QCOMPARE(filesIn("."), (QStringList { "Config", "copy.ini", "wall.ini" }));
    }

    void placesThatCannotBeWritten_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("below a file") << "file/p.ini";
        QTest::newRow("missing directory") << "/proc/none/p.ini";
        QTest::newRow("directory") << "Config";
    }
    void placesThatCannotBeWritten()
    {
        QFETCH(QString, path);
        const AUTH_SET registry = newRegistry();
        QVERIFY(writeFile("file", "content"));
        const Task task = taskOf(registry, "Heat/Plane wall/Steady");
        Project project;
        project.setTask(task, completeValues(task));
        QCOMPARE(project.save("p.ini"), QString());

        QCOMPARE(project.save(path),
                 QString("\"%1\" cannot be written.").arg(QDir().absoluteFilePath(path)));

        QCOMPARE(project.path(), QDir().absoluteFilePath("p.ini"));
        QCOMPARE(project.save("p.ini"), QString());
        QCOMPARE(fileContent("file"), QByteArray("content"));
    }
};

QTEST_GUILESS_MAIN(tst_Project)
#include "tst_project.moc"
