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
        code.assign("trObjectName", quoted(item.trObjectName));
        code.assign("codeFunctionName", quoted(item.codeFunctionName));
        if (isCalculation)
            code.addResults(item);
        code.addExtraKeys(item);

        return code.m_lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
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
    void assign(const char *field, const QString &value)
    {
        add(QLatin1Char('.') + QLatin1String(field) + QLatin1Char('=') + value + QLatin1Char(';'));
    }

    static bool none(int) { return false; }
    static bool all(int) { return true; }
    static bool ofEntry(int place) { return place == 7 || place == 8; }

    void addList(const QString &header, const QStringList &texts, bool (*isTranslated)(int))
    {
        add(header + QLatin1String("QStringList{"));
        for (int i = 0; i < texts.size(); ++i) {
            m_lines.append(QLatin1String("    ")
                           + (isTranslated(i) ? translated(texts.at(i)) : quoted(texts.at(i)))
                           + QLatin1String(i + 1 < texts.size() ? "," : ""));
        }
        m_lines.append(QLatin1String("};"));
    }

    void addFields(const AUTH_INF &item)
    {
        m_lines.append(QLatin1String("KeltoItem ") + m_variable + QLatin1Char(';'));
        assign("number", QString::number(item.number));
        assign("name", quoted(item.name));
        assign("name_tr", translated(item.name));
        assign("description", translated(item.description));
        assign("icon", quoted(item.icon));
        assign("type", quoted(item.type));
        assign("type_tr", translated(item.type));
        assign("group", quoted(item.group));
        assign("group_tr", translated(item.group));
        assign("exclusive_group", QLatin1String(item.exclusive_group ? "true" : "false"));
        addList(QLatin1String(".lib_name="), item.lib_name, none);
        assign("inner_mode_count", QString::number(item.inner_mode_count));
        addList(QLatin1String(".inner_mode_description="), item.inner_mode_description, all);
        addList(QLatin1String(".inner_mode_nameList="), item.inner_mode_nameList, none);
        addList(QLatin1String(".inner_mode_nameList_tr="), item.inner_mode_nameList, all);
    }

    void addParameters(const AUTH_INF &item)
    {
        add(QLatin1String(".inner_mode_parameterList.clear();"));
        for (int i = 0; i < item.inner_mode_count; ++i) {
            add(QLatin1String(".inner_mode_parameterList<<QVector<QStringList>();"));
            const QVector<QStringList> entries = item.inner_mode_parameterList.value(i);
            for (const QStringList &entry : entries) {
                addList(QLatin1String(".inner_mode_parameterList.data()[") + QString::number(i)
                            + QLatin1String("]<<"),
                        entry, ofEntry);
            }
        }
    }

    void addResults(const AUTH_INF &item)
    {
        add(QLatin1String(".output_results.clear();"));
        for (int i = 0; i < item.output_results.size(); ++i) {
            add(QLatin1String(".output_results<<QStringList();"));
            addList(QLatin1String(".output_results.data()[") + QString::number(i)
                        + QLatin1String("]="),
                    item.output_results.at(i), ofEntry);
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
