#include "commands/Program.h"

#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/Completion.h"
#include "commands/HelpText.h"
#include "commands/ManPage.h"
#include "commands/Session.h"
#include "commands/UsageError.h"
#include "commands/WrongUse.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace {
/// CLI11 takes the last argument first.
std::vector<std::string> Reversed(const QStringList& arguments) {
    std::vector<std::string> texts;
    for (qsizetype i = arguments.size() - 1; i > 0; --i)
        texts.push_back(arguments[i].toStdString());
    return texts;
}

void AddSharedOptions(CLI::App& program, Session& session) {
    program.add_option("--folder", session.folder, "The folder of the records; otherwise your own")
        ->type_name("FOLDER");
    program
        .add_option("--profile", session.profile,
                    "The name or key of a person; otherwise the first one")
        ->type_name("NAME");
    program.add_flag("--json", session.json, "Print facts as JSON");
    program.set_version_flag("--version", "halvane-data " HALVANE_VERSION, "Show the version");
}

/// Every command that is added later has the same.
void UseOurHelp(CLI::App& program) {
    program.set_help_flag("--help,-h", "Show this help");
    const std::string begin = program.get_name() + ' ';
    program.formatter_fn([&program, begin](const CLI::App*, const std::string& name,
                                           CLI::AppFormatMode) {
        return HelpText::Of(CommandOutline::Of(program),
                            name.starts_with(begin) ? name.substr(begin.size()) : std::string());
    });
}

/// For the build, which makes the man page and the completions of the shells.
void AddHiddenOptions(CLI::App& program, std::ostream& out) {
    const auto print = [&program, &out](const char* name, auto text) {
        program
            .add_flag_callback(name,
                               [&program, &out, text] {
                                   out << text(CommandOutline::Of(program));
                                   throw CLI::Success();
                               })
            ->group("");
    };
    print("--print-man", ManPage::Of);
    print("--print-bash", Completion::ForBash);
    print("--print-zsh", Completion::ForZsh);
}
} // namespace

bool NeedsDrawing(const std::vector<std::string>& arguments) {
    return std::ranges::find(arguments, "report") != arguments.end();
}

int RunCommand(const QStringList& arguments, std::ostream& out, std::ostream& error,
               std::istream* keyboard) {
    Session session(out, error, keyboard);
    CLI::App program("Keeps, checks, exports and imports the records of Halvane.", "halvane-data");
    program.require_subcommand(1);
    program.fallthrough();
    program.footer(
        "Ends with 0: done; 1: a check found something, or some rows were refused; 2: wrong use; "
        "3: failed, and nothing was changed.");
    UseOurHelp(program);
    AddSharedOptions(program, session);
    for (const auto add : Commands::All)
        add(Command(program, session), session);
    AddHiddenOptions(program, out);
    try {
        program.parse(Reversed(arguments));
        return session.Run();
    } catch (const CLI::ParseError& wrong) {
        return wrong.get_exit_code() == 0 ? program.exit(wrong, out, error)
                                          : session.Refuse(WrongUse::Message(program, wrong));
    } catch (const UsageError& wrong) {
        return session.Refuse(WrongUse::Message(program, wrong));
    }
}
