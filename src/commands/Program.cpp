#include "commands/Program.h"

#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/Completion.h"
#include "commands/HelpText.h"
#include "commands/ManPage.h"
#include "commands/Session.h"

#include <algorithm>

namespace {
void AddSharedOptions(const Command& program, Session& session) {
    program.Take("--folder", session.folder, "The folder of the records; otherwise your own")
        .Value("FOLDER");
    program
        .Take("--profile", session.profile, "The name or key of a person; otherwise the first one")
        .Value("NAME");
    program.Flag("--json", session.json, "Print facts as JSON");
}

/// The build makes the man page and the completions of the shells with these.
void AddHiddenOptions(CommandLine& line) {
    line.AddHidden("--print-man", ManPage::Of);
    line.AddHidden("--print-bash", Completion::ForBash);
    line.AddHidden("--print-zsh", Completion::ForZsh);
}
} // namespace

bool NeedsDrawing(const std::vector<std::string>& arguments) {
    return std::ranges::find(arguments, "report") != arguments.end();
}

int RunCommand(const QStringList& arguments, std::ostream& out, std::ostream& error,
               std::istream* keyboard) {
    Session session(out, error, keyboard);
    CommandLine line("halvane-data", "Keeps, checks, exports and imports the records of Halvane.",
                     session);
    line.Program().NeedsOneOfItsCommands();
    line.Program().Footer(
        "Ends with 0: done; 1: a check found something, or some rows were refused; 2: wrong use; "
        "3: failed, and nothing was changed.");
    line.SetHelp(HelpText::Of);
    AddSharedOptions(line.Program(), session);
    line.SetVersion("halvane-data " HALVANE_VERSION);
    for (const auto add : Commands::All)
        add(line.Program(), session);
    AddHiddenOptions(line);
    return line.Run(arguments, out, error);
}
