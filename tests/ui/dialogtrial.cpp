// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "dialogtrial.h"

#include "dialogsupport.h"

#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <typeindex>
#include <typeinfo>
#include <utility>

namespace {

/// What a user needs of the other dialog, with nothing but Qt behind it.
class PlainDialog : public QDialog
{
public:
    PlainDialog()
    {
        setWindowModality(Qt::ApplicationModal);
        auto *layout = new QVBoxLayout(this);
        auto *box = new QComboBox;
        box->addItems({ "a", "b", "c" });
        layout->addWidget(box);
        for (const char *name : { "pushButton_cancel", "pushButton_Default" }) {
            auto *button = new QPushButton;
            button->setObjectName(name);
            connect(button, &QPushButton::clicked, this, &QDialog::close);
            layout->addWidget(button);
        }
    }
};

/// The window behind the dialog.
QWidget *hostWindow = nullptr;

void clickOn(const QDialog &dialog, const QString &button)
{
    QTest::mouseClick(dialog.findChild<QPushButton *>(button), Qt::LeftButton);
}

/// Without the release, by which the window may be gone. Before it is there, nothing is pressed.
void pressOnly(const QDialog &dialog, Qt::Key key)
{
    if (QWindow *window = dialog.window()->windowHandle())
        QTest::keyPress(window, key);
}
void clickOnCloseButton(QDialog *dialog)
{
    if (QWindow *window = dialog->window()->windowHandle())
        window->close();
}

void showAgain(QDialog *dialog)
{
    if (auto *own = qobject_cast<UTaskSelectDialog *>(dialog))
        own->show();
    else
        dialog->exec();
}

template <typename Value> using Table = QVector<QPair<QString, Value>>;
using Act = void (*)(QDialog *);

struct EventMoment
{
    QEvent::Type type;
    /// The combo box is told, otherwise the dialog.
    bool isOfBox = false;
    /// The user brings it about, after one that comes by itself.
    bool isOfUser = false;
};
Table<EventMoment> eventMoments()
{
    return {
        { "polish", { QEvent::Polish } },
        { "show", { QEvent::Show } },
        { "paint", { QEvent::Paint } },
        { "activate", { QEvent::WindowActivate } },
        { "activation change", { QEvent::ActivationChange } },
        { "move", { QEvent::Move } },
        { "resize", { QEvent::Resize } },
        { "user resize", { QEvent::Resize, false, true } },
        { "layout request", { QEvent::LayoutRequest } },
        { "window id", { QEvent::WinIdChange } },
        { "show to parent", { QEvent::ShowToParent } },
        { "hide", { QEvent::Hide } },
        { "hide to parent", { QEvent::HideToParent } },
        { "language", { QEvent::LanguageChange } },
        { "close", { QEvent::Close } },
        { "focus", { QEvent::FocusIn, true } },
        { "focus out", { QEvent::FocusOut, true } },
        { "box polish", { QEvent::Polish, true } },
        { "box show", { QEvent::Show, true } },
        { "box move", { QEvent::Move, true } },
        { "box resize", { QEvent::Resize, true } },
        { "box hide", { QEvent::Hide, true } },
        { "box language", { QEvent::LanguageChange, true } },
    };
}
Table<Act> otherMoments()
{
    return {
        { "entry", [](QDialog *dialog) { pressOnly(*dialog, Qt::Key_Down); } },
        { "button", [](QDialog *dialog) { clickOn(*dialog, "pushButton_cancel"); } },
        { "timer", nullptr },
    };
}
Table<Act> waysToEnd()
{
    return {
        { "close", [](QDialog *dialog) { dialog->close(); } },
        { "hide", [](QDialog *dialog) { dialog->hide(); } },
        { "accept", [](QDialog *dialog) { dialog->accept(); } },
        { "done", [](QDialog *dialog) { dialog->done(7); } },
        { "Escape", [](QDialog *dialog) { pressOnly(*dialog, Qt::Key_Escape); } },
        { "close button", clickOnCloseButton },
        { "Cancel", [](QDialog *dialog) { clickOn(*dialog, "pushButton_cancel"); } },
        { "Default", [](QDialog *dialog) { clickOn(*dialog, "pushButton_Default"); } },
        { "quit", [](QDialog *) { QCoreApplication::quit(); } },
        { "delete", [](QDialog *dialog) { delete dialog; } },
    };
}
Table<Act> otherActs()
{
    return {
        { "show", showAgain },
        { "exec", [](QDialog *dialog) { dialog->exec(); } },
        { "reparent", [](QDialog *dialog) { dialog->setParent(hostWindow); } },
        { "delete box", [](QDialog *dialog) { delete dialog->findChild<QComboBox *>(); } },
        { "delete later", [](QDialog *dialog) { dialog->deleteLater(); } },
        { "delete on close", [](QDialog *dialog) { dialog->setAttribute(Qt::WA_DeleteOnClose); } },
    };
}

template <typename Value> QStringList names(const Table<Value> &table)
{
    QStringList names;
    for (const auto &row : table)
        names.append(row.first);
    return names;
}

template <typename Value>
Value valueAt(const Table<Value> &table, const QString &name, Value otherwise)
{
    const auto row = std::find_if(table.begin(), table.end(),
                                  [&](const auto &each) { return each.first == name; });
    return row == table.end() ? otherwise : row->second;
}

/// Acts once, at the moment of its trial.
class Host : public QObject
{
public:
    Host(QDialog *dialog, const Trial &trial)
        : m_dialog(dialog)
        , m_moment(trial.moment)
        , m_event(valueAt(eventMoments(), trial.moment, EventMoment { QEvent::None }))
        , m_act(valueAt(waysToEnd() + otherActs(), trial.act, Act(nullptr)))
        , m_end(valueAt(waysToEnd(), trial.end, Act(nullptr)))
        , m_deletes(trial.end == "delete")
    {
        auto *box = dialog->findChild<QComboBox *>();
        auto *button = dialog->findChild<QPushButton *>("pushButton_cancel");
        QWidget &watched = m_event.isOfBox ? static_cast<QWidget &>(*box) : *dialog;
        m_class = typeid(watched);
        watched.installEventFilter(this);
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                [this] { actAt("entry"); });
        connect(button, &QPushButton::pressed, this, [this] { actAt("button"); });
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QPointer<QObject> stillThere(watched);
        // Qt hides a dialog that is being deleted, too. Nobody may delete it a second time.
        if (m_event.isOfUser && !m_isUsed)
            return false;
        const bool isGoing = m_isDeleting || m_class != typeid(*watched);
        if (event->type() == m_event.type && !isGoing)
            actAt(m_moment);
        // An object that is gone gets no event any more.
        return !stillThere;
    }

    /// What the user does to bring the moment about, unless that comes by itself.
    void bringAbout()
    {
        if (m_hasActed || !m_dialog)
            return;
        m_isUsed = true;
        const QVector<QEvent::Type> last { QEvent::Close, QEvent::Hide, QEvent::HideToParent,
                                           QEvent::FocusOut };
        if (m_event.type == QEvent::LanguageChange)
            QCoreApplication::postEvent(m_dialog, new QEvent(m_event.type));
        else if (last.contains(m_event.type))
            end();
        else if (m_event.isOfUser)
            m_dialog->window()->windowHandle()->resize(500, 400);
        else if (const Act act = valueAt(otherMoments(), m_moment, Act(nullptr)))
            act(m_dialog);
        else
            actAt("timer");
    }

private:
    void actAt(const QString &moment)
    {
        if (moment != m_moment || m_hasActed || !m_dialog)
            return;
        m_hasActed = true;
        m_act(m_dialog);
    }

    void end()
    {
        m_isDeleting = m_deletes;
        m_end(m_dialog);
    }

    QPointer<QDialog> m_dialog;
    std::type_index m_class = typeid(void);
    QString m_moment;
    EventMoment m_event;
    Act m_act;
    Act m_end;
    bool m_deletes;
    bool m_isDeleting = false;
    bool m_isUsed = false;
    bool m_hasActed = false;
};

/// Ends the showing again and again, for as long as the window is on the screen.
class User : public QObject
{
public:
    User(QDialog *dialog, Host *host, const Trial &trial)
        : m_dialog(dialog)
        , m_host(host)
        , m_trial(trial)
    {
        lookAgain();
    }

private:
    void lookAgain()
    {
        QTimer::singleShot(0, this, [this] { look(); });
    }

    void look()
    {
        // What follows may run an event loop.
        lookAgain();
        if (++m_looks > 100)
            stop("hangs");
        const bool isThere = m_dialog && m_dialog->isVisible();
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            useBox(box, isThere);
        else if (isThere && (m_dialog->isActiveWindow() || m_looks > 20))
            useDialog();
    }

    /// At first the dialog is used in spite of the box, which has to close with it.
    void useBox(QMessageBox *box, bool isDialogThere)
    {
        m_looksAtLonelyBox = isDialogThere ? 0 : m_looksAtLonelyBox + 1;
        if (m_looksAtLonelyBox > 5)
            stop("leaves its box open");
        if (isDialogThere && m_looks < 10)
            useDialog();
        else if (isDialogThere)
            box->accept();
    }

    void useDialog()
    {
        if (!std::exchange(m_hasUsed, true))
            m_host->bringAbout();
        else
            valueAt(waysToEnd(), m_trial.end, Act(nullptr))(m_dialog);
    }

    void stop(const char *outcome) const
    {
        std::printf("%s: %s\n", qPrintable(m_trial.name()), outcome);
        std::fflush(stdout);
        std::_Exit(1);
    }

    QPointer<QDialog> m_dialog;
    Host *m_host;
    Trial m_trial;
    int m_looks = 0;
    int m_looksAtLonelyBox = 0;
    bool m_hasUsed = false;
};

QString outcomeOf(const Trial &trial)
{
    QWidget window;
    hostWindow = &window;
    window.show();
    AUTH_SET registry = twoGroups();
    registry.current_group = "G";
    registry.current_mode = "b";
    QPointer<UTaskSelectDialog> own;
    if (trial.kind != "plain")
        own = new UTaskSelectDialog;
    if (own && trial.kind != "unbound")
        own->set(&registry);
    const QPointer<QDialog> dialog = own ? own.data() : static_cast<QDialog *>(new PlainDialog);
    Host host(dialog, trial);
    const User user(dialog, &host, trial);
    const bool isExec = !own || trial.kind == "exec";
    const int result = isExec ? dialog->exec() : own->show();
    if (!isExec && result != 0)
        return QString("returns %1").arg(result);
    if (dialog && dialog->isVisible())
        return "is still visible";
    delete dialog;
    return "well";
}

} // namespace

QStringList Trial::moments()
{
    return names(eventMoments()) + names(otherMoments());
}

QStringList Trial::acts()
{
    return names(waysToEnd()) + names(otherActs());
}

QStringList Trial::ends()
{
    return names(waysToEnd());
}

int runTrials(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList trials = QCoreApplication::arguments().mid(2);
    for (const QString &name : trials) {
        QString outcome;
        QTimer::singleShot(0, qApp, [&] {
            outcome = outcomeOf(Trial::named(name));
            QCoreApplication::quit();
        });
        QCoreApplication::exec();
        std::printf("%s: %s\n", qPrintable(name), qPrintable(outcome));
        std::fflush(stdout);
    }
    return 0;
}
