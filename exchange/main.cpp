#include "exchange/Api.h"
#include "exchange/Front.h"
#include "exchange/Housekeeping.h"
#include "exchange/Log.h"
#include "exchange/Schema.h"
#include "exchange/SecretFile.h"
#include "exchange/Sending.h"
#include "exchange/Site.h"
#include "exchange/Text.h"

#include <csignal>
#include <iostream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

namespace {
using namespace exchange;

constexpr const char* Usage =
    "halvane-exchange [--config FILE]              serve until SIGTERM\n"
    "halvane-exchange [--config FILE] --check      read the configuration and reach the database\n"
    "halvane-exchange [--config FILE] --remove ID  take a recipe away for good\n";

struct Command {
    std::string config;
    std::string action = "serve";
    int id = 0;
};

Command ReadCommand(std::vector<std::string> words) {
    Command command;
    while (!words.empty()) {
        const auto word = words.front();
        words.erase(words.begin());
        if (word == "--check" || word == "--help") {
            command.action = word;
            continue;
        }
        if ((word != "--config" && word != "--remove") || words.empty())
            throw ConfigError("\n" + std::string(Usage));
        if (word == "--config") {
            command.config = words.front();
        } else {
            command.action = word;
            command.id = WholeNumber(words.front(), 2, 0x7fffffff).value_or(0);
        }
        words.erase(words.begin());
    }
    return command;
}

/// The signals that end the server reach nobody but the one who waits for them.
sigset_t HoldSignals() {
    sigset_t ends;
    sigemptyset(&ends);
    sigaddset(&ends, SIGTERM);
    sigaddset(&ends, SIGINT);
    pthread_sigmask(SIG_BLOCK, &ends, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    return ends;
}

/// A connection takes a descriptor, and so does what a worker has open of the database.
void ClaimDescriptors(const Config& config) {
    const auto wanted =
        static_cast<rlim_t>(config.connections) + 8 * static_cast<rlim_t>(config.workers) + 192;
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    if (limit.rlim_max < wanted)
        throw ConfigError("connections = " + std::to_string(config.connections) + " needs " +
                          std::to_string(wanted) + " descriptors, and the system allows " +
                          std::to_string(limit.rlim_max));
    limit.rlim_cur = std::max(limit.rlim_cur, wanted);
    setrlimit(RLIMIT_NOFILE, &limit);
}

/// Servers that start in the same moment on a database without any table can trip over each other
/// at the first one: it is there when they look again.
void BringUpToDate(Pool& pool) {
    constexpr int attempts = 5;
    constexpr std::chrono::milliseconds pause(100);
    for (int attempt = 1;; ++attempt) {
        try {
            const Pool::Lease lease(pool);
            return Schema::BringUpToDate(*lease);
        } catch (const soci::soci_error&) {
            if (attempt == attempts)
                throw;
            std::this_thread::sleep_for(pause);
        }
    }
}

std::string SecretOf(const Config& config) {
    return config.secret.empty() ? SecretFile::Read(config.secret_file) : config.secret;
}

void Serve(const Config& config, Pool& pool) {
    const auto ends = HoldSignals();
    ClaimDescriptors(config);
    const auto secret = SecretOf(config);
    BringUpToDate(pool);
    const Limits limits(secret);
    const Visitors visitors(config, secret);
    const Mailer mailer(config);
    const Service service{config, pool, limits, mailer};
    Api api(service);
    Sending sending(service);
    Site site(service);
    Router router(Site::Fail);
    api.AddTo(router);
    sending.AddTo(router);
    site.AddTo(router);
    Front front(config, router, visitors);
    front.Open();
    const Housekeeping housekeeping(service);
    front.Start();
    Log::Info("started", {{"address", std::string_view(config.address)}, {"port", front.Port()}});
    int signal = 0;
    sigwait(&ends, &signal);
    front.Stop();
    Log::Info("ended");
}

int Run(const Command& command) {
    if (command.action == "--help") {
        std::cout << Usage;
        return 0;
    }
    const auto config = Config::Read(command.config);
    ::umask(077); // the database holds addresses
    Pool pool(config.database);
    if (command.action == "serve") {
        Serve(config, pool);
        return 0;
    }
    const Pool::Lease lease(pool);
    if (command.action == "--check") {
        Schema::Check(*lease);
        return 0;
    }
    const bool removed = RecipeStore(*lease).Remove(command.id);
    std::cout << (removed ? "The recipe is removed.\n" : "There is no such recipe.\n");
    return removed ? 0 : 1;
}
} // namespace

int main(int argc, char** argv) {
    try {
        return Run(ReadCommand({argv + 1, argv + argc}));
    } catch (const ConfigError& error) {
        std::cerr << "halvane-exchange: " << error.what() << "\n";
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "halvane-exchange: " << Connection::Describe(error) << "\n";
        return 3;
    }
}
