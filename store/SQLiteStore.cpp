#include "store/SQLiteStore.h"

#include "foundation/Log.h"
#include "store/NSError.h"
#include "store/NSManagedObject.h"
#include "store/StoreFile.h"
#include "store/StoreSchema.h"

#include <QFileInfo>
#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <sqlite3.h>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace {

/// How long another program's short visit to the file (a backup, say) is waited out.
constexpr int busyTimeoutMilliseconds = 1000;

/// Up to this size a file is checked from end to end when it is opened: some ten thousand
/// statements, and less than ten milliseconds.
constexpr qint64 fullCheckSize = qint64(1) << 20;
/// Up to this size its structure is, without comparing tables and indexes. Beyond, that would keep
/// the window waiting; SQLite then reports damage when it meets it.
constexpr qint64 quickCheckSize = qint64(4) << 20;

/// The range of numbers in SQLite's ordering: it leaves out texts, which come after all numbers,
/// and the infinities.
constexpr double largestNumber = std::numeric_limits<double>::max();

std::pair<double, double> readableRange(NSAttributeType type)
{
    if (type == NSAttributeType::Date) {
        return {Instant::earliest().secondsSince1970(), Instant::latest().secondsSince1970()};
    }
    return {-largestNumber, largestNumber};
}

/// What a failure of SQLite means to a person: in a sentence about the file, and in a few words.
struct FailureText
{
    const char* sentence;
    const char* brief;
};

FailureText failureText(int code)
{
    switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {QT_TRANSLATE_NOOP("NSError", "The data file “%1” is in use by another program."),
                QT_TRANSLATE_NOOP("NSError", "the data file is in use by another program")};
    case SQLITE_CORRUPT:
        return {QT_TRANSLATE_NOOP("NSError", "The data file “%1” is damaged."),
                QT_TRANSLATE_NOOP("NSError", "the data file is damaged")};
    case SQLITE_NOTADB:
        return {QT_TRANSLATE_NOOP("NSError", "The file “%1” is not a Corvane data file."),
                QT_TRANSLATE_NOOP("NSError", "the file is not a Corvane data file")};
    case SQLITE_FULL:
        return {
            QT_TRANSLATE_NOOP("NSError", "There is no room left to save to the data file “%1”."),
            QT_TRANSLATE_NOOP("NSError", "the disk is full")};
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return {QT_TRANSLATE_NOOP("NSError", "The data file “%1” cannot be written."),
                QT_TRANSLATE_NOOP("NSError", "the data file cannot be written")};
    case SQLITE_CANTOPEN:
        return {QT_TRANSLATE_NOOP("NSError", "The data file “%1” could not be opened."),
                QT_TRANSLATE_NOOP("NSError", "the data file could not be opened")};
    default:
        return {QT_TRANSLATE_NOOP("NSError", "The data file “%1” could not be read or written."),
                QT_TRANSLATE_NOOP("NSError", "the data file could not be written")};
    }
}

NSError storeError(const QString& fileName, int code)
{
    const auto text = failureText(code);
    return {QStringLiteral("NSSQLiteErrorDomain"), code, ErrorText(text.sentence, fileName),
            ErrorText(QT_TRANSLATE_NOOP("NSError", "SQLite reports: %1."),
                      QString::fromUtf8(sqlite3_errstr(code))),
            ErrorText(text.brief)};
}

std::optional<double> finiteNumber(const SQLite::Column& column)
{
    if (!column.isFloat() && !column.isInteger()) {
        return std::nullopt;
    }
    const double number = column.getDouble();
    return std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::string_view textOf(const SQLite::Column& column)
{
    const auto* const text = column.getText();
    return {text, static_cast<std::size_t>(column.getBytes())};
}

PropertyValue readValue(const SQLite::Column& column, NSAttributeType type)
{
    switch (type) {
    case NSAttributeType::String: {
        if (!column.isText()) {
            return {};
        }
        const auto text = textOf(column);
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
    case NSAttributeType::Decimal:
        // Whole and broken numbers alike are kept as text by a column of this type.
        return column.isText() ? propertyValue(NSDecimalNumber::fromText(textOf(column)))
                               : PropertyValue();
    case NSAttributeType::Date: {
        const auto seconds = finiteNumber(column);
        const bool isDate = seconds && Instant(*seconds).isSupported();
        return isDate ? PropertyValue(Instant(*seconds)) : PropertyValue();
    }
    case NSAttributeType::Double:
        return propertyValue(finiteNumber(column));
    }
    return {};
}

void bindValue(SQLite::Statement& statement, int parameter, const PropertyValue& value)
{
    struct Binder
    {
        SQLite::Statement& statement;
        int parameter;

        void operator()(std::monostate /*absent*/) const { statement.bind(parameter); }
        void operator()(const QString& text) const
        {
            statement.bind(parameter, text.toStdString());
        }
        void operator()(Instant date) const { statement.bind(parameter, date.secondsSince1970()); }
        void operator()(const NSDecimalNumber& decimal) const
        {
            statement.bind(parameter, decimal.toPlainText());
        }
        void operator()(double number) const { statement.bind(parameter, number); }
    };
    std::visit(Binder{statement, parameter}, value);
}

} // namespace

std::int64_t StoreRow::recordID() const
{
    return m_statement.getColumn(0).getInt64();
}

PropertyValue StoreRow::attribute(std::size_t index) const
{
    const auto& attribute = m_entity.attributes()[index];
    return attribute.column == 0
               ? PropertyValue()
               : readValue(m_statement.getColumn(attribute.column), attribute.attributeType);
}

std::optional<std::int64_t> StoreRow::target(const NSRelationshipDescription& relationship) const
{
    if (relationship.column == 0) {
        return std::nullopt;
    }
    const auto column = m_statement.getColumn(relationship.column);
    return column.isInteger() ? std::optional(column.getInt64()) : std::nullopt;
}

struct SQLiteStore::Prepared
{
    SQLite::Statement statement;
    bool isInUse = false;
};

/// A prepared statement for one use. A statement that is in use already (a query inside the handler
/// of the same query) is prepared a second time.
class SQLiteStore::Lease
{
public:
    explicit Lease(Prepared& kept)
        : m_prepared(&kept)
    {
        m_prepared->statement.clearBindings();
        m_prepared->isInUse = true;
    }
    explicit Lease(std::unique_ptr<Prepared> own)
        : m_prepared(own.get())
        , m_own(std::move(own))
    {}
    Lease(const Lease&) = delete;
    Lease& operator=(const Lease&) = delete;
    ~Lease()
    {
        // Repeats what the last step reported, which was dealt with then.
        m_prepared->statement.tryReset();
        m_prepared->isInUse = false;
    }

    SQLite::Statement& operator*() { return m_prepared->statement; }
    SQLite::Statement* operator->() { return &m_prepared->statement; }

private:
    Prepared* m_prepared;
    std::unique_ptr<Prepared> m_own;
};

/// Runs `operation`, and tells what SQLite has against it in the program's own words.
template <typename Operation>
auto SQLiteStore::guarded(Operation operation)
{
    try {
        return operation();
    } catch (const SQLite::Exception& exception) {
        throw storeError(m_fileName, exception.getExtendedErrorCode());
    }
}

SQLiteStore::Lease SQLiteStore::statement(const std::string& sql)
{
    auto& kept = m_statements[sql];
    if (kept && kept->isInUse) {
        return Lease(std::make_unique<Prepared>(Prepared{SQLite::Statement(*m_database, sql)}));
    }
    if (!kept) {
        kept = std::make_unique<Prepared>(Prepared{SQLite::Statement(*m_database, sql)});
    }
    return Lease(*kept);
}

void SQLiteStore::execute(const std::string& sql)
{
    m_database->exec(sql);
}

QString SQLiteStore::libraryVersion()
{
    return QString::fromLatin1(sqlite3_libversion());
}

SQLiteStore::SQLiteStore(const NSManagedObjectModel& model, const QString& path)
    : m_fileName(QFileInfo(path).fileName())
{
    const auto content = StoreFile::prepare(path, StoreSchema::formatVersion(model));
    guarded([&] {
        m_database = std::make_unique<SQLite::Database>(path.toStdString(), SQLite::OPEN_READWRITE,
                                                        busyTimeoutMilliseconds);
        sqlite3_extended_result_codes(m_database->getHandle(), 1);
        sqlite3_db_config(m_database->getHandle(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
        execute("PRAGMA trusted_schema = OFF");
        execute("PRAGMA cell_size_check = ON");
        execute("PRAGMA foreign_keys = ON");
        execute("PRAGMA synchronous = EXTRA");
        // Also shows whether the file may be written at all; nothing is yet.
        SQLite::Transaction transaction(*m_database, SQLite::TransactionBehavior::IMMEDIATE);
        // A left-over journal is played back by now: of a store whose making was broken off,
        // nothing remains.
        if (content == StoreFile::Content::Empty || QFileInfo(path).size() == 0) {
            createTables(model);
            transaction.commit();
        } else {
            checkContent(model, QFileInfo(path).size());
        }
    });
}

SQLiteStore::~SQLiteStore() = default;

void SQLiteStore::createTables(const NSManagedObjectModel& model)
{
    for (const auto& sql : StoreSchema::creationStatements(model)) {
        execute(sql);
    }
    SQLite::Statement metadata(*m_database, "INSERT INTO \"Metadata\" VALUES ('modelVersion', ?)");
    metadata.bind(1, model.versionIdentifier().toStdString());
    metadata.exec();
}

void SQLiteStore::checkContent(const NSManagedObjectModel& model, qint64 fileSize)
{
    if (fileSize <= quickCheckSize) {
        SQLite::Statement check(*m_database, fileSize <= fullCheckSize ? "PRAGMA integrity_check(1)"
                                                                       : "PRAGMA quick_check(1)");
        if (!check.executeStep() || check.getColumn(0).getString() != "ok") {
            throw storeError(m_fileName, SQLITE_CORRUPT);
        }
    }
    const auto versionError = [this] {
        return NSError(QStringLiteral("NSPersistentStoreErrorDomain"), 3,
                       ErrorText(QT_TRANSLATE_NOOP(
                                     "NSError", "The data file “%1” was made by another version."),
                                 m_fileName));
    };
    if (!m_database->tableExists("Metadata")) {
        throw versionError();
    }
    SQLite::Statement metadata(*m_database,
                               "SELECT value FROM \"Metadata\" WHERE key = 'modelVersion'");
    if (!metadata.executeStep() ||
        metadata.getColumn(0).getString() != model.versionIdentifier().toStdString()) {
        throw versionError();
    }
    for (const auto& entity : model.entities()) {
        auto missing = StoreSchema::columns(*entity);
        SQLite::Statement info(*m_database,
                               "PRAGMA table_info(" + StoreSchema::quoted(entity->name()) + ')');
        while (info.executeStep()) {
            std::erase(missing, info.getColumn(1).getString());
        }
        if (!missing.empty()) {
            throw versionError();
        }
    }
}

std::size_t SQLiteStore::countRows(const NSEntityDescription& entity)
{
    return guarded([&] {
        auto query = statement("SELECT count(*) FROM " + StoreSchema::quoted(entity.name()));
        query->executeStep();
        return static_cast<std::size_t>(query->getColumn(0).getInt64());
    });
}

bool SQLiteStore::hasMoreRowsThan(std::size_t count, const NSEntityDescription& entity)
{
    return guarded([&] {
        auto query =
            statement("SELECT 1 FROM " + StoreSchema::quoted(entity.name()) + " LIMIT 1 OFFSET ?");
        query->bind(1, static_cast<std::int64_t>(count));
        return query->executeStep();
    });
}

bool SQLiteStore::hasRow(const NSEntityDescription& entity, std::int64_t id)
{
    return guarded([&] {
        auto query =
            statement("SELECT 1 FROM " + StoreSchema::quoted(entity.name()) + " WHERE id = ?");
        query->bind(1, id);
        return query->executeStep();
    });
}

bool SQLiteStore::fetchRow(const NSEntityDescription& entity, std::int64_t id,
                           const RowHandler& handler)
{
    return guarded([&] {
        auto query = statement(StoreSchema::selectRows(entity) + " WHERE id = ?");
        query->bind(1, id);
        if (!query->executeStep()) {
            return false;
        }
        handler(StoreRow(entity, *query));
        return true;
    });
}

void SQLiteStore::fetchRows(const NSEntityDescription& entity, const RowHandler& handler)
{
    guarded([&] {
        auto query = statement(StoreSchema::selectRows(entity) + " ORDER BY id");
        while (query->executeStep()) {
            handler(StoreRow(entity, *query));
        }
    });
}

void SQLiteStore::fetchReferringRows(const NSEntityDescription& entity,
                                     const NSRelationshipDescription& toOne, std::int64_t targetID,
                                     const RowHandler& handler)
{
    guarded([&] {
        auto query = statement(StoreSchema::selectRows(entity) + " WHERE " +
                               StoreSchema::quoted(toOne.name) + " = ?");
        query->bind(1, targetID);
        while (query->executeStep()) {
            handler(StoreRow(entity, *query));
        }
    });
}

void SQLiteStore::fetchReferringRowWithMaximum(const NSEntityDescription& entity,
                                               const NSRelationshipDescription& toOne,
                                               std::int64_t targetID, std::size_t attribute,
                                               const RowHandler& handler)
{
    guarded([&] {
        const auto& description = entity.attributes()[attribute];
        const auto column = StoreSchema::quoted(description.name);
        auto query = statement(StoreSchema::selectRows(entity) + " WHERE " +
                               StoreSchema::quoted(toOne.name) + " = ? AND " + column +
                               " BETWEEN ? AND ? ORDER BY " + column + " DESC LIMIT 1");
        const auto [smallest, largest] = readableRange(description.attributeType);
        query->bind(1, targetID);
        query->bind(2, smallest);
        query->bind(3, largest);
        if (query->executeStep()) {
            handler(StoreRow(entity, *query));
        }
    });
}

PropertyValue SQLiteStore::evaluate(const NSEntityDescription& entity,
                                    const NSExpressionDescription& expression)
{
    constexpr std::string_view minimum = "@min.";
    constexpr std::string_view maximum = "@max.";
    const std::string_view keyPath = expression.keyPath;
    const bool isMinimum = keyPath.starts_with(minimum);
    const auto attribute = isMinimum || keyPath.starts_with(maximum)
                               ? entity.attributeIndex(keyPath.substr(minimum.size()))
                               : std::nullopt;
    if (!attribute || entity.attributes()[*attribute].column == 0) {
        throw std::invalid_argument("no value can be computed from " + expression.keyPath);
    }
    return guarded([&]() -> PropertyValue {
        const auto column = StoreSchema::quoted(entity.attributes()[*attribute].name);
        auto query = statement("SELECT " + column + " FROM " + StoreSchema::quoted(entity.name()) +
                               " WHERE " + column + " BETWEEN ? AND ? ORDER BY " + column +
                               (isMinimum ? " ASC" : " DESC") + " LIMIT 1");
        const auto [smallest, largest] = readableRange(expression.expressionResultType);
        query->bind(1, smallest);
        query->bind(2, largest);
        return query->executeStep()
                   ? readValue(query->getColumn(0), expression.expressionResultType)
                   : PropertyValue();
    });
}

std::vector<std::int64_t> SQLiteStore::save(const StoreChanges& changes)
{
    return guarded([&] {
        endLeftTransaction();
        SQLite::Transaction transaction(*m_database, SQLite::TransactionBehavior::IMMEDIATE);
        // Records may refer to each other in any order; the references are checked at the end.
        execute("PRAGMA defer_foreign_keys = ON");
        std::vector<std::int64_t> ids;
        NewIDs newIDs;
        for (const auto* const record : changes.inserted) {
            // A record that comes back has its own key, unless another program took it meanwhile.
            const auto ownID = record->recordID();
            if (ownID && !hasRow(record->entity(), *ownID)) {
                ids.push_back(*ownID);
            } else {
                ids.push_back(nextID(record->entity()));
                newIDs.emplace(record, ids.back());
            }
        }
        Witness witness;
        for (const auto* const record : changes.deleted) {
            if (deleteRow(*record)) {
                witness = {&record->entity(), *record->recordID(), false};
            }
        }
        for (std::size_t i = 0; i < ids.size(); ++i) {
            insertRow(*changes.inserted[i], ids[i], newIDs);
            witness = {&changes.inserted[i]->entity(), ids[i], true};
        }
        for (const auto* const record : changes.updated) {
            updateRow(*record, newIDs);
        }
        try {
            transaction.commit();
        } catch (const SQLite::Exception& exception) {
            if (!isCommitted(witness)) {
                throw;
            }
            Log::line(QString(u"The data file was saved, in spite of: " +
                              QString::fromUtf8(exception.what())));
        }
        return ids;
    });
}

bool SQLiteStore::isCommitted(const Witness& witness)
{
    // While the transaction is open, the row would be seen whatever becomes of it.
    return witness.entity && !isInTransaction() &&
           hasRow(*witness.entity, witness.id) == witness.isPresent;
}

bool SQLiteStore::isInTransaction() const
{
    return sqlite3_get_autocommit(m_database->getHandle()) == 0;
}

void SQLiteStore::endLeftTransaction()
{
    if (m_readDepth == 0 && isInTransaction()) {
        execute("ROLLBACK");
    }
}

std::int64_t SQLiteStore::nextID(const NSEntityDescription& entity)
{
    auto query = statement("SELECT max(id) FROM " + StoreSchema::quoted(entity.name()));
    query->executeStep();
    auto& lastID = m_lastIDs[&entity];
    lastID = std::max(lastID, query->getColumn(0).getInt64());
    if (lastID == std::numeric_limits<std::int64_t>::max()) {
        throw storeError(m_fileName, SQLITE_FULL);
    }
    return ++lastID;
}

void SQLiteStore::insertRow(const NSManagedObject& record, std::int64_t id, const NewIDs& newIDs)
{
    auto insertion = statement(StoreSchema::insertRow(record.entity()));
    insertion->bind(1, id);
    for (const auto& relationship : record.entity().relationships()) {
        if (relationship.column != 0) {
            bindTarget(*insertion, relationship.column + 1, record.storedTarget(relationship),
                       newIDs);
        }
    }
    for (std::size_t i = 0; i < record.entity().attributes().size(); ++i) {
        const auto column = record.entity().attributes()[i].column;
        if (column != 0) {
            bindValue(*insertion, column + 1, record.storedValue(i));
        }
    }
    insertion->exec();
}

void SQLiteStore::updateRow(const NSManagedObject& record, const NewIDs& newIDs)
{
    // Only what changed is written: a value that this program could not read is not its to lose.
    const auto hasChanged = [&record](std::size_t property) {
        return (record.m_changed >> property & 1U) != 0;
    };
    const auto attributes = record.entity().attributes();
    std::vector<int> columns;
    std::vector<std::function<void(SQLite::Statement&, int)>> bindings;
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        if (hasChanged(i)) {
            columns.push_back(attributes[i].column);
            bindings.emplace_back([&record, i](SQLite::Statement& update, int parameter) {
                bindValue(update, parameter, record.storedValue(i));
            });
        }
    }
    for (const auto& relationship : record.entity().relationships()) {
        if (hasChanged(record.propertyNumber(relationship))) {
            columns.push_back(relationship.column);
            bindings.emplace_back(
                [&record, &relationship, &newIDs](SQLite::Statement& update, int parameter) {
                    bindTarget(update, parameter, record.storedTarget(relationship), newIDs);
                });
        }
    }
    auto update = statement(StoreSchema::updateRow(record.entity(), columns));
    int parameter = 0;
    for (const auto& bind : bindings) {
        bind(*update, ++parameter);
    }
    update->bind(++parameter, *record.recordID());
    update->exec();
}

bool SQLiteStore::deleteRow(const NSManagedObject& record)
{
    auto deletion =
        statement("DELETE FROM " + StoreSchema::quoted(record.entity().name()) + " WHERE id = ?");
    deletion->bind(1, *record.recordID());
    auto& lastID = m_lastIDs[&record.entity()];
    lastID = std::max(lastID, *record.recordID());
    return deletion->exec() != 0;
}

void SQLiteStore::bindTarget(SQLite::Statement& statement, int parameter,
                             const NSManagedObject* target, const NewIDs& newIDs)
{
    if (!target) {
        statement.bind(parameter);
        return;
    }
    const auto newID = newIDs.find(target);
    statement.bind(parameter, newID == newIDs.end() ? *target->recordID() : newID->second);
}

void SQLiteStore::beginRead()
{
    if (m_readDepth == 0) {
        guarded([this] {
            endLeftTransaction();
            execute("BEGIN");
            // The first look takes the lock: whoever waits for it waits once, here.
            if (m_database->tryExec("SELECT count(*) FROM sqlite_schema") != SQLITE_OK) {
                const int code = m_database->getExtendedErrorCode();
                m_database->tryExec("ROLLBACK");
                throw storeError(m_fileName, code);
            }
        });
    }
    ++m_readDepth;
}

void SQLiteStore::endRead() noexcept
{
    if (--m_readDepth == 0) {
        // Nothing was written: there is nothing that could be lost. One that stays open for lack
        // of memory is ended before the next.
        m_database->tryExec("COMMIT");
    }
}
