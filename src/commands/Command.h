#pragma once

#include <QStringList>

#include <functional>
#include <string>
#include <vector>

class Session;

namespace CLI {
class App;
class Option;
} // namespace CLI

/// An option of a command, or an argument where its name has no dashes. The command owns it; copies
/// are the same option.
class CommandOption {
public:
    using Problem = std::function<std::string(const std::string&)>;

    explicit CommandOption(CLI::Option& option)
        : option_(&option) {}

    CommandOption Required() const;
    CommandOption Needs(const CommandOption& other) const;
    CommandOption Value(const std::string& name) const; ///< what the help calls it: "FILE"
    /// Accepts some words in upper or lower case, and makes each the one of the list.
    CommandOption OneOf(const std::vector<std::string>& words) const;
    /// `problem` gives a sentence about a value that it refuses, and no text for the others.
    CommandOption Check(const Problem& problem) const;

private:
    CLI::Option* option_;
};

/// A command of halvane-data, or the program itself, as it is declared: its options, its help and
/// what it does. The parser owns it; copies are the same command. It hides the parser, whose header
/// takes seconds to compile.
///
/// What an option sets must live as long as the program. A function that takes a value refuses it
/// with a UsageError.
class Command {
public:
    using Taker = std::function<void(const std::string&)>;

    Command(CLI::App& app, Session& session)
        : app_(app)
        , session_(session) {}

    Command Add(const std::string& name, const std::string& description) const;
    void NeedsOneOfItsCommands() const;

    CommandOption Flag(const std::string& name, bool& into, const std::string& help) const;
    CommandOption Take(const std::string& name, int& into, const std::string& help) const;
    CommandOption Take(const std::string& name, std::string& into, const std::string& help) const;
    CommandOption Take(const std::string& name, QString& into, const std::string& help) const;
    CommandOption Take(const std::string& name, const Taker& take, const std::string& help) const;
    /// One or more values behind each other.
    CommandOption Take(const std::string& name, QStringList& into, const std::string& help) const;
    /// An option that may be repeated, each time with one value.
    CommandOption TakeEach(const std::string& name, QStringList& into,
                           const std::string& help) const;
    CommandOption TakeEach(const std::string& name, const Taker& take,
                           const std::string& help) const;

    void Footer(const std::string& text) const;
    /// What the session runs if this command is the chosen one. It gives an ExitCode.
    void Does(const std::function<int()>& work) const;

private:
    CLI::App& app_;
    Session& session_;
};
