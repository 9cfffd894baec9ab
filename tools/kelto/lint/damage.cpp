// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What the reader of INI files passes over, or reads as something else.

#include "command.h"
#include "core/iniproblems_p.h"
#include "itemfile.h"
#include "lint/rules.h"

namespace {

void check(const ItemFile &file, Findings *findings)
{
    const QVector<IniProblem> problems = iniProblems(file.bytes());
    for (const IniProblem &problem : problems) {
        if (problem.kind == IniProblem::NoEqualsSign) {
            findings->append({ QStringLiteral("no-equals-sign"),
                               file.path(),
                               problem.position,
                               Command::tr("the line has no \"=\" and is ignored"),
                               {} });
        }
    }
}

} // namespace

RuleArea damageRules()
{
    return {
        {
            { "no-equals-sign", Severity::Error,
              QT_TRANSLATE_NOOP("Command", "A line is neither a header nor a key with a value"),
              QT_TRANSLATE_NOOP("Command",
                                "Such a line is ignored, and gone when the file is saved. "
                                "Put a \"=\" behind the key, or a \";\" before a comment."),
              "[KeltoItem]\nname Beam\n", "[KeltoItem]\nname=Beam\n" },
        },
        check,
        nullptr
    };
}
