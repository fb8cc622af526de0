#include "support/ExchangeTest.h"
#include "support/RawClient.h"

#include <algorithm>

namespace {
/// A request and what may come of it: one of the statuses, and 0 for a closed connection.
struct Abuse {
    std::string name;
    std::string request;
    std::vector<int> statuses;
};

/// Texts that mean something to somebody: each is put into every parameter.
const std::string Payloads[] = {
    "<script>alert(1)</script>",
    "\"><img src=x onerror=alert(1)>",
    "'; DROP TABLE recipes; --",
    "1 OR 1=1",
    "1; DELETE FROM recipes",
    "2 UNION SELECT Token FROM recipes",
    "' OR ''='",
    "{{name}}{{{content}}}{{#recipes}}",
    "../../../../etc/passwd",
    "..\\..\\windows\\win.ini",
    "x\r\nSet-Cookie: a=b",
    "x\r\n\r\n<html>",
    "%s%n%x%p",
    "$(reboot)`reboot`",
    {"\0null", 5},
    "\xff\xfe\xc0\xaf",
    "-1",
    "2147483648",
    "1e9",
    "\xd9\xa1\xd9\xa2",
};

struct Parameter {
    const char* name;
    const char* before; ///< the address up to the payload
    const char* after;
    std::vector<int> statuses;
};
const Parameter Parameters[] = {
    {"the recipe's page", "/halvane/recipe.asp?recID=", "", {404}},
    {"sending", "/halvane/sendrecipe.asp?recID=", "", {404}},
    {"the search", "/halvane/community.asp?q=", "", {200, 400}},
    {"the page number", "/halvane/community.asp?page=", "", {404}},
    {"the installation", "/halvane/community.asp?uid=", "", {200}},
    {"the front page", "/index.asp?ref=", "", {200}},
    {"the path of a recipe", "/halvane/api/recipes/", "", {404}},
    {"the path of ingredients", "/halvane/api/recipes/", "/ingredients", {404}},
    {"the path", "/halvane/", "", {404}},
};

std::string Encoded(const std::string& text) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        encoded.append({'%', digits[code >> 4], digits[code & 15]});
    }
    return encoded;
}

std::string GetOf(const std::string& address, const std::string& headers = {}) {
    return "GET " + address + " HTTP/1.1\r\nHost: x\r\nConnection: close\r\n" + headers + "\r\n";
}

std::string PostOf(const std::string& address, const std::string& body,
                   const std::string& headers = {}) {
    return "POST " + address + " HTTP/1.1\r\nHost: x\r\nConnection: close\r\nContent-Length: " +
           std::to_string(body.size()) + "\r\n" +
           (headers.find("Content-Type") == std::string::npos
                ? "Content-Type: application/json\r\n"
                : "") +
           headers + "\r\n" + body;
}

std::vector<Abuse> InParameters() {
    std::vector<Abuse> abuses;
    for (const auto& parameter : Parameters)
        for (const auto& payload : Payloads)
            abuses.push_back({payload + " in " + parameter.name,
                              GetOf(parameter.before + Encoded(payload) + parameter.after),
                              parameter.statuses});
    return abuses;
}

const std::string Api = "/halvane/api/recipes";

/// Requests that are broken, or have two meanings.
std::vector<Abuse> Malformed() {
    const std::string line = "POST " + Api + " HTTP/1.1\r\nHost: x\r\n";
    return {
        {"no request", "\r\n\r\n", {400}},
        {"noise", std::string("\x16\x03\x01\x02\x00\x01\x00\xfc\r\n\r\n", 12), {400}},
        {"another protocol", "HELO example.org\r\n\r\n", {400}},
        {"an old version", "GET /health HTTP/0.9\r\n\r\n", {400}},
        {"a coming version", "GET /health HTTP/3.0\r\n\r\n", {400}},
        {"a preface", "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n", {400, 404}},
        {"an unknown method", "BREW /health HTTP/1.1\r\nHost: x\r\n\r\n", {400}},
        {"a method that is not taken", "DELETE " + Api + "/5 HTTP/1.1\r\nHost: x\r\n\r\n", {405}},
        {"a trace", "TRACE /health HTTP/1.1\r\nHost: x\r\n\r\n", {400, 405}},
        {"a proxy's request", "CONNECT example.org:25 HTTP/1.1\r\nHost: x\r\n\r\n", {400, 404}},
        {"an address elsewhere", GetOf("http://example.org/"), {400, 404}},
        {"a blank in the path", "GET /a b HTTP/1.1\r\nHost: x\r\n\r\n", {400}},
        {"a control character in the path", "GET /a\x01 HTTP/1.1\r\nHost: x\r\n\r\n", {400}},
        {"a null in the path", std::string("GET /a\0b HTTP/1.1\r\n\r\n", 22), {400}},
        {"an encoded null", GetOf("/index.asp%00.txt"), {404}},
        {"an encoded path", GetOf("/%2e%2e/%2e%2e/etc/passwd"), {404}},
        {"two slashes", GetOf("//halvane/community.asp"), {404}},
        {"a file of the server", GetOf("/exchange.db"), {404}},
        {"a long path", GetOf("/" + std::string(9000, 'a')), {414}},
        {"a longer path", GetOf("/" + std::string(20000, 'a')), {431}},
        {"a long query", GetOf("/halvane/community.asp?q=" + std::string(5000, 'a')), {400}},
        {"many parameters", GetOf("/halvane/community.asp?" + std::string(3000, '&')), {200}},
        {"a long header", GetOf("/health", "X: " + std::string(9000, 'a') + "\r\n"), {200}},
        {"a head without end", "GET /health HTTP/1.1\r\n" + std::string(17000, 'a'), {431}},
        {"a header without a colon", GetOf("/health", "nothing\r\n"), {400}},
        {"a header without a name", GetOf("/health", ": x\r\n"), {400}},
        {"a blank before the colon", GetOf("/health", "X : x\r\n"), {400}},
        {"a folded header", GetOf("/health", "X: a\r\n b: c\r\n"), {400}},
        {"a null in a header", GetOf("/health", std::string("X: a\0b\r\n", 8)), {400}},
        {"a bare line end in a header", GetOf("/health", "X: a\nY: b\r\n"), {400}},
        {"two lengths", line + "Content-Length: 2\r\nContent-Length: 3\r\n\r\n{}", {400}},
        {"a list of lengths", line + "Content-Length: 2, 2\r\n\r\n{}", {400}},
        {"a negative length", line + "Content-Length: -1\r\n\r\n", {400}},
        {"a signed length", line + "Content-Length: +2\r\n\r\n{}", {400}},
        {"a hexadecimal length", line + "Content-Length: 0x2\r\n\r\n{}", {400}},
        {"an endless length", line + "Content-Length: 99999999999999999999999\r\n\r\n", {400}},
        {"a large length", line + "Content-Length: 2000000\r\n\r\n", {413}},
        {"an endless body",
         line + "Content-Length: 104857600\r\n\r\n" + std::string(300000, 'x'),
         {413}},
        {"chunks", line + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n0\r\n\r\n", {411}},
        {"chunks and a length",
         line + "Content-Length: 4\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\nGET /x",
         {411}},
        {"an odd encoding", line + "Transfer-Encoding: identity, xchunked\r\n\r\n", {411}},
        {"a packed body",
         line + "Content-Encoding: gzip\r\nContent-Length: 2\r\n\r\n\x1f\x8b",
         {415}},
        {"a body by invitation", line + "Expect: 100-continue\r\nContent-Length: 2\r\n\r\n", {417}},
        {"another protocol by upgrade", GetOf("/health", "Upgrade: h2c\r\n"), {400}},
        {"many ranges", GetOf("/halvane/style.css", "Range: bytes=0-,0-,0-,0-,0-,0-\r\n"), {200}},
        {"a broken range", GetOf("/halvane/style.css", "range: bytes=9-1\r\n"), {200}},
        {"a range of many digits",
         GetOf("/halvane/style.css", "RANGE: bytes=" + std::string(8000, '0') + "-\r\n"),
         {200}},
        {"a packed reply", GetOf("/halvane/community.asp", "Accept-Encoding: br, gzip\r\n"), {200}},
        {"another host",
         "GET /index.asp HTTP/1.1\r\nHost: evil.example\r\nConnection: close\r\n\r\n",
         {200}},
        {"an address to come from", GetOf("/health", "X-Forwarded-For: 10.0.0.1\r\n"), {200}},
        {"a form",
         PostOf(Api, "RecipeName=x", "Content-Type: application/x-www-form-urlencoded\r\n"),
         {415}},
        {"an upload",
         PostOf(Api, "--b\r\n\r\nx\r\n--b--",
                "Content-Type: multipart/form-data; "
                "boundary=b\r\n"),
         {415}},
    };
}

/// Bodies that no recipe has.
std::vector<Abuse> Bodies() {
    const char* const bodies[] = {
        "",
        "null",
        "[]",
        "7",
        "\"text\"",
        "{",
        "{}",
        "{\"RecipeName\":}",
        "{\"RecipeName\":\"x\"}",
        "\xef\xbb\xbf{}x",
        "{\"RecipeName\":\"\xff\xfe\",\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":\"a@b.cd\"}",
        "{\"RecipeName\":\"\\ud800\",\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":\"a@b.cd\"}",
        "{\"RecipeName\":7,\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":\"a@b.cd\"}",
        "{\"RecipeName\":[\"x\"],\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":\"a@b.cd\"}",
        "{\"RecipeName\":\"x\",\"EMAILTO\":\"a@b.cd\"}",
        "{\"RecipeName\":\"x\",\"EMAILFROM\":\"a@b.cd\"}",
        "{\"RecipeName\":\"x\",\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":\"a@b.cd\\r\\nBcc: c@d.ef\"}",
        "{\"RecipeName\":\"x\",\"EMAILFROM\":\"a@b.cd\\nX: y\",\"EMAILTO\":\"a@b.cd\"}",
        "{\"RecipeName\":\"x\",\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":[\"a@b.cd\",\"c@d.ef\"]}",
        "{\"RecipeName\":\"x\",\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":\"a@b.cd\",\"ISPUBLIC\":1}",
        "{\"RecipeName\":\"x\",\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":\"a@b.cd\",\"ISPUBLIC\":"
        "\"yes\"}",
        "{\"RecipeName\":\"x\",\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":\"a@b.cd\",\"PrepTime\":1e999}",
        "{\"RecipeName\":\"x\",\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":\"a@b.cd\",\"PrepTime\":\"5\"}",
        "{\"RecipeName\":\"x\",\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":\"a@b.cd\",\"PrepTime\":NaN}",
        "{\"RecipeName\":\"x\",\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":\"a@b.cd\",\"RecipeYield\":{}}",
        "{\"RecipeName\":\"x\",\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":\"a@b.cd\",\"Instructions\":7}",
    };
    std::vector<Abuse> abuses;
    for (const auto* body : bodies)
        abuses.push_back({std::string("the body ") + body, PostOf(Api, body), {400}});
    abuses.push_back({"a deep body", PostOf(Api, std::string(100000, '[')), {400}});
    abuses.push_back(
        {"a deep object", PostOf(Api, std::string(5000, '{') + std::string(5000, '}')), {400}});
    abuses.push_back({"a number without end", PostOf(Api, std::string(900000, '9')), {400}});
    return abuses;
}

/// Rows that no recipe takes, sent by its creator.
std::vector<Abuse> Rows(int id, const std::string& token) {
    const auto address = Api + "/" + std::to_string(id) + "/ingredients";
    const std::string creator = "Authorization: Bearer " + token + "\r\n";
    const std::string rows[] = {"7",
                                "{}",
                                "[7]",
                                "[[]]",
                                "[null]",
                                "[{\"Calories\":1}]",
                                "[[null,\"1\"]]",
                                "[[null,true]]",
                                "[[null,[1]]]",
                                "[[null,1e309]]",
                                "[[null,1],[null,1],7]",
                                "[[" + std::string(72, ' ') + "1" +
                                    [] {
                                        std::string more;
                                        for (int i = 0; i < 36; ++i)
                                            more += ",1";
                                        return more;
                                    }() +
                                    "]]"};
    std::vector<Abuse> abuses;
    for (const auto& row : rows)
        abuses.push_back(
            {"the rows " + row, PostOf(address, "{\"rows\":" + row + "}", creator), {400}});
    abuses.push_back({"no rows", PostOf(address, "{}", creator), {400}});
    std::string many = "[[null]";
    for (int i = 0; i < 500; ++i)
        many += ",[null]";
    abuses.push_back(
        {"too many rows", PostOf(address, "{\"rows\":" + many + "]}", creator), {413}});
    const std::string body = "{\"rows\":[[null,1]]}";
    for (const auto* forged :
         {"", "Bearer", "Bearer ", "Bearer x", "Bearer ' OR '1'='1", "Basic YTpi", "bearer",
          "Bearer 0000000000000000000000000000000000000000000000000000000000000000"})
        abuses.push_back({std::string("the token ") + forged,
                          PostOf(address, body, "Authorization: " + std::string(forged) + "\r\n"),
                          {403}});
    abuses.push_back({"a shortened token",
                      PostOf(address, body, "Authorization: Bearer " + token.substr(1) + "\r\n"),
                      {403}});
    abuses.push_back(
        {"the token for another recipe", PostOf(Api + "/77/ingredients", body, creator), {403}});
    return abuses;
}
} // namespace

/// Each request of the list is refused or neutral: the data stays as it is, and the next client is
/// served.
class AbuseTest : public ExchangeTest {
protected:
    std::string Data() {
        return Cell(
                   "SELECT CAST(COUNT(*) AS TEXT) || ' ' || COALESCE(MAX(RecipeName), '') || ' ' ||"
                   " CAST(SUM(IngredientCount) AS TEXT) || ' ' || CAST(SUM(SentAt) AS TEXT) || ' '"
                   " || CAST(SUM(MailedAt) AS TEXT) FROM recipes") +
               Cell("SELECT ' ' || CAST(COUNT(*) AS TEXT) FROM ingredients") +
               Cell("SELECT ' ' || MAX(RecipeText) || MAX(IngredientsText) FROM documents") +
               Cell("SELECT ' ' || CAST(COUNT(*) AS TEXT) FROM listing") +
               Cell("SELECT ' ' || CAST(COUNT(*) AS TEXT) FROM words");
    }

    void Try(const Abuse& abuse) {
        const auto reply = RawClient::Ask(Running().Port(), abuse.request);
        const auto status = RawClient::Status(reply);
        EXPECT_NE(std::find(abuse.statuses.begin(), abuse.statuses.end(), status),
                  abuse.statuses.end())
            << abuse.name << " gave " << status << "\n"
            << reply.substr(0, 300);
        const auto body = RawClient::Body(reply);
        for (const auto* live : {"<script", "<img src=x", "root:x:", "syntax error"})
            EXPECT_EQ(body.find(live), std::string::npos) << abuse.name << "\n" << body;
        EXPECT_EQ(reply.find("\nSet-Cookie"), std::string::npos) << abuse.name;
    }
};
ON_BOTH_DATABASES(AbuseTest);

TEST_P(AbuseTest, EachRequestOfTheListIsRefusedOrNeutral) {
    Start({{"misses_per_client_hour", "100000"}});
    Send();
    const auto open = Create();
    const auto before = Data();
    size_t tried = 0;
    for (const auto& list : {InParameters(), Malformed(), Bodies(), Rows(open.id, open.token)})
        for (const auto& abuse : list) {
            Try(abuse);
            ++tried;
        }
    EXPECT_GE(tried, 150U);
    EXPECT_EQ(Data(), before);
    EXPECT_EQ(Get("/ready")->status, 200);
    EXPECT_EQ(Running().End(), 0);
}

TEST_P(AbuseTest, WhatIsRefusedIsRefusedWithAReason) {
    Start();
    const auto get = [](const std::string& path) { return GetOf(path); };
    for (const auto& request :
         {get("/" + std::string(9000, 'a')), get("/halvane/api/recipes/77"),
          get("/health").replace(0, 3, "BREW"), PostOf("/health", "").replace(0, 4, "ODD"),
          PostOf(Api, "x"), PostOf(Api, "{}", "Transfer-Encoding: chunked\r\n"),
          std::string("no request\r\n\r\n")}) {
        const auto reply = RawClient::Ask(Running().Port(), request);
        EXPECT_GE(RawClient::Status(reply), 400);
        const auto body = json::parse(RawClient::Body(reply), nullptr, false);
        EXPECT_TRUE(body.is_object() && body["reason"].is_string()) << reply;
    }
}

TEST_P(AbuseTest, AMethodThatIsNotTakenIsToldThoseThatAre) {
    Start();
    const auto of = [&](const std::string& path) {
        const auto reply = Running().Client().Delete(path);
        EXPECT_EQ(reply->status, 405) << path;
        return reply->get_header_value("Allow");
    };
    EXPECT_EQ(of("/halvane/api/recipes/5/ingredients"), "GET, HEAD, POST");
    EXPECT_EQ(of("/halvane/api/recipes"), "POST");
    EXPECT_EQ(of("/index.asp"), "GET, HEAD");
}

TEST_P(AbuseTest, MarkupInEveryTextIsShownAndNotObeyed) {
    Start();
    const std::string markup = "<b onclick='x'>\"&{{id}}{{{id}}}</b>";
    auto recipe = Soup();
    for (const auto* field : {"RecipeName", "ServingName", "Instructions"})
        recipe[field] = markup;
    auto row = Row(1, markup);
    row[33] = markup;
    const auto id = std::to_string(Send(recipe, json::array({row})));
    for (const auto& path :
         {"/halvane/recipe.asp?recID=" + id, std::string("/halvane/community.asp"),
          "/halvane/community.asp?q=" + Encoded(markup)}) {
        const auto page = Text(path);
        EXPECT_EQ(page.find("<b "), std::string::npos) << path;
        EXPECT_NE(page.find("&lt;b onclick=&apos;x&apos;&gt;&quot;&amp;{{id}}{{{id}}}&lt;/b&gt;"),
                  std::string::npos)
            << path;
    }
}

TEST_P(AbuseTest, EveryReplyHasTheStrictHeaders) {
    Start();
    const auto id = std::to_string(Send());
    for (const auto& path :
         {std::string("/"), std::string("/index.asp?ref=Halvane"),
          "/halvane/recipe.asp?recID=" + id, std::string("/halvane/community.asp?uid=5"),
          "/halvane/api/recipes/" + id, std::string("/nothing"),
          "/halvane/sendrecipe.asp?recID=" + id}) {
        const auto reply = Get(path);
        const auto policy = reply->get_header_value("Content-Security-Policy");
        EXPECT_NE(policy.find("default-src 'none'"), std::string::npos) << path;
        EXPECT_EQ(policy.find("script"), std::string::npos);
        EXPECT_EQ(policy.find("unsafe"), std::string::npos);
        EXPECT_EQ(reply->get_header_value("X-Content-Type-Options"), "nosniff");
        EXPECT_EQ(reply->get_header_value("Referrer-Policy"), "no-referrer");
        EXPECT_TRUE(reply->get_header_value("Date").ends_with(" GMT")) << path;
        EXPECT_EQ(reply->get_header_value_count("Set-Cookie"), 0U);
    }
}

TEST_P(AbuseTest, ASendRepeatedWordForWordChangesNothing) {
    Start();
    const auto created = Create();
    const auto path = Api + "/" + std::to_string(created.id) + "/ingredients";
    const json rows = {{"rows", json::array({Row(1)})}};
    Post(path, rows, created.token);
    Text("/halvane/sendrecipe.asp?recID=" + std::to_string(created.id));
    const auto before = Data();
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(Post(path, rows, created.token)->status, 409);
        Text("/halvane/sendrecipe.asp?recID=" + std::to_string(created.id));
    }
    EXPECT_EQ(Data(), before);
}
