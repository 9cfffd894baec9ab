// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SUITE_H
#define SUITE_H

#include <benchmark/benchmark.h>

#include <climits>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

/// One operation: what it is called, and what it is measured with.
struct Row
{
    std::string operation;
    std::vector<int> sizes = { 10, 100, 1000, 10000 };
    /// What waits for the disk is measured by the clock, all else by the processor's time.
    bool isRealTime = false;
};

constexpr auto noReset = [](auto & /*input*/) {};

/// One side of a comparison: makes an input of a given size and works on it. What a run
/// changes in the input is undone by the reset, which is not measured.
template <typename Make, typename Run, typename Reset> struct Side
{
    using Input = std::decay_t<std::invoke_result_t<Make, int>>;

    std::string name;
    int largestSize;
    Make make;
    Run run;
    Reset reset;

    template <typename View> auto answer(int size, View view) const
    {
        Input input = make(size);
        reset(input);
        return view(run(input));
    }

    void measure(Input &input, benchmark::State &state) const
    {
        for (auto _ : state) {
            if constexpr (!std::is_same_v<Reset, std::decay_t<decltype(noReset)>>) {
                state.PauseTiming();
                reset(input);
                state.ResumeTiming();
            }
            auto result = run(input);
            benchmark::DoNotOptimize(result);
        }
    }
};

/// The side by whose time the library's is divided. Sizes that take it about a second are left out.
template <typename Make, typename Run, typename Reset = std::decay_t<decltype(noReset)>>
Side<Make, Run, Reset> baseline(std::string name, int largestSize, Make make, Run run,
                                Reset reset = noReset)
{
    return { std::move(name), largestSize, make, run, reset };
}

template <typename Make, typename Run, typename Reset = std::decay_t<decltype(noReset)>>
Side<Make, Run, Reset> library(Make make, Run run, Reset reset = noReset)
{
    return { "Kelto", INT_MAX, make, run, reset };
}

/// A side whose types no longer matter.
struct AnySide
{
    std::string name;
    int largestSize;
    std::function<std::shared_ptr<void>(int size)> make;
    std::function<void(void *input, benchmark::State &)> measure;
    /// Whether its answer is the library's.
    std::function<bool(int size)> isRight;
};

template <typename TypedSide>
AnySide anySide(const TypedSide &side, std::function<bool(int)> isRight)
{
    using Input = typename TypedSide::Input;
    return { side.name, side.largestSize,
             [side](int size) { return std::make_shared<Input>(side.make(size)); },
             [side](void *input, benchmark::State &state) {
                 side.measure(*static_cast<Input *>(input), state);
             },
             std::move(isRight) };
}

/// Registers a row with Google Benchmark: the library's side, then the baselines.
void addRow(const Row &row, const std::vector<AnySide> &sides);

/// Measures @p library against @p baselines, which have to give the same answers, seen through
/// @p view. Answers that hold nothing prove nothing and count as wrong.
template <typename View, typename Library, typename... Baselines>
void compare(const Row &row, View view, const Library &library, const Baselines &...baselines)
{
    const auto agreesWith = [&](const auto &baseline) {
        return [=](int size) {
            const auto answer = library.answer(size, view);
            return answer == baseline.answer(size, view)
                && answer != std::decay_t<decltype(answer)>();
        };
    };
    addRow(row,
           { anySide(library, [](int /*size*/) { return true; }),
             anySide(baselines, agreesWith(baselines))... });
}

/// The view of answers that are compared as they are.
constexpr auto asItIs = [](const auto &answer) { return answer; };

/// Modules, exclusive groups, their modes and the standard names of these.
void addRegistryRows();
/// The lists of parameters and results that a registry puts together.
void addListRows();
/// Values in memory, of a settings store and of a registry.
void addSettingsRows();
/// Settings, module items and log lines in files.
void addFileRows();
/// Module items as source text, and the check of entered values.
void addItemRows();
/// The hints of module items, their translation, and what is missing.
void addHintRows();
/// The lint of module item files.
void addLintRows();
/// Forms for parameters. They need a QApplication.
void addFormRows();

/// Runs the rows and prints them as a table.
/// @return the exit code: 1 when an answer was wrong or nothing was run, 2 for an unknown flag.
int runRows(int argc, char **argv);

#endif
