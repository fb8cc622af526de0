#include "network/HostileReplies.h"

#include <QTcpSocket>
#include <QTimer>

namespace {

using HostileReplies::Fate;
using HostileReplies::Reply;
using enum HostileReplies::Fate;

enum class End { Closed, Open, Reset };

/// `%S` is the proper status line, `%B` the body, `%L` its length, `%H` both headers of a proper
/// reply, `%0` a zero byte, `%M` a megabyte, `%K` a thousand headers.
struct Row {
    const char* name;
    const char* bytes;
    Fate fate;
    End end = End::Closed;
};

constexpr Row Rows[] = {
    // The connection
    {"nothing", "", Refused},
    {"a reset", "", Refused, End::Reset},
    {"silence", "", Refused, End::Open},
    {"a line break", "\r\n", Refused},
    {"half a status line", "HTTP/1.1 2", Refused},
    {"half a status line, then silence", "HTTP/1.1 2", Refused, End::Open},
    {"half a head", "%SContent-Le", Refused},
    {"half a head, then silence", "%SContent-Le", Refused, End::Open},
    {"a head, then silence", "%S%H", Refused, End::Open},
    {"a head, then a reset", "%S%H", Refused, End::Reset},
    {"a head without its body", "%S%H", Refused},
    {"half a body", "%SContent-Length: 99999\r\n\r\n%B", Refused},
    {"half a body, then silence", "%SContent-Length: 99999\r\n\r\n%B", Refused, End::Open},
    {"no length, and no end", "%S\r\n%B", Refused, End::Open},
    {"a reply twice", "%S%H%B%S%H%B", Either},
    {"a body twice", "%S%H%B%B", Either},
    // Other protocols
    {"a mail server", "220 mail.example.org ESMTP\r\n\r\n", Refused},
    {"a shell", "SSH-2.0-OpenSSH_9.2\r\n\r\n", Refused},
    {"an alert of TLS", "\x15\x03\x03%0\x02\x02\x28", Refused},
    {"bytes without sense", "\x80\xff\xfe\x01\x02\x03\r\n\r\n", Refused},
    {"a radio", "ICY 200 OK\r\n\r\n%B", Refused},
    {"a request", "GET / HTTP/1.1\r\nHost: a\r\n\r\n", Refused},
    {"a body alone", "%B", Refused},
    // The status line
    {"no version", "200 OK\r\n%H%B", Refused},
    {"no status", "HTTP/1.1\r\n%H%B", Refused},
    {"a status of letters", "HTTP/1.1 abc OK\r\n%H%B", Refused},
    {"a negative status", "HTTP/1.1 -200 OK\r\n%H%B", Status},
    {"a status of two digits", "HTTP/1.1 20 OK\r\n%H%B", Status},
    {"a status of four digits", "HTTP/1.1 2000 OK\r\n%H%B", Status},
    {"a status beyond every number", "HTTP/1.1 99999999999 OK\r\n%H%B", Status},
    {"version nine", "HTTP/9.9 200 OK\r\n%H%B", Either},
    {"version nought", "HTTP/0.9 200 OK\r\n%H%B", Either},
    {"small letters", "http/1.1 200 ok\r\n%H%B", Either},
    {"a status line with a zero byte", "HTTP/1.1 200 O%0K\r\n%H%B", Either},
    {"a status line of a megabyte", "HTTP/1.1 200 %M\r\n%H%B", Either},
    {"lines without a return", "HTTP/1.1 200 OK\nContent-Length: %L\n\n%B", Either},
    // Statuses
    {"100 alone", "HTTP/1.1 100 Continue\r\n\r\n", Refused},
    {"100 a few times before the reply",
     "HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 100 Continue\r\n\r\n%S%H%B", Either},
    {"101", "HTTP/1.1 101 Switching Protocols\r\nUpgrade: x\r\nConnection: upgrade\r\n\r\n%B",
     Status},
    {"103 before the reply", "HTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\n%S%H%B", Either},
    {"199", "HTTP/1.1 199 What\r\n%H%B", Status},
    {"202", "HTTP/1.1 202 Accepted\r\n%H%B", Status},
    {"203", "HTTP/1.1 203 Other\r\n%H%B", Status},
    {"204 with a body", "HTTP/1.1 204 None\r\n%H%B", Status},
    {"205", "HTTP/1.1 205 Reset\r\n%H%B", Status},
    {"206", "HTTP/1.1 206 Part\r\nContent-Range: bytes 0-3/900\r\n%H%B", Status},
    {"300", "HTTP/1.1 300 Choose\r\n%H%B", Status},
    {"301 to itself", "HTTP/1.1 301 Moved\r\nLocation: /halvane/\r\n%H%B", Status},
    {"302 to another server", "HTTP/1.1 302 Found\r\nLocation: http://example.org/\r\n%H%B",
     Status},
    {"302 to a file", "HTTP/1.1 302 Found\r\nLocation: file:///etc/passwd\r\n%H%B", Status},
    {"303 to a script", "HTTP/1.1 303 Other\r\nLocation: javascript:alert(1)\r\n%H%B", Status},
    {"304", "HTTP/1.1 304 Same\r\n%H%B", Status},
    {"305 to a proxy", "HTTP/1.1 305 Proxy\r\nLocation: http://127.0.0.1:9/\r\n%H%B", Status},
    {"307 to nowhere", "HTTP/1.1 307 Again\r\nLocation:\r\n%H%B", Status},
    {"308 to a name", "HTTP/1.1 308 Moved\r\nLocation: //no.such.invalid/\r\n%H%B", Status},
    {"400", "HTTP/1.1 400 Bad\r\n%H%B", Status},
    {"401 that asks for a password", "HTTP/1.1 401 Who\r\nWWW-Authenticate: Basic realm=a\r\n%H%B",
     Status},
    {"401 that asks for a ticket", "HTTP/1.1 401 Who\r\nWWW-Authenticate: Negotiate\r\n%H%B",
     Status},
    {"401 that asks for NTLM", "HTTP/1.1 401 Who\r\nWWW-Authenticate: NTLM\r\n%H%B", Status},
    {"401 with an endless digest",
     "HTTP/1.1 401 Who\r\nWWW-Authenticate: Digest realm=a, nonce=b, stale=true\r\n%H%B", Status},
    {"403", "HTTP/1.1 403 No\r\n%H%B", Status},
    {"404 of another server", "HTTP/1.1 404 None\r\n%H%B", Status},
    {"407", "HTTP/1.1 407 Proxy\r\nProxy-Authenticate: Basic realm=a\r\n%H%B", Status},
    {"408", "HTTP/1.1 408 Late\r\n%H%B", Status},
    {"413", "HTTP/1.1 413 Large\r\n%H%B", Status},
    {"426", "HTTP/1.1 426 Upgrade\r\nUpgrade: h2c\r\nConnection: upgrade\r\n%H%B", Status},
    {"429 for a year", "HTTP/1.1 429 Slow\r\nRetry-After: 31536000\r\n%H%B", Status},
    {"500", "HTTP/1.1 500 Oh\r\n%H%B", Status},
    {"503", "HTTP/1.1 503 Busy\r\nRetry-After: 0\r\n%H%B", Status},
    {"599", "HTTP/1.1 599 Odd\r\n%H%B", Status},
    {"600", "HTTP/1.1 600 Odd\r\n%H%B", Status},
    {"999", "HTTP/1.1 999 Odd\r\n%H%B", Status},
    // Headers
    {"a header without a colon", "%SNonsense\r\n%H%B", Either},
    {"a header without a name", "%S: value\r\n%H%B", Either},
    {"a folded header", "%SServer: a\r\n  b\r\n%H%B", Either},
    {"a header with a zero byte", "%SServer: a%0b\r\n%H%B", Either},
    {"a header of a megabyte", "%SServer: %M\r\n%H%B", Either},
    {"a thousand headers", "%S%K%H%B", Either},
    {"headers without an end", "%S%K%K", Refused, End::Open},
    {"a cookie", "%SSet-Cookie: a=b; Path=/\r\n%H%B", Either},
    {"a refresh", "%SRefresh: 0; url=/\r\n%H%B", Either},
    {"another service", "%SAlt-Svc: h3=\":443\"\r\nStrict-Transport-Security: max-age=9\r\n%H%B",
     Either},
    {"a page by its type", "%SContent-Type: text/html\r\n%H%B", Either},
    {"another character set by its type", "%SContent-Type: text/plain; charset=utf-16\r\n%H%B",
     Either},
    // Lengths
    {"a length below nothing", "%SContent-Length: -1\r\n\r\n%B", Either},
    {"a length of letters", "%SContent-Length: many\r\n\r\n%B", Either},
    {"a length beyond every number", "%SContent-Length: 99999999999999999999\r\n\r\n%B", Either},
    {"the greatest length", "%SContent-Length: 9223372036854775807\r\n\r\n%B", Refused},
    {"no length at all, but a body", "%SContent-Length: 0\r\n\r\n%B", Refused},
    {"a byte too little", "%SContent-Length: 1\r\n\r\n%B", Refused},
    {"two lengths", "%SContent-Length: 1\r\nContent-Length: %L\r\n\r\n%B", Either},
    {"a length and chunks", "%SContent-Length: %L\r\nTransfer-Encoding: chunked\r\n\r\n%B", Refused,
     End::Open},
    // Chunks
    {"chunks without a size", "%STransfer-Encoding: chunked\r\n\r\n%B", Refused, End::Open},
    {"a chunk of letters", "%STransfer-Encoding: chunked\r\n\r\nzz\r\n%B\r\n0\r\n\r\n", Either},
    {"a chunk below nothing", "%STransfer-Encoding: chunked\r\n\r\n-5\r\n%B\r\n0\r\n\r\n", Either},
    {"a chunk beyond every number",
     "%STransfer-Encoding: chunked\r\n\r\nFFFFFFFFFFFFFFFFFF\r\n%B\r\n0\r\n\r\n", Either},
    {"a chunk that is cut", "%STransfer-Encoding: chunked\r\n\r\nFFFF\r\n%B", Either},
    {"a chunk that is cut, then silence", "%STransfer-Encoding: chunked\r\n\r\nFFFF\r\n%B", Refused,
     End::Open},
    {"no last chunk", "%STransfer-Encoding: chunked\r\n\r\n1\r\n \r\n", Either},
    {"an extension of a chunk", "%STransfer-Encoding: chunked\r\n\r\n1;%M\r\n \r\n0\r\n\r\n",
     Either},
    {"trailers", "%STransfer-Encoding: chunked\r\n\r\n0\r\n%K\r\n", Either},
    // Encodings
    {"packed, but not", "%SContent-Encoding: gzip\r\n%H%B", Either},
    {"another packing, but not", "%SContent-Encoding: deflate\r\n%H%B", Either},
    {"an unknown packing", "%SContent-Encoding: unknown\r\n%H%B", Either},
    {"an unknown transfer", "%STransfer-Encoding: gzip, chunked\r\n\r\n%B", Refused, End::Open},
    // Around the body
    {"a mark before the body", "%S\r\n\xef\xbb\xbf%B", Either},
    {"zero bytes behind the body", "%S\r\n%B%0%0%0", Either},
    {"words behind the body", "%S\r\n%B and more", Either},
    {"words before the body", "%S\r\nand %B", Either},
    {"a page around the body", "%S\r\n<html><script>alert(1)</script>%B</html>", Refused},
    {"two megabytes of blanks", "%S\r\n%B%M%M", Either},
};

QByteArray Headers() {
    QByteArray headers;
    for (int i = 0; i < 1000; ++i)
        headers += "X-" + QByteArray::number(i) + ": y\r\n";
    return headers;
}

QByteArray Written(const Row& row, int status, const QByteArray& body) {
    const QByteArray length = QByteArray::number(body.size());
    const std::pair<const char*, QByteArray> tokens[] = {
        {"%S", "HTTP/1.1 " + QByteArray::number(status) + " OK\r\n"},
        {"%H", "Connection: close\r\nContent-Length: " + length + "\r\n\r\n"},
        {"%L", length},
        {"%0", QByteArray(1, '\0')},
        {"%M", QByteArray(1 << 20, ' ')},
        {"%K", Headers()},
        {"%B", body}};
    QByteArray bytes(row.bytes);
    for (const auto& [token, text] : tokens)
        if (bytes.contains(token))
            bytes.replace(token, text);
    return bytes;
}

ScriptedServer::Answer Sent(const QByteArray& bytes, End end) {
    if (end == End::Closed)
        return ScriptedServer::Raw(bytes);
    return [bytes, end](QTcpSocket& socket) {
        socket.write(bytes);
        socket.flush();
        if (end == End::Reset)
            socket.abort();
    };
}

/// Byte by byte: the head too.
ScriptedServer::Answer Drip(const QByteArray& bytes) {
    return [bytes](QTcpSocket& socket) {
        auto* drip = new QTimer(&socket);
        QObject::connect(drip, &QTimer::timeout, &socket, [&socket, bytes, sent = 0]() mutable {
            if (sent < bytes.size())
                socket.write(bytes.mid(sent++, 1));
        });
        drip->start(5);
    };
}

} // namespace

QList<Reply> HostileReplies::Around(ScriptedServer& server, int status, const QByteArray& body) {
    QList<Reply> replies;
    for (const Row& row : Rows)
        replies << Reply{row.name, Sent(Written(row, status, body), row.end), row.fate,
                         row.end == End::Open};
    replies << Reply{"a trickle without an end", ScriptedServer::Trickle(), Refused, true}
            << Reply{"a head byte by byte", Drip("HTTP/1.1 200 OK\r\n" + Headers()), Refused, true}
            << Reply{"a hundred megabytes", server.Flood(100 << 20), Refused, false};
    return replies;
}

QByteArrayList HostileReplies::Values() {
    return {"null",
            "true",
            "-1",
            "0",
            "1.5",
            "1e15",
            "1e308",
            "1e999",
            "99999999999",
            "NaN",
            "\"\"",
            "\"12\"",
            R"("<b>bold</b><script>alert(1)</script>")",
            R"("<img src=http://127.0.0.1:9/x>")",
            R"("it's; DROP TABLE Recipes; -- ~^|")",
            R"("two\nlines\tand\u0000zero")",
            R"("\ud83c\udf72 \u202e\u2066")",
            R"("\ud800 half a pair")",
            "\"\xff\xfe\"",
            "\"" + QByteArray(100'000, 'W') + "\"",
            "[]",
            "[1,2]",
            "{}",
            R"({"a":{"b":1}})",
            QByteArray(2000, '[') + QByteArray(2000, ']'),
            "",
            "unquoted"};
}
