// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SUITE_H
#define SUITE_H

#include "table.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

/// What is measured, on an input that was made before.
struct Step
{
    std::function<void()> run;
    /// What has to be done before every run and is not measured, if anything.
    std::function<void()> reset = nullptr;
};

/// The library's step, made ready and checked.
struct CheckedStep
{
    Step step;
    /// What is wrong with the library's answer; empty when it is right.
    std::string fault;
};

/// One row of the table: an operation on one shape of input, done by the library and by a baseline
/// that gives the same answers.
struct Comparison
{
    std::string operation;
    std::string shape;
    /// Above this size one run of the baseline takes more than about two seconds; 0 without one.
    int largestBaseline;
    /// Makes ready the library's step for an input of @p size and checks its answer, also against
    /// the baseline's where that is asked for.
    std::function<CheckedStep(int size, bool compareWithBaseline)> library;
    /// Makes ready the baseline's step for an input of @p size.
    std::function<Step(int size)> baseline;
    std::vector<int> sizes = { 10, 100, 1000, 10000 };
    Limit limit = {};
};

/// All comparisons, run and printed as one table.
class Suite
{
public:
    void add(Comparison comparison) { m_comparisons.push_back(std::move(comparison)); }

    /**
     * Measures and prints.
     *
     * Takes the flags of Google Benchmark and `--quick`, which runs each step once and leaves out
     * slow baselines and large inputs: what then counts are the answers and not the times.
     *
     * @return the exit code: 1 when an answer was wrong or nothing was run, 2 for an unknown flag.
     */
    int run(int argc, char **argv);

private:
    std::vector<Comparison> m_comparisons;
};

#endif
