#include "commands/CommandOutline.h"

#include <algorithm>

#include <CLI/CLI.hpp>

namespace {
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

OptionOutline Outline(const CLI::Option& option) {
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
            options.push_back(Outline(*option));
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

std::string OptionOutline::Text() const {
    return description +
           (choices.empty() ? "" : " (one of " + CLI::detail::join(choices, ", ") + ')');
}

std::string OptionOutline::Usage() const {
    const std::string text = name + (many ? "..." : "");
    return required ? text : '[' + text + ']';
}

std::string CommandOutline::Sentence() const {
    return description + (description.ends_with('.') ? "" : ".");
}

std::string CommandOutline::LastWord() const {
    return name.substr(name.rfind(' ') + 1);
}

std::vector<const CommandOutline*> CommandOutline::Below(const std::vector<CommandOutline>& outline,
                                                         const std::string& name) {
    const std::string begin = name.empty() ? "" : name + ' ';
    std::vector<const CommandOutline*> below;
    for (const CommandOutline& command : outline)
        if (!command.name.empty() && command.name.starts_with(begin) &&
            command.name.find(' ', begin.size()) == std::string::npos && command.name != name)
            below.push_back(&command);
    return below;
}

std::vector<CommandOutline> CommandOutline::Of(const CLI::App& program) {
    std::vector<CommandOutline> all;
    AddWithCommands(all, program, "");
    return all;
}
