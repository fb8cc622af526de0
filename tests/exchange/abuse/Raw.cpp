#include "abuse/Abuse.h"

#include "exchange/Json.h"

namespace Raw {

std::string Get(const std::string& address, const std::string& headers) {
    return "GET " + address + " HTTP/1.1\r\nHost: x\r\nConnection: close\r\n" + headers + "\r\n";
}

std::string Post(const std::string& address, const std::string& body, const std::string& headers) {
    return "POST " + address + " HTTP/1.1\r\nHost: x\r\nConnection: close\r\nContent-Length: " +
           std::to_string(body.size()) + "\r\n" + headers + "\r\n" + body;
}

std::string Recipe(const std::string& fields) {
    return R"({"EMAILFROM":"a@b.cd","EMAILTO":"c@d.ef",)" + fields + "}";
}

std::string Encoded(const std::string& text) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        encoded.append({'%', digits[code >> 4], digits[code & 15]});
    }
    return encoded;
}

std::string Quoted(const std::string& text) {
    std::string quoted;
    exchange::Json::AppendText(quoted, std::string_view(text));
    return quoted;
}

} // namespace Raw
