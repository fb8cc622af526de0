#pragma once

#include <memory>

class Connection;

/// Changes that are kept together or not at all. Without a Commit, the destructor takes them back.
/// It covers the files that are open together with the connection. While it is open, each `Update`
/// and each `Delete` of a Recordset is a part of it.
class Transaction {
public:
    /// Fails if another process writes.
    explicit Transaction(Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void Commit();

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};
