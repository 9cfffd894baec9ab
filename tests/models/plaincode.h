// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PLAINCODE_H
#define PLAINCODE_H

#include <Kelto/AUTH_INF>

#include <QString>
#include <QStringList>

/// A module item as source text, put together line by line and joined at the end.
class PlainCode
{
public:
    static QString of(const AUTH_INF &item, const QString &context, const QString &variable)
    {
        PlainCode code(context, variable);
        code.addFields(item);
        const bool isCalculation = item.type == QLatin1String("calculation");
        if (isCalculation)
            code.addParameters(item);
        code.add(QLatin1String(".trObjectName=") + quoted(item.trObjectName) + QLatin1Char(';'));
        code.add(QLatin1String(".codeFunctionName=") + quoted(item.codeFunctionName)
                 + QLatin1Char(';'));
        if (isCalculation)
            code.addResults(item);
        code.addExtraKeys(item);

        QString text;
        for (const QString &line : qAsConst(code.m_lines))
            text += QString(line + QLatin1Char('\n'));
        return text;
    }

private:
    PlainCode(const QString &context, const QString &variable)
        : m_context(context)
        , m_variable(variable)
    {
    }

    static QString quoted(const QString &text)
    {
        return QLatin1Char('"') + text + QLatin1Char('"');
    }
    QString translated(const QString &text) const
    {
        return m_context + QLatin1String("::tr(") + quoted(text) + QLatin1Char(')');
    }

    void add(const QString &rest) { m_lines.append(m_variable + rest); }

    void addList(const QString &header, const QStringList &texts, bool isTranslated)
    {
        add(header + QLatin1String("QStringList{"));
        for (int i = 0; i < texts.size(); ++i)
            addElement(texts, i, isTranslated);
        m_lines.append(QLatin1String("};"));
    }

    void addEntry(const QString &header, const QStringList &entry)
    {
        add(header + QLatin1String("QStringList{"));
        for (int i = 0; i < entry.size(); ++i)
            addElement(entry, i, i == 7 || i == 8);
        m_lines.append(QLatin1String("};"));
    }

    void addElement(const QStringList &texts, int i, bool isTranslated)
    {
        const QString value = isTranslated ? translated(texts.at(i)) : quoted(texts.at(i));
        m_lines.append(QLatin1String("    ") + value
                       + QLatin1String(i + 1 < texts.size() ? "," : ""));
    }

    void addFields(const AUTH_INF &item)
    {
        m_lines.append(QLatin1String("KeltoItem ") + m_variable + QLatin1Char(';'));
        add(QLatin1String(".number=") + QString::number(item.number, 10) + QLatin1Char(';'));
        add(QLatin1String(".name=") + quoted(item.name) + QLatin1Char(';'));
        add(QLatin1String(".name_tr=") + translated(item.name) + QLatin1Char(';'));
        add(QLatin1String(".description=") + translated(item.description) + QLatin1Char(';'));
        add(QLatin1String(".icon=") + quoted(item.icon) + QLatin1Char(';'));
        add(QLatin1String(".type=") + quoted(item.type) + QLatin1Char(';'));
        add(QLatin1String(".type_tr=") + translated(item.type) + QLatin1Char(';'));
        add(QLatin1String(".group=") + quoted(item.group) + QLatin1Char(';'));
        add(QLatin1String(".group_tr=") + translated(item.group) + QLatin1Char(';'));
        add(QLatin1String(".exclusive_group=")
            + QLatin1String(item.exclusive_group ? "true" : "false") + QLatin1Char(';'));
        addList(QLatin1String(".lib_name="), item.lib_name, false);
        add(QLatin1String(".inner_mode_count=") + QString::number(item.inner_mode_count, 10)
            + QLatin1Char(';'));
        addList(QLatin1String(".inner_mode_description="), item.inner_mode_description, true);
        addList(QLatin1String(".inner_mode_nameList="), item.inner_mode_nameList, false);
        addList(QLatin1String(".inner_mode_nameList_tr="), item.inner_mode_nameList, true);
    }

    void addParameters(const AUTH_INF &item)
    {
        add(QLatin1String(".inner_mode_parameterList.clear();"));
        for (int i = 0; i < item.inner_mode_count; ++i) {
            add(QLatin1String(".inner_mode_parameterList<<QVector<QStringList>();"));
            const QVector<QStringList> entries = item.inner_mode_parameterList.value(i);
            for (const QStringList &entry : entries) {
                addEntry(QLatin1String(".inner_mode_parameterList.data()[") + QString::number(i, 10)
                             + QLatin1String("]<<"),
                         entry);
            }
        }
    }

    void addResults(const AUTH_INF &item)
    {
        add(QLatin1String(".output_results.clear();"));
        for (int i = 0; i < item.output_results.size(); ++i) {
            add(QLatin1String(".output_results<<QStringList();"));
            addEntry(QLatin1String(".output_results.data()[") + QString::number(i, 10)
                         + QLatin1String("]="),
                     item.output_results.at(i));
        }
    }

    void addExtraKeys(const AUTH_INF &item)
    {
        add(QLatin1String(".extraKey.clear();"));
        for (const VDataItem &extra : item.extraKey) {
            const QString text = extra.value.toString();
            bool isNumber = false;
            text.toDouble(&isNumber);
            add(QLatin1String(".extraKey<<VDataItem(") + quoted(extra.key) + QLatin1Char(',')
                + (isNumber ? text : quoted(text)) + QLatin1String(");"));
        }
    }

    QString m_context;
    QString m_variable;
    QStringList m_lines;
};

#endif
