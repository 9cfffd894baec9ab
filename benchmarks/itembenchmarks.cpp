// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Module items in files and as source text, and the check of entered values.

#include "itembenchmarks.h"

#include "benchmarkfile.h"
#include "models/plaincode.h"
#include "models/plainitems.h"
#include "parameterinput.h"
#include "sides.h"

#include <Kelto/AUTH_INF>
#include <Kelto/KeltoItemParameterVerify>

namespace {

constexpr int modeCount = 10;

/// An item with @p size parameters in two of ten modes each, a tenth as many results, and extra
/// keys.
AUTH_INF itemOf(int size)
{
    AUTH_INF item = parameterModule(0, 0);
    QVector<QVector<QStringList>> modes(modeCount);
    for (int i = 0; i < size; ++i) {
        modes[i % modeCount].append(parameterEntry(i));
        modes[(i + 1) % modeCount].append(parameterEntry(i));
    }
    for (int i = 0; i < modeCount; ++i)
        addMode(&item, QStringLiteral("mode %1").arg(i), modes.at(i));
    item.output_results = parameterEntries(size / 10, size);
    for (int i = 0; i < size / 10; ++i)
        item.extraKey.append({ QStringLiteral("extra %1").arg(i), i });
    return item;
}

struct SavedItem
{
    BenchmarkFile file;
    AUTH_INF item;
};

SavedItem makeSaved(int size)
{
    SavedItem saved { BenchmarkFile(), itemOf(size) };
    saved.item.save_ini(saved.file.path());
    return saved;
}

/// Which parameters each mode has, in an order of their own, and the texts of the other fields.
QStringList contents(const AUTH_INF &item)
{
    QStringList lines { item.name, item.group, item.type, QString::number(item.extraKey.size()),
                        item.inner_mode_nameList.join(QLatin1Char(',')) };
    for (const QVector<QStringList> &entries : item.inner_mode_parameterList) {
        QStringList mode;
        for (const QStringList &entry : entries)
            mode.append(entry.join(QLatin1Char('|')));
        mode.sort();
        lines += mode;
    }
    return lines;
}

QStringList expectedContents(int size)
{
    return contents(itemOf(size));
}

void addFiles(Suite &suite)
{
    const auto touch = [](SavedItem &saved) { saved.file.touch(); };
    const auto remove = [](SavedItem &saved) { saved.file.remove(); };
    const Side loading { makeSaved,
                         [](const SavedItem &saved) {
                             AUTH_INF item;
                             item.load_ini(saved.file.path());
                             return item;
                         },
                         touch };
    const Side plainLoading {
        makeSaved, [](const SavedItem &saved) { return PlainItems::load(saved.file.path()); }, touch
    };
    compare(suite, { "load_ini", "n parameters, 10 modes", 1000 }, loading, plainLoading, contents,
            expectedContents);

    const Side saving { makeSaved,
                        [](const SavedItem &saved) {
                            saved.item.save_ini(saved.file.path());
                            return saved.file.path();
                        },
                        remove };
    const Side plainSaving { makeSaved,
                             [](const SavedItem &saved) {
                                 PlainItems::save(saved.item, saved.file.path());
                                 return saved.file.path();
                             },
                             remove };
    const auto loadedByLibrary = [](const QString &path) {
        AUTH_INF item;
        item.load_ini(path);
        return contents(item);
    };
    compare(suite, { "save_ini", "n parameters, 10 modes", 1000 }, saving, plainSaving,
            loadedByLibrary, expectedContents);
}

void addSourceText(Suite &suite)
{
    const Side library { itemOf, [](const AUTH_INF &item) { return item.to_code(); } };
    const Side plain { itemOf, [](const AUTH_INF &item) {
                          return PlainCode::of(item, QStringLiteral("UCal"), QStringLiteral("inf"));
                      } };
    const auto entryCount = [](const QString &code) {
        return code.count(QLatin1String("]<<QStringList{"))
            + code.count(QLatin1String("]=QStringList{"));
    };
    compare(suite, { "to_code", "n parameters, 10 modes", 100000 }, library, plain, entryCount,
            [](int size) { return 2 * size + size / 10; });
}

struct Checked
{
    AUTH_INF item;
    Entries values;
};

/// One mode with @p size parameters. The values come in another order, each with its unit.
Checked makeChecked(int size)
{
    Checked checked { parameterModule(0, 0), {} };
    addMode(&checked.item, QStringLiteral("mode"), parameterEntries(size));
    for (int i = size; i-- > 0;) {
        const QString name = parameterEntry(i).at(1);
        checked.values.append({ QLatin1String("Attribute/") + name, i });
        checked.values.append({ QLatin1String("Unit/") + name, QStringLiteral("mm") });
    }
    return checked;
}

void addVerifying(Suite &suite)
{
    const QString mode = QStringLiteral("mode");
    const Side library { makeChecked, [mode](const Checked &checked) {
                            return KeltoItemParameterVerify::isValid(&checked.item, &checked.values,
                                                                     mode);
                        } };
    const Side plain { makeChecked, [mode](const Checked &checked) {
                          return PlainItems::isValid(checked.item, checked.values, mode);
                      } };
    compare(suite, { "isValid", "n parameters, 2n values", 10000 }, library, plain, asItIs,
            [](int) { return true; });
}

} // namespace

void addItemBenchmarks(Suite &suite)
{
    addFiles(suite);
    addSourceText(suite);
    addVerifying(suite);
}
