#pragma once

#include <atomic>
#include <string>
#include <thread>
#include <vector>

/// Passes bytes between the connections of a port on the loopback and a socket file. While it is
/// cut, its connections stay open and nothing arrives. When it breaks, they are closed.
class Proxy {
public:
    explicit Proxy(std::string target);
    ~Proxy();
    Proxy(const Proxy&) = delete;
    Proxy& operator=(const Proxy&) = delete;

    int Port() const { return port_; }
    void Cut() { cut_ = true; }
    void Mend() { cut_ = false; }
    void Break() { ++breaks_; } ///< passes nothing more on the present connections

private:
    void Accept();
    void Pass(int client, int server, int breaks) const;

    std::string target_;
    int listener_ = -1;
    int port_ = 0;
    std::atomic<bool> cut_ = false;
    std::atomic<int> breaks_ = 0;
    std::atomic<bool> ending_ = false;
    std::thread thread_;
};
