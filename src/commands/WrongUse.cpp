#include "commands/WrongUse.h"

#include "commands/UsageError.h"

#include <CLI/CLI.hpp>

namespace {
/// The command that was named, down to the last word that is one.
const CLI::App& Chosen(const CLI::App& program) {
    const auto chosen = program.get_subcommands();
    return chosen.empty() ? program : Chosen(*chosen.front());
}

std::string NameOf(const CLI::App& command) {
    const CLI::App* above = command.get_parent();
    return (above == nullptr ? "" : NameOf(*above) + ' ') + command.get_name();
}

bool NeedsCommand(const CLI::App& command) {
    return command.get_require_subcommand_min() > 0;
}

/// The first argument that nobody has taken.
std::string Unexpected(const CLI::App& program, const CLI::ParseError& wrong) {
    const auto kind = static_cast<CLI::ExitCodes>(wrong.get_exit_code());
    const std::vector<std::string> left = program.remaining(true);
    const bool isAbout =
        kind == CLI::ExitCodes::ExtrasError || kind == CLI::ExitCodes::RequiredError;
    return left.empty() || !isAbout ? std::string() : left.front();
}

std::string WithStop(const std::string& sentence) {
    return sentence + (sentence.ends_with('.') ? "" : ".");
}

/// What the parser says, where its words are not plain.
std::string InPlainWords(const CLI::ParseError& wrong) {
    const std::string what = wrong.what();
    const std::string option = what.substr(0, what.find(':'));
    if (static_cast<CLI::ExitCodes>(wrong.get_exit_code()) == CLI::ExitCodes::ArgumentMismatch)
        return option +
               (what.ends_with("missing") ? " needs a value." : " can be given only once.");
    return WithStop(what);
}

std::string Problem(const CLI::App& chosen, const CLI::ParseError& wrong,
                    const std::string& unexpected) {
    if (unexpected.starts_with('-'))
        return "There is no option \"" + unexpected + "\".";
    if (!unexpected.empty())
        return NeedsCommand(chosen) ? "There is no command \"" + unexpected + "\"."
                                    : '"' + unexpected + "\" is one argument too many.";
    if (NeedsCommand(chosen))
        return "Please name a command.";
    return InPlainWords(wrong);
}

QString WithHelp(const CLI::App& chosen, const std::string& problem) {
    return QString::fromStdString(
        problem + " `" + NameOf(chosen) + " --help` " +
        (NeedsCommand(chosen) ? "lists the commands." : "shows how it is used."));
}
} // namespace

QString WrongUse::Message(const CLI::App& program, const CLI::ParseError& wrong) {
    const CLI::App& chosen = Chosen(program);
    return WithHelp(chosen, Problem(chosen, wrong, Unexpected(program, wrong)));
}

QString WrongUse::Message(const CLI::App& program, const UsageError& wrong) {
    return WithHelp(Chosen(program), WithStop(wrong.what()));
}
