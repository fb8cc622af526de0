#include "commands/HelpText.h"

#include <algorithm>
#include <sstream>

namespace {
using Outline = std::vector<CommandOutline>;

constexpr size_t Width = 80;
constexpr size_t Column = 28; ///< where the descriptions begin

/// The words of a text. The first line is taken to begin at the indent.
std::string Wrapped(const std::string& text, size_t indent) {
    std::istringstream words(text);
    std::string lines;
    size_t column = indent;
    for (std::string word; words >> word; column += word.size()) {
        if (column > indent && column + 1 + word.size() > Width) {
            lines += '\n' + std::string(indent, ' ');
            column = indent;
        } else if (column > indent) {
            lines += ' ';
            ++column;
        }
        lines += word;
    }
    return lines + '\n';
}

std::string Row(const std::string& name, const std::string& description) {
    const std::string begin = "  " + name;
    const std::string gap = begin.size() + 2 <= Column ? std::string(Column - begin.size(), ' ')
                                                       : '\n' + std::string(Column, ' ');
    return begin + gap + Wrapped(description, Column);
}

std::string NameOf(const OptionOutline& option) {
    if (option.IsArgument())
        return option.name;
    const std::string brief = option.brief.empty() ? "    " : option.brief + ", ";
    return brief + option.name + (option.value.empty() ? "" : ' ' + option.value);
}

std::string Usage(const CommandOutline& command, const std::string& commands) {
    std::string usage = "Usage: halvane-data " + command.name + (command.name.empty() ? "" : " ");
    usage += commands.empty() ? "[OPTIONS]" : "[OPTIONS] COMMAND";
    for (const OptionOutline& option : command.options)
        if (option.IsArgument())
            usage += ' ' + option.Usage();
    return usage + '\n';
}

std::string Arguments(const CommandOutline& command) {
    std::string rows;
    for (const OptionOutline& option : command.options)
        if (option.IsArgument())
            rows += Row(NameOf(option), option.Text());
    return rows.empty() ? rows : '\n' + rows;
}

std::string Options(const CommandOutline& command, const char* heading) {
    std::string rows;
    for (const OptionOutline& option : command.options)
        if (!option.IsArgument())
            rows += Row(NameOf(option), option.Text());
    return rows.empty() ? rows : '\n' + std::string(heading) + ":\n" + rows;
}

std::string Commands(const Outline& outline, const CommandOutline& command) {
    std::string rows;
    for (const CommandOutline* below : CommandOutline::Below(outline, command.name))
        rows += Row(below->LastWord(), below->description);
    return rows.empty() ? rows : "\nCommands:\n" + rows;
}

/// An example stays in one line, so that it can be copied.
std::string Footer(const CommandOutline& command) {
    std::istringstream lines(command.footer);
    std::string footer;
    for (std::string line; std::getline(lines, line);)
        footer += line.starts_with("Example:") ? line + '\n' : Wrapped(line, 0);
    return footer.empty() ? footer : '\n' + footer;
}

/// A command has its own help, and the version is that of the program.
CommandOutline Shared(const Outline& outline) {
    CommandOutline shared = outline.front();
    std::erase_if(shared.options, [](const OptionOutline& option) {
        return option.name == "--help" || option.name == "--version";
    });
    return shared;
}
} // namespace

std::string HelpText::Of(const Outline& outline, const std::string& name) {
    const auto command = std::ranges::find(outline, name, &CommandOutline::name);
    const std::string commands = Commands(outline, *command);
    std::string text = Wrapped(command->Sentence(), 0) + '\n' + Usage(*command, commands);
    text += Arguments(*command) + commands + Options(*command, "Options");
    if (!name.empty())
        text += Options(Shared(outline), "Options of all commands");
    return text + Footer(*command);
}
