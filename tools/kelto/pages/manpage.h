// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MANPAGE_H
#define MANPAGE_H

#include <QByteArray>
#include <QString>

struct Command;

/// The manual page kelto(1), which lists the commands, as man reads it, with the date of the
/// release.
QByteArray overviewPage(const QString &date);

/// The manual page of one command, kelto-NAME(1).
QByteArray manPage(const Command &command, const QString &date);

#endif
