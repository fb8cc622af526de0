#include "support/Cluster.h"

#include "support/Until.h"

#include "exchange/Connection.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sstream>
#include <unistd.h>

namespace {
namespace fs = std::filesystem;

/// Debian keeps the server's own programs out of the path, in a folder a version.
std::string ProgramFolder() {
    std::string newest;
    std::error_code none;
    for (const auto& version : fs::directory_iterator("/usr/lib/postgresql", none))
        newest = std::max(newest, version.path().string());
    return newest + "/bin/";
}

std::vector<std::string> AsServerUser(std::vector<std::string> command) {
    if (::geteuid() == 0)
        command.insert(command.begin(),
                       {"setpriv", "--reuid=postgres", "--regid=postgres", "--init-groups"});
    return command;
}

void GiveToServerUser(const std::string& folder) {
    if (::geteuid() != 0)
        return;
    if (const auto* user = ::getpwnam("postgres"))
        fs::exists(folder) && ::chown(folder.c_str(), user->pw_uid, user->pw_gid) == 0;
}
} // namespace

std::string Cluster::Tool(const std::string& name) {
    return ProgramFolder() + name;
}

Cluster& Cluster::One() {
    static Cluster cluster;
    return cluster;
}

Cluster::Cluster() {
    GiveToServerUser(folder_.Path());
    std::string output;
    const int code =
        Process::Run(AsServerUser({Tool("initdb"), "-D", folder_ / "data", "-A", "trust", "-U",
                                   "postgres", "-E", "UTF8", "--locale=C.UTF-8", "--no-sync"}),
                     &output);
    EXPECT_EQ(code, 0) << output;
    Start();
}

Cluster::~Cluster() {
    Stop();
}

void Cluster::Start() {
    process_ = std::make_unique<Process>(
        AsServerUser({Tool("postgres"), "-D", folder_ / "data", "-k", folder_.Path(), "-c",
                      "listen_addresses=", "-c", "fsync=off", "-c", "max_connections=200"}),
        Process::Environment{}, folder_ / "log");
    const auto answers = [&] {
        return Process::Run({Tool("pg_isready"), "-q", "-h", Socket(), "-U", "postgres"}) == 0;
    };
    EXPECT_TRUE(Until(answers)) << ReadFile(folder_ / "log");
}

void Cluster::Stop() {
    if (!process_)
        return;
    process_->Signal(SIGINT);
    process_->Wait();
    process_.reset();
}

/// The processes that serve connections are children of the first one.
void Cluster::SignalAll(int signal) const {
    const auto id = std::to_string(process_->ID());
    process_->Signal(signal);
    std::istringstream children(ReadFile("/proc/" + id + "/task/" + id + "/children"));
    for (pid_t child = 0; children >> child;)
        ::kill(child, signal);
}

void Cluster::Freeze() {
    SignalAll(SIGSTOP);
}

void Cluster::Thaw() {
    SignalAll(SIGCONT);
}

void Cluster::Kill() {
    SignalAll(SIGKILL);
    process_->Wait();
    process_.reset();
}

std::string Cluster::NameOf(const std::string& database) {
    return database.substr(database.rfind('=') + 1);
}

std::string Cluster::Through(int port, const std::string& database) {
    return "postgresql://postgres@127.0.0.1:" + std::to_string(port) + "/" + NameOf(database);
}

std::string Cluster::CreateDatabase() {
    const auto base = "postgresql:host=" + Socket() + " user=postgres dbname=";
    const auto name = "test" + std::to_string(++databases_);
    exchange::Connection(base + "postgres").Once("CREATE DATABASE " + name);
    return base + name;
}
