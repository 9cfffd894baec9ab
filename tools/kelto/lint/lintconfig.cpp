// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/lintconfig.h"

#include "command.h"
#include "nearestname.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QString directoryOf(const QString &path)
{
    return QFileInfo(path).absolutePath();
}

QString textOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size())).trimmed();
}

} // namespace

LintConfig::LintConfig(const QStringList &files)
{
    for (const RuleArea &area : ruleAreas()) {
        for (const Rule &rule : area.rules)
            m_usual.insert(QLatin1String(rule.id), rule.severity);
    }
    for (const QString &file : files)
        severitiesIn(directoryOf(file));
}

Severity LintConfig::severity(const QString &path, const QString &rule) const
{
    return m_directories.value(directoryOf(path), m_usual).value(rule, Severity::Error);
}

LintConfig::Severities LintConfig::severitiesIn(const QString &directory)
{
    const auto known = m_directories.constFind(directory);
    if (known != m_directories.cend())
        return *known;
    const QString above = QFileInfo(directory).absolutePath();
    Severities severities = above == directory ? m_usual : severitiesIn(above);
    read(QDir(directory).filePath(QStringLiteral(".kelto-lint.ini")), &severities);
    m_directories.insert(directory, severities);
    return severities;
}

void LintConfig::read(const QString &path, Severities *severities)
{
    QFile file(path);
    if (!QFileInfo(path).isFile())
        return;
    if (!file.open(QIODevice::ReadOnly)) {
        m_complaints.append(Command::tr("%1: cannot be read: %2.").arg(path, file.errorString()));
        return;
    }
    const QByteArray bytes = file.readAll();
    IniReader reader(bytes);
    QString section;
    while (reader.next()) {
        const IniLine &line = reader.line();
        const IniPosition position = reader.positionAt(line.text.data());
        const QString place = QStringLiteral("%1:%2:%3: ")
                                  .arg(QDir().relativeFilePath(path))
                                  .arg(position.line)
                                  .arg(position.column);
        if (line.kind == IniLine::Section) {
            section = textOf(line.key);
            if (section != QLatin1String("Rules"))
                m_complaints.append(
                    place
                    + Command::tr("there is no section \"%1\", only \"Rules\".").arg(section));
        } else if (line.kind == IniLine::Other) {
            m_complaints.append(place + Command::tr("the line has no \"=\"."));
        } else if (line.kind == IniLine::Entry && section.isEmpty()) {
            m_complaints.append(place + Command::tr("the key stands before the header [Rules]."));
        } else if (line.kind == IniLine::Entry && section == QLatin1String("Rules")) {
            take(reader, place, severities);
        }
    }
}

void LintConfig::take(const IniReader &reader, const QString &place, Severities *severities)
{
    static const QHash<QString, Severity> words {
        { QStringLiteral("off"), Severity::Off },
        { QStringLiteral("warning"), Severity::Warning },
        { QStringLiteral("error"), Severity::Error },
    };
    const QString rule = textOf(reader.line().key);
    const QString word = elementsOfValue(reader.line().value).join(QLatin1Char(',')).trimmed();
    if (!m_usual.contains(rule)) {
        m_complaints.append(place + Command::tr("there is no rule \"%1\".").arg(rule)
                            + didYouMean(rule, ruleNames()));
    } else if (!words.contains(word)) {
        m_complaints.append(
            place + Command::tr("\"%1\" is none of \"error\", \"warning\" and \"off\".").arg(word)
            + didYouMean(word, words.keys()));
    } else {
        severities->insert(rule, words.value(word));
    }
}
