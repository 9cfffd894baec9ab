// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TABLE_H
#define TABLE_H

#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// Whose time it is.
enum class Runner { Library, Baseline };

/// How long the library may take, in the baseline's time, at sizes up to a largest one.
struct Limit
{
    double ratio = 1;
    int largestSize = 50;
};

/// The measured times of one operation on one shape of input.
class TableRow
{
public:
    TableRow(std::string operation, std::string shape, std::vector<int> sizes, Limit limit);

    /// Takes in a time; of several for the same size the shortest counts, because what else the
    /// machine does can only lengthen it.
    void addTime(Runner runner, int size, double nanoseconds);

    const std::string &operation() const { return m_operation; }
    const std::string &shape() const { return m_shape; }
    const std::vector<int> &sizes() const { return m_sizes; }
    const Limit &limit() const { return m_limit; }
    bool isEmpty() const { return m_times.empty(); }

    std::optional<double> time(Runner runner, int size) const;

    /// How many times faster the library is than the baseline.
    std::optional<double> ratio(int size) const;

    /// The exponent with which a time grows between two sizes: 1 is linear, 2 is quadratic.
    std::optional<double> growth(Runner runner, int from, int to) const;

private:
    std::string m_operation;
    std::string m_shape;
    std::vector<int> m_sizes;
    Limit m_limit;
    std::map<std::pair<Runner, int>, double> m_times;
};

/// A time with three digits and its unit.
std::string timeText(double nanoseconds);

/// Prints @p rows, those of the same sizes one below the other.
void printTables(std::ostream &out, const std::vector<TableRow> &rows);

/// Names the rows in which the library's time grows faster than n log n, and those in which it is
/// longer than the row's limit.
void printFindings(std::ostream &out, const std::vector<TableRow> &rows);

#endif
