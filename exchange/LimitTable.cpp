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
     "each takes a descriptor and a buffer", "the network that holds most gives one up"},
    {"connections of a client", "connections_per_client", &Config::connections_per_client, 1,
     100'000, "", "a client needs few", "503"},
    {"workers", "workers", &Config::workers, 1, 256, "threads",
     "each has its own connection to the "
     "database",
     "a request waits for its client's turn"},
    {"time for a request", "request_seconds", &Config::request_seconds, 1, 300, "seconds",
     "slow clients give their place back", "408"},
    {"silence on a connection", "idle_seconds", &Config::idle_seconds, 1, 300, "seconds",
     "a browser comes back within it", "closed"},
    {"a body", "body_bytes", &Config::body_bytes, 1024, 64 << 20, "bytes",
     "holds the largest recipe", "413"},
    {"bodies that arrive at once", "bodies_bytes", &Config::bodies_bytes, 1 << 20, 1 << 30, "bytes",
     "they are held in memory", "503 for the largest of the network that holds most"},
    {"ingredients of a recipe", "ingredients_per_recipe", &Config::ingredients_per_recipe, 1,
     10'000, "", "more than any meal has", "413"},
    {"recipes of a client", "recipes_per_client_day", &Config::recipes_per_client_day, 0, Many,
     "a day", "nobody cooks more", "429"},
    {"recipes of all", "recipes_per_day", &Config::recipes_per_day, 0, Many, "a day",
     "the disk does not fill", "429; a network has at most a tenth"},
    {"mails of a client", "mails_per_client_day", &Config::mails_per_client_day, 0, Many, "a day",
     "not a way to send mail to many", "sent without mail, and told so"},
    {"mails to a recipient", "mails_per_recipient_day", &Config::mails_per_recipient_day, 0, Many,
     "a day", "nobody is flooded", "sent without mail, and told so"},
    {"mails of all", "mails_per_day", &Config::mails_per_day, 0, Many, "a day",
     "the relay's good name", "sent without mail, and told so"},
    {"unknown IDs asked for by a client", "misses_per_client_hour", &Config::misses_per_client_hour,
     1, 1'000'000, "an hour", "IDs are not to be guessed", "429 for every ID"},
    {"unknown IDs asked for by all", "misses_per_hour", &Config::misses_per_hour, 1, Many,
     "an hour", "many guess together", "a client's number falls to a tenth"},
    {"reports of a client", "reports_per_client_day", &Config::reports_per_client_day, 0, Many,
     "a day", "the operator reads each", "429"},
    {"reports of all", "reports_per_day", &Config::reports_per_day, 0, Many, "a day",
     "the operator reads each", "429"},
    {"searches of a client", "searches_per_client_minute", &Config::searches_per_client_minute, 1,
     1'000'000, "a minute", "a search costs the most", "429"},
    {"pages of a client", "pages_per_client_minute", &Config::pages_per_client_minute, 1, 1'000'000,
     "a minute", "a reader turns fewer", "429"},
    {"a recipe that is never sent", "unfinished_hours", &Config::unfinished_hours, 1, 1000, "hours",
     "a send that broke off is not kept", "dropped"},
    {"addresses of a sent recipe", "address_days", &Config::address_days, 0, 3650, "days",
     "to answer complaints", "forgotten"},
    {"time for a mail", "mail_seconds", &Config::mail_seconds, 1, 25, "seconds",
     "a relay that hangs is left", "tried again later"},
    {"pause before the second try", "mail_retry_seconds", &Config::mail_retry_seconds, 1, 3600,
     "seconds", "a relay that greylists asks for patience", "doubled at each try, for two days"},
    Fixed("the head of a request", RequestHead::Largest, "bytes", "no browser sends more", "431"),
    Fixed("the address of a page", RequestHead::LongestTarget, "bytes", "no link of ours is longer",
          "414"),
    Fixed("an address for mail", LongestMailAddress, "bytes", "no mailbox has a longer one", "400"),
    Fixed("arrays and objects in each other", JsonReader::DeepestNesting, "deep",
          "no body needs more", "400"),
    Fixed("a form", Forms::Largest, "bytes", "holds the longest report", "413"),
    Fixed("the words of a report", Reports::LongestWords, "letters", "the operator reads each",
          "the rest is cut off"),
    Fixed("reports of a recipe", Reports::MostOfARecipe, "", "enough to look at it", "not kept"),
    Fixed("words of a recipe", Words::MostOfARecipe, "", "no recipe is found by everything",
          "it is not found by the others"),
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
