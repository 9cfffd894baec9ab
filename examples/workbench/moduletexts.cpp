// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "moduletexts.h"

#include "entry.h"

#include <Kelto/AUTH_INF>

#include <QCoreApplication>

namespace {

/// Looks texts up in the translation context of one module.
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
        return QCoreApplication::translate(m_context.constData(), text.toUtf8().constData());
    }

    QStringList operator()(const QStringList &texts) const
    {
        QStringList translated;
        for (const QString &text : texts)
            translated.append((*this)(text));
        return translated;
    }

    void translateEntries(QVector<QStringList> &entries) const
    {
        for (QStringList &entry : entries) {
            if (entry.size() != Entry::PlaceCount)
                continue;
            entry[Entry::TranslatedKey] = (*this)(entry.at(Entry::Key));
            entry[Entry::TranslatedGroup] = (*this)(entry.at(Entry::Group));
        }
    }

private:
    QByteArray m_context;
};

} // namespace

void translateTexts(AUTH_INF &module)
{
    const Translator translated(module.trObjectName);
    module.name_tr = translated(module.name);
    module.type_tr = translated(module.type);
    module.group_tr = translated(module.group);
    module.description = translated(module.description);
    module.inner_mode_description = translated(module.inner_mode_description);
    module.inner_mode_nameList_tr = translated(module.inner_mode_nameList);
    for (QVector<QStringList> &entries : module.inner_mode_parameterList)
        translated.translateEntries(entries);
    translated.translateEntries(module.output_results);
}
