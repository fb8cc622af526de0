#include "exchange/Engine.h"

#include "exchange/Json.h"
#include "exchange/Target.h"
#include "exchange/Text.h"

#include <cstring>

namespace exchange {
namespace {
class Memory : public httplib::Stream {
public:
    Memory(std::string_view input, const std::string& client)
        : input_(input)
        , client_(client) {}

    std::string TakeOutput() { return std::move(output_); }

    bool is_readable() const override { return !input_.empty(); }
    bool is_writable() const override { return true; }
    ssize_t read(char* to, size_t size) override {
        const auto count = std::min(size, input_.size());
        std::memcpy(to, input_.data(), count);
        input_.remove_prefix(count);
        return static_cast<ssize_t>(count);
    }
    ssize_t write(const char* from, size_t size) override {
        output_.append(from, size);
        return static_cast<ssize_t>(size);
    }
    void get_remote_ip_and_port(std::string& ip, int& port) const override {
        ip = client_;
        port = 0;
    }
    void get_local_ip_and_port(std::string& ip, int& port) const override {
        ip.clear();
        port = 0;
    }
    ::socket_t socket() const override { return 0; }

private:
    std::string_view input_;
    const std::string& client_;
    std::string output_;
};

/// The head without what the library would act upon while it reads it.
std::string WithoutRanges(std::string_view head) {
    constexpr std::string_view range = "range:";
    std::string kept;
    while (!head.empty()) {
        const auto line = head.substr(0, head.find("\r\n") + 2);
        if (Lower(line.substr(0, range.size())) != range)
            kept += line;
        head.remove_prefix(line.size());
    }
    return kept;
}

/// The library asks for nothing more than the head: the body is handed over with it.
void Prepare(httplib::Request& request, std::string_view body) {
    request.headers.erase("Accept-Encoding");
    request.body = body;
}

Request Understood(const httplib::Request& from) {
    Request request;
    request.method = from.method;
    request.body = from.body;
    request.peer = from.remote_addr;
    for (const auto& [name, value] : from.headers)
        request.headers.emplace_back(Lower(name), value);
    if (!Target::Read(from.target, request))
        request.path = from.path;
    return request;
}

void Write(Reply&& reply, httplib::Response& response) {
    response.status = reply.status;
    response.headers.insert(reply.headers.begin(), reply.headers.end());
    response.set_content(std::move(reply.body), reply.type);
}

const char* Reason(int status) {
    switch (status) {
    case 411:
        return "Length Required";
    case 413:
        return "Payload Too Large";
    case 414:
        return "URI Too Long";
    case 415:
        return "Unsupported Media Type";
    case 417:
        return "Expectation Failed";
    case 431:
        return "Request Header Fields Too Large";
    case 503:
        return "Service Unavailable";
    default:
        return "Bad Request";
    }
}
} // namespace

Engine::Engine(Answer answer, int idleSeconds) {
    set_pre_routing_handler([answer = std::move(answer)](const auto& request, auto& response) {
        Reply reply;
        answer(Understood(request), reply);
        Write(std::move(reply), response);
        return HandlerResponse::Handled;
    });
    set_error_handler([](const httplib::Request&, httplib::Response& response) {
        if (response.body.empty())
            response.set_content(Json::Reason(Reason(response.status)), "application/json");
    });
    set_keep_alive_max_count(1'000'000);
    set_keep_alive_timeout(idleSeconds);
}

Engine::Output Engine::Process(std::string_view head, std::string_view body,
                               const std::string& client, bool last) {
    const auto kept = WithoutRanges(head);
    Memory stream(kept, client);
    bool closed = last;
    const bool understood = process_request(
        stream, last, closed, [&](httplib::Request& request) { Prepare(request, body); });
    return {stream.TakeOutput(), closed || !understood};
}

std::string Engine::Refusal(int status) {
    const std::string phrase = Reason(status);
    const auto body = Json::Reason(phrase);
    return "HTTP/1.1 " + std::to_string(status) + " " + phrase +
           "\r\nConnection: close\r\nContent-Type: application/json\r\nContent-Length: " +
           std::to_string(body.size()) + "\r\n\r\n" + body;
}

} // namespace exchange
