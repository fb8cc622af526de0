#pragma once

#include <memory>

class Connection;

namespace SQLite {
class Transaction;
}

/// Statements that read one state of the file, which is locked once for all of them. Within a
/// Transaction they are a part of that one.
class ReadTransaction {
public:
    explicit ReadTransaction(Connection& connection);
    ~ReadTransaction();
    ReadTransaction(const ReadTransaction&) = delete;
    ReadTransaction& operator=(const ReadTransaction&) = delete;

private:
    std::unique_ptr<SQLite::Transaction> own_; ///< none within a Transaction
};
