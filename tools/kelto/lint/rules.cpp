// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/rules.h"

const QVector<RuleArea> &ruleAreas()
{
    static const QVector<RuleArea> areas {
        damageRules(),   keyRules(),  structureRules(), valueRules(), nameRules(),
        registryRules(), hintRules(), unitRules(),      codeRules(),
    };
    return areas;
}

QStringList ruleNames()
{
    QStringList names;
    for (const RuleArea &area : ruleAreas()) {
        for (const Rule &rule : area.rules)
            names.append(QLatin1String(rule.id));
    }
    return names;
}

const Rule *ruleOf(const QString &id)
{
    for (const RuleArea &area : ruleAreas()) {
        for (const Rule &rule : area.rules) {
            if (QLatin1String(rule.id) == id)
                return &rule;
        }
    }
    return nullptr;
}
