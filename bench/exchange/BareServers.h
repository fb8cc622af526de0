#pragma once

#include "support/Files.h"
#include "support/Port.h"
#include "support/Process.h"

#include <memory>

/// Servers that do nothing, for comparison: one of the same library as the exchange, with as many
/// threads, and nginx.
class BareServers {
public:
    explicit BareServers(int threads);

    int HelloPort() const { return helloPort_; }
    bool HasNginx() const { return nginx_ != nullptr; } ///< it is installed
    int NginxPort() const { return nginxPort_.Number(); }

private:
    void StartNginx();

    Folder folder_;
    std::unique_ptr<Process> hello_;
    std::unique_ptr<Process> nginx_;
    int helloPort_ = 0;
    Port nginxPort_;
};
