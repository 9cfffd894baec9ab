// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "pages/completion.h"

#include "commands.h"
#include "lint/rules.h"

namespace {

/// Works without the functions that the package bash-completion brings. With "=" between an option
/// and its value, bash takes it for a word of its own.
const char *const frame = R"(# bash completion for kelto
# shellcheck shell=bash

_kelto_words() {
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "$word")
}

_kelto_files() {
    # As typed, with what quotes a name; the shell quotes the answers again.
    local name=${word#[\"\']}
    mapfile -t COMPREPLY < <(compgen "$1" -- "${name//\\/}")
    compopt -o filenames 2>/dev/null
}

_kelto() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} options=
    COMPREPLY=()
    if [[ $word == = ]]; then
        word=
    elif [[ $previous == = ]]; then
        previous=${COMP_WORDS[COMP_CWORD-2]}
    fi
    if [[ $COMP_CWORD -eq 1 || ( $COMP_CWORD -eq 2 && $previous == help ) ]]; then
        _kelto_words '%1'
        return
    fi
    case ${COMP_WORDS[1]} in
%2    esac
    if [[ $word == -* ]]; then
        _kelto_words "$options"
    else
        _kelto_files -f
    fi
}

complete -F _kelto kelto
)";

QStringList dashedNames(const CommandOption &option)
{
    QStringList names;
    for (const QString &name : option.names)
        names.append(dashed(name));
    return names;
}

QString ruleNames()
{
    QStringList names;
    for (const RuleArea &area : ruleAreas()) {
        for (const Rule &rule : area.rules)
            names.append(QLatin1String(rule.id));
    }
    names.sort();
    return names.join(QLatin1Char(' '));
}

/// What completes the value of an option, as the word that stands for it in the help says.
QString valueAction(QString value)
{
    if (value == QLatin1String("FILE"))
        return QStringLiteral("_kelto_files -f");
    if (value == QLatin1String("DIR"))
        return QStringLiteral("_kelto_files -d");
    if (value == QLatin1String("RULE"))
        return QStringLiteral("_kelto_words '%1'").arg(ruleNames());
    if (value.contains(QLatin1Char('|')))
        return QStringLiteral("_kelto_words '%1'")
            .arg(value.replace(QLatin1Char('|'), QLatin1Char(' ')));
    return QStringLiteral(":");
}

/// The branch of one command.
QString branch(const Command &command)
{
    QStringList options;
    QString values;
    const QVector<CommandOption> all = command.options + commonOptions();
    for (const CommandOption &option : all) {
        options += dashedNames(option);
        if (option.value) {
            values += QStringLiteral("        %1) %2; return ;;\n")
                          .arg(dashedNames(option).join(QLatin1Char('|')),
                               valueAction(QLatin1String(option.value)));
        }
    }
    QString text = QStringLiteral("    %1)\n        options='%2'\n")
                       .arg(QLatin1String(command.name), options.join(QLatin1Char(' ')));
    if (!values.isEmpty())
        text += QLatin1String("        case $previous in\n") + values
            + QLatin1String("        esac\n");
    return text + QLatin1String("        ;;\n");
}

} // namespace

QByteArray bashCompletion()
{
    QStringList words;
    QString branches;
    for (const Command &command : commands()) {
        words.append(QLatin1String(command.name));
        branches += branch(command);
    }
    words += { QStringLiteral("help"), QStringLiteral("--help"), QStringLiteral("--version") };
    return QString::fromLatin1(frame).arg(words.join(QLatin1Char(' ')), branches).toUtf8();
}
