#pragma once

#include "store/ErrorText.h"

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
        /// The lock file cannot be had. Opening the store may tell what is wrong.
        Unavailable,
    };

    /// Opens the lock file of the store in `directory`, and makes it if it is missing.
    explicit StoreLock(const QString& directory);
    StoreLock(const StoreLock&) = delete;
    StoreLock& operator=(const StoreLock&) = delete;
    ~StoreLock();

    /// Tries to lock the store, without waiting.
    State acquire();

    /// The same for everyone who would lock this store, and another for every other store of this
    /// machine: letters, digits and underscores. Empty when the lock file cannot be had.
    QString storeName() const;
    /// Why the lock file cannot be had, as a sentence for the person.
    ErrorText errorText() const;

private:
    int m_descriptor;
    /// As in errno; 0 for none.
    int m_error = 0;
};
