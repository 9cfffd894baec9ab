// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ROAD_H
#define ROAD_H

#include "walker.h"

class AUTH_SET;

/// The whole road through the workbench, step by step: from the task to the report, and what a
/// careless user meets. It is the same in every language; the file names are.
class Road
{
public:
    /// @param walker who is to go it
    /// @param language in which the program was started
    /// @param isTour whether to visit every task instead, and look whether all fits
    Road(Walker *walker, const AUTH_SET *registry, const QString &language, bool isTour);

    /// To be called when the program has left its event loop.
    void lookBack(const QString &logFile) const;

private:
    void visitEveryTask();
    void confirmTask();
    void fillIn();
    void meetMistakes();
    void calculate();
    void study();
    void saveAndReport();
    void changeLanguage();
    void openAgain();
    void openBadProjects();
    void end();

    void useWindow(const char *window);
    void useMenu(const QString &firstAction, const QString &action);
    void pickEntry(const char *window, const QString &box, const QString &entry);
    void enter(const char *window, const QString &editor, const QString &text);
    void press(const QString &keys, const std::function<void(UserInput &)> &how);
    void nameFile(const QString &name);
    void expectNothingClipped();
    void expectTitle(const QString &taskId);
    QString standardName(const QString &taskId) const;
    void expectText(const char *window, const QString &widget, const QString &text);

    Walker &m_walker;
    const AUTH_SET *m_registry;
    QString m_language;
    bool m_isTour;
};

#endif
