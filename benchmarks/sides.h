// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SIDES_H
#define SIDES_H

#include "suite.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <type_traits>

/// What a side does before a run where there is nothing to do.
struct NoReset
{
    template <typename Input> void operator()(Input & /*input*/) const { }
};

/// One of the two that are compared: how it makes its input of a given size, what it does with it,
/// and what it needs before every run. A run leaves the input as it was or is helped by the reset.
template <typename Make, typename Run, typename Reset = NoReset> struct Side
{
    Make make;
    Run run;
    Reset reset = {};
};

template <typename Make, typename Run> Side(Make, Run) -> Side<Make, Run>;
template <typename Make, typename Run, typename Reset>
Side(Make, Run, Reset) -> Side<Make, Run, Reset>;

/// The place of a side against which nothing is measured.
struct NoSide
{
};

/// What comes before the measuring: what a row is called and how far it goes.
struct RowTitle
{
    std::string operation;
    std::string shape;
    int largestBaseline = 0;
    Limit limit = {};
};

/// 10 and 50 are the sizes that hosts have.
inline std::vector<int> sizesOfLists()
{
    return { 10, 50, 1000, 10000, 100000 };
}

/// A baseline that is known to be better at something is measured, too, without being a limit.
constexpr Limit noLimit { 1, 0 };
/// Files are read and written through QSettings, which takes most of the time.
constexpr Limit fileLimit { 1.2, 100000 };

template <typename Input, typename AnySide>
auto answerOf(const std::shared_ptr<Input> &input, const AnySide &side)
{
    side.reset(*input);
    return side.run(*input);
}

template <typename AnySide> auto inputOf(const AnySide &side, int size)
{
    using Input = std::decay_t<decltype(side.make(size))>;
    return std::make_shared<Input>(side.make(size));
}

template <typename Input, typename AnySide>
Step stepOf(const std::shared_ptr<Input> &input, const AnySide &side)
{
    Step step { [input, run = side.run] {
        auto answer = run(*input);
        benchmark::DoNotOptimize(answer);
    } };
    if constexpr (!std::is_same_v<std::decay_t<decltype(side.reset)>, NoReset>)
        step.reset = [input, reset = side.reset] { reset(*input); };
    return step;
}

/// Measures @p library against @p baseline. The answer of either, seen through @p view, has to be
/// what @p expected says for the size.
template <typename Library, typename Baseline, typename View, typename Expected>
void compare(Suite &suite, const RowTitle &title, const Library &library, const Baseline &baseline,
             View view, Expected expected)
{
    Comparison row { title.operation, title.shape, title.largestBaseline, {}, {},
                     sizesOfLists(),  title.limit };
    constexpr bool hasBaseline = !std::is_same_v<Baseline, NoSide>;
    row.library = [=](int size, bool compareWithBaseline) -> CheckedStep {
        const auto input = inputOf(library, size);
        if (view(answerOf(input, library)) != expected(size))
            return { {}, "differs from what the input holds" };
        if constexpr (hasBaseline) {
            if (compareWithBaseline
                && view(answerOf(inputOf(baseline, size), baseline)) != expected(size))
                return { {}, "the baseline's answer differs from what the input holds" };
        }
        return { stepOf(input, library), {} };
    };
    if constexpr (hasBaseline)
        row.baseline = [=](int size) { return stepOf(inputOf(baseline, size), baseline); };
    suite.add(std::move(row));
}

/// The view of answers that are compared as they are.
constexpr auto asItIs = [](const auto &answer) { return answer; };

#endif
