// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/fixes.h"

#include "itemfile.h"
#include "lint/linter.h"

#include <QMap>

#include <algorithm>
#include <iterator>

namespace {

/// What is fixed can uncover something else. Nothing uncovers more than this.
constexpr int mostRounds = 8;

/// Replaces parts of bytes that do not overlap.
class Replacement
{
public:
    /// Whether @p edits do not touch what was taken before.
    bool take(const QVector<TextEdit> &edits)
    {
        if (std::any_of(edits.cbegin(), edits.cend(),
                        [this](const TextEdit &edit) { return touches(edit); }))
            return false;
        for (const TextEdit &edit : edits)
            m_edits.insert(edit.begin, edit);
        return true;
    }

    QByteArray replaced(const QByteArray &bytes) const
    {
        QByteArray result;
        int at = 0;
        for (const TextEdit &edit : qAsConst(m_edits)) {
            result += bytes.mid(at, edit.begin - at) + edit.text;
            at = edit.end;
        }
        return result + bytes.mid(at);
    }

private:
    /// Since those that were taken do not touch, only the last before the end of @p edit can.
    bool touches(const TextEdit &edit) const
    {
        const auto behind = m_edits.upperBound(edit.end);
        return behind != m_edits.cbegin() && std::prev(behind)->end >= edit.begin;
    }

    QMap<int, TextEdit> m_edits; ///< By where they begin.
};

/// @p file with as many fixes as do not touch each other. Empty findings when there is none.
FixedFile fixedOnce(const ItemFile &file, const LintConfig &config)
{
    Replacement replacement;
    FixedFile result { file.bytes(), {} };
    const Findings findings = findingsIn(file, config);
    for (const Finding &finding : findings) {
        if (!finding.fix.isEmpty() && replacement.take(finding.fix))
            result.fixed.append(finding);
    }
    if (!result.fixed.isEmpty())
        result.bytes = replacement.replaced(file.bytes());
    return result;
}

} // namespace

FixedFile fixedFile(const ItemFile &file, const LintConfig &config)
{
    FixedFile result = fixedOnce(file, config);
    bool isDone = result.fixed.isEmpty();
    for (int i = 1; i < mostRounds && !isDone; ++i) {
        const ItemFile copy(file.path(), result.bytes);
        if (!copy.error().isEmpty())
            break;
        const FixedFile next = fixedOnce(copy, config);
        isDone = next.fixed.isEmpty();
        result.bytes = next.bytes;
        result.fixed += next.fixed;
    }
    return result;
}
