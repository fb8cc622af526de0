#include "exchange/RequestHead.h"

#include <gtest/gtest.h>

using namespace exchange;

namespace {
RequestHead Read(const std::string& lines) {
    return RequestHead::Read(lines + "\r\n", 1000);
}

struct Case {
    const char* name;
    std::string lines;
    int status;
};

const std::string Get = "GET / HTTP/1.1\r\n";
const std::string Host = "Host: x\r\n";

const Case Cases[] = {
    {"no host", Get, 400},
    {"two hosts", Get + Host + Host, 400},
    {"two lengths that agree", Get + Host + "Content-Length: 2\r\nContent-Length: 2\r\n", 400},
    {"a list of lengths that agree", Get + Host + "Content-Length: 2, 2\r\n", 400},
    {"a length with a sign", Get + Host + "Content-Length: +2\r\n", 400},
    {"a length of nothing", Get + Host + "Content-Length:\r\n", 400},
    {"a length too large", Get + Host + "Content-Length: 1001\r\n", 413},
    {"the largest length", Get + Host + "Content-Length: 1000\r\n", 0},
    {"chunks", Get + Host + "Transfer-Encoding: chunked\r\n", 411},
    {"chunks and then a length", Get + Host + "Transfer-Encoding: chunked\r\nContent-Length: 2\r\n",
     411},
    {"a length and then chunks", Get + Host + "Content-Length: 2\r\nTransfer-Encoding: chunked\r\n",
     411},
    {"a packed body", Get + Host + "Content-Encoding: gzip\r\n", 415},
    {"an invitation", Get + Host + "Expect: 100-continue\r\n", 417},
    {"another protocol", Get + Host + "Upgrade: websocket\r\n", 400},
    {"a header in two lines", Get + Host + "X: a\r\n b\r\n", 400},
    {"a header in two lines by a tab", Get + Host + "X: a\r\n\tb\r\n", 400},
    {"a bare line end", Get + Host + "X: a\nY: b\r\n", 400},
    {"a null", Get + Host + std::string("X: a\0b\r\n", 8), 400},
    {"a blank before the colon", Get + Host + "X : a\r\n", 400},
    {"no name", Get + Host + ": a\r\n", 400},
    {"an address elsewhere", "GET http://x/ HTTP/1.1\r\n" + Host, 400},
    {"an asterisk", "OPTIONS * HTTP/1.1\r\n" + Host, 400},
    {"a method that nobody knows", "BREW / HTTP/1.1\r\n" + Host, 400},
    {"a version to come", "GET / HTTP/2.0\r\n" + Host, 400},
    {"the longest target", "GET /" + std::string(8191, 'a') + " HTTP/1.1\r\n" + Host, 0},
    {"a target too long", "GET /" + std::string(8192, 'a') + " HTTP/1.1\r\n" + Host, 414},
    {"the old version without a host", "GET / HTTP/1.0\r\n", 0},
};
} // namespace

TEST(RequestHeadTest, AmbiguousHeadsAreRefused) {
    for (const auto& [name, lines, status] : Cases)
        EXPECT_EQ(Read(lines).status, status) << name;
}

TEST(RequestHeadTest, ThePathOfARefusedRequestIsKnown) {
    EXPECT_EQ(Read("GET /a?b=c HTTP/1.1\r\nTransfer-Encoding: chunked\r\n").request.path, "/a");
}

TEST(RequestHeadTest, NamesOfHeadersAreInLowerCaseAndTheLastCounts) {
    const auto head = Read(Get + Host + "X-Forwarded-FOR: a\r\nx-forwarded-for:  b \r\n");
    EXPECT_EQ(head.request.Header("x-forwarded-for"), "b");
}

TEST(RequestHeadTest, ConnectionCloseIsReadInAnyCase) {
    EXPECT_FALSE(Read(Get + Host).close);
    EXPECT_TRUE(Read(Get + Host + "Connection: Close\r\n").close);
    EXPECT_TRUE(Read(Get + Host + "CONNECTION: keep-alive, cLOSE\r\n").close);
    EXPECT_TRUE(Read("GET / HTTP/1.0\r\n").close);
    EXPECT_TRUE(Read(Get + Host + Host).close) << "nothing after it can be understood";
}

TEST(RequestHeadTest, AHeadEndsWithTheFirstEmptyLine) {
    EXPECT_EQ(RequestHead::SizeIn(""), 0U);
    EXPECT_EQ(RequestHead::SizeIn("GET / HTTP/1.1\r\n"), 0U);
    EXPECT_EQ(RequestHead::SizeIn("GET / HTTP/1.1\r\n\r\nGET"), 18U);
    EXPECT_EQ(RequestHead::SizeIn(std::string(RequestHead::Largest, 'a') + "\r\n\r\n"), 0U);
}
