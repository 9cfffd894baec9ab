// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Modules as source text.

#include "auth_set.h"

#include "registry/auth_set_p.h"

QStringList AUTH_SET::generate_AUTH_INF_to_code(QStringList files) const
{
    QStringList texts;
    texts.reserve(files.size());
    for (const QString &file : qAsConst(files)) {
        AUTH_INF item;
        item.load_ini(file);
        texts.append(item.to_code());
    }
    return texts;
}

QStringList AUTH_SET::AUTH_INF_list_to_code() const
{
    QStringList texts;
    texts.reserve(d->modules.size());
    for (const AUTH_INF &module : qAsConst(d->modules))
        texts.append(module.to_code());
    return texts;
}
