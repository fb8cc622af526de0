#pragma once

#include "exchange/Connection.h"

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace exchange {

/// The open connections of the process. A lease takes a free one or opens a new one, and gives it
/// back. After a failed statement, it closes this one and all free ones instead, so that the next
/// lease connects anew. A Refusal is not a failure of the database.
class Pool {
public:
    explicit Pool(std::string database)
        : database_(std::move(database)) {}

    class Lease {
    public:
        explicit Lease(Pool& pool);
        ~Lease();
        Lease(const Lease&) = delete;
        Lease& operator=(const Lease&) = delete;
        Connection& operator*() const { return *connection_; }
        Connection* operator->() const { return connection_.get(); }

    private:
        Pool& pool_;
        std::unique_ptr<Connection> connection_;
    };

private:
    std::string database_;
    std::mutex mutex_;
    std::vector<std::unique_ptr<Connection>> free_;
};

} // namespace exchange
