// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A module item as source text.

#include "auth_inf.h"

#include "items/innermodelimit_p.h"
#include "items/sourcewriter_p.h"
#include "keltoparameterentry.h"

namespace {

/// Parameters and results are described for modules of this type only.
bool isCalculation(const AUTH_INF &item)
{
    return item.type == QLatin1String("calculation");
}

/// Translated fields are made from the plain ones: the text is translated where it is compiled in.
void writeIdentity(SourceWriter &writer, const AUTH_INF &item)
{
    writer.assign(QStringLiteral("number"), writer.number(item.number));
    writer.assign(QStringLiteral("name"), writer.quoted(item.name));
    writer.assign(QStringLiteral("name_tr"), writer.translated(item.name));
    writer.assign(QStringLiteral("description"), writer.translated(item.description));
    writer.assign(QStringLiteral("icon"), writer.quoted(item.icon));
    writer.assign(QStringLiteral("type"), writer.quoted(item.type));
    writer.assign(QStringLiteral("type_tr"), writer.translated(item.type));
    writer.assign(QStringLiteral("group"), writer.quoted(item.group));
    writer.assign(QStringLiteral("group_tr"), writer.translated(item.group));
    writer.assign(QStringLiteral("exclusive_group"), writer.word(item.exclusive_group));
    writer.assignList(QStringLiteral("lib_name"), writer.quoted(item.lib_name));
}

void writeInnerModes(SourceWriter &writer, const AUTH_INF &item)
{
    writer.assign(QStringLiteral("inner_mode_count"), writer.number(item.inner_mode_count));
    writer.assignList(QStringLiteral("inner_mode_description"),
                      writer.translated(item.inner_mode_description));
    writer.assignList(QStringLiteral("inner_mode_nameList"),
                      writer.quoted(item.inner_mode_nameList));
    writer.assignList(QStringLiteral("inner_mode_nameList_tr"),
                      writer.translated(item.inner_mode_nameList));
}

QStringList valuesOf(const QStringList &entry, const SourceWriter &writer)
{
    QStringList values;
    values.reserve(entry.size());
    for (int place = 0; place < entry.size(); ++place) {
        const bool isTranslated = place == KeltoParameterEntry::TranslatedKey
            || place == KeltoParameterEntry::TranslatedGroup;
        values.append(isTranslated ? writer.translated(entry.at(place))
                                   : writer.quoted(entry.at(place)));
    }
    return values;
}

void writeParameters(SourceWriter &writer, const AUTH_INF &item)
{
    const QString member = QStringLiteral("inner_mode_parameterList");
    writer.clear(member);
    const int count = qMin(item.inner_mode_count, mostInnerModes);
    for (int mode = 0; mode < count; ++mode) {
        writer.append(member, QStringLiteral("QVector<QStringList>()"));
        const QVector<QStringList> entries = item.inner_mode_parameterList.value(mode);
        for (const QStringList &entry : entries)
            writer.appendList(writer.elementOf(member, mode), valuesOf(entry, writer));
    }
}

void writeResults(SourceWriter &writer, const AUTH_INF &item)
{
    const QString member = QStringLiteral("output_results");
    writer.clear(member);
    for (int i = 0; i < item.output_results.size(); ++i) {
        writer.append(member, QStringLiteral("QStringList()"));
        writer.assignList(writer.elementOf(member, i), valuesOf(item.output_results.at(i), writer));
    }
}

/// A text that reads as a number becomes a number in the source text.
QString valueOf(const VDataItem &extra)
{
    const QString text = extra.value.toString();
    bool isNumber = false;
    text.toDouble(&isNumber);
    return isNumber ? text : SourceWriter::quoted(text);
}

void writeExtraKeys(SourceWriter &writer, const AUTH_INF &item)
{
    const QString member = QStringLiteral("extraKey");
    writer.clear(member);
    for (const VDataItem &extra : item.extraKey) {
        writer.append(member,
                      QLatin1String("VDataItem(") + writer.quoted(extra.key) + QLatin1Char(',')
                          + valueOf(extra) + QLatin1Char(')'));
    }
}

} // namespace

QString AUTH_INF::to_code(QString context, QString variable) const
{
    SourceWriter writer(context, variable);
    writer.declare(QStringLiteral("KeltoItem"));
    writeIdentity(writer, *this);
    writeInnerModes(writer, *this);
    if (isCalculation(*this))
        writeParameters(writer, *this);
    writer.assign(QStringLiteral("trObjectName"), writer.quoted(trObjectName));
    writer.assign(QStringLiteral("codeFunctionName"), writer.quoted(codeFunctionName));
    if (isCalculation(*this))
        writeResults(writer, *this);
    writeExtraKeys(writer, *this);
    return writer.text();
}

QString AUTH_INF::to_code() const
{
    const QString context = trObjectName.isEmpty() ? QStringLiteral("UCal") : trObjectName;
    return to_code(context, QStringLiteral("inf"));
}
