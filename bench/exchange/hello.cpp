// The bare rate of the library that the server stands on: a coroutine a connection, one reply.
// hello THREADS prints its port.
#include <utility>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/strand.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>

#include <iostream>
#include <thread>
#include <vector>

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
        tcp::socket socket(asio::make_strand(acceptor.get_executor()));
        co_await acceptor.async_accept(socket, use_awaitable);
        socket.set_option(tcp::no_delay(true));
        const auto strand = socket.get_executor();
        co_spawn(strand, Serve(beast::tcp_stream(std::move(socket))), asio::detached);
    }
}
} // namespace

int main(int argc, char** argv) {
    const int threads = argc > 1 ? std::atoi(argv[1]) : 1;
    asio::io_context io(threads);
    tcp::acceptor acceptor(io, {asio::ip::address_v4::loopback(), 0});
    std::cout << "{\"event\":\"started\",\"port\":" << acceptor.local_endpoint().port() << "}"
              << std::endl;
    co_spawn(io, Accept(acceptor), asio::detached);
    std::vector<std::jthread> others;
    for (int i = 1; i < threads; ++i)
        others.emplace_back([&io] { io.run(); });
    io.run();
}
