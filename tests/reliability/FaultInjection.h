#pragma once

#include <string>

/// Stands between SQLite and the system, and lets one of the operations that SQLite asks for fail.
namespace FaultInjection {

enum class Fault
{
    /// Opening, reading, writing, truncating, syncing, measuring, locking, unlocking, looking for
    /// or deleting a file fails, and nothing was done.
    InputOutput,
    /// Writing, truncating, syncing or deleting reports a failure although it was done, as a delete
    /// does whose directory could not be synced.
    InputOutputBelated,
    /// There is room for the first half of a write only.
    DiskFull,
    /// An allocation fails.
    OutOfMemory,
};

/// Becomes SQLite's memory and file system. To be called before anything else uses SQLite.
void install();

/// From now on, the one operation that the fault can befall fails that comes as number `operation`,
/// from 1.
void arm(Fault fault, int operation);
/// What failed since arm(); empty when nothing did. Nothing fails any more.
std::string disarm();

} // namespace FaultInjection
