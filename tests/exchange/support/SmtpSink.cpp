#include "support/SmtpSink.h"

#include "exchange/Text.h"

#include <netinet/in.h>
#include <openssl/evp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {
std::string Inside(const std::string& line) {
    const auto begin = line.find('<');
    const auto end = line.rfind('>');
    return begin == std::string::npos ? line : line.substr(begin + 1, end - begin - 1);
}

/// One line without its end; false when the other side has gone or the sink ends.
bool ReadLine(int socket, const std::atomic<bool>& ending, std::string& arrived,
              std::string& line) {
    for (auto end = arrived.find("\r\n");; end = arrived.find("\r\n")) {
        if (end != std::string::npos) {
            line = arrived.substr(0, end);
            arrived.erase(0, end + 2);
            return true;
        }
        pollfd waiting{socket, POLLIN, 0};
        if (ending)
            return false;
        if (::poll(&waiting, 1, 20) == 0)
            continue;
        char portion[4096];
        const auto count = ::recv(socket, portion, sizeof portion, 0);
        if (count <= 0)
            return false;
        arrived.append(portion, static_cast<size_t>(count));
    }
}
} // namespace

SmtpSink::SmtpSink(Manner manner)
    : manner_(manner)
    , listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    ::bind(listener_, reinterpret_cast<sockaddr*>(&address), size);
    ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
    port_ = ntohs(address.sin_port);
    if (manner_ != Manner::IsDown)
        ComeUp();
}

void SmtpSink::ComeUp() {
    ::listen(listener_, 16);
    thread_ = std::thread([this] { Serve(); });
}

SmtpSink::~SmtpSink() {
    ending_ = true;
    if (thread_.joinable())
        thread_.join();
    ::close(listener_);
}

void SmtpSink::Serve() {
    std::vector<std::thread> talks;
    while (!ending_) {
        pollfd waiting{listener_, POLLIN, 0};
        if (::poll(&waiting, 1, 20) > 0)
            talks.emplace_back([this, socket = ::accept4(listener_, nullptr, nullptr,
                                                         SOCK_CLOEXEC)] { Talk(socket); });
    }
    for (auto& talk : talks)
        talk.join();
}

void SmtpSink::Talk(int socket) {
    const auto say = [&](const std::string& text) {
        if (!text.empty() && manner_ != Manner::Hangs)
            ::send(socket, (text + "\r\n").data(), text.size() + 2, MSG_NOSIGNAL);
    };
    Mail mail;
    bool inData = false;
    std::string arrived;
    std::string line;
    say("220 sink");
    while (ReadLine(socket, ending_, arrived, line))
        say(Answer(line, mail, inData));
    ::close(socket);
}

std::string SmtpSink::Answer(const std::string& line, Mail& mail, bool& inData) {
    const auto command = exchange::Upper(line.substr(0, 4));
    if (inData && line != ".") {
        mail.text += (line.starts_with("..") ? line.substr(1) : line) + "\n";
        return {};
    }
    if (inData) {
        inData = false;
        const std::lock_guard lock(mutex_);
        mails_.push_back(mail);
        mail = {};
        return "250 kept";
    }
    if (command == "MAIL")
        mail.from = Inside(line);
    const int tries = command == "RCPT" ? ++tries_ : 0;
    if (tries > 0 && manner_ == Manner::RefusesRecipients)
        return "550 nobody here";
    if (tries > 0 && tries < GreylistedTries && manner_ == Manner::Greylists)
        return "451 try again later";
    if (command == "RCPT")
        mail.to.push_back(Inside(line));
    inData = command == "DATA";
    return inData ? "354 go on" : command == "QUIT" ? "221 bye" : "250 ok";
}

std::vector<SmtpSink::Mail> SmtpSink::Mails() const {
    const std::lock_guard lock(mutex_);
    return mails_;
}

std::string SmtpSink::Mail::Header(const std::string& name) const {
    auto head = "\n" + text.substr(0, text.find("\n\n") + 1);
    exchange::ReplaceAll(head, "\n ", " ");
    const auto begin = head.find("\n" + name + ": ");
    if (begin == std::string::npos)
        return {};
    const auto value = begin + name.size() + 3;
    return head.substr(value, head.find('\n', value) - value);
}

std::string SmtpSink::Mail::Body() const {
    auto encoded = text.substr(text.find("\n\n") + 2);
    exchange::ReplaceAll(encoded, "\n", "");
    std::string body(encoded.size(), '\0');
    const auto size = EVP_DecodeBlock(reinterpret_cast<unsigned char*>(body.data()),
                                      reinterpret_cast<const unsigned char*>(encoded.data()),
                                      static_cast<int>(encoded.size()));
    const bool padded = size > 0 && encoded.ends_with('=');
    body.resize(static_cast<size_t>(std::max(size, 0)) - (padded ? 1 : 0) -
                (encoded.ends_with("==") ? 1 : 0));
    return body;
}
