// Measures the exchange beside a bare server and nginx, and what others notice while somebody
// attacks it. Fails if a figure misses its aim.
// exchange_bench [RECIPES [SECONDS]]: 100,000 recipes, and 1 second for each measurement. With
// "exchange_bench 10000 0.3" it ends soon.
#include "Attacks.h"
#include "BareServers.h"
#include "Fill.h"
#include "Load.h"
#include "Results.h"

#include "support/Cluster.h"
#include "support/Server.h"

#include "exchange/Config.h"

#include <algorithm>
#include <chrono>
#include <sstream>
#include <sys/resource.h>

namespace {
constexpr int Turns = 3;
constexpr int ReaderRate = 200;

struct Aims {
    double read;
    double list;
    double page;
};

class Bench {
public:
    Bench(int recipes, std::string seconds)
        : recipes_(recipes)
        , seconds_(std::move(seconds)) {}

    bool Met() const { return results_.Met(); }

    void Run() {
        WriteFile(folder_ / "hello", "/hello\n");
        WriteFile(folder_ / "health", "/health\n");
        results_.Bare("a bare server", Rate(bare_.HelloPort(), "hello"));
        if (bare_.HasNginx())
            results_.Bare("nginx", Rate(bare_.NginxPort(), "hello"));
        else
            results_.Skipped("nginx is not measured, since it is not installed.");
        On("SQLite", folder_ / "exchange.db", true, {.read = 0.45, .list = 0.30, .page = 0.30});
        On("PostgreSQL", Cluster::One().CreateDatabase(), false,
           {.read = 0.25, .list = 0.15, .page = 0.15});
    }

private:
    Load::Plan Plan(const std::string& paths) const {
        return {.paths = folder_ / paths, .seconds = seconds_};
    }

    double Rate(int port, const std::string& paths) const {
        return Load::On(port, Plan(paths)).rate;
    }

    void On(const std::string& name, const std::string& database, bool embedded, const Aims& aims) {
        { const Server first({{"database", database}}); }
        WritePaths(Fill::With(database, recipes_));
        {
            Server server({{"database", database}, // the load comes from one client
                           {"log_requests", "no"},
                           {"searches_per_client_minute", "1000000"},
                           {"pages_per_client_minute", "1000000"}});
            AtTop(name + ": read a recipe", server.Port(), "reads", aims.read);
            AtTop(name + ": the list", server.Port(), "lists", aims.list);
            AtTop(name + ": a recipe's page", server.Port(), "pages", aims.page);
            WorstSearch(name + ": the worst search, 99 of 100", server.Port());
        }
        Commands(name, database);
        UnderAttack(name, database, embedded);
    }

    /// The operator's commands, including the start of the program. The recipes are in the middle
    /// of the list.
    void Commands(const std::string& name, const std::string& database) {
        const auto one = std::to_string(recipes_ / 2);
        const auto other = std::to_string(recipes_ / 2 + 1);
        for (const auto& words : std::vector<std::vector<std::string>>{
                 {"--reported"}, {"--hide", one}, {"--show", one}, {"--remove", other}}) {
            std::vector<std::string> command{Server::Program(), "--database", database};
            command.insert(command.end(), words.begin(), words.end());
            const auto begin = std::chrono::steady_clock::now();
            const bool done = Process::Run(command) == 0;
            const std::chrono::duration<double, std::milli> took =
                std::chrono::steady_clock::now() - begin;
            results_.AtMost(name + ": " + words.front(), took.count(), 100, " ms");
            results_.Failures(name + ": " + words.front(), !done);
        }
    }

    void WritePaths(const std::vector<int>& ids) const {
        std::string reads;
        std::string lists;
        std::string pages;
        for (const int id : ids) {
            const auto number = std::to_string(id);
            const auto path = "/halvane/api/recipes/" + number;
            reads += path + "/ingredients\n" + path + "\n";
            pages += "/halvane/recipe.asp?recID=" + number + "\n";
        }
        for (int page = 1; page <= 20; ++page)
            lists += "/halvane/community.asp?uid=1&page=" + std::to_string(page) + "\n";
        WriteFile(folder_ / "reads", reads);
        WriteFile(folder_ / "lists", lists);
        WriteFile(folder_ / "pages", pages);
        WriteFile(folder_ / "worst", "/halvane/community.asp?q=quick+sunday\n");
    }

    /// In short turns with the bare server, since the speed of the machine varies. The turn with
    /// the median ratio counts.
    void AtTop(const std::string& work, int port, const std::string& paths, double least) {
        struct Turn {
            double bare;
            Load::Figures ours;
            double Ratio() const { return ours.rate / bare; }
        };
        std::vector<Turn> turns;
        long failed = 0;
        for (int turn = 0; turn < Turns; ++turn) {
            const double bare = Rate(bare_.HelloPort(), "hello");
            turns.push_back({bare, Load::On(port, Plan(paths))});
            failed += turns.back().ours.failed;
        }
        std::sort(turns.begin(), turns.end(),
                  [](const Turn& one, const Turn& other) { return one.Ratio() < other.Ratio(); });
        const auto& middle = turns[Turns / 2];
        results_.Ratio(work, middle.ours.rate, middle.bare, least);
        results_.Failures(work, failed);
    }

    /// On one connection: the cost of one search, without waiting for others.
    void WorstSearch(const std::string& work, int port) {
        auto plan = Plan("worst");
        plan.connections = 1;
        const auto figures = Load::On(port, plan);
        results_.AtMost(work, figures.p99, recipes_ > 100'000 ? 30 : 10, " ms");
        results_.Failures(work, figures.failed);
    }

    void UnderAttack(const std::string& name, const std::string& database, bool embedded) {
        for (const auto& attack : Attacks::All(embedded)) {
            Server server({{"database", database},
                           {"log_requests", "no"},
                           {"recipes_per_client_day", "1000000"}, // so that bodies are read
                           {"recipes_per_day", "1000000000"},
                           {"mail_relay", "smtp://127.0.0.1:1"},
                           {"mail_from", "exchange@example.org"},
                           {"mail_tls", "none"}});
            const auto under = attack.begin({server.Port(), database});
            const auto work = name + ", " + attack.name;
            Answers(work + ": /health", server.Port(), "health", 20);
            if (attack.databaseAnswers)
                Answers(work + ": a reader", server.Port(), "reads", 100);
        }
        Memory(name, database);
    }

    void Answers(const std::string& work, int port, const std::string& paths, double most) {
        auto plan = Plan(paths);
        plan.rate = ReaderRate;
        const auto figures = Load::On(port, plan);
        results_.AtMost(work, figures.p99, most, " ms");
        results_.Failures(work, figures.failed);
    }

    void Memory(const std::string& name, const std::string& database) {
        Server server({{"database", database}});
        const auto held = Attacks::HalfBodies({server.Port(), database});
        results_.AtMost(name + ": memory under 1,000 half-sent bodies",
                        PeakOf(server.TheProcess()) / 1024, 300, " MB");
    }

    static double PeakOf(const Process& process) {
        std::istringstream status(ReadFile("/proc/" + std::to_string(process.ID()) + "/status"));
        for (std::string line; std::getline(status, line);)
            if (line.starts_with("VmHWM:"))
                return std::stod(line.substr(6));
        return 0;
    }

    int recipes_;
    std::string seconds_;
    Folder folder_;
    Results results_;
    BareServers bare_{exchange::Config().workers + 1}; // and the thread of the connections
};

/// The attacks need more descriptors than a program has by default.
void RaiseDescriptors() {
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = limit.rlim_max;
    setrlimit(RLIMIT_NOFILE, &limit);
}
} // namespace

int main(int argc, char** argv) {
    RaiseDescriptors();
    Bench bench(argc > 1 ? std::stoi(argv[1]) : 100'000, argc > 2 ? argv[2] : "1");
    bench.Run();
    return bench.Met() ? 0 : 1;
}
