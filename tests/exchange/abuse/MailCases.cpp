#include "abuse/Abuse.h"

namespace AbuseCases {
namespace {
using namespace Raw;

const char* const NoAddresses[] = {
    "bert",
    "bert@",
    "@example.org",
    "bert@host",
    "a b@example.org",
    "a@b@example.org",
    "bert@example.org,carl@example.org",
    "bert@example.org;carl@example.org",
    "bert@example.org carl@example.org",
    "Bert <bert@example.org>",
    "<bert@example.org>",
    "bert@example..org",
    ".bert@example.org",
    "bert.@example.org",
    "b..t@example.org",
    "bert@-example.org",
    "bert@example-.org",
    "\"bert\"@example.org",
    "\"a b\"@example.org",
    "bert@[127.0.0.1]",
    "bert@[IPv6:::1]",
    "bert@127.0.0.1",
    "bert@localhost",
    "bert@example.org.",
    "bert@example.org>",
    "b\xc3\xb6t@example.org",
    "bert@ex\xc3\xa4mple.org",
    "bert(x)@example.org",
    "bert%other.example@example.org",
    "other.example!bert@example.org",
    "|mail@example.org",
    "/etc/passwd@example.org",
    "`id`@example.org",
    "$HOME@example.org",
    "{a,b}@example.org",
    "*@example.org",
    "-oQ/tmp@example.org",
    "bert@example.org?bcc=x",
    "mailto:bert@example.org",
    "bert@example.org%0aBcc:x",
    "bert\\@example.org",
    "bert@ex_ample.org",
    ".b@example.org",
    "b.@example.org",
    "b..m@example.org",
    "bert@example_x.org",
    "bert:x@example.org",
    "a@",
    "bert|mail@example.org",
    "~/x@example.org",
    "#1@example.org",
    "a?b@example.org",
    "a^b@example.org",
    "-oQ@example.org",
};

Abuse Refused(const std::string& field, const std::string& other, const std::string& address) {
    return {.name = address + " as " + field,
            .request = Get("/halvane/sendrecipe.asp?recID={new}"),
            .status = 200,
            .said = "email address is not valid",
            .before = Post(Api, "{\"RecipeName\":\"x\",\"" + other + "\":\"a@b.cd\",\"" + field +
                                    "\":" + Quoted(address) + "}"),
            .absent = "SELECT COUNT(*) FROM documents WHERE RecipeID = {new}",
            .changes = true};
}
} // namespace

std::span<const char* const> NoMailAddresses() {
    return NoAddresses;
}

Abuses MailAddresses() {
    Abuses all;
    for (const auto* address : NoAddresses)
        all.push_back(Refused("EMAILTO", "EMAILFROM", address));
    for (const auto* address : {"bert", "bert@host", "a@b.cd,e@f.gh", "x%y@example.org"})
        all.push_back(Refused("EMAILFROM", "EMAILTO", address));
    return all;
}

} // namespace AbuseCases
