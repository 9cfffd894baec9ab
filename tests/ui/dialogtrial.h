// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef DIALOGTRIAL_H
#define DIALOGTRIAL_H

#include <QString>
#include <QStringList>

/// What a host does once, at some moment while a dialog is shown, and how the user ends the
/// showing.
struct Trial
{
    /// "bound" and "unbound" are for show() with and without a registry, "exec" is for exec() with
    /// one, and "plain" for exec() of a QDialog.
    QString kind;
    QString moment;
    QString act;
    QString end;

    QString name() const { return QStringList { kind, moment, act, end }.join('/'); }
    static Trial named(const QString &name)
    {
        const QStringList parts = name.split('/');
        return { parts.value(0), parts.value(1), parts.value(2), parts.value(3) };
    }

    static QStringList moments();
    static QStringList acts();
    static QStringList ends();
};

/// Tells of each trial that the arguments name how it went, "well" or otherwise. To be called by a
/// process of its own: a trial may end it, and one that hangs does.
int runTrials(int argc, char **argv);

#endif
