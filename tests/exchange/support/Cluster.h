#pragma once

#include "support/Files.h"
#include "support/Process.h"

#include <memory>
#include <string>

/// A PostgreSQL of the test program's own, in a folder of its own, reached through a socket there.
/// It runs as the user `postgres` where the tests run as root, as it refuses to run as root.
class Cluster {
public:
    static Cluster& One(); ///< started at its first use, ended with the program

    std::string CreateDatabase(); ///< a new empty one; what the server's setting takes
    std::string Socket() const { return folder_.Path(); }
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
