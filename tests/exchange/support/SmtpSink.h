#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// A mail server on the loopback that keeps what it is given.
class SmtpSink {
public:
    /// One that is down holds its port and refuses connections until `ComeUp`.
    enum class Manner { Takes, RefusesRecipients, Greylists, Hangs, IsDown };
    struct Mail {
        std::string from;
        std::vector<std::string> to;
        std::string text;

        std::string Header(const std::string& name) const; ///< unfolded
        std::string Body() const;                          ///< decoded
    };

    static constexpr int GreylistedTries = 3; ///< the first that is taken

    explicit SmtpSink(Manner manner = Manner::Takes);
    ~SmtpSink();
    SmtpSink(const SmtpSink&) = delete;
    SmtpSink& operator=(const SmtpSink&) = delete;

    void ComeUp();
    std::string Address() const { return "smtp://127.0.0.1:" + std::to_string(port_); }
    std::vector<Mail> Mails() const;
    int Tries() const { return tries_; } ///< recipients that were named to it

private:
    void Serve();
    void Talk(int socket);
    std::string Answer(const std::string& line, Mail& mail, bool& inData);

    Manner manner_;
    int listener_ = -1;
    int port_ = 0;
    std::atomic<bool> ending_ = false;
    std::atomic<int> tries_ = 0;
    mutable std::mutex mutex_;
    std::vector<Mail> mails_;
    std::thread thread_;
};
