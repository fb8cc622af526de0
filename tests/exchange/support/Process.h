#pragma once

#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

/// A program started by a test: its output goes into a file, and it ends with the object.
class Process {
public:
    using Environment = std::map<std::string, std::string>;
    Process(const std::vector<std::string>& command, const Environment& environment,
            const std::string& output);
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    void Signal(int signal) const;
    int Wait(); ///< the exit code, or minus the signal that ended it
    bool Runs();
    pid_t ID() const { return id_; }

    /// Runs a program to its end and gives its exit code; its output is added to the text.
    static int Run(const std::vector<std::string>& command, std::string* output = nullptr);

private:
    pid_t id_ = -1;
    int status_ = 0;
};
