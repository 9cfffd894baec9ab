// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef QOBJECTCONTEXT_H
#define QOBJECTCONTEXT_H

#include <QObject>

/// A context class of a host that uses Qt's translators.
class QObjectContext : public QObject
{
    Q_OBJECT
};

#endif
