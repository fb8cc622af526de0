#include "store/Transaction.h"

#include "store/Connection.h"
#include "store/StatementCache.h"
#include "store/StoreError.h"

Transaction::Transaction(Connection& connection)
    : connection_(connection) {
    Run("BEGIN IMMEDIATE");
    open_ = true;
}

/// A failure that brought us here may have rolled everything back already.
Transaction::~Transaction() {
    if (!open_)
        return;
    try {
        Run("ROLLBACK");
    } catch (const RuntimeError&) {
    }
}

void Transaction::Commit() {
    Run("COMMIT");
    open_ = false;
}

void Transaction::Run(const char* command) {
    connection_.Statements().Command(QString::fromLatin1(command)).Step();
}
