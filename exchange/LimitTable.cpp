#include "exchange/LimitTable.h"

#include "exchange/Forms.h"
#include "exchange/JsonReader.h"
#include "exchange/MailAddress.h"
#include "exchange/Reports.h"
#include "exchange/RequestHead.h"
#include "exchange/Words.h"

#include <algorithm>

namespace exchange {
namespace {
constexpr int Many = 1'000'000'000;

constexpr Limit Fixed(const char* name, size_t amount, const char* unit, const char* reason,
                      const char* beyond) {
    const int most = static_cast<int>(amount);
    return {name, nullptr, nullptr, most, most, unit, reason, beyond};
}

constexpr Limit Table[] = {
    {"connections", "connections", &Config::connections, 1, 100'000, "",
     "each takes a descriptor and memory", "the network with the most loses one"},
    {"connections of a client", "connections_per_client", &Config::connections_per_client, 1,
     100'000, "", "a client needs few", "503"},
    {"workers", "workers", &Config::workers, 1, 256, "threads",
     "each has a connection to the database", "a request waits for its turn"},
    {"time for a request", "request_seconds", &Config::request_seconds, 1, 300, "seconds",
     "a slow client must not keep its connection", "408"},
    {"silence on a connection", "idle_seconds", &Config::idle_seconds, 1, 300, "seconds",
     "most clients ask again within it", "closed"},
    {"a body", "body_bytes", &Config::body_bytes, 1024, 64 << 20, "bytes",
     "holds the largest recipe", "413"},
    {"bodies that arrive at once", "bodies_bytes", &Config::bodies_bytes, 1 << 20, 1 << 30, "bytes",
     "they are held in memory", "503 for the largest one of the network with the most"},
    {"ingredients of a recipe", "ingredients_per_recipe", &Config::ingredients_per_recipe, 1,
     10'000, "", "no meal has more", "413"},
    {"recipes of a client", "recipes_per_client_day", &Config::recipes_per_client_day, 0, Many,
     "a day", "nobody writes more", "429"},
    {"recipes of all", "recipes_per_day", &Config::recipes_per_day, 0, Many, "a day",
     "the disk must not fill up", "429; a network gets a tenth at most"},
    {"mails of a client", "mails_per_client_day", &Config::mails_per_client_day, 0, Many, "a day",
     "nobody can send mail to many people", "sent without mail; the reply says so"},
    {"mails to a recipient", "mails_per_recipient_day", &Config::mails_per_recipient_day, 0, Many,
     "a day", "nobody is flooded with mail", "sent without mail; the reply says so"},
    {"mails of all", "mails_per_day", &Config::mails_per_day, 0, Many, "a day",
     "the relay must not get a bad name", "sent without mail; the reply says so"},
    {"unknown IDs asked for by a client", "misses_per_client_hour", &Config::misses_per_client_hour,
     1, 1'000'000, "an hour", "nobody can guess IDs", "429 for every ID"},
    {"unknown IDs asked for by all", "misses_per_hour", &Config::misses_per_hour, 1, Many,
     "an hour", "nor can many clients together", "the limit of each client falls to a tenth"},
    {"reports of a client", "reports_per_client_day", &Config::reports_per_client_day, 0, Many,
     "a day", "the operator reads each", "429"},
    {"reports of all", "reports_per_day", &Config::reports_per_day, 0, Many, "a day",
     "the operator reads each", "429"},
    {"searches of a client", "searches_per_client_minute", &Config::searches_per_client_minute, 1,
     1'000'000, "a minute", "a search costs the most", "429"},
    {"pages of a client", "pages_per_client_minute", &Config::pages_per_client_minute, 1, 1'000'000,
     "a minute", "no reader opens more", "429"},
    {"a recipe that is never sent", "unfinished_hours", &Config::unfinished_hours, 1, 1000, "hours",
     "its sender has given up", "deleted"},
    {"addresses of a sent recipe", "address_days", &Config::address_days, 0, 3650, "days",
     "needed to answer complaints", "deleted"},
    {"time for a mail", "mail_seconds", &Config::mail_seconds, 1, 25, "seconds", "a relay may hang",
     "tried again later"},
    {"pause before the second try", "mail_retry_seconds", &Config::mail_retry_seconds, 1, 3600,
     "seconds", "many relays refuse a first try", "doubled after each try, for two days"},
    Fixed("the head of a request", RequestHead::Largest, "bytes", "browsers send less", "431"),
    Fixed("the address of a page", RequestHead::LongestTarget, "bytes", "all our links are shorter",
          "414"),
    Fixed("a mail address", LongestMailAddress, "bytes", "no mailbox has a longer one", "400"),
    Fixed("nesting of arrays and objects", JsonReader::DeepestNesting, "levels",
          "no body needs more", "400"),
    Fixed("a form", Forms::Largest, "bytes", "holds the longest report", "413"),
    Fixed("the text of a report", Reports::LongestWords, "letters", "the operator reads each",
          "the rest is cut off"),
    Fixed("reports of a recipe", Reports::MostOfARecipe, "", "enough to decide", "not kept"),
    Fixed("words of a recipe", Words::MostOfARecipe, "", "no recipe is found by every search",
          "only the first ones are found"),
};
} // namespace

std::span<const Limit> AllLimits() {
    return Table;
}

std::span<const Limit> SettableLimits() {
    const auto end = std::find_if(std::begin(Table), std::end(Table),
                                  [](const Limit& limit) { return limit.IsFixed(); });
    return {std::begin(Table), end};
}

std::string Limit::Row() const {
    const auto amount = std::to_string(Default()) + (*unit ? " " : "") + unit;
    const auto how = IsFixed() ? std::string("fixed") : std::string("`") + setting + "`";
    return std::string("| ") + name + " | " + how + " | " + amount + " | " + reason + " | " +
           beyond + " |";
}

} // namespace exchange
