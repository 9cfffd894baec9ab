// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "suite.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <map>
#include <sstream>

namespace {

struct KnownRow
{
    Row row;
    std::vector<std::string> sides;
};

std::vector<KnownRow> &knownRows()
{
    static std::vector<KnownRow> rows;
    return rows;
}

std::string familyName(const Row &row, const std::string &side)
{
    return row.operation + '/' + side;
}

/// The shortest times by size, in nanoseconds: what else the machine does can only lengthen one.
using Times = std::map<int, double>;

/// Gathers the times.
class Collector : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context & /*context*/) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Iteration)
                takeTime(run);
        }
    }

    const Times &times(const Row &row, const std::string &side)
    {
        return m_times[familyName(row, side)];
    }

private:
    void takeTime(const Run &run)
    {
        const bool isRealTime = run.run_name.time_type == "real_time";
        const double time = isRealTime ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
        Times &times = m_times[run.run_name.function_name];
        const auto known = times.try_emplace(std::stoi(run.run_name.args), time).first;
        known->second = std::min(known->second, time);
    }

    std::map<std::string, Times> m_times;
};

/// @p number with three digits.
std::string numberText(double number)
{
    std::ostringstream text;
    text << std::fixed << std::setprecision(number < 10 ? 2 : number < 100 ? 1 : 0) << number;
    return text.str();
}

std::string timeText(double nanoseconds)
{
    static constexpr std::array<const char *, 4> units { "ns", "us", "ms", "s" };
    std::size_t unit = 0;
    for (; nanoseconds >= 1000 && unit + 1 < units.size(); ++unit)
        nanoseconds /= 1000;
    return numberText(nanoseconds) + ' ' + units.at(unit);
}

/// The exponent with which the time grows, from the second size on: what is done once, however
/// large n is, hides it at the first.
std::string growthText(const Times &times)
{
    if (times.size() < 3)
        return "-";
    const auto from = std::next(times.begin());
    const auto to = std::prev(times.end());
    return "n^"
        + numberText(std::log(to->second / from->second)
                     / std::log(double(to->first) / from->first));
}

void printLine(const std::string &title, const std::vector<std::string> &cells)
{
    std::cout << std::left << std::setw(58) << title << std::right;
    for (const std::string &cell : cells)
        std::cout << std::setw(10) << cell;
    std::cout << '\n';
}

/// One cell for each size of @p row, made of what @p times holds for it.
template <typename Text>
std::vector<std::string> cellsOf(const Row &row, const Times &times, Text text)
{
    std::vector<std::string> cells;
    for (int size : row.sizes) {
        const auto time = times.find(size);
        cells.push_back(time == times.end() ? "-" : text(size, time->second));
    }
    return cells;
}

void printSizes(const Row &row)
{
    std::vector<std::string> cells;
    for (int size : row.sizes)
        cells.push_back("n=" + std::to_string(size));
    cells.push_back("growth");
    std::cout << '\n';
    printLine("", cells);
}

void printRow(const KnownRow &known, Collector &collector)
{
    const Times &library = collector.times(known.row, known.sides.front());
    std::vector<std::string> cells
        = cellsOf(known.row, library, [](int, double time) { return timeText(time); });
    cells.push_back(growthText(library));
    printLine(known.row.operation, cells);
    for (auto side = known.sides.cbegin() + 1; side != known.sides.cend(); ++side) {
        const auto ratio
            = [&library](int size, double time) { return numberText(library.at(size) / time); };
        printLine("    / " + *side, cellsOf(known.row, collector.times(known.row, *side), ratio));
    }
}

void printTable(Collector &collector)
{
    std::cout
        << "Shortest time of one run, and how it grows: n^1 is linear, n^2 quadratic, and memory\n"
           "outside of the caches adds to it. Below, that time divided by the time of something\n"
           "else that gives the same answers: above 1 is slower.\n";
    std::vector<int> sizes;
    for (const KnownRow &known : knownRows()) {
        if (collector.times(known.row, known.sides.front()).empty())
            continue;
        if (known.row.sizes != sizes)
            printSizes(known.row);
        sizes = known.row.sizes;
        printRow(known, collector);
    }
}

/// By the name of the family and the size, whether the answers were right.
std::map<std::pair<std::string, int>, bool> &knownAnswers()
{
    static std::map<std::pair<std::string, int>, bool> answers;
    return answers;
}

/// Looks once at the answers of @p family for @p size; reports wrong ones on the error output.
void check(const std::string &family, const AnySide &side, int size)
{
    const auto [answer, isNew] = knownAnswers().try_emplace({ family, size });
    if (!isNew)
        return;
    answer->second = side.isRight(size);
    if (!answer->second)
        std::cerr << family << '/' << size << ": differs from Kelto's answer, or is empty\n";
}

/// Google Benchmark asks for one size several times in a row, to find out how often to run it. Its
/// input is kept until something else is measured: all together would take gigabytes.
void measure(const AnySide &side, benchmark::State &state)
{
    static std::shared_ptr<void> input;
    static std::pair<const AnySide *, int> kept;
    const int size = static_cast<int>(state.range(0));
    if (kept != std::make_pair(&side, size)) {
        input = side.make(size);
        kept = { &side, size };
    }
    side.measure(input.get(), state);
    state.SetComplexityN(size);
}

} // namespace

void addRow(const Row &row, const std::vector<AnySide> &sides)
{
    KnownRow known { row, {} };
    for (const AnySide &side : sides) {
        known.sides.push_back(side.name);
        const std::string name = familyName(row, side.name);
        const auto run = [name, side = std::make_shared<AnySide>(side)](benchmark::State &state) {
            check(name, *side, static_cast<int>(state.range(0)));
            measure(*side, state);
        };
        auto *family = benchmark::RegisterBenchmark(name.c_str(), run);
        // Its own fit of the growth goes into the JSON output.
        family->Complexity();
        if (row.isRealTime)
            family->UseRealTime();
        for (int size : row.sizes) {
            if (size <= side.largestSize)
                family->Arg(size);
        }
    }
    knownRows().push_back(known);
}

int runRows(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    Collector collector;
    const std::size_t count = benchmark::RunSpecifiedBenchmarks(&collector);
    printTable(collector);
    const auto wrong = std::count_if(knownAnswers().cbegin(), knownAnswers().cend(),
                                     [](const auto &known) { return !known.second; });
    std::cout << '\n' << count << " steps, " << wrong << " wrong answers\n";
    return count == 0 || wrong > 0 ? 1 : 0;
}
