#pragma once

#include <boost/asio/io_context.hpp>
#include <boost/asio/steady_timer.hpp>

#include <chrono>
#include <deque>

namespace exchange {

/// Lets only a few connections at a time read a part of their bodies, in turn. Between two turns
/// the thread serves the others. Otherwise a new client would wait until a thousand bodies were
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
