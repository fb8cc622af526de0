#include "exchange/NoMail.h"

#include "exchange/MailAddress.h"
#include "exchange/Moment.h"
#include "exchange/Secrets.h"

namespace exchange {
namespace {
constexpr size_t DigestSize = 40;
} // namespace

std::string NoMail::DigestOf(std::string_view address) const {
    return Secrets::Keyed(secret_, "no mail:" + MailboxOf(address)).substr(0, DigestSize);
}

std::string NoMail::SealOf(std::string_view digest) const {
    return Secrets::Keyed(secret_, "no mail token:" + std::string(digest)).substr(0, DigestSize);
}

std::string NoMail::TokenFor(std::string_view address) const {
    const auto digest = DigestOf(address);
    return digest + SealOf(digest);
}

bool NoMail::IsToken(std::string_view token) const {
    return token.size() == 2 * DigestSize &&
           Secrets::Equal(token.substr(DigestSize), SealOf(token.substr(0, DigestSize)));
}

bool NoMail::Note(Connection& connection, std::string_view token) const {
    if (!IsToken(token))
        return false;
    const std::string digest(token.substr(0, DigestSize));
    const auto now = Moment::Now();
    connection.Change("INSERT INTO no_mail (Digest, Since) VALUES (:digest, :now)"
                      " ON CONFLICT DO NOTHING",
                      soci::use(digest), soci::use(now));
    return true;
}

bool NoMail::Holds(Connection& connection, std::string_view address) const {
    const auto digest = DigestOf(address);
    long long since = 0;
    return connection.First("SELECT Since FROM no_mail WHERE Digest = :digest", soci::use(digest),
                            soci::into(since));
}

} // namespace exchange
