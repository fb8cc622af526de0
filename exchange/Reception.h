#pragma once

#include "exchange/Config.h"
#include "exchange/Engine.h"

#include <atomic>
#include <condition_variable>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace exchange {

/// The connections of the server. A connection costs a descriptor and a buffer until a whole
/// request has arrived, and only then a worker's time; each step of it has a deadline. So a client
/// that is slow, silent or endless holds up nobody but itself.
class Reception {
public:
    Reception(const Config& config, Engine& engine);
    ~Reception();
    Reception(const Reception&) = delete;
    Reception& operator=(const Reception&) = delete;

    /// Fails with ConfigError if the address cannot be had. Port 0 takes a free one.
    void Open();
    int Port() const { return port_; }
    void Start();
    /// Takes no more, finishes what is being answered, and closes.
    void Stop();

private:
    struct Line;
    using Registry = std::list<Line>;

    void Work();
    void Accept();
    void Admit(int socket, const std::string& client);
    void Advance(Line& line);
    bool Receive(Line& line);
    bool AnswerArrived(Line& line);
    void Reply(Line& line, std::string text, bool close);
    bool Send(Line& line);
    static bool SendPortion(Line& line);
    void Drain(Line& line);
    void Await(Line& line, unsigned events, int seconds);
    void AwaitMore(Line& line);
    void Close(Line& line);
    void Flush();
    static void Discard(const Line& line);
    void CloseExpired();
    void KeepTime();
    bool IsFull(const std::string& client, const std::string& household) const;

    const Config& config_;
    Engine& engine_;
    int listener_ = -1;
    int poll_ = -1;
    int bell_ = -1;
    int port_ = 0;
    std::atomic<bool> stopping_ = false;
    std::mutex mutex_; ///< of what follows
    std::condition_variable stopped_;
    Registry lines_;
    std::map<std::string, int> perHousehold_;
    std::vector<std::thread> threads_;
};

} // namespace exchange
