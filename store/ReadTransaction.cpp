#include "store/ReadTransaction.h"

#include "store/SQLiteStore.h"

ReadTransaction::ReadTransaction(SQLiteStore& store)
    : m_store(store)
{
    m_store.beginRead();
}

ReadTransaction::~ReadTransaction()
{
    m_store.endRead();
}
