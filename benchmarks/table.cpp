// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <ostream>
#include <sstream>
#include <utility>

namespace {

constexpr int shapeWidth = 24;
constexpr int runnerWidth = 10;
constexpr int timeWidth = 11;

std::string fixedText(double number, int decimals)
{
    std::ostringstream text;
    text << std::fixed << std::setprecision(decimals) << number;
    return text.str();
}

/// A ratio with as many decimals as it takes to tell it from 1.
std::string ratioText(double ratio)
{
    return 'x' + fixedText(ratio, ratio < 10 ? 2 : 0);
}

void printLine(std::ostream &out, const std::string &shape, const std::string &runner,
               const std::vector<std::string> &cells)
{
    out << std::left << "  " << std::setw(shapeWidth) << shape << std::setw(runnerWidth) << runner
        << std::right;
    for (const std::string &cell : cells)
        out << std::setw(timeWidth) << cell;
    out << '\n';
}

/// The times at all sizes, then their growth from each size to the next.
std::vector<std::string> timeCells(const TableRow &row, Runner runner)
{
    const std::vector<int> &sizes = row.sizes();
    std::vector<std::string> cells;
    for (int size : sizes) {
        const auto time = row.time(runner, size);
        cells.push_back(time ? timeText(*time) : "-");
    }
    for (std::size_t i = 1; i < sizes.size(); ++i) {
        const auto growth = row.growth(runner, sizes[i - 1], sizes[i]);
        cells.push_back(growth ? fixedText(*growth, 2) : "-");
    }
    return cells;
}

std::vector<std::string> ratioCells(const TableRow &row)
{
    std::vector<std::string> cells;
    for (int size : row.sizes()) {
        const auto ratio = row.ratio(size);
        cells.push_back(ratio ? ratioText(*ratio) : "-");
    }
    return cells;
}

void printRow(std::ostream &out, const TableRow &row)
{
    printLine(out, row.shape(), "Kelto", timeCells(row, Runner::Library));
    if (!row.time(Runner::Baseline, row.sizes().front()))
        return;
    printLine(out, "", "baseline", timeCells(row, Runner::Baseline));
    printLine(out, "", "ratio", ratioCells(row));
}

std::string rowName(const TableRow &row)
{
    return row.operation() + ", " + row.shape();
}

/// The growth exponent that n log n has between two sizes.
double linearithmicGrowth(int from, int to)
{
    return 1 + std::log(std::log(to) / std::log(from)) / std::log(double(to) / from);
}

std::vector<std::string> growingFast(const TableRow &row)
{
    const std::vector<int> &sizes = row.sizes();
    std::vector<std::string> names;
    for (std::size_t i = 1; i < sizes.size(); ++i) {
        const double allowed = linearithmicGrowth(sizes[i - 1], sizes[i]);
        const double growth = row.growth(Runner::Library, sizes[i - 1], sizes[i]).value_or(0);
        if (growth > allowed) {
            names.push_back(rowName(row) + ", " + std::to_string(sizes[i - 1]) + " to "
                            + std::to_string(sizes[i]) + ": " + fixedText(growth, 2)
                            + ", n log n is " + fixedText(allowed, 2));
        }
    }
    return names;
}

std::vector<std::string> aboveLimit(const TableRow &row)
{
    std::vector<std::string> names;
    for (int size : row.sizes()) {
        const auto ratio = row.ratio(size);
        if (size <= row.limit().largestSize && ratio && *ratio * row.limit().ratio < 1)
            names.push_back(rowName(row) + ", n=" + std::to_string(size) + ": "
                            + ratioText(*ratio));
    }
    return names;
}

void printFinding(std::ostream &out, const std::string &title, const std::vector<TableRow> &rows,
                  std::vector<std::string> (*find)(const TableRow &row))
{
    bool isFound = false;
    out << '\n' << title << '\n';
    for (const TableRow &row : rows) {
        for (const std::string &name : find(row)) {
            isFound = true;
            out << "  " << name << '\n';
        }
    }
    if (!isFound)
        out << "  none\n";
}

std::vector<std::string> columnTitles(const std::vector<int> &sizes)
{
    std::vector<std::string> titles;
    for (int size : sizes)
        titles.push_back("n=" + std::to_string(size));
    for (std::size_t i = 1; i < sizes.size(); ++i)
        titles.push_back("to " + std::to_string(sizes[i]));
    return titles;
}

} // namespace

TableRow::TableRow(std::string operation, std::string shape, std::vector<int> sizes, Limit limit)
    : m_operation(std::move(operation))
    , m_shape(std::move(shape))
    , m_sizes(std::move(sizes))
    , m_limit(limit)
{
}

void TableRow::addTime(Runner runner, int size, double nanoseconds)
{
    const auto [known, isNew] = m_times.try_emplace({ runner, size }, nanoseconds);
    if (!isNew)
        known->second = std::min(known->second, nanoseconds);
}

std::optional<double> TableRow::time(Runner runner, int size) const
{
    const auto found = m_times.find({ runner, size });
    return found == m_times.end() ? std::nullopt : std::make_optional(found->second);
}

std::optional<double> TableRow::ratio(int size) const
{
    const auto library = time(Runner::Library, size);
    const auto baseline = time(Runner::Baseline, size);
    return library && baseline ? std::make_optional(*baseline / *library) : std::nullopt;
}

std::optional<double> TableRow::growth(Runner runner, int from, int to) const
{
    const auto before = time(runner, from);
    const auto after = time(runner, to);
    if (!before || !after)
        return std::nullopt;
    return std::log(*after / *before) / std::log(double(to) / from);
}

std::string timeText(double nanoseconds)
{
    static constexpr std::array<const char *, 4> units { "ns", "us", "ms", "s " };
    std::size_t unit = 0;
    for (; nanoseconds >= 1000 && unit + 1 < units.size(); ++unit)
        nanoseconds /= 1000;
    std::ostringstream text;
    text << std::setprecision(3) << std::showpoint << nanoseconds;
    std::string digits = text.str();
    if (digits.back() == '.')
        digits.pop_back();
    return digits + ' ' + units.at(unit);
}

void printTables(std::ostream &out, const std::vector<TableRow> &rows)
{
    out << "Shortest CPU time of one run, and the exponent with which it grows to the next size:\n"
        << "1 is linear, 2 is quadratic. Memory that no longer fits into the caches adds to it.\n"
        << "Ratio: how many times faster than the baseline, which scans plain lists where nothing\n"
        << "else is named.\n";
    std::vector<int> sizes;
    std::string operation;
    for (const TableRow &row : rows) {
        if (row.isEmpty())
            continue;
        if (row.sizes() != sizes) {
            out << '\n';
            printLine(out, "", "", columnTitles(row.sizes()));
        }
        sizes = row.sizes();
        if (row.operation() != operation)
            out << row.operation() << '\n';
        operation = row.operation();
        printRow(out, row);
    }
}

void printFindings(std::ostream &out, const std::vector<TableRow> &rows)
{
    printFinding(out, "Growing faster than n log n:", rows, growingFast);
    printFinding(out, "Slower than the baseline allows:", rows, aboveLimit);
}
