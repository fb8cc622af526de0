#include "commands/ManPage.h"

namespace {
/// A text as the page's language takes it: no line is a request, and hyphens can be copied.
std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char character : text) {
        if (character == '\\' || character == '-')
            escaped += '\\';
        if ((character == '.' || character == '\'') && (escaped.empty() || escaped.back() == '\n'))
            escaped += "\\&";
        escaped += character == '\\' ? 'e' : character;
    }
    return escaped;
}

/// Line ends of a text stay where they are.
std::string Lines(const std::string& text) {
    std::string lines;
    for (const char character : Escaped(text))
        lines += character == '\n' ? std::string("\n.br\n") : std::string(1, character);
    return lines + '\n';
}

std::string In(char font, const std::string& text) {
    return std::string("\\f") + font + Escaped(text) + "\\fR";
}

std::string Option(const OptionOutline& option) {
    std::string names = In(option.IsArgument() ? 'I' : 'B', option.name);
    if (!option.brief.empty())
        names = In('B', option.brief) + ", " + names;
    if (!option.IsArgument() && !option.value.empty())
        names += ' ' + In('I', option.value);
    return ".TP\n" + names + '\n' + Lines(option.Text());
}

std::string Options(const CommandOutline& command) {
    std::string text;
    for (const OptionOutline& option : command.options)
        if (option.name != "--help" || command.name.empty())
            text += Option(option);
    return text;
}

std::string Heading(const CommandOutline& command) {
    std::string heading = ".SS \"" + Escaped(command.name);
    for (const OptionOutline& option : command.options)
        if (option.IsArgument())
            heading += ' ' + In('I', option.Usage());
    return heading + "\"\n";
}

std::string Command(const CommandOutline& command) {
    std::string text = Heading(command) + Lines(command.Sentence()) + Options(command);
    if (!command.footer.empty())
        text += ".PP\n" + Lines(command.footer);
    return text;
}

constexpr auto Synopsis = ".SH SYNOPSIS\n"
                          ".B halvane\\-data\n"
                          "[\\fIOPTIONS\\fR] \\fICOMMAND\\fR [\\fIARGUMENTS\\fR]\n";
} // namespace

std::string ManPage::Of(const std::vector<CommandOutline>& outline) {
    const CommandOutline& program = outline.front();
    std::string page = ".TH HALVANE\\-DATA 1 \"\" Halvane\n"
                       ".SH NAME\n"
                       "halvane\\-data \\- the records of Halvane without its window\n";
    page += Synopsis;
    page += ".SH DESCRIPTION\n" + Lines(program.description);
    page += ".SH OPTIONS\n" + Options(program);
    page += ".SH COMMANDS\n";
    for (size_t i = 1; i < outline.size(); ++i)
        page += Command(outline[i]);
    return page + ".SH EXIT STATUS\n" + Lines(program.footer);
}
