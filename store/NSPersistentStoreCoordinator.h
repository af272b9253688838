#pragma once

#include "store/NSManagedObjectModel.h"

#include <QString>

#include <memory>

class SQLiteStore;

/// Holds a model and the one store file attached to it, for any number of contexts.
class NSPersistentStoreCoordinator
{
public:
    /// The model must outlive the coordinator.
    explicit NSPersistentStoreCoordinator(const NSManagedObjectModel& model);
    ~NSPersistentStoreCoordinator();
    NSPersistentStoreCoordinator(const NSPersistentStoreCoordinator&) = delete;
    NSPersistentStoreCoordinator& operator=(const NSPersistentStoreCoordinator&) = delete;

    const NSManagedObjectModel& managedObjectModel() const { return m_model; }

    /// Attaches the SQLite file at `path`; makes it, readable by its owner only, when there is
    /// none. A file of another program or another version of the model, or one that is damaged,
    /// locked or cannot be written, is refused as it is: throws NSError.
    void addPersistentStore(const QString& path);
    bool hasPersistentStore() const { return m_store != nullptr; }

    /// The attached store. Throws NSError when there is none.
    SQLiteStore& store() const;

    /// Records a coordinator (or null) as the one that NSManagedObjectContext::makeContext() works
    /// on. A coordinator that goes away is the default no longer.
    static void MR_setDefaultStoreCoordinator(NSPersistentStoreCoordinator* coordinator);
    /// Null when none was recorded.
    static NSPersistentStoreCoordinator* MR_defaultStoreCoordinator();

private:
    const NSManagedObjectModel& m_model;
    std::unique_ptr<SQLiteStore> m_store;
};
