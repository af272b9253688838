#include "bench/Budget.h"

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <map>
#include <sstream>
#include <utility>

namespace {

std::map<std::string, Budget>& budgets()
{
    static std::map<std::string, Budget> budgets;
    return budgets;
}

double millisecondsOf(const benchmark::BenchmarkReporter::Run& run)
{
    return run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1000.0;
}

std::optional<double> counterOf(const benchmark::BenchmarkReporter::Run& run, const char* name)
{
    const auto found = run.counters.find(name);
    return found == run.counters.end() ? std::nullopt : std::optional(found->second.value);
}

std::string written(double value, const char* unit)
{
    std::ostringstream text;
    text << std::fixed << std::setprecision(value < 10.0 ? 2 : 1) << value << unit;
    return text.str();
}

void printCells(const std::vector<std::string>& cells)
{
    for (const auto& cell : cells) {
        std::cout << "| " << std::left << std::setw(22) << cell << ' ';
    }
    std::cout << "|\n";
}

} // namespace

void BudgetReporter::setBudget(const std::string& name, const Budget& budget)
{
    budgets()[name] = budget;
}

void BudgetReporter::ReportRuns(const std::vector<Run>& runs)
{
    ConsoleReporter::ReportRuns(runs);
    std::ranges::copy_if(runs, std::back_inserter(m_runs), [](const Run& run) {
        return run.run_type == Run::RT_Iteration && !run.error_occurred;
    });
}

void BudgetReporter::Finalize()
{
    std::cout << '\n';
    printCells({"what", "measured", "reference", "ratio", "budget", "kept"});
    printCells({"---", "---", "---", "---", "---", "---"});
    for (const auto& run : m_runs) {
        const auto name = run.run_name.function_name;
        if (const auto budget = budgets().find(name); budget != budgets().end()) {
            printRow(name, run, budget->second);
        }
    }
}

void BudgetReporter::printRow(const std::string& name, const Run& run, const Budget& budget)
{
    const double milliseconds = millisecondsOf(run);
    auto reference = counterOf(run, "reference");
    if (reference) {
        *reference *= 1000.0;
    }
    const auto other = std::ranges::find_if(m_runs, [&budget](const Run& candidate) {
        return candidate.run_name.function_name == budget.relativeTo;
    });
    if (other != m_runs.end()) {
        reference = millisecondsOf(*other);
    }
    const auto mebibytes = counterOf(run, "MiB");
    std::vector<std::string> limits;
    bool isKept = true;
    const auto limit = [&](const std::optional<double>& most, double value, const char* unit) {
        if (most) {
            limits.push_back(written(*most, unit));
            isKept = isKept && value <= *most;
        }
    };
    const double ratio = milliseconds / reference.value_or(milliseconds);
    limit(budget.milliseconds, milliseconds, " ms");
    limit(budget.ratio, ratio, " times");
    limit(budget.mebibytes, mebibytes.value_or(0.0), " MiB");
    std::string limitText;
    for (const auto& text : limits) {
        limitText += (limitText.empty() ? "" : ", ") + text;
    }
    printCells(
        {name, written(milliseconds, " ms") + (mebibytes ? ", " + written(*mebibytes, " MiB") : ""),
         reference ? written(*reference, " ms") : "", reference ? written(ratio, " times") : "",
         limitText, isKept ? "yes" : "NO"});
}
