// The bare rate of the library that the server stands on: one thread, a coroutine a connection, one
// reply. Prints its port.
#include <utility>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>

#include <iostream>

namespace {
namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using asio::use_awaitable;
using asio::ip::tcp;

asio::awaitable<void> Serve(beast::tcp_stream stream) {
    beast::flat_buffer buffer;
    try {
        for (;;) {
            stream.expires_after(std::chrono::seconds(15));
            http::request<http::string_body> request;
            co_await http::async_read(stream, buffer, request, use_awaitable);
            http::response<http::string_body> response(http::status::ok, request.version());
            response.set(http::field::content_type, "text/plain");
            response.body() = "hello";
            response.prepare_payload();
            co_await http::async_write(stream, response, use_awaitable);
        }
    } catch (const boost::system::system_error&) {
        co_return;
    }
}

asio::awaitable<void> Accept(tcp::acceptor& acceptor) {
    for (;;) {
        auto socket = co_await acceptor.async_accept(use_awaitable);
        socket.set_option(tcp::no_delay(true));
        co_spawn(acceptor.get_executor(), Serve(beast::tcp_stream(std::move(socket))),
                 asio::detached);
    }
}
} // namespace

int main() {
    asio::io_context io(1);
    tcp::acceptor acceptor(io, {asio::ip::address_v4::loopback(), 0});
    std::cout << "{\"event\":\"started\",\"port\":" << acceptor.local_endpoint().port() << "}"
              << std::endl;
    co_spawn(io, Accept(acceptor), asio::detached);
    io.run();
}
