#pragma once

#include <string>

/// Puts load on a server, from a process of its own.
namespace Load {
struct Figures {
    double rate = 0; ///< requests a second
    double median = 0;
    double p99 = 0; ///< milliseconds, like the others
    double longest = 0;
    long failed = 0; ///< replies other than 200, and connections that broke
};

struct Plan {
    std::string paths; ///< a file, a path a line
    std::string seconds;
    int connections = 8;
    int rate = 0; ///< 0 is as fast as it goes
};
Figures On(int port, const Plan& plan);
} // namespace Load
