// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef WINDOWTEST_H
#define WINDOWTEST_H

#include "mainwindow.h"

#include <Kelto/AUTH_SET>
#include <Kelto/UTaskSelectDialog>

#include <QObject>

#include "support/temporarycurrentdirectory.h"

#include <functional>
#include <memory>

class QTableWidget;
class QTableWidgetItem;

enum Column { NameColumn, SymbolColumn, ValueColumn, UnitColumn, GroupColumn };

/// The value in the row with the name @p name.
QString valueOf(const QTableWidget *table, const QString &name);

/// Answers the dialog that is about to open.
void whenDialogIsOpen(const std::function<void(UTaskSelectDialog *)> &answer);

void click(UTaskSelectDialog *dialog, const char *buttonName);

/// For tests of the window, each in a directory of its own, offscreen.
class WindowTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    void show(const char *standardName);
    QString text(const char *labelName) const;
    QTableWidget *table(const char *name) const;
    /// The place of the value of @p parameter.
    QTableWidgetItem *valueItem(const QString &parameter) const;
    void enter(const QString &parameter, const char *value);

    std::unique_ptr<TemporaryCurrentDirectory> m_directory;
    std::unique_ptr<AUTH_SET> m_registry;
    std::unique_ptr<MainWindow> m_window;
};

#endif
