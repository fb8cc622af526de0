#include "support/Process.h"

#include "support/Files.h"

#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {
std::vector<char*> Pointers(const std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (const auto& text : texts)
        pointers.push_back(const_cast<char*>(text.c_str()));
    pointers.push_back(nullptr);
    return pointers;
}

int ExitCode(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}
} // namespace

Process::Process(const std::vector<std::string>& command, const Environment& environment,
                 const std::string& output) {
    std::vector<std::string> variables;
    for (char** variable = environ; *variable; ++variable)
        variables.emplace_back(*variable);
    for (const auto& [name, value] : environment)
        variables.push_back(name + "=" + value);
    auto arguments = Pointers(command);
    auto names = Pointers(variables);
    const int file = ::open(output.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    id_ = ::fork();
    if (id_ == 0) {
        ::dup2(file, STDOUT_FILENO);
        ::dup2(file, STDERR_FILENO);
        ::execvpe(arguments[0], arguments.data(), names.data());
        ::_exit(127);
    }
    ::close(file);
}

Process::~Process() {
    if (!Runs())
        return;
    Signal(SIGKILL);
    Wait();
}

void Process::Signal(int signal) const {
    if (id_ > 0)
        ::kill(id_, signal);
}

bool Process::Runs() {
    if (id_ > 0 && ::waitpid(id_, &status_, WNOHANG) == id_)
        id_ = -1;
    return id_ > 0;
}

int Process::Wait() {
    if (id_ > 0)
        ::waitpid(id_, &status_, 0);
    id_ = -1;
    return ExitCode(status_);
}

int Process::Run(const std::vector<std::string>& command, std::string* output) {
    const Folder folder;
    Process process(command, {}, folder / "output");
    const int code = process.Wait();
    if (output)
        *output += ReadFile(folder / "output");
    return code;
}
