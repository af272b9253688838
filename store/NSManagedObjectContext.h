#pragma once

#include "foundation/KeyValueObserving.h"
#include "store/NSEntityDescription.h"
#include "store/NSFetchRequest.h"
#include "store/NSUndoManager.h"
#include "store/ObjectChanges.h"

#include <QObject>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class NSError;
class NSManagedObject;
class NSPersistentStoreCoordinator;
class ReadTransaction;
class RecordTable;
class SQLiteStore;

/// Something that holds typed text back until the person is done with it.
class NSEditor
{
public:
    virtual ~NSEditor() = default;
    /// Hands what was typed to the record. False when it cannot: the text is no value.
    virtual bool commitEditing() = 0;
};

/// A space of records in which changes are made, undone and, all together, saved.
///
/// A context holds one object for each record it has met and owns them all for its lifetime. It
/// sees the file as it was saved plus its own unsaved changes; contexts on one coordinator do not
/// see each other's. Main thread only.
class NSManagedObjectContext : public QObject, public KeyValueObject
{
    Q_OBJECT

public:
    /// The coordinator must outlive the context.
    explicit NSManagedObjectContext(NSPersistentStoreCoordinator& coordinator);
    ~NSManagedObjectContext() override;

    /// A new, independent context on the default coordinator
    /// (NSPersistentStoreCoordinator::MR_setDefaultStoreCoordinator()). Null when there is none.
    static std::unique_ptr<NSManagedObjectContext> makeContext();

    NSPersistentStoreCoordinator& persistentStoreCoordinator() const { return m_coordinator; }
    NSUndoManager& undoManager() { return m_undoManager; }

    // Changing.

    /// A new record with the entity's default values. Throws std::out_of_range for an unknown
    /// entity.
    NSManagedObject& insertNewObjectForEntityForName(std::string_view entityName);
    /// Deletes the record and follows the delete rules of its relationships. Does nothing for a
    /// record that is deleted already; throws std::invalid_argument for another context's record.
    void deleteObject(NSManagedObject& record);
    /// Hands the changes made since the last call to the undo manager and announces them
    /// (objectsDidChange()). It runs by itself at the end of each event, before a save and before
    /// an undo group opens or closes.
    void processPendingChanges();

    bool hasChanges() const;
    std::vector<NSManagedObject*> insertedObjects() const;
    std::vector<NSManagedObject*> updatedObjects() const;
    std::vector<NSManagedObject*> deletedObjects() const;

    // Saving.

    /// Lets changed records validate themselves, save those that undo or redo put back as they
    /// were; then writes all changes in one transaction. On failure throws NSError: the file is as
    /// it was, and every change is still here.
    void save();
    /// Whether the latest save failed: what somebody wanted to have saved is still unsaved.
    bool didLastSaveFail() const { return m_didLastSaveFail; }

    void objectDidBeginEditing(NSEditor& editor);
    void objectDidEndEditing(NSEditor& editor);
    /// Asks every editor at work to hand over what was typed. False when one cannot.
    bool commitEditing();

    // Asking. These throw NSError when the file cannot be read, std::out_of_range for an unknown
    // entity.

    /// The records as this context has them: unsaved new ones are there, unsaved deletions not.
    /// Saved records come in the order of their keys, new ones last.
    std::vector<NSManagedObject*> executeFetchRequest(const NSFetchRequest& request);
    /// How many records executeFetchRequest() would answer.
    std::size_t countForFetchRequest(const NSFetchRequest& request);
    /// Whether it would answer any. Does not count them.
    bool hasObjectsForFetchRequest(const NSFetchRequest& request);
    /// The result of a fetch for values instead of records: one row, by name. The file computes
    /// them, so unsaved changes are not seen; a value over no records is absent.
    std::map<std::string, PropertyValue>
    executeDictionaryFetchRequest(const NSFetchRequest& request,
                                  const std::vector<NSExpressionDescription>& propertiesToFetch);
    /// The member of an owner's to-many relationship with the largest value of an attribute; one
    /// without the value only when no member has one. Null when there are no members. Costs one
    /// look into an index while the members have not been read.
    NSManagedObject* relatedObjectWithMaximum(const NSManagedObject& owner,
                                              std::string_view toManyKey,
                                              std::string_view attributeKey);
    /// The record with this key; null when there is none.
    NSManagedObject* objectWithID(std::string_view entityName, std::int64_t id);

    /// Keeps the file from changing while the answer is alive, and makes many small reads cheaper.
    ReadTransaction readTransaction();

    /// Throws std::logic_error when a relationship and its inverse disagree, or a deleted record
    /// can still be reached. For tests.
    void checkInvariants() const;

Q_SIGNALS:
    /// What changed since the last time. Records may be changed in response.
    void objectsDidChange(const ObjectChanges& changes);
    /// A save succeeded: the context has no changes.
    void didSave();
    /// A save failed, and is about to throw the same error.
    void didFailToSave(const NSError& error);

private:
    friend class NSManagedObject;
    friend class RecordTable;

    /// What is new and what is gone since the last save.
    struct UnsavedCount
    {
        std::size_t inserted = 0;
        std::size_t deleted = 0;
    };
    UnsavedCount countUnsaved(const NSEntityDescription& entity) const;

    SQLiteStore& store() const;
    RecordTable& table(const NSEntityDescription& entity) const;
    KeyValueObserverList& observersOf(const NSManagedObject& record)
    {
        return m_observers[&record];
    }

    // What records report before they change.
    void willChangeAttribute(NSManagedObject& record, std::size_t attribute,
                             PropertyValue oldValue);
    void changeTarget(NSManagedObject& record, const NSRelationshipDescription& toOne,
                      NSManagedObject* target);

    std::vector<NSManagedObject*>& members(NSManagedObject& owner,
                                           const NSRelationshipDescription& toMany) const;
    void markChanged(NSManagedObject& record, std::size_t property);
    void touch(NSManagedObject& record);
    void logStep(ChangeLog::value_type step);
    void setDeleted(NSManagedObject& record, bool isDeleted);
    void processLog(ChangeLog log);
    void takeBack(const ChangeLog& log);
    void writeChanges();
    bool validateEditedObjects();
    template <typename Predicate>
    std::vector<NSManagedObject*> touchedWhere(Predicate predicate) const;

    NSPersistentStoreCoordinator& m_coordinator;
    std::vector<std::unique_ptr<RecordTable>> m_tables;
    std::unordered_map<const NSManagedObject*, KeyValueObserverList> m_observers;
    std::vector<NSManagedObject*> m_touched;
    std::vector<NSEditor*> m_editors;
    ChangeLog m_log;
    bool m_isValidating = false;
    bool m_isTakingBack = false;
    bool m_didLastSaveFail = false;
    bool m_isProcessingScheduled = false;
    NSUndoManager m_undoManager;
};
