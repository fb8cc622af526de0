#include "exchange/RequestHead.h"

#include "exchange/Target.h"
#include "exchange/Text.h"

#include <boost/asio/buffer.hpp>
#include <boost/beast/http/basic_parser.hpp>

#include <algorithm>

namespace exchange {
namespace {
namespace http = boost::beast::http;
using Error = boost::beast::error_code;
using Text = boost::beast::string_view;

constexpr std::string_view HeadEnd = "\r\n\r\n";

std::string_view View(Text text) {
    return {text.data(), text.size()};
}

bool IsNumber(std::string_view text) {
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

int StatusOf(const Error& error) {
    if (error == http::error::header_limit)
        return 431;
    return error == http::error::bad_transfer_encoding ? 411 : 400;
}

/// The library's parser, which calls us for each part of a head. It also accepts some heads that a
/// proxy in front of us could read differently: we refuse those.
class Parser : public http::basic_parser<true> {
public:
    explicit Parser(RequestHead& head)
        : head_(head) {
        header_limit(RequestHead::Largest);
        skip(true);
    }

    void ReadWhole(std::string_view text) {
        Error error;
        put(boost::asio::buffer(text.data(), text.size()), error);
        if (error && head_.status == 0)
            head_.status = StatusOf(error);
        else if (!error)
            Check();
    }

private:
    void Check() {
        head_.close = !keep_alive() || oldVersion_;
        if (lengths_ > 1 || hosts_ > 1 || (hosts_ == 0 && !oldVersion_))
            head_.status = 400;
        else if (const auto length = content_length())
            head_.bodyLength = *length;
    }

    void Refuse(int status, Error& error) {
        head_.status = status;
        error = http::error::bad_value;
    }

    void on_request_impl(http::verb verb, Text method, Text target, int version,
                         Error& error) override {
        head_.request.method = View(method);
        oldVersion_ = version < 11;
        if (target.size() > RequestHead::LongestTarget)
            Refuse(414, error);
        else if (!Target::Read(View(target), head_.request) || verb == http::verb::unknown)
            Refuse(400, error);
    }

    void on_field_impl(http::field field, Text name, Text value, Error& error) override {
        head_.request.headers.emplace_back(Lower(View(name)), View(value));
        switch (field) {
        case http::field::content_length:
            ++lengths_;
            return IsNumber(View(value)) ? void() : Refuse(400, error);
        case http::field::host:
            ++hosts_;
            return;
        case http::field::transfer_encoding:
            return Refuse(411, error);
        case http::field::content_encoding:
            return Refuse(415, error);
        case http::field::expect:
            return Refuse(417, error);
        case http::field::upgrade:
            return Refuse(400, error);
        default:
            return;
        }
    }

    void on_response_impl(int, Text, int, Error&) override {}
    void on_header_impl(Error&) override {}
    void on_body_init_impl(const boost::optional<std::uint64_t>&, Error&) override {}
    std::size_t on_body_impl(Text, Error&) override { return 0; }
    void on_chunk_header_impl(std::uint64_t, Text, Error&) override {}
    std::size_t on_chunk_body_impl(std::uint64_t, Text, Error&) override { return 0; }
    void on_finish_impl(Error&) override {}

    RequestHead& head_;
    int lengths_ = 0;
    int hosts_ = 0;
    bool oldVersion_ = false;
};

/// Whether a header continues on the next line. Not every server reads it as one header.
bool HasFold(std::string_view head) {
    return head.find("\r\n ") != std::string_view::npos ||
           head.find("\r\n\t") != std::string_view::npos;
}
} // namespace

size_t RequestHead::SizeIn(std::string_view arrived) {
    const auto end = arrived.substr(0, Largest).find(HeadEnd);
    return end == std::string_view::npos ? 0 : end + HeadEnd.size();
}

RequestHead RequestHead::Read(std::string_view text, std::uint64_t largestBody) {
    RequestHead head;
    Parser(head).ReadWhole(text);
    if (head.status == 0 && HasFold(text))
        head.status = 400;
    if (head.status == 0 && head.bodyLength > largestBody)
        head.status = 413;
    head.close = head.close || head.status != 0;
    return head;
}

} // namespace exchange
