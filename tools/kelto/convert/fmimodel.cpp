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
        const QXmlStreamAttributes attributes = m_xml.attributes();
        for (const QXmlStreamAttribute &each : attributes)
            m_model.attributes.insert(each.name().toString(), each.value().toString());
        const QString version = attribute(m_xml, "fmiVersion");
        if (!version.startsWith(QLatin1String("2.")) && !version.startsWith(QLatin1String("3."))) {
            m_model.error
                = Command::tr("version \"%1\" of FMI is unknown: 2 and 3 are known.").arg(version);
            return m_model;
        }
        while (m_xml.readNextStartElement())
            readPart();
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
        FmiType type;
        if (m_xml.name() == QLatin1String("SimpleType")) {
            while (m_xml.readNextStartElement())
                readTypeElement(&type);
        } else {
            readTypeElement(&type);
        }
        m_model.types.insert(name, type);
    }

    void readTypeElement(FmiType *type)
    {
        type->kind = m_xml.name().toString();
        readLimits(m_xml, type);
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("Item"))
                type->choices.append({ attribute(m_xml, "value"), attribute(m_xml, "name") });
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
                    m_xml.skipCurrentElement();
                else
                    readVariableElement(&variable);
            }
        }
        m_model.variables.append(variable);
    }

    void readVariableElement(FmiVariable *variable)
    {
        variable->type.kind = m_xml.name().toString();
        variable->typeName = attribute(m_xml, "declaredType");
        variable->start = attribute(m_xml, "start");
        readLimits(m_xml, &variable->type);
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("Dimension"))
                variable->isArray = true;
            else if (m_xml.name() == QLatin1String("Start"))
                variable->start = attribute(m_xml, "value");
            m_xml.skipCurrentElement();
        }
    }

    QXmlStreamReader m_xml;
    FmiModel m_model;
};

} // namespace

FmiModel fmiModelIn(const QByteArray &bytes)
{
    return ModelReader(bytes).model();
}
