#pragma once

#include <optional>

/// What can be measured; corvane_benchmarks runs it.
namespace Benchmarks {

/// The store and what is computed from it. To be registered first: it measures how much memory
/// records take, and what others have freed would be used again without growing the process.
void registerModel();

/// What a person waits for.
void registerWindow();

/// Started as a child to bring up a window, which some measurements do, does that. Answers the exit
/// status; absent when the process is no such child.
std::optional<int> runAsChild(int argc, char** argv);

} // namespace Benchmarks
