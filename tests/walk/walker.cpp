// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "walker.h"

#include "onlooker.h"

#include <QApplication>
#include <QFile>
#include <QSettings>

#include "support/referencefile.h"

#include <cstdio>
#include <cstdlib>

namespace {

const int patience = 10000; // ms that the user waits for anything
const char *const cantilever = "Workbench:Statics:Cantilever";
const char *const thickWall = "Workbench:Vessels:Thick wall";

void print(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

/// Whether the pictures are equal up to how edges are rendered, in all but a hundredth of their
/// area.
bool looksAlike(const QImage &first, const QImage &second)
{
    if (first.size() != second.size())
        return false;
    const auto coarse = [](const QImage &image) {
        return image.scaled(image.size() / 8, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_Grayscale8);
    };
    const QImage left = coarse(first);
    const QImage right = coarse(second);
    int different = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x)
            different += qAbs(qGray(left.pixel(x, y)) - qGray(right.pixel(x, y))) > 32;
    }
    return different * 100 <= left.width() * left.height();
}

} // namespace

Walker::Walker(const QDir &directory)
    : m_directory(directory)
{
    acceptFirstTask();
    chooseDefault();
    chooseAndCancel();
    changeValues();
    act("Presses Ctrl+Q", [this] { m_input.pressWithControl('q'); });
    expect("program", "has ended", [] { return "runs"; });
    m_waiting.start();
    startTimer(20);
}

void Walker::timerEvent(QTimerEvent * /*event*/)
{
    const QVariant seen = m_steps.head().look();
    if (seen == m_steps.head().expected) {
        const Step step = m_steps.dequeue();
        step.act();
        m_waiting.restart();
    } else if (m_waiting.hasExpired(patience)) {
        fail(m_steps.head().what + ": " + m_steps.head().expected.toString(), seen.toString());
    }
}

void Walker::acceptFirstTask()
{
    useWindow(Onlooker::dialog);
    expect("preselected", cantilever, [] { return Onlooker::text(Onlooker::dialog, "comboBox"); });
    pickEntry(thickWall);
    clickInDialog("pushButton_accept");
    useWindow(Onlooker::mainWindow);
    expectTask(thickWall, "Vessels › Pressure vessel › Thick wall");
    expect("parameter", "Internal pressure | p₁ | 40 | MPa | Load",
           [] { return Onlooker::row("parameters", "Internal pressure"); });
    expectResult("Hoop stress inside | σₜ₁ | 155.452 | MPa | Stress");
    takePicture("thick-wall");
}

void Walker::chooseDefault()
{
    openDialog();
    expect("preselected", thickWall, [] { return Onlooker::text(Onlooker::dialog, "comboBox"); });
    takePicture("dialog");
    clickInDialog("pushButton_Default");
    expectTask(cantilever, "Statics › Beam › Cantilever");
    expectResult("Deflection | w | 2.75573 | mm | Deformation");
    takePicture("cantilever");
}

void Walker::chooseAndCancel()
{
    openDialog();
    pickEntry("Workbench:Heat:Steady");
    clickInDialog("pushButton_cancel");
    expectTask(cantilever, "Statics › Beam › Cantilever");
    expectResult("Deflection | w | 2.75573 | mm | Deformation");
}

void Walker::changeValues()
{
    useWindow(Onlooker::mainWindow);
    enterPointLoad("1000");
    expectResult("Bending stress | σ | 83.3333 | MPa | Stress");
    takePicture("changed-value");

    enterPointLoad("-5");
    expectResult("Bending stress | σ | – | MPa | Stress");
    expect("message", "Point load: enter zero or a number greater than zero.",
           [] { return Onlooker::text(Onlooker::mainWindow, "message"); });
    takePicture("wrong-value");

    enterPointLoad("0");
    expectResult("Bending stress | σ | 41.6667 | MPa | Stress");
}

void Walker::lookBack(const QString &logFile)
{
    if (m_steps.size() > 1)
        fail(m_steps.head().what, "the program ended before");
    QFile log(logFile);
    QString lines;
    if (log.open(QIODevice::ReadOnly)) {
        while (!log.atEnd())
            lines += QString::fromUtf8(log.readLine().mid(20)); // without date and time
    }
    const QString expected
        = QString("Started, version %1\nTask: %2\nTask: %3\n")
              .arg(QCoreApplication::applicationVersion(), thickWall, cantilever);
    if (lines != expected)
        fail("in the log " + expected, lines);
    compareScreenshot();
    print("The walk went well.");
}

/// Waits for a window and gives it the keyboard.
void Walker::useWindow(const char *window)
{
    const QString name = window;
    expect(name + " is shown", true,
           [window] { return Onlooker::window(window) && Onlooker::window(window)->isVisible(); });
    act("Gives it the keyboard", [this, window] {
        m_input.giveFocus(static_cast<xcb_window_t>(Onlooker::window(window)->winId()));
    });
    expect(name + " is active", true,
           [window] { return Onlooker::window(window)->isActiveWindow(); });
}

void Walker::openDialog()
{
    click("chooseTask", [] { return Onlooker::position(Onlooker::mainWindow, "chooseTask"); });
    useWindow(Onlooker::dialog);
}

void Walker::pickEntry(const QString &entry)
{
    click("comboBox", [] { return Onlooker::position(Onlooker::dialog, "comboBox"); });
    const auto position = [entry] { return Onlooker::positionOfEntry(entry); };
    expect("list is open", true, [position] { return !position().isNull(); });
    takePicture("opened-list");
    click(entry, position);
    expect("picked", entry, [] { return Onlooker::text(Onlooker::dialog, "comboBox"); });
    expect("list is open", false, [position] { return !position().isNull(); });
}

void Walker::clickInDialog(const char *button)
{
    click(button, [button] { return Onlooker::position(Onlooker::dialog, button); });
    // The program deletes the dialog when it has taken over what was accepted.
    expect("dialog exists", false, [] { return Onlooker::window(Onlooker::dialog) != nullptr; });
}

void Walker::enterPointLoad(const QString &value)
{
    const QString name = "Point load";
    const auto isEditing = [] {
        const QWidget *focus = QApplication::focusWidget();
        return focus && focus->inherits("QLineEdit");
    };
    click(
        name, [name] { return Onlooker::positionOfValue("parameters", name); },
        &UserInput::clickTwice);
    expect("editing", true, isEditing);
    act("Types " + value, [this, value] { m_input.type(value + '\n'); });
    expect("editing", false, isEditing);
    expect("parameter", QString("Point load | F | %1 | N | Load").arg(value),
           [name] { return Onlooker::row("parameters", name); });
}

/// Expects the task in the window, and in the settings that the next start takes it from.
void Walker::expectTask(const QString &standardName, const QString &title)
{
    expect("title", title, [] { return Onlooker::text(Onlooker::mainWindow, "title"); });
    const QString path = m_directory.filePath("Config/Workbench_config.ini");
    expect("remembered", standardName,
           [path] { return QSettings(path, QSettings::IniFormat).value("Task/Last").toString(); });
}

void Walker::expectResult(const QString &row)
{
    const QString name = row.section(" | ", 0, 0);
    expect("result", row, [name] { return Onlooker::row("results", name); });
}

void Walker::expect(const QString &what, const QVariant &expected, const Look &look)
{
    m_steps.enqueue({ what, expected, look, [what, expected] {
                         print(QString("  %1: %2").arg(what, expected.toString()));
                     } });
}

void Walker::click(const QString &what, const std::function<QPoint()> &position,
                   void (UserInput::*how)(QPoint))
{
    m_steps.enqueue({ what + " on the screen", true, [position] { return !position().isNull(); },
                      [=] {
                          print("Clicks " + what);
                          (m_input.*how)(position());
                      } });
}

void Walker::act(const QString &what, const std::function<void()> &action)
{
    m_steps.enqueue({ what, true, [] { return true; },
                      [what, action] {
                          print(what);
                          action();
                      } });
}

void Walker::takePicture(const QString &name)
{
    const QString path
        = m_directory.absoluteFilePath(QString("%1-%2.png").arg(++m_pictures).arg(name));
    act("  picture: " + path, [path] { Onlooker::screenshot().save(path); });
}

/// The picture of the README is one of those taken; it must not show what is no longer so.
void Walker::compareScreenshot()
{
    const QString path = KELTO_SCREENSHOT;
    const QString taken = m_directory.absoluteFilePath("3-dialog.png");
    if (qEnvironmentVariableIsSet("KELTO_TAKE_REFERENCES")) {
        QFile::remove(path);
        if (!QFile::copy(taken, path))
            fail("a new " + path, "it cannot be written");
        return;
    }
    const QImage now(taken);
    const QImage then(path);
    const QString advice = path + " to look like " + taken
        + "; to take over the latter, walk with KELTO_TAKE_REFERENCES=1";
    if (now.text("Shown") != then.text("Shown"))
        fail(advice, lineDifference(then.text("Shown"), now.text("Shown")));
    // Another font moves everything.
    const QString font = now.text("Font");
    if (font != then.text("Font"))
        print(QString("  compares only the texts of %1: it was taken in %2, this is %3")
                  .arg(path, then.text("Font"), font));
    else if (!looksAlike(now, then))
        fail(advice, "another picture with the same texts");
}

void Walker::fail(const QString &expected, const QString &seen) const
{
    const QString path = m_directory.absoluteFilePath("failure.png");
    const bool isSaved = Onlooker::screen().save(path);
    print(QString("FAILED\n  expected: %1\n  seen:     %2\n  picture:  %3")
              .arg(expected, seen, isSaved ? path : "none"));
    // The program is in some event loop and nobody is left to end it.
    std::_Exit(EXIT_FAILURE);
}
