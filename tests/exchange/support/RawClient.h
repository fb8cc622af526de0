#pragma once

#include <string>
#include <string_view>

/// A connection that sends whatever it is told, byte for byte.
class RawClient {
public:
    static constexpr int Patience = 30'000; ///< longer than the server takes for any reply

    explicit RawClient(int port, const std::string& from = "127.0.0.1");
    ~RawClient();
    RawClient(const RawClient&) = delete;
    RawClient& operator=(const RawClient&) = delete;

    bool Send(std::string_view bytes) const; ///< false if the other side has closed
    void FinishSending() const;              ///< and goes on reading
    /// What arrives until the other side closes, or until nothing does for so long.
    std::string ReadToEnd(int milliseconds = Patience);
    std::string ReadReply(int milliseconds = Patience); ///< one whole reply
    /// Whether the other side closes; false once nothing has arrived for so long.
    bool IsClosed(int milliseconds = Patience);

    /// Sends bytes on a new connection and reads to its end.
    static std::string Talk(int port, std::string_view bytes);
    static std::string Ask(int port, std::string_view bytes); ///< and reads one reply
    static int Status(std::string_view reply);                ///< 0 if it is none
    static std::string Body(std::string_view reply);

private:
    template <class Enough> std::string ReadUntil(const Enough& enough, int milliseconds);
    int socket_;
};
