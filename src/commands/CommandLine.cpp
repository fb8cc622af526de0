#include "commands/CommandLine.h"

#include "commands/Session.h"
#include "commands/UsageError.h"
#include "commands/WrongUse.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace {
/// An option that has been read ends the run with this text.
struct Printed : CLI::Success {
    explicit Printed(std::string asked)
        : text(std::move(asked)) {}
    std::string text;
};

/// The parser takes the last argument first.
std::vector<std::string> Reversed(const QStringList& arguments) {
    std::vector<std::string> texts;
    for (qsizetype i = arguments.size() - 1; i > 0; --i)
        texts.push_back(arguments[i].toStdString());
    return texts;
}

/// From "TEXT:{csv,json}".
std::vector<std::string> Choices(const std::string& type) {
    const size_t begin = type.find('{');
    const size_t end = type.find('}', begin);
    if (begin == std::string::npos || end == std::string::npos)
        return {};
    return CLI::detail::split(type.substr(begin + 1, end - begin - 1), ',');
}

std::string LongName(const CLI::Option& option) {
    if (!option.get_positional())
        return "--" + option.get_lnames().front();
    return option.get_name(true);
}

std::string BriefName(const CLI::Option& option) {
    return option.get_snames().empty() ? "" : "-" + option.get_snames().front();
}

std::string ValueName(const CLI::Option& option) {
    const std::string type = option.get_type_name();
    return option.get_items_expected_max() == 0 ? "" : type.substr(0, type.find(':'));
}

OptionOutline OutlineOf(const CLI::Option& option) {
    return {LongName(option),
            BriefName(option),
            ValueName(option),
            option.get_description(),
            Choices(option.get_type_name()),
            option.get_required(),
            option.get_expected_max() > 1};
}

bool IsShown(const CLI::Option& option) {
    return !option.get_group().empty();
}

std::vector<OptionOutline> Options(const CLI::App& command) {
    std::vector<OptionOutline> options;
    for (const CLI::Option* option : command.get_options())
        if (IsShown(*option))
            options.push_back(OutlineOf(*option));
    std::ranges::stable_partition(options, &OptionOutline::IsArgument);
    return options;
}

void AddWithCommands(std::vector<CommandOutline>& all, const CLI::App& app,
                     const std::string& name) {
    all.push_back({name, app.get_description(), app.get_footer(), Options(app)});
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; }))
        AddWithCommands(all, *command, (name.empty() ? "" : name + ' ') + command->get_name());
}
} // namespace

CommandLine::CommandLine(const std::string& name, const std::string& description, Session& session)
    : app_(std::make_unique<CLI::App>(description, name))
    , session_(session) {}

CommandLine::~CommandLine() = default;

Command CommandLine::Program() const {
    return {*app_, session_};
}

std::vector<CommandOutline> CommandLine::Outline() const {
    std::vector<CommandOutline> all;
    AddWithCommands(all, *app_, "");
    return all;
}

void CommandLine::SetVersion(const std::string& line) {
    app_->set_version_flag("--version", line, "Show the version");
}

void CommandLine::SetHelp(const Help& help) {
    app_->set_help_flag("--help,-h", "Show this help");
    const std::string begin = app_->get_name() + ' ';
    app_->formatter_fn([=, this](const CLI::App*, const std::string& name, CLI::AppFormatMode) {
        return help(Outline(), name.starts_with(begin) ? name.substr(begin.size()) : std::string());
    });
}

void CommandLine::AddHidden(const std::string& name, const Text& text) {
    app_->add_flag_callback(name, [this, text] { throw Printed(text(Outline())); })->group("");
}

int CommandLine::Run(const QStringList& arguments, std::ostream& out, std::ostream& error) {
    try {
        app_->parse(Reversed(arguments));
        return session_.Run();
    } catch (const Printed& printed) {
        out << printed.text;
        return Done;
    } catch (const CLI::ParseError& wrong) {
        return wrong.get_exit_code() == 0 ? app_->exit(wrong, out, error)
                                          : session_.Refuse(WrongUse::Message(*app_, wrong));
    } catch (const UsageError& wrong) {
        return session_.Refuse(WrongUse::Message(*app_, wrong));
    }
}
