#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// A mail server on the loopback that keeps what it is given.
class SmtpSink {
public:
    enum class Manner { Takes, RefusesRecipients, Hangs };
    struct Mail {
        std::string from;
        std::vector<std::string> to;
        std::string text;

        std::string Header(const std::string& name) const; ///< unfolded
        std::string Body() const;                          ///< decoded
    };

    explicit SmtpSink(Manner manner = Manner::Takes);
    ~SmtpSink();
    SmtpSink(const SmtpSink&) = delete;
    SmtpSink& operator=(const SmtpSink&) = delete;

    std::string Address() const { return "smtp://127.0.0.1:" + std::to_string(port_); }
    std::vector<Mail> Mails() const;

private:
    void Serve();
    void Talk(int socket);
    std::string Answer(const std::string& line, Mail& mail, bool& inData);

    Manner manner_;
    int listener_ = -1;
    int port_ = 0;
    std::atomic<bool> ending_ = false;
    mutable std::mutex mutex_;
    std::vector<Mail> mails_;
    std::thread thread_;
};
