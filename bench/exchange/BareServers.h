#pragma once

#include "support/Files.h"
#include "support/Process.h"

#include <memory>

/// What the same machine answers when there is nothing to do: a server of the library that the
/// exchange stands on, with as many threads, and nginx.
class BareServers {
public:
    explicit BareServers(int threads);

    int HelloPort() const { return helloPort_; }
    int NginxPort() const { return nginxPort_; } ///< 0 if nginx is not installed

private:
    void StartNginx();

    Folder folder_;
    std::unique_ptr<Process> hello_;
    std::unique_ptr<Process> nginx_;
    int helloPort_ = 0;
    int nginxPort_ = 0;
};
