// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Writes compiledModules(), see modules.h, from module files:
//   workbench-generator <source file to write> <module file>...

#include <Kelto/AUTH_INF>

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <cstdlib>

namespace {

[[noreturn]] void quit(const QString &complaint)
{
    QTextStream(stderr) << complaint << '\n';
    std::exit(EXIT_FAILURE);
}

AUTH_INF readModule(const QString &path)
{
    // Kelto would create a missing file.
    AUTH_INF module;
    if (QFile::exists(path))
        module.load_ini(path);
    if (module.name.isEmpty() || module.codeFunctionName.isEmpty())
        quit(QStringLiteral("%1: no module with \"name\" and \"codeFunctionName\" in the section "
                            "\"KeltoItem\".")
                 .arg(path));
    return module;
}

/// A function that builds one module: what Kelto writes declares the variable "inf" and fills it.
QString functionOf(const AUTH_INF &module)
{
    return QStringLiteral("AUTH_INF %1()\n{\n%2return inf;\n}\n\n")
        .arg(module.codeFunctionName, module.to_code());
}

/// What a person reads of the hints in the extra keys.
QStringList hintTexts(const AUTH_INF &module)
{
    QStringList texts;
    for (const VDataItem &extra : module.extraKey) {
        const QString hint = extra.key.section(QLatin1Char('.'), 0, 0);
        const QString text = extra.value.toString();
        if (hint == QLatin1String("Help") || hint == QLatin1String("Label"))
            texts.append(text);
        if (hint == QLatin1String("Choices")) {
            const QStringList choices = text.split(QLatin1Char('|'));
            for (const QString &choice : choices)
                texts.append(choice.section(QLatin1Char('='), -1));
        }
    }
    return texts;
}

/// Extra keys stand in the source text untranslated, and hints are translated when they are shown.
/// So their texts are listed for lupdate to find.
QString listOfTexts(const AUTH_INF &module)
{
    QString list;
    const QStringList texts = hintTexts(module);
    for (const QString &text : texts)
        list += QStringLiteral("    QT_TRANSLATE_NOOP(\"%1\", \"%2\"),\n")
                    .arg(module.trObjectName, text);
    return list;
}

QString sourceText(const QStringList &moduleFiles)
{
    QString functions;
    QString texts;
    QStringList calls;
    for (const QString &path : moduleFiles) {
        const AUTH_INF module = readModule(path);
        functions += functionOf(module);
        texts += listOfTexts(module);
        calls.append(module.codeFunctionName + QLatin1String("()"));
    }
    return QStringLiteral("// Generated from the module files. Change those, not this one.\n\n"
                          "// The texts below are plain literals.\n"
                          "#undef QT_NO_CAST_FROM_ASCII\n\n"
                          "#include \"modules.h\"\n\n"
                          "#include <Kelto/AUTH_INF>\n\n"
                          "namespace {\n\n")
        + functions + QLatin1String("[[maybe_unused]] const char *const hintTexts[] = {\n") + texts
        + QStringLiteral("    \"\"\n};\n\n} // namespace\n\n"
                         "QVector<AUTH_INF> compiledModules()\n{\n    return { ")
        + calls.join(QStringLiteral(", ")) + QStringLiteral(" };\n}\n");
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3)
        quit(QStringLiteral("Usage: workbench-generator <source file> <module file>..."));
    const QByteArray text = sourceText(arguments.mid(2)).toUtf8();
    QFile file(arguments.at(1));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
        quit(QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
    return EXIT_SUCCESS;
}
