// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/followers.h"

#include "command.h"
#include "lint/linter.h"
#include "lint/mends.h"

#include <QHash>

#include <algorithm>

namespace {

/// Each unclosed quote is mended in a copy of its own.
constexpr int mostCopies = 5;

/// Nobody writes a longer file by hand, and reading it several times takes long.
constexpr int longestFile = 200000;

QByteArray mended(const QByteArray &bytes, const QVector<Mend> &mends)
{
    QByteArray result;
    int at = 0;
    for (const Mend &mend : mends) {
        result += bytes.mid(at, mend.edit.begin - at) + mend.edit.text;
        at = mend.edit.end;
    }
    return result + bytes.mid(at);
}

/// Where characters of a file are in its mended copy, which has the same lines.
class MovedPositions
{
public:
    MovedPositions(const ItemFile &file, const QVector<Mend> &mends)
    {
        for (const Mend &mend : mends) {
            const char *const bytes = file.bytes().constData();
            const IniPosition begin = file.positionAt(bytes + mend.edit.begin);
            const IniPosition end = file.positionAt(bytes + mend.edit.end);
            const int added = mend.edit.text.size() - (end.column - begin.column);
            m_moves[begin.line].append({ begin.column, added });
        }
    }

    FindingKey keyIn(const Finding &finding) const
    {
        IniPosition position = finding.position;
        const QVector<QPair<int, int>> moves = m_moves.value(position.line);
        for (const auto &[column, added] : moves)
            position.column += column < finding.position.column ? added : 0;
        return keyOf(finding.rule, position);
    }

private:
    QHash<int, QVector<QPair<int, int>>> m_moves;
};

QSet<FindingKey> keysOf(const Findings &findings)
{
    QSet<FindingKey> keys;
    for (const Finding &finding : findings)
        keys.insert(keyOf(finding.rule, finding.position));
    return keys;
}

bool isError(const Finding &finding)
{
    return ruleOf(finding.rule)->severity == Severity::Error;
}

/// Whether a mend has broken something else, so that it was not what was meant.
bool hasNewDamage(const Findings &left, const QSet<FindingKey> &before)
{
    static const QStringList damage { QStringLiteral("broken-header"),
                                      QStringLiteral("no-equals-sign"),
                                      QStringLiteral("quote-across-lines"),
                                      QStringLiteral("quote-in-key") };
    return std::any_of(left.cbegin(), left.cend(), [&before](const Finding &finding) {
        return damage.contains(finding.rule)
            && !before.contains(keyOf(finding.rule, finding.position));
    });
}

/// What is told of a cause in place of @p finding. White space around a name is a matter of taste
/// until parameters are lost by it, and a declaration is misspelt that no other section knows.
Finding asCause(Finding finding)
{
    if (finding.rule == QLatin1String("white-space-at-ends")) {
        finding.rule = QStringLiteral("unknown-mode");
        finding.text = Command::tr("the name of the mode begins or ends with white space, and "
                                   "[Belong] names it without");
    }
    if (finding.rule == QLatin1String("undeclared-key"))
        finding.text += Command::tr(" Other sections have this key, too, so that its declaration "
                                    "may be misspelt");
    return finding;
}

/// The damage that is mended, and what a copy without it has, too.
class Independence
{
public:
    Independence(const Findings &findings, const QVector<Mend> &mends, const Findings &left)
        : m_left(keysOf(left))
    {
        for (const Mend &mend : mends)
            m_causes.insert(keyOf(mend.rule, mend.cause));
        m_hasError = std::any_of(findings.cbegin(), findings.cend(), [this](const Finding &each) {
            return isCause(each) && isError(asCause(each));
        });
    }

    bool isCause(const Finding &finding) const
    {
        return m_causes.contains(keyOf(finding.rule, finding.position));
    }
    bool isKept(const Finding &finding, const FindingKey &moved) const
    {
        return isCause(finding) || m_left.contains(moved) || (!m_hasError && isError(finding));
    }

private:
    const QSet<FindingKey> m_left;
    QSet<FindingKey> m_causes;
    bool m_hasError = false;
};

Findings withoutFollowersIn(const ItemFile &file, const Findings &findings, int copies)
{
    const QVector<Mend> mends = copies > 0 ? mendsFor(file, findings) : QVector<Mend>();
    if (mends.isEmpty())
        return findings;
    const ItemFile copy(file.path(), mended(file.bytes(), mends));
    if (!copy.error().isEmpty())
        return findings;
    const Findings left = withoutFollowersIn(copy, everyFindingIn(copy), copies - 1);
    const MovedPositions moved(file, mends);
    QSet<FindingKey> before;
    for (const Finding &finding : findings)
        before.insert(moved.keyIn(finding));
    // A line that was joined with the next one may lack a "=" of its own.
    for (const Mend &mend : mends)
        before.insert(keyOf(QStringLiteral("no-equals-sign"), mend.cause));
    if (hasNewDamage(left, before))
        return findings;

    const Independence independence(findings, mends, left);
    Findings kept;
    for (const Finding &finding : findings) {
        if (independence.isKept(finding, moved.keyIn(finding)))
            kept.append(independence.isCause(finding) ? asCause(finding) : finding);
    }
    return kept;
}

} // namespace

Findings withoutFollowers(const ItemFile &file, const Findings &findings)
{
    return file.bytes().size() > longestFile ? findings
                                             : withoutFollowersIn(file, findings, mostCopies);
}
