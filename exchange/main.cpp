#include "exchange/Api.h"
#include "exchange/CommandLine.h"
#include "exchange/Forms.h"
#include "exchange/Front.h"
#include "exchange/Housekeeping.h"
#include "exchange/Log.h"
#include "exchange/MailAddress.h"
#include "exchange/Moderation.h"
#include "exchange/NoMail.h"
#include "exchange/Postman.h"
#include "exchange/RecipeID.h"
#include "exchange/Schema.h"
#include "exchange/SecretFile.h"
#include "exchange/Sending.h"
#include "exchange/Site.h"
#include "exchange/Supervisor.h"

#include <csignal>
#include <iostream>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

namespace {
using namespace exchange;

/// What the operator does about one recipe.
struct Act {
    std::string_view option;
    const char* help;
    bool (Moderation::*act)(int recipeID);
    const char* done;
    const char* notDone;
};
constexpr const char* NoRecipe = "There is no such recipe.\n";
constexpr Act Acts[] = {
    {"--hide", "hide a recipe from everybody", &Moderation::Hide, "The recipe is hidden.\n",
     "There is no such recipe, or it is hidden already.\n"},
    {"--show", "show a hidden recipe again", &Moderation::Show, "The recipe is shown again.\n",
     "There is no such recipe, or it is not hidden.\n"},
    {"--remove", "remove a recipe for good", &Moderation::Remove, "The recipe is removed.\n",
     NoRecipe},
    {"--dismiss", "delete the reports of a recipe", &Moderation::Dismiss,
     "The reports are deleted.\n", "There is no such recipe, or it has no reports.\n"},
};

std::vector<CommandLine::Option> Options() {
    std::vector<CommandLine::Option> options = {
        {"--check", "", "check the settings and the database"},
        {"--reported", "", "list the recipes that readers have reported"},
        {"--nomail", "ADDRESS", "send no more mail to an address"}};
    for (const auto& act : Acts)
        options.push_back({std::string(act.option), "ID", act.help});
    return options;
}

const Act* ActOf(std::string_view option) {
    for (const auto& act : Acts)
        if (act.option == option)
            return &act;
    return nullptr;
}

/// Only the thread that waits for them gets the signals that end the server.
sigset_t HoldSignals() {
    sigset_t ends;
    sigemptyset(&ends);
    sigaddset(&ends, SIGTERM);
    sigaddset(&ends, SIGINT);
    pthread_sigmask(SIG_BLOCK, &ends, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    return ends;
}

/// Returns large blocks to the system as soon as they are freed.
void KeepMemorySmall() {
    constexpr int large = 128 * 1024;
    ::mallopt(M_MMAP_THRESHOLD, large);
}

/// Each connection takes a descriptor, and each worker some for the database.
void ClaimDescriptors(const Config& config) {
    const auto wanted =
        static_cast<rlim_t>(config.connections) + 8 * static_cast<rlim_t>(config.workers) + 192;
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    if (limit.rlim_max < wanted)
        throw ConfigError("connections = " + std::to_string(config.connections) + " needs " +
                          std::to_string(wanted) + " descriptors, but the system allows only " +
                          std::to_string(limit.rlim_max));
    limit.rlim_cur = std::max(limit.rlim_cur, wanted);
    setrlimit(RLIMIT_NOFILE, &limit);
}

/// If servers start at the same moment on an empty database, creating the first table can fail in
/// one of them. It finds the table at the next attempt.
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
    KeepMemorySmall();
    Connection::SetWriters(std::max(1, config.workers / 2));
    const auto secret = SecretOf(config);
    BringUpToDate(pool);
    const Limits limits(secret);
    const Visitors visitors(config, secret);
    const Mailer mailer(config);
    const MissGuard guard(config);
    Rates rates(config);
    const Service service{config, pool, limits, mailer, secret, guard, rates};
    Api api(service);
    Sending sending(service);
    Site site(service);
    Forms forms(service);
    Router router(Site::Fail);
    api.AddTo(router);
    sending.AddTo(router);
    site.AddTo(router);
    forms.AddTo(router);
    Front front(config, router, visitors);
    front.Open();
    const Housekeeping housekeeping(service);
    const Postman postman(service);
    front.Start();
    Supervisor::TellReady();
    Log::Info("started", {{"address", std::string_view(config.address)}, {"port", front.Port()}});
    int signal = 0;
    sigwait(&ends, &signal);
    Supervisor::TellEnding();
    Watchdog::Hurry();
    front.Stop();
    Log::Info("ended");
}

int Say(bool done, const char* text, const char* otherwise) {
    std::cout << (done ? text : otherwise);
    return done ? 0 : 1;
}

int EndMails(Connection& connection, const Config& config, const std::string& address) {
    const NoMail noMail(SecretOf(config));
    const bool done = IsMailAddress(address) && noMail.Note(connection, noMail.TokenFor(address));
    return Say(done, "This address gets no more mail.\n", "This is not a mail address.\n");
}

/// Runs a command of the operator.
int Do(const CommandLine::Command& command, Connection& connection) {
    Schema::Check(connection);
    if (command.action == "--check")
        return 0;
    if (command.action == "--nomail")
        return EndMails(connection, command.config, command.object);
    Moderation moderation(connection);
    if (command.action == "--reported") {
        std::cout << moderation.Reported();
        return 0;
    }
    const auto* act = ActOf(command.action);
    const int id = RecipeID::Read(command.object).value_or(0);
    return Say((moderation.*act->act)(id), act->done, act->notDone);
}

int Run(const CommandLine::Command& command) {
    if (!command.help.empty()) {
        std::cout << command.help;
        return 0;
    }
    ::umask(077); // the database holds addresses
    Pool pool(command.config.database);
    if (command.action.empty()) {
        Serve(command.config, pool);
        return 0;
    }
    const Pool::Lease lease(pool);
    return Do(command, *lease);
}
} // namespace

int main(int argc, char** argv) {
    try {
        return Run(CommandLine::Read(argc, argv, Options()));
    } catch (const ConfigError& error) {
        std::cerr << "halvane-exchange: " << error.what() << "\n";
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "halvane-exchange: " << Connection::Describe(error) << "\n";
        return 3;
    }
}
