#include "exchange/Front.h"

#include "exchange/Conversation.h"
#include "exchange/Supervisor.h"

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/use_awaitable.hpp>

#include <algorithm>

namespace exchange {
namespace {
namespace asio = boost::asio;
using asio::ip::tcp;
using Error = boost::system::error_code;

constexpr asio::use_awaitable_t<Front::Executor> Await;
constexpr int Backlog = 1024;
constexpr int AcceptedAtOnce = 32;
constexpr size_t MostTurnedAway = 64;
constexpr std::chrono::milliseconds OutOfDescriptors(50);
constexpr std::chrono::seconds ToEnd(30);

std::string NameOf(const tcp::endpoint& endpoint) {
    const auto text = endpoint.address().to_string();
    const auto address = NetworkAddress::Read(text);
    return address ? address->Written() : text;
}
} // namespace

Front::Front(const Config& config, const Router& router, const Visitors& visitors)
    : config_(config)
    , router_(router)
    , visitors_(visitors)
    , workers_(config.workers) {}

Front::~Front() {
    Stop();
}

void Front::Open() {
    Error error;
    const auto found = tcp::resolver(io_).resolve(config_.address, std::to_string(config_.port),
                                                  tcp::resolver::passive, error);
    if (error || found.empty())
        throw ConfigError("\"" + config_.address + "\" is not an address of this machine");
    const tcp::endpoint endpoint = *found.begin();
    acceptor_.open(endpoint.protocol());
    acceptor_.set_option(tcp::acceptor::reuse_address(true));
    if (acceptor_.bind(endpoint, error) || acceptor_.listen(Backlog, error))
        throw ConfigError("cannot listen at " + config_.address + " port " +
                          std::to_string(config_.port) + ": " + error.message());
    acceptor_.non_blocking(true);
    port_ = acceptor_.local_endpoint().port();
}

void Front::Start() {
    asio::co_spawn(io_.get_executor(), Accept(), asio::detached);
    asio::co_spawn(io_.get_executor(), TellAlive(), asio::detached);
    thread_ = std::thread([this] { io_.run(); });
}

void Front::Stop() {
    if (!thread_.joinable())
        return;
    asio::post(io_, [this] { EndAll(); });
    thread_.join();
}

/// Closes the connections whose request has not arrived completely; the others get their reply.
void Front::EndAll() {
    Error ignored;
    stopping_ = true;
    acceptor_.close(ignored);
    pause_.cancel();
    alive_.cancel();
    const auto all = conversations_;
    for (auto* conversation : all)
        if (conversation->Now() <= Conversation::State::Receiving)
            conversation->End();
    end_.expires_after(ToEnd);
    end_.async_wait([this](const Error& error) {
        if (!error)
            io_.stop();
    });
    EndIfEmpty();
}

void Front::EndIfEmpty() {
    if (stopping_ && conversations_.empty())
        end_.cancel();
}

Front::Task<void> Front::Accept() {
    while (!stopping_) {
        Error ignored;
        co_await acceptor_.async_wait(Acceptor::wait_read, asio::redirect_error(Await, ignored));
        if (AcceptSome() || stopping_)
            continue;
        pause_.expires_after(OutOfDescriptors);
        co_await pause_.async_wait(asio::redirect_error(Await, ignored));
    }
}

/// Accepts several waiting clients at once. If each waited for its own turn behind the connections
/// that send, the last one would wait for seconds. False if there is no descriptor for the next
/// one.
bool Front::AcceptSome() {
    for (int i = 0; i < AcceptedAtOnce; ++i) {
        Error error;
        Socket socket(io_.get_executor());
        acceptor_.accept(socket, error);
        if (!error)
            Admit(std::move(socket));
        else if (error != asio::error::connection_aborted)
            return error == asio::error::would_block;
    }
    return true;
}

/// Runs on the thread of the connections, so it stops when that thread hangs.
Front::Task<void> Front::TellAlive() {
    const auto interval = Supervisor::Interval();
    while (interval && !stopping_) {
        Error ignored;
        Supervisor::TellAlive();
        alive_.expires_after(*interval / 2);
        co_await alive_.async_wait(asio::redirect_error(Await, ignored));
    }
}

void Front::Admit(Socket socket) {
    Error error;
    const auto peer = NameOf(socket.remote_endpoint(error));
    socket.set_option(tcp::no_delay(true), error);
    const bool full = !HasPlaceFor(visitors_.IsProxy(peer) ? Visitor{} : visitors_.At(peer));
    if (full && turnedAway_ >= MostTurnedAway)
        return;
    auto conversation = std::make_shared<Conversation>(*this, std::move(socket), peer, full);
    asio::co_spawn(io_.get_executor(), Conversation::Run(std::move(conversation)), asio::detached);
}

bool Front::HasPlaceFor(const Visitor& visitor) {
    const auto home = visitor.networks.empty() ? std::string() : visitor.networks.front();
    if (connections_.Of(home) >= config_.connections_per_client)
        return false;
    if (conversations_.size() - turnedAway_ < static_cast<size_t>(config_.connections))
        return true;
    const auto greatest = connections_.Greatest();
    return greatest != home && TakePlaceFrom(greatest);
}

/// Ends the connection of a network that matters least: an idle one before a busy one, an old one
/// before a new one. Never one whose request is being answered.
bool Front::TakePlaceFrom(const std::string& network) {
    const bool onlyOne = connections_.Of(network) <= 1;
    Conversation* chosen = nullptr;
    for (auto* conversation : conversations_) {
        const auto state = conversation->Now();
        const auto& networks = conversation->Holder().networks;
        if (networks.empty() || networks.front() != network ||
            state == Conversation::State::Answering ||
            (onlyOne && state != Conversation::State::Waiting))
            continue;
        if (!chosen || state < chosen->Now())
            chosen = conversation;
    }
    if (chosen)
        chosen->End();
    return chosen != nullptr;
}

/// Makes room for more of a body. If necessary, refuses another one that is still arriving: the
/// largest of the network that holds most.
bool Front::TakeBodyRoom(const Conversation& taker, size_t bytes) {
    while (bodies_.Sum() + static_cast<long long>(bytes) > config_.bodies_bytes) {
        const auto greatest = bodies_.Greatest();
        Conversation* chosen = nullptr;
        for (auto* conversation : conversations_) {
            const auto& networks = conversation->Asker().networks;
            if (conversation->Now() == Conversation::State::Receiving && !networks.empty() &&
                networks.front() == greatest && conversation->BodyHeld() > 0 &&
                (!chosen || conversation->BodyHeld() > chosen->BodyHeld()))
                chosen = conversation;
        }
        if (!chosen || chosen == &taker)
            return false;
        chosen->RefuseBody();
    }
    return true;
}

} // namespace exchange
