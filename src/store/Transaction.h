#pragma once

class Connection;

/// Writes that belong together: all of them are there after Commit, none where the routine ends
/// before it, by whatever way, a kill included. One at a time on a connection.
class Transaction {
public:
    explicit Transaction(Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void Commit();

private:
    void Run(const char* command);

    Connection& connection_;
    bool open_ = false;
};
