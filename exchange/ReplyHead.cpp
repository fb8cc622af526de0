#include "exchange/ReplyHead.h"

#include "exchange/Moment.h"

#include <boost/beast/http/status.hpp>

namespace exchange::ReplyHead {
namespace {
constexpr std::string_view Strict =
    "Content-Security-Policy: default-src 'none'; style-src 'self'; img-src 'self'; form-action"
    " 'self'; base-uri 'none'; frame-ancestors 'none'\r\n"
    "X-Content-Type-Options: nosniff\r\n"
    "X-Frame-Options: DENY\r\n"
    "Referrer-Policy: no-referrer\r\n"
    "Cross-Origin-Resource-Policy: same-origin\r\n"
    "Accept-Ranges: none\r\n";

/// Written anew once a second.
const std::string& Date() {
    thread_local std::string text;
    thread_local long long second = -1;
    const auto now = Moment::Now() / Moment::Second;
    if (now != second) {
        second = now;
        text = Moment::Written("%a, %d %b %Y %H:%M:%S GMT", now * Moment::Second);
    }
    return text;
}

void Append(std::string& head, std::string_view name, std::string_view value) {
    head.append(name).append(": ").append(value).append("\r\n");
}
} // namespace

std::string_view Phrase(int status) {
    const auto phrase =
        boost::beast::http::obsolete_reason(static_cast<boost::beast::http::status>(status));
    return {phrase.data(), phrase.size()};
}

std::string Written(const Reply& reply, bool close) {
    std::string head;
    head.reserve(768);
    head.append("HTTP/1.1 ").append(std::to_string(reply.status)).append(" ");
    head.append(Phrase(reply.status)).append("\r\n").append(Strict);
    Append(head, "Date", Date());
    if (!reply.type.empty())
        Append(head, "Content-Type", reply.type);
    Append(head, "Content-Length", std::to_string(reply.body.size()));
    for (const auto& [name, value] : reply.headers)
        Append(head, name, value);
    if (close)
        Append(head, "Connection", "close");
    return head += "\r\n";
}

} // namespace exchange::ReplyHead
