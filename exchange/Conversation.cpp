#include "exchange/Conversation.h"

#include "exchange/Log.h"
#include "exchange/ReplyHead.h"

#include <boost/asio/post.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/asio/write.hpp>

#include <array>
#include <atomic>

namespace exchange {
namespace {
namespace asio = boost::asio;
using Error = boost::system::error_code;
using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr asio::use_awaitable_t<Front::Executor> Await;
constexpr size_t HeadPortion = size_t{4} * 1024;
constexpr size_t BodyPortion = size_t{16} * 1024;
constexpr milliseconds ToFinish(2000);
constexpr milliseconds ToBeTurnedAway(1000);
constexpr milliseconds ToAnswer(25'000); ///< the program gives up after 30 seconds
constexpr milliseconds ToWatch(900);
} // namespace

/// A request for a worker, and its reply. It outlives a conversation that did not wait for it.
struct Conversation::Errand {
    Request request;
    Router::Match match;
    std::shared_ptr<const Visitor> visitor;
    Reply reply;
    std::atomic<bool> givenUp = false;
    bool done = false;               ///< on the thread of the front
    Conversation* waiting = nullptr; ///< likewise
};

Conversation::Conversation(Front& front, Front::Socket socket, std::string peer, bool turnedAway)
    : front_(front)
    , socket_(std::move(socket))
    , clock_(front.io_.get_executor())
    , woken_(front.io_.get_executor())
    , peer_(std::move(peer))
    , proxy_(front.visitors_.IsProxy(peer_))
    , turnedAway_(turnedAway)
    , holder_(
          std::make_shared<Visitor>(proxy_ || turnedAway ? Visitor{} : front.visitors_.At(peer_)))
    , asker_(holder_)
    , place_(front.conversations_.insert(front.conversations_.end(), this)) {
    Error ignored;
    socket_.non_blocking(true, ignored);
    front_.connections_.Add(*holder_, 1);
    front_.turnedAway_ += turnedAway_;
}

Conversation::~Conversation() {
    Leave();
}

void Conversation::End() {
    Error ignored;
    gone_ = true;
    socket_.close(ignored);
    Leave();
}

void Conversation::Leave() {
    if (std::exchange(left_, true))
        return;
    HoldBody(0);
    front_.bodyTurns_.Leave(woken_);
    front_.connections_.Add(*holder_, -1);
    front_.turnedAway_ -= turnedAway_;
    front_.conversations_.erase(place_);
    front_.EndIfEmpty();
}

void Conversation::RefuseBody() {
    bodyRefused_ = true;
    HoldBody(0);
    StopReceiving();
}

void Conversation::StopReceiving() {
    Error ignored;
    socket_.cancel(ignored);
    front_.bodyTurns_.Leave(woken_);
}

void Conversation::HoldBody(size_t bytes) {
    if (bytes != bodyHeld_)
        front_.bodies_.Add(*asker_,
                           static_cast<long long>(bytes) - static_cast<long long>(bodyHeld_));
    bodyHeld_ = bytes;
}

Front::Task<void> Conversation::Run(std::shared_ptr<Conversation> self) {
    auto& my = *self;
    while (co_await my.ReceiveHead()) {
        auto head = my.TakeHead();
        if (head.status == 0)
            co_await my.ReceiveBody(head);
        if (my.gone_)
            co_return;
        if (head.status == 0)
            co_await my.Answer(head);
        else
            my.Refuse(head);
        const bool close = head.close || head.status != 0 || my.front_.stopping_;
        if (!co_await my.Send(head.request.method != "HEAD", close))
            co_return;
        if (close)
            co_return co_await my.LetFinish();
    }
}

/// False if the client sends no further request.
Front::Task<bool> Conversation::ReceiveHead() {
    const auto forRequest = turnedAway_ ? ToBeTurnedAway : seconds(front_.config_.request_seconds);
    const bool first = deadline_ == Clock::time_point();
    if (arrived_.empty())
        Enter(State::Waiting, first ? forRequest : seconds(front_.config_.idle_seconds));
    else
        Enter(State::Receiving, forRequest);
    while (RequestHead::SizeIn(arrived_) == 0 && arrived_.size() < RequestHead::Largest) {
        if (front_.stopping_)
            co_return false;
        if (!co_await Receive(arrived_, HeadPortion))
            co_return timedOut_ && (turnedAway_ || !arrived_.empty());
        if (state_ == State::Waiting)
            Enter(State::Receiving, forRequest);
    }
    co_return true;
}

Front::Task<bool> Conversation::Receive(std::string& text, size_t most) {
    const auto size = text.size();
    text.resize(size + most);
    Error error;
    const auto count = co_await socket_.async_read_some(asio::buffer(text.data() + size, most),
                                                        asio::redirect_error(Await, error));
    text.resize(size + count);
    co_return !error;
}

RequestHead Conversation::TakeHead() {
    const auto size = RequestHead::SizeIn(arrived_);
    RequestHead head;
    if (size > 0)
        head = RequestHead::Read(std::string_view(arrived_).substr(0, size),
                                 static_cast<std::uint64_t>(front_.config_.body_bytes));
    else
        head.status = timedOut_ ? 408 : 431;
    arrived_.erase(0, size);
    if (turnedAway_)
        head.status = 503;
    head.request.peer = peer_;
    if (proxy_)
        asker_ = std::make_shared<Visitor>(front_.visitors_.Behind(head.request));
    return head;
}

/// Sets the status of the head if the body is refused or does not come.
Front::Task<void> Conversation::ReceiveBody(RequestHead& head) {
    auto& body = head.request.body;
    const auto length = static_cast<size_t>(head.bodyLength);
    const auto here = std::min(length, arrived_.size());
    body.reserve(length); // takes memory only as it is filled
    body.assign(arrived_, 0, here);
    arrived_.erase(0, here);
    while (body.size() < length && head.status == 0) {
        const auto portion = std::min(BodyPortion, length - body.size());
        if (!front_.TakeBodyRoom(*this, portion)) {
            head.status = 503;
        } else if (!co_await ReceiveInTurn(body, portion)) {
            gone_ = gone_ || !(bodyRefused_ || timedOut_);
            head.status = bodyRefused_ ? 503 : 408;
        }
        if (head.status == 0)
            HoldBody(body.size());
    }
}

/// False at the end of the stream, at the deadline, or if the body has been refused.
Front::Task<bool> Conversation::ReceiveInTurn(std::string& text, size_t most) {
    const auto size = text.size();
    for (;;) {
        Error error;
        front_.bodyTurns_.Enter(woken_);
        co_await woken_.async_wait(asio::redirect_error(Await, error));
        if (gone_ || timedOut_ || bodyRefused_)
            co_return false;
        text.resize(size + most);
        text.resize(size + socket_.read_some(asio::buffer(text.data() + size, most), error));
        if (error != asio::error::would_block)
            co_return !error;
        co_await socket_.async_wait(Front::Socket::wait_read, asio::redirect_error(Await, error));
        if (error)
            co_return false;
    }
}

void Conversation::Refuse(RequestHead& head) {
    HoldBody(0);
    std::string().swap(head.request.body); // the connection stays for a while
    reply_ = front_.router_.Refused(head.request, head.status);
    if (front_.config_.log_requests)
        LogRequest("refused", Clock::now());
}

Front::Task<void> Conversation::Answer(RequestHead& head) {
    const auto begin = Clock::now();
    auto errand = std::make_shared<Errand>();
    errand->request = std::move(head.request);
    head.request.method = errand->request.method;
    errand->match = front_.router_.Find(errand->request);
    errand->visitor = asker_;
    switch (errand->match.lane) {
    case Lane::Here:
        reply_ = front_.router_.Answer(errand->match, errand->request, *errand->visitor);
        break;
    case Lane::Watch:
        co_await HandOver(errand, ToWatch);
        break;
    case Lane::Workers:
        co_await HandOver(errand, ToAnswer);
        break;
    }
    HoldBody(0);
    if (front_.config_.log_requests)
        LogRequest(errand->match.Name(), begin);
}

/// The reply of the worker, or 503 if it takes too long.
Front::Task<void> Conversation::HandOver(std::shared_ptr<Errand> errand, milliseconds most) {
    auto& workers = errand->match.lane == Lane::Watch ? front_.watch_ : front_.workers_;
    auto job = [errand, &front = front_] {
        if (!errand->givenUp)
            errand->reply = front.router_.Answer(errand->match, errand->request, *errand->visitor);
        asio::post(front.io_, [errand] {
            errand->done = true;
            if (errand->waiting)
                errand->waiting->woken_.cancel();
        });
    };
    Enter(State::Answering, most);
    errand->waiting = this;
    workers.Add(errand->visitor->networks.back(), std::move(job));
    Error ignored;
    woken_.expires_at(Clock::time_point::max());
    co_await woken_.async_wait(asio::redirect_error(Await, ignored));
    errand->waiting = nullptr;
    errand->givenUp = !errand->done;
    reply_ = errand->done ? std::move(errand->reply) : front_.router_.Refused(errand->request, 503);
}

/// False if the client did not receive it.
Front::Task<bool> Conversation::Send(bool withBody, bool close) {
    Enter(State::Sending, seconds(front_.config_.request_seconds));
    const auto head = ReplyHead::Written(reply_, close);
    const std::array<asio::const_buffer, 2> parts = {
        asio::buffer(head), asio::buffer(reply_.body.data(), withBody ? reply_.body.size() : 0)};
    Error error;
    co_await asio::async_write(socket_, parts, asio::redirect_error(Await, error));
    reply_ = {};
    co_return !error;
}

/// Reads what the client still sends after the last reply. If we closed with unread data, the
/// client could lose the reply.
Front::Task<void> Conversation::LetFinish() {
    Error ignored;
    Enter(State::Closing, ToFinish);
    socket_.shutdown(Front::Socket::shutdown_send, ignored);
    bodyRefused_ = timedOut_ = false;
    arrived_.clear();
    while (co_await ReceiveInTurn(arrived_, BodyPortion))
        arrived_.clear();
}

void Conversation::LogRequest(std::string_view route, Clock::time_point begin) const {
    const std::chrono::duration<double, std::milli> took = Clock::now() - begin;
    Log::Info("request", {{"route", route}, {"status", reply_.status}, {"ms", took.count()}});
}

void Conversation::Enter(State state, milliseconds most) {
    state_ = state;
    deadline_ = Clock::now() + most;
    if (deadline_ < awake_)
        KeepTime();
}

/// Sets the timer again only if it has expired or the new deadline is earlier. A request that is
/// answered in time costs no timer.
void Conversation::KeepTime() {
    awake_ = deadline_;
    clock_.expires_at(awake_);
    clock_.async_wait([weak = weak_from_this()](const Error& error) {
        const auto self = weak.lock();
        if (error || !self)
            return;
        self->awake_ = Clock::time_point::max();
        if (self->deadline_ > Clock::now())
            self->KeepTime();
        else
            self->Expire();
    });
}

void Conversation::Expire() {
    timedOut_ = true;
    if (state_ == State::Answering)
        woken_.cancel();
    else if (state_ == State::Waiting || state_ == State::Receiving)
        StopReceiving();
    else
        End();
}

} // namespace exchange
