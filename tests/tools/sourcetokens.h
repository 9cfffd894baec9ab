// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SOURCETOKENS_H
#define SOURCETOKENS_H

#include <AUTH_INF>

#include <QRegularExpression>
#include <QStringList>

// Source text as a compiler divides it, and the division that the source text of an item should
// have. A literal is a token that begins with a double quote and goes on with its content.

/// The tokens of @p source, of which compilers of any age and system make the same. What they need
/// not agree on makes the last token "rubbish".
inline QStringList tokensOf(const QString &source)
{
    static const QRegularExpression token(
        "(?:[ \\t\\n]+|([A-Za-z_][A-Za-z0-9_]*)|(\\.?[0-9](?:[eE][+-]|[A-Za-z0-9_.'])*)"
        "|(\"(?:[^\"\\\\\\x00-\\x08\\x0a-\\x1f\\x7f\\x{85}\\x{2028}\\x{2029}])*)\""
        "|(::|<<|[-+=.,;(){}<>\\[\\]]))");
    static const QRegularExpression trigraph("\\?\\?[=/'()!<>-]");
    QStringList tokens;
    if (source.contains(trigraph))
        return { "rubbish" };
    for (int at = 0; at < source.size();) {
        const QRegularExpressionMatch match
            = token.match(source, at, QRegularExpression::NormalMatch,
                          QRegularExpression::AnchoredMatchOption
                              | QRegularExpression::DontCheckSubjectStringMatchOption);
        if (!match.hasMatch())
            return tokens << "rubbish";
        for (int group = 1; group <= 4; ++group) {
            if (match.capturedLength(group) > 0)
                tokens.append(match.captured(group));
        }
        at += match.capturedLength();
    }
    return tokens;
}

/// Builds the tokens of an item's source text, with "inf" as the variable.
class ItemTokens
{
public:
    static QStringList of(const AUTH_INF &item, const QString &context)
    {
        ItemTokens tokens(context);
        tokens.write(item);
        return tokens.m_tokens;
    }

private:
    explicit ItemTokens(const QString &context)
        : m_context(context)
    {
    }

    static QString literal(const QString &text) { return '"' + text; }
    void add(const char *tokens) { m_tokens += QString(tokens).split(' ', Qt::SkipEmptyParts); }
    void addText(const QString &text, bool isTranslated)
    {
        if (isTranslated)
            m_tokens
                += m_context.split("::").join(" :: ").split(' ') + QStringList { "::", "tr", "(" };
        m_tokens.append(literal(text));
        if (isTranslated)
            m_tokens.append(")");
    }
    void field(const char *name)
    {
        add("inf .");
        add(name);
        add("=");
    }
    void whole(const char *name, int value)
    {
        field(name);
        if (value < 0)
            m_tokens.append("-");
        m_tokens.append(QString::number(qAbs(qint64(value))));
        add(";");
    }
    void text(const char *name, const QString &value, bool isTranslated)
    {
        field(name);
        addText(value, isTranslated);
        add(";");
    }
    void list(const QStringList &values, bool (*isTranslated)(int place))
    {
        add("QStringList {");
        for (int i = 0; i < values.size(); ++i) {
            if (i > 0)
                add(",");
            addText(values.at(i), isTranslated(i));
        }
        add("} ;");
    }
    void texts(const char *name, const QStringList &values, bool areTranslated)
    {
        field(name);
        if (areTranslated)
            list(values, [](int) { return true; });
        else
            list(values, [](int) { return false; });
    }
    void entry(const QStringList &values)
    {
        list(values, [](int place) { return place == 7 || place == 8; });
    }
    void parameters(const AUTH_INF &item)
    {
        add("inf . inner_mode_parameterList . clear ( ) ;");
        for (int mode = 0; mode < item.inner_mode_count; ++mode) {
            add("inf . inner_mode_parameterList << QVector < QStringList > ( ) ;");
            const auto entries = item.inner_mode_parameterList.value(mode);
            for (const QStringList &values : entries) {
                add("inf . inner_mode_parameterList . data ( ) [");
                m_tokens.append(QString::number(mode));
                add("] <<");
                entry(values);
            }
        }
    }
    void results(const AUTH_INF &item)
    {
        add("inf . output_results . clear ( ) ;");
        for (int i = 0; i < item.output_results.size(); ++i) {
            add("inf . output_results << QStringList ( ) ;");
            add("inf . output_results . data ( ) [");
            m_tokens.append(QString::number(i));
            add("] =");
            entry(item.output_results.at(i));
        }
    }
    void extraKeys(const AUTH_INF &item)
    {
        add("inf . extraKey . clear ( ) ;");
        for (const VDataItem &extra : item.extraKey) {
            add("inf . extraKey << VDataItem (");
            m_tokens.append(literal(extra.key));
            add(",");
            QString value = extra.value.toString();
            bool isNumber = false;
            value.toDouble(&isNumber);
            if (isNumber) {
                value = value.trimmed();
                const bool hasSign = value.startsWith('-') || value.startsWith('+');
                if (hasSign)
                    m_tokens.append(value.at(0));
                m_tokens.append(value.mid(hasSign ? 1 : 0));
            } else {
                m_tokens.append(literal(value));
            }
            add(") ;");
        }
    }
    void write(const AUTH_INF &item)
    {
        const bool isCalculation = item.type == "calculation";
        add("KeltoItem inf ;");
        whole("number", item.number);
        text("name", item.name, false);
        text("name_tr", item.name, true);
        text("description", item.description, true);
        text("icon", item.icon, false);
        text("type", item.type, false);
        text("type_tr", item.type, true);
        text("group", item.group, false);
        text("group_tr", item.group, true);
        field("exclusive_group");
        add(item.exclusive_group ? "true ;" : "false ;");
        texts("lib_name", item.lib_name, false);
        whole("inner_mode_count", item.inner_mode_count);
        texts("inner_mode_description", item.inner_mode_description, true);
        texts("inner_mode_nameList", item.inner_mode_nameList, false);
        texts("inner_mode_nameList_tr", item.inner_mode_nameList, true);
        if (isCalculation)
            parameters(item);
        text("trObjectName", item.trObjectName, false);
        text("codeFunctionName", item.codeFunctionName, false);
        if (isCalculation)
            results(item);
        extraKeys(item);
    }

    QString m_context;
    QStringList m_tokens;
};

#endif
