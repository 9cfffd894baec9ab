// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltoitemfinding.h"

#include "core/enteredvalues_p.h"
#include "core/sentence_p.h"

#include <QCoreApplication>

namespace {

class Sentences
{
    Q_DECLARE_TR_FUNCTIONS(KeltoItemFinding)

public:
    explicit Sentences(const KeltoItemFinding &finding)
        : m_finding(finding)
    {
    }

    /// With %1 for the parameter, %2 for what was found and %3 for what would do.
    QString sentence() const
    {
        switch (m_finding.kind) {
        case KeltoItemFinding::Missing:
            return missing();
        case KeltoItemFinding::NearMiss:
            return tr("%1: no value under \"%4\", but there is one under \"%2\".");
        case KeltoItemFinding::EmptyText:
            return tr("%1: the value is empty.");
        case KeltoItemFinding::NotANumber:
            return notANumber();
        case KeltoItemFinding::OutsideLimits:
            return tr("%1: %2 is outside the allowed range (%3).");
        case KeltoItemFinding::NotAChoice:
            return tr("%1: \"%2\" is not among the choices (%3).");
        case KeltoItemFinding::UnknownMode:
            return unknownMode();
        case KeltoItemFinding::ModeWithoutParameters:
            return tr("The mode \"%2\" has no parameters.");
        }
        return {};
    }

    /// "Length (L, mm), in Geometry", with the number of the value where there are several.
    QString subject() const
    {
        const VParameter &parameter = m_finding.parameter;
        QString text = eitherOf(parameter.name());
        QStringList details { parameter.symbol(), parameter.unit().first };
        details.removeAll(QString());
        if (!details.isEmpty())
            text = tr("%1 (%2)").arg(text, details.join(tr(", ")));
        const QString group = eitherOf(parameter.group());
        if (!group.isEmpty())
            text = tr("%1, in %2").arg(text, group);
        if (m_finding.position >= 0)
            text = tr("%1, value %2").arg(text, QString::number(m_finding.position + 1));
        return text;
    }

    QString expected() const
    {
        constexpr int most = 10;
        QStringList shown = m_finding.expected.mid(0, most);
        if (m_finding.expected.size() > most)
            shown.append(tr("..."));
        return shown.join(tr(", "));
    }

private:
    /// The name that a person reads.
    static QString eitherOf(const QPair<QString, QString> &names)
    {
        return names.second.isEmpty() ? names.first : names.second;
    }

    QString missing() const
    {
        if (m_finding.expected.isEmpty())
            return tr("%1: no value.");
        return tr("%1: no value. It may stay empty, but then an empty text has to be stored.");
    }

    QString notANumber() const
    {
        const ValueKind kind = valueKindOf(m_finding.parameter);
        if (kind.isPoint && kind.isWhole)
            return tr("%1: \"%2\" is not two whole numbers with \"|\" between them.");
        if (kind.isPoint)
            return tr("%1: \"%2\" is not two numbers with \"|\" between them.");
        return kind.isWhole ? tr("%1: \"%2\" is not a whole number.")
                            : tr("%1: \"%2\" is not a number.");
    }

    QString unknownMode() const
    {
        if (m_finding.expected.isEmpty())
            return tr("There is no mode \"%2\".");
        if (m_finding.parameter.name().second == m_finding.found)
            return tr("\"%2\" is a translated name. The mode is needed under its plain name, "
                      "\"%3\".");
        return tr("There is no mode \"%2\". Similar: %3.");
    }

    const KeltoItemFinding &m_finding;
};

} // namespace

bool KeltoItemFinding::isAbsence() const
{
    return kind == Missing || kind == NearMiss || kind == UnknownMode
        || kind == ModeWithoutParameters;
}

QString KeltoItemFinding::text() const
{
    const Sentences sentences(*this);
    return sentenceOf(sentences.sentence(),
                      { sentences.subject(), found, sentences.expected(), valueKey });
}
