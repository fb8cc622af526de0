#pragma once

#include "exchange/Config.h"
#include "exchange/Router.h"
#include "exchange/Shares.h"
#include "exchange/Turns.h"
#include "exchange/Visitor.h"
#include "exchange/Workers.h"

#include <boost/asio/awaitable.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>

#include <list>
#include <map>
#include <memory>
#include <thread>

namespace exchange {

class Conversation;

/// The connections of the server. One thread holds them all: each is a coroutine that waits for its
/// client, so a client that is slow, silent or endless holds up nobody but itself. What may take
/// time is done by the workers.
class Front {
public:
    using Executor = boost::asio::io_context::executor_type;
    using Socket = boost::asio::basic_stream_socket<boost::asio::ip::tcp, Executor>;
    template <class T> using Task = boost::asio::awaitable<T, Executor>;

    Front(const Config& config, const Router& router, const Visitors& visitors);
    ~Front();
    Front(const Front&) = delete;
    Front& operator=(const Front&) = delete;

    /// Fails with ConfigError if it cannot listen at the address. Port 0 takes a free port.
    void Open();
    int Port() const { return port_; }
    void Start();
    /// Accepts no more connections, finishes the running requests, and closes.
    void Stop();

private:
    friend class Conversation;
    using Acceptor = boost::asio::basic_socket_acceptor<boost::asio::ip::tcp, Executor>;
    using Timer = Turns::Timer;

    Task<void> Accept();
    bool AcceptSome();
    Task<void> TellAlive();
    void Admit(Socket socket);
    bool HasPlaceFor(const Visitor& visitor);
    bool TakePlaceFrom(const std::string& network);
    bool TakeBodyRoom(const Conversation& taker, size_t bytes);
    void EndAll();
    void EndIfEmpty();

    const Config& config_;
    const Router& router_;
    const Visitors& visitors_;
    bool stopping_ = false;
    int port_ = 0;
    std::list<Conversation*> conversations_; ///< oldest first
    size_t turnedAway_ = 0;
    Shares connections_;
    Shares bodies_;
    Turns bodyTurns_;
    boost::asio::io_context io_{1};
    Acceptor acceptor_{io_.get_executor()};
    Timer pause_{io_.get_executor()};
    Timer alive_{io_.get_executor()};
    Timer end_{io_.get_executor()};
    Workers workers_;
    Workers watch_{1}; ///< answers /ready even when all workers are busy
    std::thread thread_;
};

} // namespace exchange
