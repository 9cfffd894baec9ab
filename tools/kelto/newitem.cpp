// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "newitem.h"

#include "command.h"
#include "format/document.h"
#include "format/initext.h"
#include "sourcetext.h"

#include <algorithm>

namespace {

/// One line of the template. A null key stands for the comment alone, which is about the section.
struct Line
{
    const char *section;
    const char *key;
    QStringList value;
    const char *comment;
};

QStringList text(const char *value)
{
    return { QString::fromUtf8(value) };
}

QVector<Line> fieldLines(const NewItem &item, const QString &function)
{
    return {
        { "KeltoItem",
          nullptr,
          {},
          "The module itself. Translations of these texts come from the host, so that the\n"
          "file holds each of them once." },
        { "KeltoItem", "number", text("0"),
          "The registry replaces it by the place of the module." },
        { "KeltoItem",
          "name",
          { storedText(item.name) },
          "What the registry finds the module by: unique, and without a \":\"." },
        { "KeltoItem",
          "description",
          { QStringLiteral("What %1 calculates, and what it leaves out.").arg(item.name) },
          "A sentence or more. Quotes keep commas and semicolons in the text." },
        { "KeltoItem", "icon", { QString() }, "For the host, which may leave it empty." },
        { "KeltoItem",
          "group",
          { storedText(item.group) },
          "Modules of one group are offered together." },
        { "KeltoItem", "type", text("calculation"),
          "Only modules of this type keep their parameters in source text." },
        { "KeltoItem", "exclusive_group", text(item.isExclusive ? "true" : "false"),
          "\"true\": of all modes of the group one is selected at a time." },
        { "KeltoItem", "inner_mode_count", text("2"),
          "Libraries that the host is to load could stand here:\n"
          "lib_name=first, second\n"
          "\n"
          "How many modes the two lists below have." },
        { "KeltoItem",
          "inner_mode_description",
          { QStringLiteral("A bar of full section."), QStringLiteral("A square tube.") },
          "A sentence for each mode, in quotes and divided by commas." },
        { "KeltoItem",
          "inner_mode_nameList",
          { QStringLiteral("Solid"), QStringLiteral("Hollow") },
          "The names of the modes, in the same order." },
        { "KeltoItem", "Tr_ObjectName", text("ModuleTexts"),
          "The context in which the texts are translated: the name of a class." },
        { "KeltoItem",
          "codeFunctionName",
          { function },
          "The function that makes this module in source text: a name that no other\n"
          "module has." },
        { "KeltoItem",
          "output_results",
          { QStringLiteral("Mass"), QStringLiteral("Volume") },
          "All keys of the section \"Result\". As many results are read as stand here." },
    };
}

QVector<Line> sectionLines()
{
    return {
        { "Attribute",
          nullptr,
          {},
          "The parameters, without values. What describes them stands under the same key\n"
          "in the sections below. A key has no \"/\"." },
        { "Result", nullptr, {}, "The results, in the same way." },
        { "Unit",
          nullptr,
          {},
          "The unit in which a person enters or reads a value, and the one in which the\n"
          "program calculates. Empty without a unit." },
        { "Symbol", nullptr, {}, "The sign in formulas; may be empty." },
        { "Multi", nullptr, {}, "\"true\" where there may be several values, else \"false\"." },
        { "ObjectName",
          nullptr,
          {},
          "What a value is: double, int, bool, or choice for one of some texts; with\n"
          "several values QVector<double> or QVector<int>." },
        { "Group", nullptr, {}, "The heading under which a form shows it." },
        { "Belong", nullptr, {}, "The modes that use a parameter, by their names above." },
        { "ExtraKey",
          nullptr,
          {},
          "Hints for the form and the check of values: a word, a dot, and the key. With\n"
          "\"@\" and a mode behind it, a hint counts for that mode only, such as\n"
          "Default.Side@Hollow=80\n"
          "Other keys are for the host, such as\n"
          "Author=Ann" },
    };
}

/// A parameter or a result.
struct Quantity
{
    const char *key;
    const char *unit;
    const char *secondUnit;
    const char *symbol;
    const char *objectName;
    const char *group;
    QStringList modes; ///< None for results.
};

QVector<Quantity> quantities()
{
    const QStringList both { QStringLiteral("Solid"), QStringLiteral("Hollow") };
    return {
        { "Density", "kg/m³", "kg/m³", "ρ", "double", "Material", both },
        { "Length", "mm", "m", "L", "double", "Geometry", both },
        { "Material", "", "", "", "choice", "Material", both },
        { "Side", "mm", "m", "a", "double", "Geometry", both },
        { "Wall thickness", "mm", "m", "t", "double", "Geometry", both.mid(1) },
        { "Mass", "kg", "kg", "m", "double", "Results", {} },
        { "Volume", "m³", "m³", "V", "double", "Results", {} },
    };
}

QVector<Line> quantityLines()
{
    QVector<Line> lines;
    const QVector<Quantity> all = quantities();
    for (const Quantity &each : all) {
        const char *const section = each.modes.isEmpty() ? "Result" : "Attribute";
        const QStringList units = text(each.unit) + text(each.secondUnit);
        lines.append({ section, each.key, text(""), nullptr });
        lines.append({ "Unit", each.key, *each.unit ? units : text(""), nullptr });
        lines.append({ "Symbol", each.key, text(each.symbol), nullptr });
        lines.append({ "Multi", each.key, text("false"), nullptr });
        lines.append({ "ObjectName", each.key, text(each.objectName), nullptr });
        lines.append({ "Group", each.key, text(each.group), nullptr });
        if (!each.modes.isEmpty())
            lines.append({ "Belong", each.key, each.modes, nullptr });
    }
    return lines;
}

QVector<Line> hintLines()
{
    const char *const section = "ExtraKey";
    return {
        { section, "Order", text("Length|Side|Wall thickness|Material|Density|Volume|Mass"),
          "The order in a form. What is not named follows." },
        { section, "Default.Length", text("1000"),
          "What a form starts with; several values are joined by \";\"." },
        { section, "Default.Side", text("50"), nullptr },
        { section, "Default.Wall thickness", text("4"), nullptr },
        { section, "Default.Material", text("steel"), nullptr },
        { section, "Default.Density", text("1000"), nullptr },
        { section, "Choices.Material", text("steel=Steel|aluminium=Aluminium|other=Other"),
          "Values to choose from, each with a label behind \"=\"." },
        { section, "Min.Length", text("1"), "The smallest and the largest number allowed." },
        { section, "Min.Side", text("1"), nullptr },
        { section, "Min.Wall thickness", text("0.1"), nullptr },
        { section, "Min.Density", text("1"), nullptr },
        { section, "Max.Length", text("20000"), nullptr },
        { section, "Optional.Wall thickness", text("false"),
          "\"true\" where a value may be missing." },
        { section, "When.Density", text("Material=other"),
          "Counts only while another parameter has one of these values." },
        { section, "Advanced.Density", text("false"), "\"true\" shows it on demand only." },
        { section, "Belong.Mass", text("Solid|Hollow"),
          "A file is chosen with filters such as\n"
          "Files.Key=\"Tables (*.csv)\"\n"
          "\n"
          "The modes that give a result; without this line all of them." },
        { section, "Label.Side", text("Side of the section"),
          "What a person reads in place of the key." },
        { section, "Help.Length", text("From end to end."), "A sentence or more about it." },
        { section, "Help.Side", text("Measured outside."), nullptr },
        { section, "Help.Wall thickness", text("The same on all four sides."), nullptr },
        { section, "Help.Density", text("Of a material that is not in the list."), nullptr },
    };
}

Comments commentsOf(const char *comment)
{
    Comments comments;
    const QByteArrayList lines = comment ? QByteArray(comment).split('\n') : QByteArrayList();
    for (const QByteArray &line : lines)
        comments.append(line.isEmpty() ? line : "; " + line);
    return comments;
}

void add(Document *document, const Line &line)
{
    DocumentSection &section = document->section(QLatin1String(line.section));
    if (!line.key) {
        section.intro = commentsOf(line.comment);
        return;
    }
    DocumentEntry entry;
    entry.name = QLatin1String(line.key);
    entry.value = line.value;
    entry.before = commentsOf(line.comment);
    section.entries.append(entry);
}

bool isAsciiLetterOrDigit(QChar character)
{
    return character.unicode() < 0x80 && character.isLetterOrNumber();
}

} // namespace

QString complaintOnName(const QString &name)
{
    if (name.isEmpty())
        return Command::tr("a name is needed.");
    if (name != name.trimmed())
        return Command::tr("\"%1\" begins or ends with white space.").arg(name);
    if (name == QLatin1String("Update"))
        return Command::tr("\"Update\" is the name of the module that records the version of the "
                           "program: take another one.");
    if (name.contains(QLatin1Char(':')))
        return Command::tr("%1: a name cannot hold \":\", which divides the names of modes.")
            .arg(name);
    AUTH_INF item;
    item.name = name;
    const QVector<SourceTextProblem> problems = sourceTextProblems(item);
    for (const SourceTextProblem &problem : problems) {
        if (problem.text == name)
            return Command::tr("\"%1\" %2, which source text cannot.")
                .arg(name, reasonText(problem.reason));
    }
    const bool isPrintable = std::all_of(name.cbegin(), name.cend(), [](QChar character) {
        return character.isPrint() && !character.isSurrogate();
    });
    return isPrintable ? QString()
                       : Command::tr("\"%1\" holds a character that files cannot keep.").arg(name);
}

QString fileNameFor(const QString &moduleName)
{
    QString name;
    const QString lowerCase = moduleName.toLower();
    for (const QChar character : lowerCase)
        name += character.isLetterOrNumber() ? character : QLatin1Char(' ');
    name = name.simplified().replace(QLatin1Char(' '), QLatin1Char('-'));
    return (name.isEmpty() ? QStringLiteral("module") : name) + QLatin1String(".ini");
}

QString functionNameFor(const QString &moduleName)
{
    QString name;
    bool isNewWord = false;
    for (const QChar character : moduleName) {
        if (isAsciiLetterOrDigit(character)) {
            name += isNewWord ? character.toUpper() : character;
        } else if (character.isLetterOrNumber()) {
            // Two names in letters that C++ has not must not become one.
            name += QString::number(character.unicode(), 16);
        }
        isNewWord = !isAsciiLetterOrDigit(character);
    }
    if (name.isEmpty() || name.at(0).isDigit())
        name.prepend(QLatin1String("module"));
    name[0] = name.at(0).toLower();
    // Never a word of the language.
    return name + QLatin1String("Item");
}

QByteArray newItemText(const NewItem &item)
{
    Document document;
    document.top = commentsOf("A module for Kelto. All texts and numbers are an example: put in "
                              "your own.\nA comment begins with \";\". \"kelto lint\" checks the "
                              "file, \"kelto fmt\" sorts it.");
    const QVector<Line> lines = fieldLines(item, functionNameFor(item.name)) + sectionLines()
        + quantityLines() + hintLines();
    for (const Line &line : lines)
        add(&document, line);
    arrange(&document);
    return textOf(document);
}
