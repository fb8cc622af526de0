#include "abuse/Abuse.h"

namespace AbuseCases {
namespace {
using namespace Raw;
const std::string Line = "POST " + Api + " HTTP/1.1\r\nHost: x\r\nConnection: close\r\n" + Json;

std::string Bytes(const char* text, size_t size) {
    return {text, size};
}

Abuses RequestLines() {
    return {
        {"no request", "\r\n\r\n", 400},
        {"the greeting of TLS", Bytes("\x16\x03\x01\x02\x00\x01\x00\xfc\r\n\r\n", 12), 400},
        {"a mail client", "HELO example.org\r\n\r\n", 400},
        {"an old version", "GET /health HTTP/0.9\r\n\r\n", 400},
        {"a coming version", "GET /health HTTP/3.0\r\n\r\n", 400},
        {"no version", "GET /health\r\n\r\n", 400},
        {"a version in small letters", "GET /health http/1.1\r\nHost: x\r\n\r\n", 400},
        {"a version with a blank", "GET /health HTTP/1.1 \r\nHost: x\r\n\r\n", 400},
        {"the preface of HTTP/2", "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n", 400},
        {"an unknown method", "BREW /health HTTP/1.1\r\nHost: x\r\n\r\n", 400},
        {"a method in small letters", "get /health HTTP/1.1\r\nHost: x\r\n\r\n", 400},
        {"a method that is not taken", "DELETE " + Api + "/5 HTTP/1.1\r\nHost: x\r\n\r\n", 405},
        {"a put", "PUT /index.asp HTTP/1.1\r\nHost: x\r\nContent-Length: 0\r\n\r\n", 405},
        {"a trace", "TRACE /health HTTP/1.1\r\nHost: x\r\n\r\n", 405},
        {"the options of all", "OPTIONS * HTTP/1.1\r\nHost: x\r\n\r\n", 400},
        {"a tunnel", "CONNECT example.org:25 HTTP/1.1\r\nHost: x\r\n\r\n", 400},
        {"an address elsewhere", Get("http://example.org/"), 400},
        {"an address without a slash", Get("health"), 400},
        {"a blank in the path", "GET /a b HTTP/1.1\r\nHost: x\r\n\r\n", 400},
        {"a control character in the path", "GET /a\x01 HTTP/1.1\r\nHost: x\r\n\r\n", 400},
        {"a null in the path", Bytes("GET /a\0b HTTP/1.1\r\nHost: x\r\n\r\n", 31), 400},
        {"an encoded null", Get("/index.asp%00.txt"), 404},
        {"an encoded line end", Get("/index.asp%0d%0aX:y"), 404},
        {"an encoded path", Get("/%2e%2e/%2e%2e/etc/passwd"), 404},
        {"a path upwards", Get("/halvane/../../etc/passwd"), 404},
        {"two slashes", Get("//halvane/community.asp"), 404},
        {"a file of the server", Get("/exchange.db"), 404},
        {"a path in other letters", Get("/HALVANE/COMMUNITY.ASP"), 404},
        {"a long path", Get("/" + std::string(9000, 'a')), 414},
        {"a longer path", Get("/" + std::string(20000, 'a')), 431},
        {"many parameters", Get("/halvane/community.asp?" + std::string(3000, '&')), 200},
        {"an anchor", Get("/halvane/community.asp#page"), 200},
    };
}

Abuses Headers() {
    return {
        {"a long head", Get("/health", "X: " + std::string(17000, 'a') + "\r\n"), 431},
        {"a head without end", "GET /health HTTP/1.1\r\n" + std::string(17000, 'a'), 431},
        {"a header without a colon", Get("/health", "nothing\r\n"), 400},
        {"a header without a name", Get("/health", ": x\r\n"), 400},
        {"a blank before the colon", Get("/health", "X : x\r\n"), 400},
        {"a blank in a name", Get("/health", "X Y: x\r\n"), 400},
        {"a letter beyond ASCII in a name", Get("/health", "\xc3\xa4: x\r\n"), 400},
        {"a folded header", Get("/health", "X: a\r\n b: c\r\n"), 400},
        {"a header folded by a tab", Get("/health", "X: a\r\n\tb: c\r\n"), 400},
        {"a null in a header", Get("/health", Bytes("X: a\0b\r\n", 8)), 400},
        {"a bare line end in a header", Get("/health", "X: a\nY: b\r\n"), 400},
        {"a bare return in a header", Get("/health", "X: a\rY: b\r\n"), 400},
        {"two hosts", Get("/health", "Host: y\r\n"), 400},
        {"no host", "GET /health HTTP/1.1\r\n\r\n", 400},
        {"another host", "GET /index.asp HTTP/1.1\r\nHost: evil.example\r\n\r\n", 200},
        {"an upgrade", Get("/health", "Upgrade: h2c\r\n"), 400},
        {"many ranges", Get("/halvane/style.css", "Range: bytes=0-,0-,0-,0-,0-,0-\r\n"), 200},
        {"a broken range", Get("/halvane/style.css", "range: bytes=9-1\r\n"), 200},
        {"a range of many digits",
         Get("/halvane/style.css", "RANGE: bytes=" + std::string(8000, '0') + "-\r\n"), 200},
        {"a packed reply", Get("/halvane/community.asp", "Accept-Encoding: br, gzip\r\n"), 200},
        {"an address to come from", Get("/health", "X-Forwarded-For: 10.0.0.1\r\n"), 200},
        {"a host to come from", Get("/health", "X-Forwarded-Host: evil.example\r\n"), 200},
        {"another method by a header", Get("/index.asp", "X-HTTP-Method-Override: DELETE\r\n"),
         200},
    };
}

Abuses Lengths() {
    return {
        {"two lengths", Line + "Content-Length: 2\r\nContent-Length: 3\r\n\r\n{}", 400},
        {"the same length twice", Line + "Content-Length: 2\r\nContent-Length: 2\r\n\r\n{}", 400},
        {"a list of lengths", Line + "Content-Length: 2, 2\r\n\r\n{}", 400},
        {"an empty length", Line + "Content-Length:\r\n\r\n{}", 400},
        {"a negative length", Line + "Content-Length: -1\r\n\r\n", 400},
        {"a signed length", Line + "Content-Length: +2\r\n\r\n{}", 400},
        {"a hexadecimal length", Line + "Content-Length: 0x2\r\n\r\n{}", 400},
        {"a length with a blank inside", Line + "Content-Length: 1 2\r\n\r\n{}", 400},
        {"a length with a fraction", Line + "Content-Length: 2.0\r\n\r\n{}", 400},
        {"a large length", Line + "Content-Length: 2000000\r\n\r\n", 413},
        {"an enormous length", Line + "Content-Length: 104857600\r\n\r\n{}", 413},
        {"a length beyond 64 bits", Line + "Content-Length: 99999999999999999999999\r\n\r\n", 400},
        {"no length and no body", Line + "\r\n", 400},
        {"chunks", Line + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n0\r\n\r\n", 411},
        {"chunks and a length",
         Line + "Content-Length: 4\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\nGET /x", 411},
        {"an odd encoding", Line + "Transfer-Encoding: identity, xchunked\r\n\r\n", 411},
        {"an encoding in other letters", Line + "tRANSFER-eNCODING: Chunked\r\n\r\n0\r\n\r\n", 411},
        {"chunks for a page", Get("/index.asp", "Transfer-Encoding: chunked\r\n"), 411},
        {"a packed body", Line + "Content-Encoding: gzip\r\nContent-Length: 2\r\n\r\n\x1f\x8b",
         415},
        {"a body by invitation", Line + "Expect: 100-continue\r\nContent-Length: 2\r\n\r\n", 417},
        {"another expectation", Line + "Expect: a miracle\r\nContent-Length: 2\r\n\r\n{}", 417},
        {"a second request in the body",
         Post(Api, "GET /halvane/sendrecipe.asp?recID={open} HTTP/1.1\r\nHost: x\r\n\r\n"), 400},
        {"a page with a body",
         "GET /index.asp HTTP/1.1\r\nHost: x\r\nConnection: close\r\nContent-Length: 2\r\n\r\n{}",
         200},
    };
}

Abuses Types() {
    return {
        {"a form for the program's address", Post(Api, "RecipeName=x", Form), 415},
        {"plain text for the program's address",
         Post(Api, Recipe(R"("RecipeName":"x")"), "Content-Type: text/plain\r\n"), 415},
        {"no type", Post(Api, Recipe(R"("RecipeName":"x")"), ""), 415},
        {"an upload",
         Post(Api, "--b\r\n\r\nx\r\n--b--", "Content-Type: multipart/form-data; boundary=b\r\n"),
         415},
        {"a type that begins like the right one",
         Post(Api, Recipe(R"("RecipeName":"x")"), "Content-Type: application/jsonp\r\n"), 415},
        {"ingredients of another type",
         Post(Api + "/{open}/ingredients", R"({"rows":[[null,1]]})",
              "Content-Type: text/plain\r\nAuthorization: Bearer {token}\r\n"),
         415},
        {"JSON for the form", Post("/halvane/report.asp", "{}"), 415},
    };
}
} // namespace

Abuses Framing() {
    Abuses all;
    for (auto& cases : {RequestLines(), Headers(), Lengths(), Types()})
        all.insert(all.end(), cases.begin(), cases.end());
    return all;
}

} // namespace AbuseCases
