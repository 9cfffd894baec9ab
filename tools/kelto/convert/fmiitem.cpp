// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "convert/fmiitem.h"

#include "command.h"
#include "newitem.h"

#include <KeltoItemHints>

#include <QSet>

#include <algorithm>

namespace {

/// A text that can be a name or a key wherever the item goes.
QString plainName(const QString &text)
{
    QString plain;
    const QString simplified = text.simplified();
    for (const QChar character : simplified) {
        if (character == QLatin1Char('"'))
            plain += QLatin1Char('\'');
        else if (character == QLatin1Char('\\'))
            plain += QLatin1Char('/');
        else if (character.isPrint())
            plain += character;
    }
    return plain.simplified();
}

/// The word for the kind of value; empty for what no form can show.
QString objectNameOf(const QString &kind, bool isArray)
{
    QString word;
    if (kind == QLatin1String("Real") || kind == QLatin1String("Float64"))
        word = QStringLiteral("double");
    else if (kind == QLatin1String("Float32"))
        word = QStringLiteral("float");
    else if (kind.startsWith(QLatin1String("Int")) || kind.startsWith(QLatin1String("UInt")))
        word = QStringLiteral("int");
    if (isArray && !word.isEmpty())
        return QStringLiteral("QVector<%1>").arg(word);
    if (kind == QLatin1String("Boolean"))
        return isArray ? QString() : QStringLiteral("bool");
    if (kind == QLatin1String("Enumeration"))
        return isArray ? QString() : QStringLiteral("choice");
    if (kind == QLatin1String("String"))
        return isArray ? QStringLiteral("QStringList") : QStringLiteral("QString");
    return word;
}

bool isArray(const FmiVariable &variable)
{
    return variable.dimensions > 0;
}

bool isTrue(const QString &text)
{
    return text == QLatin1String("true") || text == QLatin1String("1");
}

class ItemMaker
{
public:
    ItemMaker(const FmiModel &model, QVector<LeftOut> *leftOut)
        : m_model(model)
        , m_leftOut(leftOut)
    {
        *m_leftOut += model.leftOut;
    }

    AUTH_INF item()
    {
        writeIdentity();
        writeModes();
        for (const FmiVariable &variable : m_model.variables)
            add(variable);
        for (QVector<QStringList> &entries : m_item.inner_mode_parameterList)
            entries = m_parameters;
        writeExtraKeys();
        dropContradictions();
        listUnsaved();
        return m_item;
    }

private:
    void leaveOut(const QString &what, const QString &why) { m_leftOut->append({ what, why }); }

    void writeIdentity()
    {
        m_item = AUTH_INF();
        QString name = plainName(m_model.attributes.value(QStringLiteral("modelName")));
        name = name.replace(QLatin1Char(':'), QLatin1Char(' ')).simplified();
        if (!complaintOnName(name).isEmpty())
            name = QStringLiteral("Model");
        if (name != m_model.attributes.value(QStringLiteral("modelName")))
            leaveOut(QStringLiteral("modelName"),
                     Command::tr("The module is named \"%1\".").arg(name));
        m_item.name = m_item.name_tr = name;
        m_item.description = m_model.attributes.value(QStringLiteral("description"));
        m_item.type = m_item.type_tr = QStringLiteral("calculation");
        m_item.group = m_item.group_tr = QStringLiteral("FMI");
        m_item.exclusive_group = true;
        m_item.trObjectName = QStringLiteral("ModuleTexts");
        m_item.codeFunctionName = functionNameFor(name);
    }

    void writeModes()
    {
        m_item.inner_mode_nameList.clear();
        m_item.inner_mode_description.clear();
        for (const auto &interface : m_model.interfaces) {
            if (m_item.inner_mode_nameList.contains(interface.first))
                continue;
            m_item.inner_mode_nameList.append(interface.first);
            m_item.inner_mode_description.append(m_item.description);
            const QString &library = interface.second;
            if (!library.isEmpty() && !m_item.lib_name.contains(library))
                m_item.lib_name.append(library);
        }
        if (m_item.inner_mode_nameList.isEmpty()) {
            m_item.inner_mode_nameList.append(QStringLiteral("Simulation"));
            m_item.inner_mode_description.append(m_item.description);
        }
        m_item.inner_mode_nameList_tr = m_item.inner_mode_nameList;
        m_item.inner_mode_count = m_item.inner_mode_nameList.size();
        m_item.inner_mode_parameterList.resize(m_item.inner_mode_count);
    }

    /// What has no field of its own.
    void writeExtraKeys()
    {
        const QVector<QPair<const char *, const char *>> names {
            { "fmiVersion", "FmiVersion" },
            { "guid", "Guid" },
            { "instantiationToken", "Guid" },
            { "version", "ModelVersion" },
            { "author", "Author" },
            { "copyright", "Copyright" },
            { "license", "License" },
            { "generationTool", "GenerationTool" },
            { "generationDateAndTime", "Generated" },
        };
        for (const auto &name : names) {
            QString text = m_model.attributes.value(QLatin1String(name.first));
            bool isNumber = false;
            text.toDouble(&isNumber);
            // In source text it would become that number, and 1.10 the same as 1.1.
            if (isNumber) {
                text.prepend(QLatin1Char('v'));
                leaveOut(QLatin1String(name.first), Command::tr("It becomes \"%1\".").arg(text));
            }
            if (!text.isEmpty())
                m_item.extraKey.append({ QLatin1String(name.second), text });
        }
    }

    /// The type with what the declared type says where the variable says nothing.
    FmiType typeOf(const FmiVariable &variable) const
    {
        const FmiType declared = m_model.types.value(variable.typeName);
        FmiType type = variable.type;
        const auto takeOver = [](QString *text, const QString &other) {
            if (text->isEmpty())
                *text = other;
        };
        takeOver(&type.unit, declared.unit);
        takeOver(&type.displayUnit, declared.displayUnit);
        takeOver(&type.min, declared.min);
        takeOver(&type.max, declared.max);
        takeOver(&type.relativeQuantity, declared.relativeQuantity);
        type.choices = declared.choices;
        return type;
    }

    void add(const FmiVariable &variable)
    {
        const QString objectName = objectNameOf(variable.type.kind, isArray(variable));
        const bool isParameter = variable.causality == QLatin1String("parameter")
            || variable.causality == QLatin1String("structuralParameter")
            || variable.causality == QLatin1String("input");
        if (!isParameter && variable.causality != QLatin1String("output")) {
            leaveOut(variable.name,
                     Command::tr("Its causality is \"%1\": it is neither entered nor shown.")
                         .arg(variable.causality));
        } else if (objectName.isEmpty()) {
            leaveOut(variable.name,
                     Command::tr("No form can show the type %1.")
                         .arg(isArray(variable) ? variable.type.kind + QLatin1String("[]")
                                                : variable.type.kind));
        } else {
            addEntry(variable, objectName, isParameter);
        }
    }

    void addEntry(const FmiVariable &variable, const QString &objectName, bool isParameter)
    {
        const QString key = keyFor(variable.name);
        const FmiType type = typeOf(variable);
        const QString unit = convertsTo(type) ? type.displayUnit : type.unit;
        const QString group = isParameter ? variable.causality == QLatin1String("input")
                ? QStringLiteral("Inputs")
                : QStringLiteral("Parameters")
                                          : QStringLiteral("Outputs");
        const QStringList entry { group,      key,
                                  objectName, QLatin1String(isArray(variable) ? "true" : "false"),
                                  unit,       type.unit,
                                  QString(),  key,
                                  group };
        leaveOutPartsOf(variable, type);
        if (isParameter)
            m_parameters.append(entry);
        else
            m_item.output_results.append(entry);
        if (isParameter)
            addDefault(key, variable, type);
        else if (!variable.starts.isEmpty())
            leaveOutAttribute(variable, "start", noPlaceText());
        addHints(key, variable, type);
        if (key != variable.name)
            addHint("Label", key, variable.name);
        addHint("Help", key, variable.description);
    }

    void leaveOutAttribute(const FmiVariable &variable, const char *name, const QString &why)
    {
        leaveOut(variable.name + QLatin1String("/@") + QLatin1String(name), why);
    }

    void leaveOutPartsOf(const FmiVariable &variable, const FmiType &type)
    {
        for (const QString &name : variable.unused)
            leaveOutAttribute(variable, name.toLatin1().constData(), noPlaceText());
        if (!variable.typeName.isEmpty() && !m_model.types.contains(variable.typeName))
            leaveOutAttribute(variable, "declaredType",
                              Command::tr("There is no type \"%1\".").arg(variable.typeName));
        if (!type.displayUnit.isEmpty() && !convertsTo(type))
            leaveOutAttribute(variable, "displayUnit", whyNotShown(type));
        if (variable.dimensions > 1)
            leaveOut(variable.name,
                     Command::tr("Its %1 dimensions become one.").arg(variable.dimensions));
    }

    QString whyNotShown(const FmiType &type) const
    {
        return m_model.displayUnits.contains({ type.unit, type.displayUnit })
            ? Command::tr("No number can be shown in \"%1\".").arg(type.displayUnit)
            : Command::tr("\"%1\" is no display unit of \"%2\".").arg(type.displayUnit, type.unit);
    }

    /// The name without what keys and hints give a meaning to, and different from all others.
    QString keyFor(const QString &name)
    {
        QString key = plainName(name);
        for (QChar &character : key) {
            if (QStringLiteral("/|=;@%").contains(character))
                character = QLatin1Char('_');
        }
        if (key.isEmpty())
            key = QStringLiteral("variable");
        const QString wanted = key;
        // Counted on, since thousands of names can become the same.
        for (int &number = m_lastNumbers[wanted]; m_keys.contains(key); ++number)
            key = wanted + QLatin1Char('_') + QString::number(number + 2);
        m_keys.insert(key);
        if (key != name)
            leaveOut(name, Command::tr("Its key is \"%1\".").arg(key));
        return key;
    }

    /// Whether numbers can be shown in the display unit of the type.
    bool convertsTo(const FmiType &type) const
    {
        const auto display = m_model.displayUnits.constFind({ type.unit, type.displayUnit });
        return display != m_model.displayUnits.cend() && !display->isInverse
            && qIsFinite(display->factor) && display->factor > 0 && qIsFinite(display->offset);
    }

    /// A number in the unit that a person sees; as it is where it is none.
    QString shown(const QString &text, const FmiType &type) const
    {
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        if (!isNumber || !convertsTo(type))
            return text;
        const FmiDisplayUnit display = m_model.displayUnits.value({ type.unit, type.displayUnit });
        const double offset = isTrue(type.relativeQuantity) ? 0 : display.offset;
        return QString::number(display.factor * number + offset, 'g', 15);
    }

    void addHint(const char *word, const QString &key, const QString &text)
    {
        if (!text.isEmpty())
            m_item.extraKey.append({ QLatin1String(word) + QLatin1Char('.') + key, text });
    }

    void addHints(const QString &key, const FmiVariable &variable, const FmiType &type)
    {
        addHint("Min", key, shown(type.min, type));
        addHint("Max", key, shown(type.max, type));
        if (variable.type.kind != QLatin1String("Enumeration"))
            return;
        QStringList choices;
        for (const auto &choice : type.choices)
            choices.append(choice.first + QLatin1Char('=') + labelOf(variable, choice.second));
        addHint("Choices", key, choices.join(QLatin1Char('|')));
    }

    /// The name without what divides choices.
    QString labelOf(const FmiVariable &variable, const QString &name)
    {
        QString label = name;
        label.replace(QLatin1Char('|'), QLatin1Char('/'));
        label = label.trimmed();
        if (label != name)
            leaveOut(variable.name + QLatin1Char('/') + name,
                     Command::tr("It becomes \"%1\".").arg(label));
        return label;
    }

    void addDefault(const QString &key, const FmiVariable &variable, const FmiType &type)
    {
        if (variable.starts.isEmpty())
            return;
        const QString &start = variable.starts.constFirst();
        const QString &kind = variable.type.kind;
        if (kind == QLatin1String("Boolean"))
            addFlag(key, variable);
        else if (kind == QLatin1String("String") && isArray(variable))
            addTexts(key, variable);
        else if (kind == QLatin1String("String"))
            m_item.extraKey.append({ QLatin1String("Default.") + key, start });
        else if (isArray(variable))
            addHint("Default", key, shownNumbers(start, type));
        else
            addHint("Default", key, shown(start, type));
    }

    void addFlag(const QString &key, const FmiVariable &variable)
    {
        const QString &start = variable.starts.constFirst();
        if (isTrue(start))
            addHint("Default", key, QStringLiteral("true"));
        else if (start == QLatin1String("false") || start == QLatin1String("0"))
            addHint("Default", key, QStringLiteral("false"));
        else
            leaveOutAttribute(variable, "start",
                              Command::tr("\"%1\" is neither \"true\" nor \"false\".").arg(start));
    }

    void addTexts(const QString &key, const FmiVariable &variable)
    {
        const bool areKept
            = std::all_of(variable.starts.cbegin(), variable.starts.cend(),
                          [](const QString &text) {
                              return !text.contains(QLatin1Char(';')) && text == text.trimmed();
                          });
        if (areKept)
            addHint("Default", key, variable.starts.join(QLatin1Char(';')));
        else
            leaveOutAttribute(variable, "start",
                              Command::tr("A text among several holds \";\", or white space at "
                                          "one of its ends."));
    }

    QString shownNumbers(const QString &start, const FmiType &type) const
    {
        QStringList numbers = start.simplified().split(QLatin1Char(' '));
        for (QString &number : numbers)
            number = shown(number, type);
        return numbers.join(QLatin1Char(';'));
    }

    /// Hints that make no sense would only be passed over.
    void dropContradictions()
    {
        const QVector<KeltoItemHints::Problem> problems = KeltoItemHints(m_item).problems();
        QSet<QString> names;
        for (const KeltoItemHints::Problem &problem : problems) {
            // The sentence may begin with the key itself.
            QString why = problem.text();
            if (why.startsWith(problem.extraKey + QLatin1String(": ")))
                why.remove(0, problem.extraKey.size() + 2);
            leaveOut(problem.extraKey, why);
            names.insert(problem.extraKey);
        }
        const auto isDropped
            = [&names](const VDataItem &extra) { return names.contains(extra.key); };
        m_item.extraKey.erase(std::remove_if(m_item.extraKey.begin(), m_item.extraKey.end(),
                                             isDropped),
                              m_item.extraKey.end());
    }

    /// What lies beyond 16 bits is read from files, but no setting is saved with it.
    void listUnsaved()
    {
        const auto list = [this](const QString &what, const QString &text) {
            if (std::any_of(text.cbegin(), text.cend(),
                            [](QChar character) { return character.isSurrogate(); }))
                leaveOut(what,
                         Command::tr("A character of it is read, but gone when the library "
                                     "saves the file."));
        };
        list(QStringLiteral("/@description"), m_item.description);
        for (const VDataItem &extra : qAsConst(m_item.extraKey))
            list(extra.key, extra.value.toString());
    }

    const FmiModel &m_model;
    QVector<LeftOut> *const m_leftOut;
    AUTH_INF m_item;
    QVector<QStringList> m_parameters;
    QSet<QString> m_keys;
    QHash<QString, int> m_lastNumbers; ///< Behind keys that several names became.
};

} // namespace

AUTH_INF itemOf(const FmiModel &model, QVector<LeftOut> *leftOut)
{
    return ItemMaker(model, leftOut).item();
}
