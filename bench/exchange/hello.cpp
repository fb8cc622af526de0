// The bare rate of the HTTP library: one handler, its own threads and sockets. Prints its port.
#include <httplib.h>

#include <iostream>
#include <limits>

int main() {
    httplib::Server server;
    server.set_keep_alive_max_count(std::numeric_limits<size_t>::max());
    server.set_tcp_nodelay(true);
    server.Get("/hello", [](const httplib::Request&, httplib::Response& response) {
        response.set_content("hello", "text/plain");
    });
    std::cout << "{\"event\":\"started\",\"port\":" << server.bind_to_any_port("127.0.0.1") << "}"
              << std::endl;
    server.listen_after_bind();
}
