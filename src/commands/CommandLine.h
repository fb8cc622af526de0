#pragma once

#include "commands/Command.h"
#include "commands/CommandOutline.h"

#include <QStringList>

#include <iosfwd>
#include <memory>

/// The parser of a program's arguments, and the owner of everything that the program and its
/// commands declare.
class CommandLine {
public:
    using Help =
        std::function<std::string(const std::vector<CommandOutline>&, const std::string& command)>;
    using Text = std::function<std::string(const std::vector<CommandOutline>&)>;

    CommandLine(const std::string& name, const std::string& description, Session& session);
    ~CommandLine();

    Command Program() const;
    /// The program first, then each command, in the order of the help. Hidden options are left out.
    std::vector<CommandOutline> Outline() const;

    void SetVersion(const std::string& line);
    /// `--help` prints this; of each command that is added later, too.
    void SetHelp(const Help& help);
    /// An option that the help leaves out. It prints a text instead of running a command.
    void AddHidden(const std::string& name, const Text& text);

    /// Runs the command that the arguments name; the first of them is the program's. Gives an
    /// ExitCode.
    int Run(const QStringList& arguments, std::ostream& out, std::ostream& error);

private:
    std::unique_ptr<CLI::App> app_;
    Session& session_;
};
