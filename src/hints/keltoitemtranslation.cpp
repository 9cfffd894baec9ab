// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltoitemtranslation.h"

#include "auth_inf.h"
#include "keltoparameterentry.h"

#include <QCoreApplication>

namespace {

class Translator
{
public:
    explicit Translator(const QString &context)
        : m_context(context.toUtf8())
    {
    }

    QString operator()(const QString &text) const
    {
        // An empty text would ask for the header of the translation file.
        if (text.isEmpty())
            return text;
        const QByteArray source = text.toUtf8();
        const QString found
            = QCoreApplication::translate(m_context.constData(), source.constData());
        // What is not found is returned through UTF-8, which cannot hold every QString.
        return found == QString::fromUtf8(source.constData()) ? text : found;
    }

    QStringList operator()(const QStringList &texts) const
    {
        QStringList translated;
        translated.reserve(texts.size());
        for (const QString &text : texts)
            translated.append((*this)(text));
        return translated;
    }

    /// Short entries have fewer places, as in generated source text.
    void translateEntries(QVector<QStringList> *entries) const
    {
        for (QStringList &entry : *entries) {
            for (const int place :
                 { KeltoParameterEntry::TranslatedKey, KeltoParameterEntry::TranslatedGroup }) {
                if (place < entry.size())
                    entry[place] = (*this)(entry.at(place));
            }
        }
    }

private:
    QByteArray m_context;
};

} // namespace

void KeltoItemTranslation::translate(AUTH_INF *item)
{
    if (!item)
        return;
    const Translator translated(contextOf(*item));
    item->name_tr = translated(item->name);
    item->description = translated(item->description);
    item->type_tr = translated(item->type);
    item->group_tr = translated(item->group);
    item->inner_mode_description = translated(item->inner_mode_description);
    item->inner_mode_nameList_tr = translated(item->inner_mode_nameList);
    for (QVector<QStringList> &entries : item->inner_mode_parameterList)
        translated.translateEntries(&entries);
    translated.translateEntries(&item->output_results);
}

AUTH_INF KeltoItemTranslation::translated(AUTH_INF item)
{
    translate(&item);
    return item;
}

QString KeltoItemTranslation::contextOf(AUTH_INF item)
{
    return item.trObjectName.isEmpty() ? QStringLiteral("UCal") : item.trObjectName;
}

QString KeltoItemTranslation::text(QString context, QString text)
{
    return Translator(context)(text);
}
