#include "abuse/Abuse.h"

namespace AbuseCases {
namespace {
using namespace Raw;

/// Texts that mean something to somebody.
const std::string Payloads[] = {
    "<script>alert(1)</script>",
    "\"><img src=x onerror=alert(1)>",
    "</title><script>",
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
    "-1",
    "2147483648",
    "1e9",
    "\xd9\xa1\xd9\xa2",
    "\xe2\x80\xae"
    "gpj.exe",
    "\xc2\x9b"
    "2J",
    "\x1b[2J",
    "javascript:alert(1)",
    "=HYPERLINK(\"http://evil.example\")",
};

/// Neither a page nor a mail nor a header of a reply obeys a text. It is kept as it is.
Abuse InRecipe(const std::string& payload) {
    const auto quoted = Quoted(payload);
    return {.name = "the text " + payload,
            .request = Get("/halvane/sendrecipe.asp?recID={new}"),
            .status = 200,
            .said = "is stored under the recipe ID",
            .before =
                Post(Api, Recipe("\"ISPUBLIC\":true,\"RecipeName\":" + quoted +
                                 ",\"ServingName\":" + quoted + ",\"Instructions\":" + quoted)),
            .absent = "SELECT COUNT(*) FROM listing WHERE RecipeName LIKE '%\x1b%'"
                      " OR RecipeName LIKE '%\xe2\x80\xae%' OR RecipeName LIKE '%\xc2\x9b%'"
                      " OR RecipeName LIKE '%\r%' OR RecipeName LIKE '%\n%'",
            .changes = true};
}

struct Parameter {
    const char* name;
    const char* before; ///< the address up to the payload
    const char* after;
    int status;
};
constexpr Parameter InAddress[] = {
    {"the recipe's page", "/halvane/recipe.asp?recID=", "", 404},
    {"sending", "/halvane/sendrecipe.asp?recID=", "", 404},
    {"the page number", "/halvane/community.asp?page=", "", 404},
    {"the installation", "/halvane/community.asp?uid=", "", 200},
    {"the front page", "/index.asp?ref=", "", 200},
    {"the path of a recipe", "/halvane/api/recipes/", "", 404},
    {"the path of ingredients", "/halvane/api/recipes/", "/ingredients", 404},
    {"the path", "/halvane/", "", 404},
    {"the link of a mail", "/halvane/nomail.asp?token=", "", 404},
};
} // namespace

Abuses Texts() {
    Abuses all;
    for (const auto& payload : Payloads)
        all.push_back(InRecipe(payload));
    return all;
}

Abuses Parameters() {
    Abuses all;
    for (const auto& parameter : InAddress)
        for (const auto& payload : Payloads)
            all.push_back({payload + " in " + parameter.name,
                           Get(parameter.before + Encoded(payload) + parameter.after),
                           parameter.status});
    return all;
}

Abuses Search() {
    const auto find = [](const std::string& words) {
        return Get("/halvane/community.asp?q=" + Encoded(words));
    };
    Abuses all;
    for (const auto* words : {"*",
                              "a*",
                              "\"",
                              "\"lentil",
                              "lentil\"",
                              "(",
                              ")",
                              "lentil AND",
                              "AND",
                              "OR",
                              "NOT",
                              "NEAR",
                              "NEAR(lentil soup, 1)",
                              "lentil NOT soup",
                              "RecipeName:lentil",
                              "name : x",
                              "^lentil",
                              "lentil + soup",
                              "- lentil",
                              "lentil & soup",
                              "lentil | soup",
                              "!lentil",
                              "lentil <-> soup",
                              "lentil:*",
                              "'lentil'",
                              "''",
                              "\\",
                              "lentil\\",
                              "%",
                              "_",
                              "[a-z]",
                              ";",
                              "--",
                              "/*",
                              "\xc3\xa4pfel",
                              "\xf0\x9f\x8d\xae",
                              "\xcc\x88",
                              "\xe2\x80\x8b",
                              "lentil, soup; onion / pie"})
        all.push_back({"a search for " + std::string(words), find(words), 200});
    all.push_back({"a long search", find(std::string(201, 'a')), 400});
    all.push_back({"a search of 200 letters", find(std::string(200, 'a')), 200});
    all.push_back({"a search of many words", find("a b c d e f g h i j k l m n o p q r s t"), 200});
    all.push_back({"a null in a search", find(std::string("a\0b", 3)), 400});
    all.push_back({"a line end in a search", find("a\nb"), 400});
    all.push_back({"a search that is no UTF-8", find("\xff\xfe"), 400});
    all.push_back(
        {"a search beyond the last page", Get("/halvane/community.asp?q=soup&page=501"), 404});
    all.push_back({"the page 0", Get("/halvane/community.asp?page=0"), 404});
    all.push_back({"the last page", Get("/halvane/community.asp?page=500"), 200});
    all.push_back({"two searches", Get("/halvane/community.asp?q=soup&q=pie"), 200});
    return all;
}

} // namespace AbuseCases
