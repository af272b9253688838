#pragma once

#include <benchmark/benchmark.h>

#include <optional>
#include <string>
#include <vector>

/// What a measurement has to stay within. What is absent does not matter.
struct Budget
{
    std::optional<double> milliseconds = {};
    /// How many times as long as its reference, or as the measurement named in `relativeTo`.
    std::optional<double> ratio = {};
    std::string relativeTo = {};
    /// Of memory, in the counter "MiB".
    std::optional<double> mebibytes = {};
};

/// Prints what each measurement took, and in the end a table of those that have a budget: measured,
/// its reference measured in the same run, and whether it holds.
class BudgetReporter : public benchmark::ConsoleReporter
{
public:
    /// Sets the budget of the measurement of this name.
    static void setBudget(const std::string& name, const Budget& budget);

    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    void printRow(const std::string& name, const Run& run, const Budget& budget);

    std::vector<Run> m_runs;
};
