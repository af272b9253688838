#pragma once

#include <benchmark/benchmark.h>

#include <chrono>

/// Measurements that say how many times as long something takes as a plainer thing on the same
/// machine, which holds on other machines too.
namespace SideBySide {

/// How many seconds an operation takes.
template <typename Operation>
double secondsOf(const Operation& operation)
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    operation();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// The body of a benchmark. It takes the time of `subject`; `reference` takes turns with it, so
/// that whatever else the machine does slows both. Reports the time of the reference and how many
/// times as long the subject takes. `prepare` comes before each time of the subject, and is not
/// timed.
template <typename Subject, typename Reference, typename Preparation = void (*)()>
void run(
    benchmark::State& state, const Subject& subject, const Reference& reference,
    const Preparation& prepare = [] {})
{
    double subjectSeconds = 0.0;
    double referenceSeconds = 0.0;
    while (state.KeepRunning()) {
        referenceSeconds += secondsOf(reference);
        prepare();
        const double seconds = secondsOf(subject);
        subjectSeconds += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["reference"] =
        benchmark::Counter(referenceSeconds, benchmark::Counter::kAvgIterations);
    state.counters["ratio"] = subjectSeconds / referenceSeconds;
}

} // namespace SideBySide
