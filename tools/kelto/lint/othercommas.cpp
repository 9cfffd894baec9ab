// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/othercommas.h"

#include "command.h"

#include <QRegularExpression>

namespace {

const QRegularExpression &otherCommas()
{
    static const QRegularExpression characters(QStringLiteral("\\s*([，、；､﹐|;])\\s*"));
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
    QString text = QString::fromUtf8(key.speltValue.data(), int(key.speltValue.size()));
    const QRegularExpressionMatch match = otherCommas().match(text);
    const int offset = text.left(match.capturedStart(1)).toUtf8().size();
    const bool isPlain = !text.contains(QLatin1Char('"')) && !text.contains(QLatin1Char('\\'));
    text.replace(otherCommas(), QStringLiteral(", "));
    findings->add(
        "other-comma", key.speltValue.data() + offset,
        Command::tr("the \"%1\" divides no list; write a \",\" for it").arg(match.captured(1)),
        isPlain ? QVector<TextEdit> { findings->edit(key.speltValue, text.toUtf8()) }
                : QVector<TextEdit>());
}
