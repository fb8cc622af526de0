#pragma once

#include <boost/asio/io_context.hpp>
#include <boost/asio/steady_timer.hpp>

#include <chrono>
#include <deque>

namespace exchange {

/// Lets a few connections at a time read a part of their bodies, in turn. Between two turns the
/// thread serves all others. Without this, a new client would wait until a thousand bodies had been
/// read.
class Turns {
public:
    using Timer =
        boost::asio::basic_waitable_timer<std::chrono::steady_clock,
                                          boost::asio::wait_traits<std::chrono::steady_clock>,
                                          boost::asio::io_context::executor_type>;

    void Enter(Timer& bell); ///< it is cancelled when its turn comes
    void Leave(Timer& bell); ///< it waits no more

private:
    void Give();
    void GiveLater();

    std::deque<Timer*> waiting_;
    bool giving_ = false; ///< Give will be called
};

} // namespace exchange
