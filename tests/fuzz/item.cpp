// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A module item: what a file describes is read, queried, explained, written as source text and
// saved.

#include "fuzzing.h"

#include <AUTH_INF>
#include <KeltoItemFinding>
#include <KeltoItemHints>
#include <KeltoItemParameterVerify>

using Fuzzing::check;

namespace {

void query(const AUTH_INF &item)
{
    const QStringList modes = item.inner_mode_nameList;
    for (const QString &mode : modes) {
        const QStringList keys = item.inner_mode_keylist_of(mode);
        for (const QString &key : keys) {
            check(item.inner_mode_contains(mode, key), "a mode has the keys that it lists");
            check(item.inner_mode_contains(key), "some mode has the key of a mode");
            check(!item.parameter_belonglist(key).isEmpty(), "a key belongs to its mode");
        }
    }
}

void explain(const AUTH_INF &item)
{
    const KeltoItemHints hints(item, item.inner_mode_nameList.value(0));
    QVector<QPair<QString, QVariant>> values;
    const QVector<VParameter> parameters = hints.parameters();
    for (const VParameter &parameter : parameters) {
        const QString key = parameter.name().first;
        const QVariant value = hints.defaultValue(key);
        if (value.isValid())
            values.append({ QLatin1String("Attribute/") + key, value });
    }
    bool isAbsent = false;
    const auto findings = KeltoItemParameterVerify::explain(&item, &values, hints.mode());
    for (const KeltoItemFinding &finding : findings) {
        check(!finding.text().isEmpty(), "a finding has a text");
        isAbsent = isAbsent || finding.isAbsence();
    }
    check(KeltoItemParameterVerify::isValid(&item, &values, hints.mode()) != isAbsent,
          "either something is absent, or all is valid");
    const auto problems = hints.problems();
    for (const KeltoItemHints::Problem &problem : problems)
        check(!problem.text().isEmpty(), "a problem has a text");
}

/// Writes source text for fewer modes than a file can ask for: a million take their time.
QString codeOf(AUTH_INF item)
{
    item.inner_mode_count = qMin(item.inner_mode_count, 100);
    return item.to_code() + item.to_code(item.name, item.group);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Fuzzing::InputFile file(
        QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    AUTH_INF item;
    item.load_ini(file.path());
    query(item);
    explain(item);
    codeOf(item);
    item.save_ini(file.path());

    AUTH_INF saved;
    saved.load_ini(file.freshCopy());
    query(saved);
    codeOf(saved);
    return 0;
}
