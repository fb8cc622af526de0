#include "commands/CommandOutline.h"

namespace {
std::string Listed(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : ", ") + word;
    return text;
}
} // namespace

std::string OptionOutline::Text() const {
    return description + (choices.empty() ? "" : " (one of " + Listed(choices) + ')');
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
