#pragma once

#include <span>
#include <string>
#include <vector>

/// A request of a hostile or broken client, and its expected outcome. In the texts
/// {open} and {token} are an unfinished recipe, {sent} a public one, {hidden} a hidden one, {form}
/// the token of the form that reports {sent}, {link} that of a mail, and {new} the recipe of
/// `before`.
struct Abuse {
    std::string name;
    std::string request; ///< byte for byte
    int status;
    std::string said = {};   ///< stands in the reply
    std::string before = {}; ///< a request that makes a recipe first
    int times = 1;           ///< how often the request is sent; the last reply counts
    std::string absent = {}; ///< SQL that must count nothing afterwards
    bool changes = false;    ///< it may add rows; otherwise every table stays as it is
};
using Abuses = std::vector<Abuse>;

/// The cases, by what they attack.
namespace AbuseCases {
Abuses Framing();
Abuses Shapes();
Abuses Rows();
Abuses Texts();
Abuses Parameters();
Abuses MailAddresses();
std::span<const char* const> NoMailAddresses(); ///< texts that are not one mail address
Abuses CrossSite();
Abuses Search();
Abuses Moderation();
Abuses Networks();
} // namespace AbuseCases

/// How requests are written.
namespace Raw {
inline const std::string Api = "/halvane/api/recipes";
inline const std::string Json = "Content-Type: application/json\r\n";
inline const std::string Form = "Content-Type: application/x-www-form-urlencoded\r\n";

std::string Get(const std::string& address, const std::string& headers = {});
std::string Post(const std::string& address, const std::string& body,
                 const std::string& headers = Json);
std::string Recipe(const std::string& fields); ///< a body with both addresses and these fields
std::string Encoded(const std::string& text);  ///< every byte of it
std::string Quoted(const std::string& text);   ///< as a JSON text
} // namespace Raw
