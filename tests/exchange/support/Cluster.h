#pragma once

#include "support/Files.h"
#include "support/Process.h"

#include <memory>
#include <string>

/// A PostgreSQL for the tests, in a temporary folder, reached through a socket there. It refuses to
/// run as root, so if the tests run as root, it runs as the user `postgres`.
class Cluster {
public:
    static Cluster& One(); ///< started at its first use, ended with the program

    std::string CreateDatabase(); ///< a new empty one; what the server's setting takes
    std::string Socket() const { return folder_.Path(); } ///< the folder that it is in
    std::string SocketFile() const { return folder_ / ".s.PGSQL.5432"; }
    static std::string Through(int port, const std::string& database); ///< by a port of a Proxy
    static std::string NameOf(const std::string& database);
    static std::string Tool(const std::string& name);
    void Stop();
    void Freeze(); ///< every process of it, until Thaw
    void Thaw();
    void Kill();
    void Start();
    ~Cluster();

private:
    Cluster();
    void SignalAll(int signal) const;
    Folder folder_;
    std::unique_ptr<Process> process_;
    int databases_ = 0;
};
