// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "windowtest.h"

#include "hostmodules.h"
#include "task.h"

#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

QString valueOf(const QTableWidget *table, const QString &name)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->item(row, NameColumn)->text() == name)
            return table->item(row, ValueColumn)->text();
    }
    return QStringLiteral("no such row");
}

void whenDialogIsOpen(const std::function<void(UTaskSelectDialog *)> &answer)
{
    QTimer::singleShot(0, qApp, [answer] {
        auto *dialog = qobject_cast<UTaskSelectDialog *>(QApplication::activeModalWidget());
        if (dialog)
            answer(dialog);
        else
            whenDialogIsOpen(answer);
    });
}

void click(UTaskSelectDialog *dialog, const char *buttonName)
{
    auto *button = dialog->findChild<QPushButton *>(QLatin1String(buttonName));
    QTest::mouseClick(button, Qt::LeftButton);
}

void WindowTest::init()
{
    m_directory = std::make_unique<TemporaryCurrentDirectory>();
    QVERIFY(m_directory->isUsable());
    m_registry = std::make_unique<AUTH_SET>(QStringLiteral("Workbench"), QStringLiteral("1.0"),
                                            hostModules());
    m_window = std::make_unique<MainWindow>(m_registry.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void WindowTest::cleanup()
{
    m_window.reset();
    m_registry.reset();
    m_directory.reset();
}

void WindowTest::show(const char *standardName)
{
    QVERIFY(selectTask(*m_registry, QString::fromUtf8(standardName)));
    m_window->showCurrentTask();
}

QString WindowTest::text(const char *labelName) const
{
    return m_window->findChild<QLabel *>(QLatin1String(labelName))->text();
}

QTableWidget *WindowTest::table(const char *name) const
{
    return m_window->findChild<QTableWidget *>(QLatin1String(name));
}

QTableWidgetItem *WindowTest::valueItem(const QString &parameter) const
{
    const auto found = table("parameters")->findItems(parameter, Qt::MatchExactly);
    return table("parameters")->item(found.value(0)->row(), ValueColumn);
}

void WindowTest::enter(const QString &parameter, const char *value)
{
    valueItem(parameter)->setText(QString::fromUtf8(value));
}
