// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "code/itemsource.h"

#include "code/itemtexts.h"
#include "sourcetext.h"

#include <KeltoItemTranslation>

#include <QDir>
#include <QFileInfo>
#include <QXmlStreamWriter>

namespace {

using Item = SourceItems::Item;

// Names of files could end a comment, so that none of them stands in the texts.
const char *const notice
    = "Made by \"kelto code\" from files of module items. Change those, not this one.";

QString noticeComment()
{
    return QStringLiteral("// %1\n\n").arg(QLatin1String(notice));
}

/// Items that name no function have one that only the source knows.
QStringList functionNames(const SourceItems &items)
{
    QStringList names;
    for (const Item &each : items.items)
        names.append(each.item.codeFunctionName);
    for (int i = 0; i < names.size(); ++i) {
        if (!names.at(i).isEmpty())
            continue;
        QString name = QStringLiteral("item%1").arg(i + 1);
        while (names.contains(name))
            name += QLatin1Char('_');
        names[i] = name;
    }
    return names;
}

/// A class for tr(). It is local to the function: a program may have a class of that name itself,
/// and lupdate takes the context as it is spelt.
QString contextClass(const QString &context)
{
    const QStringList names = context.split(QStringLiteral("::"));
    QString text;
    for (const QString &name : names)
        text += QStringLiteral("    struct %1 {\n").arg(name);
    // An empty text would ask for the header of the translation file.
    text += QStringLiteral("    static ::QString tr(const char *text)\n    {\n"
                           "        return *text ? ::QCoreApplication::translate(\"%1\", text)"
                           " : ::QString();\n    }\n")
                .arg(context);
    for (int i = 0; i < names.size(); ++i)
        text += QLatin1String("    };\n");
    return text;
}

QString beginOfFunction(const Item &each, const QString &name)
{
    const QString text = QStringLiteral("%1::KeltoItem %2()\n{\n");
    return text.arg(each.item.codeFunctionName.isEmpty() ? QStringLiteral("static ") : QString(),
                    name);
}

QString buildingFunction(const Item &each, const QString &name)
{
    return beginOfFunction(each, name) + contextClass(KeltoItemTranslation::contextOf(each.item))
        + each.item.to_code() + QStringLiteral("return inf;\n}\n\n");
}

QString aliasOf(const Item &each)
{
    return QFileInfo(each.path).fileName();
}

QString loadingFunction(const Item &each, const QString &name, const QString &itemsName)
{
    return beginOfFunction(each, name)
        + QStringLiteral("    return loaded(%1, %2);\n}\n\n")
              .arg(stringLiteral(
                       QStringLiteral(":/kelto/items/%1/%2").arg(itemsName, aliasOf(each))),
                   stringLiteral(each.item.trObjectName));
}

/// All texts for lupdate, which does not read files of items, nor hints in source text.
QString textTable(const SourceItems &items)
{
    QStringList lines;
    for (const Item &each : items.items) {
        const QString context = KeltoItemTranslation::contextOf(each.item);
        const QStringList texts = translatedTexts(each.item);
        for (const QString &text : texts)
            lines.append(QStringLiteral("    QT_TRANSLATE_NOOP(\"%1\", ").arg(context)
                         + stringLiteral(text) + QStringLiteral("),\n"));
    }
    lines.removeDuplicates();
    return QLatin1String("[[maybe_unused]] static const char *const translatedTexts[] = {\n")
        + lines.join(QString()) + QLatin1String("};\n\n");
}

QString allItemsFunction(const QStringList &functions)
{
    return QStringLiteral("::QVector<::KeltoItem> allItems()\n{\n    return {\n        %1(),\n"
                          "    };\n}\n")
        .arg(functions.join(QStringLiteral("(),\n        ")));
}

/// A name that is a macro of some header would be replaced by that.
QString macroErrors(QStringList names)
{
    names.removeDuplicates();
    QString text;
    for (const QString &name : names)
        text += QStringLiteral("#ifdef %1\n#error \"This name of an item is a macro.\"\n#endif\n")
                    .arg(name);
    return text + QLatin1Char('\n');
}

QStringList functionsAndNamespace(const SourceItems &items)
{
    QStringList names { items.name };
    for (const Item &each : items.items) {
        if (!each.item.codeFunctionName.isEmpty())
            names.append(each.item.codeFunctionName);
    }
    return names;
}

/// All that come from items.
QStringList identifiers(const SourceItems &items)
{
    QStringList names = functionsAndNamespace(items);
    for (const Item &each : items.items)
        names += KeltoItemTranslation::contextOf(each.item).split(QStringLiteral("::"));
    return names;
}

QByteArray sourceAround(const SourceItems &items, const QString &headers,
                        const QString &definitions, const QString &functions)
{
    const QString text = noticeComment()
        + QLatin1String("// The texts below are plain literals.\n"
                        "#undef QT_NO_CAST_FROM_ASCII\n"
                        "#undef QT_RESTRICTED_CAST_FROM_ASCII\n\n")
        + QStringLiteral("#include \"%1.h\"\n\n").arg(items.name) + headers
        + macroErrors(identifiers(items)) + definitions
        + QStringLiteral("namespace %1 {\n\n").arg(items.name) + textTable(items) + functions
        + allItemsFunction(functionNames(items))
        + QStringLiteral("\n} // namespace %1\n").arg(items.name);
    return text.toUtf8();
}

/// rcc follows symbolic links when it looks for a file, and not when it reads it. Where these make
/// a difference, only the whole path is right.
QString pathInResourceList(const QString &path, const QString &directory)
{
    const QFileInfo file(path);
    const QDir followed(QFileInfo(directory).canonicalFilePath());
    const QString relative
        = QDir(QDir(directory).absolutePath()).relativeFilePath(file.absoluteFilePath());
    const QString real = QDir(file.canonicalPath()).filePath(file.fileName());
    return followed.relativeFilePath(real) == relative ? relative : file.absoluteFilePath();
}

} // namespace

bool isGeneratedText(const QByteArray &bytes)
{
    return bytes.left(200).contains(notice);
}

QByteArray headerText(const SourceItems &items)
{
    QString text = noticeComment() + QLatin1String("#pragma once\n\n#include <Kelto/AUTH_INF>\n\n")
        + macroErrors(functionsAndNamespace(items))
        + QStringLiteral("namespace %1 {\n\n/// All items, in the order of their files.\n"
                         "::QVector<::KeltoItem> allItems();\n\n")
              .arg(items.name);
    for (const Item &each : items.items) {
        if (!each.item.codeFunctionName.isEmpty())
            text += QStringLiteral("::KeltoItem %1();\n").arg(each.item.codeFunctionName);
    }
    return (text + QStringLiteral("\n} // namespace %1\n").arg(items.name)).toUtf8();
}

QByteArray sourceText(const SourceItems &items)
{
    const QStringList names = functionNames(items);
    QString functions;
    for (int i = 0; i < names.size(); ++i)
        functions += buildingFunction(items.items.at(i), names.at(i));
    return sourceAround(items, QStringLiteral("#include <QCoreApplication>\n\n"), {}, functions);
}

QByteArray embeddingSourceText(const SourceItems &items)
{
    const QStringList names = functionNames(items);
    const QString headers = QStringLiteral("#include <Kelto/KeltoItemTranslation>\n\n"
                                           "#include <QCoreApplication>\n\n");
    // The resources of a static library have to be named once, outside of every namespace.
    const QString initialization
        = QStringLiteral("static void %1_init()\n{\n    Q_INIT_RESOURCE(%1);\n}\n\n")
              .arg(items.name);
    QString functions
        = QStringLiteral("static ::KeltoItem loaded(const char *path, const char *context)\n{\n"
                         "    ::%1_init();\n    ::KeltoItem item;\n"
                         "    item.load_ini(::QString::fromUtf8(path));\n"
                         "    item.trObjectName = ::QString::fromUtf8(context);\n"
                         "    return ::KeltoItemTranslation::translated(item);\n}\n\n")
              .arg(items.name);
    for (int i = 0; i < names.size(); ++i)
        functions += loadingFunction(items.items.at(i), names.at(i), items.name);
    return sourceAround(items, headers, initialization, functions);
}

QByteArray resourceList(const SourceItems &items, const QString &directory)
{
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.writeComment(QStringLiteral(" %1 ").arg(QLatin1String(notice)));
    xml.writeStartElement(QStringLiteral("RCC"));
    xml.writeStartElement(QStringLiteral("qresource"));
    xml.writeAttribute(QStringLiteral("prefix"), QStringLiteral("/kelto/items/") + items.name);
    for (const Item &each : items.items) {
        xml.writeStartElement(QStringLiteral("file"));
        xml.writeAttribute(QStringLiteral("alias"), aliasOf(each));
        xml.writeCharacters(pathInResourceList(each.path, directory));
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return text.trimmed() + '\n';
}
