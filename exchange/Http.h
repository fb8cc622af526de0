#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace exchange {

/// One complete request within the limits.
struct Request {
    std::string method;
    std::string path;                                        ///< percent-decoded, without the query
    std::vector<std::pair<std::string, std::string>> params; ///< decoded query, in order
    std::vector<std::pair<std::string, std::string>> headers; ///< names in lower case, in order
    std::string body;
    std::string peer; ///< the address at the other end of the socket

    bool HasParam(std::string_view name) const;
    std::string Param(std::string_view name) const;  ///< the first; empty if there is none
    std::string Header(std::string_view name) const; ///< the last; empty if there is none
};

/// What a handler answers. The front adds what each reply has: date, length, security headers.
struct Reply {
    int status = 200;
    std::string type;
    std::string body;
    std::vector<std::pair<std::string, std::string>> headers;

    void SetHeader(std::string name, std::string value); ///< replaces one of that name
    void SetContent(std::string content, std::string contentType);
};

} // namespace exchange
