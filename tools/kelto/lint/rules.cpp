// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/rules.h"

const QVector<RuleArea> &ruleAreas()
{
    static const QVector<RuleArea> areas {
        damageRules(), nameRules(), registryRules(), hintRules(), unitRules(), codeRules(),
    };
    return areas;
}
