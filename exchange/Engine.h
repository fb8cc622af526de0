#pragma once

#include "exchange/Http.h"

#include <httplib.h>

#include <functional>
#include <string>
#include <string_view>

namespace exchange {

/// Understands one whole request and writes its reply, both in memory: the HTTP library's parser
/// and writer without its sockets and threads. What the library would do with a request on its own
/// (ranges, compression, files) is taken from it first.
class Engine : private httplib::Server {
public:
    using Answer = std::function<void(const Request&, exchange::Reply&)>;
    Engine(Answer answer,
           int idleSeconds); ///< how long a connection may be silent, for its replies

    struct Output {
        std::string text;
        bool close = false;
    };
    Output Process(std::string_view head, std::string_view body, const std::string& client,
                   bool last);

    /// A reply to what cannot be understood; the connection is closed after it.
    static std::string Refusal(int status);
};

} // namespace exchange
