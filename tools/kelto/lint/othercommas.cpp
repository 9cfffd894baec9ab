// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/othercommas.h"

#include "command.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

const QRegularExpression &otherCommas()
{
    static const QRegularExpression characters(QStringLiteral("\\s*([，、；､﹐|;,])\\s*"));
    return characters;
}

} // namespace

QStringList dividedAnyhow(const QStringList &elements)
{
    QStringList parts;
    for (const QString &element : elements)
        parts += element.split(otherCommas());
    return parts;
}

QStringList modesOf(const LintItem &item)
{
    const QStringList modes = LintItem::elements(item.field("inner_mode_nameList"));
    const QStringList parts = dividedAnyhow(modes);
    const ItemFileKey *const count = item.field("inner_mode_count");
    const bool areDivided = count && parts.size() > modes.size()
        && count->value.constFirst() == QString::number(parts.size());
    return areDivided ? parts : modes;
}

void addOtherComma(const ItemFileKey &key, FileFindings *findings)
{
    const std::string_view spelt = key.speltValue;
    QString text = QString::fromUtf8(spelt.data(), int(spelt.size()));
    static const QRegularExpression other(QStringLiteral("[，、；､﹐|;]"));
    const QString found = other.match(text).captured();
    if (found.isEmpty()) {
        findings->add("other-comma", spelt.data() + std::min(spelt.find('"'), spelt.size()),
                      Command::tr("the quotes make one text of the list; leave them out"));
        return;
    }
    const bool isPlain = spelt.find_first_of("\"\\") == spelt.npos
        && firstInvalidByte(spelt) == spelt.data() + spelt.size();
    text.replace(otherCommas(), QStringLiteral(", "));
    findings->add("other-comma", spelt.data() + spelt.find(found.toUtf8().constData()),
                  Command::tr("the \"%1\" divides no list; write a \",\" for it").arg(found),
                  isPlain ? QVector<TextEdit> { findings->edit(spelt, text.toUtf8()) }
                          : QVector<TextEdit>());
}
