#include "store/Transaction.h"

#include "store/Connection.h"
#include "store/StoreError.h"

#include <SQLiteCpp/SQLiteCpp.h>

struct Transaction::Impl {
    explicit Impl(Connection& connection)
        : path(connection.Path())
        , transaction(connection.Raw(), SQLite::TransactionBehavior::IMMEDIATE) {}

    QString path;
    SQLite::Transaction transaction;
};

Transaction::Transaction(Connection& connection)
    : impl_(StoreError::Guarded(connection.Path(),
                                [&] { return std::make_unique<Impl>(connection); })) {}

Transaction::~Transaction() = default;

void Transaction::Commit() {
    StoreError::Guarded(impl_->path, [&] { impl_->transaction.commit(); });
}
