// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "suite.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <memory>
#include <string_view>

namespace {

/// In a quick run slow baselines and large inputs are left out: they would be most of it.
constexpr int largestQuickBaseline = 100;
constexpr int largestQuickSize = 10000;

/// The sides of a comparison take turns, so that a while in which the machine is slow meets both.
constexpr int turns = 5;
constexpr double secondsPerTurn = 0.03;

/// A step stays ready while it is measured repeatedly, so that its input is made only once.
struct ReadyStep
{
    int size = 0;
    CheckedStep checked;
};

void measure(benchmark::State &state, const Step &step)
{
    for (auto _ : state) {
        if (step.reset) {
            state.PauseTiming();
            step.reset();
            state.ResumeTiming();
        }
        step.run();
    }
}

template <typename Prepare>
void registerStep(const std::string &name, int size, bool quick, Prepare prepare,
                  std::shared_ptr<ReadyStep> ready)
{
    const auto prepareAndMeasure = [=](benchmark::State &state) {
        if (ready->size != size)
            *ready = { size, prepare(size) };
        if (!ready->checked.fault.empty()) {
            state.SkipWithError(ready->checked.fault.c_str());
            return;
        }
        measure(state, ready->checked.step);
    };
    auto *registered = benchmark::RegisterBenchmark(name.c_str(), prepareAndMeasure)->Arg(size);
    if (quick)
        registered->Iterations(1);
    else
        registered->MinTime(secondsPerTurn);
}

std::string stepName(const Comparison &comparison, Runner runner)
{
    return comparison.operation + '/' + comparison.shape + '/'
        + (runner == Runner::Library ? "Kelto" : "baseline");
}

/// Gathers the times into table rows; reports progress and faults on the error output.
class Collector : public benchmark::BenchmarkReporter
{
public:
    explicit Collector(const std::vector<Comparison> &comparisons)
    {
        for (const Comparison &comparison : comparisons) {
            for (Runner runner : { Runner::Library, Runner::Baseline })
                m_places[stepName(comparison, runner)] = { m_rows.size(), runner };
            m_rows.emplace_back(comparison.operation, comparison.shape, comparison.sizes,
                                comparison.limit);
        }
    }

    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Iteration)
                report(run);
        }
    }

    const std::vector<TableRow> &rows() const { return m_rows; }
    int faults() const { return m_faults; }

private:
    struct Place
    {
        std::size_t row;
        Runner runner;
    };

    void report(const Run &run)
    {
        const int size = std::stoi(run.run_name.args);
        if (run.error_occurred) {
            ++m_faults;
            std::cerr << "WRONG ANSWER: " << run.run_name.function_name << ", n=" << size << ": "
                      << run.error_message << '\n';
            return;
        }
        const Place place = m_places.at(run.run_name.function_name);
        m_rows[place.row].addTime(place.runner, size, run.GetAdjustedCPUTime());
        std::cerr << run.run_name.function_name << ", n=" << size << ": "
                  << timeText(run.GetAdjustedCPUTime()) << '\n';
    }

    std::map<std::string, Place> m_places;
    std::vector<TableRow> m_rows;
    int m_faults = 0;
};

void registerComparison(const Comparison &comparison, bool quick)
{
    const int largestBaseline = quick ? std::min(comparison.largestBaseline, largestQuickBaseline)
                                      : comparison.largestBaseline;
    const auto library = [prepare = comparison.library, largestBaseline](int size) {
        return prepare(size, size <= largestBaseline);
    };
    const auto baseline = [prepare = comparison.baseline](int size) {
        return CheckedStep { prepare(size), {} };
    };
    const auto libraryStep = std::make_shared<ReadyStep>();
    const auto baselineStep = std::make_shared<ReadyStep>();
    for (int size : comparison.sizes) {
        if (quick && size > largestQuickSize)
            continue;
        for (int turn = 0; turn < (quick ? 1 : turns); ++turn) {
            registerStep(stepName(comparison, Runner::Library), size, quick, library, libraryStep);
            if (size <= largestBaseline) {
                registerStep(stepName(comparison, Runner::Baseline), size, quick, baseline,
                             baselineStep);
            }
        }
    }
}

/// Removes @p flag from the arguments; whether it was there.
bool takeFlag(int &argc, char **argv, std::string_view flag)
{
    char **const end = std::remove(argv + 1, argv + argc, flag);
    const bool found = end != argv + argc;
    argc = static_cast<int>(end - argv);
    argv[argc] = nullptr;
    return found;
}

} // namespace

int Suite::run(int argc, char **argv)
{
    const bool quick = takeFlag(argc, argv, "--quick");
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;

    for (const Comparison &comparison : m_comparisons)
        registerComparison(comparison, quick);
    Collector collector(m_comparisons);
    const std::size_t count = benchmark::RunSpecifiedBenchmarks(&collector);
    printTables(std::cout, collector.rows());
    if (quick)
        std::cout << "\nEach step ran once: the answers count here, the times do not.\n";
    else
        printFindings(std::cout, collector.rows());
    std::cout << '\n' << count << " steps run, " << collector.faults() << " wrong answers\n";
    return count == 0 || collector.faults() > 0 ? 1 : 0;
}
