// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "walker.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <cstdio>
#include <cstdlib>

namespace {

const int patience = 10000; // ms that the user waits for anything

void print(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

/// Looks again and again until @p look gives true; false when the user's patience is over.
bool waitUntil(const std::function<bool()> &look)
{
    QElapsedTimer timer;
    timer.start();
    while (!look()) {
        if (timer.elapsed() > patience)
            return false;
        QThread::msleep(20);
    }
    return true;
}

} // namespace

Walker::Walker(const QDir &directory, const QString &logFile)
    : m_directory(directory)
    , m_logFile(logFile)
    , m_logSizeBefore(QFileInfo(logFile).size())
{
}

void Walker::startLookingAt(MainWindow *window)
{
    m_onlooker = Onlooker(window);
    start();
}

void Walker::run()
{
    try {
        walk();
        print(QStringLiteral("The walk went well."));
    } catch (const Failure &failure) {
        print(QStringLiteral("FAILED\n  expected: %1\n  seen:     %2")
                  .arg(failure.expected, failure.seen));
        try {
            takePicture(QStringLiteral("failure"));
        } catch (const Failure &) {
            print(QStringLiteral("No picture could be taken."));
        }
        // The program is in some event loop and nobody is left to end it.
        std::_Exit(EXIT_FAILURE);
    }
}

void Walker::walk()
{
    m_input = std::make_unique<UserInput>();
    chooseFirstTask();
    lookAtThickWall();
    chooseDefault();
    chooseAndCancel();
    changeValues();
    closeWindow();
    lookAtFiles();
}

void Walker::chooseFirstTask()
{
    step(QStringLiteral("The program asks for a task"));
    waitForDialog();
    expect(QStringLiteral("entry at first"), QStringLiteral("Workbench:Statics:Cantilever"),
           [this] { return m_onlooker.dialogEntry(); });
    pickEntry(QStringLiteral("Workbench:Vessels:Thick wall"));
    clickDialogButton("pushButton_accept", QStringLiteral("Accept"));
}

void Walker::lookAtThickWall()
{
    step(QStringLiteral("The window shows the accepted task"));
    if (!waitUntil([this] { return m_onlooker.isWindowShown(); }))
        throw Failure { QStringLiteral("the window"), QStringLiteral("nothing") };
    expect(QStringLiteral("title"), QStringLiteral("Vessels › Pressure vessel › Thick wall"),
           [this] { return m_onlooker.labelText("title"); });
    expect(QStringLiteral("parameters"),
           QStringLiteral("External pressure | p₂ | 0.1 | MPa | Load\n"
                          "Inner diameter | d | 400 | mm | Geometry\n"
                          "Internal pressure | p₁ | 6 | MPa | Load\n"
                          "Wall thickness | t | 16 | mm | Geometry"),
           [this] { return m_onlooker.rows("parameters").join(QLatin1Char('\n')); });
    expect(QStringLiteral("first result"),
           QStringLiteral("Axial stress | σₐ | 35.3567 | MPa | Stress"),
           [this] { return m_onlooker.rows("results").value(0); });
    expect(QStringLiteral("hoop stress"), QStringLiteral("76.7135"),
           [this] { return m_onlooker.valueIn("results", QStringLiteral("Hoop stress inside")); });
    expectRemembered(QStringLiteral("Workbench:Vessels:Thick wall"));
    takePicture(QStringLiteral("thick-wall"));
}

void Walker::chooseDefault()
{
    clickChooseTask();
    expect(QStringLiteral("preselected entry"), QStringLiteral("Workbench:Vessels:Thick wall"),
           [this] { return m_onlooker.dialogEntry(); });
    clickDialogButton("pushButton_Default", QStringLiteral("Default"));
    expect(QStringLiteral("title"), QStringLiteral("Statics › Beam › Cantilever"),
           [this] { return m_onlooker.labelText("title"); });
    expect(QStringLiteral("deflection"), QStringLiteral("2.75573"),
           [this] { return m_onlooker.valueIn("results", QStringLiteral("Deflection")); });
    expectRemembered(QStringLiteral("Workbench:Statics:Cantilever"));
    takePicture(QStringLiteral("cantilever"));
}

void Walker::chooseAndCancel()
{
    clickChooseTask();
    expect(QStringLiteral("preselected entry"), QStringLiteral("Workbench:Statics:Cantilever"),
           [this] { return m_onlooker.dialogEntry(); });
    pickEntry(QStringLiteral("Workbench:Heat:Steady"));
    clickDialogButton("pushButton_cancel", QStringLiteral("Cancel"));
    expectRemembered(QStringLiteral("Workbench:Statics:Cantilever"));
    expect(QStringLiteral("title"), QStringLiteral("Statics › Beam › Cantilever"),
           [this] { return m_onlooker.labelText("title"); });
    expect(QStringLiteral("deflection"), QStringLiteral("2.75573"),
           [this] { return m_onlooker.valueIn("results", QStringLiteral("Deflection")); });
}

void Walker::changeValues()
{
    m_input->giveFocus(static_cast<xcb_window_t>(m_onlooker.windowId()));
    expect(QStringLiteral("active window"), QStringLiteral("window"),
           [this] { return m_onlooker.activeWindow(); });

    enterPointLoad(QStringLiteral("1000"));
    expect(QStringLiteral("bending stress"), QStringLiteral("83.3333"),
           [this] { return m_onlooker.valueIn("results", QStringLiteral("Bending stress")); });
    takePicture(QStringLiteral("changed-value"));

    enterPointLoad(QStringLiteral("-5"));
    expect(QStringLiteral("message"),
           QStringLiteral("Point load: enter zero or a number greater than zero."),
           [this] { return m_onlooker.labelText("message"); });
    expect(QStringLiteral("bending stress"), QStringLiteral("–"),
           [this] { return m_onlooker.valueIn("results", QStringLiteral("Bending stress")); });
    takePicture(QStringLiteral("wrong-value"));

    enterPointLoad(QStringLiteral("0"));
    expect(QStringLiteral("bending stress"), QStringLiteral("41.6667"),
           [this] { return m_onlooker.valueIn("results", QStringLiteral("Bending stress")); });
}

void Walker::closeWindow()
{
    step(QStringLiteral("Closes the window"));
    m_input->pressCloseButton(static_cast<xcb_window_t>(m_onlooker.windowId()));
    if (!m_programEnd.tryAcquire(1, patience))
        throw Failure { QStringLiteral("the end of the program"), QStringLiteral("still running") };
}

void Walker::lookAtFiles()
{
    step(QStringLiteral("Looks at the files that the program wrote"));
    const QSettings update(m_directory.filePath(QStringLiteral("Config/update.ini")),
                           QSettings::IniFormat);
    expect(QStringLiteral("name in Config/update.ini"), QStringLiteral("Workbench"),
           [&] { return update.value(QStringLiteral("Current/Name")).toString(); });
    expect(QStringLiteral("version in Config/update.ini"), QCoreApplication::applicationVersion(),
           [&] { return update.value(QStringLiteral("Current/Version")).toString(); });

    QFile log(m_logFile);
    if (!log.open(QIODevice::ReadOnly) || !log.seek(m_logSizeBefore))
        throw Failure { QStringLiteral("a log at ") + m_logFile, QStringLiteral("none") };
    const QString lines = QString::fromUtf8(log.readAll());
    for (const char *line : { " Started, version ", " Task: Workbench:Vessels:Thick wall\n",
                              " Task: Workbench:Statics:Cantilever\n" }) {
        if (!lines.contains(QLatin1String(line)))
            throw Failure { QStringLiteral("\"%1\" in the log").arg(QLatin1String(line)), lines };
    }
    print(QStringLiteral("  log: ") + lines.trimmed());
}

/// Looks into the settings of the program, which the next start takes the task from.
void Walker::expectRemembered(const QString &task)
{
    const QString path = m_directory.filePath(QStringLiteral("Config/Workbench_config.ini"));
    expect(QStringLiteral("task in Config/Workbench_config.ini"), task, [path] {
        return QSettings(path, QSettings::IniFormat).value(QStringLiteral("Task/Last")).toString();
    });
}

void Walker::waitForDialog()
{
    if (!waitUntil([this] { return m_onlooker.isDialogShown(); }))
        throw Failure { QStringLiteral("the dialog"), QStringLiteral("nothing") };
    m_input->giveFocus(static_cast<xcb_window_t>(m_onlooker.dialogId()));
    expect(QStringLiteral("active window"), QStringLiteral("dialog"),
           [this] { return m_onlooker.activeWindow(); });
    takePicture(QStringLiteral("dialog"));
}

void Walker::pickEntry(const QString &entry)
{
    step(QStringLiteral("Opens the list of tasks and picks ") + entry);
    m_input->click(
        placeOf(QStringLiteral("list of tasks"), [this] { return m_onlooker.dialogEntries(); }));
    const QPoint place = placeOf(QStringLiteral("entry in the opened list"),
                                 [this, entry] { return m_onlooker.openedEntry(entry); });
    takePicture(QStringLiteral("opened-list"));
    m_input->click(place);
    expect(QStringLiteral("picked entry"), entry, [this] { return m_onlooker.dialogEntry(); });
    if (!waitUntil([this, entry] { return m_onlooker.openedEntry(entry).isNull(); }))
        throw Failure { QStringLiteral("a closed list"), QStringLiteral("the list is open") };
}

void Walker::clickDialogButton(const char *name, const QString &text)
{
    step(QStringLiteral("Clicks \"%1\"").arg(text));
    m_input->click(placeOf(text, [this, name] { return m_onlooker.dialogButton(name); }));
    if (!waitUntil([this] { return m_onlooker.isDialogGone(); }))
        throw Failure { QStringLiteral("no dialog"), QStringLiteral("the dialog is open") };
}

void Walker::clickChooseTask()
{
    step(QStringLiteral("Clicks \"Choose task...\""));
    m_input->click(placeOf(QStringLiteral("Choose task..."),
                           [this] { return m_onlooker.button("chooseTask"); }));
    waitForDialog();
}

void Walker::enterPointLoad(const QString &value)
{
    step(QStringLiteral("Double-clicks the point load and types ") + value);
    const QString name = QStringLiteral("Point load");
    m_input->clickTwice(
        placeOf(name, [this, name] { return m_onlooker.placeOfValue("parameters", name); }));
    if (!waitUntil([this] { return m_onlooker.isEditing(); }))
        throw Failure { QStringLiteral("a field to type in"), QStringLiteral("none") };
    m_input->type(value + QLatin1Char('\n'));
    expect(QStringLiteral("point load"), value,
           [this, name] { return m_onlooker.valueIn("parameters", name); });
    if (!waitUntil([this] { return !m_onlooker.isEditing(); }))
        throw Failure { QStringLiteral("the field to close"), QStringLiteral("it is open") };
}

void Walker::step(const QString &text)
{
    print(QStringLiteral("Step %1: %2").arg(++m_steps).arg(text));
}

void Walker::takePicture(const QString &name)
{
    const QString file
        = QStringLiteral("%1-%2.png").arg(++m_pictures, 2, 10, QLatin1Char('0')).arg(name);
    const QString path = m_directory.absoluteFilePath(file);
    // What has just changed is painted in the next round of the event loop, one look later.
    m_onlooker.isWindowShown();
    if (!m_onlooker.grabScreen(path))
        throw Failure { QStringLiteral("a picture at ") + path, QStringLiteral("none") };
    print(QStringLiteral("  picture: ") + path);
}

void Walker::expect(const QString &what, const QString &expected,
                    const std::function<QString()> &look)
{
    QString seen;
    const bool isSeen = waitUntil([&] {
        seen = look();
        return seen == expected;
    });
    if (!isSeen)
        throw Failure { QStringLiteral("%1: %2").arg(what, expected), seen };
    print(QStringLiteral("  %1: %2").arg(what, seen));
}

QPoint Walker::placeOf(const QString &what, const std::function<QPoint()> &look)
{
    QPoint place;
    const bool isShown = waitUntil([&] {
        place = look();
        return !place.isNull();
    });
    if (!isShown)
        throw Failure { QStringLiteral("%1 on the screen").arg(what), QStringLiteral("not shown") };
    return place;
}
