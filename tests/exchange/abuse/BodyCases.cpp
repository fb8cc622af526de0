#include "abuse/Abuse.h"

namespace AbuseCases {
namespace {
using namespace Raw;

std::string Repeated(const std::string& piece, size_t bytes = 1'000'000) {
    std::string text;
    while (text.size() < bytes)
        text += piece;
    return text;
}

Abuse Refused(const std::string& name, const std::string& body) {
    return {name, Post(Api, body), 400};
}

/// Bodies that are no object.
const char* const Broken[] = {
    "",
    "null",
    "[]",
    "7",
    "\"text\"",
    "true",
    "{",
    "}",
    "{}",
    "{]",
    "[}",
    "{\"RecipeName\":}",
    "{\"RecipeName\"}",
    "{RecipeName:\"x\"}",
    "{'RecipeName':'x'}",
    "{\"RecipeName\":\"x\",}",
    "{\"RecipeName\":\"x\"}",
    "{\"RecipeName\":\"x\"",
    "{}{}",
    "{} x",
    "\xef\xbb\xbf{}x",
    "\xff\xfe{\x00}",
    "// comment\n{}",
    "{\"a\":01}",
    "{\"a\":1.}",
    "{\"a\":.5}",
    "{\"a\":+1}",
    "{\"a\":0x10}",
    "{\"a\":1e}",
    "{\"a\":NaN}",
    "{\"a\":Infinity}",
    "{\"a\":undefined}",
    "{\"a\":tru}",
    "{\"a\":\"\\x41\"}",
    "{\"a\":\"\\u12\"}",
    "{\"a\":\"\\ud800\"}",
    "{\"a\":\"\\udc00\"}",
    "{\"a\":\"\t\"}",
    "{\"a\":\"\n\"}",
    "<?xml version=\"1.0\"?><a/>",
};

/// Fields of a recipe that are none.
const char* const Fields[] = {
    R"("RecipeName":"")",
    R"("RecipeName":7)",
    R"("RecipeName":true)",
    R"("RecipeName":["x"])",
    R"("RecipeName":{"a":"x"})",
    R"("RecipeName":"x","EMAILTO":"")",
    R"("RecipeName":"x","EMAILTO":" ")",
    R"("RecipeName":"x","EMAILTO":null)",
    R"("RecipeName":"x","EMAILFROM":"\t")",
    R"("RecipeName":"x","EMAILFROM":7)",
    R"("RecipeName":"x","EMAILTO":["a@b.cd","c@d.ef"])",
    R"("RecipeName":"x","EMAILTO":"a@b.cd\r\nBcc: c@d.ef")",
    R"("RecipeName":"x","EMAILTO":"a@b.cd\u0000")",
    R"("RecipeName":"x","EMAILFROM":"a@b.cd\nX: y")",
    R"("RecipeName":"x","EMAILFROM":"a@b.cd\u007f")",
    R"("RecipeName":"x","ISPUBLIC":1)",
    R"("RecipeName":"x","ISPUBLIC":"yes")",
    R"("RecipeName":"x","ISPUBLIC":[])",
    R"("RecipeName":"x","PrepTime":1e999)",
    R"("RecipeName":"x","PrepTime":-1e999)",
    R"("RecipeName":"x","PrepTime":"5")",
    R"("RecipeName":"x","PrepTime":[5])",
    R"("RecipeName":"x","RecipeYield":{})",
    R"("RecipeName":"x","RecipeYield":true)",
    R"("RecipeName":"x","Instructions":7)",
    R"("RecipeName":"x","Instructions":["a","b"])",
    R"("RecipeName":"x","ServingName":false)",
    R"("RecipeName":"x","other":[[[[1]]]])",
};

Abuses Large() {
    return {
        Refused("a mebibyte of empty objects", "[" + Repeated("{},") + "{}]"),
        Refused("a mebibyte of empty arrays", "[" + Repeated("[],") + "[]]"),
        Refused("rows of empty objects", "{\"rows\":[" + Repeated("{},") + "{}]}"),
        Refused("a deep array", Repeated("[")),
        Refused("a deep object", Repeated("{\"a\":")),
        Refused("a deep array that ends", Repeated("[", 5000) + Repeated("]", 5000)),
        Refused("a number of a mebibyte", Repeated("9")),
        Refused("a fraction of a mebibyte", "0." + Repeated("9")),
        Refused("a text of a mebibyte", "\"" + Repeated("x") + "\""),
        Refused("a text of a mebibyte without end", "\"" + Repeated("x")),
        Refused("a mebibyte of escapes", "\"" + Repeated("\\u00e9") + "\""),
        Refused("a mebibyte of keys", "{" + Repeated("\"RecipeName\":\"x\",") + "\"a\":1}"),
        Refused("a mebibyte of blanks", Repeated(" ")),
        Refused("a mebibyte of noise", Repeated("\xff")),
        Refused("an address of many bytes",
                Recipe(R"("RecipeName":"x","EMAILTO":")" + std::string(321, 'a') + "\"")),
        Refused("texts that are no UTF-8", Recipe("\"RecipeName\":\"\xff\xfe\"")),
        Refused("a text with half a letter", Recipe("\"RecipeName\":\"\xc3\"")),
        Refused("a text with a long form", Recipe("\"RecipeName\":\"\xc0\xaf\"")),
        Refused("a text with half a pair", Recipe("\"RecipeName\":\"\xed\xa0\x80\"")),
    };
}
} // namespace

Abuses Shapes() {
    auto all = Large();
    for (const auto* body : Broken)
        all.push_back(Refused("the body " + std::string(body), body));
    for (const auto* fields : Fields)
        all.push_back(Refused("the fields " + std::string(fields), Recipe(fields)));
    return all;
}

Abuses Rows() {
    const auto address = Api + "/{open}/ingredients";
    const std::string creator = Json + "Authorization: Bearer {token}\r\n";
    const std::string body = R"({"rows":[[null,1]]})";
    Abuses all;
    for (const auto* rows :
         {"7", "null", "{}", "\"x\"", "[7]", "[null]", "[[]]", "[{\"Calories\":1}]",
          "[[null,\"1\"]]", "[[null,true]]", "[[null,[1]]]", "[[null,{}]]", "[[null,1e309]]",
          "[[null,1],[null,1],7]", "[[null,1],[]]", "[[[[1]]]]",
          "[[0,1,2,3,4,5,6,7,8,9,0,1,2,3,4,5,6,7,8,9,0,1,2,3,4,5,6,7,8,9,0,1,\"f\",\"s\",4,5,6]]"})
        all.push_back({"the rows " + std::string(rows),
                       Post(address, "{\"rows\":" + std::string(rows) + "}", creator), 400});
    all.push_back({"no rows", Post(address, "{}", creator), 400});
    all.push_back({"rows of empty objects",
                   Post(address, "{\"rows\":[" + Repeated("{},") + "{}]}", creator), 400});
    all.push_back(
        {"too many rows",
         Post(address, "{\"rows\":[" + Repeated("[null],", 500 * 7) + "[null]]}", creator), 413});
    for (const auto* forged :
         {"", "Bearer", "Bearer ", "Bearer x", "Bearer ' OR '1'='1", "Basic YTpi", "bearer",
          "Bearer %00", "Bearer null",
          "Bearer 0000000000000000000000000000000000000000000000000000000000000000"})
        all.push_back({"the token " + std::string(forged),
                       Post(address, body, Json + "Authorization: " + forged + "\r\n"), 403});
    all.push_back({"no token", Post(address, body), 403});
    all.push_back({"the token with a letter more",
                   Post(address, body, Json + "Authorization: Bearer {token}0\r\n"), 403});
    all.push_back(
        {"the token for another recipe", Post(Api + "/77/ingredients", body, creator), 403});
    all.push_back({"ingredients for a recipe that is sent",
                   Post(Api + "/{sent}/ingredients", body, creator), 403});
    return all;
}

} // namespace AbuseCases
