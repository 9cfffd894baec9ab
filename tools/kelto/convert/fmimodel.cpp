// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "convert/fmimodel.h"

#include "command.h"

#include <QXmlStreamReader>

namespace {

QString attribute(const QXmlStreamReader &xml, const char *name)
{
    return xml.attributes().value(QLatin1String(name)).toString();
}

/// The attributes of a type, or of a variable that has them, too.
void readLimits(const QXmlStreamReader &xml, FmiType *type)
{
    type->unit = attribute(xml, "unit");
    type->displayUnit = attribute(xml, "displayUnit");
    type->min = attribute(xml, "min");
    type->max = attribute(xml, "max");
    type->relativeQuantity = attribute(xml, "relativeQuantity");
}

/// Those of the attributes of a type or a variable that an item has no place for.
QStringList unusedIn(const QXmlStreamReader &xml)
{
    QStringList unused;
    for (const char *name : { "quantity", "nominal", "unbounded" }) {
        if (xml.attributes().hasAttribute(QLatin1String(name)))
            unused.append(QLatin1String(name));
    }
    return unused;
}

/// How a part of the file is called in messages, like in XPath.
QString attributeOf(const QString &owner, const QString &name)
{
    return owner + QLatin1String("/@") + name;
}

class ModelReader
{
public:
    explicit ModelReader(const QByteArray &bytes)
        : m_xml(bytes)
    {
    }

    FmiModel model()
    {
        if (!m_xml.readNextStartElement() || m_xml.name() != QLatin1String("fmiModelDescription")) {
            m_model.error = m_xml.hasError()
                ? errorText()
                : Command::tr("the root is not \"fmiModelDescription\".");
            return m_model;
        }
        readRoot();
        const QString version = attribute(m_xml, "fmiVersion");
        if (!version.startsWith(QLatin1String("2.")) && !version.startsWith(QLatin1String("3."))) {
            m_model.error
                = Command::tr("version \"%1\" of FMI is unknown: 2 and 3 are known.").arg(version);
            return m_model;
        }
        while (m_xml.readNextStartElement())
            readPart();
        while (!m_xml.atEnd())
            m_xml.readNext();
        if (m_xml.hasError())
            m_model.error = errorText();
        return m_model;
    }

private:
    QString errorText() const
    {
        QString reason = m_xml.errorString();
        if (reason.endsWith(QLatin1Char('.')) || reason.endsWith(QChar(0x3002))) // 。
            reason.chop(1);
        return Command::tr("line %1: %2.").arg(m_xml.lineNumber()).arg(reason);
    }

    void leaveOut(const QString &what) { m_model.leftOut.append({ what, noPlaceText() }); }

    void readRoot()
    {
        static const QStringList known {
            QStringLiteral("modelName"),
            QStringLiteral("description"),
            QStringLiteral("fmiVersion"),
            QStringLiteral("guid"),
            QStringLiteral("version"),
            QStringLiteral("instantiationToken"),
            QStringLiteral("author"),
            QStringLiteral("copyright"),
            QStringLiteral("license"),
            QStringLiteral("generationTool"),
            QStringLiteral("generationDateAndTime"),
        };
        const QXmlStreamAttributes attributes = m_xml.attributes();
        for (const QXmlStreamAttribute &each : attributes) {
            const QString name = each.qualifiedName().toString();
            m_model.attributes.insert(name, each.value().toString());
            // Those with a prefix are about the file.
            if (each.prefix().isEmpty() && !known.contains(name))
                leaveOut(attributeOf(QString(), name));
        }
    }

    void readPart()
    {
        static const QHash<QString, QString> modes {
            { QStringLiteral("ModelExchange"), QStringLiteral("Model exchange") },
            { QStringLiteral("CoSimulation"), QStringLiteral("Co-simulation") },
            { QStringLiteral("ScheduledExecution"), QStringLiteral("Scheduled execution") },
        };
        const QString part = m_xml.name().toString();
        if (part == QLatin1String("UnitDefinitions")) {
            readEach(&ModelReader::readUnit);
        } else if (part == QLatin1String("TypeDefinitions")) {
            readEach(&ModelReader::readType);
        } else if (part == QLatin1String("ModelVariables")) {
            readEach(&ModelReader::readVariable);
        } else {
            if (modes.contains(part))
                m_model.interfaces.append(
                    { modes.value(part), attribute(m_xml, "modelIdentifier") });
            else
                leaveOut(part);
            m_xml.skipCurrentElement();
        }
    }

    /// Calls @p read, which has to end behind the element, for each element inside of the current
    /// one.
    void readEach(void (ModelReader::*read)())
    {
        while (m_xml.readNextStartElement())
            (this->*read)();
    }

    void readUnit()
    {
        const QString unit = attribute(m_xml, "name");
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("DisplayUnit"))
                readDisplayUnit(unit);
            m_xml.skipCurrentElement();
        }
    }

    void readDisplayUnit(const QString &unit)
    {
        FmiDisplayUnit display;
        const QString factor = attribute(m_xml, "factor");
        if (!factor.isEmpty())
            display.factor = factor.toDouble();
        display.offset = attribute(m_xml, "offset").toDouble();
        display.isInverse = attribute(m_xml, "inverse") == QLatin1String("true");
        m_model.displayUnits.insert({ unit, attribute(m_xml, "name") }, display);
    }

    /// Version 2 has the kind in an element inside, version 3 in the name of this one.
    void readType()
    {
        const QString name = attribute(m_xml, "name");
        leaveOutDescription(name);
        FmiType type;
        if (m_xml.name() == QLatin1String("SimpleType")) {
            while (m_xml.readNextStartElement())
                readTypeElement(name, &type);
        } else {
            readTypeElement(name, &type);
        }
        m_model.types.insert(name, type);
    }

    /// Of the current element.
    void leaveOutDescription(const QString &owner)
    {
        if (!attribute(m_xml, "description").isEmpty())
            leaveOut(attributeOf(owner, QStringLiteral("description")));
    }

    void readTypeElement(const QString &name, FmiType *type)
    {
        type->kind = m_xml.name().toString();
        readLimits(m_xml, type);
        const QStringList unused = unusedIn(m_xml);
        for (const QString &each : unused)
            leaveOut(attributeOf(name, each));
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("Item")) {
                const QString item = attribute(m_xml, "name");
                leaveOutDescription(name + QLatin1Char('/') + item);
                type->choices.append({ attribute(m_xml, "value"), item });
            }
            m_xml.skipCurrentElement();
        }
    }

    void readVariable()
    {
        FmiVariable variable;
        variable.name = attribute(m_xml, "name");
        variable.description = attribute(m_xml, "description");
        variable.causality = attribute(m_xml, "causality");
        if (variable.causality.isEmpty())
            variable.causality = QStringLiteral("local");
        if (m_xml.name() != QLatin1String("ScalarVariable")) {
            readVariableElement(&variable);
        } else {
            while (m_xml.readNextStartElement()) {
                if (m_xml.name() == QLatin1String("Annotations"))
                    leaveOutElement(variable.name);
                else
                    readVariableElement(&variable);
            }
        }
        m_model.variables.append(variable);
    }

    void leaveOutElement(const QString &owner)
    {
        leaveOut(owner + QLatin1Char('/') + m_xml.name());
        m_xml.skipCurrentElement();
    }

    void readVariableElement(FmiVariable *variable)
    {
        variable->type.kind = m_xml.name().toString();
        variable->typeName = attribute(m_xml, "declaredType");
        variable->unused = unusedIn(m_xml);
        readLimits(m_xml, &variable->type);
        readStart("start", variable);
        while (m_xml.readNextStartElement())
            readPartOf(variable);
    }

    void readStart(const char *name, FmiVariable *variable)
    {
        if (m_xml.attributes().hasAttribute(QLatin1String(name)))
            variable->starts.append(attribute(m_xml, name));
    }

    void readPartOf(FmiVariable *variable)
    {
        if (m_xml.name() == QLatin1String("Dimension")) {
            ++variable->dimensions;
        } else if (m_xml.name() == QLatin1String("Start")) {
            readStart("value", variable);
        } else if (m_xml.name() == QLatin1String("Alias")) {
            m_model.leftOut.append(
                { attribute(m_xml, "name"),
                  Command::tr("It is another name of \"%1\".").arg(variable->name) });
        } else {
            leaveOutElement(variable->name);
            return;
        }
        m_xml.skipCurrentElement();
    }

    QXmlStreamReader m_xml;
    FmiModel m_model;
};

} // namespace

QString noPlaceText()
{
    return Command::tr("An item has no place for it.");
}

FmiModel fmiModelIn(const QByteArray &bytes)
{
    return ModelReader(bytes).model();
}
