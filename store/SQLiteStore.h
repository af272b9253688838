#pragma once

#include "store/NSFetchRequest.h"
#include "store/NSManagedObjectModel.h"
#include "store/PropertyValue.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

class NSManagedObject;

namespace SQLite {
class Database;
class Statement;
} // namespace SQLite

/// One row of an entity's table, as a query stands on it. A value of the wrong type in a column, or
/// one that the program cannot hold exactly, reads as absent.
class StoreRow
{
public:
    StoreRow(const NSEntityDescription& entity, SQLite::Statement& statement)
        : m_entity(entity)
        , m_statement(statement)
    {}

    std::int64_t recordID() const;
    /// The value of the entity's attribute at `index`; absent for a transient one.
    PropertyValue attribute(std::size_t index) const;
    /// The key that a to-one relationship of the entity refers to.
    std::optional<std::int64_t> target(const NSRelationshipDescription& relationship) const;

private:
    const NSEntityDescription& m_entity;
    SQLite::Statement& m_statement;
};

/// What a save writes. The pointers are borrowed.
struct StoreChanges
{
    std::vector<NSManagedObject*> inserted;
    std::vector<NSManagedObject*> updated;
    std::vector<NSManagedObject*> deleted;

    bool isEmpty() const { return inserted.empty() && updated.empty() && deleted.empty(); }
};

/// The SQLite file behind a coordinator: one table per entity, prepared statements kept.
///
/// The file has a rollback journal and every commit is on the disk when save() returns. All
/// operations throw NSError when SQLite reports a failure; values never stand in its text.
class SQLiteStore
{
public:
    using RowHandler = std::function<void(const StoreRow&)>;

    /// The version of SQLite that is in use.
    static QString libraryVersion();

    /// Opens the file at `path`, or makes it. The model must outlive the store.
    SQLiteStore(const NSManagedObjectModel& model, const QString& path);
    ~SQLiteStore();
    SQLiteStore(const SQLiteStore&) = delete;
    SQLiteStore& operator=(const SQLiteStore&) = delete;

    std::size_t countRows(const NSEntityDescription& entity);
    /// Whether there are more rows than `count`; as cheap as that number is small.
    bool hasMoreRowsThan(std::size_t count, const NSEntityDescription& entity);
    bool hasRow(const NSEntityDescription& entity, std::int64_t id);
    /// Whether there is such a row. `handler` is called with it.
    bool fetchRow(const NSEntityDescription& entity, std::int64_t id, const RowHandler& handler);
    /// All rows, in the order of their keys.
    void fetchRows(const NSEntityDescription& entity, const RowHandler& handler);
    /// The rows of `entity` whose `toOne` refers to the record with the key `targetID`.
    void fetchReferringRows(const NSEntityDescription& entity,
                            const NSRelationshipDescription& toOne, std::int64_t targetID,
                            const RowHandler& handler);
    /// The one of those rows with the largest readable value of a date or number attribute, if any.
    void fetchReferringRowWithMaximum(const NSEntityDescription& entity,
                                      const NSRelationshipDescription& toOne, std::int64_t targetID,
                                      std::size_t attribute, const RowHandler& handler);
    /// The smallest or largest readable value of a date or number attribute over all rows; absent
    /// when there is none. Throws std::invalid_argument for an expression that is not understood.
    PropertyValue evaluate(const NSEntityDescription& entity,
                           const NSExpressionDescription& expression);

    /// Writes everything or nothing. Answers the keys of the inserted records, in order: a record
    /// that had one before keeps it.
    std::vector<std::int64_t> save(const StoreChanges& changes);

    void beginRead();
    void endRead() noexcept;

private:
    class Lease;

    Lease statement(const std::string& sql);
    template <typename Operation>
    auto guarded(Operation operation);
    void execute(const std::string& sql);

    void createTables(const NSManagedObjectModel& model);
    void checkContent(const NSManagedObjectModel& model, qint64 fileSize);
    /// Keys that records get by the save under way.
    using NewIDs = std::unordered_map<const NSManagedObject*, std::int64_t>;
    void insertRow(const NSManagedObject& record, std::int64_t id, const NewIDs& newIDs);
    void updateRow(const NSManagedObject& record, const NewIDs& newIDs);
    static void bindTarget(SQLite::Statement& statement, int parameter,
                           const NSManagedObject* target, const NewIDs& newIDs);
    /// Whether the row was there.
    bool deleteRow(const NSManagedObject& record);
    /// A row by which a save is known to have taken effect: there since, or gone. Without an entity
    /// there is none; such a save, of changed values alone, can be repeated.
    struct Witness
    {
        const NSEntityDescription* entity = nullptr;
        std::int64_t id = 0;
        bool isPresent = false;
    };
    /// Whether a commit that reports a failure was carried out all the same: it does so when its
    /// last steps fail, which make it lasting and give the file free.
    bool isCommitted(const Witness& witness);
    bool isInTransaction() const;
    /// Takes back what a transaction left open that could not be ended, for lack of memory.
    void endLeftTransaction();
    std::int64_t nextID(const NSEntityDescription& entity);

    QString m_fileName;
    std::unique_ptr<SQLite::Database> m_database;
    struct Prepared;
    std::unordered_map<std::string, std::unique_ptr<Prepared>> m_statements;
    /// The largest key ever given out, by entity: a key is not used twice while the program runs,
    /// so that undoing a deletion finds its own key free.
    std::unordered_map<const NSEntityDescription*, std::int64_t> m_lastIDs;
    int m_readDepth = 0;
};
