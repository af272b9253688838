#pragma once

#include <QString>

/// Keeps two instances of the program from working on one store.
///
/// The lock is a file of its own beside the store; the system drops it when the process ends,
/// however that happens, so a crash leaves nothing in the way.
class StoreLock
{
public:
    enum class State
    {
        Held,
        HeldByAnother,
        /// The lock file cannot be made. Opening the store will tell what is wrong.
        Unavailable,
    };

    /// Tries to lock the store in `directory`.
    explicit StoreLock(const QString& directory);
    StoreLock(const StoreLock&) = delete;
    StoreLock& operator=(const StoreLock&) = delete;
    ~StoreLock();

    State state() const { return m_state; }

private:
    int m_descriptor;
    State m_state = State::Unavailable;
};
