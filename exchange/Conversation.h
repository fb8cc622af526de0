#pragma once

#include "exchange/Front.h"
#include "exchange/RequestHead.h"

namespace exchange {

/// One connection: receives a request, has it answered, sends the reply, and so on until one side
/// closes. Each step has a deadline. Everything runs on the thread of the front.
class Conversation : public std::enable_shared_from_this<Conversation> {
public:
    enum class State { Waiting, Receiving, Answering, Sending, Closing };

    /// A connection that is turned away gets 503 for any request.
    Conversation(Front& front, Front::Socket socket, std::string peer, bool turnedAway);
    ~Conversation();
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;

    static Front::Task<void> Run(std::shared_ptr<Conversation> self);

    State Now() const { return state_; }
    const Visitor& Holder() const { return *holder_; } ///< whose connection this is
    const Visitor& Asker() const { return *asker_; }   ///< whose request this is
    size_t BodyHeld() const { return bodyHeld_; }
    void End();        ///< closes at once, without a further reply
    void RefuseBody(); ///< gives back the room of a body that is still arriving

private:
    using Clock = std::chrono::steady_clock;
    struct Errand;

    Front::Task<bool> ReceiveHead();
    Front::Task<bool> Receive(std::string& text, size_t most);
    Front::Task<void> ReceiveBody(RequestHead& head);
    Front::Task<bool> ReceiveInTurn(std::string& text, size_t most);
    Front::Task<void> Answer(RequestHead& head);
    Front::Task<void> HandOver(std::shared_ptr<Errand> errand, std::chrono::milliseconds most);
    Front::Task<bool> Send(bool withBody, bool close);
    Front::Task<void> LetFinish();

    void Leave();
    void StopReceiving();
    RequestHead TakeHead();
    void HoldBody(size_t bytes);
    void Refuse(RequestHead& head);
    void LogRequest(std::string_view route, Clock::time_point begin) const;
    void Enter(State state, std::chrono::milliseconds most);
    void KeepTime();
    void Expire();

    Front& front_;
    Front::Socket socket_;
    Front::Timer clock_;
    Front::Timer woken_; ///< for the reply of a worker, or a turn to read
    std::string peer_;
    bool proxy_;
    bool turnedAway_;
    std::shared_ptr<const Visitor> holder_;
    std::shared_ptr<const Visitor> asker_;
    std::list<Conversation*>::iterator place_;
    State state_ = State::Waiting;
    Clock::time_point deadline_;
    Clock::time_point awake_ = Clock::time_point::max();
    bool timedOut_ = false;
    bool gone_ = false;
    bool left_ = false;
    bool bodyRefused_ = false;
    size_t bodyHeld_ = 0;
    std::string arrived_;
    Reply reply_;
};

} // namespace exchange
