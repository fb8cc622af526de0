#pragma once

#include <memory>

class Connection;

namespace SQLite {
class Transaction;
}

/// While it lives, all statements read one state of the file, which is locked only once. Within a
/// Transaction it does nothing, because that one holds the lock.
class ReadTransaction {
public:
    explicit ReadTransaction(Connection& connection);
    ~ReadTransaction();
    ReadTransaction(const ReadTransaction&) = delete;
    ReadTransaction& operator=(const ReadTransaction&) = delete;

private:
    std::unique_ptr<SQLite::Transaction> own_; ///< none within a Transaction
};
