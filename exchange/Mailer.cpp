#include "exchange/Mailer.h"

#include "exchange/Log.h"

#include <curl/curl.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string_view>

namespace exchange {
namespace {
size_t Feed(char* to, size_t size, size_t count, void* source) {
    auto& rest = *static_cast<std::string_view*>(source);
    const auto portion = std::min(size * count, rest.size());
    std::memcpy(to, rest.data(), portion);
    rest.remove_prefix(portion);
    return portion;
}

long Tls(const std::string& wanted) {
    if (wanted == "none")
        return CURLUSESSL_NONE;
    return wanted == "tried" ? CURLUSESSL_TRY : CURLUSESSL_ALL;
}

int IsEnding(void* ending, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
    return *static_cast<const std::atomic<bool>*>(ending) ? 1 : 0;
}

/// Whether the relay refused the recipient or the mail itself. If it refuses us (a wrong password,
/// TLS), the operator can correct that, and the mail waits.
bool IsFinal(CURL* curl, CURLcode result) {
    long code = 0;
    curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &code);
    return code / 100 == 5 && (result == CURLE_SEND_ERROR || result == CURLE_WEIRD_SERVER_REPLY ||
                               result == CURLE_RECV_ERROR);
}

/// The host name of the service's own address, by which it greets the relay.
std::string Greeting(const std::string& address) {
    return address.substr(address.find('@') + 1);
}

std::string RelayURL(const Config& config) {
    const bool hasPath = config.mail_relay.find('/', 8) != std::string::npos;
    return hasPath ? config.mail_relay : config.mail_relay + "/" + Greeting(config.mail_from);
}

void LogIn(CURL* curl, const Config& config) {
    if (config.mail_user.empty())
        return;
    curl_easy_setopt(curl, CURLOPT_USERNAME, config.mail_user.c_str());
    curl_easy_setopt(curl, CURLOPT_PASSWORD, config.mail_password.c_str());
}
} // namespace

Mailer::Mailer(const Config& config)
    : config_(config) {
    curl_global_init(CURL_GLOBAL_DEFAULT);
}

Mailer::~Mailer() {
    curl_global_cleanup();
}

Mailer::Result Mailer::Send(const std::string& to, const std::string& mail,
                            const std::atomic<bool>& ending) const {
    const std::unique_ptr<CURL, void (*)(CURL*)> curl(curl_easy_init(), curl_easy_cleanup);
    const std::unique_ptr<curl_slist, void (*)(curl_slist*)> recipients(
        curl_slist_append(nullptr, ("<" + to + ">").c_str()), curl_slist_free_all);
    std::string_view rest = mail;
    const auto set = [&](CURLoption option, auto value) {
        curl_easy_setopt(curl.get(), option, value);
    };
    set(CURLOPT_URL, RelayURL(config_).c_str());
    set(CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    set(CURLOPT_USE_SSL, Tls(config_.mail_tls));
    set(CURLOPT_TIMEOUT, long{config_.mail_seconds});
    set(CURLOPT_NOSIGNAL, 1L);
    set(CURLOPT_NOPROGRESS, 0L);
    set(CURLOPT_XFERINFOFUNCTION, IsEnding);
    set(CURLOPT_XFERINFODATA, static_cast<const void*>(&ending));
    set(CURLOPT_MAIL_FROM, ("<" + config_.mail_from + ">").c_str());
    set(CURLOPT_MAIL_RCPT, recipients.get());
    set(CURLOPT_READFUNCTION, Feed);
    set(CURLOPT_READDATA, static_cast<void*>(&rest));
    set(CURLOPT_UPLOAD, 1L);
    LogIn(curl.get(), config_);
    const auto result = curl_easy_perform(curl.get());
    if (result == CURLE_OK)
        return Result::Taken;
    Log::Error("mail", {{"what", std::string_view(curl_easy_strerror(result))}});
    return IsFinal(curl.get(), result) ? Result::Refused : Result::Later;
}

} // namespace exchange
