// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "onlooker.h"

#include "mainwindow.h"

#include <Kelto/UTaskSelectDialog>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>

#include <algorithm>

namespace {

const int answerTime = 10000; // ms

enum Column { NameColumn, ValueColumn = 2 };

/// The dialog that is shown, or null.
UTaskSelectDialog *shownDialog()
{
    return qobject_cast<UTaskSelectDialog *>(QApplication::activeModalWidget());
}

QPoint centreOf(const QWidget *widget)
{
    return widget && widget->isVisible() ? widget->mapToGlobal(widget->rect().center()) : QPoint();
}

QPoint placeIn(const QAbstractItemView *view, const QModelIndex &index)
{
    if (!view->isVisible() || !index.isValid())
        return {};
    return view->viewport()->mapToGlobal(view->visualRect(index).center());
}

int rowOf(const QTableWidget *table, const QString &name)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->item(row, NameColumn)->text() == name)
            return row;
    }
    return -1;
}

QString rowText(const QTableWidget *table, int row)
{
    QStringList texts;
    for (int column = 0; column < table->columnCount(); ++column)
        texts.append(table->item(row, column)->text());
    return texts.join(QStringLiteral(" | "));
}

} // namespace

template <typename Question> auto Onlooker::ask(Question question) const -> decltype(question())
{
    struct Reply
    {
        decltype(question()) answer {};
        QSemaphore isThere;
    };
    // Shared, because an answer that comes too late still needs a place to go.
    const auto reply = std::make_shared<Reply>();
    const auto answer = [reply, question] {
        reply->answer = question();
        reply->isThere.release();
    };
    QMetaObject::invokeMethod(qApp, answer, Qt::QueuedConnection);
    if (!reply->isThere.tryAcquire(1, answerTime))
        throw Failure { QStringLiteral("a program that reacts"), QStringLiteral("no reaction") };
    return reply->answer;
}

bool Onlooker::isDialogShown() const
{
    return ask([] { return shownDialog() && shownDialog()->isVisible(); });
}

bool Onlooker::isDialogGone() const
{
    return ask([] {
        const auto windows = QApplication::topLevelWidgets();
        return std::none_of(windows.cbegin(), windows.cend(), [](const QWidget *window) {
            return qobject_cast<const UTaskSelectDialog *>(window) != nullptr;
        });
    });
}

WId Onlooker::dialogId() const
{
    return ask([] { return shownDialog() ? shownDialog()->winId() : WId(); });
}

QPoint Onlooker::dialogButton(const char *name) const
{
    return ask([name] {
        return shownDialog()
            ? centreOf(shownDialog()->findChild<QPushButton *>(QLatin1String(name)))
            : QPoint();
    });
}

QPoint Onlooker::dialogEntries() const
{
    return ask([] {
        return shownDialog() ? centreOf(shownDialog()->findChild<QComboBox *>()) : QPoint();
    });
}

QPoint Onlooker::openedEntry(const QString &text) const
{
    return ask([text] {
        if (!shownDialog())
            return QPoint();
        const auto *entries = shownDialog()->findChild<QComboBox *>();
        const QModelIndex index = entries->model()->index(entries->findText(text), 0);
        return placeIn(entries->view(), index);
    });
}

QString Onlooker::dialogEntry() const
{
    return ask([] {
        return shownDialog() ? shownDialog()->findChild<QComboBox *>()->currentText() : QString();
    });
}

bool Onlooker::isWindowShown() const
{
    return ask([this] { return m_window->isVisible(); });
}

WId Onlooker::windowId() const
{
    return ask([this] { return m_window->winId(); });
}

QString Onlooker::labelText(const char *name) const
{
    return ask([this, name] { return m_window->findChild<QLabel *>(QLatin1String(name))->text(); });
}

QPoint Onlooker::button(const char *name) const
{
    return ask(
        [this, name] { return centreOf(m_window->findChild<QPushButton *>(QLatin1String(name))); });
}

QStringList Onlooker::rows(const char *table) const
{
    return ask([this, table] {
        const auto *widget = m_window->findChild<QTableWidget *>(QLatin1String(table));
        QStringList rows;
        for (int row = 0; row < widget->rowCount(); ++row)
            rows.append(rowText(widget, row));
        return rows;
    });
}

QString Onlooker::valueIn(const char *table, const QString &name) const
{
    return ask([this, table, name] {
        const auto *widget = m_window->findChild<QTableWidget *>(QLatin1String(table));
        const auto *item = widget->item(rowOf(widget, name), ValueColumn);
        return item ? item->text() : QString();
    });
}

QPoint Onlooker::placeOfValue(const char *table, const QString &name) const
{
    return ask([this, table, name] {
        const auto *widget = m_window->findChild<QTableWidget *>(QLatin1String(table));
        return placeIn(widget, widget->model()->index(rowOf(widget, name), ValueColumn));
    });
}

QString Onlooker::activeWindow() const
{
    return ask([this] {
        const QWidget *active = QApplication::activeWindow();
        if (active == m_window)
            return QStringLiteral("window");
        return active && active == shownDialog() ? QStringLiteral("dialog") : QString();
    });
}

bool Onlooker::isEditing() const
{
    return ask([] { return qobject_cast<QLineEdit *>(QApplication::focusWidget()) != nullptr; });
}

bool Onlooker::grabScreen(const QString &path) const
{
    return ask([path] { return QApplication::primaryScreen()->grabWindow(0).save(path); });
}
