#include "abuse/Abuse.h"

namespace AbuseCases {
namespace {
using namespace Raw;
const std::string Foreign = "Sec-Fetch-Site: cross-site\r\n";
const std::string Good = Recipe(R"("RecipeName":"x")");
const std::string Report = "recID={sent}&complaint=offence&words=x&token={form}";

std::string Send(const std::string& id) {
    return "/halvane/sendrecipe.asp?recID=" + id;
}
std::string Page(const std::string& id) {
    return "/halvane/recipe.asp?recID=" + id;
}
std::string NoMail(const std::string& token) {
    return "/halvane/nomail.asp?token=" + token;
}
std::string ReportOf(const std::string& fields, const std::string& headers = Form) {
    return Post("/halvane/report.asp", fields, headers);
}
} // namespace

Abuses CrossSite() {
    const auto rows = Api + "/{open}/ingredients";
    const std::string creator = "Authorization: Bearer {token}\r\n";
    return {
        {"a foreign page makes a recipe", Post(Api, Good, Json + Foreign), 403},
        {"a foreign page adds ingredients",
         Post(rows, R"({"rows":[[null,1]]})", Json + creator + Foreign), 403},
        {"a foreign page sends a recipe", Get(Send("{open}"), Foreign), 403},
        {"a foreign picture sends a recipe",
         Get(Send("{open}"), Foreign + "Sec-Fetch-Dest: image\r\n"), 403},
        {"a foreign page reports a recipe", ReportOf(Report, Form + Foreign), 403},
        {"a foreign page ends the mails", Post(NoMail("{link}"), "", Form + Foreign), 403},
        {"a foreign page leads to a recipe", Get(Page("{sent}"), Foreign), 200},
        {"a foreign page leads to the list", Get("/halvane/community.asp", Foreign), 200},
        {"a foreign page leads to the front page", Get("/index.asp", Foreign), 200},
        {"a foreign page leads to the form of a mail", Get(NoMail("{link}"), Foreign), 200},
        {"a header of the mark in other letters",
         Post(Api, Good, Json + "SEC-FETCH-SITE: cross-site\r\n"), 403},
        {"a foreign form makes a recipe",
         Post(Api,
              "{\"RecipeName\":\"x\",\"EMAILFROM\":\"a@b.cd\",\"EMAILTO\":\"a@b.cd\",\"y\":\"=\"}",
              "Content-Type: text/plain\r\n"),
         415},
        {"a question before a foreign request",
         "OPTIONS " + Api +
             " HTTP/1.1\r\nHost: x\r\nOrigin: https://evil.example\r\n"
             "Access-Control-Request-Method: POST\r\n\r\n",
         405},
        {"a head request sends no recipe",
         "HEAD " + Send("{open}") + " HTTP/1.1\r\nHost: x\r\nConnection: close\r\n\r\n", 404},
        {"a head request ends no mails",
         "HEAD " + NoMail("{link}") + " HTTP/1.1\r\nHost: x\r\nConnection: close\r\n\r\n", 200},
        {"a look at the link of a mail ends no mails", Get(NoMail("{link}")), 200,
         "Send me no more mail"},
        {"a link of a mail that is cut", Get(NoMail("0123")), 404},
        {"a link of a mail that is forged", Post(NoMail(std::string(80, '0')), "", Form), 404},
        {"a link of a mail without its token", Post("/halvane/nomail.asp", "", Form), 404},
    };
}

Abuses Moderation() {
    const auto with = [](const std::string& fields) {
        return "recID={sent}&token={form}" + fields;
    };
    return {
        {"a hidden recipe is not read", Get(Api + "/{hidden}"), 404},
        {"its ingredients are not read", Get(Api + "/{hidden}/ingredients"), 404},
        {"its page is not shown", Get(Page("{hidden}")), 404},
        {"it is not sent again", Get(Send("{hidden}")), 404},
        {"it is not found", Get("/halvane/community.asp?q=hidden"), 200, "Nothing found"},
        {"it takes no ingredients", Post(Api + "/{hidden}/ingredients", R"({"rows":[[null,1]]})"),
         403},
        {"a report without a form", ReportOf(""), 403},
        {"a report without a token", ReportOf("recID={sent}&complaint=offence"), 403},
        {"a report with a forged token",
         ReportOf("recID={sent}&complaint=offence&token=" + std::string(40, '0')), 403},
        {"a report with the token of another recipe",
         ReportOf("recID={open}&complaint=offence&token={form}"), 403},
        {"a report of no recipe", ReportOf("recID=7&complaint=offence&token={form}"), 403},
        {"a report of a recipe that is no number",
         ReportOf("recID=1%20OR%201%3D1&complaint=offence&token={form}"), 403},
        {"a report of an unknown complaint", ReportOf(with("&complaint=x")), 400},
        {"a report without a complaint", ReportOf(with("")), 400},
        {"a report in words that are no UTF-8", ReportOf(with("&complaint=other&words=%ff")), 400},
        {"a report of 20,000 letters",
         ReportOf(with("&complaint=other&words=" + std::string(20'000, 'x'))), 413},
        {"a report as JSON", ReportOf("{}", Json), 415},
        {"a report by a GET", Get("/halvane/report.asp?" + Report), 405},
        {.name = "a report of hostile words",
         .request = ReportOf(with("&complaint=other&words=" +
                                  Encoded("'; DROP TABLE reports; --\x1b[2J\xe2\x80\xae\r\n"))),
         .status = 200,
         .said = "Thank you",
         .absent = "SELECT COUNT(*) FROM reports WHERE Words LIKE '%\x1b%'"
                   " OR Words LIKE '%\r%' OR Words LIKE '%\xe2\x80\xae%'",
         .changes = true},
        {.name = "thirty reports of one client",
         .request = ReportOf(with("&complaint=other")),
         .status = 429,
         .times = 30,
         .absent = "SELECT COUNT(*) FROM (SELECT RecipeID FROM reports GROUP BY RecipeID"
                   " HAVING COUNT(*) > 20) r",
         .changes = true},
    };
}

} // namespace AbuseCases
