#pragma once

class SQLiteStore;

/// Reads between its making and its end see one state of the file, and no other program changes it
/// meanwhile. They nest. Making one throws NSError when another program keeps the file locked.
class [[nodiscard]] ReadTransaction
{
public:
    explicit ReadTransaction(SQLiteStore& store);
    ReadTransaction(const ReadTransaction&) = delete;
    ReadTransaction& operator=(const ReadTransaction&) = delete;
    ~ReadTransaction();

private:
    SQLiteStore& m_store;
};
