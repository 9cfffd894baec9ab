// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "input.h"
#include "models/plaincode.h"
#include "models/plainitems.h"
#include "suite.h"

#include <Kelto/AUTH_INF>
#include <Kelto/KeltoItemParameterVerify>

namespace {

struct Entered
{
    AUTH_INF item;
    Entries values;
};

/// One mode with @p size parameters. The values come in another order, each with its unit.
Entered makeEntered(int size)
{
    Entered entered { moduleItem(0, 0), {} };
    addMode(&entered.item, 0, parameterEntries(size));
    for (int i = size; i-- > 0;) {
        const QString name = parameterEntry(i, 0).at(1);
        entered.values.append({ QLatin1String("Attribute/") + name, i });
        entered.values.append({ QLatin1String("Unit/") + name, QStringLiteral("mm") });
    }
    return entered;
}

} // namespace

void addItemRows()
{
    compare({ "to_code of n parameters" }, asItIs,
            library(itemOfTenModes, [](const AUTH_INF &item) { return item.to_code(); }),
            baseline("plain lines", 10000, itemOfTenModes, [](const AUTH_INF &item) {
                return PlainCode::of(item, QStringLiteral("UCal"), QStringLiteral("inf"));
            }));

    const QString mode = QStringLiteral("mode 0");
    compare({ "isValid with 2n values" }, asItIs,
            library(makeEntered,
                    [mode](const Entered &entered) {
                        return KeltoItemParameterVerify::isValid(&entered.item, &entered.values,
                                                                 mode);
                    }),
            baseline("plain scans", 1000, makeEntered, [mode](const Entered &entered) {
                return PlainItems::isValid(entered.item, entered.values, mode);
            }));
}
