#include "exchange/Pool.h"

namespace exchange {

Pool::Lease::Lease(Pool& pool)
    : pool_(pool) {
    {
        const std::lock_guard lock(pool_.mutex_);
        if (!pool_.free_.empty()) {
            connection_ = std::move(pool_.free_.back());
            pool_.free_.pop_back();
        }
    }
    if (!connection_)
        connection_ = std::make_unique<Connection>(pool_.database_);
}

Pool::Lease::~Lease() {
    const std::lock_guard lock(pool_.mutex_);
    if (connection_->Failed())
        pool_.free_.clear();
    else
        pool_.free_.push_back(std::move(connection_));
}

} // namespace exchange
