// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The definitions of UDUNITS. It is asked for single symbols only: it reads no fractions of
// exponents, takes some texts for dates, and what it has read may be a date or a level.

#include "units/unitbase.h"

#include <QMutex>
#include <QMutexLocker>

#include <memory>

#include <locale.h>
#include <udunits2.h>

namespace {

/// UDUNITS reads its definitions with the decimal sign of the program, which Qt sets to that of the
/// user.
class PlainNumbers
{
public:
    PlainNumbers()
        : m_plain(newlocale(LC_ALL_MASK, "C", nullptr))
        , m_before(uselocale(m_plain))
    {
    }
    ~PlainNumbers()
    {
        uselocale(m_before);
        freelocale(m_plain);
    }
    Q_DISABLE_COPY(PlainNumbers)

private:
    locale_t m_plain;
    locale_t m_before;
};

struct Freeing
{
    void operator()(ut_system *system) const { ut_free_system(system); }
    void operator()(ut_unit *unit) const { ut_free(unit); }
};
using UnitPointer = std::unique_ptr<ut_unit, Freeing>;

Unit &target(void *argument)
{
    return *static_cast<Unit *>(argument);
}

/// Angles count as numbers, like everything without a dimension.
void multiply(Unit *product, const ut_unit *basic, int power)
{
    if (ut_is_dimensionless(basic) == 0)
        product->dimension[QString::fromUtf8(ut_get_symbol(basic, UT_UTF8))] += power;
}

ut_status visitBasic(const ut_unit *basic, void *argument)
{
    multiply(&target(argument), basic, 1);
    return UT_SUCCESS;
}

ut_status visitProduct(const ut_unit * /*product*/, int count, const ut_unit *const *basics,
                       const int *powers, void *argument)
{
    for (int i = 0; i < count; ++i)
        multiply(&target(argument), basics[i], powers[i]);
    return UT_SUCCESS;
}

const ut_visitor *visitor();

ut_status visitScaled(const ut_unit * /*scaled*/, double scale, const ut_unit *underlying,
                      double /*offset*/, void *argument)
{
    target(argument).factor *= scale;
    return ut_accept_visitor(underlying, visitor(), argument);
}

ut_status visitTime(const ut_unit * /*time*/, const ut_unit * /*unit*/, double /*origin*/,
                    void * /*argument*/)
{
    return UT_MEANINGLESS;
}

ut_status visitLevel(const ut_unit * /*level*/, double /*base*/, const ut_unit * /*reference*/,
                     void * /*argument*/)
{
    return UT_MEANINGLESS;
}

const ut_visitor *visitor()
{
    static const ut_visitor visitor { visitBasic, visitProduct, visitScaled, visitTime,
                                      visitLevel };
    return &visitor;
}

std::unique_ptr<ut_system, Freeing> readSystem()
{
    ut_set_error_message_handler(ut_ignore);
    return std::unique_ptr<ut_system, Freeing>(ut_read_xml(nullptr));
}

std::optional<Unit> readSymbol(const QString &symbol)
{
    static const std::unique_ptr<ut_system, Freeing> system = readSystem();
    if (!system)
        return std::nullopt;
    const UnitPointer found(ut_parse(system.get(), symbol.toUtf8().constData(), UT_UTF8));
    Unit unit;
    if (!found || ut_accept_visitor(found.get(), visitor(), &unit) != UT_SUCCESS)
        return std::nullopt;
    return unit;
}

} // namespace

std::optional<Unit> unitOfSymbol(const QString &symbol)
{
    static QMutex mutex;
    const QMutexLocker locker(&mutex);
    const PlainNumbers plainNumbers;
    return readSymbol(symbol);
}
