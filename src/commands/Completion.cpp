#include "commands/Completion.h"

#include <set>

namespace {
using Outline = std::vector<CommandOutline>;

std::string Quoted(const std::string& text) {
    std::string quoted = "'";
    for (const char character : text)
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return quoted + '\'';
}

std::string Joined(const std::vector<std::string>& words, const char* separator) {
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : separator) + word;
    return text;
}

/// Options of the command and of the program, without arguments.
std::vector<const OptionOutline*> OptionsOf(const Outline& outline, const CommandOutline& command) {
    std::vector<const OptionOutline*> options;
    std::set<std::string> names;
    for (const CommandOutline* from : {&command, &outline.front()})
        for (const OptionOutline& option : from->options)
            if (!option.IsArgument() && names.insert(option.name).second)
                options.push_back(&option);
    return options;
}

std::string OptionsWithValue(const Outline& outline) {
    std::set<std::string> names;
    for (const CommandOutline& command : outline)
        for (const OptionOutline& option : command.options)
            if (!option.IsArgument() && !option.value.empty())
                names.insert({option.name, option.brief});
    names.erase("");
    return Joined({names.begin(), names.end()}, "|");
}

/// Lines that leave in `command` the command that the words before the cursor name.
std::string FindCommand(const Outline& outline, const char* words) {
    std::vector<std::string> names;
    for (size_t i = 1; i < outline.size(); ++i)
        names.push_back('"' + outline[i].name + '"');
    return std::string("    local command= before= word\n"
                       "    for word in ") +
           words +
           "; do\n"
           "        case \"$before\" in\n"
           "            " +
           OptionsWithValue(outline) +
           ") before=; continue;;\n"
           "        esac\n"
           "        before=$word\n"
           "        case \"${command:+$command }$word\" in\n"
           "            " +
           Joined(names, "|") +
           ") command=\"${command:+$command }$word\";;\n"
           "        esac\n"
           "    done\n";
}

/// A case for each option that takes one of some values.
template <class Offer> std::string Choices(const Outline& outline, Offer offer) {
    std::string cases;
    for (const CommandOutline& command : outline)
        for (const OptionOutline& option : command.options)
            if (!option.choices.empty() && !option.IsArgument())
                cases += "        \"" + command.name + ' ' + option.name + "\") " +
                         offer(option.choices) + " return;;\n";
    return "    case \"$command $before\" in\n" + cases + "    esac\n" +
           "    case \"$before\" in\n" + "        " + OptionsWithValue(outline) + ") " + offer({}) +
           " return;;\n    esac\n";
}

std::string BashWords(const Outline& outline, const CommandOutline& command) {
    std::vector<std::string> words;
    for (const CommandOutline* below : CommandOutline::Below(outline, command.name))
        words.push_back(below->LastWord());
    for (const OptionOutline* option : OptionsOf(outline, command))
        words.push_back(option->name);
    return Joined(words, " ");
}

/// An element of a list of zsh: the word, a colon, what it means.
std::string Described(const std::string& word, const std::string& description) {
    std::string text;
    for (const char character : description.substr(0, description.find('\n')))
        text += character == ':' ? std::string("\\:") : std::string(1, character);
    return Quoted(word + ':' + text);
}

std::string ZshLists(const Outline& outline, const CommandOutline& command) {
    std::vector<std::string> commands;
    std::vector<std::string> options;
    for (const CommandOutline* below : CommandOutline::Below(outline, command.name))
        commands.push_back(Described(below->LastWord(), below->description));
    for (const OptionOutline* option : OptionsOf(outline, command))
        options.push_back(Described(option->name, option->description));
    return "commands=(" + Joined(commands, " ") + ") options=(" + Joined(options, " ") + ")";
}
} // namespace

std::string Completion::ForBash(const Outline& outline) {
    std::string text = "_halvane_data() {\n"
                       "    local current=${COMP_WORDS[COMP_CWORD]} words=\n";
    text += FindCommand(outline, "\"${COMP_WORDS[@]:1:COMP_CWORD-1}\"");
    text += Choices(outline, [](const std::vector<std::string>& values) {
        return values.empty() ? std::string("COMPREPLY=();")
                              : "COMPREPLY=($(compgen -W " + Quoted(Joined(values, " ")) +
                                    " -- \"$current\"));";
    });
    text += "    case \"$command\" in\n";
    for (const CommandOutline& command : outline)
        text += "        \"" + command.name + "\") words=" + Quoted(BashWords(outline, command)) +
                ";;\n";
    return text + "    esac\n"
                  "    COMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n"
                  "}\n"
                  "complete -o default -F _halvane_data halvane-data\n";
}

std::string Completion::ForZsh(const Outline& outline) {
    std::string text = "#compdef halvane-data\n"
                       "_halvane_data() {\n"
                       "    local -a commands options\n";
    text += FindCommand(outline, "\"${words[@]:1:$((CURRENT - 2))}\"");
    text += Choices(outline, [](const std::vector<std::string>& values) {
        return values.empty() ? std::string("_files;") : "compadd " + Joined(values, " ") + ";";
    });
    text += "    case \"$command\" in\n";
    for (const CommandOutline& command : outline)
        text += "        \"" + command.name + "\") " + ZshLists(outline, command) + ";;\n";
    return text + "    esac\n"
                  "    (( $#commands )) && _describe command commands\n"
                  "    _describe option options\n"
                  "    (( $#commands )) || _files\n"
                  "}\n"
                  "_halvane_data \"$@\"\n";
}
