#include "BareServers.h"

#include "support/RawClient.h"
#include "support/Server.h"
#include "support/Until.h"

#include <filesystem>

namespace {
constexpr const char* Nginx = "/usr/sbin/nginx";

int PortIn(const std::string& log) {
    int port = 0;
    Until([&] { return (port = Server::PortIn(ReadFile(log))) > 0; });
    return port;
}
} // namespace

BareServers::BareServers(int threads)
    : hello_(std::make_unique<Process>(
          std::vector<std::string>{HALVANE_HELLO, std::to_string(threads)}, Process::Environment{},
          folder_ / "hello"))
    , helloPort_(PortIn(folder_ / "hello")) {
    if (std::filesystem::exists(Nginx))
        StartNginx();
}

void BareServers::StartNginx() {
    std::string temporary;
    for (const auto* kind : {"client_body", "proxy", "fastcgi", "uwsgi", "scgi"})
        temporary += std::string(kind) + "_temp_path " + (folder_ / kind) + ";\n";
    WriteFile(folder_ / "nginx.conf",
              "daemon off;\nworker_processes auto;\npid " + (folder_ / "pid") +
                  ";\nerror_log stderr;\nevents {}\nhttp {\naccess_log off;\n"
                  "keepalive_requests 100000000;\n" +
                  temporary + "server {\nlisten 127.0.0.1:" + std::to_string(nginxPort_.Number()) +
                  ";\nlocation / {\nreturn 200 hello;\n}\n}\n}\n");
    nginx_ = std::make_unique<Process>(
        std::vector<std::string>{Nginx, "-p", folder_ / "", "-c", folder_ / "nginx.conf"},
        Process::Environment{}, folder_ / "nginx.log");
    Until([&] { return std::filesystem::exists(folder_ / "pid"); });
}
