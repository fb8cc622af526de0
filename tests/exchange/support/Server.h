#pragma once

#include "support/Files.h"
#include "support/Process.h"

#include <httplib.h>

#include <map>
#include <memory>
#include <string>

/// The real server as a process of its own, on a free port of the loopback. A finding of a
/// sanitizer in its log is a failure of the test.
class Server {
public:
    using Settings = std::map<std::string, std::string>;

    /// The settings are those of the configuration file; `database` is among them.
    explicit Server(Settings settings);
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    int Port() const { return port_; }
    std::string Address() const { return "http://127.0.0.1:" + std::to_string(port_); }
    httplib::Client Client() const;
    Process& TheProcess() { return *process_; }
    std::string Log() const { return ReadFile(folder_ / "log"); }
    int End(); ///< asks it to end and gives its exit code
    static std::string Program();
    static int PortIn(const std::string& log); ///< 0 until a server has logged that it started

private:
    Folder folder_;
    std::unique_ptr<Process> process_;
    int port_ = 0;
};
